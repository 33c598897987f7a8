#include "frame/record/Names.h"

#include <gtest/gtest.h>

namespace orrery::record {
namespace {

constexpr Name kLampRows[] = {{0, "Off"}, {1, "On"}, {2, "Blink", Compare::Exact}, {2, "Flash"}, {9, "Test"}};
constexpr NameTable kLamps = FoldedNames(kLampRows);
constexpr NameTable kExactLamps = ExactNames(kLampRows);

TEST(Names, FoldedTextsTakeAnyAsciiCase) {
    EXPECT_EQ(kLamps.CodeOf("On"), 1);
    EXPECT_EQ(kLamps.CodeOf("oN"), 1);
    EXPECT_EQ(kLamps.CodeOf("TEST"), 9);
}

TEST(Names, OneRowMayInsistOnItsCase) {
    EXPECT_EQ(kLamps.Unknown(-1).CodeOf("Blink"), 2);
    EXPECT_EQ(kLamps.Unknown(-1).CodeOf("blink"), -1);
}

TEST(Names, AnExactTableInsistsOnTheCaseOfAll) {
    EXPECT_EQ(kExactLamps.Unknown(-1).CodeOf("On"), 1);
    EXPECT_EQ(kExactLamps.Unknown(-1).CodeOf("on"), -1);
}

// Many rows, which are looked up by a hash: texts that begin alike, that differ in case, that come twice.
NAMES(kMany, kFolded.Unknown(-7),
      {
          {40, "TrafficJunction"},
          {10, "TrafficJunctioN"},
          {30, "TrafficJunctions"},
          {20, "TrafficParking"},
          {50, "A"},
          {60, "a", Compare::Exact},
          {70, "Ab"},
          {80, "abc"},
          {90, "abcd"},
          {100, "abcdefg"},
          {110, "abcdefgh"},
          {10, "Again"},
          {120, ""},
      });
inline constexpr NameTable kManyLast = kMany.LastWins();
inline constexpr NameTable kManyExact = With(kMany, &NameTable::compare, Compare::Exact);

TEST(Names, ManyRowsAreFoundByText) {
    EXPECT_EQ(kMany.CodeOf("trafficjunction"), 40);
    EXPECT_EQ(kManyLast.CodeOf("trafficjunction"), 10);
    EXPECT_EQ(kManyExact.CodeOf("TrafficJunctioN"), 10);
    EXPECT_EQ(kManyExact.CodeOf("trafficjunction"), -7);
    EXPECT_EQ(kMany.CodeOf("TRAFFICJUNCTIONS"), 30);
    EXPECT_EQ(kMany.CodeOf("TrafficParkinG"), 20);
    EXPECT_EQ(kMany.CodeOf("a"), 50);
    EXPECT_EQ(kManyLast.CodeOf("a"), 60);
    EXPECT_EQ(kManyLast.CodeOf("A"), 50);
    EXPECT_EQ(kMany.CodeOf("aB"), 70);
    EXPECT_EQ(kMany.CodeOf("aBc"), 80);
    EXPECT_EQ(kMany.CodeOf("abCD"), 90);
    EXPECT_EQ(kMany.CodeOf("abcdefG"), 100);
    EXPECT_EQ(kMany.CodeOf("abcdefGh"), 110);
    EXPECT_EQ(kMany.CodeOf(""), 120);
    for (const char* text : {"TrafficJunctio", "b", "ac", "abd", "abce", "abcdefh", "abcdefgi", "abcdefghi", "@"})
        EXPECT_EQ(kMany.CodeOf(text), -7) << text;
    EXPECT_EQ(kManyExact.CodeOf("aB"), -7);
    EXPECT_EQ(kManyExact.CodeOf("abC"), -7);
    EXPECT_EQ(kManyExact.CodeOf("abcdefgH"), -7);
}

// The row in front takes it, though another one is written just so.
TEST(Names, TheFirstRowThatMatchesCounts) {
    EXPECT_EQ(kMany.CodeOf("TrafficJunctioN"), 40);
    EXPECT_EQ(kManyLast.CodeOf("TrafficJunction"), 10);
}

// Characters that differ as a capital from its small letter, and are no letters.
NAMES(kSigns, kFolded.Unknown(-7),
      {
          {1, "[A]"},
          {2, "a@bcdefgh"},
          {3, "Sixteen letters@"},
          {4, "More than sixteen letters^"},
          {5, "More than sixteen LETTERS^"},
      });

TEST(Names, OnlyLettersHaveACase) {
    EXPECT_EQ(kSigns.CodeOf("[a]"), 1);
    EXPECT_EQ(kSigns.CodeOf("{A}"), -7);
    EXPECT_EQ(kSigns.CodeOf("A@BCDEFGH"), 2);
    EXPECT_EQ(kSigns.CodeOf("a`bcdefgh"), -7);
    EXPECT_EQ(kSigns.CodeOf("SIXTEEN LETTERS@"), 3);
    EXPECT_EQ(kSigns.CodeOf("Sixteen letters`"), -7);
    EXPECT_EQ(kSigns.CodeOf(std::string_view("Sixteen\0letters@", 16)), -7);
    EXPECT_EQ(kSigns.CodeOf("more than sixteen letters^"), 4);
    EXPECT_EQ(kSigns.CodeOf("More than sixteen letters~"), -7);
    EXPECT_EQ(With(kSigns, &NameTable::compare, Compare::Exact).CodeOf("More than sixteen LETTERS^"), 5);
}

// One row has a hash's place as well as many do.
NAMES(kOne, kExact.Unknown(-7), {{3, "Only"}});
NAMES(kPair, kFolded.Unknown(-7), {{3, "Even"}, {8, "EVEN"}});

TEST(Names, FewRowsAreFoundToo) {
    EXPECT_EQ(kOne.CodeOf("Only"), 3);
    EXPECT_EQ(kOne.CodeOf("only"), -7);
    EXPECT_EQ(kOne.CodeOf(""), -7);
    EXPECT_EQ(kPair.CodeOf("EVEN"), 3);
    EXPECT_EQ(kPair.LastWins().CodeOf("Even"), 8);
    EXPECT_EQ(kPair.RowOf(8)->text, "EVEN");
    EXPECT_EQ(kPair.RowOf(4), nullptr);
}

TEST(Names, ManyRowsAreFoundByCode) {
    EXPECT_EQ(kMany.RowOf(10)->text, "TrafficJunctioN");
    EXPECT_EQ(kMany.RowOf(40)->text, "TrafficJunction");
    EXPECT_EQ(kMany.RowOf(120)->text, "");
    for (const std::int32_t code : {0, -7, 11, 121, INT32_MAX, INT32_MIN})
        EXPECT_EQ(kMany.RowOf(code), nullptr) << code;
}

TEST(Names, NothingIsTrimmedAndNoPrefixMatches) {
    for (const char* text : {"On ", " On", "O", "Onn", ""})
        EXPECT_EQ(kLamps.Unknown(-1).CodeOf(text), -1) << text;
}

TEST(Names, UnknownTextsReadAsZeroUnlessToldOtherwise) {
    EXPECT_EQ(kLamps.CodeOf("Dim"), 0);
    EXPECT_EQ(kLamps.Unknown(-1).CodeOf("Dim"), -1);
    EXPECT_EQ(kLamps.UnknownLeaves().CodeOf("Dim"), std::nullopt);
    EXPECT_EQ(kLamps.UnknownLeaves().Unknown(7).CodeOf("Dim"), 7); // the last word counts
}

TEST(Names, FirstRowOfACodeIsTheTextThatIsWritten) {
    ASSERT_NE(kLamps.RowOf(2), nullptr);
    EXPECT_EQ(kLamps.RowOf(2)->text, "Blink");
    EXPECT_EQ(kLamps.RowOf(9)->text, "Test");
    EXPECT_EQ(kLamps.RowOf(0)->text, "Off");
}

TEST(Names, CodesOfNoRowHaveNone) {
    for (const std::int32_t code : {-1, 3, 4, 5, 8, 10, INT32_MIN, INT32_MAX})
        EXPECT_EQ(kLamps.RowOf(code), nullptr) << code;
}

TEST(Names, TablesThatCountFromOneOrFromElsewhereAreFoundToo) {
    static constexpr Name kFromOne[] = {{1, "One"}, {2, "Two"}, {3, "Three"}};
    static constexpr Name kScattered[] = {{-5, "Low"}, {100, "High"}, {0, "Mid"}};
    EXPECT_EQ(FoldedNames(kFromOne).RowOf(3)->text, "Three");
    EXPECT_EQ(FoldedNames(kFromOne).RowOf(0), nullptr);
    EXPECT_EQ(FoldedNames(kScattered).RowOf(-5)->text, "Low");
    EXPECT_EQ(FoldedNames(kScattered).RowOf(100)->text, "High");
    EXPECT_EQ(FoldedNames(kScattered).RowOf(0)->text, "Mid");
}

TEST(Names, AnEarlierRowOfTheSameCodeIsNotPassedOver) {
    static constexpr Name kTwice[] = {{1, "Early"}, {1, "Late"}, {2, "Two"}};
    EXPECT_EQ(FoldedNames(kTwice).RowOf(1)->text, "Early");
    EXPECT_EQ(FoldedNames(kTwice).RowOf(2)->text, "Two");
    static constexpr Name kFarApart[] = {{2, "Early"}, {0, "Zero"}, {2, "Late"}};
    EXPECT_EQ(FoldedNames(kFarApart).RowOf(2)->text, "Early");
}

} // namespace
} // namespace orrery::record
