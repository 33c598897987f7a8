// The device's own place on the network.
#pragma once

#include "frame/record/Table.h"

#include "orrery/network.h"

namespace orrery {

extern const record::TypedTable<CFG_NETWORK_INFO> kNetwork;
extern const record::TypedTable<CFG_RTSP_INFO> kRtsp;

} // namespace orrery
