// Every command whose records move through the caller's size word, for callers of every size from none to twice the
// record: what arrives is the part of a whole record that both layouts have, and not one byte else changes.
#include "frame/record/Engine.h"
#include "support/CommandCalls.h"
#include "support/Specimens.h"
#include "support/TableText.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <set>

namespace orrery {
namespace {

using namespace test;
using record::Cell;
using record::Field;
using record::Table;

using Bytes = std::vector<std::byte>;

constexpr std::uint32_t kWord = 4;

// All sizes of a small record; of a large one those at its edges, at those of its rows, and some between.
std::vector<std::uint32_t> SizesOf(const Table& table) {
    std::set<std::uint32_t> sizes;
    const std::uint32_t most = 2 * table.size;
    if (table.size <= 1024) {
        for (std::uint32_t size = 0; size <= most; ++size)
            sizes.insert(size);
        return {sizes.begin(), sizes.end()};
    }
    const auto around = [&](std::uint32_t edge, std::uint32_t reach) {
        for (std::uint32_t size = edge - std::min(edge, reach); size <= std::min(most, edge + reach); ++size)
            sizes.insert(size);
    };
    for (const std::uint32_t edge : {0u, table.size, most})
        around(edge, 12);
    for (const Field& field : table) {
        if (sizes.size() < 150) around(field.offset + field.size, 1);
    }
    std::mt19937 random(table.size);
    while (sizes.size() < 200)
        sizes.insert(static_cast<std::uint32_t>(random() % most));
    return {sizes.begin(), sizes.end()};
}

// A byte that tells where it stands, so that none can pass for another.
std::byte Old(std::size_t at) {
    return static_cast<std::byte>(0x80 | (at * 7 & 0x7F));
}

template <class Each>
void ForEachPointer(const Table& table, std::size_t at, const Each& each) {
    for (const Field& field : table) {
        if (field.cell == Cell::Pointer) each(at + field.offset, field.size);
        if (field.capacity.exists()) each(at + field.capacity.offset, std::size_t{4});
        if (field.cell != Cell::Record) continue;
        for (std::size_t part = 0; part < field.size; part += field.table->size)
            ForEachPointer(*field.table, at + field.offset + part, each);
    }
}

// What arrives in a record of `size` bytes from one of this library's layout.
void Arrive(const Table& table, Stride stride, const std::byte* whole, std::byte* part, std::uint32_t size) {
    if (stride == Stride::SizeWord) {
        const std::uint32_t both = std::min(size, table.size);
        std::copy(whole + kWord, whole + both, part + kWord);
        return;
    }
    for (const Field& field : table) {
        if (field.alias || field.size == 0 || field.kind == record::Kind::Size) continue;
        if (field.offset + field.size > size) continue;
        for (std::uint32_t at = 0; at < field.size; at += field.elementSize) {
            const std::byte* const from = whole + field.offset + at;
            std::byte* const to = part + field.offset + at;
            if (field.cell != Cell::Char) {
                std::copy_n(from, field.elementSize, to);
                continue;
            }
            bool ended = false;
            for (std::uint32_t i = 0; i < field.elementSize; ++i) {
                ended = ended || from[i] == std::byte{0} || i + 1 == field.elementSize;
                to[i] = ended ? std::byte{0} : from[i];
            }
        }
    }
}

// The same command for callers of this layout alone.
Command Unversioned(const Command& command) {
    Command plain = command;
    plain.parseFrame.stride = plain.packFrame.stride = Stride::Record;
    plain.parseFrame.clearing = Clearing::Kept;
    return plain;
}

// Records as a caller of `size` prepares them: old bytes, the first one's size word, and pointers where there is room.
class Caller {
  public:
    Caller(const Table& table, std::uint32_t size) : table_(table), size_(size) {}

    // A whole record, clear but for its size words and the pointers that a caller of this size has.
    Bytes Whole() {
        Bytes record(table_.size);
        memory_.PrepareRecord(table_, record.data());
        ForEachPointer(table_, 0, [&](std::size_t at, std::size_t width) {
            if (at + width > size_) std::fill_n(record.begin() + static_cast<std::ptrdiff_t>(at), width, std::byte{0});
        });
        return record;
    }
    void Prepare(std::byte* at, const Bytes& whole) const {
        ForEachPointer(table_, 0, [&](std::size_t place, std::size_t width) {
            if (place + width <= size_) std::copy_n(whole.data() + place, width, at + place);
        });
    }

