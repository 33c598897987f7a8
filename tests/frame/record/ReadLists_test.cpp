// Lists, inner objects, nested records and the codecs that take a member whole.
#include "support/Records.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orrery::record {
namespace {

using test::Read;
using test::ReadInto;
using testing::Each;
using testing::ElementsAre;

// ---- Lists ----

struct Lists {
    std::int32_t counted[3];
    std::int16_t count;
    std::int32_t uncapped[2];
    std::int32_t uncappedCount;
    std::int32_t any[2];
    std::int32_t anyCount;
    std::int32_t anyFlag;
    std::int32_t exact[2];
    std::int32_t exactFlag;
    std::int32_t hole[4];
    std::int32_t holeCount;
    std::int32_t close[4];
    std::int32_t closeCount;
    std::int32_t stop[4];
    std::int32_t stopCount;
    std::int32_t matrix[2][3];
};

TABLE(kLists, Lists,
      {
          FIELD(counted, "Counted", Int).Count(AT(count)),
          FIELD(count),
          FIELD(uncapped, "Uncapped", Int).CountUncapped(AT(uncappedCount)),
          FIELD(uncappedCount),
          FIELD(any, "Any", Int).Count(AT(anyCount)).SetsAndNeeds(AT(anyFlag)).AnyShape(),
          FIELD(anyCount),
          FIELD(anyFlag),
          FIELD(exact, "Exact", Int).SetsAndNeeds(AT(exactFlag)).Exactly(),
          FIELD(exactFlag),
          FIELD(hole, "Hole", Int).Count(AT(holeCount)).NullElement(Nulls::LeaveHole),
          FIELD(holeCount),
          FIELD(close, "Close", Int).Count(AT(closeCount)).NullElement(Nulls::CloseUp),
          FIELD(closeCount),
          FIELD(stop, "Stop", Int).Count(AT(stopCount)).NullElement(Nulls::Stop),
          FIELD(stopCount),
          FIELD(matrix, "Matrix", Int),
      });

TEST(Read, AListIsCutAtItsRoomAndCounted) {
    const auto r = Read(kLists, R"({ "Counted" : [ 1, "x", 3, 4 ], "Uncapped" : [ 1, 2, 3, 4, 5 ] })");
    EXPECT_THAT(r.counted, ElementsAre(1, 0, 3));
    EXPECT_EQ(r.count, 3);
    EXPECT_THAT(r.uncapped, ElementsAre(1, 2));
    EXPECT_EQ(r.uncappedCount, 5);
}

TEST(Read, AListOfAnotherShapeIsNotRead) {
    for (const char* other : {"5", "\"1\"", "true", R"({ "a" : 1 })"}) {
        Lists r{};
        r.count = 9;
        ASSERT_TRUE(ReadInto(r, kLists, std::string(R"({ "Counted" : )") + other + " }"));
        EXPECT_EQ(r.count, 9) << other;
    }
}

TEST(Read, AnEmptyListSetsItsCount) {
    Lists r{};
    r.count = 9;
    ASSERT_TRUE(ReadInto(r, kLists, R"({ "Counted" : [ ] })"));
    EXPECT_EQ(r.count, 0);
}

TEST(Read, AListOfAnyShapeReadsAsEmpty) {
    Lists r{};
    r.anyCount = 9;
    ASSERT_TRUE(ReadInto(r, kLists, R"({ "Any" : 5 })"));
    EXPECT_EQ(r.anyCount, 0);
    EXPECT_EQ(r.anyFlag, 1);
    // The members of an object count, though none of them stands at an index.
    EXPECT_EQ(Read(kLists, R"({ "Any" : { "a" : 7 } })").anyCount, 1);
    EXPECT_EQ(Read(kLists, R"({ "Any" : { "a" : 7, "b" : 8, "c" : 9 } })").anyCount, 2);
    EXPECT_THAT(Read(kLists, R"({ "Any" : { "a" : 7, "b" : 8, "c" : 9 } })").any, Each(0));
}

TEST(Read, AListOfExactlyItsLength) {
    EXPECT_THAT(Read(kLists, R"({ "Exact" : [ 5, 6 ] })").exact, ElementsAre(5, 6));
    EXPECT_EQ(Read(kLists, R"({ "Exact" : [ 5, 6 ] })").exactFlag, 1);
    for (const char* other : {"[ 5 ]", "[ 5, 6, 7 ]", "[ ]", "5", R"({ "a" : 1, "b" : 2 })"}) {
        const auto r = Read(kLists, std::string(R"({ "Exact" : )") + other + " }");
        EXPECT_THAT(r.exact, Each(0)) << other;
        EXPECT_EQ(r.exactFlag, 0) << other;
    }
}

TEST(Read, NullElementsOfAList) {
    const auto r = Read(kLists, R"({ "Counted" : [ 1, null, 3 ], "Hole" : [ 1, null, 3 ], "Close" : [ 1, null, 3 ],
                                     "Stop" : [ 1, null, 3 ] })");
    EXPECT_THAT(r.counted, ElementsAre(1, 0, 3));
    EXPECT_EQ(r.count, 3);
    EXPECT_THAT(r.hole, ElementsAre(1, 0, 3, 0));
    EXPECT_EQ(r.holeCount, 2);
    EXPECT_THAT(r.close, ElementsAre(1, 3, 0, 0));
    EXPECT_EQ(r.closeCount, 2);
    EXPECT_THAT(r.stop, ElementsAre(1, 0, 0, 0));
    EXPECT_EQ(r.stopCount, 1);
}

