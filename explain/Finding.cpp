#include "explain/Finding.h"

#include "frame/json/TextWriter.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace orrery::explain {

using json::Type;

namespace {

// A key of a device may hold anything; what would read as another path stands in quotes.
constexpr std::array<bool, 256> kPlain = [] {
    std::array<bool, 256> plain{};
    for (unsigned c = ' ' + 1; c < plain.size(); ++c)
        plain[c] = c != '.' && c != '[' && c != '"' && c != '\\';
    return plain;
}();

bool IsPlain(std::string_view key) {
    return !key.empty() && std::ranges::all_of(key, [](char c) { return kPlain[static_cast<unsigned char>(c)]; });
}

void Append(std::string& text, const Path& step) {
    if (step.isElement) {
        std::array<char, 12> room;
        const auto end = std::to_chars(room.data() + 1, room.data() + room.size() - 1, step.index).ptr;
        room[0] = '[';
        *end = ']';
        text.append(room.data(), end + 1);
        return;
    }
    if (!text.empty()) text += '.';
    if (IsPlain(step.key))
        text += step.key;
    else
        text += Quoted(step.key);
}

} // namespace

std::string TextOf(const Path& path) {
    std::array<const Path*, 32> nearest; // nearly all paths are shorter
    std::vector<const Path*> others;
    std::size_t count = 0, size = 0;
    for (const Path* step = &path; step->up != nullptr; step = step->up) {
        if (count < nearest.size())
            nearest[count] = step;
        else
            others.push_back(step);
        ++count;
        size += step->isElement ? 4 : step->key.size() + 1;
    }
    std::string text;
    text.reserve(size);
    while (count > 0) {
        --count;
        Append(text, count < nearest.size() ? *nearest[count] : *others[count - nearest.size()]);
    }
    return text;
}

std::string Joined(std::initializer_list<std::string_view> parts) {
    std::size_t size = 0;
    for (const std::string_view part : parts)
        size += part.size();
    std::string text;
    text.reserve(size);
    for (const std::string_view part : parts)
        text += part;
    return text;
}

const char* WordOf(int kind) {
    switch (kind) {
    case ORRERY_FINDING_NOT_JSON:
        return "not-json";
    case ORRERY_FINDING_REFUSED:
        return "refused";
    case ORRERY_FINDING_NO_VALUE:
        return "no-value";
    case ORRERY_FINDING_WRONG_SHAPE:
        return "wrong-shape";
    case ORRERY_FINDING_DEVICE_ERROR:
        return "device-error";
    case ORRERY_FINDING_TRAILING_TEXT:
        return "trailing-text";
    case ORRERY_FINDING_DUPLICATE_KEY:
        return "duplicate-key";
    case ORRERY_FINDING_UNKNOWN_KEY:
        return "unknown-key";
    case ORRERY_FINDING_WRONG_TYPE:
        return "wrong-type";
    case ORRERY_FINDING_OUT_OF_RANGE:
        return "out-of-range";
    case ORRERY_FINDING_UNKNOWN_TEXT:
        return "unknown-text";
    case ORRERY_FINDING_TEXT_CUT:
        return "text-cut";
    case ORRERY_FINDING_ELEMENTS_DROPPED:
        return "elements-dropped";
    case ORRERY_FINDING_LIST_FOR_RECORD:
        return "list-for-record";
    case ORRERY_FINDING_NULL:
        return "null";
    case ORRERY_FINDING_BAD_TIME:
        return "bad-time";
    case ORRERY_FINDING_UNKNOWN_ITEM:
        return "unknown-item";
    case ORRERY_FINDING_WRITES_NOTHING:
        return "writes-nothing";
    default:
        return "";
    }
}

std::string FieldName(const record::Table& table, const record::Field& field) {
    return Joined({table.record, field.name[0] == '\0' ? "" : ".", field.name});
}

const char* TypeName(const json::Value& value) {
    switch (value.type()) {
    case Type::Null:
        return "null";
    case Type::Int:
    case Type::UInt:
        return "a number";
    case Type::Real:
        return "a real number";
    case Type::String:
        return "a text";
    case Type::Bool:
        return "a bool";
    case Type::Array:
        return "a list";
    case Type::Object:
        return "an object";
    }
    return "";
}

std::string Quoted(std::string_view text) {
    constexpr std::size_t kMost = 60;
    std::string quoted = "\"";
    std::size_t size = text.size();
    if (size > kMost) {
        size = kMost;
        while (size > 0 && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80) // a whole character
            --size;
    }
    for (const char c : text.substr(0, size)) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < ' ' || byte == 0x7F) {
            constexpr char kHex[] = "0123456789abcdef";
            quoted += {'\\', 'x', kHex[byte >> 4], kHex[byte & 15]};
        } else {
            if (c == '"' || c == '\\') quoted += '\\';
            quoted += c;
        }
    }
    return quoted + (size < text.size() ? "...\"" : "\"");
}

std::string Shown(const json::Value& value) {
    switch (value.type()) {
    case Type::Int:
        return std::to_string(value.asInt());
    case Type::UInt:
        return std::to_string(value.asUInt());
    case Type::Real: {
        std::array<char, 40> room;
        const auto end = std::to_chars(room.data(), room.data() + room.size(), value.asDouble()).ptr;
        return {room.data(), end};
    }
    case Type::String:
        return Quoted(value.asString());
    case Type::Bool:
        return value.asBool() ? "true" : "false";
    default:
        return TypeName(value);
    }
}

} // namespace orrery::explain
