// The events of files and pipes, printed as they come.
#pragma once

#include "orrery/ShowEvents.h"

#include <string>
#include <vector>

namespace orrery::tool {

struct StreamOptions {
    EventOptions events{};
    bool follow = false;   // goes on when a file grows, until the program is ended
    unsigned jobs = 1;     // texts that are decoded at a time; what is printed keeps its order
    bool progress = false; // a bar on standard error while long files are read
};

// Each text of each file ("-": standard input), one a line or one behind the other. A text that is no JSON, or holds
// no events, is told with its place and passed over; kRefused at the end then.
int StreamEvents(const std::vector<std::string>& files, const StreamOptions& options);

} // namespace orrery::tool
