/* Traffic events: lanes, lines, directions and speeds. Heads and closing fields: see events_common.h. Numbers without a
 * unit are the device's own. */
#ifndef ORRERY_EVENTS_TRAFFIC_DRIVING_H
#define ORRERY_EVENTS_TRAFFIC_DRIVING_H

#include "orrery/events_vehicle.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "TrafficOverLine" (257): a vehicle drove over a lane line */
typedef struct DEV_EVENT_TRAFFICOVERLINE_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLane;                /* "Lane" */
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nSequence; /* "Sequence" */
    int32_t nSpeed;    /* "Speed": km/h */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICOVERLINE_INFO;

/* "TrafficRetrograde" (258): a vehicle drove against its direction */
typedef struct DEV_EVENT_TRAFFICRETROGRADE_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLane;                /* "Lane" */
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nSequence; /* "Sequence" */
    int32_t nSpeed;    /* "Speed": km/h */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    uint32_t bIsExistAlarmRecord;
    uint32_t dwAlarmRecordSize;
    char szAlarmRecordPath[256];
    int32_t emClass;                                  /* "Class" */
    EVENT_GPS_POINT stuGPS;                           /* "Custom"."GPS" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar;             /* "TrafficCar" */
    int32_t nDetectRegionNum;                         /* points in use */
    EVENT_POINT stuDetectRegion[ORRERY_EVENT_POINTS]; /* "DetectRegion" */
    EVENT_COMM_INFO stuCommInfo;                      /* "CommInfo" */
} DEV_EVENT_TRAFFICRETROGRADE_INFO;

/* "TrafficTurnLeft" (259): a vehicle turned left where it must not */
typedef struct DEV_EVENT_TRAFFICTURNLEFT_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLane;                /* "Lane" */
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nSequence; /* "Sequence" */
    int32_t nSpeed;    /* "Speed": km/h */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICTURNLEFT_INFO;

/* "TrafficTurnRight" (260): a vehicle turned right where it must not */
typedef struct DEV_EVENT_TRAFFICTURNRIGHT_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLane;                /* "Lane" */
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nSequence; /* "Sequence" */
    int32_t nSpeed;    /* "Speed": km/h */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICTURNRIGHT_INFO;

/* "TrafficU-Turn" (261): a vehicle turned back where it must not */
typedef struct DEV_EVENT_TRAFFICUTURN_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLane;                /* "Lane" */
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nSequence; /* "Sequence" */
    int32_t nSpeed;    /* "Speed": km/h */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICUTURN_INFO;

/* "TrafficUnderSpeed" (263): a vehicle drove too slowly */
typedef struct DEV_EVENT_TRAFFICUNDERSPEED_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLane;                /* "Lane" */
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nSpeed;           /* "Speed": km/h */
    int32_t nUpperSpeedLimit; /* second number of "SpeedLimit", an array of at least 2: km/h */
    int32_t nLowerSpeedLimit; /* the first of "SpeedLimit" */
    int32_t nSequence;        /* "Sequence" */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    int32_t nUnderSpeedingPercentage; /* "UnderSpeedingPercentage" */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    int32_t emClass;                      /* "Class" */
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICUNDERSPEED_INFO;

/* "TrafficWrongRoute" (265): a vehicle took the wrong lane for its way */
typedef struct DEV_EVENT_TRAFFICWRONGROUTE_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    int32_t nLane;                /* "Lane" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    int32_t nSpeed; /* "Speed": km/h */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICWRONGROUTE_INFO;

/* "TrafficCrossLane" (266): a vehicle changed lanes where it must not */
typedef struct DEV_EVENT_TRAFFICCROSSLANE_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    int32_t nLane;                /* "Lane" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    int32_t nSpeed; /* "Speed": km/h */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    int32_t emClass;                      /* "Class" */
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICCROSSLANE_INFO;

/* "TrafficOverYellowLine" (267): a vehicle drove over a yellow line */
typedef struct DEV_EVENT_TRAFFICOVERYELLOWLINE_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    int32_t nLane;                /* "Lane" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    int32_t nSpeed; /* "Speed": km/h */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    uint32_t bIsExistAlarmRecord;
    uint32_t dwAlarmRecordSize;
    int32_t emClass;                                  /* "Class" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar;             /* "TrafficCar" */
    int32_t nDetectRegionNum;                         /* points in use */
    EVENT_POINT stuDetectRegion[ORRERY_EVENT_POINTS]; /* "DetectRegion" */
    EVENT_COMM_INFO stuCommInfo;                      /* "CommInfo" */
} DEV_EVENT_TRAFFICOVERYELLOWLINE_INFO;

