// Vehicles, roads, and the platforms that devices report to.
#include "later/TableCalls.h"
#include "orrery/fleet.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// ---- Vehicles and roads --------------------------------------------------------------------------------------------

TEST(VehiclePlate, GoesRoundWhole) {
    using Plate = CFG_VEHICLE_PLATE_INFO;
    EXPECT_STREQ(GoesRound<Plate>("Vehicle", R"({ "PlateNumber" : "P1" })").szPlateNumber, "P1");
    TryText("Vehicle", "PlateNumber", &Plate::szPlateNumber, 32);
    TryWithoutKeys<Plate>("Vehicle", R"({ "PlateNumber" : "" })");
    const Records<Plate> three(3, 0x5A);
    EXPECT_EQ(ParseAdding("Vehicle", R"([ { "PlateNumber" : "A" }, null, { "PlateNumber" : "C" }, { } ])", three),
              HasRead<Plate>(2));
    EXPECT_EQ(PackAll("Vehicle", three),
              R"([ { "PlateNumber" : "A" }, { "PlateNumber" : "" }, { "PlateNumber" : "C" } ])");
}

TEST(IdlingTime, GoesRoundWhole) {
    using Idling = CFG_IDLING_TIME_INFO;
    const auto read = GoesRound<Idling>("IdlingTime", R"({ "IdlingTimeThreshold" : 1, "SpeedThreshold" : 2 })");
    EXPECT_EQ(read.nIdlingTimeThreshold, 1);
    EXPECT_EQ(read.nSpeedThreshold, 2);
    TryList("IdlingTime", "SpeedThreshold", &Idling::nSpeedThreshold);
    TryWithoutKeys<Idling>("IdlingTime", R"({ "IdlingTimeThreshold" : 0, "SpeedThreshold" : 0 })");
}

TEST(CarDriverState, GoesRoundWhole) {
    using Driver = CFG_CAR_DRIVER_STATE_INFO;
    const auto read =
        GoesRound<Driver>("CarDiverState", R"({ "AccelerationThreshold" : 1, "DecelerationThreshold" : -2 })");
    EXPECT_EQ(read.nAccelerationThreshold, 1);
    EXPECT_EQ(read.nDecelerationThreshold, -2);
    TryList("CarDiverState", "DecelerationThreshold", &Driver::nDecelerationThreshold);
    TryWithoutKeys<Driver>("CarDiverState", R"({ "AccelerationThreshold" : 0, "DecelerationThreshold" : 0 })");
}

TEST(TesseraRadar, GoesRoundWhole) {
    using Radar = CFG_TESSERA_RADAR_INFO;
    const auto read = GoesRound<Radar>(
        "TesseraRadar", R"({ "Angle" : 1, "BigCarSpeedLimit" : 2, "BigCarTriggerSpeed" : 3, "DetectMode" : 4, )"
                        R"("LowSpeedTrigger" : true, "MediumCarSpeedLimit" : 5, "MediumCarTriggerSpeed" : 6, )"
                        R"("Name" : "N7", "Sensitivity" : 8, "SmallCarSpeedLimit" : 9, "SmallCarTriggerSpeed" : 10, )"
                        R"("SpeedLimitForSize" : true })");
    EXPECT_EQ(read.nAngle, 1);
    EXPECT_EQ(read.nBigCarSpeedLimit, 2);
    EXPECT_EQ(read.nBigCarTriggerSpeed, 3);
    EXPECT_EQ(read.nDetectMode, 4);
    EXPECT_EQ(read.nMediumCarSpeedLimit, 5);
    EXPECT_EQ(read.nMediumCarTriggerSpeed, 6);
    EXPECT_STREQ(read.szName, "N7");
    EXPECT_EQ(read.nSensitivity, 8);
    EXPECT_EQ(read.nSmallCarSpeedLimit, 9);
    EXPECT_EQ(read.nSmallCarTriggerSpeed, 10);
    TrySwitches<Radar>("TesseraRadar", {{"LowSpeedTrigger", &Radar::bLowSpeedTrigger},
                                        {"SpeedLimitForSize", &Radar::bSpeedLimitForSize}});
    TryText("TesseraRadar", "Name", &Radar::szName, 256);
    TryList("TesseraRadar", "Angle", &Radar::nAngle);
    TryWithoutKeys<Radar>("TesseraRadar",
                          R"({ "Angle" : 0, "BigCarSpeedLimit" : 0, "BigCarTriggerSpeed" : 0, "DetectMode" : 0, )"
                          R"("LowSpeedTrigger" : false, "MediumCarSpeedLimit" : 0, "MediumCarTriggerSpeed" : 0, )"
                          R"("Name" : "", "Sensitivity" : 0, "SmallCarSpeedLimit" : 0, "SmallCarTriggerSpeed" : 0, )"
                          R"("SpeedLimitForSize" : false })");
}

