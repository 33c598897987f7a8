// Cars, what is seen in them, and the oddities of the junction, gate, flow and snapshot events.
#include "events/VehicleParts.h"
#include "support/Events.h"
#include "support/FailingAllocator.h"

#include <cstring>
#include <gtest/gtest.h>

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

TEST(TrafficCar, WhatAbsentKeysLeave) {
    EXPECT_TRUE(Car("{}", [](const EVENT_TRAFFIC_CAR_INFO& car) {
        EXPECT_EQ(car.byDirection, EVENT_DIRECTION_UNKNOWN);
        EXPECT_EQ(car.nVehicleSize, EVENT_VEHICLE_SIZE_UNKNOWN);
        EXPECT_EQ(car.pszDeviceAddress, nullptr);
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

// ---- Events told apart from the rest -------------------------------------------------------------------------------

TEST(TrafficJunction, BreakingIsOfDevicesSpelling) {
    EXPECT_TRUE(DecodeOne("TrafficJunction", R"({"Breaking":["U-Turn","Overline"]})", [](const Delivered& event) {
        EXPECT_EQ(event.as<DEV_EVENT_TRAFFICJUNCTION_INFO>().dwBreakingRule, 64u);
    }));
    EXPECT_TRUE(DecodeOne(
        "TrafficJunction",
        R"({"Breaking":["runredlight","WrongLane","Retrograde","U-Trun","TrafficJam","TrafficIdle",
                                          "Overline","Overline",null,7]})",
        [](const Delivered& event) { EXPECT_EQ(event.as<DEV_EVENT_TRAFFICJUNCTION_INFO>().dwBreakingRule, 127u); }));
}

TEST(TrafficJunction, RidersCardsAndScenes) {
    std::string cards = "[";
    for (int i = 0; i < 20; ++i)
        cards += (i ? ",{\"CardNumber\":\"" : "{\"CardNumber\":\"") + std::to_string(i) + "\"}";
    EXPECT_TRUE(DecodeOne("TrafficJunction",
                          R"({"Object":{"Category":"Bicycle"},"JunctionDirection":"reverse","VehicleDirection":"Tail",
            "NonMotorFeature":{"Bag":1,"Umbrella":2,"CarrierBag":3,"Hat":4,"Helmet":5,"Sex":"female","Age":33,
                "UpperBodyColor":[1,2,3,4],"LowerBodyColor":[1,2,3],"UpClothes":6,"DownClothes":7},
            "NonMotor":{"Color":"Other","Image":{"Length":1,"Offset":2,"Width":3,"Height":4,"IndexInData":5},
                "SceneImage":{"Length":6}},
            "SceneImage":{"Offset":7,"Length":8,"Width":9,"Height":10,"IndexInData":11},"TriggerType":true,
            "CardInfo":)" + cards
                              + "]}",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICJUNCTION_INFO>();
                              EXPECT_EQ(record.byDirection, 2);
                              EXPECT_EQ(record.byVehicleDirection, 2);
                              EXPECT_EQ(record.bNonMotorFeature, 1);
                              EXPECT_EQ(record.byBag, 1);
                              EXPECT_EQ(record.byUmbrella, 2);
                              EXPECT_EQ(record.byCarrierBag, 3);
                              EXPECT_EQ(record.byHat, 4);
                              EXPECT_EQ(record.byHelmet, 5);
                              EXPECT_EQ(record.bySex, 2);
                              EXPECT_EQ(record.byAge, 33);
                              EXPECT_EQ(record.stuUpperBodyColor.nAlpha, 4);
                              EXPECT_EQ(record.stuLowerBodyColor.nRed, 0);
                              EXPECT_EQ(record.byUpClothes, 6);
                              EXPECT_EQ(record.byDownClothes, 7);
                              EXPECT_EQ(record.nTriggerType, 0); // not an integer
                              EXPECT_EQ(record.nCardNum, 16);
                              EXPECT_STREQ(record.stuCard[15].szCardNumber, "15");
                              EXPECT_EQ(record.bNonMotor, 1u);
                              EXPECT_EQ(record.stuNonMotor.emCategory, 4);
                              EXPECT_EQ(record.stuNonMotor.emColor, 30);
                              EXPECT_EQ(record.stuNonMotor.stuImage.dwLength, 1u);
                              EXPECT_EQ(record.stuNonMotor.stuImage.dwOffset, 2u);
                              EXPECT_EQ(record.stuNonMotor.stuImage.wWidth, 3);
                              EXPECT_EQ(record.stuNonMotor.stuImage.wHeight, 4);
                              EXPECT_EQ(record.stuNonMotor.stuImage.nIndexInData, 5);
                              EXPECT_EQ(record.stuNonMotor.stuSceneImage.dwLength, 6u);
                              EXPECT_EQ(record.stuSceneImage.bSceneImage, 1u);
                              EXPECT_EQ(record.stuSceneImage.dwOffset, 7u);
                              EXPECT_EQ(record.stuSceneImage.dwLength, 8u);
                              EXPECT_EQ(record.stuSceneImage.wWidth, 9u);
                              EXPECT_EQ(record.stuSceneImage.wHeight, 10u);
                              EXPECT_EQ(record.stuSceneImage.nIndexInData, 11u);
                          }));
    EXPECT_TRUE(DecodeOne("TrafficJunction", R"({"SceneImage":{"Offset":7,"Length":0,"Width":9},"TriggerType":6})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICJUNCTION_INFO>();
                              EXPECT_EQ(record.stuSceneImage.bSceneImage, 0u);
                              EXPECT_EQ(record.stuSceneImage.dwOffset, 0u);
                              EXPECT_EQ(record.stuSceneImage.wWidth, 0u);
                              EXPECT_EQ(record.nTriggerType, 6);
                          }));
}

