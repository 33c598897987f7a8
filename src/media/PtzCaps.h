// What heads and their protocols can do.
#pragma once

#include "frame/record/Table.h"

#include "orrery/ptz_caps.h"

namespace orrery {

extern const record::TypedTable<CFG_PTZ_CAPS> kPtzCaps;
extern const record::TypedTable<CFG_PTZ_PROTOCOLS> kPtzProtocols;
extern const record::TypedTable<CFG_PTZ_INSTANCE> kPtzInstance;

} // namespace orrery
