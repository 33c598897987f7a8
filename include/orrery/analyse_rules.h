/* Analysis rules of a video or audio channel: commands "VideoAnalyseRule", "AudioAnalyseRule" and, read only,
 * "IVSFramRule", whose list stands at the reply's top level as "VideoAnalyseRule".
 *
 * A channel has up to 32 rules of mixed types; further ones are not read. They are packed into one buffer of the
 * caller's: item after item without gaps, each a CFG_RULE_INFO of 528 bytes and behind it the record of its type:
 *
 *     | CFG_RULE_INFO | CFG_RULE_CROSSLINE_INFO | CFG_RULE_INFO | CFG_RULE_MOVE_INFO | ...
 *
 * Step from an item to the next by 528 + nRuleSize. Records behind the first are aligned for nothing in particular:
 * copy them out, or at least do not count on the alignment of their 64-bit members. rule_bodies.h and traffic_rules.h
 * have the records, with the rule codes of event_types.h that each serves. */
#ifndef ORRERY_ANALYSE_RULES_H
#define ORRERY_ANALYSE_RULES_H

#include "orrery/event_types.h"
#include "orrery/linkage.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_MOST_RULES 32         /* rules of a channel */
#define ORRERY_RULE_OBJECT_TYPES 16  /* kinds of object that a rule looks for */
#define ORRERY_RULE_TEXT 128         /* a text of a rule, terminator included */
#define ORRERY_RULE_POINTS 20        /* points of a line or a region */
#define ORRERY_TRIGGER_POSITIONS 8   /* points of an object */
#define ORRERY_CALIBRATE_BOXES 10    /* boxes of a size filter */
#define ORRERY_RULE_TRIGGER_MODES 32 /* what starts a snapshot at a junction or gate */
#define ORRERY_FACE_FEATURES 32      /* features of a face */

/* "VideoAnalyseRule", "AudioAnalyseRule", "IVSFramRule" (read only): the descriptor of a rule buffer; bufferSize and
 * recordSize of the calls are its size. Reading: pRuleBuf and nRuleLen are the caller's and stay. When the reply holds
 * more than fits, or a rule of a type that is not known, the call gives 0 and nRuleCount stays too; the buffer is
 * untouched when it is too small, and is cleared whole before the first rule is read. No "table" gives no rule;
 * "result" is not looked at.
 * Writing: items as above; nRuleSize may be larger than the type's record, never smaller. No rules give the empty list,
 * also for a negative count or a null pRuleBuf, but then the call gives 0 and leaves `[  ]` with a newline. The text
 * may fill its buffer to the last byte, where the terminator takes the place of its newline. */
typedef struct CFG_ANALYSERULES_INFO {
    int32_t nRuleCount; /* rules in the buffer */
    uint8_t* pRuleBuf;  /* the buffer */
    int32_t nRuleLen;   /* bytes at pRuleBuf */
} CFG_ANALYSERULES_INFO;

/* Classes of rules: nClass. */
enum {
    CFG_RULE_CLASS_NONE = 0,                /* no class, or one that is not known; written as "" */
    CFG_RULE_CLASS_NORMAL = 1,              /* "Normal" */
    CFG_RULE_CLASS_TRAFFIC = 2,             /* "Traffic" */
    CFG_RULE_CLASS_TRAFFIC_PATROL = 3,      /* "TrafficPatrol" */
    CFG_RULE_CLASS_FACE_DETECTION = 4,      /* "FaceDetection" */
    CFG_RULE_CLASS_ATM = 5,                 /* "ATM" */
    CFG_RULE_CLASS_INDOOR = 6,              /* "Indoor" */
    CFG_RULE_CLASS_FACE_RECOGNITION = 7,    /* "FaceRecognition" */
    CFG_RULE_CLASS_PRISON = 8,              /* "Prison" */
    CFG_RULE_CLASS_NUMBER_STAT = 9,         /* "NumberStat" */
    CFG_RULE_CLASS_HEAT_MAP = 10,           /* "HeatMap" */
    CFG_RULE_CLASS_VIDEO_DIAGNOSIS = 11,    /* "VideoDiagnosis" */
    CFG_RULE_CLASS_VEHICLE_ANALYSE = 12,    /* "VehicleAnalyse" */
    CFG_RULE_CLASS_COURSE_RECORD = 13,      /* "CourseRecord" */
    CFG_RULE_CLASS_VEHICLE = 14,            /* "Vehicle" */
    CFG_RULE_CLASS_STAND_UP_DETECTION = 15, /* "StandUpDetection" */
    CFG_RULE_CLASS_GATE = 16,               /* "Gate" */
    CFG_RULE_CLASS_SD_FACE_DETECT = 17,     /* "SDFaceDetect" */
    CFG_RULE_CLASS_HEAT_MAP_PLAN = 18,      /* "HeatMapPlan" */
    CFG_RULE_CLASS_NUMBER_STAT_PLAN = 19,   /* "NumberStatPlan" */
    CFG_RULE_CLASS_ATMFD = 20,              /* "ATMFD" */
    CFG_RULE_CLASS_HIGHWAY = 21,            /* "Highway" */
    CFG_RULE_CLASS_CITY = 22,               /* "City" */
    CFG_RULE_CLASS_LE_TRACK = 23,           /* "LeTrack" */
    CFG_RULE_CLASS_SCR = 24,                /* "SCR" */
    CFG_RULE_CLASS_STEREO_VISION = 25,      /* "StereoVision" */
    CFG_RULE_CLASS_HUMAN_DETECT = 26,       /* "HumanDetect" */
    CFG_RULE_CLASS_FACE_ANALYSIS = 27,      /* "FaceAnalysis" */
    CFG_RULE_CLASS_XRAY_DETECTION = 28,     /* "XRayDetection" */
    CFG_RULE_CLASS_STEREO_NUMBER = 29,      /* "StereoNumber" */
    CFG_RULE_CLASS_CROWD_DISTRI_MAP = 30    /* "CrowdDistriMap" */
};

