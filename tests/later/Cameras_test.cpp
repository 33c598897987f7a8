// Cameras: masks and mosaics, texts in the picture, lamps, heads, snapshots by rule.
#include "later/TableCalls.h"
#include "orrery/cameras.h"
#include "orrery/event_types.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

testing::AssertionResult Holds(const CFG_RECT& rect, int left, int top, int right, int bottom) {
    if (rect.nLeft == left && rect.nTop == top && rect.nRight == right && rect.nBottom == bottom)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << rect.nLeft << " " << rect.nTop << " " << rect.nRight << " " << rect.nBottom;
}
testing::AssertionResult Holds(const CFG_COLOR& color, int red, int green, int blue, int alpha) {
    return Holds(CFG_RECT{color.nRed, color.nGreen, color.nBlue, color.nAlpha}, red, green, blue, alpha);
}
testing::AssertionResult Holds(const CFG_POINT& point, int x, int y) {
    return Holds(CFG_RECT{point.nX, point.nY, 0, 0}, x, y, 0, 0);
}

// ---- Mosaics -------------------------------------------------------------------------------------------------------

TEST(VideoMosaic, GoesRoundWhole) {
    const auto read =
        GoesRound<CFG_VIDEO_MOSAIC_INFO>("VideoMosaic", R"({ "Enable" : true, "Mosaic" : 2, "Regions" : 3 })");
    EXPECT_EQ(read.bEnable, 1);
    EXPECT_EQ(read.nRegions, 3);
    EXPECT_EQ(read.nMosaic, 2);
    TryList("VideoMosaic", "Mosaic", &CFG_VIDEO_MOSAIC_INFO::nMosaic);
    TryWithoutKeys<CFG_VIDEO_MOSAIC_INFO>("VideoMosaic", R"({ "Enable" : false, "Mosaic" : 0, "Regions" : 0 })");
}

TEST(TrafficSnapMosaic, GoesRoundWhole) {
    using Mosaic = CFG_TRAFFIC_SNAP_MOSAIC_INFO;
    const auto read = GoesRound<Mosaic>("TrafficSnapMosaic",
                                        R"({ "Enable" : true, "PicCompressRate" : 2, "UploadNormalSnap" : true })");
    EXPECT_EQ(read.nPicCompressRate, 2);
    TrySwitches<Mosaic>("TrafficSnapMosaic",
                        {{"Enable", &Mosaic::bEnable}, {"UploadNormalSnap", &Mosaic::bUploadNormalSnap}});
    TryList("TrafficSnapMosaic", "PicCompressRate", &Mosaic::nPicCompressRate);
    TryWithoutKeys<Mosaic>("TrafficSnapMosaic",
                           R"({ "Enable" : false, "PicCompressRate" : 0, "UploadNormalSnap" : false })");
}

// ---- "PrivacyMasking" ----------------------------------------------------------------------------------------------

using Masks = CFG_PRIVACY_MASKING_INFO;

TEST(PrivacyMasking, ARectangleGoesRound) {
    const auto read = GoesRound<Masks>(
        "PrivacyMasking", R"([ { "Color" : [ 1, 2, 3, 4 ], "Enable" : true, "Mosaic" : 5, "Position" : [ 6, -7 ], )"
                          R"("Rect" : [ 8, 9, 10, 11 ], "ShapeType" : "Rect" } ])");
    ASSERT_EQ(read.nCount, 1);
    const CFG_PRIVACY_MASK& mask = read.stuMasks[0];
    EXPECT_EQ(mask.bEnable, 1);
    EXPECT_TRUE(Holds(mask.stuPosition, 6, -7));
    EXPECT_EQ(mask.emShapeType, CFG_PRIVACY_SHAPE_RECT);
    EXPECT_EQ(mask.nPolygonNum, 0);
    EXPECT_TRUE(Holds(mask.stuRect, 8, 9, 10, 11));
    EXPECT_TRUE(Holds(mask.stuColor, 1, 2, 3, 4));
    EXPECT_EQ(mask.nMosaic, 5);
}

TEST(PrivacyMasking, APolygonGoesRound) {
    const auto read = GoesRound<Masks>("PrivacyMasking",
                                       R"([ { "Color" : [ 1, 2, 3, 4 ], "Enable" : false, "Mosaic" : 5, )"
                                       R"("Polygon" : [ [ 12, 13 ], [ 14, 15 ], [ 16, 17 ] ], "Position" : [ 6, 7 ], )"
                                       R"("ShapeType" : "Polygon" } ])");
    const CFG_PRIVACY_MASK& mask = read.stuMasks[0];
    EXPECT_EQ(mask.emShapeType, CFG_PRIVACY_SHAPE_POLYGON);
    ASSERT_EQ(mask.nPolygonNum, 3);
    EXPECT_EQ(mask.stuPolygon[0].nX, 12);
    EXPECT_EQ(mask.stuPolygon[2].nY, 17);
    EXPECT_TRUE(Holds(mask.stuRect, 0, 0, 0, 0));
}

CFG_PRIVACY_MASK Mask(const std::string& members) {
    return ReadOne<Masks>("PrivacyMasking", "[ { " + members + " } ]").stuMasks[0];
}

