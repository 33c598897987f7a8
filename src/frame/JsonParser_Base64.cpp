#include "frame/JsonParser.h"

namespace orrery {

namespace {

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr unsigned char kNoDigit = 64; // ends a text, as padding does

constexpr std::array<unsigned char, 256> MakeDigits() noexcept {
    std::array<unsigned char, 256> digits{};
    for (unsigned char& digit : digits)
        digit = kNoDigit;
    for (unsigned char i = 0; i < 64; ++i)
        digits[static_cast<unsigned char>(kAlphabet[i])] = i;
    return digits;
}

constexpr std::array<unsigned char, 256> kDigits = MakeDigits();

constexpr unsigned DigitOf(char letter) noexcept {
    return kDigits[static_cast<unsigned char>(letter)];
}

std::size_t LeadingRun(std::string_view text) noexcept {
    std::size_t count = 0;
    while (count < text.size() && DigitOf(text[count]) != kNoDigit)
        ++count;
    return count;
}

} // namespace

std::size_t JsonParser::Base64EncodedSize(std::size_t size) noexcept {
    return (size + 2) / 3 * 4 + 1;
}

std::size_t JsonParser::Base64Encode(char* output, const unsigned char* input, std::size_t size) noexcept {
    char* out = output;
    const auto put = [&out](unsigned bits) noexcept { *out++ = kAlphabet[bits & 63]; };
    for (; size >= 3; size -= 3, input += 3) {
        const unsigned group = static_cast<unsigned>(input[0]) << 16 | static_cast<unsigned>(input[1]) << 8 | input[2];
        put(group >> 18);
        put(group >> 12);
        put(group >> 6);
        put(group);
    }
    if (size != 0) {
        const unsigned second = size == 2 ? input[1] : 0u;
        const unsigned group = static_cast<unsigned>(input[0]) << 16 | second << 8;
        put(group >> 18);
        put(group >> 12);
        if (size == 2) {
            put(group >> 6);
        } else {
            *out++ = '=';
        }
        *out++ = '=';
    }
    *out++ = '\0';
    return static_cast<std::size_t>(out - output);
}

std::size_t JsonParser::Base64DecodedSize(std::string_view text) noexcept {
    return (LeadingRun(text) + 3) / 4 * 3 + 1;
}

std::size_t JsonParser::Base64Decode(unsigned char* output, std::string_view text) noexcept {
    unsigned char* out = output;
    const char* next = text.data();
    std::size_t left = LeadingRun(text);
    for (; left >= 4; left -= 4, next += 4) {
        const unsigned group =
            DigitOf(next[0]) << 18 | DigitOf(next[1]) << 12 | DigitOf(next[2]) << 6 | DigitOf(next[3]);
        *out++ = static_cast<unsigned char>(group >> 16);
        *out++ = static_cast<unsigned char>(group >> 8);
        *out++ = static_cast<unsigned char>(group);
    }
    // A single character left over holds no whole byte.
    if (left >= 2) *out++ = static_cast<unsigned char>(DigitOf(next[0]) << 2 | DigitOf(next[1]) >> 4);
    if (left == 3) *out++ = static_cast<unsigned char>(DigitOf(next[1]) << 4 | DigitOf(next[2]) >> 2);
    *out = '\0';
    return static_cast<std::size_t>(out - output);
}

} // namespace orrery
