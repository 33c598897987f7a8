/* The records of the analysis rules of traffic. What the macros stand for, and what all records have in common, is told
 * in analyse_rules.h. */
#ifndef ORRERY_TRAFFIC_RULES_H
#define ORRERY_TRAFFIC_RULES_H

#include "orrery/analyse_rules.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Plates that a ban is for; another text reads as 0. */
enum {
    CFG_PLATE_NUMBER_ODD = 0,  /* "Odd" */
    CFG_PLATE_NUMBER_EVEN = 1, /* "Even" */
    CFG_PLATE_NUMBER_BOTH = 2  /* "Both" */
};

/* Seats that are looked at; another text reads as 0, which is written as null. */
enum {
    CFG_SEAT_MAIN = 1, /* "MainSeat" */
    CFG_SEAT_SLAVE = 2 /* "SlaveSeat" */
};

/* Driving bans: "TrafficControl" (21). */
typedef struct CFG_RULE_TRAFFICCONTROL_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectLinePoint, stuDetectLine);                      /* "DetectLine" */
    CFG_TIME_SECTION stuTimeSchedule[ORRERY_WEEK_DAYS][ORRERY_DAY_SECTIONS]; /* "TimeSchedule": when the ban holds */
    int32_t nVehicleSizeNum;                  /* entries in use; a null keeps its entry, uncounted */
    char szVehicleSizes[4][ORRERY_RULE_TEXT]; /* "VehicleSizes" */
    int32_t nPlateTypeNum;                    /* entries in use, likewise */
    char szPlateTypes[32][ORRERY_RULE_TEXT];  /* "PlateTypes" */
    int32_t nPlateNumber;                     /* "PlateNumber": CFG_PLATE_NUMBER_... */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICCONTROL_INFO;

/* An accident: "TrafficAccident" (22). */
typedef struct CFG_RULE_TRAFFICACCIDENT_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICACCIDENT_INFO;

/* Snapshots at a junction: "TrafficJunction" (23). */
typedef struct CFG_RULE_TRAFFICJUNCTION_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nLane;                                      /* "Lane" */
    int32_t nDirection;                                 /* "Direction" */
    ORRERY_RULE_SHAPE(nPreLinePoint, stuPreLine);       /* "PreLine": line in front */
    ORRERY_RULE_SHAPE(nMiddleLinePoint, stuMiddleLine); /* "MiddleLine": line in the middle */
    ORRERY_RULE_SHAPE(nPostLinePoint, stuPostLine);     /* "PostLine": line behind */
    int32_t nFlowLimit;                                 /* "FlowLimit" */
    int32_t nSpeedLowerLimit;                           /* "SpeedLimit", first number of two: lowest speed allowed */
    int32_t nSpeedUpperLimit;                           /* "SpeedLimit", second number: highest */
    int32_t nTriggerModeNum;                            /* entries in use; a null keeps its entry, uncounted */
    char szTriggerMode[ORRERY_RULE_TRIGGER_MODES][ORRERY_RULE_TEXT]; /* "TriggerMode": what starts a snapshot */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICJUNCTION_INFO;

/* Snapshots at a gate: "TrafficGate" (24). */
typedef struct CFG_RULE_TRAFFICGATE_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nLane;                                        /* "Lane" */
    ORRERY_RULE_SHAPE(nDetectLine1Point, stuDetectLine1); /* "DetectLine1": first line across */
    ORRERY_RULE_SHAPE(nDetectLine2Point, stuDetectLine2); /* "DetectLine2": second line across */
    ORRERY_RULE_SHAPE(nLeftLinePoint, stuLeftLine);       /* "LeftLine": left edge of the lane */
    ORRERY_RULE_SHAPE(nRightLinePoint, stuRightLine);     /* "RightLine": right edge */
    int32_t nSpeedWeight;                                 /* "SpeedWeight" */
    double dMetricDistance;                               /* "MetricDistance": distance of the two lines */
    int32_t nSpeedUpperLimit; /* "SpeedLimit", second number of two: highest speed allowed */
    int32_t nSpeedLowerLimit; /* "SpeedLimit", first number: lowest */
    int32_t nDirection;       /* "Direction" */
    int32_t nTriggerModeNum;  /* entries in use; a null keeps its entry, uncounted */
    char szTriggerMode[ORRERY_RULE_TRIGGER_MODES][ORRERY_RULE_TEXT]; /* "TriggerMode": what starts a snapshot,
 bytes as they stand */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICGATE_INFO;

