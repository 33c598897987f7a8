// The tables that a run ends with.
#pragma once

#include <string>

namespace orrery::bench {

// Heap use, then ratios, a line each with its bar. `quick` takes few samples: to see that it runs, not what it costs.
// `only`, unless empty, is a part of the names of those lines that are wanted.
void PrintTables(bool quick, const std::string& only);

} // namespace orrery::bench
