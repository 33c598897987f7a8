#include "device/Settings.h"

#include "device/ListText.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// ---- AutoMaintain ----

TEST(AutoMaintain, ThereAndBack) {
    const std::string text =
        R"({ "AutoRebootDay" : 2, "AutoRebootEnable" : true, "AutoRebootHour" : 3, "AutoRebootMinute" : 4, )"
        R"("AutoShutdownDay" : -1, "AutoShutdownHour" : 5, "AutoShutdownMinute" : 6, "AutoStartUpDay" : 7, )"
        R"("AutoStartUpHour" : 8, "AutoStartUpMinute" : 9 })";
    const auto parsed = Parse<CFG_AUTO_MAINTAIN_INFO>("AutoMaintain", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_AUTO_MAINTAIN_INFO));
    EXPECT_EQ(parsed->nAutoRebootDay, 2);
    EXPECT_EQ(parsed->nAutoRebootHour, 3);
    EXPECT_EQ(parsed->nAutoRebootMinute, 4);
    EXPECT_EQ(parsed->nAutoShutdownDay, -1);
    EXPECT_EQ(parsed->nAutoShutdownHour, 5);
    EXPECT_EQ(parsed->nAutoShutdownMinute, 6);
    EXPECT_EQ(parsed->nAutoStartUpDay, 7);
    EXPECT_EQ(parsed->nAutoStartUpHour, 8);
    EXPECT_EQ(parsed->nAutoStartUpMinute, 9);
    EXPECT_EQ(parsed->bAutoRebootEnable, 1);
    EXPECT_EQ(Pack("AutoMaintain", *parsed), text);
}

// ---- ClientCustomData ----

TEST(ClientCustomData, ThereAndBack) {
    const std::string text = R"({ "Binary" : [ 1, -2, 300 ], )"
                             R"("Data" : { "Owner" : "gate\/1", "Seats" : [ 1, { "Row" : 2 } ], "X" : null }, )"
                             R"("Description" : "of the client" })";
    const auto parsed = Parse<CFG_CLIENT_CUSTOM_DATA_INFO>("ClientCustomData", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_CLIENT_CUSTOM_DATA_INFO));
    EXPECT_STREQ(parsed->szDescription, "of the client");
    EXPECT_STREQ(parsed->szData, R"({ "Owner" : "gate\/1", "Seats" : [ 1, { "Row" : 2 } ], "X" : null })");
    ASSERT_EQ(parsed->nBinaryNum, 3);
    EXPECT_EQ(parsed->nBinary[0], 1);
    EXPECT_EQ(parsed->nBinary[1], -2);
    EXPECT_EQ(parsed->nBinary[2], 300);
    EXPECT_EQ(Pack("ClientCustomData", *parsed), text);
}

TEST(ClientCustomData, OnlyAnObjectIsData) {
    for (const char* data : {"null", "[ 1 ]", "\"{ }\"", "5"}) {
        const auto parsed =
            Parse<CFG_CLIENT_CUSTOM_DATA_INFO>("ClientCustomData", R"({ "Data" : )" + std::string(data) + " }");
        ASSERT_TRUE(parsed) << data;
        EXPECT_TRUE(parsed.isCleared()) << data;
        EXPECT_EQ(Pack("ClientCustomData", *parsed), R"({ "Description" : "" })") << data;
    }
    const auto empty = Parse<CFG_CLIENT_CUSTOM_DATA_INFO>("ClientCustomData", R"({ "Data" : { } })");
    EXPECT_STREQ(empty->szData, "{  }");
    EXPECT_EQ(Pack("ClientCustomData", *empty), R"({ "Data" : {  }, "Description" : "" })");
}

TEST(ClientCustomData, DataThatDoesNotFitIsLeftOut) {
    // The text of { "K" : "xxx" } has twelve characters around its x.
    const auto data = [](std::size_t length) {
        return R"({ "Data" : { "K" : ")" + std::string(length - 12, 'x') + R"(" } })";
    };
    EXPECT_EQ(std::strlen(Parse<CFG_CLIENT_CUSTOM_DATA_INFO>("ClientCustomData", data(2047))->szData), 2047u);
    EXPECT_TRUE(Parse<CFG_CLIENT_CUSTOM_DATA_INFO>("ClientCustomData", data(2048)).isCleared());
}

