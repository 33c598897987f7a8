// Alarms of vehicles and of counters.
#include "alarm/RecordLists.h"
#include "orrery/alarm_device_vehicle.h"
#include "support/Call.h"
#include "support/JsonText.h"
#include "support/WeekText.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

using test::Cleared;
using test::Many;
using test::Pack;
using test::Parse;
using test::ReadsRefused;
using test::WeekText;

const std::string kNoHandler = "\"EventHandler\" : { \"TimeSection\" : " + WeekText(7) + " }";

TEST(HighSpeed, BothWays) {
    const auto a = Parse<CFG_HIGH_SPEED_INFO>("HighSpeed", R"({ "Enable" : true, "SpeedHighLine" : 120, "Time" : 5,
        "AlertSpeed" : 110, "InstantSpeed" : 150, "EventHandler" : { "Delay" : 1 } })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(CFG_HIGH_SPEED_INFO));
    EXPECT_EQ(a->bEnable, 1);
    EXPECT_EQ(a->nSpeedHighLine, 120);
    EXPECT_EQ(a->nTime, 5);
    EXPECT_EQ(a->nAlertSpeed, 110);
    EXPECT_EQ(a->nInstantSpeed, 150);
    EXPECT_EQ(a->stuEventHandler.nDelay, 1);
    EXPECT_EQ(Parse<CFG_HIGH_SPEED_INFO>("HighSpeed", "{ }")->stuEventHandler.abRecordEnable, 1);
    EXPECT_TRUE(ReadsRefused<CFG_HIGH_SPEED_INFO>("HighSpeed"));
    auto record = Cleared<CFG_HIGH_SPEED_INFO>();
    record->bEnable = 2;
    record->nSpeedHighLine = 1;
    record->nTime = 2;
    record->nAlertSpeed = 3;
    record->nInstantSpeed = 4;
    EXPECT_EQ(Pack("HighSpeed", *record), R"({ "AlertSpeed" : 3, "Enable" : true, )" + kNoHandler
                                              + R"(, "InstantSpeed" : 4, "SpeedHighLine" : 1, "Time" : 2 })");
}

TEST(LowSpeed, BothWays) {
    const auto a = Parse<CFG_LOW_SPEED_INFO>("LowSpeed", R"({ "Enable" : true, "SpeedLowLine" : 20, "Time" : 6,
        "SpeedMotion" : 3, "EventHandler" : { "Delay" : 2 } })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(CFG_LOW_SPEED_INFO));
    EXPECT_EQ(a->bEnable, 1);
    EXPECT_EQ(a->nSpeedLowLine, 20);
    EXPECT_EQ(a->nTime, 6);
    EXPECT_EQ(a->nSpeedMotion, 3);
    EXPECT_EQ(a->stuEventHandler.nDelay, 2);
    EXPECT_TRUE(ReadsRefused<CFG_LOW_SPEED_INFO>("LowSpeed"));
    auto record = Cleared<CFG_LOW_SPEED_INFO>();
    record->nSpeedLowLine = 1;
    record->nTime = 2;
    record->nSpeedMotion = 3;
    EXPECT_EQ(Pack("LowSpeed", *record),
              R"({ "Enable" : false, )" + kNoHandler + R"(, "SpeedLowLine" : 1, "SpeedMotion" : 3, "Time" : 2 })");
}

TEST(RCEmergencyCall, BothWays) {
    using Record = CFG_RC_EMERGENCY_CALL_INFO;
    const std::string seventy(70, 'm');
    const auto a =
        Parse<Record>("RCEmergencyCall", R"({ "Enable" : true, "Mode" : ")" + seventy + R"(", "AlarmType" : "Help",
        "EventHandler" : { "Delay" : 3 } })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Record));
    EXPECT_EQ(a->bEnable, 1);
    EXPECT_EQ(a->szMode, std::string(63, 'm'));
    EXPECT_STREQ(a->szAlarmType, "Help");
    EXPECT_EQ(a->stuEventHandler.nDelay, 3);
    EXPECT_TRUE(ReadsRefused<Record>("RCEmergencyCall"));
    auto record = Cleared<Record>();
    record->bEnable = 1;
    std::memset(record->szMode, 'm', sizeof record->szMode); // no terminator
    std::strcpy(record->szAlarmType, "a");
    EXPECT_EQ(Pack("RCEmergencyCall", *record), R"({ "AlarmType" : "a", "Enable" : true, )" + kNoHandler
                                                    + R"(, "Mode" : ")" + std::string(64, 'm') + "\" }");
}

