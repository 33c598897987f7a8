// Where pictures to be analysed come from, and small settings of the same devices.
#pragma once

#include "frame/record/Table.h"

#include "orrery/analyse_modules.h"

namespace orrery {

extern const record::TypedTable<CFG_ANALYSESOURCE_INFO> kAnalyseSource;
extern const record::TypedTable<CFG_ANALYSEWHOLE_INFO> kAnalyseWhole;
extern const record::TypedTable<CFG_SNAPSOURCE_INFO> kSnapSource;
extern const record::TypedTable<CFG_GENERAL_INFO> kGeneral;
extern const record::TypedTable<CFG_RAINBRUSH_INFO> kRainBrush;
extern const record::TypedTable<CFG_INTELLITRACKSCENE_INFO> kIntelliTrackScene;

// Clears what is not the caller's own.
void ClearAnalyseSource(std::byte* record);
bool AreSnapSourcesFew(const std::byte* record, std::uint32_t size);

} // namespace orrery
