/* The records of the analysis rules, but for those of traffic. What the macros stand for, and what all records have in
 * common, is told in analyse_rules.h. */
#ifndef ORRERY_RULE_BODIES_H
#define ORRERY_RULE_BODIES_H

#include "orrery/analyse_rules.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Direction over a line; another text reads as 0. */
enum {
    CFG_LINE_LEFT_TO_RIGHT = 0, /* "LeftToRight" */
    CFG_LINE_RIGHT_TO_LEFT = 1, /* "RightToLeft" */
    CFG_LINE_BOTH = 2           /* "Both" */
};

/* Direction into a region; another text reads as 0. */
enum {
    CFG_REGION_ENTER = 0, /* "Enter" */
    CFG_REGION_LEAVE = 1, /* "Leave" */
    CFG_REGION_BOTH = 2   /* "Both" */
};

/* What an object does in a region; another text reads as 0. */
enum {
    CFG_REGION_ACTION_APPEAR = 0,    /* "Appear" */
    CFG_REGION_ACTION_DISAPPEAR = 1, /* "Disappear" */
    CFG_REGION_ACTION_INSIDE = 2,    /* "Inside" */
    CFG_REGION_ACTION_CROSS = 3      /* "Cross" */
};

/* How a fight is told. */
enum {
    CFG_FIGHT_UNSET = 0,    /* "", or no key */
    CFG_FIGHT_BY_VIDEO = 1, /* "ByVideo" */
    CFG_FIGHT_BY_AUDIO = 2, /* "ByAudio" */
    CFG_FIGHT_BOTH = 3,     /* "Both" */
    CFG_FIGHT_UNKNOWN = 255 /* any other text; not written */
};

/* Kinds of motion; another text reads as 0. */
enum {
    CFG_MOTION_FAST = 0,           /* "FastMove" of "MoveDetection", "FastRun" of "RunDetection" */
    CFG_MOTION_ABRUPT_SPEEDUP = 1, /* "AbruptSpeedup" */
    CFG_MOTION_ABRUPT_SLOWDOWN = 2 /* "AbruptSlowdown" */
};

/* What a count of people looks at; another text leaves 0. */
enum {
    CFG_NUMBERSTAT_REGION = 0,   /* "Region" */
    CFG_NUMBERSTAT_ENTRANCE = 1, /* "Entrance" */
    CFG_NUMBERSTAT_UNSET = 2     /* "" */
};

/* What is wrong with a picture; another text reads as 0. */
enum {
    CFG_ABNORMAL_LOSS = 0,          /* "Loss" */
    CFG_ABNORMAL_COVER = 1,         /* "Cover" */
    CFG_ABNORMAL_FROZEN = 2,        /* "Frozen" */
    CFG_ABNORMAL_LIGHT = 3,         /* "Light" */
    CFG_ABNORMAL_DARK = 4,          /* "Dark" */
    CFG_ABNORMAL_SCENE_CHANGE = 5,  /* "SceneChange" */
    CFG_ABNORMAL_STRIATION = 6,     /* "Striation" */
    CFG_ABNORMAL_NOISE = 7,         /* "Noise" */
    CFG_ABNORMAL_UNBALANCE = 8,     /* "Unbalance" */
    CFG_ABNORMAL_BLUR = 9,          /* "Blur" */
    CFG_ABNORMAL_CONTRAST = 10,     /* "Contrast" */
    CFG_ABNORMAL_MOTION = 11,       /* "Motion" */
    CFG_ABNORMAL_FILCKERING = 12,   /* "Filckering" */
    CFG_ABNORMAL_COLOR = 13,        /* "Color" */
    CFG_ABNORMAL_UN_FOCUS = 14,     /* "UnFocus" */
    CFG_ABNORMAL_OVER_EXPOSURE = 15 /* "OverExposure" */
};

/* How faces are looked for; another text reads as 0. */
enum {
    CFG_RECOGNITION_NORMAL = 0, /* "Normal" */
    CFG_RECOGNITION_AREA = 1,   /* "Area" */
    CFG_RECOGNITION_AUTO = 2    /* "Auto" */
};

