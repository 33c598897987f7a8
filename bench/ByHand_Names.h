// The texts of enumerations, by code, for both directions of what a client would write by hand. A code without a text
// has an empty one.
#pragma once

#include <string_view>

namespace orrery::bench::byhand {

inline constexpr std::string_view kSenses[] = {"DoorMagnetism",
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
inline constexpr std::string_view kAreas[] = {"",          "Intime",    "Delay",  "Fullday",      "Follow",
                                              "Medical",   "Panic",     "Fire",   "FulldaySound", "FulldaySlient",
                                              "Entrance1", "Entrance2", "Inside", "Outside",      "PeopleDetect"};
inline constexpr std::string_view kControls[] = {"Normal", "EnableAlways", "DisableOnce", "DisableAlways"};
inline constexpr std::string_view kLinks[] = {"None", "Preset", "Tour", "Pattern"};
inline constexpr std::string_view kDoors[] = {"", "Auto", "Open", "Close", "OpenAlways", "CloseAlways"};

} // namespace orrery::bench::byhand
