// "FishEye", and what a camera's sensor can do.
#include "orrery/video_input.h"
#include "orrery/video_input_topics.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

using FishEyes = Records<CFG_FISHEYE_INFO>;
constexpr std::uint32_t kSize = sizeof(CFG_FISHEYE_INFO);

TEST(FishEye, ReadsAndWritesModesByName) {
    const FishEyes record(1, 0x11);
    ASSERT_EQ(ParseTable("FishEye",
                         R"({"Position":{"single":[{"WinID":1,"X":2,"Y":-3,"HorizontalAngle":4,"VerticalAngle":5},{}],)"
                         R"("Config":[{"WinID":6}],"Normal":7}})",
                         record),
              (Answer{1, kSize}));
    const CFG_FISHEYE_INFO read = record[0];
    EXPECT_EQ(read.nModeCount, 3u);
    EXPECT_EQ(read.stuModes[0].emMode, unsigned{CFG_FISHEYE_CONFIG}); // in the order of the names' bytes
    EXPECT_EQ(read.stuModes[0].nWindowCount, 1u);
    EXPECT_EQ(read.stuModes[0].stuWindows[0].nWinId, 6);
    EXPECT_EQ(read.stuModes[1].emMode, unsigned{CFG_FISHEYE_NORMAL});
    EXPECT_EQ(read.stuModes[1].nWindowCount, 0u);
    EXPECT_EQ(read.stuModes[2].emMode, unsigned{CFG_FISHEYE_SINGLE});
    EXPECT_EQ(read.stuModes[2].nWindowCount, 2u);
    const CFG_FISHEYE_WINDOW window = read.stuModes[2].stuWindows[0];
    EXPECT_EQ(window.nWinId, 1);
    EXPECT_EQ(window.nX, 2);
    EXPECT_EQ(window.nY, -3);
    EXPECT_EQ(window.nHorizontalAngle, 4);
    EXPECT_EQ(window.nVerticalAngle, 5);
    EXPECT_EQ(PackAll("FishEye", record),
              R"({ "Position" : { "Config" : [ { "HorizontalAngle" : 0, "VerticalAngle" : 0, "WinID" : 6, "X" : 0, )"
              R"("Y" : 0 } ], "Single" : [ { "HorizontalAngle" : 4, "VerticalAngle" : 5, "WinID" : 1, "X" : 2, )"
              R"("Y" : -3 }, { "HorizontalAngle" : 0, "VerticalAngle" : 0, "WinID" : 0, "X" : 0, "Y" : 0 } ] } })");
}

TEST(FishEye, KeepsModesThatItDoesNotKnow) {
    const FishEyes record(1, 0x11);
    ASSERT_EQ(ParseTable("FishEye", R"({"Position":{"Cube":[{"X":1}],"Sphere":null}})", record), (Answer{1, kSize}));
    EXPECT_EQ(record[0].nModeCount, 2u);
    EXPECT_EQ(record[0].stuModes[0].emMode, 0u);
    EXPECT_EQ(record[0].stuModes[0].stuWindows[0].nX, 1);
    EXPECT_EQ(record[0].stuModes[1].nWindowCount, 0u);
    const std::string text = PackAll("FishEye", record);
    EXPECT_EQ(text, R"({ "Position" : { "" : [ { "HorizontalAngle" : 0, "VerticalAngle" : 0, "WinID" : 0, "X" : 1, )"
                    R"("Y" : 0 } ] } })");
}

TEST(FishEye, LaysModesOfOneNameOverEachOther) {
    CFG_FISHEYE_INFO info{};
    info.nModeCount = 3;
    const std::uint32_t codes[] = {9, 4, 0xFFFFFFFF}; // two without a name
    for (int i = 0; i < 3; ++i) {
        info.stuModes[i].emMode = codes[i];
        info.stuModes[i].nWindowCount = i == 0 ? 3 : 1;
        for (int k = 0; k < 3; ++k)
            info.stuModes[i].stuWindows[k].nX = 10 * (i + 1) + k;
    }
    const auto window = [](int x) {
        return R"({ "HorizontalAngle" : 0, "VerticalAngle" : 0, "WinID" : 0, "X" : )" + std::to_string(x)
               + R"(, "Y" : 0 })";
    };
    EXPECT_EQ(Pack("FishEye", info), R"({ "Position" : { "" : [ )" + window(30) + ", " + window(11) + ", " + window(12)
                                         + R"( ], "DoublePanorama" : [ )" + window(20) + " ] } }");
}

