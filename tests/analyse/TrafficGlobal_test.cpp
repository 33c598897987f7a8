// Settings of all rules of a traffic camera.
#include "orrery/traffic_global.h"
#include "support/Call.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orrery::test {
namespace {

using Global = CFG_TRAFFICGLOBAL_INFO;
constexpr const char* kCommand = "TrafficGlobal";

std::unique_ptr<Global> ReadInto(std::unique_ptr<Global> record, const std::string& table, std::int32_t result = 1) {
    std::uint32_t length = kNoLength;
    const std::string text = R"({"result":false,"params":{"table":)" + table + "}}";
    EXPECT_EQ(CLIENT_ParseData(kCommand, text.c_str(), record.get(), sizeof(Global), &length), result) << table;
    EXPECT_EQ(length, result == 1 ? sizeof(Global) : kNoLength) << table;
    return record;
}
std::unique_ptr<Global> Read(const std::string& table) {
    auto record = Cleared<Global>();
    std::memset(static_cast<void*>(record.get()), 0x11, sizeof(Global)); // cleared but for the dates
    return ReadInto(std::move(record), table);
}
std::string Written(const Global& record) {
    return Pack(kCommand, record);
}
bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

// The object under "ViolationCode" of a clear record, key by key.
std::string ClearCodes() {
    std::string text;
    for (const char* key : {"Backing",
                            "BackingDesc",
                            "BackingShowName",
                            "CrossLane",
                            "CrossLaneDesc",
                            "CrossLaneShowName",
                            "DriverCalling",
                            "DriverCallingDesc",
                            "DriverCallingShowName",
                            "DriverSmoking",
                            "DriverSmokingDesc",
                            "DriverSmokingShowName",
                            "DrivingOnShoulder",
                            "DrivingOnShoulderDesc",
                            "FakePlate",
                            "FakePlateDesc",
                            "Jam",
                            "JamDesc",
                            "NoPassing",
                            "NoPassingDesc",
                            "OverLine",
                            "OverLineDesc",
                            "OverLineShowName",
                            "OverSpeed",
                            "OverSpeedDesc",
                            "OverSpeedHighway",
                            "OverSpeedHighwayDesc",
                            "OverYellowLine",
                            "OverYellowLineDesc",
                            "Parking",
                            "ParkingDesc",
                            "ParkingShowName",
                            "ParkingSpaceNoParking",
                            "ParkingSpaceNoParkingDesc",
                            "ParkingSpaceParking",
                            "ParkingSpaceParkingDesc",
                            "Passing",
                            "PassingDesc",
                            "PedestrianRunRedLight",
                            "PedestrianRunRedLightDesc",
                            "PedestrianRunRedLightShowName",
                            "Retrograde",
                            "RetrogradeDesc",
                            "RetrogradeHighway",
                            "RetrogradeHighwayDesc",
                            "RetrogradeShowName",
                            "RunRedLight",
                            "RunRedLightDesc",
                            "TurnLeft",
                            "TurnLeftDesc",
                            "TurnRight",
                            "TurnRightDesc",
                            "U-Turn",
                            "U-TurnDesc",
                            "U-TurnShowName",
                            "UnderSpeed",
                            "UnderSpeedDesc",
                            "VehicleInBusRoute",
                            "VehicleInBusRouteDesc",
                            "VehicleInBusRouteShowName",
                            "WithoutSafeBelt",
                            "WithoutSafeBeltDesc",
                            "WithoutSafeBeltShowName",
                            "WrongRoute",
                            "WrongRouteDesc",
                            "YellowInRoute",
                            "YellowInRouteDesc"}) {
        text += (text.empty() ? "\"" : ", \"") + std::string(key) + "\" : \"\"";
    }
    return "{ " + text + " }";
}

TEST(TrafficGlobal, AClearRecordWritesWhatHasNoFlag) {
    EXPECT_EQ(Written(*Cleared<Global>()), R"({ "EnableRedList" : false, "ViolationCode" : )" + ClearCodes() + " }");
}

TEST(TrafficGlobal, GoesRoundWhole) {
    auto before = Cleared<Global>();
    before->stuValidFrom.dwSize = before->stuValidTo.dwSize = 28;
    const auto global = ReadInto(std::move(before), R"({"Address":"a","Calibration":{"Certificate":"c",
        "PeriodOfValidity":["2026-01-02 03:04:05","2027-06-07 08:09:10"],"Unit":"u"},"EnableBlackList":true,
        "EnableRedList":true,"IsEnableLightState":{"Enable":true},"MixModeConfig":{"Lane":[{"TrafficJam":1},{},
        {"TrafficU_Turn":2}],"LaneDiffEnable":true,"TrafficGate":3},"NamingFormat":{"Format":"n"},
        "Priority":["p1","p2"],"SupportModeMaskConfig":{"VehicleOnSchoolBus":4,"TrafficOverLine":5},
        "TransferPolicy":"SequencePriority","VideoNamingFormat":{"Format":"v"},
        "ViolationTimeSchedule":{"TrafficGate":{"Enable":true,"TimeSchedule":[["1 01:02:03-04:05:06"]]}}})");
    EXPECT_EQ(global->abAddress, 1);
    EXPECT_STREQ(global->szAddress, "a");
    EXPECT_EQ(global->abCalibration, 1);
    EXPECT_STREQ(global->szCertificate, "c");
    EXPECT_STREQ(global->szUnit, "u");
    EXPECT_EQ(global->stuValidFrom.stuTime.dwYear, 2026);
    EXPECT_EQ(global->stuValidFrom.stuTime.dwSecond, 5);
    EXPECT_EQ(global->stuValidTo.stuTime.dwMonth, 6);
    EXPECT_EQ(global->abEnableBlackList, 1);
    EXPECT_EQ(global->bEnableBlackList, 1);
    EXPECT_EQ(global->bEnableRedList, 1);
    EXPECT_EQ(global->abLightState, 1);
    EXPECT_EQ(global->bEnableLightState, 1);
    EXPECT_EQ(global->abMixModeConfig, 1);
    const CFG_MIXMODE_INFO& mixed = global->stuMixModeConfig;
    EXPECT_EQ(mixed.bLaneDiffEnable, 1);
    EXPECT_EQ(mixed.nLaneNum, 3);
    EXPECT_EQ(mixed.stuLanes[0].abTrafficJam, 1);
    EXPECT_EQ(mixed.stuLanes[0].nTrafficJam, 1);
    EXPECT_EQ(mixed.stuLanes[1].abTrafficJam, 0);
    EXPECT_EQ(mixed.stuLanes[2].nTrafficU_Turn, 2);
    EXPECT_EQ(mixed.abTrafficGate, 1);
    EXPECT_EQ(mixed.nTrafficGate, 3);
    EXPECT_EQ(mixed.abTrafficJam, 0);
    EXPECT_STREQ(global->szNamingFormat, "n");
    EXPECT_STREQ(global->szVideoNamingFormat, "v");
    EXPECT_EQ(global->abPriority, 1);
    EXPECT_EQ(global->nPriorityNum, 2);
    EXPECT_STREQ(global->szPriority[1], "p2");
    EXPECT_EQ(global->abSupportModeMask, 1);
    EXPECT_EQ(global->stuSupportModeMask.nVehicleOnSchoolBus, 4);
    EXPECT_EQ(global->stuSupportModeMask.nTrafficOverLine, 5);
    EXPECT_EQ(global->nTransferPolicy, CFG_TRANSFER_SEQUENCE);
    EXPECT_EQ(global->stuViolationSchedule.abTrafficGate, 1);
    EXPECT_EQ(global->stuViolationSchedule.stuTrafficGate.bEnable, 1);
    EXPECT_EQ(global->stuViolationSchedule.stuTrafficGate.stuTimeSchedule[0][0].nEndHour, 4);
    const std::string text = Written(*global);
    EXPECT_EQ(text.substr(0, text.find("\"ViolationCode\"")),
              R"({ "Address" : "a", "Calibration" : { "Certificate" : "c", )"
              R"("PeriodOfValidity" : [ "2026-01-02 03:04:05", "2027-06-07 08:09:10" ], "Unit" : "u" }, )"
              R"("EnableBlackList" : true, "EnableRedList" : true, "IsEnableLightState" : { "Enable" : true }, )"
              R"("MixModeConfig" : { "Lane" : [ { "TrafficJam" : 1 }, null, { "TrafficU_Turn" : 2 } ], )"
              R"("LaneDiffEnable" : true, "TrafficGate" : 3 }, "NamingFormat" : { "Format" : "n" }, )"
              R"("Priority" : [ "p1", "p2" ], )"
              R"("SupportModeMaskConfig" : { "TrafficOverLine" : 5, "VehicleOnSchoolBus" : 4 }, )"
              R"("TransferPolicy" : "SequencePriority", "VideoNamingFormat" : { "Format" : "v" }, )");
    EXPECT_TRUE(Has(text, R"("ViolationTimeSchedule" : { "TrafficGate" : { "Enable" : true, "TimeSchedule" : [ )"
                          R"([ "1 01:02:03-04:05:06", "0 00:00:00-00:00:00",)"));
}