TEST(ClientCustomData, WhatIsNoTextOfAnObjectIsNotWritten) {
    const auto record = Cleared<CFG_CLIENT_CUSTOM_DATA_INFO>();
    for (const char* data : {"", "{", "[ ]", "null", "5", "text"}) {
        std::strcpy(record->szData, data);
        EXPECT_EQ(Pack("ClientCustomData", *record), R"({ "Description" : "" })") << data;
    }
    std::strcpy(record->szData, R"({"b":1,"a":[]} and more)");
    EXPECT_EQ(Pack("ClientCustomData", *record), R"({ "Data" : { "a" : [  ], "b" : 1 }, "Description" : "" })");
    std::memset(record->szData, '{', sizeof record->szData); // no terminator
    EXPECT_EQ(Pack("ClientCustomData", *record), R"({ "Description" : "" })");
}

TEST(ClientCustomData, DataMayBeAsDeepAsItsTextIsLong) {
    std::string deep;
    for (int i = 0; i < 250; ++i)
        deep += "{\"a\":";
    deep += "1" + std::string(250, '}');
    const auto record = Cleared<CFG_CLIENT_CUSTOM_DATA_INFO>();
    std::strcpy(record->szData, deep.c_str());
    const std::string text = Pack("ClientCustomData", *record);
    EXPECT_EQ(text.size(),
              std::strlen(R"({ "Data" : , "Description" : "" })") + 250 * std::strlen(R"({ "a" :  })") + 1);
}

TEST(ClientCustomData, KeepsAHundredAndTwentyEightNumbers) {
    const auto list = [](int count) { return ListText(count, [](int i) { return std::to_string(1000 + i); }); };
    auto parsed = Parse<CFG_CLIENT_CUSTOM_DATA_INFO>("ClientCustomData", R"({ "Binary" : )" + list(129) + " }");
    EXPECT_EQ(parsed->nBinaryNum, 128);
    EXPECT_EQ(parsed->nBinary[127], 1127);
    parsed.record->nBinaryNum = 129;
    EXPECT_EQ(Pack("ClientCustomData", *parsed), R"({ "Binary" : )" + list(128) + R"(, "Description" : "" })");
    parsed.record->nBinaryNum = -1;
    EXPECT_EQ(Pack("ClientCustomData", *parsed), R"({ "Description" : "" })");
}

// ---- DeviceKeepAlive ----

