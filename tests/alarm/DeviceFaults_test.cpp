// Faults that a device watches itself for.
#include "alarm/RecordLists.h"
#include "orrery/alarm_device_faults.h"
#include "orrery/linkage.h"
#include "support/Call.h"
#include "support/JsonText.h"
#include "support/WeekText.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

using test::Cleared;
using test::kNotBegun;
using test::Many;
using test::Pack;
using test::Parse;
using test::ParseDocument;
using test::WeekText;

using Fault = CFG_FAULT_ALARM_INFO;

// The "EventHandler" of a clear record, and of one that was read without the key.
const std::string kNoHandler = "\"EventHandler\" : { \"TimeSection\" : " + WeekText(7) + " }";
const std::string kReadHandler =
    R"("EventHandler" : { "AlarmOutEnable" : false, "RecordEnable" : false, "TimeSection" : )" + WeekText(7) + " }";

// A linkage with one value, for replies.
std::string HandlerText(int delay) {
    return R"("EventHandler" : { "Delay" : )" + std::to_string(delay) + R"(, "TimeSection" : )"
           + WeekText(7, {{0, 0, "1 01:00:00-02:00:00"}}) + " }";
}
// The week stands in the schedule alone.
void ExpectPlain(const CFG_EVENT_HANDLER_INFO& handler, int delay) {
    EXPECT_EQ(handler.nDelay, delay);
    EXPECT_EQ(handler.abDelay, 1);
    EXPECT_EQ(handler.stuTimeSectionEx.stuTimeSection[0][0].nEndHour, 2);
    EXPECT_EQ(handler.stuTimeSection[0][0].nEndHour, 0);
}

// ---- A switch and a linkage ----

constexpr const char* kTested[] = {"ChassisIntrusion",
                                   "Emergency",
                                   "BatteryLowPowerAlarm",
                                   "MCSGeneralCapacityLow",
                                   "MCSDataNodeOffline",
                                   "MCSDiskOffline",
                                   "MCSDiskSlow",
                                   "MCSDiskBroken",
                                   "MCSDiskUnknowError",
                                   "MCSMetadataServerAbnormal",
                                   "MCSCatalogServerAbnormal",
                                   "MCSGeneralCapacityResume",
                                   "MCSDataNodeOnline",
                                   "MCSDiskOnline",
                                   "MCSMetadataSlaveOnline",
                                   "MCSCatalogServerOnline"};

void SwitchAndLinkage(const char* command) {
    const auto a = Parse<Fault>(command, R"({ "Enable" : 7, )" + HandlerText(3) + " }");
    ASSERT_TRUE(a) << command;
    EXPECT_EQ(a.length, sizeof(Fault));
    EXPECT_EQ(a->bEnable, 1);
    ExpectPlain(a->stuEventHandler, 3);

    const auto nothing = Parse<Fault>(command, "5");
    ASSERT_TRUE(nothing) << command;
    EXPECT_EQ(Pack(command, *nothing), R"({ "Enable" : false, )" + kReadHandler + " }");
    EXPECT_FALSE(Parse<Fault>(command, "null"));

    auto record = Cleared<Fault>();
    record->bEnable = -2;
    record->stuEventHandler.stuTimeSection[0][0] = {1, 1, 0, 0, 2, 0, 0}; // not written
    EXPECT_EQ(Pack(command, *record), R"({ "Enable" : true, )" + kNoHandler + " }") << command;
    EXPECT_EQ(test::PackBytes(command, record.get(), sizeof(Fault) - 1, 5000), kNotBegun) << command;
}

TEST(DeviceFaults, ASwitchAndALinkage) {
    for (const char* const command : kTested) {
        SwitchAndLinkage(command);
        const auto refused =
            ParseDocument<Fault>(command, R"({ "result" : false, "params" : { "table" : { "Enable" : true } } })");
        EXPECT_FALSE(refused) << command;
        EXPECT_TRUE(refused.isCleared()) << command;
        EXPECT_FALSE(ParseDocument<Fault>(command, R"({ "params" : { "table" : { "Enable" : true } } })")) << command;
    }
}

