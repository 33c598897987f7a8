// Any record bytes for any command, into a text buffer of any capacity. The input: four bytes that choose the command,
// four for the capacity, two for the records' size or the allocation that fails, one for the alignment and more, then
// the records' bytes, repeated until they fill them or set once; with the highest bit of the capacity, set where the
// first items that lie behind pointers are described, so that lists of any length do not hide them.
#include "Circumstances.h"
#include "support/FuzzInput.h"

#include "frame/PackedItems.h"
#include "frame/record/Engine.h"
#include "orrery/calls.h"
#include "support/CommandCalls.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

using namespace orrery;

namespace {

// Longer texts say nothing more: of them the beginning is written, and the rest counted.
constexpr std::size_t kMostText = std::size_t{32} << 10;

void Fill(std::byte* records, std::size_t size, std::size_t from, bool once, std::string_view bytes) {
    std::memset(records, 0, size);
    for (std::size_t at = from; at < size; at += bytes.size()) {
        std::memcpy(records + at, bytes.data(), std::min(bytes.size(), size - at));
        if (once) break;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    test::FuzzInput input(data, size);
    const Command& command = test::FuzzCommand(input.Take<std::uint32_t>());
    const auto capacityChoice = input.Take<std::uint32_t>();
    const auto sizeChoice = input.Take<std::uint16_t>();
    const auto flavour = input.Take<std::uint8_t>();
    const auto bytes = input.Rest();
    // Items behind a pointer have a target of their own.
    if (!command.packs() || bytes.empty() || ItemsBehind(*command.table) != nullptr) return 0;

    // Bytes that stand everywhere make large records into megabytes of text: there they stand once.
    constexpr std::size_t kLarge = std::size_t{16} << 10;
    const bool isOther = command.otherTable != nullptr && sizeChoice % 4 == 3;
    const record::Table& table = isOther ? *command.otherTable : *command.table;
    const std::size_t whole = table.size;
    std::size_t records = whole;
    if (sizeChoice % 4 == 1) records = sizeChoice / 4 % (2 * whole);
    if (command.otherTable != nullptr && !isOther && records == command.otherTable->size)
        return 0; // pointers of no one
    // Several large ones now and then.
    if (sizeChoice % 4 == 2 && whole <= (sizeChoice / 64 % 8 == 1 ? 16 * kLarge : kLarge))
        records = whole * (1 + sizeChoice / 4 % 3);
    const test::FuzzBlock record(records, flavour % 8);
    const bool once = (flavour & 16) != 0 || (whole > kLarge && bytes.size() < whole);
    const auto items = (capacityChoice >> 31) != 0 && records >= whole ? test::FirstItems(table) : std::nullopt;
    const std::size_t from = items ? *items : (flavour & 16) != 0 && records > 0 ? capacityChoice / 8 % records : 0;
    Fill(record.get(), records, from, once || items, bytes);
    if (items) test::RaiseCounts(table, record.get());
    test::CallerMemory memory;
    for (std::size_t at = 0; at + whole <= records; at += whole) {
        if (flavour & 8) record::SetSizeWords(table, record.get() + at);
        if (test::HasPointers(table)) memory.MakePointersSafe(table, record.get() + at);
    }
    if (test::HasPointers(table)) {
        if (records < whole) return 0; // pointers of no one
        // A size word of the caller's own moves the records behind the first: their pointers are wherever it says.
        if (command.packFrame.stride != Stride::Record) record::SetSizeWords(table, record.get());
    }

    fuzz::Choice choice;
    choice.locale = static_cast<std::uint8_t>(flavour >> 6);
    choice.flags = static_cast<std::uint8_t>((flavour >> 5 & 1) | (sizeChoice % 4 == 3 ? 4 : 0));
    choice.allocation = static_cast<std::uint16_t>(sizeChoice / 4);
    fuzz::Circumstances around(choice);
    static char room[kMostText];
    // A text without a terminator ends where the buffer was clear.
    if (command.packFrame.capacity == Capacity::Bare) std::memset(room, 0, sizeof room);
    PackRequest request{record.get(), static_cast<std::uint32_t>(records), room, kMostText};
    const Outcome outcome = RunPack(command, request);
    if (outcome == Outcome::OutOfMemory && !around.memoryFailed()) std::abort();
    if (!around.Calm()) std::abort();
    if (outcome != Outcome::Done) return 0;
    const std::size_t length = strnlen(room, kMostText);
    if (length + 1 < kMostText && !test::FlawOf({room, length}).empty()) std::abort();

    // Near the text's own length is where a buffer is overrun.
    const std::size_t capacity = capacityChoice % 2 == 0
                                     ? capacityChoice / 2 % (length + 3)
                                     : std::max<std::size_t>(length, 4) - 2 + capacityChoice / 2 % 5;
    const test::FuzzBlock text(capacity, 0);
    request.textBuffer = reinterpret_cast<char*>(text.get());
    request.textCapacity = static_cast<std::uint32_t>(capacity);
    const bool packed = RunPack(command, request) == Outcome::Done;
    if (FindCommand(command.name) == nullptr) return 0;
    if (CLIENT_PacketData(command.name.data(), record.get(), static_cast<std::uint32_t>(records), request.textBuffer,
                          request.textCapacity)
        != packed)
        std::abort();
    return 0;
}
