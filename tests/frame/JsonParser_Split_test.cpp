#include "frame/JsonParserSupport.h"

#include <climits>

namespace orrery {
namespace {

using test::TextOf;

TEST(SplitMode, TextToNumber) {
    const struct {
        std::string_view text;
        std::int32_t mode;
    } kCases[] = {
        {"Split", 10},
        {"Split3", 10},
        {"Split3B", 11},
        {"Split4", 4},
        {"Split9", 9},
        {"Split16", 16},
        {"Split3C", 3},
        {"Split3BC", 3},
        {"Split1", 1},
        {"PIP", 1000},
        {"PIP1", 1001},
        {"PIP3", 1003},
        {"Free", 2000},
        {"Free4", 2004},
        {"CompositeSplit", 3000},
        {"CompositeSplit2", 3002},
        {"CompositeSplit3", 3003},
        {"Nonsense", 1},
        {"", 1},
        {"S", 1},
        {"Spli", 1},
        {"split4", 1},
        {"SPLIT4", 1},
        {"pip3", 1},
        {" Split4", 1},
        {"Splitx", 0},
        {"Split 12", 12},
        {"Split-3", -3},
        {"Split+7", 7},
        {"PIP-1", 999},
        {"Split12ab", 12},
        {std::string_view("Split4\0005", 8), 4},
        {std::string_view("Split\000xx", 8), 10},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(JsonParser::GetSplitMode(c.text), c.mode) << c.text;
}

TEST(SplitMode, ANumberPastAllBoundsIsTheCLibrarys) {
    for (const char* digits : {"2147483647", "2147483648", "4294967295", "4294967301", "9223372036854775807",
                               "9223372036854775808", "99999999999999999999", "-2147483648", "-2147483649",
                               "-9223372036854775808", "-99999999999999999999", "\t\n\v\f\r 5", "- 5", "+-5"}) {
        EXPECT_EQ(JsonParser::GetSplitMode(std::string("Split") + digits), std::atoi(digits)) << digits;
        const auto wrapped = static_cast<std::int32_t>(1000u + static_cast<std::uint32_t>(std::atoi(digits)));
        EXPECT_EQ(JsonParser::GetSplitMode(std::string("PIP") + digits), wrapped) << digits;
    }
}

TEST(SplitMode, NumberToText) {
    const struct {
        std::int32_t mode;
        std::string_view text;
    } kCases[] = {
        {0, "Split"},
        {1, "Split1"},
        {9, "Split9"},
        {10, "Split3"},
        {11, "Split3B"},
        {12, "Split12"},
        {999, "Split999"},
        {1000, "PIP"},
        {1004, "PIP4"},
        {1010, "PIP10"},
        {1999, "PIP999"},
        {2000, "Free"},
        {2001, "Free1"},
        {2999, "Free999"},
        {3000, ""},
        {3001, "CompositeSplit1"},
        {4000, "CompositeSplit1000"},
        {INT_MAX, "CompositeSplit2147480647"},
        {-1, ""},
        {INT_MIN, ""},
    };
    for (const auto& c : kCases) {
        std::array<char, 32> room;
        EXPECT_EQ(JsonParser::SplitModeText(c.mode, room), c.text) << c.mode;
        bool done = true;
        const std::string written =
            TextOf([&](json::TextWriter& out) { done = JsonParser::SetSplitMode(out, c.mode); });
        EXPECT_EQ(done, !c.text.empty()) << c.mode;
        EXPECT_EQ(written, c.text.empty() ? "" : '"' + std::string(c.text) + '"');
    }
}

TEST(SplitMode, EveryTextComesBackAsItsNumber) {
    std::array<char, 32> room;
    for (std::int32_t mode = 1; mode < 5000; ++mode) {
        // "Split3" and the bare "Split" mean 10, and 3000 has no text.
        if (mode == 3 || mode == 3000) continue;
        ASSERT_EQ(JsonParser::GetSplitMode(JsonParser::SplitModeText(mode, room)), mode);
    }
}

} // namespace
} // namespace orrery
