// Traffic events: flow and jams, accidents, pedestrians, parking spaces.
#include "events/EventLog.h"
#include "events/TrafficEvents.h"

#include <algorithm>

namespace orrery::events {

using json::Value;

namespace {

NAMES(kFlowDirections, kFolded,
      {
          {EVENT_FLOW_STRAIGHT, "Straight"},
          {EVENT_FLOW_TURN_LEFT, "TurnLeft"},
          {EVENT_FLOW_TURN_RIGHT, "TurnRight"},
          {EVENT_FLOW_U_TURN, "U-Turn"},
      });
NAMES(kHeadings, kFolded,
      {
          {1, "Approach"},
          {2, "Leave"},
      });
PART(kSignal, EVENT_SIGNAL_INFO,
     {
         FIELD(bySpeed, "Speed", Int),
         FIELD(byType, "Type", Int),
         FIELD(fRedTime, "RedTime", Real),
         FIELD(fCapTime, "CapTime", Real),
         FIELD(byCarLength, "CarLength", Int),
         FIELD(bySigSequence, "SigSequence", Int),
         FIELD(byDirection, "Direction", Int),
         FIELD(byLightColor, "LightColor", Int),
         FIELD(szSnapFlag, "SnapFlag", Text),
     });
PART(kCarWay, EVENT_CAR_WAY_INFO,
     {
         FIELD(byLane),
         FIELD(bySignalNum),
         FIELD(stuSignal, "SigInfo", Record(kSignal)).Count(AT(bySignalNum)).NullElement(Nulls::CloseUp),
     });

} // namespace
} // namespace orrery::events
template <>
inline constexpr const orrery::record::Table* orrery::record::kLayoutOf<EVENT_CAR_WAY_INFO> = &orrery::events::kCarWay;
namespace orrery::events {
namespace {

// Lanes without a signal are passed over; the others keep the number of their place.
void ReadLanes(const Field&, const Value& value, std::byte* record, ReadCall& call) {
    auto& event = *reinterpret_cast<DEV_EVENT_TRAFFICSNAPSHOT_INFO*>(record);
    const auto lanes = value.elements().first(std::min<std::size_t>(value.elements().size(), ORRERY_EVENT_LANES));
    for (std::size_t i = 0; i < lanes.size(); ++i) {
        EVENT_CAR_WAY_INFO lane{};
        ReadRecord(kCarWay, lanes[i], reinterpret_cast<std::byte*>(&lane), call);
        if (lane.bySignalNum == 0) continue;
        lane.byLane = static_cast<std::uint8_t>(i);
        event.stuLane[event.nLaneNum++] = lane;
    }
}
constexpr CustomCodec kLanes{ReadLanes};

PART(kFlowState, EVENT_FLOW_STATE,
     {
         FIELD(nLane, "Lane", Int),
         FIELD(nState, "State", Int),
         FIELD(nFlow, "Flow", Int),
         FIELD(nPeriod, "Period", Int),
         FIELD(nPeriodByMili, "PeriodByMili", Int),
         FIELD(emJamState, "JamState", Names(kJamStates)),
     });

#define ORRERY_VEHICLES(type) FIELD(n##type##Vehicles, #type "Vehicles", Int)
PART(kVehicleTypeFlow, EVENT_VEHICLE_TYPE_FLOW,
     {
         ORRERY_VEHICLES(PassengerCar), ORRERY_VEHICLES(LargeTruck),   ORRERY_VEHICLES(MidTruck),
         ORRERY_VEHICLES(SaloonCar),    ORRERY_VEHICLES(Microbus),     ORRERY_VEHICLES(MicroTruck),
         ORRERY_VEHICLES(Tricycle),     ORRERY_VEHICLES(Motorcycle),   ORRERY_VEHICLES(Passerby),
         ORRERY_VEHICLES(Bus),          ORRERY_VEHICLES(MPV),          ORRERY_VEHICLES(MidPassengerCar),
         ORRERY_VEHICLES(MiniCarriage), ORRERY_VEHICLES(OilTankTruck), ORRERY_VEHICLES(Pickup),
         ORRERY_VEHICLES(SUV),          ORRERY_VEHICLES(SuvMpv),       ORRERY_VEHICLES(TankCar),
         ORRERY_VEHICLES(Unknown),
     });
#undef ORRERY_VEHICLES

PART(kFlowHeading, EVENT_FLOW_DIRECTION,
     {
         FIELD(emDirection, "", Names(kHeadings)),
         FIELD(szFrom, "", Text),
         FIELD(szTo, "", Text),
     })
    .As(Shape::LooseTuple);

// The car is not part of the record, but whoever follows the log sees it read.
void LogCarAside(const Value& data, std::byte*, ReadCall& call) {
    const Value& car = data["TrafficCar"];
    if (car.isNull() || !LogHasSink()) return;
    EVENT_TRAFFIC_CAR_INFO aside{};
    ReadRecord(kTrafficCar, car, reinterpret_cast<std::byte*>(&aside), call);
}

// Devices that mean a delay say so twice, and only the spelling with a blank has the number.
void ReadDelay(const Value& data, std::byte* record, ReadCall&) {
    const Value& detail = data["DetailInfo"];
    if (detail["Delay"].isNull()) return;
    SET_MEMBER(record, DEV_EVENT_TRAFFICFLOWSTAT_INFO, nDelay, detail["Delay "].asInt());
}

} // namespace

// What a record without a car keeps of one: as much of a text is converted as the car's own member takes.
#define EV_CAR_TEXT(member, key)                                                                                       \
    FIELD(member, "TrafficCar/" key, Text).FirstBytes(sizeof(EVENT_TRAFFIC_CAR_INFO::member))
#define EV_CAR_TEXTS EV_CAR_TEXT(szMachineName, "MachineName"), EV_CAR_TEXT(szRoadwayNo, "RoadwayNo")

TABLE(kTrafficControl, DEV_EVENT_TRAFFICCONTROL_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_ACTION,
          EV_GPS,
      });

