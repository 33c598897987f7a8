// The oddities of the junction, gate and weight events.
#include "orrery/events_traffic_junction.h"
#include "support/Events.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

using namespace orrery::test;

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

TEST(TrafficJunction, ColoursOfClothesAreOfExactlyFourNumbers) {
    EXPECT_TRUE(DecodeOne("TrafficJunction", R"({"NonMotorFeature":{"UpperBodyColor":[1,2,3,4,5],
                                                 "LowerBodyColor":[5,6,7,8],"Sex":"","Age":300}})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICJUNCTION_INFO>();
                              EXPECT_EQ(record.stuUpperBodyColor.nRed, 0);
                              EXPECT_EQ(record.stuLowerBodyColor.nRed, 5);
                              EXPECT_EQ(record.stuLowerBodyColor.nAlpha, 8);
                              EXPECT_EQ(record.bySex, 0);
                              EXPECT_EQ(record.byAge, 44); // its low byte
                          }));
}

// The kind of a rider's vehicle is what the object says once the car has had its say.
TEST(TrafficJunction, KindOfARidersVehicle) {
    const std::pair<const char*, int> cases[] = {
        {R"({"Object":{"Category":"scooter"},"NonMotor":{}})", 19},
        {R"({"Object":{"Category":"Spaceship"},"NonMotor":{"Color":"Plaid"}})", 0},
        {R"({"Object":{"Category":"scooter"},"NonMotor":{},"TrafficCar":{"PlateType":"Tricycle"}})", 1},
        {R"({"Object":{"Category":"scooter"}})", 0}};
    for (const auto& kind : cases) {
        EXPECT_TRUE(DecodeOne("TrafficJunction", kind.first, [&](const Delivered& event) {
            const auto& record = event.as<DEV_EVENT_TRAFFICJUNCTION_INFO>();
            EXPECT_EQ(record.stuNonMotor.emCategory, kind.second) << kind.first;
            EXPECT_EQ(record.stuNonMotor.emColor, 0) << kind.first;
        }));
    }
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

TEST(TrafficGate, SizeFollowsTheVehicleOnlyInACar) {
    EXPECT_TRUE(DecodeOne("TrafficGate",
                          "{\"Vehicle\":{\"Category\":\"" + std::string(64, 'c') + "\"},\"TrafficCar\":{}}",
                          [](const Delivered& event) {
                              const auto& car = event.as<DEV_EVENT_TRAFFICGATE_INFO>().stuTrafficCar;
                              EXPECT_EQ(strnlen(car.szVehicleSize, sizeof car.szVehicleSize), 31u);
                          }));
    EXPECT_TRUE(DecodeOne("TrafficGate", R"({"Vehicle":{"Category":"Truck"}})", [](const Delivered& event) {
        const auto& car = event.as<DEV_EVENT_TRAFFICGATE_INFO>().stuTrafficCar;
        EXPECT_STREQ(car.szVehicleSize, "");
        EXPECT_EQ(car.byDirection, 0);
    }));
}

// The plate and the colours of the car stand over the objects', and its group over the event's own.
TEST(TrafficGate, TheCarSaysMoreThanTheObjects) {
    const std::string plate(130, 'p');
    EXPECT_TRUE(DecodeOne(
        "TrafficGate",
        R"({"IndexInGroup":1,"SnapTimes":2,"Object":{"Text":"OLD","Category":"Old","MainColor":[1,2,3,4]},
            "Vehicle":{"MainColor":[5,6,7,8]},
            "TrafficCar":{"PlateNumber":")"
            + plate + R"(","PlateColor":"Yellow","PlateType":"Army","VehicleColor":"Red","GroupID":70,"CountInGroup":3,
                          "IndexInGroup":4}})",
        [&](const Delivered& event) {
            const auto& gate = event.as<DEV_EVENT_TRAFFICGATE_INFO>();
            EXPECT_STREQ(gate.stuObject.szText, plate.substr(0, 127).c_str());
            EXPECT_STREQ(gate.stuObject.szObjectSubType, "Army");
            EXPECT_EQ(gate.stuObject.rgbaMainColor, 0xFFFF0000u);
            EXPECT_EQ(gate.stuVehicle.rgbaMainColor, 0xFF000000u);
            EXPECT_EQ(gate.stuFileInfo.nGroupID, 70u);
            EXPECT_EQ(gate.stuFileInfo.byCount, 3);
            EXPECT_EQ(gate.stuFileInfo.byIndex, 4);
        }));
    EXPECT_TRUE(DecodeOne("TrafficGate", R"({"IndexInGroup":1,"SnapTimes":2,"Object":{"Text":"OLD"},"TrafficCar":{}})",
                          [](const Delivered& event) {
                              const auto& gate = event.as<DEV_EVENT_TRAFFICGATE_INFO>();
                              EXPECT_STREQ(gate.stuObject.szText, "OLD");
                              EXPECT_EQ(gate.stuFileInfo.byCount, 2);
                              EXPECT_EQ(gate.stuFileInfo.byIndex, 1);
                          }));
}

