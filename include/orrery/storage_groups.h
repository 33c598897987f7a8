/* Where channels are stored: groups of places, servers and limits.
 *
 * Commands that tell of several records take one, or a list of them in which a null leaves its record zero; an empty
 * list is refused. One record is written bare, several as a list. Keys that are absent leave 0 unless told otherwise.
 */
#ifndef ORRERY_STORAGE_GROUPS_H
#define ORRERY_STORAGE_GROUPS_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A channel, or a device, in a storage group. */
typedef struct CFG_STORAGE_GROUP_CHANNEL {
    uint32_t dwSize;      /* the size of this record, set by reading in all of them; not looked at in writing */
    int32_t nMaxPictures; /* "MaxPictures": most pictures kept of it */
    char szPath[32];      /* "Path": where they are kept */
} CFG_STORAGE_GROUP_CHANNEL;

#define ORRERY_STORAGE_GROUP_CHANNELS 1024

/* "StorageGroup": places that recordings and pictures go to by turns. The table is a list, in which a null is a record
 * without keys; a missing one, and one that is no list, succeed with a length of 0. Written is always a list.
 *
 * Records begin with dwSize, the size that the caller was compiled with: the caller sets that of its first record
 * before every call, and it is the distance from one record to the next. A dwSize below 4, or above the buffer, fails.
 * What lies behind the caller's own records stays as it was. */
typedef struct CFG_STORAGE_GROUP_INFO {
    uint32_t dwSize;
    char szName[64];             /* "Name" */
    char szMemo[128];            /* "Memo": words about the group */
    int32_t nFileHoldTime;       /* "FileHoldTime": days that files are kept */
    uint32_t bOverWrite;         /* "OverWrite": the oldest files give way when it is full */
    char szRecordPathRule[260];  /* "RecordPathRule": how the paths of recordings are made */
    char szPicturePathRule[260]; /* "PicturePathRule": how the paths of pictures are made */
    CFG_STORAGE_GROUP_CHANNEL stuChannels[ORRERY_STORAGE_GROUP_CHANNELS];   /* "Channels": at most 1024; none writes no
                                                                               key */
    int32_t nChannelCount;                                                  /* entries of stuChannels in use */
    char szCustomName[64];                                                  /* "CustomName": the name that users see */
    int32_t nSubDeviceCount;                                                /* entries of stuSubDevices in use */
    CFG_STORAGE_GROUP_CHANNEL stuSubDevices[ORRERY_STORAGE_GROUP_CHANNELS]; /* "SubDevices": at most 1024; none writes
                                                                               no key */
} CFG_STORAGE_GROUP_INFO;

#define ORRERY_STORAGE_DEV_MEMBERS 32

/* "StorageDevGroup": a group of storage devices. */
typedef struct CFG_STORAGE_DEV_GROUP_INFO {
    char szName[32];      /* "Name" */
    int32_t nIndex;       /* "Index": its number */
    int32_t nMemberCount; /* entries of szMembers in use */
    char szMembers[ORRERY_STORAGE_DEV_MEMBERS]
                  [260]; /* "Members": names of the devices, at most 32; none writes no key */
} CFG_STORAGE_DEV_GROUP_INFO;

/* "RecordToGroup": which group of storage devices a channel records to. */
typedef struct CFG_RECORD_TO_GROUP_INFO {
    int32_t nChannel;     /* "Channel": from 0 */
    int32_t bEnable;      /* "Enable" */
    char szGroupName[32]; /* "GroupName": name of the group */
    int32_t nIndex;       /* "Index": number of the group */
} CFG_RECORD_TO_GROUP_INFO;

/* "MetaDataServer": a server that what analysis finds goes to. The device's "result" is not looked at; a text of
 * exactly the capacity loses its newline. */
typedef struct CFG_METADATA_SERVER_INFO {
    int32_t bEnable;     /* "Enable" */
    char szAddress[256]; /* "Address": IP address or host name */
    int32_t nPort;       /* "Port" */
    char szUserName[64]; /* "UserName" */
    char szPassword[64]; /* "Password" */
    char szDeviceID[32]; /* "DeviceID": under which the device is known there */
} CFG_METADATA_SERVER_INFO;

#define ORRERY_REMOTE_STORAGE_CHANNELS 256

/* "RemoteStorageLimit": what of a remote storage may be used. The device's "result" is not looked at. */
typedef struct CFG_REMOTE_STORAGE_LIMIT_INFO {
    char szName[128];                                  /* "Name": of the storage */
    int32_t nFileLength;                               /* "FileLength": megabytes of one file */
    int32_t nInterval;                                 /* "Interval": seconds from one file to the next */
    int32_t nChannelCount;                             /* entries of nChannels in use */
    int32_t nChannels[ORRERY_REMOTE_STORAGE_CHANNELS]; /* "Channels": channels stored there, from 0, at most 256; none
                                                          writes no key */
    CFG_TIME_SECTION stuTimeSchedule[ORRERY_WEEK_DAYS][ORRERY_DAY_SECTIONS]; /* "TimeSchedule": when, Sunday first; it
                                                                                ends at its first bad period */
} CFG_REMOTE_STORAGE_LIMIT_INFO;

/* "SpecialDirectoryDefine": where a device keeps files of its own. */
typedef struct CFG_SPECIAL_DIR_INFO {
    char
        szBackgroudImageDirectory[260]; /* "BackgroudImageDirectory" (the devices' spelling): pictures behind windows */
    char szWindowIconDirectory[260];    /* "WindowIconDirectory": icons of windows */
    char szEventVoiceDirectory[260];    /* "EventVoiceDirectory": words spoken at events */
} CFG_SPECIAL_DIR_INFO;

/* "FileManager.getCaps": what a device's files can be. */
typedef struct CFG_FILE_MANAGER_CAPS {
    int32_t nMaxUploadFileSize; /* "MaxUploadFileSize": most bytes of a file that is sent to the device */
} CFG_FILE_MANAGER_CAPS;

/* "log.getCaps": what a device's log can do. */
typedef struct CFG_LOG_CAPS {
    int32_t nMaxSize;           /* "MaxSize": most entries that are kept */
    int32_t nMaxPageSize;       /* "MaxPageSize": most entries of one answer */
    int32_t bSupportStartNo;    /* "SupportStartNo": answers may begin at a number */
    int32_t bSupportTypeFilter; /* "SupportTypeFilter": answers may be of one kind */
    int32_t bSupportTimeFilter; /* "SupportTimeFilter": answers may be of a time */
} CFG_LOG_CAPS;

#ifdef __cplusplus
}
#endif

#endif
