// Lines and regions that things cross: which record it becomes, points, directions, paths.
#include "orrery/events_intelligent_crossing.h"
#include "orrery/events_intelligent_detection.h"
#include "orrery/log.h"
#include "support/Events.h"
#include "support/FailingAllocator.h"
#include "support/LogLines.h"

#include <gtest/gtest.h>

namespace {

using namespace orrery::test;

// A list of `count` points [ i, -i ], i from 1.
std::string Points(int count) {
    std::string text = "[";
    for (int i = 1; i <= count; ++i)
        text += (i > 1 ? ",[" : "[") + std::to_string(i) + "," + std::to_string(-i) + "]";
    return text + "]";
}

TEST(CrossLine, ObjectsOrAPersonMakeItTheExtendedEvent) {
    const auto codeOf = [](std::string_view data) { return CodesOf(EventText("CrossLineDetection", data)); };
    EXPECT_EQ(codeOf("{}"), std::vector<std::uint32_t>{2});
    EXPECT_EQ(codeOf(R"({"Objects":[]})"), std::vector<std::uint32_t>{337});
    EXPECT_EQ(codeOf(R"({"Objects":7})"), std::vector<std::uint32_t>{337});
    EXPECT_EQ(codeOf(R"({"Objects":null})"), std::vector<std::uint32_t>{2});
    EXPECT_EQ(codeOf(R"({"Object":{"Person":{}}})"), std::vector<std::uint32_t>{337});
    EXPECT_EQ(codeOf(R"({"Object":{"Person":null}})"), std::vector<std::uint32_t>{2});
    EXPECT_EQ(codeOf(R"({"Objects":null,"Object":{"Person":{"Stature":1}}})"), std::vector<std::uint32_t>{337});
    EXPECT_EQ(codeOf(R"({"Person":{}})"), std::vector<std::uint32_t>{2});
    // No other event changes its code.
    EXPECT_EQ(CodesOf(EventText("CrossRegionDetection", R"({"Objects":[{}]})")), std::vector<std::uint32_t>{3});
    EXPECT_TRUE(codeOf("null").empty());
}

TEST(CrossLine, ExtendedEventHasAllObjectsOfTheText) {
    std::string objects = "[";
    for (int i = 0; i < 40; ++i)
        objects += (i > 0 ? ",{\"ObjectID\":" : "{\"ObjectID\":") + std::to_string(i) + "}";
    EXPECT_TRUE(DecodeOne("CrossLineDetection", "{\"Objects\":" + objects + "]}", [](const Delivered& event) {
        const auto& crossing = event.as<DEV_EVENT_CROSSLINE_EX_INFO>();
        EXPECT_EQ(event.size, sizeof crossing);
        EXPECT_EQ(crossing.dwSize, sizeof crossing);
        EXPECT_EQ(crossing.stuObject.dwSize, 0u); // there is no "Object"
        ASSERT_EQ(crossing.nObjectNum, 40);
        for (int i = 0; i < 40; ++i) {
            EXPECT_EQ(crossing.pObjects[i].nObjectID, i);
            EXPECT_EQ(crossing.pObjects[i].dwSize, 704u);
        }
    }));
    EXPECT_TRUE(DecodeOne("CrossLineDetection", R"({"Objects":7,"Object":{"Person":{"Stature":180}}})",
                          [](const Delivered& event) {
                              const auto& crossing = event.as<DEV_EVENT_CROSSLINE_EX_INFO>();
                              EXPECT_EQ(crossing.nObjectNum, 0);
                              EXPECT_EQ(crossing.pObjects, nullptr);
                              EXPECT_EQ(crossing.stuObject.nStature, 180);
                              EXPECT_EQ(crossing.stuObject.dwSize, 704u);
                          }));
}

TEST(CrossLine, NoMemoryForTheObjectsLeavesNone) {
    std::string objects = "[{}";
    for (int i = 1; i < 2000; ++i)
        objects += ",{}";
    for (const char* name : {"CrossLineDetection", "ObjectDetection"}) {
        const std::string text = EventText(name, "{\"EventID\":5,\"Objects\":" + objects + "]}");
        bool without = false;
        LogLines log;
        HeapWatch watch;
        for (std::size_t n = 1; n < 20 && !without; ++n) {
            watch.FailOnly(n);
            const EventVisitor visit = [&](const Delivered& event) {
                watch.FailNone();
                if (event.type == 337) {
                    const auto& crossing = event.as<DEV_EVENT_CROSSLINE_EX_INFO>();
                    without = crossing.nObjectNum == 0;
                    EXPECT_EQ(crossing.pObjects == nullptr, without);
                    EXPECT_EQ(crossing.nEventID, 5);
                } else {
                    const auto& objectEvent = event.as<DEV_EVENT_OBJECTDETECTION_INFO>();
                    without = objectEvent.nObjectNum == 0;
                    EXPECT_EQ(objectEvent.pObjects == nullptr, without);
                    EXPECT_EQ(objectEvent.nEventID, 5);
                }
            };
            CLIENT_ParseAnalyzerEventData(text.c_str(), 0, VisitEvent, const_cast<EventVisitor*>(&visit));
            watch.FailNone();
        }
        EXPECT_TRUE(without) << name;
        EXPECT_EQ(log.count(E_LOG_LEVEL_ERROR, "New pstObjectInfo Failed"), 1) << name;
    }
}

TEST(CrossLine, DirectionAndDeed) {
    const auto look = [](const char* code, const char* data, int direction, int deed) {
        EXPECT_TRUE(DecodeOne(code, data, [&](const Delivered& event) {
            if (event.type == 3) {
                EXPECT_EQ(event.as<DEV_EVENT_CROSSREGIONDETECTION_INFO>().byDirection, direction) << data;
                EXPECT_EQ(event.as<DEV_EVENT_CROSSREGIONDETECTION_INFO>().byActionType, deed) << data;
            } else if (event.type == 337) {
                EXPECT_EQ(event.as<DEV_EVENT_CROSSLINE_EX_INFO>().byDirection, direction) << data;
                EXPECT_EQ(event.as<DEV_EVENT_CROSSLINE_EX_INFO>().byActionType, deed) << data;
            } else {
                EXPECT_EQ(event.as<DEV_EVENT_CROSSLINEDETECTION_INFO>().byDirection, direction) << data;
                EXPECT_EQ(event.as<DEV_EVENT_CROSSLINEDETECTION_INFO>().byActionType, deed) << data;
            }
        }));
    };
    look("CrossLineDetection", R"({"Direction":"LeftToRight","Action":"Appear"})", 0, 0);
    look("CrossLineDetection", R"({"Direction":"rightTOleft","Action":"CROSS"})", 1, 3);
    look("CrossLineDetection", R"({"Direction":"RightToLeft","Action":"Cross","Objects":[]})", 1, 3);
    look("CrossLineDetection", R"({"Direction":"Leave","Action":"Leave"})", 0, 0);
    look("CrossRegionDetection", R"({"Direction":"Enter","Action":"Disappear"})", 0, 1);
    look("CrossRegionDetection", R"({"Direction":"leave","Action":"inside"})", 1, 2);
    look("CrossRegionDetection", R"({"Direction":"Appear"})", 2, 0);
    look("CrossRegionDetection", R"({"Direction":"Disappear"})", 3, 0);
    look("CrossRegionDetection", R"({"Direction":"RightToLeft"})", 0, 0);
    // The event's own action is another.
    Decode(R"({"Event":[{"Code":"CrossLineDetection","Action":"Stop","Data":{"Action":"Inside"}}]})",
           [](const Delivered& event) {
               EXPECT_EQ(event.as<DEV_EVENT_CROSSLINEDETECTION_INFO>().byEventAction, 2);
               EXPECT_EQ(event.as<DEV_EVENT_CROSSLINEDETECTION_INFO>().byActionType, 2);
           });
}

TEST(CrossRegion, TwentyPointsAtMost) {
    EXPECT_TRUE(DecodeOne("CrossRegionDetection", "{\"DetectRegion\":" + Points(25) + ",\"Track\":" + Points(21) + "}",
                          [](const Delivered& event) {
                              const auto& crossing = event.as<DEV_EVENT_CROSSREGIONDETECTION_INFO>();
                              EXPECT_EQ(crossing.nDetectRegionNum, 20);
                              EXPECT_EQ(crossing.stuDetectRegion[19].nX, 20);
                              EXPECT_EQ(crossing.stuDetectRegion[19].nY, -20);
                              EXPECT_EQ(crossing.nTrackNum, 20);
                          }));
}

TEST(CrossRegion, APointOfOneNumberLeavesAGap) {
    EXPECT_TRUE(DecodeOne("CrossRegionDetection", R"({"DetectRegion":[[1,2],[3],[5,6]]})", [](const Delivered& event) {
        const auto& crossing = event.as<DEV_EVENT_CROSSREGIONDETECTION_INFO>();
        EXPECT_EQ(crossing.nDetectRegionNum, 2); // one short
        EXPECT_EQ(crossing.stuDetectRegion[1].nX, 0);
        EXPECT_EQ(crossing.stuDetectRegion[2].nX, 5);
    }));
    // The gap takes one of the twenty places.
    std::string points = Points(25);
    points.replace(1, 6, "null");
    ASSERT_EQ(points.substr(0, 13), "[null,[2,-2],");
    EXPECT_TRUE(DecodeOne("CrossRegionDetection", "{\"DetectRegion\":" + points + "}", [](const Delivered& event) {
        const auto& crossing = event.as<DEV_EVENT_CROSSREGIONDETECTION_INFO>();
        EXPECT_EQ(crossing.nDetectRegionNum, 19);
        EXPECT_EQ(crossing.stuDetectRegion[0].nX, 0);
        EXPECT_EQ(crossing.stuDetectRegion[19].nX, 20);
    }));
}

TEST(CrossRegion, PathsAndObjectsEndAtTheirRoom) {
    std::string tracks = "[" + Points(25);
    std::string objects = "[{\"ObjectID\":1}";
    for (int i = 2; i <= 18; ++i) {
        tracks += "," + Points(i);
        objects += ",{\"ObjectID\":" + std::to_string(i) + "}";
    }
    const std::string data = "{\"Tracks\":" + tracks + "],\"Objects\":" + objects
                             + "],\"Custom\":{\"CargoChannelInfo\":[1,2,3,4,5,6,7,8,9]},\"PresetID\":65537}";
    EXPECT_TRUE(DecodeOne("CrossRegionDetection", data, [](const Delivered& event) {
        const auto& crossing = event.as<DEV_EVENT_CROSSREGIONDETECTION_INFO>();
        ASSERT_EQ(crossing.nTrackLineNum, 16);
        EXPECT_EQ(crossing.stuTrackLine[0].nPointNum, 20);
        EXPECT_EQ(crossing.stuTrackLine[15].nPointNum, 16);
        EXPECT_EQ(crossing.stuTrackLine[15].stuPoint[15].nX, 16);
        EXPECT_EQ(crossing.nObjectNum, 16);
        EXPECT_EQ(crossing.stuObjects[15].nObjectID, 16);
        EXPECT_EQ(crossing.nCargoChannelNum, 8);
        EXPECT_EQ(crossing.nCargoChannel[7], 8);
        EXPECT_EQ(crossing.wPresetID, 1); // 65537 in 16 bits
    }));
    EXPECT_TRUE(DecodeOne("WanderDetection", data, [](const Delivered& event) {
        const auto& wander = event.as<DEV_EVENT_WANDERDETECTION_INFO>();
        EXPECT_EQ(wander.nTrackLineNum, 16);
        EXPECT_EQ(wander.nObjectNum, 16);
        EXPECT_EQ(wander.stuTrackLine[1].nPointNum, 2);
        EXPECT_EQ(wander.stuTrackLine[1].stuPoint[1].nY, -2);
    }));
    EXPECT_TRUE(DecodeOne("WanderDetection", R"({"Tracks":[[[1,2],[3],[5,6]]]})", [](const Delivered& event) {
        const auto& line = event.as<DEV_EVENT_WANDERDETECTION_INFO>().stuTrackLine[0];
        EXPECT_EQ(line.nPointNum, 2);
        EXPECT_EQ(line.stuPoint[2].nY, 6);
    }));
}

TEST(CrossFence, Direction) {
    const auto directionOf = [](const char* text) {
        int direction = -1;
        DecodeOne("CrossFenceDetection", "{\"Direction\":\"" + std::string(text) + "\"}", [&](const Delivered& event) {
            direction = event.as<DEV_EVENT_CROSSFENCEDETECTION_INFO>().emDirection;
        });
        return direction;
    };
    EXPECT_EQ(directionOf("LeftToRight"), 0);
    EXPECT_EQ(directionOf("RightToLeft"), 1);
    EXPECT_EQ(directionOf("righttoleft"), 1);
    EXPECT_EQ(directionOf("Upwards"), 0);
}

} // namespace