/* Parts of a face that are compared; another text reads as 0. */
enum {
    CFG_FACE_AREA_EYEBROW = 0, /* "Eyebrow"; devices send "Eyebrow " with a blank */
    CFG_FACE_AREA_EYE = 1,     /* "Eye" */
    CFG_FACE_AREA_NOSE = 2,    /* "Nose" */
    CFG_FACE_AREA_MOUTH = 3,   /* "Mouth" */
    CFG_FACE_AREA_CHEEK = 4    /* "Cheek" */
};

/* Features of a face; another text reads as 0, which is written as null. */
enum {
    CFG_FACE_FEATURE_SEX = 1,        /* "Sex" */
    CFG_FACE_FEATURE_AGE = 2,        /* "Age" */
    CFG_FACE_FEATURE_EMOTION = 3,    /* "Emotion" */
    CFG_FACE_FEATURE_GLASSES = 4,    /* "Glasses" */
    CFG_FACE_FEATURE_RACE = 5,       /* "Race" */
    CFG_FACE_FEATURE_EYE = 6,        /* "Eye" */
    CFG_FACE_FEATURE_MOUTH = 7,      /* "Mouth" */
    CFG_FACE_FEATURE_MASK = 8,       /* "Mask" */
    CFG_FACE_FEATURE_BEARD = 9,      /* "Beard" */
    CFG_FACE_FEATURE_ATTRACTIVE = 10 /* "Attractive" */
};

/* How a post is watched. */
enum {
    CFG_LEAVE_UNSET = 0,     /* "", or no key */
    CFG_LEAVE_BY_PATROL = 1, /* "ByPatrol" */
    CFG_LEAVE_BY_SENTRY = 2, /* "BySentry" */
    CFG_LEAVE_UNKNOWN = 255  /* any other text; written as "BySentry" */
};

/* What counts as leaving a post. */
enum {
    CFG_LEAVE_TRIGGER_UNKNOWN = 0,   /* any other text; written as "Unknown", as is any other value */
    CFG_LEAVE_TRIGGER_NO_PERSON = 1, /* "NoPerson" */
    CFG_LEAVE_TRIGGER_LEAVE = 2,     /* "Leave" */
    CFG_LEAVE_TRIGGER_STATIC = 3     /* "Static" */
};

/* Two corners of a rectangle. Text form: [ [ left, top ], [ right, bottom ] ], unsigned numbers. */
typedef struct CFG_RULE_BOX {
    CFG_POLYGON stuLeftTop;
    CFG_POLYGON stuRightBottom;
} CFG_RULE_BOX;

/* A region in which people are counted. */
typedef struct CFG_RULE_CROWD_REGION {
    CFG_POLYGON stuRegion[4]; /* "Region": four corners */
    uint32_t nPeopleNumLimit; /* "PeopleNumLimit": people at most */
} CFG_RULE_CROWD_REGION;

/* A line is crossed: "CrossLineDetection" (2). */
typedef struct CFG_RULE_CROSSLINE_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bTrackEnable; /* "TrackEnable" */
    ORRERY_RULE_OBJECTS;
    int32_t nDirection;                                 /* "Direction": CFG_LINE_... */
    ORRERY_RULE_SHAPE(nDetectLinePoint, stuDetectLine); /* "DetectLine" */
    ORRERY_RULE_LINKAGE;
    int32_t bClearTimeSection; /* not 0: "TimeSection" is written as null; never set by reading */
    int32_t nPtzPresetId;      /* "PtzPresetId" */
    ORRERY_RULE_FILTER;
    ORRERY_RULE_POSITIONS;
    int32_t nTrackDuration; /* "TrackDuration": seconds to follow an object */
} CFG_RULE_CROSSLINE_INFO;

/* A fence is climbed over: "CrossFenceDetection" (287). */
typedef struct CFG_RULE_CROSSFENCE_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bTrackEnable; /* "TrackEnable" */
    ORRERY_RULE_OBJECTS;
    int32_t nDirection;                                         /* "Direction": CFG_LINE_... */
    ORRERY_RULE_SHAPE(nUpstairsLinePoint, stuUpstairsLine);     /* "UpstairsLine": upper edge of the fence */
    ORRERY_RULE_SHAPE(nDownstairsLinePoint, stuDownstairsLine); /* "DownstairsLine": lower edge */
    ORRERY_RULE_TAIL;
    ORRERY_RULE_FILTER;
    ORRERY_RULE_POSITIONS;
    int32_t nTrackDuration; /* "TrackDuration": seconds to follow an object */
} CFG_RULE_CROSSFENCE_INFO;

