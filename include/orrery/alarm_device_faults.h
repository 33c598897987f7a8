/* Faults that a device watches itself for: each is a switch, a few numbers and what the device does then.
 *
 * The linkage is read in every case: without "EventHandler" it holds what reading an empty one gives. It is the plain
 * form unless told otherwise. "ParkingCard", "NetMonitorAbort", "UserLockAlarm" and "UnFocusDetect" are read from the
 * reply of a refused call too. A text of exactly the capacity is taken and loses its newline, but for "DiskFluxAlarm",
 * "NetFluxAlarm", "TemperatureAlarm" and "FanSpeedAlarm", whose text must be shorter. Keys that are absent leave 0. */
#ifndef ORRERY_ALARM_DEVICE_FAULTS_H
#define ORRERY_ALARM_DEVICE_FAULTS_H

#include "orrery/linkage.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "ChassisIntrusion" (the housing was opened), "Emergency" (the emergency button), "BatteryLowPowerAlarm"; of storage
 * clusters "MCSGeneralCapacityLow", "MCSGeneralCapacityResume", "MCSDataNodeOffline", "MCSDataNodeOnline",
 * "MCSDiskOffline", "MCSDiskOnline", "MCSDiskSlow", "MCSDiskBroken", "MCSDiskUnknowError",
 * "MCSMetadataServerAbnormal", "MCSMetadataSlaveOnline", "MCSCatalogServerAbnormal" and "MCSCatalogServerOnline"; also
 * "ParkingCard" (a card at a gate), "NetMonitorAbort" (the monitored host is gone) and "UserLockAlarm" (a user was
 * locked out), which writes "Enable" and does not read it. */
typedef struct CFG_FAULT_ALARM_INFO {
    int32_t bEnable;                        /* "Enable" */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler" */
} CFG_FAULT_ALARM_INFO;

/* "LoginFailureAlarm": too many wrong passwords. */
typedef struct CFG_LOGIN_FAILURE_INFO {
    int32_t bEnable;                        /* "Enable" */
    int32_t nTryLoginTimes;                 /* "TryLoginTimes": attempts before the alarm */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler" */
} CFG_LOGIN_FAILURE_INFO;

/* "GpsNotAligned" (no fix of the satellites), "WireLessNotConnected" (no mobile network). */
typedef struct CFG_NOTIFY_FAULT_INFO {
    int32_t bEnable;                        /* "Enable" */
    uint32_t nNotifyTimes;                  /* "NotifyTimes": how often to tell */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler" */
} CFG_NOTIFY_FAULT_INFO;

/* "UnFocusDetect": the picture is out of focus. */
typedef struct CFG_UNFOCUS_DETECT_INFO {
    int32_t bEnable;                        /* "Enable" */
    int32_t nSensitivity;                   /* "Sensitivity": 1 to 6 */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler", with the week */
} CFG_UNFOCUS_DETECT_INFO;

#define ORRERY_POWER_FAULTS 8

/* One power supply. */
typedef struct CFG_POWER_FAULT {
    int32_t bEnable;                        /* "Enable" */
    int32_t nCheckInterval;                 /* "CheckInterval": seconds */
    int32_t bEncodeBlend;                   /* "EncodeBlend": the fault is shown in the picture that is encoded */
    CFG_RECT stuRect;                       /* "Rect": where it is shown; 0 to 8191 each way */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler" */
} CFG_POWER_FAULT;

/* "PowerFault": a list, in one record. Other types than a list are refused. An empty list is written as null. */
typedef struct CFG_POWER_FAULT_INFO {
    int32_t nCount;                                 /* entries of stuFaults in use */
    CFG_POWER_FAULT stuFaults[ORRERY_POWER_FAULTS]; /* the elements of the list, at most 8 */
} CFG_POWER_FAULT_INFO;

#define ORRERY_BURN_FULLS 32

/* One burner whose disc is nearly full. */
typedef struct CFG_BURN_FULL {
    int32_t bChangeDisk;                    /* "ChangeDisk": goes on with the next disc */
    int32_t bBurnStop;                      /* "BurnStop": ends burning */
    int32_t bEnable;                        /* "Enable" */
    uint32_t nLowerLimit;                   /* "lowerLimit": least free space, megabytes */
    char szBurnDisk[64];                    /* "BurnDisk": name of the burner */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler" */
    CFG_TIME_SECTION stuTimeSection[ORRERY_WEEK_DAYS]
                                   [ORRERY_DAY_SECTIONS]; /* "TimeSection": the week, beside that of
                                                             the linkage; ends at its first bad cell */
} CFG_BURN_FULL;

/* "BurnFull": a list, in one record. Other types than a list are refused. An empty list is written as null. */
typedef struct CFG_BURN_FULL_INFO {
    int32_t nCount;                              /* entries of stuBurners in use */
    CFG_BURN_FULL stuBurners[ORRERY_BURN_FULLS]; /* the elements of the list, at most 32 */
} CFG_BURN_FULL_INFO;

/* Between these it is as it should be. Text form: [ low, high ], exactly two numbers. */
typedef struct CFG_FLUX_LIMITS {
    uint32_t nLow;
    uint32_t nHigh;
} CFG_FLUX_LIMITS;

/* "DiskFluxAlarm", "NetFluxAlarm": what goes through the disks or the network is out of bounds. */
typedef struct CFG_FLUX_ALARM_INFO {
    int32_t nEnable;                        /* "Enable": 0 or 1; a number in the text */
    CFG_FLUX_LIMITS stuNormal;              /* "Normal": kilobytes a second */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler" */
    CFG_TIME_SECTION stuTimeSection[ORRERY_WEEK_DAYS]
                                   [ORRERY_DAY_SECTIONS]; /* "TimeSection": the week, beside that of
                                                             the linkage; ends at its first bad cell */
} CFG_FLUX_ALARM_INFO;

#define ORRERY_NORMAL_VALUES 8

/* "TemperatureAlarm", "FanSpeedAlarm": a sensor of the housing is out of bounds. The linkage has size words: reading
 * sets all of them, and whoever writes sets them too. */
typedef struct CFG_CLIMATE_ALARM_INFO {
    char szName[128];                          /* "Name": of the sensor */
    int32_t bEnable;                           /* "Enable" */
    int32_t nNormalNum;                        /* entries of fNormal in use */
    float fNormal[ORRERY_NORMAL_VALUES];       /* "Normal": lowest and highest value, degrees Celsius or turns a minute;
                                                  an empty list is written as one */
    CFG_EVENT_HANDLER_V2_INFO stuEventHandler; /* "EventHandler" */
} CFG_CLIMATE_ALARM_INFO;

#ifdef __cplusplus
}
#endif

#endif
