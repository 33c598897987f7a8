/* Door controllers: doors one by one, the controller as a whole, week plans, people who open together, routes of doors,
 * work modes, texts on the display.
 *
 * Commands of one record or a list ("AccessControl", "AccessTimeSchedule", "AccessWorkMode") take an object as one
 * record and an array as a record an element, in which a null is a record without keys; other types and an empty array
 * fail as a missing table does. They tell the bytes of the records read, and write a bare record when exactly one fits
 * the size, else a list of those that fit.
 *
 * Texts of all commands must be shorter than their buffer. Keys that are absent leave 0 unless told otherwise. */
#ifndef ORRERY_ACCESS_CONTROL_H
#define ORRERY_ACCESS_CONTROL_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_ACCESS_LOCK_GROUPS 8
#define ORRERY_ACCESS_LOCK_DOORS 4
#define ORRERY_ACCESS_PLAN_SECTIONS 4
#define ORRERY_OPEN_DOOR_GROUPS 4
#define ORRERY_OPEN_DOOR_PERSONS 64
#define ORRERY_OPEN_DOOR_ROUTE_STEPS 16
#define ORRERY_OPEN_DOOR_ROUTE_DOORS 8

/* State of a door ("State"). Codes without a text are not written. */
enum {
    CFG_ACCESS_STATE_UNKNOWN = -1,     /* absent and unknown texts */
    CFG_ACCESS_STATE_NORMAL = 0,       /* "Normal" */
    CFG_ACCESS_STATE_CLOSE_ALWAYS = 1, /* "CloseAlways" */
    CFG_ACCESS_STATE_OPEN_ALWAYS = 2,  /* "OpenAlways" */
    CFG_ACCESS_STATE_NO_PERSON_NC = 3, /* "NoPersonNC": closed while nobody is inside */
    CFG_ACCESS_STATE_NO_PERSON_NO = 4  /* "NoPersonNO": open while nobody is inside */
};

/* Kind of place behind a door ("Mode"). Codes without a text are not written. */
enum {
    CFG_ACCESS_MODE_UNKNOWN = -1,       /* absent and unknown texts */
    CFG_ACCESS_MODE_HAND_PROTECTED = 0, /* "HandProtected": cash machine */
    CFG_ACCESS_MODE_SAFE_ROOM = 1,      /* "SafeRoom" */
    CFG_ACCESS_MODE_OTHER = 2           /* "Other" */
};

/* Who decides about a door ("AccessProtocol"). Other codes are written as an empty text. */
enum {
    CFG_ACCESS_PROTOCOL_UNKNOWN = 0, /* absent, empty and unknown texts */
    CFG_ACCESS_PROTOCOL_LOCAL = 1,   /* "Local": the controller */
    CFG_ACCESS_PROTOCOL_TESSERA = 2, /* "Tessera": a controller behind it */
    CFG_ACCESS_PROTOCOL_REMOTE = 3   /* "Remote": a server */
};

/* When a door may be opened on one day. */
typedef struct CFG_ACCESS_DOOR_PLAN {
    char szTimeSection[128]; /* "TimeSection": a section, in the text form of CFG_TIME_SECTION as a rule */
} CFG_ACCESS_DOOR_PLAN;

