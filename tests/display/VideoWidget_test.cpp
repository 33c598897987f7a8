#include "display/VideoWidget.h"

#include "display/OneOrMany.h"

namespace orrery::test {
namespace {

using Widget = CFG_VIDEO_WIDGET_INFO;

std::string Four(int first) {
    return "[ " + std::to_string(first) + ", " + std::to_string(first + 1) + ", " + std::to_string(first + 2) + ", "
           + std::to_string(first + 3) + " ]";
}

// An item whose numbers begin at `first`, 12 of them; its switch number `on` alone is set. Keys of its own stand before
// or behind those of all items.
std::string Item(int first, int on, const std::string& description = "", const std::string& tail = "") {
    const auto flag = [&](int number) { return number == on ? "true" : "false"; };
    return R"({ "BackColor" : )" + Four(first) + ", " + description + R"("EncodeBlend" : )" + flag(0)
           + R"(, "EncodeBlendExtra1" : )" + flag(1) + R"(, "EncodeBlendExtra2" : )" + flag(2)
           + R"(, "EncodeBlendExtra3" : )" + flag(3) + R"(, "EncodeBlendSnapshot" : )" + flag(4)
           + R"(, "FrontColor" : )" + Four(first + 4) + R"(, "PreviewBlend" : )" + flag(5) + R"(, "Rect" : )"
           + Four(first + 8) + tail + " }";
}

template <class Any>
void ExpectItem(const Any& item, int first, int on) {
    SCOPED_TRACE(first);
    EXPECT_EQ(item.dwSize, sizeof(Any));
    const std::int32_t flags[] = {item.bEncodeBlend,       item.bEncodeBlendExtra1,   item.bEncodeBlendExtra2,
                                  item.bEncodeBlendExtra3, item.bEncodeBlendSnapshot, item.bPreviewBlend};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(flags[i], i == on ? 1 : 0) << i;
    const std::int32_t numbers[] = {item.stuBackColor.nRed,   item.stuBackColor.nGreen,  item.stuBackColor.nBlue,
                                    item.stuBackColor.nAlpha, item.stuFrontColor.nRed,   item.stuFrontColor.nGreen,
                                    item.stuFrontColor.nBlue, item.stuFrontColor.nAlpha, item.stuRect.nLeft,
                                    item.stuRect.nTop,        item.stuRect.nRight,       item.stuRect.nBottom};
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(numbers[i], first + i) << i;
}

std::string Description(int number) {
    const std::string n = std::to_string(number);
    return R"({ "DevID" : "d)" + n + R"(", "ID" : )" + n + R"(, "PointID" : "p)" + n + R"(", "Text" : "t)" + n + "\" }";
}

const std::string kText =
    R"({ "ChannelTitle" : )" + Item(100, 0) + R"(, "Covers" : [ )" + Item(120, 1) + ", " + Item(140, 2)
    + R"( ], "CustomTitle" : [ )" + Item(160, 3, "", R"(, "Text" : "one", "TitleType" : "kind one")") + ", "
    + Item(180, 4, "", R"(, "Text" : "two", "TitleType" : "kind two")")
    + R"( ], "FontSize" : 51, "FontSizeExtra1" : 52, "FontSizeExtra2" : 53, "FontSizeExtra3" : 54, )"
      R"("FontSizeMergeSnapshot" : 56, "FontSizeScale" : 1.500000000000000, "FontSizeSnapshot" : 55, "SensorInfo" : [ )"
    + Item(200, 5, R"("Description" : [ )" + Description(61) + ", " + Description(62) + " ], ") + ", "
    + Item(220, 0, R"("Description" : [ )" + Description(63) + " ], ") + R"( ], "TimeTitle" : )"
    + Item(240, 1, "", R"(, "ShowWeek" : true)") + " }";

TEST(VideoWidget, ThereAndBack) {
    const auto parsed = ParseSized<Widget>("VideoWidget", kText);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(Widget));
    EXPECT_EQ(parsed->dwSize, sizeof(Widget));
    ExpectItem(parsed->stuChannelTitle, 100, 0);
    ASSERT_EQ(parsed->nCoverCount, 2);
    ExpectItem(parsed->stuCovers[0], 120, 1);
    ExpectItem(parsed->stuCovers[1], 140, 2);
    ASSERT_EQ(parsed->nCustomTitleCount, 2);
    ExpectItem(parsed->stuCustomTitle[0], 160, 3);
    EXPECT_STREQ(parsed->stuCustomTitle[0].szText, "one");
    EXPECT_STREQ(parsed->stuCustomTitle[0].szTitleType, "kind one");
    ExpectItem(parsed->stuCustomTitle[1], 180, 4);
    EXPECT_STREQ(parsed->stuCustomTitle[1].szText, "two");
    EXPECT_STREQ(parsed->stuCustomTitle[1].szTitleType, "kind two");
    ASSERT_EQ(parsed->nSensorCount, 2);
    ExpectItem(parsed->stuSensorInfo[0], 200, 5);
    ASSERT_EQ(parsed->stuSensorInfo[0].nDescriptionCount, 2);
    EXPECT_EQ(parsed->stuSensorInfo[0].stuDescription[1].nID, 62);
    EXPECT_STREQ(parsed->stuSensorInfo[0].stuDescription[1].szDevID, "d62");
    EXPECT_STREQ(parsed->stuSensorInfo[0].stuDescription[1].szPointID, "p62");
    EXPECT_STREQ(parsed->stuSensorInfo[0].stuDescription[1].szText, "t62");
    ExpectItem(parsed->stuSensorInfo[1], 220, 0);
    EXPECT_EQ(parsed->stuSensorInfo[1].nDescriptionCount, 1);
    ExpectItem(parsed->stuTimeTitle, 240, 1);
    EXPECT_EQ(parsed->stuTimeTitle.bShowWeek, 1);
    EXPECT_DOUBLE_EQ(parsed->fFontSizeScale, 1.5);
    EXPECT_EQ(parsed->nFontSize, 51);
    EXPECT_EQ(parsed->nFontSizeExtra1, 52);
    EXPECT_EQ(parsed->nFontSizeExtra2, 53);
    EXPECT_EQ(parsed->nFontSizeExtra3, 54);
    EXPECT_EQ(parsed->nFontSizeSnapshot, 55);
    EXPECT_EQ(parsed->nFontSizeMergeSnapshot, 56);
    EXPECT_EQ(Pack("VideoWidget", *parsed), kText);
}

