// Whole translations as the companion runs them, and what it says of those that the library refuses.
#include "orrery/Run.h"

#include "Commands.h"
#include "frame/record/Engine.h"
#include "support/JsonText.h"

#include <cstring>
#include <fstream>
#include <gmock/gmock.h>
#include <random>
#include <sstream>

namespace orrery::tool {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string FileText(const std::string& name) {
    std::ifstream file(std::string(ORRERY_SOURCE_DIR) + "/" + name);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

void ExpectRefused(const Result& result, const std::string& says) {
    EXPECT_EQ(result.exit, kRefused);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "orrery: " + says + "\n");
}

TEST(Run, ParsesAndPacksBack) {
    const Result result =
        ParseText("pwdreset", R"({"result":true,"params":{"table":{"Enable":true}}})", {.pack = true});
    EXPECT_EQ(result.exit, kDone);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out, "{ \"bEnable\": 1 }\n{ \"Enable\" : true }\n");
}

TEST(Run, PacksOneRecordOrAnArray) {
    EXPECT_EQ(PackText("PwdReset", R"({"bEnable": true})").out, "{ \"Enable\" : true }\n");
    EXPECT_EQ(PackText("PwdReset", R"([{"bEnable": 0}])").out, "{ \"Enable\" : false }\n");
}

TEST(Run, AlarmReplyBecomesTheRecordThatItTells) {
    const Result result = ParseText("Alarm", FileText("examples/alarm-reply.json"));
    EXPECT_EQ(result.exit, kDone);
    EXPECT_THAT(result.out, StartsWith("{\n  \"nChannel\": 2,\n  \"bEnable\": 1,\n  \"szName\": \"Loading bay door\",\n"
                                       "  \"nSensorType\": { \"code\": 0, \"name\": \"NC\" },\n"));
    EXPECT_THAT(result.out, HasSubstr("\"szDBKeys\": [\"access-log\", \"alarm-log\"]"));
    EXPECT_THAT(result.out, HasSubstr("\"emAccessControl\": [{ \"code\": 2, \"name\": \"Open\" }, { \"code\": 0 }]"));
    EXPECT_THAT(result.out, HasSubstr("\"nSplit\": { \"code\": 4, \"name\": \"Split4\" }"));
}

TEST(Run, TellsOfMissingTablesThatTheLibraryTakes) {
    const Result none = ParseText("PwdReset", R"({"result":true,"params":{}})");
    EXPECT_EQ(none.exit, kDone);
    EXPECT_EQ(none.out, "[]\n");
    EXPECT_EQ(none.err, "orrery: note: the reply has no \"params.table\"; no record was read\n");
    const Result one = ParseText("MotionDetect", R"({"result":true})");
    EXPECT_EQ(one.exit, kDone);
    EXPECT_EQ(one.err, "orrery: note: the reply has no \"params.table\"; the record holds what absent keys give\n");
}

TEST(Run, TellsWhatHandWrittenRecordsLack) {
    const Result result = PackText("StorageNotExist", R"({"stuEventHandler": {"nRecordLatch": 5, "bMailEnable": 1,
        "abMailEnable": 1, "nTourNum": 1, "abTour": 1, "stuTour": [{"nChannels": [3]}], "stuVideoTitle": []}})");
    EXPECT_EQ(result.exit, kDone);
    EXPECT_EQ(result.err, "orrery: note: stuEventHandler.nRecordLatch is given without its flag abRecordLatch\n"
                          "orrery: note: stuEventHandler.stuTour[0].nChannels is given without its count "
                          "nChannelCount\n");
}

// ---- Every command that packs: what parse prints, pack takes ----

// A record in which everything is in use, with numbers small enough for every count and code.
void Fill(const record::Table& table, std::byte* record) {
    int next = 0;
    for (const record::Field& field : table) {
        if (field.size == 0 || field.alias || field.cell == record::Cell::Pointer) continue;
        for (std::uint32_t at = 0; at < field.size; at += field.elementSize) {
            std::byte* const element = record + field.offset + at;
            if (field.cell == record::Cell::Record)
                Fill(*field.table, element);
            else if (field.cell == record::Cell::Char)
                std::memcpy(element, "text", std::min<std::size_t>(field.elementSize, 4));
            else if (field.cell == record::Cell::F32)
                record::Store(element, 2.0f);
            else if (field.cell == record::Cell::F64)
                record::Store(element, 2.0);
            else
                record::StoreInteger(field.cell, element, 1 + next++ % 2);
        }
    }
    record::SetSizeWords(table, record);
}

