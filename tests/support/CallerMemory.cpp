#include "support/CallerMemory.h"

#include "frame/PackedItems.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace orrery::test {

using record::Cell;
using record::Field;
using record::Table;

bool HasPointers(const Table& table) {
    return std::any_of(table.begin(), table.end(), [](const Field& field) {
        return field.cell == Cell::Pointer || (field.cell == Cell::Record && HasPointers(*field.table));
    });
}

std::vector<std::byte> CallerMemory::Contents() const {
    std::vector<std::byte> contents;
    for (std::size_t i = 0; i < used_; ++i)
        contents.insert(contents.end(), blocks_[i].get(), blocks_[i].get() + sizes_[i]);
    return contents;
}

std::size_t CallerMemory::size() const {
    return std::accumulate(sizes_.begin(), sizes_.begin() + static_cast<std::ptrdiff_t>(used_), std::size_t{0});
}

void CallerMemory::PutContents(const std::vector<std::byte>& contents) {
    const std::byte* from = contents.data();
    for (std::size_t i = 0; i < used_; from += sizes_[i++])
        std::memcpy(blocks_[i].get(), from, sizes_[i]);
}

std::byte* CallerMemory::Bytes(std::size_t size) {
    if (used_ == blocks_.size()) {
        blocks_.push_back(std::make_unique<std::byte[]>(size));
        sizes_.push_back(size);
    } else if (sizes_[used_] != size) {
        blocks_[used_] = std::make_unique<std::byte[]>(size);
        sizes_[used_] = size;
    }
    std::byte* const block = blocks_[used_++].get();
    std::memset(block, 0, size);
    return block;
}

std::byte* CallerMemory::Block(const Table& table, std::uint32_t count) {
    std::byte* const block = Bytes(std::size_t{table.size} * count);
    for (std::uint32_t i = 0; i < count; ++i) {
        record::SetSizeWords(table, block + std::size_t{i} * table.size);
        if (HasPointers(table)) MakePointersSafe(table, block + std::size_t{i} * table.size);
    }
    return block;
}

// Room for two records of any type; but what the last descriptor with room has begins at an odd address and ends within
// the first or second record of most types.
void CallerMemory::LendItems(const PackedItems& items, const Table& table, std::byte* descriptor, Place place) {
    std::byte* const at = descriptor + items.pointer;
    record::Store(at, static_cast<std::byte*>(nullptr));
    if (place.index >= room_) return;
    const bool isCut = place.index + 1 == room_ && room_ < place.count;
    const std::size_t bytes = std::size_t{2} * items.LargestType() / (isCut ? 7 : 1);
    std::byte* const first = Bytes(bytes + 1) + (isCut ? 1 : 0);
    record::Store(at, first);
    record::StoreSlot(items.bytes, descriptor, static_cast<std::int64_t>(bytes));
    if (std::all_of(descriptor, at, [](std::byte b) { return b == std::byte{0}; })) return;
    // A record of any bytes: its items are of some type and of such bytes too. One in four keeps its count and stride.
    for (std::size_t copied = 0; copied < bytes; copied += table.size)
        std::memcpy(first + copied, descriptor, std::min<std::size_t>(table.size, bytes - copied));
    const auto code = static_cast<std::uint32_t>(record::LoadSlot(items.code, descriptor));
    ItemType type = items.typeOf(code);
    if (type.table == nullptr) type = items.typeAt(code % items.typeCount);
    record::StoreSlot(items.code, descriptor, type.code);
    if (code % 4 == 3) return;
    record::StoreSlot(items.size, descriptor, type.table->size);
    const auto room = static_cast<std::int64_t>(bytes / type.table->size);
    const std::int64_t count = record::LoadSlot(items.count, descriptor);
    if (count < 0 || count > room) record::StoreSlot(items.count, descriptor, code / 4 % (room + 1));
}

void CallerMemory::MakePointersSafe(const Table& table, std::byte* record, Place place) {
    constexpr std::uint32_t kItemRoom = 1200 << 10;
    for (const Field& field : table) {
        std::byte* const at = record + field.offset;
        const PackedItems* const items = field.cell == Cell::Pointer ? ItemsBehind(table) : nullptr;
        if (items != nullptr && items->head == nullptr) {
            LendItems(*items, table, record, place);
        } else if (items != nullptr) {
            // Room for three items of any type, in bytes.
            const std::uint32_t heads = kItemRoom / field.table->size;
            record::Store(at, Block(*field.table, heads));
            record::StoreSlot(items->bytes, record, heads * field.table->size);
        } else if (field.cell == Cell::Pointer) {
            const std::uint32_t room = field.single ? 1 : room_;
            record::Store(at, Block(*field.table, room));
            if (field.capacity.exists())
                record::StoreSlot(field.capacity, record, room);
            else if (field.count.exists() && record::LoadSlot(field.count, record) > room)
                record::StoreSlot(field.count, record, room);
        } else if (field.cell == Cell::Record && field.capacity.exists()) {
            record::StoreSlot(field.capacity, record, field.dims[0]); // an array of the record that is lent whole
            for (std::uint32_t i = 0; i < field.dims[0] && HasPointers(*field.table); ++i)
                MakePointersSafe(*field.table, at + std::size_t{i} * field.table->size);
        } else if (field.cell == Cell::Record && HasPointers(*field.table)) {
            const std::uint32_t count = field.size / field.table->size;
            for (std::uint32_t i = 0; i < count; ++i)
                MakePointersSafe(*field.table, at + std::size_t{i} * field.table->size, {i, count});
        }
    }
}

void CallerMemory::PrepareRecord(const Table& table, std::byte* record) {
    std::memset(record, 0, table.size);
    record::SetSizeWords(table, record);
    if (HasPointers(table)) MakePointersSafe(table, record);
}

void CallerMemory::PrepareBuffer(const Command& command, std::byte* buffer, std::size_t size) {
    if (command.otherTable != nullptr && command.otherTable->size == size)
        return PrepareRecord(*command.otherTable, buffer);
    const Table& table = *command.table;
    const bool looks = !command.parses() ? true // what it writes is behind them
                       : command.parse == Command::Frame::Generic
                           ? !command.genericFrame.zeroBuffer
                           : command.parse == Command::Frame::Own || command.parseFrame.clearing != Clearing::Buffer
                                 || command.parseFrame.stride != Stride::Record
                                 || command.parseFrame.accepts != nullptr;
    if (!looks || !(table.hasSizeWords || HasPointers(table))) return;
    for (std::size_t at = 0; at + table.size <= size; at += table.size)
        PrepareRecord(table, buffer + at);
}

} // namespace orrery::test
