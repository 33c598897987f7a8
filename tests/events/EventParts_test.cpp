// Described objects, positions, and the rules for their keys.
#include "events/EventContext.h"
#include "orrery/events_common.h"
#include "orrery/events_traffic_driving.h"
#include "support/Events.h"
#include "support/JsonText.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

using namespace orrery;
using namespace orrery::test;

// A record read from a text by a table. What it points to lives as long as this.
template <class R>
struct ReadBy {
    ReadBy(const record::TypedTable<R>& table, std::string_view text) : document(text) {
        EXPECT_TRUE(document.ok) << text;
        record::ReadCall call{parser, document.root};
        record::ReadRecord(table, document.root, reinterpret_cast<std::byte*>(&value), call);
    }
    const R* operator->() const { return &value; }

    Document document;
    LocalText local{document.arena};
    JsonParser parser{local};
    R value{};
};

ReadBy<EVENT_OBJECT_INFO> Object(std::string_view text) {
    return {events::kObject, text};
}
ReadBy<EVENT_OBJECT_INFO_EX> ObjectEx(std::string_view text) {
    return {events::kObjectEx, text};
}

template <std::size_t N>
std::string_view Whole(const char (&field)[N]) {
    return {field, strnlen(field, N)};
}

constexpr const char* kWholeObject = R"({"ObjectID":1,"ObjectType":"Vehicle","Confidence":2,"Action":"Moves",
    "BoundingBox":[1,2,3,4,5],"Center":[6,7,8],"Contour":[[1,2],[3],[5,6,7]],"MainColor":[16,32,48,64],
    "Text":"plate","Category":"Bus","CarLogoIndex":3,"SubBrand":4,"BrandYear":2026,
    "Image":{"Offset":5,"Length":6,"Width":7,"Height":8,"FilePath":"/a/b.jpg"},"ShotFrame":1,"TimeType":"relative",
    "CurrentTimeStamp":{"UTC":1000000000},"StartTimeStamp":{"UTC":1000000001},"EndTimeStamp":{"UTC":1000000002},
    "OriginalBoundingBox":[1,2,3,4],"Sign":{"BoundingBox":[5,6,7,8]},"CurrentSequence":4000000000,"BeginSequence":10,
    "EndSequence":11,"BeginFileOffset":5000000000.9,"EndFileOffset":12,
    "ColorSimilar":{"Red":1,"Yellow":2,"Green":3,"Cyan":4,"Blue":5,"Purple":6,"Black":7,"White":8},
    "UpperBodyColorSimilar":{"White":9},"LowerBodyColorSimilar":{"Red":10},"RelativeID":13,"SubText":"sub"})";

template <class R>
void CheckBothForms(const R& object) {
    EXPECT_EQ(object.nObjectID, 1);
    EXPECT_STREQ(object.szObjectType, "Vehicle");
    EXPECT_EQ(object.nConfidence, 2);
    EXPECT_EQ(object.nAction, EVENT_OBJECT_ACTION_MOVE);
    EXPECT_EQ(object.stuBoundingBox.nLeft, 1);
    EXPECT_EQ(object.stuBoundingBox.nBottom, 4);
    EXPECT_EQ(object.stuCenter.nX, 6);
    EXPECT_EQ(object.stuCenter.nY, 7);
    EXPECT_EQ(object.nPolygonNum, 3); // a point of one number is zero and counts
    EXPECT_EQ(object.stuContour[1].nX, 0);
    EXPECT_EQ(object.stuContour[2].nY, 6);
    EXPECT_EQ(object.rgbaMainColor, 0x10203040u);
    EXPECT_EQ(object.bColor, 1);
    EXPECT_STREQ(object.szText, "plate");
    EXPECT_STREQ(object.szObjectSubType, "Bus");
    EXPECT_EQ(object.bPicEnable, 1);
    EXPECT_EQ(object.dwOffset, 5u);
    EXPECT_EQ(object.dwFileLength, 6u);
    EXPECT_EQ(object.wWidth, 7);
    EXPECT_EQ(object.wHeight, 8);
    EXPECT_STREQ(object.pszFilePath, "/a/b.jpg");
    EXPECT_EQ(object.bShotFrame, 1);
    EXPECT_EQ(object.byTimeType, EVENT_TIME_RELATIVE);
    EXPECT_EQ(object.stuCurrentTimeStamp.dwSecond, 40u);
    EXPECT_EQ(object.stuStartTimeStamp.dwSecond, 41u);
    EXPECT_EQ(object.stuEndTimeStamp.dwSecond, 42u);
    EXPECT_EQ(object.stuOriginalBoundingBox.nTop, 2);
    EXPECT_EQ(object.stuSignBoundingBox.nRight, 7);
    EXPECT_EQ(object.dwCurrentSequence, 4000000000u);
    EXPECT_EQ(object.dwBeginSequence, 10u);
    EXPECT_EQ(object.dwEndSequence, 11u);
    EXPECT_EQ(object.llBeginFileOffset, 5000000000u);
    EXPECT_EQ(object.llEndFileOffset, 12u);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(object.byColorSimilar[i], i + 1);
    EXPECT_EQ(object.byUpperBodyColorSimilar[EVENT_COLOR_WHITE], 9);
    EXPECT_EQ(object.byLowerBodyColorSimilar[EVENT_COLOR_RED], 10);
    EXPECT_EQ(object.nRelativeID, 13);
    EXPECT_STREQ(object.szSubText, "sub");
}

