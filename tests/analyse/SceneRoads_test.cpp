// Channels' scenes that are read from the text: the large record is kept row by row, and what stands under numbers, or
// waits for the scene's types, is read as a document of the whole would be.
#include "Commands.h"
#include "support/CommandCalls.h"

#include "orrery/scenes.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace orrery::test {
namespace {

using Global = CFG_ANALYSEGLOBAL_INFO;

// A record with arrays of its own, all of whose bytes are `kBefore` otherwise.
constexpr int kBefore = 0x11;
struct Channel {
    std::vector<CFG_TIME_PERIOD_INFO> periods{3};
    std::vector<CFG_CALIBRATE_AREAS_INFO> areas{3};
    std::unique_ptr<Global> record = std::make_unique_for_overwrite<Global>();

    Channel() { Reset(); }
    void Reset() {
        std::memset(static_cast<void*>(record.get()), kBefore, sizeof(Global));
        std::memset(static_cast<void*>(periods.data()), kBefore, periods.size() * sizeof periods[0]);
        std::memset(static_cast<void*>(areas.data()), kBefore, areas.size() * sizeof areas[0]);
        record->pTimePeriods = periods.data();
        record->nTimePeriodMax = 2;
        record->pCalibrates = areas.data();
        record->nCalibrateMax = 2;
    }
    bool operator==(const Channel& other) const {
        Global* const ours = record.get();
        const auto* const pointers = ours->pTimePeriods;
        const auto* const lists = ours->pCalibrates;
        ours->pTimePeriods = other.record->pTimePeriods;
        ours->pCalibrates = other.record->pCalibrates;
        const bool same = std::memcmp(ours, other.record.get(), sizeof(Global)) == 0;
        ours->pTimePeriods = const_cast<CFG_TIME_PERIOD_INFO*>(pointers);
        ours->pCalibrates = const_cast<CFG_CALIBRATE_AREAS_INFO*>(lists);
        return same && std::memcmp(periods.data(), other.periods.data(), periods.size() * sizeof periods[0]) == 0
               && std::memcmp(areas.data(), other.areas.data(), areas.size() * sizeof areas[0]) == 0;
    }