/* Congested or empty lanes: "TrafficJam" (27), "TrafficIdle" (303). */
typedef struct CFG_RULE_TRAFFICJAM_INFO {
    ORRERY_RULE_HEAD;
    uint8_t byJamLineMargin; /* "JamLineMargin" */
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber;                                    /* "LaneNumber" */
    int32_t nDelay;                                         /* "Delay": seconds */
    int32_t nInterval;                                      /* "Interval": seconds */
    int32_t nReportTimes;                                   /* "ReportTimes" */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICJAM_INFO;

/* Parking where it is forbidden: "TrafficParking" (264), "TrafficParkingSpaceDetection" (563). */
typedef struct CFG_RULE_TRAFFICPARKING_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bTrackEnable;  /* "TrackEnable"; written in "Config" */
    uint8_t bySensitivity; /* "Sensitivity" */
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber;                                    /* "LaneNumber" */
    int32_t nDelay;                                         /* "Delay": seconds */
    int32_t nParkingAllowedTime;                            /* "ParkingAllowedTime": seconds */
    int32_t nReportTimes;                                   /* "ReportTimes" */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICPARKING_INFO;

/* A red light is run: "TrafficRunRedLight" (256), "TrafficPedestrianRunRedLight" (315). */
typedef struct CFG_RULE_TRAFFICRUNRED_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber;                                /* "LaneNumber" */
    int32_t nDirection;                                 /* "Direction" */
    ORRERY_RULE_SHAPE(nPreLinePoint, stuPreLine);       /* "PreLine": line in front */
    ORRERY_RULE_SHAPE(nMiddleLinePoint, stuMiddleLine); /* "MiddleLine": line in the middle */
    ORRERY_RULE_SHAPE(nPostLinePoint, stuPostLine);     /* "PostLine": line behind */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICRUNRED_INFO;

/* Offences in a lane: "TrafficWrongRoute" (265), "TrafficCrossLane" (266), "TrafficOverLine" (257),
 * "TrafficTurnLeft" (259), "TrafficTurnRight" (260), "TrafficYellowPlateInLane", in rules "TrafficYellowInRoute"
 * (270), "TrafficVehicleInRoute" (283), "TrafficBacking" (293). */
typedef struct CFG_RULE_TRAFFICLANE_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bTrackEnable;  /* "TrackEnable"; written in "Config" */
    uint8_t bySensitivity; /* "Sensitivity" */
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber;                                    /* "LaneNumber" */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_SHAPE(nDirectionPoint, stuDirection);       /* "Direction": the direction allowed */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICLANE_INFO;

/* A vehicle in the bus lane: "TrafficVehicleInBusRoute" (292). */
typedef struct CFG_RULE_TRAFFICBUSLANE_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bTrackEnable;       /* "TrackEnable"; written in "Config" */
    uint8_t byCarTypeInBusLane; /* "CarTypeInBusLane" */
    uint8_t bySensitivity;      /* "Sensitivity" */
    uint8_t byEnclosure;        /* "Enclosure" */
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber;                                    /* "LaneNumber" */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICBUSLANE_INFO;

/* A yellow line is crossed: "TrafficOverYellowLine" (267). */
typedef struct CFG_RULE_TRAFFICOVERYELLOW_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber;                                    /* "LaneNumber" */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICOVERYELLOW_INFO;

/* A U-turn: "TrafficU-Turn" (261). */
typedef struct CFG_RULE_TRAFFICUTURN_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bTrackEnable; /* "TrackEnable"; written in "Config" */
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber;                                    /* "LaneNumber" */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nTriggerAngle;                                  /* "TriggerAngle": degrees */
    ORRERY_RULE_TAIL;
    ORRERY_RULE_FILTER;
} CFG_RULE_TRAFFICUTURN_INFO;

/* Too fast or too slow: "TrafficOverSpeed" (262), "TrafficUnderSpeed" (263). */
typedef struct CFG_RULE_TRAFFICSPEED_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber;       /* "LaneNumber" */
    uint32_t nSpeedUpperLimit; /* "SpeedLimit", second number of two: highest speed allowed */
    uint32_t nSpeedLowerLimit; /* "SpeedLimit", first number: lowest */
    int32_t nMinDuration;      /* "MinDuration": seconds that it has to last */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICSPEED_INFO;

