// What stands in 64 bytes of a JSON text, looked at all at once.
#pragma once

#include "frame/json/Scan.h"

#include <bit>
#include <cstddef>
#include <cstdint>

namespace orrery::explain {

// Behind the closing quote of the string whose first byte is at `p`; `end` when it has none.
inline const char* BehindString(const char* p, const char* end) noexcept {
    for (;;) {
        p = json::FindQuoteOrBackslash(p, end);
        if (p == end) return end;
        if (*p == '"') return p + 1;
        p += end - p < 2 ? 1 : 2;
    }
}

#if ORRERY_SSE2
// `Newlines`: they are looked for too.
template <bool Newlines>
class TextBlock {
  public:
    static constexpr std::size_t kSize = 64;

    // `p` stands outside a string.
    explicit TextBlock(const char* p) noexcept {
        constexpr int kCase = 0x20; // '[' and '{', ']' and '}' differ by this bit alone
        static_assert(('[' | kCase) == '{' && (']' | kCase) == '}');
        for (unsigned part = 0; part < kSize / 16; ++part) {
            const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + part * 16));
            const __m128i folded = _mm_or_si128(bytes, _mm_set1_epi8(kCase));
            const auto take = [part](std::uint64_t& bits, __m128i among, char wanted) {
                const auto found =
                    static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(among, _mm_set1_epi8(wanted))));
                bits |= std::uint64_t{found} << (part * 16);
            };
            take(quotes_, bytes, '"');
            take(escapes_, bytes, '\\');
            take(colons_, bytes, ':');
            take(slashes_, bytes, '/');
            if constexpr (Newlines) take(newlines_, bytes, '\n');
            take(opens_, folded, '{');
            take(closes_, folded, '}');
        }
        std::uint64_t inside = quotes_; // and the quotes that open: an odd number of quotes up to here
        for (unsigned shift = 1; shift < kSize; shift *= 2)
            inside ^= inside << shift;
        if (inside >> (kSize - 1) != 0) { // the last string goes on behind the block
            last_ = kSize - 1 - static_cast<unsigned>(std::countl_zero(quotes_));
            known_ = (std::uint64_t{1} << last_) - 1;
        }
        const std::uint64_t outside = ~inside & known_;
        slashes_ &= outside;
        opens = Count(opens_ & outside);
        closes = Count(closes_ & outside);
        colons = Count(colons_ & outside);
    }

    // Outside of strings.
    std::size_t opens, closes, colons;

    bool hasEscapes() const noexcept { return (escapes_ & known_) != 0; }
    // No escapes, and no end of what is open.
    bool isPlain(std::size_t depth) const noexcept { return !hasEscapes() && closes < depth; }
    bool hasSlashes() const noexcept { return slashes_ != 0; }
    // Inside of strings too.
    bool hasNewlines() const noexcept { return (newlines_ & known_) != 0; }
    // How far it tells: kSize, or up to the quote of the string that reaches over its end.
    std::size_t size() const noexcept { return last_; }

  private:
    // Without the instruction, which not every processor has.
    static std::size_t Count(std::uint64_t bits) noexcept {
        bits -= bits >> 1 & 0x5555555555555555u;
        bits = (bits & 0x3333333333333333u) + (bits >> 2 & 0x3333333333333333u);
        return static_cast<std::size_t>(((bits + (bits >> 4)) & 0x0F0F0F0F0F0F0F0Fu) * 0x0101010101010101u >> 56);
    }

    std::uint64_t quotes_ = 0, escapes_ = 0, colons_ = 0, slashes_ = 0, newlines_ = 0, opens_ = 0, closes_ = 0;
    std::uint64_t known_ = ~std::uint64_t{0};
    std::size_t last_ = kSize;
};
#endif

} // namespace orrery::explain
