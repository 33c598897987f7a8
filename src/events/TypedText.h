// Texts whose top-level keys tell what they carry.
#pragma once

#include "frame/record/Table.h"

#include "orrery/calls.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace orrery {

namespace events {

struct TypedRow {
    std::uint32_t code;
    std::string_view name; // the key
    const record::Table* table;
    bool isList; // as many records as fit what the callback is told
};

// All that a text may carry besides events, ascending by code.
std::span<const TypedRow> TypedRows() noexcept;
// Null for a code that is none of them.
const TypedRow* FindTyped(std::uint32_t code) noexcept;
// The same by key; case counts.
const TypedRow* FindTyped(std::string_view name) noexcept;

} // namespace events

// Decodes a text and hands over what it carries. The result is that of the last key that was worked on; 0 when there
// was none.
std::int32_t DeliverTyped(const char* text, ORRERY_EVENT_CALLBACK callback, void* user) noexcept;

} // namespace orrery
