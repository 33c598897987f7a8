// The way back up for a walk over a document: documents nest as deep as their sender likes, so no walk may use the
// machine stack for it.
#pragma once

#include "frame/Arena.h"

#include <cstring>
#include <type_traits>

namespace orrery::json {

// The first `Local` entries lie in the walker's own frame, deeper ones in the arena.
template <class T, std::size_t Local>
class WalkStack {
    static_assert(std::is_trivially_copyable_v<T>);

  public:
    explicit WalkStack(Arena& arena) noexcept : arena_(arena) {}
    WalkStack(const WalkStack&) = delete;
    WalkStack& operator=(const WalkStack&) = delete;

    bool empty() const noexcept { return size_ == 0; }
    T& top() noexcept { return entries_[size_ - 1]; }
    void Pop() noexcept { --size_; }

    // False when the arena is exhausted.
    bool Push(const T& entry) noexcept {
        if (size_ == capacity_ && !Grow()) return false;
        entries_[size_++] = entry;
        return true;
    }

  private:
    bool Grow() noexcept {
        T* const larger = arena_.Array<T>(capacity_ * 2);
        if (larger == nullptr) return false;
        std::memcpy(static_cast<void*>(larger), entries_, size_ * sizeof(T));
        entries_ = larger;
        capacity_ *= 2;
        return true;
    }

    Arena& arena_;
    T local_[Local];
    T* entries_ = local_;
    std::size_t size_ = 0;
    std::size_t capacity_ = Local;
};

} // namespace orrery::json
