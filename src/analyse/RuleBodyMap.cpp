#include "analyse/RuleBodyMap.h"

#include "analyse/RuleBodies.h"

#include "orrery/event_types.h"

#include <array>
#include <iterator>

namespace orrery {

namespace {

using namespace rules;

template <class R>
constexpr RuleBody Body(std::uint32_t code, const record::TypedTable<R>& table) {
    RuleBody body;
    body.code = code;
    body.table = &table;
    body.size = sizeof(R);
    body.week = offsetof(R, stuTimeSection);
    if constexpr (requires(R record) { record.bClearTimeSection; }) {
        body.cleared = record::MakeSlot<decltype(R::bClearTimeSection)>(offsetof(R, bClearTimeSection));
    }
    return body;
}

constexpr RuleBody kBodies[] = {
    Body(ORRERY_RULE_CROSS_LINE_DETECTION, kCrossLine),
    Body(ORRERY_RULE_CROSS_REGION_DETECTION, kCrossRegion),
    Body(ORRERY_RULE_PASTE_DETECTION, kFire),
    Body(ORRERY_RULE_LEFT_DETECTION, kLeft),
    Body(ORRERY_RULE_STAY_DETECTION, kStay),
    Body(ORRERY_RULE_WANDER_DETECTION, kStay),
    Body(ORRERY_RULE_PRESERVATION, kPreservation),
    Body(ORRERY_RULE_MOVE_DETECTION, kMove),
    Body(ORRERY_RULE_TAIL_DETECTION, kPreservation),
    Body(ORRERY_RULE_RIOTER_DETECTION, kRioter),
    Body(ORRERY_RULE_FIRE_DETECTION, kFire),
    Body(ORRERY_RULE_SMOKE_DETECTION, kFire),
    Body(ORRERY_RULE_FIGHT_DETECTION, kFight),
    Body(ORRERY_RULE_FLOW_STAT, kFlowStat),
    Body(ORRERY_RULE_NUMBER_STAT, kNumberStat),
    Body(ORRERY_RULE_VIDEO_ABNORMAL_DETECTION, kVideoAbnormal),
    Body(ORRERY_RULE_TRAFFIC_CONTROL, kTrafficControl),
    Body(ORRERY_RULE_TRAFFIC_ACCIDENT, kTrafficAccident),
    Body(ORRERY_RULE_TRAFFIC_JUNCTION, kTrafficJunction),
    Body(ORRERY_RULE_TRAFFIC_GATE, kTrafficGate),
    Body(ORRERY_RULE_FACE_DETECTION, kFaceDetection),
    Body(ORRERY_RULE_TRAFFIC_JAM, kTrafficJam),
    Body(ORRERY_RULE_TRAFFIC_RUN_RED_LIGHT, kTrafficRunRed),
    Body(ORRERY_RULE_TRAFFIC_OVER_LINE, kTrafficLane),
    Body(ORRERY_RULE_TRAFFIC_RETROGRADE, kTrafficRetrograde),
    Body(ORRERY_RULE_TRAFFIC_TURN_LEFT, kTrafficLane),
    Body(ORRERY_RULE_TRAFFIC_TURN_RIGHT, kTrafficLane),
    Body(ORRERY_RULE_TRAFFIC_U_TURN, kTrafficUTurn),
    Body(ORRERY_RULE_TRAFFIC_OVER_SPEED, kTrafficSpeed),
    Body(ORRERY_RULE_TRAFFIC_UNDER_SPEED, kTrafficSpeed),
    Body(ORRERY_RULE_TRAFFIC_PARKING, kTrafficParking),
    Body(ORRERY_RULE_TRAFFIC_WRONG_ROUTE, kTrafficLane),
    Body(ORRERY_RULE_TRAFFIC_CROSS_LANE, kTrafficLane),
    Body(ORRERY_RULE_TRAFFIC_OVER_YELLOW_LINE, kTrafficOverYellow),
    Body(ORRERY_RULE_TRAFFIC_YELLOW_PLATE_IN_LANE, kTrafficLane),
    Body(ORRERY_RULE_TRAFFIC_PEDESTRAIN_PRIORITY, kTrafficPriority),
    Body(ORRERY_RULE_ELECTRO_SPARK_DETECTION, kPreservation),
    Body(ORRERY_RULE_RUN_DETECTION, kRun),
    Body(ORRERY_RULE_RETROGRADE_DETECTION, kRetrograde),
    Body(ORRERY_RULE_TAKEN_AWAY_DETECTION, kLeft),
    Body(ORRERY_RULE_PARKING_DETECTION, kLeft),
    Body(ORRERY_RULE_FACE_RECOGNITION, kFaceRecognition),
    Body(ORRERY_RULE_TRAFFIC_VEHICLE_IN_ROUTE, kTrafficLane),
    Body(ORRERY_RULE_PRISONER_RISE_DETECTION, kPrisonerRise),
    Body(ORRERY_RULE_CROSS_FENCE_DETECTION, kCrossFence),
    Body(ORRERY_RULE_TRAFFIC_TOLL_GATE, kTrafficTollGate),
    Body(ORRERY_RULE_DENSITY_DETECTION, kDensity),
    Body(ORRERY_RULE_QUEUE_DETECTION, kQueue),
    Body(ORRERY_RULE_TRAFFIC_VEHICLE_IN_BUS_ROUTE, kTrafficBusLane),
    Body(ORRERY_RULE_TRAFFIC_BACKING, kTrafficLane),
    Body(ORRERY_RULE_AUDIO_ABNORMAL_DETECTION, kAudioAbnormal),
    Body(ORRERY_RULE_CLIMB_DETECTION, kClimb),
    Body(ORRERY_RULE_LEAVE_DETECTION, kLeave),
    Body(ORRERY_RULE_TRAFFIC_PARKING_ON_YELLOW_BOX, kTrafficYellowBox),
    Body(ORRERY_RULE_TRAFFIC_PARKING_SPACE_PARKING, kTrafficParkingSpace),
    Body(ORRERY_RULE_TRAFFIC_PARKING_SPACE_NO_PARKING, kTrafficParkingSpace),
    Body(ORRERY_RULE_TRAFFIC_PEDESTRAIN, kTrafficPedestrain),
    Body(ORRERY_RULE_TRAFFIC_THROW, kTrafficPedestrain),
    Body(ORRERY_RULE_TRAFFIC_IDLE, kTrafficJam),
    Body(ORRERY_RULE_TRAFFIC_PARKING_SPACE_OVER_LINE, kTrafficSpaceOverLine),
    Body(ORRERY_RULE_TRAFFIC_WITHOUT_SAFE_BELT, kTrafficSafeBelt),
    Body(ORRERY_RULE_TRAFFIC_DRIVER_SMOKING, kTrafficDriver),
    Body(ORRERY_RULE_TRAFFIC_DRIVER_CALLING, kTrafficDriver),
    Body(ORRERY_RULE_TRAFFIC_PEDESTRIAN_RUN_RED_LIGHT, kTrafficRunRed),
    Body(ORRERY_RULE_TRAFFIC_PASS_NOT_IN_ORDER, kTrafficPass),
    Body(ORRERY_RULE_GET_OUT_BED_DETECTION, kGetOutBed),
    Body(ORRERY_RULE_PATROL_DETECTION, kPatrol),
    Body(ORRERY_RULE_ON_DUTY_DETECTION, kOnDuty),
    Body(ORRERY_RULE_HEAT_MAP, kHeatMap),
    Body(ORRERY_RULE_STAND_UP_DETECTION, kStandUp).NotRead(),
    Body(ORRERY_RULE_SHOOTING_SCORE_RECOGNITION, kShootingScore),
    Body(ORRERY_RULE_LE_TRACK, kLeTrack),
    Body(ORRERY_RULE_NEAR_DISTANCE_DETECTION, kManStand),
    Body(ORRERY_RULE_VEHICLE_ANALYSE, kVehicleAnalyse),
    Body(ORRERY_RULE_MAN_STAND_DETECTION, kManStand),
    Body(ORRERY_RULE_MAN_NUM_DETECTION, kManStand),
    Body(ORRERY_RULE_STEREO_NUMBER_STAT, kStereoNumberStat),
    Body(ORRERY_RULE_NUMBER_STAT_PLAN, kNumberStat),
    Body(ORRERY_RULE_HEAT_MAP_PLAN, kHeatMap),
    Body(ORRERY_RULE_FACE_ANALYSIS, kFaceAnalysis),
    Body(ORRERY_RULE_ROAD_CONSTRUCTION, kRoadEvent),
    Body(ORRERY_RULE_ROAD_BLOCK, kRoadEvent),
    Body(ORRERY_RULE_CROWD_DETECTION, kCrowd),
    Body(ORRERY_RULE_TRAFFIC_PARKING_SPACE_DETECTION, kTrafficParking),
};

constexpr std::size_t kBodyCount = std::size(kBodies);

constexpr bool CodesAscend() {
    for (std::size_t i = 1; i < kBodyCount; ++i) {
        if (kBodies[i - 1].code >= kBodies[i].code) return false;
    }
    return true;
}
static_assert(CodesAscend(), "a code stands in the map once");

constexpr std::uint32_t kNoPassingSize = 132;

constexpr std::uint8_t kNoBody = 0xff;

constexpr auto kByCode = [] {
    std::array<std::uint8_t, kBodies[kBodyCount - 1].code + 1> index{};
    index.fill(kNoBody);
    for (std::uint8_t i = 0; i < kBodyCount; ++i)
        index[kBodies[i].code] = i;
    return index;
}();

} // namespace

std::span<const RuleBody> RuleBodies() noexcept {
    return kBodies;
}

const RuleBody* FindRuleBody(std::uint32_t code) noexcept {
    return code < kByCode.size() && kByCode[code] != kNoBody ? &kBodies[kByCode[code]] : nullptr;
}

std::uint32_t RuleRecordSize(std::uint32_t code) noexcept {
    if (code == ORRERY_RULE_TRAFFIC_NO_PASSING) return kNoPassingSize;
    const RuleBody* const body = FindRuleBody(code);
    return body == nullptr ? 0 : body->size;
}

} // namespace orrery
