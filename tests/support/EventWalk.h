// Every byte of an event's record and of every block that it points to, found by its table.
#pragma once

#include "frame/record/Engine.h"

#include "orrery/helpers.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace orrery::test {

// Reads all that a client may read. The sum is of some of it.
inline std::uint64_t SumOfRecord(const record::Table& table, const std::byte* record) {
    std::uint64_t sum = 0;
    // In blocks: copying looks at each byte too, and takes a hundredth of the time that adding them up does.
    const auto add = [&sum](const void* at, std::size_t size) {
        thread_local unsigned char copy[2048];
        for (std::size_t from = 0; from < size; from += sizeof copy) {
            const std::size_t part = std::min(sizeof copy, size - from);
            std::memcpy(copy, static_cast<const std::byte*>(at) + from, part);
            asm volatile("" : : "r"(copy) : "memory"); // the copy is needed whole
            sum = sum * 31 + copy[0] + copy[part - 1];
        }
    };
    for (const record::Field& field : table) {
        if (field.cell == record::Cell::Pointer) {
            const auto* const block = record::Load<const std::byte*>(record + field.offset);
            if (field.table == nullptr) {
                if (block != nullptr) add(block, std::strlen(reinterpret_cast<const char*>(block)) + 1);
                continue;
            }
            const std::int64_t one = block != nullptr ? 1 : 0; // without a count a pointer leads to one record
            const std::int64_t count = field.count.exists() ? record::LoadSlot(field.count, record) : one;
            if ((block == nullptr) != (count == 0)) std::abort(); // a count without records, or records without one
            for (std::int64_t i = 0; i < count; ++i)
                sum += SumOfRecord(*field.table, block + static_cast<std::size_t>(i) * field.table->size);
            continue;
        }
        if (field.cell != record::Cell::Record || field.table == nullptr || field.size == 0) {
            add(record + field.offset, field.size);
            continue;
        }
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

// Keeps what a callback was handed, as a client does whose events outlive it, and reads the copy. Of copies that are
// too long for this only the size is asked.
template <class Read>
void ReadCopy(std::uint32_t type, const void* record, std::uint32_t size, Read read) {
    constexpr std::size_t kRoom = std::size_t{256} << 10, kBehind = 64;
    alignas(std::max_align_t) static std::byte room[kRoom + kBehind];
    constexpr std::byte kFilling{0xA5};
    const std::uint32_t needed = ORRERY_CopyEvent(type, record, size, nullptr, 0);
    if (needed == 0 && size != 0) std::abort();
    if (needed == 0 || needed > kRoom) return;
    std::memset(room, static_cast<int>(kFilling), needed + kBehind);
    const auto isUntouched = [](const std::byte* from, const std::byte* to) {
        return std::all_of(from, to, [](std::byte byte) { return byte == kFilling; });
    };
    if (ORRERY_CopyEvent(type, record, size, room, needed - 1) != needed) std::abort();
    if (!isUntouched(room, room + std::min<std::size_t>(needed, kBehind))) std::abort();
    if (ORRERY_CopyEvent(type, record, size, room, needed) != needed) std::abort();
    if (!isUntouched(room + needed, room + needed + kBehind)) std::abort();
    read(static_cast<const std::byte*>(room));
}

// A client that reads all of each event, and where it keeps copies reads the same from them.
struct EventReader {
    std::uint64_t total = 0;
    bool keepsCopies = false;

    // `sumOf` answers the sum of a record of `size` bytes.
    template <class SumOf>
    void Read(std::uint32_t type, const void* record, std::uint32_t size, SumOf sumOf) {
        if (record == nullptr) std::abort();
        const std::uint64_t sum = sumOf(static_cast<const std::byte*>(record));
        total += sum;
        if (!keepsCopies) return;
        ReadCopy(type, record, size, [&](const std::byte* copy) {
            if (sumOf(copy) != sum) std::abort();
        });
    }
};

} // namespace orrery::test
