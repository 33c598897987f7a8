// Classes of rules, a word beside the type.
#pragma once

#include "frame/record/Names.h"

#include "orrery/analyse_rules.h"

#include <cstdint>
#include <string_view>

namespace orrery {

NAMES(kRuleClasses, record::kExact,
      {
          {CFG_RULE_CLASS_NONE, ""},
          {CFG_RULE_CLASS_NORMAL, "Normal"},
          {CFG_RULE_CLASS_TRAFFIC, "Traffic"},
          {CFG_RULE_CLASS_TRAFFIC_PATROL, "TrafficPatrol"},
          {CFG_RULE_CLASS_FACE_DETECTION, "FaceDetection"},
          {CFG_RULE_CLASS_ATM, "ATM"},
          {CFG_RULE_CLASS_INDOOR, "Indoor"},
          {CFG_RULE_CLASS_FACE_RECOGNITION, "FaceRecognition"},
          {CFG_RULE_CLASS_PRISON, "Prison"},
          {CFG_RULE_CLASS_NUMBER_STAT, "NumberStat"},
          {CFG_RULE_CLASS_HEAT_MAP, "HeatMap"},
          {CFG_RULE_CLASS_VIDEO_DIAGNOSIS, "VideoDiagnosis"},
          {CFG_RULE_CLASS_VEHICLE_ANALYSE, "VehicleAnalyse"},
          {CFG_RULE_CLASS_COURSE_RECORD, "CourseRecord"},
          {CFG_RULE_CLASS_VEHICLE, "Vehicle"},
          {CFG_RULE_CLASS_STAND_UP_DETECTION, "StandUpDetection"},
          {CFG_RULE_CLASS_GATE, "Gate"},
          {CFG_RULE_CLASS_SD_FACE_DETECT, "SDFaceDetect"},
          {CFG_RULE_CLASS_HEAT_MAP_PLAN, "HeatMapPlan"},
          {CFG_RULE_CLASS_NUMBER_STAT_PLAN, "NumberStatPlan"},
          {CFG_RULE_CLASS_ATMFD, "ATMFD"},
          {CFG_RULE_CLASS_HIGHWAY, "Highway"},
          {CFG_RULE_CLASS_CITY, "City"},
          {CFG_RULE_CLASS_LE_TRACK, "LeTrack"},
          {CFG_RULE_CLASS_SCR, "SCR"},
          {CFG_RULE_CLASS_STEREO_VISION, "StereoVision"},
          {CFG_RULE_CLASS_HUMAN_DETECT, "HumanDetect"},
          {CFG_RULE_CLASS_FACE_ANALYSIS, "FaceAnalysis"},
          {CFG_RULE_CLASS_XRAY_DETECTION, "XRayDetection"},
          {CFG_RULE_CLASS_STEREO_NUMBER, "StereoNumber"},
          {CFG_RULE_CLASS_CROWD_DISTRI_MAP, "CrowdDistriMap"},
      });
static_assert(kRuleClasses.count == 31);

// Devices have templates for all classes but the last.
inline constexpr record::NameTable kTemplateClasses =
    With(record::ExactNames(kRuleClassesRows), &record::NameTable::count, kRuleClasses.count - 1);

// The number of the class of that name, 0 for a name that is not known.
std::int32_t RuleClassOf(std::string_view name) noexcept;
// Empty for 0 and for a number of no class.
std::string_view RuleClassName(std::int32_t number) noexcept;
// The same for classes that devices have templates for.
std::string_view TemplateClassName(std::int32_t number) noexcept;

} // namespace orrery
