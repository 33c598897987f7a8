// Traffic events: vehicles that stand, wait or jam, and plates compared
#include "events/TrafficEvents.h"

namespace orrery::events {

TABLE(kTrafficParking, DEV_EVENT_TRAFFICPARKING_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nLane, "Lane", Int),
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          FIELD(nSequence, "Sequence", Int),
          FIELD(nAlarmInterval, "AlarmInterval", Int),
          FIELD(nParkingAllowedTime, "ParkingAllowedTime", Int),
          EV_POINTS(stuDetectRegion, nDetectRegionNum, "DetectRegion"),
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_ALARM_RECORD,
          EV_ALARM_RECORD_PATH,
          EV_CLASS,
          FIELD(byPreAlarm, "PreAlarm", Int),
          EV_GPS,
          EV_CAR,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICPARKING_INFO>);

TABLE(kTrafficStay, DEV_EVENT_TRAFFICSTAY_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_CAR,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICSTAY_INFO>);

TABLE(kTrafficParkingOnYellowBox, DEV_EVENT_TRAFFICPARKINGONYELLOWBOX_INFO,
      {
          EV_HEAD_A,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nInterval1, "Interval1", Int),
          FIELD(nInterval2, "Interval2", Int),
          FIELD(nFollowTime, "FollowTime", Int),
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          EV_CAR,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICPARKINGONYELLOWBOX_INFO>);

TABLE(kTrafficIdle, DEV_EVENT_TRAFFICIDLE_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_WIDTH,
          EV_HEIGHT,
          EV_FLAG_MASK,
          EV_ACTION_AND_REPEAT,
          FIELD(nLane, "Lane", Int),
          EV_COMM_INFO,
      });

TABLE(kTrafficParkingSpaceOverLine, DEV_EVENT_TRAFFICPARKINGSPACEOVERLINE_INFO,
      {
          EV_HEAD_PTS,
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_CAR,
          EV_FILE_INFO,
          EV_ACTION,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICPARKINGSPACEOVERLINE_INFO>);

TABLE(kTrafficJamForbidInto, DEV_EVENT_TRAFFICJAMFORBIDINTO_INFO,
      {
          EV_HEAD_PTS,
          EV_FILE_INFO,
          FIELD(nMark, "Mark", Int),
          FIELD(nSource, "Source", Int),
          FIELD(nSequence, "Sequence", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nLane, "Lane", Int),
          EV_REPEAT,
          EV_OBJECT,
          EV_GPS,
          EV_CAR,
          EV_COMM_INFO,
          EV_VEHICLE,
          EV_WIDTH,
          EV_HEIGHT,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICJAMFORBIDINTO_INFO>);

TABLE(kTrafficComparePlate, DEV_EVENT_TRAFFICCOMPAREPLATE_INFO,
      {
          EV_HEAD_B,
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nMark, "Mark", Int),
          FIELD(nSource, "Source", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nSpeed, "Speed", Int),
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_CAR,
          EV_COMM_INFO,
          EV_FLAG_MASK,
          FIELD(szFrontPlateNumber, "PlateInfo/FrontPlateNumber", Text),
          FIELD(szBackPlateNumber, "PlateInfo/BackPlateNumber", Text),
          FIELD(emFrontPlateColor, "PlateInfo/FrontPlateColor", Names(kPlateColors)),
          FIELD(emBackPlateColor, "PlateInfo/BackPlateColor", Names(kPlateColors)),
          FIELD(stuFrontUTC, "SnapTimeInfo/FrontUTC", UtcTime),
          EV_MILLISECONDS_OF(stuFrontUTC, "SnapTimeInfo/FrontUTCMS"),
          FIELD(stuBackUTC, "SnapTimeInfo/BackUTC", UtcTime),
          EV_MILLISECONDS_OF(stuBackUTC, "SnapTimeInfo/BackUTCMS"),
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICCOMPAREPLATE_INFO>);

} // namespace orrery::events
