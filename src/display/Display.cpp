#include "display/Display.h"

#include "alarm/EventHandler.h"
#include "media/CommAttribute.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kOutputFormats, kFolded.OutsideWrites("Auto"),
      {
          {CFG_VIDEO_OUT_AUTO, "Auto"},
          {CFG_VIDEO_OUT_TV, "TV"},
          {CFG_VIDEO_OUT_VGA, "VGA"},
          {CFG_VIDEO_OUT_DVI, "DVI"},
          {CFG_VIDEO_OUT_HDMI, "HDMI"},
          {CFG_VIDEO_OUT_SPOT, "SPOT"},
      });

NAMES(kScanFormats, kFolded,
      {
          {CFG_SCAN_PROGRESSIVE, "PROGRESSIVE"},
          {CFG_SCAN_INTERLACE, "INTERLACE"},
      });

NAMES(kColorStyles, kFolded.OutsideWrites(""),
      {
          {CFG_COLOR_STYLE_NONE, ""},
          {CFG_COLOR_STYLE_GENTLE, "Gentle"},
          {CFG_COLOR_STYLE_STANDARD, "Standard"},
          {CFG_COLOR_STYLE_FLAMBOYANT, "Flamboyant"},
      });

PART(kMatrixSource, CFG_ANALOG_MATRIX_SOURCE,
     {
         FIELD(szControlID, "ControlID", Text),
         FIELD(nActive, "Active", Int),
         FIELD(szFormat, "Format", Text),
     });

} // namespace

TABLE(kChannelTitle, CFG_CHANNEL_TITLE_INFO,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(nSerialNo, "SerialNo", Int),
          FIELD(szName, "Name", Text),
      });

TABLE(kVideoOutputTitle, CFG_VIDEO_OUTPUT_TITLE_INFO,
      {
          FIELD(szName, "Name", Text),
      });

TABLE(kVideoOut, CFG_VIDEO_OUT_INFO,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(nMargin, "Margin", Int),
          FIELD(nBrightness, "Color/Brightness", Int),
          FIELD(nContrast, "Color/Contrast", Int),
          FIELD(nSaturation, "Color/Saturation", Int),
          FIELD(nHue, "Color/Hue", Int),
          FIELD(nWidth, "Mode/Width", Int),
          FIELD(nHeight, "Mode/Height", Int),
          FIELD(nBpp, "Mode/BPP", Int),
          FIELD(emFormat, "Mode/Format", Names(kOutputFormats)),
          FIELD(nRefreshRate, "Mode/RefreshRate", Int),
          FIELD(nIQIMode, "Mode/IQIMode", Int),
          FIELD(emScanFormat, "Mode/ScanFormat", Names(kScanFormats)),
      });

TABLE(kVideoColor, CFG_VIDEO_COLOR_INFO,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(nBrightness, "Brightness", Int),
          FIELD(nContrast, "Contrast", Int),
          FIELD(nSaturation, "Saturation", Int),
          FIELD(nHue, "Hue", Int),
          FIELD(nGamma, "Gamma", Int),
          FIELD(nChromaSuppress, "ChromaSuppress", Int),
          FIELD(emStyle, "Style", Names(kColorStyles)),
          FIELD(stuTimeSection, "TimeSection", TimeSection),
      });

TABLE(kVideoIn, CFG_VIDEO_IN_INFO,
      {
          FIELD(szType, "Type", Text),
          FIELD(szID, "ID", Text),
          FIELD(szName, "Name", Text),
          FIELD(szManufacturer, "Manufacturer", Text),
          FIELD(szModel, "Model", Text),
          FIELD(szAddress, "Address", Text),
          FIELD(szCivilCode, "CivilCode", Text),
          FIELD(szOwner, "Owner", Text),
          FIELD(nParental, "Parental", Int),
          FIELD(nEnable, "Enable", Int),
          FIELD(nSecrecy, "Secrecy", Int),
          FIELD(szUpperDevice, "UpperDevice/Device", Text),
          FIELD(nOutputChannel, "OutputChannel", Int),
          FIELD(szRegisterWay, "RegisterWay", Text),
          FIELD(szRemoteName, "RemoteName", Text),
          FIELD(szSignalType, "SignalType", Text),
      });

TABLE(kVideoInBoundary, CFG_VIDEO_IN_BOUNDARY_INFO,
      {
          FIELD(nLeft, "Left", Int),
          FIELD(nUp, "Up", Int),
          FIELD(nRight, "Right", Int),
          FIELD(nBottom, "Bottom", Int),
      });

TABLE(kSnapSchedule, CFG_SNAP_SCHEDULE_INFO,
      {
          FIELD(stuTimeSection, "TimeSection", SectionList),
      });

TABLE(kMovedDetect, CFG_MOVED_DETECT_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nSensitivity, "Sensitivity", Int),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
      });

TABLE(kAnalogMatrix, CFG_ANALOG_MATRIX_INFO,
      {
          FIELD(szName, "Name", Text),
          FIELD(szModel, "Model", Text),
          FIELD(szUserName, "UserName", Text),
          FIELD(szPassWord, "PassWord", Text),
          FIELD(nInputChannelCount, "InputChannelCount", Int),
          FIELD(nOutputChannelCount, "OutputChannelCount", Int),
          FIELD(szProtocol, "Protocol", Text),
          FIELD(nPortIndex, "CommPort/PortIndex", Int),
          FIELD(nAddress, "CommPort/Address", Int),
          FIELD(stuAttribute, "CommPort/Attribute", Record(kCommAttribute)),
          FIELD(nSourceCount),
          FIELD(stuInputChannelSource, "InputChannelSource", Record(kMatrixSource)).Count(AT(nSourceCount)),
      });

TABLE(kAnalogMatrixProtocol, CFG_ANALOG_MATRIX_PROTOCOL_INFO,
      {
          FIELD(szProtocol, "Protocol", Text),
      });

TABLE(kSiteSwitch, CFG_SITE_SWITCH_INFO,
      {
          FIELD(nMode, "Mode", Int),
          FIELD(nClose, "Close", Int),
          FIELD(nOpen, "Open", Int),
          FIELD(nLinkage, "Linkage", Int),
      });

TABLE(kVto, CFG_VTO_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szAddress, "Address", Text),
          FIELD(nPort, "Port", Int),
          FIELD(szMiddleNumber, "MiddleNumber", Text),
          FIELD(szMachineAddress, "MachineAddress", Text),
          FIELD(szType, "Type", Text),
          FIELD(szPassword, "Password", Text),
          FIELD(szUsername, "Username", Text),
          FIELD(szRingFile, "RingFile", Text),
          FIELD(nRingVolume, "RingVolume", Int),
      });

} // namespace orrery
