// Commands for tests that sweep the command map: every command of the library, and specimens that use the words of
// tables and frames which no command uses yet.
#pragma once

#include "Commands.h"

#include <vector>

namespace orrery::test {

// The specimens alone.
const std::vector<Command>& Specimens();
// Every command of the library, and the specimens.
std::vector<Command> AllCommands();
// One command for each table with the same frames: what differs by name only is not run again.
const std::vector<Command>& DistinctCommands();

} // namespace orrery::test
