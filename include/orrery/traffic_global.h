/* What a traffic camera knows of all its rules: legal codes and texts of violations, what goes first when several
 * apply, how files are named. Texts of codes are compared without regard to case; another text reads as 0 unless told
 * otherwise, and a code without a text leaves its key out. */
#ifndef ORRERY_TRAFFIC_GLOBAL_H
#define ORRERY_TRAFFIC_GLOBAL_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_SPEEDING_STEPS 5       /* steps of a fine for speeding */
#define ORRERY_TRAFFIC_PRIORITIES 256 /* violations in the order of their weight */
#define ORRERY_TRAFFIC_TEXT 256       /* a text of the settings, terminator included */
#define ORRERY_MIXED_LANES 32         /* lanes with modes of their own */

/* What is transferred first. */
enum {
    CFG_TRANSFER_REALTIME = 1, /* "RealtimePriority": what has just happened */
    CFG_TRANSFER_SEQUENCE = 2  /* "SequencePriority": what happened first */
};

/* A moment with its size in front: read, and written, only where dwSize holds 28 before the call. Reading sets dwSize,
 * so that a second call into the same record reads what the first one passed over. */
typedef struct CFG_SIZED_NET_TIME {
    uint32_t dwSize;  /* 28 */
    NET_TIME stuTime; /* as a text: "2026-11-20 09:30:00" */
} CFG_SIZED_NET_TIME;

/* A step of a fine for speeding. */
typedef struct CFG_SPEEDING_ENTRY {
    int32_t nPercentFrom;   /* "SpeedingPercentage", first number: from so many percent over the limit */
    int32_t nPercentTo;     /* "SpeedingPercentage", second number: up to so many. Not written: the text gets the next
                               step's nPercentFrom, -1 when that is 0 and behind the last step */
    char szCode[16];        /* "Code": of the violation */
    char szDescription[64]; /* "Description" */
} CFG_SPEEDING_ENTRY;