TEST(DeviceKeepAlive, ThereAndBack) {
    const std::string text = R"({ "Enable" : true, "FailTimes" : 3, "Interval" : 10, "WaitBootTime" : 60 })";
    const auto parsed = Parse<CFG_DEVICE_KEEPALIVE_INFO>("DeviceKeepAlive", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_DEVICE_KEEPALIVE_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_EQ(parsed->nInterval, 10);
    EXPECT_EQ(parsed->nFailTimes, 3);
    EXPECT_EQ(parsed->nWaitBootTime, 60);
    EXPECT_EQ(Pack("DeviceKeepAlive", *parsed), text);
}

// ---- NTP ----

TEST(Ntp, ThereAndBack) {
    const std::string text = R"({ "Address" : "time.example.org", "Enable" : true, "Port" : 123, "ServerList" : [ )"
                             R"({ "Address" : "a.example.org", "Enable" : true, "Port" : 1231 }, )"
                             R"({ "Address" : "10.0.0.2", "Enable" : false, "Port" : 1232 } ], )"
                             R"("TimeZone" : 3000000000, "TimeZoneDesc" : "Delft", "UpdatePeriod" : 4000000000 })";
    const auto parsed = Parse<CFG_NTP_INFO>("NTP", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_NTP_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_STREQ(parsed->szAddress, "time.example.org");
    EXPECT_EQ(parsed->nPort, 123);
    EXPECT_EQ(parsed->nUpdatePeriod, 4000000000u);
    EXPECT_EQ(parsed->nTimeZone, 3000000000u);
    EXPECT_STREQ(parsed->szTimeZoneDesc, "Delft");
    ASSERT_EQ(parsed->nServerNum, 2);
    EXPECT_EQ(parsed->stuServers[0].bEnable, 1);
    EXPECT_STREQ(parsed->stuServers[0].szAddress, "a.example.org");
    EXPECT_EQ(parsed->stuServers[0].nPort, 1231);
    EXPECT_EQ(parsed->stuServers[1].bEnable, 0);
    EXPECT_STREQ(parsed->stuServers[1].szAddress, "10.0.0.2");
    EXPECT_EQ(parsed->stuServers[1].nPort, 1232);
    EXPECT_EQ(Pack("NTP", *parsed), text);
}

TEST(Ntp, NegativeUnsignedNumbersAreZero) {
    const auto parsed = Parse<CFG_NTP_INFO>("NTP", R"({ "TimeZone" : -1, "UpdatePeriod" : -1, "Port" : -1 })");
    EXPECT_EQ(parsed->nTimeZone, 0u);
    EXPECT_EQ(parsed->nUpdatePeriod, 0u);
    EXPECT_EQ(parsed->nPort, -1);
}

TEST(Ntp, KeepsFourServers) {
    const auto list = [](int count) {
        return ListText(count, [](int i) {
            return R"({ "Address" : "s)" + std::to_string(i) + R"(", "Enable" : true, "Port" : )"
                   + std::to_string(100 + i) + " }";
        });
    };
    const auto text = [&](int count) {
        return R"({ "Address" : "", "Enable" : false, "Port" : 0, "ServerList" : )" + list(count)
               + R"(, "TimeZone" : 0, "TimeZoneDesc" : "", "UpdatePeriod" : 0 })";
    };
    auto parsed = Parse<CFG_NTP_INFO>("NTP", text(5));
    EXPECT_EQ(parsed->nServerNum, 4);
    EXPECT_EQ(parsed->stuServers[3].nPort, 103);
    parsed.record->nServerNum = 5;
    EXPECT_EQ(Pack("NTP", *parsed), text(4));
    parsed.record->nServerNum = 0;
    EXPECT_EQ(Pack("NTP", *parsed), R"({ "Address" : "", "Enable" : false, "Port" : 0, )"
                                    R"("TimeZone" : 0, "TimeZoneDesc" : "", "UpdatePeriod" : 0 })");
}

TEST(Ntp, TextsAreCutAtTheirCapacity) {
    const std::string x(300, 'x');
    const auto parsed = Parse<CFG_NTP_INFO>("NTP", R"({ "Address" : ")" + x + R"(", "TimeZoneDesc" : ")" + x
                                                       + R"(", "ServerList" : [ { "Address" : ")" + x + R"(" } ] })");
    EXPECT_EQ(std::string(parsed->szAddress), x.substr(0, 255));
    EXPECT_EQ(std::string(parsed->szTimeZoneDesc), x.substr(0, 127));
    EXPECT_EQ(std::string(parsed->stuServers[0].szAddress), x.substr(0, 255));
    EXPECT_EQ(parsed->stuServers[0].nPort, 0);
}

// ---- Telnet ----

