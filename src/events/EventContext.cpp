#include "events/EventContext.h"

namespace orrery::events {

using json::Value;

namespace {

void ReadSourceDevice(const Field& field, const Value& value, std::byte* record, ReadCall& call) {
    if ((*EventOf(call).event)["Data"]["SourceIndex"].isNull()) return;
    call.parser.GetJsonString(value, reinterpret_cast<char*>(record + field.offset), field.elementSize, true);
}

} // namespace

void ReadGroup(const Value& value, EVENT_FILE_INFO& fileInfo) noexcept {
    if (const Value& group = value["GroupID"]; !group.isNull()) fileInfo.nGroupID = AnyIntegerOf(group);
    if (const Value& count = value["CountInGroup"]; !count.isNull())
        fileInfo.byCount = static_cast<std::uint8_t>(count.asInt());
    if (const Value& index = value["IndexInGroup"]; !index.isNull())
        fileInfo.byIndex = static_cast<std::uint8_t>(index.asInt());
}

constexpr CustomCodec kSourceDevice{ReadSourceDevice};

} // namespace orrery::events
