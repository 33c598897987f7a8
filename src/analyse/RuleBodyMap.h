// Which record belongs to which rule.
#pragma once

#include "frame/record/Table.h"

#include <cstdint>
#include <span>

namespace orrery {

struct RuleBody {
    std::uint32_t code = 0;
    const record::Table* table = nullptr; // over the rule's object
    std::uint32_t size = 0;
    std::uint32_t week = 0; // where the record holds its week of sections
    record::Slot cleared;   // the client's wish to have that week written as null
    bool isRead = true;     // false: known in every way but not taken from a device

    constexpr RuleBody NotRead() const { return With(*this, &RuleBody::isRead, false); }
};

// All rules with a record, in the order of their codes.
std::span<const RuleBody> RuleBodies() noexcept;
// Null for a code without a record.
const RuleBody* FindRuleBody(std::uint32_t code) noexcept;

// The bytes that a rule's record takes in a buffer; 0 for a code without one. "TrafficNoPassing" has a size but no
// record: it is counted, and refused afterwards.
std::uint32_t RuleRecordSize(std::uint32_t code) noexcept;

} // namespace orrery
