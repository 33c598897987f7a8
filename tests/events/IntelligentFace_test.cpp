// Faces and the known people whom they look like.
#include "orrery/events_intelligent_face.h"
#include "orrery/log.h"
#include "support/Events.h"
#include "support/FailingAllocator.h"
#include "support/LogLines.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

using namespace orrery::test;
using Face = DEV_EVENT_FACEDETECTION_INFO;

bool FaceOf(const std::string& data, const std::function<void(const Face&)>& look) {
    return DecodeOne("FaceDetection", data, [&](const Delivered& event) { look(event.as<Face>()); });
}

TEST(FaceDetection, TheToldSizeIsThereToBeCopied) {
    static_assert(sizeof(Face) <= 12288);
    EXPECT_TRUE(DecodeOne("FaceDetection", "{}", [](const Delivered& event) {
        EXPECT_EQ(event.size, 12288u);
        const auto* const bytes = static_cast<const unsigned char*>(event.record);
        for (std::size_t i = sizeof(Face); i < event.size; ++i)
            ASSERT_EQ(bytes[i], 0) << i;
    }));
}

TEST(FaceDetection, NumbersOutOfRangeSayNothing) {
    EXPECT_TRUE(
        FaceOf(R"({"Race":7,"Attractive":101,"Age":"30","Eye":3,"Mouth":-1,"Mask":3,"Beard":9})", [](const Face& face) {
            EXPECT_EQ(face.emRace, 0);
            EXPECT_EQ(face.nAttractive, -1);
            EXPECT_EQ(face.nAge, -1);
            EXPECT_EQ(face.emEye, 0);
            EXPECT_EQ(face.emMouth, 0);
            EXPECT_EQ(face.emMask, 0);
            EXPECT_EQ(face.emBeard, 0);
        }));
    for (int i = 0; i <= 4; ++i) {
        const std::string n = std::to_string(i);
        EXPECT_TRUE(FaceOf("{\"Race\":" + n + ",\"Eye\":" + n + "}", [&](const Face& face) {
            EXPECT_EQ(face.emRace, i <= 3 ? i + 1 : 0);
            EXPECT_EQ(face.emEye, i <= 2 ? i + 1 : 0);
        }));
    }
    EXPECT_TRUE(FaceOf(R"({"Attractive":0,"Age":0})", [](const Face& face) {
        EXPECT_EQ(face.nAttractive, 0);
        EXPECT_EQ(face.nAge, 0);
    }));
    EXPECT_TRUE(FaceOf(R"({"Attractive":100,"Age":true})", [](const Face& face) {
        EXPECT_EQ(face.nAttractive, 100);
        EXPECT_EQ(face.nAge, -1);
    }));
    EXPECT_TRUE(FaceOf(R"({"Attractive":-1,"Age":30.5})", [](const Face& face) {
        EXPECT_EQ(face.nAttractive, -1);
        EXPECT_EQ(face.nAge, -1);
    }));
}

TEST(FaceDetection, FeaturesByName) {
    EXPECT_TRUE(FaceOf(R"({"Feature":["","WearGlasses","Smile","Anger","Sadness","Disgust","Fear","Surprise","Neutral",
                          "Laugh","NoGlasses","Happy","Confused","Scream","SunGlasses","Noglasses","smile",7,null]})",
                       [](const Face& face) {
                           ASSERT_EQ(face.nFeatureNum, 19);
                           for (int i = 0; i < 15; ++i)
                               EXPECT_EQ(face.emFeature[i], i);
                           for (int i = 15; i < 19; ++i)
                               EXPECT_EQ(face.emFeature[i], 0) << i;
                       }));
    std::string many = "\"Fear\"";
    for (int i = 1; i < 40; ++i)
        many += ",\"Fear\"";
    EXPECT_TRUE(FaceOf("{\"Feature\":[" + many + "]}", [](const Face& face) {
        EXPECT_EQ(face.nFeatureNum, 32);
        EXPECT_EQ(face.emFeature[31], EVENT_FEATURE_FEAR);
    }));
    EXPECT_TRUE(FaceOf(R"({"Feature":"Fear"})", [](const Face& face) { EXPECT_EQ(face.nFeatureNum, 0); }));
}

