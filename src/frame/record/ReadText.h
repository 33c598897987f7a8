// The second road of reading: members go from the text straight into the record, where a document of them would only be
// made to be read once.
//
// It runs the same tables as the document's road and gives the same records. A value that a table's words do not cover
// becomes a small document of its own; what a table cannot take at all as it comes, a key twice above all, ends the
// road, and whoever took it puts the record back and reads the document.
#pragma once

#include "frame/record/Engine.h"

namespace orrery::record {

struct TextCall {
    ReadCall& call;
    const char* end; // of the text

    Arena& arena() const noexcept { return call.parser.text().arena(); }
};

// Whether objects, or tuples, of this table are read from the text. Others become documents one by one.
constexpr bool IsInText(const Table& table) {
    if (table.shape == Shape::Object) return table.inText && table.self.count == 0;
    return table.inText && table.self.count <= kMostInTuple && table.fromRoot.count == 0;
}

// Reads a record from the value at `p`, as ReadRecord does. The byte behind the value; null when there is no way on,
// and any part of the record may have been read.
const char* ReadRecordText(const Table& table, const char* p, std::byte* record, TextCall& text,
                           std::string_view memberName = {}) noexcept;

} // namespace orrery::record
