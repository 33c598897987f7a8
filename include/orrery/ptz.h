/* Pan, tilt and zoom: heads and their serial lines, presets, tours, movements by the clock, and what a head's protocol
 * can do.
 *
 * Keys that are absent leave 0 unless told otherwise. A text of exactly the capacity loses its newline for "Ptz" and
 * "PtzAutoMovement", and is too long for all others. */
#ifndef ORRERY_PTZ_H
#define ORRERY_PTZ_H

#include "orrery/comm_attribute.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Heads and lines ---- */

/* How a head is reached ("ControlMode"). */
typedef enum CFG_PTZ_CONTROL_MODE {
    CFG_PTZ_CONTROL_RS485 = 0,  /* "RS485"; read from every name but "Coaxial" */
    CFG_PTZ_CONTROL_COAXIAL = 1 /* "Coaxial", read with case folded: on the video cable */
} CFG_PTZ_CONTROL_MODE;

/* "Ptz": the head of one channel. A reply without "result" is taken. */
typedef struct CFG_PTZ_INFO {
    uint8_t abNumberInMatrix;        /* 1 when "NumberInMatrixs" was there; it is written only when set */
    uint8_t abPtzType;               /* 1 when "PTZType" was there; it is written only when set */
    uint32_t bEnable;                /* "Enable" */
    char szProtocolName[128];        /* "ProtocolName" */
    int32_t nAddress;                /* "Address": of the head on its line */
    CFG_COMM_ATTRIBUTE stuAttribute; /* "Attribute" */
    int32_t nNumberInMatrix;         /* "NumberInMatrixs" */
    int32_t nPtzType;                /* "PTZType": 0 for a head with an own protocol, 1 for one behind the network; read
                                        as 1 from, and written as 1 for, every number above 0 */
    uint32_t dwReserved;
    int32_t nPort;         /* "Port": number of the serial port */
    int32_t nHoming[2];    /* "Homing": preset, -1 for none and when absent, and seconds until it is taken; a
                              negative preset is written as -1 */
    int32_t emControlMode; /* "ControlMode": CFG_PTZ_CONTROL_MODE; other codes are not written */
} CFG_PTZ_INFO;

/* One line of "Comm". */
typedef struct CFG_COMM_ITEM {
    char szProtocolName[32];         /* "ProtocolName" */
    CFG_COMM_ATTRIBUTE stuAttribute; /* "Attribute" */
    int32_t nAddress;                /* "Address" */
} CFG_COMM_ITEM;

#define ORRERY_COMM_ITEMS 16

/* "Comm": the serial lines, a list; a table that is no list fails. */
typedef struct CFG_COMM_INFO {
    uint32_t nCount;                           /* lines in use, at most 16 */
    CFG_COMM_ITEM stuItems[ORRERY_COMM_ITEMS]; /* the list itself */
} CFG_COMM_INFO;

/* ---- Presets and tours ---- */

/* One preset. Its place stands under "Position" as [ pan, tilt, zoom ], pan and tilt from -1 to 1, zoom from 0 to 1. An
 * array of any other length leaves 0. A tilt out of that range leaves the tilt and sets the pan to 0. */
typedef struct CFG_PTZ_PRESET {
    uint32_t bEnable; /* "Enable": true is written for exactly 1 */
    char szName[64];  /* "Name" */
    int32_t nPan;     /* "Position": its first number in tenths of a degree, 0 to 3600; others are written as 0 */
    int32_t nTilt;    /* its second, in tenths of a degree, -1800 to 1800; written from -18000 to 1800, others as 0 */
    int32_t nZoom;    /* its third, 1 to 128; others are written as 0 */
} CFG_PTZ_PRESET;

/* "PtzPreset": presets in an array of the caller's; each is cleared before it is read. Reading fails without an array
 * and tells no length; a missing table succeeds with nothing changed. Writing fails for a
 * buffer smaller than the record, whatever that says, and when there are more presets than room; without an array or
 * room it succeeds with an empty text. The text must be shorter than the capacity less one. */
typedef struct CFG_PTZ_PRESET_INFO {
    uint32_t nMaxCount;          /* input: room of pstuPresets */
    uint32_t nReturnCount;       /* presets read, at most nMaxCount; presets to write */
    CFG_PTZ_PRESET* pstuPresets; /* input: the caller's array */
} CFG_PTZ_PRESET_INFO;

#define ORRERY_PTZ_TOURS 64
#define ORRERY_PTZ_TOUR_PRESETS 64

/* One tour. */
typedef struct CFG_PTZ_TOUR {
    uint32_t bEnable;                             /* "Enable" */
    char szName[64];                              /* "Name" */
    uint32_t nPresetCount;                        /* stops in use, at most 64 */
    int32_t nPresets[ORRERY_PTZ_TOUR_PRESETS][3]; /* "Presets": preset, seconds there, speed on the way */
} CFG_PTZ_TOUR;

/* "PtzTour": the tours of a head. A table that is missing or no list gives none. */
typedef struct CFG_PTZ_TOUR_INFO {
    uint32_t nCount;                         /* tours in use, at most 64 */
    CFG_PTZ_TOUR stuTours[ORRERY_PTZ_TOURS]; /* the list itself */
} CFG_PTZ_TOUR_INFO;

/* ---- Movements without an operator ---- */

