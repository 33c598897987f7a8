#include "storage/RecordPlan.h"

#include "frame/record/Engine.h"
#include "frame/record/SharedCodecs.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace orrery {

using namespace record;
using json::Value;

namespace {

// ---- Periods with masks of the kinds of recording ----

struct MaskBits {
    std::uint32_t record;
    std::uint32_t text;
};
constexpr MaskBits kMaskBits[] = {{0x01, 0x02}, {0x02, 0x04}, {0x04, 0x01}, {0x08, 0x10}, {0x40, 0x40}};

constexpr std::uint32_t RecordBits(std::uint32_t text) {
    std::uint32_t mask = 0;
    for (const MaskBits& bits : kMaskBits)
        mask |= (text & bits.text) != 0 ? bits.record : 0;
    return mask;
}
// A week has 42 sections: all masks there are, once.
constexpr std::uint32_t kTextBits = 0x7F;
constexpr auto kRecordBits = [] {
    std::array<std::uint8_t, kTextBits + 1> masks{};
    for (std::uint32_t text = 0; text <= kTextBits; ++text)
        masks[text] = static_cast<std::uint8_t>(RecordBits(text));
    return masks;
}();
constexpr std::int32_t ToRecord(std::int32_t text) {
    return kRecordBits[static_cast<std::uint32_t>(text) & kTextBits];
}
constexpr std::int32_t ToText(std::int32_t record) {
    std::uint32_t mask = 0;
    for (const MaskBits& bits : kMaskBits)
        mask |= (static_cast<std::uint32_t>(record) & bits.record) != 0 ? bits.text : 0;
    return static_cast<std::int32_t>(mask);
}
static_assert(ToRecord(3) == 0x05 && ToText(0x05) == 3);

constexpr std::size_t kDay = sizeof(CFG_TIME_SECTION[ORRERY_DAY_SECTIONS]);

// Of one day, as far as they are texts.
void ReadDay(const Value& list, std::byte* day) noexcept {
    const auto texts = list.elements();
    for (std::size_t i = 0; i < std::min<std::size_t>(texts.size(), ORRERY_DAY_SECTIONS); ++i) {
        if (!texts[i].isString()) continue;
        // Straight into its place: made elsewhere, it would be copied by wider loads that wait for the stores.
        std::byte* const at = day + i * sizeof(CFG_TIME_SECTION);
        Store(at, CFG_TIME_SECTION{});
        JsonParser::GetTimeSection(texts[i], reinterpret_cast<CFG_TIME_SECTION*>(at));
        SET_MEMBER(at, CFG_TIME_SECTION, dwMask, ToRecord(MEMBER(at, CFG_TIME_SECTION, dwMask)));
    }
}

void WriteDay(const std::byte* day, WriteCall& call) noexcept {
    CFG_TIME_SECTION sections[ORRERY_DAY_SECTIONS];
    std::memcpy(sections, day, sizeof sections);
    for (CFG_TIME_SECTION& section : sections)
        section.dwMask = ToText(section.dwMask);
    JsonParser::SetTimeSectionList(call.out, sections, ORRERY_DAY_SECTIONS);
}

// ---- "Record" ----

// The week, and behind it the day that counts on holidays.
void ReadWeek(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    const auto days = value.elements();
    for (std::size_t day = 0; day < std::min<std::size_t>(days.size(), ORRERY_WEEK_DAYS); ++day)
        ReadDay(days[day], record + field.offset + day * kDay);
    if (days.size() <= ORRERY_WEEK_DAYS) return;
    SET_MEMBER(record, CFG_RECORD_INFO, bHolidaySupported, 1u);
    ReadDay(days[ORRERY_WEEK_DAYS], record + offsetof(CFG_RECORD_INFO, stuHolidayTimeSection));
}

bool HasHolidays(const std::byte* record) {
    return MEMBER(record, CFG_RECORD_INFO, bHolidaySupported) != 0;
}

void WriteWeek(const Field& field, const std::byte* record, WriteCall& call) {
    call.Key();
    call.out.BeginArray();
    for (std::size_t day = 0; day < ORRERY_WEEK_DAYS; ++day)
        WriteDay(record + field.offset + day * kDay, call);
    if (HasHolidays(record)) WriteDay(record + offsetof(CFG_RECORD_INFO, stuHolidayTimeSection), call);
    call.out.EndArray();
}

#define DAY(mask)                                                                                                      \
    "[\"" mask " 01:02:03-04:05:06\",\"1 07:08:09-10:11:12\",\"2 00:00:00-24:00:00\",\"4 13:14:15-16:17:18\","         \
    "\"16 19:20:21-22:23:24\",\"64 00:00:01-00:00:02\"]"

constexpr CustomCodec kWeek{
    ReadWeek, WriteWeek,
    "[" DAY("3") "," DAY("5") "," DAY("6") "," DAY("7") "," DAY("17") "," DAY("18") "," DAY("20") "]"};

// Its key is read before it is known whether the week has a row of holidays.
void DropHolidays(const Value&, std::byte* record, ReadCall&) {
    if (!HasHolidays(record)) SET_MEMBER(record, CFG_RECORD_INFO, bHolidayEnable, 0u);
}

// The channel that a reply names; negative for none.
std::int32_t ChannelOf(const Value& root) noexcept {
    const Value& own = root["channel"];
    const Value& channel = own.isNull() ? root["params"]["channel"] : own;
    return channel.isNull() ? -1 : channel.asInt();
}

void ReadChannel(const Field&, const Value&, std::byte* record, ReadCall& call) {
    const std::int32_t channel = ChannelOf(call.root);
    SET_MEMBER(record, CFG_RECORD_INFO, nChannel, channel < 0 ? static_cast<std::int32_t>(call.index) : channel);
}
constexpr CustomCodec kReplysChannel{ReadChannel, nullptr, "-1"}; // a list, whatever its length

// ---- "HolidaySchedule" ----

void ReadHolidays(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    ReadDay(value, record + field.offset);
}
void WriteHolidays(const Field& field, const std::byte* record, WriteCall& call) {
    call.Key();
    WriteDay(record + field.offset, call);
}
constexpr CustomCodec kHolidayPeriods{ReadHolidays, WriteHolidays, DAY("23")};

} // namespace