TEST(TrafficGlobal, AllIsClearedButTheDates) {
    const auto global = Read("{}");
    EXPECT_EQ(global->stuValidFrom.dwSize, 0x11111111u);
    EXPECT_EQ(global->stuValidTo.stuTime.dwSecond, 0x11111111);
    auto clear = Cleared<Global>();
    clear->stuValidFrom = global->stuValidFrom;
    clear->stuValidTo = global->stuValidTo;
    EXPECT_EQ(std::memcmp(global.get(), clear.get(), sizeof(Global)), 0);
}

TEST(TrafficGlobal, DatesAreReadTheSecondTime) {
    const char* const table = R"({"Calibration":{"PeriodOfValidity":["2026-01-02 03:04:05","2027-06-07 08:09:10"]}})";
    auto global = ReadInto(Cleared<Global>(), table);
    EXPECT_EQ(global->stuValidFrom.dwSize, 28u);
    EXPECT_EQ(global->stuValidTo.dwSize, 28u);
    EXPECT_EQ(global->stuValidFrom.stuTime.dwYear, 0);
    global = ReadInto(std::move(global), table);
    EXPECT_EQ(global->stuValidFrom.stuTime.dwYear, 2026);
    EXPECT_EQ(global->stuValidTo.stuTime.dwDay, 7);
    EXPECT_TRUE(Has(Written(*global), "PeriodOfValidity"));
    global->stuValidTo.dwSize = 27;
    EXPECT_FALSE(Has(Written(*global), "PeriodOfValidity"));
    global->stuValidTo.dwSize = 28;
    global->abCalibration = 0;
    EXPECT_FALSE(Has(Written(*global), "Calibration"));
    for (const char* dates : {"[]", R"(["2026-01-02 03:04:05"])", R"(["a","b","c"])", "\"x\""}) {
        const auto other =
            ReadInto(Cleared<Global>(), std::string(R"({"Calibration":{"PeriodOfValidity":)") + dates + "}}");
        EXPECT_EQ(other->stuValidFrom.dwSize, 0u) << dates;
        EXPECT_EQ(other->abCalibration, 1) << dates;
    }
}

