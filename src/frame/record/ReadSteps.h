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
// One number of a mask at `at`; what the mask has no bit for is passed over.
inline void SetBit(const Field& field, std::byte* at, std::int32_t number) noexcept {
    const std::int32_t bits = static_cast<std::int32_t>(field.dims[0]) * 32;
    if (number >= bits || number < (field.kind == Kind::BitMaskLoose ? -31 : 0)) return;
    std::byte* const word = at + static_cast<std::size_t>(number / 32) * 4; // -31 to -1 divide to word 0
    Store(word, Load<std::uint32_t>(word) | std::uint32_t{1} << (static_cast<std::uint32_t>(number) & 31));
}
// The value at a node's key; null when there is none.
void ReadNode(const Table& table, const Node& node, const json::Value& value, std::byte* record,
              ReadCall& call) noexcept;
// One element of a field, or the whole member for the kinds that take it at once. False when a nested table refused.
bool ReadElement(const Field& field, const json::Value& value, std::byte* at, ReadCall& call,
                 std::string_view memberName) noexcept;

} // namespace orrery::record
