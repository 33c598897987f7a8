// The exported translation functions: argument tests, and on to the command map.
#include "Commands.h"
#include "analyse/RuleFrame.h"
#include "analyse/Templates.h"
#include "events/EventCopy.h"
#include "events/ReqRealPicture.h"
#include "events/TypedText.h"
#include "frame/ReplySteps.h"

#include "orrery/calls.h"
#include "orrery/helpers.h"

#ifdef _WIN32
#define ORRERY_EXPORT extern "C" __declspec(dllexport)
#else
#define ORRERY_EXPORT extern "C" __attribute__((visibility("default")))
#endif

using orrery::Command;
using orrery::Outcome;

ORRERY_EXPORT uint32_t ORRERY_Version() {
    return ORRERY_VERSION_NUMBER;
}

ORRERY_EXPORT int32_t CLIENT_ParseData(const char* command, const char* text, void* buffer, uint32_t bufferSize,
                                       uint32_t* returnedLength) {
    if (command == nullptr || text == nullptr || buffer == nullptr || bufferSize == 0) return 0;
    const Command* const found = orrery::FindCommand(command);
    if (found == nullptr) return 0;
    return orrery::RunParse(*found, {text, buffer, bufferSize, returnedLength}) == Outcome::Done;
}

ORRERY_EXPORT int32_t CLIENT_PacketData(const char* command, const void* record, uint32_t recordSize, char* textBuffer,
                                        uint32_t textCapacity) {
    if (command == nullptr || record == nullptr || textBuffer == nullptr) return 0;
    const Command* const found = orrery::FindCommand(command);
    if (found == nullptr) return 0;
    return orrery::RunPack(*found, {record, recordSize, textBuffer, textCapacity}) == Outcome::Done;
}

ORRERY_EXPORT int32_t CLIENT_ParseAnalyzerEventData(const char* data, uint32_t, ORRERY_EVENT_CALLBACK callback,
                                                    void* user) {
    if (data == nullptr || callback == nullptr) return 0;
    return orrery::DeliverEvents(data, callback, user);
}

ORRERY_EXPORT int32_t CLIENT_ParseDataByCallback(const char* data, uint32_t, ORRERY_EVENT_CALLBACK callback,
                                                 void* user) {
    if (data == nullptr || callback == nullptr) return 0;
    return orrery::DeliverTyped(data, callback, user);
}

ORRERY_EXPORT int32_t CLIENT_ParseVideoInAnalyse(const char* command, int32_t classType, const char* text,
                                                 const void* reserved, void* output, uint32_t outputSize) {
    if (command == nullptr || text == nullptr || reserved == nullptr || output == nullptr || outputSize == 0) return 0;
    const Outcome outcome = orrery::ParseTemplate(command, classType, {text, output, outputSize, nullptr});
    // A method that has no template leaves the output alone, and that is no failure.
    return outcome == Outcome::Done || outcome == Outcome::UnknownCommand;
}

ORRERY_EXPORT int32_t ORRERY_SetSizeWords(const char* command, void* record, uint32_t recordSize) {
    if (command == nullptr || record == nullptr) return 0;
    const orrery::record::Table* table = nullptr;
    if (const Command* const found = orrery::FindCommand(command); found != nullptr) {
        const bool isOther = found->otherTable != nullptr && recordSize == found->otherTable->size;
        table = isOther ? found->otherTable : found->table;
    } else if (const orrery::TemplateRow* const row = orrery::FindTemplate(command); row != nullptr) {
        table = row->table;
    }
    if (table == nullptr || recordSize < table->size) return 0;
    auto* at = static_cast<std::byte*>(record);
    for (uint32_t left = recordSize; left >= table->size; left -= table->size, at += table->size)
        orrery::record::SetSizeWords(*table, at);
    return 1;
}

ORRERY_EXPORT uint32_t ORRERY_RuleBytes(const char* command, const char* text) {
    if (command == nullptr || text == nullptr) return 0;
    const Command* const found = orrery::FindCommand(command);
    if (found == nullptr || found->table != &orrery::kAnalyseRules) return 0;
    orrery::Document document;
    if (document.Parse(text) != Outcome::Done) return 0;
    const orrery::ParseFrame& frame = found->parseFrame;
    return orrery::RuleArraySizeNeeded(orrery::FindValue(frame.source, frame.name, document.root));
}

ORRERY_EXPORT uint32_t ORRERY_CopyEvent(uint32_t eventType, const void* record, uint32_t recordSize, void* buffer,
                                        uint32_t bufferSize) {
    if (record == nullptr) return 0;
    return orrery::CopyEvent(eventType, static_cast<const std::byte*>(record), recordSize,
                             static_cast<std::byte*>(buffer), bufferSize);
}
