// Intercoms and alarm hosts of later devices.
#pragma once

#include "frame/record/Table.h"

#include "orrery/intercom.h"

namespace orrery {

extern const record::TypedTable<CFG_VTH_NUMBER_INFO> kVthNumber;
extern const record::TypedTable<CFG_VTO_CALLING_INFO> kVtoCalling;
extern const record::TypedTable<CFG_VTH_REMOTE_IPC_INFO> kVthRemoteIpc;
extern const record::TypedTable<CFG_CALL_FORWARD_INFO> kCallForward;
extern const record::TypedTable<CFG_DOOR_BELL_SOUND_INFO> kDoorBellSound;
extern const record::TypedTable<CFG_PSTN_PERSON_SERVER_INFO> kPstnPersonServer;
extern const record::TypedTable<CFG_PSTN_TEST_PLAN_INFO> kPstnTestPlan;
extern const record::TypedTable<CFG_ARM_LINK_INFO> kArmLink;
extern const record::TypedTable<CFG_DEFENCE_ARM_MODE_INFO> kDefenceArmMode;
extern const record::TypedTable<CFG_SENSOR_MODE_INFO> kSensorMode;
extern const record::TypedTable<CFG_ALARM_LAMP_INFO> kAlarmLamp;
extern const record::TypedTable<CFG_SECURITY_ALARMS_PRIVACY_INFO> kSecurityAlarmsPrivacy;

} // namespace orrery