/* What stands beside a rule's record. */
typedef struct CFG_RULE_GENERAL_INFO {
    uint8_t byId;           /* "Id": low 8 bits of the number */
    int32_t nClass;         /* "Class": CFG_RULE_CLASS_... */
    uint8_t bReserved[512]; /* 0 on reading, not looked at on writing */
} CFG_RULE_GENERAL_INFO;

/* The head of an item. */
typedef struct CFG_RULE_INFO {
    uint32_t dwRuleType;                  /* "Type": ORRERY_RULE_... */
    int32_t nRuleSize;                    /* bytes of the record that follows */
    CFG_RULE_GENERAL_INFO stuRuleGeneral; /* what the record itself has no room for */
} CFG_RULE_INFO;

/* ---- What the records of the types share. "Name", "Enable", "TrackEnable", "ObjectTypes", "PtzPresetId" and
 * "EventHandler" stand in the rule itself; all other keys in its "Config". Bools are 0 or 1. What a rule leaves out is
 * 0; a number or a code is always written, whether it was there or not, and a code that is none of those named leaves
 * its key out. ---- */

/* Kinds of object that a rule looks for. */
#define ORRERY_RULE_OBJECTS                                                                                            \
    int32_t nObjectTypeNum;                                        /* entries of szObjectTypes in use */               \
    char szObjectTypes[ORRERY_RULE_OBJECT_TYPES][ORRERY_RULE_TEXT] /* "ObjectTypes": such as "Human" and "Vehicle" */

#define ORRERY_RULE_HEAD                                                                                               \
    char szRuleName[ORRERY_RULE_TEXT]; /* "Name" */                                                                    \
    uint8_t bRuleEnable                /* "Enable" */

/* What an alarm of the rule does, whose own stuTimeSection is not used, and when the rule is armed: 7 days of 10
 * sections, Sunday first. The week is written from here, and a holiday row from the linkage's stuTimeSectionEx. */
#define ORRERY_RULE_LINKAGE                                                                                            \
    CFG_EVENT_HANDLER_INFO stuEventHandler;                                     /* "EventHandler" */                   \
    CFG_TIME_SECTION stuTimeSection[ORRERY_WEEK_DAYS][ORRERY_RULE_DAY_SECTIONS] /* "EventHandler"."TimeSection" */

/* The linkage and, behind it, the preset of the camera at which the rule holds. */
#define ORRERY_RULE_TAIL                                                                                               \
    ORRERY_RULE_LINKAGE;                                                                                               \
    int32_t nPtzPresetId /* "PtzPresetId" */

/* A line or a region: the count and up to 20 corners. A corner of the text that has fewer than two numbers leaves its
 * entry zero and is not counted, so that the count can be smaller than the last entry in use; the first entries up to
 * the count are written. An empty one is left out. Coordinates are those of the device. */
#define ORRERY_RULE_SHAPE(count, points)                                                                               \
    int32_t count;                                                                                                     \
    CFG_POLYGON points[ORRERY_RULE_POINTS]

