#include "display/SplitName.h"

#include "frame/record/Engine.h"

namespace orrery {

using namespace record;

namespace {

void ReadSplit(const Field& field, const json::Value& name, std::byte* record, ReadCall&) {
    Store(record + field.offset, JsonParser::GetOverlaySplit(name.asString()));
}

void WriteSplit(const Field& field, const std::byte* record, WriteCall& call) {
    const auto mode = Load<std::int32_t>(record + field.offset);
    if (mode < 0) return; // below the first of all names
    std::array<char, 32> room;
    call.Key();
    call.out.String(JsonParser::OverlaySplitText(static_cast<std::uint32_t>(mode), room));
}

} // namespace

constexpr CustomCodec kSplitName{ReadSplit, WriteSplit, "\"PIP4\""};

} // namespace orrery
