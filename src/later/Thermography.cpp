#include "later/Thermography.h"

#include <cstdint>

namespace orrery {

using namespace record;

namespace {

// Codes without a text are written as the empty text of code 0.
constexpr NameTable kEmptyOutside = kFolded.OutsideWrites("");

NAMES(kColorizations, kEmptyOutside,
      {
          {CFG_COLORIZATION_UNKNOWN, ""},
          {CFG_COLORIZATION_WHITE_HOT, "White Hot"},
          {CFG_COLORIZATION_BLACK_HOT, "Black Hot"},
          {CFG_COLORIZATION_IRONBOW2, "Ironbow2"},
          {CFG_COLORIZATION_ICE_FIRE, "IceFire"},
          {CFG_COLORIZATION_FUSION, "Fusion"},
          {CFG_COLORIZATION_RAINBOW, "Rainbow"},
          {CFG_COLORIZATION_GLOBOW, "Globow"},
          {CFG_COLORIZATION_IRONBOW1, "Ironbow1"},
          {CFG_COLORIZATION_SEPIA, "Sepia"},
          {CFG_COLORIZATION_COLOR1, "Color1"},
          {CFG_COLORIZATION_COLOR2, "Color2"},
          {CFG_COLORIZATION_RAIN, "Rain"},
          {CFG_COLORIZATION_RED_HOT, "Red Hot"},
          {CFG_COLORIZATION_GREEN_HOT, "Green Hot"},
      });

NAMES(kOptimizedRegions, kEmptyOutside,
      {
          {CFG_OPTIMIZED_REGION_UNKNOWN, ""},
          {CFG_OPTIMIZED_REGION_FULL_SCREEN, "Full Screen"},
          {CFG_OPTIMIZED_REGION_SKY, "Sky"},
          {CFG_OPTIMIZED_REGION_GROUND, "Ground"},
          {CFG_OPTIMIZED_REGION_HORIZONTAL, "Horizontal"},
          {CFG_OPTIMIZED_REGION_CENTER_75, "Center 75%"},
          {CFG_OPTIMIZED_REGION_CENTER_50, "Center 50%"},
          {CFG_OPTIMIZED_REGION_CENTER_25, "Center 25%"},
          {CFG_OPTIMIZED_REGION_CUSTOM, "Custom"},
      });

NAMES(kModes, kEmptyOutside,
      {
          {CFG_THERMOGRAPHY_MODE_UNKNOWN, ""},
          {CFG_THERMOGRAPHY_MODE_HIGH_TEMPERATURE, "HighTemperature"},
          {CFG_THERMOGRAPHY_MODE_LOW_TEMPERATURE, "LowTemperature"},
          {CFG_THERMOGRAPHY_MODE_AUTO, "Auto"},
      });

NAMES(kMeters, kEmptyOutside,
      {
          {CFG_METER_UNKNOWN, ""},
          {CFG_METER_SPOT, "Spot"},
          {CFG_METER_LINE, "Line"},
          {CFG_METER_AREA, "Area"},
      });

NAMES(kMeterAreas, kEmptyOutside,
      {
          {CFG_METER_AREA_UNKNOWN, ""},
          {CFG_METER_AREA_RECT, "Rect"},
          {CFG_METER_AREA_ELLIPSE, "Ellipse"},
          {CFG_METER_AREA_POLYGON, "Polygon"},
      });

NAMES(kMeterResults, kEmptyOutside,
      {
          {CFG_METER_RESULT_UNKNOWN, ""},
          {CFG_METER_RESULT_VALUE, "Value"},
          {CFG_METER_RESULT_MAX, "Max"},
          {CFG_METER_RESULT_MIN, "Min"},
          {CFG_METER_RESULT_AVER, "Aver"},
          {CFG_METER_RESULT_STD, "Std"},
          {CFG_METER_RESULT_MID, "Mid"},
          {CFG_METER_RESULT_ISO, "ISO"},
          {CFG_METER_RESULT_DIFF, "Diff"},
          {CFG_METER_RESULT_SLOPE, "Slope"},
      });

NAMES(kMeterAlarms, kEmptyOutside,
      {
          {CFG_METER_ALARM_UNKNOWN, ""},
          {CFG_METER_ALARM_BELOW, "Below"},
          {CFG_METER_ALARM_MATCH, "Match"},
          {CFG_METER_ALARM_ABOVE, "Above"},
      });

NAMES(kTemperatureUnits, kEmptyOutside,
      {
          {CFG_TEMPERATURE_UNKNOWN, ""},
          {CFG_TEMPERATURE_CENTIGRADE, "Centigrade"},
          {CFG_TEMPERATURE_FAHRENHEIT, "Fahrenheit"},
      });

PART(kOptimizedRegion, CFG_OPTIMIZED_REGION,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(emType, "Type", Names(kOptimizedRegions)),
         FIELD(nRegionCount),
         FIELD(stuRegions, "Regions", Record(kRect)).Count(AT(nRegionCount)),
     });

PART(kThermographyAuto, CFG_THERMOGRAPHY_AUTO,
     {
         FIELD(nLowToHigh, "LowToHigh", Int),
         FIELD(nLHROI, "LHROI", Int),
         FIELD(nHighToLow, "HighToLow", Int),
         FIELD(nHLROI, "HLROI", Int),
     });

PART(kThermographyOption, CFG_THERMOGRAPHY_OPTION,
     {
         FIELD(nBrightness, "Brightness", Int).WriteUnless(INT32_MIN),
         FIELD(nSharpness, "Sharpness", Int).WriteUnless(INT32_MIN),
         FIELD(nEZoom, "EZoom", Int),
         FIELD(nThermographyGamma, "ThermographyGamma", Int),
         FIELD(emColorization, "Colorization", Names(kColorizations)),
         FIELD(nSmartOptimizer, "SmartOptimizer", Int),
         FIELD(stuOptimizedRegion, "OptimizedRegion", Record(kOptimizedRegion)),
         FIELD(nAgc, "Agc", Int),
         FIELD(nAgcMaxGain, "AgcMaxGain", Int),
         FIELD(nAgcPlateau, "AgcPlateau", Int),
         FIELD(emMode, "Mode", Names(kModes)),
         FIELD(stuAuto, "Auto", Record(kThermographyAuto)),
     });

PART(kMeterPoint, CFG_METER_POINT,
     {
         FIELD(nX, "", UInt),
         FIELD(nY, "", UInt),
     })
    .As(Shape::Tuple);

PART(kThermometryAlarm, CFG_THERMOMETRY_ALARM,
     {
         FIELD(nId, "Id", Int),
         FIELD(bEnable, "Enable", Bool),
         FIELD(emResult, "Result", Names(kMeterResults)),
         FIELD(emAlarmCondition, "AlarmCondition", Names(kMeterAlarms)),
         FIELD(fThreshold, "Threshold", Real),
         FIELD(fHysteresis, "Hysteresis", Real),
         FIELD(nDuration, "Duration", Int),
     });

PART(kThermometryLocal, CFG_THERMOMETRY_LOCAL,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(fObjectEmissivity, "ObjectEmissivity", Real),
         FIELD(nObjectDistance, "ObjectDistance", Int),
         FIELD(nReflectedTemp, "ReflectedTemp", Int),
     });