TEST(PrivacyMasking, TheMisspeltPositionIsReadAndNeverWritten) {
    EXPECT_TRUE(Holds(Mask(R"("Postion" : [ 3, 4 ])").stuPosition, 3, 4));
    EXPECT_TRUE(Holds(Mask(R"("Position" : [ 3, 4 ])").stuPosition, 3, 4));
    EXPECT_TRUE(Holds(Mask(R"("Postion" : [ 3, 4 ], "Position" : [ 5, 6 ])").stuPosition, 3, 4));
    EXPECT_TRUE(Holds(Mask(R"("Postion" : [ 3 ], "Position" : [ 5, 6 ])").stuPosition, 5, 6));
    for (const char* value : {"[ 1 ]", "[ 1, 2, 3 ]", "[ ]", "\"1,2\"", "5"})
        EXPECT_TRUE(Holds(Mask("\"Position\" : " + std::string(value)).stuPosition, 0, 0)) << value;
    Masks masks{};
    masks.nCount = 1;
    masks.stuMasks[0].stuPosition = {3, 4};
    EXPECT_EQ(Pack("PrivacyMasking", masks),
              R"([ { "Color" : [ 0, 0, 0, 0 ], "Enable" : false, "Mosaic" : 0, "Position" : [ 3, 4 ], )"
              R"("ShapeType" : "" } ])");
}

TEST(PrivacyMasking, OnlyTheValueOfTheShapeIsWritten) {
    auto masks = ReadOne<Masks>("PrivacyMasking",
                                R"([ { "Polygon" : [ [ 1, 2 ] ], "Rect" : [ 3, 4, 5, 6 ], "ShapeType" : "Rect" } ])");
    EXPECT_EQ(masks.stuMasks[0].nPolygonNum, 1);
    EXPECT_TRUE(Holds(masks.stuMasks[0].stuRect, 3, 4, 5, 6));
    const auto written = [&](std::int32_t shape) {
        masks.stuMasks[0].emShapeType = shape;
        const std::string text = Pack("PrivacyMasking", masks);
        return text.substr(text.find("\"Mosaic\""));
    };
    EXPECT_EQ(written(1), R"("Mosaic" : 0, "Position" : [ 0, 0 ], "Rect" : [ 3, 4, 5, 6 ], "ShapeType" : "Rect" } ])");
    EXPECT_EQ(written(2),
              R"("Mosaic" : 0, "Polygon" : [ [ 1, 2 ] ], "Position" : [ 0, 0 ], "ShapeType" : "Polygon" } ])");
    for (const std::int32_t shape : {-1, 0, 3, INT32_MIN, INT32_MAX})
        EXPECT_EQ(written(shape), R"("Mosaic" : 0, "Position" : [ 0, 0 ], "ShapeType" : "" } ])") << shape;
    masks.stuMasks[0].nPolygonNum = 0;
    EXPECT_EQ(written(2), R"("Mosaic" : 0, "Position" : [ 0, 0 ], "ShapeType" : "Polygon" } ])");
}

TEST(PrivacyMasking, Shapes) {
    EXPECT_EQ(Mask(R"("ShapeType" : "Rect")").emShapeType, 1);
    EXPECT_EQ(Mask(R"("ShapeType" : "Polygon")").emShapeType, 2);
    EXPECT_EQ(Mask(R"("ShapeType" : "pOLYGON")").emShapeType, 2);
    for (const char* value : {"\"\"", "\"Circle\"", "1", "null", "[ ]"})
        EXPECT_EQ(Mask("\"ShapeType\" : " + std::string(value)).emShapeType, 0) << value;
}

TEST(PrivacyMasking, CornersWithoutTwoNumbersLeaveAHole) {
    const auto mask = Mask(R"("Polygon" : [ [ 1, 2 ], null, [ 3 ], 5, [ 6, 7, 8 ], [ "x", 9 ] ])");
    EXPECT_EQ(mask.nPolygonNum, 3);
    EXPECT_EQ(mask.stuPolygon[0].nY, 2);
    for (int i = 1; i < 4; ++i) {
        EXPECT_EQ(mask.stuPolygon[i].nX, 0) << i;
        EXPECT_EQ(mask.stuPolygon[i].nY, 0) << i;
    }
    EXPECT_EQ(mask.stuPolygon[4].nX, 6);
    EXPECT_EQ(mask.stuPolygon[4].nY, 7);
    EXPECT_EQ(mask.stuPolygon[5].nX, 0);
    EXPECT_EQ(mask.stuPolygon[5].nY, 9);
}

std::string Times(int count, const std::string& element) {
    std::string list = "[ " + element;
    for (int i = 1; i < count; ++i)
        list += ", " + element;
    return list + " ]";
}

