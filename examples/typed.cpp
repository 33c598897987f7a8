// The library by types: a reply as a record, rules walked and changed, events that stay.
//   c++ -std=c++11 typed.cpp $(pkg-config --cflags --libs orrery)
#include <cstdio>
#include <orrery/cpp.h>
#include <orrery/orrery.h>

static const char kClock[] =
    R"({ "result" : true, "params" : { "table" : { "Enable" : true, "Address" : "pool", "Port" : 123 } } })";
static const char kRules[] =
    R"({ "result" : true, "params" : { "table" : [
         { "Type" : "CrossLineDetection", "Name" : "Fence", "Id" : 1, "Enable" : true },
         { "Type" : "MoveDetection", "Name" : "Yard", "Id" : 2, "Enable" : true } ] } })";
static const char kEvents[] =
    R"({ "Event" : [ { "Code" : "TrafficOverSpeed", "Data" : { "Speed" : 88 } }, { "Code" : "AccessControl" } ] })";

int main() {
    // README: begin
    auto clock = orrery::parse<CFG_NTP_INFO>(kClock);
    if (!clock) return 1;
    (*clock)->nPort = 1123;
    std::puts(orrery::pack(clock->get()).value().c_str());

    auto rules = orrery::parse_rules<orrery::commands::VideoAnalyseRule>(kRules);
    if (!rules) return 1;
    for (auto rule : *rules) {
        auto line = rule.as<CFG_RULE_CROSSLINE_INFO>();
        if (!line) continue;
        (*line)->bRuleEnable = 0;
        rule.put(line->get());
    }
    std::puts(orrery::pack_rules<orrery::commands::VideoAnalyseRule>(*rules).value().c_str());

    for (auto event : *orrery::events(kEvents)) {
        if (auto* fast = event.as<DEV_EVENT_TRAFFICOVERSPEED_INFO>()) std::printf("%d km/h\n", (int)fast->nSpeed);
    }
    // README: end
}
