// The texts of a stream, however they are laid out and however their bytes arrive.
#include "orrery/TextSplitter.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace orrery::tool {
namespace {

using Pieces = std::vector<std::pair<std::string, std::uint64_t>>;

Pieces Split(const std::string& stream, std::size_t chunk = 1 << 20) {
    TextSplitter splitter;
    Pieces pieces;
    for (std::size_t at = 0; at < stream.size(); at += chunk) {
        splitter.Feed(std::string_view(stream).substr(at, chunk));
        while (const auto piece = splitter.Next())
            pieces.emplace_back(piece->text, piece->line); // copied: it stays until more is fed
    }
    while (const auto piece = splitter.Rest())
        pieces.emplace_back(piece->text, piece->line);
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
