#include "later/Cameras.h"

#include "analyse/EventTypeRegistry.h"
#include "frame/record/Engine.h"
#include "media/CommAttribute.h"

#include "orrery/event_types.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kMaskShapes, kFolded.OutsideWrites(""),
      {
          {CFG_PRIVACY_SHAPE_UNKNOWN, ""},
          {CFG_PRIVACY_SHAPE_RECT, "Rect"},
          {CFG_PRIVACY_SHAPE_POLYGON, "Polygon"},
      });

NAMES(kPowerUpFunctions, kFolded.OutsideWrites(""),
      {
          {CFG_POWER_UP_UNKNOWN, ""},
          {CFG_POWER_UP_AUTO, "Auto"},
          {CFG_POWER_UP_PRESET, "Preset"},
          {CFG_POWER_UP_SCAN, "Scan"},
          {CFG_POWER_UP_TOUR, "Tour"},
          {CFG_POWER_UP_PATTERN, "Pattern"},
      });

NAMES(kCommandSources, kFolded.OutsideWrites("software"),
      {
          {CFG_PTZ_DEVICE_SOFTWARE, "software"},
          {CFG_PTZ_DEVICE_HARDWARE, "hardware"},
      });

bool IsRect(const std::byte* mask) {
    return MEMBER(mask, CFG_PRIVACY_MASK, emShapeType) == CFG_PRIVACY_SHAPE_RECT;
}
bool IsPolygon(const std::byte* mask) {
    return MEMBER(mask, CFG_PRIVACY_MASK, emShapeType) == CFG_PRIVACY_SHAPE_POLYGON;
}

PART(kMaskCorner, CFG_POLYGON,
     {
         FIELD(nX, "", Int),
         FIELD(nY, "", Int),
     })
    .As(Shape::LongTuple);

PART(kPrivacyMask, CFG_PRIVACY_MASK,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(stuPosition, "Position", Record(kPoint)),
         FIELD(stuPosition, "Postion", Record(kPoint)).ReadOnly().Alias(),
         FIELD(emShapeType, "ShapeType", Names(kMaskShapes)),
         FIELD(nPolygonNum),
         FIELD(stuPolygon, "Polygon", Record(kMaskCorner))
             .Count(AT(nPolygonNum))
             .NullElement(Nulls::LeaveHole)
             .RefusedElement(Nulls::LeaveHole)
             .WriteIf(IsPolygon),
         FIELD(stuRect, "Rect", Record(kRect)).WriteIf(IsRect),
         FIELD(stuColor, "Color", Record(kColor)),
         FIELD(nMosaic, "Mosaic", Int),
     });

// The names of analysis rules are kept by hash, for the events' sake, and not in a name table.
void ReadRuleType(const Field&, const json::Value& value, std::byte* rule, ReadCall&) {
    SET_MEMBER(rule, CFG_SCENE_SNAP_RULE, emRuleType, RuleCodeFromName(value.asString()));
}
// A code without a name is no rule, and not "All" of them.
void WriteRuleType(const Field&, const std::byte* rule, WriteCall& call) {
    const std::int32_t code = MEMBER(rule, CFG_SCENE_SNAP_RULE, emRuleType);
    const std::string_view name = RuleNameOf(code, false);
    const bool isNamed = code == ORRERY_RULE_ALL || name != RuleNameOf(ORRERY_RULE_ALL, false);
    call.Key();
    call.out.String(isNamed ? name : std::string_view());
}
constexpr CustomCodec kRuleType{ReadRuleType, WriteRuleType, "\"CrossLineDetection\""};

PART(kSceneSnapRule, CFG_SCENE_SNAP_RULE,
     {
         FIELD(emRuleType, "RuleType", Custom(kRuleType)),
         FIELD(nRepeatInterval, "RepeatInterval", Int),
         FIELD(nSingleInterval, "SingleInterval", Int),
         FIELD(nSnapShotTypeCount),
         FIELD(szSnapShotType, "SnapShotType", Text).Count(AT(nSnapShotTypeCount)),
     });

// The caller's record is not cleared, and a value that is no list leaves no count.
void CountWindows(const json::Value& value, std::byte* record, ReadCall&) {
    if (value["Combination"].type() != json::Type::Array)
        SET_MEMBER(record, CFG_FREE_COMBINATION_INFO, nCombinationCount, 0);
}

} // namespace

TABLE(kVideoMosaic, CFG_VIDEO_MOSAIC_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nRegions, "Regions", Int),
          FIELD(nMosaic, "Mosaic", Int),
      });

TABLE(kTrafficSnapMosaic, CFG_TRAFFIC_SNAP_MOSAIC_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(bUploadNormalSnap, "UploadNormalSnap", Bool),
          FIELD(nPicCompressRate, "PicCompressRate", Int),
      });

TABLE(kPrivacyMasking, CFG_PRIVACY_MASKING_INFO,
      {
          FIELD(nCount),
          FIELD(stuMasks, "", Record(kPrivacyMask)).Count(AT(nCount)),
      });

