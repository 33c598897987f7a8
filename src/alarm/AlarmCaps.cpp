#include "alarm/AlarmCaps.h"

#include "alarm/SensorNames.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kProtocols, kExact.Unknown(0),
      {
          {1, "QV_AlarmBox"},
      });

} // namespace

TABLE(kAlarmCaps, CFG_ALARM_CAPS,
      {
          FIELD(bAlarmPir, "AlarmPir", Bool),
          FIELD(bFlash, "Flash", Bool),
          FIELD(nMaxDelay, "MaxDelay", Int),
          FIELD(nAlarmBellCount, "AlarmBellCount", Int),
          FIELD(nMaxBackupAlarmServer, "MaxBackupAlarmServer", Int),
          FIELD(nMaxPSTNAlarmServer, "MaxPSTNAlarmServer", Int),
          FIELD(nDefenceAreaTypeNum),
          FIELD(emDefenceAreaTypes, "DefenceAreaTypes", Names(kDefenceAreaTypes)).Count(AT(nDefenceAreaTypeNum)),
          FIELD(nSenseMethodNum),
          FIELD(emSenseMethods, "SupportSenseMethod", Names(kSenseMethods)).Count(AT(nSenseMethodNum)),
      });

TABLE(kExAlarmCaps, CFG_EX_ALARM_CAPS,
      {
          FIELD(nAlarmIn, "AlarmIn", Int),
          FIELD(nAlarmOut, "AlarmOut", Int),
          FIELD(nMaxDelay, "MaxDelay", Int),
          FIELD(nDefenceAreaTypeNum),
          FIELD(emDefenceAreaTypes, "DefenceAreaTypes", Names(kDefenceAreaTypes)).Count(AT(nDefenceAreaTypeNum)),
          FIELD(nSenseMethodNum),
          FIELD(emSenseMethods, "SupportSenseMethod", Names(kSenseMethods)).Count(AT(nSenseMethodNum)),
          FIELD(nProtocolNum),
          FIELD(byProtocols, "ProtocolList", Names(kProtocols)).Count(AT(nProtocolNum)),
      });

TABLE(kExAlarmBoxCaps, CFG_EX_ALARM_BOX_CAPS,
      {
          FIELD(nAlarmIn, "AlarmIn", Int),
          FIELD(nAlarmOut, "AlarmOut", Int),
      });

TABLE(kAnalogAlarmCaps, CFG_ANALOG_ALARM_CAPS,
      {
          FIELD(nLocalAnalogs, "LocalAnalogs", Int),
          FIELD(nExAnalogs, "ExAnalogs", Int),
          FIELD(nSenseMethodNum),
          FIELD(emSenseMethods, "SupportSenseMethod", Names(kSenseMethods)).Count(AT(nSenseMethodNum)),
      });

} // namespace orrery
