/* Intercoms of residential buildings: how buildings are numbered, how numbers are dialled, where calls go, indoor
 * stations and their telephone-like settings.
 *
 * Texts of all commands must be shorter than their buffer. Keys that are absent leave 0 unless told otherwise; lists
 * without elements are not written unless told otherwise. */
#ifndef ORRERY_VIDEO_TALK_H
#define ORRERY_VIDEO_TALK_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_BUILDING_BEGIN_NUMBERS 16
#define ORRERY_NO_ANSWER_GROUPS 32
#define ORRERY_NO_ANSWER_FORWARD_NUMBERS 16
#define ORRERY_PHONE_TIME_LIMITS 3
#define ORRERY_PHONE_INVITE_NUMBERS 16

/* "Building": where a station stands in its building. */
typedef struct CFG_BUILDING_INFO {
    char szIssueNumber[16];        /* "IssueNumber": phase of construction */
    char szSectionNumber[16];      /* "SectionNumber" */
    char szBuildingNumber[16];     /* "BuildingNumber" */
    char szBuildingUnitNumber[16]; /* "BuildingUnitNumber" */
    char szSectionUnitNumber[16];  /* "SectionUnitNumber" */
    int32_t nUnitFloorNumber;      /* "UnitFloorNumber": floors of a unit */
    int32_t nFloorPerRoomNumber;   /* "FloorPerRoomNumber": rooms of a floor */
    int32_t nSystemType;           /* "SystemType": the device's own number of how the system is wired */
    int32_t bCreateRoom;           /* "CreateRoom": rooms are numbered by the station */
} CFG_BUILDING_INFO;

/* "BuildingExternal": size and first numbers of a building. Devices carry the four numbers as texts, such as "12":
 * digits behind blanks and a sign, 0 for a text without any and for every other type. They are written as such texts.
 */
typedef struct CFG_BUILDING_EXTERNAL_INFO {
    int32_t nFloorCount;            /* "FloorCount" */
    int32_t nRoomCount;             /* "RoomCount": rooms of a floor */
    int32_t nTotalBuildingNumber;   /* "TotalBuildingNumber" */
    int32_t nBuildingPerUintNumber; /* "BuildingPerUintNumber" (the devices' spelling): units of a building */
    int32_t nBeginNumberNum;        /* entries of szBeginNumbers in use */
    char szBeginNumbers[ORRERY_BUILDING_BEGIN_NUMBERS][16]; /* "BeginNumber": numbers of the first room of each floor */
} CFG_BUILDING_EXTERNAL_INFO;

/* "DialRule": what a dialled number is made of. */
typedef struct CFG_DIAL_RULE_INFO {
    int32_t bBuildingModeEnable;  /* "BuildingModeEnable": begins with the building */
    int32_t bUnitModeEnable;      /* "UnitModeEnable": has the unit */
    int32_t bExtentionModeEnable; /* "ExtentionModeEnable" (the devices' spelling): ends with an extension */
    char cSeparator[1]; /* "Seperator" (the devices' spelling): between the parts; the first byte of the text, without a
                           terminator behind it */
} CFG_DIAL_RULE_INFO;

/* Where the calls of a room go. */
typedef struct CFG_NO_ANSWER_GROUP {
    char szRoomNumber[32];                                       /* "RoomNumber" */
    int32_t nForwardNumberNum;                                   /* entries of szForwardNumbers in use */
    char szForwardNumbers[ORRERY_NO_ANSWER_FORWARD_NUMBERS][32]; /* "ForwardNumbers": called in this order */
} CFG_NO_ANSWER_GROUP;

/* "VTNoAnswerForward": calls that an indoor station does not answer. */
typedef struct CFG_VT_NO_ANSWER_FORWARD_INFO {
    int32_t bEnable;                                        /* "Enable" */
    int32_t nGroupNum;                                      /* entries of stuGroups in use */
    CFG_NO_ANSWER_GROUP stuGroups[ORRERY_NO_ANSWER_GROUPS]; /* "Groups" */
} CFG_VT_NO_ANSWER_FORWARD_INFO;

/* "VTOCall": how a door station calls. VTO is a door station, VTH an indoor station, VTS a management centre. */
typedef struct CFG_VTO_CALL_INFO {
    int32_t bAreaEnable;              /* "AreaEnable": numbers begin with the area's */
    int32_t bMiddleNumberCallEnable;  /* "MiddleNumberCallEnable": numbers of middle length are taken */
    char szAreaNumber[32];            /* "AreaNumber" */
    char szVTHLongNumberPrefix[32];   /* "VTHLongNumberPrefix" */
    char szVTOLongNumberPrefix[32];   /* "VTOLongNumbrPrefix" (the devices' spelling) */
    char szVTSLongNumber[32];         /* "VTSLongNumber" */
    char szVillaCallVTHNum[32];       /* "VillaCallVTHNum": the indoor station that a villa's door station calls */
    char szVTHMiddleNumberPrefix[16]; /* "VTHMiddleNumberPrefix" */
    char szVTOShortNumber[16];        /* "VTOShortNumber" */
    char szVTOMiddleNumberPrefix[16]; /* "VTOMiddleNumberPrefix" */
} CFG_VTO_CALL_INFO;

/* "VTSCallInfo": calls of the management centre. */
typedef struct CFG_VTS_CALL_INFO {
    CFG_TIME_SECTION stuCalledEnable; /* "CalledEnable": when it may be called */
} CFG_VTS_CALL_INFO;

