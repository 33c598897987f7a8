// How a device meets others on its network.
#pragma once

#include "frame/record/Table.h"

#include "orrery/device_network.h"

namespace orrery {

extern const record::TypedTable<CFG_ACCESS_FILTER_INFO> kAccessFilter;
extern const record::TypedTable<CFG_NET_COLLECTION_INFO> kNetCollection;
extern const record::TypedTable<CFG_RTMP_INFO> kRtmp;
extern const record::TypedTable<CFG_PHONE_EVENT_NOTIFY_INFO> kPhoneEventNotify;
extern const record::TypedTable<CFG_COMM_SUBSCRIBE_INFO> kCommSubscribe;
extern const record::TypedTable<CFG_VSP_GAYS_INFO> kVspGays;
extern const record::TypedTable<CFG_AROUD_WIFI_SEARCH_INFO> kAroudWifiSearch;

} // namespace orrery
