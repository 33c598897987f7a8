/* Storage in the network. */
#ifndef ORRERY_STORAGE_NAS_H
#define ORRERY_STORAGE_NAS_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* How storage in the network is reached ("Protocol"), in the case shown. Every other text gives -1; a code that is none
 * of these is not written. */
typedef enum CFG_NAS_PROTOCOL {
    CFG_NAS_PROTOCOL_UNKNOWN = -1,
    CFG_NAS_PROTOCOL_FTP = 0,   /* "FTP" */
    CFG_NAS_PROTOCOL_SMB = 1,   /* "SMB" */
    CFG_NAS_PROTOCOL_ISCSI = 2, /* "ISCSI" */
    CFG_NAS_PROTOCOL_NFS = 3    /* "NFS" */
} CFG_NAS_PROTOCOL;

/* How names are encoded there ("CharacterEncoding"), in the case shown. Every other text gives -1; a code that is none
 * of these is not written. */
typedef enum CFG_NAS_ENCODING {
    CFG_NAS_ENCODING_UNKNOWN = -1,
    CFG_NAS_ENCODING_UTF8 = 0,  /* "UTF-8" */
    CFG_NAS_ENCODING_GB2312 = 1 /* "GB2312" */
} CFG_NAS_ENCODING;

/* Whose cloud it is ("CloudProtocol"), in the case shown. Every other text gives -1; a code that is none of these is
 * not written. */
typedef enum CFG_NAS_CLOUD {
    CFG_NAS_CLOUD_UNKNOWN = -1,
    CFG_NAS_CLOUD_BAIDU_CLOUD = 0,  /* "BaiduCloud" */
    CFG_NAS_CLOUD_GOOGLE_DRIVE = 1, /* "GoogleDrive" */
    CFG_NAS_CLOUD_DROPBOX = 2       /* "Dropbox" */
} CFG_NAS_CLOUD;

/* "NAS": one storage in the network. The table is a list, a record an element, in which a null leaves its record zero;
 * an empty list, and a table that is none, are refused. Older devices tell of one storage, under "NAS" at the top of
 * the reply: it is read instead of any table, and is reached by FTP whatever its "Protocol" says. Written is always the
 * list. Keys that are absent leave 0. */
typedef struct CFG_NAS_INFO {
    int32_t nEnable;             /* "Enable": 0 or 1 */
    char szName[128];            /* "Name" */
    int32_t emProtocol;          /* "Protocol": CFG_NAS_PROTOCOL */
    char szAddress[256];         /* "Address": IP address or host name */
    int32_t nPort;               /* "Port" */
    char szUserName[64];         /* "UserName" */
    char szPassword[64];         /* "Password" */
    char szDirectory[128];       /* "Directory": where its files are kept */
    int32_t emCharacterEncoding; /* "CharacterEncoding": CFG_NAS_ENCODING */
    uint32_t nTimeOut;           /* "TimeOut": milliseconds without an answer */
    uint32_t nStreamID;          /* "StreamID": number of the stream that it gets */
    NET_TIME stuUpdateTime;      /* "UpdateTime": when it was last changed */
    int32_t emCloudProtocol;     /* "CloudProtocol": CFG_NAS_CLOUD */
    char szSubDirectory[256];    /* "SubDirectory": below the directory */
} CFG_NAS_INFO;

#ifdef __cplusplus
}
#endif

#endif
