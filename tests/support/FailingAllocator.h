// The heap as the library sees it: every malloc and free of code that is linked into the test binary passes through
// here (by the linker's --wrap), is counted, and can be made to fail.
#pragma once

#include <cstddef>

namespace orrery::test {

// Counts while it lives, in the thread that made it. One at a time.
class HeapWatch {
  public:
    HeapWatch();
    HeapWatch(const HeapWatch&) = delete;
    HeapWatch& operator=(const HeapWatch&) = delete;
    ~HeapWatch();

    // The n-th allocation from now on fails, counted from 1; those after it succeed.
    void FailOnly(std::size_t n);
    // The n-th allocation from now on fails, and so do all after it.
    void FailFrom(std::size_t n);
    void FailNone();

    // Since the watch began.
    std::size_t allocations() const;
    std::size_t failures() const;
    // Blocks and bytes allocated and not freed since the watch began; negative when older ones were freed.
    std::ptrdiff_t liveBlocks() const;
    std::ptrdiff_t liveBytes() const;
    // The most bytes that were live at a time, since the watch began or the peak was reset.
    std::ptrdiff_t peakBytes() const;
    void ResetPeak();
};

// Makes the n-th `new` of this thread throw while it lives, counted from 1; those after it succeed. The library itself
// uses none, and what stands beside it does.
class NewWatch {
  public:
    explicit NewWatch(std::size_t n);
    NewWatch(const NewWatch&) = delete;
    NewWatch& operator=(const NewWatch&) = delete;
    ~NewWatch();

    bool hasFailed() const;
};

} // namespace orrery::test
