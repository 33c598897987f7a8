/* A device on its network: interfaces, RTSP streaming, multicast groups. */
#ifndef ORRERY_NETWORK_H
#define ORRERY_NETWORK_H

#include "orrery/types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ORRERY_NETWORK_INTERFACES 32
#define ORRERY_NETWORK_DNS_SERVERS 2

/* How an Ethernet port negotiates ("NetMode"). The texts compare with their case. */
enum {
    CFG_NET_MODE_ADAPT = 0,     /* "adapt": negotiates; absent and unknown texts too */
    CFG_NET_MODE_HALF_10M = 1,  /* "half10M" */
    CFG_NET_MODE_FULL_10M = 2,  /* "full10M" */
    CFG_NET_MODE_HALF_100M = 3, /* "half100M" */
    CFG_NET_MODE_FULL_100M = 4  /* "full100M" */
};

/* What a port is for ("Type"). The texts compare with their case. */
enum {
    CFG_NET_INTERFACE_UNKNOWN = 0,  /* "": not told; unknown texts too */
    CFG_NET_INTERFACE_STANDARD = 1, /* "Standard" */
    CFG_NET_INTERFACE_MANAGER = 2,  /* "Manager": reserved for management */
    CFG_NET_INTERFACE_EXTEND = 3    /* "Extend": extension port */
};

/* One network interface. Keys that are absent leave 0 or an empty text unless told otherwise. */
typedef struct CFG_NETWORK_INTERFACE {
    char szName[128];                                   /* the member's name, such as "eth0" */
    char szIP[256];                                     /* "IPAddress" */
    char szSubnetMask[256];                             /* "SubnetMask" */
    char szDefGateway[256];                             /* "DefaultGateway" */
    int32_t bDhcpEnable;                                /* "DhcpEnable" */
    int32_t bDnsAutoGet;                                /* "DnsAutoGet": takes the DNS servers from DHCP */
    char szDnsServers[ORRERY_NETWORK_DNS_SERVERS][256]; /* "DnsServers": the first two; written up to the first empty
                                                           one */
    int32_t nMTU;                                       /* "MTU": bytes */
    char szMacAddress[256];                             /* "PhysicalAddress" */
    int32_t bEnable;                                    /* "Enable" */
    int32_t bReservedIP; /* "EnableDhcpReservedIP": keeps the last DHCP address when no server answers */
    int32_t emNetMode;   /* "NetMode": CFG_NET_MODE_...; any other code writes an empty text */
    int32_t emType;      /* "Type": CFG_NET_INTERFACE_...; any other code writes an empty text */
    int32_t nBonding;    /* "Bonding": 1 part of a bond, 0 not, -1 when absent; -1 is not written */
} CFG_NETWORK_INTERFACE;

/* "Network". A buffer below one record is taken as well: it receives as many bytes of the record as it holds, and the
 * length returned is that of the whole record. A reply without a table gives a cleared record. An empty text is refused
 * with the buffer untouched. */
typedef struct CFG_NETWORK_INFO {
    char szHostName[128];     /* "Hostname" */
    char szDomain[128];       /* "Domain" */
    char szDefInterface[128]; /* "DefaultInterface": name of the interface with the default route */
    int32_t nInterfaceNum;    /* entries of stuInterfaces in use */
    CFG_NETWORK_INTERFACE stuInterfaces[ORRERY_NETWORK_INTERFACES]; /* members of the table that are objects and not
                                                                       empty, in the order of their names */
} CFG_NETWORK_INFO;

/* "RTSP". Read from the reply of a refused call too. Its text may fill the buffer to its last byte and then loses its
 * newline. */
typedef struct CFG_RTSP_INFO {
    int32_t bEnable;       /* "Enable" */
    int32_t nPort;         /* "Port": 554 as a rule */
    int32_t nRtpStartPort; /* "RTP"."StartPort": first port of the media streams */
    int32_t nRtpEndPort;   /* "RTP"."EndPort" */
    int32_t bHttpEnable;   /* "RtspOverHttp"."Enable": tunnelled through HTTP */
    int32_t nHttpPort;     /* "RtspOverHttp"."Port" */
} CFG_RTSP_INFO;

#define ORRERY_MULTICAST_ITEMS 256

/* Stream of a channel ("StreamType"). */
enum {
    CFG_MULTICAST_STREAM_MAIN = 0,     /* "Main"; read from unknown texts and written for any other code too */
    CFG_MULTICAST_STREAM_EXTRA1 = 1,   /* "Extra1" */
    CFG_MULTICAST_STREAM_EXTRA2 = 2,   /* "Extra2" */
    CFG_MULTICAST_STREAM_EXTRA3 = 3,   /* "Extra3" */
    CFG_MULTICAST_STREAM_SNAPSHOT = 4, /* "Snapshot" */
    CFG_MULTICAST_STREAM_OBJECT = 5    /* "Object": analysis data */
};

/* One multicast group. A caller sets `dwSize` before either direction: fields that end beyond it are left alone, and
 * are written as 0 or empty. */
typedef struct CFG_MULTICAST_ITEM {
    uint32_t dwSize;           /* sizeof(CFG_MULTICAST_ITEM) as the caller was compiled */
    uint32_t bEnable;          /* "Enable" */
    char szMulticastAddr[256]; /* "MulticastAddr" */
    int32_t nPort;             /* "Port" */
    char szLocalAddr[256];     /* "LocalAddr": the device's own address for the group */
    int32_t nChannel;          /* "Channel": video channel, from 0 */
    int32_t emStreamType;      /* "StreamType": CFG_MULTICAST_STREAM_... */
} CFG_MULTICAST_ITEM;

/* The groups of one transport. Items that end beyond `dwSize`, and likewise the count, are left alone. */
typedef struct CFG_MULTICAST_STREAM {
    uint32_t dwSize;                                    /* sizeof(CFG_MULTICAST_STREAM) */
    CFG_MULTICAST_ITEM stuItem[ORRERY_MULTICAST_ITEMS]; /* elements of the list; cleared from nCount on */
    int32_t nCount;                                     /* items in use */
} CFG_MULTICAST_STREAM;

/* "Multicast". The buffer must hold the whole record, `dwSize` of the record and of each stream and item set by the
 * caller; it is not cleared. Streams that end beyond the record's `dwSize` are left alone; one that the reply lacks has
 * its items cleared and its count set to 0. A reply without "result" changes nothing and succeeds; "result" may be
 * false. The text may fill the buffer to its last byte and then loses its newline. */
typedef struct CFG_MULTICAST_INFO {
    uint32_t dwSize;                  /* sizeof(CFG_MULTICAST_INFO) */
    CFG_MULTICAST_STREAM stuTS;       /* "TS": MPEG transport stream */
    CFG_MULTICAST_STREAM stuRTP;      /* "RTP" */
    CFG_MULTICAST_STREAM stuQVII;     /* "QVII": the devices' own protocol */
    CFG_MULTICAST_STREAM stuRTPAudio; /* "RTPAudio" */
} CFG_MULTICAST_INFO;

#ifdef __cplusplus
}
#endif

#endif
