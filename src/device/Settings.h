// General settings of a device.
#pragma once

#include "frame/record/Table.h"

#include "orrery/device_settings.h"

namespace orrery {

extern const record::TypedTable<CFG_AUTO_MAINTAIN_INFO> kAutoMaintain;
extern const record::TypedTable<CFG_CLIENT_CUSTOM_DATA_INFO> kClientCustomData;
extern const record::TypedTable<CFG_DEVICE_KEEPALIVE_INFO> kDeviceKeepAlive;
extern const record::TypedTable<CFG_NTP_INFO> kNtp;
extern const record::TypedTable<CFG_TELNET_INFO> kTelnet;
extern const record::TypedTable<CFG_WORK_TIME_INFO> kWorkTime;
extern const record::TypedTable<CFG_LIGHTING_SCHEDULE_INFO> kLightingSchedule;
extern const record::TypedTable<CFG_VTO_BASIC_INFO> kVtoBasicInfo;

} // namespace orrery
