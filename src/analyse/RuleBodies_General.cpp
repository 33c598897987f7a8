// Records of the rules about people, objects, pictures and sounds.
#include "analyse/RuleBodies.h"

#include "analyse/RuleParts.h"

namespace orrery::rules {

namespace {

NAMES(kLineDirections, kExact,
      {
          {CFG_LINE_LEFT_TO_RIGHT, "LeftToRight"},
          {CFG_LINE_RIGHT_TO_LEFT, "RightToLeft"},
          {CFG_LINE_BOTH, "Both"},
      });

NAMES(kRegionDirections, kExact,
      {
          {CFG_REGION_ENTER, "Enter"},
          {CFG_REGION_LEAVE, "Leave"},
          {CFG_REGION_BOTH, "Both"},
      });

NAMES(kRegionActions, kExact,
      {
          {CFG_REGION_ACTION_APPEAR, "Appear"},
          {CFG_REGION_ACTION_DISAPPEAR, "Disappear"},
          {CFG_REGION_ACTION_INSIDE, "Inside"},
          {CFG_REGION_ACTION_CROSS, "Cross"},
      });

NAMES(kAbnormalities, kExact,
      {
          {CFG_ABNORMAL_LOSS, "Loss"},
          {CFG_ABNORMAL_COVER, "Cover"},
          {CFG_ABNORMAL_FROZEN, "Frozen"},
          {CFG_ABNORMAL_LIGHT, "Light"},
          {CFG_ABNORMAL_DARK, "Dark"},
          {CFG_ABNORMAL_SCENE_CHANGE, "SceneChange"},
          {CFG_ABNORMAL_STRIATION, "Striation"},
          {CFG_ABNORMAL_NOISE, "Noise"},
          {CFG_ABNORMAL_UNBALANCE, "Unbalance"},
          {CFG_ABNORMAL_BLUR, "Blur"},
          {CFG_ABNORMAL_CONTRAST, "Contrast"},
          {CFG_ABNORMAL_MOTION, "Motion"},
          {CFG_ABNORMAL_FILCKERING, "Filckering"},
          {CFG_ABNORMAL_COLOR, "Color"},
          {CFG_ABNORMAL_UN_FOCUS, "UnFocus"},
          {CFG_ABNORMAL_OVER_EXPOSURE, "OverExposure"},
      });

NAMES(kRecognitionModes, kExact,
      {
          {CFG_RECOGNITION_NORMAL, "Normal"},
          {CFG_RECOGNITION_AREA, "Area"},
          {CFG_RECOGNITION_AUTO, "Auto"},
      });

NAMES(kFaceAreas, kExact,
      {
          {CFG_FACE_AREA_EYEBROW, "Eyebrow"},
          {CFG_FACE_AREA_EYE, "Eye"},
          {CFG_FACE_AREA_NOSE, "Nose"},
          {CFG_FACE_AREA_MOUTH, "Mouth"},
          {CFG_FACE_AREA_CHEEK, "Cheek"},
          {CFG_FACE_AREA_EYEBROW, "Eyebrow "},
      });

NAMES(kFightModes, kExact.Unknown(CFG_FIGHT_UNKNOWN),
      {
          {CFG_FIGHT_UNSET, ""},
          {CFG_FIGHT_BY_VIDEO, "ByVideo"},
          {CFG_FIGHT_BY_AUDIO, "ByAudio"},
          {CFG_FIGHT_BOTH, "Both"},
      });

NAMES(kMoveTypes, kExact,
      {
          {CFG_MOTION_FAST, "FastMove"},
          {CFG_MOTION_ABRUPT_SPEEDUP, "AbruptSpeedup"},
          {CFG_MOTION_ABRUPT_SLOWDOWN, "AbruptSlowdown"},
      });

NAMES(kRunTypes, kExact,
      {
          {CFG_MOTION_FAST, "FastRun"},
          {CFG_MOTION_ABRUPT_SPEEDUP, "AbruptSpeedup"},
          {CFG_MOTION_ABRUPT_SLOWDOWN, "AbruptSlowdown"},
      });

NAMES(kNumberStatTypes, kExact.UnknownLeaves(),
      {
          {CFG_NUMBERSTAT_REGION, "Region"},
          {CFG_NUMBERSTAT_ENTRANCE, "Entrance"},
          {CFG_NUMBERSTAT_UNSET, ""},
      });

NAMES(kLeaveModes, kExact.Unknown(CFG_LEAVE_UNKNOWN),
      {
          {CFG_LEAVE_UNSET, ""},
          {CFG_LEAVE_BY_PATROL, "ByPatrol"},
          {CFG_LEAVE_BY_SENTRY, "BySentry"},
      });

NAMES(kLeaveTriggers, kExact.OutsideWrites("Unknown"),
      {
          {CFG_LEAVE_TRIGGER_NO_PERSON, "NoPerson"},
          {CFG_LEAVE_TRIGGER_LEAVE, "Leave"},
          {CFG_LEAVE_TRIGGER_STATIC, "Static"},
      });

// Read only as a whole.
constexpr TypedTable<CFG_RULE_BOX> kExactBox = kBox.As(Shape::Tuple);

PART(kCrowdRegion, CFG_RULE_CROWD_REGION,
     {
         FIELD(stuRegion, "Region", Record(kAnyCorner)),
         FIELD(nPeopleNumLimit, "PeopleNumLimit", UInt),
     });

} // namespace

TABLE(kCrossLine, CFG_RULE_CROSSLINE_INFO,
      {
          RULE_HEAD,
          RULE_TRACK,
          RULE_OBJECTS,
          RULE_CONFIG(nDirection, "Direction", Names(kLineDirections)),
          RULE_CONFIG_LINE,
          RULE_LINKAGE,
          FIELD(bClearTimeSection),
          RULE_PRESET,
          RULE_CONFIG_FILTER,
          RULE_CONFIG_POSITIONS,
          RULE_CONFIG(nTrackDuration, "TrackDuration", Int),
      });

TABLE(kCrossFence, CFG_RULE_CROSSFENCE_INFO,
      {
          RULE_HEAD,
          RULE_TRACK,
          RULE_OBJECTS,
          RULE_CONFIG(nDirection, "Direction", Names(kLineDirections)),
          RULE_CONFIG_SHAPE(nUpstairsLinePoint, stuUpstairsLine, "UpstairsLine"),
          RULE_CONFIG_SHAPE(nDownstairsLinePoint, stuDownstairsLine, "DownstairsLine"),
          RULE_TAIL,
          RULE_CONFIG_FILTER,
          RULE_CONFIG_POSITIONS,
          RULE_CONFIG(nTrackDuration, "TrackDuration", Int),
      });

TABLE(kCrossRegion, CFG_RULE_CROSSREGION_INFO,
      {
          RULE_HEAD,
          RULE_TRACK,
          RULE_OBJECTS,
          RULE_CONFIG(nDirection, "Direction", Names(kRegionDirections)),
          RULE_CONFIG_REGION,
          RULE_LINKAGE,
          FIELD(bClearTimeSection),
          RULE_PRESET,
          RULE_CONFIG_FILTER,
          RULE_CONFIG_CODES(nActionNum, byAction, "Action", kRegionActions),
          RULE_CONFIG(nMinTargets, "MinTargets", Int),
          RULE_CONFIG(nMaxTargets, "MaxTargets", Int),
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_CONFIG(nReportInterval, "ReportInterval", Int),
          RULE_CONFIG(nTrackDuration, "TrackDuration", Int),
      });

TABLE(kFire, CFG_RULE_FIRE_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_CONFIG_REGION,
          RULE_CONFIG(nSensitivity, "Sensitivity", Int),
          RULE_TAIL,
      });

