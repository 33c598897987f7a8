// The devices' own protocol and the servers that they register with.
#pragma once

#include "frame/record/Table.h"

#include "orrery/network_services.h"

namespace orrery {

extern const record::TypedTable<CFG_DVRIP_INFO> kDvrip;

} // namespace orrery
