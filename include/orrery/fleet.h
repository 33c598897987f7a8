/* Vehicles, roads, and the platforms that devices report to.
 *
 * The length of a call is added to: set it to 0 first. A table that is null or absent reads nothing and adds nothing;
 * one of another type than told is a record without keys. Records told as "one or a list" are read from an array, a
 * record an element (a null element leaves its record cleared and is not counted; an empty array is one record without
 * keys), or from anything else as one record; as many are read as fit the buffer. They are written bare when exactly
 * one fits the size, else as a list. All others are one record, written bare. Texts must be shorter than their buffer.
 * Keys that are absent leave 0; all keys are written unless told otherwise. */
#ifndef ORRERY_FLEET_H
#define ORRERY_FLEET_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_POLICE_MAPS 64

/* "Vehicle": the vehicle that carries the device; one or a list. */
typedef struct CFG_VEHICLE_PLATE_INFO {
    char szPlateNumber[32]; /* "PlateNumber" */
} CFG_VEHICLE_PLATE_INFO;

/* "IdlingTime": when a vehicle stands with its engine running; one or a list. */
typedef struct CFG_IDLING_TIME_INFO {
    int32_t nIdlingTimeThreshold; /* "IdlingTimeThreshold": seconds */
    int32_t nSpeedThreshold;      /* "SpeedThreshold": km/h below which it stands */
} CFG_IDLING_TIME_INFO;

/* "CarDiverState": how hard somebody drives; one or a list. */
typedef struct CFG_CAR_DRIVER_STATE_INFO {
    int32_t nAccelerationThreshold; /* "AccelerationThreshold": speeding up beyond it is reported */
    int32_t nDecelerationThreshold; /* "DecelerationThreshold": braking beyond it is reported */
} CFG_CAR_DRIVER_STATE_INFO;

/* "TesseraRadar": a speed radar; one or a list. Speeds are km/h. */
typedef struct CFG_TESSERA_RADAR_INFO {
    int32_t nAngle;                 /* "Angle": between its beam and the road, degrees */
    int32_t nDetectMode;            /* "DetectMode": cars that come, that go or both, as the device numbers it */
    int32_t nSensitivity;           /* "Sensitivity": 0 to 5 */
    char szName[256];               /* "Name" */
    int32_t bLowSpeedTrigger;       /* "LowSpeedTrigger": slow cars are captured too */
    int32_t bSpeedLimitForSize;     /* "SpeedLimitForSize": each size of car has limits of its own */
    int32_t nSmallCarTriggerSpeed;  /* "SmallCarTriggerSpeed": from it on small cars are captured */
    int32_t nSmallCarSpeedLimit;    /* "SmallCarSpeedLimit": of small cars */
    int32_t nMediumCarSpeedLimit;   /* "MediumCarSpeedLimit": of medium cars */
    int32_t nMediumCarTriggerSpeed; /* "MediumCarTriggerSpeed": from it on medium cars are captured */
    int32_t nBigCarSpeedLimit;      /* "BigCarSpeedLimit": of big cars */
    int32_t nBigCarTriggerSpeed;    /* "BigCarTriggerSpeed": from it on big cars are captured */
} CFG_TESSERA_RADAR_INFO;

/* Two speeds, km/h. Text form: [ from, to ], exactly two numbers: other values are not read. */
typedef struct CFG_SPEED_RANGE {
    int32_t nFrom;
    int32_t nTo;
} CFG_SPEED_RANGE;

/* "RadarSpeedMeasure": speeds that a radar tells. */
typedef struct CFG_RADAR_SPEED_MEASURE_INFO {
    CFG_SPEED_RANGE stuSpeedMeasureLimit; /* "SpeedMeasureLimit": what it measures */
    CFG_SPEED_RANGE stuSpeedUpperLimit;   /* "SpeedUpperLimit": highest speeds allowed */
} CFG_RADAR_SPEED_MEASURE_INFO;

/* "CustomAudio": what a gate says. The caller's record is not cleared, but an absent text reads as empty. */
typedef struct CFG_CUSTOM_AUDIO_INFO {
    char szPlateNotInDB[260]; /* "PlateNotInDB": to cars on no list; the file that is played */
} CFG_CUSTOM_AUDIO_INFO;

