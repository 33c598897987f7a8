// Any text as analyzer events: every record that is delivered can be read to its last byte, and so can every block that
// it points to, and those of a copy that is kept. What follows the text's terminator chooses the circumstances.
#include "Circumstances.h"
#include "events/EventMap.h"
#include "events/ReqRealPicture.h"
#include "support/EventWalk.h"

#include "orrery/calls.h"

#include <cstdlib>
#include <memory>

namespace {

std::int32_t Walk(std::uint32_t type, const void* record, std::uint32_t size, void*, std::int32_t, void* user) {
    using namespace orrery;
    const events::EventRow* const row = events::FindEvent(type);
    if (row == nullptr) std::abort();
    const auto sumOf = [row](const std::byte* at) { return test::SumOfRecord(*row->table, at); };
    static_cast<test::EventReader*>(user)->Read(type, record, size, sumOf);
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

    static orrery::test::EventReader client;
    client.keepsCopies = (choice.flags & 16) != 0;
    orrery::fuzz::Circumstances around(choice);
    if ((choice.flags & 8) == 0) {
        if (CLIENT_ParseAnalyzerEventData(text.get(), 0, Walk, &client) != 1) std::abort();
    } else { // a whole message
        orrery::CReqRealPicture picture;
        picture.dwPacketType = orrery::CReqRealPicture::kPacketType;
        picture.dwPacketSubType = orrery::CReqRealPicture::kPacketSubType;
        if (picture.deserialize(text.get(), source.size()) != 0) picture.deliver(Walk, &client);
    }
    if (!around.Calm()) std::abort();
    return 0;
}
