/* Intelligent events: lines and regions that things cross, and the paths they take. Heads and closing fields: see
 * events_common.h. */
#ifndef ORRERY_EVENTS_INTELLIGENT_CROSSING_H
#define ORRERY_EVENTS_INTELLIGENT_CROSSING_H

#include "orrery/events_common.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The head of records that have no room for what others keep behind the name. */
#define ORRERY_EVENT_HEAD_SHORT                                                                                        \
    int32_t nChannelID;                                                                                                \
    char szName[128];                                                                                                  \
    double dPTS;                                                                                                       \
    EVENT_TIME stuUTC;                                                                                                 \
    int32_t nEventID

/* Where an event was observed, among the closing fields. */
#define ORRERY_EVENT_SOURCE                                                                                            \
    int32_t nSourceIndex;                                                                                              \
    char szSourceDevice[260]

/* A list of points with its count in front: nTrackNum of stuTrack, "Track". */
#define ORRERY_EVENT_POINT_LIST(name)                                                                                  \
    int32_t n##name##Num;                                                                                              \
    EVENT_POINT stu##name[ORRERY_EVENT_POINTS]

enum { EVENT_LEFT_TO_RIGHT = 0, EVENT_RIGHT_TO_LEFT = 1 };
enum { EVENT_REGION_ENTER = 0, EVENT_REGION_LEAVE = 1, EVENT_REGION_APPEAR = 2, EVENT_REGION_DISAPPEAR = 3 };

/* What the thing did ("Action" inside "Data"). */
enum { EVENT_DEED_APPEAR = 0, EVENT_DEED_DISAPPEAR = 1, EVENT_DEED_INSIDE = 2, EVENT_DEED_CROSS = 3 };

#define ORRERY_EVENT_CARGO_CHANNELS 8
#define ORRERY_EVENT_TRACKS 16

/* One path of a thing. */
typedef struct EVENT_TRACK_LINE {
    int32_t nPointNum;                         /* points in use, without holes */
    EVENT_POINT stuPoint[ORRERY_EVENT_POINTS]; /* the list itself */
} EVENT_TRACK_LINE;

/* "CrossLineDetection" (2): something crossed a line. One with a list of objects or a person is code 337. */
typedef struct DEV_EVENT_CROSSLINEDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    EVENT_FILE_INFO stuFileInfo;
    EVENT_POINT stuDetectLine[ORRERY_EVENT_POINTS]; /* "DetectLine": of the rule */
    int32_t nDetectLineNum;
    EVENT_POINT stuTrack[ORRERY_EVENT_POINTS]; /* "Track": the thing's path */
    int32_t nTrackNum;
    uint8_t byEventAction;
    uint8_t byDirection;  /* "Direction": "LeftToRight" 0, "RightToLeft" 1 */
    uint8_t byActionType; /* "Action": EVENT_DEED_... */
    uint8_t byRepeat;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t nCargoChannelNum;                           /* channels in use */
    int32_t nCargoChannel[ORRERY_EVENT_CARGO_CHANNELS]; /* "Custom"."CargoChannelInfo" */
    int32_t emClass;                                    /* "Class" */
    uint16_t wPresetID;                                 /* "PresetID" */
} DEV_EVENT_CROSSLINEDETECTION_INFO;

/* Code 337: a "CrossLineDetection" with "Objects", or with a "Person" in its "Object". */
typedef struct DEV_EVENT_CROSSLINE_EX_INFO {
    uint32_t dwSize; /* of this record */
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO_EX stuObject; /* "Object" */
    EVENT_FILE_INFO stuFileInfo;
    EVENT_POINT stuDetectLine[ORRERY_EVENT_POINTS]; /* "DetectLine" */
    int32_t nDetectLineNum;
    EVENT_POINT stuTrack[ORRERY_EVENT_POINTS]; /* "Track" */
    int32_t nTrackNum;
    uint8_t byEventAction;
    uint8_t byDirection;  /* "Direction": "LeftToRight" 0, "RightToLeft" 1 */
    uint8_t byActionType; /* "Action": EVENT_DEED_... */
    uint8_t byRepeat;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t nObjectNum;                   /* objects at pObjects */
    const EVENT_OBJECT_INFO_EX* pObjects; /* "Objects", all of them; null when there are none */
    int32_t emClass;                      /* "Class" */
} DEV_EVENT_CROSSLINE_EX_INFO;

