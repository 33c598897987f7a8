/* What a device watches: alarm inputs, network alarms, motion, video loss, blinded cameras, storage and network faults.
 *
 * All but "MotionDetect" are read from the reply of a refused call too. A text of exactly the capacity is taken and
 * loses its newline, but for "MotionDetect" and "ExAlarm". */
#ifndef ORRERY_ALARM_INPUT_H
#define ORRERY_ALARM_INPUT_H

#include "orrery/linkage.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Contact of a sensor at rest ("SensorType"). */
enum {
    CFG_SENSOR_NORMALLY_CLOSED = 0, /* "NC" */
    CFG_SENSOR_NORMALLY_OPEN = 1    /* "NO"; read from every other text too, and written for every other code */
};

/* How an input takes part in arming ("EnableControl"). */
enum {
    CFG_ENABLE_NORMAL = 0,        /* "Normal"; absent and unknown texts too */
    CFG_ENABLE_ALWAYS = 1,        /* "EnableAlways" */
    CFG_ENABLE_DISABLE_ONCE = 2,  /* "DisableOnce" */
    CFG_ENABLE_DISABLE_ALWAYS = 3 /* "DisableAlways" */
};

/* "Alarm": an alarm input. "ExAlarm": an input of an extension box; it takes a record an element of a list, or one
 * record from an object, refuses other types and an empty list, writes one whole record bare and several as a list, and
 * its text must be shorter than the capacity. Keys that are absent leave 0 unless told otherwise; codes without a text
 * are not written. */
typedef struct CFG_ALARM_INPUT_INFO {
    int32_t nChannel;                       /* the reply's "channel", in every record of a list; not written */
    int32_t bEnable;                        /* "Enable" */
    char szName[64];                        /* "Name" */
    int32_t nSensorType;                    /* "SensorType": CFG_SENSOR_... */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler"; of "Alarm" with the week */
    int32_t abDeviceID;                     /* 1 when "ID" was there; "ID" is written in every case */
    char szDeviceID[128];                   /* "ID" */
    int32_t nPole;                          /* "Pole": polarity of the contact, 0 or 1 */
    int32_t emSenseMethod;                  /* "SenseMethod": EM_SENSE_METHOD, -1 when absent or unknown */
    int32_t emEnableControl;                /* "EnableControl": CFG_ENABLE_... */
    int32_t nDisableDelay;                  /* "DisableDelay": seconds */
    int32_t emDefenceAreaType;              /* "DefenceAreaType": EM_DEFENCE_AREA_TYPE */
    int32_t nEnableDelay;                   /* "EnableDelay": seconds */
    int32_t nSlot;                          /* "Slot": root address, -1 when absent; -1 is not written */
    int32_t nLevel1;                        /* "Level1": first cascade address, as nSlot */
    int32_t abLevel2;                       /* 1 when "Level2" was there; "Level2" is written only when set */
    int32_t nLevel2;                        /* "Level2": second cascade address, -1 when absent */
} CFG_ALARM_INPUT_INFO;

/* "NetAlarm": an alarm that reaches the device through the network. */
typedef struct CFG_NET_ALARM_INFO {
    int32_t nChannel;                       /* in no text; for the client's own use */
    int32_t bEnable;                        /* "Enable" */
    char szName[64];                        /* "Name" */
    int32_t nSensorType;                    /* "SensorType": CFG_SENSOR_... */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler", with the week */
} CFG_NET_ALARM_INFO;

#define ORRERY_MOTION_ROWS 32
#define ORRERY_MOTION_COLS 32
#define ORRERY_MOTION_READ_COLS 22 /* cells of a row in what devices send */
#define ORRERY_MOTION_WINDOWS 10

/* A motion window as a rectangle. */
typedef struct CFG_MOTION_WINDOW {
    int32_t nThreshold; /* "Threshold": share of the window that must change, 0 to 100 */
    int32_t nSensitive; /* "Sensitive": 0 to 100 */
    CFG_RECT stuWindow; /* "Window"; missing numbers read as 0 */
} CFG_MOTION_WINDOW;

