/* Small records that many configurations share. All are plain fixed-layout C structures. */
#ifndef ORRERY_TYPES_H
#define ORRERY_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* A period of a day. Text form: "1 08:00:00-17:30:00". */
typedef struct CFG_TIME_SECTION {
    int32_t dwMask;     /* leading number: a flag or mask word, 0 (off) or 1 (on) for most users */
    int32_t nBeginHour; /* 0 to 24 */
    int32_t nBeginMin;  /* 0 to 59 */
    int32_t nBeginSec;  /* 0 to 59 */
    int32_t nEndHour;   /* 0 to 24 */
    int32_t nEndMin;    /* 0 to 59 */
    int32_t nEndSec;    /* 0 to 59 */
} CFG_TIME_SECTION;

#define ORRERY_WEEK_DAYS 7          /* rows of a week, Sunday first */
#define ORRERY_DAY_SECTIONS 6       /* sections a day */
#define ORRERY_SCHEDULE_DAYS 8      /* a week and a holiday row */
#define ORRERY_RULE_DAY_SECTIONS 10 /* sections a day of an analysis rule's own week */

/* A week of sections and a holiday row. Text form: an array of 7 or 8 arrays of sections. */
typedef struct CFG_TIME_SCHEDULE {
    int32_t bEnableHoliday; /* non-zero when the eighth row is in use */
    CFG_TIME_SECTION stuTimeSection[ORRERY_SCHEDULE_DAYS][ORRERY_DAY_SECTIONS]; /* Sunday to Saturday, holidays */
} CFG_TIME_SCHEDULE;

/* A rectangle. Text form: [ left, top, right, bottom ], exactly four numbers. */
typedef struct CFG_RECT {
    int32_t nLeft;
    int32_t nTop;
    int32_t nRight;
    int32_t nBottom;
} CFG_RECT;

/* A point. Text form: [ x, y ], exactly two numbers. */
typedef struct CFG_POINT {
    int32_t nX; /* from the left */
    int32_t nY; /* from the top */
} CFG_POINT;

/* A size. Text form: [ width, height ], exactly two numbers; fractions of the text are dropped on reading. */
typedef struct CFG_SIZE {
    float fWidth;
    float fHeight;
} CFG_SIZE;

/* A colour. Text form: [ red, green, blue, alpha ], exactly four numbers from 0 to 255. */
typedef struct CFG_COLOR {
    int32_t nRed;   /* 0 to 255 */
    int32_t nGreen; /* 0 to 255 */
    int32_t nBlue;  /* 0 to 255 */
    int32_t nAlpha; /* 0 to 255 */
} CFG_COLOR;

/* A corner of a polygon. Text form of a polygon: an array of [ x, y ]. */
typedef struct CFG_POLYGON {
    int32_t nX;
    int32_t nY;
} CFG_POLYGON;

/* A moment in calendar fields. Text form: "2026-11-20 09:30:00". */
typedef struct NET_TIME {
    int32_t dwYear;   /* such as 2026 */
    int32_t dwMonth;  /* 1 to 12 */
    int32_t dwDay;    /* 1 to 31 */
    int32_t dwHour;   /* 0 to 23 */
    int32_t dwMinute; /* 0 to 59 */
    int32_t dwSecond; /* 0 to 59 */
} NET_TIME;

/* A moment with milliseconds, otherwise as in NET_TIME. Text form: "2026-11-20 09:30:00.250". */
typedef struct NET_TIME_EX {
    int32_t dwYear;
    int32_t dwMonth;
    int32_t dwDay;
    int32_t dwHour;
    int32_t dwMinute;
    int32_t dwSecond;
    int32_t dwMillisecond; /* 0 to 999 */
} NET_TIME_EX;

/* A moment that begins with its size. With another size word it is neither read nor written: null stands in its place.
 */
typedef struct NET_TIME_V2 {
    uint32_t dwSize;  /* 28 */
    NET_TIME stuTime; /* as a text of its own: "2026-11-20 09:30:00" */
} NET_TIME_V2;

