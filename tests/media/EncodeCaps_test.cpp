// What encoders and overlays can do.
#include "orrery/encode_caps.h"
#include "support/Call.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <utility>

namespace orrery::test {
namespace {

template <class R>
Parsed<R> Caps(const char* command, const std::string& caps, const std::string& result = "true") {
    return ParseDocument<R>(command, R"({"result":)" + result + R"(,"params":{"caps":)" + caps + "}}");
}

std::string Times(int count, const std::string& element) {
    std::string list = "[";
    for (int i = 0; i < count; ++i)
        list += (i > 0 ? "," : "") + element;
    return list + "]";
}

// ---- "encode.getCaps" ----------------------------------------------------------------------------------------------

constexpr const char* kCaps = "encode.getCaps";

TEST(EncodeCaps, ReadsAsManyDevicesAsThereAreMembers) {
    const auto caps =
        Caps<CFG_ENCODE_CAPS>(kCaps, R"({"VideoEncodeDevices":[{"MaxCIFPFrameSize":1,"MinCIFPFrameSize":2},
        {"MaxCIFPFrameSize":3,"MinCIFPFrameSize":4},{"MaxCIFPFrameSize":5},{"MaxCIFPFrameSize":7}],
        "PreviewMode":"SplitEncode","PreviewSplitNumList":[1,4,9]})");
    ASSERT_TRUE(caps);
    EXPECT_EQ(caps.length, sizeof(CFG_ENCODE_CAPS));
    EXPECT_EQ(caps->nDeviceCount, 3u);
    EXPECT_EQ(caps->stuDevices[0].nMaxCifPFrameSize, 1);
    EXPECT_EQ(caps->stuDevices[0].nMinCifPFrameSize, 2);
    EXPECT_EQ(caps->stuDevices[1].nMinCifPFrameSize, 4);
    EXPECT_EQ(caps->stuDevices[2].nMaxCifPFrameSize, 5);
    EXPECT_EQ(caps->stuDevices[3].nMaxCifPFrameSize, 0); // one more than the members of "caps"
    EXPECT_EQ(caps->emPreviewMode, 2);
    EXPECT_EQ(caps->nSplitCount, 3);
    EXPECT_EQ(caps->nPreviewSplitNum[2], 9);
}

TEST(EncodeCaps, CountsAtMost256MembersAndEightSplits) {
    for (const int members : {255, 256, 257}) {
        std::string text = R"({"VideoEncodeDevices":)" + Times(300, R"({"MaxCIFPFrameSize":6})");
        for (int i = 1; i < members; ++i)
            text += ",\"m" + std::to_string(i) + "\":0";
        const auto caps = Caps<CFG_ENCODE_CAPS>(kCaps, text + "}");
        EXPECT_EQ(caps->nDeviceCount, members < 256 ? 255u : 256u);
        EXPECT_EQ(caps->stuDevices[254].nMaxCifPFrameSize, 6);
        EXPECT_EQ(caps->stuDevices[255].nMaxCifPFrameSize, members < 256 ? 0 : 6);
    }
    for (const int splits : {8, 9}) {
        const auto caps = Caps<CFG_ENCODE_CAPS>(kCaps, R"({"PreviewSplitNumList":)" + Times(splits, "16") + "}");
        EXPECT_EQ(caps->nSplitCount, 8);
        EXPECT_EQ(caps->nPreviewSplitNum[7], 16);
    }
}

TEST(EncodeCaps, WithoutAListOfSplitsThereIsOneOfMinusOne) {
    for (const char* none : {"{}", R"({"PreviewSplitNumList":null})", R"({"PreviewSplitNumList":4})",
                             R"({"PreviewSplitNumList":{"a":1}})", "null", "7"}) {
        const auto caps = Caps<CFG_ENCODE_CAPS>(kCaps, none);
        ASSERT_TRUE(caps) << none;
        EXPECT_EQ(caps->nSplitCount, 1) << none;
        EXPECT_EQ(caps->nPreviewSplitNum[0], -1) << none;
        EXPECT_EQ(caps->nPreviewSplitNum[1], 0) << none;
    }
    const auto empty = Caps<CFG_ENCODE_CAPS>(kCaps, R"({"PreviewSplitNumList":[]})");
    EXPECT_EQ(empty->nSplitCount, 0);
    EXPECT_EQ(empty->nPreviewSplitNum[0], 0);
}