/* One device of a building. */
typedef struct CFG_TALK_DEVICE {
    char szDevType[128];  /* "DevType" */
    char szDevName[128];  /* "DevName" */
    char szDevID[128];    /* "DevID" */
    char szParentID[128]; /* "ParentID": device that it belongs to */
    char szIP[256];       /* "IP": address or host name */
    int32_t nPort;        /* "Port" */
    char szUserName[64];  /* "UserName" */
    char szPassWord[64];  /* "PassWord" */
} CFG_TALK_DEVICE;

/* "DevList": the devices of a building, in an array of the caller's. The record is not cleared: the call fails before
 * the text is looked at when there is no array or no room in it. A table that is no array fails. The length told is
 * this record's. Written is always a list, null when nothing is in it. */
typedef struct CFG_DEV_LIST_INFO {
    CFG_TALK_DEVICE* pstuDevices; /* the elements; each is cleared before it is read */
    int32_t nMaxCount;            /* set by the caller: room in pstuDevices, records */
    int32_t nReturnCount;         /* how many were read; how many of at most nMaxCount are written */
} CFG_DEV_LIST_INFO;

/* "VideoTalkPhoneGeneral": an indoor station as a telephone. Reading sets the size words of both times, whatever the
 * text has; a time with another size word is written as null. */
typedef struct CFG_VIDEO_TALK_PHONE_GENERAL_INFO {
    char szRingFile[260];                          /* "RingFile": sound file */
    int32_t nRingVolume;                           /* "RingVolume": 0 to 100 as a rule */
    int32_t nTalkVolume;                           /* "TalkVolume": 0 to 100 as a rule */
    int32_t nMaxRingingTime;                       /* "MaxRingingTime": seconds */
    int32_t nMaxConnectingTime;                    /* "MaxConnectingTime": longest call, seconds */
    int32_t nMaxMonitorTime;                       /* "MaxMonitorTime": longest look at a door, seconds */
    int32_t nMaxRecordTime;                        /* "MaxRecordTime": longest message, seconds */
    NET_TIME_V2 stuDisableRingStartTime;           /* "DisableRingStartTime": no ringing from then on */
    NET_TIME_V2 stuDisableRingEndTime;             /* "DisableRingEndTime" */
    int32_t nTimeLimitNum;                         /* entries of nTimeLimits in use */
    int32_t nTimeLimits[ORRERY_PHONE_TIME_LIMITS]; /* "TimeLimit": choices for the longest call, seconds */
    int32_t bSnapEnable;                           /* "SnapEnable": takes a picture of the caller */
} CFG_VIDEO_TALK_PHONE_GENERAL_INFO;

/* "VideoTalkPhoneBasic": what an indoor station does with calls. Devices send four keys with a blank at their end; the
 * same keys without it are not read. Three of the four go to the device without the blank, so that a text written here
 * does not read back into them. */
typedef struct CFG_VIDEO_TALK_PHONE_BASIC_INFO {
    int32_t bAlarmOutputEnable;              /* "AlarmOutputEnable ": alarms go to the management centre */
    int32_t bNoAnswerTransferPlatformEnable; /* "NoAnswerTransferPlatformEnable ", written as
                                                "NoAnswerTransferPlatformEnable": calls that nobody answers go on to the
                                                platform */
    int32_t bEachCallEnable;   /* "EachCallEnable ", written as "EachCallEnable": rooms may call each other */
    int32_t bAutoAnswerEnable; /* "AutoAnswer"."Enable ", written as "AutoAnswer"."Enable" */
    int32_t nInviteNumberNum;  /* entries of szInviteNumbers in use */
    char szInviteNumbers[ORRERY_PHONE_INVITE_NUMBERS][32]; /* "InviteNumberList": numbers that ring together */
} CFG_VIDEO_TALK_PHONE_BASIC_INFO;

/* Where somebody who is called by a shortcut is ("PositionType"). Codes without a text are not written. */
enum {
    CFG_SHORTCUT_POSITION_UNKNOWN = 0,    /* absent and unknown texts */
    CFG_SHORTCUT_POSITION_ROOM = 1,       /* "Room": indoor station */
    CFG_SHORTCUT_POSITION_UNIT_DOOR = 2,  /* "UnitDoor": door station of a unit */
    CFG_SHORTCUT_POSITION_AREA_GATE = 3,  /* "AreaGate": station at the gate of the grounds */
    CFG_SHORTCUT_POSITION_MANAGEMENT = 4, /* "Management": management centre */
    CFG_SHORTCUT_POSITION_GUARD = 5       /* "Guard": guard's telephone */
};

/* One shortcut. */
typedef struct CFG_SHORTCUT_CALL {
    char szCallNumber[64];  /* "CallNumber" */
    int32_t emPositionType; /* "PositionType": CFG_SHORTCUT_POSITION_... */
} CFG_SHORTCUT_CALL;

/* "ShortcutCall": numbers behind single keys, in an array of the caller's. The record is not cleared, and the length of
 * the call is added to: set it to 0 first. A table that is null or absent reads nothing and adds nothing, one of
 * another type than a list leaves the record as it is. Without an array the record stays as it is as well, and the call
 * succeeds; without room in it the count becomes 0. A record below its size is taken on writing, with 0 for what it
 * lacks. Written is always a list, null when nothing is in it. */
typedef struct CFG_SHORTCUT_CALL_INFO {
    int32_t nMaxCount;            /* set by the caller: room in pstuCalls, records */
    CFG_SHORTCUT_CALL* pstuCalls; /* the elements; each is cleared before it is read */
    int32_t nReturnCount;         /* how many were read; how many of at most nMaxCount are written */
} CFG_SHORTCUT_CALL_INFO;

#ifdef __cplusplus
}
#endif

#endif
