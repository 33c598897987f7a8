// A mutex that its holder may lock again.
#pragma once

#include <mutex>

#ifdef _WIN32
#include <atomic>
#endif

namespace orrery {

#ifdef _WIN32
// The C++ runtime's own takes memory at its first lock, and throws where there is none.
class RecursiveLock {
  public:
    constexpr RecursiveLock() noexcept = default;
    RecursiveLock(const RecursiveLock&) = delete;
    RecursiveLock& operator=(const RecursiveLock&) = delete;

    void lock() noexcept;
    bool try_lock() noexcept;
    void unlock() noexcept;

  private:
    void* system_ = nullptr; // an SRWLOCK, which is made of nothing and needs no end
    std::atomic<unsigned long> holder_ = 0;
    unsigned depth_ = 0; // of the holder's locks
};
#else
using RecursiveLock = std::recursive_mutex;
#endif

} // namespace orrery
