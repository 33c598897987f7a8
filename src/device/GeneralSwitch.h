// Commands with a record of one switch.
#pragma once

#include "frame/record/Table.h"

#include "orrery/general.h"

namespace orrery {

extern const record::TypedTable<CFG_ENABLE_INFO> kEnable;

} // namespace orrery
