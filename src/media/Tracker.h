// Trackers: a fixed camera that steers a dome.
#pragma once

#include "frame/record/Table.h"

#include "orrery/tracker.h"

namespace orrery {

extern const record::TypedTable<CFG_MASTER_SLAVE_GLOBAL_INFO> kMasterSlaveTracker;
extern const record::TypedTable<CFG_CALIBRATE_MATRIX_INFO> kCalibrateMatrix;
extern const record::TypedTable<CFG_MASTER_SLAVE_CAPS> kMasterSlaveCaps;
extern const record::TypedTable<CFG_MASTER_SLAVE_COLLECT> kMasterSlaveCollect;
extern const record::TypedTable<CFG_MASTER_SLAVE_GROUP_INFO> kMasterSlaveGroup;
extern const record::TypedTable<CFG_MASTER_SLAVE_CONFIG_INFO> kMasterSlaveConfig;

// The caller's array, with room in it.
bool HasMatrixRoom(const std::byte* record, std::uint32_t size);

} // namespace orrery
