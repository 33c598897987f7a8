#include "frame/record/Engine.h"
#include "support/FailingAllocator.h"
#include "support/FrameCalls.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

using namespace record;
using test::Reply;

struct Item {
    std::int32_t id;
    std::int32_t level;
};

TABLE(kItem, Item,
      {
          FIELD(id, "Id", Int),
          FIELD(level, "Level", Int).Absent(-1),
      });

constexpr ParseFrame kParse;
constexpr std::uint32_t kBefore = 1000000; // what the length holds before a call

auto Parse(const ParseFrame& frame, const std::string& text, std::size_t size = sizeof(Item)) {
    return test::Parse<Item>(kItem, frame, text, size);
}

// ---- Steps that all calls share ----

TEST(FamilyParse, OneRecord) {
    const auto f = Parse(kParse, Reply(R"({ "Id" : 5 })"), 20);
    EXPECT_EQ(f.outcome, Outcome::Done);
    EXPECT_EQ(f[0].id, 5);
    EXPECT_EQ(f[0].level, -1);
    EXPECT_TRUE(f.isCleared(sizeof(Item))); // the whole buffer
    EXPECT_EQ(f.length, sizeof(Item));      // assigned
}

TEST(FamilyParse, TheLengthMayBeNull) {
    Item item{};
    for (const NullValue rule : {NullValue::LengthZero, NullValue::OneRecord}) {
        EXPECT_EQ(ParseFamily(kItem, kParse.Null(rule), {Reply("null").c_str(), &item, sizeof item, nullptr}),
                  Outcome::Done);
    }
    EXPECT_EQ(ParseFamily(kItem, kParse, {Reply("{ }").c_str(), &item, sizeof item, nullptr}), Outcome::Done);
}

TEST(FamilyParse, BelowOneRecordNothingIsTouched) {
    for (std::size_t size = 0; size < sizeof(Item); ++size) {
        const auto f = Parse(kParse, Reply("{ }"), size);
        EXPECT_EQ(f.outcome, Outcome::BufferTooSmall);
        EXPECT_TRUE(f.isUntouched()) << size;
        EXPECT_EQ(f.length, kBefore);
    }
}

TEST(FamilyParse, TheStateOfTheBufferAfterAFailure) {
    const std::string failing[] = {"{", R"({ "result" : false, "params" : { "table" : { "Id" : 1 } } })",
                                   Reply("null")};
    const Outcome outcomes[] = {Outcome::NoJson, Outcome::Refused, Outcome::NoValue};
    for (int i = 0; i < 3; ++i) {
        const auto whole = Parse(kParse, failing[i], 20);
        EXPECT_EQ(whole.outcome, outcomes[i]);
        EXPECT_TRUE(whole.isCleared()) << i;
        EXPECT_EQ(whole.length, kBefore);
        const auto record = Parse(kParse.Clears(Clearing::Record), failing[i], 20);
        EXPECT_EQ(record[0].id, 0);
        EXPECT_TRUE(record.isUntouched(sizeof(Item))) << i;
        EXPECT_TRUE(Parse(kParse.Clears(Clearing::Kept), failing[i], 20).isUntouched()) << i;
    }
}

TEST(FamilyParse, KeptValuesStandWhereKeysAreMissing) {
    const auto f = Parse(kParse.Clears(Clearing::Kept), Reply(R"({ "Level" : 2 })"), 20);
    EXPECT_EQ(static_cast<std::uint32_t>(f[0].id), 0xCDCDCDCDu);
    EXPECT_EQ(f[0].level, 2);
}

TEST(FamilyParse, ExactSize) {
    const ParseFrame exact = kParse.ExactSize();
    EXPECT_EQ(Parse(exact, Reply("{ }"), 8).outcome, Outcome::Done);
    for (const std::size_t size : {7u, 9u, 16u}) {
        EXPECT_EQ(Parse(exact, Reply("{ }"), size).outcome, Outcome::BufferTooSmall);
        EXPECT_TRUE(Parse(exact, Reply("{ }"), size).isUntouched());
    }
}

