// Scenes of analysis channels and their calibration.
#include "orrery/scenes.h"
#include "support/Call.h"
#include "support/LogLines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orrery::test {
namespace {

using Global = CFG_ANALYSEGLOBAL_INFO;

std::unique_ptr<Global> ReadInto(std::unique_ptr<Global> record, const std::string& table, std::int32_t result = 1) {
    std::uint32_t length = kNoLength;
    const std::string text = R"({"result":true,"params":{"table":)" + table + "}}";
    EXPECT_EQ(CLIENT_ParseData("VideoAnalyseGlobal", text.c_str(), record.get(), sizeof(Global), &length), result);
    EXPECT_EQ(length, result == 1 ? sizeof(Global) : kNoLength);
    return record;
}
std::unique_ptr<Global> ReadGlobal(const std::string& table) {
    return ReadInto(Cleared<Global>(), table);
}
std::unique_ptr<Global> ReadScene(const std::string& members) {
    return ReadGlobal("{\"Scene\":{" + members + "}}");
}
std::unique_ptr<Global> ReadDetail(const std::string& type, const std::string& members) {
    return ReadScene("\"Type\":\"" + type + "\",\"Detail\":{" + members + "}");
}
std::string Written(const Global& record) {
    return Pack("VideoAnalyseGlobal", record);
}
bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}
std::string WrittenDetail(const Global& record) {
    const std::string text = Written(record);
    const auto begin = text.find("\"Detail\" : ");
    return begin == std::string::npos ? "" : text.substr(begin + 11, text.find(", \"PtzPresetId\"") - begin - 11);
}

// ---- The channel's own scene ---------------------------------------------------------------------------------------

constexpr const char* kWhole = R"({"CalibrateArea":[{"Area":[[11,12],[13,14]],"Length":1.5,"Line":[[15,16],[17,18]],
    "Method":"Lane","Staffs":[{"Start":[19,20],"End":[21,22],"Length":2.5,"Type":"Any"}],"Type":""},
    {"Type":"Groud"}],
    "Scene":{"CompatibleModeOfTrafficRule":"NewTrafficRule","CustomData":"AQIDBA==","Dejitter":true,"Depth":"Middle",
    "Detail":{},"Jitter":23,"PtzPresetId":24,"Staffs":[{"Start":[25,26],"End":[27,28],"Length":3.5,"Type":"Cross"}],
    "Type":"Indoor","TypeList":["Gate","ATM"]},
    "TimePeriod":{"Day":["06:07:08","18:19:20"],"Latitude":-29,"Longitude":30,"Night":["21:22:23","05:04:03"],
    "SwitchMode":"ByBrightness"}})";