    // Whether the text was read without a document.
    bool Parse(const std::string& text, Outcome expected, bool documentOnly = false) {
        std::uint32_t length = 0;
        ReadRoad road{documentOnly};
        EXPECT_EQ(static_cast<int>(RunParse(*FindCommand("VideoAnalyseGlobal"),
                                            {text.c_str(), record.get(), sizeof(Global), &length, &road})),
                  static_cast<int>(expected))
            << text;
        return road.tookText;
    }
};

std::string Reply(const std::string& table, const char* result = "true") {
    return R"({ "params" : { "table" : )" + table + R"( }, "result" : )" + result + " }";
}

constexpr const char* kWhole =
    R"({ "CalibrateArea" : [ { "Area" : [ [ 11, 12 ], [ -13, 1400 ] ], "Length" : 1.5, "Line" : [ [ 15, 16 ] ], )"
    R"("Method" : "Lane", "Staffs" : [ { "End" : [ 21, 22 ], "Length" : 2.25, "Start" : [ 19, 20 ], "Type" : "Any" }, )"
    R"(null, { "Length" : 4 } ], "Type" : "" }, { "Type" : "Groud" } ], "CalibrateArea1" : [ { "Length" : 5.5, )"
    R"("Type" : "" }, { "Type" : "Groud" } ], "CalibrateArea2" : "null", "Scene" : { "CompatibleModeOfTrafficRule" : )"
    R"("NewTrafficRule", "CustomData" : "AQIDBA==", "Dejitter" : true, "Depth" : "Middle", "Detail" : { "CameraHeight" )"
    R"(: 6.5, "Lanes" : [ { "Number" : 8 } ] }, "Jitter" : 23, "PtzPresetId" : 24, "Staffs" : [ { "Start" : [ 25, 26 ] } )"
    R"(], "Type" : "Traffic", "TypeList" : [ "FaceDetection", "ATM" ] }, "Scene1" : { "Depth" : "Far", "Detail" : )"
    R"({ "CameraDistance" : 7.5 }, "PtzPresetId" : 3, "Type" : "Normal" }, "TimePeriod" : { "Day" : [ "06:07:08", )"
    R"("18:19:20" ], "Latitude" : -29, "Longitude" : 30, "Night" : [ "21:22:23", "05:04:03" ], "SwitchMode" : )"
    R"("ByBrightness" }, "TimePeriod1" : { "Day" : [ "01:02:03" ], "Latitude" : 9 }, "TimePeriod2" : { "Longitude" : 10 } })";

TEST(SceneRoads, ReadTheWholeFromTheText) {
    Channel channel;
    EXPECT_TRUE(channel.Parse(Reply(kWhole), Outcome::Done));
    const Global& global = *channel.record;
    EXPECT_EQ(global.nCalibrateAreaNum, 2);
    const CFG_CALIBRATE_AREA& area = global.stuCalibrateAreas[0];
    EXPECT_EQ(area.nAreaPoint, 2);
    EXPECT_EQ(area.stuArea[1].nX, -13);
    EXPECT_EQ(area.stuArea[1].nY, 1400);
    EXPECT_EQ(area.nLinePoint, 1);
    EXPECT_EQ(area.fLength, 1.5f);
    EXPECT_EQ(area.nStaffNum, 2); // the hole does not count
    EXPECT_EQ(area.stuStaffs[0].nEndY, 22);
    EXPECT_EQ(area.stuStaffs[0].fLength, 2.25f);
    EXPECT_EQ(area.stuStaffs[1].nStartX, 0x11111111);
    EXPECT_EQ(area.stuStaffs[2].fLength, 4.0f);
    EXPECT_EQ(area.nType, CFG_CALIBRATE_AREA_NONE);
    EXPECT_EQ(global.stuCalibrateAreas[1].nType, CFG_CALIBRATE_AREA_GROUND);
    EXPECT_EQ(global.stuCalibrateAreas[2].nType, 0x11111111);
    EXPECT_EQ(global.stuDetail.dCameraHeight, 6.5);
    EXPECT_EQ(global.stuDetail.dFaceCameraHeight, 6.5); // of the second type
    EXPECT_EQ(global.stuDetail.nLaneNum, 1);
    EXPECT_EQ(global.stuDetail.stuLanes[0].nNumber, 8);
    EXPECT_EQ(global.nSceneNum, 1);
    EXPECT_EQ(global.stuScenes[0].nDepth, CFG_DEPTH_FAR);
    EXPECT_EQ(global.stuScenes[0].stuDetail.dCameraDistance, 7.5);
    EXPECT_EQ(global.stuNightPeriods[1].nSecond, 3);
    EXPECT_EQ(global.nTimePeriodNum, 2);
    EXPECT_EQ(channel.periods[0].stuDay[0].nMinute, 2);
    EXPECT_EQ(channel.periods[0].stuDay[1].nHour, 0x11111111);
    EXPECT_EQ(channel.periods[0].nLatitude, 9u);
    EXPECT_EQ(channel.periods[1].nLongitude, 10u);
    EXPECT_EQ(global.nCalibrateNum, 2);
    EXPECT_EQ(channel.areas[0].nAreaNum, 2);
    EXPECT_EQ(channel.areas[0].stuAreas[0].fLength, 5.5f);
    EXPECT_EQ(channel.areas[0].stuAreas[0].nType, CFG_CALIBRATE_AREA_NONE);
    EXPECT_EQ(channel.areas[0].stuAreas[1].nType, CFG_CALIBRATE_AREA_GROUND);
    EXPECT_EQ(channel.areas[1].nAreaNum, 0x11111111); // a text has no areas
    Channel other;
    EXPECT_FALSE(other.Parse(Reply(kWhole), Outcome::Done, true));
    EXPECT_TRUE(channel == other);
}

TEST(SceneRoads, ARefusedReplyLeavesTheRecord) {
    const Channel before;
    Channel channel;
    channel.Parse(Reply(kWhole, "false"), Outcome::Refused);
    EXPECT_TRUE(channel == before);
}

TEST(SceneRoads, ATextThatEndsEarlyLeavesTheRecord) {
    const Channel before;
    Channel channel;
    const std::string text = Reply(kWhole);
    for (std::size_t size = 1; size < text.size(); size += 5) {
        channel.Parse(text.substr(0, size), Outcome::NoJson);
        ASSERT_TRUE(channel == before) << text.substr(0, size);
    }
}

struct Oddity {
    const char* table;
    bool fromText;
};

TEST(SceneRoads, OddTextsGiveWhatADocumentGives) {
    constexpr Oddity kOddities[] = {
        {R"({})", true},
        {R"([])", false},
        {R"(7)", false},
        {R"({"CalibrateArea":[]})", true},
        {R"({"CalibrateArea":7,"CalibrateArea1":7,"Scene":7,"Scene1":7,"TimePeriod":7,"TimePeriod1":7})", true},
        {R"({"CalibrateArea":{"Type":"Groud"}})", true},
        {R"({"CalibrateArea":[null,{"Type":"Groud"}]})", true},
        {R"({"CalibrateArea":[{"Length":1},{"Type":"Groud"},{"Type":"Any"}]})", true},
        {R"({"CalibrateArea":[{"Type":5},{"Type":null},{"Type":"HORIZONTAL"}]})", true},
        {R"({"CalibrateArea":[{"Type":null},{"Type":null}]})", true},
        {R"({"CalibrateArea":[7,[],{"Type":"horizontal"},"x"]})", true},
        {R"({"CalibrateArea":[{},{},{},{},{},{},{},{},{},{},{"Type":"Groud"}]})", true},
        {R"({"CalibrateArea":[{"Type":"Groud","Type":""}]})", false},
        {R"({"CalibrateArea":[{"Area":[[1,2],null,[3,4],[5],[6,7,8],["9",10],[1.5,2]],"Line":[]}]})", true},
        {R"({"CalibrateArea":[{"Area":{"a":1},"Line":7}]})", true},
        {R"({"CalibrateArea":[{"Line":[[1,2],[3,4],[5,6],[7,8],[9,10],[11,12],[13,14],[15,16],[17,18],[19,20],[21,22],)"
         R"([23,24],[25,26],[27,28],[29,30],[31,32],[33,34],[35,36],[37,38],[39,40],[41,42],[43,44]]}]})",
         true},
        {R"({"CalibrateArea1":[{"Length":1},{},{},{},{},{},{},{},{},{},{"Length":2}]})", true},
        {R"({"CalibrateArea1":[],"CalibrateArea2":[null,{"Type":"groud"}],"CalibrateArea3":[{"Length":3}]})", true},
        {R"({"CalibrateArea1":null,"CalibrateArea2":[{"Length":3}]})", true},
        {R"({"CalibrateArea2":{"Length":3}})", true},
        {R"({"CalibrateArea1":[{"Staffs":[{"End":[1],"Start":[3,4,5]},{"End":{"a":1,"b":2},"Start":[-7,80000000]}]}]})",
         true},
        {R"({"Scene":{"Detail":null,"Type":"FaceDetection"}})", true},
        {R"({"Scene":{"Detail":[1,2],"Type":"FaceDetection"}})", true},
        {R"({"Scene":{"Detail":7,"Type":"FaceDetection"}})", true},
        {R"({"Scene":{"Detail":{"Type":"x"},"TimePeriod2":{"Latitude":5},"Scene2":{},"Type":"Traffic"}})", true},
        {R"({"Scene":{"CustomData":"AQ!","Jitter":true,"Staffs":[null,{"Type":"Cross"},7]}})", true},
        {R"({"Scene":[{"Detail":{}}]})", true},
        {R"({"Scene1":{"Type":"Normal"},"Scene2":{"Depth":"Far"},"Scene4":{"Depth":"Near"}})", true},
        {R"({"Scene1":{"Depth":"Far","PtzPresetId":3,"Type":"T","TypeList":["a",null,"b"]},"Scene2":{"TypeList":[]}})",
         true},
        {R"({"Scene1":{"Detail":null,"Type":"Traffic"},"Scene2":{"Detail":{"CameraHeight":2},"Type":"Traffic"}})",
         true},
        {R"({"Scene1":{"Detail":{"Type":"x"},"Type":"Normal","TypeList":["a"]},"Scene2":{"Detail":7,"TypeList":{"a":1}}})",
         true},
        {R"({"Scene1":{"Detail":[1],"Type":"Traffic"}})", true},
        {R"({"Scene1":{"Type":"a","Type":"b"}})", false},
        {R"({"Scene1":{"Other":7,"Detail2":{}},"Scene10":{"Depth":"Far"},"Scene2":7,"Scene3":{"Depth":"Near"}})", true},
        {R"({"Scene1":{},"Scene2":null,"Scene3":{"Depth":"Near"}})", true},
        {R"({"Scene1":[],"Scene2":{"Depth":"Far"}})", true},
        {R"({"Scene01":{"Depth":"Far"},"Scene0":{},"Scene33":{},"Scene1x":{},"Scene100":{}})", true},
        {R"({"TimePeriod":{"Day":["1:2:3","04:05:06"],"Night":["01:02:03","04:05:06","07:08:09"]}})", true},
        {R"({"TimePeriod":{"Day":["01:02:0\u0033",5],"Night":["01:02:03 "]}})", true},
        {R"({"TimePeriod1":null,"TimePeriod2":{"Latitude":5}})", true},
        {R"({"TimePeriod1":[1],"TimePeriod2":{"Latitude":5},"TimePeriod3":{"Latitude":6}})", true},
        {R"({"TimePeriod2":{"Latitude":5},"TimePeriod1":{"Latitude":6}})", false},
        {R"({"TimePeriod3":{"Latitude":5},"TimePeriod2":{"Latitude":6}})", true},
        {R"({"TimePeriod2":{"Latitude":5},"TimePeriod2":{"Longitude":6}})", false},
        {R"({"TimePeriod2":{"Latitude":5},"TimePeriod2":null})", false},
        {R"({"Scene":{},"CalibrateArea":[{"Length":1}]})", false},
    };
    for (const Oddity& oddity : kOddities) {
        Channel one, other;
        EXPECT_EQ(one.Parse(Reply(oddity.table), Outcome::Done), oddity.fromText) << oddity.table;
        EXPECT_FALSE(other.Parse(Reply(oddity.table), Outcome::Done, true));
        EXPECT_TRUE(one == other) << oddity.table;
        one.Reset();
        const Channel before;
        one.Parse(Reply(oddity.table, "false"), Outcome::Refused);
        EXPECT_TRUE(one == before) << oddity.table;
    }
}

} // namespace
} // namespace orrery::test
