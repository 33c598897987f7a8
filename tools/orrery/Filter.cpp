#include "orrery/Filter.h"

#include "frame/JsonParser.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace orrery::tool {

namespace {

std::optional<double> NumberOf(std::string_view text) {
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (text.empty() || read.ec != std::errc() || read.ptr != text.data() + text.size()) return std::nullopt;
    return number;
}

bool HoldsFolded(std::string_view text, std::string_view part) {
    for (std::size_t at = 0; at + part.size() <= text.size(); ++at)
        if (EqualsFolded(text.substr(at, part.size()), part)) return true;
    return false;
}

} // namespace

Filter::Filter(std::string_view text) {
    const std::size_t at = std::min(text.find_first_of("=!<>~"), text.size());
    path_ = text.substr(0, at);
    std::string_view rest = text.substr(at);
    constexpr std::pair<std::string_view, Operator> kOperators[] = {
        {"!=", Operator::Differs}, {"<=", Operator::AtMost}, {">=", Operator::AtLeast}, {"=", Operator::Equal},
        {"<", Operator::Less},     {">", Operator::Greater}, {"~", Operator::Holds}};
    for (const auto& [word, meaning] : kOperators) {
        if (!rest.starts_with(word)) continue;
        operator_ = meaning;
        value_ = rest.substr(word.size());
        number_ = NumberOf(value_);
        rest = {};
    }
    const bool isOrder = operator_ == Operator::Less || operator_ == Operator::AtMost || operator_ == Operator::Greater
                         || operator_ == Operator::AtLeast;
    if (path_.empty() || !rest.empty() || (isOrder && !number_))
        throw std::invalid_argument("--filter " + Quoted(text)
                                    + (isOrder && !path_.empty() ? ": no number to compare with"
                                                                 : ": a member expected, then one of = != < <= > >= ~ "
                                                                   "and a value"));
}

bool Filter::TakesText(std::string_view text) const {
    const std::optional<double> number = NumberOf(text);
    switch (operator_) {
    case Operator::IsThere:
        return !text.empty() && text != "null" && text != "false" && text != "[]" && text != "{}" && number != 0.0;
    case Operator::Equal:
    case Operator::Differs: {
        const bool isEqual = number && number_ ? *number == *number_ : EqualsFolded(text, value_);
        return isEqual == (operator_ == Operator::Equal);
    }
    case Operator::Less:
        return number && *number < *number_;
    case Operator::AtMost:
        return number && *number <= *number_;
    case Operator::Greater:
        return number && *number > *number_;
    case Operator::AtLeast:
        return number && *number >= *number_;
    case Operator::Holds:
        return HoldsFolded(text, value_);
    }
    return false;
}

bool Filter::Takes(const Node* member) const {
    if (member == nullptr) return operator_ == Operator::Differs;
    const Node* const code = member->Find("code");
    const Node* const name = member->Find("name");
    if (code == nullptr || name == nullptr) return TakesText(code != nullptr ? code->Bare() : member->Bare());
    const bool byCode = TakesText(code->Bare());
    const bool byName = TakesText(name->Bare());
    return operator_ == Operator::Differs || operator_ == Operator::IsThere ? byCode && byName : byCode || byName;
}

} // namespace orrery::tool
