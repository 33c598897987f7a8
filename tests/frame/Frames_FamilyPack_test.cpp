#include "frame/record/Engine.h"
#include "support/FrameCalls.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace orrery {
namespace {

using namespace record;
using test::Pack;
using test::Written;

struct Item {
    std::int32_t id;
    std::int32_t level;
};

TABLE(kItem, Item,
      {
          FIELD(id, "Id", Int),
          FIELD(level, "Level", Int).Absent(-1),
      });

struct Named {
    char name[8];
    std::int32_t id;
};

TABLE(kNamed, Named,
      {
          FIELD(name, nullptr, MemberName),
          FIELD(id, "Id", Int),
      });

struct Versioned {
    std::uint32_t dwSize;
    std::int32_t id;
    char name[8];
    std::int32_t level;
};

TABLE(kVersioned, Versioned,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(id, "Id", Int),
          FIELD(name, "Name", Text),
          FIELD(level, "Level", Int),
      });

constexpr PackFrame kPack;

const Item kItems[] = {{1, 2}, {3, 4}};
const std::string kFirst = R"({ "Id" : 1, "Level" : 2 })";
const std::string kSecond = R"({ "Id" : 3, "Level" : 4 })";
const std::string kArrayOfOne = "[ " + kFirst + " ]\n";
const std::string kBoth = "[ " + kFirst + ", " + kSecond + " ]\n";

std::string Text(Form form, std::size_t size) {
    return Pack(kItem, kPack.As(form), kItems, size).text();
}

TEST(FamilyPack, Forms) {
    for (const std::size_t size : {8u, 15u, 16u})
        EXPECT_EQ(Text(Form::One, size), kFirst + "\n") << size;
    EXPECT_EQ(Text(Form::Array, 8), kArrayOfOne);
    EXPECT_EQ(Text(Form::Array, 15), kArrayOfOne);
    EXPECT_EQ(Text(Form::Array, 16), kBoth);
    EXPECT_EQ(Text(Form::BareIfOne, 8), kFirst + "\n");
    EXPECT_EQ(Text(Form::BareIfOne, 15), kFirst + "\n");
    EXPECT_EQ(Text(Form::BareIfOne, 16), kBoth);
    EXPECT_EQ(Text(Form::BareIfExact, 8), kFirst + "\n");
    EXPECT_EQ(Text(Form::BareIfExact, 15), kArrayOfOne);
    EXPECT_EQ(Text(Form::BareIfExact, 16), kBoth);
}

TEST(FamilyPack, ByMember) {
    const Named named[] = {{"b", 1}, {"a", 2}, {"b", 3}};
    EXPECT_EQ(Pack(kNamed, kPack.As(Form::ByMember), named, sizeof named).text(),
              "{ \"a\" : { \"Id\" : 2 }, \"b\" : { \"Id\" : 3 } }\n");
    EXPECT_EQ(Pack(kNamed, kPack.As(Form::ByMember), named, sizeof(Named)).text(), "{ \"b\" : { \"Id\" : 1 } }\n");
}

bool HasNumber(const std::byte* record) {
    return MEMBER(record, Named, id) != 0;
}

TABLE(kNumberedNames, Named,
      {
          FIELD(name, nullptr, MemberName),
          FIELD(id, "Id", Int),
      })
    .Writes(HasNumber);

TEST(FamilyPack, MembersThatTheirTableHoldsBackLeaveNoTrace) {
    const PackFrame frame = kPack.As(Form::ByMember);
    const Named some[] = {{"b", 0}, {"a", 2}, {"c", 0}};
    EXPECT_EQ(Pack(kNumberedNames, frame, some, sizeof some).text(), "{ \"a\" : { \"Id\" : 2 } }\n");
    // Not one member: nothing made an object of the document.
    const Named none[] = {{"b", 0}, {"a", 0}};
    EXPECT_EQ(Pack(kNumberedNames, frame, none, sizeof none).text(), "null\n");
}

void RefuseBelowZero(const Field&, const std::byte* record, WriteCall& call) {
    if (MEMBER(record, Item, level) < 0) call.refused = true;
    call.Key();
    call.out.Int(MEMBER(record, Item, level));
}
constexpr CustomCodec kLevel{nullptr, RefuseBelowZero};

