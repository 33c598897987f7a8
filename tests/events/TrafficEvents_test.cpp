// Every traffic event from a text that sets every key, from one that sets none, and field by field in its order.
#include "events/EventMap.h"
#include "events/Members.h"
#include "events/ReqRealPicture.h"
#include "orrery/events_common.h"
#include "orrery/events_traffic_conduct.h"
#include "orrery/events_traffic_driving.h"
#include "orrery/events_traffic_flow.h"
#include "orrery/events_traffic_junction.h"
#include "orrery/events_traffic_parking.h"
#include "orrery/events_vehicle.h"
#include "support/Events.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace {

using namespace orrery::test;
namespace events = orrery::events;

// All keys that some traffic event reads. 1,000,000,000 seconds are 2001-09-09 01:46:40.
constexpr const char* kEveryKey = R"({
    "Name":"Rule 7","PTS":1234.5,"EventID":77,"UTC":1000000000,"UTCMS":321,"InitialUTC":11.5,"TriggerType":5,
    "GroupID":70,"CountInGroup":3,"IndexInGroup":2,"IsExistAlarmRecord":true,"AlarmRecordSize":900,
    "AlarmRecordPath":"/alarm.dav","SourceIndex":4,"SourceDevice":"gate","Count":6,"Class":"City",
    "Lane":2,"Sequence":31,"Speed":88,"Mark":41,"Source":42,"FrameSequence":43,"SpeedLimit":[40,80],
    "UnderSpeedingPercentage":12,"AlarmInterval":13,"ParkingAllowedTime":14,"PreAlarm":1,"Interval1":15,"Interval2":16,
    "FollowTime":17,"OpenStrobeState":"Auto","MainSeat":"WithSafeBelt","SlaveSeat":"WithoutSafeBelt",
    "DetectRegion":[[1,2],[3,4]],"ParkingSpaceStatus":1,"CurrentParkingSpaceStatus":2,"TextSource":19,
    "ParkingInfo":{"FeaturePicArea":[[5,6],[7,8],[9,10]]},
    "LightState":1,"RedLightUTC":1000000001,"RedLightUTCMS":55,"RedLightMargin":3,"RedLightPeriod":44,
    "YellowLightPeriod":45,"StartJaming":1000000002,"JamLenght":50,"JamRealLength":500,
    "Extension":{"EventLongID":"long id"},
    "PlateInfo":{"FrontPlateNumber":"F1","BackPlateNumber":"B1","FrontPlateColor":"blue","BackPlateColor":"Yellow"},
    "SnapTimeInfo":{"FrontUTC":1000000003,"FrontUTCMS":7,"BackUTC":1000000004,"BackUTCMS":8},
    "CarWeightInfo":{"AxleNum":2,"MaxDistance":9,"AxleWeightInfo":[1,2,3],"AxleLengthInfo":[4,5],"OverWeight":6},
    "Custom":{"GPS":{"Longitude":[120,30,36],"Latitude":[30,0,0],"Altitude":8.5,"Speed":9.5,"Bearing":10.5},
              "WeighInfo":{"Rough":21,"Tare":22,"Net":23}},
    "Object":{"ObjectID":101,"Text":"of the object","Category":"Bus","Image":{"Offset":1,"Length":2,"FilePath":"/o"}},
    "Vehicle":{"ObjectID":102,"Category":"Truck","Image":{"FilePath":"/v"}},
    "Objects":[{"ObjectID":103},{"ObjectID":104}],
    "CardInfo":[{"CardNumber":"C1"},{"CardNumber":"C2"}],
    "CarWayInfo":[{"SigInfo":[{"Speed":33}]}],
    "TrafficCar":{"PlateNumber":"A12345","PlateType":"Large","PlateColor":"Blue","VehicleColor":"Red","Speed":87,
                  "MachineName":"machine","RoadwayNo":"road 1","DeviceAddress":"here","GroupID":71,"CountInGroup":4,
                  "IndexInGroup":1},
    "CommInfo":{"NTPCheckTime":"Successful","Country":"NL","Drivers":[{"ObjectID":105}]}})";

// What the message around an event says; a bare event has none of it.
struct Around {
    std::int32_t channel = -1;
    std::uint8_t repeat = 0;
    std::uint32_t flagMask = 0;
    std::uint16_t width = 0;
    std::uint16_t height = 0;
    std::uint8_t pictureType = 0;
    std::uint8_t fileTag = 0;
    std::uint32_t fileYear = 0;
    const char* recordFile = "";
    const char* filePath = nullptr;
    const char* ftpPath = nullptr;
    const char* videoPath = nullptr;
};

