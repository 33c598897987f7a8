// Where channels are stored: groups of places, servers and limits.
#pragma once

#include "frame/record/Table.h"

#include "orrery/storage_groups.h"

namespace orrery {

extern const record::TypedTable<CFG_STORAGE_GROUP_INFO> kStorageGroup;
extern const record::TypedTable<CFG_STORAGE_DEV_GROUP_INFO> kStorageDevGroup;
extern const record::TypedTable<CFG_RECORD_TO_GROUP_INFO> kRecordToGroup;
extern const record::TypedTable<CFG_METADATA_SERVER_INFO> kMetaDataServer;
extern const record::TypedTable<CFG_REMOTE_STORAGE_LIMIT_INFO> kRemoteStorageLimit;
extern const record::TypedTable<CFG_SPECIAL_DIR_INFO> kSpecialDirectories;
extern const record::TypedTable<CFG_FILE_MANAGER_CAPS> kFileManagerCaps;
extern const record::TypedTable<CFG_LOG_CAPS> kLogCaps;

} // namespace orrery