TABLE(kTrafficAccident, DEV_EVENT_TRAFFICACCIDENT_INFO,
      {
          EV_HEAD_A,
          FIELD(nObjectNum),
          FIELD(stuObjects, "Objects", Record(kObject)).Count(AT(nObjectNum)),
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_CAR_TEXTS,
      })
    .AfterRead(LogCarAside);

TABLE(kTrafficSnapshot, DEV_EVENT_TRAFFICSNAPSHOT_INFO,
      {
          EV_HEAD_A,
          FIELD(nLaneNum),
          FIELD(stuLane, "CarWayInfo", Custom(kLanes)).Count(AT(nLaneNum)),
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_COMM_INFO,
      });

TABLE(kTrafficJam, DEV_EVENT_TRAFFICJAM_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          FIELD(nLane, "Lane", Int),
          FIELD(stuStartJamTime, "StartJaming", UtcTime),
          FIELD(nAlarmInterval, "AlarmInterval", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_CAR,
          FIELD(byJamLenght, "JamLenght", Int),
          FIELD(nJamRealLength, "JamRealLength", Int),
          EV_COMM_INFO,
          EV_EXTENSION,
      });

#define EV_DETAIL(member, key, ...) FIELD(member, "DetailInfo/" key, __VA_ARGS__)
TABLE(kTrafficFlowStat, DEV_EVENT_TRAFFICFLOWSTAT_INFO,
      {
          EV_HEAD_A,
          FIELD(nSequence, "Sequence", Int),
          FIELD(nStateNum),
          FIELD(stuStates, "FlowStates", Record(kFlowState)).Count(AT(nStateNum)),
          EV_DETAIL(nVehicles, "Vehicles", Int),
          EV_DETAIL(nLeftVehicles, "LeftVehicles", Int),
          EV_DETAIL(nRightVehicles, "RightVehicles", Int),
          EV_DETAIL(nStraightVehicles, "StraightVehicles", Int),
          EV_DETAIL(nUTurnVehicles, "UTurnVehicles", Int),
          EV_DETAIL(fAverageSpeed, "AverageSpeed", Real),
          EV_DETAIL(fAverageLength, "AverageLength", Real),
          EV_DETAIL(fTimeOccupyRatio, "TimeOccupyRatio", Real),
          EV_DETAIL(fSpaceOccupyRatio, "SpaceOccupyRatio", Real),
          EV_DETAIL(fSpaceHeadway, "SpaceHeadway", Real),
          EV_DETAIL(fTimeHeadway, "TimeHeadway", Real),
          EV_DETAIL(fDensity, "Density", Real),
          EV_DETAIL(nOverSpeedVehicles, "OverSpeedVehicles", Int),
          EV_DETAIL(nUnderSpeedVehicles, "UnderSpeedVehicles", Int),
          EV_DETAIL(nLargeVehicles, "LargeVehicles", Int),
          EV_DETAIL(nMediumVehicles, "MediumVehicles", Int),
          EV_DETAIL(nSmallVehicles, "SmallVehicles", Int),
          EV_DETAIL(nMotoVehicles, "MotoVehicles", Int),
          EV_DETAIL(nLongVehicles, "LongVehicles", Int),
          EV_DETAIL(nVolume, "Volume", Int),
          EV_DETAIL(nFlowRate, "FlowRate", Int),
          EV_DETAIL(nTravelTime, "TravelTime", Int),
          EV_DETAIL(dBackOfQueue, "BackOfQueue", Real),
          EV_DETAIL(nBackOfQueue, "BackOfQueue", WholeReal),
          FIELD(nDelay),
          EV_DETAIL(byDirection, "Direction", Names(kFlowDirections)),
          EV_DETAIL(stuVehicleTypeFlow, "VehicleTypeFlow", Record(kVehicleTypeFlow)),
          EV_DETAIL(stuDrivingDirection, "DrivingDirection", Record(kFlowHeading)),
          EV_DETAIL(emRank, "Rank", Names(kRanks)),
          EV_DETAIL(nState, "State", Int),
          EV_DETAIL(bOccupyHeadCoil, "Occupyheadcoil", Bool),
          EV_DETAIL(bOccupyTailCoil, "OccupyTailcoil", Bool),
          EV_DETAIL(bStatistics, "Statistics", Bool),
          EV_DETAIL(stuQueueEnd, "QueueEnd", Record(kEventPoint)),
          EV_DETAIL(emClass, "Class", Names(kSceneClasses)),
      })
    .AfterRead(ReadDelay);