TEST(EncodeCaps, IsReadAlsoOfARefusedCall) {
    EXPECT_EQ(Caps<CFG_ENCODE_CAPS>(kCaps, R"({"PreviewMode":"snapshot"})", "false")->emPreviewMode, 1);
    EXPECT_FALSE(ParseDocument<CFG_ENCODE_CAPS>(kCaps, "{"));
}

TEST(EncodeCaps, PreviewModesFold) {
    const auto modeOf = [](const std::string& text) {
        return Caps<CFG_ENCODE_CAPS>(kCaps, R"({"PreviewMode":")" + text + "\"}")->emPreviewMode;
    };
    EXPECT_EQ(modeOf(""), 0);
    EXPECT_EQ(modeOf("snapshot"), 1);
    EXPECT_EQ(modeOf("SPLITENCODE"), 2);
    EXPECT_EQ(modeOf("SplitSnap"), 3);
    EXPECT_EQ(modeOf("Split"), 0);
}

// ---- "encode.getNAACaps", "encode.getCropCaps"
// -----------------------------------------------------------------------

TEST(EncodeNaaCaps, ReadsAPairForEachElementOfTheFirstList) {
    EXPECT_EQ(sizeof(CFG_ENCODE_NAA_CAPS), (8u + 4 * 2) * 4);
    const auto caps = Caps<CFG_ENCODE_NAA_CAPS>(
        "encode.getNAACaps", R"({"MainIPSmooth":[1,99],"ExtraAdapt":[2,3],"ExtraIPSmooth":[4,5,6]})");
    ASSERT_TRUE(caps);
    EXPECT_EQ(caps->nMainIpSmooth, 1);
    EXPECT_EQ(caps->stuExtra[0].nExtraAdapt, 2);
    EXPECT_EQ(caps->stuExtra[0].nExtraIpSmooth, 4);
    EXPECT_EQ(caps->stuExtra[1].nExtraAdapt, 3);
    EXPECT_EQ(caps->stuExtra[1].nExtraIpSmooth, 5);
    EXPECT_EQ(caps->stuExtra[2].nExtraIpSmooth, 0);
    const auto five =
        Caps<CFG_ENCODE_NAA_CAPS>("encode.getNAACaps", R"({"ExtraAdapt":[1,2,3,4,5],"ExtraIPSmooth":[6]})");
    EXPECT_EQ(five->stuExtra[3].nExtraAdapt, 4);
    EXPECT_EQ(five->stuExtra[0].nExtraIpSmooth, 6);
    EXPECT_EQ(five->stuExtra[1].nExtraIpSmooth, 0);
    const auto odd = Caps<CFG_ENCODE_NAA_CAPS>("encode.getNAACaps",
                                               R"({"MainIPSmooth":7,"ExtraAdapt":{"a":1},"ExtraIPSmooth":[6]})");
    EXPECT_TRUE(odd.isCleared());
    EXPECT_TRUE(Caps<CFG_ENCODE_NAA_CAPS>("encode.getNAACaps", "null"));
    EXPECT_FALSE(Caps<CFG_ENCODE_NAA_CAPS>("encode.getNAACaps", "{}", "false"));
    EXPECT_TRUE(Caps<CFG_ENCODE_NAA_CAPS>("encode.getNAACaps", "{}", "1"));
}

TEST(EncodeCropCaps, NeedsTheValueTrue) {
    const auto caps =
        Caps<CFG_ENCODE_CROP_CAPS>("encode.getCropCaps", R"({"Extra1":{"Support":true},"Extra2":{"Support":2}})");
    ASSERT_TRUE(caps);
    EXPECT_EQ(caps->nExtra1, 1);
    EXPECT_EQ(caps->nExtra2, 2);
    for (const char* result : {"false", "1", "\"true\"", "null"})
        EXPECT_FALSE(Caps<CFG_ENCODE_CROP_CAPS>("encode.getCropCaps", "{}", result)) << result;
    EXPECT_TRUE(Caps<CFG_ENCODE_CROP_CAPS>("encode.getCropCaps", R"({"Extra1":{"Support":null}})").isCleared());
}

// ---- Overlays ------------------------------------------------------------------------------------------------------

