// Which replies are read from the text without a document, and what becomes of those that turn out to be none.
#include "frame/TextRoad.h"

#include "frame/record/Table.h"

#include <array>
#include <cstring>
#include <gtest/gtest.h>
#include <string>

namespace orrery {
namespace {

using namespace record;

struct Input {
    std::int32_t channel;
    std::int32_t level;
    std::int32_t count;
    std::int32_t list[3];
    std::int32_t oldLevel;
    char name[8];
};

TABLE(kInput, Input,
      {
          FIELD(channel, "channel", Int).FromRoot(),
          FIELD(level, "Level", Int),
          FIELD(count),
          FIELD(list, "List", Int).Count(AT(count)),
          FIELD(oldLevel, "Old", Int).Always(),
          FIELD(name, "Name", Text),
      });

struct Door {
    char name[8];
    std::int32_t level;
    std::int32_t mode;
};

TABLE(kDoor, Door,
      {
          FIELD(name, nullptr, MemberName),
          FIELD(level, "Level", Int),
          FIELD(mode, "Mode", Int),
      });

// In a second key of one field the later key in key order wins, however they come.
struct Renamed {
    std::int32_t level;
};
TABLE(kRenamed, Renamed,
      {
          FIELD(level, "Level", Int),
          FIELD(level, "Lev", Int).ReadOnly().Alias(),
      });

// Members of widths that few have.
struct Narrow {
    std::uint8_t small;
    std::uint8_t flag;
    std::int16_t wide;
    std::uint16_t count;
    std::int64_t large;
    float ratio;
    double scale;
    std::uint8_t unsignedByte;
    std::uint8_t hasSmall;
    std::uint8_t reserved[6];
};
TABLE(kNarrow, Narrow,
      {
          FIELD(small, "Small", Int).SetsAndNeeds(AT(hasSmall)),
          FIELD(flag, "Flag", Bool),
          FIELD(wide, "Wide", Int),
          FIELD(count, "Count", UInt),
          FIELD(large, "Large", Int),
          FIELD(ratio, "Ratio", Real),
          FIELD(scale, "Scale", Real),
          FIELD(unsignedByte, "Unsigned", UInt),
          FIELD(hasSmall),
          FIELD(reserved),
      });

constexpr ParseFrame kParse;

template <class R, std::size_t N = 1>
struct Read {
    std::array<R, N> records;
    Outcome outcome;
    std::uint32_t length = 77;
    bool tookText;

