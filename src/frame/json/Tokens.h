// Values of a text one by one, for whoever goes through it without making a document of it.
#pragma once

#include "frame/json/Number.h"
#include "frame/json/Scan.h"
#include "frame/json/StringDecoder.h"
#include "frame/json/Value.h"

#include <iterator>

namespace orrery::json {

// Reads the string, number, bool or null at `p`, which is in front of `end`, and puts it at `at`. The byte behind it;
// null when none begins there, or when the arena is exhausted.
inline const char* ReadScalar(const char* p, const char* end, Arena& arena, void* at) noexcept {
    switch (*p) {
    case '"': {
        const char* const text = p + 1;
        const char* const stop = FindQuoteOrBackslash(text, end);
        if (stop != end && *stop == '"') [[likely]] {
            Value::PutString(at, text, static_cast<std::size_t>(stop - text));
            return stop + 1;
        }
        const DecodedString decoded = DecodeString(text, stop, end, arena);
        if (decoded.text.data() == nullptr) return nullptr;
        Value::PutString(at, decoded.text.data(), decoded.text.size());
        return decoded.stop;
    }
    case 't':
        if (end - p < 4 || std::memcmp(p, "true", 4) != 0) return nullptr;
        Value::PutBool(at, true);
        return p + 4;
    case 'f':
        if (end - p < 5 || std::memcmp(p, "false", 5) != 0) return nullptr;
        Value::PutBool(at, false);
        return p + 5;
    case 'n':
        if (end - p < 4 || std::memcmp(p, "null", 4) != 0) return nullptr;
        Value::PutNull(at);
        return p + 4;
    default:
        if (*p != '-' && (*p < '0' || *p > '9')) return nullptr;
        return ReadNumber(p, end, at);
    }
}

inline constexpr std::uint64_t kEachByte = 0x0101010101010101u; // times a byte: eight of it

// Up to eight digits, read eight bytes at once: how many digits follow one another is a guess that processors lose.
struct FewDigits {
    static constexpr std::size_t kRoom = 8; // bytes that are looked at

