// The codes of analysis rules by their names, for rows.
#pragma once

#include "analyse/RuleNames.h"
#include "frame/record/Names.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orrery {

namespace rulecodes {

constexpr bool IsRead(const events::RuleName& row) {
    return row.way != events::Way::WriteOnly;
}
inline constexpr auto kRead = [] {
    std::array<std::uint16_t, std::count_if(std::begin(events::kRuleNames), std::end(events::kRuleNames), IsRead)>
        rows{};
    std::uint16_t count = 0;
    for (std::uint16_t i = 0; i < std::size(events::kRuleNames); ++i) {
        if (IsRead(events::kRuleNames[i])) rows[count++] = i;
    }
    return rows;
}();
template <class>
struct RowsOf;
template <std::size_t... I>
struct RowsOf<std::index_sequence<I...>> {
    static constexpr record::Name rows[] = {
        {events::kRuleNames[kRead[I]].code, events::kRuleNames[kRead[I]].text}...,
    };
    static constexpr record::NameIndex index = record::IndexOver(rows);
};
using Rows = RowsOf<std::make_index_sequence<kRead.size()>>;

} // namespace rulecodes

// What RuleCodeFromName reads: case counts, and a name that is not known is 0.
inline constexpr record::NameTable kRuleCodes =
    record::NamesOver(rulecodes::Rows::rows, record::kExact, rulecodes::Rows::index);

} // namespace orrery