TEST(PrivacyMasking, KeepsSixteenMasksOfTwentyCorners) {
    for (const int corners : {19, 20, 21}) {
        const auto mask = Mask("\"Polygon\" : " + Times(corners, "[ 1, 2 ]") + ", \"Mosaic\" : 3");
        EXPECT_EQ(mask.nPolygonNum, std::min(corners, 20));
        EXPECT_TRUE(Holds(mask.stuRect, 0, 0, 0, 0));
        EXPECT_EQ(mask.nMosaic, 3);
    }
    for (const int count : {15, 16, 17}) {
        const Records<Masks> record(1, 0x5A);
        ASSERT_EQ(ParseAdding("PrivacyMasking", Times(count, "{ \"Mosaic\" : 3 }"), record), HasRead<Masks>(1));
        Masks masks = record[0];
        EXPECT_EQ(masks.nCount, std::min(count, 16));
        EXPECT_EQ(masks.stuMasks[masks.nCount - 1].nMosaic, 3);
        const std::string text = Pack("PrivacyMasking", masks);
        if (count < 16) continue;
        masks.nCount = 17;
        EXPECT_EQ(Pack("PrivacyMasking", masks), text);
        masks.stuMasks[0].emShapeType = CFG_PRIVACY_SHAPE_POLYGON;
        masks.stuMasks[0].nPolygonNum = 21;
        EXPECT_NE(Pack("PrivacyMasking", masks).find(Times(20, "[ 0, 0 ]") + ", \"Position\""), std::string::npos);
        masks.nCount = -1;
        EXPECT_EQ(Pack("PrivacyMasking", masks), "null");
    }
}

TEST(PrivacyMasking, ARecordAChannel) {
    const Records<Masks> three(3, 3, 0x5A);
    EXPECT_EQ(ParseAdding("PrivacyMasking",
                          R"([ [ { "Mosaic" : 1 }, { "Mosaic" : 2 } ], [ { } ], [ { "Mosaic" : 3 } ], [ { } ] ])",
                          three),
              HasRead<Masks>(3));
    EXPECT_EQ(three[0].nCount, 2);
    EXPECT_EQ(three[0].stuMasks[1].nMosaic, 2);
    EXPECT_EQ(three[1].nCount, 1);
    EXPECT_EQ(three[2].nCount, 1);
    EXPECT_EQ(three[2].stuMasks[0].nMosaic, 3);
    EXPECT_EQ(three.data()[3 * sizeof(Masks)], 0);
    EXPECT_EQ(PackAll("PrivacyMasking", three), "[ " + Pack("PrivacyMasking", three[0]) + ", "
                                                    + Pack("PrivacyMasking", three[1]) + ", "
                                                    + Pack("PrivacyMasking", three[2]) + " ]");
    TryWithoutKeys<Masks>("PrivacyMasking", "null");
    // A list of masks is one record, though there is room for more.
    const Records<Masks> two(2, 0x5A);
    EXPECT_EQ(ParseAdding("PrivacyMasking", R"([ { "Mosaic" : 1 }, { "Mosaic" : 2 } ])", two), HasRead<Masks>(1));
    EXPECT_EQ(two[0].nCount, 2);
    EXPECT_EQ(two[1].nCount, 0);
}

// ---- Texts in the picture ------------------------------------------------------------------------------------------

using Faults = CFG_OSD_SYS_ABNORMAL_INFO;

TEST(OsdSysAbnormal, GoesRoundWhole) {
    const auto read = GoesRound<Faults>(
        "OSDSysAbnormal",
        R"({ "BackColor" : [ 1, 2, 3, 4 ], "Destroy" : true, "DisplayTime" : 5, "EncodeBlend" : true, )"
        R"("FrontColor" : [ 6, 7, 8, 9 ], "IPConflict" : true, "NetAbort" : true, "OutputCurrentStatus" : true, )"
        R"("PreviewBlend" : true, "Rect" : [ 10, 11, 12, 13 ], "SDFailure" : true, "SDHotPlug" : true, )"
        R"("SDLowSpace" : true, "VoltageStatus" : true })");
    EXPECT_TRUE(Holds(read.stuBackColor, 1, 2, 3, 4));
    EXPECT_TRUE(Holds(read.stuFrontColor, 6, 7, 8, 9));
    EXPECT_TRUE(Holds(read.stuRect, 10, 11, 12, 13));
    EXPECT_EQ(read.nDisplayTime, 5);
    TrySwitches<Faults>("OSDSysAbnormal", {{"Destroy", &Faults::bDestroy},
                                           {"EncodeBlend", &Faults::bEncodeBlend},
                                           {"IPConflict", &Faults::bIPConflict},
                                           {"NetAbort", &Faults::bNetAbort},
                                           {"OutputCurrentStatus", &Faults::bOutputCurrentStatus},
                                           {"PreviewBlend", &Faults::bPreviewBlend},
                                           {"SDFailure", &Faults::bSDFailure},
                                           {"SDHotPlug", &Faults::bSDHotPlug},
                                           {"SDLowSpace", &Faults::bSDLowSpace},
                                           {"VoltageStatus", &Faults::bVoltageStatus}});
}

