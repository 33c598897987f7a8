// Every intelligent event from a text that sets every key, from one that sets none, and field by field in its order.
#include "events/EventMap.h"
#include "events/Members.h"
#include "orrery/events_common.h"
#include "orrery/events_intelligent_crossing.h"
#include "orrery/events_intelligent_detection.h"
#include "orrery/events_intelligent_face.h"
#include "orrery/events_intelligent_person.h"
#include "orrery/events_intelligent_recognition.h"
#include "orrery/events_intelligent_region.h"
#include "orrery/events_intelligent_statistics.h"
#include "support/EventTexts.h"
#include "support/EventWalk.h"
#include "support/FailingAllocator.h"
#include "support/Notification.h"

#include <cstring>
#include <gtest/gtest.h>
#include <sstream>

namespace {

using namespace orrery::test;
namespace events = orrery::events;

// All keys that intelligent events share. 1,000,000,000 seconds are 2001-09-09 01:46:40.
constexpr const char* kEveryKey = R"({
    "Name":"Rule 7","PTS":1234.5,"EventID":77,"UTC":1000000000,"UTCMS":321,"InitialUTC":11.5,
    "GroupID":70,"CountInGroup":3,"IndexInGroup":2,"SourceIndex":4,"SourceDevice":"gate","Count":6,"Class":"City",
    "Lane":2,"Sequence":31,"Speed":8.5,"TriggerSpeed":7.5,"Action":"Inside","PresetID":12,"PresetName":"door",
    "DetectRegion":[[1,2],[3,4]],"DetectLine":[[5,6],[7,8]],"Track":[[9,10],[11,12],[13,14]],
    "UpstairsLine":[[15,16]],"DownstairsLine":[[17,18],[19,20]],
    "Tracks":[[[1,2]],[[3,4],[5,6],[7,8]]],"Position":[21,22,23],"SpecialRegion":"RegularBlink",
    "Left":24,"Right":25,"Number":26,"UpperLimit":27,"EnteredNumber":28,"ExitedNumber":29,
    "Decibel":90,"Frequency":440,"Unit":1,"Value":33,"ObjectID":34,"Address":"north gate","IsGlobalScene":true,
    "Sex":"Woman","Age":35,"Call":1,"Hat":2,"Bag":3,"Umbrella":4,"Glasses":5,"Emotion":"Happy",
    "UpperBodyColor":[1,2,3,4],"LowerBodyColor":[5,6,7,8],"BoundingBox":[36,37,38,39],
    "Image":{"FilePath":"/image","Width":640,"Height":480},"PlateNumber":"A12345","UID":"uid 1",
    "Feature":["Smile","Anger"],"Faces":[{"ObjectID":40},{"ObjectID":41,"nRelativeID":42}],
    "Race":2,"Eye":1,"Mouth":2,"Mask":0,"Beard":1,"Attractive":99,
    "Face":{"Sex":"Man","Age":43,"Feature":["Fear"],"Race":0,"Eye":2,"Mouth":0,"Mask":1,"Beard":2,"Attractive":50,
            "UID":"uid 2"},
    "Candidates":[{"Similarity":80},{"Similarity":70}],"DetectObject":1,"AlarmMask":6,
    "ManList":[{"Center":[1,2]},{"Center":[3,4]}],"CrowdList":[{"Center":[5,6],"Radius":44}],
    "RegionList":[{"RegionID":45,"PeopleNum":46},{"RegionID":47,"PeopleNum":48}],
    "Packet":{"Grade":2},"Inside":[{"Grade":1,"Type":"Gun"}],"CarCandidate":[{},{}],
    "HumanImage":{"Offset":51},"FaceImage":{"Offset":52},"FaceSceneImage":{"Offset":53},"SceneImage":{"Offset":54},
    "Extension":{"EventLongID":"long id"},"HumanTraitExtension":{"AdditioalCode":"additional"},
    "CommInfo":{"Country":"NL"},"Custom":{"CargoChannelInfo":[61,62,63]},
    "Vehicle":{"ObjectID":102,"Action":"Disappear","VehicleAttachs":[{"Type":"Pendant"}]},
    "Object":{"ObjectID":101,"ObjectType":"Human","BoundingBox":[64,65,66,67],"Country":"DE",
              "Image":{"FilePath":"/o"}}%s})";

std::string EveryKey(const char* more) {
    std::string text = kEveryKey;
    return text.replace(text.find("%s"), 2, more);
}

constexpr const char* kObjects = R"(,"Objects":[{"ObjectID":103},{"ObjectID":104}])";

template <class R, class... Others>
constexpr bool kIsOneOf = (std::is_same_v<R, Others> || ...);

