// Alarm inputs and the faults that a device watches itself for.
#pragma once

#include "frame/record/Table.h"

#include "orrery/alarm_input.h"

namespace orrery {

extern const record::TypedTable<CFG_ALARM_INPUT_INFO> kAlarmInput;
extern const record::TypedTable<CFG_ALARM_INPUT_INFO> kExAlarm;
extern const record::TypedTable<CFG_NET_ALARM_INFO> kNetAlarm;
extern const record::TypedTable<CFG_LOSS_DETECT_INFO> kLossDetect;
extern const record::TypedTable<CFG_BLIND_DETECT_INFO> kBlindDetect;
extern const record::TypedTable<CFG_STORAGE_ALARM_INFO> kStorageAlarm;
extern const record::TypedTable<CFG_STORAGE_LOWSPACE_INFO> kStorageLowSpace;
extern const record::TypedTable<CFG_MOTION_DETECT_INFO> kMotionDetect;

// Tells in the record that a text has been read, whatever the device answered.
void MarkMotionDetectRead(std::byte* record);

} // namespace orrery
