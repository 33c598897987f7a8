// The decoder of analyzer events: from the text that announces them to the records that a client's callback takes.
#pragma once

#include "events/EventContext.h"
#include "frame/Lock.h"
#include "frame/Request/IPDU.h"

#include "orrery/calls.h"

namespace orrery {

// A decoded event that waits for its delivery.
struct EventNode {
    EventNode* previous;
    EventNode* next;
    std::uint32_t dwEventType;
    void* pEventInfo; // the record
    std::uint32_t dwBufSize;
};

// Nodes in the order of parsing, around a sentinel. It owns no memory: nodes live in the decoder's arena.
class EventList {
  public:
    EventList() noexcept : sentinel_{&sentinel_, &sentinel_, 0, nullptr, 0} {}
    EventList(const EventList&) = delete;
    EventList& operator=(const EventList&) = delete;

    void Append(EventNode& node) noexcept;
    // The first node, which is in the list no more; null when there is none.
    EventNode* TakeFirst() noexcept;
    std::uint32_t count() const noexcept { return count_; }

  private:
    EventNode sentinel_;
    std::uint32_t count_ = 0;
};

// One object serves one text. Its records, and all that they point to, end with it.
class CReqRealPicture final : public IPDU {
  public:
    static constexpr std::uint32_t kPacketType = 0xb0001;
    static constexpr std::uint32_t kPacketSubType = 0xb0002;
    enum : std::uint32_t { kRealtime = 0, kOffline = 1, kOfflineOver = 2 };

    // There is nothing to send.
    const char* serialize(std::size_t& length) noexcept override;
    // A whole message: a reply with "result", or a notification whose "params"."info" brings "Events". 1 when it is
    // JSON. `length` is not looked at.
    std::int32_t deserialize(const char* text, std::size_t length) noexcept override;
    std::uint32_t getSequence() const noexcept override { return bNotification; }

    // The bare form: "Event", or "EventList" when there is no "Event". 1 when it is JSON.
    std::int32_t parseEventText(const char* text) noexcept;
    // The same of a document that was read before, from a text of `length` bytes, and outlives the events.
    void takeEvents(const json::Value& root, std::size_t length) noexcept;

    // Hands every event to the callback, in order, and forgets it. The list is held meanwhile: a callback on this
    // thread may still come back to it.
    void deliver(ORRERY_EVENT_CALLBACK callback, void* user) noexcept;

    std::uint32_t dwPacketType = 0;
    std::uint32_t dwPacketSubType = 0; // the decoder works for kPacketSubType only
    std::int32_t nChannel = -1;
    std::uint32_t bNotification = 0;
    std::uint32_t nResult = ~std::uint32_t{0};
    std::uint32_t nTransferMode = ~std::uint32_t{0};
    std::uint32_t dwPicID[2] = {};
    std::uint64_t bAck = 0;
    EventList lstEvents;
    RecursiveLock csEvents;

  private:
    // What a notification says about all of its events.
    struct Circumstances {
        EVENT_FILE_INFO fileInfo;
        events::EventSourceInfo source;
        std::uint32_t resolution; // width, with the height in the upper half
        std::uint32_t flagMask;
    };

    // Reads the document, and bounds what its events may take.
    bool parseDocument(const char* text, json::Value& root) noexcept;
    void boundEvents(std::size_t length) noexcept;
    void takeBare(const json::Value& root) noexcept;
    const json::Value& readInfo(const json::Value& info, Circumstances& around) noexcept; // the list of its events
    // Decodes the events of an array, at most 128, into the list. The group of the file info goes on from event to
    // event.
    void parseAlarmEvent(const json::Value& events, Circumstances& around) noexcept;
    void parseOne(const json::Value& event, Circumstances& around, events::EventCall& common) noexcept;

    // A text of a few kilobytes with an event or two fits the first chunk.
    StackArena<std::size_t{32} << 10> arena_;
    LocalText text_{arena_};
    JsonParser parser_{text_};
};

// Decodes a text and delivers its events; what both exported decoders do for events. 1 in every case.
std::int32_t DeliverEvents(const char* text, ORRERY_EVENT_CALLBACK callback, void* user) noexcept;
// The same of a document that was read before, from a text of `length` bytes.
void DeliverEvents(const json::Value& root, std::size_t length, ORRERY_EVENT_CALLBACK callback, void* user) noexcept;

} // namespace orrery
