// Writes the seeds of the fuzz targets, made from the tables: for each command that differs from the others, for each
// analysis rule and for each event, in several circumstances: fuzz_seeds DIRECTORY
#include "analyse/EventTypeRegistry.h"
#include "analyse/RuleBodyMap.h"
#include "analyse/SceneDetail.h"
#include "analyse/Templates.h"
#include "events/EventMap.h"
#include "events/TypedText.h"
#include "frame/PackedItems.h"
#include "support/FuzzInput.h"
#include "support/TableText.h"

#include "orrery/orrery.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

using namespace orrery;

namespace {

std::filesystem::path directory;
unsigned turn = 0; // what only one seed of a kind needs goes around over all of them

template <class Number>
void Put(std::string& out, Number number) {
    out.append(reinterpret_cast<const char*>(&number), sizeof number);
}

void Write(const char* target, const std::string& name, const std::string& content) {
    const auto file = directory / target / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

// The terminator of a text and what chooses the circumstances behind it.
std::string Circumstances(unsigned locale, unsigned flags, unsigned allocation) {
    std::string bytes(1, '\0');
    Put(bytes, static_cast<std::uint8_t>(locale));
    Put(bytes, static_cast<std::uint8_t>(flags));
    Put(bytes, static_cast<std::uint16_t>(allocation));
    return bytes;
}
constexpr unsigned kLocales = 7, kSink = 1, kFailOnly = 2, kFailFrom = 4, kNotification = 8, kCopies = 16;

// Characters of three and four bytes and escapes in front of each member that is a text.
std::string NotAscii(const std::string& text) {
    std::string all;
    for (std::size_t i = 0; i < text.size(); ++i) {
        all += text[i];
        if (i > 0 && text[i] == '"' && text[i - 1] == ':')
            all += "\xE4\xB8\xAD\xF0\x9F\x98\x80\xC3\x8A\\u4E2D\\uD83D\\uDE00\\u00CA\\b\\f\\n\\r\\t";
    }
    return all;
}

// What a target that reads texts begins with: as they are, at their limits, of any type, in other characters, and
// without memory.
template <class Make>
void WriteTexts(const char* target, const std::string& name, const std::string& prefix, unsigned flags, Make make) {
    ++turn;
    Write(target, name, prefix + make(test::TextOptions{}) + Circumstances(0, flags, 0));
    Write(target, name + ".limits",
          prefix + make(test::TextOptions{test::Values::Limits, turn, 3, 2}) + Circumstances(0, flags | kSink, 0));
    Write(target, name + ".wild",
          prefix + make(test::TextOptions{test::Values::Wild, turn, 2, 2}) + Circumstances(0, flags | kSink, 0));
    Write(target, name + ".characters",
          prefix + NotAscii(make(test::TextOptions{})) + Circumstances(turn % kLocales, flags, 0));
    Write(target, name + ".memory",
          prefix + make(test::TextOptions{})
              + Circumstances(turn % 2, flags | kSink | (turn % 3 == 0 ? kFailFrom : kFailOnly), turn / 3 % 4));
}

// `reply` makes its replies.
template <class Reply>
void WriteCommand(const Command& command, const std::string& name, Reply reply) {
    const std::uint32_t number = test::FuzzNumberOf(command.name);
    std::vector<std::byte> record(command.table->size);
    test::CallerMemory memory;
    if (command.parses()) {
        std::string prefix;
        Put(prefix, number);
        Put(prefix, std::uint32_t{1}); // a buffer of one record
        Put(prefix, std::uint8_t{0});
        WriteTexts("parse", name, prefix, 0, reply);
        if (command.otherTable != nullptr) { // a buffer that tells which of the two records it is
            prefix[sizeof number] = 4;
            WriteTexts("parse", name + ".other", prefix, 0, reply);
            prefix[sizeof number] = 1;
        }
        // A value of every shape, and none.
        const char* const values[] = {"null", "[]", "{}", "5", "\"x\"", "[[{}],[null]]", "[null,{}]"};
        const std::string shaped = test::Envelope(command, test::JsonTree(values[turn % std::size(values)])).Text();
        Write("parse", name + ".shape", prefix + shaped);
        const char* const replies[] = {"", "{", R"({"result":false})", R"({"result":true})", "[1", "\"\\u12\""};
        Write("parse", name + ".reply", prefix + replies[turn % std::size(replies)]);
        memory.PrepareBuffer(command, record.data(), record.size());
        RunParse(command, {reply(test::TextOptions{}).c_str(), record.data(), command.table->size, nullptr});
    }
    if (!command.packs() || ItemsBehind(*command.table) != nullptr) return;
    constexpr std::size_t kMost = std::size_t{16} << 10;
    const std::string bytes(reinterpret_cast<const char*>(record.data()), std::min(kMost, record.size()));
    const auto seed = [&](std::uint32_t capacity, std::uint16_t size, std::uint8_t flavour,
                          const std::string& content) {
        std::string all;
        Put(all, number);
        Put(all, capacity);
        Put(all, size);
        Put(all, flavour);
        return all + content;
    };
    Write("pack", name, seed(5, 0, 8, bytes));
    Write("pack", name + ".characters", seed(5, 0, static_cast<std::uint8_t>(8 | 32 | (1 + turn % 3) << 6), bytes));
    Write("pack", name + ".any", seed(turn, 0, 8 | 64, std::string("\xD6\xD0\x01\x00\x02\xFF", 6)));
    Write("pack", name + ".memory", seed(4, static_cast<std::uint16_t>(3 + turn % 3 * 4), 8 | 64, bytes));
    Write("pack", name + ".two", seed(5, 2 + 4 + 64, 8, bytes));
    if (record.size() > kMost) { // what stands behind
        const std::size_t from = record.size() - kMost;
        Write("pack", name + ".end",
              seed(static_cast<std::uint32_t>(8 * from + 5), 0, 8 | 16,
                   std::string(reinterpret_cast<const char*>(record.data()) + from, kMost)));
    }
    if (const auto items = test::FirstItems(*command.table)) {
        const std::string described(reinterpret_cast<const char*>(record.data() + *items),
                                    std::min(kMost, record.size() - *items));
        for (std::uint32_t i = 0; i < 16; ++i) { // types of all kinds, and of none
            std::string other = described;
            other[0] = static_cast<char>(i < 8 ? described[0] : i * 16 + i % 4);
            Write("pack", name + ".items" + std::to_string(i),
                  seed(std::uint32_t{1} << 31 | (5 + i), i % 3 == 0 ? static_cast<std::uint16_t>(3 + 4 * i) : 0,
                       static_cast<std::uint8_t>(8 | (i % 4) << 6), i < 8 ? described.substr(i * 4) : other));
        }
    }
    Write("pack", name + ".short", seed(4, static_cast<std::uint16_t>(1 + 4 * (turn % 50)), 0, bytes));
}

// What a scene tells of itself has other keys for scenes of other types.
void WriteScenes() {
    const Command& command = *FindCommand("VideoAnalyseGlobal");
    for (const char* const type : {"Traffic", "FaceDetection", "TrafficPatrol", "Normal"}) {
        WriteCommand(command, std::string(command.name) + "." + type, [&](const test::TextOptions& options) {
            test::JsonTree global = test::RecordTree(*command.table, options);
            if (global.kind() != test::JsonTree::Kind::Object) global = test::JsonTree::Object();
            const bool isOfFaces = scenes::GroupOfScene(type) == scenes::kFaces;
            for (const char* const name : {"Scene", "Scene1"}) {
                test::JsonTree scene = test::JsonTree::Object();
                scene.Add("Type", test::JsonTree::String(type));
                scene.Add("TypeList", test::JsonTree(R"(["Normal","City","FaceRecognition"])"));
                scene.Add("Detail", test::RecordTree(isOfFaces ? scenes::kFaceDetail : scenes::kSceneDetail, options));
                global.At(name) = scene;
            }
            return test::Envelope(command, global).Text();
        });
    }
}

void WriteEvent(const events::EventRow& row) {
    if (row.name.empty()) return;
    const auto text = [&](const test::TextOptions& options) {
        return R"({"Event":[{"Code":")" + std::string(row.name) + R"(","Action":"Start","Data":)"
               + test::RecordTree(*row.table, options).Text() + "}]}";
    };
    WriteTexts("events", std::string(row.name), "", turn % 2 == 0 ? kCopies : 0, text);
    // The same as a notification, with all that stands around its events.
    const auto notified = [&](const test::TextOptions& options) {
        return R"({"params":{"info":{"Transfer":"Offline","Channel":2,"CountInGroup":2,"IndexInGroup":1,"PictureType":1,)"
               R"("Ack":true,"PicID":[1,2],"Time":"2026-11-22 04:05:06","Tag":"ATMAfterPaste","Resolution":[704,576],)"
               R"("Flags":["Event","Event","*","other"],"FilePath":"/a/b","Repeat":1,"RecordFile":"r","FTPPath":"f",)"
               R"("VideoPath":"v","Events":[{"Code":")"
               + std::string(row.name) + R"(","Data":)" + test::RecordTree(*row.table, options).Text() + "}]}}}";
    };
    if (turn % 4 == 0) WriteTexts("events", std::string(row.name) + ".notified", "", kNotification | kCopies, notified);
}

