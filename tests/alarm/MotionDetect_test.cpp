#include "orrery/alarm_input.h"
#include "support/Call.h"
#include "support/WeekText.h"

#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace orrery {
namespace {

using test::Cleared;
using test::kFailed;
using test::Pack;
using test::Parse;
using test::ParseDocument;
using test::WeekText;

using Motion = CFG_MOTION_DETECT_INFO;
using Grid = std::uint8_t[32][32];

const std::string kNoHandler = "\"EventHandler\" : { \"TimeSection\" : " + WeekText(7) + " }";

// The cells of a row that are 1, all others being 0.
std::string Cells(const std::uint8_t (&row)[32]) {
    std::string cells;
    for (int cell = 0; cell < 32; ++cell) {
        if (row[cell] == 1) cells += " " + std::to_string(cell);
        if (row[cell] > 1) cells += " ?";
    }
    return cells;
}

// ---- Reading ----

TEST(MotionDetect, ReadMarkIsSetOnceTheTextHasParsed) {
    for (const char* refused :
         {R"({ "result" : false, "params" : { "table" : { "Enable" : true } } })", "{ }", "5", "[ ]"}) {
        auto m = ParseDocument<Motion>("MotionDetect", refused);
        EXPECT_FALSE(m) << refused;
        EXPECT_EQ(m->bRead, 1);
        EXPECT_EQ(m.length, test::kNoLength);
        m.record->bRead = 0;
        EXPECT_TRUE(m.isCleared()) << refused;
    }
    for (const char* broken : {"{", "", "no json"}) {
        const auto m = ParseDocument<Motion>("MotionDetect", broken);
        EXPECT_FALSE(m);
        EXPECT_TRUE(m.isCleared()) << broken;
    }
}

TEST(MotionDetect, WithoutATableTheRecordIsEmptyButForItsMark) {
    for (const char* document :
         {R"({ "result" : true })", R"({ "result" : 1, "params" : { "table" : null } })", R"({ "result" : "no" })"}) {
        auto m = ParseDocument<Motion>("MotionDetect", document);
        EXPECT_TRUE(m) << document;
        EXPECT_EQ(m.length, sizeof(Motion));
        EXPECT_EQ(m->bRead, 1);
        m.record->bRead = 0;
        EXPECT_TRUE(m.isCleared()) << document;
    }
}

TEST(MotionDetect, AnEmptyTableDoesNotReadTheLinkage) {
    auto m = Parse<Motion>("MotionDetect", "{ }");
    ASSERT_TRUE(m);
    EXPECT_EQ(m->stuEventHandler.abRecordEnable, 0);
    m.record->bRead = 0;
    EXPECT_TRUE(m.isCleared());
    const auto given =
        Parse<Motion>("MotionDetect", R"({ "EventHandler" : { "TimeSection" : [ [ "1 01:00:00-02:00:00" ] ] } })");
    EXPECT_EQ(given->stuEventHandler.abRecordEnable, 1);
    EXPECT_EQ(given->stuEventHandler.stuTimeSection[0][0].nEndHour, 2);
}

TEST(MotionDetect, PlainKeys) {
    const auto m = Parse<Motion>("MotionDetect", R"({ "Enable" : 3, "Level" : 4, "VolumeRatio" : 5, "SubRatio" : 0 })");
    EXPECT_EQ(m->bEnable, 1);
    EXPECT_EQ(m->abLevel, 1);
    EXPECT_EQ(m->nLevel, 4);
    EXPECT_EQ(m->abVolumeRatio, 1);
    EXPECT_EQ(m->nVolumeRatio, 5);
    EXPECT_EQ(m->abSubRatio, 1);
    EXPECT_EQ(m->nSubRatio, 0);
    EXPECT_EQ(m->nRow, 0);
    EXPECT_EQ(m->nCol, 0);
}

TEST(MotionDetect, GridOfThePictureIsLowBitFirst) {
    const auto m = Parse<Motion>("MotionDetect", R"({ "Region" : [ 1, 4294967295, 2147483648, -1, "7", 4194303 ] })");
    EXPECT_EQ(Cells(m->byRegion[0]), " 0");
    for (int cell = 0; cell < 32; ++cell) {
        EXPECT_EQ(m->byRegion[1][cell], 1); // all 32 cells, whatever nCol tells
        EXPECT_EQ(m->byRegion[5][cell], cell < 22);
    }
    EXPECT_EQ(Cells(m->byRegion[2]), " 31");
    EXPECT_EQ(Cells(m->byRegion[3]), ""); // a negative number is no row
    EXPECT_EQ(Cells(m->byRegion[4]), "");
    EXPECT_EQ(m->nRow, 6);
    EXPECT_EQ(m->nCol, 22);
}

TEST(MotionDetect, GridOfThePictureEndsAt32Rows) {
    std::string rows = "[ 3";
    for (int row = 1; row < 40; ++row)
        rows += ", 3";
    const auto m = Parse<Motion>("MotionDetect", "{ \"Region\" : " + rows + " ] }");
    EXPECT_EQ(m->nRow, 32);
    EXPECT_EQ(Cells(m->byRegion[31]), " 0 1");
    EXPECT_EQ(m->stuEventHandler.abRecordMask, 0);
}

TEST(MotionDetect, RowAndColTellTheSize) {
    const auto m = Parse<Motion>("MotionDetect", R"({ "Region" : [ 1, 1 ], "Row" : 18, "Col" : 100 })");
    EXPECT_EQ(m->nRow, 18);
    EXPECT_EQ(m->nCol, 100);
    const auto alone = Parse<Motion>("MotionDetect", R"({ "Row" : -3, "Col" : 5 })");
    EXPECT_EQ(alone->nRow, -3);
    EXPECT_EQ(alone->nCol, 5);
    const auto half = Parse<Motion>("MotionDetect", R"({ "Region" : [ 1 ], "Row" : null, "Col" : 5 })");
    EXPECT_EQ(half->nRow, 1);
    EXPECT_EQ(half->nCol, 5);
    const auto none = Parse<Motion>("MotionDetect", R"({ "Region" : { "a" : 1 } })");
    EXPECT_EQ(none->nRow, 0);
    EXPECT_EQ(none->nCol, 0);
    const auto empty = Parse<Motion>("MotionDetect", R"({ "Region" : [ ] })");
    EXPECT_EQ(empty->nRow, 0);
    EXPECT_EQ(empty->nCol, 22);
}

TEST(MotionDetect, RectangleWindows) {
    const auto m = Parse<Motion>("MotionDetect", R"({ "MotionDetectWindow" : [
        { "Threshold" : 1, "Sensitive" : 2, "Window" : [ 3, 4, 5, 6 ], "Id" : 9 }, { "Threshold" : 8 },
        { "Threshold" : 7, "Window" : [ 3, 4 ] }, { "Window" : "x" }, { "Window" : [ 1, 2, 3, 4, 5 ] } ] })");
    EXPECT_EQ(m->abWindow, 1);
    EXPECT_EQ(m->nWindowNum, 5);
    EXPECT_EQ(m->abRegionWindow, 0);
    EXPECT_EQ(m->nRegionWindowNum, 0);
    EXPECT_EQ(m->stuWindow[0].nThreshold, 1);
    EXPECT_EQ(m->stuWindow[0].nSensitive, 2);
    EXPECT_EQ(m->stuWindow[0].stuWindow.nLeft, 3);
    EXPECT_EQ(m->stuWindow[0].stuWindow.nTop, 4);
    EXPECT_EQ(m->stuWindow[0].stuWindow.nRight, 5);
    EXPECT_EQ(m->stuWindow[0].stuWindow.nBottom, 6);
    EXPECT_EQ(m->stuWindow[1].nThreshold, 0); // neither form
    EXPECT_EQ(m->stuWindow[2].nThreshold, 7);
    EXPECT_EQ(m->stuWindow[2].stuWindow.nTop, 4); // no test of the length
    EXPECT_EQ(m->stuWindow[2].stuWindow.nRight, 0);
    EXPECT_EQ(m->stuWindow[4].stuWindow.nBottom, 4);
}

