// What the event decoder tells the log. While no sink is installed a line costs a look, and no lock that threads would
// have to wait for: there are several lines an event.
#pragma once

#include "frame/Log.h"

#include <string_view>

namespace orrery::events {

inline constexpr const char* kLogFile = "ReqRealPicture_EventParser";

#define ORRERY_EVENT_LOG(level, ...)                                                                                   \
    (::orrery::LogHasSink() ? (::orrery::LogSetPosition(::orrery::events::kLogFile, __LINE__, level),                  \
                               ::orrery::LogTrace(E_LOG_CODE_NONE, __VA_ARGS__))                                       \
                            : void())
// A step of the decoder, for whoever follows it.
#define ORRERY_EVENT_DETAIL(...) ORRERY_EVENT_LOG(E_LOG_LEVEL_DETAIL, __VA_ARGS__)
#define ORRERY_EVENT_ERROR(...) ORRERY_EVENT_LOG(E_LOG_LEVEL_ERROR, __VA_ARGS__)

} // namespace orrery::events
