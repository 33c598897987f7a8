// Any text as analyzer events: every record that is delivered can be read to its last byte, and so can every block that
// it points to. What follows the text's terminator chooses the circumstances.
#include "Circumstances.h"
#include "events/EventMap.h"
#include "events/ReqRealPicture.h"
#include "support/EventWalk.h"

#include "orrery/calls.h"

#include <cstdlib>
#include <memory>

namespace {

std::int32_t Walk(std::uint32_t type, const void* record, std::uint32_t, void*, std::int32_t, void* user) {
    const orrery::events::EventRow* const row = orrery::events::FindEvent(type);
    if (row == nullptr || record == nullptr) std::abort();
    *static_cast<std::uint64_t*>(user) += orrery::test::SumOfRecord(*row->table, static_cast<const std::byte*>(record));
    return 0;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view source;
    const orrery::fuzz::Choice choice = orrery::fuzz::ChoiceBehind({reinterpret_cast<const char*>(data), size}, source);
    // Callers hand over C strings. The copy has no byte to spare behind its terminator.
    const auto text = std::make_unique<char[]>(source.size() + 1);
    if (!source.empty()) std::memcpy(text.get(), source.data(), source.size());
    text[source.size()] = '\0';

    static std::uint64_t total = 0;
    orrery::fuzz::Circumstances around(choice);
    if ((choice.flags & 8) == 0) {
        if (CLIENT_ParseAnalyzerEventData(text.get(), 0, Walk, &total) != 1) std::abort();
    } else { // a whole message
        orrery::CReqRealPicture picture;
        picture.dwPacketType = orrery::CReqRealPicture::kPacketType;
        picture.dwPacketSubType = orrery::CReqRealPicture::kPacketSubType;
        if (picture.deserialize(text.get(), source.size()) != 0) picture.deliver(Walk, &total);
    }
    if (!around.Calm()) std::abort();
    return 0;
}
