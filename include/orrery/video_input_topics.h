/* Sensor settings by topic: exposure, backlight, fog, metering, day and night, fish-eye; and what a camera's sensor can
 * do. */
#ifndef ORRERY_VIDEO_INPUT_TOPICS_H
#define ORRERY_VIDEO_INPUT_TOPICS_H

#include "orrery/types.h"
#include "orrery/video_input.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- "VideoInExposure" ---------------------------------------------------------------------------------------------
 * Reading changes only what the text tells: keys that are absent leave the items as they were. */

/* One item of "VideoInExposure". */
typedef struct CFG_VIDEOIN_EXPOSURE_ITEM {
    uint32_t bSlowShutter;          /* "SlowShutter": true is written for exactly 1 */
    uint8_t byMode;                 /* "Mode" */
    uint8_t byAntiFlicker;          /* "AntiFlicker" */
    uint8_t byCompensation;         /* "Compensation": 0 to 100 */
    uint8_t byAutoGainMax;          /* "AutoGainMax" */
    uint8_t byGain;                 /* "Gain": 0 to 100 */
    uint8_t bySlowAutoExposure;     /* "SlowAutoExposure": 1 to 100, slower as it grows */
    int32_t nSpeed;                 /* "Speed": step of the exposure */
    uint8_t bySlowSpeed;            /* "SlowSpeed": step of the slow shutter */
    uint8_t byIris;                 /* "Iris" */
    uint8_t byBacklight;            /* "Backlight" */
    uint8_t byWideDynamicRange;     /* "WideDynamicRange" */
    uint8_t byWideDynamicRangeMode; /* "WideDynamicRangeMode" */
    uint8_t byGlareInhibition;      /* "GlareInhibition" */
    uint8_t byDoubleExposure;       /* "DoubleExposure" */
    int32_t nRecoveryTime;          /* "RecoveryTime": seconds until automatic exposure returns, 0 never */
    float fValue1;                  /* "Value1": shortest exposure, milliseconds */
    float fValue2;                  /* "Value2": longest exposure, milliseconds */
    int32_t nBacklightRegion[4];    /* "BacklightRegion": left, top, right, bottom; kept from at least four numbers */
    uint8_t byIrisMin;              /* "IrisMin" */
    uint8_t byIrisMax;              /* "IrisMax" */
    uint8_t byGainMin;              /* "GainMin" */
    uint8_t byGainMax;              /* "GainMax" */
} CFG_VIDEOIN_EXPOSURE_ITEM;

/* "VideoInExposure": exposure by day, by night and in normal use, in an array of the caller's. Both directions fail
 * without an array or room in it, writing also with no item or more than there is room for. A table that is missing or
 * no list succeeds and changes nothing. A call that the device refused is read all the same. A text of exactly the
 * capacity stands without a terminator. */
typedef struct CFG_VIDEOIN_EXPOSURE_INFO {
    uint32_t nMaxCount;                   /* input: room of pstuItems */
    uint32_t nReturnCount;                /* items read, at most nMaxCount; items to write */
    CFG_VIDEOIN_EXPOSURE_ITEM* pstuItems; /* input: the caller's array */
} CFG_VIDEOIN_EXPOSURE_INFO;

/* ---- "VideoInBacklight", "VideoInDefog" ----------------------------------------------------------------------------
 * A list of objects is the items of one record. A list of lists fills a record a list and tells a length of 0 all the
 * same. Any other value clears one record and succeeds; a missing table and an empty list succeed with the length not
 * set. One record is written as its list, several as a list of lists. A text of exactly the capacity stands without a
 * terminator. */

/* What is done against light from behind ("Mode"). Names are read with case folded. */
typedef enum CFG_BACKLIGHT_MODE {
    CFG_BACKLIGHT_UNKNOWN = 0,      /* "", and every other name; written, like every other code, as "" */
    CFG_BACKLIGHT_OFF = 1,          /* "Off" */
    CFG_BACKLIGHT_BACKLIGHT = 2,    /* "Backlight": compensation */
    CFG_BACKLIGHT_GLARE = 3,        /* "GlareInhibition" */
    CFG_BACKLIGHT_WIDE_DYNAMIC = 4, /* "WideDynamic" */
    CFG_BACKLIGHT_SSA = 5           /* "SSA": the camera adapts itself to the scene */
} CFG_BACKLIGHT_MODE;

