#include "support/FuzzInput.h"

#include <map>

namespace orrery::test {

std::uint32_t FuzzNumberOf(std::string_view commandName) {
    std::uint32_t number = 2166136261u; // FNV-1a
    for (const char c : commandName)
        number = (number ^ static_cast<unsigned char>(c)) * 16777619u;
    return number;
}

const Command& FuzzCommand(std::uint32_t number) {
    static const auto commands = [] {
        std::map<std::uint32_t, Command> byNumber;
        for (const Command& command : AllCommands())
            byNumber.emplace(FuzzNumberOf(command.name), command);
        return byNumber;
    }();
    const auto command = commands.lower_bound(number);
    return command == commands.end() ? commands.begin()->second : command->second;
}

} // namespace orrery::test
