#include "analyse/TrafficGlobal.h"

#include "analyse/TrafficParts.h"

#include <algorithm>

namespace orrery {

using namespace record;

namespace {

NAMES(kTransferPolicies, kFolded,
      {
          {CFG_TRANSFER_REALTIME, "RealtimePriority"},
          {CFG_TRANSFER_SEQUENCE, "SequencePriority"},
      });

// ---- Steps of fines: where a step ends, the next one begins ----

void ReadPercentage(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    const auto numbers = value.elements();
    for (std::size_t i = 0; i < numbers.size() && i < 2; ++i)
        Store(record + field.offset + i * 4, numbers[i].asInt());
}

constexpr CustomCodec kPercentage{ReadPercentage, nullptr};

PART(kSpeeding, CFG_SPEEDING_ENTRY,
     {
         FIELD(nPercentFrom, "SpeedingPercentage", Custom(kPercentage)),
         FIELD(nPercentTo),
         FIELD(szCode, "Code", Text),
         FIELD(szDescription, "Description", Text),
     });

void ReadSpeedings(const Field& field, const json::Value& value, std::byte* record, ReadCall& call) {
    const auto steps = value.elements();
    const std::size_t count = std::min<std::size_t>(steps.size(), ORRERY_SPEEDING_STEPS);
    for (std::size_t i = 0; i < count; ++i)
        ReadFields(kSpeeding, steps[i], record + field.offset + i * sizeof(CFG_SPEEDING_ENTRY), call);
    StoreSlot(field.count, record, static_cast<std::int64_t>(count));
}

void WriteSpeedings(const Field& field, const std::byte* record, WriteCall& call) {
    const std::int64_t count = std::min<std::int64_t>(LoadSlot(field.count, record), ORRERY_SPEEDING_STEPS);
    if (count <= 0) return;
    const auto fromOf = [&](std::int64_t i) {
        if (i >= count) return 0;
        const std::byte* const step = record + field.offset + static_cast<std::size_t>(i) * sizeof(CFG_SPEEDING_ENTRY);
        return MEMBER(step, CFG_SPEEDING_ENTRY, nPercentFrom);
    };
    call.Key();
    call.out.BeginArray();
    for (std::int64_t i = 0; i < count; ++i) {
        OpenObject step{nullptr, {}, false};
        OpenObject* const outer = call.object;
        call.object = &step;
        WriteFields(kSpeeding, record + field.offset + static_cast<std::size_t>(i) * sizeof(CFG_SPEEDING_ENTRY), call);
        call.Member("SpeedingPercentage");
        call.out.BeginArray();
        call.out.Int(fromOf(i));
        call.out.Int(fromOf(i + 1) != 0 ? fromOf(i + 1) : -1);
        call.out.EndArray();
        call.out.EndObject();
        call.object = outer;
    }
    call.out.EndArray();
}

constexpr CustomCodec kSpeedings{ReadSpeedings, WriteSpeedings,
                                 R"([{"Code":"17","Description":"a","SpeedingPercentage":[10,-1]}])"};

PART(kViolationCodes, CFG_VIOLATION_CODE_INFO,
     {
         FIELD(szRetrograde, "Retrograde", Text),
         FIELD(szRetrogradeDesc, "RetrogradeDesc", Text),
         FIELD(szRetrogradeShowName, "RetrogradeShowName", Text),
         FIELD(szRetrogradeHighway, "RetrogradeHighway", Text),
         FIELD(szRetrogradeHighwayDesc, "RetrogradeHighwayDesc", Text),
         FIELD(szRunRedLight, "RunRedLight", Text),
         FIELD(szRunRedLightDesc, "RunRedLightDesc", Text),
         FIELD(szBacking, "Backing", Text),
         FIELD(szBackingDesc, "BackingDesc", Text),
         FIELD(szBackingShowName, "BackingShowName", Text),
         FIELD(szVehicleInBusRoute, "VehicleInBusRoute", Text),
         FIELD(szVehicleInBusRouteDesc, "VehicleInBusRouteDesc", Text),
         FIELD(szVehicleInBusRouteShowName, "VehicleInBusRouteShowName", Text),
         FIELD(szCrossLane, "CrossLane", Text),
         FIELD(szCrossLaneDesc, "CrossLaneDesc", Text),
         FIELD(szCrossLaneShowName, "CrossLaneShowName", Text),
         FIELD(szTurnLeft, "TurnLeft", Text),
         FIELD(szTurnLeftDesc, "TurnLeftDesc", Text),
         FIELD(szTurnRight, "TurnRight", Text),
         FIELD(szTurnRightDesc, "TurnRightDesc", Text),
         FIELD(szUTurn, "U-Turn", Text),
         FIELD(szUTurnDesc, "U-TurnDesc", Text),
         FIELD(szUTurnShowName, "U-TurnShowName", Text),
         FIELD(szJam, "Jam", Text),
         FIELD(szJamDesc, "JamDesc", Text),
         FIELD(szParking, "Parking", Text),
         FIELD(szParkingDesc, "ParkingDesc", Text),
         FIELD(szParkingShowName, "ParkingShowName", Text),
         FIELD(szOverSpeed, "OverSpeed", Text),
         FIELD(szOverSpeedDesc, "OverSpeedDesc", Text),
         FIELD(nOverSpeedConfigNum),
         FIELD(stuOverSpeedConfig, "OverSpeedConfig", Custom(kSpeedings))
             .PointsTo(kSpeeding)
             .Count(AT(nOverSpeedConfigNum)),
         FIELD(szOverSpeedHighway, "OverSpeedHighway", Text),
         FIELD(szOverSpeedHighwayDesc, "OverSpeedHighwayDesc", Text),
         FIELD(nOverSpeedHighwayConfigNum),
         FIELD(stuOverSpeedHighwayConfig, "OverSpeedHighwayConfig", Custom(kSpeedings))
             .PointsTo(kSpeeding)
             .Count(AT(nOverSpeedHighwayConfigNum)),
         FIELD(szUnderSpeed, "UnderSpeed", Text),
         FIELD(szUnderSpeedDesc, "UnderSpeedDesc", Text),
         FIELD(nUnderSpeedConfigNum),
         FIELD(stuUnderSpeedConfig, "UnderSpeedConfig", Custom(kSpeedings))
             .PointsTo(kSpeeding)
             .Count(AT(nUnderSpeedConfigNum)),
         FIELD(szOverLine, "OverLine", Text),
         FIELD(szOverLineDesc, "OverLineDesc", Text),
         FIELD(szOverLineShowName, "OverLineShowName", Text),
         FIELD(szOverYellowLine, "OverYellowLine", Text),
         FIELD(szOverYellowLineDesc, "OverYellowLineDesc", Text),
         FIELD(szYellowInRoute, "YellowInRoute", Text),
         FIELD(szYellowInRouteDesc, "YellowInRouteDesc", Text),
         FIELD(szWrongRoute, "WrongRoute", Text),
         FIELD(szWrongRouteDesc, "WrongRouteDesc", Text),
         FIELD(szDrivingOnShoulder, "DrivingOnShoulder", Text),
         FIELD(szDrivingOnShoulderDesc, "DrivingOnShoulderDesc", Text),
         FIELD(szPassing, "Passing", Text),
         FIELD(szPassingDesc, "PassingDesc", Text),
         FIELD(szNoPassing, "NoPassing", Text),
         FIELD(szNoPassingDesc, "NoPassingDesc", Text),
         FIELD(szFakePlate, "FakePlate", Text),
         FIELD(szFakePlateDesc, "FakePlateDesc", Text),
         FIELD(szParkingSpaceParking, "ParkingSpaceParking", Text).WriteOnly(),
         FIELD(szParkingSpaceParkingDesc, "ParkingSpaceParkingDesc", Text).WriteOnly(),
         FIELD(szParkingSpaceNoParking, "ParkingSpaceNoParking", Text).WriteOnly(),
         FIELD(szParkingSpaceNoParkingDesc, "ParkingSpaceNoParkingDesc", Text).WriteOnly(),
         FIELD(szWithoutSafeBelt, "WithoutSafeBelt", Text),
         FIELD(szWithoutSafeBeltDesc, "WithoutSafeBeltDesc", Text),
         FIELD(szWithoutSafeBeltShowName, "WithoutSafeBeltShowName", Text),
         FIELD(szDriverSmoking, "DriverSmoking", Text),
         FIELD(szDriverSmokingDesc, "DriverSmokingDesc", Text),
         FIELD(szDriverSmokingShowName, "DriverSmokingShowName", Text),
         FIELD(szDriverCalling, "DriverCalling", Text),
         FIELD(szDriverCallingDesc, "DriverCallingDesc", Text),
         FIELD(szDriverCallingShowName, "DriverCallingShowName", Text),
         FIELD(szPedestrianRunRedLight, "PedestrianRunRedLight", Text),
         FIELD(szPedestrianRunRedLightDesc, "PedestrianRunRedLightDesc", Text),
         FIELD(szPedestrianRunRedLightShowName, "PedestrianRunRedLightShowName", Text),
     });

// ---- Tables over all rule types ----

// clang-format off
#define ORRERY_GLOBAL_RULES(ROW) \
    ROW(TrafficGate) \
    ROW(TrafficJunction) \
    ROW(TrafficTollGate) \
    ROW(TrafficRunRedLight) \
    ROW(TrafficRunYellowLight) \
    ROW(TrafficOverLine) \
    ROW(TrafficOverYellowLine) \
    ROW(TrafficRetrograde) \
    ROW(TrafficTurnLeft) \
    ROW(TrafficTurnRight) \
    ROW(TrafficU_Turn) \
    ROW(TrafficCrossLane) \
    ROW(TrafficParking) \
    ROW(TrafficJam) \
    ROW(TrafficIdle) \
    ROW(TrafficWaitingArea) \
    ROW(TrafficUnderSpeed) \
    ROW(TrafficOverSpeed) \
    ROW(TrafficWrongRoute) \
    ROW(TrafficYellowInRoute) \
    ROW(TrafficVehicleInRoute) \
    ROW(TrafficControl) \
    ROW(TrafficObjectAlarm) \
    ROW(TrafficAccident) \
    ROW(TrafficStay) \
    ROW(TrafficPedestrainPriority) \
    ROW(TrafficPedestrain) \
    ROW(TrafficThrow) \
    ROW(TrafficVehicleInBusRoute) \
    ROW(TrafficBacking) \
    ROW(TrafficOverStopLine) \
    ROW(TrafficParkingOnYellowBox) \
    ROW(TrafficParkingSpaceParking) \
    ROW(TrafficParkingSpaceNoParking) \
    ROW(TrafficParkingSpaceOverLine) \
    ROW(ParkingSpaceDetection) \
    ROW(TrafficRestrictedPlate) \
    ROW(TrafficWithoutSafeBelt) \
    ROW(TrafficNoPassing) \
    ROW(VehicleAnalyse) \
    ROW(CrossLineDetection) \
    ROW(CrossFenceDetection) \
    ROW(CrossRegionDetection) \
    ROW(PasteDetection) \
    ROW(LeftDetection) \
    ROW(Preservation) \
    ROW(TakenAwayDetection) \
    ROW(StayDetection) \
    ROW(ParkingDetection) \
    ROW(WanderDetection) \
    ROW(MoveDetection) \
    ROW(TailDetection) \
    ROW(RioterDetection) \
    ROW(FightDetection) \
    ROW(RetrogradeDetection) \
    ROW(FireDetection) \
    ROW(SmokeDetection) \
    ROW(NumberStat) \
    ROW(VideoAbnormalDetection) \
    ROW(PrisonerRiseDetection) \
    ROW(FaceDetection) \
    ROW(FaceRecognition) \
    ROW(DensityDetection) \
    ROW(QueueDetection) \
    ROW(ClimbDetection) \
    ROW(LeaveDetection) \
    ROW(VehicleOnPoliceCar) \
    ROW(VehicleOnBus) \
    ROW(VehicleOnSchoolBus)
// clang-format on

#define VALUE(rule) FIELD(ab##rule), FIELD(n##rule, #rule, Int).SetsAndNeeds(AT(ab##rule)),
#define SCHEDULE(rule) FIELD(ab##rule), FIELD(stu##rule, #rule, Record(kViolationSchedule)).SetsAndNeeds(AT(ab##rule)),

PART(kRuleValues, CFG_RULE_VALUE_TABLE, {ORRERY_GLOBAL_RULES(VALUE)});

PART(kViolationSchedule, CFG_VIOLATION_SCHEDULE,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(stuTimeSchedule, "TimeSchedule", TimeSection),
     });

PART(kRuleSchedules, CFG_RULE_SCHEDULE_TABLE, {ORRERY_GLOBAL_RULES(SCHEDULE)});

PART(kMixMode, CFG_MIXMODE_INFO,
     {FIELD(bLaneDiffEnable, "LaneDiffEnable", Bool), FIELD(nLaneNum),
      FIELD(stuLanes, "Lane", Record(kRuleValues)).CountUncapped(AT(nLaneNum)), ORRERY_GLOBAL_RULES(VALUE)});

// ---- The period for which a calibration holds ----

using Global = CFG_TRAFFICGLOBAL_INFO;

void ReadValidity(const Field&, const json::Value& value, std::byte* record, ReadCall&) {
    const auto dates = value.elements();
    if (dates.size() != 2) return;
    traffic::ReadSizedTime(dates[0], record + offsetof(Global, stuValidFrom));
    traffic::ReadSizedTime(dates[1], record + offsetof(Global, stuValidTo));
}

void WriteValidity(const Field&, const std::byte* record, WriteCall& call) {
    const std::byte* const from = record + offsetof(Global, stuValidFrom);
    const std::byte* const to = record + offsetof(Global, stuValidTo);
    if (MEMBER(record, Global, abCalibration) == 0 || !traffic::HasTime(from) || !traffic::HasTime(to)) return;
    call.Key();
    call.out.BeginArray();
    traffic::WriteSizedTime(from, call);
    traffic::WriteSizedTime(to, call);
    call.out.EndArray();
}

constexpr CustomCodec kValidity{ReadValidity, WriteValidity};

} // namespace

