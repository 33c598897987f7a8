// Every record against every kind of value at every key: what the tables say, nothing beside it.
#include "analyse/RuleBodyMap.h"
#include "analyse/RuleFrame.h"
#include "support/CommandCalls.h"
#include "support/RuleBuffer.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

namespace orrery {
namespace {

using record::Cell;
using record::Field;
using record::Kind;
using record::Table;
using test::Document;
using test::RuleBuffer;
using test::RuleReply;

constexpr std::size_t kHead = sizeof(CFG_RULE_INFO);

const char* NameOf(const RuleBody& body) {
    for (const test::RuleSample& sample : test::RuleSamples())
        for (const test::RuleType& type : sample.types)
            if (type.code == body.code) return type.name;
    return "";
}

// `value` at the path "Config/Region/Max" of a rule, and nothing else.
std::string RuleWith(std::string_view path, const std::string& value) {
    const std::size_t slash = path.find('/');
    const std::string key(path.substr(0, slash));
    if (slash == std::string_view::npos) return "\"" + key + "\":" + value;
    return "\"" + key + "\":{" + RuleWith(path.substr(slash + 1), value) + "}";
}

// The record that a rule's own members give, read at the end of readable memory.
std::vector<std::byte> Body(const RuleBody& body, const std::string& members) {
    const std::string text = "{" + members + "}";
    Document document(text);
    EXPECT_TRUE(document.ok) << text;
    StackArena<4096> arena;
    LocalText local(arena);
    JsonParser parser(local);
    record::ReadCall call{parser, document.root};
    test::GuardedBuffer memory(body.size);
    std::memset(memory.data(), 0, body.size);
    auto* const at = reinterpret_cast<std::byte*>(memory.data());
    EXPECT_TRUE(ParseRuleBody(body.code, document.root, at, call));
    return {at, at + body.size};
}

bool AllZero(const std::vector<std::byte>& bytes, std::size_t from, std::size_t to) {
    // All are equal to their neighbour, and the first is zero.
    return from >= to
           || (bytes[from] == std::byte{0} && std::memcmp(&bytes[from], &bytes[from] + 1, to - from - 1) == 0);
}

bool IsKeyOfARecord(const Field& field) {
    return field.key != nullptr && field.readable && !(field.kind == Kind::Custom && field.custom->read == nullptr);
}

// The members that a key may set: its own, its flag, its count, and the second limit of a pair of speeds.
std::map<std::size_t, std::size_t> OwnBytes(const RuleBody& body, const Field& field) {
    std::map<std::size_t, std::size_t> own; // first byte, byte behind the last
    own[field.offset] = field.offset + std::size_t{field.size};
    if (field.kind == Kind::Custom) own[field.offset] += 4;
    if (field.flag.exists()) own[field.flag.offset] = field.flag.offset + std::size_t{4};
    if (field.count.exists()) own[field.count.offset] = field.count.offset + std::size_t{4};
    if (std::string_view(field.key).starts_with("EventHandler")) { // linkage and week are read from the same object
        own[body.week - sizeof(CFG_EVENT_HANDLER_INFO)] = body.week;
        own[body.week] = body.week + sizeof(CFG_TIME_SECTION[ORRERY_WEEK_DAYS][ORRERY_RULE_DAY_SECTIONS]);
    }
    return own;
}

const std::vector<std::string>& Values() {
    static const std::vector<std::string> values = {
        "true",
        "false",
        "0",
        "-1",
        "2147483647",
        "-2147483648",
        "4294967295",
        "1e300",
        "-0.5",
        "\"\"",
        "\"text\"",
        "[]",
        "[[]]",
        "[null]",
        "[1]",
        "[[1]]",
        "[[1,2]]",
        "[1,2,3]",
        "[\"a\",\"b\"]",
        "[{}]",
        "[[[1,2],[3,4]]]",
        "{}",
        R"({"a":1})",
        R"({"Ratio":1,"TimeSection":[["1 08:00:00-09:00:00"]],"Max":[1,2,3,4]})"};
    return values;
}

TEST(RuleBodiesLimits, NothingInTheTextLeavesTheRecordClear) {
    for (const RuleBody& body : RuleBodies()) {
        for (const char* members : {"", R"("Config":null)", R"("Config":{})", R"("Config":[])", R"("Config":5)",
                                    R"("Config":"x","EventHandler":null)"}) {
            EXPECT_TRUE(AllZero(Body(body, members), 0, body.size)) << body.code << members;
        }
    }
}

TEST(RuleBodiesLimits, ANullIsAsGoodAsNoKey) {
    for (const RuleBody& body : RuleBodies()) {
        for (const Field& field : *body.table) {
            if (!IsKeyOfARecord(field)) continue;
            const auto bytes = Body(body, RuleWith(field.key, "null"));
            // Around a null week there is a linkage, and a linkage sets some flags in any case.
            const bool isWeek = std::string_view(field.key) == "EventHandler/TimeSection";
            EXPECT_TRUE(AllZero(bytes, isWeek ? field.offset : 0, body.size)) << body.code << field.key;
        }
    }
}

TEST(RuleBodiesLimits, AValueOfAnyTypeStaysInItsOwnMembers) {
    std::set<const Table*> seen;
    for (const RuleBody& body : RuleBodies()) {
        if (!seen.insert(body.table).second) continue;
        for (const Field& field : *body.table) {
            if (!IsKeyOfARecord(field)) continue;
            for (const std::string& value : Values()) {
                const std::vector<std::byte> bytes = Body(body, RuleWith(field.key, value));
                std::size_t from = 0;
                bool isClear = true;
                for (const auto& [first, end] : OwnBytes(body, field)) {
                    isClear = isClear && AllZero(bytes, from, first);
                    from = end;
                }
                EXPECT_TRUE(isClear && AllZero(bytes, from, body.size))
                    << body.table->record << " " << field.key << ": " << value;
            }
        }
    }
    EXPECT_EQ(seen.size(), 58u);
}

std::string ListOf(std::size_t count, const std::string& element) {
    std::string list = "[";
    for (std::size_t i = 0; i < count; ++i)
        list += (i == 0 ? "" : ",") + element;
    return list + "]";
}

// An element that every list of that field takes.
std::string ElementFor(const Field& field) {
    if (field.kind == Kind::Names) return "\"" + std::string(field.names->rows[0].text) + "\"";
    if (field.kind == Kind::Text || field.kind == Kind::RawText) return "\"text\"";
    if (field.kind == Kind::Record) {
        const std::string_view name = field.table->record;
        if (name == "CFG_POLYGON") return "[1,2]";
        if (name == "CFG_RULE_BOX") return "[[1,2],[3,4]]";
        return R"({"Ratio":1})";
    }
    return "1";
}

TEST(RuleBodiesLimits, AListStopsAtItsLastPlace) {
    unsigned lists = 0;
    for (const RuleBody& body : RuleBodies()) {
        for (const Field& field : *body.table) {
            if (!IsKeyOfARecord(field) || field.rank != 1 || !field.count.exists()) continue;
            ++lists;
            const std::size_t room = field.dims[0];
            for (const std::size_t count : {std::size_t{0}, std::size_t{1}, room - 1, room, room + 1, 3 * room}) {
                const auto bytes = Body(body, RuleWith(field.key, ListOf(count, ElementFor(field))));
                EXPECT_EQ(record::LoadSlot(field.count, bytes.data()), static_cast<std::int64_t>(std::min(count, room)))
                    << body.table->record << " " << field.key;
            }
        }
    }
    EXPECT_GT(lists, 150u); // regions, objects, positions, codes
}

TEST(RuleBodiesLimits, ANumberKeepsTheBitsOfItsMember) {
    for (const RuleBody& body : RuleBodies()) {
        for (const Field& field : *body.table) {
            if (!IsKeyOfARecord(field) || field.rank != 0) continue;
            if (field.kind != Kind::Int && field.kind != Kind::UInt) continue;
            const auto read = [&](const char* text) {
                const auto bytes = Body(body, RuleWith(field.key, text));
                return record::LoadInteger(field.cell, bytes.data() + field.offset);
            };
            const bool isByte = field.cell == Cell::U8;
            EXPECT_EQ(read("255"), 255) << field.key;
            EXPECT_EQ(read("256"), isByte ? 0 : 256) << field.key;
            if (!isByte) {
                EXPECT_EQ(read("2147483647"), INT32_MAX) << field.key;
            }
            if (field.kind == Kind::UInt) {
                EXPECT_EQ(read("4294967295"), 0xFFFFFFFF) << field.key;
            } else if (!isByte) {
                EXPECT_EQ(read("-2147483639"), -2147483639) << field.key;
            }
        }
    }
}

// Whatever bytes a client hands over, a text comes out or the call is refused; nothing outside them is looked at.
TEST(RuleBodiesLimits, RecordsOfAnyBytesAreWritten) {
    for (const RuleBody& body : RuleBodies()) {
        for (const int byte : {0x00, 0x01, 0x7F, 0x80, 0xFF}) {
            RuleBuffer buffer(kHead + body.size);
            std::memset(buffer.memory.data() + kHead, byte, body.size);
            CFG_RULE_INFO head = {};
            std::memset(&head, byte, sizeof head);
            head.dwRuleType = body.code;
            head.nRuleSize = static_cast<std::int32_t>(body.size);
            std::memcpy(buffer.memory.data(), &head, kHead);
            buffer.rules.nRuleCount = 1;
            const std::string text = buffer.Pack();
            // Bytes of all ones are no number in a real; brackets and keys are in order all the same.
            EXPECT_EQ(test::FlawOf(text + "\n"), "") << body.code << " of " << byte;
        }
    }
}

// Items behind the first stand where those before them end: no member may count on its alignment.
TEST(RuleBodiesLimits, EveryRecordMayStandAtAnOddAddress) {
    for (const test::RuleSample& sample : test::RuleSamples()) {
        const test::RuleType& type = sample.types[0];
        const RuleBody& body = *FindRuleBody(type.code);
        if (!body.isRead || type.code == 535) continue;
        RuleBuffer buffer(kHead + body.size + 1);
        buffer.rules.pRuleBuf += 1;
        buffer.rules.nRuleLen -= 1;
        ASSERT_TRUE(buffer.Parse(RuleReply(test::RuleText(sample, type, false)))) << type.name;
        EXPECT_EQ(buffer.Head(1).dwRuleType, type.code);
        EXPECT_EQ(buffer.Pack(), test::Normalised("[" + test::RuleText(sample, type, true) + "]")) << type.name;
    }
}

// A buffer of every size around an item's end, that end at an unreadable page.
TEST(RuleBodiesLimits, ItemsFitToTheByte) {
    for (const RuleBody& body : RuleBodies()) {
        if (!body.isRead || body.code == 535) continue;
        const std::string text = RuleReply(std::string(R"({"Type":")") + NameOf(body) + R"(","Class":"Normal"})");
        for (int around = -9; around <= 9; ++around) {
            RuleBuffer buffer(static_cast<std::size_t>(static_cast<int>(kHead + body.size) + around));
            EXPECT_EQ(buffer.Parse(text), around >= 0) << body.code << " " << around;
            EXPECT_EQ(buffer.IsUntouched(), around < 0);
        }
    }
}

} // namespace
} // namespace orrery
