#include "frame/Frames.h"
#include "frame/record/Engine.h"
#include "support/GuardedBuffer.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace orrery::record {
namespace {

struct Port {
    char szName[16];
    std::int32_t nSpeed;
    std::int32_t nRole;
};
struct Switch {
    std::int32_t nAge;
    char szLabels[3][4];
    std::int32_t nUplink;
    std::int32_t nPortNum;
    Port stuPorts[3];
};

PART(kPort, Port,
     {
         FIELD(szName, nullptr, MemberName),
         FIELD(nSpeed, "Speed", Int),
         FIELD(nRole, "Role", Int).Absent(-1).WriteUnless(-1),
     });
PART(kSwitch, Switch,
     {
         FIELD(nAge, "Age", Int),
         FIELD(szLabels, "Labels", Text).UntilEmpty(),
         FIELD(nUplink, "Uplink/Port", Int),
         FIELD(nPortNum),
         FIELD(stuPorts, "", Record(kPort)).AmongKeys().Count(AT(nPortNum)),
     });

constexpr ParseFrame kParse;
constexpr PackFrame kPack;

Outcome Read(Switch& record, const std::string& table, ParseFrame frame = kParse) {
    const std::string document = R"({ "result" : true, "params" : { "table" : )" + table + " } }";
    std::memset(&record, 0xCD, sizeof record);
    return ParseFamily(kSwitch, frame, {document.c_str(), &record, sizeof record, nullptr});
}

std::string Written(const Switch& record) {
    char text[1024];
    if (PacketFamily(kSwitch, kPack, {&record, sizeof record, text, sizeof text}) != Outcome::Done) return "(failed)";
    return text;
}

TEST(MembersAmongKeys, ObjectsWithMembersAreElements) {
    Switch record;
    ASSERT_EQ(Read(record, R"({ "Age" : 3, "b" : { "Speed" : 10, "Role" : 2 }, "a" : { "Other" : 1 }, "c" : { },
                               "d" : null, "e" : 5, "f" : [ { "Speed" : 1 } ] })"),
              Outcome::Done);
    EXPECT_EQ(record.nAge, 3);
    ASSERT_EQ(record.nPortNum, 2);
    EXPECT_STREQ(record.stuPorts[0].szName, "a");
    EXPECT_EQ(record.stuPorts[0].nSpeed, 0);
    EXPECT_EQ(record.stuPorts[0].nRole, -1) << "its default, set as it was read";
    EXPECT_STREQ(record.stuPorts[1].szName, "b");
    EXPECT_EQ(record.stuPorts[1].nSpeed, 10);
    EXPECT_EQ(record.stuPorts[1].nRole, 2);
    EXPECT_EQ(record.stuPorts[2].nRole, 0) << "no element: the slot stays clear";
}

TEST(MembersAmongKeys, AKeyThatHoldsAnObjectIsBoth) {
    Switch record;
    ASSERT_EQ(Read(record, R"({ "Uplink" : { "Port" : 7 } })"), Outcome::Done);
    EXPECT_EQ(record.nUplink, 7);
    EXPECT_EQ(record.nPortNum, 1);
    EXPECT_STREQ(record.stuPorts[0].szName, "Uplink");
}

TEST(MembersAmongKeys, TheRoomIsTheEnd) {
    Switch record;
    ASSERT_EQ(Read(record,
                   R"({ "a" : { "Speed" : 1 }, "b" : { "Speed" : 2 }, "c" : { "Speed" : 3 }, "d" : { "Speed" : 4 } })"),
              Outcome::Done);
    EXPECT_EQ(record.nPortNum, 3);
    EXPECT_EQ(record.stuPorts[2].nSpeed, 3);
}

TEST(MembersAmongKeys, OtherValuesHaveNone) {
    for (const char* table : {"[ { \"a\" : { \"Speed\" : 1 } } ]", "5", "\"a\""}) {
        Switch record;
        ASSERT_EQ(Read(record, table), Outcome::Done) << table;
        EXPECT_EQ(record.nPortNum, 0) << table;
    }
}