/* "PoliceMap": maps that a patrol's device holds. The table is an array of texts; anything else leaves the record
 * cleared. Without any, null is written. */
typedef struct CFG_POLICE_MAP_INFO {
    char szMap[ORRERY_POLICE_MAPS][32]; /* the record itself, a list; what follows 64 of them is passed over */
    int32_t nCount;                     /* entries of szMap in use */
} CFG_POLICE_MAP_INFO;

/* "DevLocation": where a device stands; one or a list. */
typedef struct CFG_DEV_LOCATION_INFO {
    uint32_t nLongitude; /* "Longitude": in millionths of a degree, from 180 degrees west as a rule */
    uint32_t nLatitude;  /* "Latitude": in millionths of a degree, from the south pole as a rule */
    float fAltitude;     /* "Altitude": metres */
    int32_t bEnable;     /* "Enable" */
} CFG_DEV_LOCATION_INFO;

/* "DeviceInfo": a device as it names itself; one or a list. Read only. */
typedef struct CFG_DEVICE_IDENTITY_INFO {
    char szSerial[64];     /* "Serial": serial number */
    char szMode[64];       /* "Mode": model */
    char szResolution[16]; /* "Resolution": such as "1080P" */
    char szCameraID[16];   /* "CameraID" */
} CFG_DEVICE_IDENTITY_INFO;

/* "CheckCode": the code by which a platform knows the device. */
typedef struct CFG_CHECK_CODE_INFO {
    int32_t bEnable; /* "Enable" */
    char szCode[32]; /* "Code" */
} CFG_CHECK_CODE_INFO;

/* "VSP_SCYDKD": a carrier's platform. */
typedef struct CFG_VSP_SCYDKD_INFO {
    int32_t bEnable;      /* "Enable" */
    char szServerIP[128]; /* "ServerIP": address or host name */
    int32_t nServerPort;  /* "ServerPort" */
    char szDeviceID[32];  /* "DeviceID": by which the platform knows the device */
    char szUserName[32];  /* "UserName" */
} CFG_VSP_SCYDKD_INFO;

/* How a platform's camera is spoken to ("ProtocolType"); other texts read as 0, other codes are written as its text. */
enum {
    CFG_PLATFORM_IPC_TESSERA3 = 0, /* "Tessera3" */
    CFG_PLATFORM_IPC_ONVIF = 1     /* "Onvif" */
};

/* Stream of a platform's camera ("StreamType"); other texts read as 0, other codes are written as its text. */
enum {
    CFG_PLATFORM_STREAM_MAIN = 0,  /* "Main" */
    CFG_PLATFORM_STREAM_EXTRA1 = 1 /* "Extra1" */
};

/* "PlatformMonitorIPC": a camera that a platform watches; one or a list. */
typedef struct CFG_PLATFORM_MONITOR_IPC_INFO {
    char szAddress[128];    /* "Address": address or host name */
    char szUserName[64];    /* "UserName" */
    char szPassword[64];    /* "Password" */
    int32_t nPort;          /* "Port" */
    int32_t nChannel;       /* "Channel": from 0 */
    int32_t bEnable;        /* "Enable" */
    int32_t emProtocolType; /* "ProtocolType": CFG_PLATFORM_IPC_... */
    int32_t emStreamType;   /* "StreamType": CFG_PLATFORM_STREAM_... */
} CFG_PLATFORM_MONITOR_IPC_INFO;

/* "DelayStrategy": how long a device serves somebody who has not paid; one or a list. */
typedef struct CFG_DELAY_STRATEGY_INFO {
    int32_t bEnable;         /* "Enable" */
    int32_t nArrearsTerm;    /* "ArrearsTerm": days in arrears */
    int32_t nPreArrearsTerm; /* "PreArrearsTerm": days of notice before */
} CFG_DELAY_STRATEGY_INFO;

/* "DropBoxToken": leave to store recordings with a service on the network; one or a list. */
typedef struct CFG_DROP_BOX_TOKEN_INFO {
    char szKey[128];   /* "Key" */
    int32_t bKeyValid; /* "KeyValid": the service takes it */
} CFG_DROP_BOX_TOKEN_INFO;

#ifdef __cplusplus
}
#endif

#endif