TEST(VideoAnalyseGlobal, GoesRoundWhole) {
    const auto global = ReadGlobal(kWhole);
    EXPECT_EQ(global->nCalibrateAreaNum, 2);
    const CFG_CALIBRATE_AREA& area = global->stuCalibrateAreas[0];
    EXPECT_EQ(area.nAreaPoint, 2);
    EXPECT_EQ(area.stuArea[0].nX, 11);
    EXPECT_EQ(area.stuArea[1].nY, 14);
    EXPECT_EQ(area.fLength, 1.5f);
    EXPECT_EQ(area.nLinePoint, 2);
    EXPECT_EQ(area.stuLine[1].nX, 17);
    EXPECT_EQ(area.nMethod, CFG_CALIBRATE_BY_LANE);
    EXPECT_EQ(area.nStaffNum, 1);
    EXPECT_EQ(area.stuStaffs[0].nStartX, 19);
    EXPECT_EQ(area.stuStaffs[0].nStartY, 20);
    EXPECT_EQ(area.stuStaffs[0].nEndX, 21);
    EXPECT_EQ(area.stuStaffs[0].nEndY, 22);
    EXPECT_EQ(area.stuStaffs[0].fLength, 2.5f);
    EXPECT_EQ(area.stuStaffs[0].nType, CFG_STAFF_ANY);
    EXPECT_EQ(area.nType, CFG_CALIBRATE_AREA_NONE);
    EXPECT_EQ(global->stuCalibrateAreas[1].nType, CFG_CALIBRATE_AREA_GROUND);
    EXPECT_EQ(global->abCompatibleMode, 1);
    EXPECT_EQ(global->nCompatibleMode, CFG_TRAFFIC_RULE_NEW);
    EXPECT_EQ(global->nCustomDataLen, 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(global->byCustomData[i], i + 1);
    EXPECT_EQ(global->abDejitter, 1);
    EXPECT_EQ(global->bDejitter, 1);
    EXPECT_EQ(global->nDepth, CFG_DEPTH_MIDDLE);
    EXPECT_EQ(global->abJitter, 1);
    EXPECT_EQ(global->nJitter, 23);
    EXPECT_EQ(global->nPtzPresetId, 24);
    EXPECT_EQ(global->nStaffNum, 1);
    EXPECT_EQ(global->stuStaffs[0].nEndY, 28);
    EXPECT_EQ(global->stuStaffs[0].nType, CFG_STAFF_CROSS);
    EXPECT_STREQ(global->szSceneType, "Indoor");
    EXPECT_EQ(global->nTypeListNum, 2);
    EXPECT_STREQ(global->szTypeList[0], "Gate");
    EXPECT_STREQ(global->szTypeList[1], "ATM");
    EXPECT_EQ(global->stuDayPeriods[0].nHour, 6);
    EXPECT_EQ(global->stuDayPeriods[0].nMinute, 7);
    EXPECT_EQ(global->stuDayPeriods[0].nSecond, 8);
    EXPECT_EQ(global->stuDayPeriods[1].nHour, 18);
    EXPECT_EQ(global->stuNightPeriods[0].nMinute, 22);
    EXPECT_EQ(global->stuNightPeriods[1].nSecond, 3);
    EXPECT_EQ(global->nLongitude, 30u);
    EXPECT_EQ(global->nLatitude, static_cast<std::uint32_t>(-29));
    EXPECT_EQ(global->nSwitchMode, CFG_SCENE_SWITCH_BY_BRIGHTNESS);
    EXPECT_EQ(Written(*global),
              R"({ "CalibrateArea" : [ { "Area" : [ [ 11, 12 ], [ 13, 14 ] ], "Length" : 1.500000000000000, )"
              R"("Line" : [ [ 15, 16 ], [ 17, 18 ] ], "Method" : "Lane", "Staffs" : [ { "End" : [ 21, 22 ], )"
              R"("Length" : 2.500000000000000, "Start" : [ 19, 20 ], "Type" : "Any" } ], "Type" : "" }, )"
              R"({ "Length" : 0.000000000000000, "Type" : "Groud" } ], )"
              R"("Scene" : { "CompatibleModeOfTrafficRule" : "NewTrafficRule", "CustomData" : "AQIDBA==", )"
              R"("Dejitter" : true, "Depth" : "Middle", "Jitter" : 23, "PtzPresetId" : 24, )"
              R"("Staffs" : [ { "End" : [ 27, 28 ], "Length" : 3.500000000000000, "Start" : [ 25, 26 ], )"
              R"("Type" : "Cross" } ], "Type" : "Indoor", "TypeList" : [ "Gate", "ATM" ] }, )"
              R"("TimePeriod" : { "Day" : [ "06:07:08", "18:19:20" ], "Latitude" : -29, "Longitude" : 30, )"
              R"("Night" : [ "21:22:23", "05:04:03" ], "SwitchMode" : "ByBrightness" } })");
}

TEST(VideoAnalyseGlobal, AClearRecordWritesWhatHasNoFlag) {
    EXPECT_EQ(Written(*Cleared<Global>()),
              R"({ "Scene" : { "Depth" : "", "PtzPresetId" : 0, "Type" : "", "TypeList" : [  ] }, )"
              R"("TimePeriod" : { "Day" : [ "00:00:00", "00:00:00" ], "Latitude" : 0, "Longitude" : 0, )"
              R"("Night" : [ "00:00:00", "00:00:00" ] } })");
}

TEST(VideoAnalyseGlobal, LeavesTheCallersRecordWhereTheTextSaysNothing) {
    auto before = Cleared<Global>();
    std::memset(static_cast<void*>(before.get()), 0x11, sizeof(Global));
    before->pTimePeriods = nullptr;
    before->pCalibrates = nullptr;
    auto copy = Cleared<Global>();
    *copy = *before;
    EXPECT_EQ(std::memcmp(ReadInto(std::move(copy), "null").get(), before.get(), sizeof(Global)), 0);
    copy = Cleared<Global>();
    *copy = *before;
    const auto empty = ReadInto(std::move(copy), "{}");
    before->nSceneNum = 0; // there is none, and that is told
    EXPECT_EQ(std::memcmp(empty.get(), before.get(), sizeof(Global)), 0);
}

TEST(VideoAnalyseGlobal, OnlyAFalseResultRefuses) {
    const auto record = Cleared<Global>();
    const auto parse = [&](const char* text, std::uint32_t size = sizeof(Global)) {
        return CLIENT_ParseData("VideoAnalyseGlobal", text, record.get(), size, nullptr);
    };
    EXPECT_EQ(parse(R"({"result":false,"params":{"table":{"Scene":{"PtzPresetId":3}}}})"), 0);
    EXPECT_EQ(record->nPtzPresetId, 0);
    EXPECT_EQ(parse(R"({"params":{"table":{"Scene":{"PtzPresetId":3}}}})"), 1);
    EXPECT_EQ(record->nPtzPresetId, 3);
    EXPECT_EQ(parse("{", sizeof(Global)), 0);
    EXPECT_EQ(parse(R"({"params":{}})"), 1);
    EXPECT_EQ(parse(R"({"result":true})", sizeof(Global) - 1), 0);
}

TEST(VideoAnalyseGlobal, TheTextMayFillItsBuffer) {
    const auto record = Cleared<Global>();
    const std::size_t whole = Written(*record).size() + 1; // and its newline
    EXPECT_EQ(PackBytes("VideoAnalyseGlobal", record.get(), sizeof(Global), whole).size(), whole - 1);
    EXPECT_EQ(PackBytes("VideoAnalyseGlobal", record.get(), sizeof(Global), whole - 1), kFailed);
}

struct Text {
    std::int32_t code;
    const char* text;
};

TEST(VideoAnalyseGlobal, CodesOfTheSceneGoBothWays) {
    for (const Text& one : {Text{0, ""}, {1, "Normal"}, {2, "Far"}, {3, "Middle"}, {4, "Near"}}) {
        const auto scene = ReadScene(std::string("\"Depth\":\"") + one.text + "\"");
        EXPECT_EQ(scene->nDepth, one.code);
        EXPECT_TRUE(Has(Written(*scene), std::string("\"Depth\" : \"") + one.text + "\""));
    }
    EXPECT_EQ(ReadScene(R"("Depth":"fAR")")->nDepth, CFG_DEPTH_FAR);
    auto scene = ReadInto(ReadScene(R"("Depth":"Far")"), R"({"Scene":{"Depth":"Deep"}})");
    EXPECT_EQ(scene->nDepth, CFG_DEPTH_NONE);
    scene->nDepth = 5;
    EXPECT_FALSE(Has(Written(*scene), "Depth"));
    for (const Text& one : {Text{0, "OldTrafficRule"}, {1, "NewTrafficRule"}}) {
        const auto mode = ReadScene(std::string("\"CompatibleModeOfTrafficRule\":\"") + one.text + "\"");
        EXPECT_EQ(mode->nCompatibleMode, one.code);
        EXPECT_TRUE(Has(Written(*mode), std::string("\"CompatibleModeOfTrafficRule\" : \"") + one.text + "\""));
    }
    const auto other = ReadScene(R"("CompatibleModeOfTrafficRule":"Another")");
    EXPECT_EQ(other->abCompatibleMode, 1);
    EXPECT_EQ(other->nCompatibleMode, CFG_TRAFFIC_RULE_OTHER);
    EXPECT_FALSE(Has(Written(*other), "CompatibleMode"));
    EXPECT_EQ(ReadScene("")->abCompatibleMode, 0);
    for (const Text& one : {Text{1, "ByColor"}, {2, "ByBrightness"}, {3, "ByPos"}}) {
        const auto period = ReadGlobal(std::string("{\"TimePeriod\":{\"SwitchMode\":\"") + one.text + "\"}}");
        EXPECT_EQ(period->nSwitchMode, one.code);
        EXPECT_TRUE(Has(Written(*period), std::string("\"SwitchMode\" : \"") + one.text + "\""));
    }
    auto period =
        ReadInto(ReadGlobal(R"({"TimePeriod":{"SwitchMode":"ByPos"}})"), R"({"TimePeriod":{"SwitchMode":"ByMoon"}})");
    EXPECT_EQ(period->nSwitchMode, CFG_SCENE_SWITCH_BY_POS);
    period->nSwitchMode = 4;
    EXPECT_FALSE(Has(Written(*period), "SwitchMode"));
}

TEST(VideoAnalyseGlobal, CustomDataIsCutToItsField) {
    const auto most = ReadScene("\"CustomData\":\"" + std::string(1368, 'A') + "\""); // 1026 bytes
    EXPECT_EQ(most->nCustomDataLen, 1024);
    const auto fits = ReadScene("\"CustomData\":\"" + std::string(1364, 'A') + "\""); // 1023 bytes
    EXPECT_EQ(fits->nCustomDataLen, 1023);
    const auto none = ReadScene(R"("CustomData":"")");
    EXPECT_EQ(none->nCustomDataLen, 0);
    EXPECT_FALSE(Has(Written(*none), "CustomData"));
    auto beyond = Cleared<Global>();
    beyond->nCustomDataLen = 5000; // ends at the field
    EXPECT_TRUE(Has(Written(*beyond), "\"CustomData\" : \"" + std::string(1366, 'A') + "==\""));
    beyond->nCustomDataLen = -1;
    EXPECT_FALSE(Has(Written(*beyond), "CustomData"));
}

TEST(VideoAnalyseGlobal, ListsEndAtTheirRoom) {
    std::string types = "\"t0\"", staffs = "null", areas = "{}";
    for (int i = 1; i < 9; ++i)
        types += ",\"t" + std::to_string(i) + "\"";
    for (int i = 1; i < 21; ++i)
        staffs += ",{\"Length\":" + std::to_string(i) + "}";
    for (int i = 1; i < 11; ++i)
        areas += ",{\"Length\":" + std::to_string(i) + "}";
    const auto global = ReadGlobal("{\"CalibrateArea\":[" + areas + "],\"Scene\":{\"TypeList\":[" + types
                                   + "],\"Staffs\":[" + staffs + "]}}");
    EXPECT_EQ(global->nTypeListNum, 8);
    EXPECT_STREQ(global->szTypeList[7], "t7");
    EXPECT_EQ(global->nStaffNum, 19); // twenty places, one of them a null
    EXPECT_EQ(global->stuStaffs[0].fLength, 0.0f);
    EXPECT_EQ(global->stuStaffs[19].fLength, 19.0f);
    EXPECT_EQ(global->nCalibrateAreaNum, 10);
    EXPECT_EQ(global->stuCalibrateAreas[9].fLength, 9.0f);
    EXPECT_STREQ(ReadScene(R"("TypeList":["0123456789abcdefg"])")->szTypeList[0], "0123456789abcde");
}

TEST(VideoAnalyseGlobal, TimesNeedTheirForm) {
    const auto global = ReadGlobal(R"({"TimePeriod":{"Day":["01:02",7,"09:09:09"],"Night":"01:02:03"}})");
    EXPECT_EQ(global->stuDayPeriods[0].nHour, 1); // as far as it goes
    EXPECT_EQ(global->stuDayPeriods[0].nMinute, 2);
    EXPECT_EQ(global->stuDayPeriods[0].nSecond, 0);
    EXPECT_EQ(global->stuDayPeriods[1].nHour, 0);
    EXPECT_EQ(global->stuNightPeriods[0].nHour, 0);
}

// ---- What is numbered ----------------------------------------------------------------------------------------------

TEST(VideoAnalyseGlobal, PeriodsEndAtTheFirstNumberThatIsMissing) {
    std::vector<CFG_TIME_PERIOD_INFO> periods(3);
    auto global = Cleared<Global>();
    global->nTimePeriodMax = 2;
    global->pTimePeriods = periods.data();
    global = ReadInto(std::move(global),
                      R"({"TimePeriod1":{"Day":["01:02:03","04:05:06"],"Latitude":7,"Longitude":-8,
        "Night":["09:10:11","12:13:14"],"SwitchMode":"bypos"},"TimePeriod2":{"Latitude":15},"TimePeriod3":{"Latitude":16}})");
    EXPECT_EQ(global->nTimePeriodNum, 2);
    EXPECT_EQ(periods[0].stuDay[0].nHour, 1);
    EXPECT_EQ(periods[0].stuDay[1].nSecond, 6);
    EXPECT_EQ(periods[0].stuNight[0].nMinute, 10);
    EXPECT_EQ(periods[0].stuNight[1].nHour, 12);
    EXPECT_EQ(periods[0].nSwitchMode, CFG_SCENE_SWITCH_BY_POS);
    EXPECT_EQ(periods[0].nLatitude, 7u);
    EXPECT_EQ(periods[0].nLongitude, static_cast<std::uint32_t>(-8));
    EXPECT_EQ(periods[1].nLatitude, 15u);
    EXPECT_EQ(periods[2].nLatitude, 0u); // beyond the room
    EXPECT_TRUE(Has(Written(*global),
                    R"("TimePeriod1" : { "Day" : [ "01:02:03", "04:05:06" ], "Latitude" : 7, "Longitude" : -8, )"
                    R"("Night" : [ "09:10:11", "12:13:14" ], "SwitchMode" : "ByPos" }, "TimePeriod2" : {)"));
    global->nTimePeriodNum = 3; // more than there is room for
    EXPECT_FALSE(Has(Written(*global), "TimePeriod1"));
    global->nTimePeriodNum = 2;
    global->pTimePeriods = nullptr;
    EXPECT_FALSE(Has(Written(*global), "TimePeriod1"));
    global->pTimePeriods = periods.data();
    global = ReadInto(std::move(global), R"({"TimePeriod2":{"Latitude":17}})");
    EXPECT_EQ(global->nTimePeriodNum, 0);
    EXPECT_EQ(periods[1].nLatitude, 17u);
    global->nTimePeriodMax = 0;
    global->nTimePeriodNum = 55;
    global = ReadInto(std::move(global), R"({"TimePeriod1":{"Latitude":18}})");
    EXPECT_EQ(global->nTimePeriodNum, 55); // left alone
    EXPECT_EQ(periods[0].nLatitude, 7u);
}

