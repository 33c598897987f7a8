// Analyzer events as the companion shows them.
#pragma once

#include "orrery/Run.h"

namespace orrery::tool {

struct EventOptions {
    bool pretty = false; // over several lines, for people
    bool all = false;    // lists whole, also what is not in use
};

// One object a delivered event: code, name, size, record by field names. What was passed over is told in notes. A text
// with keys of its own for what it carries, such as "ObjectList", is taken as such; what is a list there has "records".
Result ShowEvents(std::string_view text, const EventOptions& options = {});

} // namespace orrery::tool