TABLE(kPreservation, CFG_RULE_PRESERVATION_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_CONFIG_REGION,
          RULE_TAIL,
      });

TABLE(kFight, CFG_RULE_FIGHT_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_CONFIG_REGION,
          RULE_CONFIG(nSensitivity, "Sensitivity", Int),
          RULE_CONFIG(nDetectMode, "DetectMode", Names(kFightModes)),
          RULE_TAIL,
      });

TABLE(kMove, CFG_RULE_MOVE_INFO,
      {
          RULE_HEAD,
          RULE_TRACK,
          RULE_CONFIG(bySensitivity, "Sensitivity", Int),
          RULE_OBJECTS,
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_CONFIG_REGION,
          RULE_CONFIG(nTriggerSpeed, "TriggerSpeed", Int),
          RULE_TAIL,
          RULE_CONFIG_POSITIONS,
          RULE_CONFIG_FILTER,
          RULE_CONFIG_CODES(nDetectTypeNum, byDetectType, "DetectType", kMoveTypes),
          RULE_CONFIG(nTrackDuration, "TrackDuration", Int),
      });

TABLE(kStay, CFG_RULE_STAY_INFO,
      {
          RULE_HEAD,
          RULE_TRACK,
          RULE_OBJECTS,
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_CONFIG_REGION,
          RULE_TAIL,
          RULE_CONFIG_POSITIONS,
          RULE_CONFIG(nTriggerTargetsNumber, "TriggerTargetsNumber", Int),
          RULE_CONFIG(nReportInterval, "ReportInterval", Int),
          RULE_CONFIG_FILTER,
          RULE_CONFIG(nTrackDuration, "TrackDuration", Int),
      });

