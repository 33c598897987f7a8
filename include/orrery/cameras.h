/* Cameras of later devices: masks and mosaics, texts in the picture, lamps, lasers, what a head does when it starts,
 * and snapshots by rule.
 *
 * The length of a call is added to: set it to 0 first. A table that is null or absent reads nothing and adds nothing;
 * one of another type than told is a record without keys. Records told as "one or a list" are read from an array, a
 * record an element (a null element leaves its record cleared and is not counted; an empty array is one record without
 * keys), or from anything else as one record; as many are read as fit the buffer. They are written bare when exactly
 * one fits the size, else as a list. All others are one record, written bare. Texts must be shorter than their buffer.
 * Keys that are absent leave 0; all keys are written unless told otherwise. Points are two numbers, rectangles and
 * colours four: other values of theirs are not read. */
#ifndef ORRERY_CAMERAS_H
#define ORRERY_CAMERAS_H

#include "orrery/comm_attribute.h"
#include "orrery/types.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_PRIVACY_MASKS 16
#define ORRERY_PRIVACY_CORNERS 20
#define ORRERY_SCENE_SNAP_RULES 16
#define ORRERY_SCENE_SNAP_TYPES 8
#define ORRERY_TOUCH_POINTS 16
#define ORRERY_COMBINATIONS 64
#define ORRERY_LIGHTING_LAMPS 8

/* "VideoMosaic": parts of the picture are made unrecognisable; one or a list. */
typedef struct CFG_VIDEO_MOSAIC_INFO {
    int32_t bEnable;  /* "Enable" */
    int32_t nRegions; /* "Regions": how many there are */
    int32_t nMosaic;  /* "Mosaic": size of a block, pixels */
} CFG_VIDEO_MOSAIC_INFO;

/* "TrafficSnapMosaic": several snapshots of a car are put into one picture; one or a list. */
typedef struct CFG_TRAFFIC_SNAP_MOSAIC_INFO {
    int32_t bEnable;           /* "Enable" */
    int32_t bUploadNormalSnap; /* "UploadNormalSnap": the snapshots are sent besides */
    int32_t nPicCompressRate;  /* "PicCompressRate": percent */
} CFG_TRAFFIC_SNAP_MOSAIC_INFO;

/* Form of a mask ("ShapeType"). */
enum {
    CFG_PRIVACY_SHAPE_UNKNOWN = 0, /* absent and unknown texts; it and codes without a text are written as "" */
    CFG_PRIVACY_SHAPE_RECT = 1,    /* "Rect" */
    CFG_PRIVACY_SHAPE_POLYGON = 2  /* "Polygon" */
};

/* A part of the picture that nobody may see. */
typedef struct CFG_PRIVACY_MASK {
    int32_t bEnable;       /* "Enable" */
    CFG_POINT stuPosition; /* "Position", of some devices "Postion", which is read over the other and never written:
                              where the head stands, pan and tilt */
    int32_t emShapeType;   /* "ShapeType": CFG_PRIVACY_SHAPE_... */
    int32_t nPolygonNum;   /* corners of stuPolygon that were read, and as many are written */
    CFG_POLYGON stuPolygon[ORRERY_PRIVACY_CORNERS]; /* "Polygon": of at least two numbers each; others leave their place
                                                       cleared and are not counted. Written for
                                                       CFG_PRIVACY_SHAPE_POLYGON alone; no key when there are none */
    CFG_RECT stuRect;                               /* "Rect": written for CFG_PRIVACY_SHAPE_RECT alone */
    CFG_COLOR stuColor;                             /* "Color" */
    int32_t nMosaic; /* "Mosaic": size of a block, pixels; 0 paints the mask in its colour */
} CFG_PRIVACY_MASK;

/* "PrivacyMasking": a record holds the masks of one channel, in the text an array; several channels are an array of
 * arrays. Without a mask, null is written. */
typedef struct CFG_PRIVACY_MASKING_INFO {
    int32_t nCount;                                  /* elements of stuMasks in use */
    CFG_PRIVACY_MASK stuMasks[ORRERY_PRIVACY_MASKS]; /* the record itself, a list */
} CFG_PRIVACY_MASKING_INFO;

/* "OSDSysAbnormal": faults of the device that the picture tells of; one or a list. The caller's record is not cleared:
 * absent numbers and switches read as 0 all the same, but colours and the rectangle keep what they hold. */
