// Intelligent events: lines and regions that things cross, and the paths they take.
#include "events/IntelligentEvents.h"

#include "orrery/event_codes.h"

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
         EV_POINTS(stuPoint, nPointNum, ""),
     });

} // namespace

std::uint32_t CrossLineCode(const Value& data) noexcept {
    const bool extended = !data["Objects"].isNull() || !data["Object"]["Person"].isNull();
    return extended ? ORRERY_EVENT_CROSS_LINE_EX : ORRERY_EVENT_CROSS_LINE_DETECTION;
}

// Points whose count stands behind them.
#define EV_COUNTED_POINTS(points, count, key) EV_POINT_ROW(points, count, key), FIELD(count)
// The four bytes that tell who did what.
#define EV_CROSSING(directions)                                                                                        \
    EV_ACTION, FIELD(byDirection, "Direction", Names(directions)), FIELD(byActionType, "Action", Names(kDeeds)),       \
        EV_REPEAT
#define EV_CARGO                                                                                                       \
    FIELD(nCargoChannelNum), FIELD(nCargoChannel, "Custom/CargoChannelInfo", Int).Count(AT(nCargoChannelNum))
#define EV_TRACKS FIELD(nTrackLineNum), FIELD(stuTrackLine, "Tracks", Record(kTrackLine)).Count(AT(nTrackLineNum))
#define EV_PRESET FIELD(wPresetID, "PresetID", Int)

TABLE(kCrossLineDetection, DEV_EVENT_CROSSLINEDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_FILE_INFO,
          EV_COUNTED_POINTS(stuDetectLine, nDetectLineNum, "DetectLine"),
          EV_COUNTED_POINTS(stuTrack, nTrackNum, "Track"),
          EV_CROSSING(kLineDirections),
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_CARGO,
          EV_CLASS,
          EV_PRESET,
      });

TABLE(kCrossLineEx, DEV_EVENT_CROSSLINE_EX_INFO,
      {
          FIELD(dwSize, nullptr, Size),
          EV_HEAD_A,
          FIELD(stuObject, "Object", Record(kObjectEx)),
          EV_FILE_INFO,
          EV_COUNTED_POINTS(stuDetectLine, nDetectLineNum, "DetectLine"),
          EV_COUNTED_POINTS(stuTrack, nTrackNum, "Track"),
          EV_CROSSING(kLineDirections),
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_ALL_OBJECTS,
          EV_CLASS,
      });

TABLE(kCrossRegionDetection, DEV_EVENT_CROSSREGIONDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_FILE_INFO,
          EV_COUNTED_POINTS(stuDetectRegion, nDetectRegionNum, "DetectRegion"),
          EV_COUNTED_POINTS(stuTrack, nTrackNum, "Track"),
          EV_CROSSING(kRegionDirections),
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_CARGO,
          EV_OBJECTS,
          EV_TRACKS,
          EV_CLASS,
          EV_PRESET,
      });

TABLE(kWanderDetection, DEV_EVENT_WANDERDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_OBJECTS,
          EV_TRACKS,
          EV_DETECT_REGION,
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_CLASS,
          EV_PRESET,
          FIELD(szPresetName, "PresetName", Text),
      });

TABLE(kCrossFenceDetection, DEV_EVENT_CROSSFENCEDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_POINTS(stuUpstairsLine, nUpstairsLineNum, "UpstairsLine"),
          EV_POINTS(stuDownstairsLine, nDownstairsLineNum, "DownstairsLine"),
          EV_TRACK,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_CLASS,
          FIELD(nPresetID, "PresetID", Int),
          FIELD(emDirection, "Direction", Names(kLineDirections)),
      });

TABLE(kClimbDetection, DEV_EVENT_CLIMBDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_GROUP_NUMBERS,
          EV_OBJECT,
          EV_POINTS(stuDetectLine, nDetectLineNum, "DetectLine"),
          EV_CLASS,
          EV_ACTION,
          EV_RESOLUTION,
          EV_COUNT,
          EV_REPEAT,
      });

TABLE(kLeaveDetection, DEV_EVENT_LEAVEDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_GROUP_NUMBERS,
          EV_OBJECT,
          EV_DETECT_REGION,
          EV_CLASS,
          EV_ACTION,
          EV_RESOLUTION,
          EV_REPEAT,
      });

} // namespace orrery::events
