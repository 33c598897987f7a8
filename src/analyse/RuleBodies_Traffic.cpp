// Records of the rules about traffic.
#include "analyse/RuleBodies.h"

#include "analyse/RuleParts.h"

namespace orrery::rules {

namespace {

NAMES(kPlateNumbers, kExact,
      {
          {CFG_PLATE_NUMBER_ODD, "Odd"},
          {CFG_PLATE_NUMBER_EVEN, "Even"},
          {CFG_PLATE_NUMBER_BOTH, "Both"},
      });

NAMES(kSeats, kExact,
      {
          {CFG_SEAT_MAIN, "MainSeat"},
          {CFG_SEAT_SLAVE, "SlaveSeat"},
      });

} // namespace

TABLE(kTrafficControl, CFG_RULE_TRAFFICCONTROL_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG_LINE,
          RULE_CONFIG(stuTimeSchedule, "TimeSchedule", TimeSection),
          RULE_CONFIG_TEXTS(nVehicleSizeNum, szVehicleSizes, "VehicleSizes"),
          RULE_CONFIG_TEXTS(nPlateTypeNum, szPlateTypes, "PlateTypes"),
          RULE_CONFIG(nPlateNumber, "PlateNumber", Names(kPlateNumbers)),
          RULE_TAIL,
      });

TABLE(kTrafficAccident, CFG_RULE_TRAFFICACCIDENT_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG_REGION,
          RULE_TAIL,
      });

TABLE(kTrafficJunction, CFG_RULE_TRAFFICJUNCTION_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nLane, "Lane", Int),
          RULE_CONFIG(nDirection, "Direction", Int),
          RULE_CONFIG_SHAPE(nPreLinePoint, stuPreLine, "PreLine"),
          RULE_CONFIG_SHAPE(nMiddleLinePoint, stuMiddleLine, "MiddleLine"),
          RULE_CONFIG_SHAPE(nPostLinePoint, stuPostLine, "PostLine"),
          RULE_CONFIG(nFlowLimit, "FlowLimit", Int),
          RULE_CONFIG(nSpeedLowerLimit, "SpeedLimit", Custom(kSpeedsAscending)),
          FIELD(nSpeedUpperLimit),
          RULE_CONFIG_TEXTS(nTriggerModeNum, szTriggerMode, "TriggerMode"),
          RULE_TAIL,
      });

TABLE(kTrafficGate, CFG_RULE_TRAFFICGATE_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nLane, "Lane", Int),
          RULE_CONFIG_SHAPE(nDetectLine1Point, stuDetectLine1, "DetectLine1"),
          RULE_CONFIG_SHAPE(nDetectLine2Point, stuDetectLine2, "DetectLine2"),
          RULE_CONFIG_SHAPE(nLeftLinePoint, stuLeftLine, "LeftLine"),
          RULE_CONFIG_SHAPE(nRightLinePoint, stuRightLine, "RightLine"),
          RULE_CONFIG(nSpeedWeight, "SpeedWeight", Int),
          RULE_CONFIG(dMetricDistance, "MetricDistance", Real),
          RULE_CONFIG(nSpeedUpperLimit, "SpeedLimit", Custom(kSpeedsDescending)),
          FIELD(nSpeedLowerLimit),
          RULE_CONFIG(nDirection, "Direction", Int),
          FIELD(nTriggerModeNum),
          RULE_CONFIG(szTriggerMode, "TriggerMode", RawText).Count(AT(nTriggerModeNum)).NullElement(Nulls::LeaveHole),
          RULE_TAIL,
      });

TABLE(kTrafficJam, CFG_RULE_TRAFFICJAM_INFO,
      {
          RULE_HEAD,
          RULE_CONFIG(byJamLineMargin, "JamLineMargin", Int),
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_CONFIG(nDelay, "Delay", Int),
          RULE_CONFIG(nInterval, "Interval", Int),
          RULE_CONFIG(nReportTimes, "ReportTimes", Int),
          RULE_CONFIG_REGION,
          RULE_TAIL,
      });

TABLE(kTrafficParking, CFG_RULE_TRAFFICPARKING_INFO,
      {
          RULE_HEAD,
          RULE_TRACK_IN_CONFIG,
          RULE_CONFIG(bySensitivity, "Sensitivity", Int),
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_CONFIG(nDelay, "Delay", Int),
          RULE_CONFIG(nParkingAllowedTime, "ParkingAllowedTime", Int),
          RULE_CONFIG(nReportTimes, "ReportTimes", Int),
          RULE_CONFIG_REGION,
          RULE_TAIL,
      });

TABLE(kTrafficRunRed, CFG_RULE_TRAFFICRUNRED_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_CONFIG(nDirection, "Direction", Int),
          RULE_CONFIG_SHAPE(nPreLinePoint, stuPreLine, "PreLine"),
          RULE_CONFIG_SHAPE(nMiddleLinePoint, stuMiddleLine, "MiddleLine"),
          RULE_CONFIG_SHAPE(nPostLinePoint, stuPostLine, "PostLine"),
          RULE_TAIL,
      });