void WriteRule(const RuleBody& body) {
    const std::string type(RuleNameOf(static_cast<std::int32_t>(body.code), false));
    const std::string name = std::to_string(body.code);
    const char* const command = turn % 3 == 0 ? "VideoAnalyseRule" : turn % 3 == 1 ? "AudioAnalyseRule" : "IVSFramRule";
    const auto text = [&](const test::TextOptions& options) {
        test::JsonTree rule = test::RecordTree(*body.table, options);
        if (rule.kind() != test::JsonTree::Kind::Object) rule = test::JsonTree::Object();
        rule.Add("Type", test::JsonTree::String(type));
        rule.Add("Id", test::JsonTree("3"));
        rule.Add("Class", test::JsonTree::String("Normal"));
        const std::string rules = "[" + rule.Text() + "]";
        if (command == std::string_view("IVSFramRule")) return R"({"result":true,"VideoAnalyseRule":)" + rules + "}";
        return R"({"result":true,"params":{"table":)" + rules + "}}";
    };
    std::string prefix;
    Put(prefix, static_cast<std::uint8_t>(turn % 3 << 1));
    const auto room = static_cast<std::uint32_t>(sizeof(CFG_RULE_INFO)) + body.size;
    Put(prefix, room);
    WriteTexts("rules", name, prefix, 0, text);

    // The item that it becomes, as a client would hand it back.
    std::vector<std::byte> items(room);
    CFG_ANALYSERULES_INFO rules = {};
    rules.pRuleBuf = reinterpret_cast<std::uint8_t*>(items.data());
    rules.nRuleLen = static_cast<std::int32_t>(room);
    RunParse(*FindCommand(command), {text({}).c_str(), &rules, sizeof rules, nullptr});
    std::string raw;
    Put(raw, std::uint8_t{1});
    Put(raw, std::uint32_t{0});
    Put(raw, static_cast<std::uint32_t>(turn % 2 == 0 ? 0x101 : 0)); // GBK and a sink
    std::uint16_t index = 0;
    while (&RuleBodies()[index] != &body)
        ++index;
    Put(raw, index);
    Put(raw, std::uint8_t{0});
    constexpr std::size_t kMost = 60'000;
    const std::size_t size = std::min<std::size_t>(body.size, kMost);
    Put(raw, static_cast<std::uint16_t>(size));
    raw.append(reinterpret_cast<const char*>(items.data()) + sizeof(CFG_RULE_INFO), size);
    Write("rules", name + ".item", raw);
}

