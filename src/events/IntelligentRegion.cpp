// Intelligent events: what happens to things inside a region.
#include "events/IntelligentEvents.h"

namespace orrery::events {

namespace {

NAMES(kSpecialRegions, kFolded,
      {
          {EVENT_SPECIAL_REGION_HIGHLIGHT, "Highlight"},
          {EVENT_SPECIAL_REGION_REGULAR_BLINK, "RegularBlink"},
          {EVENT_SPECIAL_REGION_IRREGULAR_BLINK, "IrregularBlink"},
      });
NAMES(kRuns, kFolded,
      {
          {EVENT_RUN_FAST, "FastRun"},
          {EVENT_RUN_ABRUPT_SPEEDUP, "AbruptSpeedup"},
          {EVENT_RUN_ABRUPT_SLOWDOWN, "AbruptSlowdown"},
      });

} // namespace

#define EV_NAMED_PRESET FIELD(nPresetID, "PresetID", Int), FIELD(szPresetName, "PresetName", Text)

TABLE(kPasteDetection, DEV_EVENT_PASTEDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_FILE_INFO,
          EV_DETECT_REGION,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_COUNT,
          FIELD(emSpecialRegion, "SpecialRegion", Names(kSpecialRegions)),
          EV_CLASS,
      });

TABLE(kLeftDetection, DEV_EVENT_LEFTDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_DETECT_REGION,
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_CLASS,
          EV_NAMED_PRESET,
      });

TABLE(kStayDetection, DEV_EVENT_STAYDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_DETECT_REGION,
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_CLASS,
      });

// A path begins with its second point.
TABLE(kMoveDetection, DEV_EVENT_MOVEDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_DETECT_REGION,
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_CLASS,
          EV_TRACK.AtLeast(2),
      });

TABLE(kSmokeDetection, DEV_EVENT_SMOKEDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_COUNT,
          EV_CLASS,
          FIELD(nPosition, "Position", Int).Exactly(),
      });

TABLE(kElectroSparkDetection, DEV_EVENT_ELECTROSPARKDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
      });

TABLE(kRunDetection, DEV_EVENT_RUNDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          FIELD(dSpeed, "Speed", Real),
          FIELD(dTriggerSpeed, "TriggerSpeed", Real),
          EV_DETECT_REGION,
          EV_TRACK,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_CLASS,
          FIELD(emType, "Type", Names(kRuns)),
      });

TABLE(kRetrogradeDetection, DEV_EVENT_RETROGRADEDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_TRACK,
          EV_POINTS(stuDirection, nDirectionNum, "Direction"),
          EV_DETECT_REGION,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_CLASS,
      });

TABLE(kTakenAwayDetection, DEV_EVENT_TAKENAWAYDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_DETECT_REGION,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_CLASS,
          EV_NAMED_PRESET,
      });

TABLE(kParkingDetection, DEV_EVENT_PARKINGDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_DETECT_REGION,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_CLASS,
      });

TABLE(kPrisonerRiseDetection, DEV_EVENT_PRISONERRISEDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_DETECT_REGION,
          EV_FILE_INFO,
          EV_INITIAL_UTC,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
          EV_SOURCE,
          EV_COUNT,
          EV_CLASS,
      });

TABLE(kGetOutBedDetection, DEV_EVENT_GETOUTBEDDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_OBJECT,
          EV_DETECT_REGION,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
      });

} // namespace orrery::events
