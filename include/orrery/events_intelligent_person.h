/* Intelligent events: what people and riders look like. Heads and closing fields: see events_common.h. */
#ifndef ORRERY_EVENTS_INTELLIGENT_PERSON_H
#define ORRERY_EVENTS_INTELLIGENT_PERSON_H

#include "orrery/events_intelligent_face.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "PersonFeature" (373): what a person looks like. */
typedef struct DEV_EVENT_PERSONFEATURE_INFO {
    ORRERY_EVENT_HEAD_SHORT;
    EVENT_FILE_INFO stuFileInfo;
    uint8_t byEventAction;
    char szSourceDevice[260];
    uint8_t bySex;               /* "Sex": "Male" 1, "Female" 2 */
    uint8_t byAge;               /* "Age" */
    uint8_t byCall;              /* "Call": on the phone */
    uint8_t byHat;               /* "Hat" */
    uint8_t byBag;               /* "Bag" */
    uint8_t byUmbrella;          /* "Umbrella" */
    uint8_t byGlasses;           /* "Glasses" */
    int32_t emEmotion;           /* "Emotion": EVENT_FEATURE_... */
    CFG_COLOR stuUpperBodyColor; /* "UpperBodyColor", exactly 4 numbers */
    CFG_COLOR stuLowerBodyColor; /* "LowerBodyColor", exactly 4 numbers */
    CFG_RECT stuBoundingBox;     /* "BoundingBox", exactly 4 numbers */
    char szImagePath[64];        /* "Image"."FilePath" */
    uint16_t wImageWidth;        /* "Image"."Width" */
    uint16_t wImageHeight;       /* "Image"."Height" */
    uint8_t byRepeat;
    uint32_t dwFlagMask;
} DEV_EVENT_PERSONFEATURE_INFO;

/* "NonMotorFeature" (374): what a rider looks like. Members without a word are as in
 * DEV_EVENT_PERSONFEATURE_INFO. */
typedef struct DEV_EVENT_NONMOTORFEATURE_INFO {
    ORRERY_EVENT_HEAD_SHORT;
    EVENT_FILE_INFO stuFileInfo;
    uint8_t byEventAction;
    char szSourceDevice[260];
    char szPlateNumber[32]; /* "PlateNumber" */
    uint8_t bySex;
    uint8_t byAge;
    uint8_t byCall;
    uint8_t byHat;
    uint8_t byBag;
    uint8_t byUmbrella;
    uint8_t byGlasses;
    int32_t emEmotion;
    CFG_COLOR stuUpperBodyColor;
    CFG_COLOR stuLowerBodyColor;
    CFG_RECT stuBoundingBox;
    char szImagePath[64];
    uint16_t wImageWidth;
    uint16_t wImageHeight;
    uint8_t byRepeat;
    uint32_t dwFlagMask;
} DEV_EVENT_NONMOTORFEATURE_INFO;

/* ---- People as a whole ---- */

/* Colours of clothes. */
enum {
    EVENT_CLOTHES_COLOR_UNKNOWN = 0,
    EVENT_CLOTHES_COLOR_WHITE = 1,
    EVENT_CLOTHES_COLOR_ORANGE = 2,
    EVENT_CLOTHES_COLOR_PINK = 3,
    EVENT_CLOTHES_COLOR_BLACK = 4,
    EVENT_CLOTHES_COLOR_RED = 5,
    EVENT_CLOTHES_COLOR_YELLOW = 6,
    EVENT_CLOTHES_COLOR_GRAY = 7,
    EVENT_CLOTHES_COLOR_BLUE = 8,
    EVENT_CLOTHES_COLOR_GREEN = 9,
    EVENT_CLOTHES_COLOR_PURPLE = 10,
    EVENT_CLOTHES_COLOR_BROWN = 11
};

/* A picture in the data behind the text. */
typedef struct EVENT_TRAIT_IMAGE {
    uint32_t dwOffset;      /* "Offset" */
    uint32_t dwLength;      /* "Length" */
    uint32_t dwWidth;       /* "Width" */
    uint32_t dwHeight;      /* "Height" */
    uint32_t dwIndexInData; /* "IndexInData" */
} EVENT_TRAIT_IMAGE;

/* "HumanAttributes" */
typedef struct EVENT_HUMAN_ATTRIBUTES {
    int32_t emCoatColor;     /* "CoatColor": EVENT_CLOTHES_COLOR_... */
    int32_t emTrousersColor; /* "TrousersColor" */
    int32_t emCoatType;      /* "CoatType": 0 to 2, 0 for others */
    int32_t emHasHat;        /* "HasHat": 0 to 2, 0 for others */
    int32_t emHasBag;        /* "HasBag": 0 to 2, 0 for others */
    int32_t emTrousersType;  /* "TrousersType": 0 to 3, 0 for others */
    int32_t emSex;           /* "Sex": "Man" 1, "Woman" 2 */
    int32_t nAge;            /* "Age" */
} EVENT_HUMAN_ATTRIBUTES;

/* "FaceAttributes" */
typedef struct EVENT_FACE_ATTRIBUTES {
    int32_t nAge;                             /* "Age" */
    int32_t nBeard;                           /* "Beard" */
    int32_t nMask;                            /* "Mask" */
    int32_t nFaceQuality;                     /* "FaceQuality" */
    int32_t nFeatureNum;                      /* features in use */
    int32_t emFeature[ORRERY_EVENT_FEATURES]; /* "Feature": EVENT_FEATURE_... */
    int32_t emGlass;                          /* "Glass": 2 is 1, 1 is 2, others are 0 */
    int32_t emSex;                            /* "Sex": "Man" 1, "Woman" 2 */
} EVENT_FACE_ATTRIBUTES;

/* "HumanTrait" (533): a person, from head to foot. */
typedef struct DEV_EVENT_HUMANTRAIT_INFO {
    int32_t nChannelID;
    char szName[128];
    int32_t nEventID;
    uint32_t dwAction;                         /* EVENT_ACTION_... */
    int32_t emClass;                           /* "Class"; "Traffic" is known */
    int32_t nGroupID;                          /* "GroupID", an integer */
    int32_t nCountInGroup;                     /* "CountInGroup", an integer */
    int32_t nIndexInGroup;                     /* "IndexInGroup", an integer */
    EVENT_TRAIT_IMAGE stuHumanImage;           /* "HumanImage" */
    EVENT_TRAIT_IMAGE stuFaceImage;            /* "FaceImage" */
    EVENT_TRAIT_IMAGE stuFaceSceneImage;       /* "FaceSceneImage" */
    EVENT_TRAIT_IMAGE stuSceneImage;           /* "SceneImage" */
    int32_t emDetectObject;                    /* "DetectObject" and 1 when it is 0 to 2, else 0 */
    EVENT_HUMAN_ATTRIBUTES stuHumanAttributes; /* "HumanAttributes" */
    EVENT_FACE_ATTRIBUTES stuFaceAttributes;   /* "FaceAttributes" */
    char szEventLongID[52];                    /* "Extension"."EventLongID" */
    char szAdditionalCode[36];                 /* "HumanTraitExtension"."AdditioalCode" */
} DEV_EVENT_HUMANTRAIT_INFO;

#ifdef __cplusplus
}
#endif

#endif
