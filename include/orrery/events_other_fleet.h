/* Events of vehicles that carry a terminal, of what they are filled and loaded with, and of their drivers. Heads and
 * closing fields: see events_common.h. */
#ifndef ORRERY_EVENTS_OTHER_FLEET_H
#define ORRERY_EVENTS_OTHER_FLEET_H

#include "orrery/events_vehicle.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- State of the vehicle ---- */

enum { EVENT_SUPPLY_UNKNOWN = 0, EVENT_SUPPLY_ON = 1, EVENT_SUPPLY_OFF = 2 };

/* "VehicleACC" (304): the ignition was switched. */
typedef struct DEV_EVENT_VEHICLEACC_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_GPS_STATUS stuGPSStatus; /* "GPS" */
    int32_t emACCStatus;           /* "Status": "On" 1, others 2, 0 when absent */
    uint8_t byEventAction;
    uint8_t emConstantElectric; /* "ConstantElectricStatus": "On" 1, others 2, 0 when absent */
} DEV_EVENT_VEHICLEACC_INFO;

#define ORRERY_EVENT_ACCIDENT_FIELDS                                                                                   \
    ORRERY_EVENT_HEAD_A;                                                                                               \
    EVENT_GPS_STATUS stuGPSStatus; /* "GPS" */                                                                         \
    EVENT_FILE_INFO stuFileInfo;                                                                                       \
    ORRERY_EVENT_ACTION_AND_REPEAT;                                                                                    \
    uint32_t dwFlagMask;                                                                                               \
    ORRERY_EVENT_SIZE

/* "VehicleTurnover" (305): the vehicle turned over. */
typedef struct DEV_EVENT_VEHICLETURNOVER_INFO {
    ORRERY_EVENT_ACCIDENT_FIELDS;
} DEV_EVENT_VEHICLETURNOVER_INFO;

/* "VehicleCollision" (306): the vehicle was hit. */
typedef struct DEV_EVENT_VEHICLECOLLISION_INFO {
    ORRERY_EVENT_ACCIDENT_FIELDS;
} DEV_EVENT_VEHICLECOLLISION_INFO;

/* "AccOffSnap" (546): a capture when the ignition was switched off. */
typedef struct DEV_EVENT_ACCOFFSNAP_INFO {
    ORRERY_EVENT_HEAD_A;
} DEV_EVENT_ACCOFFSNAP_INFO;

/* "BusSharpTurn" (520): the vehicle took a turn too fast. */
typedef struct DEV_EVENT_BUSSHARPTURN_INFO {
    ORRERY_EVENT_HEAD_A;
    uint8_t byEventAction;
    EVENT_GPS_STATUS stuGPSStatus; /* "GPS" */
} DEV_EVENT_BUSSHARPTURN_INFO;

/* "HighSpeed" (555): the vehicle is faster than it may be. */
typedef struct DEV_EVENT_HIGHSPEED_INFO {
    int32_t nChannelID;
    int32_t nAction; /* EVENT_ACTION_... */
    EVENT_TIME stuUTC;
    double dPTS;
    EVENT_GPS_STATUS stuGPSStatus; /* "GPS" */
    int32_t nSpeedLimit;           /* "SpeedLimit": km/h */
    int32_t nCurSpeed;             /* "CurSpeed" */
    int32_t nMaxSpeed;             /* "MaxSpeed": the fastest since it began */
    NET_TIME_EX stuStartTime;      /* "StartTime": "2026-11-20 09:30:00.250" */
} DEV_EVENT_HIGHSPEED_INFO;

/* What a fleet's rules forbid. */
#define ORRERY_EVENT_FLEET_FIELDS                                                                                      \
    int32_t nChannelID;                                                                                                \
    EVENT_TIME stuUTC;                                                                                                 \
    uint8_t byEventAction;                                                                                             \
    uint8_t byRepeat;                                                                                                  \
    uint32_t dwFlagMask;                                                                                               \
    uint32_t dwResolution;      /* the notification's "Resolution": width, the height in the upper half */             \
    EVENT_COMM_INFO stuCommInfo /* "CommInfo", without the paths of the notification */

/* "NotClearCar" (548): the vehicle was not cleared. */
typedef struct DEV_EVENT_NOTCLEARCAR_INFO {
    ORRERY_EVENT_FLEET_FIELDS;
} DEV_EVENT_NOTCLEARCAR_INFO;

/* "SOSAlert" (549): the driver asks for help. */
typedef struct DEV_EVENT_SOSALERT_INFO {
    ORRERY_EVENT_FLEET_FIELDS;
} DEV_EVENT_SOSALERT_INFO;

/* "OverLoad" (550): the vehicle carries too much. */
typedef struct DEV_EVENT_OVERLOAD_INFO {
    ORRERY_EVENT_FLEET_FIELDS;
} DEV_EVENT_OVERLOAD_INFO;

/* "NonWorkingTime" (551): the vehicle moves outside its hours. */
typedef struct DEV_EVENT_NONWORKINGTIME_INFO {
    ORRERY_EVENT_FLEET_FIELDS;
} DEV_EVENT_NONWORKINGTIME_INFO;

/* ---- The driver ---- */

/* "TiredPhysiological" (519): the driver is tired. */
typedef struct DEV_EVENT_TIREDPHYSIOLOGICAL_INFO {
    ORRERY_EVENT_HEAD_A;
    uint8_t byEventAction;
    EVENT_GPS_STATUS stuGPSStatus; /* "GPS" */
} DEV_EVENT_TIREDPHYSIOLOGICAL_INFO;

