// Traffic events: junctions, gates, signals and weights.
#include "events/EventLog.h"
#include "events/TrafficEvents.h"
#include "frame/json/MemberKeys.h"

#include <algorithm>

namespace orrery::events {

using json::Value;

namespace {

NAMES(kJunctionBreaking, kFolded,
      {
          {EVENT_JUNCTION_RUN_RED_LIGHT, "RunRedLight"},
          {EVENT_JUNCTION_WRONG_LANE, "WrongLane"},
          {EVENT_JUNCTION_RETROGRADE, "Retrograde"},
          {EVENT_JUNCTION_U_TURN, "U-Trun"},
          {EVENT_JUNCTION_TRAFFIC_JAM, "TrafficJam"},
          {EVENT_JUNCTION_TRAFFIC_IDLE, "TrafficIdle"},
          {EVENT_JUNCTION_OVERLINE, "Overline"},
      });

NAMES(kGateBreaking, kFolded,
      {
          {EVENT_GATE_RETROGRADE, "Retrograde"},
          {EVENT_GATE_OVERLINE, "Overline"},
          {EVENT_GATE_OVERSPEED, "Overspeed"},
          {EVENT_GATE_UNDERSPEED, "Underpeed"},
          {EVENT_GATE_UNDERSPEED, "UnderSpeed"},
          {EVENT_GATE_RUN_RED_LIGHT, "RunRedLight"},
          {EVENT_GATE_PASSING, "Passing"},
          {EVENT_GATE_OVER_YELLOW_LINE, "OverYellowLine"},
          {EVENT_GATE_WRONG_RUNNING_ROUTE, "WrongRunningRoute"},
          {EVENT_GATE_YELLOW_VEHICLE_IN_ROUTE, "YellowVehicleInRoute"},
      });

NAMES(kJunctionDirections, kFolded,
      {
          {1, "Obverse"},
          {2, "Reverse"},
      });
NAMES(kVehicleDirections, kFolded,
      {
          {1, "Head"},
          {2, "Tail"},
      });
NAMES(kSexes, kFolded,
      {
          {1, "Male"},
          {2, "Female"},
      });

PART(kCard, EVENT_CARD_INFO,
     {
         FIELD(szCardNumber, "CardNumber", Text),
     });
PART(kWeigh, EVENT_WEIGH_INFO,
     {
         FIELD(dwRough, "Rough", UInt),
         FIELD(dwTare, "Tare", UInt),
         FIELD(dwNet, "Net", UInt),
     });

void FinishJunction(const Value& data, std::byte* record, ReadCall& call) {
    CarRule<DEV_EVENT_TRAFFICJUNCTION_INFO>(data, record, call);
    auto& event = *reinterpret_cast<DEV_EVENT_TRAFFICJUNCTION_INFO*>(record);
    if (event.bNonMotor != 0) {
        // The rider's vehicle is of the kind that the object is told to be.
        event.stuNonMotor.emCategory = kNonMotorTypes.CodeOf(TextOf(event.stuObject.szObjectSubType)).value_or(0);
    }
    ORRERY_EVENT_DETAIL("ParseTraffic_JunctionInfo() complete");
}

// An axle that the vehicle does not have has no weight, and no length to the next.
void CutAxles(const Value&, std::byte* record, ReadCall&) {
    auto& event = *reinterpret_cast<DEV_EVENT_QSYTRAFFICCARWEIGHT_INFO*>(record);
    event.dwAxleNum = std::min<std::uint32_t>(event.dwAxleNum, ORRERY_EVENT_AXLES);
    for (std::uint32_t i = event.dwAxleNum; i < ORRERY_EVENT_AXLES; ++i)
        event.dwAxleWeightInfo[i] = 0;
    for (std::uint32_t i = event.dwAxleNum > 0 ? event.dwAxleNum - 1 : 0; i < ORRERY_EVENT_AXLES - 1; ++i)
        event.dwAxleLengthInfo[i] = 0;
}

void FinishGate(const Value& data, std::byte* record, ReadCall& call) {
    auto& event = *reinterpret_cast<DEV_EVENT_TRAFFICGATE_INFO*>(record);
    static constexpr json::MemberKeys<2> kKeys("SnapTimes", "TrafficCar");
    const auto [times, car] = json::ValuesAt(data, kKeys);
    if (!times->isNull()) event.stuFileInfo.byCount = static_cast<std::uint8_t>(times->asInt());
    if (!car->isNull() && (*car)["VehicleSize"].isNull()) {
        std::memcpy(event.stuTrafficCar.szVehicleSize, event.stuVehicle.szObjectSubType,
                    sizeof event.stuTrafficCar.szVehicleSize - 1);
    }
    CarRule<DEV_EVENT_TRAFFICGATE_INFO>(data, record, call);
}

PART(kGateCar, EVENT_GATE_CAR_INFO,
     {
         FIELD(szRoadwayNo, "RoadwayNo", Text),
         FIELD(szViolationDesc, "ViolationDesc", Text),
         FIELD(szDrivingDirection, "DrivingDirection", Custom(kDrivingDirections)),
         FIELD(bySnapshotMode, "SnapshotMode", Int),
         FIELD(szViolationCode, "ViolationCode", Text),
         FIELD(byVehicleLength, "VehicleLength", Int),
         FIELD(szVehicleSize, "VehicleSize", Text),
         FIELD(szPlateColor, "PlateColor", Text),
         FIELD(szPlateNumber, "PlateNumber", Text),
         FIELD(szPlateType, "PlateType", Text),
         FIELD(nGroupID, "GroupID", AnyInteger),
         FIELD(nLowerSpeedLimit, "LowerSpeedLimit", Int),
         FIELD(nUpperSpeedLimit, "UpperSpeedLimit", Int),
         FIELD(nLane, "Lane", Int),
         FIELD(nOverSpeedMargin, "OverSpeedMargin", Int),
         FIELD(nUnderSpeedMargin, "UnderSpeedMargin", Int),
         FIELD(szMachineName, "MachineName", Text),
         FIELD(szMachineAddress, "MachineAddress", Text),
         FIELD(szMachineGroup, "MachineGroup", Text),
         FIELD(szVehicleColor, "VehicleColor", Text),
         FIELD(byRedundance, "Redundance", Int),
         FIELD(pszDeviceAddress, "DeviceAddress", OwnedText),
         FIELD(fActualShutter, "ActualShutter", Real),
         FIELD(byActualGain, "ActualGain", Int),
         FIELD(byDirection, "Direction", Int).Absent(EVENT_DIRECTION_UNKNOWN),
         FIELD(szDefendCode, "DefendCode", Text),
         FIELD(nTrafficBlackListID, "TrafficBlackListID", Int),
     })
    .StartsWhenRead();

} // namespace

TABLE(kTrafficJunction, DEV_EVENT_TRAFFICJUNCTION_INFO,
      {
          EV_HEAD_A_WITH(FIELD(byMainSeatBelt, "MainSeat", Names(kSafeBelts)),
                         FIELD(bySlaveSeatBelt, "SlaveSeat", Names(kSafeBelts)),
                         FIELD(byVehicleDirection, "VehicleDirection", Names(kVehicleDirections)),
                         FIELD(byOpenStrobeState, "OpenStrobeState", Names(kStrobeStates))),
          EV_OBJECT,
          FIELD(nLane, "Lane", Int),
          FIELD(dwBreakingRule, "Breaking", NamedBits(kJunctionBreaking)),
          FIELD(stuRedLightUTC, "RedLightUTC", UtcTime),
          EV_MILLISECONDS_OF(stuRedLightUTC, "RedLightUTCMS"),
          EV_FILE_INFO,
          FIELD(nSequence, "Sequence", Int),
          FIELD(nSpeed, "Speed", Int),
          EV_ACTION,
          FIELD(byDirection, "JunctionDirection", Names(kJunctionDirections)),
          FIELD(byLightState, "LightState", Int),
          EV_REPEAT,
          EV_VEHICLE,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          ORRERY_SAME_FROM_EVENT(szRecordFile),
          FIELD(stuWeigh, "Custom/WeighInfo", Record(kWeigh)),
          FIELD(dwTextSource, "TextSource", UInt),
          EV_GPS,
          FIELD(bNonMotorFeature, "NonMotorFeature", Presence),
          FIELD(byBag, "NonMotorFeature/Bag", Int),
          FIELD(byUmbrella, "NonMotorFeature/Umbrella", Int),
          FIELD(byCarrierBag, "NonMotorFeature/CarrierBag", Int),
          FIELD(byHat, "NonMotorFeature/Hat", Int),
          FIELD(byHelmet, "NonMotorFeature/Helmet", Int),
          FIELD(bySex, "NonMotorFeature/Sex", Names(kSexes)),
          FIELD(byAge, "NonMotorFeature/Age", Int),
          FIELD(stuUpperBodyColor, "NonMotorFeature/UpperBodyColor", Record(kColor)),
          FIELD(stuLowerBodyColor, "NonMotorFeature/LowerBodyColor", Record(kColor)),
          FIELD(byUpClothes, "NonMotorFeature/UpClothes", Int),
          FIELD(byDownClothes, "NonMotorFeature/DownClothes", Int),
          FIELD(nTriggerType, "TriggerType", Int).Only(OnlyType::Integer),
          EV_CAR,
          FIELD(nCardNum),
          FIELD(stuCard, "CardInfo", Record(kCard)).Count(AT(nCardNum)),
          EV_COMM_INFO,
          EV_EXTENSION,
          FIELD(bNonMotor, "NonMotor", Presence),
          FIELD(stuNonMotor, "NonMotor", Record(kNonMotor)),
          FIELD(stuSceneImage, "SceneImage", Record(kSceneImage)),
      })
    .AfterRead(FinishJunction);

TABLE(kQSYTrafficCarWeight, DEV_EVENT_QSYTRAFFICCARWEIGHT_INFO,
      {
          FIELD(stuJunction, "", Record(kTrafficJunction)),
          FIELD(dwAxleNum, "CarWeightInfo/AxleNum", UInt),
          FIELD(dwMaxDistance, "CarWeightInfo/MaxDistance", UInt),
          FIELD(dwAxleWeightInfo, "CarWeightInfo/AxleWeightInfo", UInt),
          FIELD(dwAxleLengthInfo, "CarWeightInfo/AxleLengthInfo", UInt),
          FIELD(dwOverWeight, "CarWeightInfo/OverWeight", UInt),
      })
    .AfterRead(CutAxles);

TABLE(kTrafficGate, DEV_EVENT_TRAFFICGATE_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          FIELD(nLane, "Lane", Int),
          FIELD(nSpeed, "Speed", Int),
          FIELD(nSpeedLowerLimit, "SpeedLimit", FirstNumber).AtLeast(2),
          FIELD(nSpeedUpperLimit, "SpeedLimit", SecondNumber).AtLeast(2),
          FIELD(dwBreakingRule, "Breaking", NamedBits(kGateBreaking)),
          EV_FILE_INFO,
          EV_VEHICLE,
          FIELD(szSerialNo, "ManualSnap/SerialNo", Text),
          FIELD(nSequence, "Sequence", Int),
          FIELD(szSnapFlag, "SnapFlag", Text),
          FIELD(byRedLightMargin, "RedLightMargin", Int),
          FIELD(bySpeedingPercentage, "SpeedingPercentage", Int),
          FIELD(byUnderSpeedingPercentage, "UnderSpeedingPercentage", Int),
          FIELD(stuTrafficCar, "TrafficCar", Record(kGateCar)),
          FIELD(nCardNum),
          FIELD(stuCard, "CardInfo", Record(kCard)).Count(AT(nCardNum)),
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_COMM_INFO,
      })
    .AfterRead(FinishGate);