TEST(MotionDetect, GridWindowsAreHighBitFirst) {
    const auto m = Parse<Motion>("MotionDetect", R"({ "MotionDetectWindow" : [ { "Id" : 1, "Name" : "N",
        "Threshold" : 2, "Sensitive" : 3, "Region" : [ 4194303, 1, 2097152, 4194304, -1 ] }, { "Region" : 5 },
        { "Region" : [ ] } ] })");
    EXPECT_EQ(m->abRegionWindow, 1);
    EXPECT_EQ(m->nRegionWindowNum, 3);
    EXPECT_EQ(m->abWindow, 0);
    const CFG_MOTION_REGION_WINDOW& window = m->stuRegionWindow[0];
    EXPECT_EQ(window.nId, 1);
    EXPECT_STREQ(window.szName, "N");
    EXPECT_EQ(window.nThreshold, 2);
    EXPECT_EQ(window.nSensitive, 3);
    EXPECT_EQ(window.nRow, 5);
    EXPECT_EQ(window.nCol, 22);
    for (int cell = 0; cell < 32; ++cell)
        EXPECT_EQ(window.byRegion[0][cell], cell < 22) << cell; // 0x3FFFFF
    EXPECT_EQ(Cells(window.byRegion[1]), " 21");
    EXPECT_EQ(Cells(window.byRegion[2]), " 0");
    EXPECT_EQ(Cells(window.byRegion[3]), ""); // bit 22 is no cell
    EXPECT_EQ(Cells(window.byRegion[4]), "");
    EXPECT_EQ(m->stuRegionWindow[1].nCol, 0);
    EXPECT_EQ(m->stuRegionWindow[2].nCol, 22);
}