TEST(OsdCaps, ReadsEachKeyOfEachBlock) {
    const auto caps = Caps<CFG_OSD_CAPS>("OSDManager.getCaps", R"({"OSDLineSpacing":{"Support":true},
        "OSDSysAbnormal":{"Support":true,"NetAbort":true,"IPConflict":true,"VoltageStatus":true,"SDHotPlug":true,
            "SDLowSpace":true,"SDFailure":true,"Destroy":true,"OutputPowerStatus":{"Overcurrent":true}},
        "OSDPtzTaskName":{"Support":true},"OSDPicture":{"MaxSize":1,"MaxWidth":2,"MaxHeight":3}})");
    ASSERT_TRUE(caps);
    for (int i = 0; i < 11; ++i)
        EXPECT_EQ(reinterpret_cast<const int32_t*>(&*caps)[i], 1) << i;
    EXPECT_EQ(caps->nMaxSize, 1);
    EXPECT_EQ(caps->nMaxWidth, 2);
    EXPECT_EQ(caps->nMaxHeight, 3);
}

TEST(OsdCaps, EachKeyHasItsPlace) {
    const std::pair<const char*, int> places[] = {
        {R"({"OSDLineSpacing":{"Support":true}})", 0},
        {R"({"OSDSysAbnormal":{"Support":true}})", 1},
        {R"({"OSDSysAbnormal":{"NetAbort":true}})", 2},
        {R"({"OSDSysAbnormal":{"IPConflict":true}})", 3},
        {R"({"OSDSysAbnormal":{"VoltageStatus":true}})", 4},
        {R"({"OSDSysAbnormal":{"SDHotPlug":true}})", 5},
        {R"({"OSDSysAbnormal":{"SDLowSpace":true}})", 6},
        {R"({"OSDSysAbnormal":{"SDFailure":true}})", 7},
        {R"({"OSDSysAbnormal":{"Destroy":true}})", 8},
        {R"({"OSDSysAbnormal":{"OutputPowerStatus":{"Overcurrent":true}}})", 9},
        {R"({"OSDPtzTaskName":{"Support":true}})", 10},
    };
    for (const auto& [text, place] : places) {
        const auto caps = Caps<CFG_OSD_CAPS>("OSDManager.getCaps", text);
        for (int i = 0; i < 14; ++i)
            EXPECT_EQ(reinterpret_cast<const int32_t*>(&*caps)[i], i == place) << text << i;
    }
    EXPECT_FALSE(Caps<CFG_OSD_CAPS>("OSDManager.getCaps", "{}", "false"));
    EXPECT_FALSE(ParseDocument<CFG_OSD_CAPS>("OSDManager.getCaps", R"({"params":{"caps":{}}})"));
    EXPECT_TRUE(Caps<CFG_OSD_CAPS>("OSDManager.getCaps", "null").isCleared());
}

TEST(OsdCustomCaps, ReadsTheGeography) {
    EXPECT_EQ(sizeof(CFG_OSD_CUSTOM_CAPS), 16u);
    const auto caps =
        Caps<CFG_OSD_CUSTOM_CAPS>("OSDManager.getCustomCaps", R"({"Geography":{"Support":true,"TitleLine":5}})");
    ASSERT_TRUE(caps);
    EXPECT_EQ(caps->dwReserved, 0u);
    EXPECT_EQ(caps->bGeography, 1u);
    EXPECT_EQ(caps->dwReservedTitle, 0u);
    EXPECT_EQ(caps->nTitleLine, 5);
    EXPECT_FALSE(Caps<CFG_OSD_CUSTOM_CAPS>("OSDManager.getCustomCaps", "{}", "false"));
    EXPECT_FALSE(ParseDocument<CFG_OSD_CUSTOM_CAPS>("OSDManager.getCustomCaps", R"({"params":{"caps":{}}})"));
}

// ---- "DspEncodeCap" ------------------------------------------------------------------------------------------------

Parsed<CFG_DSP_ENCODE_CAP> Dsp(const std::string& cap, const std::string& top = "") {
    return ParseDocument<CFG_DSP_ENCODE_CAP>("DspEncodeCap", "{" + top + R"("DspEncodeCap":)" + cap + "}");
}

