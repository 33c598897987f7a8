/* What CLIENT_ParseDataByCallback hands to its callback besides analyzer events: the codes, and the record of each. The
 * keys stand in the value under the text's own key of that name. What a key that is absent leaves is 0; what is said of
 * records, blocks and texts in events_common.h holds here too.
 *
 * Not handed over are: a list without elements, a null and what is no list among them, with the result 1; a null under
 * the other keys but "VideoAnalyseRule", with the result 0; and what there is no memory for, with the result 0. Records
 * that would take more than 64 MiB and 64 bytes for each byte of the text count as such. */
#ifndef ORRERY_EVENTS_TYPED_H
#define ORRERY_EVENTS_TYPED_H

#include "orrery/events_traffic_flow.h"
#include "orrery/traffic_flow.h"

#ifdef __cplusplus
extern "C" {
#endif

/* eventType, by the key of the text. recordSize is the record's size unless told otherwise. */
enum {
    ORRERY_TYPED_VIDEO_STAT_SUMMARY = 0x1000000,     /* "VideoStatSummary": EVENT_VIDEO_STAT_SUMMARY */
    ORRERY_TYPED_VIDEO_ANALYSE_RULE = 0x1000001,     /* "VideoAnalyseRule": EVENT_RULE_TABLE */
    ORRERY_TYPED_OBJECT_LIST = 0x1000002,            /* "ObjectList": EVENT_OBJECT_INFO, recordSize tells how many: an
                                                        element that is null is passed over */
    ORRERY_TYPED_TRAFFIC_FLOW_STAT_INFO = 0x1000003, /* "TrafficFlowStatInfo": EVENT_TRAFFIC_FLOW_STAT, recordSize tells
                                                        how many: one for each element of the list */
    ORRERY_TYPED_TRAFFIC_FLOW_STAT = 0x1000004, /* "TrafficFlowStat": CFG_TRAFFICFLOWSTAT_INFO (traffic_flow.h), whose
                                                   pExtraConfigs has room for the elements behind the eighth of a
                                                   "Config" at the top of the text */
    ORRERY_TYPED_VIDEO_SYNOPSIS_ANALYSE_RULE = 0x1000005 /* "VideoSynopsisAnalyseRule": EVENT_VIDEO_SYNOPSIS_RULE */
};

/* People or vehicles counted. */
typedef struct EVENT_STAT_SUBTOTAL {
    int32_t nTotal;     /* "Total": since counting began */
    int32_t nToday;     /* "Today" */
    int32_t nThisMonth; /* "ThisMonth" */
    int32_t nThisYear;  /* "ThisYear" */
    int32_t nMaxDaily;  /* "MaxDaily": most in a day */
} EVENT_STAT_SUBTOTAL;

/* "VideoStatSummary": what a counting rule of a channel has counted. */
typedef struct EVENT_VIDEO_STAT_SUMMARY {
    int32_t nReserved;
    int32_t nChannelID;                     /* "Channel" */
    char szRuleName[128];                   /* "RuleName" */
    EVENT_TIME stuUTC;                      /* "UTC" */
    EVENT_STAT_SUBTOTAL stuEnteredSubtotal; /* "EnteredSubtotal" */
    EVENT_STAT_SUBTOTAL stuExitedSubtotal;  /* "ExitedSubtotal" */
    EVENT_STAT_SUBTOTAL stuAvgInside;       /* "AvgInside": inside on average */
    EVENT_STAT_SUBTOTAL stuMaxInside;       /* "MaxInside": most inside at a time */
    EVENT_STAT_SUBTOTAL stuInsideSubtotal;  /* "InsideSubtotal" */
} EVENT_VIDEO_STAT_SUMMARY;

/* "VideoAnalyseRule": the rules of a channel, at most 32, packed as analyse_rules.h tells: each a CFG_RULE_INFO and
 * behind it the record of its type. Handed over also when a rule is of a type without a record: the buffer is null
 * then, or, for rules that no device sends, ends in zeros behind the rules before. */
typedef struct EVENT_RULE_TABLE {
    uint32_t dwHead;         /* rules in the buffer */
    const uint8_t* pRuleBuf; /* the buffer */
    int32_t nRuleBufLen;     /* bytes at pRuleBuf */
} EVENT_RULE_TABLE;

/* A moment in UTC with its milliseconds. Members are as in EVENT_TIME. */
typedef struct EVENT_FLOW_TIME {
    uint32_t dwYear;
    uint32_t dwMonth;
    uint32_t dwDay;
    uint32_t dwHour;
    uint32_t dwMinute;
    uint32_t dwSecond;
    uint32_t dwMillisecond;
    uint32_t dwReserved;
} EVENT_FLOW_TIME;

/* "TrafficFlowStatInfo": the flow of one lane in a period. An element that is no object leaves its record zero. */
typedef struct EVENT_TRAFFIC_FLOW_STAT {
    char szMachineAddress[256];     /* "MachineAddress" */
    char szMachineName[256];        /* "MachineName" */
    char szDrivingDirection[3][32]; /* "DrivingDirection": heading, bytes as they stand; from and to, full */
    int32_t nLane;                  /* "Lane" */
    EVENT_FLOW_TIME stuUTC;         /* "UTC"; its milliseconds from "UTCMS" */
    int32_t nPeriod;                /* "Period": minutes */
    int32_t nVehicles;              /* "Vehicles" */
    float fAverageSpeed;            /* "AverageSpeed": km/h */
    float fAverageLength;           /* "AverageLength": metres */
    float fTimeOccupyRatio;         /* "TimeOccupyRatio" */
    float fSpaceOccupyRatio;        /* "SpaceOccupyRatio" */
    float fSpaceHeadway;            /* "SpaceHeadway": metres */
    float fTimeHeadway;             /* "TimeHeadway": seconds */
    float fDensity;                 /* "Density": vehicles in a kilometre */
    int32_t nOverSpeedVehicles;     /* "OverSpeedVehicles" */
    int32_t nUnderSpeedVehicles;    /* "UnderSpeedVehicles" */
    int32_t nLargeVehicles;         /* "LargeVehicles" */
    int32_t nMediumVehicles;        /* "MediumVehicles" */
    int32_t nSmallVehicles;         /* "SmallVehicles" */
    int32_t nMotoVehicles;          /* "MotoVehicles" */
    int32_t nLongVehicles;          /* "LongVehicles" */
    float fBackOfQueue;             /* "BackOfQueue": metres */
    int32_t emRank;                 /* "Rank": EVENT_RANK_..., 0 for others */
    int32_t nState;                 /* "State" */
} EVENT_TRAFFIC_FLOW_STAT;

#define ORRERY_SYNOPSIS_FILTERS 16
#define ORRERY_SYNOPSIS_COLORS 16
#define ORRERY_SYNOPSIS_DETAIL 4194304 /* bytes of a detail rule's block */

enum {
    EVENT_SYNOPSIS_OUTPUT_NONE = 0,    /* no list of one or two; one that is not known */
    EVENT_SYNOPSIS_OUTPUT_SUMMARY = 1, /* [ "VideoSummary" ] */
    EVENT_SYNOPSIS_OUTPUT_VIDEO = 2,   /* [ "SynopsisVideo" ] */
    EVENT_SYNOPSIS_OUTPUT_BOTH = 3     /* any list of two */
};

/* Which objects of a recording a synopsis shows. */
typedef struct EVENT_SYNOPSIS_FILTER {
    uint32_t dwMinSizeClass;                       /* "MinSizeClass" */
    uint32_t dwMaxSizeClass;                       /* "MaxSizeClass" */
    uint32_t dwMinSpeed;                           /* "MinSpeed" */
    uint32_t dwMaxSpeed;                           /* "MaxSpeed" */
    NET_TIME stuBeginTime;                         /* "BeginTime": of a date and a time only the time */
    NET_TIME stuEndTime;                           /* "EndTime", likewise */
    char szObjectType[15];                         /* "ObjectType" */
    char szCategory[64];                           /* "Category" */
    int32_t nMainColorNum;                         /* entries of dwMainColors in use */
    uint32_t dwMainColors[ORRERY_SYNOPSIS_COLORS]; /* "MainColor": lists of four numbers: 0xRRGGBBAA; one of fewer
                                                      leaves its entry 0 and counts */
    int32_t bPartitionLowerUpperBodyColor;         /* "PartitionLowerUpperBodyColor": legs have colours of their own */
    int32_t nLowerBodyColorNum;                    /* entries of dwLowerBodyColors in use */
    uint32_t dwLowerBodyColors[ORRERY_SYNOPSIS_COLORS]; /* "LowerBodyColor", as "MainColor"; read only with
                                                           bPartitionLowerUpperBodyColor */
} EVENT_SYNOPSIS_FILTER;

/* "VideoSynopsisAnalyseRule": how a recording becomes a synopsis. */
typedef struct EVENT_VIDEO_SYNOPSIS_RULE {
    uint32_t dwSize;                                           /* of this record */
    uint8_t byOutputType;                                      /* "OutputType": EVENT_SYNOPSIS_OUTPUT_... */
    uint8_t byDensity;                                         /* "Density": of objects in the synopsis */
    uint8_t bEnableShowTime;                                   /* "EnableShowTime": objects show their time */
    uint8_t bEnableShowBox;                                    /* "EnableShowBox": objects show their box */
    uint8_t bEnableRecordResult;                               /* "EnableRecordResult": the synopsis is stored */
    uint8_t byTime;                                            /* "Time": how long an object stays */
    int32_t nFilterNum;                                        /* entries of stuFilters in use */
    EVENT_SYNOPSIS_FILTER stuFilters[ORRERY_SYNOPSIS_FILTERS]; /* "ConditionFilter" */
    const char* pDetailRule; /* "DetailRule" as the text of a reply that has it as "params"."table", in UTF-8, cut at
                                its block; empty when absent */
    int32_t nDetailRuleLen;  /* bytes of the block at pDetailRule, ORRERY_SYNOPSIS_DETAIL */
    int32_t emResolution;    /* "Resolution": 0 for "Original" and when absent, 1 for any other */
    int32_t nResolution;     /* "Resolution": CFG_RESOLUTION_... (encode.h) when emResolution is 1 */
    int32_t bEnableMaximizeUsedCPU; /* "EnableMaximizeUsedCPU" */
    int32_t bEnableSmoothBorder;    /* "EnableSmoothBorder" */
} EVENT_VIDEO_SYNOPSIS_RULE;

#ifdef __cplusplus
}
#endif

#endif
