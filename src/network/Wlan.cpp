#include "network/Wlan.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kLinkModes, kFolded,
      {
          {CFG_WLAN_LINK_AUTO, "Auto"},
          {CFG_WLAN_LINK_ADHOC, "Ad-hoc"},
          {CFG_WLAN_LINK_INFRASTRUCTURE, "Infrastructure"},
      });

NAMES(kEncryptions, kFolded,
      {
          {CFG_WLAN_ENCRYPTION_OFF, "Off"},
          {CFG_WLAN_ENCRYPTION_ON, "On"},
          {CFG_WLAN_ENCRYPTION_WEP_OPEN, "WEP-OPEN"},
          {CFG_WLAN_ENCRYPTION_WEP_SHARED, "WEP-SHARED"},
          {CFG_WLAN_ENCRYPTION_WPA_TKIP, "WPA-TKIP"},
          {CFG_WLAN_ENCRYPTION_WPA_PSK_TKIP, "WPA-PSK-TKIP"},
          {CFG_WLAN_ENCRYPTION_WPA2_TKIP, "WPA2-TKIP"},
          {CFG_WLAN_ENCRYPTION_WPA2_PSK_TKIP, "WPA2-PSK-TKIP"},
          {CFG_WLAN_ENCRYPTION_WPA_AES, "WPA-AES"},
          {CFG_WLAN_ENCRYPTION_WPA_PSK_AES, "WPA-PSK-AES"},
          {CFG_WLAN_ENCRYPTION_WPA2_AES, "WPA2-AES"},
          {CFG_WLAN_ENCRYPTION_WPA2_PSK_AES, "WPA2-PSK-AES"},
      });

NAMES(kAuthentications, kFolded,
      {
          {CFG_WLAN_AUTH_UNKNOWN, "UnKnown"},
          {CFG_WLAN_AUTH_OPEN, "OPEN"},
          {CFG_WLAN_AUTH_SHARED, "SHARED"},
          {CFG_WLAN_AUTH_WPA, "WPA"},
          {CFG_WLAN_AUTH_WPA_PSK, "WPA-PSK"},
          {CFG_WLAN_AUTH_WPA2, "WPA2"},
          {CFG_WLAN_AUTH_WPA2_PSK, "WPA2-PSK"},
          {CFG_WLAN_AUTH_WPA_NONE, "WPA-NONE"},
          {CFG_WLAN_AUTH_WPA_PSK_WPA2_PSK, "WPA-PSK/WPA2-PSK"},
          {CFG_WLAN_AUTH_WPA_WPA2, "WPA/WPA2"},
          {CFG_WLAN_AUTH_WPA_WPA_PSK, "WPA/WPA-PSK"},
          {CFG_WLAN_AUTH_WPA2_WPA2_PSK, "WPA2/WPA2-PSK"},
          {CFG_WLAN_AUTH_WPA_OR_WPA2_ANY, "WPA/WPA-PSK/WPA2/WPA2-PSK"},
      });

NAMES(kCiphers, kFolded,
      {
          {CFG_WLAN_CIPHER_UNKNOWN, "UnKnown"},
          {CFG_WLAN_CIPHER_NONE, "NONE"},
          {CFG_WLAN_CIPHER_WEP, "WEP"},
          {CFG_WLAN_CIPHER_TKIP, "TKIP"},
          {CFG_WLAN_CIPHER_AES, "AES"},
          {CFG_WLAN_CIPHER_TKIP_AES, "TKIP+AES"},
      });

NAMES(kKeyTypes, kFolded,
      {
          {CFG_WLAN_KEY_HEX, "Hex"},
          {CFG_WLAN_KEY_ASCII, "ASCII"},
      });

PART(kWlanEap, CFG_WLAN_EAP,
     {
         FIELD(szMethod, "Method", Text),
         FIELD(szAuthType, "AuthType", Text),
         FIELD(szIdentity, "Identity", Text),
         FIELD(szAnonymousID, "AnonymousID", Text),
         FIELD(szPassword, "Password", Text),
         FIELD(szCaCert, "CaCert", Text),
         FIELD(szUserCert, "UserCert", Text),
     });

PART(kWlanNetwork, CFG_WLAN_NETWORK,
     {
         FIELD(szIPAddress, "IPAddress", Text),
         FIELD(szSubnetMask, "SubnetMask", Text),
         FIELD(szDefaultGateway, "DefaultGateway", Text),
         FIELD(bDhcpEnable, "DhcpEnable", Bool),
     });

PART(kWlanEntry, CFG_WLAN_ENTRY,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(szSSID, "SSID", Text),
         FIELD(bConnectEnable, "ConnectEnable", Bool),
         FIELD(bLinkEnable, "LinkEnable", Bool),
         FIELD(emLinkMode, "LinkMode", Names(kLinkModes)),
         FIELD(emEncryption, "Encryption", Names(kEncryptions)),
         FIELD(emAuthentication, "Authentication", Names(kAuthentications)),
         FIELD(emDataEncryption, "DataEncryption", Names(kCiphers)),
         FIELD(emKeyType, "KeyType", Names(kKeyTypes)),
         FIELD(nKeyID, "KeyID", Int),
         FIELD(szKeys, "Keys", Text),
         FIELD(bKeyFlag, "KeyFlag", Bool),
         FIELD(stuEAP, "EAP", Record(kWlanEap)),
         FIELD(stuNetwork, "Network", Record(kWlanNetwork)),
     });

} // namespace

TABLE(kWlan, CFG_WLAN_INFO,
      {
          FIELD(nNum),
          FIELD(stuWlan, "", Record(kWlanEntry)).Count(AT(nNum)),
      });

} // namespace orrery