TEST(RadarSpeedMeasure, GoesRoundWhole) {
    using Speeds = CFG_RADAR_SPEED_MEASURE_INFO;
    const auto read =
        GoesRound<Speeds>("RadarSpeedMeasure", R"({ "SpeedMeasureLimit" : [ 1, 2 ], "SpeedUpperLimit" : [ 3, -4 ] })");
    EXPECT_EQ(read.stuSpeedMeasureLimit.nFrom, 1);
    EXPECT_EQ(read.stuSpeedMeasureLimit.nTo, 2);
    EXPECT_EQ(read.stuSpeedUpperLimit.nFrom, 3);
    EXPECT_EQ(read.stuSpeedUpperLimit.nTo, -4);
    for (const char* value : {"[ 1 ]", "[ 1, 2, 3 ]", "[ ]", "5", "\"1\"", R"({ "0" : 1, "1" : 2 })", "null"}) {
        const auto odd = ReadOne<Speeds>("RadarSpeedMeasure", R"({ "SpeedMeasureLimit" : )" + std::string(value)
                                                                  + R"(, )"
                                                                    R"("SpeedUpperLimit" : )"
                                                                  + value + " }");
        const Speeds none{};
        EXPECT_EQ(std::memcmp(&odd, &none, sizeof odd), 0) << value;
    }
    TryWithoutKeys<Speeds>("RadarSpeedMeasure", R"({ "SpeedMeasureLimit" : [ 0, 0 ], "SpeedUpperLimit" : [ 0, 0 ] })");
    const Records<Speeds> two(2, 0x5A); // of a list nothing is read, and one record is written
    EXPECT_EQ(ParseAdding("RadarSpeedMeasure", R"([ { "SpeedMeasureLimit" : [ 1, 2 ] } ])", two), HasRead<Speeds>(1));
    EXPECT_TRUE(two.isAll(0));
    EXPECT_EQ(PackAll("RadarSpeedMeasure", two), Pack("RadarSpeedMeasure", two[0]));
}

TEST(CustomAudio, AnAbsentTextIsEmptyThoughNothingIsCleared) {
    using Audio = CFG_CUSTOM_AUDIO_INFO;
    EXPECT_STREQ(GoesRound<Audio>("CustomAudio", R"({ "PlateNotInDB" : "P1" })").szPlateNotInDB, "P1");
    TryText("CustomAudio", "PlateNotInDB", &Audio::szPlateNotInDB, 260);
    TryWithoutKeys<Audio>("CustomAudio", R"({ "PlateNotInDB" : "" })");
    const Records<Audio> record(1, 10, 0x5A);
    EXPECT_EQ(ParseAdding("CustomAudio", R"([ { "PlateNotInDB" : "P1" } ])", record), HasRead<Audio>(1));
    EXPECT_STREQ(record[0].szPlateNotInDB, ""); // one record, whatever the table is
    EXPECT_EQ(record.data()[sizeof(Audio)], 0x5A);
}

// ---- "PoliceMap" ---------------------------------------------------------------------------------------------------

using Maps = CFG_POLICE_MAP_INFO;