TEST(FaceDetection, SexIsAName) {
    EXPECT_TRUE(FaceOf(R"({"Sex":"Man"})", [](const Face& face) { EXPECT_EQ(face.emSex, 1); }));
    EXPECT_TRUE(FaceOf(R"({"Sex":"Woman"})", [](const Face& face) { EXPECT_EQ(face.emSex, 2); }));
    EXPECT_TRUE(FaceOf(R"({"Sex":"Male"})", [](const Face& face) { EXPECT_EQ(face.emSex, 0); }));
    EXPECT_TRUE(FaceOf(R"({"Sex":"woman"})", [](const Face& face) { EXPECT_EQ(face.emSex, 2); }));
    EXPECT_TRUE(FaceOf(R"({"Sex":1})", [](const Face& face) { EXPECT_EQ(face.emSex, 0); }));
}

TEST(FaceDetection, TenFaces) {
    std::string faces = R"({"ObjectID":1,"ObjectType":"HumanFace","nRelativeID":2,"RelativeID":3,
                            "BoundingBox":[4,5,6,7,8],"Center":[9,10]},{"BoundingBox":[1,2,3],"Center":[1]})";
    for (int i = 2; i < 12; ++i)
        faces += ",{\"ObjectID\":" + std::to_string(i) + "}";
    EXPECT_TRUE(FaceOf("{\"Faces\":[" + faces + "]}", [](const Face& face) {
        ASSERT_EQ(face.nFaceNum, 10);
        EXPECT_EQ(face.stuFaces[0].nObjectID, 1);
        EXPECT_STREQ(face.stuFaces[0].szObjectType, "HumanFace");
        EXPECT_EQ(face.stuFaces[0].nRelativeID, 2);
        EXPECT_EQ(face.stuFaces[0].stuBoundingBox.nBottom, 7);
        EXPECT_EQ(face.stuFaces[0].stuCenter.nY, 10);
        EXPECT_EQ(face.stuFaces[1].stuBoundingBox.nLeft, 0);
        EXPECT_EQ(face.stuFaces[1].stuCenter.nX, 0);
        EXPECT_EQ(face.stuFaces[9].nObjectID, 9);
    }));
}

// ---- Known people ------------------------------------------------------------------------------------------------

bool Recognition(const std::string& data, const std::function<void(const DEV_EVENT_FACERECOGNITION_INFO&)>& look) {
    return DecodeOne("FaceRecognition", data,
                     [&](const Delivered& event) { look(event.as<DEV_EVENT_FACERECOGNITION_INFO>()); });
}

template <class Person>
void CheckPerson(const Person& person) {
    EXPECT_STREQ(person.szCustomType, "");
    EXPECT_EQ(person.wYear, 1979);
    EXPECT_EQ(person.byMonth, 3);
    EXPECT_EQ(person.byDay, 14);
    EXPECT_STREQ(person.szID, "ID 1");
    EXPECT_EQ(person.byImportant, 1);
    EXPECT_EQ(person.bySex, 2);
    ASSERT_EQ(person.nImageNum, 2);
    EXPECT_EQ(person.stuImage[1].dwOffset, 7u);
    EXPECT_EQ(person.stuImage[0].pszFilePath, nullptr);
    EXPECT_STREQ(person.stuImage[1].pszFilePath, "/second");
    EXPECT_EQ(person.byType, EVENT_PERSON_VIP);
    EXPECT_EQ(person.byCertificateType, EVENT_CERTIFICATE_PASSPORT);
    EXPECT_EQ(person.byGlasses, 1);
    EXPECT_EQ(person.byAge, 47);
    EXPECT_STREQ(person.szProvince, "P");
    EXPECT_STREQ(person.szCity, "C");
    EXPECT_STREQ(person.szName, "N");
    EXPECT_STREQ(person.szUID, "U");
    EXPECT_STREQ(person.szCountry, "NL");
    EXPECT_EQ(person.byIsCustomType, 0);
    EXPECT_STREQ(person.pszComment, "comment");
    EXPECT_STREQ(person.pszGroupID, "group");
    EXPECT_STREQ(person.pszGroupName, "name");
    EXPECT_STREQ(person.pszFeatureValue, "value");
    EXPECT_EQ(person.emEmotion, EVENT_FEATURE_CONFUSED);
}