TEST(TrafficGlobal, PartsOfAnotherTypeRefuse) {
    for (const char* part : {"ViolationCode", "ViolationTimeSchedule", "SupportModeMaskConfig", "MixModeConfig"}) {
        for (const char* other : {"7", "[]", "\"x\"", "true"})
            ReadInto(Cleared<Global>(), std::string("{\"") + part + "\":" + other + "}", 0);
        Read(std::string("{\"") + part + "\":null}");
        Read(std::string("{\"") + part + "\":{}}");
    }
    ReadInto(Cleared<Global>(), "null", 0);
}

TEST(TrafficGlobal, CodesOfViolationsAreReadButForParkingSpaces) {
    std::string members;
    int number = 0;
    for (const char* key :
         {"Retrograde", "RetrogradeDesc", "RetrogradeShowName", "RetrogradeHighway", "U-Turn", "U-TurnDesc",
          "U-TurnShowName", "Jam", "JamDesc", "JamShowName", "ParkingSpaceParking", "ParkingSpaceParkingDesc",
          "ParkingSpaceNoParking", "ParkingSpaceNoParkingDesc", "PedestrianRunRedLightShowName"})
        members += std::string(members.empty() ? "\"" : ",\"") + key + "\":\"v" + std::to_string(++number) + "\"";
    const auto global = Read("{\"ViolationCode\":{" + members + "}}");
    const CFG_VIOLATION_CODE_INFO& codes = global->stuViolationCodes;
    EXPECT_STREQ(codes.szRetrograde, "v1");
    EXPECT_STREQ(codes.szRetrogradeDesc, "v2");
    EXPECT_STREQ(codes.szRetrogradeShowName, "v3");
    EXPECT_STREQ(codes.szRetrogradeHighway, "v4");
    EXPECT_STREQ(codes.szUTurn, "v5");
    EXPECT_STREQ(codes.szUTurnDesc, "v6");
    EXPECT_STREQ(codes.szUTurnShowName, "v7");
    EXPECT_STREQ(codes.szJam, "v8");
    EXPECT_STREQ(codes.szJamDesc, "v9");
    EXPECT_STREQ(codes.szParkingSpaceParking, "");
    EXPECT_STREQ(codes.szParkingSpaceParkingDesc, "");
    EXPECT_STREQ(codes.szParkingSpaceNoParking, "");
    EXPECT_STREQ(codes.szParkingSpaceNoParkingDesc, "");
    EXPECT_STREQ(codes.szPedestrianRunRedLightShowName, "v15");
    auto record = Cleared<Global>();
    std::strcpy(record->stuViolationCodes.szParkingSpaceParking, "17");
    std::strcpy(record->stuViolationCodes.szParkingSpaceNoParkingDesc, "d");
    EXPECT_TRUE(Has(Written(*record), R"("ParkingSpaceParking" : "17")"));
    EXPECT_TRUE(Has(Written(*record), R"("ParkingSpaceNoParkingDesc" : "d")"));
    const auto cut = Read(R"({"ViolationCode":{"Jam":"0123456789abcdefg"}})");
    EXPECT_STREQ(cut->stuViolationCodes.szJam, "0123456789abcde");
}

