// Codecs that several families need and that are functions of their own, as words for their rows.
#pragma once

#include "frame/record/Rows.h"

namespace orrery::record {

// List of texts, each setting the bit that the table gives it.
extern const CustomCodec kNamedBits;
struct NamedBits {
    static constexpr Kind kind = Kind::Custom;
    static constexpr bool wholeMember = true;
    template <class T>
    static constexpr bool accepts = std::is_same_v<T, std::uint32_t>;
    const CustomCodec* codec = &kNamedBits;
    const NameTable* names;
    constexpr explicit NamedBits(const NameTable& table) : names(&table) {}
    explicit NamedBits(const NameTable&&) = delete; // the row points to the table
};

// A word whose codec is a function of its own, tied to the member types that it takes.
#define FUNCTION_CODEC(word, function, condition)                                                                      \
    extern const CustomCodec function;                                                                                 \
    struct word##Codec {                                                                                               \
        static constexpr Kind kind = Kind::Custom;                                                                     \
        static constexpr bool wholeMember = true;                                                                      \
        template <class T>                                                                                             \
        static constexpr bool accepts = condition;                                                                     \
        const CustomCodec* codec = &function;                                                                          \
    };                                                                                                                 \
    inline constexpr word##Codec word {}

// A number that counts from 1 in the text and from 0 in the record, such as a channel's.
FUNCTION_CODEC(FromOne, kFromOne, (std::is_same_v<T, std::int32_t> || std::is_same_v<T, std::uint32_t>));
// How a joined picture is divided, by the names that composed pictures have: prefixes in any case, a name for every
// code but negative ones, which write no key.
FUNCTION_CODEC(SplitName, kSplitName, (std::is_same_v<T, std::int32_t>));

} // namespace orrery::record
