// The rules of a channel: walked, changed, written, and read again.
#include <cstdio>
#include <orrery/cpp.h>
#include <orrery/orrery.h>
#include <string>

static const char kReply[] =
    R"({ "result" : true, "params" : { "table" : [
         { "Type" : "CrossLineDetection", "Name" : "Fence", "Id" : 1, "Enable" : true },
         { "Type" : "MoveDetection", "Name" : "Yard", "Id" : 2, "Enable" : true } ] } })";

using orrery::commands::VideoAnalyseRule;

// Shows rules and turns lines off; the text of what they are then.
static std::string Walk(const std::string& from) {
    auto rules = orrery::parse_rules<VideoAnalyseRule>(from.c_str());
    if (!rules) return {};
    for (auto rule : *rules) {
        auto line = rule.as<CFG_RULE_CROSSLINE_INFO>();
        if (line) {
            std::printf("%s is %s\n", (*line)->szRuleName, (*line)->bRuleEnable ? "on" : "off");
            (*line)->bRuleEnable = 0;
            rule.put(line->get());
        } else {
            std::printf("rule %d is of type %u\n", rule.id(), static_cast<unsigned>(rule.code()));
        }
    }
    auto text = orrery::pack_rules<VideoAnalyseRule>(*rules);
    return text ? *text : std::string();
}

int main() {
    const std::string text = Walk(kReply);
    if (text.empty()) return 1;
    // What was written is the "table" of a reply, too.
    return Walk(R"({ "result" : true, "params" : { "table" : )" + text + " } }").empty();
}