TEST(EventObject, EveryKey) {
    const auto object = Object(kWholeObject);
    CheckBothForms(object.value);
    EXPECT_EQ(object->wCarLogoIndex, 3);
    EXPECT_EQ(object->wSubBrand, 4);
    EXPECT_EQ(object->wBrandYear, 2026);
    const auto extended = ObjectEx(kWholeObject);
    CheckBothForms(extended.value);
    EXPECT_EQ(extended->dwSize, 704u);
}

TEST(EventObject, ExtendedFormKnowsPersons) {
    auto object = ObjectEx(R"({"LowerBodyColor":[1,2,3,4],"Person":{"Stature":180,"Direction":"RightToLeft"}})");
    EXPECT_EQ(object->rgbaLowerBodyColor, 0x01020304u);
    EXPECT_EQ(object->bColor, 0);
    EXPECT_EQ(object->nStature, 180);
    EXPECT_EQ(object->emDirection, EVENT_PERSON_RIGHT_TO_LEFT);
    EXPECT_EQ(ObjectEx(R"({"Person":{"Direction":"LeftToRight"}})")->emDirection, EVENT_PERSON_LEFT_TO_RIGHT);
    EXPECT_EQ(ObjectEx(R"({"Person":{"Direction":"righttoleft"}})")->emDirection, 0);
}

TEST(EventObject, ActionLosesItsLastCharacter) {
    EXPECT_EQ(Object(R"({"Action":"Appear"})")->nAction, 0);
    EXPECT_EQ(Object(R"({"Action":"Appeark"})")->nAction, 1);
    EXPECT_EQ(Object(R"({"Action":"RENAMED"})")->nAction, 8);
    EXPECT_EQ(Object(R"({"Action":""})")->nAction, 0);
    EXPECT_EQ(Object(R"({"Action":"M"})")->nAction, 0);
    const char* const names[] = {"Appear", "Move", "Stay", "Remove", "Disappear", "Split", "Merge", "Rename"};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(Object(std::string("{\"Action\":\"") + names[i] + "!\"}")->nAction, i + 1);
        EXPECT_EQ(ObjectEx(std::string("{\"Action\":\"") + names[i] + "!\"}")->nAction, i + 1);
    }
}

