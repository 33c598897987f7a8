#include "analyse/AnalyseSource.h"

#include "device/RemoteDevice.h"
#include "frame/record/Engine.h"

#include <algorithm>

namespace orrery {

using namespace record;

namespace {

NAMES(kStreams, kFolded,
      {
          {CFG_ANALYSE_STREAM_SNAPSHOT, "Snapshot"},
          {CFG_ANALYSE_STREAM_MAIN, "Main"},
          {CFG_ANALYSE_STREAM_EXTRA1, "Extra1"},
          {CFG_ANALYSE_STREAM_EXTRA2, "Extra2"},
          {CFG_ANALYSE_STREAM_EXTRA3, "Extra3"},
          {CFG_ANALYSE_STREAM_OBJECT, "Object"},
      });

NAMES(kSources, kFolded,
      {
          {CFG_ANALYSE_SOURCE_REAL, "RealStream"},
          {CFG_ANALYSE_SOURCE_FILE, "FileStream"},
      });

NAMES(kFiles, kFolded,
      {
          {CFG_ANALYSE_FILE_RECORD, "Record"},
          {CFG_ANALYSE_FILE_PICTURE, "Picture"},
      });

NAMES(kWholes, kFolded,
      {
          {CFG_ANALYSE_WHOLE_DIGITAL, "Digital"},
          {CFG_ANALYSE_WHOLE_ANALOG, "Anolog"},
          {CFG_ANALYSE_WHOLE_BOTH, "Both"},
      });

NAMES(kTrackModes, kFolded,
      {
          {CFG_TRACK_MODE_IN_DOOR, "InDoor"},
          {CFG_TRACK_MODE_OUT_DOOR, "OutDoor"},
          {CFG_TRACK_MODE_CLASSROOM, "Classroom"},
      });

NAMES(kTrackPriors, kFolded,
      {
          {CFG_TRACK_PRIOR_DETECT, "Detect"},
          {CFG_TRACK_PRIOR_SWITCH, "Switch"},
      });

NAMES(kTrackDirections, kFolded,
      {
          {CFG_TRACK_APPROACH, "Approach"},
          {CFG_TRACK_LEAVE, "Leave"},
          {CFG_TRACK_BOTH, "Both"},
          {CFG_TRACK_EAST_TO_WEST, "EastToWest"},
          {CFG_TRACK_WEST_TO_EAST, "WestToEast"},
          {CFG_TRACK_SOUTH_TO_NORTH, "SouthToNorth"},
          {CFG_TRACK_NORTH_TO_SOUTH, "NorthToSouth"},
          {CFG_TRACK_OTHER, "Other"},
      });

constexpr std::uint16_t kMostDeviceBytes = 192;

bool IsFile(const std::byte* source) {
    return MEMBER(source, CFG_ANALYSESOURCE_INFO, nSourceType) == CFG_ANALYSE_SOURCE_FILE;
}

// ---- Snapshots: many are written, but one is read ----

PART(kSnapEntry, CFG_SNAPSOURCE_ENTRY,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(szDevice, "Device", Text),
         FIELD(nChannel, "Channel", Int),
         FIELD(nLinkVideoChannel, "LinkVideoChannel", Int),
     });

void ReadSnapEntry(const Field& field, const json::Value& value, std::byte* record, ReadCall& call) {
    StoreSlot(field.count, record, 1);
    ReadRecord(kSnapEntry, value, record + field.offset, call);
}

void WriteSnapEntries(const Field& field, const std::byte* record, WriteCall& call) {
    const std::int64_t count = std::min<std::int64_t>(LoadSlot(field.count, record), ORRERY_SNAP_SOURCES);
    const std::byte* const first = record + field.offset;
    if (count == 1) return WriteRecord(kSnapEntry, first, call);
    call.out.BeginArray();
    for (std::int64_t i = 0; i < count; ++i)
        WriteRecord(kSnapEntry, first + static_cast<std::size_t>(i) * sizeof(CFG_SNAPSOURCE_ENTRY), call);
    call.out.EndArray();
}

constexpr CustomCodec kSnapEntries{ReadSnapEntry, WriteSnapEntries,
                                   R"({"Channel":3,"Device":"a","Enable":true,"LinkVideoChannel":4})"};

// ---- Tracking ----

PART(kTourStop, CFG_TOUR_STOP,
     {
         FIELD(nPresetId, "PresetId", Int),
         FIELD(nDuration, "Duration", Int),
     });

PART(kPositionLimit, CFG_POSITION_LIMIT,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nType, "Type", Int),
         FIELD(nTop, "Top", Int),
         FIELD(nBottom, "Bottom", Int),
         FIELD(nLeft, "Left", Int),
         FIELD(nRight, "Right", Int),
     });

