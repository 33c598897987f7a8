/* How an analysis channel looks, beside its rules and its scene: modules, where the analysed pictures come from, and
 * small settings of the same devices. Texts of codes are compared without regard to case; another text reads as 0
 * unless told otherwise, and a code without a text leaves its key out. What a reply leaves out is 0. */
#ifndef ORRERY_ANALYSE_MODULES_H
#define ORRERY_ANALYSE_MODULES_H

#include "orrery/analyse_rules.h"
#include "orrery/remote_device.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_ANALYSE_MODULES 16   /* modules of a channel */
#define ORRERY_MODULE_REGIONS 10    /* regions of a list */
#define ORRERY_MODULE_FILTERS 16    /* filters by kind of object */
#define ORRERY_MODULE_ATTRIBUTES 16 /* attributes that are told */
#define ORRERY_MODULE_CATEGORIES 128
#define ORRERY_SNAP_SOURCES 256
#define ORRERY_TRACK_SCENES 10 /* scenes that a tracking camera knows */
#define ORRERY_TOUR_STOPS 32   /* stops of its tour */

/* What a module goes by beside the kinds of a size filter, CFG_FILTER_BY_...: byFilterType. */
enum { CFG_FILTER_BY_RATIO = 3 /* "ByRatio" */ };

/* How bright the background is. */
enum {
    CFG_BACKGROUND_NORMAL = 0,   /* "Normal" */
    CFG_BACKGROUND_HIGHLIGHT = 1 /* "Highlight" */
};

/* What disturbs in a special region; 0 is written as null in its place. */
enum {
    CFG_SPECIAL_HIGHLIGHT = 1,      /* "Highlight" */
    CFG_SPECIAL_REGULAR_BLINK = 2,  /* "RegularBlink" */
    CFG_SPECIAL_IRREGULAR_BLINK = 3 /* "IrregularBlink" */
};

