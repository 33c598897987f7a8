/* What a device can analyse: asked before a client offers rules to its user. All of it is read only. */
#ifndef ORRERY_ANALYSE_CAPS_H
#define ORRERY_ANALYSE_CAPS_H

#include "orrery/event_types.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_CAPS_SCENES 32      /* scenes of a device */
#define ORRERY_CAPS_OBJECTS 16     /* kinds of object, of action and of detection */
#define ORRERY_CAPS_FACES 8        /* kinds of face */
#define ORRERY_CAPS_RULES 128      /* types of rule */
#define ORRERY_CAPS_FEATURES 32    /* features of a face */
#define ORRERY_CAPS_CALIBRATES 4   /* ways of calibration */
#define ORRERY_CAPS_PROPERTIES 4   /* properties of a special region */
#define ORRERY_CAPS_COMPS 4        /* combinations of scenes */
#define ORRERY_CAPS_COMP_SCENES 8  /* scenes of a combination */
#define ORRERY_CAPS_SUB_TYPES 32   /* kinds of a scene */
#define ORRERY_CAPS_TEXT 128       /* a name, terminator included */
#define ORRERY_CAPS_SCENE_NAME 260 /* name of a scene, terminator included */
#define ORRERY_CAPS_DEVICES 192    /* devices whose status is told */

/* Bits of dwVideoChannelTypes. */
enum {
    CFG_CAPS_CHANNEL_DIGITAL = 1, /* "Digital": of network cameras */
    CFG_CAPS_CHANNEL_ANALOG = 2,  /* "Anolog", as devices spell it */
    CFG_CAPS_CHANNEL_BOTH = 4     /* "Both" */
};

/* How a scene shows the angle of the camera. */
enum {
    CFG_CAPS_ANGLE_NONE = 0,   /* absent, "" and other texts, which the log is told of */
    CFG_CAPS_ANGLE_NUMBER = 1, /* "Num" */
    CFG_CAPS_ANGLE_MODE = 2    /* "Mode" */
};

/* Ways of calibration. */
enum {
    CFG_CALIBRATE_GROUND = 1, /* "Groud", as devices spell it */
    CFG_CALIBRATE_HORIZONTAL = 2,
    CFG_CALIBRATE_VERTICAL = 3,
    CFG_CALIBRATE_ANY = 4
};

/* What a special region may be. */
enum {
    CFG_CAPS_PROPERTY_UNKNOWN = 0, /* a null and any other text */
    CFG_CAPS_PROPERTY_HIGHLIGHT = 1,
    CFG_CAPS_PROPERTY_REGULAR_BLINK = 2,
    CFG_CAPS_PROPERTY_IRREGULAR_BLINK = 3
};

/* Features of a face that a rule tells. */
enum {
    CFG_CAPS_FEATURE_UNKNOWN = 0, /* a null and any other text */
    CFG_CAPS_FEATURE_SEX = 1,
    CFG_CAPS_FEATURE_AGE = 2,
    CFG_CAPS_FEATURE_EMOTION = 3,
    CFG_CAPS_FEATURE_GLASSES = 4,
    CFG_CAPS_FEATURE_RACE = 5,
    CFG_CAPS_FEATURE_EYE = 6,
    CFG_CAPS_FEATURE_MOUTH = 7,
    CFG_CAPS_FEATURE_MASK = 8,
    CFG_CAPS_FEATURE_BEARD = 9,
    CFG_CAPS_FEATURE_ATTRACTIVE = 10
};

/* What the records of a type of rule share. A list keeps its first entries; a null element leaves its entry empty and
 * counts. */
#define ORRERY_RULE_CAPS                                                                                               \
    uint32_t dwRuleCode;    /* ORRERY_RULE_... by the name of the member; 0 for a name that is not known */            \
    int32_t nObjectTypeNum; /* entries of szObjectTypes in use */                                                      \
    char szObjectTypes[ORRERY_CAPS_OBJECTS][ORRERY_CAPS_TEXT];  /* "SupportedObjectTypes": such as "Human" */          \
    int32_t nActionNum;                                         /* entries of szActions in use */                      \
    char szActions[ORRERY_CAPS_OBJECTS][ORRERY_CAPS_TEXT];      /* "SupportedActions": what the rule tells apart */    \
    int32_t nDetectTypeNum;                                     /* entries of szDetectTypes in use */                  \
    char szDetectTypes[ORRERY_CAPS_OBJECTS][ORRERY_CAPS_TEXT];  /* "SupportedDetectTypes": such as directions */       \
    int32_t nHumanFaceTypeNum;                                  /* entries of szHumanFaceTypes in use */               \
    char szHumanFaceTypes[ORRERY_CAPS_FACES][ORRERY_CAPS_TEXT]; /* "SupportedHumanFaceTypes" */                        \
    int32_t bTriggerPosition; /* "TriggerPosition": the rule takes the points of an object that count */               \
    int32_t bTriggerTrack     /* "TriggerTrack": the rule can start the following of an object */

