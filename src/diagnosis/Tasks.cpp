#include "diagnosis/Diagnosis.h"
#include "diagnosis/DiagnosisParts.h"
#include "frame/record/Engine.h"

#include <charconv>

namespace orrery {

using namespace record;
using json::Value;

namespace {

NAMES(kStreams, kFolded.Unknown(CFG_DIAGNOSIS_STREAM_UNKNOWN).OutsideWrites(""),
      {
          {CFG_DIAGNOSIS_STREAM_MAIN, "Main"},
          {CFG_DIAGNOSIS_STREAM_EXTRA1, "Extra1"},
          {CFG_DIAGNOSIS_STREAM_EXTRA2, "Extra2"},
          {CFG_DIAGNOSIS_STREAM_EXTRA3, "Extra3"},
          {CFG_DIAGNOSIS_STREAM_SNAPSHOT, "Snapshot"},
          {CFG_DIAGNOSIS_STREAM_OBJECT, "Object"},
      });

NAMES(kServiceTypes, kExact.Unknown(CFG_REMOTE_SERVICE_AUTO).OutsideWrites(""),
      {
          {CFG_REMOTE_SERVICE_AUTO, "AUTO"},
          {CFG_REMOTE_SERVICE_TCP, "TCP"},
          {CFG_REMOTE_SERVICE_UDP, "UDP"},
          {CFG_REMOTE_SERVICE_MCAST, "MCAST"},
      });

// ---- Tasks ----

PART(kVideoInput, CFG_DIAGNOSIS_VIDEOINPUT,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(szName, "Name", Text),
         FIELD(szControlID, "ControlID", Text),
         FIELD(szMainStreamUrl, "MainStreamUrl", Text),
         FIELD(szExtraStreamUrl, "ExtraStreamUrl", Text),
         FIELD(nServiceType, "ServiceType", Names(kServiceTypes)),
     });

PART(kDevice, CFG_DIAGNOSIS_DEVICE,
     {
         FIELD(szAddress, "Address", Text),
         FIELD(nPort, "Port", Int),
         FIELD(szUserName, "UserName", Text),
         FIELD(szPassword, "Password", Text),
         FIELD(szProtocolType, "ProtocolType", Text),
         FIELD(pVideoInputs, "VideoInputs", Record(kVideoInput))
             .Always()
             .Capacity(AT(nVideoInputMax))
             .Count(AT(nVideoInputNum))
             .CountsWithoutArray(),
         FIELD(nVideoInputMax),
         FIELD(nVideoInputNum),
     });

using Source = CFG_DIAGNOSIS_SOURCE;

// A source of no device, or of one without the name or address that its kind promises, means nothing to a server.
bool IsOfADevice(const std::byte* source) {
    const bool isNamed = MEMBER(source, Source, nDeviceKind) != 0;
    const bool isTold = MEMBER(source, Source, nDeviceInfoKind) != 0;
    const auto isEmpty = [&](std::size_t text) { return source[text] == std::byte{0}; };
    if (isNamed && isEmpty(offsetof(Source, szDevice))) return false;
    if (isTold && isEmpty(offsetof(Source, stuDeviceInfo) + offsetof(CFG_DIAGNOSIS_DEVICE, szAddress))) return false;
    return isNamed || isTold;
}
bool StartsAtATime(const std::byte* source) {
    return MEMBER(source, Source, bStartTime) == 1;
}

PART(kSource, CFG_DIAGNOSIS_SOURCE,
     {
         FIELD(nDeviceKind),
         FIELD(nDeviceInfoKind),
         FIELD(szDevice, "Device", Text).SetsAndNeeds(AT(nDeviceKind)),
         FIELD(stuDeviceInfo, "DeviceInfo", Record(kDevice)).SetsAndNeeds(AT(nDeviceInfoKind)),
         FIELD(nVideoChannel, "VideoChannel", Int),
         FIELD(nVideoStream, "VideoStream", Names(kStreams)),
         FIELD(nDuration, "Duration", Int),
         FIELD(bStartTime),
         FIELD(stuStartTime, "StartTime", Record(kNetTimeV2)).SetsAndNeeds(AT(bStartTime)).WriteIf(StartsAtATime),
     })
    .Writes(IsOfADevice);

// "name" : "VideoDiagnosisTask.Night"
void ReadRequestedName(const Field& field, const Value& value, std::byte* record, ReadCall& call) {
    const std::string_view name = value.asString();
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos) return;
    call.parser.GetJsonString(Value::OfString(name.substr(dot + 1)), reinterpret_cast<char*>(record + field.offset),
                              field.elementSize, true);
}
constexpr CustomCodec kRequestedName{ReadRequestedName, nullptr};

