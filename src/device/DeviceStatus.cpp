#include "device/DeviceStatus.h"

namespace orrery {

using namespace record;

namespace {

PART(kPowerStatus, CFG_POWER_STATUS,
     {
         FIELD(nStatus, "Status", Int),
     });

PART(kCpuStatus, CFG_CPU_STATUS,
     {
         FIELD(nTemperature, "Temperature", Int),
     });

PART(kFanStatus, CFG_FAN_STATUS,
     {
         FIELD(nRotatoSpeed, "RotatoSpeed", Int),
     });

PART(kTrafficSnapDevice, CFG_TRAFFIC_SNAP_DEVICE,
     {
         FIELD(nWorkingState, "WokingState", Int),
         FIELD(szSerialNo, "SerialNo", Text),
         FIELD(szVendor, "Vendor", Text),
         FIELD(szType, "Type", Text),
         FIELD(nLightState, "LightState", UInt),
     });

PART(kStatSubtotal, CFG_STAT_SUBTOTAL,
     {
         FIELD(nTotal, "Total", Int),
         FIELD(nToday, "Today", Int),
         FIELD(nThisMonth, "ThisMonth", Int),
         FIELD(nThisYear, "ThisYear", Int),
         FIELD(nMaxDaily, "MaxDaily", Int),
     });

PART(kVideoStat, CFG_VIDEO_STAT,
     {
         FIELD(nChannel, "Channel", Int),
         FIELD(szRuleName, "RuleName", Text),
         FIELD(nUTC, "UTC", UInt),
         FIELD(stuEnteredSubtotal, "EnteredSubtotal", Record(kStatSubtotal)),
         FIELD(stuExitedSubtotal, "ExitedSubtotal", Record(kStatSubtotal)),
         FIELD(stuInsideSubtotal, "InsideSubtotal", Record(kStatSubtotal)),
         FIELD(nAvgInside, "AvgInside", Int),
         FIELD(nMaxInside, "MaxInside", Int),
     });

} // namespace

TABLE(kDeviceStatus, CFG_DEVICE_STATUS,
      {
          FIELD(nPowerNum),
          FIELD(stuPower, "Power", Record(kPowerStatus)).Count(AT(nPowerNum)),
          FIELD(nCPUNum),
          FIELD(stuCPU, "CPU", Record(kCpuStatus)).Count(AT(nCPUNum)),
          FIELD(nFanNum),
          FIELD(stuFan, "FAN", Record(kFanStatus)).Count(AT(nFanNum)),
      });

TABLE(kTrafficSnapDeviceStatus, CFG_TRAFFIC_SNAP_DEVICE_STATUS,
      {
          FIELD(nCount),
          FIELD(stuDevices, "", Record(kTrafficSnapDevice)).Count(AT(nCount)),
      });

TABLE(kVideoStatSummary, CFG_VIDEO_STAT_SUMMARY,
      {
          FIELD(nCount),
          FIELD(stuStats, "VideoStatSummary", Record(kVideoStat)).Count(AT(nCount)),
      });

} // namespace orrery
