// What the event decoder tells the log. A line costs next to nothing while no sink is installed.
#pragma once

#include "frame/Log.h"

#include <string_view>

namespace orrery::events {

inline constexpr const char* kLogFile = "ReqRealPicture_EventParser";

#define ORRERY_EVENT_LOG(level, ...)                                                                                   \
    (::orrery::LogSetPosition(::orrery::events::kLogFile, __LINE__, level),                                            \
     ::orrery::LogTrace(E_LOG_CODE_NONE, __VA_ARGS__))
// A step of the decoder, for whoever follows it.
#define ORRERY_EVENT_DETAIL(...) ORRERY_EVENT_LOG(E_LOG_LEVEL_DETAIL, __VA_ARGS__)
#define ORRERY_EVENT_ERROR(...) ORRERY_EVENT_LOG(E_LOG_LEVEL_ERROR, __VA_ARGS__)

} // namespace orrery::events
