// Single pictures, the water mark, regions of interest.
#include "orrery/overlay.h"
#include "support/Call.h"

#include <gtest/gtest.h>

#include <string>

namespace orrery::test {
namespace {

// ---- "SnapInfo" ----------------------------------------------------------------------------------------------------

std::string Snap(const std::string& size, const std::string& fps, const std::string& mode, const std::string& format,
                 const std::string& quality, const std::string& more = "") {
    return R"({"SnapInfo":{)" + more + R"("Size":)" + size + R"(,"FPS":)" + fps + R"(,"Mode":)" + mode + R"(,"Format":)"
           + format + R"(,"Quality":)" + quality + "}}";
}
Parsed<CFG_SNAP_INFO> ParseSnap(const std::string& document) {
    return ParseDocument<CFG_SNAP_INFO>("SnapInfo", document);
}

TEST(SnapInfo, ListsAreTextsOfNumbers) {
    const auto snap = ParseSnap(Snap("\"1: 2 :3\"", "\"25:-5\"", "\"0:3\"", "\"1:33\"", "\"6\"", R"("Chn":1,)"));
    ASSERT_TRUE(snap);
    EXPECT_EQ(snap.length, sizeof(CFG_SNAP_INFO));
    EXPECT_EQ(snap->nChannel, 0);
    EXPECT_EQ(snap->nSizeCount, 3);
    EXPECT_EQ(snap->nSizes[0], 1);
    EXPECT_EQ(snap->nSizes[1], 2);
    EXPECT_EQ(snap->nSizes[2], 3);
    EXPECT_EQ(snap->nFpsCount, 2);
    EXPECT_EQ(snap->nFps[1], -5);
    EXPECT_EQ(snap->dwModeMask, 9u);
    EXPECT_EQ(snap->dwFormatMask, 2u); // 33 is bit 1 again
    EXPECT_EQ(snap->nQualityCount, 1);
    EXPECT_EQ(snap->nQualities[0], 6);
}

TEST(SnapInfo, AListThatCannotBeSplitFailsTheCall) {
    const std::string good = "\"1\"";
    ASSERT_TRUE(ParseSnap(Snap(good, good, good, good, good)));
    for (const char* bad : {"\"\"", "5", "null", "[1]"}) {
        EXPECT_FALSE(ParseSnap(Snap(bad, good, good, good, good))) << bad;
        EXPECT_FALSE(ParseSnap(Snap(good, bad, good, good, good))) << bad;
        EXPECT_FALSE(ParseSnap(Snap(good, good, bad, good, good))) << bad;
        EXPECT_FALSE(ParseSnap(Snap(good, good, good, bad, good))) << bad;
        EXPECT_FALSE(ParseSnap(Snap(good, good, good, good, bad))) << bad;
    }
    for (const char* none : {"{}", R"({"SnapInfo":null})", R"({"SnapInfo":{}})", "["})
        EXPECT_FALSE(ParseSnap(none)) << none;
}

TEST(SnapInfo, ListsEndAtTheirArrays) {
    const auto numbers = [](int count) {
        std::string text = "\"7";
        for (int i = 1; i < count; ++i)
            text += ":7";
        return text + "\"";
    };
    for (const int more : {0, 1}) {
        const auto snap =
            ParseSnap(Snap(numbers(256 + more), numbers(1024 + more), "\"31\"", "\"-1\"", numbers(32 + more)));
        ASSERT_TRUE(snap);
        EXPECT_EQ(snap->nSizeCount, 256);
        EXPECT_EQ(snap->nSizes[255], 7);
        EXPECT_EQ(snap->nFpsCount, 1024);
        EXPECT_EQ(snap->nFps[1023], 7);
        EXPECT_EQ(snap->nQualityCount, 32);
        EXPECT_EQ(snap->nQualities[31], 7);
        EXPECT_EQ(snap->dwModeMask, 0x80000000u);
        EXPECT_EQ(snap->dwFormatMask, 0x80000000u);
    }
}

TEST(SnapInfo, ResultCountsWhenItIsThere) {
    const std::string members = Snap("\"1\"", "\"1\"", "\"1\"", "\"1\"", "\"1\"").substr(1);
    EXPECT_TRUE(ParseSnap("{" + members));
    EXPECT_TRUE(ParseSnap(R"({"result":true,)" + members));
    EXPECT_FALSE(ParseSnap(R"({"result":false,)" + members));
    EXPECT_EQ(ParseSnap("{" + members)->nChannel, 0); // without "Chn"
    char text[64] = "kept";
    const CFG_SNAP_INFO snap = {};
    EXPECT_EQ(CLIENT_PacketData("SnapInfo", &snap, sizeof snap, text, sizeof text), 0);
    EXPECT_STREQ(text, "kept");
}

// ---- "WaterMark" ---------------------------------------------------------------------------------------------------

TEST(WaterMark, ChannelsCountFromOneInTheText) {
    const auto mark = ParseDocument<CFG_WATERMARK_INFO>(
        "WaterMark", R"({"WaterMark":{"Chn":3,"En":1,"Stream":2,"Key":77,"String":"mine"}})");
    ASSERT_TRUE(mark);
    EXPECT_EQ(mark.length, sizeof(CFG_WATERMARK_INFO));
    EXPECT_EQ(mark->nChannel, 2);
    EXPECT_EQ(mark->nEnable, 1);
    EXPECT_EQ(mark->nStream, 2);
    EXPECT_EQ(mark->nKey, 77);
    EXPECT_STREQ(mark->szString, "mine");
    const std::string text =
        R"({ "WaterMark" : { "Chn" : 3, "En" : 1, "Key" : 77, "Stream" : 2, "String" : "mine" } })";
    EXPECT_EQ(Pack("WaterMark", *mark), text);
    EXPECT_EQ(PackBytes("WaterMark", &*mark, sizeof *mark, text.size() + 1), text); // its newline gives way
    EXPECT_EQ(PackBytes("WaterMark", &*mark, sizeof *mark, text.size()), kFailed);
    EXPECT_EQ(Pack("WaterMark", CFG_WATERMARK_INFO{}),
              R"({ "WaterMark" : { "Chn" : 1, "En" : 0, "Key" : 0, "Stream" : 0, "String" : "" } })");
}

TEST(WaterMark, AbsentKeysAndLongMarks) {
    const auto none = ParseDocument<CFG_WATERMARK_INFO>("WaterMark", R"({"result":true,"WaterMark":{}})");
    ASSERT_TRUE(none);
    EXPECT_TRUE(none.isCleared());
    const auto mark =
        ParseDocument<CFG_WATERMARK_INFO>("WaterMark", R"({"WaterMark":{"String":")" + std::string(5000, 'w') + "\"}}");
    EXPECT_EQ(std::string(mark->szString), std::string(4095, 'w'));
    for (const char* failing : {"{}", R"({"WaterMark":null})", R"({"result":false,"WaterMark":{"En":1}})", "nothing"})
        EXPECT_FALSE(ParseDocument<CFG_WATERMARK_INFO>("WaterMark", failing)) << failing;
    CFG_WATERMARK_INFO last = {};
    last.nChannel = INT32_MAX;
    EXPECT_EQ(Pack("WaterMark", last).substr(0, 37), R"({ "WaterMark" : { "Chn" : -2147483648)");
}

// ---- "VideoEncodeROI" ----------------------------------------------------------------------------------------------

TEST(VideoEncodeROI, GoesRoundWhole) {
    const auto roi = ParseDocument<CFG_VIDEO_ENCODE_ROI_INFO>(
        "VideoEncodeROI",
        R"({"result":false,"params":{"table":{"Regions":[[1,2,3,4],[5,6,-7,8]],"Quality":9,"Main":true,
        "Extra1":true,"Extra2":true,"Extra3":true,"Snapshot":true}}})");
    ASSERT_TRUE(roi);
    EXPECT_EQ(roi.length, sizeof(CFG_VIDEO_ENCODE_ROI_INFO));
    EXPECT_EQ(roi->nRegionCount, 2);
    EXPECT_EQ(roi->nRegions[0][3], 4);
    EXPECT_EQ(roi->nRegions[1][0], 5);
    EXPECT_EQ(roi->nRegions[1][2], 0);
    EXPECT_EQ(roi->nQuality, 9);
    EXPECT_EQ(roi->bMain + roi->bExtra1 + roi->bExtra2 + roi->bExtra3 + roi->bSnapshot, 5);
    EXPECT_EQ(Pack("VideoEncodeROI", *roi),
              R"({ "Extra1" : true, "Extra2" : true, "Extra3" : true, "Main" : true, "Quality" : 9, )"
              R"("Regions" : [ [ 1, 2, 3, 4 ], [ 5, 6, 0, 8 ] ], "Snapshot" : true })");
    EXPECT_EQ(Pack("VideoEncodeROI", CFG_VIDEO_ENCODE_ROI_INFO{}),
              R"({ "Extra1" : false, "Extra2" : false, "Extra3" : false, "Main" : false, "Quality" : 0, )"
              R"("Snapshot" : false })");
    EXPECT_FALSE(Parse<CFG_VIDEO_ENCODE_ROI_INFO>("VideoEncodeROI", "null"));
}

