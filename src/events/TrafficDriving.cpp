// Traffic events: lanes, lines, directions and speeds
#include "events/TrafficEvents.h"

namespace orrery::events {

TABLE(kTrafficOverLine, DEV_EVENT_TRAFFICOVERLINE_INFO,
      {
          EV_HEAD_A,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          EV_CAR,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICOVERLINE_INFO>);

TABLE(kTrafficRetrograde, DEV_EVENT_TRAFFICRETROGRADE_INFO,
      {
          EV_HEAD_A,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_ALARM_RECORD,
          EV_ALARM_RECORD_PATH,
          EV_CLASS,
          EV_GPS,
          EV_CAR,
          EV_POINTS(stuDetectRegion, nDetectRegionNum, "DetectRegion"),
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICRETROGRADE_INFO>);

TABLE(kTrafficTurnLeft, DEV_EVENT_TRAFFICTURNLEFT_INFO,
      {
          EV_HEAD_A,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          EV_CAR,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICTURNLEFT_INFO>);

TABLE(kTrafficTurnRight, DEV_EVENT_TRAFFICTURNRIGHT_INFO,
      {
          EV_HEAD_A,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          EV_CAR,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICTURNRIGHT_INFO>);

TABLE(kTrafficUTurn, DEV_EVENT_TRAFFICUTURN_INFO,
      {
          EV_HEAD_A,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          EV_CAR,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICUTURN_INFO>);

TABLE(kTrafficUnderSpeed, DEV_EVENT_TRAFFICUNDERSPEED_INFO,
      {
          EV_HEAD_A,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nSpeed, "Speed", Int),
          FIELD(nUpperSpeedLimit, "SpeedLimit", SecondNumber).AtLeast(2),
          FIELD(nLowerSpeedLimit, "SpeedLimit", FirstNumber).AtLeast(2),
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION_AND_REPEAT,
          FIELD(nUnderSpeedingPercentage, "UnderSpeedingPercentage", Int),
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_CLASS,
          EV_GPS,
          EV_CAR,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICUNDERSPEED_INFO>);

TABLE(kTrafficWrongRoute, DEV_EVENT_TRAFFICWRONGROUTE_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nLane, "Lane", Int),
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          FIELD(nSpeed, "Speed", Int),
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          EV_CAR,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICWRONGROUTE_INFO>);

TABLE(kTrafficCrossLane, DEV_EVENT_TRAFFICCROSSLANE_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nLane, "Lane", Int),
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          FIELD(nSpeed, "Speed", Int),
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_CLASS,
          EV_GPS,
          EV_CAR,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICCROSSLANE_INFO>);

TABLE(kTrafficOverYellowLine, DEV_EVENT_TRAFFICOVERYELLOWLINE_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nLane, "Lane", Int),
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          FIELD(nSpeed, "Speed", Int),
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_ALARM_RECORD,
          EV_CLASS,
          EV_CAR,
          EV_POINTS(stuDetectRegion, nDetectRegionNum, "DetectRegion"),
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICOVERYELLOWLINE_INFO>);

TABLE(kTrafficDrivingOnShoulder, DEV_EVENT_TRAFFICDRIVINGONSHOULDER_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nLane, "Lane", Int),
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          FIELD(nSpeed, "Speed", Int),
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_CAR,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICDRIVINGONSHOULDER_INFO>);

TABLE(kTrafficYellowPlateInLane, DEV_EVENT_TRAFFICYELLOWPLATEINLANE_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nLane, "Lane", Int),
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          FIELD(nSpeed, "Speed", Int),
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_CAR,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICYELLOWPLATEINLANE_INFO>);

TABLE(kTrafficNoPassing, DEV_EVENT_TRAFFICNOPASSING_INFO,
      {
          EV_HEAD_B,
          FIELD(nUTCMS, "UTCMS", Int).ReadOnly(),
          FIELD(nMark, "Mark", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_FILE_INFO,
          EV_ACTION,
          EV_CAR,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_GPS,
          EV_REPEAT,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nSource, "Source", Int),
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICNOPASSING_INFO>);

TABLE(kTrafficVehicleInRoute, DEV_EVENT_TRAFFICVEHICLEINROUTE_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          EV_CAR,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICVEHICLEINROUTE_INFO>);

TABLE(kTrafficVehicleInBusRoute, DEV_EVENT_TRAFFICVEHICLEINBUSROUTE_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_CAR,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICVEHICLEINBUSROUTE_INFO>);

TABLE(kTrafficBacking, DEV_EVENT_TRAFFICBACKING_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_CAR,
          EV_WIDTH,
          EV_HEIGHT,
          EV_CLASS,
          EV_GPS,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICBACKING_INFO>);

TABLE(kTrafficRestrictedPlate, DEV_EVENT_TRAFFICRESTRICTEDPLATE_INFO,
      {
          EV_HEAD_B,
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION,
          EV_REPEAT,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nMark, "Mark", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nSource, "Source", Int),
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_CAR,
          EV_GPS,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICRESTRICTEDPLATE_INFO>);

TABLE(kTrafficOverStopLine, DEV_EVENT_TRAFFICOVERSTOPLINE_INFO,
      {
          EV_HEAD_B,
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION,
          EV_REPEAT,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nMark, "Mark", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nSource, "Source", Int),
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          EV_CAR,
          FIELD(nSpeed, "Speed", Int),
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICOVERSTOPLINE_INFO>);

TABLE(kTrafficPassNotInOrder, DEV_EVENT_TRAFFICPASSNOTINORDER_INFO,
      {
          EV_HEAD_A,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_HEIGHT,
          EV_WIDTH,
          EV_CAR,
          EV_COMM_INFO,
          EV_GPS,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICPASSNOTINORDER_INFO>);

} // namespace orrery::events
