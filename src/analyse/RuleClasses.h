// Classes of rules, a word beside the type.
#pragma once

#include <cstdint>
#include <string_view>

namespace orrery {

// The number of the class of that name, 0 for a name that is not known.
std::int32_t RuleClassOf(std::string_view name) noexcept;
// Empty for 0 and for a number of no class.
std::string_view RuleClassName(std::int32_t number) noexcept;

} // namespace orrery
