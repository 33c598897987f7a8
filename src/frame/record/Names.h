// Name tables: the texts of an enumeration with their codes, and what happens to a text or a code that is in none.
#pragma once

#include "frame/With.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace orrery::record {

enum class Compare : std::uint8_t { Folded, Exact };

// The first eight bytes of a text, the first one lowest, zeros behind a shorter one: what a look-up compares.
constexpr std::uint64_t LeadingBytes(std::string_view text) {
    std::uint64_t leading = 0;
    for (std::size_t i = 0; i < 8 && i < text.size(); ++i)
        leading |= std::uint64_t{static_cast<unsigned char>(text[i])} << 8 * i;
    return leading;
}

// Whether a text goes out as it stands, and is no longer than names are.
inline constexpr std::size_t kLongestPlainName = 64;
constexpr bool IsPlainName(std::string_view text) {
    if (text.size() > kLongestPlainName) return false;
    for (const char c : text) {
        if (c == '"' || c == '\\' || c == '/' || (c >= 8 && c <= 13)) return false;
    }
    return true;
}

struct Name {
    std::int32_t code;
    Compare compare; // Exact: case counts in this one text, whatever the table says
    bool clean;      // nothing in it is escaped when it is written, and it is no longer than kLongestPlainName
    std::string_view text;
    std::uint64_t leading; // LeadingBytes(text)

    constexpr Name(std::int32_t itsCode, std::string_view itsText, Compare itsCompare = Compare::Folded)
        : code(itsCode), compare(itsCompare), clean(IsPlainName(itsText)), text(itsText),
          leading(LeadingBytes(itsText)) {}
};

// Where to look for a text or a code first: places of rows, from 1 on, in two tables of hashes; what is not at its
// place comes right behind it, in the order of the rows.
struct NameHashes {
    // What a capital and its small letter differ in. Other characters differ in it too: equal hashes tell nothing yet.
    static constexpr std::uint64_t kCase = 0x2020202020202020u;
    static constexpr std::uint32_t OfText(std::uint64_t leading, std::size_t size) {
        return static_cast<std::uint32_t>(((leading | kCase) + size) * 0x9E3779B97F4A7C15u >> 40);
    }
    static constexpr std::uint32_t OfCode(std::int32_t code) {
        return static_cast<std::uint32_t>(code) * 0x9E3779B1u >> 12;
    }
};
template <std::size_t N>
struct NameIndex {
    static constexpr std::size_t kSize = std::bit_ceil(2 * N);
    std::array<std::uint16_t, 2 * kSize> places{}; // by text, then by code

    constexpr void Put(std::size_t first, std::size_t hash, std::size_t row) {
        while (places[first + hash % kSize] != 0)
            ++hash;
        places[first + hash % kSize] = static_cast<std::uint16_t>(row + 1);
    }
};
// A function, as g++ leaves constants with constructors in memory that can be written.
template <std::size_t N>
constexpr NameIndex<N> IndexOver(const Name (&rows)[N]) {
    static_assert(N < 0xFFFF);
    NameIndex<N> index;
    for (std::size_t i = 0; i < N; ++i) {
        index.Put(0, NameHashes::OfText(rows[i].leading, rows[i].text.size()), i);
        index.Put(index.kSize, NameHashes::OfCode(rows[i].code), i);
    }
    return index;
}

// Texts in quotes as they are written, one behind the other, with kSlack bytes behind the last that may be loaded. In
// front of them stand their places, two bytes each, and one more for the end of the last. Only tables whose codes count
// up and whose texts need no escape have it.
struct QuotedNames {
    static constexpr std::size_t kPlace = sizeof(std::uint16_t);
    static constexpr std::size_t kSlack = 32;

    template <std::size_t N>
    static constexpr std::size_t SizeOf(const Name (&rows)[N]) {
        std::size_t size = (N + 1) * kPlace;
        for (std::size_t i = 0; i < N; ++i) {
            if (!rows[i].clean || rows[i].code != std::int64_t{rows[0].code} + static_cast<std::int64_t>(i)) return 0;
            size += rows[i].text.size() + 2;
        }
        return size + kSlack <= 0xFFFF ? size + kSlack : 0;
    }
    template <std::size_t Size, std::size_t N>
    static constexpr std::array<char, Size> Of(const Name (&rows)[N]) {
        std::array<char, Size> all{};
        if constexpr (Size > 0) {
            std::size_t at = (N + 1) * kPlace;
            for (std::size_t i = 0; i <= N; ++i) {
                const auto place = std::bit_cast<std::array<char, kPlace>>(static_cast<std::uint16_t>(at));
                for (std::size_t k = 0; k < kPlace; ++k)
                    all[i * kPlace + k] = place[k];
                if (i == N) break;
                all[at++] = '"';
                for (const char c : rows[i].text)
                    all[at++] = c;
                all[at++] = '"';
            }
        }
        return all;
    }
};

