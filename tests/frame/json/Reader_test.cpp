#include "frame/json/Reader.h"

#include "support/JsonText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <map>
#include <random>
#include <string>

namespace orrery::json {
namespace {

using namespace std::string_literals;
using test::Document;
using test::TextOf;

// The document's text as the writer tells it, or the syntax error.
std::string Read(std::string_view text) {
    const Document document(text);
    if (document.ok) return TextOf(document.root);
    return document.error.message == nullptr ? "(no message)" : document.error.message;
}

std::string ReadString(std::string_view text) {
    const Document document(text);
    EXPECT_TRUE(document.ok) << text;
    EXPECT_TRUE(document.root.isString());
    return std::string(document.root.asString());
}

TEST(Reader, TakesAnyBlanksAndCommentsAtTheUsualSeparators) {
    const std::string due = "{ \"a\" : 1, \"b\" : [ 2, 3 ], \"c\" : true }";
    for (const char* text :
         {R"({ "a" : 1, "b" : [ 2, 3 ], "c" : true })", R"({"a":1,"b":[2,3],"c":true})",
          R"({ "a" :  1,  "b" :  [ 2,  3 ],  "c" :  true })", R"({ "a" : /*x*/ 1, /*y*/ "b" : [ 2, /*z*/ 3 ], //
           "c" : // w
           true })",
          "{ \"a\" : \n1, \n\"b\" : \t[ 2, \t3 ], \r\"c\" : true }"})
        EXPECT_EQ(Read(text), due) << text;
}

// Whatever stands at the end of the text: nothing behind it is looked at.
TEST(Reader, ReadsKeysOfAllLengthsAtTheEndOfTheText) {
    for (std::size_t size = 0; size <= 12; ++size) {
        const std::string key(size, 'k');
        EXPECT_EQ(Read("{\"" + key + "\":0}"), "{ \"" + key + "\" : 0 }");
        EXPECT_EQ(Read("{\"z\":1,\"" + key + "\":0}"), "{ \"" + key + "\" : 0, \"z\" : 1 }");
        EXPECT_EQ(Read("{\"" + key + "k\":1,\"" + key + "\":0}"), "{ \"" + key + "\" : 0, \"" + key + "k\" : 1 }");
    }
}

TEST(Reader, ReadsAnyValueAsRoot) {
    EXPECT_EQ(Read("null"), "null");
    EXPECT_EQ(Read("true"), "true");
    EXPECT_EQ(Read("false"), "false");
    EXPECT_EQ(Read("12"), "12");
    EXPECT_EQ(Read("\"a\""), "\"a\"");
    EXPECT_EQ(Read("[]"), "[  ]");
    EXPECT_EQ(Read("{}"), "{  }");
    EXPECT_EQ(Read("[[],{},[ ],{ }]"), "[ [  ], {  }, [  ], {  } ]");
    EXPECT_EQ(Read(R"({"b":[1,{"c":null}],"a":"x"})"), R"({ "a" : "x", "b" : [ 1, { "c" : null } ] })");
}

TEST(Reader, IgnoresWhatFollowsTheFirstValue) {
    EXPECT_EQ(Read("{}}"), "{  }");
    EXPECT_EQ(Read("[1] garbage"), "[ 1 ]");
    EXPECT_EQ(Read("truefalse"), "true");
    EXPECT_EQ(Read("nullx"), "null");
    EXPECT_EQ(Read("12abc"), "12");
    EXPECT_EQ(Read("\"a\"\""), "\"a\"");
    EXPECT_EQ(Read("1 /*"), "1");
}

TEST(Reader, SkipsWhiteSpaceBetweenTokens) {
    EXPECT_EQ(Read(" \t\r\n{ \t\"a\"\r\n:\n\n1 ,\t\"b\"  :  [ \n1\r,\t 2 ] \n} "), R"({ "a" : 1, "b" : [ 1, 2 ] })");
    for (std::size_t blanks = 0; blanks < 70; ++blanks) {
        for (const char blank : {' ', '\t', '\r', '\n'}) {
            const std::string space(blanks, blank);
            EXPECT_EQ(Read(space + "[" + space + "1" + space + "," + space + "2" + space + "]"), "[ 1, 2 ]");
        }
    }
    for (const char other : {'\v', '\f', '\0', '\xA0'}) {
        EXPECT_EQ(Read("["s + other + "1]"), "Syntax error: value, object or array expected.");
    }
}

