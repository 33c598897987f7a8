// The events of devices, fleets, doors and cards: each from a text that sets every key, from one that sets none, and
// field by field in its order.
#include "events/EventMap.h"
#include "events/Members.h"
#include "events/ReqRealPicture.h"
#include "orrery/events_common.h"
#include "orrery/events_other_access.h"
#include "orrery/events_other_alarm.h"
#include "orrery/events_other_fleet.h"
#include "orrery/events_vehicle.h"
#include "support/EventTexts.h"
#include "support/EventWalk.h"
#include "support/Events.h"
#include "support/FailingAllocator.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>

namespace {

using namespace orrery::test;
namespace events = orrery::events;

// All keys that some of these events read. 1,000,000,000 seconds are 2001-09-09 01:46:40.
constexpr const char* kEveryKey = R"({
    "Name":"Rule 7","PTS":1234.5,"EventID":77,"UTC":1000000000,"UTCMS":321,
    "GroupID":70,"CountInGroup":3,"IndexInGroup":2,
    "CommInfo":{"NTPCheckTime":"Successful","Country":"NL","Drivers":[{"ObjectID":105}]},
    "GPS":{"Time":[2026,11,20,9,30,5],"Longitude":[120,30,36],"Latitude":[30,0,0],"Altitude":8.5,"Speed":9.5,
           "Bearing":10.5,"SatelliteCount":11,"AntennasStatus":true,"PositioningResult":false,"WorkStatus":3,
           "AlarmPoints":[1,202],"SNR":44,"Source":"InertialNavigation"},
    "Object":{"ObjectID":101,"Image":{"Offset":1,"Length":2,"Width":640,"Height":480,"FilePath":"/o"}},
    "Mode":"Outdoor","SenseMethod":"co2","status":"upper3","value":36.5,"time":1000000005,
    "Time":"2026-11-20 09:30:06.250","Type":"Entry","Speed":88,"SpeedHighLine":80,"Disk":1,"Cluster":2,"Partition":3,
    "HappenAddress":"Ring road","PicID":"p-1","Plate":"A12345",
    "Position":[1.5,-2.25,3,4],"PresetID":9,"PictureType":"Real",
    "SrcInfo":{"SrcEvent":"VideoMotion","SrcTime":"2026-11-20 09:30:07.008","SrcChannel":4},
    "StartTime":"2026-11-20 09:30:08.009","EndTime":"2026-11-20 09:30:10.011",
    "Status":"On","ConstantElectricStatus":"Off","SpeedLimit":60,"CurSpeed":72,"MaxSpeed":75,
    "TriggerID":5,"Num":21,"Litre":22,"Money":4000000000,"Text":"B67890","Long":12.5,"Width":2.5,"Height":4.25,
    "ViolationCode":"1301","Describe":"too long","FlowRate":3000000000,
    "RFIDEleTagInfo":{"CardID":"tag 1","CardType":6},"LinkChannel":[3,4],
    "CardType":6,"Method":8,"CardNo":"C1","Password":"P1","ReaderID":"R1","UserID":"U1","SnapURL":"/snap",
    "ErrorCode":16,"RecNo":17,"Numbers":2,"AttendanceState":4,"ClassNumber":"3B","PhoneNumber":"0123456789",
    "CardName":"card",
    "Citizen":"Jan","Sex":2,"Ethnicity":12,"Birth":"1990-05-17","Address":"Dam 1","Number":"N1","Authority":"city",
    "Start":"2020-01-02","End":"2030-01-02","CompareResult":1,"Similarity":97,"Threshold":90,
    "ImageInfo":[{"Offset":31,"Length":32,"Width":33,"Height":34},{"Offset":41,"Length":42,"Width":43,"Height":44}],
    "Extension":{"EventLongID":"long id"},
    "IC":"ic 1","NetBarName":"bar","NetBarID":"bar 1","RFID":["one","two"],"DetectRegion":[100,-200],
    "BulletHoles":[{"ObjectID":1},{"ObjectID":2,"ObjectType":"Hole","BoundingBox":[1,2,3,4],"Center":[5,6],
                    "Sequence":7,"Score":10}]})";

