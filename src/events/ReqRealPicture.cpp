#include "events/ReqRealPicture.h"

#include "events/VehicleParts.h"
#include "frame/Outside.h"
#include "frame/json/MemberKeys.h"
#include "frame/json/Reader.h"

#include <algorithm>

namespace orrery {

using json::Value;

void EventList::Append(EventNode& node) noexcept {
    node.previous = sentinel_.previous;
    node.next = &sentinel_;
    sentinel_.previous->next = &node;
    sentinel_.previous = &node;
    ++count_;
}

EventNode* EventList::TakeFirst() noexcept {
    EventNode* const node = sentinel_.next;
    if (node == &sentinel_) return nullptr;
    sentinel_.next = node->next;
    node->next->previous = &sentinel_;
    --count_;
    return node;
}

const char* CReqRealPicture::serialize(std::size_t& length) noexcept {
    length = 0;
    return nullptr;
}

void CReqRealPicture::boundEvents(std::size_t length) noexcept {
    // The records of events that devices really have are a few kilobytes each, but two bytes of a list of objects may
    // become a record too.
    constexpr std::size_t kMostAnyway = std::size_t{64} << 20;
    constexpr std::size_t kMostPerByte = 64;
    arena_.Limit(kMostAnyway + kMostPerByte * length);
}

bool CReqRealPicture::parseDocument(const char* text, Value& root) noexcept {
    if (dwPacketSubType != kPacketSubType) return false;
    const std::string_view source(text);
    if (!json::Parse(source, arena_, root)) return false;
    boundEvents(source.size());
    return true;
}

std::int32_t CReqRealPicture::parseEventText(const char* text) noexcept {
    Value root;
    if (!parseDocument(text, root)) return 0;
    takeBare(root);
    return 1;
}

void CReqRealPicture::takeEvents(const Value& root, std::size_t length) noexcept {
    boundEvents(length);
    takeBare(root);
}

void CReqRealPicture::takeBare(const Value& root) noexcept {
    const Value& single = root["Event"];
    Circumstances around{};
    parseAlarmEvent(single.isNull() ? root["EventList"] : single, around);
}

std::int32_t CReqRealPicture::deserialize(const char* text, std::size_t) noexcept {
    Value root;
    if (!parseDocument(text, root)) return 0;
    if (const Value& result = root["result"]; !result.isNull()) {
        bNotification = 0;
        nResult = result.asBool() ? 1 : 0;
        return 1;
    }
    bNotification = 1;
    Circumstances around{};
    const Value& list = readInfo(root["params"]["info"], around);
    parseAlarmEvent(list, around);
    return 1;
}

namespace {

NAMES(kTransferModes, record::kFolded.Unknown(-1),
      {
          {CReqRealPicture::kRealtime, "Realtime"},
          {CReqRealPicture::kOffline, "Offline"},
          {CReqRealPicture::kOfflineOver, "OfflineOver"},
      });
// The bit of each.
NAMES(kFlags, record::kFolded.UnknownLeaves(),
      {
          {0, "*"},
          {1, "Timing"},
          {2, "Manual"},
          {3, "Marked"},
          {4, "Event"},
          {5, "Mosaic"},
          {6, "Cutout"},
      });
NAMES(kFileTags, record::kFolded,
      {
          {1, "ATMBeforePaste"},
          {2, "ATMAfterPaste"},
      });

// A flag that stands twice carries into the next bit: clients know the sum, not the union.
std::uint32_t FlagMask(const Value& flags) noexcept {
    if (flags.isNull()) return 1;
    constexpr std::size_t kMostFlags = 32;
    std::uint32_t mask = 0;
    const auto texts = flags.elements();
    for (const Value& flag : texts.first(std::min(texts.size(), kMostFlags))) {
        if (const auto bit = kFlags.CodeOf(flag.asString())) mask += std::uint32_t{1} << *bit;
    }
    return mask;
}

} // namespace

const Value& CReqRealPicture::readInfo(const Value& info, Circumstances& around) noexcept {
    static constexpr json::MemberKeys<17> kKeys("Ack", "Channel", "CountInGroup", "Events", "FTPPath", "FilePath",
                                                "Flags", "IndexInGroup", "PicID", "PictureType", "RecordFile", "Repeat",
                                                "Resolution", "Tag", "Time", "Transfer", "VideoPath");
    const auto [ack, channel, count, list, ftpPath, filePath, flags, index, ids, pictureType, recordFile, repeat,
                resolution, tag, time, transfer, videoPath] = json::ValuesAt(info, kKeys);
    if (!transfer->isNull())
        nTransferMode = static_cast<std::uint32_t>(kTransferModes.CodeOf(transfer->asString()).value_or(-1));
    if (!channel->isNull()) nChannel = channel->asInt();
    EVENT_FILE_INFO& file = around.fileInfo;
    file.byCount = count->isNull() ? 1 : static_cast<std::uint8_t>(count->asInt());
    file.byIndex = static_cast<std::uint8_t>(index->asInt());
    file.byPictureType = static_cast<std::uint8_t>(pictureType->asInt());
    if (!ack->isNull()) bAck = ack->asBool() ? 1 : 0;
    if (ids->elements().size() == 2) {
        dwPicID[0] = (*ids)[0u].asUInt();
        dwPicID[1] = (*ids)[1u].asUInt();
    }
    if (!time->isNull()) {
        std::uint32_t fields[6];
        events::ReadSplitTime(time->asString(), fields);
        std::memcpy(static_cast<void*>(&file.stuFileTime), fields, sizeof fields);
    }
    file.byFileTag = static_cast<std::uint8_t>(kFileTags.CodeOf(tag->asString()).value_or(0));
    const auto half = [](const Value& side) { return std::uint32_t{static_cast<std::uint16_t>(side.asInt())}; };
    around.resolution = half((*resolution)[0u]) | half((*resolution)[1u]) << 16;
    around.flagMask = FlagMask(*flags);
    events::EventSourceInfo& source = around.source;
    parser_.GetJsonString(*filePath, source.szFilePath, sizeof source.szFilePath, true);
    source.nRepeat = repeat->asInt();
    parser_.GetJsonString(*recordFile, source.szRecordFile, sizeof source.szRecordFile, true);
    parser_.GetJsonString(*ftpPath, source.szFTPPath, sizeof source.szFTPPath, true);
    parser_.GetJsonString(*videoPath, source.szVideoPath, sizeof source.szVideoPath, true);
    return *list;
}

void CReqRealPicture::deliver(ORRERY_EVENT_CALLBACK callback, void* user) noexcept {
    const std::lock_guard<RecursiveLock> hold(csEvents);
    while (EventNode* const node = lstEvents.TakeFirst()) {
        if (callback != nullptr) HandOver(callback, node->dwEventType, node->pEventInfo, node->dwBufSize, user);
    }
}

std::int32_t DeliverEvents(const char* text, ORRERY_EVENT_CALLBACK callback, void* user) noexcept {
    CReqRealPicture picture;
    picture.dwPacketType = CReqRealPicture::kPacketType;
    picture.dwPacketSubType = CReqRealPicture::kPacketSubType;
    if (picture.parseEventText(text) != 0) picture.deliver(callback, user);
    return 1;
}

void DeliverEvents(const Value& root, std::size_t length, ORRERY_EVENT_CALLBACK callback, void* user) noexcept {
    CReqRealPicture picture;
    picture.takeEvents(root, length);
    picture.deliver(callback, user);
}

} // namespace orrery