// ---- "TimeSpeedLimit" ----

TEST(TimeSpeedLimit, BothWays) {
    using Record = CFG_TIME_SPEED_LIMIT_INFO;
    const auto a = Parse<Record>("TimeSpeedLimit", R"([ { }, { "Enable" : true, "DaySpeedLimit" : 100,
        "NightSpeedLimit" : 80, "BeginDay" : { "Month" : 4, "Day" : 15 }, "EndDay" : { "Month" : 10, "Day" : 20 },
        "DayTime" : "1 06:07:08-19:20:21" }, { "DayTime" : "1 006:00:00-7:00:00" } ])");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Record));
    EXPECT_EQ(a->nCount, 3);
    const CFG_TIME_SPEED_LIMIT& one = a->stuLimits[1];
    EXPECT_EQ(one.bEnable, 1);
    EXPECT_EQ(one.nDaySpeedLimit, 100);
    EXPECT_EQ(one.nNightSpeedLimit, 80);
    EXPECT_EQ(one.stuBeginDay.nMonth, 4);
    EXPECT_EQ(one.stuBeginDay.nDay, 15);
    EXPECT_EQ(one.stuEndDay.nMonth, 10);
    EXPECT_EQ(one.stuEndDay.nDay, 20);
    EXPECT_EQ(one.stuDayTime.dwMask, 1);
    EXPECT_EQ(one.stuDayTime.nBeginHour, 6);
    EXPECT_EQ(one.stuDayTime.nBeginMin, 7);
    EXPECT_EQ(one.stuDayTime.nBeginSec, 8);
    EXPECT_EQ(one.stuDayTime.nEndHour, 19);
    EXPECT_EQ(one.stuDayTime.nEndMin, 20);
    EXPECT_EQ(one.stuDayTime.nEndSec, 21);
    EXPECT_EQ(a->stuLimits[2].stuDayTime.nEndHour, 0); // two digits a part
    const std::string clear = R"({ "BeginDay" : { "Day" : 0, "Month" : 0 }, "DaySpeedLimit" : 0, )"
                              R"("DayTime" : "0 00:00:00-00:00:00", "Enable" : false, )"
                              R"("EndDay" : { "Day" : 0, "Month" : 0 }, "NightSpeedLimit" : 0 })";
    EXPECT_EQ(Pack("TimeSpeedLimit", *a),
              "[ " + clear
                  + R"(, { "BeginDay" : { "Day" : 15, "Month" : 4 }, "DaySpeedLimit" : 100, )"
                    R"("DayTime" : "1 06:07:08-19:20:21", "Enable" : true, "EndDay" : { "Day" : 20, "Month" : 10 }, )"
                    R"("NightSpeedLimit" : 80 }, { "BeginDay" : { "Day" : 0, "Month" : 0 }, "DaySpeedLimit" : 0, )"
                    R"("DayTime" : "1 00:00:00-00:00:00", "Enable" : false, "EndDay" : { "Day" : 0, "Month" : 0 }, )"
                    R"("NightSpeedLimit" : 0 } ])");
}

template <class Record>
void ListInOneRecord(const char* command, int bound) {
    SCOPED_TRACE(command);
    EXPECT_EQ(Parse<Record>(command, Many(bound, "{ }"))->nCount, bound);
    EXPECT_EQ(Parse<Record>(command, Many(bound + 1, "{ }"))->nCount, bound);
    const auto empty = Parse<Record>(command, "[ ]");
    EXPECT_TRUE(empty);
    EXPECT_EQ(empty.length, sizeof(Record));
    EXPECT_TRUE(empty.isCleared());
    for (const char* const table : {"{ }", "5", "\"x\"", "null"}) {
        const auto a = Parse<Record>(command, table);
        EXPECT_FALSE(a) << table;
        EXPECT_TRUE(a.isCleared()) << table;
    }
    EXPECT_FALSE(ReadsRefused<Record>(command, "[ { } ]"));
    auto record = Cleared<Record>();
    EXPECT_EQ(Pack(command, *record), "null");
    record->nCount = -1;
    EXPECT_EQ(Pack(command, *record), "null");
    for (const int count : {bound, bound + 1, INT32_MAX}) {
        record->nCount = count;
        const std::string packed = Pack(command, *record);
        test::Document text(packed);
        EXPECT_EQ(text.root.size(), static_cast<unsigned>(bound));
    }
}

