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

} // namespace

std::uint32_t SortMembers(Member* members, Member* scratch, std::uint32_t count) noexcept {
    const std::size_t total = count;
    for (std::size_t run = 0; run < total; run += kRun) {
        InsertionSort(members + run, members + std::min(run + kRun, total));
    }
    Member* from = members;
    Member* to = scratch;
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