TEST(PoliceMap, TheTableIsTheList) {
    const auto read = GoesRound<Maps>("PoliceMap", R"([ "M1", "M2", "M3" ])");
    EXPECT_EQ(read.nCount, 3);
    EXPECT_STREQ(read.szMap[0], "M1");
    EXPECT_STREQ(read.szMap[1], "M2");
    EXPECT_STREQ(read.szMap[2], "M3");
    EXPECT_EQ(offsetof(Maps, nCount), 64U * 32U); // behind the texts
    TryWithoutKeys<Maps>("PoliceMap", "null");
    const Records<Maps> two(2, 0x5A);
    EXPECT_EQ(ParseAdding("PoliceMap", R"([ "M1", "M2" ])", two), HasRead<Maps>(1));
    EXPECT_EQ(two[0].nCount, 2);
    EXPECT_EQ(two[1].nCount, 0);
    EXPECT_EQ(PackAll("PoliceMap", two), R"([ "M1", "M2" ])");
}

TEST(PoliceMap, KeepsSixtyFourTextsOfThirtyOneCharacters) {
    for (const int maps : {63, 64, 65}) {
        std::string list = "[ \"" + std::string(40, 'm') + "\"";
        std::string kept = "[ \"" + std::string(31, 'm') + "\"";
        for (int i = 1; i < maps; ++i) {
            list += ", \"" + std::to_string(i) + "\"";
            if (i < 64) kept += ", \"" + std::to_string(i) + "\"";
        }
        auto read = ReadOne<Maps>("PoliceMap", list + " ]");
        EXPECT_EQ(read.nCount, std::min(maps, 64));
        EXPECT_EQ(Pack("PoliceMap", read), kept + " ]");
        if (maps < 64) continue;
        read.nCount = 65;
        EXPECT_EQ(Pack("PoliceMap", read), kept + " ]");
        read.nCount = -1;
        EXPECT_EQ(Pack("PoliceMap", read), "null");
    }
    const auto odd = ReadOne<Maps>("PoliceMap", R"([ 5, null, [ "x" ], "M4" ])");
    EXPECT_EQ(odd.nCount, 4);
    EXPECT_STREQ(odd.szMap[0], "");
    EXPECT_STREQ(odd.szMap[2], "");
    EXPECT_STREQ(odd.szMap[3], "M4");
}

// ---- Places and devices --------------------------------------------------------------------------------------------

TEST(DevLocation, GoesRoundWhole) {
    using Location = CFG_DEV_LOCATION_INFO;
    const auto read = GoesRound<Location>(
        "DevLocation", R"({ "Altitude" : -12.50000000000000, "Enable" : true, "Latitude" : 4000000001, )"
                       R"("Longitude" : 4000000002 })");
    EXPECT_EQ(read.fAltitude, -12.5F);
    EXPECT_EQ(read.bEnable, 1);
    EXPECT_EQ(read.nLatitude, 4000000001U);
    EXPECT_EQ(read.nLongitude, 4000000002U);
    const auto odd = ReadOne<Location>("DevLocation", R"({ "Latitude" : -1, "Longitude" : 2.9, "Altitude" : 3 })");
    EXPECT_EQ(odd.nLatitude, 0U);
    EXPECT_EQ(odd.nLongitude, 2U);
    EXPECT_EQ(odd.fAltitude, 3.0F);
    TryList("DevLocation", "Latitude", &Location::nLatitude);
    TryWithoutKeys<Location>(
        "DevLocation", R"({ "Altitude" : 0.000000000000000, "Enable" : false, "Latitude" : 0, "Longitude" : 0 })");
}

