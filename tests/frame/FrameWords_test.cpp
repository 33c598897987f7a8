// Words of the family frame that few commands use, each on a record of two numbers.
#include "frame/Frames.h"
#include "frame/record/Engine.h"
#include "support/GuardedBuffer.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>

namespace orrery {
namespace {

using namespace record;

struct Pair {
    std::int32_t nChannel;
    std::int32_t nValue;
};

void StoreIndex(const Field&, const json::Value&, std::byte* record, ReadCall& call) {
    SET_MEMBER(record, Pair, nValue, static_cast<std::int32_t>(call.index));
}
constexpr CustomCodec kIndex{StoreIndex, nullptr};

PART(kPair, Pair,
     {
         FIELD(nChannel, "params/channel", Int).FromRoot(),
         FIELD(nValue, "Value", Int),
     });
PART(kNumbered, Pair,
     {
         FIELD(nChannel),
         FIELD(nValue, "index", Custom(kIndex)).FromRoot().Always(),
     });

constexpr std::uint32_t kSize = sizeof(Pair);
constexpr std::uint32_t kNoLength = 777;
constexpr std::int32_t kHeld = 0x22222222;

// Three records of the caller's, and what a call did to them.
struct Call {
    explicit Call(const ParseFrame& frame, const std::string& text, const Table& table = kPair) : memory(3 * kSize) {
        std::memset(memory.data(), 0x22, memory.size());
        outcome = ParseFamily(table, frame, {text.c_str(), memory.data(), 3 * kSize, &length});
        std::memcpy(records.data(), memory.data(), memory.size());
    }
    test::GuardedBuffer memory;
    std::uint32_t length = kNoLength;
    Outcome outcome;
    std::array<Pair, 3> records{};
};

std::string Reply(const std::string& table, const std::string& params = "") {
    return R"({"result":true,"params":{)" + params + R"("table":)" + table + "}}";
}

constexpr ParseFrame kKept = ParseFrame{}.Clears(Clearing::Kept);

TEST(FrameWords, ListOrNoneSucceedsWithoutALengthOnWhatIsNoList) {
    const ParseFrame frame = kKept.Takes(Take::ListOrNone);
    EXPECT_EQ(Call(frame, Reply("[]")).length, kSize);
    for (const char* table : {"{}", "1", "\"x\""}) {
        const Call call(frame, Reply(table));
        EXPECT_EQ(call.outcome, Outcome::Done) << table;
        EXPECT_EQ(call.length, kNoLength) << table;
        EXPECT_EQ(call.records[0].nValue, kHeld) << table;
    }
    EXPECT_EQ(Call(frame, Reply("null")).outcome, Outcome::NoValue);
}

TEST(FrameWords, PerFilledCountsNoNullThoughItKeepsItsPlace) {
    const ParseFrame frame = ParseFrame{}.Takes(Take::OneOrMany).Length(ReplyLength::PerFilled);
    const Call call(frame, Reply(R"([{"Value":1},null,{"Value":3}])"));
    EXPECT_EQ(call.length, 2 * kSize);
    EXPECT_EQ(call.records[0].nValue, 1);
    EXPECT_EQ(call.records[1].nValue, 0);
    EXPECT_EQ(call.records[2].nValue, 3);
    EXPECT_EQ(Call(frame, Reply("[null]")).length, 0u);
    EXPECT_EQ(Call(frame, Reply("{}")).length, kSize);
    EXPECT_EQ(Call(frame.ReadsNulls(), Reply("[null,{}]")).length, 2 * kSize); // it reads them
}

TEST(FrameWords, ZeroesLengthHoldsForCallsThatFail) {
    const ParseFrame frame = ParseFrame{}.ZeroesLength();
    EXPECT_EQ(Call(frame, Reply("{}")).length, kSize);
    for (const char* failing : {"null", "no JSON"}) {
        const Call call(frame, Reply(failing));
        EXPECT_NE(call.outcome, Outcome::Done) << failing;
        EXPECT_EQ(call.length, 0u) << failing;
    }
    EXPECT_EQ(Call(frame, R"({"result":false,"params":{"table":{}}})").length, 0u);
    // A buffer that is too small is not looked at any further.
    Pair record{};
    std::uint32_t length = kNoLength;
    EXPECT_EQ(ParseFamily(kPair, frame, {Reply("{}").c_str(), &record, kSize - 1, &length}), Outcome::BufferTooSmall);
    EXPECT_EQ(length, kNoLength);
}

TEST(FrameWords, TakesFirstReadsAnObjectOrTheFirstElementOfAnArray) {
    constexpr auto table = kPair.TakesFirst();
    const auto valueOf = [&](const char* text) {
        const Call call(ParseFrame{}, Reply(text, R"("channel":4,)"), table);
        EXPECT_EQ(call.outcome, Outcome::Done) << text;
        EXPECT_EQ(call.length, kSize) << text;
        EXPECT_EQ(call.records[0].nChannel, 4) << text;
        return call.records[0].nValue;
    };
    EXPECT_EQ(valueOf(R"({"Value":1})"), 1);
    EXPECT_EQ(valueOf(R"([{"Value":2}])"), 2);
    EXPECT_EQ(valueOf(R"([{"Value":3},{"Value":4}])"), 3);
    for (const char* none : {"[]", "[null]", "[1]", R"([[{"Value":5}]])", R"([null,{"Value":6}])", "7"})
        EXPECT_EQ(valueOf(none), 0) << none;
}

TEST(FrameWords, ListOrListsIsSettledByTheFirstElement) {
    const ParseFrame frame = ParseFrame{}.Takes(Take::ListOrLists).Length(ReplyLength::OneOfList);
    EXPECT_EQ(Call(frame, Reply("[{}]")).length, kSize);
    EXPECT_EQ(Call(frame, Reply("[{},[]]")).length, kSize);
    for (const char* lists : {"[[]]", "[[],{}]", "[null]", "[[],[],[],[]]"})
        EXPECT_EQ(Call(frame, Reply(lists)).length, 0u) << lists;
    for (const char* neither : {"[]", "[1,[]]", "[\"x\"]", "{}", "{\"a\":[]}", "2"}) {
        const Call call(frame, Reply(neither));
        EXPECT_EQ(call.outcome, Outcome::Done) << neither;
        EXPECT_EQ(call.length, kNoLength) << neither;
    }
}

TEST(FrameWords, AllMustFitRefusesBeforeAnythingIsRead) {
    const ParseFrame frame = kKept.Takes(Take::Many).AllMustFit();
    EXPECT_EQ(Call(frame, Reply(R"([{"Value":1},{"Value":2},{"Value":3}])")).records[2].nValue, 3);
    const Call call(frame, Reply(R"([{"Value":1},{},{},{}])"));
    EXPECT_EQ(call.outcome, Outcome::TooManyRecords);
    EXPECT_EQ(call.records[0].nValue, kHeld);
    EXPECT_EQ(call.length, kNoLength);
}

TEST(FrameWords, ReadsNullsGivesARecordWithoutKeys) {
    const ParseFrame frame = kKept.Takes(Take::Many).Length(ReplyLength::PerRecord);
    EXPECT_EQ(Call(frame, Reply("[null,{}]"), kNumbered).records[0].nValue, kHeld);
    const Call call(frame.ReadsNulls(), Reply("[null,{},null]"), kNumbered);
    EXPECT_EQ(call.records[0].nValue, 0);
    EXPECT_EQ(call.records[1].nValue, 1);
    EXPECT_EQ(call.records[2].nValue, 2);
    EXPECT_EQ(call.length, 3 * kSize);
}

TEST(FrameWords, ClearingRecordsAsTheyAreRead) {
    const ParseFrame frame = ParseFrame{}.Takes(Take::Many).Clears(Clearing::Read);
    const Call call(frame, Reply("[{},null]"));
    EXPECT_EQ(call.records[0].nValue, 0);
    EXPECT_EQ(call.records[1].nValue, kHeld); // passed over, so not read
    EXPECT_EQ(call.records[2].nValue, kHeld);
    EXPECT_EQ(Call(frame, Reply("{}")).records[0].nValue, kHeld);
}

TEST(FrameWords, RootKeysFirstReachTheFirstRecordOfAFailedCall) {
    const std::string refused = R"({"result":false,"params":{"channel":4}})";
    const std::string noTable = R"({"result":true,"params":{"channel":4}})";
    for (const std::string& text : {refused, noTable}) {
        EXPECT_EQ(Call(kKept, text).records[0].nChannel, kHeld);
        const Call call(kKept.RootKeysFirst(), text);
        EXPECT_NE(call.outcome, Outcome::Done);
        EXPECT_EQ(call.records[0].nChannel, 4);
        EXPECT_EQ(call.records[0].nValue, kHeld);
        EXPECT_EQ(call.records[1].nChannel, kHeld);
    }
    EXPECT_EQ(Call(kKept.RootKeysFirst(), "[").records[0].nChannel, kHeld);
}

Take ByFlag(const json::Value& root) {
    return root["many"].asBool() ? Take::Many : Take::One;
}
std::uint32_t TwicePlusOne(const std::byte* record) {
    return 2 * static_cast<std::uint32_t>(MEMBER(record, Pair, nValue)) + 1;
}

TEST(FrameWords, FunctionsOfACommandChooseShapeAndLength) {
    const ParseFrame frame = ParseFrame{}.TakesBy(ByFlag).LengthBy(TwicePlusOne);
    EXPECT_EQ(Call(frame, R"({"result":1,"params":{"table":{"Value":20}}})").length, 41u);
    EXPECT_EQ(Call(frame, R"({"result":1,"many":1,"params":{"table":{"Value":20}}})").outcome, Outcome::WrongShape);
    EXPECT_EQ(Call(frame, R"({"result":1,"many":1,"params":{"table":[{"Value":3}]}})").length, 7u);
}

TEST(FrameWords, TextThatIsNoJsonMaySucceed) {
    for (const char* text : {"", "[", "{\"result\":true,}"}) {
        EXPECT_EQ(Call(ParseFrame{}, text).outcome, Outcome::NoJson);
        const Call call(ParseFrame{}.TakesNoJson(), text);
        EXPECT_EQ(call.outcome, Outcome::Done);
        EXPECT_EQ(call.length, kNoLength);
        EXPECT_EQ(call.records[0].nValue, 0);
    }
    EXPECT_EQ(Call(ParseFrame{}.TakesNoJson(), "{}").outcome, Outcome::Refused);
}

TEST(FrameWords, AnEmptyListIsNoneOrAsGoodAsNull) {
    const ParseFrame frame = ParseFrame{}.Takes(Take::OneOrMany).Length(ReplyLength::PerRecord);
    EXPECT_EQ(Call(frame, Reply("[]")).outcome, Outcome::NoValue);
    const Call call(frame.TakesEmptyLists(), Reply("[]"));
    EXPECT_EQ(call.outcome, Outcome::Done);
    EXPECT_EQ(call.length, 0u);
    EXPECT_EQ(Call(frame.TakesEmptyLists(), Reply("null")).outcome, Outcome::NoValue);
    EXPECT_EQ(Call(frame.TakesEmptyLists(), Reply("[{}]")).length, kSize);
}

TEST(FrameWords, WhatIsNeitherListNorListsMayBeABlankRecord) {
    const ParseFrame frame =
        ParseFrame{}.Takes(Take::ListOrListsOrBlank).Null(NullValue::LengthUntouched).Length(ReplyLength::OneOfList);
    for (const char* table : {"{}", R"({"Value":1})", "5", "\"x\"", "[1]", "[\"x\",{}]"}) {
        const Call call(frame, Reply(table));
        EXPECT_EQ(call.outcome, Outcome::Done) << table;
        EXPECT_EQ(call.length, kSize) << table;
        EXPECT_EQ(call.records[0].nValue, 0) << table;
    }
    for (const char* table : {"null", "[]"}) {
        const Call call(frame, Reply(table));
        EXPECT_EQ(call.outcome, Outcome::Done) << table;
        EXPECT_EQ(call.length, kNoLength) << table;
    }
    EXPECT_EQ(Call(frame, Reply("[{}]")).length, kSize);
    EXPECT_EQ(Call(frame, Reply("[[],[]]")).length, 0u);
    EXPECT_EQ(Call(frame, Reply("[null]")).length, 0u); // a null is an empty list
}

Form NoneAtZero(const std::byte* first, std::uint32_t) {
    return MEMBER(first, Pair, nValue) == 0 ? Form::NoText : Form::One;
}

TEST(FrameWords, NoTextSucceedsInAnyRoom) {
    for (const std::size_t room : {std::size_t{0}, std::size_t{1}, std::size_t{9}}) {
        const test::GuardedBuffer text(room);
        std::memset(text.data(), '#', room);
        const Pair record{};
        EXPECT_EQ(PacketFamily(kPair, PackFrame{}.FormBy(NoneAtZero),
                               {&record, kSize, text.data(), static_cast<std::uint32_t>(room)}),
                  Outcome::Done);
        EXPECT_EQ(text.view().find_first_not_of('\0'), std::string_view::npos);
    }
}

Form ByValue(const std::byte* first, std::uint32_t count) {
    if (count > 2) return Form::Nothing;
    return MEMBER(first, Pair, nValue) == 1 ? Form::Array : Form::One;
}

TEST(FrameWords, AFunctionOfACommandChoosesTheForm) {
    const auto pack = [](std::int32_t value, std::uint32_t count) {
        Pair records[3] = {{0, value}, {0, 8}, {0, 9}};
        char text[128];
        const PackFrame frame = PackFrame{}.FormBy(ByValue);
        EXPECT_EQ(PacketFamily(kPair, frame, {records, count * kSize, text, sizeof text}), Outcome::Done);
        return std::string(text);
    };
    EXPECT_EQ(pack(1, 1), "[ { \"Value\" : 1 } ]\n");
    EXPECT_EQ(pack(1, 2), "[ { \"Value\" : 1 }, { \"Value\" : 8 } ]\n");
    EXPECT_EQ(pack(2, 2), "{ \"Value\" : 2 }\n");
    EXPECT_EQ(pack(1, 3), "null\n");
}

} // namespace
} // namespace orrery