template <class R>
void Check(const void* record, const char* name) {
    const R& r = *static_cast<const R*>(record);
    // Heads
    HAS(nChannelID, 3);
    HAS_TEXT(szName, "Rule 7");
    HAS(dPTS, 1234.5);
    HAS(nEventID, 77);
    HAS(stuUTC.dwYear, 2001u);
    HAS(stuUTC.dwSecond, 40u);
    HAS(stuUTC.dwMillisecond, 321u);
    HAS(dwUTCMS, 321u);
    HAS(dInitialUTC, 11.5);
    HAS(dwSize, sizeof(R));
    // Closing fields
    HAS(byEventAction, 2);
    HAS(dwAction, 2u);
    HAS(byRepeat, 7);
    HAS(dwFlagMask, 16u);
    HAS(wWidth, 1920);
    HAS(wHeight, 1080);
    HAS(dwResolution, 1920u + 1080u * 65536u);
    HAS(nSourceIndex, 4);
    HAS_TEXT(szSourceDevice, "gate");
    HAS(dwCount, 6u);
    HAS(emClass, EVENT_CLASS_CITY);
    HAS(stuFileInfo.nGroupID, 70u);
    HAS(stuFileInfo.byCount, 3);
    HAS(stuFileInfo.byIndex, 2);
    HAS(stuFileInfo.byPictureType, 9);
    HAS(nGroupID, 70);
    HAS(nCountInGroup, 3);
    HAS(nIndexInGroup, 2);
    // Objects
    HAS(stuObject.nObjectID, 101);
    if constexpr (requires { r.stuObject; }) {
        EXPECT_STREQ(r.stuObject.pszFilePath, "/o") << name;
    }
    HAS(stuVehicle.nObjectID, 102);
    HAS(nObjectNum, 2);
    HAS(stuObjects[1].nObjectID, 104);
    HAS(pObjects[1].nObjectID, 104);
    HAS(pObjects[1].dwSize, 704u);
    // Points
    HAS(nDetectRegionNum, 2);
    HAS(stuDetectRegion[1].nY, 4);
    HAS(nDetectLineNum, 2);
    HAS(stuDetectLine[1].nY, 8);
    HAS(nTrackNum, 3);
    HAS(stuTrack[2].nX, 13);
    HAS(nUpstairsLineNum, 1);
    HAS(stuUpstairsLine[0].nY, 16);
    HAS(nDownstairsLineNum, 2);
    HAS(stuDownstairsLine[1].nX, 19);
    HAS(nTrackLineNum, 2);
    HAS(stuTrackLine[0].nPointNum, 1);
    HAS(stuTrackLine[1].nPointNum, 3);
    HAS(stuTrackLine[1].stuPoint[2].nX, 7);
    HAS(nPosition[0], 21);
    HAS(nPosition[2], 23);
    // Numbers and names
    HAS(byActionType, EVENT_DEED_INSIDE);
    HAS(nCargoChannelNum, 3);
    HAS(nCargoChannel[2], 63);
    HAS(wPresetID, 12);
    HAS(nPresetID, 12);
    HAS_TEXT(szPresetName, "door");
    HAS(emSpecialRegion, 2);
    HAS(dSpeed, 8.5);
    HAS(dTriggerSpeed, 7.5);
    HAS(nLeft, 24);
    HAS(nRight, 25);
    HAS(nNumber, 26);
    HAS(nUpperLimit, 27);
    HAS(nEnteredNumber, 28);
    HAS(nExitedNumber, 29);
    HAS(nDecibel, 90);
    HAS(nFrequency, 440);
    HAS(nUnit, 1);
    HAS(nValue, 33);
    HAS(nLane, 2);
    HAS(nSequence, 31);
    if constexpr (kIsOneOf<R, DEV_EVENT_TUMBLEDETECTION_INFO>) {
        EXPECT_EQ(r.nObjectID, 34);
        EXPECT_STREQ(r.szObjectType, "Human");
        EXPECT_EQ(r.stuBoundingBox.nBottom, 67);
    } else {
        HAS(stuBoundingBox.nBottom, 39);
    }
    HAS_TEXT(szAddress, "north gate");
    HAS(bIsGlobalScene, 1u);
    // Faces and people
    if constexpr (kIsOneOf<R, DEV_EVENT_FACERECOGNITION_INFO>) {
        EXPECT_EQ(r.emSex, EVENT_SEX_MALE);
        EXPECT_EQ(r.nAge, 43);
        EXPECT_EQ(r.nFeatureNum, 1);
        EXPECT_EQ(r.emFeature[0], EVENT_FEATURE_FEAR);
        EXPECT_EQ(r.emRace, 1);
        EXPECT_EQ(r.emEye, 3);
        EXPECT_EQ(r.emMouth, 1);
        EXPECT_EQ(r.emMask, 2);
        EXPECT_EQ(r.emBeard, 3);
        EXPECT_EQ(r.nAttractive, 50);
        EXPECT_STREQ(r.szUID, "uid 2");
        EXPECT_EQ(r.nCandidateNum, 2);
        EXPECT_EQ(r.stuCandidates[1].bySimilarity, 70);
        EXPECT_EQ(r.stuCandidatesEx[1].bySimilarity, 70);
        EXPECT_EQ(r.stuSceneImage.dwOffset, 54u);
    } else {
        HAS(emSex, EVENT_SEX_FEMALE);
        HAS(nAge, 35);
        HAS(nFeatureNum, 2);
        HAS(emFeature[1], EVENT_FEATURE_ANGER);
        HAS(emRace, 3);
        HAS(emEye, 2);
        HAS(emMouth, 3);
        HAS(emMask, 1);
        HAS(emBeard, 2);
        HAS(nAttractive, 99);
        HAS_TEXT(szUID, "uid 1");
        HAS(nCandidateNum, 2);
    }
    HAS(nFaceNum, 2);
    HAS(stuFaces[1].nObjectID, 41);
    HAS(stuFaces[1].nRelativeID, 42);
    HAS(byAge, 35);
    HAS(byCall, 1);
    HAS(byHat, 2);
    HAS(byBag, 3);
    HAS(byUmbrella, 4);
    HAS(byGlasses, 5);
    HAS(emEmotion, EVENT_FEATURE_HAPPY);
    HAS(stuUpperBodyColor.nAlpha, 4);
    HAS(stuLowerBodyColor.nRed, 5);
    HAS_TEXT(szImagePath, "/image");
    HAS(wImageWidth, 640);
    HAS(wImageHeight, 480);
    HAS_TEXT(szPlateNumber, "A12345");
    HAS(stuHumanImage.dwOffset, 51u);
    HAS(stuFaceImage.dwOffset, 52u);
    HAS(stuFaceSceneImage.dwOffset, 53u);
    HAS(stuSceneImage.dwOffset, 54u);
    HAS(emDetectObject, 2);
    HAS_TEXT(szEventLongID, "long id");
    HAS_TEXT(szAdditionalCode, "additional");
    // Lists
    HAS(nManNum, 2);
    HAS(stuMan[1].stuCenter.nY, 4);
    HAS(emAlarmType, 2);
    HAS(nCrowdListNum, 1);
    HAS(stuCrowdList[0].stuCenter.nY, 6);
    HAS(stuCrowdList[0].dwRadius, 44u);
    HAS(nRegionListNum, 2);
    HAS(stuRegionList[0].dwRegionID, 45u);
    HAS(stuRegionList[1].dwPeopleNum, 48u);
    HAS(nPacketGrade, 2);
    HAS(nInsideNum, 1);
    HAS(stuInside[0].nGrade, 1);
    HAS(stuInside[0].emType, EVENT_INSIDE_GUN);
    HAS(emAction, EVENT_VEHICLE_DISAPPEAR);
    HAS(nVehicleAttachNum, 1);
    HAS(stuVehicleAttach[0].emType, EVENT_VEHICLE_ATTACH_PENDANT);
    HAS_TEXT(szCountry, "DE");
    HAS_TEXT(stuCommInfo.szCountry, "NL");
    if constexpr (requires { r.stuCommInfo; }) {
        EXPECT_STREQ(r.stuCommInfo.pszFilePath, "/pic") << name;
    }
}

