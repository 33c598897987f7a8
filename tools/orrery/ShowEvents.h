// Analyzer events as the companion shows them.
#pragma once

#include "orrery/Run.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::tool {

struct EventOptions {
    bool pretty = false;               // over several lines, for people
    bool all = false;                  // lists whole, also what is not in use
    bool brief = false;                // what the text told, and not the zeros around it
    std::vector<std::string> fields{}; // these members of the records only, such as "stuObject.nObjectID"
    std::string file{};                // where the text comes from, and at which line; empty: not told
    std::uint64_t line = 0;
};

// One object a delivered event: code, name, size, its action and its index in the text, where the text comes from, and
// the record by field names. What was passed over is told in notes. A text
// with keys of its own for what it carries, such as "ObjectList", is taken as such; what is a list there has "records".
Result ShowEvents(std::string_view text, const EventOptions& options = {});

} // namespace orrery::tool
