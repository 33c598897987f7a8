// The names of the ways to flatten a fish-eye picture, in the sensor's options and as members of "FishEye".
#pragma once

#include "frame/record/Names.h"

#include "orrery/video_input.h"

namespace orrery {

NAMES(kFishEyeModes, record::kFolded.OutsideWrites(""),
      {
          {CFG_FISHEYE_UNKNOWN, ""},
          {CFG_FISHEYE_ORIGINAL, "Original"},
          {CFG_FISHEYE_CONFIG, "Config"},
          {CFG_FISHEYE_PANORAMA, "Panorama"},
          {CFG_FISHEYE_DOUBLE_PANORAMA, "DoublePanorama"},
          {CFG_FISHEYE_ORIGINAL_PLUS_3, "OriginalPlusThreeEPtzRegion"},
          {CFG_FISHEYE_SINGLE, "Single"},
          {CFG_FISHEYE_FOUR, "FourEPtzRegion"},
          {CFG_FISHEYE_NORMAL, "Normal"},
      });

} // namespace orrery
