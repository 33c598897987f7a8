// Oddities of the events about regions, crowds, queues and troubled devices.
#include "orrery/events_common.h"
#include "orrery/events_intelligent_detection.h"
#include "orrery/events_intelligent_person.h"
#include "orrery/events_intelligent_recognition.h"
#include "orrery/events_intelligent_region.h"
#include "orrery/events_intelligent_statistics.h"
#include "orrery/log.h"
#include "support/Events.h"
#include "support/FailingAllocator.h"
#include "support/LogLines.h"

#include <gtest/gtest.h>

namespace {

using namespace orrery::test;

template <class R, class Member>
auto Field(const char* code, const std::string& data, Member R::*member) {
    Member value{};
    EXPECT_TRUE(DecodeOne(code, data, [&](const Delivered& event) { value = event.as<R>().*member; })) << data;
    return value;
}

TEST(RegionEvents, SpecialRegions) {
    using R = DEV_EVENT_PASTEDETECTION_INFO;
    const auto of = [](const char* text) {
        return Field("PasteDetection", "{\"SpecialRegion\":\"" + std::string(text) + "\"}", &R::emSpecialRegion);
    };
    EXPECT_EQ(of("Highlight"), 1);
    EXPECT_EQ(of("RegularBlink"), 2);
    EXPECT_EQ(of("IrregularBlink"), 3);
    EXPECT_EQ(of("irregularBLINK"), 3);
    EXPECT_EQ(of("Dark"), 0);
}

TEST(RegionEvents, APathOfAMovedThingHasTwoPoints) {
    using R = DEV_EVENT_MOVEDETECTION_INFO;
    EXPECT_EQ(Field("MoveDetection", R"({"Track":[[1,2]]})", &R::nTrackNum), 0);
    EXPECT_TRUE(DecodeOne("MoveDetection", R"({"Track":[[1,2]]})",
                          [](const Delivered& event) { EXPECT_EQ(event.as<R>().stuTrack[0].nX, 0); }));
    EXPECT_EQ(Field("MoveDetection", R"({"Track":[[1,2],[3,4]]})", &R::nTrackNum), 2);
    // Elsewhere one point is a path.
    EXPECT_EQ(Field("RunDetection", R"({"Track":[[1,2]]})", &DEV_EVENT_RUNDETECTION_INFO::nTrackNum), 1);
}

TEST(RegionEvents, PositionOfSmokeHasThreeNumbers) {
    const auto of = [](const char* position, int index) {
        int number = -1;
        EXPECT_TRUE(
            DecodeOne("SmokeDetection", "{\"Position\":" + std::string(position) + "}", [&](const Delivered& event) {
                number = event.as<DEV_EVENT_SMOKEDETECTION_INFO>().nPosition[index];
            }));
        return number;
    };
    EXPECT_EQ(of("[1,2,3]", 2), 3);
    EXPECT_EQ(of("[1,2]", 0), 0);
    EXPECT_EQ(of("[1,2,3,4]", 0), 0);
}

TEST(RegionEvents, KindsOfRunning) {
    using R = DEV_EVENT_RUNDETECTION_INFO;
    EXPECT_EQ(Field("RunDetection", R"({"Type":"FastRun"})", &R::emType), 0);
    EXPECT_EQ(Field("RunDetection", R"({"Type":"AbruptSpeedup"})", &R::emType), 1);
    EXPECT_EQ(Field("RunDetection", R"({"Type":"AbruptSlowdown"})", &R::emType), 2);
    EXPECT_EQ(Field("RunDetection", R"({"Type":"abruptspeedup"})", &R::emType), 1);
    EXPECT_EQ(Field("RunDetection", R"({"Type":"Walk"})", &R::emType), 0);
}

TEST(RegionEvents, TheRightWayIsAListOfPoints) {
    EXPECT_TRUE(DecodeOne("RetrogradeDetection", R"({"Direction":[[1,2],[3,4]]})", [](const Delivered& event) {
        const auto& retrograde = event.as<DEV_EVENT_RETROGRADEDETECTION_INFO>();
        EXPECT_EQ(retrograde.nDirectionNum, 2);
        EXPECT_EQ(retrograde.stuDirection[1].nX, 3);
    }));
}

TEST(RegionEvents, PresetNamesAreCut) {
    EXPECT_TRUE(DecodeOne("LeftDetection", "{\"PresetName\":\"" + std::string(80, 'n') + "\",\"PresetID\":-1}",
                          [](const Delivered& event) {
                              const auto& left = event.as<DEV_EVENT_LEFTDETECTION_INFO>();
                              EXPECT_EQ(std::string(left.szPresetName), std::string(63, 'n'));
                              EXPECT_EQ(left.nPresetID, -1);
                          }));
}

// A device that names no source by its index has none by its name either.
TEST(ClosingFields, SourceDeviceStandsBesideItsIndex) {
    const auto look = [](const std::string& data, int index, const std::string& device) {
        EXPECT_TRUE(DecodeOne("StayDetection", data, [&](const Delivered& event) {
            const auto& stay = event.as<DEV_EVENT_STAYDETECTION_INFO>();
            EXPECT_EQ(stay.nSourceIndex, index) << data;
            EXPECT_EQ(stay.szSourceDevice, device) << data;
        }));
    };
    look(R"({"SourceDevice":"gate"})", -1, "");
    look(R"({"SourceDevice":"gate","SourceIndex":null})", -1, "");
    look(R"({"SourceDevice":"gate","SourceIndex":0})", 0, "gate");
    look(R"({"SourceIndex":3})", 3, "");
    look("{\"SourceIndex\":3,\"SourceDevice\":\"" + std::string(300, 'd') + "\"}", 3, std::string(259, 'd'));
}

TEST(ClosingFields, CountIsAnIntegerOrABool) {
    using R = DEV_EVENT_STAYDETECTION_INFO;
    EXPECT_EQ(Field("StayDetection", R"({"Count":6})", &R::dwCount), 6u);
    EXPECT_EQ(Field("StayDetection", R"({"Count":4000000000})", &R::dwCount), 4000000000u);
    EXPECT_EQ(Field("StayDetection", R"({"Count":true})", &R::dwCount), 1u);
    EXPECT_EQ(Field("StayDetection", R"({"Count":6.0})", &R::dwCount), 0u);
    EXPECT_EQ(Field("StayDetection", R"({"Count":"6"})", &R::dwCount), 0u);
    EXPECT_EQ(Field("StayDetection", "{}", &R::dwCount), 0u);
}

TEST(VideoAbnormal, TypesAreExact) {
    using R = DEV_EVENT_VIDEOABNORMALDETECTION_INFO;
    const char* const names[] = {"Loss", "Frozen", "Blind", "SceneChange", "Dark", "Light", "Unbalance", "Noise"};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(Field("VideoAbnormalDetection", "{\"Type\":\"" + std::string(names[i]) + "\"}", &R::byType), i);
    }
    EXPECT_EQ(Field("VideoAbnormalDetection", R"({"Type":"Nothing"})", &R::byType), 255);
    EXPECT_EQ(Field("VideoAbnormalDetection", R"({"Type":"frozen"})", &R::byType), 255);
    EXPECT_EQ(Field("VideoAbnormalDetection", R"({"Type":""})", &R::byType), 255);
    EXPECT_EQ(Field("VideoAbnormalDetection", "{}", &R::byType), 0);
}