TEST(TrafficGate, SizeOfTheVehicleAndBreaking) {
    EXPECT_TRUE(DecodeOne("TrafficGate", R"({"Vehicle":{"Category":"Truck"},"TrafficCar":{},"SpeedLimit":[60],
                                             "Breaking":["OverLine","Underpeed"],"SnapTimes":3,"IndexInGroup":2})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICGATE_INFO>();
                              EXPECT_STREQ(record.stuTrafficCar.szVehicleSize, "Truck");
                              EXPECT_EQ(record.stuTrafficCar.byDirection, 8);
                              EXPECT_EQ(record.nSpeedLowerLimit, 0);
                              EXPECT_EQ(record.dwBreakingRule, 10u);
                              EXPECT_EQ(record.stuFileInfo.byCount, 3);
                              EXPECT_EQ(record.stuFileInfo.byIndex, 2);
                          }));
    EXPECT_TRUE(DecodeOne("TrafficGate", R"({"Vehicle":{"Category":"Truck"},"ManualSnap":{"SerialNo":"S1"},
        "SnapFlag":"flag","RedLightMargin":4,"SpeedingPercentage":5,"UnderSpeedingPercentage":6,
        "Breaking":["Retrograde","Overline","OverSpeed","UnderSpeed","RunRedLight","Passing","OverYellowLine",
                    "WrongRunningRoute","YellowVehicleInRoute"],
        "TrafficCar":{"VehicleSize":"Medium","RoadwayNo":"r","ViolationDesc":"d","DrivingDirection":["a","b"],
            "SnapshotMode":7,"ViolationCode":"c","VehicleLength":8,"PlateColor":"pc","PlateNumber":"pn",
            "PlateType":"pt","GroupID":9,"LowerSpeedLimit":10,"UpperSpeedLimit":11,"Lane":12,"OverSpeedMargin":13,
            "UnderSpeedMargin":14,"MachineName":"mn","MachineAddress":"ma","MachineGroup":"mg","VehicleColor":"vc",
            "Redundance":[1,2],"DeviceAddress":"da","ActualShutter":1.5,"ActualGain":15,"Direction":1,
            "DefendCode":"dc","TrafficBlackListID":16}})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICGATE_INFO>();
                              EXPECT_EQ(record.dwBreakingRule, 511u);
                              EXPECT_STREQ(record.szSerialNo, "S1");
                              EXPECT_STREQ(record.szSnapFlag, "flag");
                              EXPECT_EQ(record.byRedLightMargin, 4);
                              EXPECT_EQ(record.bySpeedingPercentage, 5);
                              EXPECT_EQ(record.byUnderSpeedingPercentage, 6);
                              const auto& car = record.stuTrafficCar;
                              EXPECT_STREQ(car.szVehicleSize, "Medium");
                              EXPECT_STREQ(car.szRoadwayNo, "r");
                              EXPECT_STREQ(car.szViolationDesc, "d");
                              EXPECT_STREQ(car.szDrivingDirection[1], "b");
                              EXPECT_EQ(car.bySnapshotMode, 7);
                              EXPECT_STREQ(car.szViolationCode, "c");
                              EXPECT_EQ(car.byVehicleLength, 8);
                              EXPECT_STREQ(car.szPlateColor, "pc");
                              EXPECT_STREQ(car.szPlateNumber, "pn");
                              EXPECT_STREQ(car.szPlateType, "pt");
                              EXPECT_EQ(car.nGroupID, 9u);
                              EXPECT_EQ(car.nLowerSpeedLimit, 10);
                              EXPECT_EQ(car.nUpperSpeedLimit, 11);
                              EXPECT_EQ(car.nLane, 12);
                              EXPECT_EQ(car.nOverSpeedMargin, 13);
                              EXPECT_EQ(car.nUnderSpeedMargin, 14);
                              EXPECT_STREQ(car.szMachineName, "mn");
                              EXPECT_STREQ(car.szMachineAddress, "ma");
                              EXPECT_STREQ(car.szMachineGroup, "mg");
                              EXPECT_STREQ(car.szVehicleColor, "vc");
                              EXPECT_EQ(car.byRedundance[1], 2);
                              EXPECT_STREQ(car.pszDeviceAddress, "da");
                              EXPECT_EQ(car.fActualShutter, 1.5f);
                              EXPECT_EQ(car.byActualGain, 15);
                              EXPECT_EQ(car.byDirection, 1);
                              EXPECT_STREQ(car.szDefendCode, "dc");
                              EXPECT_EQ(car.nTrafficBlackListID, 16);
                          }));
}