TEST(DspEncodeCap, ReadsAllKeys) {
    const auto cap = Dsp(R"({"VideoStandardMask":1,"ImageSizeMask":2,"EncodeModeMask":4294967295,"StreamCap":4,
        "ImageSizeMask_Assi":[5,6],"MaxEncodePower":7,"MaxSupportChannel":8,"ChannelMaxSetSync":9,"ImageSize":[10,11],
        "ImageSize_Assi":[[12,13],[],[14]],"MaxFrameOfImageSize":[15],"Resolution":[16,17],"Resolution_1":[18],
        "EncodeCap":true,"ResolutionNum":2,"ResolutionNum_1":1})",
                         R"("result":false,)");
    ASSERT_TRUE(cap);
    EXPECT_EQ(cap.length, sizeof(CFG_DSP_ENCODE_CAP));
    EXPECT_EQ(cap->dwVideoStandardMask, 1u);
    EXPECT_EQ(cap->dwImageSizeMask, 2u);
    EXPECT_EQ(cap->dwEncodeModeMask, 4294967295u);
    EXPECT_EQ(cap->dwStreamCap, 4u);
    EXPECT_EQ(cap->dwImageSizeMaskAssi[1], 6u);
    EXPECT_EQ(cap->dwMaxEncodePower, 7u);
    EXPECT_EQ(cap->nMaxSupportChannel, 8);
    EXPECT_EQ(cap->nChannelMaxSetSync, 9);
    EXPECT_EQ(cap->byImageSize[1], 11);
    EXPECT_EQ(cap->byImageSize[2], 0xFF);
    EXPECT_EQ(cap->byImageSizeAssi[0][1], 13);
    EXPECT_EQ(cap->byImageSizeAssi[0][2], 0xFF);
    EXPECT_EQ(cap->byImageSizeAssi[1][0], 0xFF);
    EXPECT_EQ(cap->byImageSizeAssi[2][0], 14);
    EXPECT_EQ(cap->nMaxFrameOfImageSize[0], 15);
    EXPECT_EQ(cap->nResolution[1], 17);
    EXPECT_EQ(cap->nResolution1[0], 18);
    EXPECT_EQ(cap->bEncodeCap, 1u);
    EXPECT_EQ(cap->nResolutionNum, 2);
    EXPECT_EQ(cap->nResolutionNum1, 1);
}

TEST(DspEncodeCap, WithoutSizesTheMasksTell) {
    const auto cap = Dsp(R"({"ImageSizeMask":5,"ImageSizeMask_Assi":[3,0,1],"ImageSize_Assi":[[77]]})");
    EXPECT_EQ(cap->byImageSize[0], 0);
    EXPECT_EQ(cap->byImageSize[1], 2);
    EXPECT_EQ(cap->byImageSize[2], 0xFF);
    EXPECT_EQ(cap->byImageSizeAssi[0][0], 0);
    EXPECT_EQ(cap->byImageSizeAssi[0][1], 1);
    EXPECT_EQ(cap->byImageSizeAssi[0][2], 0xFF);
    EXPECT_EQ(cap->byImageSizeAssi[1][0], 0);
    EXPECT_EQ(cap->byImageSizeAssi[1][1], 0xFF);
    EXPECT_EQ(cap->byImageSizeAssi[2][0], 0xFF);
    const auto all = Dsp(R"({"ImageSizeMask":4294967295,"ImageSizeMask_Assi":)" + Times(33, "2147483648") + "}");
    EXPECT_EQ(all->byImageSize[31], 31);
    EXPECT_EQ(all->byImageSize[32], 0xFF);
    EXPECT_EQ(all->byImageSizeAssi[31][0], 31);
}

TEST(DspEncodeCap, WithoutAnythingTheListsEndAtOnce) {
    for (const char* document : {"{}", R"({"DspEncodeCap":null})", R"({"DspEncodeCap":{}})", R"({"DspEncodeCap":7})",
                                 R"({"DspEncodeCap":{"ImageSize":7,"ImageSize_Assi":[[1]]}})"}) {
        const auto cap = ParseDocument<CFG_DSP_ENCODE_CAP>("DspEncodeCap", document);
        ASSERT_TRUE(cap) << document;
        EXPECT_EQ(cap.length, sizeof(CFG_DSP_ENCODE_CAP)) << document;
        EXPECT_EQ(cap->byImageSize[0], 0xFF) << document;
        EXPECT_EQ(cap->byImageSize[255], 0xFF) << document;
        EXPECT_EQ(cap->byImageSizeAssi[255][255], 0xFF) << document;
        EXPECT_EQ(cap->nResolution[0], 0) << document;
    }
}

