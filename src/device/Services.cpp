#include "device/Services.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kDeviceClasses, kFolded.Unknown(CFG_DEVICE_CLASS_UNKNOWN),
      {
          {CFG_DEVICE_CLASS_UNKNOWN, ""},
          {CFG_DEVICE_CLASS_DVR, "DVR"},
          {CFG_DEVICE_CLASS_HVR, "HVR"},
          {CFG_DEVICE_CLASS_NVR, "NVR"},
          {CFG_DEVICE_CLASS_EVS, "EVS"},
          {CFG_DEVICE_CLASS_MDVR, "MDVR"},
          {CFG_DEVICE_CLASS_MNVR, "MNVR"},
          {CFG_DEVICE_CLASS_PORTABLE_DVR, "PortableDVR"},
          {CFG_DEVICE_CLASS_NVS, "NVS"},
          {CFG_DEVICE_CLASS_DVS, "DVS"},
          {CFG_DEVICE_CLASS_IPC, "IPC"},
          {CFG_DEVICE_CLASS_IP_SPEED_DOME, "IPSpeedDome"},
          {CFG_DEVICE_CLASS_SPEED_DOME, "SpeedDome"},
          {CFG_DEVICE_CLASS_IP_POSITIONER, "IPPositioner"},
          {CFG_DEVICE_CLASS_FISHEYE_CAMERA, "FisheyeCamera"},
          {CFG_DEVICE_CLASS_PANORAMIC_CAMERA, "PanoramicCamera"},
          {CFG_DEVICE_CLASS_THERMAL_CAMERA, "ThermalCamera"},
          {CFG_DEVICE_CLASS_BODY_CAMERA, "BodyCamera"},
          {CFG_DEVICE_CLASS_DOOR_CAMERA, "DoorCamera"},
          {CFG_DEVICE_CLASS_TRAFFIC_CAMERA, "TrafficCamera"},
          {CFG_DEVICE_CLASS_PARKING_CAMERA, "ParkingCamera"},
          {CFG_DEVICE_CLASS_PARKING_GUIDE, "ParkingGuide"},
          {CFG_DEVICE_CLASS_PARKING_SCREEN, "ParkingScreen"},
          {CFG_DEVICE_CLASS_PARKING_BARRIER, "ParkingBarrier"},
          {CFG_DEVICE_CLASS_SIGNAL_DETECTOR, "SignalDetector"},
          {CFG_DEVICE_CLASS_VEHICLE_DETECTOR, "VehicleDetector"},
          {CFG_DEVICE_CLASS_SPEED_RADAR, "SpeedRadar"},
          {CFG_DEVICE_CLASS_AREA_RADAR, "AreaRadar"},
          {CFG_DEVICE_CLASS_VIDEO_DECODER, "VideoDecoder"},
          {CFG_DEVICE_CLASS_VIDEO_ENCODER, "VideoEncoder"},
          {CFG_DEVICE_CLASS_VIDEO_MATRIX, "VideoMatrix"},
          {CFG_DEVICE_CLASS_VIDEO_WALL, "VideoWall"},
          {CFG_DEVICE_CLASS_CONTROL_KEYBOARD, "ControlKeyboard"},
          {CFG_DEVICE_CLASS_STORAGE_SERVER, "StorageServer"},
          {CFG_DEVICE_CLASS_STORAGE_CLUSTER, "StorageCluster"},
          {CFG_DEVICE_CLASS_ANALYSIS_SERVER, "AnalysisServer"},
          {CFG_DEVICE_CLASS_DIAGNOSIS_SERVER, "DiagnosisServer"},
          {CFG_DEVICE_CLASS_MANAGEMENT_SERVER, "ManagementServer"},
          {CFG_DEVICE_CLASS_ALARM_HOST, "AlarmHost"},
          {CFG_DEVICE_CLASS_ALARM_BOX, "AlarmBox"},
          {CFG_DEVICE_CLASS_ALARM_KEYBOARD, "AlarmKeyboard"},
          {CFG_DEVICE_CLASS_ACCESS_CONTROLLER, "AccessController"},
          {CFG_DEVICE_CLASS_ACCESS_TERMINAL, "AccessTerminal"},
          {CFG_DEVICE_CLASS_DOOR_STATION, "DoorStation"},
          {CFG_DEVICE_CLASS_INDOOR_STATION, "IndoorStation"},
          {CFG_DEVICE_CLASS_GUARD_STATION, "GuardStation"},
          {CFG_DEVICE_CLASS_SMART_GATEWAY, "SmartGateway"},
      });
