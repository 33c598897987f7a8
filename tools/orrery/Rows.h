// Records and events as rows: comma-separated values for programs, columns for people.
#pragma once

#include "orrery/Output.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::tool {

enum class Format {
    Lines,  // an object a line
    Pretty, // an object over several lines, for people
    Csv,    // a row an event or a record, behind a row of names
    Table,  // the same in columns, for people
};
inline bool IsRows(Format format) {
    return format == Format::Csv || format == Format::Table;
}

// A text in a column; a code by its name; empty for what is not there.
std::string CellOf(const std::optional<Node>& member);

// One row with its line break. `width`: of the terminal, which it fits then; 0: of none.
std::string Row(Format format, std::size_t width, const std::vector<std::string>& columns,
                const std::function<std::string(const std::string& column)>& cellAt);
// The row of names.
std::string RowOfNames(Format format, std::size_t width, const std::vector<std::string>& columns);

} // namespace orrery::tool
