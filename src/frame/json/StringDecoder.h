// Strings of a text that hold escapes.
#pragma once

#include "frame/json/Scan.h"
#include "frame/json/Value.h"

namespace orrery::json {

// What an escaped string gave. `message` is null when it was read; otherwise reading stopped at `stop`.
struct DecodedString {
    std::string_view text;      // in the arena, followed by kSlack bytes that may be loaded
    const char* stop = nullptr; // behind the closing quote
    const char* message = nullptr;
    bool unterminated = false; // the text ended before the string did
    bool exhausted = false;    // the arena has failed

    static constexpr std::size_t kSlack = kKeySlack;
};

// Reads the string that begins at `begin`, behind its quote, and whose first backslash is at `backslash`.
DecodedString DecodeString(const char* begin, const char* backslash, const char* end, Arena& arena) noexcept;

} // namespace orrery::json