TEST(FamilyParse, TheCallersOwnInputIsTestedBeforeAnythingElse) {
    const auto refuses = [](const std::byte* buffer, std::uint32_t size) {
        return size == 8 && buffer[0] != std::byte{0xCD};
    };
    const auto f = Parse(kParse.Accepts(refuses), "{", 8);
    EXPECT_EQ(f.outcome, Outcome::NotAccepted);
    EXPECT_TRUE(f.isUntouched());
    const auto accepts = [](const std::byte* buffer, std::uint32_t) { return buffer[0] == std::byte{0xCD}; };
    EXPECT_EQ(Parse(kParse.Accepts(accepts), Reply("{ }"), 8).outcome, Outcome::Done);
}

TEST(FamilyParse, OnceParsedRunsBeforeTheResultIsLookedAt) {
    const ParseFrame frame = kParse.OnceParsed([](std::byte* buffer) { SET_MEMBER(buffer, Item, level, 9); });
    EXPECT_EQ(Parse(frame, R"({ "result" : false })")[0].level, 9);
    EXPECT_EQ(Parse(frame, "{")[0].level, 0);
}

// ---- Where the value stands ----

TEST(FamilyParse, Sources) {
    const std::string text = R"({ "result" : { "Id" : 6 }, "Top" : { "Id" : 5 }, "params" : { "table" : { "Id" : 1 },
        "caps" : { "Id" : 2 }, "Own" : { "Id" : 3 }, "Id" : 4 } })";
    EXPECT_EQ(Parse(kParse, text)[0].id, 1);
    EXPECT_EQ(Parse(kParse.From(Source::Table), text)[0].id, 1);
    EXPECT_EQ(Parse(kParse.From(Source::Caps), text)[0].id, 2);
    EXPECT_EQ(Parse(kParse.From(Source::CapsOrParams), text)[0].id, 2);
    EXPECT_EQ(Parse(kParse.From(Source::Params, "Own"), text)[0].id, 3);
    EXPECT_EQ(Parse(kParse.From(Source::Top, "Top"), text)[0].id, 5);
    EXPECT_EQ(Parse(kParse.From(Source::Result), text)[0].id, 6);
    const std::string noCaps = R"({ "result" : true, "params" : { "Id" : 4 } })";
    EXPECT_EQ(Parse(kParse.From(Source::CapsOrParams), noCaps)[0].id, 4);
    EXPECT_EQ(Parse(kParse.From(Source::Caps), noCaps).outcome, Outcome::NoValue);
    EXPECT_EQ(Parse(kParse.From(Source::CapsOrParams), R"({ "result" : true })").outcome, Outcome::NoValue);
    EXPECT_EQ(Parse(kParse.From(Source::Params, "own"), text).outcome, Outcome::NoValue);
}

// ---- What "result" must say ----

