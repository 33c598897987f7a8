#include "alarm/DeviceFaults.h"

#include "alarm/EventHandler.h"

namespace orrery {

using namespace record;

namespace {

PART(kOnePowerFault, CFG_POWER_FAULT,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nCheckInterval, "CheckInterval", Int),
         FIELD(bEncodeBlend, "EncodeBlend", Bool),
         FIELD(stuRect, "Rect", Record(kRect)),
         FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
     });

PART(kOneBurnFull, CFG_BURN_FULL,
     {
         FIELD(bChangeDisk, "ChangeDisk", Bool),
         FIELD(bBurnStop, "BurnStop", Bool),
         FIELD(bEnable, "Enable", Bool),
         FIELD(nLowerLimit, "lowerLimit", UInt),
         FIELD(szBurnDisk, "BurnDisk", Text),
         FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
         FIELD(stuTimeSection, "TimeSection", Schedule),
     });

PART(kFluxLimits, CFG_FLUX_LIMITS,
     {
         FIELD(nLow, "", UInt),
         FIELD(nHigh, "", UInt),
     })
    .As(Shape::Tuple);

} // namespace

TABLE(kFaultAlarm, CFG_FAULT_ALARM_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
      });

// Whether users are locked out is the device's own business; a client only learns what follows.
TABLE(kUserLockAlarm, CFG_FAULT_ALARM_INFO,
      {
          FIELD(bEnable, "Enable", Bool).WriteOnly(),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
      });

TABLE(kLoginFailure, CFG_LOGIN_FAILURE_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nTryLoginTimes, "TryLoginTimes", Int),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
      });

TABLE(kNotifyFault, CFG_NOTIFY_FAULT_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nNotifyTimes, "NotifyTimes", UInt),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
      });

TABLE(kUnFocusDetect, CFG_UNFOCUS_DETECT_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nSensitivity, "Sensitivity", Int),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandlerWeek)).Always(),
      });

TABLE(kPowerFault, CFG_POWER_FAULT_INFO,
      {
          FIELD(nCount),
          FIELD(stuFaults, "", Record(kOnePowerFault)).Count(AT(nCount)),
      });

TABLE(kBurnFull, CFG_BURN_FULL_INFO,
      {
          FIELD(nCount),
          FIELD(stuBurners, "", Record(kOneBurnFull)).Count(AT(nCount)),
      });

TABLE(kFluxAlarm, CFG_FLUX_ALARM_INFO,
      {
          FIELD(nEnable, "Enable", Int),
          FIELD(stuNormal, "Normal", Record(kFluxLimits)),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
          FIELD(stuTimeSection, "TimeSection", Schedule),
      });

TABLE(kClimateAlarm, CFG_CLIMATE_ALARM_INFO,
      {
          FIELD(szName, "Name", Text),
          FIELD(bEnable, "Enable", Bool),
          FIELD(nNormalNum),
          FIELD(fNormal, "Normal", Real).Count(AT(nNormalNum)).WriteEmpty(Empty::Array),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandlerV2)).Always(),
      });

} // namespace orrery
