// What a scene holds, by its type. Whoever reads a scene reads its detail with ReadSceneDetail, never with the table
// alone: the table has the keys of all types.
#pragma once

#include "analyse/RuleParts.h"
#include "frame/record/Engine.h"

#include "orrery/scenes.h"

#include <span>
#include <string_view>

namespace orrery {

namespace scenes {

using namespace record;
using rules::kCorner;

// ---- Texts of enumerations ----

NAMES(kLineTypes, kFolded,
      {
          {CFG_LINE_TYPE_WHITE_SOLID, "WhiteSolid"},
          {CFG_LINE_TYPE_WHITE_DOTTED, "WhiteDotted"},
          {CFG_LINE_TYPE_YELLOW, "Yellow"},
      });

NAMES(kDrivingDirections, kFolded,
      {
          {CFG_DRIVING_APPROACH, "Approach"},
          {CFG_DRIVING_LEAVE, "Leave"},
      });

NAMES(kLaneRanks, kFolded,
      {
          {CFG_LANE_RANK_NONE, ""},
          {CFG_LANE_RANK_RAPID, "Rapid"},
          {CFG_LANE_RANK_TRUNK, "Trunk"},
          {CFG_LANE_RANK_SUB_TRUNK, "SubTrunk"},
          {CFG_LANE_RANK_BRANCH, "Branch"},
      });

NAMES(kLightGroupDirections, kFolded,
      {
          {CFG_LIGHT_GROUP_HORIZONTAL, "Horizontal"},
          {CFG_LIGHT_GROUP_VERTICAL, "Vertical"},
      });

NAMES(kReportModes, kFolded,
      {
          {CFG_REPORT_MODE_ALL, "all"},
          {CFG_REPORT_MODE_PLATE, "plate"},
      });

NAMES(kJudgments, kFolded,
      {
          {CFG_JUDGMENT_LANE, "Lane"},
          {CFG_JUDGMENT_DIRECTION, "Direction"},
          {CFG_JUDGMENT_BOTH, "Both"},
      });

NAMES(kLightColorTypes, kFolded,
      {
          {CFG_LIGHT_COLOR_VIDEO, "Video"},
          {CFG_LIGHT_COLOR_PICTURE, "Picture"},
      });

NAMES(kLightColorTimes, kFolded,
      {
          {CFG_LIGHT_COLOR_DAY, "Day"},
          {CFG_LIGHT_COLOR_NIGHT, "Night"},
      });

NAMES(kFaceSizes, kFolded,
      {
          {CFG_FACE_SIZE_SMALL, "SmallFace"},
          {CFG_FACE_SIZE_LARGE, "LargeFace"},
          {CFG_FACE_SIZE_BOTH, "Both"},
      });

// ---- Lanes ----

// Three texts of one list: where the cars of a lane drive, come from and go to.
extern const CustomCodec kDriving;
bool HasOneDirection(const std::byte* lane);
// The rank, which is not read behind a list of driving directions that is cut short.
void ReadRank(const json::Value& value, std::byte* lane, ReadCall& call);

#define SHAPE(count, points, key)                                                                                      \
    FIELD(count), FIELD(points, key, Record(kCorner))                                                                  \
                      .Count(AT(count))                                                                                \
                      .NullElement(Nulls::LeaveHole)                                                                   \
                      .RefusedElement(Nulls::LeaveHole)
// A line that devices send when they have it, empty or not.
#define FLAGGED_LINE(flag, count, points, key) FIELD(flag, key, Presence), SHAPE(count, points, key).WriteIf(AT(flag))
#define TEXTS(count, texts, key) FIELD(count), FIELD(texts, key, Text).Count(AT(count))

PART(kLane, CFG_LANE_INFO,
     {
         FIELD(nNumber, "Number", Int),
         FIELD(nDirection, "Direction", Int).Only(OnlyType::Integer).WriteIf(HasOneDirection),
         SHAPE(nLeftLinePoint, stuLeftLine, "LeftLine"),
         FIELD(nLeftLineType, "LeftLineType", Names(kLineTypes)),
         SHAPE(nRightLinePoint, stuRightLine, "RightLine"),
         FIELD(nRightLineType, "RightLineType", Names(kLineTypes)),
         FIELD(bDirectionList),
         TEXTS(nDirectionNum, szDirection, "Direction").SetsAndNeeds(AT(bDirectionList)).AtLeast(1),
         SHAPE(nStopLinePoint, stuStopLine, "StopLine"),
         FIELD(nTrafficLightNumber, "TrafficLightNumber", Int),
         FLAGGED_LINE(abDetectLine, nDetectLinePoint, stuDetectLine, "DetectLine"),
         FLAGGED_LINE(abPreLine, nPreLinePoint, stuPreLine, "PreLine"),
         FLAGGED_LINE(abPostLine, nPostLinePoint, stuPostLine, "PostLine"),
         FIELD(nDrivingDirection, "DrivingDirection", Custom(kDriving)).Coded(kDrivingDirections),
         FIELD(szDrivingFrom),
         FIELD(szDrivingTo),
         FIELD(nRank, "Rank", Names(kLaneRanks)).WriteOnly(),
     })
    .AfterRead(ReadRank);

// ---- Lights ----

PART(kLight, CFG_LIGHT_ATTRIBUTE,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nYellowTime, "YellowTime", Int),
         TEXTS(nTypeNum, szTypes, "Types"),
         TEXTS(nDirectionNum, szDirections, "Direction"),
     });