TEST(FamilyParse, ResultTests) {
    struct Case {
        const char* result; // null: absent
        bool mustBeTrue, falseRefuses, exactBool, integerNonZero, textTrue;
    };
    const Case cases[] = {
        {nullptr, false, true, false, false, false},
        {"null", false, true, false, false, false},
        {"true", true, true, true, true, true},
        {"false", false, false, false, false, false},
        {"1", true, true, false, true, false},
        {"0", false, false, false, false, false},
        {"-3", true, true, false, true, false},
        {"0.5", true, true, false, false, false},
        {"2.5", true, true, false, true, false},
        {"\"true\"", true, true, false, false, true},
        {"\"TrUe\"", true, true, false, false, true},
        {"\"false\"", true, true, false, false, false},
        {"\"\"", false, false, false, false, false},
        {"\"1\"", true, true, false, false, false},
        {"[ ]", false, false, false, false, false},
        {"[ 1 ]", true, true, false, false, false},
        {"{ \"a\" : 1 }", true, true, false, false, false},
    };
    for (const Case& one : cases) {
        const std::string text = std::string("{ ")
                                 + (one.result ? std::string("\"result\" : ") + one.result + ", " : "")
                                 + R"("params" : { "table" : { "Id" : 1 } } })";
        const auto passes = [&](ResultTest test) {
            const Outcome outcome = Parse(kParse.Result(test), text).outcome;
            EXPECT_TRUE(outcome == Outcome::Done || outcome == Outcome::Refused);
            return outcome == Outcome::Done;
        };
        EXPECT_EQ(passes(ResultTest::MustBeTrue), one.mustBeTrue) << text;
        EXPECT_EQ(passes(ResultTest::FalseRefuses), one.falseRefuses) << text;
        EXPECT_TRUE(passes(ResultTest::NotTested)) << text;
        EXPECT_EQ(passes(ResultTest::ExactBool), one.exactBool) << text;
        EXPECT_EQ(passes(ResultTest::IntegerNonZero), one.integerNonZero) << text;
        EXPECT_EQ(passes(ResultTest::TextTrue), one.textTrue) << text;
        EXPECT_EQ(passes(ResultTest::Verdict), one.falseRefuses) << text;
        // A verdict comes when all has been read; no length is told of a call that fails.
        const auto judged = Parse(kParse.Result(ResultTest::Verdict), text);
        EXPECT_EQ(judged[0].id, 1) << text;
        EXPECT_EQ(judged.length, one.falseRefuses ? sizeof(Item) : 1000000) << text;
    }
}

// ---- Shapes ----

const std::string kList = R"([ { "Id" : 1 }, null, { "Id" : 3 } ])";
constexpr std::size_t kRoom = 4 * sizeof(Item);

void ExpectElements(Take take) {
    const auto f = Parse(kParse.Takes(take).Length(ReplyLength::PerRecord), Reply(kList), kRoom);
    EXPECT_EQ(f.outcome, Outcome::Done);
    EXPECT_EQ(f[0].id, 1);
    EXPECT_EQ(f[1].level, 0); // a null leaves its record cleared, without defaults
    EXPECT_EQ(f[2].id, 3);
    EXPECT_EQ(f[2].level, -1);
    EXPECT_EQ(f.length, 3 * sizeof(Item)); // the length counts elements walked
    const auto cut = Parse(kParse.Takes(take).Length(ReplyLength::PerRecord), Reply(kList), 2 * sizeof(Item) + 7);
    EXPECT_EQ(cut.outcome, Outcome::Done);
    EXPECT_EQ(cut.length, 2 * sizeof(Item));
    EXPECT_TRUE(cut.isCleared(sizeof(Item)));
    // An empty list says as much as none.
    EXPECT_EQ(Parse(kParse.Takes(take), Reply("[ ]")).outcome, Outcome::NoValue);
    EXPECT_EQ(Parse(kParse.Takes(take).Null(NullValue::LengthZero), Reply("[ ]")).length, 0u);
}

void ExpectOneRecord(Take take, const std::string& value, std::int32_t id) {
    const auto f = Parse(kParse.Takes(take).Length(ReplyLength::PerRecord), Reply(value), kRoom);
    EXPECT_EQ(f.outcome, Outcome::Done) << value;
    EXPECT_EQ(f[0].id, id) << value;
    EXPECT_EQ(f[0].level, -1);
    EXPECT_EQ(f.length, sizeof(Item)) << value;
}

void ExpectNone(Take take, const std::string& value) {
    const auto f = Parse(kParse.Takes(take).Length(ReplyLength::PerRecord), Reply(value), kRoom);
    EXPECT_EQ(f.outcome, Outcome::Done) << value;
    EXPECT_TRUE(f.isCleared());
    EXPECT_EQ(f.length, 0u) << value;
}

void ExpectWrong(Take take, const std::string& value) {
    const auto f = Parse(kParse.Takes(take), Reply(value), kRoom);
    EXPECT_EQ(f.outcome, Outcome::WrongShape) << value;
    EXPECT_TRUE(f.isCleared());
    EXPECT_EQ(f.length, kBefore);
}

const std::string kObject = R"({ "Id" : 7 })";

