/* Wireless networks that a device joins. */
#ifndef ORRERY_WLAN_H
#define ORRERY_WLAN_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_WLAN_ENTRIES 8
#define ORRERY_WLAN_KEYS 4

/* Of all the codes below: absent and unknown texts read as 0, codes without a text are not written. */

/* Kind of network ("LinkMode"). */
enum {
    CFG_WLAN_LINK_AUTO = 0,          /* "Auto" */
    CFG_WLAN_LINK_ADHOC = 1,         /* "Ad-hoc" */
    CFG_WLAN_LINK_INFRASTRUCTURE = 2 /* "Infrastructure" */
};

/* Encryption of a network ("Encryption"). */
enum {
    CFG_WLAN_ENCRYPTION_OFF = 0,           /* "Off" */
    CFG_WLAN_ENCRYPTION_ON = 1,            /* "On" */
    CFG_WLAN_ENCRYPTION_WEP_OPEN = 2,      /* "WEP-OPEN" */
    CFG_WLAN_ENCRYPTION_WEP_SHARED = 3,    /* "WEP-SHARED" */
    CFG_WLAN_ENCRYPTION_WPA_TKIP = 4,      /* "WPA-TKIP" */
    CFG_WLAN_ENCRYPTION_WPA_PSK_TKIP = 5,  /* "WPA-PSK-TKIP" */
    CFG_WLAN_ENCRYPTION_WPA2_TKIP = 6,     /* "WPA2-TKIP" */
    CFG_WLAN_ENCRYPTION_WPA2_PSK_TKIP = 7, /* "WPA2-PSK-TKIP" */
    CFG_WLAN_ENCRYPTION_WPA_AES = 8,       /* "WPA-AES" */
    CFG_WLAN_ENCRYPTION_WPA_PSK_AES = 9,   /* "WPA-PSK-AES" */
    CFG_WLAN_ENCRYPTION_WPA2_AES = 10,     /* "WPA2-AES" */
    CFG_WLAN_ENCRYPTION_WPA2_PSK_AES = 11  /* "WPA2-PSK-AES" */
};

/* How a device proves itself to a network ("Authentication"). */
enum {
    CFG_WLAN_AUTH_UNKNOWN = 0,          /* "UnKnown" */
    CFG_WLAN_AUTH_OPEN = 1,             /* "OPEN" */
    CFG_WLAN_AUTH_SHARED = 2,           /* "SHARED" */
    CFG_WLAN_AUTH_WPA = 3,              /* "WPA" */
    CFG_WLAN_AUTH_WPA_PSK = 4,          /* "WPA-PSK" */
    CFG_WLAN_AUTH_WPA2 = 5,             /* "WPA2" */
    CFG_WLAN_AUTH_WPA2_PSK = 6,         /* "WPA2-PSK" */
    CFG_WLAN_AUTH_WPA_NONE = 7,         /* "WPA-NONE" */
    CFG_WLAN_AUTH_WPA_PSK_WPA2_PSK = 8, /* "WPA-PSK/WPA2-PSK" */
    CFG_WLAN_AUTH_WPA_WPA2 = 9,         /* "WPA/WPA2" */
    CFG_WLAN_AUTH_WPA_WPA_PSK = 10,     /* "WPA/WPA-PSK" */
    CFG_WLAN_AUTH_WPA2_WPA2_PSK = 11,   /* "WPA2/WPA2-PSK" */
    CFG_WLAN_AUTH_WPA_OR_WPA2_ANY = 12  /* "WPA/WPA-PSK/WPA2/WPA2-PSK" */
};

/* Cipher of the data ("DataEncryption"). */
enum {
    CFG_WLAN_CIPHER_UNKNOWN = 0, /* "UnKnown" */
    CFG_WLAN_CIPHER_NONE = 1,    /* "NONE" */
    CFG_WLAN_CIPHER_WEP = 2,     /* "WEP" */
    CFG_WLAN_CIPHER_TKIP = 3,    /* "TKIP" */
    CFG_WLAN_CIPHER_AES = 4,     /* "AES" */
    CFG_WLAN_CIPHER_TKIP_AES = 5 /* "TKIP+AES" */
};

/* Form of the keys ("KeyType"). */
enum {
    CFG_WLAN_KEY_HEX = 0,  /* "Hex" */
    CFG_WLAN_KEY_ASCII = 1 /* "ASCII" */
};

/* Account at a network that authenticates its users. */
typedef struct CFG_WLAN_EAP {
    char szMethod[32];      /* "Method", such as "PEAP" */
    char szAuthType[32];    /* "AuthType": inner authentication, such as "MSCHAPV2" */
    char szIdentity[64];    /* "Identity" */
    char szAnonymousID[64]; /* "AnonymousID": shown outside the tunnel */
    char szPassword[64];    /* "Password" */
    char szCaCert[512];     /* "CaCert": certificate authority */
    char szUserCert[512];   /* "UserCert" */
} CFG_WLAN_EAP;

/* Address of the device in a wireless network. */
typedef struct CFG_WLAN_NETWORK {
    char szIPAddress[40];      /* "IPAddress" */
    char szSubnetMask[40];     /* "SubnetMask" */
    char szDefaultGateway[40]; /* "DefaultGateway" */
    int32_t bDhcpEnable;       /* "DhcpEnable" */
} CFG_WLAN_NETWORK;

/* One wireless network. */
typedef struct CFG_WLAN_ENTRY {
    int32_t bEnable;                    /* "Enable" */
    char szSSID[36];                    /* "SSID" */
    int32_t bConnectEnable;             /* "ConnectEnable": joins by itself */
    int32_t bLinkEnable;                /* "LinkEnable" */
    int32_t emLinkMode;                 /* "LinkMode": CFG_WLAN_LINK_... */
    int32_t emEncryption;               /* "Encryption": CFG_WLAN_ENCRYPTION_... */
    int32_t emAuthentication;           /* "Authentication": CFG_WLAN_AUTH_... */
    int32_t emDataEncryption;           /* "DataEncryption": CFG_WLAN_CIPHER_... */
    int32_t emKeyType;                  /* "KeyType": CFG_WLAN_KEY_... */
    int32_t nKeyID;                     /* "KeyID": which of the keys is used, from 0 */
    char szKeys[ORRERY_WLAN_KEYS][128]; /* "Keys": always all four are written */
    int32_t bKeyFlag;                   /* "KeyFlag": the keys are set */
    CFG_WLAN_EAP stuEAP;                /* "EAP" */
    CFG_WLAN_NETWORK stuNetwork;        /* "Network" */
} CFG_WLAN_ENTRY;

/* "WLan". The table is a list of networks; anything else gives a cleared record. Without networks the text is null.
 * The length is added to what `returnedLength` holds. */
typedef struct CFG_WLAN_INFO {
    int32_t nNum;                                /* entries of stuWlan in use */
    CFG_WLAN_ENTRY stuWlan[ORRERY_WLAN_ENTRIES]; /* the first eight elements */
} CFG_WLAN_INFO;

#ifdef __cplusplus
}
#endif

#endif
