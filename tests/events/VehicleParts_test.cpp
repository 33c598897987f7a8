// Cars, what is seen in and on them, and what they say over the objects beside them.
#include "events/ReqRealPicture.h"
#include "events/VehicleParts.h"
#include "orrery/events_traffic_conduct.h"
#include "orrery/events_traffic_driving.h"
#include "orrery/events_traffic_flow.h"
#include "orrery/events_traffic_junction.h"
#include "orrery/events_traffic_parking.h"
#include "orrery/events_vehicle.h"
#include "orrery/log.h"
#include "support/Events.h"
#include "support/FailingAllocator.h"
#include "support/LogLines.h"

#include <array>
#include <cstring>
#include <gtest/gtest.h>
#include <map>

namespace {

using namespace orrery::test;
namespace events = orrery::events;

// The car of an event that has no objects for it to change.
bool Car(std::string_view car, const std::function<void(const EVENT_TRAFFIC_CAR_INFO&)>& look) {
    return DecodeOne("TrafficJam", "{\"TrafficCar\":" + std::string(car) + "}",
                     [&](const Delivered& event) { look(event.as<DEV_EVENT_TRAFFICJAM_INFO>().stuTrafficCar); });
}

TEST(TrafficCar, EveryKey) {
    EXPECT_TRUE(Car(R"({"PlateNumber":"A1","PlateType":"Large","PlateColor":"Blue","VehicleColor":"Red","Speed":1,
        "Event":"E","ViolationCode":"V1","ViolationDesc":"too fast","LowerSpeedLimit":2,"UpperSpeedLimit":3,
        "OverSpeedMargin":4,"UnderSpeedMargin":5,"Lane":6,"VehicleSize":"Oversize","VehicleLength":4.5,
        "SnapshotMode":7,"ChannelName":"ch","MachineName":"mn","MachineGroup":"mg","RoadwayNo":"rn",
        "DrivingDirection":["Approach","North","South","more"],"DeviceAddress":"da","VehicleSign":"vs",
        "Redundance":[1,2,3,4,5,6,7,8,9],"MachineAddress":"ma","ActualShutter":0.5,"ActualGain":8,"Direction":3,
        "DetailedAddress":"dd","DefendCode":"dc","TrafficBlackListID":9,"VehicleColorRGB":[10,11,12,13],
        "UTC":1000000000,"RecNo":4000000000,"CustomParkNo":"park",
        "StereoGarage":{"DeckNo":14,"FreeDeckCount":15,"FullDeckCount":16,"TotalDeckCount":17},"ViolationName":"vn",
        "Weight":18,"CustomRoadwayDirection":"crd","PhysicalLane":19,"MovingDirection":3000000000,
        "EleTagInfoUTC":1000000001})",
                    [](const EVENT_TRAFFIC_CAR_INFO& car) {
                        EXPECT_STREQ(car.szPlateNumber, "A1");
                        EXPECT_STREQ(car.szPlateType, "Large");
                        EXPECT_STREQ(car.szPlateColor, "Blue");
                        EXPECT_STREQ(car.szVehicleColor, "Red");
                        EXPECT_EQ(car.nSpeed, 1);
                        EXPECT_STREQ(car.szEvent, "E");
                        EXPECT_STREQ(car.szViolationCode, "V1");
                        EXPECT_STREQ(car.szViolationDesc, "too fast");
                        EXPECT_EQ(car.nLowerSpeedLimit, 2);
                        EXPECT_EQ(car.nUpperSpeedLimit, 3);
                        EXPECT_EQ(car.nOverSpeedMargin, 4);
                        EXPECT_EQ(car.nUnderSpeedMargin, 5);
                        EXPECT_EQ(car.nLane, 6);
                        EXPECT_EQ(car.nVehicleSize, EVENT_VEHICLE_SIZE_OVERSIZE);
                        EXPECT_EQ(car.fVehicleLength, 4.5f);
                        EXPECT_EQ(car.nSnapshotMode, 7);
                        EXPECT_STREQ(car.szChannelName, "ch");
                        EXPECT_STREQ(car.szMachineName, "mn");
                        EXPECT_STREQ(car.szMachineGroup, "mg");
                        EXPECT_STREQ(car.szRoadwayNo, "rn");
                        EXPECT_STREQ(car.szDrivingDirection[0], "Approach");
                        EXPECT_STREQ(car.szDrivingDirection[1], "North");
                        EXPECT_STREQ(car.szDrivingDirection[2], "South");
                        EXPECT_STREQ(car.pszDeviceAddress, "da");
                        EXPECT_STREQ(car.szVehicleSign, "vs");
                        for (int i = 0; i < 8; ++i)
                            EXPECT_EQ(car.byRedundance[i], i + 1);
                        EXPECT_STREQ(car.pszMachineAddress, "ma");
                        EXPECT_EQ(car.fActualShutter, 0.5f);
                        EXPECT_EQ(car.byActualGain, 8);
                        EXPECT_EQ(car.byDirection, 3);
                        EXPECT_STREQ(car.pszDetailedAddress, "dd");
                        EXPECT_STREQ(car.szDefendCode, "dc");
                        EXPECT_EQ(car.nTrafficBlackListID, 9);
                        for (unsigned i = 0; i < 4; ++i)
                            EXPECT_EQ(car.stuRGBA[i], 10 + i);
                        EXPECT_EQ(car.stuUTC.dwYear, 2001u);
                        EXPECT_EQ(car.stuUTC.dwSecond, 40u);
                        EXPECT_EQ(car.dwRecNo, 4000000000u);
                        EXPECT_STREQ(car.szCustomParkNo, "park");
                        EXPECT_EQ(car.nDeckNo, 14);
                        EXPECT_EQ(car.nFreeDeckCount, 15);
                        EXPECT_EQ(car.nFullDeckCount, 16);
                        EXPECT_EQ(car.nTotalDeckCount, 17);
                        EXPECT_STREQ(car.szViolationName, "vn");
                        EXPECT_EQ(car.nWeight, 18);
                        EXPECT_STREQ(car.szCustomRoadwayDirection, "crd");
                        EXPECT_EQ(car.nPhysicalLane, 19);
                        EXPECT_EQ(car.dwMovingDirection, 3000000000u);
                        EXPECT_EQ(car.stuEleTagInfoUTC.dwSecond, 41u);
                    }));
}