TABLE(kRefusing, Item,
      {
          FIELD(id, "Id", Int),
          FIELD(level, "Level", Custom(kLevel)),
      });

TEST(FamilyPack, ARowMayEndTheCall) {
    const Item refused{1, -2};
    const Written w = Pack(kRefusing, kPack, &refused, sizeof refused);
    EXPECT_EQ(w.outcome, Outcome::RowRefused);
    EXPECT_TRUE(w.isCleared());
    EXPECT_TRUE(Pack(kRefusing, kPack.KeepsText(), &refused, sizeof refused).isUntouched());
    EXPECT_EQ(Pack(kRefusing, kPack, kItems, sizeof(Item)).text(), kFirst + "\n");
}

int asked = 0;

void CountAndWrite(const Field&, const std::byte* record, WriteCall& call) {
    ++asked;
    call.Key();
    call.out.Int(MEMBER(record, Named, id));
}
constexpr CustomCodec kCounted{nullptr, CountAndWrite};

TABLE(kCountedNames, Named,
      {
          FIELD(name, nullptr, MemberName),
          FIELD(id, "Id", Custom(kCounted)),
      });

TEST(FamilyPack, RecordsBehindTheRoomAreNotWritten) {
    std::vector<Named> many(900);
    for (std::size_t i = 0; i < many.size(); ++i)
        std::memcpy(many[i].name, std::to_string(100 + i).c_str(), 4);
    asked = 0;
    const Written w = Pack(kCountedNames, kPack.As(Form::Array), many.data(), many.size() * sizeof(Named), 100);
    EXPECT_EQ(w.outcome, Outcome::TextTooLong);
    EXPECT_TRUE(w.isCleared());
    EXPECT_GE(asked, 7); // `{ "Id" : 0 }, ` takes 14 bytes
    EXPECT_LE(asked, 9);
}

TEST(FamilyPack, UnderItsOwnKey) {
    const PackFrame under = kPack.Under("\"Own\" : ");
    EXPECT_EQ(Pack(kItem, under, kItems, 8).text(), "{ \"Own\" : " + kFirst + " }\n");
    EXPECT_EQ(Pack(kItem, under.As(Form::Array), kItems, 16).text(),
              "{ \"Own\" : [ " + kFirst + ", " + kSecond + " ] }\n");
}

TEST(FamilyPack, BelowOneRecordNothingIsTouched) {
    for (const Form form : {Form::One, Form::Array, Form::BareIfOne, Form::BareIfExact, Form::ByMember}) {
        for (const std::size_t size : {0u, 7u}) {
            const Written w = Pack(kItem, kPack.As(form), kItems, size);
            EXPECT_EQ(w.outcome, Outcome::RecordTooSmall);
            EXPECT_TRUE(w.isUntouched());
        }
    }
    EXPECT_EQ(Pack(kItem, kPack.ExactSize(), kItems, 9).outcome, Outcome::RecordTooSmall);
    EXPECT_EQ(Pack(kItem, kPack.ExactSize(), kItems, 8).outcome, Outcome::Done);
}

TEST(FamilyPack, TheCallersOwnInputIsTested) {
    const auto accepts = [](const std::byte* record, std::uint32_t size) {
        return size == 8 && record[0] == std::byte{3};
    };
    EXPECT_EQ(Pack(kItem, kPack.Accepts(accepts), kItems, 8).bytes.find_first_not_of('\0'), std::string::npos);
    EXPECT_TRUE(Pack(kItem, kPack.Accepts(accepts).KeepsText(), kItems, 8).isUntouched());
    EXPECT_EQ(Pack(kItem, kPack.Accepts(accepts), kItems, 8).outcome, Outcome::NotAccepted);
    EXPECT_EQ(Pack(kItem, kPack.Accepts(accepts), kItems + 1, 8).outcome, Outcome::Done);
}

