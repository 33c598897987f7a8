/* Heat imaging: how a thermal picture is made, and what is measured in it.
 *
 * All commands of this header add to the reply length what they read, take a missing table as nothing to read, and
 * leave the record cleared where the table is of another type than told; none of these fails the call. */
#ifndef ORRERY_THERMOGRAPHY_H
#define ORRERY_THERMOGRAPHY_H

#include "orrery/types.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_THERMOGRAPHY_OPTIONS 16
#define ORRERY_THERMOGRAPHY_REGIONS 64
#define ORRERY_THERMOMETRY_RULES 512
#define ORRERY_THERMOMETRY_POINTS 64
#define ORRERY_THERMOMETRY_ALARMS 64
#define ORRERY_TEMPERATURE_STATISTICS 64

/* Of all the codes below: absent and unknown texts read as 0; 0 and codes without a text are written as "". */

/* False colours of a thermal picture ("Colorization"). */
enum {
    CFG_COLORIZATION_UNKNOWN = 0,
    CFG_COLORIZATION_WHITE_HOT = 1, /* "White Hot" */
    CFG_COLORIZATION_BLACK_HOT = 2, /* "Black Hot" */
    CFG_COLORIZATION_IRONBOW2 = 3,  /* "Ironbow2" */
    CFG_COLORIZATION_ICE_FIRE = 4,  /* "IceFire" */
    CFG_COLORIZATION_FUSION = 5,    /* "Fusion" */
    CFG_COLORIZATION_RAINBOW = 6,   /* "Rainbow" */
    CFG_COLORIZATION_GLOBOW = 7,    /* "Globow" */
    CFG_COLORIZATION_IRONBOW1 = 8,  /* "Ironbow1" */
    CFG_COLORIZATION_SEPIA = 9,     /* "Sepia" */
    CFG_COLORIZATION_COLOR1 = 10,   /* "Color1" */
    CFG_COLORIZATION_COLOR2 = 11,   /* "Color2" */
    CFG_COLORIZATION_RAIN = 12,     /* "Rain" */
    CFG_COLORIZATION_RED_HOT = 13,  /* "Red Hot" */
    CFG_COLORIZATION_GREEN_HOT = 14 /* "Green Hot" */
};

/* Part of the picture that the contrast is made for ("OptimizedRegion"."Type"). */
enum {
    CFG_OPTIMIZED_REGION_UNKNOWN = 0,
    CFG_OPTIMIZED_REGION_FULL_SCREEN = 1, /* "Full Screen" */
    CFG_OPTIMIZED_REGION_SKY = 2,         /* "Sky" */
    CFG_OPTIMIZED_REGION_GROUND = 3,      /* "Ground" */
    CFG_OPTIMIZED_REGION_HORIZONTAL = 4,  /* "Horizontal" */
    CFG_OPTIMIZED_REGION_CENTER_75 = 5,   /* "Center 75%" */
    CFG_OPTIMIZED_REGION_CENTER_50 = 6,   /* "Center 50%" */
    CFG_OPTIMIZED_REGION_CENTER_25 = 7,   /* "Center 25%" */
    CFG_OPTIMIZED_REGION_CUSTOM = 8       /* "Custom" */
};

/* Gain of the sensor ("Mode"). */
enum {
    CFG_THERMOGRAPHY_MODE_UNKNOWN = 0,
    CFG_THERMOGRAPHY_MODE_HIGH_TEMPERATURE = 1, /* "HighTemperature" */
    CFG_THERMOGRAPHY_MODE_LOW_TEMPERATURE = 2,  /* "LowTemperature" */
    CFG_THERMOGRAPHY_MODE_AUTO = 3              /* "Auto" */
};

/* What a temperature is taken of ("Type"). */
enum {
    CFG_METER_UNKNOWN = 0,
    CFG_METER_SPOT = 1, /* "Spot" */
    CFG_METER_LINE = 2, /* "Line" */
    CFG_METER_AREA = 3  /* "Area" */
};

/* Form of a measured area ("AreaSubType"). */
enum {
    CFG_METER_AREA_UNKNOWN = 0,
    CFG_METER_AREA_RECT = 1,    /* "Rect" */
    CFG_METER_AREA_ELLIPSE = 2, /* "Ellipse" */
    CFG_METER_AREA_POLYGON = 3  /* "Polygon" */
};

/* Figure of the measured points that an alarm watches ("Result"). */
enum {
    CFG_METER_RESULT_UNKNOWN = 0,
    CFG_METER_RESULT_VALUE = 1, /* "Value": of a spot */
    CFG_METER_RESULT_MAX = 2,   /* "Max" */
    CFG_METER_RESULT_MIN = 3,   /* "Min" */
    CFG_METER_RESULT_AVER = 4,  /* "Aver": mean */
    CFG_METER_RESULT_STD = 5,   /* "Std": standard deviation */
    CFG_METER_RESULT_MID = 6,   /* "Mid": median */
    CFG_METER_RESULT_ISO = 7,   /* "ISO": isotherm */
    CFG_METER_RESULT_DIFF = 8,  /* "Diff": difference */
    CFG_METER_RESULT_SLOPE = 9  /* "Slope" */
};

