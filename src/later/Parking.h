// Parking systems and lanes: screens, barriers, lights, and what stands at a lane's side.
#pragma once

#include "frame/record/Table.h"

#include "orrery/parking.h"

namespace orrery {

extern const record::TypedTable<CFG_WORK_STATE_INFO> kWorkState;
extern const record::TypedTable<CFG_PARKING_SCREEN_INFO> kParkingScreen;
extern const record::TypedTable<CFG_PARKING_CELL_STATUS> kParkingCellStatus;
extern const record::TypedTable<CFG_LANES_STATE_REPORT_INFO> kLanesStateReport;
extern const record::TypedTable<CFG_RAIN_BRUSH_MODE_INFO> kRainBrushMode;
extern const record::TypedTable<CFG_TRAFFIC_STROBE_INFO> kTrafficStrobe;
extern const record::TypedTable<CFG_TRAFFIC_VOICE_INFO> kTrafficVoice;
extern const record::TypedTable<CFG_AUTO_STARTUP_DELAY_INFO> kAutoStartupDelay;
extern const record::TypedTable<CFG_ECK_INFO> kEck;
extern const record::TypedTable<CFG_GUIDE_SCREEN_INFO> kGuideScreen;
extern const record::TypedTable<CFG_PARKING_FILTER_INFO> kParkingFilter;
extern const record::TypedTable<CFG_PARKING_LIGHT_GROUP_INFO> kParkingLightGroup;
extern const record::TypedTable<CFG_PARK_OUT_LIGHT_INFO> kParkOutLight;

} // namespace orrery
