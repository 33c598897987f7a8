// What heads do without an operator.
#pragma once

#include "frame/record/Table.h"

#include "orrery/ptz.h"

namespace orrery {

extern const record::TypedTable<CFG_PTZ_AUTO_MOVEMENT_INFO> kPtzAutoMovement;
extern const record::TypedTable<CFG_IDLE_MOTION_INFO> kIdleMotion;
extern const record::TypedTable<CFG_STANDING_TIME_INFO> kStandingTime;
extern const record::TypedTable<CFG_ENCLOSURE_SCHEDULE_INFO> kEnclosureSchedule;

// The caller's channels: an array, and on writing channels that stand in it.
bool HasMovementArray(const std::byte* record, std::uint32_t size);
bool HasMovements(const std::byte* record, std::uint32_t size);

} // namespace orrery
