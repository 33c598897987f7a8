#include "network/Multicast.h"

#include "frame/Platform/ParamConvert.h"
#include "frame/Request/CReqConfig.h"
#include "frame/record/Engine.h"

#include <algorithm>

namespace orrery {

using namespace record;

namespace {

NAMES(kStreamTypes, kFolded.OutsideWrites("Main"),
      {
          {CFG_MULTICAST_STREAM_MAIN, "Main"},
          {CFG_MULTICAST_STREAM_EXTRA1, "Extra1"},
          {CFG_MULTICAST_STREAM_EXTRA2, "Extra2"},
          {CFG_MULTICAST_STREAM_EXTRA3, "Extra3"},
          {CFG_MULTICAST_STREAM_SNAPSHOT, "Snapshot"},
          {CFG_MULTICAST_STREAM_OBJECT, "Object"},
      });

PART(kMulticastItem, CFG_MULTICAST_ITEM,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(bEnable, "Enable", Bool),
         FIELD(szMulticastAddr, "MulticastAddr", Text),
         FIELD(nPort, "Port", Int),
         FIELD(szLocalAddr, "LocalAddr", Text),
         FIELD(nChannel, "Channel", Int),
         FIELD(emStreamType, "StreamType", Names(kStreamTypes)),
     });

PART(kMulticastStream, CFG_MULTICAST_STREAM,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(stuItem, "", Record(kMulticastItem)).Count(AT(nCount)),
         FIELD(nCount),
     });

// True when a caller's record, by the size word that it begins with, reaches to `end`.
bool Reaches(const std::byte* record, std::size_t end) noexcept {
    return Load<std::uint32_t>(record) >= end;
}

constexpr std::size_t ItemAt(std::uint32_t index) {
    return offsetof(CFG_MULTICAST_STREAM, stuItem) + index * sizeof(CFG_MULTICAST_ITEM);
}

// Both directions pass an item through one of this library's own, from which or to which go the fields that the
// caller's item knows.
struct LocalItem {
    alignas(CFG_MULTICAST_ITEM) std::byte bytes[sizeof(CFG_MULTICAST_ITEM)] = {};

    void CopyTo(std::byte* callers) const noexcept {
        ConvertFields(kMulticastItem, bytes, sizeof bytes, callers, Load<std::uint32_t>(callers));
    }
    void CopyFrom(const std::byte* callers) noexcept {
        ConvertFields(kMulticastItem, callers, Load<std::uint32_t>(callers), bytes, sizeof bytes);
    }
};

// A stream that the reply lacks reads as an empty one.
void ReadStream(const Field& field, const json::Value& list, std::byte* record, ReadCall& call) {
    if (!Reaches(record, field.offset + sizeof(CFG_MULTICAST_STREAM))) return;
    std::byte* const stream = record + field.offset;
    const auto elements = list.elements();
    const auto count = static_cast<std::uint32_t>(std::min<std::size_t>(elements.size(), ORRERY_MULTICAST_ITEMS));
    const LocalItem nothing;
    for (std::uint32_t i = 0; i < ORRERY_MULTICAST_ITEMS && Reaches(stream, ItemAt(i + 1)); ++i) {
        if (i >= count) {
            nothing.CopyTo(stream + ItemAt(i));
            continue;
        }
        LocalItem item;
        ReadFields(kMulticastItem, elements[i], item.bytes, call);
        item.CopyTo(stream + ItemAt(i));
    }
    if (Reaches(stream, sizeof(CFG_MULTICAST_STREAM))) {
        SET_MEMBER(stream, CFG_MULTICAST_STREAM, nCount, static_cast<std::int32_t>(count));
    }
}

void WriteStream(const Field& field, const std::byte* record, WriteCall& call) {
    const std::byte* const stream = record + field.offset;
    if (!Reaches(record, field.offset + sizeof(CFG_MULTICAST_STREAM))) return;
    if (!Reaches(stream, sizeof(CFG_MULTICAST_STREAM))) return;
    const std::int32_t count = std::min(MEMBER(stream, CFG_MULTICAST_STREAM, nCount), ORRERY_MULTICAST_ITEMS);
    if (count <= 0) return;
    call.Key();
    call.out.BeginArray();
    for (std::uint32_t i = 0; i < static_cast<std::uint32_t>(count); ++i) {
        LocalItem item;
        item.CopyFrom(stream + ItemAt(i));
        WriteRecord(kMulticastItem, item.bytes, call);
    }
    call.out.EndArray();
}

constexpr CustomCodec kStream{
    ReadStream, WriteStream,
    R"([{"Channel":3,"Enable":true,"LocalAddr":"10.1.1.1","MulticastAddr":"224.1.1.3","Port":33,"StreamType":"Extra2"}])"};

} // namespace

template <>
inline constexpr const Table* record::kLayoutOf<CFG_MULTICAST_STREAM> = &kMulticastStream;

TABLE(kMulticast, CFG_MULTICAST_INFO,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(stuTS, "TS", Custom(kStream)).Always(),
          FIELD(stuRTP, "RTP", Custom(kStream)).Always(),
          FIELD(stuQVII, "QVII", Custom(kStream)).Always(),
          FIELD(stuRTPAudio, "RTPAudio", Custom(kStream)).Always(),
      });

Outcome ParseMulticast(const ParseRequest& request) noexcept {
    if (request.bufferSize < sizeof(CFG_MULTICAST_INFO)) return Outcome::BufferTooSmall;
    CReqConfig config;
    config.nRequestType = CReqConfig::kTableReply;
    config.pPayload = request.buffer;
    config.pTable = &kMulticast;
    if (config.deserialize(request.text, 0) == 0) return config.outOfMemory() ? Outcome::OutOfMemory : Outcome::NoJson;
    const bool hasResult = config.getError() == 0;
    if (hasResult && !config.hasRead()) return Outcome::NoValue;
    if (request.returnedLength != nullptr) *request.returnedLength = sizeof(CFG_MULTICAST_INFO);
    return Outcome::Done;
}

} // namespace orrery
