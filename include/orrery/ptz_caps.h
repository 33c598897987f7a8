/* What a pan-tilt-zoom head and its protocol can do. All are read only. */
#ifndef ORRERY_PTZ_CAPS_H
#define ORRERY_PTZ_CAPS_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Shapes of a privacy mask ("SupportType"). Names are read with case folded. */
typedef enum CFG_MASK_SHAPE {
    CFG_MASK_UNKNOWN = 0, /* "", and every other name */
    CFG_MASK_RECT = 1,    /* "Rect" */
    CFG_MASK_POLYGON = 2  /* "Polygon" */
} CFG_MASK_SHAPE;

/* Bits of dwFocusModeMask. */
enum {
    CFG_FOCUS_MODE_CAR = 1,    /* set when the first mode is not "Car" */
    CFG_FOCUS_MODE_PLATE = 2,  /* set when the first mode is not "Plate" */
    CFG_FOCUS_MODE_PEOPLE = 4, /* set when the first mode is not "People" */
    CFG_FOCUS_MODE_FACE = 8    /* set when the first mode is not "Face" */
};

#define ORRERY_PTZ_AUXS 32
#define ORRERY_PTZ_MASKS 8

/* "ptz.getCurrentProtocolCaps": the protocol that a head speaks now. A reply without "caps" succeeds with a record of
 * zeros. */
