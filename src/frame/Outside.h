// Calls of functions that are not this library's.
#pragma once

#include <cstdint>

namespace orrery {

// As ORRERY_EVENT_CALLBACK, which stands in a header of all families.
using EventCallback = std::int32_t (*)(std::uint32_t type, const void* record, std::uint32_t size, void* reserved,
                                       std::int32_t sequence, void* user);

// Hands a record to a client's callback. An exception, or the end of the thread, that would come back out of it ends
// the program here: it would leave behind all that the call holds.
void HandOver(EventCallback callback, std::uint32_t type, const void* record, std::uint32_t size, void* user) noexcept;

} // namespace orrery