TEST(Read, NullsThatAreCountedTakeRoomAndThoseThatCloseUpDoNot) {
    const auto r = Read(kLists, R"({ "Hole" : [ null, null, null, 4, 5 ], "Close" : [ null, null, null, 4, 5 ] })");
    EXPECT_THAT(r.hole, ElementsAre(0, 0, 0, 4));
    EXPECT_EQ(r.holeCount, 1);
    EXPECT_THAT(r.close, ElementsAre(4, 5, 0, 0));
    EXPECT_EQ(r.closeCount, 2);
}

TEST(Read, AMatrixTakesRowsThatAreLists) {
    const auto r = Read(kLists, R"({ "Matrix" : [ [ 1, 2, 3, 4 ], 7, [ 8 ] ] })");
    EXPECT_THAT(r.matrix[0], ElementsAre(1, 2, 3));
    EXPECT_THAT(r.matrix[1], Each(0));
    const auto second = Read(kLists, R"({ "Matrix" : [ null, [ 8, 9 ] ] })");
    EXPECT_THAT(second.matrix[0], Each(0));
    EXPECT_THAT(second.matrix[1], ElementsAre(8, 9, 0));
}

// ---- Masks and switches ----

struct Masks {
    std::uint32_t mask[2];
    std::int32_t maskFlag;
    std::uint32_t loose[2];
    std::int32_t switches[4];
};

TABLE(kMasks, Masks,
      {
          FIELD(mask, "Mask", BitMask).SetsAndNeeds(AT(maskFlag)),
          FIELD(maskFlag),
          FIELD(loose, "Loose", BitMaskLoose).AnyShape(),
          FIELD(switches, "Switches", Switches),
      });

TEST(Read, AMaskTakesNumbersOfItsBits) {
    const auto r = Read(kMasks, R"({ "Mask" : [ 0, 31, 32, 63, 64, -1, "x", 1.9 ] })");
    EXPECT_THAT(r.mask, ElementsAre(0x80000003u, 0x80000001u)); // "x" is 0, 1.9 is 1
    EXPECT_EQ(r.maskFlag, 1);
    EXPECT_EQ(Read(kMasks, R"({ "Mask" : 5 })").maskFlag, 0);
    EXPECT_EQ(Read(kMasks, R"({ "Mask" : [ ] })").maskFlag, 1);
}

TEST(Read, AMaskTakesAsManyNumbersAsItHasBits) {
    std::string numbers;
    for (int i = 0; i < 64; ++i)
        numbers += "99, ";
    EXPECT_THAT(Read(kMasks, R"({ "Mask" : [ )" + numbers + "5 ] }").mask, Each(0u));
    EXPECT_THAT(Read(kMasks, R"({ "Mask" : [ )" + numbers.substr(4) + "5 ] }").mask, ElementsAre(32u, 0u));
}

