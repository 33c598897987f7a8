// Replies that every command of a family refuses.
#pragma once

#include "support/Call.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace orrery::test {

// A refused reply, one without a result, and those without a table clear the buffer and leave the length. A buffer that
// is too small keeps what it held.
inline void ExpectRefusalsToFail(const char* command) {
    std::vector<char> buffer(64 << 10, 'x');
    std::uint32_t length = kNoLength;
    const auto parse = [&](const char* document) {
        return CLIENT_ParseData(command, document, buffer.data(), static_cast<std::uint32_t>(buffer.size()), &length);
    };
    EXPECT_EQ(parse(R"({ "result" : false, "params" : { "table" : { } } })"), 0) << command;
    EXPECT_EQ(parse(R"({ "params" : { "table" : { } } })"), 0) << command;
    EXPECT_EQ(parse(R"({ "result" : true, "params" : { "table" : null } })"), 0) << command;
    EXPECT_EQ(parse(R"({ "result" : true })"), 0) << command;
    EXPECT_EQ(buffer, std::vector<char>(buffer.size())) << command;
    EXPECT_EQ(length, kNoLength) << command;
    EXPECT_EQ(parse(R"({ "result" : true, "params" : { "table" : { } } })"), 1) << command;
    char small[3] = {'o', 'l', 'd'}; // the smallest record is a number
    EXPECT_EQ(CLIENT_ParseData(command, "{}", small, sizeof small, nullptr), 0) << command;
    EXPECT_EQ(std::string(small, 3), "old") << command;
}

} // namespace orrery::test
