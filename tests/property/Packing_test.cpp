// Every command that packs: records of any bytes, records and texts of any size.
#include "frame/record/Engine.h"
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

// A record that a reply fills, packed alone.
std::vector<std::byte> FilledRecord(const Command& command, CallerMemory& memory) {
    std::vector<std::byte> record(command.table->size);
    memory.PrepareBuffer(command, record.data(), record.size());
    if (!command.parses()) return record;
    const std::string text = ReplyText(command, {.most = 1, .records = 1});
    RunParse(command, {text.c_str(), record.data(), command.table->size, nullptr});
    return record;
}

bool OutcomeIsPlausible(Outcome outcome) {
    return outcome == Outcome::Done || outcome == Outcome::RowRefused || outcome == Outcome::NotAccepted
           || outcome == Outcome::BadItem || outcome == Outcome::RecordTooSmall || outcome == Outcome::TextTooLong;
}

// Any outcome that a command can tell will do, and what it wrote is a text.
void PackSafely(const Command& command, std::byte* record, std::size_t size, CallerMemory& memory) {
    memory.Reset();
    if (HasPointers(*command.table)) memory.MakePointersSafe(*command.table, record);
    const Packed packed = Pack(command, record, size);
    ASSERT_TRUE(OutcomeIsPlausible(packed.outcome)) << static_cast<int>(packed.outcome);
    if (packed.outcome == Outcome::Done) {
        ASSERT_EQ(FlawOf(packed.text), "");
    }
}

TEST(Packing, RecordsOfAnyBytes) {
    const SweepBudget budget;
    for (const Command& command : DistinctCommands()) {
        if (!command.packs()) continue;
        const std::size_t size = command.table->size;
        const GuardedBuffer buffer(size);
        auto* const record = reinterpret_cast<std::byte*>(buffer.data());
        CallerMemory memory;
        const int rounds = static_cast<int>(budget.Rounds(16 * size, 2, 24));
        constexpr int kPatterns[] = {0x00, 0x01, 0x20, 0x22, 0x7F, 0x80, 0xFF};
        std::mt19937_64 random(size);
        for (int round = 0; round < static_cast<int>(std::size(kPatterns)) + rounds; ++round) {
            if (round < static_cast<int>(std::size(kPatterns)))
                std::memset(record, kPatterns[round], size);
            else
                std::generate_n(record, size, [&] { return static_cast<std::byte>(random() >> 56); });
            // Half of the records look as if their caller had set the size words.
            if (round % 2 == 0 || command.packFrame.stride != Stride::Record)
                record::SetSizeWords(*command.table, record);
            ASSERT_NO_FATAL_FAILURE(PackSafely(command, record, size, memory)) << command.name << " round " << round;
        }
    }
}