TEST(EventObject, ListsNeedTheirNumbers) {
    EXPECT_EQ(Object(R"({"BoundingBox":[1,2,3]})")->stuBoundingBox.nLeft, 0);
    EXPECT_EQ(Object(R"({"Center":[1]})")->stuCenter.nX, 0);
    const auto color = Object(R"({"MainColor":[1,2,3]})");
    EXPECT_EQ(color->rgbaMainColor, 0u);
    EXPECT_EQ(color->bColor, 0);
    EXPECT_EQ(Object(R"({"OriginalBoundingBox":[1,2,3,4,5]})")->stuOriginalBoundingBox.nLeft, 0);
    EXPECT_EQ(Object(R"({"Sign":{"BoundingBox":[1,2,3]}})")->stuSignBoundingBox.nLeft, 0);
    std::string contour = "{\"Contour\":[";
    for (int i = 1; i <= 17; ++i)
        contour += (i > 1 ? ",[" : "[") + std::to_string(i) + ",0]";
    const auto object = Object(contour + "]}");
    EXPECT_EQ(object->nPolygonNum, 16);
    EXPECT_EQ(object->stuContour[15].nX, 16);
}

TEST(EventObject, TextsMayFillTheirFields) {
    const std::string t128(129, 't');
    const std::string t64(65, 'c');
    const std::string t20(21, 's');
    const auto object = Object("{\"ObjectType\":\"" + t128 + "\",\"Text\":\"" + t128 + "\",\"Category\":\"" + t64
                               + "\",\"SubText\":\"" + t20 + "\"}");
    EXPECT_EQ(Whole(object->szObjectType), t128.substr(1));
    EXPECT_EQ(Whole(object->szText), t128.substr(1));
    EXPECT_EQ(Whole(object->szObjectSubType), t64.substr(1));
    EXPECT_EQ(Whole(object->szSubText), t20.substr(1));
    EXPECT_EQ(object->nConfidence, 0);
    EXPECT_EQ(object->rgbaMainColor, 0u);
    EXPECT_EQ(object->wBrandYear, 0);
}

TEST(EventObject, MillisecondsOfAllStampsGoToTheCurrentOne) {
    const auto start = Object(R"({"CurrentTimeStamp":{"UTC":1000000000},"StartTimeStamp":{"UTC":1,"UTCMS":30}})");
    EXPECT_EQ(start->stuCurrentTimeStamp.dwMillisecond, 30u);
    EXPECT_EQ(start->stuStartTimeStamp.dwMillisecond, 0u);
    const char* const all = R"({"StartTimeStamp":{"UTCMS":30},"EndTimeStamp":{"UTCMS":40},
                                "CurrentTimeStamp":{"UTCMS":20}})";
    EXPECT_EQ(Object(all)->stuCurrentTimeStamp.dwMillisecond, 40u);
    EXPECT_EQ(Object(all)->stuEndTimeStamp.dwMillisecond, 0u);
    EXPECT_EQ(ObjectEx(all)->stuCurrentTimeStamp.dwMillisecond, 40u);
    EXPECT_EQ(Object(R"({"CurrentTimeStamp":{"UTCMS":20},"StartTimeStamp":{}})")->stuCurrentTimeStamp.dwMillisecond,
              20u);
}

TEST(EventObject, FileOffsetsOutOfRangeAreHarmless) {
    EXPECT_EQ(Object(R"({"BeginFileOffset":9007199254740993})")->llBeginFileOffset, 9007199254740992u);
    EXPECT_EQ(Object(R"({"BeginFileOffset":1e300})")->llBeginFileOffset, 9223372036854775807u);
    EXPECT_EQ(Object(R"({"BeginFileOffset":-1})")->llBeginFileOffset, ~std::uint64_t{0});
}

TEST(EventObject, PathOfAnImageIsText) {
    EXPECT_EQ(Object(R"({"Image":{"FilePath":7}})")->pszFilePath, nullptr);
    EXPECT_EQ(Object(R"({"Image":{}})")->pszFilePath, nullptr);
    EXPECT_EQ(Object(R"({"Image":{}})")->bPicEnable, 1);
    EXPECT_STREQ(Object(R"({"Image":{"FilePath":""}})")->pszFilePath, "");
    EXPECT_STREQ(Object("{\"Image\":{\"FilePath\":\"" + std::string(5000, 'p') + "\"}}")->pszFilePath,
                 std::string(5000, 'p').c_str());
    EXPECT_EQ(Object("{}")->bPicEnable, 0);
}

