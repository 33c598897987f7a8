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
          CONFIG_LINE,
          CONFIG(stuTimeSchedule, "TimeSchedule", TimeSection),
          CONFIG_TEXTS(nVehicleSizeNum, szVehicleSizes, "VehicleSizes"),
          CONFIG_TEXTS(nPlateTypeNum, szPlateTypes, "PlateTypes"),
          CONFIG(nPlateNumber, "PlateNumber", Names(kPlateNumbers)),
          RULE_TAIL,
      });

TABLE(kTrafficAccident, CFG_RULE_TRAFFICACCIDENT_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG_REGION,
          RULE_TAIL,
      });

TABLE(kTrafficJunction, CFG_RULE_TRAFFICJUNCTION_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG(nLane, "Lane", Int),
          CONFIG(nDirection, "Direction", Int),
          CONFIG_SHAPE(nPreLinePoint, stuPreLine, "PreLine"),
          CONFIG_SHAPE(nMiddleLinePoint, stuMiddleLine, "MiddleLine"),
          CONFIG_SHAPE(nPostLinePoint, stuPostLine, "PostLine"),
          CONFIG(nFlowLimit, "FlowLimit", Int),
          CONFIG(nSpeedLowerLimit, "SpeedLimit", Custom(kSpeedsAscending)),
          FIELD(nSpeedUpperLimit),
          CONFIG_TEXTS(nTriggerModeNum, szTriggerMode, "TriggerMode"),
          RULE_TAIL,
      });

TABLE(kTrafficGate, CFG_RULE_TRAFFICGATE_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG(nLane, "Lane", Int),
          CONFIG_SHAPE(nDetectLine1Point, stuDetectLine1, "DetectLine1"),
          CONFIG_SHAPE(nDetectLine2Point, stuDetectLine2, "DetectLine2"),
          CONFIG_SHAPE(nLeftLinePoint, stuLeftLine, "LeftLine"),
          CONFIG_SHAPE(nRightLinePoint, stuRightLine, "RightLine"),
          CONFIG(nSpeedWeight, "SpeedWeight", Int),
          CONFIG(dMetricDistance, "MetricDistance", Real),
          CONFIG(nSpeedUpperLimit, "SpeedLimit", Custom(kSpeedsDescending)),
          FIELD(nSpeedLowerLimit),
          CONFIG(nDirection, "Direction", Int),
          FIELD(nTriggerModeNum),
          CONFIG(szTriggerMode, "TriggerMode", RawText).Count(AT(nTriggerModeNum)).NullElement(Nulls::LeaveHole),
          RULE_TAIL,
      });

TABLE(kTrafficJam, CFG_RULE_TRAFFICJAM_INFO,
      {
          RULE_HEAD,
          CONFIG(byJamLineMargin, "JamLineMargin", Int),
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          CONFIG(nDelay, "Delay", Int),
          CONFIG(nInterval, "Interval", Int),
          CONFIG(nReportTimes, "ReportTimes", Int),
          CONFIG_REGION,
          RULE_TAIL,
      });

TABLE(kTrafficParking, CFG_RULE_TRAFFICPARKING_INFO,
      {
          RULE_HEAD,
          RULE_TRACK_IN_CONFIG,
          CONFIG(bySensitivity, "Sensitivity", Int),
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          CONFIG(nDelay, "Delay", Int),
          CONFIG(nParkingAllowedTime, "ParkingAllowedTime", Int),
          CONFIG(nReportTimes, "ReportTimes", Int),
          CONFIG_REGION,
          RULE_TAIL,
      });

TABLE(kTrafficRunRed, CFG_RULE_TRAFFICRUNRED_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          CONFIG(nDirection, "Direction", Int),
          CONFIG_SHAPE(nPreLinePoint, stuPreLine, "PreLine"),
          CONFIG_SHAPE(nMiddleLinePoint, stuMiddleLine, "MiddleLine"),
          CONFIG_SHAPE(nPostLinePoint, stuPostLine, "PostLine"),
          RULE_TAIL,
      });

TABLE(kTrafficLane, CFG_RULE_TRAFFICLANE_INFO,
      {
          RULE_HEAD,
          RULE_TRACK_IN_CONFIG,
          CONFIG(bySensitivity, "Sensitivity", Int),
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          CONFIG_REGION,
          CONFIG_SHAPE(nDirectionPoint, stuDirection, "Direction"),
          RULE_TAIL,
      });

