// The texts of a stream, however they are laid out and however their bytes arrive.
#include "orrery/TextSplitter.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orrery::tool {
namespace {

using Pieces = std::vector<std::pair<std::string, std::uint64_t>>;

Pieces Split(const std::string& stream, std::size_t chunk = 1 << 20) {
    TextSplitter splitter;
    Pieces pieces;
    const auto take = [&](const TextSplitter::Piece& piece) {
        EXPECT_EQ(stream.substr(piece.offset, piece.text.size()), piece.text);
        pieces.emplace_back(piece.text, piece.line); // copied: it stays until more is fed
    };
    for (std::size_t at = 0; at < stream.size(); at += chunk) {
        splitter.Feed(std::string_view(stream).substr(at, chunk));
        while (const auto piece = splitter.Next())
            take(*piece);
    }
    while (const auto piece = splitter.Rest())
        take(*piece);
    return pieces;
}

TEST(TextSplitter, FindsTextsInAnyLayout) {
    const std::string stream = "\xEF\xBB\xBF{\"a\":1}\n{\"b\":[1,2]}{\"c\":{}}\n\n  {\n  \"d\" :\n  [\n{}\n]\n}\n[]\n";
    const Pieces expected = {
        {"{\"a\":1}", 1}, {"{\"b\":[1,2]}", 2}, {"{\"c\":{}}", 2}, {"{\n  \"d\" :\n  [\n{}\n]\n}", 4}, {"[]", 10}};
    EXPECT_EQ(Split(stream), expected);
    for (const std::size_t chunk : {1u, 2u, 3u, 7u})
        EXPECT_EQ(Split(stream, chunk), expected) << chunk;
}

TEST(TextSplitter, KnowsBracketsAndQuotesInsideTexts) {
    const std::string stream = R"({"a":"}{\"\\"}{"b":"]"})";
    const Pieces expected = {{R"({"a":"}{\"\\"})", 1}, {R"({"b":"]"})", 1}};
    EXPECT_EQ(Split(stream), expected);
    EXPECT_EQ(Split(stream, 1), expected);
}

TEST(TextSplitter, GivesUpATextThatIsCutOffWhereTheNextBegins) {
    const Pieces expected = {{"{\"a\":[1", 1}, {"{\"b\":2}", 2}, {"{\"c\":\"x", 3}, {"{\"d\":3}", 4}};
    EXPECT_EQ(Split("{\"a\":[1\n{\"b\":2}\n{\"c\":\"x\n{\"d\":3}\n"), expected);
    EXPECT_EQ(Split("{\"a\":[1\n{\"b\":2}\n{\"c\":\"x\n{\"d\":3}\n", 1), expected);
}

TEST(TextSplitter, LooksAnewBehindATextThatNeverEnds) {
    const Pieces expected = {{"{\"a\":[", 1}, {"{\"b\":2}", 2}};
    EXPECT_EQ(Split("{\"a\":[\n{\"b\":2}\n"), expected);
}

TEST(TextSplitter, TakesALineOfAnythingElseAsAText) {
    const Pieces expected = {{"no text", 1}, {"{\"a\":1}", 3}, {"]", 3}, {"17", 4}};
    EXPECT_EQ(Split("no text\n\n{\"a\":1}]\n17"), expected);
}

// Long texts are looked at in blocks, which must not change what they are.
TEST(TextSplitter, SplitsLongTextsAsByteByByte) {
    const std::string filler = R"("name":"a text of some length, with ] and } in it","list":[1,2,3,[4,5,{"x":"}"}]],)";
    const std::string escaped = R"("quote":"behind \"quotes\" { and \\","slash":"\\",)";
    std::vector<std::string> texts;
    for (std::size_t shift = 0; shift < 70; ++shift) {
        const std::string blank(shift, ' ');
        texts.push_back("{" + blank + filler + filler + R"("end":1})");
        texts.push_back("{" + filler + blank + escaped + filler + R"("end":[]})");
        texts.push_back("{" + blank + filler + "\n" + filler + R"("end":{}})");
        texts.push_back("[" + blank + R"({"a":[[[[1]]]]},")" + std::string(shift * 3, '[') + R"("])");
    }
    std::string stream;
    Pieces expected;
    std::uint64_t line = 1;
    for (const std::string& text : texts) {
        stream += text + "\n";
        expected.emplace_back(text, line);
        line += 1 + static_cast<std::uint64_t>(std::count(text.begin(), text.end(), '\n'));
    }
    EXPECT_EQ(Split(stream), expected);
    EXPECT_EQ(Split(stream, 1), expected);
    EXPECT_EQ(Split(stream, 77), expected);
}

