// The scene of an analysis channel, and those that are numbered.
#pragma once

#include "analyse/Calibration.h"
#include "analyse/SceneDetail.h"

namespace orrery {

namespace scenes {

NAMES(kDepths, kFolded,
      {
          {CFG_DEPTH_NONE, ""},
          {CFG_DEPTH_NORMAL, "Normal"},
          {CFG_DEPTH_FAR, "Far"},
          {CFG_DEPTH_MIDDLE, "Middle"},
          {CFG_DEPTH_NEAR, "Near"},
      });

NAMES(kSceneSwitches, kFolded.UnknownLeaves(),
      {
          {CFG_SCENE_SWITCH_BY_COLOR, "ByColor"},
          {CFG_SCENE_SWITCH_BY_BRIGHTNESS, "ByBrightness"},
          {CFG_SCENE_SWITCH_BY_POS, "ByPos"},
      });

NAMES(kCompatibleModes, kFolded.Unknown(CFG_TRAFFIC_RULE_OTHER),
      {
          {CFG_TRAFFIC_RULE_OLD, "OldTrafficRule"},
          {CFG_TRAFFIC_RULE_NEW, "NewTrafficRule"},
      });

// ---- Periods ----

PART(kClockTime, CFG_CLOCK_TIME,
     {
         FIELD(nHour),
         FIELD(nMinute),
         FIELD(nSecond),
     });

// Two times of day: begin and end.
extern const CustomCodec kClockTimes;

PART(kTimePeriod, CFG_TIME_PERIOD_INFO,
     {
         FIELD(stuDay, "Day", Custom(kClockTimes)).PointsTo(kClockTime),
         FIELD(stuNight, "Night", Custom(kClockTimes)).PointsTo(kClockTime),
         FIELD(nSwitchMode, "SwitchMode", Names(kSceneSwitches)),
         FIELD(nLongitude, "Longitude", Int),
         FIELD(nLatitude, "Latitude", Int),
     });

// ---- A numbered scene ----

extern const CustomCodec kDetailOfScene;
// What the type settles, once it is known.
void ReadSceneOfType(const json::Value& scene, std::byte* record, ReadCall& call);
// Read by ReadSceneOfType; never written.
extern const CustomCodec kReadOfType;

PART(kAnalyseScene, CFG_ANALYSE_SCENE_INFO,
     {
         FIELD(szType, "Type", Text),
         FIELD(stuDetail, "Detail", Custom(kDetailOfScene)).PointsTo(kSceneDetail),
         FIELD(nDepth, "Depth", Names(kDepths)).Always(),
         FIELD(nPtzPresetId, "PtzPresetId", Int),
         FIELD(nTypeListNum),
         FIELD(szTypeList, "TypeList", Text).Count(AT(nTypeListNum)).WriteEmpty(Empty::Array),
         FIELD(stuSubDetail, "Detail", Custom(kReadOfType)).PointsTo(kSceneSubDetail).ReadOnly(),
     })
    .AfterRead(ReadSceneOfType);

// ---- The whole ----

extern const CustomCodec kDetailOfGlobal;
extern const CustomCodec kCustomData;
// What is numbered: "Scene1" and so on, all of them by one row each.
extern const CustomCodec kNumberedScenes;
extern const CustomCodec kNumberedPeriods;
extern const CustomCodec kNumberedAreas;
void ReadGlobalOfTypes(const json::Value& global, std::byte* record, ReadCall& call);
Asides* KeepOfGlobal(std::byte* record, Arena& arena);

PART(kAnalyseGlobal, CFG_ANALYSEGLOBAL_INFO,
     {
         FIELD(szSceneType, "Scene/Type", Text),
         FIELD(stuDetail, "Scene/Detail", Custom(kDetailOfGlobal)).PointsTo(kSceneDetail),
         FIELD(nStaffNum),
         FIELD(stuStaffs, "Scene/Staffs", Record(kStaff)).Count(AT(nStaffNum)).NullElement(Nulls::LeaveHole),
         FIELD(nCalibrateAreaNum),
         FIELD(stuCalibrateAreas, "CalibrateArea", Record(kCalibrateArea)).Count(AT(nCalibrateAreaNum)),
         FIELD(abJitter),
         FIELD(abDejitter),
         FIELD(nJitter, "Scene/Jitter", Int).SetsAndNeeds(AT(abJitter)),
         FIELD(bDejitter, "Scene/Dejitter", Bool).SetsAndNeeds(AT(abDejitter)),
         FIELD(abCompatibleMode),
         FIELD(nCompatibleMode, "Scene/CompatibleModeOfTrafficRule", Names(kCompatibleModes))
             .SetsAndNeeds(AT(abCompatibleMode)),
         FIELD(nCustomDataLen),
         FIELD(byCustomData, "Scene/CustomData", Custom(kCustomData)).Count(AT(nCustomDataLen)),
         FIELD(stuDayPeriods, "TimePeriod/Day", Custom(kClockTimes)).PointsTo(kClockTime),
         FIELD(stuNightPeriods, "TimePeriod/Night", Custom(kClockTimes)).PointsTo(kClockTime),
         FIELD(nTimePeriodMax),
         FIELD(nTimePeriodNum),
         FIELD(pTimePeriods, "TimePeriod1", Custom(kNumberedPeriods))
             .PointsTo(kTimePeriod)
             .Capacity(AT(nTimePeriodMax))
             .Count(AT(nTimePeriodNum)),
         FIELD(nCalibrateMax),
         FIELD(nCalibrateNum),
         FIELD(pCalibrates, "CalibrateArea1", Custom(kNumberedAreas))
             .PointsTo(kCalibrateAreas)
             .Capacity(AT(nCalibrateMax))
             .Count(AT(nCalibrateNum)),
         FIELD(nSwitchMode, "TimePeriod/SwitchMode", Names(kSceneSwitches)),
         FIELD(nSceneNum),
         FIELD(stuScenes, "Scene1", Custom(kNumberedScenes)).PointsTo(kAnalyseScene).Count(AT(nSceneNum)),
         FIELD(nTypeListNum),
         FIELD(szTypeList, "Scene/TypeList", Text).Count(AT(nTypeListNum)).WriteEmpty(Empty::Array),
         FIELD(nDepth, "Scene/Depth", Names(kDepths)),
         FIELD(nPtzPresetId, "Scene/PtzPresetId", Int),
         FIELD(nLongitude, "TimePeriod/Longitude", Int),
         FIELD(nLatitude, "TimePeriod/Latitude", Int),
     })
    .AfterRead(ReadGlobalOfTypes)
    .KeepsAside(KeepOfGlobal);

} // namespace scenes

using scenes::kAnalyseGlobal;
using scenes::kAnalyseScene;

} // namespace orrery