TEST(VideoAnalyseGlobal, NumberedAreasWithoutAreasAreAText) {
    std::vector<CFG_CALIBRATE_AREAS_INFO> lists(40);
    auto global = Cleared<Global>();
    global->nCalibrateMax = 40;
    global->pCalibrates = lists.data();
    global = ReadInto(std::move(global), R"({"CalibrateArea1":[{"Length":1.5,"Type":""},{"Type":"GROUD"}],
        "CalibrateArea2":"null"})");
    EXPECT_EQ(global->nCalibrateNum, 2);
    EXPECT_EQ(lists[0].nAreaNum, 2);
    EXPECT_EQ(lists[0].stuAreas[0].fLength, 1.5f);
    EXPECT_EQ(lists[0].stuAreas[1].nType, CFG_CALIBRATE_AREA_GROUND);
    EXPECT_EQ(lists[1].nAreaNum, 0);
    EXPECT_TRUE(Has(Written(*global), R"({ "CalibrateArea1" : [ { "Length" : 1.500000000000000, "Type" : "" }, )"
                                      R"({ "Length" : 0.000000000000000, "Type" : "Groud" } ], )"
                                      R"("CalibrateArea2" : "null", "Scene" : )"));
    global->nCalibrateNum = 40;
    const std::string all = Written(*global);
    EXPECT_TRUE(Has(all, "CalibrateArea32"));
    EXPECT_FALSE(Has(all, "CalibrateArea33"));
}

