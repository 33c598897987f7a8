#include "diagnosis/Lists.h"

#include <array>
#include <gtest/gtest.h>

namespace orrery::test {
namespace {

constexpr const char* kCommand = "VideoDiagnosisProfile";

// Memory for all tests of a profile.
struct Tests {
    CFG_DIAG_THRESHOLD dither{}, cover{}, unbalance{}, noise{}, blur{}, sceneChange{};
    CFG_DIAG_STRIATION striation{};
    CFG_DIAG_BASIC loss{}, frozen{};
    CFG_DIAG_RANGE brightness{}, contrast{};
    CFG_DIAG_ENABLE delay{}, moving{};
    CFG_DIAG_COUNT blackAndWhite{}, dramatic{};

    CFG_DIAGNOSIS_PROFILE Profile(const char* name = "") {
        CFG_DIAGNOSIS_PROFILE profile{};
        std::strcpy(profile.szName, name);
        profile.pstuVideoDither = &dither;
        profile.pstuVideoStriation = &striation;
        profile.pstuVideoLoss = &loss;
        profile.pstuVideoCover = &cover;
        profile.pstuVideoFrozen = &frozen;
        profile.pstuVideoBrightness = &brightness;
        profile.pstuVideoContrast = &contrast;
        profile.pstuVideoUnbalance = &unbalance;
        profile.pstuVideoNoise = &noise;
        profile.pstuVideoBlur = &blur;
        profile.pstuVideoSceneChange = &sceneChange;
        profile.pstuVideoDelay = &delay;
        profile.pstuPTZMoving = &moving;
        profile.pstuVideoBlackAndWhite = &blackAndWhite;
        profile.pstuVideoDramaticChange = &dramatic;
        return profile;
    }
};

// In the order in which keys are written.
const std::string kAll =
    R"({ "Day" : { "PTZMoving" : { "Enable" : true }, )"
    R"("VideoBlackAndWhite" : { "Enable" : true, "MinDuration" : 1, "Threshold1" : 300, "Threshold2" : -400 }, )"
    R"("VideoBlurDetection" : { "Enable" : true, "MinDuration" : 2, "Threshold1" : 3, "Threshold2" : 4 }, )"
    R"("VideoBrightnessDetection" : { "Enable" : true, "LowerThreshold1" : 5, "LowerThreshold2" : 6, )"
    R"("MinDuration" : 7, "UpperThreshold1" : 8, "UpperThreshold2" : 9 }, )"
    R"("VideoContrastDetection" : { "Enable" : true, "LowerThreshold1" : 10, "LowerThreshold2" : 11, )"
    R"("MinDuration" : 12, "UpperThreshold1" : 13, "UpperThreshold2" : 14 }, )"
    R"("VideoCoverDetection" : { "Enable" : true, "MinDuration" : 15, "Threshold1" : 16, "Threshold2" : 17 }, )"
    R"("VideoDelay" : { "Enable" : true }, )"
    R"("VideoDitherDetection" : { "Enable" : true, "MinDuration" : 18, "Threshold1" : 19, "Threshold2" : 20 }, )"
    R"("VideoDramaticChange" : { "Enable" : true, "MinDuration" : 21, "Threshold1" : 500, "Threshold2" : 600 }, )"
    R"("VideoFrozenDetection" : { "Enable" : true, "MinDuration" : 22 }, )"
    R"("VideoLossDetection" : { "Enable" : true, "MinDuration" : 23 }, )"
    R"("VideoNoiseDetection" : { "Enable" : true, "MinDuration" : 24, "Threshold1" : 25, "Threshold2" : 26 }, )"
    R"("VideoSceneChangeDetection" : { "Enable" : true, "MinDuration" : 27, "Threshold1" : 28, "Threshold2" : 29 }, )"
    R"("VideoStriationDetection" : { "Enable" : true, "MinDuration" : 30, "Threshold1" : 31, "Threshold2" : 32, )"
    R"("UVDetection" : true }, )"
    R"("VideoUnbalanceDetection" : { "Enable" : true, "MinDuration" : 33, "Threshold1" : 34, "Threshold2" : 255 } } })";

void ExpectThreshold(const CFG_DIAG_THRESHOLD& test, int duration, int first, int second) {
    EXPECT_EQ(test.bEnable, 1) << duration;
    EXPECT_EQ(test.nMinDuration, duration);
    EXPECT_EQ(test.byThreshold1, first);
    EXPECT_EQ(test.byThreshold2, second);
}

TEST(DiagnosisProfile, ReadsAndWritesAllKeys) {
    Tests tests;
    CFG_DIAGNOSIS_PROFILE profiles[2] = {tests.Profile(), {}};
    CFG_DIAGNOSIS_PROFILE_LIST list{2, 99, profiles};
    ASSERT_EQ(ReadList(kCommand, ReplyWith(kAll), list), kListRead);
    EXPECT_EQ(list.nMax, 2);
    EXPECT_EQ(list.nReturned, 1);
    EXPECT_STREQ(profiles[0].szName, "Day");
    EXPECT_EQ(tests.moving.bEnable, 1);
    EXPECT_EQ(tests.delay.bEnable, 1);
    EXPECT_EQ(tests.blackAndWhite.bEnable, 1);
    EXPECT_EQ(tests.blackAndWhite.nMinDuration, 1);
    EXPECT_EQ(tests.blackAndWhite.nThreshold1, 300);
    EXPECT_EQ(tests.blackAndWhite.nThreshold2, -400);
    ExpectThreshold(tests.blur, 2, 3, 4);
    EXPECT_EQ(tests.brightness.bEnable, 1);
    EXPECT_EQ(tests.brightness.byLowerThreshold1, 5);
    EXPECT_EQ(tests.brightness.byLowerThreshold2, 6);
    EXPECT_EQ(tests.brightness.nMinDuration, 7);
    EXPECT_EQ(tests.brightness.byUpperThreshold1, 8);
    EXPECT_EQ(tests.brightness.byUpperThreshold2, 9);
    EXPECT_EQ(tests.contrast.byLowerThreshold1, 10);
    EXPECT_EQ(tests.contrast.byLowerThreshold2, 11);
    EXPECT_EQ(tests.contrast.nMinDuration, 12);
    EXPECT_EQ(tests.contrast.byUpperThreshold1, 13);
    EXPECT_EQ(tests.contrast.byUpperThreshold2, 14);
    ExpectThreshold(tests.cover, 15, 16, 17);
    ExpectThreshold(tests.dither, 18, 19, 20);
    EXPECT_EQ(tests.dramatic.nMinDuration, 21);
    EXPECT_EQ(tests.dramatic.nThreshold1, 500);
    EXPECT_EQ(tests.dramatic.nThreshold2, 600);
    EXPECT_EQ(tests.frozen.nMinDuration, 22);
    EXPECT_EQ(tests.loss.nMinDuration, 23);
    ExpectThreshold(tests.noise, 24, 25, 26);
    ExpectThreshold(tests.sceneChange, 27, 28, 29);
    EXPECT_EQ(tests.striation.bEnable, 1);
    EXPECT_EQ(tests.striation.nMinDuration, 30);
    EXPECT_EQ(tests.striation.byThreshold1, 31);
    EXPECT_EQ(tests.striation.byThreshold2, 32);
    EXPECT_EQ(tests.striation.bUVDetection, 1);
    ExpectThreshold(tests.unbalance, 33, 34, 255);
    EXPECT_EQ(TextOf(kCommand, list), kAll);
}

TEST(DiagnosisProfile, MorePartsThanRoomFailWithNothingRead) {
    const std::string five =
        R"({ "a" : null, "b" : 1, "c" : { "VideoDelay" : { "Enable" : true } }, "d" : {}, "e" : {} })";
    for (const std::int32_t room : {4, 5}) {
        Tests tests;
        std::vector<CFG_DIAGNOSIS_PROFILE> profiles(5, tests.Profile("before"));
        CFG_DIAGNOSIS_PROFILE_LIST list{room, 99, profiles.data()};
        EXPECT_EQ(ReadList(kCommand, ReplyWith(five), list), room == 5 ? kListRead : kRefused);
        EXPECT_EQ(list.nReturned, room == 5 ? 5 : 99);
        EXPECT_EQ(tests.delay.bEnable, room == 5);
        for (std::size_t i = 0; i < 5; ++i)
            EXPECT_EQ(std::string(profiles[i].szName), room == 5 ? std::string(1, "abcde"[i]) : "before");
    }
}

TEST(DiagnosisProfile, ATestWithoutMemoryIsLeftOutOfBothDirections) {
    const std::string table = R"({ "p" : { "VideoBlurDetection" : { "MinDuration" : 5 }, )"
                              R"("VideoDitherDetection" : { "Enable" : true, "MinDuration" : 6 } } })";
    Tests tests;
    CFG_DIAGNOSIS_PROFILE profile{};
    profile.pstuVideoBlur = &tests.blur;
    CFG_DIAGNOSIS_PROFILE_LIST list{1, 0, &profile};
    ASSERT_EQ(ReadList(kCommand, ReplyWith(table), list), kListRead);
    EXPECT_EQ(tests.blur.nMinDuration, 5);
    EXPECT_EQ(profile.pstuVideoDither, nullptr);
    EXPECT_EQ(TextOf(kCommand, list), R"({ "p" : { "VideoBlurDetection" : { "Enable" : false, "MinDuration" : 5, )"
                                      R"("Threshold1" : 0, "Threshold2" : 0 } } })");
    profile.pstuVideoBlur = nullptr;
    ASSERT_EQ(ReadList(kCommand, ReplyWith(table), list), kListRead);
    EXPECT_EQ(TextOf(kCommand, list), R"({ "p" : null })");
}

TEST(DiagnosisProfile, ReadsADramaticChangeOnlyBesideBlackAndWhite) {
    const std::string table = R"({ "p" : { "VideoDramaticChange" : { "MinDuration" : 7 } } })";
    for (const bool hasFourteen : {false, true}) {
        for (const bool hasFifteen : {false, true}) {
            Tests tests;
            CFG_DIAGNOSIS_PROFILE profile{};
            if (hasFourteen) profile.pstuVideoBlackAndWhite = &tests.blackAndWhite;
            if (hasFifteen) profile.pstuVideoDramaticChange = &tests.dramatic;
            CFG_DIAGNOSIS_PROFILE_LIST list{1, 0, &profile};
            ASSERT_EQ(ReadList(kCommand, ReplyWith(table), list), kListRead);
            EXPECT_EQ(tests.dramatic.nMinDuration, hasFourteen && hasFifteen ? 7 : 0);
            EXPECT_EQ(tests.blackAndWhite.nMinDuration, 0);
            // Writing looks at the test's own memory.
            const std::string text = TextOf(kCommand, list);
            EXPECT_EQ(text.find("DramaticChange") != std::string::npos, hasFifteen) << text;
        }
    }
}

TEST(DiagnosisProfile, AbsentKeysKeepWhatIsThere) {
    Tests tests;
    tests.dither = {1, 2, 3, 4};
    tests.cover = {5, 6, 7, 8};
    CFG_DIAGNOSIS_PROFILE profile = tests.Profile("old");
    CFG_DIAGNOSIS_PROFILE_LIST list{1, 0, &profile};
    ASSERT_EQ(ReadList(kCommand,
                       ReplyWith(R"({ "p" : { "VideoDitherDetection" : { "Threshold1" : 300, "Enable" : null }, )"
                                 R"("VideoCoverDetection" : 5 } })"),
                       list),
              kListRead);
    EXPECT_EQ(tests.dither.bEnable, 1);
    EXPECT_EQ(tests.dither.nMinDuration, 2);
    EXPECT_EQ(tests.dither.byThreshold1, 300 - 256); // a byte
    EXPECT_EQ(tests.dither.byThreshold2, 4);
    EXPECT_EQ(tests.cover.nMinDuration, 6);
    EXPECT_EQ(tests.cover.byThreshold2, 8);
    EXPECT_STREQ(profile.szName, "p");
}

TEST(DiagnosisProfile, FailsWithoutRoomBeforeTheTextIsLookedAt) {
    CFG_DIAGNOSIS_PROFILE profile{};
    for (const CFG_DIAGNOSIS_PROFILE_LIST& before :
         {CFG_DIAGNOSIS_PROFILE_LIST{1, 5, nullptr}, CFG_DIAGNOSIS_PROFILE_LIST{0, 5, &profile},
          CFG_DIAGNOSIS_PROFILE_LIST{-1, 5, &profile}}) {
        for (const char* command : {kCommand, "VideoDiagnosisTask", "VideoDiagnosisTask.x", "VideoDiagnosisProject",
                                    "VideoDiagnosisGlobal"}) {
            CFG_DIAGNOSIS_PROFILE_LIST list = before;
            EXPECT_EQ(ReadList(command, ReplyWith("{}"), list), kRefused) << command;
            EXPECT_EQ(ReadList(command, ReplyWith("[]"), list), kRefused) << command;
            EXPECT_EQ(list.nReturned, 5);
            const WrittenBytes written = WriteBytes(command, &list, sizeof list, 64);
            EXPECT_EQ(written.result, 0) << command;
            EXPECT_EQ(written.bytes, std::string(64, '#')) << command;
        }
        EXPECT_EQ(WriteBytes("VideoDiagnosisRealProject", &before, sizeof before, 64).result, 0);
    }
}

TEST(DiagnosisProfile, TheDescriptorHasExactlyItsSize) {
    Tests tests;
    CFG_DIAGNOSIS_PROFILE profile = tests.Profile("p");
    for (const std::uint32_t size : {15U, 16U, 17U, 32U}) {
        const bool fits = size == 16;
        CFG_DIAGNOSIS_PROFILE_LIST lists[2] = {{1, 0, &profile}, {1, 0, &profile}};
        std::uint32_t length = kNoLength;
        EXPECT_EQ(CLIENT_ParseData(kCommand, ReplyWith(R"({ "q" : {} })").c_str(), lists, size, &length), fits);
        EXPECT_EQ(length, fits ? 16 : kNoLength);
        EXPECT_EQ(lists[0].nReturned, fits);
        EXPECT_EQ(WriteBytes(kCommand, lists, size, 4096).result, fits);
    }
}

TEST(DiagnosisProfile, AFalseResultFailsOnceAllHasBeenRead) {
    struct Case {
        const char* top;
        bool passes;
    };
    for (const Case& one :
         {Case{"", true}, Case{R"("result" : null, )", true}, Case{R"("result" : true, )", true},
          Case{R"("result" : 1, )", true}, Case{R"("result" : "false", )", true}, Case{R"("result" : false, )", false},
          Case{R"("result" : 0, )", false}, Case{R"("result" : "", )", false}}) {
        Tests tests;
        CFG_DIAGNOSIS_PROFILE profile = tests.Profile();
        CFG_DIAGNOSIS_PROFILE_LIST list{1, 0, &profile};
        const std::string document = ReplyWith(R"({ "p" : { "VideoDelay" : { "Enable" : true } } })", one.top);
        EXPECT_EQ(ReadList(kCommand, document, list), one.passes ? kListRead : kRefused) << one.top;
        EXPECT_EQ(list.nReturned, 1);
        EXPECT_STREQ(profile.szName, "p");
        EXPECT_EQ(tests.delay.bEnable, 1);
    }
}

TEST(DiagnosisProfile, TablesOfOtherTypes) {
    Tests tests;
    CFG_DIAGNOSIS_PROFILE profile = tests.Profile("old");
    CFG_DIAGNOSIS_PROFILE_LIST list{1, 99, &profile};
    for (const char* document :
         {"{", "", R"({ "result" : true })", R"({ "result" : true, "params" : { "table" : null } })"})
        EXPECT_EQ(ReadList(kCommand, document, list), kRefused) << document;
    EXPECT_EQ(list.nReturned, 99);
    for (const char* table : {"{}", "5", "\"x\"", "[]", "[ {}, {} ]"}) { // more elements than room are no members
        list.nReturned = 99;
        EXPECT_EQ(ReadList(kCommand, ReplyWith(table), list), kListRead) << table;
        EXPECT_EQ(list.nReturned, 0) << table;
    }
    EXPECT_STREQ(profile.szName, "old");
}

TEST(DiagnosisProfile, NamesAreCutAndComeInOrder) {
    Tests tests;
    std::vector<CFG_DIAGNOSIS_PROFILE> profiles(3, tests.Profile("old"));
    CFG_DIAGNOSIS_PROFILE_LIST list{3, 0, profiles.data()};
    const std::string longName(259, 'x');
    ASSERT_EQ(ReadList(kCommand, ReplyWith(R"({ ")" + longName + R"(yz" : {}, "b" : {}, "a" : {} })"), list),
              kListRead);
    EXPECT_STREQ(profiles[0].szName, "a");
    EXPECT_STREQ(profiles[1].szName, "b");
    EXPECT_EQ(std::string(profiles[2].szName), longName);
}

TEST(DiagnosisProfile, WritesTheCountUpToTheRoom) {
    Tests tests;
    std::vector<CFG_DIAGNOSIS_PROFILE> profiles;
    for (const char* name : {"c", "", "a"}) {
        CFG_DIAGNOSIS_PROFILE profile{};
        std::strcpy(profile.szName, name);
        profile.pstuVideoDelay = &tests.delay;
        profiles.push_back(profile);
    }
    CFG_DIAGNOSIS_PROFILE_LIST list{2, 2, profiles.data()};
    const auto written = [&](std::int32_t max, std::int32_t returned) {
        list.nMax = max;
        list.nReturned = returned;
        return TextOf(kCommand, list);
    };
    const std::string test = R"({ "VideoDelay" : { "Enable" : false } })";
    EXPECT_EQ(written(3, 0), "null");
    EXPECT_EQ(written(3, -1), "null");
    EXPECT_EQ(written(3, 1), R"({ "c" : )" + test + " }");
    EXPECT_EQ(written(3, 3), R"({ "" : )" + test + R"(, "a" : )" + test + R"(, "c" : )" + test + " }");
    EXPECT_EQ(written(3, 4), written(3, 3));
    EXPECT_EQ(written(1, 3), R"({ "c" : )" + test + " }");
}

TEST(DiagnosisProfile, ATextAsLongAsItsBufferFitsAndNothingIsWrittenBehindOne) {
    Tests tests;
    CFG_DIAGNOSIS_PROFILE profile{};
    std::strcpy(profile.szName, "p");
    profile.pstuVideoDelay = &tests.delay;
    const CFG_DIAGNOSIS_PROFILE_LIST list{1, 1, &profile};
    const std::string text = "{ \"p\" : { \"VideoDelay\" : { \"Enable\" : false } } }\n";
    for (const std::size_t behind : {0, 1, 2, 9000}) {
        const WrittenBytes written = WriteBytes(kCommand, &list, sizeof list, text.size() + behind);
        EXPECT_EQ(written.result, 1);
        EXPECT_EQ(written.bytes, text + std::string(behind, '#'));
    }
    const WrittenBytes shorter = WriteBytes(kCommand, &list, sizeof list, text.size() - 1);
    EXPECT_EQ(shorter.result, 0);
    EXPECT_EQ(shorter.bytes, std::string(text.size() - 1, '#'));
}

} // namespace
} // namespace orrery::test
