// Rows that are written one behind the other, by what stands in their nodes: each way of writing, with much room and
// with little.
#include "support/Locales.h"
#include "support/Records.h"

#include <cstring>
#include <gtest/gtest.h>

namespace orrery::record {
namespace {

using test::ExpectInEveryRoom;

// ---- What a key is written by ----

struct Gates {
    std::int8_t i8;
    std::uint8_t u8;
    std::int16_t i16;
    std::uint16_t u16;
    std::int32_t i32;
    std::uint32_t u32;
    std::int64_t i64;
    std::uint64_t u64;
    std::int32_t numbers[9];
    std::int32_t both;
};

TABLE(kGates, Gates,
      {
          FIELD(i8),
          FIELD(u8),
          FIELD(i16),
          FIELD(u16),
          FIELD(i32),
          FIELD(u32),
          FIELD(i64),
          FIELD(u64),
          FIELD(numbers, "List", Int).WriteIf(AT(u8)),
          FIELD(both, "A", Int).WriteIf(AT(i8)).Alias(),
          FIELD(both, "B", UInt).WriteIf(AT(u8)).Alias(),
          FIELD(both, "C", Bool).WriteIf(AT(i16)).Alias(),
          FIELD(both, "D", Int).WriteIf(AT(u16)).Alias(),
          FIELD(both, "E", Bool).SetsAndNeeds(AT(i32)).Alias(),
          FIELD(both, "F", Int).SetsAndNeeds(AT(u32)).Alias(),
          FIELD(both, "G", Int).SetsAndNeeds(AT(i64)).Alias(),
          FIELD(both, "H", UInt).WriteIf(AT(u64)).Alias(),
          FIELD(both, "Both", Int).SetsAndNeeds(AT(i8)).WriteIf(AT(u8)),
      });

TEST(WriteRun, AMemberOfAnyWidthLetsAKeyOut) {
    Gates r{};
    r.both = 3;
    EXPECT_EQ(test::Write(kGates, r), "null");
    const auto alone = [&](auto& gate, auto value, const std::string& member) {
        gate = value;
        ExpectInEveryRoom(kGates, r, "{ " + member + " }");
        gate = {};
    };
    // Each with a lowest byte of 0 where it has more than one.
    alone(r.i8, std::int8_t{-128}, R"("A" : 3)");
    alone(r.u8, std::uint8_t{128}, R"("B" : 3, "List" : [ 0, 0, 0, 0, 0, 0, 0, 0, 0 ])");
    alone(r.i16, std::int16_t{-256}, R"("C" : true)");
    alone(r.u16, std::uint16_t{0x100}, R"("D" : 3)");
    alone(r.i32, std::int32_t{1} << 30, R"("E" : true)");
    alone(r.u32, std::uint32_t{1} << 31, R"("F" : 3)");
    alone(r.i64, std::int64_t{1} << 40, R"("G" : 3)");
    alone(r.u64, std::uint64_t{1} << 63, R"("H" : 3)");
    r.u8 = 1;
    alone(r.i8, std::int8_t{1}, R"("A" : 3, "B" : 3, "Both" : 3, "List" : [ 0, 0, 0, 0, 0, 0, 0, 0, 0 ])");
}

struct Point {
    std::int32_t x;
    std::int32_t y;
};
PART(kPoint, Point,
     {
         FIELD(x, "", Int),
         FIELD(y, "", Int),
     })
    .As(Shape::Tuple);

struct Level {
    std::int32_t level;
};
PART(kLevel, Level,
     {
         FIELD(level, "Level", Int).WriteUnless(0),
     });

// Objects in objects, under keys of which two take more room than a member is sure of.
struct Nested {
    Level level;
};
constexpr char kLongKey[] =
    "AKeyThatIsNearlyAsLongAsAnyThatIsWrittenInARunTogetherWithItsNeighboursOfWhichTwoNeedMuchRoom";
PART(kNested, Nested, {FIELD(level, kLongKey, Record(kLevel)).WriteUnlessBare()});
struct Nest {
    Nested nested;
};
PART(kNest, Nest, {FIELD(nested, kLongKey, Record(kNested)).WriteUnlessBare()});
struct Nests {
    std::int32_t before;
    Nest left;
    Nest stays;
    std::int32_t behind;
};
TABLE(kNests, Nests,
      {
          FIELD(before, "A", Int),
          FIELD(left, "B", Record(kNest)).WriteUnlessBare(),
          FIELD(stays, "C", Record(kNest)),
          FIELD(behind, "D", Int),
      });

TEST(WriteRun, ObjectsThatTurnOutBareLeaveNoTraceWhereverTheRoomEnds) {
    const std::string key(kLongKey);
    ExpectInEveryRoom(kNests, Nests{1, {}, {}, 2}, R"({ "A" : 1, "C" : null, "D" : 2 })");
    const std::string nested = "{ \"" + key + "\" : { \"" + key + R"(" : { "Level" : 5 } } })";
    ExpectInEveryRoom(kNests, Nests{1, {{{5}}}, {{{5}}}, 2},
                      R"({ "A" : 1, "B" : )" + nested + R"(, "C" : )" + nested + R"(, "D" : 2 })");
}

