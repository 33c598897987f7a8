/* What the records of analyzer events share: heads, closing fields, described objects, images, positions.
 *
 * A record lives only during the callback that takes it, and so do the blocks that its pointers lead to. Keys stand
 * inside the event's "Data" unless told otherwise, and inside the named object within a building block. What a key that
 * is absent, or of an unfitting type, leaves is 0 unless told otherwise. Texts are in the encoding of the locale; one
 * marked "full" may fill its field to the last byte and then has no terminator. */
#ifndef ORRERY_EVENTS_COMMON_H
#define ORRERY_EVENTS_COMMON_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A moment in UTC. From a count of seconds since 1970 unless told otherwise; all 0 when it is out of range. */
typedef struct EVENT_TIME {
    uint32_t dwYear;        /* such as 2026 */
    uint32_t dwMonth;       /* 1 to 12 */
    uint32_t dwDay;         /* 1 to 31 */
    uint32_t dwHour;        /* 0 to 23 */
    uint32_t dwMinute;      /* 0 to 59 */
    uint32_t dwSecond;      /* 0 to 59 */
    uint32_t dwMillisecond; /* 0 to 999 */
    uint32_t dwReserved[2];
} EVENT_TIME;

/* The same without milliseconds. Members are as in EVENT_TIME. */
typedef struct EVENT_CALENDAR {
    uint32_t dwYear;
    uint32_t dwMonth;
    uint32_t dwDay;
    uint32_t dwHour;
    uint32_t dwMinute;
    uint32_t dwSecond;
} EVENT_CALENDAR;

/* A point of the picture, [ x, y ]. */
typedef struct EVENT_POINT {
    int16_t nX;
    int16_t nY;
} EVENT_POINT;

/* Where in its message an event stands ("Action" of the event). An event without one has that of the event before. */
enum { EVENT_ACTION_PULSE = 0, EVENT_ACTION_START = 1, EVENT_ACTION_STOP = 2 };

enum { EVENT_FILE_TAG_NONE = 0, EVENT_FILE_TAG_ATM_BEFORE_PASTE = 1, EVENT_FILE_TAG_ATM_AFTER_PASTE = 2 };

/* The picture that an event came with. An event that brings none of the three keys has those of the event before. */
typedef struct EVENT_FILE_INFO {
    uint8_t byCount;        /* "CountInGroup": pictures in the group */
    uint8_t byIndex;        /* "IndexInGroup": this picture's place in it */
    uint8_t byFileTag;      /* EVENT_FILE_TAG_..., of a notification */
    uint8_t byPictureType;  /* of a notification */
    EVENT_TIME stuFileTime; /* of a notification */
    uint32_t nGroupID;      /* "GroupID" */
} EVENT_FILE_INFO;

/* ---- Heads: the first fields of every record ---- */

/*
 * nChannelID      channel of the notification; -1 when the text is none
 * szName          "Name", full: of the rule that fired
 * byReservedHead  zero in most records
 * dPTS            "PTS": time stamp of the frame
 * dwPTS           "PTS" without its fraction, its low 32 bits
 * nTriggerType    "TriggerType"
 * stuUTC          "UTC" and "UTCMS"
 * nEventID        "EventID" */
#define ORRERY_EVENT_HEAD_A_WITH(spare)                                                                                \
    int32_t nChannelID;                                                                                                \
    char szName[128];                                                                                                  \
    spare;                                                                                                             \
    double dPTS;                                                                                                       \
    EVENT_TIME stuUTC;                                                                                                 \
    int32_t nEventID
#define ORRERY_EVENT_HEAD_A ORRERY_EVENT_HEAD_A_WITH(uint8_t byReservedHead[4])

#define ORRERY_EVENT_HEAD_B                                                                                            \
    int32_t nChannelID;                                                                                                \
    char szName[128];                                                                                                  \
    int32_t nTriggerType;                                                                                              \
    uint32_t dwPTS;                                                                                                    \
    EVENT_TIME stuUTC;                                                                                                 \
    int32_t nEventID

/* The same without the trigger. */
#define ORRERY_EVENT_HEAD_PTS                                                                                          \
    int32_t nChannelID;                                                                                                \
    char szName[128];                                                                                                  \
    uint32_t dwPTS;                                                                                                    \
    EVENT_TIME stuUTC;                                                                                                 \
    int32_t nEventID

#define ORRERY_EVENT_HEAD_C                                                                                            \
    int32_t nChannelID;                                                                                                \
    char szName[128];                                                                                                  \
    uint8_t byReservedHead[4];                                                                                         \
    uint32_t dwPTS;                                                                                                    \
    EVENT_TIME stuUTC;                                                                                                 \
    int32_t nEventID

