#include "frame/json/Number.h"

#include <cfloat>
#include <charconv>
#include <limits>

namespace orrery::json {

namespace {

bool IsDigit(char byte) noexcept {
    return byte >= '0' && byte <= '9';
}

// A number out of a double's range: whether it is too large, as opposed to too near zero. Only then does anyone have to
// know the place of its leading digit.
bool IsHuge(const char* p, const char* end) noexcept {
    if (*p == '-') ++p;
    constexpr long long kFar = 1LL << 40; // beyond any exponent, and far from the end of 64 bits
    long long place = 0;                  // decimal exponent of the leading digit
    bool point = false;
    bool leading = false;
    for (; p != end && (IsDigit(*p) || *p == '.'); ++p) {
        if (*p == '.') {
            point = true;
        } else if (leading) {
            place += point ? 0 : 1;
        } else {
            leading = *p != '0';
            place -= point ? 1 : 0;
        }
    }
    if (p != end) ++p; // e or E
    const bool negative = p != end && *p == '-';
    if (p != end && (*p == '-' || *p == '+')) ++p;
    long long exponent = 0;
    for (; p != end && IsDigit(*p); ++p) {
        if (exponent < kFar) exponent = exponent * 10 + (*p - '0');
    }
    return place + (negative ? -exponent : exponent) > 0;
}

#if FLT_EVAL_METHOD == 0
// Digits, a point, digits: up to 15 of them are exact in a double, and so is the power of ten, so that one division
// rounds right. That is nearly every real a device sends. Null when the token is of another form.
const char* ReadShortDecimal(const char* token, const char* end, void* at) noexcept {
    static constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                         1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    constexpr std::ptrdiff_t kDigits = 15;
    const char* p = token;
    const bool negative = *p == '-';
    if (negative) ++p;
    const char* const begin = p;
    std::uint64_t digits = 0;
    while (p != end && IsDigit(*p) && p - begin <= kDigits)
        digits = digits * 10 + static_cast<unsigned>(*p++ - '0');
    if (p == begin || p == end || *p != '.') return nullptr;
    const char* const point = p++;
    while (p != end && IsDigit(*p) && p - begin <= kDigits + 1)
        digits = digits * 10 + static_cast<unsigned>(*p++ - '0');
    if (p - begin > kDigits + 1 || (p != end && kNumberByte[static_cast<unsigned char>(*p)])) return nullptr;
    const double magnitude = static_cast<double>(digits) / kPowers[p - point - 1];
    Value::PutReal(at, negative ? -magnitude : magnitude);
    return p;
}
#endif

} // namespace

const char* NumberTokenEnd(const char* token, const char* end) noexcept {
    while (token != end && kNumberByte[static_cast<unsigned char>(*token)])
        ++token;
    return token;
}

const char* ReadReal(const char* token, const char* end, void* at) noexcept {
#if FLT_EVAL_METHOD == 0
    if (const char* const after = ReadShortDecimal(token, end, at)) return after;
#endif
    const char* const tokenEnd = NumberTokenEnd(token, end);
    double number = 0.0;
    const auto [stop, failure] = std::from_chars(token, tokenEnd, number);
    if (failure == std::errc::invalid_argument) return nullptr;
    if (failure == std::errc::result_out_of_range) {
        number = IsHuge(token, stop) ? std::numeric_limits<double>::infinity() : 0.0;
        if (*token == '-') number = -number;
    }
    Value::PutReal(at, number);
    return tokenEnd;
}

} // namespace orrery::json