Take RecordTakes(const Value& root) {
    return ChannelOf(root) < 0 ? Take::Many : Take::One;
}

TABLE(kRecordPlan, CFG_RECORD_INFO,
      {
          FIELD(nChannel, "channel", Custom(kReplysChannel)).FromRoot().Always(),
          FIELD(stuTimeSection, "TimeSection", Custom(kWeek)),
          FIELD(nPreRecord, "PreRecord", Int),
          FIELD(bRedundancy, "Redundancy", Bool),
          FIELD(nStream, "Stream", UInt).WriteUnlessNegative(),
          FIELD(nFormatVersion).Absent(ORRERY_RECORD_FORMAT_VERSION),
          FIELD(bHolidaySupported),
          FIELD(bHolidayEnable, "HolidayEnable", Bool).WriteIf(AT(bHolidaySupported)),
          FIELD(stuHolidayTimeSection),
      })
    .AfterRead(DropHolidays);

TABLE(kRecordMode, CFG_RECORD_MODE_INFO,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(nChannel),
          FIELD(nMode, "Mode", Int),
          FIELD(nModeExtra1, "ModeExtra1", Int),
          FIELD(nModeExtra2, "ModeExtra2", Int),
      });

TABLE(kHolidayPlan, CFG_HOLIDAY_SCHEDULE_INFO,
      {
          FIELD(bEnable, "En", Bool),
          FIELD(nChannel, "Chn", FromOne),
          FIELD(nMonthSchedule, "MonthSchedule", UInt),
          FIELD(stuTimeSection, "TimeSectionGroup", Custom(kHolidayPeriods)),
      });

TABLE(kRecordCaps, CFG_RECORD_CAPS,
      {
          FIELD(bSupportHoliday, "SupportHoliday", Bool),
          FIELD(bSupportExtraRecordMode, "SupportExtraRecordMode", Bool),
          FIELD(nMaxPreRecordTime, "MaxPreRecordTime", Int),
          FIELD(nMaxRemoteBitrate, "MaxRemoteBitrate", Int),
          FIELD(nMaxRemoteRawBitrate, "MaxRemoteRawBitrate", Int),
          FIELD(nMaxStreams, "MaxStreams", Int),
      });

} // namespace orrery
