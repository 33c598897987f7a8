// The ranges that the public headers tell of members.
#pragma once

#include "frame/record/Field.h"

#include <cstdint>

namespace orrery::explain {

struct Range {
    std::int64_t low, high; // both included
};

// Null for a row whose member has none.
const Range* RangeOf(const record::Field& field);

} // namespace orrery::explain
