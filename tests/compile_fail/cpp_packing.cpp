// A client that packs its structures tighter than the library has other records than it.
// must not compile: compiled with another packing of structures than the library
#include <cstdint>
#ifndef GOOD
#pragma pack(push, 1)
#endif
#include "orrery/analyse_rules.h"
#ifndef GOOD
#pragma pack(pop)
#endif
#include "orrery/cpp.h"

orrery::sized<CFG_ANALYSERULES_INFO> record;