/* The fields that close a record, in whichever order and number it has them:
 *
 * stuFileInfo           see EVENT_FILE_INFO
 * byEventAction         EVENT_ACTION_...
 * byRepeat              low byte of the notification's "Repeat"
 * dwFlagMask            bits of the notification's "Flags": "*" 0, "Timing" 1, "Manual" 2, "Marked" 3, "Event" 4,
 *                       "Mosaic" 5, "Cutout" 6
 * wWidth, wHeight       the notification's "Resolution"
 * nSourceIndex          "SourceIndex", -1 when absent
 * szSourceDevice        "SourceDevice", only beside "SourceIndex"
 * dwCount               "Count", an integer or a bool
 * bIsExistAlarmRecord   "IsExistAlarmRecord"
 * dwAlarmRecordSize     "AlarmRecordSize"
 * szAlarmRecordPath     "AlarmRecordPath"
 * emClass               "Class": EVENT_CLASS_..., 0 for others */
#define ORRERY_EVENT_ACTION_AND_REPEAT                                                                                 \
    uint8_t byEventAction;                                                                                             \
    uint8_t byReservedAction[2];                                                                                       \
    uint8_t byRepeat
#define ORRERY_EVENT_SIZE                                                                                              \
    uint16_t wWidth;                                                                                                   \
    uint16_t wHeight

/* A list of points, in use nXNum of stuX. A point of fewer than two numbers leaves a hole of zeros and is not counted,
 * so that the count may end before the last point. */
#define ORRERY_EVENT_POINTS 20

/* What the scene is for ("Class"). */
enum {
    EVENT_CLASS_UNKNOWN = 0,
    EVENT_CLASS_TRAFFIC = 6, /* "Traffic", in the few records that say so */
    EVENT_CLASS_NORMAL = 7,
    EVENT_CLASS_PRISON = 8,
    EVENT_CLASS_ATM = 9,
    EVENT_CLASS_FACE_DETECTION = 11,
    EVENT_CLASS_FACE_RECOGNITION = 12,
    EVENT_CLASS_NUMBER_STAT = 13,
    EVENT_CLASS_HEAT_MAP = 14,
    EVENT_CLASS_VIDEO_DIAGNOSIS = 15,
    EVENT_CLASS_VEHICLE_ANALYSE = 18,
    EVENT_CLASS_SD_FACE_DETECT = 20,
    EVENT_CLASS_HEAT_MAP_PLAN = 21,
    EVENT_CLASS_NUMBER_STAT_PLAN = 22,
    EVENT_CLASS_ATMFD = 23,
    EVENT_CLASS_HIGHWAY = 24,
    EVENT_CLASS_CITY = 25,
    EVENT_CLASS_LE_TRACK = 26,
    EVENT_CLASS_SCR = 27,
    EVENT_CLASS_STEREO_VISION = 28,
    EVENT_CLASS_HUMAN_DETECT = 29,
    EVENT_CLASS_FACE_ANALYSIS = 30,
    EVENT_CLASS_XRAY_DETECTION = 31,
    EVENT_CLASS_STEREO_NUMBER = 32
};

/* ---- Described objects ---- */

/* Room of a record for a list of objects. */
#define ORRERY_EVENT_OBJECTS 16

enum {
    EVENT_OBJECT_ACTION_NONE = 0,
    EVENT_OBJECT_ACTION_APPEAR = 1,
    EVENT_OBJECT_ACTION_MOVE = 2,
    EVENT_OBJECT_ACTION_STAY = 3,
    EVENT_OBJECT_ACTION_REMOVE = 4,
    EVENT_OBJECT_ACTION_DISAPPEAR = 5,
    EVENT_OBJECT_ACTION_SPLIT = 6,
    EVENT_OBJECT_ACTION_MERGE = 7,
    EVENT_OBJECT_ACTION_RENAME = 8
};

enum { EVENT_TIME_ABSOLUTE = 0, EVENT_TIME_RELATIVE = 1 };

#define ORRERY_EVENT_CONTOUR 16

/* Of a person. Cards alone leave it untold, as 9. */
enum { EVENT_SEX_UNKNOWN = 0, EVENT_SEX_MALE = 1, EVENT_SEX_FEMALE = 2, EVENT_SEX_UNTOLD = 3 };

/* Places in byColorSimilar and its kin. */
enum {
    EVENT_COLOR_RED = 0,
    EVENT_COLOR_YELLOW = 1,
    EVENT_COLOR_GREEN = 2,
    EVENT_COLOR_CYAN = 3,
    EVENT_COLOR_BLUE = 4,
    EVENT_COLOR_PURPLE = 5,
    EVENT_COLOR_BLACK = 6,
    EVENT_COLOR_WHITE = 7,
    EVENT_COLOR_COUNT = 8
};

