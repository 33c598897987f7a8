// Flash lamps of traffic cameras.
#pragma once

#include "frame/record/Table.h"

#include "orrery/encode.h"

namespace orrery {

extern const record::TypedTable<CFG_STROBOSCOPIC_LAMP_INFO> kStroboscopicLamp;

// Clients count on a whole record for every lamp, though one record holds them all.
std::uint32_t StroboscopicLampLength(const std::byte* record);

} // namespace orrery
