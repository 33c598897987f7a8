// What the companion takes to print files of events, against the decoder's own work on the same texts.
#pragma once

#include "bench/Pairs.h"

namespace orrery::bench {

// At most three times as long, with one thread: short texts and long ones, whole records and in brief.
void PrintCompanion(const Table& table);

} // namespace orrery::bench
