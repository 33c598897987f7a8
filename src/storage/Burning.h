// Recordings burned to disks.
#pragma once

#include "frame/record/Table.h"

#include "orrery/burning.h"

namespace orrery {

extern const record::TypedTable<CFG_BURN_RECORD_FORMAT_INFO> kBurnRecordFormat;
extern const record::TypedTable<CFG_MULTI_BURN_INFO> kMultiBurn;
extern const record::TypedTable<CFG_BURN_PLAN_INFO> kBurnPlan;
extern const record::TypedTable<CFG_BURN_MANAGER_CAPS> kBurnManagerCaps;

// Leaves the caller's arrays alone.
void ClearBurnPlan(std::byte* record);

} // namespace orrery
