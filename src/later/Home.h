// The devices and scenes of a home.
#pragma once

#include "frame/record/Table.h"

#include "orrery/home.h"

namespace orrery {

extern const record::TypedTable<CFG_LIGHT_INFO> kLight;
extern const record::TypedTable<CFG_CURTAIN_INFO> kCurtain;
extern const record::TypedTable<CFG_FRESH_AIR_INFO> kFreshAir;
extern const record::TypedTable<CFG_GROUND_HEAT_INFO> kGroundHeat;
extern const record::TypedTable<CFG_SCENE_MODE_INFO> kSceneMode;

} // namespace orrery
