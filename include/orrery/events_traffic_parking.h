/* Traffic events: vehicles that stand, wait or jam, and plates compared. Heads and closing fields: see events_common.h.
 * Numbers without a unit are the device's own. */
#ifndef ORRERY_EVENTS_TRAFFIC_PARKING_H
#define ORRERY_EVENTS_TRAFFIC_PARKING_H

#include "orrery/events_vehicle.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "TrafficParking" (264): a vehicle parked where it must not */
typedef struct DEV_EVENT_TRAFFICPARKING_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    int32_t nLane;                /* "Lane" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    int32_t nSequence;                                /* "Sequence" */
    int32_t nAlarmInterval;                           /* "AlarmInterval": seconds */
    int32_t nParkingAllowedTime;                      /* "ParkingAllowedTime": seconds */
    int32_t nDetectRegionNum;                         /* points in use */
    EVENT_POINT stuDetectRegion[ORRERY_EVENT_POINTS]; /* "DetectRegion" */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    uint32_t bIsExistAlarmRecord;
    uint32_t dwAlarmRecordSize;
    char szAlarmRecordPath[256];
    int32_t emClass;                      /* "Class" */
    uint8_t byPreAlarm;                   /* "PreAlarm" */
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICPARKING_INFO;

/* "TrafficStay" (282): a vehicle stays in the area */
typedef struct DEV_EVENT_TRAFFICSTAY_INFO {
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
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICSTAY_INFO;

/* "TrafficParkingOnYellowBox" (298): a vehicle stopped on the yellow box */
typedef struct DEV_EVENT_TRAFFICPARKINGONYELLOWBOX_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLane;                /* "Lane" */
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nInterval1;  /* "Interval1": seconds */
    int32_t nInterval2;  /* "Interval2": seconds */
    int32_t nFollowTime; /* "FollowTime": seconds */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICPARKINGONYELLOWBOX_INFO;

/* "TrafficIdle" (303): a lane is idle */
typedef struct DEV_EVENT_TRAFFICIDLE_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_SIZE;
    uint32_t dwFlagMask;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    int32_t nLane;               /* "Lane" */
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICIDLE_INFO;

/* "TrafficParkingSpaceOverLine" (308): a vehicle stands over the line of its parking space */
typedef struct DEV_EVENT_TRAFFICPARKINGSPACEOVERLINE_INFO {
    ORRERY_EVENT_HEAD_PTS;
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    int32_t nLane;                        /* "Lane" */
    int32_t nSequence;                    /* "Sequence" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_FILE_INFO stuFileInfo;
    uint8_t byEventAction;
    uint32_t dwFlagMask;
    uint16_t wWidth;
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICPARKINGSPACEOVERLINE_INFO;

/* "TrafficJamForbidInto" (355): a vehicle drove into a jam where it must wait */
typedef struct DEV_EVENT_TRAFFICJAMFORBIDINTO_INFO {
    ORRERY_EVENT_HEAD_PTS;
    EVENT_FILE_INFO stuFileInfo;
    int32_t nMark;          /* "Mark" */
    int32_t nSource;        /* "Source" */
    int32_t nSequence;      /* "Sequence" */
    int32_t nFrameSequence; /* "FrameSequence" */
    int32_t nLane;          /* "Lane" */
    uint8_t byRepeat;
    EVENT_OBJECT_INFO stuObject;          /* "Object" */
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
    EVENT_OBJECT_INFO stuVehicle;         /* "Vehicle" */
    ORRERY_EVENT_SIZE;
} DEV_EVENT_TRAFFICJAMFORBIDINTO_INFO;

/* "TrafficComparePlate" (361): front and back plate of a vehicle were compared */
typedef struct DEV_EVENT_TRAFFICCOMPAREPLATE_INFO {
    ORRERY_EVENT_HEAD_B;
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nMark;                        /* "Mark" */
    int32_t nSource;                      /* "Source" */
    int32_t nFrameSequence;               /* "FrameSequence" */
    int32_t nSpeed;                       /* "Speed": km/h */
    int32_t nLane;                        /* "Lane" */
    int32_t nSequence;                    /* "Sequence" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
    uint32_t dwFlagMask;
    char szFrontPlateNumber[32]; /* "PlateInfo"."FrontPlateNumber" */
    char szBackPlateNumber[32];  /* "PlateInfo"."BackPlateNumber" */
    int32_t emFrontPlateColor;   /* "PlateInfo"."FrontPlateColor": EVENT_PLATE_COLOR_... */
    int32_t emBackPlateColor;    /* "PlateInfo"."BackPlateColor" */
    EVENT_TIME stuFrontUTC;      /* "SnapTimeInfo"."FrontUTC" and "SnapTimeInfo"."FrontUTCMS" */
    EVENT_TIME stuBackUTC;       /* "SnapTimeInfo"."BackUTC" and "SnapTimeInfo"."BackUTCMS" */
} DEV_EVENT_TRAFFICCOMPAREPLATE_INFO;

#ifdef __cplusplus
}
#endif

#endif
