// What conversions between UTF-8 and a local encoding have in common, whoever converts the characters.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace orrery::local_text {

// Bytes of the character that `text` begins with, or, if it is broken, of its longest well-begun part. At least 1.
inline std::size_t Utf8Step(const char* text, std::size_t size) noexcept {
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    std::size_t length = 1;
    unsigned low = 0x80,
             high = 0xBF; // bounds of the second byte: no overlong form, no surrogate, nothing past U+10FFFF
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        if (lead == 0xE0) low = 0xA0;
        if (lead == 0xED) high = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        if (lead == 0xF0) low = 0x90;
        if (lead == 0xF4) high = 0x8F;
    }
    length = std::min(length, size);
    for (std::size_t i = 1; i < length; ++i) {
        if (byte(i) < low || byte(i) > high) return i;
        low = 0x80;
        high = 0xBF;
    }
    return length;
}

// The room that a conversion fills, byte by byte if need be.
struct Room {
    char* next;
    std::size_t left;

    // False when not all of it fitted: then the text ends in mid-character.
    bool Put(const char* bytes, std::size_t count) noexcept {
        const std::size_t part = std::min(left, count);
        std::memcpy(next, bytes, part);
        next += part;
        left -= part;
        return part == count;
    }
};

inline int CopyBounded(const char* source, int length, char* destination, int capacity) noexcept {
    const int count = std::min(length, capacity - 1);
    std::memcpy(destination, source, static_cast<std::size_t>(count));
    destination[count] = '\0';
    return count;
}

inline bool IsNothing(const char* source, int length, const char* destination, int capacity) noexcept {
    return source == nullptr || destination == nullptr || length < 1 || capacity < 1;
}

} // namespace orrery::local_text
