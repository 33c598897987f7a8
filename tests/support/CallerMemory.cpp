#include "support/CallerMemory.h"

#include "frame/PackedItems.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <cstring>

namespace orrery::test {

using record::Cell;
using record::Field;
using record::Table;

bool HasPointers(const Table& table) {
    return std::any_of(table.begin(), table.end(), [](const Field& field) {
        return field.cell == Cell::Pointer || (field.cell == Cell::Record && HasPointers(*field.table));
    });
}

std::byte* CallerMemory::Block(const Table& table, std::uint32_t count) {
    const std::size_t size = std::size_t{table.size} * count;
    if (used_ == blocks_.size()) {
        blocks_.push_back(std::make_unique<std::byte[]>(size));
        sizes_.push_back(size);
    } else if (sizes_[used_] != size) {
        blocks_[used_] = std::make_unique<std::byte[]>(size);
        sizes_[used_] = size;
    }
    std::byte* const block = blocks_[used_++].get();
    std::memset(block, 0, size);
    for (std::uint32_t i = 0; i < count; ++i) {
        record::SetSizeWords(table, block + std::size_t{i} * table.size);
        if (HasPointers(table)) MakePointersSafe(table, block + std::size_t{i} * table.size);
    }
    return block;
}

void CallerMemory::MakePointersSafe(const Table& table, std::byte* record) {
    constexpr std::uint32_t kItemRoom = 1200 << 10;
    for (const Field& field : table) {
        std::byte* const at = record + field.offset;
        const PackedItems* const items = field.cell == Cell::Pointer ? ItemsBehind(table) : nullptr;
        if (items != nullptr) {
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
            for (std::uint32_t i = 0; i < field.size / field.table->size; ++i)
                MakePointersSafe(*field.table, at + std::size_t{i} * field.table->size);
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
