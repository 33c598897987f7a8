#include "frame/Lock.h"

#include <windows.h>

namespace orrery {

static_assert(sizeof(SRWLOCK) == sizeof(void*) && alignof(SRWLOCK) == alignof(void*));

// A thread sees its own number only when it stored it itself: others' stores can't be mistaken for it.
void RecursiveLock::lock() noexcept {
    const DWORD thread = GetCurrentThreadId(); // never 0
    if (holder_.load(std::memory_order_relaxed) != thread) {
        AcquireSRWLockExclusive(reinterpret_cast<SRWLOCK*>(&system_));
        holder_.store(thread, std::memory_order_relaxed);
    }
    ++depth_;
}

bool RecursiveLock::try_lock() noexcept {
    const DWORD thread = GetCurrentThreadId();
    if (holder_.load(std::memory_order_relaxed) != thread) {
        if (TryAcquireSRWLockExclusive(reinterpret_cast<SRWLOCK*>(&system_)) == 0) return false;
        holder_.store(thread, std::memory_order_relaxed);
    }
    ++depth_;
    return true;
}

void RecursiveLock::unlock() noexcept {
    if (--depth_ > 0) return;
    holder_.store(0, std::memory_order_relaxed);
    ReleaseSRWLockExclusive(reinterpret_cast<SRWLOCK*>(&system_));
}

} // namespace orrery
