// The heap of the whole process, the C library's own allocations included: each can be made to fail.
#pragma once

#include <cstddef>

namespace orrery::test {

// While it lives the n-th allocation fails, counted from 1, and with `onwards` all that follow it. With n 0 none does.
class InterposedHeap {
  public:
    explicit InterposedHeap(std::size_t n, bool onwards = false);
    InterposedHeap(const InterposedHeap&) = delete;
    InterposedHeap& operator=(const InterposedHeap&) = delete;
    ~InterposedHeap();

    std::size_t allocations() const;
};

} // namespace orrery::test
