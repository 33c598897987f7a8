// What is blended into the encoded picture or taken from it.
#pragma once

#include "frame/Frames.h"

#include "orrery/overlay.h"

#include <string_view>

namespace orrery {

extern const record::TypedTable<CFG_SNAP_INFO> kSnapInfo;
extern const record::TypedTable<CFG_WATERMARK_INFO> kWaterMark;
extern const record::TypedTable<CFG_VIDEO_ENCODE_ROI_INFO> kVideoEncodeRoi;
extern const record::TypedTable<CFG_PICINPIC_INFO> kPicInPic;

// Pictures in the picture: members by name in arrays of the caller's, and records in one member of the first.
inline constexpr std::string_view kFurtherPictures = "Extend";
Outcome ParsePicInPic(const ParseRequest& request) noexcept;
Outcome PackPicInPic(const PackRequest& request) noexcept;

} // namespace orrery