NAMES(kModes, kExact.OutsideWrites("none"),
      {
          {1, "Automatic"},
          {2, "Manual"},
      });

void WriteDouble(const Field& field, const std::byte* record, WriteCall& call) {
    call.Key();
    call.out.Int(2 * Load<std::int32_t>(record + field.offset));
}
constexpr CustomCodec kDouble{nullptr, WriteDouble};

// One row of each way, all behind one flag.
struct Flagged {
    std::int32_t flag;
    std::int32_t number;
    float real;
    char text[8];
    std::int32_t mode;
    std::uint32_t mask[2];
    Point point;
    Level level;
    NET_TIME time;
};
TABLE(kFlagged, Flagged,
      {
          FIELD(flag),
          FIELD(number, "Double", Custom(kDouble)).WriteIf(AT(flag)).Alias(),
          FIELD(number, "Number", Int).WriteIf(AT(flag)).WriteUnless(9),
          FIELD(real, "Real", Real).WriteIf(AT(flag)),
          FIELD(text, "Text", Text).WriteIf(AT(flag)),
          FIELD(mode, "Mode", Names(kModes)).WriteIf(AT(flag)),
          FIELD(mask, "Mask", BitMask).WriteIf(AT(flag)),
          FIELD(point, "Point", Record(kPoint)).WriteIf(AT(flag)),
          FIELD(level, "Object", Record(kLevel)).WriteIf(AT(flag)),
          FIELD(time, "Time", NetTime).WriteIf(AT(flag)),
      });

TEST(WriteRun, RowsOfEveryWayBehindAFlag) {
    Flagged r{1, 4, 0.25f, "ab", 2, {2, 1}, {-1, 5}, {7}, {2026, 11, 22, 20, 5, 9}};
    ExpectInEveryRoom(kFlagged, r,
                      R"({ "Double" : 8, "Mask" : [ 1, 32 ], "Mode" : "Manual", "Number" : 4, )"
                      R"("Object" : { "Level" : 7 }, "Point" : [ -1, 5 ], "Real" : 0.2500000000000000, )"
                      R"("Text" : "ab", "Time" : "2026-11-22 20:05:09" })");
    r.number = 9; // the value that is left out
    r.mode = 3;
    r.mask[0] = r.mask[1] = 0;
    r.level = {};
    ExpectInEveryRoom(kFlagged, r,
                      R"({ "Double" : 18, "Mode" : "none", "Object" : null, "Point" : [ -1, 5 ], )"
                      R"("Real" : 0.2500000000000000, "Text" : "ab", "Time" : "2026-11-22 20:05:09" })");
    r.flag = 0;
    ExpectInEveryRoom(kFlagged, r, "null");
}

// ---- Switches ----

struct Switches {
    std::int32_t any;
    std::int32_t one;
    std::uint8_t narrow;
    std::uint8_t narrowOne;
    std::int16_t wide;
    std::uint32_t large;
    std::int32_t number;
};
TABLE(kSwitches, Switches,
      {
          FIELD(any, "Any", Bool),
          FIELD(one, "One", Bool).TrueAtOne(),
          FIELD(narrow, "Narrow", Bool),
          FIELD(narrowOne, "NarrowOne", Bool).TrueAtOne(),
          FIELD(wide, "Wide", Int),
          FIELD(large, "Large", UInt),
          FIELD(number, "Number", Int).WrittenAs(Bool).TrueAtOne(),
      });

TEST(WriteRun, SwitchesThatAreTrueAtOneAlone) {
    ExpectInEveryRoom(kSwitches, Switches{1, 1, 1, 1, -5, 4294967295u, 1},
                      R"({ "Any" : true, "Large" : 4294967295, "Narrow" : true, "NarrowOne" : true, )"
                      R"("Number" : true, "One" : true, "Wide" : -5 })");
    ExpectInEveryRoom(kSwitches, Switches{2, 2, 2, 2, 300, 0, 2},
                      R"({ "Any" : true, "Large" : 0, "Narrow" : true, "NarrowOne" : false, )"
                      R"("Number" : false, "One" : false, "Wide" : 300 })");
    ExpectInEveryRoom(kSwitches, Switches{-256, 0x101, 0, 0, -32768, 10, -1},
                      R"({ "Any" : true, "Large" : 10, "Narrow" : false, "NarrowOne" : false, )"
                      R"("Number" : false, "One" : false, "Wide" : -32768 })");
}