TEST(FamilyParse, TakesOne) {
    for (const std::string& value : {kObject, kList, std::string("5"), std::string("\"x\""), std::string("[ ]")})
        ExpectOneRecord(Take::One, value, value == kObject ? 7 : 0);
}

TEST(FamilyParse, TakesOneOrMany) {
    ExpectElements(Take::OneOrMany);
    ExpectOneRecord(Take::OneOrMany, kObject, 7);
    ExpectWrong(Take::OneOrMany, "5");
    ExpectWrong(Take::OneOrMany, "\"x\"");
}

TEST(FamilyParse, TakesAnyOrMany) {
    ExpectElements(Take::AnyOrMany);
    ExpectOneRecord(Take::AnyOrMany, kObject, 7);
    ExpectOneRecord(Take::AnyOrMany, "5", 0);
}

TEST(FamilyParse, TakesMany) {
    ExpectElements(Take::Many);
    ExpectWrong(Take::Many, kObject);
    ExpectWrong(Take::Many, "5");
}

TEST(FamilyParse, TakesManyOrNone) {
    ExpectElements(Take::ManyOrNone);
    ExpectNone(Take::ManyOrNone, kObject);
    ExpectNone(Take::ManyOrNone, "true");
}

struct Word {
    std::int32_t code;
};

NAMES(kWords, kFolded.Unknown(-1),
      {
          {0, "zero"},
          {1, "one"},
      });

TABLE(kWord, Word,
      {
          FIELD(code, "", Names(kWords)),
      });

TEST(FamilyParse, TakesAText) {
    const ParseFrame frame = kParse.Takes(Take::Text);
    const auto code = [&](const std::string& value) {
        const auto f = test::Parse<Word>(kWord, frame, Reply(value), sizeof(Word));
        EXPECT_EQ(f.outcome, Outcome::Done) << value;
        EXPECT_EQ(f.length, sizeof(Word)) << value;
        return f[0].code;
    };
    EXPECT_EQ(code("\"One\""), 1);
    EXPECT_EQ(code("\"two\""), -1);
    EXPECT_EQ(code("\"\""), -1);
    for (const char* value : {"{ }", "[ \"one\" ]", "1", "true"}) {
        const auto f = test::Parse<Word>(kWord, frame, Reply(value), sizeof(Word));
        EXPECT_EQ(f.outcome, Outcome::WrongShape) << value;
        EXPECT_TRUE(f.isCleared());
        EXPECT_EQ(f.length, kBefore);
    }
}

struct List {
    std::int32_t ids[2];
    std::int32_t count;
};

TABLE(kListRecord, List,
      {
          FIELD(ids, "", Int).Count(AT(count)),
          FIELD(count),
      });

TEST(FamilyParse, TakesAListInOneRecord) {
    const ParseFrame frame = kParse.Takes(Take::List);
    const auto f = test::Parse<List>(kListRecord, frame, Reply("[ 4, 5, 6 ]"), sizeof(List));
    EXPECT_EQ(f.outcome, Outcome::Done);
    EXPECT_EQ(f[0].ids[1], 5);
    EXPECT_EQ(f[0].count, 2);
    EXPECT_EQ(f.length, sizeof(List));
    const auto empty = test::Parse<List>(kListRecord, frame, Reply("[ ]"), sizeof(List));
    EXPECT_EQ(empty.outcome, Outcome::Done);
    EXPECT_EQ(empty[0].count, 0);
    EXPECT_EQ(test::Parse<List>(kListRecord, frame, Reply("{ }"), sizeof(List)).outcome, Outcome::WrongShape);
    EXPECT_EQ(test::Parse<List>(kListRecord, frame, Reply("5"), sizeof(List)).outcome, Outcome::WrongShape);
}

struct Named {
    char name[8];
    std::int32_t id;
};

TABLE(kNamed, Named,
      {
          FIELD(name, nullptr, MemberName),
          FIELD(id, "Id", Int),
      });

