/* Traffic events: flow and jams, accidents, pedestrians, parking spaces. Heads and closing fields: see events_common.h.
 */
#ifndef ORRERY_EVENTS_TRAFFIC_FLOW_H
#define ORRERY_EVENTS_TRAFFIC_FLOW_H

#include "orrery/events_vehicle.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "TrafficControl" (21): the police direct the traffic. */
typedef struct DEV_EVENT_TRAFFICCONTROL_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    uint8_t byEventAction;
    EVENT_GPS_POINT stuGPS; /* "Custom"."GPS" */
} DEV_EVENT_TRAFFICCONTROL_INFO;

/* "TrafficAccident" (22): vehicles crashed. */
typedef struct DEV_EVENT_TRAFFICACCIDENT_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nObjectNum;                                 /* objects in use */
    EVENT_OBJECT_INFO stuObjects[ORRERY_EVENT_OBJECTS]; /* "Objects" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    char szMachineName[128]; /* "TrafficCar"."MachineName" */
    char szRoadwayNo[32];    /* "TrafficCar"."RoadwayNo" */
} DEV_EVENT_TRAFFICACCIDENT_INFO;

#define ORRERY_EVENT_SIGNALS 3
#define ORRERY_EVENT_LANES 8

/* What one capture of a lane gave. */
typedef struct EVENT_SIGNAL_INFO {
    uint8_t bySpeed;       /* "Speed": km/h */
    uint8_t byType;        /* "Type" */
    float fRedTime;        /* "RedTime": seconds */
    float fCapTime;        /* "CapTime": seconds */
    uint8_t byCarLength;   /* "CarLength" */
    uint8_t bySigSequence; /* "SigSequence" */
    uint8_t byDirection;   /* "Direction" */
    uint8_t byLightColor;  /* "LightColor" */
    char szSnapFlag[16];   /* "SnapFlag" */
} EVENT_SIGNAL_INFO;

typedef struct EVENT_CAR_WAY_INFO {
    uint8_t byLane;                                    /* its place in "CarWayInfo" */
    uint8_t bySignalNum;                               /* signals in use */
    EVENT_SIGNAL_INFO stuSignal[ORRERY_EVENT_SIGNALS]; /* "SigInfo" */
} EVENT_CAR_WAY_INFO;

/* "TrafficSnapshot" (25): a capture of all lanes. */
typedef struct DEV_EVENT_TRAFFICSNAPSHOT_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLaneNum;                               /* lanes in use: those with a signal */
    EVENT_CAR_WAY_INFO stuLane[ORRERY_EVENT_LANES]; /* "CarWayInfo" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICSNAPSHOT_INFO;

/* "TrafficJam" (27): vehicles jam. */
typedef struct DEV_EVENT_TRAFFICJAM_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    int32_t nLane;              /* "Lane" */
    EVENT_TIME stuStartJamTime; /* "StartJaming" */
    int32_t nAlarmInterval;     /* "AlarmInterval": seconds */
    int32_t nSequence;          /* "Sequence" */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    uint8_t byJamLenght;                  /* "JamLenght": percent, 0 to 100 */
    int32_t nJamRealLength;               /* "JamRealLength": metres */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
    char szEventLongID[52];               /* "Extension"."EventLongID" */
} DEV_EVENT_TRAFFICJAM_INFO;

/* ---- Flow statistics ---- */

enum { EVENT_JAM_UNKNOWN = 0, EVENT_JAM_CLEAR = 1, EVENT_JAM_JAMMED = 2 };

typedef struct EVENT_FLOW_STATE {
    int32_t nLane;         /* "Lane" */
    int32_t nState;        /* "State" */
    int32_t nFlow;         /* "Flow": vehicles in the period */
    int32_t nPeriod;       /* "Period": minutes */
    int32_t nPeriodByMili; /* "PeriodByMili": milliseconds */
    int32_t emJamState;    /* "JamState": "Clear" 1, "Jammed" 2 */
} EVENT_FLOW_STATE;

