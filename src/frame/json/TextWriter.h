// Writes the text that devices expect, straight into the caller's buffer:
//
//     { "Enable" : true, "Name" : "Door\/1", "Windows" : [ 1, 2 ] }
//
// Whoever writes members does so in ascending byte order of their keys: record tables are sorted when the library is
// compiled, and keys known only at run time go through a Value, which keeps them in order.
#pragma once

#include "frame/json/Value.h"

#include <charconv>
#include <cstring>

namespace orrery::json {

class TextWriter {
  public:
    // Never writes past `capacity` bytes; counts on when the room is used up, so that `length()` tells what the text
    // would have needed. `buffer` may be null when `capacity` is 0.
    TextWriter(char* buffer, std::size_t capacity) noexcept : begin_(buffer), next_(buffer), end_(buffer + capacity) {}

    void Null() noexcept { Scalar("null", 4); }
    void Bool(bool flag) noexcept { Scalar(flag ? "true" : "false", flag ? 4 : 5); }
    void Int(std::int32_t number) noexcept { Integer(number); }
    void UInt(std::uint32_t number) noexcept { Integer(number); }
    // The digits of printf's "%#.16g", whatever the locale.
    void Real(double number) noexcept;
    // Quoted, with `"`, `\`, `/` and the bytes 8, 9, 10, 12, 13 escaped; every other byte as it stands.
    void String(std::string_view text) noexcept {
        Separate();
        Quote(text);
    }

    void BeginArray() noexcept {
        Separate();
        Append("[ ", 2);
        first_ = true;
    }
    void EndArray() noexcept {
        Append(" ]", 2);
        first_ = false;
    }
    void BeginObject() noexcept {
        Separate();
        Append("{ ", 2);
        first_ = true;
    }
    void EndObject() noexcept {
        Append(" }", 2);
        first_ = false;
    }
    void Key(std::string_view key) noexcept {
        Separate();
        Quote(key);
        Append(" : ", 3);
        first_ = true;
    }
    // A key that is written already, as in `"Enable" : ` with its quotes, its colon and both blanks.
    void RawKey(std::string_view quoted) noexcept {
        Scalar(quoted.data(), quoted.size());
        first_ = true;
    }
    // A string with nothing to escape in it that is quoted already.
    void RawString(std::string_view quoted) noexcept { Scalar(quoted.data(), quoted.size()); }

    // A whole value, of any depth and without recursion. False when `arena`, which holds the writer's place on the way
    // down, is exhausted.
    bool Write(const Value& value, Arena& arena) noexcept;

    // The newline that every text ends in.
    void EndText() noexcept { Append("\n", 1); }

    // Length of the text so far, whether it fitted or not. What did not fit is missing at its end only.
    std::size_t length() const noexcept { return static_cast<std::size_t>(next_ - begin_) + lost_; }
    bool fits() const noexcept { return lost_ == 0; }

  private:
    // Longer than any 32-bit number.
    static constexpr std::ptrdiff_t kIntegerRoom = 12;
    static constexpr std::size_t kSeparator = 2;

    void Append(const char* text, std::size_t size) noexcept {
        if (size <= static_cast<std::size_t>(end_ - next_) && size > 0) [[likely]] {
            std::memcpy(next_, text, size);
            next_ += size;
        } else {
            AppendPart(text, size);
        }
    }
    void Separate() noexcept {
        if (!first_) Append(", ", kSeparator);
        first_ = false;
    }
    // The same where there is room for it.
    void SeparateWithin() noexcept {
        if (!first_) {
            std::memcpy(next_, ", ", kSeparator);
            next_ += kSeparator;
        }
        first_ = false;
    }
    // Texts of a few bytes, as keys and words are: two stores that overlap instead of a call.
    static void CopyShort(char* out, const char* text, std::size_t size) noexcept {
        if (size > 32) {
            std::memcpy(out, text, size);
        } else if (size >= 16) {
            std::memcpy(out, text, 16);
            std::memcpy(out + size - 16, text + size - 16, 16);
        } else if (size >= 8) {
            std::memcpy(out, text, 8);
            std::memcpy(out + size - 8, text + size - 8, 8);
        } else if (size >= 4) {
            std::memcpy(out, text, 4);
            std::memcpy(out + size - 4, text + size - 4, 4);
        } else {
            for (std::size_t i = 0; i < size; ++i)
                out[i] = text[i];
        }
    }
    void Scalar(const char* text, std::size_t size) noexcept {
        if (size + kSeparator <= static_cast<std::size_t>(end_ - next_)) [[likely]] {
            SeparateWithin();
            CopyShort(next_, text, size);
            next_ += size;
        } else {
            Separate();
            Append(text, size);
        }
    }
    template <class Number>
    void Integer(Number number) noexcept {
        if (end_ - next_ >= kIntegerRoom + static_cast<std::ptrdiff_t>(kSeparator)) [[likely]] {
            SeparateWithin();
            if (number >= 0 && number < 10)
                *next_++ = static_cast<char>('0' + number);
            else
                next_ = std::to_chars(next_, end_, number).ptr;
        } else {
            Separate();
            char digits[kIntegerRoom];
            Append(digits, static_cast<std::size_t>(std::to_chars(digits, digits + kIntegerRoom, number).ptr - digits));
        }
    }
    void AppendPart(const char* text, std::size_t size) noexcept;
    void Quote(std::string_view text) noexcept;
    void Escaped(const char* p, const char* end) noexcept;

    char* begin_;
    char* next_;
    char* end_;
    std::size_t lost_ = 0;
    bool first_ = true; // nothing stands in front of the next element or member
};

} // namespace orrery::json
