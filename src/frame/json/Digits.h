// Decimal digits of whole numbers, without locale and without a call for the small ones that devices deal in.
#pragma once

#include <array>
#include <charconv>
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

// Writes the number at `at`, where there is kIntegerRoom; returns its end.
template <class Number>
char* PutDigits(char* at, Number number) noexcept {
    if (number < 0 || number >= 10000) return std::to_chars(at, at + kIntegerRoom, number).ptr;
    auto rest = static_cast<std::uint32_t>(number);
    if (rest >= 100) {
        const std::uint32_t high = rest / 100;
        rest %= 100;
        if (high < 10)
            *at++ = static_cast<char>('0' + high);
        else
            at = static_cast<char*>(std::memcpy(at, &kDigitPairs[2 * high], 2)) + 2;
    } else if (rest < 10) {
        *at = static_cast<char>('0' + rest);
        return at + 1;
    }
    std::memcpy(at, &kDigitPairs[2 * rest], 2);
    return at + 2;
}

} // namespace orrery::json
