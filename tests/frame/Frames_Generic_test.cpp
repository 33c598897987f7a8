#include "frame/record/Engine.h"
#include "orrery/general.h"
#include "support/FrameCalls.h"
#include "support/GuardedBuffer.h"

#include "orrery/calls.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

using namespace record;
using test::Pack;
using test::Reply;

struct Item {
    std::int32_t id;
    std::int32_t level;
};

TABLE(kItem, Item,
      {
          FIELD(id, "Id", Int),
          FIELD(level, "Level", Int),
      });

// A record that is itself a list.
struct Row {
    std::int32_t cells[2];
    std::int32_t count;
};

TABLE(kRow, Row,
      {
          FIELD(cells, "", Int).Count(AT(count)),
          FIELD(count),
      });

auto Parse(const GenericFrame& frame, const std::string& text, std::size_t size = sizeof(Item)) {
    return test::Parse<Item>(kItem, frame, text, size);
}

constexpr GenericFrame kOne;
constexpr GenericFrame kOneCleared{.zeroBuffer = true};
constexpr GenericFrame kMany{.arrayForm = true, .zeroBuffer = true};
constexpr std::uint32_t kBefore = 1000000; // what the length holds before a call

// ---- Reading ----

TEST(GenericFrame, ABufferBelowOneRecordIsNotTouched) {
    for (const std::size_t size : {0u, 1u, 7u}) {
        const auto f = Parse(kOneCleared, Reply("{ }"), size);
        EXPECT_EQ(f.outcome, Outcome::BufferTooSmall);
        EXPECT_TRUE(f.isUntouched()) << size;
    }
}

TEST(GenericFrame, FailuresLeaveTheBufferAsItWasOrCleared) {
    for (const char* text : {"", "{", "no json"}) {
        EXPECT_EQ(Parse(kOne, text).outcome, Outcome::NoJson);
        EXPECT_TRUE(Parse(kOne, text).isUntouched()) << text;
        EXPECT_TRUE(Parse(kOneCleared, text, 100).isCleared()) << text;
        EXPECT_EQ(Parse(kOneCleared, text).length, kBefore);
    }
    for (const char* result : {"false", "null", "0", "\"\"", "[ ]", "{ }", "0.0"}) {
        const std::string text = std::string(R"({ "params" : { "table" : { "Id" : 1 } }, "result" : )") + result + " }";
        EXPECT_EQ(Parse(kOne, text).outcome, Outcome::Refused) << result;
        EXPECT_TRUE(Parse(kOne, text).isUntouched());
        EXPECT_TRUE(Parse(kOneCleared, text, 100).isCleared());
    }
    EXPECT_EQ(Parse(kOne, R"({ "params" : { "table" : { "Id" : 1 } } })").outcome, Outcome::Refused);
    EXPECT_EQ(Parse(kOne, "5").outcome, Outcome::Refused);
}

TEST(GenericFrame, ATrueResultOfAnyType) {
    for (const char* result : {"true", "1", "-1", "0.5", "\"false\"", "[ 0 ]"}) {
        const std::string text = std::string(R"({ "params" : { "table" : { "Id" : 1 } }, "result" : )") + result + " }";
        EXPECT_EQ(Parse(kOne, text).outcome, Outcome::Done) << result;
    }
}

TEST(GenericFrame, NoTableIsNoFailure) {
    for (const char* text : {R"({ "result" : true })", R"({ "result" : true, "params" : { "table" : null } })",
                             R"({ "result" : true, "params" : [ 1 ] })"}) {
        const auto cleared = Parse(kMany, text, 20);
        EXPECT_EQ(cleared.outcome, Outcome::Done);
        EXPECT_EQ(cleared.length, kBefore);
        EXPECT_TRUE(cleared.isCleared()) << text;
        EXPECT_TRUE(Parse(kOne, text).isUntouched()) << text;
    }
}