// What every record has of these.
template <class R>
void CheckShared(const R& r, const char* name) {
    HAS(nChannelID, (std::is_same_v<R, DEV_EVENT_ACCESSCONTROL_INFO> ? 6 : -1));
    HAS_TEXT(szName, "Rule 7");
    HAS(dPTS, 1234.5);
    HAS(dwPTS, 1234u);
    HAS(nEventID, 77);
    EXPECT_EQ(r.stuUTC.dwYear, 2001u) << name;
    EXPECT_EQ(r.stuUTC.dwMonth, 9u) << name;
    EXPECT_EQ(r.stuUTC.dwDay, 9u) << name;
    EXPECT_EQ(r.stuUTC.dwHour, 1u) << name;
    EXPECT_EQ(r.stuUTC.dwMinute, 46u) << name;
    EXPECT_EQ(r.stuUTC.dwSecond, 40u) << name;
    EXPECT_EQ(r.stuUTC.dwMillisecond, 321u) << name;
    HAS(byEventAction, 2);
    HAS(nAction, 2);
    HAS(byRepeat, 0);
    HAS(dwFlagMask, 0u);
    HAS(dwResolution, 0u);
    HAS(stuFileInfo.nGroupID, 70u);
    HAS(stuFileInfo.byCount, 3);
    HAS(stuFileInfo.byIndex, 2);
    HAS(stuFileTime.dwYear, 0u);
    HAS(stuCommInfo.emNTPStatus, EVENT_NTP_SUCCESSFUL);
    HAS_TEXT(stuCommInfo.szCountry, "NL");
    HAS(stuCommInfo.nDriversNum, 1);
    HAS(stuCommInfo.pDrivers[0].nObjectID, 105);
    // 120 + 30 / 60 + 36 / 3600 degrees
    HAS(stuGPSStatus.dLongitude, 120510000.0);
    HAS(stuGPSStatus.dLatitude, 30000000.0);
    HAS(stuGPSStatus.dAltitude, 8.5);
    HAS(stuGPSStatus.dSpeed, 9.5);
    HAS(stuGPSStatus.dBearing, 10.5);
    HAS(stuGPSStatus.stuTime.dwSecond, 5u);
    HAS(stuGPSStatus.nSatelliteCount, 11);
    HAS(stuGPSStatus.byAntennasStatus, EVENT_STATE_YES);
    HAS(stuGPSStatus.byPositioningResult, EVENT_STATE_NO);
    HAS(stuGPSStatus.byWorkStatus, 3);
    HAS(stuGPSStatus.nAlarmPointNum, 2);
    HAS(stuGPSStatus.dwAlarmPoints[0], 8449u);
    HAS(stuGPSStatus.dwAlarmPoints[1], 8583u);
    HAS(stuGPSStatus.bySNR, 44);
    HAS(stuGPSStatus.emSource, 1);
    HAS(nPresetID, 9);
    HAS(nGroupID, 70);
    HAS(nCountInGroup, 3);
    HAS(nIndexInGroup, 2);
    HAS_TEXT(szCitizen, "Jan");
    HAS(emSex, EVENT_SEX_FEMALE);
    HAS(nEthnicity, 12);
    HAS(dwEthnicity, 12u);
    HAS(stuBirth.dwYear, 1990u);
    HAS(stuBirth.dwMonth, 5u);
    HAS(stuBirth.dwDay, 17u);
    HAS_TEXT(szAddress, "Dam 1");
    HAS_TEXT(szNumber, "N1");
    HAS_TEXT(szAuthority, "city");
    HAS(stuStart.dwYear, 2020u);
    HAS(stuEnd.dwYear, 2030u);
    HAS(bLongTerm, 0);
    HAS_TEXT(szText, "B67890");
    HAS(stuStartTime.dwSecond, 8u);
    HAS(stuStartTime.dwMillisecond, 9u);
    HAS(stuEndTime.dwSecond, 10u);
    HAS(stuEndTime.dwMillisecond, 11u);
}

template <class R>
void CheckOwn(const R&) {}