TEST(TrafficSnapshot, LanesWithoutASignalAreDropped) {
    EXPECT_TRUE(DecodeOne("TrafficSnapshot", R"({"CarWayInfo":[{},{"SigInfo":[{"Speed":60,"Type":1,"RedTime":1.5,
        "CapTime":2.5,"CarLength":3,"SigSequence":4,"Direction":5,"LightColor":6,"SnapFlag":"f"},null,{"Speed":61},
        {"Speed":62}]},{"SigInfo":[]},{"SigInfo":[{}]},null,{"SigInfo":[null]}]})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICSNAPSHOT_INFO>();
                              ASSERT_EQ(record.nLaneNum, 2);
                              EXPECT_EQ(record.stuLane[0].byLane, 1);
                              EXPECT_EQ(record.stuLane[1].byLane, 3);
                              EXPECT_EQ(record.stuLane[2].byLane, 0);
                              const auto& signal = record.stuLane[0].stuSignal[0];
                              EXPECT_EQ(signal.bySpeed, 60);
                              EXPECT_EQ(signal.byType, 1);
                              EXPECT_EQ(signal.fRedTime, 1.5f);
                              EXPECT_EQ(signal.fCapTime, 2.5f);
                              EXPECT_EQ(signal.byCarLength, 3);
                              EXPECT_EQ(signal.bySigSequence, 4);
                              EXPECT_EQ(signal.byDirection, 5);
                              EXPECT_EQ(signal.byLightColor, 6);
                              EXPECT_STREQ(signal.szSnapFlag, "f");
                          }));
    EXPECT_TRUE(
        DecodeOne("TrafficSnapshot", R"({"CarWayInfo":[{"SigInfo":[{}]},{"SigInfo":[{}]},{"SigInfo":[{}]},
        {"SigInfo":[{}]},{"SigInfo":[{}]},{"SigInfo":[{}]},{"SigInfo":[{}]},{"SigInfo":[{}]},{"SigInfo":[{}]}]})",
                  [](const Delivered& event) { EXPECT_EQ(event.as<DEV_EVENT_TRAFFICSNAPSHOT_INFO>().nLaneNum, 8); }));
}

