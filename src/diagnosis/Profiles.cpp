#include "diagnosis/Diagnosis.h"
#include "diagnosis/DiagnosisParts.h"

namespace orrery {

using namespace record;

namespace {

PART(kEnable, CFG_DIAG_ENABLE,
     {
         FIELD(bEnable, "Enable", Bool),
     });

PART(kBasic, CFG_DIAG_BASIC,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nMinDuration, "MinDuration", Int),
     });

PART(kThreshold, CFG_DIAG_THRESHOLD,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nMinDuration, "MinDuration", Int),
         FIELD(byThreshold1, "Threshold1", Int),
         FIELD(byThreshold2, "Threshold2", Int),
     });

PART(kStriation, CFG_DIAG_STRIATION,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nMinDuration, "MinDuration", Int),
         FIELD(byThreshold1, "Threshold1", Int),
         FIELD(byThreshold2, "Threshold2", Int),
         FIELD(bUVDetection, "UVDetection", Bool),
     });

PART(kRange, CFG_DIAG_RANGE,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nMinDuration, "MinDuration", Int),
         FIELD(byLowerThreshold1, "LowerThreshold1", Int),
         FIELD(byUpperThreshold1, "UpperThreshold1", Int),
         FIELD(byLowerThreshold2, "LowerThreshold2", Int),
         FIELD(byUpperThreshold2, "UpperThreshold2", Int),
     });

PART(kCount, CFG_DIAG_COUNT,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nThreshold1, "Threshold1", Int),
         FIELD(nThreshold2, "Threshold2", Int),
         FIELD(nMinDuration, "MinDuration", Int),
     });

PART(kProfile, CFG_DIAGNOSIS_PROFILE,
     {
         FIELD(szName, nullptr, MemberName),
         FIELD(pstuVideoDither, "VideoDitherDetection", Record(kThreshold)).Single(),
         FIELD(pstuVideoStriation, "VideoStriationDetection", Record(kStriation)).Single(),
         FIELD(pstuVideoLoss, "VideoLossDetection", Record(kBasic)).Single(),
         FIELD(pstuVideoCover, "VideoCoverDetection", Record(kThreshold)).Single(),
         FIELD(pstuVideoFrozen, "VideoFrozenDetection", Record(kBasic)).Single(),
         FIELD(pstuVideoBrightness, "VideoBrightnessDetection", Record(kRange)).Single(),
         FIELD(pstuVideoContrast, "VideoContrastDetection", Record(kRange)).Single(),
         FIELD(pstuVideoUnbalance, "VideoUnbalanceDetection", Record(kThreshold)).Single(),
         FIELD(pstuVideoNoise, "VideoNoiseDetection", Record(kThreshold)).Single(),
         FIELD(pstuVideoBlur, "VideoBlurDetection", Record(kThreshold)).Single(),
         FIELD(pstuVideoSceneChange, "VideoSceneChangeDetection", Record(kThreshold)).Single(),
         FIELD(pstuVideoDelay, "VideoDelay", Record(kEnable)).Single(),
         FIELD(pstuPTZMoving, "PTZMoving", Record(kEnable)).Single(),
         FIELD(pstuVideoBlackAndWhite, "VideoBlackAndWhite", Record(kCount)).Single(),
         // Callers count on this test being read only beside the one before it.
         FIELD(pstuVideoDramaticChange, "VideoDramaticChange", Record(kCount))
             .Single()
             .ReadIf(AT(pstuVideoBlackAndWhite)),
     });

} // namespace

TABLE(kDiagnosisProfiles, CFG_DIAGNOSIS_PROFILE_LIST, {ENTRIES_BY_NAME(kProfile)});

} // namespace orrery