TEST(Read, ALooseMaskTakesSmallNegativeNumbers) {
    const auto r = Read(kMasks, R"({ "Loose" : [ -1, -31, -32, -33, -2147483648, 33 ] })");
    EXPECT_THAT(r.loose, ElementsAre(0x80000002u, 2u)); // -1 is bit 31, -31 is bit 1
    EXPECT_THAT(Read(kMasks, R"({ "Loose" : { "a" : 1 } })").loose, Each(0u));
}

TEST(Read, Switches) {
    EXPECT_THAT(Read(kMasks, R"({ "Switches" : [ 3, 0, 4, -1 ] })").switches, ElementsAre(1, 0, 0, 1));
    // At most as many as there are switches.
    EXPECT_THAT(Read(kMasks, R"({ "Switches" : [ 9, 9, 9, 9, 2 ] })").switches, Each(0));
    EXPECT_THAT(Read(kMasks, R"({ "Switches" : 1 })").switches, Each(0));
}

// ---- Groups, aliases, values of their own, keys of the document ----

struct Grouped {
    std::int32_t plain;
    std::int32_t inner;
    std::int32_t deep;
    std::int32_t isThere;
    std::int32_t always;
    std::int32_t channel;
};

TABLE(kGrouped, Grouped,
      {
          FIELD(plain, "a", Int),
          FIELD(inner, "g/b", Int),
          FIELD(deep, "g/h/c", Int),
          FIELD(isThere, "g", Presence),
          FIELD(always, "g/z", Bool).Always(),
          FIELD(channel, "params/channel", Int).FromRoot(),
          FIELD(plain, "A", Int).Alias(),
      });

TEST(Read, KeysInsideInnerObjects) {
    const auto r = Read(kGrouped, R"({ "a" : 1, "g" : { "b" : 2, "h" : { "c" : 3 }, "z" : 1 } })");
    EXPECT_EQ(r.plain, 1);
    EXPECT_EQ(r.inner, 2);
    EXPECT_EQ(r.deep, 3);
    EXPECT_EQ(r.isThere, 1);
    EXPECT_EQ(r.always, 1);
}

TEST(Read, AnInnerObjectOfAnotherTypeHasNoKeys) {
    Grouped r{};
    r.always = 7;
    r.inner = 8;
    ASSERT_TRUE(ReadInto(r, kGrouped, R"({ "g" : 5 })"));
    EXPECT_EQ(r.isThere, 1);
    EXPECT_EQ(r.always, 0);
    EXPECT_EQ(r.inner, 8);
    r.always = 7;
    ASSERT_TRUE(ReadInto(r, kGrouped, "{ }"));
    EXPECT_EQ(r.always, 0); // also when the object itself is absent
}

TEST(Read, AnAliasReadsIntoTheSameField) {
    EXPECT_EQ(Read(kGrouped, R"({ "A" : 4 })").plain, 4);
    EXPECT_EQ(Read(kGrouped, R"({ "A" : 4, "a" : 5 })").plain, 5); // "a" comes behind "A"
}

TEST(Read, AKeyFromTheDocumentIsNotLookedForInTheRecord) {
    EXPECT_EQ(Read(kGrouped, "{ }", R"({ "params" : { "channel" : 6 } })").channel, 6);
    EXPECT_EQ(Read(kGrouped, R"({ "params" : { "channel" : 6 } })").channel, 0);
}

struct Self {
    std::int32_t number;
    std::int32_t key;
};

TABLE(kSelf, Self,
      {
          FIELD(number, "", Int).Only(OnlyType::Integer),
          FIELD(key, "Key", Int),
      });

TEST(Read, AFieldThatIsTheValueItself) {
    EXPECT_EQ(Read(kSelf, "12").number, 12);
    EXPECT_EQ(Read(kSelf, R"({ "Key" : 3 })").number, 0);
    EXPECT_EQ(Read(kSelf, R"({ "Key" : 3 })").key, 3);
}

// ---- Tuples, guards, nested records ----

struct Pair {
    std::uint32_t size;
    std::int32_t first;
    char second[4];
};