TABLE(kTrafficGlobal, CFG_TRAFFICGLOBAL_INFO,
      {
          FIELD(stuViolationCodes, "ViolationCode", Record(kViolationCodes)),
          FIELD(bEnableRedList, "EnableRedList", Bool),
          FIELD(stuViolationSchedule, "ViolationTimeSchedule", Record(kRuleSchedules)).WriteUnlessBare(),
          FIELD(abEnableBlackList),
          FIELD(bEnableBlackList, "EnableBlackList", Bool).SetsAndNeeds(AT(abEnableBlackList)),
          FIELD(abPriority, "Priority", Presence),
          FIELD(nPriorityNum),
          FIELD(szPriority, "Priority", Text).Count(AT(nPriorityNum)).WriteIf(AT(abPriority)),
          FIELD(abNamingFormat),
          FIELD(szNamingFormat, "NamingFormat/Format", Text).SetsAndNeeds(AT(abNamingFormat)),
          FIELD(abVideoNamingFormat),
          FIELD(szVideoNamingFormat, "VideoNamingFormat/Format", Text).SetsAndNeeds(AT(abVideoNamingFormat)),
          FIELD(abCalibration, "Calibration", Presence),
          FIELD(szUnit, "Calibration/Unit", Text).WriteIf(AT(abCalibration)),
          FIELD(szCertificate, "Calibration/Certificate", Text).WriteIf(AT(abCalibration)),
          FIELD(stuValidFrom, "Calibration/PeriodOfValidity", Custom(kValidity)).PointsTo(traffic::kSizedTime),
          FIELD(stuValidTo, nullptr, Record(traffic::kSizedTime)),
          FIELD(abAddress),
          FIELD(szAddress, "Address", Text).SetsAndNeeds(AT(abAddress)),
          FIELD(abTransferPolicy),
          FIELD(nTransferPolicy, "TransferPolicy", Names(kTransferPolicies)).SetsAndNeeds(AT(abTransferPolicy)),
          FIELD(abSupportModeMask),
          FIELD(stuSupportModeMask, "SupportModeMaskConfig", Record(kRuleValues)).SetsAndNeeds(AT(abSupportModeMask)),
          FIELD(abLightState),
          FIELD(bEnableLightState, "IsEnableLightState/Enable", Bool).SetsAndNeeds(AT(abLightState)),
          FIELD(abMixModeConfig),
          FIELD(stuMixModeConfig, "MixModeConfig", Record(kMixMode)).SetsAndNeeds(AT(abMixModeConfig)),
      });

void ClearTrafficGlobal(std::byte* record) {
    const auto from = MEMBER(record, Global, stuValidFrom);
    const auto to = MEMBER(record, Global, stuValidTo);
    std::memset(record, 0, sizeof(Global));
    SET_MEMBER(record, Global, stuValidFrom, from);
    SET_MEMBER(record, Global, stuValidTo, to);
}

Take TrafficGlobalTakes(const json::Value& root) {
    const json::Value& table = root["params"]["table"];
    for (const char* part : {"ViolationCode", "ViolationTimeSchedule", "SupportModeMaskConfig", "MixModeConfig"}) {
        if (!table[part].isObject()) return traffic::kTakesNone;
    }
    return Take::One;
}

} // namespace orrery
