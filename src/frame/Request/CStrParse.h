// Splits a text such as "10:20:30" at a separator and hands the items out, by index or one after the other.
#pragma once

#include "frame/Request/HeapText.h"

#include <cstdint>

namespace orrery {

class CStrParse {
  public:
    // What stands in for an item that there is not.
    static constexpr const char* strFault = "Access Violation! Possibly a fatal error, check your code.";

    CStrParse() noexcept = default; // the separator is ":"
    CStrParse(const char* text, const char* separator) noexcept;
    CStrParse(const CStrParse&) = delete;
    CStrParse& operator=(const CStrParse&) = delete;
    virtual ~CStrParse() = default;

    // Splits the text. False, with the items as they are, when it or the separator is empty or there is no memory.
    // A text that ends in the separator, its case not told apart, has an empty item behind it.
    bool setText(const char* text) noexcept;
    // For the next text.
    bool setSeparator(const char* separator) noexcept;

    // The item at `index`; from then on a negative index gives the next one each time. strFault behind the last.
    const char* getItem(std::int32_t index) noexcept;
    // The same as a number, 0 when it does not begin with one.
    std::int32_t getInt(std::int32_t index) noexcept;
    std::int32_t getCount() const noexcept { return count_; }

    bool bTrim = true; // blanks, tabs and line ends are taken off both ends of an item

  private:
    HeapText strText_;
    HeapText strSeparator_;
    bool ownSeparator_ = false; // another one than ":" was given
    std::int32_t nIndex_ = 0;   // items handed out so far
    HeapBlock items_;           // the items' addresses, and their texts behind them
    std::int32_t count_ = 0;

    std::string_view Separator() const noexcept;
    bool Split() noexcept;
};

} // namespace orrery
