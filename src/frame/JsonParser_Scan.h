// Numbers in fixed texts such as "1 08:00:00-17:30:00", scanned and printed the way sscanf and printf do it, without
// their cost and without the locale. Devices and clients lean on each of these habits: blanks in front of a number are
// passed over, signs are taken, a width counts the sign but not the blanks, what was read before a mismatch stays.
#pragma once

#include "frame/json/Digits.h"
#include "frame/json/Pen.h"

#include <bit>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

namespace orrery::scan {

constexpr bool IsBlank(char c) noexcept {
    return c == ' ' || (c >= '\t' && c <= '\r');
}
constexpr bool IsDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

class Scanner {
  public:
    constexpr explicit Scanner(std::string_view text) noexcept : next_(text.data()), end_(next_ + text.size()) {}

    constexpr void SkipBlanks() noexcept {
        while (next_ != end_ && IsBlank(*next_))
            ++next_;
    }

    constexpr bool Literal(char expected) noexcept {
        if (next_ == end_ || *next_ != expected) return false;
        ++next_;
        return true;
    }

    // A number of at most `width` characters, its sign included; 0 for any length. One too large for 64 bits becomes
    // the largest of its sign there, and of that the low 32 bits are the result, as with the C library.
    constexpr bool Number(std::int32_t& number, unsigned width) noexcept {
        SkipBlanks();
        std::size_t room = static_cast<std::size_t>(end_ - next_);
        if (width != 0 && width < room) room = width;
        const char* const stop = next_ + room;
        bool negative = false;
        if (next_ != stop && (*next_ == '-' || *next_ == '+')) negative = *next_++ == '-';
        if (next_ == stop || !IsDigit(*next_)) return false;
        constexpr std::uint64_t kMost = std::numeric_limits<std::int64_t>::max();
        std::uint64_t value = 0;
        bool tooLarge = false;
        do {
            const auto digit = static_cast<unsigned>(*next_++ - '0');
            if (value > (kMost - digit) / 10) tooLarge = true;
            if (!tooLarge) value = value * 10 + digit;
        } while (next_ != stop && IsDigit(*next_));
        if (tooLarge) value = negative ? kMost + 1 : kMost;
        number = static_cast<std::int32_t>(static_cast<std::uint32_t>(negative ? 0 - value : value));
        return true;
    }

