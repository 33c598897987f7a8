/* Intelligent events: what happens to things inside a region. Heads and closing fields: see events_common.h. */
#ifndef ORRERY_EVENTS_INTELLIGENT_REGION_H
#define ORRERY_EVENTS_INTELLIGENT_REGION_H

#include "orrery/events_intelligent_crossing.h"

#ifdef __cplusplus
extern "C" {
#endif

enum {
    EVENT_SPECIAL_REGION_NONE = 0,
    EVENT_SPECIAL_REGION_HIGHLIGHT = 1,
    EVENT_SPECIAL_REGION_REGULAR_BLINK = 2,
    EVENT_SPECIAL_REGION_IRREGULAR_BLINK = 3
};

/* "PasteDetection" (4): something was stuck on a cash machine. */
typedef struct DEV_EVENT_PASTEDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_POINT_LIST(DetectRegion); /* "DetectRegion" */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    uint32_t dwCount;
    int32_t emSpecialRegion; /* "SpecialRegion": "Highlight" 1, "RegularBlink" 2, "IrregularBlink" 3 */
    int32_t emClass;         /* "Class" */
} DEV_EVENT_PASTEDETECTION_INFO;

/* "LeftDetection" (5): something was left behind. */
typedef struct DEV_EVENT_LEFTDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    ORRERY_EVENT_POINT_LIST(DetectRegion); /* "DetectRegion" */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t emClass;       /* "Class" */
    int16_t nPresetID;     /* "PresetID" */
    char szPresetName[64]; /* "PresetName" */
} DEV_EVENT_LEFTDETECTION_INFO;

/* "StayDetection" (6): something stays too long. */
typedef struct DEV_EVENT_STAYDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    ORRERY_EVENT_POINT_LIST(DetectRegion); /* "DetectRegion" */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t emClass; /* "Class" */
} DEV_EVENT_STAYDETECTION_INFO;

/* "Preservation" (8): a guarded thing was touched. */
typedef DEV_EVENT_STAYDETECTION_INFO DEV_EVENT_PRESERVATION_INFO;
/* "TailDetection" (10): someone follows another. */
typedef DEV_EVENT_STAYDETECTION_INFO DEV_EVENT_TAILDETECTION_INFO;
/* "FireDetection" (12): fire. */
typedef DEV_EVENT_STAYDETECTION_INFO DEV_EVENT_FIREDETECTION_INFO;

/* "MoveDetection" (9): something was moved. */
typedef struct DEV_EVENT_MOVEDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    ORRERY_EVENT_POINT_LIST(DetectRegion); /* "DetectRegion" */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t emClass;                /* "Class" */
    ORRERY_EVENT_POINT_LIST(Track); /* "Track", at least 2 elements */
} DEV_EVENT_MOVEDETECTION_INFO;

/* "SmokeDetection" (13): smoke. */
typedef struct DEV_EVENT_SMOKEDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    uint32_t dwCount;
    int32_t emClass;      /* "Class" */
    int32_t nPosition[3]; /* "Position", exactly 3 numbers */
} DEV_EVENT_SMOKEDETECTION_INFO;

/* "ElectroSparkDetection" (272): a spark. */
typedef struct DEV_EVENT_ELECTROSPARKDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
} DEV_EVENT_ELECTROSPARKDETECTION_INFO;

enum { EVENT_RUN_FAST = 0, EVENT_RUN_ABRUPT_SPEEDUP = 1, EVENT_RUN_ABRUPT_SLOWDOWN = 2 };

/* "RunDetection" (274): someone runs. */
typedef struct DEV_EVENT_RUNDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;           /* "Object" */
    double dSpeed;                         /* "Speed": km/h */
    double dTriggerSpeed;                  /* "TriggerSpeed": of the rule */
    ORRERY_EVENT_POINT_LIST(DetectRegion); /* "DetectRegion" */
    ORRERY_EVENT_POINT_LIST(Track);        /* "Track" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t emClass; /* "Class" */
    int32_t emType;  /* "Type": "FastRun" 0, "AbruptSpeedup" 1, "AbruptSlowdown" 2 */
} DEV_EVENT_RUNDETECTION_INFO;

/* "RetrogradeDetection" (275): someone goes the wrong way. */
typedef struct DEV_EVENT_RETROGRADEDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;           /* "Object" */
    ORRERY_EVENT_POINT_LIST(Track);        /* "Track" */
    ORRERY_EVENT_POINT_LIST(Direction);    /* "Direction": the right way */
    ORRERY_EVENT_POINT_LIST(DetectRegion); /* "DetectRegion" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t emClass; /* "Class" */
} DEV_EVENT_RETROGRADEDETECTION_INFO;

/* "TakenAwayDetection" (277): something was taken away. */
typedef struct DEV_EVENT_TAKENAWAYDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;           /* "Object" */
    ORRERY_EVENT_POINT_LIST(DetectRegion); /* "DetectRegion" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t emClass;       /* "Class" */
    int16_t nPresetID;     /* "PresetID" */
    char szPresetName[64]; /* "PresetName" */
} DEV_EVENT_TAKENAWAYDETECTION_INFO;

/* "ParkingDetection" (278): a vehicle stands where it must not. */
typedef struct DEV_EVENT_PARKINGDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;           /* "Object" */
    ORRERY_EVENT_POINT_LIST(DetectRegion); /* "DetectRegion" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t emClass; /* "Class" */
} DEV_EVENT_PARKINGDETECTION_INFO;

/* "PrisonerRiseDetection" (286): a prisoner gets up. */
typedef struct DEV_EVENT_PRISONERRISEDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;           /* "Object" */
    ORRERY_EVENT_POINT_LIST(DetectRegion); /* "DetectRegion" */
    EVENT_FILE_INFO stuFileInfo;
    double dInitialUTC; /* "InitialUTC" */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t emClass; /* "Class" */
} DEV_EVENT_PRISONERRISEDETECTION_INFO;

/* "GetOutBedDetection" (341): someone gets out of bed. */
typedef struct DEV_EVENT_GETOUTBEDDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;           /* "Object" */
    ORRERY_EVENT_POINT_LIST(DetectRegion); /* "DetectRegion" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
} DEV_EVENT_GETOUTBEDDETECTION_INFO;

/* "PatrolDetection" (342): a patrol came, or did not. */
typedef DEV_EVENT_GETOUTBEDDETECTION_INFO DEV_EVENT_PATROLDETECTION_INFO;
/* "OnDutyDetection" (343): someone is at the post. */
typedef DEV_EVENT_GETOUTBEDDETECTION_INFO DEV_EVENT_ONDUTYDETECTION_INFO;

#ifdef __cplusplus
}
#endif

#endif
