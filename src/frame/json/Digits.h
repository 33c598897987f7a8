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

// Longer than any 32-bit number, with what a store goes beyond it.
inline constexpr std::size_t kIntegerRoom = 12;

inline char* PutPair(char* at, std::uint32_t below100) noexcept {
    std::memcpy(at, &kDigitPairs[2 * std::size_t{below100}], 2);
    return at + 2;
}

// "0" to "999", each with its length in the fourth byte: most numbers that devices deal in take one store.
inline constexpr std::array<char, 4000> kSmallNumbers = [] {
    std::array<char, 4000> texts{};
    for (std::size_t i = 0; i < 1000; ++i) {
        char* at = &texts[4 * i];
        if (i >= 100) *at++ = static_cast<char>('0' + i / 100);
        if (i >= 10) *at++ = static_cast<char>('0' + i / 10 % 10);
        *at = static_cast<char>('0' + i % 10);
        texts[4 * i + 3] = i >= 100 ? 3 : i >= 10 ? 2 : 1;
    }
    return texts;
}();

inline char* PutSmall(char* at, std::uint32_t below1000) noexcept {
    const char* const text = &kSmallNumbers[4 * std::size_t{below1000}];
    std::memcpy(at, text, 4);
    return at + text[3];
}

// "000" to "999", four bytes each.
inline constexpr std::array<char, 4000> kThreeDigits = [] {
    std::array<char, 4000> texts{};
    for (std::size_t i = 0; i < 1000; ++i) {
        texts[4 * i] = static_cast<char>('0' + i / 100);
        texts[4 * i + 1] = static_cast<char>('0' + i / 10 % 10);
        texts[4 * i + 2] = static_cast<char>('0' + i % 10);
    }
    return texts;
}();

// Takes four bytes, of which the last gets overwritten.
inline char* PutThree(char* at, std::uint32_t below1000) noexcept {
    std::memcpy(at, &kThreeDigits[4 * std::size_t{below1000}], 4);
    return at + 3;
}

// Of a number from 1000000 on.
char* PutLongDigits(char* at, std::uint32_t number) noexcept;

// Writes the number at `at`, where there is kIntegerRoom; returns its end.
inline char* PutDigits(char* at, std::uint32_t number) noexcept {
    if (number < 1000) return PutSmall(at, number);
    if (number < 1000000) return PutThree(PutSmall(at, number / 1000), number % 1000);
    return PutLongDigits(at, number);
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