/* A region is entered or left: "CrossRegionDetection" (3). */
typedef struct CFG_RULE_CROSSREGION_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bTrackEnable; /* "TrackEnable" */
    ORRERY_RULE_OBJECTS;
    int32_t nDirection;                                     /* "Direction": CFG_REGION_... */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_LINKAGE;
    int32_t bClearTimeSection; /* not 0: "TimeSection" is written as null; never set by reading */
    int32_t nPtzPresetId;      /* "PtzPresetId" */
    ORRERY_RULE_FILTER;
    int32_t nActionNum;      /* entries in use */
    uint8_t byAction[4];     /* "Action": CFG_REGION_ACTION_... */
    int32_t nMinTargets;     /* "MinTargets": objects at least */
    int32_t nMaxTargets;     /* "MaxTargets": objects at most */
    int32_t nMinDuration;    /* "MinDuration": seconds that it has to last */
    int32_t nReportInterval; /* "ReportInterval": seconds between repeated reports */
    int32_t nTrackDuration;  /* "TrackDuration": seconds to follow an object */
} CFG_RULE_CROSSREGION_INFO;

/* Fire, smoke, a notice pasted up: "FireDetection" (12), "SmokeDetection" (13), "PasteDetection" (4). */
typedef struct CFG_RULE_FIRE_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nMinDuration;                                   /* "MinDuration": seconds that it has to last */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nSensitivity;                                   /* "Sensitivity" */
    ORRERY_RULE_TAIL;
} CFG_RULE_FIRE_INFO;

/* Something is kept under watch, somebody follows closely, sparks: "Preservation" (8), "TailDetection" (10),
 * "ElectroSparkDetection" (272). */
typedef struct CFG_RULE_PRESERVATION_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nMinDuration;                                   /* "MinDuration": seconds that it has to last */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_TAIL;
} CFG_RULE_PRESERVATION_INFO;

/* A fight: "FightDetection" (14). */
typedef struct CFG_RULE_FIGHT_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nMinDuration;                                   /* "MinDuration": seconds that it has to last */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nSensitivity;                                   /* "Sensitivity" */
    int32_t nDetectMode;                                    /* "DetectMode": CFG_FIGHT_... */
    ORRERY_RULE_TAIL;
} CFG_RULE_FIGHT_INFO;

/* Something moves: "MoveDetection" (9). */
typedef struct CFG_RULE_MOVE_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bTrackEnable;  /* "TrackEnable" */
    uint8_t bySensitivity; /* "Sensitivity" */
    ORRERY_RULE_OBJECTS;
    int32_t nMinDuration;                                   /* "MinDuration": seconds that it has to last */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nTriggerSpeed;                                  /* "TriggerSpeed" */
    ORRERY_RULE_TAIL;
    ORRERY_RULE_POSITIONS;
    ORRERY_RULE_FILTER;
    int32_t nDetectTypeNum;  /* entries in use */
    uint8_t byDetectType[4]; /* "DetectType": CFG_MOTION_... */
    int32_t nTrackDuration;  /* "TrackDuration": seconds to follow an object */
} CFG_RULE_MOVE_INFO;

/* Somebody stays or loiters: "StayDetection" (6), "WanderDetection" (7). */
typedef struct CFG_RULE_STAY_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bTrackEnable; /* "TrackEnable" */
    ORRERY_RULE_OBJECTS;
    int32_t nMinDuration;                                   /* "MinDuration": seconds that it has to last */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_TAIL;
    ORRERY_RULE_POSITIONS;
    int32_t nTriggerTargetsNumber; /* "TriggerTargetsNumber": objects that trigger */
    int32_t nReportInterval;       /* "ReportInterval": seconds between repeated reports */
    ORRERY_RULE_FILTER;
    int32_t nTrackDuration; /* "TrackDuration": seconds to follow an object */
} CFG_RULE_STAY_INFO;

/* Something is left, taken away or parked: "LeftDetection" (5), "TakenAwayDetection" (277), "ParkingDetection"
 * (278). "TrackEnable" is read only. */