// Answers to each kind of request: as devices give them, with values of other types, at the limits of what they hold.
void WriteRequests() {
    const std::string multicast =
        R"({"result":true,"params":{"table":)" + test::RecordTree(*FindCommand("Multicast")->table, {}).Text() + "}}";
    struct Answers {
        const char* name;
        std::uint8_t way; // the kind of request
        std::vector<std::string> texts;
    };
    std::string many = R"({"result":true,"params":{"options":[)";
    std::string names = R"({"result":true,"params":{"names":[)";
    for (int i = 0; i < 40; ++i) {
        many += (i > 0 ? ",\"NeedReboot\"" : "\"needrestart\"");
        names += (i > 0 ? ",\"" : "\"") + std::string(static_cast<std::size_t>(i), 'n') + '"';
    }
    const Answers all[] = {
        {"delete",
         0,
         {R"({"result":true,"params":{"options":["NeedRestart","CapsNotSupport","WriteFileError","x",5]}})",
          many + "]}}", R"({"result":false,"params":{"options":{"a":1}}})", "A/B"}},
        {"names",
         1,
         {R"({"result":true,"params":{"names":["Channel0","Channel1",5,null]}})", names + "]}}",
          R"({"result":true,"params":{"names":"x"}})", R"({"result":null,"params":{"names":[]}})"}},
        {"table",
         2,
         {multicast, R"({"result":true,"params":{"table":{"TS":5,"RTP":[null,[]],"QVII":null}}})",
          R"({"params":{"table":{}}})", "{"}},
        {"other", 3, {R"({"result":true,"params":{}})", "", "5"}},
        {"split", 4, {"10:20:30", " a :\tb: :", ":::", "aXbxAx", "abc"}},
    };
    const char* const separators[] = {":", "x", "ab", ""};
    for (const Answers& answers : all) {
        for (std::size_t i = 0; i < answers.texts.size(); ++i) {
            ++turn;
            const std::string separator = answers.way == 4 ? separators[i % std::size(separators)] : "";
            // How much of it: none, some and all of the caller's own memory.
            const auto taken = static_cast<unsigned>(separator.size());
            for (const unsigned amount : {taken, taken + 8, taken + 32, 127U, taken + 136}) {
                std::string seed;
                Put(seed, static_cast<std::uint8_t>(answers.way));
                Put(seed, static_cast<std::uint8_t>(amount));
                seed += separator + answers.texts[i];
                const std::string name = answers.name + std::to_string(i) + "." + std::to_string(amount);
                Write("request", name, seed + Circumstances(turn % kLocales, kSink, 0));
                Write("request", name + ".memory", seed + Circumstances(0, kFailOnly, turn % 4));
            }
        }
    }
}

