// Lists as they stand in a text: [ one, two ].
#pragma once

#include <string>

namespace orrery::test {

template <class Make>
std::string ListText(int count, Make make) {
    std::string list = "[ ";
    for (int i = 0; i < count; ++i)
        (list += i > 0 ? ", " : "") += make(i);
    return list + " ]";
}

inline std::string Quoted(const std::string& text) {
    return '"' + text + '"';
}

} // namespace orrery::test
