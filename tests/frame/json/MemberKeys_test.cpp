#include "frame/json/MemberKeys.h"

#include "support/JsonText.h"

#include <gtest/gtest.h>

namespace orrery::json {
namespace {

constexpr MemberKeys<6> kKeys("", "Eightfor", "EightforA", "EightforB", "Short", "Shorter");

std::array<int, 6> NumbersAt(std::string_view text) {
    const test::Document document(text);
    EXPECT_TRUE(document.ok) << text;
    std::array<int, 6> numbers;
    const auto values = ValuesAt(document.root, kKeys);
    for (std::size_t i = 0; i < values.size(); ++i)
        numbers[i] = values[i]->isNull() ? -1 : values[i]->asInt();
    return numbers;
}

TEST(MemberKeys, FindsEachOfThem) {
    EXPECT_EQ(
        NumbersAt(R"({"Shorter":6,"Short":5,"EightforB":4,"EightforA":3,"Eightfor":2,"":1,"A":7,"Eight":8,"Z":9})"),
        (std::array{1, 2, 3, 4, 5, 6}));
}

TEST(MemberKeys, GivesNullForThoseThatAreNotThere) {
    EXPECT_EQ(NumbersAt("{}"), (std::array{-1, -1, -1, -1, -1, -1}));
    EXPECT_EQ(NumbersAt(R"({"EightforB":4})"), (std::array{-1, -1, -1, 4, -1, -1}));
    EXPECT_EQ(NumbersAt(R"({"Shorter":6})"), (std::array{-1, -1, -1, -1, -1, 6}));
    EXPECT_EQ(NumbersAt(R"({"":1,"Short":5})"), (std::array{1, -1, -1, -1, 5, -1}));
}

TEST(MemberKeys, TakesNoKeyForAnotherThatBeginsAlike) {
    EXPECT_EQ(
        NumbersAt(R"({"EightforC":1,"EightforAB":2,"EightforAA":3,"Eightfo":4,"Shor":5,"Shortes":6,"Shorterer":7})"),
        (std::array{-1, -1, -1, -1, -1, -1}));
    EXPECT_EQ(NumbersAt(R"({"short":1,"SHORT":2,"EIGHTFOR":3})"), (std::array{-1, -1, -1, -1, -1, -1}));
}

TEST(MemberKeys, WhatIsNoObjectHasNone) {
    EXPECT_EQ(NumbersAt("[1,2,3]"), (std::array{-1, -1, -1, -1, -1, -1}));
    EXPECT_EQ(NumbersAt("null"), (std::array{-1, -1, -1, -1, -1, -1}));
    EXPECT_EQ(NumbersAt(R"("Short")"), (std::array{-1, -1, -1, -1, -1, -1}));
}

} // namespace
} // namespace orrery::json
