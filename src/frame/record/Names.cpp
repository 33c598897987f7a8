#include "frame/record/Names.h"

#include "frame/JsonParser.h"

namespace orrery::record {

std::optional<std::int32_t> NameTable::CodeOf(std::string_view text) const noexcept {
    for (std::uint16_t i = 0; i < count; ++i) {
        const Name* const row = rows + (lastWins ? count - 1 - i : i);
        if (row->text.size() != text.size()) continue;
        const bool exact = compare == Compare::Exact || row->compare == Compare::Exact;
        if (exact ? row->text == text : EqualsFolded(row->text, text)) return row->code;
    }
    if (unknownLeaves) return std::nullopt;
    return unknownCode;
}

const Name* NameTable::RowOf(std::int32_t code) const noexcept {
    // Nearly every table counts its codes up from 0 or 1 without a gap.
    for (std::int32_t first : {0, 1}) {
        const std::int64_t index = std::int64_t{code} - first;
        if (index >= 0 && index < count && rows[index].code == code) {
            // An earlier row of the same code would have the text that is written.
            if (index == 0 || rows[index - 1].code != code) return &rows[index];
        }
    }
    for (const Name* row = rows; row != rows + count; ++row) {
        if (row->code == code) return row;
    }
    return nullptr;
}

} // namespace orrery::record