// ---- Masks ----

struct Masks {
    std::uint32_t one[1];
    std::uint32_t noKey[4];
    std::uint32_t null[5];
    std::uint32_t array[8];
    std::int32_t last;
};
TABLE(kMasks, Masks,
      {
          FIELD(one, "One", BitMask),
          FIELD(noKey, "NoKey", BitMaskLoose),
          FIELD(null, "Null", BitMask).WriteEmpty(Empty::Null),
          FIELD(array, "Array", BitMask).WriteEmpty(Empty::Array),
          FIELD(last, "Z", Int),
      });

TEST(WriteRun, MasksWithBitsInAnyOfTheirWords) {
    Masks r{};
    ExpectInEveryRoom(kMasks, r, R"({ "Array" : [  ], "Null" : null, "Z" : 0 })");
    r = {{1}, {0, 0, 0, 0x80000000u}, {0, 0, 0, 0, 1}, {0, 0, 0, 0, 0, 0, 0, 0xC0000000u}, 0};
    ExpectInEveryRoom(kMasks, r,
                      R"({ "Array" : [ 254, 255 ], "NoKey" : [ 127 ], "Null" : [ 128 ], "One" : [ 0 ], "Z" : 0 })");
    r = {{0xF0}, {0, 1, 0, 0}, {0, 0, 2, 0, 0}, {0, 0, 0, 0, 4, 0, 0, 0}, 6};
    ExpectInEveryRoom(kMasks, r,
                      R"({ "Array" : [ 130 ], "NoKey" : [ 32 ], "Null" : [ 65 ], "One" : [ 4, 5, 6, 7 ], "Z" : 6 })");
}

// ---- Objects in objects ----

struct Objects {
    Level stays;
    Level bare;
    std::int32_t kept;
    std::int32_t inner;
    std::int32_t deep;
    std::int32_t last;
};
TABLE(kObjects, Objects,
      {
          FIELD(stays, "Stays", Record(kLevel)),
          FIELD(bare, "Bare", Record(kLevel)).WriteUnlessBare(),
          FIELD(kept, "Kept/Level", Int).WriteUnless(0).KeepsObject(),
          FIELD(inner, "Outer/Level", Int).WriteUnless(0),
          FIELD(deep, "Outer/Within/Level", Int).WriteUnless(0),
          FIELD(last, "Z", Int),
      });

TEST(WriteRun, ObjectsWithNothingInThem) {
    ExpectInEveryRoom(kObjects, Objects{{0}, {0}, 0, 0, 0, 1}, R"({ "Kept" : null, "Stays" : null, "Z" : 1 })");
    ExpectInEveryRoom(kObjects, Objects{{0}, {2}, 0, 0, 3, 1},
                      R"({ "Bare" : { "Level" : 2 }, "Kept" : null, "Outer" : { "Within" : { "Level" : 3 } }, )"
                      R"("Stays" : null, "Z" : 1 })");
    ExpectInEveryRoom(kObjects, Objects{{4}, {0}, 5, 6, 0, 1},
                      R"({ "Kept" : { "Level" : 5 }, "Outer" : { "Level" : 6 }, "Stays" : { "Level" : 4 }, )"
                      R"("Z" : 1 })");
}

// ---- Tuples ----

struct Guard {
    std::uint32_t size;
    std::int32_t number;
};
PART(kGuard, Guard,
     {
         FIELD(size, nullptr, Size),
         FIELD(number, "Number", Int),
     })
    .Guarded();

struct Mixture {
    std::int32_t any;
    std::int32_t one;
    std::int32_t number;
    std::uint8_t small;
    std::int8_t flag;
    float real;
    double large;
    char text[6];
    char raw[2];
    char longer[200];
    std::int32_t mode;
    std::int32_t noText;
    Point point;
    Guard guard;
    CFG_TIME_SECTION section;
    std::int32_t last;
};
NAMES(kPlaces, kExact,
      {
          {0, "in/out"},
          {5, "Far"},
      });