// Every place of every list has its size word, whether an item came for it or not.
TEST(VideoWidget, AnEmptyTableGivesZerosAndSizeWords) {
    const auto parsed = ParseSized<Widget>("VideoWidget", "{ }");
    ASSERT_TRUE(parsed);
    auto expected = Cleared<Widget>();
    expected->dwSize = sizeof(Widget);
    for (auto& cover : expected->stuCovers)
        cover.dwSize = sizeof cover;
    expected->stuChannelTitle.dwSize = sizeof(CFG_WIDGET_ITEM);
    expected->stuTimeTitle.dwSize = sizeof(CFG_WIDGET_TIME_TITLE);
    for (auto& title : expected->stuCustomTitle)
        title.dwSize = sizeof title;
    for (auto& sensor : expected->stuSensorInfo)
        sensor.dwSize = sizeof sensor;
    EXPECT_EQ(std::memcmp(parsed.record.get(), expected.get(), sizeof(Widget)), 0);
    const std::string zeros = "[ 0, 0, 0, 0 ]";
    const auto item = [&](const std::string& tail) {
        return R"({ "BackColor" : )" + zeros + R"(, "EncodeBlend" : false, "EncodeBlendExtra1" : false, )"
               + R"("EncodeBlendExtra2" : false, "EncodeBlendExtra3" : false, "EncodeBlendSnapshot" : false, )"
               + R"("FrontColor" : )" + zeros + R"(, "PreviewBlend" : false, "Rect" : )" + zeros + tail + " }";
    };
    EXPECT_EQ(Pack("VideoWidget", *parsed),
              R"({ "ChannelTitle" : )" + item("")
                  + R"(, "FontSize" : 0, "FontSizeExtra1" : 0, "FontSizeExtra2" : 0, "FontSizeExtra3" : 0, )"
                    R"("FontSizeMergeSnapshot" : 0, "FontSizeScale" : 0.000000000000000, "FontSizeSnapshot" : 0, )"
                    R"("TimeTitle" : )"
                  + item(R"(, "ShowWeek" : false)") + " }");
}

