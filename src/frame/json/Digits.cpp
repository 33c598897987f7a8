#include "frame/json/Digits.h"

#include "frame/json/Scan.h"

#include <bit>
#include <charconv>
#include <cmath>

namespace orrery::json {

namespace {

// `digits` of a real are its 16 significant ones, of which the first stands in front of the decimal point when the
// decimal exponent is 0.
constexpr int kPrecision = 16;
constexpr double kWholeLimit = 1e9; // numbers of whole sixteenths below it are laid out without a search for digits
constexpr char kSixteenths[16][4] = {
    {'0', '0', '0', '0'}, {'0', '6', '2', '5'}, {'1', '2', '5', '0'}, {'1', '8', '7', '5'},
    {'2', '5', '0', '0'}, {'3', '1', '2', '5'}, {'3', '7', '5', '0'}, {'4', '3', '7', '5'},
    {'5', '0', '0', '0'}, {'5', '6', '2', '5'}, {'6', '2', '5', '0'}, {'6', '8', '7', '5'},
    {'7', '5', '0', '0'}, {'8', '1', '2', '5'}, {'8', '7', '5', '0'}, {'9', '3', '7', '5'},
};

[[maybe_unused]] char* PutFour(char* at, std::uint32_t below10000) noexcept {
    return PutPair(PutPair(at, below10000 / 100), below10000 % 100);
}
constexpr bool kIsLittle = std::endian::native == std::endian::little;

// Eight digits at once, the first lowest: the number is halved into fours, pairs and single digits, each in a lane of
// its own.
std::uint64_t EightDigits(std::uint32_t number) noexcept {
    const std::uint64_t fours = number / 10000 | std::uint64_t{number % 10000} << 32;
    const std::uint64_t hundreds = (fours * 10486 >> 20) & 0x0000007F0000007F; // a hundredth of 2^20, and a little more
    const std::uint64_t pairs = hundreds | (fours - hundreds * 100) << 16;
    const std::uint64_t tens = (pairs * 103 >> 10) & 0x000F000F000F000F;
    return (tens | (pairs - tens * 10) << 8) + 0x3030303030303030;
}
// The same of two numbers.
struct SixteenDigits {
    std::uint64_t first, last;

    SixteenDigits(std::uint32_t one, std::uint32_t other) noexcept {
#if ORRERY_SSE2
        const __m128i numbers = _mm_set_epi32(0, static_cast<int>(other), 0, static_cast<int>(one));
        const __m128i tenThousandth = _mm_set1_epi32(static_cast<int>(0xD1B71759)); // of 2^45, and a little more
        const __m128i high = _mm_srli_epi64(_mm_mul_epu32(numbers, tenThousandth), 45);
        const __m128i low = _mm_sub_epi32(numbers, _mm_mul_epu32(high, _mm_set1_epi32(10000)));
        const __m128i fours = _mm_or_si128(high, _mm_slli_epi64(low, 32));
        const __m128i hundreds = _mm_srli_epi16(_mm_mulhi_epu16(fours, _mm_set1_epi16(5243)), 3); // a hundredth of 2^19
        const __m128i below = _mm_sub_epi16(fours, _mm_mullo_epi16(hundreds, _mm_set1_epi16(100)));
        const __m128i pairs = _mm_or_si128(hundreds, _mm_slli_epi32(below, 16));
        const __m128i tens = _mm_mulhi_epu16(pairs, _mm_set1_epi16(6554)); // a tenth of 2^16
        const __m128i ones = _mm_sub_epi16(pairs, _mm_mullo_epi16(tens, _mm_set1_epi16(10)));
        const __m128i letters = _mm_add_epi8(_mm_or_si128(tens, _mm_slli_epi16(ones, 8)), _mm_set1_epi8('0'));
        first = static_cast<std::uint64_t>(_mm_cvtsi128_si64(letters));
        last = static_cast<std::uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(letters, letters)));
#else
        first = EightDigits(one);
        last = EightDigits(other);
#endif
    }
};
char* PutWord(char* at, std::uint64_t letters) noexcept {
    std::memcpy(at, &letters, sizeof letters);
    return at + sizeof letters;
}
char* PutEight(char* at, std::uint32_t number) noexcept {
    if constexpr (!kIsLittle) return PutFour(PutFour(at, number / 10000), number % 10000);
    return PutWord(at, EightDigits(number));
}

// Lays the digits out as "%#.16g" does for exponents from -4 to 15. Copies go in whole blocks: `digits` has as many
// bytes again, and what is too much gets overwritten or lies in the room behind.
char* LayOut(const char* digits, int exponent, char* out) noexcept {
    if (exponent < 0) {
        std::memcpy(out, "0.000", 5);
        out += 1 - exponent;
        std::memcpy(out, digits, kPrecision);
        return out + kPrecision;
    }
    const int whole = exponent + 1;
    std::memcpy(out, digits, kPrecision);
    out[whole] = '.';
    std::memcpy(out + whole + 1, digits + whole, kPrecision);
    return out + kPrecision + 1;
}

