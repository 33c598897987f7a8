// Events that outlive the text: orrery::events() copies each, with all that its pointers lead to.
#include <cstdio>
#include <orrery/cpp.h>
#include <orrery/orrery.h>

static const char kText[] =
    R"({ "Event" : [
         { "Code" : "TrafficOverSpeed", "Action" : "Pulse",
           "Data" : { "Lane" : 2, "Speed" : 88, "TrafficCar" : { "PlateNumber" : "A12345" } } },
         { "Code" : "AccessControl", "Index" : 1, "Action" : "Pulse", "Data" : { "CardNo" : "4711" } } ] })";

int main() {
    auto events = orrery::events(kText);
    if (!events) return 1;
    std::printf("%zu events\n", events->size());
    for (auto event : *events) {
        if (auto* fast = event.as<DEV_EVENT_TRAFFICOVERSPEED_INFO>())
            // a plate may fill its field, without a terminator
            std::printf("%.32s drives %d km/h on lane %d\n", fast->stuTrafficCar.szPlateNumber,
                        static_cast<int>(fast->nSpeed), static_cast<int>(fast->nLane));
        else if (auto* access = event.as<DEV_EVENT_ACCESSCONTROL_INFO>())
            std::printf("card %s\n", access->szCardNo);
    }
}
