/* Vehicles in the records of analyzer events: the car with its plate, what is seen in it, its tag. */
#ifndef ORRERY_EVENTS_VEHICLE_H
#define ORRERY_EVENTS_VEHICLE_H

#include "orrery/events_common.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "VehicleSize". */
enum {
    EVENT_VEHICLE_SIZE_UNKNOWN = -1,
    EVENT_VEHICLE_SIZE_LIGHT_DUTY = 1, /* "Light-duty" */
    EVENT_VEHICLE_SIZE_MEDIUM = 2,     /* "Medium" */
    EVENT_VEHICLE_SIZE_OVERSIZE = 4,   /* "Oversize" */
    EVENT_VEHICLE_SIZE_MINISIZE = 8,   /* "Minisize" */
    EVENT_VEHICLE_SIZE_LARGESIZE = 16  /* "Largesize" */
};

#define EVENT_DIRECTION_UNKNOWN 8

/* "TrafficCar". All zero when the key is absent. */
typedef struct EVENT_TRAFFIC_CAR_INFO {
    char szPlateNumber[32];            /* "PlateNumber", full */
    char szPlateType[32];              /* "PlateType", bytes as they stand */
    char szPlateColor[32];             /* "PlateColor", full */
    char szVehicleColor[32];           /* "VehicleColor", full */
    int32_t nSpeed;                    /* "Speed": km/h */
    char szEvent[64];                  /* "Event", bytes as they stand */
    char szViolationCode[32];          /* "ViolationCode", bytes as they stand */
    char szViolationDesc[64];          /* "ViolationDesc", full */
    int32_t nLowerSpeedLimit;          /* "LowerSpeedLimit": km/h */
    int32_t nUpperSpeedLimit;          /* "UpperSpeedLimit" */
    int32_t nOverSpeedMargin;          /* "OverSpeedMargin" */
    int32_t nUnderSpeedMargin;         /* "UnderSpeedMargin" */
    int32_t nLane;                     /* "Lane" */
    int32_t nVehicleSize;              /* "VehicleSize": EVENT_VEHICLE_SIZE_..., -1 for others and when absent */
    float fVehicleLength;              /* "VehicleLength": metres */
    int32_t nSnapshotMode;             /* "SnapshotMode" */
    char szChannelName[32];            /* "ChannelName", full */
    char szMachineName[256];           /* "MachineName", full */
    char szMachineGroup[256];          /* "MachineGroup", full */
    char szRoadwayNo[64];              /* "RoadwayNo", full */
    char szDrivingDirection[3][256];   /* "DrivingDirection": heading, then its two ends, the latter two full */
    const char* pszDeviceAddress;      /* "DeviceAddress" */
    char szVehicleSign[32];            /* "VehicleSign" */
    uint8_t byRedundance[8];           /* "Redundance" */
    const char* pszMachineAddress;     /* "MachineAddress" */
    float fActualShutter;              /* "ActualShutter" */
    uint8_t byActualGain;              /* "ActualGain" */
    uint8_t byDirection;               /* "Direction", 8 when absent */
    const char* pszDetailedAddress;    /* "DetailedAddress" */
    char szDefendCode[64];             /* "DefendCode" */
    int32_t nTrafficBlackListID;       /* "TrafficBlackListID" */
    uint32_t stuRGBA[4];               /* "VehicleColorRGB", exactly 4 numbers */
    EVENT_CALENDAR stuUTC;             /* "UTC", an integer */
    uint32_t dwRecNo;                  /* "RecNo" */
    char szCustomParkNo[33];           /* "CustomParkNo" */
    int32_t nDeckNo;                   /* "StereoGarage"."DeckNo" */
    int32_t nFreeDeckCount;            /* "StereoGarage"."FreeDeckCount" */
    int32_t nFullDeckCount;            /* "StereoGarage"."FullDeckCount" */
    int32_t nTotalDeckCount;           /* "StereoGarage"."TotalDeckCount" */
    char szViolationName[64];          /* "ViolationName", full */
    int32_t nWeight;                   /* "Weight", an integer */
    char szCustomRoadwayDirection[32]; /* "CustomRoadwayDirection", full */
    int32_t nPhysicalLane;             /* "PhysicalLane", an integer */
    uint32_t dwMovingDirection;        /* "MovingDirection", when it is above 2147483647 */
    EVENT_CALENDAR stuEleTagInfoUTC;   /* "EleTagInfoUTC" */
} EVENT_TRAFFIC_CAR_INFO;