TEST(OsdSysAbnormal, AbsentNumbersAreZeroThoughNothingIsCleared) {
    for (const char* table : {"{ }", "[ ]", "7", R"({ "BackColor" : [ 1, 2, 3 ], "Rect" : 5, "DisplayTime" : "x" })"}) {
        const auto read = ReadOne<Faults>("OSDSysAbnormal", table);
        Faults expected{};
        std::memset(&expected.stuBackColor, 0x5A, sizeof expected.stuBackColor);
        std::memset(&expected.stuFrontColor, 0x5A, sizeof expected.stuFrontColor);
        std::memset(&expected.stuRect, 0x5A, sizeof expected.stuRect);
        EXPECT_EQ(std::memcmp(&read, &expected, sizeof read), 0) << table;
    }
    const Records<Faults> three(3, 10, 0x5A);
    EXPECT_EQ(ParseAdding("OSDSysAbnormal", R"([ { "DisplayTime" : 1 }, null, { "DisplayTime" : 3 }, { } ])", three),
              HasRead<Faults>(2));
    EXPECT_EQ(three[0].nDisplayTime, 1);
    EXPECT_EQ(three[1].nDisplayTime, 0x5A5A5A5A); // a null element's record is left alone
    EXPECT_EQ(three[2].nDisplayTime, 3);
    EXPECT_EQ(three.data()[3 * sizeof(Faults)], 0x5A);
    const Faults none{};
    const std::string text = Pack("OSDSysAbnormal", none);
    EXPECT_EQ(text, R"({ "BackColor" : [ 0, 0, 0, 0 ], "Destroy" : false, "DisplayTime" : 0, "EncodeBlend" : false, )"
                    R"("FrontColor" : [ 0, 0, 0, 0 ], "IPConflict" : false, "NetAbort" : false, )"
                    R"("OutputCurrentStatus" : false, "PreviewBlend" : false, "Rect" : [ 0, 0, 0, 0 ], )"
                    R"("SDFailure" : false, "SDHotPlug" : false, "SDLowSpace" : false, "VoltageStatus" : false })");
    const Records<Faults> two(2);
    EXPECT_EQ(PackAll("OSDSysAbnormal", two), "[ " + text + ", " + text + " ]");
}

TEST(VideoWidget2, GoesRoundWhole) {
    using Widget = CFG_VIDEO_WIDGET2_INFO;
    EXPECT_EQ(GoesRound<Widget>("VideoWidget2", R"({ "OSDLineSpacing" : 7 })").nOSDLineSpacing, 7);
    TryList("VideoWidget2", "OSDLineSpacing", &Widget::nOSDLineSpacing);
    TryWithoutKeys<Widget>("VideoWidget2", R"({ "OSDLineSpacing" : 0 })");
}

TEST(VideoWidgetNumberStat, GoesRoundWhole) {
    using Counts = CFG_VIDEO_WIDGET_NUMBER_STAT_INFO;
    const auto read = GoesRound<Counts>(
        "VideoWidgetNumberStat", R"({ "BackColor" : [ 1, 2, 3, 4 ], "EncodeBlend" : true, )"
                                 R"("FrontColor" : [ 5, 6, 7, 8 ], "Rect" : [ 9, 10, 11, 12 ], "ShowEnterNum" : true, )"
                                 R"("ShowExitNum" : true, "TextAlign" : 13 })");
    EXPECT_TRUE(Holds(read.stuBackColor, 1, 2, 3, 4));
    EXPECT_TRUE(Holds(read.stuFrontColor, 5, 6, 7, 8));
    EXPECT_TRUE(Holds(read.stuRect, 9, 10, 11, 12));
    EXPECT_EQ(read.nTextAlign, 13);
    TrySwitches<Counts>("VideoWidgetNumberStat", {{"EncodeBlend", &Counts::bEncodeBlend},
                                                  {"ShowEnterNum", &Counts::bShowEnterNum},
                                                  {"ShowExitNum", &Counts::bShowExitNum}});
    TryList("VideoWidgetNumberStat", "TextAlign", &Counts::nTextAlign);
    TryWithoutKeys<Counts>("VideoWidgetNumberStat",
                           R"({ "BackColor" : [ 0, 0, 0, 0 ], "EncodeBlend" : false, "FrontColor" : [ 0, 0, 0, 0 ], )"
                           R"("Rect" : [ 0, 0, 0, 0 ], "ShowEnterNum" : false, "ShowExitNum" : false, )"
                           R"("TextAlign" : 0 })");
    for (const char* value : {"[ 1, 2, 3 ]", "[ 1, 2, 3, 4, 5 ]", "[ ]", "\"1\"", R"({ "0" : 1 })"}) {
        const auto odd = ReadOne<Counts>("VideoWidgetNumberStat",
                                         R"({ "Rect" : )" + std::string(value) + R"(, "FrontColor" : )" + value + " }");
        EXPECT_TRUE(Holds(odd.stuRect, 0, 0, 0, 0)) << value;
        EXPECT_TRUE(Holds(odd.stuFrontColor, 0, 0, 0, 0)) << value;
    }
}

TEST(AtmosphereOsd, GoesRoundWhole) {
    using Weather = CFG_ATMOSPHERE_OSD_INFO;
    const auto read = GoesRound<Weather>("AtmosphereOSD", R"({ "EncodeBlend" : true, "Mask" : 4294967295 })");
    EXPECT_EQ(read.bEncodeBlend, 1);
    EXPECT_EQ(read.nMask, 4294967295U);
    EXPECT_EQ(ReadOne<Weather>("AtmosphereOSD", R"({ "Mask" : -1 })").nMask, 0U);
    TryList("AtmosphereOSD", "Mask", &Weather::nMask);
    TryWithoutKeys<Weather>("AtmosphereOSD", R"({ "EncodeBlend" : false, "Mask" : 0 })");
}

