/* What a device says that its alarm side can do. Replies only: none of these is written. */
#ifndef ORRERY_ALARM_CAPS_H
#define ORRERY_ALARM_CAPS_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_CAPS_DEFENCE_AREAS 8
#define ORRERY_CAPS_SENSE_METHODS 16
#define ORRERY_CAPS_PROTOCOLS 8

/* "alarm.getAlarmCaps". The reply's "result" may be true or the text "true". */
typedef struct CFG_ALARM_CAPS {
    int32_t bAlarmPir;                                     /* "AlarmPir": has a passive infrared sensor */
    int32_t bFlash;                                        /* "Flash": has a flashing light */
    int32_t nMaxDelay;                                     /* "MaxDelay": longest delay, seconds */
    int32_t nAlarmBellCount;                               /* "AlarmBellCount" */
    int32_t nMaxBackupAlarmServer;                         /* "MaxBackupAlarmServer" */
    int32_t nMaxPSTNAlarmServer;                           /* "MaxPSTNAlarmServer" */
    int32_t nDefenceAreaTypeNum;                           /* entries of emDefenceAreaTypes in use */
    int32_t emDefenceAreaTypes[ORRERY_CAPS_DEFENCE_AREAS]; /* "DefenceAreaTypes": EM_DEFENCE_AREA_TYPE, 0 unknown */
    int32_t nSenseMethodNum;                               /* entries of emSenseMethods in use */
    int32_t emSenseMethods[ORRERY_CAPS_SENSE_METHODS];     /* "SupportSenseMethod": EM_SENSE_METHOD, -1 unknown */
} CFG_ALARM_CAPS;

/* "alarm.getExAlarmCaps": extension alarms. "result" as above. */
typedef struct CFG_EX_ALARM_CAPS {
    int32_t nAlarmIn;                                      /* "AlarmIn": inputs */
    int32_t nAlarmOut;                                     /* "AlarmOut": outputs */
    int32_t nMaxDelay;                                     /* "MaxDelay": longest delay, seconds */
    int32_t nDefenceAreaTypeNum;                           /* entries of emDefenceAreaTypes in use */
    int32_t emDefenceAreaTypes[ORRERY_CAPS_DEFENCE_AREAS]; /* "DefenceAreaTypes": EM_DEFENCE_AREA_TYPE, 0 unknown */
    int32_t nSenseMethodNum;                               /* entries of emSenseMethods in use */
    int32_t emSenseMethods[ORRERY_CAPS_SENSE_METHODS];     /* "SupportSenseMethod": EM_SENSE_METHOD, -1 unknown */
    int32_t nProtocolNum;                                  /* entries of byProtocols in use */
    uint8_t byProtocols[ORRERY_CAPS_PROTOCOLS];            /* "ProtocolList": 1 for "QV_AlarmBox", else 0 */
} CFG_EX_ALARM_CAPS;

/* "alarm.getExAlarmBoxCaps": one extension box. "result" as above. */
typedef struct CFG_EX_ALARM_BOX_CAPS {
    int32_t nAlarmIn;  /* "AlarmIn": inputs */
    int32_t nAlarmOut; /* "AlarmOut": outputs */
} CFG_EX_ALARM_BOX_CAPS;

/* "AnalogAlarm.getCaps". */
typedef struct CFG_ANALOG_ALARM_CAPS {
    int32_t nLocalAnalogs;                             /* "LocalAnalogs": analog inputs of the device itself */
    int32_t nExAnalogs;                                /* "ExAnalogs": analog inputs of extension boxes */
    int32_t nSenseMethodNum;                           /* entries of emSenseMethods in use */
    int32_t emSenseMethods[ORRERY_CAPS_SENSE_METHODS]; /* "SupportSenseMethod": EM_SENSE_METHOD, -1 unknown */
} CFG_ANALOG_ALARM_CAPS;

#ifdef __cplusplus
}
#endif

#endif
