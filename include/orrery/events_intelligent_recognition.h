/* Intelligent events: what is in a parcel, which vehicle it is. Heads and closing fields: see events_common.h. */
#ifndef ORRERY_EVENTS_INTELLIGENT_RECOGNITION_H
#define ORRERY_EVENTS_INTELLIGENT_RECOGNITION_H

#include "orrery/events_vehicle.h"

#ifdef __cplusplus
extern "C" {
#endif

enum {
    EVENT_INSIDE_UNKNOWN = 0,
    EVENT_INSIDE_KNIFE = 1,
    EVENT_INSIDE_BOTTLE_LIQUID = 2,
    EVENT_INSIDE_GUN = 3,
    EVENT_INSIDE_UMBRELLA = 4,
    EVENT_INSIDE_PHONE = 5,
    EVENT_INSIDE_NOTEBOOK = 6,
    EVENT_INSIDE_POWERBANK = 7,
    EVENT_INSIDE_SHOES = 8,
    EVENT_INSIDE_ROD = 9,
    EVENT_INSIDE_METAL = 10,
    EVENT_INSIDE_EXPLOSIVE = 11
};
#define ORRERY_EVENT_INSIDE 32

/* A thing in a parcel. */
typedef struct EVENT_INSIDE_OBJECT {
    int32_t nGrade; /* "Grade" when it is at most 2, else -1: how dangerous it is */
    int32_t emType; /* "Type": EVENT_INSIDE_... */
} EVENT_INSIDE_OBJECT;

/* "XRayDetection" (547): a parcel was looked into. */
typedef struct DEV_EVENT_XRAYDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t emClass;                                    /* "Class"; "Traffic" is known */
    int32_t nPacketGrade;                               /* "Packet"."Grade" when it is at most 2, else -1 */
    int32_t nInsideNum;                                 /* things in use */
    EVENT_INSIDE_OBJECT stuInside[ORRERY_EVENT_INSIDE]; /* "Inside" */
} DEV_EVENT_XRAYDETECTION_INFO;

/* ---- Vehicles ---- */

enum { EVENT_VEHICLE_ACTION_UNKNOWN = 0, EVENT_VEHICLE_APPEAR = 1, EVENT_VEHICLE_DISAPPEAR = 2 };

/* "MainSeat" and "SlaveSeat": the device's own numbers. */
typedef struct EVENT_VEHICLE_SEAT {
    uint8_t bySunShade;      /* "SunShade" */
    uint8_t byDriverCalling; /* "DriverCalling" */
    uint8_t byDriverSmoking; /* "DriverSmoking" */
    uint8_t bySafeBelt;      /* "SafeBelt" */
} EVENT_VEHICLE_SEAT;

enum {
    EVENT_VEHICLE_ATTACH_UNKNOWN = 0,
    EVENT_VEHICLE_ATTACH_INSPECT = 1,
    EVENT_VEHICLE_ATTACH_PENDANT = 2,
    EVENT_VEHICLE_ATTACH_PAPER_BOX = 3,
    EVENT_VEHICLE_ATTACH_PERFUME_BOX = 4
};
#define ORRERY_EVENT_VEHICLE_ATTACHS 8

/* Something behind the windscreen. */
typedef struct EVENT_VEHICLE_ATTACH {
    int32_t emType;          /* "Type": "Inspect" 1, "Pendant" 2, "Paperbox" 3, "Perfumebox" 4 */
    CFG_RECT stuBoundingBox; /* "BoundingBox", at least 4 numbers */
} EVENT_VEHICLE_ATTACH;

enum {
    EVENT_CAR_DIFFERENCE_UNKNOWN = 0,
    EVENT_CAR_DIFFERENCE_COUNTRY = 1,
    EVENT_CAR_DIFFERENCE_BRAND = 2,
    EVENT_CAR_DIFFERENCE_TYPE = 3,
    EVENT_CAR_DIFFERENCE_VEHICLE_COLOR = 4,
    EVENT_CAR_DIFFERENCE_PLATE_COLOR = 5
};
#define ORRERY_EVENT_CAR_DIFFERENCES 16