/* Vehicles by type, "VehicleTypeFlow". */
typedef struct EVENT_VEHICLE_TYPE_FLOW {
    int32_t nPassengerCarVehicles;    /* "PassengerCarVehicles" */
    int32_t nLargeTruckVehicles;      /* "LargeTruckVehicles" */
    int32_t nMidTruckVehicles;        /* "MidTruckVehicles" */
    int32_t nSaloonCarVehicles;       /* "SaloonCarVehicles" */
    int32_t nMicrobusVehicles;        /* "MicrobusVehicles" */
    int32_t nMicroTruckVehicles;      /* "MicroTruckVehicles" */
    int32_t nTricycleVehicles;        /* "TricycleVehicles" */
    int32_t nMotorcycleVehicles;      /* "MotorcycleVehicles" */
    int32_t nPasserbyVehicles;        /* "PasserbyVehicles" */
    int32_t nBusVehicles;             /* "BusVehicles" */
    int32_t nMPVVehicles;             /* "MPVVehicles" */
    int32_t nMidPassengerCarVehicles; /* "MidPassengerCarVehicles" */
    int32_t nMiniCarriageVehicles;    /* "MiniCarriageVehicles" */
    int32_t nOilTankTruckVehicles;    /* "OilTankTruckVehicles" */
    int32_t nPickupVehicles;          /* "PickupVehicles" */
    int32_t nSUVVehicles;             /* "SUVVehicles" */
    int32_t nSuvMpvVehicles;          /* "SuvMpvVehicles" */
    int32_t nTankCarVehicles;         /* "TankCarVehicles" */
    int32_t nUnknownVehicles;         /* "UnknownVehicles" */
} EVENT_VEHICLE_TYPE_FLOW;

/* [ "Approach", "North", "South" ] */
typedef struct EVENT_FLOW_DIRECTION {
    int32_t emDirection; /* "Approach" 1, "Leave" 2 */
    char szFrom[16];     /* where the traffic comes from */
    char szTo[16];       /* where it goes */
} EVENT_FLOW_DIRECTION;

enum {
    EVENT_RANK_UNKNOWN = 0,
    EVENT_RANK_RAPID = 1,
    EVENT_RANK_TRUNK = 2,
    EVENT_RANK_SUB_TRUNK = 3,
    EVENT_RANK_BRANCH = 4
};
enum { EVENT_FLOW_TURN_LEFT = 1, EVENT_FLOW_TURN_RIGHT = 2, EVENT_FLOW_STRAIGHT = 3, EVENT_FLOW_U_TURN = 4 };

#define ORRERY_EVENT_FLOW_STATES 8
#define ORRERY_EVENT_FLOW_DIRECTIONS 16

/* "TrafficFlowStat" (281): what passed. */
typedef struct DEV_EVENT_TRAFFICFLOWSTAT_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nSequence;                                    /* "Sequence" */
    int32_t nStateNum;                                    /* states in use */
    EVENT_FLOW_STATE stuStates[ORRERY_EVENT_FLOW_STATES]; /* "FlowStates" */
    int32_t nVehicles;                                    /* "DetailInfo"."Vehicles" */
    int32_t nLeftVehicles;                                /* "DetailInfo"."LeftVehicles" */
    int32_t nRightVehicles;                               /* "DetailInfo"."RightVehicles" */
    int32_t nStraightVehicles;                            /* "DetailInfo"."StraightVehicles" */
    int32_t nUTurnVehicles;                               /* "DetailInfo"."UTurnVehicles" */
    float fAverageSpeed;                                  /* "DetailInfo"."AverageSpeed": km/h */
    float fAverageLength;                                 /* "DetailInfo"."AverageLength": metres */
    float fTimeOccupyRatio;                               /* "DetailInfo"."TimeOccupyRatio": percent */
    float fSpaceOccupyRatio;                              /* "DetailInfo"."SpaceOccupyRatio": percent */
    float fSpaceHeadway;                                  /* "DetailInfo"."SpaceHeadway": metres */
    float fTimeHeadway;                                   /* "DetailInfo"."TimeHeadway": seconds */
    float fDensity;                                       /* "DetailInfo"."Density": vehicles a kilometre */
    int32_t nOverSpeedVehicles;                           /* "DetailInfo"."OverSpeedVehicles" */
    int32_t nUnderSpeedVehicles;                          /* "DetailInfo"."UnderSpeedVehicles" */
    int32_t nLargeVehicles;                               /* "DetailInfo"."LargeVehicles" */
    int32_t nMediumVehicles;                              /* "DetailInfo"."MediumVehicles" */
    int32_t nSmallVehicles;                               /* "DetailInfo"."SmallVehicles" */
    int32_t nMotoVehicles;                                /* "DetailInfo"."MotoVehicles" */
    int32_t nLongVehicles;                                /* "DetailInfo"."LongVehicles" */
    int32_t nVolume;                                      /* "DetailInfo"."Volume" */
    int32_t nFlowRate;                                    /* "DetailInfo"."FlowRate" */
    int32_t nTravelTime;                                  /* "DetailInfo"."TravelTime" */
    double dBackOfQueue;                                  /* "DetailInfo"."BackOfQueue": metres */
    int32_t nBackOfQueue;                                 /* "DetailInfo"."BackOfQueue" without its fraction */
    int32_t nDelay; /* from "Delay " with a blank, and only beside "Delay" without, of "DetailInfo" */
    uint8_t byDirection[ORRERY_EVENT_FLOW_DIRECTIONS]; /* "DetailInfo"."Direction": EVENT_FLOW_..., 0 behind the last */
    EVENT_VEHICLE_TYPE_FLOW stuVehicleTypeFlow;        /* "DetailInfo"."VehicleTypeFlow" */
    EVENT_FLOW_DIRECTION stuDrivingDirection;          /* "DetailInfo"."DrivingDirection" */
    int32_t emRank;          /* "DetailInfo"."Rank": "Rapid" 1, "Trunk" 2, "SubTrunk" 3, "Branch" 4 */
    int32_t nState;          /* "DetailInfo"."State" */
    int32_t bOccupyHeadCoil; /* "DetailInfo"."Occupyheadcoil" */
    int32_t bOccupyTailCoil; /* "DetailInfo"."OccupyTailcoil" */
    int32_t bStatistics;     /* "DetailInfo"."Statistics" */
    EVENT_POINT stuQueueEnd; /* "DetailInfo"."QueueEnd", at least 2 numbers */
    int32_t emClass;         /* "DetailInfo"."Class" */
} DEV_EVENT_TRAFFICFLOWSTAT_INFO;

