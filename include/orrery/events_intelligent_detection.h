/* Intelligent events: many things at once, single people, devices that are tampered with. Heads and closing fields:
 * see events_common.h. */
#ifndef ORRERY_EVENTS_INTELLIGENT_DETECTION_H
#define ORRERY_EVENTS_INTELLIGENT_DETECTION_H

#include "orrery/events_intelligent_crossing.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "RioterDetection" (11): people gather. */
typedef struct DEV_EVENT_RIOTERDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nObjectNum;                                 /* objects in use */
    EVENT_OBJECT_INFO stuObjects[ORRERY_EVENT_OBJECTS]; /* "Objects" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
} DEV_EVENT_RIOTERDETECTION_INFO;

/* "FightDetection" (14): people fight. */
typedef DEV_EVENT_RIOTERDETECTION_INFO DEV_EVENT_FIGHTDETECTION_INFO;
/* "InRegionDetection" (276): things are inside a region. */
typedef DEV_EVENT_RIOTERDETECTION_INFO DEV_EVENT_INREGIONDETECTION_INFO;

/* "DensityDetection" (289): a place is crowded. */
typedef struct DEV_EVENT_DENSITYDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nObjectNum;                                 /* objects in use */
    EVENT_OBJECT_INFO stuObjects[ORRERY_EVENT_OBJECTS]; /* "Objects" */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    ORRERY_EVENT_POINT_LIST(DetectRegion); /* "DetectRegion" */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t emClass; /* "Class" */
    int32_t nUnit;   /* "Unit": what the value counts */
    int32_t nValue;  /* "Value" */
} DEV_EVENT_DENSITYDETECTION_INFO;

/* "ObjectDetection" (321): things are in the picture. */
typedef struct DEV_EVENT_OBJECTDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t nObjectNum;                   /* objects at pObjects */
    const EVENT_OBJECT_INFO_EX* pObjects; /* "Objects", all of them; null when there are none */
    int32_t emClass;                      /* "Class" */
} DEV_EVENT_OBJECTDETECTION_INFO;

enum {
    EVENT_VIDEO_LOSS = 0,
    EVENT_VIDEO_FROZEN = 1,
    EVENT_VIDEO_BLIND = 2,
    EVENT_VIDEO_SCENE_CHANGE = 3,
    EVENT_VIDEO_DARK = 4,
    EVENT_VIDEO_LIGHT = 5,
    EVENT_VIDEO_UNBALANCE = 6,
    EVENT_VIDEO_NOISE = 7,
    EVENT_VIDEO_OTHER = 255
};

/* "VideoAbnormalDetection" (19): the picture is wrong. */
typedef struct DEV_EVENT_VIDEOABNORMALDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    uint8_t byEventAction;
    uint8_t byType; /* "Type": EVENT_VIDEO_... */
    uint8_t byRepeat;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t emClass; /* "Class" */
} DEV_EVENT_VIDEOABNORMALDETECTION_INFO;

/* "AudioAbnormalDetection" (294): the sound is wrong. */
typedef struct DEV_EVENT_AUDIOABNORMALDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    int32_t nDecibel; /* "Decibel" */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    int32_t nFrequency; /* "Frequency": Hz */
} DEV_EVENT_AUDIOABNORMALDETECTION_INFO;

/* "NearDistanceDetection" (372): people come too close to each other. */
typedef struct DEV_EVENT_NEARDISTANCEDETECTION_INFO {
    ORRERY_EVENT_HEAD_SHORT;
    uint8_t byEventAction;
    int32_t emClass; /* "Class" */
} DEV_EVENT_NEARDISTANCEDETECTION_INFO;

/* "TumbleDetection" (375): someone fell. */
typedef struct DEV_EVENT_TUMBLEDETECTION_INFO {
    ORRERY_EVENT_HEAD_SHORT;
    int32_t emClass;         /* "Class"; "Traffic" is known */
    uint32_t dwUTCMS;        /* "UTCMS" */
    int32_t nObjectID;       /* "ObjectID" */
    char szObjectType[16];   /* "Object"."ObjectType" */
    CFG_RECT stuBoundingBox; /* "Object"."BoundingBox", at least 4 numbers */
} DEV_EVENT_TUMBLEDETECTION_INFO;