#define TASK_ROWS                                                                                                      \
    FIELD(szProfile, "Profile", Text), FIELD(nSourceMax), FIELD(nSourceReturned),                                      \
        FIELD(pSources, "Sources", Record(kSource))                                                                    \
            .Always()                                                                                                  \
            .AnyShape()                                                                                                \
            .Capacity(AT(nSourceMax))                                                                                  \
            .Count(AT(nSourceReturned))                                                                                \
            .CountsWithoutArray()                                                                                      \
            .WriteSkipped(Skipped::ClosesUp)

template <class R>
bool HasName(const std::byte* record) {
    return record[offsetof(R, szName)] != std::byte{0};
}

PART(kNamedTask, CFG_DIAGNOSIS_TASK,
     {
         FIELD(szName, nullptr, MemberName),
         TASK_ROWS,
     })
    .Writes(HasName<CFG_DIAGNOSIS_TASK>);

// The task that a request named.
PART(kRequestedTask, CFG_DIAGNOSIS_TASK,
     {
         FIELD(szName, "params/name", Custom(kRequestedName)).FromRoot(),
         TASK_ROWS,
     });

PART(kProjectsTask, CFG_DIAGNOSIS_TASK,
     {
         FIELD(szName),
         TASK_ROWS,
     });

PART(kRealProject, CFG_DIAGNOSIS_REALPROJECT,
     {
         FIELD(szProject, "Project", Text),
         FIELD(stuTask, "Task", Record(kProjectsTask)),
     });

// ---- Projects ----

void ReadWeek(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    JsonParser::GetTimeSchedule(value, reinterpret_cast<CFG_TIME_SECTION*>(record + field.offset), ORRERY_WEEK_DAYS,
                                ORRERY_DAY_SECTIONS, nullptr);
}

// "1 8:0:0-17:30:0"
void WriteSection(const std::byte* section, json::TextWriter& out) {
    constexpr std::string_view kBehind = " ::-::";
    static_assert(sizeof(CFG_TIME_SECTION) == (kBehind.size() + 1) * sizeof(std::int32_t));
    std::array<char, 96> text;
    char* end = text.data();
    for (std::size_t i = 0; i <= kBehind.size(); ++i) {
        if (i > 0) *end++ = kBehind[i - 1];
        end = std::to_chars(end, text.data() + text.size(), Load<std::int32_t>(section + i * sizeof(std::int32_t))).ptr;
    }
    out.CleanString({text.data(), static_cast<std::size_t>(end - text.data())});
}

// Servers of this family take sections without leading zeros, unlike all other weeks.
void WriteWeek(const Field& field, const std::byte* record, WriteCall& call) {
    const std::byte* section = record + field.offset;
    call.Key();
    call.out.BeginArray();
    for (int day = 0; day < ORRERY_WEEK_DAYS; ++day) {
        call.out.BeginArray();
        for (int i = 0; i < ORRERY_DAY_SECTIONS; ++i, section += sizeof(CFG_TIME_SECTION))
            WriteSection(section, call.out);
        call.out.EndArray();
    }
    call.out.EndArray();
}

constexpr CustomCodec kWeek{ReadWeek, WriteWeek};

PART(kProjectTask, CFG_DIAGNOSIS_PROJECT_TASK,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(szName, "Name", Text),
         FIELD(stuTimeSection, "TimeSection", Custom(kWeek)),
         FIELD(bIsCycle, "IsCycle", Bool).TrueAtOne(),
     })
    .Writes(HasName<CFG_DIAGNOSIS_PROJECT_TASK>);

PART(kProject, CFG_DIAGNOSIS_PROJECT,
     {
         FIELD(szName, nullptr, MemberName),
         FIELD(nTaskMax),
         FIELD(nTaskReturned),
         FIELD(pTasks, "Tasks", Record(kProjectTask))
             .Always()
             .AnyShape()
             .Capacity(AT(nTaskMax))
             .Count(AT(nTaskReturned))
             .CountsWithoutArray()
             .WriteSkipped(Skipped::ClosesUp),
     })
    .Writes(HasName<CFG_DIAGNOSIS_PROJECT>);

} // namespace

TABLE(kDiagnosisTasks, CFG_DIAGNOSIS_TASK_LIST, {ENTRIES_BY_NAME(kNamedTask)});

TABLE(kDiagnosisTask, CFG_DIAGNOSIS_TASK_LIST,
      {
          FIELD(nMax),
          FIELD(nReturned),
          FIELD(pEntries, "", Record(kRequestedTask)).Single().Capacity(AT(nMax)).Count(AT(nReturned)),
      });

TABLE(kDiagnosisRealProjects, CFG_DIAGNOSIS_REALPROJECT_LIST,
      {
          FIELD(nMax),
          FIELD(nReturned),
          FIELD(pEntries, "", Record(kRealProject)).Capacity(AT(nMax)),
      });

TABLE(kDiagnosisProjects, CFG_DIAGNOSIS_PROJECT_LIST, {ENTRIES_BY_NAME(kProject)});

} // namespace orrery
