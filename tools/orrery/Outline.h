// The line of a cleared record, prepared once a table: most members of a device's record are zeros, so that whole
// stretches of it are copied and only what differs is printed.
#pragma once

#include "frame/record/Engine.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace orrery::tool {

struct Outline {
    // How a value is printed that is no zero: nearly all need none of what their rows can say.
    enum class Way : std::uint8_t { General, Number, Code, Text, Record };
    struct Member {
        const record::Field* field;
        std::string_view name;
        // In the text: from the comma before its name, from its value, and its end.
        std::uint32_t begin, value, end;
        std::uint32_t offset, size; // in the record
        record::Slot count;         // of a list in use its elements are printed, zeros or not
        Way way;
        bool isAlike;         // zeros print what stands in the text
        bool isPlainlyBlank;  // it says nothing just where it is zeros
        const Outline* inner; // of a record in its place
    };
    std::string text; // and some bytes behind it, which may be read
    std::size_t textSize = 0;
    std::vector<Member> members;     // in the record's order
    std::vector<std::uint16_t> at;   // of each kPerLook bytes of the record: the first member that ends behind them
    std::vector<std::uint16_t> asks; // members that zeros alone don't tell of
    std::size_t size = 0;            // of the record

    static constexpr std::size_t kPerLook = 4;
    // Once text and members are there.
    void End(std::size_t recordSize);

    std::string_view Part(std::size_t begin, std::size_t end) const { return {text.data() + begin, end - begin}; }

    // Calls `visit` with each member whose bytes are not all 0, true, and with those that must be asked, false when
    // all of theirs are.
    template <class Visit>
    void EachTold(const std::byte* record, const Visit& visit) const;
};

// The first byte that is not 0, of those from `from` on; `size` when all are.
std::size_t FirstSet(const std::byte* record, std::size_t from, std::size_t size);
bool IsClear(const std::byte* at, std::size_t size);

template <class Visit>
void Outline::EachTold(const std::byte* record, const Visit& visit) const {
    auto ask = asks.begin();
    for (std::size_t from = 0;;) {
        from = FirstSet(record, from, size);
        std::size_t next = from < size ? at[from / kPerLook] : members.size();
        while (next < members.size() && members[next].offset + members[next].size <= from)
            ++next;
        for (; ask != asks.end() && *ask < next; ++ask)
            visit(members[*ask], false);
        if (next == members.size()) return;
        const Member& member = members[next];
        if (from < member.offset) { // between members
            from = member.offset;
            continue;
        }
        from = member.offset + member.size;
        if (ask != asks.end() && *ask == next) ++ask;
        visit(member, true);
    }
}

} // namespace orrery::tool