TEST(MembersAmongKeys, NamesAreWrittenInOrderWithTheKeys) {
    const Switch record{1, {}, 9, 3, {{"z", 30, -1}, {"Bee", 20, 0}, {"", 10, -1}}};
    EXPECT_EQ(Written(record), R"({ "" : { "Speed" : 10 }, "Age" : 1, "Bee" : { "Role" : 0, "Speed" : 20 }, )"
                               R"("Uplink" : { "Port" : 9 }, "z" : { "Speed" : 30 } })"
                               "\n");
}

TEST(MembersAmongKeys, BytesAbove127ComeLast) {
    const Switch record{1, {}, 0, 2, {{"\xC3\xA9", 1, -1}, {"zz", 2, -1}, {}}};
    EXPECT_EQ(Written(record), "{ \"Age\" : 1, \"Uplink\" : { \"Port\" : 0 }, \"zz\" : { \"Speed\" : 2 }, "
                               "\"\xC3\xA9\" : { \"Speed\" : 1 } }\n");
}

TEST(MembersAmongKeys, ANameThatIsAKeyHidesIt) {
    const Switch record{1, {}, 9, 2, {{"Age", 5, -1}, {"Uplink", 6, -1}, {}}};
    EXPECT_EQ(Written(record), "{ \"Age\" : { \"Speed\" : 5 }, \"Uplink\" : { \"Speed\" : 6 } }\n");
}

TEST(MembersAmongKeys, OfEqualNamesTheLastIsWritten) {
    const Switch record{1, {}, 0, 3, {{"p", 1, -1}, {"q", 2, -1}, {"p", 3, -1}}};
    EXPECT_EQ(Written(record),
              "{ \"Age\" : 1, \"Uplink\" : { \"Port\" : 0 }, \"p\" : { \"Speed\" : 3 }, \"q\" : { \"Speed\" : 2 } }\n");
}

