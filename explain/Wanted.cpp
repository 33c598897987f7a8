#include "explain/Wanted.h"

#include "explain/Finding.h"

#include "analyse/EventTypeRegistry.h"
#include "analyse/RuleBodyMap.h"

namespace orrery::explain {

std::string ResultWanted(ResultTest test) {
    switch (test) {
    case ResultTest::FalseRefuses:
    case ResultTest::Verdict:
        return "true, or absent";
    case ResultTest::ExactBool:
        return "exactly true";
    case ResultTest::IntegerNonZero:
        return "a number other than 0";
    case ResultTest::TextTrue:
        return "true or \"true\"";
    default:
        return "true";
    }
}

std::string Wanted(Take take) {
    switch (take) {
    case Take::OneOrMany:
        return "an object, or a list of records";
    case Take::Many:
        return "a list of records";
    case Take::List:
    case Take::ListOrNone:
        return "a list";
    case Take::ListOrLists:
    case Take::ListOrListsOrBlank:
        return "a list, or a list of lists";
    case Take::ByMember:
    case Take::ByMemberOrNone:
        return "an object with a record a member";
    case Take::Text:
        return "a text";
    default:
        return "a record";
    }
}

std::string Expected(std::string_view message) {
    const auto has = [&](std::string_view part) { return message.find(part) != std::string_view::npos; };
    if (has("value, object or array expected"))
        return "expected a value: an object, a list, a text in quotes, a number, true, false or null";
    if (has("array declaration")) return "expected ',' or ']' in this list";
    if (has("object declaration")) return "expected ',' or '}' in this object";
    if (has("Missing ':'")) return "expected ':' behind the member's name";
    if (has("object member name")) return "expected '}' or the name of a member, in quotes";
    if (has("is not a number")) return "expected a number; this is none";
    return std::string(message);
}

std::string_view NearestRule(std::string_view name) {
    std::vector<std::string_view> names;
    for (const RuleBody& known : RuleBodies())
        names.push_back(RuleNameOf(static_cast<std::int32_t>(known.code), false));
    const auto near = Nearest(name, names);
    return near.empty() ? std::string_view() : near.front();
}

} // namespace orrery::explain
