#include "frame/Platform/Versioned.h"

#include "support/FrameCalls.h"

#include <cstring>
#include <gtest/gtest.h>

namespace orrery {
namespace {

using namespace record;

struct Part {
    char text[4];
    std::int32_t number;
};
PART(kPart, Part,
     {
         FIELD(text, "Text", Text),
         FIELD(number, "Number", Int),
     });

struct Versioned {
    std::uint32_t dwSize;
    char name[4];
    char list[2][3];
    char reserved[2];
    Part part;
    std::uint8_t last;
    char end[3];
};
TABLE(kVersioned, Versioned,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(name, "Name", Text),
          FIELD(list, "List", Text),
          FIELD(reserved),
          FIELD(part, "Part", Record(kPart)),
          FIELD(last, "Last", Int),
          FIELD(end, "End", RawText),
      });

constexpr Versioned kEnding = {sizeof(Versioned), "abc", {"d", "ef"}, "", {"gh", 1}, 255, "ij"};

bool AreOwn(Stride how, const Versioned* records, std::uint32_t count, std::uint32_t stride = sizeof(Versioned)) {
    return VersionedRecords(kVersioned, how, stride).areOwn(reinterpret_cast<const std::byte*>(records), count);
}

TEST(VersionedRecords, OfThisLayoutNeedNoOther) {
    const Versioned records[3] = {kEnding, kEnding, kEnding};
    EXPECT_FALSE(AreOwn(Stride::Record, records, 3));
    for (const Stride how : {Stride::SizeWord, Stride::SizeWordByField}) {
        EXPECT_TRUE(AreOwn(how, records, 1));
        EXPECT_TRUE(AreOwn(how, records, 3));
        EXPECT_FALSE(AreOwn(how, records, 1, sizeof(Versioned) - 1));
        EXPECT_FALSE(AreOwn(how, records, 1, sizeof(Versioned) + 4));
        // The word of each counts, and of those behind the last none.
        for (std::uint32_t i = 0; i < 3; ++i) {
            Versioned others[3] = {kEnding, kEnding, kEnding};
            others[i].dwSize = sizeof(Versioned) + 1;
            EXPECT_FALSE(AreOwn(how, others, 3)) << i;
            EXPECT_TRUE(AreOwn(how, others, i) || i == 0) << i;
        }
    }
}

// Where fields move one by one a text without an end loses its last byte, as does nothing inside a part.
TEST(VersionedRecords, WithTextsThatDoNotEndAreCutWhereFieldsMove) {
    const std::string whole =
        R"({ "End" : "ij", "Last" : 255, "List" : [ "d", "ef" ], "Name" : "abc", "Part" : { "Number" : 1, "Text" : "gh" } })";
    const auto text = [&](const std::string& from, const std::string& to) {
        std::string changed = whole;
        return from.empty() ? changed : changed.replace(changed.find(from), from.size(), to);
    };
    const struct {
        void (*change)(Versioned& record);
        bool ends;
        std::string asBlock;
        std::string byField;
    } kCases[] = {
        {[](Versioned&) {}, true, whole, whole},
        {[](Versioned& r) { std::memcpy(r.name, "abcX", 4); }, false, text("abc", "abcX"), whole},
        {[](Versioned& r) { std::memcpy(r.list[0], "def", 3); }, false, text("\"d\"", "\"def\""),
         text("\"d\"", "\"de\"")},
        {[](Versioned& r) { std::memcpy(r.list[1], "efX", 3); }, false, text("ef", "efX"), whole},
        {[](Versioned& r) { std::memcpy(r.end, "ijX", 3); }, false, text("ij", "ijX"), whole},
        {[](Versioned& r) { std::memcpy(r.reserved, "XX", 2); }, false, whole, whole},
        {[](Versioned& r) { std::memcpy(r.part.text, "ghij", 4); }, true, text("gh", "ghij"), text("gh", "ghij")},
        {[](Versioned& r) { std::memcpy(r.name, "a\0X", 4); }, true, text("abc", "a"), text("abc", "a")},
    };
    const PackFrame frame = PackFrame().As(Form::Array);
    for (const auto& c : kCases) {
        const std::size_t which = static_cast<std::size_t>(&c - kCases);
        for (std::size_t place = 0; place < 3; ++place) {
            Versioned records[3] = {kEnding, kEnding, kEnding};
            c.change(records[place]);
            EXPECT_TRUE(AreOwn(Stride::SizeWord, records, 3)) << which;
            EXPECT_EQ(AreOwn(Stride::SizeWordByField, records, 3), c.ends) << which << " at " << place;
            const auto expected = [&](const std::string& changed) {
                std::string all = "[ ";
                for (std::size_t i = 0; i < 3; ++i)
                    all += (i == 0 ? "" : ", ") + (i == place ? changed : whole);
                return all + " ]\n";
            };
            EXPECT_EQ(test::Pack(kVersioned, frame.Strides(Stride::SizeWord), records, sizeof records).text(),
                      expected(c.asBlock))
                << which;
            EXPECT_EQ(test::Pack(kVersioned, frame.Strides(Stride::SizeWordByField), records, sizeof records).text(),
                      expected(c.byField))
                << which;
        }
    }
}

} // namespace
} // namespace orrery
