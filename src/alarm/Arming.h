// Arming: profiles, subsystems, delays, analog inputs, what an alarm links to.
#pragma once

#include "frame/record/Table.h"

#include "orrery/alarm_device_arming.h"

namespace orrery {

extern const record::TypedTable<CFG_COMM_GLOBAL_INFO> kCommGlobal;
extern const record::TypedTable<CFG_ALARM_SUB_SYSTEM_INFO> kAlarmSubSystem;
extern const record::TypedTable<CFG_DEFENCE_AREA_DELAY_INFO> kDefenceAreaDelay;
extern const record::TypedTable<CFG_ALARM_SHIELD_RULE_INFO> kAlarmShieldRule;
extern const record::TypedTable<CFG_SENSOR_SAMPLING_INFO> kSensorSampling;
extern const record::TypedTable<CFG_SNAP_LINKAGE_INFO> kSnapLinkage;
extern const record::TypedTable<CFG_ANALOG_ALARM_INFO> kAnalogAlarm;

} // namespace orrery