/* Codes of violations, as the law of a country numbers them, with descriptions and, for some, names to show. */
typedef struct CFG_VIOLATION_CODE_INFO {
    char szRetrograde[16];                                        /* "Retrograde" */
    char szRetrogradeDesc[64];                                    /* "RetrogradeDesc" */
    char szRetrogradeShowName[64];                                /* "RetrogradeShowName" */
    char szRetrogradeHighway[16];                                 /* "RetrogradeHighway" */
    char szRetrogradeHighwayDesc[64];                             /* "RetrogradeHighwayDesc" */
    char szRunRedLight[16];                                       /* "RunRedLight" */
    char szRunRedLightDesc[64];                                   /* "RunRedLightDesc" */
    char szBacking[16];                                           /* "Backing" */
    char szBackingDesc[64];                                       /* "BackingDesc" */
    char szBackingShowName[64];                                   /* "BackingShowName" */
    char szVehicleInBusRoute[16];                                 /* "VehicleInBusRoute" */
    char szVehicleInBusRouteDesc[64];                             /* "VehicleInBusRouteDesc" */
    char szVehicleInBusRouteShowName[64];                         /* "VehicleInBusRouteShowName" */
    char szCrossLane[16];                                         /* "CrossLane" */
    char szCrossLaneDesc[64];                                     /* "CrossLaneDesc" */
    char szCrossLaneShowName[64];                                 /* "CrossLaneShowName" */
    char szTurnLeft[16];                                          /* "TurnLeft" */
    char szTurnLeftDesc[64];                                      /* "TurnLeftDesc" */
    char szTurnRight[16];                                         /* "TurnRight" */
    char szTurnRightDesc[64];                                     /* "TurnRightDesc" */
    char szUTurn[16];                                             /* "U-Turn" */
    char szUTurnDesc[64];                                         /* "U-TurnDesc" */
    char szUTurnShowName[64];                                     /* "U-TurnShowName" */
    char szJam[16];                                               /* "Jam" */
    char szJamDesc[64];                                           /* "JamDesc" */
    char szParking[16];                                           /* "Parking" */
    char szParkingDesc[64];                                       /* "ParkingDesc" */
    char szParkingShowName[64];                                   /* "ParkingShowName" */
    char szOverSpeed[16];                                         /* "OverSpeed" */
    char szOverSpeedDesc[64];                                     /* "OverSpeedDesc" */
    int32_t nOverSpeedConfigNum;                                  /* entries of stuOverSpeedConfig in use */
    CFG_SPEEDING_ENTRY stuOverSpeedConfig[ORRERY_SPEEDING_STEPS]; /* "OverSpeedConfig": by how much */
    char szOverSpeedHighway[16];                                  /* "OverSpeedHighway" */
    char szOverSpeedHighwayDesc[64];                              /* "OverSpeedHighwayDesc" */
    int32_t nOverSpeedHighwayConfigNum;                           /* entries of stuOverSpeedHighwayConfig in use */
    CFG_SPEEDING_ENTRY stuOverSpeedHighwayConfig[ORRERY_SPEEDING_STEPS]; /* "OverSpeedHighwayConfig": by how much */
    char szUnderSpeed[16];                                               /* "UnderSpeed" */
    char szUnderSpeedDesc[64];                                           /* "UnderSpeedDesc" */
    int32_t nUnderSpeedConfigNum;                                        /* entries of stuUnderSpeedConfig in use */
    CFG_SPEEDING_ENTRY stuUnderSpeedConfig[ORRERY_SPEEDING_STEPS];       /* "UnderSpeedConfig": by how much */
    char szOverLine[16];                                                 /* "OverLine" */
    char szOverLineDesc[64];                                             /* "OverLineDesc" */
    char szOverLineShowName[64];                                         /* "OverLineShowName" */
    char szOverYellowLine[16];                                           /* "OverYellowLine" */
    char szOverYellowLineDesc[64];                                       /* "OverYellowLineDesc" */
    char szYellowInRoute[16];                                            /* "YellowInRoute" */
    char szYellowInRouteDesc[64];                                        /* "YellowInRouteDesc" */
    char szWrongRoute[16];                                               /* "WrongRoute" */
    char szWrongRouteDesc[64];                                           /* "WrongRouteDesc" */
    char szDrivingOnShoulder[16];                                        /* "DrivingOnShoulder" */
    char szDrivingOnShoulderDesc[64];                                    /* "DrivingOnShoulderDesc" */
    char szPassing[16];                                                  /* "Passing" */
    char szPassingDesc[64];                                              /* "PassingDesc" */
    char szNoPassing[16];                                                /* "NoPassing" */
    char szNoPassingDesc[64];                                            /* "NoPassingDesc" */
    char szFakePlate[16];                                                /* "FakePlate" */
    char szFakePlateDesc[64];                                            /* "FakePlateDesc" */
    char szParkingSpaceParking[16];                                      /* "ParkingSpaceParking"; written only */
    char szParkingSpaceParkingDesc[64];                                  /* "ParkingSpaceParkingDesc"; written only */
    char szParkingSpaceNoParking[16];                                    /* "ParkingSpaceNoParking"; written only */
    char szParkingSpaceNoParkingDesc[64];                                /* "ParkingSpaceNoParkingDesc"; written only */
    char szWithoutSafeBelt[16];                                          /* "WithoutSafeBelt" */
    char szWithoutSafeBeltDesc[64];                                      /* "WithoutSafeBeltDesc" */
    char szWithoutSafeBeltShowName[64];                                  /* "WithoutSafeBeltShowName" */
    char szDriverSmoking[16];                                            /* "DriverSmoking" */
    char szDriverSmokingDesc[64];                                        /* "DriverSmokingDesc" */
    char szDriverSmokingShowName[64];                                    /* "DriverSmokingShowName" */
    char szDriverCalling[16];                                            /* "DriverCalling" */
    char szDriverCallingDesc[64];                                        /* "DriverCallingDesc" */
    char szDriverCallingShowName[64];                                    /* "DriverCallingShowName" */
    char szPedestrianRunRedLight[16];                                    /* "PedestrianRunRedLight" */
    char szPedestrianRunRedLightDesc[64];                                /* "PedestrianRunRedLightDesc" */
    char szPedestrianRunRedLightShowName[64];                            /* "PedestrianRunRedLightShowName" */
} CFG_VIOLATION_CODE_INFO;

