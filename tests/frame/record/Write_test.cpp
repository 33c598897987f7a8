#include "support/GuardedBuffer.h"
#include "support/Records.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>

namespace orrery::record {
namespace {

using test::Write;

// ---- Numbers of every width ----

struct Numbers {
    std::int8_t i8;
    std::uint8_t u8;
    std::int16_t i16;
    std::int32_t i32;
    std::uint32_t u32;
    std::int64_t i64;
    float f32;
    double f64;
};

TABLE(kNumbers, Numbers,
      {
          FIELD(i8, "i8", Int),
          FIELD(u8, "u8", UInt),
          FIELD(i16, "i16", Bool),
          FIELD(i32, "i32", Int),
          FIELD(u32, "u32", UInt),
          FIELD(i64, "i64", Int),
          FIELD(f32, "f32", Real),
          FIELD(f64, "f64", Real),
      });
TABLE(kCrossed, Numbers,
      {
          FIELD(i8, "i8", Int).WrittenAs(Bool),
          FIELD(u8, "u8", UInt).WrittenAs(Int),
          FIELD(i16, "i16", Bool).WrittenAs(Int),
          FIELD(i32, "i32", Int).WrittenAs(UInt),
          FIELD(u32, "u32", UInt).WrittenAs(Int),
          FIELD(i64, "i64", Int).WrittenAs(Bool),
          FIELD(f32, "f32", Int).WrittenAs(Real),
          FIELD(f64, "f64", Real).WrittenAs(Int),
      });

TEST(Write, NumbersInKeyOrder) {
    const Numbers r{-128, 255, -3, INT32_MIN, UINT32_MAX, -5, 0.5f, 1.0};
    EXPECT_EQ(Write(kNumbers, r), R"({ "f32" : 0.5000000000000000, "f64" : 1.000000000000000, "i16" : true, )"
                                  R"("i32" : -2147483648, "i64" : -5, "i8" : -128, "u32" : 4294967295, "u8" : 255 })");
}

TEST(Write, NumbersOfAnotherKindThanTheyAreRead) {
    const Numbers r{2, 255, -3, -1, UINT32_MAX, 0, 2.0f, -7.9};
    EXPECT_EQ(Write(kCrossed, r), R"({ "f32" : 2.000000000000000, "f64" : -7, "i16" : -3, "i32" : 4294967295, )"
                                  R"("i64" : false, "i8" : true, "u32" : -1, "u8" : 255 })");
}

TEST(Write, ARealThatNoIntegerHoldsIsZero) {
    for (const double number :
         {1e30, -1e30, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        Numbers r{};
        r.f64 = number;
        EXPECT_NE(Write(kCrossed, r).find(R"("f64" : 0,)"), std::string::npos) << number;
    }
}

TEST(Write, ARecordNeedNotBeAligned) {
    char bytes[sizeof(Numbers) + 1] = {};
    const Numbers r{1, 2, 0, 4, 5, 6, 0, 0};
    std::memcpy(bytes + 1, &r, sizeof r);
    EXPECT_EQ(test::WriteBytes(kNumbers, bytes + 1), Write(kNumbers, r));
}

// ---- What is left out: flags, conditions, values ----

struct Optional {
    std::int32_t flagged;
    std::uint8_t flag;
    std::int32_t conditional;
    std::int32_t condition;
    std::int32_t tested;
    std::int32_t unless;
    float unlessReal;
    std::int32_t notNegative;
    float notNegativeReal;
    std::int32_t atMost;
    std::uint32_t atMostUnsigned;
    std::int32_t atOne;
    std::int32_t readOnly;
    std::int32_t presence;
    std::int32_t writeOnly;
};

bool IsEven(const std::byte* record) {
    return MEMBER(record, Optional, tested) % 2 == 0;
}

TABLE(kOptional, Optional,
      {
          FIELD(flagged, "Flagged", Int).SetsAndNeeds(AT(flag)),
          FIELD(flag),
          FIELD(conditional, "Conditional", Int).WriteIf(AT(condition)),
          FIELD(condition),
          FIELD(tested, "Tested", Int).WriteIf(IsEven),
          FIELD(unless, "Unless", Int).WriteUnless(-1),
          FIELD(unlessReal, "UnlessReal", Real).WriteUnless(0),
          FIELD(notNegative, "NotNegative", Int).WriteUnlessNegative(),
          FIELD(notNegativeReal, "NotNegativeReal", Real).WriteUnlessNegative(),
          FIELD(atMost, "AtMost", Int).WriteAtMost(32),
          FIELD(atMostUnsigned, "AtMostUnsigned", UInt).WriteAtMost(32),
          FIELD(atOne, "AtOne", Bool).TrueAtOne(),
          FIELD(readOnly, "ReadOnly", Int).ReadOnly(),
          FIELD(presence, "Presence", Presence),
          FIELD(writeOnly, "WriteOnly", Int).WriteOnly(),
      });

TEST(Write, WhatIsLeftOut) {
    Optional r{};
    r.tested = 1;
    r.unless = -1;
    r.notNegative = -1;
    r.notNegativeReal = -0.5f;
    r.atMost = -7;
    r.presence = 1;
    r.readOnly = 3;
    EXPECT_EQ(Write(kOptional, r), R"({ "AtMost" : -7, "AtMostUnsigned" : 0, "AtOne" : false, "WriteOnly" : 0 })");
}

TEST(Write, WhatIsWritten) {
    const Optional r{1, 255, 2, -1, 4, 0, 0.5f, 0, 0.0f, 33, 4000000000u, 1, 3, 1, 9};
    EXPECT_EQ(Write(kOptional, r),
              R"({ "AtMost" : 32, "AtMostUnsigned" : 32, "AtOne" : true, "Conditional" : 2, "Flagged" : 1, )"
              R"("NotNegative" : 0, "NotNegativeReal" : 0.000000000000000, "Tested" : 4, "Unless" : 0, )"
              R"("UnlessReal" : 0.5000000000000000, "WriteOnly" : 9 })");
}

TEST(Write, ABoolThatIsTrueAtOne) {
    for (const std::int32_t value : {0, 2, -1, 256}) {
        Optional r{};
        r.atOne = value;
        EXPECT_NE(Write(kOptional, r).find(R"("AtOne" : false)"), std::string::npos) << value;
    }
}

// ---- Texts and names ----

struct Texts {
    char text[4];
    char raw[4];
    std::int32_t noKey;
    std::int32_t null;
    std::int32_t text3;
    std::int32_t names[3];
    std::int32_t count;
};

NAMES(kNames, kFolded,
      {
          {0, "zero"},
          {1, "one"},
      });
constexpr NameTable kOrNull = kNames.OutsideWritesNull();
constexpr NameTable kOrOther = kNames.OutsideWrites("other");

TABLE(kTexts, Texts,
      {
          FIELD(text, "Text", Text),
          FIELD(raw, "Raw", RawText),
          FIELD(noKey, "NoKey", Names(kNames)),
          FIELD(null, "Null", Names(kOrNull)),
          FIELD(text3, "Text3", Names(kOrOther)),
          FIELD(names, "Names", Names(kNames)).Count(AT(count)),
          FIELD(count),
      });

TEST(Write, NamesAndCodesOutsideTheirTable) {
    Texts r{{}, {}, 1, 0, 1, {0, 5, 1}, 3};
    EXPECT_EQ(Write(kTexts, r), R"({ "Names" : [ "zero", null, "one" ], "NoKey" : "one", "Null" : "zero", )"
                                R"("Raw" : "", "Text" : "", "Text3" : "one" })");
    r.noKey = 2;
    r.null = -1;
    r.text3 = 2;
    r.count = 0;
    EXPECT_EQ(Write(kTexts, r), R"({ "Null" : null, "Raw" : "", "Text" : "", "Text3" : "other" })");
}

TEST(Write, ATextWithoutTerminatorEndsAtItsCapacity) {
    Texts r{{'a', 'b', 'c', 'd'}, {'e', '/', '"', 'h'}, 2, 0, 0, {}, 0};
    EXPECT_EQ(Write(kTexts, r), R"({ "Null" : "zero", "Raw" : "e\/\"h", "Text" : "abcd", "Text3" : "zero" })");
}

// One row of each kind that goes the short way, between others that don't.
struct Mixed {
    std::int32_t flag;
    std::uint8_t narrowFlag;
    std::int32_t enable;
    std::int32_t level;
    std::uint8_t small;
    double rate;
    char name[40];
    char code[8];
    std::int32_t mode;
    std::int32_t list[2];
    std::int32_t last;
};
NAMES(kMixedModes, kExact.OutsideWrites("none"),
      {
          {0, "Automatic"},
          {1, "By/hand"},
      });
TABLE(kMixed, Mixed,
      {
          FIELD(flag),
          FIELD(narrowFlag),
          FIELD(enable, "Enable", Bool).SetsAndNeeds(AT(flag)),
          FIELD(level, "TheLevelOfAnAlarmThatTheDeviceTells", Int).SetsAndNeeds(AT(narrowFlag)),
          FIELD(small, "Object/Small", UInt),
          FIELD(rate, "Object/Rate", Real),
          FIELD(name, "Name", Text),
          FIELD(code, "Object/Code", RawText),
          FIELD(mode, "Mode", Names(kMixedModes)),
          FIELD(list, "List", Int),
          FIELD(last, "Z", Int),
      });

TEST(Write, EveryKindOfRowInEveryRoom) {
    const auto check = [](const Mixed& record, const std::string& whole) {
        test::ExpectInEveryRoom(kMixed, record, whole);
    };
    check({1, 1, 5, -70000, 200, 12.5, "North gate", "A1", 0, {1, 2}, 123456789},
          R"({ "Enable" : true, "List" : [ 1, 2 ], "Mode" : "Automatic", "Name" : "North gate", "Object" : )"
          R"({ "Code" : "A1", "Rate" : 12.50000000000000, "Small" : 200 }, )"
          R"("TheLevelOfAnAlarmThatTheDeviceTells" : -70000, "Z" : 123456789 })");
    check({0, 0, 5, 1, 0, -0.001, "a/b", {'1', '2', '3', '4', '5', '6', '7', '8'}, 1, {0, -1}, 10000},
          R"({ "List" : [ 0, -1 ], "Mode" : "By\/hand", "Name" : "a\/b", "Object" : )"
          R"({ "Code" : "12345678", "Rate" : -0.001000000000000000, "Small" : 0 }, "Z" : 10000 })");
    check({0x100, 0, 0, 1, 9, 1e20, "", "", 2, {99, 100}, -2147483647 - 1},
          R"({ "Enable" : false, "List" : [ 99, 100 ], "Mode" : "none", "Name" : "", "Object" : )"
          R"({ "Code" : "", "Rate" : 1.000000000000000e+20, "Small" : 9 }, "Z" : -2147483648 })");
}

// ---- Lists ----

struct Lists {
    std::int32_t plain[2];
    std::int32_t noKey[2];
    std::int32_t noKeyCount;
    std::int32_t array[2];
    std::int16_t arrayCount;
    std::int32_t null[2];
    std::uint32_t nullCount;
    std::int32_t matrix[2][2];
    std::int32_t rows[2][2];
    std::int32_t rowCount;
};

TABLE(kLists, Lists,
      {
          FIELD(plain, "Plain", Int),
          FIELD(noKey, "NoKey", Int).Count(AT(noKeyCount)),
          FIELD(noKeyCount),
          FIELD(array, "Array", Int).Count(AT(arrayCount)).WriteEmpty(Empty::Array),
          FIELD(arrayCount),
          FIELD(null, "Null", Int).CountUncapped(AT(nullCount)).WriteEmpty(Empty::Null),
          FIELD(nullCount),
          FIELD(matrix, "Matrix", Int),
          FIELD(rows, "Rows", Int).Count(AT(rowCount)),
          FIELD(rowCount),
      });

TEST(Write, ListsByTheirCounts) {
    const Lists r{{1, 2}, {3, 4}, 1, {5, 6}, 2, {7, 8}, 1, {{1, 2}, {3, 4}}, {{5, 6}, {7, 8}}, 1};
    EXPECT_EQ(Write(kLists, r), R"({ "Array" : [ 5, 6 ], "Matrix" : [ [ 1, 2 ], [ 3, 4 ] ], "NoKey" : [ 3 ], )"
                                R"("Null" : [ 7 ], "Plain" : [ 1, 2 ], "Rows" : [ [ 5, 6 ] ] })");
}

TEST(Write, EmptyLists) {
    const Lists r{};
    EXPECT_EQ(Write(kLists, r), R"({ "Array" : [  ], "Matrix" : [ [ 0, 0 ], [ 0, 0 ] ], "Null" : null, )"
                                R"("Plain" : [ 0, 0 ] })");
}

TEST(Write, NegativeCountsAreEmptyAndThoseBeyondTheArrayEndAtIt) {
    Lists r{};
    r.noKeyCount = INT32_MIN;
    r.arrayCount = -1;
    r.nullCount = UINT32_MAX;
    r.rowCount = INT32_MAX;
    EXPECT_EQ(Write(kLists, r), R"({ "Array" : [  ], "Matrix" : [ [ 0, 0 ], [ 0, 0 ] ], "Null" : [ 0, 0 ], )"
                                R"("Plain" : [ 0, 0 ], "Rows" : [ [ 0, 0 ], [ 0, 0 ] ] })");
}

// ---- Masks and switches ----

struct Masks {
    std::uint32_t noKey[2];
    std::uint32_t null[2];
    std::uint32_t array[2];
    std::int32_t switches[3];
};

TABLE(kMasks, Masks,
      {
          FIELD(noKey, "NoKey", BitMask),
          FIELD(null, "Null", BitMaskLoose).WriteEmpty(Empty::Null),
          FIELD(array, "Array", BitMask).WriteEmpty(Empty::Array),
          FIELD(switches, "Switches", Switches),
      });

TEST(Write, MasksAscend) {
    const Masks r{{0x80000001u, 1}, {0, 0x80000000u}, {2, 0}, {-1, 0, 2}};
    EXPECT_EQ(Write(kMasks, r),
              R"({ "Array" : [ 1 ], "NoKey" : [ 0, 31, 32 ], "Null" : [ 63 ], "Switches" : [ 0, 2 ] })");
}

TEST(Write, EmptyMasks) {
    EXPECT_EQ(Write(kMasks, Masks{}), R"({ "Array" : [  ], "Null" : null })");
}

// ---- Records: skipped elements, names, guards ----

struct Item {
    std::int32_t id;
};

bool IsPositive(const std::byte* record) {
    return MEMBER(record, Item, id) > 0;
}

TABLE(kItem, Item,
      {
          FIELD(id, "Id", Int).WriteUnless(99),
      })
    .Writes(IsPositive);

struct Items {
    Item stays[3];
    std::int32_t staysCount;
    Item hole[4];
    std::int32_t holeCount;
    Item closes[4];
    std::int32_t closesCount;
    Item one;
};

TABLE(kItems, Items,
      {
          FIELD(stays, "Stays", Record(kItem)).Count(AT(staysCount)),
          FIELD(staysCount),
          FIELD(hole, "Hole", Record(kItem)).Count(AT(holeCount)).WriteSkipped(Skipped::Hole),
          FIELD(holeCount),
          FIELD(closes, "Closes", Record(kItem)).Count(AT(closesCount)).WriteSkipped(Skipped::ClosesUp),
          FIELD(closesCount),
          FIELD(one, "One", Record(kItem)),
      });

TEST(Write, ElementsThatTheirTableHoldsBack) {
    const Items r{{{0}, {1}, {0}}, 3, {{0}, {1}, {0}, {0}}, 4, {{0}, {1}, {0}, {2}}, 4, {0}};
    EXPECT_EQ(Write(kItems, r), R"({ "Closes" : [ { "Id" : 1 }, { "Id" : 2 } ], "Hole" : [ null, { "Id" : 1 } ], )"
                                R"("One" : null, "Stays" : [ null, { "Id" : 1 }, null ] })");
}

TEST(Write, WhenAllAreHeldBack) {
    const Items r{{}, 1, {}, 2, {}, 2, {5}};
    EXPECT_EQ(Write(kItems, r), R"({ "One" : { "Id" : 5 }, "Stays" : [ null ] })");
}

TEST(Write, ARecordWithoutAnyKeyIsNull) {
    const Items r{{{99}}, 1, {}, 0, {}, 0, {99}};
    EXPECT_EQ(Write(kItems, r), R"({ "One" : null, "Stays" : [ null ] })");
}

struct Named {
    char name[4];
    std::int32_t id;
};

TABLE(kNamed, Named,
      {
          FIELD(name, nullptr, MemberName),
          FIELD(id, "Id", Int),
      });

struct Keyed {
    Named named[4];
    std::int32_t count;
};

TABLE(kKeyed, Keyed,
      {
          FIELD(named, "Named", Record(kNamed)).Count(AT(count)).Keyed(),
          FIELD(count),
      });
TABLE(kKeyedEmpty, Keyed,
      {
          FIELD(named, "Named", Record(kNamed)).Count(AT(count)).Keyed().WriteEmpty(Empty::Array),
          FIELD(count),
      });

TEST(Write, RecordsUnderTheirNamesInTheOrderOfTheNames) {
    const Keyed r{{{"b", 1}, {"a", 2}, {"b", 3}, {{'l', 'o', 'n', 'g'}, 4}}, 9};
    EXPECT_EQ(Write(kKeyed, r), R"({ "Named" : { "a" : { "Id" : 2 }, "b" : { "Id" : 3 }, "long" : { "Id" : 4 } } })");
}

TEST(Write, NamesAreOrderedAsUnsignedBytesAndEscaped) {
    const Keyed r{{{"\xC3\xA9", 1}, {"z", 2}, {"a/b", 3}}, 3};
    EXPECT_EQ(Write(kKeyed, r),
              "{ \"Named\" : { \"a\\/b\" : { \"Id\" : 3 }, \"z\" : { \"Id\" : 2 }, \"\xC3\xA9\" : { \"Id\" : 1 } } }");
}

TEST(Write, NoRecordsUnderNames) {
    EXPECT_EQ(Write(kKeyed, Keyed{}), "null");
    EXPECT_EQ(Write(kKeyedEmpty, Keyed{}), R"({ "Named" : {  } })");
}

struct Pair {
    std::uint32_t size;
    std::int32_t first;
    std::int32_t second;
};

NAMES(kPairNames, kFolded,
      {
          {1, "one"},
      });

TABLE(kTuple, Pair,
      {
          FIELD(size, nullptr, Size),
          FIELD(first, "", Int),
          FIELD(second, "", Names(kPairNames)),
      })
    .As(Shape::Tuple);

TEST(Write, Tuples) {
    EXPECT_EQ(Write(kTuple, {0, 5, 1}), R"([ 5, "one" ])");
    EXPECT_EQ(Write(kTuple, {0, 5, 2}), "[ 5, null ]");
}

TABLE(kGuarded, Pair,
      {
          FIELD(size, nullptr, Size),
          FIELD(first, "", Int),
          FIELD(second, "", Int),
      })
    .As(Shape::Tuple)
    .Guarded();

struct Guards {
    Pair one;
    Pair many[2];
};

TABLE(kGuards, Guards,
      {
          FIELD(one, "One", Record(kGuarded)),
          FIELD(many, "Many", Record(kGuarded)),
      });

TEST(Write, AGuardedRecordOfAnotherSizeIsNull) {
    EXPECT_EQ(Write(kGuards, {{8, 1, 2}, {{12, 3, 4}, {0, 5, 6}}}), R"({ "Many" : [ [ 3, 4 ], null ], "One" : null })");
    EXPECT_EQ(Write(kGuards, {{12, 1, 2}, {{13, 3, 4}, {12, 5, 6}}}),
              R"({ "Many" : [ null, [ 5, 6 ] ], "One" : [ 1, 2 ] })");
}

struct Caller {
    std::int32_t room;
    std::int32_t used;
    Item* items;
};

TABLE(kCaller, Caller,
      {
          FIELD(room),
          FIELD(used),
          FIELD(items, "Items", Record(kItem)).Capacity(AT(room)).Count(AT(used)),
      });

TEST(Write, RecordsFromTheCallersArray) {
    Item items[2] = {{1}, {2}};
    EXPECT_EQ(Write(kCaller, {2, 1, items}), R"({ "Items" : [ { "Id" : 1 } ] })");
    EXPECT_EQ(Write(kCaller, {2, 100, items}), R"({ "Items" : [ { "Id" : 1 }, { "Id" : 2 } ] })");
    EXPECT_EQ(Write(kCaller, {-2, 1, items}), "null");
    EXPECT_EQ(Write(kCaller, {2, -1, items}), "null");
    EXPECT_EQ(Write(kCaller, {2, 2, nullptr}), "null");
}

// ---- Groups, aliases, self rows, functions ----

struct Grouped {
    std::int32_t plain;
    std::int32_t inner;
    std::int32_t deep;
    std::int32_t flag;
    std::int32_t channel;
};

TABLE(kGrouped, Grouped,
      {
          FIELD(plain, "m", Int).WriteUnless(0),
          FIELD(inner, "g/b", Int).SetsAndNeeds(AT(flag)),
          FIELD(deep, "g/h/c", Int).WriteUnless(0),
          FIELD(flag),
          FIELD(channel, "params/channel", Int).FromRoot(),
          FIELD(plain, "A", Int).Alias().WriteUnless(0),
      });

TEST(Write, InnerObjectsAreOpenedByTheirFirstKey) {
    EXPECT_EQ(Write(kGrouped, {1, 2, 3, 1, 9}), R"({ "A" : 1, "g" : { "b" : 2, "h" : { "c" : 3 } }, "m" : 1 })");
    EXPECT_EQ(Write(kGrouped, {0, 2, 3, 0, 9}), R"({ "g" : { "h" : { "c" : 3 } } })");
    EXPECT_EQ(Write(kGrouped, {0, 2, 0, 0, 9}), "null");
    EXPECT_EQ(Write(kGrouped, {4, 2, 0, 0, 9}), R"({ "A" : 4, "m" : 4 })");
}

struct Self {
    std::int32_t number;
};

TABLE(kSelf, Self,
      {
          FIELD(number, "", Int),
      });

TEST(Write, AFieldThatIsTheValueItself) {
    EXPECT_EQ(Write(kSelf, {-4}), "-4");
}

void WriteTwice(const Field& field, const std::byte* record, WriteCall& call) {
    const auto number = Load<std::int32_t>(record + field.offset);
    if (number == 0) return;
    call.Key();
    call.out.Int(2 * number);
}
void WriteFixed(const Field&, const std::byte*, WriteCall& call) {
    call.Key();
    call.out.String("fixed");
}

constexpr CustomCodec kTwice{nullptr, WriteTwice};
constexpr CustomCodec kFixed{nullptr, WriteFixed};

TABLE(kCustom, Self,
      {
          FIELD(number, "g/Twice", Custom(kTwice)),
          MakeVirtual("Version", Custom(kFixed)),
      });

TEST(Write, FunctionsOfTheRowsOwn) {
    EXPECT_EQ(Write(kCustom, {4}), R"({ "Version" : "fixed", "g" : { "Twice" : 8 } })");
    EXPECT_EQ(Write(kCustom, {0}), R"({ "Version" : "fixed" })");
}

// ---- Times ----

struct Times {
    CFG_TIME_SECTION section;
    CFG_TIME_SECTION week[2][1];
    CFG_TIME_SECTION list[2];
    CFG_TIME_SCHEDULE holidays;
    NET_TIME time;
    NET_TIME_EX timeEx;
    NET_TIME clock;
    std::int32_t split;
};

TABLE(kTimes, Times,
      {
          FIELD(section, "Section", TimeSection),
          FIELD(week, "Week", Schedule),
          FIELD(list, "List", SectionList),
          FIELD(holidays, "Holidays", HolidaySchedule).WriteIf([](const std::byte*) { return false; }),
          FIELD(time, "Time", NetTime),
          FIELD(timeEx, "TimeEx", NetTimeEx),
          FIELD(clock, "Clock", ClockTime),
          FIELD(split, "Split", SplitMode),
      });

TEST(Write, TimesAndSplits) {
    Times r{};
    r.section = {1, 2, 3, 4, 5, 6, 7};
    r.week[1][0] = {-1, 8, 0, 0, 17, 30, 0};
    r.time = {2026, 11, 20, 9, 30, 1};
    r.timeEx = {2026, 1, 2, 3, 4, 5, 250};
    r.clock = {2026, 11, 20, 9, 30, 1};
    r.split = 1003;
    EXPECT_EQ(Write(kTimes, r),
              R"({ "Clock" : "09:30:01", "List" : [ "0 00:00:00-00:00:00", "0 00:00:00-00:00:00" ], )"
              R"("Section" : "1 02:03:04-05:06:07", "Split" : "PIP3", "Time" : "2026-11-20 09:30:01", )"
              R"("TimeEx" : "2026-01-02 03:04:05.250", )"
              R"("Week" : [ [ "0 00:00:00-00:00:00" ], [ "-1 08:00:00-17:30:00" ] ] })");
}

TEST(Write, ASplitWithoutATextHasNoKey) {
    Times r{};
    for (const std::int32_t split : {-1, 3000}) {
        r.split = split;
        EXPECT_EQ(Write(kTimes, r).find("Split"), std::string::npos) << split;
    }
}

} // namespace
} // namespace orrery::record
