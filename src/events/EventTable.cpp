#include "events/EventTable.h"

#include "events/IntelligentEvents.h"
#include "events/OtherEvents.h"
#include "events/TrafficEvents.h"

#include <algorithm>

namespace orrery::events {

namespace {

// Ascending by code, so that a look-up is a binary search.
constexpr EventRow kEvents[] = {
    Event(2, "CrossLineDetection", kCrossLineDetection).Renamed(CrossLineCode),
    Event(3, "CrossRegionDetection", kCrossRegionDetection),
    Event(4, "PasteDetection", kPasteDetection),
    Event(5, "LeftDetection", kLeftDetection),
    Event(6, "StayDetection", kStayDetection),
    Event(7, "WanderDetection", kWanderDetection),
    Event(8, "Preservation", kStayDetection),
    Event(9, "MoveDetection", kMoveDetection),
    Event(10, "TailDetection", kStayDetection),
    Event(11, "RioterDetection", kRioterDetection),
    Event(12, "FireDetection", kStayDetection),
    Event(13, "SmokeDetection", kSmokeDetection),
    Event(14, "FightDetection", kRioterDetection),
    Event(15, "FlowStat", kFlowStat),
    Event(16, "NumberStat", kNumberStat),
    Event(19, "VideoAbnormalDetection", kVideoAbnormalDetection),
    Event(21, "TrafficControl", kTrafficControl),
    Event(22, "TrafficAccident", kTrafficAccident),
    Event(23, "TrafficJunction", kTrafficJunction)
        .Logs("traffic start", "ParseTraffic_JunctionInfo() start")
        .WithoutMemoryLogs("traffic continue"),
    Event(24, "TrafficGate", kTrafficGate),
    Event(25, "TrafficSnapshot", kTrafficSnapshot),
    Event(26, "FaceDetection", kFaceDetection).Reports(12288),
    Event(27, "TrafficJam", kTrafficJam),
    Event(256, "TrafficRunRedLight", kTrafficRunRedLight),
    Event(257, "TrafficOverLine", kTrafficOverLine),
    Event(258, "TrafficRetrograde", kTrafficRetrograde),
    Event(259, "TrafficTurnLeft", kTrafficTurnLeft),
    Event(260, "TrafficTurnRight", kTrafficTurnRight),
    Event(261, "TrafficU-Turn", kTrafficUTurn),
    Event(262, "TrafficOverSpeed", kTrafficOverSpeed)
        .Logs("overspeed start", "overspeed  traffic car start", "overspeed  parse car data start")
        .WithoutMemoryLogs("overspeed continue"),
    Event(263, "TrafficUnderSpeed", kTrafficUnderSpeed)
        .Logs("under speed start", "under speed traffic deal", "under speed start parse data")
        .WithoutMemoryLogs("under speed continue"),
    Event(264, "TrafficParking", kTrafficParking),
    Event(265, "TrafficWrongRoute", kTrafficWrongRoute),
    Event(266, "TrafficCrossLane", kTrafficCrossLane),
    Event(267, "TrafficOverYellowLine", kTrafficOverYellowLine),
    Event(268, "TrafficDrivingOnShoulder", kTrafficDrivingOnShoulder),
    Event(270, "TrafficYellowPlateInLane", kTrafficYellowPlateInLane),
    Event(271, "TrafficPedestrainPriority", kTrafficPedestrainPriority),
    Event(272, "ElectroSparkDetection", kElectroSparkDetection),
    Event(273, "TrafficNoPassing", kTrafficNoPassing),
    Event(274, "RunDetection", kRunDetection),
    Event(275, "RetrogradeDetection", kRetrogradeDetection),
    Event(276, "InRegionDetection", kRioterDetection),
    Event(277, "TakenAwayDetection", kTakenAwayDetection),
    Event(278, "ParkingDetection", kParkingDetection),
    Event(279, "FaceRecognition", kFaceRecognition),
    Event(280, "TrafficManualSnap", kTrafficManualSnap),
    Event(281, "TrafficFlowStat", kTrafficFlowStat),
    Event(282, "TrafficStay", kTrafficStay),
    Event(283, "TrafficVehicleInRoute", kTrafficVehicleInRoute),
    Event(284, "VideoMotion", kVideoMotion),
    Event(285, "AlarmLocal", kAlarmLocal),
    Event(286, "PrisonerRiseDetection", kPrisonerRiseDetection),
    Event(287, "CrossFenceDetection", kCrossFenceDetection),
    Event(289, "DensityDetection", kDensityDetection)
        .WithoutMemoryLogs("New DEV_EVENT_DENSITYDETECTION_INFO struct failed."),
    Event(291, "QueueDetection", kQueueDetection),
    Event(292, "TrafficVehicleInBusRoute", kTrafficVehicleInBusRoute),
    Event(293, "TrafficBacking", kTrafficBacking),
    Event(294, "AudioAbnormalDetection", kAudioAbnormalDetection),
    Event(295, "TrafficRunYellowLight", kTrafficRunYellowLight),
    Event(296, "ClimbDetection", kClimbDetection),
    Event(297, "LeaveDetection", kLeaveDetection),
    Event(298, "TrafficParkingOnYellowBox", kTrafficParkingOnYellowBox),
    Event(299, "TrafficParkingSpaceParking", kTrafficParkingSpaceParking),
    Event(300, "TrafficParkingSpaceNoParking", kTrafficParkingSpaceParking),
    Event(301, "TrafficPedestrain", kTrafficPedestrain),
    Event(302, "TrafficThrow", kTrafficThrow),
    Event(303, "TrafficIdle", kTrafficIdle),
    Event(304, "VehicleACC", kVehicleACC),
    Event(305, "VehicleTurnover", kVehicleTurnover),
    Event(306, "VehicleCollision", kVehicleCollision),
    Event(308, "TrafficParkingSpaceOverLine", kTrafficParkingSpaceOverLine),
    Event(309, "MultiSceneSwitch", kMultiSceneSwitch),
    Event(310, "TrafficRestrictedPlate", kTrafficRestrictedPlate),
    Event(311, "TrafficOverStopLine", kTrafficOverStopLine),
    Event(312, "TrafficWithoutSafeBelt", kTrafficWithoutSafeBelt),
    Event(313, "TrafficDriverSmoking", kTrafficDriverSmoking),
    Event(314, "TrafficDriverCalling", kTrafficDriverCalling),
    Event(315, "TrafficPedestrianRunRedLight", kTrafficPedestrianRunRedLight),
    Event(316, "TrafficPassNotInOrder", kTrafficPassNotInOrder),
    Event(321, "ObjectDetection", kObjectDetection),
    Event(336, "AnalogAlarm", kAnalogAlarm),
    Event(337, "", kCrossLineEx),
    Event(339, "VideoBlind", kVideoBlind).NeedsNoData(),
    Event(341, "GetOutBedDetection", kGetOutBedDetection),
    Event(342, "PatrolDetection", kGetOutBedDetection),
    Event(343, "OnDutyDetection", kGetOutBedDetection),
    Event(349, "VideoStatic", kVideoStatic),
    Event(350, "VideoTiming", kVideoTiming),
    Event(352, "CitizenIDCard", kCitizenIDCard),
    Event(353, "PicInfo", kPicInfo),
    Event(354, "NetPlayCheck", kNetPlayCheck),
    Event(355, "TrafficJamForbidInto", kTrafficJamForbidInto),
    Event(356, "SnapByTime", kSnapByTime).NeedsNoData(),
    Event(357, "PtzPreset", kPtzPreset),
    Event(358, "RFIDInfo", kRFIDInfo),
    Event(360, "QSYTrafficCarWeight", kQSYTrafficCarWeight).Logs(nullptr, "ParseTraffic_JunctionInfo() start"),
    Event(361, "TrafficComparePlate", kTrafficComparePlate),
    Event(362, "ShootingScoreRecognition", kShootingScoreRecognition),
    Event(363, "TrafficFcc", kTrafficFcc),
    Event(364, "Transfinite", kTransfinite),
    Event(365, "SceneChange", kSceneChange),
    Event(368, "TrafficVideoAnalysePreSnap", kTrafficVideoAnalysePreSnap),
    Event(372, "NearDistanceDetection", kNearDistanceDetection),
    Event(373, "PersonFeature", kPersonFeature),
    Event(374, "NonMotorFeature", kNonMotorFeature),
    Event(375, "TumbleDetection", kTumbleDetection),
    Event(513, "LinkSD", kLinkSD),
    Event(515, "Oil4GFlowRate", kOil4GFlowRate),
    Event(516, "AccessControl", kAccessControl),
    Event(517, "SnapManual", kSnapManual).NeedsNoData(),
    Event(518, "TrafficEleTagInfo", kTrafficEleTagInfo),
    Event(519, "TiredPhysiological", kTiredPhysiological),
    Event(520, "BusSharpTurn", kBusSharpTurn),
    Event(521, "CitizenPictureCompare", kCitizenPictureCompare),
    Event(522, "TrafficDriverLowerHead", kTrafficDriverLowerHead),
    Event(523, "TrafficDriverLookAround", kTrafficDriverLookAround),
    Event(524, "TrafficDriverLeavePost", kTrafficDriverLeavePost),
    Event(525, "ManStandDetection", kManStandDetection),
    Event(526, "ManNumDetection", kManNumDetection),
    Event(528, "TrafficDriverYawn", kTrafficDriverYawn),
    Event(533, "HumanTrait", kHumanTrait),
    Event(536, "TrafficTurnLeftAfterStraight", kTrafficTurnLeftAfterStraight),
    Event(537, "TrafficBigBendSmallTurn", kTrafficBigBendSmallTurn),
    Event(538, "RoadConstruction", kRoadConstruction),
    Event(539, "RoadBlock", kRoadConstruction),
    Event(540, "TrafficQueueJump", kTrafficQueueJump),
    Event(541, "VehicleSuspiciousCar", kVehicleSuspiciousCar),
    Event(542, "TrafficTurnRightAfterStraight", kTrafficTurnRightAfterStraight),
    Event(543, "TrafficTurnRightAfterPeople", kTrafficTurnRightAfterStraight),
    Event(544, "InstallCardReader", kInstallCardReader),
    Event(546, "AccOffSnap", kAccOffSnap),
    Event(547, "XRayDetection", kXRayDetection),
    Event(548, "NotClearCar", kNotClearCar),
    Event(549, "SOSAlert", kSOSAlert),
    Event(550, "OverLoad", kOverLoad),
    Event(551, "NonWorkingTime", kNonWorkingTime),
    Event(552, "TrafficHighBeam", kTrafficHighBeam),
    Event(553, "TrafficTruckforbid", kTrafficTruckforbid),
    Event(554, "DrivingWithoutCard", kDrivingWithoutCard),
    Event(555, "HighSpeed", kHighSpeed),
    Event(556, "CrowdDetection", kCrowdDetection),
    Event(557, "TrafficCarDistanceShort", kTrafficCarDistanceShort),
    Event(560, "PedestrianJunction", kPedestrianJunction),
    Event(561, "VehicleRecognition", kVehicleRecognition),
    Event(562, "PassChange", kPassChange),
    Event(564, "TrafficWaitingArea", kTrafficWaitingArea),
    Event(633, "SmartMotionHuman", kSmartMotionHuman),
    Event(634, "SmartMotionVehicle", kSmartMotionHuman),
};

constexpr bool Ascend(std::span<const EventRow> rows) {
    for (std::size_t i = 1; i < rows.size(); ++i) {
        if (rows[i - 1].code >= rows[i].code) return false;
    }
    return true;
}
static_assert(Ascend(kEvents));

} // namespace

std::span<const EventRow> Events() noexcept {
    return kEvents;
}

const EventRow* FindEvent(std::uint32_t code) noexcept {
    const auto* const found =
        std::lower_bound(std::begin(kEvents), std::end(kEvents), code,
                         [](const EventRow& row, std::uint32_t wanted) { return row.code < wanted; });
    return found != std::end(kEvents) && found->code == code ? found : nullptr;
}

} // namespace orrery::events