// What an event without keys leaves is zero but for a few.
template <class R>
void CheckEmpty(const void* record, const char* name) {
    R expected;
    std::memset(static_cast<void*>(&expected), 0, sizeof expected);
    if constexpr (requires { expected.nChannelID; }) expected.nChannelID = -1;
    if constexpr (requires { expected.nSourceIndex; }) expected.nSourceIndex = -1;
    if constexpr (requires { expected.nAge; }) expected.nAge = -1;
    if constexpr (requires { expected.nAttractive; }) expected.nAttractive = -1;
    if constexpr (requires { expected.nPacketGrade; }) expected.nPacketGrade = -1;
    const auto* const wanted = reinterpret_cast<const unsigned char*>(&expected);
    const auto* const bytes = static_cast<const unsigned char*>(record);
    for (std::size_t i = 0; i < sizeof(R); ++i)
        ASSERT_EQ(bytes[i], wanted[i]) << name << " at " << i;
}

struct IntelligentEvent {
    std::uint32_t code;
    const char* name;
    std::size_t size;
    void (*check)(const void* record, const char* name);
    void (*checkEmpty)(const void* record, const char* name);
};
#define EVENT(code, name, record)                                                                                      \
    { code, name, sizeof(record), Check<record>, CheckEmpty<record> }