TEST(DeviceIdentity, IsReadAndNotWritten) {
    using Identity = CFG_DEVICE_IDENTITY_INFO;
    const char* const element = R"({ "CameraID" : "C1", "Mode" : "M2", "Resolution" : "R3", "Serial" : "S4" })";
    for (const std::string& table : {std::string(element), "[ " + std::string(element) + " ]"}) {
        const auto read = ReadOne<Identity>("DeviceInfo", table);
        EXPECT_STREQ(read.szCameraID, "C1");
        EXPECT_STREQ(read.szMode, "M2");
        EXPECT_STREQ(read.szResolution, "R3");
        EXPECT_STREQ(read.szSerial, "S4");
        EXPECT_EQ(Pack("DeviceInfo", read), kNotBegun);
    }
    const std::string x(100, 'x');
    const auto full =
        ReadOne<Identity>("DeviceInfo", R"({ "CameraID" : ")" + x + R"(", "Mode" : ")" + x + R"(", "Resolution" : ")"
                                            + x + R"(", "Serial" : ")" + x + "\" }");
    EXPECT_EQ(std::string(full.szCameraID), x.substr(0, 15));
    EXPECT_EQ(std::string(full.szMode), x.substr(0, 63));
    EXPECT_EQ(std::string(full.szResolution), x.substr(0, 15));
    EXPECT_EQ(std::string(full.szSerial), x.substr(0, 63));
    const Records<Identity> three(3, 0x5A);
    EXPECT_EQ(ParseAdding("DeviceInfo", R"([ { "Mode" : "1" }, null, { "Mode" : "3" }, { "Mode" : "4" } ])", three),
              HasRead<Identity>(2));
    EXPECT_STREQ(three[0].szMode, "1");
    EXPECT_STREQ(three[1].szMode, "");
    EXPECT_STREQ(three[2].szMode, "3");
}

// ---- Platforms -----------------------------------------------------------------------------------------------------

TEST(CheckCode, GoesRoundWhole) {
    using Check = CFG_CHECK_CODE_INFO;
    const auto read = GoesRound<Check>("CheckCode", R"({ "Code" : "C1", "Enable" : true })");
    EXPECT_STREQ(read.szCode, "C1");
    EXPECT_EQ(read.bEnable, 1);
    TryText("CheckCode", "Code", &Check::szCode, 32);
    TryOne("CheckCode", "Enable", &Check::bEnable);
    TryWithoutKeys<Check>("CheckCode", R"({ "Code" : "", "Enable" : false })");
}

TEST(VspScydkd, GoesRoundWhole) {
    using Platform = CFG_VSP_SCYDKD_INFO;
    const auto read = GoesRound<Platform>("VSP_SCYDKD", R"({ "DeviceID" : "D1", "Enable" : true, "ServerIP" : "I2", )"
                                                        R"("ServerPort" : 3, "UserName" : "U4" })");
    EXPECT_STREQ(read.szDeviceID, "D1");
    EXPECT_EQ(read.bEnable, 1);
    EXPECT_STREQ(read.szServerIP, "I2");
    EXPECT_EQ(read.nServerPort, 3);
    EXPECT_STREQ(read.szUserName, "U4");
    TryText("VSP_SCYDKD", "DeviceID", &Platform::szDeviceID, 32);
    TryText("VSP_SCYDKD", "ServerIP", &Platform::szServerIP, 128);
    TryText("VSP_SCYDKD", "UserName", &Platform::szUserName, 32);
    TryOne("VSP_SCYDKD", "ServerPort", &Platform::nServerPort);
    TryWithoutKeys<Platform>("VSP_SCYDKD", R"({ "DeviceID" : "", "Enable" : false, "ServerIP" : "", )"
                                           R"("ServerPort" : 0, "UserName" : "" })");
}

TEST(PlatformMonitorIpc, GoesRoundWhole) {
    using Ipc = CFG_PLATFORM_MONITOR_IPC_INFO;
    const auto read = GoesRound<Ipc>("PlatformMonitorIPC",
                                     R"({ "Address" : "A1", "Channel" : 2, "Enable" : true, "Password" : "P3", )"
                                     R"("Port" : 4, "ProtocolType" : "Onvif", "StreamType" : "Extra1", )"
                                     R"("UserName" : "U5" })");
    EXPECT_STREQ(read.szAddress, "A1");
    EXPECT_EQ(read.nChannel, 2);
    EXPECT_EQ(read.bEnable, 1);
    EXPECT_STREQ(read.szPassword, "P3");
    EXPECT_EQ(read.nPort, 4);
    EXPECT_EQ(read.emProtocolType, CFG_PLATFORM_IPC_ONVIF);
    EXPECT_EQ(read.emStreamType, CFG_PLATFORM_STREAM_EXTRA1);
    EXPECT_STREQ(read.szUserName, "U5");
    TryNames("PlatformMonitorIPC", "ProtocolType", &Ipc::emProtocolType, {"Tessera3", "Onvif"});
    TryNames("PlatformMonitorIPC", "StreamType", &Ipc::emStreamType, {"Main", "Extra1"});
    TryText("PlatformMonitorIPC", "Address", &Ipc::szAddress, 128);
    TryText("PlatformMonitorIPC", "UserName", &Ipc::szUserName, 64);
    TryText("PlatformMonitorIPC", "Password", &Ipc::szPassword, 64);
    TryList("PlatformMonitorIPC", "Port", &Ipc::nPort);
    TryWithoutKeys<Ipc>("PlatformMonitorIPC",
                        R"({ "Address" : "", "Channel" : 0, "Enable" : false, "Password" : "", "Port" : 0, )"
                        R"("ProtocolType" : "Tessera3", "StreamType" : "Main", "UserName" : "" })");
}

