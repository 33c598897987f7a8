// The same tree as jsoncpp reads, for every document that both accept; and each difference that is meant.
#include "support/JsonText.h"
#include "support/JsoncppReferee.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace orrery::json {
namespace {

using test::Document;
using test::FirstDifference;
using test::JsoncppRead;
using test::TextOf;

void ExpectSameTree(std::string_view text) {
    SCOPED_TRACE(std::string(text.substr(0, 200)));
    const auto theirs = JsoncppRead(text);
    const Document ours(text);
    ASSERT_TRUE(theirs.has_value());
    ASSERT_TRUE(ours.ok) << ours.error.message << " at " << ours.error.offset;
    EXPECT_EQ(FirstDifference(*theirs, ours.root), std::nullopt);
}

TEST(ReaderVersusJsoncpp, ReadsTheSameTreeFromATable) {
    const char* const documents[] = {
        "null",
        " true ",
        "false",
        "0",
        "-0",
        "-17",
        "2147483647",
        "-2147483648",
        "4294967295",
        "1.5",
        "-1.5e-3",
        "1e300",
        "4.9e-324",
        "007",
        "1.",
        "\"\"",
        "\"plain\"",
        R"("\"\\\/\b\f\n\r\t")",
        R"("\u0041\u00e9\u20ac\ud83d\ude00")",
        R"("\udc00")",
        "\"raw \x01\x1f\x7f\x80\xff bytes\"",
        "[]",
        "{}",
        "[[],[[]],{}]",
        "[1,2.5,\"x\",null,true,false,{\"a\":[]}]",
        R"({"b":1,"a":2,"c":{"z":[],"y":{}}})",
        R"({"a":1,"b":2,"a":3})",
        R"({"a":{"x":1},"a":{"y":2}})",
        R"({"":{"":{"":0}}})",
        "{\"\xff\":1,\"\x7f\":2,\"a\":3}",
        "// comment\n{\"a\":1}",
        "/* comment */ [ 1, /* two */ 2 // three\n, 3 ]",
        "{ /* a */ \"a\" : /* b */ 1 /* c */ , /* d */ \"b\" : 2 }",
        "{} trailing",
        "[1] ]",
        "12 34",
        "\r\n\t [ \r\n 1 \t , \r\n 2 ] ",
    };
    for (const char* const text : documents)
        ExpectSameTree(text);
}

TEST(ReaderVersusJsoncpp, ReadsTheSameTreeFromFiles) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(ORRERY_TEST_DATA "/frame/json/corpus")) {
        SCOPED_TRACE(entry.path().filename());
        std::ifstream file(entry.path(), std::ios::binary);
        ExpectSameTree(std::string(std::istreambuf_iterator<char>(file), {}));
        ++files;
    }
    EXPECT_GE(files, 8);
}

std::string RandomText(std::mt19937& random, int levels) {
    const auto below = [&](unsigned limit) { return static_cast<unsigned>(random() % limit); };
    const auto space = [&] {
        static constexpr const char* kSpaces[] = {"", "", " ", "  ", "\n", "\t\r\n", " /* c */ "};
        return kSpaces[below(6)];
    };
    const auto text = [&] {
        static constexpr const char* kPieces[] = {
            "a", "B",   "key", "\\n", "\\u00e9", "\\ud83d\\ude00", "\xC3\xA9", "\\\"", "/", "\\/", "0123456789abcdef",
            " ", "\x01"};
        std::string result = "\"";
        for (unsigned pieces = below(5); pieces > 0; --pieces)
            result += kPieces[below(13)];
        return result + "\"";
    };
    switch (levels == 0 ? below(5) : below(9)) {
    case 0:
        return "null";
    case 1:
        return below(2) == 0 ? "true" : "false";
    case 2:
        return std::to_string(static_cast<std::int64_t>(random()) - 2147483648LL);
    case 3: {
        char number[40];
        std::snprintf(number, sizeof number, "%.*g", static_cast<int>(1 + below(17)),
                      static_cast<double>(random()) / (1 + below(1000)));
        return number;
    }
    case 4:
        return text();
    case 5:
    case 6: {
        std::string result = "[";
        for (unsigned i = 0, size = below(6); i < size; ++i) {
            result += (i > 0 ? "," : "") + std::string(space()) + RandomText(random, levels - 1) + space();
        }
        return result + "]";
    }
    default: {
        std::string result = "{";
        for (unsigned i = 0, size = below(12); i < size; ++i) {
            result += (i > 0 ? "," : "") + std::string(space()) + text() + ":" + space()
                      + RandomText(random, levels - 1) + space();
        }
        return result + "}";
    }
    }
}

TEST(ReaderVersusJsoncpp, ReadsTheSameTreeFromRandomDocuments) {
    std::mt19937 random(47);
    for (int round = 0; round < 5000; ++round) {
        ExpectSameTree(RandomText(random, 5));
        if (HasFailure()) return;
    }
}

// --- Differences that are meant. Each shows what either side makes of the text. ---

