#include "frame/record/Names.h"

#include "frame/JsonParser.h"

namespace orrery::record {

std::optional<std::int32_t> NameTable::CodeOf(std::string_view text) const noexcept {
    const std::uint64_t prefix = text.size() < 8 ? FoldedPrefix(text) : FoldedWord(text.data());
    for (std::uint16_t i = 0; i < count; ++i) {
        const Name* const row = rows + (lastWins ? count - 1 - i : i);
        if (row->prefix != prefix || row->text.size() != text.size()) continue;
        const bool exact = compare == Compare::Exact || row->compare == Compare::Exact;
        if (exact ? row->text == text : text.size() <= 8 || EqualsFolded(row->text, text)) return row->code;
    }
    if (unknownLeaves) return std::nullopt;
    return unknownCode;
}

const Name* NameTable::RowOf(std::int32_t code) const noexcept {
    if (countsUp) {
        const std::int64_t index = std::int64_t{code} - rows->code;
        return index >= 0 && index < count ? &rows[index] : nullptr;
    }
    for (const Name* row = rows; row != rows + count; ++row) {
        if (row->code == code) return row;
    }
    return nullptr;
}

} // namespace orrery::record