TABLE(kLeft, CFG_RULE_LEFT_INFO,
      {
          RULE_HEAD,
          RULE_TRACK_READ_ONLY,
          RULE_OBJECTS,
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_CONFIG_REGION,
          RULE_TAIL,
          RULE_CONFIG_POSITIONS,
          RULE_CONFIG_FILTER,
          RULE_CONFIG(nTrackDuration, "TrackDuration", Int),
      });

TABLE(kRioter, CFG_RULE_RIOTER_INFO,
      {
          RULE_HEAD,
          RULE_TRACK,
          RULE_CONFIG(byAreaPercent, "AreaPercent", Int),
          RULE_CONFIG(bySensitivity, "Sensitivity", Int),
          RULE_OBJECTS,
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_CONFIG_REGION,
          RULE_CONFIG(nReportInterval, "ReportInterval", UInt),
          RULE_CONFIG(stuMinDetectRect, "MinDetectRect", Record(kExactBox)),
          RULE_TAIL,
          RULE_CONFIG(nTrackDuration, "TrackDuration", Int),
      });

TABLE(kFlowStat, CFG_RULE_FLOWSTAT_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nUpperLimit, "UpperLimit", Int),
          RULE_CONFIG(nPeriod, "Period", Int),
          RULE_CONFIG_LINE,
          RULE_TAIL,
      });

TABLE(kNumberStat, CFG_RULE_NUMBERSTAT_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nUpperLimit, "UpperLimit", Int),
          RULE_CONFIG(nPeriod, "ReportInterval", Int),
          RULE_CONFIG_REGION,
          RULE_TAIL,
          RULE_CONFIG(nType, "Type", Names(kNumberStatTypes)),
          RULE_CONFIG(stuDirection, "Direction", Record(kAnyCorner)),
          RULE_CONFIG(nRecordInterval, "RecordInterval", Int),
          RULE_CONFIG(nEnterThreshold, "EnterThreshold", Int),
          RULE_CONFIG(nExitThreshold, "ExitThreshold", Int),
          RULE_CONFIG(nInsideThreshold, "InsideThreshold", Int),
          RULE_CONFIG(nPlanId, "PlanId", UInt).WriteUnless(0),
      });

TABLE(kRetrograde, CFG_RULE_RETROGRADE_INFO,
      {
          RULE_HEAD,
          RULE_CONFIG(bySensitivity, "Sensitivity", Int),
          RULE_OBJECTS,
          RULE_CONFIG_REGION,
          RULE_CONFIG_SHAPE(nDirectionPoint, stuDirection, "Direction"),
          RULE_TAIL,
          RULE_CONFIG_FILTER,
          RULE_CONFIG_POSITIONS,
      });

TABLE(kDensity, CFG_RULE_DENSITY_INFO,
      {
          RULE_HEAD,
          RULE_CONFIG(byUnit, "Unit", Int),
          RULE_CONFIG(bySensitivity, "Sensitivity", Int),
          RULE_CONFIG(byMinAlarmDensity, "MinAlarmDensity", Int),
          RULE_OBJECTS,
          RULE_CONFIG(nMinDuration, "MinDuration", Int).WriteOnly(),
          RULE_CONFIG_REGION,
          RULE_TAIL,
      });

TABLE(kRun, CFG_RULE_RUN_INFO,
      {
          RULE_HEAD,
          RULE_TRACK,
          RULE_CONFIG(bySensitivity, "Sensitivity", Int),
          RULE_OBJECTS,
          RULE_CONFIG_REGION,
          RULE_TAIL,
          RULE_CONFIG_FILTER,
          RULE_CONFIG_POSITIONS,
          RULE_CONFIG_CODES(nDetectTypeNum, byDetectType, "DetectType", kRunTypes),
          RULE_CONFIG(nTriggerSpeed, "TriggerSpeed", Int),
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
      });

TABLE(kVideoAbnormal, CFG_RULE_VIDEOABNORMAL_INFO,
      {
          RULE_HEAD,
          RULE_CONFIG(bySensitivity, "Sensitivity", Int),
          RULE_OBJECTS,
          RULE_CONFIG_CODES(nDetectTypeNum, byDetectType, "DetectType", kAbnormalities),
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_CONFIG_REGION,
          FIELD(nThresholdNum),
          RULE_CONFIG(nThreshold, "Threshold", Int).Count(AT(nThresholdNum)),
          RULE_TAIL,
      });

