// Every command that goes both ways: what its table can let out again comes back the same.
#include "support/CommandCalls.h"
#include "support/Specimens.h"
#include "support/SweepBudget.h"
#include "support/TableText.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

namespace orrery {
namespace {

using namespace test;
using testing::IsEmpty;

// Where packing gives a list and parsing takes one record, or the other way about, the text is not the reply's form.
bool FormsAgree(const Command& command) {
    if (command.pack == Command::Frame::Generic) return true;
    if (command.pack != Command::Frame::Family) return false;
    const bool byMember = command.packFrame.form == Form::ByMember;
    const Take take = command.parseFrame.take;
    if (byMember || TakesMembers(command)) return byMember && TakesMembers(command);
    if (command.packFrame.form == Form::Array) return !TakesOneRecord(take);
    return take != Take::Many && take != Take::ManyOrNone;
}

void GoAround(const Command& command, const std::string& text) {
    ParseCalls first(command);
    ParseCalls second(command);
    const std::size_t size = command.table->size;
    if (first.Run(text.c_str(), size, std::byte{0}) != Outcome::Done) return;
    const Packed packed = Pack(command, first.record(), size);
    if (MayTurnAway(command, packed.outcome)) return;
    ASSERT_EQ(packed.outcome, Outcome::Done) << command.name << text;
    ASSERT_EQ(FlawOfJson(packed.text), "") << command.name << packed.text;
    ASSERT_EQ(Pack(command, first.record(), size).text, packed.text) << command.name;
    if (!FormsAgree(command)) return;
    if (packed.text == "null\n") return; // a record without content has nothing that could come back

    const std::string reply = ReplyAround(command, packed.text);
    ASSERT_EQ(second.Run(reply.c_str(), size, std::byte{0}), Outcome::Done) << command.name << reply;
    EXPECT_THAT(Differences(*command.table, first.record(), second.record()), IsEmpty())
        << command.name << "\nread " << text << "\nwritten " << packed.text;
    // A text that has been through the record once is the text of its record from then on.
    const Packed again = Pack(command, second.record(), size);
    ParseCalls third(command);
    ASSERT_EQ(third.Run(ReplyAround(command, again.text).c_str(), size, std::byte{0}), Outcome::Done) << command.name;
    EXPECT_EQ(Pack(command, third.record(), size).text, again.text) << command.name;
}

TEST(RoundTrip, EveryKeyOfEveryTable) {
    const SweepBudget budget;
    for (const Command& command : AllCommands()) {
        if (!command.parses() || !command.packs()) continue;
        const std::size_t rounds = budget.Rounds(40 * std::size_t{command.table->size}, 2, 5);
        for (unsigned seed = 1; seed <= rounds; ++seed) {
            GoAround(command, ReplyText(command, {.seed = seed, .most = seed, .records = 1}));
            if (testing::Test::HasFatalFailure()) return;
        }
    }
}

TEST(RoundTrip, SomeKeysOfEveryTable) {
    const SweepBudget budget;
    for (const Command& command : DistinctCommands()) {
        if (!command.parses() || !command.packs()) continue;
        const std::size_t rounds = budget.Rounds(40 * std::size_t{command.table->size}, 3, 30);
        for (unsigned seed = 1; seed <= rounds; ++seed) {
            std::mt19937 random(seed);
            JsonTree value = RecordTree(*command.table, {.seed = seed, .most = 3});
            value.Thin(random, seed % 3 == 0 ? 30 : 75);
            JsonTree reply = value;
            if (TakesMany(command)) {
                reply = TakesMembers(command) ? JsonTree::Object() : JsonTree::Array();
                TakesMembers(command) ? reply.Add("Only", value) : reply.Add(value);
            }
            GoAround(command, Envelope(command, reply).Text());
            if (testing::Test::HasFatalFailure()) return;
        }
    }
}

// Reading is decided by the reply alone: what the buffer held before leaves no trace where the frame clears it.
TEST(RoundTrip, TheBuffersPastLeavesNoTrace) {
    for (const Command& command : DistinctCommands()) {
        if (!command.parses() || !ClearsBuffer(command)) continue;
        const std::string text = ReplyText(command, {.values = Values::Limits, .seed = 3});
        ParseCalls one(command);
        ParseCalls other(command);
        const Outcome outcome = one.Run(text.c_str(), command.table->size, std::byte{0xFF});
        ASSERT_EQ(outcome, other.Run(text.c_str(), command.table->size, std::byte{0}));
        EXPECT_TRUE(std::ranges::equal(one.bytes(), other.bytes())) << command.name;
        EXPECT_EQ(one.length(), other.length());
    }
}

} // namespace
} // namespace orrery