PART(kMixture, Mixture,
     {
         FIELD(any, "", Bool),
         FIELD(one, "", Bool).TrueAtOne(),
         FIELD(number, "", Int),
         FIELD(small, "", UInt),
         FIELD(flag, "", Bool),
         FIELD(real, "", Real),
         FIELD(large, "", Real),
         FIELD(text, "", Text),
         FIELD(raw, "", RawText),
         FIELD(longer, "", RawText),
         FIELD(mode, "", Names(kModes)),
         FIELD(noText, "", Names(kPlaces)),
         FIELD(point, "", Record(kPoint)),
         FIELD(guard, "", Record(kGuard)),
         FIELD(section, "", TimeSection),
         FIELD(last, "", Int),
     })
    .As(Shape::Tuple);

struct Tuples {
    Mixture mixture;
    Point corners[3];
    std::int32_t count;
    Mixture more[2];
    std::int32_t moreCount;
};
TABLE(kTuples, Tuples,
      {
          FIELD(mixture, "Mixture", Record(kMixture)),
          FIELD(corners, "Corners", Record(kPoint)).Count(AT(count)),
          FIELD(count),
          FIELD(more, "More", Record(kMixture)).Count(AT(moreCount)),
          FIELD(moreCount),
      });

TEST(WriteRun, TuplesOfValuesOfEveryWay) {
    Mixture first{};
    first.any = first.one = 2;
    first.number = -70000;
    first.small = 200;
    first.flag = -1;
    first.real = 0.5f;
    first.large = -1e20;
    std::memcpy(first.text, "abcdef", 6);
    std::memcpy(first.raw, "/x", 2);
    std::memset(first.longer, '/', sizeof first.longer);
    first.mode = 2;
    first.point = {1, -2};
    first.guard = {sizeof(Guard), 3};
    first.section = {1, 2, 3, 4, 5, 6, 7};
    first.last = 8;
    Mixture second{};
    second.one = 1;
    second.real = -0.0f;
    second.noText = 4;
    second.guard = {sizeof(Guard) + 1, 3};
    second.section.dwMask = 100;
    second.last = 9;
    std::string slashes;
    for (int i = 0; i < 200; ++i)
        slashes += "\\/";
    const std::string firstText =
        R"([ true, false, -70000, 200, true, 0.5000000000000000, -1.000000000000000e+20, "abcdef", "\/x", ")" + slashes
        + R"(", "Manual", "in\/out", [ 1, -2 ], { "Number" : 3 }, "1 02:03:04-05:06:07", 8 ])";
    const std::string secondText =
        R"([ false, true, 0, 0, false, -0.000000000000000, 0.000000000000000, "", "", "", "none", null, [ 0, 0 ], )"
        R"(null, "100 00:00:00-00:00:00", 9 ])";
    ExpectInEveryRoom(kMixture, first, firstText);
    ExpectInEveryRoom(kMixture, second, secondText);
    const Tuples both{second, {{1, 2}, {-3, 2147483647}, {5, 6}}, 2, {first, second}, 2};
    ExpectInEveryRoom(kTuples, both,
                      R"({ "Corners" : [ [ 1, 2 ], [ -3, 2147483647 ] ], "Mixture" : )" + secondText
                          + R"(, "More" : [ )" + firstText + ", " + secondText + " ] }");
}

// ---- Names and texts in lists ----

NAMES(kColours, kExact.OutsideWritesNull(),
      {
          {0, "red"},
          {1, "green"},
          {2, "a colour with a name of some length"},
          {3, "blue"},
      });
NAMES(kOdd, kExact,
      {
          {3, "three"},
          {7, "sev/en"},
      });

struct Words {
    std::int32_t colours[4];
    std::uint8_t modes[3];
    std::int32_t stays[4];
    std::int32_t closes[4];
    std::int32_t hole[4];
    std::int32_t capped[2];
    char texts[3][6];
    std::int32_t textCount;
    char raws[2][4];
};
TABLE(kWords, Words,
      {
          FIELD(colours, "Colours", Names(kColours)),
          FIELD(modes, "Modes", Names(kModes)),
          FIELD(stays, "Stays", Names(kOdd)),
          FIELD(closes, "Closes", Names(kOdd)).WriteSkipped(Skipped::ClosesUp),
          FIELD(hole, "Hole", Names(kOdd)).WriteSkipped(Skipped::Hole),
          FIELD(capped, "Capped", Names(kColours)).WriteAtMost(1),
          FIELD(texts, "Texts", Text).Count(AT(textCount)),
          FIELD(textCount),
          FIELD(raws, "Raws", RawText),
      });

