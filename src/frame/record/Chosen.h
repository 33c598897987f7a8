// Objects of which only some keys are read or written, because something outside the record settles what it holds.
#pragma once

#include "frame/record/Engine.h"

namespace orrery::record {

// Rows of a table, by what a family tells of them. Their keys lie in the record's own object.
struct RowChoice {
    bool (*takes)(const Field& row, unsigned what) noexcept;
    unsigned what;
};

// Reads the chosen rows from the members of an object, over what the record already holds.
void ReadChosen(const Table& table, const json::Value& object, std::byte* record, ReadCall& call,
                RowChoice chosen) noexcept;
// Writes them as an object under the key of the row that is being written; no key when none of them writes anything.
// Of rows with one key at most one may be chosen.
void WriteChosen(const Table& table, const std::byte* record, WriteCall& call, RowChoice chosen) noexcept;

} // namespace orrery::record
