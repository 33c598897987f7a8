// What people look like, what a parcel holds, which vehicle it is.
#include "orrery/events_intelligent_face.h"
#include "orrery/events_intelligent_person.h"
#include "orrery/events_intelligent_recognition.h"
#include "support/Events.h"

#include <gtest/gtest.h>

namespace {

using namespace orrery::test;

TEST(PersonFeature, LooksAndPicture) {
    constexpr const char* kData = R"({"Sex":"Male","Emotion":"NoGlasses","SourceIndex":1,"SourceDevice":"device",
        "UpperBodyColor":[1,2,3],"LowerBodyColor":[1,2,3,4,5],"BoundingBox":[1,2,3,4,5],"PlateNumber":"A 1"})";
    EXPECT_TRUE(DecodeOne("PersonFeature", kData, [](const Delivered& event) {
        const auto& person = event.as<DEV_EVENT_PERSONFEATURE_INFO>();
        EXPECT_EQ(person.bySex, 1);
        EXPECT_EQ(person.emEmotion, EVENT_FEATURE_NO_GLASSES);
        EXPECT_STREQ(person.szSourceDevice, "device");
        // Four numbers, no more and no fewer.
        EXPECT_EQ(person.stuUpperBodyColor.nRed, 0);
        EXPECT_EQ(person.stuLowerBodyColor.nRed, 0);
        EXPECT_EQ(person.stuBoundingBox.nLeft, 0);
    }));
    EXPECT_TRUE(DecodeOne("NonMotorFeature", R"({"Sex":"feMALE","PlateNumber":"A 1"})", [](const Delivered& event) {
        EXPECT_EQ(event.as<DEV_EVENT_NONMOTORFEATURE_INFO>().bySex, 2);
        EXPECT_STREQ(event.as<DEV_EVENT_NONMOTORFEATURE_INFO>().szPlateNumber, "A 1");
    }));
}

bool Trait(const std::string& data, const std::function<void(const DEV_EVENT_HUMANTRAIT_INFO&)>& look) {
    return DecodeOne("HumanTrait", data, [&](const Delivered& event) { look(event.as<DEV_EVENT_HUMANTRAIT_INFO>()); });
}

TEST(HumanTrait, ImagesAndAttributes) {
    EXPECT_TRUE(Trait(R"({"HumanImage":{"Offset":1,"Length":2,"Width":3,"Height":4,"IndexInData":5},
        "HumanAttributes":{"CoatColor":"Brown","TrousersColor":"Blue","CoatType":2,"HasHat":1,"HasBag":2,
                           "TrousersType":3,"Sex":"Woman","Age":30},
        "FaceAttributes":{"Age":31,"Beard":1,"Mask":2,"FaceQuality":88,"Feature":["Noglasses","NoGlasses"],
                          "Glass":1,"Sex":"Man"}})",
                      [](const DEV_EVENT_HUMANTRAIT_INFO& trait) {
                          EXPECT_EQ(trait.stuHumanImage.dwOffset, 1u);
                          EXPECT_EQ(trait.stuHumanImage.dwLength, 2u);
                          EXPECT_EQ(trait.stuHumanImage.dwWidth, 3u);
                          EXPECT_EQ(trait.stuHumanImage.dwHeight, 4u);
                          EXPECT_EQ(trait.stuHumanImage.dwIndexInData, 5u);
                          const auto& human = trait.stuHumanAttributes;
                          EXPECT_EQ(human.emCoatColor, 11);
                          EXPECT_EQ(human.emTrousersColor, 8);
                          EXPECT_EQ(human.emCoatType, 2);
                          EXPECT_EQ(human.emHasHat, 1);
                          EXPECT_EQ(human.emHasBag, 2);
                          EXPECT_EQ(human.emTrousersType, 3);
                          EXPECT_EQ(human.emSex, 2);
                          EXPECT_EQ(human.nAge, 30);
                          const auto& face = trait.stuFaceAttributes;
                          EXPECT_EQ(face.nAge, 31);
                          EXPECT_EQ(face.nBeard, 1);
                          EXPECT_EQ(face.nMask, 2);
                          EXPECT_EQ(face.nFaceQuality, 88);
                          ASSERT_EQ(face.nFeatureNum, 2);
                          EXPECT_EQ(face.emFeature[0], EVENT_FEATURE_NO_GLASSES); // spelled as these devices do
                          EXPECT_EQ(face.emFeature[1], 0);
                          EXPECT_EQ(face.emGlass, 2);
                          EXPECT_EQ(face.emSex, 1);
                      }));
}