/* Kinds of vehicle and plate: nCategories. An element that is no text reads as 0. */
enum {
    CFG_CATEGORY_NONE = 0,                        /* "" */
    CFG_CATEGORY_MOTOR = 1,                       /* "Motor" */
    CFG_CATEGORY_NON_MOTOR = 2,                   /* "Non-Motor" */
    CFG_CATEGORY_BUS = 3,                         /* "Bus" */
    CFG_CATEGORY_BICYCLE = 4,                     /* "Bicycle" */
    CFG_CATEGORY_MOTORCYCLE = 5,                  /* "Motorcycle" */
    CFG_CATEGORY_UNLICENSED_MOTOR = 6,            /* "UnlicensedMotor" */
    CFG_CATEGORY_LARGE_CAR = 7,                   /* "LargeCar" */
    CFG_CATEGORY_MICRO_CAR = 8,                   /* "MicroCar" */
    CFG_CATEGORY_EMBASSY_CAR = 9,                 /* "EmbassyCar" */
    CFG_CATEGORY_MARGINAL_CAR = 10,               /* "MarginalCar" */
    CFG_CATEGORY_AREAOUT_CAR = 11,                /* "AreaoutCar" */
    CFG_CATEGORY_FOREIGN_CAR = 12,                /* "ForeignCar" */
    CFG_CATEGORY_DUAL_TRI_WHEEL_MOTORCYCLE = 13,  /* "DualTriWheelMotorcycle" */
    CFG_CATEGORY_LIGHT_MOTORCYCLE = 14,           /* "LightMotorcycle" */
    CFG_CATEGORY_EMBASSY_MOTORCYCLE = 15,         /* "EmbassyMotorcycle" */
    CFG_CATEGORY_MARGINAL_MOTORCYCLE = 16,        /* "MarginalMotorcycle" */
    CFG_CATEGORY_AREAOUT_MOTORCYCLE = 17,         /* "AreaoutMotorcycle" */
    CFG_CATEGORY_FOREIGN_MOTORCYCLE = 18,         /* "ForeignMotorcycle" */
    CFG_CATEGORY_FARM_TRANSMIT_CAR = 19,          /* "FarmTransmitCar" */
    CFG_CATEGORY_TRACTOR_OLD = 20,                /* "Tractor"; reads as CFG_CATEGORY_TRACTOR */
    CFG_CATEGORY_TRAILER = 21,                    /* "Trailer" */
    CFG_CATEGORY_COACH_CAR = 22,                  /* "CoachCar" */
    CFG_CATEGORY_COACH_MOTORCYCLE = 23,           /* "CoachMotorcycle" */
    CFG_CATEGORY_TRIAL_CAR = 24,                  /* "TrialCar" */
    CFG_CATEGORY_TRIAL_MOTORCYCLE = 25,           /* "TrialMotorcycle" */
    CFG_CATEGORY_TEMPORARY_ENTRY_CAR = 26,        /* "TemporaryEntryCar" */
    CFG_CATEGORY_TEMPORARY_ENTRY_MOTORCYCLE = 27, /* "TemporaryEntryMotorcycle" */
    CFG_CATEGORY_TEMPORARY_STEER_CAR = 28,        /* "TemporarySteerCar" */
    CFG_CATEGORY_PASSENGER_CAR = 29,              /* "PassengerCar" */
    CFG_CATEGORY_LARGE_TRUCK = 30,                /* "LargeTruck" */
    CFG_CATEGORY_MID_TRUCK = 31,                  /* "MidTruck" */
    CFG_CATEGORY_SALOON_CAR = 32,                 /* "SaloonCar" */
    CFG_CATEGORY_MICROBUS = 33,                   /* "Microbus" */
    CFG_CATEGORY_MICRO_TRUCK = 34,                /* "MicroTruck" */
    CFG_CATEGORY_TRICYCLE = 35,                   /* "Tricycle" */
    CFG_CATEGORY_PASSERBY = 36,                   /* "Passerby" */
    CFG_CATEGORY_OIL_TANK_TRUCK = 37,             /* "OilTankTruck" */
    CFG_CATEGORY_TANK_CAR = 38,                   /* "TankCar" */
    CFG_CATEGORY_SUV = 39,                        /* "SUV" */
    CFG_CATEGORY_MPV = 40,                        /* "MPV" */
    CFG_CATEGORY_NORMAL = 41,                     /* "Normal" */
    CFG_CATEGORY_YELLOW = 42,                     /* "Yellow" */
    CFG_CATEGORY_DOUBLE_YELLOW = 43,              /* "DoubleYellow" */
    CFG_CATEGORY_POLICE = 44,                     /* "Police" */
    CFG_CATEGORY_ARMED = 45,                      /* "Armed" */
    CFG_CATEGORY_MILITARY = 46,                   /* "Military" */
    CFG_CATEGORY_DOUBLE_MILITARY = 47,            /* "DoubleMilitary" */
    CFG_CATEGORY_SAR = 48,                        /* "SAR" */
    CFG_CATEGORY_TRAINNING = 49,                  /* "Trainning" */
    CFG_CATEGORY_PERSONAL = 50,                   /* "Personal" */
    CFG_CATEGORY_AGRI = 51,                       /* "Agri" */
    CFG_CATEGORY_EMBASSY = 52,                    /* "Embassy" */
    CFG_CATEGORY_MOTO = 53,                       /* "Moto" */
    CFG_CATEGORY_TRACTOR = 54,                    /* "Tractor" */
    CFG_CATEGORY_OFFICIAL_CAR = 55,               /* "OfficialCar" */
    CFG_CATEGORY_PERSONAL_CAR = 56,               /* "PersonalCar" */
    CFG_CATEGORY_WAR_CAR = 57,                    /* "WarCar" */
    CFG_CATEGORY_OTHER = 58,                      /* "Other" */
    CFG_CATEGORY_CIVILAVIATION = 59,              /* "Civilaviation" */
    CFG_CATEGORY_BLACK = 60,                      /* "Black" */
    CFG_CATEGORY_PURE_NEW_ENERGY_MICRO_CAR = 61,  /* "PureNewEnergyMicroCar" */
    CFG_CATEGORY_MIXED_NEW_ENERGY_MICRO_CAR = 62, /* "MixedNewEnergyMicroCar" */
    CFG_CATEGORY_PURE_NEW_ENERGY_LARGE_CAR = 63,  /* "PureNewEnergyLargeCar" */
    CFG_CATEGORY_MIXED_NEW_ENERGY_LARGE_CAR = 64  /* "MixedNewEnergyLargeCar" */
};

/* A region that is left out; its corners are the value itself. */
typedef struct CFG_EXCLUDE_REGION {
    ORRERY_RULE_SHAPE(nPointNum, stuPoints); /* the corners */
} CFG_EXCLUDE_REGION;