/* A thing, a vehicle or a person that the analysis sees ("Object", "Vehicle", "Objects"). */
typedef struct EVENT_OBJECT_INFO {
    int32_t nObjectID;      /* "ObjectID" */
    char szObjectType[128]; /* "ObjectType", full */
    int32_t nConfidence;    /* "Confidence" */
    /* "Action": EVENT_OBJECT_ACTION_..., of the text without its last character ("Appeark" is 1, "Appear" 0) */
    int32_t nAction;
    CFG_RECT stuBoundingBox;                      /* "BoundingBox", at least 4 numbers */
    EVENT_POINT stuCenter;                        /* "Center", at least 2 numbers */
    int32_t nPolygonNum;                          /* points of "Contour", at most 16 */
    EVENT_POINT stuContour[ORRERY_EVENT_CONTOUR]; /* "Contour"; a point of fewer than 2 numbers is zero and counts */
    uint32_t rgbaMainColor;                       /* "MainColor", at least 4 numbers: 0xRRGGBBAA */
    char szText[128];                             /* "Text", full; of a car's object: its plate number */
    char szObjectSubType[64];                     /* "Category", full; of a car's object: its "PlateType" */
    uint16_t wCarLogoIndex;                       /* "CarLogoIndex": make of the car */
    uint16_t wSubBrand;                           /* "SubBrand" */
    uint8_t bPicEnable;                           /* 1 when "Image" is there */
    uint32_t dwOffset;                            /* "Image"."Offset": in the data behind the text */
    uint32_t dwFileLength;                        /* "Image"."Length" */
    uint16_t wWidth;                              /* "Image"."Width" */
    uint16_t wHeight;                             /* "Image"."Height" */
    const char* pszFilePath;                      /* "Image"."FilePath"; null when absent */
    uint8_t bShotFrame;                           /* "ShotFrame" */
    uint8_t bColor;                               /* 1 when rgbaMainColor is set */
    uint8_t byTimeType;                           /* "TimeType": "Absolute" 0, "Relative" 1 */
    /* "CurrentTimeStamp"."UTC"; its milliseconds are the "UTCMS" of the last of the three stamps that has one */
    EVENT_TIME stuCurrentTimeStamp;
    EVENT_TIME stuStartTimeStamp;                       /* "StartTimeStamp"."UTC" */
    EVENT_TIME stuEndTimeStamp;                         /* "EndTimeStamp"."UTC" */
    CFG_RECT stuOriginalBoundingBox;                    /* "OriginalBoundingBox", exactly 4 numbers */
    CFG_RECT stuSignBoundingBox;                        /* "Sign"."BoundingBox", exactly 4 numbers */
    uint32_t dwCurrentSequence;                         /* "CurrentSequence" */
    uint32_t dwBeginSequence;                           /* "BeginSequence" */
    uint32_t dwEndSequence;                             /* "EndSequence" */
    uint64_t llBeginFileOffset;                         /* "BeginFileOffset" */
    uint64_t llEndFileOffset;                           /* "EndFileOffset" */
    uint8_t byColorSimilar[EVENT_COLOR_COUNT];          /* "ColorSimilar": likeness under the keys "Red" to "White" */
    uint8_t byUpperBodyColorSimilar[EVENT_COLOR_COUNT]; /* "UpperBodyColorSimilar", the same */
    uint8_t byLowerBodyColorSimilar[EVENT_COLOR_COUNT]; /* "LowerBodyColorSimilar", the same */
    int32_t nRelativeID;                                /* "RelativeID" */
    char szSubText[20];                                 /* "SubText", full */
    uint16_t wBrandYear;                                /* "BrandYear": model year */
} EVENT_OBJECT_INFO;

enum { EVENT_PERSON_DIRECTION_UNKNOWN = 0, EVENT_PERSON_LEFT_TO_RIGHT = 1, EVENT_PERSON_RIGHT_TO_LEFT = 2 };

/* The same with what is known of a person, without the make of a car. Members without a word are as in
 * EVENT_OBJECT_INFO. */
