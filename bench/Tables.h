// The tables that a run ends with.
#pragma once

namespace orrery::bench {

// Heap use, then ratios, a line each with its bar. `quick` takes few samples: to see that it runs, not what it costs.
void PrintTables(bool quick);

} // namespace orrery::bench
