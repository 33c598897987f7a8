/* Arming: profiles, subsystems, delays, analog inputs, what an alarm links to.
 *
 * "DefenceAreaDelay" and "AlarmShieldRule" are read from the reply of a refused call too. Their text and that of
 * "SnapLinkage" is taken when it is exactly as long as the capacity, and then loses its newline.
 *
 * "AlarmSubSystem", "AnalogAlarm" and "SnapLinkage" take a record an element of a list, or one record from an object;
 * other types and an empty list are refused. One whole record is written bare, several as a list. Lists inside a record
 * are written also when they are empty. Keys that are absent leave 0. */
#ifndef ORRERY_ALARM_DEVICE_ARMING_H
#define ORRERY_ALARM_DEVICE_ARMING_H

#include "orrery/linkage.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_ALARM_NUMBERS 256 /* channels, areas or subsystems of a list */
#define ORRERY_ALARM_PROFILES 8

/* How a site is armed ("CurrentProfile"). */
enum {
    CFG_PROFILE_OUTDOOR = 0,   /* "Outdoor": nobody is in; absent and unknown texts too */
    CFG_PROFILE_AT_HOME = 1,   /* "AtHome" */
    CFG_PROFILE_WHOLE = 2,     /* "Whole": everything is armed */
    CFG_PROFILE_RIGHT_NOW = 3, /* "RightNow": without an exit delay */
    CFG_PROFILE_AUTO = 4,      /* "Auto" */
    CFG_PROFILE_FORCE = 5,     /* "Force": whatever the inputs say */
    CFG_PROFILE_SLEEPING = 6,  /* "Sleeping" */
    CFG_PROFILE_CUSTOM = 7     /* "Custom" */
};

/* A profile and its inputs. */
typedef struct CFG_ALARM_PROFILE {
    char szName[32];                                /* "Name" */
    int32_t nAlarmInNum;                            /* entries of nAlarmInChannels in use */
    int32_t nAlarmInChannels[ORRERY_ALARM_NUMBERS]; /* "AlarmInChannels": inputs that are armed */
} CFG_ALARM_PROFILE;

/* "CommGlobal". */
typedef struct CFG_COMM_GLOBAL_INFO {
    int32_t bAlarmEnable;                                 /* "AlarmEnable": the site is armed */
    int32_t bProfileEnable;                               /* "ProfileEnable": profiles are in use */
    int32_t emCurrentProfile;                             /* "CurrentProfile": CFG_PROFILE_...; other codes are not
                                                             written */
    int32_t nProfileNum;                                  /* entries of stuProfiles in use */
    CFG_ALARM_PROFILE stuProfiles[ORRERY_ALARM_PROFILES]; /* "Profiles" */
} CFG_COMM_GLOBAL_INFO;

/* "AlarmSubSystem": a part of the site that is armed by itself. */
typedef struct CFG_ALARM_SUB_SYSTEM_INFO {
    char szName[128];                               /* "Name" */
    int32_t nZoneNum;                               /* entries of nZone in use */
    int32_t nZone[ORRERY_ALARM_NUMBERS];            /* "Zone": areas of the device itself */
    int32_t nExZoneNum;                             /* entries of nExZone in use */
    int32_t nExZone[ORRERY_ALARM_NUMBERS];          /* "ExZone": areas of extension boxes */
    int32_t nPublicSubSystemNum;                    /* entries of nPublicSubSystem in use */
    int32_t nPublicSubSystem[ORRERY_ALARM_NUMBERS]; /* "PublicSubSystem": subsystems that a public one serves */
    int32_t nDisableDelay;                          /* "DisableDelay": seconds to disarm after entering */
    int32_t nEnableDelay;                           /* "EnableDelay": seconds to leave after arming */
    int32_t bIsPublic;                              /* "IsPublic": armed when those of "PublicSubSystem" are */
} CFG_ALARM_SUB_SYSTEM_INFO;

/* "DefenceAreaDelay". */
typedef struct CFG_DEFENCE_AREA_DELAY_INFO {
    int32_t nEnterDelay1; /* "EnterDelay1": seconds */
    int32_t nEnterDelay2; /* "EnterDelay2": seconds */
    int32_t nExitDelay;   /* "ExitDelay": seconds */
} CFG_DEFENCE_AREA_DELAY_INFO;

/* "AlarmShieldRule": alarms that come too often are held back. */
typedef struct CFG_ALARM_SHIELD_RULE_INFO {
    int32_t nPeriod;   /* "HighFrequency"."Period": seconds */
    int32_t nMaxCount; /* "HighFrequency"."MaxCount": most alarms in that time */
} CFG_ALARM_SHIELD_RULE_INFO;

/* "SensorSampling". */
typedef struct CFG_SENSOR_SAMPLING_INFO {
    int32_t nDetectionPeriod; /* "DetectionPeriod": seconds between two samples */
    int32_t nStorageItem;     /* "StorageItem": samples that are kept */
} CFG_SENSOR_SAMPLING_INFO;

/* "SnapLinkage": the analog inputs that make a video channel take a picture. */
typedef struct CFG_SNAP_LINKAGE_INFO {
    int32_t nCount;                             /* entries of nAnalogAlarm in use */
    int32_t nAnalogAlarm[ORRERY_ALARM_NUMBERS]; /* "AnalogAlarm": inputs */
} CFG_SNAP_LINKAGE_INFO;

#define ORRERY_ANALOG_LIMITS 8

/* "AnalogAlarm": an input that measures. The linkage is read in every case. */
typedef struct CFG_ANALOG_ALARM_INFO {
    int32_t bEnable;                         /* "Enable" */
    char szName[64];                         /* "Name" */
    float fUpperLimit;                       /* "UpperLimit": of what the sensor can measure, in its unit */
    float fLowerLimit;                       /* "LowerLimit" */
    float fCompensation;                     /* "Compensation": added to what is measured */
    int32_t nSensitivity;                    /* "Sensitivity": change that counts, percent */
    int32_t nMode;                           /* "Mode": when the alarm is raised */
    int32_t nAlarmLimitNum;                  /* entries of fAlarmLimit in use */
    float fAlarmLimit[ORRERY_ANALOG_LIMITS]; /* "AlarmLimit": values between which the alarm is raised */
    int32_t emSenseMethod;                   /* "SenseMethod": EM_SENSE_METHOD, -1 when unknown; other codes are not
                                                written. 0 when absent */
    char szType[64];                         /* "Type": of the sensor */
    int32_t nSlot;                           /* "Slot": root address */
    int32_t nLevel1;                         /* "Level1": first cascade address */
    int32_t nLevel2;                         /* "Level2": second cascade address */
    int32_t nNotifyInterval;                 /* "NotifyInterval": seconds between two reports of the value */
    int32_t nAlarmInterval;                  /* "AlarmInterval": seconds between two alarms */
    CFG_EVENT_HANDLER_INFO stuEventHandler;  /* "EventHandler", with the week */
} CFG_ANALOG_ALARM_INFO;

#ifdef __cplusplus
}
#endif

#endif