/* What a timed movement does ("Function"). Names are read with case folded. */
typedef enum CFG_PTZ_MOVEMENT {
    CFG_PTZ_MOVEMENT_TOUR = 0,    /* "Tour" */
    CFG_PTZ_MOVEMENT_PATTERN = 1, /* "Pattern": a recorded path */
    CFG_PTZ_MOVEMENT_PRESET = 2,  /* "Preset" */
    CFG_PTZ_MOVEMENT_SCAN = 3,    /* "Scan": from side to side */
    CFG_PTZ_MOVEMENT_NONE = 4     /* every other name; written, like every other code, as "None" */
} CFG_PTZ_MOVEMENT;

/* One timed movement. */
typedef struct CFG_PTZ_AUTO_MOVEMENT {
    uint32_t bEnable;                /* "Enable": written as the number that it holds; so the other switches */
    CFG_TIME_SECTION stuTimeSection; /* "TimeSection" */
    int32_t emFunction;              /* "Function": CFG_PTZ_MOVEMENT */
    int32_t nTourId;                 /* "TourId" */
    int32_t nPatternId;              /* "PatternId" */
    int32_t nPresetId;               /* "PresetId" */
    int32_t nScanId;                 /* "ScanId" */
    uint32_t bAutoHoming; /* "AutoHoming"."Enable": back after an operator has moved the head; written as the number */
    int32_t nAutoHomingTime;    /* "AutoHoming"."Time": seconds */
    uint32_t bSnapshotEnable;   /* "SnapshotEnable": written as the number */
    int32_t nSnapshotDelayTime; /* "SnapshotDelayTime": seconds */
} CFG_PTZ_AUTO_MOVEMENT;

#define ORRERY_PTZ_MOVEMENTS 32

/* The timed movements of one channel. Each is cleared before it is read; those behind the last are left alone. */
typedef struct CFG_PTZ_AUTO_MOVEMENT_CHANNEL {
    CFG_PTZ_AUTO_MOVEMENT stuItems[ORRERY_PTZ_MOVEMENTS]; /* the channel's list */
    uint32_t nCount;                                      /* movements in use, 1 to 32 */
} CFG_PTZ_AUTO_MOVEMENT_CHANNEL;

/* "PtzAutoMovement": timed movements, a list of one channel or, when its first element is a list, a list of lists of
 * many, in an array of the caller's. Reading fails without an array and tells no length; a reply without "result" is
 * taken. Writing fails without a channel or with more than there is room for. A single channel without movements, or
 * with more than 32, fails as well; among several it is written as "none". */
typedef struct CFG_PTZ_AUTO_MOVEMENT_INFO {
    CFG_PTZ_AUTO_MOVEMENT_CHANNEL* pstuChannels; /* input: the caller's array */
    int32_t nMaxChannel;                         /* input: its room */
    int32_t nReturnChannel; /* channels of the reply, which may be more than there is room for; channels to write */
} CFG_PTZ_AUTO_MOVEMENT_INFO;

/* What a head does when nobody moves it ("Function"). Names are read with case folded. */
typedef enum CFG_IDLE_FUNCTION {
    CFG_IDLE_NONE = 0,   /* "None", and every other name */
    CFG_IDLE_PRESET = 1, /* "Preset" */
    CFG_IDLE_SCAN = 2,   /* "Scan" */
    CFG_IDLE_TOUR = 3,   /* "Tour" */
    CFG_IDLE_PATTERN = 4 /* "Pattern" */
} CFG_IDLE_FUNCTION;

/* "IdleMotion": what a head does when nobody moves it, an object or a list. An empty list gives length 0. A size of
 * exactly one record writes an object, any other a list. */
typedef struct CFG_IDLE_MOTION_INFO {
    int32_t bEnable;    /* "Enable": true is written for exactly 1 */
    int32_t nTimer;     /* "Timer": minutes without an operator */
    int32_t emFunction; /* "Function": CFG_IDLE_FUNCTION; other codes are not written */
    int32_t nPresetId;  /* "PresetId" */
    int32_t nScanId;    /* "ScanId" */
    int32_t nTourId;    /* "TourId" */
    int32_t nPatternId; /* "PatternId" */
} CFG_IDLE_MOTION_INFO;

/* "StandingTime": how long a head may stand still, an object or a list. An empty list gives length 0. A size of exactly
 * one record writes an object, any other a list. */
typedef struct CFG_STANDING_TIME_INFO {
    uint32_t bEnable;    /* "Enable": true is written for exactly 1 */
    int32_t nUpperlimit; /* "Upperlimit": the longest time, seconds */
    int32_t nInterval;   /* "Interval": between two warnings, seconds */
} CFG_STANDING_TIME_INFO;

#define ORRERY_ENCLOSURES 128

/* When one enclosure is watched. */
typedef struct CFG_ENCLOSURE {
    int32_t nEnclosureId; /* "EnclosureID" */
    CFG_TIME_SECTION stuTimeSchedule[ORRERY_SCHEDULE_DAYS]
                                    [ORRERY_DAY_SECTIONS]; /* "TimeSchedule": a week and holidays */
} CFG_ENCLOSURE;

/* "EnclosureTimeSchedule": when enclosures are watched, an object or a list. An empty list gives length 0. A size of
 * exactly one record writes an object, any other a list. */
typedef struct CFG_ENCLOSURE_SCHEDULE_INFO {
    uint32_t nCount;                                /* enclosures in use, at most 128 */
    CFG_ENCLOSURE stuEnclosures[ORRERY_ENCLOSURES]; /* "Enclosure": a list, or one object alone; written as a list */
    char szVersion[64];                             /* "Version" */
} CFG_ENCLOSURE_SCHEDULE_INFO;

#ifdef __cplusplus
}
#endif

#endif
