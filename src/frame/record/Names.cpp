#include "frame/record/Names.h"

#include "frame/JsonParser.h"

#include <cstring>

namespace orrery::record {

namespace {

// Whether a text of at most sixteen bytes is a row's, case and all.
bool IsShortSame(const Name& row, std::uint64_t leading, std::string_view text) noexcept {
    const std::size_t size = text.size();
    if (size > 16 || row.text.size() != size || row.leading != leading) return false;
    return size <= 8 || Word(row.text.data() + size - 8) == Word(text.data() + size - 8); // overlaps what is told
}

bool Fits(const Name& row, Compare compare, std::uint64_t leading, std::string_view text) noexcept {
    if (compare == Compare::Exact || row.compare == Compare::Exact) return row.leading == leading && row.text == text;
    return ((row.leading ^ leading) & ~NameHashes::kCase) == 0 && EqualsFolded(row.text, text);
}

[[gnu::noinline]] const Name* FindRow(const NameTable& table, std::uint64_t leading, std::string_view text) noexcept {
    const Name* found = nullptr;
    const auto take = [&](const Name& row) { // whether to go on
        if (Fits(row, table.compare, leading, text)) found = &row;
        return found == nullptr || table.lastWins;
    };
    if (table.index == nullptr) {
        for (const Name* row = table.rows; row != table.rows + table.count && take(*row);)
            ++row;
        return found;
    }
    const std::size_t mask = table.indexSize - 1u;
    std::size_t at = NameHashes::OfText(leading, text.size()) & mask;
    while (table.index[at] != 0 && take(table.rows[table.index[at] - 1]))
        at = (at + 1) & mask;
    return found;
}

} // namespace

const Name* NameTable::Find(std::string_view text) const noexcept {
    const std::uint64_t leading = text.size() < 8 ? ShortWord(text.data(), text.size()) : Word(text.data());
    if (index != nullptr && !lastWins) {
        // Devices write most names just as the rows have them, and most rows stand first at their place.
        const std::uint16_t first = index[NameHashes::OfText(leading, text.size()) & (indexSize - 1u)];
        if (first != 0 && IsShortSame(rows[first - 1], leading, text)) [[likely]]
            return &rows[first - 1];
    }
    return FindRow(*this, leading, text);
}

const Name* NameTable::RowOf(std::int32_t code) const noexcept {
    if (countsUp) {
        const std::int64_t place = std::int64_t{code} - rows->code;
        return place >= 0 && place < count ? &rows[place] : nullptr;
    }
    if (index != nullptr) {
        const std::uint16_t* const byCode = index + indexSize;
        const std::size_t mask = indexSize - 1u;
        for (std::size_t at = NameHashes::OfCode(code) & mask; byCode[at] != 0; at = (at + 1) & mask) {
            if (rows[byCode[at] - 1].code == code) return &rows[byCode[at] - 1];
        }
        return nullptr;
    }
    for (const Name* row = rows; row != rows + count; ++row) {
        if (row->code == code) return row;
    }
    return nullptr;
}

} // namespace orrery::record