// The lists of sizes are cleared only when nothing is read; what is behind the record, always.
TEST(DspEncodeCap, AFailedCallLeavesAClearBuffer) {
    constexpr std::size_t kMore = 24;
    Records<CFG_DSP_ENCODE_CAP> failed(1, kMore, 0xCD);
    EXPECT_EQ(
        CLIENT_ParseData("DspEncodeCap", R"({"DspEncodeCap":{"ImageSize":[1]})", failed.data(), failed.size(), nullptr),
        0);
    EXPECT_TRUE(failed.isAll(0));
    Records<CFG_DSP_ENCODE_CAP> read(1, kMore, 0xCD);
    EXPECT_EQ(
        CLIENT_ParseData("DspEncodeCap", R"({"DspEncodeCap":{"ImageSize":[1]}})", read.data(), read.size(), nullptr),
        1);
    EXPECT_EQ(read[0].byImageSize[0], 1);
    EXPECT_EQ(read[0].dwImageSizeMask, 0u);
    for (std::size_t i = 0; i < kMore; ++i)
        EXPECT_EQ(read.data()[sizeof(CFG_DSP_ENCODE_CAP) + i], 0);
}

TEST(DspEncodeCap, ListsEndAtTheirArrays) {
    const std::string many = Times(257, "4");
    const auto cap =
        Dsp(R"({"ImageSize":)" + many + R"(,"ImageSize_Assi":)" + Times(257, many) + R"(,"Resolution":)" + many
            + R"(,"Resolution_1":)" + many + R"(,"MaxFrameOfImageSize":)" + many + R"(,"EncodeCap":true})");
    ASSERT_TRUE(cap);
    EXPECT_EQ(cap->byImageSize[255], 4);
    EXPECT_EQ(cap->byImageSizeAssi[255][255], 4);
    EXPECT_EQ(cap->nMaxFrameOfImageSize[255], 4);
    EXPECT_EQ(cap->nResolution[255], 4);
    EXPECT_EQ(cap->nResolution1[255], 4);
    EXPECT_EQ(cap->bEncodeCap, 1u);
}

std::string Numbers(int count, const std::string& first) {
    std::string list = "[ " + first;
    for (int i = 1; i < count; ++i)
        list += ", 0";
    return list + " ]";
}

TEST(DspEncodeCap, WritesListsUpToTheirEnds) {
    auto cap = std::make_unique<CFG_DSP_ENCODE_CAP>();
    cap->dwVideoStandardMask = 1;
    cap->dwImageSizeMask = 2;
    cap->dwEncodeModeMask = 3;
    cap->dwStreamCap = 4294967295u;
    cap->dwImageSizeMaskAssi[0] = 5;
    cap->dwMaxEncodePower = 6;
    cap->nMaxSupportChannel = 7;
    cap->nChannelMaxSetSync = 8;
    std::memset(cap->byImageSize, 0xFF, sizeof cap->byImageSize);
    std::memset(cap->byImageSizeAssi, 0xFF, sizeof cap->byImageSizeAssi);
    cap->byImageSize[0] = 9;
    cap->byImageSize[1] = 10;
    cap->byImageSize[2] = 254;
    cap->byImageSizeAssi[1][0] = 11;
    cap->byImageSizeAssi[1][1] = 12;
    cap->byImageSizeAssi[3][0] = 13; // behind the last size
    cap->nMaxFrameOfImageSize[0] = 14;
    cap->nResolution[0] = 15;
    cap->nResolution1[0] = 16;
    cap->bEncodeCap = 17;
    cap->nResolutionNum = 18;
    cap->nResolutionNum1 = 19;
    const auto text = [&](const std::string& sizes) {
        return R"({ "DspEncodeCap" : { "ChannelMaxSetSync" : 8, "EncodeCap" : true, "EncodeModeMask" : 3, )" + sizes
               + R"(, "MaxEncodePower" : 6, "MaxFrameOfImageSize" : )" + Numbers(256, "14")
               + R"(, "MaxSupportChannel" : 7, "Resolution" : )" + Numbers(256, "15")
               + R"(, "ResolutionNum" : 18, "ResolutionNum_1" : 19, "Resolution_1" : )" + Numbers(256, "16")
               + R"(, "StreamCap" : 4294967295, "VideoStandardMask" : 1 } })";
    };
    const std::string masks = R"("ImageSizeMask" : 2, "ImageSizeMask_Assi" : )" + Numbers(32, "5");
    EXPECT_EQ(Pack("DspEncodeCap", *cap),
              text(R"("ImageSize" : [ 9, 10, 254 ], )" + masks + R"(, "ImageSize_Assi" : [ null, [ 11, 12 ] ])"));
    cap->byImageSize[0] = 0xFF;
    EXPECT_EQ(Pack("DspEncodeCap", *cap), text(masks));
}

} // namespace
} // namespace orrery::test