/* Which points of an object have to be inside. */
#define ORRERY_RULE_POSITIONS                                                                                          \
    int32_t nTriggerPosition; /* entries in use; a null of the text leaves its entry 0 and is not counted */           \
    uint8_t byTriggerPosition[ORRERY_TRIGGER_POSITIONS] /* "TriggerPosition": CFG_TRIGGER_... */

enum {
    CFG_TRIGGER_CENTER = 0, /* "Center", and any other text on reading */
    CFG_TRIGGER_LEFT_CENTER = 1,
    CFG_TRIGGER_TOP_CENTER = 2,
    CFG_TRIGGER_RIGHT_CENTER = 3,
    CFG_TRIGGER_BOTTOM_CENTER = 4
};

#define ORRERY_RULE_FILTER                                                                                             \
    int32_t bSizeFilter;               /* "SizeFilter" is there, and written */                                        \
    CFG_SIZE_FILTER_INFO stuSizeFilter /* "SizeFilter" */

/* A box that tells how large an object looks at a place. */
typedef struct CFG_CALIBRATE_BOX {
    int32_t nCenterPointX; /* "CenterPoint", first number */
    int32_t nCenterPointY; /* "CenterPoint", second number; with fewer than two of them both stay 0 */
    float fRatio;          /* "Ratio" */
} CFG_CALIBRATE_BOX;

enum { CFG_MEASURE_PIXEL = 0 /* "Pixel" */, CFG_MEASURE_METRIC = 1, CFG_MEASURE_CALIBRATED_PIXEL = 2 };
enum { CFG_FILTER_BY_LENGTH = 0 /* "ByLength" */, CFG_FILTER_BY_AREA = 1, CFG_FILTER_BY_WIDTH_HEIGHT = 2 };

/* Which sizes of object a rule looks at. An ab... flag is 1 when its key was in the text, and only keys whose flag is
 * set are written. Sizes are [ width, height ] with their fractions, in pixels or metres as byMeasureMode says. */
typedef struct CFG_SIZE_FILTER_INFO {
    int32_t nCalibrateBoxNum;                                   /* entries in use; 0, here as below, writes no key */
    CFG_CALIBRATE_BOX stuCalibrateBoxs[ORRERY_CALIBRATE_BOXES]; /* "CalibrateBoxs"; a null keeps its entry, uncounted */
    uint8_t abMeasureModeEnable;
    uint8_t byMeasureMode; /* "MeasureMode": CFG_MEASURE_... */
    uint8_t abFilterTypeEnable;
    uint8_t byFilterType; /* "Type": CFG_FILTER_BY_... */
    uint8_t abFilterMinSize;
    uint8_t abFilterMaxSize;
    CFG_SIZE stuFilterMinSize; /* "MinSize"; stays 0 when the text has fewer than two numbers */
    CFG_SIZE stuFilterMaxSize; /* "MaxSize", likewise */
    uint8_t abByArea;
    uint8_t abMinArea; /* this and the next three are read only when "ByArea" is there */
    uint8_t abMaxArea;
    uint8_t abMinAreaSize;
    uint8_t abMaxAreaSize;
    uint8_t bByArea;         /* "ByArea" */
    float fMinArea;          /* "MinArea" */
    float fMaxArea;          /* "MaxArea" */
    CFG_SIZE stuMinAreaSize; /* "MinAreaSize" */
    CFG_SIZE stuMaxAreaSize; /* "MaxAreaSize" */
    uint8_t abByRatio;
    uint8_t abMinRatio; /* this and the next three are read only when "ByRatio" is there */
    uint8_t abMaxRatio;
    uint8_t abMinRatioSize;
    uint8_t abMaxRatioSize;
    uint8_t bByRatio;         /* "ByRatio" */
    double dMinRatio;         /* "MinRatio": width over height */
    double dMaxRatio;         /* "MaxRatio" */
    CFG_SIZE stuMinRatioSize; /* "MinRatioSize" */
    CFG_SIZE stuMaxRatioSize; /* "MaxRatioSize" */
    int32_t nAreaCalibrateBoxNum;
    CFG_CALIBRATE_BOX stuAreaCalibrateBoxs[ORRERY_CALIBRATE_BOXES]; /* "AreaCalibrateBoxs" */
    int32_t nRatioCalibrateBoxNum;
    CFG_CALIBRATE_BOX stuRatioCalibrateBoxs[ORRERY_CALIBRATE_BOXES]; /* "RatioCalibrateBoxs" */
    uint8_t abBySize;
    uint8_t bBySize; /* "BySize" */
} CFG_SIZE_FILTER_INFO;

#ifdef __cplusplus
}
#endif

#endif