typedef struct CFG_PTZ_CAPS {
    uint32_t dwReserved1;
    uint32_t bPan;          /* "Pan" */
    uint32_t bTile;         /* "Tile": tilt */
    uint32_t bZoom;         /* "Zoom" */
    uint32_t bIris;         /* "Iris" */
    uint32_t bPreset;       /* "Preset" */
    uint32_t bRemovePreset; /* "RemovePreset" */
    uint32_t bTour;         /* "Tour" */
    uint32_t bRemoveTour;   /* "RemoveTour" */
    uint32_t bPattern;      /* "Pattern" */
    uint32_t bAutoPan;      /* "AutoPan" */
    uint32_t bAutoScan;     /* "AutoScan" */
    uint32_t bAux;          /* "Aux": auxiliary switches */
    uint32_t bAlarm;        /* "Alarm" */
    uint32_t dwReserved2;
    uint32_t bWiper;           /* "Wiper" */
    uint32_t bFlip;            /* "Flip" */
    uint32_t bMenu;            /* "Menu" */
    uint32_t bMoveRelatively;  /* "Move": 1 when the list has "Relatively", compared exactly; without the key all three
                                  are 1 */
    uint32_t bMoveAbsolutely;  /* the same for "Absolutely" */
    uint32_t bMoveDirectly;    /* the same for "Directly" */
    uint32_t bReset;           /* "Reset" */
    uint32_t bGetStatus;       /* "GetStatus" */
    uint32_t bSupportLimit;    /* "SupportLimit" */
    uint32_t bPtzDevice;       /* "PtzDevice" */
    uint32_t bViewRange;       /* "SupportViewRangeType": 1 when the list is not empty */
    uint16_t wCamAddrMin;      /* "CamAddrMin" */
    uint16_t wCamAddrMax;      /* "CamAddrMax" */
    uint16_t wMonAddrMin;      /* "MonAddrMin" */
    uint16_t wMonAddrMax;      /* "MonAddrMax" */
    uint16_t wPresetMin;       /* "PresetMin" */
    uint16_t wPresetMax;       /* "PresetMax" */
    uint16_t wTourMin;         /* "TourMin" */
    uint16_t wTourMax;         /* "TourMax" */
    uint16_t wPatternMin;      /* "PatternMin" */
    uint16_t wPatternMax;      /* "PatternMax" */
    uint16_t wTileSpeedMin;    /* "TileSpeedMin" */
    uint16_t wTileSpeedMax;    /* "TileSpeedMax" */
    uint16_t wPanSpeedMin;     /* "PanSpeedMin" */
    uint16_t wPanSpeedMax;     /* "PanSpeedMax" */
    uint16_t wAutoScanMin;     /* "AutoScanMin" */
    uint16_t wAutoScanMax;     /* "AutoScanMax" */
    uint16_t wAuxMin;          /* "AuxMin" */
    uint16_t wAuxMax;          /* "AuxMax" */
    uint32_t nInterval;        /* "Interval": milliseconds between two commands */
    uint32_t nType;            /* "Type": 0 a local head, 1 one on the network */
    uint32_t nAlarmLen;        /* "AlarmLen" */
    uint32_t nNearLightNumber; /* "NearLightNumber": groups of near lamps */
    uint32_t nFarLightNumber;  /* "FarLightNumber": groups of far lamps */
    uint32_t dwViewRangeMask;  /* 1 when the first of "SupportViewRangeType" is not "ElectronicCompass" */
    uint32_t dwFocusModeMask;  /* "SupportFocusMode": CFG_FOCUS_MODE_..., all by the first of the list */
    char szName[32];           /* "Name": of the protocol */
    char szAuxs[ORRERY_PTZ_AUXS][32]; /* "Auxs": names of auxiliary functions, up to the first null */
    int32_t nHorizontalAngle[2];      /* "PtzMotionRange"."HorizontalAngle": least and most, of exactly two numbers */
    int32_t nVerticalAngle[2];        /* "PtzMotionRange"."VerticalAngle": least and most, of exactly two numbers */
    uint32_t dwReserved3[10];
    uint32_t bSupportPresetTimeSection; /* "SupportPresetTimeSection" */
    uint32_t bFocus;                    /* "Focus" */
    uint32_t bAutoAreaScan;             /* "AutoAreaScan"."Support" */
    uint32_t nScanNum;                  /* "AutoAreaScan"."ScanNum" */
    uint32_t bPrivacyMasking;           /* "PrivacyMasking"."Support" */
    uint32_t bSetColorSupport;          /* "PrivacyMasking"."SetColorSupport" */
    uint32_t bSupportType;              /* 1 when "SupportType" was there */
    uint32_t nTypeCount;                /* shapes in use, at most 8 */
    int32_t emTypes[ORRERY_PTZ_MASKS];  /* "PrivacyMasking"."SupportType": CFG_MASK_SHAPE */
    uint32_t bSetMosaicSupport;         /* "PrivacyMasking"."SetMosaicSupport" */
    uint32_t bSetColorIndependent;      /* "PrivacyMasking"."SetColorIndependent" */
    uint32_t bSupportMosaicType;        /* 1 when "SupportMosaicType" was there */
    uint32_t nMosaicCount;              /* mosaics in use, at most 8 */
    int32_t nMosaics[ORRERY_PTZ_MASKS]; /* "PrivacyMasking"."SupportMosaicType": edges of a mosaic's squares, pixels */
    uint32_t bSdMeasureDistance; /* "SDMeasureDistance"."Support": 1 when only "SDMeasureDistance" itself is there */
    uint32_t bOsdEnable;         /* "SDMeasureDistance"."OsdEnable": 1 when only "SDMeasureDistance" itself is there */
    int32_t nDisplayDuration[2]; /* "SDMeasureDistance"."DisplayDurationRange": seconds, least and most */
    uint32_t bSupportPtzPatternOsd;     /* "SupportPtzPatternOSD" */
    uint32_t bSupportPtzRs485DetectOsd; /* "SupportPtzRS485DetectOSD" */
    uint32_t bSupportPtzCoordinates;    /* "SupportPTZCoordinates" */
    uint32_t bSupportPtzZoom;           /* "SupportPTZZoom" */
    uint32_t bDirectionDisplay;         /* "DirectionDisplay ", with the blank that devices put behind it */
} CFG_PTZ_CAPS;

#define ORRERY_PTZ_PROTOCOLS 32

/* "ptz.getProtocol": the protocols that a device knows. Taken only when "result" is true itself. A reply without "info"
 * succeeds with none. */
typedef struct CFG_PTZ_PROTOCOLS {
    uint32_t dwReserved;
    uint32_t nRsCount;                        /* protocols of serial lines in use, at most 32 */
    char szRs[ORRERY_PTZ_PROTOCOLS][32];      /* "Rs" */
    uint32_t nCoaxialCount;                   /* protocols of the video cable in use, at most 32 */
    char szCoaxial[ORRERY_PTZ_PROTOCOLS][32]; /* "Coaxial" */
} CFG_PTZ_PROTOCOLS;

/* "ptz.factory.instance": whether the device has made the object that was asked for. */
typedef struct CFG_PTZ_INSTANCE {
    uint32_t bInstance; /* 1 when the reply's "result", read as a number, is not 0; 0 also without it */
} CFG_PTZ_INSTANCE;

#ifdef __cplusplus
}
#endif

#endif
