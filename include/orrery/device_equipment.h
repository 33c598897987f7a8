/* Equipment that a device drives: air conditioners, lamps, loudspeakers and microphones. */
#ifndef ORRERY_DEVICE_EQUIPMENT_H
#define ORRERY_DEVICE_EQUIPMENT_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* State of an air conditioner ("State"). Of the three lists of an air conditioner a text that is in none gives -1, and
 * a code that is in none is not written; absent gives 0. */
enum {
    CFG_AIR_STATE_UNKNOWN = -1,
    CFG_AIR_STATE_OPEN = 0, /* "Open": on */
    CFG_AIR_STATE_CLOSE = 1 /* "Close": off */
};

/* What an air conditioner does ("Mode"). */
enum {
    CFG_AIR_MODE_UNKNOWN = -1,
    CFG_AIR_MODE_AUTO = 0, /* "Auto" */
    CFG_AIR_MODE_HOT = 1,  /* "Hot": heats */
    CFG_AIR_MODE_COLD = 2, /* "Cold": cools */
    CFG_AIR_MODE_WET = 3,  /* "Wet": takes moisture out */
    CFG_AIR_MODE_WIND = 4  /* "Wind": moves the air alone */
};

/* Strength of the fan ("WindMode"). */
enum {
    CFG_AIR_WIND_UNKNOWN = -1,
    CFG_AIR_WIND_STOP = 0,   /* "Stop" */
    CFG_AIR_WIND_AUTO = 1,   /* "Auto" */
    CFG_AIR_WIND_HIGH = 2,   /* "High" */
    CFG_AIR_WIND_MIDDLE = 3, /* "Middle" */
    CFG_AIR_WIND_LOW = 4     /* "Low" */
};

#define ORRERY_AIR_CONDITIONERS 16
#define ORRERY_AIR_ADDRESSES 16

/* An air conditioner. */
typedef struct CFG_AIR_CONDITIONER {
    char szDeviceID[48];                    /* "DeviceID" */
    char szName[64];                        /* "Name" */
    char szBrand[64];                       /* "Brand" */
    char szComm[512];                       /* "Comm": how it is reached, an object as JSON text in UTF-8. Empty when
                                               absent, no object, or longer. Written when it is the text of an object */
    int32_t nAddressNum;                    /* entries of nAddress in use */
    int32_t nAddress[ORRERY_AIR_ADDRESSES]; /* "Address": on its line; not written when there are none */
    int32_t emState;                        /* "State": CFG_AIR_STATE_... */
    int32_t nRange;                         /* "Range": temperature that is wanted, degrees Celsius */
    int32_t emMode;                         /* "Mode": CFG_AIR_MODE_... */
    int32_t emWindMode;                     /* "WindMode": CFG_AIR_WIND_... */
} CFG_AIR_CONDITIONER;

/* "AirCondition". The reply's table is a list; without entries it is written as null. */
typedef struct CFG_AIR_CONDITION_INFO {
    int32_t nCount;                                        /* entries of stuItems in use */
    CFG_AIR_CONDITIONER stuItems[ORRERY_AIR_CONDITIONERS]; /* the table's elements, one an air conditioner */
} CFG_AIR_CONDITION_INFO;

#define ORRERY_LAMPS 16

/* A lamp of a set. */
typedef struct CFG_LAMP {
    int32_t bEnable; /* "Enable" */
    int32_t nLight;  /* "Light": brightness, 0 to 100 */
    int32_t nAngle;  /* "Angle": of the beam, 0 to 100 */
} CFG_LAMP;

/* "Lighting": lamps of a camera, one record or a list, one a channel: an object is one record; other types and an empty
 * list are refused. One whole record is written bare, several as a list. Lists of lamps without an entry are not
 * written. */
typedef struct CFG_LIGHTING_INFO {
    int32_t bEnable;                     /* "Enable" */
    int32_t nLight;                      /* "Light": brightness, 0 to 100 */
    int32_t nAngle;                      /* "Angle": of the beam, 0 to 100 */
    int32_t nCorrection;                 /* "Correction": of the brightness along with the zoom, 0 to 4 */
    int32_t nSensitive;                  /* "Sensitive": to the light of the scene, 0 to 5 */
    char szMode[32];                     /* "Mode": "Manual", "ZoomPrio" and so on */
    int32_t nNearLightNum;               /* entries of stuNearLight in use */
    CFG_LAMP stuNearLight[ORRERY_LAMPS]; /* "NearLight": lamps for what is near */
    int32_t nFarLightNum;                /* entries of stuFarLight in use */
    CFG_LAMP stuFarLight[ORRERY_LAMPS];  /* "FarLight": lamps for what is far */
} CFG_LIGHTING_INFO;

#define ORRERY_AUDIO_OUTPUTS 16
#define ORRERY_AUDIO_INPUTS 32
#define ORRERY_EQUALIZER_STEPS 16

/* A band of an equalizer. */
typedef struct CFG_EQUALIZER_STEP {
    int32_t nMinFrequency; /* "MinFrequency": hertz */
    int32_t nMaxFrequency; /* "MaxFrequency": hertz */
    int32_t nGain;         /* "Gain": decibels */
} CFG_EQUALIZER_STEP;

/* The equalizer of an output. */
typedef struct CFG_EQUALIZER {
    int32_t nStepNum;                                    /* entries of stuSteps in use */
    CFG_EQUALIZER_STEP stuSteps[ORRERY_EQUALIZER_STEPS]; /* "EqualizerStep"; not written when there are none */
} CFG_EQUALIZER;

/* "AudioOutEqualizer". The reply's table is a list; without entries it is written as null. */
typedef struct CFG_AUDIO_OUT_EQUALIZER_INFO {
    int32_t nCount;                               /* entries of stuItems in use */
    CFG_EQUALIZER stuItems[ORRERY_AUDIO_OUTPUTS]; /* the table's elements, one an output */
} CFG_AUDIO_OUT_EQUALIZER_INFO;

/* What an output suppresses. */
typedef struct CFG_AUDIO_SUPPRESSION {
    int32_t bAutoEchoCancellation; /* "AutoEchoCancellation" */
    int32_t bAutoFrequencyControl; /* "AutoFrequencyControl": against howling */
} CFG_AUDIO_SUPPRESSION;

/* "AudioOutSuppression". The reply's table is a list; without entries it is written as null. */
typedef struct CFG_AUDIO_OUT_SUPPRESSION_INFO {
    int32_t nCount;                                       /* entries of stuItems in use */
    CFG_AUDIO_SUPPRESSION stuItems[ORRERY_AUDIO_OUTPUTS]; /* the table's elements, one an output */
} CFG_AUDIO_OUT_SUPPRESSION_INFO;

/* A microphone. */
typedef struct CFG_AUDIO_IN {
    int32_t bPower;             /* "Power": of the microphone, over its line */
    int32_t bSquishSuppression; /* "SquishSuppression": against howling */
} CFG_AUDIO_IN;

/* "AudioInControl". The reply's table is a list; without entries it is written as null. */
typedef struct CFG_AUDIO_IN_CONTROL_INFO {
    int32_t nCount;                             /* entries of stuItems in use */
    CFG_AUDIO_IN stuItems[ORRERY_AUDIO_INPUTS]; /* the table's elements, one an input */
} CFG_AUDIO_IN_CONTROL_INFO;

#ifdef __cplusplus
}
#endif

#endif