TEST(MotionDetect, BothFormsAtTheSameIndex) {
    const auto m = Parse<Motion>("MotionDetect", R"({ "MotionDetectWindow" : [ null,
        { "Threshold" : 1, "Window" : [ 1, 2, 3, 4 ], "Region" : [ 1 ] } ] })");
    EXPECT_EQ(m->abWindow, 1);
    EXPECT_EQ(m->abRegionWindow, 1);
    EXPECT_EQ(m->nWindowNum, 2);
    EXPECT_EQ(m->nRegionWindowNum, 2);
    EXPECT_EQ(m->stuWindow[1].nThreshold, 1);
    EXPECT_EQ(m->stuRegionWindow[1].nThreshold, 1);
    EXPECT_EQ(m->stuWindow[0].nThreshold, 0);
}

TEST(MotionDetect, WindowsEndAtTen) {
    std::string windows = "[ ";
    for (int i = 0; i < 11; ++i)
        windows += std::string(i == 0 ? "" : ", ") + R"({ "Window" : [ 1, 1, 1, 1 ], "Region" : [ )" + "1 ] }";
    const auto m = Parse<Motion>("MotionDetect", "{ \"MotionDetectWindow\" : " + windows + " ] }");
    EXPECT_EQ(m->nWindowNum, 10);
    EXPECT_EQ(m->nRegionWindowNum, 10);
    EXPECT_EQ(m->stuWindow[9].stuWindow.nLeft, 1);
    for (const char* other : {"5", "{ }", R"({ "Window" : [ 1 ] })", "[ ]"}) {
        const auto none = Parse<Motion>("MotionDetect", std::string(R"({ "MotionDetectWindow" : )") + other + " }");
        EXPECT_TRUE(none);
        EXPECT_EQ(none->abWindow, 0) << other;
        EXPECT_EQ(none->abRegionWindow, 0) << other;
    }
}

TEST(MotionDetect, AGridWindowEndsAt32RowsAnd63BytesOfItsName) {
    std::string rows = "[ 1";
    for (int row = 1; row < 40; ++row)
        rows += ", 1";
    const auto m = Parse<Motion>("MotionDetect", R"({ "MotionDetectWindow" : [ { "Name" : ")" + std::string(70, 'n')
                                                     + R"(", "Region" : )" + rows + " ] }, { } ] }");
    EXPECT_EQ(m->nRegionWindowNum, 2);
    EXPECT_EQ(m->stuRegionWindow[0].nRow, 32);
    EXPECT_EQ(m->stuRegionWindow[0].szName, std::string(63, 'n'));
    EXPECT_EQ(Cells(m->stuRegionWindow[0].byRegion[31]), " 21");
    const CFG_MOTION_REGION_WINDOW none{};
    EXPECT_EQ(std::memcmp(&m->stuRegionWindow[1], &none, sizeof none), 0);
}

