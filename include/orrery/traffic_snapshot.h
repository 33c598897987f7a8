/* How traffic cameras take their pictures: lanes with their detectors, radar, what is printed on a picture. Texts of
 * codes are compared without regard to case; another text reads as 0, and a code without a text leaves its key out.
 * What a reply leaves out is 0 unless told otherwise. */
#ifndef ORRERY_TRAFFIC_SNAPSHOT_H
#define ORRERY_TRAFFIC_SNAPSHOT_H

#include "orrery/linkage.h"
#include "orrery/traffic_global.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_SNAP_DETECTORS 8 /* detectors of a lane's list */
#define ORRERY_SNAP_COILS 3     /* coils of a detector */
#define ORRERY_SNAP_DRIVING 3   /* texts of a driving direction */
#define ORRERY_SNAP_OSD_ELEMENTS 64
#define ORRERY_TRAFFIC_SNAPSHOTS 8

/* Where a bar stands. */
enum {
    CFG_OSD_BAR_TOP = 0,   /* "TOP" */
    CFG_OSD_BAR_BOTTOM = 1 /* "BOTTOM" */
};

/* Whether the looks of the text are those of the whole or of each item. */
enum {
    CFG_OSD_ATTR_WHOLE = 0,     /* "Whole" */
    CFG_OSD_ATTR_EVERY_ITEM = 1 /* "Every Item" */
};

/* How items are chosen: nOSDContentScheme. */
enum {
    CFG_OSD_CONTENT_MASK = 0,          /* "Mask": by the masks of the record */
    CFG_OSD_CONTENT_CUSTOMIZE_SORT = 1 /* "CustomizeSort": by "OSDCustomizeSort" */
};

/* Which pictures show how long the light has been red. */
enum {
    CFG_RED_LIGHT_LAST = 0, /* "Last" */
    CFG_RED_LIGHT_ALL = 1   /* "All" */
};

/* Which way the cars of a lane drive. */
enum {
    CFG_DETECTOR_OBVERSE = 0, /* "Obverse": towards the camera */
    CFG_DETECTOR_REVERSE = 1  /* "Reverse" */
};

/* Pictures taken of each violation. */
typedef struct CFG_BREAKING_SNAP_TIMES {
    int32_t nNormal;                /* "Normal" */
    int32_t nRunRedLight;           /* "RunRedLight" */
    int32_t nOverLine;              /* "OverLine" */
    int32_t nOverYellowLine;        /* "OverYellowLine" */
    int32_t nRetrograde;            /* "Retrograde" */
    int32_t nUnderSpeed;            /* "UnderSpeed" */
    int32_t nOverSpeed;             /* "OverSpeed" */
    int32_t nWrongRunningRoute;     /* "WrongRunningRoute" */
    int32_t nYellowInRoute;         /* "YellowInRoute" */
    int32_t nSpecialRetrograde;     /* "SpecialRetrograde" */
    int32_t nTurnLeft;              /* "TurnLeft" */
    int32_t nTurnRight;             /* "TurnRight" */
    int32_t nCrossLane;             /* "CrossLane" */
    int32_t nUTurn;                 /* "U-Turn" */
    int32_t nParking;               /* "Parking" */
    int32_t nWaitingArea;           /* "WaitingArea" */
    int32_t nWrongRoute;            /* "WrongRoute" */
    int32_t nParkingSpaceParking;   /* "ParkingSpaceParking" */
    int32_t nParkingSpaceNoParking; /* "ParkingSpaceNoParking" */
    int32_t nRunYellowLight;        /* "RunYellowLight" */
    int32_t nStay;                  /* "Stay" */
    int32_t nPedestrainPriority;    /* "PedestrainPriority" */
    int32_t nVehicleInBusRoute;     /* "VehicleInBusRoute" */
    int32_t nBacking;               /* "Backing" */
    int32_t nOverStopLine;          /* "OverStopLine" */
    int32_t nParkingOnYellowBox;    /* "ParkingOnYellowBox" */
    int32_t nRestrictedPlate;       /* "RestrictedPlate" */
    int32_t nNoPassing;             /* "NoPassing" */
    int32_t nWithoutSafeBelt;       /* "WithoutSafeBelt" */
    int32_t nDriverSmoking;         /* "DriverSmoking" */
    int32_t nDriverCalling;         /* "DriverCalling" */
    int32_t nPedestrianRunRedLight; /* "PedestrianRunRedLight" */
    int32_t nPassNotInOrder;        /* "PassNotInOrder" */
} CFG_BREAKING_SNAP_TIMES;

