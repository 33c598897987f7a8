#include "events/TypedRecords.h"

#include "analyse/RuleFrame.h"
#include "events/EventContext.h"
#include "events/TrafficEvents.h"
#include "media/Resolution.h"

#include <algorithm>

template <>
inline constexpr bool orrery::record::kBeginsAsNetTime<EVENT_FLOW_TIME> = true;

namespace orrery::events {

using json::Value;

namespace {

PART(kFlowTime, EVENT_FLOW_TIME,
     {
         FIELD(dwYear),
         FIELD(dwMonth),
         FIELD(dwDay),
         FIELD(dwHour),
         FIELD(dwMinute),
         FIELD(dwSecond),
         FIELD(dwMillisecond),
         FIELD(dwReserved),
     });

} // namespace
} // namespace orrery::events
template <>
inline constexpr const orrery::record::Table* orrery::record::kLayoutOf<EVENT_FLOW_TIME> = &orrery::events::kFlowTime;
namespace orrery::events {
namespace {

PART(kSubtotal, EVENT_STAT_SUBTOTAL,
     {
         FIELD(nTotal, "Total", Int),
         FIELD(nToday, "Today", Int),
         FIELD(nThisMonth, "ThisMonth", Int),
         FIELD(nThisYear, "ThisYear", Int),
         FIELD(nMaxDaily, "MaxDaily", Int),
     });

// ---- Synopses ----

NAMES(kOutputTypes, kFolded,
      {
          {EVENT_SYNOPSIS_OUTPUT_SUMMARY, "VideoSummary"},
          {EVENT_SYNOPSIS_OUTPUT_VIDEO, "SynopsisVideo"},
      });

void ReadOutputType(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    const auto types = value.elements();
    std::int32_t output = EVENT_SYNOPSIS_OUTPUT_NONE;
    if (types.size() == 1) output = field.names->CodeOf(types[0].asString()).value_or(output);
    if (types.size() == 2) output = EVENT_SYNOPSIS_OUTPUT_BOTH;
    StoreInteger(field.cell, record + field.offset, output);
}
constexpr CustomCodec kOutputType{ReadOutputType};

// [ [ r, g, b, a ], ... ] with the first of each in the highest byte.
void ReadColors(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    const auto colors = value.elements();
    const std::uint32_t count = std::min(static_cast<std::uint32_t>(colors.size()), field.dims[0]);
    for (std::uint32_t i = 0; i < count; ++i) {
        if (colors[i].elements().size() < 4) continue;
        std::uint32_t color = 0;
        for (std::uint32_t part = 0; part < 4; ++part)
            color |= static_cast<std::uint32_t>(colors[i][part].asInt()) << (24 - 8 * part);
        Store(record + field.offset + i * sizeof color, color);
    }
    StoreSlot(field.count, record, count);
}
constexpr CustomCodec kColors{ReadColors};

// Of a date and a time only the time.
void ReadTimeOfMoment(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    NET_TIME moment{};
    JsonParser::GetNetTime(value, &moment);
    moment.dwYear = moment.dwMonth = moment.dwDay = 0;
    Store(record + field.offset, moment);
}
constexpr CustomCodec kTimeOfMoment{ReadTimeOfMoment};

// Legs without colours of their own have none.
void DropLowerColors(const Value&, std::byte* record, ReadCall&) {
    if (MEMBER(record, EVENT_SYNOPSIS_FILTER, bPartitionLowerUpperBodyColor) != 0) return;
    SET_MEMBER(record, EVENT_SYNOPSIS_FILTER, nLowerBodyColorNum, 0);
    std::memset(record + offsetof(EVENT_SYNOPSIS_FILTER, dwLowerBodyColors), 0,
                sizeof(EVENT_SYNOPSIS_FILTER::dwLowerBodyColors));
}

PART(kSynopsisFilter, EVENT_SYNOPSIS_FILTER,
     {
         FIELD(dwMinSizeClass, "MinSizeClass", UInt),
         FIELD(dwMaxSizeClass, "MaxSizeClass", UInt),
         FIELD(dwMinSpeed, "MinSpeed", UInt),
         FIELD(dwMaxSpeed, "MaxSpeed", UInt),
         FIELD(stuBeginTime, "BeginTime", Custom(kTimeOfMoment)),
         FIELD(stuEndTime, "EndTime", Custom(kTimeOfMoment)),
         FIELD(szObjectType, "ObjectType", Text),
         FIELD(szCategory, "Category", Text),
         FIELD(nMainColorNum),
         FIELD(dwMainColors, "MainColor", Custom(kColors)).Count(AT(nMainColorNum)),
         FIELD(bPartitionLowerUpperBodyColor, "PartitionLowerUpperBodyColor", Bool),
         FIELD(nLowerBodyColorNum),
         FIELD(dwLowerBodyColors, "LowerBodyColor", Custom(kColors)).Count(AT(nLowerBodyColorNum)),
     })
    .AfterRead(DropLowerColors);

// The rule goes on as the reply that other readers take. Without memory for its block there is no synopsis at all.
void ReadDetailRule(const Field& field, const Value& value, std::byte* record, ReadCall& call) {
    Arena& arena = call.parser.text().arena();
    auto* const block = arena.Array<char>(ORRERY_SYNOPSIS_DETAIL);
    Store<const char*>(record + field.offset, block);
    if (block == nullptr) return;
    std::memset(block, 0, ORRERY_SYNOPSIS_DETAIL);
    SET_MEMBER(record, EVENT_VIDEO_SYNOPSIS_RULE, nDetailRuleLen, ORRERY_SYNOPSIS_DETAIL);
    if (value.isNull()) return;
    json::TextWriter out(block, ORRERY_SYNOPSIS_DETAIL - 1);
    out.BeginObject();
    out.Key("params");
    out.BeginObject();
    out.Key("table");
    out.Write(value, arena);
    out.EndObject();
    out.EndObject();
    out.EndText();
}
constexpr CustomCodec kDetailRule{ReadDetailRule};

void ReadSynopsisSize(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    if (EqualsFolded(value.asString(), "Original")) return;
    Store(record + field.offset, std::int32_t{1});
    SET_MEMBER(record, EVENT_VIDEO_SYNOPSIS_RULE, nResolution, kResolutions.CodeOf(value.asString()).value_or(0));
}
constexpr CustomCodec kSynopsisSize{ReadSynopsisSize};

} // namespace

TABLE(kTypedStatSummary, EVENT_VIDEO_STAT_SUMMARY,
      {
          FIELD(nReserved),
          FIELD(nChannelID, "Channel", Int),
          FIELD(szRuleName, "RuleName", Text),
          FIELD(stuUTC, "UTC", UtcTime),
          FIELD(stuEnteredSubtotal, "EnteredSubtotal", Record(kSubtotal)),
          FIELD(stuExitedSubtotal, "ExitedSubtotal", Record(kSubtotal)),
          FIELD(stuAvgInside, "AvgInside", Record(kSubtotal)),
          FIELD(stuMaxInside, "MaxInside", Record(kSubtotal)),
          FIELD(stuInsideSubtotal, "InsideSubtotal", Record(kSubtotal)),
      });

using Rules = EVENT_RULE_TABLE;
constexpr PackedItems kTypedItems =
    RuleItems(offsetof(Rules, pRuleBuf), MakeSlot<decltype(Rules::dwHead)>(offsetof(Rules, dwHead)),
              MakeSlot<decltype(Rules::nRuleBufLen)>(offsetof(Rules, nRuleBufLen)));
TABLE(kTypedRules, EVENT_RULE_TABLE,
      {
          FIELD(dwHead),
          FIELD(pRuleBuf).PointsTo(kRuleInfo),
          FIELD(nRuleBufLen),
      })
    .Describes(kTypedItems);

TABLE(kTypedFlow, EVENT_TRAFFIC_FLOW_STAT,
      {
          FIELD(szMachineAddress, "MachineAddress", Text),
          FIELD(szMachineName, "MachineName", Text),
          FIELD(szDrivingDirection, "DrivingDirection", Custom(kDrivingDirections)),
          FIELD(nLane, "Lane", Int),
          EV_UTC,
          FIELD(nPeriod, "Period", Int),
          FIELD(nVehicles, "Vehicles", Int),
          FIELD(fAverageSpeed, "AverageSpeed", Real),
          FIELD(fAverageLength, "AverageLength", Real),
          FIELD(fTimeOccupyRatio, "TimeOccupyRatio", Real),
          FIELD(fSpaceOccupyRatio, "SpaceOccupyRatio", Real),
          FIELD(fSpaceHeadway, "SpaceHeadway", Real),
          FIELD(fTimeHeadway, "TimeHeadway", Real),
          FIELD(fDensity, "Density", Real),
          FIELD(nOverSpeedVehicles, "OverSpeedVehicles", Int),
          FIELD(nUnderSpeedVehicles, "UnderSpeedVehicles", Int),
          FIELD(nLargeVehicles, "LargeVehicles", Int),
          FIELD(nMediumVehicles, "MediumVehicles", Int),
          FIELD(nSmallVehicles, "SmallVehicles", Int),
          FIELD(nMotoVehicles, "MotoVehicles", Int),
          FIELD(nLongVehicles, "LongVehicles", Int),
          FIELD(fBackOfQueue, "BackOfQueue", Real),
          FIELD(emRank, "Rank", Names(kRanks)),
          FIELD(nState, "State", Int),
      });

TABLE(kTypedSynopsis, EVENT_VIDEO_SYNOPSIS_RULE,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(byOutputType, "OutputType", Custom(kOutputType)).Coded(kOutputTypes),
          FIELD(byDensity, "Density", Int),
          FIELD(bEnableShowTime, "EnableShowTime", Bool),
          FIELD(bEnableShowBox, "EnableShowBox", Bool),
          FIELD(bEnableRecordResult, "EnableRecordResult", Bool),
          FIELD(byTime, "Time", Int),
          FIELD(nFilterNum),
          FIELD(stuFilters, "ConditionFilter", Record(kSynopsisFilter)).Count(AT(nFilterNum)),
          FIELD(pDetailRule, "DetailRule", Custom(kDetailRule)).Always().Owned(),
          FIELD(nDetailRuleLen),
          FIELD(emResolution, "Resolution", Custom(kSynopsisSize)),
          FIELD(nResolution),
          FIELD(bEnableMaximizeUsedCPU, "EnableMaximizeUsedCPU", Bool),
          FIELD(bEnableSmoothBorder, "EnableSmoothBorder", Bool),
      });

} // namespace orrery::events