TEST(TrafficGlobal, AStepEndsWhereTheNextBegins) {
    const auto global = Read(R"({"ViolationCode":{"OverSpeedConfig":[{"Code":"1","Description":"d",
        "SpeedingPercentage":[10,19]},{"SpeedingPercentage":[20]},{"SpeedingPercentage":[0,5]},
        {"SpeedingPercentage":[50,60,70]}],"UnderSpeedConfig":[{},{},{},{},{},{"Code":"6"}],
        "OverSpeedHighwayConfig":{"Code":"x"}}})");
    const CFG_VIOLATION_CODE_INFO& codes = global->stuViolationCodes;
    EXPECT_EQ(codes.nOverSpeedConfigNum, 4);
    EXPECT_STREQ(codes.stuOverSpeedConfig[0].szCode, "1");
    EXPECT_STREQ(codes.stuOverSpeedConfig[0].szDescription, "d");
    EXPECT_EQ(codes.stuOverSpeedConfig[0].nPercentFrom, 10);
    EXPECT_EQ(codes.stuOverSpeedConfig[0].nPercentTo, 19);
    EXPECT_EQ(codes.stuOverSpeedConfig[1].nPercentFrom, 20);
    EXPECT_EQ(codes.stuOverSpeedConfig[1].nPercentTo, 0);
    EXPECT_EQ(codes.stuOverSpeedConfig[3].nPercentTo, 60);
    EXPECT_EQ(codes.nUnderSpeedConfigNum, 5);
    EXPECT_EQ(codes.nOverSpeedHighwayConfigNum, 0);
    EXPECT_TRUE(
        Has(Written(*global),
            R"("OverSpeedConfig" : [ { "Code" : "1", "Description" : "d", "SpeedingPercentage" : [ 10, 20 ] }, )"
            R"({ "Code" : "", "Description" : "", "SpeedingPercentage" : [ 20, -1 ] }, )" // the next begins at 0
            R"({ "Code" : "", "Description" : "", "SpeedingPercentage" : [ 0, 50 ] }, )"
            R"({ "Code" : "", "Description" : "", "SpeedingPercentage" : [ 50, -1 ] } ])"));
    EXPECT_FALSE(Has(Written(*global), "OverSpeedHighwayConfig"));
}

