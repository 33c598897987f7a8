#include "alarm/Arming.h"

#include "alarm/EventHandler.h"
#include "alarm/SensorNames.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kArmingProfiles, kFolded,
      {
          {CFG_PROFILE_OUTDOOR, "Outdoor"},
          {CFG_PROFILE_AT_HOME, "AtHome"},
          {CFG_PROFILE_WHOLE, "Whole"},
          {CFG_PROFILE_RIGHT_NOW, "RightNow"},
          {CFG_PROFILE_AUTO, "Auto"},
          {CFG_PROFILE_FORCE, "Force"},
          {CFG_PROFILE_SLEEPING, "Sleeping"},
          {CFG_PROFILE_CUSTOM, "Custom"},
      });

PART(kAlarmProfile, CFG_ALARM_PROFILE,
     {
         FIELD(szName, "Name", Text),
         FIELD(nAlarmInNum),
         FIELD(nAlarmInChannels, "AlarmInChannels", Int).Count(AT(nAlarmInNum)).WriteEmpty(Empty::Array),
     });

} // namespace

TABLE(kCommGlobal, CFG_COMM_GLOBAL_INFO,
      {
          FIELD(bAlarmEnable, "AlarmEnable", Bool),
          FIELD(bProfileEnable, "ProfileEnable", Bool),
          FIELD(emCurrentProfile, "CurrentProfile", Names(kArmingProfiles)),
          FIELD(nProfileNum),
          FIELD(stuProfiles, "Profiles", Record(kAlarmProfile)).Count(AT(nProfileNum)).WriteEmpty(Empty::Array),
      });

TABLE(kAlarmSubSystem, CFG_ALARM_SUB_SYSTEM_INFO,
      {
          FIELD(szName, "Name", Text),
          FIELD(nZoneNum),
          FIELD(nZone, "Zone", Int).Count(AT(nZoneNum)).WriteEmpty(Empty::Array),
          FIELD(nExZoneNum),
          FIELD(nExZone, "ExZone", Int).Count(AT(nExZoneNum)).WriteEmpty(Empty::Array),
          FIELD(nPublicSubSystemNum),
          FIELD(nPublicSubSystem, "PublicSubSystem", Int).Count(AT(nPublicSubSystemNum)).WriteEmpty(Empty::Array),
          FIELD(nDisableDelay, "DisableDelay", Int),
          FIELD(nEnableDelay, "EnableDelay", Int),
          FIELD(bIsPublic, "IsPublic", Bool),
      });

TABLE(kDefenceAreaDelay, CFG_DEFENCE_AREA_DELAY_INFO,
      {
          FIELD(nEnterDelay1, "EnterDelay1", Int),
          FIELD(nEnterDelay2, "EnterDelay2", Int),
          FIELD(nExitDelay, "ExitDelay", Int),
      });

TABLE(kAlarmShieldRule, CFG_ALARM_SHIELD_RULE_INFO,
      {
          FIELD(nPeriod, "HighFrequency/Period", Int),
          FIELD(nMaxCount, "HighFrequency/MaxCount", Int),
      });

TABLE(kSensorSampling, CFG_SENSOR_SAMPLING_INFO,
      {
          FIELD(nDetectionPeriod, "DetectionPeriod", Int),
          FIELD(nStorageItem, "StorageItem", Int),
      });

TABLE(kSnapLinkage, CFG_SNAP_LINKAGE_INFO,
      {
          FIELD(nCount),
          FIELD(nAnalogAlarm, "AnalogAlarm", Int).Count(AT(nCount)).WriteEmpty(Empty::Array),
      });

TABLE(kAnalogAlarm, CFG_ANALOG_ALARM_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szName, "Name", Text),
          FIELD(fUpperLimit, "UpperLimit", Real),
          FIELD(fLowerLimit, "LowerLimit", Real),
          FIELD(fCompensation, "Compensation", Real),
          FIELD(nSensitivity, "Sensitivity", Int),
          FIELD(nMode, "Mode", Int),
          FIELD(nAlarmLimitNum),
          FIELD(fAlarmLimit, "AlarmLimit", Real).Count(AT(nAlarmLimitNum)).WriteEmpty(Empty::Array),
          FIELD(emSenseMethod, "SenseMethod", Names(kSenseMethods)),
          FIELD(szType, "Type", Text),
          FIELD(nSlot, "Slot", Int),
          FIELD(nLevel1, "Level1", Int),
          FIELD(nLevel2, "Level2", Int),
          FIELD(nNotifyInterval, "NotifyInterval", Int),
          FIELD(nAlarmInterval, "AlarmInterval", Int),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandlerWeek)).Always(),
      });

} // namespace orrery