TEST(TimeSpeedLimit, IsAListOfSixteen) {
    ListInOneRecord<CFG_TIME_SPEED_LIMIT_INFO>("TimeSpeedLimit", 16);
}

// ---- "VoiceAlert" ----

TEST(VoiceAlert, IsAListOfSixtyFour) {
    ListInOneRecord<CFG_VOICE_ALERT_INFO>("VoiceAlert", 64);
}

TEST(VoiceAlert, BothWays) {
    using Record = CFG_VOICE_ALERT_INFO;
    const auto a = Parse<Record>("VoiceAlert", R"([ { "Interval" : 30, "Text" : "Mind the gap", "Time" : "7:5" } ])");
    ASSERT_TRUE(a);
    EXPECT_EQ(a->nCount, 1);
    EXPECT_EQ(a->stuAlerts[0].nInterval, 30);
    EXPECT_STREQ(a->stuAlerts[0].szText, "Mind the gap");
    EXPECT_EQ(a->stuAlerts[0].nHour, 7);
    EXPECT_EQ(a->stuAlerts[0].nMinute, 5);
    EXPECT_EQ(Pack("VoiceAlert", *a), R"([ { "Interval" : 30, "Text" : "Mind the gap", "Time" : "07:05" } ])");
}

TEST(VoiceAlert, TimesAreScanned) {
    struct Scanned {
        const char* time;
        int hour;
        int minute;
    };
    for (const Scanned& one : {Scanned{"\"23:59\"", 23, 59}, Scanned{"\" 8: 30x\"", 8, 30}, Scanned{"\"8\"", 8, 0},
                               Scanned{"\"8 :30\"", 8, 0}, Scanned{"\"8:x\"", 8, 0}, Scanned{"\"x8:30\"", 0, 0},
                               Scanned{"\"008:0030:15\"", 8, 30}, Scanned{"\"-1:+2\"", -1, 2}, Scanned{"830", 0, 0},
                               Scanned{"\"\"", 0, 0}, Scanned{"true", 0, 0}, Scanned{"[ \"8:30\" ]", 0, 0}}) {
        const auto a = Parse<CFG_VOICE_ALERT_INFO>("VoiceAlert", R"([ { "Time" : )" + std::string(one.time) + " } ]");
        ASSERT_TRUE(a) << one.time;
        EXPECT_EQ(a->stuAlerts[0].nHour, one.hour) << one.time;
        EXPECT_EQ(a->stuAlerts[0].nMinute, one.minute) << one.time;
    }
}

TEST(VoiceAlert, TimesArePadded) {
    auto record = Cleared<CFG_VOICE_ALERT_INFO>();
    record->nCount = 1;
    struct Printed {
        int hour;
        int minute;
        const char* text;
    };
    for (const Printed& one : {Printed{0, 0, "00:00"}, Printed{23, 9, "23:09"}, Printed{100, -1, "100:-1"},
                               Printed{INT32_MIN, INT32_MAX, "-2147483648:2147483647"}}) {
        record->stuAlerts[0].nHour = one.hour;
        record->stuAlerts[0].nMinute = one.minute;
        EXPECT_EQ(Pack("VoiceAlert", *record),
                  R"([ { "Interval" : 0, "Text" : "", "Time" : ")" + std::string(one.text) + "\" } ]");
    }
}

// ---- Numbers alone ----

