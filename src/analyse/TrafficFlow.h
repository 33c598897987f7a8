// Flows of traffic, pictures sent later, lights over parking spaces.
#pragma once

#include "frame/record/Table.h"

#include "orrery/traffic_flow.h"

namespace orrery {

extern const record::TypedTable<CFG_TRAFFICFLOWSTAT_INFO> kTrafficFlowStat;
extern const record::TypedTable<CFG_TRANSFEROFFLINE_INFO> kTransferOffline;
extern const record::TypedTable<CFG_PARKINGSPACELIGHT_INFO> kParkingSpaceLight;

// Clears all but the caller's array and its room.
void ClearTrafficFlowStat(std::byte* record);

} // namespace orrery