TEST(FamilyPack, Capacities) {
    const std::string text = kFirst + "\n";
    const std::size_t length = text.size();
    const auto pack = [&](Capacity capacity, std::size_t room) {
        return Pack(kItem, kPack.Fits(capacity), kItems, 8, room);
    };
    for (const Capacity capacity : {Capacity::Strict, Capacity::Loose, Capacity::Raw, Capacity::OneBefore}) {
        EXPECT_EQ(pack(capacity, length + 9).bytes, text + std::string(9, '\0'));
        EXPECT_EQ(pack(capacity, length + 2).bytes, text + std::string(2, '\0'));
        for (const std::size_t room : {length - 1, std::size_t{1}, std::size_t{0}}) {
            EXPECT_EQ(pack(capacity, room).outcome, Outcome::TextTooLong);
            EXPECT_TRUE(pack(capacity, room).isCleared());
        }
    }
    EXPECT_EQ(pack(Capacity::Strict, length + 1).bytes, text + '\0');
    EXPECT_EQ(pack(Capacity::Strict, length).outcome, Outcome::TextTooLong);
    EXPECT_EQ(pack(Capacity::Loose, length + 1).bytes, text + '\0');
    EXPECT_EQ(pack(Capacity::Loose, length).bytes, kFirst + '\0');
    EXPECT_EQ(pack(Capacity::Raw, length + 1).bytes, text + '\0');
    EXPECT_EQ(pack(Capacity::Raw, length).bytes, text);
    EXPECT_EQ(Pack(kItem, kPack.Fits(Capacity::Bare).KeepsText(), kItems, 8, length + 9).bytes,
              text + std::string(9, '#'));
    EXPECT_EQ(Pack(kItem, kPack.Fits(Capacity::Bare).KeepsText(), kItems, 8, length).bytes, text);
    EXPECT_TRUE(Pack(kItem, kPack.Fits(Capacity::Bare).KeepsText(), kItems, 8, length - 1).isUntouched());
    EXPECT_EQ(pack(Capacity::OneBefore, length + 1).outcome, Outcome::TextTooLong);
    EXPECT_TRUE(pack(Capacity::OneBefore, length + 1).isCleared());
}

TEST(FamilyPack, AFailedCallMayLeaveTheText) {
    const std::string text = kFirst + "\n";
    const PackFrame keeps = kPack.KeepsText();
    EXPECT_EQ(Pack(kItem, keeps, kItems, 8, text.size()).outcome, Outcome::TextTooLong);
    EXPECT_TRUE(Pack(kItem, keeps, kItems, 8, text.size()).isUntouched());
    EXPECT_EQ(Pack(kItem, keeps, kItems, 8, text.size() + 4).bytes, text + '\0' + "###");
}

// A text too long for the stack, whose row refuses once it stands there.
bool refusesLate = false;
int timesAsked = 0;
void WriteLong(const record::Field&, const std::byte*, record::WriteCall& call) {
    ++timesAsked;
    call.Key();
    call.out.String(std::string(20000, 'x'));
    if (refusesLate) call.refused = true;
}
constexpr record::CustomCodec kLongCodec{nullptr, WriteLong};
TABLE(kLong, Item,
      {
          FIELD(id, "Id", Custom(kLongCodec)),
          FIELD(level, "Level", Int),
      });

TEST(FamilyPack, AFailedCallLeavesTheTextHoweverLateItFails) {
    refusesLate = true;
    const Written late = Pack(kLong, kPack.KeepsText(), kItems, 8, 30000);
    EXPECT_EQ(late.outcome, Outcome::RowRefused);
    EXPECT_TRUE(late.isUntouched());
    refusesLate = false;
    timesAsked = 0;
    const std::string text = "{ \"Id\" : \"" + std::string(20000, 'x') + "\", \"Level\" : 2 }\n";
    EXPECT_TRUE(Pack(kLong, kPack.KeepsText(), kItems, 8, text.size() + 1).bytes == text + '\0');
    EXPECT_EQ(timesAsked, 1) << "a long text is written once";
    for (const std::size_t room : {std::size_t{9000}, text.size() - 1}) {
        const Written tooLong = Pack(kLong, kPack.KeepsText(), kItems, 8, room);
        EXPECT_EQ(tooLong.outcome, Outcome::TextTooLong) << room;
        EXPECT_TRUE(tooLong.isUntouched()) << room;
    }
}

bool IsPositive(const std::byte* record) {
    return MEMBER(record, Item, id) > 0;
}

