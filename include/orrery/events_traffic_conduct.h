/* Traffic events: how drivers and pedestrians behave, and turns. Heads and closing fields: see events_common.h. Numbers
 * without a unit are the device's own. */
#ifndef ORRERY_EVENTS_TRAFFIC_CONDUCT_H
#define ORRERY_EVENTS_TRAFFIC_CONDUCT_H

#include "orrery/events_vehicle.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "TrafficPedestrainPriority" (271): a vehicle did not give way to pedestrians */
typedef struct DEV_EVENT_TRAFFICPEDESTRAINPRIORITY_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nLane;      /* "Lane" */
    double dInitialUTC; /* "InitialUTC": seconds */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;      /* "Custom"."GPS" */
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICPEDESTRAINPRIORITY_INFO;

/* "TrafficManualSnap" (280): a picture was taken by hand */
typedef struct DEV_EVENT_TRAFFICMANUALSNAP_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLane;                        /* "Lane" */
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_FILE_INFO stuFileInfo;
    uint8_t byEventAction;
    uint8_t byOpenStrobeState; /* "OpenStrobeState": "Close" 1, "Auto" 2, "Manual" 3 */
    uint8_t byRepeat;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICMANUALSNAP_INFO;

/* "TrafficWithoutSafeBelt" (312): somebody sits in the car without a safe belt */
typedef struct DEV_EVENT_TRAFFICWITHOUTSAFEBELT_INFO {
    ORRERY_EVENT_HEAD_B;
    int32_t nSequence; /* "Sequence" */
    uint8_t byEventAction;
    uint8_t byRepeat;
    EVENT_FILE_INFO stuFileInfo;
    int32_t nLane;                        /* "Lane" */
    int32_t nMark;                        /* "Mark" */
    int32_t nFrameSequence;               /* "FrameSequence" */
    int32_t nSource;                      /* "Source" */
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    int32_t nSpeed;                       /* "Speed": km/h */
    int32_t emMainSeat;                   /* "MainSeat": EVENT_SAFE_BELT_... */
    int32_t emSlaveSeat;                  /* "SlaveSeat" */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;      /* "Custom"."GPS" */
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICWITHOUTSAFEBELT_INFO;

/* "TrafficDriverSmoking" (313): the driver smokes */
typedef struct DEV_EVENT_TRAFFICDRIVERSMOKING_INFO {
    ORRERY_EVENT_HEAD_B;
    int32_t nSequence; /* "Sequence" */
    uint8_t byEventAction;
    uint8_t byRepeat;
    EVENT_FILE_INFO stuFileInfo;
    int32_t nLane;                        /* "Lane" */
    int32_t nMark;                        /* "Mark" */
    int32_t nFrameSequence;               /* "FrameSequence" */
    int32_t nSource;                      /* "Source" */
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    int32_t nSpeed;                       /* "Speed": km/h */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;      /* "Custom"."GPS" */
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICDRIVERSMOKING_INFO;

/* "TrafficDriverCalling" (314): the driver is on the phone */
typedef struct DEV_EVENT_TRAFFICDRIVERCALLING_INFO {
    ORRERY_EVENT_HEAD_B;
    int32_t nSequence; /* "Sequence" */
    uint8_t byEventAction;
    uint8_t byRepeat;
    EVENT_FILE_INFO stuFileInfo;
    int32_t nLane;                        /* "Lane" */
    int32_t nMark;                        /* "Mark" */
    int32_t nFrameSequence;               /* "FrameSequence" */
    int32_t nSource;                      /* "Source" */
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    int32_t nSpeed;                       /* "Speed": km/h */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;      /* "Custom"."GPS" */
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICDRIVERCALLING_INFO;

/* "TrafficPedestrianRunRedLight" (315): a pedestrian crossed at red */
typedef struct DEV_EVENT_TRAFFICPEDESTRIANRUNREDLIGHT_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLane;               /* "Lane" */
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nSequence; /* "Sequence" */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICPEDESTRIANRUNREDLIGHT_INFO;

/* "TrafficTurnLeftAfterStraight" (536): a vehicle turned left before those going straight */
typedef struct DEV_EVENT_TRAFFICTURNLEFTAFTERSTRAIGHT_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    int32_t nLane;                        /* "Lane" */
    int32_t nSequence;                    /* "Sequence" */
    uint8_t byEventAction;
    uint8_t byRepeat;
    uint32_t dwFlagMask;
    uint16_t wWidth;
    EVENT_GPS_POINT stuGPS;      /* "Custom"."GPS" */
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICTURNLEFTAFTERSTRAIGHT_INFO;

/* "TrafficBigBendSmallTurn" (537): a vehicle cut the corner of a wide turn */
typedef struct DEV_EVENT_TRAFFICBIGBENDSMALLTURN_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    int32_t nLane;                        /* "Lane" */
    int32_t nSequence;                    /* "Sequence" */
    uint8_t byEventAction;
    uint8_t byRepeat;
    uint32_t dwFlagMask;
    uint16_t wWidth;
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICBIGBENDSMALLTURN_INFO;

/* "TrafficQueueJump" (540): a vehicle jumped the queue */
typedef struct DEV_EVENT_TRAFFICQUEUEJUMP_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    int32_t nLane;                        /* "Lane" */
    int32_t nSequence;                    /* "Sequence" */
    uint8_t byEventAction;
    uint8_t byRepeat;
    uint32_t dwFlagMask;
    uint16_t wWidth;
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICQUEUEJUMP_INFO;

/* "VehicleSuspiciousCar" (541): a suspicious vehicle was seen */
typedef struct DEV_EVENT_VEHICLESUSPICIOUSCAR_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    int32_t nSequence;            /* "Sequence" */
    uint8_t byEventAction;
    uint8_t byRepeat;
    uint32_t dwFlagMask;
    uint16_t wWidth;
    EVENT_GPS_POINT stuGPS; /* "Custom"."GPS" */
} DEV_EVENT_VEHICLESUSPICIOUSCAR_INFO;

/* "TrafficTurnRightAfterStraight" (542): a vehicle turned right before those going straight, or, with code 543, before
 * pedestrians */
typedef struct DEV_EVENT_TRAFFICTURNRIGHTAFTERSTRAIGHT_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    int32_t nLane;                        /* "Lane" */
    int32_t nSequence;                    /* "Sequence" */
    uint8_t byEventAction;
    uint8_t byRepeat;
    uint32_t dwFlagMask;
    uint16_t wWidth;
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICTURNRIGHTAFTERSTRAIGHT_INFO;

typedef DEV_EVENT_TRAFFICTURNRIGHTAFTERSTRAIGHT_INFO
    DEV_EVENT_TRAFFICTURNRIGHTAFTERPEOPLE_INFO; /* "TrafficTurnRightAfterPeople" (543) */

/* "TrafficHighBeam" (552): a vehicle drove with its high beam on */
typedef struct DEV_EVENT_TRAFFICHIGHBEAM_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    uint8_t byRepeat;
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    int32_t nLane;                        /* "Lane" */
    int32_t nSequence;                    /* "Sequence" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    uint32_t dwFlagMask;
    uint16_t wWidth;
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICHIGHBEAM_INFO;

/* "TrafficTruckforbid" (553): a truck drove where trucks must not */
typedef struct DEV_EVENT_TRAFFICTRUCKFORBID_INFO {
    int32_t nChannelID;
    char szName[128];
    int32_t nGroupID;      /* "GroupID" */
    int32_t nCountInGroup; /* "CountInGroup" */
    int32_t nIndexInGroup; /* "IndexInGroup" */
    double dPTS;
    EVENT_TIME stuUTC;
    int32_t nEventID;
    uint32_t dwUTCMS;                     /* "UTCMS" */
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    int32_t nLane;                        /* "Lane" */
    int32_t nSequence;                    /* "Sequence" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
    EVENT_FILE_INFO stuFileInfo;
} DEV_EVENT_TRAFFICTRUCKFORBID_INFO;

/* "TrafficCarDistanceShort" (557): a vehicle kept too short a distance, or, with code 564, entered the waiting area
 * against its light */
typedef struct DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    int32_t nLane;                        /* "Lane" */
    int32_t nSequence;                    /* "Sequence" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_FILE_INFO stuFileInfo;
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO;

typedef DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO DEV_EVENT_TRAFFICWAITINGAREA_INFO; /* "TrafficWaitingArea" (564) */

#ifdef __cplusplus
}
#endif

#endif