#define ORRERY_EVENT_DRIVER_FIELDS                                                                                     \
    ORRERY_EVENT_HEAD_A;                                                                                               \
    EVENT_GPS_STATUS stuGPSStatus /* "GPS" */

/* "TrafficDriverLowerHead" (522): the driver looks down. */
typedef struct DEV_EVENT_TRAFFICDRIVERLOWERHEAD_INFO {
    ORRERY_EVENT_DRIVER_FIELDS;
} DEV_EVENT_TRAFFICDRIVERLOWERHEAD_INFO;

/* "TrafficDriverLookAround" (523): the driver looks aside. */
typedef struct DEV_EVENT_TRAFFICDRIVERLOOKAROUND_INFO {
    ORRERY_EVENT_DRIVER_FIELDS;
} DEV_EVENT_TRAFFICDRIVERLOOKAROUND_INFO;

/* "TrafficDriverLeavePost" (524): the driver's seat is empty. */
typedef struct DEV_EVENT_TRAFFICDRIVERLEAVEPOST_INFO {
    ORRERY_EVENT_DRIVER_FIELDS;
} DEV_EVENT_TRAFFICDRIVERLEAVEPOST_INFO;

/* "TrafficDriverYawn" (528): the driver yawns. */
typedef struct DEV_EVENT_TRAFFICDRIVERYAWN_INFO {
    ORRERY_EVENT_DRIVER_FIELDS;
} DEV_EVENT_TRAFFICDRIVERYAWN_INFO;

/* "DrivingWithoutCard" (554): the driver did not insert a card. */
typedef struct DEV_EVENT_DRIVINGWITHOUTCARD_INFO {
    int32_t nChannelID;
    uint8_t byEventAction;
    double dPTS;
    EVENT_TIME stuUTC;
} DEV_EVENT_DRIVINGWITHOUTCARD_INFO;

/* ---- Fuel, size, tag ---- */

/* Kind of fuel ("Type", case folded): petrol by its octane number, diesel by the cold that it bears. */
enum {
    EVENT_FUEL_UNKNOWN = 0,
    EVENT_FUEL_98 = 1,        /* "98#" */
    EVENT_FUEL_97 = 2,        /* "97#" */
    EVENT_FUEL_95 = 3,        /* "95#" */
    EVENT_FUEL_93 = 4,        /* "93#" */
    EVENT_FUEL_90 = 5,        /* "90#" */
    EVENT_FUEL_PLUS_10 = 6,   /* "10#" */
    EVENT_FUEL_PLUS_5 = 7,    /* "5#" */
    EVENT_FUEL_0 = 8,         /* "0#" */
    EVENT_FUEL_MINUS_10 = 9,  /* "-10#" */
    EVENT_FUEL_MINUS_20 = 10, /* "-20#" */
    EVENT_FUEL_MINUS_35 = 11, /* "-35#" */
    EVENT_FUEL_MINUS_50 = 12  /* "-50#" */
};

/* "TrafficFcc" (363): a vehicle was filled with fuel. */
typedef struct DEV_EVENT_TRAFFICFCC_INFO {
    ORRERY_EVENT_HEAD_A_WITH(int32_t nTriggerID); /* nTriggerID: "TriggerID" */
    uint32_t dwNum;                               /* "Num" */
    uint32_t dwLitre;                             /* "Litre" */
    int32_t emType;                               /* "Type": EVENT_FUEL_..., 0 for others */
    uint32_t dwMoney;                             /* "Money" */
    char szText[128];                             /* "Text" */
    char szTime[128];                             /* "Time" */
    uint32_t dwOffset;                            /* "Object"."Image"."Offset" in the data behind the text */
    uint32_t dwLength;                            /* "Object"."Image"."Length" */
    uint16_t wWidth;                              /* "Object"."Image"."Width" */
    uint16_t wHeight;                             /* "Object"."Image"."Height" */
} DEV_EVENT_TRAFFICFCC_INFO;

/* "Transfinite" (364): a vehicle is larger than it may be. */
typedef struct DEV_EVENT_TRANSFINITE_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    uint8_t byEventAction;
    char szText[16];          /* "Text" */
    char szTime[20];          /* "Time" */
    double dLong;             /* "Long": metres */
    double dWidth;            /* "Width" */
    double dHeight;           /* "Height" */
    char szViolationCode[16]; /* "ViolationCode" */
    char szDescribe[132];     /* "Describe" */
    uint8_t byRepeat;
    uint32_t dwFlagMask;
} DEV_EVENT_TRANSFINITE_INFO;

/* "Oil4GFlowRate" (515): a fuel meter that reports by radio. */
typedef struct DEV_EVENT_OIL4GFLOWRATE_INFO {
    int32_t nChannelID;
    char szName[128];
    uint8_t byReservedHead[8];
    double dPTS;
    EVENT_TIME stuUTC;
    int32_t nEventID;
    uint32_t dwFlowRate; /* "FlowRate" */
} DEV_EVENT_OIL4GFLOWRATE_INFO;

#define ORRERY_EVENT_LINK_CHANNELS 16

/* "TrafficEleTagInfo" (518): the electronic tag of a vehicle was read. */
typedef struct DEV_EVENT_TRAFFICELETAGINFO_INFO {
    ORRERY_EVENT_HEAD_A;
    uint8_t byEventAction;
    EVENT_RFID_TAG_INFO stuRFIDTag;                   /* "RFIDEleTagInfo" */
    int32_t nLinkChannelNum;                          /* channels in use */
    int32_t nLinkChannel[ORRERY_EVENT_LINK_CHANNELS]; /* "LinkChannel": channels that belong to it */
} DEV_EVENT_TRAFFICELETAGINFO_INFO;

#ifdef __cplusplus
}
#endif

#endif
