// Disks: arrays of them, pools, positions and enclosures.
#pragma once

#include "frame/Frames.h"
#include "frame/record/Table.h"

#include "orrery/storage_disks.h"

namespace orrery {

extern const record::TypedTable<CFG_RAID_GROUP_INFO> kRaidGroup;
extern const record::TypedTable<CFG_STORAGE_POOL_GROUP_INFO> kStoragePoolGroup;
extern const record::TypedTable<CFG_STORAGE_POSITION_GROUP_INFO> kStoragePositionGroup;
extern const record::TypedTable<CFG_HARD_DISK_TANK_INFO> kHardDiskTank;
extern const record::TypedTable<CFG_RAID_INFO> kRaids;

// Tells the log that there was no memory for the names that arrays are written under.
void LogRaidPack(Outcome outcome, const PackRequest& request) noexcept;

} // namespace orrery