/* How the figure stands to the threshold ("AlarmCondition"). */
enum {
    CFG_METER_ALARM_UNKNOWN = 0,
    CFG_METER_ALARM_BELOW = 1, /* "Below" */
    CFG_METER_ALARM_MATCH = 2, /* "Match" */
    CFG_METER_ALARM_ABOVE = 3  /* "Above" */
};

/* "TemperatureUnit". */
enum {
    CFG_TEMPERATURE_UNKNOWN = 0,
    CFG_TEMPERATURE_CENTIGRADE = 1, /* "Centigrade" */
    CFG_TEMPERATURE_FAHRENHEIT = 2  /* "Fahrenheit" */
};

/* Part of the picture that the contrast is made for. */
typedef struct CFG_OPTIMIZED_REGION {
    uint32_t bEnable;                                 /* "Enable" */
    int32_t emType;                                   /* "Type": CFG_OPTIMIZED_REGION_... */
    int32_t nRegionCount;                             /* elements of "Regions" in stuRegions */
    CFG_RECT stuRegions[ORRERY_THERMOGRAPHY_REGIONS]; /* "Regions": of the type "Custom"; no key when there are none.
                                                        Other than four numbers read as zeros */
} CFG_OPTIMIZED_REGION;

/* When a sensor of the mode "Auto" changes its gain. */
typedef struct CFG_THERMOGRAPHY_AUTO {
    int32_t nLowToHigh; /* "LowToHigh": temperature at which it turns to high */
    int32_t nLHROI;     /* "LHROI": share of the picture that must reach it, percent */
    int32_t nHighToLow; /* "HighToLow": temperature at which it turns to low */
    int32_t nHLROI;     /* "HLROI": share of the picture that must reach it, percent */
} CFG_THERMOGRAPHY_AUTO;

/* How one thermal picture is made. */
typedef struct CFG_THERMOGRAPHY_OPTION {
    int32_t nBrightness;                     /* "Brightness": 0 to 100; INT32_MIN is unset: no key is written */
    int32_t nSharpness;                      /* "Sharpness": 0 to 100; INT32_MIN as nBrightness */
    int32_t nEZoom;                          /* "EZoom": digital zoom */
    int32_t nThermographyGamma;              /* "ThermographyGamma" */
    int32_t emColorization;                  /* "Colorization": CFG_COLORIZATION_... */
    int32_t nSmartOptimizer;                 /* "SmartOptimizer": 0 to 100 */
    CFG_OPTIMIZED_REGION stuOptimizedRegion; /* "OptimizedRegion" */
    int32_t nAgc;                            /* "Agc": automatic gain control, 0 to 255 */
    int32_t nAgcMaxGain;                     /* "AgcMaxGain": 0 to 255 */
    int32_t nAgcPlateau;                     /* "AgcPlateau": 0 to 100 */
    int32_t emMode;                          /* "Mode": CFG_THERMOGRAPHY_MODE_... */
    CFG_THERMOGRAPHY_AUTO stuAuto;           /* "Auto": of the mode "Auto" */
} CFG_THERMOGRAPHY_OPTION;

/* "ThermographyOptions": a record holds the pictures of one channel, in the text an array; several channels are an
 * array of arrays. */
typedef struct CFG_THERMOGRAPHY_INFO {
    int32_t nCount;                                                  /* elements of stuOptions in use, at most 16 */
    CFG_THERMOGRAPHY_OPTION stuOptions[ORRERY_THERMOGRAPHY_OPTIONS]; /* the record itself, a list */
} CFG_THERMOGRAPHY_INFO;

/* A point of a measured region. */
typedef struct CFG_METER_POINT {
    uint32_t nX; /* 0 to 8191, from the left */
    uint32_t nY; /* 0 to 8191, from the top */
} CFG_METER_POINT;

/* An alarm upon a measured temperature. */
typedef struct CFG_THERMOMETRY_ALARM {
    int32_t nId;              /* "Id" */
    int32_t bEnable;          /* "Enable" */
    int32_t emResult;         /* "Result": CFG_METER_RESULT_... */
    int32_t emAlarmCondition; /* "AlarmCondition": CFG_METER_ALARM_... */
    float fThreshold;         /* "Threshold": temperature */
    float fHysteresis;        /* "Hysteresis": how far it must fall back */
    int32_t nDuration;        /* "Duration": seconds that it must last */
} CFG_THERMOMETRY_ALARM;

