// Traffic events: how drivers and pedestrians behave, and turns
#include "events/TrafficEvents.h"

namespace orrery::events {

TABLE(kTrafficPedestrainPriority, DEV_EVENT_TRAFFICPEDESTRAINPRIORITY_INFO,
      {
          HEAD_A,
          OBJECT,
          VEHICLE,
          FILE_INFO,
          FIELD(nLane, "Lane", Int),
          INITIAL_UTC,
          ACTION_AND_REPEAT,
          FLAG_MASK,
          CAR,
          WIDTH,
          HEIGHT,
          GPS,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICPEDESTRAINPRIORITY_INFO>);

TABLE(kTrafficManualSnap, DEV_EVENT_TRAFFICMANUALSNAP_INFO,
      {
          HEAD_A,
          FIELD(nLane, "Lane", Int),
          OBJECT,
          VEHICLE,
          CAR,
          FILE_INFO,
          ACTION,
          FIELD(byOpenStrobeState, "OpenStrobeState", Names(kStrobeStates)),
          REPEAT,
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICMANUALSNAP_INFO>);

TABLE(kTrafficWithoutSafeBelt, DEV_EVENT_TRAFFICWITHOUTSAFEBELT_INFO,
      {
          HEAD_B,
          FIELD(nSequence, "Sequence", Int),
          ACTION,
          REPEAT,
          FILE_INFO,
          FIELD(nLane, "Lane", Int),
          FIELD(nMark, "Mark", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nSource, "Source", Int),
          OBJECT,
          VEHICLE,
          CAR,
          FIELD(nSpeed, "Speed", Int),
          FIELD(emMainSeat, "MainSeat", Names(kExactSafeBelts)),
          FIELD(emSlaveSeat, "SlaveSeat", Names(kExactSafeBelts)),
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          GPS,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICWITHOUTSAFEBELT_INFO>);

TABLE(kTrafficDriverSmoking, DEV_EVENT_TRAFFICDRIVERSMOKING_INFO,
      {
          HEAD_B,
          FIELD(nSequence, "Sequence", Int),
          ACTION,
          REPEAT,
          FILE_INFO,
          FIELD(nLane, "Lane", Int),
          FIELD(nMark, "Mark", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nSource, "Source", Int),
          OBJECT,
          VEHICLE,
          CAR,
          FIELD(nSpeed, "Speed", Int),
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          GPS,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICDRIVERSMOKING_INFO>);

TABLE(kTrafficDriverCalling, DEV_EVENT_TRAFFICDRIVERCALLING_INFO,
      {
          HEAD_B,
          FIELD(nSequence, "Sequence", Int),
          ACTION,
          REPEAT,
          FILE_INFO,
          FIELD(nLane, "Lane", Int),
          FIELD(nMark, "Mark", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nSource, "Source", Int),
          OBJECT,
          VEHICLE,
          CAR,
          FIELD(nSpeed, "Speed", Int),
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          GPS,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICDRIVERCALLING_INFO>);

TABLE(kTrafficPedestrianRunRedLight, DEV_EVENT_TRAFFICPEDESTRIANRUNREDLIGHT_INFO,
      {
          HEAD_A,
          FIELD(nLane, "Lane", Int),
          OBJECT,
          FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          ACTION_AND_REPEAT,
          FLAG_MASK,
          WIDTH,
          HEIGHT,
          COMM_INFO,
      });

TABLE(kTrafficTurnLeftAfterStraight, DEV_EVENT_TRAFFICTURNLEFTAFTERSTRAIGHT_INFO,
      {
          HEAD_A,
          FILE_INFO,
          OBJECT,
          VEHICLE,
          CAR,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          ACTION,
          REPEAT,
          FLAG_MASK,
          WIDTH,
          GPS,
          COMM_INFO_ALONE,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICTURNLEFTAFTERSTRAIGHT_INFO>);

TABLE(kTrafficBigBendSmallTurn, DEV_EVENT_TRAFFICBIGBENDSMALLTURN_INFO,
      {
          HEAD_A,
          FILE_INFO,
          OBJECT,
          VEHICLE,
          CAR,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          ACTION,
          REPEAT,
          FLAG_MASK,
          WIDTH,
          COMM_INFO_ALONE,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICBIGBENDSMALLTURN_INFO>);

TABLE(kTrafficQueueJump, DEV_EVENT_TRAFFICQUEUEJUMP_INFO,
      {
          HEAD_A,
          FILE_INFO,
          OBJECT,
          VEHICLE,
          CAR,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          ACTION,
          REPEAT,
          FLAG_MASK,
          WIDTH,
          COMM_INFO_ALONE,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICQUEUEJUMP_INFO>);

TABLE(kVehicleSuspiciousCar, DEV_EVENT_VEHICLESUSPICIOUSCAR_INFO,
      {
          HEAD_A,
          FILE_INFO,
          OBJECT,
          VEHICLE,
          FIELD(nSequence, "Sequence", Int),
          ACTION,
          REPEAT,
          FLAG_MASK,
          WIDTH,
          GPS,
      });

TABLE(kTrafficTurnRightAfterStraight, DEV_EVENT_TRAFFICTURNRIGHTAFTERSTRAIGHT_INFO,
      {
          HEAD_A,
          FILE_INFO,
          OBJECT,
          VEHICLE,
          CAR,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          ACTION,
          REPEAT,
          FLAG_MASK,
          WIDTH,
          COMM_INFO_ALONE,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICTURNRIGHTAFTERSTRAIGHT_INFO>);

TABLE(kTrafficHighBeam, DEV_EVENT_TRAFFICHIGHBEAM_INFO,
      {
          HEAD_A,
          FILE_INFO,
          REPEAT,
          OBJECT,
          VEHICLE,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          CAR,
          FLAG_MASK,
          WIDTH,
          COMM_INFO_ALONE,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICHIGHBEAM_INFO>);

TABLE(kTrafficTruckforbid, DEV_EVENT_TRAFFICTRUCKFORBID_INFO,
      {
          CHANNEL,
          RULE_NAME,
          FIELD(nGroupID, "GroupID", Int),
          FIELD(nCountInGroup, "CountInGroup", Int),
          FIELD(nIndexInGroup, "IndexInGroup", Int),
          TIME_STAMP,
          UTC,
          EVENT_ID,
          FIELD(dwUTCMS, "UTCMS", UInt),
          OBJECT,
          VEHICLE,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          CAR,
          COMM_INFO_ALONE,
          FILE_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICTRUCKFORBID_INFO>);

TABLE(kTrafficCarDistanceShort, DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO,
      {
          HEAD_A,
          OBJECT,
          VEHICLE,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          CAR,
          FILE_INFO,
          COMM_INFO_ALONE,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO>);

// The same, with the paths of the notification.
TABLE(kTrafficWaitingArea, DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO,
      {
          HEAD_A,
          OBJECT,
          VEHICLE,
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          CAR,
          FILE_INFO,
          COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO>);

} // namespace orrery::events
