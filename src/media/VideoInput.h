// Sensor settings by topic, and what a sensor can do.
#pragma once

#include "frame/record/Table.h"

#include "orrery/video_input_topics.h"

namespace orrery {

extern const record::TypedTable<CFG_VIDEOIN_EXPOSURE_INFO> kVideoInExposure;
extern const record::TypedTable<CFG_VIDEOIN_BACKLIGHT_INFO> kVideoInBacklight;
extern const record::TypedTable<CFG_VIDEOIN_DEFOG_INFO> kVideoInDefog;
extern const record::TypedTable<CFG_VIDEOIN_METERING_INFO> kVideoInMetering;
extern const record::TypedTable<CFG_VIDEOIN_DAYNIGHT_INFO> kVideoInDayNight;
extern const record::TypedTable<CFG_FISHEYE_INFO> kFishEye;
extern const record::TypedTable<CFG_VIDEOIN_CAPS> kVideoInCaps;
extern const record::TypedTable<CFG_VIDEOIN_CAPS_EX> kVideoInCapsEx;
extern const record::TypedTable<CFG_FOCUS_STATUS> kFocusStatus;

// The caller's items: an array with room, and on writing at least one item and no more than there is room for.
bool HasExposureRoom(const std::byte* record, std::uint32_t size);
bool HasExposureItems(const std::byte* record, std::uint32_t size);

} // namespace orrery