constexpr IntelligentEvent kIntelligentEvents[] = {
    EVENT(2, "CrossLineDetection", DEV_EVENT_CROSSLINEDETECTION_INFO),
    EVENT(3, "CrossRegionDetection", DEV_EVENT_CROSSREGIONDETECTION_INFO),
    EVENT(4, "PasteDetection", DEV_EVENT_PASTEDETECTION_INFO),
    EVENT(5, "LeftDetection", DEV_EVENT_LEFTDETECTION_INFO),
    EVENT(6, "StayDetection", DEV_EVENT_STAYDETECTION_INFO),
    EVENT(7, "WanderDetection", DEV_EVENT_WANDERDETECTION_INFO),
    EVENT(8, "Preservation", DEV_EVENT_PRESERVATION_INFO),
    EVENT(9, "MoveDetection", DEV_EVENT_MOVEDETECTION_INFO),
    EVENT(10, "TailDetection", DEV_EVENT_TAILDETECTION_INFO),
    EVENT(11, "RioterDetection", DEV_EVENT_RIOTERDETECTION_INFO),
    EVENT(12, "FireDetection", DEV_EVENT_FIREDETECTION_INFO),
    EVENT(13, "SmokeDetection", DEV_EVENT_SMOKEDETECTION_INFO),
    EVENT(14, "FightDetection", DEV_EVENT_FIGHTDETECTION_INFO),
    EVENT(15, "FlowStat", DEV_EVENT_FLOWSTAT_INFO),
    EVENT(16, "NumberStat", DEV_EVENT_NUMBERSTAT_INFO),
    EVENT(19, "VideoAbnormalDetection", DEV_EVENT_VIDEOABNORMALDETECTION_INFO),
    {26, "FaceDetection", 12288, Check<DEV_EVENT_FACEDETECTION_INFO>, CheckEmpty<DEV_EVENT_FACEDETECTION_INFO>},
    EVENT(272, "ElectroSparkDetection", DEV_EVENT_ELECTROSPARKDETECTION_INFO),
    EVENT(274, "RunDetection", DEV_EVENT_RUNDETECTION_INFO),
    EVENT(275, "RetrogradeDetection", DEV_EVENT_RETROGRADEDETECTION_INFO),
    EVENT(276, "InRegionDetection", DEV_EVENT_INREGIONDETECTION_INFO),
    EVENT(277, "TakenAwayDetection", DEV_EVENT_TAKENAWAYDETECTION_INFO),
    EVENT(278, "ParkingDetection", DEV_EVENT_PARKINGDETECTION_INFO),
    EVENT(279, "FaceRecognition", DEV_EVENT_FACERECOGNITION_INFO),
    EVENT(286, "PrisonerRiseDetection", DEV_EVENT_PRISONERRISEDETECTION_INFO),
    EVENT(287, "CrossFenceDetection", DEV_EVENT_CROSSFENCEDETECTION_INFO),
    EVENT(289, "DensityDetection", DEV_EVENT_DENSITYDETECTION_INFO),
    EVENT(291, "QueueDetection", DEV_EVENT_QUEUEDETECTION_INFO),
    EVENT(294, "AudioAbnormalDetection", DEV_EVENT_AUDIOABNORMALDETECTION_INFO),
    EVENT(296, "ClimbDetection", DEV_EVENT_CLIMBDETECTION_INFO),
    EVENT(297, "LeaveDetection", DEV_EVENT_LEAVEDETECTION_INFO),
    EVENT(321, "ObjectDetection", DEV_EVENT_OBJECTDETECTION_INFO),
    EVENT(341, "GetOutBedDetection", DEV_EVENT_GETOUTBEDDETECTION_INFO),
    EVENT(342, "PatrolDetection", DEV_EVENT_PATROLDETECTION_INFO),
    EVENT(343, "OnDutyDetection", DEV_EVENT_ONDUTYDETECTION_INFO),
    EVENT(372, "NearDistanceDetection", DEV_EVENT_NEARDISTANCEDETECTION_INFO),
    EVENT(373, "PersonFeature", DEV_EVENT_PERSONFEATURE_INFO),
    EVENT(374, "NonMotorFeature", DEV_EVENT_NONMOTORFEATURE_INFO),
    EVENT(375, "TumbleDetection", DEV_EVENT_TUMBLEDETECTION_INFO),
    EVENT(525, "ManStandDetection", DEV_EVENT_MANSTANDDETECTION_INFO),
    EVENT(526, "ManNumDetection", DEV_EVENT_MANNUMDETECTION_INFO),
    EVENT(533, "HumanTrait", DEV_EVENT_HUMANTRAIT_INFO),
    EVENT(538, "RoadConstruction", DEV_EVENT_ROADCONSTRUCTION_INFO),
    EVENT(539, "RoadBlock", DEV_EVENT_ROADBLOCK_INFO),
    EVENT(547, "XRayDetection", DEV_EVENT_XRAYDETECTION_INFO),
    EVENT(556, "CrowdDetection", DEV_EVENT_CROWDDETECTION_INFO),
    EVENT(560, "PedestrianJunction", DEV_EVENT_PEDESTRIANJUNCTION_INFO),
    EVENT(561, "VehicleRecognition", DEV_EVENT_VEHICLERECOGNITION_INFO),
    EVENT(633, "SmartMotionHuman", DEV_EVENT_SMARTMOTIONHUMAN_INFO),
    EVENT(634, "SmartMotionVehicle", DEV_EVENT_SMARTMOTIONVEHICLE_INFO),
};
constexpr IntelligentEvent kExtendedCrossing = EVENT(337, "CrossLineDetection", DEV_EVENT_CROSSLINE_EX_INFO);

