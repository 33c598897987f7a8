// How a joined picture is divided, by the names that composed pictures have: prefixes in any case, a name for every
// code but negative ones, which write no key.
#pragma once

#include "frame/record/Field.h"

namespace orrery {

extern const record::CustomCodec kSplitName; // of a 32-bit member

} // namespace orrery
