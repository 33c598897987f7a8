// Alarms of a device's own.
#pragma once

#include "frame/record/Table.h"

#include "orrery/device_alarm.h"

namespace orrery {

extern const record::TypedTable<CFG_REMOTE_EVENT_INFO> kRemoteEvent;
extern const record::TypedTable<CFG_ALARM_BELL_INFO> kAlarmBell;
extern const record::TypedTable<CFG_ALARM_SLOT_BOND_INFO> kAlarmSlotBond;
extern const record::TypedTable<CFG_AUDIO_DETECT_INFO> kAudioDetect;
extern const record::TypedTable<CFG_IOT_INFRARED_DETECT_INFO> kIotInfraredDetect;
extern const record::TypedTable<CFG_IOT_RECORD_HANDLE_INFO> kIotRecordHandle;
extern const record::TypedTable<CFG_IOT_SNAP_HANDLE_INFO> kIotSnapHandle;

} // namespace orrery