/* "AccessControl": one door. */
typedef struct CFG_ACCESS_CONTROL_INFO {
    char szName[128];            /* "Name" */
    int32_t emState;             /* "State": CFG_ACCESS_STATE_..., -1 absent */
    int32_t emMode;              /* "Mode": CFG_ACCESS_MODE_..., -1 absent */
    uint32_t nEnableMode;        /* "EnableMode": the device's own number of how the door is switched on and off */
    int32_t bSnapshotEnable;     /* "SnapshotEnable": takes a picture when the door is opened */
    int32_t nMethod;             /* "Method": the device's own number of the way of opening */
    int32_t nUnlockHoldInterval; /* "UnlockHoldInterval": how long the lock stays open, seconds */
    int32_t nCloseTimeout;       /* "CloseTimeout": an open door is an alarm after so many seconds */
    int32_t nOpenAlwaysTime;     /* "OpenAlwaysTime": number of the plan by which the door stays open */
    int32_t nCloseAlwaysTime;    /* "CloseAlwaysTime": number of the plan by which the door stays closed */
    int32_t nHolidayTime;        /* "HolidayTime": number of the plan of holidays */
    int32_t bBreakInAlarmEnable; /* "BreakInAlarmEnable" */
    int32_t bRepeatEnterAlarm;   /* "RepeatEnterAlarm": somebody enters twice without leaving */
    int32_t bDoorNotClosedAlarmEnable; /* "DoorNotClosedAlarmEnable" */
    int32_t bDuressAlarmEnable;        /* "DuressAlarmEnable": a duress code or finger is an alarm */
    CFG_ACCESS_DOOR_PLAN stuTimeSchedule[ORRERY_WEEK_DAYS]; /* "TimeSchedule": a plan a day, Sunday first; always all
                                                               seven are written */
    int32_t bSensorEnable;                                  /* "SensorEnable": the door has a contact */
    int32_t bFirstEnterEnable;       /* "FirstEnter"."Enable": somebody with the right must enter first */
    int32_t nFirstEnterStatus;       /* "FirstEnter"."Status": what the door does from then on, the device's number */
    int32_t nFirstEnterTime;         /* "FirstEnter"."Time": number of the plan in which it counts */
    int32_t bRemoteCheck;            /* "RemoteCheck": somebody far away confirms each opening */
    int32_t nRemoteDetailTimeOut;    /* "RemoteDetail"."TimeOut": of that confirmation, seconds */
    int32_t nHandicapTimeOut;        /* "Handicap"."TimeOut": how long the lock waits for the handicapped, seconds */
    int32_t bCloseCheckSensor;       /* "CloseCheckSensor": locks only once the contact tells that it is closed */
    int32_t bAutoRemoteCheckEnable;  /* "AutoRemoteCheck"."Enable": asks a server by itself */
    int32_t nAutoRemoteCheckTime;    /* "AutoRemoteCheck"."Time": number of the plan in which it does */
    int32_t bLocalControlEnable;     /* "LocalControlEnable": may be opened at the door */
    int32_t bRemoteControlEnable;    /* "RemoteControlEnable": may be opened from far away */
    int32_t nSensorDelay;            /* "SensorDetect"."SensorDelay": seconds after which a place counts as empty */
    int32_t nHumanStatusSensitivity; /* "SensorDetect"."HumanStatusSensitivity" */
    int32_t nDetectSensitivity;      /* "SensorDetect"."DetectSensitivity" */
    int32_t bLockTongueEnable;       /* "LockTongueEnable": the bolt is watched */
    int32_t nABLockRoute;            /* "ABLockRoute": group of doors of which one opens at a time */
    int32_t nDoorNotClosedReaderAlarmTime;    /* "DoorNotClosedReaderAlarmTime": seconds until the reader beeps */
    char szSN[32];                            /* "SN": serial number; read only from a text */
    int32_t nCloseDuration;                   /* "CloseDuration": how long closing takes, seconds */
    int32_t nUnlockReloadInterval;            /* "UnlockReloadInterval": until the lock may open again, milliseconds */
    int32_t emAccessProtocol;                 /* "AccessProtocol": CFG_ACCESS_PROTOCOL_... */
    int32_t nProtocolType;                    /* "ProtocolType": the device's own number; -1 absent */
    char szUdpAddress[256];                   /* "AccessControlUDP"."Address": server that is told of the door */
    int32_t nUdpPort;                         /* "AccessControlUDP"."Port" */
    uint32_t nEntranceLockChannel;            /* "EntranceLockChannel": lock that the door's reader opens */
    int32_t bSnapshotUpload;                  /* "SnapshotUpload": pictures go to a server */
    uint32_t nSnapUploadPos;                  /* "SnapUploadPos": which server, the device's own number */
    int32_t bCustomPasswordEnable;            /* "CustomPasswordEnable": people have passwords of their own */
    uint32_t nRepeatEnterTime;                /* "RepeatEnterTime": seconds within which entering again is an alarm */
    uint32_t nCardNoConvert;                  /* "CardNoConvert": whether card numbers are turned round, 0 or 1 */
    int32_t bUnAuthorizedMaliciousSwipEnable; /* "UnAuthorizedMaliciousSwipEnable": cards without right, shown again and
                                                 again, are an alarm */
    int32_t bFakeLockedAlarmEnable;           /* "FakeLockedAlarmEnable": a door that only seems locked is an alarm */
} CFG_ACCESS_CONTROL_INFO;

/* Directions in which a controller's doors are passed ("AccessProperty"). Other codes are written as an empty text. */
enum {
    CFG_ACCESS_PROPERTY_UNKNOWN = 0,  /* absent, empty and unknown texts */
    CFG_ACCESS_PROPERTY_BIDIRECT = 1, /* "bidirect" */
    CFG_ACCESS_PROPERTY_UNIDIRECT = 2 /* "unidirect" */
};