// The place of a reply that a command reads, as text around the value.
std::string Reply(const Command& command, const std::string& value) {
    const auto inParams = [&](const std::string& key) {
        return R"({ "result" : true, "params" : { ")" + key + "\" : " + value + " } }";
    };
    if (command.parse != Command::Frame::Family) return inParams("table");
    switch (command.parseFrame.source) {
    case Source::Table:
        return inParams("table");
    case Source::Caps:
    case Source::CapsOrParams:
        return inParams("caps");
    case Source::Params:
        return inParams(command.parseFrame.name);
    case Source::Top:
        return std::string(R"({ "result" : true, ")") + command.parseFrame.name + "\" : " + value + " }";
    case Source::Result:
        return R"({ "result" : )" + value + " }";
    }
    return {};
}

TEST(Run, WhatParsePrintsPackTakes) {
    std::size_t tried = 0;
    for (const Command& command : Commands()) {
        if (!command.parses() || !command.packs() || command.parse == Command::Frame::Own) continue;
        const std::string name(command.name);
        std::vector<std::byte> record(command.table->size);
        Fill(*command.table, record.data());
        std::vector<char> text(1 << 22);
        const Outcome outcome = RunPack(command, {record.data(), command.table->size, text.data(), 1 << 22});
        // A command that tests its caller's arrays turns away a record that has none.
        if (command.packFrame.accepts != nullptr && outcome == Outcome::NotAccepted) continue;
        if (outcome == Outcome::RowRefused) continue;
        ASSERT_EQ(outcome, Outcome::Done) << name;
        const std::string value(text.data());
        if (value.empty() || value == "null\n")
            continue; // its content is in an array of the caller's, which nobody filled here
        ASSERT_GT(value.size(), value[0] == '{' ? 14U : 4U) << name;

        // What a device sends may be a list of what it is sent.
        std::string reply;
        Result parsed;
        for (const std::string& form : {value, "[ " + value + " ]", "{ \"name\" : " + value + " }"}) {
            reply = Reply(command, form);
            parsed = ParseText(name, reply);
            if (parsed.exit == kDone && parsed.out != "[]\n") break;
        }
        ASSERT_EQ(parsed.exit, kDone) << name << parsed.err;
        EXPECT_EQ(parsed.err, "") << name;
        const Result packed = PackText(name, parsed.out);
        ASSERT_EQ(packed.exit, kDone) << name << packed.err;
        EXPECT_GT(packed.out.size(), (value[0] == '{' ? 14U : 4U)) << name;
        EXPECT_EQ(ParseText(name, reply, {.pack = true}).out, parsed.out + packed.out) << name;
        EXPECT_EQ(PackText(name, ParseText(name, reply, {.all = true}).out).out, packed.out) << name;
        ++tried;
    }
    EXPECT_GE(tried, 15U);
}

// ---- Hostile input ----

bool IsJson(const std::string& text) {
    return test::Document(text).ok;
}

// Whatever stands in the text, the answer is a whole document or a reason.
bool ExpectWhole(const Result& result, bool isRecord) {
    if (result.exit == kDone) {
        EXPECT_TRUE(IsJson(result.out)) << result.out.substr(0, 200);
    } else {
        EXPECT_EQ(result.exit, kRefused);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, StartsWith("orrery: "));
    }
    if (isRecord && result.exit == kDone) {
        EXPECT_EQ(PackText("Alarm", result.out).exit, kDone);
    }
    for (const char c : result.err)
        EXPECT_TRUE(c == '\n' || static_cast<unsigned char>(c) >= 0x20) << "a control character for the terminal";
    return result.exit == kDone;
}

