/* What the camera of an analysis channel looks at: the kind of place, lanes and lights, the camera's geometry, the
 * calibration that turns distances in the picture into real ones. Texts of codes are compared without regard to case;
 * another text reads as 0 unless told otherwise, and a code without a text leaves its key out. Coordinates are those of
 * the device, from 0 to 8191 over the picture. A line or a region has a count and up to 20 corners, as
 * analyse_rules.h tells of ORRERY_RULE_SHAPE. */
#ifndef ORRERY_SCENES_H
#define ORRERY_SCENES_H

#include "orrery/analyse_rules.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_SCENE_TEXT 128      /* a text of a scene, terminator included */
#define ORRERY_SCENE_TYPE_TEXT 16  /* a type of a scene's list */
#define ORRERY_SCENE_TYPES 8       /* types of a scene beside the first */
#define ORRERY_SCENE_LANES 8       /* lanes */
#define ORRERY_SCENE_LIGHTS 8      /* groups of lights, and lights of a group */
#define ORRERY_SCENE_TEXTS 8       /* texts of a list */
#define ORRERY_PARKING_SPACES 6    /* parking spaces that a camera sees */
#define ORRERY_SHIELD_AREAS 16     /* parts of a parking space that are not looked at */
#define ORRERY_SCENE_STAFFS 20     /* measuring rods */
#define ORRERY_CALIBRATE_AREAS 10  /* areas of a calibration */
#define ORRERY_NUMBERED_SCENES 32  /* "Scene1" and so on */
#define ORRERY_NUMBERED_PERIODS 32 /* "TimePeriod1", "CalibrateArea1" and so on */
#define ORRERY_CUSTOM_DATA 1024    /* bytes of a maker's own */

/* Kinds of line at the side of a lane. */
enum {
    CFG_LINE_TYPE_NONE = 0,
    CFG_LINE_TYPE_WHITE_SOLID = 1,  /* "WhiteSolid" */
    CFG_LINE_TYPE_WHITE_DOTTED = 2, /* "WhiteDotted" */
    CFG_LINE_TYPE_YELLOW = 3        /* "Yellow" */
};

/* Which way the cars of a lane drive, as the camera sees it. */
enum {
    CFG_DRIVING_APPROACH = 0, /* "Approach" */
    CFG_DRIVING_LEAVE = 1     /* "Leave" */
};

/* Rank of a road. */
enum {
    CFG_LANE_RANK_NONE = 0,      /* "" */
    CFG_LANE_RANK_RAPID = 1,     /* "Rapid" */
    CFG_LANE_RANK_TRUNK = 2,     /* "Trunk" */
    CFG_LANE_RANK_SUB_TRUNK = 3, /* "SubTrunk" */
    CFG_LANE_RANK_BRANCH = 4     /* "Branch" */
};

/* How the lights of a group stand. */
enum {
    CFG_LIGHT_GROUP_HORIZONTAL = 1, /* "Horizontal" */
    CFG_LIGHT_GROUP_VERTICAL = 2    /* "Vertical" */
};

/* What a plate reader reports. */
enum {
    CFG_REPORT_MODE_ALL = 1,  /* "all" */
    CFG_REPORT_MODE_PLATE = 2 /* "plate": cars with a plate only */
};

/* What a plate reader goes by. */
enum {
    CFG_JUDGMENT_LANE = 1,      /* "Lane" */
    CFG_JUDGMENT_DIRECTION = 2, /* "Direction" */
    CFG_JUDGMENT_BOTH = 3       /* "Both" */
};

/* What a colour of lights is corrected in, and when. */
enum {
    CFG_LIGHT_COLOR_VIDEO = 1,  /* "Video" */
    CFG_LIGHT_COLOR_PICTURE = 2 /* "Picture" */
};
enum {
    CFG_LIGHT_COLOR_DAY = 1,  /* "Day" */
    CFG_LIGHT_COLOR_NIGHT = 2 /* "Night" */
};

