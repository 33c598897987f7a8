#include "display/MonitorWall.h"

#include "device/RemoteDevice.h"
#include "frame/record/SharedCodecs.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kSourceStreams, kFolded,
      {
          {CFG_SOURCE_STREAM_MAIN, "Main"},
          {CFG_SOURCE_STREAM_EXTRA1, "Extra1"},
          {CFG_SOURCE_STREAM_EXTRA2, "Extra2"},
          {CFG_SOURCE_STREAM_EXTRA3, "Extra3"},
      });

PART(kWallOutput, CFG_WALL_OUTPUT,
     {
         FIELD(nChannel, "Channel", Int),
         FIELD(szDevice, "Device", Text),
     });

PART(kWallBlock, CFG_WALL_BLOCK,
     {
         FIELD(nLine, "Line", Int),
         FIELD(nColumn, "Column", Int),
         FIELD(stuRect, "Rect", Record(kRect)),
         FIELD(szCompositeID, "CompositeID", Text),
         FIELD(nVideoOutputCount),
         FIELD(stuVideoOutputs, "VideoOutputs", Record(kWallOutput)).Count(AT(nVideoOutputCount)),
     });

#define SOURCE                                                                                                         \
    FIELD(bEnable, "Enable", Bool), FIELD(szDevice, "Device", Text), FIELD(nVideoChannel, "VideoChannel", Int),        \
        FIELD(emVideoStream, "VideoStream", Names(kSourceStreams)), FIELD(nAudioChannel, "AudioChannel", Int),         \
        FIELD(emAudioStream, "AudioStream", Names(kSourceStreams))

PART(kWindowSource, CFG_WINDOW_SOURCE, {SOURCE});

PART(kWindow, CFG_WINDOW_INFO,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nWindowID, "WindowID", Int),
         FIELD(bFreePosition, "FreePosition", Bool),
         FIELD(bDirectable, "Directable", Bool),
         FIELD(nZorder, "Zorder", Int),
         FIELD(stuRect, "Rect", Record(kRect)),
         FIELD(stuSource, "Source", Record(kWindowSource)),
     });

PART(kCompositeScene, CFG_COMPOSITE_SCENE,
     {
         FIELD(szName, nullptr, MemberName),
         FIELD(szControlID, "ControlID", Text),
         FIELD(emMode, "Mode", SplitName),
         FIELD(nWindowCount),
         FIELD(stuWindows, "Windows", Record(kWindow)).Count(AT(nWindowCount)),
     });

} // namespace

TABLE(kMonitorWall, CFG_MONITOR_WALL_INFO,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(szName, "Name", Text),
          FIELD(nGridLine, "GridLine", Int),
          FIELD(nGridColumn, "GridColumn", Int),
          FIELD(bEnable, "Enable", Bool),
          FIELD(szDesc, "Desc", Text),
          FIELD(nBlockCount),
          FIELD(stuBlocks, "Blocks", Record(kWallBlock)).Count(AT(nBlockCount)),
          FIELD(stuPowerSchedule, "PowerSchedule", SectionList),
      });

TABLE(kVideoOutputComposite, CFG_VIDEO_OUTPUT_COMPOSITE_INFO,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(nBlockIndex, "BlockIndex", Int),
          FIELD(szName, "Name", Text),
          FIELD(szMonitorWallName, "MonitorWallName", Text),
          FIELD(stuRect, "Rect", Record(kRect)),
      });

TABLE(kSplitSource, CFG_SPLIT_SOURCE,
      {
          FIELD(dwSize, nullptr, Size),
          SOURCE,
          FIELD(szControlID, "ControlID", Text),
          FIELD(stuDeviceInfo, "DeviceInfo", Record(kRemoteDevice)),
      });

TABLE(kMonitorWallCollection, CFG_MONITOR_WALL_COLLECTION_INFO,
      {
          FIELD(szControlID, "ControlID", Text),
          FIELD(stuMonitorWall, "MonitorWall", Record(kMonitorWall)),
          FIELD(nBlockCount),
          FIELD(stuBlocks, "Blocks", Record(kCompositeScene)).Keyed().Count(AT(nBlockCount)),
          FIELD(stuCompositeScene, "CompositeScene", Record(kCompositeScene)),
      });

TABLE(kMonitorTourOfWall, CFG_MONITOR_TOUR_INFO,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(bEnable, "Enable", Bool),
          FIELD(nInterval, "Interval", Int),
          FIELD(nMaskCount),
          FIELD(nMask, "Mask", Int).Count(AT(nMaskCount)),
          FIELD(nCollectionCount),
          FIELD(szCollections, "Collections", Text).Count(AT(nCollectionCount)),
      });

TABLE(kMonitorCollectionTour, CFG_MONITOR_COLLECTION_TOUR_INFO,
      {
          FIELD(nGroupCount),
          FIELD(szGroup, "Group", Text).Count(AT(nGroupCount)),
          FIELD(nInterval, "Interval", Int),
      });

} // namespace orrery
