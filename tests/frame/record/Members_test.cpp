#include "support/Records.h"

#include <gtest/gtest.h>
#include <iterator>

namespace orrery::record {
namespace {

struct Inner {
    std::uint32_t size;
    std::int32_t level;
};

TABLE(kInner, Inner,
      {
          FIELD(size, nullptr, Size),
          FIELD(level, "Level", Int).Absent(-1),
      });

struct Outer {
    std::uint32_t size;
    Inner one;
    Inner many[2][2];
    double ratio;
    std::int8_t code;
    std::int32_t room;
    Inner* caller;
};

TABLE(kOuter, Outer,
      {
          FIELD(size, nullptr, Size),
          FIELD(one, "One", Record(kInner)),
          FIELD(many, "Many", Record(kInner)),
          FIELD(ratio, "Ratio", Real).Absent(3),
          FIELD(code, "Code", Int).Absent(-2),
          FIELD(room),
          FIELD(caller, "Caller", Record(kInner)).Capacity(AT(room)),
      });

TEST(Members, DefaultsAndSizeWordsOfAllLevels) {
    Inner callers{7, 7};
    Outer r{};
    r.caller = &callers;
    r.room = 1;
    SetDefaults(kOuter, reinterpret_cast<std::byte*>(&r));
    EXPECT_EQ(r.size, sizeof(Outer));
    EXPECT_EQ(r.one.size, 8u);
    EXPECT_EQ(r.one.level, -1);
    EXPECT_EQ(r.many[1][1].size, 8u);
    EXPECT_EQ(r.many[1][1].level, -1);
    EXPECT_EQ(r.ratio, 3.0);
    EXPECT_EQ(r.code, -2);
    EXPECT_EQ(callers.size, 7u); // the caller's own array is not ours to set
    EXPECT_EQ(callers.level, 7);
}

TEST(Members, SizeWordsAlone) {
    Outer r{};
    SetSizeWords(kOuter, reinterpret_cast<std::byte*>(&r));
    EXPECT_EQ(r.size, sizeof(Outer));
    EXPECT_EQ(r.one.size, 8u);
    EXPECT_EQ(r.many[0][1].size, 8u);
    EXPECT_EQ(r.one.level, 0);
    EXPECT_EQ(r.ratio, 0.0);
    EXPECT_EQ(r.code, 0);
}

TEST(Members, IntegersOfEveryWidth) {
    struct Case {
        Cell cell;
        std::int64_t stored;
        std::int64_t loaded;
    };
    const Case cases[] = {
        {Cell::I8, 200, -56}, {Cell::U8, -1, 255},         {Cell::I16, 40000, -25536},        {Cell::U16, -1, 65535},
        {Cell::I32, -5, -5},  {Cell::U32, -1, 4294967295}, {Cell::I64, INT64_MIN, INT64_MIN}, {Cell::U64, -1, -1},
        {Cell::Record, 5, 0},
    };
    for (const Case& one : cases) {
        std::byte bytes[9] = {};
        StoreInteger(one.cell, bytes + 1, one.stored); // aligned for nothing
        EXPECT_EQ(LoadInteger(one.cell, bytes + 1), one.loaded) << static_cast<int>(one.cell);
    }
}

TEST(Members, ATextEndsAtItsTerminatorOrItsCapacity) {
    const char text[4] = {'a', 'b', '\0', 'c'};
    EXPECT_EQ(TextAt(reinterpret_cast<const std::byte*>(text), 4), "ab");
    EXPECT_EQ(TextAt(reinterpret_cast<const std::byte*>(text), 1), "a");
    EXPECT_EQ(TextAt(reinterpret_cast<const std::byte*>(text), 0), "");
}

TEST(Members, StridesOfAMatrix) {
    const Field& many = kOuter.rows[2];
    EXPECT_EQ(StrideOf(many, 0), 16u);
    EXPECT_EQ(StrideOf(many, 1), 8u);
    const Field& caller = kOuter.rows[6];
    EXPECT_EQ(StrideOf(caller, 0), 8u);
}

// ---- The tree of keys ----

struct Keys {
    std::int32_t a;
    std::int32_t b;
    std::int32_t c;
    std::int32_t d;
    std::int32_t e;
    std::int32_t f;
};

TABLE(kKeys, Keys,
      {
          FIELD(a, "z", Int),
          FIELD(b, "g/y", Int),
          FIELD(c, "g", Presence),
          FIELD(d, "B", Int),
          FIELD(e, "g/x", Int).Always(),
          FIELD(f, "p/q", Int).FromRoot(),
      });

TEST(Table, KeysStandInTheOrderOfTheirBytes) {
    ASSERT_EQ(kKeys.members.count, 4); // "B", "g" itself, the object "g", "z"
    const Node* const node = kKeys.nodes + kKeys.members.first;
    EXPECT_EQ(kKeys.keyOf(node[0]), "B");
    EXPECT_EQ(kKeys.keyOf(node[1]), "g");
    EXPECT_EQ(node[1].childCount, 0);
    EXPECT_EQ(kKeys.keyOf(node[2]), "g");
    ASSERT_EQ(node[2].childCount, 2);
    EXPECT_EQ(kKeys.keyOf(kKeys.nodes[node[2].firstChild]), "x");
    EXPECT_EQ(kKeys.keyOf(kKeys.nodes[node[2].firstChild + 1]), "y");
    EXPECT_EQ(kKeys.quotedKeyOf(node[3]), "\"z\" : ");
    EXPECT_TRUE(node[2].needsAbsent); // for "x", which is read also when absent
    EXPECT_FALSE(node[3].needsAbsent);
    ASSERT_EQ(kKeys.fromRoot.count, 1);
    EXPECT_EQ(kKeys.keyOf(kKeys.nodes[kKeys.fromRoot.first]), "p");
    EXPECT_EQ(kKeys.self.count, 0);
}

TEST(Table, KnowsItsRecord) {
    EXPECT_STREQ(kOuter.record, "Outer");
    EXPECT_EQ(kOuter.size, sizeof(Outer));
    EXPECT_EQ(std::distance(kOuter.begin(), kOuter.end()), 7);
    EXPECT_TRUE(kOuter.hasDefaults);
    EXPECT_TRUE(kOuter.hasSizeWords);
    EXPECT_FALSE(kKeys.hasDefaults);
    EXPECT_FALSE(kKeys.hasSizeWords);
}

} // namespace
} // namespace orrery::record