/* A motion window as a grid of cells. */
typedef struct CFG_MOTION_REGION_WINDOW {
    int32_t nId;                                              /* "Id" */
    char szName[64];                                          /* "Name" */
    int32_t nThreshold;                                       /* "Threshold" */
    int32_t nSensitive;                                       /* "Sensitive" */
    int32_t nRow;                                             /* rows of byRegion in use */
    int32_t nCol;                                             /* cells of a row; always 22 after reading */
    uint8_t byRegion[ORRERY_MOTION_ROWS][ORRERY_MOTION_COLS]; /* "Region": 1 watched, 0 not; a number a row, the
                                                                 leftmost cell in its highest bit of nCol */
} CFG_MOTION_REGION_WINDOW;

/* "MotionDetect". A missing table reads as an empty one. A pack that fails leaves the text buffer as it was, and one
 * that succeeds what is behind the terminator. */
typedef struct CFG_MOTION_DETECT_INFO {
    int32_t nChannel; /* in no text; for the client's own use */
    int32_t bEnable;  /* "Enable" */
    int32_t nLevel;   /* "Level": sensitivity, 1 to 6 */
    int32_t nRow;     /* "Row", or else the rows of "Region" */
    int32_t nCol;     /* "Col", or else 22 when "Region" was there */
    uint8_t byRegion[ORRERY_MOTION_ROWS]
                    [ORRERY_MOTION_COLS];   /* "Region": 1 watched, 0 not; a number a row, the leftmost
                                               cell in its lowest bit. Written true at exactly 1 */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler", with the week */
    int32_t bRead;                          /* 1 once a text has been parsed, also when the device refused the call */
    int32_t abLevel;
    int32_t abVolumeRatio;
    int32_t nVolumeRatio; /* "VolumeRatio": share of the picture that must change, 0 to 100 */
    int32_t abSubRatio;
    int32_t nSubRatio;                                  /* "SubRatio": change of brightness of a cell, 0 to 100 */
    int32_t abWindow;                                   /* stuWindow is in use */
    int32_t nWindowNum;                                 /* elements of "MotionDetectWindow", at most 10 */
    CFG_MOTION_WINDOW stuWindow[ORRERY_MOTION_WINDOWS]; /* those of "MotionDetectWindow" with a "Window" */
    int32_t abRegionWindow;   /* stuRegionWindow is in use; "DetectVersion" is then written as "V3.0", else "V1.0" with
                                 "Level", "Region", "Row" and "Col" */
    int32_t nRegionWindowNum; /* elements of "MotionDetectWindow", at most 10 */
    CFG_MOTION_REGION_WINDOW stuRegionWindow[ORRERY_MOTION_WINDOWS]; /* those with a "Region" */
} CFG_MOTION_DETECT_INFO;

/* "LossDetect": the video signal is gone. */
typedef struct CFG_LOSS_DETECT_INFO {
    int32_t nChannel;                       /* in no text; for the client's own use */
    int32_t bEnable;                        /* "Enable"; written true at exactly 1 */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler", with the week */
} CFG_LOSS_DETECT_INFO;

/* "BlindDetect": the camera is covered. */
typedef struct CFG_BLIND_DETECT_INFO {
    int32_t nChannel;                       /* in no text; for the client's own use */
    int32_t bEnable;                        /* "Enable"; written true at exactly 1 */
    int32_t nLevel;                         /* "Level": sensitivity, 1 to 6 */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler", with the week */
} CFG_BLIND_DETECT_INFO;

/* "StorageNotExist" (no disk), "StorageFailure" (disk fault), "NetAbort" (network gone), "IPConflict", "MacConflict",
 * "PSTNBreakLine" (telephone line gone). */
typedef struct CFG_STORAGE_ALARM_INFO {
    int32_t bEnable;                        /* "Enable" */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler" */
} CFG_STORAGE_ALARM_INFO;

/* "StorageLowSpace": the disks are nearly full. */
typedef struct CFG_STORAGE_LOWSPACE_INFO {
    int32_t bEnable;                        /* "Enable" */
    int32_t nLowerLimit;                    /* "LowerLimit": least free space, percent */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler" */
} CFG_STORAGE_LOWSPACE_INFO;

#ifdef __cplusplus
}
#endif

#endif