TABLE(kOsdSysAbnormal, CFG_OSD_SYS_ABNORMAL_INFO,
      {
          FIELD(stuBackColor, "BackColor", Record(kColor)),
          FIELD(bEncodeBlend, "EncodeBlend", Bool).Always(),
          FIELD(stuFrontColor, "FrontColor", Record(kColor)),
          FIELD(bPreviewBlend, "PreviewBlend", Bool).Always(),
          FIELD(stuRect, "Rect", Record(kRect)),
          FIELD(nDisplayTime, "DisplayTime", Int).Always(),
          FIELD(bNetAbort, "NetAbort", Bool).Always(),
          FIELD(bIPConflict, "IPConflict", Bool).Always(),
          FIELD(bVoltageStatus, "VoltageStatus", Bool).Always(),
          FIELD(bOutputCurrentStatus, "OutputCurrentStatus", Bool).Always(),
          FIELD(bSDHotPlug, "SDHotPlug", Bool).Always(),
          FIELD(bSDLowSpace, "SDLowSpace", Bool).Always(),
          FIELD(bSDFailure, "SDFailure", Bool).Always(),
          FIELD(bDestroy, "Destroy", Bool).Always(),
      });

TABLE(kVideoWidget2, CFG_VIDEO_WIDGET2_INFO,
      {
          FIELD(nOSDLineSpacing, "OSDLineSpacing", Int),
      });

TABLE(kVideoWidgetNumberStat, CFG_VIDEO_WIDGET_NUMBER_STAT_INFO,
      {
          FIELD(bEncodeBlend, "EncodeBlend", Bool),
          FIELD(stuFrontColor, "FrontColor", Record(kColor)),
          FIELD(stuBackColor, "BackColor", Record(kColor)),
          FIELD(nTextAlign, "TextAlign", Int),
          FIELD(stuRect, "Rect", Record(kRect)),
          FIELD(bShowEnterNum, "ShowEnterNum", Bool),
          FIELD(bShowExitNum, "ShowExitNum", Bool),
      });

TABLE(kAtmosphereOsd, CFG_ATMOSPHERE_OSD_INFO,
      {
          FIELD(bEncodeBlend, "EncodeBlend", Bool),
          FIELD(nMask, "Mask", UInt),
      });

TABLE(kLaserDistMeasure, CFG_LASER_DIST_MEASURE_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(bEncodeBlend, "EncodeBlend", Bool),
      });

TABLE(kLightingV2, CFG_LIGHTING_V2_INFO,
      {
          FIELD(nCorrection, "Correction", Int),
          FIELD(szLightType, "LightType", Text),
          FIELD(szMode, "Mode", Text),
          FIELD(nSensitive, "Sensitive", Int),
          FIELD(nPercentOfMaxBrightness, "PercentOfMaxBrightness", Int),
          FIELD(nAIMixLightSwitchDelay, "AIMixLightSwitchDelay", Int),
          FIELD(nLightSwitchDelay, "LightSwitchDelay", Int),
          FIELD(nNearLight, "NearLight", Int),
          FIELD(nMiddleLight, "MiddleLight", Int),
          FIELD(nFarLight, "FarLight", Int),
          FIELD(nAngleCount),
          FIELD(nAngle, "Angle", Int).Count(AT(nAngleCount)),
          FIELD(nLightCount),
          FIELD(nLight, "Light", Int).Count(AT(nLightCount)),
      });

TABLE(kNetAutoAdaptEncode, CFG_NET_AUTO_ADAPT_ENCODE_INFO,
      {
          FIELD(nMainFormat, "MainFormat", Int),
          FIELD(nExtraFormat, "ExtraFormat", Int),
          FIELD(nIPSmooth, "IPSmooth", Int),
          FIELD(bAdaptEnable, "AdaptEnable", Bool),
      });

TABLE(kFreeCombination, CFG_FREE_COMBINATION_INFO,
      {
          FIELD(nCombinationCount),
          FIELD(nCombination, "Combination", Int).Count(AT(nCombinationCount)),
      })
    .AfterRead(CountWindows);

TABLE(kTsPoint, CFG_TS_POINT_INFO,
      {
          FIELD(nScreenCount),
          FIELD(stuScreen, "Screen", Record(kPoint)).Count(AT(nScreenCount)),
          FIELD(nDisplayCount),
          FIELD(stuDisplay, "Display", Record(kPoint)).Count(AT(nDisplayCount)),
      })
    .TakesFirst();

TABLE(kPowerUp, CFG_POWER_UP_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(emFunction, "Function", Names(kPowerUpFunctions)),
          FIELD(nPatternId, "PatternId", Int),
          FIELD(nPresetId, "PresetId", Int),
          FIELD(nScanId, "ScanId", Int),
          FIELD(nTourId, "TourId", Int),
          FIELD(bAuto, "Auto", Bool),
      });

TABLE(kPtzDevice, CFG_PTZ_DEVICE_INFO,
      {
          FIELD(nPort, "Port", UInt),
          FIELD(nAddress, "Address", UInt),
          FIELD(stuAttribute, "Attribute", Record(kCommAttribute)),
          FIELD(emCurrentMode, "CurrentMode", Names(kCommandSources)),
          FIELD(szProtocolName, "ProtocolName", Text),
      });

TABLE(kSceneSnapShot, CFG_SCENE_SNAP_SHOT_INFO,
      {
          FIELD(nPresetID, "PresetID", Int),
          FIELD(nRuleCount),
          FIELD(stuRules, "SnapShotWithRule", Record(kSceneSnapRule)).Count(AT(nRuleCount)),
      })
    .TakesFirst();

} // namespace orrery
