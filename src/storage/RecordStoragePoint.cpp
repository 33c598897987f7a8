#include "storage/RecordStoragePoint.h"

#include "frame/Deliver.h"
#include "frame/Platform/Versioned.h"
#include "frame/ReplySteps.h"
#include "frame/record/Engine.h"

#include <algorithm>

namespace orrery {

using namespace record;
using json::Value;

namespace {

NAMES(kStorageTypes, kFolded.Unknown(CFG_RECORD_STORAGE_UNKNOWN),
      {
          {CFG_RECORD_STORAGE_TIMING_RECORD, "TimingRecord"},
          {CFG_RECORD_STORAGE_MANUAL_RECORD, "ManualRecord"},
          {CFG_RECORD_STORAGE_VIDEO_DETECT_RECORD, "VideoDetectRecord"},
          {CFG_RECORD_STORAGE_ALARM_RECORD, "AlarmRecord"},
          {CFG_RECORD_STORAGE_CARD_RECORD, "CardRecord"},
          {CFG_RECORD_STORAGE_EVENT_RECORD, "EventRecord"},
          {CFG_RECORD_STORAGE_TIMING_SNAPSHOT, "TimingSnapShot"},
          {CFG_RECORD_STORAGE_MANUAL_SNAPSHOT, "ManualSnapShot"},
          {CFG_RECORD_STORAGE_VIDEO_DETECT_SNAPSHOT, "VideoDetectSnapShot"},
          {CFG_RECORD_STORAGE_ALARM_SNAPSHOT, "AlarmSnapShot"},
          {CFG_RECORD_STORAGE_CARD_SNAPSHOT, "CardSnapShot"},
          {CFG_RECORD_STORAGE_EVENT_SNAPSHOT, "EventSnapShot"},
          {CFG_RECORD_STORAGE_TIMING_EXTRA1_RECORD, "TimingExtra1Record"},
      });
static_assert(kStorageTypes.count == CFG_RECORD_STORAGE_UNKNOWN && kStorageTypes.countsUp);

PART(kStoragePoint, CFG_RECORD_STORAGE_POINT_ITEM,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(emType, nullptr, MemberCode(kStorageTypes)),
         FIELD(nLocal, "Local", Int),
         FIELD(szRealtimeCompress, "RealtimeCompress", Text),
         FIELD(szRedundant, "Redundant", Text),
         FIELD(szRemote, "Remote", Text),
         FIELD(bAutoSync, "AutoSync", Bool),
         FIELD(nAutoSyncRange, "AutoSyncRange", UInt),
         FIELD(bLocalForEmergency, "LocalForEmergency", Bool),
         FIELD(nCompressBefore, "CompressBefore", UInt),
     })
    .StartsWhenRead();

// An object that no item goes into is no object at all.
bool HasNamedItem(const std::byte* record) {
    const std::int32_t count =
        std::min(MEMBER(record, CFG_RECORD_STORAGE_POINT_INFO, nCount), ORRERY_RECORD_STORAGE_POINTS);
    const std::byte* item = record + offsetof(CFG_RECORD_STORAGE_POINT_INFO, stuItems);
    for (std::int32_t i = 0; i < count; ++i, item += sizeof(CFG_RECORD_STORAGE_POINT_ITEM)) {
        if (IsWrittenByName(kStoragePoint, item)) return true;
    }
    return false;
}

} // namespace

TABLE(kRecordStoragePoint, CFG_RECORD_STORAGE_POINT_INFO,
      {
          FIELD(nCount),
          FIELD(stuItems, "", Record(kStoragePoint)).Count(AT(nCount)).Keyed().NullElement(Nulls::Named),
      })
    .Writes(HasNamedItem);

TABLE(kRecordStoragePointChannels, CFG_RECORD_STORAGE_POINT_CHANNELS,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(nChannelCount),
          FIELD(pstuChannels, "", Record(kRecordStoragePoint)).Capacity(AT(nChannelCount)),
      });

namespace {

constexpr ParseFrame kOneChannel = ParseFrame().Result(ResultTest::NotTested).Null(NullValue::OneRecord);
constexpr ParseFrame kChannels = ParseFrame().Clears(Clearing::Read);
constexpr PackFrame kLoose = PackFrame().Fits(Capacity::Loose);

constexpr std::uint32_t kRecord = sizeof(CFG_RECORD_STORAGE_POINT_INFO);
constexpr std::uint32_t kEnvelope = sizeof(CFG_RECORD_STORAGE_POINT_CHANNELS);

// What the caller's envelope says, brought into one of this library's layout.
struct Envelope {
    VersionedRecords versioned;
    std::byte local[kEnvelope];

    explicit Envelope(const void* caller) noexcept
        : versioned(kRecordStoragePointChannels, Stride::SizeWord,
                    Load<std::uint32_t>(static_cast<const std::byte*>(caller))) {
        versioned.Prepare(local);
        versioned.Take(static_cast<const std::byte*>(caller), local);
    }
    CFG_RECORD_STORAGE_POINT_INFO* channels() const noexcept {
        return MEMBER(local, CFG_RECORD_STORAGE_POINT_CHANNELS, pstuChannels);
    }
    // At most as many as a 32-bit size can tell of.
    std::uint32_t count() const noexcept {
        const std::int32_t count = MEMBER(local, CFG_RECORD_STORAGE_POINT_CHANNELS, nChannelCount);
        if (count <= 0 || channels() == nullptr) return 0;
        return std::min(static_cast<std::uint32_t>(count), UINT32_MAX / kRecord);
    }
};

Outcome ParseChannels(const ParseRequest& request) noexcept {
    Envelope envelope(request.buffer);
    Document document;
    if (const Outcome parsed = document.Parse(request.text); parsed != Outcome::Done) return parsed;
    ReadCall call{document.parser, document.root};
    ReplyRecords records(kRecordStoragePoint, kChannels,
                         {request.text, envelope.channels(), envelope.count() * kRecord, nullptr}, kRecord, call);
    const Value& table = FindValue(Source::Table, "", document.root);
    ReadAll(ShapeOf(Take::ManyOrNone, table), table, true, records);
    if (document.arena.failed()) return Outcome::OutOfMemory;
    SET_MEMBER(envelope.local, CFG_RECORD_STORAGE_POINT_CHANNELS, nChannelCount,
               static_cast<std::int32_t>(records.used()));
    envelope.versioned.Return(envelope.local, static_cast<std::byte*>(request.buffer));
    if (request.returnedLength != nullptr) *request.returnedLength = kEnvelope;
    return Outcome::Done;
}

Outcome PackChannels(const PackRequest& request) noexcept {
    const Envelope envelope(request.record);
    if (envelope.count() == 0) return LeaveClear(Outcome::NotAccepted, request);
    return PacketFamily(kRecordStoragePoint, kLoose.As(Form::Array),
                        {envelope.channels(), envelope.count() * kRecord, request.textBuffer, request.textCapacity});
}

} // namespace

Outcome ParseRecordStoragePoint(const ParseRequest& request) noexcept {
    if (request.bufferSize == kEnvelope) return ParseChannels(request);
    return ParseFamily(kRecordStoragePoint, kOneChannel, request);
}

Outcome PackRecordStoragePoint(const PackRequest& request) noexcept {
    if (request.recordSize == kEnvelope) return PackChannels(request);
    return PacketFamily(kRecordStoragePoint, kLoose, request);
}

} // namespace orrery