TABLE(kTuple, Pair,
      {
          FIELD(size, nullptr, Size),
          FIELD(first, "", Int),
          FIELD(second, "", Text),
      })
    .As(Shape::Tuple);
TABLE(kLoose, Pair,
      {
          FIELD(size, nullptr, Size),
          FIELD(first, "", Int),
          FIELD(second, "", Text),
      })
    .As(Shape::LooseTuple);
TABLE(kGuarded, Pair,
      {
          FIELD(size, nullptr, Size),
          FIELD(first, "", Int),
          FIELD(second, "", Text),
      })
    .As(Shape::Tuple)
    .Guarded();

TEST(Read, ATupleHasExactlyItsLength) {
    EXPECT_EQ(Read(kTuple, R"([ 5, "x" ])").first, 5);
    EXPECT_STREQ(Read(kTuple, R"([ 5, "x" ])").second, "x");
    EXPECT_EQ(Read(kTuple, R"([ 5, "x" ])").size, 12u);
    for (const char* other : {"[ 5 ]", R"([ 5, "x", 6 ])", "[ ]", "5", R"({ "a" : 5, "b" : "x" })"}) {
        Pair r{};
        r.first = 77;
        ASSERT_TRUE(ReadInto(r, kTuple, other));
        EXPECT_EQ(r.first, 77) << other;
    }
}

TEST(Read, ATupleTakesNullsAsZero) {
    Pair r{};
    r.first = 77;
    ASSERT_TRUE(ReadInto(r, kTuple, R"([ null, "x" ])"));
    EXPECT_EQ(r.first, 0);
}

TEST(Read, ALooseTupleOfAnyLength) {
    EXPECT_EQ(Read(kLoose, "[ 5 ]").first, 5);
    EXPECT_STREQ(Read(kLoose, R"([ 5, "x", 6 ])").second, "x");
    Pair r{};
    r.first = 77;
    ASSERT_TRUE(ReadInto(r, kLoose, R"("text")"));
    EXPECT_EQ(r.first, 0);
}

TEST(Read, AGuardedRecordIsReadOnlyAtItsOwnSize) {
    for (const std::uint32_t size : {0u, 8u, 11u, 12u, 13u}) {
        Pair r{};
        r.size = size;
        test::Document value(R"([ 5, "x" ])");
        LocalText text(value.arena);
        JsonParser parser(text);
        ReadCall call{parser, value.root};
        EXPECT_EQ(ReadFields(kGuarded, value.root, reinterpret_cast<std::byte*>(&r), call), size == 12);
        EXPECT_EQ(r.first, size == 12 ? 5 : 0) << size;
        EXPECT_EQ(r.size, size);
    }
}

struct Item {
    std::int32_t id;
    std::int32_t level;
};

TABLE(kItem, Item,
      {
          FIELD(id, "Id", Int),
          FIELD(level, "Level", Int).Absent(-1),
      });

struct Named {
    char name[8];
    std::int32_t id;
};

TABLE(kNamed, Named,
      {
          FIELD(name, nullptr, MemberName),
          FIELD(id, "Id", Int),
      });

struct Nest {
    Item one;
    Item many[2];
    std::int32_t manyCount;
    Named named[3];
    std::int32_t namedCount;
    std::int32_t room;
    Item* caller;
    std::int32_t used;
    std::int32_t zeroedRoom;
    Item* zeroed;
    std::int64_t sum;
};

void Sum(const json::Value& value, std::byte* record, ReadCall& call) {
    SET_MEMBER(record, Nest, sum, MEMBER(record, Nest, manyCount) + MEMBER(record, Nest, namedCount));
    if (value["Bad"].asBool()) call.refused = true;
}

TABLE(kNest, Nest,
      {
          FIELD(one, "One", Record(kItem)),
          FIELD(many, "Many", Record(kItem)).Count(AT(manyCount)),
          FIELD(manyCount),
          FIELD(named, "Named", Record(kNamed)).Count(AT(namedCount)).Keyed(),
          FIELD(namedCount),
          FIELD(room),
          FIELD(caller, "Caller", Record(kItem)).Capacity(AT(room)).Count(AT(used)),
          FIELD(used),
          FIELD(zeroedRoom),
          FIELD(zeroed, "Zeroed", Record(kItem)).Capacity(AT(zeroedRoom)).Zeroed(),
          FIELD(sum),
      })
    .AfterRead(Sum);

