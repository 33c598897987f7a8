/* Traffic events: junctions, gates, signals and weights. Heads and closing fields: see events_common.h. */
#ifndef ORRERY_EVENTS_TRAFFIC_JUNCTION_H
#define ORRERY_EVENTS_TRAFFIC_JUNCTION_H

#include "orrery/events_vehicle.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Bits of DEV_EVENT_TRAFFICJUNCTION_INFO.dwBreakingRule. */
enum {
    EVENT_JUNCTION_RUN_RED_LIGHT = 1, /* "RunRedLight" */
    EVENT_JUNCTION_WRONG_LANE = 2,    /* "WrongLane" */
    EVENT_JUNCTION_RETROGRADE = 4,    /* "Retrograde" */
    EVENT_JUNCTION_U_TURN = 8,        /* "U-Trun", as devices spell it */
    EVENT_JUNCTION_TRAFFIC_JAM = 16,  /* "TrafficJam" */
    EVENT_JUNCTION_TRAFFIC_IDLE = 32, /* "TrafficIdle" */
    EVENT_JUNCTION_OVERLINE = 64      /* "Overline" */
};

#define ORRERY_EVENT_CARDS 16

typedef struct EVENT_CARD_INFO {
    char szCardNumber[36]; /* "CardNumber" */
} EVENT_CARD_INFO;

typedef struct EVENT_WEIGH_INFO {
    uint32_t dwRough; /* "Rough": gross weight */
    uint32_t dwTare;  /* "Tare" */
    uint32_t dwNet;   /* "Net" */
} EVENT_WEIGH_INFO;

/* "TrafficJunction" (23): a vehicle passed a junction. */
typedef struct DEV_EVENT_TRAFFICJUNCTION_INFO {
    ORRERY_EVENT_HEAD_A_WITH(uint8_t byMainSeatBelt;     /* "MainSeat": EVENT_SAFE_BELT_... */
                             uint8_t bySlaveSeatBelt;    /* "SlaveSeat": EVENT_SAFE_BELT_... */
                             uint8_t byVehicleDirection; /* "VehicleDirection": "Head" 1, "Tail" 2 */
                             uint8_t byOpenStrobeState); /* byOpenStrobeState: "OpenStrobeState": "Close" 1,
 "Auto" 2, "Manual" 3 */
    EVENT_OBJECT_INFO stuObject;                         /* "Object": the plate */
    int32_t nLane;                                       /* "Lane" */
    uint32_t dwBreakingRule;                             /* "Breaking": EVENT_JUNCTION_... */
    EVENT_TIME stuRedLightUTC;                           /* "RedLightUTC" and "RedLightUTCMS" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nSequence; /* "Sequence" */
    int32_t nSpeed;    /* "Speed": km/h */
    uint8_t byEventAction;
    uint8_t byDirection;  /* "JunctionDirection": "Obverse" 1, "Reverse" 2 */
    uint8_t byLightState; /* "LightState" */
    uint8_t byRepeat;
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    char szRecordFile[128];                      /* the notification's "RecordFile" */
    EVENT_WEIGH_INFO stuWeigh;                   /* "Custom"."WeighInfo" */
    uint32_t dwTextSource;                       /* "TextSource" */
    EVENT_GPS_POINT stuGPS;                      /* "Custom"."GPS" */
    uint8_t bNonMotorFeature;                    /* 1 when "NonMotorFeature" is there */
    uint8_t byBag;                               /* "NonMotorFeature"."Bag" */
    uint8_t byUmbrella;                          /* "NonMotorFeature"."Umbrella" */
    uint8_t byCarrierBag;                        /* "NonMotorFeature"."CarrierBag" */
    uint8_t byHat;                               /* "NonMotorFeature"."Hat" */
    uint8_t byHelmet;                            /* "NonMotorFeature"."Helmet" */
    uint8_t bySex;                               /* "NonMotorFeature"."Sex": "Male" 1, "Female" 2 */
    uint8_t byAge;                               /* "NonMotorFeature"."Age" */
    CFG_COLOR stuUpperBodyColor;                 /* "NonMotorFeature"."UpperBodyColor", exactly 4 numbers */
    CFG_COLOR stuLowerBodyColor;                 /* "NonMotorFeature"."LowerBodyColor", exactly 4 numbers */
    uint8_t byUpClothes;                         /* "NonMotorFeature"."UpClothes" */
    uint8_t byDownClothes;                       /* "NonMotorFeature"."DownClothes" */
    int32_t nTriggerType;                        /* "TriggerType", an integer */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar;        /* "TrafficCar" */
    int32_t nCardNum;                            /* cards in use */
    EVENT_CARD_INFO stuCard[ORRERY_EVENT_CARDS]; /* "CardInfo" */
    EVENT_COMM_INFO stuCommInfo;                 /* "CommInfo" */
    char szEventLongID[52];                      /* "Extension"."EventLongID" */
    uint32_t bNonMotor;                          /* 1 when "NonMotor" is there */
    EVENT_NON_MOTOR_INFO stuNonMotor;            /* "NonMotor" */
    EVENT_SCENE_IMAGE stuSceneImage;             /* "SceneImage" */
} DEV_EVENT_TRAFFICJUNCTION_INFO;

