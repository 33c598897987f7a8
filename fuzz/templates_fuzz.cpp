// Replies with templates. The input: one byte for the method and the alignment, one for the class, four for the room of
// rules; then the text. What follows its terminator chooses the circumstances.
#include "Circumstances.h"
#include "analyse/Templates.h"
#include "support/FuzzInput.h"

#include "orrery/calls.h"
#include "orrery/helpers.h"

#include <cstdlib>
#include <cstring>
#include <memory>

using namespace orrery;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    test::FuzzInput input(data, size);
    const auto way = input.Take<std::uint8_t>();
    const auto classType = static_cast<std::int8_t>(input.Take<std::uint8_t>());
    const auto roomChoice = input.Take<std::uint32_t>();
    const TemplateRow& row = Templates()[way % Templates().size()];

    std::string_view source;
    const fuzz::Choice choice = fuzz::ChoiceBehind(input.Rest(), source);
    const test::FuzzBlock text(source.size() + 1, 0);
    if (!source.empty()) std::memcpy(text.get(), source.data(), source.size());
    text.get()[source.size()] = std::byte{0};

    const test::FuzzBlock record(row.table->size, way >> 5);
    std::memset(record.get(), 0x5A, row.table->size);
    const std::size_t room = roomChoice % (std::size_t{64} << 10);
    const test::FuzzBlock items(room, 1);
    std::memset(items.get(), 0x5A, room);
    const bool hasItems = row.table->items != nullptr;
    CFG_ANALYSERULES_INFO rules{-1, reinterpret_cast<std::uint8_t*>(items.get()), static_cast<std::int32_t>(room)};
    if (hasItems) std::memcpy(record.get(), &rules, sizeof rules);

    const std::string name(row.name);
    if ((roomChoice >> 31) != 0 && ORRERY_SetSizeWords(name.c_str(), record.get(), row.table->size) != 1) std::abort();
    fuzz::Circumstances around(choice);
    const int reserved = 0;
    const std::int32_t result = CLIENT_ParseVideoInAnalyse(
        name.c_str(), classType, reinterpret_cast<const char*>(text.get()), &reserved, record.get(), row.table->size);
    if (result != 0 && result != 1) std::abort();
    if (hasItems) {
        std::memcpy(&rules, record.get(), sizeof rules);
        if (rules.nRuleLen != static_cast<std::int32_t>(room) || (result == 0 && rules.nRuleCount != -1)) std::abort();
        // As a client walks it: each item stands whole in the buffer.
        std::size_t at = 0;
        for (std::int32_t i = 0; i < rules.nRuleCount; ++i) {
            if (room - at < sizeof(CFG_RULE_INFO)) std::abort();
            CFG_RULE_INFO head;
            std::memcpy(&head, items.get() + at, sizeof head);
            at += sizeof head;
            if (head.nRuleSize < 0 || room - at < static_cast<std::size_t>(head.nRuleSize)) std::abort();
            at += static_cast<std::size_t>(head.nRuleSize);
        }
    }
    if (!around.Calm()) std::abort();
    return 0;
}
