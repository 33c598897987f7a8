// A record of several commands does not tell which is meant.
// must not compile: several commands read this record
#include "orrery/cpp.h"
#include "orrery/general.h"

#ifdef GOOD
using Wanted = orrery::commands::PwdReset;
#else
using Wanted = CFG_ENABLE_INFO;
#endif

bool Read(const char* text) {
    return orrery::parse<Wanted>(text).has_value();
}
