/* Monitor walls and what they show: walls of screens, the scenes on them, tours through scenes, and the sources that
 * windows, displays and recordings take.
 *
 * Records that begin with dwSize carry the size that the caller was compiled with: set it in the first record before
 * every call, also before reading. It is the distance from one record to the next, whatever the later records' own
 * words hold, which are neither read nor written. A dwSize below 4, or one above the buffer, fails; 1 to 3 are told to
 * the log besides. What lies within dwSize moves; what lies behind the caller's own records stays as it was. A missing
 * table, and an empty list, succeed with a length of 0; a null element leaves the caller's record as it was.
 *
 * A table that is an object is one record, an array gives a record an element, as many as fit; other types fail.
 * Written are as many records as fit the size: one bare, several as a list. Lists beyond their room are cut; empty ones
 * are not written. Keys that are absent leave 0 or an empty text. */
#ifndef ORRERY_MONITOR_WALL_H
#define ORRERY_MONITOR_WALL_H

#include "orrery/remote_device.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_WALL_BLOCKS 128
#define ORRERY_WALL_OUTPUTS 128 /* of a block */
#define ORRERY_WALL_POWER_SECTIONS 42
#define ORRERY_SCENE_WINDOWS 64
#define ORRERY_TOUR_MASKS 256
#define ORRERY_TOUR_COLLECTIONS 64

/* ---- Walls ---- */

/* A video output of a block. */
typedef struct CFG_WALL_OUTPUT {
    int32_t nChannel;  /* "Channel": output of the device, from 0 */
    char szDevice[64]; /* "Device": identifier of the device */
} CFG_WALL_OUTPUT;

/* Screens that show one picture together. */
typedef struct CFG_WALL_BLOCK {
    int32_t nLine;                                        /* "Line": screens one above the other */
    int32_t nColumn;                                      /* "Column": screens side by side */
    CFG_RECT stuRect;                                     /* "Rect": its place on the wall */
    char szCompositeID[64];                               /* "CompositeID" */
    int32_t nVideoOutputCount;                            /* entries of stuVideoOutputs in use */
    CFG_WALL_OUTPUT stuVideoOutputs[ORRERY_WALL_OUTPUTS]; /* "VideoOutputs" */
} CFG_WALL_BLOCK;

/* "MonitorWall": a wall of screens. */
typedef struct CFG_MONITOR_WALL_INFO {
    uint32_t dwSize;                              /* inside a collection: of this record, set by reading */
    char szName[64];                              /* "Name" */
    int32_t nGridLine;                            /* "GridLine": lines of its grid */
    int32_t nGridColumn;                          /* "GridColumn": columns of its grid */
    int32_t bEnable;                              /* "Enable" */
    char szDesc[256];                             /* "Desc": description */
    int32_t nBlockCount;                          /* entries of stuBlocks in use */
    CFG_WALL_BLOCK stuBlocks[ORRERY_WALL_BLOCKS]; /* "Blocks" */
    CFG_TIME_SECTION stuPowerSchedule[ORRERY_WALL_POWER_SECTIONS]; /* "PowerSchedule": when its screens are on, a
                                                                      flat list of sections; of one that does not
                                                                      read to its end the numbers in front of that
                                                                      are kept, and the list goes on behind it; all
                                                                      are written */
} CFG_MONITOR_WALL_INFO;

/* "VideoOutputComposite": video outputs joined into one screen. */
typedef struct CFG_VIDEO_OUTPUT_COMPOSITE_INFO {
    uint32_t dwSize;
    int32_t nBlockIndex;        /* "BlockIndex": block of the wall, from 0 */
    char szName[64];            /* "Name" */
    char szMonitorWallName[64]; /* "MonitorWallName": the wall that it is part of */
    CFG_RECT stuRect;           /* "Rect": its place on the wall */
} CFG_VIDEO_OUTPUT_COMPOSITE_INFO;

/* ---- Sources ---- */

/* Stream of a source ("VideoStream", "AudioStream"). Unknown texts read as 0; other codes are not written. */
enum {
    CFG_SOURCE_STREAM_MAIN = 0,   /* "Main" */
    CFG_SOURCE_STREAM_EXTRA1 = 1, /* "Extra1" */
    CFG_SOURCE_STREAM_EXTRA2 = 2, /* "Extra2" */
    CFG_SOURCE_STREAM_EXTRA3 = 3  /* "Extra3" */
};

/* What a window shows. */
typedef struct CFG_WINDOW_SOURCE {
    int32_t bEnable;       /* "Enable" */
    char szDevice[64];     /* "Device": identifier of the device */
    int32_t nVideoChannel; /* "VideoChannel": of that device, from 0 */
    int32_t emVideoStream; /* "VideoStream": CFG_SOURCE_STREAM_... */
    int32_t nAudioChannel; /* "AudioChannel": of that device, from 0 */
    int32_t emAudioStream; /* "AudioStream": CFG_SOURCE_STREAM_... */
} CFG_WINDOW_SOURCE;

