#include "frame/record/Names.h"

#include "frame/JsonParser.h"

#include <cstring>

namespace orrery::record {

namespace {

template <class Word>
bool SameEnds(const char* left, const char* right, std::size_t size) noexcept {
    Word words[4];
    std::memcpy(&words[0], left, sizeof(Word));
    std::memcpy(&words[1], right, sizeof(Word));
    std::memcpy(&words[2], left + size - sizeof(Word), sizeof(Word));
    std::memcpy(&words[3], right + size - sizeof(Word), sizeof(Word));
    return ((words[0] ^ words[1]) | (words[2] ^ words[3])) == 0;
}

// Of names, which are short as a rule.
bool Same(const char* left, const char* right, std::size_t size) noexcept {
    if (size > 16) return std::memcmp(left, right, size) == 0;
    if (size >= 8) return SameEnds<std::uint64_t>(left, right, size);
    if (size >= 4) return SameEnds<std::uint32_t>(left, right, size);
    if (size >= 2) return SameEnds<std::uint16_t>(left, right, size);
    return size == 0 || *left == *right;
}

bool Fits(const Name& row, Compare compare, std::uint64_t prefix, std::string_view text) noexcept {
    if (row.prefix != prefix || row.text.size() != text.size()) return false;
    if (compare == Compare::Exact || row.compare == Compare::Exact)
        return Same(row.text.data(), text.data(), text.size());
    if (text.size() <= 8) return true;
    if (text.size() > 16) return EqualsFolded(row.text, text);
    const std::size_t last = text.size() - 8; // overlaps what the prefix has told
    return FoldedWord(row.text.data() + last) == FoldedWord(text.data() + last);
}

} // namespace

const Name* NameTable::Find(std::string_view text) const noexcept {
    const std::uint64_t prefix = text.size() < 8 ? FoldedShort(text.data(), text.size()) : FoldedWord(text.data());
    const Name* found = nullptr;
    if (index != nullptr) {
        const std::size_t mask = indexSize - 1u;
        for (std::size_t at = NameHashes::OfText(prefix, text.size()) & mask; index[at] != 0; at = (at + 1) & mask) {
            const Name& row = rows[index[at] - 1];
            if (!Fits(row, compare, prefix, text)) continue;
            if (!lastWins) return &row;
            found = &row;
        }
        return found;
    }
    for (std::uint16_t i = 0; i < count && (found == nullptr || lastWins); ++i) {
        if (Fits(rows[i], compare, prefix, text)) found = &rows[i];
    }
    return found;
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
