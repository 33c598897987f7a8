/* Disks: arrays of them, pools, positions and enclosures.
 *
 * All but "Raid" stand at the top of the reply, under the command's name, and their "result" is not looked at. Keys
 * that are absent leave 0 unless told otherwise. */
#ifndef ORRERY_STORAGE_DISKS_H
#define ORRERY_STORAGE_DISKS_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_STORAGE_STATES 16

/* The states of something: a list of numbers. An empty one is one state of 0, a bare number is one state. */
typedef struct CFG_STORAGE_STATES {
    int32_t nStatusCount;                       /* elements of the list, which may be more than 16 */
    int32_t nStatus;                            /* the first of them; not written */
    int32_t nStatusList[ORRERY_STORAGE_STATES]; /* all of them, as far as there is room; none are written as null */
} CFG_STORAGE_STATES;

#define ORRERY_RAID_MEMBERS 16
#define ORRERY_RAIDS 16

/* An array of disks. Its keys stand in an object under "Raid", or in the element itself when it has no "Raid". */
typedef struct CFG_RAID_GROUP_ITEM {
    char szName[128];             /* "Raid"."Name" */
    int32_t nType;                /* "Raid"."Type": its level */
    CFG_STORAGE_STATES stuStatus; /* "Raid"."Status" */
    int32_t nMemberCount; /* numbers in "Member" that are not null: with a null between them fewer than the places
                             taken */
    int32_t nMember[ORRERY_RAID_MEMBERS]; /* "Raid"."Member": numbers of its disks, each in its place, at most 16. The
                                             first nMemberCount are written; none write no key */
    int32_t nCapacity;                    /* "Raid"."Capacity": megabytes */
    int32_t nTank;                        /* "Raid"."Tank": number of the enclosure */
    int32_t nRemainSpace;                 /* "Raid"."RemainSpace": free megabytes */
} CFG_RAID_GROUP_ITEM;

/* "RaidGroup": the arrays of a device, a list in the text. A missing list gives a record of zeros. Written under the
 * command's name; a text of exactly the capacity loses its newline. */
typedef struct CFG_RAID_GROUP_INFO {
    int32_t nCount; /* elements that have a name: without one an element takes its place and does not count. As many are
                       written, from the first on */
    CFG_RAID_GROUP_ITEM stuRaid[ORRERY_RAIDS]; /* the list itself, each element in its place, at most 16 */
} CFG_RAID_GROUP_INFO;

#define ORRERY_STORAGE_POOL_MEMBERS 16
#define ORRERY_STORAGE_POOLS 16

/* Disks or arrays joined to one. */
typedef struct CFG_STORAGE_POOL_ITEM {
    char szName[128];     /* "StoragePool"."Name" */
    int32_t nMemberCount; /* texts in "Member": with something else between them fewer than the places taken */
    char szMember[ORRERY_STORAGE_POOL_MEMBERS][128]; /* "StoragePool"."Member": names of the members, each in its place,
                                                        at most 16; what is no text leaves its place empty */
    int32_t nUsed;                                   /* "StoragePool"."Used": megabytes in use */
    int32_t nCapacity;                               /* "StoragePool"."Capacity": megabytes */
    CFG_STORAGE_STATES stuStatus;                    /* "StoragePool"."Status" */
    int32_t nTank;                                   /* "StoragePool"."Tank": number of the enclosure */
} CFG_STORAGE_POOL_ITEM;

/* "StoragePoolGroup": the pools of a device, a list in the text. A missing list gives a record of zeros. */
typedef struct CFG_STORAGE_POOL_GROUP_INFO {
    int32_t nCount; /* elements that have a name: without one an element takes its place and does not count */
    CFG_STORAGE_POOL_ITEM stuPool[ORRERY_STORAGE_POOLS]; /* the list itself, each element in its place, at most 16 */
} CFG_STORAGE_POOL_GROUP_INFO;

#define ORRERY_STORAGE_POSITIONS 16

/* A place in a pool that recordings go to. */
typedef struct CFG_STORAGE_POSITION_ITEM {
    char szName[128];             /* "StoragePosition"."Name" */
    char szStoragePoolName[128];  /* "StoragePosition"."StoragePoolName": its pool */
    int32_t nUsed;                /* "StoragePosition"."Used": megabytes in use */
    int32_t nCapacity;            /* "StoragePosition"."Capacity": megabytes */
    CFG_STORAGE_STATES stuStatus; /* "StoragePosition"."Status" */
} CFG_STORAGE_POSITION_ITEM;

/* "StoragePositionGroup": the positions of a device, a list in the text. A missing list gives a record of zeros. */
typedef struct CFG_STORAGE_POSITION_GROUP_INFO {
    int32_t nCount; /* elements that have a name: without one an element takes its place and does not count */
    CFG_STORAGE_POSITION_ITEM stuPosition[ORRERY_STORAGE_POSITIONS]; /* the list itself, each element in its place, at
                                                                        most 16 */
} CFG_STORAGE_POSITION_GROUP_INFO;

/* A disk in an enclosure. */
typedef struct CFG_HARD_DISK_ITEM {
    int32_t nChan;        /* "Chan": its place in the enclosure */
    int32_t nCapacity;    /* "Capacity": megabytes */
    int32_t nStatus;      /* "Status" */
    int32_t nUsedSatus;   /* "UsedSatus" (the devices' spelling): what it is used for */
    char szRaidName[128]; /* "RaidName": the array that it belongs to */
    char szType[32];      /* "Type": kind of disk */
    int32_t nHotBack;     /* "HotBack": whether it stands by for others */
    int32_t nTank;        /* "Tank": number of the enclosure */
    int32_t nRemainSpace; /* "RemainSpace": free megabytes */
} CFG_HARD_DISK_ITEM;

#define ORRERY_HARD_DISKS 64

/* "HardDiskTank": an enclosure of disks. Written under the command's name; a text of exactly the capacity loses its
 * newline. */
typedef struct CFG_HARD_DISK_TANK_INFO {
    char szName[128];                                  /* "Name" */
    int32_t nDiskCount;                                /* entries of stuHardDisk in use */
    CFG_HARD_DISK_ITEM stuHardDisk[ORRERY_HARD_DISKS]; /* "HardDiskGroup"."HardDisk": at most 64; none writes no key */
} CFG_HARD_DISK_TANK_INFO;

#define ORRERY_RAID_DISKS 32

/* "Raid": arrays of disks to be made. The table is an object whose members are the arrays, by their names; they come in
 * the order of the names' bytes, a member that is null is passed over. A table that is no object has no members; a
 * missing one succeeds with a length of 0. Written is the same object, of several arrays of one name the last.
 *
 * Records begin with dwSize, the size that the caller was compiled with: the caller sets that of its first record
 * before every call, and it is the distance from one record to the next. A dwSize below 4, or above the buffer, fails.
 * What lies behind the caller's own records stays as it was. A text that there is no memory for is told to the log. */
typedef struct CFG_RAID_INFO {
    uint32_t dwSize;
    char szName[64];                        /* the name of the member that the array stands under; of its text in
                                               UTF-8 the first 126 bytes are written */
    int32_t nLevel;                         /* "Level": 0, 1, 5, ... */
    int32_t nMemberCount;                   /* elements of "Members", which may be more than 32 */
    char szMembers[ORRERY_RAID_DISKS][260]; /* "Members": names of its disks, as far as there is room; none writes no
                                               key */
} CFG_RAID_INFO;

#ifdef __cplusplus
}
#endif

#endif
