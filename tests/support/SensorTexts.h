// Texts of sensors and defence areas with their codes, written down a second time.
#pragma once

namespace orrery::test {

inline constexpr const char* kSensors[] = {"DoorMagnetism",
                                           "PassiveInfrared",
                                           "GasSensor",
                                           "SmokingSensor",
                                           "WaterSensor",
                                           "ActiveInfrared",
                                           "GlassSensor",
                                           "EmergencySwitch",
                                           "ShockSensor",
                                           "DoubleMethod",
                                           "ThreeMethod",
                                           "TempSensor",
                                           "HumiditySensor",
                                           "WindSensor",
                                           "CallButton",
                                           "GasPressure",
                                           "GasConcentration",
                                           "GasFlow",
                                           "Oil",
                                           "MileageSensor",
                                           "OtherSensor",
                                           "CO2",
                                           "Sound",
                                           "PM25",
                                           "SF6",
                                           "O3",
                                           "AmbientLight",
                                           "Infrared",
                                           "Temp1500",
                                           "TempDS18B20",
                                           "Humidity1500",
                                           "UrgencyButton",
                                           "Steal",
                                           "Perimeter",
                                           "PreventRemove",
                                           "DoorBell",
                                           "AlterVolt",
                                           "DirectVolt",
                                           "AlterCur",
                                           "DirectCur",
                                           "RSUGeneral",
                                           "RSUDoor",
                                           "RSUPowerOff",
                                           "CurtainSensor",
                                           "MobileSensor",
                                           "FireAlarm"};
static_assert(sizeof kSensors / sizeof kSensors[0] == 46);

// From 1. The first six insist on their case.
inline constexpr const char* kAreas[] = {"Intime",    "Delay",  "Fullday",      "Follow",        "Medical",
                                         "Panic",     "Fire",   "FulldaySound", "FulldaySlient", "Entrance1",
                                         "Entrance2", "Inside", "Outside",      "PeopleDetect"};
static_assert(sizeof kAreas / sizeof kAreas[0] == 14);

} // namespace orrery::test
