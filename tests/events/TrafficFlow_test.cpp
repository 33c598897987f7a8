// The oddities of the flow, snapshot, accident and parking events.
#include "orrery/events_common.h"
#include "orrery/events_traffic_flow.h"
#include "orrery/log.h"
#include "support/Events.h"
#include "support/LogLines.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>

namespace {

using namespace orrery::test;

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

TEST(TrafficFlowStat, ListsEndAtTheirRoom) {
    EXPECT_TRUE(DecodeOne("TrafficFlowStat", R"({"FlowStates":[{},{},{},{},{},{},{},{"Lane":8},{"Lane":9}],
        "DetailInfo":{"Vehicles":5,"Direction":["U-Turn","Up","TurnLeft","TurnLeft","TurnLeft","TurnLeft","TurnLeft",
            "TurnLeft","TurnLeft","TurnLeft","TurnLeft","TurnLeft","TurnLeft","TurnLeft","TurnLeft","TurnRight",
            "Straight"],"DrivingDirection":["Elsewhere","from there to there","x"],"QueueEnd":[7],"Rank":""}})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICFLOWSTAT_INFO>();
                              EXPECT_EQ(record.nStateNum, 8);
                              EXPECT_EQ(record.stuStates[7].nLane, 8);
                              EXPECT_EQ(record.nVehicles, 5);
                              EXPECT_EQ(record.byDirection[0], 4);
                              EXPECT_EQ(record.byDirection[1], 0);
                              EXPECT_EQ(record.byDirection[15], 2);
                              EXPECT_EQ(record.stuDrivingDirection.emDirection, 0);
                              EXPECT_STREQ(record.stuDrivingDirection.szFrom, "from there to t");
                              EXPECT_STREQ(record.stuDrivingDirection.szTo, "x");
                              EXPECT_EQ(record.stuQueueEnd.nX, 0);
                              EXPECT_EQ(record.emRank, 0);
                          }));
}

TEST(TrafficFlowStat, RanksAndHeadings) {
    const char* const ranks[] = {"", "Rapid", "Trunk", "SubTrunk", "Branch"};
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(DecodeOne("TrafficFlowStat", std::string("{\"DetailInfo\":{\"Rank\":\"") + ranks[i] + "\"}}",
                              [&](const Delivered& event) {
                                  EXPECT_EQ(event.as<DEV_EVENT_TRAFFICFLOWSTAT_INFO>().emRank, i) << ranks[i];
                              }));
    }
    const char* const headings[] = {"", "Approach", "Leave"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(DecodeOne(
            "TrafficFlowStat", std::string("{\"DetailInfo\":{\"DrivingDirection\":[\"") + headings[i] + "\"]}}",
            [&](const Delivered& event) {
                EXPECT_EQ(event.as<DEV_EVENT_TRAFFICFLOWSTAT_INFO>().stuDrivingDirection.emDirection, i) << headings[i];
            }));
    }
    // A state told as jammed is known by exactly that word; a class outside "DetailInfo" is none of the event's.
    EXPECT_TRUE(DecodeOne("TrafficFlowStat", R"({"Class":"City","Vehicles":3,"FlowStates":[{"JamState":"Clear"}]})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICFLOWSTAT_INFO>();
                              EXPECT_EQ(record.emClass, 0);
                              EXPECT_EQ(record.nVehicles, 0);
                              EXPECT_EQ(record.stuStates[0].emJamState, EVENT_JAM_CLEAR);
                          }));
}

// ---- Cars that are no part of the record
// -----------------------------------------------------------------------------

template <class R>
void CheckCarAside(const char* code) {
    const std::string text =
        EventText(code, "{\"TrafficCar\":{\"PlateNumber\":\"A1\",\"MachineName\":\"" + std::string(300, 'm')
                            + "\",\"RoadwayNo\":\"" + std::string(70, 'r') + "\"}}");
    LogLines log;
    int count = 0;
    Decode(text, [&](const Delivered& event) {
        ++count;
        EXPECT_STREQ(event.as<R>().szMachineName, std::string(127, 'm').c_str()) << code;
        EXPECT_STREQ(event.as<R>().szRoadwayNo, std::string(31, 'r').c_str()) << code;
    });
    EXPECT_EQ(count, 1) << code;
    // The car is read as any other, so the log hears of it.
    EXPECT_EQ(log.count(E_LOG_LEVEL_DETAIL, "ParseStrtoTrafficCar() szPlateNumber[A1-2-A1]"), 1) << code;
    const auto lines = log.texts(E_LOG_LEVEL_DETAIL);
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const std::string& line) {
                                return line.starts_with("ParseStrtoTrafficCar() start input[{ \"MachineName\" : \"mm");
                            }),
              1)
        << code;
}

TEST(TrafficCarAside, KeptInPartByRecordsWithoutOne) {
    CheckCarAside<DEV_EVENT_TRAFFICACCIDENT_INFO>("TrafficAccident");
    CheckCarAside<DEV_EVENT_TRAFFICPEDESTRAIN_INFO>("TrafficPedestrain");
    CheckCarAside<DEV_EVENT_TRAFFICTHROW_INFO>("TrafficThrow");
    LogLines log;
    EXPECT_EQ(CodesOf(EventText("TrafficThrow", "{}")).size(), 1u);
    EXPECT_EQ(log.texts(E_LOG_LEVEL_DETAIL).size(), 1u); // the event alone
}

TEST(TrafficAccident, ObjectsEndAtSixteen) {
    std::string objects = "[";
    for (int i = 1; i <= 17; ++i)
        objects += (i > 1 ? ",{\"ObjectID\":" : "{\"ObjectID\":") + std::to_string(i) + "}";
    EXPECT_TRUE(DecodeOne("TrafficAccident", "{\"Objects\":" + objects + "]}", [](const Delivered& event) {
        const auto& record = event.as<DEV_EVENT_TRAFFICACCIDENT_INFO>();
        EXPECT_EQ(record.nObjectNum, 16);
        EXPECT_EQ(record.stuObjects[15].nObjectID, 16);
    }));
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

TEST(TrafficVideoAnalysePreSnap, StatesCountFromOneAndTheAreaIsTheSame) {
    EXPECT_TRUE(DecodeOne("TrafficVideoAnalysePreSnap",
                          R"({"ParkingSpaceStatus":0,"ParkingInfo":{"FeaturePicArea":[[1,2],[3,4],[5,6],[7,8],[9,10],
                              [11,12],[13,14],[15,16],[17,18],[19,20],[21,22]]}})",
                          [](const Delivered& event) {
                              const auto& record = event.as<DEV_EVENT_TRAFFICVIDEOANALYSEPRESNAP_INFO>();
                              EXPECT_EQ(record.emParkingSpaceStatus, 1);
                              EXPECT_EQ(record.emCurrentParkingSpaceStatus, 0); // untold
                              EXPECT_EQ(record.nFeaturePicAreaNum, 10);
                              EXPECT_EQ(record.stuFeaturePicArea[9].nX, 19);
                          }));
}

} // namespace
