/* Master and slave: a fixed camera that sees everything steers a dome that looks closer.
 *
 * Keys that are absent leave 0 unless told otherwise. */
#ifndef ORRERY_TRACKER_H
#define ORRERY_TRACKER_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* How far the dome zooms in ("ZoomType"). Names are read with case folded; every other name leaves the field as it is,
 * and other codes are not written. */
typedef enum CFG_TRACKER_ZOOM {
    CFG_TRACKER_ZOOM_STATIONARY = 0, /* "StationaryExpectMultiple": to a magnification that is set */
    CFG_TRACKER_ZOOM_IVS = 1,        /* "IVSAdaptive": as the analysis finds best */
    CFG_TRACKER_ZOOM_EXPECT = 2      /* "ExpectMultipleAdaptive": until the target has the size that is set */
} CFG_TRACKER_ZOOM;

/* Who chooses what the dome follows ("TrackingMode"). Names are read with case folded; every other name leaves the
 * field as it is, and other codes are not written. */
typedef enum CFG_TRACKING_MODE {
    CFG_TRACKING_ALARM = 0,            /* "AlarmTrack": alarms */
    CFG_TRACKING_MANUAL_OBJECT = 1,    /* "ManualSelectObjectTrack": an operator, by object */
    CFG_TRACKING_AUTOMATIC_OBJECT = 2, /* "AutomaticSelectObjectTrack": the analysis, by object */
    CFG_TRACKING_POINT = 3,            /* "SelectPointTrack": an operator, by point */
    CFG_TRACKING_MIX = 4,              /* "MixTrack" */
    CFG_TRACKING_SLAVE = 5             /* "SlaveCameraSelfControl": the dome itself */
} CFG_TRACKING_MODE;

/* One kind of camera, and of scene that it is used in. */
typedef struct CFG_CAMERA_TYPE {
    char szType[64];      /* "Type" */
    char szSceneType[64]; /* "SceneType" */
} CFG_CAMERA_TYPE;

#define ORRERY_CAMERA_TYPES 64

/* Kinds of cameras, a list in the text; none is written as null. */
typedef struct CFG_CAMERA_INFO_LIST {
    uint32_t nCount;                               /* kinds in use, at most 64 */
    CFG_CAMERA_TYPE stuTypes[ORRERY_CAMERA_TYPES]; /* the list itself */
} CFG_CAMERA_INFO_LIST;

/* "MasterSlaveTrackerGlobal": settings of all trackers of a device. Numbers read as whole ones lose their fraction, and
 * are written as whole numbers. A text of exactly the capacity loses its newline. */
typedef struct CFG_MASTER_SLAVE_GLOBAL_INFO {
    float fMaxZoom;                     /* "MaxZoom": largest magnification, a whole number */
    float fMinZoom;                     /* "MinZoom": least magnification, a whole number */
    float fExpectMultiple;              /* "ExpectMultiple": magnification for a whole target, a whole number */
    float fPollTrackTime;               /* "PollTrackTime": seconds for each of several targets */
    float fSelectPointTrackTime;        /* "SelectPointTrackTime": seconds at a point */
    float fManualSelectObjectTrackTime; /* "ManualSelectObjectTrackTime": seconds with an object */
    float fExpectMultipleEngleX;        /* "ExpectMultipleEngleX": a whole number */
    float fExpectMultipleEngleY;        /* "ExpectMultipleEngleY": a whole number */
    float fTargetFaceSize[2];           /* "TargetFaceSize": width and height of a face, whole numbers */
    float fMinFocus;                    /* "MinFocus": shortest focal length, a whole number */
    float fMaxFocus;                    /* "MaxFocus": longest focal length, a whole number */
    int32_t emZoomType;                 /* "ZoomType": CFG_TRACKER_ZOOM */
    int32_t emTrackingMode;             /* "TrackingMode": CFG_TRACKING_MODE */
    CFG_CAMERA_INFO_LIST stuCamera;     /* "CameraInfo"."Camera": the masters */
    CFG_CAMERA_INFO_LIST stuDome;       /* "CameraInfo"."Dome": the slaves */
    int32_t nTrackZoomLevel;            /* "TrackZoomLevel" */
    uint32_t bReturnPtzPreset;          /* "ReturnPtzPreset": back to the preset when nothing is followed */
} CFG_MASTER_SLAVE_GLOBAL_INFO;

/* A point of the master's picture and where the dome has to look for it. */
typedef struct CFG_CALIBRATE_POINT_PAIR {
    int32_t nMasterPoint[2]; /* "masterPoint": x and y */
    float fSlavePoint[3];    /* "slavePoint": pan, tilt and zoom */
} CFG_CALIBRATE_POINT_PAIR;