typedef struct CFG_RULE_LEFT_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bTrackEnable; /* "TrackEnable"; read only */
    ORRERY_RULE_OBJECTS;
    int32_t nMinDuration;                                   /* "MinDuration": seconds that it has to last */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_TAIL;
    ORRERY_RULE_POSITIONS;
    ORRERY_RULE_FILTER;
    int32_t nTrackDuration; /* "TrackDuration": seconds to follow an object */
} CFG_RULE_LEFT_INFO;

/* A crowd gathers: "RioterDetection" (11). */
typedef struct CFG_RULE_RIOTER_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bTrackEnable;  /* "TrackEnable" */
    uint8_t byAreaPercent; /* "AreaPercent": share of the region, percent */
    uint8_t bySensitivity; /* "Sensitivity" */
    ORRERY_RULE_OBJECTS;
    int32_t nMinDuration;                                   /* "MinDuration": seconds that it has to last */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    uint32_t nReportInterval;                               /* "ReportInterval": seconds between repeated reports */
    CFG_RULE_BOX stuMinDetectRect; /* "MinDetectRect": smallest gathering; read only from exactly two points */
    ORRERY_RULE_TAIL;
    int32_t nTrackDuration; /* "TrackDuration": seconds to follow an object */
} CFG_RULE_RIOTER_INFO;

/* Flow over a line: "FlowStat" (15). */
typedef struct CFG_RULE_FLOWSTAT_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nUpperLimit;                                /* "UpperLimit" */
    int32_t nPeriod;                                    /* "Period": seconds */
    ORRERY_RULE_SHAPE(nDetectLinePoint, stuDetectLine); /* "DetectLine" */
    ORRERY_RULE_TAIL;
} CFG_RULE_FLOWSTAT_INFO;

/* People counted: "NumberStat" (16), "NumberStatPlan" (529). */
typedef struct CFG_RULE_NUMBERSTAT_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nUpperLimit;                                    /* "UpperLimit" */
    int32_t nPeriod;                                        /* "ReportInterval": seconds between reports */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_TAIL;
    int32_t nType;               /* "Type": CFG_NUMBERSTAT_... */
    CFG_POLYGON stuDirection[2]; /* "Direction": from the first point to the second */
    int32_t nRecordInterval;     /* "RecordInterval" */
    int32_t nEnterThreshold;     /* "EnterThreshold" */
    int32_t nExitThreshold;      /* "ExitThreshold" */
    int32_t nInsideThreshold;    /* "InsideThreshold" */
    uint32_t nPlanId;            /* "PlanId": left out at 0 */
} CFG_RULE_NUMBERSTAT_INFO;

/* Somebody goes against the direction: "RetrogradeDetection" (275). */
typedef struct CFG_RULE_RETROGRADE_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bySensitivity; /* "Sensitivity" */
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_SHAPE(nDirectionPoint, stuDirection);       /* "Direction": the direction allowed */
    ORRERY_RULE_TAIL;
    ORRERY_RULE_FILTER;
    ORRERY_RULE_POSITIONS;
} CFG_RULE_RETROGRADE_INFO;

/* A region is crowded: "DensityDetection" (289). */
typedef struct CFG_RULE_DENSITY_INFO {
    ORRERY_RULE_HEAD;
    uint8_t byUnit;            /* "Unit" */
    uint8_t bySensitivity;     /* "Sensitivity" */
    uint8_t byMinAlarmDensity; /* "MinAlarmDensity" */
    ORRERY_RULE_OBJECTS;
    int32_t nMinDuration;                                   /* "MinDuration": seconds; written, never read */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_TAIL;
} CFG_RULE_DENSITY_INFO;

/* Somebody runs: "RunDetection" (274). */
typedef struct CFG_RULE_RUN_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bTrackEnable;  /* "TrackEnable" */
    uint8_t bySensitivity; /* "Sensitivity" */
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_TAIL;
    ORRERY_RULE_FILTER;
    ORRERY_RULE_POSITIONS;
    int32_t nDetectTypeNum;  /* entries in use */
    uint8_t byDetectType[4]; /* "DetectType": CFG_MOTION_... */
    int32_t nTriggerSpeed;   /* "TriggerSpeed" */
    int32_t nMinDuration;    /* "MinDuration": seconds that it has to last */
} CFG_RULE_RUN_INFO;

