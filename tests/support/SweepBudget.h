// The work of a sweep over all commands, shared out among them, so that its time does not grow with their number.
#pragma once

#include "support/Specimens.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace orrery::test {

// Bytes that one sweep may read, write and compare; each command has an equal share of them. Counted, never timed, so
// that every run does the same.
class SweepBudget {
  public:
    explicit SweepBudget(std::size_t bytes = std::size_t{600} << 20, std::size_t commands = DistinctCommands().size())
        : share_(bytes / std::max<std::size_t>(commands, 1)) {}

    // Rounds of a command of which each takes so many bytes: at least `least`, at most `most`.
    std::size_t Rounds(std::size_t bytes, std::size_t least, std::size_t most) const {
        return std::clamp(share_ / std::max<std::size_t>(bytes, 1), std::min(least, most), most);
    }

  private:
    std::size_t share_;
};

// Takes `taken` of `all`, evenly spread; which ones depends on the command alone.
class Spread {
  public:
    Spread(std::size_t all, std::size_t taken, std::size_t phase) : all_(all), taken_(taken), sum_(phase % all_) {}

    bool Takes() {
        sum_ += taken_;
        if (sum_ < all_) return false;
        sum_ -= all_;
        return true;
    }

  private:
    std::size_t all_;
    std::size_t taken_;
    std::size_t sum_;
};

} // namespace orrery::test
