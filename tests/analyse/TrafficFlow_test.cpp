// Pictures of traffic cameras, flows, pictures sent later, lights over parking spaces.
#include "orrery/traffic_flow.h"
#include "orrery/traffic_snapshot.h"
#include "support/Call.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orrery::test {
namespace {

bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

// ---- "TrafficSnapshot" ---------------------------------------------------------------------------------------------

using Snapshot = CFG_TRAFFICSNAPSHOT_INFO;

constexpr const char* kOsd = R"({"General":"g","OSDAttrScheme":"Every Item","OSDBlackRegion":{"Height":1,
    "OSDPosition":"BOTTOM"},"OSDContentScheme":"CustomizeSort","OSDCustom":"c","OSDCustomizeSort":{"Element":[
    {"Name":"n","NameType":2,"Postfix":"po","Prefix":"pr","Seperater":"s","SeperaterCount":3}]},"OSDOrder":"o",
    "OSDWholeAttr":{"LoneVehicle":true,"NewLine":true,"Position":[4,5],"PositionAsBlackRegion":true},
    "RedLightTimeDisplay":"All"})";
constexpr const char* kWrittenOsd =
    R"({ "General" : "g", "OSDAttrScheme" : "Every Item", "OSDBlackRegion" : { "Height" : 1, )"
    R"("OSDPosition" : "BOTTOM" }, "OSDContentScheme" : "CustomizeSort", "OSDCustom" : "c", )"
    R"("OSDCustomizeSort" : { "Element" : [ { "Name" : "n", "NameType" : 2, "Postfix" : "po", "Prefix" : "pr", )"
    R"("Seperater" : "s", "SeperaterCount" : 3 } ] }, "OSDOrder" : "o", "OSDWholeAttr" : { "LoneVehicle" : true, )"
    R"("NewLine" : true, "Position" : [ 4, 5 ], "PositionAsBlackRegion" : true }, "RedLightTimeDisplay" : "All" })";
constexpr const char* kDetector = R"({"BigCarOverSpeedMargin":6,"BigCarSpeedLimit":[7,8],"BigCarUnderSpeedMargin":9,
    "CarScheme":10,"CoilConfig":[{"DelayFlashID":11,"FlashSerialNum":12,"FlashSerialNum2":13,"FlashSerialNum3":14,
    "RedDirection":15,"TriggerMode":16}],"CoilsDistance":[17,18,19],"CoilsNumber":20,"CoilsWidth":21,"CustomParkNo":"p",
    "DelayMode":22,"DelayTime":23,"DetectBreaking":24,"Direction":"Reverse","DrivingDirection":["Leave","N","S"],
    "DrivingDirection1":["Approach"],"Enable":true,"ErrorRange":25,"MaskRetrograde":26,"OperationType":27,
    "OverPercentage":28,"OverSpeedMargin":29,"RedLightCardNum":30,"RoadType":31,"RoadwayDirection":32,
    "RoadwayNumber":33,"SigScheme":34,"SmallCarSpeedLimit":[35,36],"SnapMode":37,"SpeedCorrection":38.5,
    "SpeedLimitForSize":true,"UnderSpeedMargin":39,"YellowSpeedLimit":40})";
constexpr const char* kWrittenDetector =
    R"({ "BigCarOverSpeedMargin" : 6, "BigCarSpeedLimit" : [ 7, 8 ], "BigCarUnderSpeedMargin" : 9, )"
    R"("CarScheme" : 10, "CoilConfig" : [ { "DelayFlashID" : 11, "FlashSerialNum" : 12, "FlashSerialNum2" : 13, )"
    R"("FlashSerialNum3" : 14, "RedDirection" : 15, "TriggerMode" : 16 } ], "CoilsDistance" : [ 17, 18, 19 ], )"
    R"("CoilsNumber" : 20, "CoilsWidth" : 21, "CustomParkNo" : "p", "DelayMode" : 22, "DelayTime" : 23, )"
    R"("DetectBreaking" : 24, "Direction" : "Reverse", "DrivingDirection" : [ "Leave", "N", "S" ], )"
    R"("DrivingDirection1" : [ "Approach" ], "Enable" : true, "ErrorRange" : 25, "MaskRetrograde" : 26, )"
    R"("OperationType" : 27, "OverPercentage" : 28, "OverSpeedMargin" : 29, "RedLightCardNum" : 30, )"
    R"("RoadType" : 31, "RoadwayDirection" : 32, "RoadwayNumber" : 33, "SigScheme" : 34, )"
    R"("SmallCarSpeedLimit" : [ 35, 36 ], "SnapMode" : 37, "SpeedCorrection" : 38.50000000000000, )"
    R"("SpeedLimitForSize" : true, "UnderSpeedMargin" : 39, "YellowSpeedLimit" : 40 })";