// Numbers from one end of their range to the other, above all in counts and sizes.
TEST(Packing, WordsAtTheirLimits) {
    constexpr std::uint32_t kWords[] = {0, 1, 2, 5, 0x7F, 0xFF, 0x7FFF, 0x10000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
    const SweepBudget budget;
    for (const Command& command : DistinctCommands()) {
        if (!command.packs()) continue;
        const std::size_t size = command.table->size;
        const GuardedBuffer buffer(size);
        auto* const record = reinterpret_cast<std::byte*>(buffer.data());
        CallerMemory memory;
        const std::size_t rounds = budget.Rounds(16 * size, 2, 40);
        std::mt19937 random(static_cast<unsigned>(size));
        for (std::size_t round = 0; round < rounds; ++round) {
            for (std::size_t at = 0; at + 4 <= size; at += 4)
                record::Store(record + at, kWords[random() % std::size(kWords)]);
            record::SetSizeWords(*command.table, record);
            ASSERT_NO_FATAL_FAILURE(PackSafely(command, record, size, memory)) << command.name << " round " << round;
        }
    }
}

TEST(Packing, RecordsOfAnySize) {
    const SweepBudget budget;
    for (const Command& command : DistinctCommands()) {
        if (!command.packs()) continue;
        const std::size_t whole = command.table->size;
        CallerMemory memory;
        std::vector<std::byte> twice = FilledRecord(command, memory);
        const std::vector<std::byte> one = twice;
        twice.insert(twice.end(), one.begin(), one.end());
        const GuardedBuffer buffer(twice.size());
        std::set<std::size_t> sizes = {0, 1, whole - 1, whole, whole + 1, 2 * whole - 1, 2 * whole};
        const std::size_t some = budget.Rounds(8 * whole, 4, 2 * whole);
        for (std::size_t i = 0; i < some; ++i)
            sizes.insert(i * 2 * whole / some);
        for (const std::size_t size : sizes) {
            char* const record = buffer.data() + buffer.size() - size;
            std::memcpy(record, twice.data(), size);
            const Packed packed = Pack(command, record, size);
            const bool mayBeShort = command.pack == Command::Frame::Generic;
            const bool mustBeExact = command.pack == Command::Frame::Family && command.packFrame.exactSize;
            const bool fits = mustBeExact ? size == whole : mayBeShort || size >= whole;
            ASSERT_EQ(packed.outcome, fits ? Outcome::Done : Outcome::RecordTooSmall) << command.name << " " << size;
            if (fits) {
                ASSERT_EQ(FlawOf(packed.text), "") << command.name << " " << size;
            }
        }
    }
}

// The bytes that a buffer must have beyond the text.
std::size_t Spare(Capacity capacity) {
    constexpr std::size_t kSpare[] = {1, 0, 0, 2, 0}; // Strict, Loose, Raw, OneBefore, Bare
    return kSpare[static_cast<std::size_t>(capacity)];
}

// What a buffer holds after a call, from its words alone.
std::string Expected(Capacity capacity, bool keeps, const std::string& text, std::size_t room) {
    if (room < text.size() + Spare(capacity)) {
        return std::string(room, keeps ? static_cast<char>(kUntouched) : '\0');
    }
    std::string expected = text.substr(0, room);
    if (room == text.size()) {
        if (capacity == Capacity::Loose) expected.back() = '\0';
        return expected;
    }
    if (capacity != Capacity::Bare) expected += '\0';
    expected.resize(room, keeps ? static_cast<char>(kUntouched) : '\0');
    return expected;
}

TEST(Packing, TextsOfEveryCapacity) {
    const SweepBudget budget;
    for (const Command& command : DistinctCommands()) {
        if (!command.packs() || command.pack == Command::Frame::Own) continue;
        CallerMemory memory;
        const std::vector<std::byte> record = FilledRecord(command, memory);
        const Packed packed = Pack(command, record.data(), record.size());
        ASSERT_EQ(packed.outcome, Outcome::Done) << command.name;
        const bool family = command.pack == Command::Frame::Family;
        const Capacity capacity = family ? command.packFrame.capacity : Capacity::Strict;
        const bool keeps = family && command.packFrame.keepsText;

        const std::size_t most = packed.text.size() + 2;
        const GuardedBuffer buffer(most + kFront);
        const std::size_t step = most / budget.Rounds(4 * most + 2 * record.size(), 16, most);
        for (std::size_t room = 0; room <= most; room += room + 64 < most && room > 64 ? step : 1) {
            std::memset(buffer.data(), static_cast<int>(kUntouched), buffer.size());
            char* const text = buffer.data() + buffer.size() - room;
            const Outcome outcome = RunPack(command, {record.data(), static_cast<std::uint32_t>(record.size()), text,
                                                      static_cast<std::uint32_t>(room)});
            const bool fits = room >= packed.text.size() + Spare(capacity);
            ASSERT_EQ(outcome, fits ? Outcome::Done : Outcome::TextTooLong) << command.name << " " << room;
            ASSERT_EQ(std::string_view(text, room), Expected(capacity, keeps, packed.text, room))
                << command.name << " " << room;
            ASSERT_EQ(std::string_view(text - kFront, kFront), std::string(kFront, static_cast<char>(kUntouched)))
                << command.name << " " << room;
        }
    }
}

// Records of other kinds than a reply gives: lists with several elements, values at their limits, and bytes of any
// kind, half of them zero, in which counts and texts have no end.
std::vector<std::byte> RecordOfKind(const Command& command, CallerMemory& memory, unsigned kind) {
    memory.Reset();
    std::vector<std::byte> record(command.table->size);
    memory.PrepareBuffer(command, record.data(), record.size());
    if (kind < 3) {
        if (!command.parses()) return record;
        const Values values = kind == 1 ? Values::Limits : Values::Typical;
        const std::string text = ReplyText(command, {.values = values, .seed = kind + 1, .most = 3, .records = 1});
        RunParse(command, {text.c_str(), record.data(), command.table->size, nullptr});
        return record;
    }
    std::mt19937_64 random(record.size() + kind);
    for (std::byte& byte : record)
        byte = random() % 2 == 0 ? std::byte{0} : static_cast<std::byte>(random() % 100);
    record::SetSizeWords(*command.table, record.data());
    if (HasPointers(*command.table)) memory.MakePointersSafe(*command.table, record.data());
    return record;
}

// A member that finds much room is put in another way than one that finds little: wherever the room ends, what stands
// in front of its end is the beginning of the whole text, and the length is told.
TEST(Packing, TextsThatFindNoRoomAreTheWholeTextsBeginning) {
    const SweepBudget budget(std::size_t{200} << 20);
    for (const Command& command : DistinctCommands()) {
        if (!command.packs() || command.pack == Command::Frame::Own) continue;
        const record::Table& table = *command.table;
        for (unsigned kind = 0; kind < 4; ++kind) {
            CallerMemory memory;
            const std::vector<std::byte> record = RecordOfKind(command, memory, kind);
            const auto write = [&](json::TextWriter& out) {
                StackArena<4096> arena;
                LocalText local(arena);
                JsonParser parser(local);
                record::WriteCall call{parser, out, nullptr, false, {}};
                record::WriteRecord(table, record.data(), call);
            };
            std::string whole(4096, '\0');
            for (std::size_t length = 0; length == 0;) {
                json::TextWriter ample(whole.data(), whole.size());
                write(ample);
                if (ample.fits()) length = ample.length();
                whole.resize(ample.fits() ? length : 4 * whole.size());
            }
            const std::size_t most = whole.size() + 300;
            const GuardedBuffer buffer(most + kFront);
            const std::size_t rounds = budget.Rounds(16 * (most + record.size()), 12, most);
            for (std::size_t i = 0; i <= rounds; ++i) {
                const std::size_t capacity = i * most / rounds;
                char* const text = buffer.data() + buffer.size() - capacity;
                std::memset(text - kFront, static_cast<int>(kUntouched), kFront);
                json::TextWriter out(text, capacity);
                write(out);
                ASSERT_EQ(out.length(), whole.size()) << command.name << ", kind " << kind << " " << capacity;
                const std::size_t kept = std::min(capacity, whole.size());
                ASSERT_EQ(std::string_view(text, kept), std::string_view(whole).substr(0, kept))
                    << command.name << ", kind " << kind << " " << capacity;
                ASSERT_EQ(std::string_view(text - kFront, kFront), std::string(kFront, static_cast<char>(kUntouched)))
                    << command.name << ", kind " << kind << " " << capacity;
            }
        }
    }
}

} // namespace
} // namespace orrery
