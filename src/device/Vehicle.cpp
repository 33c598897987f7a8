#include "device/Vehicle.h"

namespace orrery {

using namespace record;

TABLE(kGps, CFG_GPS_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nSampleInterval, "SampleInterval", Int),
          FIELD(nNotifyInterval, "NotifyInterval", Int),
          FIELD(bSyncTime, "SyncTime", Bool),
          FIELD(nSaveDays, "SaveDays", Int),
          FIELD(bShowLocation, "ShowLocation", Bool),
          FIELD(szCurMode, "CurMode", Text),
          FIELD(nSupportModeNum),
          FIELD(szSupportModes, "SupportModes", Text).Count(AT(nSupportModeNum)),
          FIELD(szCurModule, "CurModule", Text),
          FIELD(nTransferPlatformNum),
          FIELD(szTransferPlatform, "TransferPlatform", Text).Count(AT(nTransferPlatformNum)),
      })
    .TakesFirst();

TABLE(kGpsLocationVersion, CFG_GPS_LOCATION_VERSION_INFO,
      {
          FIELD(nVersion, "Version", UInt),
      });

TABLE(kOilMassInfo, CFG_OIL_MASS_INFO,
      {
          FIELD(nTankVolume, "TankVolume", Int),
          FIELD(nNotifyInterval, "NotifyInterval", Int),
          FIELD(nLowOil, "LowOil", Int),
          FIELD(nAlarmInterval, "AlarmInterval", Int),
      });

TABLE(kEmergencyRecordForPull, CFG_EMERGENCY_RECORD_FOR_PULL_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nMaxTime, "MaxTime", Int),
      });

} // namespace orrery