std::string Table(const std::string& detector) {
    return R"({"AdaptiveSpeed":[1,2],"BreakingSnapTimes":{"Normal":3,"U-Turn":4,"PassNotInOrder":5},"CarScheme":6,
        "CarThreShold":7,"CarType":8,"CustomFrameInterval":[9,10],"Detector":)"
           + detector + R"(,"DeviceAddress":"d","FrameMode":11,"KeepAlive":12,"LargeVehicleLengthLevel":[13.5,14.5],
        "LongVehicleLengthLevel":15.5,"MaxSpeed":16,"MediumVehicleLengthLevel":[17.5,18.5],"MergeOSD":{"General":"m"},
        "MergeVideoTitleMask":19,"MergeVideoTitleMask1":20,"MergeVideoTitleMask2":4000000000,
        "MotoVehicleLengthLevel":21.5,"OSD":)"
           + kOsd + R"(,"ParkType":22,"Radar":{"Angle":23,"DetectBreaking":4000000001,"WentOutValue":24},
        "RedLightMargin":25,"RoadwayCode":"r","SigScheme":26,"SmallVehicleLengthLevel":[27.5,28.5],"SnapMode":29,
        "SnapType":30,"TriggerSource":31,"VideoTitleMask":32,"VideoTitleMask1":33,"VideoTitleMask2":34,
        "ValidUntilTime":"2026-01-02 03:04:05","WorkMode":35})";
}

std::unique_ptr<Snapshot> ReadSnapshot(std::unique_ptr<Snapshot> record, const std::string& table,
                                       std::int32_t result = 1) {
    std::uint32_t length = kNoLength;
    const std::string text = R"({"result":false,"params":{"table":)" + table + "}}";
    EXPECT_EQ(CLIENT_ParseData("TrafficSnapshot", text.c_str(), record.get(), sizeof(Snapshot), &length), result)
        << table;
    EXPECT_EQ(length, result == 1 ? sizeof(Snapshot) : kNoLength) << table;
    return record;
}

TEST(TrafficSnapshot, GoesRoundWhole) {
    auto before = Cleared<Snapshot>();
    before->nParkType = 99; // cleared
    before->stuValidUntilTime.dwSize = 28;
    const auto read = ReadSnapshot(std::move(before), Table(kDetector));
    EXPECT_STREQ(read->szDeviceAddress, "d");
    EXPECT_EQ(read->nVideoTitleMask, 32);
    EXPECT_EQ(read->nRedLightMargin, 25);
    EXPECT_EQ(read->fLongVehicleLengthLevel, 15.5f);
    EXPECT_EQ(read->fLargeVehicleLengthLevel[1], 14.5f);
    EXPECT_EQ(read->fMediumVehicleLengthLevel[0], 17.5f);
    EXPECT_EQ(read->fSmallVehicleLengthLevel[1], 28.5f);
    EXPECT_EQ(read->fMotoVehicleLengthLevel, 21.5f);
    EXPECT_EQ(read->stuBreakingSnapTimes.nNormal, 3);
    EXPECT_EQ(read->stuBreakingSnapTimes.nUTurn, 4);
    EXPECT_EQ(read->stuBreakingSnapTimes.nPassNotInOrder, 5);
    EXPECT_EQ(read->nCarScheme, 6);
    EXPECT_EQ(read->nSigScheme, 26);
    EXPECT_EQ(read->nCarType, 8);
    EXPECT_EQ(read->nMaxSpeed, 16);
    EXPECT_EQ(read->nFrameMode, 11);
    EXPECT_EQ(read->nAdaptiveSpeed[1], 2);
    EXPECT_EQ(read->nDetectorNum, 0);
    EXPECT_EQ(read->stuDetector.nRoadwayNumber, 33);
    EXPECT_EQ(read->stuDetector.nDirection, CFG_DETECTOR_REVERSE);
    EXPECT_EQ(read->stuDetector.stuCoilConfig[0].nTriggerMode, 16);
    EXPECT_STREQ(read->stuDetector.szDrivingDirection[2], "S");
    EXPECT_EQ(read->nVideoTitleMask1, 33);
    EXPECT_EQ(read->nMergeVideoTitleMask, 19);
    EXPECT_EQ(read->nMergeVideoTitleMask1, 20);
    EXPECT_EQ(read->nTriggerSource, 31);
    EXPECT_EQ(read->nSnapMode, 29);
    EXPECT_EQ(read->nWorkMode, 35);
    EXPECT_EQ(read->nCarThreShold, 7);
    EXPECT_EQ(read->nSnapType, 30);
    EXPECT_EQ(read->nCustomFrameInterval[1], 10);
    EXPECT_EQ(read->nCustomFrameInterval[2], 0);
    EXPECT_EQ(read->nKeepAlive, 12);
    EXPECT_EQ(read->stuOSD.nBlackRegionPosition, CFG_OSD_BAR_BOTTOM);
    EXPECT_EQ(read->stuOSD.stuElements[0].nSeperaterCount, 3);
    EXPECT_STREQ(read->stuMergeOSD.szGeneral, "m");
    EXPECT_EQ(read->stuValidUntilTime.stuTime.dwYear, 2026);
    EXPECT_EQ(read->stuRadar.nAngle, 23);
    EXPECT_EQ(read->stuRadar.nDetectBreaking, 4000000001u);
    EXPECT_EQ(read->stuRadar.nWentOutValue, 24);
    EXPECT_STREQ(read->szRoadwayCode, "r");
    EXPECT_EQ(read->nVideoTitleMask2, 34u);
    EXPECT_EQ(read->nMergeVideoTitleMask2, 4000000000u);
    EXPECT_EQ(read->nParkType, 22);
    EXPECT_EQ(read->bVersionFlag, 1);
    const std::string text = Pack("TrafficSnapshot", *read);
    EXPECT_TRUE(text.starts_with(R"({ "AdaptiveSpeed" : [ 1, 2 ], "BreakingSnapTimes" : { "Backing" : 0, )"
                                 R"("CrossLane" : 0, )"));
    EXPECT_TRUE(Has(text, std::string(R"("CarScheme" : 6, "CarThreShold" : 7, "CarType" : 8, )"
                                      R"("CustomFrameInterval" : [ 9, 10, 0 ], "Detector" : )")
                              + kWrittenDetector + R"(, "DeviceAddress" : "d", "EventHandler" : { )"));
    EXPECT_TRUE(Has(text, R"("FrameMode" : 11, "KeepAlive" : 12, )"
                          R"("LargeVehicleLengthLevel" : [ 13.50000000000000, 14.50000000000000 ], )"
                          R"("LongVehicleLengthLevel" : 15.50000000000000, "MaxSpeed" : 16, )"
                          R"("MediumVehicleLengthLevel" : [ 17.50000000000000, 18.50000000000000 ], "MergeOSD" : { )"));
    EXPECT_TRUE(Has(text, std::string(R"("MergeVideoTitleMask" : 19, "MergeVideoTitleMask1" : 20, )"
                                      R"("MergeVideoTitleMask2" : 4000000000, )"
                                      R"("MotoVehicleLengthLevel" : 21.50000000000000, "OSD" : )")
                              + kWrittenOsd
                              + R"(, "ParkType" : 22, "Radar" : { "Angle" : 23, "AntiJammingValue" : 0, )"
                                R"("ComeInValue" : 0, "ComeOutValue" : 0, "DelayTime" : 0, )"
                                R"("DetectBreaking" : 4000000001, "DetectMode" : 0, "InstallMode" : 0, "Level" : 0, )"
                                R"("MultiTargetFilter" : 0, "WentEndValue" : 0, "WentInValue" : 0, )"
                                R"("WentOutValue" : 24 }, "RedLightMargin" : 25, "RoadwayCode" : "r", )"
                                R"("SigScheme" : 26, )"
                                R"("SmallVehicleLengthLevel" : [ 27.50000000000000, 28.50000000000000 ], )"
                                R"("SnapMode" : 29, "SnapType" : 30, "TriggerSource" : 31, )"
                                R"("ValidUntilTime" : "2026-01-02 03:04:05", "VideoTitleMask" : 32, )"
                                R"("VideoTitleMask1" : 33, "VideoTitleMask2" : 34, "WorkMode" : 35 })"));
}

