#include "frame/JsonParserSupport.h"

#include <climits>
#include <cstring>
#include <ctime>
#include <limits>
#include <random>

namespace orrery {
namespace {

using test::ParsedText;
using test::StringValue;
using test::TextOf;

constexpr std::int32_t kBefore = 77;

template <class Time>
bool Is(const Time& time, std::initializer_list<std::int32_t> fields) {
    return fields.size() * sizeof(std::int32_t) == sizeof time && std::memcmp(&time, fields.begin(), sizeof time) == 0;
}

constexpr NET_TIME kUnset = {kBefore, kBefore, kBefore, kBefore, kBefore, kBefore};

TEST(NetTime, SixFields) {
    NET_TIME time = kUnset;
    EXPECT_TRUE(JsonParser::GetNetTime(StringValue("2026-11-20 09:30:05"), &time));
    EXPECT_TRUE(Is(time, {2026, 11, 20, 9, 30, 5}));
    EXPECT_TRUE(JsonParser::GetNetTime(StringValue("26-1-2 3:4:5"), &time));
    EXPECT_TRUE(Is(time, {26, 1, 2, 3, 4, 5}));
    EXPECT_TRUE(JsonParser::GetNetTime(StringValue("2026-11-2009:30:05"), &time)) << "a blank may be none";
    EXPECT_TRUE(Is(time, {2026, 11, 20, 9, 30, 5}));
    EXPECT_TRUE(JsonParser::GetNetTime(StringValue("2026-11-20 09:30:05.123 UTC"), &time));
    time = kUnset;
    EXPECT_FALSE(JsonParser::GetNetTime(StringValue("20261-11-20 09:30:05"), &time)) << "four digits of year";
    EXPECT_TRUE(Is(time, {2026, kBefore, kBefore, kBefore, kBefore, kBefore}));
    time = kUnset;
    EXPECT_FALSE(JsonParser::GetNetTime(StringValue("2026-11-20T09:30:05"), &time));
    EXPECT_TRUE(Is(time, {2026, 11, 20, kBefore, kBefore, kBefore}));
    time = kUnset;
    for (const char* text : {"5", "null", "\"\"", "[ \"2026-11-20 09:30:05\" ]", "true", "\"never\""}) {
        EXPECT_FALSE(JsonParser::GetNetTime(ParsedText(text).root(), &time)) << text;
        EXPECT_TRUE(Is(time, {kBefore, kBefore, kBefore, kBefore, kBefore, kBefore})) << text;
    }
    EXPECT_FALSE(JsonParser::GetNetTime(StringValue("2026-11-20 09:30:05"), nullptr));
}

TEST(NetTime, IsWrittenWithFixedWidths) {
    const auto written = [](NET_TIME time) {
        return TextOf([&](json::TextWriter& out) { JsonParser::SetNetTime(out, &time); });
    };
    EXPECT_EQ(written({2026, 1, 2, 3, 4, 5}), "\"2026-01-02 03:04:05\"");
    EXPECT_EQ(written({}), "\"0000-00-00 00:00:00\"");
    EXPECT_EQ(written({-5, -1, 100, 0, 0, 12345}), "\"-005--1-100 00:00:12345\"");
}

TEST(NetTimeEx, SevenFields) {
    NET_TIME_EX time = {kBefore, kBefore, kBefore, kBefore, kBefore, kBefore, kBefore};
    EXPECT_FALSE(JsonParser::GetNetTimeEx(StringValue("2026-11-20 09:30:05"), &time));
    EXPECT_TRUE(Is(time, {2026, 11, 20, 9, 30, 5, kBefore}));
    EXPECT_FALSE(JsonParser::GetNetTimeEx(StringValue("2026-11-20 09:30:05.x"), &time));
    EXPECT_TRUE(JsonParser::GetNetTimeEx(StringValue("2026-11-20 09:30:05.25"), &time));
    EXPECT_TRUE(Is(time, {2026, 11, 20, 9, 30, 5, 25}));
    EXPECT_TRUE(JsonParser::GetNetTimeEx(StringValue("2026-11-20 09:30:5.-123456"), &time));
    EXPECT_TRUE(Is(time, {2026, 11, 20, 9, 30, 5, -123456}));
    EXPECT_FALSE(JsonParser::GetNetTimeEx(StringValue("2026-11-20 09:30:05.1"), nullptr));
    time.dwMillisecond = 7;
    time.dwSecond = 9;
    EXPECT_EQ(TextOf([&](json::TextWriter& out) { JsonParser::SetNetTimeEx(out, &time); }),
              "\"2026-11-20 09:30:09.7\"");
}

TEST(ClockTime, LeavesTheDate) {
    NET_TIME time = kUnset;
    EXPECT_TRUE(JsonParser::GetClockTime(StringValue("9:30:05"), &time));
    EXPECT_TRUE(Is(time, {kBefore, kBefore, kBefore, 9, 30, 5}));
    EXPECT_FALSE(JsonParser::GetClockTime(StringValue("10:31"), &time));
    EXPECT_TRUE(Is(time, {kBefore, kBefore, kBefore, 10, 31, 5}));
    EXPECT_FALSE(JsonParser::GetClockTime(ParsedText("5").root(), &time));
    EXPECT_FALSE(JsonParser::GetClockTime(StringValue("9:30:05"), nullptr));
    EXPECT_EQ(TextOf([&](json::TextWriter& out) { JsonParser::SetClockTime(out, &time); }), "\"10:31:05\"");
}

TEST(Date, LeavesTheTime) {
    NET_TIME time = kUnset;
    EXPECT_TRUE(JsonParser::GetDate(StringValue("2026-11-20"), &time));
    EXPECT_TRUE(Is(time, {2026, 11, 20, kBefore, kBefore, kBefore}));
    EXPECT_TRUE(JsonParser::GetDate(StringValue("2025-12-31 23:59:59"), &time));
    EXPECT_TRUE(Is(time, {2025, 12, 31, kBefore, kBefore, kBefore}));
    EXPECT_FALSE(JsonParser::GetDate(StringValue("2024/12/31"), &time));
    EXPECT_TRUE(Is(time, {2024, 12, 31, kBefore, kBefore, kBefore}));
    EXPECT_FALSE(JsonParser::GetDate(ParsedText("null").root(), &time));
    EXPECT_FALSE(JsonParser::GetDate(StringValue("2026-11-20"), nullptr));
}

TEST(CalendarTexts, LieAtAnyAddress) {
    char room[sizeof(NET_TIME_EX) + 2] = {};
    auto* const time = reinterpret_cast<NET_TIME_EX*>(room + 1);
    EXPECT_TRUE(JsonParser::GetNetTimeEx(StringValue("2026-11-20 09:30:05.25"), time));
    EXPECT_EQ(TextOf([&](json::TextWriter& out) { JsonParser::SetNetTimeEx(out, time); }),
              "\"2026-11-20 09:30:05.25\"");
    auto* const clock = reinterpret_cast<NET_TIME*>(room + 1);
    EXPECT_TRUE(JsonParser::GetClockTime(StringValue("01:02:03"), clock));
    EXPECT_EQ(TextOf([&](json::TextWriter& out) { JsonParser::SetClockTime(out, clock); }), "\"01:02:03\"");
}

// ---- Seconds since 1970 ----

TEST(UtcSeconds, KnownMoments) {
    EXPECT_TRUE(Is(JsonParser::UtcSecondsToNetTime(0), {1970, 1, 1, 0, 0, 0}));
    EXPECT_TRUE(Is(JsonParser::UtcSecondsToNetTime(-1), {1969, 12, 31, 23, 59, 59}));
    EXPECT_TRUE(Is(JsonParser::UtcSecondsToNetTime(1000000000), {2001, 9, 9, 1, 46, 40}));
    EXPECT_TRUE(Is(JsonParser::UtcSecondsToNetTime(951782400), {2000, 2, 29, 0, 0, 0}));
    EXPECT_TRUE(Is(JsonParser::UtcSecondsToNetTime(4107542400), {2100, 3, 1, 0, 0, 0})) << "2100 is no leap year";
    EXPECT_TRUE(Is(JsonParser::UtcSecondsToNetTime(4294967295), {2106, 2, 7, 6, 28, 15}));
    EXPECT_TRUE(Is(JsonParser::UtcSecondsToNetTime(INT64_MAX), {0, 0, 0, 0, 0, 0}));
    EXPECT_TRUE(Is(JsonParser::UtcSecondsToNetTime(INT64_MIN), {0, 0, 0, 0, 0, 0}));
}

// What the C library says, of which the record holds no year past 32 bits.
NET_TIME ByTheCLibrary(std::int64_t seconds) {
    const std::time_t moment = seconds;
    std::tm parts = {};
    if (gmtime_r(&moment, &parts) == nullptr || parts.tm_year > INT_MAX - 1900) return {};
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec};
}

TEST(UtcSeconds, AgreeWithTheCLibrary) {
    const auto check = [](std::int64_t seconds) {
        const NET_TIME ours = JsonParser::UtcSecondsToNetTime(seconds);
        const NET_TIME theirs = ByTheCLibrary(seconds);
        return std::memcmp(&ours, &theirs, sizeof ours) == 0;
    };
    for (std::int64_t day = -1000000; day <= 1000000; ++day) { // some 2700 years each way
        ASSERT_TRUE(check(day * 86400)) << day;
        ASSERT_TRUE(check(day * 86400 - 1)) << day;
    }
    std::mt19937_64 random(1970);
    for (int i = 0; i < 1000000; ++i) {
        // Every magnitude, not only the largest.
        const auto seconds = static_cast<std::int64_t>(random()) >> (random() % 64);
        ASSERT_TRUE(check(seconds)) << seconds;
    }
    // The first and last second whose year the C library holds, the last that the record holds, and the neighbours,
    // found by halving the distance to a moment that is out of range.
    int limits = 0;
    for (const bool record : {false, true}) {
        for (const std::int64_t beyond : {INT64_MIN / 2, INT64_MAX / 2}) {
            std::int64_t inside = 0, outside = beyond;
            while (inside + 1 != outside && inside - 1 != outside) {
                const std::int64_t middle = inside + (outside - inside) / 2;
                const std::time_t moment = middle;
                std::tm parts = {};
                const bool held = record ? ByTheCLibrary(middle).dwMonth != 0 : gmtime_r(&moment, &parts) != nullptr;
                (held ? inside : outside) = middle;
            }
            for (std::int64_t near = -100000; near <= 100000; ++near)
                ASSERT_TRUE(check(inside + near)) << inside;
            ++limits;
        }
    }
    EXPECT_EQ(limits, 4);
}

} // namespace
} // namespace orrery