PART(kThermometryRule, CFG_THERMOMETRY_RULE,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nPresetId, "PresetId", Int),
         FIELD(nRuleId, "RuleId", Int),
         FIELD(szName, "Name", Text),
         FIELD(emMeterType, "Type", Names(kMeters)),
         FIELD(nCoordinates),
         FIELD(stuCoordinates, "MeterRegion/Coordinates", Record(kMeterPoint)).Count(AT(nCoordinates)),
         FIELD(nSamplePeriod, "T", Int),
         FIELD(nAlarmCount),
         FIELD(stuAlarm, "AlarmSetting", Record(kThermometryAlarm)).Count(AT(nAlarmCount)),
         FIELD(stuLocal, "LocalParameters", Record(kThermometryLocal)),
         FIELD(emAreaSubType, "AreaSubType", Names(kMeterAreas)),
     });

PART(kTemperatureStatistic, CFG_TEMPERATURE_STATISTICS,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(szName, "Name", Text),
         FIELD(emType, "Type", Names(kMeters)),
         FIELD(nPeriod, "Period", Int),
     });

PART(kIsotherm, CFG_ISOTHERM,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(bColorBarDisplay, "ColorBarDisplay", Bool),
         FIELD(nMaxLimitTemp, "MaxLimitTemp", Int),
         FIELD(nMediumTemp, "MediumTemp", Int),
         FIELD(nMinLimitTemp, "MinLimitTemp", Int),
         FIELD(nSaturationTemp, "SaturationTemp", Int),
     });

} // namespace

TABLE(kThermography, CFG_THERMOGRAPHY_INFO,
      {
          FIELD(nCount),
          FIELD(stuOptions, "", Record(kThermographyOption)).Count(AT(nCount)),
      });

// A device with more rules, or places, than a record holds still tells how many it has.
TABLE(kThermometryRules, CFG_THERMOMETRY_RULE_INFO,
      {
          FIELD(nCount),
          FIELD(stuRules, "", Record(kThermometryRule)).CountUncapped(AT(nCount)),
      });

TABLE(kTemperatureStatistics, CFG_TEMPERATURE_STATISTICS_INFO,
      {
          FIELD(nCount),
          FIELD(stuStatistics, "", Record(kTemperatureStatistic)).CountUncapped(AT(nCount)),
      });

TABLE(kHeatImagingThermometry, CFG_HEAT_IMAGING_THERMOMETRY_INFO,
      {
          FIELD(stuIsotherm, "Isotherm", Record(kIsotherm)),
          FIELD(stuRect, "Rect", Record(kRect)),
          FIELD(bHotSpotFollow, "HotSpotFollow", Bool),
          FIELD(bTemperEnable, "TemperEnable", Bool),
          FIELD(stuHighCTMakerColor, "HighCTMakerColor", Record(kColor)),
          FIELD(stuLowCTMakerColor, "LowCTMakerColor", Record(kColor)),
          FIELD(fAtmosphericTemperature, "AtmosphericTemperature", Real),
          FIELD(nObjectDistance, "ObjectDistance", Int),
          FIELD(fObjectEmissivity, "ObjectEmissivity", Real),
          FIELD(fReflectedTemperature, "ReflectedTemperature", Real),
          FIELD(nRelativeHumidity, "RelativeHumidity", Int),
          FIELD(emTemperatureUnit, "TemperatureUnit", Names(kTemperatureUnits)),
      });

} // namespace orrery
