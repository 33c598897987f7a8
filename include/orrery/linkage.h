/* The linkage record: what a device does when an event fires, and when the event is armed. Nearly every alarm, detector
 * and analysis rule carries it under "EventHandler". */
#ifndef ORRERY_LINKAGE_H
#define ORRERY_LINKAGE_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_CHANNEL_WORDS 16 /* a channel mask: 512 channels, bit c % 32 of word c / 32 */
#define ORRERY_LINK_ITEMS 256   /* PTZ links, titles, tours, tour channels */
#define ORRERY_V2_CHANNELS 1024 /* channels of the older form */
#define ORRERY_V2_TITLES 32
#define ORRERY_V2_TOURS 128

/* Kind of a PTZ link. */
enum {
    CFG_PTZ_LINK_NONE = 0,   /* "None"; read from any other text too */
    CFG_PTZ_LINK_PRESET = 1, /* "Preset": go to preset nValue */
    CFG_PTZ_LINK_TOUR = 2,   /* "Tour": run tour nValue */
    CFG_PTZ_LINK_PATTERN = 3 /* "Pattern": run pattern nValue */
};

/* Text form: [ "Preset", value, param1, param2, param3 ], exactly five elements. */
typedef struct CFG_PTZ_LINK {
    int32_t emType;  /* CFG_PTZ_LINK_... */
    int32_t nValue;  /* number of the preset, tour or pattern */
    int32_t nParam1; /* the device's own */
    int32_t nParam2; /* the device's own */
    int32_t nParam3; /* the device's own */
} CFG_PTZ_LINK;

/* A title shown in the picture. */
typedef struct CFG_EVENT_TITLE {
    char szText[64];         /* "Text" */
    CFG_POINT stuPoint;      /* "Point": top left corner */
    CFG_SIZE stuSize;        /* "Size" */
    CFG_COLOR stuFrontColor; /* "FrontColor" */
    CFG_COLOR stuBackColor;  /* "BackColor" */
} CFG_EVENT_TITLE;

/* Attachment of a mail. */
enum { CFG_ATTACHMENT_PICTURE = 0 /* "picture" */, CFG_ATTACHMENT_VIDEO = 1 /* "video" */ };

typedef struct CFG_MAIL_DETAIL {
    int32_t emAttachmentType; /* "AttachmentType": CFG_ATTACHMENT_... */
    int32_t nMaxSize;         /* "MaxSize": largest attachment, kilobytes */
    int32_t nMaxTimeLength;   /* "MaxTimeLength": longest video, seconds */
} CFG_MAIL_DETAIL;

/* A tour of channels on a monitor. */
typedef struct CFG_MONITOR_TOUR {
    int32_t bEnable;                      /* "Enable" */
    int32_t nSplit;                       /* "Split": split mode; "Split9" is 9, "PIP3" is 1003, "Free" is 2000 */
    int32_t nChannels[ORRERY_LINK_ITEMS]; /* "Channels" */
    int32_t nChannelCount;                /* entries of nChannels in use */
} CFG_MONITOR_TOUR;

/* What to do with a door. */
enum {
    CFG_ACCESS_CONTROL_NONE = 0,        /* null, and every other text */
    CFG_ACCESS_CONTROL_AUTO = 1,        /* "Auto" */
    CFG_ACCESS_CONTROL_OPEN = 2,        /* "Open" */
    CFG_ACCESS_CONTROL_CLOSE = 3,       /* "Close" */
    CFG_ACCESS_CONTROL_OPEN_ALWAYS = 4, /* "OpenAlways" */
    CFG_ACCESS_CONTROL_CLOSE_ALWAYS = 5 /* "CloseAlways" */
};

/* The current form. An ab... flag is 1 when its key was in the text, and only keys whose flag is set are written.
 * Bools are 0 or 1; what a key leaves out stays 0. */
