// A command stands in the command map once, whatever its letters' case.
// must not compile, as a note tells: a_command_stands_in_the_map_twice
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
