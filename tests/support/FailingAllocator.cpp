#include "support/FailingAllocator.h"

#include <algorithm>
#include <cstdlib>
#include <malloc.h>
#include <new>

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

thread_local Watch watch;

// Of `new`.
struct News {
    std::size_t failAt = 0; // 0: nothing fails
    std::size_t seen = 0;
};
thread_local News news;

bool FailsNow() {
    ++watch.allocations;
    ++watch.seen;
    const bool fails = watch.failAt != 0 && (watch.onwards ? watch.seen >= watch.failAt : watch.seen == watch.failAt);
    if (fails) ++watch.failures;
    return fails;
}

} // namespace

extern "C" {
void* __real_malloc(std::size_t size);
void __real_free(void* block);
void* __wrap_malloc(std::size_t size);
void __wrap_free(void* block);

void* __wrap_malloc(std::size_t size) {
    if (!watch.active) return __real_malloc(size);
    if (FailsNow()) return nullptr;
    void* const block = __real_malloc(size);
    if (block != nullptr) {
        ++watch.liveBlocks;
        watch.liveBytes += static_cast<std::ptrdiff_t>(malloc_usable_size(block));
        watch.peakBytes = std::max(watch.peakBytes, watch.liveBytes);
    }
    return block;
}

void __wrap_free(void* block) {
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
    news = {n, 0};
}
NewWatch::~NewWatch() {
    news = {};
}
bool NewWatch::hasFailed() const {
    return news.seen >= news.failAt;
}

HeapWatch::HeapWatch() {
    watch = Watch{};
    watch.active = true;
}
HeapWatch::~HeapWatch() {
    watch = Watch{};
}

void HeapWatch::FailOnly(std::size_t n) {
    watch.failAt = n;
    watch.seen = 0;
    watch.onwards = false;
}
void HeapWatch::FailFrom(std::size_t n) {
    FailOnly(n);
    watch.onwards = true;
}
void HeapWatch::FailNone() {
    FailOnly(0);
}

std::size_t HeapWatch::allocations() const {
    return watch.allocations;
}
std::size_t HeapWatch::failures() const {
    return watch.failures;
}
std::ptrdiff_t HeapWatch::liveBlocks() const {
    return watch.liveBlocks;
}
std::ptrdiff_t HeapWatch::liveBytes() const {
    return watch.liveBytes;
}
std::ptrdiff_t HeapWatch::peakBytes() const {
    return watch.peakBytes;
}
void HeapWatch::ResetPeak() {
    watch.peakBytes = watch.liveBytes;
}

} // namespace orrery::test
