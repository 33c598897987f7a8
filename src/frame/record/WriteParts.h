// What the parts of the writing engine know of each other: rows, runs of rows, lists and single values.
#pragma once

#include "frame/record/Engine.h"

namespace orrery::record {

// ---- Values ------------------------------------------------------------------------------------------------------

double LoadReal(const Field& field, const std::byte* at) noexcept;

// The row of a name table that a field's code writes.
const Name* NameAt(const Field& field, const std::byte* at) noexcept;

bool IsElementWritten(const Field& field, const std::byte* at) noexcept;
// One element as a value. What has no text of its own is null in its place.
void WriteElement(const Field& field, const std::byte* at, WriteCall& call) noexcept;
// The elements of a member from a level of its dimensions on.
void WriteLevels(const Field& field, int level, const std::byte* at, WriteCall& call) noexcept;

// ---- Lists -------------------------------------------------------------------------------------------------------

// The elements of a list with a count of its own, or behind a pointer.
void WriteList(const Field& field, const std::byte* record, WriteCall& call) noexcept;
// The record's keys and the names of its list in one order.
void WriteAmongKeys(const Table& table, const std::byte* record, WriteCall& call) noexcept;

// ---- Rows --------------------------------------------------------------------------------------------------------

void WriteNodes(const Table& table, NodeRange range, const std::byte* record, WriteCall& call) noexcept;

// Whether a node is one value whose row says nothing of writing.
inline bool IsScalar(const Node& node) noexcept {
    return node.writePlainly >= Plainly::Switch && node.writePlainly <= Plainly::Named;
}
// Whether the row's presence flag, if it has one, lets it out.
inline bool IsFlagged(const Node& node, const std::byte* record) noexcept {
    if (!node.flag.exists()) return true;
    const std::byte* const flag = record + node.flag.offset;
    switch (node.flag.cell) {
    case Cell::I8:
    case Cell::U8:
        return *flag != std::byte{0};
    case Cell::I32:
    case Cell::U32:
        return Load<std::uint32_t>(flag) != 0;
    default:
        return LoadInteger(node.flag.cell, flag) != 0;
    }
}
// What a row says, whatever its words; `call` has its key.
void WriteField(const Field& field, const std::byte* record, WriteCall& call) noexcept;
// The array that a record stands as.
void WriteTuple(const Table& table, const std::byte* record, WriteCall& call) noexcept;
// Whether a record is let out, whatever it holds.
inline bool IsAlwaysWritten(const Table& table) noexcept {
    return !table.guarded && table.writes == nullptr;
}
// Writes what a node says that is no scalar and is let out by its flag.
void WriteNode(const Table& table, const Node& node, const std::byte* record, WriteCall& call) noexcept;

} // namespace orrery::record
