/* Where a device reports its alarms to: alarm servers on the network, receivers on the telephone line, and the mobile
 * network in between. Keys that are absent leave 0. */
#ifndef ORRERY_ALARM_DEVICE_SERVERS_H
#define ORRERY_ALARM_DEVICE_SERVERS_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_BACKUP_ALARM_SERVERS 8

/* An alarm server that is called when the first is gone. */
typedef struct CFG_BACKUP_ALARM_SERVER {
    int32_t bEnable;        /* "Enable" */
    char szProtocol[32];    /* "Protocol" */
    char szConnection[32];  /* "Connection": how it is reached, such as "TCP" */
    char szAddress[256];    /* "Address" */
    int32_t nPort;          /* "Port" */
    char szUserName[64];    /* "UserName" */
    char szPassword[64];    /* "Password" */
    int32_t nReportWeekDay; /* "ReportWeekDay": day of the regular report, 0 Sunday to 6 Saturday */
    NET_TIME stuReportTime; /* "ReportTime": time of the regular report, "09:30:00", within the first 15 characters; the
                               date is not used */
} CFG_BACKUP_ALARM_SERVER;

/* "AlarmServer". */
typedef struct CFG_ALARM_SERVER_INFO {
    int32_t bEnable;        /* "Enable" */
    char szProtocol[32];    /* "Protocol" */
    char szConnection[32];  /* "Connection": how it is reached, such as "TCP" */
    char szAddress[256];    /* "Address" */
    int32_t nPort;          /* "Port" */
    char szUserName[64];    /* "UserName" */
    char szPassword[64];    /* "Password" */
    int32_t nReportWeekDay; /* "ReportWeekDay": day of the regular report, 0 Sunday to 6 Saturday */
    NET_TIME stuReportTime; /* "ReportTime": time of the regular report, "09:30:00", within the first 15 characters; the
                               date is not used */
    int32_t nBackupNum;     /* entries of stuBackups in use */
    CFG_BACKUP_ALARM_SERVER stuBackups[ORRERY_BACKUP_ALARM_SERVERS]; /* "BackupAlarmServers"; written also when empty */
} CFG_ALARM_SERVER_INFO;

/* How a receiver is spoken to ("Protocol"). */
enum {
    CFG_PSTN_PROTOCOL_CID = 0, /* "CID": contact identification; absent and unknown texts too */
    CFG_PSTN_PROTOCOL_SIA = 1, /* "SIA": frequency shift */
    CFG_PSTN_PROTOCOL_4_2 = 2  /* "4+2": pulses */
};

/* How a receiver is signalled to ("Mode"). */
enum {
    CFG_PSTN_MODE_CID = 0,      /* "CID"; absent and unknown texts too */
    CFG_PSTN_MODE_DTMF_5_S = 1, /* "DTMF 5/S": five tones a second */
    CFG_PSTN_MODE_DTMF_10_S = 2 /* "DTMF 10/S": ten tones a second */
};

#define ORRERY_PSTN_SERVERS 8

/* A receiver. Codes without a text are not written. */
typedef struct CFG_PSTN_SERVER {
    char szName[128];   /* "Name" */
    char szNumber[32];  /* "Number": to be dialled */
    int32_t emProtocol; /* "Protocol": CFG_PSTN_PROTOCOL_... */
    int32_t emMode;     /* "Mode": CFG_PSTN_MODE_... */
    int32_t nTryCount;  /* "TryCount": attempts to reach it */
    int32_t nDelay;     /* "Delay": seconds between them */
    char szAccount[32]; /* "Account": of the site at the receiver */
} CFG_PSTN_SERVER;

/* "PSTNAlarmServer". */
typedef struct CFG_PSTN_ALARM_SERVER_INFO {
    int32_t bEnable;                                 /* "Enable" */
    int32_t nServerNum;                              /* entries of stuServers in use */
    CFG_PSTN_SERVER stuServers[ORRERY_PSTN_SERVERS]; /* "Servers"; written also when empty */
} CFG_PSTN_ALARM_SERVER_INFO;

/* What mobile data are counted by ("Day3GFluxTactic", "3GFluxTactic"). */
enum {
    CFG_3G_FLUX_BY_FLUX = 0, /* "ByFlux": by their amount; absent and unknown texts too */
    CFG_3G_FLUX_BY_TIME = 1  /* "ByTime": by the time of the connection */
};

/* What happens when the mobile data of a day are used up ("Day3GFluxAction"). */
enum {
    CFG_3G_ACTION_NOTHING = 0, /* "Nothing"; absent and unknown texts too */
    CFG_3G_ACTION_NET_DOWN = 1 /* "3GNetDown": the connection is closed */
};

/* How the device proves who it is ("AuthMode"). */
enum {
    CFG_3G_AUTH_PAP = 0, /* "PAP"; absent and unknown texts too */
    CFG_3G_AUTH_CHAP = 1 /* "CHAP" */
};

/* The kind of mobile network ("WorkMode"). */
enum {
    CFG_3G_WORK_AUTO = 0,     /* "Auto": whatever there is; absent and unknown texts too */
    CFG_3G_WORK_GPRS = 1,     /* "GPRS" */
    CFG_3G_WORK_CDMA2000 = 2, /* "CDMA2000" */
    CFG_3G_WORK_WCDMA = 3,    /* "WCDMA" */
    CFG_3G_WORK_TD_SCDMA = 4, /* "TD-SCDMA" */
    CFG_3G_WORK_TD_LTE = 5,   /* "TD-LTE" */
    CFG_3G_WORK_FDD_LTE = 6   /* "FDD-LTE" */
};

/* "Wireless": the mobile network. Everything stands in the object "3G". Codes without a text are not written. */
typedef struct CFG_WIRELESS_INFO {
    int32_t bEnable;         /* "3G"."Enable" */
    int32_t nKeepAlive;      /* "3G"."KeepAlive": seconds until an idle connection is closed */
    char szAPN[32];          /* "3G"."APN": access point */
    char szUserName[64];     /* "3G"."UserName" */
    char szPassword[64];     /* "3G"."Password" */
    int32_t emDayFluxTactic; /* "3G"."Day3GFluxTactic": CFG_3G_FLUX_..., of a day */
    uint32_t nDayFluxUp;     /* "3G"."Day3GFluxUp": most of a day, megabytes or minutes */
    uint32_t nDayFluxUse;    /* "3G"."Day3GFluxUse": used today, megabytes or minutes */
    int32_t emDayFluxAction; /* "3G"."Day3GFluxAction": CFG_3G_ACTION_... */
    CFG_TIME_SECTION stuTimeSection[ORRERY_WEEK_DAYS][ORRERY_DAY_SECTIONS]; /* "3G"."TimeSection": when the network may
                                                                               be used; ends at its first bad cell */
    int32_t emAuthMode;                                                     /* "3G"."AuthMode": CFG_3G_AUTH_... */
    uint32_t nFlux;       /* "3G"."3GFlux": used this month, megabytes or minutes */
    int32_t emFluxTactic; /* "3G"."3GFluxTactic": CFG_3G_FLUX_..., of a month */
    uint32_t nFluxUp;     /* "3G"."3GFluxUp": most of a month, megabytes or minutes */
    int32_t emWorkMode;   /* "3G"."WorkMode": CFG_3G_WORK_... */
} CFG_WIRELESS_INFO;

#ifdef __cplusplus
}
#endif

#endif