/* A radar that measures speeds. */
typedef struct CFG_RADAR_INFO {
    int32_t nAngle;             /* "Angle": degrees */
    int32_t nAntiJammingValue;  /* "AntiJammingValue" */
    int32_t nComeInValue;       /* "ComeInValue" */
    int32_t nComeOutValue;      /* "ComeOutValue" */
    int32_t nDelayTime;         /* "DelayTime": milliseconds */
    uint32_t nDetectBreaking;   /* "DetectBreaking": mask of violations */
    int32_t nDetectMode;        /* "DetectMode" */
    int32_t nInstallMode;       /* "InstallMode" */
    int32_t nLevel;             /* "Level": sensitivity */
    int32_t nMultiTargetFilter; /* "MultiTargetFilter" */
    int32_t nWentEndValue;      /* "WentEndValue" */
    int32_t nWentInValue;       /* "WentInValue" */
    int32_t nWentOutValue;      /* "WentOutValue" */
} CFG_RADAR_INFO;

/* A coil in the road. */
typedef struct CFG_COIL_CONFIG {
    int32_t nDelayFlashID;    /* "DelayFlashID" */
    int32_t nFlashSerialNum;  /* "FlashSerialNum" */
    int32_t nFlashSerialNum2; /* "FlashSerialNum2" */
    int32_t nFlashSerialNum3; /* "FlashSerialNum3" */
    int32_t nRedDirection;    /* "RedDirection" */
    int32_t nTriggerMode;     /* "TriggerMode" */
} CFG_COIL_CONFIG;

/* The detector of a lane. */
typedef struct CFG_DETECTOR_INFO {
    int32_t bEnable;                                   /* "Enable" */
    int32_t nDetectBreaking;                           /* "DetectBreaking": mask of violations */
    int32_t nMaskRetrograde;                           /* "MaskRetrograde" */
    int32_t nCoilConfigNum;                            /* entries of stuCoilConfig in use */
    CFG_COIL_CONFIG stuCoilConfig[ORRERY_SNAP_COILS];  /* "CoilConfig" */
    int32_t nRoadwayNumber;                            /* "RoadwayNumber": number of the lane */
    char szCustomParkNo[64];                           /* "CustomParkNo": number of a parking space */
    char szDrivingDirection[ORRERY_SNAP_DRIVING][32];  /* "DrivingDirection": "Approach" or "Leave", from, to; the first
                                                         empty one ends it */
    char szDrivingDirection1[ORRERY_SNAP_DRIVING][32]; /* "DrivingDirection1": likewise */
    int32_t nRoadwayDirection;                         /* "RoadwayDirection" */
    int32_t nRedLightCardNum;                          /* "RedLightCardNum" */
    int32_t nCoilsNumber;                              /* "CoilsNumber" */
    int32_t nOperationType;                            /* "OperationType" */
    int32_t nCoilsDistance[ORRERY_SNAP_COILS];         /* "CoilsDistance": from coil to coil, centimetres */
    int32_t nCoilsWidth;                               /* "CoilsWidth": centimetres */
    int32_t bSpeedLimitForSize;                        /* "SpeedLimitForSize": limits differ by the size of the car */
    int32_t nSmallCarSpeedLimit[2];                    /* "SmallCarSpeedLimit": lowest and highest speed, km/h */
    int32_t nBigCarSpeedLimit[2];                      /* "BigCarSpeedLimit": likewise */
    int32_t nOverSpeedMargin;                          /* "OverSpeedMargin": km/h */
    int32_t nBigCarOverSpeedMargin;                    /* "BigCarOverSpeedMargin": km/h */
    int32_t nUnderSpeedMargin;                         /* "UnderSpeedMargin": km/h */
    int32_t nBigCarUnderSpeedMargin;                   /* "BigCarUnderSpeedMargin": km/h */
    int32_t nOverPercentage;                           /* "OverPercentage" */
    int32_t nYellowSpeedLimit;                         /* "YellowSpeedLimit": at a yellow light, km/h */
    int32_t nRoadType;                                 /* "RoadType" */
    int32_t nSnapMode;                                 /* "SnapMode" */
    int32_t nDelayMode;                                /* "DelayMode" */
    int32_t nDelayTime;                                /* "DelayTime" */
    int32_t nErrorRange;                               /* "ErrorRange": percent */
    double dSpeedCorrection;                           /* "SpeedCorrection": factor */
    int32_t nDirection;                                /* "Direction": CFG_DETECTOR_... */
    int32_t nSigScheme;                                /* "SigScheme" */
    int32_t nCarScheme;                                /* "CarScheme" */
} CFG_DETECTOR_INFO;