TEST(HumanTrait, NumbersByTheirPlaces) {
    for (int i = -1; i <= 4; ++i) {
        const std::string n = std::to_string(i);
        EXPECT_TRUE(Trait("{\"DetectObject\":" + n + ",\"HumanAttributes\":{\"CoatType\":" + n + ",\"HasHat\":" + n
                              + ",\"HasBag\":" + n + ",\"TrousersType\":" + n + "},\"FaceAttributes\":{\"Glass\":" + n
                              + "}}",
                          [&](const DEV_EVENT_HUMANTRAIT_INFO& trait) {
                              EXPECT_EQ(trait.emDetectObject, i >= 0 && i <= 2 ? i + 1 : 0) << i;
                              EXPECT_EQ(trait.stuHumanAttributes.emCoatType, i >= 0 && i <= 2 ? i : 0) << i;
                              EXPECT_EQ(trait.stuHumanAttributes.emHasHat, i >= 0 && i <= 2 ? i : 0) << i;
                              EXPECT_EQ(trait.stuHumanAttributes.emHasBag, i >= 0 && i <= 2 ? i : 0) << i;
                              EXPECT_EQ(trait.stuHumanAttributes.emTrousersType, i >= 0 && i <= 3 ? i : 0) << i;
                              EXPECT_EQ(trait.stuFaceAttributes.emGlass, i == 2 ? 1 : i == 1 ? 2 : 0) << i;
                          }));
    }
}

TEST(HumanTrait, GroupsAreIntegers) {
    EXPECT_TRUE(
        Trait(R"({"GroupID":"7","CountInGroup":1.5,"IndexInGroup":true})", [](const DEV_EVENT_HUMANTRAIT_INFO& trait) {
            EXPECT_EQ(trait.nGroupID, 0);
            EXPECT_EQ(trait.nCountInGroup, 0);
            EXPECT_EQ(trait.nIndexInGroup, 0);
        }));
}

TEST(HumanTrait, ColorsOfClothes) {
    const char* const names[] = {"",       "White", "Orange", "Pink",  "Black",  "Red",
                                 "Yellow", "Gray",  "Blue",   "Green", "Purple", "Brown"};
    for (int i = 0; i < 12; ++i) {
        EXPECT_TRUE(
            Trait("{\"HumanAttributes\":{\"CoatColor\":\"" + std::string(names[i]) + "\"}}",
                  [&](const DEV_EVENT_HUMANTRAIT_INFO& trait) { EXPECT_EQ(trait.stuHumanAttributes.emCoatColor, i); }));
    }
    EXPECT_TRUE(Trait(R"({"HumanAttributes":{"CoatColor":"Magenta","TrousersColor":"bROWN","Sex":"WOMAN"}})",
                      [](const DEV_EVENT_HUMANTRAIT_INFO& trait) {
                          EXPECT_EQ(trait.stuHumanAttributes.emCoatColor, 0);
                          EXPECT_EQ(trait.stuHumanAttributes.emTrousersColor, 11);
                          EXPECT_EQ(trait.stuHumanAttributes.emSex, 2);
                      }));
}

TEST(HumanTrait, ThirtyTwoFeatures) {
    std::string features = "\"Smile\"";
    for (int i = 1; i < 40; ++i)
        features += ",\"SunGlasses\"";
    EXPECT_TRUE(Trait("{\"FaceAttributes\":{\"Glass\":1,\"Feature\":[" + features + "]}}",
                      [](const DEV_EVENT_HUMANTRAIT_INFO& trait) {
                          EXPECT_EQ(trait.stuFaceAttributes.nFeatureNum, 32);
                          EXPECT_EQ(trait.stuFaceAttributes.emFeature[0], EVENT_FEATURE_SMILE);
                          EXPECT_EQ(trait.stuFaceAttributes.emFeature[31], EVENT_FEATURE_SUN_GLASSES);
                          EXPECT_EQ(trait.stuFaceAttributes.emGlass, 2);
                      }));
}

