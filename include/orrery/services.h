/* What a device offers and who is logged in. Replies only: none of these is written. What a reply leaves out is zero.
 */
#ifndef ORRERY_SERVICES_H
#define ORRERY_SERVICES_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_SERVICES 128

/* "system.listService": names of a device's services, from the reply's "service". A reply without a list of them has
 * none. */
typedef struct CFG_SERVICE_LIST_INFO {
    int32_t nServiceNum;                   /* services read; an element that is null is not counted */
    char szServices[ORRERY_SERVICES][128]; /* names in the order of the reply, bytes as they stand. A null leaves its
                                              entry empty, so that entries at and behind nServiceNum may be in use */
} CFG_SERVICE_LIST_INFO;

#define ORRERY_NET_TYPES 8

/* "netApp.getCaps": network cards and which of them goes first, from the reply's "caps". Without "caps" the call
 * succeeds with a length of 0; a refused call, and a text that is no JSON, set the length to 0. */
typedef struct CFG_NET_APP_CAPS {
    int32_t nNetCardCount;                 /* "NetAccessPriority"."NetCardCount" */
    int32_t nNetTypeNum;                   /* entries of szNetTypes in use */
    char szNetTypes[ORRERY_NET_TYPES][64]; /* "NetAccessPriority"."NetTypes": kinds of network, those that go first in
                                              front; nulls among them are passed over */
} CFG_NET_APP_CAPS;

/* From the least to the most that may be set. */
typedef struct CFG_CAPS_RANGE {
    int32_t nMin; /* "Min" */
    int32_t nMax; /* "Max" */
} CFG_CAPS_RANGE;

/* "eventManager.getCaps": what a device can do when an event fires, from the reply's "caps". Without "caps" it can do
 * nothing. */
typedef struct CFG_EVENT_MANAGER_CAPS {
    int32_t bTimeSectionEnable;      /* "TimeSectionEnable": arms by schedule */
    int32_t bRecordEnable;           /* "RecordEnable": records */
    int32_t bAlarmOutEnable;         /* "AlarmOutEnable": switches alarm outputs */
    int32_t bPtzLinkEnable;          /* "PtzLinkEnable": turns cameras */
    int32_t bSnapshotEnable;         /* "SnapshotEnable": takes pictures */
    int32_t bMailEnable;             /* "MailEnable": sends mail */
    int32_t bBeepEnable;             /* "BeepEnable": beeps */
    int32_t bDejitterEnable;         /* "DejitterEnable": passes over short signals */
    int32_t bTipEnable;              /* "TipEnable": shows a tip on the local screen */
    int32_t bMonitorTourEnable;      /* "MonitorTourEnable": tours channels on a monitor */
    int32_t bMMSEnable;              /* "MMSEnable": sends picture messages */
    int32_t bSupportAlarmBell;       /* "SupportAlarmBell": rings bells */
    int32_t bSupportAlarmServer;     /* "SupportAlarmServer": reports to an alarm server */
    int32_t bSupportPtzLinkDelay;    /* "SupportPtzLinkDelay": turns cameras after a delay */
    int32_t bSupportPSTNAlarmServer; /* "SupportPSTNAlarmServer": reports over the telephone line */
    int32_t bSupportAccessControl;   /* "SupportAccessControl": opens and closes doors */
    int32_t bVoiceEnable;            /* "VoiceEnable": speaks */
    int32_t bLogEnable;              /* "LogEnable": keeps a log */
    CFG_CAPS_RANGE stuAlarmOutLatch; /* "AlarmOutLatch": seconds that an output may stay on */
    CFG_CAPS_RANGE stuRecordLatch;   /* "RecordLatch": seconds that recording may go on */
    CFG_CAPS_RANGE stuDejitterRange; /* "DejitterRange": seconds that a signal may have to last */
} CFG_EVENT_MANAGER_CAPS;

/* "capsManager.get&EventManagerEventHandler": the first of the above, from the reply's "caps". Without "caps" it can do
 * nothing. */
