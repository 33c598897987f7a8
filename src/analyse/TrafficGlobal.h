// Settings of all traffic rules of a camera.
#pragma once

#include "frame/Frames.h"

#include "orrery/traffic_global.h"

namespace orrery {

extern const record::TypedTable<CFG_TRAFFICGLOBAL_INFO> kTrafficGlobal;

// Clears all but the dates, which are read by the caller's size words.
void ClearTrafficGlobal(std::byte* record);
Take TrafficGlobalTakes(const json::Value& root);

} // namespace orrery
