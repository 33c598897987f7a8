// A record as JSON by the names of its fields: the form that `parse` prints and `pack` takes.
#pragma once

#include "orrery/Output.h"

#include "frame/record/Table.h"

namespace orrery::tool {

struct PrintOptions {
    bool all = false; // lists with a count are printed whole, not only what is in use
};

// A pointer is followed for as many elements as the record's count and capacity say.
Node PrintRecord(const record::Table& table, const std::byte* record, PrintOptions options = {});
// `count` records, one behind the other.
Node PrintRecords(const record::Table& table, const std::byte* first, std::size_t count, PrintOptions options = {});

} // namespace orrery::tool