typedef struct CFG_EVENT_HANDLER_INFO {
    uint8_t abRecordMask;
    uint8_t abRecordEnable; /* always set by reading */
    uint8_t abRecordLatch;
    uint8_t abAlarmOutMask;
    uint8_t abAlarmOutEn; /* always set by reading */
    uint8_t abAlarmOutLatch;
    uint8_t abExAlarmOutMask;
    uint8_t abExAlarmOutEn;
    uint8_t abPtzLinkEn;
    uint8_t abTourMask;
    uint8_t abTourEnable;
    uint8_t abSnapshot;
    uint8_t abSnapshotEn;
    uint8_t abSnapshotPeriod;
    uint8_t abSnapshotTimes;
    uint8_t abTipEnable;
    uint8_t abMailEnable;
    uint8_t abMessageEnable;
    uint8_t abBeepEnable;
    uint8_t abVoiceEnable;
    uint8_t abMatrixMask;
    uint8_t abMatrixEnable;
    uint8_t abDejitter;
    uint8_t abLogEnable;
    uint8_t abDelay;
    uint8_t abVideoMessageEn;
    uint8_t abMMSEnable;
    uint8_t abMessageToNetEn;
    uint8_t abTourSplit;
    uint8_t abSnapshotTitleEn;
    uint8_t abPtzLink;
    uint8_t abSnapshotTitle;
    uint8_t abMailDetail;
    uint8_t abVideoTitleEn;
    uint8_t abVideoTitle;
    uint8_t abTour;
    uint8_t abDBKeys;
    uint8_t abJpegSummary;
    uint8_t abFlashEnable;
    uint8_t abFlashLatch;

    int32_t nRecordChannelNum;   /* "SDK_RecordChannel": channels that the device can record; read only */
    int32_t nAlarmOutChannelNum; /* "SDK_AlarmOutChannel": alarm outputs that it has; read only */

    uint32_t dwRecordMask[ORRERY_CHANNEL_WORDS];     /* "RecordChannels": channels to record, 0 to 511 */
    int32_t bRecordEnable;                           /* "RecordEnable" */
    int32_t nRecordLatch;                            /* "RecordLatch": seconds to go on recording */
    uint32_t dwAlarmOutMask[ORRERY_CHANNEL_WORDS];   /* "AlarmOutChannels"; an empty mask is written as null */
    int32_t bAlarmOutEn;                             /* "AlarmOutEnable" */
    int32_t nAlarmOutLatch;                          /* "AlarmOutLatch": seconds */
    uint32_t dwExAlarmOutMask[ORRERY_CHANNEL_WORDS]; /* "ExAlarmOutChannels": outputs of extension boxes; as above */
    int32_t bExAlarmOutEn;                           /* "ExAlarmOutEnable" */
    int32_t bPtzLinkEn;                              /* "PtzLinkEnable" */
    uint32_t dwTourMask[ORRERY_CHANNEL_WORDS];       /* "TourChannels"; -1 to -31 set bit (number & 31) of word 0,
                                                        numbers below are ignored */
    int32_t bTourEnable;                             /* "TourEnable"; written true at exactly 1 */
    uint32_t dwSnapshot[ORRERY_CHANNEL_WORDS];       /* "SnapshotChannels" */
    int32_t bSnapshotEn;                             /* "SnapshotEnable" */
    int32_t nSnapshotPeriod;                         /* "SnapshotPeriod": seconds between pictures */
    int32_t nSnapshotTimes;                          /* "SnapshotTimes": pictures to take */
    int32_t bTipEnable;                              /* "TipEnable": tip on the local screen */
    int32_t bMailEnable;                             /* "MailEnable" */
    int32_t bMessageEnable;                          /* "MessageEnable": upload to the alarm server */
    int32_t bBeepEnable;                             /* "BeepEnable" */
    int32_t bVoiceEnable;                            /* "VoiceEnable" */
    uint32_t dwMatrixMask[ORRERY_CHANNEL_WORDS];     /* "MatrixChannels"; numbers as of dwTourMask */
    int32_t nMatrixEnable;                           /* "MatrixEnable": read as a number, written true at exactly 1 */
    int32_t nDejitter;                               /* "Dejitter": seconds */
    int32_t bLogEnable;                              /* "LogEnable" */
    int32_t nDelay;                                  /* "Delay": seconds */
    int32_t bVideoMessageEn;                         /* "OnVideoMessageEn": written only, true at exactly 1 */
    int32_t bMMSEnable;                              /* "MMSEnable": picture message to a phone */
    int32_t nMessageToNetEn;                         /* "MessageToNetEnable": as nMatrixEnable */
    int32_t nTourSplit;                              /* "TourSplit": 0 "Split1", 1 "Split8"; read only */
    int32_t bSnapshotTitleEn;                        /* "SnapshotTitleEnable" */

    int32_t nPtzLinkNum;                                 /* entries of stuPtzLink in use */
    CFG_PTZ_LINK stuPtzLink[ORRERY_LINK_ITEMS];          /* "PtzLink"; an entry of another form stays zero and counts */
    int32_t nSnapshotTitleNum;                           /* entries of stuSnapshotTitle in use */
    CFG_EVENT_TITLE stuSnapshotTitle[ORRERY_LINK_ITEMS]; /* "SnapshotTitle" */
    CFG_MAIL_DETAIL stuMailDetail;                       /* "MailDetail" */
    int32_t bVideoTitleEn;                               /* "VideoTitleEnable" */
    int32_t nVideoTitleNum;                              /* entries of stuVideoTitle in use */
    CFG_EVENT_TITLE stuVideoTitle[ORRERY_LINK_ITEMS];    /* "VideoTitle" */
    int32_t nTourNum;                                    /* entries of stuTour in use */
    CFG_MONITOR_TOUR stuTour[ORRERY_LINK_ITEMS];         /* "MonitorTour" */
    int32_t nDBKeysNum;                                  /* entries of szDBKeys in use */
    char szDBKeys[64][64];                               /* "DB": keys of a data base look-up */
    char szJpegSummary[1024];                            /* "JpegSummary": raw bytes, never converted */
    int32_t bFlashEnable;                                /* "FlashEnable"; written true at exactly 1 */
    int32_t nFlashLatch;                                 /* "FlashLatch": seconds */

    uint8_t abAudioFileName;
    uint8_t abAlarmBellEn;
    uint8_t abAccessControlEn;
    uint8_t abAccessControl;
    char szAudioFileName[260];  /* "Voice"."AudioFileName" */
    int32_t bAlarmBellEn;       /* "AlarmBellEnable" */
    int32_t bAccessControlEn;   /* "AccessControlEnable" */
    int32_t nAccessControlNum;  /* entries of emAccessControl in use */
    int32_t emAccessControl[8]; /* "AccessControls"[..]."Operation", by door: CFG_ACCESS_CONTROL_... */
    uint8_t abTalkback;         /* "Talkback" is there */
    int32_t bTalkbackCallEn;    /* "Talkback"."CallEnable" */
    int32_t emTalkbackCaller;   /* "Talkback"."Caller": 0 "Device"; any other value is written as null */
    int32_t emTalkbackProtocol; /* "Talkback"."CallProtocol": 0 "Cellular"; any other value is written as null */
    uint8_t abPSTNAlarmServer;  /* "PSTNAlarmServer" is there */
    int32_t bNeedReport;        /* "PSTNAlarmServer"."NeedReport" */
    int32_t nDestinationNum;    /* entries of byDestination in use */
    uint8_t byDestination[8];   /* "PSTNAlarmServer"."Destination": server numbers, low 8 bits each */
    CFG_TIME_SCHEDULE stuTimeSectionEx; /* "TimeSection": week and holiday row */
    uint8_t abAlarmBellLatch;
    int32_t nAlarmBellLatch; /* "AlarmBellLatch": seconds */
    /* "TimeSection" as the plain week, of the commands "Alarm", "NetAlarm", "MotionDetect", "LossDetect",
     * "BlindDetect", "AnalogAlarm" and "UnFocusDetect": there the seven rows written come from here, and only a
     * holiday row from stuTimeSectionEx. Elsewhere neither read nor written. */
    CFG_TIME_SECTION stuTimeSection[ORRERY_WEEK_DAYS][ORRERY_DAY_SECTIONS];
} CFG_EVENT_HANDLER_INFO;