TEST(FamilyParse, TakesMembersInTheOrderOfTheirNames) {
    const ParseFrame frame = kParse.Takes(Take::ByMember).Length(ReplyLength::PerRecord);
    const std::string text = Reply(R"({ "b" : { "Id" : 2 }, "n" : null, "a" : { "Id" : 1 }, "c" : 5,
                                        "b" : { "Id" : 4 }, "d" : { "Id" : 9 } })");
    const auto f = test::Parse<Named>(kNamed, frame, text, 3 * sizeof(Named) + 5);
    EXPECT_EQ(f.outcome, Outcome::Done);
    EXPECT_STREQ(f[0].name, "a");
    EXPECT_EQ(f[0].id, 1);
    EXPECT_STREQ(f[1].name, "b");
    EXPECT_EQ(f[1].id, 4); // of equal names the last
    EXPECT_STREQ(f[2].name, "c");
    EXPECT_EQ(f[2].id, 0);
    EXPECT_EQ(f.length, 3 * sizeof(Named));
    const auto none = test::Parse<Named>(kNamed, frame, Reply("{ }"), sizeof(Named));
    EXPECT_EQ(none.outcome, Outcome::Done);
    EXPECT_EQ(none.length, 0u);
    EXPECT_EQ(test::Parse<Named>(kNamed, frame, Reply("[ { } ]"), 12).outcome, Outcome::WrongShape);
    EXPECT_EQ(test::Parse<Named>(kNamed, frame, Reply("5"), 12).outcome, Outcome::WrongShape);
    const auto orNone = test::Parse<Named>(kNamed, frame.Takes(Take::ByMemberOrNone), Reply("[ { } ]"), sizeof(Named));
    EXPECT_EQ(orNone.outcome, Outcome::Done);
    EXPECT_EQ(orNone.length, 0u);
    EXPECT_EQ(test::Parse<Named>(kNamed, frame.Takes(Take::ByMemberOrNone), text, 12)[0].id, 1);
}

// ---- A null value ----

TEST(FamilyParse, ANullValue) {
    for (const char* value : {"null", "[ ]"}) {
        const ParseFrame frame = kParse.Takes(Take::OneOrMany).Length(ReplyLength::PerRecord);
        EXPECT_EQ(Parse(frame.Null(NullValue::Fails), Reply(value)).outcome, Outcome::NoValue);
        EXPECT_EQ(Parse(frame.Null(NullValue::Fails), Reply(value)).length, kBefore);
        const auto zero = Parse(frame.Null(NullValue::LengthZero), Reply(value));
        EXPECT_EQ(zero.outcome, Outcome::Done);
        EXPECT_EQ(zero.length, 0u);
        EXPECT_TRUE(zero.isCleared());
        const auto untouched = Parse(frame.Null(NullValue::LengthUntouched), Reply(value));
        EXPECT_EQ(untouched.outcome, Outcome::Done);
        EXPECT_EQ(untouched.length, kBefore);
        const auto one = Parse(frame.Null(NullValue::OneRecord), Reply(value));
        EXPECT_EQ(one.outcome, Outcome::Done);
        EXPECT_EQ(one.length, sizeof(Item));
        EXPECT_EQ(one[0].level, -1); // what reading nothing gives
    }
}

TEST(FamilyParse, ReplyLengths) {
    const ParseFrame frame = kParse.Takes(Take::Many);
    EXPECT_EQ(Parse(frame.Length(ReplyLength::OneRecord), Reply(kList), kRoom).length, sizeof(Item));
    EXPECT_EQ(Parse(frame.Length(ReplyLength::PerRecord), Reply(kList), kRoom).length, 3 * sizeof(Item));
    EXPECT_EQ(Parse(frame.Length(ReplyLength::None), Reply(kList), kRoom).length, kBefore);
}

TABLE(kRefusing, Item,
      {
          FIELD(id, "Id", Int),
          FIELD(level, "Level", Int),
      })
    .AfterRead([](const json::Value&, std::byte* record, ReadCall& call) {
        if (MEMBER(record, Item, id) < 0) call.refused = true;
    });

