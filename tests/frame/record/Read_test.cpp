#include "support/Records.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orrery::record {
namespace {

using test::Read;
using test::ReadInto;
using testing::Each;
using testing::ElementsAre;

// ---- Numbers of every width ----

struct Numbers {
    std::int8_t i8;
    std::uint8_t u8;
    std::int16_t i16;
    std::uint16_t u16;
    std::int32_t i32;
    std::uint32_t u32;
    std::int64_t i64;
    std::uint64_t u64;
    float f32;
    double f64;
};

TABLE(kInts, Numbers,
      {
          FIELD(i8, "i8", Int),
          FIELD(u8, "u8", Int),
          FIELD(i16, "i16", Int),
          FIELD(u16, "u16", Int),
          FIELD(i32, "i32", Int),
          FIELD(u32, "u32", Int),
          FIELD(i64, "i64", Int),
          FIELD(u64, "u64", Int),
          FIELD(f32, "f32", Int),
          FIELD(f64, "f64", Int),
      });
TABLE(kUInts, Numbers,
      {
          FIELD(i8, "i8", UInt),
          FIELD(u8, "u8", UInt),
          FIELD(i16, "i16", UInt),
          FIELD(u16, "u16", UInt),
          FIELD(i32, "i32", UInt),
          FIELD(u32, "u32", UInt),
          FIELD(i64, "i64", UInt),
          FIELD(u64, "u64", UInt),
          FIELD(f32, "f32", UInt),
          FIELD(f64, "f64", UInt),
      });
TABLE(kBools, Numbers,
      {
          FIELD(i8, "i8", Bool),
          FIELD(u8, "u8", Bool),
          FIELD(i16, "i16", Bool),
          FIELD(u16, "u16", Bool),
          FIELD(i32, "i32", Bool),
          FIELD(u32, "u32", Bool),
          FIELD(i64, "i64", Bool),
          FIELD(u64, "u64", Bool),
          FIELD(f32),
          FIELD(f64, "f64", Real),
      });

TEST(Read, IntsAreCutToTheFieldsWidth) {
    const auto r = Read(kInts, R"({ "i8" : 300, "u8" : -1, "i16" : 70000, "u16" : -2, "i32" : -7, "u32" : -1,
                                    "i64" : -5, "u64" : 6, "f32" : 7.9, "f64" : -3 })");
    EXPECT_EQ(r.i8, 44); // 300 - 256
    EXPECT_EQ(r.u8, 255);
    EXPECT_EQ(r.i16, 4464); // 70000 - 65536
    EXPECT_EQ(r.u16, 65534);
    EXPECT_EQ(r.i32, -7);
    EXPECT_EQ(r.u32, 4294967295u);
    EXPECT_EQ(r.i64, -5);
    EXPECT_EQ(r.u64, 6u);
    EXPECT_EQ(r.f32, 7.0f); // the fraction is lost on the way through an integer
    EXPECT_EQ(r.f64, -3.0);
}

TEST(Read, UIntsTakeNoNegativeNumber) {
    const auto r = Read(kUInts, R"({ "i8" : -1, "u8" : 511, "i32" : 4294967295, "u32" : 4294967295,
                                     "i64" : 4294967295, "u64" : 3000000000, "f32" : -2, "f64" : 4294967294 })");
    EXPECT_EQ(r.i8, 0);
    EXPECT_EQ(r.u8, 255); // the low 8 bits
    EXPECT_EQ(r.i32, -1);
    EXPECT_EQ(r.u32, 4294967295u);
    EXPECT_EQ(r.i64, 4294967295);
    EXPECT_EQ(r.u64, 3000000000u);
    EXPECT_EQ(r.f32, 0.0f);
    EXPECT_EQ(r.f64, 4294967294.0);
}

TEST(Read, BoolsAreOneOrZero) {
    const auto r = Read(kBools, R"({ "i8" : true, "u8" : 17, "i16" : "false", "u16" : "", "i32" : [ ], "u32" : [ 0 ],
                                     "i64" : 0.5, "u64" : { "a" : 1 }, "f64" : 2.5 })");
    EXPECT_EQ(r.i8, 1);
    EXPECT_EQ(r.u8, 1);
    EXPECT_EQ(r.i16, 1); // a text that is not empty
    EXPECT_EQ(r.u16, 0);
    EXPECT_EQ(r.i32, 0);
    EXPECT_EQ(r.u32, 1);
    EXPECT_EQ(r.i64, 1);
    EXPECT_EQ(r.u64, 1u);
    EXPECT_EQ(r.f64, 2.5);
}

TEST(Read, AbsentAndNullKeysLeaveTheField) {
    Numbers r{};
    r.i32 = 42;
    r.u32 = 43;
    r.f64 = 1.5;
    ASSERT_TRUE(ReadInto(r, kInts, R"({ "i32" : null })"));
    EXPECT_EQ(r.i32, 42);
    EXPECT_EQ(r.u32, 43u);
    EXPECT_EQ(r.f64, 1.5);
}