template <class Candidate>
void CheckCandidate(const Candidate& candidate) {
    CheckPerson(candidate.stuPerson);
    EXPECT_EQ(candidate.bySimilarity, 91);
    EXPECT_EQ(candidate.byRange, 2);
    EXPECT_EQ(candidate.stuTime.dwYear, 2026);
    EXPECT_EQ(candidate.stuTime.dwSecond, 5);
    EXPECT_STREQ(candidate.szAddress, "gate");
    EXPECT_EQ(candidate.bIsHit, 1);
    EXPECT_EQ(candidate.stuSceneImage.dwLength, 8u);
    EXPECT_STREQ(candidate.stuSceneImage.szFilePath, "/scene");
    EXPECT_EQ(candidate.nChannelID, 6);
}

TEST(FaceRecognition, CandidatesStandInTwoLists) {
    EXPECT_TRUE(Recognition(R"({"Candidates":[{},{"Similarity":91,"Range":2,"Time":"2026-11-20 09:30:05",
        "Address":"gate","IsHit":true,"Channel":6,"SceneImage":{"Length":8,"FilePath":"/scene"},
        "Person":{"Birthday":"1979-03-14","ID":"ID 1","Important":1,"Sex":"FEMALE",
            "Image":[{"Offset":6},{"Offset":7,"FilePath":"/second"}],"Type":"VIP","CertificateType":"Passport",
            "Glasses":1,"Age":47,"Province":"P","City":"C","Name":"N","UID":"U","Country":"NLD","IsCustomType":0,
            "Comment":"comment","GroupID":"group","GroupName":"name","FeatureValue":"value","Emotion":"Confused",
            "HomeAddress":"home","GlassesType":"SunGlasses","Race":1,"Eye":2,"Mouth":0,"Mask":1,"Beard":2}}]})",
                            [](const DEV_EVENT_FACERECOGNITION_INFO& event) {
                                ASSERT_EQ(event.nCandidateNum, 2);
                                CheckCandidate(event.stuCandidates[1]);
                                CheckCandidate(event.stuCandidatesEx[1]);
                                const auto& candidate = event.stuCandidatesEx[1];
                                EXPECT_STREQ(candidate.szFilePath, "/scene");
                                EXPECT_STREQ(candidate.stuPerson.szHomeAddress, "home");
                                EXPECT_EQ(candidate.stuPerson.emGlassesType, EVENT_GLASSES_SUN_GLASSES);
                                EXPECT_EQ(candidate.stuPerson.emRace, 2);
                                EXPECT_EQ(candidate.stuPerson.emEye, 3);
                                EXPECT_EQ(candidate.stuPerson.emMouth, 1);
                                EXPECT_EQ(candidate.stuPerson.emMask, 2);
                                EXPECT_EQ(candidate.stuPerson.emBeard, 3);
                            }));
}

