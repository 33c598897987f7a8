// "RecordStoragePoint": where the recordings of one channel go, or those of all.
#pragma once

#include "frame/Frames.h"
#include "frame/record/Table.h"

#include "orrery/recording.h"

namespace orrery {

extern const record::TypedTable<CFG_RECORD_STORAGE_POINT_INFO> kRecordStoragePoint;
extern const record::TypedTable<CFG_RECORD_STORAGE_POINT_CHANNELS> kRecordStoragePointChannels;

// The exact size of the caller's buffer tells whether it is a record or leads to the records of all channels.
Outcome ParseRecordStoragePoint(const ParseRequest& request) noexcept;
Outcome PackRecordStoragePoint(const PackRequest& request) noexcept;

} // namespace orrery
