#include "events/EventMap.h"

#include "events/IntelligentEvents.h"
#include "events/OtherEvents.h"
#include "events/TrafficEvents.h"

#include "orrery/event_codes.h"

#include <array>
#include <limits>

namespace orrery::events {

namespace {

// Ascending by code.
constexpr EventRow kEvents[] = {
    Event(ORRERY_EVENT_CROSS_LINE_DETECTION, "CrossLineDetection", kCrossLineDetection).Renamed(CrossLineCode),
    Event(ORRERY_EVENT_CROSS_REGION_DETECTION, "CrossRegionDetection", kCrossRegionDetection),
    Event(ORRERY_EVENT_PASTE_DETECTION, "PasteDetection", kPasteDetection),
    Event(ORRERY_EVENT_LEFT_DETECTION, "LeftDetection", kLeftDetection),
    Event(ORRERY_EVENT_STAY_DETECTION, "StayDetection", kStayDetection),
    Event(ORRERY_EVENT_WANDER_DETECTION, "WanderDetection", kWanderDetection),
    Event(ORRERY_EVENT_PRESERVATION, "Preservation", kStayDetection),
    Event(ORRERY_EVENT_MOVE_DETECTION, "MoveDetection", kMoveDetection),
    Event(ORRERY_EVENT_TAIL_DETECTION, "TailDetection", kStayDetection),
    Event(ORRERY_EVENT_RIOTER_DETECTION, "RioterDetection", kRioterDetection),
    Event(ORRERY_EVENT_FIRE_DETECTION, "FireDetection", kStayDetection),
    Event(ORRERY_EVENT_SMOKE_DETECTION, "SmokeDetection", kSmokeDetection),
    Event(ORRERY_EVENT_FIGHT_DETECTION, "FightDetection", kRioterDetection),
    Event(ORRERY_EVENT_FLOW_STAT, "FlowStat", kFlowStat),
    Event(ORRERY_EVENT_NUMBER_STAT, "NumberStat", kNumberStat),
    Event(ORRERY_EVENT_VIDEO_ABNORMAL_DETECTION, "VideoAbnormalDetection", kVideoAbnormalDetection),
    Event(ORRERY_EVENT_TRAFFIC_CONTROL, "TrafficControl", kTrafficControl),
    Event(ORRERY_EVENT_TRAFFIC_ACCIDENT, "TrafficAccident", kTrafficAccident),
    Event(ORRERY_EVENT_TRAFFIC_JUNCTION, "TrafficJunction", kTrafficJunction)
        .Logs("traffic start", "ParseTraffic_JunctionInfo() start")
        .WithoutMemoryLogs("traffic continue"),
    Event(ORRERY_EVENT_TRAFFIC_GATE, "TrafficGate", kTrafficGate),
    Event(ORRERY_EVENT_TRAFFIC_SNAPSHOT, "TrafficSnapshot", kTrafficSnapshot),
    Event(ORRERY_EVENT_FACE_DETECTION, "FaceDetection", kFaceDetection).Reports(12288),
    Event(ORRERY_EVENT_TRAFFIC_JAM, "TrafficJam", kTrafficJam),
    Event(ORRERY_EVENT_TRAFFIC_RUN_RED_LIGHT, "TrafficRunRedLight", kTrafficRunRedLight),
    Event(ORRERY_EVENT_TRAFFIC_OVER_LINE, "TrafficOverLine", kTrafficOverLine),
    Event(ORRERY_EVENT_TRAFFIC_RETROGRADE, "TrafficRetrograde", kTrafficRetrograde),
    Event(ORRERY_EVENT_TRAFFIC_TURN_LEFT, "TrafficTurnLeft", kTrafficTurnLeft),
    Event(ORRERY_EVENT_TRAFFIC_TURN_RIGHT, "TrafficTurnRight", kTrafficTurnRight),
    Event(ORRERY_EVENT_TRAFFIC_U_TURN, "TrafficU-Turn", kTrafficUTurn),
    Event(ORRERY_EVENT_TRAFFIC_OVER_SPEED, "TrafficOverSpeed", kTrafficOverSpeed)
        .Logs("overspeed start", "overspeed  traffic car start", "overspeed  parse car data start")
        .WithoutMemoryLogs("overspeed continue"),
    Event(ORRERY_EVENT_TRAFFIC_UNDER_SPEED, "TrafficUnderSpeed", kTrafficUnderSpeed)
        .Logs("under speed start", "under speed traffic deal", "under speed start parse data")
        .WithoutMemoryLogs("under speed continue"),
    Event(ORRERY_EVENT_TRAFFIC_PARKING, "TrafficParking", kTrafficParking),
    Event(ORRERY_EVENT_TRAFFIC_WRONG_ROUTE, "TrafficWrongRoute", kTrafficWrongRoute),
    Event(ORRERY_EVENT_TRAFFIC_CROSS_LANE, "TrafficCrossLane", kTrafficCrossLane),
    Event(ORRERY_EVENT_TRAFFIC_OVER_YELLOW_LINE, "TrafficOverYellowLine", kTrafficOverYellowLine),
    Event(ORRERY_EVENT_TRAFFIC_DRIVING_ON_SHOULDER, "TrafficDrivingOnShoulder", kTrafficDrivingOnShoulder),
    Event(ORRERY_EVENT_TRAFFIC_YELLOW_PLATE_IN_LANE, "TrafficYellowPlateInLane", kTrafficYellowPlateInLane),
    Event(ORRERY_EVENT_TRAFFIC_PEDESTRAIN_PRIORITY, "TrafficPedestrainPriority", kTrafficPedestrainPriority),
    Event(ORRERY_EVENT_ELECTRO_SPARK_DETECTION, "ElectroSparkDetection", kElectroSparkDetection),
    Event(ORRERY_EVENT_TRAFFIC_NO_PASSING, "TrafficNoPassing", kTrafficNoPassing),
    Event(ORRERY_EVENT_RUN_DETECTION, "RunDetection", kRunDetection),
    Event(ORRERY_EVENT_RETROGRADE_DETECTION, "RetrogradeDetection", kRetrogradeDetection),
    Event(ORRERY_EVENT_IN_REGION_DETECTION, "InRegionDetection", kRioterDetection),
    Event(ORRERY_EVENT_TAKEN_AWAY_DETECTION, "TakenAwayDetection", kTakenAwayDetection),
    Event(ORRERY_EVENT_PARKING_DETECTION, "ParkingDetection", kParkingDetection),
    Event(ORRERY_EVENT_FACE_RECOGNITION, "FaceRecognition", kFaceRecognition),
    Event(ORRERY_EVENT_TRAFFIC_MANUAL_SNAP, "TrafficManualSnap", kTrafficManualSnap),
    Event(ORRERY_EVENT_TRAFFIC_FLOW_STAT, "TrafficFlowStat", kTrafficFlowStat),
    Event(ORRERY_EVENT_TRAFFIC_STAY, "TrafficStay", kTrafficStay),
    Event(ORRERY_EVENT_TRAFFIC_VEHICLE_IN_ROUTE, "TrafficVehicleInRoute", kTrafficVehicleInRoute),
    Event(ORRERY_EVENT_VIDEO_MOTION, "VideoMotion", kVideoMotion),
    Event(ORRERY_EVENT_ALARM_LOCAL, "AlarmLocal", kAlarmLocal),
    Event(ORRERY_EVENT_PRISONER_RISE_DETECTION, "PrisonerRiseDetection", kPrisonerRiseDetection),
    Event(ORRERY_EVENT_CROSS_FENCE_DETECTION, "CrossFenceDetection", kCrossFenceDetection),
    Event(ORRERY_EVENT_DENSITY_DETECTION, "DensityDetection", kDensityDetection)
        .WithoutMemoryLogs("New DEV_EVENT_DENSITYDETECTION_INFO struct failed."),
    Event(ORRERY_EVENT_QUEUE_DETECTION, "QueueDetection", kQueueDetection),
    Event(ORRERY_EVENT_TRAFFIC_VEHICLE_IN_BUS_ROUTE, "TrafficVehicleInBusRoute", kTrafficVehicleInBusRoute),
    Event(ORRERY_EVENT_TRAFFIC_BACKING, "TrafficBacking", kTrafficBacking),
    Event(ORRERY_EVENT_AUDIO_ABNORMAL_DETECTION, "AudioAbnormalDetection", kAudioAbnormalDetection),
    Event(ORRERY_EVENT_TRAFFIC_RUN_YELLOW_LIGHT, "TrafficRunYellowLight", kTrafficRunYellowLight),
    Event(ORRERY_EVENT_CLIMB_DETECTION, "ClimbDetection", kClimbDetection),
    Event(ORRERY_EVENT_LEAVE_DETECTION, "LeaveDetection", kLeaveDetection),
    Event(ORRERY_EVENT_TRAFFIC_PARKING_ON_YELLOW_BOX, "TrafficParkingOnYellowBox", kTrafficParkingOnYellowBox),
    Event(ORRERY_EVENT_TRAFFIC_PARKING_SPACE_PARKING, "TrafficParkingSpaceParking", kTrafficParkingSpaceParking),
    Event(ORRERY_EVENT_TRAFFIC_PARKING_SPACE_NO_PARKING, "TrafficParkingSpaceNoParking", kTrafficParkingSpaceParking),
    Event(ORRERY_EVENT_TRAFFIC_PEDESTRAIN, "TrafficPedestrain", kTrafficPedestrain),
    Event(ORRERY_EVENT_TRAFFIC_THROW, "TrafficThrow", kTrafficThrow),
    Event(ORRERY_EVENT_TRAFFIC_IDLE, "TrafficIdle", kTrafficIdle),
    Event(ORRERY_EVENT_VEHICLE_ACC, "VehicleACC", kVehicleACC),
    Event(ORRERY_EVENT_VEHICLE_TURNOVER, "VehicleTurnover", kVehicleTurnover),
    Event(ORRERY_EVENT_VEHICLE_COLLISION, "VehicleCollision", kVehicleCollision),
    Event(ORRERY_EVENT_TRAFFIC_PARKING_SPACE_OVER_LINE, "TrafficParkingSpaceOverLine", kTrafficParkingSpaceOverLine),
    Event(ORRERY_EVENT_MULTI_SCENE_SWITCH, "MultiSceneSwitch", kMultiSceneSwitch),
    Event(ORRERY_EVENT_TRAFFIC_RESTRICTED_PLATE, "TrafficRestrictedPlate", kTrafficRestrictedPlate),
    Event(ORRERY_EVENT_TRAFFIC_OVER_STOP_LINE, "TrafficOverStopLine", kTrafficOverStopLine),
    Event(ORRERY_EVENT_TRAFFIC_WITHOUT_SAFE_BELT, "TrafficWithoutSafeBelt", kTrafficWithoutSafeBelt),
    Event(ORRERY_EVENT_TRAFFIC_DRIVER_SMOKING, "TrafficDriverSmoking", kTrafficDriverSmoking),
    Event(ORRERY_EVENT_TRAFFIC_DRIVER_CALLING, "TrafficDriverCalling", kTrafficDriverCalling),
    Event(ORRERY_EVENT_TRAFFIC_PEDESTRIAN_RUN_RED_LIGHT, "TrafficPedestrianRunRedLight", kTrafficPedestrianRunRedLight),
    Event(ORRERY_EVENT_TRAFFIC_PASS_NOT_IN_ORDER, "TrafficPassNotInOrder", kTrafficPassNotInOrder),
    Event(ORRERY_EVENT_OBJECT_DETECTION, "ObjectDetection", kObjectDetection),
    Event(ORRERY_EVENT_ANALOG_ALARM, "AnalogAlarm", kAnalogAlarm),
    Event(ORRERY_EVENT_CROSS_LINE_EX, "", kCrossLineEx),
    Event(ORRERY_EVENT_VIDEO_BLIND, "VideoBlind", kVideoBlind).NeedsNoData(),
    Event(ORRERY_EVENT_GET_OUT_BED_DETECTION, "GetOutBedDetection", kGetOutBedDetection),
    Event(ORRERY_EVENT_PATROL_DETECTION, "PatrolDetection", kGetOutBedDetection),
    Event(ORRERY_EVENT_ON_DUTY_DETECTION, "OnDutyDetection", kGetOutBedDetection),
    Event(ORRERY_EVENT_VIDEO_STATIC, "VideoStatic", kVideoStatic),
    Event(ORRERY_EVENT_VIDEO_TIMING, "VideoTiming", kVideoTiming),
    Event(ORRERY_EVENT_CITIZEN_ID_CARD, "CitizenIDCard", kCitizenIDCard),
    Event(ORRERY_EVENT_PIC_INFO, "PicInfo", kPicInfo),
    Event(ORRERY_EVENT_NET_PLAY_CHECK, "NetPlayCheck", kNetPlayCheck),
    Event(ORRERY_EVENT_TRAFFIC_JAM_FORBID_INTO, "TrafficJamForbidInto", kTrafficJamForbidInto),
    Event(ORRERY_EVENT_SNAP_BY_TIME, "SnapByTime", kSnapByTime).NeedsNoData(),
    Event(ORRERY_EVENT_PTZ_PRESET, "PtzPreset", kPtzPreset),
    Event(ORRERY_EVENT_RFID_INFO, "RFIDInfo", kRFIDInfo),
    Event(ORRERY_EVENT_QSY_TRAFFIC_CAR_WEIGHT, "QSYTrafficCarWeight", kQSYTrafficCarWeight)
        .Logs(nullptr, "ParseTraffic_JunctionInfo() start"),
    Event(ORRERY_EVENT_TRAFFIC_COMPARE_PLATE, "TrafficComparePlate", kTrafficComparePlate),
    Event(ORRERY_EVENT_SHOOTING_SCORE_RECOGNITION, "ShootingScoreRecognition", kShootingScoreRecognition),
    Event(ORRERY_EVENT_TRAFFIC_FCC, "TrafficFcc", kTrafficFcc),
    Event(ORRERY_EVENT_TRANSFINITE, "Transfinite", kTransfinite),
    Event(ORRERY_EVENT_SCENE_CHANGE, "SceneChange", kSceneChange),
    Event(ORRERY_EVENT_TRAFFIC_VIDEO_ANALYSE_PRE_SNAP, "TrafficVideoAnalysePreSnap", kTrafficVideoAnalysePreSnap),
    Event(ORRERY_EVENT_NEAR_DISTANCE_DETECTION, "NearDistanceDetection", kNearDistanceDetection),
    Event(ORRERY_EVENT_PERSON_FEATURE, "PersonFeature", kPersonFeature),
    Event(ORRERY_EVENT_NON_MOTOR_FEATURE, "NonMotorFeature", kNonMotorFeature),
    Event(ORRERY_EVENT_TUMBLE_DETECTION, "TumbleDetection", kTumbleDetection),
    Event(ORRERY_EVENT_LINK_SD, "LinkSD", kLinkSD),
    Event(ORRERY_EVENT_OIL4_G_FLOW_RATE, "Oil4GFlowRate", kOil4GFlowRate),
    Event(ORRERY_EVENT_ACCESS_CONTROL, "AccessControl", kAccessControl),
    Event(ORRERY_EVENT_SNAP_MANUAL, "SnapManual", kSnapManual).NeedsNoData(),
    Event(ORRERY_EVENT_TRAFFIC_ELE_TAG_INFO, "TrafficEleTagInfo", kTrafficEleTagInfo),
    Event(ORRERY_EVENT_TIRED_PHYSIOLOGICAL, "TiredPhysiological", kTiredPhysiological),
    Event(ORRERY_EVENT_BUS_SHARP_TURN, "BusSharpTurn", kBusSharpTurn),
    Event(ORRERY_EVENT_CITIZEN_PICTURE_COMPARE, "CitizenPictureCompare", kCitizenPictureCompare),
    Event(ORRERY_EVENT_TRAFFIC_DRIVER_LOWER_HEAD, "TrafficDriverLowerHead", kTrafficDriverLowerHead),
    Event(ORRERY_EVENT_TRAFFIC_DRIVER_LOOK_AROUND, "TrafficDriverLookAround", kTrafficDriverLookAround),
    Event(ORRERY_EVENT_TRAFFIC_DRIVER_LEAVE_POST, "TrafficDriverLeavePost", kTrafficDriverLeavePost),
    Event(ORRERY_EVENT_MAN_STAND_DETECTION, "ManStandDetection", kManStandDetection),
    Event(ORRERY_EVENT_MAN_NUM_DETECTION, "ManNumDetection", kManNumDetection),
    Event(ORRERY_EVENT_TRAFFIC_DRIVER_YAWN, "TrafficDriverYawn", kTrafficDriverYawn),
    Event(ORRERY_EVENT_HUMAN_TRAIT, "HumanTrait", kHumanTrait),
    Event(ORRERY_EVENT_TRAFFIC_TURN_LEFT_AFTER_STRAIGHT, "TrafficTurnLeftAfterStraight", kTrafficTurnLeftAfterStraight),
    Event(ORRERY_EVENT_TRAFFIC_BIG_BEND_SMALL_TURN, "TrafficBigBendSmallTurn", kTrafficBigBendSmallTurn),
    Event(ORRERY_EVENT_ROAD_CONSTRUCTION, "RoadConstruction", kRoadConstruction),
    Event(ORRERY_EVENT_ROAD_BLOCK, "RoadBlock", kRoadConstruction),
    Event(ORRERY_EVENT_TRAFFIC_QUEUE_JUMP, "TrafficQueueJump", kTrafficQueueJump),
    Event(ORRERY_EVENT_VEHICLE_SUSPICIOUS_CAR, "VehicleSuspiciousCar", kVehicleSuspiciousCar),
    Event(ORRERY_EVENT_TRAFFIC_TURN_RIGHT_AFTER_STRAIGHT, "TrafficTurnRightAfterStraight",
          kTrafficTurnRightAfterStraight),
    Event(ORRERY_EVENT_TRAFFIC_TURN_RIGHT_AFTER_PEOPLE, "TrafficTurnRightAfterPeople", kTrafficTurnRightAfterStraight),
    Event(ORRERY_EVENT_INSTALL_CARD_READER, "InstallCardReader", kInstallCardReader),
    Event(ORRERY_EVENT_ACC_OFF_SNAP, "AccOffSnap", kAccOffSnap),
    Event(ORRERY_EVENT_X_RAY_DETECTION, "XRayDetection", kXRayDetection),
    Event(ORRERY_EVENT_NOT_CLEAR_CAR, "NotClearCar", kNotClearCar),
    Event(ORRERY_EVENT_SOS_ALERT, "SOSAlert", kSOSAlert),
    Event(ORRERY_EVENT_OVER_LOAD, "OverLoad", kOverLoad),
    Event(ORRERY_EVENT_NON_WORKING_TIME, "NonWorkingTime", kNonWorkingTime),
    Event(ORRERY_EVENT_TRAFFIC_HIGH_BEAM, "TrafficHighBeam", kTrafficHighBeam),
    Event(ORRERY_EVENT_TRAFFIC_TRUCKFORBID, "TrafficTruckforbid", kTrafficTruckforbid),
    Event(ORRERY_EVENT_DRIVING_WITHOUT_CARD, "DrivingWithoutCard", kDrivingWithoutCard),
    Event(ORRERY_EVENT_HIGH_SPEED, "HighSpeed", kHighSpeed),
    Event(ORRERY_EVENT_CROWD_DETECTION, "CrowdDetection", kCrowdDetection),
    Event(ORRERY_EVENT_TRAFFIC_CAR_DISTANCE_SHORT, "TrafficCarDistanceShort", kTrafficCarDistanceShort),
    Event(ORRERY_EVENT_PEDESTRIAN_JUNCTION, "PedestrianJunction", kPedestrianJunction),
    Event(ORRERY_EVENT_VEHICLE_RECOGNITION, "VehicleRecognition", kVehicleRecognition),
    Event(ORRERY_EVENT_PASS_CHANGE, "PassChange", kPassChange),
    Event(ORRERY_EVENT_TRAFFIC_WAITING_AREA, "TrafficWaitingArea", kTrafficWaitingArea),
    Event(ORRERY_EVENT_SMART_MOTION_HUMAN, "SmartMotionHuman", kSmartMotionHuman),
    Event(ORRERY_EVENT_SMART_MOTION_VEHICLE, "SmartMotionVehicle", kSmartMotionHuman),
};

constexpr bool Ascend(std::span<const EventRow> rows) {
    for (std::size_t i = 1; i < rows.size(); ++i) {
        if (rows[i - 1].code >= rows[i].code) return false;
    }
    return true;
}
static_assert(Ascend(kEvents));

// Each code's place among the rows, counted from 1: a look-up is one load. 0 for a code that has none.
constexpr std::size_t kCodes = std::size_t{kEvents[std::size(kEvents) - 1].code} + 1;
using Place = std::uint8_t;
static_assert(std::size(kEvents) <= std::numeric_limits<Place>::max());
constexpr auto kPlaces = [] {
    std::array<Place, kCodes> places{};
    for (std::size_t i = 0; i < std::size(kEvents); ++i)
        places[kEvents[i].code] = static_cast<Place>(i + 1);
    return places;
}();

} // namespace

std::span<const EventRow> Events() noexcept {
    return kEvents;
}

const EventRow* FindEvent(std::uint32_t code) noexcept {
    const Place place = code < kCodes ? kPlaces[code] : Place{0};
    return place != 0 ? &kEvents[place - 1] : nullptr;
}

} // namespace orrery::events