/* Sizes of the faces that are looked for. */
enum {
    CFG_FACE_SIZE_SMALL = 1, /* "SmallFace" */
    CFG_FACE_SIZE_LARGE = 2, /* "LargeFace" */
    CFG_FACE_SIZE_BOTH = 3   /* "Both" */
};

/* How far away the place is. */
enum {
    CFG_DEPTH_NONE = 0,   /* "" */
    CFG_DEPTH_NORMAL = 1, /* "Normal" */
    CFG_DEPTH_FAR = 2,    /* "Far" */
    CFG_DEPTH_MIDDLE = 3, /* "Middle" */
    CFG_DEPTH_NEAR = 4    /* "Near" */
};

/* What switches between day and night. */
enum {
    CFG_SCENE_SWITCH_BY_COLOR = 1,      /* "ByColor": the picture's */
    CFG_SCENE_SWITCH_BY_BRIGHTNESS = 2, /* "ByBrightness" */
    CFG_SCENE_SWITCH_BY_POS = 3         /* "ByPos": the sun at the camera's place */
};

/* Generation of the traffic rules that a device keeps to. */
enum {
    CFG_TRAFFIC_RULE_OTHER = -1, /* any other text; not written */
    CFG_TRAFFIC_RULE_OLD = 0,    /* "OldTrafficRule" */
    CFG_TRAFFIC_RULE_NEW = 1     /* "NewTrafficRule" */
};

/* Which way a measuring rod stands. */
enum {
    CFG_STAFF_HORIZONTAL = 1, /* "Horizontal" */
    CFG_STAFF_VERTICAL = 2,   /* "Vertical" */
    CFG_STAFF_ANY = 3,        /* "Any" */
    CFG_STAFF_CROSS = 4       /* "Cross" */
};

/* What an area is calibrated by. */
enum {
    CFG_CALIBRATE_BY_SCENE = 1, /* "Scene" */
    CFG_CALIBRATE_BY_LANE = 2,  /* "Lane" */
    CFG_CALIBRATE_BY_PLATE = 3, /* "Plate" */
    CFG_CALIBRATE_BY_STEREO = 4 /* "Stereo" */
};

/* Kinds of calibrated area. */
enum {
    CFG_CALIBRATE_AREA_NONE = 0,       /* "" */
    CFG_CALIBRATE_AREA_GROUND = 1,     /* "Groud", as devices spell it */
    CFG_CALIBRATE_AREA_HORIZONTAL = 2, /* "Horizontal" */
    CFG_CALIBRATE_AREA_VERTICAL = 3,   /* "Vertical" */
    CFG_CALIBRATE_AREA_ANY = 4         /* "Any" */
};

/* A time of day. Text form: "07:30:00". */
typedef struct CFG_CLOCK_TIME {
    int32_t nHour;   /* 0 to 23 */
    int32_t nMinute; /* 0 to 59 */
    int32_t nSecond; /* 0 to 59 */
} CFG_CLOCK_TIME;

