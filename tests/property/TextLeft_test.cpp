// What a failed call leaves of the caller's text buffer.
#include "orrery/analyse_rules.h"
#include "support/CommandCalls.h"
#include "support/FailingAllocator.h"
#include "support/Specimens.h"
#include "support/TableText.h"

#include "orrery/calls.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace orrery {
namespace {

using namespace test;

constexpr char kBefore = '#';

bool IsAll(std::string_view bytes, char value) {
    return std::ranges::all_of(bytes, [value](char byte) { return byte == value; });
}

bool KeepsText(const Command& command) {
    return command.pack == Command::Frame::Family && command.packFrame.keepsText;
}

// A record that its command packs.
struct Specimen {
    explicit Specimen(const Command& command) : record(command.table->size) {
        memory.PrepareRecord(*command.table, record.data());
        if (!command.parses()) return;
        ParseCalls calls(command);
        if (HasPointers(*command.table)) return;
        calls.Run(ReplyText(command, {.most = 1, .records = 1}).c_str());
        std::ranges::copy(calls.bytes(), record.begin());
    }
    std::vector<std::byte> record;
    CallerMemory memory;
};

TEST(TextLeft, ARecordOneByteShortLeavesTheBufferAlone) {
    int refused = 0;
    for (const Command& command : DistinctCommands()) {
        if (!command.packs()) continue;
        const Specimen specimen(command);
        std::string text(256, kBefore);
        const Outcome outcome = RunPack(command, {specimen.record.data(), command.table->size - 1, text.data(), 256});
        if (outcome != Outcome::RecordTooSmall) continue; // those of the generic frame take what there is
        ++refused;
        EXPECT_TRUE(IsAll(text, kBefore)) << command.name;
    }
    EXPECT_GT(refused, 10);
}

TEST(TextLeft, ATextTooLongLeavesTheBufferClear) {
    for (const Command& command : DistinctCommands()) {
        if (!command.packs()) continue;
        const Specimen specimen(command);
        for (const std::uint32_t capacity : {0u, 1u, 2u, 3u}) {
            std::string text(16, kBefore);
            const Outcome outcome =
                RunPack(command, {specimen.record.data(), command.table->size, text.data(), capacity});
            if (outcome == Outcome::Done) continue; // of the shortest texts
            EXPECT_TRUE(outcome == Outcome::TextTooLong || MayTurnAway(command, outcome)) << command.name;
            EXPECT_TRUE(IsAll(text.substr(0, capacity), KeepsText(command) ? kBefore : '\0')) << command.name;
            EXPECT_TRUE(IsAll(text.substr(capacity), kBefore)) << command.name;
        }
    }
}

TEST(TextLeft, MemoryThatRunsOutLeavesTheBufferClear) {
    int failed = 0;
    for (const Command& command : DistinctCommands()) {
        if (!command.packs() || HasPointers(*command.table)) continue;
        // As many as need room, where they need any, before the first byte is written.
        const Specimen specimen(command);
        const std::size_t size = specimen.record.size();
        const bool exact = command.pack == Command::Frame::Family && command.packFrame.exactSize;
        const std::size_t count = exact ? 1 : 1 + 20'000 / size;
        std::vector<std::byte> records;
        for (std::size_t i = 0; i < count; ++i)
            records.insert(records.end(), specimen.record.begin(), specimen.record.end());
        std::string text(std::size_t{2} << 20, kBefore);
        Outcome outcome;
        {
            HeapWatch heap;
            heap.FailFrom(1);
            outcome = RunPack(command, {records.data(), static_cast<std::uint32_t>(records.size()), text.data(),
                                        static_cast<std::uint32_t>(text.size())});
        }
        if (outcome != Outcome::OutOfMemory) continue;
        ++failed;
        EXPECT_TRUE(IsAll(text, KeepsText(command) ? kBefore : '\0')) << command.name;
    }
    EXPECT_GT(failed, 1);
}

TEST(TextLeft, WhatIsRefusedForItsArgumentsLeavesTheBufferAlone) {
    char text[8];
    std::memset(text, kBefore, sizeof text);
    const std::uint32_t record = 0;
    EXPECT_EQ(CLIENT_PacketData("NoSuchThing", &record, sizeof record, text, sizeof text), 0);
    EXPECT_EQ(CLIENT_PacketData(nullptr, &record, sizeof record, text, sizeof text), 0);
    EXPECT_EQ(CLIENT_PacketData("Alarm", nullptr, sizeof record, text, sizeof text), 0);
    EXPECT_EQ(CLIENT_PacketData("alarm.getAlarmCaps", &record, sizeof record, text, sizeof text), 0);
    EXPECT_TRUE(IsAll({text, sizeof text}, kBefore));
}

TEST(TextLeft, RulesThatAreNotThereLeaveTheTextOfNone) {
    for (const char* const command : {"VideoAnalyseRule", "AudioAnalyseRule"}) {
        std::uint8_t items[8] = {};
        for (const auto& [count, buffer] : {std::pair<int, std::uint8_t*>{-1, items}, {1, nullptr}}) {
            const CFG_ANALYSERULES_INFO rules = {.nRuleCount = count, .pRuleBuf = buffer, .nRuleLen = 8};
            std::string text(16, kBefore);
            EXPECT_EQ(CLIENT_PacketData(command, &rules, sizeof rules, text.data(), 16), 0);
            EXPECT_STREQ(text.c_str(), "[  ]\n");
            EXPECT_TRUE(IsAll(text.substr(5), '\0'));
        }
        const CFG_ANALYSERULES_INFO unknown = {.nRuleCount = 1, .pRuleBuf = items, .nRuleLen = 8};
        std::string text(16, kBefore);
        EXPECT_EQ(CLIENT_PacketData(command, &unknown, sizeof unknown, text.data(), 16), 0);
        EXPECT_TRUE(IsAll(text, '\0'));
    }
}

} // namespace
} // namespace orrery