/* ---- The form with size words, of "TemperatureAlarm", "FanSpeedAlarm" and "RemoteEvent" ----
 * Every structure begins with its size. Reading sets the size words; whoever writes sets them too: a time section, a
 * point, a size or a colour with another size word is written as null. */

typedef struct CFG_TIME_SECTION_V2 {
    uint32_t dwSize;             /* 32 */
    CFG_TIME_SECTION stuSection; /* the period */
} CFG_TIME_SECTION_V2;

/* Members are as in CFG_POINT. */
typedef struct CFG_POINT_V2 {
    uint32_t dwSize; /* 12 */
    int32_t nX;
    int32_t nY;
} CFG_POINT_V2;

typedef struct CFG_SIZE_V2 {
    uint32_t dwSize; /* 12 */
    int32_t nWidth;  /* first number */
    int32_t nHeight; /* second number */
} CFG_SIZE_V2;

/* Members are as in CFG_COLOR. */
typedef struct CFG_COLOR_V2 {
    uint32_t dwSize; /* 20 */
    int32_t nRed;
    int32_t nGreen;
    int32_t nBlue;
    int32_t nAlpha;
} CFG_COLOR_V2;

/* Members are as in CFG_PTZ_LINK. */
typedef struct CFG_PTZ_LINK_V2 {
    uint32_t dwSize; /* 24 */
    int32_t emType;  /* CFG_PTZ_LINK_...; only 1 to 3 are written */
    int32_t nValue;
    int32_t nParam1;
    int32_t nParam2;
    int32_t nParam3;
} CFG_PTZ_LINK_V2;