TEST(FamilyParse, ARefusedRecordIsDeliveredWithItsLength) {
    const auto f = test::Parse<Item>(kRefusing, kParse, Reply(R"({ "Id" : -1, "Level" : 2 })"), sizeof(Item));
    EXPECT_EQ(f.outcome, Outcome::RowRefused);
    EXPECT_EQ(f[0].level, 2);
    EXPECT_EQ(f.length, sizeof(Item));
}

TEST(FamilyParse, AFailedAllocationIsAFailedCall) {
    std::string values;
    for (int i = 0; i < 3000; ++i)
        values += "[ 1, 2, 3 ], ";
    const std::string text = Reply(R"({ "Id" : 1, "Other" : [ )" + values + "0 ] }");
    std::vector<unsigned char> buffer(20, 0xCD);
    std::uint32_t length = kBefore;
    test::HeapWatch heap;
    heap.FailFrom(1);
    ReadRoad road{true}; // the other road needs no memory for what it passes over
    const Outcome outcome = ParseFamily(kItem, kParse, {text.c_str(), buffer.data(), 20, &length, &road});
    heap.FailNone();
    EXPECT_EQ(outcome, Outcome::OutOfMemory);
    EXPECT_EQ(buffer, std::vector<unsigned char>(20, 0));
    EXPECT_EQ(length, kBefore);
    EXPECT_EQ(heap.liveBlocks(), 0);
}

// ---- The caller's stride ----

struct Versioned {
    std::uint32_t dwSize;
    std::int32_t id;
    char name[8];
    std::int32_t level;
};

TABLE(kVersioned, Versioned,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(id, "Id", Int),
          FIELD(name, "Name", Text),
          FIELD(level, "Level", Int),
      });

constexpr ParseFrame kByWord =
    ParseFrame().Strides(Stride::SizeWord).Takes(Take::OneOrMany).Length(ReplyLength::PerRecord);
constexpr ParseFrame kByField = kByWord.Strides(Stride::SizeWordByField);
const std::string kVersionedText = R"({ "Id" : 1, "Name" : "abcdefgh", "Level" : 3 })";

struct Called {
    Outcome outcome;
    std::uint32_t length;
    std::vector<unsigned char> bytes;

    std::int32_t word(std::size_t at) const {
        std::int32_t value;
        std::memcpy(&value, bytes.data() + at, sizeof value);
        return value;
    }
    std::string text(std::size_t at, std::size_t size) const {
        return {reinterpret_cast<const char*>(bytes.data() + at), size};
    }
};

// A buffer of bytes 0xCD with a size word in front.
Called ParseSized(const ParseFrame& frame, const std::string& table, std::uint32_t word, std::size_t size) {
    Called called{Outcome::BadArguments, kBefore, std::vector<unsigned char>(size, 0xCD)};
    if (size >= sizeof word) std::memcpy(called.bytes.data(), &word, sizeof word);
    const std::string text = Reply(table);
    called.outcome = ParseFamily(kVersioned, frame,
                                 {text.c_str(), called.bytes.data(), static_cast<std::uint32_t>(size), &called.length});
    return called;
}

TEST(FamilyParse, AnOlderCallersRecordIsNotOverrun) {
    const auto c = ParseSized(kByWord, kVersionedText, 12, 20);
    EXPECT_EQ(c.outcome, Outcome::Done);
    EXPECT_EQ(c.length, 12u);
    EXPECT_EQ(c.word(0), 12); // the caller's size word stays
    EXPECT_EQ(c.word(4), 1);
    EXPECT_EQ(c.text(8, 4), "abcd");
    EXPECT_EQ(c.text(12, 8), std::string(8, '\xCD'));
    // Field by field a field moves whole or not at all.
    const auto f = ParseSized(kByField, kVersionedText, 12, 20);
    EXPECT_EQ(f.word(4), 1);
    EXPECT_EQ(f.text(8, 12), std::string(12, '\xCD'));
    const auto g = ParseSized(kByField, kVersionedText, 16, 20);
    EXPECT_EQ(g.text(8, 8), std::string("abcdefg\0", 8));
    EXPECT_EQ(g.text(16, 4), std::string(4, '\xCD'));
}