TEST(TrafficSnapshot, SnapTimesHaveTheirKeys) {
    const char* const keys[] = {"Normal",
                                "RunRedLight",
                                "OverLine",
                                "OverYellowLine",
                                "Retrograde",
                                "UnderSpeed",
                                "OverSpeed",
                                "WrongRunningRoute",
                                "YellowInRoute",
                                "SpecialRetrograde",
                                "TurnLeft",
                                "TurnRight",
                                "CrossLane",
                                "U-Turn",
                                "Parking",
                                "WaitingArea",
                                "WrongRoute",
                                "ParkingSpaceParking",
                                "ParkingSpaceNoParking",
                                "RunYellowLight",
                                "Stay",
                                "PedestrainPriority",
                                "VehicleInBusRoute",
                                "Backing",
                                "OverStopLine",
                                "ParkingOnYellowBox",
                                "RestrictedPlate",
                                "NoPassing",
                                "WithoutSafeBelt",
                                "DriverSmoking",
                                "DriverCalling",
                                "PedestrianRunRedLight",
                                "PassNotInOrder"};
    std::string members;
    std::int32_t number = 0;
    for (const char* key : keys)
        members += std::string(members.empty() ? "\"" : ",\"") + key + "\":" + std::to_string(++number);
    const auto read = ReadSnapshot(Cleared<Snapshot>(), "{\"BreakingSnapTimes\":{" + members + "}}");
    std::int32_t times[33];
    static_assert(sizeof times == sizeof(CFG_BREAKING_SNAP_TIMES));
    std::memcpy(times, &read->stuBreakingSnapTimes, sizeof times);
    const std::string text = Pack("TrafficSnapshot", *read);
    for (std::int32_t i = 0; i < 33; ++i) {
        EXPECT_EQ(times[i], i + 1) << keys[i];
        EXPECT_TRUE(Has(text, std::string("\"") + keys[i] + "\" : " + std::to_string(i + 1))) << keys[i];
    }
}

TEST(TrafficSnapshot, ARadarHasItsKeys) {
    const char* const keys[] = {"Angle",       "AntiJammingValue",  "ComeInValue",  "ComeOutValue",
                                "DelayTime",   "DetectBreaking",    "DetectMode",   "InstallMode",
                                "Level",       "MultiTargetFilter", "WentEndValue", "WentInValue",
                                "WentOutValue"};
    std::string members, written;
    std::int32_t number = 0;
    for (const char* key : keys) {
        const std::string value = std::to_string(++number);
        members += std::string(members.empty() ? "\"" : ",\"") + key + "\":" + value;
        written += std::string(written.empty() ? "\"" : ", \"") + key + "\" : " + value;
    }
    const auto read = ReadSnapshot(Cleared<Snapshot>(), "{\"Radar\":{" + members + "}}");
    std::int32_t values[13];
    static_assert(sizeof values == sizeof(CFG_RADAR_INFO));
    std::memcpy(values, &read->stuRadar, sizeof values);
    for (std::int32_t i = 0; i < 13; ++i)
        EXPECT_EQ(values[i], i + 1) << keys[i];
    EXPECT_TRUE(Has(Pack("TrafficSnapshot", *read), "\"Radar\" : { " + written + " }"));
}