    Read(const Table& table, const ParseFrame& frame, const std::string& text, int filling = 0x11) {
        std::memset(static_cast<void*>(records.data()), filling, sizeof records);
        ReadRoad road;
        outcome = ParseFamily(table, frame, {text.c_str(), records.data(), sizeof records, &length, &road});
        tookText = road.tookText;
    }
    const R* operator->() const { return records.data(); }
};

std::string Reply(const std::string& value, const std::string& before = "") {
    return "{ " + before + "\"params\" : { \"table\" : " + value + " }, \"result\" : true }";
}

TEST(TextRoad, ReadsKeysInOrder) {
    const Read<Input> read(kInput, kParse,
                           Reply(R"({ "Level" : 3, "List" : [ 4, 5 ], "Name" : "Gate" })", R"("channel" : 7, )"));
    EXPECT_TRUE(read.tookText);
    EXPECT_EQ(read->channel, 7);
    EXPECT_EQ(read->level, 3);
    EXPECT_EQ(read->count, 2);
    EXPECT_EQ(read->list[1], 5);
    EXPECT_STREQ(read->name, "Gate");
    EXPECT_EQ(read.length, sizeof(Input));
}

TEST(TextRoad, ReadsMembersOfAnyWidth) {
    const Read<Narrow> read(kNarrow, kParse,
                            Reply(R"({ "Count" : 65537, "Flag" : true, "Large" : -123456789, "Ratio" : 3, )"
                                  R"("Scale" : -2, "Small" : 300, "Unsigned" : 7, "Wide" : -1 })"));
    EXPECT_TRUE(read.tookText);
    EXPECT_EQ(read->count, 1);
    EXPECT_EQ(read->flag, 1);
    EXPECT_EQ(read->large, -123456789);
    EXPECT_EQ(read->ratio, 3.0f);
    EXPECT_EQ(read->scale, -2.0);
    EXPECT_EQ(read->small, 44);
    EXPECT_EQ(read->hasSmall, 1);
    EXPECT_EQ(read->unsignedByte, 7);
    EXPECT_EQ(read->wide, -1);
    // Values of other types become what they become anywhere.
    const Read<Narrow> other(kNarrow, kParse,
                             Reply(R"({"Count":-5,"Flag":false,"Large":4000000000,"Ratio":1.5,"Scale":"2",)"
                                   R"("Small":2.9,"Unsigned":true,"Wide":null})"));
    EXPECT_TRUE(other.tookText);
    EXPECT_EQ(other->count, 0); // an unsigned number is not below 0
    EXPECT_EQ(other->flag, 0);
    EXPECT_EQ(other->large, 0); // none that 32 bits with a sign hold
    EXPECT_EQ(other->ratio, 1.5f);
    EXPECT_EQ(other->scale, 0.0);
    EXPECT_EQ(other->small, 2);
    EXPECT_EQ(other->unsignedByte, 1);
    EXPECT_EQ(other->wide, 0);
}

TEST(TextRoad, TakesKeysInAnyOrderEscapedAndAmongComments) {
    const Read<Input> read(kInput, kParse,
                           Reply(R"({"Old":9,/* ] */"Zz":[{}],"N\u0061me":"Gate","Level" :3,"List":[]})"));
    EXPECT_TRUE(read.tookText);
    EXPECT_EQ(read->oldLevel, 9);
    EXPECT_EQ(read->level, 3);
    EXPECT_STREQ(read->name, "Gate");
}

TEST(TextRoad, OfAKeyThatComesTwiceTheLastStands) {
    for (const char* const value : {R"({"Level":3,"Level":4})", R"({"Level":3,"Old":1,"Level":4})",
                                    R"({"Old":1,"Level":3,"Name":"a","Level":4})"}) {
        const Read<Input> read(kInput, kParse, Reply(value));
        EXPECT_FALSE(read.tookText) << value;
        EXPECT_EQ(read->level, 4) << value;
    }
    // Of the first nothing is left.
    const Read<Input> list(kInput, kParse, Reply(R"({"List":[1,2,3],"List":[7]})"));
    EXPECT_EQ(list->count, 1);
    EXPECT_EQ(list->list[0], 7);
    EXPECT_EQ(list->list[2], 0);
    const Read<Input> null(kInput, kParse, Reply(R"({"Level":3,"Level":null})"));
    EXPECT_EQ(null->level, 0);
    // Keys that the table does not know may.
    EXPECT_TRUE((Read<Input>(kInput, kParse, Reply(R"({"Zz":1,"Level":3,"Zz":2})")).tookText));
}

TEST(TextRoad, OfTwoKeysOfAFieldTheLaterInKeyOrderStands) {
    EXPECT_EQ((Read<Renamed>(kRenamed, kParse, Reply(R"({"Lev":1,"Level":2})"))->level), 2);
    EXPECT_EQ((Read<Renamed>(kRenamed, kParse, Reply(R"({"Level":2,"Lev":1})"))->level), 2);
    EXPECT_EQ((Read<Renamed>(kRenamed, kParse, Reply(R"({"Lev":1})"))->level), 1);
}

TEST(TextRoad, KeysBesideTheValueMayComeBehindIt) {
    const Read<Input> behind(kInput, kParse, R"({"params":{"table":{"Level":3}},"result":true,"channel":7})");
    EXPECT_FALSE(behind.tookText);
    EXPECT_EQ(behind->channel, 7);
    const Read<Input> twice(kInput, kParse, R"({"params":{"table":{"Level":3},"table":{"Level":4}},"result":true})");
    EXPECT_FALSE(twice.tookText);
    EXPECT_EQ(twice->level, 4);
    const Read<Input> other(kInput, kParse, R"({"result":true,"params":{"a":1,"table":{"Level":3},"z":2},"id":1})");
    EXPECT_TRUE(other.tookText);
    EXPECT_EQ(other->level, 3);
}

// A caller that lets the call keep its values has them back when the call fails, however late.
TEST(TextRoad, AFailedCallLeavesNothingBehind) {
    for (const char* const end :
         {"},\"result\":false}", "},\"result\":true", "},\"result\":true]", "}", "", ",", "}}}"}) {
        const std::string text = std::string(R"({"params":{"table":{"Level":3,"List":[1,2]})") + end;
        const Read<Input> kept(kInput, kParse.Clears(Clearing::Kept), text);
        const bool isJson = text.find("false") != std::string::npos || text.ends_with("}}}");
        EXPECT_EQ(kept.outcome, isJson ? Outcome::Refused : Outcome::NoJson) << text;
        EXPECT_EQ(kept->level, 0x11111111) << text;
        EXPECT_EQ(kept->list[1], 0x11111111) << text;
        EXPECT_EQ(kept.length, 77u) << text;
        const Read<Input> cleared(kInput, kParse, text);
        EXPECT_EQ(cleared->level, 0) << text;
        EXPECT_EQ(cleared->list[1], 0) << text;
    }
}

TEST(TextRoad, RecordsByNameComeInTheOrderOfTheirNames) {
    const ParseFrame frame = kParse.Takes(Take::ByMember).Length(ReplyLength::PerRecord);
    const Read<Door, 3> sorted(kDoor, frame, Reply(R"({"A":{"Level":1},"B":null,"C":{"Level":3}})"));
    EXPECT_TRUE(sorted.tookText);
    EXPECT_STREQ(sorted.records[1].name, "C");
    EXPECT_EQ(sorted.length, 2 * sizeof(Door));
    const Read<Door, 3> mixed(kDoor, frame, Reply(R"({"B":{"Level":2},"A":{"Level":1}})"));
    EXPECT_FALSE(mixed.tookText);
    EXPECT_STREQ(mixed.records[0].name, "A");
    EXPECT_EQ(mixed.records[1].level, 2);
    const Read<Door, 3> twice(kDoor, frame, Reply(R"({"A":{"Level":1,"Mode":5},"A":{"Level":2}})"));
    EXPECT_FALSE(twice.tookText);
    EXPECT_EQ(twice.records[0].level, 2);
    EXPECT_EQ(twice.records[0].mode, 0);
    EXPECT_EQ(twice.length, sizeof(Door));
    // One behind the last that there is room for still has its place in the order.
    const Read<Door, 1> full(kDoor, frame, Reply(R"({"B":{"Level":2},"A":{"Level":1}})"));
    EXPECT_STREQ(full.records[0].name, "A");
}

} // namespace
} // namespace orrery
