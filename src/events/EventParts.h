// Tables of what the records of analyzer events share.
#pragma once

#include "events/EventCodecs.h"

namespace orrery::events {

// ---- Names -------------------------------------------------------------------------------------------------------

inline constexpr Name kSceneClassRows[] = {
    {EVENT_CLASS_NORMAL, "Normal"},
    {EVENT_CLASS_PRISON, "Prison"},
    {EVENT_CLASS_ATM, "ATM"},
    {EVENT_CLASS_FACE_DETECTION, "FaceDetection"},
    {EVENT_CLASS_FACE_RECOGNITION, "FaceRecognition"},
    {EVENT_CLASS_NUMBER_STAT, "NumberStat"},
    {EVENT_CLASS_HEAT_MAP, "HeatMap"},
    {EVENT_CLASS_VIDEO_DIAGNOSIS, "VideoDiagnosis"},
    {EVENT_CLASS_VEHICLE_ANALYSE, "VehicleAnalyse"},
    {EVENT_CLASS_SD_FACE_DETECT, "SDFaceDetect"},
    {EVENT_CLASS_HEAT_MAP_PLAN, "HeatMapPlan"},
    {EVENT_CLASS_NUMBER_STAT_PLAN, "NumberStatPlan"},
    {EVENT_CLASS_ATMFD, "ATMFD"},
    {EVENT_CLASS_HIGHWAY, "Highway"},
    {EVENT_CLASS_CITY, "City"},
    {EVENT_CLASS_LE_TRACK, "LeTrack"},
    {EVENT_CLASS_SCR, "SCR"},
    {EVENT_CLASS_STEREO_VISION, "StereoVision"},
    {EVENT_CLASS_HUMAN_DETECT, "HumanDetect"},
    {EVENT_CLASS_FACE_ANALYSIS, "FaceAnalysis"},
    {EVENT_CLASS_XRAY_DETECTION, "XRayDetection"},
    {EVENT_CLASS_STEREO_NUMBER, "StereoNumber"},
    {EVENT_CLASS_TRAFFIC, "Traffic"},
};
// "Traffic", the last row, is known to the second form only.
inline constexpr NameTable kSceneClasses = [] {
    NameTable table = ExactNames(kSceneClassRows);
    --table.count;
    return table;
}();
inline constexpr NameTable kSceneClassesWithTraffic = ExactNames(kSceneClassRows);

NAMES(kTimeTypes, kFolded,
      {
          {EVENT_TIME_ABSOLUTE, "Absolute"},
          {EVENT_TIME_RELATIVE, "Relative"},
      });

NAMES(kObjectActions, kFolded,
      {
          {EVENT_OBJECT_ACTION_APPEAR, "Appear"},
          {EVENT_OBJECT_ACTION_MOVE, "Move"},
          {EVENT_OBJECT_ACTION_STAY, "Stay"},
          {EVENT_OBJECT_ACTION_REMOVE, "Remove"},
          {EVENT_OBJECT_ACTION_DISAPPEAR, "Disappear"},
          {EVENT_OBJECT_ACTION_SPLIT, "Split"},
          {EVENT_OBJECT_ACTION_MERGE, "Merge"},
          {EVENT_OBJECT_ACTION_RENAME, "Rename"},
      });

NAMES(kSimilarColors, kExact,
      {
          {EVENT_COLOR_RED, "Red"},
          {EVENT_COLOR_YELLOW, "Yellow"},
          {EVENT_COLOR_GREEN, "Green"},
          {EVENT_COLOR_CYAN, "Cyan"},
          {EVENT_COLOR_BLUE, "Blue"},
          {EVENT_COLOR_PURPLE, "Purple"},
          {EVENT_COLOR_BLACK, "Black"},
          {EVENT_COLOR_WHITE, "White"},
      });

NAMES(kPersonDirections, kExact,
      {
          {EVENT_PERSON_LEFT_TO_RIGHT, "LeftToRight"},
          {EVENT_PERSON_RIGHT_TO_LEFT, "RightToLeft"},
      });

NAMES(kGpsSources, kFolded,
      {
          {0, "GPS"},
          {1, "InertialNavigation"},
      });

// ---- Moments, points, rectangles ---------------------------------------------------------------------------------

PART(kEventTime, EVENT_TIME,
     {
         FIELD(dwYear),
         FIELD(dwMonth),
         FIELD(dwDay),
         FIELD(dwHour),
         FIELD(dwMinute),
         FIELD(dwSecond),
         FIELD(dwMillisecond),
         FIELD(dwReserved),
     });

} // namespace orrery::events
template <>
inline constexpr const orrery::record::Table* orrery::record::kLayoutOf<EVENT_TIME> = &orrery::events::kEventTime;
namespace orrery::events {
PART(kEventCalendar, EVENT_CALENDAR,
     {
         FIELD(dwYear),
         FIELD(dwMonth),
         FIELD(dwDay),
         FIELD(dwHour),
         FIELD(dwMinute),
         FIELD(dwSecond),
     });

} // namespace orrery::events
template <>
inline constexpr const orrery::record::Table* orrery::record::kLayoutOf<EVENT_CALENDAR> =
    &orrery::events::kEventCalendar;
