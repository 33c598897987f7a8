// Steps along a text whose members go straight into a record.
#pragma once

#include "frame/json/Reader.h"
#include "frame/json/Tokens.h"
#include "frame/record/ReadText.h"

#include <algorithm>
#include <array>
#include <bit>

namespace orrery::record {

// A value as a document of its own, which lies in this room when it is a short list of scalars, as most are.
struct ShortList {
    static constexpr std::uint32_t kMost = 48;
    alignas(json::Value) std::byte bytes[kMost * sizeof(json::Value)]; // left uninitialised on purpose

    json::Value* elements() noexcept { return reinterpret_cast<json::Value*>(bytes); }
};
inline const char* ReadShortList(const char* p, json::Value& value, ShortList& room, const TextCall& text) noexcept {
    std::uint32_t count = 0;
    json::Step step = json::FirstEntry(p, text.end, ']');
    while (step.more) {
        if (count == ShortList::kMost || *step.at == '{' || *step.at == '[') return nullptr;
        p = json::ReadScalar(step.at, text.end, text.arena(), room.elements() + count++);
        if (p == nullptr) return nullptr;
        step = json::NextEntry(p, text.end, ']');
    }
    value = json::Value::OfArray(room.elements(), count);
    return step.at;
}
inline const char* ReadDocument(const char* p, json::Value& value, ShortList& room, const TextCall& text) noexcept {
    if (*p == '[') {
        if (const char* const after = ReadShortList(p, value, room, text)) return after;
    }
    return json::ParseAt(p, text.end, text.arena(), value);
}
inline const char* ReadAny(const char* p, json::Value& value, const TextCall& text) noexcept {
    if (*p == '{' || *p == '[') return json::ParseAt(p, text.end, text.arena(), value);
    return json::ReadScalar(p, text.end, text.arena(), &value);
}

// Whether the `size` bytes of a table's key text stand at `p`.
inline bool Stands(const char* keyText, std::size_t size, const char* p, const char* end) noexcept {
#if ORRERY_SSE2
    static_assert(kKeyTextSlack >= 16);
    const auto differs = [=](std::size_t at) {
        const __m128i ours = _mm_loadu_si128(reinterpret_cast<const __m128i*>(keyText + at));
        const __m128i theirs = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at));
        return static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(ours, theirs))) ^ 0xFFFF;
    };
    if (size <= 16 && end - p >= 16) [[likely]]
        return (differs(0) & ((1u << size) - 1)) == 0;
    if (size <= static_cast<std::size_t>(end - p) && size <= 32 && size > 16)
        return (differs(0) | differs(size - 16)) == 0;
#endif
    return static_cast<std::size_t>(end - p) >= size && std::memcmp(keyText, p, size) == 0;
}

// The value behind `, "Key" : ` when the node's key stands so at `p`, as nearly all devices write it: one look tells of
// all that lies between two values. Null for any other text.
inline const char* ValueOfNext(const Table& table, const Node& node, const char* p, const char* end) noexcept {
    const char* const ours = table.keyTexts + node.quotedAt - 2;
    const std::size_t size = node.keySize + std::size_t{7};
#if ORRERY_SSE2
    static_assert(kKeyTextSlack >= 32);
    if (size > 32 || end - p <= 32) [[unlikely]]
        return nullptr;
    const auto same = [&](std::size_t at) {
        const __m128i left = _mm_loadu_si128(reinterpret_cast<const __m128i*>(ours + at));
        const __m128i right = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + at));
        return std::uint64_t{static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(left, right)))};
    };
    if ((~(same(0) | same(16) << 16) & ((std::uint64_t{1} << size) - 1)) != 0) return nullptr;
#else
    if (end - p <= static_cast<std::ptrdiff_t>(size) || std::memcmp(ours, p, size) != 0) return nullptr;
#endif
    p += size;
    return json::IsPlainByte(*p) ? p : nullptr;
}

#if ORRERY_SSE2
// The first bytes of a text, as many as most have.
struct TextHead {
    static constexpr std::size_t kSize = 32;
    __m128i low, high;

    explicit TextHead(const char* p) noexcept : low(Load(p)), high(Load(p + 16)) {}
    // The first quote or backslash; kSize when there is none.
    std::size_t Stop() const noexcept {
        const auto hits = [](__m128i bytes) {
            const __m128i both =
                _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('"')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\\')));
            return static_cast<std::uint32_t>(_mm_movemask_epi8(both));
        };
        return static_cast<std::size_t>(std::countr_zero(hits(low) | hits(high) << 16));
    }
    // Puts `size` bytes of them, fewer than all, into a field and clears what they leave of it. False, and nothing
    // done, when the field is too short.
    bool Put(char* to, std::size_t size, std::size_t capacity) const noexcept {
        alignas(64) static constexpr std::array<std::uint8_t, 2 * kSize> kMask = [] {
            std::array<std::uint8_t, 2 * kSize> mask{};
            std::fill_n(mask.begin(), kSize, std::uint8_t{0xFF});
            return mask;
        }();
        if (capacity < (size < 16 ? 16u : kSize)) return false;
        const auto* const mask = reinterpret_cast<const char*>(kMask.data() + kSize - size);
        const auto store = [to](std::size_t at, __m128i bytes) {
            _mm_storeu_si128(reinterpret_cast<__m128i*>(to + at), bytes);
        };
        if (capacity > 2 * kSize) {
            std::memset(to + kSize, 0, capacity - kSize);
        } else { // what follows may overlap it
            if (capacity >= kSize) store(capacity - kSize, _mm_setzero_si128());
            store(capacity - 16, _mm_setzero_si128());
        }
        store(0, _mm_and_si128(low, Load(mask)));
        if (capacity >= kSize) store(16, _mm_and_si128(high, Load(mask + 16)));
        return true;
    }

  private:
    static __m128i Load(const char* at) noexcept { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at)); }
};
#endif

// The bool at `p`. The byte behind it; null for any other value.
inline const char* ReadBool(const char* p, const char* end, bool& isTrue) noexcept {
    isTrue = *p == 't';
    const std::ptrdiff_t size = isTrue ? 4 : 5;
    if (end - p < size || std::memcmp(p, isTrue ? "true" : "fals", 4) != 0 || p[size - 1] != 'e') return nullptr;
    return p + size;
}

// Apart from what nearly all numbers are.
[[gnu::noinline]] inline const char* ReadDecimal(const char* p, const char* end, double& number) noexcept {
    return json::ReadShortDecimal(p, end, number);
}

} // namespace orrery::record