TEST(LaserDistMeasure, EachSwitchHasItsKey) {
    using Laser = CFG_LASER_DIST_MEASURE_INFO;
    TrySwitches<Laser>("LaserDistMeasure", {{"Enable", &Laser::bEnable}, {"EncodeBlend", &Laser::bEncodeBlend}});
    TryWithoutKeys<Laser>("LaserDistMeasure", R"({ "Enable" : false, "EncodeBlend" : false })");
    const Records<Laser> two(2, 0x5A);
    EXPECT_EQ(ParseAdding("LaserDistMeasure", R"([ { "Enable" : true }, { "EncodeBlend" : true }, { } ])", two),
              HasRead<Laser>(2));
    EXPECT_EQ(PackAll("LaserDistMeasure", two),
              R"([ { "Enable" : true, "EncodeBlend" : false }, { "Enable" : false, "EncodeBlend" : true } ])");
}

// ---- Lamps, streams, windows ---------------------------------------------------------------------------------------

TEST(LightingV2, GoesRoundWhole) {
    using Lamps = CFG_LIGHTING_V2_INFO;
    const auto read = GoesRound<Lamps>(
        "Lighting_V2", R"({ "AIMixLightSwitchDelay" : 1, "Angle" : [ 2, 3 ], "Correction" : 4, "FarLight" : 5, )"
                       R"("Light" : [ 6, 7, 8 ], "LightSwitchDelay" : 9, "LightType" : "T10", "MiddleLight" : 11, )"
                       R"("Mode" : "M12", "NearLight" : 13, "PercentOfMaxBrightness" : 14, "Sensitive" : 15 })");
    EXPECT_EQ(read.nAIMixLightSwitchDelay, 1);
    ASSERT_EQ(read.nAngleCount, 2);
    EXPECT_EQ(read.nAngle[1], 3);
    EXPECT_EQ(read.nCorrection, 4);
    EXPECT_EQ(read.nFarLight, 5);
    ASSERT_EQ(read.nLightCount, 3);
    EXPECT_EQ(read.nLight[2], 8);
    EXPECT_EQ(read.nLightSwitchDelay, 9);
    EXPECT_STREQ(read.szLightType, "T10");
    EXPECT_EQ(read.nMiddleLight, 11);
    EXPECT_STREQ(read.szMode, "M12");
    EXPECT_EQ(read.nNearLight, 13);
    EXPECT_EQ(read.nPercentOfMaxBrightness, 14);
    EXPECT_EQ(read.nSensitive, 15);
    TryText("Lighting_V2", "LightType", &Lamps::szLightType, 32);
    TryText("Lighting_V2", "Mode", &Lamps::szMode, 32);
    TryList("Lighting_V2", "NearLight", &Lamps::nNearLight);
    TryWithoutKeys<Lamps>("Lighting_V2",
                          R"({ "AIMixLightSwitchDelay" : 0, "Correction" : 0, "FarLight" : 0, "LightSwitchDelay" : 0, )"
                          R"("LightType" : "", "MiddleLight" : 0, "Mode" : "", "NearLight" : 0, )"
                          R"("PercentOfMaxBrightness" : 0, "Sensitive" : 0 })");

    auto full =
        ReadOne<Lamps>("Lighting_V2", R"({ "Angle" : )" + Times(9, "3") + R"(, "Light" : )" + Times(9, "4") + " }");
    EXPECT_EQ(full.nAngleCount, 8);
    EXPECT_EQ(full.nAngle[7], 3);
    EXPECT_EQ(full.nLightCount, 8);
    EXPECT_EQ(full.nLight[7], 4);
    const std::string text = Pack("Lighting_V2", full);
    full.nAngleCount = full.nLightCount = 9;
    EXPECT_EQ(Pack("Lighting_V2", full), text);
}

TEST(LightingV2, LampsBelowAndAtTheirRoom) {
    using Lamps = CFG_LIGHTING_V2_INFO;
    for (const int count : {7, 8}) {
        const auto read = ReadOne<Lamps>("Lighting_V2", R"({ "Angle" : )" + Times(count, "3") + R"(, "Light" : )"
                                                            + Times(count, "4") + " }");
        EXPECT_EQ(read.nAngleCount, count);
        EXPECT_EQ(read.nLightCount, count);
        const std::string text = Pack("Lighting_V2", read);
        EXPECT_NE(text.find(R"("Angle" : )" + Times(count, "3") + ", "), std::string::npos) << text;
        EXPECT_NE(text.find(R"("Light" : )" + Times(count, "4") + ", "), std::string::npos) << text;
    }
}