TABLE(kTrafficRunRedLight, DEV_EVENT_TRAFFICRUNREDLIGHT_INFO,
      {
          EV_HEAD_A,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nLightState, "LightState", Int),
          FIELD(nSpeed, "Speed", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          FIELD(stuRedLightUTC, "RedLightUTC", UtcTime),
          EV_MILLISECONDS_OF(stuRedLightUTC, "RedLightUTCMS"),
          FIELD(byRedLightMargin, "RedLightMargin", Int),
          FIELD(nRedLightPeriod, "RedLightPeriod", Int),
          EV_CAR,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICRUNREDLIGHT_INFO>);

TABLE(kTrafficRunYellowLight, DEV_EVENT_TRAFFICRUNYELLOWLIGHT_INFO,
      {
          EV_HEAD_A,
          FIELD(nLane, "Lane", Int),
          EV_OBJECT,
          EV_VEHICLE,
          EV_FILE_INFO,
          FIELD(nLightState, "LightState", Int),
          FIELD(nSpeed, "Speed", Int),
          FIELD(nSequence, "Sequence", Int),
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          FIELD(stuRedLightUTC, "RedLightUTC", UtcTime),
          EV_MILLISECONDS_OF(stuRedLightUTC, "RedLightUTCMS"),
          FIELD(byRedLightMargin, "RedLightMargin", Int),
          FIELD(nYellowLightPeriod, "YellowLightPeriod", Int),
          EV_CAR,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICRUNYELLOWLIGHT_INFO>);

TABLE(kTrafficOverSpeed, DEV_EVENT_TRAFFICOVERSPEED_INFO,
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
          EV_FLAG_MASK,
          EV_WIDTH,
          EV_HEIGHT,
          EV_GPS,
          EV_CAR,
          EV_COMM_INFO,
      })
    .AfterRead(CarRule<DEV_EVENT_TRAFFICOVERSPEED_INFO>);

} // namespace orrery::events
