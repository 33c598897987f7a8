// Where a document ends and how many members its objects have, by blocks of bytes as byte by byte.
#include "explain/Places.h"

#include <gtest/gtest.h>
#include <random>

namespace orrery::test {
namespace {

// The same, in the plainest way. The texts below have no document but an object or a list.
explain::Skimmed ByBytes(std::string_view text) {
    explain::Skimmed skimmed;
    int depth = 0;
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
            ++skimmed.members;
        } else if (c == '{' || c == '[') {
            ++depth;
        } else if ((c == '}' || c == ']') && --depth == 0) {
            skimmed.end = i + 1;
            return skimmed;
        }
    }
    return skimmed;
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

TEST(Skim, FindsTheSameByBlocksAsByBytes) {
    std::mt19937 dice(7);
    for (int i = 0; i < 3000; ++i) {
        const std::string text = "{\"a\":" + Filler(dice, 5) + "}";
        const explain::Skimmed expected = ByBytes(text);
        ASSERT_EQ(expected.end, text.size()) << text;
        for (const char* const behind :
             {"", " ", "{\"b\":1}", "]]]]", "\"", " :::::::::::::::::::::::::::::::::::::::::::::::::::::::::::::"}) {
            const explain::Skimmed skimmed = explain::Skim(text + behind);
            ASSERT_EQ(skimmed.end, expected.end) << text << behind;
            ASSERT_EQ(skimmed.members, expected.members) << text << behind;
        }
    }
}

TEST(Skim, ADocumentThatIsNoContainer) {
    EXPECT_EQ(explain::Skim("  12 13").end, 4u);
    EXPECT_EQ(explain::Skim("\"a b\" c").end, 5u);
    EXPECT_EQ(explain::Skim("").end, 0u);
}

} // namespace
} // namespace orrery::test