TEST(NetAutoAdaptEncode, GoesRoundWhole) {
    using Adapt = CFG_NET_AUTO_ADAPT_ENCODE_INFO;
    const auto read =
        GoesRound<Adapt>("NetAutoAdaptEncode", R"({ "AdaptEnable" : true, "ExtraFormat" : 2, "IPSmooth" : 3, )"
                                               R"("MainFormat" : 4 })");
    EXPECT_EQ(read.bAdaptEnable, 1);
    EXPECT_EQ(read.nExtraFormat, 2);
    EXPECT_EQ(read.nIPSmooth, 3);
    EXPECT_EQ(read.nMainFormat, 4);
    TryList("NetAutoAdaptEncode", "IPSmooth", &Adapt::nIPSmooth);
    TryWithoutKeys<Adapt>("NetAutoAdaptEncode",
                          R"({ "AdaptEnable" : false, "ExtraFormat" : 0, "IPSmooth" : 0, "MainFormat" : 0 })");
}

using Windows = CFG_FREE_COMBINATION_INFO;

TEST(FreeCombination, GoesRoundWhole) {
    const auto read = GoesRound<Windows>("FreeCombination", R"({ "Combination" : [ 3, -1, 2 ] })");
    ASSERT_EQ(read.nCombinationCount, 3);
    EXPECT_EQ(read.nCombination[0], 3);
    EXPECT_EQ(read.nCombination[1], -1);
    EXPECT_EQ(read.nCombination[2], 2);
    EXPECT_EQ(read.nCombination[3], 0x5A5A5A5A); // nothing is cleared
}

TEST(FreeCombination, WithoutAListTheCountIsZero) {
    for (const char* table :
         {"{ }", "[ ]", "7", R"({ "Combination" : null })", R"({ "Combination" : 5 })", R"({ "Combination" : [ ] })",
          R"({ "Combination" : { "0" : 1 } })", R"({ "Combination" : "1" })"}) {
        const auto read = ReadOne<Windows>("FreeCombination", table);
        EXPECT_EQ(read.nCombinationCount, 0) << table;
        EXPECT_EQ(read.nCombination[0], 0x5A5A5A5A) << table;
        EXPECT_EQ(Pack("FreeCombination", read), "null") << table;
    }
}

TEST(FreeCombination, KeepsSixtyFourWindows) {
    for (const int count : {63, 64, 65}) {
        auto read = ReadOne<Windows>("FreeCombination", R"({ "Combination" : )" + Times(count, "5") + " }");
        EXPECT_EQ(read.nCombinationCount, std::min(count, 64));
        EXPECT_EQ(Pack("FreeCombination", read), R"({ "Combination" : )" + Times(std::min(count, 64), "5") + " }");
        if (count < 64) continue;
        read.nCombinationCount = 65;
        EXPECT_EQ(Pack("FreeCombination", read), R"({ "Combination" : )" + Times(64, "5") + " }");
    }
    const Records<Windows> two(2, 0x5A);
    EXPECT_EQ(ParseAdding("FreeCombination", R"([ { "Combination" : [ 1 ] }, { "Combination" : [ 2, 3 ] } ])", two),
              HasRead<Windows>(2));
    EXPECT_EQ(PackAll("FreeCombination", two), R"([ { "Combination" : [ 1 ] }, { "Combination" : [ 2, 3 ] } ])");
}

// ---- Touch screens and heads ---------------------------------------------------------------------------------------

using Touch = CFG_TS_POINT_INFO;

TEST(TsPoint, GoesRoundWhole) {
    const auto read =
        GoesRound<Touch>("TSPoint", R"({ "Display" : [ [ 1, 2 ] ], "Screen" : [ [ 3, 4 ], [ 5, -6 ] ] })");
    ASSERT_EQ(read.nDisplayCount, 1);
    EXPECT_TRUE(Holds(read.stuDisplay[0], 1, 2));
    ASSERT_EQ(read.nScreenCount, 2);
    EXPECT_TRUE(Holds(read.stuScreen[0], 3, 4));
    EXPECT_TRUE(Holds(read.stuScreen[1], 5, -6));
    EXPECT_EQ(Pack("TSPoint", ReadOne<Touch>("TSPoint", R"([ { "Display" : [ [ 1, 2 ] ] }, { "Screen" : [ ] } ])")),
              R"({ "Display" : [ [ 1, 2 ] ] })");
    TryWithoutKeys<Touch>("TSPoint", "null");
}

TEST(TsPoint, KeepsSixteenPointsOfTwoNumbers) {
    const auto odd = ReadOne<Touch>("TSPoint", R"({ "Screen" : [ [ 1 ], [ 1, 2, 3 ], null, 5, [ 8, 9 ] ] })");
    EXPECT_EQ(odd.nScreenCount, 5);
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(Holds(odd.stuScreen[i], 0, 0)) << i;
    EXPECT_TRUE(Holds(odd.stuScreen[4], 8, 9));
    const std::string points = Times(17, "[ 7, 8 ]");
    auto full = ReadOne<Touch>("TSPoint", R"({ "Display" : )" + points + R"(, "Screen" : )" + points + " }");
    EXPECT_EQ(full.nScreenCount, 16);
    EXPECT_EQ(full.nDisplayCount, 16);
    full.nScreenCount = full.nDisplayCount = 17;
    const std::string sixteen = Times(16, "[ 7, 8 ]");
    EXPECT_EQ(Pack("TSPoint", full), R"({ "Display" : )" + sixteen + R"(, "Screen" : )" + sixteen + " }");
}

