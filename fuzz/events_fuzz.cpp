// Any text as analyzer events: every record that is delivered can be read to its last byte, and so can every block that
// it points to.
#include "events/EventTable.h"
#include "support/EventWalk.h"

#include "orrery/orrery.h"

#include <cstdlib>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Callers hand over C strings. The copy has no byte to spare behind its terminator.
    const auto text = std::make_unique<char[]>(size + 1);
    if (size > 0) std::memcpy(text.get(), data, size);
    text[size] = '\0';

    static std::uint64_t total = 0;
    const auto callback = [](std::uint32_t type, const void* record, std::uint32_t, void*, std::int32_t,
                             void* user) -> std::int32_t {
        const orrery::events::EventRow* const row = orrery::events::FindEvent(type);
        if (row == nullptr || record == nullptr) std::abort();
        *static_cast<std::uint64_t*>(user) +=
            orrery::test::SumOfRecord(*row->table, static_cast<const std::byte*>(record));
        return 0;
    };
    if (CLIENT_ParseAnalyzerEventData(text.get(), 0, callback, &total) != 1) std::abort();
    return 0;
}
