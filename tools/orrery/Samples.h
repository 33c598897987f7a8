// What devices send for a row that a function reads.
#pragma once

#include "frame/record/Table.h"

#include <cstddef>

namespace orrery::tool {

// A value in JSON that says something to the function; null where none is known.
const char* SampleOf(const record::Table& table, const record::Field& field);

// Values that are told here, beside those that functions bring themselves.
std::size_t SamplesToldHere();

} // namespace orrery::tool