#define ORRERY_EVENT_AXLES 8

/* "QSYTrafficCarWeight" (360): a vehicle was weighed at a junction. */
typedef struct DEV_EVENT_QSYTRAFFICCARWEIGHT_INFO {
    DEV_EVENT_TRAFFICJUNCTION_INFO stuJunction;        /* all that the event tells of the junction */
    uint32_t dwAxleNum;                                /* "CarWeightInfo"."AxleNum": at most 8 */
    uint32_t dwMaxDistance;                            /* "CarWeightInfo"."MaxDistance" */
    uint32_t dwAxleWeightInfo[ORRERY_EVENT_AXLES];     /* "CarWeightInfo"."AxleWeightInfo", one an axle */
    uint32_t dwAxleLengthInfo[ORRERY_EVENT_AXLES - 1]; /* "CarWeightInfo"."AxleLengthInfo", one between two axles */
    uint32_t dwOverWeight;                             /* "CarWeightInfo"."OverWeight" */
} DEV_EVENT_QSYTRAFFICCARWEIGHT_INFO;

/* Bits of DEV_EVENT_TRAFFICGATE_INFO.dwBreakingRule. */
enum {
    EVENT_GATE_RETROGRADE = 1,               /* "Retrograde" */
    EVENT_GATE_OVERLINE = 2,                 /* "Overline" or "OverLine" */
    EVENT_GATE_OVERSPEED = 4,                /* "Overspeed" or "OverSpeed" */
    EVENT_GATE_UNDERSPEED = 8,               /* "Underpeed", as some devices spell it, or "UnderSpeed" */
    EVENT_GATE_RUN_RED_LIGHT = 16,           /* "RunRedLight" */
    EVENT_GATE_PASSING = 32,                 /* "Passing" */
    EVENT_GATE_OVER_YELLOW_LINE = 64,        /* "OverYellowLine" */
    EVENT_GATE_WRONG_RUNNING_ROUTE = 128,    /* "WrongRunningRoute" */
    EVENT_GATE_YELLOW_VEHICLE_IN_ROUTE = 256 /* "YellowVehicleInRoute" */
};

/* "TrafficCar" of a gate. All zero when the key is absent. */
typedef struct EVENT_GATE_CAR_INFO {
    char szRoadwayNo[32];            /* "RoadwayNo" */
    char szViolationDesc[128];       /* "ViolationDesc" */
    char szDrivingDirection[3][256]; /* "DrivingDirection": heading, then its two ends, the latter two full */
    uint8_t bySnapshotMode;          /* "SnapshotMode" */
    char szViolationCode[16];        /* "ViolationCode" */
    uint8_t byVehicleLength;         /* "VehicleLength": metres */
    char szVehicleSize[32];          /* "VehicleSize"; when absent the "Category" of the vehicle object */
    char szPlateColor[64];           /* "PlateColor" */
    char szPlateNumber[128];         /* "PlateNumber" */
    char szPlateType[61];            /* "PlateType" */
    uint32_t nGroupID;               /* "GroupID" */
    int32_t nLowerSpeedLimit;        /* "LowerSpeedLimit": km/h */
    int32_t nUpperSpeedLimit;        /* "UpperSpeedLimit" */
    int32_t nLane;                   /* "Lane" */
    int32_t nOverSpeedMargin;        /* "OverSpeedMargin" */
    int32_t nUnderSpeedMargin;       /* "UnderSpeedMargin" */
    char szMachineName[256];         /* "MachineName" */
    char szMachineAddress[256];      /* "MachineAddress" */
    char szMachineGroup[256];        /* "MachineGroup" */
    char szVehicleColor[64];         /* "VehicleColor" */
    uint8_t byRedundance[8];         /* "Redundance" */
    const char* pszDeviceAddress;    /* "DeviceAddress" */
    float fActualShutter;            /* "ActualShutter" */
    uint8_t byActualGain;            /* "ActualGain" */
    uint8_t byDirection;             /* "Direction", 8 when absent */
    char szDefendCode[64];           /* "DefendCode" */
    int32_t nTrafficBlackListID;     /* "TrafficBlackListID" */
} EVENT_GATE_CAR_INFO;