// One that is cut off is given up where the next begins, wherever in a block that is.
TEST(TextSplitter, GivesUpLongTextsThatAreCutOff) {
    const std::string whole =
        R"({"a":"0123456789012345678901234567890123456789","b":[1,2,3,{"c":"more text behind it"}]})";
    for (std::size_t size = 1; size < whole.size(); ++size) {
        const std::string cut = whole.substr(0, size);
        if (std::string_view(",:[ ").find(cut.back()) != std::string_view::npos)
            continue; // a value may follow, and a blank is no part of what is told
        const Pieces expected = {{cut, 1}, {whole, 2}};
        EXPECT_EQ(Split(cut + "\n" + whole + "\n"), expected);
    }
}

// A line that nobody looked into is split again by who reads it: the texts and their places are the same.
TEST(TextSplitter, LinesThatNobodyLookedIntoHoldTheSameTexts) {
    const std::string lines[] = {R"({"a":1})",
                                 R"({"a":1}{"b":[2]} {"c":"}"})",
                                 R"({"a":1}})",
                                 R"({"a":[1})",
                                 R"({"a":"x})",
                                 R"({"a":1},{"b":2})",
                                 R"({"a":1} 17 {"b":2})",
                                 "{\"a\":1} \t\r",
                                 R"({"a":{"b":"\\\"}"}})",
                                 R"({"a":1} ])",
                                 R"([1] {"a":2})",
                                 "{}",
                                 "}",
                                 R"({"a":)",
                                 "",
                                 R"({"a":{}}} {})",
                                 R"({"\"})",
                                 "{\"a\":\n{\"b\":{}}}"};
    std::string stream;
    for (const std::string& line : lines) // each before and behind each
        for (const std::string& other : lines)
            stream += line + "\n" + other + "\n";
    const Pieces expected = Split(stream, 1);
    for (const std::size_t chunk : {1u, 7u, 64u, 1u << 20}) {
        TextSplitter splitter;
        Pieces pieces;
        std::size_t whole = 0;
        const auto take = [&](bool isEnd) {
            for (;;) {
                const auto line = splitter.NextLine();
                if (const auto piece = line ? line : isEnd ? splitter.Rest() : splitter.Next(); !piece) {
                    return;
                } else if (!line) {
                    pieces.emplace_back(piece->text, piece->line);
                    continue;
                }
                EXPECT_EQ(stream.substr(line->offset, line->text.size()), line->text);
                ++whole;
                TextSplitter again;
                again.Feed(line->text);
                while (const auto piece = again.Rest())
                    pieces.emplace_back(piece->text, line->line + piece->line - 1);
            }
        };
        for (std::size_t at = 0; at < stream.size(); at += chunk) {
            splitter.Feed(std::string_view(stream).substr(at, chunk));
            take(false);
        }
        take(true);
        EXPECT_EQ(pieces, expected) << chunk;
        EXPECT_EQ(whole > 100, chunk >= 64) << whole; // of so many bytes at a time a line is seldom whole
    }
}

TEST(TextSplitter, HandsOutATextAsSoonAsItIsThere) {
    TextSplitter splitter;
    splitter.Feed("{\"a\":");
    EXPECT_FALSE(splitter.Next());
    splitter.Feed("1}");
    const auto piece = splitter.Next();
    ASSERT_TRUE(piece);
    EXPECT_EQ(piece->text, "{\"a\":1}");
    EXPECT_FALSE(splitter.Next());
    EXPECT_FALSE(splitter.Rest());
}

} // namespace
} // namespace orrery::tool
