/* Parking systems and lanes: screens, barriers, lights, and what stands at a lane's side. */
#ifndef ORRERY_PARKING_H
#define ORRERY_PARKING_H

#include "orrery/linkage.h"
#include "orrery/types.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_STROBE_CONTROLS 16
#define ORRERY_VOICE_CONTENTS 8
#define ORRERY_GUIDE_ARROWS 16
#define ORRERY_PARKING_TRUST_LIST 1024

/* What opens a barrier ("ControlType"); unknown texts read as 0, codes without a text are written as null in their
 * place. */
enum {
    CFG_STROBE_UNKNOWN = 0,
    CFG_STROBE_TRUST_LIST = 1,   /* "TrafficTrustList": a car on the list */
    CFG_STROBE_ALL_SNAP_CAR = 2, /* "AllSnapCar": every car that is captured */
    CFG_STROBE_ORDER = 3         /* "Order": a client's order */
};

/* What is said when a car comes ("Enable"); as the codes above. */
enum {
    CFG_VOICE_UNKNOWN = 0,
    CFG_VOICE_TIPS = 1, /* "Tips" */
    CFG_VOICE_PLATE = 2 /* "Plate": its number */
};

/* When a wiper runs ("Mode"). */
enum {
    CFG_RAIN_BRUSH_UNKNOWN = 0, /* other texts; it and all other codes are written as "Unknown" */
    CFG_RAIN_BRUSH_MANUAL = 1,  /* "Manual" */
    CFG_RAIN_BRUSH_TIMING = 2,  /* "Timing" */
    CFG_RAIN_BRUSH_AUTO = 3     /* "Auto" */
};

/* Level of the contact that starts a wiper ("EnableMode", a number in the text). */
enum {
    CFG_RAIN_BRUSH_LEVEL_UNKNOWN = 0, /* other numbers; it and all other codes are not written */
    CFG_RAIN_BRUSH_LEVEL_0 = 1,       /* 0 */
    CFG_RAIN_BRUSH_LEVEL_1 = 2        /* 1 */
};

/* Where an arrow points to ("Direction"); unknown texts read as the first, other codes are not written. */
enum {
    CFG_ARROW_LEFT = 0, /* "Left" */
    CFG_ARROW_RIGHT = 1 /* "Right" */
};

/* Whether a text runs over the screen ("Roll"); as the codes above. */
enum {
    CFG_ROLL_DISABLE = 0, /* "Disable" */
    CFG_ROLL_ENABLE = 1   /* "Enable" */
};

/* "WorkState": what a parking device does. An object is one record, an array has one an element; one record is written
 * bare, several as an array. A null element leaves its record cleared and is not in the reply length, which is 0 also
 * when the call fails: for an empty array and other types too. */
typedef struct CFG_WORK_STATE_INFO {
    int32_t dwReserved;
    int32_t nState;     /* "State": as the device numbers its states */
    int32_t nMatchMode; /* "MatchMode": as the device numbers the ways that plates are compared */
} CFG_WORK_STATE_INFO;

/* "ParkingSpaceScreen": a screen that shows free spaces. An object is one record, an array has one an element, an empty
 * one none; one record is written bare, several as an array. A null element leaves its record cleared and is in the
 * reply length. A table of another type is one cleared record. */
typedef struct CFG_PARKING_SCREEN_INFO {
    char szIpAddr[260];        /* "ipAddr": read from texts only */
    int32_t nPort;             /* "port" */
    char szAuthorization[260]; /* "authorization": devices send the key in both spellings; when it is there, the value
                                  of "Authorization" is read. Written in small letters alone */
    char szDeviceNo[260];      /* "deviceNo": read from texts only */
    int32_t bEnable;           /* "enable": read from true and false only */
} CFG_PARKING_SCREEN_INFO;

/* "ParkingSpaceCellStatus": a cell of such a screen. Shapes as of "ParkingSpaceScreen". */
typedef struct CFG_PARKING_CELL_STATUS {
    int32_t nCellNumber; /* "cellNumber" */
    int32_t nCellType;   /* "cellType": as the device numbers its kinds of cells */
} CFG_PARKING_CELL_STATUS;

/* "LanesStateReport": how often the state of lanes is reported. A table of another type leaves the record cleared. */
typedef struct CFG_LANES_STATE_REPORT_INFO {
    int32_t bEnable; /* "Enable" */
    int32_t nPeriod; /* "Period": seconds */
} CFG_LANES_STATE_REPORT_INFO;

/* "RainBrushMode": a wiper. A table of another type leaves the record as an empty object does. */
typedef struct CFG_RAIN_BRUSH_MODE_INFO {
    int32_t emMode;       /* "Mode": CFG_RAIN_BRUSH_...; read from texts only */
    int32_t emEnableMode; /* "EnableMode": CFG_RAIN_BRUSH_LEVEL_...; read from whole numbers only */
    int32_t nPort;        /* "Port": input of the rain sensor, -2 when absent or no whole number; -2 is not written */
    int32_t nSensitivity; /* "Sensitivity": 0 to 10; 0 is not written */
} CFG_RAIN_BRUSH_MODE_INFO;

/* "TrafficStrobe": a barrier. A table of another type leaves the record as an empty object does. */
typedef struct CFG_TRAFFIC_STROBE_INFO {
    int32_t bEnable;                               /* "Enable" */
    int32_t nControlTypeCount;                     /* entries of emControlType in use */
    int32_t emControlType[ORRERY_STROBE_CONTROLS]; /* "ControlType": CFG_STROBE_...; no key when there are none */
    CFG_EVENT_HANDLER_INFO stuEventHandler;        /* "EventHandler": when it opens */
    CFG_EVENT_HANDLER_INFO stuEventHandlerClose;   /* "EventHandlerClose": when it closes */
    int32_t bAllSnapCar;                           /* "AllSnapCar": it opens for every car that is captured */
} CFG_TRAFFIC_STROBE_INFO;