TEST(TrafficGlobal, FiveStepsAreWrittenAtTheMost) {
    auto record = Cleared<Global>();
    CFG_VIOLATION_CODE_INFO& codes = record->stuViolationCodes;
    for (std::int32_t i = 0; i < 5; ++i)
        codes.stuUnderSpeedConfig[i].nPercentFrom = 10 * (i + 1);
    const std::string clear = Written(*record);
    for (const std::int32_t count : {0, -1}) {
        codes.nUnderSpeedConfigNum = count;
        EXPECT_EQ(Written(*record), clear) << count;
    }
    for (const std::int32_t count : {5, 6, 0x7fffffff}) {
        codes.nUnderSpeedConfigNum = count;
        EXPECT_TRUE(Has(Written(*record),
                        R"("UnderSpeedConfig" : [ )"
                        R"({ "Code" : "", "Description" : "", "SpeedingPercentage" : [ 10, 20 ] }, )"
                        R"({ "Code" : "", "Description" : "", "SpeedingPercentage" : [ 20, 30 ] }, )"
                        R"({ "Code" : "", "Description" : "", "SpeedingPercentage" : [ 30, 40 ] }, )"
                        R"({ "Code" : "", "Description" : "", "SpeedingPercentage" : [ 40, 50 ] }, )"
                        R"({ "Code" : "", "Description" : "", "SpeedingPercentage" : [ 50, -1 ] } ])"))
            << count;
    }
    const auto cut =
        Read(R"({"ViolationCode":{"OverSpeedConfig":[null,{"Code":"0123456789abcdefg","Description":")"
             + std::string(70, 'a') + R"(","SpeedingPercentage":7}],"JamDesc":")" + std::string(70, 'b') + R"("}})");
    EXPECT_EQ(cut->stuViolationCodes.nOverSpeedConfigNum, 2);
    EXPECT_STREQ(cut->stuViolationCodes.stuOverSpeedConfig[1].szCode, "0123456789abcde");
    EXPECT_EQ(cut->stuViolationCodes.stuOverSpeedConfig[1].szDescription, std::string(63, 'a'));
    EXPECT_EQ(cut->stuViolationCodes.stuOverSpeedConfig[1].nPercentFrom, 0);
    EXPECT_EQ(cut->stuViolationCodes.szJamDesc, std::string(63, 'b'));
}

TEST(TrafficGlobal, EveryViolationHasItsPlace) {
    struct Violation {
        const char* key;
        bool hasShowName = false;
        bool hasSteps = false;
        bool isRead = true;
    };
    const Violation violations[] = {{"Retrograde", true},
                                    {"RetrogradeHighway"},
                                    {"RunRedLight"},
                                    {"Backing", true},
                                    {"VehicleInBusRoute", true},
                                    {"CrossLane", true},
                                    {"TurnLeft"},
                                    {"TurnRight"},
                                    {"U-Turn", true},
                                    {"Jam"},
                                    {"Parking", true},
                                    {"OverSpeed", false, true},
                                    {"OverSpeedHighway", false, true},
                                    {"UnderSpeed", false, true},
                                    {"OverLine", true},
                                    {"OverYellowLine"},
                                    {"YellowInRoute"},
                                    {"WrongRoute"},
                                    {"DrivingOnShoulder"},
                                    {"Passing"},
                                    {"NoPassing"},
                                    {"FakePlate"},
                                    {"ParkingSpaceParking", false, false, false},
                                    {"ParkingSpaceNoParking", false, false, false},
                                    {"WithoutSafeBelt", true},
                                    {"DriverSmoking", true},
                                    {"DriverCalling", true},
                                    {"PedestrianRunRedLight", true}};
    std::string members;
    for (const Violation& one : violations) {
        const std::string key = one.key;
        members += (members.empty() ? "\"" : ",\"") + key + "\":\"c" + key.substr(0, 14) + "\",\"" + key + "Desc\":\"d"
                   + key + "\",\"" + key + "ShowName\":\"s" + key + "\",\"" + key + "Config\":[{\"Code\":\"e"
                   + key.substr(0, 14) + "\"}]";
    }
    const auto global = Read("{\"ViolationCode\":{" + members + "}}");
    const std::string text = Written(*global);
    // The record is a run of texts in this order, with the steps behind those that have any.
    const char* at = reinterpret_cast<const char*>(&global->stuViolationCodes);
    const char* const begin = at;
    const auto expect = [&](std::size_t size, const std::string& key, const std::string& value, bool isRead) {
        EXPECT_STREQ(at, isRead ? value.c_str() : "") << key;
        EXPECT_TRUE(Has(text, "\"" + key + "\" : \"" + (isRead ? value : "") + "\"")) << key;
        at += size;
    };
    for (const Violation& one : violations) {
        const std::string key = one.key;
        expect(16, key, "c" + key.substr(0, 14), one.isRead);
        expect(64, key + "Desc", "d" + key, one.isRead);
        if (one.hasShowName)
            expect(64, key + "ShowName", "s" + key, true);
        else
            EXPECT_FALSE(Has(text, "\"" + key + "ShowName\"")) << key;
        EXPECT_EQ(Has(text, "\"" + key + "Config\" : [ { \"Code\" : \"e" + key.substr(0, 14) + "\""), one.hasSteps)
            << key;
        if (one.hasSteps) {
            std::int32_t count = 0;
            std::memcpy(&count, at, sizeof count);
            EXPECT_EQ(count, 1) << key;
            EXPECT_EQ(at + 4 + 8, std::string("e") + key.substr(0, 14)) << key; // behind the two numbers
            at += 4 + 5 * (4 + 4 + 16 + 64);
        }
    }
    EXPECT_EQ(static_cast<std::size_t>(at - begin), sizeof(CFG_VIOLATION_CODE_INFO));
}