template <class R>
void Check(const R& r, const char* name, const Around& around) {
    // Heads
    HAS(nChannelID, around.channel);
    HAS_TEXT(szName, "Rule 7");
    HAS(dPTS, 1234.5);
    HAS(dwPTS, 1234u);
    HAS(nEventID, 77);
    HAS(stuUTC.dwYear, 2001u);
    HAS(stuUTC.dwSecond, 40u);
    HAS(stuUTC.dwMillisecond, 321u);
    HAS(nTriggerType, 5);
    HAS(dInitialUTC, 11.5);
    if constexpr (requires { r.nUTCMS; }) {
        EXPECT_EQ(r.nUTCMS, 321) << name;
    }
    HAS(dwUTCMS, 321u);
    // Closing fields
    HAS(byEventAction, 2);
    HAS(byRepeat, around.repeat);
    HAS(dwFlagMask, around.flagMask);
    HAS(wWidth, around.width);
    HAS(wHeight, around.height);
    HAS(stuFileInfo.byPictureType, around.pictureType);
    HAS(stuFileInfo.byFileTag, around.fileTag);
    HAS(stuFileInfo.stuFileTime.dwYear, around.fileYear);
    HAS_TEXT(szRecordFile, around.recordFile);
    HAS(bIsExistAlarmRecord, 1u);
    HAS(dwAlarmRecordSize, 900u);
    HAS_TEXT(szAlarmRecordPath, "/alarm.dav");
    HAS(dwCount, 6u);
    // A car brings its own group where there are two objects beside it.
    constexpr bool carRules = requires {
        r.stuObject, r.stuVehicle, r.stuTrafficCar.szPlateNumber, r.stuFileInfo;
    };
    HAS(stuFileInfo.nGroupID, carRules ? 71u : 70u);
    HAS(stuFileInfo.byCount, carRules ? 4 : 3);
    HAS(stuFileInfo.byIndex, carRules ? 1 : 2);
    HAS(nGroupID, 70);
    HAS(nCountInGroup, 3);
    HAS(nIndexInGroup, 2);
    // Numbers
    HAS(nLane, 2);
    HAS(nSequence, 31);
    HAS(nSpeed, 88);
    HAS(nMark, 41);
    HAS(nSource, 42);
    HAS(nFrameSequence, 43);
    HAS(nLowerSpeedLimit, 40);
    HAS(nUpperSpeedLimit, 80);
    HAS(nSpeedLowerLimit, 40);
    HAS(nSpeedUpperLimit, 80);
    HAS(nUnderSpeedingPercentage, 12);
    HAS(byUnderSpeedingPercentage, 12);
    HAS(nAlarmInterval, 13);
    HAS(nParkingAllowedTime, 14);
    HAS(byPreAlarm, 1);
    HAS(nInterval1, 15);
    HAS(nInterval2, 16);
    HAS(nFollowTime, 17);
    HAS(byOpenStrobeState, 2);
    HAS(byMainSeatBelt, 1);
    HAS(bySlaveSeatBelt, 2);
    HAS(emMainSeat, 1);
    HAS(emSlaveSeat, 2);
    if constexpr (requires { r.emClass; } && !std::is_same_v<R, DEV_EVENT_TRAFFICFLOWSTAT_INFO>) {
        EXPECT_EQ(r.emClass, EVENT_CLASS_CITY) << name;
    }
    HAS(nDetectRegionNum, 2);
    HAS(stuDetectRegion[1].nX, 3);
    HAS(stuDetectRegion[1].nY, 4);
    HAS(nParkingSpaceStatus, 1);
    HAS(emParkingSpaceStatus, 2);
    HAS(emCurrentParkingSpaceStatus, 3);
    HAS(byTextSource, 19);
    HAS(dwTextSource, 19u);
    HAS(nFeaturePicAreaNum, 3);
    HAS(stuFeaturePicArea[2].nY, 10);
    HAS(nLightState, 1);
    HAS(byLightState, 1);
    HAS(stuRedLightUTC.dwSecond, 41u);
    HAS(stuRedLightUTC.dwMillisecond, 55u);
    HAS(byRedLightMargin, 3);
    HAS(nRedLightPeriod, 44);
    HAS(nYellowLightPeriod, 45);
    HAS(stuStartJamTime.dwSecond, 42u);
    HAS(byJamLenght, 50);
    HAS(nJamRealLength, 500);
    HAS_TEXT(szEventLongID, "long id");
    HAS_TEXT(szFrontPlateNumber, "F1");
    HAS_TEXT(szBackPlateNumber, "B1");
    HAS(emFrontPlateColor, EVENT_PLATE_COLOR_BLUE);
    HAS(emBackPlateColor, EVENT_PLATE_COLOR_YELLOW);
    HAS(stuFrontUTC.dwSecond, 43u);
    HAS(stuFrontUTC.dwMillisecond, 7u);
    HAS(stuBackUTC.dwSecond, 44u);
    HAS(stuBackUTC.dwMillisecond, 8u);
    HAS(dwAxleNum, 2u);
    HAS(dwMaxDistance, 9u);
    HAS(dwAxleWeightInfo[1], 2u);
    HAS(dwAxleWeightInfo[2], 0u);
    HAS(dwAxleLengthInfo[0], 4u);
    HAS(dwAxleLengthInfo[1], 0u);
    HAS(dwOverWeight, 6u);
    HAS(nLaneNum, 1);
    HAS(nCardNum, 2);
    if constexpr (requires { r.stuCard; }) {
        EXPECT_STREQ(r.stuCard[1].szCardNumber, "C2") << name;
    }
    HAS(stuWeigh.dwRough, 21u);
    HAS(stuWeigh.dwTare, 22u);
    HAS(stuWeigh.dwNet, 23u);
    // 120 + 30 / 60 + 36 / 3600 degrees
    HAS(stuGPS.dwLongitude, 120510000u);
    HAS(stuGPS.dwLatitude, 30000000u);
    HAS(stuGPS.dAltitude, 8.5);
    HAS(stuGPS.dSpeed, 9.5);
    HAS(stuGPS.dBearing, 10.5);
    // Objects, and what the car puts into them
    HAS(stuObject.nObjectID, 101);
    HAS(stuObject.dwOffset, 1u);
    HAS(stuObject.dwFileLength, 2u);
    if constexpr (requires { r.stuObject; }) {
        EXPECT_STREQ(r.stuObject.pszFilePath, "/o") << name;
    }
    HAS_TEXT(stuObject.szText, carRules ? "A12345" : "of the object");
    HAS_TEXT(stuObject.szObjectSubType, carRules ? "Large" : "Bus");
    HAS(stuObject.rgbaMainColor, carRules ? 0x0000FF00u : 0u);
    HAS(stuObject.bColor, carRules ? 1 : 0);
    HAS(stuVehicle.nObjectID, 102);
    HAS_TEXT(stuVehicle.szObjectSubType, "Truck");
    HAS(stuVehicle.rgbaMainColor, carRules ? 0xFF000000u : 0u);
    if constexpr (requires { r.stuVehicle; }) {
        EXPECT_STREQ(r.stuVehicle.pszFilePath, "/v") << name;
    }
    HAS(nObjectNum, 2);
    HAS(stuObjects[1].nObjectID, 104);
    HAS_TEXT(szVehicleCategory, "Truck");
    HAS_TEXT(szMachineName, "machine");
    HAS_TEXT(szRoadwayNo, "road 1");
    HAS_TEXT(stuTrafficCar.szPlateNumber, "A12345");
    HAS(stuTrafficCar.nSpeed, 87);
    HAS(stuTrafficCar.byDirection, 8);
    HAS_TEXT(stuTrafficCar.szMachineName, "machine");
    if constexpr (requires { r.stuTrafficCar; }) {
        EXPECT_STREQ(r.stuTrafficCar.pszDeviceAddress, "here") << name;
    }
    HAS(stuCommInfo.emNTPStatus, EVENT_NTP_SUCCESSFUL);
    HAS_TEXT(stuCommInfo.szCountry, "NL");
    HAS(stuCommInfo.nDriversNum, 1);
    HAS(stuCommInfo.pDrivers[0].nObjectID, 105);
    HAS(stuCommInfo.pDrivers[0].dwSize, 704u);
    HAS_TEXT(stuCommInfo.pszFilePath, around.filePath);
    HAS_TEXT(stuCommInfo.pszFTPPath, around.ftpPath);
    HAS_TEXT(stuCommInfo.pszVideoPath, around.videoPath);
    if constexpr (requires { r.stuJunction; }) Check(r.stuJunction, name, around);
}

