/* What hangs on a camera's or recorder's lines beside the head: lens drives, vehicle buses, infrared remote controls;
 * and tours over a screen's windows.
 *
 * Keys that are absent leave 0 unless told otherwise. */
#ifndef ORRERY_PTZ_LINES_H
#define ORRERY_PTZ_LINES_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- "SplitTour", "SpotMatrix" ---- */

#define ORRERY_TOUR_SUPPORTS 16
#define ORRERY_TOUR_SCREENS 4
#define ORRERY_TOUR_QUEUE 16

/* One stop of a tour over windows. */
typedef struct CFG_TOUR_VIEW {
    int32_t nViewMode;   /* "ViewMode": windows on the screen */
    uint32_t nViewParam; /* "ViewParam": which group of channels */
} CFG_TOUR_VIEW;

/* The tour of one screen. */
typedef struct CFG_TOUR_INFO {
    uint32_t bEnable;     /* "Enable" */
    int32_t nTourPeriod;  /* "TourPeriod": seconds; when absent "TourPeriod " with a blank behind it, as
                             some devices send; both are written */
    uint32_t nQueueCount; /* stops that are not null; they may stand behind this many places */
    CFG_TOUR_VIEW stuQueue[ORRERY_TOUR_QUEUE]; /* "SplitTourQueue" of a split tour, "TourQueue" of a spot matrix */
} CFG_TOUR_INFO;

/* "SplitTour" and "SpotMatrix": tours over the windows of screens. The record stands under the command's own name at
 * the top of the reply, and of the text; a reply without it gives a record of zeros, and "result" is not looked at. A
 * null among the screens or stops keeps its place and is not counted. A text of exactly the capacity loses its newline.
 */
typedef struct CFG_SPLIT_TOUR_INFO {
    uint32_t nSupportCount; /* modes in use, at most 16 */
    uint8_t
        bySupport[ORRERY_TOUR_SUPPORTS]; /* "SupportSplit" of a split tour, "SpotSupportMatrix" of a spot matrix: the
                                            modes that can be toured; nulls among the first 16 are passed over */
    uint32_t nInfoCount;                 /* screens that are not null; they may stand behind this many places */
    CFG_TOUR_INFO
    stuInfos[ORRERY_TOUR_SCREENS]; /* "SplitTourInfo" of a split tour, "SpotMatrixInfo" of a spot matrix */
} CFG_SPLIT_TOUR_INFO;

/* ---- "VideoInZoom", "VideoInFocus" ----------------------------------------------------------------------------------
 * A reply is taken when "result" is a number other than 0, or true. A missing table succeeds with the length not set
 * and only the channel read, a table that is no list fails. Writing fails with more than 32 items; the text must be
 * shorter than the capacity less one. */

#define ORRERY_LENS_ITEMS 32

/* One item of "VideoInZoom". */
typedef struct CFG_VIDEOIN_ZOOM_ITEM {
    int32_t nSpeed;        /* "Speed": not written when negative */
    uint32_t bDigitalZoom; /* "DigitalZoom": true is written for exactly 1 */
    int32_t nZoomLimit;    /* "ZoomLimit": largest magnification; not written when negative */
} CFG_VIDEOIN_ZOOM_ITEM;

/* "VideoInZoom": the zoom of one channel. */
typedef struct CFG_VIDEOIN_ZOOM_INFO {
    int32_t nChannel;                                  /* "channel", at the top of the reply; not written */
    int32_t nCount;                                    /* items in use, at most 32 */
    CFG_VIDEOIN_ZOOM_ITEM stuItems[ORRERY_LENS_ITEMS]; /* the list itself */
} CFG_VIDEOIN_ZOOM_INFO;

/* Who chooses the nearest focus ("FocusLimitSelectMode"). Names compare exactly. */
typedef enum CFG_FOCUS_LIMIT_MODE {
    CFG_FOCUS_LIMIT_MANUAL = 0, /* "Manual" */
    CFG_FOCUS_LIMIT_AUTO = 1,   /* "Auto" */
    CFG_FOCUS_LIMIT_UNKNOWN = 2 /* every other name; the key is not written for this and other codes */
} CFG_FOCUS_LIMIT_MODE;

/* One item of "VideoInFocus". */
typedef struct CFG_VIDEOIN_FOCUS_ITEM {
    int32_t nMode;                  /* "Mode": 0 off, 1 aided, 2 automatic, 3 half automatic, 4 by hand */
    int32_t nSensitivity;           /* "Sensitivity": 0 high, 1 default, 2 low */
    int32_t nIrCorrection;          /* "IRCorrection": 0 none, 1 for infrared light, 2 by itself */
    int32_t emFocusLimitSelectMode; /* "FocusLimitSelectMode": CFG_FOCUS_LIMIT_MODE */
    int32_t nFocusLimit;            /* "FocusLimit": nearest focus, millimetres */
} CFG_VIDEOIN_FOCUS_ITEM;

