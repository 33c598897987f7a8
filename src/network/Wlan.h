// Wireless networks that a device joins.
#pragma once

#include "frame/record/Table.h"

#include "orrery/wlan.h"

namespace orrery {

extern const record::TypedTable<CFG_WLAN_INFO> kWlan;

} // namespace orrery
