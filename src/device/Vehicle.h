// Settings of devices in vehicles.
#pragma once

#include "frame/record/Table.h"

#include "orrery/device_vehicle.h"

namespace orrery {

extern const record::TypedTable<CFG_GPS_INFO> kGps;
extern const record::TypedTable<CFG_GPS_LOCATION_VERSION_INFO> kGpsLocationVersion;
extern const record::TypedTable<CFG_OIL_MASS_INFO> kOilMassInfo;
extern const record::TypedTable<CFG_EMERGENCY_RECORD_FOR_PULL_INFO> kEmergencyRecordForPull;

} // namespace orrery
