/* How a device meets others on its network: who may reach it, what it sends where, platforms that it registers with. */
#ifndef ORRERY_DEVICE_NETWORK_H
#define ORRERY_DEVICE_NETWORK_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_FILTER_ADDRESSES 256

/* "AccessFilter": which addresses may reach a device. Lists of more than 256 entries are cut; those without an entry
 * are not written. */
typedef struct CFG_ACCESS_FILTER_INFO {
    int32_t bEnable;                                /* "Enable" */
    char szType[32];                                /* "Type": which list counts, "TrustList" or "BannedList" */
    int32_t nTrustNum;                              /* entries of szTrustList in use */
    char szTrustList[ORRERY_FILTER_ADDRESSES][96];  /* "TrustList": who may, an IP address, a range or a MAC */
    int32_t nBannedNum;                             /* entries of szBannedList in use */
    char szBannedList[ORRERY_FILTER_ADDRESSES][96]; /* "BannedList": who may not */
    int32_t nTrustEnableNum;                        /* entries of bTrustEnable in use */
    int32_t bTrustEnable[ORRERY_FILTER_ADDRESSES];  /* "TrustEnable": which entries of szTrustList count */
    int32_t nBannedEnableNum;                       /* entries of bBannedEnable in use */
    int32_t bBannedEnable[ORRERY_FILTER_ADDRESSES]; /* "BannedEnable": which entries of szBannedList count */
} CFG_ACCESS_FILTER_INFO;

/* "NetCollection": a server that collects what devices report. A text of exactly the text buffer's size is taken and
 * loses its newline. */
typedef struct CFG_NET_COLLECTION_INFO {
    char szIP[256]; /* "IP": IP address or host name */
    int32_t nPort;  /* "Port" */
} CFG_NET_COLLECTION_INFO;

#define ORRERY_RTMP_CHANNELS 64

/* "RTMP": a server that streams are pushed to, one record or a list: a record an element, or one from an object; other
 * types and an empty list are refused. One whole record is written bare, several as a list. */
typedef struct CFG_RTMP_INFO {
    int32_t bEnable;                              /* "Enable" */
    char szAddress[256];                          /* "Address": IP address or host name */
    int32_t nPort;                                /* "Port": 1935 as a rule */
    char szCustomPath[256];                       /* "CustomPath": where streams stand on the server, as set by hand */
    char szStreamPath[256];                       /* "StreamPath": where streams stand on the server */
    int32_t nMainChannelNum;                      /* entries of nMainChannels in use */
    int32_t nMainChannels[ORRERY_RTMP_CHANNELS];  /* "MainChannels": whose main stream is pushed; not written when
                                                     there are none */
    int32_t nExtraChannelNum;                     /* entries of nExtraChannels in use */
    int32_t nExtraChannels[ORRERY_RTMP_CHANNELS]; /* "ExtraChannels": whose sub stream is pushed; not written when
                                                     there are none */
} CFG_RTMP_INFO;

/* An identifier with the level of its alarms. */
typedef struct CFG_ALARM_LEVEL_ITEM {
    char szID[64];       /* "id" */
    int32_t nAlarmLevel; /* "alarmLevel" */
} CFG_ALARM_LEVEL_ITEM;

#define ORRERY_PHONE_CONTACTS 100

/* "PhoneEventNotify": whom a device calls when an event fires. */
typedef struct CFG_PHONE_EVENT_NOTIFY_INFO {
    int32_t bEnable;                                         /* "Enable" */
    int32_t nContactNum;                                     /* entries of stuContacts in use */
    CFG_ALARM_LEVEL_ITEM stuContacts[ORRERY_PHONE_CONTACTS]; /* "Contacts": telephone number and least level; not
                                                                written when there are none */
} CFG_PHONE_EVENT_NOTIFY_INFO;

#define ORRERY_COMM_SUBSCRIPTIONS 16

/* What is asked of a serial line. */
typedef struct CFG_COMM_SUBSCRIPTION {
    int32_t nReadCycle; /* "ReadCycle": between two readings, seconds */
} CFG_COMM_SUBSCRIPTION;

/* "CommSubscribe": readings from serial lines. The reply's table is a list; without entries it is written as null. */
typedef struct CFG_COMM_SUBSCRIBE_INFO {
    int32_t nCount;                                            /* entries of stuItems in use */
    CFG_COMM_SUBSCRIPTION stuItems[ORRERY_COMM_SUBSCRIPTIONS]; /* the table's elements, one a line */
} CFG_COMM_SUBSCRIBE_INFO;

#define ORRERY_VSP_CHANNELS 512

/* "VSP_GAYS": registration with a video platform over SIP. Lists without an entry are not written. */
typedef struct CFG_VSP_GAYS_INFO {
    int32_t bEnable;          /* "Enable" */
    char szSipServerID[64];   /* "sipSvrId" */
    char szDomain[64];        /* "domain": of the SIP server */
    char szSipServerIP[64];   /* "sipSvrIp" */
    char szDeviceID[64];      /* "deviceId": of this device on the platform */
    char szPassword[64];      /* "password" */
    int32_t nLocalSipPort;    /* "localSipPort" */
    int32_t nSipServerPort;   /* "sipSvrPort" */
    int32_t nSipRegExpires;   /* "sipRegExpires": a registration holds so long, seconds */
    int32_t nKeepAliveCircle; /* "keepAliveCircle": between two signs of life, seconds */
    int32_t nMaxTimeoutTimes; /* "maxTimeoutTimes": signs of life that may be lost in a row */
    char szCivilCode[64];     /* "civilCode": of the administrative district */
    char szIntervideoID[64];  /* "intervideoID": of the platform's access point */
    int32_t nChannelSum;      /* "channelSum": channels in use; when absent the entries of "channelInfo". May be told
                                 larger than the list has room for: what is written ends there */
    CFG_ALARM_LEVEL_ITEM stuChannelInfo[ORRERY_VSP_CHANNELS]; /* "channelInfo": channels on the platform */
    int32_t nAlarmInSum; /* "alarmInSum": alarm inputs in use; when absent the entries of "alarmInfo". May be
                            told larger than the list has room for: what is written ends there */
    CFG_ALARM_LEVEL_ITEM stuAlarmInfo[ORRERY_VSP_CHANNELS]; /* "alarmInfo": alarm inputs on the platform */
} CFG_VSP_GAYS_INFO;

/* "AroudWifiSearch": a device looks for wireless devices around it; one record or a list. The reply's length is added
 * to what `returnedLength` holds; a null element leaves its record zero and is not counted. */
typedef struct CFG_AROUD_WIFI_SEARCH_INFO {
    int32_t bEnable;              /* "Enable" */
    int32_t nPeriod;              /* "Period": between two reports, seconds */
    int32_t bOptimizNotification; /* "OptimizNotification": reports only what is new */
} CFG_AROUD_WIFI_SEARCH_INFO;

#ifdef __cplusplus
}
#endif

#endif
