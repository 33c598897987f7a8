/* Recordings burned to disks.
 *
 * Commands that tell of several records take one, or a list of them in which a null leaves its record zero; an empty
 * list is refused. One record is written bare, several as a list. The device's "result" is looked at for capabilities
 * alone. Keys that are absent leave 0 unless told otherwise. */
#ifndef ORRERY_BURNING_H
#define ORRERY_BURNING_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* How recordings are packed ("RecordPack", "Recordpack"), case folded. Every other text gives -1, and every other code
 * is written as "UNKNOWN". */
typedef enum CFG_BURN_PACK {
    CFG_BURN_PACK_UNKNOWN = -1,
    CFG_BURN_PACK_QVAV = 0, /* "QVAV" */
    CFG_BURN_PACK_PS = 1,   /* "PS" */
    CFG_BURN_PACK_ASF = 2,  /* "ASF" */
    CFG_BURN_PACK_MP4 = 3,  /* "MP4" */
    CFG_BURN_PACK_TS = 4    /* "TS" */
} CFG_BURN_PACK;

/* How several burners share the work ("Mode"), case folded. Every other text gives -1, and every other code is written
 * as "Unknown". */
typedef enum CFG_BURN_MODE {
    CFG_BURN_MODE_UNKNOWN = -1,
    CFG_BURN_MODE_SYNC = 0, /* "Sync": all burn the same */
    CFG_BURN_MODE_TURN = 1, /* "Turn": one after the other */
    CFG_BURN_MODE_CYCLE = 2 /* "Cycle": by turns, over and over */
} CFG_BURN_MODE;

/* "BurnRecordFormat": how recordings are packed on disks. */
typedef struct CFG_BURN_RECORD_FORMAT_INFO {
    int32_t emRecordPack; /* "RecordPack": CFG_BURN_PACK */
} CFG_BURN_RECORD_FORMAT_INFO;

/* "MultiBurn": several burners at a time. */
typedef struct CFG_MULTI_BURN_INFO {
    int32_t bEnable;           /* "Enable": true or false, nothing else is read */
    int32_t bDataCheck;        /* "DataCheck": what was burned is compared; true or false, nothing else is read */
    char szDataCheckSpeed[32]; /* "DataCheckSpeed": how thoroughly */
} CFG_MULTI_BURN_INFO;

/* "BurnPlan": what is burned, when and by which burners. Once its text has been parsed, all of the record but both
 * pointers and their room is cleared. */
typedef struct CFG_BURN_PLAN_INFO {
    int32_t nSessionId;    /* "SessionId": the burning that it belongs to */
    int32_t nMaxDevices;   /* room of pnDevices, set before reading and before writing */
    int32_t nDeviceCount;  /* elements in use: those of "Devices", at most nMaxDevices */
    int32_t nMaxChannels;  /* room of pnChannels, set before reading and before writing */
    int32_t nChannelCount; /* elements in use: those of "Channels", at most nMaxChannels */
    int32_t emRecordpack;  /* "Recordpack": CFG_BURN_PACK */
    int32_t emMode;        /* "Mode": CFG_BURN_MODE */
    NET_TIME stuStarttime; /* "Starttime" */
    int32_t* pnDevices;    /* "Devices": numbers of the burners; the caller's array, null has room for nothing. None
                              writes no key */
    int32_t* pnChannels;   /* "Channels": channels that are burned, from 0; the caller's array, null has room for
                              nothing. None writes no key */
} CFG_BURN_PLAN_INFO;

/* "BurnManager.getCaps": what a device can burn. */
typedef struct CFG_BURN_MANAGER_CAPS {
    int32_t bSupportMultiBurn; /* "SupportMultiBurn": several burners at a time; true or false, nothing else is read */
    int32_t nMultiBurnGroups;  /* "MultiBurnGroups": groups of burners */
} CFG_BURN_MANAGER_CAPS;

#ifdef __cplusplus
}
#endif

#endif
