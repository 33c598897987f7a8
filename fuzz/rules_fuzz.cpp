// Rule buffers. The input: one byte for the way, the command and the alignment, four for the buffer's size. Then, one
// way, a text that fills the buffer, which is walked, bent and written again; what follows its terminator chooses the
// circumstances. The other way, items as a client may have built them: four bytes of circumstances, then of each item
// two for its code, one for its size, two for how many bytes follow that its body is made of.
#include "Circumstances.h"
#include "analyse/RuleBodyMap.h"
#include "support/CommandCalls.h"
#include "support/FuzzInput.h"

#include "frame/record/Engine.h"
#include "orrery/analyse_rules.h"
#include "orrery/helpers.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

using namespace orrery;

namespace {

constexpr std::size_t kHead = sizeof(CFG_RULE_INFO);

std::uint32_t CodeOf(std::uint16_t choice) {
    const auto bodies = RuleBodies();
    return choice < 0x8000 ? bodies[choice % bodies.size()].code : choice % 0x8000u;
}

// Items whose heads tell other sizes than they have, and codes that have no record.
const std::vector<std::byte>& Items(test::FuzzInput& input, std::int32_t& count) {
    constexpr std::size_t kMost = std::size_t{256} << 10;
    static std::vector<std::byte> items; // its memory is used again: fresh pages cost more than what is put in
    items.clear();
    for (count = 0; count < 4 && !input.Rest().empty() && items.size() < kMost; ++count) {
        const std::uint32_t code = CodeOf(input.Take<std::uint16_t>());
        const auto sizeChoice = input.Take<std::uint8_t>();
        const std::size_t many = input.Take<std::uint16_t>();
        const std::string_view pattern = input.Skip(many);
        const RuleBody* const body = FindRuleBody(code);
        CFG_RULE_INFO head{};
        head.dwRuleType = code;
        const std::size_t size = body != nullptr ? body->size : 64;
        head.nRuleSize = static_cast<std::int32_t>(size) + (sizeChoice == 0 ? 0 : sizeChoice - 128);
        const std::size_t at = items.size();
        items.resize(at + kHead + size);
        std::memcpy(items.data() + at, &head, kHead);
        // In blocks: byte by byte the filling took most of a run.
        const std::size_t filled = std::min(size, pattern.size() * 8);
        for (std::size_t i = 0; i < filled; i += pattern.size())
            std::memcpy(items.data() + at + kHead + i, pattern.data(), std::min(pattern.size(), filled - i));
    }
    return items;
}

void Write(const Command& command, const CFG_ANALYSERULES_INFO& rules, fuzz::Circumstances& around) {
    static char room[std::size_t{256} << 10];
    const Outcome outcome = RunPack(command, {&rules, sizeof rules, room, sizeof room});
    if (outcome == Outcome::OutOfMemory && !around.memoryFailed()) std::abort();
    const std::size_t length = strnlen(room, sizeof room);
    if (outcome == Outcome::Done && length + 1 < sizeof room && length < (std::size_t{32} << 10)
        && !test::FlawOf({room, length}).empty())
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Command* const commands[] = {FindCommand("VideoAnalyseRule"), FindCommand("AudioAnalyseRule"),
                                              FindCommand("IVSFramRule")};
    test::FuzzInput input(data, size);
    const auto way = input.Take<std::uint8_t>();
    const auto roomChoice = input.Take<std::uint32_t>();
    const Command& command = *commands[(way >> 1) % 3u];
    CFG_ANALYSERULES_INFO rules = {};
    if (way & 1) {
        const fuzz::Choice choice{input.Take<std::uint8_t>(), input.Take<std::uint8_t>(), input.Take<std::uint16_t>()};
        const std::vector<std::byte>& items = Items(input, rules.nRuleCount);
        // The buffer ends with the items, or anywhere before.
        const std::size_t length = roomChoice == 0 ? items.size() : roomChoice % (items.size() + 1);
        const test::FuzzBlock block(length, (way >> 3) % 8);
        if (length > 0) std::memcpy(block.get(), items.data(), length);
        rules.pRuleBuf = reinterpret_cast<std::uint8_t*>(block.get());
        rules.nRuleLen = static_cast<std::int32_t>(length);
        fuzz::Circumstances around(choice);
        Write(*commands[0], rules, around);
        if (!around.Calm()) std::abort();
        return 0;
    }

    std::string_view source;
    const fuzz::Choice choice = fuzz::ChoiceBehind(input.Rest(), source);
    const test::FuzzBlock text(source.size() + 1, 0);
    std::memcpy(text.get(), source.data(), source.size());
    text.get()[source.size()] = std::byte{0};
    const std::size_t room = roomChoice % (std::size_t{64} << 10);
    const test::FuzzBlock block(room, (way >> 3) % 8);
    std::memset(block.get(), 0x5A, room);
    rules.pRuleBuf = reinterpret_cast<std::uint8_t*>(block.get());
    rules.nRuleLen = static_cast<std::int32_t>(room);
    fuzz::Circumstances around(choice);
    std::uint32_t length = 0;
    std::size_t at = 0; // what the rules take
    const Outcome outcome =
        RunParse(command, {reinterpret_cast<const char*>(text.get()), &rules, sizeof rules, &length});
    if (outcome == Outcome::OutOfMemory && !around.memoryFailed()) std::abort();
    if (outcome == Outcome::Done) {
        // As a client walks it: each item stands whole in the buffer.
        for (std::int32_t i = 0; i < rules.nRuleCount; ++i) {
            if (room - at < kHead) std::abort();
            CFG_RULE_INFO head;
            std::memcpy(&head, block.get() + at, kHead);
            if (head.nRuleSize < 0 || room - at - kHead < static_cast<std::size_t>(head.nRuleSize)) std::abort();
            at += kHead + static_cast<std::size_t>(head.nRuleSize);
        }
        Write(*commands[0], rules, around);
    }
    const bool memoryFailed = around.memoryFailed();
    if (!around.Calm()) std::abort();
    // What was told to be enough is what it takes.
    const std::size_t needed = ORRERY_RuleBytes(command.name.data(), reinterpret_cast<const char*>(text.get()));
    if (outcome == Outcome::Done && !memoryFailed && (needed <= room ? at != needed : at > needed)) std::abort();
    if (!around.Calm()) std::abort();
    return 0;
}