typedef struct CFG_OSD_SYS_ABNORMAL_INFO {
    CFG_COLOR stuBackColor;       /* "BackColor": behind the text */
    int32_t bEncodeBlend;         /* "EncodeBlend": the text is in the stream */
    CFG_COLOR stuFrontColor;      /* "FrontColor": of the text */
    int32_t bPreviewBlend;        /* "PreviewBlend": the text is in the live picture */
    CFG_RECT stuRect;             /* "Rect": where the text stands, 0 to 8191 */
    int32_t nDisplayTime;         /* "DisplayTime": seconds */
    int32_t bNetAbort;            /* "NetAbort": the network is gone */
    int32_t bIPConflict;          /* "IPConflict": another device has its address */
    int32_t bVoltageStatus;       /* "VoltageStatus": voltage too high or too low */
    int32_t bOutputCurrentStatus; /* "OutputCurrentStatus": too much current is drawn */
    int32_t bSDHotPlug;           /* "SDHotPlug": its card is taken out or put in */
    int32_t bSDLowSpace;          /* "SDLowSpace": its card is nearly full */
    int32_t bSDFailure;           /* "SDFailure": its card is faulty */
    int32_t bDestroy;             /* "Destroy": somebody damages it */
} CFG_OSD_SYS_ABNORMAL_INFO;

/* "VideoWidget2": texts in the picture; one or a list. */
typedef struct CFG_VIDEO_WIDGET2_INFO {
    int32_t nOSDLineSpacing; /* "OSDLineSpacing": between two lines */
} CFG_VIDEO_WIDGET2_INFO;

/* "VideoWidgetNumberStat": counts of people in the picture; one or a list. */
typedef struct CFG_VIDEO_WIDGET_NUMBER_STAT_INFO {
    int32_t bEncodeBlend;    /* "EncodeBlend": the text is in the stream */
    CFG_COLOR stuFrontColor; /* "FrontColor": of the text */
    CFG_COLOR stuBackColor;  /* "BackColor": behind the text */
    int32_t nTextAlign;      /* "TextAlign": as the device numbers it */
    CFG_RECT stuRect;        /* "Rect": where the text stands, 0 to 8191 */
    int32_t bShowEnterNum;   /* "ShowEnterNum": who came in */
    int32_t bShowExitNum;    /* "ShowExitNum": who went out */
} CFG_VIDEO_WIDGET_NUMBER_STAT_INFO;

/* "AtmosphereOSD": readings of a weather station in the picture; one or a list. */
typedef struct CFG_ATMOSPHERE_OSD_INFO {
    int32_t bEncodeBlend; /* "EncodeBlend": the text is in the stream */
    uint32_t nMask;       /* "Mask": a bit a reading */
} CFG_ATMOSPHERE_OSD_INFO;

/* "LaserDistMeasure": distances by laser; one or a list. */
typedef struct CFG_LASER_DIST_MEASURE_INFO {
    int32_t bEnable;      /* "Enable" */
    int32_t bEncodeBlend; /* "EncodeBlend": the distance is in the stream */
} CFG_LASER_DIST_MEASURE_INFO;

/* "Lighting_V2": lamps of a camera; one or a list. */
typedef struct CFG_LIGHTING_V2_INFO {
    int32_t nCorrection;             /* "Correction": compensation of the light, 0 to 4 */
    char szLightType[32];            /* "LightType": kind of lamp, in the device's words */
    char szMode[32];                 /* "Mode": who sets the lamps, in the device's words */
    int32_t nSensitive;              /* "Sensitive": 0 to 5 */
    int32_t nPercentOfMaxBrightness; /* "PercentOfMaxBrightness" */
    int32_t nAIMixLightSwitchDelay;  /* "AIMixLightSwitchDelay": seconds that mixed light stays on behind a target */
    int32_t nLightSwitchDelay;       /* "LightSwitchDelay": seconds before the lamps change */
    int32_t nNearLight;              /* "NearLight": percent */
    int32_t nMiddleLight;            /* "MiddleLight": percent */
    int32_t nFarLight;               /* "FarLight": percent */
    int32_t nAngleCount;             /* entries of nAngle in use */
    int32_t nAngle[ORRERY_LIGHTING_LAMPS]; /* "Angle": of each lamp; no key when there are none */
    int32_t nLightCount;                   /* entries of nLight in use */
    int32_t nLight[ORRERY_LIGHTING_LAMPS]; /* "Light": of each lamp, percent; no key when there are none */
} CFG_LIGHTING_V2_INFO;

/* "NetAutoAdaptEncode": streams follow what the network carries; one or a list. */
typedef struct CFG_NET_AUTO_ADAPT_ENCODE_INFO {
    int32_t nMainFormat;  /* "MainFormat": how the main stream follows, as the device numbers it */
    int32_t nExtraFormat; /* "ExtraFormat": how the extra stream follows, as the device numbers it */
    int32_t nIPSmooth;    /* "IPSmooth": how evenly packets are sent */
    int32_t bAdaptEnable; /* "AdaptEnable" */
} CFG_NET_AUTO_ADAPT_ENCODE_INFO;

