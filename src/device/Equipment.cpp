#include "device/Equipment.h"

#include "device/JsonText.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kStates, kFolded.Unknown(CFG_AIR_STATE_UNKNOWN),
      {
          {CFG_AIR_STATE_OPEN, "Open"},
          {CFG_AIR_STATE_CLOSE, "Close"},
      });

NAMES(kModes, kFolded.Unknown(CFG_AIR_MODE_UNKNOWN),
      {
          {CFG_AIR_MODE_AUTO, "Auto"},
          {CFG_AIR_MODE_HOT, "Hot"},
          {CFG_AIR_MODE_COLD, "Cold"},
          {CFG_AIR_MODE_WET, "Wet"},
          {CFG_AIR_MODE_WIND, "Wind"},
      });

NAMES(kWindModes, kFolded.Unknown(CFG_AIR_WIND_UNKNOWN),
      {
          {CFG_AIR_WIND_STOP, "Stop"},
          {CFG_AIR_WIND_AUTO, "Auto"},
          {CFG_AIR_WIND_HIGH, "High"},
          {CFG_AIR_WIND_MIDDLE, "Middle"},
          {CFG_AIR_WIND_LOW, "Low"},
      });

PART(kAirConditioner, CFG_AIR_CONDITIONER,
     {
         FIELD(szDeviceID, "DeviceID", Text),
         FIELD(szName, "Name", Text),
         FIELD(szBrand, "Brand", Text),
         FIELD(szComm, "Comm", Custom(kJsonText)), // each kind of line has keys of its own
         FIELD(nAddressNum),
         FIELD(nAddress, "Address", Int).Count(AT(nAddressNum)),
         FIELD(emState, "State", Names(kStates)),
         FIELD(nRange, "Range", Int),
         FIELD(emMode, "Mode", Names(kModes)),
         FIELD(emWindMode, "WindMode", Names(kWindModes)),
     });

PART(kLamp, CFG_LAMP,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nLight, "Light", Int),
         FIELD(nAngle, "Angle", Int),
     });

PART(kEqualizerStep, CFG_EQUALIZER_STEP,
     {
         FIELD(nMinFrequency, "MinFrequency", Int),
         FIELD(nMaxFrequency, "MaxFrequency", Int),
         FIELD(nGain, "Gain", Int),
     });

PART(kEqualizer, CFG_EQUALIZER,
     {
         FIELD(nStepNum),
         FIELD(stuSteps, "EqualizerStep", Record(kEqualizerStep)).Count(AT(nStepNum)),
     });

PART(kAudioSuppression, CFG_AUDIO_SUPPRESSION,
     {
         FIELD(bAutoEchoCancellation, "AutoEchoCancellation", Bool),
         FIELD(bAutoFrequencyControl, "AutoFrequencyControl", Bool),
     });

PART(kAudioIn, CFG_AUDIO_IN,
     {
         FIELD(bPower, "Power", Bool),
         FIELD(bSquishSuppression, "SquishSuppression", Bool),
     });

} // namespace

TABLE(kAirCondition, CFG_AIR_CONDITION_INFO,
      {
          FIELD(nCount),
          FIELD(stuItems, "", Record(kAirConditioner)).Count(AT(nCount)),
      });

TABLE(kLighting, CFG_LIGHTING_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nLight, "Light", Int),
          FIELD(nAngle, "Angle", Int),
          FIELD(nCorrection, "Correction", Int),
          FIELD(nSensitive, "Sensitive", Int),
          FIELD(szMode, "Mode", Text),
          FIELD(nNearLightNum),
          FIELD(stuNearLight, "NearLight", Record(kLamp)).Count(AT(nNearLightNum)),
          FIELD(nFarLightNum),
          FIELD(stuFarLight, "FarLight", Record(kLamp)).Count(AT(nFarLightNum)),
      });

TABLE(kAudioOutEqualizer, CFG_AUDIO_OUT_EQUALIZER_INFO,
      {
          FIELD(nCount),
          FIELD(stuItems, "", Record(kEqualizer)).Count(AT(nCount)),
      });

TABLE(kAudioOutSuppression, CFG_AUDIO_OUT_SUPPRESSION_INFO,
      {
          FIELD(nCount),
          FIELD(stuItems, "", Record(kAudioSuppression)).Count(AT(nCount)),
      });

TABLE(kAudioInControl, CFG_AUDIO_IN_CONTROL_INFO,
      {
          FIELD(nCount),
          FIELD(stuItems, "", Record(kAudioIn)).Count(AT(nCount)),
      });

} // namespace orrery