inline constexpr TypedTable<CFG_RECT> kLightArea = kRect.As(Shape::LongTuple);

PART(kLightGroup, CFG_LIGHT_GROUP_INFO,
     {
         FIELD(nNumber, "Number", Int),
         FIELD(stuArea, "Area", Record(kLightArea)),
         FIELD(nDirection, "Direction", Names(kLightGroupDirections)),
         FIELD(bExternalDetection, "ExternalDetection", Bool),
         FIELD(bSwingDetection, "SwingDetection", Bool),
         FIELD(nLightNum),
         FIELD(stuLights, "LightAttribute", Record(kLight)).Count(AT(nLightNum)),
     });

PART(kLightColorLevel, CFG_LIGHT_COLOR_LEVEL,
     {
         FIELD(nType, "Type", Names(kLightColorTypes)),
         FIELD(nTime, "Time", Names(kLightColorTimes)),
         FIELD(nLevel, "Level", Int),
     });

PART(kAdjustLightColor, CFG_ADJUST_LIGHT_COLOR,
     {
         FIELD(nMode, "Mode", Int),
         FIELD(bEnable, "Enable", Bool),
         FIELD(nLevel, "Level", Int),
         FIELD(bVideoEnable, "VideoEnable", Bool),
         FIELD(stuLevelSeparate, "LevelSeparate", Record(kLightColorLevel)).Exactly(),
     });

// ---- Parking ----

PART(kShieldArea, CFG_SHIELD_AREA,
     {
         SHAPE(nPointNum, stuPoints, ""),
     });

PART(kParkingSpace, CFG_SCENE_PARKING_SPACE,
     {
         FIELD(nNumber, "Number", Int),
         SHAPE(nAreaPoint, stuArea, "Area"),
         FIELD(nShieldAreaNum),
         FIELD(stuShieldAreas, "ShieldArea", Record(kShieldArea)).Count(AT(nShieldAreaNum)),
     });

// ---- The detail ----

// Both points or none.
extern const CustomCodec kLandline;

inline constexpr TypedTable<CFG_POINT> kLongPoint = kPoint.As(Shape::LongTuple);