TEST(CQDTSet, BothWays) {
    const auto a = Parse<CFG_CQDT_SET_INFO>("CQDTSet", R"({ "MaxGoodsWeight" : 1, "MinGoodsWeight" : 2,
        "SelfWeight" : 3, "StandardWeight" : 4, "AlarmWeight" : 5, "CheckTime" : -6 })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(CFG_CQDT_SET_INFO));
    EXPECT_EQ(a->nMaxGoodsWeight, 1);
    EXPECT_EQ(a->nMinGoodsWeight, 2);
    EXPECT_EQ(a->nSelfWeight, 3);
    EXPECT_EQ(a->nStandardWeight, 4);
    EXPECT_EQ(a->nAlarmWeight, 5);
    EXPECT_EQ(a->nCheckTime, -6);
    EXPECT_FALSE(ReadsRefused<CFG_CQDT_SET_INFO>("CQDTSet"));
    EXPECT_EQ(Pack("CQDTSet", CFG_CQDT_SET_INFO{11, 12, 13, 14, 15, 16}),
              R"({ "AlarmWeight" : 15, "CheckTime" : 16, "MaxGoodsWeight" : 11, "MinGoodsWeight" : 12, )"
              R"("SelfWeight" : 13, "StandardWeight" : 14 })");
}

TEST(Oil4GFlow, BothWays) {
    const auto a = Parse<CFG_OIL_4G_FLOW_INFO>("Oil4GFlow", R"({ "FlowRateMode" : 1, "FlowRateMax" : 2 })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(CFG_OIL_4G_FLOW_INFO));
    EXPECT_EQ(a->nFlowRateMode, 1);
    EXPECT_EQ(a->nFlowRateMax, 2);
    EXPECT_TRUE(ReadsRefused<CFG_OIL_4G_FLOW_INFO>("Oil4GFlow"));
    EXPECT_EQ(Pack("Oil4GFlow", CFG_OIL_4G_FLOW_INFO{3, 4}), R"({ "FlowRateMax" : 4, "FlowRateMode" : 3 })");
}

TEST(VideoWidget4GFlow, BothWays) {
    using Record = CFG_VIDEO_WIDGET_4G_FLOW_INFO;
    const auto a = Parse<Record>("VideoWidget4GFlow", R"({ "EncodeBlend" : true, "Rect" : [ 1, 2, 3, 4 ] })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Record));
    EXPECT_EQ(a->bEncodeBlend, 1);
    EXPECT_EQ(a->stuRect.nLeft, 1);
    EXPECT_EQ(a->stuRect.nTop, 2);
    EXPECT_EQ(a->stuRect.nRight, 3);
    EXPECT_EQ(a->stuRect.nBottom, 4);
    EXPECT_EQ(Parse<Record>("VideoWidget4GFlow", R"({ "Rect" : [ 1, 2, 3, 4, 5 ] })")->stuRect.nLeft, 0);
    EXPECT_TRUE(ReadsRefused<Record>("VideoWidget4GFlow"));
    EXPECT_EQ(Pack("VideoWidget4GFlow", Record{2, {5, 6, 7, 8}}),
              R"({ "EncodeBlend" : true, "Rect" : [ 5, 6, 7, 8 ] })");
}

TEST(FetchMoneyOverTime, IsOneNumberInAMember) {
    using Record = CFG_FETCH_MONEY_OVER_TIME_INFO;
    static_assert(sizeof(Record) == 4);
    const auto a = Parse<Record>("FetchMoneyOverTime", R"({ "FetchMoneyOverTime" : { "TimeLimit" : 90 },
                                                            "TimeLimit" : 5 })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, 4u);
    EXPECT_EQ(a->nTimeLimit, 90);
    EXPECT_EQ(Parse<Record>("FetchMoneyOverTime", R"({ "TimeLimit" : 5 })")->nTimeLimit, 0);
    EXPECT_FALSE(Parse<Record>("FetchMoneyOverTime", "null"));
    EXPECT_TRUE(ReadsRefused<Record>("FetchMoneyOverTime"));
    EXPECT_EQ(Pack("FetchMoneyOverTime", Record{-4}), R"({ "FetchMoneyOverTime" : { "TimeLimit" : -4 } })");
}

} // namespace
} // namespace orrery
