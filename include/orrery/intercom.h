/* Intercoms and alarm hosts of later devices: numbers, calls and bells; who is told of an alarm, and how arming goes.
 *
 * The length of a call is added to: set it to 0 first. A table that is null or absent reads nothing and adds nothing;
 * one of another type than told is a record without keys. Records told as "one or a list" are read from an array, a
 * record an element (a null element leaves its record cleared and is not counted; an empty array is one record without
 * keys), or from anything else as one record; as many are read as fit the buffer. They are written bare when exactly
 * one fits the size, else as a list. All others are one record, written bare. Texts must be shorter than their buffer.
 * Keys that are absent leave 0; all keys are written unless told otherwise. */
#ifndef ORRERY_INTERCOM_H
#define ORRERY_INTERCOM_H

#include "orrery/types.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_REMOTE_CAMERAS 32
#define ORRERY_CALL_SECTIONS 6
#define ORRERY_PERSON_NUMBERS 8
#define ORRERY_ARM_LINKS 16

/* Of all the codes below: absent and unknown texts read as 0; 0 and codes without a text are written as "". */

/* Part of a flat's indoor stations ("Type"). */
enum {
    CFG_VTH_UNKNOWN = 0,
    CFG_VTH_MAIN = 1, /* "Main": the station that is called */
    CFG_VTH_SUB = 2   /* "Sub": an extension of it */
};

/* Use of an indoor station ("AppType"). */
enum {
    CFG_VTH_APP_UNKNOWN = 0,
    CFG_VTH_APP_COMMON = 1, /* "Common": in a flat */
    CFG_VTH_APP_MANAGER = 2 /* "Manager": at the porter's */
};

/* "VTHNumberInfo": an indoor station and its numbers; an object, or the first element of an array. */
typedef struct CFG_VTH_NUMBER_INFO {
    char szShortNumber[32];   /* "ShortNumber": inside the building */
    char szMiddleNumber[32];  /* "MiddleNumber": with the building's */
    char szVirtualNumber[32]; /* "VirtualNumber" */
    char szMainNumber[32];    /* "MainNumber": of the station that this one belongs to */
    char szSubNumber[32];     /* "SubNumber": of the extension */
    char szMainDeviceIP[64];  /* "MainDeviceIP": address of the station that this one belongs to */
    int32_t emType;           /* "Type": CFG_VTH_... */
    int32_t emAppType;        /* "AppType": CFG_VTH_APP_... */
    int32_t nLockState;       /* "LockState" */
    char szUsername[64];      /* "Username" */
    char szPassword[64];      /* "Password" */
} CFG_VTH_NUMBER_INFO;

/* "VTOCallInfo": how a door station calls. */
typedef struct CFG_VTO_CALLING_INFO {
    char szMainVtoIP[256];    /* "MainVtoIP": address of the main door station */
    int32_t bGroupCallEnable; /* "GroupCallEnable": all stations of a flat ring together */
    char szManagerNumber[32]; /* "ManagerNumber": of the porter */
    char szUrgentNumber[32];  /* "UrgentNumber": in an emergency */
    CFG_TIME_SECTION stuCallVTSEnable[ORRERY_CALL_SECTIONS]; /* "CallVTSEnable": when the management centre may be
                                                                called; a flat list of sections, all written; of one
                                                                that does not read to its end the numbers in front
                                                                of that are kept, and the list goes on behind it */
    int32_t nMaxExtensionIndex;                              /* "MaxExtensionIndex": highest number of an extension */
    char szRoomRule[32]; /* "RoomRule": how rooms are numbered, in the device's words */
    CFG_TIME_SECTION stuTimeSection[ORRERY_WEEK_DAYS][ORRERY_DAY_SECTIONS]; /* "TimeSection": when the station rings;
                                                                               a list a day, Sunday first, all written;
                                                                               reading ends with the first section that
                                                                               does not read to its end */
} CFG_VTO_CALLING_INFO;

/* A camera that an indoor station shows. */
typedef struct CFG_REMOTE_CAMERA {
    char szID[64];           /* "ID" */
    char szName[64];         /* "Name" */
    char szAddress[128];     /* "Address": address or host name */
    int32_t nPort;           /* "Port" */
    char szUserName[64];     /* "UserName" */
    char szPassword[64];     /* "Password" */
    char szProtocolType[32]; /* "ProtocolType": in the device's words */
    int32_t nChannel;        /* "Channel": from 0 */
} CFG_REMOTE_CAMERA;

/* "VTHRemoteIPCInfo": the cameras that an indoor station shows. Without any, null is written. */
typedef struct CFG_VTH_REMOTE_IPC_INFO {
    int32_t nCount;                                      /* elements of stuCameras in use */
    CFG_REMOTE_CAMERA stuCameras[ORRERY_REMOTE_CAMERAS]; /* the record itself, a list */
} CFG_VTH_REMOTE_IPC_INFO;

