// Any record bytes for any command, into a text buffer of any capacity. The input: four bytes that choose the command,
// four for the capacity, two for the records' size, one for the alignment, then the records' bytes, repeated until
// they fill them or set once.
#include "support/FuzzInput.h"

#include "frame/record/Engine.h"
#include "support/CommandCalls.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

using namespace orrery;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    test::FuzzInput input(data, size);
    const Command& command = test::FuzzCommand(input.Take<std::uint32_t>());
    const auto capacityChoice = input.Take<std::uint32_t>();
    const auto sizeChoice = input.Take<std::uint16_t>();
    const auto flavour = input.Take<std::uint8_t>();
    const auto bytes = input.Rest();
    if (!command.packs() || bytes.empty()) return 0;

    const record::Table& table = *command.table;
    const std::size_t whole = table.size;
    std::size_t records = whole;
    if (sizeChoice % 4 == 1) records = sizeChoice / 4 % (2 * whole);
    if (sizeChoice % 4 == 2) records = whole * (1 + sizeChoice / 4 % 3);
    const test::FuzzBlock record(records, flavour % 8);
    // All over the records, or once at some place in records of zeros.
    std::memset(record.get(), 0, records);
    const bool once = (flavour & 16) != 0;
    for (std::size_t at = once && records > 0 ? capacityChoice / 8 % records : 0; at < records; at += bytes.size()) {
        std::memcpy(record.get() + at, bytes.data(), std::min(bytes.size(), records - at));
        if (once) break;
    }
    test::CallerMemory memory;
    for (std::size_t at = 0; at + whole <= records; at += whole) {
        if (flavour & 8) record::SetSizeWords(table, record.get() + at);
        if (test::HasPointers(table)) memory.MakePointersSafe(table, record.get() + at);
    }
    // A size word of the caller's own moves the records behind the first: their pointers are wherever it says.
    if (test::HasPointers(table) && command.packFrame.stride != Stride::Record) {
        if (records < whole) return 0;
        record::SetSizeWords(table, record.get());
    }

    const test::Packed packed = test::Pack(command, record.get(), records);
    if (packed.outcome == Outcome::OutOfMemory) std::abort();
    constexpr std::size_t kLooked = std::size_t{64} << 10;
    const bool looks = packed.outcome == Outcome::Done && packed.text.size() <= kLooked;
    if (looks && !test::FlawOf(packed.text).empty()) std::abort();

    // Near the text's own length is where a buffer is overrun.
    const std::size_t length = packed.text.size();
    const std::size_t capacity = capacityChoice % 2 == 0
                                     ? capacityChoice / 2 % (length + 3)
                                     : std::max<std::size_t>(length, 4) - 2 + capacityChoice / 2 % 5;
    const test::FuzzBlock text(capacity, 0);
    RunPack(command, {record.get(), static_cast<std::uint32_t>(records), reinterpret_cast<char*>(text.get()),
                      static_cast<std::uint32_t>(capacity)});
    return 0;
}