typedef struct EVENT_OBJECT_INFO_EX {
    uint32_t dwSize; /* 704 once the object has been read */
    int32_t nObjectID;
    char szObjectType[128];
    int32_t nConfidence;
    int32_t nAction;
    CFG_RECT stuBoundingBox;
    EVENT_POINT stuCenter;
    int32_t nPolygonNum;
    EVENT_POINT stuContour[ORRERY_EVENT_CONTOUR];
    uint32_t rgbaMainColor;
    uint32_t rgbaLowerBodyColor; /* "LowerBodyColor", as "MainColor" */
    char szText[128];
    char szObjectSubType[64];
    uint8_t bPicEnable;
    uint32_t dwOffset;
    uint32_t dwFileLength;
    uint16_t wWidth;
    uint16_t wHeight;
    const char* pszFilePath;
    uint8_t bShotFrame;
    uint8_t bColor;
    uint8_t byTimeType;
    EVENT_TIME stuCurrentTimeStamp;
    EVENT_TIME stuStartTimeStamp;
    EVENT_TIME stuEndTimeStamp;
    CFG_RECT stuOriginalBoundingBox;
    CFG_RECT stuSignBoundingBox;
    uint32_t dwCurrentSequence;
    uint32_t dwBeginSequence;
    uint32_t dwEndSequence;
    uint64_t llBeginFileOffset;
    uint64_t llEndFileOffset;
    uint8_t byColorSimilar[EVENT_COLOR_COUNT];
    uint8_t byUpperBodyColorSimilar[EVENT_COLOR_COUNT];
    uint8_t byLowerBodyColorSimilar[EVENT_COLOR_COUNT];
    int32_t nRelativeID;
    char szSubText[20];
    int32_t nStature;    /* "Person"."Stature": height */
    int32_t emDirection; /* "Person"."Direction": "LeftToRight" 1, "RightToLeft" 2 */
    uint8_t byReserved[16];
} EVENT_OBJECT_INFO_EX;

/* A hit on a target. */
typedef struct EVENT_BULLET_HOLE_INFO {
    int32_t nObjectID;       /* "ObjectID" */
    char szObjectType[128];  /* "ObjectType" */
    CFG_RECT stuBoundingBox; /* "BoundingBox", at least 4 numbers */
    EVENT_POINT stuCenter;   /* "Center", at least 2 numbers */
    int32_t nSequence;       /* "Sequence" */
    int32_t nScore;          /* "Score" */
} EVENT_BULLET_HOLE_INFO;

/* ---- Images ---- */

/* A picture in the data behind the text. */
typedef struct EVENT_IMAGE_INFO {
    uint32_t dwOffset;   /* "Offset" */
    uint32_t dwLength;   /* "Length" */
    uint16_t wWidth;     /* "Width" */
    uint16_t wHeight;    /* "Height" */
    char szFilePath[64]; /* "FilePath" */
    uint8_t bDetected;   /* "IsDetected" */
} EVENT_IMAGE_INFO;

/* The same, of a person. Members without a word are as in EVENT_IMAGE_INFO. */
typedef struct EVENT_PERSON_IMAGE {
    uint32_t dwOffset;
    uint32_t dwLength;
    uint16_t wWidth;
    uint16_t wHeight;
    const char* pszFilePath; /* "FilePath"; null when absent */
    uint8_t bDetected;
} EVENT_PERSON_IMAGE;

/* ---- Positions ---- */

/* "Custom"."GPS". Degrees stand as [ degrees, minutes, seconds ]. */
typedef struct EVENT_GPS_POINT {
    uint32_t dwLongitude; /* "Longitude": millionths of a degree */
    uint32_t dwLatitude;  /* "Latitude" */
    double dAltitude;     /* "Altitude": metres */
    double dSpeed;        /* "Speed" */
    double dBearing;      /* "Bearing": degrees */
} EVENT_GPS_POINT;

/* Yes or no, or not told. */
enum { EVENT_STATE_NO = 0, EVENT_STATE_YES = 1, EVENT_STATE_UNKNOWN = 2 };

#define ORRERY_EVENT_ALARM_POINTS 128

/* "GPS": position of a vehicle and what its terminal says. */
typedef struct EVENT_GPS_STATUS {
    NET_TIME stuTime;            /* "Time": at least 6 numbers */
    double dLongitude;           /* "Longitude": millionths of a degree */
    double dLatitude;            /* "Latitude" */
    double dAltitude;            /* "Altitude" */
    double dBearing;             /* "Bearing" */
    double dSpeed;               /* "Speed" */
    int32_t nSatelliteCount;     /* "SatelliteCount" */
    uint8_t byAntennasStatus;    /* "AntennasStatus": EVENT_STATE_..., 2 when absent */
    uint8_t byPositioningResult; /* "PositioningResult": EVENT_STATE_..., 2 when absent */
    uint8_t byWorkStatus;        /* "WorkStatus" */
    int32_t nAlarmPointNum;      /* alarms in use */
    /* "AlarmPoints": alarm codes of the terminal's own numbers; 0xFFFFFFFF for a number that is none */
    uint32_t dwAlarmPoints[ORRERY_EVENT_ALARM_POINTS];
    uint8_t bySNR;    /* "SNR": signal to noise */
    int32_t emSource; /* "Source": "GPS" 0, "InertialNavigation" 1 */
} EVENT_GPS_STATUS;

#ifdef __cplusplus
}
#endif

#endif