#define ORRERY_CALIBRATE_NUMBERS 32
#define ORRERY_CALIBRATE_PAIRS 10

/* How one master and one slave lie to each other. */
typedef struct CFG_CALIBRATE_MATRIX {
    char szMasterSn[128];                                      /* "MasterSN": serial number; read from texts only */
    char szSlaveSn[128];                                       /* "SlaveSN": serial number; read from texts only */
    uint32_t nMatrixCount;                                     /* numbers in use, at most 32 */
    uint32_t dwMatrix[ORRERY_CALIBRATE_NUMBERS];               /* "Matrix": the device's own numbers */
    uint32_t nPointPairCount;                                  /* pairs in use, at most 10 */
    CFG_CALIBRATE_POINT_PAIR stuPairs[ORRERY_CALIBRATE_PAIRS]; /* "pointPair": a null keeps its place */
    uint32_t bExpectRatio; /* 1 when "ExpectRatio" was a list; it is written only when
                              set */
    float fExpectRatio[2]; /* "ExpectRatio": of the target's width and height to the
                              picture's */
} CFG_CALIBRATE_MATRIX;

/* "CalibrateMatrix": all calibrations, a list, in an array of the caller's; each is cleared before it is read. Reading
 * fails without an array or room in it, and when the table is missing or no list. */
typedef struct CFG_CALIBRATE_MATRIX_INFO {
    CFG_CALIBRATE_MATRIX* pstuMatrices; /* input: the caller's array */
    uint32_t nMaxCount;                 /* input: its room */
    uint32_t nReturnCount;              /* calibrations read, at most nMaxCount; calibrations to write */
} CFG_CALIBRATE_MATRIX_INFO;

#define ORRERY_TRACKING_MODES 6

/* "capsManager.get&MasterSlaveTracker": what a device can track with; read only. A reply without "result" is taken, one
 * without "caps" succeeds with a record of zeros. */
typedef struct CFG_MASTER_SLAVE_CAPS {
    uint32_t nModeCount;                    /* modes in use, at most 6 */
    int32_t emModes[ORRERY_TRACKING_MODES]; /* "SupportedTrackingMode": CFG_TRACKING_MODE */
    CFG_CAMERA_INFO_LIST stuCamera;         /* "SupportedCameraInfo"."Camera": masters */
    CFG_CAMERA_INFO_LIST stuDome;           /* "SupportedCameraInfo"."Dome": slaves */
} CFG_MASTER_SLAVE_CAPS;

/* "masterSlaveTracker.factory.getCollect": how many channels track; read only. */
typedef struct CFG_MASTER_SLAVE_COLLECT {
    int32_t nChannels; /* "params"."channels", the value of the reply: 0 when absent, which succeeds */
} CFG_MASTER_SLAVE_COLLECT;

#define ORRERY_MASTER_SLAVE_MEMBERS 32

/* One camera of a group. */
typedef struct CFG_MASTER_SLAVE_MEMBER {
    int32_t nMasterType; /* "MasterType" */
    int32_t nType;       /* "Type" */
    int32_t nMaster;     /* "Master" */
    int32_t nChannel;    /* "Channel" */
    char szSerial[48];   /* "Serial": serial number */
    int32_t nSlaver;     /* "Slaver" */
    int32_t nRegion[4];  /* "Region": left, top, right, bottom */
} CFG_MASTER_SLAVE_MEMBER;

/* "MasterSlaveGroup": cameras that track together, one object or a list; always written as a list. The reply's length
 * is added to what returnedLength holds. */
typedef struct CFG_MASTER_SLAVE_GROUP_INFO {
    char szName[64];                                               /* "Name" */
    uint32_t nGroupCount;                                          /* cameras in use, at most 32 */
    CFG_MASTER_SLAVE_MEMBER stuGroup[ORRERY_MASTER_SLAVE_MEMBERS]; /* "Group" */
} CFG_MASTER_SLAVE_GROUP_INFO;

/* "MasterSlaveGlobal": settings of all groups, one object or a list. The reply's length is added to what returnedLength
 * holds. */
typedef struct CFG_MASTER_SLAVE_CONFIG_INFO {
    uint32_t bEnable;          /* "Enable" */
    uint32_t bAutoTrack;       /* "AutoTrack" */
    int32_t nAutoTrackTime;    /* "AutoTrackTime": seconds */
    int32_t nLocateUnlockTime; /* "LocateUnlockTime": seconds until a located target is let go */
    int32_t nPriorityArea[4];  /* "PriorityArea": left, top, right, bottom of where targets go first */
} CFG_MASTER_SLAVE_CONFIG_INFO;

#ifdef __cplusplus
}
#endif

#endif
