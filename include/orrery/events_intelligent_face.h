/* Intelligent events: faces, and the known people whom they look like. Heads and closing fields: see
 * events_common.h. */
#ifndef ORRERY_EVENTS_INTELLIGENT_FACE_H
#define ORRERY_EVENTS_INTELLIGENT_FACE_H

#include "orrery/events_intelligent_crossing.h"

#ifdef __cplusplus
extern "C" {
#endif

/* What a face shows ("Feature", "Emotion"). */
enum {
    EVENT_FEATURE_UNKNOWN = 0,
    EVENT_FEATURE_WEAR_GLASSES = 1,
    EVENT_FEATURE_SMILE = 2,
    EVENT_FEATURE_ANGER = 3,
    EVENT_FEATURE_SADNESS = 4,
    EVENT_FEATURE_DISGUST = 5,
    EVENT_FEATURE_FEAR = 6,
    EVENT_FEATURE_SURPRISE = 7,
    EVENT_FEATURE_NEUTRAL = 8,
    EVENT_FEATURE_LAUGH = 9,
    EVENT_FEATURE_NO_GLASSES = 10, /* "NoGlasses"; in "HumanTrait" "Noglasses" */
    EVENT_FEATURE_HAPPY = 11,
    EVENT_FEATURE_CONFUSED = 12,
    EVENT_FEATURE_SCREAM = 13,
    EVENT_FEATURE_SUN_GLASSES = 14
};
#define ORRERY_EVENT_FEATURES 32

typedef struct EVENT_FACE_INFO {
    int32_t nObjectID;       /* "ObjectID" */
    char szObjectType[128];  /* "ObjectType" */
    int32_t nRelativeID;     /* "nRelativeID": ID of the body that it belongs to */
    CFG_RECT stuBoundingBox; /* "BoundingBox", at least 4 numbers */
    EVENT_POINT stuCenter;   /* "Center", at least 2 numbers */
} EVENT_FACE_INFO;

#define ORRERY_EVENT_FACES 10

/* "FaceDetection" (26): a face was seen. The size that the callback is told is 12288: copy the record by its code. */
typedef struct DEV_EVENT_FACEDETECTION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject; /* "Object" */
    EVENT_FILE_INFO stuFileInfo;
    ORRERY_EVENT_ACTION_AND_REPEAT;
    ORRERY_EVENT_POINT_LIST(DetectRegion); /* "DetectRegion" */
    uint32_t dwFlagMask;
    char szAddress[260]; /* "Address" */
    uint32_t dwCount;
    int32_t emSex;                                /* "Sex", a text: "Man" 1, "Woman" 2 */
    int32_t nAge;                                 /* "Age", an integer; -1 otherwise */
    int32_t nFeatureNum;                          /* features in use */
    int32_t emFeature[ORRERY_EVENT_FEATURES];     /* "Feature": EVENT_FEATURE_... */
    int32_t nFaceNum;                             /* faces in use */
    EVENT_FACE_INFO stuFaces[ORRERY_EVENT_FACES]; /* "Faces" */
    int32_t emClass;                              /* "Class" */
    int32_t emRace;                               /* "Race" and 1 when it is 0 to 3, else 0 */
    int32_t emEye;                                /* "Eye" and 1 when it is 0 to 2, else 0; the next three too */
    int32_t emMouth;                              /* "Mouth" */
    int32_t emMask;                               /* "Mask" */
    int32_t emBeard;                              /* "Beard" */
    int32_t nAttractive;                          /* "Attractive" when it is 0 to 100, else -1 */
    char szUID[32];                               /* "UID" */
} DEV_EVENT_FACEDETECTION_INFO;

/* ---- Known people ---- */

enum {
    EVENT_PERSON_NORMAL = 1,
    EVENT_PERSON_SUSPICION = 2,
    EVENT_PERSON_THIEF = 3,
    EVENT_PERSON_VIP = 4,
    EVENT_PERSON_FATE_CHECK = 5,
    EVENT_PERSON_STAFF = 6
};
enum { EVENT_CERTIFICATE_UNKNOWN = 0, EVENT_CERTIFICATE_IC = 1, EVENT_CERTIFICATE_PASSPORT = 2 };
enum { EVENT_GLASSES_UNKNOWN = 0, EVENT_GLASSES_SUN_GLASSES = 1, EVENT_GLASSES_GLASSES = 2 };

#define ORRERY_EVENT_PERSON_IMAGES 48
/* Bytes at the pointers of a person. */
#define ORRERY_EVENT_COMMENT 100
#define ORRERY_EVENT_GROUP_ID 64
#define ORRERY_EVENT_GROUP_NAME 128
#define ORRERY_EVENT_FEATURE_VALUE 128

