#include "access/AccessControl.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kStates, kFolded.Unknown(CFG_ACCESS_STATE_UNKNOWN),
      {
          {CFG_ACCESS_STATE_NORMAL, "Normal"},
          {CFG_ACCESS_STATE_CLOSE_ALWAYS, "CloseAlways"},
          {CFG_ACCESS_STATE_OPEN_ALWAYS, "OpenAlways"},
          {CFG_ACCESS_STATE_NO_PERSON_NC, "NoPersonNC"},
          {CFG_ACCESS_STATE_NO_PERSON_NO, "NoPersonNO"},
      });

NAMES(kModes, kFolded.Unknown(CFG_ACCESS_MODE_UNKNOWN),
      {
          {CFG_ACCESS_MODE_HAND_PROTECTED, "HandProtected"},
          {CFG_ACCESS_MODE_SAFE_ROOM, "SafeRoom"},
          {CFG_ACCESS_MODE_OTHER, "Other"},
      });

NAMES(kAccessProtocols, kFolded.Unknown(CFG_ACCESS_PROTOCOL_UNKNOWN).OutsideWrites(""),
      {
          {CFG_ACCESS_PROTOCOL_LOCAL, "Local"},
          {CFG_ACCESS_PROTOCOL_TESSERA, "Tessera"},
          {CFG_ACCESS_PROTOCOL_REMOTE, "Remote"},
      });

NAMES(kProperties, kFolded.Unknown(CFG_ACCESS_PROPERTY_UNKNOWN).OutsideWrites(""),
      {
          {CFG_ACCESS_PROPERTY_BIDIRECT, "bidirect"},
          {CFG_ACCESS_PROPERTY_UNIDIRECT, "unidirect"},
      });

NAMES(kOpenMethods, kFolded.Unknown(CFG_OPEN_DOOR_METHOD_UNKNOWN),
      {
          {CFG_OPEN_DOOR_METHOD_CARD, "Card"},
          {CFG_OPEN_DOOR_METHOD_PASSWORD, "Password"},
          {CFG_OPEN_DOOR_METHOD_FINGERPRINT, "Fingerprint"},
          {CFG_OPEN_DOOR_METHOD_CARD_PASSWORD_FINGER, "C|P|F"},
          {CFG_OPEN_DOOR_METHOD_FACE, "Face"},
      });

NAMES(kWorkModes, kFolded.Unknown(CFG_ACCESS_WORK_MODE_UNKNOWN).OutsideWrites(""),
      {
          {CFG_ACCESS_WORK_MODE_NORMAL, "Normal"},
          {CFG_ACCESS_WORK_MODE_CLEAN, "Clean"},
          {CFG_ACCESS_WORK_MODE_DECORATION, "Decoration"},
          {CFG_ACCESS_WORK_MODE_UNUSED, "Unused"},
          {CFG_ACCESS_WORK_MODE_OUTSTANDING, "Outstanding"},
      });

PART(kDoorPlan, CFG_ACCESS_DOOR_PLAN,
     {
         FIELD(szTimeSection, "TimeSection", Text),
     });

PART(kSound, CFG_ACCESS_SOUND,
     {
         FIELD(szOpenDoor, "OpenDoor", Text),
         FIELD(szCloseDoor, "CloseDoor", Text),
         FIELD(szInUsed, "InUsed", Text),
         FIELD(szNotInUsed, "NotInUsed", Text),
         FIELD(szNotClosed, "NotClosed", Text),
         FIELD(szWaiting, "Waiting", Text),
     });

PART(kLockGroup, CFG_ACCESS_LOCK_GROUP,
     {
         FIELD(nDoorNum),
         FIELD(nDoors, "", Int).Count(AT(nDoorNum)),
     });

PART(kABLock, CFG_ACCESS_AB_LOCK,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nGroupNum),
         FIELD(stuGroups, "Doors", Record(kLockGroup)).Count(AT(nGroupNum)),
     });

PART(kOpenDoorPerson, CFG_OPEN_DOOR_PERSON,
     {
         FIELD(szUserID, "UserID", Text),
         FIELD(emMethod, "Method", Names(kOpenMethods)),
     });