/* A known vehicle and its owner. */
typedef struct EVENT_CAR_CANDIDATE {
    int32_t nDifferenceNum;                             /* differences in use */
    int32_t emDifference[ORRERY_EVENT_CAR_DIFFERENCES]; /* "DifferentAttributres": EVENT_CAR_DIFFERENCE_... */
    uint32_t dwUID;                                     /* "Vehicle"."UID" */
    char szGroupID[64];                                 /* "Vehicle"."GroupID" */
    char szGroupName[128];                              /* "Vehicle"."GroupName" */
    char szPlateNumber[64];                             /* "Vehicle"."PlateNumber" */
    char szPlateCountry[4];                             /* "Vehicle"."PlateCountry" */
    uint32_t dwPlateType;                               /* "Vehicle"."PlateType" */
    uint32_t dwType;                                    /* "Vehicle"."Type" */
    uint32_t dwBrand;                                   /* "Vehicle"."Brand" */
    uint32_t dwSerie;                                   /* "Vehicle"."Serie" */
    uint32_t dwCarSeriesModelYearIndex;                 /* "Vehicle"."CarSeriesModelYearIndex" */
    CFG_COLOR stuVehicleColor;                          /* "Vehicle"."VehicleColor", exactly 4 numbers */
    CFG_COLOR stuPlateColor;                            /* "Vehicle"."PlateColor", exactly 4 numbers */
    char szName[64];                                    /* "Vehicle"."Name": of the owner */
    int32_t emSex;             /* "Vehicle"."Sex": "Unknown" 0, "Male" 1, "Female" 2, 3 for other texts */
    int32_t emCertificateType; /* "Vehicle"."CertificateType": "Unknown" 0, "IC" 1, "Passport" 2, "Military" 3, 4 for
                                  others */
    char szID[32];             /* "Vehicle"."ID" */
    char szCountry[4];         /* "Vehicle"."Country" */
    char szProvince[64];       /* "Vehicle"."Province" */
    char szCity[64];           /* "Vehicle"."City" */
    char szHomeAddress[128];   /* "Vehicle"."HomeAddress" */
    char szEmail[32];          /* "Vehicle"."Email" */
    char szPhoneNo[128];       /* "Vehicle"."PhoneNo" */
} EVENT_CAR_CANDIDATE;

#define ORRERY_EVENT_CAR_CANDIDATES 50

/* "VehicleRecognition" (561): a vehicle was looked up. */
typedef struct DEV_EVENT_VEHICLERECOGNITION_INFO {
    char szName[128];
    double dPTS;
    EVENT_TIME stuUTC;
    int32_t nEventID;
    int32_t emAction;                /* "Vehicle"."Action": "Appear" 1, "Disappear" 2 */
    EVENT_OBJECT_INFO stuObject;     /* "Object" */
    EVENT_OBJECT_INFO stuVehicle;    /* "Vehicle" */
    EVENT_VEHICLE_SEAT stuMainSeat;  /* "Vehicle"."MainSeat" */
    EVENT_VEHICLE_SEAT stuSlaveSeat; /* "Vehicle"."SlaveSeat" */
    CFG_RECT stuMainFace;            /* "Vehicle"."MainFace", exactly 4 numbers */
    CFG_RECT stuSlaveFace;           /* "Vehicle"."SlaveFace", exactly 4 numbers */
    int32_t nVehicleAttachNum;       /* things in use */
    EVENT_VEHICLE_ATTACH stuVehicleAttach[ORRERY_EVENT_VEHICLE_ATTACHS]; /* "Vehicle"."VehicleAttachs" */
    char szCountry[32];                                                  /* "Object"."Country" */
    int32_t nCandidateNum;                                               /* candidates in use */
    EVENT_CAR_CANDIDATE stuCandidates[ORRERY_EVENT_CAR_CANDIDATES];      /* "CarCandidate" */
    EVENT_COMM_INFO stuCommInfo;                                         /* "CommInfo" */
} DEV_EVENT_VEHICLERECOGNITION_INFO;

#ifdef __cplusplus
}
#endif

#endif
