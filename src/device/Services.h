// What a device offers and who is logged in.
#pragma once

#include "frame/record/Table.h"

#include "orrery/services.h"

namespace orrery {

extern const record::TypedTable<CFG_SERVICE_LIST_INFO> kServiceList;
extern const record::TypedTable<CFG_NET_APP_CAPS> kNetAppCaps;
extern const record::TypedTable<CFG_EVENT_MANAGER_CAPS> kEventManagerCaps;
extern const record::TypedTable<CFG_EVENTHANDLER_CAPS_INFO> kEventHandlerCaps;
extern const record::TypedTable<CFG_RECORD_FINDER_CAPS> kRecordFinderCaps;
extern const record::TypedTable<CFG_DEVICE_CLASS_INFO> kDeviceClass;
extern const record::TypedTable<CFG_ACTIVE_USER_INFO_ALL> kActiveUserInfoAll;

} // namespace orrery