// The fields of a record by name, in their order.
std::string FieldsOf(const orrery::record::Table& table) {
    std::string names;
    for (const auto& field : table) {
        if (!field.alias) names += (names.empty() ? "" : " ") + std::string(field.name);
    }
    return names;
}

TEST(TrafficCar, FieldsStandInTheirOrder) {
    EXPECT_EQ(FieldsOf(events::kTrafficCar),
              "szPlateNumber szPlateType szPlateColor szVehicleColor nSpeed szEvent szViolationCode szViolationDesc "
              "nLowerSpeedLimit nUpperSpeedLimit nOverSpeedMargin nUnderSpeedMargin nLane nVehicleSize fVehicleLength "
              "nSnapshotMode szChannelName szMachineName szMachineGroup szRoadwayNo szDrivingDirection "
              "pszDeviceAddress szVehicleSign byRedundance pszMachineAddress fActualShutter byActualGain byDirection "
              "pszDetailedAddress szDefendCode nTrafficBlackListID stuRGBA stuUTC dwRecNo szCustomParkNo nDeckNo "
              "nFreeDeckCount nFullDeckCount nTotalDeckCount szViolationName nWeight szCustomRoadwayDirection "
              "nPhysicalLane dwMovingDirection stuEleTagInfoUTC");
    const std::pair<std::size_t, std::size_t> rooms[] = {
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szPlateNumber), 32},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szPlateType), 32},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szPlateColor), 32},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szVehicleColor), 32},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szEvent), 64},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szViolationCode), 32},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szViolationDesc), 64},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szChannelName), 32},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szMachineName), 256},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szMachineGroup), 256},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szRoadwayNo), 64},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szDrivingDirection), 3 * 256},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szVehicleSign), 32},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szDefendCode), 64},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szCustomParkNo), 33},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szViolationName), 64},
        {sizeof(EVENT_TRAFFIC_CAR_INFO::szCustomRoadwayDirection), 32},
    };
    for (const auto& [room, expected] : rooms)
        EXPECT_EQ(room, expected) << &expected - &rooms[0].second;
}

TEST(TrafficCar, WhatAbsentKeysLeave) {
    EXPECT_TRUE(Car("{}", [](const EVENT_TRAFFIC_CAR_INFO& car) {
        EXPECT_EQ(car.byDirection, EVENT_DIRECTION_UNKNOWN);
        EXPECT_EQ(car.nVehicleSize, EVENT_VEHICLE_SIZE_UNKNOWN);
        EXPECT_EQ(car.pszDeviceAddress, nullptr);
    }));
    EXPECT_TRUE(Car(R"({"Direction":null,"VehicleSize":null})", [](const EVENT_TRAFFIC_CAR_INFO& car) {
        EXPECT_EQ(car.byDirection, EVENT_DIRECTION_UNKNOWN);
        EXPECT_EQ(car.nVehicleSize, EVENT_VEHICLE_SIZE_UNKNOWN);
    }));
    EXPECT_TRUE(Car("null", [](const EVENT_TRAFFIC_CAR_INFO& car) {
        EXPECT_EQ(car.byDirection, 0);
        EXPECT_EQ(car.nVehicleSize, 0);
    }));
}

TEST(TrafficCar, SizesAreExactNames) {
    const std::pair<const char*, int> sizes[] = {{"Light-duty", 1}, {"Medium", 2},  {"Oversize", 4}, {"Minisize", 8},
                                                 {"Largesize", 16}, {"medium", -1}, {"", -1}};
    for (const auto& size : sizes) {
        const char* const name = size.first;
        const int code = size.second;
        EXPECT_TRUE(Car(std::string("{\"VehicleSize\":\"") + name + "\"}",
                        [&](const EVENT_TRAFFIC_CAR_INFO& car) { EXPECT_EQ(car.nVehicleSize, code) << name; }));
    }
}

