// Recordings on their way off the device.
#pragma once

#include "frame/Frames.h"

#include "orrery/record_transfer.h"

namespace orrery {

extern const record::TypedTable<CFG_RECORD_BACKUP_RESTORE_INFO> kRecordBackupRestore;
extern const record::TypedTable<CFG_RECORD_DOWNLOAD_SPEED_INFO> kRecordDownloadSpeed;

// What the log is told of calls that fail before a record is looked at.
void LogBackupPack(Outcome outcome, const PackRequest& request) noexcept;
void LogSpeedParse(Outcome outcome, const ParseRequest& request) noexcept;

} // namespace orrery
