// Intelligent events: counts, queues, crowds.
#include "events/IntelligentEvents.h"

namespace orrery::events {

using json::Value;

namespace {

// The line of a queue has two ends; what has more or fewer is none.
void ForgetOtherLines(const Value& data, std::byte* record, ReadCall&) {
    auto& event = *reinterpret_cast<DEV_EVENT_QUEUEDETECTION_INFO*>(record);
    if (data["DetectLine"].elements().size() == 2) return;
    event.nDetectLineNum = 0;
    std::memset(event.stuDetectLine, 0, sizeof event.stuDetectLine);
}

void ReadCrowdAlarm(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    Store<std::int32_t>(record + field.offset, value.asInt() & 3);
}
constexpr CustomCodec kCrowdAlarm{ReadCrowdAlarm};

PART(kCrowd, EVENT_CROWD_INFO,
     {
         FIELD(stuCenter, "Center", Record(kEventPoint)).AtLeast(2),
         FIELD(dwRadius, "Radius", UInt),
     });
PART(kCrowdRegion, EVENT_CROWD_REGION_INFO,
     {
         FIELD(dwRegionID, "RegionID", UInt),
         FIELD(dwPeopleNum, "PeopleNum", UInt),
     });

} // namespace

TABLE(kFlowStat, DEV_EVENT_FLOWSTAT_INFO,
      {
          EV_HEAD_A,
          FIELD(nLeft, "Left", Int),
          FIELD(nRight, "Right", Int),
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_FLAG_MASK,
      });

TABLE(kNumberStat, DEV_EVENT_NUMBERSTAT_INFO,
      {
          EV_HEAD_A,
          FIELD(nNumber, "Number", Int),
          FIELD(nUpperLimit, "UpperLimit", Int),
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          FIELD(nEnteredNumber, "EnteredNumber", Int),
          FIELD(nExitedNumber, "ExitedNumber", Int),
          EV_FLAG_MASK,
          EV_COUNT,
      });

TABLE(kQueueDetection, DEV_EVENT_QUEUEDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_ACTION_AND_REPEAT,
          EV_POINTS(stuDetectLine, nDetectLineNum, "DetectLine"),
          EV_COUNT,
      })
    .AfterRead(ForgetOtherLines);

TABLE(kCrowdDetection, DEV_EVENT_CROWDDETECTION_INFO,
      {
          EV_CHANNEL,
          EV_ID,
          EV_TIME_STAMP,
          EV_UTC,
          EV_ACTION_NUMBER,
          FIELD(emAlarmType, "AlarmMask", Custom(kCrowdAlarm)),
          EV_RULE_NAME,
          FIELD(nCrowdListNum),
          FIELD(stuCrowdList, "CrowdList", Record(kCrowd)).Count(AT(nCrowdListNum)),
          FIELD(nRegionListNum),
          FIELD(stuRegionList, "RegionList", Record(kCrowdRegion)).Count(AT(nRegionListNum)),
      });

} // namespace orrery::events