TEST(VideoAnalyseGlobal, NumberedNamesStandInTheOrderOfTheirBytes) {
    auto global = Cleared<Global>();
    global->nSceneNum = 40;
    const std::string text = Written(*global);
    std::size_t at = 0;
    int found = 0;
    for (const char* name : {"Scene", "Scene1", "Scene10", "Scene11", "Scene19", "Scene2", "Scene20", "Scene29",
                             "Scene3", "Scene30", "Scene32", "Scene4", "Scene9", "TimePeriod"}) {
        const std::size_t next = text.find(std::string("\"") + name + "\" : ");
        EXPECT_TRUE(next != std::string::npos && next >= at) << name;
        at = next;
        ++found;
    }
    EXPECT_EQ(found, 14);
    EXPECT_FALSE(Has(text, "Scene33"));
}

TEST(VideoAnalyseGlobal, NumberedScenesAreWholeScenes) {
    const auto global = ReadGlobal(R"({"Scene1":{"Depth":"Near","Detail":{"CameraAngle":1.5,"CameraDistance":2.5,
        "CameraHeight":3.5,"Landline":[[4,5],[6,7]],"Lanes":[{"Number":8}],"PlateHints":["A","B"],"Type":"Road"},
        "PtzPresetId":9,"Type":"Normal","TypeList":["Traffic"]},
        "Scene2":{"Type":"Traffic","Detail":{"Lanes":[{"Number":10}]}},"Scene3":7,"Scene4":{"PtzPresetId":11},
        "Scene6":{"PtzPresetId":12}})");
    EXPECT_EQ(global->nSceneNum, 3); // the third is no scene, behind the fourth one is missing
    const CFG_ANALYSE_SCENE_INFO& scene = global->stuScenes[0];
    EXPECT_STREQ(scene.szType, "Normal");
    EXPECT_EQ(scene.nDepth, CFG_DEPTH_NEAR);
    EXPECT_EQ(scene.nPtzPresetId, 9);
    EXPECT_EQ(scene.nTypeListNum, 1);
    EXPECT_EQ(scene.stuDetail.dCameraAngle, 1.5);
    EXPECT_EQ(scene.stuDetail.dCameraDistance, 2.5);
    EXPECT_EQ(scene.stuDetail.dCameraHeight, 3.5);
    EXPECT_EQ(scene.stuDetail.stuLandline[1].nX, 6);
    EXPECT_EQ(scene.stuDetail.nLaneNum, 0); // the list of types says nothing of the detail here
    EXPECT_STREQ(scene.stuSubDetail.szType, "Road");
    EXPECT_EQ(scene.stuSubDetail.nPlateHintNum, 2);
    EXPECT_STREQ(scene.stuSubDetail.szPlateHints[1], "B");
    EXPECT_EQ(scene.stuSubDetail.nLaneNum, 1);
    EXPECT_EQ(scene.stuSubDetail.stuLanes[0].nNumber, 8);
    EXPECT_EQ(global->stuScenes[1].stuDetail.stuLanes[0].nNumber, 10);
    EXPECT_EQ(global->stuScenes[1].stuSubDetail.nLaneNum, 0); // without a list of types
    EXPECT_EQ(global->stuScenes[3].nPtzPresetId, 11);
    EXPECT_EQ(global->stuScenes[5].nPtzPresetId, 0);
    EXPECT_TRUE(Has(Written(*global),
                    R"("Scene1" : { "Depth" : "Near", "Detail" : { "CameraAngle" : 1.500000000000000, )"
                    R"("CameraDistance" : 2.500000000000000, "CameraHeight" : 3.500000000000000, )"
                    R"("Landline" : [ [ 4, 5 ], [ 6, 7 ] ] }, "PtzPresetId" : 9, "Type" : "Normal", )"
                    R"("TypeList" : [ "Traffic" ] }, "Scene2" : )"));
    auto again = ReadInto(ReadGlobal(R"({"Scene1":{"Depth":"Near","PtzPresetId":5}})"), R"({"Scene1":{}})");
    EXPECT_EQ(again->stuScenes[0].nDepth, 0); // absent is none
    EXPECT_EQ(again->stuScenes[0].nPtzPresetId, 5);
}

TEST(VideoAnalyseGlobal, TheThirtySecondSceneIsWrittenOnly) {
    std::string table = "{\"Scene\":{}";
    for (int i = 1; i <= 33; ++i)
        table += ",\"Scene" + std::to_string(i) + "\":{\"PtzPresetId\":" + std::to_string(i) + "}";
    const auto global = ReadGlobal(table + "}");
    EXPECT_EQ(global->nSceneNum, 31);
    EXPECT_EQ(global->stuScenes[30].nPtzPresetId, 31);
    EXPECT_EQ(global->stuScenes[31].nPtzPresetId, 0);
}

// ---- Details -------------------------------------------------------------------------------------------------------

constexpr const char* kEverything = R"("AdjustLightColor":{"Enable":true,"Level":31,"LevelSeparate":[
    {"Type":"Video","Time":"Day","Level":32},{"Type":"Picture","Time":"Night","Level":33},{"Level":34},
    {"Type":"x","Time":"y"}],"Mode":35,"VideoEnable":true},"CameraAngle":1.25,"CameraDistance":2.25,"CameraHeight":3.25,
    "DetectType":"LargeFace","FaceAngleDown":36,"FaceAngleLeft":37,"FaceAngleRight":38,"FaceAngleUp":39,
    "FarDetectPoint":[40,41],"FarDistance":42.9,"HangingWordPlate":true,"Judgment":"Direction","Landline":[[43,44],[45,46]],
    "Lanes":[{"DetectLine":[[47,48]],"Direction":["Left","Right"],"DrivingDirection":["Leave","North","South"],
    "LeftLine":[[49,50]],"LeftLineType":"WhiteSolid","Number":51,"PostLine":[],"PreLine":[[52,53]],"Rank":"SubTrunk",
    "RightLine":[[54,55]],"RightLineType":"Yellow","StopLine":[[56,57]],"TrafficLightNumber":58}],
    "LeftDivisionLine":[[59,60]],"LightGroups":[{"Area":[61,62,63,64],"Direction":"Vertical","ExternalDetection":true,
    "LightAttribute":[{"Direction":["Straight"],"Enable":true,"Types":["Red","Green"],"YellowTime":65}],"Number":66,
    "SwingDetection":true}],"MainDirection":[[67,68],[69,70]],"NearDetectPoint":[71,72],"NearDistance":73,
    "NonStdPolicePlate":true,"ParkingSpaces":[{"Area":[[74,75]],"Number":76,"ShieldArea":[[[77,78]],[]]}],
    "PlateHints":["A","B"],"PlateMatch":79,"ReportMode":"plate","RightDivisionLine":[[80,81]],"Type":"Crossing",
    "YellowPlateLetter":true)";

