// Replies are read by two roads: from the text straight into the record, and by way of a document, which is the
// referee. Whatever the text, both give the same outcome, buffer, length and log lines.
#include "frame/Platform/Versioned.h"
#include "frame/TextRoad.h"
#include "frame/json/Reader.h"
#include "frame/record/Engine.h"
#include "support/CommandCalls.h"
#include "support/LogLines.h"
#include "support/Specimens.h"
#include "support/SweepBudget.h"
#include "support/TableText.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace orrery {
namespace {

using namespace test;

const char* WhyByDocument(const Command& command) {
    switch (command.parse) {
    case Command::Frame::Generic:
        return orrery::WhyByDocument(*command.table, command.genericFrame);
    case Command::Frame::Family:
        return orrery::WhyByDocument(*command.table, command.parseFrame);
    default:
        return "a parse function of its own";
    }
}

struct Answer {
    Outcome outcome = Outcome::Done;
    std::uint32_t length = 0;
    std::vector<std::byte> bytes;
    std::vector<std::byte> pointed; // what the caller's pointers lead to
    std::vector<std::string> lines;
    bool tookText = false;
};

// A command's calls on both roads, over buffers and memory that are the same at the start.
class Roads {
  public:
    explicit Roads(const Command& command) : command_(command) {}

    // Fails the test where the roads part. Whether the text was read without a document.
    bool Agree(const std::string& text, std::size_t size, std::byte filling) {
        const GuardedText guarded(text);
        const Answer document = Take(guarded.get(), size, filling, true);
        const Answer other = Take(guarded.get(), size, filling, false);
        EXPECT_FALSE(document.tookText);
        EXPECT_EQ(static_cast<int>(other.outcome), static_cast<int>(document.outcome)) << command_.name << "\n" << text;
        EXPECT_EQ(other.length, document.length) << command_.name << "\n" << text;
        EXPECT_EQ(other.lines, document.lines) << command_.name << "\n" << text;
        if (other.bytes != document.bytes) {
            const auto at = std::mismatch(other.bytes.begin(), other.bytes.end(), document.bytes.begin()).first;
            ADD_FAILURE() << command_.name << " parts at byte " << at - other.bytes.begin() << "\n" << text;
        }
        EXPECT_TRUE(other.pointed == document.pointed) << command_.name << " parts behind a pointer\n" << text;
        return other.tookText;
    }

  private:
    Answer Take(const char* text, std::size_t size, std::byte filling, bool documentOnly) {
        Answer answer;
        answer.bytes.assign(size, filling);
        answer.length = 0xABCD;
        memory_.Reset();
        memory_.PrepareBuffer(command_, answer.bytes.data(), size);
        ReadRoad road{documentOnly};
        LogLines lines;
        answer.outcome =
            RunParse(command_, {text, answer.bytes.data(), static_cast<std::uint32_t>(size), &answer.length, &road});
        answer.lines = lines.texts(E_LOG_LEVEL_ERROR);
        for (const auto& line : lines.texts(E_LOG_LEVEL_DETAIL))
            answer.lines.push_back(line);
        answer.tookText = road.tookText;
        answer.pointed = memory_.Contents();
        return answer;
    }

    const Command& command_;
    CallerMemory memory_;
};

// Prints a document as no device would: keys out of order, twice and escaped, comments, values of other types.
class Bender {
  public:
    Bender(std::uint64_t seed, unsigned strength) : random_(seed), strength_(strength) {}

    std::string Text(const json::Value& value) {
        layout_ = static_cast<unsigned>(random_() % 4);
        text_.clear();
        Put(value, 0);
        return text_;
    }

  private:
    bool Rolls(unsigned inThousand) { return random_() % 1000 < inThousand * strength_; }

