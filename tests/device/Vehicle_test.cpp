#include "device/Vehicle.h"

#include "device/ListText.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// ---- GPS ----

TEST(Gps, ThereAndBack) {
    const std::string text =
        R"({ "CurMode" : "GPS", "CurModule" : "M8", "Enable" : true, "NotifyInterval" : 20, "SampleInterval" : 10, )"
        R"("SaveDays" : 7, "ShowLocation" : true, "SupportModes" : [ "GPS", "BEIDOU" ], "SyncTime" : true, )"
        R"("TransferPlatform" : [ "p1", "p2", "p3" ] })";
    // Some devices wrap the record in a list.
    for (const std::string& table : {text, "[ " + text + " ]"}) {
        const auto parsed = Parse<CFG_GPS_INFO>("GPS", table);
        ASSERT_TRUE(parsed);
        EXPECT_EQ(parsed.length, kNoLength + sizeof(CFG_GPS_INFO)); // added to
        EXPECT_EQ(parsed->bEnable, 1);
        EXPECT_EQ(parsed->nSampleInterval, 10);
        EXPECT_EQ(parsed->nNotifyInterval, 20);
        EXPECT_EQ(parsed->bSyncTime, 1);
        EXPECT_EQ(parsed->nSaveDays, 7);
        EXPECT_EQ(parsed->bShowLocation, 1);
        EXPECT_STREQ(parsed->szCurMode, "GPS");
        ASSERT_EQ(parsed->nSupportModeNum, 2);
        EXPECT_STREQ(parsed->szSupportModes[0], "GPS");
        EXPECT_STREQ(parsed->szSupportModes[1], "BEIDOU");
        EXPECT_STREQ(parsed->szCurModule, "M8");
        ASSERT_EQ(parsed->nTransferPlatformNum, 3);
        EXPECT_STREQ(parsed->szTransferPlatform[0], "p1");
        EXPECT_STREQ(parsed->szTransferPlatform[2], "p3");
        EXPECT_EQ(Pack("GPS", *parsed), text);
    }
}

TEST(Gps, TheClockIsASwitch) {
    EXPECT_EQ((Parse<CFG_GPS_INFO>("GPS", R"({ "SyncTime" : 5 })")->bSyncTime), 1);
    EXPECT_EQ((Parse<CFG_GPS_INFO>("GPS", R"({ "SyncTime" : 0 })")->bSyncTime), 0);
}

TEST(Gps, KeepsSixteenOfEach) {
    const auto list = [](const char* prefix, int count) {
        return ListText(count, [&](int i) { return Quoted(prefix + std::to_string(i)); });
    };
    auto parsed = Parse<CFG_GPS_INFO>("GPS", R"({ "SupportModes" : )" + list("m", 17) + R"(, "TransferPlatform" : )"
                                                 + list("p", 17) + " }");
    EXPECT_EQ(parsed->nSupportModeNum, 16);
    EXPECT_EQ(parsed->nTransferPlatformNum, 16);
    EXPECT_STREQ(parsed->szSupportModes[15], "m15");
    EXPECT_STREQ(parsed->szTransferPlatform[15], "p15");
    parsed.record->nSupportModeNum = parsed.record->nTransferPlatformNum = 17;
    EXPECT_EQ(Pack("GPS", *parsed),
              R"({ "CurMode" : "", "CurModule" : "", "Enable" : false, "NotifyInterval" : 0, "SampleInterval" : 0, )"
              R"("SaveDays" : 0, "ShowLocation" : false, "SupportModes" : )"
                  + list("m", 16) + R"(, "SyncTime" : false, "TransferPlatform" : )" + list("p", 16) + " }");
    EXPECT_EQ(Pack("GPS", *Cleared<CFG_GPS_INFO>()),
              R"({ "CurMode" : "", "CurModule" : "", "Enable" : false, "NotifyInterval" : 0, "SampleInterval" : 0, )"
              R"("SaveDays" : 0, "ShowLocation" : false, "SyncTime" : false })");
}

TEST(Gps, TextsAreCutAtTheirCapacity) {
    const std::string x(100, 'x');
    const auto parsed =
        Parse<CFG_GPS_INFO>("GPS", R"({ "CurMode" : ")" + x + R"(", "CurModule" : ")" + x + R"(", "SupportModes" : [ ")"
                                       + x + R"(" ], "TransferPlatform" : [ ")" + x + R"(" ] })");
    EXPECT_EQ(std::string(parsed->szCurMode), x.substr(0, 31));
    EXPECT_EQ(std::string(parsed->szCurModule), x.substr(0, 63));
    EXPECT_EQ(std::string(parsed->szSupportModes[0]), x.substr(0, 31));
    EXPECT_EQ(std::string(parsed->szTransferPlatform[0]), x.substr(0, 63));
}

TEST(Gps, ListsWithoutAnObjectInFrontReadNothing) {
    for (const char* table :
         {"[ ]", "[ null ]", R"([ [ { "Enable" : true } ] ])", R"([ null, { "Enable" : true } ])"}) {
        const auto parsed = Parse<CFG_GPS_INFO>("GPS", table);
        ASSERT_TRUE(parsed) << table;
        EXPECT_EQ(parsed.length, kNoLength + sizeof(CFG_GPS_INFO)) << table;
        EXPECT_TRUE(parsed.isCleared()) << table;
    }
    const auto missing = Parse<CFG_GPS_INFO>("GPS", "null");
    ASSERT_TRUE(missing);
    EXPECT_EQ(missing.length, kNoLength);
    EXPECT_TRUE(missing.isCleared());
}

// ---- The small ones ----

TEST(GpsLocationVersion, ThereAndBack) {
    const auto parsed = Parse<CFG_GPS_LOCATION_VERSION_INFO>("GPSLocationVersion", R"({ "Version" : 4000000000 })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, kNoLength + sizeof(CFG_GPS_LOCATION_VERSION_INFO));
    EXPECT_EQ(parsed->nVersion, 4000000000u);
    EXPECT_EQ(Pack("GPSLocationVersion", *parsed), R"({ "Version" : 4000000000 })");
    EXPECT_EQ((Parse<CFG_GPS_LOCATION_VERSION_INFO>("GPSLocationVersion", R"({ "Version" : -1 })")->nVersion), 0u);
}

TEST(OilMassInfo, ThereAndBack) {
    const std::string text = R"({ "AlarmInterval" : 4, "LowOil" : 3, "NotifyInterval" : 2, "TankVolume" : 70 })";
    const auto parsed = Parse<CFG_OIL_MASS_INFO>("OilMassInfo", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_OIL_MASS_INFO));
    EXPECT_EQ(parsed->nTankVolume, 70);
    EXPECT_EQ(parsed->nNotifyInterval, 2);
    EXPECT_EQ(parsed->nLowOil, 3);
    EXPECT_EQ(parsed->nAlarmInterval, 4);
    EXPECT_EQ(Pack("OilMassInfo", *parsed), text);
}

TEST(EmergencyRecordForPull, ThereAndBack) {
    const std::string text = R"({ "Enable" : true, "MaxTime" : 300 })";
    const auto parsed = Parse<CFG_EMERGENCY_RECORD_FOR_PULL_INFO>("EmergencyRecordForPull", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_EMERGENCY_RECORD_FOR_PULL_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_EQ(parsed->nMaxTime, 300);
    EXPECT_EQ(Pack("EmergencyRecordForPull", *parsed), text);
}

} // namespace
} // namespace orrery::test