PART(kTrackScene, CFG_TRACK_SCENE,
     {
         FIELD(nPresetId, "PresetId", Int),
         FIELD(szName, "Name", Text),
         FIELD(nDuration, "Duration", Int),
         FIELD(dMaxZoom, "MaxZoom", Real),
         FIELD(nDirection, "Direction", Names(kTrackDirections)),
         FIELD(stuPositionLimit, "PositionLimit", Record(kPositionLimit)),
         FIELD(nRegression, "Regression", Int),
     });

} // namespace

TABLE(kAnalyseSource, CFG_ANALYSESOURCE_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nChannel, "Channel", Int),
          FIELD(nStream, "Stream", Names(kStreams)),
          FIELD(szDevice, "Device", Text).FirstBytes(kMostDeviceBytes),
          FIELD(abDeviceInfo),
          FIELD(stuDeviceInfo, "DeviceInfo", Record(kRemoteDevice)).SetsAndNeeds(AT(abDeviceInfo)),
          FIELD(nSourceType, "SourceType", Names(kSources)),
          FIELD(szFilePath, "FileStreamInfo/FilePath", Text).WriteIf(IsFile),
          FIELD(nFileStreamType, "FileStreamInfo/FileStreamType", Names(kFiles)).WriteIf(IsFile),
      });

TABLE(kAnalyseWhole, CFG_ANALYSEWHOLE_INFO,
      {
          FIELD(nVideoChannelType, "VideoChannelType", Names(kWholes)),
      });

TABLE(kSnapSource, CFG_SNAPSOURCE_INFO,
      {
          FIELD(nCount),
          FIELD(stuEntries, "", Custom(kSnapEntries)).PointsTo(kSnapEntry).Count(AT(nCount)),
      });

TABLE(kGeneral, CFG_GENERAL_INFO,
      {
          FIELD(nLocalNo, "LocalNo", Int),
          FIELD(szMachineName, "MachineName", Text),
          FIELD(szMachineAddress, "MachineAddress", Text),
          FIELD(szMachineGroup, "MachineGroup", Text),
          FIELD(szMachineID, "MachineID", Text).ReadOnly(),
          FIELD(nLockLoginTimes, "LockLoginTimes", Int),
          FIELD(nLoginFailLockTime, "LoginFailLockTime", Int),
          FIELD(bLockLoginEnable, "LockLoginEnable", Bool),
      });

TABLE(kRainBrush, CFG_RAINBRUSH_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(bySpeedRate, "SpeedRate", Int),
          FIELD(stuTimeSchedule, "TimeSchedule", TimeSection),
          FIELD(nInterval, "Interval", UInt),
          FIELD(bProtectEnable, "ProtectEnable", Bool),
          FIELD(nProtectTime, "ProtectTime", UInt),
      });

TABLE(kIntelliTrackScene, CFG_INTELLITRACKSCENE_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nType, "Type", Int),
          FIELD(dMaxZoom, "MaxZoom", Real),
          FIELD(szCategory, "Category", Text),
          FIELD(dCameraHeight, "CameraHeight", Real),
          FIELD(nIdleDelay, "IdleDelay", Int),
          FIELD(nTrackMode, "TrackMode", Names(kTrackModes)),
          FIELD(nSingleAlarmDelay, "SingleScene/AlarmDelay", Int),
          FIELD(nSinglePresetId, "SingleScene/PresetId", Int),
          FIELD(nPriorMode, "MultiScene/PriorMode", Names(kTrackPriors)),
          FIELD(nMultiAlarmDelay, "MultiScene/AlarmDelay", Int),
          FIELD(nTourPathNum),
          FIELD(stuTourPath, "MultiScene/TourPath", Record(kTourStop)).Count(AT(nTourPathNum)),
          FIELD(nFullPresetId, "FullScene/PresetId", Int),
          FIELD(nFullAlarmDelay, "FullScene/AlarmDelay", Int),
          FIELD(nFullDuration, "FullScene/Duration", Int),
          FIELD(nSceneNum),
          FIELD(stuScenes, "Scene", Record(kTrackScene)).Count(AT(nSceneNum)),
      });

void ClearAnalyseSource(std::byte* record) {
    std::byte* const device = record + offsetof(CFG_ANALYSESOURCE_INFO, stuDeviceInfo);
    const auto inputs = MEMBER(device, CFG_REMOTE_DEVICE_INFO, pVideoInputs);
    const auto room = MEMBER(device, CFG_REMOTE_DEVICE_INFO, nMaxVideoInputs);
    std::memset(record, 0, sizeof(CFG_ANALYSESOURCE_INFO));
    SET_MEMBER(device, CFG_REMOTE_DEVICE_INFO, pVideoInputs, inputs);
    SET_MEMBER(device, CFG_REMOTE_DEVICE_INFO, nMaxVideoInputs, room);
}

bool AreSnapSourcesFew(const std::byte* record, std::uint32_t) {
    return MEMBER(record, CFG_SNAPSOURCE_INFO, nCount) <= ORRERY_SNAP_SOURCES;
}

} // namespace orrery