TEST(DelayStrategy, GoesRoundWhole) {
    using Delay = CFG_DELAY_STRATEGY_INFO;
    const auto read =
        GoesRound<Delay>("DelayStrategy", R"({ "ArrearsTerm" : 1, "Enable" : true, "PreArrearsTerm" : 2 })");
    EXPECT_EQ(read.nArrearsTerm, 1);
    EXPECT_EQ(read.bEnable, 1);
    EXPECT_EQ(read.nPreArrearsTerm, 2);
    TryList("DelayStrategy", "PreArrearsTerm", &Delay::nPreArrearsTerm);
    TryWithoutKeys<Delay>("DelayStrategy", R"({ "ArrearsTerm" : 0, "Enable" : false, "PreArrearsTerm" : 0 })");
}

TEST(DropBoxToken, GoesRoundWhole) {
    using Token = CFG_DROP_BOX_TOKEN_INFO;
    const auto read = GoesRound<Token>("DropBoxToken", R"({ "Key" : "K1", "KeyValid" : true })");
    EXPECT_STREQ(read.szKey, "K1");
    EXPECT_EQ(read.bKeyValid, 1);
    TryText("DropBoxToken", "Key", &Token::szKey, 128);
    TryWithoutKeys<Token>("DropBoxToken", R"({ "Key" : "", "KeyValid" : false })");
    const Records<Token> two(2, 0x5A);
    EXPECT_EQ(ParseAdding("DropBoxToken", R"([ { "Key" : "A" }, { "KeyValid" : true }, { "Key" : "C" } ])", two),
              HasRead<Token>(2));
    EXPECT_EQ(PackAll("DropBoxToken", two),
              R"([ { "Key" : "A", "KeyValid" : false }, { "Key" : "", "KeyValid" : true } ])");
}

TEST(Fleet, RepliesWithoutATableAndRefusedOnes) {
    TryReplies("Vehicle", sizeof(CFG_VEHICLE_PLATE_INFO));
    TryReplies("IdlingTime", sizeof(CFG_IDLING_TIME_INFO));
    TryReplies("CarDiverState", sizeof(CFG_CAR_DRIVER_STATE_INFO));
    TryReplies("TesseraRadar", sizeof(CFG_TESSERA_RADAR_INFO));
    TryReplies("RadarSpeedMeasure", sizeof(CFG_RADAR_SPEED_MEASURE_INFO));
    TryReplies("CustomAudio", sizeof(CFG_CUSTOM_AUDIO_INFO), false);
    TryReplies("PoliceMap", sizeof(Maps));
    TryReplies("DevLocation", sizeof(CFG_DEV_LOCATION_INFO));
    TryReplies("DeviceInfo", sizeof(CFG_DEVICE_IDENTITY_INFO));
    TryReplies("CheckCode", sizeof(CFG_CHECK_CODE_INFO));
    TryReplies("VSP_SCYDKD", sizeof(CFG_VSP_SCYDKD_INFO));
    TryReplies("PlatformMonitorIPC", sizeof(CFG_PLATFORM_MONITOR_IPC_INFO));
    TryReplies("DelayStrategy", sizeof(CFG_DELAY_STRATEGY_INFO));
    TryReplies("DropBoxToken", sizeof(CFG_DROP_BOX_TOKEN_INFO));
}

} // namespace
} // namespace orrery::test