template <>
void CheckOwn(const DEV_EVENT_VEHICLEACC_INFO& r) {
    EXPECT_EQ(r.emACCStatus, EVENT_SUPPLY_ON);
    EXPECT_EQ(r.emConstantElectric, EVENT_SUPPLY_OFF);
}
template <>
void CheckOwn(const DEV_EVENT_ANALOGALARM_INFO& r) {
    EXPECT_EQ(r.nIndex, 6);
    EXPECT_EQ(r.emSenseMethod, EVENT_SENSE_CO2);
    EXPECT_EQ(r.emStatus, 4);
    EXPECT_EQ(r.dValue, 36.5);
    EXPECT_EQ(r.stuTime.dwYear, 2001u);
    EXPECT_EQ(r.stuTime.dwSecond, 45u);
}
template <>
void CheckOwn(const DEV_EVENT_VIDEOSTATIC_INFO& r) {
    EXPECT_EQ(r.emMode, EVENT_SCENE_OUTDOOR);
}
template <>
void CheckOwn(const DEV_EVENT_PICINFO_INFO& r) {
    EXPECT_EQ(r.stuTime.dwYear, 2026u);
    EXPECT_EQ(r.stuTime.dwSecond, 6u);
    EXPECT_EQ(r.stuTime.dwMillisecond, 250u);
    EXPECT_EQ(r.nType, 0); // "Entry" is no event
    EXPECT_EQ(r.nSpeed, 88);
    EXPECT_EQ(r.nSpeedHighLine, 80);
    EXPECT_EQ(r.nDisk, 1);
    EXPECT_EQ(r.nCluster, 2);
    EXPECT_EQ(r.nPartition, 3);
    EXPECT_STREQ(r.szHappenAddress, "Ring road");
    EXPECT_STREQ(r.szPicID, "p-1");
    EXPECT_STREQ(r.szPlate, "A12345");
}
template <>
void CheckOwn(const DEV_EVENT_NETPLAYCHECK_INFO& r) {
    EXPECT_STREQ(r.szIC, "ic 1");
    EXPECT_STREQ(r.szNetBarName, "bar");
    EXPECT_STREQ(r.szNetBarID, "bar 1");
}
template <>
void CheckOwn(const DEV_EVENT_PTZPRESET_INFO& r) {
    EXPECT_EQ(r.fPosition[0], 1.5f);
    EXPECT_EQ(r.fPosition[1], -2.25f);
    EXPECT_EQ(r.fPosition[2], 3.0f);
}
template <>
void CheckOwn(const DEV_EVENT_RFIDINFO_INFO& r) {
    EXPECT_EQ(r.nState, 1);
    EXPECT_EQ(r.nRFIDNum, 2);
    EXPECT_STREQ(r.szRFID[0], "one");
    EXPECT_STREQ(r.szRFID[1], "two");
}
template <>
void CheckOwn(const DEV_EVENT_SHOOTINGSCORERECOGNITION_INFO& r) {
    EXPECT_EQ(r.stuDetectRegion.nX, 100);
    EXPECT_EQ(r.stuDetectRegion.nY, -200);
    EXPECT_EQ(r.nBulletHolesNum, 2);
    EXPECT_EQ(r.stuBulletHoles[0].nObjectID, 1);
    EXPECT_EQ(r.stuBulletHoles[1].nObjectID, 2);
    EXPECT_STREQ(r.stuBulletHoles[1].szObjectType, "Hole");
    EXPECT_EQ(r.stuBulletHoles[1].stuBoundingBox.nBottom, 4);
    EXPECT_EQ(r.stuBulletHoles[1].stuCenter.nY, 6);
    EXPECT_EQ(r.stuBulletHoles[1].nSequence, 7);
    EXPECT_EQ(r.stuBulletHoles[1].nScore, 10);
}
template <>
void CheckOwn(const DEV_EVENT_TRAFFICFCC_INFO& r) {
    EXPECT_EQ(r.nTriggerID, 5);
    EXPECT_EQ(r.dwNum, 21u);
    EXPECT_EQ(r.dwLitre, 22u);
    EXPECT_EQ(r.emType, EVENT_FUEL_UNKNOWN);
    EXPECT_EQ(r.dwMoney, 4000000000u);
    EXPECT_STREQ(r.szTime, "2026-11-20 09:30:06.250");
    EXPECT_EQ(r.dwOffset, 1u);
    EXPECT_EQ(r.dwLength, 2u);
    EXPECT_EQ(r.wWidth, 640);
    EXPECT_EQ(r.wHeight, 480);
}
template <>
void CheckOwn(const DEV_EVENT_TRANSFINITE_INFO& r) {
    EXPECT_STREQ(r.szTime, "2026-11-20 09:30:06"); // 20 bytes
    EXPECT_EQ(r.dLong, 12.5);
    EXPECT_EQ(r.dWidth, 2.5);
    EXPECT_EQ(r.dHeight, 4.25);
    EXPECT_STREQ(r.szViolationCode, "1301");
    EXPECT_STREQ(r.szDescribe, "too long");
}
template <>
void CheckOwn(const DEV_EVENT_LINKSD_INFO& r) {
    ASSERT_NE(r.pSrcInfo, nullptr);
    EXPECT_STREQ(r.pSrcInfo->szSrcEvent, "VideoMotion");
    EXPECT_EQ(r.pSrcInfo->stuSrcTime.dwSecond, 7u);
    EXPECT_EQ(r.pSrcInfo->stuSrcTime.dwMillisecond, 8u);
    EXPECT_EQ(r.pSrcInfo->nSrcChannel, 4);
}
template <>
void CheckOwn(const DEV_EVENT_OIL4GFLOWRATE_INFO& r) {
    EXPECT_EQ(r.dwFlowRate, 3000000000u);
}
template <>
void CheckOwn(const DEV_EVENT_ACCESSCONTROL_INFO& r) {
    EXPECT_EQ(r.stuObject.nObjectID, 101);
    EXPECT_STREQ(r.stuObject.pszFilePath, "/o");
    EXPECT_EQ(r.emEventType, EVENT_ACCESS_ENTRY);
    EXPECT_EQ(r.emCardType, 6);
    EXPECT_EQ(r.emOpenMethod, 10);
    EXPECT_STREQ(r.szCardNo, "C1");
    EXPECT_STREQ(r.szPassword, "P1");
    EXPECT_STREQ(r.szReaderID, "R1");
    EXPECT_STREQ(r.szUserID, "U1");
    EXPECT_STREQ(r.szSnapURL, "/snap");
    EXPECT_EQ(r.nErrorCode, 16);
    EXPECT_EQ(r.nRecNo, 17);
    EXPECT_EQ(r.nNumbers, 2);
    EXPECT_EQ(r.nAttendanceState, 4);
    EXPECT_STREQ(r.szClassNumber, "3B");
    EXPECT_STREQ(r.szPhoneNumber, "0123456789");
    EXPECT_STREQ(r.szCardName, "card");
}
template <>
void CheckOwn(const DEV_EVENT_TRAFFICELETAGINFO_INFO& r) {
    EXPECT_STREQ(r.stuRFIDTag.szCardID, "tag 1");
    EXPECT_EQ(r.stuRFIDTag.nCardType, 6);
    EXPECT_EQ(r.nLinkChannelNum, 2);
    EXPECT_EQ(r.nLinkChannel[0], 3);
    EXPECT_EQ(r.nLinkChannel[1], 4);
}
template <>
void CheckOwn(const DEV_EVENT_CITIZENPICTURECOMPARE_INFO& r) {
    EXPECT_EQ(r.byCompareResult, 1);
    EXPECT_EQ(r.bySimilarity, 97);
    EXPECT_EQ(r.byThreshold, 90);
    EXPECT_EQ(r.stuImage[0].dwOffset, 31u);
    EXPECT_EQ(r.stuImage[0].wHeight, 34);
    EXPECT_EQ(r.stuImage[1].dwLength, 42u);
    EXPECT_EQ(r.stuImage[1].wWidth, 43);
    EXPECT_STREQ(r.szEventLongID, "long id");
}
template <>
void CheckOwn(const DEV_EVENT_HIGHSPEED_INFO& r) {
    EXPECT_EQ(r.nSpeedLimit, 60);
    EXPECT_EQ(r.nCurSpeed, 72);
    EXPECT_EQ(r.nMaxSpeed, 75);
}
template <>
void CheckOwn(const DEV_EVENT_PASSCHANGE_INFO& r) {
    EXPECT_EQ(r.emPictureType, EVENT_PASS_PICTURE_REAL);
}

