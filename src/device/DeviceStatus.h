// What a device says of its state.
#pragma once

#include "frame/record/Table.h"

#include "orrery/device_status.h"

namespace orrery {

extern const record::TypedTable<CFG_DEVICE_STATUS> kDeviceStatus;
extern const record::TypedTable<CFG_TRAFFIC_SNAP_DEVICE_STATUS> kTrafficSnapDeviceStatus;
extern const record::TypedTable<CFG_VIDEO_STAT_SUMMARY> kVideoStatSummary;

} // namespace orrery