TEST(Density, ReadsItsHeadAndHasRoomForTwentyPoints) {
    std::string points = "[1,1]";
    for (int i = 2; i <= 30; ++i)
        points += ",[" + std::to_string(i) + ",1]";
    EXPECT_TRUE(DecodeOne("DensityDetection",
                          R"({"Name":"square","Class":"Normal","PTS":2.5,"UTC":1000000000,"UTCMS":9,"EventID":3,
                              "Unit":1,"Value":-4,"DetectRegion":[)"
                              + points + "]}",
                          [](const Delivered& event) {
                              const auto& density = event.as<DEV_EVENT_DENSITYDETECTION_INFO>();
                              EXPECT_STREQ(density.szName, "square");
                              EXPECT_EQ(density.emClass, EVENT_CLASS_NORMAL);
                              EXPECT_EQ(density.dPTS, 2.5);
                              EXPECT_EQ(density.stuUTC.dwYear, 2001u);
                              EXPECT_EQ(density.stuUTC.dwMillisecond, 9u);
                              EXPECT_EQ(density.nEventID, 3);
                              EXPECT_EQ(density.nUnit, 1);
                              EXPECT_EQ(density.nValue, -4);
                              EXPECT_EQ(density.nDetectRegionNum, 20);
                              EXPECT_EQ(density.stuDetectRegion[19].nX, 20);
                          }));
}