template <class R>
void CheckRecord(const void* record, const char* name) {
    SCOPED_TRACE(name);
    CheckShared(*static_cast<const R*>(record), name);
    CheckOwn(*static_cast<const R*>(record));
}

struct OtherEvent {
    std::uint32_t code;
    const char* name;
    std::size_t size;
    void (*check)(const void* record, const char* name);
};
#define EVENT(code, name, record)                                                                                      \
    { code, name, sizeof(DEV_EVENT_##record##_INFO), CheckRecord<DEV_EVENT_##record##_INFO> }
constexpr OtherEvent kOtherEvents[] = {
    EVENT(284, "VideoMotion", VIDEOMOTION),
    EVENT(285, "AlarmLocal", ALARMLOCAL),
    EVENT(304, "VehicleACC", VEHICLEACC),
    EVENT(305, "VehicleTurnover", VEHICLETURNOVER),
    EVENT(306, "VehicleCollision", VEHICLECOLLISION),
    EVENT(309, "MultiSceneSwitch", MULTISCENESWITCH),
    EVENT(336, "AnalogAlarm", ANALOGALARM),
    EVENT(339, "VideoBlind", VIDEOBLIND),
    EVENT(349, "VideoStatic", VIDEOSTATIC),
    EVENT(350, "VideoTiming", VIDEOTIMING),
    EVENT(352, "CitizenIDCard", CITIZENIDCARD),
    EVENT(353, "PicInfo", PICINFO),
    EVENT(354, "NetPlayCheck", NETPLAYCHECK),
    EVENT(356, "SnapByTime", SNAPBYTIME),
    EVENT(357, "PtzPreset", PTZPRESET),
    EVENT(358, "RFIDInfo", RFIDINFO),
    EVENT(362, "ShootingScoreRecognition", SHOOTINGSCORERECOGNITION),
    EVENT(363, "TrafficFcc", TRAFFICFCC),
    EVENT(364, "Transfinite", TRANSFINITE),
    EVENT(365, "SceneChange", SCENECHANGE),
    EVENT(513, "LinkSD", LINKSD),
    EVENT(515, "Oil4GFlowRate", OIL4GFLOWRATE),
    EVENT(516, "AccessControl", ACCESSCONTROL),
    EVENT(517, "SnapManual", SNAPMANUAL),
    EVENT(518, "TrafficEleTagInfo", TRAFFICELETAGINFO),
    EVENT(519, "TiredPhysiological", TIREDPHYSIOLOGICAL),
    EVENT(520, "BusSharpTurn", BUSSHARPTURN),
    EVENT(521, "CitizenPictureCompare", CITIZENPICTURECOMPARE),
    EVENT(522, "TrafficDriverLowerHead", TRAFFICDRIVERLOWERHEAD),
    EVENT(523, "TrafficDriverLookAround", TRAFFICDRIVERLOOKAROUND),
    EVENT(524, "TrafficDriverLeavePost", TRAFFICDRIVERLEAVEPOST),
    EVENT(528, "TrafficDriverYawn", TRAFFICDRIVERYAWN),
    EVENT(544, "InstallCardReader", INSTALLCARDREADER),
    EVENT(546, "AccOffSnap", ACCOFFSNAP),
    EVENT(548, "NotClearCar", NOTCLEARCAR),
    EVENT(549, "SOSAlert", SOSALERT),
    EVENT(550, "OverLoad", OVERLOAD),
    EVENT(551, "NonWorkingTime", NONWORKINGTIME),
    EVENT(554, "DrivingWithoutCard", DRIVINGWITHOUTCARD),
    EVENT(555, "HighSpeed", HIGHSPEED),
    EVENT(562, "PassChange", PASSCHANGE),
};
#undef EVENT

TEST(OtherEvents, EveryKeyReachesItsField) {
    for (const OtherEvent& expected : kOtherEvents) {
        const std::string text = std::string("{\"Event\":[{\"Code\":\"") + expected.name
                                 + "\",\"Action\":\"Stop\",\"Index\":6,\"Data\":" + kEveryKey + "}]}";
        int count = 0;
        Decode(text, [&](const Delivered& event) {
            ++count;
            EXPECT_EQ(event.type, expected.code) << expected.name;
            EXPECT_EQ(event.size, expected.size) << expected.name;
            expected.check(event.record, expected.name);
            SumOfRecord(*events::FindEvent(event.type)->table, static_cast<const std::byte*>(event.record));
        });
        EXPECT_EQ(count, 1) << expected.name;
    }
}

// What is not zero in an event without keys, besides its channel.
struct Start {
    std::uint32_t code;
    std::size_t offset;
    std::int32_t value;
};
const Start kStarts[] = {
    {336, offsetof(DEV_EVENT_ANALOGALARM_INFO, emStatus), -1},
    {358, offsetof(DEV_EVENT_RFIDINFO_INFO, nState), 1},
    {516, offsetof(DEV_EVENT_ACCESSCONTROL_INFO, bStatus), 1},
    {516, offsetof(DEV_EVENT_ACCESSCONTROL_INFO, emCardType), -1},
};

TEST(OtherEvents, EmptyDataGivesAnEmptyRecord) {
    for (const OtherEvent& expected : kOtherEvents) {
        EXPECT_TRUE(DecodeOne(expected.name, "{}", [&](const Delivered& event) {
            EXPECT_EQ(event.type, expected.code) << expected.name;
            EXPECT_EQ(event.size, expected.size) << expected.name;
            std::vector<std::byte> wanted(expected.size);
            const std::int32_t channel = -1;
            std::memcpy(wanted.data(), &channel, sizeof channel);
            for (const Start& start : kStarts) {
                if (start.code == expected.code)
                    std::memcpy(wanted.data() + start.offset, &start.value, sizeof start.value);
            }
            const auto* const bytes = static_cast<const std::byte*>(event.record);
            const auto [left, right] = std::mismatch(wanted.begin(), wanted.end(), bytes);
            EXPECT_EQ(left, wanted.end()) << expected.name << " at " << left - wanted.begin();
        })) << expected.name;
    }
}

TEST(OtherEvents, TakeFewAllocations) {
    for (const OtherEvent& expected : kOtherEvents) {
        const std::string text = EventText(expected.name, kEveryKey);
        HeapWatch watch;
        std::size_t during = 0;
        Decode(text, [&](const Delivered&) { during = watch.allocations(); });
        EXPECT_LE(during, 4u) << expected.name;
        EXPECT_EQ(watch.liveBlocks(), 0) << expected.name;
    }
}

// The wrong type for every key: nothing but the delivery is promised, and that what is delivered can be read.
TEST(OtherEvents, WrongTypesAreHarmless) {
    for (const char* const wrong : kValuesOfAnyType) {
        const std::string data = EveryKeyAs(kEveryKey, wrong);
        for (const OtherEvent& expected : kOtherEvents) {
            EXPECT_TRUE(DecodeOne(expected.name, data,
                                  [](const Delivered& event) {
                                      SumOfRecord(*events::FindEvent(event.type)->table,
                                                  static_cast<const std::byte*>(event.record));
                                  }))
                << expected.name << " " << wrong;
        }
    }
}

// Three events say all by happening.
TEST(OtherEvents, OnlyThreeNeedNoData) {
    std::vector<std::string> delivered;
    for (const events::EventRow& row : events::Events()) {
        const std::string text = "{\"Event\":[{\"Code\":\"" + std::string(row.name) + "\"}]}";
        Decode(text, [&](const Delivered& event) {
            EXPECT_EQ(event.type, row.code);
            EXPECT_EQ(event.size, row.recordSize);
            delivered.emplace_back(row.name);
        });
    }
    EXPECT_EQ(delivered, (std::vector<std::string>{"VideoBlind", "SnapByTime", "SnapManual"}));
    int count = 0;
    Decode(R"({"Event":[{"Code":"TrafficStay","Action":"Stop","Data":{"Name":"rule","UTC":1000000000,"GroupID":70}},
                        {"Code":"VideoBlind"},{"Code":"SnapByTime","Data":null},{"Code":"SnapManual"}]})",
           [&](const Delivered& event) {
               if (event.type == 282) return;
               ++count;
               // Nothing of the event before, but for its group where the record has one.
               const auto* bytes = static_cast<const std::byte*>(event.record);
               std::vector<std::byte> wanted(event.size);
               const std::int32_t channel = -1;
               std::memcpy(wanted.data(), &channel, sizeof channel);
               if (event.type == 517) {
                   const std::uint32_t group = 70;
                   std::memcpy(wanted.data() + offsetof(DEV_EVENT_SNAPMANUAL_INFO, stuFileInfo)
                                   + offsetof(EVENT_FILE_INFO, nGroupID),
                               &group, sizeof group);
               }
               EXPECT_TRUE(std::equal(wanted.begin(), wanted.end(), bytes)) << event.type;
           });
    EXPECT_EQ(count, 3);
}