typedef struct CFG_EVENTHANDLER_CAPS_INFO {
    int32_t bTimeSectionEnable; /* "TimeSectionEnable": arms by schedule */
    int32_t bRecordEnable;      /* "RecordEnable": records */
    int32_t bAlarmOutEnable;    /* "AlarmOutEnable": switches alarm outputs */
    int32_t bPtzLinkEnable;     /* "PtzLinkEnable": turns cameras */
    int32_t bSnapshotEnable;    /* "SnapshotEnable": takes pictures */
    int32_t bMailEnable;        /* "MailEnable": sends mail */
    int32_t bBeepEnable;        /* "BeepEnable": beeps */
    int32_t bDejitterEnable;    /* "DejitterEnable": passes over short signals */
    int32_t bTipEnable;         /* "TipEnable": shows a tip on the local screen */
    int32_t bMonitorTourEnable; /* "MonitorTourEnable": tours channels on a monitor */
} CFG_EVENTHANDLER_CAPS_INFO;

/* "RecordFinder.getCaps", from the reply's "caps". A missing one reads as an empty one. */
typedef struct CFG_RECORD_FINDER_CAPS {
    int32_t nMaxPageSize; /* "MaxPageSize": most entries that a page of a query may have */
} CFG_RECORD_FINDER_CAPS;

/* Kinds of device. The names compare with ASCII case folded. */
typedef enum CFG_DEVICE_CLASS {
    CFG_DEVICE_CLASS_UNKNOWN = 0,       /* "", and every text that is none of these */
    CFG_DEVICE_CLASS_DVR,               /* "DVR": digital video recorder */
    CFG_DEVICE_CLASS_HVR,               /* "HVR": recorder of analog and network cameras */
    CFG_DEVICE_CLASS_NVR,               /* "NVR": network video recorder */
    CFG_DEVICE_CLASS_EVS,               /* "EVS": recorder with storage arrays */
    CFG_DEVICE_CLASS_MDVR,              /* "MDVR": recorder in a vehicle */
    CFG_DEVICE_CLASS_MNVR,              /* "MNVR": network recorder in a vehicle */
    CFG_DEVICE_CLASS_PORTABLE_DVR,      /* "PortableDVR" */
    CFG_DEVICE_CLASS_NVS,               /* "NVS": network video server */
    CFG_DEVICE_CLASS_DVS,               /* "DVS": digital video server */
    CFG_DEVICE_CLASS_IPC,               /* "IPC": network camera */
    CFG_DEVICE_CLASS_IP_SPEED_DOME,     /* "IPSpeedDome": network speed dome */
    CFG_DEVICE_CLASS_SPEED_DOME,        /* "SpeedDome" */
    CFG_DEVICE_CLASS_IP_POSITIONER,     /* "IPPositioner": network camera on a positioner */
    CFG_DEVICE_CLASS_FISHEYE_CAMERA,    /* "FisheyeCamera" */
    CFG_DEVICE_CLASS_PANORAMIC_CAMERA,  /* "PanoramicCamera" */
    CFG_DEVICE_CLASS_THERMAL_CAMERA,    /* "ThermalCamera" */
    CFG_DEVICE_CLASS_BODY_CAMERA,       /* "BodyCamera" */
    CFG_DEVICE_CLASS_DOOR_CAMERA,       /* "DoorCamera" */
    CFG_DEVICE_CLASS_TRAFFIC_CAMERA,    /* "TrafficCamera" */
    CFG_DEVICE_CLASS_PARKING_CAMERA,    /* "ParkingCamera" */
    CFG_DEVICE_CLASS_PARKING_GUIDE,     /* "ParkingGuide" */
    CFG_DEVICE_CLASS_PARKING_SCREEN,    /* "ParkingScreen" */
    CFG_DEVICE_CLASS_PARKING_BARRIER,   /* "ParkingBarrier" */
    CFG_DEVICE_CLASS_SIGNAL_DETECTOR,   /* "SignalDetector" */
    CFG_DEVICE_CLASS_VEHICLE_DETECTOR,  /* "VehicleDetector" */
    CFG_DEVICE_CLASS_SPEED_RADAR,       /* "SpeedRadar": measures speed */
    CFG_DEVICE_CLASS_AREA_RADAR,        /* "AreaRadar": watches an area */
    CFG_DEVICE_CLASS_VIDEO_DECODER,     /* "VideoDecoder" */
    CFG_DEVICE_CLASS_VIDEO_ENCODER,     /* "VideoEncoder" */
    CFG_DEVICE_CLASS_VIDEO_MATRIX,      /* "VideoMatrix" */
    CFG_DEVICE_CLASS_VIDEO_WALL,        /* "VideoWall" */
    CFG_DEVICE_CLASS_CONTROL_KEYBOARD,  /* "ControlKeyboard" */
    CFG_DEVICE_CLASS_STORAGE_SERVER,    /* "StorageServer" */
    CFG_DEVICE_CLASS_STORAGE_CLUSTER,   /* "StorageCluster" */
    CFG_DEVICE_CLASS_ANALYSIS_SERVER,   /* "AnalysisServer" */
    CFG_DEVICE_CLASS_DIAGNOSIS_SERVER,  /* "DiagnosisServer" */
    CFG_DEVICE_CLASS_MANAGEMENT_SERVER, /* "ManagementServer" */
    CFG_DEVICE_CLASS_ALARM_HOST,        /* "AlarmHost" */
    CFG_DEVICE_CLASS_ALARM_BOX,         /* "AlarmBox" */
    CFG_DEVICE_CLASS_ALARM_KEYBOARD,    /* "AlarmKeyboard" */
    CFG_DEVICE_CLASS_ACCESS_CONTROLLER, /* "AccessController" */
    CFG_DEVICE_CLASS_ACCESS_TERMINAL,   /* "AccessTerminal" */
    CFG_DEVICE_CLASS_DOOR_STATION,      /* "DoorStation": at a door */
    CFG_DEVICE_CLASS_INDOOR_STATION,    /* "IndoorStation": inside a home */
    CFG_DEVICE_CLASS_GUARD_STATION,     /* "GuardStation": of a guard */
    CFG_DEVICE_CLASS_SMART_GATEWAY,     /* "SmartGateway": of a home */
    CFG_DEVICE_CLASS_COUNT
} CFG_DEVICE_CLASS;

