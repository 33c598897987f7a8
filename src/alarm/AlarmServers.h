// Where a device reports its alarms to.
#pragma once

#include "frame/record/Table.h"

#include "orrery/alarm_device_servers.h"

namespace orrery {

extern const record::TypedTable<CFG_ALARM_SERVER_INFO> kAlarmServer;
extern const record::TypedTable<CFG_PSTN_ALARM_SERVER_INFO> kPstnAlarmServer;
extern const record::TypedTable<CFG_WIRELESS_INFO> kWireless;

} // namespace orrery