TEST(TrafficCar, OnlyValuesOfTheRightKindAreRead) {
    EXPECT_TRUE(Car(R"({"VehicleColorRGB":[1,2,3],"UTC":"1000000000","Weight":1.5,"PhysicalLane":true,
                        "MovingDirection":3,"DeviceAddress":5})",
                    [](const EVENT_TRAFFIC_CAR_INFO& car) {
                        EXPECT_EQ(car.stuRGBA[0], 0u);
                        EXPECT_EQ(car.stuUTC.dwYear, 0u);
                        EXPECT_EQ(car.nWeight, 0);
                        EXPECT_EQ(car.nPhysicalLane, 0);
                        EXPECT_EQ(car.dwMovingDirection, 0u); // a signed number
                        EXPECT_EQ(car.pszDeviceAddress, nullptr);
                    }));
}

TEST(TrafficCar, ColourIsOfExactlyFourNumbers) {
    for (const char* const color : {"[1,2,3]", "[1,2,3,4,5]", "{\"a\":1,\"b\":2,\"c\":3,\"d\":4}", "7"}) {
        EXPECT_TRUE(Car("{\"VehicleColorRGB\":" + std::string(color) + "}", [&](const EVENT_TRAFFIC_CAR_INFO& car) {
            for (const std::uint32_t part : car.stuRGBA)
                EXPECT_EQ(part, 0u) << color;
        })) << color;
    }
}

TEST(TrafficCar, HeadingHasATerminatorAndTheEndsOfTheRoadNeedNone) {
    const std::string long300(300, 'x');
    EXPECT_TRUE(Car("{\"DrivingDirection\":[\"" + long300 + "\",\"" + long300 + "\",\"" + long300
                        + "\"],\"MachineName\":\"" + long300 + "\"}",
                    [](const EVENT_TRAFFIC_CAR_INFO& car) {
                        EXPECT_EQ(strnlen(car.szDrivingDirection[0], 256), 255u);
                        EXPECT_EQ(strnlen(car.szDrivingDirection[1], 256), 256u);
                        EXPECT_EQ(strnlen(car.szDrivingDirection[2], 256), 256u);
                        EXPECT_EQ(strnlen(car.szMachineName, 256), 256u);
                        EXPECT_STREQ(car.szMachineGroup, "");
                    }));
}

TEST(TrafficCar, TextsThatFillTheirFieldsAndThoseThatDoNot) {
    const std::string forty(40, 'x');
    EXPECT_TRUE(Car("{\"PlateNumber\":\"" + forty + "\",\"PlateType\":\"" + forty + "\",\"VehicleSign\":\"" + forty
                        + "\",\"CustomParkNo\":\"" + forty + "\"}",
                    [](const EVENT_TRAFFIC_CAR_INFO& car) {
                        EXPECT_EQ(strnlen(car.szPlateNumber, 32), 32u);
                        EXPECT_EQ(strnlen(car.szPlateType, 32), 31u);
                        EXPECT_EQ(strnlen(car.szVehicleSign, 32), 31u);
                        EXPECT_EQ(strnlen(car.szCustomParkNo, 33), 32u);
                    }));
}

// ---- The car over the objects --------------------------------------------------------------------------------------

TEST(CarRule, CarTakesThePlaceOfWhatTheObjectsSay) {
    const std::string plate(40, 'P');
    const std::string type(70, 'T');
    EXPECT_TRUE(DecodeOne("TrafficOverLine",
                          "{\"Object\":{\"Text\":\"" + std::string(100, 'o')
                              + "\",\"Category\":\"Bus\"},\"TrafficCar\":"
                                "{\"PlateNumber\":\""
                              + plate + "\",\"PlateType\":\"" + type
                              + "\",\"PlateColor\":\"Green\","
                                "\"VehicleColor\":\"Gray\"}}",
                          [&](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICOVERLINE_INFO>();
                              EXPECT_STREQ(record.stuObject.szText, plate.substr(0, 32).c_str());
                              EXPECT_STREQ(record.stuObject.szObjectSubType, type.substr(0, 61).c_str());
                              EXPECT_EQ(record.stuObject.rgbaMainColor, 0x00FF0000u);
                              EXPECT_EQ(record.stuVehicle.rgbaMainColor, 0x80808000u);
                              EXPECT_EQ(record.stuVehicle.bColor, 1);
                          }));
}

TEST(CarRule, KeysThatTheCarLeavesOutLeaveTheObjects) {
    EXPECT_TRUE(DecodeOne("TrafficOverLine",
                          R"({"Object":{"Text":"old","Category":"Bus","MainColor":[1,2,3,4]},
                              "Vehicle":{"MainColor":[5,6,7,8]},"TrafficCar":{"PlateColor":"blue","VehicleColor":""}})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICOVERLINE_INFO>();
                              EXPECT_STREQ(record.stuObject.szText, "old");
                              EXPECT_STREQ(record.stuObject.szObjectSubType, "Bus");
                              EXPECT_EQ(record.stuObject.rgbaMainColor, 0x01020304u); // names are exact
                              EXPECT_EQ(record.stuVehicle.rgbaMainColor, 0x05060708u);
                          }));
}

TEST(CarRule, CarThatNamesNoTextEmptiesThePlate) {
    EXPECT_TRUE(DecodeOne("TrafficOverLine",
                          R"({"Object":{"Text":"old","Category":"Bus"},"TrafficCar":{"PlateNumber":5,"PlateType":5}})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICOVERLINE_INFO>();
                              EXPECT_STREQ(record.stuObject.szText, "");
                              EXPECT_STREQ(record.stuObject.szObjectSubType, "");
                          }));
}

