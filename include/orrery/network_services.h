/* Services of a device on its network: the devices' own protocol with its registration servers, messages, mail, HTTPS
 * and a few small ones. */
#ifndef ORRERY_NETWORK_SERVICES_H
#define ORRERY_NETWORK_SERVICES_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_REGISTER_SERVERS 10
#define ORRERY_MESSAGE_RECEIVERS 100

/* A server that a device registers with. */
typedef struct CFG_REGISTER_SERVER {
    int32_t nPort;       /* "Port" */
    char szAddress[256]; /* "Address": IP address or host name */
} CFG_REGISTER_SERVER;

/* How a device announces itself to servers. */
typedef struct CFG_REGISTER_SERVER_INFO {
    int32_t bEnable;                                         /* "Enable" */
    char szDeviceID[256];                                    /* "DeviceID": under which it registers */
    int32_t nServersNum;                                     /* entries of stuServers in use */
    CFG_REGISTER_SERVER stuServers[ORRERY_REGISTER_SERVERS]; /* "Servers"; not written when there are none */
} CFG_REGISTER_SERVER_INFO;

/* When a vehicle reports ("SendPolicy"). Codes without a text are not written. */
enum {
    CFG_REGISTER_SEND_TIMING = 0, /* "Timing": at intervals; absent and unknown texts too */
    CFG_REGISTER_SEND_EVENT = 1   /* "Event": on events */
};

/* How a vehicle announces itself. */
typedef struct CFG_REGISTER_VEHICLE_INFO {
    int32_t bEnable;         /* "Enable" */
    char szDeviceID[256];    /* "DeviceID" */
    int32_t nSendInterval;   /* "SendInterval": seconds */
    char szAddress[255];     /* "Address" */
    int32_t nPort;           /* "Port" */
    int32_t bRepeatEnable;   /* "RepeatEnable": sends again what was not acknowledged */
    int32_t emSendPolicy;    /* "SendPolicy": CFG_REGISTER_SEND_... */
    char szTestAddress[256]; /* "TestAddress": server to try the line with */
    int32_t nTestPort;       /* "TestPort" */
} CFG_REGISTER_VEHICLE_INFO;

/* What a stream gives up first on a narrow line ("StreamPolicy"). Codes without a text are not written. */
enum {
    CFG_STREAM_POLICY_UNKNOWN = 0,  /* absent and unknown texts */
    CFG_STREAM_POLICY_NONE = 1,     /* "None" */
    CFG_STREAM_POLICY_QUALITY = 2,  /* "Quality": keeps the picture's quality */
    CFG_STREAM_POLICY_FLUENCY = 3,  /* "Fluency": keeps the frame rate */
    CFG_STREAM_POLICY_AUTOADAPT = 4 /* "AutoAdapt" */
};

/* "DVRIP": the devices' own protocol. */
typedef struct CFG_DVRIP_INFO {
    int32_t nTcpPort;                             /* "TCPPort" */
    int32_t nSSLPort;                             /* "SSLPort" */
    int32_t nMaxConnections;                      /* "MaxConnections" */
    int32_t nUDPPort;                             /* "UDPPort" */
    int32_t nMCASTPort;                           /* "MCASTPort" */
    int32_t bMCASTEnable;                         /* "MCASTEnable" */
    char szMCASTAddress[256];                     /* "MCASTAddress" */
    CFG_REGISTER_SERVER_INFO stuRegisterServer;   /* "RegisterServer" */
    CFG_REGISTER_SERVER_INFO stuRegisterServerEx; /* "RegisterServerEx": a second set of servers */
    int32_t emStreamPolicy;                       /* "StreamPolicy": CFG_STREAM_POLICY_... */
    CFG_REGISTER_VEHICLE_INFO stuRegisterVehicle; /* "RegisterServerVehicle" */
} CFG_DVRIP_INFO;

