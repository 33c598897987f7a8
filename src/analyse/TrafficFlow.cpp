#include "analyse/TrafficFlow.h"

#include "alarm/EventHandler.h"
#include "analyse/RuleParts.h"
#include "frame/record/Engine.h"

#include <algorithm>

namespace orrery {

using namespace record;

namespace {

using rules::kCorner;

// ---- Alarms of a flow ----

// Cell by cell, the first `Columns` of each day.
template <std::size_t Columns>
void ReadWeek(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    for (std::uint32_t day = 0; day < ORRERY_WEEK_DAYS; ++day) {
        for (std::uint32_t i = 0; i < Columns; ++i) {
            std::byte* const at =
                record + field.offset + (day * ORRERY_RULE_DAY_SECTIONS + i) * sizeof(CFG_TIME_SECTION);
            JsonParser::GetTimeSection(value[day][i], reinterpret_cast<CFG_TIME_SECTION*>(at));
        }
    }
}
constexpr CustomCodec kUpperWeek{ReadWeek<ORRERY_RULE_DAY_SECTIONS>, nullptr};
constexpr CustomCodec kLowerWeek{ReadWeek<ORRERY_DAY_SECTIONS>, nullptr};

#define FLOW_ALARM(week)                                                                                               \
    FIELD(bEnable, "Enable", Bool), FIELD(nPeriod, "Period", Int), FIELD(nLimit, "Limit", Int),                        \
        FIELD(nRestore, "Restore", Int), FIELD(nDelay, "Delay", Int), FIELD(nInterval, "Interval", Int),               \
        FIELD(nReportTimes, "ReportTimes", Int),                                                                       \
        FIELD(stuTimeSection, "EventHandler/TimeSection", Custom(week)).ReadOnly(),                                    \
        FIELD(stuEventHandler, "EventHandler", Record(kEventHandlerRule))

PART(kUpperAlarm, CFG_FLOW_ALARM, {FLOW_ALARM(kUpperWeek)});
PART(kLowerAlarm, CFG_FLOW_ALARM, {FLOW_ALARM(kLowerWeek)});
#undef FLOW_ALARM

// An alarm has the week of its linkage.
template <const TypedTable<CFG_FLOW_ALARM>& Alarm>
void ReadAlarm(const Field& field, const json::Value& value, std::byte* record, ReadCall& call) {
    ReadRecord(Alarm, value, record + field.offset, call);
}
template <const TypedTable<CFG_FLOW_ALARM>& Alarm>
void WriteAlarm(const Field& field, const std::byte* record, WriteCall& call) {
    const std::byte* const alarm = record + field.offset;
    const linkage::RuleWeek week{alarm + offsetof(CFG_FLOW_ALARM, stuTimeSection), false};
    const void* const outer = call.context;
    call.context = &week;
    call.Key();
    WriteRecord(Alarm, alarm, call);
    call.context = outer;
}
constexpr CustomCodec kUpper{ReadAlarm<kUpperAlarm>, WriteAlarm<kUpperAlarm>};
constexpr CustomCodec kLower{ReadAlarm<kLowerAlarm>, WriteAlarm<kLowerAlarm>};

PART(kFlowLane, CFG_TRAFFICFLOW_LANE,
     {
         FIELD(abEnable),
         FIELD(bEnable, "Enable", Bool).SetsAndNeeds(AT(abEnable)),
         FIELD(stuUpperAlarm, "FlowUpperAlarm", Custom(kUpper)).PointsTo(kUpperAlarm),
         FIELD(stuLowerAlarm, "FlowLowerAlarm", Custom(kLower)).PointsTo(kLowerAlarm),
         FIELD(nDetectRegionPoint),
         FIELD(stuDetectRegion, "DetectRegion", Record(kCorner))
             .Count(AT(nDetectRegionPoint))
             .NullElement(Nulls::LeaveHole)
             .RefusedElement(Nulls::LeaveHole),
         FIELD(szStatName, "StatName", Text),
         FIELD(nPresetId, "PresetID", Int),
         FIELD(stuDetectLine, "DetectLine", Record(kCorner)).WriteIf(AT(abDetectLine)),
         FIELD(abDetectLine, "DetectLine", Presence),
     });

// ---- Lanes behind the eighth ----

using Stat = CFG_TRAFFICFLOWSTAT_INFO;
constexpr std::size_t kLaneSize = sizeof(CFG_TRAFFICFLOW_LANE);

void ReadExtraLanes(const Field& field, const json::Value& value, std::byte* record, ReadCall& call) {
    const auto lanes = value.elements();
    auto* const first = Load<std::byte*>(record + field.offset);
    const std::int64_t room = first == nullptr ? 0 : std::max<std::int64_t>(LoadSlot(field.capacity, record), 0);
    const std::int64_t behind = static_cast<std::int64_t>(lanes.size()) - ORRERY_FLOW_LANES;
    const auto count = static_cast<std::size_t>(std::clamp<std::int64_t>(behind, 0, room));
    for (std::size_t i = 0; i < count; ++i) {
        if (!call.Keep(first + i * kLaneSize, kLaneSize)) return;
        std::memset(first + i * kLaneSize, 0, kLaneSize);
        ReadRecord(kFlowLane, lanes[ORRERY_FLOW_LANES + i], first + i * kLaneSize, call);
    }
    StoreSlot(field.count, record, static_cast<std::int64_t>(count));
}

void WriteAllLanes(const Field& field, const std::byte* record, WriteCall& call) {
    const std::int32_t fixed = std::clamp<std::int32_t>(MEMBER(record, Stat, nConfigNum), 0, ORRERY_FLOW_LANES);
    if (fixed == 0) return;
    const auto* const extra = Load<const std::byte*>(record + field.offset);
    std::int64_t behind = std::min(LoadSlot(field.count, record), LoadSlot(field.capacity, record));
    if (extra == nullptr || fixed < ORRERY_FLOW_LANES) behind = 0;
    call.Key();
    call.out.BeginArray();
    for (std::int32_t i = 0; i < fixed; ++i)
        WriteRecord(kFlowLane, record + offsetof(Stat, stuConfigs) + static_cast<std::size_t>(i) * kLaneSize, call);
    for (std::int64_t i = 0; i < behind; ++i)
        WriteRecord(kFlowLane, extra + static_cast<std::size_t>(i) * kLaneSize, call);
    call.out.EndArray();
}

constexpr CustomCodec kExtraLanes{ReadExtraLanes, WriteAllLanes};

// ---- Pictures sent later ----

NAMES(kOfflineTypes, kFolded,
      {
          {CFG_OFFLINE_BY_ADDRESS, "IPADDR"},
          {CFG_OFFLINE_BY_MAC, "MAC"},
      });

// ---- Lights over parking spaces ----

constexpr std::int32_t kNoColor = -1;
NAMES(kLightColors, kFolded.Unknown(kNoColor),
      {
          {CFG_SPACE_LIGHT_RED, "Red"},
          {CFG_SPACE_LIGHT_YELLOW, "Yellow"},
          {CFG_SPACE_LIGHT_BLUE, "Blue"},
          {CFG_SPACE_LIGHT_GREEN, "Green"},
          {CFG_SPACE_LIGHT_PURPLE, "Purple"},
          {CFG_SPACE_LIGHT_WHITE, "White"},
          {CFG_SPACE_LIGHT_PINK, "Pink"},
      });

// Colours stand under their names in any case; the first eight count.
void ReadColors(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    std::uint32_t taken = 0;
    for (const json::Member& member : value.members()) {
        const std::int32_t color = *kLightColors.CodeOf(member.key());
        if (color == kNoColor) continue;
        if (taken++ == ORRERY_SPACE_LIGHT_COLORS) break;
        StoreInteger(field.cell, record + field.offset + color, member.value.asInt());
    }
}

void WriteColors(const Field& field, const std::byte* record, WriteCall& call) {
    call.out.BeginObject();
    for (const std::int32_t color :
         {CFG_SPACE_LIGHT_BLUE, CFG_SPACE_LIGHT_GREEN, CFG_SPACE_LIGHT_PINK, CFG_SPACE_LIGHT_PURPLE,
          CFG_SPACE_LIGHT_RED, CFG_SPACE_LIGHT_WHITE, CFG_SPACE_LIGHT_YELLOW}) { // in the order of their names
        call.out.Key(kLightColors.RowOf(color)->text);
        call.out.Int(static_cast<std::int32_t>(LoadInteger(field.cell, record + field.offset + color)));
    }
    call.out.EndObject();
}

constexpr CustomCodec kColors{ReadColors, WriteColors,
                              R"({"Blue":1,"Green":2,"Pink":3,"Purple":4,"Red":5,"White":6,"Yellow":7})"};

PART(kLightState, CFG_LIGHT_STATE,
     {
         FIELD(byColors, "", Custom(kColors)).Coded(kLightColors),
     });

} // namespace

TABLE(kTrafficFlowStat, CFG_TRAFFICFLOWSTAT_INFO,
      {
          FIELD(abPeriod),
          FIELD(nPeriod, "Period", Int).SetsAndNeeds(AT(abPeriod)),
          FIELD(nConfigNum),
          FIELD(stuConfigs, "Config", Record(kFlowLane)).Count(AT(nConfigNum)).ReadOnly(),
          FIELD(nExtraMax),
          FIELD(nExtraNum),
          FIELD(pExtraConfigs, "Config", Custom(kExtraLanes))
              .PointsTo(kFlowLane)
              .Capacity(AT(nExtraMax))
              .Count(AT(nExtraNum)),
      });

TABLE(kTransferOffline, CFG_TRANSFEROFFLINE_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nType, "Type", Names(kOfflineTypes)),
          FIELD(nIpNum),
          FIELD(szIpAddresses, "Addresses", Text).Count(AT(nIpNum)),
          FIELD(nMacNum),
          FIELD(szMacAddresses, "ClientID", Text).Count(AT(nMacNum)),
      });

TABLE(kParkingSpaceLight, CFG_PARKINGSPACELIGHT_INFO,
      {
          FIELD(stuSpaceFree, "SpaceFree", Record(kLightState)),
          FIELD(stuSpaceFull, "SpaceFull", Record(kLightState)),
          FIELD(stuSpaceOverLine, "SpaceOverLine", Record(kLightState)),
          FIELD(stuSpaceOrder, "SpaceOrder", Record(kLightState)),
          FIELD(nSpaceSpecialNum),
          FIELD(stuSpaceSpecial, "SpaceSpecial", Record(kLightState)).Count(AT(nSpaceSpecialNum)),
          FIELD(stuNetPortAbort, "NetworkException/NetPortAbort", Record(kLightState)),
      });

void ClearTrafficFlowStat(std::byte* record) {
    const auto room = MEMBER(record, Stat, nExtraMax);
    const auto lanes = MEMBER(record, Stat, pExtraConfigs);
    std::memset(record, 0, sizeof(Stat));
    SET_MEMBER(record, Stat, nExtraMax, room);
    SET_MEMBER(record, Stat, pExtraConfigs, lanes);
}

} // namespace orrery
