// Any text whose keys tell what it carries: every record that is handed over can be read to its last byte, and so can
// every block that it points to, and those of a copy that is kept. What follows the text's terminator chooses the
// circumstances.
#include "Circumstances.h"
#include "analyse/RuleFrame.h"
#include "events/EventMap.h"
#include "events/TypedText.h"
#include "support/EventWalk.h"

#include "orrery/calls.h"
#include "orrery/events_typed.h"

#include <cstdlib>
#include <cstring>
#include <memory>

using namespace orrery;

namespace {

// As a client walks the rules: each item stands whole in the buffer.
void WalkRules(const EVENT_RULE_TABLE& table) {
    if (table.nRuleBufLen < 0 || (table.pRuleBuf == nullptr) != (table.nRuleBufLen == 0)) std::abort();
    const auto length = static_cast<std::size_t>(table.nRuleBufLen);
    std::size_t at = 0;
    for (std::uint32_t i = 0; i < table.dwHead; ++i) {
        if (length - at < sizeof(CFG_RULE_INFO)) std::abort();
        CFG_RULE_INFO head;
        std::memcpy(&head, table.pRuleBuf + at, sizeof head);
        at += sizeof head;
        if (head.nRuleSize < 0 || length - at < static_cast<std::size_t>(head.nRuleSize)) std::abort();
        at += static_cast<std::size_t>(head.nRuleSize);
    }
}

std::uint64_t SumOf(std::uint32_t type, const std::byte* record, std::uint32_t size) {
    if (const events::EventRow* const event = events::FindEvent(type)) return test::SumOfRecord(*event->table, record);
    const events::TypedRow* const row = events::FindTyped(type);
    if (row == nullptr || size % row->table->size != 0 || (!row->isList && size != row->table->size)) std::abort();
    if (type == ORRERY_TYPED_VIDEO_ANALYSE_RULE) {
        WalkRules(*reinterpret_cast<const EVENT_RULE_TABLE*>(record));
        return 0;
    }
    if (type == ORRERY_TYPED_TRAFFIC_FLOW_STAT) {
        // Room that nothing was read into is no list.
        auto flow = *reinterpret_cast<const CFG_TRAFFICFLOWSTAT_INFO*>(record);
        if (flow.nExtraNum > flow.nExtraMax) std::abort();
        if (flow.nExtraNum == 0) flow.pExtraConfigs = nullptr;
        return test::SumOfRecord(*row->table, reinterpret_cast<const std::byte*>(&flow));
    }
    std::uint64_t sum = 0;
    for (std::uint32_t at = 0; at < size; at += row->table->size)
        sum += test::SumOfRecord(*row->table, record + at);
    return sum;
}

std::int32_t Walk(std::uint32_t type, const void* record, std::uint32_t size, void*, std::int32_t, void* user) {
    const auto sumOf = [=](const std::byte* at) { return SumOf(type, at, size); };
    static_cast<test::EventReader*>(user)->Read(type, record, size, sumOf);
    return 0;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view source;
    const fuzz::Choice choice = fuzz::ChoiceBehind({reinterpret_cast<const char*>(data), size}, source);
    // Callers hand over C strings. The copy has no byte to spare behind its terminator.
    const auto text = std::make_unique<char[]>(source.size() + 1);
    if (!source.empty()) std::memcpy(text.get(), source.data(), source.size());
    text[source.size()] = '\0';

    static test::EventReader client;
    client.keepsCopies = (choice.flags & 16) != 0;
    fuzz::Circumstances around(choice);
    const std::int32_t result = CLIENT_ParseDataByCallback(text.get(), 0, Walk, &client);
    if (result != 0 && result != 1) std::abort();
    if (!around.Calm()) std::abort();
    return 0;
}