/* Messages that a device sends to mobile telephones when an event fires. */
typedef struct CFG_EVENT_MESSAGE_SENDING {
    int32_t bEnable;                                /* "Enable" */
    char szType[8];                                 /* "Type": "SMS" or "MMS" */
    char szTitle[128];                              /* "Title" */
    int32_t nReceiversNum;                          /* entries of szReceivers in use */
    char szReceivers[ORRERY_MESSAGE_RECEIVERS][32]; /* "Receivers": telephone numbers; not written when there are
                                                       none */
} CFG_EVENT_MESSAGE_SENDING;

/* "Mobile". */
typedef struct CFG_MOBILE_INFO {
    CFG_EVENT_MESSAGE_SENDING stuEventMessageSending; /* "EventMessageSending" */
} CFG_MOBILE_INFO;

/* "Email": how a device sends mail. */
typedef struct CFG_EMAIL_INFO {
    int32_t bEnable;                                 /* "Enable" */
    int32_t bSslEnable;                              /* "SslEnable" */
    int32_t bTlsEnable;                              /* "TlsEnable" */
    char szAddress[256];                             /* "Address": mail server */
    int32_t nPort;                                   /* "Port": 25 as a rule */
    char szUserName[64];                             /* "UserName" */
    char szPassword[64];                             /* "Password" */
    int32_t bAnonymous;                              /* "Anonymous": without user name and password */
    char szSendAddress[256];                         /* "SendAddress": the sender's address */
    int32_t nReceiversNum;                           /* entries of szReceivers in use */
    char szReceivers[ORRERY_MESSAGE_RECEIVERS][256]; /* "Receivers": addresses; not written when there are none */
    char szTitle[256];                               /* "Title": subject */
    int32_t bOnlyAttachment;                         /* "OnlyAttachment": no text, the attachment alone */
    int32_t bAttachEnable;                           /* "AttachEnable" */
    int32_t nSendInterv;                             /* "SendInterv": least interval between two mails, seconds */
    int32_t bHealthReportEnable;                     /* "HealthReport"."Enable": mails that all is well */
    int32_t nHealthReportInterval;                   /* "HealthReport"."Interval": minutes */
} CFG_EMAIL_INFO;

/* "STP": the spanning tree protocol on a device with several ports. */
typedef struct CFG_STP_INFO {
    int32_t bEnable; /* "Enable" */
} CFG_STP_INFO;

/* "AIOAppConfig": the application of an all-in-one terminal. */
typedef struct CFG_AIO_APP_INFO {
    char szAddress[16]; /* "Address": the device's address in the application */
} CFG_AIO_APP_INFO;

/* "LowRateWPAN.getCaps": low-rate wireless personal area network. Reply only: it is not written. */
typedef struct CFG_LOWRATEWPAN_CAPS {
    int32_t nMaxPageSize; /* "MaxPageSize": most entries that a page of a query may have */
} CFG_LOWRATEWPAN_CAPS;

/* The certificate that a device shows to browsers. */
typedef struct CFG_SERVER_CERTIFICATE {
    char szCountry[8];           /* "Country": two letters */
    char szState[64];            /* "State" */
    char szLocality[64];         /* "Locatity" (the devices' spelling) */
    char szOrganization[64];     /* "Organization" */
    char szOrganizationUnit[64]; /* "OrganizationUnit" */
    char szCommonName[128];      /* "CommonName": the device's host name or address */
    char szEmail[128];           /* "Email" */
    char szName[128];            /* "Name": of the certificate's file */
    char szPath[128];            /* "Path": of the certificate's file */
    int32_t nUsefulLife;         /* "UsefulLife": days */
} CFG_SERVER_CERTIFICATE;

/* "Https". The length is added to what `returnedLength` holds. */
typedef struct CFG_HTTPS_INFO {
    int32_t bEnable;                             /* "Enable" */
    int32_t nPort;                               /* "Port": 443 as a rule */
    char szRootCertificate[128];                 /* "RootCertificate": file of the root certificate */
    CFG_SERVER_CERTIFICATE stuServerCertificate; /* "ServerCertificate" */
} CFG_HTTPS_INFO;

#ifdef __cplusplus
}
#endif

#endif
