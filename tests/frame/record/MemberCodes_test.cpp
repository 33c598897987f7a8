// Records that stand under a name which is a code.
#include "support/Records.h"

#include <gtest/gtest.h>

namespace orrery::record {
namespace {

using test::Read;
using test::ReadInto;
using test::Write;

NAMES(kModes, kFolded.Unknown(9),
      {
          {1, "Day"},
          {2, "Night"},
          {3, "a/b"},
      });
NAMES(kModesOrEmpty, kExact.OutsideWrites(""),
      {
          {1, "Day"},
          {2, "Night"},
      });
NAMES(kModesOrLeft, kExact.UnknownLeaves().OutsideWritesNull(),
      {
          {1, "Day"},
      });

struct Mode {
    std::uint8_t emMode;
    std::int32_t nValue;
};

PART(kMode, Mode,
     {
         FIELD(emMode, nullptr, MemberCode(kModes)),
         FIELD(nValue, "Value", Int),
     });
PART(kModeOrEmpty, Mode,
     {
         FIELD(emMode, nullptr, MemberCode(kModesOrEmpty)),
         FIELD(nValue, "Value", Int),
     });
PART(kModeOrLeft, Mode,
     {
         FIELD(emMode, nullptr, MemberCode(kModesOrLeft)),
         FIELD(nValue, "Value", Int),
     });

struct Modes {
    std::int32_t nCount;
    Mode stuModes[4];
};

TABLE(kModeList, Modes,
      {
          FIELD(nCount),
          FIELD(stuModes, "Modes", Record(kMode)).Count(AT(nCount)).Keyed(),
      });
TABLE(kModeListOrEmpty, Modes,
      {
          FIELD(nCount),
          FIELD(stuModes, "Modes", Record(kModeOrEmpty)).Count(AT(nCount)).Keyed(),
      });

TEST(MemberCodes, NamesAreReadInKeyOrder) {
    const auto r = Read(kModeList, R"({ "Modes" : { "night" : { "Value" : 5 }, "DAY" : { "Value" : 6 }, "x" : {} } })");
    ASSERT_EQ(r.nCount, 3);
    EXPECT_EQ(r.stuModes[0].emMode, 1); // "DAY" comes before "night"
    EXPECT_EQ(r.stuModes[0].nValue, 6);
    EXPECT_EQ(r.stuModes[1].emMode, 2);
    EXPECT_EQ(r.stuModes[1].nValue, 5);
    EXPECT_EQ(r.stuModes[2].emMode, 9); // no such name
    EXPECT_EQ(r.stuModes[3].emMode, 0);
}

TEST(MemberCodes, AnUnknownNameMayLeaveTheCode) {
    Mode mode{77, 0};
    EXPECT_TRUE(ReadInto(mode, kModeOrLeft, "{}", "null", "day"));
    EXPECT_EQ(mode.emMode, 77);
    EXPECT_TRUE(ReadInto(mode, kModeOrLeft, "{}", "null", "Day"));
    EXPECT_EQ(mode.emMode, 1);
}

TEST(MemberCodes, NamesAreWrittenInTheirOrderAndCodesWithoutANameNotAtAll) {
    const Modes modes{4, {{3, 30}, {9, 90}, {2, 20}, {1, 10}}};
    EXPECT_EQ(Write(kModeList, modes),
              R"({ "Modes" : { "Day" : { "Value" : 10 }, "Night" : { "Value" : 20 }, "a\/b" : { "Value" : 30 } } })");
}

TEST(MemberCodes, OfEqualCodesTheLastStands) {
    const Modes modes{3, {{2, 1}, {1, 2}, {2, 3}}};
    EXPECT_EQ(Write(kModeList, modes), R"({ "Modes" : { "Day" : { "Value" : 2 }, "Night" : { "Value" : 3 } } })");
}

TEST(MemberCodes, ACodeOutOfRangeMayHaveANameOfItsOwn) {
    const Modes modes{3, {{0, 7}, {2, 1}, {200, 8}}};
    EXPECT_EQ(Write(kModeListOrEmpty, modes), R"({ "Modes" : { "" : { "Value" : 8 }, "Night" : { "Value" : 1 } } })");
}

TEST(MemberCodes, WithoutANameARecordIsNotWrittenByName) {
    const auto isWritten = [](const Table& table, std::uint8_t code) {
        const Mode mode{code, 0};
        return IsWrittenByName(table, reinterpret_cast<const std::byte*>(&mode));
    };
    EXPECT_TRUE(isWritten(kMode, 3));
    EXPECT_FALSE(isWritten(kMode, 4));
    EXPECT_TRUE(isWritten(kModeOrEmpty, 4));
    EXPECT_FALSE(isWritten(kModeOrLeft, 4));
}

} // namespace
} // namespace orrery::record
