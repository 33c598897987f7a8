// Outputs, keyboards, extension boxes, lights and supervised devices.
#pragma once

#include "frame/Frames.h"
#include "frame/record/Table.h"

#include "orrery/alarm_device_hardware.h"

namespace orrery {

extern const record::TypedTable<CFG_ALARM_OUT_INFO> kAlarmOut;
extern const record::TypedTable<CFG_EX_ALARM_OUT_INFO> kExAlarmOut;
extern const record::TypedTable<CFG_SERIAL_ALARM_DEVICE_INFO> kSerialAlarmDevice;
extern const record::TypedTable<CFG_FLASH_LIGHT_INFO> kFlashLight;
extern const record::TypedTable<CFG_SCADA_DEV_INFO> kScadaDev;

// Tell the log why a call for supervised devices failed.
void LogScadaParse(Outcome outcome, const ParseRequest& request) noexcept;
void LogScadaPack(Outcome outcome, const PackRequest& request) noexcept;

} // namespace orrery