// A gate's bits one by one.
TEST(TrafficGate, EachBreakingHasItsBit) {
    const std::pair<const char*, std::uint32_t> rows[] = {{"Retrograde", 1},
                                                          {"Overline", 2},
                                                          {"OverLine", 2},
                                                          {"Overspeed", 4},
                                                          {"OverSpeed", 4},
                                                          {"Underpeed", 8},
                                                          {"UnderSpeed", 8},
                                                          {"RunRedLight", 16},
                                                          {"Passing", 32},
                                                          {"OverYellowLine", 64},
                                                          {"WrongRunningRoute", 128},
                                                          {"YellowVehicleInRoute", 256},
                                                          {"YELLOWVEHICLEINROUTE", 256},
                                                          {"U-Trun", 0}};
    for (const auto& row : rows) {
        EXPECT_TRUE(DecodeOne(
            "TrafficGate", std::string("{\"Breaking\":[\"") + row.first + "\"]}", [&](const Delivered& event) {
                EXPECT_EQ(event.as<DEV_EVENT_TRAFFICGATE_INFO>().dwBreakingRule, row.second) << row.first;
            }));
    }
    const std::pair<const char*, std::uint32_t> junctions[] = {
        {"RunRedLight", 1}, {"WrongLane", 2},    {"Retrograde", 4}, {"U-Trun", 8},
        {"TrafficJam", 16}, {"TrafficIdle", 32}, {"Overline", 64},  {"Overspeed", 0}};
    for (const auto& row : junctions) {
        EXPECT_TRUE(DecodeOne(
            "TrafficJunction", std::string("{\"Breaking\":[\"") + row.first + "\"]}", [&](const Delivered& event) {
                EXPECT_EQ(event.as<DEV_EVENT_TRAFFICJUNCTION_INFO>().dwBreakingRule, row.second) << row.first;
            }));
    }
}

TEST(TrafficCarWeight, NoAxlesHaveNoWeights) {
    EXPECT_TRUE(DecodeOne("QSYTrafficCarWeight",
                          R"({"CarWeightInfo":{"AxleNum":0,"AxleWeightInfo":[1,2],"AxleLengthInfo":[3]}})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_QSYTRAFFICCARWEIGHT_INFO>();
                              EXPECT_EQ(record.dwAxleNum, 0u);
                              EXPECT_EQ(record.dwAxleWeightInfo[0], 0u);
                              EXPECT_EQ(record.dwAxleLengthInfo[0], 0u);
                          }));
    EXPECT_TRUE(DecodeOne("QSYTrafficCarWeight",
                          R"({"CarWeightInfo":{"AxleNum":1,"AxleWeightInfo":[1,2],"AxleLengthInfo":[3]}})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_QSYTRAFFICCARWEIGHT_INFO>();
                              EXPECT_EQ(record.dwAxleWeightInfo[0], 1u);
                              EXPECT_EQ(record.dwAxleWeightInfo[1], 0u);
                              EXPECT_EQ(record.dwAxleLengthInfo[0], 0u);
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