typedef struct CFG_EVENT_TITLE_V2 {
    uint32_t dwSize;            /* 132 */
    char szText[64];            /* "Text" */
    CFG_POINT_V2 stuPoint;      /* "Point" */
    CFG_SIZE_V2 stuSize;        /* "Size" */
    CFG_COLOR_V2 stuFrontColor; /* "FrontColor" */
    CFG_COLOR_V2 stuBackColor;  /* "BackColor" */
} CFG_EVENT_TITLE_V2;

typedef struct CFG_MONITOR_TOUR_V2 {
    uint32_t dwSize;                       /* 4112 */
    int32_t bEnable;                       /* "Enable" */
    int32_t nSplit;                        /* "Split" */
    int32_t nChannels[ORRERY_V2_CHANNELS]; /* "Channels" */
    int32_t nChannelCount;                 /* entries of nChannels in use */
} CFG_MONITOR_TOUR_V2;

/* Channel lists hold one flag a channel: non-zero when the channel is in the text's list. */
typedef struct CFG_EVENT_HANDLER_V2_INFO {
    uint32_t dwSize;
    CFG_TIME_SECTION_V2 stuTimeSection[ORRERY_WEEK_DAYS][ORRERY_DAY_SECTIONS]; /* "TimeSection" */
    int32_t bRecordEnable;                                                     /* "RecordEnable" */
    int32_t nRecordChannels[ORRERY_V2_CHANNELS];                               /* "RecordChannels" */
    int32_t abRecordLatch;
    int32_t nRecordLatch;                          /* "RecordLatch": seconds */
    int32_t bAlarmOutEnable;                       /* "AlarmOutEnable" */
    int32_t nAlarmOutChannels[ORRERY_V2_CHANNELS]; /* "AlarmOutChannels" */
    int32_t abAlarmOutLatch;
    int32_t nAlarmOutLatch;                          /* "AlarmOutLatch": seconds */
    int32_t bExAlarmOutEnable;                       /* "ExAlarmOutEnable" */
    int32_t nExAlarmOutChannels[ORRERY_V2_CHANNELS]; /* "ExAlarmOutChannels" */
    int32_t bPtzLinkEnable;                          /* "PtzLinkEnable" */
    int32_t nPtzLinkNum;                             /* entries of stuPtzLink in use */
    CFG_PTZ_LINK_V2 stuPtzLink[ORRERY_V2_CHANNELS];  /* "PtzLink" */
    int32_t bSnapshotEnable;                         /* "SnapshotEnable" */
    int32_t nSnapshotChannels[ORRERY_V2_CHANNELS];   /* "SnapshotChannels" */
    int32_t abSnapshotPeriod;
    int32_t nSnapshotPeriod;                               /* "SnapshotPeriod": seconds */
    int32_t abSnapshotTimes;                               /* in no text */
    int32_t nSnapshotTimes;                                /* in no text */
    int32_t bSnapshotTitleEnable;                          /* "SnapshotTitleEnable" */
    int32_t nSnapshotTitleNum;                             /* entries of stuSnapshotTitle in use */
    CFG_EVENT_TITLE_V2 stuSnapshotTitle[ORRERY_V2_TITLES]; /* "SnapshotTitle" */
    int32_t bTipEnable;                                    /* "TipEnable" */
    int32_t bMailEnable;                                   /* "MailEnable" */
    int32_t bMessageEnable;                                /* "MessageEnable" */
    int32_t bBeepEnable;                                   /* "BeepEnable" */
    int32_t bVoiceEnable;                                  /* "VoiceEnable" */
    int32_t abDejitter;
    int32_t nDejitter;  /* "Dejitter": seconds */
    int32_t bLogEnable; /* "LogEnable" */
    int32_t abDelay;
    int32_t nDelay;                                     /* "Delay": seconds */
    int32_t bVideoTitleEnable;                          /* "VideoTitleEnable" */
    int32_t nVideoTitleNum;                             /* entries of stuVideoTitle in use */
    CFG_EVENT_TITLE_V2 stuVideoTitle[ORRERY_V2_TITLES]; /* "VideoTitle" */
    int32_t bMMSEnable;                                 /* "MMSEnable" */
    int32_t nTourNum;                                   /* entries of stuTour in use */
    CFG_MONITOR_TOUR_V2 stuTour[ORRERY_V2_TOURS];       /* "MonitorTour" */
    int32_t nDBKeysNum;    /* entries of szDBKeys in use; a list in the text reads as 0 of them, a number as itself */
    char szDBKeys[64][32]; /* "DB" */
    char szJpegSummary[1024]; /* "JpegSummary": raw bytes, never converted */
} CFG_EVENT_HANDLER_V2_INFO;

#ifdef __cplusplus
}
#endif

#endif
