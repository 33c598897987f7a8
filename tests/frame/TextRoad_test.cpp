// Which replies are read from the text without a document, and what becomes of those that turn out to be none.
#include "frame/TextRoad.h"

#include "frame/record/Table.h"
#include "support/FailingAllocator.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <vector>

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

// Fields of few bytes and of many, with texts of all lengths around those that go a short way.
struct Labels {
    char tiny[15];
    char small[16];
    char odd[31];
    char usual[32];
    char more[33];
    char large[64];
    char largest[100];
    char guard;
};
TABLE(kLabels, Labels,
      {
          FIELD(tiny, "A", Text),
          FIELD(small, "B", RawText),
          FIELD(odd, "C", Text),
          FIELD(usual, "D", RawText),
          FIELD(more, "E", Text),
          FIELD(large, "F", Text),
          FIELD(largest, "G", RawText),
          FIELD(guard),
      });

// Tuples and masks of every kind of element, by both roads.
struct Shapes {
    CFG_POINT point;
    CFG_RECT box;
    CFG_COLOR loose;
    std::uint32_t mask[2];
    std::uint32_t looseMask[1];
    std::uint8_t hasMask;
    std::uint8_t reserved[3];
};
TABLE(kShapes, Shapes,
      {
          FIELD(point, "Point", Record(kPoint)),
          FIELD(box, "Box", Record(kRect)),
          FIELD(loose, "Colour", Record(kColor)),
          FIELD(mask, "Mask", BitMask).SetsAndNeeds(AT(hasMask)),
          FIELD(looseMask, "Loose", BitMaskLoose).AnyShape(),
          FIELD(hasMask),
          FIELD(reserved),
      });

TEST(TextRoad, ReadsNumbersOfTuplesAndMasksAsADocumentHasThem) {
    std::string all = "[ ";
    for (int i = 0; i < 70; ++i)
        all += std::to_string(i % 7 * 9) + ", "; // more than the mask has bits
    const std::string many = all + "5 ]";
    for (const std::string& list :
         {std::string("[ 1, 2 ]"), std::string("[ 1, 2, 3, 4 ]"), std::string("[1,2]"),
          std::string("[ 63, 64, 31, 32 ]"), std::string("[ -1, -31, -32, 0 ]"), std::string("[ 1.9, \"2\" ]"),
          std::string("[ true, null ]"), std::string("[ null, 3, [ 4 ], { \"a\" : 5 } ]"),
          std::string("[ 2147483647, 4294967295 ]"), std::string("[ 12345678, 123456789, 1234567890, 99999999999 ]"),
          std::string("[]"), std::string("[ 1, 2, ]"), std::string("[ 1 2 ]"), std::string("{}"), std::string("null"),
          std::string("5"), many, many + "]"}) {
        for (const char* const key : {"Box", "Colour", "Loose", "Mask", "Point"}) {
            const std::string text = Reply("{ \"" + std::string(key) + "\" : " + list + " }");
            Shapes byText, byDocument;
            std::memset(static_cast<void*>(&byText), 0x22, sizeof byText);
            std::memset(static_cast<void*>(&byDocument), 0x22, sizeof byDocument);
            ReadRoad documentOnly{.documentOnly = true};
            const auto parse = [&](Shapes& shapes, ReadRoad* road) {
                return ParseFamily(kShapes, kParse, {text.c_str(), &shapes, sizeof shapes, nullptr, road});
            };
            EXPECT_EQ(parse(byText, nullptr), parse(byDocument, &documentOnly)) << text;
            EXPECT_EQ(std::memcmp(&byText, &byDocument, sizeof byText), 0) << text;
        }
    }
    const Read<Shapes> read(kShapes, kParse,
                            Reply(R"({ "Box" : [ 1, 20, 300, 8191 ], "Mask" : [ 0, 33, 5 ], "Point" : [ 7, 8 ] })"), 0);
    EXPECT_TRUE(read.tookText);
    EXPECT_EQ(read->box.nRight, 300);
    EXPECT_EQ(read->box.nBottom, 8191);
    EXPECT_EQ(read->point.nY, 8);
    EXPECT_EQ(read->mask[0], 0x21u);
    EXPECT_EQ(read->mask[1], 2u);
    EXPECT_EQ(read->hasMask, 1);
}

TEST(TextRoad, PutsTextsOfAnyLengthIntoFieldsOfAnySize) {
    const std::string letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    std::string all = letters + letters;
    for (std::size_t size = 0; size <= 110; ++size) {
        std::string value;
        for (const char key : std::string("ABCDEFG"))
            value += (value.empty() ? "{\"" : ", \"") + std::string(1, key) + "\" : \"" + all.substr(0, size) + "\"";
        const Read<Labels> read(kLabels, kParse.Clears(Clearing::Kept), Reply(value + "}"));
        EXPECT_TRUE(read.tookText);
        const auto expect = [&](const char* field, std::size_t capacity) {
            std::string expected = all.substr(0, std::min(size, capacity - 1));
            expected.resize(capacity, '\0');
            EXPECT_EQ(std::string(field, capacity), expected) << size;
        };
        expect(read->tiny, sizeof read->tiny);
        expect(read->small, sizeof read->small);
        expect(read->odd, sizeof read->odd);
        expect(read->usual, sizeof read->usual);
        expect(read->more, sizeof read->more);
        expect(read->large, sizeof read->large);
        expect(read->largest, sizeof read->largest);
        EXPECT_EQ(read->guard, 0x11);
    }
}