/* Names of the sound files that a controller plays. */
typedef struct CFG_ACCESS_SOUND {
    char szOpenDoor[256];  /* "OpenDoor" */
    char szCloseDoor[256]; /* "CloseDoor" */
    char szInUsed[256];    /* "InUsed": somebody is inside */
    char szNotInUsed[256]; /* "NotInUsed": nobody is inside */
    char szNotClosed[256]; /* "NotClosed" */
    char szWaiting[256];   /* "Waiting" */
} CFG_ACCESS_SOUND;

/* Doors of which one opens at a time. Text form: an array of numbers; null when there are none. */
typedef struct CFG_ACCESS_LOCK_GROUP {
    int32_t nDoorNum;                         /* entries of nDoors in use */
    int32_t nDoors[ORRERY_ACCESS_LOCK_DOORS]; /* the elements: numbers of doors */
} CFG_ACCESS_LOCK_GROUP;

/* Interlocks of a controller. */
typedef struct CFG_ACCESS_AB_LOCK {
    int32_t bEnable;                                            /* "Enable" */
    int32_t nGroupNum;                                          /* entries of stuGroups in use */
    CFG_ACCESS_LOCK_GROUP stuGroups[ORRERY_ACCESS_LOCK_GROUPS]; /* "Doors"; not written when there are none */
} CFG_ACCESS_AB_LOCK;

/* "AccessControlGeneral": a controller as a whole. */
typedef struct CFG_ACCESS_GENERAL_INFO {
    int32_t abAccessProperty;      /* whether "AccessProperty" was there, and is to be written */
    int32_t emAccessProperty;      /* "AccessProperty": CFG_ACCESS_PROPERTY_... */
    CFG_ACCESS_SOUND stuSound;     /* "Sound" */
    int32_t nUnlockReloadInterval; /* "UnlockReloadInterval": until a lock may open again, milliseconds */
    int32_t nUnlockHoldInterval;   /* "UnlockHoldInterval": how long a lock stays open, seconds */
    char szProjectPassword[64];    /* "ProjectPassword": of the people who set the controller up */
    CFG_ACCESS_AB_LOCK stuABLock;  /* "ABLock" */
    int32_t bDuressEnable;         /* "DuressEnable" */
    char szDuressPassword[64];     /* "DuressPassword": opens, and is an alarm */
} CFG_ACCESS_GENERAL_INFO;

/* "AccessTimeSchedule": one week plan. A controller numbers them in the order of its list. */
typedef struct CFG_ACCESS_TIME_SCHEDULE_INFO {
    CFG_TIME_SECTION stuTimeSection[ORRERY_WEEK_DAYS][ORRERY_ACCESS_PLAN_SECTIONS]; /* "TimeSchedule": rows of sections,
                                                                                       Sunday first; a day or a section
                                                                                       that is none stays 0 */
    int32_t bEnable;                                                                /* "Enable" */
    char szName[128];                                                               /* "Name" */
} CFG_ACCESS_TIME_SCHEDULE_INFO;

/* How a person of a group shows who it is ("Method"). Codes without a text are not written. */
enum {
    CFG_OPEN_DOOR_METHOD_UNKNOWN = -1,             /* unknown texts */
    CFG_OPEN_DOOR_METHOD_CARD = 0,                 /* "Card" */
    CFG_OPEN_DOOR_METHOD_PASSWORD = 1,             /* "Password" */
    CFG_OPEN_DOOR_METHOD_FINGERPRINT = 2,          /* "Fingerprint" */
    CFG_OPEN_DOOR_METHOD_CARD_PASSWORD_FINGER = 3, /* "C|P|F": any of these three */
    CFG_OPEN_DOOR_METHOD_FACE = 4                  /* "Face" */
};

/* A person of a group. */
typedef struct CFG_OPEN_DOOR_PERSON {
    char szUserID[32]; /* "UserID" */
    int32_t emMethod;  /* "Method": CFG_OPEN_DOOR_METHOD_... */
} CFG_OPEN_DOOR_PERSON;

/* People of whom so many must come together. */
typedef struct CFG_OPEN_DOOR_GROUP {
    int32_t nCount;                                           /* "Count": how many of them open the door */
    int32_t nDetailNum;                                       /* entries of stuDetail in use */
    CFG_OPEN_DOOR_PERSON stuDetail[ORRERY_OPEN_DOOR_PERSONS]; /* "Detail"; not written when there are none */
} CFG_OPEN_DOOR_GROUP;

