// The modules of an analysis channel.
#pragma once

#include "analyse/RuleParts.h"
#include "frame/record/Engine.h"

#include "orrery/analyse_modules.h"

namespace orrery {

namespace modules {

using namespace record;
using rules::kCorner;

// As it is read: the fourth kind is told elsewhere.
using sizefilter::kFilters;
// As it is written.
NAMES(kWrittenFilters, kFolded,
      {
          {CFG_FILTER_BY_LENGTH, "ByLength"},
          {CFG_FILTER_BY_AREA, "ByArea"},
          {CFG_FILTER_BY_WIDTH_HEIGHT, "ByWidthHeight"},
          {CFG_FILTER_BY_RATIO, "ByRatio"},
      });

NAMES(kBackgrounds, kFolded,
      {
          {CFG_BACKGROUND_NORMAL, "Normal"},
          {CFG_BACKGROUND_HIGHLIGHT, "Highlight"},
      });

NAMES(kSpecialProperties, kFolded,
      {
          {CFG_SPECIAL_HIGHLIGHT, "Highlight"},
          {CFG_SPECIAL_REGULAR_BLINK, "RegularBlink"},
          {CFG_SPECIAL_IRREGULAR_BLINK, "IrregularBlink"},
      });

// Tractors stand twice, with plates of two kinds; devices of today mean the second.
NAMES(kCategories, kFolded.LastWins(),
      {
          {CFG_CATEGORY_NONE, ""},
          {CFG_CATEGORY_MOTOR, "Motor"},
          {CFG_CATEGORY_NON_MOTOR, "Non-Motor"},
          {CFG_CATEGORY_BUS, "Bus"},
          {CFG_CATEGORY_BICYCLE, "Bicycle"},
          {CFG_CATEGORY_MOTORCYCLE, "Motorcycle"},
          {CFG_CATEGORY_UNLICENSED_MOTOR, "UnlicensedMotor"},
          {CFG_CATEGORY_LARGE_CAR, "LargeCar"},
          {CFG_CATEGORY_MICRO_CAR, "MicroCar"},
          {CFG_CATEGORY_EMBASSY_CAR, "EmbassyCar"},
          {CFG_CATEGORY_MARGINAL_CAR, "MarginalCar"},
          {CFG_CATEGORY_AREAOUT_CAR, "AreaoutCar"},
          {CFG_CATEGORY_FOREIGN_CAR, "ForeignCar"},
          {CFG_CATEGORY_DUAL_TRI_WHEEL_MOTORCYCLE, "DualTriWheelMotorcycle"},
          {CFG_CATEGORY_LIGHT_MOTORCYCLE, "LightMotorcycle"},
          {CFG_CATEGORY_EMBASSY_MOTORCYCLE, "EmbassyMotorcycle"},
          {CFG_CATEGORY_MARGINAL_MOTORCYCLE, "MarginalMotorcycle"},
          {CFG_CATEGORY_AREAOUT_MOTORCYCLE, "AreaoutMotorcycle"},
          {CFG_CATEGORY_FOREIGN_MOTORCYCLE, "ForeignMotorcycle"},
          {CFG_CATEGORY_FARM_TRANSMIT_CAR, "FarmTransmitCar"},
          {CFG_CATEGORY_TRACTOR_OLD, "Tractor"},
          {CFG_CATEGORY_TRAILER, "Trailer"},
          {CFG_CATEGORY_COACH_CAR, "CoachCar"},
          {CFG_CATEGORY_COACH_MOTORCYCLE, "CoachMotorcycle"},
          {CFG_CATEGORY_TRIAL_CAR, "TrialCar"},
          {CFG_CATEGORY_TRIAL_MOTORCYCLE, "TrialMotorcycle"},
          {CFG_CATEGORY_TEMPORARY_ENTRY_CAR, "TemporaryEntryCar"},
          {CFG_CATEGORY_TEMPORARY_ENTRY_MOTORCYCLE, "TemporaryEntryMotorcycle"},
          {CFG_CATEGORY_TEMPORARY_STEER_CAR, "TemporarySteerCar"},
          {CFG_CATEGORY_PASSENGER_CAR, "PassengerCar"},
          {CFG_CATEGORY_LARGE_TRUCK, "LargeTruck"},
          {CFG_CATEGORY_MID_TRUCK, "MidTruck"},
          {CFG_CATEGORY_SALOON_CAR, "SaloonCar"},
          {CFG_CATEGORY_MICROBUS, "Microbus"},
          {CFG_CATEGORY_MICRO_TRUCK, "MicroTruck"},
          {CFG_CATEGORY_TRICYCLE, "Tricycle"},
          {CFG_CATEGORY_PASSERBY, "Passerby"},
          {CFG_CATEGORY_OIL_TANK_TRUCK, "OilTankTruck"},
          {CFG_CATEGORY_TANK_CAR, "TankCar"},
          {CFG_CATEGORY_SUV, "SUV"},
          {CFG_CATEGORY_MPV, "MPV"},
          {CFG_CATEGORY_NORMAL, "Normal"},
          {CFG_CATEGORY_YELLOW, "Yellow"},
          {CFG_CATEGORY_DOUBLE_YELLOW, "DoubleYellow"},
          {CFG_CATEGORY_POLICE, "Police"},
          {CFG_CATEGORY_ARMED, "Armed"},
          {CFG_CATEGORY_MILITARY, "Military"},
          {CFG_CATEGORY_DOUBLE_MILITARY, "DoubleMilitary"},
          {CFG_CATEGORY_SAR, "SAR"},
          {CFG_CATEGORY_TRAINNING, "Trainning"},
          {CFG_CATEGORY_PERSONAL, "Personal"},
          {CFG_CATEGORY_AGRI, "Agri"},
          {CFG_CATEGORY_EMBASSY, "Embassy"},
          {CFG_CATEGORY_MOTO, "Moto"},
          {CFG_CATEGORY_TRACTOR, "Tractor"},
          {CFG_CATEGORY_OFFICIAL_CAR, "OfficialCar"},
          {CFG_CATEGORY_PERSONAL_CAR, "PersonalCar"},
          {CFG_CATEGORY_WAR_CAR, "WarCar"},
          {CFG_CATEGORY_OTHER, "Other"},
          {CFG_CATEGORY_CIVILAVIATION, "Civilaviation"},
          {CFG_CATEGORY_BLACK, "Black"},
          {CFG_CATEGORY_PURE_NEW_ENERGY_MICRO_CAR, "PureNewEnergyMicroCar"},
          {CFG_CATEGORY_MIXED_NEW_ENERGY_MICRO_CAR, "MixedNewEnergyMicroCar"},
          {CFG_CATEGORY_PURE_NEW_ENERGY_LARGE_CAR, "PureNewEnergyLargeCar"},
          {CFG_CATEGORY_MIXED_NEW_ENERGY_LARGE_CAR, "MixedNewEnergyLargeCar"},
      });

#define SHAPE(count, points, key)                                                                                      \
    FIELD(count), FIELD(points, key, Record(kCorner))                                                                  \
                      .Count(AT(count))                                                                                \
                      .NullElement(Nulls::LeaveHole)                                                                   \
                      .RefusedElement(Nulls::LeaveHole)

PART(kExcludeRegion, CFG_EXCLUDE_REGION,
     {
         SHAPE(nPointNum, stuPoints, ""),
     });

PART(kObjectFilter, CFG_OBJECT_FILTER,
     {
         FIELD(szObjectType, "ObjectType", Text),
         FIELD(stuSizeFilter, "SizeFilter", Record(kSizeFilter)),
     });

PART(kSpecialRegion, CFG_SPECIAL_REGION,
     {
         SHAPE(nRegionPoint, stuRegion, "SpecialRegion"),
         FIELD(nPropertyNum),
         FIELD(nProperties, "Property", Names(kSpecialProperties))
             .Count(AT(nPropertyNum))
             .NullElement(Nulls::LeaveHole)
             .WriteSkipped(Skipped::Hole),
     });
#undef SHAPE

// What depends on several keys: the fourth kind of filter, and whether an image's size is there without numbers.
void FinishModule(const json::Value& module, std::byte* record, ReadCall& call);

#define FILTER(member, key, ...) FIELD(member, "SizeFilter/" key, __VA_ARGS__)
#define BOXES(count, boxes, key)                                                                                       \
    FIELD(count), FILTER(boxes, key, Record(sizefilter::kCalibrateBox)).Count(AT(count)).NullElement(Nulls::LeaveHole)
#define BEHIND(flag, behind, member, key, ...)                                                                         \
    FILTER(member, key, __VA_ARGS__).SetsAndNeeds(AT(flag)).ReadIf(AT(behind))
#define FLAGGED(flag, member, key, ...) FIELD(flag), FIELD(member, key, __VA_ARGS__).SetsAndNeeds(AT(flag))

PART(kModule, CFG_MODULE_INFO,
     {
         FIELD(szObjectType, "ObjectType", Text),
         FIELD(bSnapShot, "SnapShot", Bool),
         FIELD(bySensitivity, "Sensitivity", Int),
         FLAGGED(abMeasureMode, byMeasureMode, "SizeFilter/MeasureMode", Names(sizefilter::kMeasures)),
         FIELD(nDetectPoint),
         FIELD(stuDetectRegion, "DetectRegion", Record(kCorner)).Count(AT(nDetectPoint)),
         FIELD(nTrackPoint),
         FIELD(stuTrackRegion, "TrackRegion", Record(kCorner)).Count(AT(nTrackPoint)),
         FIELD(abFilterType),
         FIELD(byFilterType, "SizeFilter/Type", Names(kFilters)).SetsAndNeeds(AT(abFilterType)).ReadOnly(),
         FIELD(byFilterType, "SizeFilter/Type", Names(kWrittenFilters)).WriteIf(AT(abFilterType)).WriteOnly().Alias(),
         FLAGGED(abBackgroud, byBackgroud, "Backgroud", Names(kBackgrounds)),
         FLAGGED(abBySize, bBySize, "SizeFilter/BySize", Bool),
         FIELD(abMinSize),
         FIELD(abMaxSize),
         FILTER(stuMinSize, "MinSize", Record(sizefilter::kBound)).SetsAndNeeds(AT(abMinSize)),
         FILTER(stuMaxSize, "MaxSize", Record(sizefilter::kBound)).SetsAndNeeds(AT(abMaxSize)),
         FIELD(nExcludeRegionNum),
         FIELD(stuExcludeRegions, "ExcludeRegion", Record(kExcludeRegion)).Count(AT(nExcludeRegionNum)),
         BOXES(nCalibrateBoxNum, stuCalibrateBoxs, "CalibrateBoxs"),
         FLAGGED(abAccuracy, byAccuracy, "Accuracy", Int),
         FLAGGED(abMovingStep, byMovingStep, "MovingStep", Int),
         FLAGGED(abScalingFactor, byScalingFactor, "ScalingFactor", Int),
         FLAGGED(abDetectBalance, nDetectBalance, "DetectBalance", Int),
         FIELD(abByRatio),
         FIELD(abMinRatio),
         FIELD(abMaxRatio),
         FIELD(abMinRatioSize),
         FIELD(abMaxRatioSize),
         FILTER(bByRatio, "ByRatio", Bool).SetsAndNeeds(AT(abByRatio)),
         BEHIND(abMinRatio, abByRatio, dMinRatio, "MinRatio", Real),
         BEHIND(abMaxRatio, abByRatio, dMaxRatio, "MaxRatio", Real),
         BEHIND(abMinRatioSize, abByRatio, stuMinRatioSize, "MinRatioSize", Record(sizefilter::kArea)),
         BEHIND(abMaxRatioSize, abByRatio, stuMaxRatioSize, "MaxRatioSize", Record(sizefilter::kArea)),
         FIELD(abByArea),
         FIELD(abMinArea),
         FIELD(abMaxArea),
         FIELD(abMinAreaSize),
         FIELD(abMaxAreaSize),
         FILTER(bByArea, "ByArea", Bool).SetsAndNeeds(AT(abByArea)),
         BEHIND(abMinArea, abByArea, fMinArea, "MinArea", Real),
         BEHIND(abMaxArea, abByArea, fMaxArea, "MaxArea", Real),
         BEHIND(abMinAreaSize, abByArea, stuMinAreaSize, "MinAreaSize", Record(sizefilter::kArea)),
         BEHIND(abMaxAreaSize, abByArea, stuMaxAreaSize, "MaxAreaSize", Record(sizefilter::kArea)),
         BOXES(nAreaCalibrateBoxNum, stuAreaCalibrateBoxs, "AreaCalibrateBoxs"),
         BOXES(nRatioCalibrateBoxNum, stuRatioCalibrateBoxs, "RatioCalibrateBoxs"),
         FIELD(bAntiDisturbance, "AntiDisturbance", Bool),
         FIELD(bBacklight, "Backlight", Bool),
         FIELD(bShadow, "Shadow", Bool),
         FIELD(bContourAssistantTrack, "ContourAssistantTrack", Bool),
         FIELD(nPtzPresetId, "PtzPresetId", Int),
         FIELD(nObjectFilterNum),
         FIELD(stuObjectFilters, "ObjectFilter", Record(kObjectFilter)).Count(AT(nObjectFilterNum)),
         FIELD(abObjectImageSize, "ObjectImageSize", Presence),
         FIELD(nImageWidth, "ObjectImageSize/Width", Real).WriteIf(AT(abObjectImageSize)),
         FIELD(nImageHeight, "ObjectImageSize/Height", Real).WriteIf(AT(abObjectImageSize)),
         FIELD(nSpecialRegionNum),
         FIELD(stuSpecialRegions, "SpecialDetectRegion", Record(kSpecialRegion)).Count(AT(nSpecialRegionNum)),
         FIELD(nAttributeNum),
         FIELD(szAttributes, "Attributes", RawText).Count(AT(nAttributeNum)),
         FLAGGED(abPlateAnalyseMode, nPlateAnalyseMode, "PlateAnalyseMode", Int),
         FIELD(nCategoryNum),
         FIELD(nCategories, "Category", Names(kCategories)).Count(AT(nCategoryNum)).WriteSkipped(Skipped::Hole),
         FIELD(szType, "Type", Text),
     })
    .AfterRead(FinishModule);
#undef FLAGGED
#undef BEHIND
#undef BOXES
#undef FILTER

} // namespace modules

using modules::kModule;

// "VideoAnalyseModule"
PART(kAnalyseModules, CFG_ANALYSEMODULES_INFO,
     {
         FIELD(nModuleNum),
         FIELD(stuModules, "", Record(kModule)).Count(AT(nModuleNum)).WriteEmpty(record::Empty::Array),
     });
bool AreModulesFew(const std::byte* record, std::uint32_t size);

} // namespace orrery
