// Multicast groups, in records whose callers tell by size words how much of them they know.
#pragma once

#include "frame/Frames.h"

#include "orrery/network.h"

namespace orrery {

extern const record::TypedTable<CFG_MULTICAST_INFO> kMulticast;

Outcome ParseMulticast(const ParseRequest& request) noexcept;

} // namespace orrery
