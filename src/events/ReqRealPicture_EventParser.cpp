// From one array of events to records in the list.
#include "analyse/EventTypeRegistry.h"
#include "events/EventLog.h"
#include "events/EventMap.h"
#include "events/ReqRealPicture.h"

#include <algorithm>
#include <cstring>

namespace orrery {

using events::EventCall;
using events::EventRow;
using json::Value;

namespace {

constexpr std::uint32_t kMostEvents = 128;
NAMES(kActions, record::kFolded.UnknownLeaves(),
      {
          {EVENT_ACTION_PULSE, "Pulse"},
          {EVENT_ACTION_START, "Start"},
          {EVENT_ACTION_STOP, "Stop"},
      });

std::uint32_t CodeOf(const Value& code) noexcept {
    constexpr std::size_t kLongestName = 127;
    return static_cast<std::uint32_t>(RuleCodeFromName(code.asString().substr(0, kLongestName)));
}

// What every event is asked for, found in one pass.
struct EventParts {
    const Value* action = &json::kNull;
    const Value* code = &json::kNull;
    const Value* data = &json::kNull;

    explicit EventParts(const Value& event) noexcept {
        for (const json::Member& member : event.members()) {
            const std::string_view key = member.key();
            if (key == "Code")
                code = &member.value;
            else if (key == "Data")
                data = &member.value;
            else if (key == "Action")
                action = &member.value;
        }
    }
};

} // namespace

void CReqRealPicture::parseAlarmEvent(const Value& events, Circumstances& around) noexcept {
    EventCall common{};
    common.source = &around.source;
    events::EventContext& fields = common.fields;
    fields.nChannelID = nChannel;
    fields.byRepeat = static_cast<std::uint8_t>(around.source.nRepeat);
    fields.dwFlagMask = around.flagMask;
    fields.dwResolution = around.resolution;
    fields.wWidth = static_cast<std::uint16_t>(around.resolution);
    fields.wHeight = static_cast<std::uint16_t>(around.resolution >> 16);
    std::memcpy(fields.szRecordFile, around.source.szRecordFile, sizeof fields.szRecordFile);
    const std::lock_guard<RecursiveLock> hold(csEvents); // once for all of them
    const auto all = events.elements();
    for (const Value& event : all.first(std::min<std::size_t>(all.size(), kMostEvents)))
        parseOne(event, around, common);
}

namespace {

void LogMissingBlock(const record::Field& field) noexcept {
    if (field.failure != nullptr) ORRERY_EVENT_ERROR("%s", field.failure);
}

} // namespace

void CReqRealPicture::parseOne(const Value& event, Circumstances& around, EventCall& common) noexcept {
    const EventParts parts(event);
    const std::uint32_t code = CodeOf(*parts.code);
    const EventRow* row = events::FindEvent(code);
    const Value& data = *parts.data;
    if (data.isNull() && (row == nullptr || !row->needsNoData)) return;

    // An event without a word of its own acts as the one before it did.
    events::EventContext& fields = common.fields;
    if (const auto action = kActions.CodeOf(parts.action->asString())) {
        fields.nAction = *action;
        fields.dwAction = static_cast<std::uint32_t>(*action);
        fields.byEventAction = static_cast<std::uint8_t>(*action);
    }
    ORRERY_EVENT_DETAIL("parseAlarmEvent start dwAlarmType[%d]", static_cast<int>(code));
    if (row != nullptr && row->rename != nullptr) row = events::FindEvent(row->rename(data));
    if (row == nullptr) return;

    if (row->making != nullptr) ORRERY_EVENT_DETAIL("%s", row->making);
    auto* const node = static_cast<EventNode*>(arena_.Allocate(sizeof(EventNode)));
    // Room for all that the callback is told of: some clients copy that much.
    const std::uint32_t size = std::max(row->recordSize, row->reportedSize);
    auto* const record = static_cast<std::byte*>(arena_.Allocate(size));
    if (node == nullptr || record == nullptr) {
        if (row->noMemory != nullptr) ORRERY_EVENT_ERROR("%s", row->noMemory);
        return;
    }
    std::memset(record, 0, size);
    // The group goes on to the events that follow and name none.
    events::ReadGroup(data, around.fileInfo);
    fields.stuFileInfo = around.fileInfo;
    if (row->reading != nullptr) ORRERY_EVENT_DETAIL("%s", row->reading);
    if (LogHasSink() && row->readingCar != nullptr && !data["TrafficCar"].isNull())
        ORRERY_EVENT_DETAIL("%s", row->readingCar);
    record::ReadCall call{parser_, event};
    call.noMemory = LogMissingBlock;
    call.context = &common;
    common.event = &event;
    record::ReadRecord(*row->table, data, record, call);

    *node = {nullptr, nullptr, row->code, record, row->reportedSize};
    lstEvents.Append(*node);
}

} // namespace orrery
