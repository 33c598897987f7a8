// Calls of the generic frame's commands, and what their records have in common.
#pragma once

#include "support/Call.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace orrery::test {

// Calls add to the length that they find.
inline constexpr std::uint32_t kBefore = 1000;

template <class R>
Answer ParseAdding(const char* command, const std::string& table, const Records<R>& records) {
    const std::string document = R"({ "result" : true, "params" : { "table" : )" + table + " } }";
    std::uint32_t length = kBefore;
    const auto result = CLIENT_ParseData(command, document.c_str(), records.data(), records.size(), &length);
    return {result, length};
}

template <class R>
constexpr Answer HasRead(std::uint32_t records) {
    return {1, static_cast<std::uint32_t>(kBefore + records * sizeof(R))};
}

// One record of bytes that no reading leaves.
template <class R>
R ReadOne(const char* command, const std::string& table) {
    const Records<R> record(1, 0x5A);
    EXPECT_EQ(ParseAdding(command, table, record), HasRead<R>(1)) << command << table;
    return record[0];
}

// `text`, with blanks as they are written, is read and comes back.
template <class R>
R GoesRound(const char* command, const std::string& text) {
    const R record = ReadOne<R>(command, text);
    EXPECT_EQ(Pack(command, record), text);
    return record;
}

// The value of a member that is a number or a plain text, in a text that has the key once.
inline std::string ValueAt(const std::string& text, const std::string& key) {
    const std::size_t at = text.find("\"" + key + "\" : ");
    if (at == std::string::npos) return "(no key)";
    const std::size_t begin = at + key.size() + 5;
    std::size_t end = begin;
    for (bool quoted = false; end < text.size() && (quoted || (text[end] != ',' && text[end] != ' ')); ++end)
        quoted = quoted != (text[end] == '"');
    return text.substr(begin, end - begin);
}

// Each switch has its own key in both directions.
template <class R>
void TrySwitches(const char* command, std::initializer_list<std::pair<const char*, std::int32_t R::*>> switches) {
    for (const auto& [key, member] : switches) {
        const R record = ReadOne<R>(command, "{ \"" + std::string(key) + "\" : true }");
        const std::string text = Pack(command, record);
        for (const auto& [otherKey, other] : switches) {
            EXPECT_EQ(record.*other, otherKey == key ? 1 : 0) << key << ", " << otherKey;
            EXPECT_EQ(ValueAt(text, otherKey), otherKey == key ? "true" : "false") << key << text;
        }
        R odd{};
        odd.*member = -7;
        EXPECT_EQ(ValueAt(Pack(command, odd), key), "true") << key; // whatever is not zero
        EXPECT_EQ(ReadOne<R>(command, "{ \"" + std::string(key) + "\" : \"false\" }").*member, 1) << key;
    }
}

// A text keeps `capacity` - 1 bytes; what is no text leaves it empty.
template <class R, std::size_t N>
void TryText(const char* command, const char* key, char (R::*member)[N], std::size_t capacity) {
    const auto read = [&](const std::string& value) {
        return std::string((ReadOne<R>(command, "{ \"" + std::string(key) + "\" : " + value + " }").*member));
    };
    const std::string x(400, 'x');
    EXPECT_EQ(read("\"" + x + "\"").size(), capacity - 1) << key;
    EXPECT_EQ(read("\"" + x.substr(0, capacity - 1) + "\"").size(), capacity - 1) << key;
    EXPECT_EQ(read("\"" + x.substr(0, capacity - 2) + "\"").size(), capacity - 2) << key;
    for (const char* value : {"5", "true", "[ ]", "{ }", "null"})
        EXPECT_EQ(read(value), "") << key << value;
    R full{};
    std::memset(full.*member, 'y', N); // without a terminator
    EXPECT_EQ(ValueAt(Pack(command, full), key), "\"" + std::string(capacity, 'y') + "\"");
}

// Texts of codes from 0 on; unknown ones read as 0, and codes out of range are written as that of 0.
template <class R>
void TryNames(const char* command, const std::string& key, std::int32_t R::*member,
              const std::vector<std::string>& texts) {
    const auto read = [&](const std::string& value) {
        return ReadOne<R>(command, "{ \"" + key + "\" : " + value + " }").*member;
    };
    const auto written = [&](std::int32_t code) {
        R record{};
        record.*member = code;
        return ValueAt(Pack(command, record), key);
    };
    for (std::size_t code = 0; code < texts.size(); ++code) {
        const auto number = static_cast<std::int32_t>(code);
        EXPECT_EQ(read("\"" + texts[code] + "\""), number);
        EXPECT_EQ(written(number), "\"" + texts[code] + "\"");
        std::string folded = texts[code];
        for (char& c : folded)
            c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c >= 'A' && c <= 'Z' ? c + 32 : c);
        EXPECT_EQ(read("\"" + folded + "\""), number) << folded;
    }
    for (const char* value : {"\"Nonsense\"", "1", "true", "[ ]", "{ }", "null"})
        EXPECT_EQ(read(value), 0) << key << value;
    for (const std::int32_t code : {-1, static_cast<std::int32_t>(texts.size()), INT32_MIN, INT32_MAX})
        EXPECT_EQ(written(code), "\"" + texts[0] + "\"") << key << code;
}