// Reads all that a client may read: the told size, and what the record's pointers lead to.
std::uint64_t ReadAll(const Delivered& event) {
    std::uint64_t sum = SumOfRecord(*events::FindEvent(event.type)->table, static_cast<const std::byte*>(event.record));
    for (std::uint32_t i = 0; i < event.size; ++i)
        sum += static_cast<const unsigned char*>(event.record)[i];
    return sum;
}

void ExpectWhole(const IntelligentEvent& expected, const std::string& data) {
    const std::string event =
        std::string("{\"Code\":\"") + expected.name + "\",\"Action\":\"Stop\",\"Data\":" + data + "}";
    const int count = DecodeNotification(
        R"("Channel":3,"Repeat":519,"Flags":["Event"],"Resolution":[1920,1080],"PictureType":9,"FilePath":"/pic")",
        event, [&](const Delivered& delivered) {
            EXPECT_EQ(delivered.type, expected.code) << expected.name;
            EXPECT_EQ(delivered.size, expected.size) << expected.name;
            expected.check(delivered.record, expected.name);
            EXPECT_NE(ReadAll(delivered), 0u);
        });
    EXPECT_EQ(count, 1) << expected.name;
}

TEST(IntelligentEvents, EveryKeyReachesItsField) {
    for (const IntelligentEvent& expected : kIntelligentEvents)
        ExpectWhole(expected, EveryKey(expected.code == 2 ? "" : kObjects));
    ExpectWhole(kExtendedCrossing, EveryKey(kObjects));
}

TEST(IntelligentEvents, EmptyDataGivesAnEmptyRecord) {
    for (const IntelligentEvent& expected : kIntelligentEvents) {
        EXPECT_TRUE(DecodeOne(expected.name, "{}", [&](const Delivered& event) {
            EXPECT_EQ(event.type, expected.code) << expected.name;
            EXPECT_EQ(event.size, expected.size) << expected.name;
            expected.checkEmpty(event.record, expected.name);
        })) << expected.name;
    }
}

TEST(IntelligentEvents, NoneIsDeliveredWithoutData) {
    for (const IntelligentEvent& expected : kIntelligentEvents)
        EXPECT_TRUE(CodesOf(std::string("{\"Event\":[{\"Code\":\"") + expected.name + "\"}]}").empty())
            << expected.name;
}

// Each of the wrong type for every key: nothing but the delivery is promised.
TEST(IntelligentEvents, WrongTypesAreHarmless) {
    const std::string whole = EveryKey(kObjects);
    for (const char* const wrong : kValuesOfAnyType) {
        const std::string data = EveryKeyAs(whole, wrong);
        for (const IntelligentEvent& expected : kIntelligentEvents)
            EXPECT_TRUE(DecodeOne(expected.name, data, [](const Delivered& event) { ReadAll(event); }))
                << expected.name << " " << wrong;
    }
}

TEST(IntelligentEvents, NothingStaysAllocatedForAnyCode) {
    HeapWatch watch;
    for (const IntelligentEvent& expected : kIntelligentEvents) {
        const std::string text = EventText(expected.name, EveryKey(kObjects));
        const std::ptrdiff_t before = watch.liveBlocks();
        const std::size_t allocations = watch.allocations();
        CLIENT_ParseAnalyzerEventData(
            text.c_str(), 0,
            [](std::uint32_t, const void*, std::uint32_t, void*, std::int32_t, void*) { return std::int32_t{0}; },
            nullptr);
        EXPECT_EQ(watch.liveBlocks(), before) << expected.name;
        EXPECT_LE(watch.allocations() - allocations, 3u) << expected.name << ": more than a handful";
    }
}

