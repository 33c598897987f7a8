// How traffic cameras take their pictures.
#pragma once

#include "frame/Frames.h"

#include "orrery/traffic_snapshot.h"

namespace orrery {

extern const record::TypedTable<CFG_TRAFFICSNAPSHOT_INFO> kTrafficSnapshot;
extern const record::TypedTable<CFG_TRAFFICSNAPSHOT_NEW_INFO> kTrafficSnapshotNew;
extern const record::TypedTable<CFG_TRAFFICSNAPSHOT_DESCRIPTOR> kSnapshotDescriptor;

// "TrafficSnapshot". Clears all but the date, which is read by the caller's size word.
void ClearTrafficSnapshot(std::byte* record);
Take TrafficSnapshotTakes(const json::Value& root);

// "TrafficSnapshotNew": the buffer's size tells a record from a descriptor.
Outcome ParseTrafficSnapshotNew(const ParseRequest& request) noexcept;
Outcome PackTrafficSnapshotNew(const PackRequest& request) noexcept;

} // namespace orrery
