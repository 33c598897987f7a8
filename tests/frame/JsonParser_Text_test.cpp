#include "frame/JsonParserSupport.h"

#include <cstring>
#include <limits>

namespace orrery {
namespace {

using test::ParsedText;
using test::StringValue;
using test::TextOf;

class JsonParserText : public testing::Test {
  protected:
    StackArena<256> arena_;
    LocalText text_{arena_}; // the test program runs in the C locale: a bounded copy
    JsonParser parser_{text_};
};

TEST_F(JsonParserText, AWrongTypeClearsTheField) {
    const std::string cleared(64, '\0');
    for (const char* text : {"5", "true", "null", "1.5", "[ \"a\" ]", "{ \"a\" : \"b\" }"}) {
        const ParsedText document(text);
        std::string field(64, '#');
        EXPECT_FALSE(parser_.GetJsonString(document.root(), field.data(), 64, true)) << text;
        EXPECT_EQ(field, cleared) << text;
        field.assign(64, '#');
        EXPECT_FALSE(parser_.GetJsonString(document.root(), field.data(), 64, false)) << text;
        EXPECT_EQ(field, cleared) << text;
    }
    const ParsedText named("{ \"Name\" : 5 }");
    std::string field(64, '#');
    EXPECT_FALSE(parser_.GetJsonString(named.root()["Name"], field.data(), 64, true));
    EXPECT_EQ(field, cleared);
}

TEST_F(JsonParserText, ALongTextIsCutBeforeTheTerminator) {
    const std::string name(70, 'n');
    for (const bool convert : {true, false}) {
        std::string field(70, '#');
        EXPECT_TRUE(parser_.GetJsonString(StringValue(name), field.data(), 64, convert));
        EXPECT_EQ(field, std::string(63, 'n') + '\0' + "######");
    }
}

TEST_F(JsonParserText, EveryByteOfTheCapacityIsCleared) {
    for (const bool convert : {true, false}) {
        std::string field(20, '#');
        EXPECT_TRUE(parser_.GetJsonString(StringValue("ab"), field.data(), 16, convert));
        EXPECT_EQ(field, "ab" + std::string(14, '\0') + "####");
        field.assign(20, '#');
        EXPECT_TRUE(parser_.GetJsonString(StringValue(""), field.data(), 16, convert));
        EXPECT_EQ(field, std::string(16, '\0') + "####");
        field.assign(20, '#');
        EXPECT_TRUE(parser_.GetJsonString(StringValue("ab"), field.data(), 1, convert));
        EXPECT_EQ(field, '\0' + std::string(19, '#'));
        EXPECT_TRUE(parser_.GetJsonString(StringValue("ab"), field.data(), 0, convert));
        EXPECT_TRUE(parser_.GetJsonString(StringValue("ab"), nullptr, 16, convert));
    }
}

TEST_F(JsonParserText, AnAbsentTextLeavesTheFieldIfPresentIsAsked) {
    const ParsedText document("{ \"A\" : \"x\", \"B\" : null, \"C\" : 5 }");
    char field[4] = {'#', '#', '#', '#'};
    EXPECT_FALSE(parser_.GetJsonStringIfPresent(document.root()["B"], field, 4));
    EXPECT_FALSE(parser_.GetJsonStringIfPresent(document.root()["Z"], field, 4));
    EXPECT_EQ(std::memcmp(field, "####", 4), 0);
    EXPECT_FALSE(parser_.GetJsonStringIfPresent(document.root()["A"], nullptr, 4));
    EXPECT_TRUE(parser_.GetJsonStringIfPresent(document.root()["A"], field, 4));
    EXPECT_EQ(std::memcmp(field, "x\0\0", 4), 0);
    EXPECT_FALSE(parser_.GetJsonStringIfPresent(document.root()["C"], field, 4));
    EXPECT_EQ(std::memcmp(field, "\0\0\0", 4), 0) << "present, but no text";
}

TEST_F(JsonParserText, BoundedTakesAtMostTheLimit) {
    char field[8];
    std::memset(field, '#', sizeof field);
    EXPECT_TRUE(parser_.GetJsonStringBounded(StringValue("abcdef"), field, 4, sizeof field));
    EXPECT_EQ(std::memcmp(field, "abcd\0###", 8), 0);
    std::memset(field, '#', sizeof field);
    EXPECT_TRUE(parser_.GetJsonStringBounded(StringValue("abcdef"), field, 6, 4));
    EXPECT_EQ(std::memcmp(field, "abc\0####", 8), 0) << "never past the room";
    std::memset(field, '#', sizeof field);
    EXPECT_TRUE(parser_.GetJsonStringBounded(StringValue(""), field, 6, 8));
    EXPECT_FALSE(parser_.GetJsonStringBounded(ParsedText("7").root(), field, 6, 8));
    EXPECT_FALSE(parser_.GetJsonStringBounded(ParsedText("true").root(), field, 6, 8));
    EXPECT_EQ(std::memcmp(field, "########", 8), 0);
}

TEST_F(JsonParserText, WritesTextAsItStands) {
    for (const bool convert : {true, false}) {
        const auto written = [&](const char* source, std::size_t capacity) {
            return TextOf(
                [&](json::TextWriter& out) { EXPECT_TRUE(parser_.SetJsonString(out, source, capacity, convert)); });
        };
        EXPECT_EQ(written("Door 1", 16), "\"Door 1\"");
        EXPECT_EQ(written("a/b\n", 16), "\"a\\/b\\n\"");
        EXPECT_EQ(written("", 16), "\"\"") << "an empty text is written, not left out";
        EXPECT_EQ(written("\xE4\xB8\xAD", 16), "\"\xE4\xB8\xAD\"");
        EXPECT_EQ(written("abcdef", 3), "\"abc\"") << "no terminator within the capacity";
        EXPECT_EQ(
            TextOf([&](json::TextWriter& out) { EXPECT_FALSE(parser_.SetJsonString(out, nullptr, 16, convert)); }), "");
    }
}

// ---- EqualsFolded ----

bool EqualsOneByOne(const std::string& a, const std::string& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const auto small = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
        if (small(a[i]) != small(b[i])) return false;
    }
    return true;
}

TEST(EqualsFolded, FoldsAsciiLettersAlone) {
    EXPECT_TRUE(EqualsFolded("", ""));
    EXPECT_TRUE(EqualsFolded("VideoIn", "VIDEOin"));
    EXPECT_TRUE(EqualsFolded("SmartMotionDetect", "smartmotiondetect"));
    EXPECT_FALSE(EqualsFolded("VideoIn", "VideoOut"));
    EXPECT_FALSE(EqualsFolded("VideoIn", "VideoI"));
    EXPECT_FALSE(EqualsFolded("\xC4\xC4\xC4\xC4\xC4\xC4\xC4\xC4", "\xE4\xE4\xE4\xE4\xE4\xE4\xE4\xE4"));
}

TEST(EqualsFolded, AgreesWithOneByOneForEveryPairOfBytesAtEveryPlace) {
    for (const std::size_t size : {1u, 7u, 8u, 9u, 16u, 17u}) {
        for (std::size_t at = 0; at < size; ++at) {
            std::string a(size, 'q'), b(size, 'Q');
            for (int x = 0; x < 256; ++x) {
                for (int y = 0; y < 256; ++y) {
                    a[at] = static_cast<char>(x);
                    b[at] = static_cast<char>(y);
                    ASSERT_EQ(EqualsFolded(a, b), EqualsOneByOne(a, b)) << size << ' ' << at << ' ' << x << ' ' << y;
                }
            }
        }
    }
}

} // namespace
} // namespace orrery
