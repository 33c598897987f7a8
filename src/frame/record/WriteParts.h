// What the parts of the writing engine know of each other: rows, runs of rows, lists and single values.
#pragma once

#include "frame/json/Pen.h"
#include "frame/record/Engine.h"

namespace orrery::record {

// ---- Values ------------------------------------------------------------------------------------------------------

double LoadReal(const Field& field, const std::byte* at) noexcept;

// The row of a name table that a field's code writes.
const Name* NameAt(const Field& field, const std::byte* at) noexcept;

bool IsElementWritten(const Field& field, const std::byte* at) noexcept;
// The numbers of the bits that are set in `size` bytes of words; nothing when there are none.
bool IsZero(const std::byte* at, std::size_t size) noexcept;
void WriteMask(const std::byte* at, std::size_t size, json::TextWriter& out) noexcept;
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
    return node.way >= Way::Switch && node.way <= Way::Named;
}
// Whether what the node's row is written by, if there is such a member, lets it out.
inline bool IsLetOut(const Node& node, const std::byte* record) noexcept {
    if (!node.isGated()) return true;
    const std::byte* const gate = record + node.gate;
    if (node.gateCell <= Cell::U8) [[likely]]
        return *gate != std::byte{0};
    return LoadInteger(node.gateCell, gate) != 0;
}
// What a row says, whatever its words; `call` has its key.
void WriteField(const Field& field, const std::byte* record, WriteCall& call) noexcept;
// The members of an object from `at` on, where at the offset `first` none stands yet, as json::Hand has it. The object
// that keys go to is open.
char* PutNodes(const Table& table, const NodeRange& range, const std::byte* record, WriteCall& call, char* at,
               std::size_t first) noexcept;
// The object of such members as a value. Null when there is none, and nothing stands there.
inline char* PutObject(const Table& table, const NodeRange& range, const std::byte* record, WriteCall& call,
                       char* at) noexcept {
    const json::Hand hand(call.out);
    const std::size_t first = hand.OffsetOf(at);
    char* const end = PutNodes(table, range, record, call, at, first);
    char* const bracket = hand.PlaceOf(first);
    if (end == bracket) return nullptr;
    std::memcpy(bracket, "{ ", 2);
    return hand.Close(end, " }");
}
// The member of a list. Null for one that the writer has to write, with nothing written.
char* PutList(const Table& table, const Node& node, const std::byte* record, WriteCall& call, char* at) noexcept;
// A record that stands as an array of values. Null, with nothing written, when one of them finds no room, is converted
// or is no scalar.
char* PutTuple(const Table& table, const std::byte* record, const WriteCall& call, char* at) noexcept;
// The array that a record stands as.
void WriteTuple(const Table& table, const std::byte* record, WriteCall& call) noexcept;
// Records one behind the other as the elements of an array; their table lets all of them out.
void WriteRecords(const Table& table, const std::byte* first, std::uint32_t count, std::uint32_t stride,
                  WriteCall& call) noexcept;
// Writes what a node says that is no scalar and is let out.
void WriteNode(const Table& table, const Node& node, const std::byte* record, WriteCall& call) noexcept;

} // namespace orrery::record