TEST(FaceRecognition, GroupTextsAreThereForEveryCandidate) {
    EXPECT_TRUE(Recognition(R"({"Candidates":[{},{"Person":{}}]})", [](const DEV_EVENT_FACERECOGNITION_INFO& event) {
        for (int i = 0; i < 2; ++i) {
            for (const char* text :
                 {event.stuCandidates[i].stuPerson.pszComment, event.stuCandidates[i].stuPerson.pszGroupID,
                  event.stuCandidates[i].stuPerson.pszGroupName, event.stuCandidates[i].stuPerson.pszFeatureValue,
                  event.stuCandidatesEx[i].stuPerson.pszComment, event.stuCandidatesEx[i].stuPerson.pszGroupID,
                  event.stuCandidatesEx[i].stuPerson.pszGroupName,
                  event.stuCandidatesEx[i].stuPerson.pszFeatureValue}) {
                EXPECT_STREQ(text, "");
            }
        }
        EXPECT_EQ(event.stuCandidates[2].stuPerson.pszComment, nullptr);
    }));
    const std::string t(200, 't');
    EXPECT_TRUE(Recognition("{\"Candidates\":[{\"Person\":{\"Comment\":\"" + t + "\",\"GroupID\":\"" + t
                                + "\",\"GroupName\":\"" + t + "\",\"FeatureValue\":\"" + t + "\"}}]}",
                            [](const DEV_EVENT_FACERECOGNITION_INFO& event) {
                                const auto& person = event.stuCandidates[0].stuPerson;
                                EXPECT_EQ(std::strlen(person.pszComment), 99u);
                                EXPECT_EQ(std::strlen(person.pszGroupID), 63u);
                                EXPECT_EQ(std::strlen(person.pszGroupName), 127u);
                                EXPECT_EQ(std::strlen(person.pszFeatureValue), 127u);
                            }));
}

