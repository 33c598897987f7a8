// Rows that are filled from elsewhere than the text, blocks made for the document, and how rows find their members.
#include "support/Records.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <string>

namespace orrery::record {
namespace {

using test::Document;
using test::Read;
using testing::ElementsAre;

// ---- What the call carries along ----

struct CARRIED {
    std::int32_t first;
    std::int32_t second;
    char text[8];
    std::uint8_t small;
    std::int32_t last;
};
struct TAKER {
    std::int32_t first;
    std::int32_t second;
    std::int32_t own;
    char text[8];
    std::int32_t last;
    std::uint8_t small;
};
PART(kTaker, TAKER,
     {
         FIELD(first, SUPPLIED(CARRIED, first)),
         FIELD(second, SUPPLIED(CARRIED, second)),
         FIELD(own, "own", Int),
         FIELD(text, SUPPLIED(CARRIED, text)),
         FIELD(last, SUPPLIED(CARRIED, last)),
         FIELD(small, SUPPLIED(CARRIED, small)),
         FIELD(second, "second", Int).Alias(),
     });

TAKER Take(const std::string& json, const CARRIED* carried) {
    Document document(json);
    LocalText text(document.arena);
    JsonParser parser(text);
    ReadCall call{parser, document.root};
    call.context = carried;
    TAKER taker{};
    taker.first = -7;
    ReadRecord(kTaker, document.root, reinterpret_cast<std::byte*>(&taker), call);
    return taker;
}

TEST(Supplied, IsCopiedWhateverTheTextSays) {
    const CARRIED carried{1, 2, "seven77", 4, 5};
    for (const char* const json : {R"({ "first" : 9, "last" : 9, "own" : 3 })", R"({ "own" : 3, "text" : "x" })"}) {
        const TAKER taker = Take(json, &carried);
        EXPECT_EQ(taker.first, 1);
        EXPECT_EQ(taker.second, 2);
        EXPECT_EQ(taker.own, 3);
        EXPECT_STREQ(taker.text, "seven77");
        EXPECT_EQ(taker.small, 4);
        EXPECT_EQ(taker.last, 5);
    }
}

TEST(Supplied, GivesWayToAKeyOfTheSameField) {
    const CARRIED carried{1, 2, "", 4, 5};
    EXPECT_EQ(Take(R"({ "second" : 8 })", &carried).second, 8);
    EXPECT_EQ(Take(R"({ "second" : null })", &carried).second, 2);
}

TEST(Supplied, StaysWhenTheCallCarriesNothing) {
    EXPECT_EQ(Take("{}", nullptr).first, -7);
}

TEST(Supplied, ComesAlsoWithoutAnObject) {
    const CARRIED carried{1, 2, "", 4, 5};
    for (const char* const json : {"null", "[ 1 ]", "7"})
        EXPECT_EQ(Take(json, &carried).last, 5) << json;
}

// ---- Blocks made for the document ----

struct SEAT {
    std::int32_t enabled;
    std::int32_t number;
};
struct BUS {
    std::int32_t seatNum;
    SEAT* seats;
    SEAT driver;
    std::int32_t corners[2];
};
PART(kSeat, SEAT,
     {
         FIELD(enabled).Absent(1),
         FIELD(number, "No", Int),
     })
    .StartsWhenRead();
PART(kBus, BUS,
     {
         FIELD(seatNum),
         FIELD(seats, "Seats", Record(kSeat)).Owned().Count(AT(seatNum)),
         FIELD(driver, "Driver", Record(kSeat)),
         FIELD(corners, "Corners", Int).AtLeast(2),
     });

using KeptBus = test::KeptRecord<BUS>;

TEST(OwnedBlocks, HoldAsManyRecordsAsTheTextHas) {
    std::string json = R"({ "Seats" : [ )";
    for (int i = 0; i < 300; ++i)
        json += (i > 0 ? ", { \"No\" : " : "{ \"No\" : ") + std::to_string(i + 1) + " }";
    const KeptBus bus(kBus, json + " ] }");
    ASSERT_EQ(bus->seatNum, 300);
    ASSERT_NE(bus->seats, nullptr);
    for (int i = 0; i < 300; ++i) {
        EXPECT_EQ(bus->seats[i].number, i + 1);
        EXPECT_EQ(bus->seats[i].enabled, 1); // the default of a record in a list
    }
}

TEST(OwnedBlocks, AreNullWithoutElements) {
    for (const char* const json :
         {"{}", R"({ "Seats" : [] })", R"({ "Seats" : null })", R"({ "Seats" : { "No" : 1 } })"}) {
        const KeptBus bus(kBus, json);
        EXPECT_EQ(bus->seats, nullptr) << json;
        EXPECT_EQ(bus->seatNum, 0) << json;
    }
}

TEST(OwnedBlocks, APartThatStartsWhenReadIsClearUntilThen) {
    EXPECT_EQ(KeptBus(kBus, "{}")->driver.enabled, 0);
    EXPECT_EQ(KeptBus(kBus, R"({ "Driver" : null })")->driver.enabled, 0);
    EXPECT_EQ(KeptBus(kBus, R"({ "Driver" : {} })")->driver.enabled, 1);
    EXPECT_EQ(KeptBus(kBus, R"({ "Driver" : { "No" : 3 } })")->driver.number, 3);
}

TEST(OwnedBlocks, AShortListIsNotRead) {
    EXPECT_THAT(KeptBus(kBus, R"({ "Corners" : [ 5 ] })")->corners, ElementsAre(0, 0));
    EXPECT_THAT(KeptBus(kBus, R"({ "Corners" : [ 5, 6 ] })")->corners, ElementsAre(5, 6));
    EXPECT_THAT(KeptBus(kBus, R"({ "Corners" : [ 5, 6, 7 ] })")->corners, ElementsAre(5, 6));
}

// ---- Texts that may be full, and moments ----

struct SEEN {
    char full[4];
    NET_TIME moment;
};
PART(kSeen, SEEN,
     {
         FIELD(full, "full", FullText),
         FIELD(moment, "at", UtcTime),
     });

TEST(FullText, MayTakeTheLastByteToo) {
    const SEEN fits = Read(kSeen, R"({ "full" : "abcd" })");
    EXPECT_EQ(std::string(fits.full, 4), "abcd");
    const SEEN cut = Read(kSeen, R"({ "full" : "abcde" })");
    EXPECT_EQ(std::string(cut.full, 4), "abcd");
    EXPECT_EQ(test::Write(kSeen, cut), R"({ "full" : "abcd" })"); // a moment is read only
}

TEST(FullText, ClearsWhatStoodThereAndLeavesItToOtherTypes) {
    SEEN seen{{'x', 'x', 'x', 'x'}, {}};
    ASSERT_TRUE(test::ReadInto(seen, kSeen, R"({ "full" : 5 })"));
    EXPECT_EQ(std::string(seen.full, 4), "xxxx");
    ASSERT_TRUE(test::ReadInto(seen, kSeen, R"({ "full" : "ab" })"));
    EXPECT_EQ(std::string(seen.full, 4), std::string("ab\0\0", 4));
}

std::string MomentOf(const std::string& number) {
    const NET_TIME at = Read(kSeen, R"({ "at" : )" + number + " }").moment;
    std::string text;
    for (const int part : {at.dwYear, at.dwMonth, at.dwDay, at.dwHour, at.dwMinute, at.dwSecond})
        text += (text.empty() ? "" : "-") + std::to_string(part);
    return text;
}

TEST(UtcTime, CountsSecondsFrom1970) {
    EXPECT_EQ(MomentOf("0"), "1970-1-1-0-0-0");
    EXPECT_EQ(MomentOf("951782399"), "2000-2-28-23-59-59");
    EXPECT_EQ(MomentOf("951782400"), "2000-2-29-0-0-0");
    EXPECT_EQ(MomentOf("951868800"), "2000-3-1-0-0-0");
    EXPECT_EQ(MomentOf("4294967295"), "2106-2-7-6-28-15");
    EXPECT_EQ(MomentOf("-1"), "1970-1-1-0-0-0"); // no unsigned number
    EXPECT_EQ(MomentOf("\"951782400\""), "1970-1-1-0-0-0");
}

// ---- Rows and members ----

struct KEYS {
    std::int32_t v0, v1, v2, v3, v4, v5, v6, v7, v8;
    std::int32_t always0, always1, always2;
};
PART(kKeys, KEYS,
     {
         FIELD(v0, "a", Int),
         FIELD(v1, "ab", Int),
         FIELD(v2, "abcdefgh", Int),
         FIELD(v3, "abcdefghi", Int),
         FIELD(v4, "abcdefghijklmnop", Int),
         FIELD(v5, "abcdefghijklmnopq", Int),
         FIELD(v6, "abcdefghijklmnopr", Int),
         FIELD(v7, "abx", Int),
         FIELD(v8, "z", Int),
         FIELD(always0, "abcd", Int).Always(),
         FIELD(always1, "abcdefghijklmnopqr", Int).Always(),
         FIELD(always2, "zz", Int).Always(),
     });
constexpr const char* kTexts[] = {
    "a", "ab", "abcdefgh", "abcdefghi", "abcdefghijklmnop", "abcdefghijklmnopq", "abcdefghijklmnopr", "abx", "z"};

// Members of no row, in front of, between and behind those that have one.
constexpr const char* kOthers[] = {
    "",
    "A",
    "aa",
    "abc",
    "abcdefg",
    "abcdefghh",
    "abcdefghij",
    "abcdefghijklmnoo",
    "abcdefghijklmnopp",
    "abcdefghijklmnopqq",
    "abcdefghijklmnops",
    "abxx",
    "y",
    "zy",
    "zzz",
    "\\u00e9",
};

TEST(RowsAmongMembers, EachFindsItsMemberAmongAnyOthers) {
    for (const bool withOthers : {false, true}) {
        for (unsigned present = 0; present < 1u << std::size(kTexts); ++present) {
            std::string json = "{ \"abcdeg\" : 0";
            if (withOthers) {
                for (const char* const other : kOthers)
                    json += ", \"" + std::string(other) + "\" : 77";
            }
            for (unsigned i = 0; i < std::size(kTexts); ++i) {
                if ((present >> i & 1) != 0) json += ", \"" + std::string(kTexts[i]) + "\" : " + std::to_string(i + 1);
            }
            KEYS keys{-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
            ASSERT_TRUE(test::ReadInto(keys, kKeys, json + " }"));
            const auto values = std::bit_cast<std::array<std::int32_t, 12>>(keys);
            for (unsigned i = 0; i < std::size(kTexts); ++i)
                ASSERT_EQ(values[i], (present >> i & 1) != 0 ? static_cast<int>(i + 1) : -1) << json << ' ' << i;
            ASSERT_TRUE(keys.always0 == 0 && keys.always1 == 0 && keys.always2 == 0) << json; // read as null
        }
    }
}

TEST(RowsAmongMembers, ThoseAlwaysReadTakeTheirMembersToo) {
    const KEYS keys = Read(kKeys, R"({ "abcd" : 1, "abcdefghijklmnopqr" : 2, "zz" : 3 })");
    EXPECT_EQ(keys.always0, 1);
    EXPECT_EQ(keys.always1, 2);
    EXPECT_EQ(keys.always2, 3);
}

} // namespace
} // namespace orrery::record
