// Words of rows for records behind a caller's pointers: one alone, lists that are taken whole or not at all, counts
// that are told without an array.
#include "frame/record/Engine.h"
#include "support/Records.h"

#include <gtest/gtest.h>

#include <string>

namespace orrery::record {
namespace {

struct Item {
    char szName[4];
    std::int32_t nId;
};
struct Owner {
    Item* pOne;
    Item* pOther;
    std::int32_t nRoom;
    std::int32_t nCount;
    Item* pList;
    std::uint8_t bOne;
};

PART(kItem, Item,
     {
         FIELD(szName, nullptr, MemberName),
         FIELD(nId, "Id", Int),
     });

struct OwnerRows {
    using R = Owner;
    static constexpr Field rows[] = {
        FIELD(pOne, "One", Record(kItem)).Single().SetsAndNeeds(AT(bOne)),
        FIELD(pOther, "Other", Record(kItem)).Single().ReadIf(AT(pOne)),
        FIELD(nRoom),
        FIELD(nCount),
        FIELD(pList, "List", Record(kItem)).AllOrNone().Capacity(AT(nRoom)).Count(AT(nCount)),
        FIELD(bOne),
    };
};
constexpr TypedTable<Owner> kOwner = MakeTable<OwnerRows>("Owner");

struct KeyedRows {
    using R = Owner;
    static constexpr Field rows[] = {
        FIELD(pOne, nullptr, Record(kItem)).Single(),
        FIELD(pOther, "Other", Record(kItem)).Single().Capacity(AT(nRoom)).Count(AT(nCount)),
        FIELD(nRoom),
        FIELD(nCount),
        FIELD(pList, "List", Record(kItem)).Keyed().Capacity(AT(nRoom)).Count(AT(nCount)).CountsWithoutArray(),
        FIELD(bOne),
    };
};

bool IsNamed(const std::byte* item) {
    return item[0] != std::byte{0};
}
constexpr TypedTable<Item> kNamedItem = kItem.Writes(IsNamed);
struct SkippingRows {
    using R = Owner;
    static constexpr Field rows[] = {
        FIELD(pOne, nullptr, Record(kNamedItem)).Single(),
        FIELD(pOther, "Other", Record(kNamedItem)).Single(),
        FIELD(nRoom),
        FIELD(nCount),
        FIELD(pList, "List", Record(kNamedItem))
            .Keyed()
            .Capacity(AT(nRoom))
            .Count(AT(nCount))
            .WriteSkipped(Skipped::ClosesUp),
        FIELD(bOne),
    };
};
constexpr TypedTable<Owner> kSkipping = MakeTable<SkippingRows>("Owner");

// False when the call has to end.
template <class Rows>
bool ReadInto(Owner& owner, const std::string& text) {
    static constexpr TypedTable<Owner> kTable = MakeTable<Rows>("Owner");
    test::Document document(text);
    EXPECT_TRUE(document.ok);
    LocalText local(document.arena);
    JsonParser parser(local);
    ReadCall call{parser, document.root};
    ReadRecord(kTable, document.root, reinterpret_cast<std::byte*>(&owner), call);
    return !call.overflowed;
}

std::string Written(const Table& table, const Owner& owner) {
    return test::WriteBytes(table, &owner);
}

TEST(CallersRecords, OneRecordIsReadAndWrittenWhereThePointerLeads) {
    Item one{"old", 7};
    Owner owner{};
    owner.pOne = &one;
    EXPECT_TRUE(ReadInto<OwnerRows>(owner, R"({ "One" : { "Id" : 5 } })"));
    EXPECT_EQ(one.nId, 5);
    EXPECT_EQ(owner.bOne, 1);
    EXPECT_EQ(Written(kOwner, owner), R"({ "One" : { "Id" : 5 } })");
    EXPECT_TRUE(ReadInto<OwnerRows>(owner, R"({ "One" : 5 })"));
    EXPECT_EQ(one.nId, 5); // a value of another type has no keys
}

TEST(CallersRecords, ANullPointerPassesTheKeyOverInBothDirections) {
    Owner owner{};
    EXPECT_TRUE(ReadInto<OwnerRows>(owner, R"({ "One" : { "Id" : 5 } })"));
    EXPECT_EQ(owner.bOne, 0);
    owner.bOne = 1;
    EXPECT_EQ(Written(kOwner, owner), "null");
}

TEST(CallersRecords, APointerIsACondition) {
    Item one{}, other{};
    Owner owner{};
    owner.pOther = &other;
    EXPECT_TRUE(ReadInto<OwnerRows>(owner, R"({ "Other" : { "Id" : 5 } })"));
    EXPECT_EQ(other.nId, 0);
    owner.pOne = &one;
    EXPECT_TRUE(ReadInto<OwnerRows>(owner, R"({ "Other" : { "Id" : 5 } })"));
    EXPECT_EQ(other.nId, 5);
}

TEST(CallersRecords, OneRecordHasARoomAndACountOfItsOwn) {
    for (const std::int32_t room : {-1, 0, 1, 9}) {
        Item other{};
        Owner owner{};
        owner.pOther = &other;
        owner.nRoom = room;
        owner.nCount = 99;
        EXPECT_TRUE(ReadInto<KeyedRows>(owner, R"({ "Other" : { "Id" : 5 } })"));
        EXPECT_EQ(other.nId, room > 0 ? 5 : 0);
        EXPECT_EQ(owner.nCount, room > 0 ? 1 : 99);
    }
}

TEST(CallersRecords, MoreElementsThanRoomEndTheCallBeforeAnyIsRead) {
    Item list[2] = {{"", 8}, {"", 9}};
    Owner owner{};
    owner.pList = list;
    owner.nRoom = 2;
    owner.nCount = 99;
    EXPECT_FALSE(ReadInto<OwnerRows>(owner, R"({ "List" : [ { "Id" : 1 }, null, null ] })"));
    EXPECT_EQ(list[0].nId, 8);
    EXPECT_EQ(owner.nCount, 99);
    EXPECT_TRUE(ReadInto<OwnerRows>(owner, R"({ "List" : [ { "Id" : 1 }, null ] })"));
    EXPECT_EQ(list[0].nId, 1);
    EXPECT_EQ(owner.nCount, 2);
    owner.pList = nullptr; // no room at all
    EXPECT_FALSE(ReadInto<OwnerRows>(owner, R"({ "List" : [ null ] })"));
    EXPECT_TRUE(ReadInto<OwnerRows>(owner, R"({ "List" : [] })"));
}

TEST(CallersRecords, ElementsAreCountedWithoutAnArray) {
    for (const std::int32_t room : {-1, 0, 1, 2, 3, 9}) {
        Owner owner{};
        owner.nRoom = room;
        owner.nCount = 99;
        EXPECT_TRUE(ReadInto<KeyedRows>(owner, R"({ "List" : { "a" : {}, "b" : {}, "c" : {} } })"));
        EXPECT_EQ(owner.nCount, std::clamp(room, 0, 3));
    }
}

TEST(CallersRecords, EntriesThatAreHeldBackHaveNoNameAndLeaveNoKey) {
    Item list[3] = {{"b", 1}, {"", 2}, {"a", 3}};
    Owner owner{};
    owner.pList = list;
    owner.nRoom = owner.nCount = 3;
    EXPECT_EQ(Written(kSkipping, owner), R"({ "List" : { "a" : { "Id" : 3 }, "b" : { "Id" : 1 } } })");
    list[0].szName[0] = list[2].szName[0] = '\0';
    EXPECT_EQ(Written(kSkipping, owner), "null");
    owner.pOther = list; // one that is held back is null in its place
    EXPECT_EQ(Written(kSkipping, owner), R"({ "Other" : null })");
}

} // namespace
} // namespace orrery::record
