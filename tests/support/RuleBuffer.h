// A rule buffer that ends at an unreadable page, and calls that use it.
#pragma once

#include "orrery/analyse_rules.h"
#include "support/GuardedBuffer.h"
#include "support/JsonText.h"
#include "support/RuleText.h"

#include "orrery/calls.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::test {

struct RuleBuffer {
    explicit RuleBuffer(std::size_t size) : memory(size) {
        std::memset(memory.data(), 0x5A, size);
        rules.nRuleCount = -77;
        rules.pRuleBuf = reinterpret_cast<std::uint8_t*>(memory.data());
        rules.nRuleLen = static_cast<std::int32_t>(size);
    }

    bool Parse(const std::string& text, const char* command = "VideoAnalyseRule") {
        return CLIENT_ParseData(command, text.c_str(), &rules, sizeof rules, &length) != 0;
    }
    // The text without its newline; "(refused)" when the call answered 0.
    std::string Pack(const char* command = "VideoAnalyseRule") const {
        std::vector<char> text(std::size_t{4} << 20);
        if (CLIENT_PacketData(command, &rules, sizeof rules, text.data(), static_cast<std::uint32_t>(text.size())) == 0)
            return "(refused)";
        std::string packed(text.data());
        if (packed.empty() || packed.back() != '\n') return "(no newline)" + packed;
        packed.pop_back();
        return packed;
    }

    // Item by offset.
    CFG_RULE_INFO Head(std::size_t offset = 0) const {
        CFG_RULE_INFO head;
        std::memcpy(&head, memory.data() + offset, sizeof head);
        return head;
    }
    template <class R>
    void Load(R& body, std::size_t offset = 0) const {
        std::memcpy(&body, memory.data() + offset + sizeof(CFG_RULE_INFO), sizeof body);
    }
    // Adds an item behind those that stand there.
    template <class R>
    void Add(std::uint32_t code, const R& body, std::int32_t size = sizeof(R)) {
        CFG_RULE_INFO head = {};
        head.dwRuleType = code;
        head.nRuleSize = size;
        std::memcpy(memory.data() + used, &head, sizeof head);
        std::memcpy(memory.data() + used + sizeof head, &body, sizeof body);
        used += sizeof head + static_cast<std::size_t>(size);
        rules.nRuleCount = rules.nRuleCount < 0 ? 1 : rules.nRuleCount + 1;
    }
    bool IsUntouched() const {
        for (char byte : memory.view())
            if (byte != 0x5A) return false;
        return true;
    }
    bool IsClear(std::size_t from = 0) const {
        for (char byte : memory.view().substr(from))
            if (byte != 0) return false;
        return true;
    }

    GuardedBuffer memory;
    CFG_ANALYSERULES_INFO rules = {};
    std::uint32_t length = 0xABCD;
    std::size_t used = 0;
};

// The text of any JSON in the library's own form: members in order, its blanks, its digits.
inline std::string Normalised(const std::string& text) {
    Document document(text);
    return document.ok ? TextOf(document.root) : "(no JSON) " + text;
}

} // namespace orrery::test
