#include "frame/record/Names.h"

#include "frame/JsonParser.h"

#include <cstring>

namespace orrery::record {

namespace {

// FoldedPrefix of a short text, of which nothing behind it may be loaded: its two ends, which overlap.
std::uint64_t FoldedShort(std::string_view text) noexcept {
    if constexpr (std::endian::native == std::endian::big) return FoldedPrefix(text);
    const std::size_t size = text.size();
    char bytes[8] = {};
    if (size >= 4) {
        std::uint32_t low, high;
        std::memcpy(&low, text.data(), 4);
        std::memcpy(&high, text.data() + size - 4, 4);
        const std::uint64_t word = std::uint64_t{low} | std::uint64_t{high} << 8 * (size - 4);
        std::memcpy(bytes, &word, 8);
        return FoldedWord(bytes);
    }
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = text[i];
    return FoldedWord(bytes);
}

bool Fits(const Name& row, Compare compare, std::uint64_t prefix, std::string_view text) noexcept {
    if (row.prefix != prefix || row.text.size() != text.size()) return false;
    if (compare == Compare::Exact || row.compare == Compare::Exact) return row.text == text;
    return text.size() <= 8 || EqualsFolded(row.text, text);
}

} // namespace

std::optional<std::int32_t> NameTable::CodeOf(std::string_view text) const noexcept {
    const std::uint64_t prefix = text.size() < 8 ? FoldedShort(text) : FoldedWord(text.data());
    const Name* found = nullptr;
    if (index != nullptr) {
        const std::size_t mask = indexSize - 1u;
        for (std::size_t at = NameHashes::OfText(prefix, text.size()) & mask; index[at] != 0; at = (at + 1) & mask) {
            const Name& row = rows[index[at] - 1];
            if (!Fits(row, compare, prefix, text)) continue;
            found = &row;
            if (!lastWins) break;
        }
    } else {
        for (std::uint16_t i = 0; i < count && (found == nullptr || lastWins); ++i) {
            if (Fits(rows[i], compare, prefix, text)) found = &rows[i];
        }
    }
    if (found != nullptr) return found->code;
    if (unknownLeaves) return std::nullopt;
    return unknownCode;
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
