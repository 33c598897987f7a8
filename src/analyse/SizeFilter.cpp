#include "analyse/SizeFilter.h"

#include "frame/json/Pen.h"
#include "frame/record/Engine.h"

namespace orrery::sizefilter {

namespace {

void ReadNumberPair(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    if (value.size() < 2) return;
    Store(record + field.offset, value[0].asInt());
    Store(record + field.offset + 4, value[1].asInt());
}

void WriteNumberPair(const Field& field, const std::byte* record, WriteCall& call) {
    call.Key();
    const std::byte* const at = record + field.offset;
    const std::int32_t first = Load<std::int32_t>(at), second = Load<std::int32_t>(at + 4);
    json::Pen pen(call.out);
    if (pen.has(json::Pen::kPairRoom)) [[likely]] {
        pen.Element([=](char* to) { return json::Pen::PutPair(to, first, second); });
        return pen.Return(call.out);
    }
    call.out.BeginArray();
    call.out.Int(first);
    call.out.Int(second);
    call.out.EndArray();
}

} // namespace

constexpr CustomCodec kNumberPair{ReadNumberPair, WriteNumberPair, "[1,2]"};

} // namespace orrery::sizefilter