/* "DisplaySource" (what a display's windows show), "RecordSource" (what is recorded), "MonitorCollection" (what a
 * monitor's windows show): a source, and the device that it lies on. The pointer of stuDeviceInfo and the room behind
 * it are the caller's, set before reading in each record that is to be filled. */
typedef struct CFG_SPLIT_SOURCE {
    uint32_t dwSize;
    int32_t bEnable;                      /* "Enable" */
    char szDevice[64];                    /* "Device": identifier of the device */
    int32_t nVideoChannel;                /* "VideoChannel": of that device, from 0 */
    int32_t emVideoStream;                /* "VideoStream": CFG_SOURCE_STREAM_... */
    int32_t nAudioChannel;                /* "AudioChannel": of that device, from 0 */
    int32_t emAudioStream;                /* "AudioStream": CFG_SOURCE_STREAM_... */
    char szControlID[128];                /* "ControlID": under which the source is controlled */
    CFG_REMOTE_DEVICE_INFO stuDeviceInfo; /* "DeviceInfo"; its dwSize is set by reading, its szID stays empty: here it
                                             stands under no name */
} CFG_SPLIT_SOURCE;

/* ---- Scenes ---- */

/* A window of a scene. */
typedef struct CFG_WINDOW_INFO {
    int32_t bEnable;             /* "Enable" */
    int32_t nWindowID;           /* "WindowID" */
    int32_t bFreePosition;       /* "FreePosition": placed anywhere on the screen, by its rectangle */
    int32_t bDirectable;         /* "Directable": fed straight, without decoding by this device */
    int32_t nZorder;             /* "Zorder": above those of smaller numbers */
    CFG_RECT stuRect;            /* "Rect": its place */
    CFG_WINDOW_SOURCE stuSource; /* "Source" */
} CFG_WINDOW_INFO;

/* What a joined screen shows. */
typedef struct CFG_COMPOSITE_SCENE {
    char szName[128];      /* the name of the member that a block stands under; empty where the scene stands alone */
    char szControlID[128]; /* "ControlID": under which the screen is controlled */
    int32_t emMode;        /* "Mode": how the screen is divided: 4 for "Split4", 1004 for "PIP4", 2000 for "Free", 3002
                              for "CompositeSplit2"; "Split3" is 10 and "Split3B" 11, other texts 1. Case does not
                              count. Every code from 0 is written: 3 as the text of 10; a negative one writes no key */
    int32_t nWindowCount;  /* entries of stuWindows in use */
    CFG_WINDOW_INFO stuWindows[ORRERY_SCENE_WINDOWS]; /* "Windows" */
} CFG_COMPOSITE_SCENE;

/* "MonitorWallCollection": a wall together with what it shows. A null element leaves its record cleared and is counted.
 * A missing table fails; an empty list succeeds with a length of 0. */
typedef struct CFG_MONITOR_WALL_COLLECTION_INFO {
    char szControlID[128];                             /* "ControlID": under which the collection is controlled */
    CFG_MONITOR_WALL_INFO stuMonitorWall;              /* "MonitorWall" */
    int32_t nBlockCount;                               /* entries of stuBlocks in use */
    CFG_COMPOSITE_SCENE stuBlocks[ORRERY_WALL_BLOCKS]; /* "Blocks": an object whose members are the wall's blocks, in
                                                          the order of their names; one that is null is passed over. Of
                                                          several with the same szName the last is written */
    CFG_COMPOSITE_SCENE stuCompositeScene;             /* "CompositeScene": the scene of the whole wall */
} CFG_MONITOR_WALL_COLLECTION_INFO;

/* ---- Tours ---- */

/* "MonitorTour": what a monitor shows in turn. */
typedef struct CFG_MONITOR_TOUR_INFO {
    uint32_t dwSize;
    int32_t bEnable;                                  /* "Enable" */
    int32_t nInterval;                                /* "Interval": seconds that each is shown */
    int32_t nMaskCount;                               /* entries of nMask in use */
    int32_t nMask[ORRERY_TOUR_MASKS];                 /* "Mask": channels that take part, from 0 */
    int32_t nCollectionCount;                         /* entries of szCollections in use */
    char szCollections[ORRERY_TOUR_COLLECTIONS][128]; /* "Collections": names of collections that take part */
} CFG_MONITOR_TOUR_INFO;

/* "MonitorWallCollectionTour": collections that a wall shows in turn. A null element leaves its record cleared and is
 * counted. A missing table fails; an empty list succeeds with a length of 0. */
typedef struct CFG_MONITOR_COLLECTION_TOUR_INFO {
    int32_t nGroupCount;                        /* entries of szGroup in use */
    char szGroup[ORRERY_TOUR_COLLECTIONS][128]; /* "Group": names of the collections */
    int32_t nInterval;                          /* "Interval": seconds that each is shown */
} CFG_MONITOR_COLLECTION_TOUR_INFO;

#ifdef __cplusplus
}
#endif

#endif