TEST(VideoEncodeROI, EachStreamHasItsPlace) {
    const char* const keys[] = {"Main", "Extra1", "Extra2", "Extra3", "Snapshot"};
    for (int i = 0; i < 5; ++i) {
        const auto roi = Parse<CFG_VIDEO_ENCODE_ROI_INFO>("VideoEncodeROI", "{\"" + std::string(keys[i]) + "\":true}");
        for (int k = 0; k < 5; ++k)
            EXPECT_EQ((&roi->bMain)[k], i == k) << keys[i];
    }
}

TEST(VideoEncodeROI, TellsTheDevicesCountAndHoldsEight) {
    for (const int regions : {7, 8, 9, 20}) {
        std::string list = "[[1,2,3,4]";
        for (int i = 1; i < regions; ++i)
            list += ",[5,6,7]";
        const auto roi =
            Parse<CFG_VIDEO_ENCODE_ROI_INFO>("VideoEncodeROI", R"({"Regions":)" + list + R"(],"Quality":3})");
        EXPECT_EQ(roi->nRegionCount, regions);
        EXPECT_EQ(roi->nRegions[6][2], 7);
        EXPECT_EQ(roi->nRegions[6][3], 0);
        EXPECT_EQ(roi->nQuality, 3);
        const std::string text = Pack("VideoEncodeROI", *roi);
        int written = 0;
        for (std::size_t at = 0; (at = text.find("[ 5", at)) != std::string::npos; ++at)
            ++written;
        EXPECT_EQ(written, std::min(regions, 8) - 1);
    }
}

} // namespace
} // namespace orrery::test