TEST(DeviceFaults, SomeAreReadFromRefusedCallsToo) {
    for (const char* const command : {"ParkingCard", "NetMonitorAbort"}) {
        SwitchAndLinkage(command);
        const auto refused =
            ParseDocument<Fault>(command, R"({ "result" : false, "params" : { "table" : { "Enable" : true } } })");
        ASSERT_TRUE(refused) << command;
        EXPECT_EQ(refused->bEnable, 1) << command;
    }
}

TEST(DeviceFaults, TheSwitchOfLockedUsersIsWrittenOnly) {
    const auto a =
        ParseDocument<Fault>("UserLockAlarm", R"({ "result" : false, "params" : { "table" : { "Enable" : true, )"
                                                  + HandlerText(4) + "} } }");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Fault));
    EXPECT_EQ(a->bEnable, 0);
    ExpectPlain(a->stuEventHandler, 4);
    auto record = Cleared<Fault>();
    record->bEnable = 2;
    EXPECT_EQ(Pack("UserLockAlarm", *record), R"({ "Enable" : true, )" + kNoHandler + " }");
    record->bEnable = 0;
    EXPECT_EQ(Pack("UserLockAlarm", *record), R"({ "Enable" : false, )" + kNoHandler + " }");
}

// ---- With numbers of their own ----

TEST(LoginFailureAlarm, BothWays) {
    using Record = CFG_LOGIN_FAILURE_INFO;
    const auto a =
        Parse<Record>("LoginFailureAlarm", R"({ "Enable" : true, "TryLoginTimes" : 5, )" + HandlerText(6) + " }");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Record));
    EXPECT_EQ(a->bEnable, 1);
    EXPECT_EQ(a->nTryLoginTimes, 5);
    ExpectPlain(a->stuEventHandler, 6);
    auto record = Cleared<Record>();
    record->nTryLoginTimes = -7;
    EXPECT_EQ(Pack("LoginFailureAlarm", *record),
              R"({ "Enable" : false, )" + kNoHandler + R"(, "TryLoginTimes" : -7 })");
    EXPECT_FALSE(ParseDocument<Record>("LoginFailureAlarm", R"({ "result" : 0, "params" : { "table" : { } } })"));
}

TEST(GpsNotAligned, CountsAreUnsigned) {
    using Record = CFG_NOTIFY_FAULT_INFO;
    for (const char* const command : {"GpsNotAligned", "WireLessNotConnected"}) {
        const auto a =
            Parse<Record>(command, R"({ "Enable" : true, "NotifyTimes" : 4294967295, )" + HandlerText(7) + " }");
        ASSERT_TRUE(a) << command;
        EXPECT_EQ(a.length, sizeof(Record));
        EXPECT_EQ(a->bEnable, 1);
        EXPECT_EQ(a->nNotifyTimes, 4294967295u);
        ExpectPlain(a->stuEventHandler, 7);
        EXPECT_EQ(Parse<Record>(command, R"({ "NotifyTimes" : -1 })")->nNotifyTimes, 0u);
        auto record = Cleared<Record>();
        record->nNotifyTimes = 3000000000u;
        EXPECT_EQ(Pack(command, *record), R"({ "Enable" : false, )" + kNoHandler + R"(, "NotifyTimes" : 3000000000 })");
        EXPECT_FALSE(ParseDocument<Record>(command, R"({ "params" : { "table" : { } } })")) << command;
    }
}

TEST(UnFocusDetect, KeepsItsWeekInTheLinkage) {
    using Record = CFG_UNFOCUS_DETECT_INFO;
    const auto a = ParseDocument<Record>("UnFocusDetect", R"({ "result" : false, "params" : { "table" : {
        "Enable" : true, "Sensitivity" : 4, )" + HandlerText(8)
                                                              + " } } }");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Record));
    EXPECT_EQ(a->bEnable, 1);
    EXPECT_EQ(a->nSensitivity, 4);
    EXPECT_EQ(a->stuEventHandler.nDelay, 8);
    EXPECT_EQ(a->stuEventHandler.stuTimeSection[0][0].nEndHour, 2);
    auto record = Cleared<Record>();
    record->bEnable = 1;
    record->nSensitivity = 6;
    record->stuEventHandler.stuTimeSection[0][0] = {1, 1, 0, 0, 2, 0, 0};
    EXPECT_EQ(Pack("UnFocusDetect", *record), R"({ "Enable" : true, "EventHandler" : { "TimeSection" : )"
                                                  + WeekText(7, {{0, 0, "1 01:00:00-02:00:00"}})
                                                  + R"( }, "Sensitivity" : 6 })");
}

