// Texts converted between UTF-8 and the encoding of records, in a room whose end is watched.
#pragma once

#include "frame/LocalText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace orrery::test {

template <class Convert>
std::string Converted(std::string_view source, int capacity, Convert convert) {
    std::string room(static_cast<std::size_t>(capacity) + 4, '#');
    const int count = convert(source.data(), static_cast<int>(source.size()), room.data(), capacity);
    EXPECT_LT(count, capacity);
    EXPECT_EQ(room[static_cast<std::size_t>(count)], '\0');
    EXPECT_EQ(room.substr(static_cast<std::size_t>(capacity)), "####") << "written past the capacity";
    return room.substr(0, static_cast<std::size_t>(count));
}

inline std::string ToLocal(LocalText& text, std::string_view source, int capacity) {
    return Converted(source, capacity, [&](auto... words) { return text.ConvertUtf8ToLocal(words...); });
}

inline std::string ToUtf8(LocalText& text, std::string_view source, int capacity) {
    return Converted(source, capacity, [&](auto... words) { return text.ConvertLocalToUtf8(words...); });
}

} // namespace orrery::test
