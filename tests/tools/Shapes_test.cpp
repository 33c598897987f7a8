// Replies of every shape, through commands of the test's own: lists, records by member, pointers, size words.
#include "orrery/Diagnose.h"
#include "orrery/Run.h"
#include "tools/SampleRecord.h"

#include "frame/record/Engine.h"

#include <gmock/gmock.h>

namespace orrery::tool {
namespace {

using testing::HasSubstr;

struct SHAPE_POINT {
    std::int32_t nX;
    std::int32_t nY;
};
PART(kPlace, SHAPE_POINT,
     {
         FIELD(nX, "X", Int),
         FIELD(nY, "Y", Int),
     });

struct SHAPE_ENTRY {
    char szName[8];
    std::int32_t nValue;
};
PART(kEntry, SHAPE_ENTRY,
     {
         FIELD(szName, "", record::MemberName),
         FIELD(nValue, "Value", Int),
     });

Command Make(const record::Table& table, ParseFrame parse, PackFrame pack = {}) {
    Command command;
    command.name = "Shape";
    command.table = &table;
    command.parse = command.pack = Command::Frame::Family;
    command.parseFrame = parse;
    command.packFrame = pack;
    return command;
}

Command MakeTable(const record::Table& table, GenericFrame frame) {
    Command command = Make(table, {});
    command.parse = command.pack = Command::Frame::Generic;
    command.genericFrame = frame;
    return command;
}

std::string Envelope(const std::string& value) {
    return R"({"result":true,"params":{"table":)" + value + "}}";
}

constexpr ParseFrame kMany = ParseFrame().Takes(Take::Many).Length(ReplyLength::PerRecord);

TEST(Shapes, AListHasAsMuchRoomAsItNeeds) {
    const Command command = Make(kPlace, kMany, PackFrame().As(Form::Array));
    const std::string reply = Envelope(R"([{"X":1},null,{"Y":3}])");
    const Result all = ParseText(command, reply, {.pack = true});
    EXPECT_EQ(all.out, "[\n  { \"nX\": 1, \"nY\": 0 },\n  { \"nX\": 0, \"nY\": 0 },\n  { \"nX\": 0, \"nY\": 3 }\n]\n"
                       "[ { \"X\" : 1, \"Y\" : 0 }, { \"X\" : 0, \"Y\" : 0 }, { \"X\" : 0, \"Y\" : 3 } ]\n");
    EXPECT_EQ(all.err, "");
    const Result one = ParseText(command, reply, {.records = 1});
    EXPECT_EQ(one.out, "[\n  { \"nX\": 1, \"nY\": 0 }\n]\n");
    EXPECT_EQ(one.err, "orrery: note: the reply holds 3 records; there was room for 1\n");
    EXPECT_EQ(ParseText(command, reply, {.records = 2000}).out, ParseText(command, reply).out);
}

TEST(Shapes, WrongShapesAreNamed) {
    EXPECT_EQ(ParseText(Make(kPlace, kMany), Envelope("3")).err,
              "orrery: \"params.table\" is a number; Shape takes a list of records\n");
    EXPECT_EQ(ParseText(Make(kPlace, ParseFrame().Takes(Take::OneOrMany)), Envelope("\"x\"")).err,
              "orrery: \"params.table\" is a text; Shape takes an object, or a list of records\n");
    EXPECT_EQ(ParseText(Make(kPlace, ParseFrame().From(Source::Params, "info").Takes(Take::ByMember)),
                        R"({"result":true,"params":{"info":[1]}})")
                  .err,
              "orrery: \"params.info\" is a list; Shape takes an object with a record a member\n");
    EXPECT_EQ(ParseText(Make(kPlace, kMany), Envelope("[]")).err,
              "orrery: \"params.table\" is empty: no record in the reply\n");
    EXPECT_EQ(ParseText(Make(kPlace, ParseFrame().From(Source::Top, "info")), R"({"result":true})").err,
              "orrery: no \"info\" in the reply (it has \"result\")\n");
    const Result nothing =
        ParseText(Make(kPlace, kMany.Null(NullValue::LengthUntouched)), R"({"result":true,"params":{}})");
    EXPECT_EQ(nothing.out, "[]\n");
    EXPECT_EQ(nothing.err, "orrery: note: the reply has no \"params.table\"; no record was read\n");
}

TEST(Shapes, RecordsByMember) {
    const Command command =
        Make(kEntry, ParseFrame().Takes(Take::ByMember).Length(ReplyLength::PerRecord), PackFrame().As(Form::ByMember));
    const Result result = ParseText(command, Envelope(R"({"b":{"Value":2},"a":{"Value":1},"c":null})"), {.pack = true});
    EXPECT_EQ(result.out, "[\n  { \"szName\": \"a\", \"nValue\": 1 },\n  { \"szName\": \"b\", \"nValue\": 2 }\n]\n"
                          "{ \"a\" : { \"Value\" : 1 }, \"b\" : { \"Value\" : 2 } }\n");
}

TEST(Shapes, TheGenericFrameTellsListsFromRecords) {
    const Command command = MakeTable(kPlace, {.arrayForm = true, .zeroBuffer = true});
    EXPECT_EQ(ParseText(command, Envelope(R"({"X":5})"), {.pack = true}).out,
              "{ \"nX\": 5, \"nY\": 0 }\n{ \"X\" : 5, \"Y\" : 0 }\n");
    EXPECT_EQ(ParseText(command, Envelope(R"([{"X":5},null,{"X":6}])")).out,
              "[\n  { \"nX\": 5, \"nY\": 0 },\n  { \"nX\": 0, \"nY\": 0 },\n  { \"nX\": 6, \"nY\": 0 }\n]\n");
}

TEST(Shapes, ExactSizes) {
    const Command command = Make(kPlace, kMany.ExactSize(), PackFrame().ExactSize());
    EXPECT_EQ(ParseText(command, Envelope(R"([{"X":1},{"X":2}])")).exit, kDone);
    EXPECT_EQ(ParseText(command, Envelope(R"([{"X":1}])"), {.bytes = 16}).err,
              "orrery: the buffer of Shape must have exactly 8 bytes, it has 16\n");
    EXPECT_EQ(PackText(command, "[{},{}]").err, "orrery: Shape takes exactly one record of 8 bytes, there are 16\n");
}

TEST(Shapes, SizeWordsAreSetForTheCall) {
    const Command command = Make(kSampleItem, ParseFrame().Clears(Clearing::Kept).Strides(Stride::SizeWord));
    EXPECT_EQ(ParseText(command, Envelope(R"({"Value":4,"Name":"n"})")).out,
              "{ \"dwSize\": 16, \"nValue\": 4, \"szName\": \"n\" }\n");
}

TEST(Shapes, TheBufferMayStartWithARecord) {
    const Command command = Make(kPlace, ParseFrame().Clears(Clearing::Kept));
    EXPECT_EQ(ParseText(command, Envelope(R"({"X":1})"), {.start = R"({"nY": 9})"}).out, "{ \"nX\": 1, \"nY\": 9 }\n");
    EXPECT_EQ(ParseText(command, Envelope(R"({"X":1})"), {.start = R"({"nZ": 9})"}).exit, kRefused);
    EXPECT_THAT(ParseText(command, Envelope("{}"), {.start = "{"}).err, HasSubstr("--start: line 1, column 2"));
    EXPECT_THAT(ParseText(command, Envelope("{}"), {.start = "[{},{}]"}).err, HasSubstr("see --records"));
}

TEST(Shapes, PointersGetRoomAndComeBack) {
    const Command command = Make(kSample, ParseFrame().Clears(Clearing::Kept));
    const Result result =
        ParseText(command, Envelope(R"({"Items":[{"Value":1},{"Value":2,"Name":"two"}],"Short":-7})"), {.pack = true});
    EXPECT_EQ(result.err, "");
    EXPECT_THAT(result.out, HasSubstr("\"nShort\": -7"));
    EXPECT_THAT(result.out, HasSubstr("\"nItemCount\": 2"));
    EXPECT_THAT(result.out, HasSubstr("\"pstuItems\": [\n    { \"dwSize\": 16, \"nValue\": 1, \"szName\": \"\" },\n"
                                      "    { \"dwSize\": 16, \"nValue\": 2, \"szName\": \"two\" }\n  ]"));
    const std::string packed = R"("Items" : [ { "Name" : "", "Value" : 1 }, { "Name" : "two", "Value" : 2 } ])";
    EXPECT_THAT(result.out, HasSubstr(packed));
    const Result back = PackText(command, result.out);
    EXPECT_EQ(back.exit, kDone) << back.err;
    EXPECT_THAT(back.out, HasSubstr(packed));
    // Without a list there is nothing behind the pointer, whatever the count says.
    EXPECT_EQ(PackText(command, R"({"nItemCount": 5})").exit, kDone);
}

// The text has 20 characters and a newline; how much room that takes depends on the command.
TEST(Shapes, TheRoomThatATextNeedsIsToldExactly) {
    const std::pair<Capacity, std::uint32_t> needs[] = {
        {Capacity::Strict, 22}, {Capacity::Loose, 21}, {Capacity::Raw, 21}, {Capacity::OneBefore, 23}};
    for (const auto& [capacity, room] : needs) {
        const Command command = Make(kPlace, {}, PackFrame().Fits(capacity));
        EXPECT_EQ(PackText(command, "{}").out, "{ \"X\" : 0, \"Y\" : 0 }\n");
        EXPECT_EQ(PackText(command, "{}", {.capacity = room}).exit, kDone);
        EXPECT_EQ(PackText(command, "{}", {.capacity = room - 1}).err,
                  "orrery: the text is too long: it needs room for " + std::to_string(room) + " bytes, there are "
                      + std::to_string(room - 1) + "\n");
    }
}

TEST(Shapes, TooManyRecordsForAnyMachine) {
    EXPECT_THAT(ParseText(Make(kPlace, kMany), Envelope("[{}]"), {.records = 1U << 31}).err,
                HasSubstr("more than this program makes; see --records"));
}

} // namespace
} // namespace orrery::tool