TEST(MotionDetect, NullsAreAbsent) {
    auto m = Parse<Motion>("MotionDetect", R"({ "Col" : null, "Enable" : null, "EventHandler" : null, "Level" : null,
        "MotionDetectWindow" : null, "Region" : null, "Row" : null, "SubRatio" : null, "VolumeRatio" : null })");
    ASSERT_TRUE(m);
    EXPECT_EQ(m->bRead, 1);
    m.record->bRead = 0;
    EXPECT_TRUE(m.isCleared());
    // In a window a null is neither form.
    const auto window = Parse<Motion>(
        "MotionDetect", R"({ "MotionDetectWindow" : [ { "Threshold" : 1, "Window" : null, "Region" : null } ] })");
    EXPECT_EQ(window->abWindow, 0);
    EXPECT_EQ(window->abRegionWindow, 0);
    EXPECT_EQ(window->stuWindow[0].nThreshold, 0);
}

// ---- Writing ----

TEST(MotionDetect, AClearRecord) {
    const auto m = Cleared<Motion>();
    EXPECT_EQ(Pack("MotionDetect", *m),
              R"({ "Col" : 0, "DetectVersion" : "V1.0", "Enable" : false, )" + kNoHandler + R"(, "Row" : 0 })");
}

TEST(MotionDetect, TheGridOfThePicture) {
    auto m = Cleared<Motion>();
    m->bEnable = 2;
    m->abLevel = m->abVolumeRatio = m->abSubRatio = 1;
    m->nLevel = 4;
    m->nVolumeRatio = 5;
    m->nSubRatio = 6;
    m->nRow = 3;
    m->nCol = 32;
    m->byRegion[0][0] = m->byRegion[0][2] = 1;
    m->byRegion[0][1] = 2; // only 1 is watched
    m->byRegion[1][31] = 1;
    m->stuEventHandler.stuTimeSection[0][0] = {1, 1, 0, 0, 2, 0, 0};
    EXPECT_EQ(Pack("MotionDetect", *m),
              R"({ "Col" : 32, "DetectVersion" : "V1.0", "Enable" : true, "EventHandler" : { "TimeSection" : )"
                  + WeekText(7, {{0, 0, "1 01:00:00-02:00:00"}})
                  + R"( }, "Level" : 4, "Region" : [ 5, 2147483648, 0 ], "Row" : 3, "SubRatio" : 6, )"
                    R"("VolumeRatio" : 5 })");
}

TEST(MotionDetect, CellsBeyondTheColumnsAreNotWritten) {
    auto m = Cleared<Motion>();
    m->nRow = 1;
    m->nCol = 2;
    m->byRegion[0][1] = m->byRegion[0][2] = 1;
    EXPECT_EQ(Pack("MotionDetect", *m), R"({ "Col" : 2, "DetectVersion" : "V1.0", "Enable" : false, )" + kNoHandler
                                            + R"(, "Region" : [ 2 ], "Row" : 1 })");
}

TEST(MotionDetect, RowsAndColumnsEndAt32) {
    auto m = Cleared<Motion>();
    m->nRow = 1000;
    m->nCol = INT32_MAX;
    m->byRegion[31][31] = 1;
    std::string region = "[ 0";
    for (int row = 1; row < 31; ++row)
        region += ", 0";
    EXPECT_EQ(Pack("MotionDetect", *m), R"({ "Col" : 32, "DetectVersion" : "V1.0", "Enable" : false, )" + kNoHandler
                                            + R"(, "Region" : )" + region + R"(, 2147483648 ], "Row" : 32 })");
    m->nRow = -2;
    m->nCol = -3;
    EXPECT_EQ(Pack("MotionDetect", *m),
              R"({ "Col" : -3, "DetectVersion" : "V1.0", "Enable" : false, )" + kNoHandler + R"(, "Row" : -2 })");
}

TEST(MotionDetect, RectanglesAreWrittenWithTheGridOfThePicture) {
    auto m = Cleared<Motion>();
    m->abWindow = 1;
    m->nWindowNum = 2;
    m->stuWindow[0] = {1, 2, {3, 4, 5, 6}};
    EXPECT_EQ(Pack("MotionDetect", *m),
              R"({ "Col" : 0, "DetectVersion" : "V1.0", "Enable" : false, )" + kNoHandler
                  + R"(, "MotionDetectWindow" : [ { "Sensitive" : 2, "Threshold" : 1, "Window" : [ 3, 4, 5, 6 ] }, )"
                    R"({ "Sensitive" : 0, "Threshold" : 0, "Window" : [ 0, 0, 0, 0 ] } ], "Row" : 0 })");
}