TEST(TrafficGlobal, TheTransferPolicyKeepsItsFlag) {
    for (const auto& [text, code] : {std::pair{"RealtimePriority", 1}, std::pair{"SequencePriority", 2},
                                     std::pair{"realtimepriority", 1}, std::pair{"Whatever", 0}}) {
        const auto global = Read(std::string("{\"TransferPolicy\":\"") + text + "\"}");
        EXPECT_EQ(global->abTransferPolicy, 1) << text;
        EXPECT_EQ(global->nTransferPolicy, code) << text;
    }
    EXPECT_EQ(Read("{}")->abTransferPolicy, 0);
    auto record = Cleared<Global>();
    record->nTransferPolicy = 1;
    EXPECT_FALSE(Has(Written(*record), "TransferPolicy"));
    record->abTransferPolicy = 1;
    EXPECT_TRUE(Has(Written(*record), R"("TransferPolicy" : "RealtimePriority")"));
    record->nTransferPolicy = 3;
    EXPECT_FALSE(Has(Written(*record), "TransferPolicy"));
}

TEST(TrafficGlobal, ListsEndAtTheirRoom) {
    std::string texts = "\"" + std::string(300, 'a') + "\"", lanes = "{}";
    for (int i = 1; i < 300; ++i)
        texts += ",\"b\"";
    for (int i = 1; i < 40; ++i)
        lanes += ",{\"TrafficJam\":" + std::to_string(i) + "}";
    auto global = Read("{\"Priority\":[" + texts + "],\"MixModeConfig\":{\"Lane\":[" + lanes + "]}}");
    EXPECT_EQ(global->nPriorityNum, 256);
    EXPECT_EQ(global->szPriority[0], std::string(255, 'a'));
    EXPECT_EQ(global->stuMixModeConfig.nLaneNum, 40); // as told
    EXPECT_EQ(global->stuMixModeConfig.stuLanes[31].nTrafficJam, 31);
    const std::string text = Written(*global);
    EXPECT_TRUE(Has(text, R"({ "TrafficJam" : 31 } ])"));
    const auto other = Read(R"({"Priority":7})");
    EXPECT_EQ(other->abPriority, 1);
    EXPECT_EQ(other->nPriorityNum, 0);
    EXPECT_FALSE(Has(Written(*other), "Priority"));
}