  private:
    const Table& table_;
    std::uint32_t size_;
    CallerMemory memory_;
};

void SweepParse(const Command& command, std::uint32_t size, std::uint32_t records, unsigned seed) {
    SCOPED_TRACE(std::string(command.name) + ", size " + std::to_string(size) + ", records " + std::to_string(records));
    const Table& table = *command.table;
    const std::string text = ReplyText(command, {.values = seed % 2 == 0 ? Values::Limits : Values::Typical,
                                                 .seed = seed,
                                                 .records = records + 1}); // one more than there is room for
    const std::size_t spare = size / 2;                                    // a part of one more
    const GuardedBuffer guarded(std::max<std::size_t>(records * std::size_t{size} + spare, kWord));
    auto* const buffer = reinterpret_cast<std::byte*>(guarded.data());
    const auto length = static_cast<std::uint32_t>(guarded.size());
    for (std::size_t i = 0; i < length; ++i)
        buffer[i] = Old(i);

    Caller caller(table, size);
    std::vector<Bytes> wholes;
    for (std::uint32_t i = 0; i < records; ++i) {
        wholes.push_back(caller.Whole());
        if (size >= kWord) caller.Prepare(buffer + std::size_t{i} * size, wholes.back());
    }
    record::Store(buffer, size);
    Bytes expected(buffer, buffer + length);
    std::uint32_t told = 0;
    if (size < kWord) {
        // Records that move as blocks have their word at least; of others no field moves.
        const bool isTaken = size > 0 && command.parseFrame.stride == Stride::SizeWordByField;
        EXPECT_EQ(RunParse(command, {text.c_str(), buffer, length, &told}),
                  isTaken ? Outcome::Done : Outcome::BufferTooSmall);
        const std::uint32_t taken = TakesMany(command) ? records + 1 : 1; // as many as the text has, all of which fit
        EXPECT_EQ(told, !isTaken ? 0 : size * std::min(taken, length / size));
        EXPECT_TRUE(std::equal(expected.begin(), expected.end(), buffer));
        return;
    }

    Bytes whole;
    for (const Bytes& record : wholes)
        whole.insert(whole.end(), record.begin(), record.end());
    std::uint32_t wholeTold = 0;
    const Outcome outcome = RunParse(
        Unversioned(command), {text.c_str(), whole.data(), static_cast<std::uint32_t>(whole.size()), &wholeTold});
    const std::uint32_t read = TakesMany(command) ? records : 1;
    for (std::uint32_t i = 0; i < read; ++i) {
        const std::byte* const from = whole.data() + std::size_t{i} * table.size;
        std::byte* const to = expected.data() + std::size_t{i} * size;
        const auto word = record::Load<std::uint32_t>(to);
        Arrive(table, command.parseFrame.stride, from, to, size);
        EXPECT_EQ(record::Load<std::uint32_t>(to), word);
    }
    EXPECT_EQ(RunParse(command, {text.c_str(), buffer, length, &told}), outcome);
    EXPECT_EQ(wholeTold / table.size, told / size);
    for (std::size_t i = 0; i < length; ++i) {
        ASSERT_EQ(buffer[i], expected[i]) << "byte " << i << " of\n" << text;
    }
}

void SweepPack(const Command& command, std::uint32_t size, std::uint32_t records, unsigned seed) {
    SCOPED_TRACE(std::string(command.name) + ", size " + std::to_string(size) + ", records " + std::to_string(records));
    const Table& table = *command.table;
    const Command plain = Unversioned(command);
    Caller all(table, 2 * table.size);
    Bytes given;
    Bytes known;
    std::vector<Bytes> blank;
    for (std::uint32_t i = 0; i < records; ++i) {
        Bytes whole = all.Whole();
        const Bytes before = whole;
        std::uint32_t told = 0;
        const std::string text = ReplyText(command, {.seed = seed + i, .records = 1});
        RunParse(plain, {text.c_str(), whole.data(), table.size, &told});
        // The caller's record, whatever its own size word says, and what this library may know of it.
        Bytes called(size);
        for (std::size_t at = 0; at < size; ++at)
            called[at] = Old(at + i);
        if (size >= kWord) Arrive(table, Stride::SizeWord, whole.data(), called.data(), size);
        Bytes local(table.size);
        record::SetSizeWords(table, local.data());
        if (size >= kWord) {
            Bytes padded = called;
            padded.resize(std::max(size, table.size));
            for (std::size_t at = size; at < padded.size(); ++at)
                padded[at] = local[at];
            Arrive(table, command.packFrame.stride, padded.data(), local.data(), size);
        }
        ForEachPointer(table, 0, [&](std::size_t at, std::size_t width) {
            if (at + width > size) std::fill_n(local.begin() + static_cast<std::ptrdiff_t>(at), width, std::byte{0});
        });
        given.insert(given.end(), called.begin(), called.end());
        known.insert(known.end(), local.begin(), local.end());
    }
    if (given.size() < kWord) given.resize(kWord);
    const GuardedBuffer guarded(given.size());
    std::memcpy(guarded.data(), given.data(), given.size());
    std::memcpy(guarded.data(), &size, sizeof size);
    const Packed packed = Pack(command, guarded.data(), guarded.size());
    if (size < kWord) {
        const bool isTaken = size > 0 && command.packFrame.stride == Stride::SizeWordByField;
        EXPECT_EQ(packed.outcome, isTaken ? Outcome::Done : Outcome::RecordTooSmall);
        return;
    }
    const Packed expected = Pack(plain, known.data(), known.size());
    EXPECT_EQ(packed.outcome, expected.outcome);
    EXPECT_EQ(packed.text, expected.text);
}

bool IsVersioned(const Command& command) {
    return command.parse == Command::Frame::Family && command.parseFrame.stride != Stride::Record;
}

TEST(Versioned, EveryCallersSizeReadsWhatBothLayoutsHave) {
    for (const Command& command : DistinctCommands()) {
        if (!IsVersioned(command)) continue;
        const bool manyFit = TakesMany(command) && !command.parseFrame.exactSize;
        unsigned seed = 1;
        for (const std::uint32_t size : SizesOf(*command.table)) {
            for (const std::uint32_t records : {1u, 3u}) {
                if (records == 1 || manyFit) SweepParse(command, size, records, ++seed);
                if (testing::Test::HasFailure()) return;
            }
        }
    }
}

TEST(Versioned, EveryCallersSizeWritesWhatBothLayoutsHave) {
    for (const Command& command : DistinctCommands()) {
        if (command.pack != Command::Frame::Family || command.packFrame.stride == Stride::Record) continue;
        const bool manyFit = command.packFrame.form != Form::One && !command.packFrame.exactSize;
        unsigned seed = 1;
        for (const std::uint32_t size : SizesOf(*command.table)) {
            for (const std::uint32_t records : {1u, 3u}) {
                if (records == 1 || manyFit) SweepPack(command, size, records, ++seed);
                if (testing::Test::HasFailure()) return;
            }
        }
    }
}

TEST(Versioned, SizeWordsBeyondTheBufferTouchNothing) {
    for (const Command& command : DistinctCommands()) {
        if (!IsVersioned(command)) continue;
        const std::string text = ReplyText(command);
        const std::uint32_t size = command.table->size;
        for (const std::uint32_t word : {size + 1, size + 4, 0x80000000u, 0xFFFFFFFFu}) {
            Bytes buffer(size, Old(1));
            record::Store(buffer.data(), word);
            const Bytes before = buffer;
            EXPECT_EQ(RunParse(command, {text.c_str(), buffer.data(), size, nullptr}), Outcome::BufferTooSmall);
            EXPECT_EQ(buffer, before) << command.name;
        }
        for (std::uint32_t bytes = 1; bytes < kWord; ++bytes) {
            Bytes buffer(bytes, std::byte{1});
            EXPECT_EQ(RunParse(command, {text.c_str(), buffer.data(), bytes, nullptr}), Outcome::BufferTooSmall);
        }
    }
}

} // namespace
} // namespace orrery