/* One type of rule in a scene, by its name. */
typedef struct CFG_RULE_CAPS {
    ORRERY_RULE_CAPS;
    int32_t bFeatureSupport;                 /* "FeatureSupport" is 1: the rule tells features of a face */
    int32_t nFeatureNum;                     /* entries of nFeatures in use */
    int32_t nFeatures[ORRERY_CAPS_FEATURES]; /* "FeatureList": CFG_CAPS_FEATURE_... */
} CFG_RULE_CAPS;

/* The same without features, for "devVideoAnalyse.getCapsEx". */
typedef struct CFG_RULE_CAPS_EX {
    ORRERY_RULE_CAPS;
} CFG_RULE_CAPS_EX;

/* One way of calibration and how many staffs it takes. Both pairs have the lesser place second: of [ a, b ], b is the
 * first member and a the other. Fewer than two numbers leave both 0. */
typedef struct CFG_CALIBRATE_CAPS {
    int32_t nType;          /* CFG_CALIBRATE_..., by the key under which it stands */
    int32_t nHorizontalMin; /* "HorizontalStaffs", second number */
    int32_t nHorizontalMax; /* "HorizontalStaffs", first number */
    int32_t nVerticalMin;   /* "VerticalStaffs", second number */
    int32_t nVerticalMax;   /* "VerticalStaffs", first number */
} CFG_CALIBRATE_CAPS;

/* One scene, by its name. A scene or a rule whose value is null has its name and nothing else. */
#define ORRERY_SCENE_CAPS(rule)                                                                                        \
    char szName[ORRERY_CAPS_SCENE_NAME];                       /* the name of the member in "SupportedScenes" */       \
    int32_t nObjectTypeNum;                                    /* entries of szObjectTypes in use */                   \
    char szObjectTypes[ORRERY_CAPS_OBJECTS][ORRERY_CAPS_TEXT]; /* "SupportedObjectTypes": such as "Human" */           \
    int32_t nRuleNum;                                          /* entries of stuRules in use */                        \
    rule stuRules[ORRERY_CAPS_RULES]; /* "SupportedRules": in the order of their names, the first 128 */               \
    int32_t nCalibrateNum;            /* entries of stuCalibrates in use */                                            \
    CFG_CALIBRATE_CAPS stuCalibrates[ORRERY_CAPS_CALIBRATES]; /* "SupportedCalibrateParams": those that are there of   \
                                                                 "Groud", "Horizontal", "Vertical", "Any" */           \
    int32_t nMaxCelibateAreas;      /* "SupportedCalibrateParams"."MaxCelibateAreas": areas of calibration */          \
    uint8_t bCameraAspect;          /* "SupportedSceneParams"."CameraAspect" */                                        \
    uint8_t bJitter;                /* "SupportedSceneParams"."Jitter" */                                              \
    uint8_t bDejitter;              /* "SupportedSceneParams"."Dejitter" */                                            \
    uint8_t bDisturbance;           /* "SupportedModuleParams"."Disturbance" */                                        \
    uint8_t bAntiDisturbance;       /* "SupportedModuleParams"."AntiDisturbance" */                                    \
    uint8_t bBacklight;             /* "SupportedModuleParams"."Backlight" */                                          \
    uint8_t bShadow;                /* "SupportedModuleParams"."Shadow" */                                             \
    uint8_t bAccuracy;              /* "SupportedModuleParams"."Accuracy" */                                           \
    uint8_t bMovingStep;            /* "SupportedModuleParams"."MovingStep" */                                         \
    uint8_t bScalingFactor;         /* "SupportedModuleParams"."ScalingFactor" */                                      \
    uint8_t bThresholdY;            /* "SupportedModuleParams"."ThresholdY" */                                         \
    uint8_t bThresholdUV;           /* "SupportedModuleParams"."ThresholdUV" */                                        \
    uint8_t bThresholdEdge;         /* "SupportedModuleParams"."ThresholdEdge" */                                      \
    uint8_t bDetectBalance;         /* "SupportedModuleParams"."DetectBalance" */                                      \
    uint8_t bAlgorithmIndex;        /* "SupportedModuleParams"."AlgorithmIndex" */                                     \
    uint8_t bHighlight;             /* "SupportedModuleParams"."Highlight" */                                          \
    uint8_t bSnapshot;              /* "SupportedModuleParams"."Snapshot" */                                           \
    uint8_t bDetectRegion;          /* "SupportedModuleParams"."DetectRegion" */                                       \
    uint8_t bExcludeRegion;         /* "SupportedModuleParams"."ExcludeRegion" */                                      \
    uint8_t bContourAssistantTrack; /* "SupportedModuleParams"."ContourAssistantTrack" */                              \
    uint8_t bPixel;                 /* "SupportedModuleParams"."SizeFilter"."MeasureMode"."Pixel" */                   \
    uint8_t bMetric;                /* "SupportedModuleParams"."SizeFilter"."MeasureMode"."Metric" */                  \
    uint8_t bCalibratedPixel;       /* "SupportedModuleParams"."SizeFilter"."MeasureMode"."CalibratedPixel" */         \
    int32_t nMaxRules;              /* "MaxRules": rules of the scene */                                               \
    int32_t bSupportedSetModule;    /* "SupportedSetModule": the module's settings can be changed */                   \
    int32_t nSubTypeNum;            /* entries of szSubTypes in use */                                                 \
    char szSubTypes[ORRERY_CAPS_SUB_TYPES][64] /* kinds of the scene, from the list under its name in                  \
                                                  "SupportedSceneSubType", which stands beside "SupportedScenes" */

