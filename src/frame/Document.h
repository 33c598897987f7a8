// Everything that one reading call needs besides the caller's buffers.
#pragma once

#include "frame/Arena.h"
#include "frame/Frames.h"
#include "frame/JsonParser.h"
#include "frame/LocalText.h"
#include "frame/json/Reader.h"

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

} // namespace orrery
