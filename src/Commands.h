// The command map, the map of the system: every command's name, its record and the frames that serve it.
#pragma once

#include "frame/Command.h"

#include <span>
#include <string_view>

namespace orrery {

// All commands, in the order of the table.
std::span<const Command> Commands() noexcept;
// The command of that name, ASCII case folded and nothing else; null when there is none.
const Command* FindCommand(std::string_view name) noexcept;

} // namespace orrery