/* A lane. */
typedef struct CFG_LANE_INFO {
    int32_t nNumber;                                  /* "Number" */
    int32_t nDirection;                               /* "Direction": a number; written unless bDirectionList is set */
    ORRERY_RULE_SHAPE(nLeftLinePoint, stuLeftLine);   /* "LeftLine" */
    int32_t nLeftLineType;                            /* "LeftLineType": CFG_LINE_TYPE_... */
    ORRERY_RULE_SHAPE(nRightLinePoint, stuRightLine); /* "RightLine" */
    int32_t nRightLineType;                           /* "RightLineType": CFG_LINE_TYPE_... */
    int32_t bDirectionList;
    int32_t nDirectionNum;                                   /* entries of szDirection in use */
    char szDirection[ORRERY_SCENE_TEXTS][ORRERY_SCENE_TEXT]; /* "Direction": where cars may go, as a list of texts that
                                                               is not empty */
    ORRERY_RULE_SHAPE(nStopLinePoint, stuStopLine);          /* "StopLine" */
    int32_t nTrafficLightNumber;                             /* "TrafficLightNumber": its group of lights */
    uint8_t abDetectLine;                                    /* 1 when "DetectLine" was there */
    ORRERY_RULE_SHAPE(nDetectLinePoint, stuDetectLine);      /* "DetectLine" */
    uint8_t abPreLine;                                       /* 1 when "PreLine" was there */
    ORRERY_RULE_SHAPE(nPreLinePoint, stuPreLine);            /* "PreLine" */
    uint8_t abPostLine;                                      /* 1 when "PostLine" was there */
    ORRERY_RULE_SHAPE(nPostLinePoint, stuPostLine);          /* "PostLine" */
    int32_t nDrivingDirection; /* "DrivingDirection": first of three texts, CFG_DRIVING_...; a null among them, or fewer
                                  than three, ends the reading of the lane, so that nRank stays as it is */
    char szDrivingFrom[16];    /* "DrivingDirection": second text, where the road comes from */
    char szDrivingTo[16];      /* "DrivingDirection": third text, where it leads */
    int32_t nRank;             /* "Rank": CFG_LANE_RANK_... */
} CFG_LANE_INFO;

/* A light of a group. */
typedef struct CFG_LIGHT_ATTRIBUTE {
    int32_t bEnable;                                          /* "Enable" */
    int32_t nYellowTime;                                      /* "YellowTime": seconds */
    int32_t nTypeNum;                                         /* entries of szTypes in use */
    char szTypes[ORRERY_SCENE_TEXTS][ORRERY_SCENE_TEXT];      /* "Types": what it shows */
    int32_t nDirectionNum;                                    /* entries of szDirections in use */
    char szDirections[ORRERY_SCENE_TEXTS][ORRERY_SCENE_TEXT]; /* "Direction": whom it is for */
} CFG_LIGHT_ATTRIBUTE;

/* A group of traffic lights. */
typedef struct CFG_LIGHT_GROUP_INFO {
    int32_t nNumber;                                    /* "Number" */
    CFG_RECT stuArea;                                   /* "Area": at least four numbers, otherwise not read */
    int32_t nDirection;                                 /* "Direction": CFG_LIGHT_GROUP_... */
    int32_t bExternalDetection;                         /* "ExternalDetection": a detector outside tells its state */
    int32_t bSwingDetection;                            /* "SwingDetection": the group may swing in the wind */
    int32_t nLightNum;                                  /* entries of stuLights in use */
    CFG_LIGHT_ATTRIBUTE stuLights[ORRERY_SCENE_LIGHTS]; /* "LightAttribute" */
} CFG_LIGHT_GROUP_INFO;

/* A level of the correction of a light's colour. */
typedef struct CFG_LIGHT_COLOR_LEVEL {
    int32_t nType;  /* "Type": CFG_LIGHT_COLOR_VIDEO or _PICTURE; 0 is not written */
    int32_t nTime;  /* "Time": CFG_LIGHT_COLOR_DAY or _NIGHT; 0 is not written */
    int32_t nLevel; /* "Level" */
} CFG_LIGHT_COLOR_LEVEL;

/* How the colour of traffic lights is corrected. */
typedef struct CFG_ADJUST_LIGHT_COLOR {
    int32_t nMode;                             /* "Mode" */
    int32_t bEnable;                           /* "Enable" */
    int32_t nLevel;                            /* "Level" */
    int32_t bVideoEnable;                      /* "VideoEnable" */
    CFG_LIGHT_COLOR_LEVEL stuLevelSeparate[4]; /* "LevelSeparate": exactly four, otherwise not read */
} CFG_ADJUST_LIGHT_COLOR;

