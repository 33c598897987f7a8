// What is blended into a channel's picture.
#pragma once

#include "frame/record/Table.h"

#include "orrery/video_widget.h"

namespace orrery {

extern const record::TypedTable<CFG_VIDEO_WIDGET_INFO> kVideoWidget;

} // namespace orrery