namespace orrery::events {
PART(kFileInfo, EVENT_FILE_INFO,
     {
         FIELD(byCount),
         FIELD(byIndex),
         FIELD(byFileTag),
         FIELD(byPictureType),
         FIELD(stuFileTime),
         FIELD(nGroupID),
     });

} // namespace orrery::events
template <>
inline constexpr const orrery::record::Table* orrery::record::kLayoutOf<EVENT_FILE_INFO> = &orrery::events::kFileInfo;
namespace orrery::events {

PART(kEventPoint, EVENT_POINT,
     {
         FIELD(nX, "", Int),
         FIELD(nY, "", Int),
     })
    .As(Shape::LongTuple);
// The first four numbers of an array, for rows that say how many it must have.
PART(kBox, CFG_RECT,
     {
         FIELD(nLeft, "", Int),
         FIELD(nTop, "", Int),
         FIELD(nRight, "", Int),
         FIELD(nBottom, "", Int),
     })
    .As(Shape::LongTuple);
// [ year, month, day, hour, minute, second ]
PART(kSixNumbers, NET_TIME,
     {
         FIELD(dwYear, "", Int),
         FIELD(dwMonth, "", Int),
         FIELD(dwDay, "", Int),
         FIELD(dwHour, "", Int),
         FIELD(dwMinute, "", Int),
         FIELD(dwSecond, "", Int),
     })
    .As(Shape::LooseTuple);

// ---- Described objects -------------------------------------------------------------------------------------------

extern const CustomCodec kObjectAction;
void StampMilliseconds(const json::Value& value, std::byte* record, ReadCall& call);
void StampMillisecondsEx(const json::Value& value, std::byte* record, ReadCall& call);

// What both forms have, in the order in which both have it.
#define ORRERY_OBJECT_ROWS_FRONT                                                                                       \
    FIELD(nObjectID, "ObjectID", Int), FIELD(szObjectType, "ObjectType", FullText),                                    \
        FIELD(nConfidence, "Confidence", Int), FIELD(nAction, "Action", Custom(kObjectAction)),                        \
        FIELD(stuBoundingBox, "BoundingBox", Record(kBox)), FIELD(stuCenter, "Center", Record(kEventPoint)),           \
        FIELD(nPolygonNum), FIELD(stuContour, "Contour", Record(kEventPoint)).Count(AT(nPolygonNum)),                  \
        FIELD(rgbaMainColor, "MainColor", PackedColor).AtLeast(4).SetsAndNeeds(AT(bColor))
#define ORRERY_OBJECT_ROWS_IMAGE                                                                                       \
    FIELD(bPicEnable, "Image", Presence), FIELD(dwOffset, "Image/Offset", UInt),                                       \
        FIELD(dwFileLength, "Image/Length", UInt), FIELD(wWidth, "Image/Width", Int),                                  \
        FIELD(wHeight, "Image/Height", Int), FIELD(pszFilePath, "Image/FilePath", OwnedText),                          \
        FIELD(bShotFrame, "ShotFrame", Int), FIELD(bColor), FIELD(byTimeType, "TimeType", Names(kTimeTypes)),          \
        FIELD(stuCurrentTimeStamp, "CurrentTimeStamp/UTC", UtcTime),                                                   \
        FIELD(stuStartTimeStamp, "StartTimeStamp/UTC", UtcTime), FIELD(stuEndTimeStamp, "EndTimeStamp/UTC", UtcTime),  \
        FIELD(stuOriginalBoundingBox, "OriginalBoundingBox", Record(kRect)),                                           \
        FIELD(stuSignBoundingBox, "Sign/BoundingBox", Record(kRect)),                                                  \
        FIELD(dwCurrentSequence, "CurrentSequence", UInt), FIELD(dwBeginSequence, "BeginSequence", UInt),              \
        FIELD(dwEndSequence, "EndSequence", UInt), FIELD(llBeginFileOffset, "BeginFileOffset", WholeReal),             \
        FIELD(llEndFileOffset, "EndFileOffset", WholeReal),                                                            \
        FIELD(byColorSimilar, "ColorSimilar", ByKeys(kSimilarColors)),                                                 \
        FIELD(byUpperBodyColorSimilar, "UpperBodyColorSimilar", ByKeys(kSimilarColors)),                               \
        FIELD(byLowerBodyColorSimilar, "LowerBodyColorSimilar", ByKeys(kSimilarColors)),                               \
        FIELD(nRelativeID, "RelativeID", Int), FIELD(szSubText, "SubText", FullText)

PART(kObject, EVENT_OBJECT_INFO,
     {
         ORRERY_OBJECT_ROWS_FRONT,
         FIELD(szText, "Text", FullText),
         FIELD(szObjectSubType, "Category", FullText),
         FIELD(wCarLogoIndex, "CarLogoIndex", Int),
         FIELD(wSubBrand, "SubBrand", Int),
         ORRERY_OBJECT_ROWS_IMAGE,
         FIELD(wBrandYear, "BrandYear", Int),
     })
    .AfterRead(StampMilliseconds);

PART(kObjectEx, EVENT_OBJECT_INFO_EX,
     {
         FIELD(dwSize, nullptr, Size),
         ORRERY_OBJECT_ROWS_FRONT,
         FIELD(rgbaLowerBodyColor, "LowerBodyColor", PackedColor).AtLeast(4),
         FIELD(szText, "Text", FullText),
         FIELD(szObjectSubType, "Category", FullText),
         ORRERY_OBJECT_ROWS_IMAGE,
         FIELD(nStature, "Person/Stature", Int),
         FIELD(emDirection, "Person/Direction", Names(kPersonDirections)),
         FIELD(byReserved),
     })
    .AfterRead(StampMillisecondsEx)
    .StartsWhenRead();

PART(kBulletHole, EVENT_BULLET_HOLE_INFO,
     {
         FIELD(nObjectID, "ObjectID", Int),
         FIELD(szObjectType, "ObjectType", Text),
         FIELD(stuBoundingBox, "BoundingBox", Record(kBox)),
         FIELD(stuCenter, "Center", Record(kEventPoint)),
         FIELD(nSequence, "Sequence", Int),
         FIELD(nScore, "Score", Int),
     });

// ---- Images and positions ----------------------------------------------------------------------------------------

PART(kImage, EVENT_IMAGE_INFO,
     {
         FIELD(dwOffset, "Offset", UInt),
         FIELD(dwLength, "Length", UInt),
         FIELD(wWidth, "Width", Int),
         FIELD(wHeight, "Height", Int),
         FIELD(szFilePath, "FilePath", Text),
         FIELD(bDetected, "IsDetected", Bool),
     });
PART(kPersonImage, EVENT_PERSON_IMAGE,
     {
         FIELD(dwOffset, "Offset", UInt),
         FIELD(dwLength, "Length", UInt),
         FIELD(wWidth, "Width", Int),
         FIELD(wHeight, "Height", Int),
         FIELD(pszFilePath, "FilePath", OwnedText),
         FIELD(bDetected, "IsDetected", Bool),
     });

PART(kGpsPoint, EVENT_GPS_POINT,
     {
         FIELD(dwLongitude, "Longitude", Degrees),
         FIELD(dwLatitude, "Latitude", Degrees),
         FIELD(dAltitude, "Altitude", Real),
         FIELD(dSpeed, "Speed", Real),
         FIELD(dBearing, "Bearing", Real),
     });

extern const CustomCodec kAlarmPoints;
PART(kGpsStatus, EVENT_GPS_STATUS,
     {
         FIELD(stuTime, "Time", Record(kSixNumbers)).AtLeast(6),
         FIELD(dLongitude, "Longitude", Degrees),
         FIELD(dLatitude, "Latitude", Degrees),
         FIELD(dAltitude, "Altitude", Real),
         FIELD(dBearing, "Bearing", Real),
         FIELD(dSpeed, "Speed", Real),
         FIELD(nSatelliteCount, "SatelliteCount", Int),
         FIELD(byAntennasStatus, "AntennasStatus", Bool).Absent(EVENT_STATE_UNKNOWN),
         FIELD(byPositioningResult, "PositioningResult", Bool).Absent(EVENT_STATE_UNKNOWN),
         FIELD(byWorkStatus, "WorkStatus", Int),
         FIELD(nAlarmPointNum),
         FIELD(dwAlarmPoints, "AlarmPoints", Custom(kAlarmPoints)).Count(AT(nAlarmPointNum)),
         FIELD(bySNR, "SNR", Int),
         FIELD(emSource, "Source", Names(kGpsSources)),
     })
    .StartsWhenRead();

} // namespace orrery::events