/* An item of a text that is printed on a picture. */
typedef struct CFG_OSD_ELEMENT {
    int32_t nNameType;       /* "NameType" */
    int32_t nSeperaterCount; /* "SeperaterCount" */
    char szName[64];         /* "Name" */
    char szPrefix[64];       /* "Prefix" */
    char szPostfix[64];      /* "Postfix" */
    char szSeperater[64];    /* "Seperater" */
} CFG_OSD_ELEMENT;

/* What is printed on a picture. */
typedef struct CFG_TRAFFIC_OSD_INFO {
    int32_t nBlackRegionHeight;     /* "OSDBlackRegion"."Height": of the bar */
    int32_t nBlackRegionPosition;   /* "OSDBlackRegion"."OSDPosition": CFG_OSD_BAR_... */
    int32_t nOSDAttrScheme;         /* "OSDAttrScheme": CFG_OSD_ATTR_... */
    int32_t bPositionAsBlackRegion; /* "OSDWholeAttr"."PositionAsBlackRegion": the text stands in the bar */
    int32_t bNewLine;               /* "OSDWholeAttr"."NewLine" */
    int32_t bLoneVehicle;           /* "OSDWholeAttr"."LoneVehicle" */
    CFG_POINT stuPosition;          /* "OSDWholeAttr"."Position" */
    int32_t nOSDContentScheme;      /* "OSDContentScheme": CFG_OSD_CONTENT_... */
    int32_t nRedLightTimeDisplay;   /* "RedLightTimeDisplay": CFG_RED_LIGHT_... */
    int32_t nElementNum;            /* entries of stuElements in use */
    CFG_OSD_ELEMENT stuElements[ORRERY_SNAP_OSD_ELEMENTS]; /* "OSDCustomizeSort"."Element" */
    char szOSDOrder[256];                                  /* "OSDOrder" */
    char szOSDCustom[256];                                 /* "OSDCustom" */
    char szGeneral[256];                                   /* "General" */
} CFG_TRAFFIC_OSD_INFO;

/* "TrafficSnapshot": how a lane's pictures are taken; also an element of "TrafficSnapshotNew". stuValidUntilTime keeps
 * the caller's values unless it is read; all else is cleared. "BreakingSnapTimes", "Radar" and "Detector" are objects,
 * or absent, and "Detector" may be a list: another type gives 0. "result" is not looked at. The text may fill its
 * buffer to the last byte, where the terminator takes the place of its newline. */
