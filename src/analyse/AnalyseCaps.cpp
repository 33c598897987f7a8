#include "analyse/AnalyseCaps.h"

#include "analyse/EventTypeRegistry.h"
#include "analyse/RuleCodes.h"
#include "analyse/RuleParts.h"
#include "frame/Arena.h"
#include "frame/Log.h"
#include "frame/json/Reader.h"
#include "frame/record/Engine.h"
#include "frame/record/SharedCodecs.h"

#include <algorithm>

namespace orrery {

using namespace record;
using json::Value;

namespace {

constexpr const char* kLogSource = "VideoAnalyseConfig";

NAMES(kChannelTypes, kFolded,
      {
          {CFG_CAPS_CHANNEL_DIGITAL, "Digital"},
          {CFG_CAPS_CHANNEL_ANALOG, "Anolog"},
          {CFG_CAPS_CHANNEL_BOTH, "Both"},
      });

NAMES(kAngles, kFolded,
      {
          {CFG_CAPS_ANGLE_NONE, ""},
          {CFG_CAPS_ANGLE_NUMBER, "Num"},
          {CFG_CAPS_ANGLE_MODE, "Mode"},
      });

NAMES(kProperties, kFolded,
      {
          {CFG_CAPS_PROPERTY_HIGHLIGHT, "Highlight"},
          {CFG_CAPS_PROPERTY_REGULAR_BLINK, "RegularBlink"},
          {CFG_CAPS_PROPERTY_IRREGULAR_BLINK, "IrregularBlink"},
      });

// The names of features in a rule's own settings, where case counts.
constexpr NameTable kFeatures = FoldedNames(rules::kFaceFeaturesRows);

constexpr Name kCalibrates[] = {
    {CFG_CALIBRATE_GROUND, "Groud"},
    {CFG_CALIBRATE_HORIZONTAL, "Horizontal"},
    {CFG_CALIBRATE_VERTICAL, "Vertical"},
    {CFG_CALIBRATE_ANY, "Any"},
};

NAMES(kAnalyseModes, kFolded.UnknownLeaves(),
      {
          {CFG_ANALYSE_REAL_STREAM, "RealStream"},
          {CFG_ANALYSE_RECORD_FILE_STREAM, "RecordFileStream"},
          {CFG_ANALYSE_PICTURE_FILE_STREAM, "PicFileStream"},
      });

// ---- What only a channel's capabilities need ----

void ReadIsOne(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    StoreInteger(field.cell, record + field.offset, value.asInt() == 1 ? 1 : 0);
}
constexpr CustomCodec kIsOne{ReadIsOne};

PART(kCalibrateCaps, CFG_CALIBRATE_CAPS,
     {
         FIELD(nType),
         FIELD(nHorizontalMin, "HorizontalStaffs", Custom(rules::kSpeedsDescending)),
         FIELD(nHorizontalMax),
         FIELD(nVerticalMin, "VerticalStaffs", Custom(rules::kSpeedsDescending)),
         FIELD(nVerticalMax),
     });

// Each way that is there takes the next entry, in the order of their codes; other members are no way.
void ReadCalibrates(const Field& field, const Value& value, std::byte* record, ReadCall& call) {
    std::uint32_t count = 0;
    for (const Name& way : kCalibrates) {
        const Value& staffs = value[way.text];
        if (staffs.isNull()) continue;
        std::byte* const at = record + field.offset + count++ * field.elementSize;
        ReadRecord(*field.table, staffs, at, call);
        SET_MEMBER(at, CFG_CALIBRATE_CAPS, nType, way.code);
    }
    StoreSlot(field.count, record, count);
}
constexpr CustomCodec kCalibrateList{ReadCalibrates};

// The entries of a list that stands elsewhere than its record.
template <class R>
struct SubTypes {
    static constexpr Field kRow = FIELD(szSubTypes, "", Text).Count(AT(nSubTypeNum));
};

// What stands beside the scenes: the kinds of each. And the log hears of a way to show angles that nobody knows.
template <class Caps, class Scene>
void FinishCaps(const Value& value, std::byte* record, ReadCall& call) {
    if (!value["DisplayCameraAngle"].isNull() && MEMBER(record, Caps, nDisplayCameraAngle) == CFG_CAPS_ANGLE_NONE) {
        LogSetPosition(kLogSource, __LINE__, E_LOG_LEVEL_DETAIL);
        LogTrace(E_LOG_CODE_NONE, "%s", "This display type of the camera angle is unknoen.");
    }
    const Value& kinds = value["SupportedSceneSubType"];
    if (kinds.isNull()) return;
    const auto scenes = value["SupportedScenes"].members();
    const std::size_t count = std::min<std::size_t>(scenes.size(), ORRERY_CAPS_SCENES);
    for (std::size_t i = 0; i < count; ++i) {
        ReadField(SubTypes<Scene>::kRow, kinds[scenes[i].key()],
                  record + offsetof(Caps, stuSceneCaps) + i * sizeof(Scene), call);
    }
}

#define CAPS_TEXTS(count, texts, key) FIELD(count), FIELD(texts, key, Text).Count(AT(count))
#define CAPS_MODULE(member, key) FIELD(member, "SupportedModuleParams/" key, Bool)
#define CAPS_MEASURE(member, key) CAPS_MODULE(member, "SizeFilter/MeasureMode/" key)

#define RULE_CAPS                                                                                                      \
    FIELD(dwRuleCode, nullptr, MemberCode(kRuleCodes)),                                                                \
        CAPS_TEXTS(nObjectTypeNum, szObjectTypes, "SupportedObjectTypes"),                                             \
        CAPS_TEXTS(nActionNum, szActions, "SupportedActions"),                                                         \
        CAPS_TEXTS(nDetectTypeNum, szDetectTypes, "SupportedDetectTypes"),                                             \
        CAPS_TEXTS(nHumanFaceTypeNum, szHumanFaceTypes, "SupportedHumanFaceTypes"),                                    \
        FIELD(bTriggerPosition, "TriggerPosition", Bool), FIELD(bTriggerTrack, "TriggerTrack", Bool)

PART(kRuleCaps, CFG_RULE_CAPS,
     {
         RULE_CAPS,
         FIELD(bFeatureSupport, "FeatureSupport", Custom(kIsOne)),
         FIELD(nFeatureNum),
         FIELD(nFeatures, "FeatureList", Names(kFeatures)).Count(AT(nFeatureNum)),
     });
PART(kRuleCapsEx, CFG_RULE_CAPS_EX, {RULE_CAPS});

#define SCENE_CAPS(rules)                                                                                              \
    FIELD(szName, nullptr, MemberName), CAPS_TEXTS(nObjectTypeNum, szObjectTypes, "SupportedObjectTypes"),             \
        FIELD(nRuleNum),                                                                                               \
        FIELD(stuRules, "SupportedRules", Record(rules)).Keyed().Count(AT(nRuleNum)).NullElement(Nulls::Named),        \
        FIELD(nCalibrateNum),                                                                                          \
        FIELD(stuCalibrates, "SupportedCalibrateParams", Custom(kCalibrateList))                                       \
            .PointsTo(kCalibrateCaps)                                                                                  \
            .Count(AT(nCalibrateNum)),                                                                                 \
        FIELD(nMaxCelibateAreas, "SupportedCalibrateParams/MaxCelibateAreas", Int),                                    \
        FIELD(bCameraAspect, "SupportedSceneParams/CameraAspect", Bool),                                               \
        FIELD(bJitter, "SupportedSceneParams/Jitter", Bool), FIELD(bDejitter, "SupportedSceneParams/Dejitter", Bool),  \
        CAPS_MODULE(bDisturbance, "Disturbance"), CAPS_MODULE(bAntiDisturbance, "AntiDisturbance"),                    \
        CAPS_MODULE(bBacklight, "Backlight"), CAPS_MODULE(bShadow, "Shadow"), CAPS_MODULE(bAccuracy, "Accuracy"),      \
        CAPS_MODULE(bMovingStep, "MovingStep"), CAPS_MODULE(bScalingFactor, "ScalingFactor"),                          \
        CAPS_MODULE(bThresholdY, "ThresholdY"), CAPS_MODULE(bThresholdUV, "ThresholdUV"),                              \
        CAPS_MODULE(bThresholdEdge, "ThresholdEdge"), CAPS_MODULE(bDetectBalance, "DetectBalance"),                    \
        CAPS_MODULE(bAlgorithmIndex, "AlgorithmIndex"), CAPS_MODULE(bHighlight, "Highlight"),                          \
        CAPS_MODULE(bSnapshot, "Snapshot"), CAPS_MODULE(bDetectRegion, "DetectRegion"),                                \
        CAPS_MODULE(bExcludeRegion, "ExcludeRegion"), CAPS_MODULE(bContourAssistantTrack, "ContourAssistantTrack"),    \
        CAPS_MEASURE(bPixel, "Pixel"), CAPS_MEASURE(bMetric, "Metric"),                                                \
        CAPS_MEASURE(bCalibratedPixel, "CalibratedPixel"), FIELD(nMaxRules, "MaxRules", Int),                          \
        FIELD(bSupportedSetModule, "SupportedSetModule", Bool), FIELD(nSubTypeNum), FIELD(szSubTypes)

PART(kSceneCaps, CFG_SCENE_CAPS, {SCENE_CAPS(kRuleCaps)});
PART(kSceneCapsEx, CFG_SCENE_CAPS_EX, {SCENE_CAPS(kRuleCapsEx)});

PART(kSceneComp, CFG_SCENE_COMP,
     {
         FIELD(nCount),
         FIELD(szNames, "", Text).Count(AT(nCount)).FirstBytes(16),
     });

#define ANALYSE_CAPS(scenes)                                                                                           \
    CAPS_TEXTS(nSceneNum, szScenes, "SupportedScene"), FIELD(nMaxModules, "MaxModules", Int),                          \
        CAPS_TEXTS(nObjectTypeNum, szObjectTypes, "SupportedObjectType").FirstBytes(rules::kMostTextBytes),            \
        FIELD(nMaxRules, "MaxRules", Int), FIELD(nRuleNum),                                                            \
        FIELD(dwRuleCodes, "SupportedRules", Names(kRuleCodes)).Count(AT(nRuleNum)),                                   \
        FIELD(nMaxStaffs, "MaxStaffs", Int), FIELD(nMaxPointOfLine, "MaxPointOfLine", Int),                            \
        FIELD(nMaxPointOfRegion, "MaxPointOfRegion", Int), FIELD(nMaxInternalOptions, "MaxInternalOptions", Int),      \
        FIELD(bComplexSizeFilter, "ComplexSizeFilter", Bool),                                                          \
        FIELD(bSpecifiedObjectFilter, "SpecifiedObjectFilter", Bool),                                                  \
        FIELD(nMaxExcludeRegions, "MaxExcludeRegions", Int),                                                           \
        FIELD(nMaxExcludeRegionsHigh, "MaxExcludeRegions", Custom(rules::kSpeedsDescending)).ReadOnly(),               \
        FIELD(nMaxExcludeRegionsLow), FIELD(nMaxSpecialDetectRegions, "MaxSpecialDetectRegions", Int),                 \
        FIELD(nTimeSectionNum, "SupportedTimeSectionNum", Int).Absent(6), FIELD(nSpecialPropertyNum),                  \
        FIELD(nSpecialProperties, "SupportedSpecialDetectRegionProperty", Names(kProperties))                          \
            .Count(AT(nSpecialPropertyNum))                                                                            \
            .NullElement(Nulls::LeaveHole),                                                                            \
        FIELD(dwVideoChannelTypes, "SupportedVideoChannelType", NamedBits(kChannelTypes)),                             \
        FIELD(bMultiSceneSwitch, "SupportMultiSceneSwitch", Bool), FIELD(nSceneCapsNum),                               \
        FIELD(stuSceneCaps, "SupportedScenes", Record(scenes))                                                         \
            .Keyed()                                                                                                   \
            .Count(AT(nSceneCapsNum))                                                                                  \
            .NullElement(Nulls::Named),                                                                                \
        FIELD(nSceneCompNum), FIELD(stuSceneComps, "SupportedComp", Record(kSceneComp)).Count(AT(nSceneCompNum)),      \
        FIELD(nDisplayCameraAngle, "DisplayCameraAngle", Names(kAngles)), FIELD(nFilterMask, "FilterMask", Int)

// ---- "devAudioAnalyse.getCaps" ----

// The names of the members alone count.
void ReadRuleNames(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    const auto members = value.members();
    const std::uint32_t count = std::min(static_cast<std::uint32_t>(members.size()), field.dims[0]);
    for (std::uint32_t i = 0; i < count; ++i)
        Store(record + field.offset + i * field.elementSize, RuleCodeFromName(members[i].key()));
    StoreSlot(field.count, record, count);
}
constexpr CustomCodec kRuleNameList{ReadRuleNames};

// ---- "netApp.getRemoteDeviceStatus" ----

PART(kRemoteDevice, CFG_REMOTEDEVICE_STATUS,
     {
         FIELD(bOnline, "Online", Bool),
         FIELD(szDeviceName, "Device", Text),
     });

// An element without "Online" ends the list, one without "Device" the call.
void ReadStatus(const Field& field, const Value& value, std::byte* record, ReadCall& call) {
    StoreSlot(field.count, record, value.size());
    const auto devices = value.elements();
    for (std::size_t i = 0; i < devices.size() && i < field.dims[0]; ++i) {
        if (devices[i]["Online"].isNull()) return;
        if (devices[i]["Device"].isNull()) {
            call.refused = true;
            return;
        }
        ReadRecord(*field.table, devices[i], record + field.offset + i * field.elementSize, call);
    }
}
constexpr CustomCodec kStatusList{ReadStatus};

} // namespace

TABLE(kAnalyseCaps, CFG_ANALYSECAPS_INFO, {ANALYSE_CAPS(kSceneCaps)})
    .AfterRead(FinishCaps<CFG_ANALYSECAPS_INFO, CFG_SCENE_CAPS>);

TABLE(kAnalyseCapsEx, CFG_ANALYSECAPS_INFO_EX, {ANALYSE_CAPS(kSceneCapsEx)})
    .AfterRead(FinishCaps<CFG_ANALYSECAPS_INFO_EX, CFG_SCENE_CAPS_EX>);

TABLE(kAudioAnalyseCaps, CFG_AUDIOANALYSECAPS_INFO,
      {
          FIELD(nRuleNum),
          FIELD(dwRuleCodes, "SupportedRules", Custom(kRuleNameList)).Count(AT(nRuleNum)),
      });

TABLE(kAnalyseMode, CFG_ANALYSEMODE_INFO,
      {
          FIELD(nAnalyseMode, "AnalyseMode", Names(kAnalyseModes)),
      });

TABLE(kAnalyseChannels, CFG_ANALYSECHANNELS_INFO,
      {
          FIELD(nChannels, "", Int).Only(OnlyType::Integer),
          FIELD(nChannels, "params/channels", Int).FromRoot().Alias(),
      });

TABLE(kRemoteDeviceStatus, CFG_REMOTEDEVICE_STATUS_INFO,
      {
          FIELD(stuEntries, "", Custom(kStatusList)).PointsTo(kRemoteDevice).Count(AT(nCount)),
          FIELD(nCount),
      });

void LogAnalyseCaps(Outcome outcome, const ParseRequest& request) noexcept {
    if (outcome != Outcome::NoJson || !LogHasSink()) return;
    StackArena<std::size_t{4} << 10> arena;
    Value root;
    json::SyntaxError error;
    if (json::Parse(request.text, arena, root, &error) || error.message == nullptr) return;
    LogSetPosition(kLogSource, __LINE__, E_LOG_LEVEL_ERROR);
    LogTrace(E_LOG_CODE_NONE, "%s", error.message);
}

} // namespace orrery
