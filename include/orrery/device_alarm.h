/* Settings of a device's own alarms: bells, sound, events of devices behind it, things on the internet.
 *
 * "One record or a list" is a record an element of a list, or one record from an object: other types and an empty list
 * are refused. One whole record is written bare, several as a list. */
#ifndef ORRERY_DEVICE_ALARM_H
#define ORRERY_DEVICE_ALARM_H

#include "orrery/linkage.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Contact of a remote sensor at rest ("SensorType" of "RemoteEvent"). Every other text leaves 0, every other code is
 * not written. */
enum {
    CFG_REMOTE_SENSOR_NORMALLY_OPEN = 0,  /* "NO"; written as "N0" with a digit, as devices expect it */
    CFG_REMOTE_SENSOR_NORMALLY_CLOSED = 1 /* "NC" */
};

/* "RemoteEvent": an event of a device behind this one. */
typedef struct CFG_REMOTE_EVENT_INFO {
    int32_t nEnable;                           /* "Enable": a number, 0 or 1 */
    char szDevice[64];                         /* "Device": its identifier */
    char szCode[64];                           /* "Code": name of the event */
    int32_t nIndex;                            /* "Index": channel or input on that device */
    int32_t emSensorType;                      /* "SensorType": CFG_REMOTE_SENSOR_... */
    CFG_EVENT_HANDLER_V2_INFO stuEventHandler; /* "EventHandler"; reading sets its size words, also without the key */
} CFG_REMOTE_EVENT_INFO;

/* "AlarmBell": how long a bell rings, one record or a list, one a bell. */
typedef struct CFG_ALARM_BELL_INFO {
    int32_t nDelay; /* "Delay": seconds */
} CFG_ALARM_BELL_INFO;

/* "AlarmSlotBond": what a slot for alarm boxes is bound to, one record or a list, one a slot. A text of exactly the
 * text buffer's size is taken and loses its newline. */
typedef struct CFG_ALARM_SLOT_BOND_INFO {
    char szType[64];  /* "Type": of the line, "NetChannel" or "RS485" as a rule */
    int32_t nChannel; /* "Channel": number of the line */
} CFG_ALARM_SLOT_BOND_INFO;

/* "AudioDetect": sound that is too loud, too quiet or changes at once; one record or a list, one a channel. */
typedef struct CFG_AUDIO_DETECT_INFO {
    int32_t bEnable;                        /* "Enable" */
    int32_t nMinVolume;                     /* "MinVolume": 0 to 100 */
    int32_t nMaxVolume;                     /* "MaxVolume": 0 to 100 */
    int32_t bAnomalyDetect;                 /* "AnomalyDetect": sound that should not be */
    int32_t nAnomalySensitive;              /* "AnomalySensitive": 0 to 100 */
    int32_t bMutationDetect;                /* "MutationDetect": sudden changes */
    int32_t nMutationThreold;               /* "MutationThreold": of the change, 0 to 100 (the devices' spelling) */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler" */
} CFG_AUDIO_DETECT_INFO;

#define ORRERY_INFRARED_DETECTORS 8

/* A detector of "IOT_InfraredDetect". */
typedef struct CFG_IOT_INFRARED_DETECTOR {
    int32_t nEnableNum;                         /* entries of bEnable in use */
    int32_t bEnable[ORRERY_INFRARED_DETECTORS]; /* "Enable": by sensor; not written when there are none */
    int32_t nDetectRadius;                      /* "DetectRadius": metres */
} CFG_IOT_INFRARED_DETECTOR;

/* "IOT_InfraredDetect": passive infrared detectors. The reply's table is a list; without entries it is written as
 * null. */
typedef struct CFG_IOT_INFRARED_DETECT_INFO {
    int32_t nCount;                                                /* entries of stuItems in use */
    CFG_IOT_INFRARED_DETECTOR stuItems[ORRERY_INFRARED_DETECTORS]; /* the table's elements, one a detector */
} CFG_IOT_INFRARED_DETECT_INFO;

/* "IOT_RecordHandle": recording when a detector fires. */
typedef struct CFG_IOT_RECORD_HANDLE_INFO {
    int32_t bEnable;     /* "Enable" */
    int32_t nRecordTime; /* "RecordTime": seconds */
} CFG_IOT_RECORD_HANDLE_INFO;

/* "IOT_SnapHandle": pictures when a detector fires. */
typedef struct CFG_IOT_SNAP_HANDLE_INFO {
    int32_t bEnable;  /* "Enable" */
    int32_t nSnapNum; /* "SnapNum": pictures */
} CFG_IOT_SNAP_HANDLE_INFO;

#ifdef __cplusplus
}
#endif

#endif