/* The picture itself is wrong: "VideoAbnormalDetection" (19). */
typedef struct CFG_RULE_VIDEOABNORMAL_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bySensitivity; /* "Sensitivity" */
    ORRERY_RULE_OBJECTS;
    int32_t nDetectTypeNum;                                 /* entries in use */
    uint8_t byDetectType[32];                               /* "DetectType": CFG_ABNORMAL_... */
    int32_t nMinDuration;                                   /* "MinDuration": seconds that it has to last */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nThresholdNum;                                  /* entries in use */
    int32_t nThreshold[32];                                 /* "Threshold": one a kind of abnormality */
    ORRERY_RULE_TAIL;
} CFG_RULE_VIDEOABNORMAL_INFO;

/* A face is recognised: "FaceRecognition" (279). */
typedef struct CFG_RULE_FACERECOGNITION_INFO {
    ORRERY_RULE_HEAD;
    uint8_t bySimilarity; /* "Similarity": least likeness */
    uint8_t byAccuracy;   /* "Accuracy" */
    uint8_t byMode;       /* "Mode": CFG_RECOGNITION_... */
    uint8_t byImportant;  /* "Important" */
    ORRERY_RULE_OBJECTS;
    int32_t nAreaNum;      /* entries in use */
    uint8_t byAreas[8];    /* "Areas": CFG_FACE_AREA_... */
    int32_t nMaxCandidate; /* "MaxCandidate": candidates to report */
    ORRERY_RULE_TAIL;
} CFG_RULE_FACERECOGNITION_INFO;

/* A face is seen: "FaceDetection" (26). */
typedef struct CFG_RULE_FACEDETECTION_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nHumanFaceTypeNum;                              /* entries in use; a null of the text takes none */
    char szHumanFaceTypes[8][ORRERY_RULE_TEXT];             /* "HumanFaceTypes" */
    ORRERY_RULE_TAIL;
    int32_t nMinDuration;    /* "MinDuration": seconds that it has to last */
    int32_t nSensitivity;    /* "Sensitivity" */
    int32_t nReportInterval; /* "ReportInterval": seconds between repeated reports */
    ORRERY_RULE_FILTER;
    int32_t bFeatureEnable;                  /* "FeatureEnable": tell features of a face */
    int32_t nFeatureNum;                     /* entries in use */
    int32_t nFeatures[ORRERY_FACE_FEATURES]; /* "FeatureList": CFG_FACE_FEATURE_... */
} CFG_RULE_FACEDETECTION_INFO;

/* Features of faces: code 535, which has no name: written as "All", never read. */
typedef struct CFG_RULE_FACEANALYSIS_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nSensitivity;                                   /* "Sensitivity" */
    ORRERY_RULE_TAIL;
    ORRERY_RULE_FILTER;
    int32_t bFeatureEnable;                  /* "FeatureEnable": tell features of a face */
    int32_t nFeatureNum;                     /* entries in use */
    int32_t nFeatures[ORRERY_FACE_FEATURES]; /* "FeatureList": CFG_FACE_FEATURE_... */
} CFG_RULE_FACEANALYSIS_INFO;

/* Somebody gets up from bed: "PrisonerRiseDetection" (286). */
typedef struct CFG_RULE_PRISONERRISE_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    CFG_POLYGON stuDirection[2];                            /* "Direction": from the first point to the second */
    CFG_POLYGON stuBedMiddleLine[2];                        /* "BedMiddleLine": middle line of the bed */
    int32_t nBedSide;                                       /* "BedSide" */
    int32_t nMinDuration;                                   /* "MinDuration": seconds that it has to last */
    int32_t nReportInterval;                                /* "ReportInterval": seconds between repeated reports */
    ORRERY_RULE_TAIL;
    ORRERY_RULE_FILTER;
} CFG_RULE_PRISONERRISE_INFO;

/* A queue is too long: "QueueDetection" (291). */
typedef struct CFG_RULE_QUEUE_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    CFG_POLYGON stuDetectLine[2]; /* "DetectLine": read only from exactly two points */
    int32_t nOccupyLineMargin;    /* "OccupyLineMargin" */
    int32_t nTriggerTime;         /* "TriggerTime": seconds */
    ORRERY_RULE_TAIL;
} CFG_RULE_QUEUE_INFO;