TEST(SceneDetail, OfTrafficIsReadAndWrittenWhole) {
    for (const char* type : {"Traffic", "Highway", "City"}) {
        const auto global = ReadDetail(type, kEverything);
        const CFG_SCENE_DETAIL_INFO& detail = global->stuDetail;
        EXPECT_EQ(detail.dCameraHeight, 3.25);
        EXPECT_EQ(detail.dCameraDistance, 2.25);
        EXPECT_EQ(detail.stuNearDetectPoint.nX, 71);
        EXPECT_EQ(detail.stuFarDetectPoint.nY, 41);
        EXPECT_EQ(detail.nNearDistance, 73);
        EXPECT_EQ(detail.nFarDistance, 42);
        EXPECT_STREQ(detail.szSubType, "Crossing");
        const CFG_LANE_INFO& lane = detail.stuLanes[0];
        EXPECT_EQ(detail.nLaneNum, 1);
        EXPECT_EQ(lane.nNumber, 51);
        EXPECT_EQ(lane.bDirectionList, 1);
        EXPECT_EQ(lane.nDirectionNum, 2);
        EXPECT_STREQ(lane.szDirection[1], "Right");
        EXPECT_EQ(lane.stuLeftLine[0].nX, 49);
        EXPECT_EQ(lane.nLeftLineType, CFG_LINE_TYPE_WHITE_SOLID);
        EXPECT_EQ(lane.stuRightLine[0].nY, 55);
        EXPECT_EQ(lane.nRightLineType, CFG_LINE_TYPE_YELLOW);
        EXPECT_EQ(lane.nStopLinePoint, 1);
        EXPECT_EQ(lane.nTrafficLightNumber, 58);
        EXPECT_EQ(lane.abDetectLine, 1);
        EXPECT_EQ(lane.stuDetectLine[0].nX, 47);
        EXPECT_EQ(lane.abPreLine, 1);
        EXPECT_EQ(lane.stuPreLine[0].nY, 53);
        EXPECT_EQ(lane.abPostLine, 1);
        EXPECT_EQ(lane.nPostLinePoint, 0);
        EXPECT_EQ(lane.nDrivingDirection, CFG_DRIVING_LEAVE);
        EXPECT_STREQ(lane.szDrivingFrom, "North");
        EXPECT_STREQ(lane.szDrivingTo, "South");
        EXPECT_EQ(lane.nRank, CFG_LANE_RANK_SUB_TRUNK);
        EXPECT_EQ(detail.nPlateHintNum, 2);
        EXPECT_EQ(detail.nLightGroupNum, 1);
        const CFG_LIGHT_GROUP_INFO& group = detail.stuLightGroups[0];
        EXPECT_EQ(group.nNumber, 66);
        EXPECT_EQ(group.stuArea.nBottom, 64);
        EXPECT_EQ(group.nDirection, CFG_LIGHT_GROUP_VERTICAL);
        EXPECT_EQ(group.bExternalDetection, 1);
        EXPECT_EQ(group.bSwingDetection, 1);
        EXPECT_EQ(group.stuLights[0].nYellowTime, 65);
        EXPECT_EQ(group.stuLights[0].nTypeNum, 2);
        EXPECT_STREQ(group.stuLights[0].szTypes[1], "Green");
        EXPECT_STREQ(group.stuLights[0].szDirections[0], "Straight");
        EXPECT_EQ(detail.bHangingWordPlate, 1);
        EXPECT_EQ(detail.bNonStdPolicePlate, 1);
        EXPECT_EQ(detail.bYellowPlateLetter, 1);
        EXPECT_EQ(detail.byReportMode, CFG_REPORT_MODE_PLATE);
        EXPECT_EQ(detail.byPlateMatch, 79);
        EXPECT_EQ(detail.byJudgment, CFG_JUDGMENT_DIRECTION);
        EXPECT_EQ(detail.stuLeftDivisionLine[0].nX, 59);
        EXPECT_EQ(detail.stuRightDivisionLine[0].nY, 81);
        EXPECT_EQ(detail.stuAdjustLightColor.nMode, 35);
        EXPECT_EQ(detail.stuAdjustLightColor.bVideoEnable, 1);
        EXPECT_EQ(detail.stuAdjustLightColor.stuLevelSeparate[0].nType, CFG_LIGHT_COLOR_VIDEO);
        EXPECT_EQ(detail.stuAdjustLightColor.stuLevelSeparate[1].nTime, CFG_LIGHT_COLOR_NIGHT);
        EXPECT_EQ(detail.stuAdjustLightColor.stuLevelSeparate[2].nLevel, 34);
        EXPECT_EQ(detail.stuAdjustLightColor.stuLevelSeparate[3].nType, 0);
        EXPECT_EQ(detail.nParkingSpaceNum, 1);
        EXPECT_EQ(detail.stuParkingSpaces[0].nNumber, 76);
        EXPECT_EQ(detail.stuParkingSpaces[0].nShieldAreaNum, 2);
        EXPECT_EQ(detail.stuParkingSpaces[0].stuShieldAreas[0].stuPoints[0].nX, 77);
        EXPECT_EQ(detail.bFaceScene, 0);
        EXPECT_EQ(detail.dFaceCameraHeight, 0.0);
        EXPECT_EQ(detail.nDetectType, 0);
        EXPECT_EQ(detail.dCameraAngle, 0.0);
        EXPECT_EQ(
            WrittenDetail(*global),
            R"({ "AdjustLightColor" : { "Enable" : true, "Level" : 31, "LevelSeparate" : [ )"
            R"({ "Level" : 32, "Time" : "Day", "Type" : "Video" }, { "Level" : 33, "Time" : "Night", )"
            R"("Type" : "Picture" }, { "Level" : 34 }, { "Level" : 0 } ], "Mode" : 35, "VideoEnable" : true }, )"
            R"("CameraDistance" : 2.250000000000000, "CameraHeight" : 3.250000000000000, )"
            R"("FarDetectPoint" : [ 40, 41 ], "FarDistance" : 42, "HangingWordPlate" : true, )"
            R"("Judgment" : "Direction", "Lanes" : [ { "DetectLine" : [ [ 47, 48 ] ], )"
            R"("Direction" : [ "Left", "Right" ], "DrivingDirection" : [ "Leave", "North", "South" ], )"
            R"("LeftLine" : [ [ 49, 50 ] ], "LeftLineType" : "WhiteSolid", "Number" : 51, )"
            R"("PreLine" : [ [ 52, 53 ] ], "Rank" : "SubTrunk", "RightLine" : [ [ 54, 55 ] ], )"
            R"("RightLineType" : "Yellow", "StopLine" : [ [ 56, 57 ] ], "TrafficLightNumber" : 58 } ], )"
            R"("LeftDivisionLine" : [ [ 59, 60 ] ], "LightGroups" : [ { "Area" : [ 61, 62, 63, 64 ], )"
            R"("Direction" : "Vertical", "ExternalDetection" : true, "LightAttribute" : [ )"
            R"({ "Direction" : [ "Straight" ], "Enable" : true, "Types" : [ "Red", "Green" ], "YellowTime" : 65 } ], )"
            R"("Number" : 66, "SwingDetection" : true } ], "NearDetectPoint" : [ 71, 72 ], "NearDistance" : 73, )"
            R"("NonStdPolicePlate" : true, "ParkingSpaces" : [ { "Area" : [ [ 74, 75 ] ], "Number" : 76, )"
            R"("ShieldArea" : [ [ [ 77, 78 ] ], null ] } ], "PlateHints" : [ "A", "B" ], "PlateMatch" : 79, )"
            R"("ReportMode" : "plate", "RightDivisionLine" : [ [ 80, 81 ] ], "Type" : "Crossing", )"
            R"("YellowPlateLetter" : true })");
    }
}

