// Rows whose list elements, texts or conditions a table may turn down.
#include "frame/record/Engine.h"
#include "support/JsonText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orrery::record {
namespace {

using test::Document;

enum : std::int32_t { LOW = 1, HIGH = 2 };
NAMES(kLevels, kExact,
      {
          {LOW, "Low"},
          {HIGH, "High"},
      });

struct PAIR {
    std::int32_t a;
    std::int32_t b;
};
PART(kLongPair, PAIR,
     {
         FIELD(a, "", Int),
         FIELD(b, "", Int),
     })
    .As(Shape::LongTuple);

struct LISTS {
    std::int32_t holeNum;
    PAIR holes[4];
    std::int32_t closedNum;
    PAIR closed[4];
    std::int32_t stoppedNum;
    PAIR stopped[4];
    std::int32_t countedNum;
    PAIR counted[4];
    PAIR one;
    std::int32_t hasA;
    std::int32_t switchA;
    std::int32_t b;
    char text[16];
    std::int32_t level;
    std::int32_t link;
};
PART(kLists, LISTS,
     {
         FIELD(holeNum),
         FIELD(holes, "Holes", Record(kLongPair)).Count(AT(holeNum)).RefusedElement(Nulls::LeaveHole),
         FIELD(closedNum),
         FIELD(closed, "Closed", Record(kLongPair)).Count(AT(closedNum)).RefusedElement(Nulls::CloseUp),
         FIELD(stoppedNum),
         FIELD(stopped, "Stopped", Record(kLongPair)).Count(AT(stoppedNum)).RefusedElement(Nulls::Stop),
         FIELD(countedNum),
         FIELD(counted, "Counted", Record(kLongPair)).Count(AT(countedNum)),
         FIELD(one, "One", Record(kLongPair)),
         FIELD(hasA),
         FIELD(switchA, "A", Bool).SetsAndNeeds(AT(hasA)),
         FIELD(b, "B", Int).ReadIf(AT(hasA)),
         FIELD(text, "Text", Text).FirstBytes(5),
         FIELD(level, "Level", Names(kLevels)).WriteAtMost(HIGH),
         FIELD(link, "Link", Int).WriteIfLinked(),
     });

LISTS Read(const std::string& json) {
    Document document(json);
    StackArena<1024> arena;
    LocalText text(arena);
    JsonParser parser(text);
    ReadCall call{parser, document.root};
    LISTS lists = {};
    ReadRecord(kLists, document.root, reinterpret_cast<std::byte*>(&lists), call);
    return lists;
}

std::string Write(const LISTS& lists, bool linked = true) {
    StackArena<1024> arena;
    LocalText text(arena);
    JsonParser parser(text);
    char room[1024] = {};
    json::TextWriter out(room, sizeof room);
    WriteCall call{parser, out, nullptr, false, {}};
    call.linked = linked;
    WriteRecord(kLists, reinterpret_cast<const std::byte*>(&lists), call);
    return {room, out.length()};
}

constexpr const char* kMixed = "[[1,2],7,[3],[4,5,6],[7,8]]";

TEST(RefusedElements, LeaveAHole) {
    const LISTS lists = Read(std::string(R"({"Holes":)") + kMixed + "}");
    EXPECT_EQ(lists.holeNum, 2); // five elements, four places, two of them taken
    EXPECT_EQ(lists.holes[0].b, 2);
    EXPECT_EQ(lists.holes[1].a, 0);
    EXPECT_EQ(lists.holes[2].a, 0);
    EXPECT_EQ(lists.holes[3].a, 4);
    EXPECT_EQ(lists.holes[3].b, 5);
}

TEST(RefusedElements, CloseUp) {
    const LISTS lists = Read(std::string(R"({"Closed":)") + kMixed + "}");
    EXPECT_EQ(lists.closedNum, 3);
    EXPECT_EQ(lists.closed[1].a, 4);
    EXPECT_EQ(lists.closed[2].b, 8);
    EXPECT_EQ(lists.closed[3].a, 0);
}

TEST(RefusedElements, EndTheList) {
    EXPECT_EQ(Read(std::string(R"({"Stopped":)") + kMixed + "}").stoppedNum, 1);
}

TEST(RefusedElements, CountUnlessToldOtherwise) {
    EXPECT_EQ(Read(std::string(R"({"Counted":)") + kMixed + "}").countedNum, 4);
}

TEST(LongTuple, PassesOverWhatFollowsItsElements) {
    EXPECT_EQ(Read(R"({"One":[1,2,3]})").one.b, 2);
    EXPECT_EQ(Read(R"({"One":[1]})").one.a, 0);
    EXPECT_EQ(Read(R"({"One":7})").one.a, 0);
    LISTS lists = {};
    lists.one = {3, 4};
    EXPECT_NE(Write(lists).find(R"("One" : [ 3, 4 ])"), std::string::npos);
}

TEST(ReadWith, ReadsOnlyBehindItsSwitch) {
    EXPECT_EQ(Read(R"({"B":5})").b, 0);
    EXPECT_EQ(Read(R"({"A":null,"B":5})").b, 0);
    EXPECT_EQ(Read(R"({"A":false,"B":5})").b, 5);
    LISTS lists = {};
    lists.b = 6; // writing does not look at the switch
    EXPECT_NE(Write(lists).find(R"("B" : 6)"), std::string::npos);
}

TEST(FirstBytes, CutsBeforeItConverts) {
    EXPECT_STREQ(Read(R"({"Text":"abcdefg"})").text, "abcde");
    EXPECT_STREQ(Read(R"({"Text":"abcde"})").text, "abcde");
    EXPECT_STREQ(Read(R"({"Text":true})").text, "");
}

TEST(AtMost, WritesAHigherCodeByTheHighestName) {
    LISTS lists = {};
    lists.level = 77;
    EXPECT_NE(Write(lists).find(R"("Level" : "High")"), std::string::npos);
    lists.level = LOW;
    EXPECT_NE(Write(lists).find(R"("Level" : "Low")"), std::string::npos);
    lists.level = -1;
    EXPECT_EQ(Write(lists).find("Level"), std::string::npos);
}

TEST(WhenLinked, IsLeftOutWithoutLinkage) {
    EXPECT_NE(Write({}).find(R"("Link" : 0)"), std::string::npos);
    EXPECT_EQ(Write({}, false).find("Link"), std::string::npos);
}

} // namespace
} // namespace orrery::record
