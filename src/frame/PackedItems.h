// Descriptors of packed buffers, for tools and tests. Behind a pointer to bytes stand items of mixed types, each a head
// and the record of its type; or, without heads, records of the one type that the descriptor tells.
#pragma once

#include "frame/record/Table.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace orrery {

struct ItemType {
    std::uint32_t code = 0;
    std::string_view name; // as texts carry it; empty when no text does
    const record::Table* table = nullptr;
    bool isRead = true; // false: written only
};

struct PackedItems {
    // In the descriptor.
    std::uint32_t pointer = 0;
    record::Slot count; // items
    record::Slot bytes; // behind the pointer
    // In the head; without one, in the descriptor.
    const record::Table* head = nullptr;
    record::Slot code;
    record::Slot size; // of the record that follows; without heads, from one record to the next
    std::uint32_t most = 0;

    std::uint32_t typeCount = 0;
    ItemType (*typeAt)(std::uint32_t index) noexcept = nullptr;
    // A type without a table for a code that is not known.
    ItemType (*typeOf)(std::uint32_t code) noexcept = nullptr;

    std::uint32_t LargestType() const noexcept {
        std::uint32_t largest = 0;
        for (std::uint32_t i = 0; i < typeCount; ++i)
            largest = std::max(largest, typeAt(i).table->size);
        return largest;
    }
};

// What stands behind a descriptor; null for a record that is none.
inline const PackedItems* ItemsBehind(const record::Table& descriptor) noexcept {
    return descriptor.items;
}
// The same where the items have no heads.
inline const PackedItems* BareItemsBehind(const record::Table& descriptor) noexcept {
    return descriptor.items != nullptr && descriptor.items->head == nullptr ? descriptor.items : nullptr;
}

} // namespace orrery