TABLE(kFaceRecognition, CFG_RULE_FACERECOGNITION_INFO,
      {
          RULE_HEAD,
          RULE_CONFIG(bySimilarity, "Similarity", Int),
          RULE_CONFIG(byAccuracy, "Accuracy", Int),
          RULE_CONFIG(byMode, "Mode", Names(kRecognitionModes)),
          RULE_CONFIG(byImportant, "Important", Int),
          RULE_OBJECTS,
          RULE_CONFIG_CODES(nAreaNum, byAreas, "Areas", kFaceAreas),
          RULE_CONFIG(nMaxCandidate, "MaxCandidate", Int),
          RULE_TAIL,
      });

TABLE(kFaceDetection, CFG_RULE_FACEDETECTION_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG_REGION,
          FIELD(nHumanFaceTypeNum),
          RULE_CONFIG(szHumanFaceTypes, "HumanFaceTypes", Text)
              .Count(AT(nHumanFaceTypeNum))
              .NullElement(Nulls::CloseUp)
              .FirstBytes(kMostTextBytes),
          RULE_TAIL,
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_CONFIG(nSensitivity, "Sensitivity", Int),
          RULE_CONFIG(nReportInterval, "ReportInterval", Int),
          RULE_CONFIG_FILTER,
          RULE_CONFIG(bFeatureEnable, "FeatureEnable", Bool),
          RULE_CONFIG_ALL_CODES(nFeatureNum, nFeatures, "FeatureList", kFaceFeatures),
      });

TABLE(kFaceAnalysis, CFG_RULE_FACEANALYSIS_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG_REGION,
          RULE_CONFIG(nSensitivity, "Sensitivity", Int),
          RULE_TAIL,
          RULE_CONFIG_FILTER,
          RULE_CONFIG(bFeatureEnable, "FeatureEnable", Bool),
          RULE_CONFIG_ALL_CODES(nFeatureNum, nFeatures, "FeatureList", kFaceFeatures),
      });

TABLE(kPrisonerRise, CFG_RULE_PRISONERRISE_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG_REGION,
          RULE_CONFIG(stuDirection, "Direction", Record(kAnyCorner)),
          RULE_CONFIG(stuBedMiddleLine, "BedMiddleLine", Record(kAnyCorner)),
          RULE_CONFIG(nBedSide, "BedSide", Int),
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_CONFIG(nReportInterval, "ReportInterval", Int),
          RULE_TAIL,
          RULE_CONFIG_FILTER,
      });

TABLE(kQueue, CFG_RULE_QUEUE_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(stuDetectLine, "DetectLine", Record(kAnyCorner)).Exactly(),
          RULE_CONFIG(nOccupyLineMargin, "OccupyLineMargin", Int),
          RULE_CONFIG(nTriggerTime, "TriggerTime", Int),
          RULE_TAIL,
      });

TABLE(kAudioAbnormal, CFG_RULE_AUDIOABNORMAL_INFO,
      {
          RULE_NAME,
          RULE_CONFIG(nDecibel, "Decibel", Int),
          RULE_CONFIG(nFrequency, "Frequency", Int),
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandlerRule)),
          RULE_WEEK,
      });

TABLE(kClimb, CFG_RULE_CLIMB_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG_LINE,
          RULE_TAIL,
          RULE_CONFIG_FILTER,
      });

TABLE(kLeave, CFG_RULE_LEAVE_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nMode, "Mode", Names(kLeaveModes)).WriteAtMost(CFG_LEAVE_BY_SENTRY),
          RULE_CONFIG(nMinDuration, "MinDuration", UInt),
          RULE_CONFIG(nReportInterval, "ReportInterval", UInt),
          RULE_TAIL,
          RULE_CONFIG_FILTER,
          RULE_CONFIG_REGION,
          RULE_CONFIG_ALL_CODES(nTriggerModeNum, nTriggerMode, "TriggerMode", kLeaveTriggers),
      });

TABLE(kGetOutBed, CFG_RULE_GETOUTBED_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG_REGION,
          RULE_CONFIG(nMinDuration, "MinDuration", Int).Only(OnlyType::Integer),
          RULE_CONFIG(nReportInterval, "ReportInterval", Int).Only(OnlyType::Integer),
          RULE_CONFIG_SHAPE(nAssisDectLinePoint, stuAssisDectLine, "AssisDectLine"),
          RULE_TAIL,
      });

