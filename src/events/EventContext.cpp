#include "events/EventContext.h"

namespace orrery::events {

using json::Value;

namespace {

TABLE(kCommonKeys, EventContext, FIELD(nChannelID), FIELD(szName, "Name", FullText), FIELD(dPTS, "PTS", Real),
      FIELD(dwPTS, "PTS", WholeReal), FIELD(stuUTC, "UTC", UtcTime), FIELD(dwUTCMS, "UTCMS", UInt),
      FIELD(nEventID, "EventID", Int), FIELD(dInitialUTC, "InitialUTC", Real),
      FIELD(nSourceIndex, "SourceIndex", Int).Absent(-1), FIELD(szSourceDevice, "SourceDevice", Text),
      FIELD(bIsExistAlarmRecord, "IsExistAlarmRecord", Bool), FIELD(dwAlarmRecordSize, "AlarmRecordSize", UInt),
      FIELD(szAlarmRecordPath, "AlarmRecordPath", Text), FIELD(dwCount, "Count", UInt).Only(OnlyType::Integral),
      FIELD(stuFileInfo), FIELD(byEventAction), FIELD(byRepeat), FIELD(nAction), FIELD(dwAction), FIELD(dwFlagMask),
      FIELD(wWidth), FIELD(wHeight), FIELD(dwResolution), FIELD(szRecordFile));

} // namespace

void ReadCommonKeys(const Value& data, EventContext& fields, ReadCall& call) noexcept {
    ReadRecord(kCommonKeys, data, reinterpret_cast<std::byte*>(&fields), call);
    fields.stuUTC.dwMillisecond = fields.dwUTCMS;
    // A device that names no source has no source device either.
    if (data["SourceIndex"].isNull()) std::memset(fields.szSourceDevice, 0, sizeof fields.szSourceDevice);
}

} // namespace orrery::events
