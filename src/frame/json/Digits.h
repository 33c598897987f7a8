// Decimal digits of numbers, without locale and without a call for the small ones that devices deal in.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace orrery::json {

// "00" to "99", one after the other.
inline constexpr std::array<char, 200> kDigitPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
}();

// Longer than any 32-bit number.
inline constexpr std::size_t kIntegerRoom = 12;

inline char* PutPair(char* at, std::uint32_t below100) noexcept {
    std::memcpy(at, &kDigitPairs[2 * std::size_t{below100}], 2);
    return at + 2;
}

// Of a number from 10000 on.
char* PutLongDigits(char* at, std::uint32_t number) noexcept;

// Writes the number at `at`, where there is kIntegerRoom; returns its end.
inline char* PutDigits(char* at, std::uint32_t number) noexcept {
    if (number >= 10000) return PutLongDigits(at, number);
    if (number >= 100) {
        const std::uint32_t high = number / 100;
        number %= 100;
        if (high >= 10)
            at = PutPair(at, high);
        else
            *at++ = static_cast<char>('0' + high);
    } else if (number < 10) {
        *at = static_cast<char>('0' + number);
        return at + 1;
    }
    return PutPair(at, number);
}
inline char* PutDigits(char* at, std::int32_t number) noexcept {
    auto magnitude = static_cast<std::uint32_t>(number);
    if (number < 0) {
        *at++ = '-';
        magnitude = 0 - magnitude;
    }
    return PutDigits(at, magnitude);
}

// Longer than any real.
inline constexpr std::size_t kRealRoom = 48;

// The digits of printf's "%#.16g", whatever the locale; `at` has kRealRoom.
char* PutReal(char* at, double number) noexcept;

} // namespace orrery::json
