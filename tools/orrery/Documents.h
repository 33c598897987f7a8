// What the companion prints of the tables themselves.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::tool {

enum class Listing : std::uint8_t { Commands, Events, Rules, Templates };
// A line each, behind a line that names the columns; as JSON a list of objects.
std::string List(Listing what, bool isJson = false);
// All that stands under a name: a command, an event, a rule or a record; else under the code of an event or a rule;
// else the members with a key. Nothing when there is none of them. `width`: of the lines; 0: as for a file.
std::optional<std::string> Describe(std::string_view name, std::size_t width = 0);
// All names that it knows.
std::vector<std::string_view> AllNames();
// Commands, records and events as one JSON document, from which bindings for other languages are made.
std::string Schema();
// A JSON Schema of a command's text; nothing when there is no such command.
std::optional<std::string> JsonSchema(std::string_view command);
// All tables and commands as plain text, a line a row, for reviews.
std::string Layout();

// How much of the tables the vocabulary says, and how much functions do.
struct Regularity {
    std::size_t rows = 0, customRows = 0, virtualRows = 0, guardedRows = 0;
    std::size_t tables = 0, functionTables = 0;
    std::size_t commands = 0, ownCommands = 0;
};
Regularity CountRegularity();
// "irregular: 8 of 250 rows (...), 2 of 20 tables, 0 of 19 commands".
std::string RegularityLine();

} // namespace orrery::tool
