// Writes the text that devices expect, straight into the caller's buffer:
//
//     { "Enable" : true, "Name" : "Door\/1", "Windows" : [ 1, 2 ] }
//
// Whoever writes members does so in ascending byte order of their keys: record tables are sorted when the library is
// compiled, and keys known only at run time go through a Value, which keeps them in order.
#pragma once

#include "frame/json/Value.h"

#include <cstring>

namespace orrery::json {

class TextWriter {
  public:
    // Never writes past `capacity` bytes; counts on when the room is used up, so that `length()` tells what the text
    // would have needed. `buffer` may be null when `capacity` is 0.
    TextWriter(char* buffer, std::size_t capacity) noexcept
        : begin_(buffer), next_(buffer), end_(buffer + capacity) {}

    void Null() noexcept;
    void Bool(bool flag) noexcept;
    void Int(std::int32_t number) noexcept;
    void UInt(std::uint32_t number) noexcept;
    // The digits of printf's "%#.16g", whatever the locale.
    void Real(double number) noexcept;
    // Quoted, with `"`, `\`, `/` and the bytes 8, 9, 10, 12, 13 escaped; every other byte as it stands.
    void String(std::string_view text) noexcept;

    void BeginArray() noexcept;
    void EndArray() noexcept;
    void BeginObject() noexcept;
    void EndObject() noexcept;
    void Key(std::string_view key) noexcept;

    // A whole value, of any depth and without recursion. False when `arena`, which holds the writer's place on the way
    // down, is exhausted.
    bool Write(const Value& value, Arena& arena) noexcept;

    // The newline that every text ends in.
    void EndText() noexcept;

    // Length of the text so far, whether it fitted or not.
    std::size_t length() const noexcept { return static_cast<std::size_t>(next_ - begin_) + lost_; }
    bool fits() const noexcept { return lost_ == 0; }

  private:
    char* begin_;
    char* next_;
    char* end_;
    std::size_t lost_ = 0;
    bool first_ = true; // nothing stands in front of the next element or member
};

} // namespace orrery::json