template <class R>
void CheckRecord(const void* record, const char* name, const Around& around) {
    Check(*static_cast<const R*>(record), name, around);
}

struct TrafficEvent {
    std::uint32_t code;
    const char* name;
    std::size_t size;
    void (*check)(const void* record, const char* name, const Around& around);
};
constexpr TrafficEvent kTrafficEvents[] = {
    {21, "TrafficControl", sizeof(DEV_EVENT_TRAFFICCONTROL_INFO), CheckRecord<DEV_EVENT_TRAFFICCONTROL_INFO>},
    {22, "TrafficAccident", sizeof(DEV_EVENT_TRAFFICACCIDENT_INFO), CheckRecord<DEV_EVENT_TRAFFICACCIDENT_INFO>},
    {23, "TrafficJunction", sizeof(DEV_EVENT_TRAFFICJUNCTION_INFO), CheckRecord<DEV_EVENT_TRAFFICJUNCTION_INFO>},
    {24, "TrafficGate", sizeof(DEV_EVENT_TRAFFICGATE_INFO), CheckRecord<DEV_EVENT_TRAFFICGATE_INFO>},
    {25, "TrafficSnapshot", sizeof(DEV_EVENT_TRAFFICSNAPSHOT_INFO), CheckRecord<DEV_EVENT_TRAFFICSNAPSHOT_INFO>},
    {27, "TrafficJam", sizeof(DEV_EVENT_TRAFFICJAM_INFO), CheckRecord<DEV_EVENT_TRAFFICJAM_INFO>},
    {256, "TrafficRunRedLight", sizeof(DEV_EVENT_TRAFFICRUNREDLIGHT_INFO),
     CheckRecord<DEV_EVENT_TRAFFICRUNREDLIGHT_INFO>},
    {257, "TrafficOverLine", sizeof(DEV_EVENT_TRAFFICOVERLINE_INFO), CheckRecord<DEV_EVENT_TRAFFICOVERLINE_INFO>},
    {258, "TrafficRetrograde", sizeof(DEV_EVENT_TRAFFICRETROGRADE_INFO), CheckRecord<DEV_EVENT_TRAFFICRETROGRADE_INFO>},
    {259, "TrafficTurnLeft", sizeof(DEV_EVENT_TRAFFICTURNLEFT_INFO), CheckRecord<DEV_EVENT_TRAFFICTURNLEFT_INFO>},
    {260, "TrafficTurnRight", sizeof(DEV_EVENT_TRAFFICTURNRIGHT_INFO), CheckRecord<DEV_EVENT_TRAFFICTURNRIGHT_INFO>},
    {261, "TrafficU-Turn", sizeof(DEV_EVENT_TRAFFICUTURN_INFO), CheckRecord<DEV_EVENT_TRAFFICUTURN_INFO>},
    {262, "TrafficOverSpeed", sizeof(DEV_EVENT_TRAFFICOVERSPEED_INFO), CheckRecord<DEV_EVENT_TRAFFICOVERSPEED_INFO>},
    {263, "TrafficUnderSpeed", sizeof(DEV_EVENT_TRAFFICUNDERSPEED_INFO), CheckRecord<DEV_EVENT_TRAFFICUNDERSPEED_INFO>},
    {264, "TrafficParking", sizeof(DEV_EVENT_TRAFFICPARKING_INFO), CheckRecord<DEV_EVENT_TRAFFICPARKING_INFO>},
    {265, "TrafficWrongRoute", sizeof(DEV_EVENT_TRAFFICWRONGROUTE_INFO), CheckRecord<DEV_EVENT_TRAFFICWRONGROUTE_INFO>},
    {266, "TrafficCrossLane", sizeof(DEV_EVENT_TRAFFICCROSSLANE_INFO), CheckRecord<DEV_EVENT_TRAFFICCROSSLANE_INFO>},
    {267, "TrafficOverYellowLine", sizeof(DEV_EVENT_TRAFFICOVERYELLOWLINE_INFO),
     CheckRecord<DEV_EVENT_TRAFFICOVERYELLOWLINE_INFO>},
    {268, "TrafficDrivingOnShoulder", sizeof(DEV_EVENT_TRAFFICDRIVINGONSHOULDER_INFO),
     CheckRecord<DEV_EVENT_TRAFFICDRIVINGONSHOULDER_INFO>},
    {270, "TrafficYellowPlateInLane", sizeof(DEV_EVENT_TRAFFICYELLOWPLATEINLANE_INFO),
     CheckRecord<DEV_EVENT_TRAFFICYELLOWPLATEINLANE_INFO>},
    {271, "TrafficPedestrainPriority", sizeof(DEV_EVENT_TRAFFICPEDESTRAINPRIORITY_INFO),
     CheckRecord<DEV_EVENT_TRAFFICPEDESTRAINPRIORITY_INFO>},
    {273, "TrafficNoPassing", sizeof(DEV_EVENT_TRAFFICNOPASSING_INFO), CheckRecord<DEV_EVENT_TRAFFICNOPASSING_INFO>},
    {280, "TrafficManualSnap", sizeof(DEV_EVENT_TRAFFICMANUALSNAP_INFO), CheckRecord<DEV_EVENT_TRAFFICMANUALSNAP_INFO>},
    {281, "TrafficFlowStat", sizeof(DEV_EVENT_TRAFFICFLOWSTAT_INFO), CheckRecord<DEV_EVENT_TRAFFICFLOWSTAT_INFO>},
    {282, "TrafficStay", sizeof(DEV_EVENT_TRAFFICSTAY_INFO), CheckRecord<DEV_EVENT_TRAFFICSTAY_INFO>},
    {283, "TrafficVehicleInRoute", sizeof(DEV_EVENT_TRAFFICVEHICLEINROUTE_INFO),
     CheckRecord<DEV_EVENT_TRAFFICVEHICLEINROUTE_INFO>},
    {292, "TrafficVehicleInBusRoute", sizeof(DEV_EVENT_TRAFFICVEHICLEINBUSROUTE_INFO),
     CheckRecord<DEV_EVENT_TRAFFICVEHICLEINBUSROUTE_INFO>},
    {293, "TrafficBacking", sizeof(DEV_EVENT_TRAFFICBACKING_INFO), CheckRecord<DEV_EVENT_TRAFFICBACKING_INFO>},
    {295, "TrafficRunYellowLight", sizeof(DEV_EVENT_TRAFFICRUNYELLOWLIGHT_INFO),
     CheckRecord<DEV_EVENT_TRAFFICRUNYELLOWLIGHT_INFO>},
    {298, "TrafficParkingOnYellowBox", sizeof(DEV_EVENT_TRAFFICPARKINGONYELLOWBOX_INFO),
     CheckRecord<DEV_EVENT_TRAFFICPARKINGONYELLOWBOX_INFO>},
    {299, "TrafficParkingSpaceParking", sizeof(DEV_EVENT_TRAFFICPARKINGSPACEPARKING_INFO),
     CheckRecord<DEV_EVENT_TRAFFICPARKINGSPACEPARKING_INFO>},
    {300, "TrafficParkingSpaceNoParking", sizeof(DEV_EVENT_TRAFFICPARKINGSPACENOPARKING_INFO),
     CheckRecord<DEV_EVENT_TRAFFICPARKINGSPACENOPARKING_INFO>},
    {301, "TrafficPedestrain", sizeof(DEV_EVENT_TRAFFICPEDESTRAIN_INFO), CheckRecord<DEV_EVENT_TRAFFICPEDESTRAIN_INFO>},
    {302, "TrafficThrow", sizeof(DEV_EVENT_TRAFFICTHROW_INFO), CheckRecord<DEV_EVENT_TRAFFICTHROW_INFO>},
    {303, "TrafficIdle", sizeof(DEV_EVENT_TRAFFICIDLE_INFO), CheckRecord<DEV_EVENT_TRAFFICIDLE_INFO>},
    {308, "TrafficParkingSpaceOverLine", sizeof(DEV_EVENT_TRAFFICPARKINGSPACEOVERLINE_INFO),
     CheckRecord<DEV_EVENT_TRAFFICPARKINGSPACEOVERLINE_INFO>},
    {310, "TrafficRestrictedPlate", sizeof(DEV_EVENT_TRAFFICRESTRICTEDPLATE_INFO),
     CheckRecord<DEV_EVENT_TRAFFICRESTRICTEDPLATE_INFO>},
    {311, "TrafficOverStopLine", sizeof(DEV_EVENT_TRAFFICOVERSTOPLINE_INFO),
     CheckRecord<DEV_EVENT_TRAFFICOVERSTOPLINE_INFO>},
    {312, "TrafficWithoutSafeBelt", sizeof(DEV_EVENT_TRAFFICWITHOUTSAFEBELT_INFO),
     CheckRecord<DEV_EVENT_TRAFFICWITHOUTSAFEBELT_INFO>},
    {313, "TrafficDriverSmoking", sizeof(DEV_EVENT_TRAFFICDRIVERSMOKING_INFO),
     CheckRecord<DEV_EVENT_TRAFFICDRIVERSMOKING_INFO>},
    {314, "TrafficDriverCalling", sizeof(DEV_EVENT_TRAFFICDRIVERCALLING_INFO),
     CheckRecord<DEV_EVENT_TRAFFICDRIVERCALLING_INFO>},
    {315, "TrafficPedestrianRunRedLight", sizeof(DEV_EVENT_TRAFFICPEDESTRIANRUNREDLIGHT_INFO),
     CheckRecord<DEV_EVENT_TRAFFICPEDESTRIANRUNREDLIGHT_INFO>},
    {316, "TrafficPassNotInOrder", sizeof(DEV_EVENT_TRAFFICPASSNOTINORDER_INFO),
     CheckRecord<DEV_EVENT_TRAFFICPASSNOTINORDER_INFO>},
    {355, "TrafficJamForbidInto", sizeof(DEV_EVENT_TRAFFICJAMFORBIDINTO_INFO),
     CheckRecord<DEV_EVENT_TRAFFICJAMFORBIDINTO_INFO>},
    {360, "QSYTrafficCarWeight", sizeof(DEV_EVENT_QSYTRAFFICCARWEIGHT_INFO),
     CheckRecord<DEV_EVENT_QSYTRAFFICCARWEIGHT_INFO>},
    {361, "TrafficComparePlate", sizeof(DEV_EVENT_TRAFFICCOMPAREPLATE_INFO),
     CheckRecord<DEV_EVENT_TRAFFICCOMPAREPLATE_INFO>},
    {368, "TrafficVideoAnalysePreSnap", sizeof(DEV_EVENT_TRAFFICVIDEOANALYSEPRESNAP_INFO),
     CheckRecord<DEV_EVENT_TRAFFICVIDEOANALYSEPRESNAP_INFO>},
    {536, "TrafficTurnLeftAfterStraight", sizeof(DEV_EVENT_TRAFFICTURNLEFTAFTERSTRAIGHT_INFO),
     CheckRecord<DEV_EVENT_TRAFFICTURNLEFTAFTERSTRAIGHT_INFO>},
    {537, "TrafficBigBendSmallTurn", sizeof(DEV_EVENT_TRAFFICBIGBENDSMALLTURN_INFO),
     CheckRecord<DEV_EVENT_TRAFFICBIGBENDSMALLTURN_INFO>},
    {540, "TrafficQueueJump", sizeof(DEV_EVENT_TRAFFICQUEUEJUMP_INFO), CheckRecord<DEV_EVENT_TRAFFICQUEUEJUMP_INFO>},
    {541, "VehicleSuspiciousCar", sizeof(DEV_EVENT_VEHICLESUSPICIOUSCAR_INFO),
     CheckRecord<DEV_EVENT_VEHICLESUSPICIOUSCAR_INFO>},
    {542, "TrafficTurnRightAfterStraight", sizeof(DEV_EVENT_TRAFFICTURNRIGHTAFTERSTRAIGHT_INFO),
     CheckRecord<DEV_EVENT_TRAFFICTURNRIGHTAFTERSTRAIGHT_INFO>},
    {543, "TrafficTurnRightAfterPeople", sizeof(DEV_EVENT_TRAFFICTURNRIGHTAFTERSTRAIGHT_INFO),
     CheckRecord<DEV_EVENT_TRAFFICTURNRIGHTAFTERSTRAIGHT_INFO>},
    {552, "TrafficHighBeam", sizeof(DEV_EVENT_TRAFFICHIGHBEAM_INFO), CheckRecord<DEV_EVENT_TRAFFICHIGHBEAM_INFO>},
    {553, "TrafficTruckforbid", sizeof(DEV_EVENT_TRAFFICTRUCKFORBID_INFO),
     CheckRecord<DEV_EVENT_TRAFFICTRUCKFORBID_INFO>},
    {557, "TrafficCarDistanceShort", sizeof(DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO),
     CheckRecord<DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO>},
    {564, "TrafficWaitingArea", sizeof(DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO),
     CheckRecord<DEV_EVENT_TRAFFICCARDISTANCESHORT_INFO>},
};

