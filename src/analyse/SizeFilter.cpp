#include "analyse/SizeFilter.h"

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
    call.out.BeginArray();
    call.out.Int(Load<std::int32_t>(record + field.offset));
    call.out.Int(Load<std::int32_t>(record + field.offset + 4));
    call.out.EndArray();
}

} // namespace

constexpr CustomCodec kNumberPair{ReadNumberPair, WriteNumberPair, "[1,2]"};

} // namespace orrery::sizefilter
