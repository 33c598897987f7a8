#include "frame/json/Number.h"

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

} // namespace

const char* NumberTokenEnd(const char* token, const char* end) noexcept {
    while (token != end && kNumberByte[static_cast<unsigned char>(*token)])
        ++token;
    return token;
}

const char* ReadReal(const char* token, const char* end, void* at) noexcept {
    double number = 0.0;
    if (const char* const after = ReadShortDecimal(token, end, number)) {
        Value::PutReal(at, number);
        return after;
    }
    const char* const tokenEnd = NumberTokenEnd(token, end);
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