/* Where backlight is compensated ("BacklightMode"). Names are read with case folded. */
typedef enum CFG_BACKLIGHT_AREA {
    CFG_BACKLIGHT_AREA_UNKNOWN = 0, /* "", and every other name; written, like every other code, as "" */
    CFG_BACKLIGHT_AREA_DEFAULT = 1, /* "Default" */
    CFG_BACKLIGHT_AREA_REGION = 2   /* "Region" */
} CFG_BACKLIGHT_AREA;

/* How strong a correction is ("IntensityMode"). Names are read with case folded. */
typedef enum CFG_INTENSITY_MODE {
    CFG_INTENSITY_UNKNOWN = 0, /* "", and every other name; written, like every other code, as "" */
    CFG_INTENSITY_DISABLE = 1, /* "Disable" */
    CFG_INTENSITY_AUTO = 2,    /* "AutoIntensity" */
    CFG_INTENSITY_MANUAL = 3   /* "ManualIntensity" */
} CFG_INTENSITY_MODE;

/* One item of "VideoInBacklight". Its mode settles which other keys are written. */
typedef struct CFG_BACKLIGHT_ITEM {
    int32_t emMode;            /* "Mode": CFG_BACKLIGHT_MODE; always written */
    int32_t emBacklightMode;   /* "BacklightMode": CFG_BACKLIGHT_AREA; written for CFG_BACKLIGHT_BACKLIGHT */
    int32_t nRegion[4];        /* "BacklightRegion": left, top, right, bottom; written for a region of that mode */
    int32_t nWideDynamicRange; /* "WideDynamicRange": 1 to 100; written in the mode of that name */
    int32_t nGlareInhibition;  /* "GlareInhibition": 1 to 100; written in the mode of that name */
    int32_t emIntensityMode;   /* "IntensityMode": CFG_INTENSITY_MODE; written for CFG_BACKLIGHT_SSA */
    int32_t nIntensity;        /* "Intensity": 0 to 100; written for a manual intensity of that mode */
} CFG_BACKLIGHT_ITEM;

#define ORRERY_VIDEOIN_SETTINGS 3

/* "VideoInBacklight": by day, by night and in normal use. Of more lists than records the buffer fills what fits. All
 * three items are written. */
typedef struct CFG_VIDEOIN_BACKLIGHT_INFO {
    CFG_BACKLIGHT_ITEM stuItems[ORRERY_VIDEOIN_SETTINGS]; /* at most three are read */
} CFG_VIDEOIN_BACKLIGHT_INFO;

/* How fog is removed ("Mode"). Names are read with case folded. */
typedef enum CFG_DEFOG_MODE {
    CFG_DEFOG_UNKNOWN = 0, /* "", and every other name; written, like every other code, as "" */
    CFG_DEFOG_OFF = 1,     /* "Off" */
    CFG_DEFOG_AUTO = 2,    /* "Auto" */
    CFG_DEFOG_MANUAL = 3   /* "Manul" (the devices' spelling) */
} CFG_DEFOG_MODE;

/* How the light's strength is found ("LightIntensityMode"). Names are read with case folded. */
typedef enum CFG_LIGHT_INTENSITY_MODE {
    CFG_LIGHT_INTENSITY_UNKNOWN = 0, /* "", and every other name; written, like every other code, as "" */
    CFG_LIGHT_INTENSITY_AUTO = 1,    /* "Auto" */
    CFG_LIGHT_INTENSITY_MANUAL = 2   /* "Manul" (the devices' spelling) */
} CFG_LIGHT_INTENSITY_MODE;

/* One item of "VideoInDefog". All five keys are written. */
typedef struct CFG_DEFOG_ITEM {
    int32_t emMode;               /* "Mode": CFG_DEFOG_MODE */
    int32_t nIntensity;           /* "Intensity": 0 to 100 */
    int32_t emLightIntensityMode; /* "LightIntensityMode": CFG_LIGHT_INTENSITY_MODE */
    int32_t nLightIntensityLevel; /* "LightIntensityLevel": 0 to 100 */
    int32_t bCamDefogEnable;      /* "CamDefogEnable": 1 the optical way */
} CFG_DEFOG_ITEM;

/* "VideoInDefog": by day, by night and in normal use. More lists than records fit the buffer fail the call. */
typedef struct CFG_VIDEOIN_DEFOG_INFO {
    uint32_t nCount; /* items in use, at most three; none is written when, taken as signed, it is 0 or below */
    CFG_DEFOG_ITEM stuItems[ORRERY_VIDEOIN_SETTINGS]; /* at most three are read */
} CFG_VIDEOIN_DEFOG_INFO;