/* A part of a parking space that is not looked at; its corners are the value itself. */
typedef struct CFG_SHIELD_AREA {
    ORRERY_RULE_SHAPE(nPointNum, stuPoints); /* the corners */
} CFG_SHIELD_AREA;

/* A parking space. */
typedef struct CFG_SCENE_PARKING_SPACE {
    int32_t nNumber;                                     /* "Number" */
    ORRERY_RULE_SHAPE(nAreaPoint, stuArea);              /* "Area" */
    int32_t nShieldAreaNum;                              /* entries of stuShieldAreas in use */
    CFG_SHIELD_AREA stuShieldAreas[ORRERY_SHIELD_AREAS]; /* "ShieldArea": a list of regions */
} CFG_SCENE_PARKING_SPACE;

/* Everything that a scene can hold. Which keys of its "Detail" are read and written is settled by the scene's type, in
 * the case shown:
 *
 *     "Traffic", "Highway", "City"          dCameraHeight to stuShieldAreas
 *     "TrafficPatrol"                       szPlateHints alone
 *     "FaceRecognition", "FaceDetection"    bFaceScene to nDetectType
 *     "Normal", "NumberStat"                dCameraHeight, dCameraDistance, dCameraAngle, stuLandline
 *
 * Any other type reads and writes nothing. Of several types all keys are written; of those that have a camera's height
 * and distance the last one's are. */
typedef struct CFG_SCENE_DETAIL_INFO {
    double dCameraHeight;                       /* "CameraHeight": metres; not of faces, which have dFaceCameraHeight */
    double dCameraDistance;                     /* "CameraDistance": metres; not of faces, likewise */
    CFG_POINT stuNearDetectPoint;               /* "NearDetectPoint": at least two numbers, otherwise not read */
    CFG_POINT stuFarDetectPoint;                /* "FarDetectPoint": likewise */
    int32_t nNearDistance;                      /* "NearDistance": of that point; fractions are dropped */
    int32_t nFarDistance;                       /* "FarDistance": likewise */
    char szSubType[ORRERY_SCENE_TEXT];          /* "Type": kind of road */
    int32_t nLaneNum;                           /* entries of stuLanes in use */
    CFG_LANE_INFO stuLanes[ORRERY_SCENE_LANES]; /* "Lanes" */
    int32_t nPlateHintNum;                      /* entries of szPlateHints in use */
    char szPlateHints[ORRERY_SCENE_TEXTS][ORRERY_SCENE_TEXT]; /* "PlateHints": how plates of the region begin */
    int32_t nLightGroupNum;                                   /* entries of stuLightGroups in use */
    CFG_LIGHT_GROUP_INFO stuLightGroups[ORRERY_SCENE_LIGHTS]; /* "LightGroups" */
    uint8_t bHangingWordPlate;                                /* "HangingWordPlate": plates of trailers are read */
    uint8_t bNonStdPolicePlate; /* "NonStdPolicePlate": old plates of the police are read */
    uint8_t bYellowPlateLetter; /* "YellowPlateLetter": the letter of yellow plates is read */
    uint8_t byReportMode;       /* "ReportMode": CFG_REPORT_MODE_... */
    uint8_t byPlateMatch;       /* "PlateMatch": how much of a plate has to match */
    uint8_t byJudgment;         /* "Judgment": CFG_JUDGMENT_... */
    ORRERY_RULE_SHAPE(nLeftDivisionPoint, stuLeftDivisionLine);      /* "LeftDivisionLine" */
    ORRERY_RULE_SHAPE(nRightDivisionPoint, stuRightDivisionLine);    /* "RightDivisionLine" */
    CFG_ADJUST_LIGHT_COLOR stuAdjustLightColor;                      /* "AdjustLightColor" */
    int32_t nParkingSpaceNum;                                        /* entries of stuParkingSpaces in use */
    CFG_SCENE_PARKING_SPACE stuParkingSpaces[ORRERY_PARKING_SPACES]; /* "ParkingSpaces" */
    int32_t bFaceScene;         /* 1 when the keys of faces were looked for; not looked at on writing */
    double dFaceCameraHeight;   /* of a scene with faces, "CameraHeight": metres */
    double dFaceCameraDistance; /* of a scene with faces, "CameraDistance": metres */
    int32_t nMainDirectionNum;  /* entries of stuMainDirection in use */
    CFG_POLYGON stuMainDirection[ORRERY_RULE_POINTS]; /* "MainDirection": as the corners of a line */
    uint8_t byFaceAngleDown;                          /* "FaceAngleDown": degrees */
    uint8_t byFaceAngleUp;                            /* "FaceAngleUp": degrees */
    uint8_t byFaceAngleLeft;                          /* "FaceAngleLeft": degrees */
    uint8_t byFaceAngleRight;                         /* "FaceAngleRight": degrees */
    int32_t nDetectType;                              /* "DetectType": CFG_FACE_SIZE_... */
    double dCameraAngle;                              /* "CameraAngle": degrees */
    CFG_POINT stuLandline[2]; /* "Landline": exactly two points of two numbers, otherwise not read */
} CFG_SCENE_DETAIL_INFO;