// The fields in the order in which clients know them; those behind the head, or all where a record has its own.
struct Layout {
    std::uint32_t code;
    const char* members;
};
#define CLOSING "byEventAction byReservedAction byRepeat "
#define REGION "nDetectRegionNum stuDetectRegion "
#define SOURCED "dwFlagMask nSourceIndex szSourceDevice dwCount "
constexpr Layout kLayouts[] = {
    {2, "stuObject stuFileInfo stuDetectLine nDetectLineNum stuTrack nTrackNum byEventAction byDirection byActionType "
        "byRepeat " SOURCED "nCargoChannelNum nCargoChannel emClass wPresetID"},
    {3, "stuObject stuFileInfo stuDetectRegion nDetectRegionNum stuTrack nTrackNum byEventAction byDirection "
        "byActionType byRepeat " SOURCED "nCargoChannelNum nCargoChannel nObjectNum stuObjects nTrackLineNum "
        "stuTrackLine emClass wPresetID"},
    {337, "stuObject stuFileInfo stuDetectLine nDetectLineNum stuTrack nTrackNum byEventAction byDirection "
          "byActionType byRepeat " SOURCED "nObjectNum pObjects emClass"},
    {4, "stuObject stuFileInfo " REGION CLOSING "dwFlagMask dwCount emSpecialRegion emClass"},
    {5, "stuObject stuFileInfo " CLOSING REGION SOURCED "emClass nPresetID szPresetName"},
    {6, "stuObject stuFileInfo " CLOSING REGION SOURCED "emClass"},
    {8, "stuObject stuFileInfo " CLOSING REGION SOURCED "emClass"},
    {9, "stuObject stuFileInfo " CLOSING REGION SOURCED "emClass nTrackNum stuTrack"},
    {10, "stuObject stuFileInfo " CLOSING REGION SOURCED "emClass"},
    {11, "nObjectNum stuObjects stuFileInfo " CLOSING SOURCED},
    {12, "stuObject stuFileInfo " CLOSING REGION SOURCED "emClass"},
    {13, "stuObject stuFileInfo " CLOSING "dwFlagMask dwCount emClass nPosition"},
    {14, "nObjectNum stuObjects stuFileInfo " CLOSING SOURCED},
    {15, "nLeft nRight stuFileInfo " CLOSING "dwFlagMask"},
    {16, "nNumber nUpperLimit stuFileInfo " CLOSING "nEnteredNumber nExitedNumber dwFlagMask dwCount"},
    {19, "stuFileInfo byEventAction byType byRepeat " SOURCED "emClass"},
    {26, "stuObject stuFileInfo " CLOSING REGION "dwFlagMask szAddress dwCount emSex nAge nFeatureNum emFeature "
         "nFaceNum stuFaces emClass emRace emEye emMouth emMask emBeard nAttractive szUID"},
    {272, "stuObject stuFileInfo " CLOSING "dwFlagMask"},
    {274, "stuObject dSpeed dTriggerSpeed " REGION "nTrackNum stuTrack stuFileInfo " CLOSING SOURCED "emClass emType"},
    {275, "stuObject nTrackNum stuTrack nDirectionNum stuDirection " REGION "stuFileInfo " CLOSING SOURCED "emClass"},
    {276, "nObjectNum stuObjects stuFileInfo " CLOSING SOURCED},
    {277, "stuObject " REGION "stuFileInfo " CLOSING SOURCED "emClass nPresetID szPresetName"},
    {278, "stuObject " REGION "stuFileInfo " CLOSING SOURCED "emClass"},
    {279, "stuObject nCandidateNum stuCandidates stuCandidatesEx " CLOSING "bIsGlobalScene stuSceneImage szAddress "
          "dwCount emClass emSex nAge nFeatureNum emFeature emRace emEye emMouth emMask emBeard nAttractive szUID"},
    {286, "stuObject " REGION "stuFileInfo dInitialUTC " CLOSING SOURCED "emClass"},
    {287, "stuObject nUpstairsLineNum stuUpstairsLine nDownstairsLineNum stuDownstairsLine nTrackNum stuTrack "
          "stuFileInfo " CLOSING SOURCED "emClass nPresetID emDirection"},
    {289, "nObjectNum stuObjects " CLOSING REGION SOURCED "emClass nUnit nValue"},
    {291, "stuFileInfo " CLOSING "nDetectLineNum stuDetectLine dwCount"},
    {294, "stuFileInfo nDecibel " CLOSING "dwFlagMask wWidth wHeight nFrequency"},
    {296, "nGroupID nCountInGroup nIndexInGroup stuObject nDetectLineNum stuDetectLine emClass byEventAction "
          "dwResolution dwCount byRepeat"},
    {297, "nGroupID nCountInGroup nIndexInGroup stuObject " REGION "emClass byEventAction dwResolution byRepeat"},
    {321, "stuFileInfo " CLOSING SOURCED "nObjectNum pObjects emClass"},
    {341, "stuObject " REGION "stuFileInfo " CLOSING "dwFlagMask"},
    {342, "stuObject " REGION "stuFileInfo " CLOSING "dwFlagMask"},
    {343, "stuObject " REGION "stuFileInfo " CLOSING "dwFlagMask"},
    {7, "stuFileInfo " CLOSING "nObjectNum stuObjects nTrackLineNum stuTrackLine " REGION SOURCED
        "emClass wPresetID szPresetName"},
    {372, "byEventAction emClass"},
    {373, "stuFileInfo byEventAction szSourceDevice bySex byAge byCall byHat byBag byUmbrella byGlasses emEmotion "
          "stuUpperBodyColor stuLowerBodyColor stuBoundingBox szImagePath wImageWidth wImageHeight byRepeat "
          "dwFlagMask"},
    {374, "stuFileInfo byEventAction szSourceDevice szPlateNumber bySex byAge byCall byHat byBag byUmbrella byGlasses "
          "emEmotion stuUpperBodyColor stuLowerBodyColor stuBoundingBox szImagePath wImageWidth wImageHeight byRepeat "
          "dwFlagMask"},
    {375, "emClass dwUTCMS nObjectID szObjectType stuBoundingBox"},
    {525, "byEventAction nManNum stuMan emClass"},
    {526, "byEventAction nManNum stuMan emClass"},
    {533, "dwAction emClass nGroupID nCountInGroup nIndexInGroup stuHumanImage stuFaceImage stuFaceSceneImage "
          "stuSceneImage emDetectObject stuHumanAttributes stuFaceAttributes szEventLongID szAdditionalCode"},
    {538, "byEventAction emClass stuBoundingBox"},
    {539, "byEventAction emClass stuBoundingBox"},
    {547, "emClass nPacketGrade nInsideNum stuInside"},
    {556, "dPTS stuUTC byEventAction emAlarmType szName nCrowdListNum stuCrowdList nRegionListNum stuRegionList"},
    {560, "stuFileInfo stuObject nLane nSequence"},
    {561, "emAction stuObject stuVehicle stuMainSeat stuSlaveSeat stuMainFace stuSlaveFace nVehicleAttachNum "
          "stuVehicleAttach szCountry nCandidateNum stuCandidates stuCommInfo"},
};

