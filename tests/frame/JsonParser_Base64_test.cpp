#include "frame/JsonParserSupport.h"

#include <random>

namespace orrery {
namespace {

std::string Encode(std::string_view bytes) {
    std::string out(JsonParser::Base64EncodedSize(bytes.size()), '#');
    const std::size_t count =
        JsonParser::Base64Encode(out.data(), reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    EXPECT_EQ(count, out.size()) << "the terminator counts";
    EXPECT_EQ(out.back(), '\0');
    return out.substr(0, count - 1);
}

std::string Decode(std::string_view text) {
    std::string out(JsonParser::Base64DecodedSize(text), '#');
    const std::size_t count = JsonParser::Base64Decode(reinterpret_cast<unsigned char*>(out.data()), text);
    EXPECT_LT(count, out.size());
    EXPECT_EQ(out[count], '\0');
    return out.substr(0, count);
}

// The test vectors that RFC 4648 prints.
TEST(Base64, KnownTexts) {
    const std::pair<std::string_view, std::string_view> kPairs[] = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="},
        {"fooba", "Zm9vYmE="},
        {"foobar", "Zm9vYmFy"},
        {"\xFB\xFF\xBF", "+/+/"},
    };
    for (const auto& [bytes, text] : kPairs) {
        EXPECT_EQ(Encode(bytes), text);
        EXPECT_EQ(Decode(text), bytes);
    }
}

TEST(Base64, Sizes) {
    EXPECT_EQ(JsonParser::Base64EncodedSize(0), 1u);
    EXPECT_EQ(JsonParser::Base64EncodedSize(1), 5u);
    EXPECT_EQ(JsonParser::Base64EncodedSize(3), 5u);
    EXPECT_EQ(JsonParser::Base64EncodedSize(4), 9u);
    EXPECT_EQ(JsonParser::Base64EncodedSize(1024), 1369u); // 342 groups
    EXPECT_EQ(JsonParser::Base64DecodedSize(""), 1u);
    EXPECT_EQ(JsonParser::Base64DecodedSize("A"), 4u);
    EXPECT_EQ(JsonParser::Base64DecodedSize("AAAA"), 4u);
    EXPECT_EQ(JsonParser::Base64DecodedSize("AAAAA"), 7u);
    EXPECT_EQ(JsonParser::Base64DecodedSize("Zg=="), 4u) << "padding does not count";
    EXPECT_EQ(JsonParser::Base64DecodedSize("AAAA\nAAAA"), 4u);
}

TEST(Base64, DecodingEndsAtTheFirstForeignCharacter) {
    EXPECT_EQ(Decode("Zm9v!YmFy"), "foo");
    EXPECT_EQ(Decode("Zm9v\nYmFy"), "foo");
    EXPECT_EQ(Decode("=Zm9v"), "");
    EXPECT_EQ(Decode("Zm9vYg"), "foob") << "no padding needed";
    EXPECT_EQ(Decode("Zm9vYmE"), "fooba");
    EXPECT_EQ(Decode("Zm9vY"), "foo") << "one character is no byte";
    EXPECT_EQ(Decode("Z"), "");
    EXPECT_EQ(Decode(std::string_view("Zm9v\0Zm9v", 9)), "foo");
    EXPECT_EQ(Decode("Zm\xFF"), "f");
    EXPECT_EQ(Decode("Zm8-"), "fo") << "the alphabet of URLs is another one";
}

TEST(Base64, TheWholeAlphabet) {
    std::string bytes; // 0x00 0x10 0x83 ...: the digits 0, 1, 2 ... 63 in order
    for (unsigned digit = 0; digit < 64; digit += 4) {
        const unsigned group = digit << 18 | (digit + 1) << 12 | (digit + 2) << 6 | (digit + 3);
        bytes += static_cast<char>(group >> 16);
        bytes += static_cast<char>(group >> 8);
        bytes += static_cast<char>(group);
    }
    constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    EXPECT_EQ(Encode(bytes), kAlphabet);
    EXPECT_EQ(Decode(kAlphabet), bytes);
    for (int c = 0; c < 256; ++c) {
        const char letter = static_cast<char>(c);
        const bool belongs = letter != '\0' && kAlphabet.find(letter) != std::string_view::npos;
        EXPECT_EQ(JsonParser::Base64DecodedSize({&letter, 1}), belongs ? 4u : 1u) << c;
    }
}

TEST(Base64, EveryLengthComesBack) {
    std::mt19937 random(64);
    for (std::size_t size = 0; size <= 1024; ++size) {
        std::string bytes(size, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        ASSERT_EQ(Decode(Encode(bytes)), bytes);
    }
}

} // namespace
} // namespace orrery
