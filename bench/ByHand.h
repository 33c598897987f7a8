// What a client would write itself, with RapidJSON, instead of calling this library: the same texts into the same
// records and back. Plain code, used as RapidJSON's documentation advises: buffers on the stack for its two allocators,
// texts by reference where they outlive the document, one look-up a key. Made for the texts of Texts.h; it knows
// nothing of what other devices send instead.
#pragma once

#include "orrery/orrery.h"

#include <cstddef>

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>

namespace orrery::bench::byhand {

using Pool = rapidjson::MemoryPoolAllocator<>;
using Document = rapidjson::GenericDocument<rapidjson::UTF8<>, Pool, Pool>;
using Value = Document::ValueType;

// A document whose first memory lies on the stack.
class LocalDocument {
  public:
    LocalDocument() : values_(valueRoom_, sizeof valueRoom_), stack_(stackRoom_, sizeof stackRoom_) {}
    Document& operator*() { return document_; }
    Document* operator->() { return &document_; }

  private:
    alignas(16) char valueRoom_[16 << 10];
    alignas(16) char stackRoom_[8 << 10];
    Pool values_;
    Pool stack_;
    Document document_{&values_, 1024, &stack_};
};

// All channels of a device.
struct EncodeChannels {
    CFG_ENCODE_INFO channels[16];
};

// "1 08:00:00-18:30:00" for a document.
Value SectionText(const CFG_TIME_SECTION& section, Pool& pool);
void Write(const Document& document, rapidjson::StringBuffer& out);
// Hands the text over as the library does: cleared behind it, with a newline and a terminator.
bool Deliver(const rapidjson::StringBuffer& out, char* text, std::size_t capacity);

// Whole calls: the record or the text buffer is cleared, then filled. "Encode" keeps what the record
// holds but for what the text tells.
bool ParseAlarm(const char* text, CFG_ALARM_INPUT_INFO& record);
bool ParseMotionDetect(const char* text, CFG_MOTION_DETECT_INFO& record);
bool ParseSwitch(const char* text, CFG_ENABLE_INFO& record);
bool ParseAlarmCaps(const char* text, CFG_ALARM_CAPS& record);
bool PackAlarm(const CFG_ALARM_INPUT_INFO& record, char* text, std::size_t capacity);
bool PackMotionDetect(const CFG_MOTION_DETECT_INFO& record, char* text, std::size_t capacity);
bool PackSwitch(const CFG_ENABLE_INFO& record, char* text, std::size_t capacity);

bool ParseEncode(const char* text, EncodeChannels& record);
bool PackEncode(const EncodeChannels& record, char* text, std::size_t capacity);

// Builds the document of a record and writes it, no more.
void WriteAlarm(const CFG_ALARM_INPUT_INFO& record, rapidjson::StringBuffer& out);
void WriteMotionDetect(const CFG_MOTION_DETECT_INFO& record, rapidjson::StringBuffer& out);
void WriteSwitch(const CFG_ENABLE_INFO& record, rapidjson::StringBuffer& out);
void WriteEncode(const EncodeChannels& record, rapidjson::StringBuffer& out);

} // namespace orrery::bench::byhand