/* "Person". The four texts behind pointers are there, empty at least, unless memory ran out. */
typedef struct EVENT_PERSON_INFO {
    char szCustomType[16];                                   /* "Type" when "IsCustomType" is 1 */
    uint16_t wYear;                                          /* "Birthday", "2026-11-20" */
    uint8_t byMonth;                                         /* of "Birthday" */
    uint8_t byDay;                                           /* of "Birthday" */
    char szID[32];                                           /* "ID" */
    uint8_t byImportant;                                     /* "Important" */
    uint8_t bySex;                                           /* "Sex": "Male" 1, "Female" 2 */
    int32_t nImageNum;                                       /* images in use */
    EVENT_PERSON_IMAGE stuImage[ORRERY_EVENT_PERSON_IMAGES]; /* "Image" */
    uint8_t byType;                                          /* "Type": EVENT_PERSON_... */
    uint8_t byCertificateType;                               /* "CertificateType": "IC" 1, "Passport" 2 */
    uint8_t byGlasses;                                       /* "Glasses" */
    uint8_t byAge;                                           /* "Age" */
    char szProvince[64];                                     /* "Province" */
    char szCity[64];                                         /* "City" */
    char szName[64];                                         /* "Name" */
    char szUID[32];                                          /* "UID" */
    char szCountry[3];                                       /* "Country": two letters */
    uint8_t byIsCustomType;                                  /* "IsCustomType" */
    const char* pszComment;                                  /* "Comment" */
    const char* pszGroupID;                                  /* "GroupID" */
    const char* pszGroupName;                                /* "GroupName" */
    const char* pszFeatureValue;                             /* "FeatureValue" */
    int32_t emEmotion;                                       /* "Emotion": EVENT_FEATURE_... */
} EVENT_PERSON_INFO;

/* The same with more. Members without a word are as in EVENT_PERSON_INFO. */
typedef struct EVENT_PERSON_INFO_EX {
    char szCustomType[16];
    uint16_t wYear;
    uint8_t byMonth;
    uint8_t byDay;
    char szID[32];
    uint8_t byImportant;
    uint8_t bySex;
    int32_t nImageNum;
    EVENT_PERSON_IMAGE stuImage[ORRERY_EVENT_PERSON_IMAGES];
    uint8_t byType;
    uint8_t byCertificateType;
    uint8_t byGlasses;
    uint8_t byAge;
    char szProvince[64];
    char szCity[64];
    char szName[64];
    char szUID[32];
    char szCountry[3];
    uint8_t byIsCustomType;
    const char* pszComment;
    const char* pszGroupID;
    const char* pszGroupName;
    const char* pszFeatureValue;
    int32_t emEmotion;
    char szHomeAddress[64]; /* "HomeAddress" */
    int32_t emGlassesType;  /* "GlassesType": "SunGlasses" 1, "Glasses" 2 */
    int32_t emRace;         /* "Race"; this and what follows as in DEV_EVENT_FACEDETECTION_INFO */
    int32_t emEye;          /* "Eye" */
    int32_t emMouth;        /* "Mouth" */
    int32_t emMask;         /* "Mask" */
    int32_t emBeard;        /* "Beard" */
} EVENT_PERSON_INFO_EX;

/* Someone whom the face may be. */
typedef struct EVENT_CANDIDATE_INFO {
    EVENT_PERSON_INFO stuPerson;    /* "Person" */
    uint8_t bySimilarity;           /* "Similarity": percent */
    uint8_t byRange;                /* "Range": of the database */
    NET_TIME stuTime;               /* "Time": "2026-11-20 09:30:00" */
    char szAddress[260];            /* "Address" */
    uint8_t bIsHit;                 /* "IsHit" */
    EVENT_IMAGE_INFO stuSceneImage; /* "SceneImage" */
    int32_t nChannelID;             /* "Channel" */
} EVENT_CANDIDATE_INFO;

/* The same with more of the person. Members without a word are as in EVENT_CANDIDATE_INFO. */
typedef struct EVENT_CANDIDATE_INFO_EX {
    EVENT_PERSON_INFO_EX stuPerson;
    uint8_t bySimilarity;
    uint8_t byRange;
    NET_TIME stuTime;
    char szAddress[260];
    uint8_t bIsHit;
    EVENT_IMAGE_INFO stuSceneImage;
    int32_t nChannelID;
    char szFilePath[256]; /* "SceneImage"."FilePath" */
} EVENT_CANDIDATE_INFO_EX;

#define ORRERY_EVENT_CANDIDATES 50

/* "FaceRecognition" (279): a face was looked up. */
typedef struct DEV_EVENT_FACERECOGNITION_INFO {
    ORRERY_EVENT_HEAD_A;
    EVENT_OBJECT_INFO stuObject;                                      /* "Object" */
    int32_t nCandidateNum;                                            /* candidates in use, in both lists */
    EVENT_CANDIDATE_INFO stuCandidates[ORRERY_EVENT_CANDIDATES];      /* "Candidates" */
    EVENT_CANDIDATE_INFO_EX stuCandidatesEx[ORRERY_EVENT_CANDIDATES]; /* "Candidates" too, with more */
    ORRERY_EVENT_ACTION_AND_REPEAT;
    uint32_t bIsGlobalScene;          /* "IsGlobalScene" */
    EVENT_PERSON_IMAGE stuSceneImage; /* "SceneImage" */
    char szAddress[260];              /* "Address" */
    uint32_t dwCount;
    int32_t emClass; /* "Class" */
    /* What follows stands inside "Face" and is as in DEV_EVENT_FACEDETECTION_INFO. */
    int32_t emSex; /* "Face"."Sex" */
    int32_t nAge;  /* "Face"."Age" */
    int32_t nFeatureNum;
    int32_t emFeature[ORRERY_EVENT_FEATURES]; /* "Face"."Feature" */
    int32_t emRace;                           /* "Face"."Race" */
    int32_t emEye;                            /* "Face"."Eye" */
    int32_t emMouth;                          /* "Face"."Mouth" */
    int32_t emMask;                           /* "Face"."Mask" */
    int32_t emBeard;                          /* "Face"."Beard" */
    int32_t nAttractive;                      /* "Face"."Attractive" */
    char szUID[32];                           /* "Face"."UID" */
} DEV_EVENT_FACERECOGNITION_INFO;

#ifdef __cplusplus
}
#endif

#endif