TEST(Reader, SkipsCommentsBetweenAnyTwoTokens) {
    EXPECT_EQ(Read("/**/ // x\n /* { */ 1"), "1");
    EXPECT_EQ(Read("//\r1"), "1");
    EXPECT_EQ(Read("// a\n//b\r\n1"), "1");
    EXPECT_EQ(Read("/***/1"), "1");
    EXPECT_EQ(Read("/* * / **/1"), "1");
    EXPECT_EQ(Read("/*/*/1"), "1");
    EXPECT_EQ(Read("{/*1*/\"a\"/*2*/:/*3*/1/*4*/,/*5*/\"b\"//6\n:2//7\n}"), R"({ "a" : 1, "b" : 2 })");
    EXPECT_EQ(Read("[/*1*/1/*2*/,/*3*/2/*4*/]"), "[ 1, 2 ]");
    EXPECT_EQ(Read("[/**/]"), "[  ]");
    EXPECT_EQ(Read("{//\n}"), "{  }");
    EXPECT_EQ(Read("\"/* text */ // too\""), R"("\/* text *\/ \/\/ too")");
}

struct Failure {
    std::string_view text;
    const char* message;
    std::size_t offset;
};

constexpr const char* kValue = "Syntax error: value, object or array expected.";
constexpr const char* kArray = "Missing ',' or ']' in array declaration";
constexpr const char* kColon = "Missing ':' after object member name";
constexpr const char* kObject = "Missing ',' or '}' in object declaration";
constexpr const char* kName = "Missing '}' or object member name";
constexpr const char* kEmptyEscape = "Empty escape sequence in string";
constexpr const char* kBadEscape = "Bad escape sequence in string";
constexpr const char* kFourDigits = "Bad unicode escape sequence in string: four digits expected.";
constexpr const char* kHexDigit = "Bad unicode escape sequence in string: hexadecimal digit expected.";
constexpr const char* kNumber = "' is not a number.";

TEST(Reader, TellsWhyAndWhereATextIsNoJson) {
    const Failure failures[] = {
        {"", kValue, 0},
        {"   ", kValue, 3},
        {"x", kValue, 0},
        {"}", kValue, 0},
        {"]", kValue, 0},
        {",", kValue, 0},
        {":", kValue, 0},
        {"'a'", kValue, 0},
        {"tru", kValue, 0},
        {"True", kValue, 0},
        {"falsy", kValue, 0},
        {"nul", kValue, 0},
        {"NaN", kValue, 0},
        {"+1", kValue, 0},
        {".5", kValue, 0},
        {"\xEF\xBB\xBF{}", kValue, 0},
        {"/", kValue, 0},
        {"/x", kValue, 0},
        {"/* never", kValue, 0},
        {" /*/", kValue, 1},
        {"/* *", kValue, 0},
        {"// only", kValue, 7},
        {"\"abc", kValue, 4},
        {"\"abc\\\"", kValue, 6},
        {"[", kValue, 1},
        {"[,", kValue, 1},
        {"[1,]", kValue, 3},
        {"[1,,2]", kValue, 3},
        {"[1", kArray, 2},
        {"[1 2]", kArray, 3},
        {"[1}", kArray, 2},
        {"[1:2]", kArray, 2},
        {"[truex]", kArray, 5},
        {"[12a]", kArray, 3},
        {"[1/*", kArray, 2},
        {"[[1]", kArray, 4},
        {"{", kName, 1},
        {"{1:2}", kName, 1},
        {"{a:1}", kName, 1},
        {"{,", kName, 1},
        {"{\"a", kName, 3},
        {"{\"a\":1,}", kName, 7},
        {"{\"\":1,}", kName, 6},
        {"{\"a\":1,", kName, 7},
        {"{\"a\":1,/*}", kName, 7},
        {"{\"a\"", kColon, 4},
        {"{\"a\"}", kColon, 4},
        {"{\"a\" 1}", kColon, 5},
        {"{\"a\",1}", kColon, 4},
        {"{\"a\":", kValue, 5},
        {"{\"a\":}", kValue, 5},
        {"{\"a\":,", kValue, 5},
        {"{\"a\":1", kObject, 6},
        {"{\"a\":1]", kObject, 6},
        {"{\"a\":1 \"b\":2}", kObject, 7},
        {"{\"a\":1:", kObject, 6},
        {"\"\\", kEmptyEscape, 2},
        {"\"a\\n\\", kEmptyEscape, 5},
        {"{\"\\", kEmptyEscape, 3},
        {"\"\\x\"", kBadEscape, 2},
        {"\"ab\\n\\'\"", kBadEscape, 6},
        {"\"\\U0041\"", kBadEscape, 2},
        {"{\"\\q\":1}", kBadEscape, 3},
        {"\"\\u\"", kFourDigits, 3},
        {"\"\\u004\"", kFourDigits, 3},
        {"\"a\\u1x\"", kFourDigits, 4},
        {"{\"\\u12\":1}", kFourDigits, 4},
        {"\"\\u00g1\"", kHexDigit, 5},
        {"\"\\u 041\"", kHexDigit, 3},
        {"\"\\u004/\"", kHexDigit, 6},
        {"\"\\u004:\"", kHexDigit, 6},
        {"\"\\u004@\"", kHexDigit, 6},
        {"\"\\u004G\"", kHexDigit, 6},
        {"\"\\u004`\"", kHexDigit, 6},
        {"\"\\ud800\\u12\"", kFourDigits, 9},
        {"\"\\ud800\\uzzzz\"", kHexDigit, 9},
        {"-", kNumber, 1},
        {"-x", kNumber, 1},
        {"--1", kNumber, 3},
        {"-e5", kNumber, 3},
        {"-.", kNumber, 2},
        {"-+1", kNumber, 3},
        {"[1,-]", kNumber, 4},
    };
    for (const Failure& failure : failures) {
        SCOPED_TRACE(failure.text);
        const Document document(failure.text);
        EXPECT_FALSE(document.ok);
        EXPECT_STREQ(document.error.message, failure.message);
        EXPECT_EQ(document.error.offset, failure.offset);
        EXPECT_FALSE(document.arena.failed());
        StackArena<64> arena;
        Value root;
        EXPECT_FALSE(Parse(failure.text, arena, root)) << "without a place for the error";
    }
}