TEST(CarRule, TypeOfThePlateIsCutAndTheRestIsZero) {
    EXPECT_TRUE(
        DecodeOne("TrafficRunRedLight",
                  "{\"Object\":{\"Category\":\"" + std::string(64, 'c') + "\"},\"TrafficCar\":{\"PlateType\":\"T\"}}",
                  [](const Delivered& event) {
                      const auto& object = event.as<DEV_EVENT_TRAFFICRUNREDLIGHT_INFO>().stuObject;
                      const char expected[64] = {'T'};
                      EXPECT_EQ(std::memcmp(object.szObjectSubType, expected, 64), 0);
                  }));
}

TEST(CarRule, ColoursByName) {
    const std::pair<const char*, std::uint32_t> colors[] = {
        {"Blue", 0x0000FF00}, {"Yellow", 0xFFFF0000}, {"White", 0xFFFFFF00}, {"Black", 0},
        {"Red", 0xFF000000},  {"Green", 0x00FF0000},  {"Gray", 0x80808000}};
    for (const auto& [name, expected] : colors) {
        std::uint32_t color = 5;
        std::uint8_t isSet = 0;
        EXPECT_TRUE(events::SetObjectColor(color, name, isSet));
        EXPECT_EQ(color, expected) << name;
        EXPECT_EQ(isSet, 1);
    }
    std::uint32_t color = 5;
    std::uint8_t isSet = 0;
    EXPECT_TRUE(events::SetObjectColor(color, "Pink", isSet));
    EXPECT_FALSE(events::SetObjectColor(color, "", isSet));
    EXPECT_EQ(color, 5u);
    EXPECT_EQ(isSet, 0);
}

// ---- Communication info ------------------------------------------------------------------------------------------

