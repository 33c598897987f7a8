#include "orrery/Suggest.h"

#include "explain/Finding.h"

namespace orrery::tool {

std::string DidYouMean(std::string_view wanted, const std::vector<std::string_view>& names) {
    const auto nearest = explain::Nearest(wanted, names);
    if (nearest.empty()) return {};
    std::string text = "; did you mean ";
    for (std::size_t i = 0; i < nearest.size(); ++i) {
        if (i > 0) text += i + 1 == nearest.size() ? " or " : ", ";
        text += nearest[i];
    }
    return text + "?";
}

} // namespace orrery::tool