TEST(TsPoint, PointsBelowAndAtTheirRoom) {
    for (const int count : {15, 16}) {
        const std::string points = Times(count, "[ 7, 8 ]");
        const auto read =
            GoesRound<Touch>("TSPoint", R"({ "Display" : )" + points + R"(, "Screen" : )" + points + " }");
        EXPECT_EQ(read.nDisplayCount, count);
        EXPECT_EQ(read.nScreenCount, count);
    }
}

TEST(PowerUp, GoesRoundWhole) {
    using Power = CFG_POWER_UP_INFO;
    const auto read = GoesRound<Power>("PowerUp", R"({ "Auto" : true, "Enable" : true, "Function" : "Tour", )"
                                                  R"("PatternId" : 1, "PresetId" : 2, "ScanId" : 3, "TourId" : 4 })");
    EXPECT_EQ(read.emFunction, CFG_POWER_UP_TOUR);
    EXPECT_EQ(read.nPatternId, 1);
    EXPECT_EQ(read.nPresetId, 2);
    EXPECT_EQ(read.nScanId, 3);
    EXPECT_EQ(read.nTourId, 4);
    TrySwitches<Power>("PowerUp", {{"Enable", &Power::bEnable}, {"Auto", &Power::bAuto}});
    TryNames("PowerUp", "Function", &Power::emFunction, {"", "Auto", "Preset", "Scan", "Tour", "Pattern"});
    TryList("PowerUp", "TourId", &Power::nTourId);
    TryWithoutKeys<Power>("PowerUp", R"({ "Auto" : false, "Enable" : false, "Function" : "", "PatternId" : 0, )"
                                     R"("PresetId" : 0, "ScanId" : 0, "TourId" : 0 })");
}

TEST(PtzDevice, GoesRoundWhole) {
    using Head = CFG_PTZ_DEVICE_INFO;
    const auto read =
        GoesRound<Head>("PtzDevice", R"({ "Address" : 4000000001, "Attribute" : [ 19200, 7, "Odd", "2" ], )"
                                     R"("CurrentMode" : "hardware", "Port" : 4000000002, "ProtocolName" : "P3" })");
    EXPECT_EQ(read.nAddress, 4000000001U);
    EXPECT_EQ(read.nPort, 4000000002U);
    EXPECT_EQ(read.stuAttribute.byBaudRate, CFG_COMM_BAUD_19200);
    EXPECT_EQ(read.stuAttribute.byDataBits, CFG_COMM_DATA_BITS_7);
    EXPECT_EQ(read.stuAttribute.byParity, CFG_COMM_PARITY_ODD);
    EXPECT_EQ(read.stuAttribute.byStopBits, CFG_COMM_STOP_BITS_2);
    EXPECT_EQ(read.emCurrentMode, CFG_PTZ_DEVICE_HARDWARE);
    EXPECT_STREQ(read.szProtocolName, "P3");
    TryNames("PtzDevice", "CurrentMode", &Head::emCurrentMode, {"software", "hardware"});
    TryText("PtzDevice", "ProtocolName", &Head::szProtocolName, 128);
    TryList("PtzDevice", "Address", &Head::nAddress);
    // Codes of 0 are 300 baud, 5 bits, no parity and one stop bit.
    TryWithoutKeys<Head>("PtzDevice", R"({ "Address" : 0, "Attribute" : [ 300, 5, "None", "1" ], )"
                                      R"("CurrentMode" : "software", "Port" : 0, "ProtocolName" : "" })");
}

// ---- "SceneSnapShotWithRule" ---------------------------------------------------------------------------------------

using Snaps = CFG_SCENE_SNAP_SHOT_INFO;

TEST(SceneSnapShot, GoesRoundWhole) {
    const auto read = GoesRound<Snaps>(
        "SceneSnapShotWithRule",
        R"({ "PresetID" : 1, "SnapShotWithRule" : [ { "RepeatInterval" : 2, "RuleType" : "CrossLineDetection", )"
        R"("SingleInterval" : 3, "SnapShotType" : [ "T4", "T5" ] }, { "RepeatInterval" : 6, )"
        R"("RuleType" : "LeftDetection", "SingleInterval" : 7 } ] })");
    EXPECT_EQ(read.nPresetID, 1);
    ASSERT_EQ(read.nRuleCount, 2);
    EXPECT_EQ(read.stuRules[0].emRuleType, ORRERY_RULE_CROSS_LINE_DETECTION);
    EXPECT_EQ(read.stuRules[0].nRepeatInterval, 2);
    EXPECT_EQ(read.stuRules[0].nSingleInterval, 3);
    ASSERT_EQ(read.stuRules[0].nSnapShotTypeCount, 2);
    EXPECT_STREQ(read.stuRules[0].szSnapShotType[0], "T4");
    EXPECT_STREQ(read.stuRules[0].szSnapShotType[1], "T5");
    EXPECT_EQ(read.stuRules[1].emRuleType, ORRERY_RULE_LEFT_DETECTION);
    EXPECT_EQ(read.stuRules[1].nSnapShotTypeCount, 0);
    TryFirst("SceneSnapShotWithRule", "PresetID", &Snaps::nPresetID);
    TryWithoutKeys<Snaps>("SceneSnapShotWithRule", R"({ "PresetID" : 0 })");
}