// A list of items that are told apart by the left of their rectangles.
std::string Items(int count) {
    std::string list = "[ ";
    for (int i = 0; i < count; ++i)
        list += (i > 0 ? ", " : "") + std::string(R"({ "Rect" : [ )") + std::to_string(i + 1) + ", 0, 0, 0 ] }";
    return list + " ]";
}

TEST(VideoWidget, ListsEndAtTheirRoom) {
    const auto read = [](const std::string& key, int count) {
        return ParseSized<Widget>("VideoWidget", "{ \"" + key + "\" : " + Items(count) + " }");
    };
    for (const int count : {16, 17, 20}) {
        const auto parsed = read("Covers", count);
        EXPECT_EQ(parsed->nCoverCount, 16) << count;
        EXPECT_EQ(parsed->stuCovers[15].stuRect.nLeft, 16);
        EXPECT_EQ(parsed->stuChannelTitle.stuRect.nLeft, 0); // what stands behind them
    }
    EXPECT_EQ(read("Covers", 15)->nCoverCount, 15);
    for (const int count : {8, 9}) {
        const auto parsed = read("CustomTitle", count);
        EXPECT_EQ(parsed->nCustomTitleCount, 8) << count;
        EXPECT_EQ(parsed->stuCustomTitle[7].stuRect.nLeft, 8);
        EXPECT_EQ(parsed->nSensorCount, 0);
    }
    for (const int count : {2, 3}) {
        const auto parsed = read("SensorInfo", count);
        EXPECT_EQ(parsed->nSensorCount, 2) << count;
        EXPECT_EQ(parsed->stuSensorInfo[1].stuRect.nLeft, 2);
    }
    for (const int count : {4, 5}) {
        std::string descriptions;
        for (int i = 0; i < count; ++i)
            descriptions += (i > 0 ? ", " : "") + Description(i + 1);
        const auto parsed =
            ParseSized<Widget>("VideoWidget", R"({ "SensorInfo" : [ { "Description" : [ )" + descriptions + " ] } ] }");
        EXPECT_EQ(parsed->stuSensorInfo[0].nDescriptionCount, 4) << count;
        EXPECT_EQ(parsed->stuSensorInfo[0].stuDescription[3].nID, 4);
    }
}

