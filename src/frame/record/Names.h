// Name tables: the texts of an enumeration with their codes, and what happens to a text or a code that is in none.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace orrery::record {

enum class Compare : std::uint8_t { Folded, Exact };

struct Name {
    std::int32_t code;
    std::string_view text;
    Compare compare = Compare::Folded; // Exact: case counts in this one text, whatever the table says
};

struct NameTable {
    enum class Outside : std::uint8_t { NoKey, Null, Text };

    const Name* rows = nullptr;
    std::uint16_t count = 0;
    Compare compare = Compare::Folded;
    bool unknownLeaves = false;
    bool lastWins = false;
    std::int32_t unknownCode = 0;
    Outside outside = Outside::NoKey;
    std::string_view outsideText;

    // What a text of no row reads as: a code (0 without this word), or the field stays as it is.
    constexpr NameTable Unknown(std::int32_t code) const {
        NameTable table = *this;
        table.unknownCode = code;
        table.unknownLeaves = false;
        return table;
    }
    constexpr NameTable UnknownLeaves() const {
        NameTable table = *this;
        table.unknownLeaves = true;
        return table;
    }
    // Of several rows with the same text the last one's code is read.
    constexpr NameTable LastWins() const {
        NameTable table = *this;
        table.lastWins = true;
        return table;
    }
    // What a code of no row writes; without either word the key is left out.
    constexpr NameTable OutsideWrites(std::string_view text) const {
        NameTable table = *this;
        table.outside = Outside::Text;
        table.outsideText = text;
        return table;
    }
    constexpr NameTable OutsideWritesNull() const {
        NameTable table = *this;
        table.outside = Outside::Null;
        return table;
    }

    // The code of a text: that of the first (or last) row that matches, else what Unknown says.
    std::optional<std::int32_t> CodeOf(std::string_view text) const noexcept;
    // The row whose text a code writes: the first with that code; null when there is none.
    const Name* RowOf(std::int32_t code) const noexcept;
};

template <std::size_t N>
constexpr NameTable FoldedNames(const Name (&rows)[N]) {
    NameTable table;
    table.rows = rows;
    table.count = N;
    return table;
}

template <std::size_t N>
constexpr NameTable ExactNames(const Name (&rows)[N]) {
    NameTable table = FoldedNames(rows);
    table.compare = Compare::Exact;
    return table;
}

} // namespace orrery::record
