// Two replies side by side, as the records that they become.
#pragma once

#include "orrery/Run.h"

#include <string_view>

namespace orrery::tool {

// A line a member that differs: "stuServers[1].nPort: 123 -> 124". What packing would not show, so that a device that
// gets either record notices nothing of it, is told as such. kFound when the records differ.
Result DiffTexts(std::string_view command, std::string_view left, std::string_view right);

} // namespace orrery::tool