// ---- "PowerFault" ----

TEST(PowerFault, EverythingRead) {
    const auto a = Parse<CFG_POWER_FAULT_INFO>(
        "PowerFault", R"([ { "Enable" : true, "CheckInterval" : 10,
        "EncodeBlend" : true, "Rect" : [ 1, 2, 3, 4 ], )"
                          + HandlerText(9) + R"( }, null, { "Enable" : true, "Rect" : [ 1, 2, 3 ] } ])");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(CFG_POWER_FAULT_INFO));
    EXPECT_EQ(a->nCount, 3);
    EXPECT_EQ(a->stuFaults[0].bEnable, 1);
    EXPECT_EQ(a->stuFaults[0].nCheckInterval, 10);
    EXPECT_EQ(a->stuFaults[0].bEncodeBlend, 1);
    EXPECT_EQ(a->stuFaults[0].stuRect.nLeft, 1);
    EXPECT_EQ(a->stuFaults[0].stuRect.nTop, 2);
    EXPECT_EQ(a->stuFaults[0].stuRect.nRight, 3);
    EXPECT_EQ(a->stuFaults[0].stuRect.nBottom, 4);
    ExpectPlain(a->stuFaults[0].stuEventHandler, 9);
    EXPECT_EQ(a->stuFaults[1].stuEventHandler.abRecordEnable, 1); // a null element is one without keys
    EXPECT_EQ(a->stuFaults[2].bEnable, 1);
    EXPECT_EQ(a->stuFaults[2].bEncodeBlend, 0);
    EXPECT_EQ(a->stuFaults[2].stuRect.nLeft, 0); // four numbers or none
    EXPECT_EQ(a->stuFaults[2].stuEventHandler.abRecordEnable, 1);
}

TEST(PowerFault, TakesAListAndNothingElse) {
    using Record = CFG_POWER_FAULT_INFO;
    for (const char* const table : {"{ }", "5", "\"x\"", "true", "null"}) {
        const auto a = Parse<Record>("PowerFault", table);
        EXPECT_FALSE(a) << table;
        EXPECT_TRUE(a.isCleared()) << table;
        EXPECT_EQ(a.length, test::kNoLength);
    }
    const auto empty = Parse<Record>("PowerFault", "[ ]");
    ASSERT_TRUE(empty);
    EXPECT_EQ(empty.length, sizeof(Record));
    EXPECT_TRUE(empty.isCleared());
    EXPECT_FALSE(ParseDocument<Record>("PowerFault", R"({ "result" : false, "params" : { "table" : [ { } ] } })"));
}

TEST(PowerFault, EndsAtEightBothWays) {
    EXPECT_EQ(Parse<CFG_POWER_FAULT_INFO>("PowerFault", Many(8, R"({ "CheckInterval" : 2 })"))->nCount, 8);
    const auto a = Parse<CFG_POWER_FAULT_INFO>("PowerFault", Many(9, R"({ "CheckInterval" : 2 })"));
    EXPECT_EQ(a->nCount, 8);
    EXPECT_EQ(a->stuFaults[7].nCheckInterval, 2);
    auto record = Cleared<CFG_POWER_FAULT_INFO>();
    for (const int count : {8, 9, INT32_MAX}) {
        record->nCount = count;
        const std::string packed = Pack("PowerFault", *record);
        test::Document text(packed);
        EXPECT_EQ(text.root.size(), 8u) << count;
    }
}

