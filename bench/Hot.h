// The lines that the whole road of a call is held to: against the fastest reader there is, and what a warm call takes
// from the system.
#pragma once

#include "bench/Calls.h"
#include "bench/Events.h"
#include "bench/Pairs.h"
#include "bench/Rules.h"

namespace orrery::bench {

void HotLines(const Table& table, AlarmBench& alarm, EncodeBench& encode, RuleBench& rules, EventBench& junction,
              EventBench& manyEvents);

// The most that the heap holds during a call, to the length of its text. Lines whose names have `only`.
void PrintHeapBars(const std::string& only);

// System calls and page faults of a warm call.
void PrintSystemCalls(const std::string& only);

} // namespace orrery::bench
