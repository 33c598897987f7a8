// Members of an object that are asked for by name and together.
#pragma once

#include "frame/json/Value.h"

#include <array>

namespace orrery::json {

void KeysMustAscend(); // is no constant: a call of it does not compile

// Keys in ascending order. How many is not deduced: g++ puts a constant of a deduced type where it can be written.
template <std::size_t N>
struct MemberKeys {
    std::array<std::string_view, N> texts;
    std::array<std::uint64_t, N> prefixes;

    template <class... Texts>
    consteval explicit MemberKeys(Texts... theTexts) : texts{theTexts...}, prefixes{KeyPrefix(texts[0])} {
        static_assert(sizeof...(Texts) == N);
        for (std::size_t i = 1; i < N; ++i) {
            if (texts[i - 1] >= texts[i]) KeysMustAscend();
            prefixes[i] = KeyPrefix(texts[i]);
        }
    }
};

// The values at the keys, each null when it is not there, by one pass over the members.
template <std::size_t N>
std::array<const Value*, N> ValuesAt(const Value& object, const MemberKeys<N>& keys) noexcept {
    std::array<const Value*, N> values;
    values.fill(&kNull);
    std::size_t next = 0;
    for (const Member& member : object.members()) {
        const std::uint64_t prefix = KeyPrefix(member);
        while (keys.prefixes[next] < prefix) {
            if (++next == N) return values;
        }
        for (std::size_t i = next; i < N && keys.prefixes[i] == prefix; ++i) {
            if (keys.texts[i].size() != member.keySize) continue;
            if (member.keySize <= 8 || keys.texts[i] == member.key()) values[i] = &member.value;
        }
    }
    return values;
}

} // namespace orrery::json
