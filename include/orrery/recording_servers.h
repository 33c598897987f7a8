/* What storage servers record of which devices, which services they run, and recordings as evidence.
 *
 * The first three stand at the top of the reply, under the command's name, and their "result" is not looked at. Keys
 * that are absent leave 0 unless told otherwise. */
#ifndef ORRERY_RECORDING_SERVERS_H
#define ORRERY_RECORDING_SERVERS_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A channel that a server records. */
typedef struct CFG_DEV_RECORD_ITEM {
    char szDevName[128];         /* "DevName": name of the device */
    char szDevIP[256];           /* "DevIP": its address */
    char szChanID[128];          /* "ChanID": identifier of the channel */
    char szChanName[128];        /* "ChanName": name of the channel */
    char szStoragePosition[128]; /* "StoragePosition": name of the position that it is stored at */
    int32_t nStatus;             /* "Status": whether it is recorded */
} CFG_DEV_RECORD_ITEM;

#define ORRERY_DEV_RECORDS 128

/* "DevRecordGroup": the channels that a server records. */
typedef struct CFG_DEV_RECORD_GROUP_INFO {
    int32_t nCount;                                       /* entries of stuDevRecord in use */
    CFG_DEV_RECORD_ITEM stuDevRecord[ORRERY_DEV_RECORDS]; /* "DevRecord": at most 128 */
} CFG_DEV_RECORD_GROUP_INFO;

/* A device that a server takes pictures from. */
typedef struct CFG_VIDEOIN_DEV_ITEM {
    char szName[128];        /* "Name" */
    char szID[128];          /* "ID": its identifier */
    char szType[128];        /* "Type": its model */
    int32_t nTotalChan;      /* "TotalChan": how many channels it has */
    int32_t nTotalAlarmChan; /* "TotalAlarmChan": how many alarm inputs it has */
    char szIP[256];          /* "IP": its address */
    int32_t nStatus;         /* "Status": whether it is connected */
} CFG_VIDEOIN_DEV_ITEM;

#define ORRERY_VIDEOIN_DEVS 128

/* "VideoInDevGroup": the devices that a server takes pictures from. */
typedef struct CFG_VIDEOIN_DEV_GROUP_INFO {
    int32_t nCount;                                          /* entries of stuVideoInDev in use */
    CFG_VIDEOIN_DEV_ITEM stuVideoInDev[ORRERY_VIDEOIN_DEVS]; /* "VideoInDev": at most 128 */
} CFG_VIDEOIN_DEV_GROUP_INFO;

#define ORRERY_IPS_SERVERS 16

/* "IpsServer": the services of a storage server. A null ends a list of names. */
typedef struct CFG_IPS_SERVER_INFO {
    int32_t nSupportServerCount;                   /* entries of szSupportServer in use */
    char szSupportServer[ORRERY_IPS_SERVERS][128]; /* "SupportServer": services that it can run, at most 16 */
    int32_t nSubServerCount;                       /* entries of szSubServer in use */
    char szSubServer[ORRERY_IPS_SERVERS][128];     /* "SvrSuppSubServer": parts of its own service, at most 16 */
    uint8_t byCMS;                                 /* "Svr"."CMS"."Status": how the service does */
    uint8_t byDMS;                                 /* "Svr"."DMS"."Status" */
    uint8_t byMTS;                                 /* "Svr"."MTS"."Status" */
    uint8_t bySS;                                  /* "Svr"."SS"."Status" */
    uint8_t byRMS;                                 /* "Svr"."RMS"."Status" */
    uint8_t byDBR;                                 /* "Svr"."DBR"."Status" */
    uint8_t bySvrd;                                /* "Svrd"."Status" */
    uint8_t byDataBase;                            /* "DataBase"."Status" */
    uint8_t byDataBased;                           /* "DataBased"."Status" */
    uint8_t byNtpServer;                           /* "NtpServer"."Status" */
    uint8_t byNtpServerd;                          /* "NtpServerd"."Status" */
    uint8_t byTesseraII;                           /* "TesseraII"."Status" */
    uint8_t byTesseraIId;                          /* "TesseraIId"."Status" */
    uint8_t bySamba;                               /* "Samba"."Status" */
    uint8_t byNfs;                                 /* "Nfs"."Status" */
    uint8_t byFtp;                                 /* "Ftp"."Status" */
    uint8_t byIScsi;                               /* "iScsi"."Status" */
} CFG_IPS_SERVER_INFO;

/* A line of a case that is the user's own. */
typedef struct CFG_JUDICATURE_CUSTOM_CASE {
    char szTitle[128]; /* "Title": what the line is called */
    char szText[256];  /* "Text": what it says */
} CFG_JUDICATURE_CUSTOM_CASE;

#define ORRERY_JUDICATURE_CASES 16
#define ORRERY_JUDICATURE_CHANNELS 64

/* "Judicature": what is burned with recordings that serve as evidence. The device's "result" is not looked at. */
typedef struct CFG_JUDICATURE_INFO {
    char szDiskPassword[64];  /* "DiskPassword": of the disk */
    char szPassword[64];      /* "Password": of the recordings */
    int32_t nPasswordLen;     /* "PasswordLen": length of the password */
    char szCase[128];         /* "Case": what the case is about */
    char szCaseNo[128];       /* "CaseNo": its number */
    char szTitle[128];        /* "Title" */
    char szOfficialMan[128];  /* "OfficialMan": who is in charge */
    char szPosition[128];     /* "Position": where it happened */
    char szRelatedMan[128];   /* "RelatedMan": who is concerned */
    char szDiskNo[128];       /* "DiskNo": number of the disk */
    int32_t nCustomCaseCount; /* entries of stuCustomCase in use */
    CFG_JUDICATURE_CUSTOM_CASE
    stuCustomCase[ORRERY_JUDICATURE_CASES];          /* "CustomCase": at most 16; none writes no key */
    int32_t bOsdEnable;                              /* "OsdEnable": the case is shown in the picture */
    int32_t bDataCheck;                              /* "DataCheck": what was burned is compared */
    int32_t bAttachFileEn;                           /* "AttachFileEn": further files are burned too */
    NET_TIME stuStartTime;                           /* "StartTime" */
    int32_t nPeriod;                                 /* "Period": minutes that it lasts */
    int32_t nExChannelCount;                         /* entries of nExChannels in use */
    int32_t nExChannels[ORRERY_JUDICATURE_CHANNELS]; /* "ExChannels": further channels, from 0, at most 64; nothing but
                                                        a list is read, and none writes no key */
} CFG_JUDICATURE_INFO;

#ifdef __cplusplus
}
#endif

#endif
