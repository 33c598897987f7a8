// "Record", "RecordMode", "HolidaySchedule", "recordManager.getCaps".
#include "orrery/recording.h"
#include "support/Call.h"
#include "support/WeekText.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace orrery::test {
namespace {

using Plans = Records<CFG_RECORD_INFO>;
constexpr std::uint32_t kPlan = sizeof(CFG_RECORD_INFO);

void ExpectSection(const CFG_TIME_SECTION& section, const std::array<std::int32_t, 7>& parts) {
    EXPECT_EQ(section.dwMask, parts[0]);
    EXPECT_EQ(section.nBeginHour, parts[1]);
    EXPECT_EQ(section.nBeginMin, parts[2]);
    EXPECT_EQ(section.nBeginSec, parts[3]);
    EXPECT_EQ(section.nEndHour, parts[4]);
    EXPECT_EQ(section.nEndMin, parts[5]);
    EXPECT_EQ(section.nEndSec, parts[6]);
}

// ---- "Record" ----

const std::string kPlanWithHolidays =
    R"({"PreRecord":7,"Redundancy":true,"Stream":2,"HolidayEnable":true,"TimeSection":)"
    + WeekText(8, {{0, 0, "3 01:02:03-04:05:06"}, {6, 5, "64 07:08:09-10:11:12"}, {7, 1, "16 13:14:15-16:17:18"}})
    + "}";

TEST(Record, GoesRoundWhole) {
    const Plans plans(1, 0x11);
    ASSERT_EQ(ParseTable("Record", kPlanWithHolidays, plans, R"("channel":5,)"), (Answer{1, kPlan}));
    const CFG_RECORD_INFO plan = plans[0];
    EXPECT_EQ(plan.nChannel, 5);
    ExpectSection(plan.stuTimeSection[0][0], {0x05, 1, 2, 3, 4, 5, 6});
    ExpectSection(plan.stuTimeSection[6][5], {0x40, 7, 8, 9, 10, 11, 12});
    ExpectSection(plan.stuTimeSection[3][3], {0, 0, 0, 0, 0, 0, 0});
    EXPECT_EQ(plan.nPreRecord, 7);
    EXPECT_EQ(plan.bRedundancy, 1u);
    EXPECT_EQ(plan.nStream, 2);
    EXPECT_EQ(plan.nFormatVersion, 3u);
    EXPECT_EQ(plan.bHolidaySupported, 1u);
    EXPECT_EQ(plan.bHolidayEnable, 1u);
    ExpectSection(plan.stuHolidayTimeSection[1], {0x08, 13, 14, 15, 16, 17, 18});
    EXPECT_EQ(
        PackAll("Record", plans),
        R"({ "HolidayEnable" : true, "PreRecord" : 7, "Redundancy" : true, "Stream" : 2, "TimeSection" : )"
            + WeekText(8,
                       {{0, 0, "3 01:02:03-04:05:06"}, {6, 5, "64 07:08:09-10:11:12"}, {7, 1, "16 13:14:15-16:17:18"}})
            + " }");
}

TEST(Record, MasksHaveAnotherOrderOfBits) {
    // Each bit of the text by itself, with those that no record has.
    const std::int32_t masks[][2] = {{0x01, 0x04}, {0x02, 0x01}, {0x04, 0x02},    {0x08, 0}, {0x10, 0x08}, {0x20, 0},
                                     {0x40, 0x40}, {0x80, 0},    {0x3FFFFF80, 0}, {3, 0x05}, {0x57, 0x4F}, {-1, 0x4F}};
    for (const auto& [text, record] : masks) {
        const Plans plans(1);
        const std::string section = std::to_string(text) + " 00:00:00-24:00:00";
        ASSERT_EQ(ParseTable("Record", R"({"TimeSection":[[")" + section + R"("]]})", plans, R"("channel":0,)"),
                  (Answer{1, kPlan}));
        EXPECT_EQ(plans[0].stuTimeSection[0][0].dwMask, record) << text;
    }
    const std::int32_t back[][2] = {{0x01, 0x02}, {0x02, 0x04}, {0x04, 0x01}, {0x08, 0x10}, {0x10, 0},
                                    {0x20, 0},    {0x40, 0x40}, {0x80, 0},    {-1, 0x57},   {0x05, 3}};
    for (const auto& [record, text] : back) {
        CFG_RECORD_INFO plan{};
        plan.stuTimeSection[2][4].dwMask = record;
        EXPECT_EQ(Pack("Record", plan), R"({ "PreRecord" : 0, "Redundancy" : false, "Stream" : 0, "TimeSection" : )"
                                            + WeekText(7, {{2, 4, std::to_string(text) + " 00:00:00-00:00:00"}}) + " }")
            << record;
    }
}

TEST(Record, OnlyAnEighthRowTellsOfHolidays) {
    const Plans plans(1);
    const std::string seven = R"({"HolidayEnable":true,"TimeSection":)" + WeekText(7) + "}";
    ASSERT_EQ(ParseTable("Record", seven, plans, R"("channel":0,)"), (Answer{1, kPlan}));
    EXPECT_EQ(plans[0].bHolidaySupported, 0u);
    EXPECT_EQ(plans[0].bHolidayEnable, 0u);
    ASSERT_EQ(ParseTable("Record", R"({"HolidayEnable":true})", plans, R"("channel":0,)"), (Answer{1, kPlan}));
    EXPECT_EQ(plans[0].bHolidayEnable, 0u);
    // A row that is none counts as one, and those behind the eighth are passed over.
    ASSERT_EQ(ParseTable("Record",
                         R"({"HolidayEnable":true,"TimeSection":[0,0,0,0,0,0,0,null,["2 01:00:00-02:00:00"]]})", plans,
                         R"("channel":0,)"),
              (Answer{1, kPlan}));
    EXPECT_EQ(plans[0].bHolidaySupported, 1u);
    EXPECT_EQ(plans[0].bHolidayEnable, 1u);
    EXPECT_EQ(plans[0].stuHolidayTimeSection[0].dwMask, 0);
    // What is off is written all the same once holidays are supported, and nothing of them before.
    CFG_RECORD_INFO plan{};
    plan.bHolidayEnable = 1;
    plan.stuHolidayTimeSection[0].dwMask = 1;
    const std::string week = R"("TimeSection" : )" + WeekText(7) + " }";
    EXPECT_EQ(Pack("Record", plan), R"({ "PreRecord" : 0, "Redundancy" : false, "Stream" : 0, )" + week);
    plan.bHolidaySupported = 2;
    plan.bHolidayEnable = 0;
    EXPECT_EQ(Pack("Record", plan),
              R"({ "HolidayEnable" : false, "PreRecord" : 0, "Redundancy" : false, "Stream" : 0, "TimeSection" : )"
                  + WeekText(8, {{7, 0, "2 00:00:00-00:00:00"}}) + " }");
}

TEST(Record, WhatIsNoPeriodLeavesItsPlaceZero) {
    const Plans plans(1);
    ASSERT_EQ(ParseTable("Record",
                         R"({"TimeSection":[[5,null,["2 01:02:03-04:05:06"],"2 01:02:03","","2 008:00:00-09:00:00",)"
                         R"("2 01:00:00-02:00:00"],{"a":1},"2 01:02:03-04:05:06",[{},"4 1:2:3-4:5:6"]]})",
                         plans, R"("channel":0,)"),
              (Answer{1, kPlan}));
    const auto& week = plans[0].stuTimeSection;
    for (const int column : {0, 1, 2, 4})
        ExpectSection(week[0][column], {0, 0, 0, 0, 0, 0, 0});
    ExpectSection(week[0][3], {0x01, 1, 2, 3, 0, 0, 0}); // as far as it is a period
    ExpectSection(week[0][5], {0x01, 0, 0, 0, 0, 0, 0}); // two digits a part: "00", then no colon
    ExpectSection(week[1][0], {0, 0, 0, 0, 0, 0, 0});    // the seventh of a day has no place
    ExpectSection(week[2][0], {0, 0, 0, 0, 0, 0, 0});
    ExpectSection(week[3][1], {0x02, 1, 2, 3, 4, 5, 6});
}

TEST(Record, TheReplysChannelTellsOneRecordFromAList) {
    const std::string one = R"({"PreRecord":4})";
    const std::string list = R"([{"PreRecord":5},null,{"PreRecord":6}])";
    const auto read = [](const std::string& table, const std::string& top, const std::string& params) {
        const Plans plans(2, 0x11);
        const Answer answer = ParseTable("Record", table, plans, top, params);
        if (answer.result == 0) {
            EXPECT_TRUE(plans.isAll(0)) << table;
            return std::string("refused");
        }
        return std::to_string(answer.length / kPlan) + ":" + std::to_string(plans[0].nChannel) + "/"
               + std::to_string(plans[0].nPreRecord) + " " + std::to_string(plans[1].nChannel) + "/"
               + std::to_string(plans[1].nPreRecord);
    };
    EXPECT_EQ(read(one, R"("channel":0,)", ""), "1:0/4 0/0");
    EXPECT_EQ(read(one, R"("channel":9,)", ""), "1:9/4 0/0");
    EXPECT_EQ(read(list, R"("channel":9,)", ""), "1:9/0 0/0"); // a list has no keys
    EXPECT_EQ(read(one, "", ""), "refused");
    EXPECT_EQ(read(one, R"("channel":-1,)", ""), "refused");
    EXPECT_EQ(read("7", "", ""), "refused");
    EXPECT_EQ(read(list, "", ""), "2:0/5 1/0"); // a null is a channel's record too, the third has no room
    EXPECT_EQ(read(list, R"("channel":-1,)", ""), "2:0/5 1/0");
    EXPECT_EQ(read(R"([{"PreRecord":5},{"PreRecord":6}])", "", ""), "2:0/5 1/6");
    // The one among the parameters counts when the reply has none of its own.
    EXPECT_EQ(read(one, "", R"("channel":3,)"), "1:3/4 0/0");
    EXPECT_EQ(read(one, R"("channel":null,)", R"("channel":3,)"), "1:3/4 0/0");
    EXPECT_EQ(read(one, R"("channel":2,)", R"("channel":3,)"), "1:2/4 0/0");
    EXPECT_EQ(read(one, R"("channel":2,)", R"("channel":-3,)"), "1:2/4 0/0");
    EXPECT_EQ(read(one, R"("channel":-1,)", R"("channel":3,)"), "refused");
    EXPECT_EQ(read(list, "", R"("channel":-3,)"), "2:0/5 1/0");
}

TEST(Record, AMissingTableSucceedsWithoutRecords) {
    const Plans plans(2, 0x11);
    for (const char* table : {"null", "[]"}) {
        ASSERT_EQ(ParseTable("Record", table, plans), (Answer{1, 0})) << table;
        EXPECT_TRUE(plans.isAll(0));
    }
    EXPECT_EQ(ParseTable("Record", "null", plans, R"("channel":2,)"), (Answer{1, 0}));
    EXPECT_TRUE(plans.isAll(0));
    EXPECT_EQ(ParseDocument("Record", R"({"result":true})", plans), (Answer{1, 0}));
    for (const char* document :
         {"{", "", R"({"params":{"table":[{}]}})", R"({"result":false,"params":{"table":[{}]}})"})
        EXPECT_EQ(ParseDocument("Record", document, plans), kRefused) << document;
    const Records<char> tooSmall(kPlan - 1, 0x11);
    EXPECT_EQ(ParseDocument("Record", R"({"result":true})", tooSmall), kRefused);
    EXPECT_TRUE(tooSmall.isAll(0x11));
}

TEST(Record, ReadsAbsentKeysAsZeroAndStreamsUnsigned) {
    const Plans plans(4, 0x11);
    ASSERT_EQ(ParseTable("Record", R"([{},{"Stream":-4},{"Stream":4294967295},null])", plans), (Answer{1, 4 * kPlan}));
    EXPECT_EQ(plans[0].nPreRecord, 0);
    EXPECT_EQ(plans[0].bRedundancy, 0u);
    EXPECT_EQ(plans[0].nStream, 0);
    EXPECT_EQ(plans[0].nFormatVersion, 3u);
    EXPECT_EQ(plans[1].nStream, 0); // a negative number is none
    EXPECT_EQ(plans[1].nChannel, 1);
    EXPECT_EQ(plans[2].nStream, -1);
    EXPECT_EQ(plans[3].nChannel, 3); // a null has no keys
    EXPECT_EQ(plans[3].nFormatVersion, 3u);
    EXPECT_EQ(plans[3].bHolidaySupported, 0u);
    EXPECT_EQ(plans[3].stuTimeSection[0][0].dwMask, 0);
}

TEST(Record, SeveralAreWrittenAsAList) {
    CFG_RECORD_INFO plan{};
    plan.nChannel = 3;
    plan.nStream = -1; // no key
    plan.bRedundancy = 2;
    const std::string first = R"({ "PreRecord" : 0, "Redundancy" : true, "TimeSection" : )" + WeekText(7) + " }";
    EXPECT_EQ(Pack("Record", plan), first);
    Plans two(2);
    two.Set(0, plan);
    plan.nStream = 0;
    plan.bRedundancy = 0;
    two.Set(1, plan);
    EXPECT_EQ(PackAll("Record", two), "[ " + first
                                          + R"(, { "PreRecord" : 0, "Redundancy" : false, "Stream" : 0, )"
                                            R"("TimeSection" : )"
                                          + WeekText(7) + " } ]");
    // A part of a second one is none.
    const Plans spare(1, 9, 0);
    EXPECT_EQ(PackAll("Record", spare).front(), '{');
    EXPECT_EQ(PackBytes("Record", &plan, kPlan - 1, 4096), kNotBegun);
    const std::string text = PackBytes("Record", &plan, kPlan, kAmple);
    EXPECT_EQ(PackBytes("Record", &plan, kPlan, text.size() + 1), text);
    EXPECT_EQ(PackBytes("Record", &plan, kPlan, text.size()), kFailed);
}

// ---- "RecordMode" ----

using Modes = Records<CFG_RECORD_MODE_INFO>;
constexpr std::uint32_t kMode = sizeof(CFG_RECORD_MODE_INFO);

// The first record's size word is the caller's to set.
struct ModeRecords : Modes {
    explicit ModeRecords(std::size_t count) : Modes(count, 0x11) { std::memcpy(data(), &kMode, sizeof kMode); }
};

TEST(RecordMode, GoesRoundAsOneRecordAndAsAList) {
    const ModeRecords one(1);
    ASSERT_EQ(ParseTable("RecordMode", R"({"Mode":1,"ModeExtra1":2,"ModeExtra2":-3})", one), (Answer{1, kMode}));
    EXPECT_EQ(one[0].dwSize, kMode);
    EXPECT_EQ(one[0].nChannel, 0);
    EXPECT_EQ(one[0].nMode, 1);
    EXPECT_EQ(one[0].nModeExtra1, 2);
    EXPECT_EQ(one[0].nModeExtra2, -3);
    EXPECT_EQ(PackAll("RecordMode", one), R"({ "Mode" : 1, "ModeExtra1" : 2, "ModeExtra2" : -3 })");

    const ModeRecords three(3);
    ASSERT_EQ(ParseTable("RecordMode", R"([{"Mode":4},null,{"ModeExtra1":5},{"Mode":6}])", three),
              (Answer{1, 3 * kMode}));
    EXPECT_EQ(three[0].nMode, 4);
    EXPECT_EQ(three[1].nMode, 0); // a null has no keys
    EXPECT_EQ(three[2].nModeExtra1, 5);
    EXPECT_EQ(PackAll("RecordMode", three), R"([ { "Mode" : 4, "ModeExtra1" : 0, "ModeExtra2" : 0 }, )"
                                            R"({ "Mode" : 0, "ModeExtra1" : 0, "ModeExtra2" : 0 }, )"
                                            R"({ "Mode" : 0, "ModeExtra1" : 5, "ModeExtra2" : 0 } ])");
}

TEST(RecordMode, TheFirstSizeWordIsTheDistance) {
    // A caller that knows dwSize, nChannel and nMode alone.
    const std::uint32_t known = 12;
    const Records<std::int32_t> words(7, 0x22);
    std::memcpy(words.data(), &known, sizeof known);
    ASSERT_EQ(ParseTable("RecordMode", R"([{"Mode":1,"ModeExtra1":2},{"Mode":3}])", words), (Answer{1, 2 * known}));
    EXPECT_EQ(words[0], 12);
    EXPECT_EQ(words[1], 0);
    EXPECT_EQ(words[2], 1);
    EXPECT_EQ(words[3], 0x22222222); // the second record's own word stays
    EXPECT_EQ(words[5], 3);
    EXPECT_EQ(words[6], 0x22222222); // behind both
    EXPECT_EQ(PackBytes("RecordMode", words.data(), 2 * known, 4096),
              "[ { \"Mode\" : 1, \"ModeExtra1\" : 0, \"ModeExtra2\" : 0 }, "
              "{ \"Mode\" : 3, \"ModeExtra1\" : 0, \"ModeExtra2\" : 0 } ]\n");
    // A caller with a sixth word: it stays.
    const std::uint32_t newer = 24;
    const Records<std::int32_t> wide(12, 0x22);
    std::memcpy(wide.data(), &newer, sizeof newer);
    ASSERT_EQ(ParseTable("RecordMode", R"([{"Mode":1},{"ModeExtra2":4}])", wide), (Answer{1, 2 * newer}));
    EXPECT_EQ(wide[2], 1);
    EXPECT_EQ(wide[5], 0x22222222);
    EXPECT_EQ(wide[10], 4);
    EXPECT_EQ(wide[11], 0x22222222);
    for (const std::uint32_t bad : {0u, 3u, 29u, 0x80000000u}) {
        std::memcpy(words.data(), &bad, sizeof bad);
        EXPECT_EQ(ParseTable("RecordMode", R"({"Mode":1})", words), kRefused) << bad;
        EXPECT_EQ(PackBytes("RecordMode", words.data(), words.size(), 4096), kNotBegun) << bad;
    }
}

TEST(RecordMode, NeedsAnAcceptedTable) {
    const ModeRecords modes(1);
    for (const char* document :
         {"{", R"({"params":{"table":{}}})", R"({"result":false,"params":{"table":{}}})", R"({"result":true})",
          R"({"result":true,"params":{"table":5}})", R"({"result":true,"params":{"table":[]}})"}) {
        EXPECT_EQ(ParseDocument("RecordMode", document, modes), kRefused) << document;
        EXPECT_EQ(modes[0].nMode, 0x11111111);
    }
}

// ---- "HolidaySchedule" ----

using Holidays = Records<CFG_HOLIDAY_SCHEDULE_INFO>;
constexpr std::uint32_t kHoliday = sizeof(CFG_HOLIDAY_SCHEDULE_INFO);

Answer ParseHolidays(const std::string& value, const Holidays& records) {
    return ParseDocument("HolidaySchedule", R"({"HolidaySchedule":)" + value + "}", records);
}

TEST(HolidaySchedule, GoesRoundWhole) {
    const Holidays records(1, 0x11);
    ASSERT_EQ(ParseHolidays(R"({"En":true,"Chn":4,"MonthSchedule":[1,2,3,4,5,6,7,8,9,10,11,2147483648],)"
                            R"("TimeSectionGroup":["3 01:02:03-04:05:06","5 07:08:09-10:11:12",6,null,"",)"
                            R"("16 13:14:15-16:17:18"]})",
                            records),
              (Answer{1, kHoliday}));
    const CFG_HOLIDAY_SCHEDULE_INFO read = records[0];
    EXPECT_EQ(read.bEnable, 1);
    EXPECT_EQ(read.nChannel, 3);
    for (std::uint32_t month = 0; month < 11; ++month)
        EXPECT_EQ(read.nMonthSchedule[month], month + 1);
    EXPECT_EQ(read.nMonthSchedule[11], 2147483648u);
    ExpectSection(read.stuTimeSection[0], {0x05, 1, 2, 3, 4, 5, 6});
    ExpectSection(read.stuTimeSection[1], {0x06, 7, 8, 9, 10, 11, 12});
    ExpectSection(read.stuTimeSection[2], {0, 0, 0, 0, 0, 0, 0});
    ExpectSection(read.stuTimeSection[5], {0x08, 13, 14, 15, 16, 17, 18});
    EXPECT_EQ(PackAll("HolidaySchedule", records),
              R"({ "HolidaySchedule" : { "Chn" : 4, "En" : true, )"
              R"("MonthSchedule" : [ 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 2147483648 ], )"
              R"("TimeSectionGroup" : [ "3 01:02:03-04:05:06", "5 07:08:09-10:11:12", "0 00:00:00-00:00:00", )"
              R"("0 00:00:00-00:00:00", "0 00:00:00-00:00:00", "16 13:14:15-16:17:18" ] } })");
}

TEST(HolidaySchedule, TakesOneRecordOrAList) {
    const Holidays records(3, 0x11);
    ASSERT_EQ(ParseHolidays(R"([{"Chn":2},null,{"Chn":1},{"Chn":9}])", records), (Answer{1, 3 * kHoliday}));
    EXPECT_EQ(records[0].nChannel, 1);
    EXPECT_EQ(records[1].nChannel, 0); // stays zero: a null is no record
    EXPECT_EQ(records[2].nChannel, 0);
    const std::string rest = R"("En" : false, "MonthSchedule" : [ 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0 ], )"
                             R"("TimeSectionGroup" : [ "0 00:00:00-00:00:00", "0 00:00:00-00:00:00", )"
                             R"("0 00:00:00-00:00:00", "0 00:00:00-00:00:00", "0 00:00:00-00:00:00", )"
                             R"("0 00:00:00-00:00:00" ] })";
    EXPECT_EQ(PackAll("HolidaySchedule", records), R"({ "HolidaySchedule" : [ { "Chn" : 2, )" + rest
                                                       + R"(, { "Chn" : 1, )" + rest + R"(, { "Chn" : 1, )" + rest
                                                       + " ] }");
    // Absent keys, a thirteenth month and a seventh period.
    const Holidays one(1, 0x11);
    ASSERT_EQ(ParseHolidays(R"({"MonthSchedule":[0,0,0,0,0,0,0,0,0,0,0,0,13],)"
                            R"("TimeSectionGroup":["","","","","","","3 01:02:03-04:05:06"]})",
                            one),
              (Answer{1, kHoliday}));
    EXPECT_TRUE(one.isAll(0));
    ASSERT_EQ(ParseHolidays(R"({"Chn":0})", one), (Answer{1, kHoliday}));
    EXPECT_EQ(one[0].nChannel, -1);
}

TEST(HolidaySchedule, LooksForItsOwnKeyAlone) {
    const Holidays records(1, 0x11);
    EXPECT_EQ(ParseDocument("HolidaySchedule", R"({"result":false,"HolidaySchedule":{"Chn":7}})", records),
              (Answer{1, kHoliday})); // a refused call too
    EXPECT_EQ(records[0].nChannel, 6);
    for (const char* document : {"{", "{}", R"({"HolidaySchedule":null})", R"({"HolidaySchedule":[]})",
                                 R"({"HolidaySchedule":5})", R"({"result":true,"params":{"table":{"Chn":7}}})"}) {
        EXPECT_EQ(ParseDocument("HolidaySchedule", document, records), kRefused) << document;
        EXPECT_TRUE(records.isAll(0)) << document;
    }
    const std::string text = PackBytes("HolidaySchedule", records.data(), kHoliday, kAmple);
    EXPECT_EQ(PackBytes("HolidaySchedule", records.data(), kHoliday, text.size() + 1), text);
    EXPECT_EQ(PackBytes("HolidaySchedule", records.data(), kHoliday, text.size()), kFailed);
}

// ---- "recordManager.getCaps" ----

TEST(RecordCaps, ReadsAllKeys) {
    const auto parsed = ParseDocument<CFG_RECORD_CAPS>(
        "recordManager.getCaps",
        R"({"result":true,"params":{"caps":{"SupportHoliday":true,"SupportExtraRecordMode":5,"MaxPreRecordTime":3,)"
        R"("MaxRemoteBitrate":4,"MaxRemoteRawBitrate":6,"MaxStreams":7}}})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_RECORD_CAPS));
    EXPECT_EQ(parsed->bSupportHoliday, 1);
    EXPECT_EQ(parsed->bSupportExtraRecordMode, 1);
    EXPECT_EQ(parsed->nMaxPreRecordTime, 3);
    EXPECT_EQ(parsed->nMaxRemoteBitrate, 4);
    EXPECT_EQ(parsed->nMaxRemoteRawBitrate, 6);
    EXPECT_EQ(parsed->nMaxStreams, 7);
    for (const char* document : {R"({"params":{"caps":{}}})", R"({"result":false,"params":{"caps":{}}})",
                                 R"({"result":true,"params":{"table":{}}})"}) {
        const auto refused = ParseDocument<CFG_RECORD_CAPS>("recordManager.getCaps", document);
        EXPECT_FALSE(refused) << document;
        EXPECT_TRUE(refused.isCleared());
    }
    CFG_RECORD_CAPS caps{};
    EXPECT_EQ(PackBytes("recordManager.getCaps", &caps, sizeof caps, 4096), kNotBegun);
}

} // namespace
} // namespace orrery::test
