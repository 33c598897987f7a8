#include "media/VideoInOptions.h"

#include "frame/record/Engine.h"
#include "media/FishEyeModes.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kSignalFormats, kFolded.OutsideWrites("Inside"),
      {
          {CFG_SIGNAL_INSIDE, "Inside"},
          {CFG_SIGNAL_BT656, "BT656"},
          {CFG_SIGNAL_720P, "720p"},
          {CFG_SIGNAL_1080P, "1080p"},
          {CFG_SIGNAL_1080I, "1080i"},
          {CFG_SIGNAL_1080SF, "1080sF"},
      });

NAMES(kWhiteBalances, kFolded.OutsideWrites("Disable"),
      {
          {CFG_WHITE_BALANCE_DISABLE, "Disable"},
          {CFG_WHITE_BALANCE_AUTO, "Auto"},
          {CFG_WHITE_BALANCE_CUSTOM, "Custom"},
          {CFG_WHITE_BALANCE_SUNNY, "Sunny"},
          {CFG_WHITE_BALANCE_CLOUDY, "Cloudy"},
          {CFG_WHITE_BALANCE_HOME, "Home"},
          {CFG_WHITE_BALANCE_OFFICE, "Office"},
          {CFG_WHITE_BALANCE_NIGHT, "Night"},
          {CFG_WHITE_BALANCE_HIGH, "HighColorTemperature"},
          {CFG_WHITE_BALANCE_LOW, "LowColorTemperature"},
          {CFG_WHITE_BALANCE_AUTO_COLOR, "AutoColorTemperature"},
          {CFG_WHITE_BALANCE_CUSTOM_COLOR, "CustomColorTemperature"},
      });

PART(kNight, CFG_VIDEOIN_NIGHT_OPTIONS,
     {
         FIELD(bySwitchMode, "SwitchMode", Int),
         FIELD(byProfile, "Profile", Int),
         FIELD(byBrightnessThreshold, "BrightnessThreshold", Int),
         FIELD(bySunriseHour, "SunriseHour", Int),
         FIELD(bySunriseMinute, "SunriseMinute", Int),
         FIELD(bySunriseSecond, "SunriseSecond", Int),
         FIELD(bySunsetHour, "SunsetHour", Int),
         FIELD(bySunsetMinute, "SunsetMinute", Int),
         FIELD(bySunsetSecond, "SunsetSecond", Int),
         FIELD(byGainRed, "GainRed", Int),
         FIELD(byGainBlue, "GainBlue", Int),
         FIELD(byGainGreen, "GainGreen", Int),
         FIELD(byExposureSpeed, "ExposureSpeed", Int),
         FIELD(fExposureValue1, "ExposureValue1", Real),
         FIELD(fExposureValue2, "ExposureValue2", Real),
         FIELD(byWhiteBalance, "WhiteBalance", Names(kWhiteBalances)),
         FIELD(byGain, "Gain", Int),
         FIELD(bGainAuto, "GainAuto", Bool),
         FIELD(bIrisAuto, "IrisAuto", Bool),
         FIELD(fExternalSyncPhase, "ExternalSyncPhase", Real),
         FIELD(byGainMin, "GainMin", Int),
         FIELD(byGainMax, "GainMax", Int),
         FIELD(byBacklight, "Backlight", Int),
         FIELD(byAntiFlicker, "AntiFlicker", Int),
         FIELD(byDayNightColor, "DayNightColor", Int),
         FIELD(byExposureMode, "ExposureMode", Int),
         FIELD(byRotate90, "Rotate90", Int),
         FIELD(bMirror, "Mirror", Bool),
         FIELD(byWideDynamicRange, "WideDynamicRange", Int),
         FIELD(byGlareInhibition, "GlareInhibition", Int),
         FIELD(nBacklightRegion, "BacklightRegion", Int).AtLeast(4),
         FIELD(byFocusMode, "FocusMode", Int),
         FIELD(bFlip, "Flip", Bool),
     });

