#include "media/Tracker.h"

#include "frame/record/Engine.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kZooms, kFolded.UnknownLeaves(),
      {
          {CFG_TRACKER_ZOOM_STATIONARY, "StationaryExpectMultiple"},
          {CFG_TRACKER_ZOOM_IVS, "IVSAdaptive"},
          {CFG_TRACKER_ZOOM_EXPECT, "ExpectMultipleAdaptive"},
      });

NAMES(kTrackingModes, kFolded.UnknownLeaves(),
      {
          {CFG_TRACKING_ALARM, "AlarmTrack"},
          {CFG_TRACKING_MANUAL_OBJECT, "ManualSelectObjectTrack"},
          {CFG_TRACKING_AUTOMATIC_OBJECT, "AutomaticSelectObjectTrack"},
          {CFG_TRACKING_POINT, "SelectPointTrack"},
          {CFG_TRACKING_MIX, "MixTrack"},
          {CFG_TRACKING_SLAVE, "SlaveCameraSelfControl"},
      });

PART(kCameraType, CFG_CAMERA_TYPE,
     {
         FIELD(szType, "Type", Text),
         FIELD(szSceneType, "SceneType", Text),
     });

PART(kCameraList, CFG_CAMERA_INFO_LIST,
     {
         FIELD(nCount),
         FIELD(stuTypes, "", Record(kCameraType)).Count(AT(nCount)),
     });

PART(kPointPair, CFG_CALIBRATE_POINT_PAIR,
     {
         FIELD(nMasterPoint, "masterPoint", Int),
         FIELD(fSlavePoint, "slavePoint", Real),
     });

PART(kMatrix, CFG_CALIBRATE_MATRIX,
     {
         FIELD(szMasterSn, "MasterSN", Text).Only(OnlyType::String),
         FIELD(szSlaveSn, "SlaveSN", Text).Only(OnlyType::String),
         FIELD(nMatrixCount),
         FIELD(dwMatrix, "Matrix", UInt).Count(AT(nMatrixCount)),
         FIELD(nPointPairCount),
         FIELD(stuPairs, "pointPair", Record(kPointPair)).Count(AT(nPointPairCount)),
         FIELD(bExpectRatio),
         FIELD(fExpectRatio, "ExpectRatio", Real).SetsAndNeeds(AT(bExpectRatio)),
     });

PART(kMember, CFG_MASTER_SLAVE_MEMBER,
     {
         FIELD(nMasterType, "MasterType", Int),
         FIELD(nType, "Type", Int),
         FIELD(nMaster, "Master", Int),
         FIELD(nChannel, "Channel", Int),
         FIELD(szSerial, "Serial", Text),
         FIELD(nSlaver, "Slaver", Int),
         FIELD(nRegion, "Region", Int),
     });

} // namespace

TABLE(kMasterSlaveTracker, CFG_MASTER_SLAVE_GLOBAL_INFO,
      {
          FIELD(fMaxZoom, "MaxZoom", Int),
          FIELD(fMinZoom, "MinZoom", Int),
          FIELD(fExpectMultiple, "ExpectMultiple", Int),
          FIELD(fPollTrackTime, "PollTrackTime", Real),
          FIELD(fSelectPointTrackTime, "SelectPointTrackTime", Real),
          FIELD(fManualSelectObjectTrackTime, "ManualSelectObjectTrackTime", Real),
          FIELD(fExpectMultipleEngleX, "ExpectMultipleEngleX", Int),
          FIELD(fExpectMultipleEngleY, "ExpectMultipleEngleY", Int),
          FIELD(fTargetFaceSize, "TargetFaceSize", Int),
          FIELD(fMinFocus, "MinFocus", Int),
          FIELD(fMaxFocus, "MaxFocus", Int),
          FIELD(emZoomType, "ZoomType", Names(kZooms)),
          FIELD(emTrackingMode, "TrackingMode", Names(kTrackingModes)),
          FIELD(stuCamera, "CameraInfo/Camera", Record(kCameraList)),
          FIELD(stuDome, "CameraInfo/Dome", Record(kCameraList)),
          FIELD(nTrackZoomLevel, "TrackZoomLevel", Int),
          FIELD(bReturnPtzPreset, "ReturnPtzPreset", Bool),
      });

bool HasMatrixRoom(const std::byte* record, std::uint32_t) {
    return MEMBER(record, CFG_CALIBRATE_MATRIX_INFO, pstuMatrices) != nullptr
           && MEMBER(record, CFG_CALIBRATE_MATRIX_INFO, nMaxCount) != 0;
}

TABLE(kCalibrateMatrix, CFG_CALIBRATE_MATRIX_INFO,
      {
          FIELD(pstuMatrices, "", Record(kMatrix)).Capacity(AT(nMaxCount)).Count(AT(nReturnCount)).Zeroed(),
          FIELD(nMaxCount),
          FIELD(nReturnCount),
      });

TABLE(kMasterSlaveCaps, CFG_MASTER_SLAVE_CAPS,
      {
          FIELD(nModeCount),
          FIELD(emModes, "SupportedTrackingMode", Names(kTrackingModes)).Count(AT(nModeCount)),
          FIELD(stuCamera, "SupportedCameraInfo/Camera", Record(kCameraList)),
          FIELD(stuDome, "SupportedCameraInfo/Dome", Record(kCameraList)),
      });

TABLE(kMasterSlaveCollect, CFG_MASTER_SLAVE_COLLECT,
      {
          FIELD(nChannels, "", Int),
      });

TABLE(kMasterSlaveGroup, CFG_MASTER_SLAVE_GROUP_INFO,
      {
          FIELD(szName, "Name", Text),
          FIELD(nGroupCount),
          FIELD(stuGroup, "Group", Record(kMember)).Count(AT(nGroupCount)),
      });

TABLE(kMasterSlaveConfig, CFG_MASTER_SLAVE_CONFIG_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(bAutoTrack, "AutoTrack", Bool),
          FIELD(nAutoTrackTime, "AutoTrackTime", Int),
          FIELD(nLocateUnlockTime, "LocateUnlockTime", Int),
          FIELD(nPriorityArea, "PriorityArea", Int),
      });

} // namespace orrery
