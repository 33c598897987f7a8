/* Events of doors, identity cards, tags and shooting ranges. Heads and closing fields: see events_common.h. */
#ifndef ORRERY_EVENTS_OTHER_ACCESS_H
#define ORRERY_EVENTS_OTHER_ACCESS_H

#include "orrery/events_common.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Doors ---- */

enum { EVENT_ACCESS_UNKNOWN = 0, EVENT_ACCESS_ENTRY = 1, EVENT_ACCESS_EXIT = 2 };

/* How a door was opened. The device numbers its ways ("Method") otherwise: 0 to 7 there are 1 to 8 here, 8 and 9 are 10
 * and 11, 12 to 14 are 13 to 15, 17 and above are one more; 11 and 15 are 8 as 7 is; 10, 16 and negative ones are 0. */
enum {
    EVENT_ACCESS_METHOD_UNKNOWN = 0,
};

#define EVENT_ACCESS_CARD_UNKNOWN (-1)

/* "AccessControl" (516): someone passed a door, or tried to. */
typedef struct DEV_EVENT_ACCESSCONTROL_INFO {
    ORRERY_EVENT_HEAD_A;         /* nChannelID: "Index" of the event itself, when there is one: the door */
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    EVENT_FILE_INFO stuFileInfo;
    int32_t emEventType;  /* "Type": "Entry" 1, "Exit" 2 */
    int32_t bStatus;      /* "Status": 1 for success, also when absent */
    int32_t emCardType;   /* "CardType": 0 to 6 and 255, -1 for others and when absent */
    int32_t emOpenMethod; /* "Method": EVENT_ACCESS_METHOD_... */
    char szCardNo[32];    /* "CardNo" */
    char szPassword[64];  /* "Password" */
    char szReaderID[32];  /* "ReaderID" */
    char szUserID[64];    /* "UserID" */
    char szSnapURL[128];  /* "SnapURL": where the capture lies */
    int32_t nErrorCode;   /* "ErrorCode" */
    int32_t nRecNo;       /* "RecNo" */
    int32_t nNumbers;     /* "Numbers": captures; 1 when absent but szSnapURL is not empty */
    uint8_t byRepeat;
    uint32_t dwFlagMask;
    int32_t nAttendanceState; /* "AttendanceState" */
    char szClassNumber[32];   /* "ClassNumber" */
    char szPhoneNumber[16];   /* "PhoneNumber" */
    char szCardName[64];      /* "CardName" */
} DEV_EVENT_ACCESSCONTROL_INFO;

/* "InstallCardReader" (544): a card reader was installed. */
typedef struct DEV_EVENT_INSTALLCARDREADER_INFO {
    ORRERY_EVENT_HEAD_A;
} DEV_EVENT_INSTALLCARDREADER_INFO;

/* ---- Identity cards ---- */

/* "CitizenIDCard" (352): an identity card was read. */
typedef struct DEV_EVENT_CITIZENIDCARD_INFO {
    ORRERY_EVENT_HEAD_C;
    int32_t nGroupID;      /* "GroupID", an integer */
    int32_t nCountInGroup; /* "CountInGroup", an integer */
    int32_t nIndexInGroup; /* "IndexInGroup", an integer */
    char szCitizen[64];    /* "Citizen": name */
    int32_t emSex;         /* "Sex", an integer: EVENT_SEX_... */
    int32_t nEthnicity;    /* "Ethnicity" */
    NET_TIME stuBirth;     /* "Birth": "1990-05-17", a date only */
    char szAddress[256];   /* "Address" */
    char szNumber[64];     /* "Number": of the card */
    char szAuthority[256]; /* "Authority" that issued it */
    NET_TIME stuStart;     /* "Start" of validity */
    int32_t bLongTerm;     /* 1 when "End" is "Endless", in this very case; stuEnd is zero then */
    NET_TIME stuEnd;       /* "End" of validity */
} DEV_EVENT_CITIZENIDCARD_INFO;

/* A picture in the data behind the text. */
typedef struct EVENT_CITIZEN_IMAGE {
    uint32_t dwOffset; /* "Offset" */
    uint32_t dwLength; /* "Length" */
    uint16_t wWidth;   /* "Width" */
    uint16_t wHeight;  /* "Height" */
} EVENT_CITIZEN_IMAGE;

/* "CitizenPictureCompare" (521): a person was compared with the picture on a card. */
typedef struct DEV_EVENT_CITIZENPICTURECOMPARE_INFO {
    int32_t nChannelID;
    uint8_t byEventAction;
    double dPTS;
    char szName[128];
    EVENT_TIME stuUTC;
    uint8_t byCompareResult;         /* "CompareResult" */
    uint8_t bySimilarity;            /* "Similarity": percent */
    uint8_t byThreshold;             /* "Threshold": percent */
    int32_t emSex;                   /* "Sex", an integer: EVENT_SEX_... */
    uint32_t dwEthnicity;            /* "Ethnicity" */
    char szCitizen[64];              /* "Citizen": name */
    char szAddress[256];             /* "Address" */
    char szNumber[64];               /* "Number": of the card */
    char szAuthority[256];           /* "Authority" that issued it */
    NET_TIME stuBirth;               /* "Birth": "1990-05-17" */
    NET_TIME stuStart;               /* "Start" of validity */
    NET_TIME stuEnd;                 /* "End" of validity */
    int32_t bLongTerm;               /* 1 when "End" is "Endless", in this very case */
    EVENT_CITIZEN_IMAGE stuImage[2]; /* "ImageInfo", at least 2 elements */
    char szEventLongID[52];          /* "Extension"."EventLongID" */
} DEV_EVENT_CITIZENPICTURECOMPARE_INFO;

/* "NetPlayCheck" (354): a guest of an internet café showed a card. */
typedef struct DEV_EVENT_NETPLAYCHECK_INFO {
    ORRERY_EVENT_HEAD_C;
    EVENT_TIME stuFileTime; /* of the notification */
    char szIC[32];          /* "IC": number of the card */
    char szNetBarName[32];  /* "NetBarName" */
    char szNetBarID[32];    /* "NetBarID" */
    char szAddress[64];     /* "Address" */
} DEV_EVENT_NETPLAYCHECK_INFO;

/* ---- Tags and targets ---- */

#define ORRERY_EVENT_RFIDS 10

/* "RFIDInfo" (358): tags came or went. */
typedef struct DEV_EVENT_RFIDINFO_INFO {
    ORRERY_EVENT_HEAD_A;
    int32_t nState;                      /* 0 when "Action" is "Start", else 1 */
    int32_t nRFIDNum;                    /* tags in use */
    char szRFID[ORRERY_EVENT_RFIDS][12]; /* "RFID" */
} DEV_EVENT_RFIDINFO_INFO;

#define ORRERY_EVENT_BULLET_HOLES 10

/* "ShootingScoreRecognition" (362): hits on a target were counted. */
typedef struct DEV_EVENT_SHOOTINGSCORERECOGNITION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_FILE_INFO stuFileInfo;
    uint8_t byEventAction;
    EVENT_POINT stuDetectRegion;                                      /* "DetectRegion", at least 2 numbers */
    int32_t nBulletHolesNum;                                          /* hits in use */
    EVENT_BULLET_HOLE_INFO stuBulletHoles[ORRERY_EVENT_BULLET_HOLES]; /* "BulletHoles" */
    uint8_t byRepeat;
    uint32_t dwFlagMask;
} DEV_EVENT_SHOOTINGSCORERECOGNITION_INFO;

#ifdef __cplusplus
}
#endif

#endif
