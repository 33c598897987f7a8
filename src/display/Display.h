// What displays show and matrices switch.
#pragma once

#include "frame/record/Table.h"

#include "orrery/display.h"

namespace orrery {

extern const record::TypedTable<CFG_CHANNEL_TITLE_INFO> kChannelTitle;
extern const record::TypedTable<CFG_VIDEO_OUTPUT_TITLE_INFO> kVideoOutputTitle;
extern const record::TypedTable<CFG_VIDEO_OUT_INFO> kVideoOut;
extern const record::TypedTable<CFG_VIDEO_COLOR_INFO> kVideoColor;
extern const record::TypedTable<CFG_VIDEO_IN_INFO> kVideoIn;
extern const record::TypedTable<CFG_VIDEO_IN_BOUNDARY_INFO> kVideoInBoundary;
extern const record::TypedTable<CFG_SNAP_SCHEDULE_INFO> kSnapSchedule;
extern const record::TypedTable<CFG_MOVED_DETECT_INFO> kMovedDetect;
extern const record::TypedTable<CFG_ANALOG_MATRIX_INFO> kAnalogMatrix;
extern const record::TypedTable<CFG_ANALOG_MATRIX_PROTOCOL_INFO> kAnalogMatrixProtocol;
extern const record::TypedTable<CFG_SITE_SWITCH_INFO> kSiteSwitch;
extern const record::TypedTable<CFG_VTO_INFO> kVto;

} // namespace orrery
