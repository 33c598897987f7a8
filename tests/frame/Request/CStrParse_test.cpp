#include "frame/Request/CStrParse.h"

#include "support/FailingAllocator.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace orrery {
namespace {

using Items = std::vector<std::string>;

Items ItemsOf(CStrParse& parse) {
    Items items;
    for (std::int32_t i = 0; i < parse.getCount(); ++i)
        items.emplace_back(parse.getItem(i));
    return items;
}

Items Split(const char* text, const char* separator) {
    CStrParse parse(text, separator);
    return ItemsOf(parse);
}

TEST(CStrParse, SplitsAtTheSeparator) {
    EXPECT_EQ(Split("a", ":"), (Items{"a"}));
    EXPECT_EQ(Split("a:b", ":"), (Items{"a", "b"}));
    EXPECT_EQ(Split("a:b:", ":"), (Items{"a", "b", ""}));
    EXPECT_EQ(Split(":a", ":"), (Items{"", "a"}));
    EXPECT_EQ(Split("a::b", ":"), (Items{"a", "", "b"}));
    EXPECT_EQ(Split(":", ":"), (Items{"", ""}));
    EXPECT_EQ(Split("a--b-c--", "--"), (Items{"a", "b-c", ""}));
    EXPECT_EQ(Split("a:b", ", "), (Items{"a:b"}));
}

TEST(CStrParse, TheEndComparesFoldedTheMiddleDoesNot) {
    EXPECT_EQ(Split("axbX", "X"), (Items{"axb", ""}));
    EXPECT_EQ(Split("aXbx", "X"), (Items{"a", "bx", ""}));
}

TEST(CStrParse, TrimsBlanksTabsAndLineEnds) {
    EXPECT_EQ(Split(" a : b", ":"), (Items{"a", "b"}));
    EXPECT_EQ(Split("\t\r\n a b \n\r\t:  ", ":"), (Items{"a b", ""}));
    EXPECT_EQ(Split("\va\f", ":"), (Items{"\va\f"})); // no others
    CStrParse parse;
    parse.bTrim = false;
    ASSERT_TRUE(parse.setText(" a : b"));
    EXPECT_EQ(ItemsOf(parse), (Items{" a ", " b"}));
}

TEST(CStrParse, AnEmptyTextOrSeparatorLeavesTheItems) {
    CStrParse parse;
    EXPECT_TRUE(parse.bTrim);
    EXPECT_EQ(parse.getCount(), 0);
    EXPECT_FALSE(parse.setText(""));
    EXPECT_FALSE(parse.setText(nullptr));
    EXPECT_EQ(parse.getCount(), 0);
    ASSERT_TRUE(parse.setText("1:2"));
    EXPECT_FALSE(parse.setText(""));
    EXPECT_EQ(ItemsOf(parse), (Items{"1", "2"}));
    ASSERT_TRUE(parse.setSeparator(""));
    EXPECT_FALSE(parse.setText("3:4"));
    EXPECT_EQ(ItemsOf(parse), (Items{"1", "2"}));
    ASSERT_TRUE(parse.setSeparator(","));
    EXPECT_EQ(ItemsOf(parse), (Items{"1", "2"})) << "the separator is for the next text";
    ASSERT_TRUE(parse.setText("3:4,5"));
    EXPECT_EQ(ItemsOf(parse), (Items{"3:4", "5"}));
    EXPECT_TRUE(Split("", ":").empty());
    EXPECT_TRUE(Split("a", "").empty());
}

TEST(CStrParse, HandsItemsOutOneAfterTheOther) {
    CStrParse parse("a:b:c", ":");
    EXPECT_STREQ(parse.getItem(-1), "a");
    EXPECT_STREQ(parse.getItem(-5), "b");
    EXPECT_STREQ(parse.getItem(0), "a"); // goes on behind the one that was asked for
    EXPECT_STREQ(parse.getItem(-1), "b");
    EXPECT_STREQ(parse.getItem(-1), "c");
    EXPECT_STREQ(parse.getItem(-1), CStrParse::strFault);
    EXPECT_STREQ(parse.getItem(-1), CStrParse::strFault);
    ASSERT_TRUE(parse.setText("d:e")); // starts over
    EXPECT_STREQ(parse.getItem(-1), "d");
}

TEST(CStrParse, AnItemThatThereIsNotIsTheFault) {
    CStrParse parse("a:b", ":");
    EXPECT_STREQ(parse.getItem(5), "Access Violation! Possibly a fatal error, check your code.");
    EXPECT_STREQ(parse.getItem(2), CStrParse::strFault);
    EXPECT_STREQ(parse.getItem(INT_MAX), CStrParse::strFault);
    EXPECT_STREQ(parse.getItem(-1), CStrParse::strFault);
    EXPECT_STREQ(parse.getItem(INT_MIN), CStrParse::strFault);
    EXPECT_STREQ(parse.getItem(1), "b");
    CStrParse none;
    EXPECT_STREQ(none.getItem(0), CStrParse::strFault);
    EXPECT_STREQ(none.getItem(-1), CStrParse::strFault);
    EXPECT_EQ(none.getInt(0), 0);
}

TEST(CStrParse, ItemsAsNumbers) {
    CStrParse parse("12: -7x:+3:x:99999999999999999999:", ":");
    ASSERT_EQ(parse.getCount(), 6);
    EXPECT_EQ(parse.getInt(0), 12);
    EXPECT_EQ(parse.getInt(-1), -7);
    EXPECT_EQ(parse.getInt(2), 3);
    EXPECT_EQ(parse.getInt(3), 0);
    EXPECT_EQ(parse.getInt(5), 0);
    EXPECT_EQ(parse.getInt(6), 0) << "the fault begins with no number";
}

TEST(CStrParse, KeepsItsItemsWhenMemoryRunsOut) {
    for (std::size_t failing = 1; failing <= 2; ++failing) {
        CStrParse parse("1:2", ":");
        bool done = true;
        {
            test::HeapWatch heap;
            heap.FailOnly(failing);
            done = parse.setText("3:4:5");
            heap.FailNone();
            EXPECT_EQ(heap.failures(), 1u);
        }
        EXPECT_FALSE(done) << failing;
        EXPECT_EQ(ItemsOf(parse), (Items{"1", "2"})) << failing;
    }
}

TEST(CStrParse, ReleasesWhatItHolds) {
    test::HeapWatch heap;
    {
        CStrParse parse("1:2", ",");
        parse.setText("a,b,c");
        parse.setSeparator("b");
        parse.setText("a,b,c");
        EXPECT_GT(heap.liveBlocks(), 0);
    }
    EXPECT_EQ(heap.liveBlocks(), 0);
}

} // namespace
} // namespace orrery
