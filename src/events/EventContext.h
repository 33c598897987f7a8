// What the records of one event share besides the text of their own keys: the head, the file info, the closing fields.
#pragma once

#include "events/EventParts.h"

namespace orrery::events {

// What a notification says about where its events were recorded. All empty on the exported road.
struct EventSourceInfo {
    char szFilePath[256];
    std::int32_t nRepeat;
    char szRecordFile[128];
    char szFTPPath[256];
    char szVideoPath[256];
};

// What a record's rows copy because it is not in the event's own data. Only what differs from event to event is set for
// each.
struct EventContext {
    std::int32_t nChannelID;
    EVENT_FILE_INFO stuFileInfo;
    std::uint8_t byEventAction;
    std::uint8_t byRepeat;
    std::int32_t nAction;
    std::uint32_t dwAction;
    std::uint32_t dwFlagMask;
    std::uint16_t wWidth;
    std::uint16_t wHeight;
    std::uint32_t dwResolution; // the height in the upper half
    char szRecordFile[128];
};

// What the calls for one event carry along: the rows copy from `fields`, functions beside the tables see the rest.
struct EventCall {
    EventContext fields;
    const EventSourceInfo* source;
    const json::Value* event; // the event itself, whose "Data" the record is read from
};
static_assert(std::is_standard_layout_v<EventCall> && offsetof(EventCall, fields) == 0);

inline const EventCall& EventOf(const ReadCall& call) noexcept {
    return *static_cast<const EventCall*>(call.context);
}

// The group that a value names, key by key; what it does not name stays.
void ReadGroup(const json::Value& value, EVENT_FILE_INFO& fileInfo) noexcept;

// The source device of a device that names its source: one that names none has no source device either.
extern const CustomCodec kSourceDevice;

} // namespace orrery::events

// ---- Rows that copy from the context -----------------------------------------------------------------------------

#define ORRERY_FROM_EVENT(member, source) FIELD(member, SUPPLIED(::orrery::events::EventContext, source))
#define ORRERY_SAME_FROM_EVENT(member) ORRERY_FROM_EVENT(member, member)

#define CHANNEL ORRERY_SAME_FROM_EVENT(nChannelID)
#define FILE_INFO ORRERY_SAME_FROM_EVENT(stuFileInfo)
#define ACTION ORRERY_SAME_FROM_EVENT(byEventAction)
#define REPEAT ORRERY_SAME_FROM_EVENT(byRepeat)
#define ACTION_AND_REPEAT ACTION, FIELD(byReservedAction), REPEAT
#define FLAG_MASK ORRERY_SAME_FROM_EVENT(dwFlagMask)
#define WIDTH ORRERY_SAME_FROM_EVENT(wWidth)
#define HEIGHT ORRERY_SAME_FROM_EVENT(wHeight)
#define RESOLUTION ORRERY_SAME_FROM_EVENT(dwResolution)

// ---- Members that read the same in every record ------------------------------------------------------------------

#define RULE_NAME FIELD(szName, "Name", FullText)
#define TIME_STAMP FIELD(dPTS, "PTS", Real)
#define WHOLE_TIME_STAMP FIELD(dwPTS, "PTS", WholeReal)
#define UTC FIELD(stuUTC, "UTC", UtcTime), MILLISECONDS_OF(stuUTC, "UTCMS")
#define INITIAL_UTC FIELD(dInitialUTC, "InitialUTC", Real)
#define EVENT_ID FIELD(nEventID, "EventID", Int)
#define SOURCE_DEVICE FIELD(szSourceDevice, "SourceDevice", Custom(::orrery::events::kSourceDevice))
#define SOURCE FIELD(nSourceIndex, "SourceIndex", Int).Absent(-1), SOURCE_DEVICE
#define COUNT FIELD(dwCount, "Count", UInt).Only(OnlyType::Integral)
#define ALARM_RECORD                                                                                                   \
    FIELD(bIsExistAlarmRecord, "IsExistAlarmRecord", Bool), FIELD(dwAlarmRecordSize, "AlarmRecordSize", UInt)
#define ALARM_RECORD_PATH FIELD(szAlarmRecordPath, "AlarmRecordPath", Text)

// The heads, field by field.
#define HEAD_A_WITH(...) CHANNEL, RULE_NAME, __VA_ARGS__, TIME_STAMP, UTC, EVENT_ID
#define HEAD_A HEAD_A_WITH(FIELD(byReservedHead))
#define HEAD_B CHANNEL, RULE_NAME, FIELD(nTriggerType, "TriggerType", Int), WHOLE_TIME_STAMP, UTC, EVENT_ID
#define HEAD_PTS CHANNEL, RULE_NAME, WHOLE_TIME_STAMP, UTC, EVENT_ID
#define HEAD_C CHANNEL, RULE_NAME, FIELD(byReservedHead), WHOLE_TIME_STAMP, UTC, EVENT_ID

#define OBJECT FIELD(stuObject, "Object", Record(::orrery::events::kObject))
#define VEHICLE FIELD(stuVehicle, "Vehicle", Record(::orrery::events::kObject))
#define EVENT_CLASS FIELD(emClass, "Class", Names(::orrery::events::kSceneClasses))
#define GPS FIELD(stuGPS, "Custom/GPS", Record(::orrery::events::kGpsPoint))
#define MILLISECONDS_OF(moment, key) FIELD(moment.dwMillisecond, key, UInt).Alias()
// A list of points with its count in front: POINTS(stuTrack, nTrackNum, "Track").
#define POINT_ROW(points, count, key)                                                                                  \
    FIELD(points, key, Record(::orrery::events::kEventPoint))                                                          \
        .Count(AT(count))                                                                                              \
        .NullElement(::orrery::record::Nulls::LeaveHole)                                                               \
        .RefusedElement(::orrery::record::Nulls::LeaveHole)
#define POINTS(points, count, key) FIELD(count), POINT_ROW(points, count, key)
