#include "frame/record/Engine.h"
#include "media/VideoInput.h"

namespace orrery {

using namespace record;

TABLE(kVideoInCaps, CFG_VIDEOIN_CAPS,
      {
          FIELD(nMeteringRegionCount, "MeteringRegionCount", Int),
          FIELD(nFishEye, "FishEye", Int),
          FIELD(nElectricFocus, "ElectricFocus", Int),
          FIELD(nExposureMode, "ExposureMode", Int),
          FIELD(nWideDynamicRange, "WideDynamicRange", Int),
          FIELD(nGlareInhibition, "GlareInhibition", Int),
      });

namespace {

// "Support" comes behind the keys that it decides on.
void DropColors(const json::Value& caps, std::byte* record, ReadCall&) {
    const json::Value& support = caps["VideoInColor"]["Support"];
    if (support.isBool() && support.asBool()) return;
    SET_MEMBER(record, CFG_VIDEOIN_CAPS_EX, bBrightness, 0);
    SET_MEMBER(record, CFG_VIDEOIN_CAPS_EX, bContrast, 0);
    SET_MEMBER(record, CFG_VIDEOIN_CAPS_EX, bSaturation, 0);
    SET_MEMBER(record, CFG_VIDEOIN_CAPS_EX, bHue, 0);
}

} // namespace

TABLE(kVideoInCapsEx, CFG_VIDEOIN_CAPS_EX,
      {
          FIELD(bDefog, "Defog/Support", Bool),
          FIELD(bAbfFunction, "ABFFunction/Support", Bool),
          FIELD(bImageStabilization, "ImageStabilization/Support", Bool),
          FIELD(bKillShutLine, "KillShutLine/Support", Bool),
          FIELD(nMaxKillShutLine, "KillShutLine/MaxKillShutLine", UInt),
          FIELD(nMinKillShutLine, "KillShutLine/MinKillShutLine", UInt),
          FIELD(bVideoInColor, "VideoInColor/Support", Bool),
          FIELD(bBrightness, "VideoInColor/Brightness", Bool),
          FIELD(bContrast, "VideoInColor/Contrast", Bool),
          FIELD(bSaturation, "VideoInColor/Saturation", Bool),
          FIELD(bHue, "VideoInColor/Hue", Bool),
          FIELD(bVideoInFocus, "VideoInFocus/Support", Bool),
          FIELD(bLightingControl, "LightingControl/Support", Bool),
          FIELD(dwReserved),
      })
    .AfterRead(DropColors);

namespace {

NAMES(kFocusStates, kFolded,
      {
          {CFG_FOCUS_NORMAL, "Normal"},
          {CFG_FOCUS_AUTOFOCUS, "Autofocus"},
      });

} // namespace

TABLE(kFocusStatus, CFG_FOCUS_STATUS,
      {
          FIELD(nAutofocusPeak, "AutofocusPeak", Int),
          FIELD(dFocus, "Focus", Real),
          FIELD(dZoom, "Zoom", Real),
          FIELD(emStatus, "Status", Names(kFocusStates)),
      });

} // namespace orrery
