#include "events/EventContext.h"

namespace orrery::events {

namespace {

void ReadSourceDevice(const Field& field, const json::Value& value, std::byte* record, ReadCall& call) {
    if ((*EventOf(call).event)["Data"]["SourceIndex"].isNull()) return;
    call.parser.GetJsonString(value, reinterpret_cast<char*>(record + field.offset), field.elementSize, true);
}

} // namespace

constexpr CustomCodec kSourceDevice{ReadSourceDevice};

} // namespace orrery::events