TABLE(kTrafficBusLane, CFG_RULE_TRAFFICBUSLANE_INFO,
      {
          RULE_HEAD,
          RULE_TRACK_IN_CONFIG,
          CONFIG(byCarTypeInBusLane, "CarTypeInBusLane", Int),
          CONFIG(bySensitivity, "Sensitivity", Int),
          CONFIG(byEnclosure, "Enclosure", Int),
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          CONFIG_REGION,
          RULE_TAIL,
      });

TABLE(kTrafficOverYellow, CFG_RULE_TRAFFICOVERYELLOW_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          CONFIG_REGION,
          RULE_TAIL,
      });

TABLE(kTrafficUTurn, CFG_RULE_TRAFFICUTURN_INFO,
      {
          RULE_HEAD,
          RULE_TRACK_IN_CONFIG,
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          CONFIG_REGION,
          CONFIG(nTriggerAngle, "TriggerAngle", Int),
          RULE_TAIL,
          CONFIG_FILTER,
      });

TABLE(kTrafficSpeed, CFG_RULE_TRAFFICSPEED_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          CONFIG(nSpeedUpperLimit, "SpeedLimit", Custom(kUnsignedSpeedsDescending)),
          FIELD(nSpeedLowerLimit),
          CONFIG(nMinDuration, "MinDuration", Int),
          RULE_TAIL,
      });

TABLE(kTrafficTollGate, CFG_RULE_TRAFFICTOLLGATE_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", UInt),
          CONFIG_LINE,
          RULE_TAIL,
      });

TABLE(kTrafficRetrograde, CFG_RULE_TRAFFICRETROGRADE_INFO,
      {
          RULE_HEAD,
          RULE_TRACK_IN_CONFIG,
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", UInt),
          CONFIG(bLegal, "Legal", Bool),
          CONFIG_REGION,
          CONFIG_SHAPE(nDirectionPoint, stuDirection, "Direction"),
          CONFIG(nMinDuration, "MinDuration", Int),
          RULE_TAIL,
      });

TABLE(kTrafficPriority, CFG_RULE_TRAFFICPRIORITY_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_TAIL,
      });

TABLE(kTrafficYellowBox, CFG_RULE_TRAFFICYELLOWBOX_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          CONFIG(nInterval1, "Interval1", Int),
          CONFIG(nInterval2, "Interval2", Int),
          CONFIG(nFollowTime, "FollowTime", Int),
          RULE_TAIL,
      });

TABLE(kTrafficParkingSpace, CFG_RULE_TRAFFICPARKINGSPACE_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          CONFIG(nDelay, "Delay", Int),
          CONFIG_REGION,
          RULE_TAIL,
      });

TABLE(kTrafficSpaceOverLine, CFG_RULE_TRAFFICSPACEOVERLINE_INFO,
      {
          RULE_HEAD,
          CONFIG(bAllowParkingSpaceParkingSnap, "AllowParkingSpaceParkingSnap", Bool),
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          RULE_TAIL,
      });

TABLE(kTrafficSafeBelt, CFG_RULE_TRAFFICSAFEBELT_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          CONFIG_ALL_CODES(nSeatNum, nSeats, "Seats", kSeats),
          RULE_TAIL,
      });

TABLE(kTrafficDriver, CFG_RULE_TRAFFICDRIVER_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int).Only(OnlyType::Integer),
          RULE_TAIL,
      });

TABLE(kTrafficPedestrain, CFG_RULE_TRAFFICPEDESTRAIN_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          CONFIG_REGION,
          CONFIG(nMinDuration, "MinDuration", Int),
          RULE_TAIL,
      });

TABLE(kTrafficPass, CFG_RULE_TRAFFICPASS_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG(nLaneNumber, "LaneNumber", Int),
          CONFIG(nFollowTime, "FollowTime", Int),
          RULE_TAIL,
      });

TABLE(kVehicleAnalyse, CFG_RULE_VEHICLEANALYSE_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG_REGION,
          RULE_TAIL,
          CONFIG_FILTER,
      });

TABLE(kRoadEvent, CFG_RULE_ROADEVENT_INFO,
      {
          RULE_HEAD,
          RULE_OBJECTS,
          CONFIG_REGION,
          CONFIG(nMinDuration, "MinDuration", Int),
          CONFIG(nSensitivity, "Sensitivity", Int),
          RULE_TAIL,
      });

} // namespace orrery::rules
