#include "orrery/Outline.h"

#include <algorithm>
#include <cstring>

namespace orrery::tool {

using namespace record;

bool IsClear(const std::byte* at, std::size_t size) {
    constexpr std::size_t kWord = sizeof(std::uint64_t), kStep = 4 * kWord;
    for (; size >= kStep; at += kStep, size -= kStep) {
        const std::uint64_t any = Load<std::uint64_t>(at) | Load<std::uint64_t>(at + kWord)
                                  | Load<std::uint64_t>(at + 2 * kWord) | Load<std::uint64_t>(at + 3 * kWord);
        if (any != 0) return false;
    }
    for (; size >= kWord; at += kWord, size -= kWord)
        if (Load<std::uint64_t>(at) != 0) return false;
    return std::all_of(at, at + size, [](std::byte byte) { return byte == std::byte{0}; });
}

bool Outline::Member::IsZero(const std::byte* record, bool all) const {
    // Of a list in use its elements are printed, zeros or not.
    if (field->count.exists() && !all && LoadSlot(field->count, record) > 0) return false;
    return isAlike && IsClear(record + field->offset, field->size);
}

} // namespace orrery::tool
