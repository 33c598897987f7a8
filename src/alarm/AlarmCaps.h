// What a device says that its alarm side can do.
#pragma once

#include "frame/record/Table.h"

#include "orrery/alarm_caps.h"

namespace orrery {

extern const record::TypedTable<CFG_ALARM_CAPS> kAlarmCaps;
extern const record::TypedTable<CFG_EX_ALARM_CAPS> kExAlarmCaps;
extern const record::TypedTable<CFG_EX_ALARM_BOX_CAPS> kExAlarmBoxCaps;
extern const record::TypedTable<CFG_ANALOG_ALARM_CAPS> kAnalogAlarmCaps;

} // namespace orrery
