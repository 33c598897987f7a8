// Every command when the heap has nothing left, at each of its allocations: once, and from there on.
#include "frame/PackedItems.h"
#include "support/CommandCalls.h"
#include "support/FailingAllocator.h"
#include "support/Specimens.h"
#include "support/SweepBudget.h"
#include "support/TableText.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

namespace orrery {
namespace {

using namespace test;

// A reply that needs memory of every kind: a long list of objects with escaped texts and keys out of order.
std::string LargeReply(const Command& command) {
    JsonTree reply = ReplyTree(command, {.values = Values::Limits, .seed = 5, .most = 4, .records = 2});
    JsonTree list = JsonTree::Array();
    for (int i = 0; i < 3000; ++i)
        list.Add(JsonTree(R"({"b":"\u4e2d\n","a":[1,2]})"));
    reply.Add("unknown", list);
    return reply.Text();
}

template <class Call>
void FailEachAllocation(const Command& command, Call call) {
    std::size_t allocations = 0;
    {
        HeapWatch heap;
        call(nullptr);
        allocations = heap.allocations();
        EXPECT_EQ(heap.liveBlocks(), 0) << command.name;
    }
    for (const bool onwards : {false, true}) {
        for (std::size_t n = 1; n <= allocations; ++n) {
            HeapWatch heap;
            onwards ? heap.FailFrom(n) : heap.FailOnly(n);
            call(&heap);
            EXPECT_EQ(heap.liveBlocks(), 0) << command.name << " allocation " << n;
        }
    }
}

TEST(Heap, ParsingSurvivesEachFailure) {
    for (const Command& command : DistinctCommands()) {
        if (!command.parses()) continue;
        const std::string text = LargeReply(command);
        std::vector<std::byte> buffer(command.table->size);
        std::vector<std::byte> whole(command.table->size);
        CallerMemory memory;
        Outcome complete = Outcome::Done;
        FailEachAllocation(command, [&](const HeapWatch* heap) {
            std::ranges::fill(buffer, kUntouched);
            memory.Reset();
            memory.PrepareBuffer(command, buffer.data(), buffer.size());
            std::uint32_t length = 0;
            const Outcome outcome =
                RunParse(command, {text.c_str(), buffer.data(), static_cast<std::uint32_t>(buffer.size()), &length});
            if (heap == nullptr) {
                complete = outcome;
                whole = buffer;
                EXPECT_NE(outcome, Outcome::OutOfMemory);
            } else if (heap->failures() == 0 || outcome != Outcome::OutOfMemory) {
                EXPECT_EQ(outcome, complete) << command.name;
                EXPECT_EQ(buffer, whole) << command.name;
            } else if (ClearsBuffer(command)) {
                EXPECT_TRUE(std::ranges::all_of(buffer, [](std::byte b) { return b == std::byte{0}; })) << command.name;
            }
        });
    }
}

TEST(Heap, PackingSurvivesEachFailure) {
    const SweepBudget budget;
    for (const Command& command : DistinctCommands()) {
        if (!command.packs() || ItemsBehind(*command.table) != nullptr) continue; // items have tests of their own
        // Many records, so that those that are sorted or converted need room.
        const bool isPlain = !HasPointers(*command.table);
        const std::size_t count = isPlain ? budget.Rounds(8 * std::size_t{command.table->size}, 2, 300) : 1;
        std::vector<std::byte> records(count * command.table->size);
        std::optional<ParseCalls> calls; // keeps what the pointers of a record lead to
        for (std::size_t i = 0; i < count; ++i) {
            calls.emplace(command);
            if (command.parses())
                calls->Run(ReplyText(command, {.seed = 1 + i % 4, .most = isPlain ? 1U : 3U, .records = 1}).c_str());
            else
                calls->Run("");
            std::ranges::copy(calls->bytes(), records.begin() + static_cast<std::ptrdiff_t>(i * command.table->size));
        }
        if (command.pack == Command::Frame::Family && command.packFrame.exactSize) records.resize(command.table->size);
        std::vector<char> room(std::size_t{8} << 20);
        std::string whole;
        FailEachAllocation(command, [&](const HeapWatch* heap) {
            const Outcome outcome = RunPack(command, {records.data(), static_cast<std::uint32_t>(records.size()),
                                                      room.data(), static_cast<std::uint32_t>(room.size())});
            const std::string_view text(room.data(), strnlen(room.data(), room.size()));
            if (heap == nullptr) {
                EXPECT_EQ(outcome, Outcome::Done) << command.name;
                whole = text;
            } else if (outcome == Outcome::Done) {
                EXPECT_TRUE(text == whole) << command.name;
            } else {
                EXPECT_EQ(outcome, Outcome::OutOfMemory) << command.name;
                EXPECT_GT(heap->failures(), 0u);
                const bool keeps = command.pack == Command::Frame::Family && command.packFrame.keepsText;
                if (!keeps && command.packFrame.stride == Stride::Record) {
                    EXPECT_EQ(text, "") << command.name;
                }
            }
        });
    }
}

} // namespace
} // namespace orrery
