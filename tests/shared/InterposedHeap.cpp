#include "shared/InterposedHeap.h"

#include <cerrno>

namespace {

bool active;
bool onwardsToo;
std::size_t failing;
std::size_t seen;

bool FailsNow() {
    if (!active) return false;
    ++seen;
    const bool fails = failing != 0 && (onwardsToo ? seen >= failing : seen == failing);
    if (fails) errno = ENOMEM;
    return fails;
}

} // namespace

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

void* malloc(std::size_t size) {
    return FailsNow() ? nullptr : __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) {
    return FailsNow() ? nullptr : __libc_calloc(count, size);
}
void* realloc(void* block, std::size_t size) {
    return FailsNow() ? nullptr : __libc_realloc(block, size);
}
}

namespace orrery::test {

InterposedHeap::InterposedHeap(std::size_t n, bool onwards) {
    failing = n;
    onwardsToo = onwards;
    seen = 0;
    active = true;
}
InterposedHeap::~InterposedHeap() {
    active = false;
}
std::size_t InterposedHeap::allocations() const {
    return seen;
}

} // namespace orrery::test
