// Heads, their serial lines, presets and tours.
#pragma once

#include "frame/Frames.h"
#include "frame/record/Table.h"

#include "orrery/ptz.h"

namespace orrery {

extern const record::TypedTable<CFG_PTZ_INFO> kPtz;
extern const record::TypedTable<CFG_COMM_INFO> kComm;
extern const record::TypedTable<CFG_PTZ_PRESET_INFO> kPtzPreset;
extern const record::TypedTable<CFG_PTZ_TOUR_INFO> kPtzTour;

bool HasPresetArray(const std::byte* record, std::uint32_t size);
// No more presets than there is room for, or no room at all, which is written as no text.
bool FitsPresets(const std::byte* record, std::uint32_t size);
Form PtzPresetForm(const std::byte* first, std::uint32_t count);

} // namespace orrery
