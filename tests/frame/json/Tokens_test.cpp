// Going through a text value by value takes exactly the texts that the reader takes, and ends where it ends.
#include "frame/json/Tokens.h"

#include "frame/json/Reader.h"
#include "support/GuardedBuffer.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

namespace orrery::json {
namespace {

// How many bytes of the text its first value takes; -1 when there is none.
std::ptrdiff_t Judged(std::string_view text) {
    StackArena<1024> arena;
    const char* const end = text.data() + text.size();
    const char* p = SkipBlanks(text.data(), end);
    if (p == end) return -1;
    p = SkipValue(p, end, arena);
    return p == nullptr ? -1 : p - text.data();
}
std::ptrdiff_t Read(std::string_view text) {
    StackArena<1024> arena;
    Value value;
    const char* const p = ParseAt(text.data(), text.data() + text.size(), arena, value);
    return p == nullptr ? -1 : p - text.data();
}

TEST(Tokens, SkippingEndsBehindTheValue) {
    EXPECT_EQ(Judged("12,"), 2);
    EXPECT_EQ(Judged(" [1, {\"a\" : [ ] }] ]"), 18);
    EXPECT_EQ(Judged("{\"a\":tru}"), -1);
    EXPECT_EQ(Judged("{\"a\\u0041\":\"\\n\"}x"), 16);
    EXPECT_EQ(Judged("[1,]"), -1);
    EXPECT_EQ(Judged("-"), -1);
    EXPECT_EQ(Judged("\"\\q\""), -1);
}

TEST(Tokens, DepthEndsTheWayNotTheProgram) {
    const auto nested = [](int depth) {
        return std::string(static_cast<std::size_t>(depth), '[') + "1"
               + std::string(static_cast<std::size_t>(depth), ']');
    };
    EXPECT_EQ(Judged(nested(kSkipDepth)), 2 * kSkipDepth + 1);
    EXPECT_EQ(Judged(nested(kSkipDepth + 1)), -1);
    EXPECT_EQ(Judged(nested(1000000)), -1);
}

TEST(Tokens, ShortIntegersAreThoseOfNineDigits) {
    const auto read = [](std::string_view text) {
        std::int32_t number = -5;
        const char* const p = ReadShortInt(text.data(), text.data() + text.size(), number);
        return p == nullptr ? std::pair<std::ptrdiff_t, std::int32_t>{-1, 0} : std::pair{p - text.data(), number};
    };
    EXPECT_EQ(read("999999999,"), (std::pair<std::ptrdiff_t, std::int32_t>{9, 999999999}));
    EXPECT_EQ(read("-999999999"), (std::pair<std::ptrdiff_t, std::int32_t>{10, -999999999}));
    EXPECT_EQ(read("-0}"), (std::pair<std::ptrdiff_t, std::int32_t>{2, 0}));
    for (const char* const other : {"1000000000", "1.5", "1e3", "-", "-x", "\"1\"", "true", "1-"})
        EXPECT_EQ(read(other).first, -1) << other;
}

// Pieces of JSON in any order: what is one and what is none, each behind an unreadable page's edge.
TEST(Tokens, TakeWhatTheReaderTakes) {
    constexpr const char* kPieces[] = {
        "{",       "}",   "[",          "]",    ",",         ", ",     ":",      " : ",        "\"a\"",
        "\"\"",    "1",   "-0",         "2.5",  "1e999",     "-",      "1-2",    "true",       "false",
        "null",    "nul", " ",          "\n\t", "/*,*/",     "//x\n",  "/*",     "/",          "\"\\u00e9\"",
        "\"\\x\"", "\"",  "4294967296", "\\",   "{\"b\":1}", "[1, 2]", "\"a\":", "\"key\" : ", "\x80"};
    std::mt19937 random(18);
    int good = 0;
    for (int round = 0; round < 60000; ++round) {
        std::string text;
        if (round % 2 == 0) text = round % 4 == 0 ? "[" : "{\"a\":";
        for (auto pieces = random() % 8; pieces > 0; --pieces)
            text += kPieces[random() % std::size(kPieces)];
        if (round % 2 == 0) text += round % 4 == 0 ? "]" : "}";
        test::GuardedBuffer room(text.size() + 1);
        char* const begin = room.data() + 1;
        std::copy(text.begin(), text.end(), begin);
        const std::string_view guarded(begin, text.size());
        const std::ptrdiff_t read = Read(guarded);
        ASSERT_EQ(Judged(guarded), read) << text;
        good += read > 0 && text.size() > 4;
    }
    EXPECT_GT(good, 2000);
}

} // namespace
} // namespace orrery::json