// A rule of the type whose turn it is.
std::string Rule(const PackedItems& items, const test::TextOptions& options) {
    const ItemType type = items.typeAt(turn % items.typeCount);
    test::JsonTree rule = test::RecordTree(*type.table, options);
    if (rule.kind() != test::JsonTree::Kind::Object) rule = test::JsonTree::Object();
    rule.Add("Type", test::JsonTree::String(std::string(type.name)));
    rule.Add("Class", test::JsonTree::String("Normal"));
    return rule.Text();
}

void WriteTyped(const events::TypedRow& row, const std::string& name) {
    const auto text = [&](const test::TextOptions& options) {
        const std::string record = row.table->items != nullptr ? Rule(*row.table->items, options)
                                                               : test::RecordTree(*row.table, options).Text();
        const bool isList = row.isList || row.table->items != nullptr;
        const std::string lanes = turn % 2 == 0 ? R"("Config":[0,1,2,3,4,5,6,7,8,9],)" : "";
        const std::string value = isList ? "[" + record + ",null]" : record;
        return "{" + lanes + "\"" + std::string(row.name) + "\":" + value + "}";
    };
    WriteTexts("typed", name, "", turn % 2 == 0 ? kCopies : 0, text);
}

void WriteTemplate(const TemplateRow& row, const std::string& name) {
    const auto text = [&](test::TextOptions options) {
        options.seed += turn; // scenes of several classes
        if (!row.isByClass) return R"({"result":true,"params":)" + test::RecordTree(*row.table, options).Text() + "}";
        const std::string value = row.table->items != nullptr ? R"({"a":)" + Rule(*row.table->items, options) + "}"
                                                              : test::RecordTree(*row.table, options).Text();
        return R"({"result":true,"params":{"Traffic":)" + value + "}}";
    };
    std::string prefix;
    Put(prefix, static_cast<std::uint8_t>(&row - Templates().data()));
    Put(prefix, static_cast<std::uint8_t>(CFG_RULE_CLASS_TRAFFIC));
    Put(prefix, std::uint32_t{1} << 31 | 60000u);
    WriteTexts("templates", name, prefix, 0, text);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: fuzz_seeds DIRECTORY\n", stderr);
        return 2;
    }
    directory = argv[1];
    for (const Command& command : test::DistinctCommands())
        WriteCommand(command, std::string(command.name),
                     [&](const test::TextOptions& options) { return test::ReplyText(command, options); });
    WriteScenes();
    for (const events::EventRow& row : events::Events())
        WriteEvent(row);
    for (const RuleBody& body : RuleBodies())
        WriteRule(body);
    for (const events::TypedRow& row : events::TypedRows())
        WriteTyped(row, std::string(row.name));
    for (int i = 0; i < 8; ++i) { // rules of several types
        const std::string number = "." + std::to_string(i);
        WriteTyped(*events::FindTyped("VideoAnalyseRule"), "VideoAnalyseRule" + number);
        for (const TemplateRow& row : Templates())
            WriteTemplate(row, std::string(row.name) + number);
    }
    WriteRequests();
    return 0;
}