TEST(TrafficEvents, EveryKeyReachesItsField) {
    for (const TrafficEvent& expected : kTrafficEvents) {
        const std::string text = std::string("{\"Event\":[{\"Code\":\"") + expected.name
                                 + "\",\"Action\":\"Stop\",\"Data\":" + kEveryKey + "}]}";
        int count = 0;
        Decode(text, [&](const Delivered& event) {
            ++count;
            EXPECT_EQ(event.type, expected.code) << expected.name;
            EXPECT_EQ(event.size, expected.size) << expected.name;
            expected.check(event.record, expected.name, {});
        });
        EXPECT_EQ(count, 1) << expected.name;
    }
}

// The closing fields, and the paths of the communication info where the event takes them.
TEST(TrafficEvents, WhatTheNotificationSaysReachesEveryRecord) {
    const std::vector<std::uint32_t> withoutPaths = {536, 537, 540, 542, 543, 552, 553, 557};
    for (const TrafficEvent& expected : kTrafficEvents) {
        const std::string text = R"({"params":{"info":{"Channel":3,"PictureType":9,"Time":"2026-11-20 09:30:05",
            "Tag":"ATMBeforePaste","Resolution":[1920,1080],"Flags":["Timing","Cutout"],"FilePath":"/pic","Repeat":513,
            "RecordFile":"/rec","FTPPath":"/ftp","VideoPath":"/vid","Events":[{"Code":")"
                                 + std::string(expected.name) + R"(","Action":"Stop","Data":)" + kEveryKey + "}]}}}";
        Around around{3, 1, 2 + 64, 1920, 1080, 9, 1, 2026, "/rec", "/pic", "/ftp", "/vid"};
        if (std::count(withoutPaths.begin(), withoutPaths.end(), expected.code) > 0)
            around.filePath = around.ftpPath = around.videoPath = nullptr;
        orrery::CReqRealPicture picture;
        picture.dwPacketSubType = orrery::CReqRealPicture::kPacketSubType;
        ASSERT_EQ(picture.deserialize(text.c_str(), 0), 1) << expected.name;
        int count = 0;
        const EventVisitor visit = [&](const Delivered& event) {
            ++count;
            EXPECT_EQ(event.type, expected.code) << expected.name;
            expected.check(event.record, expected.name, around);
        };
        picture.deliver(VisitEvent, const_cast<EventVisitor*>(&visit));
        EXPECT_EQ(count, 1) << expected.name;
    }
}

