/* What a device says of its state. Replies only: none of these is written. */
#ifndef ORRERY_DEVICE_STATUS_H
#define ORRERY_DEVICE_STATUS_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_POWERS 16
#define ORRERY_CPUS 16
#define ORRERY_FANS 32

/* A power supply. */
typedef struct CFG_POWER_STATUS {
    int32_t nStatus; /* "Status": the device's number of its state */
} CFG_POWER_STATUS;

/* A processor. */
typedef struct CFG_CPU_STATUS {
    int32_t nTemperature; /* "Temperature": degrees Celsius */
} CFG_CPU_STATUS;

/* A fan. */
typedef struct CFG_FAN_STATUS {
    int32_t nRotatoSpeed; /* "RotatoSpeed": turns a minute */
} CFG_FAN_STATUS;

/* "DeviceStatus": power supplies, processors and fans, from the reply's "DeviceStatus", whatever "result" says. What a
 * device has more of is dropped. */
typedef struct CFG_DEVICE_STATUS {
    int32_t nPowerNum;                        /* entries of stuPower in use */
    CFG_POWER_STATUS stuPower[ORRERY_POWERS]; /* "Power" */
    int32_t nCPUNum;                          /* entries of stuCPU in use */
    CFG_CPU_STATUS stuCPU[ORRERY_CPUS];       /* "CPU" */
    int32_t nFanNum;                          /* entries of stuFan in use */
    CFG_FAN_STATUS stuFan[ORRERY_FANS];       /* "FAN" */
} CFG_DEVICE_STATUS;

#define ORRERY_SNAP_DEVICES 16

/* A device that belongs to a traffic camera. */
typedef struct CFG_TRAFFIC_SNAP_DEVICE {
    int32_t nWorkingState; /* "WokingState" (the devices' spelling): the device's number of its state */
    char szSerialNo[260];  /* "SerialNo" */
    char szVendor[260];    /* "Vendor" */
    char szType[260];      /* "Type" */
    uint32_t nLightState;  /* "LightState": of traffic lights, the device's number */
} CFG_TRAFFIC_SNAP_DEVICE;

/* "trafficSnap.getDeviceStatus": the devices of a traffic camera, from the reply's "status", which is a list. */
typedef struct CFG_TRAFFIC_SNAP_DEVICE_STATUS {
    int32_t nCount;                                          /* entries of stuDevices in use */
    CFG_TRAFFIC_SNAP_DEVICE stuDevices[ORRERY_SNAP_DEVICES]; /* the elements of "status" */
} CFG_TRAFFIC_SNAP_DEVICE_STATUS;

#define ORRERY_VIDEO_STATS 256

/* People or vehicles counted in one direction. */
typedef struct CFG_STAT_SUBTOTAL {
    int32_t nTotal;     /* "Total": since counting began */
    int32_t nToday;     /* "Today" */
    int32_t nThisMonth; /* "ThisMonth" */
    int32_t nThisYear;  /* "ThisYear" */
    int32_t nMaxDaily;  /* "MaxDaily": most in a day */
} CFG_STAT_SUBTOTAL;

/* What one counting rule of a channel has counted. */
typedef struct CFG_VIDEO_STAT {
    int32_t nChannel;                     /* "Channel" */
    char szRuleName[128];                 /* "RuleName" */
    uint32_t nUTC;                        /* "UTC": moment of the count, seconds since 1970 */
    CFG_STAT_SUBTOTAL stuEnteredSubtotal; /* "EnteredSubtotal" */
    CFG_STAT_SUBTOTAL stuExitedSubtotal;  /* "ExitedSubtotal" */
    CFG_STAT_SUBTOTAL stuInsideSubtotal;  /* "InsideSubtotal" */
    int32_t nAvgInside;                   /* "AvgInside": inside on average */
    int32_t nMaxInside;                   /* "MaxInside": most inside at a time */
} CFG_VIDEO_STAT;

/* "videoStatServer.getSummary": counts of people or vehicles, from the reply's "summary". */
typedef struct CFG_VIDEO_STAT_SUMMARY {
    int32_t nCount;                              /* entries of stuStats in use */
    CFG_VIDEO_STAT stuStats[ORRERY_VIDEO_STATS]; /* "VideoStatSummary"; what a device has more of is dropped */
} CFG_VIDEO_STAT_SUMMARY;

#ifdef __cplusplus
}
#endif

#endif
