#include "analyse/RuleClasses.h"

namespace orrery {

std::int32_t RuleClassOf(std::string_view name) noexcept {
    return *kRuleClasses.CodeOf(name);
}

std::string_view RuleClassName(std::int32_t number) noexcept {
    const record::Name* const row = kRuleClasses.RowOf(number);
    return row == nullptr ? std::string_view() : row->text;
}

std::string_view TemplateClassName(std::int32_t number) noexcept {
    const record::Name* const row = kTemplateClasses.RowOf(number);
    return row == nullptr ? std::string_view() : row->text;
}

} // namespace orrery