TEST(VideoWidget, NullItemsKeepTheirPlace) {
    const auto parsed =
        ParseSized<Widget>("VideoWidget", R"({ "Covers" : [ null, { "Rect" : [ 1, 2, 3, 4 ] }, 5 ], )"
                                          R"("CustomTitle" : [ null, { "Text" : "t" } ], "SensorInfo" : [ null, )"
                                          R"({ "Description" : [ null, { "ID" : 6 } ] } ], "TimeTitle" : null })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->nCoverCount, 3);
    CFG_WIDGET_ITEM clear{};
    clear.dwSize = sizeof clear;
    EXPECT_EQ(std::memcmp(&parsed->stuCovers[0], &clear, sizeof clear), 0);
    EXPECT_EQ(parsed->stuCovers[1].stuRect.nBottom, 4);
    EXPECT_EQ(std::memcmp(&parsed->stuCovers[2], &clear, sizeof clear), 0);
    EXPECT_EQ(parsed->nCustomTitleCount, 2);
    EXPECT_STREQ(parsed->stuCustomTitle[1].szText, "t");
    EXPECT_EQ(parsed->nSensorCount, 2);
    EXPECT_EQ(parsed->stuSensorInfo[0].nDescriptionCount, 0);
    EXPECT_EQ(parsed->stuSensorInfo[1].nDescriptionCount, 2);
    EXPECT_EQ(parsed->stuSensorInfo[1].stuDescription[1].nID, 6);
    EXPECT_EQ(parsed->stuTimeTitle.dwSize, sizeof(CFG_WIDGET_TIME_TITLE));
}

TEST(VideoWidget, CountsOfTheCallersEndAtTheRoomToo) {
    auto record = Cleared<Widget>();
    record->dwSize = sizeof(Widget);
    record->nCoverCount = record->nCustomTitleCount = record->nSensorCount = INT32_MAX;
    record->stuSensorInfo[0].nDescriptionCount = 5;
    const std::string text = Pack("VideoWidget", *record);
    const auto count = [&](const std::string& part) {
        std::size_t found = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
            ++found;
        return found;
    };
    EXPECT_EQ(count("\"Rect\""), 16u + 8 + 2 + 2);
    EXPECT_EQ(count("\"TitleType\""), 8u);
    EXPECT_EQ(count("\"PointID\""), 4u);
    record->nCoverCount = record->nCustomTitleCount = record->nSensorCount = -1;
    const std::string none = Pack("VideoWidget", *record);
    for (const char* const key : {"Covers", "CustomTitle", "SensorInfo"})
        EXPECT_EQ(none.find(key), std::string::npos) << key;
}

TEST(VideoWidget, TheRoomOfTexts) {
    const auto parsed = ParseSized<Widget>("VideoWidget", R"({ "CustomTitle" : [ )" + LongTexts({"Text", "TitleType"})
                                                              + R"( ], "SensorInfo" : [ { "Description" : [ )"
                                                              + LongTexts({"DevID", "PointID", "Text"}) + " ] } ] }");
    EXPECT_ROOM(parsed, stuCustomTitle[0].szText, 1024);
    EXPECT_ROOM(parsed, stuCustomTitle[0].szTitleType, 32);
    EXPECT_ROOM(parsed, stuSensorInfo[0].stuDescription[0].szDevID, 32);
    EXPECT_ROOM(parsed, stuSensorInfo[0].stuDescription[0].szPointID, 32);
    EXPECT_ROOM(parsed, stuSensorInfo[0].stuDescription[0].szText, 32);
}

TEST(VideoWidget, ColoursAndPlacesHaveExactlyFourNumbers) {
    for (const char* const value : {"[ 1, 2, 3 ]", "[ 1, 2, 3, 4, 5 ]", "\"red\"", "{ }"}) {
        const std::string v = value;
        const auto parsed =
            ParseSized<Widget>("VideoWidget", R"({ "ChannelTitle" : { "BackColor" : )" + v + R"(, "FrontColor" : )" + v
                                                  + R"(, "Rect" : )" + v + " } }");
        EXPECT_EQ(parsed->stuChannelTitle.stuBackColor.nRed, 0) << value;
        EXPECT_EQ(parsed->stuChannelTitle.stuFrontColor.nRed, 0) << value;
        EXPECT_EQ(parsed->stuChannelTitle.stuRect.nLeft, 0) << value;
    }
}

TEST(VideoWidget, SizeWordsOfItemsAreNotLookedAtOnTheWayOut) {
    const auto parsed = ParseSized<Widget>("VideoWidget", kText);
    auto record = std::make_unique<Widget>(*parsed);
    for (auto& cover : record->stuCovers)
        cover.dwSize = 0;
    record->stuTimeTitle.dwSize = 1;
    record->stuSensorInfo[0].dwSize = UINT32_MAX;
    EXPECT_EQ(Pack("VideoWidget", *record), kText);
}

} // namespace
} // namespace orrery::test