TEST(PowerFault, EverythingWritten) {
    auto record = Cleared<CFG_POWER_FAULT_INFO>();
    for (const int count : {0, -1}) {
        record->nCount = count;
        EXPECT_EQ(Pack("PowerFault", *record), "null");
    }
    record->nCount = 1;
    record->stuFaults[0].bEnable = 2;
    record->stuFaults[0].nCheckInterval = 11;
    record->stuFaults[0].bEncodeBlend = 3;
    record->stuFaults[0].stuRect = {5, 6, 7, 8};
    EXPECT_EQ(Pack("PowerFault", *record), R"([ { "CheckInterval" : 11, "Enable" : true, "EncodeBlend" : true, )"
                                               + kNoHandler + R"(, "Rect" : [ 5, 6, 7, 8 ] } ])");
    record->stuFaults[0].bEnable = 0;
    EXPECT_NE(Pack("PowerFault", *record).find(R"("Enable" : false, "EncodeBlend" : true)"), std::string::npos);
}

// ---- "BurnFull" ----

TEST(BurnFull, EverythingRead) {
    const auto a =
        Parse<CFG_BURN_FULL_INFO>("BurnFull", R"([ { "ChangeDisk" : true }, { "BurnStop" : true },
        { "Enable" : true, "lowerLimit" : 4000000000, "LowerLimit" : 5, "BurnDisk" : "sr0", )"
                                                  + HandlerText(10) + R"(, "TimeSection" : [ [ "1 3:0:0-4:0:0" ], null,
        [ "1 5:0:0-6:0:0", "bad", "1 7:0:0-8:0:0" ], [ "1 9:0:0-10:0:0" ] ] } ])");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(CFG_BURN_FULL_INFO));
    EXPECT_EQ(a->nCount, 3);
    EXPECT_EQ(a->stuBurners[0].bChangeDisk, 1);
    EXPECT_EQ(a->stuBurners[0].bBurnStop, 0);
    EXPECT_EQ(a->stuBurners[1].bBurnStop, 1);
    EXPECT_EQ(a->stuBurners[1].bEnable, 0);
    const CFG_BURN_FULL& third = a->stuBurners[2];
    EXPECT_EQ(third.bEnable, 1);
    EXPECT_EQ(third.bChangeDisk, 0);
    EXPECT_EQ(third.nLowerLimit, 4000000000u);
    EXPECT_STREQ(third.szBurnDisk, "sr0");
    ExpectPlain(third.stuEventHandler, 10);
    EXPECT_EQ(third.stuTimeSection[0][0].nEndHour, 4); // any digits
    EXPECT_EQ(third.stuTimeSection[2][0].nEndHour, 6);
    EXPECT_EQ(third.stuTimeSection[2][2].nEndHour, 0); // the bad cell ended it
    EXPECT_EQ(third.stuTimeSection[3][0].nEndHour, 0);
}

TEST(BurnFull, TakesAListOfThirtyTwo) {
    using Record = CFG_BURN_FULL_INFO;
    EXPECT_EQ(Parse<Record>("BurnFull", Many(32, "{ }"))->nCount, 32);
    EXPECT_EQ(Parse<Record>("BurnFull", Many(33, "{ }"))->nCount, 32);
    EXPECT_TRUE(Parse<Record>("BurnFull", "[ ]"));
    for (const char* const table : {"{ }", "5", "null"})
        EXPECT_FALSE(Parse<Record>("BurnFull", table)) << table;
    EXPECT_FALSE(ParseDocument<Record>("BurnFull", R"({ "params" : { "table" : [ { } ] } })"));
    auto record = Cleared<Record>();
    for (const int count : {32, 33, INT32_MAX}) {
        record->nCount = count;
        const std::string packed = Pack("BurnFull", *record);
        test::Document text(packed);
        EXPECT_EQ(text.root.size(), 32u) << count;
    }
    record->nCount = -1;
    EXPECT_EQ(Pack("BurnFull", *record), "null");
}

