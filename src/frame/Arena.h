// Memory of one call: a bump allocator whose first chunk lies on the caller's stack, so that a small reply costs no
// heap allocation. Everything is released at once when the call ends.
#pragma once

#include <cstddef>
#include <cstdint>
#include <new>

namespace orrery {

class Arena {
  public:
    // Starts in `first`, which must be aligned for any type and outlive the arena.
    Arena(void* first, std::size_t size) noexcept : next_(static_cast<std::byte*>(first)), end_(next_ + size) {}
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;
    ~Arena() { Release(); }

    // `bytes` bytes aligned to 8, or null when the heap has none left; the failure sticks to `failed()`.
    void* Allocate(std::size_t bytes) noexcept {
        const std::size_t rounded = (bytes + 7) & ~std::size_t{7};
        if (rounded >= bytes && rounded <= static_cast<std::size_t>(end_ - next_)) {
            void* const result = next_;
            next_ += rounded;
            return result;
        }
        return AllocateSlow(bytes);
    }

    template <class T>
    T* Array(std::size_t count) noexcept {
        if (count > static_cast<std::size_t>(-1) / 2 / sizeof(T)) return Fail<T>();
        return static_cast<T*>(Allocate(count * sizeof(T)));
    }

    // How long the text is that the call is about, so that its document takes one chunk of the heap, if any.
    void Expect(std::size_t textSize) noexcept {
        constexpr std::size_t kMost = std::size_t{1} << 32;
        if (chunks_ == nullptr && textSize < kMost && chunkSize_ < kPerByte * textSize)
            chunkSize_ = kPerByte * textSize;
    }

    // Takes over a block of malloc's, whose first kBlockHeader bytes are the arena's.
    static constexpr std::size_t kBlockHeader = 16; // keeps what follows it aligned
    void Adopt(void* block) noexcept {
        auto* const chunk = static_cast<Chunk*>(block);
        chunk->previous = chunks_;
        chunks_ = chunk;
    }

    // From here on the heap gives this arena at most `bytes` more; what goes beyond is as if there were no memory.
    void Limit(std::size_t bytes) noexcept { allowance_ = bytes; }

    // True once an allocation has failed: the call that owns the arena then fails as a whole.
    bool failed() const noexcept { return failed_; }
    // For whoever could not get another resource that the call cannot go on without, or needs more than can be counted.
    void MarkFailed() noexcept { failed_ = true; }

  private:
    struct Chunk {
        Chunk* previous;
    };

    template <class T>
    T* Fail() noexcept {
        failed_ = true;
        return nullptr;
    }
    void* AllocateSlow(std::size_t bytes) noexcept;
    void Release() noexcept;

    // Documents of devices have up to twice as many bytes as their texts.
    static constexpr std::size_t kPerByte = 2;

    std::byte* next_;
    std::byte* end_;
    Chunk* chunks_ = nullptr;
    std::size_t chunkSize_ = std::size_t{32} << 10; // of the next one
    std::size_t total_ = 0;                         // of all chunks so far
    std::size_t allowance_ = static_cast<std::size_t>(-1);
    bool failed_ = false;
};

// An arena with its first chunk inside itself, for a function's own frame.
template <std::size_t Size>
class StackArena : public Arena {
  public:
    StackArena() noexcept : Arena(storage_, Size) {}

  private:
    alignas(16) std::byte storage_[Size]; // left uninitialised on purpose: clearing it would cost every call
};

} // namespace orrery
