// Door controllers.
#pragma once

#include "frame/record/Table.h"

#include "orrery/access_control.h"

namespace orrery {

extern const record::TypedTable<CFG_ACCESS_CONTROL_INFO> kAccessControl;
extern const record::TypedTable<CFG_ACCESS_GENERAL_INFO> kAccessGeneral;
extern const record::TypedTable<CFG_ACCESS_TIME_SCHEDULE_INFO> kAccessTimeSchedule;
extern const record::TypedTable<CFG_OPEN_DOOR_GROUP_INFO> kOpenDoorGroup;
extern const record::TypedTable<CFG_OPEN_DOOR_ROUTE_INFO> kOpenDoorRoute;
extern const record::TypedTable<CFG_ACCESS_WORK_MODE_INFO> kAccessWorkMode;
extern const record::TypedTable<CFG_ACCESS_TEXT_DISPLAY_INFO> kAccessTextDisplay;
extern const record::TypedTable<CFG_ACCESS_CAPS> kAccessCaps;

} // namespace orrery