// ---- Order of the fields -----------------------------------------------------------------------------------------

// "A" and "C" stand for the two usual heads.
struct Layout {
    std::uint32_t code;
    const char* members;
};
constexpr Layout kLayouts[] = {
    {284, "A stuFileInfo stuCommInfo"},
    {285, "A stuFileInfo stuCommInfo"},
    {304, "A stuGPSStatus emACCStatus byEventAction emConstantElectric"},
    {305, "A stuGPSStatus stuFileInfo byEventAction byReservedAction byRepeat dwFlagMask wWidth wHeight"},
    {306, "A stuGPSStatus stuFileInfo byEventAction byReservedAction byRepeat dwFlagMask wWidth wHeight"},
    {309, "A byEventAction"},
    {336, "A stuFileInfo nIndex emSenseMethod emStatus dValue stuTime dwFlagMask byEventAction"},
    {339, "A stuFileTime"},
    {349, "C emMode byEventAction"},
    {350, "C byEventAction"},
    {352, "C nGroupID nCountInGroup nIndexInGroup szCitizen emSex nEthnicity stuBirth szAddress szNumber szAuthority "
          "stuStart bLongTerm stuEnd"},
    {353, "C stuTime nType nSpeed nSpeedHighLine nDisk nCluster nPartition szHappenAddress szPicID szPlate"},
    {354, "C stuFileTime szIC szNetBarName szNetBarID szAddress"},
    {356, "A stuFileTime"},
    {357, "A fPosition nPresetID"},
    {358, "A nState nRFIDNum szRFID"},
    {362, "A stuFileInfo byEventAction stuDetectRegion nBulletHolesNum stuBulletHoles byRepeat dwFlagMask"},
    {363, "nChannelID szName nTriggerID dPTS stuUTC nEventID dwNum dwLitre emType dwMoney szText szTime dwOffset "
          "dwLength wWidth wHeight"},
    {364,
     "A stuFileInfo byEventAction szText szTime dLong dWidth dHeight szViolationCode szDescribe byRepeat dwFlagMask"},
    {365, "nChannelID byEventAction dPTS stuUTC nEventID stuFileInfo byRepeat dwFlagMask"},
    {513, "C pSrcInfo stuStartTime stuEndTime nPresetID"},
    {515, "A dwFlowRate"},
    {516, "A stuObject stuFileInfo emEventType bStatus emCardType emOpenMethod szCardNo szPassword szReaderID szUserID "
          "szSnapURL nErrorCode nRecNo nNumbers byRepeat dwFlagMask nAttendanceState szClassNumber szPhoneNumber "
          "szCardName"},
    {517, "A stuFileInfo byRepeat dwFlagMask"},
    {518, "A byEventAction stuRFIDTag nLinkChannelNum nLinkChannel"},
    {519, "A byEventAction stuGPSStatus"},
    {520, "A byEventAction stuGPSStatus"},
    {521, "nChannelID byEventAction dPTS szName stuUTC byCompareResult bySimilarity byThreshold emSex dwEthnicity "
          "szCitizen szAddress szNumber szAuthority stuBirth stuStart stuEnd bLongTerm stuImage szEventLongID"},
    {522, "A stuGPSStatus"},
    {523, "A stuGPSStatus"},
    {524, "A stuGPSStatus"},
    {528, "A stuGPSStatus"},
    {544, "A"},
    {546, "A"},
    {548, "nChannelID stuUTC byEventAction byRepeat dwFlagMask dwResolution stuCommInfo"},
    {549, "nChannelID stuUTC byEventAction byRepeat dwFlagMask dwResolution stuCommInfo"},
    {550, "nChannelID stuUTC byEventAction byRepeat dwFlagMask dwResolution stuCommInfo"},
    {551, "nChannelID stuUTC byEventAction byRepeat dwFlagMask dwResolution stuCommInfo"},
    {554, "nChannelID byEventAction dPTS stuUTC"},
    {555, "nChannelID nAction stuUTC dPTS stuGPSStatus nSpeedLimit nCurSpeed nMaxSpeed stuStartTime"},
    {562, "A nPresetID nGroupID nCountInGroup nIndexInGroup emPictureType"},
};
static_assert(std::size(kLayouts) == std::size(kOtherEvents));

