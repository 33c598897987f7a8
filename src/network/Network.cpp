#include "network/Network.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kNetModes, kExact.OutsideWrites(""),
      {
          {CFG_NET_MODE_ADAPT, "adapt"},
          {CFG_NET_MODE_HALF_10M, "half10M"},
          {CFG_NET_MODE_FULL_10M, "full10M"},
          {CFG_NET_MODE_HALF_100M, "half100M"},
          {CFG_NET_MODE_FULL_100M, "full100M"},
      });

NAMES(kInterfaceTypes, kExact.OutsideWrites(""),
      {
          {CFG_NET_INTERFACE_UNKNOWN, ""},
          {CFG_NET_INTERFACE_STANDARD, "Standard"},
          {CFG_NET_INTERFACE_MANAGER, "Manager"},
          {CFG_NET_INTERFACE_EXTEND, "Extend"},
      });

PART(kNetworkInterface, CFG_NETWORK_INTERFACE,
     {
         FIELD(szName, nullptr, MemberName),
         FIELD(szIP, "IPAddress", Text),
         FIELD(szSubnetMask, "SubnetMask", Text),
         FIELD(szDefGateway, "DefaultGateway", Text),
         FIELD(bDhcpEnable, "DhcpEnable", Int).WrittenAs(Bool),
         FIELD(bDnsAutoGet, "DnsAutoGet", Int).WrittenAs(Bool),
         FIELD(szDnsServers, "DnsServers", Text).UntilEmpty(),
         FIELD(nMTU, "MTU", Int),
         FIELD(szMacAddress, "PhysicalAddress", Text),
         FIELD(bEnable, "Enable", Int).WrittenAs(Bool),
         FIELD(bReservedIP, "EnableDhcpReservedIP", Int).WrittenAs(Bool),
         FIELD(emNetMode, "NetMode", Names(kNetModes)),
         FIELD(emType, "Type", Names(kInterfaceTypes)),
         FIELD(nBonding, "Bonding", Bool).Absent(-1).WriteUnless(-1),
     });

} // namespace

TABLE(kNetwork, CFG_NETWORK_INFO,
      {
          FIELD(szHostName, "Hostname", Text),
          FIELD(szDomain, "Domain", Text),
          FIELD(szDefInterface, "DefaultInterface", Text),
          FIELD(nInterfaceNum),
          FIELD(stuInterfaces, "", Record(kNetworkInterface)).AmongKeys().Count(AT(nInterfaceNum)),
      });

TABLE(kRtsp, CFG_RTSP_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nPort, "Port", Int),
          FIELD(nRtpStartPort, "RTP/StartPort", Int),
          FIELD(nRtpEndPort, "RTP/EndPort", Int),
          FIELD(bHttpEnable, "RtspOverHttp/Enable", Bool),
          FIELD(nHttpPort, "RtspOverHttp/Port", Int),
      });

} // namespace orrery