// Without keys a record is clear, whatever stood in it, and is written as `text`.
template <class R>
void TryWithoutKeys(const char* command, const std::string& text) {
    for (const char* table : {"{ }", "[ ]", "7", "\"x\"", "true"}) {
        const Records<R> record(1, 0x5A);
        EXPECT_EQ(ParseAdding(command, table, record), HasRead<R>(1)) << command << table;
        EXPECT_TRUE(record.isAll(0)) << command << table;
    }
    EXPECT_EQ(Pack(command, R{}), text) << command;
}

// A list gives a record an element, as many as fit; null elements leave a gap that is not counted.
template <class R, class M>
void TryList(const char* command, const char* key, M R::*member) {
    const auto element = [&](int number) {
        return "{ \"" + std::string(key) + "\" : " + std::to_string(number) + " }";
    };
    const Records<R> three(3, 3, 0x5A);
    EXPECT_EQ(ParseAdding(command, "[ " + element(1) + ", null, " + element(3) + ", " + element(4) + " ]", three),
              HasRead<R>(2));
    EXPECT_EQ(three[0].*member, M{1});
    EXPECT_EQ(three[1].*member, M{0});
    EXPECT_EQ(three[2].*member, M{3});
    EXPECT_EQ(three.data()[3 * sizeof(R)], 0); // cleared to the buffer's end

    // An object is one record, also where there is room for more.
    const Records<R> room(2, 0x5A);
    EXPECT_EQ(ParseAdding(command, element(5), room), HasRead<R>(1));
    EXPECT_EQ(room[0].*member, M{5});
    EXPECT_EQ(room[1].*member, M{0});
    const std::string bare = Pack(command, room[0]);
    const std::string empty = Pack(command, room[1]);
    EXPECT_EQ(ValueAt(bare, key), "5");
    EXPECT_EQ(bare.front(), '{');
    EXPECT_EQ(PackAll(command, room), "[ " + bare + ", " + empty + " ]");
    EXPECT_EQ(PackBytes(command, room.data(), 2 * sizeof(R) - 1, kAmple), bare + "\n");
    EXPECT_EQ(PackBytes(command, room.data(), sizeof(R) - 1, kAmple), "null\n");
}

// One record, whatever the table looks like: in a list stands nothing of it.
template <class R, class M>
void TryOne(const char* command, const char* key, M R::*member) {
    const std::string element = "{ \"" + std::string(key) + "\" : 6 }";
    const Records<R> two(2, 0x5A);
    EXPECT_EQ(ParseAdding(command, element, two), HasRead<R>(1));
    EXPECT_NE(two[0].*member, M{0});
    EXPECT_EQ(ParseAdding(command, "[ " + element + ", " + element + " ]", two), HasRead<R>(1));
    EXPECT_TRUE(two.isAll(0)) << command;
    EXPECT_EQ(Pack(command, two[0]), WithoutNewline(PackBytes(command, two.data(), two.size(), kAmple)));
}

// An object, or the first element of an array.
template <class R, class M>
void TryFirst(const char* command, const char* key, M R::*member) {
    const auto element = [&](int number) {
        return "{ \"" + std::string(key) + "\" : " + std::to_string(number) + " }";
    };
    for (const std::string& table :
         {element(8), "[ " + element(8) + " ]", "[ " + element(8) + ", " + element(9) + " ]"}) {
        const Records<R> two(2, 0x5A);
        EXPECT_EQ(ParseAdding(command, table, two), HasRead<R>(1)) << table;
        EXPECT_EQ(two[0].*member, M{8}) << table;
        EXPECT_EQ(two[1].*member, M{0}) << table;
        EXPECT_EQ(PackAll(command, two), Pack(command, two[0])); // bare, and one alone
    }
    for (const std::string& table : {"[ [ " + element(8) + " ] ]", "[ null, " + element(8) + " ]"}) {
        const Records<R> one(1, 0x5A);
        EXPECT_EQ(ParseAdding(command, table, one), HasRead<R>(1)) << table;
        EXPECT_TRUE(one.isAll(0)) << table;
    }
}

// What all commands of the frame answer to a reply without a table, to one that is refused, and to no reply at all.
inline void TryReplies(const char* command, std::size_t size, bool clears = true) {
    std::vector<char> buffer(size);
    std::uint32_t length = kBefore;
    const auto parse = [&](const char* document, std::size_t given) {
        std::fill(buffer.begin(), buffer.end(), 'x');
        return CLIENT_ParseData(command, document, buffer.data(), static_cast<std::uint32_t>(given), &length);
    };
    const std::vector<char> after(size, clears ? '\0' : 'x');
    for (const char* document : {R"({ "result" : true })", R"({ "result" : true, "params" : { "table" : null } })"}) {
        EXPECT_EQ(parse(document, size), 1) << command;
        EXPECT_EQ(buffer, after) << command;
    }
    for (const char* document :
         {R"({ "result" : false, "params" : { "table" : { } } })", R"({ "params" : { "table" : { } } })", "{", ""}) {
        EXPECT_EQ(parse(document, size), 0) << command;
        EXPECT_EQ(buffer, after) << command;
    }
    EXPECT_EQ(parse(R"({ "result" : true, "params" : { "table" : { } } })", size - 1), 0) << command;
    EXPECT_EQ(buffer, std::vector<char>(size, 'x')) << command;
    EXPECT_EQ(length, kBefore) << command;
}

} // namespace orrery::test