/* ---- "VideoInMetering" ---- */

/* What is measured ("Mode"). */
typedef enum CFG_METERING_MODE {
    CFG_METERING_AVERAGE = 0, /* "Average", read with case folded: the whole picture */
    CFG_METERING_PARTIAL = 1  /* "Partial": the regions; read from every other name, written for every code but 0 */
} CFG_METERING_MODE;

#define ORRERY_METERING_REGIONS 8
#define ORRERY_METERING_ITEMS 256

/* One entry of "VideoInMetering". */
typedef struct CFG_METERING_ITEM {
    uint8_t abRegions;                            /* 1 when a region was read; regions are written only when set */
    uint8_t abMode;                               /* 1 when a mode was read; the mode is written only when set */
    int32_t nRegionCount;                         /* regions in use, at most 8 */
    int32_t nRegions[ORRERY_METERING_REGIONS][4]; /* "Regions": left, top, right, bottom; read as unsigned, written as
                                                     signed numbers */
    uint8_t byMode;                               /* "Mode": CFG_METERING_MODE */
    uint8_t byReserved[31];
} CFG_METERING_ITEM;

/* "VideoInMetering": where the light is measured. A missing table, or one that is no list, gives no item. A call that
 * the device refused is read all the same. A text of exactly the capacity stands without a terminator. */
typedef struct CFG_VIDEOIN_METERING_INFO {
    int32_t nCount;                                    /* items in use, at most 256 */
    CFG_METERING_ITEM stuItems[ORRERY_METERING_ITEMS]; /* the list itself */
} CFG_VIDEOIN_METERING_INFO;

/* ---- "VideoInDayNight" ---- */

/* What switches the filter ("Type"). Names are read with case folded. */
typedef enum CFG_DAYNIGHT_TYPE {
    CFG_DAYNIGHT_TYPE_UNKNOWN = 0,  /* "", and every other name; written, like every other code, as "" */
    CFG_DAYNIGHT_TYPE_ELECTRON = 1, /* "Electron" */
    CFG_DAYNIGHT_TYPE_MECHANISM = 2 /* "Mechanism" */
} CFG_DAYNIGHT_TYPE;

/* Colour or black and white ("Mode"). Names are read with case folded. */
typedef enum CFG_DAYNIGHT_MODE {
    CFG_DAYNIGHT_UNKNOWN = 0,       /* "", and every other name; written, like every other code, as "" */
    CFG_DAYNIGHT_COLOR = 1,         /* "Color" */
    CFG_DAYNIGHT_BRIGHTNESS = 2,    /* "Brightness": by the light in the picture */
    CFG_DAYNIGHT_BLACK_WHITE = 3,   /* "BlackWhite" */
    CFG_DAYNIGHT_PHOTORESISTOR = 4, /* "Photoresistor" */
    CFG_DAYNIGHT_GAIN = 5,          /* "Gain" */
    CFG_DAYNIGHT_ALARM_INPUT = 6,   /* "AlarmInput" */
    CFG_DAYNIGHT_IO = 7             /* "IO" */
} CFG_DAYNIGHT_MODE;

/* One item of "VideoInDayNight". All four keys are written. */
typedef struct CFG_DAYNIGHT_ITEM {
    int32_t emType;       /* "Type": CFG_DAYNIGHT_TYPE */
    int32_t emMode;       /* "Mode": CFG_DAYNIGHT_MODE */
    int32_t nSensitivity; /* "Sensitivity": 1 to 3 */
    int32_t nDelay;       /* "Delay": seconds */
} CFG_DAYNIGHT_ITEM;

/* "VideoInDayNight": by day, by night and in normal use, a list of exactly three; or a list of such lists, one for each
 * channel. A list of any other length leaves its record clear, succeeds and counts. The reply's length is added to what
 * returnedLength holds. */
typedef struct CFG_VIDEOIN_DAYNIGHT_INFO {
    CFG_DAYNIGHT_ITEM stuItems[ORRERY_VIDEOIN_SETTINGS]; /* the list itself */
} CFG_VIDEOIN_DAYNIGHT_INFO;

/* ---- "FishEye" ---- */

#define ORRERY_FISHEYE_MODES 8
#define ORRERY_FISHEYE_WINDOWS 8