TEST(SceneSnapShot, RulesByTheirNames) {
    const auto read = [](const std::string& value) {
        return ReadOne<Snaps>("SceneSnapShotWithRule", R"({ "SnapShotWithRule" : [ { "RuleType" : )" + value + " } ] }")
            .stuRules[0]
            .emRuleType;
    };
    EXPECT_EQ(read("\"CrossLineDetection\""), ORRERY_RULE_CROSS_LINE_DETECTION);
    EXPECT_EQ(read("\"All\""), ORRERY_RULE_ALL);
    for (const char* value : {"\"crosslinedetection\"", "\"Nonsense\"", "\"\"", "2", "true", "null", "[ ]"})
        EXPECT_EQ(read(value), 0) << value; // case counts
    Snaps snaps{};
    snaps.nRuleCount = 1;
    for (const std::int32_t code : {-1, 0, 0x7FFF, INT32_MIN, INT32_MAX}) {
        snaps.stuRules[0].emRuleType = code;
        EXPECT_EQ(Pack("SceneSnapShotWithRule", snaps),
                  R"({ "PresetID" : 0, "SnapShotWithRule" : [ { "RepeatInterval" : 0, "RuleType" : "", )"
                  R"("SingleInterval" : 0 } ] })")
            << code;
    }
    snaps.stuRules[0].emRuleType = ORRERY_RULE_ALL;
    EXPECT_NE(Pack("SceneSnapShotWithRule", snaps).find(R"("RuleType" : "All")"), std::string::npos);
}

TEST(SceneSnapShot, RulesAndTypesBelowAndAtTheirRoom) {
    for (const int below : {0, 1}) {
        const std::string rule = R"({ "RepeatInterval" : 4, "RuleType" : "All", "SingleInterval" : 5, )"
                                 R"("SnapShotType" : )"
                                 + Times(8 - below, "\"t\"") + " }";
        const auto read = GoesRound<Snaps>("SceneSnapShotWithRule", R"({ "PresetID" : 3, "SnapShotWithRule" : )"
                                                                        + Times(16 - below, rule) + " }");
        EXPECT_EQ(read.nRuleCount, 16 - below);
        EXPECT_EQ(read.stuRules[0].nSnapShotTypeCount, 8 - below);
    }
}

TEST(SceneSnapShot, KeepsSixteenRulesOfEightTypes) {
    const std::string types = Times(9, "\"" + std::string(40, 't') + "\"");
    auto read = ReadOne<Snaps>("SceneSnapShotWithRule",
                               R"({ "SnapShotWithRule" : )"
                                   + Times(17, R"({ "RepeatInterval" : 4, "SnapShotType" : )" + types + " }") + " }");
    EXPECT_EQ(read.nRuleCount, 16);
    EXPECT_EQ(read.stuRules[15].nRepeatInterval, 4);
    EXPECT_EQ(read.stuRules[15].nSnapShotTypeCount, 8);
    EXPECT_EQ(std::string(read.stuRules[15].szSnapShotType[7]), std::string(31, 't'));
    const std::string text = Pack("SceneSnapShotWithRule", read);
    read.nRuleCount = 17;
    read.stuRules[3].nSnapShotTypeCount = 9;
    EXPECT_EQ(Pack("SceneSnapShotWithRule", read), text);
    read.nRuleCount = -1;
    EXPECT_EQ(Pack("SceneSnapShotWithRule", read), R"({ "PresetID" : 0 })");
}

TEST(Cameras, RepliesWithoutATableAndRefusedOnes) {
    TryReplies("VideoMosaic", sizeof(CFG_VIDEO_MOSAIC_INFO));
    TryReplies("TrafficSnapMosaic", sizeof(CFG_TRAFFIC_SNAP_MOSAIC_INFO));
    TryReplies("PrivacyMasking", sizeof(Masks));
    TryReplies("OSDSysAbnormal", sizeof(Faults), false);
    TryReplies("VideoWidget2", sizeof(CFG_VIDEO_WIDGET2_INFO));
    TryReplies("VideoWidgetNumberStat", sizeof(CFG_VIDEO_WIDGET_NUMBER_STAT_INFO));
    TryReplies("AtmosphereOSD", sizeof(CFG_ATMOSPHERE_OSD_INFO));
    TryReplies("LaserDistMeasure", sizeof(CFG_LASER_DIST_MEASURE_INFO));
    TryReplies("Lighting_V2", sizeof(CFG_LIGHTING_V2_INFO));
    TryReplies("NetAutoAdaptEncode", sizeof(CFG_NET_AUTO_ADAPT_ENCODE_INFO));
    TryReplies("FreeCombination", sizeof(Windows), false);
    TryReplies("TSPoint", sizeof(Touch));
    TryReplies("PowerUp", sizeof(CFG_POWER_UP_INFO));
    TryReplies("PtzDevice", sizeof(CFG_PTZ_DEVICE_INFO));
    TryReplies("SceneSnapShotWithRule", sizeof(Snaps));
}

} // namespace
} // namespace orrery::test