#define ORRERY_EVENT_MEN 64

typedef struct EVENT_MAN_STAND_INFO {
    EVENT_POINT stuCenter; /* "Center", at least 2 numbers */
} EVENT_MAN_STAND_INFO;

/* "ManStandDetection" (525): people stand up. */
typedef struct DEV_EVENT_MANSTANDDETECTION_INFO {
    int32_t nChannelID;
    char szName[128];
    int32_t nEventID;
    int32_t byEventAction;                         /* EVENT_ACTION_... */
    int32_t nManNum;                               /* people in use */
    EVENT_MAN_STAND_INFO stuMan[ORRERY_EVENT_MEN]; /* "ManList" */
    int32_t emClass;                               /* "Class" */
} DEV_EVENT_MANSTANDDETECTION_INFO;

typedef struct EVENT_MAN_NUM_INFO {
    EVENT_POINT stuCenter;   /* "Center", at least 2 numbers */
    int32_t nStature;        /* "Stature": height */
    CFG_RECT stuBoundingBox; /* "BoudingBox", exactly 4 numbers */
} EVENT_MAN_NUM_INFO;

/* "ManNumDetection" (526): the number of people is wrong. */
typedef struct DEV_EVENT_MANNUMDETECTION_INFO {
    int32_t nChannelID;
    char szName[128];
    int32_t nEventID;
    int32_t byEventAction;                       /* EVENT_ACTION_... */
    int32_t nManNum;                             /* people in use */
    EVENT_MAN_NUM_INFO stuMan[ORRERY_EVENT_MEN]; /* "ManList" */
    int32_t emClass;                             /* "Class" */
} DEV_EVENT_MANNUMDETECTION_INFO;

/* "RoadConstruction" (538): the road is worked on. */
typedef struct DEV_EVENT_ROADCONSTRUCTION_INFO {
    int32_t nChannelID;
    char szName[128];
    int32_t nEventID;
    int32_t byEventAction;   /* EVENT_ACTION_... */
    int32_t emClass;         /* "Class"; "Traffic" is known */
    CFG_RECT stuBoundingBox; /* "BoundingBox", at least 4 numbers */
} DEV_EVENT_ROADCONSTRUCTION_INFO;

/* "RoadBlock" (539): the road is blocked. */
typedef DEV_EVENT_ROADCONSTRUCTION_INFO DEV_EVENT_ROADBLOCK_INFO;

/* "PedestrianJunction" (560): a pedestrian at a junction. */
typedef struct DEV_EVENT_PEDESTRIANJUNCTION_INFO {
    int32_t nChannelID;
    char szName[128];
    int32_t nGroupID;      /* "GroupID" */
    int32_t nCountInGroup; /* "CountInGroup" */
    int32_t nIndexInGroup; /* "IndexInGroup" */
    double dPTS;
    EVENT_TIME stuUTC;
    uint32_t dwUTCMS; /* "UTCMS" */
    int32_t nEventID;
    EVENT_FILE_INFO stuFileInfo;
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    int32_t nLane;               /* "Lane" */
    int32_t nSequence;           /* "Sequence" */
} DEV_EVENT_PEDESTRIANJUNCTION_INFO;

/* "SmartMotionHuman" (633): a person moves. */
typedef struct DEV_EVENT_SMARTMOTIONHUMAN_INFO {
    int32_t nChannelID;
    int32_t byEventAction; /* EVENT_ACTION_... */
    char szName[128];
    double dPTS;
    EVENT_TIME stuUTC;
} DEV_EVENT_SMARTMOTIONHUMAN_INFO;

/* "SmartMotionVehicle" (634): a vehicle moves. */
typedef DEV_EVENT_SMARTMOTIONHUMAN_INFO DEV_EVENT_SMARTMOTIONVEHICLE_INFO;

#ifdef __cplusplus
}
#endif

#endif
