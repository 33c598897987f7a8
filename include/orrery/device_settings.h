/* General settings of a device: language and formats, clock, maintenance, working hours. */
#ifndef ORRERY_DEVICE_SETTINGS_H
#define ORRERY_DEVICE_SETTINGS_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A moment of the year at which clocks change. */
typedef struct CFG_DST_TIME {
    int32_t nYear;   /* "Year" */
    int32_t nMonth;  /* "Month": 1 to 12 */
    int32_t nWeek;   /* "Week": of the month, 1 to 4, -1 the last; 0 when "Day" is the day of the month */
    int32_t nDay;    /* "Day": of the week from Sunday 0 when "Week" is set, else of the month from 1 */
    int32_t nHour;   /* "Hour": 0 to 23 */
    int32_t nMinute; /* "Minute": 0 to 59 */
} CFG_DST_TIME;

/* "Locales": formats and daylight saving time. */
typedef struct CFG_LOCALES_INFO {
    char szTimeFormat[32];    /* "TimeFormat": such as "yyyy-MM-dd HH:mm:ss" */
    int32_t bDSTEnable;       /* "DSTEnable": daylight saving time */
    CFG_DST_TIME stuDSTStart; /* "DSTStart" */
    CFG_DST_TIME stuDSTEnd;   /* "DSTEnd" */
} CFG_LOCALES_INFO;

/* Languages of a device's menus. A text that is none of them gives -1; a code that is none of them is written as an
 * empty text. */
typedef enum CFG_LANGUAGE {
    CFG_LANGUAGE_UNKNOWN = -1,
    CFG_LANGUAGE_ENGLISH = 0,  /* "English" */
    CFG_LANGUAGE_SIMP_CHINESE, /* "SimpChinese": simplified Chinese */
    CFG_LANGUAGE_TRAD_CHINESE, /* "TradChinese": traditional Chinese */
    CFG_LANGUAGE_ITALIAN,      /* "Italian" */
    CFG_LANGUAGE_SPANISH,      /* "Spanish" */
    CFG_LANGUAGE_JAPANESE,     /* "Japanese" */
    CFG_LANGUAGE_RUSSIAN,      /* "Russian" */
    CFG_LANGUAGE_FRENCH,       /* "French" */
    CFG_LANGUAGE_GERMAN,       /* "German" */
    CFG_LANGUAGE_PORTUGAL,     /* "Portugal" */
    CFG_LANGUAGE_TURKEY,       /* "Turkey" */
    CFG_LANGUAGE_POLAND,       /* "Poland" */
    CFG_LANGUAGE_ROMANIAN,     /* "Romanian" */
    CFG_LANGUAGE_HUNGARIAN,    /* "Hungarian" */
    CFG_LANGUAGE_FINNISH,      /* "Finnish" */
    CFG_LANGUAGE_ESTONIAN,     /* "Estonian" */
    CFG_LANGUAGE_KOREAN,       /* "Korean" */
    CFG_LANGUAGE_FARSI,        /* "Farsi" */
    CFG_LANGUAGE_DANSK,        /* "Dansk" */
    CFG_LANGUAGE_CZECHISH,     /* "Czechish" */
    CFG_LANGUAGE_BULGARIA,     /* "Bulgaria" */
    CFG_LANGUAGE_SLOVAKIAN,    /* "Slovakian" */
    CFG_LANGUAGE_SLOVENIA,     /* "Slovenia" */
    CFG_LANGUAGE_CROATIAN,     /* "Croatian" */
    CFG_LANGUAGE_DUTCH,        /* "Dutch" */
    CFG_LANGUAGE_GREEK,        /* "Greek" */
    CFG_LANGUAGE_UKRAINIAN,    /* "Ukrainian" */
    CFG_LANGUAGE_SWEDISH,      /* "Swedish" */
    CFG_LANGUAGE_SERBIAN,      /* "Serbian" */
    CFG_LANGUAGE_VIETNAMESE,   /* "Vietnamese" */
    CFG_LANGUAGE_LITHUANIAN,   /* "Lithuanian" */
    CFG_LANGUAGE_FILIPINO,     /* "Filipino" */
    CFG_LANGUAGE_ARABIC,       /* "Arabic" */
    CFG_LANGUAGE_CATALAN,      /* "Catalan" */
    CFG_LANGUAGE_LATVIAN,      /* "Latvian" */
    CFG_LANGUAGE_THAI,         /* "Thai" */
    CFG_LANGUAGE_HEBREW,       /* "Hebrew" */
    CFG_LANGUAGE_BOSNIAN,      /* "Bosnian" */
    CFG_LANGUAGE_COUNT
} CFG_LANGUAGE;

/* "Language": the language of a device's menus. The reply's table is the language's text itself; a table of another
 * type fails. */
typedef struct CFG_LANGUAGE_INFO {
    int32_t emLanguage; /* the table itself: CFG_LANGUAGE, -1 for an unknown text */
} CFG_LANGUAGE_INFO;

#define ORRERY_APP_LANGUAGES 64

/* "AppEventLanguage": in which language a device words the messages that it pushes to telephones. */
typedef struct CFG_APP_EVENT_LANGUAGE_INFO {
    int32_t emCurrLanguage;                       /* "CurrLanguage": CFG_LANGUAGE, -1 for an unknown text */
    int32_t nLanguageNum;                         /* entries of emAllLanguages in use */
    int32_t emAllLanguages[ORRERY_APP_LANGUAGES]; /* "AllLanguages": CFG_LANGUAGE of those to choose from, -1 for an
                                                     unknown text; not written when there are none */
} CFG_APP_EVENT_LANGUAGE_INFO;

