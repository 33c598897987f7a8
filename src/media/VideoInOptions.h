// The large record of a camera's sensor.
#pragma once

#include "frame/record/Table.h"

#include "orrery/video_input.h"

namespace orrery {

extern const record::TypedTable<CFG_VIDEOIN_OPTIONS> kVideoInOptions;

} // namespace orrery