// An event without keys is zero but for its channel and its action; not even a car's direction is set.
TEST(TrafficEvents, EmptyDataGivesAnEmptyRecord) {
    for (const TrafficEvent& expected : kTrafficEvents) {
        EXPECT_TRUE(DecodeOne(expected.name, "{}", [&](const Delivered& event) {
            EXPECT_EQ(event.type, expected.code) << expected.name;
            EXPECT_EQ(event.size, expected.size) << expected.name;
            const auto* const bytes = static_cast<const unsigned char*>(event.record);
            for (std::size_t i = 0; i < 4; ++i)
                EXPECT_EQ(bytes[i], 0xFF) << expected.name; // nChannelID -1
            const auto* const end = bytes + expected.size;
            EXPECT_EQ(std::find_if(bytes + 4, end, [](unsigned char byte) { return byte != 0; }), end)
                << expected.name << " at "
                << std::find_if(bytes + 4, end, [](unsigned char b) { return b != 0; }) - bytes;
        })) << expected.name;
    }
}

// Each of the wrong type for every key: nothing but the delivery is promised.
TEST(TrafficEvents, WrongTypesAreHarmless) {
    for (const char* const wrong : kValuesOfAnyType) {
        const std::string data = EveryKeyAs(kEveryKey, wrong);
        for (const TrafficEvent& expected : kTrafficEvents)
            EXPECT_TRUE(DecodeOne(expected.name, data, [](const Delivered&) {})) << expected.name << " " << wrong;
    }
}

