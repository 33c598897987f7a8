#include "orrery/ShowTemplate.h"

#include "orrery/Diagnose.h"
#include "orrery/PrintRecord.h"
#include "orrery/Suggest.h"

#include "analyse/RuleBodyMap.h"
#include "analyse/RuleClasses.h"
#include "analyse/Templates.h"
#include "frame/JsonParser.h"

#include <algorithm>
#include <new>
#include <vector>

namespace orrery::tool {

namespace {

Result Refuse(const std::string& why) {
    return {kRefused, {}, "orrery: " + why + "\n"};
}

// Room for as many rules as a channel has, whatever their types.
std::size_t RoomForRules() {
    std::size_t largest = 0;
    for (const RuleBody& body : RuleBodies())
        largest = std::max<std::size_t>(largest, body.size);
    return ORRERY_MOST_RULES * (sizeof(CFG_RULE_INFO) + largest);
}

std::string Explain(Outcome outcome) {
    switch (outcome) {
    case Outcome::Refused:
        return "the device refused the call: \"result\" is not true";
    case Outcome::BadItem:
        return "a rule lacks its \"Type\" or \"Class\", or is of a type without a record";
    case Outcome::OutOfMemory:
        return "out of memory";
    default:
        return "the reply can't be read";
    }
}

Result Show(const TemplateRow& row, std::int32_t ruleClass, const Document& document, const TemplateOptions& options) {
    std::vector<std::byte> record(row.table->size);
    std::vector<std::uint8_t> items;
    if (row.table->items != nullptr) {
        items.resize(RoomForRules());
        CFG_ANALYSERULES_INFO rules{};
        rules.pRuleBuf = items.data();
        rules.nRuleLen = static_cast<std::int32_t>(items.size());
        std::memcpy(record.data(), &rules, sizeof rules);
    }
    const std::string text(document.text);
    const Outcome outcome =
        row.read(ruleClass, {text.c_str(), record.data(), static_cast<std::uint32_t>(record.size()), nullptr});
    if (outcome != Outcome::Done) return Refuse(Explain(outcome));
    Result result;
    result.out = PrintRecord(*row.table, record.data(), PrintOptions{options.all}).Print();
    const std::string name(TemplateClassName(ruleClass));
    if (row.isByClass && document.root["params"][name].isNull())
        result.err = "orrery: note: the reply has no \"params\".\"" + name + "\"; the record is empty\n";
    return result;
}

} // namespace

Result ShowTemplate(std::string_view command, std::string_view text, const TemplateOptions& options) {
    try {
        const auto rows = Templates();
        const auto row = std::find_if(rows.begin(), rows.end(),
                                      [&](const TemplateRow& known) { return EqualsFolded(known.name, command); });
        if (row == rows.end()) {
            std::vector<std::string_view> names;
            for (const TemplateRow& known : rows)
                names.push_back(known.name);
            return Refuse("no template command " + Printable(Quoted(command)) + DidYouMean(command, names));
        }
        std::int32_t ruleClass = CFG_RULE_CLASS_NONE;
        std::vector<std::string_view> classes;
        for (std::int32_t number = 1; number < kTemplateClasses.count; ++number) {
            classes.push_back(TemplateClassName(number));
            if (EqualsFolded(classes.back(), options.ruleClass)) ruleClass = number;
        }
        if (row->isByClass && options.ruleClass.empty()) return Refuse("this template is of a class: see --class");
        if (ruleClass == CFG_RULE_CLASS_NONE && !options.ruleClass.empty()) {
            return Refuse("no class with templates is named " + Printable(Quoted(options.ruleClass))
                          + DidYouMean(options.ruleClass, classes));
        }
        const Document document(text);
        if (!document.ok) return Refuse(ExplainSyntax(document));
        return Show(*row, ruleClass, document, options);
    } catch (const std::bad_alloc&) {
        return Refuse("out of memory");
    }
}

} // namespace orrery::tool