    std::size_t count; // kRoom: there may be more behind them
    std::uint32_t number;
};
// The number of the values of `count` digits, 1 to 8, the first lowest; what is above them does not count.
constexpr std::uint32_t NumberOfDigits(std::uint64_t bytes, unsigned count) noexcept {
    bytes <<= 64 - 8 * count; // zeros in front make them eight
    bytes = bytes * 10 + (bytes >> 8);
    constexpr std::uint64_t kPair = 0x000000FF000000FFu;
    bytes = (bytes & kPair) * (100 + (std::uint64_t{1000000} << 32))
            + ((bytes >> 16) & kPair) * (1 + (std::uint64_t{10000} << 32));
    return static_cast<std::uint32_t>(bytes >> 32);
}
inline FewDigits ReadFewDigits(const char* p) noexcept {
    std::uint64_t bytes;
    std::memcpy(&bytes, p, sizeof bytes);
    if constexpr (std::endian::native == std::endian::big) bytes = __builtin_bswap64(bytes);
    bytes ^= '0' * kEachByte; // the values of digits
    const std::uint64_t others = ((bytes + (0x80 - 10) * kEachByte) | bytes) & (0x80 * kEachByte);
    if (others == 0) return {FewDigits::kRoom, NumberOfDigits(bytes, FewDigits::kRoom)};
    const auto count = static_cast<unsigned>(std::countr_zero(others)) / 8;
    if (count == 0) return {0, 0};
    return {count, NumberOfDigits(bytes, count)};
}

// Reads the integer of up to nine digits at `p`, or of ten where a document has it as an int and more text follows. The
// byte behind it; null for any other value.
inline const char* ReadShortInt(const char* p, const char* end, std::int32_t& number) noexcept {
    const bool negative = *p == '-';
    const char* const digits = p + (negative ? 1 : 0);
    constexpr std::size_t kRoom = FewDigits::kRoom;
    const auto room = static_cast<std::size_t>(end - digits);
    const auto ends = [](const char* at) { return !kNumberByte[static_cast<unsigned char>(*at)]; };
    if (room >= kRoom) [[likely]] {
        const FewDigits few = ReadFewDigits(digits);
        if (few.count < kRoom) [[likely]] {
            if (few.count == 0 || !ends(digits + few.count)) return nullptr;
            number = static_cast<std::int32_t>(few.number);
            if (negative) number = -number;
            return digits + few.count;
        }
        if (room >= 2 * kRoom) [[likely]] {
            constexpr std::uint32_t kPowers[] = {1, 10, 100};
            const FewDigits more = ReadFewDigits(digits + kRoom);
            const char* const after = digits + kRoom + more.count;
            if (more.count >= std::size(kPowers) || !ends(after)) return nullptr;
            const std::uint64_t magnitude = std::uint64_t{few.number} * kPowers[more.count] + more.number;
            if (magnitude / 10 >= kFirstDigitsOfReals) return nullptr;
            number = static_cast<std::int32_t>(magnitude);
            if (negative) number = -number;
            return after;
        }
    }
    std::int32_t magnitude = 0;
    for (p = digits; p != end; ++p) {
        const unsigned digit = static_cast<unsigned char>(*p) - unsigned{'0'};
        if (digit > 9) {
            if (kNumberByte[static_cast<unsigned char>(*p)]) return nullptr;
            break;
        }
        if (p - digits == 9) return nullptr;
        magnitude = magnitude * 10 + static_cast<std::int32_t>(digit);
    }
    number = negative ? -magnitude : magnitude;
    return p == digits ? nullptr : p;
}

// Reads the array of exactly `count` numbers, at least one, at `p` when all of it stands in the next kFewNumbersText
// bytes and is written as most are: no signs, up to seven digits each, blanks where any are. One look finds all
// numbers, where otherwise each had to wait for the end of the one before. The byte behind it; null for anything else,
// which may be such an array none the less.
inline constexpr std::ptrdiff_t kFewNumbersText = 32;
inline const char* ReadFewNumbers(const char* p, const char* end, std::uint32_t count, std::int32_t* numbers) noexcept {
#if ORRERY_SSE2
    if (end - p < kFewNumbersText + static_cast<std::ptrdiff_t>(FewDigits::kRoom)) return nullptr;
    const auto load = [p](int at) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at)); };
    const __m128i low = load(0), high = load(16);
    const auto both = [](__m128i first, __m128i second) {
        return static_cast<std::uint32_t>(_mm_movemask_epi8(first))
               | static_cast<std::uint32_t>(_mm_movemask_epi8(second)) << 16;
    };
    const auto each = [&](char byte) {
        const __m128i all = _mm_set1_epi8(byte);
        return both(_mm_cmpeq_epi8(low, all), _mm_cmpeq_epi8(high, all));
    };
    const auto isDigit = [](__m128i bytes) {
        const __m128i value = _mm_sub_epi8(bytes, _mm_set1_epi8('0'));
        return _mm_cmpeq_epi8(_mm_min_epu8(value, _mm_set1_epi8(9)), value);
    };
    const std::uint32_t closes = each(']');
    if (closes == 0) return nullptr;
    const auto close = static_cast<unsigned>(std::countr_zero(closes));
    const std::uint32_t inside = ((std::uint32_t{1} << close) - 1) & ~std::uint32_t{1};
    const std::uint32_t digits = both(isDigit(low), isDigit(high)) & inside;
    std::uint32_t commas = each(',') & inside;
    if ((digits | commas | (each(' ') & inside)) != inside) return nullptr;
    std::uint32_t starts = digits & ~(digits << 1);
    std::uint32_t ends = ~digits & (digits << 1);
    const auto take = [](std::uint32_t& bits) {
        const auto first = static_cast<unsigned>(std::countr_zero(bits));
        bits &= bits - 1;
        return first;
    };
    for (std::uint32_t i = 0; i < count; ++i) {
        if (starts == 0) return nullptr;
        const unsigned start = take(starts), behind = take(ends);
        if (behind - start >= FewDigits::kRoom) return nullptr;
        if (i + 1 != count) {
            if (commas == 0 || starts == 0) return nullptr;
            const unsigned comma = take(commas);
            if (comma < behind || comma > static_cast<unsigned>(std::countr_zero(starts))) return nullptr;
        }
        std::uint64_t bytes;
        std::memcpy(&bytes, p + start, sizeof bytes);
        numbers[i] = static_cast<std::int32_t>(NumberOfDigits(bytes ^ '0' * kEachByte, behind - start));
    }
    return (starts | commas) == 0 ? p + close + 1 : nullptr;
