// Rules in groups, each under the name of its type.
#include "explain/WalkParts.h"
#include "explain/Wanted.h"

#include "analyse/EventTypeRegistry.h"
#include "analyse/RuleBodyMap.h"

namespace orrery::explain {

using namespace record;
using json::Type;
using json::Value;

void Walk::Groups(const Site& site, const Value& value) {
    if (value.type() != Type::Object) {
        WrongType(value, site, "an object of rules by their types");
        return;
    }
    const std::uint32_t room = site.field.dims[0];
    std::uint32_t used = 0, lost = 0;
    for (const json::Member& member : value.members()) {
        const auto code = static_cast<std::uint32_t>(RuleCodeFromName(member.key()));
        const Path inner = site.path.Member(member.key());
        const Site own{site.table, site.field, inner};
        if (code == 0 || RuleRecordSize(code) == 0) {
            const std::string_view near = NearestRule(member.key());
            Finding& finding =
                Add(ORRERY_FINDING_UNKNOWN_ITEM, ORRERY_FINDING_LOST, member.value, own,
                    Joined({"no rule is of the type ", Quoted(member.key()), near.empty() ? "" : "; the nearest is ",
                            near.empty() ? "" : Quoted(near), ": the group is passed over"}));
            finding.atKey = true;
            finding.nearest = near;
            ++left;
            continue;
        }
        if (used == room) {
            ++lost;
            continue;
        }
        ++used;
        ++read;
        const RuleBody* const body = FindRuleBody(code);
        groupRules_ = body == nullptr ? nullptr : body->table;
        Record(*site.field.table, member.value, inner, true, &own, false);
    }
    if (lost == 0) return;
    Finding& finding = Add(ORRERY_FINDING_ELEMENTS_DROPPED, ORRERY_FINDING_LOST, value, site,
                           Joined({Plural(used + lost, "group"), ", room for ", std::to_string(room), ": ",
                                   std::to_string(lost), lost == 1 ? " is dropped" : " are dropped"}));
    finding.lost = lost;
}

void Walk::GroupRules(const Site& site, const Value& value) {
    if (value.type() != Type::Array) {
        WrongType(value, site, "a list of rules");
        return;
    }
    if (groupRules_ == nullptr && value.size() > 0) {
        Add(ORRERY_FINDING_UNKNOWN_ITEM, ORRERY_FINDING_LOST, value, site,
            "rules of this type are counted, and nothing of them is read");
        return;
    }
    std::uint32_t at = 0;
    for (const Value& rule : value.elements()) {
        const Path inner = site.path.Element(at++);
        const Site own{site.table, site.field, inner};
        if (rule.isNull())
            Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, rule, own, "null: a rule without keys");
        else
            Record(*groupRules_, rule, inner, true, &own, false);
    }
}

} // namespace orrery::explain
