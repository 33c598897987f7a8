// Templates of analysis settings as the companion shows them.
#pragma once

#include "orrery/Run.h"

namespace orrery::tool {

struct TemplateOptions {
    std::string ruleClass{}; // whose template is asked for; the whole scene has none
    bool all = false;        // lists whole, also what is not in use
};

// The record that a method's reply gives, by field names.
Result ShowTemplate(std::string_view command, std::string_view text, const TemplateOptions& options = {});

} // namespace orrery::tool