// ---- What the caller's pointers lead to --------------------------------------------------------------------------

struct Port {
    std::int32_t number;
    char label[12];
};
TABLE(kPort, Port,
      {
          FIELD(number, "Number", Int),
          FIELD(label, "Label", Text),
      });

struct Rack {
    std::uint32_t size;
    std::int32_t height;
    char name[16];
    Port* ports;
    std::int32_t room;
    std::int32_t count;
    std::int32_t tail;
    char note[8]; // and four bytes that belong to no field
};
TABLE(kRack, Rack,
      {
          FIELD(size, nullptr, Size),
          FIELD(height, "Height", Int).Absent(5),
          FIELD(name, nullptr, MemberName),
          FIELD(ports, "Ports", Record(kPort)).Capacity(AT(room)).Count(AT(count)),
          FIELD(room),
          FIELD(count),
          FIELD(tail, "Tail", Int),
          FIELD(note, "Zone", Text),
      });
constexpr ParseFrame kRackFrame = kParse.Clears(Clearing::Kept);

// A caller's rack with three ports, of which the call may use two.
struct Racks {
    Port ports[3];
    Rack rack;
    Outcome outcome;
    ReadRoad road;

    explicit Racks(const std::string& text, const ParseFrame& frame = kRackFrame, bool documentOnly = false)
        : road{documentOnly} {
        std::memset(ports, 0x22, sizeof ports);
        std::memset(static_cast<void*>(&rack), 0x11, sizeof rack);
        rack.size = sizeof rack;
        rack.ports = ports;
        rack.room = 2;
        std::uint32_t length = 0;
        outcome = ParseFamily(kRack, frame, {text.c_str(), &rack, sizeof rack, &length, &road});
    }
    bool isUntouched() const {
        const Racks other("");
        return std::memcmp(ports, other.ports, sizeof ports) == 0 && rack.height == 0x11111111
               && rack.count == 0x11111111 && rack.tail == 0x11111111;
    }
};

TEST(TextRoad, ReadsWhatPointersLeadTo) {
    const Racks read(Reply(R"({"Height":2,"Ports":[{"Label":"a","Number":1},{"Number":3},{"Number":4}],"Tail":6})"));
    EXPECT_EQ(read.outcome, Outcome::Done);
    EXPECT_TRUE(read.road.tookText);
    EXPECT_EQ(read.rack.height, 2);
    EXPECT_EQ(read.rack.count, 2);
    EXPECT_EQ(read.rack.tail, 6);
    EXPECT_EQ(read.ports[0].number, 1);
    EXPECT_STREQ(read.ports[0].label, "a");
    EXPECT_EQ(read.ports[1].number, 3);
    EXPECT_EQ(read.ports[1].label[0], 0x22); // what the text does not tell stays
    EXPECT_EQ(read.ports[2].number, 0x22222222);
    const Racks null(Reply(R"({"Ports":[null,7]})"));
    EXPECT_TRUE(null.road.tookText);
    EXPECT_EQ(null.rack.count, 2);
    EXPECT_EQ(null.ports[1].number, 0x22222222);
}

TEST(TextRoad, PutsBackWhatPointersLeadTo) {
    const std::string ports = R"("Ports":[{"Label":"a","Number":1},{"Label":"b","Number":2}])";
    for (const std::string& text : {Reply("{" + ports + "},"), Reply("{" + ports + ",\"Tail\":@}"), Reply("{" + ports),
                                    R"({"params":{"table":{)" + ports + R"(}},"result":false})",
                                    Reply(R"({"Ports":[{"Label":"a"},{"Number":1x}]})")}) {
        const Racks failed(text);
        EXPECT_NE(failed.outcome, Outcome::Done) << text;
        EXPECT_TRUE(failed.isUntouched()) << text;
    }
    // Of a key that comes twice the last stands, and of the first nothing is left.
    const Racks twice(Reply(R"({"Ports":[{"Label":"a"},{"Label":"b"}],"Ports":[{"Number":5}]})"));
    EXPECT_FALSE(twice.road.tookText);
    EXPECT_EQ(twice.rack.count, 1);
    EXPECT_EQ(twice.ports[0].number, 5);
    EXPECT_EQ(twice.ports[0].label[0], 0x22);
    EXPECT_EQ(twice.ports[1].label[0], 0x22);
    // What comes behind its place in key order is read by way of a document.
    const Racks mixed(Reply(R"({"Tail":6,"Ports":[{"Label":"a"}],"Height":1})"));
    EXPECT_FALSE(mixed.road.tookText);
    EXPECT_EQ(mixed.rack.height, 1);
    EXPECT_EQ(mixed.rack.tail, 6);
    EXPECT_STREQ(mixed.ports[0].label, "a");
}