/* The lanes of a numbered scene again; read from the scene's "Detail" when its "TypeList" is not empty. */
typedef struct CFG_SCENE_SUBDETAIL_INFO {
    char szType[ORRERY_SCENE_TEXT];                           /* "Type": kind of road */
    int32_t nPlateHintNum;                                    /* entries of szPlateHints in use */
    char szPlateHints[ORRERY_SCENE_TEXTS][ORRERY_SCENE_TEXT]; /* "PlateHints" */
    int32_t nLaneNum;                                         /* entries of stuLanes in use */
    CFG_LANE_INFO stuLanes[ORRERY_SCENE_LANES];               /* "Lanes" */
} CFG_SCENE_SUBDETAIL_INFO;

/* A numbered scene. */
typedef struct CFG_ANALYSE_SCENE_INFO {
    char szType[ORRERY_SCENE_TEXT];  /* "Type": such as "Normal" and "Traffic"; settles what stuDetail holds */
    CFG_SCENE_DETAIL_INFO stuDetail; /* "Detail" */
    int32_t nDepth;                  /* "Depth": CFG_DEPTH_...; 0 also when absent */
    int32_t nPtzPresetId;            /* "PtzPresetId": preset of the camera at which the scene is seen */
    int32_t nTypeListNum;            /* entries of szTypeList in use */
    char szTypeList[ORRERY_SCENE_TYPES]
                   [ORRERY_SCENE_TYPE_TEXT]; /* "TypeList": further types; written also when empty */
    CFG_SCENE_SUBDETAIL_INFO stuSubDetail;   /* "Detail", as its record tells; read only */
} CFG_ANALYSE_SCENE_INFO;

/* Day and night of a numbered period. */
typedef struct CFG_TIME_PERIOD_INFO {
    CFG_CLOCK_TIME stuDay[2];   /* "Day": begin and end */
    CFG_CLOCK_TIME stuNight[2]; /* "Night": begin and end */
    int32_t nSwitchMode;        /* "SwitchMode": CFG_SCENE_SWITCH_...; another text leaves it as it is */
    uint32_t nLongitude;        /* "Longitude": read and written as a signed number */
    uint32_t nLatitude;         /* "Latitude": likewise */
} CFG_TIME_PERIOD_INFO;

/* A measuring rod: a length in the picture that is known. */
typedef struct CFG_STAFF {
    int32_t nStartX; /* "Start", first number; with fewer than two both stay as they are */
    int32_t nStartY; /* "Start", second number */
    int32_t nEndX;   /* "End", first number, likewise */
    int32_t nEndY;   /* "End", second number */
    float fLength;   /* "Length": metres */
    int32_t nType;   /* "Type": CFG_STAFF_... */
} CFG_STAFF;

