/* Devices that are reached through another device. Their records begin with dwSize, the size that the caller was
 * compiled with, so that callers of older and of newer layouts can both call:
 *
 * The caller sets dwSize of its first record before every call, also before reading. It is the distance from one record
 * to the next, whatever the later records' own words hold, which are neither read nor written. A dwSize of 0, or one
 * above the buffer, fails. A field moves only if all of it lies within dwSize; what lies behind the caller's own
 * records stays as it was. What a reply leaves out is zero. */
#ifndef ORRERY_REMOTE_DEVICE_H
#define ORRERY_REMOTE_DEVICE_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* "RemoteChannel": which channel of which remote device stands for a channel of this one; one record or a list, in
 * which a null is a record without keys. A missing table, and an empty list, succeed with a length of 0. */
typedef struct CFG_REMOTE_CHANNEL_INFO {
    uint32_t dwSize;
    int32_t bEnable;   /* "Enable" */
    char szDevice[64]; /* "Device": identifier of the remote device */
    int32_t nChannel;  /* "Channel": on that device, from 0 */
} CFG_REMOTE_CHANNEL_INFO;

/* How a stream of a remote device is fetched ("ServiceType"), in the case shown. A text that is none of these gives -1;
 * a code that is none of these is not written. */
enum {
    CFG_REMOTE_SERVICE_AUTO = -1, /* "AUTO" */
    CFG_REMOTE_SERVICE_TCP = 0,   /* "TCP" */
    CFG_REMOTE_SERVICE_UDP = 1,   /* "UDP" */
    CFG_REMOTE_SERVICE_MCAST = 2  /* "MCAST": multicast */
};

/* A video input of a remote device. */
typedef struct CFG_REMOTE_VIDEO_INPUT {
    int32_t bEnable;            /* "Enable" */
    char szName[64];            /* "Name"; bytes as they stand */
    char szControlID[128];      /* "ControlID": under which it is controlled, bytes as they stand */
    char szMainStreamUrl[260];  /* "MainStreamUrl"; bytes as they stand */
    char szExtraStreamUrl[260]; /* "ExtraStreamUrl"; bytes as they stand */
    int32_t emServiceType;      /* "ServiceType": CFG_REMOTE_SERVICE_... */
} CFG_REMOTE_VIDEO_INPUT;

/* Which definition a remote device is asked for ("Definition"), in the case shown. */
enum {
    CFG_DEFINITION_STANDARD = 0, /* "Standard"; read from every other text too, and written for every other code */
    CFG_DEFINITION_HIGH = 1      /* "High" */
};

/* "RemoteDevice": the devices reached through this one. The reply's table is an object whose members are the devices,
 * by their identifiers; they come in the order of the identifiers' bytes. A member that is null is passed over: the
 * next one takes its place. A missing table succeeds with a length of 0, another type than an object fails. Written is
 * the same object, each record under its szID; of several with the same szID the last. */
typedef struct CFG_REMOTE_DEVICE_INFO {
    uint32_t dwSize;
    int32_t bEnable;                      /* "Enable" */
    char szID[64];                        /* the name of the member that the device stands under */
    char szIP[32];                        /* "Address": IP address or host name, bytes as they stand */
    int32_t nPort;                        /* "Port" */
    char szProtocol[32];                  /* "ProtocolType" */
    char szUser[64];                      /* "UserName" */
    char szPassword[64];                  /* "Password" */
    char szSerial[32];                    /* "SerialNo" */
    char szDevClass[16];                  /* "DeviceClass": kind of device, such as "NVR" */
    char szDevType[32];                   /* "DeviceType": its model */
    char szName[128];                     /* "Name" */
    char szAddress[128];                  /* "MachineAddress": where it stands */
    char szGroup[64];                     /* "MachineGroup": group that it belongs to */
    int32_t nDefinition;                  /* "Definition": CFG_DEFINITION_... */
    int32_t nVideoChannels;               /* "VideoInputChannels": how many it has */
    int32_t nAudioInputChannels;          /* "AudioInputChannels": how many it has */
    int32_t nRtspPort;                    /* "RtspPort" */
    char szVendor[260];                   /* "Vendor": who made it */
    CFG_REMOTE_VIDEO_INPUT* pVideoInputs; /* "VideoInputs": the caller's array, set before reading; null has room for
                                             nothing. Of its elements what the text does not tell stays. Not written
                                             when nRetVideoInputs is 0 */
    int32_t nMaxVideoInputs;              /* room of that array, set before reading, and before writing too */
    int32_t nRetVideoInputs;              /* elements in use: those of "VideoInputs", at most nMaxVideoInputs */
    int32_t nHttpPort;                    /* "HttpPort" */
    int32_t bGB28181;     /* 1 when "GB28181" was there: its two members are read and written only then */
    int32_t nGB28181Port; /* "GB28181"."Port" */
    char szDeviceNo[32];  /* "GB28181"."DeviceNo": of the device on that network */
} CFG_REMOTE_DEVICE_INFO;

#ifdef __cplusplus
}
#endif

#endif