TEST(Reader, DecodesEscapes) {
    EXPECT_EQ(ReadString(R"("\"\\\/\b\f\n\r\t")"), "\"\\/\b\f\n\r\t");
    EXPECT_EQ(ReadString(R"("a\nb\tc")"), "a\nb\tc");
    EXPECT_EQ(ReadString(R"("\u0041\u00e9\u20AC\u007f\u0080\u07ff\u0800\uffff")"),
              "A\xC3\xA9\xE2\x82\xAC\x7f\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF");
    EXPECT_EQ(ReadString(R"("0123456789abcdefghijklmnopqrstuvwxyz\n0123456789abcdefghijklmnopqrstuvwxyz\\")"),
              "0123456789abcdefghijklmnopqrstuvwxyz\n0123456789abcdefghijklmnopqrstuvwxyz\\");
    EXPECT_EQ(Read(R"({"\u0061\n":1,"b\/":2})"), "{ \"a\\n\" : 1, \"b\\/\" : 2 }");
}

TEST(Reader, JoinsSurrogatePairsAndKeepsLoneOnes) {
    EXPECT_EQ(ReadString(R"("\ud83d\ude00")"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(ReadString(R"("\ud800\udc00")"), "\xF0\x90\x80\x80");
    EXPECT_EQ(ReadString(R"("\uDBFF\uDFFF")"), "\xF4\x8F\xBF\xBF");
    EXPECT_EQ(ReadString(R"("\ud800")"), "\xED\xA0\x80");
    EXPECT_EQ(ReadString(R"("\udc00")"), "\xED\xB0\x80");
    EXPECT_EQ(ReadString(R"("\ud800x")"), "\xED\xA0\x80x");
    EXPECT_EQ(ReadString(R"("\ud800\n")"), "\xED\xA0\x80\n");
    EXPECT_EQ(ReadString(R"("\ud800\u0041")"), "\xED\xA0\x80"
                                               "A");
    EXPECT_EQ(ReadString(R"("\ud800\ud800\udc00")"), "\xED\xA0\x80\xF0\x90\x80\x80");
    EXPECT_EQ(ReadString(R"("\udc00\ud800")"), "\xED\xB0\x80\xED\xA0\x80");
}

TEST(Reader, EndsATextAtItsFirstTerminator) {
    EXPECT_EQ(ReadString(R"("ab\u0000cd")"), "ab");
    EXPECT_EQ(ReadString(R"("\u0000")"), "");
    EXPECT_EQ(ReadString(R"("a\n\u0000b\u0000c\n")"), "a\n");
    EXPECT_EQ(Read(R"({"a\u0000x":1,"a":2})"), R"({ "a" : 2 })");
    EXPECT_EQ(Read(R"({"b":0,"a\u0000y":1,"a\u0000x":2})"), R"({ "a" : 2, "b" : 0 })");
    EXPECT_EQ(Read(R"("\u0000\x")"), kBadEscape); // what is cut off must be right all the same
}

TEST(Reader, KeepsAllOtherBytesAsTheyStand) {
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '"' && byte != '\\') bytes += static_cast<char>(byte);
    }
    EXPECT_EQ(ReadString("\"" + bytes + "\""), bytes);
    EXPECT_EQ(ReadString("\"" + bytes + "\\n\""), bytes + "\n");
}

