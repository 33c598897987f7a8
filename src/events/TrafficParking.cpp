// Traffic events: vehicles that stand, wait or jam, and plates compared
#include "events/TrafficEvents.h"

namespace orrery::events {

TABLE(kTrafficParking, DEV_EVENT_TRAFFICPARKING_INFO,
      {
          HEAD_A,
          OBJECT,
          VEHICLE,
          FIELD(nLane, "Lane", Int),
          FILE_INFO,
          ACTION_AND_REPEAT,
          FIELD(nSequence, "Sequence", Int),
          FIELD(nAlarmInterval, "AlarmInterval", Int),
          FIELD(nParkingAllowedTime, "ParkingAllowedTime", Int),
          POINTS(stuDetectRegion, nDetectRegionNum, "DetectRegion"),
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          ALARM_RECORD,
          ALARM_RECORD_PATH,
          EVENT_CLASS,
          FIELD(byPreAlarm, "PreAlarm", Int),
          GPS,
          CAR,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICPARKING_INFO>);

TABLE(kTrafficStay, DEV_EVENT_TRAFFICSTAY_INFO,
      {
          HEAD_A,
          OBJECT,
          VEHICLE,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          CAR,
          FILE_INFO,
          ACTION_AND_REPEAT,
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICSTAY_INFO>);

TABLE(kTrafficParkingOnYellowBox, DEV_EVENT_TRAFFICPARKINGONYELLOWBOX_INFO,
      {
          HEAD_A,
          FIELD(nLane, "Lane", Int),
          OBJECT,
          VEHICLE,
          FILE_INFO,
          FIELD(nInterval1, "Interval1", Int),
          FIELD(nInterval2, "Interval2", Int),
          FIELD(nFollowTime, "FollowTime", Int),
          ACTION_AND_REPEAT,
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          GPS,
          CAR,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICPARKINGONYELLOWBOX_INFO>);

TABLE(kTrafficIdle, DEV_EVENT_TRAFFICIDLE_INFO,
      {
          HEAD_A,
          FILE_INFO,
          WIDTH,
          HEIGHT,
          FLAG_MASK,
          ACTION_AND_REPEAT,
          FIELD(nLane, "Lane", Int),
          COMM_INFO,
      });

TABLE(kTrafficParkingSpaceOverLine, DEV_EVENT_TRAFFICPARKINGSPACEOVERLINE_INFO,
      {
          HEAD_PTS,
          OBJECT,
          VEHICLE,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          CAR,
          FILE_INFO,
          ACTION,
          FLAG_MASK,
          WIDTH,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICPARKINGSPACEOVERLINE_INFO>);

TABLE(kTrafficJamForbidInto, DEV_EVENT_TRAFFICJAMFORBIDINTO_INFO,
      {
          HEAD_PTS,
          FILE_INFO,
          FIELD(nMark, "Mark", Int),
          FIELD(nSource, "Source", Int),
          FIELD(nSequence, "Sequence", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nLane, "Lane", Int),
          REPEAT,
          OBJECT,
          GPS,
          CAR,
          COMM_INFO,
          VEHICLE,
          WIDTH,
          HEIGHT,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICJAMFORBIDINTO_INFO>);

TABLE(kTrafficComparePlate, DEV_EVENT_TRAFFICCOMPAREPLATE_INFO,
      {
          HEAD_B,
          OBJECT,
          VEHICLE,
          FILE_INFO,
          FIELD(nMark, "Mark", Int),
          FIELD(nSource, "Source", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nSpeed, "Speed", Int),
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          CAR,
          COMM_INFO,
          FLAG_MASK,
          FIELD(szFrontPlateNumber, "PlateInfo/FrontPlateNumber", Text),
          FIELD(szBackPlateNumber, "PlateInfo/BackPlateNumber", Text),
          FIELD(emFrontPlateColor, "PlateInfo/FrontPlateColor", Names(kPlateColors)),
          FIELD(emBackPlateColor, "PlateInfo/BackPlateColor", Names(kPlateColors)),
          FIELD(stuFrontUTC, "SnapTimeInfo/FrontUTC", UtcTime),
          MILLISECONDS_OF(stuFrontUTC, "SnapTimeInfo/FrontUTCMS"),
          FIELD(stuBackUTC, "SnapTimeInfo/BackUTC", UtcTime),
          MILLISECONDS_OF(stuBackUTC, "SnapTimeInfo/BackUTCMS"),
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICCOMPAREPLATE_INFO>);

} // namespace orrery::events