TEST(TrafficSnapshot, ADetectorMayBeAList) {
    auto read = ReadSnapshot(Cleared<Snapshot>(), R"({"Detector":[{"SnapMode":1},{"SnapMode":2}]})");
    EXPECT_EQ(read->nDetectorNum, 2);
    EXPECT_EQ(read->stuDetectors[1].nSnapMode, 2);
    EXPECT_EQ(read->stuDetector.nSnapMode, 0);
    EXPECT_TRUE(Has(Pack("TrafficSnapshot", *read), R"("Detector" : [ { "BigCar)"));
    read->bVersionFlag = 0;
    EXPECT_TRUE(Has(Pack("TrafficSnapshot", *read), R"("Detector" : { "BigCar)"));
    std::string nine = "{}";
    for (int i = 1; i < 9; ++i)
        nine += ",{\"CoilConfig\":[{},{},{},{}]}";
    read = ReadSnapshot(Cleared<Snapshot>(), "{\"Detector\":[" + nine + "]}");
    EXPECT_EQ(read->nDetectorNum, 8);
    EXPECT_EQ(read->stuDetectors[7].nCoilConfigNum, 3);
}

TEST(TrafficSnapshot, PartsOfAnotherTypeRefuse) {
    for (const char* part : {"BreakingSnapTimes", "Radar", "Detector"}) {
        for (const char* other : {"7", "\"x\"", "true"})
            ReadSnapshot(Cleared<Snapshot>(), std::string("{\"") + part + "\":" + other + "}", 0);
        ReadSnapshot(Cleared<Snapshot>(), std::string("{\"") + part + "\":[]}", part[0] == 'D' ? 1 : 0);
        ReadSnapshot(Cleared<Snapshot>(), std::string("{\"") + part + "\":null}");
    }
    ReadSnapshot(Cleared<Snapshot>(), "null", 0);
}

TEST(TrafficSnapshot, TheDateIsReadTheSecondTime) {
    const char* const table = R"({"ValidUntilTime":"2026-01-02 03:04:05"})";
    auto read = ReadSnapshot(Cleared<Snapshot>(), table);
    EXPECT_EQ(read->stuValidUntilTime.dwSize, 28u);
    EXPECT_EQ(read->stuValidUntilTime.stuTime.dwYear, 0);
    read = ReadSnapshot(std::move(read), table);
    EXPECT_EQ(read->stuValidUntilTime.stuTime.dwDay, 2);
    read = ReadSnapshot(std::move(read), "{}");
    EXPECT_EQ(read->stuValidUntilTime.stuTime.dwDay, 2);
    read->stuValidUntilTime.dwSize = 0;
    EXPECT_FALSE(Has(Pack("TrafficSnapshot", *read), "ValidUntilTime"));
}

TEST(TrafficSnapshot, CodesGoBothWays) {
    struct Case {
        const char* outer;
        const char* key;
        const char* texts[2];
        std::int32_t CFG_TRAFFIC_OSD_INFO::*member;
    };
    for (const Case& one : {
             Case{R"("OSDBlackRegion":{)",
                  "OSDPosition",
                  {"TOP", "BOTTOM"},
                  &CFG_TRAFFIC_OSD_INFO::nBlackRegionPosition},
             Case{"", "OSDAttrScheme", {"Whole", "Every Item"}, &CFG_TRAFFIC_OSD_INFO::nOSDAttrScheme},
             Case{"", "OSDContentScheme", {"Mask", "CustomizeSort"}, &CFG_TRAFFIC_OSD_INFO::nOSDContentScheme},
             Case{"", "RedLightTimeDisplay", {"Last", "All"}, &CFG_TRAFFIC_OSD_INFO::nRedLightTimeDisplay},
         }) {
        const auto read = [&](std::string text) {
            text = std::string("{\"OSD\":{") + one.outer + "\"" + one.key + "\":\"" + text + "\""
                   + (one.outer[0] != '\0' ? "}" : "") + "}}";
            return ReadSnapshot(Cleared<Snapshot>(), text);
        };
        for (std::int32_t code = 0; code < 2; ++code) {
            const auto record = read(one.texts[code]);
            EXPECT_EQ(record->stuOSD.*one.member, code) << one.texts[code];
            EXPECT_TRUE(Has(Pack("TrafficSnapshot", *record),
                            std::string("\"") + one.key + "\" : \"" + one.texts[code] + "\""));
        }
        EXPECT_EQ(read("Neither")->stuOSD.*one.member, 0);
        auto beyond = Cleared<Snapshot>();
        beyond->stuOSD.*one.member = 2;
        beyond->stuMergeOSD.*one.member = -1;
        EXPECT_FALSE(Has(Pack("TrafficSnapshot", *beyond), one.key));
    }
    EXPECT_EQ(ReadSnapshot(Cleared<Snapshot>(), R"({"Detector":{"Direction":"reverse"}})")->stuDetector.nDirection, 1);
    EXPECT_EQ(ReadSnapshot(Cleared<Snapshot>(), R"({"Detector":{"Direction":"Obverse"}})")->stuDetector.nDirection, 0);
    EXPECT_EQ(ReadSnapshot(Cleared<Snapshot>(), R"({"OSD":{"OSDAttrScheme":"EVERY ITEM"}})")->stuOSD.nOSDAttrScheme, 1);
}

// ---- "TrafficSnapshotNew" ------------------------------------------------------------------------------------------

TEST(TrafficSnapshotNew, TenAreToldAndEightAreRead) {
    using New = CFG_TRAFFICSNAPSHOT_NEW_INFO;
    std::string list = "[null";
    for (int i = 1; i < 10; ++i)
        list += ",{\"ParkType\":" + std::to_string(i) + "}";
    const auto parsed = Parse<New>("TrafficSnapshotNew", list + "]");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(New));
    EXPECT_EQ(parsed->nCount, 10);
    EXPECT_EQ(parsed->stuSnapshots[0].nParkType, 0);
    EXPECT_EQ(parsed->stuSnapshots[7].nParkType, 7);
    EXPECT_EQ(parsed->stuSnapshots[7].bVersionFlag, 1);
    const std::string text = Pack("TrafficSnapshotNew", *parsed);
    EXPECT_TRUE(Has(text, "\"ParkType\" : 7"));
    EXPECT_FALSE(Has(text, "\"ParkType\" : 8"));
    EXPECT_EQ(Pack("TrafficSnapshotNew", *Cleared<New>()), "[  ]");
    // What is not read does not refuse.
    const auto bad = Parse<New>("TrafficSnapshotNew", R"([{},{},{},{},{},{},{},{"ParkType":8},{"Radar":7}])");
    ASSERT_TRUE(bad);
    EXPECT_EQ(bad->nCount, 9);
    EXPECT_EQ(bad->stuSnapshots[7].nParkType, 8);
    EXPECT_FALSE(Parse<New>("TrafficSnapshotNew", R"([{},{},{},{},{},{},{},{"Radar":7}])"));
    for (const char* table : {"{}", "null", "7", R"([{"Radar":7}])", R"([{},{"Detector":"x"}])"})
        EXPECT_FALSE(Parse<New>("TrafficSnapshotNew", table)) << table;
}

TEST(TrafficSnapshotNew, ABufferOfSixteenBytesIsADescriptor) {
    std::vector<Snapshot> snapshots(3);
    Records<CFG_TRAFFICSNAPSHOT_DESCRIPTOR> record(1);
    const auto describe = [&](std::int32_t most, std::int32_t used) { record.Set(0, {snapshots.data(), most, used}); };
    describe(2, 9);
    ASSERT_EQ(ParseTable("TrafficSnapshotNew", R"([{"ParkType":1},{"ParkType":2},{"ParkType":3}])", record),
              (Answer{1, 16}));
    EXPECT_EQ(record[0].nReturned, 2);
    EXPECT_EQ(snapshots[0].nParkType, 1);
    EXPECT_EQ(snapshots[1].nParkType, 2);
    EXPECT_EQ(snapshots[1].bVersionFlag, 1);
    EXPECT_EQ(snapshots[2].nParkType, 0);
    ASSERT_EQ(ParseTable("TrafficSnapshotNew", R"({"ParkType":4})", record), (Answer{1, 16}));
    EXPECT_EQ(record[0].nReturned, 1);
    EXPECT_EQ(snapshots[0].nParkType, 4);
    ASSERT_EQ(ParseTable("TrafficSnapshotNew", R"({"ParkType":5,"SnapMode":6,"SnapType":7})", record), (Answer{1, 16}));
    EXPECT_EQ(record[0].nReturned, 2); // members, up to the room
    EXPECT_EQ(snapshots[1].nParkType, 2);
    describe(1, 0);
    const std::string one = PackAll("TrafficSnapshotNew", record);
    EXPECT_TRUE(one.starts_with("[ { \"AdaptiveSpeed\"") && Has(one, "\"ParkType\" : 5"));
    EXPECT_FALSE(Has(one, "\"ParkType\" : 2"));
    describe(2, 0); // what was returned does not count
    EXPECT_TRUE(Has(PackAll("TrafficSnapshotNew", record), "\"ParkType\" : 2"));
    record.Set(0, {nullptr, 2, 2});
    EXPECT_EQ(PackAll("TrafficSnapshotNew", record), "[  ]");
    ASSERT_EQ(ParseTable("TrafficSnapshotNew", "[{}]", record), (Answer{1, 16}));
    EXPECT_EQ(record[0].nReturned, 1); // told all the same
    EXPECT_EQ(ParseTable("TrafficSnapshotNew", "null", record), kRefused);
    describe(2, 9);
    EXPECT_EQ(ParseTable("TrafficSnapshotNew", R"([{"ParkType":6},{"Radar":7}])", record), kRefused);
    EXPECT_EQ(ParseTable("TrafficSnapshotNew", R"({"ParkType":6,"Radar":7})", record), kRefused);
    EXPECT_EQ(record[0].nReturned, 9);
    EXPECT_EQ(snapshots[0].nParkType, 5);
    // An element behind the room is not read, and does not refuse.
    ASSERT_EQ(ParseTable("TrafficSnapshotNew", R"([{"ParkType":6},{},{"Radar":7}])", record), (Answer{1, 16}));
    EXPECT_EQ(record[0].nReturned, 2);
    EXPECT_EQ(snapshots[0].nParkType, 6);
    describe(-1, 9);
    ASSERT_EQ(ParseTable("TrafficSnapshotNew", R"([{"Radar":7}])", record), (Answer{1, 16}));
    EXPECT_EQ(record[0].nReturned, 0);
    EXPECT_EQ(snapshots[0].nParkType, 6);
    EXPECT_EQ(PackAll("TrafficSnapshotNew", record), "[  ]");
    const Records<char> other(17);
    EXPECT_EQ(ParseTable("TrafficSnapshotNew", "[]", other), kRefused);
}

// ---- "TrafficFlowStat" ---------------------------------------------------------------------------------------------

using Stat = CFG_TRAFFICFLOWSTAT_INFO;

std::unique_ptr<Stat> ReadStat(std::unique_ptr<Stat> record, const std::string& table) {
    std::uint32_t length = kNoLength;
    const std::string text = R"({"result":false,"params":{"table":)" + table + "}}";
    EXPECT_EQ(CLIENT_ParseData("TrafficFlowStat", text.c_str(), record.get(), sizeof(Stat), &length), 1);
    EXPECT_EQ(length, sizeof(Stat));
    return record;
}

TEST(TrafficFlowStat, ALineOfAnotherTypeIsThereAllTheSame) {
    const auto read =
        ReadStat(Cleared<Stat>(), R"({"Config":[{"DetectLine":7},{"DetectLine":[]},{"DetectLine":null}]})");
    EXPECT_EQ(read->stuConfigs[0].abDetectLine, 1);
    EXPECT_EQ(read->stuConfigs[0].stuDetectLine[0].nX, 0);
    EXPECT_EQ(read->stuConfigs[1].abDetectLine, 1);
    EXPECT_EQ(read->stuConfigs[2].abDetectLine, 0);
}

TEST(TrafficFlowStat, GoesRoundWhole) {
    std::string day = "\"1 01:00:00-02:00:00\"";
    for (int i = 2; i < 12; ++i)
        day += ",\"" + std::to_string(i) + " 01:00:00-02:00:00\"";
    const std::string handler = "\"EventHandler\":{\"BeepEnable\":true,\"TimeSection\":[[" + day + "]]}";
    const auto read =
        ReadStat(Cleared<Stat>(), R"({"Config":[{"DetectLine":[[1,2],[3,4],[5,6]],"DetectRegion":[[7,8]],
        "Enable":true,"FlowLowerAlarm":{"Limit":9,)"
                                      + handler + R"(},"FlowUpperAlarm":{"Delay":10,"Enable":true,)" + handler
                                      + R"(,"Interval":11,"Limit":12,"Period":13,"ReportTimes":14,"Restore":15},
        "PresetID":16,"StatName":"s"},{}],"Period":17})");
    EXPECT_EQ(read->abPeriod, 1);
    EXPECT_EQ(read->nPeriod, 17);
    EXPECT_EQ(read->nConfigNum, 2);
    const CFG_TRAFFICFLOW_LANE& lane = read->stuConfigs[0];
    EXPECT_EQ(lane.abEnable, 1);
    EXPECT_EQ(lane.bEnable, 1);
    EXPECT_EQ(lane.stuUpperAlarm.bEnable, 1);
    EXPECT_EQ(lane.stuUpperAlarm.nPeriod, 13);
    EXPECT_EQ(lane.stuUpperAlarm.nLimit, 12);
    EXPECT_EQ(lane.stuUpperAlarm.nRestore, 15);
    EXPECT_EQ(lane.stuUpperAlarm.nDelay, 10);
    EXPECT_EQ(lane.stuUpperAlarm.nInterval, 11);
    EXPECT_EQ(lane.stuUpperAlarm.nReportTimes, 14);
    EXPECT_EQ(lane.stuUpperAlarm.stuTimeSection[0][9].dwMask, 10);
    EXPECT_EQ(lane.stuUpperAlarm.stuTimeSection[1][0].dwMask, 0);
    EXPECT_EQ(lane.stuUpperAlarm.stuEventHandler.bBeepEnable, 1);
    EXPECT_EQ(lane.stuLowerAlarm.nLimit, 9);
    EXPECT_EQ(lane.stuLowerAlarm.stuTimeSection[0][5].dwMask, 6);
    EXPECT_EQ(lane.stuLowerAlarm.stuTimeSection[0][6].dwMask, 0); // six are read
    EXPECT_EQ(lane.nDetectRegionPoint, 1);
    EXPECT_EQ(lane.stuDetectRegion[0].nY, 8);
    EXPECT_STREQ(lane.szStatName, "s");
    EXPECT_EQ(lane.nPresetId, 16);
    EXPECT_EQ(lane.abDetectLine, 1);
    EXPECT_EQ(lane.stuDetectLine[1].nX, 3);
    EXPECT_EQ(read->stuConfigs[1].abEnable, 0);
    EXPECT_EQ(read->stuConfigs[1].abDetectLine, 0);
    const std::string text = Pack("TrafficFlowStat", *read);
    EXPECT_TRUE(text.starts_with(R"({ "Config" : [ { "DetectLine" : [ [ 1, 2 ], [ 3, 4 ] ], )"
                                 R"("DetectRegion" : [ [ 7, 8 ] ], "Enable" : true, "FlowLowerAlarm" : { "Delay" : 0, )"
                                 R"("Enable" : false, "EventHandler" : { )"));
    EXPECT_TRUE(Has(text, R"("TimeSection" : [ [ "1 01:00:00-02:00:00", "2 01:00:00-02:00:00", )"
                          R"("3 01:00:00-02:00:00", "4 01:00:00-02:00:00", "5 01:00:00-02:00:00", )"
                          R"("6 01:00:00-02:00:00", "0 00:00:00-00:00:00", )"));
    EXPECT_TRUE(Has(text, R"("9 01:00:00-02:00:00", "10 01:00:00-02:00:00" ], [ "0 00:00:00-00:00:00", )"));
    EXPECT_TRUE(Has(text, R"("Interval" : 11, "Limit" : 12, "Period" : 13, "ReportTimes" : 14, "Restore" : 15 }, )"
                          R"("PresetID" : 16, "StatName" : "s" }, )"));
    EXPECT_TRUE(text.ends_with(R"("PresetID" : 0, "StatName" : "" } ], "Period" : 17 })"));
    EXPECT_EQ(Pack("TrafficFlowStat", *Cleared<Stat>()), "null");
}

