#include "frame/JsonParserSupport.h"

#include <climits>
#include <cstring>

namespace orrery {
namespace {

using test::ParsedText;
using test::TextOf;

constexpr std::int32_t kBefore = 77; // what stood in a field that must stay

TEST(FixedArrays, APointHasExactlyTwoElements) {
    CFG_POINT point{kBefore, kBefore};
    for (const char* text : {"[ 1 ]", "[ 1, 2, 3 ]", "[  ]", "null", "5", "\"1,2\"", "{ \"a\" : 1, \"b\" : 2 }"}) {
        EXPECT_FALSE(JsonParser::GetPoint(ParsedText(text).root(), &point)) << text;
    }
    EXPECT_EQ(point.nX, kBefore);
    EXPECT_EQ(point.nY, kBefore);
    EXPECT_TRUE(JsonParser::GetPoint(ParsedText("[ -3, 8191 ]").root(), &point));
    EXPECT_EQ(point.nX, -3);
    EXPECT_EQ(point.nY, 8191);
    EXPECT_FALSE(JsonParser::GetPoint(ParsedText("[ 1, 2 ]").root(), nullptr));
}

TEST(FixedArrays, ElementsAreTakenAsIntegersWhateverTheyAre) {
    CFG_RECT rect{kBefore, kBefore, kBefore, kBefore};
    EXPECT_TRUE(JsonParser::GetRect(ParsedText("[ 1.9, true, \"7\", null ]").root(), &rect));
    EXPECT_EQ(rect.nLeft, 1);
    EXPECT_EQ(rect.nTop, 1);
    EXPECT_EQ(rect.nRight, 0);
    EXPECT_EQ(rect.nBottom, 0);
}

TEST(FixedArrays, ARectangleOfFiveNumbersIsNotRead) {
    CFG_RECT rect{kBefore, kBefore, kBefore, kBefore};
    EXPECT_FALSE(JsonParser::GetRect(ParsedText("[ 1, 2, 3, 4, 5 ]").root(), &rect));
    EXPECT_FALSE(JsonParser::GetRect(ParsedText("[ 1, 2, 3 ]").root(), &rect));
    EXPECT_EQ(rect.nLeft, kBefore);
    EXPECT_EQ(rect.nBottom, kBefore);
    EXPECT_TRUE(JsonParser::GetRect(ParsedText("[ 1, 2, 3, 4 ]").root(), &rect));
    EXPECT_EQ(rect.nLeft, 1);
    EXPECT_EQ(rect.nTop, 2);
    EXPECT_EQ(rect.nRight, 3);
    EXPECT_EQ(rect.nBottom, 4);
}

TEST(FixedArrays, AColour) {
    CFG_COLOR color{kBefore, kBefore, kBefore, kBefore};
    EXPECT_FALSE(JsonParser::GetColor(ParsedText("[ 255, 128, 0 ]").root(), &color));
    EXPECT_EQ(color.nRed, kBefore);
    EXPECT_TRUE(JsonParser::GetColor(ParsedText("[ 255, 128, 0, 64 ]").root(), &color));
    EXPECT_EQ(color.nRed, 255);
    EXPECT_EQ(color.nGreen, 128);
    EXPECT_EQ(color.nBlue, 0);
    EXPECT_EQ(color.nAlpha, 64);
}

TEST(FixedArrays, ASizeDropsFractionsOnTheWayIn) {
    CFG_SIZE size{0.5f, 0.5f};
    EXPECT_FALSE(JsonParser::GetSize(ParsedText("[ 3 ]").root(), &size));
    EXPECT_EQ(size.fWidth, 0.5f);
    EXPECT_TRUE(JsonParser::GetSize(ParsedText("[ 3.75, -2 ]").root(), &size));
    EXPECT_EQ(size.fWidth, 3.0f);
    EXPECT_EQ(size.fHeight, -2.0f);
}

TEST(FixedArrays, AreWrittenElementByElement) {
    const CFG_POINT point{-3, 8191};
    EXPECT_EQ(TextOf([&](json::TextWriter& out) { JsonParser::SetPoint(out, &point); }), "[ -3, 8191 ]");
    const CFG_RECT rect{0, INT_MIN, INT_MAX, 4};
    EXPECT_EQ(TextOf([&](json::TextWriter& out) { JsonParser::SetRect(out, &rect); }),
              "[ 0, -2147483648, 2147483647, 4 ]");
    const CFG_COLOR color{255, 128, 0, 64};
    EXPECT_EQ(TextOf([&](json::TextWriter& out) { JsonParser::SetColor(out, &color); }), "[ 255, 128, 0, 64 ]");
    // "%#.16g" of 3 and of the float nearest to 0.1, which is 0.100000001490116119384765625.
    const CFG_SIZE size{3.0f, 0.1f};
    EXPECT_EQ(TextOf([&](json::TextWriter& out) { JsonParser::SetSize(out, &size); }),
              "[ 3.000000000000000, 0.1000000014901161 ]");
}

TEST(FixedArrays, LieAtAnyAddress) {
    alignas(8) char room[32];
    std::memset(room, '#', sizeof room);
    EXPECT_TRUE(JsonParser::GetRect(ParsedText("[ 1, 2, 3, 4 ]").root(), reinterpret_cast<CFG_RECT*>(room + 1)));
    const std::int32_t expected[] = {1, 2, 3, 4};
    EXPECT_EQ(std::memcmp(room + 1, expected, sizeof expected), 0);
    EXPECT_EQ(room[0], '#');
    EXPECT_EQ(room[17], '#');
    EXPECT_EQ(
        TextOf([&](json::TextWriter& out) { JsonParser::SetRect(out, reinterpret_cast<const CFG_RECT*>(room + 1)); }),
        "[ 1, 2, 3, 4 ]");
}

TEST(PointList, ABadElementLeavesAHoleAndIsNotCounted) {
    const ParsedText document("[ [ 1, 2 ], null, [ 3 ], [ 4, 5, 6 ], 7, [ 8, 9 ] ]");
    CFG_POLYGON points[7];
    for (CFG_POLYGON& point : points)
        point = {kBefore, kBefore};
    int count = 99;
    JsonParser::GetPointList(document.root(), 7, points, &count);
    EXPECT_EQ(count, 3);
    const std::int32_t expected[7][2] = {{1, 2}, {kBefore, kBefore}, {kBefore, kBefore}, {4, 5}, {kBefore, kBefore},
                                         {8, 9}, {kBefore, kBefore}};
    EXPECT_EQ(std::memcmp(points, expected, sizeof expected), 0);
}

TEST(PointList, AnObjectOfTwoMembersIsAPointAtZero) {
    // Two elements are all that is asked for; that they cannot be reached by number is another matter.
    const ParsedText document(R"([ { "a" : 1, "b" : 2 }, { "a" : 1 }, [ 3, 4 ] ])");
    CFG_POLYGON points[3] = {{kBefore, kBefore}, {kBefore, kBefore}, {kBefore, kBefore}};
    int count = 99;
    JsonParser::GetPointList(document.root(), 3, points, &count);
    EXPECT_EQ(count, 2);
    const std::int32_t expected[3][2] = {{0, 0}, {kBefore, kBefore}, {3, 4}};
    EXPECT_EQ(std::memcmp(points, expected, sizeof expected), 0);
}

TEST(PointList, StopsAtTheCallersCount) {
    const ParsedText document("[ [ 1, 2 ], [ 3, 4 ], [ 5, 6 ] ]");
    CFG_POLYGON points[3] = {{kBefore, kBefore}, {kBefore, kBefore}, {kBefore, kBefore}};
    int count = 99;
    JsonParser::GetPointList(document.root(), 2, points, &count);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(points[1].nX, 3);
    EXPECT_EQ(points[2].nX, kBefore);
    for (const int none : {0, -1, INT_MIN}) {
        count = 99;
        JsonParser::GetPointList(document.root(), none, points + 2, &count);
        EXPECT_EQ(count, 0) << "cleared in any case";
    }
    EXPECT_EQ(points[2].nX, kBefore);
    count = 99;
    JsonParser::GetPointList(ParsedText("5").root(), 3, points, &count);
    EXPECT_EQ(count, 0);
    JsonParser::GetPointList(document.root(), 3, nullptr, &count);
    JsonParser::GetPointList(document.root(), 3, points, nullptr);
    EXPECT_EQ(points[2].nX, 5);
}

TEST(PointList, IsWrittenAsPairs) {
    const CFG_POLYGON points[2] = {{1, 2}, {-3, 4}};
    EXPECT_EQ(TextOf([&](json::TextWriter& out) { EXPECT_TRUE(JsonParser::SetPointList(out, points, 2)); }),
              "[ [ 1, 2 ], [ -3, 4 ] ]");
    EXPECT_EQ(TextOf([&](json::TextWriter& out) {
                  EXPECT_TRUE(JsonParser::SetPointList(out, points, 0));
                  EXPECT_FALSE(JsonParser::SetPointList(out, points, -1));
                  EXPECT_FALSE(JsonParser::SetPointList(out, nullptr, 2));
              }),
              "");
}

TEST(Gps, DegreesMinutesSeconds) {
    // 120 + 30/60 + 36/3600 = 120.51
    EXPECT_NEAR(JsonParser::GpsDegreesToMicro(ParsedText("[ 120, 30, 36 ]").root()), 120510000.0, 1e-6);
    EXPECT_EQ(JsonParser::GpsDegreesToMicro(ParsedText("[ 1, 0, 0 ]").root()), 1000000.0);
    EXPECT_EQ(JsonParser::GpsDegreesToMicro(ParsedText("[ 0, 30, 0.0 ]").root()), 500000.0)
        << "minutes are no integers";
    EXPECT_EQ(JsonParser::GpsDegreesToMicro(ParsedText("[ 0, 0, 1.8 ]").root()), 500.0);
    EXPECT_EQ(JsonParser::GpsDegreesToMicro(ParsedText("[ 2, 0, 0, 9 ]").root()), 2000000.0) << "a fourth is ignored";
    for (const char* text : {"[ 1, 2 ]", "[  ]", "null", "5", "\"abc\"", "{ \"a\" : 1, \"b\" : 1, \"c\" : 1 }"}) {
        EXPECT_EQ(JsonParser::GpsDegreesToMicro(ParsedText(text).root()), 0.0) << text;
        EXPECT_EQ(JsonParser::GpsDegreesToMicroInt(ParsedText(text).root()), 0) << text;
    }
}

TEST(Gps, TheIntegerTruncatesTowardZero) {
    // 0.0019 s and 0.0055 s are 0.53 and 1.53 millionths of a degree.
    EXPECT_EQ(JsonParser::GpsDegreesToMicroInt(ParsedText("[ 0, 0, 0.0019 ]").root()), 0);
    EXPECT_EQ(JsonParser::GpsDegreesToMicroInt(ParsedText("[ 0, 0, 0.0055 ]").root()), 1);
    EXPECT_EQ(JsonParser::GpsDegreesToMicroInt(ParsedText("[ 0, 0, -0.0055 ]").root()), -1);
    EXPECT_EQ(JsonParser::GpsDegreesToMicroInt(ParsedText("[ 90, 0, 0 ]").root()), 90000000);
}

TEST(Gps, WhatFitsNoIntegerBecomesTheNearest) {
    EXPECT_EQ(JsonParser::GpsDegreesToMicroInt(ParsedText("[ 4000000000, 0, 0 ]").root()), INT_MAX);
    EXPECT_EQ(JsonParser::GpsDegreesToMicroInt(ParsedText("[ 0, 0, 1e300 ]").root()), INT_MAX);
    EXPECT_EQ(JsonParser::GpsDegreesToMicroInt(ParsedText("[ 0, 0, -1e300 ]").root()), INT_MIN);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    json::Value parts[3] = {json::Value::OfUInt(1), json::Value::OfUInt(1), json::Value::OfReal(nan)};
    EXPECT_EQ(JsonParser::GpsDegreesToMicroInt(json::Value::OfArray(parts, 3)), 0);
}

} // namespace
} // namespace orrery