/* A toll gate is passed: "TrafficTollGate" (288). */
typedef struct CFG_RULE_TRAFFICTOLLGATE_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    uint32_t nLaneNumber;                               /* "LaneNumber" */
    ORRERY_RULE_SHAPE(nDetectLinePoint, stuDetectLine); /* "DetectLine" */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICTOLLGATE_INFO;

/* A vehicle goes against the direction: "TrafficRetrograde" (258). */
typedef struct CFG_RULE_TRAFFICRETROGRADE_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bTrackEnable; /* "TrackEnable"; written in "Config" */
    ORRERY_RULE_OBJECTS;
    uint32_t nLaneNumber;                                   /* "LaneNumber" */
    int32_t bLegal;                                         /* "Legal": going against it is allowed */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_SHAPE(nDirectionPoint, stuDirection);       /* "Direction": the direction of the lane */
    int32_t nMinDuration;                                   /* "MinDuration": seconds that it has to last */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICRETROGRADE_INFO;

/* A pedestrian's right of way is taken: "TrafficPedestrainPriority" (271). */
typedef struct CFG_RULE_TRAFFICPRIORITY_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber; /* "LaneNumber" */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICPRIORITY_INFO;

/* Waiting on a yellow box: "TrafficParkingOnYellowBox" (298). */
typedef struct CFG_RULE_TRAFFICYELLOWBOX_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber; /* "LaneNumber" */
    int32_t nInterval1;  /* "Interval1": seconds */
    int32_t nInterval2;  /* "Interval2": seconds */
    int32_t nFollowTime; /* "FollowTime": seconds */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICYELLOWBOX_INFO;

/* A parking space is taken or left: "TrafficParkingSpaceParking" (299), "TrafficParkingSpaceNoParking" (300). */
typedef struct CFG_RULE_TRAFFICPARKINGSPACE_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber;                                    /* "LaneNumber" */
    int32_t nDelay;                                         /* "Delay": seconds */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICPARKINGSPACE_INFO;

/* A vehicle over the edge of its parking space: "TrafficParkingSpaceOverLine" (308). */
typedef struct CFG_RULE_TRAFFICSPACEOVERLINE_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bAllowParkingSpaceParkingSnap; /* "AllowParkingSpaceParkingSnap" */
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber; /* "LaneNumber" */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICSPACEOVERLINE_INFO;

/* No seat belt: "TrafficWithoutSafeBelt" (312). */
typedef struct CFG_RULE_TRAFFICSAFEBELT_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber; /* "LaneNumber" */
    int32_t nSeatNum;    /* entries in use */
    int32_t nSeats[8];   /* "Seats": CFG_SEAT_... */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICSAFEBELT_INFO;

/* A driver smokes or telephones: "TrafficDriverSmoking" (313), "TrafficDriverCalling" (314). */
typedef struct CFG_RULE_TRAFFICDRIVER_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber; /* "LaneNumber": a text or a fraction is not read */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICDRIVER_INFO;

/* A pedestrian or a thing on the road: "TrafficPedestrain" (301), "TrafficThrow" (302). */
typedef struct CFG_RULE_TRAFFICPEDESTRAIN_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber;                                    /* "LaneNumber" */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nMinDuration;                                   /* "MinDuration": seconds that it has to last */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICPEDESTRAIN_INFO;

/* Passing out of turn: "TrafficPassNotInOrder" (316). */
typedef struct CFG_RULE_TRAFFICPASS_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nLaneNumber; /* "LaneNumber" */
    int32_t nFollowTime; /* "FollowTime": seconds */
    ORRERY_RULE_TAIL;
} CFG_RULE_TRAFFICPASS_INFO;

/* Vehicles are looked at: "VehicleAnalyse" (514). */
typedef struct CFG_RULE_VEHICLEANALYSE_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_TAIL;
    ORRERY_RULE_FILTER;
} CFG_RULE_VEHICLEANALYSE_INFO;

/* Works on the road, a blocked road: "RoadConstruction" (538), "RoadBlock" (539). */
typedef struct CFG_RULE_ROADEVENT_INFO {
    char szRuleName[ORRERY_RULE_TEXT]; /* "Name" */
    int32_t bRuleEnable;               /* "Enable" */
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nMinDuration;                                   /* "MinDuration": seconds that it has to last */
    int32_t nSensitivity;                                   /* "Sensitivity" */
    ORRERY_RULE_TAIL;
} CFG_RULE_ROADEVENT_INFO;

#ifdef __cplusplus
}
#endif

#endif
