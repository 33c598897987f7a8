// When channels record.
#pragma once

#include "frame/Frames.h"
#include "frame/record/Table.h"

#include "orrery/recording.h"

namespace orrery {

extern const record::TypedTable<CFG_RECORD_INFO> kRecordPlan;
extern const record::TypedTable<CFG_RECORD_MODE_INFO> kRecordMode;
extern const record::TypedTable<CFG_HOLIDAY_SCHEDULE_INFO> kHolidayPlan;
extern const record::TypedTable<CFG_RECORD_CAPS> kRecordCaps;

// A reply that names its channel tells of that one alone, whatever its table looks like.
Take RecordTakes(const json::Value& root);

} // namespace orrery
