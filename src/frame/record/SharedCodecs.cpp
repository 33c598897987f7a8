#include "frame/record/SharedCodecs.h"

#include "frame/record/Engine.h"

namespace orrery::record {

using json::Value;

namespace {

void ReadNamedBits(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    std::uint32_t bits = Load<std::uint32_t>(record + field.offset);
    for (const Value& element : value.elements())
        bits |= static_cast<std::uint32_t>(field.names->CodeOf(element.asString()).value_or(0));
    Store(record + field.offset, bits);
}

// Both wrap round: the number before the least is the greatest.
void ReadFromOne(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    Store(record + field.offset, static_cast<std::uint32_t>(value.asInt()) - 1);
}
void WriteFromOne(const Field& field, const std::byte* record, WriteCall& call) {
    call.Key();
    call.out.Int(static_cast<std::int32_t>(Load<std::uint32_t>(record + field.offset) + 1));
}

void ReadSplitName(const Field& field, const Value& name, std::byte* record, ReadCall&) {
    Store(record + field.offset, JsonParser::GetOverlaySplit(name.asString()));
}
void WriteSplitName(const Field& field, const std::byte* record, WriteCall& call) {
    const auto mode = Load<std::int32_t>(record + field.offset);
    if (mode < 0) return; // below the first of all names
    std::array<char, 32> room;
    call.Key();
    call.out.String(JsonParser::OverlaySplitText(static_cast<std::uint32_t>(mode), room));
}

} // namespace

constexpr CustomCodec kNamedBits{ReadNamedBits, nullptr, "[]"};
constexpr CustomCodec kFromOne{ReadFromOne, WriteFromOne, "3"};
constexpr CustomCodec kSplitName{ReadSplitName, WriteSplitName, "\"PIP4\""};

} // namespace orrery::record
