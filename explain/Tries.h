// What only a function could read is tried: the text is translated once as it is and once without the value, and only
// what changes no record is told.
#pragma once

#include "explain/Finding.h"

#include "Commands.h"

#include <string_view>
#include <vector>

namespace orrery::explain {

// Drops the findings to be tried whose values some function reads. `command` null: a text of events. The findings have
// their places.
void DropWhatIsRead(const Command* command, std::string_view text, const json::Value& root, std::uint32_t records,
                    std::vector<Finding>& findings);

} // namespace orrery::explain
