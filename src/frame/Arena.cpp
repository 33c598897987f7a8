#include "frame/Arena.h"

#include <cstdlib>

namespace orrery {

namespace {
constexpr std::size_t kHeader = 16; // keeps what follows a chunk's header aligned
constexpr std::size_t kLargestStep = std::size_t{8} << 20;
// The last chunk is then most of the memory: an allocator that has seen it given back keeps as much at hand, where
// smaller steps have it return everything to the system after each call and fault it in again for the next.
constexpr std::size_t kGrowth = 4;
} // namespace

void* Arena::AllocateSlow(std::size_t bytes) noexcept {
    const std::size_t rounded = (bytes + 7) & ~std::size_t{7};
    if (rounded < bytes || rounded > static_cast<std::size_t>(-1) / 2) return Fail<void>();
    // Chunks grow, so that a large document costs few of them; an outsized request gets a chunk of its own size.
    std::size_t room = chunkSize_;
    if (room < rounded) room = rounded;
    auto* const chunk = static_cast<Chunk*>(std::malloc(kHeader + room));
    if (chunk == nullptr) return Fail<void>();
    chunk->previous = chunks_;
    chunks_ = chunk;
    if (chunkSize_ < kLargestStep) chunkSize_ *= kGrowth;
    auto* const begin = reinterpret_cast<std::byte*>(chunk) + kHeader;
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
