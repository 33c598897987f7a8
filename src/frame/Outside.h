// Calls of functions that are not this library's.
#pragma once

#include <cstdint>

#include "orrery/orrery.h"

namespace orrery {

// Hands a record to a client's callback. An exception, or the end of the thread, that would come back out of it ends
// the program here: it would leave behind all that the call holds.
void HandOver(ORRERY_EVENT_CALLBACK callback, std::uint32_t type, const void* record, std::uint32_t size,
              void* user) noexcept;

} // namespace orrery
