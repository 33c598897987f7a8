// Texts that are longer than the fields they come to, for tables of fields with their room.
#pragma once

#include "support/Events.h"

#include <cstddef>
#include <gtest/gtest.h>

namespace orrery::test {

// { "A" : [ { "B" : value } ] } for the path "A[]/B".
inline std::string DataOf(std::string_view path, std::string_view value) {
    const std::size_t slash = path.find('/');
    std::string_view key = path.substr(0, slash);
    std::string inner = slash == std::string_view::npos ? std::string(value) : DataOf(path.substr(slash + 1), value);
    if (key.ends_with("[]")) {
        key.remove_suffix(2);
        inner = "[" + inner + "]";
    }
    return "{\"" + std::string(key) + "\":" + inner + "}";
}

struct TextField {
    const char* event;
    const char* path;
    std::size_t offset; // in the event's record
    std::size_t room;   // with the terminator
};

// A text fills its field up to the terminator and goes no further.
inline void ExpectCut(const TextField& field) {
    EXPECT_TRUE(DecodeOne(field.event, DataOf(field.path, '"' + std::string(400, 'x') + '"'),
                          [&](const Delivered& event) {
                              ASSERT_LE(field.offset + field.room, event.size);
                              const char* const text = static_cast<const char*>(event.record) + field.offset;
                              EXPECT_EQ(std::string(text, field.room - 1), std::string(field.room - 1, 'x'));
                              EXPECT_EQ(text[field.room - 1], '\0');
                          }))
        << field.event << ' ' << field.path;
}

} // namespace orrery::test
