/* Events of the device itself: alarm inputs, motion, captures on a schedule, presets, storage. Heads and closing
 * fields: see events_common.h. */
#ifndef ORRERY_EVENTS_OTHER_ALARM_H
#define ORRERY_EVENTS_OTHER_ALARM_H

#include "orrery/events_vehicle.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "VideoMotion" (284): something moved in the picture. */
typedef struct DEV_EVENT_VIDEOMOTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_VIDEOMOTION_INFO;

/* "AlarmLocal" (285): an alarm input of the device. */
typedef struct DEV_EVENT_ALARMLOCAL_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_ALARMLOCAL_INFO;

/* "MultiSceneSwitch" (309): the camera turned to another scene. */
typedef struct DEV_EVENT_MULTISCENESWITCH_INFO {
    ORRERY_EVENT_HEAD_A;
    uint8_t byEventAction;
} DEV_EVENT_MULTISCENESWITCH_INFO;

/* What a sensor measures ("SenseMethod", case folded). The numbers are not those of EM_SENSE_METHOD. */
enum {
    EVENT_SENSE_UNKNOWN = -1,
    EVENT_SENSE_DOOR_MAGNETISM = 0,     /* "DoorMagnetism" */
    EVENT_SENSE_PASSIVE_INFRARED = 1,   /* "PassiveInfrared" */
    EVENT_SENSE_GAS = 2,                /* "GasSensor" */
    EVENT_SENSE_SMOKE = 3,              /* "SmokingSensor" */
    EVENT_SENSE_WATER = 4,              /* "WaterSensor" */
    EVENT_SENSE_ACTIVE_INFRARED = 5,    /* "ActiveInfrared" */
    EVENT_SENSE_GLASS = 6,              /* "GlassSensor" */
    EVENT_SENSE_EMERGENCY_SWITCH = 7,   /* "EmergencySwitch" */
    EVENT_SENSE_SHOCK = 8,              /* "ShockSensor" */
    EVENT_SENSE_DOUBLE_METHOD = 9,      /* "DoubleMethod": infrared and microwave */
    EVENT_SENSE_THREE_METHOD = 10,      /* "ThreeMethod" */
    EVENT_SENSE_TEMPERATURE = 11,       /* "TempSensor" */
    EVENT_SENSE_HUMIDITY = 12,          /* "HumiditySensor" */
    EVENT_SENSE_WIND = 13,              /* "WindSensor" */
    EVENT_SENSE_CALL_BUTTON = 14,       /* "CallButton" */
    EVENT_SENSE_GAS_PRESSURE = 15,      /* "GasPressure" */
    EVENT_SENSE_GAS_CONCENTRATION = 16, /* "GasConcentration" */
    EVENT_SENSE_GAS_FLOW = 17,          /* "GasFlow" */
    EVENT_SENSE_OTHER = 18,             /* "OtherSensor" */
    EVENT_SENSE_OIL = 19,               /* "Oil" */
    EVENT_SENSE_MILEAGE = 20,           /* "MileageSensor" */
    EVENT_SENSE_URGENCY_BUTTON = 21,    /* "UrgencyButton" */
    EVENT_SENSE_STEAL = 22,             /* "Steal" */
    EVENT_SENSE_PERIMETER = 23,         /* "Perimeter" */
    EVENT_SENSE_PREVENT_REMOVE = 24,    /* "PreventRemove" */
    EVENT_SENSE_DOOR_BELL = 25,         /* "DoorBell" */
    EVENT_SENSE_ALTER_VOLT = 26,        /* "AlterVolt": alternating voltage */
    EVENT_SENSE_DIRECT_VOLT = 27,       /* "DirectVolt": direct voltage */
    EVENT_SENSE_ALTER_CURRENT = 28,     /* "AlterCur" */
    EVENT_SENSE_DIRECT_CURRENT = 29,    /* "DirectCur" */
    EVENT_SENSE_RSU_GENERAL = 30,       /* "RSUGeneral" */
    EVENT_SENSE_RSU_DOOR = 31,          /* "RSUDoor" */
    EVENT_SENSE_RSU_POWER_OFF = 32,     /* "RSUPowerOff" */
    EVENT_SENSE_TEMP1500 = 33,          /* "Temp1500" */
    EVENT_SENSE_TEMP_DS18B20 = 34,      /* "TempDS18B20" */
    EVENT_SENSE_HUMIDITY1500 = 35,      /* "Humidity1500" */
    EVENT_SENSE_INFRARED = 36,          /* "Infrared" */
    EVENT_SENSE_FIRE_ALARM = 37,        /* "FireAlarm" */
    EVENT_SENSE_CO2 = 38,               /* "CO2" */
    EVENT_SENSE_SOUND = 39,             /* "Sound" */
    EVENT_SENSE_PM25 = 40,              /* "PM25" */
    EVENT_SENSE_SF6 = 41,               /* "SF6" */
    EVENT_SENSE_O3 = 42,                /* "O3" */
    EVENT_SENSE_AMBIENT_LIGHT = 43      /* "AmbientLight" */
};

/* How a measured value stands to its limits ("status"). */
enum {
    EVENT_ANALOG_UNKNOWN = -1,
    EVENT_ANALOG_NORMAL = 0,  /* "normal" */
    EVENT_ANALOG_INVALID = 1, /* "invalid" */
    EVENT_ANALOG_UPPER1 = 2,  /* "upper1", and on to "upper4" 5: above a limit */
    EVENT_ANALOG_UPPER4 = 5,
    EVENT_ANALOG_LOWER1 = 6, /* "lower1", and on to "lower4" 9: below a limit */
    EVENT_ANALOG_LOWER4 = 9
};