TEST(Read, AValueOfAnotherTypeReadsAsItsZero) {
    Numbers r{};
    r.i32 = 42;
    ASSERT_TRUE(ReadInto(r, kInts, R"({ "i32" : "12", "i8" : { }, "u8" : [ 5 ] })"));
    EXPECT_EQ(r.i32, 0);
    EXPECT_EQ(r.i8, 0);
    EXPECT_EQ(r.u8, 0);
}

TEST(Read, ARecordFromAValueThatIsNoObjectReadsNothing) {
    for (const char* text : {"null", "5", "\"i32\"", "true", "[ 1, 2 ]"}) {
        Numbers r{};
        r.i32 = 42;
        ASSERT_TRUE(ReadInto(r, kInts, text));
        EXPECT_EQ(r.i32, 42) << text;
    }
}

TEST(Read, KeysAreBytesAndUnknownOnesAreSkipped) {
    const auto r = Read(kInts, R"({ "A" : 1, "I32" : 2, "i3" : 3, "i32" : 4, "i322" : 5, "~" : 6, "" : 7 })");
    EXPECT_EQ(r.i32, 4);
    EXPECT_EQ(r.i8, 0);
}

TEST(Read, ARecordNeedNotBeAligned) {
    std::vector<std::byte> bytes(sizeof(Numbers) + 1);
    test::Document value(R"({ "i16" : -2, "i64" : 77, "f64" : 5 })");
    LocalText text(value.arena);
    JsonParser parser(text);
    ReadCall call{parser, value.root};
    std::byte* const at = bytes.data() + 1;
    ReadRecord(kInts, value.root, at, call);
    EXPECT_EQ(MEMBER(at, Numbers, i16), -2);
    EXPECT_EQ(MEMBER(at, Numbers, i64), 77);
    EXPECT_EQ(MEMBER(at, Numbers, f64), 5.0);
}

// ---- Presence: Always, Absent, Flag, Presence, Only, ReadOnly and WriteOnly ----

struct Given {
    std::int32_t always;
    std::uint8_t alwaysFlag;
    std::int32_t absent;
    std::int32_t absentFlag;
    std::int64_t flagged;
    std::int64_t flag64;
    std::int16_t present;
    std::int32_t onlyText;
    std::int32_t onlyBool;
    std::int32_t onlyInteger;
    std::int32_t writeOnly;
    std::int32_t readOnly;
    float absentReal;
    std::int32_t absentEach[2][2];
};

NAMES(kGiven3, kFolded.Unknown(-1),
      {
          {3, "three"},
      });

TABLE(kGiven, Given,
      {
          FIELD(always, "Always", Bool).Always().SetsAndNeeds(AT(alwaysFlag)),
          FIELD(alwaysFlag),
          FIELD(absent, "Absent", Int).Absent(-1).SetsAndNeeds(AT(absentFlag)),
          FIELD(absentFlag),
          FIELD(flagged, "Flagged", Int).SetsAndNeeds(AT(flag64)),
          FIELD(flag64),
          FIELD(present, "Present", Presence),
          FIELD(onlyText, "OnlyText", Names(kGiven3)).Only(OnlyType::String),
          FIELD(onlyBool, "OnlyBool", Bool).Only(OnlyType::Bool),
          FIELD(onlyInteger, "OnlyInteger", Int).Only(OnlyType::Integer),
          FIELD(writeOnly, "WriteOnly", Int).WriteOnly(),
          FIELD(readOnly, "ReadOnly", Int).ReadOnly(),
          FIELD(absentReal, "AbsentReal", Real).Absent(-1),
          FIELD(absentEach, "AbsentEach", Int).Absent(-2),
      });

TEST(Read, NothingGiven) {
    const auto r = Read(kGiven, "{ }");
    EXPECT_EQ(r.always, 0);
    EXPECT_EQ(r.alwaysFlag, 1);
    EXPECT_EQ(r.absent, -1);
    EXPECT_EQ(r.absentFlag, 0);
    EXPECT_EQ(r.flag64, 0);
    EXPECT_EQ(r.present, 0);
    EXPECT_EQ(r.absentReal, -1.0f);
    EXPECT_EQ(r.absentEach[0][0], -2);
    EXPECT_EQ(r.absentEach[1][1], -2);
}

TEST(Read, AlwaysOverwritesWhatIsThere) {
    Given r{};
    r.always = 1;
    ASSERT_TRUE(ReadInto(r, kGiven, R"({ "Always" : null })"));
    EXPECT_EQ(r.always, 0);
}