TEST(Telnet, ThereAndBack) {
    const auto parsed = Parse<CFG_TELNET_INFO>("Telnet", R"({ "Enable" : true })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_TELNET_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_EQ(Pack("Telnet", *parsed), R"({ "Enable" : true })");
    EXPECT_EQ((Parse<CFG_TELNET_INFO>("Telnet", R"({ "Enable" : "false" })")->bEnable), 1); // no empty text
    EXPECT_EQ((Parse<CFG_TELNET_INFO>("Telnet", R"({ "Enable" : "" })")->bEnable), 0);
}

// ---- WorkTime ----

TEST(WorkTime, ThereAndBack) {
    const std::string text = R"({ "Enable" : true, "OutTimeEnd" : 4000000000, "OutTimeStart" : 3000000000, )"
                             R"("WorkTimeEnd" : "17:31:02", "WorkTimeStart" : "08:30:01" })";
    const auto parsed = Parse<CFG_WORK_TIME_INFO>("WorkTime", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, kNoLength + sizeof(CFG_WORK_TIME_INFO)); // added to
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_EQ(parsed->stuWorkTimeStart.dwYear, 0);
    EXPECT_EQ(parsed->stuWorkTimeStart.dwHour, 8);
    EXPECT_EQ(parsed->stuWorkTimeStart.dwMinute, 30);
    EXPECT_EQ(parsed->stuWorkTimeStart.dwSecond, 1);
    EXPECT_EQ(parsed->stuWorkTimeEnd.dwHour, 17);
    EXPECT_EQ(parsed->stuWorkTimeEnd.dwMinute, 31);
    EXPECT_EQ(parsed->stuWorkTimeEnd.dwSecond, 2);
    EXPECT_EQ(parsed->nOutTimeStart, 3000000000u);
    EXPECT_EQ(parsed->nOutTimeEnd, 4000000000u);
    EXPECT_EQ(Pack("WorkTime", *parsed), text);
}

TEST(WorkTime, AListIsOneRecordWithoutKeys) {
    const auto parsed = Parse<CFG_WORK_TIME_INFO>("WorkTime", R"([ { "Enable" : true } ])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, kNoLength + sizeof(CFG_WORK_TIME_INFO));
    EXPECT_TRUE(parsed.isCleared());
}

TEST(WorkTime, AMissingTableSucceedsWithNothingRead) {
    const auto parsed = Parse<CFG_WORK_TIME_INFO>("WorkTime", "null");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, kNoLength);
    EXPECT_TRUE(parsed.isCleared());
    EXPECT_FALSE((ParseDocument<CFG_WORK_TIME_INFO>("WorkTime", R"({ "params" : { "table" : { } } })")));
}

// ---- LightingSchedule ----

// A schedule whose cell of a row begins in that hour.
std::string Week(int rows) {
    return ListText(rows, [](int row) {
        return ListText(6, [&](int cell) {
            return Quoted("1 0" + std::to_string(row) + ":0" + std::to_string(cell) + ":00-23:59:59");
        });
    });
}

TEST(LightingSchedule, ThereAndBack) {
    for (const int rows : {7, 8}) {
        const std::string text = R"({ "TimeSchedule" : )" + Week(rows) + " }";
        const auto parsed = Parse<CFG_LIGHTING_SCHEDULE_INFO>("LightingSchedule", text);
        ASSERT_TRUE(parsed);
        EXPECT_EQ(parsed.length, kNoLength + sizeof(CFG_LIGHTING_SCHEDULE_INFO));
        EXPECT_EQ(parsed->stuTimeSchedule.bEnableHoliday, rows == 8);
        const CFG_TIME_SECTION& last = parsed->stuTimeSchedule.stuTimeSection[6][5];
        EXPECT_EQ(last.dwMask, 1);
        EXPECT_EQ(last.nBeginHour, 6);
        EXPECT_EQ(last.nBeginMin, 5);
        EXPECT_EQ(last.nEndSec, 59);
        EXPECT_EQ(parsed->stuTimeSchedule.stuTimeSection[7][5].nBeginHour, rows == 8 ? 7 : 0);
        EXPECT_EQ(Pack("LightingSchedule", *parsed), text);
    }
}

TEST(LightingSchedule, SixRowsSayThatThereIsNoHoliday) {
    const auto parsed =
        Parse<CFG_LIGHTING_SCHEDULE_INFO>("LightingSchedule", R"({ "TimeSchedule" : )" + Week(6) + " }");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->stuTimeSchedule.bEnableHoliday, 0);
    EXPECT_EQ(parsed->stuTimeSchedule.stuTimeSection[5][5].nBeginHour, 5);
    EXPECT_EQ(parsed->stuTimeSchedule.stuTimeSection[6][5].nBeginHour, 0);
}

TEST(LightingSchedule, ListsFillRecords) {
    const std::string one = R"({ "TimeSchedule" : )" + Week(8) + " }";
    const Records<CFG_LIGHTING_SCHEDULE_INFO> records(3, 0x5A);
    constexpr std::uint32_t kSize = sizeof(CFG_LIGHTING_SCHEDULE_INFO);
    EXPECT_EQ(ParseTable("LightingSchedule", "[ " + one + ", null, " + one + ", " + one + " ]", records),
              (Answer{1, kNoLength + 2 * kSize})); // the null is not counted
    EXPECT_EQ(records[0].stuTimeSchedule.bEnableHoliday, 1);
    EXPECT_EQ(records[1].stuTimeSchedule.bEnableHoliday, 0);
    EXPECT_EQ(records[2].stuTimeSchedule.bEnableHoliday, 1);
    const Records<CFG_LIGHTING_SCHEDULE_INFO> two(2);
    ASSERT_EQ(ParseTable("LightingSchedule", "[ " + one + ", " + one + " ]", two), (Answer{1, kNoLength + 2 * kSize}));
    EXPECT_EQ(PackAll("LightingSchedule", two), "[ " + one + ", " + one + " ]");
}

// ---- VTOBasicInfo ----