TEST(TrafficFlowStat, EveryKey) {
    EXPECT_TRUE(DecodeOne(
        "TrafficFlowStat", R"({"Sequence":1,"FlowStates":[{"Lane":1,"State":2,"Flow":3,"Period":4,
        "PeriodByMili":5,"JamState":"Jammed"},null,{"JamState":"clear"}],
        "DetailInfo":{"Vehicles":1,"LeftVehicles":2,"RightVehicles":3,"StraightVehicles":4,"UTurnVehicles":5,
            "AverageSpeed":1.5,"AverageLength":2.5,"TimeOccupyRatio":3.5,"SpaceOccupyRatio":4.5,"SpaceHeadway":5.5,
            "TimeHeadway":6.5,"Density":7.5,"OverSpeedVehicles":6,"UnderSpeedVehicles":7,"LargeVehicles":8,
            "MediumVehicles":9,"SmallVehicles":10,"MotoVehicles":11,"LongVehicles":12,"Volume":13,"FlowRate":14,
            "TravelTime":15,"BackOfQueue":16.75,"Delay":5,"Direction":["Straight","TurnLeft","TurnRight","U-Turn","Up"],
            "VehicleTypeFlow":{"PassengerCarVehicles":1,"LargeTruckVehicles":2,"MidTruckVehicles":3,
                "SaloonCarVehicles":4,"MicrobusVehicles":5,"MicroTruckVehicles":6,"TricycleVehicles":7,
                "MotorcycleVehicles":8,"PasserbyVehicles":9,"BusVehicles":10,"MPVVehicles":11,
                "MidPassengerCarVehicles":12,"MiniCarriageVehicles":13,"OilTankTruckVehicles":14,"PickupVehicles":15,
                "SUVVehicles":16,"SuvMpvVehicles":17,"TankCarVehicles":18,"UnknownVehicles":19},
            "DrivingDirection":["Leave","from","to"],"Rank":"SubTrunk","State":17,"Occupyheadcoil":true,
            "OccupyTailcoil":2,"Statistics":0,"QueueEnd":[-18,19],"Class":"Highway"}})",
        [](const Delivered& event) {
            const auto& record = event.as<DEV_EVENT_TRAFFICFLOWSTAT_INFO>();
            EXPECT_EQ(record.nSequence, 1);
            EXPECT_EQ(record.nStateNum, 3);
            EXPECT_EQ(record.stuStates[0].nLane, 1);
            EXPECT_EQ(record.stuStates[0].nState, 2);
            EXPECT_EQ(record.stuStates[0].nFlow, 3);
            EXPECT_EQ(record.stuStates[0].nPeriod, 4);
            EXPECT_EQ(record.stuStates[0].nPeriodByMili, 5);
            EXPECT_EQ(record.stuStates[0].emJamState, EVENT_JAM_JAMMED);
            EXPECT_EQ(record.stuStates[2].emJamState, 0); // exact
            const int counts[] = {
                record.nVehicles,       record.nLeftVehicles,      record.nRightVehicles,      record.nStraightVehicles,
                record.nUTurnVehicles,  record.nOverSpeedVehicles, record.nUnderSpeedVehicles, record.nLargeVehicles,
                record.nMediumVehicles, record.nSmallVehicles,     record.nMotoVehicles,       record.nLongVehicles,
                record.nVolume,         record.nFlowRate,          record.nTravelTime};
            for (int i = 0; i < 15; ++i)
                EXPECT_EQ(counts[i], i + 1);
            const float reals[] = {record.fAverageSpeed,     record.fAverageLength, record.fTimeOccupyRatio,
                                   record.fSpaceOccupyRatio, record.fSpaceHeadway,  record.fTimeHeadway,
                                   record.fDensity};
            for (int i = 0; i < 7; ++i)
                EXPECT_EQ(reals[i], static_cast<float>(i) + 1.5f);
            EXPECT_EQ(record.dBackOfQueue, 16.75);
            EXPECT_EQ(record.nBackOfQueue, 16);
            EXPECT_EQ(record.nDelay, 0);
            const std::uint8_t directions[16] = {3, 1, 2, 4};
            EXPECT_EQ(std::memcmp(record.byDirection, directions, 16), 0);
            std::int32_t types[19];
            static_assert(sizeof types == sizeof record.stuVehicleTypeFlow);
            std::memcpy(types, &record.stuVehicleTypeFlow, sizeof types);
            for (int i = 0; i < 19; ++i)
                EXPECT_EQ(types[i], i + 1);
            EXPECT_EQ(record.stuDrivingDirection.emDirection, 2);
            EXPECT_STREQ(record.stuDrivingDirection.szFrom, "from");
            EXPECT_STREQ(record.stuDrivingDirection.szTo, "to");
            EXPECT_EQ(record.emRank, EVENT_RANK_SUB_TRUNK);
            EXPECT_EQ(record.nState, 17);
            EXPECT_EQ(record.bOccupyHeadCoil, 1);
            EXPECT_EQ(record.bOccupyTailCoil, 1);
            EXPECT_EQ(record.bStatistics, 0);
            EXPECT_EQ(record.stuQueueEnd.nX, -18);
            EXPECT_EQ(record.stuQueueEnd.nY, 19);
            EXPECT_EQ(record.emClass, EVENT_CLASS_HIGHWAY);
        }));
}

