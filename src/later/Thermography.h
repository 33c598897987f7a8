// Heat imaging: how a thermal picture is made, and what is measured in it.
#pragma once

#include "frame/record/Table.h"

#include "orrery/thermography.h"

namespace orrery {

extern const record::TypedTable<CFG_THERMOGRAPHY_INFO> kThermography;
extern const record::TypedTable<CFG_THERMOMETRY_RULE_INFO> kThermometryRules;
extern const record::TypedTable<CFG_TEMPERATURE_STATISTICS_INFO> kTemperatureStatistics;
extern const record::TypedTable<CFG_HEAT_IMAGING_THERMOMETRY_INFO> kHeatImagingThermometry;

} // namespace orrery
