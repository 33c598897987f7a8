// Texts of sensors and defence areas by their codes, written down a second time for tests and for what the benchmark
// does by hand.
#pragma once

#include <iterator>
#include <string_view>

namespace orrery::test {

inline constexpr std::string_view kSensors[] = {"DoorMagnetism",
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
static_assert(std::size(kSensors) == 46);

// The first six insist on their case.
inline constexpr std::string_view kAreas[] = {"",          "Intime",    "Delay",  "Fullday",      "Follow",
                                              "Medical",   "Panic",     "Fire",   "FulldaySound", "FulldaySlient",
                                              "Entrance1", "Entrance2", "Inside", "Outside",      "PeopleDetect"};
static_assert(std::size(kAreas) == 15);

} // namespace orrery::test
