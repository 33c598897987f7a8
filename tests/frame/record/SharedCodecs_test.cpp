// Words that several families share, on a record of their own.
#include "frame/record/SharedCodecs.h"

#include "support/Records.h"

#include <gtest/gtest.h>

namespace orrery::record {
namespace {

using test::Read;
using test::ReadInto;
using test::Write;

struct Shared {
    std::uint32_t bits;
    std::int32_t channel;
    std::uint32_t place;
    std::int32_t split;
};
NAMES(kBits, kFolded,
      {
          {1, "One"},
          {4, "Three"},
          {4, "Third"},
      });
TABLE(kShared, Shared,
      {
          FIELD(bits, "bits", NamedBits(kBits)),
          FIELD(channel, "channel", FromOne),
          FIELD(place, "place", FromOne),
          FIELD(split, "split", SplitName),
      });

TEST(SharedWords, NamedBitsAddUp) {
    EXPECT_EQ(Read(kShared, R"({ "bits" : [ "one", "Third" ] })").bits, 5u);
    EXPECT_EQ(Read(kShared, R"({ "bits" : [ "Three", "Third", "no such name", 3 ] })").bits, 4u); // set twice is set
    EXPECT_EQ(Read(kShared, R"({ "bits" : "One" })").bits, 0u);
    EXPECT_EQ(Read(kShared, "{}").bits, 0u);
    Shared record{.bits = 8, .channel = 0, .place = 0, .split = 0};
    EXPECT_TRUE(ReadInto(record, kShared, R"({ "bits" : [ "ONE" ] })"));
    EXPECT_EQ(record.bits, 9u);
}

TEST(SharedWords, NumbersFromOneInTheTextAreFromZeroInTheRecord) {
    const Shared plain = Read(kShared, R"({ "channel" : 1, "place" : 16 })");
    EXPECT_EQ(plain.channel, 0);
    EXPECT_EQ(plain.place, 15u);
    const Shared none = Read(kShared, R"({ "channel" : 0, "place" : "16" })"); // a text is no number
    EXPECT_EQ(none.channel, -1);
    EXPECT_EQ(none.place, UINT32_MAX);
    EXPECT_EQ(Read(kShared, R"({ "channel" : -2147483648 })").channel, INT32_MAX);
    const Shared absent = Read(kShared, "{}");
    EXPECT_EQ(absent.channel, 0);
    EXPECT_EQ(absent.place, 0u);
}

TEST(SharedWords, AreWrittenAsTheyAreRead) {
    const Shared record{.bits = 5, .channel = 7, .place = 31, .split = 1004};
    EXPECT_EQ(Write(kShared, record), R"({ "channel" : 8, "place" : 32, "split" : "PIP4" })"); // no bits
    const Shared ends{.bits = 0, .channel = INT32_MAX, .place = UINT32_MAX, .split = 4};
    EXPECT_EQ(Write(kShared, ends), R"({ "channel" : -2147483648, "place" : 0, "split" : "Split4" })");
}

TEST(SharedWords, SplitsBelowTheFirstHaveNoName) {
    const Shared record{.bits = 0, .channel = 0, .place = 0, .split = -1};
    EXPECT_EQ(Write(kShared, record), R"({ "channel" : 1, "place" : 1 })");
    const Shared least{.bits = 0, .channel = 0, .place = 0, .split = INT32_MIN};
    EXPECT_EQ(Write(kShared, least), R"({ "channel" : 1, "place" : 1 })");
}

TEST(SharedWords, SplitsAreNamedInAnyCase) {
    EXPECT_EQ(Read(kShared, R"({ "split" : "split9" })").split, 9);
    EXPECT_EQ(Read(kShared, R"({ "split" : "pip" })").split, 1000); // a bare prefix, and nothing added
    EXPECT_EQ(Read(kShared, R"({ "split" : "FREE" })").split, 2000);
}

} // namespace
} // namespace orrery::record