/* "FreeCombination": windows put together freely; one or a list. The caller's record is not cleared: without a list its
 * count is 0, and entries behind the count keep what they hold. Without any window, null is written. */
typedef struct CFG_FREE_COMBINATION_INFO {
    int32_t nCombinationCount;                 /* entries of nCombination in use */
    int32_t nCombination[ORRERY_COMBINATIONS]; /* "Combination": windows; no key when there are none */
} CFG_FREE_COMBINATION_INFO;

/* "TSPoint": the calibration of a touch screen; an object, or the first element of an array. Other elements than points
 * of two numbers read as zeros. Without any point, null is written. */
typedef struct CFG_TS_POINT_INFO {
    int32_t nScreenCount;                      /* elements of stuScreen in use */
    CFG_POINT stuScreen[ORRERY_TOUCH_POINTS];  /* "Screen": where it was touched; no key when there are none */
    int32_t nDisplayCount;                     /* elements of stuDisplay in use */
    CFG_POINT stuDisplay[ORRERY_TOUCH_POINTS]; /* "Display": where the marks were shown; no key when there are none */
} CFG_TS_POINT_INFO;

/* What a head does when its power comes ("Function"). */
enum {
    CFG_POWER_UP_UNKNOWN = 0, /* absent and unknown texts; it and codes without a text are written as "" */
    CFG_POWER_UP_AUTO = 1,    /* "Auto": what it did when the power went */
    CFG_POWER_UP_PRESET = 2,  /* "Preset" */
    CFG_POWER_UP_SCAN = 3,    /* "Scan" */
    CFG_POWER_UP_TOUR = 4,    /* "Tour" */
    CFG_POWER_UP_PATTERN = 5  /* "Pattern" */
};

/* "PowerUp": what a head does when its power comes; one or a list. */
typedef struct CFG_POWER_UP_INFO {
    int32_t bEnable;    /* "Enable" */
    int32_t emFunction; /* "Function": CFG_POWER_UP_... */
    int32_t nPatternId; /* "PatternId" */
    int32_t nPresetId;  /* "PresetId" */
    int32_t nScanId;    /* "ScanId" */
    int32_t nTourId;    /* "TourId" */
    int32_t bAuto;      /* "Auto": it goes on with what it did when the power went */
} CFG_POWER_UP_INFO;

/* Where a head's commands are made ("CurrentMode"); other texts read as 0, other codes are written as its text. */
enum {
    CFG_PTZ_DEVICE_SOFTWARE = 0, /* "software" */
    CFG_PTZ_DEVICE_HARDWARE = 1  /* "hardware" */
};

/* "PtzDevice": a head on a serial line; one or a list. */
typedef struct CFG_PTZ_DEVICE_INFO {
    uint32_t nPort;                  /* "Port": number of the line */
    uint32_t nAddress;               /* "Address": of the head on the line */
    CFG_COMM_ATTRIBUTE stuAttribute; /* "Attribute": how the line is set */
    int32_t emCurrentMode;           /* "CurrentMode": CFG_PTZ_DEVICE_... */
    char szProtocolName[128];        /* "ProtocolName": that the head understands */
} CFG_PTZ_DEVICE_INFO;

/* Snapshots upon one rule. */
typedef struct CFG_SCENE_SNAP_RULE {
    int32_t emRuleType;      /* "RuleType": ORRERY_RULE_... of orrery/event_types.h, its name in the letters' own case;
                                absent and unknown texts read as 0. Codes without a name are written as "" */
    int32_t nRepeatInterval; /* "RepeatInterval": seconds between two snapshots while it lasts */
    int32_t nSingleInterval; /* "SingleInterval": seconds between the pictures of one snapshot */
    int32_t nSnapShotTypeCount;                       /* entries of szSnapShotType in use */
    char szSnapShotType[ORRERY_SCENE_SNAP_TYPES][32]; /* "SnapShotType": kinds of picture, in the device's words; a
                                                         list, no key when there are none */
} CFG_SCENE_SNAP_RULE;

/* "SceneSnapShotWithRule": snapshots that rules take while the head stands at a preset; an object, or the first element
 * of an array. */
typedef struct CFG_SCENE_SNAP_SHOT_INFO {
    int32_t nPresetID;                                     /* "PresetID" */
    int32_t nRuleCount;                                    /* elements of stuRules in use */
    CFG_SCENE_SNAP_RULE stuRules[ORRERY_SCENE_SNAP_RULES]; /* "SnapShotWithRule"; no key when there are none */
} CFG_SCENE_SNAP_SHOT_INFO;

#ifdef __cplusplus
}
#endif

#endif
