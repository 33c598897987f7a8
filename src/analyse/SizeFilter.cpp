#include "analyse/SizeFilter.h"

#include "frame/json/Pen.h"
#include "frame/json/Tokens.h"
#include "frame/record/Engine.h"

namespace orrery::sizefilter {

namespace {

void ReadNumberPair(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    if (value.size() < 2) return;
    Store(record + field.offset, value[0].asInt());
    Store(record + field.offset + 4, value[1].asInt());
}

void WriteNumberPair(const Field& field, const std::byte* record, WriteCall& call) {
    const std::byte* const at = record + field.offset;
    call.Key();
    call.out.BeginArray();
    call.out.Int(Load<std::int32_t>(at));
    call.out.Int(Load<std::int32_t>(at + 4));
    call.out.EndArray();
}

char* PutNumberPair(const Field& field, const std::byte* record, char* to) {
    const std::byte* const at = record + field.offset;
    return json::Pen::PutPair(to, Load<std::int32_t>(at), Load<std::int32_t>(at + 4));
}

const char* ReadNumberPairText(const Field& field, const char* p, const char* end, std::byte* record) {
    std::int32_t x, y;
    p = json::ReadShortPair(p, end, x, y);
    if (p == nullptr) return nullptr;
    Store(record + field.offset, x);
    Store(record + field.offset + 4, y);
    return p;
}

} // namespace

constexpr CustomCodec kNumberPair{ReadNumberPair, WriteNumberPair,      "[1,2]",
                                  PutNumberPair,  json::Pen::kPairRoom, ReadNumberPairText};

} // namespace orrery::sizefilter
