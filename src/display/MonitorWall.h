// Monitor walls, what stands on them, and the sources that they show.
#pragma once

#include "frame/record/Table.h"

#include "orrery/monitor_wall.h"

namespace orrery {

extern const record::TypedTable<CFG_MONITOR_WALL_INFO> kMonitorWall;
extern const record::TypedTable<CFG_VIDEO_OUTPUT_COMPOSITE_INFO> kVideoOutputComposite;
extern const record::TypedTable<CFG_SPLIT_SOURCE> kSplitSource;
extern const record::TypedTable<CFG_MONITOR_WALL_COLLECTION_INFO> kMonitorWallCollection;
extern const record::TypedTable<CFG_MONITOR_TOUR_INFO> kMonitorTourOfWall;
extern const record::TypedTable<CFG_MONITOR_COLLECTION_TOUR_INFO> kMonitorCollectionTour;

} // namespace orrery
