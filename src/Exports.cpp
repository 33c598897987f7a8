// The exported translation functions: argument tests, and on to the command map.
#include "Commands.h"
#include "analyse/Templates.h"
#include "events/ReqRealPicture.h"
#include "events/TypedText.h"

#include "orrery/calls.h"

#define ORRERY_EXPORT extern "C" __attribute__((visibility("default")))

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
