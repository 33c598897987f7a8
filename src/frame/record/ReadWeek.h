// Weeks from the text: periods of days, each straight into its place, where a document of them would take longer to
// make than all else of the command.
#pragma once

#include "frame/record/ReadText.h"

namespace orrery::record {

// What was read last, for a row that takes the same week.
struct Week {
    const char* after = nullptr; // the byte behind its text; null before any was read
    const std::byte* sections = nullptr;
    std::uint32_t columns = 0;
    std::uint32_t rows = 0; // days that were read
    JsonParser::UsualDays days;
};

// Reads the row of a node that is a week from the bracket at `p`, or copies what was read from it before. False for
// anything that is not written as all but a few devices do: the row then reads the value as any other, over what was
// read here.
bool ReadWeek(const Table& table, const Node& node, const char* p, std::byte* record, TextCall& text,
              Week& week) noexcept;

} // namespace orrery::record
