// Text to document.
#pragma once

#include "frame/json/Value.h"

namespace orrery::json {

// Where and why a text is no JSON, for tools that tell their user. The library itself never tells.
struct SyntaxError {
    const char* message = nullptr; // a constant text
    std::size_t offset = 0;        // of the byte at which reading stopped
};

// Reads the first complete value of `text`; what follows it is ignored. Comments between tokens are skipped, the depth
// is bounded by memory only. False on a syntax error (`error`, when given, tells which) or when the arena is exhausted
// (`arena.failed()`). The document's strings may lie in `text` itself.
bool Parse(std::string_view text, Arena& arena, Value& root, SyntaxError* error = nullptr) noexcept;

// Reads the value at `p`, inside a text of less than four gigabytes that ends at `end`; the byte behind it, or null as
// above.
const char* ParseAt(const char* p, const char* end, Arena& arena, Value& value) noexcept;

} // namespace orrery::json