// clang-format off
#define DETAIL_OF_TRAFFIC \
    FIELD(stuNearDetectPoint, "NearDetectPoint", Record(kLongPoint)), \
    FIELD(stuFarDetectPoint, "FarDetectPoint", Record(kLongPoint)), \
    FIELD(nNearDistance, "NearDistance", Int), \
    FIELD(nFarDistance, "FarDistance", Int), \
    FIELD(szSubType, "Type", Text), \
    FIELD(nLaneNum), \
    FIELD(stuLanes, "Lanes", Record(kLane)).Count(AT(nLaneNum)), \
    TEXTS(nPlateHintNum, szPlateHints, "PlateHints"), \
    FIELD(nLightGroupNum), \
    FIELD(stuLightGroups, "LightGroups", Record(kLightGroup)).Count(AT(nLightGroupNum)), \
    FIELD(bHangingWordPlate, "HangingWordPlate", Bool), \
    FIELD(bNonStdPolicePlate, "NonStdPolicePlate", Bool), \
    FIELD(bYellowPlateLetter, "YellowPlateLetter", Bool), \
    FIELD(byReportMode, "ReportMode", Names(kReportModes)), \
    FIELD(byPlateMatch, "PlateMatch", Int), \
    FIELD(byJudgment, "Judgment", Names(kJudgments)), \
    SHAPE(nLeftDivisionPoint, stuLeftDivisionLine, "LeftDivisionLine"), \
    SHAPE(nRightDivisionPoint, stuRightDivisionLine, "RightDivisionLine"), \
    FIELD(stuAdjustLightColor, "AdjustLightColor", Record(kAdjustLightColor)), \
    FIELD(nParkingSpaceNum), \
    FIELD(stuParkingSpaces, "ParkingSpaces", Record(kParkingSpace)).Count(AT(nParkingSpaceNum)), \
    FIELD(bFaceScene)
// clang-format on
// clang-format off
#define DETAIL_OF_OTHERS \
    SHAPE(nMainDirectionNum, stuMainDirection, "MainDirection"), \
    FIELD(byFaceAngleDown, "FaceAngleDown", Int), \
    FIELD(byFaceAngleUp, "FaceAngleUp", Int), \
    FIELD(byFaceAngleLeft, "FaceAngleLeft", Int), \
    FIELD(byFaceAngleRight, "FaceAngleRight", Int), \
    FIELD(nDetectType, "DetectType", Names(kFaceSizes)), \
    FIELD(dCameraAngle, "CameraAngle", Real), \
    FIELD(stuLandline, "Landline", Custom(kLandline)).PointsTo(kPoint)
// clang-format on

// The height and the distance of the camera stand under the same keys for scenes with faces and for others.
PART(kSceneDetail, CFG_SCENE_DETAIL_INFO,
     {
         FIELD(dCameraHeight, "CameraHeight", Real),
         FIELD(dCameraDistance, "CameraDistance", Real),
         DETAIL_OF_TRAFFIC,
         FIELD(dFaceCameraHeight),
         FIELD(dFaceCameraDistance),
         DETAIL_OF_OTHERS,
     });
PART(kFaceDetail, CFG_SCENE_DETAIL_INFO,
     {
         FIELD(dCameraHeight),
         FIELD(dCameraDistance),
         DETAIL_OF_TRAFFIC,
         FIELD(dFaceCameraHeight, "CameraHeight", Real),
         FIELD(dFaceCameraDistance, "CameraDistance", Real),
         DETAIL_OF_OTHERS,
     });
#undef DETAIL_OF_OTHERS
#undef DETAIL_OF_TRAFFIC

PART(kSceneSubDetail, CFG_SCENE_SUBDETAIL_INFO,
     {
         FIELD(szType, "Type", Text),
         TEXTS(nPlateHintNum, szPlateHints, "PlateHints"),
         FIELD(nLaneNum),
         FIELD(stuLanes, "Lanes", Record(kLane)).Count(AT(nLaneNum)),
     });

#undef FLAGGED_LINE
#undef TEXTS
#undef SHAPE

// Keys of a detail that go together.
enum Group : unsigned {
    kNoGroup = 0,
    kTraffic = 1,
    kPlateHints = 2,
    kFaces = 4,
    kNormal = 8,
};

// The keys that a scene of this type has; none for a type that is not known. Case counts.
Group GroupOfScene(std::string_view type) noexcept;

// Reads the keys of a type over what the record holds.
void ReadSceneDetail(std::string_view type, const json::Value& detail, std::byte* record, ReadCall& call) noexcept;

// Writes the keys of all these types as one object under the current key. The log is told of a type that is not known.
void WriteSceneDetail(std::span<const std::string_view> types, const std::byte* record, WriteCall& call) noexcept;

} // namespace scenes

using scenes::kSceneDetail;

} // namespace orrery