TEST(MembersAmongKeys, NamesAreEscaped) {
    const Switch record{1, {}, 0, 1, {{"a/\"b", 1, -1}, {}, {}}};
    EXPECT_NE(Written(record).find(R"("a\/\"b" : { "Speed" : 1 })"), std::string::npos);
}

TEST(MembersAmongKeys, CountsEndAtTheArray) {
    Switch record{1, {}, 0, 100, {{"a", 1, -1}, {"b", 1, -1}, {"c", 3, -1}}};
    EXPECT_NE(Written(record).find("\"c\" : { \"Speed\" : 3 }"), std::string::npos);
    record.nPortNum = -1;
    EXPECT_EQ(Written(record), "{ \"Age\" : 1, \"Uplink\" : { \"Port\" : 0 } }\n");
}

TEST(MembersAmongKeys, ANameWithoutATerminatorEndsAtItsCapacity) {
    Switch record{1, {}, 0, 1, {}};
    std::memset(record.stuPorts[0].szName, 'n', 16);
    record.stuPorts[0].nRole = -1;
    EXPECT_NE(Written(record).find('"' + std::string(16, 'n') + "\" : { \"Speed\" : 0 }"), std::string::npos);
}

// ---- A list of texts that the first empty one ends ----

TEST(UntilEmpty, TheFirstEmptyTextEndsTheList) {
    Switch record{};
    EXPECT_EQ(Written(record).find("Labels"), std::string::npos);
    std::strcpy(record.szLabels[2], "c");
    EXPECT_EQ(Written(record).find("Labels"), std::string::npos);
    std::strcpy(record.szLabels[0], "a");
    EXPECT_NE(Written(record).find(R"("Labels" : [ "a" ],)"), std::string::npos);
    std::strcpy(record.szLabels[1], "b");
    EXPECT_NE(Written(record).find(R"("Labels" : [ "a", "b", "c" ],)"), std::string::npos);
}

struct Counted {
    std::int32_t nLabelNum;
    char szLabels[3][4];
};
PART(kCounted, Counted,
     {
         FIELD(nLabelNum),
         FIELD(szLabels, "Labels", Text).Count(AT(nLabelNum)).UntilEmpty(),
     });

// Full texts up to an unreadable page, and a count that leads far behind it.
TEST(UntilEmpty, ACountBeyondTheListIsNoLicenceToLook) {
    const test::GuardedBuffer memory(sizeof(Counted));
    Counted record{INT32_MAX, {}};
    std::memset(record.szLabels, 'x', sizeof record.szLabels);
    std::memcpy(memory.data(), &record, sizeof record);
    char text[128];
    ASSERT_EQ(PacketFamily(kCounted, kPack, {memory.data(), sizeof record, text, sizeof text}), Outcome::Done);
    EXPECT_STREQ(text, "{ \"Labels\" : [ \"xxxx\", \"xxxx\", \"xxxx\" ] }\n");
}

TEST(UntilEmpty, ReadingTakesEveryPlace) {
    Switch record;
    ASSERT_EQ(Read(record, R"({ "Labels" : [ "", "b", "c", "d" ] })"), Outcome::Done);
    EXPECT_STREQ(record.szLabels[0], "");
    EXPECT_STREQ(record.szLabels[1], "b");
    EXPECT_STREQ(record.szLabels[2], "c");
}

// ---- The frame's words for records of which a caller takes the beginning ----

TEST(AnySize, AShortBufferTakesTheBeginningOfTheRecord) {
    const char* const document =
        R"({ "result" : true, "params" : { "table" : { "Age" : 77, "Labels" : [ "abc", "def" ] } } })";
    Switch whole;
    ASSERT_EQ(ParseFamily(kSwitch, kParse, {document, &whole, sizeof whole, nullptr}), Outcome::Done);
    for (std::uint32_t size = 1; size < sizeof(Switch); ++size) {
        std::vector<char> buffer(size + 1, '#');
        std::uint32_t length = 0;
        EXPECT_EQ(ParseFamily(kSwitch, kParse, {document, buffer.data(), size, &length}), Outcome::BufferTooSmall);
        EXPECT_EQ(std::string(buffer.data(), size + 1), std::string(size + 1, '#'));
        ASSERT_EQ(ParseFamily(kSwitch, kParse.AnySize(), {document, buffer.data(), size, &length}), Outcome::Done);
        EXPECT_EQ(length, sizeof(Switch));
        EXPECT_EQ(std::memcmp(buffer.data(), &whole, size), 0) << size;
        EXPECT_EQ(buffer[size], '#');
        EXPECT_EQ(ParseFamily(kSwitch, kParse.AnySize(), {"{", buffer.data(), size, &length}), Outcome::NoJson);
        EXPECT_EQ(std::string(buffer.data(), size), std::string(size, '\0')) << "cleared before it is read";
    }
}

TEST(AnySize, LargerBuffersAreOfTheUsualKind) {
    std::vector<char> buffer(sizeof(Switch) + 20, '#');
    const auto size = static_cast<std::uint32_t>(buffer.size());
    ASSERT_EQ(
        ParseFamily(kSwitch, kParse.AnySize(),
                    {R"({ "result" : true, "params" : { "table" : { "Age" : 5 } } })", buffer.data(), size, nullptr}),
        Outcome::Done);
    EXPECT_EQ(buffer[0], 5);
    EXPECT_EQ(buffer.back(), '\0');
}

TEST(NeedsText, AnEmptyTextLeavesTheBuffer) {
    Switch record;
    std::memset(&record, 0x11, sizeof record);
    EXPECT_EQ(ParseFamily(kSwitch, kParse.NeedsText(), {"", &record, sizeof record, nullptr}), Outcome::NoJson);
    EXPECT_EQ(record.nAge, 0x11111111);
    EXPECT_EQ(ParseFamily(kSwitch, kParse.NeedsText(), {" ", &record, sizeof record, nullptr}), Outcome::NoJson);
    EXPECT_EQ(record.nAge, 0);
    record.nAge = 5;
    EXPECT_EQ(ParseFamily(kSwitch, kParse, {"", &record, sizeof record, nullptr}), Outcome::NoJson);
    EXPECT_EQ(record.nAge, 0);
}

} // namespace
} // namespace orrery::record