TEST(Hostile, DamagedTextsEndInADocumentOrAReason) {
    const std::string reply = FileText("examples/alarm-reply.json");
    const std::string record = ParseText("Alarm", reply).out;
    std::mt19937 random(4711);
    int taken = 0;
    int refused = 0;
    constexpr std::string_view kBytes = "{}[]\",:-0123456789.eEtfn \x00\x1b\xff\xc3\\/";
    for (int round = 0; round < 60; ++round) {
        for (const bool isRecord : {false, true}) {
            std::string text = isRecord ? record : reply;
            for (int i = 0; i < 1 + round % 3; ++i)
                text[random() % text.size()] = kBytes[random() % kBytes.size()];
            if (round % 4 == 0) text.resize(random() % text.size());
            const bool done =
                isRecord ? ExpectWhole(PackText("Alarm", text), false) : ExpectWhole(ParseText("Alarm", text), true);
            ++(done ? taken : refused);
        }
    }
    EXPECT_GT(taken, 10) << "the damage is too heavy to test anything";
    EXPECT_GT(refused, 10) << "the damage is too light to test anything";
}

TEST(Hostile, DepthIsNoDanger) {
    const std::string deep(1000000, '[');
    const std::string closed = deep + std::string(deep.size(), ']');
    EXPECT_EQ(ParseText("Alarm", deep).exit, kRefused);
    EXPECT_EQ(PackText("Alarm", closed).exit, kRefused);
    ExpectWhole(ParseText("Alarm", R"({"result":true,"error":)" + closed + "}"), false);
    ExpectWhole(ParseText("PwdReset", R"({"params":{"table":)" + closed + "},\"result\":true}"), false);
    ExpectWhole(PackText("PwdReset", R"({"bEnable":)" + closed + "}"), false);
}

// ---- Refusals ----

constexpr const char* kEnabled = R"({"result":true,"params":{"table":{"Enable":true}}})";

TEST(Refusals, UnknownCommand) {
    ExpectRefused(ParseText("Alrm", "{}"), "no command \"Alrm\"; did you mean Alarm? ('orrery commands' lists them)");
    ExpectRefused(PackText("alarm.getCaps", "{}"),
                  "no command \"alarm.getCaps\"; did you mean log.getCaps, alarm.getAlarmCaps or netApp.getCaps? "
                  "('orrery commands' lists them)");
    ExpectRefused(ParseText("Zzzzzzzz", "{}"), "no command \"Zzzzzzzz\" ('orrery commands' lists them)");
    ExpectRefused(ParseText("\x1b[2J", "{}"), "no command \"\\u001b[2J\" ('orrery commands' lists them)");
}

TEST(Refusals, SyntaxErrorsWithTheirPlace) {
    const std::string value = "expected a value: an object, a list, a text in quotes, a number, true, false or null";
    ExpectRefused(ParseText("PwdReset", ""), "the text is empty: " + value);
    ExpectRefused(ParseText("PwdReset", "{ \"a\" : tru }"),
                  "line 1, column 9: " + value + "\n  { \"a\" : tru }\n          ^");
    ExpectRefused(ParseText("PwdReset", "{\r\n\t\"\xc3\xa9\" 1 }"),
                  "line 2, column 6: expected ':' behind the member's name\n  ?\"\xc3\xa9\" 1 }\n       ^");
    ExpectRefused(ParseText("PwdReset", "[ 1, 2"),
                  "line 1, column 7: expected ',' or ']' in this list (the text ends here)\n  [ 1, 2\n        ^");
    ExpectRefused(ParseText("PwdReset", "{ \"a\" : 1; }"),
                  "line 1, column 10: expected ',' or '}' in this object\n  { \"a\" : 1; }\n           ^");
    ExpectRefused(ParseText("PwdReset", "{ a : 1 }"),
                  "line 1, column 3: expected '}' or the name of a member, in quotes\n  { a : 1 }\n    ^");
    ExpectRefused(PackText("PwdReset", "{ \"bEnable\": }"),
                  "line 1, column 14: " + value + "\n  { \"bEnable\": }\n               ^");
}

TEST(Refusals, LongLinesAreShownInPart) {
    const std::string text = "[ " + std::string(200, '1') + " x" + std::string(200, 'y') + " ]";
    const std::string said = ParseText("PwdReset", text).err;
    EXPECT_THAT(said, HasSubstr("line 1, column 204: expected ',' or ']'"));
    // 60 bytes in front of the place, 59 behind it
    EXPECT_THAT(said, HasSubstr("\n  ..." + std::string(59, '1') + " x" + std::string(59, 'y') + "...\n"));
    EXPECT_THAT(said, HasSubstr("\n  " + std::string(63, ' ') + "^\n"));
}