TEST(ReaderVersusJsoncpp, KeepsIntegersOf32BitsOnly) {
    EXPECT_EQ(JsoncppRead("4294967295")->asInt64(), 4294967295);
    EXPECT_EQ(Document("4294967295").root.type(), Type::Real);
    EXPECT_EQ(JsoncppRead("-2147483648")->asInt(), -2147483647 - 1);
    EXPECT_EQ(Document("-2147483648").root.type(), Type::Real);
    EXPECT_EQ(JsoncppRead("9007199254740993")->asInt64(), 9007199254740993);
    EXPECT_EQ(Document("9007199254740993").root.asDouble(), 9007199254740992.0);
}

TEST(ReaderVersusJsoncpp, TakesEveryRunOfNumberBytesForOneToken) {
    EXPECT_EQ(JsoncppRead("1-2")->type(), Json::intValue);
    EXPECT_EQ(Document("1-2").root.type(), Type::Real);
    EXPECT_FALSE(JsoncppRead("[1.2.3]").has_value());
    EXPECT_EQ(Document("[1.2.3]").root[0U].asDouble(), 1.2);
    EXPECT_FALSE(JsoncppRead("1e").has_value());
    EXPECT_EQ(Document("1e").root.asDouble(), 1.0);
}

TEST(ReaderVersusJsoncpp, KnowsNoNumberWithoutDigits) {
    ASSERT_TRUE(JsoncppRead("-").has_value());
    EXPECT_EQ(JsoncppRead("-")->asInt(), 0);
    EXPECT_FALSE(Document("-").ok);
}

TEST(ReaderVersusJsoncpp, ReadsWhatADoubleCantHoldAsInfinity) {
    EXPECT_FALSE(JsoncppRead("1e999").has_value());
    EXPECT_EQ(TextOf(Document("1e999").root), "inf");
}

TEST(ReaderVersusJsoncpp, EndsTextsAtATerminator) {
    EXPECT_EQ(JsoncppRead(R"("a\u0000b")")->asString(), std::string("a\0b", 3));
    EXPECT_EQ(Document(R"("a\u0000b")").root.asString(), "a");
    EXPECT_EQ(JsoncppRead(R"({"a\u0000b":1,"a":2})")->size(), 2U);
    EXPECT_EQ(Document(R"({"a\u0000b":1,"a":2})").root.size(), 1U);
}

TEST(ReaderVersusJsoncpp, KeepsLoneSurrogates) {
    EXPECT_FALSE(JsoncppRead(R"("\ud800")").has_value());
    EXPECT_EQ(Document(R"("\ud800")").root.asString(), "\xED\xA0\x80");
    EXPECT_EQ(JsoncppRead(R"("\ud800\u0041")")->asString(), "\xF0\x90\x81\x81");
    EXPECT_EQ(Document(R"("\ud800\u0041")").root.asString(), "\xED\xA0\x80\x41");
}

TEST(ReaderVersusJsoncpp, SkipsCommentsBetweenAnyTokens) {
    for (const char* text : {"[/**/]", "{\"a\"/**/:1}", "{\"a\"//\n:1}"}) {
        EXPECT_FALSE(JsoncppRead(text).has_value()) << text;
        EXPECT_TRUE(Document(text).ok) << text;
    }
}

TEST(ReaderVersusJsoncpp, WantsANameAfterEveryComma) {
    EXPECT_TRUE(JsoncppRead(R"({"":1,})").has_value());
    EXPECT_FALSE(Document(R"({"":1,})").ok);
}

TEST(ReaderVersusJsoncpp, KnowsNoLimitOfDepth) {
    const std::string text = std::string(2000, '[') + std::string(2000, ']');
    EXPECT_FALSE(JsoncppRead(text).has_value());
    EXPECT_TRUE(Document(text).ok);
}

TEST(ReaderVersusJsoncpp, TakesNullForAnArrayAndAnObjectAndAStringForTrue) {
    EXPECT_FALSE(JsoncppRead("null")->isObject());
    EXPECT_FALSE(JsoncppRead("null")->isArray());
    EXPECT_TRUE(Document("null").root.isObject());
    EXPECT_TRUE(Document("null").root.isArray());
    EXPECT_THROW(JsoncppRead("\"x\"")->asBool(), Json::LogicError);
    EXPECT_TRUE(Document("\"x\"").root.asBool());
    EXPECT_EQ(JsoncppRead("12")->asString(), "12");
    EXPECT_EQ(Document("12").root.asString(), "");
    EXPECT_THROW(JsoncppRead("-1")->asUInt(), Json::LogicError);
    EXPECT_EQ(Document("-1").root.asUInt(), 0U);
}

TEST(ReaderVersusJsoncpp, WritesItsOwnFormat) {
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    EXPECT_EQ(Json::writeString(builder, *JsoncppRead(R"({"a":[],"b":0.5,"c":"x/y"})")),
              R"({"a":[],"b":0.5,"c":"x/y"})");
    EXPECT_EQ(TextOf(Document(R"({"a":[],"b":0.5,"c":"x/y"})").root),
              R"({ "a" : [  ], "b" : 0.5000000000000000, "c" : "x\/y" })");
}

} // namespace
} // namespace orrery::json