enum { EVENT_SEAT_UNKNOWN = 0, EVENT_SEAT_MAIN = 1, EVENT_SEAT_SLAVE = 2 };
enum { EVENT_SAFE_BELT_UNKNOWN = 0, EVENT_SAFE_BELT_WITH = 1, EVENT_SAFE_BELT_WITHOUT = 2 };
enum { EVENT_SUN_SHADE_UNKNOWN = 0, EVENT_SUN_SHADE_WITH = 1, EVENT_SUN_SHADE_WITHOUT = 2 };

/* A seat of a car. */
typedef struct EVENT_SEAT_INFO {
    int32_t bEnable;    /* 1 when the seat was told of */
    int32_t emType;     /* "Type": "Main" 1, "Slave" 2 */
    uint8_t bSmoking;   /* "Status" holds "Smoking" */
    uint8_t bCalling;   /* "Status" holds "Calling" */
    int32_t emSafeBelt; /* "SafeBelt": "WithSafeBelt" 1, "WithoutSafeBelt" 2 */
    int32_t emSunShade; /* "SunShade": "WithSunShade" 1, "WithoutSunShade" 2 */
} EVENT_SEAT_INFO;

enum {
    EVENT_ATTACHMENT_NONE = 0,
    EVENT_ATTACHMENT_FURNITURE = 1,
    EVENT_ATTACHMENT_PENDANT = 2,
    EVENT_ATTACHMENT_TISSUE_BOX = 3,
    EVENT_ATTACHMENT_DANGER = 4,
    EVENT_ATTACHMENT_PERFUME_BOX = 5,
    EVENT_ATTACHMENT_UNKNOWN = 6
};

/* A thing behind the windscreen. */
typedef struct EVENT_ATTACHMENT_INFO {
    int32_t emType;   /* "Type": "Furniture" 1, "Pendant" 2, "TissueBox" 3, "Danger" 4, "PerfumeBox" 5, "Unknown" 6 */
    CFG_RECT stuRect; /* "Rect", at least 4 numbers */
} EVENT_ATTACHMENT_INFO;

/* A picture in the data behind the text. */
typedef struct EVENT_PICTURE_PLACE {
    uint32_t dwOffset; /* "Offset" */
    uint32_t dwLength; /* "Length" */
} EVENT_PICTURE_PLACE;

/* What a measurement of the exhaust gave ("ExhaustPara"); but for two, thousandths in the text. */
typedef struct EVENT_EXHAUST_INFO {
    float fHC;                /* "HC": hydrocarbons */
    float fNO;                /* "NO": nitrogen oxide */
    float fCO;                /* "CO": carbon monoxide */
    float fCO2;               /* "CO2": carbon dioxide */
    float fLightObscuration;  /* "LightObscuration" */
    float fTemperature;       /* "Temperature", may be negative */
    uint32_t dwHumidity;      /* "Humidity", as it stands */
    float fPressure;          /* "Pressure" */
    float fWindForce;         /* "Wind_force" */
    uint32_t dwWindDirection; /* "Wind_direction", as it stands */
    float fRoadGradient;      /* "Road_gradient" */
    float fAcceleration;      /* "Acceleration", may be negative */
} EVENT_EXHAUST_INFO;