// The fields of a record up to its event's ID, or behind it.
std::vector<std::string> MembersOf(const events::EventRow& row, bool behindHead) {
    std::vector<std::string> members;
    bool isBehind = false;
    for (const auto& field : *row.table) {
        if (isBehind == behindHead && !field.alias) members.push_back(field.name);
        if (std::string_view(field.name) == "nEventID") isBehind = true;
    }
    return members;
}

std::vector<std::string> WordsOf(const char* text) {
    std::istringstream words(text);
    return {std::istream_iterator<std::string>(words), {}};
}

TEST(IntelligentEvents, FieldsStandInTheirOrder) {
    for (const Layout& layout : kLayouts) {
        const events::EventRow* const row = events::FindEvent(layout.code);
        ASSERT_NE(row, nullptr) << layout.code;
        EXPECT_EQ(MembersOf(*row, true), WordsOf(layout.members)) << layout.code;
    }
}

// Heads that are not the usual one. The last two have no ID, so that all of them is a head.
constexpr Layout kHeads[] = {
    {337, "dwSize nChannelID szName byReservedHead dPTS stuUTC nEventID"},
    {372, "nChannelID szName dPTS stuUTC nEventID"},
    {373, "nChannelID szName dPTS stuUTC nEventID"},
    {374, "nChannelID szName dPTS stuUTC nEventID"},
    {375, "nChannelID szName dPTS stuUTC nEventID"},
    {525, "nChannelID szName nEventID"},
    {526, "nChannelID szName nEventID"},
    {533, "nChannelID szName nEventID"},
    {538, "nChannelID szName nEventID"},
    {539, "nChannelID szName nEventID"},
    {556, "nChannelID nEventID"},
    {560, "nChannelID szName nGroupID nCountInGroup nIndexInGroup dPTS stuUTC dwUTCMS nEventID"},
    {561, "szName dPTS stuUTC nEventID"},
    {633, "nChannelID byEventAction szName dPTS stuUTC"},
    {634, "nChannelID byEventAction szName dPTS stuUTC"},
};

TEST(IntelligentEvents, HeadsStandInTheirOrder) {
    for (const IntelligentEvent& event : kIntelligentEvents) {
        const char* expected = "nChannelID szName byReservedHead dPTS stuUTC nEventID";
        for (const Layout& head : kHeads) {
            if (head.code == event.code) expected = head.members;
        }
        EXPECT_EQ(MembersOf(*events::FindEvent(event.code), false), WordsOf(expected)) << event.code;
    }
    EXPECT_EQ(MembersOf(*events::FindEvent(337), false), WordsOf(kHeads[0].members));
}

