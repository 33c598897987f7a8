// Analyzer events as the companion shows them.
#pragma once

#include "orrery/Filter.h"
#include "orrery/Rows.h"
#include "orrery/Run.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::tool {

struct EventOptions {
    Format format = Format::Lines;
    bool all = false;                  // lists whole, also what is not in use
    bool brief = false;                // what the text told, and not the zeros around it
    std::vector<std::string> fields{}; // these members of the records only, such as "stuObject.nObjectID"
    std::vector<Filter> filters{};     // all of which an event must pass
    bool colour = false;               // of objects
    std::size_t width = 0;             // of a terminal, which lines fit then; 0: of none
    std::string file{};                // where the text comes from, printable, and at which line; empty: not told
    std::uint64_t line = 0;
};

// One object or row a delivered event: code, name, size, its action and its index in the text, where the text comes
// from, and the record by field names. What was passed over is told in notes. A text with keys of its own for what it
// carries, such as "ObjectList", is taken as such; what is a list there has "records", or an object or row each where
// fields or filters are asked for. kRefused for a text that is no JSON or holds no events.
Result ShowEvents(std::string_view text, const EventOptions& options = {});
// The same for one text of many: what is printed goes to `out`, and no colours yet.
Result ShowEvents(std::string_view text, const EventOptions& options, LineWriter& out);
// The same where the text is one document and nothing else; nothing is printed and nothing told where it is not.
std::optional<Result> ShowEventsOf(std::string_view text, const EventOptions& options, LineWriter& out);
// Objects in colours, if they are asked for.
bool IsColoured(const EventOptions& options);
std::string Coloured(std::string out, const EventOptions& options);

// The first line of a table or of comma-separated values; empty for objects.
std::string EventHead(const EventOptions& options);

} // namespace orrery::tool