TEST(SceneDetail, OfFacesHasACameraOfItsOwn) {
    for (const char* type : {"FaceRecognition", "FaceDetection"}) {
        const auto global = ReadDetail(type, kEverything);
        const CFG_SCENE_DETAIL_INFO& detail = global->stuDetail;
        EXPECT_EQ(detail.bFaceScene, 1);
        EXPECT_EQ(detail.dFaceCameraHeight, 3.25);
        EXPECT_EQ(detail.dFaceCameraDistance, 2.25);
        EXPECT_EQ(detail.dCameraHeight, 0.0);
        EXPECT_EQ(detail.nMainDirectionNum, 2);
        EXPECT_EQ(detail.stuMainDirection[1].nX, 69);
        EXPECT_EQ(detail.byFaceAngleDown, 36);
        EXPECT_EQ(detail.byFaceAngleLeft, 37);
        EXPECT_EQ(detail.byFaceAngleRight, 38);
        EXPECT_EQ(detail.byFaceAngleUp, 39);
        EXPECT_EQ(detail.nDetectType, CFG_FACE_SIZE_LARGE);
        EXPECT_EQ(detail.nLaneNum, 0);
        EXPECT_STREQ(detail.szSubType, "");
        EXPECT_EQ(WrittenDetail(*global),
                  R"({ "CameraDistance" : 2.250000000000000, "CameraHeight" : 3.250000000000000, )"
                  R"("DetectType" : "LargeFace", "FaceAngleDown" : 36, "FaceAngleLeft" : 37, )"
                  R"("FaceAngleRight" : 38, "FaceAngleUp" : 39, "MainDirection" : [ [ 67, 68 ], [ 69, 70 ] ] })");
    }
}

TEST(SceneDetail, OfNormalScenesHasAngleAndLandLine) {
    for (const char* type : {"Normal", "NumberStat"}) {
        const auto global = ReadDetail(type, kEverything);
        EXPECT_EQ(global->stuDetail.dCameraAngle, 1.25);
        EXPECT_EQ(global->stuDetail.stuLandline[0].nX, 43);
        EXPECT_EQ(global->stuDetail.stuLandline[0].nY, 44);
        EXPECT_EQ(global->stuDetail.stuLandline[1].nX, 45);
        EXPECT_EQ(global->stuDetail.stuLandline[1].nY, 46);
        EXPECT_EQ(global->stuDetail.nPlateHintNum, 0);
        EXPECT_EQ(WrittenDetail(*global),
                  R"({ "CameraAngle" : 1.250000000000000, "CameraDistance" : 2.250000000000000, )"
                  R"("CameraHeight" : 3.250000000000000, "Landline" : [ [ 43, 44 ], [ 45, 46 ] ] })");
    }
    for (const char* line : {"[[1,2]]", "[[1,2],[3,4],[5,6]]", "[[1,2],[3,4,5]]", "[[1],[3,4]]", "7", "[1,2]"}) {
        const auto global = ReadDetail("Normal", std::string("\"Landline\":") + line);
        EXPECT_EQ(global->stuDetail.stuLandline[0].nX, 0) << line;
        EXPECT_EQ(global->stuDetail.stuLandline[1].nX, 0) << line;
    }
}

TEST(SceneDetail, OfAPatrolHasPlateHintsAlone) {
    const auto global = ReadDetail("TrafficPatrol", kEverything);
    EXPECT_EQ(global->stuDetail.nPlateHintNum, 2);
    EXPECT_STREQ(global->stuDetail.szPlateHints[0], "A");
    EXPECT_EQ(global->stuDetail.nLaneNum, 0);
    EXPECT_EQ(global->stuDetail.dCameraHeight, 0.0);
    EXPECT_EQ(WrittenDetail(*global), R"({ "PlateHints" : [ "A", "B" ] })");
}

TEST(SceneDetail, OfAnotherTypeIsNeitherReadNorWritten) {
    for (const char* type : {"", "Indoor", "traffic", "Traffics"}) {
        const auto global = ReadDetail(type, kEverything);
        EXPECT_EQ(global->stuDetail.nLaneNum, 0) << type;
        EXPECT_EQ(global->stuDetail.nPlateHintNum, 0) << type;
        EXPECT_EQ(global->stuDetail.bFaceScene, 0) << type;
        const LogLines log;
        EXPECT_EQ(WrittenDetail(*global), "") << type;
        EXPECT_EQ(log.count(E_LOG_LEVEL_DETAIL, "There is no configuration about this scene type."), 1) << type;
    }
    auto known = Cleared<Global>();
    std::strcpy(known->szSceneType, "Normal");
    const LogLines log;
    EXPECT_NE(WrittenDetail(*known), "");
    EXPECT_TRUE(log.texts(E_LOG_LEVEL_DETAIL).empty());
}

TEST(SceneDetail, OfSeveralTypesHoldsTheKeysOfAll) {
    const auto global = ReadScene(
        std::string(R"("Type":"TrafficPatrol","TypeList":["Normal","FaceDetection"],"Detail":{)") + kEverything + "}");
    EXPECT_EQ(global->stuDetail.nPlateHintNum, 2);
    EXPECT_EQ(global->stuDetail.dCameraAngle, 1.25);
    EXPECT_EQ(global->stuDetail.dCameraHeight, 3.25);
    EXPECT_EQ(global->stuDetail.dFaceCameraHeight, 3.25);
    EXPECT_EQ(global->stuDetail.byFaceAngleUp, 39);
    global->stuDetail.dCameraHeight = 8.5; // the last type's is written
    const std::string faces = WrittenDetail(*global);
    EXPECT_TRUE(Has(faces, "\"CameraHeight\" : 3.250000000000000,"));
    EXPECT_TRUE(Has(faces, "\"CameraAngle\" : ") && Has(faces, "\"PlateHints\" : ")
                && Has(faces, "\"FaceAngleUp\" : "));
    EXPECT_FALSE(Has(faces, "8.5"));
    std::strcpy(global->szTypeList[1], "TrafficPatrol");
    EXPECT_TRUE(Has(WrittenDetail(*global), "\"CameraHeight\" : 8.500000000000000,"));
}

