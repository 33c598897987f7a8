// The tables of the traffic events.
#pragma once

#include "events/VehicleParts.h"

#include "orrery/events_traffic.h"

namespace orrery::events {

// Ranks of roads.
NAMES(kRanks, kFolded,
      {
          {EVENT_RANK_RAPID, "Rapid"},
          {EVENT_RANK_TRUNK, "Trunk"},
          {EVENT_RANK_SUB_TRUNK, "SubTrunk"},
          {EVENT_RANK_BRANCH, "Branch"},
      });

extern const TypedTable<DEV_EVENT_TRAFFICCONTROL_INFO> kTrafficControl;
extern const TypedTable<DEV_EVENT_TRAFFICACCIDENT_INFO> kTrafficAccident;
extern const TypedTable<DEV_EVENT_TRAFFICJUNCTION_INFO> kTrafficJunction;
extern const TypedTable<DEV_EVENT_TRAFFICGATE_INFO> kTrafficGate;
extern const TypedTable<DEV_EVENT_TRAFFICSNAPSHOT_INFO> kTrafficSnapshot;
extern const TypedTable<DEV_EVENT_TRAFFICJAM_INFO> kTrafficJam;
extern const TypedTable<DEV_EVENT_TRAFFICRUNREDLIGHT_INFO> kTrafficRunRedLight;
extern const TypedTable<DEV_EVENT_TRAFFICOVERLINE_INFO> kTrafficOverLine;
extern const TypedTable<DEV_EVENT_TRAFFICRETROGRADE_INFO> kTrafficRetrograde;
extern const TypedTable<DEV_EVENT_TRAFFICTURNLEFT_INFO> kTrafficTurnLeft;
extern const TypedTable<DEV_EVENT_TRAFFICTURNRIGHT_INFO> kTrafficTurnRight;
extern const TypedTable<DEV_EVENT_TRAFFICUTURN_INFO> kTrafficUTurn;
extern const TypedTable<DEV_EVENT_TRAFFICOVERSPEED_INFO> kTrafficOverSpeed;
extern const TypedTable<DEV_EVENT_TRAFFICUNDERSPEED_INFO> kTrafficUnderSpeed;
extern const TypedTable<DEV_EVENT_TRAFFICPARKING_INFO> kTrafficParking;
extern const TypedTable<DEV_EVENT_TRAFFICWRONGROUTE_INFO> kTrafficWrongRoute;
extern const TypedTable<DEV_EVENT_TRAFFICCROSSLANE_INFO> kTrafficCrossLane;
extern const TypedTable<DEV_EVENT_TRAFFICOVERYELLOWLINE_INFO> kTrafficOverYellowLine;
extern const TypedTable<DEV_EVENT_TRAFFICDRIVINGONSHOULDER_INFO> kTrafficDrivingOnShoulder;
extern const TypedTable<DEV_EVENT_TRAFFICYELLOWPLATEINLANE_INFO> kTrafficYellowPlateInLane;
extern const TypedTable<DEV_EVENT_TRAFFICPEDESTRAINPRIORITY_INFO> kTrafficPedestrainPriority;
extern const TypedTable<DEV_EVENT_TRAFFICNOPASSING_INFO> kTrafficNoPassing;
extern const TypedTable<DEV_EVENT_TRAFFICMANUALSNAP_INFO> kTrafficManualSnap;
extern const TypedTable<DEV_EVENT_TRAFFICFLOWSTAT_INFO> kTrafficFlowStat;
extern const TypedTable<DEV_EVENT_TRAFFICSTAY_INFO> kTrafficStay;
extern const TypedTable<DEV_EVENT_TRAFFICVEHICLEINROUTE_INFO> kTrafficVehicleInRoute;
extern const TypedTable<DEV_EVENT_TRAFFICVEHICLEINBUSROUTE_INFO> kTrafficVehicleInBusRoute;
extern const TypedTable<DEV_EVENT_TRAFFICBACKING_INFO> kTrafficBacking;
extern const TypedTable<DEV_EVENT_TRAFFICRUNYELLOWLIGHT_INFO> kTrafficRunYellowLight;
extern const TypedTable<DEV_EVENT_TRAFFICPARKINGONYELLOWBOX_INFO> kTrafficParkingOnYellowBox;
extern const TypedTable<DEV_EVENT_TRAFFICPARKINGSPACEPARKING_INFO> kTrafficParkingSpaceParking;
extern const TypedTable<DEV_EVENT_TRAFFICPEDESTRAIN_INFO> kTrafficPedestrain;
extern const TypedTable<DEV_EVENT_TRAFFICTHROW_INFO> kTrafficThrow;
extern const TypedTable<DEV_EVENT_TRAFFICIDLE_INFO> kTrafficIdle;
extern const TypedTable<DEV_EVENT_TRAFFICPARKINGSPACEOVERLINE_INFO> kTrafficParkingSpaceOverLine;
extern const TypedTable<DEV_EVENT_TRAFFICRESTRICTEDPLATE_INFO> kTrafficRestrictedPlate;
extern const TypedTable<DEV_EVENT_TRAFFICOVERSTOPLINE_INFO> kTrafficOverStopLine;
extern const TypedTable<DEV_EVENT_TRAFFICWITHOUTSAFEBELT_INFO> kTrafficWithoutSafeBelt;
extern const TypedTable<DEV_EVENT_TRAFFICDRIVERSMOKING_INFO> kTrafficDriverSmoking;
extern const TypedTable<DEV_EVENT_TRAFFICDRIVERCALLING_INFO> kTrafficDriverCalling;
extern const TypedTable<DEV_EVENT_TRAFFICPEDESTRIANRUNREDLIGHT_INFO> kTrafficPedestrianRunRedLight;
extern const TypedTable<DEV_EVENT_TRAFFICPASSNOTINORDER_INFO> kTrafficPassNotInOrder;
extern const TypedTable<DEV_EVENT_TRAFFICJAMFORBIDINTO_INFO> kTrafficJamForbidInto;
extern const TypedTable<DEV_EVENT_QSYTRAFFICCARWEIGHT_INFO> kQSYTrafficCarWeight;
extern const TypedTable<DEV_EVENT_TRAFFICCOMPAREPLATE_INFO> kTrafficComparePlate;
extern const TypedTable<DEV_EVENT_TRAFFICVIDEOANALYSEPRESNAP_INFO> kTrafficVideoAnalysePreSnap;
extern const TypedTable<DEV_EVENT_TRAFFICTURNLEFTAFTERSTRAIGHT_INFO> kTrafficTurnLeftAfterStraight;
extern const TypedTable<DEV_EVENT_TRAFFICBIGBENDSMALLTURN_INFO> kTrafficBigBendSmallTurn;
extern const TypedTable<DEV_EVENT_TRAFFICQUEUEJUMP_INFO> kTrafficQueueJump;
extern const TypedTable<DEV_EVENT_VEHICLESUSPICIOUSCAR_INFO> kVehicleSuspiciousCar;
extern const TypedTable<DEV_EVENT_TRAFFICTURNRIGHTAFTERSTRAIGHT_INFO> kTrafficTurnRightAfterStraight;
extern const TypedTable<DEV_EVENT_TRAFFICHIGHBEAM_INFO> kTrafficHighBeam;
extern const TypedTable<DEV_EVENT_TRAFFICTRUCKFORBID_INFO> kTrafficTruckforbid;
extern const TypedTable<DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO> kTrafficCarDistanceShort;
extern const TypedTable<DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO> kTrafficWaitingArea;

} // namespace orrery::events