/* What a region measures by, where it is not the whole picture's. */
typedef struct CFG_THERMOMETRY_LOCAL {
    int32_t bEnable;         /* "Enable" */
    float fObjectEmissivity; /* "ObjectEmissivity": 0 to 1 */
    int32_t nObjectDistance; /* "ObjectDistance" */
    int32_t nReflectedTemp;  /* "ReflectedTemp" */
} CFG_THERMOMETRY_LOCAL;

/* A spot, line or area whose temperature is measured. */
typedef struct CFG_THERMOMETRY_RULE {
    int32_t bEnable;                                           /* "Enable" */
    int32_t nPresetId;                                         /* "PresetId": position of the camera */
    int32_t nRuleId;                                           /* "RuleId" */
    char szName[128];                                          /* "Name" */
    int32_t emMeterType;                                       /* "Type": CFG_METER_... */
    int32_t nCoordinates;                                      /* points of stuCoordinates in use */
    CFG_METER_POINT stuCoordinates[ORRERY_THERMOMETRY_POINTS]; /* "MeterRegion"."Coordinates": no key when there are
                                                                 none. Other than two numbers read as zeros */
    int32_t nSamplePeriod;                                     /* "T": seconds between two measurements */
    int32_t nAlarmCount;                                       /* elements of stuAlarm in use */
    CFG_THERMOMETRY_ALARM stuAlarm[ORRERY_THERMOMETRY_ALARMS]; /* "AlarmSetting": no key when there are none */
    CFG_THERMOMETRY_LOCAL stuLocal;                            /* "LocalParameters" */
    int32_t emAreaSubType;                                     /* "AreaSubType": CFG_METER_AREA_... */
} CFG_THERMOMETRY_RULE;

/* "ThermometryRule": a record holds the rules of one channel, in the text an array; several channels are an array of
 * arrays. */
typedef struct CFG_THERMOMETRY_RULE_INFO {
    int32_t nCount; /* rules of the device, also when there are more than are read; at most 512 are written */
    CFG_THERMOMETRY_RULE stuRules[ORRERY_THERMOMETRY_RULES]; /* the record itself, a list */
} CFG_THERMOMETRY_RULE_INFO;

/* A place whose temperature is recorded. */
typedef struct CFG_TEMPERATURE_STATISTICS {
    int32_t bEnable;  /* "Enable" */
    char szName[128]; /* "Name" */
    int32_t emType;   /* "Type": CFG_METER_... */
    int32_t nPeriod;  /* "Period": minutes between two records */
} CFG_TEMPERATURE_STATISTICS;

/* "TemperatureStatistics": a record holds the places of one channel, in the text an array; several channels are an
 * array of arrays. Devices report fewer places than the record has room for. */
typedef struct CFG_TEMPERATURE_STATISTICS_INFO {
    int32_t nCount; /* places of the device, also when there are more than are read; at most 64 are written */
    CFG_TEMPERATURE_STATISTICS stuStatistics[ORRERY_TEMPERATURE_STATISTICS]; /* the record itself, a list */
} CFG_TEMPERATURE_STATISTICS_INFO;

/* Marking of the pixels of one range of temperatures. */
typedef struct CFG_ISOTHERM {
    int32_t bEnable;          /* "Enable" */
    int32_t bColorBarDisplay; /* "ColorBarDisplay": the scale of colours is shown */
    int32_t nMaxLimitTemp;    /* "MaxLimitTemp": upper end */
    int32_t nMediumTemp;      /* "MediumTemp": middle */
    int32_t nMinLimitTemp;    /* "MinLimitTemp": lower end */
    int32_t nSaturationTemp;  /* "SaturationTemp": from here on one colour */
} CFG_ISOTHERM;

/* "HeatImagingThermometry": what the whole picture is measured by. */
typedef struct CFG_HEAT_IMAGING_THERMOMETRY_INFO {
    CFG_ISOTHERM stuIsotherm;      /* "Isotherm" */
    CFG_RECT stuRect;              /* "Rect": where it is measured; other than four numbers read as zeros */
    int32_t bHotSpotFollow;        /* "HotSpotFollow": the hottest point is followed */
    int32_t bTemperEnable;         /* "TemperEnable": temperatures are measured */
    CFG_COLOR stuHighCTMakerColor; /* "HighCTMakerColor": of the mark at the hottest point */
    CFG_COLOR stuLowCTMakerColor;  /* "LowCTMakerColor": of the mark at the coldest point */
    float fAtmosphericTemperature; /* "AtmosphericTemperature" */
    int32_t nObjectDistance;       /* "ObjectDistance" */
    float fObjectEmissivity;       /* "ObjectEmissivity": 0 to 1 */
    float fReflectedTemperature;   /* "ReflectedTemperature" */
    int32_t nRelativeHumidity;     /* "RelativeHumidity": percent */
    int32_t emTemperatureUnit;     /* "TemperatureUnit": CFG_TEMPERATURE_... */
} CFG_HEAT_IMAGING_THERMOMETRY_INFO;

#ifdef __cplusplus
}
#endif

#endif
