// The texts of enumerations, by code, for both directions of what a client would write by hand. A code without a text
// has an empty one.
#pragma once

#include "support/SensorTexts.h"

#include <string_view>

namespace orrery::bench::byhand {

using test::kAreas;

inline constexpr std::string_view kControls[] = {"Normal", "EnableAlways", "DisableOnce", "DisableAlways"};
inline constexpr std::string_view kLinks[] = {"None", "Preset", "Tour", "Pattern"};
inline constexpr std::string_view kDoors[] = {"", "Auto", "Open", "Close", "OpenAlways", "CloseAlways"};

} // namespace orrery::bench::byhand