TEST(EventClass, NamesAreExactAndTrafficIsKnownToTheSecondFormOnly) {
    const char* const names[33] = {nullptr,           nullptr,       nullptr,          nullptr,
                                   nullptr,           nullptr,       nullptr,          "Normal",
                                   "Prison",          "ATM",         nullptr,          "FaceDetection",
                                   "FaceRecognition", "NumberStat",  "HeatMap",        "VideoDiagnosis",
                                   nullptr,           nullptr,       "VehicleAnalyse", nullptr,
                                   "SDFaceDetect",    "HeatMapPlan", "NumberStatPlan", "ATMFD",
                                   "Highway",         "City",        "LeTrack",        "SCR",
                                   "StereoVision",    "HumanDetect", "FaceAnalysis",   "XRayDetection",
                                   "StereoNumber"};
    for (int i = 0; i < 33; ++i) {
        if (names[i] == nullptr) continue;
        EXPECT_EQ(events::kSceneClasses.CodeOf(names[i]), i);
        EXPECT_EQ(events::kSceneClassesWithTraffic.CodeOf(names[i]), i);
    }
    EXPECT_EQ(events::kSceneClasses.CodeOf("Traffic"), 0);
    EXPECT_EQ(events::kSceneClassesWithTraffic.CodeOf("Traffic"), 6);
    EXPECT_EQ(events::kSceneClasses.CodeOf("city"), 0);
    EXPECT_EQ(events::kSceneClassesWithTraffic.CodeOf(""), 0);
}

TEST(EventPositions, StatusOfATerminal) {
    const ReadBy<EVENT_GPS_STATUS> gps(events::kGpsStatus,
                                       R"({"Time":[2026,11,20,9,30,5,7],"Longitude":[120,30,36],"Latitude":[30,0,0],
        "Altitude":1.5,"Bearing":2.5,"Speed":3.5,"SatelliteCount":4,"AntennasStatus":true,"PositioningResult":false,
        "WorkStatus":5,"AlarmPoints":[1,19,20,156,202,8,-1],"SNR":6,"Source":"InertialNavigation"})");
    EXPECT_EQ(gps->stuTime.dwYear, 2026);
    EXPECT_EQ(gps->stuTime.dwSecond, 5);
    EXPECT_EQ(gps->dLongitude, 120510000.0);
    EXPECT_EQ(gps->dLatitude, 30000000.0);
    EXPECT_EQ(gps->dAltitude, 1.5);
    EXPECT_EQ(gps->dBearing, 2.5);
    EXPECT_EQ(gps->dSpeed, 3.5);
    EXPECT_EQ(gps->nSatelliteCount, 4);
    EXPECT_EQ(gps->byAntennasStatus, EVENT_STATE_YES);
    EXPECT_EQ(gps->byPositioningResult, EVENT_STATE_NO);
    EXPECT_EQ(gps->byWorkStatus, 5);
    ASSERT_EQ(gps->nAlarmPointNum, 7);
    const std::uint32_t alarms[] = {8449, 8472, 8471, 8462, 8583, 0xFFFFFFFF, 0xFFFFFFFF};
    EXPECT_EQ(std::memcmp(gps->dwAlarmPoints, alarms, sizeof alarms), 0);
    EXPECT_EQ(gps->bySNR, 6);
    EXPECT_EQ(gps->emSource, 1);
    const ReadBy<EVENT_GPS_STATUS> none(events::kGpsStatus, R"({"Time":[1,2,3,4,5],"Longitude":[1,2]})");
    EXPECT_EQ(none->stuTime.dwYear, 0);
    EXPECT_EQ(none->dLongitude, 0);
    EXPECT_EQ(none->byAntennasStatus, EVENT_STATE_UNKNOWN);
    EXPECT_EQ(none->byPositioningResult, EVENT_STATE_UNKNOWN);
    std::string many = "{\"AlarmPoints\":[1";
    for (int i = 1; i < 130; ++i)
        many += ",1";
    EXPECT_EQ((ReadBy<EVENT_GPS_STATUS>(events::kGpsStatus, many + "]}"))->nAlarmPointNum, 128);
}

