// Names of commands, as tests list them by what they do.
#pragma once

#include <algorithm>
#include <set>
#include <string_view>

namespace orrery::test {

using Names = std::set<std::string_view>;

// The words of a line.
inline Names NamesIn(std::string_view line) {
    Names names;
    while (!line.empty()) {
        const std::string_view name = line.substr(0, line.find(' '));
        names.insert(name);
        line.remove_prefix(std::min(name.size() + 1, line.size()));
    }
    return names;
}

} // namespace orrery::test
