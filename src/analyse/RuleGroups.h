// Rules of a channel in groups of one type, with their scenes.
#pragma once

#include "frame/record/Table.h"

#include "orrery/analyse_groups.h"

namespace orrery {

// "VideoInAnalyseRule"
extern const record::TypedTable<CFG_VIDEOINANALYSE_RULES_INFO> kRuleGroups;
// Clears the record but for what is the caller's in it.
void ClearRuleGroups(std::byte* record);

} // namespace orrery
