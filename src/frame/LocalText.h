// Text between UTF-8, which documents carry, and the multibyte encoding of the process's locale (LC_CTYPE), which
// records carry. Under UTF-8 and the plain C locale both directions are a bounded copy; any other codeset goes through
// iconv. One object a call: it keeps the conversion descriptors that it needed open until the call ends.
#pragma once

#include "frame/Arena.h"

#include <cstddef>
#include <string_view>

namespace orrery {

class LocalText {
  public:
    // Looks at the locale of the calling thread; `arena` holds the intermediate text of a conversion.
    explicit LocalText(Arena& arena) noexcept;
    LocalText(const LocalText&) = delete;
    LocalText& operator=(const LocalText&) = delete;
    ~LocalText();

    Arena& arena() const noexcept { return arena_; }
    // True when both directions are a bounded copy.
    bool isCopy() const noexcept { return isCopy_; }

    // Converts `length` bytes at `source` into `destination` and terminates the result. Returns the count of bytes
    // written without the terminator; 0, with nothing touched, when a pointer is null or a size is below 1.
    //
    // A text that does not fit keeps as many bytes as fit, possibly with a double-byte character cut in two, and
    // `capacity - 1` is returned.
    int ConvertUtf8ToLocal(const char* source, int length, char* destination, int capacity) noexcept;
    int ConvertLocalToUtf8(const char* source, int length, char* destination, int capacity) noexcept;

  private:
    Arena& arena_;
    bool isCopy_;
    void* toLocal_; // iconv descriptors, opened at first use
    void* toUtf8_;
};

} // namespace orrery
