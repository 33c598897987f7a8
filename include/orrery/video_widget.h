/* What is blended into a channel's picture: covers, titles, the time, texts of the user and of sensors. */
#ifndef ORRERY_VIDEO_WIDGET_H
#define ORRERY_VIDEO_WIDGET_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_WIDGET_COVERS 16
#define ORRERY_WIDGET_CUSTOM_TITLES 8
#define ORRERY_WIDGET_SENSORS 2
#define ORRERY_WIDGET_DESCRIPTIONS 4

/* Members of every item on the screen. */
#define ORRERY_WIDGET_ITEM                                                                                             \
    uint32_t dwSize;              /* of the item itself, set by reading; writing does not look at it */                \
    int32_t bEncodeBlend;         /* "EncodeBlend": shown in the main stream */                                        \
    int32_t bEncodeBlendExtra1;   /* "EncodeBlendExtra1": in the first extra stream */                                 \
    int32_t bEncodeBlendExtra2;   /* "EncodeBlendExtra2": in the second */                                             \
    int32_t bEncodeBlendExtra3;   /* "EncodeBlendExtra3": in the third */                                              \
    int32_t bEncodeBlendSnapshot; /* "EncodeBlendSnapshot": in snapshots */                                            \
    CFG_COLOR stuFrontColor;      /* "FrontColor" */                                                                   \
    CFG_COLOR stuBackColor;       /* "BackColor" */                                                                    \
    CFG_RECT stuRect;             /* "Rect": its place */                                                              \
    int32_t bPreviewBlend;        /* "PreviewBlend": shown in the preview */

/* A cover or a plain title. */
typedef struct CFG_WIDGET_ITEM {
    ORRERY_WIDGET_ITEM
} CFG_WIDGET_ITEM;

/* The time. */
typedef struct CFG_WIDGET_TIME_TITLE {
    ORRERY_WIDGET_ITEM
    int32_t bShowWeek; /* "ShowWeek": with the day of the week */
} CFG_WIDGET_TIME_TITLE;

/* A text of the user's. */
typedef struct CFG_WIDGET_CUSTOM_TITLE {
    ORRERY_WIDGET_ITEM
    char szText[1024];    /* "Text" */
    char szTitleType[32]; /* "TitleType": what it stands for, in the device's own words */
} CFG_WIDGET_CUSTOM_TITLE;

/* What is shown of one measuring point of a sensor. */
typedef struct CFG_WIDGET_DESCRIPTION {
    int32_t nID;        /* "ID" */
    char szDevID[32];   /* "DevID": device that measures */
    char szPointID[32]; /* "PointID": its measuring point */
    char szText[32];    /* "Text": what is shown */
} CFG_WIDGET_DESCRIPTION;

/* What sensors say. */
typedef struct CFG_WIDGET_SENSOR {
    ORRERY_WIDGET_ITEM
    int32_t nDescriptionCount;                                         /* entries of stuDescription in use */
    CFG_WIDGET_DESCRIPTION stuDescription[ORRERY_WIDGET_DESCRIPTIONS]; /* "Description"; not written when there are
                                                                          none */
} CFG_WIDGET_SENSOR;

/* "VideoWidget": a channel's widgets; one record or a list, as many as fit. dwSize is the size that the caller was
 * compiled with: set it in the first record before every call, also before reading. It is the distance from one record
 * to the next; below 4 (1 to 3 are told to the log besides), or above the buffer, it fails. What lies within dwSize
 * moves. A missing table, and an empty list, succeed with a length of 0; a null element leaves the caller's record as
 * it was. Keys that are absent leave 0 or an empty text. Lists beyond their room are cut. Written is one bare record,
 * or a list of several. */
typedef struct CFG_VIDEO_WIDGET_INFO {
    uint32_t dwSize;
    int32_t nCoverCount;                                                 /* entries of stuCovers in use */
    CFG_WIDGET_ITEM stuCovers[ORRERY_WIDGET_COVERS];                     /* "Covers"; not written when there are none */
    CFG_WIDGET_ITEM stuChannelTitle;                                     /* "ChannelTitle" */
    CFG_WIDGET_TIME_TITLE stuTimeTitle;                                  /* "TimeTitle" */
    int32_t nCustomTitleCount;                                           /* entries of stuCustomTitle in use */
    CFG_WIDGET_CUSTOM_TITLE stuCustomTitle[ORRERY_WIDGET_CUSTOM_TITLES]; /* "CustomTitle"; not written when there are
                                                                            none */
    int32_t nSensorCount;                                                /* entries of stuSensorInfo in use */
    CFG_WIDGET_SENSOR stuSensorInfo[ORRERY_WIDGET_SENSORS];              /* "SensorInfo"; not written when there are
                                                                            none */
    double fFontSizeScale;                                               /* "FontSizeScale": 1 as designed */
    int32_t nFontSize;                                                   /* "FontSize": in the main stream */
    int32_t nFontSizeExtra1;        /* "FontSizeExtra1": in the first extra stream */
    int32_t nFontSizeExtra2;        /* "FontSizeExtra2": in the second */
    int32_t nFontSizeExtra3;        /* "FontSizeExtra3": in the third */
    int32_t nFontSizeSnapshot;      /* "FontSizeSnapshot": in snapshots */
    int32_t nFontSizeMergeSnapshot; /* "FontSizeMergeSnapshot": in snapshots joined
                                       from several */
} CFG_VIDEO_WIDGET_INFO;

#ifdef __cplusplus
}
#endif

#endif
