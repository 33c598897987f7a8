#include "device/DeviceAlarm.h"

#include "alarm/EventHandler.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kSensorTypes, kFolded.UnknownLeaves(),
      {
          {CFG_REMOTE_SENSOR_NORMALLY_OPEN, "NO"},
          {CFG_REMOTE_SENSOR_NORMALLY_CLOSED, "NC"},
      });

// What devices take for an open contact has a digit in it, which they do not send themselves.
NAMES(kWrittenSensorTypes, kFolded.UnknownLeaves(),
      {
          {CFG_REMOTE_SENSOR_NORMALLY_OPEN, "N0"},
          {CFG_REMOTE_SENSOR_NORMALLY_CLOSED, "NC"},
      });

PART(kIotInfraredDetector, CFG_IOT_INFRARED_DETECTOR,
     {
         FIELD(nEnableNum),
         FIELD(bEnable, "Enable", Bool).Count(AT(nEnableNum)),
         FIELD(nDetectRadius, "DetectRadius", Int),
     });

} // namespace

TABLE(kRemoteEvent, CFG_REMOTE_EVENT_INFO,
      {
          FIELD(nEnable, "Enable", Int),
          FIELD(szDevice, "Device", Text),
          FIELD(szCode, "Code", Text),
          FIELD(nIndex, "Index", Int),
          FIELD(emSensorType, "SensorType", Names(kSensorTypes)).ReadOnly(),
          FIELD(emSensorType, "SensorType", Names(kWrittenSensorTypes)).WriteOnly().Alias(),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandlerV2)).Always(),
      });

TABLE(kAlarmBell, CFG_ALARM_BELL_INFO,
      {
          FIELD(nDelay, "Delay", Int),
      });

TABLE(kAlarmSlotBond, CFG_ALARM_SLOT_BOND_INFO,
      {
          FIELD(szType, "Type", Text),
          FIELD(nChannel, "Channel", Int),
      });

TABLE(kAudioDetect, CFG_AUDIO_DETECT_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nMinVolume, "MinVolume", Int),
          FIELD(nMaxVolume, "MaxVolume", Int),
          FIELD(bAnomalyDetect, "AnomalyDetect", Bool),
          FIELD(nAnomalySensitive, "AnomalySensitive", Int),
          FIELD(bMutationDetect, "MutationDetect", Bool),
          FIELD(nMutationThreold, "MutationThreold", Int),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
      });

TABLE(kIotInfraredDetect, CFG_IOT_INFRARED_DETECT_INFO,
      {
          FIELD(nCount),
          FIELD(stuItems, "", Record(kIotInfraredDetector)).Count(AT(nCount)),
      });

TABLE(kIotRecordHandle, CFG_IOT_RECORD_HANDLE_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nRecordTime, "RecordTime", Int),
      });

TABLE(kIotSnapHandle, CFG_IOT_SNAP_HANDLE_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nSnapNum, "SnapNum", Int),
      });

} // namespace orrery
