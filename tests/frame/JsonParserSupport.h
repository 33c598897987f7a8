// What the tests of the codecs share: a parsed text, and the text that a writer leaves.
#pragma once

#include "frame/JsonParser.h"
#include "frame/json/Reader.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace orrery::test {

class ParsedText {
  public:
    explicit ParsedText(std::string text) : text_(std::move(text)) {
        EXPECT_TRUE(json::Parse(text_, arena_, root_)) << text_;
    }
    const json::Value& root() const { return root_; }

  private:
    std::string text_;
    StackArena<4096> arena_;
    json::Value root_;
};

template <class Writer>
std::string TextOf(Writer write) {
    std::vector<char> room(1 << 16);
    json::TextWriter out(room.data(), room.size());
    write(out);
    EXPECT_TRUE(out.fits());
    return {room.data(), out.length()};
}

inline json::Value StringValue(std::string_view text) {
    return json::Value::OfString(text);
}

} // namespace orrery::test
