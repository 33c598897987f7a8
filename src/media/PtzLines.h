// Tours over windows, lens drives, vehicle buses and infrared senders.
#pragma once

#include "frame/record/Table.h"

#include "orrery/ptz_lines.h"

namespace orrery {

extern const record::TypedTable<CFG_SPLIT_TOUR_INFO> kSplitTour;
extern const record::TypedTable<CFG_SPLIT_TOUR_INFO> kSpotMatrix;
extern const record::TypedTable<CFG_VIDEOIN_ZOOM_INFO> kVideoInZoom;
extern const record::TypedTable<CFG_VIDEOIN_FOCUS_INFO> kVideoInFocus;
extern const record::TypedTable<CFG_CAN_FILTER_INFO> kCanFilter;
extern const record::TypedTable<CFG_IR_BOARD_TEMPLATE_INFO> kInfraredBoardTemplate;
extern const record::TypedTable<CFG_IR_BOARD_INFO> kInfraredBoard;

// No more items than the record holds.
bool FitsZoomItems(const std::byte* record, std::uint32_t size);
bool FitsFocusItems(const std::byte* record, std::uint32_t size);
// 0 when a filter without an array ended the call.
std::uint32_t CanFilterLength(const std::byte* record);

} // namespace orrery
