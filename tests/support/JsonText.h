// Documents and texts of them, for tests that say what they mean in one line.
#pragma once

#include "frame/json/Reader.h"
#include "frame/json/TextWriter.h"

#include <string>
#include <string_view>

namespace orrery::test {

// A document with the memory it lives in. `ok` tells whether the text was read.
struct Document {
    explicit Document(std::string_view text) { ok = json::Parse(text, arena, root, &error); }

    StackArena<4096> arena;
    json::Value root;
    json::SyntaxError error;
    bool ok = false;
};

// The text of a value, without the final newline.
inline std::string TextOf(const json::Value& value) {
    StackArena<4096> arena;
    json::TextWriter measure(nullptr, 0);
    if (!measure.Write(value, arena)) return "(arena exhausted)";
    std::string text(measure.length(), '\0');
    json::TextWriter writer(text.data(), text.size());
    writer.Write(value, arena);
    return text;
}

} // namespace orrery::test