// The fields behind the head, in the order in which clients know them.
struct Layout {
    std::uint32_t code;
    const char* members;
};
constexpr Layout kLayouts[] = {
    {21, "stuObject byEventAction stuGPS"},
    {23, "stuObject nLane dwBreakingRule stuRedLightUTC stuFileInfo nSequence nSpeed byEventAction byDirection "
         "byLightState byRepeat stuVehicle dwFlagMask wWidth wHeight szRecordFile stuWeigh dwTextSource stuGPS "
         "bNonMotorFeature byBag byUmbrella byCarrierBag byHat byHelmet bySex byAge stuUpperBodyColor "
         "stuLowerBodyColor byUpClothes byDownClothes nTriggerType stuTrafficCar nCardNum stuCard stuCommInfo "
         "szEventLongID bNonMotor stuNonMotor stuSceneImage"},
    {257, "nLane stuObject stuVehicle stuFileInfo nSequence nSpeed byEventAction byReservedAction byRepeat dwFlagMask "
          "wWidth wHeight stuGPS stuTrafficCar stuCommInfo"},
    {258, "nLane stuObject stuVehicle stuFileInfo nSequence nSpeed byEventAction byReservedAction byRepeat dwFlagMask "
          "wWidth wHeight bIsExistAlarmRecord dwAlarmRecordSize szAlarmRecordPath emClass stuGPS stuTrafficCar "
          "nDetectRegionNum stuDetectRegion stuCommInfo"},
    {259, "nLane stuObject stuVehicle stuFileInfo nSequence nSpeed byEventAction byReservedAction byRepeat dwFlagMask "
          "wWidth wHeight stuGPS stuTrafficCar stuCommInfo"},
    {260, "nLane stuObject stuVehicle stuFileInfo nSequence nSpeed byEventAction byReservedAction byRepeat dwFlagMask "
          "wWidth wHeight stuGPS stuTrafficCar stuCommInfo"},
    {261, "nLane stuObject stuVehicle stuFileInfo nSequence nSpeed byEventAction byReservedAction byRepeat dwFlagMask "
          "wWidth wHeight stuGPS stuTrafficCar stuCommInfo"},
    {263, "nLane stuObject stuVehicle stuFileInfo nSpeed nUpperSpeedLimit nLowerSpeedLimit nSequence byEventAction "
          "byReservedAction byRepeat nUnderSpeedingPercentage dwFlagMask wWidth wHeight emClass stuGPS stuTrafficCar "
          "stuCommInfo"},
    {264, "stuObject stuVehicle nLane stuFileInfo byEventAction byReservedAction byRepeat nSequence nAlarmInterval "
          "nParkingAllowedTime nDetectRegionNum stuDetectRegion dwFlagMask wWidth wHeight bIsExistAlarmRecord "
          "dwAlarmRecordSize szAlarmRecordPath emClass byPreAlarm stuGPS stuTrafficCar stuCommInfo"},
    {265, "stuObject stuVehicle nLane stuFileInfo byEventAction byReservedAction byRepeat nSpeed dwFlagMask wWidth "
          "wHeight stuGPS stuTrafficCar stuCommInfo"},
    {266, "stuObject stuVehicle nLane stuFileInfo byEventAction byReservedAction byRepeat nSpeed dwFlagMask wWidth "
          "wHeight emClass stuGPS stuTrafficCar stuCommInfo"},
    {267,
     "stuObject stuVehicle nLane stuFileInfo byEventAction byReservedAction byRepeat nSpeed dwFlagMask wWidth wHeight "
     "bIsExistAlarmRecord dwAlarmRecordSize emClass stuTrafficCar nDetectRegionNum stuDetectRegion stuCommInfo"},
    {268, "stuObject stuVehicle nLane stuFileInfo byEventAction byReservedAction byRepeat nSpeed dwFlagMask wWidth "
          "wHeight stuTrafficCar stuCommInfo"},
    {270, "stuObject stuVehicle nLane stuFileInfo byEventAction byReservedAction byRepeat nSpeed dwFlagMask wWidth "
          "wHeight stuTrafficCar stuCommInfo"},
    {271, "stuObject stuVehicle stuFileInfo nLane dInitialUTC byEventAction byReservedAction byRepeat dwFlagMask "
          "stuTrafficCar wWidth wHeight stuGPS stuCommInfo"},
    {273, "nUTCMS nMark nSequence stuFileInfo byEventAction stuTrafficCar dwFlagMask wWidth stuGPS byRepeat nLane "
          "stuObject stuVehicle nFrameSequence nSource stuCommInfo"},
    {280, "nLane stuObject stuVehicle stuTrafficCar stuFileInfo byEventAction byOpenStrobeState byRepeat dwFlagMask "
          "wWidth wHeight stuCommInfo"},
    {281,
     "nSequence nStateNum stuStates nVehicles nLeftVehicles nRightVehicles nStraightVehicles nUTurnVehicles "
     "fAverageSpeed fAverageLength fTimeOccupyRatio fSpaceOccupyRatio fSpaceHeadway fTimeHeadway fDensity "
     "nOverSpeedVehicles nUnderSpeedVehicles nLargeVehicles nMediumVehicles nSmallVehicles nMotoVehicles nLongVehicles "
     "nVolume nFlowRate nTravelTime dBackOfQueue nBackOfQueue nDelay byDirection stuVehicleTypeFlow "
     "stuDrivingDirection emRank nState bOccupyHeadCoil bOccupyTailCoil bStatistics stuQueueEnd emClass"},
    {282, "stuObject stuVehicle nLane nSequence stuTrafficCar stuFileInfo byEventAction byReservedAction byRepeat "
          "dwFlagMask wWidth wHeight stuCommInfo"},
    {283, "stuObject stuVehicle nLane nSequence nSpeed stuTrafficCar stuFileInfo byEventAction byReservedAction "
          "byRepeat dwFlagMask wWidth wHeight stuCommInfo"},
    {292, "stuObject stuVehicle stuFileInfo nLane nSequence nSpeed byEventAction byReservedAction byRepeat dwFlagMask "
          "stuTrafficCar wWidth wHeight stuGPS stuCommInfo"},
    {293, "stuObject stuVehicle stuFileInfo nLane nSequence nSpeed byEventAction byReservedAction byRepeat dwFlagMask "
          "stuTrafficCar wWidth wHeight emClass stuGPS stuCommInfo"},
    {298, "nLane stuObject stuVehicle stuFileInfo nInterval1 nInterval2 nFollowTime byEventAction byReservedAction "
          "byRepeat dwFlagMask wWidth wHeight stuGPS stuTrafficCar stuCommInfo"},
    {303, "stuFileInfo wWidth wHeight dwFlagMask byEventAction byReservedAction byRepeat nLane stuCommInfo"},
    {308, "stuObject stuVehicle nLane nSequence stuTrafficCar stuFileInfo byEventAction dwFlagMask wWidth stuCommInfo"},
    {310, "nSequence byEventAction byRepeat nLane stuObject stuVehicle stuFileInfo nMark nFrameSequence nSource "
          "dwFlagMask wWidth wHeight stuTrafficCar stuGPS stuCommInfo"},
    {311, "nSequence byEventAction byRepeat nLane stuObject stuVehicle stuFileInfo nMark nFrameSequence nSource "
          "dwFlagMask wWidth wHeight stuGPS stuTrafficCar nSpeed stuCommInfo"},
    {312, "nSequence byEventAction byRepeat stuFileInfo nLane nMark nFrameSequence nSource stuObject stuVehicle "
          "stuTrafficCar nSpeed emMainSeat emSlaveSeat dwFlagMask wWidth wHeight stuGPS stuCommInfo"},
    {313, "nSequence byEventAction byRepeat stuFileInfo nLane nMark nFrameSequence nSource stuObject stuVehicle "
          "stuTrafficCar nSpeed dwFlagMask wWidth wHeight stuGPS stuCommInfo"},
    {314, "nSequence byEventAction byRepeat stuFileInfo nLane nMark nFrameSequence nSource stuObject stuVehicle "
          "stuTrafficCar nSpeed dwFlagMask wWidth wHeight stuGPS stuCommInfo"},
    {315, "nLane stuObject stuFileInfo nSequence byEventAction byReservedAction byRepeat dwFlagMask wWidth wHeight "
          "stuCommInfo"},
    {316, "nLane stuObject stuVehicle stuFileInfo nSequence byEventAction byReservedAction byRepeat dwFlagMask wHeight "
          "wWidth stuTrafficCar stuCommInfo stuGPS"},
    {355, "stuFileInfo nMark nSource nSequence nFrameSequence nLane byRepeat stuObject stuGPS stuTrafficCar "
          "stuCommInfo stuVehicle wWidth wHeight"},
    {361,
     "stuObject stuVehicle stuFileInfo nMark nSource nFrameSequence nSpeed nLane nSequence stuTrafficCar stuCommInfo "
     "dwFlagMask szFrontPlateNumber szBackPlateNumber emFrontPlateColor emBackPlateColor stuFrontUTC stuBackUTC"},
    {536, "stuFileInfo stuObject stuVehicle stuTrafficCar nLane nSequence byEventAction byRepeat dwFlagMask wWidth "
          "stuGPS stuCommInfo"},
    {537, "stuFileInfo stuObject stuVehicle stuTrafficCar nLane nSequence byEventAction byRepeat dwFlagMask wWidth "
          "stuCommInfo"},
    {540, "stuFileInfo stuObject stuVehicle stuTrafficCar nLane nSequence byEventAction byRepeat dwFlagMask wWidth "
          "stuCommInfo"},
    {541, "stuFileInfo stuObject stuVehicle nSequence byEventAction byRepeat dwFlagMask wWidth stuGPS"},
    {542, "stuFileInfo stuObject stuVehicle stuTrafficCar nLane nSequence byEventAction byRepeat dwFlagMask wWidth "
          "stuCommInfo"},
    {543, "stuFileInfo stuObject stuVehicle stuTrafficCar nLane nSequence byEventAction byRepeat dwFlagMask wWidth "
          "stuCommInfo"},
    {552, "stuFileInfo byRepeat stuObject stuVehicle nLane nSequence stuTrafficCar dwFlagMask wWidth stuCommInfo"},
    {553, "dwUTCMS stuObject stuVehicle nLane nSequence stuTrafficCar stuCommInfo stuFileInfo"},
    {557, "stuObject stuVehicle nLane nSequence stuTrafficCar stuFileInfo stuCommInfo"},
    {564, "stuObject stuVehicle nLane nSequence stuTrafficCar stuFileInfo stuCommInfo"},
};

