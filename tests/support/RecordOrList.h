// What all commands share whose reply is a record or a list of them.
#pragma once

#include "support/Call.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace orrery::test {

// `object` is the text of a record that is not clear, `written` that of a clear one as it is packed. `ofNone` is what
// an empty list answers.
template <class R>
void ExpectRecordOrList(const char* command, const std::string& object, const std::string& written,
                        const Answer& ofNone) {
    SCOPED_TRACE(command);
    const Records<R> alone(2, kUntouched);
    EXPECT_EQ(ParseTable(command, object, alone), (Answer{1, sizeof(R)}));
    const R filled = alone[0];
    const R clear{};
    EXPECT_NE(std::memcmp(&filled, &clear, sizeof(R)), 0);
    EXPECT_EQ(std::memcmp(&clear, alone.data() + sizeof(R), sizeof(R)), 0); // the whole buffer is cleared

    const Records<R> many(4, kUntouched);
    EXPECT_EQ(ParseTable(command, "[ " + object + ", null, " + object + " ]", many), (Answer{1, 3 * sizeof(R)}));
    for (const std::size_t i : {0, 2})
        EXPECT_EQ(std::memcmp(&filled, many.data() + i * sizeof(R), sizeof(R)), 0) << i;
    for (const std::size_t i : {1, 3})
        EXPECT_EQ(std::memcmp(&clear, many.data() + i * sizeof(R), sizeof(R)), 0) << i;

    const Records<R> two(2, sizeof(R) - 1, kUntouched); // and all but a byte of a third
    EXPECT_EQ(ParseTable(command, "[ " + object + ", " + object + ", " + object + " ]", two),
              (Answer{1, 2 * sizeof(R)}));
    EXPECT_EQ(std::memcmp(&filled, two.data() + sizeof(R), sizeof(R)), 0);

    const Records<R> none(1, kUntouched);
    EXPECT_EQ(ParseTable(command, "[ ]", none), ofNone);
    EXPECT_TRUE(none.isAll(0));
    for (const char* const table : {"null", "5", "\"x\"", "true"}) {
        const Records<R> records(1, kUntouched);
        EXPECT_EQ(ParseTable(command, table, records), kRefused) << table;
        EXPECT_TRUE(records.isAll(0)) << table;
    }
    const Records<R> small(1, kUntouched);
    std::uint32_t length = kNoLength;
    EXPECT_EQ(CLIENT_ParseData(command, ("{\"result\":true,\"params\":{\"table\":" + object + "}}").c_str(),
                               small.data(), sizeof(R) - 1, &length),
              0);
    EXPECT_TRUE(small.isAll(kUntouched));

    const Records<R> three(3);
    EXPECT_EQ(WithoutNewline(PackBytes(command, three.data(), sizeof(R), kAmple)), written);
    EXPECT_EQ(WithoutNewline(PackBytes(command, three.data(), 2 * sizeof(R) - 1, kAmple)), written);
    EXPECT_EQ(WithoutNewline(PackBytes(command, three.data(), 2 * sizeof(R), kAmple)),
              "[ " + written + ", " + written + " ]");
    EXPECT_EQ(PackBytes(command, three.data(), sizeof(R) - 1, kAmple), kNotBegun);
}

} // namespace orrery::test