/* Switches of a rule type each: the ab... member is 1 when the key was there, and lets it be written. */
#define ORRERY_RULE_VALUES                                                                                             \
    int32_t abTrafficGate;                                                                                             \
    int32_t nTrafficGate; /* "TrafficGate" */                                                                          \
    int32_t abTrafficJunction;                                                                                         \
    int32_t nTrafficJunction; /* "TrafficJunction" */                                                                  \
    int32_t abTrafficTollGate;                                                                                         \
    int32_t nTrafficTollGate; /* "TrafficTollGate" */                                                                  \
    int32_t abTrafficRunRedLight;                                                                                      \
    int32_t nTrafficRunRedLight; /* "TrafficRunRedLight" */                                                            \
    int32_t abTrafficRunYellowLight;                                                                                   \
    int32_t nTrafficRunYellowLight; /* "TrafficRunYellowLight" */                                                      \
    int32_t abTrafficOverLine;                                                                                         \
    int32_t nTrafficOverLine; /* "TrafficOverLine" */                                                                  \
    int32_t abTrafficOverYellowLine;                                                                                   \
    int32_t nTrafficOverYellowLine; /* "TrafficOverYellowLine" */                                                      \
    int32_t abTrafficRetrograde;                                                                                       \
    int32_t nTrafficRetrograde; /* "TrafficRetrograde" */                                                              \
    int32_t abTrafficTurnLeft;                                                                                         \
    int32_t nTrafficTurnLeft; /* "TrafficTurnLeft" */                                                                  \
    int32_t abTrafficTurnRight;                                                                                        \
    int32_t nTrafficTurnRight; /* "TrafficTurnRight" */                                                                \
    int32_t abTrafficU_Turn;                                                                                           \
    int32_t nTrafficU_Turn; /* "TrafficU_Turn" */                                                                      \
    int32_t abTrafficCrossLane;                                                                                        \
    int32_t nTrafficCrossLane; /* "TrafficCrossLane" */                                                                \
    int32_t abTrafficParking;                                                                                          \
    int32_t nTrafficParking; /* "TrafficParking" */                                                                    \
    int32_t abTrafficJam;                                                                                              \
    int32_t nTrafficJam; /* "TrafficJam" */                                                                            \
    int32_t abTrafficIdle;                                                                                             \
    int32_t nTrafficIdle; /* "TrafficIdle" */                                                                          \
    int32_t abTrafficWaitingArea;                                                                                      \
    int32_t nTrafficWaitingArea; /* "TrafficWaitingArea" */                                                            \
    int32_t abTrafficUnderSpeed;                                                                                       \
    int32_t nTrafficUnderSpeed; /* "TrafficUnderSpeed" */                                                              \
    int32_t abTrafficOverSpeed;                                                                                        \
    int32_t nTrafficOverSpeed; /* "TrafficOverSpeed" */                                                                \
    int32_t abTrafficWrongRoute;                                                                                       \
    int32_t nTrafficWrongRoute; /* "TrafficWrongRoute" */                                                              \
    int32_t abTrafficYellowInRoute;                                                                                    \
    int32_t nTrafficYellowInRoute; /* "TrafficYellowInRoute" */                                                        \
    int32_t abTrafficVehicleInRoute;                                                                                   \
    int32_t nTrafficVehicleInRoute; /* "TrafficVehicleInRoute" */                                                      \
    int32_t abTrafficControl;                                                                                          \
    int32_t nTrafficControl; /* "TrafficControl" */                                                                    \
    int32_t abTrafficObjectAlarm;                                                                                      \
    int32_t nTrafficObjectAlarm; /* "TrafficObjectAlarm" */                                                            \
    int32_t abTrafficAccident;                                                                                         \
    int32_t nTrafficAccident; /* "TrafficAccident" */                                                                  \
    int32_t abTrafficStay;                                                                                             \
    int32_t nTrafficStay; /* "TrafficStay" */                                                                          \
    int32_t abTrafficPedestrainPriority;                                                                               \
    int32_t nTrafficPedestrainPriority; /* "TrafficPedestrainPriority" */                                              \
    int32_t abTrafficPedestrain;                                                                                       \
    int32_t nTrafficPedestrain; /* "TrafficPedestrain" */                                                              \
    int32_t abTrafficThrow;                                                                                            \
    int32_t nTrafficThrow; /* "TrafficThrow" */                                                                        \
    int32_t abTrafficVehicleInBusRoute;                                                                                \
    int32_t nTrafficVehicleInBusRoute; /* "TrafficVehicleInBusRoute" */                                                \
    int32_t abTrafficBacking;                                                                                          \
    int32_t nTrafficBacking; /* "TrafficBacking" */                                                                    \
    int32_t abTrafficOverStopLine;                                                                                     \
    int32_t nTrafficOverStopLine; /* "TrafficOverStopLine" */                                                          \
    int32_t abTrafficParkingOnYellowBox;                                                                               \
    int32_t nTrafficParkingOnYellowBox; /* "TrafficParkingOnYellowBox" */                                              \
    int32_t abTrafficParkingSpaceParking;                                                                              \
    int32_t nTrafficParkingSpaceParking; /* "TrafficParkingSpaceParking" */                                            \
    int32_t abTrafficParkingSpaceNoParking;                                                                            \
    int32_t nTrafficParkingSpaceNoParking; /* "TrafficParkingSpaceNoParking" */                                        \
    int32_t abTrafficParkingSpaceOverLine;                                                                             \
    int32_t nTrafficParkingSpaceOverLine; /* "TrafficParkingSpaceOverLine" */                                          \
    int32_t abParkingSpaceDetection;                                                                                   \
    int32_t nParkingSpaceDetection; /* "ParkingSpaceDetection" */                                                      \
    int32_t abTrafficRestrictedPlate;                                                                                  \
    int32_t nTrafficRestrictedPlate; /* "TrafficRestrictedPlate" */                                                    \
    int32_t abTrafficWithoutSafeBelt;                                                                                  \
    int32_t nTrafficWithoutSafeBelt; /* "TrafficWithoutSafeBelt" */                                                    \
    int32_t abTrafficNoPassing;                                                                                        \
    int32_t nTrafficNoPassing; /* "TrafficNoPassing" */                                                                \
    int32_t abVehicleAnalyse;                                                                                          \
    int32_t nVehicleAnalyse; /* "VehicleAnalyse" */                                                                    \
    int32_t abCrossLineDetection;                                                                                      \
    int32_t nCrossLineDetection; /* "CrossLineDetection" */                                                            \
    int32_t abCrossFenceDetection;                                                                                     \
    int32_t nCrossFenceDetection; /* "CrossFenceDetection" */                                                          \
    int32_t abCrossRegionDetection;                                                                                    \
    int32_t nCrossRegionDetection; /* "CrossRegionDetection" */                                                        \
    int32_t abPasteDetection;                                                                                          \
    int32_t nPasteDetection; /* "PasteDetection" */                                                                    \
    int32_t abLeftDetection;                                                                                           \
    int32_t nLeftDetection; /* "LeftDetection" */                                                                      \
    int32_t abPreservation;                                                                                            \
    int32_t nPreservation; /* "Preservation" */                                                                        \
    int32_t abTakenAwayDetection;                                                                                      \
    int32_t nTakenAwayDetection; /* "TakenAwayDetection" */                                                            \
    int32_t abStayDetection;                                                                                           \
    int32_t nStayDetection; /* "StayDetection" */                                                                      \
    int32_t abParkingDetection;                                                                                        \
    int32_t nParkingDetection; /* "ParkingDetection" */                                                                \
    int32_t abWanderDetection;                                                                                         \
    int32_t nWanderDetection; /* "WanderDetection" */                                                                  \
    int32_t abMoveDetection;                                                                                           \
    int32_t nMoveDetection; /* "MoveDetection" */                                                                      \
    int32_t abTailDetection;                                                                                           \
    int32_t nTailDetection; /* "TailDetection" */                                                                      \
    int32_t abRioterDetection;                                                                                         \
    int32_t nRioterDetection; /* "RioterDetection" */                                                                  \
    int32_t abFightDetection;                                                                                          \
    int32_t nFightDetection; /* "FightDetection" */                                                                    \
    int32_t abRetrogradeDetection;                                                                                     \
    int32_t nRetrogradeDetection; /* "RetrogradeDetection" */                                                          \
    int32_t abFireDetection;                                                                                           \
    int32_t nFireDetection; /* "FireDetection" */                                                                      \
    int32_t abSmokeDetection;                                                                                          \
    int32_t nSmokeDetection; /* "SmokeDetection" */                                                                    \
    int32_t abNumberStat;                                                                                              \
    int32_t nNumberStat; /* "NumberStat" */                                                                            \
    int32_t abVideoAbnormalDetection;                                                                                  \
    int32_t nVideoAbnormalDetection; /* "VideoAbnormalDetection" */                                                    \
    int32_t abPrisonerRiseDetection;                                                                                   \
    int32_t nPrisonerRiseDetection; /* "PrisonerRiseDetection" */                                                      \
    int32_t abFaceDetection;                                                                                           \
    int32_t nFaceDetection; /* "FaceDetection" */                                                                      \
    int32_t abFaceRecognition;                                                                                         \
    int32_t nFaceRecognition; /* "FaceRecognition" */                                                                  \
    int32_t abDensityDetection;                                                                                        \
    int32_t nDensityDetection; /* "DensityDetection" */                                                                \
    int32_t abQueueDetection;                                                                                          \
    int32_t nQueueDetection; /* "QueueDetection" */                                                                    \
    int32_t abClimbDetection;                                                                                          \
    int32_t nClimbDetection; /* "ClimbDetection" */                                                                    \
    int32_t abLeaveDetection;                                                                                          \
    int32_t nLeaveDetection; /* "LeaveDetection" */                                                                    \
    int32_t abVehicleOnPoliceCar;                                                                                      \
    int32_t nVehicleOnPoliceCar; /* "VehicleOnPoliceCar" */                                                            \
    int32_t abVehicleOnBus;                                                                                            \
    int32_t nVehicleOnBus; /* "VehicleOnBus" */                                                                        \
    int32_t abVehicleOnSchoolBus;                                                                                      \
    int32_t nVehicleOnSchoolBus /* "VehicleOnSchoolBus" */

