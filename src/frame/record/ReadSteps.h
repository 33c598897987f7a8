// Steps of reading that both of its roads take: from a document (Read.cpp) and from the text itself (ReadText.cpp).
#pragma once

#include "frame/record/Engine.h"

namespace orrery::record {

// What a record inside another starts with, and the name under which it stands for those that keep it.
void StartNamed(const Table& table, std::byte* at, ReadCall& call, std::string_view memberName) noexcept;
// Flags that start anew, and what the call carries along.
void StartFields(const Table& table, std::byte* record, ReadCall& call) noexcept;
// Where the elements of a list are: inside the record, or behind the record's pointer.
struct Elements {
    std::byte* first;
    std::uint32_t room;
};
Elements ElementsOf(const Field& field, std::byte* record, std::uint32_t listSize) noexcept;
// What an element behind a pointer starts with. False when it must not be touched.
bool StartPointed(const Field& field, std::byte* at, ReadCall& call) noexcept;
// The value at a node's key; null when there is none.
void ReadNode(const Table& table, const Node& node, const json::Value& value, std::byte* record,
              ReadCall& call) noexcept;
// One element of a field, or the whole member for the kinds that take it at once. False when a nested table refused.
bool ReadElement(const Field& field, const json::Value& value, std::byte* at, ReadCall& call,
                 std::string_view memberName) noexcept;

} // namespace orrery::record
