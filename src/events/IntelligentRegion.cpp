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

#define PRESET FIELD(nPresetID, "PresetID", Int), FIELD(szPresetName, "PresetName", Text)

TABLE(kPasteDetection, DEV_EVENT_PASTEDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          FILE_INFO,
          DETECT_REGION,
          ACTION_AND_REPEAT,
          FLAG_MASK,
          COUNT,
          FIELD(emSpecialRegion, "SpecialRegion", Names(kSpecialRegions)),
          EVENT_CLASS,
      });

TABLE(kLeftDetection, DEV_EVENT_LEFTDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          FILE_INFO,
          ACTION_AND_REPEAT,
          DETECT_REGION,
          FLAG_MASK,
          SOURCE,
          COUNT,
          EVENT_CLASS,
          PRESET,
      });

TABLE(kStayDetection, DEV_EVENT_STAYDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          FILE_INFO,
          ACTION_AND_REPEAT,
          DETECT_REGION,
          FLAG_MASK,
          SOURCE,
          COUNT,
          EVENT_CLASS,
      });

// A path begins with its second point.
TABLE(kMoveDetection, DEV_EVENT_MOVEDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          FILE_INFO,
          ACTION_AND_REPEAT,
          DETECT_REGION,
          FLAG_MASK,
          SOURCE,
          COUNT,
          EVENT_CLASS,
          TRACK.AtLeast(2),
      });

TABLE(kSmokeDetection, DEV_EVENT_SMOKEDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          FILE_INFO,
          ACTION_AND_REPEAT,
          FLAG_MASK,
          COUNT,
          EVENT_CLASS,
          FIELD(nPosition, "Position", Int).Exactly(),
      });

TABLE(kElectroSparkDetection, DEV_EVENT_ELECTROSPARKDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          FILE_INFO,
          ACTION_AND_REPEAT,
          FLAG_MASK,
      });

TABLE(kRunDetection, DEV_EVENT_RUNDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          FIELD(dSpeed, "Speed", Real),
          FIELD(dTriggerSpeed, "TriggerSpeed", Real),
          DETECT_REGION,
          TRACK,
          FILE_INFO,
          ACTION_AND_REPEAT,
          FLAG_MASK,
          SOURCE,
          COUNT,
          EVENT_CLASS,
          FIELD(emType, "Type", Names(kRuns)),
      });

TABLE(kRetrogradeDetection, DEV_EVENT_RETROGRADEDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          TRACK,
          POINTS(stuDirection, nDirectionNum, "Direction"),
          DETECT_REGION,
          FILE_INFO,
          ACTION_AND_REPEAT,
          FLAG_MASK,
          SOURCE,
          COUNT,
          EVENT_CLASS,
      });

TABLE(kTakenAwayDetection, DEV_EVENT_TAKENAWAYDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          DETECT_REGION,
          FILE_INFO,
          ACTION_AND_REPEAT,
          FLAG_MASK,
          SOURCE,
          COUNT,
          EVENT_CLASS,
          PRESET,
      });

TABLE(kParkingDetection, DEV_EVENT_PARKINGDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          DETECT_REGION,
          FILE_INFO,
          ACTION_AND_REPEAT,
          FLAG_MASK,
          SOURCE,
          COUNT,
          EVENT_CLASS,
      });

TABLE(kPrisonerRiseDetection, DEV_EVENT_PRISONERRISEDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          DETECT_REGION,
          FILE_INFO,
          INITIAL_UTC,
          ACTION_AND_REPEAT,
          FLAG_MASK,
          SOURCE,
          COUNT,
          EVENT_CLASS,
      });

TABLE(kGetOutBedDetection, DEV_EVENT_GETOUTBEDDETECTION_INFO,
      {
          HEAD_A,
          OBJECT,
          DETECT_REGION,
          FILE_INFO,
          ACTION_AND_REPEAT,
          FLAG_MASK,
      });

} // namespace orrery::events