#undef EV_DETAIL

TABLE(kTrafficPedestrain, DEV_EVENT_TRAFFICPEDESTRAIN_INFO,
      {
          EV_HEAD_A,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_CAR_TEXTS,
          FIELD(szVehicleCategory, "Vehicle/Category", Text),
          EV_COMM_INFO,
      })
    .AfterRead(LogCarAside);

TABLE(kTrafficThrow, DEV_EVENT_TRAFFICTHROW_INFO,
      {
          EV_HEAD_A,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          EV_CAR_TEXTS,
          EV_COMM_INFO,
      })
    .AfterRead(LogCarAside);
#undef EV_CAR_TEXTS
#undef EV_CAR_TEXT

#define EV_FEATURE_AREA                                                                                                \
    FIELD(nFeaturePicAreaNum),                                                                                         \
        FIELD(stuFeaturePicArea, "ParkingInfo/FeaturePicArea", Record(kEventPoint)).Count(AT(nFeaturePicAreaNum))
TABLE(kTrafficParkingSpaceParking, DEV_EVENT_TRAFFICPARKINGSPACEPARKING_INFO,
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
          FIELD(nParkingSpaceStatus, "ParkingSpaceStatus", Int),
          FIELD(byTextSource, "TextSource", Int),
          EV_FEATURE_AREA,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICPARKINGSPACEPARKING_INFO>);

TABLE(kTrafficVideoAnalysePreSnap, DEV_EVENT_TRAFFICVIDEOANALYSEPRESNAP_INFO,
      {
          EV_HEAD_A,
          FIELD(nGroupID, "GroupID", Int),
          FIELD(nCountInGroup, "CountInGroup", Int),
          FIELD(nIndexInGroup, "IndexInGroup", Int),
          EV_OBJECT,
          EV_VEHICLE,
          FIELD(nMark, "Mark", Int),
          FIELD(nSource, "Source", Int),
          FIELD(nFrameSequence, "FrameSequence", Int),
          FIELD(nLane, "Lane", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_CAR,
          FIELD(emParkingSpaceStatus, "ParkingSpaceStatus", CountedFromOne),
          FIELD(emCurrentParkingSpaceStatus, "CurrentParkingSpaceStatus", CountedFromOne),
          EV_FEATURE_AREA,
          EV_FILE_INFO,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICVIDEOANALYSEPRESNAP_INFO>);
#undef EV_FEATURE_AREA

} // namespace orrery::events
