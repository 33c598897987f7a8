// Counts the system calls of a warm call: a child of this process makes the calls, traced by its parent.
#pragma once

#include <cstddef>
#include <functional>

namespace orrery::bench {

// Means of one call.
struct SystemUse {
    bool known = false; // false where no process may be traced
    double calls = 0;
    double memoryCalls = 0; // those that get or give back memory
    double pageFaults = 0;
};

SystemUse SystemUseOf(std::size_t variants, const std::function<bool(std::size_t)>& call);

} // namespace orrery::bench
