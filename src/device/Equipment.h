// Equipment that a device drives.
#pragma once

#include "frame/record/Table.h"

#include "orrery/device_equipment.h"

namespace orrery {

extern const record::TypedTable<CFG_AIR_CONDITION_INFO> kAirCondition;
extern const record::TypedTable<CFG_LIGHTING_INFO> kLighting;
extern const record::TypedTable<CFG_AUDIO_OUT_EQUALIZER_INFO> kAudioOutEqualizer;
extern const record::TypedTable<CFG_AUDIO_OUT_SUPPRESSION_INFO> kAudioOutSuppression;
extern const record::TypedTable<CFG_AUDIO_IN_CONTROL_INFO> kAudioInControl;

} // namespace orrery
