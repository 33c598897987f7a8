#include "later/Intercom.h"

namespace orrery {

using namespace record;

namespace {

// Codes without a text are written as the empty text of code 0.
constexpr NameTable kEmptyOutside = kFolded.OutsideWrites("");

NAMES(kStationTypes, kEmptyOutside,
      {
          {CFG_VTH_UNKNOWN, ""},
          {CFG_VTH_MAIN, "Main"},
          {CFG_VTH_SUB, "Sub"},
      });

NAMES(kStationUses, kEmptyOutside,
      {
          {CFG_VTH_APP_UNKNOWN, ""},
          {CFG_VTH_APP_COMMON, "Common"},
          {CFG_VTH_APP_MANAGER, "Manager"},
      });

NAMES(kSensorModes, kEmptyOutside,
      {
          {CFG_SENSOR_MODE_UNKNOWN, ""},
          {CFG_SENSOR_MODE_TWO_STATE, "TwoState"},
          {CFG_SENSOR_MODE_FOUR_STATE, "FourState"},
      });

PART(kRemoteCamera, CFG_REMOTE_CAMERA,
     {
         FIELD(szID, "ID", Text),
         FIELD(szName, "Name", Text),
         FIELD(szAddress, "Address", Text),
         FIELD(nPort, "Port", Int),
         FIELD(szUserName, "UserName", Text),
         FIELD(szPassword, "Password", Text),
         FIELD(szProtocolType, "ProtocolType", Text),
         FIELD(nChannel, "Channel", Int),
     });

} // namespace

TABLE(kVthNumber, CFG_VTH_NUMBER_INFO,
      {
          FIELD(szShortNumber, "ShortNumber", Text),
          FIELD(szMiddleNumber, "MiddleNumber", Text),
          FIELD(szVirtualNumber, "VirtualNumber", Text),
          FIELD(szMainNumber, "MainNumber", Text),
          FIELD(szSubNumber, "SubNumber", Text),
          FIELD(szMainDeviceIP, "MainDeviceIP", Text),
          FIELD(emType, "Type", Names(kStationTypes)),
          FIELD(emAppType, "AppType", Names(kStationUses)),
          FIELD(nLockState, "LockState", Int),
          FIELD(szUsername, "Username", Text),
          FIELD(szPassword, "Password", Text),
      })
    .TakesFirst();

TABLE(kVtoCalling, CFG_VTO_CALLING_INFO,
      {
          FIELD(szMainVtoIP, "MainVtoIP", Text),
          FIELD(bGroupCallEnable, "GroupCallEnable", Bool),
          FIELD(szManagerNumber, "ManagerNumber", Text),
          FIELD(szUrgentNumber, "UrgentNumber", Text),
          FIELD(stuCallVTSEnable, "CallVTSEnable", SectionList),
          FIELD(nMaxExtensionIndex, "MaxExtensionIndex", Int),
          FIELD(szRoomRule, "RoomRule", Text),
          FIELD(stuTimeSection, "TimeSection", Schedule),
      });

TABLE(kVthRemoteIpc, CFG_VTH_REMOTE_IPC_INFO,
      {
          FIELD(nCount),
          FIELD(stuCameras, "", Record(kRemoteCamera)).Count(AT(nCount)),
      });

TABLE(kCallForward, CFG_CALL_FORWARD_INFO,
      {
          FIELD(bAlwaysForwardEnable, "AlwaysForwardEnable", Bool),
          FIELD(bBusyForwardEnable, "BusyForwardEnable", Bool),
          FIELD(bNoAnswerForwardEnable, "NoAnswerForwardEnable", Bool),
          FIELD(szAlwaysForwardNumber, "AlwaysForwardNumber", Text),
          FIELD(szBusyForwardNumber, "BusyForwardNumber", Text),
          FIELD(szNoAnswerForwardNumber, "NoAnswerForwardNumber", Text),
      });

TABLE(kDoorBellSound, CFG_DOOR_BELL_SOUND_INFO,
      {
          FIELD(bSilenceEnable, "SilenceEnable", Bool),
          FIELD(nRingVolume, "RingVolume", UInt),
          FIELD(szRingFile, "RingFile", Text),
      });

TABLE(kPstnPersonServer, CFG_PSTN_PERSON_SERVER_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szName, "Name", Text),
          FIELD(szServers, "Servers", Text),
          FIELD(nNumberCount),
          FIELD(szNumber, "Number", Text).Count(AT(nNumberCount)),
      });

TABLE(kPstnTestPlan, CFG_PSTN_TEST_PLAN_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nPeriod, "Period", Int),
          FIELD(nAlarmServer, "AlarmServer", Int),
      });

TABLE(kArmLink, CFG_ARM_LINK_INFO,
      {
          FIELD(bMMSEnable, "MMSEnable", Bool),
          FIELD(bPSTNAlarmServer, "PSTNAlarmServer", Bool),
          FIELD(bPersonAlarmEnable, "PersonAlarmEnable", Bool),
          FIELD(nEventLinkCount),
          FIELD(szEventLink, "EventLink", Text).Count(AT(nEventLinkCount)),
          FIELD(nDestinationCount),
          FIELD(nDestination, "Destination", Int).Count(AT(nDestinationCount)),
          FIELD(bNeedReport, "NeedReport", Bool),
      });

TABLE(kDefenceArmMode, CFG_DEFENCE_ARM_MODE_INFO,
      {
          FIELD(bEnableDefenceArm, "EnableDefenceArm", Bool),
      });

TABLE(kSensorMode, CFG_SENSOR_MODE_INFO,
      {
          FIELD(emSensorMode, "SensorMode", Names(kSensorModes)),
      });

TABLE(kAlarmLamp, CFG_ALARM_LAMP_INFO,
      {
          FIELD(nMode, "Mode", UInt),
      });

TABLE(kSecurityAlarmsPrivacy, CFG_SECURITY_ALARMS_PRIVACY_INFO,
      {
          FIELD(bAction, "Action", Bool),
          FIELD(szCode, "Code", Text),
      });

} // namespace orrery
