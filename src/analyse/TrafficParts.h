// What the settings of traffic cameras share.
#pragma once

#include "frame/Frames.h"
#include "frame/record/Engine.h"

#include "orrery/traffic_global.h"

namespace orrery::traffic {

using namespace record;

PART(kSizedTime, CFG_SIZED_NET_TIME,
     {
         FIELD(dwSize),
         FIELD(stuTime),
     });
static_assert(sizeof(CFG_SIZED_NET_TIME) == 28);

inline bool HasTime(const std::byte* time) noexcept {
    return MEMBER(time, CFG_SIZED_NET_TIME, dwSize) == sizeof(CFG_SIZED_NET_TIME);
}

// Reads only a time whose size is right, and sets the size for the next call.
inline void ReadSizedTime(const json::Value& value, std::byte* time) noexcept {
    if (HasTime(time)) {
        JsonParser::GetNetTime(value, reinterpret_cast<NET_TIME*>(time + offsetof(CFG_SIZED_NET_TIME, stuTime)));
    }
    SET_MEMBER(time, CFG_SIZED_NET_TIME, dwSize, sizeof(CFG_SIZED_NET_TIME));
}

inline void WriteSizedTime(const std::byte* time, WriteCall& call) noexcept {
    JsonParser::SetNetTime(call.out, reinterpret_cast<const NET_TIME*>(time + offsetof(CFG_SIZED_NET_TIME, stuTime)));
}

// For a reply of which a part is of the wrong type: the whole table, no text as it is, is then none that is taken.
inline constexpr Take kTakesNone = Take::Text;

} // namespace orrery::traffic
