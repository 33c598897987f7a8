// Counts what a call takes from the heap: this program's malloc and its kin, and so operator new, pass through here.
#pragma once

#include <cstddef>

namespace orrery::bench {

struct HeapUse {
    std::size_t allocations = 0;
    std::size_t peakBytes = 0; // above what was allocated before, as malloc rounds it
};

// Runs the call with counting on, for this thread alone.
void StartCounting();
HeapUse StopCounting();

template <class Call>
HeapUse HeapUseOf(Call call) {
    StartCounting();
    call();
    return StopCounting();
}

} // namespace orrery::bench
