/* The camera's sensor: "VideoInOptions", one large record with the settings of normal, night and snapshot use, and the
 * names that it shares with the commands of video_input_topics.h.
 *
 * Plain numbers whose codes are not told here are the camera's own and pass through unchanged. */
#ifndef ORRERY_VIDEO_INPUT_H
#define ORRERY_VIDEO_INPUT_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* What the video output carries ("SignalFormat"). Names are read with case folded. */
typedef enum CFG_SIGNAL_FORMAT {
    CFG_SIGNAL_INSIDE =
        0, /* "Inside": made in the camera; read from every other name too, written for every other code */
    CFG_SIGNAL_BT656 = 1, /* "BT656" */
    CFG_SIGNAL_720P = 2,  /* "720p" */
    CFG_SIGNAL_1080P = 3, /* "1080p" */
    CFG_SIGNAL_1080I = 4, /* "1080i" */
    CFG_SIGNAL_1080SF = 5 /* "1080sF" */
} CFG_SIGNAL_FORMAT;

/* White balance ("WhiteBalance"). Names are read with case folded. */
typedef enum CFG_WHITE_BALANCE {
    CFG_WHITE_BALANCE_DISABLE = 0,      /* "Disable"; read from every other name too, written for every other code */
    CFG_WHITE_BALANCE_AUTO = 1,         /* "Auto" */
    CFG_WHITE_BALANCE_CUSTOM = 2,       /* "Custom" */
    CFG_WHITE_BALANCE_SUNNY = 3,        /* "Sunny" */
    CFG_WHITE_BALANCE_CLOUDY = 4,       /* "Cloudy" */
    CFG_WHITE_BALANCE_HOME = 5,         /* "Home" */
    CFG_WHITE_BALANCE_OFFICE = 6,       /* "Office" */
    CFG_WHITE_BALANCE_NIGHT = 7,        /* "Night" */
    CFG_WHITE_BALANCE_HIGH = 8,         /* "HighColorTemperature" */
    CFG_WHITE_BALANCE_LOW = 9,          /* "LowColorTemperature" */
    CFG_WHITE_BALANCE_AUTO_COLOR = 10,  /* "AutoColorTemperature" */
    CFG_WHITE_BALANCE_CUSTOM_COLOR = 11 /* "CustomColorTemperature" */
} CFG_WHITE_BALANCE;

/* How a fish-eye picture is flattened ("CalibrateMode", the names of "Position"). Names are read with case folded. */
typedef enum CFG_FISHEYE_CALIBRATE_MODE {
    CFG_FISHEYE_UNKNOWN = 0,         /* "", and every other name; written, like every other code, as "" */
    CFG_FISHEYE_ORIGINAL = 1,        /* "Original": the round picture */
    CFG_FISHEYE_CONFIG = 2,          /* "Config" */
    CFG_FISHEYE_PANORAMA = 3,        /* "Panorama" */
    CFG_FISHEYE_DOUBLE_PANORAMA = 4, /* "DoublePanorama" */
    CFG_FISHEYE_ORIGINAL_PLUS_3 = 5, /* "OriginalPlusThreeEPtzRegion" */
    CFG_FISHEYE_SINGLE = 6,          /* "Single" */
    CFG_FISHEYE_FOUR = 7,            /* "FourEPtzRegion" */
    CFG_FISHEYE_NORMAL = 8           /* "Normal" */
} CFG_FISHEYE_CALIBRATE_MODE;

/* ---- "VideoInOptions" ----------------------------------------------------------------------------------------------
 * What is absent is 0, false or the first name. Numbers of one byte are the low byte of the number in the text. */