PART(kNormal, CFG_VIDEOIN_NORMAL_OPTIONS,
     {
         FIELD(byGainRed, "GainRed", Int),
         FIELD(byGainBlue, "GainBlue", Int),
         FIELD(byGainGreen, "GainGreen", Int),
         FIELD(byExposureSpeed, "ExposureSpeed", Int),
         FIELD(fExposureValue1, "ExposureValue1", Real),
         FIELD(fExposureValue2, "ExposureValue2", Real),
         FIELD(byWhiteBalance, "WhiteBalance", Names(kWhiteBalances)),
         FIELD(byGain, "Gain", Int),
         FIELD(bGainAuto, "GainAuto", Bool),
         FIELD(bIrisAuto, "IrisAuto", Bool),
         FIELD(fExternalSyncPhase, "ExternalSyncPhase", Real).WriteOnly(),
         FIELD(byGainMin, "GainMin", Int),
         FIELD(byGainMax, "GainMax", Int),
         FIELD(byBacklight, "Backlight", Int),
         FIELD(byAntiFlicker, "AntiFlicker", Int),
         FIELD(byDayNightColor, "DayNightColor", Int),
         FIELD(byExposureMode, "ExposureMode", Int),
         FIELD(byRotate90, "Rotate90", Int),
         FIELD(bMirror, "Mirror", Bool),
         FIELD(byWideDynamicRange, "WideDynamicRange", Int),
         FIELD(byGlareInhibition, "GlareInhibition", Int),
         FIELD(nBacklightRegion, "BacklightRegion", Int).AtLeast(4),
         FIELD(byFocusMode, "FocusMode", Int),
         FIELD(bFlip, "Flip", Bool),
     });

PART(kFlash, CFG_VIDEOIN_FLASH_OPTIONS,
     {
         FIELD(byMode, "Mode", Int),
         FIELD(byValue, "Value", Int),
         FIELD(byPole, "Pole", Int),
         FIELD(byPreValue, "PreValue", Int),
         FIELD(byDutyCycle, "DutyCycle", Int),
         FIELD(byFrequencyMultiple, "FrequencyMultiple", Int),
     });

PART(kSnapshot, CFG_VIDEOIN_SNAPSHOT_OPTIONS,
     {
         FIELD(byGainRed, "GainRed", Int),
         FIELD(byGainBlue, "GainBlue", Int),
         FIELD(byGainGreen, "GainGreen", Int),
         FIELD(byExposureSpeed, "ExposureSpeed", Int),
         FIELD(fExposureValue1, "ExposureValue1", Real),
         FIELD(fExposureValue2, "ExposureValue2", Real),
         FIELD(byWhiteBalance, "WhiteBalance", Names(kWhiteBalances)),
         FIELD(byColorTemperatureLevel, "ColorTemperatureLevel", Int),
         FIELD(bGainAuto, "GainAuto", Bool),
         FIELD(byGain, "Gain", Int),
     });

// One list in the text, two members of the record.
void ReadCenter(const Field&, const json::Value& value, std::byte* record, ReadCall&) {
    SET_MEMBER(record, CFG_VIDEOIN_FISHEYE_OPTIONS, nCenterX, value[0].asInt());
    SET_MEMBER(record, CFG_VIDEOIN_FISHEYE_OPTIONS, nCenterY, value[1].asInt());
}
void WriteCenter(const Field&, const std::byte* record, WriteCall& call) {
    call.Key();
    call.out.BeginArray();
    call.out.Int(MEMBER(record, CFG_VIDEOIN_FISHEYE_OPTIONS, nCenterX));
    call.out.Int(MEMBER(record, CFG_VIDEOIN_FISHEYE_OPTIONS, nCenterY));
    call.out.EndArray();
}
constexpr CustomCodec kCenter{ReadCenter, WriteCenter, "[4096, 4097]"};