struct NameTable {
    enum class Outside : std::uint8_t { NoKey, Null, Text };

    const Name* rows = nullptr;
    const std::uint16_t* index = nullptr; // a NameIndex; null: the rows are looked at one by one
    const char* quoted = nullptr;         // QuotedNames, when it has them
    std::int32_t firstCode = 0;
    std::uint16_t count = 0;
    std::uint16_t indexSize = 0; // of either half
    Compare compare = Compare::Folded;
    bool countsUp = false; // the codes go up by one from row to row, as those of nearly every table do
    bool unknownLeaves = false;
    bool lastWins = false;
    std::int32_t unknownCode = 0;
    Outside outside = Outside::NoKey;
    std::string_view outsideText;

    // What a text of no row reads as: a code (0 without this word), or the field stays as it is.
    constexpr NameTable Unknown(std::int32_t code) const {
        return With(With(*this, &NameTable::unknownCode, code), &NameTable::unknownLeaves, false);
    }
    constexpr NameTable UnknownLeaves() const { return With(*this, &NameTable::unknownLeaves, true); }
    // Of several rows with the same text the last one's code is read.
    constexpr NameTable LastWins() const { return With(*this, &NameTable::lastWins, true); }
    // What a code of no row writes; without either word the key is left out.
    constexpr NameTable OutsideWrites(std::string_view text) const {
        return With(With(*this, &NameTable::outside, Outside::Text), &NameTable::outsideText, text);
    }
    constexpr NameTable OutsideWritesNull() const { return With(*this, &NameTable::outside, Outside::Null); }

    // The code of a text: that of the first (or last) row that matches, else what Unknown says.
    std::optional<std::int32_t> CodeOf(std::string_view text) const noexcept {
        if (const Name* const row = Find(text)) return row->code;
        return unknownLeaves ? std::nullopt : std::optional(unknownCode);
    }
    // The row of a text; null when there is none.
    const Name* Find(std::string_view text) const noexcept;
    // The row whose text a code writes: the first with that code; null when there is none.
    const Name* RowOf(std::int32_t code) const noexcept;
};

template <std::size_t N>
constexpr NameTable NamesOver(const Name (&rows)[N], NameTable policy) {
    policy.rows = rows;
    policy.count = N;
    policy.firstCode = rows[0].code;
    policy.countsUp = true;
    for (std::size_t i = 1; i < N; ++i)
        policy.countsUp = policy.countsUp && rows[i].code == std::int64_t{rows[i - 1].code} + 1;
    return policy;
}

template <std::size_t N>
constexpr NameTable NamesOver(const Name (&rows)[N], NameTable policy, const NameIndex<N>& index) {
    policy = NamesOver(rows, policy);
    policy.index = index.places.data();
    policy.indexSize = NameIndex<N>::kSize;
    return policy;
}

template <std::size_t N, std::size_t Size>
constexpr NameTable NamesOver(const Name (&rows)[N], NameTable policy, const NameIndex<N>& index,
                              const std::array<char, Size>& quoted) {
    policy = NamesOver(rows, policy, index);
    if (Size > 0) policy.quoted = quoted.data();
    return policy;
}

// How a name table compares; its other words follow.
inline constexpr NameTable kFolded;
inline constexpr NameTable kExact = With(NameTable{}, &NameTable::compare, Compare::Exact);

// For a second table over the same rows.
template <std::size_t N>
constexpr NameTable FoldedNames(const Name (&rows)[N]) {
    return NamesOver(rows, kFolded);
}
template <std::size_t N>
constexpr NameTable ExactNames(const Name (&rows)[N]) {
    return NamesOver(rows, kExact);
}

} // namespace orrery::record

// A name table in one statement:
//
//     NAMES(kSensorTypes, kFolded.Unknown(1).OutsideWrites("NO"),
//           {
//               {0, "NC"},
//               {1, "NO"},
//           });
#define NAMES(table, policy, ...)                                                                                      \
    inline constexpr ::orrery::record::Name table##Rows[] = __VA_ARGS__;                                               \
    inline constexpr ::orrery::record::NameIndex table##Index = ::orrery::record::IndexOver(table##Rows);              \
    inline constexpr auto table##Quoted =                                                                              \
        ::orrery::record::QuotedNames::Of<::orrery::record::QuotedNames::SizeOf(table##Rows)>(table##Rows);            \
    inline constexpr ::orrery::record::NameTable table =                                                               \
        ::orrery::record::NamesOver(table##Rows, policy, table##Index, table##Quoted)