TEST(FamilyParse, ANewerCallersRecordKeepsWhatThisLibraryDoesNotKnow) {
    for (const ParseFrame& frame : {kByWord, kByField}) {
        const auto c = ParseSized(frame, kVersionedText, 28, 28);
        EXPECT_EQ(c.length, 28u);
        EXPECT_EQ(c.word(0), 28);
        EXPECT_EQ(c.word(16), 3);
        EXPECT_EQ(c.text(20, 8), std::string(8, '\xCD'));
    }
}

TEST(FamilyParse, RecordsStandAtTheCallersStride) {
    const auto c =
        ParseSized(kByWord, "[ " + kVersionedText + ", null, " + R"({ "Id" : 3 }, { "Id" : 4 })" + " ]", 24, 75);
    EXPECT_EQ(c.outcome, Outcome::Done);
    EXPECT_EQ(c.length, 72u);
    EXPECT_EQ(c.word(4), 1);
    EXPECT_EQ(c.text(24, 24), std::string(24, '\xCD'));
    EXPECT_EQ(c.word(48 + 4), 3);
    EXPECT_EQ(c.word(48), static_cast<std::int32_t>(0xCDCDCDCD)); // later size words are neither read nor written
    EXPECT_EQ(c.word(48 + 16), 0);                                // what a missing key gives, not what stood there
    EXPECT_EQ(c.text(48 + 20, 7), std::string(7, '\xCD'));
}

TEST(FamilyParse, SizeWordsThatCannotBe) {
    for (const ParseFrame& frame : {kByWord, kByField}) {
        for (const std::uint32_t word : {0u, 1u, 3u, 21u, 0xFFFFFFFFu}) {
            // Of a record below its own word no field moves, but a block must have it.
            const bool isTaken = frame.stride == Stride::SizeWordByField && (word == 1 || word == 3);
            const auto c = ParseSized(frame, kVersionedText, word, 20);
            EXPECT_EQ(c.outcome, isTaken ? Outcome::Done : Outcome::BufferTooSmall) << word;
            EXPECT_EQ(c.length, isTaken ? word : kBefore) << word;
            EXPECT_EQ(c.word(0), static_cast<std::int32_t>(word));
            EXPECT_EQ(c.text(4, 16), std::string(16, '\xCD'));
        }
        EXPECT_EQ(ParseSized(frame, kVersionedText, 0, 3).outcome, Outcome::BufferTooSmall);
        // A word of 4 moves no field; the call goes on.
        const auto c = ParseSized(frame, kVersionedText, 4, 20);
        EXPECT_EQ(c.outcome, Outcome::Done);
        EXPECT_EQ(c.length, 4u);
        EXPECT_EQ(c.text(4, 16), std::string(16, '\xCD'));
    }
}

bool IsLevelNine(const json::Value& value) {
    return value["Level"].asInt() == 9;
}

TABLE(kRefusesNine, Versioned,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(id, "Id", Int),
          FIELD(name, "Name", Text),
          FIELD(level, "Level", Int),
      })
    .AfterRead([](const json::Value& value, std::byte*, record::ReadCall& call) {
        call.refused = call.refused || IsLevelNine(value);
    });

TEST(FamilyParse, ARecordThatEndsTheCallStaysAsTheCallerHadIt) {
    std::vector<unsigned char> bytes(60, 0xCD);
    const std::uint32_t word = 20;
    std::memcpy(bytes.data(), &word, sizeof word);
    const std::string text = Reply(R"([ { "Id" : 1 }, { "Id" : 2, "Level" : 9 }, { "Id" : 3 } ])");
    EXPECT_EQ(ParseFamily(kRefusesNine, kByWord, {text.c_str(), bytes.data(), 60, nullptr}), Outcome::RowRefused);
    const auto id = [&](std::size_t record) { return static_cast<int>(bytes[record * 20 + 4]); };
    EXPECT_EQ(id(0), 1);
    EXPECT_EQ(id(1), 0xCD);
    EXPECT_EQ(id(2), 3);
}

} // namespace
} // namespace orrery