/* A calibrated area. A corner that has fewer than two numbers is counted all the same, but the next one takes its
 * entry; a null is neither counted nor stored. */
typedef struct CFG_CALIBRATE_AREA {
    ORRERY_RULE_SHAPE(nLinePoint, stuLine);   /* "Line": whose length is known */
    float fLength;                            /* "Length": metres */
    ORRERY_RULE_SHAPE(nAreaPoint, stuArea);   /* "Area" */
    int32_t nStaffNum;                        /* entries of stuStaffs in use; a null keeps its entry, uncounted */
    CFG_STAFF stuStaffs[ORRERY_SCENE_STAFFS]; /* "Staffs" */
    int32_t nMethod;                          /* "Method": CFG_CALIBRATE_BY_... */
    int32_t nType; /* "Type": CFG_CALIBRATE_AREA_... Devices write the areas in the order of these types: a text is
                      known in the first area as "", in the second as "Groud" and so on, and reads as 0 elsewhere */
} CFG_CALIBRATE_AREA;

/* A numbered list of calibrated areas. */
typedef struct CFG_CALIBRATE_AREAS_INFO {
    int32_t nAreaNum;                                    /* entries of stuAreas in use */
    CFG_CALIBRATE_AREA stuAreas[ORRERY_CALIBRATE_AREAS]; /* the value itself; no areas are written as the text "null" */
} CFG_CALIBRATE_AREAS_INFO;

/* "VideoAnalyseGlobal": the scene of an analysis channel. What the reply leaves out keeps the caller's values: clear
 * the record before, but for the pointers and their room. A refused call gives 0; an absent "result" does not refuse,
 * and no "table" succeeds with the record as it was. The text may fill its buffer to the last byte, where the
 * terminator takes the place of its newline. */
typedef struct CFG_ANALYSEGLOBAL_INFO {
    char szSceneType[ORRERY_SCENE_TEXT];      /* "Scene"."Type": settles, with szTypeList, what stuDetail holds */
    CFG_SCENE_DETAIL_INFO stuDetail;          /* "Scene"."Detail" */
    int32_t nStaffNum;                        /* entries of stuStaffs in use; a null keeps its entry, uncounted */
    CFG_STAFF stuStaffs[ORRERY_SCENE_STAFFS]; /* "Scene"."Staffs" */
    int32_t nCalibrateAreaNum;                /* entries of stuCalibrateAreas in use */
    CFG_CALIBRATE_AREA stuCalibrateAreas[ORRERY_CALIBRATE_AREAS]; /* "CalibrateArea" */
    uint8_t abJitter;
    uint8_t abDejitter;
    int32_t nJitter;   /* "Scene"."Jitter": how much the camera shakes */
    int32_t bDejitter; /* "Scene"."Dejitter": whether that is made up for */
    uint8_t abCompatibleMode;
    int32_t nCompatibleMode;                  /* "Scene"."CompatibleModeOfTrafficRule": CFG_TRAFFIC_RULE_... */
    int32_t nCustomDataLen;                   /* bytes of byCustomData in use; none are not written */
    uint8_t byCustomData[ORRERY_CUSTOM_DATA]; /* "Scene"."CustomData": Base64 in the text, cut to the field */
    CFG_CLOCK_TIME stuDayPeriods[2];          /* "TimePeriod"."Day": begin and end */
    CFG_CLOCK_TIME stuNightPeriods[2];        /* "TimePeriod"."Night": begin and end */
    int32_t nTimePeriodMax;                   /* room at pTimePeriods, set before reading, and before writing too */
    int32_t nTimePeriodNum;                   /* entries in use: those in front of the first number that is missing */
    CFG_TIME_PERIOD_INFO* pTimePeriods;       /* "TimePeriod1", "TimePeriod2" and so on, an entry a number: the caller's
                                                 array, of which up to 32 are used; null has room for nothing. Written
                                                 when nTimePeriodNum is not above its room */
    int32_t nCalibrateMax;                    /* room at pCalibrates, likewise */
    int32_t nCalibrateNum;                    /* entries in use, likewise */
    CFG_CALIBRATE_AREAS_INFO* pCalibrates;    /* "CalibrateArea1", "CalibrateArea2" and so on, likewise */
    int32_t nSwitchMode; /* "TimePeriod"."SwitchMode": CFG_SCENE_SWITCH_...; another text leaves it as it is */
    int32_t nSceneNum;   /* scenes read; those to be written */
    CFG_ANALYSE_SCENE_INFO stuScenes[ORRERY_NUMBERED_SCENES]; /* "Scene1", "Scene2" and so on, an entry a number up to
                                                                 the first that is missing; "Scene32" is written only.
                                                                 What is no object keeps its entry, uncounted */
    int32_t nTypeListNum;                                     /* entries of szTypeList in use */
    char szTypeList[ORRERY_SCENE_TYPES][ORRERY_SCENE_TYPE_TEXT]; /* "Scene"."TypeList": further types; written also when
                                                                    empty */
    int32_t nDepth;                                              /* "Scene"."Depth": CFG_DEPTH_... */
    int32_t nPtzPresetId; /* "Scene"."PtzPresetId": preset of the camera at which the scene is seen */
    uint32_t nLongitude;  /* "TimePeriod"."Longitude": read and written as a signed number */
    uint32_t nLatitude;   /* "TimePeriod"."Latitude": likewise */
} CFG_ANALYSEGLOBAL_INFO;

