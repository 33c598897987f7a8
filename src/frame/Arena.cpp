#include "frame/Arena.h"

#include <cstdlib>

namespace orrery {

namespace {
constexpr std::size_t kLargestStep = std::size_t{8} << 20;
// The last chunk is then most of the memory: an allocator that has seen it given back keeps as much at hand, where
// smaller steps have it return everything to the system after each call and fault it in again for the next.
constexpr std::size_t kGrowth = 2; // of all chunks so far
// The C library asks the system for each block of this size on its own, until it has seen one given back; from then on
// it keeps twice as much. Blocks only little smaller it would give back after each call.
constexpr std::size_t kKept = std::size_t{136} << 10;
} // namespace

void* Arena::AllocateSlow(std::size_t bytes) noexcept {
    const std::size_t rounded = (bytes + 7) & ~std::size_t{7};
    if (rounded < bytes || rounded > static_cast<std::size_t>(-1) / 2) return Fail<void>();
    // Chunks grow, so that a large document costs few of them; an outsized request gets a chunk of its own size.
    std::size_t room = chunkSize_;
    if (room < rounded) room = rounded;
    if (room > kKept / 2 && room < kKept) room = kKept;
    if (allowance_ < kBlockHeader) return Fail<void>();
    if (room > allowance_ - kBlockHeader) room = rounded;
    if (room > allowance_ - kBlockHeader) return Fail<void>();
    auto* const chunk = static_cast<Chunk*>(std::malloc(kBlockHeader + room));
    if (chunk == nullptr) return Fail<void>();
    allowance_ -= kBlockHeader + room;
    chunk->previous = chunks_;
    chunks_ = chunk;
    total_ += room;
    chunkSize_ = total_ < kLargestStep / kGrowth ? total_ * kGrowth : kLargestStep;
    auto* const begin = reinterpret_cast<std::byte*>(chunk) + kBlockHeader;
    const auto left = room - rounded;
    // Keep filling the chunk that has more room left.
    if (left >= static_cast<std::size_t>(end_ - next_)) {
        next_ = begin + rounded;
        end_ = begin + room;
    }
    return begin;
}

void Arena::Release() noexcept {
    while (chunks_ != nullptr) {
        Chunk* const previous = chunks_->previous;
        std::free(chunks_);
        chunks_ = previous;
    }
}

} // namespace orrery