/* An electronic tag on a vehicle ("RFIDEleTagInfo"). */
typedef struct EVENT_RFID_TAG_INFO {
    char szCardID[15];             /* "CardID" */
    int32_t nCardType;             /* "CardType" */
    int32_t nCardProvince;         /* "CardProvince" */
    char szPlateNumber[31];        /* "PlateNumber" */
    char szProductionDate[15];     /* "ProductionDate" */
    int32_t nCarType;              /* "CarType" */
    int32_t nPower;                /* "Power" */
    int32_t nDisplacement;         /* "Displacement" */
    int32_t nAntennaID;            /* "AntennaID" */
    int32_t nPlateType;            /* "PlateType" */
    char szInspectionValidity[15]; /* "InspectionValidity" */
    int32_t nInspectionFlag;       /* "InspectionFlag" */
    int32_t nMandatoryRetirement;  /* "MandatoryRetirement": years */
    int32_t nCarColor;             /* "CarColor" */
    int32_t nApprovedCapacity;     /* "ApprovedCapacity" */
    int32_t nApprovedTotalQuality; /* "ApprovedTotalQuality" */
    NET_TIME stuThroughTime;       /* "ThroughTime": "2026-11-20 09:30:00" */
    int32_t nUseProperty;          /* "UseProperty" */
    char szPlateCode[8];           /* "PlateCode" */
    char szPlateSN[16];            /* "PlateSN" */
} EVENT_RFID_TAG_INFO;

enum { EVENT_NTP_UNKNOWN = 0, EVENT_NTP_DISABLED = 1, EVENT_NTP_SUCCESSFUL = 2, EVENT_NTP_FAILED = 3 };

#define ORRERY_EVENT_SEATS 8
#define ORRERY_EVENT_ATTACHMENTS 8
#define ORRERY_EVENT_INSPECTIONS 8
#define ORRERY_EVENT_ORIGINALS 6

/* "CommInfo": what every traffic event may tell besides. */
typedef struct EVENT_COMM_INFO {
    int32_t emNTPStatus;                         /* "NTPCheckTime": "Disable" 1, "Successful" 2, "Failed" 3 */
    int32_t nDriversNum;                         /* drivers at pDrivers */
    const EVENT_OBJECT_INFO_EX* pDrivers;        /* "Drivers"; null when there are none */
    const char* pszFilePath;                     /* the notification's "FilePath"; null when it has none */
    const char* pszFTPPath;                      /* the notification's "FTPPath" */
    const char* pszVideoPath;                    /* the notification's "VideoPath" */
    int32_t nSeatNum;                            /* seats in use */
    EVENT_SEAT_INFO stuSeat[ORRERY_EVENT_SEATS]; /* "Seat" */
    int32_t nAttachmentNum;                      /* attachments in use */
    EVENT_ATTACHMENT_INFO stuAttachment[ORRERY_EVENT_ATTACHMENTS]; /* "Attachment" */
    int32_t nAnnualInspectionNum;                                  /* inspection marks in use */
    CFG_RECT stuAnnualInspection[ORRERY_EVENT_INSPECTIONS]; /* "AnnualInspection": fewer than 4 numbers leave zero */
    EVENT_EXHAUST_INFO stuExhaust;                          /* "ExhaustPara" */
    int32_t nOriginalPictureNum;                            /* pictures in use */
    EVENT_PICTURE_PLACE stuOriginalPicture[ORRERY_EVENT_ORIGINALS]; /* "OriginalPictures" */
    EVENT_RFID_TAG_INFO stuRFIDTag;                                 /* "RFIDEleTagInfo" */
    char szCountry[20];                                             /* "Country" */
} EVENT_COMM_INFO;

