// A record as JSON by the names of its fields: the form that `parse` prints and `pack` takes.
#pragma once

#include "orrery/Output.h"

#include "frame/record/Table.h"

#include <optional>

namespace orrery::tool {

struct PrintOptions {
    bool all = false;   // lists with a count are printed whole, not only what is in use
    bool brief = false; // what is zero, empty or as it is without a text is left out
};

// A pointer is followed for as many elements as the record's count and capacity say; with neither it leads to a text
// or to one record.
Node PrintRecord(const record::Table& table, const std::byte* record, PrintOptions options = {});
// One element of a field, at its place, and what stands behind a pointer of a record.
Node PrintCell(const record::Field& field, const std::byte* at, PrintOptions options = {});
Node PrintBehind(const record::Table& table, const record::Field& pointer, const std::byte* record,
                 PrintOptions options = {});
// `count` records, one behind the other.
Node PrintRecords(const record::Table& table, const std::byte* first, std::size_t count, PrintOptions options = {});
// The member at a path such as "stuObject.nObjectID" or "stuTours[0].szName"; nothing when the record has none there.
std::optional<Node> PrintMember(const record::Table& table, const std::byte* record, std::string_view path,
                                PrintOptions options = {});

// The same as the two above, on one line.
void AppendRecord(LineWriter& line, const record::Table& table, const std::byte* record, PrintOptions options = {});
void AppendRecords(LineWriter& line, const record::Table& table, const std::byte* first, std::size_t count,
                   PrintOptions options = {});

} // namespace orrery::tool
