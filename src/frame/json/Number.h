// Number tokens of a text.
#pragma once

#include "frame/json/Value.h"

#include <array>

namespace orrery::json {

// The bytes that a number token is made of: digits + - . e E
inline constexpr std::array<bool, 256> kNumberByte = [] {
    std::array<bool, 256> table{};
    for (const char byte : std::string_view("0123456789+-.eE"))
        table[static_cast<unsigned char>(byte)] = true;
    return table;
}();

// Reads the token from `token` on as a real and puts it at `at`; the part in front that makes a number counts. Null
// when none does, otherwise the token's end.
const char* ReadReal(const char* token, const char* end, void* at) noexcept;
const char* NumberTokenEnd(const char* token, const char* end) noexcept;

// Reads the token that starts with the digit or the minus at `token` and puts what it says at `at`: an int or a uint
// when it is a plain integer of 32 bits, otherwise a real. Null when it is no number, otherwise the token's end.
inline const char* ReadNumber(const char* token, const char* end, void* at) noexcept {
    const bool negative = *token == '-';
    // Integers are held back one decimal digit early, so the largest few of 32 bits are reals already.
    const std::uint32_t threshold = negative ? 214748364U : 429496729U;
    const char* const digits = token + (negative ? 1 : 0);
    const char* p = digits;
    std::uint32_t magnitude = 0;
    for (; p != end; ++p) {
        const unsigned digit = static_cast<unsigned char>(*p) - unsigned{'0'};
        if (digit > 9) {
            if (kNumberByte[static_cast<unsigned char>(*p)]) return ReadReal(token, end, at);
            break;
        }
        if (magnitude >= threshold) return ReadReal(token, end, at);
        magnitude = magnitude * 10 + digit;
    }
    if (p == digits) return nullptr;
    if (negative) {
        Value::PutInt(at, -static_cast<std::int32_t>(magnitude));
    } else if (magnitude < 2147483648U) {
        Value::PutInt(at, static_cast<std::int32_t>(magnitude));
    } else {
        Value::PutUInt(at, magnitude);
    }
    return p;
}

} // namespace orrery::json
