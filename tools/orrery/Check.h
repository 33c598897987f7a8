// What a translation passes over, in lines for people and for programs.
#pragma once

#include "orrery/Filter.h"
#include "orrery/Rows.h"
#include "orrery/Run.h"

#include "explain/Finding.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::tool {

struct CheckOptions {
    Format format = Format::Pretty;    // Pretty: a line for people
    std::vector<std::string> fields{}; // of a finding, such as "path"; none: all that it has
    std::vector<Filter> filters{};     // all of which a finding must pass to be told
    std::size_t width = 0;             // of a terminal, which rows fit then; 0: of none
    bool table = false;                // the text is the bare value, without the reply around it
    std::optional<std::uint32_t> records{};
};

// "FILE:LINE:COLUMN: lost: PATH (FIELD): what happens [kind]", a line a finding. `command` "events": texts of events;
// empty: the command that fits best, and why. kFound when there is a finding that is told.
Result CheckText(std::string_view command, std::string_view file, std::string_view text,
                 const CheckOptions& options = {});

// The same lines of findings that have their places in `text`, and of those that have none.
std::string FindingLines(const std::vector<explain::Finding>& findings, std::string_view file, std::string_view text,
                         const CheckOptions& options);

// The members of a finding, as columns.
std::vector<std::string> ColumnsOf(const CheckOptions& options);
// Throws std::invalid_argument for fields and filters of members that no finding has.
void RefuseUnknownMembers(const CheckOptions& options);

// Whether a first argument names something that a text can be checked for.
bool IsChecked(std::string_view command);
// Throws std::invalid_argument for a word that is no file and looks like a command: a path does not.
void RefuseMisspelt(const std::string& word);

} // namespace orrery::tool