TEST(TrafficFlowStat, LanesBehindTheEighthGoToTheCaller) {
    std::string lanes = "{\"PresetID\":1}";
    for (int i = 2; i <= 11; ++i)
        lanes += ",{\"PresetID\":" + std::to_string(i) + "}";
    const std::string table = "{\"Config\":[" + lanes + "]}";
    auto stat = ReadStat(Cleared<Stat>(), table);
    EXPECT_EQ(stat->nConfigNum, 8);
    EXPECT_EQ(stat->nExtraNum, 0);
    EXPECT_EQ(stat->stuConfigs[7].nPresetId, 8);
    std::vector<CFG_TRAFFICFLOW_LANE> extra(3);
    extra[0].abEnable = 7; // cleared
    stat->nExtraMax = 2;
    stat->pExtraConfigs = extra.data();
    stat->nPeriod = 99; // cleared too
    stat = ReadStat(std::move(stat), table);
    EXPECT_EQ(stat->nExtraMax, 2);
    EXPECT_EQ(stat->pExtraConfigs, extra.data());
    EXPECT_EQ(stat->nExtraNum, 2);
    EXPECT_EQ(stat->nPeriod, 0);
    EXPECT_EQ(extra[0].nPresetId, 9);
    EXPECT_EQ(extra[0].abEnable, 0);
    EXPECT_EQ(extra[1].nPresetId, 10);
    EXPECT_EQ(extra[2].nPresetId, 0);
    std::string text = Pack("TrafficFlowStat", *stat);
    EXPECT_LT(text.find("\"PresetID\" : 8,"), text.find("\"PresetID\" : 10,"));
    EXPECT_FALSE(Has(text, "\"PresetID\" : 11,"));
    stat->nExtraNum = 5; // no more than there is room for
    EXPECT_EQ(Pack("TrafficFlowStat", *stat), text);
    stat->nConfigNum = 7;
    EXPECT_FALSE(Has(Pack("TrafficFlowStat", *stat), "\"PresetID\" : 9,"));
    stat->nExtraMax = -1;
    stat = ReadStat(std::move(stat), table);
    EXPECT_EQ(stat->nExtraNum, 0);
    stat->nExtraMax = 2;
    stat->pExtraConfigs = nullptr;
    stat = ReadStat(std::move(stat), table);
    EXPECT_EQ(stat->nConfigNum, 8);
    EXPECT_EQ(stat->nExtraNum, 0);
    stat->nExtraNum = 2;
    EXPECT_TRUE(Has(Pack("TrafficFlowStat", *stat), "\"PresetID\" : 8,"));
    EXPECT_FALSE(Has(Pack("TrafficFlowStat", *stat), "\"PresetID\" : 9,"));
    stat = ReadStat(std::move(stat), R"({"Config":7})");
    EXPECT_EQ(stat->nConfigNum, 0);
    EXPECT_FALSE(Parse<Stat>("TrafficFlowStat", "null"));
}