TEST(OtherEvents, FieldsStandInTheirOrder) {
    for (const Layout& layout : kLayouts) {
        const events::EventRow* const row = events::FindEvent(layout.code);
        ASSERT_NE(row, nullptr) << layout.code;
        std::vector<std::string> actual;
        for (const auto& field : *row->table) {
            if (!field.alias) actual.push_back(field.name);
        }
        std::string members = layout.members;
        if (members.starts_with("A")) members.replace(0, 1, "nChannelID szName byReservedHead dPTS stuUTC nEventID");
        if (members.starts_with("C")) members.replace(0, 1, "nChannelID szName byReservedHead dwPTS stuUTC nEventID");
        std::istringstream names(members);
        const std::vector<std::string> expected{std::istream_iterator<std::string>(names), {}};
        EXPECT_EQ(actual, expected) << layout.code;
    }
}

// Adjacent bytes, halves of a head, words: places that a client may know by number.
TEST(OtherEvents, BytesStandWhereClientsKnowThem) {
    static_assert(offsetof(DEV_EVENT_NOTCLEARCAR_INFO, byEventAction) == 40);
    static_assert(offsetof(DEV_EVENT_NOTCLEARCAR_INFO, byRepeat) == 41);
    static_assert(offsetof(DEV_EVENT_NOTCLEARCAR_INFO, dwFlagMask) == 44);
    static_assert(offsetof(DEV_EVENT_VEHICLETURNOVER_INFO, byRepeat)
                  == offsetof(DEV_EVENT_VEHICLETURNOVER_INFO, byEventAction) + 3);
    static_assert(offsetof(DEV_EVENT_TRAFFICFCC_INFO, nTriggerID) == 132);
    static_assert(offsetof(DEV_EVENT_TRAFFICFCC_INFO, dPTS) == 136);
    static_assert(offsetof(DEV_EVENT_LINKSD_INFO, dwPTS) == 136);
    static_assert(offsetof(DEV_EVENT_SCENECHANGE_INFO, dPTS) == 8);
    static_assert(sizeof(DEV_EVENT_DRIVINGWITHOUTCARD_INFO) == 56);
    static_assert(sizeof(EVENT_TIME) == 36);
}