TEST(XRay, GradesAndThings) {
    using R = DEV_EVENT_XRAYDETECTION_INFO;
    const auto grade = [](const char* data) {
        std::int32_t value = 99;
        EXPECT_TRUE(
            DecodeOne("XRayDetection", data, [&](const Delivered& event) { value = event.as<R>().nPacketGrade; }));
        return value;
    };
    EXPECT_EQ(grade(R"({"Packet":{"Grade":0}})"), 0);
    EXPECT_EQ(grade(R"({"Packet":{"Grade":2}})"), 2);
    EXPECT_EQ(grade(R"({"Packet":{"Grade":3}})"), -1);
    EXPECT_EQ(grade(R"({"Packet":{"Grade":-5}})"), -5); // only too high a grade is none
    EXPECT_EQ(grade(R"({"Packet":{}})"), -1);

    const char* const names[] = {"Unknow",   "Knife",     "BottleLiquid", "Gun", "Umbrella", "Phone",
                                 "Notebook", "Powerbank", "Shoes",        "Rod", "Metal",    "Explosive"};
    std::string inside = R"({"Type":"Something","Grade":3})";
    for (const char* name : names)
        inside += ",{\"Grade\":1,\"Type\":\"" + std::string(name) + "\"}";
    for (int i = 0; i < 30; ++i)
        inside += ",{}";
    EXPECT_TRUE(DecodeOne("XRayDetection", "{\"Inside\":[" + inside + "]}", [](const Delivered& event) {
        const auto& parcel = event.as<R>();
        ASSERT_EQ(parcel.nInsideNum, 32);
        EXPECT_EQ(parcel.stuInside[0].nGrade, -1);
        EXPECT_EQ(parcel.stuInside[0].emType, 0);
        for (int i = 0; i < 12; ++i) {
            EXPECT_EQ(parcel.stuInside[i + 1].emType, i);
            EXPECT_EQ(parcel.stuInside[i + 1].nGrade, 1);
        }
        EXPECT_EQ(parcel.stuInside[31].nGrade, -1);
    }));
    EXPECT_TRUE(
        DecodeOne("XRayDetection", R"({"Inside":[{"Type":"bottleLIQUID","Grade":-5}]})", [](const Delivered& event) {
            EXPECT_EQ(event.as<R>().nInsideNum, 1);
            EXPECT_EQ(event.as<R>().stuInside[0].emType, EVENT_INSIDE_BOTTLE_LIQUID);
            EXPECT_EQ(event.as<R>().stuInside[0].nGrade, -5);
        }));
}

bool Vehicle(const std::string& data, const std::function<void(const DEV_EVENT_VEHICLERECOGNITION_INFO&)>& look) {
    return DecodeOne("VehicleRecognition", data,
                     [&](const Delivered& event) { look(event.as<DEV_EVENT_VEHICLERECOGNITION_INFO>()); });
}