    void Blank() {
        if (Rolls(4)) text_ += random_() % 2 == 0 ? "/* , } */" : "// ]\n";
        if (layout_ == 1) text_ += ' ';
        if (layout_ == 2) text_ += "\n  ";
    }
    void Quoted(std::string_view content) {
        text_ += '"';
        for (const char c : content) {
            const auto byte = static_cast<unsigned char>(c);
            if (byte < 0x20 || c == '"' || c == '\\' || (byte < 0x80 && Rolls(1))) {
                char escape[8];
                std::snprintf(escape, sizeof escape, "\\u%04x", byte);
                text_ += escape;
            } else {
                text_ += c;
            }
        }
        text_ += '"';
    }
    void PutMember(std::string_view key, const json::Value& value, int depth, bool& isFirst) {
        if (!isFirst) text_ += layout_ == 0 ? ", " : ",";
        isFirst = false;
        Blank();
        Quoted(key);
        text_ += layout_ == 0 ? " : " : ":";
        Blank();
        Put(value, depth + 1);
        Blank();
    }
    void Put(const json::Value& value, int depth) {
        static constexpr const char* kOthers[] = {"null", "true",   "0",           "-7",   "4294967295",
                                                  "2.5",  "\"\"",   "\"9\"",       "[]",   "{}",
                                                  "[1]",  "[null]", "{\"a\":[1]}", "[{}]", "[[]]"};
        if (depth > 1 && Rolls(6)) {
            text_ += kOthers[random_() % std::size(kOthers)];
            return;
        }
        char number[32];
        switch (value.type()) {
        case json::Type::Null:
            text_ += "null";
            break;
        case json::Type::Bool:
            text_ += value.asBool() ? "true" : "false";
            break;
        case json::Type::Int:
            text_ += std::to_string(value.asInt());
            break;
        case json::Type::UInt:
            text_ += std::to_string(value.asUInt());
            break;
        case json::Type::Real:
            std::snprintf(number, sizeof number, "%.17g", value.asDouble());
            text_ += std::isfinite(value.asDouble()) ? number : "1e999";
            break;
        case json::Type::String:
            Quoted(value.asString());
            break;
        case json::Type::Array: {
            text_ += '[';
            bool isFirst = true;
            const auto put = [&](const json::Value& element) {
                if (!isFirst) text_ += layout_ == 0 ? ", " : ",";
                isFirst = false;
                Blank();
                Put(element, depth + 1);
                Blank();
            };
            for (const json::Value& element : value.elements()) {
                if (Rolls(4)) put(json::kNull);
                put(element);
                if (Rolls(4)) put(element);
            }
            text_ += ']';
            break;
        }
        case json::Type::Object: {
            std::vector<const json::Member*> members;
            for (const json::Member& member : value.members())
                members.push_back(&member);
            if (Rolls(60)) std::shuffle(members.begin(), members.end(), random_);
            text_ += '{';
            bool isFirst = true;
            for (const json::Member* const member : members) {
                if (Rolls(8)) PutMember("Zz", members.back()->value, depth, isFirst);
                if (Rolls(20)) continue;
                if (Rolls(5)) PutMember(member->key(), json::kNull, depth, isFirst);
                PutMember(member->key(), member->value, depth, isFirst);
                if (Rolls(5)) PutMember(members[random_() % members.size()]->key(), member->value, depth, isFirst);
            }
            text_ += '}';
            break;
        }
        }
    }

