// Devices that are reached through another one. Other records embed kRemoteDevice where a video source may lie on a
// remote device.
#pragma once

#include "frame/record/Table.h"

#include "orrery/remote_device.h"

namespace orrery {

namespace remote {

using namespace record;

NAMES(kServiceTypes, kExact.Unknown(CFG_REMOTE_SERVICE_AUTO),
      {
          {CFG_REMOTE_SERVICE_AUTO, "AUTO"},
          {CFG_REMOTE_SERVICE_TCP, "TCP"},
          {CFG_REMOTE_SERVICE_UDP, "UDP"},
          {CFG_REMOTE_SERVICE_MCAST, "MCAST"},
      });

NAMES(kDefinitions, kExact.Unknown(CFG_DEFINITION_STANDARD).OutsideWrites("Standard"),
      {
          {CFG_DEFINITION_STANDARD, "Standard"},
          {CFG_DEFINITION_HIGH, "High"},
      });

PART(kRemoteVideoInput, CFG_REMOTE_VIDEO_INPUT,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(szName, "Name", RawText),
         FIELD(szControlID, "ControlID", RawText),
         FIELD(szMainStreamUrl, "MainStreamUrl", RawText),
         FIELD(szExtraStreamUrl, "ExtraStreamUrl", RawText),
         FIELD(emServiceType, "ServiceType", Names(kServiceTypes)),
     });

PART(kRemoteDevice, CFG_REMOTE_DEVICE_INFO,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(bEnable, "Enable", Bool),
         FIELD(szID, nullptr, MemberName),
         FIELD(szIP, "Address", RawText),
         FIELD(nPort, "Port", Int),
         FIELD(szProtocol, "ProtocolType", Text),
         FIELD(szUser, "UserName", Text),
         FIELD(szPassword, "Password", Text),
         FIELD(szSerial, "SerialNo", Text),
         FIELD(szDevClass, "DeviceClass", Text),
         FIELD(szDevType, "DeviceType", Text),
         FIELD(szName, "Name", Text),
         FIELD(szAddress, "MachineAddress", Text),
         FIELD(szGroup, "MachineGroup", Text),
         FIELD(nDefinition, "Definition", Names(kDefinitions)),
         FIELD(nVideoChannels, "VideoInputChannels", Int),
         FIELD(nAudioInputChannels, "AudioInputChannels", Int),
         FIELD(nRtspPort, "RtspPort", Int),
         FIELD(szVendor, "Vendor", Text),
         FIELD(pVideoInputs, "VideoInputs", Record(kRemoteVideoInput))
             .Capacity(AT(nMaxVideoInputs))
             .Count(AT(nRetVideoInputs))
             .AnyShape(),
         FIELD(nMaxVideoInputs),
         FIELD(nRetVideoInputs),
         FIELD(nHttpPort, "HttpPort", Int),
         FIELD(bGB28181, "GB28181", Presence),
         FIELD(nGB28181Port, "GB28181/Port", Int).WriteIf(AT(bGB28181)),
         FIELD(szDeviceNo, "GB28181/DeviceNo", Text).WriteIf(AT(bGB28181)),
     });

} // namespace remote

using remote::kRemoteDevice;

extern const record::TypedTable<CFG_REMOTE_CHANNEL_INFO> kRemoteChannel;

} // namespace orrery