static_assert(kDeviceClasses.count == CFG_DEVICE_CLASS_COUNT && kDeviceClasses.countsUp);

PART(kRange, CFG_CAPS_RANGE,
     {
         FIELD(nMin, "Min", Int),
         FIELD(nMax, "Max", Int),
     });

PART(kActiveUser, CFG_ACTIVE_USER,
     {
         FIELD(nId, "Id", Int),
         FIELD(szName, "Name", Text),
         FIELD(szGroup, "Group", Text),
         FIELD(nGroupLevel, "GroupLevel", Int),
         FIELD(szClientType, "ClientType", Text),
         FIELD(szClientAddress, "ClientAddress", Text),
         FIELD(stuLoginTime, "LoginTime", NetTime),
     });

} // namespace

TABLE(kServiceList, CFG_SERVICE_LIST_INFO,
      {
          FIELD(nServiceNum),
          FIELD(szServices, "", RawText).Count(AT(nServiceNum)).NullElement(Nulls::LeaveHole),
      });

TABLE(kNetAppCaps, CFG_NET_APP_CAPS,
      {
          FIELD(nNetCardCount, "NetAccessPriority/NetCardCount", Int),
          FIELD(nNetTypeNum),
          FIELD(szNetTypes, "NetAccessPriority/NetTypes", Text).Count(AT(nNetTypeNum)).NullElement(Nulls::CloseUp),
      });

TABLE(kEventManagerCaps, CFG_EVENT_MANAGER_CAPS,
      {
          FIELD(bTimeSectionEnable, "TimeSectionEnable", Bool),
          FIELD(bRecordEnable, "RecordEnable", Bool),
          FIELD(bAlarmOutEnable, "AlarmOutEnable", Bool),
          FIELD(bPtzLinkEnable, "PtzLinkEnable", Bool),
          FIELD(bSnapshotEnable, "SnapshotEnable", Bool),
          FIELD(bMailEnable, "MailEnable", Bool),
          FIELD(bBeepEnable, "BeepEnable", Bool),
          FIELD(bDejitterEnable, "DejitterEnable", Bool),
          FIELD(bTipEnable, "TipEnable", Bool),
          FIELD(bMonitorTourEnable, "MonitorTourEnable", Bool),
          FIELD(bMMSEnable, "MMSEnable", Bool),
          FIELD(bSupportAlarmBell, "SupportAlarmBell", Bool),
          FIELD(bSupportAlarmServer, "SupportAlarmServer", Bool),
          FIELD(bSupportPtzLinkDelay, "SupportPtzLinkDelay", Bool),
          FIELD(bSupportPSTNAlarmServer, "SupportPSTNAlarmServer", Bool),
          FIELD(bSupportAccessControl, "SupportAccessControl", Bool),
          FIELD(bVoiceEnable, "VoiceEnable", Bool),
          FIELD(bLogEnable, "LogEnable", Bool),
          FIELD(stuAlarmOutLatch, "AlarmOutLatch", Record(kRange)),
          FIELD(stuRecordLatch, "RecordLatch", Record(kRange)),
          FIELD(stuDejitterRange, "DejitterRange", Record(kRange)),
      });

TABLE(kEventHandlerCaps, CFG_EVENTHANDLER_CAPS_INFO,
      {
          FIELD(bTimeSectionEnable, "TimeSectionEnable", Bool),
          FIELD(bRecordEnable, "RecordEnable", Bool),
          FIELD(bAlarmOutEnable, "AlarmOutEnable", Bool),
          FIELD(bPtzLinkEnable, "PtzLinkEnable", Bool),
          FIELD(bSnapshotEnable, "SnapshotEnable", Bool),
          FIELD(bMailEnable, "MailEnable", Bool),
          FIELD(bBeepEnable, "BeepEnable", Bool),
          FIELD(bDejitterEnable, "DejitterEnable", Bool),
          FIELD(bTipEnable, "TipEnable", Bool),
          FIELD(bMonitorTourEnable, "MonitorTourEnable", Bool),
      });

TABLE(kRecordFinderCaps, CFG_RECORD_FINDER_CAPS,
      {
          FIELD(nMaxPageSize, "MaxPageSize", Int),
      });

TABLE(kDeviceClass, CFG_DEVICE_CLASS_INFO,
      {
          FIELD(emDeviceClass, "", Names(kDeviceClasses)),
      });

TABLE(kActiveUserInfoAll, CFG_ACTIVE_USER_INFO_ALL,
      {
          FIELD(nCount),
          FIELD(stuUsers, "", Record(kActiveUser)).Count(AT(nCount)),
      });

} // namespace orrery