TEST(GenericFrame, WithoutClearingMissingKeysKeepTheCallersValues) {
    const auto f = Parse(kOne, Reply(R"({ "Id" : 5 })"), sizeof(Item) + 3);
    EXPECT_EQ(f[0].id, 5);
    EXPECT_EQ(static_cast<std::uint32_t>(f[0].level), 0xCDCDCDCDu);
    EXPECT_TRUE(f.isUntouched(sizeof(Item)));
    EXPECT_EQ(Parse(kOneCleared, Reply(R"({ "Id" : 5 })"))[0].level, 0);
}

TEST(GenericFrame, TheLengthIsAddedTo) {
    EXPECT_EQ(Parse(kOne, Reply("{ }")).length, kBefore + 8);
    EXPECT_EQ(Parse(kMany, Reply("[ { }, { } ]"), 100).length, kBefore + 16);
    Item item{};
    EXPECT_EQ(ParseGeneric(kItem, kOne, {Reply(R"({ "Id" : 7 })").c_str(), &item, sizeof item, nullptr}),
              Outcome::Done);
    EXPECT_EQ(item.id, 7);
}

TEST(GenericFrame, AnArrayOfRecords) {
    const auto f = Parse(kMany, Reply(R"([ { "Id" : 1 }, { "Id" : 2 } ])"), 3 * sizeof(Item));
    EXPECT_EQ(f.outcome, Outcome::Done);
    EXPECT_EQ(f[0].id, 1);
    EXPECT_EQ(f[1].id, 2);
    EXPECT_EQ(f[2].id, 0);
}

TEST(GenericFrame, ElementsBeyondTheBufferAreIgnoredAndNonePartly) {
    const auto f =
        Parse(kMany, Reply(R"([ { "Id" : 1 }, { "Id" : 2 }, { "Id" : 3 }, { }, { } ])"), 2 * sizeof(Item) + 7);
    EXPECT_EQ(f.outcome, Outcome::Done);
    EXPECT_EQ(f[1].id, 2);
    EXPECT_TRUE(f.isCleared(2 * sizeof(Item)));
    EXPECT_EQ(f.length, kBefore + 2 * sizeof(Item));
}

TEST(GenericFrame, ANullElementLeavesAGapThatIsNotCounted) {
    const auto f = Parse(kMany, Reply(R"([ { "Id" : 1 }, null, { "Id" : 3 } ])"), 3 * sizeof(Item));
    EXPECT_EQ(f[0].id, 1);
    EXPECT_EQ(f[1].id, 0);
    EXPECT_EQ(f[2].id, 3);
    EXPECT_EQ(f.length, kBefore + 2 * sizeof(Item));
}

TEST(GenericFrame, ANullBehindTheOnlyRecordMakesTheListOneElement) {
    // The null is below every depth, and no later element settles it.
    const auto f = Parse(kMany, Reply(R"([ { "Id" : 1 }, null ])"), 3 * sizeof(Item));
    EXPECT_EQ(f.outcome, Outcome::Done);
    EXPECT_TRUE(f.isCleared()); // the list as one record has no keys
    EXPECT_EQ(f.length, kBefore + sizeof(Item));
    const auto first = Parse(kMany, Reply(R"([ null, { "Id" : 1 } ])"), 3 * sizeof(Item));
    EXPECT_EQ(first[1].id, 1);
    EXPECT_EQ(first.length, kBefore + sizeof(Item));
}

TEST(GenericFrame, AnEmptyArrayIsOneElement) {
    const auto f = test::Parse<Row>(kRow, kMany, Reply("[ ]"), 3 * sizeof(Row));
    EXPECT_EQ(f.outcome, Outcome::Done);
    EXPECT_EQ(f.length, kBefore + sizeof(Row));
    EXPECT_EQ(Parse(kMany, Reply("[ ]")).length, kBefore + sizeof(Item));
}

TEST(GenericFrame, AnObjectOrAScalarIsOneElement) {
    EXPECT_EQ(Parse(kMany, Reply(R"({ "Id" : 4 })"), 100)[0].id, 4);
    EXPECT_EQ(Parse(kMany, Reply(R"({ "Id" : 4 })"), 100).length, kBefore + sizeof(Item));
    EXPECT_EQ(Parse(kMany, Reply("5"), 100).length, kBefore + sizeof(Item));
}