TEST(Refusals, RefusedResult) {
    ExpectRefused(ParseText("PwdReset", R"({"result":false,"error":{"code":5,"message":"no \u001b"}})"),
                  "the device refused the call: \"result\" is false; this command wants true\n"
                  "the device's \"error\": { \"code\" : 5, \"message\" : \"no ?\" }");
    ExpectRefused(ParseText("PwdReset", R"({"params":{}})"),
                  "the reply has no \"result\" (it has \"params\"); this command wants true");
    ExpectRefused(ParseText("PwdReset", "[]"),
                  "the reply is a list, not an object with \"result\"; this command wants true");
    ExpectRefused(ParseText("alarm.getAlarmCaps", R"({"result":1})"),
                  "the device refused the call: \"result\" is 1; this command wants true or \"true\"");
}

TEST(Refusals, MissingTable) {
    ExpectRefused(ParseText("Alarm", R"({"result":true,"params":{"tabel":{}}})"),
                  "no \"params.table\" in the reply (\"params\" has \"tabel\")");
    ExpectRefused(ParseText("AnalogAlarm.getCaps", R"({"result":true,"id":1})"),
                  "no \"params.caps\" in the reply: it has no \"params\", only \"id\", \"result\"");
}

TEST(Refusals, Rooms) {
    ExpectRefused(ParseText("PwdReset", kEnabled, {.bytes = 3}),
                  "the buffer is too small: one record of PwdReset needs 4 bytes, it has 3");
    ExpectRefused(ParseText("PwdReset", kEnabled, {.records = 0}),
                  "no buffer, or one of 0 bytes: PwdReset needs 4 bytes");
    EXPECT_EQ(ParseText("PwdReset", kEnabled, {.bytes = 4}).exit, kDone);
    // "{ \"Enable\" : true }" and a newline are 20 characters; the terminator needs one more.
    ExpectRefused(PackText("PwdReset", R"({"bEnable": 1})", {.capacity = 20}),
                  "the text is too long: it needs room for 21 bytes, there are 20");
    EXPECT_EQ(PackText("PwdReset", R"({"bEnable": 1})", {.capacity = 21}).exit, kDone);
    ExpectRefused(PackText("LossDetect", "[]"),
                  "the record is too small: one record of LossDetect has 336256 bytes, there are 0");
    // Of the alarms the text may be as long as the buffer, and then ends without its newline.
    const std::size_t length = PackText("LossDetect", "{}").out.size();
    const auto capacity = static_cast<std::uint32_t>(length);
    EXPECT_EQ(PackText("LossDetect", "{}", {.capacity = capacity}).out.size(), length - 1);
    ExpectRefused(PackText("LossDetect", "{}", {.capacity = capacity - 1}),
                  "the text is too long: it needs room for " + std::to_string(length) + " bytes, there are "
                      + std::to_string(length - 1));
}

TEST(Refusals, RepliesHaveNoText) {
    const std::string why = "alarm.getExAlarmBoxCaps has no text of its own: it is a reply that can only be parsed";
    ExpectRefused(PackText("alarm.getExAlarmBoxCaps", "{}"), why);
    const Result result =
        ParseText("alarm.getExAlarmBoxCaps", R"({"result":true,"params":{"caps":{"AlarmIn":3}}})", {.pack = true});
    EXPECT_EQ(result.exit, kRefused);
    EXPECT_EQ(result.out, "{ \"nAlarmIn\": 3, \"nAlarmOut\": 0 }\n"); // the record is whole all the same
    EXPECT_EQ(result.err, "orrery: " + why + "\n");
}

TEST(Refusals, RecordsThatDoNotFitTheirTable) {
    ExpectRefused(PackText("NetAlarm", R"([{}, {"stuEventHandler": {"stuPtzLink": [{}, {}, {}, {"emTyp": 1}]}}])"),
                  "[1].stuEventHandler.stuPtzLink[3].emTyp: no such field in CFG_PTZ_LINK; did you mean emType?");
    ExpectRefused(PackText("PwdReset", "3"), "an object with the fields of CFG_ENABLE_INFO expected, not a number");
}

} // namespace
} // namespace orrery::tool