TEST(Density, TellsOfARecordForWhichThereIsNoMemory) {
    // Several records, so that one needs memory from the heap.
    std::string text = "{\"Event\":[";
    for (int i = 0; i < 4; ++i)
        text += std::string(i > 0 ? "," : "") + R"({"Code":"DensityDetection","Data":{}})";
    text += "]}";
    const std::size_t all = CodesOf(text).size();
    EXPECT_EQ(all, 4u);
    LogLines log;
    HeapWatch watch;
    watch.FailFrom(1);
    std::size_t some = 0;
    const EventVisitor visit = [&](const Delivered&) { ++some; };
    CLIENT_ParseAnalyzerEventData(text.c_str(), 0, VisitEvent, const_cast<EventVisitor*>(&visit));
    watch.FailNone();
    EXPECT_LT(some, all);
    EXPECT_EQ(log.count(E_LOG_LEVEL_ERROR, "New DEV_EVENT_DENSITYDETECTION_INFO struct failed."),
              static_cast<std::ptrdiff_t>(all - some));
}

TEST(Queue, ALineHasTwoEnds) {
    using R = DEV_EVENT_QUEUEDETECTION_INFO;
    EXPECT_EQ(Field("QueueDetection", R"({"DetectLine":[[1,2],[3,4]]})", &R::nDetectLineNum), 2);
    EXPECT_EQ(Field("QueueDetection", R"({"DetectLine":[[1,2],[3]]})", &R::nDetectLineNum), 1);
    for (const char* other : {R"({"DetectLine":[[1,2]]})", R"({"DetectLine":[[1,2],[3,4],[5,6]]})"}) {
        EXPECT_EQ(Field("QueueDetection", other, &R::nDetectLineNum), 0);
        EXPECT_TRUE(DecodeOne("QueueDetection", other,
                              [](const Delivered& event) { EXPECT_EQ(event.as<R>().stuDetectLine[0].nX, 0); }));
    }
}

TEST(Objects, SixteenInARecord) {
    std::string objects = "[{}";
    for (int i = 1; i < 20; ++i)
        objects += ",{\"ObjectID\":" + std::to_string(i) + "}";
    const std::string data = "{\"Objects\":" + objects + "]}";
    for (const char* code : {"RioterDetection", "FightDetection", "InRegionDetection"}) {
        EXPECT_EQ(Field(code, data, &DEV_EVENT_RIOTERDETECTION_INFO::nObjectNum), 16);
    }
    EXPECT_EQ(Field("DensityDetection", data, &DEV_EVENT_DENSITYDETECTION_INFO::nObjectNum), 16);
    // One record has them all.
    EXPECT_TRUE(DecodeOne("ObjectDetection", data, [](const Delivered& event) {
        const auto& objectEvent = event.as<DEV_EVENT_OBJECTDETECTION_INFO>();
        ASSERT_EQ(objectEvent.nObjectNum, 20);
        EXPECT_EQ(objectEvent.pObjects[19].nObjectID, 19);
    }));
}

TEST(SceneClass, TrafficIsKnownToFiveEvents) {
    constexpr const char* kTraffic = R"({"Class":"Traffic"})";
    EXPECT_EQ(Field("TumbleDetection", kTraffic, &DEV_EVENT_TUMBLEDETECTION_INFO::emClass), 6);
    EXPECT_EQ(Field("HumanTrait", kTraffic, &DEV_EVENT_HUMANTRAIT_INFO::emClass), 6);
    EXPECT_EQ(Field("RoadConstruction", kTraffic, &DEV_EVENT_ROADCONSTRUCTION_INFO::emClass), 6);
    EXPECT_EQ(Field("RoadBlock", kTraffic, &DEV_EVENT_ROADBLOCK_INFO::emClass), 6);
    EXPECT_EQ(Field("XRayDetection", kTraffic, &DEV_EVENT_XRAYDETECTION_INFO::emClass), 6);
    EXPECT_EQ(Field("NearDistanceDetection", kTraffic, &DEV_EVENT_NEARDISTANCEDETECTION_INFO::emClass), 0);
    EXPECT_EQ(Field("ManStandDetection", kTraffic, &DEV_EVENT_MANSTANDDETECTION_INFO::emClass), 0);
    EXPECT_EQ(Field("StayDetection", kTraffic, &DEV_EVENT_STAYDETECTION_INFO::emClass), 0);
}