TEST(FaceRecognition, CustomTypesKeepTheirText) {
    const auto look = [](const char* person, const char* custom, int type) {
        EXPECT_TRUE(Recognition("{\"Candidates\":[{\"Person\":" + std::string(person) + "}]}",
                                [&](const DEV_EVENT_FACERECOGNITION_INFO& event) {
                                    EXPECT_STREQ(event.stuCandidates[0].stuPerson.szCustomType, custom) << person;
                                    EXPECT_STREQ(event.stuCandidatesEx[0].stuPerson.szCustomType, custom) << person;
                                    EXPECT_EQ(event.stuCandidates[0].stuPerson.byType, type) << person;
                                }));
    };
    look(R"({"IsCustomType":1,"Type":"a type of one's own"})", "a type of one's", 0);
    look(R"({"IsCustomType":2,"Type":"own"})", "", 0);
    look(R"({"Type":"Thief"})", "", EVENT_PERSON_THIEF);
    look(R"({"Type":"Normal"})", "", 1);
    look(R"({"Type":"Suspicion"})", "", 2);
    look(R"({"Type":"FateCheck"})", "", 5);
    look(R"({"Type":"Staff"})", "", 6);
    look(R"({"Type":"Visitor"})", "", 0);
}

TEST(FaceRecognition, NamesInAnyCase) {
    const auto look = [](const char* person, int sex, int type, int certificate, int glasses) {
        EXPECT_TRUE(Recognition("{\"Candidates\":[{\"Person\":" + std::string(person) + "}]}",
                                [&](const DEV_EVENT_FACERECOGNITION_INFO& event) {
                                    const EVENT_PERSON_INFO& known = event.stuCandidates[0].stuPerson;
                                    EXPECT_EQ(known.bySex, sex) << person;
                                    EXPECT_EQ(known.byType, type) << person;
                                    EXPECT_EQ(known.byCertificateType, certificate) << person;
                                    const EVENT_PERSON_INFO_EX& more = event.stuCandidatesEx[0].stuPerson;
                                    EXPECT_EQ(more.bySex, sex) << person;
                                    EXPECT_EQ(more.byType, type) << person;
                                    EXPECT_EQ(more.byCertificateType, certificate) << person;
                                    EXPECT_EQ(more.emGlassesType, glasses) << person;
                                }));
    };
    look(R"({"Sex":"Male","Type":"vip","CertificateType":"IC","GlassesType":"glasses"})", 1, 4, 1, 2);
    look(R"({"Sex":"female","Type":"THIEF","CertificateType":"passport","GlassesType":"SUNGLASSES"})", 2, 3, 2, 1);
    look(R"({"Sex":"Woman","Type":"","CertificateType":"Visa","GlassesType":""})", 0, 0, 0, 0);
}

TEST(FaceRecognition, BirthdaysThatAreNoDate) {
    for (const char* birthday : {"\"1979-03\"", "\"\"", "19790314", "\"March\""}) {
        EXPECT_TRUE(Recognition("{\"Candidates\":[{\"Person\":{\"Birthday\":" + std::string(birthday) + "}}]}",
                                [&](const DEV_EVENT_FACERECOGNITION_INFO& event) {
                                    EXPECT_EQ(event.stuCandidates[0].stuPerson.wYear, 0) << birthday;
                                    EXPECT_EQ(event.stuCandidates[0].stuPerson.byDay, 0) << birthday;
                                }));
    }
}

TEST(FaceRecognition, FiftyCandidatesWithFortyEightImages) {
    std::string images = "{}";
    for (int i = 1; i < 60; ++i)
        images += ",{}";
    std::string candidates = "{\"Person\":{\"Image\":[" + images + "]}}";
    for (int i = 1; i < 60; ++i)
        candidates += ",{\"Similarity\":" + std::to_string(i) + "}";
    EXPECT_TRUE(Recognition("{\"Candidates\":[" + candidates + "]}", [](const DEV_EVENT_FACERECOGNITION_INFO& event) {
        ASSERT_EQ(event.nCandidateNum, 50);
        EXPECT_EQ(event.stuCandidates[49].bySimilarity, 49);
        EXPECT_EQ(event.stuCandidatesEx[49].bySimilarity, 49);
        EXPECT_EQ(event.stuCandidates[0].stuPerson.nImageNum, 48);
        EXPECT_EQ(event.stuCandidatesEx[0].stuPerson.nImageNum, 48);
    }));
}

// Texts for whose blocks there is no memory are missing and told of; all else is there.
TEST(FaceRecognition, EveryAllocationMayFail) {
    std::string candidates = "{\"Similarity\":1}";
    for (int i = 2; i <= 50; ++i)
        candidates += ",{\"Similarity\":" + std::to_string(i) + "}";
    const std::string text = EventText("FaceRecognition", "{\"Candidates\":[" + candidates + "]}");
    std::ptrdiff_t missing = 0;
    const auto look = [&](const auto& candidate, int index) {
        EXPECT_EQ(candidate.bySimilarity, index + 1);
        const auto& person = candidate.stuPerson;
        for (const char* each : {person.pszComment, person.pszGroupID, person.pszGroupName, person.pszFeatureValue}) {
            if (each == nullptr)
                ++missing;
            else
                EXPECT_STREQ(each, "");
        }
    };
    const EventVisitor visit = [&](const Delivered& event) {
        const auto& recognition = event.as<DEV_EVENT_FACERECOGNITION_INFO>();
        EXPECT_EQ(recognition.nCandidateNum, 50);
        for (int i = 0; i < 50; ++i) {
            look(recognition.stuCandidates[i], i);
            look(recognition.stuCandidatesEx[i], i);
        }
    };
    LogLines log;
    HeapWatch watch;
    bool failed = true;
    for (std::size_t n = 1; failed; ++n) {
        const std::size_t before = watch.failures();
        watch.FailFrom(n);
        CLIENT_ParseAnalyzerEventData(text.c_str(), 0, VisitEvent, const_cast<EventVisitor*>(&visit));
        failed = watch.failures() > before;
        watch.FailNone();
        ASSERT_LT(n, 50u);
    }
    EXPECT_EQ(watch.liveBlocks(), 0);
    EXPECT_GT(missing, 0);
    std::ptrdiff_t told = 0;
    for (const char* line : {"Failed to new group comment, size:100", "Failed to new group ID, size:64",
                             "Failed to new group name, size:128", "Failed to new feature calue, size:128"}) {
        const std::ptrdiff_t times = log.count(E_LOG_LEVEL_ERROR, line);
        EXPECT_GT(times, 0) << line;
        told += times;
    }
    EXPECT_EQ(told, missing);
}

} // namespace
