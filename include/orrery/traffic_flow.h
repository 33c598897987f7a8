/* Flows of traffic, pictures sent later, lights over parking spaces. What a reply leaves out is 0. */
#ifndef ORRERY_TRAFFIC_FLOW_H
#define ORRERY_TRAFFIC_FLOW_H

#include "orrery/analyse_rules.h"
#include "orrery/linkage.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_FLOW_LANES 8         /* lanes whose flow is counted */
#define ORRERY_OFFLINE_ADDRESSES 10 /* clients that pictures are sent to */
#define ORRERY_SPACE_SPECIALS 4     /* kinds of special parking space */
#define ORRERY_SPACE_LIGHT_COLORS 8 /* colours of a light, of which 7 have names */

/* An alarm of a flow: above its upper limit, or below its lower one. */
typedef struct CFG_FLOW_ALARM {
    int32_t bEnable;      /* "Enable" */
    int32_t nPeriod;      /* "Period": minutes that are counted */
    int32_t nLimit;       /* "Limit": cars */
    int32_t nRestore;     /* "Restore": cars at which the alarm ends */
    int32_t nDelay;       /* "Delay": seconds before it begins */
    int32_t nInterval;    /* "Interval": seconds between two reports */
    int32_t nReportTimes; /* "ReportTimes" */
    CFG_TIME_SECTION stuTimeSection[ORRERY_WEEK_DAYS][ORRERY_RULE_DAY_SECTIONS]; /* "EventHandler"."TimeSection": 10
                                                                                    sections a day, of a lower limit's
                                                                                    alarm the first 6 are read */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler": its own stuTimeSection is not used */
} CFG_FLOW_ALARM;

/* A lane whose flow is counted. */
typedef struct CFG_TRAFFICFLOW_LANE {
    int32_t abEnable;
    int32_t bEnable;                                        /* "Enable" */
    CFG_FLOW_ALARM stuUpperAlarm;                           /* "FlowUpperAlarm" */
    CFG_FLOW_ALARM stuLowerAlarm;                           /* "FlowLowerAlarm" */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    char szStatName[ORRERY_RULE_TEXT];                      /* "StatName" */
    int32_t nPresetId;                                      /* "PresetID": preset of the camera at which it counts */
    CFG_POLYGON stuDetectLine[2];                           /* "DetectLine": up to two points; written both */
    int32_t abDetectLine;                                   /* 1 when "DetectLine" was there, points or not */
} CFG_TRAFFICFLOW_LANE;

/* "TrafficFlowStat": flows by lane. The caller's array pExtraConfigs and its room nExtraMax are set before the call;
 * all else is cleared. "result" is not looked at. The text may fill its buffer to the last byte, where the terminator
 * takes the place of its newline. */
typedef struct CFG_TRAFFICFLOWSTAT_INFO {
    int32_t abPeriod;
    int32_t nPeriod;                                    /* "Period": minutes between two counts */
    int32_t nConfigNum;                                 /* entries of stuConfigs in use */
    CFG_TRAFFICFLOW_LANE stuConfigs[ORRERY_FLOW_LANES]; /* "Config": the first eight */
    int32_t nExtraMax;                                  /* room at pExtraConfigs */
    int32_t nExtraNum;                                  /* entries of it in use */
    CFG_TRAFFICFLOW_LANE* pExtraConfigs; /* "Config": those behind the eighth; cleared before they are read, and written
                                            when there are eight in stuConfigs. Null has room for nothing */
} CFG_TRAFFICFLOWSTAT_INFO;

/* What a client is told apart by; the case does not matter. */
enum {
    CFG_OFFLINE_BY_ADDRESS = 0, /* "IPADDR", and any other text on reading */
    CFG_OFFLINE_BY_MAC = 1      /* "MAC" */
};

/* "TrafficTransferOffline": clients that get later the pictures that were taken while they were away. "result" is not
 * looked at. The text may fill its buffer to the last byte. */
typedef struct CFG_TRANSFEROFFLINE_INFO {
    uint8_t bEnable;                                    /* "Enable" */
    uint8_t nType;                                      /* "Type": CFG_OFFLINE_BY_...; another code is not written */
    int32_t nIpNum;                                     /* entries of szIpAddresses in use */
    char szIpAddresses[ORRERY_OFFLINE_ADDRESSES][256];  /* "Addresses" */
    int32_t nMacNum;                                    /* entries of szMacAddresses in use */
    char szMacAddresses[ORRERY_OFFLINE_ADDRESSES][256]; /* "ClientID" */
} CFG_TRANSFEROFFLINE_INFO;

/* Colours of a light over a parking space. */
enum {
    CFG_SPACE_LIGHT_RED = 0,    /* "Red" */
    CFG_SPACE_LIGHT_YELLOW = 1, /* "Yellow" */
    CFG_SPACE_LIGHT_BLUE = 2,   /* "Blue" */
    CFG_SPACE_LIGHT_GREEN = 3,  /* "Green" */
    CFG_SPACE_LIGHT_PURPLE = 4, /* "Purple" */
    CFG_SPACE_LIGHT_WHITE = 5,  /* "White" */
    CFG_SPACE_LIGHT_PINK = 6    /* "Pink" */
};

/* A light: the value itself, an object of the colours' names, in any case, with a number each. Of other names nothing
 * is read, and all seven colours are written. */
typedef struct CFG_LIGHT_STATE {
    uint8_t byColors[ORRERY_SPACE_LIGHT_COLORS]; /* the state of each colour, by CFG_SPACE_LIGHT_...: 0 off, 1 on, 2
                                                    blinking; the eighth is not used */
} CFG_LIGHT_STATE;

/* "ParkingSpaceLightState": how the lights over parking spaces tell the state of a space. "result" is not looked at.
 * The text may fill its buffer to the last byte. */
typedef struct CFG_PARKINGSPACELIGHT_INFO {
    CFG_LIGHT_STATE stuSpaceFree;                           /* "SpaceFree" */
    CFG_LIGHT_STATE stuSpaceFull;                           /* "SpaceFull" */
    CFG_LIGHT_STATE stuSpaceOverLine;                       /* "SpaceOverLine": a car stands over the line */
    CFG_LIGHT_STATE stuSpaceOrder;                          /* "SpaceOrder": reserved */
    int32_t nSpaceSpecialNum;                               /* entries of stuSpaceSpecial in use */
    CFG_LIGHT_STATE stuSpaceSpecial[ORRERY_SPACE_SPECIALS]; /* "SpaceSpecial": spaces for some cars only */
    CFG_LIGHT_STATE stuNetPortAbort;                        /* "NetworkException"."NetPortAbort": the network is gone */
} CFG_PARKINGSPACELIGHT_INFO;

#ifdef __cplusplus
}
#endif

#endif
