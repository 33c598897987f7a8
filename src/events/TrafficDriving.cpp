// Traffic events: lanes, lines, directions and speeds
#include "events/TrafficEvents.h"

namespace orrery::events {

TABLE(kTrafficOverLine, DEV_EVENT_TRAFFICOVERLINE_INFO,
      {
          HEAD_A,
          FIELD(nLane, "Lane", Int),
          OBJECT,
          VEHICLE,
          FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          ACTION_AND_REPEAT,
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          GPS,
          CAR,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICOVERLINE_INFO>);

TABLE(kTrafficRetrograde, DEV_EVENT_TRAFFICRETROGRADE_INFO,
      {
          HEAD_A,
          FIELD(nLane, "Lane", Int),
          OBJECT,
          VEHICLE,
          FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          ACTION_AND_REPEAT,
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          ALARM_RECORD,
          ALARM_RECORD_PATH,
          EVENT_CLASS,
          GPS,
          CAR,
          POINTS(stuDetectRegion, nDetectRegionNum, "DetectRegion"),
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICRETROGRADE_INFO>);

TABLE(kTrafficTurnLeft, DEV_EVENT_TRAFFICTURNLEFT_INFO,
      {
          HEAD_A,
          FIELD(nLane, "Lane", Int),
          OBJECT,
          VEHICLE,
          FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          ACTION_AND_REPEAT,
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          GPS,
          CAR,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICTURNLEFT_INFO>);

TABLE(kTrafficTurnRight, DEV_EVENT_TRAFFICTURNRIGHT_INFO,
      {
          HEAD_A,
          FIELD(nLane, "Lane", Int),
          OBJECT,
          VEHICLE,
          FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          ACTION_AND_REPEAT,
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          GPS,
          CAR,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICTURNRIGHT_INFO>);

TABLE(kTrafficUTurn, DEV_EVENT_TRAFFICUTURN_INFO,
      {
          HEAD_A,
          FIELD(nLane, "Lane", Int),
          OBJECT,
          VEHICLE,
          FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          ACTION_AND_REPEAT,
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          GPS,
          CAR,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICUTURN_INFO>);

TABLE(kTrafficUnderSpeed, DEV_EVENT_TRAFFICUNDERSPEED_INFO,
      {
          HEAD_A,
          FIELD(nLane, "Lane", Int),
          OBJECT,
          VEHICLE,
          FILE_INFO,
          FIELD(nSpeed, "Speed", Int),
          FIELD(nUpperSpeedLimit, "SpeedLimit", SecondNumber).AtLeast(2),
          FIELD(nLowerSpeedLimit, "SpeedLimit", FirstNumber).AtLeast(2),
          FIELD(nSequence, "Sequence", Int),
          ACTION_AND_REPEAT,
          FIELD(nUnderSpeedingPercentage, "UnderSpeedingPercentage", Int),
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          EVENT_CLASS,
          GPS,
          CAR,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICUNDERSPEED_INFO>);

TABLE(kTrafficWrongRoute, DEV_EVENT_TRAFFICWRONGROUTE_INFO,
      {
          HEAD_A,
          OBJECT,
          VEHICLE,
          FIELD(nLane, "Lane", Int),
          FILE_INFO,
          ACTION_AND_REPEAT,
          FIELD(nSpeed, "Speed", Int),
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          GPS,
          CAR,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICWRONGROUTE_INFO>);

TABLE(kTrafficCrossLane, DEV_EVENT_TRAFFICCROSSLANE_INFO,
      {
          HEAD_A,
          OBJECT,
          VEHICLE,
          FIELD(nLane, "Lane", Int),
          FILE_INFO,
          ACTION_AND_REPEAT,
          FIELD(nSpeed, "Speed", Int),
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          EVENT_CLASS,
          GPS,
          CAR,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICCROSSLANE_INFO>);

TABLE(kTrafficOverYellowLine, DEV_EVENT_TRAFFICOVERYELLOWLINE_INFO,
      {
          HEAD_A,
          OBJECT,
          VEHICLE,
          FIELD(nLane, "Lane", Int),
          FILE_INFO,
          ACTION_AND_REPEAT,
          FIELD(nSpeed, "Speed", Int),
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          ALARM_RECORD,
          EVENT_CLASS,
          CAR,
          POINTS(stuDetectRegion, nDetectRegionNum, "DetectRegion"),
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICOVERYELLOWLINE_INFO>);

TABLE(kTrafficDrivingOnShoulder, DEV_EVENT_TRAFFICDRIVINGONSHOULDER_INFO,
      {
          HEAD_A,
          OBJECT,
          VEHICLE,
          FIELD(nLane, "Lane", Int),
          FILE_INFO,
          ACTION_AND_REPEAT,
          FIELD(nSpeed, "Speed", Int),
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          CAR,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICDRIVINGONSHOULDER_INFO>);

TABLE(kTrafficYellowPlateInLane, DEV_EVENT_TRAFFICYELLOWPLATEINLANE_INFO,
      {
          HEAD_A,
          OBJECT,
          VEHICLE,
          FIELD(nLane, "Lane", Int),
          FILE_INFO,
          ACTION_AND_REPEAT,
          FIELD(nSpeed, "Speed", Int),
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          CAR,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICYELLOWPLATEINLANE_INFO>);

TABLE(kTrafficNoPassing, DEV_EVENT_TRAFFICNOPASSING_INFO,
      {
          HEAD_B,
          FIELD(nUTCMS, "UTCMS", Int),
          FIELD(nMark, "Mark", Int),
          FIELD(nSequence, "Sequence", Int),
          FILE_INFO,
          ACTION,
          CAR,
          FLAG_MASK,
          WIDTH,
          GPS,
          REPEAT,
          FIELD(nLane, "Lane", Int),
          OBJECT,
          VEHICLE,
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nSource, "Source", Int),
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICNOPASSING_INFO>);

TABLE(kTrafficVehicleInRoute, DEV_EVENT_TRAFFICVEHICLEINROUTE_INFO,
      {
          HEAD_A,
          OBJECT,
          VEHICLE,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          CAR,
          FILE_INFO,
          ACTION_AND_REPEAT,
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICVEHICLEINROUTE_INFO>);

TABLE(kTrafficVehicleInBusRoute, DEV_EVENT_TRAFFICVEHICLEINBUSROUTE_INFO,
      {
          HEAD_A,
          OBJECT,
          VEHICLE,
          FILE_INFO,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          ACTION_AND_REPEAT,
          FLAG_MASK,
          CAR,
          WIDTH,
          HEIGHT,
          GPS,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICVEHICLEINBUSROUTE_INFO>);

TABLE(kTrafficBacking, DEV_EVENT_TRAFFICBACKING_INFO,
      {
          HEAD_A,
          OBJECT,
          VEHICLE,
          FILE_INFO,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          ACTION_AND_REPEAT,
          FLAG_MASK,
          CAR,
          WIDTH,
          HEIGHT,
          EVENT_CLASS,
          GPS,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICBACKING_INFO>);

TABLE(kTrafficRestrictedPlate, DEV_EVENT_TRAFFICRESTRICTEDPLATE_INFO,
      {
          HEAD_B,
          FIELD(nSequence, "Sequence", Int),
          ACTION,
          REPEAT,
          FIELD(nLane, "Lane", Int),
          OBJECT,
          VEHICLE,
          FILE_INFO,
          FIELD(nMark, "Mark", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nSource, "Source", Int),
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          CAR,
          GPS,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICRESTRICTEDPLATE_INFO>);

TABLE(kTrafficOverStopLine, DEV_EVENT_TRAFFICOVERSTOPLINE_INFO,
      {
          HEAD_B,
          FIELD(nSequence, "Sequence", Int),
          ACTION,
          REPEAT,
          FIELD(nLane, "Lane", Int),
          OBJECT,
          VEHICLE,
          FILE_INFO,
          FIELD(nMark, "Mark", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nSource, "Source", Int),
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          GPS,
          CAR,
          FIELD(nSpeed, "Speed", Int),
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICOVERSTOPLINE_INFO>);

TABLE(kTrafficPassNotInOrder, DEV_EVENT_TRAFFICPASSNOTINORDER_INFO,
      {
          HEAD_A,
          FIELD(nLane, "Lane", Int),
          OBJECT,
          VEHICLE,
          FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          ACTION_AND_REPEAT,
          FLAG_MASK,
          HEIGHT,
          WIDTH,
          CAR,
          COMM_INFO,
          GPS,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICPASSNOTINORDER_INFO>);

} // namespace orrery::events