typedef struct CFG_TRAFFICSNAPSHOT_INFO {
    char szDeviceAddress[256];                             /* "DeviceAddress": of which 384 bytes are read */
    int32_t nVideoTitleMask;                               /* "VideoTitleMask": what is printed */
    int32_t nRedLightMargin;                               /* "RedLightMargin": seconds */
    float fLongVehicleLengthLevel;                         /* "LongVehicleLengthLevel": metres, as those below */
    float fLargeVehicleLengthLevel[2];                     /* "LargeVehicleLengthLevel": least and greatest */
    float fMediumVehicleLengthLevel[2];                    /* "MediumVehicleLengthLevel": likewise */
    float fSmallVehicleLengthLevel[2];                     /* "SmallVehicleLengthLevel": likewise */
    float fMotoVehicleLengthLevel;                         /* "MotoVehicleLengthLevel" */
    CFG_BREAKING_SNAP_TIMES stuBreakingSnapTimes;          /* "BreakingSnapTimes" */
    int32_t nCarScheme;                                    /* "CarScheme" */
    int32_t nSigScheme;                                    /* "SigScheme" */
    int32_t nCarType;                                      /* "CarType" */
    int32_t nMaxSpeed;                                     /* "MaxSpeed": km/h */
    int32_t nFrameMode;                                    /* "FrameMode" */
    int32_t nAdaptiveSpeed[2];                             /* "AdaptiveSpeed": lowest and highest */
    CFG_EVENT_HANDLER_INFO stuEventHandler;                /* "EventHandler" */
    CFG_DETECTOR_INFO stuDetector;                         /* "Detector": of an object */
    int32_t nDetectorNum;                                  /* entries of stuDetectors in use */
    CFG_DETECTOR_INFO stuDetectors[ORRERY_SNAP_DETECTORS]; /* "Detector": of a list; written when bVersionFlag is set
                                                              and there are any, else stuDetector is */
    int32_t nVideoTitleMask1;                              /* "VideoTitleMask1" */
    int32_t nMergeVideoTitleMask;                          /* "MergeVideoTitleMask": of pictures put together */
    int32_t nMergeVideoTitleMask1;                         /* "MergeVideoTitleMask1" */
    int32_t nTriggerSource;                                /* "TriggerSource" */
    int32_t nSnapMode;                                     /* "SnapMode" */
    int32_t nWorkMode;                                     /* "WorkMode" */
    int32_t nCarThreShold;                                 /* "CarThreShold" */
    int32_t nSnapType;                                     /* "SnapType" */
    int32_t nCustomFrameInterval[3];                       /* "CustomFrameInterval": frames between the pictures */
    int32_t nKeepAlive;                                    /* "KeepAlive": seconds */
    CFG_TRAFFIC_OSD_INFO stuOSD;                           /* "OSD" */
    CFG_TRAFFIC_OSD_INFO stuMergeOSD;                      /* "MergeOSD": of pictures put together */
    CFG_SIZED_NET_TIME stuValidUntilTime;                  /* "ValidUntilTime": end of the calibration */
    CFG_RADAR_INFO stuRadar;                               /* "Radar" */
    char szRoadwayCode[128];                               /* "RoadwayCode" */
    uint32_t nVideoTitleMask2;                             /* "VideoTitleMask2" */
    uint32_t nMergeVideoTitleMask2;                        /* "MergeVideoTitleMask2" */
    int32_t nParkType;                                     /* "ParkType" */
    int32_t bVersionFlag; /* 1 after reading; on writing, whether "Detector" may be a list */
} CFG_TRAFFICSNAPSHOT_INFO;

/* "TrafficSnapshotNew": several of those, always a list. A buffer of exactly 16 bytes is a
 * CFG_TRAFFICSNAPSHOT_DESCRIPTOR instead, in both directions. "result" is not looked at. */
typedef struct CFG_TRAFFICSNAPSHOT_NEW_INFO {
    int32_t nCount; /* elements of the list, of which at most 8 are read and written */
    CFG_TRAFFICSNAPSHOT_INFO stuSnapshots[ORRERY_TRAFFIC_SNAPSHOTS]; /* the list's elements */
} CFG_TRAFFICSNAPSHOT_NEW_INFO;

/* "TrafficSnapshotNew" with a buffer of 16 bytes: the caller has the records elsewhere. Entries keep what the text does
 * not tell. Of an object the first entry alone is read, nReturned is still the number of its members. */
typedef struct CFG_TRAFFICSNAPSHOT_DESCRIPTOR {
    CFG_TRAFFICSNAPSHOT_INFO* pSnapshots; /* the list's elements: the caller's array; with null none moves */
    int32_t nMax;      /* room at pSnapshots, set before reading; on writing, how many entries are written */
    int32_t nReturned; /* the size of the table, at most nMax, also when pSnapshots is null */
} CFG_TRAFFICSNAPSHOT_DESCRIPTOR;

#ifdef __cplusplus
}
#endif

#endif
