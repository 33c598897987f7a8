// The names of picture sizes, which encoding, recording and camera settings share.
#pragma once

#include "frame/record/Names.h"

#include "orrery/encode.h"

namespace orrery {

// The row of a code comes before its second names: it is the one that is written.
NAMES(kResolutions, record::kFolded.Unknown(CFG_RESOLUTION_UNKNOWN).OutsideWrites(""),
      {
          {CFG_RESOLUTION_D1, "D1"},
          {CFG_RESOLUTION_HD1, "HD1"},
          {CFG_RESOLUTION_BCIF, "BCIF"},
          {CFG_RESOLUTION_CIF, "CIF"},
          {CFG_RESOLUTION_QCIF, "QCIF"},
          {CFG_RESOLUTION_VGA, "VGA"},
          {CFG_RESOLUTION_QVGA, "QVGA"},
          {CFG_RESOLUTION_SVCD, "SVCD"},
          {CFG_RESOLUTION_QQVGA, "QQVGA"},
          {CFG_RESOLUTION_SVGA, "SVGA"},
          {CFG_RESOLUTION_XVGA, "XVGA"},
          {CFG_RESOLUTION_WXGA, "WXGA"},
          {CFG_RESOLUTION_SXGA, "SXGA"},
          {CFG_RESOLUTION_WSXGA, "WSXGA"},
          {CFG_RESOLUTION_UXGA, "UXGA"},
          {CFG_RESOLUTION_WUXGA, "WUXGA"},
          {CFG_RESOLUTION_ND1, "ND1"},
          {CFG_RESOLUTION_720P, "720"},
          {CFG_RESOLUTION_1080P, "1080"},
          {CFG_RESOLUTION_1_3M, "1_3M"},
          {CFG_RESOLUTION_2_5M, "2_5M"},
          {CFG_RESOLUTION_5M, "5M"},
          {CFG_RESOLUTION_3M, "3M"},
          {CFG_RESOLUTION_5_0M, "5_0M"},
          {CFG_RESOLUTION_1_2M, "1_2M"},
          {CFG_RESOLUTION_1408X1024, "1408x1024"},
          {CFG_RESOLUTION_3296X2472, "3296x2472"},
          {CFG_RESOLUTION_5_1M, "5_1M"},
          {CFG_RESOLUTION_960H, "960H"},
          {CFG_RESOLUTION_DV720P, "DV720P"},
          {CFG_RESOLUTION_2560X1600, "2560x1600"},
          {CFG_RESOLUTION_2336X1752, "2336x1752"},
          {CFG_RESOLUTION_2592X2048, "2592x2048"},

          {CFG_RESOLUTION_BCIF, "2CIF"},
          {CFG_RESOLUTION_1_3M, "1280x960"},
          {CFG_RESOLUTION_2_5M, "1872x1408"},
          {CFG_RESOLUTION_5M, "3744x1408"},
          {CFG_RESOLUTION_3M, "2048x1536"},
          {CFG_RESOLUTION_5_0M, "2432x2048"},
          {CFG_RESOLUTION_1_2M, "1216x1024"},
          {CFG_RESOLUTION_5_1M, "2560x1920"},
      });

} // namespace orrery
