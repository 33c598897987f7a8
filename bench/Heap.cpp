#include "bench/Heap.h"

#include <cerrno>
#include <cstdint>
#include <malloc.h>

namespace {

struct Count {
    bool active;
    std::size_t allocations;
    std::ptrdiff_t live;
    std::ptrdiff_t peak;
};
thread_local Count count;

void* Took(void* block) {
    if (count.active && block != nullptr) {
        ++count.allocations;
        count.live += static_cast<std::ptrdiff_t>(malloc_usable_size(block));
        if (count.live > count.peak) count.peak = count.live;
    }
    return block;
}

void Gives(void* block) {
    if (count.active && block != nullptr) count.live -= static_cast<std::ptrdiff_t>(malloc_usable_size(block));
}

} // namespace

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);

void* malloc(std::size_t size) {
    return Took(__libc_malloc(size));
}
void* calloc(std::size_t number, std::size_t size) {
    return Took(__libc_calloc(number, size));
}
void* realloc(void* block, std::size_t size) {
    Gives(block);
    return Took(__libc_realloc(block, size));
}
void* memalign(std::size_t alignment, std::size_t size) {
    return Took(__libc_memalign(alignment, size));
}
void* aligned_alloc(std::size_t alignment, std::size_t size) {
    return memalign(alignment, size);
}
int posix_memalign(void** block, std::size_t alignment, std::size_t size) {
    *block = memalign(alignment, size);
    return *block == nullptr ? ENOMEM : 0;
}
void free(void* block) {
    Gives(block);
    __libc_free(block);
}
}

namespace orrery::bench {

void StartCounting() {
    count = {true, 0, 0, 0};
}

HeapUse StopCounting() {
    count.active = false;
    return {count.allocations, static_cast<std::size_t>(count.peak)};
}

} // namespace orrery::bench