typedef struct CFG_SCENE_CAPS {
    ORRERY_SCENE_CAPS(CFG_RULE_CAPS);
} CFG_SCENE_CAPS;

/* The same for "devVideoAnalyse.getCapsEx". */
typedef struct CFG_SCENE_CAPS_EX {
    ORRERY_SCENE_CAPS(CFG_RULE_CAPS_EX);
} CFG_SCENE_CAPS_EX;

/* Scenes that can be analysed at the same time. */
typedef struct CFG_SCENE_COMP {
    int32_t nCount;                            /* entries of szNames in use */
    char szNames[ORRERY_CAPS_COMP_SCENES][17]; /* names of the scenes, the first 16 bytes of each */
} CFG_SCENE_COMP;

/* What both replies tell of a channel. Keys stand in "caps"; a list keeps its first entries, and a null element of it
 * leaves its entry empty and counts. */
#define ORRERY_ANALYSE_CAPS(scene)                                                                                     \
    int32_t nSceneNum;                                   /* entries of szScenes in use */                              \
    char szScenes[ORRERY_CAPS_SCENES][ORRERY_CAPS_TEXT]; /* "SupportedScene": such as "Traffic" */                     \
    int32_t nMaxModules;                                 /* "MaxModules": modules at the same time */                  \
    int32_t nObjectTypeNum;                              /* entries of szObjectTypes in use */                         \
    char szObjectTypes[ORRERY_CAPS_OBJECTS]                                                                            \
                      [ORRERY_CAPS_TEXT];    /* "SupportedObjectType": the first 192 bytes of each */                  \
    int32_t nMaxRules;                       /* "MaxRules": rules of the channel */                                    \
    int32_t nRuleNum;                        /* entries of dwRuleCodes in use */                                       \
    uint32_t dwRuleCodes[ORRERY_CAPS_RULES]; /* "SupportedRules": "All" 1 and so on, as ORRERY_RULE_...; 0 for a name  \
                                                that is not known */                                                   \
    int32_t nMaxStaffs;                      /* "MaxStaffs": staffs of a calibration */                                \
    int32_t nMaxPointOfLine;                 /* "MaxPointOfLine": points of a line */                                  \
    int32_t nMaxPointOfRegion;               /* "MaxPointOfRegion": points of a region */                              \
    int32_t nMaxInternalOptions;             /* "MaxInternalOptions" */                                                \
    uint8_t bComplexSizeFilter;              /* "ComplexSizeFilter": sizes may be told by area and ratio too */        \
    uint8_t bSpecifiedObjectFilter;          /* "SpecifiedObjectFilter": sizes may be told for a kind of object */     \
    int32_t nMaxExcludeRegions;              /* "MaxExcludeRegions": regions left out, when it is a number */          \
    int32_t nMaxExcludeRegionsHigh;   /* "MaxExcludeRegions", second number, when it is a list of at least two */      \
    int32_t nMaxExcludeRegionsLow;    /* "MaxExcludeRegions", first number of such a list */                           \
    int32_t nMaxSpecialDetectRegions; /* "MaxSpecialDetectRegions": regions with properties of their own */            \
    int32_t nTimeSectionNum;          /* "SupportedTimeSectionNum": sections of a day; 6 when absent */                \
    int32_t nSpecialPropertyNum;      /* entries of nSpecialProperties in use; a null is not counted */                \
    int32_t nSpecialProperties[ORRERY_CAPS_PROPERTIES]; /* "SupportedSpecialDetectRegionProperty":                     \
                                                           CFG_CAPS_PROPERTY_... */                                    \
    uint32_t dwVideoChannelTypes; /* "SupportedVideoChannelType": CFG_CAPS_CHANNEL_... of the list together; others    \
                                     have no bit */                                                                    \
    int32_t bMultiSceneSwitch;    /* "SupportMultiSceneSwitch": scenes can change by themselves */                     \
    int32_t nSceneCapsNum;        /* entries of stuSceneCaps in use */                                                 \
    scene stuSceneCaps[ORRERY_CAPS_SCENES]; /* "SupportedScenes": in the order of their names, the first 32 */         \
    int32_t nSceneCompNum;                  /* entries of stuSceneComps in use */                                      \
    CFG_SCENE_COMP stuSceneComps[ORRERY_CAPS_COMPS]; /* "SupportedComp": a list of lists of names */                   \
    int32_t nDisplayCameraAngle;                     /* "DisplayCameraAngle": CFG_CAPS_ANGLE_... */                    \
    int32_t nFilterMask                              /* "FilterMask" */

