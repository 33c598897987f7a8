#include "alarm/SensorNames.h"

#include "orrery/types.h"

namespace orrery {

using namespace record;

namespace {

constexpr Name kSenseMethodRows[] = {
    {EM_SENSE_DOOR_MAGNETISM, "DoorMagnetism"},
    {EM_SENSE_PASSIVE_INFRARED, "PassiveInfrared"},
    {EM_SENSE_GAS_SENSOR, "GasSensor"},
    {EM_SENSE_SMOKING_SENSOR, "SmokingSensor"},
    {EM_SENSE_WATER_SENSOR, "WaterSensor"},
    {EM_SENSE_ACTIVE_INFRARED, "ActiveInfrared"},
    {EM_SENSE_GLASS_SENSOR, "GlassSensor"},
    {EM_SENSE_EMERGENCY_SWITCH, "EmergencySwitch"},
    {EM_SENSE_SHOCK_SENSOR, "ShockSensor"},
    {EM_SENSE_DOUBLE_METHOD, "DoubleMethod"},
    {EM_SENSE_THREE_METHOD, "ThreeMethod"},
    {EM_SENSE_TEMP_SENSOR, "TempSensor"},
    {EM_SENSE_HUMIDITY_SENSOR, "HumiditySensor"},
    {EM_SENSE_WIND_SENSOR, "WindSensor"},
    {EM_SENSE_CALL_BUTTON, "CallButton"},
    {EM_SENSE_GAS_PRESSURE, "GasPressure"},
    {EM_SENSE_GAS_CONCENTRATION, "GasConcentration"},
    {EM_SENSE_GAS_FLOW, "GasFlow"},
    {EM_SENSE_OIL, "Oil"},
    {EM_SENSE_MILEAGE_SENSOR, "MileageSensor"},
    {EM_SENSE_OTHER_SENSOR, "OtherSensor"},
    {EM_SENSE_CO2, "CO2"},
    {EM_SENSE_SOUND, "Sound"},
    {EM_SENSE_PM25, "PM25"},
    {EM_SENSE_SF6, "SF6"},
    {EM_SENSE_O3, "O3"},
    {EM_SENSE_AMBIENT_LIGHT, "AmbientLight"},
    {EM_SENSE_INFRARED, "Infrared"},
    {EM_SENSE_TEMP1500, "Temp1500"},
    {EM_SENSE_TEMPDS18B20, "TempDS18B20"},
    {EM_SENSE_HUMIDITY1500, "Humidity1500"},
    {EM_SENSE_URGENCY_BUTTON, "UrgencyButton"},
    {EM_SENSE_STEAL, "Steal"},
    {EM_SENSE_PERIMETER, "Perimeter"},
    {EM_SENSE_PREVENT_REMOVE, "PreventRemove"},
    {EM_SENSE_DOOR_BELL, "DoorBell"},
    {EM_SENSE_ALTER_VOLT, "AlterVolt"},
    {EM_SENSE_DIRECT_VOLT, "DirectVolt"},
    {EM_SENSE_ALTER_CUR, "AlterCur"},
    {EM_SENSE_DIRECT_CUR, "DirectCur"},
    {EM_SENSE_RSU_GENERAL, "RSUGeneral"},
    {EM_SENSE_RSU_DOOR, "RSUDoor"},
    {EM_SENSE_RSU_POWER_OFF, "RSUPowerOff"},
    {EM_SENSE_CURTAIN_SENSOR, "CurtainSensor"},
    {EM_SENSE_MOBILE_SENSOR, "MobileSensor"},
    {EM_SENSE_FIRE_ALARM, "FireAlarm"},
};
static_assert(sizeof kSenseMethodRows / sizeof kSenseMethodRows[0] == EM_SENSE_COUNT);

// Devices write the first six exactly so; of the later ones the case varies.
constexpr Name kDefenceAreaRows[] = {
    {EM_DEFENCE_AREA_INTIME, "Intime", Compare::Exact},
    {EM_DEFENCE_AREA_DELAY, "Delay", Compare::Exact},
    {EM_DEFENCE_AREA_FULLDAY, "Fullday", Compare::Exact},
    {EM_DEFENCE_AREA_FOLLOW, "Follow", Compare::Exact},
    {EM_DEFENCE_AREA_MEDICAL, "Medical", Compare::Exact},
    {EM_DEFENCE_AREA_PANIC, "Panic", Compare::Exact},
    {EM_DEFENCE_AREA_FIRE, "Fire"},
    {EM_DEFENCE_AREA_FULLDAY_SOUND, "FulldaySound"},
    {EM_DEFENCE_AREA_FULLDAY_SLIENT, "FulldaySlient"},
    {EM_DEFENCE_AREA_ENTRANCE1, "Entrance1"},
    {EM_DEFENCE_AREA_ENTRANCE2, "Entrance2"},
    {EM_DEFENCE_AREA_INSIDE, "Inside"},
    {EM_DEFENCE_AREA_OUTSIDE, "Outside"},
    {EM_DEFENCE_AREA_PEOPLE_DETECT, "PeopleDetect"},
};
static_assert(sizeof kDefenceAreaRows / sizeof kDefenceAreaRows[0] == EM_DEFENCE_AREA_COUNT - 1);

} // namespace

constexpr NameTable kSenseMethods = FoldedNames(kSenseMethodRows).Unknown(EM_SENSE_UNKNOWN);
constexpr NameTable kDefenceAreaTypes = FoldedNames(kDefenceAreaRows).Unknown(EM_DEFENCE_AREA_UNKNOWN);

} // namespace orrery
