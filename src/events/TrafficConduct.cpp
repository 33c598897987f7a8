// Traffic events: how drivers and pedestrians behave, and turns
#include "events/TrafficEvents.h"

namespace orrery::events {

TABLE(kTrafficPedestrainPriority, DEV_EVENT_TRAFFICPEDESTRAINPRIORITY_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nLane, "Lane", Int),
          EV_INITIAL_UTC,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_CAR,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICPEDESTRAINPRIORITY_INFO>);

TABLE(kTrafficManualSnap, DEV_EVENT_TRAFFICMANUALSNAP_INFO,
      {
          EV_HEAD_A,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_CAR,
          EV_FILE_INFO,
          EV_ACTION,
          FIELD(byOpenStrobeState, "OpenStrobeState", Names(kStrobeStates)),
          EV_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICMANUALSNAP_INFO>);

TABLE(kTrafficWithoutSafeBelt, DEV_EVENT_TRAFFICWITHOUTSAFEBELT_INFO,
      {
          EV_HEAD_B,
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION,
          EV_REPEAT,
          EV_FILE_INFO,
          FIELD(nLane, "Lane", Int),
          FIELD(nMark, "Mark", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nSource, "Source", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_CAR,
          FIELD(nSpeed, "Speed", Int),
          FIELD(emMainSeat, "MainSeat", Names(kExactSafeBelts)),
          FIELD(emSlaveSeat, "SlaveSeat", Names(kExactSafeBelts)),
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICWITHOUTSAFEBELT_INFO>);

TABLE(kTrafficDriverSmoking, DEV_EVENT_TRAFFICDRIVERSMOKING_INFO,
      {
          EV_HEAD_B,
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION,
          EV_REPEAT,
          EV_FILE_INFO,
          FIELD(nLane, "Lane", Int),
          FIELD(nMark, "Mark", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nSource, "Source", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_CAR,
          FIELD(nSpeed, "Speed", Int),
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICDRIVERSMOKING_INFO>);

TABLE(kTrafficDriverCalling, DEV_EVENT_TRAFFICDRIVERCALLING_INFO,
      {
          EV_HEAD_B,
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION,
          EV_REPEAT,
          EV_FILE_INFO,
          FIELD(nLane, "Lane", Int),
          FIELD(nMark, "Mark", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nSource, "Source", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_CAR,
          FIELD(nSpeed, "Speed", Int),
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICDRIVERCALLING_INFO>);

TABLE(kTrafficPedestrianRunRedLight, DEV_EVENT_TRAFFICPEDESTRIANRUNREDLIGHT_INFO,
      {
          EV_HEAD_A,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_COMM_INFO,
      });

TABLE(kTrafficTurnLeftAfterStraight, DEV_EVENT_TRAFFICTURNLEFTAFTERSTRAIGHT_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_OBJECT,
          EV_VEHICLE,
          EV_CAR,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION,
          EV_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_GPS,
          EV_COMM_INFO_ALONE,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICTURNLEFTAFTERSTRAIGHT_INFO>);

TABLE(kTrafficBigBendSmallTurn, DEV_EVENT_TRAFFICBIGBENDSMALLTURN_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_OBJECT,
          EV_VEHICLE,
          EV_CAR,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION,
          EV_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_COMM_INFO_ALONE,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICBIGBENDSMALLTURN_INFO>);

TABLE(kTrafficQueueJump, DEV_EVENT_TRAFFICQUEUEJUMP_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_OBJECT,
          EV_VEHICLE,
          EV_CAR,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION,
          EV_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_COMM_INFO_ALONE,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICQUEUEJUMP_INFO>);

TABLE(kVehicleSuspiciousCar, DEV_EVENT_VEHICLESUSPICIOUSCAR_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION,
          EV_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_GPS,
      });

TABLE(kTrafficTurnRightAfterStraight, DEV_EVENT_TRAFFICTURNRIGHTAFTERSTRAIGHT_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_OBJECT,
          EV_VEHICLE,
          EV_CAR,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION,
          EV_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_COMM_INFO_ALONE,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICTURNRIGHTAFTERSTRAIGHT_INFO>);

TABLE(kTrafficHighBeam, DEV_EVENT_TRAFFICHIGHBEAM_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_REPEAT,
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_CAR,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_COMM_INFO_ALONE,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICHIGHBEAM_INFO>);

TABLE(kTrafficTruckforbid, DEV_EVENT_TRAFFICTRUCKFORBID_INFO,
      {
          EV_CHANNEL,
          EV_RULE_NAME,
          FIELD(nGroupID, "GroupID", Int),
          FIELD(nCountInGroup, "CountInGroup", Int),
          FIELD(nIndexInGroup, "IndexInGroup", Int),
          EV_TIME_STAMP,
          EV_UTC,
          EV_ID,
          FIELD(dwUTCMS, "UTCMS", UInt).ReadOnly(),
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_CAR,
          EV_COMM_INFO_ALONE,
          EV_FILE_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICTRUCKFORBID_INFO>);

TABLE(kTrafficCarDistanceShort, DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_CAR,
          EV_FILE_INFO,
          EV_COMM_INFO_ALONE,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO>);

// The same, with the paths of the notification.
TABLE(kTrafficWaitingArea, DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_CAR,
          EV_FILE_INFO,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO>);

} // namespace orrery::events