PART(kGroup, CFG_OPEN_DOOR_GROUP,
     {
         FIELD(nCount, "Count", Int),
         FIELD(nDetailNum),
         FIELD(stuDetail, "Detail", Record(kOpenDoorPerson)).Count(AT(nDetailNum)),
     });

PART(kRouteDoor, CFG_OPEN_DOOR_ROUTE_DOOR,
     {
         FIELD(szReaderID, "ReaderID", Text),
     });

PART(kRouteStep, CFG_OPEN_DOOR_ROUTE_STEP,
     {
         FIELD(nDoorNum),
         FIELD(stuDoors, "Doors", Record(kRouteDoor)).Count(AT(nDoorNum)),
     });

} // namespace

TABLE(kAccessControl, CFG_ACCESS_CONTROL_INFO,
      {
          FIELD(szName, "Name", Text),
          FIELD(emState, "State", Names(kStates)).Absent(CFG_ACCESS_STATE_UNKNOWN),
          FIELD(emMode, "Mode", Names(kModes)).Absent(CFG_ACCESS_MODE_UNKNOWN),
          FIELD(nEnableMode, "EnableMode", UInt),
          FIELD(bSnapshotEnable, "SnapshotEnable", Bool),
          FIELD(nMethod, "Method", Int),
          FIELD(nUnlockHoldInterval, "UnlockHoldInterval", Int),
          FIELD(nCloseTimeout, "CloseTimeout", Int),
          FIELD(nOpenAlwaysTime, "OpenAlwaysTime", Int),
          FIELD(nCloseAlwaysTime, "CloseAlwaysTime", Int),
          FIELD(nHolidayTime, "HolidayTime", Int),
          FIELD(bBreakInAlarmEnable, "BreakInAlarmEnable", Bool),
          FIELD(bRepeatEnterAlarm, "RepeatEnterAlarm", Bool),
          FIELD(bDoorNotClosedAlarmEnable, "DoorNotClosedAlarmEnable", Bool),
          FIELD(bDuressAlarmEnable, "DuressAlarmEnable", Bool),
          FIELD(stuTimeSchedule, "TimeSchedule", Record(kDoorPlan)),
          FIELD(bSensorEnable, "SensorEnable", Bool),
          FIELD(bFirstEnterEnable, "FirstEnter/Enable", Bool),
          FIELD(nFirstEnterStatus, "FirstEnter/Status", Int),
          FIELD(nFirstEnterTime, "FirstEnter/Time", Int),
          FIELD(bRemoteCheck, "RemoteCheck", Bool),
          FIELD(nRemoteDetailTimeOut, "RemoteDetail/TimeOut", Int),
          FIELD(nHandicapTimeOut, "Handicap/TimeOut", Int),
          FIELD(bCloseCheckSensor, "CloseCheckSensor", Bool),
          FIELD(bAutoRemoteCheckEnable, "AutoRemoteCheck/Enable", Bool),
          FIELD(nAutoRemoteCheckTime, "AutoRemoteCheck/Time", Int),
          FIELD(bLocalControlEnable, "LocalControlEnable", Bool),
          FIELD(bRemoteControlEnable, "RemoteControlEnable", Bool),
          FIELD(nSensorDelay, "SensorDetect/SensorDelay", Int),
          FIELD(nHumanStatusSensitivity, "SensorDetect/HumanStatusSensitivity", Int),
          FIELD(nDetectSensitivity, "SensorDetect/DetectSensitivity", Int),
          FIELD(bLockTongueEnable, "LockTongueEnable", Bool),
          FIELD(nABLockRoute, "ABLockRoute", Int),
          FIELD(nDoorNotClosedReaderAlarmTime, "DoorNotClosedReaderAlarmTime", Int),
          FIELD(szSN, "SN", Text).Only(OnlyType::String),
          FIELD(nCloseDuration, "CloseDuration", Int),
          FIELD(nUnlockReloadInterval, "UnlockReloadInterval", Int),
          FIELD(emAccessProtocol, "AccessProtocol", Names(kAccessProtocols)),
          FIELD(nProtocolType, "ProtocolType", Int).Absent(-1),
          FIELD(szUdpAddress, "AccessControlUDP/Address", Text),
          FIELD(nUdpPort, "AccessControlUDP/Port", Int),
          FIELD(nEntranceLockChannel, "EntranceLockChannel", UInt),
          FIELD(bSnapshotUpload, "SnapshotUpload", Bool),
          FIELD(nSnapUploadPos, "SnapUploadPos", UInt),
          FIELD(bCustomPasswordEnable, "CustomPasswordEnable", Bool),
          FIELD(nRepeatEnterTime, "RepeatEnterTime", UInt),
          FIELD(nCardNoConvert, "CardNoConvert", UInt),
          FIELD(bUnAuthorizedMaliciousSwipEnable, "UnAuthorizedMaliciousSwipEnable", Bool),
          FIELD(bFakeLockedAlarmEnable, "FakeLockedAlarmEnable", Bool),
      });