TEST(VehicleRecognition, WhatIsSeen) {
    EXPECT_TRUE(Vehicle(R"({"Object":{"ObjectID":1,"Country":"DE"},"Vehicle":{"ObjectID":2,"Action":"Appear",
        "MainSeat":{"SunShade":1,"DriverCalling":2,"DriverSmoking":3,"SafeBelt":4},"SlaveSeat":{"SafeBelt":5},
        "MainFace":[1,2,3,4],"SlaveFace":[5,6,7,8],
        "VehicleAttachs":[{"Type":"Inspect","BoundingBox":[9,10,11,12]},{"Type":"Pendant"},{"Type":"Paperbox"},
                          {"Type":"Perfumebox"},{"Type":""},{},{},{},{}]}})",
                        [](const DEV_EVENT_VEHICLERECOGNITION_INFO& event) {
                            EXPECT_EQ(event.emAction, EVENT_VEHICLE_APPEAR);
                            EXPECT_EQ(event.stuVehicle.nAction, 0); // the word lost its last character there
                            EXPECT_EQ(event.stuMainSeat.bySunShade, 1);
                            EXPECT_EQ(event.stuMainSeat.byDriverCalling, 2);
                            EXPECT_EQ(event.stuMainSeat.byDriverSmoking, 3);
                            EXPECT_EQ(event.stuMainSeat.bySafeBelt, 4);
                            EXPECT_EQ(event.stuSlaveSeat.bySafeBelt, 5);
                            EXPECT_EQ(event.stuMainFace.nBottom, 4);
                            EXPECT_EQ(event.stuSlaveFace.nLeft, 5);
                            ASSERT_EQ(event.nVehicleAttachNum, 8);
                            for (int i = 0; i < 4; ++i)
                                EXPECT_EQ(event.stuVehicleAttach[i].emType, i + 1);
                            EXPECT_EQ(event.stuVehicleAttach[4].emType, 0);
                            EXPECT_EQ(event.stuVehicleAttach[0].stuBoundingBox.nRight, 11);
                            EXPECT_STREQ(event.szCountry, "DE");
                        }));
}

TEST(VehicleRecognition, KnownVehicles) {
    EXPECT_TRUE(Vehicle(R"({"CarCandidate":[{"DifferentAttributres":["","Country","Brand","Type","VehicleColor",
            "PlateColor","Wheels"],
        "Vehicle":{"UID":4000000000,"GroupID":"g","GroupName":"gn","PlateNumber":"p","PlateCountry":"NLD",
            "PlateType":1,"Type":2,"Brand":3,"Serie":4,"CarSeriesModelYearIndex":5,"VehicleColor":[6,7,8,9],
            "PlateColor":[10,11,12,13],"Name":"n","Sex":"Male","CertificateType":"Military","ID":"id",
            "Country":"DEU","Province":"pr","City":"c","HomeAddress":"h","Email":"e","PhoneNo":"ph"}},
        {"Vehicle":{"Sex":"Other","CertificateType":"Other"}},{"Vehicle":{"Sex":"Female","CertificateType":"IC"}},
        {"Vehicle":{"Sex":"Unknown","CertificateType":"Unknown"}},{"Vehicle":{"Sex":7,"CertificateType":"Passport"}},
        {}]})",
                        [](const DEV_EVENT_VEHICLERECOGNITION_INFO& event) {
                            ASSERT_EQ(event.nCandidateNum, 6);
                            const auto& car = event.stuCandidates[0];
                            ASSERT_EQ(car.nDifferenceNum, 7);
                            for (int i = 0; i < 6; ++i)
                                EXPECT_EQ(car.emDifference[i], i);
                            EXPECT_EQ(car.emDifference[6], 0);
                            EXPECT_EQ(car.dwUID, 4000000000u);
                            EXPECT_STREQ(car.szGroupID, "g");
                            EXPECT_STREQ(car.szGroupName, "gn");
                            EXPECT_STREQ(car.szPlateNumber, "p");
                            EXPECT_STREQ(car.szPlateCountry, "NLD");
                            EXPECT_EQ(car.dwPlateType, 1u);
                            EXPECT_EQ(car.dwType, 2u);
                            EXPECT_EQ(car.dwBrand, 3u);
                            EXPECT_EQ(car.dwSerie, 4u);
                            EXPECT_EQ(car.dwCarSeriesModelYearIndex, 5u);
                            EXPECT_EQ(car.stuVehicleColor.nAlpha, 9);
                            EXPECT_EQ(car.stuPlateColor.nRed, 10);
                            EXPECT_STREQ(car.szName, "n");
                            EXPECT_EQ(car.emSex, 1);
                            EXPECT_EQ(car.emCertificateType, 3);
                            EXPECT_STREQ(car.szID, "id");
                            EXPECT_STREQ(car.szCountry, "DEU");
                            EXPECT_STREQ(car.szProvince, "pr");
                            EXPECT_STREQ(car.szCity, "c");
                            EXPECT_STREQ(car.szHomeAddress, "h");
                            EXPECT_STREQ(car.szEmail, "e");
                            EXPECT_STREQ(car.szPhoneNo, "ph");
                            const int sexes[] = {1, 3, 2, 0, 0, 0};
                            const int certificates[] = {3, 4, 1, 0, 2, 0};
                            for (int i = 0; i < 6; ++i) {
                                EXPECT_EQ(event.stuCandidates[i].emSex, sexes[i]) << i;
                                EXPECT_EQ(event.stuCandidates[i].emCertificateType, certificates[i]) << i;
                            }
                        }));
    std::string many = "{}";
    for (int i = 1; i < 60; ++i)
        many += ",{\"Vehicle\":{\"UID\":" + std::to_string(i) + "}}";
    EXPECT_TRUE(Vehicle("{\"CarCandidate\":[" + many + "]}", [](const DEV_EVENT_VEHICLERECOGNITION_INFO& event) {
        EXPECT_EQ(event.nCandidateNum, 50);
        EXPECT_EQ(event.stuCandidates[49].dwUID, 49u);
    }));
    std::string differences = "\"Type\"";
    for (int i = 1; i < 20; ++i)
        differences += ",\"Brand\"";
    EXPECT_TRUE(Vehicle("{\"CarCandidate\":[{\"DifferentAttributres\":[" + differences + "]}]}",
                        [](const DEV_EVENT_VEHICLERECOGNITION_INFO& event) {
                            EXPECT_EQ(event.stuCandidates[0].nDifferenceNum, 16);
                            EXPECT_EQ(event.stuCandidates[0].emDifference[0], EVENT_CAR_DIFFERENCE_TYPE);
                            EXPECT_EQ(event.stuCandidates[0].emDifference[15], EVENT_CAR_DIFFERENCE_BRAND);
                            EXPECT_EQ(event.stuCandidates[0].dwUID, 0u);
                        }));
}