TEST(TrafficEvents, FieldsStandInTheirOrder) {
    for (const Layout& layout : kLayouts) {
        const events::EventRow* const row = events::FindEvent(layout.code);
        ASSERT_NE(row, nullptr) << layout.code;
        std::vector<std::string> actual;
        bool behindHead = false;
        for (const auto& field : *row->table) {
            if (behindHead && !field.alias) actual.push_back(field.name);
            if (std::string_view(field.name) == "nEventID") behindHead = true;
        }
        std::istringstream names(layout.members);
        std::vector<std::string> expected{std::istream_iterator<std::string>(names), {}};
        EXPECT_EQ(actual, expected) << layout.code;
    }
}

TEST(TrafficEvents, HeadsAreOfTheirForm) {
    const std::map<std::uint32_t, const char*> others = {
        {23, "nChannelID szName byMainSeatBelt bySlaveSeatBelt byVehicleDirection byOpenStrobeState dPTS stuUTC"},
        {273, "nChannelID szName nTriggerType dwPTS stuUTC"},
        {308, "nChannelID szName dwPTS stuUTC"},
        {310, "nChannelID szName nTriggerType dwPTS stuUTC"},
        {311, "nChannelID szName nTriggerType dwPTS stuUTC"},
        {312, "nChannelID szName nTriggerType dwPTS stuUTC"},
        {313, "nChannelID szName nTriggerType dwPTS stuUTC"},
        {314, "nChannelID szName nTriggerType dwPTS stuUTC"},
        {355, "nChannelID szName dwPTS stuUTC"},
        {360, ""}, // that of the junction inside it
        {361, "nChannelID szName nTriggerType dwPTS stuUTC"},
        {553, "nChannelID szName nGroupID nCountInGroup nIndexInGroup dPTS stuUTC"},
    };
    for (const TrafficEvent& event : kTrafficEvents) {
        const auto other = others.find(event.code);
        const std::string expected =
            other != others.end() ? other->second : "nChannelID szName byReservedHead dPTS stuUTC";
        std::string actual;
        bool inHead = event.code != 360;
        for (const auto& field : *events::FindEvent(event.code)->table) {
            if (std::string_view(field.name) == "nEventID") inHead = false;
            if (inHead && !field.alias) actual += (actual.empty() ? "" : " ") + std::string(field.name);
        }
        EXPECT_EQ(actual, expected) << event.code;
    }
}