TEST(FishEye, EndsListsAtTheirArrays) {
    std::string windows = R"({"X":1})";
    for (int i = 2; i <= 9; ++i)
        windows += R"(,{"X":)" + std::to_string(i) + "}";
    std::string table = R"({"Position":{"A":[)" + windows + "]";
    for (char name = 'B'; name <= 'I'; ++name)
        table += std::string(",\"") + name + R"(":[{"X":50}])";
    const FishEyes record(1, 0x11);
    ASSERT_EQ(ParseTable("FishEye", table + "}}", record), (Answer{1, kSize}));
    EXPECT_EQ(record[0].nModeCount, 8u);
    EXPECT_EQ(record[0].stuModes[0].nWindowCount, 8u);
    EXPECT_EQ(record[0].stuModes[0].stuWindows[7].nX, 8);
    EXPECT_EQ(record[0].stuModes[7].stuWindows[0].nX, 50);
    CFG_FISHEYE_INFO info{};
    for (std::uint32_t i = 0; i < 8; ++i)
        info.stuModes[i].emMode = i + 1;
    std::string before;
    for (const std::uint32_t count : {8u, 9u, 0xFFFFFFFFu}) {
        info.nModeCount = info.stuModes[7].nWindowCount = count;
        const std::string text = Pack("FishEye", info);
        EXPECT_EQ(text.substr(0, 29), R"({ "Position" : { "Normal" : [)") << count;
        EXPECT_TRUE(before.empty() || text == before);
        before = text;
    }
}

TEST(FishEye, TellsOneRecordWhateverCame) {
    for (const char* table :
         {"null", "[]", "{}", "7", "\"x\"", R"({"Position":null})", R"({"Position":[1]})", "[null]"}) {
        const FishEyes records(2, 0x11);
        EXPECT_EQ(ParseTable("FishEye", table, records), (Answer{1, kSize})) << table;
        EXPECT_TRUE(records.isAll(0)) << table;
        EXPECT_EQ(PackAll("FishEye", FishEyes(1)), "null");
    }
    const FishEyes records(2, 7, 0x11);
    const std::string one = R"({"Position":{"Single":[{"X":1}]}})";
    EXPECT_EQ(ParseTable("FishEye", "[" + one + "," + one + "," + one + "]", records), (Answer{1, kSize}));
    EXPECT_EQ(records[1].stuModes[0].stuWindows[0].nX, 1);
    const std::string text = R"({ "Position" : { "Single" : [ { "HorizontalAngle" : 0, "VerticalAngle" : 0, )"
                             R"("WinID" : 0, "X" : 1, "Y" : 0 } ] } })";
    EXPECT_EQ(PackAll("FishEye", records), "[ " + text + ", " + text + " ]");
    EXPECT_EQ(PackBytes("FishEye", records.data(), kSize, text.size() + 1), text + "\n");
    EXPECT_EQ(PackBytes("FishEye", records.data(), kSize, text.size()), kFailed);
    const FishEyes refused(1, 0x11);
    EXPECT_EQ(ParseDocument("FishEye", R"({"result":false,"params":{"table":)" + one + "}}", refused),
              (Answer{1, kSize}));
    EXPECT_EQ(refused[0].nModeCount, 1u);
    const FishEyes broken(1, 0x11);
    EXPECT_EQ(ParseDocument("FishEye", "{", broken), kRefused);
    EXPECT_TRUE(broken.isAll(0));
}

// ---- Capabilities ----

template <class R>
Parsed<R> Caps(const char* command, const std::string& caps, const char* result = R"("result":true,)") {
    return ParseDocument<R>(command, "{" + std::string(result) + R"("params":{"caps":)" + caps + "}}");
}

TEST(VideoInCaps, ReadsEveryKey) {
    const auto caps = Caps<CFG_VIDEOIN_CAPS>("devVideoInput.getCaps",
                                             R"({"MeteringRegionCount":1,"FishEye":2,"ElectricFocus":3,)"
                                             R"("ExposureMode":4,"WideDynamicRange":5,"GlareInhibition":-6})");
    ASSERT_TRUE(caps);
    EXPECT_EQ(caps.length, sizeof(CFG_VIDEOIN_CAPS));
    EXPECT_EQ(caps->nMeteringRegionCount, 1);
    EXPECT_EQ(caps->nFishEye, 2);
    EXPECT_EQ(caps->nElectricFocus, 3);
    EXPECT_EQ(caps->nExposureMode, 4);
    EXPECT_EQ(caps->nWideDynamicRange, 5);
    EXPECT_EQ(caps->nGlareInhibition, -6);
}

TEST(VideoInCaps, TakesAReplyWithoutResult) {
    const auto without = Caps<CFG_VIDEOIN_CAPS>("devVideoInput.getCaps", R"({"FishEye":2})", "");
    EXPECT_TRUE(without);
    EXPECT_EQ(without->nFishEye, 2);
    const auto refused = Caps<CFG_VIDEOIN_CAPS>("devVideoInput.getCaps", R"({"FishEye":2})", "\"result\":false,");
    EXPECT_FALSE(refused);
    EXPECT_TRUE(refused.isCleared());
    const auto empty = ParseDocument<CFG_VIDEOIN_CAPS>("devVideoInput.getCaps", "{}");
    EXPECT_TRUE(empty);
    EXPECT_EQ(empty.length, sizeof(CFG_VIDEOIN_CAPS));
    EXPECT_TRUE(empty.isCleared());
}