// ---- "TrafficTransferOffline"
// ----------------------------------------------------------------------------------------

TEST(TrafficTransferOffline, GoesRoundWhole) {
    using Offline = CFG_TRANSFEROFFLINE_INFO;
    const auto read = [](const std::string& table) { return Parse<Offline>("TrafficTransferOffline", table); };
    const auto whole = read(R"({"Addresses":["10.0.0.1","10.0.0.2"],"ClientID":["m"],"Enable":true,"Type":"MAC"})");
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->bEnable, 1);
    EXPECT_EQ(whole->nType, CFG_OFFLINE_BY_MAC);
    EXPECT_EQ(whole->nIpNum, 2);
    EXPECT_STREQ(whole->szIpAddresses[1], "10.0.0.2");
    EXPECT_EQ(whole->nMacNum, 1);
    EXPECT_STREQ(whole->szMacAddresses[0], "m");
    EXPECT_EQ(Pack("TrafficTransferOffline", *whole),
              R"({ "Addresses" : [ "10.0.0.1", "10.0.0.2" ], "ClientID" : [ "m" ], "Enable" : true, "Type" : "MAC" })");
    EXPECT_EQ(read(R"({"Type":"mac"})")->nType, CFG_OFFLINE_BY_MAC);
    EXPECT_EQ(read(R"({"Type":"IPADDR"})")->nType, CFG_OFFLINE_BY_ADDRESS);
    EXPECT_EQ(read(R"({"Type":"NAME"})")->nType, CFG_OFFLINE_BY_ADDRESS);
    EXPECT_EQ(Pack("TrafficTransferOffline", *Cleared<Offline>()), R"({ "Enable" : false, "Type" : "IPADDR" })");
    auto other = Cleared<Offline>();
    other->nType = 2;
    EXPECT_EQ(Pack("TrafficTransferOffline", *other), R"({ "Enable" : false })");
    const auto none = read(R"({"Addresses":"10.0.0.1","ClientID":{"a":"b"}})");
    EXPECT_EQ(none->nIpNum, 0);
    EXPECT_EQ(none->nMacNum, 0);
    std::string eleven = "\"0\"";
    for (int i = 1; i < 11; ++i)
        eleven += ",\"" + std::to_string(i) + "\"";
    const auto most = read("{\"Addresses\":[" + eleven + "],\"ClientID\":[" + eleven + "]}");
    EXPECT_EQ(most->nIpNum, 10);
    EXPECT_STREQ(most->szIpAddresses[9], "9");
    EXPECT_EQ(most->nMacNum, 10);
    EXPECT_FALSE(read("null"));
}