TEST(VehicleRecognition, NamesInAnyCase) {
    EXPECT_TRUE(Vehicle(R"({"Vehicle":{"Action":"disAPPEAR","VehicleAttachs":[{"Type":"PERFUMEBOX"},{"Type":"box"}]},
        "CarCandidate":[{"DifferentAttributres":["platecolor","VEHICLECOLOR"],
                         "Vehicle":{"Sex":"FEMALE","CertificateType":"military"}}]})",
                        [](const DEV_EVENT_VEHICLERECOGNITION_INFO& event) {
                            EXPECT_EQ(event.emAction, EVENT_VEHICLE_DISAPPEAR);
                            EXPECT_EQ(event.stuVehicleAttach[0].emType, EVENT_VEHICLE_ATTACH_PERFUME_BOX);
                            EXPECT_EQ(event.stuVehicleAttach[1].emType, 0);
                            EXPECT_EQ(event.stuCandidates[0].emDifference[0], EVENT_CAR_DIFFERENCE_PLATE_COLOR);
                            EXPECT_EQ(event.stuCandidates[0].emDifference[1], EVENT_CAR_DIFFERENCE_VEHICLE_COLOR);
                            EXPECT_EQ(event.stuCandidates[0].emSex, 2);
                            EXPECT_EQ(event.stuCandidates[0].emCertificateType, 3);
                        }));
    EXPECT_TRUE(Vehicle(R"({"Vehicle":{"Action":"Vanish"}})", [](const DEV_EVENT_VEHICLERECOGNITION_INFO& event) {
        EXPECT_EQ(event.emAction, EVENT_VEHICLE_ACTION_UNKNOWN);
    }));
}

TEST(VehicleRecognition, RectanglesHaveFourNumbers) {
    EXPECT_TRUE(Vehicle(R"({"Vehicle":{"MainFace":[1,2,3],"SlaveFace":[1,2,3,4,5],
                            "VehicleAttachs":[{"BoundingBox":[1,2,3]}]}})",
                        [](const DEV_EVENT_VEHICLERECOGNITION_INFO& event) {
                            EXPECT_EQ(event.stuMainFace.nLeft, 0);
                            EXPECT_EQ(event.stuSlaveFace.nLeft, 0);
                            EXPECT_EQ(event.nVehicleAttachNum, 1);
                            EXPECT_EQ(event.stuVehicleAttach[0].stuBoundingBox.nLeft, 0);
                        }));
}

} // namespace