constexpr const char* kEx = "devVideoInput.getCapsEx";

TEST(VideoInCapsEx, ReadsEveryBlock) {
    EXPECT_EQ(sizeof(CFG_VIDEOIN_CAPS_EX), 14u * 4);
    const auto caps = Caps<CFG_VIDEOIN_CAPS_EX>(
        kEx, R"({"Defog":{"Support":true},"ABFFunction":{"Support":1},"ImageStabilization":{"Support":"x"},)"
             R"("KillShutLine":{"Support":true,"MinKillShutLine":2,"MaxKillShutLine":3},)"
             R"("VideoInColor":{"Support":true,"Brightness":true,"Contrast":1,"Saturation":"y","Hue":false},)"
             R"("VideoInFocus":{"Support":true},"LightingControl":{"Support":true}})");
    ASSERT_TRUE(caps);
    EXPECT_EQ(caps.length, sizeof(CFG_VIDEOIN_CAPS_EX));
    const CFG_VIDEOIN_CAPS_EX expected{1, 1, 1, 1, 3, 2, 1, 1, 1, 1, 0, 1, 1, 0};
    EXPECT_EQ(std::memcmp(caps.record.get(), &expected, sizeof expected), 0);
    const char* const blocks[] = {"Defog",        "ABFFunction",  "ImageStabilization", "KillShutLine",
                                  "VideoInColor", "VideoInFocus", "LightingControl"};
    const std::size_t places[] = {0, 1, 2, 3, 6, 11, 12};
    for (std::size_t i = 0; i < 7; ++i) {
        const auto one = Caps<CFG_VIDEOIN_CAPS_EX>(kEx, "{\"" + std::string(blocks[i]) + R"(":{"Support":true}})");
        std::uint32_t words[14];
        std::memcpy(words, one.record.get(), sizeof words);
        for (std::size_t word = 0; word < 14; ++word)
            EXPECT_EQ(words[word], word == places[i] ? 1u : 0u) << blocks[i] << word;
    }
}

TEST(VideoInCapsEx, ReadsColorsOnlyWhenTheyAreSupported) {
    for (const char* support : {"false", "1", "\"true\"", "null", "{}"}) {
        const auto caps = Caps<CFG_VIDEOIN_CAPS_EX>(kEx, R"({"VideoInColor":{"Support":)" + std::string(support)
                                                             + R"(,"Brightness":true,"Contrast":true,)"
                                                               R"("Saturation":true,"Hue":true}})");
        EXPECT_EQ(caps->bBrightness, 0u) << support;
        EXPECT_EQ(caps->bContrast, 0u) << support;
        EXPECT_EQ(caps->bSaturation, 0u) << support;
        EXPECT_EQ(caps->bHue, 0u) << support;
    }
    const auto lines = Caps<CFG_VIDEOIN_CAPS_EX>(kEx, R"({"KillShutLine":{"MaxKillShutLine":9,"MinKillShutLine":8}})");
    EXPECT_EQ(lines->bKillShutLine, 0u);
    EXPECT_EQ(lines->nMaxKillShutLine, 9u);
    EXPECT_EQ(lines->nMinKillShutLine, 8u);
    EXPECT_TRUE(Caps<CFG_VIDEOIN_CAPS_EX>(kEx, "null"));
    EXPECT_FALSE(Caps<CFG_VIDEOIN_CAPS_EX>(kEx, "{}", ""));
}

TEST(FocusStatus, ReadsEveryKey) {
    const auto parse = [](const std::string& status, const char* result = "true") {
        return ParseDocument<CFG_FOCUS_STATUS>("devVideoInput.getFocusStatus", R"({"result":)" + std::string(result)
                                                                                   + R"(,"params":{"status":)" + status
                                                                                   + "}}");
    };
    const auto read = parse(R"({"AutofocusPeak":5,"Focus":0.25,"Zoom":0.75,"Status":"AutoFocus"})");
    ASSERT_TRUE(read);
    EXPECT_EQ(read.length, sizeof(CFG_FOCUS_STATUS));
    EXPECT_EQ(read->nAutofocusPeak, 5);
    EXPECT_EQ(read->dFocus, 0.25);
    EXPECT_EQ(read->dZoom, 0.75);
    EXPECT_EQ(read->emStatus, CFG_FOCUS_AUTOFOCUS);
    EXPECT_EQ(parse(R"({"Status":"Normal"})")->emStatus, 0);
    EXPECT_EQ(parse(R"({"Status":"Moving"})")->emStatus, 0);
    EXPECT_FALSE(parse("null"));
    EXPECT_FALSE(parse("{}", "false"));
    EXPECT_TRUE(parse("null").isCleared());
}

} // namespace
} // namespace orrery::test