/* Calibration at one position of a camera that moves. */
typedef struct CFG_CALIBRATE_SCENE_INFO {
    int32_t nSceneId;       /* "SceneID" */
    int32_t nPtzPresetId;   /* "PtzPresetID"; 0 when "CalibrateArea" is no list */
    int32_t bCalibrateArea; /* 1 when "CalibrateArea" was there; not looked at on writing */
    int32_t nAreaNum;       /* entries of stuAreas in use */
    CFG_CALIBRATE_AREA stuAreas[ORRERY_CALIBRATE_AREAS]; /* "CalibrateArea"; an empty list leaves it as it is */
    int32_t nPositionPan;  /* "Position", first of exactly three numbers, otherwise none is read: tenths of a degree, 0
                              to  3600; in the text 0 to 1 for the first half turn and -1 to 0 for the second */
    int32_t nPositionTilt; /* "Position", second number: tenths of a degree, -1800 to 1800; 1 to -1 in the text. Out of
                              that it stays as it is, and nPositionPan becomes 0 */
    int32_t nPositionZoom; /* "Position", third number: 1 to 128; 1/128 to 1 in the text. A number out of range, also of
                              nPositionPan, reads as 0, and each of the three is written as 0 out of its range */
} CFG_CALIBRATE_SCENE_INFO;

/* "VideoAnalyseCalibrate": calibration at each position of a camera that moves. Entries are read in place: what the
 * text does not tell keeps the caller's value. Null pScenes gives 0, and so does a table that is no list. An element
 * that is no object ends the call with 0 where there is room for it, and those in front of it have been read; a null
 * element is one without keys. "result" is not looked at. Written is always a list; null pScenes gives 0 when nRet is
 * above 0. */
typedef struct CFG_VIDEOANALYSE_CALIBRATE_INFO {
    int32_t nMax;                      /* room at pScenes, set before reading, and before writing too */
    int32_t nRet;                      /* entries in use: those of the list, at most nMax */
    CFG_CALIBRATE_SCENE_INFO* pScenes; /* the list's elements: the caller's array */
} CFG_VIDEOANALYSE_CALIBRATE_INFO;

#ifdef __cplusplus
}
#endif

#endif
