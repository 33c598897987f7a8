// Names near a misspelt one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orrery::tool {

// "; did you mean A, B or C?", at most three, the nearest first; case does not count. Empty when nothing is near.
std::string DidYouMean(std::string_view wanted, const std::vector<std::string_view>& names);

} // namespace orrery::tool