TEST(GenericFrame, WithoutArrayFormAnArrayIsOneElement) {
    const auto f = test::Parse<Row>(kRow, kOneCleared, Reply("[ 5, 6 ]"), 3 * sizeof(Row));
    EXPECT_EQ(f[0].cells[0], 5);
    EXPECT_EQ(f[0].cells[1], 6);
    EXPECT_EQ(f[0].count, 2);
    EXPECT_EQ(f[1].count, 0);
    EXPECT_EQ(f.length, kBefore + sizeof(Row));
    EXPECT_EQ(Parse(kOneCleared, Reply(R"([ { "Id" : 1 } ])"))[0].id, 0);
}

constexpr GenericFrame kRows{.arrayForm = true, .dimension = 1, .zeroBuffer = true};

TEST(GenericFrame, RecordsThatAreListsThemselves) {
    const auto two = test::Parse<Row>(kRow, kRows, Reply("[ [ 1, 2 ], [ 3 ] ]"), 3 * sizeof(Row));
    EXPECT_EQ(two[0].cells[1], 2);
    EXPECT_EQ(two[1].cells[0], 3);
    EXPECT_EQ(two[1].count, 1);
    EXPECT_EQ(two.length, kBefore + 2 * sizeof(Row));
    const auto one = test::Parse<Row>(kRow, kRows, Reply("[ 1, 2 ]"), 3 * sizeof(Row));
    EXPECT_EQ(one[0].cells[1], 2);
    EXPECT_EQ(one.length, kBefore + sizeof(Row));
    const auto mixed = test::Parse<Row>(kRow, kRows, Reply("[ [ 1 ], 7 ]"), 3 * sizeof(Row)); // depth 1
    EXPECT_EQ(mixed[0].cells[1], 7);
    EXPECT_EQ(mixed.length, kBefore + sizeof(Row));
}

TEST(GenericFrame, LongListsAreSampled) {
    // Of 16 elements every second is looked at: a scalar at 1 goes unnoticed, one at 2 does not.
    const auto list = [](int scalarAt) {
        std::string text;
        for (int i = 0; i < 16; ++i)
            text += std::string(i == 0 ? "[ " : ", ") + (i == scalarAt ? "9" : "[ 1 ]");
        return Reply(text + " ]");
    };
    EXPECT_EQ(test::Parse<Row>(kRow, kRows, list(1), 16 * sizeof(Row)).length, kBefore + 16 * sizeof(Row));
    EXPECT_EQ(test::Parse<Row>(kRow, kRows, list(2), 16 * sizeof(Row)).length, kBefore + sizeof(Row));
}

TEST(GenericFrame, WhatFollowsTheDocumentIsIgnored) {
    EXPECT_EQ(Parse(kOne, Reply(R"({ "Id" : 4 })") + " trailing {")[0].id, 4);
}

// A row that refuses numbers below zero in both directions, and leaves them out of the text.
void ReadLevel(const Field&, const json::Value& value, std::byte* record, ReadCall& call) {
    SET_MEMBER(record, Item, level, value.asInt());
    if (value.asInt() < 0) call.refused = true;
}
void WriteLevel(const Field&, const std::byte* record, WriteCall& call) {
    const std::int32_t level = MEMBER(record, Item, level);
    if (level < 0) {
        call.refused = true;
        return;
    }
    call.Key();
    call.out.Int(level);
}
constexpr CustomCodec kLevel{ReadLevel, WriteLevel};

TABLE(kRefusing, Item,
      {
          FIELD(id, "Id", Int),
          FIELD(level, "Level", Custom(kLevel)),
      });

TEST(GenericFrame, ARefusedRecordIsCountedLikeTheOthers) {
    const auto f = test::Parse<Item>(
        kRefusing, kMany, Reply(R"([ { "Id" : 1, "Level" : -2 }, { "Id" : 3, "Level" : 4 } ])"), 2 * sizeof(Item));
    EXPECT_EQ(f.outcome, Outcome::Done);
    EXPECT_EQ(f[0].level, -2);
    EXPECT_EQ(f[1].level, 4);
    EXPECT_EQ(f.length, kBefore + 2 * sizeof(Item));
}