#define TEXT(event, record, member, path, room)                                                                        \
    { event, path, offsetof(DEV_EVENT_##record##_INFO, member), room }
#define CAR(member, key, room)                                                                                         \
    TEXT("VehicleRecognition", VEHICLERECOGNITION, stuCandidates[0].member, "CarCandidate[]/Vehicle/" key, room)
#define PERSON(member, key, room)                                                                                      \
    TEXT("FaceRecognition", FACERECOGNITION, stuCandidates[0].stuPerson.member, "Candidates[]/Person/" key, room),     \
        TEXT("FaceRecognition", FACERECOGNITION, stuCandidatesEx[0].stuPerson.member, "Candidates[]/Person/" key,      \
             room)
const TextField kTexts[] = {
    TEXT("LeftDetection", LEFTDETECTION, szPresetName, "PresetName", 64),
    TEXT("TakenAwayDetection", TAKENAWAYDETECTION, szPresetName, "PresetName", 64),
    TEXT("WanderDetection", WANDERDETECTION, szPresetName, "PresetName", 64),
    TEXT("FaceDetection", FACEDETECTION, szAddress, "Address", 260),
    TEXT("FaceDetection", FACEDETECTION, szUID, "UID", 32),
    TEXT("FaceDetection", FACEDETECTION, stuFaces[0].szObjectType, "Faces[]/ObjectType", 128),
    TEXT("FaceRecognition", FACERECOGNITION, szAddress, "Address", 260),
    TEXT("FaceRecognition", FACERECOGNITION, szUID, "Face/UID", 32),
    TEXT("FaceRecognition", FACERECOGNITION, stuCandidates[0].szAddress, "Candidates[]/Address", 260),
    TEXT("FaceRecognition", FACERECOGNITION, stuCandidatesEx[0].szAddress, "Candidates[]/Address", 260),
    TEXT("FaceRecognition", FACERECOGNITION, stuCandidates[0].stuSceneImage.szFilePath,
         "Candidates[]/SceneImage/FilePath", 64),
    TEXT("FaceRecognition", FACERECOGNITION, stuCandidatesEx[0].szFilePath, "Candidates[]/SceneImage/FilePath", 256),
    PERSON(szID, "ID", 32),
    PERSON(szProvince, "Province", 64),
    PERSON(szCity, "City", 64),
    PERSON(szName, "Name", 64),
    PERSON(szUID, "UID", 32),
    PERSON(szCountry, "Country", 3),
    TEXT("NonMotorFeature", NONMOTORFEATURE, szPlateNumber, "PlateNumber", 32),
    TEXT("TumbleDetection", TUMBLEDETECTION, szObjectType, "Object/ObjectType", 16),
    TEXT("HumanTrait", HUMANTRAIT, szEventLongID, "Extension/EventLongID", 52),
    TEXT("HumanTrait", HUMANTRAIT, szAdditionalCode, "HumanTraitExtension/AdditioalCode", 36),
    TEXT("VehicleRecognition", VEHICLERECOGNITION, szCountry, "Object/Country", 32),
    CAR(szGroupID, "GroupID", 64),
    CAR(szGroupName, "GroupName", 128),
    CAR(szPlateNumber, "PlateNumber", 64),
    CAR(szPlateCountry, "PlateCountry", 4),
    CAR(szName, "Name", 64),
    CAR(szID, "ID", 32),
    CAR(szCountry, "Country", 4),
    CAR(szProvince, "Province", 64),
    CAR(szCity, "City", 64),
    CAR(szHomeAddress, "HomeAddress", 128),
    CAR(szEmail, "Email", 32),
    CAR(szPhoneNo, "PhoneNo", 128),
};
#undef PERSON
#undef CAR
#undef TEXT

TEST(IntelligentEvents, TextsAreCutAtTheirFields) {
    for (const TextField& field : kTexts)
        ExpectCut(field);
}

TEST(IntelligentEvents, HeadsOfTheirOwn) {
    const auto offsets = [](auto... members) { return std::vector<std::size_t>{members...}; };
    // Without an event's ID, with the action where other records have the name.
    EXPECT_EQ(offsets(offsetof(DEV_EVENT_SMARTMOTIONHUMAN_INFO, byEventAction),
                      offsetof(DEV_EVENT_SMARTMOTIONHUMAN_INFO, szName),
                      offsetof(DEV_EVENT_SMARTMOTIONHUMAN_INFO, dPTS),
                      offsetof(DEV_EVENT_SMARTMOTIONHUMAN_INFO, stuUTC)),
              offsets(4u, 8u, 136u, 144u));
    EXPECT_EQ(offsets(offsetof(DEV_EVENT_CROWDDETECTION_INFO, nEventID), offsetof(DEV_EVENT_CROWDDETECTION_INFO, dPTS)),
              offsets(4u, 8u));
    EXPECT_EQ(offsetof(DEV_EVENT_VEHICLERECOGNITION_INFO, szName), 0u);
    EXPECT_EQ(offsetof(DEV_EVENT_CROSSLINE_EX_INFO, dwSize), 0u);
    EXPECT_EQ(offsetof(DEV_EVENT_CROSSLINE_EX_INFO, nChannelID), 4u);
    EXPECT_EQ(offsetof(DEV_EVENT_PEDESTRIANJUNCTION_INFO, nGroupID), 132u);
}

} // namespace
