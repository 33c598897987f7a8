// Every command against texts that are cut, bent or of the wrong types. What each call promises about its buffer is
// checked by ParseCalls.
#include "analyse/EventTypeRegistry.h"
#include "support/CommandCalls.h"
#include "support/Specimens.h"
#include "support/SweepBudget.h"
#include "support/TableText.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace orrery {
namespace {

using namespace test;

TEST(HostileText, EveryCommandTakesTheReplyMadeFromItsTable) {
    for (const Command& command : AllCommands()) {
        if (!command.parses()) continue;
        ParseCalls calls(command);
        EXPECT_EQ(calls.Run(ReplyText(command).c_str()), Outcome::Done) << command.name << ReplyText(command);
    }
}

// A reply is an object: no cut of it is JSON.
TEST(HostileText, CutAtEveryByte) {
    const SweepBudget budget;
    for (const Command& command : DistinctCommands()) {
        if (!command.parses()) continue;
        const std::string text = ReplyText(command, {.most = 1, .records = 1});
        ParseCalls calls(command);
        const GuardedBuffer room(text.size() + 1);
        const std::size_t cuts = budget.Rounds(text.size() / 2 + command.table->size, 16, text.size());
        Spread spread(text.size(), cuts, text.size() / 2);
        for (std::size_t size = 0; size < text.size(); ++size) {
            if (!spread.Takes()) continue;
            char* const cut = room.data() + room.size() - size - 1;
            std::memcpy(cut, text.data(), size);
            cut[size] = '\0';
            ASSERT_EQ(calls.Run(cut), command.parseFrame.takesNoJson ? Outcome::Done : Outcome::NoJson)
                << command.name << " cut at " << size;
        }
    }
}

TEST(HostileText, EveryValueReplacedByEveryType) {
    constexpr const char* kValues[] = {"null",        "true",        "false",        "0",   "-1",   "2147483647",
                                       "-2147483648", "4294967295",  "1e999",        "0.5", "\"\"", "\"text\"",
                                       "[]",          "[1]",         "[null]",       "{}",  "[[]]", "[{}]",
                                       "{\"a\":[1]}", "\"\\u0000\"", "[[[1,\"x\"]]]"};
    const SweepBudget budget;
    for (const Command& command : DistinctCommands()) {
        if (!command.parses()) continue;
        JsonTree tree = ReplyTree(command, {.most = 1, .records = 1});
        ParseCalls calls(command);
        int turn = 0;
        const std::size_t all = tree.Places().size() * std::size(kValues);
        const std::size_t bytes = 2 * tree.Text().size() + 2 * command.table->size;
        Spread spread(all, budget.Rounds(bytes, 2 * std::size(kValues), all), all / 2);
        // Deepest first, so that every place is still there when its turn comes.
        auto places = tree.Places();
        for (auto place = places.rbegin(); place != places.rend(); ++place) {
            JsonTree kept = std::move(**place);
            for (const char* const value : kValues) {
                if (!spread.Takes()) continue;
                **place = JsonTree(value);
                const std::string text = tree.Text();
                const Outcome outcome = calls.Run(text.c_str());
                ASSERT_NE(outcome, Outcome::NoJson) << command.name << text;
                if (outcome != Outcome::Done || !command.packs() || ++turn % 8 != 0) continue;
                const Packed packed = Pack(command, calls.record(), command.table->size);
                if (MayTurnAway(command, packed.outcome)) continue;
                ASSERT_EQ(packed.outcome, Outcome::Done) << command.name << text;
                ASSERT_EQ(FlawOf(packed.text), "") << command.name << packed.text;
            }
            **place = std::move(kept);
        }
    }
}

// The text without the member whose value is the marker; empty when that is no member.
std::string WithoutMember(const std::string& text, char marker) {
    const std::size_t value = text.find(marker);
    if (value == 0 || text[value - 1] != ':') return {};
    std::size_t begin = text.rfind('"', value - 3);
    std::size_t end = value + 1;
    if (text[end] == ',')
        ++end;
    else if (text[begin - 1] == ',')
        --begin;
    return text.substr(0, begin) + text.substr(end);
}

// A record with a list whose elements count by their names, whatever they hold.
bool HasNamedNulls(const record::Table& table) {
    return std::ranges::any_of(table, [](const record::Field& field) {
        if (field.nulls == record::Nulls::Named) return true;
        return field.kind == record::Kind::Record && field.table != nullptr && HasNamedNulls(*field.table);
    });
}
// Whether the key names a code under which an element of such a list stands.
bool NamesCode(const record::Table& table, std::string_view key) {
    return std::ranges::any_of(table, [key](const record::Field& field) {
        if (field.kind != record::Kind::Record || field.table == nullptr) return false;
        const record::Field* const name = field.nulls == record::Nulls::Named ? field.table->memberName : nullptr;
        if (name != nullptr && name->kind == record::Kind::MemberCode) {
            for (std::uint16_t i = 0; i < name->names->count; ++i)
                if (key == name->names->rows[i].text) return true;
        }
        return NamesCode(*field.table, key);
    });
}
// Whether the marked member is an element of such a list: they have the names that texts made from tables give them.
bool IsNamedElement(const record::Table& table, const std::string& text, char marker) {
    const std::size_t end = text.find(marker) - 2;
    const std::size_t begin = text.rfind('"', end - 1) + 1;
    const std::string_view key = std::string_view(text).substr(begin, end - begin);
    return key.starts_with("Item") || RuleCodeFromName(key) != 0 || NamesCode(table, key);
}

TEST(HostileText, ANullIsAsGoodAsNoKey) {
    constexpr char kMarker = '\x01';
    const SweepBudget budget;
    for (const Command& command : DistinctCommands()) {
        if (!command.parses()) continue;
        if (command.name == "encode.getCaps") continue; // tells how many members there are, whatever they hold
        JsonTree tree = ReplyTree(command, {.most = 2, .records = 2});
        ParseCalls calls(command);
        const bool hasNamedNulls = HasNamedNulls(*command.table);
        std::size_t compared = 0;
        auto places = tree.Places();
        const std::size_t cost = 3 * tree.Text().size() + 3 * command.table->size;
        Spread spread(places.size(), budget.Rounds(cost, 12, places.size()), places.size() / 2);
        for (auto place = places.rbegin(); place != places.rend(); ++place) {
            JsonTree kept = std::move(**place);
            **place = JsonTree(std::string(1, kMarker));
            std::string text = tree.Text();
            const std::string without = WithoutMember(text, kMarker);
            if (!without.empty() && spread.Takes()
                && !(hasNamedNulls && IsNamedElement(*command.table, text, kMarker))) {
                text.replace(text.find(kMarker), 1, "null");
                const Outcome outcome = calls.Run(text.c_str());
                const std::vector<std::byte> bytes(calls.bytes().begin(), calls.bytes().end());
                const std::uint32_t length = calls.length();
                EXPECT_EQ(calls.Run(without.c_str()), outcome) << command.name << text;
                EXPECT_TRUE(std::ranges::equal(bytes, calls.bytes())) << command.name << text;
                EXPECT_EQ(calls.length(), length) << command.name << text;
                ++compared;
            }
            **place = std::move(kept);
        }
        EXPECT_GT(compared, 0u) << command.name;
    }
}

TEST(HostileText, LimitsAndWildTypesEverywhere) {
    const SweepBudget budget;
    for (const Command& command : DistinctCommands()) {
        if (!command.parses()) continue;
        ParseCalls calls(command);
        const std::size_t rounds = budget.Rounds(2 * ReplyText(command).size() + 4 * command.table->size, 4, 150);
        for (unsigned seed = 1; seed <= rounds; ++seed) {
            const TextOptions options{seed % 2 == 0 ? Values::Limits : Values::Wild, seed, 1 + seed % 5, 1 + seed % 3};
            JsonTree tree = ReplyTree(command, options);
            std::mt19937 random(seed);
            if (seed % 4 >= 2) tree.Thin(random, 85);
            const GuardedText text(tree.Text());
            const Outcome outcome = calls.Run(text.get());
            ASSERT_NE(outcome, Outcome::NoJson) << command.name << text.get();
            if (outcome != Outcome::Done || !command.packs()) continue;
            const Packed packed = Pack(command, calls.record(), command.table->size);
            if (MayTurnAway(command, packed.outcome)) continue;
            ASSERT_EQ(packed.outcome, Outcome::Done) << command.name << text.get();
            ASSERT_EQ(FlawOf(packed.text), "") << command.name << packed.text;
        }
    }
}

// Bytes of a reply changed, dropped and doubled: most are no JSON any more, some are another document.
TEST(HostileText, BytesChanged) {
    std::mt19937 random(7);
    const SweepBudget budget;
    for (const Command& command : DistinctCommands()) {
        if (!command.parses()) continue;
        const std::string text = ReplyText(command, {.most = 1, .records = 1});
        ParseCalls calls(command);
        const std::size_t rounds = budget.Rounds(2 * text.size() + command.table->size, 8, 300);
        for (std::size_t round = 0; round < rounds; ++round) {
            std::string bent = text;
            const auto changes = static_cast<unsigned>(1 + random() % 3);
            for (unsigned change = 0; change < changes; ++change) {
                const std::size_t at = random() % bent.size();
                constexpr char kBytes[] = "\"\\{}[]:,/*-+.e09ntu\x01\x7f\x80\xff ";
                switch (random() % 3) {
                case 0:
                    bent[at] = kBytes[random() % (sizeof kBytes - 1)];
                    break;
                case 1:
                    bent.erase(at, 1 + random() % 4);
                    break;
                default:
                    bent.insert(at, bent.substr(at, random() % 8));
                    break;
                }
                if (bent.empty()) bent = " ";
            }
            const GuardedText guarded(bent);
            calls.Run(guarded.get());
        }
    }
}

} // namespace
} // namespace orrery