// ---- "ParkingSpaceLightState"
// ----------------------------------------------------------------------------------------

TEST(ParkingSpaceLightState, GoesRoundWhole) {
    using Lights = CFG_PARKINGSPACELIGHT_INFO;
    const auto parsed = Parse<Lights>("ParkingSpaceLightState", R"({"NetworkException":{"NetPortAbort":{"Red":1}},
        "SpaceFree":{"Blue":2,"GREEN":3,"Pink":4,"Purple":5,"Red":6,"White":7,"Yellow":8,"Black":9},
        "SpaceFull":{"Red":10},"SpaceOrder":{"Yellow":11},"SpaceOverLine":{"White":300},
        "SpaceSpecial":[{"Pink":12},{},{"Green":13},{},{"Red":14}]})");
    ASSERT_TRUE(parsed);
    const std::uint8_t free[] = {6, 8, 2, 3, 5, 7, 4, 0};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(parsed->stuSpaceFree.byColors[i], free[i]) << i;
    EXPECT_EQ(parsed->stuSpaceFull.byColors[CFG_SPACE_LIGHT_RED], 10);
    EXPECT_EQ(parsed->stuSpaceOrder.byColors[CFG_SPACE_LIGHT_YELLOW], 11);
    EXPECT_EQ(parsed->stuSpaceOverLine.byColors[CFG_SPACE_LIGHT_WHITE], 300 - 256);
    EXPECT_EQ(parsed->nSpaceSpecialNum, 4);
    EXPECT_EQ(parsed->stuSpaceSpecial[0].byColors[CFG_SPACE_LIGHT_PINK], 12);
    EXPECT_EQ(parsed->stuSpaceSpecial[2].byColors[CFG_SPACE_LIGHT_GREEN], 13);
    EXPECT_EQ(parsed->stuNetPortAbort.byColors[CFG_SPACE_LIGHT_RED], 1);
    auto record = Cleared<Lights>();
    record->stuSpaceFree = parsed->stuSpaceFree;
    record->nSpaceSpecialNum = 1;
    record->stuSpaceSpecial[0].byColors[7] = 15; // no colour
    constexpr const char* kDark =
        R"({ "Blue" : 0, "Green" : 0, "Pink" : 0, "Purple" : 0, "Red" : 0, "White" : 0, "Yellow" : 0 })";
    EXPECT_EQ(Pack("ParkingSpaceLightState", *record),
              std::string(R"({ "NetworkException" : { "NetPortAbort" : )") + kDark
                  + R"( }, "SpaceFree" : { "Blue" : 2, "Green" : 3, "Pink" : 4, "Purple" : 5, "Red" : 6, "White" : 7, )"
                    R"("Yellow" : 8 }, "SpaceFull" : )"
                  + kDark + R"(, "SpaceOrder" : )" + kDark + R"(, "SpaceOverLine" : )" + kDark
                  + R"(, "SpaceSpecial" : [ )" + kDark + " ] }");
    EXPECT_FALSE(Parse<Lights>("ParkingSpaceLightState", "null"));
}

TEST(ParkingSpaceLightState, EightColoursAreTakenInTheOrderOfTheirNames) {
    // Ten spellings of colours, and names that are none and take no place.
    const auto parsed = Parse<CFG_PARKINGSPACELIGHT_INFO>("ParkingSpaceLightState", R"({"SpaceFree":{"A":1,"BLUE":2,
        "Blue":3,"GREEN":4,"Green":5,"Grey":6,"PINK":7,"Pink":8,"RED":9,"Red":10,"WHITE":11,"Yellow":12}})");
    const std::uint8_t colors[] = {10, 0, 3, 5, 0, 0, 8, 0};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(parsed->stuSpaceFree.byColors[i], colors[i]) << i;
}

} // namespace
} // namespace orrery::test
