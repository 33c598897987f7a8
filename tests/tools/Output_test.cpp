#include "orrery/Output.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace orrery::tool {
namespace {

TEST(Output, QuotesWhatJsonMustNotHoldPlain) {
    EXPECT_EQ(Quoted("a\"b\\c\n\x01/"), R"("a\"b\\c\u000a\u0001/")");
}

TEST(Output, TellsUtf8FromOtherBytes) {
    EXPECT_TRUE(IsUtf8(""));
    EXPECT_TRUE(IsUtf8("a\x7f"));
    EXPECT_TRUE(IsUtf8("\xc2\x80\xdf\xbf"));         // U+0080, U+07FF
    EXPECT_TRUE(IsUtf8("\xe0\xa0\x80\xef\xbf\xbf")); // U+0800, U+FFFF
    EXPECT_TRUE(IsUtf8("\xf0\x90\x80\x80\xf4\x8f\xbf\xbf"));
    EXPECT_FALSE(IsUtf8("\x80"));
    EXPECT_FALSE(IsUtf8("\xc1\x81"));         // overlong
    EXPECT_FALSE(IsUtf8("\xe0\x9f\xbf"));     // overlong
    EXPECT_FALSE(IsUtf8("\xed\xa0\x80"));     // surrogate
    EXPECT_FALSE(IsUtf8("\xf4\x90\x80\x80")); // beyond U+10FFFF
    EXPECT_FALSE(IsUtf8("a\xe4\xb8"));        // cut
    EXPECT_FALSE(IsUtf8("\xc3("));
}

TEST(Output, KeepsControlCharactersFromTheTerminal) {
    EXPECT_EQ(Printable("a\x1b[2J\xff\xc3\xa9\x7f"), "a?[2J?\xc3\xa9?");
    EXPECT_EQ(Printable("\xc2\x9b!"), "?!"); // a control sequence introducer in one code point
}

TEST(Output, KeepsWhatBelongsTogetherOnOneLine) {
    Node numbers = Node::Array();
    for (int i = 0; i < 3; ++i)
        numbers.Add(Node::Number(i - 1));
    Node code = Node::Inline();
    code.Add("code", Node::Number(0)).Add("name", Node::Text("NC"));
    Node point = Node::Object();
    point.Add("nX", Node::Number(1)).Add("nY", Node::Token("2.5"));
    Node root = Node::Object();
    root.Add("list", numbers).Add("code", code).Add("point", point).Add("none", Node::Array());
    EXPECT_EQ(root.Print(), R"({
  "list": [-1, 0, 1],
  "code": { "code": 0, "name": "NC" },
  "point": { "nX": 1, "nY": 2.5 },
  "none": []
}
)");
}

TEST(Output, BreaksLongRecordsButNotListsOfNumbers) {
    Node texts = Node::Array();
    Node numbers = Node::Array();
    for (int i = 0; i < 40; ++i) {
        texts.Add(Node::Text("four"));
        numbers.Add(Node::Number(1000));
    }
    const std::string text = texts.Print();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 42);
    const std::string line = numbers.Print();
    EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 1);
}

// The room behind the text, and what of it is looked at sixteen bytes at a time, ends at no special place.
TEST(LineWriter, WritesPlainTextsOfRoomsOnlyWhereTheyTellAll) {
    for (std::size_t room = 1; room < 70; ++room) {
        for (std::size_t size = 0; size < room; ++size) {
            std::string text(size, 'x');
            text.resize(room);
            const auto* const bytes = reinterpret_cast<const std::byte*>(text.data());
            LineWriter line;
            line.Append("<");
            if (line.PlainText(bytes, room)) {
                EXPECT_EQ(line.text(), "<\"" + text.substr(0, size) + "\"");
            } else {
                EXPECT_EQ(line.text(), "<");
            }
            for (const char c : {'"', '\\', '\n', '\x80', '\xff'}) {
                if (size == 0) break;
                std::string other = text;
                other[size / 2] = c;
                EXPECT_FALSE(line.PlainText(reinterpret_cast<const std::byte*>(other.data()), room));
            }
            if (size + 1 == room) continue;
            std::string other = text;
            other.back() = 'y';
            EXPECT_FALSE(line.PlainText(reinterpret_cast<const std::byte*>(other.data()), room)) << room << ' ' << size;
        }
        const std::string full(room, 'x');
        LineWriter line;
        EXPECT_FALSE(line.PlainText(reinterpret_cast<const std::byte*>(full.data()), room));
    }
}

} // namespace
} // namespace orrery::tool