/* "devVideoAnalyse.getCaps". About thirty megabytes: keep it off the stack. A missing "caps" reads as an empty one. */
typedef struct CFG_ANALYSECAPS_INFO {
    ORRERY_ANALYSE_CAPS(CFG_SCENE_CAPS);
} CFG_ANALYSECAPS_INFO;

/* "devVideoAnalyse.getCapsEx": the same without the features of faces, and as large. */
typedef struct CFG_ANALYSECAPS_INFO_EX {
    ORRERY_ANALYSE_CAPS(CFG_SCENE_CAPS_EX);
} CFG_ANALYSECAPS_INFO_EX;

/* "devAudioAnalyse.getCaps". A reply without "result" is taken too, and a missing "caps" reads as an empty one. */
typedef struct CFG_AUDIOANALYSECAPS_INFO {
    int32_t nRuleNum;                        /* entries of dwRuleCodes in use */
    uint32_t dwRuleCodes[ORRERY_CAPS_RULES]; /* "SupportedRules": ORRERY_RULE_... of the names of its members, in their
                                                order, the first 128; 0 for a name that is not known */
} CFG_AUDIOANALYSECAPS_INFO;

/* What a device analyses. */
enum {
    CFG_ANALYSE_REAL_STREAM = 0, /* "RealStream": what the camera sees; also when absent and for other texts */
    CFG_ANALYSE_RECORD_FILE_STREAM = 1,
    CFG_ANALYSE_PICTURE_FILE_STREAM = 2 /* "PicFileStream" */
};

/* "intelli.getCaps.AnalyseMode". A missing "caps" reads as an empty one. */
typedef struct CFG_ANALYSEMODE_INFO {
    int32_t nAnalyseMode; /* "AnalyseMode": CFG_ANALYSE_... */
} CFG_ANALYSEMODE_INFO;

/* "intelli.getVideoAnalyseDeviceChannels", "devVideoAnalyse.factory.getCollect": how many channels analyse;
 * "videoDiagnosisServer.factory.getCollect": how many servers of video diagnosis there are, into a buffer of exactly
 * this size. Some devices tell it as the result itself, so that the result is not tested: 0 is no refusal. */
typedef struct CFG_ANALYSECHANNELS_INFO {
    int32_t
        nChannels; /* "channels" of the reply's "params"; without it the reply's "result", when that is an integer */
} CFG_ANALYSECHANNELS_INFO;

/* One device. */
typedef struct CFG_REMOTEDEVICE_STATUS {
    uint8_t bOnline;                     /* "Online" */
    char szDeviceName[ORRERY_CAPS_TEXT]; /* "Device" */
} CFG_REMOTEDEVICE_STATUS;

/* "netApp.getRemoteDeviceStatus": whether the devices behind this one can be reached. An element without "Online" ends
 * the list; one without "Device" ends the call, which gives 0, and both leave the entries before them. A reply without
 * "status" tells of none. */
typedef struct CFG_REMOTEDEVICE_STATUS_INFO {
    CFG_REMOTEDEVICE_STATUS stuEntries[ORRERY_CAPS_DEVICES]; /* "status" of the reply's "params", the first 192 */
    int32_t nCount; /* elements of the list, also those beyond the array and behind the end */
} CFG_REMOTEDEVICE_STATUS_INFO;

#ifdef __cplusplus
}
#endif

#endif
