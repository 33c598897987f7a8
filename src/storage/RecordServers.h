// What storage servers record, which services they run, and recordings as evidence.
#pragma once

#include "frame/record/Table.h"

#include "orrery/recording_servers.h"

namespace orrery {

extern const record::TypedTable<CFG_DEV_RECORD_GROUP_INFO> kDevRecordGroup;
extern const record::TypedTable<CFG_VIDEOIN_DEV_GROUP_INFO> kVideoInDevGroup;
extern const record::TypedTable<CFG_IPS_SERVER_INFO> kIpsServer;
extern const record::TypedTable<CFG_JUDICATURE_INFO> kJudicature;

} // namespace orrery
