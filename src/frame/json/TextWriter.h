// Writes the text that devices expect, straight into the caller's buffer:
//
//     { "Enable" : true, "Name" : "Door\/1", "Windows" : [ 1, 2 ] }
//
// Whoever writes members does so in ascending byte order of their keys: record tables are sorted when the library is
// compiled, and keys known only at run time go through a Value, which keeps them in order.
#pragma once

#include "frame/json/Digits.h"
#include "frame/json/Value.h"

#include <cstring>

namespace orrery::json {

// Texts of a few bytes, as keys and words are: two stores that overlap instead of a call.
inline char* CopyShort(char* out, const char* text, std::size_t size) noexcept {
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
    return out + size;
}

// Writes a string up to its terminator or to its capacity, in quotes and escaped; `at` has room for TextRoom(capacity)
// bytes. PutAscii answers null when something in it is no ASCII; what stands at `at` then is of no use.
constexpr std::size_t TextRoom(std::size_t capacity) {
    return 2 * capacity + 2;
}
char* PutText(char* at, const char* text, std::size_t capacity) noexcept;
char* PutAscii(char* at, const char* text, std::size_t capacity) noexcept;
inline char* PutText(char* at, const char* text, std::size_t capacity, bool asciiOnly) noexcept {
    return asciiOnly ? PutAscii(at, text, capacity) : PutText(at, text, capacity);
}

class TextWriter {
  public:
    // Never writes past `capacity` bytes; counts on when the room is used up, so that `length()` tells what the text
    // would have needed. `buffer` may be null when `capacity` is 0.
    TextWriter(char* buffer, std::size_t capacity) noexcept : begin_(buffer), next_(buffer), end_(buffer + capacity) {}

    // Moves into a larger block of `arena` whenever the room is used up, until it has `most` bytes: text() tells where
    // it is. An arena that has failed tells of a text that could not be held.
    TextWriter(char* nearby, std::size_t capacity, Arena& arena, std::size_t most) noexcept
        : TextWriter(nearby, capacity) {
        arena_ = &arena;
        most_ = most;
    }

    void Null() noexcept { Scalar("null", 4); }
    void Bool(bool flag) noexcept { Scalar(flag ? "true" : "false", flag ? 4 : 5); }
    void Int(std::int32_t number) noexcept { Integer(number); }
    void UInt(std::uint32_t number) noexcept { Integer(number); }
    // The digits of printf's "%#.16g", whatever the locale.
    void Real(double number) noexcept;
    // Quoted, with `"`, `\`, `/` and the bytes 8, 9, 10, 12, 13 escaped; every other byte as it stands.
    void String(std::string_view text) noexcept;

    void BeginArray() noexcept {
        Scalar("[ ", 2);
        first_ = true;
    }
    void EndArray() noexcept {
        Append(" ]", 2);
        first_ = false;
    }
    void BeginObject() noexcept {
        Scalar("{ ", 2);
        first_ = true;
    }
    void EndObject() noexcept {
        Append(" }", 2);
        first_ = false;
    }
    void Key(std::string_view key) noexcept;
    // A key that is written already, as in `"Enable" : ` with its quotes, its colon and both blanks.
    void RawKey(std::string_view quoted) noexcept {
        Scalar(quoted.data(), quoted.size());
        first_ = true;
    }
    // A string with nothing to escape in it.
    void CleanString(std::string_view clean) noexcept {
        if (char* const at = Room(clean.size() + 2)) {
            next_ = Quoted(Separated(at), clean);
            first_ = false;
            return;
        }
        String(clean);
    }
    // Where the text ends so far, so that what comes behind can be taken back.
    struct Place {
        std::size_t used;
        std::size_t lost;
        bool first;
    };
    Place place() const noexcept { return {static_cast<std::size_t>(next_ - begin_), lost_, first_}; }
    void TakeBack(const Place& place) noexcept {
        next_ = begin_ + place.used;
        lost_ = place.lost;
        first_ = place.first;
    }

    // A whole value, of any depth and without recursion. False when `arena`, which holds the writer's place on the way
    // down, is exhausted.
    bool Write(const Value& value, Arena& arena) noexcept;

    // The newline that every text ends in.
    void EndText() noexcept { Append("\n", 1); }

    // Length of the text so far, whether it fitted or not. What did not fit is missing at its end only.
    std::size_t length() const noexcept { return static_cast<std::size_t>(next_ - begin_) + lost_; }
    bool fits() const noexcept { return lost_ == 0; }
    // What of the text has found room.
    const char* text() const noexcept { return begin_; }

  private:
    friend class Pen;
    friend class Hand;
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
    // Where the next bytes go when there is room for a separator and `size` bytes more; null when there is not. Whoever
    // writes there keeps the place in a variable of its own: any byte stored might, for all the compiler knows, be part
    // of `next_`.
    char* Room(std::size_t size) const noexcept {
        return size + kSeparator <= static_cast<std::size_t>(end_ - next_) ? next_ : nullptr;
    }
    char* Separated(char* at) const noexcept {
        if (first_) return at;
        std::memcpy(at, ", ", kSeparator);
        return at + kSeparator;
    }
    static char* Quoted(char* at, std::string_view clean) noexcept {
        *at = '"';
        char* const end = CopyShort(at + 1, clean.data(), clean.size());
        *end = '"';
        return end + 1;
    }
    void Scalar(const char* text, std::size_t size) noexcept {
        if (char* const at = Room(size)) [[likely]] {
            next_ = CopyShort(Separated(at), text, size);
            first_ = false;
        } else {
            Separate();
            Append(text, size);
        }
    }
    template <class Number>
    void Integer(Number number) noexcept {
        if (char* const at = Room(kIntegerRoom)) [[likely]] {
            next_ = PutDigits(Separated(at), number);
            first_ = false;
        } else {
            Separate();
            char digits[kIntegerRoom];
            Append(digits, static_cast<std::size_t>(PutDigits(digits, number) - digits));
        }
    }
    void AppendPart(const char* text, std::size_t size) noexcept;
    void Grow(std::size_t size) noexcept;
    void Quote(std::string_view text) noexcept;
    void Escaped(const char* p, const char* end) noexcept;

    char* begin_;
    char* next_;
    char* end_;
    std::size_t lost_ = 0;
    Arena* arena_ = nullptr; // null: the room stays as it is
    std::size_t most_ = 0;
    bool first_ = true; // nothing stands in front of the next element or member
};

} // namespace orrery::json
