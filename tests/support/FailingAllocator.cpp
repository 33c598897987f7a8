#include "support/FailingAllocator.h"

#include <algorithm>
#include <cstdlib>
#include <malloc.h>
#include <new>

#ifdef _WIN32
#include <atomic>
#include <windows.h>
#endif

extern "C" {
void* __real_malloc(std::size_t size);
void __real_free(void* block);
void* __wrap_malloc(std::size_t size);
void __wrap_free(void* block);
}

namespace {

struct Watch {
    bool active = false;
    bool onwards = false;
    std::size_t failAt = 0; // 0: nothing fails
    std::size_t seen = 0;   // since failAt was set
    std::size_t allocations = 0;
    std::size_t failures = 0;
    std::ptrdiff_t liveBlocks = 0;
    std::ptrdiff_t liveBytes = 0;
    std::ptrdiff_t peakBytes = 0;
};

// Of `new`.
struct News {
    std::size_t failAt = 0; // 0: nothing fails
    std::size_t seen = 0;
};
struct OfThread {
    Watch watch;
    News news;
};

#ifdef _WIN32
// This compiler's thread_local takes its memory from malloc. (A thread keeps its own: tests start few.)
OfThread& Mine() {
    static std::atomic<DWORD> slot{TLS_OUT_OF_INDEXES};
    if (slot == TLS_OUT_OF_INDEXES) {
        const DWORD made = TlsAlloc();
        DWORD none = TLS_OUT_OF_INDEXES;
        if (!slot.compare_exchange_strong(none, made)) TlsFree(made);
    }
    void* mine = TlsGetValue(slot);
    if (mine == nullptr) TlsSetValue(slot, mine = new (__real_malloc(sizeof(OfThread))) OfThread);
    return *static_cast<OfThread*>(mine);
}
#else
OfThread& Mine() {
    thread_local OfThread mine;
    return mine;
}
#endif

bool FailsNow(Watch& watch) {
    ++watch.allocations;
    ++watch.seen;
    const bool fails = watch.failAt != 0 && (watch.onwards ? watch.seen >= watch.failAt : watch.seen == watch.failAt);
    if (fails) ++watch.failures;
    return fails;
}

} // namespace

extern "C" {
void* __wrap_malloc(std::size_t size) {
    Watch& watch = Mine().watch;
    if (!watch.active) return __real_malloc(size);
    if (FailsNow(watch)) return nullptr;
    void* const block = __real_malloc(size);
    if (block != nullptr) {
        ++watch.liveBlocks;
        watch.liveBytes += static_cast<std::ptrdiff_t>(malloc_usable_size(block));
        watch.peakBytes = std::max(watch.peakBytes, watch.liveBytes);
    }
    return block;
}

void __wrap_free(void* block) {
    Watch& watch = Mine().watch;
    if (watch.active && block != nullptr) {
        --watch.liveBlocks;
        watch.liveBytes -= static_cast<std::ptrdiff_t>(malloc_usable_size(block));
    }
    __real_free(block);
}
}

// ThreadSanitizer brings its own and takes no others; what runs under it lets no `new` fail.
#if defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define ORRERY_KEEPS_ITS_NEW
#endif
#endif

#ifndef ORRERY_KEEPS_ITS_NEW
// These go past the watch above, which counts the library's own memory. All forms that pair with one another stand
// here: a sanitizer minds a block of its own `new` in another's `delete`.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    News& news = Mine().news;
    if (news.failAt != 0 && ++news.seen == news.failAt) return nullptr;
    return __real_malloc(size == 0 ? 1 : size);
}
void* operator new(std::size_t size) {
    void* const block = operator new(size, std::nothrow);
    if (block == nullptr) throw std::bad_alloc();
    return block;
}
void operator delete(void* block) noexcept {
    __real_free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    __real_free(block);
}
void operator delete(void* block, const std::nothrow_t&) noexcept {
    __real_free(block);
}
#endif

namespace orrery::test {

NewWatch::NewWatch(std::size_t n) {
    Mine().news = {n, 0};
}
NewWatch::~NewWatch() {
    Mine().news = {};
}
bool NewWatch::hasFailed() const {
    return Mine().news.seen >= Mine().news.failAt;
}

HeapWatch::HeapWatch() {
    Mine().watch = Watch{};
    Mine().watch.active = true;
}
HeapWatch::~HeapWatch() {
    Mine().watch = Watch{};
}

void HeapWatch::FailOnly(std::size_t n) {
    Mine().watch.failAt = n;
    Mine().watch.seen = 0;
    Mine().watch.onwards = false;
}
void HeapWatch::FailFrom(std::size_t n) {
    FailOnly(n);
    Mine().watch.onwards = true;
}
void HeapWatch::FailNone() {
    FailOnly(0);
}

std::size_t HeapWatch::allocations() const {
    return Mine().watch.allocations;
}
std::size_t HeapWatch::failures() const {
    return Mine().watch.failures;
}
std::ptrdiff_t HeapWatch::liveBlocks() const {
    return Mine().watch.liveBlocks;
}
std::ptrdiff_t HeapWatch::liveBytes() const {
    return Mine().watch.liveBytes;
}
std::ptrdiff_t HeapWatch::peakBytes() const {
    return Mine().watch.peakBytes;
}
void HeapWatch::ResetPeak() {
    Mine().watch.peakBytes = Mine().watch.liveBytes;
}

} // namespace orrery::test