/* Kinds of sensor behind an alarm input ("SenseMethod"). */
typedef enum EM_SENSE_METHOD {
    EM_SENSE_UNKNOWN = -1,
    EM_SENSE_DOOR_MAGNETISM = 0, /* "DoorMagnetism" */
    EM_SENSE_PASSIVE_INFRARED,   /* "PassiveInfrared" */
    EM_SENSE_GAS_SENSOR,         /* "GasSensor" */
    EM_SENSE_SMOKING_SENSOR,     /* "SmokingSensor" */
    EM_SENSE_WATER_SENSOR,       /* "WaterSensor" */
    EM_SENSE_ACTIVE_INFRARED,    /* "ActiveInfrared" */
    EM_SENSE_GLASS_SENSOR,       /* "GlassSensor" */
    EM_SENSE_EMERGENCY_SWITCH,   /* "EmergencySwitch" */
    EM_SENSE_SHOCK_SENSOR,       /* "ShockSensor" */
    EM_SENSE_DOUBLE_METHOD,      /* "DoubleMethod": infrared and microwave */
    EM_SENSE_THREE_METHOD,       /* "ThreeMethod" */
    EM_SENSE_TEMP_SENSOR,        /* "TempSensor" */
    EM_SENSE_HUMIDITY_SENSOR,    /* "HumiditySensor" */
    EM_SENSE_WIND_SENSOR,        /* "WindSensor" */
    EM_SENSE_CALL_BUTTON,        /* "CallButton" */
    EM_SENSE_GAS_PRESSURE,       /* "GasPressure" */
    EM_SENSE_GAS_CONCENTRATION,  /* "GasConcentration" */
    EM_SENSE_GAS_FLOW,           /* "GasFlow" */
    EM_SENSE_OIL,                /* "Oil": oil level */
    EM_SENSE_MILEAGE_SENSOR,     /* "MileageSensor" */
    EM_SENSE_OTHER_SENSOR,       /* "OtherSensor" */
    EM_SENSE_CO2,                /* "CO2" */
    EM_SENSE_SOUND,              /* "Sound" */
    EM_SENSE_PM25,               /* "PM25" */
    EM_SENSE_SF6,                /* "SF6" */
    EM_SENSE_O3,                 /* "O3" */
    EM_SENSE_AMBIENT_LIGHT,      /* "AmbientLight" */
    EM_SENSE_INFRARED,           /* "Infrared" */
    EM_SENSE_TEMP1500,           /* "Temp1500" */
    EM_SENSE_TEMPDS18B20,        /* "TempDS18B20" */
    EM_SENSE_HUMIDITY1500,       /* "Humidity1500" */
    EM_SENSE_URGENCY_BUTTON,     /* "UrgencyButton" */
    EM_SENSE_STEAL,              /* "Steal" */
    EM_SENSE_PERIMETER,          /* "Perimeter" */
    EM_SENSE_PREVENT_REMOVE,     /* "PreventRemove": tamper contact */
    EM_SENSE_DOOR_BELL,          /* "DoorBell" */
    EM_SENSE_ALTER_VOLT,         /* "AlterVolt": alternating voltage */
    EM_SENSE_DIRECT_VOLT,        /* "DirectVolt": direct voltage */
    EM_SENSE_ALTER_CUR,          /* "AlterCur": alternating current */
    EM_SENSE_DIRECT_CUR,         /* "DirectCur": direct current */
    EM_SENSE_RSU_GENERAL,        /* "RSUGeneral": remote signal unit, analog or 4 to 20 mA */
    EM_SENSE_RSU_DOOR,           /* "RSUDoor" */
    EM_SENSE_RSU_POWER_OFF,      /* "RSUPowerOff" */
    EM_SENSE_CURTAIN_SENSOR,     /* "CurtainSensor" */
    EM_SENSE_MOBILE_SENSOR,      /* "MobileSensor" */
    EM_SENSE_FIRE_ALARM,         /* "FireAlarm" */
    EM_SENSE_COUNT
} EM_SENSE_METHOD;

/* What a defence area does once its sensor trips ("DefenceAreaType"). */
typedef enum EM_DEFENCE_AREA_TYPE {
    EM_DEFENCE_AREA_UNKNOWN = 0,
    EM_DEFENCE_AREA_INTIME,         /* "Intime": at once while armed */
    EM_DEFENCE_AREA_DELAY,          /* "Delay": after the entry or exit delay */
    EM_DEFENCE_AREA_FULLDAY,        /* "Fullday": armed at all times */
    EM_DEFENCE_AREA_FOLLOW,         /* "Follow": follows a delayed area */
    EM_DEFENCE_AREA_MEDICAL,        /* "Medical" */
    EM_DEFENCE_AREA_PANIC,          /* "Panic" */
    EM_DEFENCE_AREA_FIRE,           /* "Fire" */
    EM_DEFENCE_AREA_FULLDAY_SOUND,  /* "FulldaySound" */
    EM_DEFENCE_AREA_FULLDAY_SLIENT, /* "FulldaySlient" (the devices' spelling) */
    EM_DEFENCE_AREA_ENTRANCE1,      /* "Entrance1" */
    EM_DEFENCE_AREA_ENTRANCE2,      /* "Entrance2" */
    EM_DEFENCE_AREA_INSIDE,         /* "Inside" */
    EM_DEFENCE_AREA_OUTSIDE,        /* "Outside" */
    EM_DEFENCE_AREA_PEOPLE_DETECT,  /* "PeopleDetect" */
    EM_DEFENCE_AREA_COUNT
} EM_DEFENCE_AREA_TYPE;

#ifdef __cplusplus
}
#endif

#endif
