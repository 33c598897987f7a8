// Records that stand alone or in a list, of callers of every layout and of this library's own.
#pragma once

#include "support/Call.h"

#include <gtest/gtest.h>
#include <string>

namespace orrery::test {

// One record of a caller that was compiled with this layout.
template <class R>
Parsed<R> ParseSized(const char* command, const std::string& table) {
    Parsed<R> parsed;
    std::memset(static_cast<void*>(parsed.record.get()), kUntouched, sizeof(R));
    parsed.record->dwSize = sizeof(R);
    const std::string document = R"({ "result" : true, "params" : { "table" : )" + table + " } }";
    parsed.result = CLIENT_ParseData(command, document.c_str(), parsed.record.get(), sizeof(R), &parsed.length);
    return parsed;
}

// What the commands without size words share. `object` is the text of a record that is not clear, `written` that of a
// clear one as it is packed.
template <class R>
void ExpectOneOrMany(const char* command, const std::string& object, const std::string& written) {
    SCOPED_TRACE(command);
    const R clear{};
    const Records<R> alone(2, kUntouched);
    EXPECT_EQ(ParseTable(command, object, alone), (Answer{1, sizeof(R)}));
    const R filled = alone[0];
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

    const Records<R> none(1, kUntouched);
    EXPECT_EQ(ParseTable(command, "[ ]", none), (Answer{1, 0}));
    EXPECT_TRUE(none.isAll(0));
    for (const char* const table : {"null", "5", "\"x\"", "true"}) {
        const Records<R> records(1, kUntouched);
        EXPECT_EQ(ParseTable(command, table, records), kRefused) << table;
        EXPECT_TRUE(records.isAll(0)) << table;
    }
    for (const char* const document : {"{", "{ }", R"({"result":false,"params":{"table":{}}})", R"({"result":true})"}) {
        const Records<R> records(1, kUntouched);
        EXPECT_EQ(ParseDocument(command, document, records), kRefused) << document;
        EXPECT_TRUE(records.isAll(0)) << document;
    }
    const Records<R> small(1, kUntouched);
    EXPECT_EQ(CLIENT_ParseData(command, ("{\"result\":true,\"params\":{\"table\":" + object + "}}").c_str(),
                               small.data(), sizeof(R) - 1, nullptr),
              0);
    EXPECT_TRUE(small.isAll(kUntouched));

    const Records<R> three(3);
    EXPECT_EQ(WithoutNewline(PackBytes(command, three.data(), sizeof(R), kAmple)), written);
    EXPECT_EQ(WithoutNewline(PackBytes(command, three.data(), 2 * sizeof(R) - 1, kAmple)), written);
    EXPECT_EQ(WithoutNewline(PackBytes(command, three.data(), 2 * sizeof(R), kAmple)),
              "[ " + written + ", " + written + " ]");
    EXPECT_EQ(PackBytes(command, three.data(), sizeof(R) - 1, kAmple), kNotBegun);
    // A text must be shorter than its buffer.
    EXPECT_EQ(PackBytes(command, three.data(), sizeof(R), written.size() + 1), kFailed);
    EXPECT_EQ(PackBytes(command, three.data(), sizeof(R), written.size() + 2), written + "\n");
}

// A text with one character more than the member holds, its terminator included.
#define EXPECT_ROOM(parsed, member, count)                                                                             \
    do {                                                                                                               \
        EXPECT_EQ(std::strlen((parsed)->member), std::size_t{count} - 1);                                              \
        EXPECT_EQ(sizeof((parsed)->member), std::size_t{count});                                                       \
    } while (false)

// A table whose texts all are longer than any member.
inline std::string LongTexts(std::initializer_list<const char*> keys) {
    std::string table = "{ ";
    for (const char* const key : keys)
        table += (table.size() > 2 ? ", \"" : "\"") + std::string(key) + "\" : \"" + std::string(2000, 'x') + '"';
    return table + " }";
}

} // namespace orrery::test
