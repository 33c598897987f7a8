#include "frame/JsonParser.h"

#include <algorithm>
#include <bit>
#include <climits>
#include <cstring>

namespace orrery {

namespace {

// No field and no text comes near; the conversions count in int.
int Bounded(std::size_t size) noexcept {
    return static_cast<int>(std::min<std::size_t>(size, INT_MAX / 2));
}

} // namespace

bool JsonParser::GetJsonString(const json::Value& value, char* destination, std::size_t capacity,
                               bool convert) noexcept {
    const bool isString = value.isString();
    if (destination == nullptr || capacity == 0) return isString;
    // Cleared even when the type is wrong: a field never keeps what stood there before.
    std::size_t count = 0;
    if (isString) {
        const std::string_view text = value.asString();
        if (!convert || text_.isCopyOf(text)) {
            count = std::min(text.size(), capacity - 1);
            if (count != 0) std::memcpy(destination, text.data(), count);
        } else {
            const int written =
                text_.ConvertUtf8ToLocal(text.data(), Bounded(text.size()), destination, Bounded(capacity));
            count = static_cast<std::size_t>(written);
        }
    }
    std::memset(destination + count, 0, capacity - count);
    return isString;
}

bool JsonParser::GetJsonStringIfPresent(const json::Value& value, char* destination, std::size_t capacity) noexcept {
    if (destination == nullptr || value.isNull()) return false;
    return GetJsonString(value, destination, capacity, true);
}

bool JsonParser::GetJsonStringBounded(const json::Value& value, char* destination, std::size_t limit,
                                      std::size_t room) noexcept {
    if (!value.isString()) return false;
    const std::string_view text = value.asString().substr(0, limit);
    text_.ConvertUtf8ToLocal(text.data(), Bounded(text.size()), destination, Bounded(room));
    return true;
}

bool JsonParser::GetConvertedText(const json::Value& value, char* destination, std::size_t capacity) noexcept {
    if (!value.isString()) return false;
    const std::string_view text = value.asString().substr(0, capacity);
    std::size_t count = text.size();
    if (text_.isCopyOf(text)) {
        if (count != 0) std::memcpy(destination, text.data(), count);
    } else {
        char nearby[512];
        const std::size_t room = capacity + 1; // the conversion sets a terminator
        char* const converted = room <= sizeof nearby ? nearby : text_.arena().Array<char>(room);
        count = converted == nullptr ? 0
                                     : static_cast<std::size_t>(text_.ConvertUtf8ToLocal(
                                         text.data(), Bounded(text.size()), converted, Bounded(room)));
        if (count != 0) std::memcpy(destination, converted, count);
    }
    std::memset(destination + count, 0, capacity - count);
    return true;
}

bool JsonParser::SetJsonString(json::TextWriter& out, const char* source, std::size_t capacity, bool convert) noexcept {
    if (source == nullptr) return false;
    const std::string_view text(source, strnlen(source, capacity));
    if (!convert || text_.isCopyOf(text)) {
        out.String(text);
        return true;
    }
    // A double-byte character becomes three bytes at worst. Single-byte text that grows by more is cut there, since
    // that is what devices have always been sent.
    const int length = Bounded(text.size());
    const auto room = static_cast<std::size_t>(length) * 3 / 2 + 1;
    char nearby[2048];
    char* const converted = room <= sizeof nearby ? nearby : text_.arena().Array<char>(room);
    const int count = converted == nullptr
                          ? 0
                          : text_.ConvertLocalToUtf8(text.data(), length, converted,
                                                     static_cast<int>(std::min<std::size_t>(room, INT_MAX)));
    out.String({converted, static_cast<std::size_t>(count)});
    return true;
}

bool EqualsFolded(std::string_view left, std::string_view right) noexcept {
    const std::size_t size = left.size();
    if (size != right.size()) return false;
    const char* const a = left.data();
    const char* const b = right.data();
    if (size < 8) return Folded(ShortWord(a, size)) == Folded(ShortWord(b, size));
    const auto sameAt = [a, b](std::size_t at) noexcept {
        const std::uint64_t x = Word(a + at);
        const std::uint64_t y = Word(b + at);
        return x == y || Folded(x) == Folded(y);
    };
    for (std::size_t at = 0; at + 8 < size; at += 8) {
        if (!sameAt(at)) return false;
    }
    return sameAt(size - 8); // overlaps what was seen, instead of a loop over the last bytes
}

} // namespace orrery
