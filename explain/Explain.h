// One explanation: a text, and the command or the events that it is for.
#pragma once

#include "explain/Walk.h"

#include "Commands.h"

#include <string_view>
#include <vector>

namespace orrery::explain {

struct Explanation {
    std::vector<Finding> findings; // in the order of the text
    std::uint32_t read = 0;        // keys
    std::uint32_t left = 0;
    bool isRefused = false;
};

// `records`: how many the caller's buffer holds; 0: enough. Throws std::bad_alloc.
// `tries` false leaves out what only trying would tell: findings about keys that a function may read are not told then.
Explanation ExplainReply(const Command& command, std::string_view text, std::uint32_t records = 0, bool tries = true);
Explanation ExplainEvents(std::string_view text, bool tries = true);

} // namespace orrery::explain