/* "CrossRegionDetection" (3): something came into a region, left it, or is inside. */
typedef struct DEV_EVENT_CROSSREGIONDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    EVENT_FILE_INFO stuFileInfo;
    EVENT_POINT stuDetectRegion[ORRERY_EVENT_POINTS]; /* "DetectRegion": of the rule */
    int32_t nDetectRegionNum;
    EVENT_POINT stuTrack[ORRERY_EVENT_POINTS]; /* "Track": the thing's path */
    int32_t nTrackNum;
    uint8_t byEventAction;
    uint8_t byDirection;  /* "Direction": EVENT_REGION_... */
    uint8_t byActionType; /* "Action": EVENT_DEED_... */
    uint8_t byRepeat;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t nCargoChannelNum;                           /* channels in use */
    int32_t nCargoChannel[ORRERY_EVENT_CARGO_CHANNELS]; /* "Custom"."CargoChannelInfo" */
    int32_t nObjectNum;                                 /* objects in use */
    EVENT_OBJECT_INFO stuObjects[ORRERY_EVENT_OBJECTS]; /* "Objects" */
    int32_t nTrackLineNum;                              /* paths in use */
    EVENT_TRACK_LINE stuTrackLine[ORRERY_EVENT_TRACKS]; /* "Tracks" */
    int32_t emClass;                                    /* "Class" */
    uint16_t wPresetID;                                 /* "PresetID" */
} DEV_EVENT_CROSSREGIONDETECTION_INFO;

/* "WanderDetection" (7): people loiter. */
typedef struct DEV_EVENT_WANDERDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    int32_t nObjectNum;                                 /* objects in use */
    EVENT_OBJECT_INFO stuObjects[ORRERY_EVENT_OBJECTS]; /* "Objects" */
    int32_t nTrackLineNum;                              /* paths in use */
    EVENT_TRACK_LINE stuTrackLine[ORRERY_EVENT_TRACKS]; /* "Tracks" */
    ORRERY_EVENT_POINT_LIST(DetectRegion);              /* "DetectRegion" */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t emClass;       /* "Class" */
    uint16_t wPresetID;    /* "PresetID" */
    char szPresetName[64]; /* "PresetName" */
} DEV_EVENT_WANDERDETECTION_INFO;

/* "CrossFenceDetection" (287): someone climbed over a fence. */
typedef struct DEV_EVENT_CROSSFENCEDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;             /* "Object" */
    ORRERY_EVENT_POINT_LIST(UpstairsLine);   /* "UpstairsLine": top of the fence */
    ORRERY_EVENT_POINT_LIST(DownstairsLine); /* "DownstairsLine" */
    ORRERY_EVENT_POINT_LIST(Track);          /* "Track" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SOURCE;
    uint32_t dwCount;
    int32_t emClass;     /* "Class" */
    int32_t nPresetID;   /* "PresetID" */
    int32_t emDirection; /* "Direction": "LeftToRight" 0, "RightToLeft" 1 */
} DEV_EVENT_CROSSFENCEDETECTION_INFO;

/* "ClimbDetection" (296): someone climbs. */
typedef struct DEV_EVENT_CLIMBDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nGroupID;                    /* "GroupID" */
    int32_t nCountInGroup;               /* "CountInGroup" */
    int32_t nIndexInGroup;               /* "IndexInGroup" */
    EVENT_OBJECT_INFO stuObject;         /* "Object" */
    ORRERY_EVENT_POINT_LIST(DetectLine); /* "DetectLine" */
    int32_t emClass;                     /* "Class" */
    uint8_t byEventAction;
    uint32_t dwResolution; /* of the notification: width, with the height in the upper half */
    uint32_t dwCount;
    uint8_t byRepeat;
} DEV_EVENT_CLIMBDETECTION_INFO;

/* "LeaveDetection" (297): a post is left. */
typedef struct DEV_EVENT_LEAVEDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nGroupID;                      /* "GroupID" */
    int32_t nCountInGroup;                 /* "CountInGroup" */
    int32_t nIndexInGroup;                 /* "IndexInGroup" */
    EVENT_OBJECT_INFO stuObject;           /* "Object" */
    ORRERY_EVENT_POINT_LIST(DetectRegion); /* "DetectRegion" */
    int32_t emClass;                       /* "Class" */
    uint8_t byEventAction;
    uint32_t dwResolution; /* of the notification: width, with the height in the upper half */
    uint8_t byRepeat;
} DEV_EVENT_LEAVEDETECTION_INFO;

#ifdef __cplusplus
}
#endif

#endif