TEST(Reader, LeavesStringsWithoutEscapesWhereTheyAre) {
    const std::string text = R"({"key":"value","list":["text"]})";
    const Document document(text);
    ASSERT_TRUE(document.ok);
    EXPECT_EQ(document.root["key"].asString().data(), text.data() + 8);
    EXPECT_EQ(document.root.members()[0].keyText, text.data() + 2);
    EXPECT_EQ(document.root["list"][0U].asString().data(), text.data() + 24);
}

TEST(Reader, FindsTheEndOfStringsOfAnyLength) {
    for (std::size_t length = 0; length < 100; ++length) {
        const std::string body(length, 'x');
        EXPECT_EQ(ReadString("\"" + body + "\""), body);
        EXPECT_EQ(ReadString("\"" + body + "\\\"\"                        "), body + "\"");
        EXPECT_EQ(ReadString("\"\\\\" + body + "\""), "\\" + body);
    }
}

struct NumberRow {
    const char* text;
    Type type;
    double value;
};

TEST(Reader, TellsIntegersFromReals) {
    const NumberRow rows[] = {
        {"0", Type::Int, 0},
        {"-0", Type::Int, 0},
        {"7", Type::Int, 7},
        {"-7", Type::Int, -7},
        {"007", Type::Int, 7},
        {"-007", Type::Int, -7},
        {"00000000000000000000001", Type::Int, 1},
        {"2147483647", Type::Int, 2147483647.0},
        {"2147483648", Type::UInt, 2147483648.0},
        {"4294967289", Type::UInt, 4294967289.0},
        {"4294967290", Type::Real, 4294967290.0},
        {"4294967295", Type::Real, 4294967295.0},
        {"4294967296", Type::Real, 4294967296.0},
        {"10000000000", Type::Real, 1e10},
        {"-2147483639", Type::Int, -2147483639.0},
        {"-2147483640", Type::Real, -2147483640.0},
        {"-2147483648", Type::Real, -2147483648.0},
        {"-4294967290", Type::Real, -4294967290.0},
        {"12345678901234567890", Type::Real, 12345678901234567890.0},
        {"0.5", Type::Real, 0.5},
        {"-0.5", Type::Real, -0.5},
        {"-.5", Type::Real, -0.5},
        {"1.", Type::Real, 1},
        {"1.0", Type::Real, 1},
        {"1e3", Type::Real, 1000},
        {"1E3", Type::Real, 1000},
        {"1e+3", Type::Real, 1000},
        {"1e-3", Type::Real, 0.001},
        {"1.e3", Type::Real, 1000},
        {"-1.5E+2", Type::Real, -150},
        {"00.5", Type::Real, 0.5},
        {"1.2.3", Type::Real, 1.2},
        {"1e", Type::Real, 1},
        {"1e+", Type::Real, 1},
        {"0e", Type::Real, 0},
        {"1e5e5", Type::Real, 100000},
        {"1e5.5", Type::Real, 100000},
        {"1-2", Type::Real, 1},
        {"1+2", Type::Real, 1},
        {"1.5-", Type::Real, 1.5},
        {"-1-1", Type::Real, -1},
        {"12-", Type::Real, 12},
        {"4294967290-", Type::Real, 4294967290.0},
        {"1e999", Type::Real, std::numeric_limits<double>::infinity()},
        {"-1e999", Type::Real, -std::numeric_limits<double>::infinity()},
        {"1e99999999999999999999999", Type::Real, std::numeric_limits<double>::infinity()},
        {"1e-999", Type::Real, 0},
        {"1e-99999999999999999999999", Type::Real, 0},
        {"0e999", Type::Real, 0},
        {"0.0e99999999999999", Type::Real, 0},
        {"5e-324", Type::Real, std::numeric_limits<double>::denorm_min()},
        {"1.7976931348623157e308", Type::Real, std::numeric_limits<double>::max()},
    };
    for (const NumberRow& row : rows) {
        SCOPED_TRACE(row.text);
        for (const std::string& text :
             {std::string(row.text), row.text + std::string(" "), row.text + std::string("x")}) {
            const Document document(text);
            ASSERT_TRUE(document.ok);
            EXPECT_EQ(document.root.type(), row.type);
            EXPECT_EQ(document.root.asDouble(), row.value);
        }
        // The whole token is used up, whatever part of it counts.
        const Document list("[" + std::string(row.text) + ",1]");
        ASSERT_TRUE(list.ok) << list.error.message;
        EXPECT_EQ(list.root[0U].type(), row.type);
        EXPECT_EQ(list.root[1U].asInt(), 1);
    }
    EXPECT_FALSE(std::signbit(Document("-0").root.asDouble()));
    EXPECT_TRUE(std::signbit(Document("-0.0").root.asDouble()));
    EXPECT_TRUE(std::signbit(Document("-1e-999").root.asDouble()));
}

