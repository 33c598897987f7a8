#include "frame/json/MemberOrder.h"

#include <algorithm>

namespace orrery::json {

namespace {

constexpr std::size_t kRun = 8; // short enough to be sorted by insertion

// `prefix` is the left key's.
bool Below(std::uint64_t prefix, const Member& left, const Member& right) noexcept {
    const std::uint64_t rightPrefix = KeyPrefix(right);
    return prefix != rightPrefix ? prefix < rightPrefix : CompareKeys(left.key(), right.key()) < 0;
}
bool MemberBelow(const Member& left, const Member& right) noexcept {
    return Below(KeyPrefix(left), left, right);
}

void InsertionSort(Member* first, Member* last) noexcept {
    for (Member* next = first + 1; next < last; ++next) {
        const Member member = *next;
        const std::uint64_t prefix = KeyPrefix(member);
        Member* hole = next;
        for (; hole != first && Below(prefix, member, hole[-1]); --hole)
            *hole = hole[-1];
        *hole = member;
    }
}

// Objects of devices that keep an order of their own have a few dozen members: where these belong is found by their
// prefixes alone, for the most part, and each moves once.
constexpr std::uint32_t kFew = MemberOrders::kMost;
static_assert(kFew < 64);

// Whether the members come in the order of those before; they are sorted then, and no key stands twice.
bool SortAlike(Member* members, const Member* same, std::uint32_t count, const std::uint8_t* places) noexcept {
    std::uint64_t before = 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        const Member& member = same[places[i]];
        const std::uint64_t prefix = KeyPrefix(member);
        if (i > 0 && before >= prefix) {
            if (before > prefix || CompareKeys(members[i - 1].key(), member.key()) >= 0) return false;
        }
        before = prefix;
        members[i] = member;
    }
    return true;
}

struct Place {
    std::uint64_t prefix; // of the member's key
    std::uint32_t index;  // the member
};
static_assert(sizeof(Place) <= sizeof(Member) && alignof(Place) <= alignof(Member));

std::uint32_t SortFew(Member* members, Place* places, std::uint32_t count, std::uint8_t* order) noexcept {
    for (std::uint32_t next = 0; next < count; ++next) {
        const std::uint64_t prefix = KeyPrefix(members[next]);
        Place* hole = places + next;
        for (; hole != places; --hole) {
            const Place before = hole[-1];
            if (before.prefix < prefix) break;
            if (before.prefix == prefix && CompareKeys(members[before.index].key(), members[next].key()) <= 0) break;
            *hole = before;
        }
        *hole = {prefix, next};
    }
    for (std::uint32_t i = 0; i < count; ++i)
        order[i] = static_cast<std::uint8_t>(places[i].index);
    for (std::uint32_t first = 0; first < count; ++first) {
        if (places[first].index == first) continue;
        const Member held = members[first];
        std::uint32_t to = first;
        for (;;) {
            const std::uint32_t from = places[to].index;
            places[to].index = to;
            if (from == first) break;
            members[to] = members[from];
            to = from;
        }
        members[to] = held;
    }
    std::uint32_t kept = 0;
    for (std::uint32_t index = 0; index < count; ++index) {
        const bool replaced = index + 1 < count && places[index].prefix == places[index + 1].prefix
                              && members[index].key() == members[index + 1].key();
        if (replaced) continue;
        if (kept != index) members[kept] = members[index];
        ++kept;
    }
    return kept;
}

} // namespace

std::uint32_t SortMembers(Member* members, Member* same, std::uint32_t count, MemberOrders& orders) noexcept {
    if (count <= kFew) {
        if ((orders.known >> count & 1) != 0) {
            if (SortAlike(members, same, count, orders.places[count])) return count;
            std::copy(same, same + count, members);
        }
        orders.known |= std::uint64_t{1} << count;
        return SortFew(members, reinterpret_cast<Place*>(same), count, orders.places[count]);
    }
    const std::size_t total = count;
    for (std::size_t run = 0; run < total; run += kRun) {
        InsertionSort(members + run, members + std::min(run + kRun, total));
    }
    Member* from = members;
    Member* to = same;
    for (std::size_t width = kRun; width < total; width *= 2) {
        for (std::size_t run = 0; run < total; run += 2 * width) {
            const std::size_t middle = std::min(run + width, total);
            const std::size_t last = std::min(run + 2 * width, total);
            std::merge(from + run, from + middle, from + middle, from + last, to + run, MemberBelow);
        }
        std::swap(from, to);
    }
    std::size_t kept = 0;
    for (std::size_t index = 0; index < total; ++index) {
        const bool replaced = index + 1 < total && from[index].key() == from[index + 1].key();
        if (!replaced) members[kept++] = from[index];
    }
    return static_cast<std::uint32_t>(kept);
}

} // namespace orrery::json