TEST(WriteRun, NamesAndTextsInLists) {
    ExpectInEveryRoom(kWords,
                      Words{{3, 2, 1, 0},
                            {1, 2, 1},
                            {3, 7, 3, 7},
                            {7, 3, 3, 7},
                            {3, 3, 7, 7},
                            {0, 1},
                            {"ab", "c/d", "e"},
                            2,
                            {{'1', '2', '3', '4'}, "\x80"}},
                      R"({ "Capped" : [ "red", "green" ], "Closes" : [ "sev\/en", "three", "three", "sev\/en" ], )"
                      R"("Colours" : [ "blue", "a colour with a name of some length", "green", "red" ], )"
                      R"("Hole" : [ "three", "three", "sev\/en", "sev\/en" ], )"
                      R"("Modes" : [ "Automatic", "Manual", "Automatic" ], "Raws" : [ "1234", ")"
                      "\x80"
                      R"(" ], "Stays" : [ "three", "sev\/en", "three", "sev\/en" ], "Texts" : [ "ab", "c\/d" ] })");
    // Codes that have no text, at either end and between.
    ExpectInEveryRoom(kWords,
                      Words{{-1, 1, 4, 3}, {0, 1, 255}, {1, 3, 8, 7}, {1, 3, 8, 7}, {1, 3, 8, 8}, {2, 1000}, {}, 0, {}},
                      R"({ "Capped" : [ "green", "green" ], "Closes" : [ "three", "sev\/en" ], )"
                      R"("Colours" : [ null, "green", null, "blue" ], "Hole" : [ null, "three" ], )"
                      R"("Modes" : [ "none", "Automatic", "none" ], "Raws" : [ "", "" ], )"
                      R"("Stays" : [ null, "three", null, "sev\/en" ] })");
}

// ---- Texts that need conversion ----

struct Titles {
    char before[8];
    char one[8];
    char list[4][8];
    char raw[8];
    char after[8];
};
TABLE(kTitles, Titles,
      {
          FIELD(before, "Before", Text),
          FIELD(one, "One", Text),
          FIELD(list, "List", Text),
          FIELD(raw, "Raw", RawText),
          FIELD(after, "Zone", Text),
      });
PART(kTitleTuple, Titles,
     {
         FIELD(before, "", Text),
         FIELD(one, "", Text),
         FIELD(list),
         FIELD(raw, "", RawText),
         FIELD(after, "", Text),
     })
    .As(Shape::Tuple);

class WriteRunIn : public test::CompiledLocales {};

TEST_F(WriteRunIn, TextsThatNeedConversionAmongOthersThatDoNot) {
    Compile("GBK", "zh_CN.GBK");
    const test::ProcessLocale locale("zh_CN.GBK");
    ASSERT_TRUE(locale.isThere());
    // GBK has D6 D0 for U+4E2D and C3 C5 for U+95E8.
    const Titles r{"a", "\xD6\xD0/", {"b", "\xC3\xC5", "c/", "\xD6\xD0"}, "\xD6\xD0", "d"};
    ExpectInEveryRoom(kTitles, r,
                      "{ \"Before\" : \"a\", \"List\" : [ \"b\", \"\xE9\x97\xA8\", \"c\\/\", \"\xE4\xB8\xAD\" ], "
                      "\"One\" : \"\xE4\xB8\xAD\\/\", \"Raw\" : \"\xD6\xD0\", \"Zone\" : \"d\" }");
    ExpectInEveryRoom(kTitleTuple, r, "[ \"a\", \"\xE4\xB8\xAD\\/\", \"\xD6\xD0\", \"d\" ]");
}

// Where ASCII is not at its place no text goes out as it stands, but for those that are never converted.
TEST_F(WriteRunIn, TextsOfAnEncodingThatIsNoAscii) {
    Compile("SHIFT_JIS", "ja_JP.SJIS");
    const test::ProcessLocale locale("ja_JP.SJIS");
    ASSERT_TRUE(locale.isThere());
    // It has a yen sign and a line above where ASCII has a backslash and a tilde, and 83 5C for U+30BD.
    const Titles r{"b\\c", "\x83\x5C", {"b", "abc~", "\x83\x5C", "d\\e"}, "~\\", "f"};
    ExpectInEveryRoom(kTitles, r,
                      "{ \"Before\" : \"b\xC2\xA5\x63\", \"List\" : [ \"b\", \"abc\xE2\x80\xBE\", "
                      "\"\xE3\x82\xBD\", \"d\xC2\xA5\x65\" ], \"One\" : \"\xE3\x82\xBD\", \"Raw\" : \"~\\\\\", "
                      "\"Zone\" : \"f\" }");
    ExpectInEveryRoom(kTitleTuple, r, "[ \"b\xC2\xA5\x63\", \"\xE3\x82\xBD\", \"~\\\\\", \"f\" ]");
}

} // namespace
} // namespace orrery::record
