#include "media/VideoInput.h"

#include "frame/record/Engine.h"

namespace orrery {

using namespace record;

// ---- "VideoInExposure" ----

bool HasExposureRoom(const std::byte* record, std::uint32_t) {
    return MEMBER(record, CFG_VIDEOIN_EXPOSURE_INFO, nMaxCount) != 0
           && MEMBER(record, CFG_VIDEOIN_EXPOSURE_INFO, pstuItems) != nullptr;
}
bool HasExposureItems(const std::byte* record, std::uint32_t size) {
    const auto count = MEMBER(record, CFG_VIDEOIN_EXPOSURE_INFO, nReturnCount);
    return HasExposureRoom(record, size) && count != 0 && count <= MEMBER(record, CFG_VIDEOIN_EXPOSURE_INFO, nMaxCount);
}

namespace {

PART(kExposureItem, CFG_VIDEOIN_EXPOSURE_ITEM,
     {
         FIELD(bSlowShutter, "SlowShutter", Bool).TrueAtOne(),
         FIELD(byMode, "Mode", Int),
         FIELD(byAntiFlicker, "AntiFlicker", Int),
         FIELD(byCompensation, "Compensation", Int),
         FIELD(byAutoGainMax, "AutoGainMax", Int),
         FIELD(byGain, "Gain", Int),
         FIELD(bySlowAutoExposure, "SlowAutoExposure", Int),
         FIELD(nSpeed, "Speed", Int),
         FIELD(bySlowSpeed, "SlowSpeed", Int),
         FIELD(byIris, "Iris", Int),
         FIELD(byBacklight, "Backlight", Int),
         FIELD(byWideDynamicRange, "WideDynamicRange", Int),
         FIELD(byWideDynamicRangeMode, "WideDynamicRangeMode", Int),
         FIELD(byGlareInhibition, "GlareInhibition", Int),
         FIELD(byDoubleExposure, "DoubleExposure", Int),
         FIELD(nRecoveryTime, "RecoveryTime", Int),
         FIELD(fValue1, "Value1", Real),
         FIELD(fValue2, "Value2", Real),
         FIELD(nBacklightRegion, "BacklightRegion", Int).AtLeast(4),
         FIELD(byIrisMin, "IrisMin", Int),
         FIELD(byIrisMax, "IrisMax", Int),
         FIELD(byGainMin, "GainMin", Int),
         FIELD(byGainMax, "GainMax", Int),
     });

} // namespace

TABLE(kVideoInExposure, CFG_VIDEOIN_EXPOSURE_INFO,
      {
          FIELD(nMaxCount),
          FIELD(nReturnCount),
          FIELD(pstuItems, "", Record(kExposureItem)).Capacity(AT(nMaxCount)).Count(AT(nReturnCount)),
      });

// ---- "VideoInBacklight" ----

namespace {

NAMES(kBacklightModes, kFolded.OutsideWrites(""),
      {
          {CFG_BACKLIGHT_UNKNOWN, ""},
          {CFG_BACKLIGHT_OFF, "Off"},
          {CFG_BACKLIGHT_BACKLIGHT, "Backlight"},
          {CFG_BACKLIGHT_GLARE, "GlareInhibition"},
          {CFG_BACKLIGHT_WIDE_DYNAMIC, "WideDynamic"},
          {CFG_BACKLIGHT_SSA, "SSA"},
      });

NAMES(kBacklightAreas, kFolded.OutsideWrites(""),
      {
          {CFG_BACKLIGHT_AREA_UNKNOWN, ""},
          {CFG_BACKLIGHT_AREA_DEFAULT, "Default"},
          {CFG_BACKLIGHT_AREA_REGION, "Region"},
      });

NAMES(kIntensityModes, kFolded.OutsideWrites(""),
      {
          {CFG_INTENSITY_UNKNOWN, ""},
          {CFG_INTENSITY_DISABLE, "Disable"},
          {CFG_INTENSITY_AUTO, "AutoIntensity"},
          {CFG_INTENSITY_MANUAL, "ManualIntensity"},
      });

// Cameras refuse keys that say nothing in the mode beside them.
template <CFG_BACKLIGHT_MODE Mode>
bool IsMode(const std::byte* item) {
    return MEMBER(item, CFG_BACKLIGHT_ITEM, emMode) == Mode;
}
bool IsRegion(const std::byte* item) {
    return IsMode<CFG_BACKLIGHT_BACKLIGHT>(item)
           && MEMBER(item, CFG_BACKLIGHT_ITEM, emBacklightMode) == CFG_BACKLIGHT_AREA_REGION;
}
bool IsManual(const std::byte* item) {
    return IsMode<CFG_BACKLIGHT_SSA>(item) && MEMBER(item, CFG_BACKLIGHT_ITEM, emIntensityMode) == CFG_INTENSITY_MANUAL;
}

PART(kBacklightItem, CFG_BACKLIGHT_ITEM,
     {
         FIELD(emMode, "Mode", Names(kBacklightModes)),
         FIELD(emBacklightMode, "BacklightMode", Names(kBacklightAreas)).WriteIf(IsMode<CFG_BACKLIGHT_BACKLIGHT>),
         FIELD(nRegion, "BacklightRegion", Int).WriteIf(IsRegion),
         FIELD(nWideDynamicRange, "WideDynamicRange", Int).WriteIf(IsMode<CFG_BACKLIGHT_WIDE_DYNAMIC>),
         FIELD(nGlareInhibition, "GlareInhibition", Int).WriteIf(IsMode<CFG_BACKLIGHT_GLARE>),
         FIELD(emIntensityMode, "IntensityMode", Names(kIntensityModes)).WriteIf(IsMode<CFG_BACKLIGHT_SSA>),
         FIELD(nIntensity, "Intensity", Int).WriteIf(IsManual),
     });

} // namespace

TABLE(kVideoInBacklight, CFG_VIDEOIN_BACKLIGHT_INFO,
      {
          FIELD(stuItems, "", Record(kBacklightItem)),
      });

// ---- "VideoInDefog" ----

namespace {

NAMES(kDefogModes, kFolded.OutsideWrites(""),
      {
          {CFG_DEFOG_UNKNOWN, ""},
          {CFG_DEFOG_OFF, "Off"},
          {CFG_DEFOG_AUTO, "Auto"},
          {CFG_DEFOG_MANUAL, "Manul"},
      });

NAMES(kLightIntensityModes, kFolded.OutsideWrites(""),
      {
          {CFG_LIGHT_INTENSITY_UNKNOWN, ""},
          {CFG_LIGHT_INTENSITY_AUTO, "Auto"},
          {CFG_LIGHT_INTENSITY_MANUAL, "Manul"},
      });

PART(kDefogItem, CFG_DEFOG_ITEM,
     {
         FIELD(emMode, "Mode", Names(kDefogModes)),
         FIELD(nIntensity, "Intensity", Int),
         FIELD(emLightIntensityMode, "LightIntensityMode", Names(kLightIntensityModes)),
         FIELD(nLightIntensityLevel, "LightIntensityLevel", Int),
         FIELD(bCamDefogEnable, "CamDefogEnable", Bool),
     });

bool HasDefogItems(const std::byte* record) {
    return static_cast<std::int32_t>(MEMBER(record, CFG_VIDEOIN_DEFOG_INFO, nCount)) > 0;
}

} // namespace

TABLE(kVideoInDefog, CFG_VIDEOIN_DEFOG_INFO,
      {
          FIELD(nCount),
          FIELD(stuItems, "", Record(kDefogItem)).Count(AT(nCount)).WriteIf(HasDefogItems),
      });

// ---- "VideoInMetering" ----

namespace {

NAMES(kMeteringModes, kFolded.Unknown(CFG_METERING_PARTIAL).OutsideWrites("Partial"),
      {
          {CFG_METERING_AVERAGE, "Average"},
          {CFG_METERING_PARTIAL, "Partial"},
      });

// A list without regions is as good as none.
void FlagRegions(const json::Value&, std::byte* item, ReadCall&) {
    SET_MEMBER(item, CFG_METERING_ITEM, abRegions, MEMBER(item, CFG_METERING_ITEM, nRegionCount) > 0 ? 1 : 0);
}

PART(kMeteringItem, CFG_METERING_ITEM,
     {
         FIELD(abRegions),
         FIELD(abMode),
         FIELD(nRegionCount),
         FIELD(nRegions, "Regions", UInt).WrittenAs(Int).Count(AT(nRegionCount)).WriteIf(AT(abRegions)),
         FIELD(byMode, "Mode", Names(kMeteringModes)).SetsAndNeeds(AT(abMode)),
         FIELD(byReserved),
     })
    .AfterRead(FlagRegions);

} // namespace

TABLE(kVideoInMetering, CFG_VIDEOIN_METERING_INFO,
      {
          FIELD(nCount),
          FIELD(stuItems, "", Record(kMeteringItem)).Count(AT(nCount)),
      });

// ---- "VideoInDayNight" ----

namespace {

NAMES(kDayNightTypes, kFolded.OutsideWrites(""),
      {
          {CFG_DAYNIGHT_TYPE_UNKNOWN, ""},
          {CFG_DAYNIGHT_TYPE_ELECTRON, "Electron"},
          {CFG_DAYNIGHT_TYPE_MECHANISM, "Mechanism"},
      });

NAMES(kDayNightModes, kFolded.OutsideWrites(""),
      {
          {CFG_DAYNIGHT_UNKNOWN, ""},
          {CFG_DAYNIGHT_COLOR, "Color"},
          {CFG_DAYNIGHT_BRIGHTNESS, "Brightness"},
          {CFG_DAYNIGHT_BLACK_WHITE, "BlackWhite"},
          {CFG_DAYNIGHT_PHOTORESISTOR, "Photoresistor"},
          {CFG_DAYNIGHT_GAIN, "Gain"},
          {CFG_DAYNIGHT_ALARM_INPUT, "AlarmInput"},
          {CFG_DAYNIGHT_IO, "IO"},
      });

PART(kDayNightItem, CFG_DAYNIGHT_ITEM,
     {
         FIELD(emType, "Type", Names(kDayNightTypes)),
         FIELD(emMode, "Mode", Names(kDayNightModes)),
         FIELD(nSensitivity, "Sensitivity", Int),
         FIELD(nDelay, "Delay", Int),
     });

} // namespace

TABLE(kVideoInDayNight, CFG_VIDEOIN_DAYNIGHT_INFO,
      {
          FIELD(stuItems, "", Record(kDayNightItem)).Exactly(),
      });

} // namespace orrery
