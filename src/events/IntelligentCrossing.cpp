// Intelligent events: lines and regions that things cross, and the paths they take.
#include "events/IntelligentEvents.h"

namespace orrery::events {

using json::Value;

namespace {

NAMES(kLineDirections, kFolded,
      {
          {EVENT_LEFT_TO_RIGHT, "LeftToRight"},
          {EVENT_RIGHT_TO_LEFT, "RightToLeft"},
      });
NAMES(kRegionDirections, kFolded,
      {
          {EVENT_REGION_ENTER, "Enter"},
          {EVENT_REGION_LEAVE, "Leave"},
          {EVENT_REGION_APPEAR, "Appear"},
          {EVENT_REGION_DISAPPEAR, "Disappear"},
      });
NAMES(kDeeds, kFolded,
      {
          {EVENT_DEED_APPEAR, "Appear"},
          {EVENT_DEED_DISAPPEAR, "Disappear"},
          {EVENT_DEED_INSIDE, "Inside"},
          {EVENT_DEED_CROSS, "Cross"},
      });

PART(kTrackLine, EVENT_TRACK_LINE,
     {
         POINTS(stuPoint, nPointNum, ""),
     });

constexpr std::uint32_t kCrossLine = 2;
constexpr std::uint32_t kCrossLineExtended = 337;

} // namespace

std::uint32_t CrossLineCode(const Value& data) noexcept {
    const bool extended = !data["Objects"].isNull() || !data["Object"]["Person"].isNull();
    return extended ? kCrossLineExtended : kCrossLine;
}

// Points whose count stands behind them.
#define COUNTED_POINTS(points, count, key) POINT_ROW(points, count, key), FIELD(count)
// The four bytes that tell who did what.
#define CROSSING(directions)                                                                                           \
    ACTION, FIELD(byDirection, "Direction", Names(directions)), FIELD(byActionType, "Action", Names(kDeeds)), REPEAT
#define CARGO FIELD(nCargoChannelNum), FIELD(nCargoChannel, "Custom/CargoChannelInfo", Int).Count(AT(nCargoChannelNum))
#define TRACKS FIELD(nTrackLineNum), FIELD(stuTrackLine, "Tracks", Record(kTrackLine)).Count(AT(nTrackLineNum))
#define PRESET FIELD(wPresetID, "PresetID", Int)

TABLE(kCrossLineDetection, DEV_EVENT_CROSSLINEDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          FILE_INFO,
          COUNTED_POINTS(stuDetectLine, nDetectLineNum, "DetectLine"),
          COUNTED_POINTS(stuTrack, nTrackNum, "Track"),
          CROSSING(kLineDirections),
          FLAG_MASK,
          SOURCE,
          COUNT,
          CARGO,
          EVENT_CLASS,
          PRESET,
      });

TABLE(kCrossLineEx, DEV_EVENT_CROSSLINE_EX_INFO,
      {
          FIELD(dwSize, nullptr, Size),
          HEAD_A,
          FIELD(stuObject, "Object", Record(kObjectEx)),
          FILE_INFO,
          COUNTED_POINTS(stuDetectLine, nDetectLineNum, "DetectLine"),
          COUNTED_POINTS(stuTrack, nTrackNum, "Track"),
          CROSSING(kLineDirections),
          FLAG_MASK,
          SOURCE,
          COUNT,
          ALL_OBJECTS,
          EVENT_CLASS,
      });

TABLE(kCrossRegionDetection, DEV_EVENT_CROSSREGIONDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          FILE_INFO,
          COUNTED_POINTS(stuDetectRegion, nDetectRegionNum, "DetectRegion"),
          COUNTED_POINTS(stuTrack, nTrackNum, "Track"),
          CROSSING(kRegionDirections),
          FLAG_MASK,
          SOURCE,
          COUNT,
          CARGO,
          OBJECTS,
          TRACKS,
          EVENT_CLASS,
          PRESET,
      });

TABLE(kWanderDetection, DEV_EVENT_WANDERDETECTION_INFO,
      {
          HEAD_A,
          FILE_INFO,
          ACTION_AND_REPEAT,
          OBJECTS,
          TRACKS,
          DETECT_REGION,
          FLAG_MASK,
          SOURCE,
          COUNT,
          EVENT_CLASS,
          PRESET,
          FIELD(szPresetName, "PresetName", Text),
      });

TABLE(kCrossFenceDetection, DEV_EVENT_CROSSFENCEDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          POINTS(stuUpstairsLine, nUpstairsLineNum, "UpstairsLine"),
          POINTS(stuDownstairsLine, nDownstairsLineNum, "DownstairsLine"),
          TRACK,
          FILE_INFO,
          ACTION_AND_REPEAT,
          FLAG_MASK,
          SOURCE,
          COUNT,
          EVENT_CLASS,
          FIELD(nPresetID, "PresetID", Int),
          FIELD(emDirection, "Direction", Names(kLineDirections)),
      });

TABLE(kClimbDetection, DEV_EVENT_CLIMBDETECTION_INFO,
      {
          HEAD_A,
          GROUP_NUMBERS,
          OBJECT,
          POINTS(stuDetectLine, nDetectLineNum, "DetectLine"),
          EVENT_CLASS,
          ACTION,
          RESOLUTION,
          COUNT,
          REPEAT,
      });

TABLE(kLeaveDetection, DEV_EVENT_LEAVEDETECTION_INFO,
      {
          HEAD_A,
          GROUP_NUMBERS,
          OBJECT,
          DETECT_REGION,
          EVENT_CLASS,
          ACTION,
          RESOLUTION,
          REPEAT,
      });

} // namespace orrery::events
