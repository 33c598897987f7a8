// Fixed arrays of numbers: points, sizes, rectangles, colours, polygons, positions.
#include "frame/JsonParser.h"

#include <algorithm>
#include <limits>

namespace orrery {

namespace {

// An array of exactly `Count` numbers, or nothing at all: a list of another length is some other thing.
template <std::size_t Count>
bool ReadInts(const json::Value& value, void* record) noexcept {
    if (record == nullptr || value.elements().size() != Count) return false;
    std::int32_t numbers[Count];
    for (std::size_t i = 0; i < Count; ++i)
        numbers[i] = value.elements()[i].asInt();
    std::memcpy(record, numbers, sizeof numbers);
    return true;
}

template <std::size_t Count>
void WriteInts(json::TextWriter& out, const void* record) noexcept {
    if (record == nullptr) return out.Null();
    std::int32_t numbers[Count];
    std::memcpy(numbers, record, sizeof numbers);
    out.BeginArray();
    for (const std::int32_t number : numbers)
        out.Int(number);
    out.EndArray();
}

} // namespace

bool JsonParser::GetPoint(const json::Value& value, CFG_POINT* point) noexcept {
    return ReadInts<2>(value, point);
}

void JsonParser::SetPoint(json::TextWriter& out, const CFG_POINT* point) noexcept {
    WriteInts<2>(out, point);
}

bool JsonParser::GetSize(const json::Value& value, CFG_SIZE* size) noexcept {
    std::int32_t numbers[2];
    if (size == nullptr || !ReadInts<2>(value, numbers)) return false;
    const float sides[2] = {static_cast<float>(numbers[0]), static_cast<float>(numbers[1])};
    std::memcpy(static_cast<void*>(size), sides, sizeof sides);
    return true;
}

void JsonParser::SetSize(json::TextWriter& out, const CFG_SIZE* size) noexcept {
    if (size == nullptr) return out.Null();
    float sides[2];
    std::memcpy(sides, static_cast<const void*>(size), sizeof sides);
    out.BeginArray();
    for (const float side : sides)
        out.Real(static_cast<double>(side));
    out.EndArray();
}

bool JsonParser::GetRect(const json::Value& value, CFG_RECT* rect) noexcept {
    return ReadInts<4>(value, rect);
}

void JsonParser::SetRect(json::TextWriter& out, const CFG_RECT* rect) noexcept {
    WriteInts<4>(out, rect);
}

bool JsonParser::GetColor(const json::Value& value, CFG_COLOR* color) noexcept {
    return ReadInts<4>(value, color);
}

void JsonParser::SetColor(json::TextWriter& out, const CFG_COLOR* color) noexcept {
    WriteInts<4>(out, color);
}

void JsonParser::GetPointList(const json::Value& value, int count, CFG_POLYGON* points, int* countOut) noexcept {
    int found = 0;
    if (points != nullptr && count > 0) {
        const auto elements = value.elements();
        const std::size_t limit = std::min(static_cast<std::size_t>(count), elements.size());
        for (std::size_t i = 0; i < limit; ++i) {
            if (elements[i].size() < 2) continue;
            const std::int32_t pair[2] = {elements[i][0u].asInt(), elements[i][1u].asInt()};
            std::memcpy(static_cast<void*>(points + i), pair, sizeof pair);
            ++found;
        }
    }
    if (countOut != nullptr) std::memcpy(countOut, &found, sizeof found);
}

bool JsonParser::SetPointList(json::TextWriter& out, const CFG_POLYGON* points, int count) noexcept {
    if (points == nullptr || count < 0) return false;
    if (count == 0) return true;
    out.BeginArray();
    for (int i = 0; i < count; ++i)
        WriteInts<2>(out, points + i);
    out.EndArray();
    return true;
}

double JsonParser::GpsDegreesToMicro(const json::Value& value) noexcept {
    const auto parts = value.elements();
    if (parts.size() < 3) return 0;
    return (parts[0].asUInt() + parts[1].asUInt() / 60.0 + parts[2].asDouble() / 3600) * 1000000;
}

std::int32_t JsonParser::GpsDegreesToMicroInt(const json::Value& value) noexcept {
    const double micro = GpsDegreesToMicro(value);
    using Limits = std::numeric_limits<std::int32_t>;
    if (micro >= Limits::max()) return Limits::max();
    if (micro <= Limits::min()) return Limits::min();
    return micro == micro ? static_cast<std::int32_t>(micro) : 0;
}

} // namespace orrery
