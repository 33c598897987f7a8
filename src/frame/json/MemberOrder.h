// Members into key order.
#pragma once

#include "frame/json/Value.h"

namespace orrery::json {

// In which order the members of objects came, by their number, for those that follow: senders that keep an order of
// their own write the objects of a kind alike.
struct MemberOrders {
    static constexpr std::uint32_t kMost = 40;
    std::uint64_t known = 0;               // a bit a number of members
    std::uint8_t places[kMost + 1][kMost]; // of the members in key order
};

// Brings the `count` members that came into `sorted`, by key; of those with the same key the last one stays. Returns
// how many stayed. What came need not stay. Takes n log n comparisons whatever the order they came in, since that is
// the sender's choice.
std::uint32_t SortMembers(Member* came, Member* sorted, std::uint32_t count, MemberOrders& orders) noexcept;

} // namespace orrery::json
