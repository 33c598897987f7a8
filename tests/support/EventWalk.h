// Every byte of an event's record and of every block that it points to, found by its table.
#pragma once

#include "frame/record/Engine.h"

#include <cstdlib>

namespace orrery::test {

// A sum over all that a client may read, so that nothing of it is optimised away.
inline std::uint64_t SumOfRecord(const record::Table& table, const std::byte* record) {
    std::uint64_t sum = 0;
    const auto add = [&sum](const void* at, std::size_t size) {
        for (std::size_t i = 0; i < size; ++i)
            sum = sum * 31 + static_cast<const unsigned char*>(at)[i];
    };
    for (const record::Field& field : table) {
        if (field.cell == record::Cell::Pointer) {
            const auto* const block = record::Load<const std::byte*>(record + field.offset);
            if (field.table == nullptr) {
                if (block != nullptr) add(block, std::strlen(reinterpret_cast<const char*>(block)) + 1);
                continue;
            }
            const std::int64_t count = record::LoadSlot(field.count, record);
            if ((block == nullptr) != (count == 0)) std::abort(); // a count without records, or records without one
            for (std::int64_t i = 0; i < count; ++i)
                sum += SumOfRecord(*field.table, block + static_cast<std::size_t>(i) * field.table->size);
            continue;
        }
        add(record + field.offset, field.size);
        if (field.cell != record::Cell::Record || field.table == nullptr || field.size == 0) continue;
        for (std::uint32_t at = 0; at < field.size; at += field.table->size)
            sum += SumOfRecord(*field.table, record + field.offset + at);
        // Counts of lists inside the record stay inside it.
        if (field.count.exists()) {
            const std::int64_t count = record::LoadSlot(field.count, record);
            if (count < 0 || count * field.table->size > field.size) std::abort();
        }
    }
    return sum;
}

} // namespace orrery::test