/* "CallForward": where calls go on to; one or a list. */
typedef struct CFG_CALL_FORWARD_INFO {
    int32_t bAlwaysForwardEnable;     /* "AlwaysForwardEnable": of every call */
    int32_t bBusyForwardEnable;       /* "BusyForwardEnable": of calls while the line is busy */
    int32_t bNoAnswerForwardEnable;   /* "NoAnswerForwardEnable": of calls that nobody answers */
    char szAlwaysForwardNumber[32];   /* "AlwaysForwardNumber" */
    char szBusyForwardNumber[32];     /* "BusyForwardNumber" */
    char szNoAnswerForwardNumber[32]; /* "NoAnswerForwardNumber" */
} CFG_CALL_FORWARD_INFO;

/* "DoorBellSound": the bell of a door station; one or a list. */
typedef struct CFG_DOOR_BELL_SOUND_INFO {
    int32_t bSilenceEnable; /* "SilenceEnable": it does not ring */
    uint32_t nRingVolume;   /* "RingVolume": 0 to 100 as a rule */
    char szRingFile[64];    /* "RingFile": what is played */
} CFG_DOOR_BELL_SOUND_INFO;

/* "PSTNPersonServer": persons who are called over the telephone line upon an alarm. */
typedef struct CFG_PSTN_PERSON_SERVER_INFO {
    int32_t bEnable;                          /* "Enable" */
    char szName[128];                         /* "Name" */
    char szServers[32];                       /* "Servers": the receiver, in the device's words */
    int32_t nNumberCount;                     /* entries of szNumber in use */
    char szNumber[ORRERY_PERSON_NUMBERS][32]; /* "Number": telephone numbers, a list; no key when there are none */
} CFG_PSTN_PERSON_SERVER_INFO;

/* "PSTNTestPlan": test calls over the telephone line. */
typedef struct CFG_PSTN_TEST_PLAN_INFO {
    int32_t bEnable;      /* "Enable" */
    int32_t nPeriod;      /* "Period": between two calls, hours */
    int32_t nAlarmServer; /* "AlarmServer": index of the receiver that is called */
} CFG_PSTN_TEST_PLAN_INFO;

/* "ArmLink": who is told when the alarm host is armed or disarmed. */
typedef struct CFG_ARM_LINK_INFO {
    int32_t bMMSEnable;                     /* "MMSEnable": by short message */
    int32_t bPSTNAlarmServer;               /* "PSTNAlarmServer": receivers on the telephone line */
    int32_t bPersonAlarmEnable;             /* "PersonAlarmEnable": persons over the telephone line */
    int32_t nEventLinkCount;                /* entries of szEventLink in use */
    char szEventLink[ORRERY_ARM_LINKS][32]; /* "EventLink": events that are told of; no key when there are none */
    int32_t nDestinationCount;              /* entries of nDestination in use */
    int32_t nDestination[ORRERY_ARM_LINKS]; /* "Destination": indexes of the receivers; no key when there are none */
    int32_t bNeedReport;                    /* "NeedReport": the centre is told */
} CFG_ARM_LINK_INFO;

/* "DefenceArmMode": whether defence areas may be armed one by one. */
typedef struct CFG_DEFENCE_ARM_MODE_INFO {
    int32_t bEnableDefenceArm; /* "EnableDefenceArm" */
} CFG_DEFENCE_ARM_MODE_INFO;

/* What a wired sensor can tell ("SensorMode"). */
enum {
    CFG_SENSOR_MODE_UNKNOWN = 0,
    CFG_SENSOR_MODE_TWO_STATE = 1, /* "TwoState": rest and alarm */
    CFG_SENSOR_MODE_FOUR_STATE = 2 /* "FourState": a cut or shorted line besides */
};

/* "SensorMode": sensors of an alarm host. */
typedef struct CFG_SENSOR_MODE_INFO {
    int32_t emSensorMode; /* "SensorMode": CFG_SENSOR_MODE_... */
} CFG_SENSOR_MODE_INFO;

/* "AlarmLamp": the warning lamp. */
typedef struct CFG_ALARM_LAMP_INFO {
    uint32_t nMode; /* "Mode": how it burns, as the device numbers it */
} CFG_ALARM_LAMP_INFO;

/* "SecurityAlarmsPrivacy": alarms without a sound, set off by a code. */
typedef struct CFG_SECURITY_ALARMS_PRIVACY_INFO {
    int32_t bAction; /* "Action": they are raised */
    char szCode[64]; /* "Code" */
} CFG_SECURITY_ALARMS_PRIVACY_INFO;

#ifdef __cplusplus
}
#endif

#endif