// Names tell types, so that a client may go by them.
TEST(TrafficEvents, FieldsHaveTheTypesOfTheirNames) {
    using orrery::record::Cell;
    const std::pair<std::string_view, Cell> prefixes[] = {{"stu", Cell::Record}, {"sz", Cell::Char}, {"dw", Cell::U32},
                                                          {"by", Cell::U8},      {"em", Cell::I32},  {"w", Cell::U16},
                                                          {"n", Cell::I32},      {"f", Cell::F32}};
    const std::map<std::string_view, Cell> others = {{"bNonMotorFeature", Cell::U8},
                                                     {"bNonMotor", Cell::U32},
                                                     {"bIsExistAlarmRecord", Cell::U32},
                                                     {"bOccupyHeadCoil", Cell::I32},
                                                     {"bOccupyTailCoil", Cell::I32},
                                                     {"bStatistics", Cell::I32},
                                                     {"dPTS", Cell::F64},
                                                     {"dInitialUTC", Cell::F64},
                                                     {"dBackOfQueue", Cell::F64}};
    for (const TrafficEvent& event : kTrafficEvents) {
        for (const auto& field : *events::FindEvent(event.code)->table) {
            if (field.alias) continue;
            const std::string_view name = field.name;
            if (const auto other = others.find(name); other != others.end()) {
                EXPECT_EQ(field.cell, other->second) << event.code << ' ' << name;
                continue;
            }
            const auto* const prefix = std::find_if(std::begin(prefixes), std::end(prefixes),
                                                    [&](const auto& known) { return name.starts_with(known.first); });
            ASSERT_NE(prefix, std::end(prefixes)) << event.code << ' ' << name;
            EXPECT_EQ(field.cell, prefix->second) << event.code << ' ' << name;
        }
    }
}

template <class R>
void CheckRegion(const char* code) {
    std::string points = "[[1,2],[3],[5,6,7]";
    for (int i = 3; i < 22; ++i)
        points += ",[" + std::to_string(i * 2 + 1) + "," + std::to_string(i * 2 + 2) + "]";
    EXPECT_TRUE(DecodeOne(code, "{\"DetectRegion\":" + points + "]}", [&](const Delivered& event) {
        const auto& record = event.as<R>();
        EXPECT_EQ(record.nDetectRegionNum, 19) << code; // 20 places, one of them a hole
        EXPECT_EQ(record.stuDetectRegion[0].nY, 2) << code;
        EXPECT_EQ(record.stuDetectRegion[1].nX, 0) << code;
        EXPECT_EQ(record.stuDetectRegion[2].nX, 5) << code;
        EXPECT_EQ(record.stuDetectRegion[19].nX, 39) << code;
        EXPECT_EQ(record.stuDetectRegion[19].nY, 40) << code;
    })) << code;
}

TEST(TrafficEvents, RegionsHaveAtMostTwentyPoints) {
    CheckRegion<DEV_EVENT_TRAFFICRETROGRADE_INFO>("TrafficRetrograde");
    CheckRegion<DEV_EVENT_TRAFFICPARKING_INFO>("TrafficParking");
    CheckRegion<DEV_EVENT_TRAFFICOVERYELLOWLINE_INFO>("TrafficOverYellowLine");
}

template <class R>
void CheckLimits(const char* code) {
    EXPECT_TRUE(DecodeOne(code, R"({"SpeedLimit":[40]})", [&](const Delivered& event) {
        EXPECT_EQ(event.as<R>().nLowerSpeedLimit, 0) << code;
        EXPECT_EQ(event.as<R>().nUpperSpeedLimit, 0) << code;
    })) << code;
    EXPECT_TRUE(DecodeOne(code, R"({"SpeedLimit":[40,80,120]})", [&](const Delivered& event) {
        EXPECT_EQ(event.as<R>().nLowerSpeedLimit, 40) << code;
        EXPECT_EQ(event.as<R>().nUpperSpeedLimit, 80) << code;
    })) << code;
}

TEST(TrafficEvents, SpeedLimitsComeInPairs) {
    CheckLimits<DEV_EVENT_TRAFFICOVERSPEED_INFO>("TrafficOverSpeed");
    CheckLimits<DEV_EVENT_TRAFFICUNDERSPEED_INFO>("TrafficUnderSpeed");
}

TEST(EventMap, RowsAreFoundByTheirCodes) {
    for (const events::EventRow& row : events::Events()) {
        EXPECT_EQ(events::FindEvent(row.code), &row);
        EXPECT_EQ(row.recordSize, row.table->size);
    }
    const std::uint32_t behind = events::Events().back().code + 1;
    for (std::uint32_t code : {0u, 1u, 17u, 18u, 20u, 28u, 269u, behind, 10000u, 0xFFFFFFFFu})
        EXPECT_EQ(events::FindEvent(code), nullptr) << code;
}

} // namespace
