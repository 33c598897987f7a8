#include "events/EventContext.h"

namespace orrery::events {

using json::Value;

namespace {

void ReadSourceDevice(const Field& field, const Value& value, std::byte* record, ReadCall& call) {
    if ((*EventOf(call).event)["Data"]["SourceIndex"].isNull()) return;
    call.parser.GetJsonString(value, reinterpret_cast<char*>(record + field.offset), field.elementSize, true);
}

} // namespace

// Few events name a group, and keys come sorted: one look over the beginnings of the keys tells.
void ReadGroup(const Value& value, EVENT_FILE_INFO& fileInfo) noexcept {
    constexpr std::uint64_t kCount = json::KeyPrefix("CountInGroup");
    constexpr std::uint64_t kGroup = json::KeyPrefix("GroupID");
    constexpr std::uint64_t kIndex = json::KeyPrefix("IndexInGroup");
    for (const json::Member& member : value.members()) {
        const std::uint64_t prefix = json::KeyPrefix(member);
        if (prefix > kIndex) break;
        const Value& found = member.value;
        if ((prefix != kCount && prefix != kGroup && prefix != kIndex) || found.isNull()) continue;
        const std::string_view key = member.key();
        if (key == "CountInGroup")
            fileInfo.byCount = static_cast<std::uint8_t>(found.asInt());
        else if (key == "GroupID")
            fileInfo.nGroupID = AnyIntegerOf(found);
        else if (key == "IndexInGroup")
            fileInfo.byIndex = static_cast<std::uint8_t>(found.asInt());
    }
}

constexpr CustomCodec kSourceDevice{ReadSourceDevice};

} // namespace orrery::events
