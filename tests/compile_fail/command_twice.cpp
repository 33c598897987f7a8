// A command stands in the command table once, whatever its letters' case.
// must not compile: a_command_stands_in_the_table_twice
#include "frame/CommandIndex.h"

using namespace orrery;

constexpr Command Named(std::string_view name) {
    Command command;
    command.name = name;
    return command;
}

#ifdef GOOD
constexpr Command kCommands[] = {Named("Alarm"), Named("NetAlarm")};
#else
constexpr Command kCommands[] = {Named("Alarm"), Named("ALARM")};
#endif
constexpr CommandIndex kIndex(kCommands);
const Command* Found() {
    return kIndex.Find("alarm");
}