TEST(CommInfo, EveryKey) {
    EXPECT_TRUE(DecodeOne("TrafficJam", R"({"CommInfo":{"NTPCheckTime":"failed",
        "Drivers":[{"ObjectID":1,"Image":{"FilePath":"/d"}},null,{"ObjectID":3}],
        "Seat":[{"Type":"slave","Status":["Calling","Nothing","smoking"],"SafeBelt":"WithoutSafeBelt",
                 "SunShade":"WithSunShade"},{"SafeBelt":"Unknow"}],
        "Attachment":[{"Type":"TissueBox","Rect":[1,2,3,4]},{"Type":"","Rect":[1,2,3]},{"Type":"Unknown"}],
        "AnnualInspection":[[1,2,3,4,5],[1,2,3],[5,6,7,8]],
        "ExhaustPara":{"HC":1500,"NO":2,"CO":3,"CO2":4,"LightObscuration":5,"Temperature":-6500,"Humidity":60,
                       "Pressure":7,"Wind_force":8,"Wind_direction":270,"Road_gradient":9,"Acceleration":-10},
        "OriginalPictures":[{"Offset":1,"Length":2},{},{},{},{},{"Offset":11},{"Offset":12}],
        "RFIDEleTagInfo":{"CardID":"123456789012345","CardType":1,"CardProvince":2,"PlateNumber":"pn",
            "ProductionDate":"pd","CarType":3,"Power":4,"Displacement":5,"AntennaID":6,"PlateType":7,
            "InspectionValidity":"iv","InspectionFlag":8,"MandatoryRetirement":9,"CarColor":10,"ApprovedCapacity":11,
            "ApprovedTotalQuality":12,"ThroughTime":"2026-11-20 09:30:05","UseProperty":13,"PlateCode":"pc",
            "PlateSN":"sn"},
        "Country":"NL"}})",
                          [](const Delivered& event) {
                              const auto& info = event.as<DEV_EVENT_TRAFFICJAM_INFO>().stuCommInfo;
                              EXPECT_EQ(info.emNTPStatus, EVENT_NTP_FAILED);
                              ASSERT_EQ(info.nDriversNum, 3);
                              EXPECT_EQ(info.pDrivers[0].nObjectID, 1);
                              EXPECT_EQ(info.pDrivers[0].dwSize, 704u);
                              EXPECT_STREQ(info.pDrivers[0].pszFilePath, "/d");
                              EXPECT_EQ(info.pDrivers[1].nObjectID, 0);
                              EXPECT_EQ(info.pDrivers[2].nObjectID, 3);
                              EXPECT_EQ(info.pszFilePath, nullptr);
                              ASSERT_EQ(info.nSeatNum, 2);
                              EXPECT_EQ(info.stuSeat[0].bEnable, 1);
                              EXPECT_EQ(info.stuSeat[0].emType, EVENT_SEAT_SLAVE);
                              EXPECT_EQ(info.stuSeat[0].bSmoking, 1);
                              EXPECT_EQ(info.stuSeat[0].bCalling, 1);
                              EXPECT_EQ(info.stuSeat[0].emSafeBelt, EVENT_SAFE_BELT_WITHOUT);
                              EXPECT_EQ(info.stuSeat[0].emSunShade, EVENT_SUN_SHADE_WITH);
                              EXPECT_EQ(info.stuSeat[1].bEnable, 1);
                              EXPECT_EQ(info.stuSeat[1].emSafeBelt, 0);
                              EXPECT_EQ(info.stuSeat[2].bEnable, 0);
                              ASSERT_EQ(info.nAttachmentNum, 3);
                              EXPECT_EQ(info.stuAttachment[0].emType, EVENT_ATTACHMENT_TISSUE_BOX);
                              EXPECT_EQ(info.stuAttachment[0].stuRect.nBottom, 4);
                              EXPECT_EQ(info.stuAttachment[1].emType, 0);
                              EXPECT_EQ(info.stuAttachment[1].stuRect.nLeft, 0);
                              EXPECT_EQ(info.stuAttachment[2].emType, EVENT_ATTACHMENT_UNKNOWN);
                              ASSERT_EQ(info.nAnnualInspectionNum, 3);
                              EXPECT_EQ(info.stuAnnualInspection[0].nBottom, 4);
                              EXPECT_EQ(info.stuAnnualInspection[1].nLeft, 0);
                              EXPECT_EQ(info.stuAnnualInspection[2].nLeft, 5);
                              EXPECT_EQ(info.stuExhaust.fHC, 1.5f);
                              EXPECT_EQ(info.stuExhaust.fTemperature, -6.5f);
                              EXPECT_EQ(info.stuExhaust.dwHumidity, 60u);
                              EXPECT_EQ(info.stuExhaust.dwWindDirection, 270u);
                              EXPECT_EQ(info.stuExhaust.fCO2, 0.004f);
                              EXPECT_EQ(info.stuExhaust.fAcceleration, -0.01f);
                              ASSERT_EQ(info.nOriginalPictureNum, 6);
                              EXPECT_EQ(info.stuOriginalPicture[0].dwLength, 2u);
                              EXPECT_EQ(info.stuOriginalPicture[5].dwOffset, 11u);
                              const auto& tag = info.stuRFIDTag;
                              EXPECT_STREQ(tag.szCardID, "12345678901234");
                              EXPECT_EQ(tag.nCardType, 1);
                              EXPECT_EQ(tag.nCardProvince, 2);
                              EXPECT_STREQ(tag.szPlateNumber, "pn");
                              EXPECT_STREQ(tag.szProductionDate, "pd");
                              EXPECT_EQ(tag.nCarType, 3);
                              EXPECT_EQ(tag.nPower, 4);
                              EXPECT_EQ(tag.nDisplacement, 5);
                              EXPECT_EQ(tag.nAntennaID, 6);
                              EXPECT_EQ(tag.nPlateType, 7);
                              EXPECT_STREQ(tag.szInspectionValidity, "iv");
                              EXPECT_EQ(tag.nInspectionFlag, 8);
                              EXPECT_EQ(tag.nMandatoryRetirement, 9);
                              EXPECT_EQ(tag.nCarColor, 10);
                              EXPECT_EQ(tag.nApprovedCapacity, 11);
                              EXPECT_EQ(tag.nApprovedTotalQuality, 12);
                              EXPECT_EQ(tag.stuThroughTime.dwYear, 2026);
                              EXPECT_EQ(tag.stuThroughTime.dwMonth, 11);
                              EXPECT_EQ(tag.stuThroughTime.dwDay, 20);
                              EXPECT_EQ(tag.stuThroughTime.dwHour, 9);
                              EXPECT_EQ(tag.stuThroughTime.dwMinute, 30);
                              EXPECT_EQ(tag.stuThroughTime.dwSecond, 5);
                              EXPECT_EQ(tag.nUseProperty, 13);
                              EXPECT_STREQ(tag.szPlateCode, "pc");
                              EXPECT_STREQ(tag.szPlateSN, "sn");
                              EXPECT_STREQ(info.szCountry, "NL");
                          }));
}

TEST(CommInfo, TimesOfAnyFormAreTakenFromTheirRightEnd) {
    using Fields = std::array<std::uint32_t, 6>;
    const auto fieldsOf = [](std::string_view text) {
        std::uint32_t fields[6] = {9, 9, 9, 9, 9, 9};
        events::ReadSplitTime(text, fields);
        return std::to_array(fields);
    };
    EXPECT_EQ(fieldsOf("2026-11-20 09:30:05"), (Fields{2026, 11, 20, 9, 30, 5}));
    EXPECT_EQ(fieldsOf("9999-99-99 99:99:99"), (Fields{9999, 99, 99, 99, 99, 99}));
    // As long as the usual form, and another one.
    EXPECT_EQ(fieldsOf("2026-11-20T09:30:05"), (Fields{2026, 11, 20, 0, 0, 0}));
    EXPECT_EQ(fieldsOf("2026-11-20 09.30:05"), (Fields{2026, 11, 20, 0, 9, 5}));
    EXPECT_EQ(fieldsOf("2026/11-20 09:30:05"), (Fields{0, 2026, 20, 9, 30, 5}));
    EXPECT_EQ(fieldsOf("2026-11-20 09:30: 5"), (Fields{2026, 11, 20, 0, 0, 5}));
    EXPECT_EQ(fieldsOf("2026-11-20 0a:30:b5"), (Fields{2026, 11, 20, 0, 30, 0}));
    // Shorter and longer.
    EXPECT_EQ(fieldsOf("2026-11-20 9:30:5"), (Fields{2026, 11, 20, 9, 30, 5}));
    EXPECT_EQ(fieldsOf("2026-11-20 09:30:057"), (Fields{2026, 11, 20, 9, 30, 57}));
    EXPECT_EQ(fieldsOf("2026-11-20 09:30"), (Fields{2026, 11, 20, 0, 9, 30}));
    EXPECT_EQ(fieldsOf(""), (Fields{0, 0, 0, 0, 0, 0}));
}

