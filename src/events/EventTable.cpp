#include "events/EventTable.h"

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
    Event(292, "TrafficVehicleInBusRoute", kTrafficVehicleInBusRoute),
    Event(293, "TrafficBacking", kTrafficBacking),
    Event(295, "TrafficRunYellowLight", kTrafficRunYellowLight),
    Event(298, "TrafficParkingOnYellowBox", kTrafficParkingOnYellowBox),
    Event(299, "TrafficParkingSpaceParking", kTrafficParkingSpaceParking),
    Event(300, "TrafficParkingSpaceNoParking", kTrafficParkingSpaceParking),
    Event(301, "TrafficPedestrain", kTrafficPedestrain),
    Event(302, "TrafficThrow", kTrafficThrow),
    Event(303, "TrafficIdle", kTrafficIdle),
    Event(308, "TrafficParkingSpaceOverLine", kTrafficParkingSpaceOverLine),
    Event(310, "TrafficRestrictedPlate", kTrafficRestrictedPlate),
    Event(311, "TrafficOverStopLine", kTrafficOverStopLine),
    Event(312, "TrafficWithoutSafeBelt", kTrafficWithoutSafeBelt),
    Event(313, "TrafficDriverSmoking", kTrafficDriverSmoking),
    Event(314, "TrafficDriverCalling", kTrafficDriverCalling),
    Event(315, "TrafficPedestrianRunRedLight", kTrafficPedestrianRunRedLight),
    Event(316, "TrafficPassNotInOrder", kTrafficPassNotInOrder),
    Event(355, "TrafficJamForbidInto", kTrafficJamForbidInto),
    Event(360, "QSYTrafficCarWeight", kQSYTrafficCarWeight),
    Event(361, "TrafficComparePlate", kTrafficComparePlate),
    Event(368, "TrafficVideoAnalysePreSnap", kTrafficVideoAnalysePreSnap),
    Event(536, "TrafficTurnLeftAfterStraight", kTrafficTurnLeftAfterStraight),
    Event(537, "TrafficBigBendSmallTurn", kTrafficBigBendSmallTurn),
    Event(540, "TrafficQueueJump", kTrafficQueueJump),
    Event(541, "VehicleSuspiciousCar", kVehicleSuspiciousCar),
    Event(542, "TrafficTurnRightAfterStraight", kTrafficTurnRightAfterStraight),
    Event(543, "TrafficTurnRightAfterPeople", kTrafficTurnRightAfterStraight),
    Event(552, "TrafficHighBeam", kTrafficHighBeam),
    Event(553, "TrafficTruckforbid", kTrafficTruckforbid),
    Event(557, "TrafficCarDistanceShort", kTrafficCarDistanceShort),
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