TABLE(kPatrol, CFG_RULE_PATROL_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG_REGION,
          RULE_CONFIG(nMinDuration, "MinDuration", Int).Only(OnlyType::Integer),
          RULE_CONFIG(nReportInterval, "ReportInterval", Int).Only(OnlyType::Integer),
          RULE_CONFIG(nPatrolTime, "PatrolTime", Int).Only(OnlyType::Integer),
          RULE_TAIL,
          RULE_CONFIG_FILTER,
      });

TABLE(kOnDuty, CFG_RULE_ONDUTY_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG_REGION,
          RULE_CONFIG(nMinDuration, "MinDuration", Int).Only(OnlyType::Integer),
          RULE_CONFIG(nReportInterval, "ReportInterval", Int).Only(OnlyType::Integer),
          FIELD(nTemplateRegionNum),
          RULE_CONFIG(stuTemplateRegion, "TemplateRegion", Record(kBox))
              .Count(AT(nTemplateRegionNum))
              .NullElement(Nulls::CloseUp)
              .RefusedElement(Nulls::CloseUp),
          RULE_TAIL,
      });

TABLE(kHeatMap, CFG_RULE_HEATMAP_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG_REGION,
          RULE_TAIL,
          RULE_CONFIG_FILTER,
          RULE_CONFIG(nPlanId, "PlanId", UInt),
      });

TABLE(kStandUp, CFG_RULE_STANDUP_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG_REGION,
          RULE_CONFIG_SHAPE(nDirectionPoint, stuDirection, "Direction"),
          RULE_CONFIG(stuRegionMax, "Region/Max", Record(kRect)),
          RULE_CONFIG(stuRegionMin, "Region/Min", Record(kRect)),
          RULE_TAIL,
      });

TABLE(kShootingScore, CFG_RULE_SHOOTINGSCORE_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG_REGION,
          RULE_CONFIG(nRound, "Round", Int).Only(OnlyType::Integer),
          RULE_CONFIG(nSensitivity, "Sensitivity", Int).Only(OnlyType::Integer),
          RULE_CONFIG(nCaliber, "Caliber", Int).Only(OnlyType::Integer),
          RULE_TAIL,
      });

TABLE(kLeTrack, CFG_RULE_LETRACK_INFO,
      {
          RULE_HEAD,
          kNoConfigRow,
          RULE_OBJECTS,
          RULE_TAIL,
      });

TABLE(kManStand, CFG_RULE_MANSTAND_INFO,
      {
          RULE_HEAD,
          RULE_TRACK,
          RULE_OBJECTS,
          RULE_CONFIG_LINE,
          RULE_CONFIG_REGION,
          RULE_CONFIG(nThreshold, "Threshold", Int),
          RULE_CONFIG(nDetectType, "DetectType", Int),
          RULE_CONFIG(nSensitivity, "Sensitivity", Int),
          RULE_CONFIG(nMaxHeight, "MaxHeight", Int),
          RULE_CONFIG(nMinHeight, "MinHeight", Int),
          RULE_TAIL,
      });

TABLE(kStereoNumberStat, CFG_RULE_STEREONUMBERSTAT_INFO,
      {
          RULE_HEAD,
          RULE_TRACK,
          RULE_OBJECTS,
          RULE_CONFIG_LINE,
          RULE_CONFIG_REGION,
          RULE_CONFIG(nSensitivity, "Sensitivity", Int),
          RULE_CONFIG(nMaxHeight, "MaxHeight", Int),
          RULE_CONFIG(nMinHeight, "MinHeight", Int),
          RULE_CONFIG(nEnterThreshold, "EnterThreshold", Int),
          RULE_CONFIG(nExitThreshold, "ExitThreshold", Int),
          RULE_CONFIG(nInsideThreshold, "InsideThreshold", Int),
          RULE_CONFIG(szDirection, "Direction", Text),
          RULE_TAIL,
      });

TABLE(kCrowd, CFG_RULE_CROWD_INFO,
      {
          RULE_HEAD,
          RULE_TRACK,
          RULE_OBJECTS,
          RULE_CONFIG(bGeneralAlarmEnable, "GeneralAlarmEnable", Bool),
          RULE_CONFIG(nCrowdDensity, "CrowdDensity", UInt),
          RULE_CONFIG(bRegionAlarmEnable, "RegionAlarmEnable", Bool),
          FIELD(nPeopleStatRegionNum),
          RULE_CONFIG(stuPeopleStatRegions, "PeopleStatRegions", Record(kCrowdRegion)).Count(AT(nPeopleStatRegionNum)),
          RULE_CONFIG(bSlaveTrackEnable, "SlaveTrackEnable", Bool),
          RULE_TAIL,
      });

} // namespace orrery::rules
