// Faults that a device watches itself for.
#pragma once

#include "frame/record/Table.h"

#include "orrery/alarm_device_faults.h"

namespace orrery {

extern const record::TypedTable<CFG_FAULT_ALARM_INFO> kFaultAlarm;
extern const record::TypedTable<CFG_FAULT_ALARM_INFO> kUserLockAlarm;
extern const record::TypedTable<CFG_LOGIN_FAILURE_INFO> kLoginFailure;
extern const record::TypedTable<CFG_NOTIFY_FAULT_INFO> kNotifyFault;
extern const record::TypedTable<CFG_UNFOCUS_DETECT_INFO> kUnFocusDetect;
extern const record::TypedTable<CFG_POWER_FAULT_INFO> kPowerFault;
extern const record::TypedTable<CFG_BURN_FULL_INFO> kBurnFull;
extern const record::TypedTable<CFG_FLUX_ALARM_INFO> kFluxAlarm;
extern const record::TypedTable<CFG_CLIMATE_ALARM_INFO> kClimateAlarm;

} // namespace orrery