struct Bay {
    std::int32_t number;
    std::byte own[252]; // of the caller's
};
TABLE(kBay, Bay,
      {
          FIELD(number, "Number", Int),
          FIELD(own),
      });
struct Hall {
    Bay* bays;
    std::int32_t room;
    std::int32_t count;
};
TABLE(kHall, Hall,
      {
          FIELD(bays, "Bays", Record(kBay)).Capacity(AT(room)).Count(AT(count)),
          FIELD(room),
          FIELD(count),
      });

struct Halls {
    std::vector<Bay> bays;
    Hall hall;
    ReadRoad road;

    explicit Halls(int room) : bays(static_cast<std::size_t>(room)) {
        std::memset(static_cast<void*>(bays.data()), 0x33, bays.size() * sizeof(Bay));
        hall = {bays.data(), room, 77};
    }
    Outcome Read(const std::string& text) {
        std::uint32_t length = 0;
        return ParseFamily(kHall, kRackFrame, {text.c_str(), &hall, sizeof hall, &length, &road});
    }
    // Whether the first `count` bays, and no others, were read.
    bool Has(int count) const {
        for (int i = 0; i < hall.room; ++i) {
            const Bay& bay = bays[static_cast<std::size_t>(i)];
            if (bay.number != (i < count ? 5 : 0x33333333) || bay.own[251] != std::byte{0x33}) return false;
        }
        return true;
    }
};

std::string Bays(int count) {
    std::string list;
    for (int i = 0; i < count; ++i)
        list += i == 0 ? R"({"Number":5})" : R"(,{"Number":5})";
    return "{\"Bays\":[" + list + "]}";
}

// What a call keeps is bounded by its text: here a bay is twenty times as large as its own.
TEST(TextRoad, KeepsNotMuchMoreThanTheTextIsLong) {
    for (const bool isLong : {false, true}) {
        const int count = isLong ? 5000 : 100;
        Halls halls(count + 1);
        EXPECT_EQ(halls.Read(Reply(Bays(count))), Outcome::Done);
        EXPECT_EQ(halls.road.tookText, !isLong);
        EXPECT_EQ(halls.hall.count, count);
        EXPECT_TRUE(halls.Has(count));
    }
}

TEST(TextRoad, PutsBackWhatPointersLeadToWhenMemoryRunsOut) {
    constexpr int kCount = 200; // more than the stack keeps
    const std::string good = Reply(Bays(kCount)), bad = good.substr(0, good.size() - 1);
    std::size_t failures = 0;
    for (std::size_t n = 1; n <= 6; ++n) {
        for (const bool onlyOne : {true, false}) {
            for (const std::string* const text : {&good, &bad}) {
                Halls halls(kCount + 1);
                test::HeapWatch heap;
                onlyOne ? heap.FailOnly(n) : heap.FailFrom(n);
                const Outcome outcome = halls.Read(*text);
                failures += heap.failures();
                heap.FailNone();
                EXPECT_TRUE(outcome != Outcome::Done || text == &good);
                EXPECT_TRUE(halls.Has(outcome == Outcome::Done ? kCount : 0)) << n;
                EXPECT_EQ(halls.hall.count, outcome == Outcome::Done ? kCount : 77) << n;
                EXPECT_EQ(heap.liveBlocks(), 0);
            }
        }
    }
    EXPECT_GT(failures, 4u);
}

// Records that move field by field are read where they stand, as through a local one, which the document's road takes.
TEST(TextRoad, ReadsRecordsByFieldWhereTheyStand) {
    const ParseFrame frame =
        kParse.Takes(Take::ByMember).Strides(Stride::SizeWordByField).Length(ReplyLength::PerRecord);
    for (const char* const value :
         {R"({"One":{"Ports":[{"Label":"a","Number":1}],"Tail":7,"Zone":"ab"}})",
          R"({"One\u0000Two":{"Zone":"a\u0000b"}})", R"({"A\\B":{"Height":9,"Zone":"muchtoolong"}})", R"({"One":5})",
          R"({"One":{"Ports":[{}]},"One":{"Tail":1}})"}) {
        const Racks text(Reply(value), frame);
        const Racks document(Reply(value), frame, true);
        EXPECT_EQ(text.outcome, Outcome::Done) << value;
        EXPECT_EQ(document.outcome, Outcome::Done) << value;
        Rack expected = document.rack;
        expected.ports = const_cast<Port*>(text.ports);
        EXPECT_EQ(std::memcmp(&text.rack, &expected, sizeof expected), 0) << value;
        EXPECT_EQ(std::memcmp(text.ports, document.ports, sizeof text.ports), 0) << value;
    }
    const Racks read(Reply(R"({"One\u0000Two":{"Zone":"a\u0000b"}})"), frame);
    EXPECT_TRUE(read.road.tookText);
    EXPECT_EQ(read.rack.size, sizeof(Rack));
    EXPECT_EQ(read.rack.height, 5);
    EXPECT_EQ(read.rack.room, 2);
    EXPECT_EQ(read.rack.name[4], '\0');
    EXPECT_EQ(read.rack.note[2], '\0');
    EXPECT_EQ(read.rack.tail, 0);
}

} // namespace
} // namespace orrery