/* "AutoMaintain": restarts, shutdowns and starts at fixed times. Days: -1 never, 0 to 6 Sunday to Saturday, 7 every
 * day. */
typedef struct CFG_AUTO_MAINTAIN_INFO {
    int32_t nAutoRebootDay;      /* "AutoRebootDay" */
    int32_t nAutoRebootHour;     /* "AutoRebootHour": 0 to 23 */
    int32_t nAutoRebootMinute;   /* "AutoRebootMinute": 0 to 59 */
    int32_t nAutoShutdownDay;    /* "AutoShutdownDay" */
    int32_t nAutoShutdownHour;   /* "AutoShutdownHour": 0 to 23 */
    int32_t nAutoShutdownMinute; /* "AutoShutdownMinute": 0 to 59 */
    int32_t nAutoStartUpDay;     /* "AutoStartUpDay" */
    int32_t nAutoStartUpHour;    /* "AutoStartUpHour": 0 to 23 */
    int32_t nAutoStartUpMinute;  /* "AutoStartUpMinute": 0 to 59 */
    int32_t bAutoRebootEnable;   /* "AutoRebootEnable" */
} CFG_AUTO_MAINTAIN_INFO;

#define ORRERY_CUSTOM_BINARY 128

/* "ClientCustomData": what a client keeps on a device for its own use. */
typedef struct CFG_CLIENT_CUSTOM_DATA_INFO {
    char szDescription[260];               /* "Description" */
    char szData[2048];                     /* "Data": an object of the client's own, as JSON text in UTF-8. Empty when
                                              absent, no object, or longer. Written when it is the text of an object */
    int32_t nBinaryNum;                    /* entries of nBinary in use */
    int32_t nBinary[ORRERY_CUSTOM_BINARY]; /* "Binary": numbers of the client's own; not written when there are none */
} CFG_CLIENT_CUSTOM_DATA_INFO;

/* "DeviceKeepAlive": how a device watches devices attached to it, and restarts those that do not answer. */
typedef struct CFG_DEVICE_KEEPALIVE_INFO {
    int32_t bEnable;       /* "Enable" */
    int32_t nInterval;     /* "Interval": between two tests, seconds */
    int32_t nFailTimes;    /* "FailTimes": failures in a row that count as a loss */
    int32_t nWaitBootTime; /* "WaitBootTime": for a device to start, seconds */
} CFG_DEVICE_KEEPALIVE_INFO;

#define ORRERY_NTP_SERVERS 4

/* A further time server. */
typedef struct CFG_NTP_SERVER {
    int32_t bEnable;     /* "Enable" */
    char szAddress[256]; /* "Address": IP address or host name */
    int32_t nPort;       /* "Port" */
} CFG_NTP_SERVER;

/* "NTP": the clock is set by time servers. */
typedef struct CFG_NTP_INFO {
    int32_t bEnable;                               /* "Enable" */
    char szAddress[256];                           /* "Address": of the time server, IP address or host name */
    int32_t nPort;                                 /* "Port": 123 as a rule */
    uint32_t nUpdatePeriod;                        /* "UpdatePeriod": minutes */
    uint32_t nTimeZone;                            /* "TimeZone": the device's number of a time zone, from 0 */
    char szTimeZoneDesc[128];                      /* "TimeZoneDesc": a city of the time zone */
    int32_t nServerNum;                            /* entries of stuServers in use */
    CFG_NTP_SERVER stuServers[ORRERY_NTP_SERVERS]; /* "ServerList": further servers; not written when there are none */
} CFG_NTP_INFO;

/* "Telnet": remote login. */
typedef struct CFG_TELNET_INFO {
    int32_t bEnable; /* "Enable" */
} CFG_TELNET_INFO;

/* "WorkTime": working hours, and a period in which they do not hold. Of the two clock times the date is 0. The reply's
 * length is added to what `returnedLength` holds. */
typedef struct CFG_WORK_TIME_INFO {
    int32_t bEnable;           /* "Enable" */
    NET_TIME stuWorkTimeStart; /* "WorkTimeStart": "08:30:00" */
    NET_TIME stuWorkTimeEnd;   /* "WorkTimeEnd": "17:30:00" */
    uint32_t nOutTimeStart;    /* "OutTimeStart": seconds since 1970 */
    uint32_t nOutTimeEnd;      /* "OutTimeEnd": seconds since 1970 */
} CFG_WORK_TIME_INFO;

/* "LightingSchedule": when lamps are on, one record or a list, one a channel. The reply's length is added to what
 * `returnedLength` holds; a null element leaves its record zero and is not counted. */
typedef struct CFG_LIGHTING_SCHEDULE_INFO {
    CFG_TIME_SCHEDULE stuTimeSchedule; /* "TimeSchedule": seven rows, or eight with a holiday row */
} CFG_LIGHTING_SCHEDULE_INFO;

/* "VTOBasicInfo": a door station. The reply's table is an object, or a list whose first element is one. The reply's
 * length is added to what `returnedLength` holds. */
typedef struct CFG_VTO_BASIC_INFO {
    char szNumber[32];        /* "Number": under which it is called */
    int32_t nDeviceType;      /* "DeviceType": the device's number of its kind */
    int32_t nType;            /* "Type": the device's number of its place: 0 unit, 1 wall, 2 villa */
    int32_t nPosition;        /* "Position" */
    char szAnalogVersion[64]; /* "AnalogVersion": version of the analog part */
    int32_t bFaceDetect;      /* "FaceDetect" */
} CFG_VTO_BASIC_INFO;

#ifdef __cplusplus
}
#endif

#endif
