// Replies with templates of analysis settings.
#pragma once

#include "frame/Frames.h"
#include "frame/record/Table.h"

#include "orrery/analyse_templates.h"

#include <span>
#include <string_view>

namespace orrery {

struct TemplateRow {
    std::string_view name;
    const record::Table* table;
    bool isByClass; // stands under the name of the class that is asked for
    Outcome (*read)(std::int32_t classType, const ParseRequest& request) noexcept;
};

// The commands that templates answer, by exact names.
std::span<const TemplateRow> Templates() noexcept;
const TemplateRow* FindTemplate(std::string_view name) noexcept;

// Reads a reply; Outcome::UnknownCommand leaves the output alone.
Outcome ParseTemplate(const char* command, std::int32_t classType, const ParseRequest& request) noexcept;

} // namespace orrery
