// Every command in caller's buffers of every size, each of which ends at an unreadable page.
#include "support/CommandCalls.h"
#include "support/Specimens.h"
#include "support/SweepBudget.h"
#include "support/TableText.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <set>

namespace orrery {
namespace {

using namespace test;

// Sizes up to two records and a little: those at the edges always, of the others as many as the budget has room for,
// those near an edge first.
std::vector<std::size_t> SizesFor(std::size_t record, const SweepBudget& budget) {
    constexpr std::size_t kEdge = 64;
    const std::size_t most = 2 * record + kEdge;
    const std::size_t rounds = budget.Rounds(2 * most, 12, most);
    std::set<std::size_t> sizes;
    for (std::size_t away = 0; away <= kEdge && sizes.size() < rounds; ++away) {
        for (const std::size_t edge : {record, 2 * record, std::size_t{0}})
            sizes.insert({edge + away, edge > away ? edge - away : 1});
    }
    std::mt19937 random(static_cast<unsigned>(record));
    while (sizes.size() < rounds)
        sizes.insert(1 + random() % most);
    sizes.erase(0);
    return {sizes.begin(), sizes.end()};
}

bool HasOwnStride(const Command& command) {
    return command.parse == Command::Frame::Own
           || (command.parse == Command::Frame::Family && command.parseFrame.stride != Stride::Record);
}

TEST(Buffers, EverySizeHoldsAsManyRecordsAsFit) {
    const SweepBudget budget(std::size_t{3} << 30); // little is done with each byte
    for (const Command& command : DistinctCommands()) {
        if (!command.parses()) continue;
        const std::size_t record = command.table->size;
        const GuardedText text(ReplyText(command, {.records = 3}));
        ParseCalls whole(command, 2 * record);
        ASSERT_EQ(whole.Run(text.get(), record), Outcome::Done) << command.name;
        std::vector<std::byte> first(whole.bytes().begin(), whole.bytes().end());
        const bool comparable = !HasPointers(*command.table) && !HasOwnStride(command);
        const bool exact = command.parse == Command::Frame::Family && command.parseFrame.exactSize;

        ParseCalls calls(command, 2 * record + 64);
        for (const std::size_t size : SizesFor(record, budget)) {
            const Outcome outcome = calls.Run(text.get(), size);
            if (HasOwnStride(command)) continue; // the caller says how large its records are
            const bool fits = exact ? size == record : size >= record || command.parseFrame.anySize;
            ASSERT_EQ(outcome, fits ? Outcome::Done : Outcome::BufferTooSmall) << command.name << " in " << size;
            if (!fits || !comparable) continue;
            const auto bytes = calls.bytes();
            const std::size_t held = std::min(size, record);
            ASSERT_TRUE(std::ranges::equal(bytes.first(held), std::span(first).first(held)))
                << command.name << " in " << size;
            if (size < record) continue;
            // Behind the records there are zeros, or what the caller had there.
            const std::size_t records = TakesMany(command) ? std::min<std::size_t>(size / record, 3) : 1;
            const auto rest = bytes.subspan(records * record);
            const std::byte left = ClearsBuffer(command) ? std::byte{0} : kUntouched;
            ASSERT_TRUE(std::ranges::all_of(rest, [left](std::byte b) { return b == left; }))
                << command.name << " in " << size;
        }
    }
}

TEST(Buffers, NothingIsDoneWithoutABuffer) {
    for (const Command& command : DistinctCommands()) {
        std::byte some[8] = {};
        if (command.parses()) {
            EXPECT_EQ(RunParse(command, {"{}", nullptr, 8, nullptr}), Outcome::BadArguments);
            EXPECT_EQ(RunParse(command, {nullptr, some, 8, nullptr}), Outcome::BadArguments);
            EXPECT_EQ(RunParse(command, {"{}", some, 0, nullptr}), Outcome::BadArguments);
        }
        if (command.packs()) {
            char text[8];
            EXPECT_EQ(RunPack(command, {nullptr, 8, text, sizeof text}), Outcome::BadArguments);
            EXPECT_EQ(RunPack(command, {some, 8, nullptr, 8}), Outcome::BadArguments);
        }
    }
}

TEST(Buffers, TheReplyLengthMayBeNull) {
    for (const Command& command : DistinctCommands()) {
        if (!command.parses()) continue;
        std::vector<std::byte> buffer(command.table->size);
        CallerMemory memory;
        memory.PrepareBuffer(command, buffer.data(), buffer.size());
        const std::string text = ReplyText(command, {.records = 1});
        const auto size = static_cast<std::uint32_t>(buffer.size());
        EXPECT_EQ(RunParse(command, {text.c_str(), buffer.data(), size, nullptr}), Outcome::Done) << command.name;
    }
}

} // namespace
} // namespace orrery