/* "TrafficVoiceBroadcast": what is said when a car comes. A table of another type leaves the record cleared. */
typedef struct CFG_TRAFFIC_VOICE_INFO {
    int32_t nEnableCount;                    /* entries of emEnable in use */
    int32_t emEnable[ORRERY_VOICE_CONTENTS]; /* "Enable": CFG_VOICE_...; no key when there are none */
    char szNormalCar[260];                   /* "NormalCar": to cars on no list */
    char szTrustCar[260];                    /* "TrustCar": to cars that may pass */
    char szSuspiciousCar[260];               /* "SuspiciousCar": to cars that are looked for */
} CFG_TRAFFIC_VOICE_INFO;

/* "AutoStartupDelay": a car's device goes on for a while when the engine stops. A table of another type leaves the
 * record cleared. The text may fill its buffer to the last byte, without a terminator then. */
typedef struct CFG_AUTO_STARTUP_DELAY_INFO {
    int32_t bEnable; /* "Enable": read from true and false only */
    int32_t nDelay;  /* "Delay": hours; read from whole numbers only */
} CFG_AUTO_STARTUP_DELAY_INFO;

/* Screen of lights at a gate. */
typedef struct CFG_ECK_LED {
    char szSpeed[32];       /* "Speed": how fast the text runs */
    char szCustomData[512]; /* "CustomData": the text */
} CFG_ECK_LED;

/* "ECKConfig": a gate's controller. A table of another type leaves the record cleared. The text may fill its buffer; at
 * exactly its size the last character gives way to the terminator. */
typedef struct CFG_ECK_INFO {
    char szWorkMode[32];   /* "WorkMode" */
    char szStrobeMode[32]; /* "StrobeMode" */
    int32_t bForceOffline; /* "ForceOffline": it works without the centre; read from true and false only */
    int32_t bLoopSense;    /* "LoopSense": the loop in the road tells of cars; read from true and false only */
    CFG_ECK_LED stuLed;    /* "LED" */
} CFG_ECK_INFO;

/* A line of a guide screen. */
typedef struct CFG_GUIDE_ARROW {
    char szText[128];    /* "Text" */
    int32_t emDirection; /* "Direction": CFG_ARROW_... */
    char szPosition[32]; /* "Position": where the arrow stands, in the device's words */
    int32_t emRoll;      /* "Roll": CFG_ROLL_... */
} CFG_GUIDE_ARROW;

/* "GuideScreen": a screen that shows the way. A table of another type leaves the record cleared. Capacity as of
 * "ECKConfig". */
typedef struct CFG_GUIDE_SCREEN_INFO {
    int32_t nArrowCount;                            /* elements of stuArrows in use */
    CFG_GUIDE_ARROW stuArrows[ORRERY_GUIDE_ARROWS]; /* "Arrow"; no key when there are none */
} CFG_GUIDE_SCREEN_INFO;

/* "ParkingSpaceAccessFilter": who may use a space. Adds to the reply length, and takes a missing table as nothing to
 * read. */
typedef struct CFG_PARKING_FILTER_INFO {
    int32_t bEnable;                                 /* "Enable" */
    int32_t nTrustListCount;                         /* entries of szTrustList in use */
    char szTrustList[ORRERY_PARKING_TRUST_LIST][96]; /* "TrustList": plates; no key when there are none */
    int32_t nType; /* "Type": kind of the list as the device numbers it; written, and not read */
} CFG_PARKING_FILTER_INFO;

/* "ParkingSpaceLightGroup": lights of a group of spaces; an object, or the first element of an array. Adds to the reply
 * length, and takes a missing table as nothing to read. */
typedef struct CFG_PARKING_LIGHT_GROUP_INFO {
    int32_t bEnable;        /* "Enable" */
    int32_t bAcceptNetCtrl; /* "AcceptNetCtrl": the lights may be set from afar */
    int32_t nLanes;         /* "Lanes": spaces of the group */
} CFG_PARKING_LIGHT_GROUP_INFO;

/* A mixed colour of a light. */
typedef struct CFG_PARKING_LIGHT_COLOR {
    int32_t nRed;   /* "Red": 0 off, 1 on, 2 blinking */
    int32_t nBlue;  /* "Bule", in the devices' spelling; as nRed */
    int32_t nGreen; /* "Green": as nRed */
} CFG_PARKING_LIGHT_COLOR;

/* Colours of one kind of space. */
typedef struct CFG_PARKING_SPACE_LIGHTS {
    CFG_PARKING_LIGHT_COLOR stuSpaceFree;  /* "SpaceFree" */
    CFG_PARKING_LIGHT_COLOR stuSpaceFull;  /* "SpaceFull" */
    CFG_PARKING_LIGHT_COLOR stuSpaceOrder; /* "SpaceOrder": booked */
} CFG_PARKING_SPACE_LIGHTS;

/* "ParkSpaceOutLight": lights outside a parking place. Adds to the reply length, and takes a missing table as nothing
 * to read. */
typedef struct CFG_PARK_OUT_LIGHT_INFO {
    CFG_PARKING_SPACE_LIGHTS stuNormalSpace;  /* "NormalSpace": spaces for everyone */
    CFG_PARKING_SPACE_LIGHTS stuSpecialSpace; /* "SpecialSpace": spaces kept for some */
} CFG_PARK_OUT_LIGHT_INFO;

#ifdef __cplusplus
}
#endif

#endif