  private:
    const char* next_;
    const char* end_;
};

// `count` numbers with `separators[i]` behind the i-th; a blank there stands for any blanks, none included. `widths`
// bounds each. Returns how many were read, in order, before the first mismatch.
inline int Fields(Scanner& scanner, int count, const char* separators, const unsigned char* widths,
                  std::int32_t* fields) noexcept {
    for (int i = 0; i < count; ++i) {
        if (i != 0 && separators[i - 1] != ' ' && !scanner.Literal(separators[i - 1])) return i;
        if (!scanner.Number(fields[i], widths[i])) return i; // passes over blanks by itself
    }
    return count;
}

// True when the 19 characters at `text` are digits wherever `pattern` has a 0 and equal to the pattern elsewhere.
inline bool HasShape(const char* text, const char (&pattern)[20]) noexcept {
    std::uint64_t bad = 0;
    for (const int at : {0, 8, 11}) {
        std::uint64_t want, word, slack = 0;
        std::memcpy(&want, pattern + at, 8);
        std::memcpy(&word, text + at, 8);
        unsigned char slacks[8];
        for (int i = 0; i < 8; ++i)
            slacks[i] = pattern[at + i] == '0' ? 0x7F - 9 : 0x7F;
        std::memcpy(&slack, slacks, 8);
        // A digit differs from '0' by 0 to 9, the rest not at all: any more carries into the byte's highest bit.
        word ^= want;
        bad |= word | (word + slack);
    }
    return (bad & 0x8080808080808080u) == 0;
}

// The three numbers of "08:30:00" at eight bytes, two digits each; `bad` gains a bit in some byte's highest place when
// the text is of another shape.
struct ClockNumbers {
    std::int32_t hour, minute, second;
};
inline ClockNumbers ReadClock(const char* text, std::uint64_t& bad) noexcept {
    // Bytes from the lowest up: what is left of a digit is its value, of a colon nothing.
    constexpr std::uint64_t kShape = 0x30303A30303A3030u;
    constexpr std::uint64_t kSlack = 0x76767F76767F7676u; // carries a digit beyond 9, or anything of a colon, upward
    std::uint64_t word;
    std::memcpy(&word, text, sizeof word);
    if constexpr (std::endian::native == std::endian::big) word = __builtin_bswap64(word);
    word ^= kShape;
    bad |= word | (word + kSlack);
    const std::uint64_t pairs = word * 10 + (word >> 8);
    return {static_cast<std::int32_t>(pairs & 0xFF), static_cast<std::int32_t>(pairs >> 24 & 0xFF),
            static_cast<std::int32_t>(pairs >> 48 & 0xFF)};
}
constexpr std::uint64_t kHighBits = 0x8080808080808080u;

inline std::int32_t TwoDigits(const char* text) noexcept {
    return (text[0] - '0') * 10 + (text[1] - '0');
}

// "%0<width>d" for widths up to 4, "%d" for 0: the width counts a minus sign, and zeros go behind it.
inline char* Print(char* out, std::int32_t number, unsigned width) noexcept {
    if (width == 2 && static_cast<std::uint32_t>(number) < 100) {
        std::memcpy(out, &json::kDigitPairs[2 * static_cast<std::size_t>(number)], 2);
        return out + 2;
    }
    if (width == 4 && static_cast<std::uint32_t>(number) < 10000) {
        const auto year = static_cast<std::uint32_t>(number);
        return json::PutPair(json::PutPair(out, year / 100), year % 100);
    }
    char digits[12];
    std::uint32_t magnitude = static_cast<std::uint32_t>(number);
    if (number < 0) magnitude = 0 - magnitude;
    char* const end = std::to_chars(digits, digits + sizeof digits, magnitude).ptr;
    std::size_t length = static_cast<std::size_t>(end - digits);
    const std::size_t sign = number < 0;
    if (sign != 0) *out++ = '-';
    for (std::size_t filled = length + sign; filled < width; ++filled)
        *out++ = '0';
    std::memcpy(out, digits, length);
    return out + length;
}

// The counterpart of `Fields`; returns the end of the text. A number takes 11 characters at most.
inline char* PrintFields(char* out, int count, const char* separators, const unsigned char* widths,
                         const std::int32_t* fields) noexcept {
    for (int i = 0; i < count; ++i) {
        if (i != 0) *out++ = separators[i - 1];
        out = Print(out, fields[i], widths[i]);
    }
    return out;
}

inline constexpr int kMostFields = 7;          // of the longest of these texts
inline constexpr std::size_t kFieldsRoom = 96; // seven numbers of 11 characters and what separates them

// As many fields as were read into the first words of `record`, which may lie at any address.
inline void StoreFields(void* record, const std::int32_t* fields, int count) noexcept {
    std::memcpy(record, fields, static_cast<std::size_t>(count) * sizeof *fields);
}

// Those words of a record as a text; null without one.
inline void WriteFields(json::TextWriter& out, const void* record, int count, const char* separators,
                        const unsigned char* widths) noexcept {
    if (record == nullptr) return out.Null();
    std::int32_t fields[kMostFields];
    std::memcpy(fields, record, static_cast<std::size_t>(count) * sizeof *fields);
    json::Pen pen(out);
    if (pen.has(kFieldsRoom + 2)) [[likely]] {
        // No field has anything to escape.
        pen.Element([&](char* to) {
            *to = '"';
            char* const end = PrintFields(to + 1, count, separators, widths, fields);
            *end = '"';
            return end + 1;
        });
        return pen.Return(out);
    }
    char text[kFieldsRoom];
    const char* const end = PrintFields(text, count, separators, widths, fields);
    out.String({text, static_cast<std::size_t>(end - text)});
}

} // namespace orrery::scan
