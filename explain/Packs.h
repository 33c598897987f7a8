// What of records does not reach the text that they are packed into.
#pragma once

#include "explain/Explain.h"

#include <cstddef>
#include <cstdint>

namespace orrery::explain {

// The findings' paths are members: "stuServers[1].nPort", behind "[2]." where there are several records; they have no
// place in a text. `tries` false tells only of whole records. Throws std::bad_alloc.
Explanation ExplainRecords(const Command& command, const std::byte* records, std::uint32_t size, bool tries = true);

} // namespace orrery::explain