TEST(Men, SixtyFourInARecord) {
    std::string men = "[{\"Center\":[1]}";
    for (int i = 1; i < 70; ++i)
        men += ",{\"Center\":[" + std::to_string(i) + ",2,3],\"Stature\":" + std::to_string(100 + i)
               + ",\"BoudingBox\":[1,2,3," + std::to_string(i) + "]}";
    const std::string data = "{\"ManList\":" + men + "]}";
    EXPECT_TRUE(DecodeOne("ManNumDetection", data, [](const Delivered& event) {
        const auto& number = event.as<DEV_EVENT_MANNUMDETECTION_INFO>();
        ASSERT_EQ(number.nManNum, 64);
        EXPECT_EQ(number.stuMan[0].stuCenter.nX, 0);
        EXPECT_EQ(number.stuMan[63].stuCenter.nX, 63);
        EXPECT_EQ(number.stuMan[63].nStature, 163);
        EXPECT_EQ(number.stuMan[63].stuBoundingBox.nBottom, 63);
    }));
    EXPECT_EQ(Field("ManStandDetection", data, &DEV_EVENT_MANSTANDDETECTION_INFO::nManNum), 64);
    // The key that is spelled as elsewhere is not read.
    EXPECT_TRUE(DecodeOne("ManNumDetection", R"({"ManList":[{"BoundingBox":[1,2,3,4]}]})", [](const Delivered& event) {
        EXPECT_EQ(event.as<DEV_EVENT_MANNUMDETECTION_INFO>().stuMan[0].stuBoundingBox.nLeft, 0);
    }));
}

TEST(RoadWorks, ABoxHasFourNumbers) {
    using R = DEV_EVENT_ROADCONSTRUCTION_INFO;
    for (const char* const code : {"RoadConstruction", "RoadBlock"}) {
        for (const char* const tooFew : {"[]", "[9]", "[1,2,3]", "7", "null"}) {
            const auto box = Field(code, "{\"BoundingBox\":" + std::string(tooFew) + "}", &R::stuBoundingBox);
            EXPECT_EQ(box.nLeft, 0) << code << tooFew;
            EXPECT_EQ(box.nTop, 0) << code << tooFew;
            EXPECT_EQ(box.nRight, 0) << code << tooFew;
        }
        const auto box = Field(code, R"({"BoundingBox":[1,2,3,4,5]})", &R::stuBoundingBox);
        EXPECT_EQ(box.nLeft, 1) << code;
        EXPECT_EQ(box.nBottom, 4) << code;
    }
}

TEST(Crowd, AlarmIsTheLowTwoBits) {
    using R = DEV_EVENT_CROWDDETECTION_INFO;
    for (int mask = 0; mask < 8; ++mask) {
        EXPECT_EQ(Field("CrowdDetection", "{\"AlarmMask\":" + std::to_string(mask) + "}", &R::emAlarmType), mask % 4);
    }
    std::string crowds = "{}";
    std::string regions = "{}";
    for (int i = 1; i < 10; ++i) {
        crowds += ",{\"Radius\":" + std::to_string(i) + "}";
        regions += ",{\"RegionID\":" + std::to_string(i) + ",\"PeopleNum\":4000000000}";
    }
    EXPECT_TRUE(DecodeOne("CrowdDetection", "{\"CrowdList\":[" + crowds + "],\"RegionList\":[" + regions + "]}",
                          [](const Delivered& event) {
                              const auto& crowd = event.as<R>();
                              EXPECT_EQ(crowd.nCrowdListNum, 5);
                              EXPECT_EQ(crowd.stuCrowdList[4].dwRadius, 4u);
                              EXPECT_EQ(crowd.nRegionListNum, 8);
                              EXPECT_EQ(crowd.stuRegionList[7].dwRegionID, 7u);
                              EXPECT_EQ(crowd.stuRegionList[7].dwPeopleNum, 4000000000u);
                          }));
}

} // namespace
