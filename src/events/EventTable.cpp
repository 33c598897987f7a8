#include "events/EventTable.h"

#include "events/OtherEvents.h"
#include "events/TrafficEvents.h"

#include <algorithm>

namespace orrery::events {

namespace {

// Ascending by code, so that a look-up is a binary search.
constexpr EventRow kEvents[] = {
    Event(21, "TrafficControl", kTrafficControl),
    Event(22, "TrafficAccident", kTrafficAccident),
    Event(23, "TrafficJunction", kTrafficJunction).WithoutMemoryLogs("traffic continue"),
    Event(24, "TrafficGate", kTrafficGate),
    Event(25, "TrafficSnapshot", kTrafficSnapshot),
    Event(27, "TrafficJam", kTrafficJam),
    Event(256, "TrafficRunRedLight", kTrafficRunRedLight),
    Event(257, "TrafficOverLine", kTrafficOverLine),
    Event(258, "TrafficRetrograde", kTrafficRetrograde),
    Event(259, "TrafficTurnLeft", kTrafficTurnLeft),
    Event(260, "TrafficTurnRight", kTrafficTurnRight),
    Event(261, "TrafficU-Turn", kTrafficUTurn),
    Event(262, "TrafficOverSpeed", kTrafficOverSpeed).WithoutMemoryLogs("overspeed continue"),
    Event(263, "TrafficUnderSpeed", kTrafficUnderSpeed).WithoutMemoryLogs("under speed continue"),
    Event(264, "TrafficParking", kTrafficParking),
    Event(265, "TrafficWrongRoute", kTrafficWrongRoute),
    Event(266, "TrafficCrossLane", kTrafficCrossLane),
    Event(267, "TrafficOverYellowLine", kTrafficOverYellowLine),
    Event(268, "TrafficDrivingOnShoulder", kTrafficDrivingOnShoulder),
    Event(270, "TrafficYellowPlateInLane", kTrafficYellowPlateInLane),
    Event(271, "TrafficPedestrainPriority", kTrafficPedestrainPriority),
    Event(273, "TrafficNoPassing", kTrafficNoPassing),
    Event(280, "TrafficManualSnap", kTrafficManualSnap),
    Event(281, "TrafficFlowStat", kTrafficFlowStat),
    Event(282, "TrafficStay", kTrafficStay),
    Event(283, "TrafficVehicleInRoute", kTrafficVehicleInRoute),
    Event(284, "VideoMotion", kVideoMotion),
    Event(285, "AlarmLocal", kAlarmLocal),
    Event(292, "TrafficVehicleInBusRoute", kTrafficVehicleInBusRoute),
    Event(293, "TrafficBacking", kTrafficBacking),
    Event(295, "TrafficRunYellowLight", kTrafficRunYellowLight),
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
    Event(336, "AnalogAlarm", kAnalogAlarm),
    Event(339, "VideoBlind", kVideoBlind).NeedsNoData(),
    Event(349, "VideoStatic", kVideoStatic),
    Event(350, "VideoTiming", kVideoTiming),
    Event(352, "CitizenIDCard", kCitizenIDCard),
    Event(353, "PicInfo", kPicInfo),
    Event(354, "NetPlayCheck", kNetPlayCheck),
    Event(355, "TrafficJamForbidInto", kTrafficJamForbidInto),
    Event(356, "SnapByTime", kSnapByTime).NeedsNoData(),
    Event(357, "PtzPreset", kPtzPreset),
    Event(358, "RFIDInfo", kRFIDInfo),
    Event(360, "QSYTrafficCarWeight", kQSYTrafficCarWeight),
    Event(361, "TrafficComparePlate", kTrafficComparePlate),
    Event(362, "ShootingScoreRecognition", kShootingScoreRecognition),
    Event(363, "TrafficFcc", kTrafficFcc),
    Event(364, "Transfinite", kTransfinite),
    Event(365, "SceneChange", kSceneChange),
    Event(368, "TrafficVideoAnalysePreSnap", kTrafficVideoAnalysePreSnap),
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
    Event(528, "TrafficDriverYawn", kTrafficDriverYawn),
    Event(536, "TrafficTurnLeftAfterStraight", kTrafficTurnLeftAfterStraight),
    Event(537, "TrafficBigBendSmallTurn", kTrafficBigBendSmallTurn),
    Event(540, "TrafficQueueJump", kTrafficQueueJump),
    Event(541, "VehicleSuspiciousCar", kVehicleSuspiciousCar),
    Event(542, "TrafficTurnRightAfterStraight", kTrafficTurnRightAfterStraight),
    Event(543, "TrafficTurnRightAfterPeople", kTrafficTurnRightAfterStraight),
    Event(544, "InstallCardReader", kInstallCardReader),
    Event(546, "AccOffSnap", kAccOffSnap),
    Event(548, "NotClearCar", kNotClearCar),
    Event(549, "SOSAlert", kSOSAlert),
    Event(550, "OverLoad", kOverLoad),
    Event(551, "NonWorkingTime", kNonWorkingTime),
    Event(552, "TrafficHighBeam", kTrafficHighBeam),
    Event(553, "TrafficTruckforbid", kTrafficTruckforbid),
    Event(554, "DrivingWithoutCard", kDrivingWithoutCard),
    Event(555, "HighSpeed", kHighSpeed),
    Event(557, "TrafficCarDistanceShort", kTrafficCarDistanceShort),
    Event(562, "PassChange", kPassChange),
    Event(564, "TrafficWaitingArea", kTrafficWaitingArea),
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
