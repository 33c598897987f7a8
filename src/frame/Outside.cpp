#include "frame/Outside.h"

namespace orrery {

void HandOver(EventCallback callback, std::uint32_t type, const void* record, std::uint32_t size, void* user) noexcept {
    callback(type, record, size, nullptr, 0, user);
}

} // namespace orrery