TEST(EventPositions, SourceInAnyCase) {
    const auto source = [](const std::string& name) {
        return ReadBy<EVENT_GPS_STATUS>(events::kGpsStatus, "{\"Source\":\"" + name + "\"}")->emSource;
    };
    EXPECT_EQ(source("InertialNavigation"), 1);
    EXPECT_EQ(source("inertialNAVIGATION"), 1);
    EXPECT_EQ(source("gps"), 0);
    EXPECT_EQ(source("Compass"), 0);
}

TEST(EventPositions, EveryAlarmOfATerminal) {
    const std::pair<std::int32_t, std::uint32_t> known[] = {
        {1, 8449},   {2, 8450},   {3, 8451},   {4, 8452},   {5, 8453},   {6, 8454},   {7, 8455},
        {10, 8458},  {11, 8459},  {12, 8460},  {13, 8463},  {14, 8464},  {15, 8465},  {16, 8466},
        {17, 8468},  {18, 8470},  {19, 8472},  {20, 8471},  {22, 8482},  {23, 8483},  {25, 8473},
        {26, 8474},  {27, 8475},  {28, 8476},  {30, 8478},  {32, 8479},  {33, 8480},  {34, 8481},
        {35, 8484},  {36, 8485},  {156, 8462}, {161, 8467}, {162, 8469}, {164, 8477}, {165, 8486},
        {166, 8487}, {167, 8488}, {168, 8490}, {169, 8491}, {170, 8489}, {194, 8581}, {202, 8583}};
    for (std::int32_t number = 0; number < 300; ++number) {
        std::uint32_t expected = 0xFFFFFFFF;
        for (const auto& [ours, code] : known) {
            if (ours == number) expected = code;
        }
        const ReadBy<EVENT_GPS_STATUS> gps(events::kGpsStatus, "{\"AlarmPoints\":[" + std::to_string(number) + "]}");
        EXPECT_EQ(gps->nAlarmPointNum, 1);
        EXPECT_EQ(gps->dwAlarmPoints[0], expected) << number;
    }
}

TEST(EventImages, PlaceInTheData) {
    const char* const text = R"({"Offset":1,"Length":2,"Width":3,"Height":4,"FilePath":"/p","IsDetected":true})";
    const ReadBy<EVENT_IMAGE_INFO> image(events::kImage, text);
    const ReadBy<EVENT_PERSON_IMAGE> person(events::kPersonImage, text);
    EXPECT_EQ(image->dwOffset, 1u);
    EXPECT_EQ(image->dwLength, 2u);
    EXPECT_EQ(image->wWidth, 3);
    EXPECT_EQ(image->wHeight, 4);
    EXPECT_STREQ(image->szFilePath, "/p");
    EXPECT_EQ(image->bDetected, 1);
    EXPECT_EQ(person->dwOffset, 1u);
    EXPECT_STREQ(person->pszFilePath, "/p");
    EXPECT_EQ(person->bDetected, 1);
}

TEST(EventPoints, HolesKeepTheirPlaceAndAreNotCounted) {
    EXPECT_TRUE(
        DecodeOne("TrafficRetrograde", R"({"DetectRegion":[[1,2],[3],null,7,[5,6,7]]})", [](const Delivered& event) {
            const auto& record = event.as<DEV_EVENT_TRAFFICRETROGRADE_INFO>();
            EXPECT_EQ(record.nDetectRegionNum, 2);
            EXPECT_EQ(record.stuDetectRegion[0].nY, 2);
            EXPECT_EQ(record.stuDetectRegion[1].nX, 0);
            EXPECT_EQ(record.stuDetectRegion[3].nX, 0);
            EXPECT_EQ(record.stuDetectRegion[4].nX, 5);
        }));
    std::string many = "{\"DetectRegion\":[[1,1]";
    for (int i = 2; i <= 25; ++i)
        many += ",[" + std::to_string(i) + ",0]";
    EXPECT_TRUE(DecodeOne("TrafficRetrograde", many + "]}", [](const Delivered& event) {
        const auto& record = event.as<DEV_EVENT_TRAFFICRETROGRADE_INFO>();
        EXPECT_EQ(record.nDetectRegionNum, 20);
        EXPECT_EQ(record.stuDetectRegion[19].nX, 20);
    }));
}

} // namespace
