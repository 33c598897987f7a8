#include "alarm/EventHandler.h"

#include "frame/record/Engine.h"
#include "frame/record/PutValues.h"

#include <algorithm>

namespace orrery::linkage {

namespace {

// ---- Door actions: [ { "Operation" : "Open" }, ... ] into one number a door ----

void ReadDoorActions(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    if (!value.isArray()) return;
    StoreSlot(field.flag, record, 1);
    const std::uint32_t count = std::min(value.size(), field.dims[0]);
    StoreSlot(field.count, record, count);
    for (std::uint32_t door = 0; door < count; ++door) {
        if (const auto action = kDoorActions.CodeOf(value[door]["Operation"].asString())) {
            Store(record + field.offset + door * sizeof(std::int32_t), *action);
        }
    }
}

void WriteDoorActions(const Field& field, const std::byte* record, WriteCall& call) {
    const auto count = std::clamp<std::int64_t>(LoadSlot(field.count, record), 0, field.dims[0]);
    call.Key();
    call.out.BeginArray();
    for (std::int64_t door = 0; door < count; ++door) {
        const auto action = Load<std::int32_t>(record + field.offset + door * std::int64_t{sizeof(std::int32_t)});
        const Name* const row = kDoorActions.RowOf(action);
        if (row == nullptr && action != CFG_ACCESS_CONTROL_NONE) {
            call.out.Null();
            continue;
        }
        call.out.BeginObject();
        call.out.Key("Operation");
        if (row != nullptr)
            call.out.String(row->text);
        else
            call.out.Null();
        call.out.EndObject();
    }
    call.out.EndArray();
}

constexpr std::uint32_t kMostDoors = 32;
constexpr std::string_view kDoorOpened = R"({ "Operation" : )";
constexpr std::string_view kDoorClosed = " }";
constexpr std::size_t kDoorRoom = json::Hand::kSeparator + kDoorOpened.size() + kNameRoom + kDoorClosed.size();
char* PutDoorActions(const Field& field, const std::byte* record, char* to) {
    const auto count = std::clamp<std::int64_t>(LoadSlot(field.count, record), 0, field.dims[0]);
    if (count == 0 || count > kMostDoors) return nullptr;
    char* next = to;
    for (std::int64_t door = 0; door < count; ++door) {
        const auto action = Load<std::int32_t>(record + field.offset + door * std::int64_t{sizeof(std::int32_t)});
        char* const opened = json::Hand::Separate(next);
        std::memcpy(opened, kDoorOpened.data(), kDoorOpened.size());
        next = PutNamed(opened + kDoorOpened.size(), kDoorActions, action);
        if (next == nullptr) return nullptr;
        std::memcpy(next, kDoorClosed.data(), kDoorClosed.size());
        next += kDoorClosed.size();
    }
    return json::Hand::PutBrackets(to, next);
}

// ---- The week over the schedule: seven rows from the one, a holiday row from the other ----

constexpr std::size_t kDaySize = sizeof(CFG_TIME_SECTION[ORRERY_DAY_SECTIONS]);

void WriteWeekAndHoliday(const std::byte* week, int sections, const std::byte* linkage, WriteCall& call) {
    call.Key();
    call.out.BeginArray();
    JsonParser::SetTimeDays(call.out, reinterpret_cast<const CFG_TIME_SECTION*>(week), ORRERY_WEEK_DAYS, sections);
    const std::byte* const schedule = linkage + offsetof(CFG_EVENT_HANDLER_INFO, stuTimeSectionEx);
    if (MEMBER(schedule, CFG_TIME_SCHEDULE, bEnableHoliday) != 0) {
        const std::byte* const holiday =
            schedule + offsetof(CFG_TIME_SCHEDULE, stuTimeSection) + ORRERY_WEEK_DAYS * kDaySize;
        JsonParser::SetTimeDays(call.out, reinterpret_cast<const CFG_TIME_SECTION*>(holiday), 1, ORRERY_DAY_SECTIONS);
    }
    call.out.EndArray();
}

void WriteWeek(const Field&, const std::byte* record, WriteCall& call) {
    WriteWeekAndHoliday(record + offsetof(CFG_EVENT_HANDLER_INFO, stuTimeSection), ORRERY_DAY_SECTIONS, record, call);
}

void WriteRuleWeek(const Field&, const std::byte* record, WriteCall& call) {
    const auto* const week = static_cast<const RuleWeek*>(call.context);
    if (week == nullptr) return; // a linkage on its own has no rule around it
    if (!week->cleared) return WriteWeekAndHoliday(week->sections, ORRERY_RULE_DAY_SECTIONS, record, call);
    call.Key();
    call.out.Null();
}

// ---- "DB" of the form with size words: the count comes from a number that stands where the list should ----

void ReadCountedKeys(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    StoreSlot(field.count, record, std::min(value.asInt(), static_cast<std::int32_t>(field.dims[0])));
}

void WriteCountedKeys(const Field& field, const std::byte* record, WriteCall& call) {
    const auto count = std::clamp<std::int64_t>(LoadSlot(field.count, record), 0, field.dims[0]);
    if (count == 0) return;
    call.Key();
    call.out.BeginArray();
    for (std::int64_t i = 0; i < count; ++i) {
        const std::byte* const key = record + field.offset + i * field.elementSize;
        call.parser.SetJsonString(call.out, reinterpret_cast<const char*>(key), field.elementSize, true);
    }
    call.out.EndArray();
}

} // namespace

constexpr CustomCodec kDoorActionList{ReadDoorActions, WriteDoorActions,
                                      R"([{"Operation":"Open"},{"Operation":"CloseAlways"}])", PutDoorActions,
                                      kMostDoors* kDoorRoom + json::Hand::kSeparator};
constexpr CustomCodec kWeekOverSchedule{nullptr, WriteWeek};
constexpr CustomCodec kRuleWeekOverSchedule{nullptr, WriteRuleWeek};
constexpr CustomCodec kCountedKeys{ReadCountedKeys, WriteCountedKeys};

bool IsPtzLink(const std::byte* record) {
    return kPtzLinks.RowOf(MEMBER(record, CFG_PTZ_LINK, emType)) != nullptr;
}

bool IsPtzLinkV2(const std::byte* record) {
    const auto type = MEMBER(record, CFG_PTZ_LINK_V2, emType);
    return type != CFG_PTZ_LINK_NONE && kPtzLinks.RowOf(type) != nullptr;
}

} // namespace orrery::linkage
