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

// Made once an event; the rows of a record name what they copy from it.
struct EventContext {
    std::int32_t nChannelID;
    char szName[128];
    double dPTS;
    std::uint32_t dwPTS;
    EVENT_TIME stuUTC;
    std::uint32_t dwUTCMS;
    std::int32_t nEventID;
    double dInitialUTC;
    std::int32_t nSourceIndex;
    char szSourceDevice[260];
    std::uint32_t bIsExistAlarmRecord;
    std::uint32_t dwAlarmRecordSize;
    char szAlarmRecordPath[256];
    std::uint32_t dwCount;

    EVENT_FILE_INFO stuFileInfo;
    std::uint8_t byEventAction;
    std::uint8_t byRepeat;
    std::int32_t nAction;
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

// Reads the keys of "Data" that every event has; all else of `fields` is left as it is.
void ReadCommonKeys(const json::Value& data, EventContext& fields, ReadCall& call) noexcept;

} // namespace orrery::events

// ---- Rows that copy from the context -----------------------------------------------------------------------------

#define ORRERY_FROM_EVENT(member, source) FIELD(member, SUPPLIED(::orrery::events::EventContext, source))
#define ORRERY_SAME_FROM_EVENT(member) ORRERY_FROM_EVENT(member, member)

// The heads, field by field.
#define HEAD_A_WITH(...)                                                                                               \
    ORRERY_SAME_FROM_EVENT(nChannelID), ORRERY_SAME_FROM_EVENT(szName), __VA_ARGS__, ORRERY_SAME_FROM_EVENT(dPTS),     \
        ORRERY_SAME_FROM_EVENT(stuUTC), ORRERY_SAME_FROM_EVENT(nEventID)
#define HEAD_A HEAD_A_WITH(FIELD(byReservedHead))
#define HEAD_B                                                                                                         \
    ORRERY_SAME_FROM_EVENT(nChannelID), ORRERY_SAME_FROM_EVENT(szName), FIELD(nTriggerType, "TriggerType", Int),       \
        ORRERY_SAME_FROM_EVENT(dwPTS), ORRERY_SAME_FROM_EVENT(stuUTC), ORRERY_SAME_FROM_EVENT(nEventID)
#define HEAD_PTS                                                                                                       \
    ORRERY_SAME_FROM_EVENT(nChannelID), ORRERY_SAME_FROM_EVENT(szName), ORRERY_SAME_FROM_EVENT(dwPTS),                 \
        ORRERY_SAME_FROM_EVENT(stuUTC), ORRERY_SAME_FROM_EVENT(nEventID)
#define HEAD_C                                                                                                         \
    ORRERY_SAME_FROM_EVENT(nChannelID), ORRERY_SAME_FROM_EVENT(szName), FIELD(byReservedHead),                         \
        ORRERY_SAME_FROM_EVENT(dwPTS), ORRERY_SAME_FROM_EVENT(stuUTC), ORRERY_SAME_FROM_EVENT(nEventID)

// The closing fields.
#define FILE_INFO ORRERY_SAME_FROM_EVENT(stuFileInfo)
#define ACTION ORRERY_SAME_FROM_EVENT(byEventAction)
#define REPEAT ORRERY_SAME_FROM_EVENT(byRepeat)
#define ACTION_AND_REPEAT ACTION, FIELD(byReservedAction), REPEAT
#define FLAG_MASK ORRERY_SAME_FROM_EVENT(dwFlagMask)
#define WIDTH ORRERY_SAME_FROM_EVENT(wWidth)
#define HEIGHT ORRERY_SAME_FROM_EVENT(wHeight)
#define SOURCE ORRERY_SAME_FROM_EVENT(nSourceIndex), ORRERY_SAME_FROM_EVENT(szSourceDevice)
#define COUNT ORRERY_SAME_FROM_EVENT(dwCount)
#define ALARM_RECORD ORRERY_SAME_FROM_EVENT(bIsExistAlarmRecord), ORRERY_SAME_FROM_EVENT(dwAlarmRecordSize)
#define ALARM_RECORD_PATH ORRERY_SAME_FROM_EVENT(szAlarmRecordPath)

// Members that read the same in every record.
#define OBJECT FIELD(stuObject, "Object", Record(::orrery::events::kObject))
#define VEHICLE FIELD(stuVehicle, "Vehicle", Record(::orrery::events::kObject))
#define EVENT_CLASS FIELD(emClass, "Class", Names(::orrery::events::kSceneClasses))
#define GPS FIELD(stuGPS, "Custom/GPS", Record(::orrery::events::kGpsPoint))
#define MILLISECONDS_OF(moment, key) FIELD(moment.dwMillisecond, key, UInt).Alias()
// A list of points with its count in front: POINTS(stuTrack, nTrackNum, "Track").
#define POINT_ROW(points, count, key)                                                                                  \
    FIELD(points, key, Record(::orrery::events::kEventPoint))                                                          \
        .Count(AT(count))                                                                                              \
        .OnNull(::orrery::record::Nulls::LeaveHole)                                                                    \
        .OnRefused(::orrery::record::Nulls::LeaveHole)
#define POINTS(points, count, key) FIELD(count), POINT_ROW(points, count, key)
