/* What is blended into the encoded picture or taken from it: pictures in the picture, single pictures, regions of
 * interest, the water mark. */
#ifndef ORRERY_OVERLAY_H
#define ORRERY_OVERLAY_H

#include "orrery/types.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_SNAP_SIZES 256
#define ORRERY_SNAP_RATES 1024
#define ORRERY_SNAP_QUALITIES 32
#define ORRERY_ROI_REGIONS 8

/* A small picture inside a window. */
typedef struct CFG_PICINPIC_SMALL {
    char szDeviceId[64]; /* "DeviceID": where the picture comes from */
    int32_t nChannel;    /* "Channel" */
    uint32_t bAudio;     /* "Audio": its sound is heard; written true at exactly 1 */
    int32_t
        nPosition[4]; /* "Position": left, top, right, bottom, 0 to 8191; other than four numbers leave it as it was */
} CFG_PICINPIC_SMALL;

/* A window of a divided picture. */
typedef struct CFG_PICINPIC_TOP {
    uint32_t bEnable;              /* "Enable"; written true at exactly 1 */
    char szDeviceId[64];           /* "DeviceID": where the picture comes from */
    int32_t nChannel;              /* "Channel"; as it was when absent */
    uint32_t nMaxSmall;            /* entries that pstuSmall has room for, set by the caller; 0 fails a pack */
    uint32_t nReturnSmall;         /* entries in use */
    CFG_PICINPIC_SMALL* pstuSmall; /* "SmallPic": the caller's array; null fails a pack. No key when there are none */
} CFG_PICINPIC_TOP;

/* A way of dividing the picture. */
typedef struct CFG_PICINPIC_SPLIT {
    uint32_t emSplitMode;      /* number of the mode, in the text the member's name: "Split" and "PIP", "Free" or
                                  "CompositeSplit" with 1000, 2000 or 3000 more, in any case and followed by the rest of the
                                  number, which a bare prefix does without; "Split3" is 10, "Split3B" 11. Other names read
                                  as 1 */
    uint32_t nMaxTop;          /* entries that pstuTop has room for, set by the caller; 0 fails a pack */
    uint32_t nReturnTop;       /* entries in use; 0 fails a pack */
    CFG_PICINPIC_TOP* pstuTop; /* the caller's array of windows: the member itself */
} CFG_PICINPIC_SPLIT;

/* "PicInPic": the first record is the table itself, further records are the elements of its "Extend", as many as fit
 * the buffer. The buffer is not cleared: arrays and their rooms are the caller's, and absent keys leave what they hold.
 * A table that is no object succeeds with a reply length of 0 and nothing read. On writing, a record without an array
 * or room, a way without windows, or a window without an array or room for small pictures fails the call. */
typedef struct CFG_PICINPIC_INFO {
    uint32_t nMaxSplit;    /* entries that pstuSplits has room for, set by the caller; so many members of the table
                              are looked at, "Extend" among them */
    uint32_t nReturnSplit; /* entries in use */
    CFG_PICINPIC_SPLIT* pstuSplits; /* the caller's array of ways: the members but for "Extend", in the order of their
                                       names, those that are null without windows; of two with one mode the last is
                                       written */
} CFG_PICINPIC_INFO;

/* "SnapInfo": single pictures of an older device, at the document's top level; lists are texts of numbers with ":"
 * between them. Read when "result" is true or absent; a missing object, or a list that is missing or empty, fails.
 * Cannot be packed. */
typedef struct CFG_SNAP_INFO {
    int32_t nChannel;                          /* "Chn": from 0, from 1 in the text; 0 when absent */
    int32_t nSizeCount;                        /* entries of nSizes in use, at most 256 */
    int32_t nSizes[ORRERY_SNAP_SIZES];         /* "Size": sizes of the picture, as CFG_RESOLUTION */
    int32_t nFpsCount;                         /* entries of nFps in use, at most 1024 */
    int32_t nFps[ORRERY_SNAP_RATES];           /* "FPS": pictures a second; negative: seconds a picture */
    int32_t nQualityCount;                     /* entries of nQualities in use, at most 32 */
    int32_t nQualities[ORRERY_SNAP_QUALITIES]; /* "Quality": 1 to 6 */
    uint32_t dwModeMask;   /* "Mode": a bit each number, of its lowest five bits: 0 at set times, 1 by hand */
    uint32_t dwFormatMask; /* "Format": as dwModeMask: 0 BMP, 1 JPEG */
} CFG_SNAP_INFO;

/* "WaterMark": a mark that proves that a recording was not altered, at the document's top level; packs under its own
 * key. Read when "result" is true or absent. A text of exactly the buffer's size loses its newline. */
typedef struct CFG_WATERMARK_INFO {
    int32_t nChannel;    /* "Chn": from 0, from 1 in the text; 0 when absent */
    int32_t nEnable;     /* "En": 1 when it is made */
    int32_t nStream;     /* "Stream": 0 main, 1 to 3 extra streams */
    int32_t nKey;        /* "Key": number of the key, 0 to 255 */
    char szString[4096]; /* "String": the mark */
} CFG_WATERMARK_INFO;

/* "VideoEncodeROI": regions of the picture that are encoded better than the rest. Read also of a call that the device
 * refused. A text of exactly the buffer's size loses its newline. */
typedef struct CFG_VIDEO_ENCODE_ROI_INFO {
    int32_t nRegionCount; /* regions of the device, also when there are more than eight */
    int32_t nRegions[ORRERY_ROI_REGIONS]
                    [4]; /* "Regions": left, top, right, bottom, 0 to 8191; negative and missing numbers read as 0,
                            those past the eighth are left out. No key when there are none */
    int32_t nQuality;    /* "Quality": 1 to 6 */
    uint8_t bMain;       /* "Main": in the main stream */
    uint8_t bExtra1;     /* "Extra1": in the first extra stream */
    uint8_t bExtra2;     /* "Extra2": in the second extra stream */
    uint8_t bExtra3;     /* "Extra3": in the third extra stream */
    uint8_t bSnapshot;   /* "Snapshot": in single pictures */
} CFG_VIDEO_ENCODE_ROI_INFO;

#ifdef __cplusplus
}
#endif

#endif
