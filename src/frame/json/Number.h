// Number tokens of a text.
#pragma once

#include "frame/json/Value.h"

#include <array>
#include <cfloat>

namespace orrery::json {

// The bytes that a number token is made of: digits + - . e E
inline constexpr std::array<bool, 256> kNumberByte = [] {
    std::array<bool, 256> table{};
    for (const char byte : std::string_view("0123456789+-.eE"))
        table[static_cast<unsigned char>(byte)] = true;
    return table;
}();

#if FLT_EVAL_METHOD == 0
inline constexpr bool kHasShortDecimals = true;
#else
inline constexpr bool kHasShortDecimals = false; // sums and quotients of doubles are rounded later
#endif
// Digits, a point, digits: up to 15 of them are exact in a double, and so is the power of ten, so that one division
// rounds right. That is nearly every real a device sends. Null when the token is of another form.
inline const char* ReadShortDecimal(const char* token, const char* end, double& number) noexcept {
    if constexpr (!kHasShortDecimals) return nullptr;
    static constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                         1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    constexpr std::ptrdiff_t kDigits = 15;
    const char* p = token;
    const bool negative = *p == '-';
    if (negative) [[unlikely]]
        ++p;
    const char* const begin = p;
    std::uint64_t digits = 0;
    for (unsigned digit; p != end && (digit = static_cast<unsigned char>(*p) - unsigned{'0'}) < 10; ++p) {
        if (p - begin > kDigits) return nullptr;
        digits = digits * 10 + digit;
    }
    if (p == begin || p == end || *p != '.') return nullptr;
    const char* const point = p++;
    for (unsigned digit; p != end && (digit = static_cast<unsigned char>(*p) - unsigned{'0'}) < 10; ++p) {
        if (p - begin > kDigits) return nullptr;
        digits = digits * 10 + digit;
    }
    if (p != end && kNumberByte[static_cast<unsigned char>(*p)]) return nullptr;
    const double magnitude = static_cast<double>(static_cast<std::int64_t>(digits)) / kPowers[p - point - 1];
    number = negative ? -magnitude : magnitude;
    return p;
}

// Reads the token from `token` on as a real and puts it at `at`; the part in front that makes a number counts. Null
// when none does, otherwise the token's end.
const char* ReadReal(const char* token, const char* end, void* at) noexcept;
const char* NumberTokenEnd(const char* token, const char* end) noexcept;

// Negative integers that begin so are reals already: integers are held back one decimal digit early, so that the
// largest few of 32 bits are none.
inline constexpr std::uint32_t kFirstDigitsOfReals = 214748364;

// Reads the token that starts with the digit or the minus at `token` and puts what it says at `at`: an int or a uint
// when it is a plain integer of 32 bits, otherwise a real. Null when it is no number, otherwise the token's end.
inline const char* ReadNumber(const char* token, const char* end, void* at) noexcept {
    const bool negative = *token == '-';
    const std::uint32_t threshold = negative ? kFirstDigitsOfReals : 429496729U;
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