TEST(TrafficGlobal, EveryRuleTypeHasItsPlace) {
    const char* const rules[] = {"TrafficGate",
                                 "TrafficJunction",
                                 "TrafficTollGate",
                                 "TrafficRunRedLight",
                                 "TrafficRunYellowLight",
                                 "TrafficOverLine",
                                 "TrafficOverYellowLine",
                                 "TrafficRetrograde",
                                 "TrafficTurnLeft",
                                 "TrafficTurnRight",
                                 "TrafficU_Turn",
                                 "TrafficCrossLane",
                                 "TrafficParking",
                                 "TrafficJam",
                                 "TrafficIdle",
                                 "TrafficWaitingArea",
                                 "TrafficUnderSpeed",
                                 "TrafficOverSpeed",
                                 "TrafficWrongRoute",
                                 "TrafficYellowInRoute",
                                 "TrafficVehicleInRoute",
                                 "TrafficControl",
                                 "TrafficObjectAlarm",
                                 "TrafficAccident",
                                 "TrafficStay",
                                 "TrafficPedestrainPriority",
                                 "TrafficPedestrain",
                                 "TrafficThrow",
                                 "TrafficVehicleInBusRoute",
                                 "TrafficBacking",
                                 "TrafficOverStopLine",
                                 "TrafficParkingOnYellowBox",
                                 "TrafficParkingSpaceParking",
                                 "TrafficParkingSpaceNoParking",
                                 "TrafficParkingSpaceOverLine",
                                 "ParkingSpaceDetection",
                                 "TrafficRestrictedPlate",
                                 "TrafficWithoutSafeBelt",
                                 "TrafficNoPassing",
                                 "VehicleAnalyse",
                                 "CrossLineDetection",
                                 "CrossFenceDetection",
                                 "CrossRegionDetection",
                                 "PasteDetection",
                                 "LeftDetection",
                                 "Preservation",
                                 "TakenAwayDetection",
                                 "StayDetection",
                                 "ParkingDetection",
                                 "WanderDetection",
                                 "MoveDetection",
                                 "TailDetection",
                                 "RioterDetection",
                                 "FightDetection",
                                 "RetrogradeDetection",
                                 "FireDetection",
                                 "SmokeDetection",
                                 "NumberStat",
                                 "VideoAbnormalDetection",
                                 "PrisonerRiseDetection",
                                 "FaceDetection",
                                 "FaceRecognition",
                                 "DensityDetection",
                                 "QueueDetection",
                                 "ClimbDetection",
                                 "LeaveDetection",
                                 "VehicleOnPoliceCar",
                                 "VehicleOnBus",
                                 "VehicleOnSchoolBus"};
    std::string values, schedules;
    std::int32_t number = 0;
    for (const char* rule : rules) {
        const std::string comma = number++ == 0 ? "\"" : ",\"";
        values += comma + rule + "\":" + std::to_string(number);
        schedules += comma + rule + "\":{\"TimeSchedule\":[[\"" + std::to_string(number) + " 00:00:00-00:00:00\"]]}";
    }
    ASSERT_EQ(number, 69);
    const auto global = Read("{\"SupportModeMaskConfig\":{" + values + "},\"ViolationTimeSchedule\":{" + schedules
                             + "},\"MixModeConfig\":{" + values + ",\"Lane\":[{" + values + "}]}}");
    // The tables are runs of pairs in this order.
    std::int32_t pairs[3][69][2];
    static_assert(sizeof pairs[0] == sizeof(CFG_RULE_VALUE_TABLE));
    std::memcpy(pairs[0], &global->stuSupportModeMask, sizeof pairs[0]);
    std::memcpy(pairs[1], &global->stuMixModeConfig.abTrafficGate, sizeof pairs[1]);
    std::memcpy(pairs[2], &global->stuMixModeConfig.stuLanes[0], sizeof pairs[2]);
    struct Schedule {
        std::int32_t is;
        CFG_VIOLATION_SCHEDULE schedule;
    };
    static_assert(69 * sizeof(Schedule) == sizeof(CFG_RULE_SCHEDULE_TABLE));
    std::vector<Schedule> all(69);
    std::memcpy(static_cast<void*>(all.data()), &global->stuViolationSchedule, 69 * sizeof(Schedule));
    const std::string text = Written(*global);
    for (std::int32_t i = 0; i < 69; ++i) {
        for (const auto& table : pairs) {
            EXPECT_EQ(table[i][0], 1) << rules[i];
            EXPECT_EQ(table[i][1], i + 1) << rules[i];
        }
        EXPECT_EQ(all[static_cast<std::size_t>(i)].is, 1) << rules[i];
        EXPECT_EQ(all[static_cast<std::size_t>(i)].schedule.stuTimeSchedule[0][0].dwMask, i + 1) << rules[i];
        const std::string member = std::string("\"") + rules[i] + "\" : " + std::to_string(i + 1);
        std::size_t times = 0;
        for (std::size_t at = text.find(member); at != std::string::npos; at = text.find(member, at + 1))
            ++times;
        EXPECT_EQ(times, 3u) << rules[i];
        EXPECT_TRUE(Has(text, std::string("\"") + rules[i] + "\" : { \"Enable\" : false")) << rules[i];
    }
}

} // namespace
} // namespace orrery::test
