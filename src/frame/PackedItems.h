// Descriptors of packed buffers, for tools and tests: items of mixed types behind a pointer to bytes, each a head and
// the record of its type.
#pragma once

#include "frame/record/Table.h"

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
    // In the head.
    const record::Table* head = nullptr;
    record::Slot code;
    record::Slot size; // of the record that follows
    std::uint32_t most = 0;

    std::uint32_t typeCount = 0;
    ItemType (*typeAt)(std::uint32_t index) noexcept = nullptr;
    // A type without a table for a code that is not known.
    ItemType (*typeOf)(std::uint32_t code) noexcept = nullptr;
};

// What stands behind a descriptor; null for a record that is none.
inline const PackedItems* ItemsBehind(const record::Table& descriptor) noexcept {
    return descriptor.items;
}

} // namespace orrery
