#include "orrery/Outline.h"

#include "orrery/Output.h"

#include <bit>

namespace orrery::tool {

using namespace record;

namespace {

constexpr std::size_t kWord = sizeof(std::uint64_t), kStep = 8 * kWord;

bool IsStepClear(const std::byte* at) {
#if ORRERY_SSE2
    const auto load = [at](std::size_t i) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at) + i); };
    const __m128i any = _mm_or_si128(_mm_or_si128(load(0), load(1)), _mm_or_si128(load(2), load(3)));
    return _mm_movemask_epi8(_mm_cmpeq_epi8(any, _mm_setzero_si128())) == 0xFFFF;
#else
    std::uint64_t any = 0;
    for (std::size_t i = 0; i < kStep; i += kWord)
        any |= Load<std::uint64_t>(at + i);
    return any == 0;
#endif
}

} // namespace

void Outline::End(std::size_t recordSize) {
    textSize = text.size();
    text.append(LineWriter::kSlack, '\0');
    size = recordSize;
    std::size_t first = 0;
    for (std::size_t from = 0; from < size; from += kPerLook) {
        while (first < members.size() && members[first].offset + members[first].size <= from)
            ++first;
        at.push_back(static_cast<std::uint16_t>(first));
    }
    for (std::size_t i = 0; i < members.size(); ++i) {
        const Member& member = members[i];
        if (!member.isAlike || !member.isPlainlyBlank || member.count.exists())
            asks.push_back(static_cast<std::uint16_t>(i));
    }
}

std::size_t FirstSet(const std::byte* record, std::size_t from, std::size_t size) {
    while (from + kStep <= size && IsStepClear(record + from))
        from += kStep;
    for (; from + kWord <= size; from += kWord) {
        const auto word = Load<std::uint64_t>(record + from);
        if (word == 0) continue;
        const int bits = std::endian::native == std::endian::little ? std::countr_zero(word) : std::countl_zero(word);
        return from + static_cast<std::size_t>(bits) / 8;
    }
    while (from < size && record[from] == std::byte{0})
        ++from;
    return from;
}

bool IsClear(const std::byte* at, std::size_t size) {
    return FirstSet(at, 0, size) == size;
}

} // namespace orrery::tool