TEST(MotionDetect, NoWindowsAtAllAreAnEmptyList) {
    auto m = Cleared<Motion>();
    m->abWindow = 1;
    for (const std::int32_t count : {0, -1}) {
        m->nWindowNum = m->nRegionWindowNum = count;
        EXPECT_EQ(Pack("MotionDetect", *m), R"({ "Col" : 0, "DetectVersion" : "V1.0", "Enable" : false, )" + kNoHandler
                                                + R"(, "MotionDetectWindow" : [  ], "Row" : 0 })");
    }
    m->nRegionWindowNum = 1; // a client with grids, even if they are switched off, drops no window
    EXPECT_EQ(Pack("MotionDetect", *m).find("MotionDetectWindow"), std::string::npos);
}

TEST(MotionDetect, GridWindows) {
    auto m = Cleared<Motion>();
    m->abRegionWindow = m->abLevel = 1; // no level goes with grids
    m->nRegionWindowNum = 2;
    m->nRow = m->nCol = 5;
    m->stuRegionWindow[0].nId = 1;
    std::strcpy(m->stuRegionWindow[0].szName, "N");
    m->stuRegionWindow[0].nThreshold = 2;
    m->stuRegionWindow[0].nSensitive = 3;
    m->stuRegionWindow[0].nRow = 3;
    m->stuRegionWindow[0].nCol = 22;
    m->stuRegionWindow[0].byRegion[0][0] = 1;
    m->stuRegionWindow[0].byRegion[1][21] = 1;
    m->stuRegionWindow[0].byRegion[2][22] = m->stuRegionWindow[0].byRegion[2][0] = 2;
    EXPECT_EQ(Pack("MotionDetect", *m),
              R"({ "DetectVersion" : "V3.0", "Enable" : false, )" + kNoHandler
                  + R"(, "MotionDetectWindow" : [ { "Id" : 1, "Name" : "N", "Region" : [ 2097152, 1, 0 ], )"
                    R"("Sensitive" : 3, "Threshold" : 2 }, { "Id" : 0, "Name" : "", "Sensitive" : 0, )"
                    R"("Threshold" : 0 } ] })");
}

TEST(MotionDetect, GridWindowsEndAtTheirBounds) {
    auto m = Cleared<Motion>();
    m->abRegionWindow = 1;
    m->nRegionWindowNum = INT32_MAX;
    for (auto& window : m->stuRegionWindow) {
        window.nRow = window.nCol = INT32_MAX;
        window.byRegion[0][0] = 1;
    }
    const std::string text = Pack("MotionDetect", *m);
    std::size_t windows = 0;
    for (auto at = text.find("[ 2147483648, 0"); at != std::string::npos; at = text.find("[ 2147483648, 0", at + 1))
        ++windows;
    EXPECT_EQ(windows, 10u);
}

// A row as both grids write it: exactly 1 is watched, and cells beyond the columns are none.
std::uint32_t Bits(const std::uint8_t (&row)[32], int cols, bool lowBitFirst) {
    std::uint32_t bits = 0;
    for (int cell = 0; cell < cols && cell < 32; ++cell) {
        const int last = (cols < 32 ? cols : 32) - 1;
        if (row[cell] == 1) bits |= 1u << (lowBitFirst ? cell : last - cell);
    }
    return bits;
}

TEST(MotionDetect, CellsOfAnyContent) {
    std::mt19937 random(7);
    const std::uint8_t cells[] = {0, 1, 1, 2, 0x80, 0x81, 0xFF};
    auto m = Cleared<Motion>();
    for (int cols = -1; cols < 35; ++cols) {
        m->nRow = 32;
        m->nCol = cols;
        m->nRegionWindowNum = 1;
        m->stuRegionWindow[0].nRow = 32;
        m->stuRegionWindow[0].nCol = cols;
        std::string low;
        std::string high;
        for (int row = 0; row < 32; ++row) {
            for (int cell = 0; cell < 32; ++cell) {
                m->byRegion[row][cell] = m->stuRegionWindow[0].byRegion[row][cell] = cells[random() % sizeof cells];
            }
            low += (row > 0 ? ", " : "") + std::to_string(Bits(m->byRegion[row], cols, true));
            high += (row > 0 ? ", " : "") + std::to_string(Bits(m->byRegion[row], cols, false));
        }
        m->abRegionWindow = 0;
        EXPECT_NE(Pack("MotionDetect", *m).find("\"Region\" : [ " + low + " ]"), std::string::npos) << cols;
        m->abRegionWindow = 1;
        EXPECT_NE(Pack("MotionDetect", *m).find("\"Region\" : [ " + high + " ]"), std::string::npos) << cols;
    }
}