/* "VideoInFocus": the focus of one channel. */
typedef struct CFG_VIDEOIN_FOCUS_INFO {
    int32_t nChannel;                                   /* "channel", at the top of the reply; not written */
    int32_t nCount;                                     /* items in use, at most 32 */
    CFG_VIDEOIN_FOCUS_ITEM stuItems[ORRERY_LENS_ITEMS]; /* the list itself */
} CFG_VIDEOIN_FOCUS_INFO;

/* ---- "CANFilter" ---- */

/* Which identifiers pass ("Policy"). Names compare exactly. */
typedef enum CFG_CAN_POLICY {
    CFG_CAN_UNKNOWN = 0, /* every other name; written, like every other code, as null */
    CFG_CAN_NONE = 1,    /* "None": all pass */
    CFG_CAN_WHITE = 2,   /* "White": those listed pass */
    CFG_CAN_BLACK = 3    /* "Black": those listed are dropped */
} CFG_CAN_POLICY;

/* The filter of one vehicle bus. Reading leaves what the text leaves out. */
typedef struct CFG_CAN_FILTER {
    int32_t nResponseTimeout; /* "ResponseTimeout": milliseconds */
    int32_t nRequestTimeout;  /* "RequestTimeout": milliseconds */
    uint32_t nMaxPid;         /* input: room of pnPids; writing writes this many identifiers, not nReturnPid */
    uint32_t nReturnPid;      /* identifiers in the reply, which may be more than there is room for */
    int32_t* pnPids;          /* "Filter"."PID": input: the caller's array */
    int32_t emPolicy;         /* "Filter"."Policy": CFG_CAN_POLICY */
} CFG_CAN_FILTER;

#define ORRERY_CAN_FILTERS 16

/* "CANFilter": the filters of all buses, with identifiers in arrays of the caller's. At a filter without an array the
 * call ends: it fails, and a reply's length is 0. A missing table succeeds with length 0, one that is no list fails. */
typedef struct CFG_CAN_FILTER_INFO {
    int32_t nMaxCount;    /* input: filters that may be read, at most 16 */
    int32_t nReturnCount; /* filters in the reply, which may be more than were read; filters to write, at most 16 */
    CFG_CAN_FILTER stuFilters[ORRERY_CAN_FILTERS]; /* the list itself */
} CFG_CAN_FILTER_INFO;

/* ---- "InfraredBoardTemplate", "InfraredBoard" ---------------------------------------------------------------------
 * A table that is missing or no list gives no item. */

/* What a remote control is for ("Category"). Names are read with case folded. */
typedef enum CFG_IR_CATEGORY {
    CFG_IR_DVR = 0, /* "DVR", and every other name */
    CFG_IR_TV = 1   /* "TV"; codes above and below these two are written as "" */
} CFG_IR_CATEGORY;

#define ORRERY_IR_ITEMS 16
#define ORRERY_IR_KEYS 128

/* One key of a remote control. */
typedef struct CFG_IR_BOARD_KEY {
    char szName[32]; /* "Name" */
    char szText[64]; /* "Text": what stands on it */
} CFG_IR_BOARD_KEY;

/* One kind of remote control. */
typedef struct CFG_IR_BOARD_TEMPLATE {
    uint32_t nId;                             /* "Id" */
    char szName[64];                          /* "Name" */
    int32_t emCategory;                       /* "Category": CFG_IR_CATEGORY */
    uint32_t nKeyCount;                       /* keys in use, at most 128 */
    CFG_IR_BOARD_KEY stuKeys[ORRERY_IR_KEYS]; /* "Keys" */
} CFG_IR_BOARD_TEMPLATE;

/* "InfraredBoardTemplate": the kinds of remote control that a device knows. */
typedef struct CFG_IR_BOARD_TEMPLATE_INFO {
    uint32_t nCount;                                     /* templates in use, at most 16 */
    CFG_IR_BOARD_TEMPLATE stuTemplates[ORRERY_IR_ITEMS]; /* the list itself */
} CFG_IR_BOARD_TEMPLATE_INFO;

/* One infrared sender. */
typedef struct CFG_IR_BOARD {
    uint32_t nId;         /* "Id" */
    char szName[64];      /* "Name" */
    int32_t emCategory;   /* "Category": CFG_IR_CATEGORY */
    int32_t nCommPort;    /* "CommPort": number of its serial port */
    uint32_t nTemplateId; /* "TemplateId": the kind of remote control that it plays */
} CFG_IR_BOARD;

/* "InfraredBoard": the infrared senders of a device. */
typedef struct CFG_IR_BOARD_INFO {
    uint32_t nCount;                         /* senders in use, at most 16 */
    CFG_IR_BOARD stuBoards[ORRERY_IR_ITEMS]; /* the list itself */
} CFG_IR_BOARD_INFO;

#ifdef __cplusplus
}
#endif

#endif