TEST(BurnFull, EverythingWritten) {
    auto record = Cleared<CFG_BURN_FULL_INFO>();
    EXPECT_EQ(Pack("BurnFull", *record), "null");
    record->nCount = 1;
    CFG_BURN_FULL& one = record->stuBurners[0];
    one.bBurnStop = 4;
    one.nLowerLimit = 3000000000u;
    std::strcpy(one.szBurnDisk, "sr1");
    one.stuTimeSection[6][5] = {1, 1, 2, 3, 4, 5, 6};
    EXPECT_EQ(Pack("BurnFull", *record),
              R"([ { "BurnDisk" : "sr1", "BurnStop" : true, "ChangeDisk" : false, "Enable" : false, )" + kNoHandler
                  + R"(, "TimeSection" : )" + WeekText(7, {{6, 5, "1 01:02:03-04:05:06"}})
                  + R"(, "lowerLimit" : 3000000000 } ])");
    one.bBurnStop = 0;
    one.bEnable = 1;
    EXPECT_NE(Pack("BurnFull", *record).find(R"("BurnStop" : false, "ChangeDisk" : false, "Enable" : true)"),
              std::string::npos);
    one.bEnable = 0;
    one.bChangeDisk = 1;
    EXPECT_NE(Pack("BurnFull", *record).find(R"("BurnStop" : false, "ChangeDisk" : true, "Enable" : false)"),
              std::string::npos);
}

// ---- "DiskFluxAlarm", "NetFluxAlarm" ----

TEST(FluxAlarms, EverythingRead) {
    using Record = CFG_FLUX_ALARM_INFO;
    for (const char* const command : {"DiskFluxAlarm", "NetFluxAlarm"}) {
        const auto a = Parse<Record>(command, R"({ "Enable" : true, "Normal" : [ 100, 4000000000 ], )" + HandlerText(11)
                                                  + R"(, "TimeSection" : [ [ "1 3:00:00-4:00:00" ] ] })");
        ASSERT_TRUE(a) << command;
        EXPECT_EQ(a.length, sizeof(Record));
        EXPECT_EQ(a->nEnable, 1);
        EXPECT_EQ(a->stuNormal.nLow, 100u);
        EXPECT_EQ(a->stuNormal.nHigh, 4000000000u);
        ExpectPlain(a->stuEventHandler, 11);
        EXPECT_EQ(a->stuTimeSection[0][0].nEndHour, 4);
        EXPECT_FALSE(ParseDocument<Record>(command, R"({ "result" : false, "params" : { "table" : { } } })"));
    }
}

TEST(FluxAlarms, LimitsAreTwoNumbersOrNone) {
    for (const char* const normal : {"[ 1 ]", "[ 1, 2, 3 ]", "[ ]", "5", "\"x\"", "{ \"a\" : 1, \"b\" : 2 }"}) {
        const auto a =
            Parse<CFG_FLUX_ALARM_INFO>("DiskFluxAlarm", R"({ "Enable" : 2, "Normal" : )" + std::string(normal) + " }");
        ASSERT_TRUE(a) << normal;
        EXPECT_EQ(a->nEnable, 2) << normal;
        EXPECT_EQ(a->stuNormal.nLow, 0u) << normal;
        EXPECT_EQ(a->stuNormal.nHigh, 0u) << normal;
    }
    const auto a = Parse<CFG_FLUX_ALARM_INFO>("DiskFluxAlarm", R"({ "Normal" : [ -5, null ] })");
    EXPECT_EQ(a->stuNormal.nLow, 0u);
}

TEST(FluxAlarms, TheWeekEndsAtItsFirstBadCell) {
    const auto a = Parse<CFG_FLUX_ALARM_INFO>("NetFluxAlarm", R"({ "TimeSection" : [ [ "1 3:0:0-4:0:0" ], null,
        [ "1 5:0:0-6:0:0", 5, "1 7:0:0-8:0:0" ], [ "1 9:0:0-10:0:0" ] ] })");
    EXPECT_EQ(a->stuTimeSection[0][0].nEndHour, 4);
    EXPECT_EQ(a->stuTimeSection[2][0].nEndHour, 6);
    EXPECT_EQ(a->stuTimeSection[2][2].nEndHour, 0);
    EXPECT_EQ(a->stuTimeSection[3][0].nEndHour, 0);
}

