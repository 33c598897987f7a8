// The frame of the packed rule buffer: a list of rules of mixed types <-> items of a head and a record each.
#pragma once

#include "frame/Frames.h"
#include "frame/PackedItems.h"
#include "frame/json/Value.h"
#include "frame/record/Engine.h"

#include "orrery/analyse_rules.h"

namespace orrery {

// The descriptor of a rule buffer.
extern const record::TypedTable<CFG_ANALYSERULES_INFO> kAnalyseRules;
// The head of an item.
extern const record::TypedTable<CFG_RULE_INFO> kRuleInfo;

// The types of items.
inline constexpr std::uint32_t kRuleTypes = 84;
ItemType RuleTypeAt(std::uint32_t index) noexcept;
ItemType RuleTypeOf(std::uint32_t code) noexcept;
// The items behind a descriptor.
constexpr PackedItems RuleItems(std::size_t pointer, record::Slot count, record::Slot bytes) {
    return {
        .pointer = static_cast<std::uint32_t>(pointer),
        .count = count,
        .bytes = bytes,
        .head = &kRuleInfo,
        .code = record::MakeSlot<decltype(CFG_RULE_INFO::dwRuleType)>(offsetof(CFG_RULE_INFO, dwRuleType)),
        .size = record::MakeSlot<decltype(CFG_RULE_INFO::nRuleSize)>(offsetof(CFG_RULE_INFO, nRuleSize)),
        .most = ORRERY_MOST_RULES,
        .typeCount = kRuleTypes,
        .typeAt = RuleTypeAt,
        .typeOf = RuleTypeOf,
    };
}

// "VideoAnalyseRule" and "AudioAnalyseRule": the rules stand in the reply's table.
Outcome ParseAnalyseRules(const ParseRequest& request) noexcept;
Outcome PackAnalyseRules(const PackRequest& request) noexcept;
// "IVSFramRule": they stand at the reply's top level, under another command's name.
Outcome ParseFrameRules(const ParseRequest& request) noexcept;

// Bytes that a list of rules takes in a buffer; 0 when one of its types has no record.
std::uint32_t RuleArraySizeNeeded(const json::Value& array) noexcept;
// Reads the rules into the buffer of `rules` and counts them there.
Outcome ReadRuleArray(const json::Value& array, CFG_ANALYSERULES_INFO& rules, record::ReadCall& call) noexcept;
// The same of a template, an object whose members are the rules. A member that is null counts and takes no item.
Outcome ReadRuleTemplate(const json::Value& rules, CFG_ANALYSERULES_INFO& into, record::ReadCall& call) noexcept;
// Writes the items of `rules` as one list.
Outcome WriteRuleArray(const CFG_ANALYSERULES_INFO& rules, record::WriteCall& call) noexcept;

// One record from its rule, whatever the rule's type says; false for a code without a record.
bool ParseRuleBody(std::uint32_t code, const json::Value& rule, std::byte* body, record::ReadCall& call) noexcept;
// One rule as a value. `general` is the CFG_RULE_GENERAL_INFO of its head. False for a code without a record.
bool PackRuleBody(std::uint32_t code, const std::byte* general, const std::byte* body, bool writeLinkage,
                  record::WriteCall& call) noexcept;

} // namespace orrery
