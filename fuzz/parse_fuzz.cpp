// Any reply to any command, into a buffer of any size at any alignment. The input: four bytes that choose the command,
// four for the size of the buffer, one for its alignment and what it holds, then the text. What follows the text's
// terminator chooses the circumstances.
#include "Circumstances.h"
#include "support/FuzzInput.h"

#include "frame/record/Engine.h"
#include "support/CommandCalls.h"

#include "orrery/calls.h"
#include "orrery/helpers.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <map>
#include <vector>

using namespace orrery;

namespace {

constexpr std::size_t kMuch = std::size_t{64} << 10; // bytes that are not cleared twice for each input

// Sizes that hold a record or a few are worth more than those that hold none.
std::size_t SizeOf(const Command& command, std::uint32_t choice) {
    constexpr std::size_t kMost = std::size_t{1} << 20;
    const std::size_t record = command.table->size;
    const std::size_t most = record <= kMuch || (choice >> 8) % 8 == 1 ? 3 : 1; // records
    switch (choice % 4) {
    case 0:
        if (command.otherTable != nullptr && choice / 4 % 2 == 1) return command.otherTable->size;
        return 1 + choice / 4 % 64;
    case 1:
        return record + choice / 4 % 64;
    case 2:
        return 1 + choice / 4 % (most * record);
    default:
        return std::max(record, std::min(kMost, record * (1 + choice / 4 % most)));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    test::FuzzInput input(data, size);
    const Command& command = test::FuzzCommand(input.Take<std::uint32_t>());
    const auto sizeChoice = input.Take<std::uint32_t>();
    const std::size_t room = SizeOf(command, sizeChoice);
    const auto flavour = input.Take<std::uint8_t>();
    if (!command.parses()) return 0;

    // Blocks of exactly the size, so that the first byte outside is seen: in front of it when the alignment is 0.
    std::string_view source;
    const fuzz::Choice choice = fuzz::ChoiceBehind(input.Rest(), source);
    const test::FuzzBlock text(source.size() + 1, 0);
    std::memcpy(text.get(), source.data(), source.size());
    text.get()[source.size()] = std::byte{0};
    const test::FuzzBlock buffer(room, flavour % 8);
    // What a caller's buffer holds: of a large one the ends, since filling it would take longer than parsing.
    constexpr std::size_t kEnd = std::size_t{8} << 10;
    std::memset(buffer.get(), flavour / 8, std::min(room, kEnd));
    if (room > kEnd) std::memset(buffer.get() + std::max(kEnd, room - kEnd), flavour / 8, std::min(room - kEnd, kEnd));
    // Memory of each command's own, so that its blocks have the same sizes for all inputs.
    static std::map<const Command*, test::CallerMemory> memories;
    test::CallerMemory& memory = memories[&command];
    memory.Reset();
    if (flavour % 2 == 0 || test::HasPointers(*command.table) || command.otherTable != nullptr)
        memory.PrepareBuffer(command, buffer.get(), room);
    else if (room >= 4) // a size word of any value
        record::Store(buffer.get(), sizeChoice / 4 % static_cast<std::uint32_t>(room + 2));

    // The buffer as it was, for the other road; of large ones now and then.
    constexpr std::size_t kSmall = std::size_t{32} << 10;
    const bool isCompared = room + memory.size() <= kSmall || sizeChoice / 4 % 16 == 3;
    std::vector<std::byte> before(isCompared ? room : 0);
    if (isCompared) std::memcpy(before.data(), buffer.get(), room);
    // And what its pointers lead to.
    std::vector<std::byte> pointed;
    if (isCompared) pointed = memory.Contents();

    fuzz::Circumstances around(choice);
    std::uint32_t length = 0;
    const Outcome outcome = RunParse(command, {reinterpret_cast<const char*>(text.get()), buffer.get(),
                                               static_cast<std::uint32_t>(room), flavour == 1 ? nullptr : &length});
    if (length > room && !test::TellsMoreThanItFills(command)) std::abort();
    if (outcome == Outcome::OutOfMemory && !around.memoryFailed()) std::abort();
    const bool memoryFailed = around.memoryFailed();
    if (!around.Calm()) std::abort();
    // By way of a document the answer is the same, unless memory ran out on one of the roads.
    if (!before.empty()) {
        const std::vector<std::byte> after = memory.Contents();
        memory.PutContents(pointed);
        ReadRoad road{true};
        std::uint32_t told = 0;
        const Outcome judged =
            RunParse(command, {reinterpret_cast<const char*>(text.get()), before.data(),
                               static_cast<std::uint32_t>(room), flavour == 1 ? nullptr : &told, &road});
        const bool isSame = judged == outcome && told == length && std::memcmp(buffer.get(), before.data(), room) == 0
                            && memory.Contents() == after;
        if (!isSame && !memoryFailed) std::abort();
        if (!around.Calm()) std::abort();
    }
    // A command that takes a buffer of any size has filled the beginning of a record, which nobody can write.
    const bool written = outcome == Outcome::Done && command.packs() && room >= command.table->size;

    if (sizeChoice / 4 % 8 != 0 || (command.table->size > kMuch && sizeChoice / 32 % 8 != 1)) return 0;
    // By its name a command answers the same; other names are none.
    const char folded[] = {'a', 'L', 'A', 'r', 'M', static_cast<char>(flavour % 3 != 0 ? 0 : flavour), 0};
    for (const char* const name : {command.name.data(), static_cast<const char*>(folded)}) {
        if (FindCommand(name) == nullptr || test::HasPointers(*command.table)) continue;
        const test::FuzzBlock again(room, 0);
        std::memset(again.get(), 0, room);
        const bool isSet = ORRERY_SetSizeWords(name, again.get(), static_cast<std::uint32_t>(room)) != 0;
        if (isSet != (room >= FindCommand(name)->table->size)) std::abort();
        static_cast<void>(CLIENT_ParseData(name, reinterpret_cast<const char*>(text.get()), again.get(),
                                           static_cast<std::uint32_t>(room), nullptr));
    }

    // What was read can be written, in order and with every bracket closed, whatever the text was.
    if (!written) return 0;
    const test::Packed packed = test::Pack(command, buffer.get(), command.table->size);
    if (packed.outcome == Outcome::Done && !test::FlawOf(packed.text).empty()) std::abort();
    return 0;
}