TEST(Read, DefaultsReachNestedRecords) {
    const auto r = Read(kNest, R"({ "Many" : [ { "Id" : 1 }, { "Level" : 3 }, { "Id" : 9 } ] })");
    EXPECT_EQ(r.one.level, -1);
    EXPECT_EQ(r.many[0].id, 1);
    EXPECT_EQ(r.many[0].level, -1);
    EXPECT_EQ(r.many[1].level, 3);
    EXPECT_EQ(r.manyCount, 2);
}

TEST(Read, AFunctionBehindTheRowsSeesThemAndMayRefuse) {
    EXPECT_EQ(Read(kNest, R"({ "Many" : [ { }, 5 ], "Named" : { "a" : 1 } })").sum, 3);
    Nest r{};
    EXPECT_FALSE(ReadInto(r, kNest, R"({ "Bad" : true })"));
}

TEST(Read, RecordsUnderTheirNames) {
    const auto r = Read(kNest, R"({ "Named" : { "b" : { "Id" : 2 }, "a-long-name" : { "Id" : 1 }, "n" : null,
                                                "c" : 5, "d" : { "Id" : 4 } } })");
    EXPECT_STREQ(r.named[0].name, "a-long-");
    EXPECT_EQ(r.named[0].id, 1);
    EXPECT_STREQ(r.named[1].name, "b");
    EXPECT_EQ(r.named[1].id, 2);
    EXPECT_STREQ(r.named[2].name, "c");
    EXPECT_EQ(r.namedCount, 3);
    Nest kept{};
    kept.namedCount = 9;
    ASSERT_TRUE(ReadInto(kept, kNest, R"({ "Named" : [ { "Id" : 2 } ] })"));
    EXPECT_EQ(kept.namedCount, 9);
}

struct AllNamed {
    Named named[3];
    std::int32_t count;
};
TABLE(kAllNamed, AllNamed,
      {
          FIELD(named, "Named", Record(kNamed)).Count(AT(count)).Keyed().NullElement(Nulls::Named),
          FIELD(count),
      });

TEST(Read, ANullUnderANameCanBeAnElement) {
    const auto r =
        Read(kAllNamed, R"({ "Named" : { "c" : { "Id" : 3 }, "a" : null, "b" : { "Id" : 2 }, "d" : null } })");
    EXPECT_STREQ(r.named[0].name, "a");
    EXPECT_EQ(r.named[0].id, 0);
    EXPECT_STREQ(r.named[1].name, "b");
    EXPECT_EQ(r.named[1].id, 2);
    EXPECT_STREQ(r.named[2].name, "c");
    EXPECT_EQ(r.count, 3);
}

TEST(Read, RecordsIntoTheCallersArray) {
    Item items[3] = {{7, 7}, {7, 7}, {7, 7}};
    Nest r{};
    r.caller = items;
    r.room = 2;
    ASSERT_TRUE(ReadInto(r, kNest, R"({ "Caller" : [ { "Id" : 1 }, null, { "Id" : 3 } ] })"));
    EXPECT_EQ(items[0].id, 1);
    EXPECT_EQ(items[0].level, 7); // what the caller put there stays
    EXPECT_EQ(items[1].id, 7);
    EXPECT_EQ(items[2].id, 7);
    EXPECT_EQ(r.used, 2);
}

TEST(Read, AZeroedArrayOfTheCaller) {
    Item items[2] = {{7, 7}, {7, 7}};
    Nest r{};
    r.zeroed = items;
    r.zeroedRoom = 2;
    ASSERT_TRUE(ReadInto(r, kNest, R"({ "Zeroed" : [ { } ] })"));
    EXPECT_EQ(items[0].id, 0);
    EXPECT_EQ(items[0].level, -1);
    EXPECT_EQ(items[1].id, 7);
}