TEST(FluxAlarms, EverythingWritten) {
    for (const char* const command : {"DiskFluxAlarm", "NetFluxAlarm"}) {
        auto record = Cleared<CFG_FLUX_ALARM_INFO>();
        record->nEnable = 3; // a number
        record->stuNormal = {7, 4294967295u};
        record->stuTimeSection[0][1] = {1, 1, 2, 3, 4, 5, 6};
        EXPECT_EQ(Pack(command, *record), R"({ "Enable" : 3, )" + kNoHandler
                                              + R"(, "Normal" : [ 7, 4294967295 ], "TimeSection" : )"
                                              + WeekText(7, {{0, 1, "1 01:02:03-04:05:06"}}) + " }");
    }
}

// ---- "TemperatureAlarm", "FanSpeedAlarm" ----

using Climate = CFG_CLIMATE_ALARM_INFO;

void ExpectSizeWords(const CFG_EVENT_HANDLER_V2_INFO& handler) {
    EXPECT_EQ(handler.dwSize, sizeof handler);
    for (const auto& day : handler.stuTimeSection) {
        for (const auto& section : day)
            EXPECT_EQ(section.dwSize, 32u);
    }
    EXPECT_EQ(handler.stuPtzLink[0].dwSize, 24u);
    EXPECT_EQ(handler.stuPtzLink[1023].dwSize, 24u);
    for (const auto* const title : {&handler.stuSnapshotTitle[0], &handler.stuSnapshotTitle[31],
                                    &handler.stuVideoTitle[0], &handler.stuVideoTitle[31]}) {
        EXPECT_EQ(title->dwSize, 132u);
        EXPECT_EQ(title->stuPoint.dwSize, 12u);
        EXPECT_EQ(title->stuSize.dwSize, 12u);
        EXPECT_EQ(title->stuFrontColor.dwSize, 20u);
        EXPECT_EQ(title->stuBackColor.dwSize, 20u);
    }
    EXPECT_EQ(handler.stuTour[0].dwSize, 4112u);
    EXPECT_EQ(handler.stuTour[127].dwSize, 4112u);
}

TEST(ClimateAlarms, EverythingRead) {
    for (const char* const command : {"TemperatureAlarm", "FanSpeedAlarm"}) {
        const auto a = Parse<Climate>(command, R"({ "Name" : "Board", "Enable" : true, "Normal" : [ -10.5, 70, "x" ],
            "EventHandler" : { "Delay" : 12, "RecordChannels" : [ 1023 ],
                               "TimeSection" : [ [ "1 01:00:00-02:00:00" ] ] } })");
        ASSERT_TRUE(a) << command;
        EXPECT_EQ(a.length, sizeof(Climate));
        EXPECT_STREQ(a->szName, "Board");
        EXPECT_EQ(a->bEnable, 1);
        EXPECT_EQ(a->nNormalNum, 3);
        EXPECT_EQ(a->fNormal[0], -10.5f);
        EXPECT_EQ(a->fNormal[1], 70.0f);
        EXPECT_EQ(a->fNormal[2], 0.0f);
        EXPECT_EQ(a->stuEventHandler.nDelay, 12);
        EXPECT_EQ(a->stuEventHandler.abDelay, 1);
        EXPECT_EQ(a->stuEventHandler.nRecordChannels[1023], 1);
        EXPECT_EQ(a->stuEventHandler.stuTimeSection[0][0].stuSection.nEndHour, 2);
        ExpectSizeWords(a->stuEventHandler);
    }
}

TEST(ClimateAlarms, ListsEndAtEight) {
    EXPECT_EQ(Parse<Climate>("FanSpeedAlarm", R"({ "Normal" : )" + Many(8, "1") + " }")->nNormalNum, 8);
    const auto a = Parse<Climate>("FanSpeedAlarm", R"({ "Normal" : )" + Many(9, "1") + " }");
    EXPECT_EQ(a->nNormalNum, 8);
    EXPECT_EQ(a->fNormal[7], 1.0f);
}

