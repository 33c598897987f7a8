// Records that stand alone or in a list, of callers of every layout and of this library's own.
#pragma once

#include "support/RecordOrList.h"

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
    ExpectRecordOrList<R>(command, object, written, {1, 0});
    for (const char* const document : {"{", "{ }", R"({"result":false,"params":{"table":{}}})", R"({"result":true})"}) {
        const Records<R> records(1, kUntouched);
        EXPECT_EQ(ParseDocument(command, document, records), kRefused) << command << document;
        EXPECT_TRUE(records.isAll(0)) << command << document;
    }
    const Records<R> one(1);
    // A text must be shorter than its buffer.
    EXPECT_EQ(PackBytes(command, one.data(), sizeof(R), written.size() + 1), kFailed);
    EXPECT_EQ(PackBytes(command, one.data(), sizeof(R), written.size() + 2), written + "\n");
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