/* A value for each rule type. */
typedef struct CFG_RULE_VALUE_TABLE {
    ORRERY_RULE_VALUES;
} CFG_RULE_VALUE_TABLE;

/* When a violation is looked for. */
typedef struct CFG_VIOLATION_SCHEDULE {
    int32_t bEnable;                                                         /* "Enable" */
    CFG_TIME_SECTION stuTimeSchedule[ORRERY_WEEK_DAYS][ORRERY_DAY_SECTIONS]; /* "TimeSchedule" */
} CFG_VIOLATION_SCHEDULE;

/* A schedule for each rule type: the ab... member is 1 when the key was there, and lets it be written. */
typedef struct CFG_RULE_SCHEDULE_TABLE {
    int32_t abTrafficGate;
    CFG_VIOLATION_SCHEDULE stuTrafficGate; /* "TrafficGate" */
    int32_t abTrafficJunction;
    CFG_VIOLATION_SCHEDULE stuTrafficJunction; /* "TrafficJunction" */
    int32_t abTrafficTollGate;
    CFG_VIOLATION_SCHEDULE stuTrafficTollGate; /* "TrafficTollGate" */
    int32_t abTrafficRunRedLight;
    CFG_VIOLATION_SCHEDULE stuTrafficRunRedLight; /* "TrafficRunRedLight" */
    int32_t abTrafficRunYellowLight;
    CFG_VIOLATION_SCHEDULE stuTrafficRunYellowLight; /* "TrafficRunYellowLight" */
    int32_t abTrafficOverLine;
    CFG_VIOLATION_SCHEDULE stuTrafficOverLine; /* "TrafficOverLine" */
    int32_t abTrafficOverYellowLine;
    CFG_VIOLATION_SCHEDULE stuTrafficOverYellowLine; /* "TrafficOverYellowLine" */
    int32_t abTrafficRetrograde;
    CFG_VIOLATION_SCHEDULE stuTrafficRetrograde; /* "TrafficRetrograde" */
    int32_t abTrafficTurnLeft;
    CFG_VIOLATION_SCHEDULE stuTrafficTurnLeft; /* "TrafficTurnLeft" */
    int32_t abTrafficTurnRight;
    CFG_VIOLATION_SCHEDULE stuTrafficTurnRight; /* "TrafficTurnRight" */
    int32_t abTrafficU_Turn;
    CFG_VIOLATION_SCHEDULE stuTrafficU_Turn; /* "TrafficU_Turn" */
    int32_t abTrafficCrossLane;
    CFG_VIOLATION_SCHEDULE stuTrafficCrossLane; /* "TrafficCrossLane" */
    int32_t abTrafficParking;
    CFG_VIOLATION_SCHEDULE stuTrafficParking; /* "TrafficParking" */
    int32_t abTrafficJam;
    CFG_VIOLATION_SCHEDULE stuTrafficJam; /* "TrafficJam" */
    int32_t abTrafficIdle;
    CFG_VIOLATION_SCHEDULE stuTrafficIdle; /* "TrafficIdle" */
    int32_t abTrafficWaitingArea;
    CFG_VIOLATION_SCHEDULE stuTrafficWaitingArea; /* "TrafficWaitingArea" */
    int32_t abTrafficUnderSpeed;
    CFG_VIOLATION_SCHEDULE stuTrafficUnderSpeed; /* "TrafficUnderSpeed" */
    int32_t abTrafficOverSpeed;
    CFG_VIOLATION_SCHEDULE stuTrafficOverSpeed; /* "TrafficOverSpeed" */
    int32_t abTrafficWrongRoute;
    CFG_VIOLATION_SCHEDULE stuTrafficWrongRoute; /* "TrafficWrongRoute" */
    int32_t abTrafficYellowInRoute;
    CFG_VIOLATION_SCHEDULE stuTrafficYellowInRoute; /* "TrafficYellowInRoute" */
    int32_t abTrafficVehicleInRoute;
    CFG_VIOLATION_SCHEDULE stuTrafficVehicleInRoute; /* "TrafficVehicleInRoute" */
    int32_t abTrafficControl;
    CFG_VIOLATION_SCHEDULE stuTrafficControl; /* "TrafficControl" */
    int32_t abTrafficObjectAlarm;
    CFG_VIOLATION_SCHEDULE stuTrafficObjectAlarm; /* "TrafficObjectAlarm" */
    int32_t abTrafficAccident;
    CFG_VIOLATION_SCHEDULE stuTrafficAccident; /* "TrafficAccident" */
    int32_t abTrafficStay;
    CFG_VIOLATION_SCHEDULE stuTrafficStay; /* "TrafficStay" */
    int32_t abTrafficPedestrainPriority;
    CFG_VIOLATION_SCHEDULE stuTrafficPedestrainPriority; /* "TrafficPedestrainPriority" */
    int32_t abTrafficPedestrain;
    CFG_VIOLATION_SCHEDULE stuTrafficPedestrain; /* "TrafficPedestrain" */
    int32_t abTrafficThrow;
    CFG_VIOLATION_SCHEDULE stuTrafficThrow; /* "TrafficThrow" */
    int32_t abTrafficVehicleInBusRoute;
    CFG_VIOLATION_SCHEDULE stuTrafficVehicleInBusRoute; /* "TrafficVehicleInBusRoute" */
    int32_t abTrafficBacking;
    CFG_VIOLATION_SCHEDULE stuTrafficBacking; /* "TrafficBacking" */
    int32_t abTrafficOverStopLine;
    CFG_VIOLATION_SCHEDULE stuTrafficOverStopLine; /* "TrafficOverStopLine" */
    int32_t abTrafficParkingOnYellowBox;
    CFG_VIOLATION_SCHEDULE stuTrafficParkingOnYellowBox; /* "TrafficParkingOnYellowBox" */
    int32_t abTrafficParkingSpaceParking;
    CFG_VIOLATION_SCHEDULE stuTrafficParkingSpaceParking; /* "TrafficParkingSpaceParking" */
    int32_t abTrafficParkingSpaceNoParking;
    CFG_VIOLATION_SCHEDULE stuTrafficParkingSpaceNoParking; /* "TrafficParkingSpaceNoParking" */
    int32_t abTrafficParkingSpaceOverLine;
    CFG_VIOLATION_SCHEDULE stuTrafficParkingSpaceOverLine; /* "TrafficParkingSpaceOverLine" */
    int32_t abParkingSpaceDetection;
    CFG_VIOLATION_SCHEDULE stuParkingSpaceDetection; /* "ParkingSpaceDetection" */
    int32_t abTrafficRestrictedPlate;
    CFG_VIOLATION_SCHEDULE stuTrafficRestrictedPlate; /* "TrafficRestrictedPlate" */
    int32_t abTrafficWithoutSafeBelt;
    CFG_VIOLATION_SCHEDULE stuTrafficWithoutSafeBelt; /* "TrafficWithoutSafeBelt" */
    int32_t abTrafficNoPassing;
    CFG_VIOLATION_SCHEDULE stuTrafficNoPassing; /* "TrafficNoPassing" */
    int32_t abVehicleAnalyse;
    CFG_VIOLATION_SCHEDULE stuVehicleAnalyse; /* "VehicleAnalyse" */
    int32_t abCrossLineDetection;
    CFG_VIOLATION_SCHEDULE stuCrossLineDetection; /* "CrossLineDetection" */
    int32_t abCrossFenceDetection;
    CFG_VIOLATION_SCHEDULE stuCrossFenceDetection; /* "CrossFenceDetection" */
    int32_t abCrossRegionDetection;
    CFG_VIOLATION_SCHEDULE stuCrossRegionDetection; /* "CrossRegionDetection" */
    int32_t abPasteDetection;
    CFG_VIOLATION_SCHEDULE stuPasteDetection; /* "PasteDetection" */
    int32_t abLeftDetection;
    CFG_VIOLATION_SCHEDULE stuLeftDetection; /* "LeftDetection" */
    int32_t abPreservation;
    CFG_VIOLATION_SCHEDULE stuPreservation; /* "Preservation" */
    int32_t abTakenAwayDetection;
    CFG_VIOLATION_SCHEDULE stuTakenAwayDetection; /* "TakenAwayDetection" */
    int32_t abStayDetection;
    CFG_VIOLATION_SCHEDULE stuStayDetection; /* "StayDetection" */
    int32_t abParkingDetection;
    CFG_VIOLATION_SCHEDULE stuParkingDetection; /* "ParkingDetection" */
    int32_t abWanderDetection;
    CFG_VIOLATION_SCHEDULE stuWanderDetection; /* "WanderDetection" */
    int32_t abMoveDetection;
    CFG_VIOLATION_SCHEDULE stuMoveDetection; /* "MoveDetection" */
    int32_t abTailDetection;
    CFG_VIOLATION_SCHEDULE stuTailDetection; /* "TailDetection" */
    int32_t abRioterDetection;
    CFG_VIOLATION_SCHEDULE stuRioterDetection; /* "RioterDetection" */
    int32_t abFightDetection;
    CFG_VIOLATION_SCHEDULE stuFightDetection; /* "FightDetection" */
    int32_t abRetrogradeDetection;
    CFG_VIOLATION_SCHEDULE stuRetrogradeDetection; /* "RetrogradeDetection" */
    int32_t abFireDetection;
    CFG_VIOLATION_SCHEDULE stuFireDetection; /* "FireDetection" */
    int32_t abSmokeDetection;
    CFG_VIOLATION_SCHEDULE stuSmokeDetection; /* "SmokeDetection" */
    int32_t abNumberStat;
    CFG_VIOLATION_SCHEDULE stuNumberStat; /* "NumberStat" */
    int32_t abVideoAbnormalDetection;
    CFG_VIOLATION_SCHEDULE stuVideoAbnormalDetection; /* "VideoAbnormalDetection" */
    int32_t abPrisonerRiseDetection;
    CFG_VIOLATION_SCHEDULE stuPrisonerRiseDetection; /* "PrisonerRiseDetection" */
    int32_t abFaceDetection;
    CFG_VIOLATION_SCHEDULE stuFaceDetection; /* "FaceDetection" */
    int32_t abFaceRecognition;
    CFG_VIOLATION_SCHEDULE stuFaceRecognition; /* "FaceRecognition" */
    int32_t abDensityDetection;
    CFG_VIOLATION_SCHEDULE stuDensityDetection; /* "DensityDetection" */
    int32_t abQueueDetection;
    CFG_VIOLATION_SCHEDULE stuQueueDetection; /* "QueueDetection" */
    int32_t abClimbDetection;
    CFG_VIOLATION_SCHEDULE stuClimbDetection; /* "ClimbDetection" */
    int32_t abLeaveDetection;
    CFG_VIOLATION_SCHEDULE stuLeaveDetection; /* "LeaveDetection" */
    int32_t abVehicleOnPoliceCar;
    CFG_VIOLATION_SCHEDULE stuVehicleOnPoliceCar; /* "VehicleOnPoliceCar" */
    int32_t abVehicleOnBus;
    CFG_VIOLATION_SCHEDULE stuVehicleOnBus; /* "VehicleOnBus" */
    int32_t abVehicleOnSchoolBus;
    CFG_VIOLATION_SCHEDULE stuVehicleOnSchoolBus; /* "VehicleOnSchoolBus" */
} CFG_RULE_SCHEDULE_TABLE;