/* "OpenDoorGroup": people who must open a door together. */
typedef struct CFG_OPEN_DOOR_GROUP_INFO {
    int32_t nGroupNum;                                     /* entries of stuGroup in use */
    CFG_OPEN_DOOR_GROUP stuGroup[ORRERY_OPEN_DOOR_GROUPS]; /* "Group"; not written when there are none */
} CFG_OPEN_DOOR_GROUP_INFO;

/* A door of a route. */
typedef struct CFG_OPEN_DOOR_ROUTE_DOOR {
    char szReaderID[32]; /* "ReaderID": reader at the door */
} CFG_OPEN_DOOR_ROUTE_DOOR;

/* Doors any of which is the next of a route. */
typedef struct CFG_OPEN_DOOR_ROUTE_STEP {
    int32_t nDoorNum;                                                /* entries of stuDoors in use */
    CFG_OPEN_DOOR_ROUTE_DOOR stuDoors[ORRERY_OPEN_DOOR_ROUTE_DOORS]; /* "Doors"; not written when there are none */
} CFG_OPEN_DOOR_ROUTE_STEP;

/* "OpenDoorRoute": the order in which doors must be passed. */
typedef struct CFG_OPEN_DOOR_ROUTE_INFO {
    int32_t nStepNum;                                                /* entries of stuSteps in use */
    CFG_OPEN_DOOR_ROUTE_STEP stuSteps[ORRERY_OPEN_DOOR_ROUTE_STEPS]; /* "DoorList"; not written when there are none */
    int32_t nTimeSections; /* "TimeSections": number of the plan in which the order counts; read only from a whole
                              number that a signed word holds */
    uint32_t nResetTime;   /* "ResetTime": when a route begins anew; read only from a whole number of 2147483648 and
                              more, as any other is a signed one */
} CFG_OPEN_DOOR_ROUTE_INFO;

/* Work modes ("Mode"). Other codes are written as an empty text. */
enum {
    CFG_ACCESS_WORK_MODE_UNKNOWN = 0,    /* absent, empty and unknown texts */
    CFG_ACCESS_WORK_MODE_NORMAL = 1,     /* "Normal" */
    CFG_ACCESS_WORK_MODE_CLEAN = 2,      /* "Clean" */
    CFG_ACCESS_WORK_MODE_DECORATION = 3, /* "Decoration" */
    CFG_ACCESS_WORK_MODE_UNUSED = 4,     /* "Unused" */
    CFG_ACCESS_WORK_MODE_OUTSTANDING = 5 /* "Outstanding" */
};

/* "AccessWorkMode": the work mode of one door. */
typedef struct CFG_ACCESS_WORK_MODE_INFO {
    int32_t emMode; /* "Mode": CFG_ACCESS_WORK_MODE_... */
} CFG_ACCESS_WORK_MODE_INFO;

/* "AccessControlTextDisplay": what the display shows. */
typedef struct CFG_ACCESS_TEXT_DISPLAY_INFO {
    char szOpenSucceed[32]; /* "OpenSucceed" */
    char szOpenFailed[32];  /* "OpenFailed" */
} CFG_ACCESS_TEXT_DISPLAY_INFO;

/* "accessControlManager.getCaps": what a controller can do. Reply only: it is not written. */
typedef struct CFG_ACCESS_CAPS {
    int32_t nAccessControlChannels;    /* "AccessControlChannels": doors */
    int32_t nCustomPasswordEncryption; /* "CustomPasswordEncryption": how people's passwords are kept, 0 plain, 1 MD5 */
    int32_t nSupportFingerPrint;       /* "SupportFingerPrint": 0 unknown, 1 no, 2 yes */
    int32_t nOnlySingleDoorAuth;       /* "OnlySingleDoorAuth": whether a right is for one door only, 0 or 1 */
    int32_t nAsynAuth;                 /* "AsynAuth": whether rights may be changed without waiting, 0 or 1 */
    int32_t bAccessControlAlarmRecord; /* "AccessControlAlarmRecord": alarms of doors can be searched */
    int32_t bSpecialDaysSchedule;      /* "SpecialDaysSchedule"."Support": plans for special days */
    uint32_t nMaxSpecialDaysSchedules; /* "SpecialDaysSchedule"."MaxSpecialDaysSchedules" */
    uint32_t nMaxTimePeriodsPerDay;    /* "SpecialDaysSchedule"."MaxTimePeriodsPerDay" */
    uint32_t nMaxSpecialDayGroups;     /* "SpecialDaysSchedule"."MaxSpecialDayGroups" */
    uint32_t nMaxDaysInSpecialDayGroup; /* "SpecialDaysSchedule"."MaxDaysInSpecialDayGroup" */
} CFG_ACCESS_CAPS;

#ifdef __cplusplus
}
#endif

#endif