TEST(CommInfo, ListsEndAtTheirRoom) {
    EXPECT_TRUE(DecodeOne("TrafficJam",
                          R"({"CommInfo":{"Seat":[{},{},{},{},{},{},{},{},{}],"Attachment":[{},{},{},{},{},{},{},{},{}],
                              "AnnualInspection":[1,2,3,4,5,6,7,8,9],"Drivers":[]}})",
                          [](const Delivered& event) {
                              const auto& info = event.as<DEV_EVENT_TRAFFICJAM_INFO>().stuCommInfo;
                              EXPECT_EQ(info.nSeatNum, 8);
                              EXPECT_EQ(info.nAttachmentNum, 8);
                              EXPECT_EQ(info.nAnnualInspectionNum, 8);
                              EXPECT_EQ(info.nDriversNum, 0);
                              EXPECT_EQ(info.pDrivers, nullptr);
                          }));
}

TEST(CommInfo, FieldsStandInTheirOrder) {
    EXPECT_EQ(FieldsOf(events::kCommInfo),
              "emNTPStatus nDriversNum pDrivers pszFilePath pszFTPPath pszVideoPath nSeatNum stuSeat nAttachmentNum "
              "stuAttachment nAnnualInspectionNum stuAnnualInspection stuExhaust nOriginalPictureNum "
              "stuOriginalPicture stuRFIDTag szCountry");
    EXPECT_EQ(FieldsOf(events::kExhaust), "fHC fNO fCO fCO2 fLightObscuration fTemperature dwHumidity fPressure "
                                          "fWindForce dwWindDirection fRoadGradient fAcceleration");
    EXPECT_EQ(FieldsOf(events::kSeat), "bEnable emType bSmoking bCalling emSafeBelt emSunShade");
    EXPECT_EQ(FieldsOf(events::kAttachment), "emType stuRect");
    EXPECT_EQ(FieldsOf(events::kRfidTag),
              "szCardID nCardType nCardProvince szPlateNumber szProductionDate nCarType nPower nDisplacement "
              "nAntennaID nPlateType szInspectionValidity nInspectionFlag nMandatoryRetirement nCarColor "
              "nApprovedCapacity nApprovedTotalQuality stuThroughTime nUseProperty szPlateCode szPlateSN");
}

TEST(CommInfo, StatusOfASeatEndsAtItsSixteenthText) {
    std::string status = "[";
    for (int i = 0; i < 15; ++i)
        status += "\"\",";
    status += "\"Calling\",\"Smoking\"]";
    EXPECT_TRUE(
        DecodeOne("TrafficJam", "{\"CommInfo\":{\"Seat\":[{\"Status\":" + status + "}]}}", [](const Delivered& event) {
            const auto& seat = event.as<DEV_EVENT_TRAFFICJAM_INFO>().stuCommInfo.stuSeat[0];
            EXPECT_EQ(seat.bCalling, 1);
            EXPECT_EQ(seat.bSmoking, 0);
        }));
}

// Each path has a block of its own; a missing block is told and costs nothing but the path.
TEST(CommInfo, PathsAreCutAndMissingBlocksAreTold) {
    const std::string text = R"({"params":{"info":{"FilePath":")" + std::string(300, 'p') + R"(","FTPPath":")"
                             + std::string(300, 'f') + R"(","VideoPath":")" + std::string(300, 'v')
                             + R"(","Events":[{"Code":"TrafficStay","Data":{}}]}}})";
    orrery::CReqRealPicture picture;
    picture.dwPacketSubType = orrery::CReqRealPicture::kPacketSubType;
    ASSERT_EQ(picture.deserialize(text.c_str(), 0), 1);
    int seen = 0;
    const EventVisitor visit = [&](const Delivered& event) {
        ++seen;
        const auto& info = event.as<DEV_EVENT_TRAFFICSTAY_INFO>().stuCommInfo;
        EXPECT_EQ(std::string_view(info.pszFilePath), std::string(255, 'p'));
        EXPECT_EQ(std::string_view(info.pszFTPPath), std::string(255, 'f'));
        EXPECT_EQ(std::string_view(info.pszVideoPath), std::string(255, 'v'));
    };
    picture.deliver(VisitEvent, const_cast<EventVisitor*>(&visit));
    EXPECT_EQ(seen, 1);

    // As many events as a few chunks hold, so that the memory ends at every step of an event once.
    const std::string lines[] = {"New szFilePath Failed", "New szFTPPath Failed", "New szVideoPath Failed"};
    std::ptrdiff_t told[3] = {};
    for (int events = 1; events <= 64; ++events) {
        std::string crowd = text.substr(0, text.size() - 4);
        for (int i = 1; i < events; ++i)
            crowd += R"(,{"Code":"TrafficIdle","Data":{"Lane":)" + std::to_string(i) + "}}";
        crowd += "]}}}";
        LogLines log;
        HeapWatch watch;
        watch.FailFrom(1);
        orrery::CReqRealPicture many;
        many.dwPacketSubType = orrery::CReqRealPicture::kPacketSubType;
        many.deserialize(crowd.c_str(), 0);
        watch.FailNone();
        std::ptrdiff_t missing[3] = {};
        const EventVisitor look = [&](const Delivered& event) {
            const auto count = [&](const EVENT_COMM_INFO& info) {
                missing[0] += info.pszFilePath == nullptr;
                missing[1] += info.pszFTPPath == nullptr;
                missing[2] += info.pszVideoPath == nullptr;
            };
            if (event.type == 303)
                count(event.as<DEV_EVENT_TRAFFICIDLE_INFO>().stuCommInfo);
            else
                count(event.as<DEV_EVENT_TRAFFICSTAY_INFO>().stuCommInfo);
        };
        many.deliver(VisitEvent, const_cast<EventVisitor*>(&look));
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(log.count(E_LOG_LEVEL_ERROR, lines[i]), missing[i]) << lines[i] << ' ' << events;
            told[i] += missing[i];
        }
    }
    for (int i = 0; i < 3; ++i)
        EXPECT_GT(told[i], 0) << lines[i];
}

