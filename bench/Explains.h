// What explaining costs beside parsing, of every command.
#pragma once

#include "bench/Pairs.h"

namespace orrery::bench {

// A line "explain.<command>" for the worst of all commands, and one that counts those over the bar: texts without
// findings are explained in at most three times their parse. With `only` set, lines of all commands whose names fit.
void PrintExplains(const Table& table, bool all);

} // namespace orrery::bench