/* "magicBox.getDeviceClass": what kind of device it is, from the reply's "type". A missing one is no failure. */
typedef struct CFG_DEVICE_CLASS_INFO {
    int32_t emDeviceClass; /* the value itself: CFG_DEVICE_CLASS, 0 for every other text or type */
} CFG_DEVICE_CLASS_INFO;

#define ORRERY_ACTIVE_USERS 64

/* A user who is logged in. */
typedef struct CFG_ACTIVE_USER {
    int32_t nId;               /* "Id": of the session */
    char szName[64];           /* "Name" */
    char szGroup[64];          /* "Group": user group */
    int32_t nGroupLevel;       /* "GroupLevel" */
    char szClientType[64];     /* "ClientType": such as "Web" */
    char szClientAddress[256]; /* "ClientAddress": IP address or host name */
    NET_TIME stuLoginTime;     /* "LoginTime": "2026-11-20 09:30:00"; zero when absent */
} CFG_ACTIVE_USER;

/* "userManager.getActiveUserInfoAll": users who are logged in, from the reply's "users", whatever "result" says. A
 * reply without a list of them has none. */
typedef struct CFG_ACTIVE_USER_INFO_ALL {
    int32_t nCount;                                /* entries of stuUsers in use */
    CFG_ACTIVE_USER stuUsers[ORRERY_ACTIVE_USERS]; /* the elements of "users" */
} CFG_ACTIVE_USER_INFO_ALL;

#ifdef __cplusplus
}
#endif

#endif
