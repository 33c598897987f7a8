#include "frame/JsonParserSupport.h"
#include "support/GuardedBuffer.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstring>

namespace orrery {
namespace {

using test::ParsedText;
using test::StringValue;
using test::TextOf;

constexpr std::int32_t kBefore = 77; // what stood in a field that must stay

CFG_TIME_SECTION Filled(std::int32_t number) {
    return {number, number, number, number, number, number, number};
}

bool operator==(const CFG_TIME_SECTION& a, const CFG_TIME_SECTION& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// A matrix of sections whose text is all the same.
std::string Matrix(int rows, int columns, const std::string& cell = "\"1 08:00:00-17:30:00\"") {
    std::string text = "[";
    for (int r = 0; r < rows; ++r) {
        text += r == 0 ? "[" : ",[";
        for (int c = 0; c < columns; ++c)
            text += (c == 0 ? "" : ",") + cell;
        text += "]";
    }
    return text + "]";
}

constexpr CFG_TIME_SECTION kWorkday = {1, 8, 0, 0, 17, 30, 0};

// ---- One section ----

TEST(TimeSection, IsReadInFieldOrder) {
    CFG_TIME_SECTION section = Filled(kBefore);
    EXPECT_TRUE(JsonParser::GetTimeSection(StringValue("1 02:03:04-05:06:07"), &section));
    EXPECT_EQ(section.dwMask, 1);
    EXPECT_EQ(section.nBeginHour, 2);
    EXPECT_EQ(section.nBeginMin, 3);
    EXPECT_EQ(section.nBeginSec, 4);
    EXPECT_EQ(section.nEndHour, 5);
    EXPECT_EQ(section.nEndMin, 6);
    EXPECT_EQ(section.nEndSec, 7);
    EXPECT_TRUE(JsonParser::GetTimeSection(StringValue("4095 00:00:00-24:00:00"), &section));
    EXPECT_TRUE(section == (CFG_TIME_SECTION{4095, 0, 0, 0, 24, 0, 0}));
    EXPECT_TRUE(JsonParser::GetTimeSection(StringValue("64 08:09:10-17:30:59"), &section));
    EXPECT_TRUE(section == (CFG_TIME_SECTION{64, 8, 9, 10, 17, 30, 59}));
    EXPECT_TRUE(JsonParser::GetTimeSection(StringValue("-7 08:09:10-17:30:59"), &section));
    EXPECT_TRUE(section == (CFG_TIME_SECTION{-7, 8, 9, 10, 17, 30, 59}));
    EXPECT_TRUE(JsonParser::GetTimeSection(StringValue(" 1 08:00:00-17:30:00"), &section));
    EXPECT_TRUE(section == kWorkday);
    EXPECT_FALSE(JsonParser::GetTimeSection(StringValue("x1 08:00:00-17:30:00"), &section));
    EXPECT_TRUE(JsonParser::GetTimeSection(StringValue(" 1 8:0:0-17:30:0"), &section));
    EXPECT_TRUE(section == kWorkday);
    EXPECT_TRUE(JsonParser::GetTimeSection(StringValue("1 08:00:00-17:30:00 and more"), &section));
    EXPECT_TRUE(section == kWorkday);
    EXPECT_TRUE(JsonParser::GetTimeSection(StringValue("1 08:00:00-17:30:009"), &section)) << "two digits are taken";
    EXPECT_TRUE(section == kWorkday);
    EXPECT_TRUE(JsonParser::GetTimeSection(StringValue("-2 -1:+2: 3--4:5:6"), &section));
    EXPECT_TRUE(section == (CFG_TIME_SECTION{-2, -1, 2, 3, -4, 5, 6}));
}

TEST(TimeSection, AnEmptyTextLeavesTheSection) {
    CFG_TIME_SECTION section = Filled(kBefore);
    for (const char* text : {"\"\"", "null", "5", "[ \"1 08:00:00-17:30:00\" ]", "{ \"a\" : 1 }", "true", "\"bad\""}) {
        EXPECT_FALSE(JsonParser::GetTimeSection(ParsedText(text).root(), &section)) << text;
        EXPECT_TRUE(section == Filled(kBefore)) << text;
    }
    EXPECT_FALSE(JsonParser::GetTimeSection(StringValue("1 08:00:00-17:30:00"), nullptr));
}

TEST(TimeSection, FieldsBeforeAMismatchStayWritten) {
    CFG_TIME_SECTION section = Filled(kBefore);
    EXPECT_FALSE(JsonParser::GetTimeSection(StringValue("1 08:15;00-17:30:00"), &section));
    EXPECT_TRUE(section == (CFG_TIME_SECTION{1, 8, 15, kBefore, kBefore, kBefore, kBefore}));
    section = Filled(kBefore);
    EXPECT_FALSE(JsonParser::GetTimeSection(StringValue("3 08:15:16-17:30:"), &section));
    EXPECT_TRUE(section == (CFG_TIME_SECTION{3, 8, 15, 16, 17, 30, kBefore}));
    section = Filled(kBefore);
    EXPECT_FALSE(JsonParser::GetTimeSection(StringValue("1 08 :15:16-17:30:00"), &section))
        << "no blank before a colon";
    EXPECT_TRUE(section == (CFG_TIME_SECTION{1, 8, kBefore, kBefore, kBefore, kBefore, kBefore}));
}

TEST(TimeSection, TheNarrowFormatTakesTwoDigitsTheWideOneAll) {
    CFG_TIME_SECTION section = Filled(kBefore);
    EXPECT_TRUE(JsonParser::GetTimeSection(StringValue("1 08:00:00-9:00:00"), &section));
    EXPECT_TRUE(section == (CFG_TIME_SECTION{1, 8, 0, 0, 9, 0, 0}));
    CFG_TIME_SECTION wide = Filled(kBefore);
    EXPECT_TRUE(JsonParser::GetTimeSchedule(ParsedText("[ [ \"1 08:00:00-9:00:00\" ] ]").root(), &wide, 1, 1, nullptr));
    EXPECT_TRUE(wide == section);

    section = Filled(kBefore);
    EXPECT_FALSE(JsonParser::GetTimeSection(StringValue("1 008:00:00-9:00:00"), &section));
    EXPECT_TRUE(section == (CFG_TIME_SECTION{1, 0, kBefore, kBefore, kBefore, kBefore, kBefore}));
    wide = Filled(kBefore);
    EXPECT_TRUE(
        JsonParser::GetTimeSchedule(ParsedText("[ [ \"1 008:00:00-9:00:00\" ] ]").root(), &wide, 1, 1, nullptr));
    EXPECT_TRUE(wide == (CFG_TIME_SECTION{1, 8, 0, 0, 9, 0, 0}));
}

TEST(TimeSection, IsWrittenWithTwoDigitsAField) {
    const auto written = [](CFG_TIME_SECTION section) {
        return TextOf([&](json::TextWriter& out) { JsonParser::SetTimeSection(out, &section); });
    };
    EXPECT_EQ(written(kWorkday), "\"1 08:00:00-17:30:00\"");
    EXPECT_EQ(written(Filled(0)), "\"0 00:00:00-00:00:00\"");
    EXPECT_EQ(written({4095, 100, 7, 59, 24, 0, 9}), "\"4095 100:07:59-24:00:09\"");
    EXPECT_EQ(written({-1, -1, -12, 0, 0, 0, 0}), "\"-1 -1:-12:00-00:00:00\"");
    EXPECT_EQ(written(Filled(INT_MIN)), "\"-2147483648 -2147483648:-2147483648:-2147483648"
                                        "--2147483648:-2147483648:-2147483648\"");
}

// ---- Schedules ----

TEST(TimeSchedule, ReadsAMatrixRowByRow) {
    const ParsedText document("[ [ \"1 8:0:0-17:30:0\", \"0 00:00:00-01:00:00\" ], [ \"2 1:2:3-4:5:6\" ] ]");
    CFG_TIME_SECTION sections[2][3];
    for (auto& row : sections) {
        for (CFG_TIME_SECTION& section : row)
            section = Filled(kBefore);
    }
    int rows = 99;
    EXPECT_TRUE(JsonParser::GetTimeSchedule(document.root(), &sections[0][0], 2, 3, &rows));
    EXPECT_EQ(rows, 2);
    EXPECT_TRUE(sections[0][0] == kWorkday);
    EXPECT_TRUE(sections[0][1] == (CFG_TIME_SECTION{0, 0, 0, 0, 1, 0, 0}));
    EXPECT_TRUE(sections[0][2] == Filled(kBefore));
    EXPECT_TRUE(sections[1][0] == (CFG_TIME_SECTION{2, 1, 2, 3, 4, 5, 6})) << "the stride is the caller's";
    EXPECT_TRUE(sections[1][1] == Filled(kBefore));
}

TEST(TimeSchedule, StopsAtTheCallersBounds) {
    CFG_TIME_SECTION sections[2][2];
    for (auto& row : sections) {
        for (CFG_TIME_SECTION& section : row)
            section = Filled(kBefore);
    }
    int rows = 99;
    EXPECT_TRUE(JsonParser::GetTimeSchedule(ParsedText(Matrix(9, 9)).root(), &sections[0][0], 1, 2, &rows));
    EXPECT_EQ(rows, 1);
    EXPECT_TRUE(sections[0][0] == kWorkday);
    EXPECT_TRUE(sections[0][1] == kWorkday);
    EXPECT_TRUE(sections[1][0] == Filled(kBefore));
    rows = 99;
    EXPECT_TRUE(JsonParser::GetTimeSchedule(ParsedText(Matrix(1, 1)).root(), &sections[0][0], INT_MAX, INT_MAX, &rows));
    EXPECT_EQ(rows, 1) << "the document is the bound";
}

TEST(TimeSchedule, RefusesWhatIsNoMatrixWithNothingTouched) {
    CFG_TIME_SECTION section = Filled(kBefore);
    int rows = 99;
    for (const char* text :
         {"null", "[  ]", "5", "\"1 08:00:00-17:30:00\"", "{ \"a\" : [ \"1 08:00:00-17:30:00\" ] }"}) {
        EXPECT_FALSE(JsonParser::GetTimeSchedule(ParsedText(text).root(), &section, 1, 1, &rows)) << text;
    }
    const ParsedText good(Matrix(1, 1));
    EXPECT_FALSE(JsonParser::GetTimeSchedule(good.root(), nullptr, 1, 1, &rows));
    EXPECT_FALSE(JsonParser::GetTimeSchedule(good.root(), &section, 0, 1, &rows));
    EXPECT_FALSE(JsonParser::GetTimeSchedule(good.root(), &section, 1, 0, &rows));
    EXPECT_FALSE(JsonParser::GetTimeSchedule(good.root(), &section, INT_MIN, 1, &rows));
    EXPECT_FALSE(JsonParser::GetTimeSchedule(good.root(), &section, 1, -1, &rows));
    EXPECT_EQ(rows, 99);
    EXPECT_TRUE(section == Filled(kBefore));
}

TEST(TimeSchedule, SkipsRowsThatAreNone) {
    const ParsedText document("[ null, [  ], 5, \"text\", { \"a\" : \"b\" }, [ \"1 08:00:00-17:30:00\" ] ]");
    CFG_TIME_SECTION sections[6];
    for (CFG_TIME_SECTION& section : sections)
        section = Filled(kBefore);
    int rows = 0;
    EXPECT_TRUE(JsonParser::GetTimeSchedule(document.root(), sections, 6, 1, &rows));
    EXPECT_EQ(rows, 6);
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(sections[i] == Filled(kBefore)) << i;
    EXPECT_TRUE(sections[5] == kWorkday);
}

TEST(TimeSchedule, ABadCellEndsItWithWhatWasRead) {
    const ParsedText document("[ [ \"1 08:00:00-17:30:00\", \"2 03:04\", \"1 08:00:00-17:30:00\" ],"
                              " [ \"1 08:00:00-17:30:00\" ] ]");
    CFG_TIME_SECTION sections[2][3];
    for (auto& row : sections) {
        for (CFG_TIME_SECTION& section : row)
            section = Filled(kBefore);
    }
    int rows = 99;
    EXPECT_FALSE(JsonParser::GetTimeSchedule(document.root(), &sections[0][0], 2, 3, &rows));
    EXPECT_EQ(rows, 2) << "told before the cells are looked at";
    EXPECT_TRUE(sections[0][0] == kWorkday);
    EXPECT_TRUE(sections[0][1] == (CFG_TIME_SECTION{2, 3, 4, kBefore, kBefore, kBefore, kBefore}));
    EXPECT_TRUE(sections[0][2] == Filled(kBefore));
    EXPECT_TRUE(sections[1][0] == Filled(kBefore));
    for (const char* text : {"[ [ \"bad\" ] ]", "[ [ null ] ]", "[ [ 5 ] ]", "[ [ [ \"1 08:00:00-17:30:00\" ] ] ]"}) {
        EXPECT_FALSE(JsonParser::GetTimeSchedule(ParsedText(text).root(), &sections[0][0], 2, 3, nullptr)) << text;
    }
}

// Each field at each number of digits, against what printf makes of it; and no byte outside the room is touched.
TEST(TimeSection, WritesEveryNumberOfEveryField) {
    for (int field = 0; field < 7; ++field) {
        for (const int number :
             {INT_MIN, -65536, -100, -1, 0,  1,  9,  10,  19,  20,  29,  30,    49,    50,    59,    60,    69,
              70,      79,     80,   89, 90, 98, 99, 100, 255, 256, 999, 32767, 32768, 65535, 65536, 65546, INT_MAX}) {
            std::int32_t fields[7] = {1, 2, 3, 4, 5, 6, 7};
            fields[field] = number;
            CFG_TIME_SECTION section;
            std::memcpy(&section, fields, sizeof section);
            char expected[128];
            std::snprintf(expected, sizeof expected, "\"%d %02d:%02d:%02d-%02d:%02d:%02d\"", fields[0], fields[1],
                          fields[2], fields[3], fields[4], fields[5], fields[6]);
            EXPECT_EQ(TextOf([&](json::TextWriter& out) { JsonParser::SetTimeSection(out, &section); }), expected);
            const CFG_TIME_SECTION list[] = {section, {1, 2, 3, 4, 5, 6, 7}, section};
            const std::string whole = "[ " + std::string(expected) + ", \"1 02:03:04-05:06:07\", " + expected + " ]";
            for (std::size_t capacity : {whole.size() - 40, whole.size() - 5, whole.size() - 1, whole.size()}) {
                const test::GuardedBuffer room(capacity);
                json::TextWriter out(room.data(), capacity);
                JsonParser::SetTimeSectionList(out, list, 3);
                EXPECT_EQ(out.length(), whole.size());
                EXPECT_EQ(room.view(), std::string_view(whole).substr(0, capacity));
            }
        }
    }
    for (int number = 0; number < 100; ++number) {
        const CFG_TIME_SECTION section = {number % 10, number, 99 - number, number, 99 - number, number, number};
        char expected[64];
        std::snprintf(expected, sizeof expected, "\"%d %02d:%02d:%02d-%02d:%02d:%02d\"", number % 10, number,
                      99 - number, number, 99 - number, number, number);
        EXPECT_EQ(TextOf([&](json::TextWriter& out) { JsonParser::SetTimeSection(out, &section); }), expected);
    }
}

// Every number of every field, and what has more digits or a sign, in every room.
TEST(ClockTime, WritesEveryNumberOfEveryField) {
    for (const int number : {0, 1, 9, 10, 59, 98, 99, 100, 12345, -1, -12, INT_MIN}) {
        for (int field = 0; field < 3; ++field) {
            NET_TIME time{2026, 11, 22, 1, 23, 45};
            int* const fields[3] = {&time.dwHour, &time.dwMinute, &time.dwSecond};
            *fields[field] = number;
            char digits[64];
            std::snprintf(digits, sizeof digits, "\"%02d:%02d:%02d\"", time.dwHour, time.dwMinute, time.dwSecond);
            const std::string whole = digits;
            for (std::size_t capacity = 0; capacity <= whole.size() + 120; ++capacity) {
                const test::GuardedBuffer room(capacity);
                json::TextWriter out(room.data(), capacity);
                JsonParser::SetClockTime(out, &time);
                ASSERT_EQ(out.length(), whole.size()) << number << " in " << capacity;
                const std::size_t kept = std::min(capacity, whole.size());
                ASSERT_EQ(room.view().substr(0, kept), whole.substr(0, kept)) << number << " in " << capacity;
            }
        }
    }
}

// Days that are like the one before stand there once more, wherever in an array they come.
TEST(TimeSchedule, WritesDaysBehindOtherElements) {
    const CFG_TIME_SECTION days[4] = {kWorkday, {}, kWorkday, {}};
    const std::string day = "[ \"1 08:00:00-17:30:00\", \"0 00:00:00-00:00:00\" ]";
    EXPECT_EQ(TextOf([&](json::TextWriter& out) {
                  out.BeginArray();
                  out.Null();
                  JsonParser::SetTimeDays(out, days, 2, 2);
                  JsonParser::SetTimeDays(out, days, 1, 2);
                  out.EndArray();
              }),
              "[ null, " + day + ", " + day + ", " + day + " ]");
}

// Every pattern of four days of three kinds, the last of them with more digits than usual, in every room.
TEST(TimeSchedule, WritesDaysThatRepeatInAnyOrder) {
    const CFG_TIME_SECTION kinds[3][2] = {
        {kWorkday, {}}, {kWorkday, {2, 9, 0, 0, 12, 0, 0}}, {{4095, 1, 2, 3, 4, 5, 6}, {}}};
    const std::string texts[3] = {"[ \"1 08:00:00-17:30:00\", \"0 00:00:00-00:00:00\" ]",
                                  "[ \"1 08:00:00-17:30:00\", \"2 09:00:00-12:00:00\" ]",
                                  "[ \"4095 01:02:03-04:05:06\", \"0 00:00:00-00:00:00\" ]"};
    for (int pattern = 0; pattern < 81; ++pattern) {
        CFG_TIME_SECTION days[4][2];
        std::string whole;
        for (int day = 0, rest = pattern; day < 4; ++day, rest /= 3) {
            std::memcpy(days[day], kinds[rest % 3], sizeof days[day]);
            whole += (day == 0 ? "[ " : ", ") + texts[rest % 3];
        }
        whole += " ]";
        for (std::size_t capacity = 0; capacity <= whole.size() + 80; ++capacity) {
            const test::GuardedBuffer room(capacity);
            json::TextWriter out(room.data(), capacity);
            EXPECT_TRUE(JsonParser::SetTimeSchedule(out, &days[0][0], 4, 2));
            ASSERT_EQ(out.length(), whole.size()) << pattern << " in " << capacity;
            const std::size_t kept = std::min(capacity, whole.size());
            ASSERT_EQ(room.view().substr(0, kept), whole.substr(0, kept)) << pattern << " in " << capacity;
        }
    }
}

TEST(TimeSchedule, WritesEveryCell) {
    CFG_TIME_SECTION sections[6] = {};
    sections[4] = kWorkday;
    const auto written = [&](int rows, int columns, const CFG_TIME_SECTION* from) {
        return TextOf([&](json::TextWriter& out) {
            EXPECT_EQ(JsonParser::SetTimeSchedule(out, from, rows, columns),
                      from != nullptr && rows > 0 && columns > 0);
        });
    };
    EXPECT_EQ(written(2, 3, sections),
              "[ [ \"0 00:00:00-00:00:00\", \"0 00:00:00-00:00:00\", \"0 00:00:00-00:00:00\" ], "
              "[ \"0 00:00:00-00:00:00\", \"1 08:00:00-17:30:00\", \"0 00:00:00-00:00:00\" ] ]");
    EXPECT_EQ(written(0, 3, sections), "");
    EXPECT_EQ(written(2, 0, sections), "");
    EXPECT_EQ(written(-1, -1, sections), "");
    EXPECT_EQ(written(2, 3, nullptr), "");
}

// ---- The week with its holiday ----

TEST(HolidaySchedule, NeedsAWeek) {
    CFG_TIME_SCHEDULE schedule;
    const CFG_TIME_SECTION(&sections)[8][6] = schedule.stuTimeSection;
    const struct {
        int rows;
        bool read;
        std::int32_t holiday;
    } kCases[] = {{6, false, 0}, {7, true, 0}, {8, true, 1}, {9, true, 1}};
    for (const auto& c : kCases) {
        std::memset(&schedule, 0x55, sizeof schedule);
        EXPECT_EQ(JsonParser::GetHolidaySchedule(ParsedText(Matrix(c.rows, 6)).root(), &schedule), c.read) << c.rows;
        EXPECT_EQ(schedule.bEnableHoliday, c.holiday) << c.rows;
        for (int row = 0; row < 8; ++row) {
            EXPECT_TRUE(sections[row][5] == (row < c.rows ? kWorkday : Filled(0))) << c.rows << ' ' << row;
        }
    }
}

TEST(HolidaySchedule, IsClearedEvenWhenNothingIsRead) {
    const CFG_TIME_SCHEDULE cleared = {};
    for (const char* text : {"null", "5", "[  ]", "[ [ \"bad\" ] ]"}) {
        CFG_TIME_SCHEDULE schedule;
        std::memset(&schedule, 0x55, sizeof schedule);
        EXPECT_FALSE(JsonParser::GetHolidaySchedule(ParsedText(text).root(), &schedule)) << text;
        EXPECT_EQ(std::memcmp(&schedule, &cleared, sizeof schedule), 0) << text;
    }
    EXPECT_FALSE(JsonParser::GetHolidaySchedule(ParsedText(Matrix(7, 6)).root(), nullptr));
}

TEST(HolidaySchedule, WritesTheEighthRowOnlyWhenInUse) {
    CFG_TIME_SCHEDULE schedule = {};
    const std::string cell = "\"0 00:00:00-00:00:00\"";
    const std::string row = "[ " + cell + ", " + cell + ", " + cell + ", " + cell + ", " + cell + ", " + cell + " ]";
    std::string week = "[ " + row;
    for (int i = 1; i < 7; ++i)
        week += ", " + row;
    const auto written = [&] {
        return TextOf([&](json::TextWriter& out) { JsonParser::SetHolidaySchedule(out, &schedule); });
    };
    EXPECT_EQ(written(), week + " ]");
    for (const std::int32_t holiday : {1, -1, 2}) {
        schedule.bEnableHoliday = holiday;
        EXPECT_EQ(written(), week + ", " + row + " ]");
    }
}

// ---- Flat lists ----

TEST(TimeSectionList, PassesOverWhatIsNoSection) {
    const ParsedText document("[ \"1 08:00:00-17:30:00\", \"bad\", null, \"2 03:04\", \"1 008:0:0-17:30:0\" ]");
    CFG_TIME_SECTION sections[6];
    for (CFG_TIME_SECTION& section : sections)
        section = Filled(kBefore);
    EXPECT_TRUE(JsonParser::GetTimeSectionList(document.root(), sections, 6));
    EXPECT_TRUE(sections[0] == kWorkday);
    EXPECT_TRUE(sections[1] == Filled(kBefore));
    EXPECT_TRUE(sections[2] == Filled(kBefore));
    EXPECT_TRUE(sections[3] == (CFG_TIME_SECTION{2, 3, 4, kBefore, kBefore, kBefore, kBefore}));
    EXPECT_TRUE(sections[4] == kWorkday);
    EXPECT_TRUE(sections[5] == Filled(kBefore));
    // The same text that ends a schedule: a list of one list carries on.
    EXPECT_TRUE(JsonParser::GetTimeSectionList(ParsedText("[ [ \"bad\" ] ]").root(), sections, 6));
}

// Sections that are like the one before, but for a byte at any place, or not at all: each reads as it does alone.
TEST(TimeSectionList, EachReadsAsItDoesAlone) {
    const std::string usual = "1 08:00:00-17:30:00";
    std::vector<std::string> texts = {usual,      usual,         "2" + usual, usual, "0 00:00:00-24:00:00",
                                      "1 8:00:0", "1" + usual,   usual,       "",    std::string(19, '\0'),
                                      usual,      "bad" + usual, usual};
    for (std::size_t at = 0; at < usual.size(); ++at) {
        for (const char other : {'0', '9', 'x', '\0', '\xFF'}) {
            std::string text = usual;
            text[at] = other;
            texts.insert(texts.end(), {usual, text, text, usual});
        }
    }
    texts.insert(texts.begin(), std::string(19, '\0'));
    texts.insert(texts.begin(), std::string(19, '\xFF'));
    std::vector<json::Value> values;
    for (const std::string& text : texts)
        values.push_back(StringValue(text));
    const auto count = static_cast<std::uint32_t>(values.size());
    std::vector<CFG_TIME_SECTION> together(count, Filled(kBefore)), alone(count, Filled(kBefore));
    EXPECT_TRUE(JsonParser::GetTimeSectionList(json::Value::OfArray(values.data(), count), together.data(), INT_MAX));
    for (std::uint32_t i = 0; i < count; ++i) {
        EXPECT_TRUE(JsonParser::GetTimeSectionList(json::Value::OfArray(&values[i], 1), &alone[i], 1));
        EXPECT_TRUE(together[i] == alone[i]) << i << ": " << texts[i];
    }
}

TEST(TimeSectionList, ThoseOfTheUsualFormAreTheLeadingOnes) {
    const ParsedText document("[ \"1 08:00:00-17:30:00\", \"1 08:00:00-17:30:00\", \"12 08:00:00-17:30:00\", "
                              "\"1 8:00:00-17:30:00\", \"1 08:00:00-17:30:00\" ]");
    CFG_TIME_SECTION sections[5];
    for (CFG_TIME_SECTION& section : sections)
        section = Filled(kBefore);
    EXPECT_EQ(JsonParser::GetUsualSections(document.root().elements(), sections), 3u);
    EXPECT_TRUE(sections[1] == kWorkday);
    EXPECT_TRUE(sections[2] == (CFG_TIME_SECTION{12, 8, 0, 0, 17, 30, 0}));
    EXPECT_TRUE(sections[3] == Filled(kBefore));
    EXPECT_EQ(JsonParser::GetUsualSections({}, nullptr), 0u);
}

TEST(TimeSectionList, DaysOfTheTextAreReadUpToWhatIsNotUsual) {
    CFG_TIME_SECTION sections[2][2];
    JsonParser::UsualDays days;
    const auto read = [&](const std::string& array) {
        for (auto& row : sections) {
            for (CFG_TIME_SECTION& section : row)
                section = Filled(kBefore);
        }
        const std::string text = array + ", more of the text";
        StackArena<256> arena;
        const char* const p =
            JsonParser::ReadUsualDays(text.data(), text.data() + text.size(), arena, &sections[0][0], 2, 2, days);
        return p == nullptr ? -1 : static_cast<int>(p - text.data()) - static_cast<int>(array.size());
    };
    EXPECT_EQ(read(Matrix(2, 2)), 0);
    EXPECT_EQ(days.count, 2u);
    EXPECT_TRUE(days.areFull);
    EXPECT_TRUE(sections[1][1] == kWorkday);
    EXPECT_EQ(read(Matrix(3, 3, "\"12 08:00:00-17:30:00\"")), 0);
    EXPECT_EQ(days.count, 3u);
    EXPECT_TRUE(days.areFull);
    EXPECT_TRUE(sections[1][1] == (CFG_TIME_SECTION{12, 8, 0, 0, 17, 30, 0}));
    EXPECT_EQ(read("[ [ \"1 08:00:00-17:30:00\" ], [ ] ]"), 0);
    EXPECT_EQ(days.count, 2u);
    EXPECT_FALSE(days.areFull);
    EXPECT_TRUE(sections[0][0] == kWorkday);
    EXPECT_TRUE(sections[0][1] == Filled(kBefore));
    EXPECT_EQ(read("[ [ \"1 08:00:00-17:30:00\", 5 ] ]"), -1);
    EXPECT_TRUE(sections[0][0] == kWorkday);
    EXPECT_EQ(read("[]"), -1);
    EXPECT_EQ(read("[ null ]"), -1);
    EXPECT_EQ(read("[ [ \"1 08:00:00-17:30:00\" ]"), -1);
}

TEST(TimeSectionList, StopsAtItsLimit) {
    const ParsedText document("[ \"1 08:00:00-17:30:00\", \"1 08:00:00-17:30:00\" ]");
    CFG_TIME_SECTION sections[2] = {Filled(kBefore), Filled(kBefore)};
    EXPECT_FALSE(JsonParser::GetTimeSectionList(document.root(), nullptr, 2));
    EXPECT_FALSE(JsonParser::GetTimeSectionList(document.root(), sections, 0));
    EXPECT_FALSE(JsonParser::GetTimeSectionList(document.root(), sections, INT_MIN));
    EXPECT_TRUE(JsonParser::GetTimeSectionList(ParsedText("null").root(), sections, 2));
    EXPECT_TRUE(JsonParser::GetTimeSectionList(ParsedText("7").root(), sections, 2));
    EXPECT_TRUE(sections[0] == Filled(kBefore));
    EXPECT_TRUE(JsonParser::GetTimeSectionList(document.root(), sections, 1));
    EXPECT_TRUE(sections[0] == kWorkday);
    EXPECT_TRUE(sections[1] == Filled(kBefore));
}

TEST(TimeSectionList, WritesEqualSectionsAndDaysAlike) {
    const CFG_TIME_SECTION other = {1, 7, 0, 0, 8, 0, 100};
    const CFG_TIME_SECTION days[3][3] = {{kWorkday, kWorkday, other}, {kWorkday, kWorkday, other}, {other, other, {}}};
    const auto text =
        TextOf([&](json::TextWriter& out) { EXPECT_TRUE(JsonParser::SetTimeSchedule(out, &days[0][0], 3, 3)); });
    EXPECT_EQ(text, "[ [ \"1 08:00:00-17:30:00\", \"1 08:00:00-17:30:00\", \"1 07:00:00-08:00:100\" ], "
                    "[ \"1 08:00:00-17:30:00\", \"1 08:00:00-17:30:00\", \"1 07:00:00-08:00:100\" ], "
                    "[ \"1 07:00:00-08:00:100\", \"1 07:00:00-08:00:100\", \"0 00:00:00-00:00:00\" ] ]");
}

TEST(TimeSectionList, IsWrittenFlat) {
    const CFG_TIME_SECTION sections[2] = {kWorkday, {}};
    EXPECT_EQ(TextOf([&](json::TextWriter& out) { EXPECT_TRUE(JsonParser::SetTimeSectionList(out, sections, 2)); }),
              "[ \"1 08:00:00-17:30:00\", \"0 00:00:00-00:00:00\" ]");
    EXPECT_EQ(TextOf([&](json::TextWriter& out) {
                  EXPECT_FALSE(JsonParser::SetTimeSectionList(out, sections, 0));
                  EXPECT_FALSE(JsonParser::SetTimeSectionList(out, sections, -1));
                  EXPECT_FALSE(JsonParser::SetTimeSectionList(out, nullptr, 2));
              }),
              "");
}

TEST(TimeSchedule, LiesAtAnyAddress) {
    std::vector<char> room(sizeof(CFG_TIME_SCHEDULE) + 8, '#');
    auto* const schedule = reinterpret_cast<CFG_TIME_SCHEDULE*>(room.data() + 1);
    EXPECT_TRUE(JsonParser::GetHolidaySchedule(ParsedText(Matrix(8, 6)).root(), schedule));
    CFG_TIME_SCHEDULE copy;
    std::memcpy(&copy, room.data() + 1, sizeof copy);
    EXPECT_EQ(copy.bEnableHoliday, 1);
    EXPECT_TRUE(copy.stuTimeSection[7][5] == kWorkday);
    EXPECT_EQ(room[0], '#');
    EXPECT_EQ(room[1 + sizeof copy], '#');
    const auto written = [](const CFG_TIME_SCHEDULE* from) {
        return TextOf([from](json::TextWriter& out) { JsonParser::SetHolidaySchedule(out, from); });
    };
    EXPECT_EQ(written(schedule), written(&copy));
    char countRoom[8];
    auto* const rows = reinterpret_cast<int*>(countRoom + 1);
    EXPECT_TRUE(JsonParser::GetTimeSchedule(ParsedText(Matrix(3, 1)).root(),
                                            reinterpret_cast<CFG_TIME_SECTION*>(room.data() + 3), 8, 6, rows));
    int count = 0;
    std::memcpy(&count, countRoom + 1, sizeof count);
    EXPECT_EQ(count, 3);
}

} // namespace
} // namespace orrery