    std::mt19937_64 random_;
    const unsigned strength_;
    unsigned layout_ = 0;
    std::string text_;
};

std::string Bent(const std::string& text, std::uint64_t seed, unsigned strength) {
    StackArena<std::size_t{16} << 10> arena;
    json::Value root;
    EXPECT_TRUE(json::Parse(text, arena, root));
    return Bender(seed, strength).Text(root);
}

std::vector<Command> Parsers() {
    std::vector<Command> parsers;
    for (const Command& command : DistinctCommands()) {
        if (command.parse != Command::Frame::None) parsers.push_back(command);
    }
    return parsers;
}

TEST(Roads, AgreeOnRepliesMadeFromTables) {
    const SweepBudget budget;
    for (const Command& command : Parsers()) {
        Roads roads(command);
        const std::size_t size = command.table->size;
        const bool isByDocument = WhyByDocument(command) != nullptr;
        std::size_t rounds = budget.Rounds(8 * size + 4000, 6, 60);
        for (std::uint64_t seed = 1; seed <= rounds; ++seed) {
            const auto values = static_cast<Values>(seed % 3);
            JsonTree tree = ReplyTree(command, {.values = values, .seed = seed});
            tree.Sort();
            const std::size_t room = seed % 4 == 0 ? size : seed % 4 == 1 ? 3 * size + 1 : 2 * size;
            const bool tookText = roads.Agree(tree.Text(), room, static_cast<std::byte>(seed % 2 == 0 ? 0xA5 : 0));
            if (values == Values::Typical && room == size && command.parse != Command::Frame::Own) {
                EXPECT_EQ(tookText, !isByDocument) << command.name << " " << tree.Text();
            }
            if (::testing::Test::HasFailure()) return;
        }
    }
}

TEST(Roads, AgreeOnRepliesThatNoDeviceSends) {
    const SweepBudget budget;
    std::size_t all = 0, fromText = 0;
    for (const Command& command : Parsers()) {
        Roads roads(command);
        const std::size_t size = command.table->size;
        const std::size_t rounds = budget.Rounds(8 * size + 4000, 8, 120);
        for (std::uint64_t seed = 1; seed <= rounds; ++seed) {
            const std::string text = ReplyText(command, {.values = static_cast<Values>(seed % 3), .seed = seed / 4});
            const bool tookText =
                roads.Agree(Bent(text, seed, static_cast<unsigned>(seed % 4)), 2 * size, std::byte{0xA5});
            ++all;
            fromText += tookText;
            if (::testing::Test::HasFailure()) return;
        }
    }
    // Most of these are bent in ways that the text's road takes, or the test would show little.
    EXPECT_GT(fromText * 4, all) << fromText << " of " << all;
}

TEST(Roads, AgreeOnTextsCutAtEveryByte) {
    const SweepBudget budget;
    for (const Command& command : Parsers()) {
        Roads roads(command);
        const std::string text = ReplyText(command, {.most = 1, .records = 1});
        const std::size_t cuts = budget.Rounds(4 * command.table->size + text.size(), 16, text.size());
        Spread spread(text.size(), cuts, text.size() / 2);
        for (std::size_t size = 0; size < text.size(); ++size) {
            if (!spread.Takes()) continue;
            roads.Agree(text.substr(0, size), command.table->size, std::byte{0xA5});
            roads.Agree(text.substr(0, size) + "@" + text.substr(size), command.table->size, std::byte{0x5A});
            if (::testing::Test::HasFailure()) return;
        }
        roads.Agree(text + "]] behind it", command.table->size, std::byte{0});
    }
}

// Large records at a caller's stride are read where they stand when they have the library's own layout, and through a
// local record when the caller's has a little more: what both layouts have is the same.
TEST(Roads, RecordsReadInPlaceAreThoseReadThroughALocalOne) {
    constexpr std::uint32_t kMore = 16;
    std::size_t inPlace = 0;
    for (const Command& command : Parsers()) {
        const record::Table& table = *command.table;
        if (command.parse != Command::Frame::Family || table.hasPointers) continue;
        const Stride how = command.parseFrame.stride;
        if (!VersionedRecords::AreReadInPlace(table, how, table.size)) continue;
        ++inPlace;
        EXPECT_FALSE(VersionedRecords::AreReadInPlace(table, how, table.size + kMore)) << command.name;
        for (std::uint64_t seed = 1; seed <= 12; ++seed) {
            std::string text = ReplyText(command, {.values = static_cast<Values>(seed % 3), .seed = seed});
            if (seed > 9) text.resize(text.size() / 2);
            const auto parse = [&](std::uint32_t stride, std::vector<std::byte>& bytes) {
                bytes.assign(2 * std::size_t{stride}, std::byte{0xA5});
                record::Store(bytes.data(), stride);
                std::uint32_t length = 0;
                return RunParse(command, {text.c_str(), bytes.data(), 2 * stride, &length});
            };
            std::vector<std::byte> own, larger;
            const Outcome outcome = parse(table.size, own);
            ASSERT_EQ(static_cast<int>(parse(table.size + kMore, larger)), static_cast<int>(outcome)) << text;
            if (seed > 9) {
                EXPECT_EQ(static_cast<int>(outcome), static_cast<int>(Outcome::NoJson)) << text;
            }
            for (std::size_t record = 0; record < 2; ++record) {
                const std::byte* const left = own.data() + record * table.size;
                const std::byte* const right = larger.data() + record * (table.size + kMore);
                constexpr std::size_t kWord = sizeof(std::uint32_t);
                EXPECT_EQ(std::memcmp(left + kWord, right + kWord, table.size - kWord), 0) << command.name << text;
                const std::uint32_t word = record == 0 ? table.size : 0xA5A5A5A5u;
                EXPECT_EQ(record::Load<std::uint32_t>(left), word) << command.name << text;
            }
            if (::testing::Test::HasFailure()) return;
        }
    }
    EXPECT_EQ(inPlace, 5u); // walls, their tours, widgets, storage groups and RAIDs
}

// The number is a decision: each of these commands has its reason.
TEST(Roads, CommandsThatAreReadByDocument) {
    std::map<std::string, std::vector<std::string>> reasons;
    std::size_t byDocument = 0, all = 0;
    for (const Command& command : AllCommands()) {
        if (!command.parses() || FindCommand(command.name) == nullptr) continue;
        ++all;
        if (const char* const why = WhyByDocument(command)) {
            ++byDocument;
            reasons[why].push_back(std::string(command.name));
        }
    }
    for (const auto& [why, names] : reasons) {
        std::printf("%zu because %s:", names.size(), why.c_str());
        for (const auto& name : names)
            std::printf(" %s", name.c_str());
        std::printf("\n");
    }
    std::printf("%zu of %zu commands\n", byDocument, all);
    EXPECT_EQ(byDocument, 106u);
}

} // namespace
} // namespace orrery