/* "NightOptions": what is different at night. */
typedef struct CFG_VIDEOIN_NIGHT_OPTIONS {
    uint8_t bySwitchMode;          /* "SwitchMode": read here and into byNightSwitchMode, written from there alone */
    uint8_t byProfile;             /* "Profile" */
    uint8_t byBrightnessThreshold; /* "BrightnessThreshold": 0 to 100 */
    uint8_t bySunriseHour;         /* "SunriseHour" */
    uint8_t bySunriseMinute;       /* "SunriseMinute" */
    uint8_t bySunriseSecond;       /* "SunriseSecond" */
    uint8_t bySunsetHour;          /* "SunsetHour" */
    uint8_t bySunsetMinute;        /* "SunsetMinute" */
    uint8_t bySunsetSecond;        /* "SunsetSecond" */
    uint8_t byGainRed;             /* "GainRed": 0 to 100 */
    uint8_t byGainBlue;            /* "GainBlue": 0 to 100 */
    uint8_t byGainGreen;           /* "GainGreen": 0 to 100 */
    uint8_t byExposureSpeed;       /* "ExposureSpeed": 0 automatic, else the step */
    float fExposureValue1;         /* "ExposureValue1": shortest exposure, milliseconds */
    float fExposureValue2;         /* "ExposureValue2": longest exposure, milliseconds */
    uint8_t byWhiteBalance;        /* "WhiteBalance": CFG_WHITE_BALANCE */
    uint8_t byGain;                /* "Gain": 0 to 100 */
    uint8_t bGainAuto;             /* "GainAuto": 1 automatic gain */
    uint8_t bIrisAuto;             /* "IrisAuto": 1 automatic iris */
    float fExternalSyncPhase;      /* "ExternalSyncPhase": degrees */
    uint8_t byGainMin;             /* "GainMin" */
    uint8_t byGainMax;             /* "GainMax" */
    uint8_t byBacklight;           /* "Backlight" */
    uint8_t byAntiFlicker;         /* "AntiFlicker" */
    uint8_t byDayNightColor;       /* "DayNightColor" */
    uint8_t byExposureMode;        /* "ExposureMode" */
    uint8_t byRotate90;            /* "Rotate90" */
    uint8_t bMirror;               /* "Mirror": 1 left and right change places */
    uint8_t byWideDynamicRange;    /* "WideDynamicRange" */
    uint8_t byGlareInhibition;     /* "GlareInhibition" */
    int32_t nBacklightRegion[4];   /* "BacklightRegion": left, top, right, bottom; kept from at least four numbers */
    uint8_t byFocusMode;           /* "FocusMode" */
    uint8_t bFlip;                 /* "Flip": 1 upside down */
} CFG_VIDEOIN_NIGHT_OPTIONS;

/* "NormalOptions": what is different in normal use. */
typedef struct CFG_VIDEOIN_NORMAL_OPTIONS {
    uint8_t byGainRed;           /* "GainRed": 0 to 100 */
    uint8_t byGainBlue;          /* "GainBlue": 0 to 100 */
    uint8_t byGainGreen;         /* "GainGreen": 0 to 100 */
    uint8_t byExposureSpeed;     /* "ExposureSpeed": 0 automatic, else the step */
    float fExposureValue1;       /* "ExposureValue1": shortest exposure, milliseconds */
    float fExposureValue2;       /* "ExposureValue2": longest exposure, milliseconds */
    uint8_t byWhiteBalance;      /* "WhiteBalance": CFG_WHITE_BALANCE */
    uint8_t byGain;              /* "Gain": 0 to 100 */
    uint8_t bGainAuto;           /* "GainAuto": 1 automatic gain */
    uint8_t bIrisAuto;           /* "IrisAuto": 1 automatic iris */
    float fExternalSyncPhase;    /* "ExternalSyncPhase": degrees; written, never read */
    uint8_t byGainMin;           /* "GainMin" */
    uint8_t byGainMax;           /* "GainMax" */
    uint8_t byBacklight;         /* "Backlight" */
    uint8_t byAntiFlicker;       /* "AntiFlicker" */
    uint8_t byDayNightColor;     /* "DayNightColor" */
    uint8_t byExposureMode;      /* "ExposureMode" */
    uint8_t byRotate90;          /* "Rotate90" */
    uint8_t bMirror;             /* "Mirror": 1 left and right change places */
    uint8_t byWideDynamicRange;  /* "WideDynamicRange" */
    uint8_t byGlareInhibition;   /* "GlareInhibition" */
    int32_t nBacklightRegion[4]; /* "BacklightRegion": left, top, right, bottom; kept from at least four numbers */
    uint8_t byFocusMode;         /* "FocusMode" */
    uint8_t bFlip;               /* "Flip": 1 upside down */
} CFG_VIDEOIN_NORMAL_OPTIONS;

/* "FlashControl": the camera's flash. */
typedef struct CFG_VIDEOIN_FLASH_OPTIONS {
    uint8_t byMode;              /* "Mode": 0 off, 1 on, 2 automatic; with any other the flash is not written */
    uint8_t byValue;             /* "Value": step of the flash's length */
    uint8_t byPole;              /* "Pole": 0 low, 1 high, 2 rising, 3 falling level fires */
    uint8_t byPreValue;          /* "PreValue": step of the brightness ahead of the flash */
    uint8_t byDutyCycle;         /* "DutyCycle": percent */
    uint8_t byFrequencyMultiple; /* "FrequencyMultiple" */
} CFG_VIDEOIN_FLASH_OPTIONS;

/* "Snapshot": what is different for pictures. */
typedef struct CFG_VIDEOIN_SNAPSHOT_OPTIONS {
    uint8_t byGainRed;               /* "GainRed": 0 to 100 */
    uint8_t byGainBlue;              /* "GainBlue": 0 to 100 */
    uint8_t byGainGreen;             /* "GainGreen": 0 to 100 */
    uint8_t byExposureSpeed;         /* "ExposureSpeed": 0 automatic, else the step */
    float fExposureValue1;           /* "ExposureValue1": shortest exposure, milliseconds */
    float fExposureValue2;           /* "ExposureValue2": longest exposure, milliseconds */
    uint8_t byWhiteBalance;          /* "WhiteBalance": CFG_WHITE_BALANCE */
    uint8_t byColorTemperatureLevel; /* "ColorTemperatureLevel" */
    uint8_t bGainAuto;               /* "GainAuto": 1 automatic gain */
    uint8_t byGain;                  /* "Gain": 0 to 100 */
} CFG_VIDEOIN_SNAPSHOT_OPTIONS;

