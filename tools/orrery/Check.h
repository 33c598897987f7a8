// What a translation passes over, in lines for people and for programs.
#pragma once

#include "orrery/Run.h"

#include <optional>
#include <string>
#include <string_view>

namespace orrery::tool {

struct CheckOptions {
    bool json = false; // an object a line
    std::optional<std::uint32_t> records{};
};

// "FILE:LINE:COLUMN: lost: PATH (FIELD): what happens [kind]", a line a finding. `command` "events": a text of events;
// empty: the command that fits best, and why. kFound when there is a finding.
Result CheckText(std::string_view command, std::string_view file, std::string_view text,
                 const CheckOptions& options = {});

// Whether a first argument names something that a text can be checked for.
bool IsChecked(std::string_view command);

} // namespace orrery::tool
