#include "events/EventCodecs.h"

#include "events/EventLog.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orrery::events {

using json::Value;

const char* OwnText(const Value& value, ReadCall& call) noexcept {
    const std::size_t size = value.asString().size();
    auto* const block = call.parser.text().arena().Array<char>(size + 1);
    if (block != nullptr) call.parser.GetJsonString(value, block, size + 1, true);
    return block;
}

const char* OwnText(std::string_view text, Arena& arena) noexcept {
    auto* const block = arena.Array<char>(text.size() + 1);
    if (block == nullptr) return nullptr;
    if (!text.empty()) std::memcpy(block, text.data(), text.size());
    block[text.size()] = '\0';
    return block;
}

void ReadTextBlock(const Field& field, const Value& value, std::byte* record, std::uint32_t capacity,
                   ReadCall& call) noexcept {
    auto* const block = call.parser.text().arena().Array<char>(capacity);
    if (block == nullptr) {
        ORRERY_EVENT_ERROR("%s, size:%d", field.failure, static_cast<int>(capacity));
        return;
    }
    std::memset(block, 0, capacity);
    call.parser.GetJsonString(value, block, capacity, true);
    Store<const char*>(record + field.offset, block);
}

std::int64_t WholeOf(double number) noexcept {
    using Limits = std::numeric_limits<std::int64_t>;
    if (std::isnan(number)) return 0;
    if (number >= 9223372036854775808.0) return Limits::max();
    if (number <= -9223372036854775808.0) return Limits::min();
    return static_cast<std::int64_t>(number);
}

namespace {

void ReadPackedColor(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    std::uint32_t color = 0;
    for (std::uint32_t i = 0; i < 4; ++i)
        color |= static_cast<std::uint32_t>(value[i].asInt()) << (24 - 8 * i);
    Store(record + field.offset, color);
    StoreSlot(field.flag, record, 1);
}

void ReadWholeReal(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    StoreInteger(field.cell, record + field.offset, WholeOf(value.asDouble()));
}

void ReadDegrees(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    if (field.cell == Cell::F64)
        Store(record + field.offset, JsonParser::GpsDegreesToMicro(value));
    else
        Store(record + field.offset, JsonParser::GpsDegreesToMicroInt(value));
}

void ReadThousandths(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    Store(record + field.offset, static_cast<float>(value.asUInt() / 1000.0));
}

void ReadSignedThousandths(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    Store(record + field.offset, static_cast<float>(value.asInt() / 1000.0));
}

void ReadAnyInteger(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    StoreInteger(field.cell, record + field.offset, AnyIntegerOf(value));
}

template <std::uint32_t Index>
void ReadNumberAt(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    StoreInteger(field.cell, record + field.offset, value[Index].asInt());
}

void ReadCountedFromOne(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    StoreInteger(field.cell, record + field.offset, std::int64_t{value.asInt()} + 1);
}

void ReadOwnedText(const Field& field, const Value& value, std::byte* record, ReadCall& call) {
    if (value.isString()) Store(record + field.offset, OwnText(value, call));
}

void ReadOwnedRecord(const Field& field, const Value& value, std::byte* record, ReadCall& call) {
    const std::uint32_t size = field.table->size;
    auto* const block = static_cast<std::byte*>(call.parser.text().arena().Allocate(size));
    if (block != nullptr) {
        std::memset(block, 0, size);
        ReadRecord(*field.table, value, block, call);
    }
    Store(record + field.offset, block);
}

void ReadByKeys(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    const std::uint32_t stride = field.elementSize;
    for (const json::Member& member : value.members()) {
        const Name* const name = member.value.isNull() ? nullptr : field.names->Find(member.key());
        if (name == nullptr || static_cast<std::uint32_t>(name->code) >= field.dims[0]) continue;
        StoreInteger(field.cell, record + field.offset + static_cast<std::uint32_t>(name->code) * stride,
                     AnyIntegerOf(member.value));
    }
}

} // namespace

constexpr CustomCodec kPackedColor{ReadPackedColor, nullptr, "[ 255, 128, 64, 0 ]"};
constexpr CustomCodec kWholeReal{ReadWholeReal, nullptr, "1700.5"};
constexpr CustomCodec kDegrees{ReadDegrees, nullptr, "[ 120.0, 30.0, 15.0 ]"};
constexpr CustomCodec kThousandths{ReadThousandths, nullptr, "1500"};
constexpr CustomCodec kSignedThousandths{ReadSignedThousandths, nullptr, "-1500"};
constexpr CustomCodec kAnyInteger{ReadAnyInteger, nullptr, "7"};
constexpr CustomCodec kFirstNumber{ReadNumberAt<0>, nullptr, "[ 640, 480 ]"};
constexpr CustomCodec kSecondNumber{ReadNumberAt<1>, nullptr, "[ 640, 480 ]"};
constexpr CustomCodec kCountedFromOne{ReadCountedFromOne, nullptr, "2"};
constexpr CustomCodec kOwnedText{ReadOwnedText, nullptr, "\"text\""};
constexpr CustomCodec kOwnedRecord{ReadOwnedRecord, nullptr, "{}"};
constexpr CustomCodec kByKeys{ReadByKeys, nullptr, "{}"};

} // namespace orrery::events
