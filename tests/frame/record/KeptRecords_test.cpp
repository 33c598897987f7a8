// Words of rows for records that hold something before they are read: presence flags that start anew, objects that
// leave no trace, arrays of the caller's that are written whole.
#include "frame/record/Engine.h"
#include "support/Records.h"

#include <gtest/gtest.h>

#include <string>

namespace orrery::record {
namespace {

struct Inner {
    std::uint8_t abDepth;
    std::int32_t nDepth;
};
struct Outer {
    std::uint8_t abName;
    std::uint8_t abInner;
    std::uint8_t nCount;
    std::uint8_t nRoom;
    std::int32_t nName;
    Inner stuInner;
    Inner stuTwo[2];
    Inner* pstuItems;
};

PART(kInner, Inner,
     {
         FIELD(abDepth),
         FIELD(nDepth, "Depth", Int).SetsAndNeeds(AT(abDepth)),
     });

struct OuterRows {
    using R = Outer;
    static constexpr Field rows[] = {
        FIELD(abName),
        FIELD(abInner),
        FIELD(nCount),
        FIELD(nRoom),
        FIELD(nName, "Name", Int).SetsAndNeeds(AT(abName)),
        FIELD(stuInner, "Inner", Record(kInner)).SetsAndNeeds(AT(abInner)).WriteUnlessBare(),
        FIELD(stuTwo, "Two", Record(kInner)),
        FIELD(pstuItems, "Items", Record(kInner)).Capacity(AT(nRoom)).Count(AT(nCount)).WritesCapacity(),
    };
};
constexpr TypedTable<Outer> kPlain = MakeTable<OuterRows>("Outer");
constexpr TypedTable<Outer> kClearing = kPlain.ClearsFlags();

Outer Raised(Inner* items = nullptr, std::uint8_t room = 0) {
    return {9, 9, 7, room, 5, {9, 6}, {{9, 7}, {9, 8}}, items};
}

void ReadOver(Outer& record, const Table& table, const std::string& text) {
    test::Document document(text);
    ASSERT_TRUE(document.ok);
    LocalText local(document.arena);
    JsonParser parser(local);
    ReadCall call{parser, document.root};
    ReadRecord(table, document.root, reinterpret_cast<std::byte*>(&record), call);
}

std::string Written(const Table& table, const Outer& record) {
    return test::WriteBytes(table, &record);
}

TEST(KeptRecords, StartEveryFlagAnewAndKeepTheValues) {
    Outer record = Raised();
    ReadOver(record, kClearing, R"({"Inner":{"Depth":1}})");
    EXPECT_EQ(record.abName, 0);
    EXPECT_EQ(record.nName, 5);
    EXPECT_EQ(record.abInner, 1);
    EXPECT_EQ(record.stuInner.abDepth, 1);
    EXPECT_EQ(record.stuInner.nDepth, 1);
    EXPECT_EQ(record.stuTwo[0].abDepth, 0);
    EXPECT_EQ(record.stuTwo[1].abDepth, 0);
    EXPECT_EQ(record.stuTwo[1].nDepth, 8);
}

TEST(KeptRecords, KeepTheFlagsWithoutTheWord) {
    Outer record = Raised();
    ReadOver(record, kPlain, R"({"Inner":{}})");
    EXPECT_EQ(record.abName, 9);
    EXPECT_EQ(record.abInner, 1);
    EXPECT_EQ(record.stuInner.abDepth, 9);
    EXPECT_EQ(record.stuTwo[1].abDepth, 9);
}

TEST(KeptRecords, DoNotReachThroughPointersForFlags) {
    Inner items[2] = {{9, 1}, {9, 2}};
    Outer record = Raised(items, 2);
    ReadOver(record, kClearing, R"({"Items":[{"Depth":4}]})");
    EXPECT_EQ(items[0].nDepth, 4);
    EXPECT_EQ(items[1].abDepth, 9);
    EXPECT_EQ(record.nCount, 1);
}

TEST(KeptRecords, LeaveNoTraceOfAnObjectWithoutKeys) {
    Outer record{};
    record.abInner = 1;
    EXPECT_EQ(Written(kPlain, record), R"({ "Two" : [ null, null ] })");
    record.stuInner = {1, 3};
    EXPECT_EQ(Written(kPlain, record), R"({ "Inner" : { "Depth" : 3 }, "Two" : [ null, null ] })");
    record.abInner = 0; // the flag of the row still decides
    EXPECT_EQ(Written(kPlain, record), R"({ "Two" : [ null, null ] })");
}

TEST(KeptRecords, WriteACallersArrayToTheEndOfItsRoom) {
    Inner items[3] = {{1, 1}, {0, 2}, {1, 3}};
    Outer record{};
    record.pstuItems = items;
    record.nRoom = 3;
    record.nCount = 1;
    EXPECT_EQ(Written(kPlain, record), R"({ "Items" : [ { "Depth" : 1 }, null, { "Depth" : 3 } ], )"
                                       R"("Two" : [ null, null ] })");
    record.nCount = 200;
    record.nRoom = 1;
    EXPECT_EQ(Written(kPlain, record), R"({ "Items" : [ { "Depth" : 1 } ], "Two" : [ null, null ] })");
    record.nRoom = 0;
    EXPECT_EQ(Written(kPlain, record), R"({ "Two" : [ null, null ] })");
    record.nRoom = 3;
    record.pstuItems = nullptr;
    EXPECT_EQ(Written(kPlain, record), R"({ "Two" : [ null, null ] })");
}

} // namespace
} // namespace orrery::record
