#include "network/Dvrip.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kStreamPolicies, kFolded.Unknown(CFG_STREAM_POLICY_UNKNOWN),
      {
          {CFG_STREAM_POLICY_NONE, "None"},
          {CFG_STREAM_POLICY_QUALITY, "Quality"},
          {CFG_STREAM_POLICY_FLUENCY, "Fluency"},
          {CFG_STREAM_POLICY_AUTOADAPT, "AutoAdapt"},
      });

NAMES(kSendPolicies, kFolded.Unknown(CFG_REGISTER_SEND_TIMING),
      {
          {CFG_REGISTER_SEND_TIMING, "Timing"},
          {CFG_REGISTER_SEND_EVENT, "Event"},
      });

PART(kRegisterServer, CFG_REGISTER_SERVER,
     {
         FIELD(nPort, "Port", Int),
         FIELD(szAddress, "Address", Text),
     });

PART(kRegisterServerInfo, CFG_REGISTER_SERVER_INFO,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(szDeviceID, "DeviceID", Text),
         FIELD(nServersNum),
         FIELD(stuServers, "Servers", Record(kRegisterServer)).Count(AT(nServersNum)),
     });

PART(kRegisterVehicle, CFG_REGISTER_VEHICLE_INFO,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(szDeviceID, "DeviceID", Text),
         FIELD(nSendInterval, "SendInterval", Int),
         FIELD(szAddress, "Address", Text),
         FIELD(nPort, "Port", Int),
         FIELD(bRepeatEnable, "RepeatEnable", Bool),
         FIELD(emSendPolicy, "SendPolicy", Names(kSendPolicies)),
         FIELD(szTestAddress, "TestAddress", Text),
         FIELD(nTestPort, "TestPort", Int),
     });

} // namespace

TABLE(kDvrip, CFG_DVRIP_INFO,
      {
          FIELD(nTcpPort, "TCPPort", Int),
          FIELD(nSSLPort, "SSLPort", Int),
          FIELD(nMaxConnections, "MaxConnections", Int),
          FIELD(nUDPPort, "UDPPort", Int),
          FIELD(nMCASTPort, "MCASTPort", Int),
          FIELD(bMCASTEnable, "MCASTEnable", Bool),
          FIELD(szMCASTAddress, "MCASTAddress", Text),
          FIELD(stuRegisterServer, "RegisterServer", Record(kRegisterServerInfo)),
          FIELD(stuRegisterServerEx, "RegisterServerEx", Record(kRegisterServerInfo)),
          FIELD(emStreamPolicy, "StreamPolicy", Names(kStreamPolicies)),
          FIELD(stuRegisterVehicle, "RegisterServerVehicle", Record(kRegisterVehicle)),
      });

} // namespace orrery
