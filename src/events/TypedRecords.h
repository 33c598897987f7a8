// The tables of what a typed text carries.
#pragma once

#include "frame/record/Table.h"

#include "orrery/events_typed.h"

namespace orrery::events {

extern const record::TypedTable<EVENT_VIDEO_STAT_SUMMARY> kTypedStatSummary;
extern const record::TypedTable<EVENT_RULE_TABLE> kTypedRules;
extern const record::TypedTable<EVENT_TRAFFIC_FLOW_STAT> kTypedFlow;
extern const record::TypedTable<EVENT_VIDEO_SYNOPSIS_RULE> kTypedSynopsis;

} // namespace orrery::events