TABLE(kPositive, Item,
      {
          FIELD(id, "Id", Int),
          FIELD(level, "Level", Int),
      })
    .Writes(IsPositive);

TEST(FamilyPack, RecordsThatTheirTableHoldsBack) {
    const Item items[] = {{0, 0}, {1, 2}, {0, 0}};
    EXPECT_EQ(Pack(kPositive, kPack.As(Form::Array), items, sizeof items).text(), "[ null, " + kFirst + " ]\n");
    EXPECT_EQ(Pack(kPositive, kPack.As(Form::Array), items, 8).text(), "null\n");
    EXPECT_EQ(Pack(kPositive, kPack, items, 8).text(), "null\n");
}

constexpr PackFrame kPackByWord = PackFrame().Strides(Stride::SizeWord).As(Form::BareIfOne);

TEST(FamilyPack, CallersOfOtherLayouts) {
    struct Newer {
        Versioned known;
        std::int32_t later[2];
    };
    const Newer newer[] = {{{sizeof(Newer), 1, "ab", 3}, {9, 9}}, {{0, 4, "cd", 5}, {9, 9}}};
    const std::string first = R"({ "Id" : 1, "Level" : 3, "Name" : "ab" })";
    const std::string second = R"({ "Id" : 4, "Level" : 5, "Name" : "cd" })";
    const Versioned older{8, 7, "notours", 77};
    for (const PackFrame& frame : {kPackByWord, kPackByWord.Strides(Stride::SizeWordByField)}) {
        EXPECT_EQ(Pack(kVersioned, frame, newer, sizeof(Newer)).text(), first + "\n");
        // The first record's size is the stride, whatever the later ones say of themselves.
        EXPECT_EQ(Pack(kVersioned, frame, newer, sizeof newer).text(), "[ " + first + ", " + second + " ]\n");
        EXPECT_EQ(Pack(kVersioned, frame, &older, 8).text(), "{ \"Id\" : 7, \"Level\" : 0, \"Name\" : \"\" }\n");
    }
    for (const std::uint32_t word : {0u, 1u, 3u, 21u}) {
        const Versioned bad{word, 1, "", 0};
        EXPECT_EQ(Pack(kVersioned, kPackByWord, &bad, sizeof bad).outcome, Outcome::RecordTooSmall) << word;
        EXPECT_TRUE(Pack(kVersioned, kPackByWord, &bad, sizeof bad).isUntouched());
    }
    EXPECT_EQ(Pack(kVersioned, kPackByWord, &older, 3).outcome, Outcome::RecordTooSmall);
    const Versioned four{4, 1, "x", 2};
    EXPECT_EQ(Pack(kVersioned, kPackByWord.As(Form::One), &four, 20).text(),
              "{ \"Id\" : 0, \"Level\" : 0, \"Name\" : \"\" }\n");
}

// Of this library's own layout too: texts lose what leaves no room for a terminator where fields move one by one, and
// later records' own words count for nothing.
TEST(FamilyPack, CallersOfThisLayout) {
    const Versioned own[] = {{sizeof(Versioned), 1, {'1', '2', '3', '4', '5', '6', '7', '8'}, 3},
                             {0, 2, "a", 4},
                             {sizeof(Versioned), 3, {'b', '\0', 'c'}, 5}};
    const auto expected = [](const std::string& name) {
        return R"([ { "Id" : 1, "Level" : 3, "Name" : ")" + name
               + R"(" }, { "Id" : 2, "Level" : 4, "Name" : "a" }, { "Id" : 3, "Level" : 5, "Name" : "b" } ])" + "\n";
    };
    EXPECT_EQ(Pack(kVersioned, kPackByWord, own, sizeof own).text(), expected("12345678"));
    EXPECT_EQ(Pack(kVersioned, kPackByWord.Strides(Stride::SizeWordByField), own, sizeof own).text(),
              expected("1234567"));
    EXPECT_EQ(Pack(kVersioned, kPackByWord, own, sizeof own[0]).text(),
              "{ \"Id\" : 1, \"Level\" : 3, \"Name\" : \"12345678\" }\n");
}

} // namespace
} // namespace orrery
