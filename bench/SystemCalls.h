// Counts the system calls and page faults of a call: a child of this process makes it, traced by its parent.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace orrery::bench {

// Of one call, or means of one.
struct SystemUse {
    bool known = false; // false where no process may be traced
    double calls = 0;
    double memoryCalls = 0; // those that get or give back memory
    double pageFaults = 0;
};

// Of a warm call.
SystemUse SystemUseOf(std::size_t variants, const std::function<bool(std::size_t)>& call);

// Of the first call of a process that has just begun: the program runs itself once more, with kFirstCall as its first
// argument, and RunFirstCall is what it then does with the others.
SystemUse FirstUseOf(const char* command, const std::string& text, std::size_t recordSize);
inline constexpr const char* kFirstCall = "--first-call";
int RunFirstCall(char** arguments);

} // namespace orrery::bench