TEST(TrafficFlowStat, DelayNeedsBothSpellings) {
    const std::pair<const char*, int> cases[] = {{R"({"Delay":5})", 0},
                                                 {R"({"Delay ":6})", 0},
                                                 {R"({"Delay":5,"Delay ":6})", 6},
                                                 {R"({"Delay":0,"Delay ":7})", 7}};
    for (const auto& spelling : cases) {
        const char* const detail = spelling.first;
        const int expected = spelling.second;
        EXPECT_TRUE(
            DecodeOne("TrafficFlowStat", std::string("{\"DetailInfo\":") + detail + "}", [&](const Delivered& event) {
                EXPECT_EQ(event.as<DEV_EVENT_TRAFFICFLOWSTAT_INFO>().nDelay, expected) << detail;
            }));
    }
}

TEST(TrafficParkingSpace, AreaHasAtMostTenPoints) {
    EXPECT_TRUE(DecodeOne("TrafficParkingSpaceNoParking",
                          R"({"ParkingInfo":{"FeaturePicArea":[[1,2],[3],[5,6],1,1,1,1,1,1,[19,20],[21,22]]}})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICPARKINGSPACENOPARKING_INFO>();
                              EXPECT_EQ(record.nFeaturePicAreaNum, 10);
                              EXPECT_EQ(record.stuFeaturePicArea[1].nX, 0);
                              EXPECT_EQ(record.stuFeaturePicArea[2].nX, 5);
                              EXPECT_EQ(record.stuFeaturePicArea[9].nY, 20);
                          }));
}

TEST(TrafficCarWeight, AxlesEndAtEight) {
    EXPECT_TRUE(DecodeOne("QSYTrafficCarWeight",
                          R"({"CarWeightInfo":{"AxleNum":9,"AxleWeightInfo":[1,2,3,4,5,6,7,8,9],
                              "AxleLengthInfo":[1,2,3,4,5,6,7,8]}})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_QSYTRAFFICCARWEIGHT_INFO>();
                              EXPECT_EQ(record.dwAxleNum, 8u);
                              EXPECT_EQ(record.dwAxleWeightInfo[7], 8u);
                              EXPECT_EQ(record.dwAxleLengthInfo[6], 7u);
                          }));
}

} // namespace
