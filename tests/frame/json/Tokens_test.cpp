// Going through a text value by value takes exactly the texts that the reader takes, and ends where it ends.
#include "frame/json/Tokens.h"

#include "frame/json/Reader.h"
#include "support/GuardedBuffer.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

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

// As many numbers as wanted of an array; the slow way where the quick one does not see to it.
TEST(Tokens, FewNumbersAreThoseOfTheArrayOrNothing) {
    const auto read = [](const std::string& array, std::uint32_t count) {
        const std::string text = array + std::string(64, ' ');
        std::vector<std::int32_t> numbers(16, -5);
        const char* const p = ReadFewNumbers(text.data(), text.data() + text.size(), count, numbers.data());
        if (p == nullptr) return std::vector<std::int32_t>{};
        EXPECT_EQ(p - text.data(), static_cast<std::ptrdiff_t>(array.size())) << array;
        EXPECT_EQ(numbers[count], -5) << array;
        numbers.resize(count);
        return numbers;
    };
    using Numbers = std::vector<std::int32_t>;
    if (ORRERY_SSE2) {
        EXPECT_EQ(read("[ 12, 345 ]", 2), (Numbers{12, 345}));
        EXPECT_EQ(read("[1,2,3,4]", 4), (Numbers{1, 2, 3, 4}));
        EXPECT_EQ(read("[  0 ,  8191,7   ]", 3), (Numbers{0, 8191, 7}));
        EXPECT_EQ(read("[ 9999999, 1000000, 7654321 ]", 3), (Numbers{9999999, 1000000, 7654321}));
        EXPECT_EQ(read("[ 007 ]", 1), (Numbers{7}));
        EXPECT_EQ(read("[1,2,3,4,5,6,7,8,9,1,2,3,4,5,6]", 15), (Numbers{1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3, 4, 5, 6}));
    }
    for (const char* const other : {"[ 1, 2, 3 ]",   "[ 1 ]",           "[]",
                                    "[ ]",           "[ , 1, 2 ]",      "[ 1, 2, ]",
                                    "[ 1,, 2 ]",     "[ 1 2 ]",         "[ 1 2, ]",
                                    "[ ,1 2 ]",      "[ -1, 2 ]",       "[ 1.5, 2 ]",
                                    "[ 1, 2e1 ]",    "[ 12345678, 1 ]", "[ 1, \"2\" ]",
                                    "[ 1, null ]",   "[ [ 1, 2 ] ]",    "[ 1, 2 }",
                                    "[ 1, /**/ 2 ]", "[ 1,\n2 ]",       "[ 1,                            2 ]"})
        EXPECT_EQ(read(other, 2), Numbers{}) << other;
    // Nothing behind the text is looked at.
    const test::GuardedBuffer guarded(std::string_view("[ 1, 2 ]                "));
    std::int32_t numbers[2] = {-5, -5};
    EXPECT_EQ(ReadFewNumbers(guarded.data(), guarded.data() + guarded.size(), 2, numbers), nullptr);
    EXPECT_EQ(numbers[0], -5);
}

TEST(Tokens, ShortIntegersAreThoseOfNineDigitsAndMostOfTen) {
    const auto read = [](std::string_view text) {
        std::int32_t number = -5;
        const char* const p = ReadShortInt(text.data(), text.data() + text.size(), number);
        return p == nullptr ? std::pair<std::ptrdiff_t, std::int32_t>{-1, 0} : std::pair{p - text.data(), number};
    };
    EXPECT_EQ(read("999999999,"), (std::pair<std::ptrdiff_t, std::int32_t>{9, 999999999}));
    EXPECT_EQ(read("-999999999"), (std::pair<std::ptrdiff_t, std::int32_t>{10, -999999999}));
    EXPECT_EQ(read("-0}"), (std::pair<std::ptrdiff_t, std::int32_t>{2, 0}));
    const std::string behind(6, ' '); // sixteen bytes are looked at where they are
    EXPECT_EQ(read("12345678" + behind + "  ").second, 12345678);
    EXPECT_EQ(read("1000000000" + behind), (std::pair<std::ptrdiff_t, std::int32_t>{10, 1000000000}));
    EXPECT_EQ(read("-2147483639" + behind), (std::pair<std::ptrdiff_t, std::int32_t>{11, -2147483639}));
    EXPECT_EQ(read("0000000012" + behind), (std::pair<std::ptrdiff_t, std::int32_t>{10, 12}));
    for (const char* const other : {"2147483640", "2147483647", "-2147483640", "4294967295", "9999999999",
                                    "00000000012", "1000000000.", "123456789e", "12345678-"})
        EXPECT_EQ(read(other + behind).first, -1) << other;
    for (const char* const other : {"1000000000", "1.5", "1e3", "-", "-x", "\"1\"", "true", "1-"})
        EXPECT_EQ(read(other).first, -1) << other;
}

// However many digits there are, whatever stands behind them, and however near the text's end is.
TEST(Tokens, ShortIntegersEndWhereTheirDigitsDo) {
    std::mt19937 random(26);
    for (std::size_t digits = 0; digits <= 11; ++digits) {
        for (unsigned behind = 0; behind < 256; ++behind) {
            for (const std::size_t more : {0, 1, 6, 7, 8, 20}) {
                const bool isNegative = random() % 2 == 0;
                std::string number(isNegative ? "-" : "");
                for (std::size_t i = 0; i < digits; ++i)
                    number += static_cast<char>('0' + random() % 10);
                const auto byte = static_cast<char>(behind);
                const bool goesOn = std::string_view("0123456789+-.eE").find(byte) != std::string_view::npos;
                if ((byte >= '0' && byte <= '9') || (digits == 0 && byte == '-')) continue;
                const test::GuardedBuffer text(number + byte + std::string(more, '7'));
                std::int32_t value = 0;
                const char* const p = ReadShortInt(text.data(), text.data() + text.size(), value);
                const bool isTen = digits == 10 && 1 + more >= 6 && std::labs(std::stol(number)) < 2147483640;
                if (digits == 0 || (digits > 9 && !isTen) || goesOn) {
                    ASSERT_EQ(p, nullptr) << text.view();
                } else {
                    ASSERT_EQ(p, text.data() + number.size()) << text.view();
                    ASSERT_EQ(value, std::stol(number)) << text.view();
                }
            }
        }
        if (digits == 0) continue; // there is always something at the place of a value
        const test::GuardedBuffer bare(std::string(digits, '4'));
        std::int32_t value = 0;
        const char* const p = ReadShortInt(bare.data(), bare.data() + digits, value);
        ASSERT_EQ(p, digits <= 9 ? bare.data() + digits : nullptr) << digits;
    }
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