/* The sound is wrong: "AudioAbnormalDetection" (294). No objects, no preset; "Class" and "Id" are not written. */
typedef struct CFG_RULE_AUDIOABNORMAL_INFO {
    ORRERY_RULE_HEAD;
    int32_t nDecibel;     /* "Decibel" */
    int32_t nFrequency;   /* "Frequency" */
    int32_t nMinDuration; /* "MinDuration": seconds that it has to last */
    ORRERY_RULE_LINKAGE;
} CFG_RULE_AUDIOABNORMAL_INFO;

/* Somebody climbs: "ClimbDetection" (296). */
typedef struct CFG_RULE_CLIMB_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectLinePoint, stuDetectLine); /* "DetectLine" */
    ORRERY_RULE_TAIL;
    ORRERY_RULE_FILTER;
} CFG_RULE_CLIMB_INFO;

/* A post is left: "LeaveDetection" (297). */
typedef struct CFG_RULE_LEAVE_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    int32_t nMode;            /* "Mode": CFG_LEAVE_...; any value above 2 is written as 2 */
    uint32_t nMinDuration;    /* "MinDuration": seconds that it has to last */
    uint32_t nReportInterval; /* "ReportInterval": seconds between repeated reports */
    ORRERY_RULE_TAIL;
    ORRERY_RULE_FILTER;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nTriggerModeNum;                                /* entries in use */
    int32_t nTriggerMode[8];                                /* "TriggerMode": CFG_LEAVE_TRIGGER_... */
} CFG_RULE_LEAVE_INFO;

/* Somebody leaves the bed: "GetOutBedDetection" (341). */
typedef struct CFG_RULE_GETOUTBED_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nMinDuration;    /* "MinDuration": seconds that it has to last; a text or a fraction is not read */
    int32_t nReportInterval; /* "ReportInterval": seconds between repeated reports; a text or a fraction is not read */
    ORRERY_RULE_SHAPE(nAssisDectLinePoint, stuAssisDectLine); /* "AssisDectLine": auxiliary line */
    ORRERY_RULE_TAIL;
} CFG_RULE_GETOUTBED_INFO;

/* A patrol is missing: "PatrolDetection" (342). */
typedef struct CFG_RULE_PATROL_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nMinDuration;    /* "MinDuration": seconds that it has to last; a text or a fraction is not read */
    int32_t nReportInterval; /* "ReportInterval": seconds between repeated reports; a text or a fraction is not read */
    int32_t nPatrolTime;     /* "PatrolTime": seconds; a text or a fraction is not read */
    ORRERY_RULE_TAIL;
    ORRERY_RULE_FILTER;
} CFG_RULE_PATROL_INFO;

/* Nobody is on duty: "OnDutyDetection" (343). */
typedef struct CFG_RULE_ONDUTY_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nMinDuration;    /* "MinDuration": seconds that it has to last; a text or a fraction is not read */
    int32_t nReportInterval; /* "ReportInterval": seconds between repeated reports; a text or a fraction is not read */
    int32_t nTemplateRegionNum;         /* entries in use */
    CFG_RULE_BOX stuTemplateRegion[32]; /* "TemplateRegion": places; one without two points takes no entry */
    ORRERY_RULE_TAIL;
} CFG_RULE_ONDUTY_INFO;

/* A heat map: "HeatMap" (351), "HeatMapPlan" (530). */
typedef struct CFG_RULE_HEATMAP_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_TAIL;
    ORRERY_RULE_FILTER;
    uint32_t nPlanId; /* "PlanId" */
} CFG_RULE_HEATMAP_INFO;

/* Somebody stands up: "StandUpDetection" (359). Written only: a reply with such a rule is refused. */
typedef struct CFG_RULE_STANDUP_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    ORRERY_RULE_SHAPE(nDirectionPoint, stuDirection);       /* "Direction" */
    CFG_RECT stuRegionMax;                                  /* "Region"."Max": largest person */
    CFG_RECT stuRegionMin;                                  /* "Region"."Min": smallest person */
    ORRERY_RULE_TAIL;
} CFG_RULE_STANDUP_INFO;