TABLE(kAccessGeneral, CFG_ACCESS_GENERAL_INFO,
      {
          FIELD(abAccessProperty),
          FIELD(emAccessProperty, "AccessProperty", Names(kProperties)).SetsAndNeeds(AT(abAccessProperty)),
          FIELD(stuSound, "Sound", Record(kSound)),
          FIELD(nUnlockReloadInterval, "UnlockReloadInterval", Int),
          FIELD(nUnlockHoldInterval, "UnlockHoldInterval", Int),
          FIELD(szProjectPassword, "ProjectPassword", Text),
          FIELD(stuABLock, "ABLock", Record(kABLock)),
          FIELD(bDuressEnable, "DuressEnable", Bool),
          FIELD(szDuressPassword, "DuressPassword", Text),
      });

TABLE(kAccessTimeSchedule, CFG_ACCESS_TIME_SCHEDULE_INFO,
      {
          FIELD(stuTimeSection, "TimeSchedule", TimeSection),
          FIELD(bEnable, "Enable", Bool),
          FIELD(szName, "Name", Text),
      });

TABLE(kOpenDoorGroup, CFG_OPEN_DOOR_GROUP_INFO,
      {
          FIELD(nGroupNum),
          FIELD(stuGroup, "Group", Record(kGroup)).Count(AT(nGroupNum)),
      });

TABLE(kOpenDoorRoute, CFG_OPEN_DOOR_ROUTE_INFO,
      {
          FIELD(nStepNum),
          FIELD(stuSteps, "DoorList", Record(kRouteStep)).Count(AT(nStepNum)),
          FIELD(nTimeSections, "TimeSections", Int).Only(OnlyType::Integer),
          FIELD(nResetTime, "ResetTime", UInt).Only(OnlyType::Unsigned),
      });

TABLE(kAccessWorkMode, CFG_ACCESS_WORK_MODE_INFO,
      {
          FIELD(emMode, "Mode", Names(kWorkModes)),
      });

TABLE(kAccessTextDisplay, CFG_ACCESS_TEXT_DISPLAY_INFO,
      {
          FIELD(szOpenSucceed, "OpenSucceed", Text),
          FIELD(szOpenFailed, "OpenFailed", Text),
      });

TABLE(kAccessCaps, CFG_ACCESS_CAPS,
      {
          FIELD(nAccessControlChannels, "AccessControlChannels", Int),
          FIELD(nCustomPasswordEncryption, "CustomPasswordEncryption", Int),
          FIELD(nSupportFingerPrint, "SupportFingerPrint", Int),
          FIELD(nOnlySingleDoorAuth, "OnlySingleDoorAuth", Int),
          FIELD(nAsynAuth, "AsynAuth", Int),
          FIELD(bAccessControlAlarmRecord, "AccessControlAlarmRecord", Bool),
          FIELD(bSpecialDaysSchedule, "SpecialDaysSchedule/Support", Bool),
          FIELD(nMaxSpecialDaysSchedules, "SpecialDaysSchedule/MaxSpecialDaysSchedules", UInt),
          FIELD(nMaxTimePeriodsPerDay, "SpecialDaysSchedule/MaxTimePeriodsPerDay", UInt),
          FIELD(nMaxSpecialDayGroups, "SpecialDaysSchedule/MaxSpecialDayGroups", UInt),
          FIELD(nMaxDaysInSpecialDayGroup, "SpecialDaysSchedule/MaxDaysInSpecialDayGroup", UInt),
      });

} // namespace orrery