TEST(SceneDetail, PointsNeedTwoNumbers) {
    const auto global = ReadDetail("Traffic", R"("NearDetectPoint":[1],"FarDetectPoint":[2,3,4],
        "LightGroups":[{"Area":[1,2,3]},{"Area":[4,5,6,7,8]}],"LeftDivisionLine":[[1],null,[5,6]])");
    EXPECT_EQ(global->stuDetail.stuNearDetectPoint.nX, 0);
    EXPECT_EQ(global->stuDetail.stuFarDetectPoint.nY, 3);
    EXPECT_EQ(global->stuDetail.stuLightGroups[0].stuArea.nLeft, 0);
    EXPECT_EQ(global->stuDetail.stuLightGroups[1].stuArea.nBottom, 7);
    EXPECT_EQ(global->stuDetail.nLeftDivisionPoint, 1);
    EXPECT_EQ(global->stuDetail.stuLeftDivisionLine[2].nX, 5);
}

CFG_LANE_INFO ReadLane(const std::string& members) {
    return ReadDetail("Traffic", "\"Lanes\":[{" + members + "}]")->stuDetail.stuLanes[0];
}

TEST(SceneDetail, ALanesDirectionIsANumberOrAList) {
    CFG_LANE_INFO lane = ReadLane(R"("Direction":3)");
    EXPECT_EQ(lane.nDirection, 3);
    EXPECT_EQ(lane.bDirectionList, 0);
    auto global = Cleared<Global>();
    std::strcpy(global->szSceneType, "Traffic");
    global->stuDetail.nLaneNum = 1;
    global->stuDetail.stuLanes[0] = lane;
    EXPECT_TRUE(Has(Written(*global),
                    "\"Lanes\" : [ { \"Direction\" : 3, \"DrivingDirection\" : [ \"Approach\", \"\", \"\" ]"));
    for (const char* other : {"3.5", "\"x\"", "true", "[]", "{}"}) {
        lane = ReadLane(std::string("\"Direction\":") + other);
        EXPECT_EQ(lane.nDirection, 0) << other;
        EXPECT_EQ(lane.bDirectionList, 0) << other;
    }
    lane = ReadLane(R"("Direction":["0","1","2","3","4","5","6","7","8"])");
    EXPECT_EQ(lane.nDirectionNum, 8);
    EXPECT_STREQ(lane.szDirection[7], "7");
    EXPECT_STREQ(ReadLane("\"Direction\":[\"" + std::string(130, 'a') + "\"]").szDirection[0],
                 std::string(127, 'a').c_str());
}

TEST(SceneDetail, ANullAmongDrivingDirectionsEndsTheLane) {
    CFG_LANE_INFO lane = ReadLane(R"("DrivingDirection":["Leave",null,"South"],"Rank":"Trunk")");
    EXPECT_EQ(lane.nDrivingDirection, CFG_DRIVING_LEAVE);
    EXPECT_STREQ(lane.szDrivingTo, "");
    EXPECT_EQ(lane.nRank, 0);
    lane = ReadLane(R"("DrivingDirection":["Leave","North"],"Rank":"Trunk")");
    EXPECT_STREQ(lane.szDrivingFrom, "North");
    EXPECT_EQ(lane.nRank, 0);
    lane = ReadLane(R"("DrivingDirection":[null,"North","South"],"Rank":"Trunk")");
    EXPECT_STREQ(lane.szDrivingFrom, "");
    EXPECT_EQ(lane.nRank, 0);
    EXPECT_EQ(ReadLane(R"("DrivingDirection":7,"Rank":"Trunk")").nRank, CFG_LANE_RANK_TRUNK);
    EXPECT_EQ(ReadLane(R"("Rank":"Trunk")").nRank, CFG_LANE_RANK_TRUNK);
    EXPECT_STREQ(ReadLane(R"("DrivingDirection":["Leave","0123456789abcdefg","x"])").szDrivingFrom, "0123456789abcde");
    const auto lanes =
        ReadDetail("Traffic", R"("Lanes":[{"DrivingDirection":[null],"Rank":"Trunk"},{"Rank":"Rapid"}])");
    EXPECT_EQ(lanes->stuDetail.nLaneNum, 2);
    EXPECT_EQ(lanes->stuDetail.stuLanes[1].nRank, CFG_LANE_RANK_RAPID);
}

// A code in each direction, a text of other case, an unknown one and a code that has none.
template <class Read, class Set>
void GoesBothWays(const char* key, const std::vector<Text>& texts, const Read& read, const Set& set) {
    const auto upper = [](std::string text) {
        for (char& c : text)
            c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
        return text;
    };
    for (const Text& one : texts) {
        EXPECT_EQ(read(std::string("\"") + key + "\":\"" + one.text + "\""), one.code) << key << one.text;
        EXPECT_EQ(read(std::string("\"") + key + "\":\"" + upper(one.text) + "\""), one.code) << key << one.text;
        EXPECT_TRUE(Has(set(one.code), std::string("\"") + key + "\" : \"" + one.text + "\"")) << key << one.text;
    }
    EXPECT_EQ(read(std::string("\"") + key + "\":\"Nothing\""), 0) << key;
    EXPECT_FALSE(Has(set(texts.back().code + 1), std::string("\"") + key + "\" : \"")) << key;
    EXPECT_FALSE(Has(set(-1), std::string("\"") + key + "\" : \"")) << key;
}