PART(kFishEyeOptions, CFG_VIDEOIN_FISHEYE_OPTIONS,
     {
         FIELD(nCenterX, "Center", Custom(kCenter)),
         FIELD(nCenterY),
         FIELD(nRadius, "Radius", UInt),
         FIELD(fDirection, "Direction", Real),
         FIELD(byPlaceHolder, "PlaceHolder", Int),
         FIELD(byCalibrateMode, "CalibrateMode", Names(kFishEyeModes)),
     });

// The record holds the switch mode twice, and clients set the one outside.
void WriteNight(const Field& field, const std::byte* record, WriteCall& call) {
    std::byte night[sizeof(CFG_VIDEOIN_NIGHT_OPTIONS)];
    std::memcpy(night, record + field.offset, sizeof night);
    SET_MEMBER(night, CFG_VIDEOIN_NIGHT_OPTIONS, bySwitchMode, MEMBER(record, CFG_VIDEOIN_OPTIONS, byNightSwitchMode));
    call.Key();
    WriteRecord(kNight, night, call);
}
constexpr CustomCodec kNightWritten{nullptr, WriteNight};

bool HasFlash(const std::byte* record) {
    return MEMBER(record, CFG_VIDEOIN_OPTIONS, stuFlash).byMode <= 2;
}

} // namespace

TABLE(kVideoInOptions, CFG_VIDEOIN_OPTIONS,
      {
          FIELD(byBacklight, "Backlight", Int),
          FIELD(byDayNightColor, "DayNightColor", Int),
          FIELD(byWhiteBalance, "WhiteBalance", Names(kWhiteBalances)),
          FIELD(byColorTemperatureLevel, "ColorTemperatureLevel", Int),
          FIELD(bMirror, "Mirror", Bool),
          FIELD(bFlip, "Flip", Bool),
          FIELD(bIrisAuto, "IrisAuto", Bool),
          FIELD(bInfraRed, "InfraRed", Bool),
          FIELD(byGainRed, "GainRed", Int),
          FIELD(byGainBlue, "GainBlue", Int),
          FIELD(byGainGreen, "GainGreen", Int),
          FIELD(byExposureSpeed, "ExposureSpeed", Int),
          FIELD(fExposureValue1, "ExposureValue1", Real),
          FIELD(fExposureValue2, "ExposureValue2", Real),
          FIELD(bGainAuto, "GainAuto", Bool),
          FIELD(byGain, "Gain", Int),
          FIELD(bySignalFormat, "SignalFormat", Names(kSignalFormats)),
          FIELD(byRotate90, "Rotate90", Int),
          FIELD(fExternalSyncPhase, "ExternalSyncPhase", Real),
          FIELD(byExternalSync, "ExternalSync", Int),
          FIELD(byNightSwitchMode, "NightOptions/SwitchMode", Int).ReadOnly(),
          FIELD(byDoubleExposure, "DoubleExposure", Int),
          FIELD(byWideDynamicRange, "WideDynamicRange", Int),
          FIELD(byReserved1),
          FIELD(stuNight, "NightOptions", Record(kNight)).ReadOnly(),
          FIELD(stuNight, "NightOptions", Custom(kNightWritten)).PointsTo(kNight).WriteOnly().Alias(),
          FIELD(byReserved2),
          FIELD(stuFlash, "FlashControl", Record(kFlash)).WriteIf(HasFlash),
          FIELD(byReserved3),
          FIELD(stuSnapshot, "Snapshot", Record(kSnapshot)),
          FIELD(byReserved4),
          FIELD(stuFishEye, "FishEye", Record(kFishEyeOptions)),
          FIELD(byReserved5),
          FIELD(byFocusMode, "FocusMode", Int),
          FIELD(byGainMin, "GainMin", Int),
          FIELD(byGainMax, "GainMax", Int),
          FIELD(byAntiFlicker, "AntiFlicker", Int),
          FIELD(byExposureMode, "ExposureMode", Int),
          FIELD(byGlareInhibition, "GlareInhibition", Int),
          FIELD(nBacklightRegion, "BacklightRegion", Int).AtLeast(4),
          FIELD(stuNormal, "NormalOptions", Record(kNormal)),
          FIELD(byReserved6),
      });

} // namespace orrery