TEST(VtoBasicInfo, ThereAndBack) {
    const std::string text = R"({ "AnalogVersion" : "A1.2", "DeviceType" : 3, "FaceDetect" : true, )"
                             R"("Number" : "8001", "Position" : 4, "Type" : 2 })";
    // Some devices wrap the record in a list.
    for (const std::string& table : {text, "[ " + text + ", { \"Number\" : \"9\" } ]"}) {
        const auto parsed = Parse<CFG_VTO_BASIC_INFO>("VTOBasicInfo", table);
        ASSERT_TRUE(parsed);
        EXPECT_EQ(parsed.length, kNoLength + sizeof(CFG_VTO_BASIC_INFO));
        EXPECT_STREQ(parsed->szNumber, "8001");
        EXPECT_EQ(parsed->nDeviceType, 3);
        EXPECT_EQ(parsed->nType, 2);
        EXPECT_EQ(parsed->nPosition, 4);
        EXPECT_STREQ(parsed->szAnalogVersion, "A1.2");
        EXPECT_EQ(parsed->bFaceDetect, 1);
        EXPECT_EQ(Pack("VTOBasicInfo", *parsed), text);
    }
}

TEST(VtoBasicInfo, ListsWithoutAnObjectInFrontReadNothing) {
    for (const char* table : {"[ ]", "[ null ]", "[ 5 ]", R"([ [ { "Number" : "9" } ] ])"}) {
        const auto parsed = Parse<CFG_VTO_BASIC_INFO>("VTOBasicInfo", table);
        ASSERT_TRUE(parsed) << table;
        EXPECT_EQ(parsed.length, kNoLength + sizeof(CFG_VTO_BASIC_INFO)) << table;
        EXPECT_TRUE(parsed.isCleared()) << table;
    }
}

// ---- What the commands above have in common ----

TEST(DeviceSettings, RefusedRepliesAndMissingTablesFail) {
    for (const char* command :
         {"Locales",  "AppEventLanguage", "AutoMaintain",           "ClientCustomData", "DeviceKeepAlive",
          "NTP",      "Telnet",           "AccessFilter",           "NetCollection",    "PhoneEventNotify",
          "VSP_GAYS", "OilMassInfo",      "EmergencyRecordForPull", "IOT_RecordHandle", "IOT_SnapHandle",
          "RTMP",     "AlarmBell",        "AlarmSlotBond",          "AudioDetect",      "Lighting"}) {
        std::vector<char> buffer(512 << 10, 'x');
        const auto parse = [&](const char* document) {
            return CLIENT_ParseData(command, document, buffer.data(), static_cast<std::uint32_t>(buffer.size()),
                                    nullptr);
        };
        EXPECT_EQ(parse(R"({ "result" : false, "params" : { "table" : { } } })"), 0) << command;
        EXPECT_EQ(parse(R"({ "params" : { "table" : { } } })"), 0) << command;
        EXPECT_EQ(parse(R"({ "result" : true, "params" : { "table" : null } })"), 0) << command;
        EXPECT_EQ(parse("{"), 0) << command;
        EXPECT_EQ(buffer, std::vector<char>(buffer.size())) << command;
        EXPECT_EQ(parse(R"({ "result" : true, "params" : { "table" : { } } })"), 1) << command;
    }
}

TEST(DeviceSettings, OfTheOthersAMissingTableSucceedsWithNothingRead) {
    for (const char* command :
         {"WorkTime", "LightingSchedule", "VTOBasicInfo", "AroudWifiSearch", "GPS", "GPSLocationVersion"}) {
        std::vector<char> buffer(8 << 10, 'x');
        std::uint32_t length = 5;
        const auto parse = [&](const char* document) {
            return CLIENT_ParseData(command, document, buffer.data(), static_cast<std::uint32_t>(buffer.size()),
                                    &length);
        };
        EXPECT_EQ(parse(R"({ "result" : false, "params" : { "table" : { } } })"), 0) << command;
        EXPECT_EQ(parse(R"({ "params" : { "table" : { } } })"), 0) << command;
        EXPECT_EQ(parse("{"), 0) << command;
        EXPECT_EQ(parse(R"({ "result" : true, "params" : { "table" : null } })"), 1) << command;
        EXPECT_EQ(parse(R"({ "result" : true })"), 1) << command;
        EXPECT_EQ(length, 5u) << command;
        EXPECT_EQ(buffer, std::vector<char>(buffer.size())) << command;
    }
}

} // namespace
} // namespace orrery::test