TEST(CommInfo, StopsWithoutRoomForTheDrivers) {
    // The document and the record take the first chunk and one more; the drivers, 704 bytes each, want one of their
    // own.
    std::string text = R"({"CommInfo":{"NTPCheckTime":"Disable","Country":"NL","Seat":[{}],"Drivers":[{})";
    for (int i = 1; i < 2000; ++i)
        text += ",{}";
    text = EventText("TrafficJam", text + "]}}");
    bool sawFailure = false;
    bool sawDrivers = false;
    HeapWatch watch;
    for (std::size_t n = 1; n <= 6; ++n) {
        watch.FailOnly(n);
        Decode(text, [&](const Delivered& event) {
            const auto& info = event.as<DEV_EVENT_TRAFFICJAM_INFO>().stuCommInfo;
            EXPECT_EQ(info.emNTPStatus, EVENT_NTP_DISABLED);
            if (info.pDrivers == nullptr) {
                sawFailure = true;
                EXPECT_EQ(info.nDriversNum, 0);
                EXPECT_EQ(info.nSeatNum, 0);
                EXPECT_STREQ(info.szCountry, "");
            } else {
                sawDrivers = true;
                EXPECT_EQ(info.nDriversNum, 2000);
                EXPECT_EQ(info.nSeatNum, 1);
                EXPECT_STREQ(info.szCountry, "NL");
            }
        });
        watch.FailNone();
    }
    EXPECT_TRUE(sawFailure);
    EXPECT_TRUE(sawDrivers);
}

// ---- Name tables -------------------------------------------------------------------------------------------------

TEST(EventNames, LastRowWins) {
    EXPECT_EQ(events::kNonMotorColors.CodeOf("Other"), 30);
    EXPECT_EQ(events::kNonMotorColors.CodeOf("OTHER"), 30);
    EXPECT_EQ(events::kNonMotorColors.CodeOf("white"), 1);
    EXPECT_EQ(events::kNonMotorColors.CodeOf("Orangered"), 36);
    EXPECT_EQ(events::kNonMotorColors.CodeOf("Plaid"), std::nullopt);
    EXPECT_EQ(events::kPlateColors.CodeOf("Other"), 0);
    EXPECT_EQ(events::kPlateColors.CodeOf("yellowgreen"), 9);
    EXPECT_EQ(events::kNonMotorTypes.CodeOf("Scooter"), 19);
    EXPECT_EQ(events::kNonMotorTypes.CodeOf("Other"), 0);
}

void CheckRows(const orrery::record::NameTable& names, std::vector<const char*> rows, std::map<int, int> others = {}) {
    for (int i = 0; i < static_cast<int>(rows.size()); ++i) {
        const auto other = others.find(i);
        EXPECT_EQ(names.CodeOf(rows[i]), other != others.end() ? other->second : i) << rows[i];
    }
}

