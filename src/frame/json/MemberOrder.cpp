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

// Of members with the same key, side by side, the last one stays.
std::uint32_t DropReplaced(Member* members, std::uint32_t count) noexcept {
    std::uint32_t kept = 0;
    for (std::uint32_t index = 0; index < count; ++index) {
        const bool replaced = index + 1 < count && members[index].key() == members[index + 1].key();
        if (!replaced) members[kept++] = members[index];
    }
    return kept;
}

// Objects of devices that keep an order of their own have a few dozen members: where these belong is found by their
// prefixes alone, for the most part, and each moves once.
constexpr std::uint32_t kFew = MemberOrders::kMost;
static_assert(kFew < 64 && kFew % 8 == 0);

// Whether the members come in the order of those before; they are sorted then, and no key stands twice.
bool SortAlike(const Member* came, Member* sorted, std::uint32_t count, const std::uint8_t* places) noexcept {
    std::uint64_t before = 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        const Member& member = came[places[i]];
        const std::uint64_t prefix = KeyPrefix(member);
        if (i > 0 && before >= prefix) {
            if (before > prefix || CompareKeys(sorted[i - 1].key(), member.key()) >= 0) return false;
        }
        before = prefix;
        sorted[i] = member;
    }
    return true;
}

// Every member's place is the number of those that belong in front of it: all pairs are compared, which costs less than
// guessing how comparisons end. The first bytes have to do, and then the number of the member.
void PlaceByBeginnings(const std::uint64_t* prefixes, std::uint32_t count, std::uint8_t* places) noexcept {
    constexpr std::uint32_t kNumber = 63;
    constexpr std::uint32_t kStep = 8;
    alignas(16) std::int32_t beginnings[kFew];
    alignas(16) std::int32_t ranks[kFew];
    for (std::uint32_t i = 0; i < count; ++i) {
        const auto first = static_cast<std::uint32_t>(prefixes[i] >> 32);
        beginnings[i] = static_cast<std::int32_t>((first & ~kNumber) ^ 0x80000000U) | static_cast<std::int32_t>(i);
    }
    for (std::uint32_t i = count; i % kStep != 0; ++i)
        beginnings[i] = 0;
    for (std::uint32_t k = 0; k < count; k += kStep) {
#if ORRERY_SSE2
        const auto* const here = reinterpret_cast<const __m128i*>(beginnings + k);
        const __m128i left = _mm_load_si128(here);
        const __m128i right = _mm_load_si128(here + 1);
        __m128i leftRanks = _mm_setzero_si128();
        __m128i rightRanks = _mm_setzero_si128();
        for (std::uint32_t i = 0; i < count; ++i) {
            const __m128i other = _mm_set1_epi32(beginnings[i]);
            leftRanks = _mm_sub_epi32(leftRanks, _mm_cmpgt_epi32(left, other));
            rightRanks = _mm_sub_epi32(rightRanks, _mm_cmpgt_epi32(right, other));
        }
        auto* const there = reinterpret_cast<__m128i*>(ranks + k);
        _mm_store_si128(there, leftRanks);
        _mm_store_si128(there + 1, rightRanks);
#else
        for (std::uint32_t at = k; at < k + kStep; ++at) {
            ranks[at] = 0;
            for (std::uint32_t i = 0; i < count; ++i)
                ranks[at] += beginnings[at] > beginnings[i] ? 1 : 0;
        }
#endif
    }
    for (std::uint32_t i = 0; i < count; ++i)
        places[ranks[i]] = static_cast<std::uint8_t>(i);
}

// Puts those right that begin alike. Whether a key stands twice.
bool OrderAlike(const Member* came, const std::uint64_t* prefixes, std::uint32_t count, std::uint8_t* places) noexcept {
    bool twice = false;
    for (std::uint32_t next = 1; next < count; ++next) {
        const std::uint8_t member = places[next];
        if (prefixes[places[next - 1]] < prefixes[member]) [[likely]]
            continue;
        std::uint32_t hole = next;
        for (; hole != 0; --hole) {
            const std::uint8_t before = places[hole - 1];
            if (prefixes[before] < prefixes[member]) break;
            if (prefixes[before] == prefixes[member]) {
                const int order = CompareKeys(came[before].key(), came[member].key());
                twice |= order == 0;
                if (order <= 0) break;
            }
            places[hole] = before;
        }
        places[hole] = member;
    }
    return twice;
}

std::uint32_t SortFew(const Member* came, Member* sorted, std::uint32_t count, std::uint8_t* places) noexcept {
    std::uint64_t prefixes[kFew];
    for (std::uint32_t i = 0; i < count; ++i)
        prefixes[i] = KeyPrefix(came[i]);
    PlaceByBeginnings(prefixes, count, places);
    const bool twice = OrderAlike(came, prefixes, count, places);
    for (std::uint32_t i = 0; i < count; ++i)
        sorted[i] = came[places[i]];
    return twice ? DropReplaced(sorted, count) : count;
}

} // namespace

std::uint32_t SortMembers(Member* came, Member* sorted, std::uint32_t count, MemberOrders& orders) noexcept {
    if (count <= kFew) {
        const std::uint64_t bit = std::uint64_t{1} << count;
        if ((orders.known & bit) != 0 && SortAlike(came, sorted, count, orders.places[count])) return count;
        orders.known |= bit;
        return SortFew(came, sorted, count, orders.places[count]);
    }
    const std::size_t total = count;
    for (std::size_t run = 0; run < total; run += kRun) {
        InsertionSort(came + run, came + std::min(run + kRun, total));
    }
    Member* from = came;
    Member* to = sorted;
    for (std::size_t width = kRun; width < total; width *= 2) {
        for (std::size_t run = 0; run < total; run += 2 * width) {
            const std::size_t middle = std::min(run + width, total);
            const std::size_t last = std::min(run + 2 * width, total);
            std::merge(from + run, from + middle, from + middle, from + last, to + run, MemberBelow);
        }
        std::swap(from, to);
    }
    if (from != sorted) std::copy(from, from + total, sorted);
    return DropReplaced(sorted, count);
}

} // namespace orrery::json
