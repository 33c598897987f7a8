// The words that only rows of event records have, on a record of their own.
#include "events/EventCodecs.h"

#include "support/Records.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace orrery::events {
namespace {

using test::Read;
using testing::ElementsAre;

struct WORDS {
    std::uint32_t color;
    std::uint32_t whole32;
    std::int64_t whole64;
    std::uint8_t whole8;
    std::uint32_t degrees;
    double realDegrees;
    float thousandths;
    float signedThousandths;
    std::uint32_t any;
    std::int32_t firstNumber;
    std::int32_t secondNumber;
    std::int32_t fromOne;
    std::uint8_t shares[3];
    std::int32_t place;
    std::int32_t within;
};
NAMES(kShares, record::kExact,
      {
          {0, "Low"},
          {2, "High"},
          {9, "Beyond"},
      });

PART(kWords, WORDS,
     {
         FIELD(color, "color", PackedColor),
         FIELD(whole32, "whole", WholeReal),
         FIELD(whole64, "whole", WholeReal),
         FIELD(whole8, "whole", WholeReal),
         FIELD(degrees, "degrees", Degrees),
         FIELD(realDegrees, "degrees", Degrees),
         FIELD(thousandths, "milli", Thousandths),
         FIELD(signedThousandths, "milli", SignedThousandths),
         FIELD(any, "any", AnyInteger),
         FIELD(firstNumber, "pair", FirstNumber),
         FIELD(secondNumber, "pair", SecondNumber),
         FIELD(fromOne, "state", CountedFromOne),
         FIELD(shares, "shares", ByKeys(kShares)),
         FIELD(place, "place", PlaceIn<1, 7, 5, 9>),
         FIELD(within, "within", Within<-3, 100>).Absent(-50),
     });

std::string Object(const std::string& key, const std::string& value) {
    return "{ \"" + key + "\" : " + value + " }";
}

TEST(EventWords, PackedColorTakesTheFirstNumberHighest) {
    EXPECT_EQ(Read(kWords, Object("color", "[ 1, 2, 3, 4 ]")).color, 0x01020304u);
    EXPECT_EQ(Read(kWords, Object("color", "[ 255, 0, 0, 255 ]")).color, 0xFF0000FFu);
    EXPECT_EQ(Read(kWords, Object("color", "[ 1, \"2\", 3 ]")).color, 0x01000300u); // what is no number is 0
}

TEST(EventWords, WholeRealDropsTheFraction) {
    const WORDS plain = Read(kWords, Object("whole", "42949.75"));
    EXPECT_EQ(plain.whole32, 42949u);
    EXPECT_EQ(plain.whole64, 42949);
    EXPECT_EQ(plain.whole8, 197); // 42949 - 167 * 256
    EXPECT_EQ(Read(kWords, Object("whole", "-2.5")).whole64, -2);
    EXPECT_EQ(Read(kWords, Object("whole", "1e300")).whole64, INT64_MAX);
    EXPECT_EQ(Read(kWords, Object("whole", "-1e300")).whole64, INT64_MIN);
    EXPECT_EQ(Read(kWords, Object("whole", "4294967297.0")).whole32, 1u); // the low 32 bits
}

TEST(EventWords, ThousandthsOfEitherSign) {
    const WORDS up = Read(kWords, Object("milli", "1500"));
    EXPECT_EQ(up.thousandths, 1.5f);
    EXPECT_EQ(up.signedThousandths, 1.5f);
    const WORDS down = Read(kWords, Object("milli", "-250"));
    EXPECT_EQ(down.thousandths, 0.0f); // no unsigned number
    EXPECT_EQ(down.signedThousandths, -0.25f);
}

TEST(EventWords, AnyIntegerKeepsUnsignedNumbersWhole) {
    EXPECT_EQ(Read(kWords, Object("any", "4294967289")).any, 4294967289u); // the largest that is read as an integer
    EXPECT_EQ(Read(kWords, Object("any", "-1")).any, 4294967295u);
    EXPECT_EQ(Read(kWords, Object("any", "7.9")).any, 7u);
    EXPECT_EQ(Read(kWords, Object("any", "\"7\"")).any, 0u);
}

TEST(EventWords, NumbersByTheirPlace) {
    const WORDS pair = Read(kWords, Object("pair", "[ 40, 80, 120 ]"));
    EXPECT_EQ(pair.firstNumber, 40);
    EXPECT_EQ(pair.secondNumber, 80);
    const WORDS one = Read(kWords, Object("pair", "[ 40 ]"));
    EXPECT_EQ(one.firstNumber, 40);
    EXPECT_EQ(one.secondNumber, 0);
}

TEST(EventWords, CountedFromOneAddsOne) {
    EXPECT_EQ(Read(kWords, Object("state", "0")).fromOne, 1);
    EXPECT_EQ(Read(kWords, Object("state", "4")).fromOne, 5);
    EXPECT_EQ(Read(kWords, "{}").fromOne, 0);
}

TEST(EventWords, ByKeysTakesTheElementsThatExist) {
    EXPECT_THAT(Read(kWords, Object("shares", R"({ "High" : 30, "Low" : 10, "Beyond" : 99, "low" : 5 })")).shares,
                ElementsAre(10, 0, 30));
    EXPECT_THAT(Read(kWords, Object("shares", R"({ "High" : null, "Low" : 300 })")).shares, ElementsAre(44, 0, 0));
}

TEST(EventWords, PlaceInCountsFromItsFirst) {
    EXPECT_EQ(Read(kWords, Object("place", "7")).place, 1);
    EXPECT_EQ(Read(kWords, Object("place", "5")).place, 2);
    EXPECT_EQ(Read(kWords, Object("place", "9")).place, 3);
    EXPECT_EQ(Read(kWords, Object("place", "8")).place, 0);
    EXPECT_EQ(Read(kWords, Object("place", "null")).place, 0);
}

TEST(EventWords, WithinLeavesTheDefaultToNumbersOutside) {
    for (const int number : {-3, 0, 100})
        EXPECT_EQ(Read(kWords, Object("within", std::to_string(number))).within, number);
    for (const int number : {-4, 101, INT32_MAX})
        EXPECT_EQ(Read(kWords, Object("within", std::to_string(number))).within, -50);
}

// ---- Blocks of their own ----

struct NOTE {
    std::int32_t number;
    const char* text;
};
struct BLOCKS {
    const char* text;
    const char* fixed;
    const NOTE* note;
};
PART(kNote, NOTE,
     {
         FIELD(number, "No", Int),
         FIELD(text, "Text", OwnedText),
     });
PART(kBlocks, BLOCKS,
     {
         FIELD(text, "text", OwnedText),
         FIELD(fixed, "fixed", TextBlock<4>).Owned("no room").Always(),
         FIELD(note, "note", OwnedRecord(kNote)),
     });

using KeptBlocks = test::KeptRecord<BLOCKS>;

TEST(EventBlocks, ATextOfAnyLengthIsWhole) {
    const std::string longText(70000, 'x');
    const KeptBlocks blocks(kBlocks, "{ \"text\" : \"" + longText + "\" }");
    ASSERT_NE(blocks->text, nullptr);
    EXPECT_EQ(blocks->text, longText);
    EXPECT_STREQ(KeptBlocks(kBlocks, R"({ "text" : "" })")->text, "");
    EXPECT_EQ(KeptBlocks(kBlocks, "{}")->text, nullptr);
    EXPECT_EQ(KeptBlocks(kBlocks, R"({ "text" : 5 })")->text, nullptr);
}

TEST(EventBlocks, AFixedBlockIsThereWithoutAText) {
    ASSERT_NE(KeptBlocks(kBlocks, "{}")->fixed, nullptr);
    EXPECT_STREQ(KeptBlocks(kBlocks, "{}")->fixed, "");
    EXPECT_STREQ(KeptBlocks(kBlocks, R"({ "fixed" : "abcd" })")->fixed, "abc");
}

TEST(EventBlocks, ARecordIsThereWhenItsKeyIs) {
    EXPECT_EQ(KeptBlocks(kBlocks, "{}")->note, nullptr);
    const KeptBlocks blocks(kBlocks, R"({ "note" : { "No" : 3, "Text" : "deep" } })");
    ASSERT_NE(blocks->note, nullptr);
    EXPECT_EQ(blocks->note->number, 3);
    EXPECT_STREQ(blocks->note->text, "deep");
    ASSERT_NE(KeptBlocks(kBlocks, R"({ "note" : {} })")->note, nullptr);
    EXPECT_EQ(KeptBlocks(kBlocks, R"({ "note" : {} })")->note->text, nullptr);
}

} // namespace
} // namespace orrery::events
