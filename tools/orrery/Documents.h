// What the companion prints of the tables themselves.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace orrery::tool {

// A line a command: name, directions, record, frame.
std::string CommandList();
// A command or an event with its record, or a record; nothing when there is none of them.
std::optional<std::string> Describe(std::string_view name);
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