TABLE(kTrafficLane, CFG_RULE_TRAFFICLANE_INFO,
      {
          RULE_HEAD,
          RULE_TRACK_IN_CONFIG,
          RULE_CONFIG(bySensitivity, "Sensitivity", Int),
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_CONFIG_REGION,
          RULE_CONFIG_SHAPE(nDirectionPoint, stuDirection, "Direction"),
          RULE_TAIL,
      });

TABLE(kTrafficBusLane, CFG_RULE_TRAFFICBUSLANE_INFO,
      {
          RULE_HEAD,
          RULE_TRACK_IN_CONFIG,
          RULE_CONFIG(byCarTypeInBusLane, "CarTypeInBusLane", Int),
          RULE_CONFIG(bySensitivity, "Sensitivity", Int),
          RULE_CONFIG(byEnclosure, "Enclosure", Int),
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_CONFIG_REGION,
          RULE_TAIL,
      });

TABLE(kTrafficOverYellow, CFG_RULE_TRAFFICOVERYELLOW_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_CONFIG_REGION,
          RULE_TAIL,
      });

TABLE(kTrafficUTurn, CFG_RULE_TRAFFICUTURN_INFO,
      {
          RULE_HEAD,
          RULE_TRACK_IN_CONFIG,
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_CONFIG_REGION,
          RULE_CONFIG(nTriggerAngle, "TriggerAngle", Int),
          RULE_TAIL,
          RULE_CONFIG_FILTER,
      });

TABLE(kTrafficSpeed, CFG_RULE_TRAFFICSPEED_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_CONFIG(nSpeedUpperLimit, "SpeedLimit", Custom(kUnsignedSpeedsDescending)),
          FIELD(nSpeedLowerLimit),
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_TAIL,
      });

TABLE(kTrafficTollGate, CFG_RULE_TRAFFICTOLLGATE_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", UInt),
          RULE_CONFIG_LINE,
          RULE_TAIL,
      });

TABLE(kTrafficRetrograde, CFG_RULE_TRAFFICRETROGRADE_INFO,
      {
          RULE_HEAD,
          RULE_TRACK_IN_CONFIG,
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", UInt),
          RULE_CONFIG(bLegal, "Legal", Bool),
          RULE_CONFIG_REGION,
          RULE_CONFIG_SHAPE(nDirectionPoint, stuDirection, "Direction"),
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_TAIL,
      });

TABLE(kTrafficPriority, CFG_RULE_TRAFFICPRIORITY_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_TAIL,
      });

TABLE(kTrafficYellowBox, CFG_RULE_TRAFFICYELLOWBOX_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_CONFIG(nInterval1, "Interval1", Int),
          RULE_CONFIG(nInterval2, "Interval2", Int),
          RULE_CONFIG(nFollowTime, "FollowTime", Int),
          RULE_TAIL,
      });

TABLE(kTrafficParkingSpace, CFG_RULE_TRAFFICPARKINGSPACE_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_CONFIG(nDelay, "Delay", Int),
          RULE_CONFIG_REGION,
          RULE_TAIL,
      });

TABLE(kTrafficSpaceOverLine, CFG_RULE_TRAFFICSPACEOVERLINE_INFO,
      {
          RULE_HEAD,
          RULE_CONFIG(bAllowParkingSpaceParkingSnap, "AllowParkingSpaceParkingSnap", Bool),
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_TAIL,
      });

TABLE(kTrafficSafeBelt, CFG_RULE_TRAFFICSAFEBELT_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_CONFIG_ALL_CODES(nSeatNum, nSeats, "Seats", kSeats),
          RULE_TAIL,
      });

TABLE(kTrafficDriver, CFG_RULE_TRAFFICDRIVER_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int).Only(OnlyType::Integer),
          RULE_TAIL,
      });

TABLE(kTrafficPedestrain, CFG_RULE_TRAFFICPEDESTRAIN_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_CONFIG_REGION,
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_TAIL,
      });

TABLE(kTrafficPass, CFG_RULE_TRAFFICPASS_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_CONFIG(nFollowTime, "FollowTime", Int),
          RULE_TAIL,
      });

TABLE(kVehicleAnalyse, CFG_RULE_VEHICLEANALYSE_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG_REGION,
          RULE_TAIL,
          RULE_CONFIG_FILTER,
      });

TABLE(kRoadEvent, CFG_RULE_ROADEVENT_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          RULE_CONFIG_REGION,
          RULE_CONFIG(nMinDuration, "MinDuration", Int),
          RULE_CONFIG(nSensitivity, "Sensitivity", Int),
          RULE_TAIL,
      });

} // namespace orrery::rules