#if defined(__SIZEOF_INT128__)
// The same for digits in words, the first lowest, and exponents below 7: nothing that was stored is loaded again.
char* LayOutWords(std::uint64_t first, std::uint64_t last, int exponent, char* out) noexcept {
    if (exponent < 0) {
        PutWord(out, 0x3030303030302E30); // "0.000000"
        return PutWord(PutWord(out + 1 - exponent, first), last);
    }
    const int whole = 8 * (exponent + 1); // bits in front of the point
    const std::uint64_t inFront = (std::uint64_t{1} << whole) - 1;
    char* const end = PutWord(PutWord(out + 1, first), last);
    PutWord(out, (first & inFront) | std::uint64_t{'.'} << whole | (first & ~inFront) << 8);
    return end;
}

__extension__ using Wide = unsigned __int128;

constexpr double kLeast = 0x1p-10; // what the powers suffice for
constexpr double kBelow = 0x1p49;  // what has bits behind its point that count
constexpr std::uint64_t kPowers[] = {1,
                                     10,
                                     100,
                                     1000,
                                     10000,
                                     100000,
                                     1000000,
                                     10000000,
                                     100000000,
                                     1000000000,
                                     10000000000,
                                     100000000000,
                                     1000000000000,
                                     10000000000000,
                                     100000000000000,
                                     1000000000000000,
                                     10000000000000000,
                                     100000000000000000,
                                     1000000000000000000,
                                     10000000000000000000u};

// The digits of a number of ordinary size, exactly: its bits times a power of ten, of which the part behind the point
// rounds to the even neighbour at one half.
char* PutOrdinary(char* at, double magnitude) noexcept {
    const auto bits = std::bit_cast<std::uint64_t>(magnitude);
    const int binary = static_cast<int>(bits >> 52) - 1023;
    const std::uint64_t mantissa = (bits & ((std::uint64_t{1} << 52) - 1)) | std::uint64_t{1} << 52;
    const int shift = 52 - binary;        // the number is mantissa / 2^shift; 4 to 62
    int exponent = (binary * 1233) >> 12; // the decimal one or one less: 1233 / 4096 is a little below log10(2)
    std::uint64_t low = 0;                // of the product, whose digits stand above `shift`
    const auto scaled = [&] {
        const Wide product = Wide{mantissa} * kPowers[kPrecision - 1 - exponent];
        low = static_cast<std::uint64_t>(product);
        return static_cast<std::uint64_t>(product >> 64) << (64 - shift) | low >> shift;
    };
    std::uint64_t digits = scaled();
    if (digits >= kPowers[kPrecision]) {
        ++exponent;
        digits = scaled();
    }
    const std::uint64_t rest = low << (64 - shift); // behind the point, highest bit one half
    constexpr std::uint64_t kHalf = std::uint64_t{1} << 63;
    if (rest > kHalf || (rest == kHalf && digits % 2 != 0)) ++digits;
    if (digits == kPowers[kPrecision]) {
        digits = kPowers[kPrecision - 1];
        ++exponent;
    }
    const auto first = static_cast<std::uint32_t>(digits / kPowers[8]);
    const auto last = static_cast<std::uint32_t>(digits % kPowers[8]);
    if (kIsLittle && exponent < 7) {
        const SixteenDigits words(first, last);
        return LayOutWords(words.first, words.last, exponent, at);
    }
    char text[2 * kPrecision];
    PutEight(PutEight(text, first), last);
    std::memset(text + kPrecision, '0', kPrecision);
    return LayOut(text, exponent, at);
}
#endif

} // namespace

char* PutLongDigits(char* at, std::uint32_t number) noexcept {
    const std::uint32_t thousands = number / 1000;
    return PutThree(PutThree(PutDigits(at, thousands / 1000), thousands % 1000), number % 1000);
}

char* PutReal(char* at, double number) noexcept {
    const double magnitude = std::fabs(number);
    if (std::signbit(number)) *at++ = '-';
    // Sizes and coordinates are whole numbers as a rule, and lengths have halves or quarters: zeros fill up their
    // digits.
    if (magnitude < kWholeLimit) {
        const auto whole = static_cast<std::uint32_t>(magnitude);
        const double sixteenths = (magnitude - whole) * 16;
        const auto part = static_cast<std::uint32_t>(sixteenths);
        if (part == sixteenths && (whole != 0 || part == 0)) {
            char* const point = PutDigits(at, whole);
            *point = '.';
            std::memset(point + 1, '0', kPrecision);
            std::memcpy(point + 1, kSixteenths[part], sizeof kSixteenths[part]);
            return at + kPrecision + 1;
        }
    }
#if defined(__SIZEOF_INT128__)
    if (magnitude >= kLeast && magnitude < kBelow) return PutOrdinary(at, magnitude);
#endif
    if (!std::isfinite(number)) {
        std::memcpy(at, std::isnan(number) ? "nan" : "inf", 3);
        return at + 3;
    }
    // d.ddddddddddddddde+dd, rounded right
    char* const end =
        std::to_chars(at, at + kRealRoom - 1, magnitude, std::chars_format::scientific, kPrecision - 1).ptr;
    constexpr int kMark = kPrecision + 1; // of the letter e
    int exponent = 0;
    std::from_chars(at + kMark + 2, end, exponent);
    if (at[kMark + 1] == '-') exponent = -exponent;
    if (exponent < -4 || exponent >= kPrecision) return end;
    char digits[2 * kPrecision] = {};
    digits[0] = at[0];
    std::memcpy(digits + 1, at + 2, kPrecision - 1);
    return LayOut(digits, exponent, at);
}

} // namespace orrery::json