/* ---- People and things on the road ---- */

/* "TrafficPedestrain" (301): a pedestrian on the road. */
typedef struct DEV_EVENT_TRAFFICPEDESTRAIN_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLane;               /* "Lane" */
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    char szMachineName[128];     /* "TrafficCar"."MachineName" */
    char szRoadwayNo[32];        /* "TrafficCar"."RoadwayNo" */
    char szVehicleCategory[64];  /* "Vehicle"."Category" */
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICPEDESTRAIN_INFO;

/* "TrafficThrow" (302): something lies on the road. */
typedef struct DEV_EVENT_TRAFFICTHROW_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLane;               /* "Lane" */
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;      /* "Custom"."GPS" */
    char szMachineName[128];     /* "TrafficCar"."MachineName" */
    char szRoadwayNo[32];        /* "TrafficCar"."RoadwayNo" */
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICTHROW_INFO;

/* ---- Parking spaces ---- */

#define ORRERY_EVENT_AREA_POINTS 10

/* "TrafficParkingSpaceParking" (299): a vehicle stands in a parking space. */
typedef struct DEV_EVENT_TRAFFICPARKINGSPACEPARKING_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    int32_t nLane;                        /* "Lane" */
    int32_t nSequence;                    /* "Sequence" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    int32_t nParkingSpaceStatus;                             /* "ParkingSpaceStatus" */
    uint8_t byTextSource;                                    /* "TextSource" */
    int32_t nFeaturePicAreaNum;                              /* points in use */
    EVENT_POINT stuFeaturePicArea[ORRERY_EVENT_AREA_POINTS]; /* "ParkingInfo"."FeaturePicArea" */
    EVENT_COMM_INFO stuCommInfo;                             /* "CommInfo" */
} DEV_EVENT_TRAFFICPARKINGSPACEPARKING_INFO;

/* "TrafficParkingSpaceNoParking" (300): a parking space is free. */
typedef DEV_EVENT_TRAFFICPARKINGSPACEPARKING_INFO DEV_EVENT_TRAFFICPARKINGSPACENOPARKING_INFO;

/* "TrafficVideoAnalysePreSnap" (368): a picture taken ahead of an analysis. */
typedef struct DEV_EVENT_TRAFFICVIDEOANALYSEPRESNAP_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nGroupID;                                        /* "GroupID" */
    int32_t nCountInGroup;                                   /* "CountInGroup" */
    int32_t nIndexInGroup;                                   /* "IndexInGroup" */
    EVENT_OBJECT_INFO stuObject;                             /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;                            /* "Vehicle" */
    int32_t nMark;                                           /* "Mark": the device's own */
    int32_t nSource;                                         /* "Source": the device's own */
    int32_t nFrameSequence;                                  /* "FrameSequence" */
    int32_t nLane;                                           /* "Lane" */
    int32_t nSequence;                                       /* "Sequence" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar;                    /* "TrafficCar" */
    int32_t emParkingSpaceStatus;                            /* "ParkingSpaceStatus" and 1; 0 when absent */
    int32_t emCurrentParkingSpaceStatus;                     /* "CurrentParkingSpaceStatus" and 1; 0 when absent */
    int32_t nFeaturePicAreaNum;                              /* points in use */
    EVENT_POINT stuFeaturePicArea[ORRERY_EVENT_AREA_POINTS]; /* "ParkingInfo"."FeaturePicArea" */
    EVENT_FILE_INFO stuFileInfo;
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICVIDEOANALYSEPRESNAP_INFO;

#ifdef __cplusplus
}
#endif

#endif
