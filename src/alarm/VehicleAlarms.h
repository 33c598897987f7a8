// Alarms of vehicles and of counters.
#pragma once

#include "frame/record/Table.h"

#include "orrery/alarm_device_vehicle.h"

namespace orrery {

extern const record::TypedTable<CFG_HIGH_SPEED_INFO> kHighSpeed;
extern const record::TypedTable<CFG_LOW_SPEED_INFO> kLowSpeed;
extern const record::TypedTable<CFG_TIME_SPEED_LIMIT_INFO> kTimeSpeedLimit;
extern const record::TypedTable<CFG_VOICE_ALERT_INFO> kVoiceAlert;
extern const record::TypedTable<CFG_CQDT_SET_INFO> kCqdtSet;
extern const record::TypedTable<CFG_OIL_4G_FLOW_INFO> kOil4GFlow;
extern const record::TypedTable<CFG_VIDEO_WIDGET_4G_FLOW_INFO> kVideoWidget4GFlow;
extern const record::TypedTable<CFG_RC_EMERGENCY_CALL_INFO> kRcEmergencyCall;
extern const record::TypedTable<CFG_FETCH_MONEY_OVER_TIME_INFO> kFetchMoneyOverTime;

} // namespace orrery