/* "FishEye" of the options. */
typedef struct CFG_VIDEOIN_FISHEYE_OPTIONS {
    int32_t nCenterX;        /* "Center": its first number; both are read from a list and written as one */
    int32_t nCenterY;        /* its second number */
    uint32_t nRadius;        /* "Radius": of the picture's circle */
    float fDirection;        /* "Direction": degrees that the picture is turned by */
    uint8_t byPlaceHolder;   /* "PlaceHolder": how the camera hangs, 1 ceiling, 2 wall, 3 floor */
    uint8_t byCalibrateMode; /* "CalibrateMode": CFG_FISHEYE_CALIBRATE_MODE */
} CFG_VIDEOIN_FISHEYE_OPTIONS;

/* "VideoInOptions": the sensor of one camera, an object or a list of them. A call that the device refused is read all
 * the same. Text that is no JSON and a missing table succeed, with the buffer cleared and the length not set.
 *
 * A size of exactly one record writes a bare object, any other a list. A text of exactly the capacity stands without a
 * terminator. */
typedef struct CFG_VIDEOIN_OPTIONS {
    uint8_t byBacklight;             /* "Backlight" */
    uint8_t byDayNightColor;         /* "DayNightColor" */
    uint8_t byWhiteBalance;          /* "WhiteBalance": CFG_WHITE_BALANCE */
    uint8_t byColorTemperatureLevel; /* "ColorTemperatureLevel" */
    uint8_t bMirror;                 /* "Mirror": 1 left and right change places */
    uint8_t bFlip;                   /* "Flip": 1 upside down */
    uint8_t bIrisAuto;               /* "IrisAuto": 1 automatic iris */
    uint8_t bInfraRed;               /* "InfraRed": 1 the infrared cut filter follows the light */
    uint8_t byGainRed;               /* "GainRed": 0 to 100 */
    uint8_t byGainBlue;              /* "GainBlue": 0 to 100 */
    uint8_t byGainGreen;             /* "GainGreen": 0 to 100 */
    uint8_t byExposureSpeed;         /* "ExposureSpeed": 0 automatic, else the step */
    float fExposureValue1;           /* "ExposureValue1": shortest exposure, milliseconds */
    float fExposureValue2;           /* "ExposureValue2": longest exposure, milliseconds */
    uint8_t bGainAuto;               /* "GainAuto": 1 automatic gain */
    uint8_t byGain;                  /* "Gain": 0 to 100 */
    uint8_t bySignalFormat;          /* "SignalFormat": CFG_SIGNAL_FORMAT */
    uint8_t byRotate90;              /* "Rotate90": 0 none, 1 clockwise, 2 the other way */
    float fExternalSyncPhase;        /* "ExternalSyncPhase": degrees */
    uint8_t byExternalSync;          /* "ExternalSync": 0 from within, 1 from outside */
    uint8_t byNightSwitchMode;       /* "NightOptions"."SwitchMode": when the night begins; this one is written */
    uint8_t byDoubleExposure;        /* "DoubleExposure": 0 none, 1 at full rate, 2 at half rate */
    uint8_t byWideDynamicRange;      /* "WideDynamicRange": 0 off, else its strength */
    uint8_t byReserved1[4];
    CFG_VIDEOIN_NIGHT_OPTIONS stuNight; /* "NightOptions" */
    uint8_t byReserved2[16];
    CFG_VIDEOIN_FLASH_OPTIONS stuFlash; /* "FlashControl": written while its byMode is 0, 1 or 2 */
    uint8_t byReserved3[18];
    CFG_VIDEOIN_SNAPSHOT_OPTIONS stuSnapshot; /* "Snapshot" */
    uint8_t byReserved4[16];
    CFG_VIDEOIN_FISHEYE_OPTIONS stuFishEye; /* "FishEye" */
    uint8_t byReserved5[16];
    uint8_t byFocusMode;                  /* "FocusMode" */
    uint8_t byGainMin;                    /* "GainMin" */
    uint8_t byGainMax;                    /* "GainMax" */
    uint8_t byAntiFlicker;                /* "AntiFlicker" */
    uint8_t byExposureMode;               /* "ExposureMode" */
    uint8_t byGlareInhibition;            /* "GlareInhibition" */
    int32_t nBacklightRegion[4];          /* "BacklightRegion": left, top, right, bottom; from at least four numbers */
    CFG_VIDEOIN_NORMAL_OPTIONS stuNormal; /* "NormalOptions" */
    uint8_t byReserved6[64];
} CFG_VIDEOIN_OPTIONS;

#ifdef __cplusplus
}
#endif

#endif
