// Members into key order.
#pragma once

#include "frame/json/Value.h"

namespace orrery::json {

// Sorts `count` members by key, of those with the same key the last one stays, and returns how many stayed. `scratch`
// has room for as many. Takes n log n comparisons whatever the order they came in, since that is the sender's choice.
std::uint32_t SortMembers(Member* members, Member* scratch, std::uint32_t count) noexcept;

} // namespace orrery::json
