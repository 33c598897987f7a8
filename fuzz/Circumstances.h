// What surrounds a call besides its arguments: a locale whose texts have to be converted, a log sink that listens, a
// heap that has nothing left. An input chooses them by four bytes.
#pragma once

#include "support/FailingAllocator.h"

#include "orrery/log.h"

#include <cstdint>
#include <optional>
#include <string_view>

#include <locale.h>

namespace orrery::fuzz {

struct Choice {
    std::uint8_t locale = 0;      // 0: the plain C locale
    std::uint8_t flags = 0;       // 1: a sink listens; 2: an allocation fails, 4: and all behind it
    std::uint16_t allocation = 0; // which, counted from 0
};

// What follows the terminator of a text chooses; missing bytes are 0. `text` is what stands before it.
Choice ChoiceBehind(std::string_view input, std::string_view& text);

class Circumstances {
  public:
    explicit Circumstances(const Choice& choice);
    Circumstances(const Circumstances&) = delete;
    Circumstances& operator=(const Circumstances&) = delete;
    ~Circumstances();

    // Whether an allocation has failed: then a call may have failed for it.
    bool memoryFailed() const { return heap_ && heap_->failures() > 0; }
    // The rest runs with all the memory there is. False when something that was allocated before is not freed.
    bool Calm();

  private:
    bool listens_;
    locale_t former_;
    std::optional<test::HeapWatch> heap_;
};

} // namespace orrery::fuzz
