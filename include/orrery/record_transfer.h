/* Recordings on their way off the device: restoring backups, and the speed of downloads. */
#ifndef ORRERY_RECORD_TRANSFER_H
#define ORRERY_RECORD_TRANSFER_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_BACKUP_DEVICES 32

/* "RecordBackupRestore": recordings that are fetched back from other devices. One record or a list, a null element of
 * which leaves its record cleared and is counted; an empty list succeeds with a length of 0. Written is one bare
 * record, or a list of several. A size below one record is told to the log on writing. */
typedef struct CFG_RECORD_BACKUP_RESTORE_INFO {
    int32_t nBitrateLimit;                           /* "BitrateLimit": kilobits a second */
    int32_t nDeviceCount;                            /* entries of szBackupDevices in use */
    char szBackupDevices[ORRERY_BACKUP_DEVICES][64]; /* "BackupDevices": their identifiers; not written when there are
                                                        none */
} CFG_RECORD_BACKUP_RESTORE_INFO;

/* "RecordDownloadSpeed": speeds at which recordings are downloaded, in an array of the caller's. The table is a list of
 * numbers, or a single number. Anything else fails, and so does a record without an array; both, and a size below one
 * record, are told to the log. Writing gives a list, a bare number when there is just one, null when there is none. */
typedef struct CFG_RECORD_DOWNLOAD_SPEED_INFO {
    uint32_t* pnSpeeds;   /* the value itself: numbers from 0; set before the call */
    uint32_t nMaxCount;   /* room of that array, set before reading, and before writing too */
    uint32_t nSpeedCount; /* how many the list has, also those beyond the room; 1 for a single number */
} CFG_RECORD_DOWNLOAD_SPEED_INFO;

#ifdef __cplusplus
}
#endif

#endif