/* A filter for one kind of object. */
typedef struct CFG_OBJECT_FILTER {
    char szObjectType[ORRERY_RULE_TEXT]; /* "ObjectType": such as "Human" */
    CFG_SIZE_FILTER_INFO stuSizeFilter;  /* "SizeFilter" */
} CFG_OBJECT_FILTER;

/* A region in which something disturbs. */
typedef struct CFG_SPECIAL_REGION {
    ORRERY_RULE_SHAPE(nRegionPoint, stuRegion); /* "SpecialRegion" */
    int32_t nPropertyNum;                       /* entries in use; a null keeps its entry, uncounted */
    int32_t nProperties[4];                     /* "Property": CFG_SPECIAL_... */
} CFG_SPECIAL_REGION;

/* A module: how one kind of object is looked for. An ab... flag is 1 when its key was in the text, and only keys whose
 * flag is set are written. Of the two detection regions every element counts, also one without two numbers, which
 * leaves its entry 0. */
typedef struct CFG_MODULE_INFO {
    char szObjectType[ORRERY_RULE_TEXT]; /* "ObjectType": such as "Human" */
    uint8_t bSnapShot;                   /* "SnapShot": a picture of the object is taken */
    uint8_t bySensitivity;               /* "Sensitivity" */
    uint8_t abMeasureMode;
    uint8_t byMeasureMode;                            /* "SizeFilter"."MeasureMode": CFG_MEASURE_... */
    ORRERY_RULE_SHAPE(nDetectPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_SHAPE(nTrackPoint, stuTrackRegion);   /* "TrackRegion" */
    uint8_t abFilterType;
    uint8_t byFilterType; /* "SizeFilter"."Type": CFG_FILTER_BY_...; "ByRatio" reads as 0, but with "ByRatio"."Type" of
                             the module being "ByRatio" every text reads as CFG_FILTER_BY_RATIO */
    uint8_t abBackgroud;
    uint8_t byBackgroud; /* "Backgroud": CFG_BACKGROUND_... */
    uint8_t abBySize;
    uint8_t bBySize; /* "SizeFilter"."BySize" */
    uint8_t abMinSize;
    uint8_t abMaxSize;
    CFG_SIZE stuMinSize;       /* "SizeFilter"."MinSize"; stays 0 when the text has fewer than two numbers */
    CFG_SIZE stuMaxSize;       /* "SizeFilter"."MaxSize", likewise */
    int32_t nExcludeRegionNum; /* entries of stuExcludeRegions in use */
    CFG_EXCLUDE_REGION stuExcludeRegions[ORRERY_MODULE_REGIONS]; /* "ExcludeRegion": a list of regions */
    int32_t nCalibrateBoxNum; /* entries of stuCalibrateBoxs in use; a null keeps its entry, uncounted */
    CFG_CALIBRATE_BOX stuCalibrateBoxs[ORRERY_CALIBRATE_BOXES]; /* "SizeFilter"."CalibrateBoxs" */
    uint8_t abAccuracy;
    uint8_t byAccuracy; /* "Accuracy" */
    uint8_t abMovingStep;
    uint8_t byMovingStep; /* "MovingStep" */
    uint8_t abScalingFactor;
    uint8_t byScalingFactor; /* "ScalingFactor" */
    uint8_t abDetectBalance;
    int32_t nDetectBalance; /* "DetectBalance": misses against false alarms */
    uint8_t abByRatio;
    uint8_t abMinRatio; /* this and the next three are read only when "SizeFilter"."ByRatio" is there */
    uint8_t abMaxRatio;
    uint8_t abMinRatioSize;
    uint8_t abMaxRatioSize;
    uint8_t bByRatio;         /* "SizeFilter"."ByRatio" */
    double dMinRatio;         /* "SizeFilter"."MinRatio": width over height */
    double dMaxRatio;         /* "SizeFilter"."MaxRatio" */
    CFG_SIZE stuMinRatioSize; /* "SizeFilter"."MinRatioSize" */
    CFG_SIZE stuMaxRatioSize; /* "SizeFilter"."MaxRatioSize" */
    uint8_t abByArea;
    uint8_t abMinArea; /* this and the next three are read only when "SizeFilter"."ByArea" is there */
    uint8_t abMaxArea;
    uint8_t abMinAreaSize;
    uint8_t abMaxAreaSize;
    uint8_t bByArea;         /* "SizeFilter"."ByArea" */
    float fMinArea;          /* "SizeFilter"."MinArea" */
    float fMaxArea;          /* "SizeFilter"."MaxArea" */
    CFG_SIZE stuMinAreaSize; /* "SizeFilter"."MinAreaSize" */
    CFG_SIZE stuMaxAreaSize; /* "SizeFilter"."MaxAreaSize" */
    int32_t nAreaCalibrateBoxNum;
    CFG_CALIBRATE_BOX stuAreaCalibrateBoxs[ORRERY_CALIBRATE_BOXES]; /* "SizeFilter"."AreaCalibrateBoxs" */
    int32_t nRatioCalibrateBoxNum;
    CFG_CALIBRATE_BOX stuRatioCalibrateBoxs[ORRERY_CALIBRATE_BOXES]; /* "SizeFilter"."RatioCalibrateBoxs" */
    uint8_t bAntiDisturbance;                                        /* "AntiDisturbance" */
    uint8_t bBacklight;                                              /* "Backlight": the light comes from behind */
    uint8_t bShadow;                                                 /* "Shadow": shadows are told from objects */
    uint8_t bContourAssistantTrack; /* "ContourAssistantTrack": outlines help to follow an object */
    int32_t nPtzPresetId;           /* "PtzPresetId": preset of the camera at which the module works */
    int32_t nObjectFilterNum;       /* entries of stuObjectFilters in use */
    CFG_OBJECT_FILTER stuObjectFilters[ORRERY_MODULE_FILTERS]; /* "ObjectFilter" */
    uint8_t
        abObjectImageSize; /* 1 when "ObjectImageSize" was there with neither of its members; lets both be written */
    float nImageWidth;     /* "ObjectImageSize"."Width" */
    float nImageHeight;    /* "ObjectImageSize"."Height" */
    int32_t nSpecialRegionNum;                                     /* entries of stuSpecialRegions in use */
    CFG_SPECIAL_REGION stuSpecialRegions[ORRERY_MODULE_REGIONS];   /* "SpecialDetectRegion" */
    int32_t nAttributeNum;                                         /* entries of szAttributes in use */
    char szAttributes[ORRERY_MODULE_ATTRIBUTES][ORRERY_RULE_TEXT]; /* "Attributes": bytes as they stand */
    uint8_t abPlateAnalyseMode;
    int32_t nPlateAnalyseMode;                     /* "PlateAnalyseMode" */
    int32_t nCategoryNum;                          /* entries of nCategories in use */
    int32_t nCategories[ORRERY_MODULE_CATEGORIES]; /* "Category": CFG_CATEGORY_...; another code is written as null in
                                                      its place, and none behind the last that has a text */
    char szType[16];                               /* "Type": what the module is for */
} CFG_MODULE_INFO;

/* "VideoAnalyseModule": the modules of an analysis channel, a list; a null keeps its place and counts. A refused call
 * gives 0; an absent "result" does not refuse. Of more than 16 the first are read, and none are written: that gives 0.
 */
typedef struct CFG_ANALYSEMODULES_INFO {
    int32_t nModuleNum;                                 /* entries of stuModules in use */
    CFG_MODULE_INFO stuModules[ORRERY_ANALYSE_MODULES]; /* the list's elements */
} CFG_ANALYSEMODULES_INFO;

/* Which stream is analysed. */
enum {
    CFG_ANALYSE_STREAM_SNAPSHOT = 0, /* "Snapshot" */
    CFG_ANALYSE_STREAM_MAIN = 1,     /* "Main" */
    CFG_ANALYSE_STREAM_EXTRA1 = 2,   /* "Extra1" */
    CFG_ANALYSE_STREAM_EXTRA2 = 3,   /* "Extra2" */
    CFG_ANALYSE_STREAM_EXTRA3 = 4,   /* "Extra3" */
    CFG_ANALYSE_STREAM_OBJECT = 5    /* "Object" */
};

/* Where the pictures come from. */
enum {
    CFG_ANALYSE_SOURCE_REAL = 0, /* "RealStream": a camera */
    CFG_ANALYSE_SOURCE_FILE = 1  /* "FileStream": a file */
};

/* Kinds of file. */
enum {
    CFG_ANALYSE_FILE_RECORD = 1, /* "Record" */
    CFG_ANALYSE_FILE_PICTURE = 2 /* "Picture" */
};

/* "VideoAnalyseSource": where the analysed pictures come from. Of stuDeviceInfo, pVideoInputs and nMaxVideoInputs are
 * the caller's, set before the call. "result" is not looked at. The text may fill its buffer to the last byte, where
 * the terminator takes the place of its newline. */
typedef struct CFG_ANALYSESOURCE_INFO {
    uint8_t bEnable;    /* "Enable" */
    int32_t nChannel;   /* "Channel": from 0 */
    int32_t nStream;    /* "Stream": CFG_ANALYSE_STREAM_... */
    char szDevice[128]; /* "Device": identifier of a remote device, of which 192 bytes are read */
    int32_t abDeviceInfo;
    CFG_REMOTE_DEVICE_INFO stuDeviceInfo; /* "DeviceInfo" */
    int32_t nSourceType;                  /* "SourceType": CFG_ANALYSE_SOURCE_... */
    char szFilePath[260];    /* "FileStreamInfo"."FilePath"; this and the next are written for a file only */
    int32_t nFileStreamType; /* "FileStreamInfo"."FileStreamType": CFG_ANALYSE_FILE_... */
} CFG_ANALYSESOURCE_INFO;

/* Channels that are analysed. */
enum {
    CFG_ANALYSE_WHOLE_DIGITAL = 0, /* "Digital" */
    CFG_ANALYSE_WHOLE_ANALOG = 1,  /* "Anolog", as devices spell it */
    CFG_ANALYSE_WHOLE_BOTH = 2     /* "Both" */
};

/* "VideoAnalyseWhole": which channels a device analyses. The text may fill its buffer to the last byte. */
typedef struct CFG_ANALYSEWHOLE_INFO {
    int32_t nVideoChannelType; /* "VideoChannelType": CFG_ANALYSE_WHOLE_... */
} CFG_ANALYSEWHOLE_INFO;

/* Where snapshots of a channel come from. */
typedef struct CFG_SNAPSOURCE_ENTRY {
    uint8_t bEnable;           /* "Enable" */
    char szDevice[64];         /* "Device": identifier of a remote device */
    int32_t nChannel;          /* "Channel": from 0 */
    int32_t nLinkVideoChannel; /* "LinkVideoChannel": the video channel that goes with it */
} CFG_SNAPSOURCE_ENTRY;

/* "SnapSource": where snapshots come from. Of the reply one entry is read; no "table" succeeds with none. One entry is
 * written bare, up to 256 others as a list; more give 0. "result" is not looked at. The text may fill its buffer to the
 * last byte. */
typedef struct CFG_SNAPSOURCE_INFO {
    int32_t nCount;                                       /* entries of stuEntries in use */
    CFG_SNAPSOURCE_ENTRY stuEntries[ORRERY_SNAP_SOURCES]; /* the value itself */
} CFG_SNAPSOURCE_INFO;

/* "General": the device as a whole. "result" is not looked at. The text may fill its buffer to the last byte. */
typedef struct CFG_GENERAL_INFO {
    int32_t nLocalNo;           /* "LocalNo": number of the device, which remote controls go by */
    char szMachineName[256];    /* "MachineName" */
    char szMachineAddress[256]; /* "MachineAddress": where it stands */
    char szMachineGroup[256];   /* "MachineGroup": group that it belongs to */
    char szMachineID[64];       /* "MachineID"; read only */
    int32_t nLockLoginTimes;    /* "LockLoginTimes": failed logins before the user is locked */
    int32_t nLoginFailLockTime; /* "LoginFailLockTime": seconds for which the user is locked */
    int32_t bLockLoginEnable;   /* "LockLoginEnable" */
} CFG_GENERAL_INFO;

/* "RainBrush": a wiper. "result" is not looked at. The text may fill its buffer to the last byte. */
typedef struct CFG_RAINBRUSH_INFO {
    uint8_t bEnable;                                                         /* "Enable" */
    uint8_t bySpeedRate;                                                     /* "SpeedRate" */
    CFG_TIME_SECTION stuTimeSchedule[ORRERY_WEEK_DAYS][ORRERY_DAY_SECTIONS]; /* "TimeSchedule": when it may run; read
                                                                                from texts only, written whole */
    uint32_t nInterval;     /* "Interval": seconds between two strokes */
    int32_t bProtectEnable; /* "ProtectEnable": it rests after a while */
    uint32_t nProtectTime;  /* "ProtectTime": that while */
} CFG_RAINBRUSH_INFO;

/* Where a tracking camera stands. */
enum {
    CFG_TRACK_MODE_IN_DOOR = 1,  /* "InDoor" */
    CFG_TRACK_MODE_OUT_DOOR = 2, /* "OutDoor" */
    CFG_TRACK_MODE_CLASSROOM = 3 /* "Classroom" */
};

/* What goes first with several scenes. */
enum {
    CFG_TRACK_PRIOR_DETECT = 1, /* "Detect" */
    CFG_TRACK_PRIOR_SWITCH = 2  /* "Switch": of scenes */
};

/* Which way the objects of a scene move. */
enum {
    CFG_TRACK_APPROACH = 1,       /* "Approach" */
    CFG_TRACK_LEAVE = 2,          /* "Leave" */
    CFG_TRACK_BOTH = 3,           /* "Both" */
    CFG_TRACK_EAST_TO_WEST = 4,   /* "EastToWest" */
    CFG_TRACK_WEST_TO_EAST = 5,   /* "WestToEast" */
    CFG_TRACK_SOUTH_TO_NORTH = 6, /* "SouthToNorth" */
    CFG_TRACK_NORTH_TO_SOUTH = 7, /* "NorthToSouth" */
    CFG_TRACK_OTHER = 8           /* "Other" */
};

/* A stop of a tour. */
typedef struct CFG_TOUR_STOP {
    int32_t nPresetId; /* "PresetId" */
    int32_t nDuration; /* "Duration": seconds */
} CFG_TOUR_STOP;

/* How far a camera may turn in a scene. */
typedef struct CFG_POSITION_LIMIT {
    int32_t bEnable; /* "Enable" */
    int32_t nType;   /* "Type" */
    int32_t nTop;    /* "Top" */
    int32_t nBottom; /* "Bottom" */
    int32_t nLeft;   /* "Left" */
    int32_t nRight;  /* "Right" */
} CFG_POSITION_LIMIT;

/* A scene of a tracking camera. */
typedef struct CFG_TRACK_SCENE {
    int32_t nPresetId;                   /* "PresetId" */
    char szName[128];                    /* "Name" */
    int32_t nDuration;                   /* "Duration": seconds for which an object is followed */
    double dMaxZoom;                     /* "MaxZoom" */
    int32_t nDirection;                  /* "Direction": CFG_TRACK_APPROACH to CFG_TRACK_OTHER */
    CFG_POSITION_LIMIT stuPositionLimit; /* "PositionLimit" */
    int32_t nRegression;                 /* "Regression": seconds until the camera goes back */
} CFG_TRACK_SCENE;

/* "IntelliTrackScene": how a camera follows objects. "result" is not looked at. The text may fill its buffer to the
 * last byte. */
typedef struct CFG_INTELLITRACKSCENE_INFO {
    int32_t bEnable;           /* "Enable" */
    int32_t nType;             /* "Type": which of the three ways below, as the device numbers them */
    double dMaxZoom;           /* "MaxZoom" */
    char szCategory[128];      /* "Category": kind of scene */
    double dCameraHeight;      /* "CameraHeight": metres */
    int32_t nIdleDelay;        /* "IdleDelay": seconds */
    int32_t nTrackMode;        /* "TrackMode": CFG_TRACK_MODE_... */
    int32_t nSingleAlarmDelay; /* "SingleScene"."AlarmDelay": seconds */
    int32_t nSinglePresetId;   /* "SingleScene"."PresetId" */
    int32_t nPriorMode;        /* "MultiScene"."PriorMode": CFG_TRACK_PRIOR_... */
    int32_t nMultiAlarmDelay;  /* "MultiScene"."AlarmDelay": seconds */
    int32_t nTourPathNum;      /* entries of stuTourPath in use */
    CFG_TOUR_STOP stuTourPath[ORRERY_TOUR_STOPS];   /* "MultiScene"."TourPath": up to 32 stops */
    int32_t nFullPresetId;                          /* "FullScene"."PresetId" */
    int32_t nFullAlarmDelay;                        /* "FullScene"."AlarmDelay": seconds */
    int32_t nFullDuration;                          /* "FullScene"."Duration": seconds */
    int32_t nSceneNum;                              /* entries of stuScenes in use */
    CFG_TRACK_SCENE stuScenes[ORRERY_TRACK_SCENES]; /* "Scene" */
} CFG_INTELLITRACKSCENE_INFO;

#ifdef __cplusplus
}
#endif

#endif
