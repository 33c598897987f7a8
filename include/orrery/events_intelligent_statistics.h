/* Intelligent events: counts, queues, crowds. Heads and closing fields: see events_common.h. */
#ifndef ORRERY_EVENTS_INTELLIGENT_STATISTICS_H
#define ORRERY_EVENTS_INTELLIGENT_STATISTICS_H

#include "orrery/events_intelligent_crossing.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "FlowStat" (15): how many passed. */
typedef struct DEV_EVENT_FLOWSTAT_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLeft;  /* "Left": to the left */
    int32_t nRight; /* "Right" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
} DEV_EVENT_FLOWSTAT_INFO;

/* "NumberStat" (16): how many are inside. */
typedef struct DEV_EVENT_NUMBERSTAT_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nNumber;     /* "Number" */
    int32_t nUpperLimit; /* "UpperLimit": of the rule */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    int32_t nEnteredNumber; /* "EnteredNumber" */
    int32_t nExitedNumber;  /* "ExitedNumber" */
    uint32_t dwFlagMask;
    uint32_t dwCount;
} DEV_EVENT_NUMBERSTAT_INFO;

/* "QueueDetection" (291): a queue is too long. */
typedef struct DEV_EVENT_QUEUEDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    ORRERY_EVENT_POINT_LIST(DetectLine); /* "DetectLine", exactly 2 points */
    uint32_t dwCount;
} DEV_EVENT_QUEUEDETECTION_INFO;

#define ORRERY_EVENT_CROWDS 5
#define ORRERY_EVENT_CROWD_REGIONS 8

typedef struct EVENT_CROWD_INFO {
    EVENT_POINT stuCenter; /* "Center", at least 2 numbers */
    uint32_t dwRadius;     /* "Radius" */
} EVENT_CROWD_INFO;

typedef struct EVENT_CROWD_REGION_INFO {
    uint32_t dwRegionID;  /* "RegionID" */
    uint32_t dwPeopleNum; /* "PeopleNum" */
} EVENT_CROWD_REGION_INFO;

/* "CrowdDetection" (556): a crowd gathers. */
typedef struct DEV_EVENT_CROWDDETECTION_INFO {
    int32_t nChannelID;
    int32_t nEventID;
    double dPTS;
    EVENT_TIME stuUTC;
    int32_t byEventAction; /* EVENT_ACTION_... */
    int32_t emAlarmType;   /* low two bits of "AlarmMask" */
    char szName[128];
    int32_t nCrowdListNum;                                             /* crowds in use */
    EVENT_CROWD_INFO stuCrowdList[ORRERY_EVENT_CROWDS];                /* "CrowdList" */
    int32_t nRegionListNum;                                            /* regions in use */
    EVENT_CROWD_REGION_INFO stuRegionList[ORRERY_EVENT_CROWD_REGIONS]; /* "RegionList" */
} DEV_EVENT_CROWDDETECTION_INFO;

#ifdef __cplusplus
}
#endif

#endif
