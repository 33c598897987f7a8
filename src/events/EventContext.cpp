#include "events/EventContext.h"

#include "frame/json/MemberKeys.h"

namespace orrery::events {

using json::Value;

namespace {

void ReadSourceDevice(const Field& field, const Value& value, std::byte* record, ReadCall& call) {
    if ((*EventOf(call).event)["Data"]["SourceIndex"].isNull()) return;
    call.parser.GetJsonString(value, reinterpret_cast<char*>(record + field.offset), field.elementSize, true);
}

} // namespace

void GroupInto(EVENT_FILE_INFO& fileInfo, const Value& count, const Value& group, const Value& index) noexcept {
    if (!count.isNull()) fileInfo.byCount = static_cast<std::uint8_t>(count.asInt());
    if (!group.isNull()) fileInfo.nGroupID = AnyIntegerOf(group);
    if (!index.isNull()) fileInfo.byIndex = static_cast<std::uint8_t>(index.asInt());
}

void ReadGroup(const Value& value, EVENT_FILE_INFO& fileInfo) noexcept {
    static constexpr json::MemberKeys<3> kGroup("CountInGroup", "GroupID", "IndexInGroup");
    const auto [count, group, index] = json::ValuesAt(value, kGroup);
    GroupInto(fileInfo, *count, *group, *index);
}

constexpr CustomCodec kSourceDevice{ReadSourceDevice};

} // namespace orrery::events
