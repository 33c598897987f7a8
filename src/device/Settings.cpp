#include "device/Settings.h"

#include "device/JsonText.h"

namespace orrery {

using namespace record;

namespace {

PART(kNtpServer, CFG_NTP_SERVER,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(szAddress, "Address", Text),
         FIELD(nPort, "Port", Int),
     });

} // namespace

TABLE(kAutoMaintain, CFG_AUTO_MAINTAIN_INFO,
      {
          FIELD(nAutoRebootDay, "AutoRebootDay", Int),
          FIELD(nAutoRebootHour, "AutoRebootHour", Int),
          FIELD(nAutoRebootMinute, "AutoRebootMinute", Int),
          FIELD(nAutoShutdownDay, "AutoShutdownDay", Int),
          FIELD(nAutoShutdownHour, "AutoShutdownHour", Int),
          FIELD(nAutoShutdownMinute, "AutoShutdownMinute", Int),
          FIELD(nAutoStartUpDay, "AutoStartUpDay", Int),
          FIELD(nAutoStartUpHour, "AutoStartUpHour", Int),
          FIELD(nAutoStartUpMinute, "AutoStartUpMinute", Int),
          FIELD(bAutoRebootEnable, "AutoRebootEnable", Bool),
      });

TABLE(kClientCustomData, CFG_CLIENT_CUSTOM_DATA_INFO,
      {
          FIELD(szDescription, "Description", Text),
          FIELD(szData, "Data", Custom(kJsonText)), // only the client knows what stands in it
          FIELD(nBinaryNum),
          FIELD(nBinary, "Binary", Int).Count(AT(nBinaryNum)),
      });

TABLE(kDeviceKeepAlive, CFG_DEVICE_KEEPALIVE_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nInterval, "Interval", Int),
          FIELD(nFailTimes, "FailTimes", Int),
          FIELD(nWaitBootTime, "WaitBootTime", Int),
      });

TABLE(kNtp, CFG_NTP_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szAddress, "Address", Text),
          FIELD(nPort, "Port", Int),
          FIELD(nUpdatePeriod, "UpdatePeriod", UInt),
          FIELD(nTimeZone, "TimeZone", UInt),
          FIELD(szTimeZoneDesc, "TimeZoneDesc", Text),
          FIELD(nServerNum),
          FIELD(stuServers, "ServerList", Record(kNtpServer)).Count(AT(nServerNum)),
      });

TABLE(kTelnet, CFG_TELNET_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
      });

TABLE(kWorkTime, CFG_WORK_TIME_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(stuWorkTimeStart, "WorkTimeStart", ClockTime),
          FIELD(stuWorkTimeEnd, "WorkTimeEnd", ClockTime),
          FIELD(nOutTimeStart, "OutTimeStart", UInt),
          FIELD(nOutTimeEnd, "OutTimeEnd", UInt),
      });

TABLE(kLightingSchedule, CFG_LIGHTING_SCHEDULE_INFO,
      {
          FIELD(stuTimeSchedule, "TimeSchedule", HolidaySchedule),
      });

TABLE(kVtoBasicInfo, CFG_VTO_BASIC_INFO,
      {
          FIELD(szNumber, "Number", Text),
          FIELD(nDeviceType, "DeviceType", Int),
          FIELD(nType, "Type", Int),
          FIELD(nPosition, "Position", Int),
          FIELD(szAnalogVersion, "AnalogVersion", Text),
          FIELD(bFaceDetect, "FaceDetect", Bool),
      })
    .TakesFirst();

} // namespace orrery