TEST(SceneDetail, CodesOfLanesGoBothWays) {
    const auto written = [](std::int32_t CFG_LANE_INFO::*member, std::int32_t code) {
        auto global = Cleared<Global>();
        std::strcpy(global->szSceneType, "City");
        global->stuDetail.nLaneNum = 1;
        global->stuDetail.stuLanes[0].*member = code;
        return WrittenDetail(*global);
    };
    const std::vector<Text> lines = {{1, "WhiteSolid"}, {2, "WhiteDotted"}, {3, "Yellow"}};
    GoesBothWays(
        "LeftLineType", lines, [](const std::string& text) { return ReadLane(text).nLeftLineType; },
        [&](std::int32_t code) { return written(&CFG_LANE_INFO::nLeftLineType, code); });
    GoesBothWays(
        "RightLineType", lines, [](const std::string& text) { return ReadLane(text).nRightLineType; },
        [&](std::int32_t code) { return written(&CFG_LANE_INFO::nRightLineType, code); });
    GoesBothWays(
        "Rank", {{0, ""}, {1, "Rapid"}, {2, "Trunk"}, {3, "SubTrunk"}, {4, "Branch"}},
        [](const std::string& text) { return ReadLane(text).nRank; },
        [&](std::int32_t code) { return written(&CFG_LANE_INFO::nRank, code); });
    EXPECT_EQ(ReadLane(R"("DrivingDirection":["APPROACH","a","b"])").nDrivingDirection, CFG_DRIVING_APPROACH);
    EXPECT_EQ(ReadLane(R"("DrivingDirection":["leave","a","b"])").nDrivingDirection, CFG_DRIVING_LEAVE);
    EXPECT_EQ(ReadLane(R"("DrivingDirection":["Aside","a","b"])").nDrivingDirection, 0);
    EXPECT_TRUE(Has(written(&CFG_LANE_INFO::nDrivingDirection, 0), R"([ "Approach", "", "" ])"));
    EXPECT_TRUE(Has(written(&CFG_LANE_INFO::nDrivingDirection, 2), R"([ null, "", "" ])"));
}

TEST(SceneDetail, CodesOfDetailsGoBothWays) {
    using Detail = CFG_SCENE_DETAIL_INFO;
    const auto detail = [](const std::string& text) { return ReadDetail("Traffic", text); };
    const auto written = [](const char* type, const auto& set) {
        auto global = Cleared<Global>();
        std::strcpy(global->szSceneType, type);
        set(global->stuDetail);
        return WrittenDetail(*global);
    };
    GoesBothWays(
        "ReportMode", {{1, "all"}, {2, "plate"}},
        [&](const std::string& text) { return detail(text)->stuDetail.byReportMode; },
        [&](std::int32_t code) {
            return written("Traffic", [&](Detail& d) { d.byReportMode = static_cast<std::uint8_t>(code); });
        });
    GoesBothWays(
        "Judgment", {{1, "Lane"}, {2, "Direction"}, {3, "Both"}},
        [&](const std::string& text) { return detail(text)->stuDetail.byJudgment; },
        [&](std::int32_t code) {
            return written("Traffic", [&](Detail& d) { d.byJudgment = static_cast<std::uint8_t>(code); });
        });
    GoesBothWays(
        "Direction", {{1, "Horizontal"}, {2, "Vertical"}},
        [&](const std::string& text) {
            return detail("\"LightGroups\":[{" + text + "}]")->stuDetail.stuLightGroups[0].nDirection;
        },
        [&](std::int32_t code) {
            return written("Traffic", [&](Detail& d) {
                d.nLightGroupNum = 1;
                d.stuLightGroups[0].nDirection = code;
            });
        });
    const auto level = [&](const std::string& text) {
        return detail("\"AdjustLightColor\":{\"LevelSeparate\":[{" + text + "},{},{},{}]}")
            ->stuDetail.stuAdjustLightColor.stuLevelSeparate[0];
    };
    GoesBothWays(
        "Time", {{1, "Day"}, {2, "Night"}}, [&](const std::string& text) { return level(text).nTime; },
        [&](std::int32_t code) {
            return written("Traffic", [&](Detail& d) { d.stuAdjustLightColor.stuLevelSeparate[0].nTime = code; });
        });
    EXPECT_EQ(level(R"("Type":"video")").nType, CFG_LIGHT_COLOR_VIDEO);
    EXPECT_EQ(level(R"("Type":"PICTURE")").nType, CFG_LIGHT_COLOR_PICTURE);
    EXPECT_EQ(level(R"("Type":"Sound")").nType, 0);
    EXPECT_EQ(level(R"("Type":"")").nType, 0);
    GoesBothWays(
        "DetectType", {{1, "SmallFace"}, {2, "LargeFace"}, {3, "Both"}},
        [](const std::string& text) { return ReadDetail("FaceDetection", text)->stuDetail.nDetectType; },
        [&](std::int32_t code) { return written("FaceDetection", [&](Detail& d) { d.nDetectType = code; }); });
}

TEST(SceneDetail, LevelsComeInFoursOrNotAtAll) {
    for (const char* levels : {R"([{"Level":1},{"Level":1},{"Level":1}])",
                               R"([{"Level":1},{"Level":1},{"Level":1},{"Level":1},{"Level":1}])", R"({"Level":1})"}) {
        const auto global =
            ReadDetail("Traffic", std::string(R"("AdjustLightColor":{"Level":5,"Mode":6,"LevelSeparate":)") + levels
                                      + "},\"Type\":\"t\"");
        EXPECT_EQ(global->stuDetail.stuAdjustLightColor.stuLevelSeparate[0].nLevel, 0) << levels;
        EXPECT_EQ(global->stuDetail.stuAdjustLightColor.nMode, 6) << levels;
        EXPECT_STREQ(global->stuDetail.szSubType, "t") << levels;
    }
}

TEST(SceneDetail, ListsEndAtTheirRoom) {
    const auto list = [](int count, const std::string& element) {
        std::string text = "[" + element;
        for (int i = 1; i < count; ++i)
            text += "," + element;
        return text + "]";
    };
    const std::string light = "{\"Types\":" + list(9, "\"t\"") + ",\"Direction\":" + list(9, "\"d\"") + "}";
    const auto global =
        ReadDetail("City", "\"Lanes\":" + list(9, "{}") + ",\"PlateHints\":" + list(9, "\"A\"") + ",\"LightGroups\":"
                               + list(9, "{\"LightAttribute\":" + list(9, light) + "}") + ",\"ParkingSpaces\":"
                               + list(7, "{\"ShieldArea\":" + list(17, list(21, "[1,2]")) + "}"));
    const CFG_SCENE_DETAIL_INFO& detail = global->stuDetail;
    EXPECT_EQ(detail.nLaneNum, 8);
    EXPECT_EQ(detail.nPlateHintNum, 8);
    EXPECT_EQ(detail.nLightGroupNum, 8);
    EXPECT_EQ(detail.stuLightGroups[7].nLightNum, 8);
    EXPECT_EQ(detail.stuLightGroups[7].stuLights[7].nTypeNum, 8);
    EXPECT_EQ(detail.stuLightGroups[7].stuLights[7].nDirectionNum, 8);
    EXPECT_EQ(detail.nParkingSpaceNum, 6);
    EXPECT_EQ(detail.stuParkingSpaces[5].nShieldAreaNum, 16);
    EXPECT_EQ(detail.stuParkingSpaces[5].stuShieldAreas[15].nPointNum, 20);
    EXPECT_EQ(ReadDetail("City", "\"PlateHints\":\"A\"")->stuDetail.nPlateHintNum, 0);
}

} // namespace
} // namespace orrery::test