/* A window of a flattened picture. */
typedef struct CFG_FISHEYE_WINDOW {
    int32_t nWinId;           /* "WinID" */
    int32_t nX;               /* "X": of its middle, 0 to 8192 */
    int32_t nY;               /* "Y": of its middle, 0 to 8192 */
    int32_t nHorizontalAngle; /* "HorizontalAngle": degrees */
    int32_t nVerticalAngle;   /* "VerticalAngle": degrees */
} CFG_FISHEYE_WINDOW;

/* The windows of a mode of "FishEye", whose name is the key of their list. */
typedef struct CFG_FISHEYE_MODE {
    uint32_t emMode; /* CFG_FISHEYE_CALIBRATE_MODE; of modes that write the same name a later one's windows stand */
    uint32_t nWindowCount; /* windows in use, at most 8; a mode without any is not written */
    CFG_FISHEYE_WINDOW stuWindows[ORRERY_FISHEYE_WINDOWS]; /* the list itself */
} CFG_FISHEYE_MODE;

/* "FishEye": how a fish-eye picture is cut up, an object or a list of them. A value of another type and a missing table
 * succeed with nothing read. The length of a reply is always that of one record, also when several are filled or none.
 * A call that the device refused is read all the same. One record is written as an object, several as a list. A text of
 * exactly the capacity stands without a terminator. */
typedef struct CFG_FISHEYE_INFO {
    uint32_t nModeCount;                             /* modes in use, at most 8 */
    CFG_FISHEYE_MODE stuModes[ORRERY_FISHEYE_MODES]; /* "Position": a member for each, in the order of their names */
} CFG_FISHEYE_INFO;

/* ---- Capabilities ---- */

/* "devVideoInput.getCaps": read only. A reply without "caps" succeeds with a record of zeros, and so does one without
 * "result". */
typedef struct CFG_VIDEOIN_CAPS {
    int32_t nMeteringRegionCount; /* "MeteringRegionCount": most regions */
    int32_t nFishEye;             /* "FishEye" */
    int32_t nElectricFocus;       /* "ElectricFocus" */
    int32_t nExposureMode;        /* "ExposureMode" */
    int32_t nWideDynamicRange;    /* "WideDynamicRange" */
    int32_t nGlareInhibition;     /* "GlareInhibition" */
} CFG_VIDEOIN_CAPS;

/* "devVideoInput.getCapsEx": read only. A reply without "caps" succeeds with a record of zeros. */
typedef struct CFG_VIDEOIN_CAPS_EX {
    uint32_t bDefog;              /* "Defog"."Support" */
    uint32_t bAbfFunction;        /* "ABFFunction"."Support": the back focus adjusts itself */
    uint32_t bImageStabilization; /* "ImageStabilization"."Support" */
    uint32_t bKillShutLine;       /* "KillShutLine"."Support": lines of fast shutters can be removed */
    uint32_t nMaxKillShutLine;    /* "KillShutLine"."MaxKillShutLine": read also without "Support" */
    uint32_t nMinKillShutLine;    /* "KillShutLine"."MinKillShutLine": read also without "Support" */
    uint32_t bVideoInColor;       /* "VideoInColor"."Support" */
    uint32_t bBrightness;      /* "VideoInColor"."Brightness": 0 unless "Support" is true itself; so the next three */
    uint32_t bContrast;        /* "VideoInColor"."Contrast" */
    uint32_t bSaturation;      /* "VideoInColor"."Saturation" */
    uint32_t bHue;             /* "VideoInColor"."Hue" */
    uint32_t bVideoInFocus;    /* "VideoInFocus"."Support" */
    uint32_t bLightingControl; /* "LightingControl"."Support" */
    uint32_t dwReserved;
} CFG_VIDEOIN_CAPS_EX;

/* What the lens does ("Status"). */
typedef enum CFG_FOCUS_STATE {
    CFG_FOCUS_NORMAL = 0,   /* "Normal", and every other name */
    CFG_FOCUS_AUTOFOCUS = 1 /* "Autofocus": it is focusing */
} CFG_FOCUS_STATE;

/* "devVideoInput.getFocusStatus": read only. A reply without "status" fails. */
typedef struct CFG_FOCUS_STATUS {
    int32_t nAutofocusPeak; /* "AutofocusPeak": sharpness */
    double dFocus;          /* "Focus": 0 to 1 */
    double dZoom;           /* "Zoom": 0 to 1 */
    int32_t emStatus;       /* "Status": CFG_FOCUS_STATE */
} CFG_FOCUS_STATUS;

#ifdef __cplusplus
}
#endif

#endif
