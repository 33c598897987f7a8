#include "later/Fleet.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kCameraProtocols, kFolded.OutsideWrites("Tessera3"),
      {
          {CFG_PLATFORM_IPC_TESSERA3, "Tessera3"},
          {CFG_PLATFORM_IPC_ONVIF, "Onvif"},
      });

NAMES(kCameraStreams, kFolded.OutsideWrites("Main"),
      {
          {CFG_PLATFORM_STREAM_MAIN, "Main"},
          {CFG_PLATFORM_STREAM_EXTRA1, "Extra1"},
      });

PART(kSpeedRange, CFG_SPEED_RANGE,
     {
         FIELD(nFrom, "", Int),
         FIELD(nTo, "", Int),
     })
    .As(Shape::Tuple);

} // namespace

TABLE(kVehiclePlate, CFG_VEHICLE_PLATE_INFO,
      {
          FIELD(szPlateNumber, "PlateNumber", Text),
      });

TABLE(kIdlingTime, CFG_IDLING_TIME_INFO,
      {
          FIELD(nIdlingTimeThreshold, "IdlingTimeThreshold", Int),
          FIELD(nSpeedThreshold, "SpeedThreshold", Int),
      });

TABLE(kCarDriverState, CFG_CAR_DRIVER_STATE_INFO,
      {
          FIELD(nAccelerationThreshold, "AccelerationThreshold", Int),
          FIELD(nDecelerationThreshold, "DecelerationThreshold", Int),
      });

TABLE(kTesseraRadar, CFG_TESSERA_RADAR_INFO,
      {
          FIELD(nAngle, "Angle", Int),
          FIELD(nDetectMode, "DetectMode", Int),
          FIELD(nSensitivity, "Sensitivity", Int),
          FIELD(szName, "Name", Text),
          FIELD(bLowSpeedTrigger, "LowSpeedTrigger", Bool),
          FIELD(bSpeedLimitForSize, "SpeedLimitForSize", Bool),
          FIELD(nSmallCarTriggerSpeed, "SmallCarTriggerSpeed", Int),
          FIELD(nSmallCarSpeedLimit, "SmallCarSpeedLimit", Int),
          FIELD(nMediumCarSpeedLimit, "MediumCarSpeedLimit", Int),
          FIELD(nMediumCarTriggerSpeed, "MediumCarTriggerSpeed", Int),
          FIELD(nBigCarSpeedLimit, "BigCarSpeedLimit", Int),
          FIELD(nBigCarTriggerSpeed, "BigCarTriggerSpeed", Int),
      });

TABLE(kRadarSpeedMeasure, CFG_RADAR_SPEED_MEASURE_INFO,
      {
          FIELD(stuSpeedMeasureLimit, "SpeedMeasureLimit", Record(kSpeedRange)),
          FIELD(stuSpeedUpperLimit, "SpeedUpperLimit", Record(kSpeedRange)),
      });

TABLE(kCustomAudio, CFG_CUSTOM_AUDIO_INFO,
      {
          FIELD(szPlateNotInDB, "PlateNotInDB", Text).Always(),
      });

TABLE(kPoliceMap, CFG_POLICE_MAP_INFO,
      {
          FIELD(szMap, "", Text).Count(AT(nCount)),
          FIELD(nCount),
      });

TABLE(kDevLocation, CFG_DEV_LOCATION_INFO,
      {
          FIELD(nLongitude, "Longitude", UInt),
          FIELD(nLatitude, "Latitude", UInt),
          FIELD(fAltitude, "Altitude", Real),
          FIELD(bEnable, "Enable", Bool),
      });

TABLE(kDeviceIdentity, CFG_DEVICE_IDENTITY_INFO,
      {
          FIELD(szSerial, "Serial", Text),
          FIELD(szMode, "Mode", Text),
          FIELD(szResolution, "Resolution", Text),
          FIELD(szCameraID, "CameraID", Text),
      });

TABLE(kCheckCode, CFG_CHECK_CODE_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szCode, "Code", Text),
      });

TABLE(kVspScydkd, CFG_VSP_SCYDKD_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szServerIP, "ServerIP", Text),
          FIELD(nServerPort, "ServerPort", Int),
          FIELD(szDeviceID, "DeviceID", Text),
          FIELD(szUserName, "UserName", Text),
      });

TABLE(kPlatformMonitorIpc, CFG_PLATFORM_MONITOR_IPC_INFO,
      {
          FIELD(szAddress, "Address", Text),
          FIELD(szUserName, "UserName", Text),
          FIELD(szPassword, "Password", Text),
          FIELD(nPort, "Port", Int),
          FIELD(nChannel, "Channel", Int),
          FIELD(bEnable, "Enable", Bool),
          FIELD(emProtocolType, "ProtocolType", Names(kCameraProtocols)),
          FIELD(emStreamType, "StreamType", Names(kCameraStreams)),
      });

TABLE(kDelayStrategy, CFG_DELAY_STRATEGY_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nArrearsTerm, "ArrearsTerm", Int),
          FIELD(nPreArrearsTerm, "PreArrearsTerm", Int),
      });

TABLE(kDropBoxToken, CFG_DROP_BOX_TOKEN_INFO,
      {
          FIELD(szKey, "Key", Text),
          FIELD(bKeyValid, "KeyValid", Bool),
      });

} // namespace orrery
