// What a device's encoders and overlays can do.
#pragma once

#include "frame/record/Table.h"

#include "orrery/encode_caps.h"

namespace orrery {

extern const record::TypedTable<CFG_ENCODE_CAPS> kEncodeCaps;
extern const record::TypedTable<CFG_ENCODE_NAA_CAPS> kEncodeNaaCaps;
extern const record::TypedTable<CFG_ENCODE_CROP_CAPS> kEncodeCropCaps;
extern const record::TypedTable<CFG_OSD_CAPS> kOsdCaps;
extern const record::TypedTable<CFG_OSD_CUSTOM_CAPS> kOsdCustomCaps;
extern const record::TypedTable<CFG_DSP_ENCODE_CAP> kDspEncodeCap;

} // namespace orrery