// ---- Room of the texts -------------------------------------------------------------------------------------------

#define TEXT(event, record, member, path, room)                                                                        \
    { event, path, offsetof(DEV_EVENT_##record##_INFO, member), room }
#define TAG(member, path, room)                                                                                        \
    TEXT("TrafficEleTagInfo", TRAFFICELETAGINFO, stuRFIDTag.member, "RFIDEleTagInfo/" path, room)
const TextField kTexts[] = {
    TEXT("AccessControl", ACCESSCONTROL, szCardNo, "CardNo", 32),
    TEXT("AccessControl", ACCESSCONTROL, szPassword, "Password", 64),
    TEXT("AccessControl", ACCESSCONTROL, szReaderID, "ReaderID", 32),
    TEXT("AccessControl", ACCESSCONTROL, szUserID, "UserID", 64),
    TEXT("AccessControl", ACCESSCONTROL, szSnapURL, "SnapURL", 128),
    TEXT("AccessControl", ACCESSCONTROL, szClassNumber, "ClassNumber", 32),
    TEXT("AccessControl", ACCESSCONTROL, szPhoneNumber, "PhoneNumber", 16),
    TEXT("AccessControl", ACCESSCONTROL, szCardName, "CardName", 64),
    TEXT("CitizenIDCard", CITIZENIDCARD, szCitizen, "Citizen", 64),
    TEXT("CitizenIDCard", CITIZENIDCARD, szAddress, "Address", 256),
    TEXT("CitizenIDCard", CITIZENIDCARD, szNumber, "Number", 64),
    TEXT("CitizenIDCard", CITIZENIDCARD, szAuthority, "Authority", 256),
    TEXT("CitizenPictureCompare", CITIZENPICTURECOMPARE, szCitizen, "Citizen", 64),
    TEXT("CitizenPictureCompare", CITIZENPICTURECOMPARE, szAddress, "Address", 256),
    TEXT("CitizenPictureCompare", CITIZENPICTURECOMPARE, szNumber, "Number", 64),
    TEXT("CitizenPictureCompare", CITIZENPICTURECOMPARE, szAuthority, "Authority", 256),
    TEXT("CitizenPictureCompare", CITIZENPICTURECOMPARE, szEventLongID, "Extension/EventLongID", 52),
    TEXT("PicInfo", PICINFO, szHappenAddress, "HappenAddress", 128),
    TEXT("PicInfo", PICINFO, szPicID, "PicID", 32),
    TEXT("PicInfo", PICINFO, szPlate, "Plate", 16),
    TEXT("NetPlayCheck", NETPLAYCHECK, szIC, "IC", 32),
    TEXT("NetPlayCheck", NETPLAYCHECK, szNetBarName, "NetBarName", 32),
    TEXT("NetPlayCheck", NETPLAYCHECK, szNetBarID, "NetBarID", 32),
    TEXT("NetPlayCheck", NETPLAYCHECK, szAddress, "Address", 64),
    TEXT("RFIDInfo", RFIDINFO, szRFID, "RFID[]", 12),
    TEXT("TrafficFcc", TRAFFICFCC, szText, "Text", 128),
    TEXT("TrafficFcc", TRAFFICFCC, szTime, "Time", 128),
    TEXT("Transfinite", TRANSFINITE, szText, "Text", 16),
    TEXT("Transfinite", TRANSFINITE, szTime, "Time", 20),
    TEXT("Transfinite", TRANSFINITE, szViolationCode, "ViolationCode", 16),
    TEXT("Transfinite", TRANSFINITE, szDescribe, "Describe", 132),
    TAG(szCardID, "CardID", 15),
    TAG(szPlateNumber, "PlateNumber", 31),
    TAG(szProductionDate, "ProductionDate", 15),
    TAG(szInspectionValidity, "InspectionValidity", 15),
    TAG(szPlateCode, "PlateCode", 8),
    TAG(szPlateSN, "PlateSN", 16),
};
#undef TAG
#undef TEXT

TEST(OtherEvents, TextsAreCutAtTheirFields) {
    for (const TextField& field : kTexts)
        ExpectCut(field);
}

// ---- What a notification tells of all its events -----------------------------------------------------------------

TEST(OtherEvents, TakeWhatTheNotificationSays) {
    orrery::CReqRealPicture picture;
    picture.dwPacketSubType = orrery::CReqRealPicture::kPacketSubType;
    ASSERT_EQ(picture.deserialize(R"({"params":{"info":{"Channel":3,"CountInGroup":4,"IndexInGroup":2,
        "Time":"2026-11-20 09:30:05","Resolution":[1920,1080],"Flags":["Timing"],"FilePath":"/pic","Repeat":513,
        "Events":[{"Code":"VideoMotion","Action":"Start","Data":{}},{"Code":"VehicleCollision","Data":{}},
                  {"Code":"VideoBlind"},{"Code":"SnapByTime"},{"Code":"NetPlayCheck","Data":{}},
                  {"Code":"OverLoad","Data":{"CommInfo":{"Country":"NL"}}},{"Code":"AccessControl","Data":{}},
                  {"Code":"SnapManual"},{"Code":"HighSpeed","Data":{}},{"Code":"RFIDInfo","Data":{}}]}}})",
                                  0),
              1);
    std::vector<std::uint32_t> codes;
    const auto fileTime = [](const EVENT_TIME& time) {
        EXPECT_EQ(time.dwYear, 2026u);
        EXPECT_EQ(time.dwMonth, 11u);
        EXPECT_EQ(time.dwDay, 20u);
        EXPECT_EQ(time.dwHour, 9u);
        EXPECT_EQ(time.dwMinute, 30u);
        EXPECT_EQ(time.dwSecond, 5u);
    };
    const EventVisitor visit = [&](const Delivered& event) {
        codes.push_back(event.type);
        switch (event.type) {
        case 284:
            EXPECT_EQ(event.as<DEV_EVENT_VIDEOMOTION_INFO>().nChannelID, 3);
            ASSERT_NE(event.as<DEV_EVENT_VIDEOMOTION_INFO>().stuCommInfo.pszFilePath, nullptr);
            EXPECT_STREQ(event.as<DEV_EVENT_VIDEOMOTION_INFO>().stuCommInfo.pszFilePath, "/pic");
            break;
        case 306: {
            const auto& crash = event.as<DEV_EVENT_VEHICLECOLLISION_INFO>();
            EXPECT_EQ(crash.byEventAction, 1);
            EXPECT_EQ(crash.byRepeat, 1); // 513 in a byte
            EXPECT_EQ(crash.dwFlagMask, 2u);
            EXPECT_EQ(crash.wWidth, 1920);
            EXPECT_EQ(crash.wHeight, 1080);
            EXPECT_EQ(crash.stuFileInfo.byCount, 4);
            fileTime(crash.stuFileInfo.stuFileTime);
            break;
        }
        case 339:
            fileTime(event.as<DEV_EVENT_VIDEOBLIND_INFO>().stuFileTime);
            break;
        case 356:
            fileTime(event.as<DEV_EVENT_SNAPBYTIME_INFO>().stuFileTime);
            break;
        case 354:
            fileTime(event.as<DEV_EVENT_NETPLAYCHECK_INFO>().stuFileTime);
            break;
        case 550: {
            const auto& load = event.as<DEV_EVENT_OVERLOAD_INFO>();
            EXPECT_EQ(load.dwResolution, 1920u + 1080u * 65536u);
            EXPECT_STREQ(load.stuCommInfo.szCountry, "NL");
            EXPECT_EQ(load.stuCommInfo.pszFilePath, nullptr); // fleets are not told the paths
            break;
        }
        case 516:
            EXPECT_EQ(event.as<DEV_EVENT_ACCESSCONTROL_INFO>().nChannelID, 3);
            EXPECT_EQ(event.as<DEV_EVENT_ACCESSCONTROL_INFO>().byRepeat, 1);
            EXPECT_EQ(event.as<DEV_EVENT_ACCESSCONTROL_INFO>().dwFlagMask, 2u);
            break;
        case 517:
            EXPECT_EQ(event.as<DEV_EVENT_SNAPMANUAL_INFO>().stuFileInfo.byIndex, 2);
            EXPECT_EQ(event.as<DEV_EVENT_SNAPMANUAL_INFO>().byRepeat, 1);
            EXPECT_EQ(event.as<DEV_EVENT_SNAPMANUAL_INFO>().dwFlagMask, 2u);
            break;
        case 555:
            EXPECT_EQ(event.as<DEV_EVENT_HIGHSPEED_INFO>().nAction, 1);
            break;
        case 358:
            EXPECT_EQ(event.as<DEV_EVENT_RFIDINFO_INFO>().nState, 0); // "Start" goes on
            break;
        default:
            ADD_FAILURE() << event.type;
        }
    };
    picture.deliver(VisitEvent, const_cast<EventVisitor*>(&visit));
    EXPECT_EQ(codes, (std::vector<std::uint32_t>{284, 306, 339, 356, 354, 550, 516, 517, 555, 358}));
}

} // namespace
