// Several replies, parsed one after the other or several at a time.
#pragma once

#include "orrery/Check.h"
#include "orrery/Run.h"

#include <string>
#include <vector>

namespace orrery::tool {

struct FilesOptions {
    ParseOptions parse{};
    CheckOptions check{};
    bool warn = false;          // tells what of the replies is passed over
    bool strict = false;        // the same, and kFound when there is anything to tell
    unsigned jobs = 1;          // replies that are read at a time; what is printed keeps its order
    bool colour = false;        // of objects
    bool findingColour = false; // of what is told of them
};

// Each file ("-": standard input) as one reply of the command. The worst of their exits.
int ParseFiles(const std::string& command, const std::vector<std::string>& files, const FilesOptions& options);

// The findings of each file; `command` as CheckText has it.
int CheckFiles(const std::string& command, const std::vector<std::string>& files, const CheckOptions& options,
               unsigned jobs, bool isColoured);

// Prints and tells; answers the exit, also when nobody reads what is printed any more.
int PrintResult(const Result& result);
// The exit of two things done: wrong arguments count more than what was refused, and that more than what was lost.
int WorseExit(int left, int right);

} // namespace orrery::tool
