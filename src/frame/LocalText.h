// Text between UTF-8, which documents carry, and the multibyte encoding of the process's locale (LC_CTYPE), which
// records carry. Under UTF-8, the plain C locale and a codeset that iconv does not know both directions are a bounded
// copy; any other codeset goes through iconv. (On Windows it is the process's code page, and the system converts:
// LocalText_Windows.cpp stands in the place of LocalText.cpp.) One object a call: it keeps the conversion descriptors
// that it needed open until the call ends.
//
// What cannot be converted becomes '?', as a code page conversion would have it: one for a character that the other
// encoding lacks, one for the longest well-begun part of a broken UTF-8 sequence, one for each byte that is no
// character of the local encoding.
#pragma once

#include "frame/Arena.h"

#include <cstddef>
#include <string_view>

namespace orrery {

class LocalText {
  public:
    // Looks at the locale of the calling thread; `arena` learns of a conversion for which there is no memory.
    explicit LocalText(Arena& arena) noexcept;
    LocalText(const LocalText&) = delete;
    LocalText& operator=(const LocalText&) = delete;
    ~LocalText();

    Arena& arena() const noexcept { return arena_; }
    // True when both directions are known to be a bounded copy.
    bool isCopy() const noexcept { return isCopy_; }
    // True when both directions leave texts of ASCII as they are.
    bool isCopyOfAscii() const noexcept { return isCopy_ || keepsAscii_; }
    // True when both directions leave this very text as it is.
    bool isCopyOf(std::string_view text) const noexcept { return isCopy_ || (keepsAscii_ && IsAscii(text)); }

    // Converts `length` bytes at `source` into `destination` and terminates the result. Returns the count of bytes
    // written without the terminator; 0, with nothing touched, when a pointer is null or a size is below 1.
    //
    // A text that does not fit keeps as many bytes as fit, possibly with a double-byte character cut in two, and
    // `capacity - 1` is returned.
    int ConvertUtf8ToLocal(const char* source, int length, char* destination, int capacity) noexcept;
    int ConvertLocalToUtf8(const char* source, int length, char* destination, int capacity) noexcept;

  private:
    static bool IsAscii(std::string_view text) noexcept;
    // The descriptor in `slot`, opened at first use. Null when iconv knows no such codeset, and isCopy_ from then on,
    // or when there is no memory, and the arena has failed.
    void* Open(void*& slot, const char* to, const char* from) noexcept;

    Arena& arena_;
    bool isCopy_;
    bool keepsAscii_ = false; // the codeset is not UTF-8, yet has ASCII at its place
    char codeset_[48];
    void* toLocal_ = nullptr; // iconv descriptors
    void* toUtf8_ = nullptr;
};

} // namespace orrery