void ReadIndex(const Field&, const json::Value&, std::byte* record, ReadCall& call) {
    SET_MEMBER(record, Item, level, static_cast<std::int32_t>(call.index));
}
constexpr CustomCodec kIndex{ReadIndex, nullptr};

TABLE(kNumbered, Item,
      {
          FIELD(id, "Id", Int),
          FIELD(level, "Level", Custom(kIndex)).Always(),
      });

TEST(GenericFrame, RowsAreToldWhichRecordTheyRead) {
    const auto f = test::Parse<Item>(kNumbered, kMany, Reply("[ { }, null, { } ]"), 3 * sizeof(Item));
    EXPECT_EQ(f[0].level, 0);
    EXPECT_EQ(f[2].level, 2);
}

// ---- Writing ----

const Item kItems[] = {{1, 2}, {3, 4}};
const std::string kFirst = R"({ "Id" : 1, "Level" : 2 })";
const std::string kBoth = "[ " + kFirst + R"(, { "Id" : 3, "Level" : 4 } ])";

TEST(GenericFrame, OneOrManyByTheSizeOfTheRecords) {
    EXPECT_EQ(Pack(kItem, kMany, kItems, 8).text(), kFirst + "\n");
    EXPECT_EQ(Pack(kItem, kMany, kItems, 15).text(), kFirst + "\n");
    EXPECT_EQ(Pack(kItem, kMany, kItems, 16).text(), kBoth + "\n");
    for (const std::size_t size : {0u, 7u}) {
        const auto none = Pack(kItem, kMany, kItems, size);
        EXPECT_EQ(none.outcome, Outcome::Done);
        EXPECT_EQ(none.text(), "null\n") << size;
    }
}

TEST(GenericFrame, AlwaysAnArray) {
    constexpr GenericFrame many{.arrayForm = true, .alwaysArray = true};
    EXPECT_EQ(Pack(kItem, many, kItems, 8).text(), "[ " + kFirst + " ]\n");
    EXPECT_EQ(Pack(kItem, many, kItems, 16).text(), kBoth + "\n");
    EXPECT_EQ(Pack(kItem, many, kItems, 7).text(), "null\n");
    constexpr GenericFrame one{.alwaysArray = true};
    EXPECT_EQ(Pack(kItem, one, kItems, 8).text(), "[ " + kFirst + " ]\n");
    EXPECT_EQ(Pack(kItem, one, kItems, 16).text(), "[ " + kFirst + " ]\n");
    EXPECT_EQ(Pack(kItem, one, kItems, 0).text(), "[ { \"Id\" : 0, \"Level\" : 0 } ]\n");
}

TEST(GenericFrame, WithoutArrayFormOneRecordIsWrittenInAnyEvent) {
    EXPECT_EQ(Pack(kItem, kOne, kItems, 8).text(), kFirst + "\n");
    EXPECT_EQ(Pack(kItem, kOne, kItems, 16).text(), kFirst + "\n");
    for (std::size_t size = 0; size <= 8; ++size) {
        // Nothing behind what was handed over is read; what is missing is zero.
        const test::GuardedBuffer record(std::string_view(reinterpret_cast<const char*>(kItems), size));
        EXPECT_EQ(Pack(kItem, kOne, record.data(), size).text(), std::string("{ \"Id\" : ") + (size >= 1 ? "1" : "0")
                                                                     + ", \"Level\" : " + (size >= 5 ? "2" : "0")
                                                                     + " }\n")
            << size;
    }
}

