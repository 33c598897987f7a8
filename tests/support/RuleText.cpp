#include "support/RuleText.h"

#include <cstring>
#include <iterator>

namespace orrery::test {

namespace {

#define LINE R"("DetectLine":[[10,20],[-30,40]])"
#define REGION R"("DetectRegion":[[0,0],[8191,0],[8191,8191]])"
#define FILTER                                                                                                         \
    R"("SizeFilter":{"AreaCalibrateBoxs":[{"CenterPoint":[3,4],"Ratio":0.5}],"ByArea":true,"ByRatio":false,)"          \
    R"("BySize":true,"CalibrateBoxs":[{"CenterPoint":[1,2],"Ratio":1.5},{"CenterPoint":[-1,-2],"Ratio":2.25}],)"       \
    R"("MaxArea":100.5,"MaxAreaSize":[9.5,8.5],"MaxRatio":1.75,"MaxRatioSize":[7.5,6.5],"MaxSize":[4000.5,3000.25],)"  \
    R"("MeasureMode":"Metric","MinArea":0.25,"MinAreaSize":[0.5,0.75],"MinRatio":0.125,"MinRatioSize":[1.5,2.5],)"     \
    R"("MinSize":[10.5,20.5],"RatioCalibrateBoxs":[{"CenterPoint":[5,6],"Ratio":3.5}],"Type":"ByWidthHeight"})"
#define POSITIONS R"("TriggerPosition":["Center","LeftCenter","TopCenter","RightCenter","BottomCenter"])"
#define DAY                                                                                                            \
    R"(["0 00:00:00-03:30:15","1 01:00:00-04:30:15","0 02:00:00-05:30:15","1 03:00:00-06:30:15","0 04:00:00-07:30:15","1 05:00:00-08:30:15"])"
#define TIMES "[" DAY "," DAY "," DAY "," DAY "," DAY "," DAY "," DAY "]"

constexpr RuleType kCrossline[] = {{2, "CrossLineDetection", nullptr}};
constexpr RuleType kCrossfence[] = {{287, "CrossFenceDetection", nullptr}};
constexpr RuleType kCrossregion[] = {{3, "CrossRegionDetection", nullptr}};
constexpr RuleType kFire[] = {
    {12, "FireDetection", nullptr}, {13, "SmokeDetection", nullptr}, {4, "PasteDetection", nullptr}};
constexpr RuleType kPreservation[] = {
    {8, "Preservation", nullptr}, {10, "TailDetection", nullptr}, {272, "ElectroSparkDetection", nullptr}};
constexpr RuleType kFight[] = {{14, "FightDetection", nullptr}};
constexpr RuleType kMove[] = {{9, "MoveDetection", nullptr}};
constexpr RuleType kStay[] = {{6, "StayDetection", nullptr}, {7, "WanderDetection", nullptr}};
constexpr RuleType kLeft[] = {
    {5, "LeftDetection", nullptr}, {277, "TakenAwayDetection", nullptr}, {278, "ParkingDetection", nullptr}};
constexpr RuleType kRioter[] = {{11, "RioterDetection", nullptr}};
constexpr RuleType kFlowstat[] = {{15, "FlowStat", nullptr}};
constexpr RuleType kNumberstat[] = {{16, "NumberStat", nullptr}, {529, "NumberStatPlan", nullptr}};
constexpr RuleType kRetrograde[] = {{275, "RetrogradeDetection", nullptr}};
constexpr RuleType kDensity[] = {{289, "DensityDetection", nullptr}};
constexpr RuleType kRun[] = {{274, "RunDetection", nullptr}};
constexpr RuleType kVideoabnormal[] = {{19, "VideoAbnormalDetection", nullptr}};
constexpr RuleType kFacerecognition[] = {{279, "FaceRecognition", nullptr}};
constexpr RuleType kTrafficcontrol[] = {{21, "TrafficControl", nullptr}};
constexpr RuleType kTrafficaccident[] = {{22, "TrafficAccident", nullptr}};
constexpr RuleType kTrafficjunction[] = {{23, "TrafficJunction", nullptr}};
constexpr RuleType kTrafficgate[] = {{24, "TrafficGate", nullptr}};
constexpr RuleType kFacedetection[] = {{26, "FaceDetection", nullptr}};
constexpr RuleType kFaceanalysis[] = {{535, "", "All"}};
constexpr RuleType kTrafficjam[] = {{27, "TrafficJam", nullptr}, {303, "TrafficIdle", nullptr}};
constexpr RuleType kTrafficparking[] = {{264, "TrafficParking", nullptr},
                                        {563, "TrafficParkingSpaceDetection", nullptr}};
constexpr RuleType kTrafficrunred[] = {{256, "TrafficRunRedLight", nullptr},
                                       {315, "TrafficPedestrianRunRedLight", nullptr}};
constexpr RuleType kTrafficlane[] = {
    {265, "TrafficWrongRoute", nullptr},     {266, "TrafficCrossLane", nullptr},
    {257, "TrafficOverLine", nullptr},       {259, "TrafficTurnLeft", nullptr},
    {260, "TrafficTurnRight", nullptr},      {270, "TrafficYellowPlateInLane", "TrafficYellowInRoute"},
    {283, "TrafficVehicleInRoute", nullptr}, {293, "TrafficBacking", nullptr}};
constexpr RuleType kTrafficbuslane[] = {{292, "TrafficVehicleInBusRoute", nullptr}};
constexpr RuleType kTrafficoveryellow[] = {{267, "TrafficOverYellowLine", nullptr}};
constexpr RuleType kTrafficuturn[] = {{261, "TrafficU-Turn", nullptr}};
constexpr RuleType kTrafficspeed[] = {{262, "TrafficOverSpeed", nullptr}, {263, "TrafficUnderSpeed", nullptr}};
constexpr RuleType kPrisonerrise[] = {{286, "PrisonerRiseDetection", nullptr}};
constexpr RuleType kTraffictollgate[] = {{288, "TrafficTollGate", nullptr}};
constexpr RuleType kTrafficretrograde[] = {{258, "TrafficRetrograde", nullptr}};
constexpr RuleType kTrafficpriority[] = {{271, "TrafficPedestrainPriority", nullptr}};
constexpr RuleType kQueue[] = {{291, "QueueDetection", nullptr}};
constexpr RuleType kAudioabnormal[] = {{294, "AudioAbnormalDetection", nullptr}};
constexpr RuleType kClimb[] = {{296, "ClimbDetection", nullptr}};
constexpr RuleType kLeave[] = {{297, "LeaveDetection", nullptr}};
constexpr RuleType kTrafficyellowbox[] = {{298, "TrafficParkingOnYellowBox", nullptr}};
constexpr RuleType kTrafficparkingspace[] = {{299, "TrafficParkingSpaceParking", nullptr},
                                             {300, "TrafficParkingSpaceNoParking", nullptr}};
constexpr RuleType kTrafficspaceoverline[] = {{308, "TrafficParkingSpaceOverLine", nullptr}};
constexpr RuleType kTrafficsafebelt[] = {{312, "TrafficWithoutSafeBelt", nullptr}};
constexpr RuleType kTrafficdriver[] = {{313, "TrafficDriverSmoking", nullptr}, {314, "TrafficDriverCalling", nullptr}};
constexpr RuleType kTrafficpedestrain[] = {{301, "TrafficPedestrain", nullptr}, {302, "TrafficThrow", nullptr}};
constexpr RuleType kGetoutbed[] = {{341, "GetOutBedDetection", nullptr}};
constexpr RuleType kPatrol[] = {{342, "PatrolDetection", nullptr}};
constexpr RuleType kOnduty[] = {{343, "OnDutyDetection", nullptr}};
constexpr RuleType kHeatmap[] = {{351, "HeatMap", nullptr}, {530, "HeatMapPlan", nullptr}};
constexpr RuleType kTrafficpass[] = {{316, "TrafficPassNotInOrder", nullptr}};
constexpr RuleType kVehicleanalyse[] = {{514, "VehicleAnalyse", nullptr}};
constexpr RuleType kStandup[] = {{359, "StandUpDetection", nullptr}};
constexpr RuleType kShootingscore[] = {{362, "ShootingScoreRecognition", nullptr}};
constexpr RuleType kLetrack[] = {{366, "LeTrack", nullptr}};
constexpr RuleType kManstand[] = {
    {525, "ManStandDetection", nullptr}, {526, "ManNumDetection", nullptr}, {372, "NearDistanceDetection", nullptr}};
constexpr RuleType kStereonumberstat[] = {{527, "StereoNumberStat", nullptr}};
constexpr RuleType kRoadevent[] = {{538, "RoadConstruction", nullptr}, {539, "RoadBlock", nullptr}};
constexpr RuleType kCrowd[] = {{556, "CrowdDetection", "CrowdDistriMap"}};

constexpr RuleSample kSamples[] = {
    {"CFG_RULE_CROSSLINE_INFO", kCrossline, Track::InRule,
     R"("Direction":"Both",)" LINE R"(,)" FILTER R"(,)" POSITIONS R"(,"TrackDuration":7)"},
    {"CFG_RULE_CROSSFENCE_INFO", kCrossfence, Track::InRule,
     R"("Direction":"RightToLeft","DownstairsLine":[[1,2],[3,4]],)" FILTER R"(,)" POSITIONS
     R"(,"TrackDuration":7,"UpstairsLine":[[5,6]])"},
    {"CFG_RULE_CROSSREGION_INFO", kCrossregion, Track::InRule,
     R"("Action":["Appear","Disappear","Inside","Cross"],"Direction":"Leave",)" REGION
     R"(,"MaxTargets":9,"MinDuration":5,"MinTargets":1,"ReportInterval":30,)" FILTER R"(,"TrackDuration":7)"},
    {"CFG_RULE_FIRE_INFO", kFire, Track::None, REGION R"(,"MinDuration":5,"Sensitivity":6)"},
    {"CFG_RULE_PRESERVATION_INFO", kPreservation, Track::None, REGION R"(,"MinDuration":-5)"},
    {"CFG_RULE_FIGHT_INFO", kFight, Track::None,
     R"("DetectMode":"ByAudio",)" REGION R"(,"MinDuration":5,"Sensitivity":6)"},
    {"CFG_RULE_MOVE_INFO", kMove, Track::InRule,
     REGION
     R"(,"DetectType":["FastMove","AbruptSpeedup","AbruptSlowdown","FastMove"],"MinDuration":5,"Sensitivity":255,)" FILTER
     R"(,"TrackDuration":7,)" POSITIONS R"(,"TriggerSpeed":12)"},
    {"CFG_RULE_STAY_INFO", kStay, Track::InRule,
     REGION R"(,"MinDuration":5,"ReportInterval":30,)" FILTER R"(,"TrackDuration":7,)" POSITIONS
            R"(,"TriggerTargetsNumber":2)"},
    {"CFG_RULE_LEFT_INFO", kLeft, Track::ReadAlone,
     REGION R"(,"MinDuration":5,)" FILTER R"(,"TrackDuration":7,)" POSITIONS},
    {"CFG_RULE_RIOTER_INFO", kRioter, Track::InRule,
     R"("AreaPercent":50,)" REGION
     R"(,"MinDetectRect":[[1,2],[3,4000000000]],"MinDuration":5,"ReportInterval":4000000000,"Sensitivity":6,"TrackDuration":7)"},
    {"CFG_RULE_FLOWSTAT_INFO", kFlowstat, Track::None, LINE R"(,"Period":60,"UpperLimit":100)"},
    {"CFG_RULE_NUMBERSTAT_INFO", kNumberstat, Track::None,
     REGION
     R"(,"Direction":[[1,2],[3,4]],"EnterThreshold":1,"ExitThreshold":2,"InsideThreshold":3,"PlanId":4000000000,"RecordInterval":4,"ReportInterval":5,"Type":"Entrance","UpperLimit":6)"},
    {"CFG_RULE_RETROGRADE_INFO", kRetrograde, Track::None,
     REGION R"(,"Direction":[[1,1],[2,2]],"Sensitivity":6,)" FILTER R"(,)" POSITIONS},
    {"CFG_RULE_DENSITY_INFO", kDensity, Track::None, REGION R"(,"MinAlarmDensity":1,"Sensitivity":2,"Unit":3)",
     R"("MinDuration":5)"},
    {"CFG_RULE_RUN_INFO", kRun, Track::InRule,
     REGION R"(,"DetectType":["FastRun","AbruptSlowdown"],"MinDuration":5,"Sensitivity":6,)" FILTER R"(,)" POSITIONS
            R"(,"TriggerSpeed":12)"},
    {"CFG_RULE_VIDEOABNORMAL_INFO", kVideoabnormal, Track::None,
     R"("DetectType":["Loss","Cover","Frozen","Light","Dark","SceneChange","Striation","Noise","Unbalance","Blur","Contrast","Motion","Filckering","Color","UnFocus","OverExposure"],)" REGION
     R"(,"MinDuration":5,"Sensitivity":6,"Threshold":[1,-2,3])"},
    {"CFG_RULE_FACERECOGNITION_INFO", kFacerecognition, Track::None,
     R"("Accuracy":90,"Areas":["Eyebrow","Eye","Nose","Mouth","Cheek"],"Important":1,"MaxCandidate":5,"Mode":"Auto","Similarity":80)"},
    {"CFG_RULE_TRAFFICCONTROL_INFO", kTrafficcontrol, Track::None,
     LINE R"(,"PlateNumber":"Even","PlateTypes":["Yellow","Blue"],"TimeSchedule":)" TIMES
          R"(,"VehicleSizes":["Light","Heavy"])"},
    {"CFG_RULE_TRAFFICACCIDENT_INFO", kTrafficaccident, Track::None, REGION},
    {"CFG_RULE_TRAFFICJUNCTION_INFO", kTrafficjunction, Track::None,
     R"("Direction":1,"FlowLimit":2,"Lane":3,"MiddleLine":[[1,2]],"PostLine":[[3,4]],"PreLine":[[5,6]],"SpeedLimit":[40,120],"TriggerMode":["Speed","RunRedLight"])"},
    {"CFG_RULE_TRAFFICGATE_INFO", kTrafficgate, Track::None,
     R"("DetectLine1":[[1,2]],"DetectLine2":[[3,4]],"Direction":1,"Lane":3,"LeftLine":[[5,6]],"MetricDistance":12.0625,"RightLine":[[7,8]],"SpeedLimit":[40,120],"SpeedWeight":100,"TriggerMode":["OverSpeed"])"},
    {"CFG_RULE_FACEDETECTION_INFO", kFacedetection, Track::None,
     REGION
     R"(,"FeatureEnable":true,"FeatureList":["Sex","Age","Emotion","Glasses","Race","Eye","Mouth","Mask","Beard","Attractive"],"HumanFaceTypes":["Normal","HideEye"],"MinDuration":5,"ReportInterval":30,"Sensitivity":6,)" FILTER},
    {"CFG_RULE_FACEANALYSIS_INFO", kFaceanalysis, Track::None,
     REGION R"(,"FeatureEnable":true,"FeatureList":["Attractive","Sex"],"Sensitivity":6,)" FILTER},
    {"CFG_RULE_TRAFFICJAM_INFO", kTrafficjam, Track::None,
     R"("Delay":1,)" REGION R"(,"Interval":2,"JamLineMargin":3,"LaneNumber":4,"ReportTimes":5)"},
    {"CFG_RULE_TRAFFICPARKING_INFO", kTrafficparking, Track::ToConfig,
     R"("Delay":1,)" REGION R"(,"LaneNumber":4,"ParkingAllowedTime":600,"ReportTimes":5,"Sensitivity":6)"},
    {"CFG_RULE_TRAFFICRUNRED_INFO", kTrafficrunred, Track::None,
     R"("Direction":1,"LaneNumber":4,"MiddleLine":[[1,2]],"PostLine":[[3,4]],"PreLine":[[5,6]])"},
    {"CFG_RULE_TRAFFICLANE_INFO", kTrafficlane, Track::ToConfig,
     REGION R"(,"Direction":[[1,2],[3,4]],"LaneNumber":4,"Sensitivity":6)"},
    {"CFG_RULE_TRAFFICBUSLANE_INFO", kTrafficbuslane, Track::ToConfig,
     R"("CarTypeInBusLane":1,)" REGION R"(,"Enclosure":2,"LaneNumber":4,"Sensitivity":6)"},
    {"CFG_RULE_TRAFFICOVERYELLOW_INFO", kTrafficoveryellow, Track::None, REGION R"(,"LaneNumber":4)"},
    {"CFG_RULE_TRAFFICUTURN_INFO", kTrafficuturn, Track::ToConfig,
     REGION R"(,"LaneNumber":4,)" FILTER R"(,"TriggerAngle":120)"},
    {"CFG_RULE_TRAFFICSPEED_INFO", kTrafficspeed, Track::None,
     R"("LaneNumber":4,"MinDuration":5,"SpeedLimit":[40,4000000000])"},
    {"CFG_RULE_PRISONERRISE_INFO", kPrisonerrise, Track::None,
     R"("BedMiddleLine":[[1,2],[3,4]],"BedSide":1,)" REGION
     R"(,"Direction":[[5,6],[7,8]],"MinDuration":5,"ReportInterval":30,)" FILTER},
    {"CFG_RULE_TRAFFICTOLLGATE_INFO", kTraffictollgate, Track::None, LINE R"(,"LaneNumber":4000000000)"},
    {"CFG_RULE_TRAFFICRETROGRADE_INFO", kTrafficretrograde, Track::ToConfig,
     REGION R"(,"Direction":[[1,2],[3,4]],"LaneNumber":4000000000,"Legal":true,"MinDuration":5)"},
    {"CFG_RULE_TRAFFICPRIORITY_INFO", kTrafficpriority, Track::None, R"("LaneNumber":-4)"},
    {"CFG_RULE_QUEUE_INFO", kQueue, Track::None, R"("DetectLine":[[1,2],[3,4]],"OccupyLineMargin":5,"TriggerTime":6)"},
    {"CFG_RULE_AUDIOABNORMAL_INFO", kAudioabnormal, Track::None, R"("Decibel":70,"Frequency":440,"MinDuration":5)"},
    {"CFG_RULE_CLIMB_INFO", kClimb, Track::None, LINE R"(,)" FILTER},
    {"CFG_RULE_LEAVE_INFO", kLeave, Track::None,
     REGION R"(,"MinDuration":4000000000,"Mode":"ByPatrol","ReportInterval":30,)" FILTER
            R"(,"TriggerMode":["NoPerson","Leave","Static"])"},
    {"CFG_RULE_TRAFFICYELLOWBOX_INFO", kTrafficyellowbox, Track::None,
     R"("FollowTime":1,"Interval1":2,"Interval2":3,"LaneNumber":4)"},
    {"CFG_RULE_TRAFFICPARKINGSPACE_INFO", kTrafficparkingspace, Track::None,
     R"("Delay":1,)" REGION R"(,"LaneNumber":4)"},
    {"CFG_RULE_TRAFFICSPACEOVERLINE_INFO", kTrafficspaceoverline, Track::None,
     R"("AllowParkingSpaceParkingSnap":true,"LaneNumber":4)"},
    {"CFG_RULE_TRAFFICSAFEBELT_INFO", kTrafficsafebelt, Track::None,
     R"("LaneNumber":4,"Seats":["MainSeat","SlaveSeat"])"},
    {"CFG_RULE_TRAFFICDRIVER_INFO", kTrafficdriver, Track::None, R"("LaneNumber":4)"},
    {"CFG_RULE_TRAFFICPEDESTRAIN_INFO", kTrafficpedestrain, Track::None, REGION R"(,"LaneNumber":4,"MinDuration":5)"},
    {"CFG_RULE_GETOUTBED_INFO", kGetoutbed, Track::None,
     R"("AssisDectLine":[[1,2],[3,4]],)" REGION R"(,"MinDuration":5,"ReportInterval":30)"},
    {"CFG_RULE_PATROL_INFO", kPatrol, Track::None,
     REGION R"(,"MinDuration":5,"PatrolTime":60,"ReportInterval":30,)" FILTER},
    {"CFG_RULE_ONDUTY_INFO", kOnduty, Track::None,
     REGION R"(,"MinDuration":5,"ReportInterval":30,"TemplateRegion":[[[1,2],[3,4]],[[5,6],[7,4000000000]]])"},
    {"CFG_RULE_HEATMAP_INFO", kHeatmap, Track::None, REGION R"(,"PlanId":4000000000,)" FILTER},
    {"CFG_RULE_TRAFFICPASS_INFO", kTrafficpass, Track::None, R"("FollowTime":1,"LaneNumber":4)"},
    {"CFG_RULE_VEHICLEANALYSE_INFO", kVehicleanalyse, Track::None, REGION R"(,)" FILTER},
    {"CFG_RULE_STANDUP_INFO", kStandup, Track::None,
     REGION R"(,"Direction":[[1,2],[3,4]],"Region":{"Max":[1,2,3,4],"Min":[5,6,7,8]})"},
    {"CFG_RULE_SHOOTINGSCORE_INFO", kShootingscore, Track::None,
     R"("Caliber":9,)" REGION R"(,"Round":10,"Sensitivity":6)"},
    {"CFG_RULE_LETRACK_INFO", kLetrack, Track::None, ""},
    {"CFG_RULE_MANSTAND_INFO", kManstand, Track::InRule,
     LINE R"(,)" REGION R"(,"DetectType":1,"MaxHeight":200,"MinHeight":100,"Sensitivity":6,"Threshold":3)"},
    {"CFG_RULE_STEREONUMBERSTAT_INFO", kStereonumberstat, Track::InRule,
     LINE
     R"(,)" REGION
     R"(,"Direction":"UpToDow","EnterThreshold":1,"ExitThreshold":2,"InsideThreshold":3,"MaxHeight":200,"MinHeight":100,"Sensitivity":6)"},
    {"CFG_RULE_ROADEVENT_INFO", kRoadevent, Track::None, REGION R"(,"MinDuration":5,"Sensitivity":6)"},
    {"CFG_RULE_CROWD_INFO", kCrowd, Track::InRule,
     R"("CrowdDensity":4000000000,"GeneralAlarmEnable":true,"PeopleStatRegions":[{"PeopleNumLimit":7,"Region":[[1,2],[3,4],[5,6],[7,8]]}],"RegionAlarmEnable":false,"SlaveTrackEnable":true)"},
};
static_assert(std::size(kSamples) == 58);

bool IsAudio(const RuleSample& sample) {
    return std::strcmp(sample.record, "CFG_RULE_AUDIOABNORMAL_INFO") == 0;
}

} // namespace

std::span<const RuleSample> RuleSamples() {
    return kSamples;
}

std::string LinkageText() {
    std::string text = R"({"AlarmOutEnable":false,"RecordEnable":true,"TimeSection":[)";
    for (int day = 0; day < 7; ++day) {
        text += day == 0 ? "[" : ",[";
        for (int section = 0; section < 10; ++section) {
            const std::string hour = std::to_string(10 + section);
            text += (section == 0 ? "\"" : ",\"") + std::to_string(day) + " " + hour + ":00:00-" + hour + ":59:59\"";
        }
        text += "]";
    }
    return text + "]}";
}

std::string RuleText(const RuleSample& sample, const RuleType& type, bool asWritten) {
    const bool isAudio = IsAudio(sample);
    std::string config(sample.config);
    const auto add = [](std::string& members, std::string_view more) {
        if (!members.empty() && !more.empty()) members += ",";
        members += more;
    };
    if (!asWritten) add(config, sample.onlyRead);
    // What is written without ever being read comes out as it was cleared.
    if (asWritten && std::strcmp(sample.record, "CFG_RULE_DENSITY_INFO") == 0) add(config, R"("MinDuration":0)");
    if (asWritten && sample.track == Track::ToConfig) add(config, R"("TrackEnable":true)");

    std::string rule = R"({"Enable":true,"EventHandler":)" + LinkageText() + R"(,"Name":"Rule of )" + type.name + "\"";
    const char* const written = type.written != nullptr ? type.written : type.name;
    rule += std::string(R"(,"Type":")") + (asWritten ? written : type.name) + "\"";
    if (!isAudio || !asWritten) {
        rule += R"(,"Class":"Traffic","Id":200,"ObjectTypes":["Human","Vehicle"],"PtzPresetId":3)";
    }
    const bool hasTrack = asWritten ? sample.track == Track::InRule : sample.track != Track::None;
    if (hasTrack) rule += R"(,"TrackEnable":true)";
    if (!config.empty()) rule += R"(,"Config":{)" + config + "}";
    if (config.empty() && asWritten) rule += R"(,"Config":null)"; // it stands in every rule that is written
    return rule + "}";
}

std::string RuleReply(std::string_view rules) {
    return R"({"id":7,"params":{"table":[)" + std::string(rules) + R"(]},"result":true,"session":1})";
}

std::string ManyRules(int count) {
    std::string rules;
    for (int i = 0; i < count; ++i) {
        const RuleSample& one = kSamples[static_cast<std::size_t>(i) % 9];
        if (i > 0) rules += ",";
        rules += RuleText(one, one.types[0], false);
    }
    return RuleReply(rules);
}

} // namespace orrery::test