void ExpectAsStrtod(const std::string& text) {
    const Document document(text);
    char* stop = nullptr;
    const double expected = std::strtod(text.c_str(), &stop);
    ASSERT_EQ(document.ok, stop != text.c_str()) << text;
    if (!document.ok || document.root.type() != Type::Real) return;
    ASSERT_EQ(document.root.asDouble(), expected) << text;
    ASSERT_EQ(std::signbit(document.root.asDouble()), std::signbit(expected)) << text;
}

TEST(Reader, ReadsRealsAsStrtodDoes) {
    std::mt19937_64 random(44);
    char text[64];
    for (int i = 0; i < 200000; ++i) {
        const double number = std::bit_cast<double>(random());
        if (!std::isfinite(number)) continue;
        for (const char* format : {"%.17g", "%.3e", "%#.16g"}) {
            std::snprintf(text, sizeof text, format, number);
            ExpectAsStrtod(text);
        }
        std::snprintf(text, sizeof text, "%.*f", static_cast<int>(random() % 16),
                      static_cast<double>(random() % 1000000000) / 997);
        ExpectAsStrtod(text);
    }
}

TEST(Reader, ReadsHeapsOfNumberBytesAsStrtodDoes) {
    std::mt19937_64 random(45);
    constexpr std::string_view kBytes = "0123456789+-.eE09";
    for (int i = 0; i < 500000; ++i) {
        std::string text = random() % 2 == 0 ? "-" : std::to_string(random() % 10);
        for (std::uint64_t left = random() % 12; left > 0; --left)
            text += kBytes[random() % kBytes.size()];
        ExpectAsStrtod(text);
    }
}