TEST(Read, NoArrayOfTheCallerOrNoRoomInIt) {
    Item item{7, 7};
    for (const std::int32_t room : {0, -1, INT32_MIN}) {
        Nest r{};
        r.caller = &item;
        r.room = room;
        r.used = 5;
        ASSERT_TRUE(ReadInto(r, kNest, R"({ "Caller" : [ { "Id" : 1 } ] })"));
        EXPECT_EQ(r.used, 0) << room;
    }
    EXPECT_EQ(item.id, 7);
    Nest r{};
    r.room = 5;
    ASSERT_TRUE(ReadInto(r, kNest, R"({ "Caller" : [ { "Id" : 1 } ] })"));
    EXPECT_EQ(r.used, 0);
}

// ---- Functions of a row's own ----

struct Own {
    std::int32_t sum;
    std::int32_t runs;
};

void ReadSum(const Field& field, const json::Value& value, std::byte* record, ReadCall& call) {
    std::int32_t sum = 0;
    for (const json::Value& element : value.elements())
        sum += element.asInt();
    Store(record + field.offset, sum);
    SET_MEMBER(record, Own, runs, MEMBER(record, Own, runs) + 1);
    if (sum < 0) call.refused = true;
}

constexpr CustomCodec kSum{ReadSum, nullptr};

TABLE(kOwn, Own,
      {
          FIELD(sum, "Sum", Custom(kSum)),
          FIELD(runs),
      });
TABLE(kOwnAlways, Own,
      {
          FIELD(sum, "Sum", Custom(kSum)).Always(),
          FIELD(runs),
      });

TEST(Read, AFunctionOfTheRowsOwn) {
    EXPECT_EQ(Read(kOwn, R"({ "Sum" : [ 1, 2, 4 ] })").sum, 7);
    EXPECT_EQ(Read(kOwn, R"({ "Sum" : null })").runs, 0);
    EXPECT_EQ(Read(kOwnAlways, "{ }").runs, 1);
    Own r{};
    EXPECT_FALSE(ReadInto(r, kOwn, R"({ "Sum" : [ -1 ] })"));
}

// ---- Times ----

struct Times {
    CFG_TIME_SECTION section;
    CFG_TIME_SECTION week[2][2];
    CFG_TIME_SECTION list[3];
    NET_TIME time;
    NET_TIME_EX timeEx;
    NET_TIME clock;
    NET_TIME date;
    std::int32_t split;
};

TABLE(kTimes, Times,
      {
          FIELD(section, "Section", TimeSection),
          FIELD(week, "Week", Schedule),
          FIELD(list, "List", SectionList),
          FIELD(time, "Time", NetTime),
          FIELD(timeEx, "TimeEx", NetTimeEx),
          FIELD(clock, "Clock", ClockTime),
          FIELD(date, "Date", Date),
          FIELD(split, "Split", SplitMode),
      });

TEST(Read, TimesAndSplits) {
    const auto r = Read(kTimes, R"({ "Section" : "1 02:03:04-05:06:07", "Week" : [ [ "1 1:1:1-2:2:2" ], [ "x" ] ],
        "List" : [ "bad", "2 1:2:3-4:5:6" ], "Time" : "2026-11-20 09:30:01", "TimeEx" : "2026-11-20 09:30:01.250",
        "Clock" : "09:30:01", "Date" : "2026-11-20", "Split" : "Split9" })");
    EXPECT_EQ(r.section.dwMask, 1);
    EXPECT_EQ(r.section.nEndSec, 7);
    EXPECT_EQ(r.week[0][0].nEndHour, 2);
    EXPECT_EQ(r.week[0][1].nEndHour, 0);
    EXPECT_EQ(r.list[0].dwMask, 0);
    EXPECT_EQ(r.list[1].dwMask, 2);
    EXPECT_EQ(r.list[1].nEndSec, 6);
    EXPECT_EQ(r.time.dwYear, 2026);
    EXPECT_EQ(r.time.dwSecond, 1);
    EXPECT_EQ(r.timeEx.dwMillisecond, 250);
    EXPECT_EQ(r.clock.dwYear, 0);
    EXPECT_EQ(r.clock.dwMinute, 30);
    EXPECT_EQ(r.date.dwDay, 20);
    EXPECT_EQ(r.split, 9);
    EXPECT_EQ(Read(kTimes, R"({ "Split" : 9 })").split, 0); // only a text is a split mode
}

} // namespace
} // namespace orrery::record