TEST(Read, EverythingGiven) {
    const auto r = Read(kGiven, R"({ "Always" : true, "Absent" : 5, "Flagged" : 0, "Present" : "", "OnlyText" : "Three",
        "OnlyBool" : true, "OnlyInteger" : 9, "WriteOnly" : 4, "ReadOnly" : 6, "AbsentReal" : 0.25,
        "AbsentEach" : [ [ 1 ] ] })");
    EXPECT_EQ(r.always, 1);
    EXPECT_EQ(r.alwaysFlag, 1);
    EXPECT_EQ(r.absent, 5);
    EXPECT_EQ(r.absentFlag, 1);
    EXPECT_EQ(r.flagged, 0);
    EXPECT_EQ(r.flag64, 1); // a key given as zero is given
    EXPECT_EQ(r.present, 1);
    EXPECT_EQ(r.onlyText, 3);
    EXPECT_EQ(r.onlyBool, 1);
    EXPECT_EQ(r.onlyInteger, 9);
    EXPECT_EQ(r.writeOnly, 0);
    EXPECT_EQ(r.readOnly, 6);
    EXPECT_EQ(r.absentReal, 0.25f);
    EXPECT_EQ(r.absentEach[0][0], 1);
    EXPECT_EQ(r.absentEach[0][1], -2);
}

TEST(Read, OnlyValuesOfTheTypeAreTaken) {
    for (const char* other : {"5", "true", "2.5", "[ ]", "{ }"}) {
        const auto r = Read(kGiven, std::string(R"({ "OnlyText" : )") + other + " }");
        EXPECT_EQ(r.onlyText, 0) << other;
    }
    for (const char* other : {"1", "\"true\"", "1.0", "[ 1 ]"}) {
        const auto r = Read(kGiven, std::string(R"({ "OnlyBool" : )") + other + " }");
        EXPECT_EQ(r.onlyBool, 0) << other;
    }
    for (const char* other : {"true", "\"9\"", "9.0", "[ 9 ]"}) {
        const auto r = Read(kGiven, std::string(R"({ "OnlyInteger" : )") + other + " }");
        EXPECT_EQ(r.onlyInteger, 0) << other;
    }
    EXPECT_EQ(Read(kGiven, R"({ "OnlyInteger" : 2147483648 })").onlyInteger, 0); // asInt of a uint beyond int
    EXPECT_EQ(Read(kGiven, R"({ "OnlyText" : "seven" })").onlyText, -1);
}

// ---- Texts and names ----

struct Texts {
    char text[4];
    char raw[4];
    char list[2][4];
    std::int32_t listCount;
    std::int32_t leaves;
    std::int32_t zero;
};

NAMES(kLeaving, kFolded.UnknownLeaves(),
      {
          {1, "one"},
          {0, "zero"},
      });

TABLE(kTexts, Texts,
      {
          FIELD(text, "Text", Text),
          FIELD(raw, "Raw", RawText),
          FIELD(list, "List", Text).Count(AT(listCount)),
          FIELD(listCount),
          FIELD(leaves, "Leaves", Names(kLeaving)),
          FIELD(zero, "Zero", Names(kGiven3)),
      });

TEST(Read, TextsAreCutAndTerminated) {
    const auto r = Read(kTexts, R"({ "Text" : "abcdef", "Raw" : "abcd", "List" : [ "x", "wxyz", "no" ] })");
    EXPECT_STREQ(r.text, "abc");
    EXPECT_STREQ(r.raw, "abc");
    EXPECT_STREQ(r.list[0], "x");
    EXPECT_STREQ(r.list[1], "wxy");
    EXPECT_EQ(r.listCount, 2);
}

TEST(Read, ATextOfAnotherTypeIsCleared) {
    for (const char* other : {"5", "true", "[ \"a\" ]", "{ }"}) {
        Texts r{};
        std::memcpy(r.text, "old", 4);
        ASSERT_TRUE(ReadInto(r, kTexts, std::string(R"({ "Text" : )") + other + " }"));
        EXPECT_THAT(r.text, Each('\0')) << other;
    }
}

TEST(Read, ATextEndsAtAnEscapedNull) {
    const auto r = Read(kTexts, R"({ "Text" : "a\u0000b", "Leaves" : "one\u0000more" })");
    EXPECT_THAT(r.text, ElementsAre('a', '\0', '\0', '\0'));
    EXPECT_EQ(r.leaves, 1);
}

TEST(Read, UnknownNames) {
    Texts r{};
    r.leaves = 1;
    ASSERT_TRUE(ReadInto(r, kTexts, R"({ "Leaves" : "two", "Zero" : "two" })"));
    EXPECT_EQ(r.leaves, 1);
    EXPECT_EQ(r.zero, -1);
    ASSERT_TRUE(ReadInto(r, kTexts, R"({ "Leaves" : "ZERO", "Zero" : 3 })"));
    EXPECT_EQ(r.leaves, 0);
    EXPECT_EQ(r.zero, -1); // a number is no text
}

} // namespace
} // namespace orrery::record
