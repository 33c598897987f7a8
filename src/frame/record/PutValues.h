// Values that their nodes say all of, put where there is room for them. Each answers its end.
#pragma once

#include "frame/json/Pen.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <bit>

namespace orrery::record {

inline constexpr std::size_t kNameRoom = kLongestPlainName + 16; // quotes, and what a store goes beyond
// What any value but a text takes at the most.
inline constexpr std::size_t kValueRoom = std::max({json::kRealRoom, json::Hand::kPadding, kNameRoom});
// What a key and any value but a text take at the most, with what stands in front of them; a key's padding lies within
// the value's room.
inline constexpr std::size_t kMemberRoom = json::Hand::kSeparator + kLongestPlainKey + kQuotesAndColon + kValueRoom;
static_assert(kKeyTextSlack >= json::Hand::kPadding);

inline char* PutKey(char* at, const Table& table, const Node& node) noexcept {
    return json::Hand::PutKey(at, table.keyTexts + node.quotedAt, node.keySize + kQuotesAndColon);
}

inline std::int64_t LoadScalar(const Node& node, const std::byte* at) noexcept {
    return LoadInteger(node.cell, at);
}
inline double LoadFraction(const Node& node, const std::byte* at) noexcept {
    return node.cell == Cell::F32 ? double{Load<float>(at)} : Load<double>(at);
}
// Of a Switch or a SwitchAtOne.
inline bool LoadSwitch(const Node& node, const std::byte* at) noexcept {
    const auto number = Load<std::int32_t>(at);
    return node.way == Way::Switch ? number != 0 : number == 1;
}

inline char* PutInteger(char* to, const Node& node, const std::byte* at) noexcept {
    const std::int64_t number = LoadScalar(node, at);
    if (node.kind == Kind::Bool) return json::Pen::PutBool(to, number != 0);
    return node.kind == Kind::Int ? json::PutDigits(to, static_cast<std::int32_t>(number))
                                  : json::PutDigits(to, static_cast<std::uint32_t>(number));
}

inline std::int32_t CodeAt(const Node& node, const std::byte* at) noexcept {
    if (node.cell == Cell::I32) [[likely]]
        return Load<std::int32_t>(at);
    return static_cast<std::int32_t>(LoadScalar(node, at));
}

// The row of a code's text; null when it has none.
inline const Name* NameOf(const NameTable& names, std::int32_t code) noexcept {
    if (!names.countsUp) return names.RowOf(code);
    const std::int64_t place = std::int64_t{code} - names.rows->code;
    return place >= 0 && place < names.count ? &names.rows[place] : nullptr;
}

inline char* PutName(char* to, std::string_view clean) noexcept {
    *to = '"';
    to = json::CopyShort(to + 1, clean.data(), clean.size());
    *to = '"';
    return to + 1;
}

// The text of a code in quotes. Null when it has none or needs an escape.
[[gnu::always_inline]] inline char* PutNamed(char* to, const NameTable& names, std::int32_t code) noexcept {
    const auto place = static_cast<std::uint64_t>(std::int64_t{code} - names.firstCode);
    if (names.quoted == nullptr) [[unlikely]] {
        const Name* const name = NameOf(names, code);
        return name != nullptr && name->clean ? PutName(to, name->text) : nullptr;
    }
    if (place >= names.count) return nullptr;
    std::uint16_t places[2];
    std::memcpy(places, names.quoted + place * QuotedNames::kPlace, sizeof places);
    const char* const from = names.quoted + places[0];
    const std::size_t size = places[1] - places[0];
    std::memcpy(to, from, 16);
    for (std::size_t i = 16; i < size; i += 16)
        std::memcpy(to + i, from + i, 16);
    return to + size;
}

// Whether the bytes of a text go out as they stand, if all of them are ASCII or `asciiOnly` is false.
struct TextWay {
    bool copies;
    bool asciiOnly;

    TextWay(bool isLocal, const LocalText& texts) noexcept
        : copies(!isLocal || texts.isCopy() || texts.isCopyOfAscii()), asciiOnly(isLocal && !texts.isCopy()) {}
};
// Null for a text that is converted.
inline char* PutText(char* to, const Node& node, const std::byte* at, const WriteCall& call) noexcept {
    const TextWay way(node.way == Way::Local, call.parser.text());
    return way.copies ? json::PutText(to, reinterpret_cast<const char*>(at), node.elementSize, way.asciiOnly) : nullptr;
}

// The numbers of the bits that are set in `size` bytes of 32-bit words.
constexpr std::size_t MaskRoom(std::size_t size) {
    const std::size_t digits = 8 * size <= 1000 ? 3 : json::kIntegerRoom;
    return 8 * size * (json::Hand::kSeparator + digits) + 8;
}
inline char* PutMask(char* to, const std::byte* at, std::size_t size) noexcept {
    char* next = to;
    std::uint32_t number = 0;
    const auto put = [&](auto bits) {
        for (; bits != 0; bits &= bits - 1) {
            const auto bit = static_cast<std::uint32_t>(std::countr_zero(bits));
            next = json::PutDigits(json::Hand::Separate(next), number + bit);
        }
    };
    // Two words at once; most of a mask is zero.
    for (; number / 8 + 8 <= size; number += 64) {
        const std::byte* const words = at + number / 8;
        if (const std::uint64_t bits = Load<std::uint32_t>(words) | std::uint64_t{Load<std::uint32_t>(words + 4)} << 32)
            put(bits);
    }
    if (number / 8 < size) put(Load<std::uint32_t>(at + number / 8));
    return json::Hand::PutBrackets(to, next != to ? next : to + json::Hand::kSeparator);
}

// A record that stands as an array of 32-bit numbers.
inline std::size_t NumbersRoom(const Table& table) noexcept {
    return 4 + (2 + json::kIntegerRoom) * std::size_t{table.self.count};
}
inline char* PutNumbers(char* to, const Table& table, const std::byte* record) noexcept {
    const Node* node = table.nodes + table.self.first;
    std::memcpy(to, "[ ", 2);
    to += 2;
    for (std::uint32_t i = 0; i < table.self.count; ++i, ++node) {
        to = json::PutDigits(to, Load<std::int32_t>(record + node->offset));
        std::memcpy(to, ", ", 2);
        to += 2;
    }
    std::memcpy(to - 2, " ]", 2);
    return to;
}

} // namespace orrery::record
