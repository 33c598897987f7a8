// Everything that one call needs besides the caller's buffers: a document that is read, or a text that is written.
#pragma once

#include "frame/Arena.h"
#include "frame/Frames.h"
#include "frame/JsonParser.h"
#include "frame/LocalText.h"
#include "frame/json/Reader.h"
#include "frame/record/Engine.h"

namespace orrery {

// A reply of a few kilobytes fits the first chunk.
struct Document {
    StackArena<std::size_t{16} << 10> arena;
    LocalText text{arena};
    JsonParser parser{text};
    json::Value root;

    Outcome Parse(const char* source) noexcept {
        if (json::Parse(std::string_view(source), arena, root)) return Outcome::Done;
        return arena.failed() ? Outcome::OutOfMemory : Outcome::NoJson;
    }
};

// One pass over a text on its way out.
struct WrittenText {
    StackArena<std::size_t{4} << 10> arena;
    LocalText text{arena};
    JsonParser parser{text};
    record::WriteCall call;

    explicit WrittenText(json::TextWriter& out) noexcept : call{parser, out, nullptr, false, {}} {}

    // Ends the text. It is no good when memory ran out or a row's function refused.
    Outcome End() noexcept {
        call.out.EndText();
        if (arena.failed()) return Outcome::OutOfMemory;
        return call.refused ? Outcome::RowRefused : Outcome::Done;
    }
};

} // namespace orrery