TEST(ClimateAlarms, SizeWordsAreSetByReadingAlone) {
    const auto nothing = Parse<Climate>("TemperatureAlarm", "{ }");
    ASSERT_TRUE(nothing);
    ExpectSizeWords(nothing->stuEventHandler);
    EXPECT_TRUE(Parse<Climate>("TemperatureAlarm", "null").isCleared());
    const auto refused =
        ParseDocument<Climate>("TemperatureAlarm", R"({ "result" : false, "params" : { "table" : { } } })");
    EXPECT_FALSE(refused);
    EXPECT_TRUE(refused.isCleared());
}

// The text of a linkage with size words of which only its parts are given.
std::string SizedHandler(const std::string& week, const std::string& titles = "") {
    return R"("EventHandler" : { "AlarmOutEnable" : false, "BeepEnable" : false, "ExAlarmOutEnable" : false, )"
           R"("JpegSummary" : "", "LogEnable" : false, "MMSEnable" : false, "MailEnable" : false, )"
           R"("MessageEnable" : false, "PtzLinkEnable" : false, "RecordEnable" : false, "SnapshotEnable" : false, )"
           + titles + R"("SnapshotTitleEnable" : false, "TimeSection" : )" + week
           + R"(, "TipEnable" : false, "VideoTitleEnable" : false, "VoiceEnable" : false })";
}

TEST(ClimateAlarms, EverythingWritten) {
    for (const char* const command : {"TemperatureAlarm", "FanSpeedAlarm"}) {
        auto a = Parse<Climate>(command, "{ }");
        EXPECT_EQ(Pack(command, *a),
                  R"({ "Enable" : false, )" + SizedHandler(WeekText(7)) + R"(, "Name" : "", "Normal" : [  ] })");
        std::strcpy(a.record->szName, "Fan");
        a.record->bEnable = 2;
        a.record->nNormalNum = 2;
        a.record->fNormal[0] = 0.5f;
        a.record->fNormal[1] = -3.0f;
        EXPECT_EQ(Pack(command, *a),
                  R"({ "Enable" : true, )" + SizedHandler(WeekText(7))
                      + R"(, "Name" : "Fan", "Normal" : [ 0.5000000000000000, -3.000000000000000 ] })");
        a.record->nNormalNum = 9;
        const std::string packed = Pack(command, *a);
        test::Document text(packed);
        EXPECT_EQ(text.root["Normal"].size(), 8u);
    }
}

TEST(ClimateAlarms, PartsOfAnotherSizeAreLeftOut) {
    auto a = Parse<Climate>("TemperatureAlarm", R"({ "EventHandler" : { "SnapshotTitle" : [ { "Text" : "T",
        "Point" : [ 1, 2 ], "Size" : [ 3, 4 ], "FrontColor" : [ 5, 6, 7, 8 ], "BackColor" : [ 9, 10, 11, 12 ] } ] } })");
    CFG_EVENT_TITLE_V2& title = a.record->stuEventHandler.stuSnapshotTitle[0];
    title.stuPoint.dwSize = 8;
    title.stuBackColor.dwSize = 24;
    a.record->stuEventHandler.dwSize = 0; // of a record that is not converted nobody asks
    a.record->stuEventHandler.stuTimeSection[0][0].dwSize = 31;
    a.record->stuEventHandler.stuTimeSection[0][1].dwSize = 33;
    std::string week = WeekText(7);
    week.replace(week.find(test::kNoSection), 2 * test::kNoSection.size() + 2, "null, null");
    EXPECT_EQ(Pack("TemperatureAlarm", *a),
              R"({ "Enable" : false, )"
                  + SizedHandler(week, R"("SnapshotTitle" : [ { "BackColor" : null, "FrontColor" : [ 5, 6, 7, 8 ], )"
                                       R"("Point" : null, "Size" : [ 3, 4 ], "Text" : "T" } ], )")
                  + R"(, "Name" : "", "Normal" : [  ] })");
}

TEST(ClimateAlarms, ARecordWithoutSizeWordsHasAWeekOfNulls) {
    const auto record = Cleared<Climate>();
    const std::string day = "[ null, null, null, null, null, null ]";
    EXPECT_EQ(Pack("FanSpeedAlarm", *record),
              R"({ "Enable" : false, )" + SizedHandler(Many(7, day)) + R"(, "Name" : "", "Normal" : [  ] })");
}

} // namespace
} // namespace orrery