TEST(EventNames, EveryRow) {
    CheckRows(events::kPlateColors, {"Other", "Blue", "Yellow", "White", "Black", "YellowbottomBlackText",
                                     "BluebottomWhiteText", "BlackBottomWhiteText", "ShadowGreen", "YellowGreen"});
    CheckRows(events::kNonMotorColors,
              {"Other",  "White",          "Orange",     "Pink",        "Black",       "Red",      "Yellow",
               "Gray",   "Blue",           "Green",      "Purple",      "Brown",       "Sliver",   "Darkviolet",
               "Maroon", "Dimgray",        "Whitesmoke", "Darkorange",  "Mistyrose",   "Tomato",   "Olive",
               "Gold",   "Darkolivegreen", "Chartreuse", "Greenyellow", "Forestgreen", "Seagreen", "Deepskyblue",
               "Cyan",   "Other",          "Other",      "Fuchsia",     "Lime",        "Navy",     "Teal",
               "Aqua",   "Orangered"},
              {{0, 30}, {29, 30}});
    CheckRows(events::kNonMotorTypes, {"Other",
                                       "Tricycle",
                                       "Motorcycle",
                                       "Non-Motor",
                                       "Bicycle",
                                       "DualTriWheelMotorcycle",
                                       "LightMotorcycle",
                                       "EmbassyMotorcycle",
                                       "MarginalMotorcycle",
                                       "AreaoutMotorcycle",
                                       "ForeignMotorcycle",
                                       "TrialMotorcycle",
                                       "CoachMotorcycle",
                                       "Passerby",
                                       "VanTricycle",
                                       "MannedConvertibleTricycle",
                                       "NoMannedConvertibleTricycle",
                                       "Electricbike",
                                       "FourWheelerNonMotor",
                                       "Scooter"});
    CheckRows(events::kAttachments, {"", "Furniture", "Pendant", "TissueBox", "Danger", "PerfumeBox", "Unknown"});
    CheckRows(events::kNtpStates, {"", "Disable", "Successful", "Failed"});
    CheckRows(events::kStrobeStates, {"", "Close", "Auto", "Manual"});
    CheckRows(events::kSeats, {"", "Main", "Slave"});
    CheckRows(events::kSafeBelts, {"Unknow", "WithSafeBelt", "WithoutSafeBelt"});
    CheckRows(events::kExactSafeBelts, {"Unknow", "WithSafeBelt", "WithoutSafeBelt"});
    CheckRows(events::kSunShades, {"Unknow", "WithSunShade", "WithoutSunShade"});
    CheckRows(events::kJamStates, {"", "Clear", "Jammed"});
}

TEST(EventNames, CaseCountsInBeltsToldAsTextAndInJams) {
    EXPECT_EQ(events::kSafeBelts.CodeOf("withsafebelt"), 1);
    EXPECT_EQ(events::kExactSafeBelts.CodeOf("withsafebelt"), 0);
    EXPECT_EQ(events::kJamStates.CodeOf("jammed"), 0);
    EXPECT_EQ(events::kStrobeStates.CodeOf("AUTO"), 2);
    EXPECT_EQ(events::kNtpStates.CodeOf("SUCCESSFUL"), 2);
    EXPECT_EQ(events::kSeats.CodeOf("MAIN"), 1);
    EXPECT_TRUE(DecodeOne("TrafficJunction", R"({"MainSeat":"withsafebelt","SlaveSeat":"WITHOUTSAFEBELT",
                                                 "OpenStrobeState":"manual","VehicleDirection":"head"})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICJUNCTION_INFO>();
                              EXPECT_EQ(record.byMainSeatBelt, 1);
                              EXPECT_EQ(record.bySlaveSeatBelt, 2);
                              EXPECT_EQ(record.byOpenStrobeState, 3);
                              EXPECT_EQ(record.byVehicleDirection, 1);
                          }));
    EXPECT_TRUE(DecodeOne("TrafficWithoutSafeBelt", R"({"MainSeat":"withsafebelt","SlaveSeat":"WithoutSafeBelt"})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICWITHOUTSAFEBELT_INFO>();
                              EXPECT_EQ(record.emMainSeat, 0);
                              EXPECT_EQ(record.emSlaveSeat, 2);
                          }));
}

TEST(EventNames, StatesOfBeltsLampsAndJams) {
    EXPECT_EQ(events::kStrobeStates.CodeOf("CLOSE"), 1);
    EXPECT_EQ(events::kStrobeStates.CodeOf("auto"), 2);
    EXPECT_EQ(events::kStrobeStates.CodeOf("Manual"), 3);
    EXPECT_EQ(events::kStrobeStates.CodeOf("Open"), 0);
    EXPECT_EQ(events::kSafeBelts.CodeOf("withsafebelt"), 1);
    EXPECT_EQ(events::kSafeBelts.CodeOf("WITHOUTSAFEBELT"), 2);
    EXPECT_EQ(events::kSafeBelts.CodeOf("Unknow"), 0);
    EXPECT_EQ(events::kExactSafeBelts.CodeOf("WithSafeBelt"), 1);
    EXPECT_EQ(events::kExactSafeBelts.CodeOf("WithoutSafeBelt"), 2);
    EXPECT_EQ(events::kExactSafeBelts.CodeOf("withsafebelt"), 0);
    EXPECT_EQ(events::kJamStates.CodeOf("Clear"), 1);
    EXPECT_EQ(events::kJamStates.CodeOf("Jammed"), 2);
    EXPECT_EQ(events::kJamStates.CodeOf("jammed"), 0);
}

TEST(SplitTime, NumbersFromTheRightEnd) {
    const auto read = [](std::string_view text) {
        std::uint32_t f[6];
        events::ReadSplitTime(text, f);
        return std::vector<std::uint32_t>(f, f + 6);
    };
    EXPECT_EQ(read("2026-11-20 09:30:05"), (std::vector<std::uint32_t>{2026, 11, 20, 9, 30, 5}));
    EXPECT_EQ(read("on 2026-1-2 3:4:5"), (std::vector<std::uint32_t>{0, 1, 2, 3, 4, 5}));
    EXPECT_EQ(read("20 30:05"), (std::vector<std::uint32_t>{0, 0, 20, 0, 30, 5}));
    EXPECT_EQ(read(""), (std::vector<std::uint32_t>{0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(read("99999999999-x- ::"), (std::vector<std::uint32_t>{0, 0, 0, 0, 0, 0}));
}

} // namespace
