/* Alarms of vehicles and of counters: speed, load, announcements, mobile data, calls for help, dwelling at a cash
 * machine.
 *
 * All but "CQDTSet", "TimeSpeedLimit" and "VoiceAlert" are read from the reply of a refused call too, and their text is
 * taken when it is exactly as long as the capacity, and then loses its newline. Keys that are absent leave 0. */
#ifndef ORRERY_ALARM_DEVICE_VEHICLE_H
#define ORRERY_ALARM_DEVICE_VEHICLE_H

#include "orrery/linkage.h"
#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "HighSpeed": a vehicle goes too fast. The linkage is read in every case. */
typedef struct CFG_HIGH_SPEED_INFO {
    int32_t bEnable;                        /* "Enable" */
    int32_t nSpeedHighLine;                 /* "SpeedHighLine": the limit, kilometres an hour */
    int32_t nTime;                          /* "Time": seconds above the limit before the alarm */
    int32_t nAlertSpeed;                    /* "AlertSpeed": from here on the driver is warned, kilometres an hour */
    int32_t nInstantSpeed;                  /* "InstantSpeed": from here on the alarm is at once, kilometres an hour */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler" */
} CFG_HIGH_SPEED_INFO;

/* "LowSpeed": a vehicle goes too slowly. The linkage is read in every case. */
typedef struct CFG_LOW_SPEED_INFO {
    int32_t bEnable;                        /* "Enable" */
    int32_t nSpeedLowLine;                  /* "SpeedLowLine": the limit, kilometres an hour */
    int32_t nTime;                          /* "Time": seconds below the limit before the alarm */
    int32_t nSpeedMotion;                   /* "SpeedMotion": from here on a vehicle counts as moving */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler" */
} CFG_LOW_SPEED_INFO;

/* A day of any year. */
typedef struct CFG_YEAR_DAY {
    int32_t nMonth; /* "Month": 1 to 12 */
    int32_t nDay;   /* "Day": 1 to 31 */
} CFG_YEAR_DAY;

#define ORRERY_SPEED_LIMITS 16

/* The limits of a part of the year. */
typedef struct CFG_TIME_SPEED_LIMIT {
    int32_t bEnable;             /* "Enable" */
    int32_t nDaySpeedLimit;      /* "DaySpeedLimit": kilometres an hour */
    int32_t nNightSpeedLimit;    /* "NightSpeedLimit": kilometres an hour */
    CFG_YEAR_DAY stuBeginDay;    /* "BeginDay" */
    CFG_YEAR_DAY stuEndDay;      /* "EndDay" */
    CFG_TIME_SECTION stuDayTime; /* "DayTime": when it is day */
} CFG_TIME_SPEED_LIMIT;

/* "TimeSpeedLimit": a list, in one record. Other types than a list are refused. An empty list is written as null. */
typedef struct CFG_TIME_SPEED_LIMIT_INFO {
    int32_t nCount;                                      /* entries of stuLimits in use */
    CFG_TIME_SPEED_LIMIT stuLimits[ORRERY_SPEED_LIMITS]; /* the elements of the list, at most 16 */
} CFG_TIME_SPEED_LIMIT_INFO;

#define ORRERY_VOICE_ALERTS 64

/* One announcement. */
typedef struct CFG_VOICE_ALERT {
    int32_t nInterval; /* "Interval": minutes from one time to the next */
    char szText[256];  /* "Text": what is spoken */
    int32_t nHour;     /* "Time": the hour of "09:30"; a text is read as far as it is a time */
    int32_t nMinute;   /* the minute of it */
} CFG_VOICE_ALERT;

/* "VoiceAlert": a list, in one record. Other types than a list are refused. An empty list is written as null. */
typedef struct CFG_VOICE_ALERT_INFO {
    int32_t nCount;                                 /* entries of stuAlerts in use */
    CFG_VOICE_ALERT stuAlerts[ORRERY_VOICE_ALERTS]; /* the elements of the list, at most 64 */
} CFG_VOICE_ALERT_INFO;

/* "CQDTSet": the load of a vehicle, kilograms. */
typedef struct CFG_CQDT_SET_INFO {
    int32_t nMaxGoodsWeight; /* "MaxGoodsWeight": most that may be loaded */
    int32_t nMinGoodsWeight; /* "MinGoodsWeight": least that counts as loaded */
    int32_t nSelfWeight;     /* "SelfWeight": of the empty vehicle */
    int32_t nStandardWeight; /* "StandardWeight": of the weight that calibrates */
    int32_t nAlarmWeight;    /* "AlarmWeight": from here on it is too much */
    int32_t nCheckTime;      /* "CheckTime": seconds between two measurements */
} CFG_CQDT_SET_INFO;

/* "Oil4GFlow": fuel and mobile data of a vehicle. */
typedef struct CFG_OIL_4G_FLOW_INFO {
    int32_t nFlowRateMode; /* "FlowRateMode": how the data are counted */
    int32_t nFlowRateMax;  /* "FlowRateMax": most of them, megabytes */
} CFG_OIL_4G_FLOW_INFO;

/* "VideoWidget4GFlow": the mobile data used, shown in the picture. */
typedef struct CFG_VIDEO_WIDGET_4G_FLOW_INFO {
    int32_t bEncodeBlend; /* "EncodeBlend": shown in the picture that is encoded */
    CFG_RECT stuRect;     /* "Rect": where; 0 to 8191 each way */
} CFG_VIDEO_WIDGET_4G_FLOW_INFO;

/* "RCEmergencyCall": the call button of a remote point. The linkage is read in every case. */
typedef struct CFG_RC_EMERGENCY_CALL_INFO {
    int32_t bEnable;                        /* "Enable" */
    char szMode[64];                        /* "Mode": how the call is raised */
    char szAlarmType[64];                   /* "AlarmType": what it is raised as */
    CFG_EVENT_HANDLER_INFO stuEventHandler; /* "EventHandler" */
} CFG_RC_EMERGENCY_CALL_INFO;

/* "FetchMoneyOverTime": somebody stays too long at a cash machine. */
typedef struct CFG_FETCH_MONEY_OVER_TIME_INFO {
    int32_t nTimeLimit; /* "FetchMoneyOverTime"."TimeLimit", a member of the table itself: seconds */
} CFG_FETCH_MONEY_OVER_TIME_INFO;

#ifdef __cplusplus
}
#endif

#endif