TEST(MotionDetect, BothFormsGoToOneList) {
    auto m = Cleared<Motion>();
    m->abWindow = m->abRegionWindow = 1;
    m->nWindowNum = 2;
    m->nRegionWindowNum = 1;
    m->stuWindow[0] = {1, 2, {3, 4, 5, 6}};
    m->stuWindow[1] = {7, 8, {9, 10, 11, 12}};
    m->stuRegionWindow[0].nThreshold = 20; // the later writer's numbers stand
    m->stuRegionWindow[0].nSensitive = 21;
    EXPECT_EQ(Pack("MotionDetect", *m),
              R"({ "DetectVersion" : "V3.0", "Enable" : false, )" + kNoHandler
                  + R"(, "MotionDetectWindow" : [ { "Id" : 0, "Name" : "", "Sensitive" : 21, "Threshold" : 20, )"
                    R"("Window" : [ 3, 4, 5, 6 ] }, { "Sensitive" : 8, "Threshold" : 7, )"
                    R"("Window" : [ 9, 10, 11, 12 ] } ] })");
}

TEST(MotionDetect, MoreGridsThanRectangles) {
    auto m = Cleared<Motion>();
    m->abWindow = m->abRegionWindow = 1;
    m->nWindowNum = 1;
    m->nRegionWindowNum = 2;
    m->stuWindow[0] = {1, 2, {3, 4, 5, 6}};
    m->stuWindow[1] = {7, 8, {9, 10, 11, 12}}; // not in use
    m->stuRegionWindow[1].nId = 5;
    EXPECT_EQ(Pack("MotionDetect", *m),
              R"({ "DetectVersion" : "V3.0", "Enable" : false, )" + kNoHandler
                  + R"(, "MotionDetectWindow" : [ { "Id" : 0, "Name" : "", "Sensitive" : 0, "Threshold" : 0, )"
                    R"("Window" : [ 3, 4, 5, 6 ] }, { "Id" : 5, "Name" : "", "Sensitive" : 0, "Threshold" : 0 } ] })");
}

TEST(MotionDetect, TheTextMustBeShorterThanItsBufferWhichIsNotCleared) {
    const auto m = Cleared<Motion>();
    const std::string text = Pack("MotionDetect", *m) + "\n";
    const auto length = static_cast<std::uint32_t>(text.size());
    std::string buffer(length + 9, '#');
    EXPECT_NE(CLIENT_PacketData("MotionDetect", m.get(), sizeof(Motion), buffer.data(), length + 9), 0);
    EXPECT_EQ(buffer, text + '\0' + "########"); // a terminator and nothing else
    for (const std::uint32_t capacity : {length, length - 1, 1u, 0u}) {
        buffer.assign(length + 9, '#');
        EXPECT_EQ(CLIENT_PacketData("MotionDetect", m.get(), sizeof(Motion), buffer.data(), capacity), 0);
        EXPECT_EQ(buffer, std::string(length + 9, '#')) << capacity;
    }
    EXPECT_EQ(CLIENT_PacketData("MotionDetect", m.get(), sizeof(Motion) - 1, buffer.data(), length + 9), 0);
    EXPECT_EQ(buffer, std::string(length + 9, '#'));
}

TEST(MotionDetect, BelowOneRecordNothingIsTouched) {
    auto m = Cleared<Motion>();
    std::memset(static_cast<void*>(m.get()), test::kUntouched, sizeof(Motion));
    EXPECT_EQ(CLIENT_ParseData("MotionDetect", R"({ "result" : true })", m.get(), sizeof(Motion) - 1, nullptr), 0);
    EXPECT_EQ(reinterpret_cast<const unsigned char*>(m.get())[0], test::kUntouched);
}

} // namespace
} // namespace orrery
