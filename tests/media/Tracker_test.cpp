// A fixed camera that steers a dome: settings, calibrations, capabilities and groups.
#include "orrery/tracker.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// ---- "MasterSlaveTrackerGlobal" ----

constexpr const char* kTracker = "MasterSlaveTrackerGlobal";

TEST(MasterSlaveTracker, ReadsAndWritesAllKeys) {
    const auto parsed = Parse<CFG_MASTER_SLAVE_GLOBAL_INFO>(
        kTracker,
        R"({"MaxZoom":30.9,"MinZoom":2,"ExpectMultiple":3,"PollTrackTime":4.5,"SelectPointTrackTime":5.25,)"
        R"("ManualSelectObjectTrackTime":6.75,"ExpectMultipleEngleX":7,"ExpectMultipleEngleY":-8,)"
        R"("TargetFaceSize":[9.9,10,11],"MinFocus":12,"MaxFocus":13,"ZoomType":"ivsadaptive",)"
        R"("TrackingMode":"MixTrack","CameraInfo":{"Camera":[{"Type":"A","SceneType":"B"},null,{"Type":"C"}],)"
        R"("Dome":[{"SceneType":"D"}]},"TrackZoomLevel":14,"ReturnPtzPreset":true})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_MASTER_SLAVE_GLOBAL_INFO));
    const CFG_MASTER_SLAVE_GLOBAL_INFO& r = *parsed;
    EXPECT_EQ(r.fMaxZoom, 30); // a whole number
    EXPECT_EQ(r.fMinZoom, 2);
    EXPECT_EQ(r.fExpectMultiple, 3);
    EXPECT_EQ(r.fPollTrackTime, 4.5F);
    EXPECT_EQ(r.fSelectPointTrackTime, 5.25F);
    EXPECT_EQ(r.fManualSelectObjectTrackTime, 6.75F);
    EXPECT_EQ(r.fExpectMultipleEngleX, 7);
    EXPECT_EQ(r.fExpectMultipleEngleY, -8);
    EXPECT_EQ(r.fTargetFaceSize[0], 9);
    EXPECT_EQ(r.fTargetFaceSize[1], 10);
    EXPECT_EQ(r.fMinFocus, 12);
    EXPECT_EQ(r.fMaxFocus, 13);
    EXPECT_EQ(r.emZoomType, CFG_TRACKER_ZOOM_IVS);
    EXPECT_EQ(r.emTrackingMode, CFG_TRACKING_MIX);
    EXPECT_EQ(r.stuCamera.nCount, 3u);
    EXPECT_STREQ(r.stuCamera.stuTypes[0].szType, "A");
    EXPECT_STREQ(r.stuCamera.stuTypes[0].szSceneType, "B");
    EXPECT_STREQ(r.stuCamera.stuTypes[2].szType, "C");
    EXPECT_EQ(r.stuDome.nCount, 1u);
    EXPECT_STREQ(r.stuDome.stuTypes[0].szSceneType, "D");
    EXPECT_EQ(r.nTrackZoomLevel, 14);
    EXPECT_EQ(r.bReturnPtzPreset, 1u);
    EXPECT_EQ(
        Pack(kTracker, r),
        R"({ "CameraInfo" : { "Camera" : [ { "SceneType" : "B", "Type" : "A" }, { "SceneType" : "", "Type" : "" }, )"
        R"({ "SceneType" : "", "Type" : "C" } ], "Dome" : [ { "SceneType" : "D", "Type" : "" } ] }, )"
        R"("ExpectMultiple" : 3, "ExpectMultipleEngleX" : 7, "ExpectMultipleEngleY" : -8, )"
        R"("ManualSelectObjectTrackTime" : 6.750000000000000, "MaxFocus" : 13, "MaxZoom" : 30, "MinFocus" : 12, )"
        R"("MinZoom" : 2, "PollTrackTime" : 4.500000000000000, "ReturnPtzPreset" : true, )"
        R"("SelectPointTrackTime" : 5.250000000000000, "TargetFaceSize" : [ 9, 10 ], "TrackZoomLevel" : 14, )"
        R"("TrackingMode" : "MixTrack", "ZoomType" : "IVSAdaptive" })");
}

TEST(MasterSlaveTracker, KnowsItsNames) {
    const char* const zooms[] = {"StationaryExpectMultiple", "IVSAdaptive", "ExpectMultipleAdaptive"};
    const char* const modes[] = {
        "AlarmTrack", "ManualSelectObjectTrack", "AutomaticSelectObjectTrack", "SelectPointTrack",
        "MixTrack",   "SlaveCameraSelfControl"};
    for (const int code : {-1, 0, 1, 2, 3, 4, 5, 6}) {
        const auto record = Cleared<CFG_MASTER_SLAVE_GLOBAL_INFO>();
        record->emZoomType = record->emTrackingMode = code;
        const std::string text = Pack(kTracker, *record);
        const bool hasZoom = code >= 0 && code < 3;
        const bool hasMode = code >= 0 && code < 6;
        EXPECT_EQ(text.find("\"ZoomType\"") != std::string::npos, hasZoom) << code;
        EXPECT_EQ(text.find("\"TrackingMode\"") != std::string::npos, hasMode) << code;
        if (hasZoom) {
            EXPECT_NE(text.find('"' + std::string(zooms[code]) + '"'), std::string::npos);
        }
        if (hasMode) {
            EXPECT_NE(text.find('"' + std::string(modes[code]) + '"'), std::string::npos);
        }
        const auto back = Parse<CFG_MASTER_SLAVE_GLOBAL_INFO>(kTracker, text);
        EXPECT_EQ(back->emZoomType, hasZoom ? code : 0);
        EXPECT_EQ(back->emTrackingMode, hasMode ? code : 0);
    }
    const auto unknown =
        Parse<CFG_MASTER_SLAVE_GLOBAL_INFO>(kTracker, R"({"ZoomType":"Other","TrackingMode":"Other","MaxZoom":4})");
    ASSERT_TRUE(unknown);
    EXPECT_EQ(unknown->emZoomType, 0);
    EXPECT_EQ(unknown->emTrackingMode, 0);
    EXPECT_EQ(unknown->fMaxZoom, 4);
}

TEST(MasterSlaveTracker, EndsListsOfCamerasAtTheirArrays) {
    std::string list = "{\"Type\":\"0\"}";
    for (int i = 1; i < 66; ++i)
        list += ",{\"Type\":\"" + std::to_string(i) + "\"}";
    const auto parsed =
        Parse<CFG_MASTER_SLAVE_GLOBAL_INFO>(kTracker, R"({"CameraInfo":{"Dome":[)" + list + R"(],"Camera":{"a":1}}})");
    EXPECT_EQ(parsed->stuDome.nCount, 64u);
    EXPECT_STREQ(parsed->stuDome.stuTypes[63].szType, "63");
    EXPECT_EQ(parsed->stuCamera.nCount, 0u);
    const auto over = Cleared<CFG_MASTER_SLAVE_GLOBAL_INFO>();
    over->stuDome.nCount = 64;
    const std::string full = Pack(kTracker, *over);
    over->stuDome.nCount = 65;
    EXPECT_EQ(Pack(kTracker, *over), full);
    EXPECT_NE(full.find(R"("Camera" : null, "Dome" : [ {)"), std::string::npos);
}

TEST(MasterSlaveTracker, NeedsAnAcceptedTable) {
    for (const char* document :
         {"[", R"({"params":{"table":{}}})", R"({"result":false,"params":{"table":{}}})", R"({"result":true})"}) {
        const auto parsed = ParseDocument<CFG_MASTER_SLAVE_GLOBAL_INFO>(kTracker, document);
        EXPECT_FALSE(parsed) << document;
        EXPECT_TRUE(parsed.isCleared());
    }
    const auto record = Cleared<CFG_MASTER_SLAVE_GLOBAL_INFO>();
    const std::string text = Pack(kTracker, *record);
    EXPECT_EQ(PackBytes(kTracker, record.get(), sizeof *record, text.size() + 1), text); // its newline gives way
    EXPECT_EQ(PackBytes(kTracker, record.get(), sizeof *record, text.size()), kFailed);
}

// ---- "CalibrateMatrix" ----

constexpr const char* kMatrix = "CalibrateMatrix";
constexpr Answer kMatrixRead{1, sizeof(CFG_CALIBRATE_MATRIX_INFO)};

struct Matrices {
    explicit Matrices(std::uint32_t room, int fill = 0x11) : info(1), items(room, fill) { SetCount(99); }
    void SetCount(std::uint32_t count) {
        info.Set(0, {reinterpret_cast<CFG_CALIBRATE_MATRIX*>(items.data()),
                     static_cast<std::uint32_t>(items.size() / sizeof(CFG_CALIBRATE_MATRIX)), count});
    }
    Answer Parse(const std::string& table) const { return ParseTable(kMatrix, table, info); }

    Records<CFG_CALIBRATE_MATRIX_INFO> info;
    Records<CFG_CALIBRATE_MATRIX> items;
};

TEST(CalibrateMatrix, ReadsAndWritesAllKeys) {
    Matrices matrices(3);
    ASSERT_EQ(
        matrices.Parse(R"([{"MasterSN":"M1","SlaveSN":"S1","Matrix":[1,4294967295,-3],)"
                       R"("pointPair":[{"masterPoint":[4,5],"slavePoint":[0.5,1.5,2.5]},null,{"masterPoint":[6]}],)"
                       R"("ExpectRatio":[0.25,0.75]},{}])"),
        kMatrixRead);
    EXPECT_EQ(matrices.info[0].nReturnCount, 2u);
    EXPECT_EQ(matrices.info[0].nMaxCount, 3u);
    const CFG_CALIBRATE_MATRIX item = matrices.items[0];
    EXPECT_STREQ(item.szMasterSn, "M1");
    EXPECT_STREQ(item.szSlaveSn, "S1");
    EXPECT_EQ(item.nMatrixCount, 3u);
    EXPECT_EQ(item.dwMatrix[1], 4294967295u);
    EXPECT_EQ(item.dwMatrix[2], 0u); // no unsigned number
    EXPECT_EQ(item.nPointPairCount, 3u);
    EXPECT_EQ(item.stuPairs[0].nMasterPoint[1], 5);
    EXPECT_EQ(item.stuPairs[0].fSlavePoint[2], 2.5F);
    EXPECT_EQ(item.stuPairs[1].nMasterPoint[0], 0);
    EXPECT_EQ(item.stuPairs[2].nMasterPoint[0], 6);
    EXPECT_EQ(item.bExpectRatio, 1u);
    EXPECT_EQ(item.fExpectRatio[1], 0.75F);
    EXPECT_EQ(matrices.items[1].nMatrixCount, 0u); // cleared before it was read
    EXPECT_EQ(matrices.items[1].bExpectRatio, 0u);
    EXPECT_EQ(matrices.items[2].nMatrixCount, 0x11111111u); // not read
    EXPECT_EQ(PackAll(kMatrix, matrices.info),
              R"([ { "ExpectRatio" : [ 0.2500000000000000, 0.7500000000000000 ], "MasterSN" : "M1", )"
              R"("Matrix" : [ 1, 4294967295, 0 ], "SlaveSN" : "S1", "pointPair" : [ { "masterPoint" : [ 4, 5 ], )"
              R"("slavePoint" : [ 0.5000000000000000, 1.500000000000000, 2.500000000000000 ] }, )"
              R"({ "masterPoint" : [ 0, 0 ], "slavePoint" : [ 0.000000000000000, 0.000000000000000, )"
              R"(0.000000000000000 ] }, { "masterPoint" : [ 6, 0 ], "slavePoint" : [ 0.000000000000000, )"
              R"(0.000000000000000, 0.000000000000000 ] } ] }, { "MasterSN" : "", "SlaveSN" : "" } ])");
}

TEST(CalibrateMatrix, EndsListsAtTheirArrays) {
    std::string pairs = R"({"masterPoint":[1,1]})";
    for (int i = 2; i <= 12; ++i)
        pairs += R"(,{"masterPoint":[)" + std::to_string(i) + ",0]}";
    std::string numbers = "1";
    for (int i = 2; i <= 33; ++i)
        numbers += "," + std::to_string(i);
    Matrices matrices(1);
    ASSERT_EQ(matrices.Parse(R"([{"pointPair":[)" + pairs + R"(],"Matrix":[)" + numbers + R"(]},{}])"), kMatrixRead);
    EXPECT_EQ(matrices.info[0].nReturnCount, 1u);
    EXPECT_EQ(matrices.items[0].nPointPairCount, 10u);
    EXPECT_EQ(matrices.items[0].stuPairs[9].nMasterPoint[0], 10);
    EXPECT_EQ(matrices.items[0].nMatrixCount, 32u);
    EXPECT_EQ(matrices.items[0].dwMatrix[31], 32u);
    const std::string text = PackAll(kMatrix, matrices.info);
    CFG_CALIBRATE_MATRIX item = matrices.items[0];
    item.nPointPairCount = 11;
    item.nMatrixCount = 33;
    matrices.items.Set(0, item);
    matrices.SetCount(2); // more than there is room for
    EXPECT_EQ(PackAll(kMatrix, matrices.info), text);
    matrices.SetCount(0);
    EXPECT_EQ(PackAll(kMatrix, matrices.info), "null");
}

TEST(CalibrateMatrix, LeavesOutWhatIsOfAnotherType) {
    Matrices matrices(1);
    ASSERT_EQ(matrices.Parse(R"([{"MasterSN":5,"SlaveSN":true,"Matrix":{"0":1},"pointPair":7,"ExpectRatio":{}}])"),
              kMatrixRead);
    const CFG_CALIBRATE_MATRIX item = matrices.items[0];
    const auto clear = Cleared<CFG_CALIBRATE_MATRIX>();
    EXPECT_EQ(std::memcmp(&item, clear.get(), sizeof item), 0);
}

TEST(CalibrateMatrix, NeedsAListAndRoomForIt) {
    for (const char* table : {"null", "{}", "7", "\"x\""}) {
        const Matrices matrices(1);
        EXPECT_EQ(matrices.Parse(table), kRefused) << table;
        EXPECT_EQ(matrices.info[0].nReturnCount, 99u);
    }
    const Matrices empty(1);
    EXPECT_EQ(empty.Parse("[]"), kMatrixRead);
    EXPECT_EQ(empty.info[0].nReturnCount, 0u);
    CFG_CALIBRATE_MATRIX item;
    for (const CFG_CALIBRATE_MATRIX_INFO& bad :
         {CFG_CALIBRATE_MATRIX_INFO{nullptr, 1, 1}, CFG_CALIBRATE_MATRIX_INFO{&item, 0, 1}}) {
        Records<CFG_CALIBRATE_MATRIX_INFO> info(1);
        info.Set(0, bad);
        EXPECT_EQ(ParseTable(kMatrix, "[{}]", info), kRefused);
        EXPECT_EQ(PackAll(kMatrix, info), "null");
    }
    const Matrices refused(1);
    EXPECT_EQ(ParseDocument(kMatrix, R"({"params":{"table":[{}]}})", refused.info), kRefused);
}

// ---- Capabilities ----

TEST(MasterSlaveCaps, ReadsEveryKey) {
    const char* const command = "capsManager.get&MasterSlaveTracker";
    const auto caps = ParseDocument<CFG_MASTER_SLAVE_CAPS>(
        command, R"({"params":{"caps":{"SupportedTrackingMode":["MixTrack","other","alarmtrack",null,)"
                 R"("SelectPointTrack","SlaveCameraSelfControl","MixTrack"],"SupportedCameraInfo":{"Camera":)"
                 R"([{"Type":"A"}],"Dome":[{"Type":"B"},{"SceneType":"C"}]}}}})");
    ASSERT_TRUE(caps);
    EXPECT_EQ(caps.length, sizeof(CFG_MASTER_SLAVE_CAPS));
    EXPECT_EQ(caps->nModeCount, 6u);
    EXPECT_EQ(caps->emModes[0], CFG_TRACKING_MIX);
    EXPECT_EQ(caps->emModes[1], 0); // an unknown name leaves its place as it is
    EXPECT_EQ(caps->emModes[2], CFG_TRACKING_ALARM);
    EXPECT_EQ(caps->emModes[4], CFG_TRACKING_POINT);
    EXPECT_EQ(caps->emModes[5], CFG_TRACKING_SLAVE);
    EXPECT_STREQ(caps->stuCamera.stuTypes[0].szType, "A");
    EXPECT_EQ(caps->stuDome.nCount, 2u);
    EXPECT_STREQ(caps->stuDome.stuTypes[1].szSceneType, "C");
    const auto refused = ParseDocument<CFG_MASTER_SLAVE_CAPS>(command, R"({"result":false,"params":{"caps":{}}})");
    EXPECT_FALSE(refused);
    const auto empty = ParseDocument<CFG_MASTER_SLAVE_CAPS>(command, R"({"result":true})");
    EXPECT_TRUE(empty);
    EXPECT_TRUE(empty.isCleared());
}

TEST(MasterSlaveCollect, IsANumber) {
    const char* const command = "masterSlaveTracker.factory.getCollect";
    const auto parse = [&](const char* document) { return ParseDocument<CFG_MASTER_SLAVE_COLLECT>(command, document); };
    const auto read = parse(R"({"result":true,"params":{"channels":12}})");
    EXPECT_TRUE(read);
    EXPECT_EQ(read.length, 4u);
    EXPECT_EQ(read->nChannels, 12);
    for (const char* document :
         {R"({"result":true,"params":{}})", R"({"result":true})", R"({"result":true,"params":{"channels":"12"}})"}) {
        const auto none = parse(document);
        EXPECT_TRUE(none) << document;
        EXPECT_EQ(none.length, 4u);
        EXPECT_EQ(none->nChannels, 0);
    }
    EXPECT_FALSE(parse(R"({"params":{"channels":12}})"));
}

// ---- Groups ----

TEST(MasterSlaveGroup, ReadsAndWritesAllKeys) {
    const char* const command = "MasterSlaveGroup";
    auto record = Cleared<CFG_MASTER_SLAVE_GROUP_INFO>();
    const std::string table = R"([{"Name":"Gate","Group":[{"MasterType":1,"Type":2,"Master":3,"Channel":4,)"
                              R"("Serial":"SN","Slaver":5,"Region":[6,7,8,9]},{"Region":[1,2]}]}])";
    const std::string document = R"({"result":true,"params":{"table":)" + table + "}}";
    std::uint32_t length = 5;
    ASSERT_EQ(CLIENT_ParseData(command, document.c_str(), record.get(), sizeof *record, &length), 1);
    EXPECT_EQ(length, 5 + sizeof *record); // added to what it held
    EXPECT_STREQ(record->szName, "Gate");
    EXPECT_EQ(record->nGroupCount, 2u);
    const CFG_MASTER_SLAVE_MEMBER& member = record->stuGroup[0];
    EXPECT_EQ(member.nMasterType, 1);
    EXPECT_EQ(member.nType, 2);
    EXPECT_EQ(member.nMaster, 3);
    EXPECT_EQ(member.nChannel, 4);
    EXPECT_STREQ(member.szSerial, "SN");
    EXPECT_EQ(member.nSlaver, 5);
    EXPECT_EQ(member.nRegion[3], 9);
    EXPECT_EQ(Pack(command, *record),
              R"([ { "Group" : [ { "Channel" : 4, "Master" : 3, "MasterType" : 1, "Region" : [ 6, 7, 8, 9 ], )"
              R"("Serial" : "SN", "Slaver" : 5, "Type" : 2 }, { "Channel" : 0, "Master" : 0, "MasterType" : 0, )"
              R"("Region" : [ 1, 2, 0, 0 ], "Serial" : "", "Slaver" : 0, "Type" : 0 } ], "Name" : "Gate" } ])");
    std::string many = R"({"Group":[{"Type":1})";
    for (int i = 2; i <= 34; ++i)
        many += R"(,{"Type":)" + std::to_string(i) + "}";
    const auto cut = Parse<CFG_MASTER_SLAVE_GROUP_INFO>(command, many + "]}");
    EXPECT_EQ(cut->nGroupCount, 32u);
    EXPECT_EQ(cut->stuGroup[31].nType, 32);
    record->nGroupCount = 32;
    const std::string full = Pack(command, *record);
    record->nGroupCount = 33;
    EXPECT_EQ(Pack(command, *record), full);
}

TEST(MasterSlaveGlobal, ReadsAndWritesAllKeys) {
    const char* const command = "MasterSlaveGlobal";
    const auto parsed = Parse<CFG_MASTER_SLAVE_CONFIG_INFO>(
        command, R"({"Enable":true,"AutoTrack":1,"AutoTrackTime":30,"LocateUnlockTime":40,"PriorityArea":[1,2,3,4]})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->bEnable, 1u);
    EXPECT_EQ(parsed->bAutoTrack, 1u);
    EXPECT_EQ(parsed->nAutoTrackTime, 30);
    EXPECT_EQ(parsed->nLocateUnlockTime, 40);
    EXPECT_EQ(parsed->nPriorityArea[0], 1);
    EXPECT_EQ(parsed->nPriorityArea[3], 4);
    const std::string text = R"({ "AutoTrack" : true, "AutoTrackTime" : 30, "Enable" : true, )"
                             R"("LocateUnlockTime" : 40, "PriorityArea" : [ 1, 2, 3, 4 ] })";
    EXPECT_EQ(Pack(command, *parsed), text);
    Records<CFG_MASTER_SLAVE_CONFIG_INFO> two(2);
    two.Set(0, *parsed);
    two.Set(1, *parsed);
    EXPECT_EQ(PackAll(command, two), "[ " + text + ", " + text + " ]");
}

} // namespace
} // namespace orrery::test