#else
    static_cast<void>(p), static_cast<void>(end), static_cast<void>(count), static_cast<void>(numbers);
    return nullptr;
#endif
}

// A place in an open container: in front of its next entry, behind its end, or nowhere in what is no JSON.
struct Step {
    const char* at;
    bool more;
};

// Behind an entry at `p`: the next one's first byte, or the byte behind the container's `close`. Null and no more for
// anything else.
inline Step NextEntry(const char* p, const char* end, char close) noexcept {
    // As nearly all devices write, by compares: a place that a guess tells is known before the bytes are.
    if (end - p > 2) [[likely]] {
        if (*p == ',' && p[1] == ' ' && IsPlainByte(p[2])) return {p + 2, true};
        if (*p == ' ' && p[1] == close) return {p + 2, false};
    }
    for (;;) {
        if (p == end) return {nullptr, false};
        if (*p == ',') break;
        if (*p == close) return {p + 1, false};
        const char* const next = SkipBlanks(p, end);
        if (next == p) return {nullptr, false};
        p = next;
    }
    p = SkipBlanks(p + 1, end);
    return p == end ? Step{nullptr, false} : Step{p, true};
}
// Behind the opening bracket at `p`, as above.
inline Step FirstEntry(const char* p, const char* end, char close) noexcept {
    if (end - p > 2 && p[1] == ' ' && IsPlainByte(p[2])) [[likely]]
        return p[2] == close ? Step{p + 3, false} : Step{p + 2, true};
    p = SkipBlanks(p + 1, end);
    if (p == end) return {nullptr, false};
    return *p == close ? Step{p + 1, false} : Step{p, true};
}

// Reads the array of two integers at `p`, of up to seven digits each and with a blank at most beside each. The byte
// behind it; null for any other value.
inline const char* ReadShortPair(const char* p, const char* end, std::int32_t& x, std::int32_t& y) noexcept {
    constexpr std::ptrdiff_t kMost = 2 * (1 + 1 + 1 + FewDigits::kRoom) + 2;
    if (end - p < kMost || *p != '[') return nullptr;
    const auto readOne = [&p](std::int32_t& number, char close) {
        ++p;
        if (*p == ' ') [[likely]]
            ++p;
        const bool isNegative = *p == '-';
        if (isNegative) [[unlikely]]
            ++p;
        std::int32_t magnitude = *p - '0';
        const auto isDigit = [](char byte) { return static_cast<unsigned char>(byte - '0') < 10; };
        if (isDigit(*p) && !isDigit(p[1])) {
            ++p;
        } else {
            const FewDigits few = ReadFewDigits(p);
            if (few.count - 1 >= FewDigits::kRoom - 1) return false;
            magnitude = static_cast<std::int32_t>(few.number);
            p += few.count;
        }
        number = isNegative ? -magnitude : magnitude;
        if (*p == close) return true;
        return *p == ' ' && *++p == close;
    };
    return readOne(x, ',') && readOne(y, ']') ? p + 1 : nullptr;
}

// Behind a key's closing quote: the value's first byte; null when no colon and value follow.
inline const char* ValueBehindKey(const char* p, const char* end) noexcept {
    if (end - p > 3 && *p == ' ' && p[1] == ':' && p[2] == ' ' && IsPlainByte(p[3])) [[likely]]
        return p + 3;
    if (p != end && *p == ' ') ++p;
    if (p == end || *p != ':') [[unlikely]] {
        p = SkipBlanksAndComments(p, end);
        if (p == end || *p != ':') return nullptr;
    }
    p = SkipBlanks(p + 1, end);
    return p == end ? nullptr : p;
}

// Judges the value at `p` as Parse would. The byte behind it; null when it is no JSON, or when it lies deeper than
// kSkipDepth containers and whoever asks has to make a document of it.
inline constexpr int kSkipDepth = 512;
const char* SkipValue(const char* p, const char* end, Arena& arena) noexcept;

} // namespace orrery::json
