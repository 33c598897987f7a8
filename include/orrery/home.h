/* The home: lights, curtains, fresh air, floor heating, and scenes that set all of them.
 *
 * A table that is an array gives a record an element; a null element leaves its record cleared and is not counted.
 * Anything else, and an empty array, is one record. The length is added to what `returnedLength` holds. A table that
 * is null or absent reads nothing and adds nothing. Written are as many records as fit the size: always as a list, but
 * for one bare record of "SceneMode"; null when none fits. Texts must be shorter than their buffer. Keys that are
 * absent leave 0 unless told otherwise. */
#ifndef ORRERY_HOME_H
#define ORRERY_HOME_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_HOME_ADDRESSES 16
#define ORRERY_SCENE_PROFILES 54

/* Where a device of the home is on its bus. */
typedef struct CFG_COMM_ADDRESS {
    int32_t nCount; /* entries of nAddress in use */
    int32_t
        nAddress[ORRERY_HOME_ADDRESSES]; /* "Address"; not written when there are none, nor is the object around it */
} CFG_COMM_ADDRESS;

/* State of a device ("State"). Other codes are written as an empty text. */
enum {
    CFG_HOME_STATE_CLOSE = 0,  /* "Close" */
    CFG_HOME_STATE_OPEN = 1,   /* "Open" */
    CFG_HOME_STATE_UNKNOWN = 2 /* absent and unknown texts */
};

/* Kind of light ("Type"). Other codes are written as an empty text. */
enum {
    CFG_LIGHT_UNKNOWN = 0, /* absent, empty and unknown texts */
    CFG_LIGHT_COMMON = 1,  /* "CommLight": on or off */
    CFG_LIGHT_LEVEL = 2    /* "LevelLight": can be dimmed */
};

/* "Light". */
typedef struct CFG_LIGHT_INFO {
    char szDeviceId[48];      /* "DeviceID" */
    char szName[64];          /* "Name" */
    char szBrand[64];         /* "Brand" */
    CFG_COMM_ADDRESS stuComm; /* "Comm" */
    int32_t nPosId;           /* "PosID": number of the room */
    CFG_POINT stuPoint;       /* "Point": place on the room's picture */
    int32_t emState;          /* "State": CFG_HOME_STATE_..., 2 absent */
    int32_t nRange;           /* "Range": brightness, 0 to 7 as a rule */
    int32_t emType;           /* "Type": CFG_LIGHT_... */
} CFG_LIGHT_INFO;

/* "Curtain". Each is written with the "Type" "Curtain", which is not read. */
typedef struct CFG_CURTAIN_INFO {
    char szDeviceId[48];      /* "DeviceID" */
    char szName[64];          /* "Name" */
    char szBrand[64];         /* "Brand" */
    CFG_COMM_ADDRESS stuComm; /* "Comm" */
    int32_t nPosId;           /* "PosID": number of the room */
    CFG_POINT stuPoint;       /* "Point": place on the room's picture */
    int32_t emState;          /* "State": CFG_HOME_STATE_..., 2 absent */
} CFG_CURTAIN_INFO;

/* "FreshAir". */
typedef struct CFG_FRESH_AIR_INFO {
    char szDeviceId[48];      /* "DeviceID" */
    char szName[64];          /* "Name" */
    char szBrand[64];         /* "Brand" */
    CFG_COMM_ADDRESS stuComm; /* "Comm" */
} CFG_FRESH_AIR_INFO;

/* "GroundHeat": floor heating. */
typedef struct CFG_GROUND_HEAT_INFO {
    char szDeviceId[48];      /* "DeviceID" */
    char szName[64];          /* "Name" */
    char szBrand[64];         /* "Brand" */
    CFG_COMM_ADDRESS stuComm; /* "Comm" */
    int32_t emState;          /* "State": CFG_HOME_STATE_..., 2 absent */
    int32_t nRange;           /* "Range": temperature to reach, degrees Celsius */
} CFG_GROUND_HEAT_INFO;

/* Scenes ("Name"). Other codes are written as an empty text. */
enum {
    CFG_SCENE_UNKNOWN = 0,    /* absent, empty and unknown texts */
    CFG_SCENE_AT_HOME = 1,    /* "AtHome" */
    CFG_SCENE_LEAVE_HOME = 2, /* "LeaveHome" */
    CFG_SCENE_IN_SLEEPING = 3 /* "InSleeping" */
};

/* What one controller does in a scene. */
typedef struct CFG_SCENE_PROFILE {
    char szBrand[64];         /* "Brand": of the controller */
    int32_t nSceneId;         /* "SceneID": the controller's number of the scene */
    CFG_COMM_ADDRESS stuComm; /* "Comm": of the controller */
    int32_t emName;           /* "Name": CFG_SCENE_... */
} CFG_SCENE_PROFILE;

/* "SceneMode". */
typedef struct CFG_SCENE_MODE_INFO {
    int32_t nCurrentProfileId;                            /* "CurrentProfileID": the scene in force */
    int32_t nProfileCount;                                /* entries of stuProfiles in use */
    CFG_SCENE_PROFILE stuProfiles[ORRERY_SCENE_PROFILES]; /* "Profiles"; not written when there are none */
} CFG_SCENE_MODE_INFO;

#ifdef __cplusplus
}
#endif

#endif
