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
// The same of its three values, which may be null.
void GroupInto(EVENT_FILE_INFO& fileInfo, const json::Value& count, const json::Value& group,
               const json::Value& index) noexcept;

// The source device of a device that names its source: one that names none has no source device either.
extern const CustomCodec kSourceDevice;

} // namespace orrery::events

// ---- Rows that copy from the context -----------------------------------------------------------------------------

#define ORRERY_FROM_EVENT(member, source) FIELD(member, SUPPLIED(::orrery::events::EventContext, source))
#define ORRERY_SAME_FROM_EVENT(member) ORRERY_FROM_EVENT(member, member)

#define EV_CHANNEL ORRERY_SAME_FROM_EVENT(nChannelID)
#define EV_FILE_INFO ORRERY_SAME_FROM_EVENT(stuFileInfo)
#define EV_ACTION ORRERY_SAME_FROM_EVENT(byEventAction)
#define EV_REPEAT ORRERY_SAME_FROM_EVENT(byRepeat)
#define EV_ACTION_AND_REPEAT EV_ACTION, FIELD(byReservedAction), EV_REPEAT
#define EV_FLAG_MASK ORRERY_SAME_FROM_EVENT(dwFlagMask)
#define EV_WIDTH ORRERY_SAME_FROM_EVENT(wWidth)
#define EV_HEIGHT ORRERY_SAME_FROM_EVENT(wHeight)
#define EV_RESOLUTION ORRERY_SAME_FROM_EVENT(dwResolution)

// ---- Members that read the same in every record ------------------------------------------------------------------

#define EV_RULE_NAME FIELD(szName, "Name", FullText)
#define EV_TIME_STAMP FIELD(dPTS, "PTS", Real)
#define EV_WHOLE_TIME_STAMP FIELD(dwPTS, "PTS", WholeReal)
#define EV_UTC FIELD(stuUTC, "UTC", UtcTime), EV_MILLISECONDS_OF(stuUTC, "UTCMS")
#define EV_INITIAL_UTC FIELD(dInitialUTC, "InitialUTC", Real)
#define EV_ID FIELD(nEventID, "EventID", Int)
#define EV_SOURCE_DEVICE FIELD(szSourceDevice, "SourceDevice", Custom(::orrery::events::kSourceDevice))
#define EV_SOURCE FIELD(nSourceIndex, "SourceIndex", Int).Absent(-1), EV_SOURCE_DEVICE
#define EV_COUNT FIELD(dwCount, "Count", UInt).Only(OnlyType::Integral)
#define EV_ALARM_RECORD                                                                                                \
    FIELD(bIsExistAlarmRecord, "IsExistAlarmRecord", Bool), FIELD(dwAlarmRecordSize, "AlarmRecordSize", UInt)
#define EV_ALARM_RECORD_PATH FIELD(szAlarmRecordPath, "AlarmRecordPath", Text)

// The heads, field by field.
#define EV_HEAD_A_WITH(...) EV_CHANNEL, EV_RULE_NAME, __VA_ARGS__, EV_TIME_STAMP, EV_UTC, EV_ID
#define EV_HEAD_A EV_HEAD_A_WITH(FIELD(byReservedHead))
#define EV_HEAD_B EV_CHANNEL, EV_RULE_NAME, FIELD(nTriggerType, "TriggerType", Int), EV_WHOLE_TIME_STAMP, EV_UTC, EV_ID
#define EV_HEAD_PTS EV_CHANNEL, EV_RULE_NAME, EV_WHOLE_TIME_STAMP, EV_UTC, EV_ID
#define EV_HEAD_C EV_CHANNEL, EV_RULE_NAME, FIELD(byReservedHead), EV_WHOLE_TIME_STAMP, EV_UTC, EV_ID

#define EV_OBJECT FIELD(stuObject, "Object", Record(::orrery::events::kObject))
#define EV_VEHICLE FIELD(stuVehicle, "Vehicle", Record(::orrery::events::kObject))
#define EV_CLASS FIELD(emClass, "Class", Names(::orrery::events::kSceneClasses))
#define EV_GPS FIELD(stuGPS, "Custom/GPS", Record(::orrery::events::kGpsPoint))
#define EV_MILLISECONDS_OF(moment, key) FIELD(moment.dwMillisecond, key, UInt).Alias()
// A list of points with its count in front: POINTS(stuTrack, nTrackNum, "Track").
#define EV_POINT_ROW(points, count, key)                                                                               \
    FIELD(points, key, Record(::orrery::events::kEventPoint))                                                          \
        .Count(AT(count))                                                                                              \
        .NullElement(::orrery::record::Nulls::LeaveHole)                                                               \
        .RefusedElement(::orrery::record::Nulls::LeaveHole)
#define EV_POINTS(points, count, key) FIELD(count), EV_POINT_ROW(points, count, key)