TEST(GenericFrame, TheTextMustBeShorterThanItsBuffer) {
    const std::string text = kFirst + "\n";
    const auto fits = Pack(kItem, kOne, kItems, 8, text.size() + 1);
    EXPECT_EQ(fits.outcome, Outcome::Done);
    EXPECT_EQ(fits.bytes, text + '\0');
    for (const std::size_t capacity : {text.size(), text.size() - 1, std::size_t{1}, std::size_t{0}}) {
        const auto tooLong = Pack(kItem, kOne, kItems, 8, capacity);
        EXPECT_EQ(tooLong.outcome, Outcome::TextTooLong);
        EXPECT_TRUE(tooLong.isCleared()) << capacity;
    }
    const auto roomy = Pack(kItem, kOne, kItems, 8, text.size() + 50);
    EXPECT_EQ(roomy.bytes, text + std::string(50, '\0')); // cleared to its end
}

bool IsPositive(const std::byte* record) {
    return MEMBER(record, Item, id) > 0;
}

TABLE(kPositive, Item,
      {
          FIELD(id, "Id", Int),
          FIELD(level, "Level", Int),
      })
    .Writes(IsPositive);

TEST(GenericFrame, RecordsThatTheirTableHoldsBackKeepTheirPlaces) {
    const Item items[] = {{0, 1}, {1, 2}, {-1, 3}};
    EXPECT_EQ(Pack(kPositive, kMany, items, sizeof items).text(), "[ null, " + kFirst + ", null ]\n");
    EXPECT_EQ(Pack(kPositive, kMany, items, 8).text(), "null\n");
}

TEST(GenericFrame, WhatARowRefusesToWriteIsMissingAndNoFailure) {
    const Item items[] = {{1, -2}, {3, 4}};
    const auto written = Pack(kRefusing, kMany, items, sizeof items);
    EXPECT_EQ(written.outcome, Outcome::Done);
    EXPECT_EQ(written.text(), "[ { \"Id\" : 1 }, { \"Id\" : 3, \"Level\" : 4 } ]\n");
}

// ---- The commands of one switch ----

TEST(Switches, BothWays) {
    for (const char* command : {"G3G4AutoChange", "CabinLedTimeSchedule", "PwdReset"}) {
        CFG_ENABLE_INFO record{77};
        std::uint32_t length = 0;
        ASSERT_NE(CLIENT_ParseData(command, R"({ "result" : true, "params" : { "table" : { "Enable" : true } } })",
                                   &record, sizeof record, &length),
                  0);
        EXPECT_EQ(record.bEnable, 1u);
        EXPECT_EQ(length, 4u);
        ASSERT_NE(CLIENT_ParseData(command, R"({ "result" : true, "params" : { "table" : { } } })", &record,
                                   sizeof record, &length),
                  0);
        EXPECT_EQ(record.bEnable, 0u);
        EXPECT_EQ(length, 8u); // added to
        char text[64];
        record.bEnable = 2;
        ASSERT_NE(CLIENT_PacketData(command, &record, sizeof record, text, sizeof text), 0);
        EXPECT_STREQ(text, "{ \"Enable\" : true }\n");
        ASSERT_NE(CLIENT_PacketData(command, &record, 0, text, sizeof text), 0);
        EXPECT_STREQ(text, "{ \"Enable\" : false }\n");
        EXPECT_EQ(CLIENT_PacketData(command, &record, sizeof record, text, 20), 0); // no room for the terminator
        EXPECT_NE(CLIENT_PacketData(command, &record, sizeof record, text, 21), 0);
    }
}

TEST(Switches, EnableOfOtherTypes) {
    CFG_ENABLE_INFO record{};
    ASSERT_NE(CLIENT_ParseData("PwdReset", R"({ "result" : true, "params" : { "table" : { "Enable" : "false" } } })",
                               &record, sizeof record, nullptr),
              0);
    EXPECT_EQ(record.bEnable, 1u); // a text that is not empty
    ASSERT_NE(CLIENT_ParseData("PwdReset", R"({ "result" : true, "params" : { "table" : [ { "Enable" : true } ] } })",
                               &record, sizeof record, nullptr),
              0);
    EXPECT_EQ(record.bEnable, 0u); // an array is one record without keys
}

} // namespace
} // namespace orrery