/* "TrafficDrivingOnShoulder" (268): a vehicle drove on the shoulder */
typedef struct DEV_EVENT_TRAFFICDRIVINGONSHOULDER_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    int32_t nLane;                /* "Lane" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    int32_t nSpeed; /* "Speed": km/h */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICDRIVINGONSHOULDER_INFO;

/* "TrafficYellowPlateInLane" (270): a vehicle with a yellow plate drove in a lane that is not for it */
typedef struct DEV_EVENT_TRAFFICYELLOWPLATEINLANE_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    int32_t nLane;                /* "Lane" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    int32_t nSpeed; /* "Speed": km/h */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICYELLOWPLATEINLANE_INFO;

/* "TrafficNoPassing" (273): a vehicle drove where no vehicle may */
typedef struct DEV_EVENT_TRAFFICNOPASSING_INFO {
    ORRERY_EVENT_HEAD_B;
    int32_t nUTCMS;    /* "UTCMS" */
    int32_t nMark;     /* "Mark" */
    int32_t nSequence; /* "Sequence" */
    EVENT_FILE_INFO stuFileInfo;
    uint8_t byEventAction;
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    uint32_t dwFlagMask;
    uint16_t wWidth;
    EVENT_GPS_POINT stuGPS; /* "Custom"."GPS" */
    uint8_t byRepeat;
    int32_t nLane;                /* "Lane" */
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    int32_t nFrameSequence;       /* "FrameSequence" */
    int32_t nSource;              /* "Source" */
    EVENT_COMM_INFO stuCommInfo;  /* "CommInfo" */
} DEV_EVENT_TRAFFICNOPASSING_INFO;

/* "TrafficVehicleInRoute" (283): a motor vehicle drove in a lane for others */
typedef struct DEV_EVENT_TRAFFICVEHICLEINROUTE_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    int32_t nLane;                        /* "Lane" */
    int32_t nSequence;                    /* "Sequence" */
    int32_t nSpeed;                       /* "Speed": km/h */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICVEHICLEINROUTE_INFO;

/* "TrafficVehicleInBusRoute" (292): a vehicle drove in the bus lane */
typedef struct DEV_EVENT_TRAFFICVEHICLEINBUSROUTE_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nLane;     /* "Lane" */
    int32_t nSequence; /* "Sequence" */
    int32_t nSpeed;    /* "Speed": km/h */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;      /* "Custom"."GPS" */
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICVEHICLEINBUSROUTE_INFO;

/* "TrafficBacking" (293): a vehicle backed */
typedef struct DEV_EVENT_TRAFFICBACKING_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nLane;     /* "Lane" */
    int32_t nSequence; /* "Sequence" */
    int32_t nSpeed;    /* "Speed": km/h */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    ORRERY_EVENT_SIZE;
    int32_t emClass;             /* "Class" */
    EVENT_GPS_POINT stuGPS;      /* "Custom"."GPS" */
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICBACKING_INFO;

/* "TrafficRestrictedPlate" (310): a vehicle drove in spite of a restriction of its plate */
typedef struct DEV_EVENT_TRAFFICRESTRICTEDPLATE_INFO {
    ORRERY_EVENT_HEAD_B;
    int32_t nSequence; /* "Sequence" */
    uint8_t byEventAction;
    uint8_t byRepeat;
    int32_t nLane;                /* "Lane" */
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nMark;          /* "Mark" */
    int32_t nFrameSequence; /* "FrameSequence" */
    int32_t nSource;        /* "Source" */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICRESTRICTEDPLATE_INFO;

/* "TrafficOverStopLine" (311): a vehicle stopped over the stop line */
typedef struct DEV_EVENT_TRAFFICOVERSTOPLINE_INFO {
    ORRERY_EVENT_HEAD_B;
    int32_t nSequence; /* "Sequence" */
    uint8_t byEventAction;
    uint8_t byRepeat;
    int32_t nLane;                /* "Lane" */
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nMark;          /* "Mark" */
    int32_t nFrameSequence; /* "FrameSequence" */
    int32_t nSource;        /* "Source" */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    int32_t nSpeed;                       /* "Speed": km/h */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICOVERSTOPLINE_INFO;

/* "TrafficPassNotInOrder" (316): a vehicle jumped the order of passing */
typedef struct DEV_EVENT_TRAFFICPASSNOTINORDER_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLane;                /* "Lane" */
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nSequence; /* "Sequence" */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    uint16_t wHeight;
    uint16_t wWidth;
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
} DEV_EVENT_TRAFFICPASSNOTINORDER_INFO;

#ifdef __cplusplus
}
#endif

#endif