/* The picture of the whole scene, in the data behind the text. */
typedef struct EVENT_SCENE_IMAGE {
    uint32_t bSceneImage;  /* 1 when "Length" is above 0; the rest is zero otherwise */
    uint32_t dwOffset;     /* "Offset" */
    uint32_t dwLength;     /* "Length" */
    uint32_t wWidth;       /* "Width" */
    uint32_t wHeight;      /* "Height" */
    uint32_t nIndexInData; /* "IndexInData": which of several data blocks */
} EVENT_SCENE_IMAGE;

typedef struct EVENT_NON_MOTOR_IMAGE {
    uint32_t dwLength;    /* "Length" */
    uint32_t dwOffset;    /* "Offset" */
    uint16_t wWidth;      /* "Width" */
    uint16_t wHeight;     /* "Height" */
    int32_t nIndexInData; /* "IndexInData" */
} EVENT_NON_MOTOR_IMAGE;

/* A vehicle without an engine of its own, or a small one ("NonMotor"). */
typedef struct EVENT_NON_MOTOR_INFO {
    int32_t emCategory;                  /* kind, from the object's "Category"; 0 to 19, see the list below */
    int32_t emColor;                     /* "Color"; 0 to 36, see the list below */
    EVENT_NON_MOTOR_IMAGE stuImage;      /* "Image" */
    EVENT_NON_MOTOR_IMAGE stuSceneImage; /* "SceneImage" */
} EVENT_NON_MOTOR_INFO;

/* emCategory: 0 "Other", 1 "Tricycle", 2 "Motorcycle", 3 "Non-Motor", 4 "Bicycle", 5 "DualTriWheelMotorcycle",
 * 6 "LightMotorcycle", 7 "EmbassyMotorcycle", 8 "MarginalMotorcycle", 9 "AreaoutMotorcycle", 10 "ForeignMotorcycle",
 * 11 "TrialMotorcycle", 12 "CoachMotorcycle", 13 "Passerby", 14 "VanTricycle", 15 "MannedConvertibleTricycle",
 * 16 "NoMannedConvertibleTricycle", 17 "Electricbike", 18 "FourWheelerNonMotor", 19 "Scooter".
 *
 * emColor: 1 "White", 2 "Orange", 3 "Pink", 4 "Black", 5 "Red", 6 "Yellow", 7 "Gray", 8 "Blue", 9 "Green", 10 "Purple",
 * 11 "Brown", 12 "Sliver", 13 "Darkviolet", 14 "Maroon", 15 "Dimgray", 16 "Whitesmoke", 17 "Darkorange",
 * 18 "Mistyrose", 19 "Tomato", 20 "Olive", 21 "Gold", 22 "Darkolivegreen", 23 "Chartreuse", 24 "Greenyellow",
 * 25 "Forestgreen", 26 "Seagreen", 27 "Deepskyblue", 28 "Cyan", 30 "Other", 31 "Fuchsia", 32 "Lime", 33 "Navy",
 * 34 "Teal", 35 "Aqua", 36 "Orangered". */

/* Colours of plates, 0 to 9. */
enum {
    EVENT_PLATE_COLOR_OTHER = 0,
    EVENT_PLATE_COLOR_BLUE = 1,
    EVENT_PLATE_COLOR_YELLOW = 2,
    EVENT_PLATE_COLOR_WHITE = 3,
    EVENT_PLATE_COLOR_BLACK = 4,
    EVENT_PLATE_COLOR_YELLOW_BOTTOM_BLACK_TEXT = 5, /* "YellowbottomBlackText" */
    EVENT_PLATE_COLOR_BLUE_BOTTOM_WHITE_TEXT = 6,   /* "BluebottomWhiteText" */
    EVENT_PLATE_COLOR_BLACK_BOTTOM_WHITE_TEXT = 7,  /* "BlackBottomWhiteText" */
    EVENT_PLATE_COLOR_SHADOW_GREEN = 8,             /* "ShadowGreen" */
    EVENT_PLATE_COLOR_YELLOW_GREEN = 9              /* "YellowGreen" */
};

#ifdef __cplusplus
}
#endif

#endif