/* "TrafficGate" (24): a vehicle passed a checkpoint. */
typedef struct DEV_EVENT_TRAFFICGATE_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;       /* "Object" */
    int32_t nLane;                     /* "Lane" */
    int32_t nSpeed;                    /* "Speed": km/h */
    int32_t nSpeedLowerLimit;          /* first number of "SpeedLimit", an array of at least 2: km/h */
    int32_t nSpeedUpperLimit;          /* the second of "SpeedLimit" */
    uint32_t dwBreakingRule;           /* "Breaking": EVENT_GATE_... */
    EVENT_FILE_INFO stuFileInfo;       /* byCount from "SnapTimes" and byIndex from "IndexInGroup", when present */
    EVENT_OBJECT_INFO stuVehicle;      /* "Vehicle" */
    char szSerialNo[64];               /* "ManualSnap"."SerialNo" */
    int32_t nSequence;                 /* "Sequence" */
    char szSnapFlag[16];               /* "SnapFlag" */
    uint8_t byRedLightMargin;          /* "RedLightMargin": seconds */
    uint8_t bySpeedingPercentage;      /* "SpeedingPercentage" */
    uint8_t byUnderSpeedingPercentage; /* "UnderSpeedingPercentage" */
    EVENT_GATE_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    int32_t nCardNum;                  /* cards in use */
    EVENT_CARD_INFO stuCard[ORRERY_EVENT_CARDS]; /* "CardInfo" */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_COMM_INFO stuCommInfo; /* "CommInfo" */
} DEV_EVENT_TRAFFICGATE_INFO;

/* "TrafficRunRedLight" (256): a vehicle crossed at red. */
typedef struct DEV_EVENT_TRAFFICRUNREDLIGHT_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLane;                /* "Lane" */
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nLightState; /* "LightState" */
    int32_t nSpeed;      /* "Speed": km/h */
    int32_t nSequence;   /* "Sequence" */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
    EVENT_TIME stuRedLightUTC;            /* "RedLightUTC" and "RedLightUTCMS" */
    uint8_t byRedLightMargin;             /* "RedLightMargin": seconds */
    int32_t nRedLightPeriod;              /* "RedLightPeriod": milliseconds */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICRUNREDLIGHT_INFO;

/* "TrafficRunYellowLight" (295): a vehicle crossed at yellow. */
typedef struct DEV_EVENT_TRAFFICRUNYELLOWLIGHT_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nLane;                /* "Lane" */
    EVENT_OBJECT_INFO stuObject;  /* "Object" */
    EVENT_OBJECT_INFO stuVehicle; /* "Vehicle" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t nLightState; /* "LightState" */
    int32_t nSpeed;      /* "Speed": km/h */
    int32_t nSequence;   /* "Sequence" */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_TIME stuRedLightUTC;            /* "RedLightUTC" and "RedLightUTCMS" */
    uint8_t byRedLightMargin;             /* "RedLightMargin": seconds */
    int32_t nYellowLightPeriod;           /* "YellowLightPeriod": milliseconds */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICRUNYELLOWLIGHT_INFO;

/* "TrafficOverSpeed" (262): a vehicle drove too fast. */
typedef struct DEV_EVENT_TRAFFICOVERSPEED_INFO {
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
    uint32_t dwFlagMask;
    ORRERY_EVENT_SIZE;
    EVENT_GPS_POINT stuGPS;               /* "Custom"."GPS" */
    EVENT_TRAFFIC_CAR_INFO stuTrafficCar; /* "TrafficCar" */
    EVENT_COMM_INFO stuCommInfo;          /* "CommInfo" */
} DEV_EVENT_TRAFFICOVERSPEED_INFO;

#ifdef __cplusplus
}
#endif

#endif
