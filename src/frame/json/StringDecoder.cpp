#include "frame/json/StringDecoder.h"

namespace orrery::json {

namespace {

constexpr const char* kEmptyEscape = "Empty escape sequence in string";
constexpr const char* kBadEscape = "Bad escape sequence in string";
constexpr const char* kFourDigits = "Bad unicode escape sequence in string: four digits expected.";
constexpr const char* kHexDigit = "Bad unicode escape sequence in string: hexadecimal digit expected.";

constexpr std::uint32_t kNoCodeUnit = 0xFFFFFFFF;

bool IsHighSurrogate(std::uint32_t unit) noexcept {
    return unit >= 0xD800 && unit < 0xDC00;
}
bool IsLowSurrogate(std::uint32_t unit) noexcept {
    return unit >= 0xDC00 && unit < 0xE000;
}

// The four digits behind \u, of which `p` is the first. On a failure `p` is where the digit is missing.
std::uint32_t ReadCodeUnit(const char*& p, const char* close, const char*& message) noexcept {
    if (close - p < 4) {
        message = kFourDigits;
        return kNoCodeUnit;
    }
    std::uint32_t unit = 0;
    for (const char* const after = p + 4; p != after; ++p) {
        const char byte = *p;
        unit *= 16;
        if (byte >= '0' && byte <= '9') {
            unit += static_cast<std::uint32_t>(byte - '0');
        } else if (byte >= 'a' && byte <= 'f') {
            unit += static_cast<std::uint32_t>(byte - 'a' + 10);
        } else if (byte >= 'A' && byte <= 'F') {
            unit += static_cast<std::uint32_t>(byte - 'A' + 10);
        } else {
            message = kHexDigit;
            return kNoCodeUnit;
        }
    }
    return unit;
}

// A surrogate without its other half is written like any code point: in three bytes.
char* WriteUtf8(std::uint32_t codePoint, char* out) noexcept {
    const auto put = [&out](std::uint32_t byte) { *out++ = static_cast<char>(static_cast<unsigned char>(byte)); };
    if (codePoint < 0x80) {
        put(codePoint);
    } else if (codePoint < 0x800) {
        put(0xC0 | codePoint >> 6);
        put(0x80 | (codePoint & 0x3F));
    } else if (codePoint < 0x10000) {
        put(0xE0 | codePoint >> 12);
        put(0x80 | (codePoint >> 6 & 0x3F));
        put(0x80 | (codePoint & 0x3F));
    } else {
        put(0xF0 | codePoint >> 18);
        put(0x80 | (codePoint >> 12 & 0x3F));
        put(0x80 | (codePoint >> 6 & 0x3F));
        put(0x80 | (codePoint & 0x3F));
    }
    return out;
}

// The byte that a one-letter escape stands for, or 0.
char SimpleEscape(char letter) noexcept {
    switch (letter) {
    case '"':
    case '\\':
    case '/':
        return letter;
    case 'b':
        return '\b';
    case 'f':
        return '\f';
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    default:
        return 0;
    }
}

} // namespace

DecodedString DecodeString(const char* begin, const char* backslash, const char* end, Arena& arena) noexcept {
    DecodedString result;
    // First the closing quote: the string can't grow by decoding, so its length here is room enough.
    const char* close = backslash;
    while (close != end && *close == '\\') {
        if (end - close < 2) {
            result.stop = end;
            result.message = kEmptyEscape;
            return result;
        }
        close = FindQuoteOrBackslash(close + 2, end);
    }
    if (close == end) {
        result.stop = end;
        result.unterminated = true;
        return result;
    }
    const auto length = static_cast<std::size_t>(close - begin);
    char* const decoded = arena.Array<char>(length + DecodedString::kSlack);
    if (decoded == nullptr) {
        result.stop = close;
        result.exhausted = true;
        return result;
    }
    char* out = decoded;
    const char* cut = nullptr; // a text ends at its first terminator
    const char* p = begin;
    const char* stretch = backslash;
    for (;;) {
        std::memcpy(out, p, static_cast<std::size_t>(stretch - p));
        out += stretch - p;
        p = stretch;
        if (p == close) break;
        const char letter = p[1];
        if (letter == 'u') {
            p += 2;
            std::uint32_t unit = ReadCodeUnit(p, close, result.message);
            if (IsHighSurrogate(unit) && close - p >= 6 && p[0] == '\\' && p[1] == 'u') {
                const char* pair = p + 2;
                const char* ignored = nullptr; // the other half fails when its own turn comes
                const std::uint32_t low = ReadCodeUnit(pair, close, ignored);
                if (IsLowSurrogate(low)) {
                    unit = 0x10000 + ((unit & 0x3FF) << 10) + (low & 0x3FF);
                    p = pair;
                }
            }
            if (unit == 0 && cut == nullptr) cut = out;
            if (unit != kNoCodeUnit) out = WriteUtf8(unit, out);
        } else {
            ++p;
            const char byte = SimpleEscape(letter);
            if (byte == 0) {
                result.message = kBadEscape;
            } else {
                *out++ = byte;
                ++p;
            }
        }
        if (result.message != nullptr) {
            result.stop = p;
            return result;
        }
        stretch = FindQuoteOrBackslash(p, close);
        // Within the string only a backslash stops the search.
    }
    std::memset(out, 0, DecodedString::kSlack);
    result.text = {decoded, static_cast<std::size_t>((cut != nullptr ? cut : out) - decoded)};
    result.stop = close + 1;
    return result;
}

} // namespace orrery::json
