/* Settings of devices in vehicles: position, fuel, recording on demand. */
#ifndef ORRERY_DEVICE_VEHICLE_H
#define ORRERY_DEVICE_VEHICLE_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_GPS_MODES 16
#define ORRERY_GPS_PLATFORMS 16

/* "GPS": a device's satellite receiver. The reply's table is an object, or a list whose first element is one. The
 * reply's length is added to what `returnedLength` holds. Lists without an entry are not written. */
typedef struct CFG_GPS_INFO {
    int32_t bEnable;                                   /* "Enable" */
    int32_t nSampleInterval;                           /* "SampleInterval": between two positions, seconds */
    int32_t nNotifyInterval;                           /* "NotifyInterval": between two reports, seconds */
    int32_t bSyncTime;                                 /* "SyncTime": the clock is set by satellites */
    int32_t nSaveDays;                                 /* "SaveDays": positions are kept so long */
    int32_t bShowLocation;                             /* "ShowLocation": the position is shown in the picture */
    char szCurMode[32];                                /* "CurMode": system in use, "GPS", "BEIDOU" and so on */
    int32_t nSupportModeNum;                           /* entries of szSupportModes in use */
    char szSupportModes[ORRERY_GPS_MODES][32];         /* "SupportModes": systems that the receiver knows */
    char szCurModule[64];                              /* "CurModule": receiver in use */
    int32_t nTransferPlatformNum;                      /* entries of szTransferPlatform in use */
    char szTransferPlatform[ORRERY_GPS_PLATFORMS][64]; /* "TransferPlatform": platforms that positions go to */
} CFG_GPS_INFO;

/* "GPSLocationVersion": layout of the positions that a device reports. The reply's length is added to what
 * `returnedLength` holds. */
typedef struct CFG_GPS_LOCATION_VERSION_INFO {
    uint32_t nVersion; /* "Version" */
} CFG_GPS_LOCATION_VERSION_INFO;

/* "OilMassInfo": the fuel gauge of a vehicle. */
typedef struct CFG_OIL_MASS_INFO {
    int32_t nTankVolume;     /* "TankVolume": litres */
    int32_t nNotifyInterval; /* "NotifyInterval": between two reports, seconds */
    int32_t nLowOil;         /* "LowOil": percent below which there is an alarm */
    int32_t nAlarmInterval;  /* "AlarmInterval": between two alarms, seconds */
} CFG_OIL_MASS_INFO;

/* "EmergencyRecordForPull": recording that a platform asks for in an emergency. */
typedef struct CFG_EMERGENCY_RECORD_FOR_PULL_INFO {
    int32_t bEnable;  /* "Enable" */
    int32_t nMaxTime; /* "MaxTime": longest recording, seconds */
} CFG_EMERGENCY_RECORD_FOR_PULL_INFO;

#ifdef __cplusplus
}
#endif

#endif