/* Modes by lane: a table of values for each lane, and one for all of them, whose keys stand beside "Lane". */
typedef struct CFG_MIXMODE_INFO {
    uint8_t bLaneDiffEnable;                           /* "LaneDiffEnable": lanes differ */
    int32_t nLaneNum;                                  /* lanes that the text told; may be more than were read */
    CFG_RULE_VALUE_TABLE stuLanes[ORRERY_MIXED_LANES]; /* "Lane" */
    ORRERY_RULE_VALUES;
} CFG_MIXMODE_INFO;

/* "TrafficGlobal": settings of all traffic rules. The two dates keep the caller's values unless they are read; all else
 * is cleared. "ViolationCode", "ViolationTimeSchedule", "SupportModeMaskConfig" and "MixModeConfig" are objects, or
 * absent: another type gives 0. "result" is not looked at. The text may fill its buffer to the last byte, where the
 * terminator takes the place of its newline. */
typedef struct CFG_TRAFFICGLOBAL_INFO {
    CFG_VIOLATION_CODE_INFO stuViolationCodes;    /* "ViolationCode" */
    uint8_t bEnableRedList;                       /* "EnableRedList": cars that are never fined */
    CFG_RULE_SCHEDULE_TABLE stuViolationSchedule; /* "ViolationTimeSchedule" */
    int32_t abEnableBlackList;
    int32_t bEnableBlackList; /* "EnableBlackList": cars that are looked for */
    int32_t abPriority;       /* 1 when "Priority" was there; lets it be written */
    int32_t nPriorityNum;     /* entries of szPriority in use */
    char szPriority[ORRERY_TRAFFIC_PRIORITIES][ORRERY_TRAFFIC_TEXT]; /* "Priority": violations, the gravest first */
    int32_t abNamingFormat;
    char szNamingFormat[ORRERY_TRAFFIC_TEXT]; /* "NamingFormat"."Format": of pictures */
    int32_t abVideoNamingFormat;
    char szVideoNamingFormat[ORRERY_TRAFFIC_TEXT]; /* "VideoNamingFormat"."Format": of videos */
    int32_t abCalibration;                         /* 1 when "Calibration" was there; lets its members be written */
    char szUnit[ORRERY_TRAFFIC_TEXT];              /* "Calibration"."Unit": who calibrated the camera */
    char szCertificate[ORRERY_TRAFFIC_TEXT];       /* "Calibration"."Certificate": its number */
    CFG_SIZED_NET_TIME stuValidFrom; /* "Calibration"."PeriodOfValidity", first of exactly two texts, otherwise neither
                                        is looked at; written when both sizes hold 28 */
    CFG_SIZED_NET_TIME stuValidTo;   /* "Calibration"."PeriodOfValidity", second text */
    int32_t abAddress;
    char szAddress[ORRERY_TRAFFIC_TEXT]; /* "Address": where the camera stands */
    int32_t abTransferPolicy;
    int32_t nTransferPolicy; /* "TransferPolicy": CFG_TRANSFER_... */
    int32_t abSupportModeMask;
    CFG_RULE_VALUE_TABLE stuSupportModeMask; /* "SupportModeMaskConfig": modes that a rule type has, as a mask */
    int32_t abLightState;
    int32_t bEnableLightState; /* "IsEnableLightState"."Enable": the state of the lights is shown */
    int32_t abMixModeConfig;
    CFG_MIXMODE_INFO stuMixModeConfig; /* "MixModeConfig" */
} CFG_TRAFFICGLOBAL_INFO;

#ifdef __cplusplus
}
#endif

#endif
