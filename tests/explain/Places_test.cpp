// How many members the objects of a document have, by blocks of bytes as byte by byte, and where it ends.
#include "explain/Places.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace orrery::test {
namespace {

// The same, in the plainest way.
std::size_t ByBytes(std::string_view text) {
    std::size_t members = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '"') {
            for (++i; text[i] != '"'; ++i)
                i += text[i] == '\\';
        } else if (text.substr(i).starts_with("//")) {
            i = text.find('\n', i);
        } else if (text.substr(i).starts_with("/*")) {
            i = text.find("*/", i) + 1;
        } else if (c == ':') {
            ++members;
        }
    }
    return members;
}

std::string Filler(std::mt19937& dice, int depth) {
    const char* const kScalars[] = {"1", "-2.5", "true", "null", R"("")", R"("text: {[ ]}")", R"("a\"b\\")", R"("//")"};
    const auto below = [&](int most) { return static_cast<int>(dice() % static_cast<unsigned>(most)); };
    const auto gap = [&] {
        switch (below(40)) {
        case 0:
            return std::string("/* \" : { */");
        case 1:
            return std::string("// ] \" :\n");
        case 2:
            return std::string(static_cast<std::size_t>(below(90)), ' ');
        default:
            return std::string();
        }
    };
    if (depth == 0 || below(4) == 0) return gap() + kScalars[below(8)] + gap();
    const bool isObject = below(2) == 0;
    std::string text = isObject ? "{" : "[";
    const int count = below(6);
    for (int i = 0; i < count; ++i) {
        if (i > 0) text += ',';
        if (isObject)
            text += gap() + "\"k" + std::string(static_cast<std::size_t>(below(70)), 'x') + std::to_string(i) + "\""
                    + gap() + ":";
        text += Filler(dice, depth - 1);
    }
    return text + gap() + (isObject ? "}" : "]");
}

std::size_t EndOf(std::string_view text) {
    StackArena<1024> arena;
    json::Value root;
    json::SyntaxError error;
    std::size_t end = 0;
    return explain::ParseDocument(text, arena, root, end, error) ? end : 0;
}

TEST(CountKeys, FindsTheSameByBlocksAsByBytes) {
    std::mt19937 dice(7);
    for (int i = 0; i < 6000; ++i) {
        const std::string text = "{\"a\":" + Filler(dice, 5) + "}";
        // On the heap, where a byte read too much would be told.
        const std::vector<char> exact(text.begin(), text.end());
        ASSERT_EQ(explain::CountKeys({exact.data(), exact.size()}), ByBytes(text)) << text;
        for (const char* const behind : {"", " ", "{\"b\":1}", "]]]]", "\"", " ::::"})
            ASSERT_EQ(EndOf(text + behind), text.size()) << text << behind;
    }
}

TEST(CountKeys, OfADocumentThatIsNoContainerAreNone) {
    EXPECT_EQ(explain::CountKeys("12"), 0u);
    EXPECT_EQ(explain::CountKeys("\":\""), 0u);
    EXPECT_EQ(explain::CountKeys(""), 0u);
}

} // namespace
} // namespace orrery::test