TEST(Reader, KeepsMembersInByteOrderAndTheLastOfDuplicates) {
    EXPECT_EQ(Read(R"({"b":1,"a":2,"c":3})"), R"({ "a" : 2, "b" : 1, "c" : 3 })");
    EXPECT_EQ(Read(R"({"a":1,"a":2})"), R"({ "a" : 2 })");
    EXPECT_EQ(Read(R"({"b":0,"a":1,"b":{"x":1},"a":2,"b":3})"), R"({ "a" : 2, "b" : 3 })");
    EXPECT_EQ(Read(R"({"a":{"x":1},"a":{"y":2}})"), R"({ "a" : { "y" : 2 } })");
    EXPECT_EQ(Read(R"({"a":1,"\u0061":2})"), R"({ "a" : 2 })");
    EXPECT_EQ(Read(R"({"":1,"":2})"), R"({ "" : 2 })");
    EXPECT_EQ(Read("{\"\xff\":1,\"a\":2,\"\x80\":3,\"\x7f\":4}"),
              "{ \"a\" : 2, \"\x7f\" : 4, \"\x80\" : 3, \"\xff\" : 1 }");
    // Keys that agree in their first eight bytes, that are prefixes of one another, and that were decoded.
    EXPECT_EQ(Read(R"({"channel10":1,"channel1":2,"channel":3,"channel2":4,"channel01":5})"),
              R"({ "channel" : 3, "channel01" : 5, "channel1" : 2, "channel10" : 1, "channel2" : 4 })");
    EXPECT_EQ(Read(R"({"abcdefgi":1,"abcdefgh":2})"), R"({ "abcdefgh" : 2, "abcdefgi" : 1 })");
    EXPECT_EQ(Read(R"({"abcdefghj":1,"abcdefghi":2})"), R"({ "abcdefghi" : 2, "abcdefghj" : 1 })");
    EXPECT_EQ(Read(R"({"\u0063hannel10":1,"\u0063hannel1":2,"channel1":3})"), R"({ "channel1" : 3, "channel10" : 1 })");
}

// However many members there are, and however many of them agree in their first eight bytes.
TEST(Reader, SortsAnyNumberOfMembers) {
    std::mt19937_64 random(46);
    for (std::size_t count : {2u, 8u, 9u, 38u, 39u, 40u, 41u, 42u, 64u, 200u}) {
        for (const char* const stem : {"", "a", "channel", "channel ", "a channel's name"}) {
            std::map<std::string, std::size_t> due;
            std::string text = "{";
            for (std::size_t i = 0; i < count; ++i) {
                const std::string key = stem + std::to_string(random() % (2 * count));
                due[key] = i;
                text += (i == 0 ? "\"" : ",\"") + key + "\":" + std::to_string(i);
            }
            std::string sorted = "{ ";
            for (const auto& [key, i] : due)
                sorted += (sorted.size() == 2 ? "\"" : ", \"") + key + "\" : " + std::to_string(i);
            EXPECT_EQ(Read(text + "}"), sorted + " }");
        }
    }
}

TEST(Reader, SortsInnerObjectsWithoutForgettingTheOuterOrder) {
    EXPECT_EQ(Read(R"({"b":{"y":1,"x":2},"c":{"m":1,"n":2},"a":{}})"),
              R"({ "a" : {  }, "b" : { "x" : 2, "y" : 1 }, "c" : { "m" : 1, "n" : 2 } })");
    EXPECT_EQ(Read(R"({"a":{"y":1,"x":2},"b":1})"), R"({ "a" : { "x" : 2, "y" : 1 }, "b" : 1 })");
}

} // namespace
} // namespace orrery::json