/* "AnalogAlarm" (336): a measured value left its limits. */
typedef struct DEV_EVENT_ANALOGALARM_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    int32_t nIndex;         /* "Index" of the event itself: channel of the input */
    int32_t emSenseMethod;  /* "SenseMethod": EVENT_SENSE_..., -1 for others; 0 when absent */
    int32_t emStatus;       /* "status": EVENT_ANALOG_..., -1 for others and when absent */
    double dValue;          /* "value" */
    EVENT_CALENDAR stuTime; /* "time": when it was measured */
    uint32_t dwFlagMask;
    uint8_t byEventAction;
} DEV_EVENT_ANALOGALARM_INFO;

/* "VideoBlind" (339): the camera is covered. Delivered also without "Data", with an empty head then. */
typedef struct DEV_EVENT_VIDEOBLIND_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_TIME stuFileTime; /* of the notification */
} DEV_EVENT_VIDEOBLIND_INFO;

enum { EVENT_SCENE_UNKNOWN = 0, EVENT_SCENE_INDOOR = 1, EVENT_SCENE_OUTDOOR = 2 };

/* "VideoStatic" (349): nothing moves in the picture. */
typedef struct DEV_EVENT_VIDEOSTATIC_INFO {
    ORRERY_EVENT_HEAD_C;
    int32_t emMode; /* "Mode": "Indoor" 1, "Outdoor" 2 */
    uint8_t byEventAction;
} DEV_EVENT_VIDEOSTATIC_INFO;

/* "VideoTiming" (350): a capture on a schedule. */
typedef struct DEV_EVENT_VIDEOTIMING_INFO {
    ORRERY_EVENT_HEAD_C;
    uint8_t byEventAction;
} DEV_EVENT_VIDEOTIMING_INFO;

/* "PicInfo" (353): where a capture lies on the device's disk. */
typedef struct DEV_EVENT_PICINFO_INFO {
    ORRERY_EVENT_HEAD_C;
    NET_TIME_EX stuTime;       /* "Time": "2026-11-20 09:30:00.250" */
    int32_t nType;             /* "Type": code of the event of that name, see event_types.h; 0 for others */
    int32_t nSpeed;            /* "Speed": km/h */
    int32_t nSpeedHighLine;    /* "SpeedHighLine": limit in km/h */
    int32_t nDisk;             /* "Disk" */
    int32_t nCluster;          /* "Cluster" */
    int32_t nPartition;        /* "Partition" */
    char szHappenAddress[128]; /* "HappenAddress" */
    char szPicID[32];          /* "PicID" */
    char szPlate[16];          /* "Plate" */
} DEV_EVENT_PICINFO_INFO;

/* "SnapByTime" (356): a capture at a set time. Delivered also without "Data", with an empty head then. */
typedef struct DEV_EVENT_SNAPBYTIME_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_TIME stuFileTime; /* of the notification */
} DEV_EVENT_SNAPBYTIME_INFO;

/* "PtzPreset" (357): the camera reached a preset. */
typedef struct DEV_EVENT_PTZPRESET_INFO {
    ORRERY_EVENT_HEAD_A; /* szName: "Name": of the preset; always terminated here */
    float fPosition[3];  /* "Position", at least 3 numbers */
    int32_t nPresetID;   /* "PresetID" */
} DEV_EVENT_PTZPRESET_INFO;

/* "SceneChange" (365): the camera sees another scene than before. */
typedef struct DEV_EVENT_SCENECHANGE_INFO {
    int32_t nChannelID;
    uint8_t byEventAction;
    double dPTS;
    EVENT_TIME stuUTC;
    int32_t nEventID;
    EVENT_FILE_INFO stuFileInfo;
    uint8_t byRepeat;
    uint32_t dwFlagMask;
} DEV_EVENT_SCENECHANGE_INFO;

/* The event that had something recorded. */
typedef struct EVENT_LINK_SOURCE_INFO {
    char szSrcEvent[32];    /* "SrcEvent": its name */
    NET_TIME_EX stuSrcTime; /* "SrcTime": "2026-11-20 09:30:00.250" */
    int32_t nSrcChannel;    /* "SrcChannel" */
} EVENT_LINK_SOURCE_INFO;

/* "LinkSD" (513): a recording on the camera's own card for another event. */
typedef struct DEV_EVENT_LINKSD_INFO {
    ORRERY_EVENT_HEAD_C;
    const EVENT_LINK_SOURCE_INFO* pSrcInfo; /* "SrcInfo"; null when absent */
    NET_TIME_EX stuStartTime;               /* "StartTime": "2026-11-20 09:30:00.250" */
    NET_TIME_EX stuEndTime;                 /* "EndTime" */
    int32_t nPresetID;                      /* "PresetID" */
} DEV_EVENT_LINKSD_INFO;

/* "SnapManual" (517): a capture by hand. Delivered also without "Data", with an empty head then. */
typedef struct DEV_EVENT_SNAPMANUAL_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    uint8_t byRepeat;
    uint32_t dwFlagMask;
} DEV_EVENT_SNAPMANUAL_INFO;

enum { EVENT_PASS_PICTURE_NONE = 0, EVENT_PASS_PICTURE_PASS = 1, EVENT_PASS_PICTURE_REAL = 2 };

/* "PassChange" (562): the camera passed on to a preset. */
typedef struct DEV_EVENT_PASSCHANGE_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nPresetID;     /* "PresetID" */
    int32_t nGroupID;      /* "GroupID" */
    int32_t nCountInGroup; /* "CountInGroup" */
    int32_t nIndexInGroup; /* "IndexInGroup" */
    int32_t emPictureType; /* "PictureType": "Pass" 1, "Real" 2 */
} DEV_EVENT_PASSCHANGE_INFO;

#ifdef __cplusplus
}
#endif

#endif