/* Shots at a target are scored: "ShootingScoreRecognition" (362). */
typedef struct CFG_RULE_SHOOTINGSCORE_INFO {
    ORRERY_RULE_HEAD;
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nRound;                                         /* "Round": rounds; a text or a fraction is not read */
    int32_t nSensitivity;                                   /* "Sensitivity": a text or a fraction is not read */
    int32_t nCaliber;                                       /* "Caliber": a text or a fraction is not read */
    ORRERY_RULE_TAIL;
} CFG_RULE_SHOOTINGSCORE_INFO;

/* An object is followed: "LeTrack" (366). Nothing of its own. */
typedef struct CFG_RULE_LETRACK_INFO {
    char szRuleName[ORRERY_RULE_TEXT]; /* "Name" */
    int32_t bRuleEnable;               /* "Enable" */
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_TAIL;
} CFG_RULE_LETRACK_INFO;

/* Somebody stands still, too many or too few people, people too near: "ManStandDetection" (525), "ManNumDetection"
 * (526), "NearDistanceDetection" (372). */
typedef struct CFG_RULE_MANSTAND_INFO {
    char szRuleName[ORRERY_RULE_TEXT]; /* "Name" */
    int32_t bRuleEnable;               /* "Enable" */
    uint8_t bTrackEnable;              /* "TrackEnable" */
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectLinePoint, stuDetectLine);     /* "DetectLine" */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nThreshold;                                     /* "Threshold" */
    int32_t nDetectType;                                    /* "DetectType" */
    int32_t nSensitivity;                                   /* "Sensitivity" */
    int32_t nMaxHeight;                                     /* "MaxHeight" */
    int32_t nMinHeight;                                     /* "MinHeight" */
    ORRERY_RULE_TAIL;
} CFG_RULE_MANSTAND_INFO;

/* People counted with depth: "StereoNumberStat" (527). */
typedef struct CFG_RULE_STEREONUMBERSTAT_INFO {
    char szRuleName[ORRERY_RULE_TEXT]; /* "Name" */
    int32_t bRuleEnable;               /* "Enable" */
    uint8_t bTrackEnable;              /* "TrackEnable" */
    ORRERY_RULE_OBJECTS;
    ORRERY_RULE_SHAPE(nDetectLinePoint, stuDetectLine);     /* "DetectLine" */
    ORRERY_RULE_SHAPE(nDetectRegionPoint, stuDetectRegion); /* "DetectRegion" */
    int32_t nSensitivity;                                   /* "Sensitivity" */
    int32_t nMaxHeight;                                     /* "MaxHeight" */
    int32_t nMinHeight;                                     /* "MinHeight" */
    int32_t nEnterThreshold;                                /* "EnterThreshold" */
    int32_t nExitThreshold;                                 /* "ExitThreshold" */
    int32_t nInsideThreshold;                               /* "InsideThreshold" */
    char szDirection[8];                                    /* "Direction" */
    ORRERY_RULE_TAIL;
} CFG_RULE_STEREONUMBERSTAT_INFO;

/* A crowd and its density: "CrowdDetection", in rules "CrowdDistriMap" (556). */
typedef struct CFG_RULE_CROWD_INFO {
    char szRuleName[ORRERY_RULE_TEXT]; /* "Name" */
    int32_t bRuleEnable;               /* "Enable" */
    uint8_t bTrackEnable;              /* "TrackEnable" */
    ORRERY_RULE_OBJECTS;
    int32_t bGeneralAlarmEnable;                   /* "GeneralAlarmEnable": alarm for the whole picture */
    uint32_t nCrowdDensity;                        /* "CrowdDensity" */
    int32_t bRegionAlarmEnable;                    /* "RegionAlarmEnable": alarm for regions */
    int32_t nPeopleStatRegionNum;                  /* entries in use */
    CFG_RULE_CROWD_REGION stuPeopleStatRegions[8]; /* "PeopleStatRegions" */
    int32_t bSlaveTrackEnable;                     /* "SlaveTrackEnable": a second camera follows */
    ORRERY_RULE_TAIL;
} CFG_RULE_CROWD_INFO;

#ifdef __cplusplus
}
#endif

#endif
