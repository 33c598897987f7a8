// "VideoInOptions": one large record, for normal use, for the night and for pictures.
#include "orrery/video_input.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

constexpr const char* kName = "VideoInOptions";
using Options = test::Records<CFG_VIDEOIN_OPTIONS>;
constexpr std::uint32_t kSize = sizeof(CFG_VIDEOIN_OPTIONS);

constexpr const char* kText =
    R"({"Backlight":3,"DayNightColor":4,"WhiteBalance":"Sunny","ColorTemperatureLevel":5,"Mirror":true,)"
    R"("Flip":true,"IrisAuto":false,"InfraRed":true,"GainRed":6,"GainBlue":7,"GainGreen":8,)"
    R"("ExposureSpeed":9,"ExposureValue1":1.25,"ExposureValue2":2.25,"GainAuto":true,"Gain":10,)"
    R"("SignalFormat":"1080i","Rotate90":11,"ExternalSyncPhase":3.25,"ExternalSync":12,"DoubleExposure":13,)"
    R"("WideDynamicRange":14,"FocusMode":15,"GainMin":16,"GainMax":17,"AntiFlicker":18,"ExposureMode":19,)"
    R"("GlareInhibition":20,"BacklightRegion":[1010,1011,1012,1013],"NightOptions":{"SwitchMode":21,)"
    R"("Profile":22,"BrightnessThreshold":23,"SunriseHour":24,"SunriseMinute":25,"SunriseSecond":26,)"
    R"("SunsetHour":27,"SunsetMinute":28,"SunsetSecond":29,"GainRed":30,"GainBlue":31,"GainGreen":32,)"
    R"("ExposureSpeed":33,"ExposureValue1":4.25,"ExposureValue2":5.25,"WhiteBalance":"Home","Gain":34,)"
    R"("GainAuto":false,"IrisAuto":true,"ExternalSyncPhase":6.25,"GainMin":35,"GainMax":36,"Backlight":37,)"
    R"("AntiFlicker":38,"DayNightColor":39,"ExposureMode":40,"Rotate90":41,"Mirror":true,)"
    R"("WideDynamicRange":42,"GlareInhibition":43,"BacklightRegion":[1020,1021,1022,1023],"FocusMode":44,)"
    R"("Flip":false},"FlashControl":{"Mode":2,"Value":46,"Pole":47,"PreValue":48,"DutyCycle":49,)"
    R"("FrequencyMultiple":50},"Snapshot":{"GainRed":51,"GainBlue":52,"GainGreen":53,"ExposureSpeed":54,)"
    R"("ExposureValue1":7.25,"ExposureValue2":8.25,"WhiteBalance":"Night","ColorTemperatureLevel":55,)"
    R"("GainAuto":true,"Gain":56},"NormalOptions":{"GainRed":57,"GainBlue":58,"GainGreen":59,)"
    R"("ExposureSpeed":60,"ExposureValue1":9.25,"ExposureValue2":10.25,)"
    R"("WhiteBalance":"LowColorTemperature","Gain":61,"GainAuto":true,"IrisAuto":false,)"
    R"("ExternalSyncPhase":11.25,"GainMin":62,"GainMax":63,"Backlight":64,"AntiFlicker":65,)"
    R"("DayNightColor":66,"ExposureMode":67,"Rotate90":68,"Mirror":true,"WideDynamicRange":69,)"
    R"("GlareInhibition":70,"BacklightRegion":[1030,1031,1032,1033],"FocusMode":71,"Flip":true},)"
    R"("FishEye":{"Center":[-5,4096],"Radius":4000000000,"Direction":90.5,"PlaceHolder":3,)"
    R"("CalibrateMode":"DoublePanorama"}})";
constexpr const char* kWritten =
    R"({ "AntiFlicker" : 18, "Backlight" : 3, "BacklightRegion" : [ 1010, 1011, 1012, 1013 ],)"
    R"( "ColorTemperatureLevel" : 5, "DayNightColor" : 4, "DoubleExposure" : 13, "ExposureMode" : 19,)"
    R"( "ExposureSpeed" : 9, "ExposureValue1" : 1.250000000000000, "ExposureValue2" : 2.250000000000000,)"
    R"( "ExternalSync" : 12, "ExternalSyncPhase" : 3.250000000000000,)"
    R"( "FishEye" : { "CalibrateMode" : "DoublePanorama", "Center" : [ -5, 4096 ],)"
    R"( "Direction" : 90.50000000000000, "PlaceHolder" : 3, "Radius" : 4000000000 },)"
    R"( "FlashControl" : { "DutyCycle" : 49, "FrequencyMultiple" : 50, "Mode" : 2, "Pole" : 47,)"
    R"( "PreValue" : 48, "Value" : 46 }, "Flip" : true, "FocusMode" : 15, "Gain" : 10, "GainAuto" : true,)"
    R"( "GainBlue" : 7, "GainGreen" : 8, "GainMax" : 17, "GainMin" : 16, "GainRed" : 6,)"
    R"( "GlareInhibition" : 20, "InfraRed" : true, "IrisAuto" : false, "Mirror" : true,)"
    R"( "NightOptions" : { "AntiFlicker" : 38, "Backlight" : 37, "BacklightRegion" : [ 1020, 1021, 1022,)"
    R"( 1023 ], "BrightnessThreshold" : 23, "DayNightColor" : 39, "ExposureMode" : 40,)"
    R"( "ExposureSpeed" : 33, "ExposureValue1" : 4.250000000000000, "ExposureValue2" : 5.250000000000000,)"
    R"( "ExternalSyncPhase" : 6.250000000000000, "Flip" : false, "FocusMode" : 44, "Gain" : 34,)"
    R"( "GainAuto" : false, "GainBlue" : 31, "GainGreen" : 32, "GainMax" : 36, "GainMin" : 35,)"
    R"( "GainRed" : 30, "GlareInhibition" : 43, "IrisAuto" : true, "Mirror" : true, "Profile" : 22,)"
    R"( "Rotate90" : 41, "SunriseHour" : 24, "SunriseMinute" : 25, "SunriseSecond" : 26, "SunsetHour" : 27,)"
    R"( "SunsetMinute" : 28, "SunsetSecond" : 29, "SwitchMode" : 21, "WhiteBalance" : "Home",)"
    R"( "WideDynamicRange" : 42 }, "NormalOptions" : { "AntiFlicker" : 65, "Backlight" : 64,)"
    R"( "BacklightRegion" : [ 1030, 1031, 1032, 1033 ], "DayNightColor" : 66, "ExposureMode" : 67,)"
    R"( "ExposureSpeed" : 60, "ExposureValue1" : 9.250000000000000, "ExposureValue2" : 10.25000000000000,)"
    R"( "ExternalSyncPhase" : 0.000000000000000, "Flip" : true, "FocusMode" : 71, "Gain" : 61,)"
    R"( "GainAuto" : true, "GainBlue" : 58, "GainGreen" : 59, "GainMax" : 63, "GainMin" : 62,)"
    R"( "GainRed" : 57, "GlareInhibition" : 70, "IrisAuto" : false, "Mirror" : true, "Rotate90" : 68,)"
    R"( "WhiteBalance" : "LowColorTemperature", "WideDynamicRange" : 69 }, "Rotate90" : 11,)"
    R"( "SignalFormat" : "1080i", "Snapshot" : { "ColorTemperatureLevel" : 55, "ExposureSpeed" : 54,)"
    R"( "ExposureValue1" : 7.250000000000000, "ExposureValue2" : 8.250000000000000, "Gain" : 56,)"
    R"( "GainAuto" : true, "GainBlue" : 52, "GainGreen" : 53, "GainRed" : 51, "WhiteBalance" : "Night" },)"
    R"( "WhiteBalance" : "Sunny", "WideDynamicRange" : 14 })";

TEST(VideoInOptions, ReadsEveryKey) {
    const auto parsed = Parse<CFG_VIDEOIN_OPTIONS>(kName, kText);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, kSize);
    const CFG_VIDEOIN_OPTIONS& r = *parsed;
    EXPECT_EQ(r.byNightSwitchMode, 21);
    EXPECT_EQ(r.byBacklight, 3);
    EXPECT_EQ(r.byDayNightColor, 4);
    EXPECT_EQ(r.byWhiteBalance, 3);
    EXPECT_EQ(r.byColorTemperatureLevel, 5);
    EXPECT_EQ(r.bMirror, 1);
    EXPECT_EQ(r.bFlip, 1);
    EXPECT_EQ(r.bIrisAuto, 0);
    EXPECT_EQ(r.bInfraRed, 1);
    EXPECT_EQ(r.byGainRed, 6);
    EXPECT_EQ(r.byGainBlue, 7);
    EXPECT_EQ(r.byGainGreen, 8);
    EXPECT_EQ(r.byExposureSpeed, 9);
    EXPECT_EQ(r.fExposureValue1, 1.25F);
    EXPECT_EQ(r.fExposureValue2, 2.25F);
    EXPECT_EQ(r.bGainAuto, 1);
    EXPECT_EQ(r.byGain, 10);
    EXPECT_EQ(r.bySignalFormat, CFG_SIGNAL_1080I);
    EXPECT_EQ(r.byRotate90, 11);
    EXPECT_EQ(r.fExternalSyncPhase, 3.25F);
    EXPECT_EQ(r.byExternalSync, 12);
    EXPECT_EQ(r.byDoubleExposure, 13);
    EXPECT_EQ(r.byWideDynamicRange, 14);
    EXPECT_EQ(r.byFocusMode, 15);
    EXPECT_EQ(r.byGainMin, 16);
    EXPECT_EQ(r.byGainMax, 17);
    EXPECT_EQ(r.byAntiFlicker, 18);
    EXPECT_EQ(r.byExposureMode, 19);
    EXPECT_EQ(r.byGlareInhibition, 20);
    EXPECT_EQ(r.nBacklightRegion[0], 1010);
    EXPECT_EQ(r.nBacklightRegion[1], 1011);
    EXPECT_EQ(r.nBacklightRegion[2], 1012);
    EXPECT_EQ(r.nBacklightRegion[3], 1013);
    EXPECT_EQ(r.stuNight.bySwitchMode, 21);
    EXPECT_EQ(r.stuNight.byProfile, 22);
    EXPECT_EQ(r.stuNight.byBrightnessThreshold, 23);
    EXPECT_EQ(r.stuNight.bySunriseHour, 24);
    EXPECT_EQ(r.stuNight.bySunriseMinute, 25);
    EXPECT_EQ(r.stuNight.bySunriseSecond, 26);
    EXPECT_EQ(r.stuNight.bySunsetHour, 27);
    EXPECT_EQ(r.stuNight.bySunsetMinute, 28);
    EXPECT_EQ(r.stuNight.bySunsetSecond, 29);
    EXPECT_EQ(r.stuNight.byGainRed, 30);
    EXPECT_EQ(r.stuNight.byGainBlue, 31);
    EXPECT_EQ(r.stuNight.byGainGreen, 32);
    EXPECT_EQ(r.stuNight.byExposureSpeed, 33);
    EXPECT_EQ(r.stuNight.fExposureValue1, 4.25F);
    EXPECT_EQ(r.stuNight.fExposureValue2, 5.25F);
    EXPECT_EQ(r.stuNight.byWhiteBalance, 5);
    EXPECT_EQ(r.stuNight.byGain, 34);
    EXPECT_EQ(r.stuNight.bGainAuto, 0);
    EXPECT_EQ(r.stuNight.bIrisAuto, 1);
    EXPECT_EQ(r.stuNight.fExternalSyncPhase, 6.25F);
    EXPECT_EQ(r.stuNight.byGainMin, 35);
    EXPECT_EQ(r.stuNight.byGainMax, 36);
    EXPECT_EQ(r.stuNight.byBacklight, 37);
    EXPECT_EQ(r.stuNight.byAntiFlicker, 38);
    EXPECT_EQ(r.stuNight.byDayNightColor, 39);
    EXPECT_EQ(r.stuNight.byExposureMode, 40);
    EXPECT_EQ(r.stuNight.byRotate90, 41);
    EXPECT_EQ(r.stuNight.bMirror, 1);
    EXPECT_EQ(r.stuNight.byWideDynamicRange, 42);
    EXPECT_EQ(r.stuNight.byGlareInhibition, 43);
    EXPECT_EQ(r.stuNight.nBacklightRegion[0], 1020);
    EXPECT_EQ(r.stuNight.nBacklightRegion[1], 1021);
    EXPECT_EQ(r.stuNight.nBacklightRegion[2], 1022);
    EXPECT_EQ(r.stuNight.nBacklightRegion[3], 1023);
    EXPECT_EQ(r.stuNight.byFocusMode, 44);
    EXPECT_EQ(r.stuNight.bFlip, 0);
    EXPECT_EQ(r.stuFlash.byMode, 2);
    EXPECT_EQ(r.stuFlash.byValue, 46);
    EXPECT_EQ(r.stuFlash.byPole, 47);
    EXPECT_EQ(r.stuFlash.byPreValue, 48);
    EXPECT_EQ(r.stuFlash.byDutyCycle, 49);
    EXPECT_EQ(r.stuFlash.byFrequencyMultiple, 50);
    EXPECT_EQ(r.stuSnapshot.byGainRed, 51);
    EXPECT_EQ(r.stuSnapshot.byGainBlue, 52);
    EXPECT_EQ(r.stuSnapshot.byGainGreen, 53);
    EXPECT_EQ(r.stuSnapshot.byExposureSpeed, 54);
    EXPECT_EQ(r.stuSnapshot.fExposureValue1, 7.25F);
    EXPECT_EQ(r.stuSnapshot.fExposureValue2, 8.25F);
    EXPECT_EQ(r.stuSnapshot.byWhiteBalance, 7);
    EXPECT_EQ(r.stuSnapshot.byColorTemperatureLevel, 55);
    EXPECT_EQ(r.stuSnapshot.bGainAuto, 1);
    EXPECT_EQ(r.stuSnapshot.byGain, 56);
    EXPECT_EQ(r.stuNormal.byGainRed, 57);
    EXPECT_EQ(r.stuNormal.byGainBlue, 58);
    EXPECT_EQ(r.stuNormal.byGainGreen, 59);
    EXPECT_EQ(r.stuNormal.byExposureSpeed, 60);
    EXPECT_EQ(r.stuNormal.fExposureValue1, 9.25F);
    EXPECT_EQ(r.stuNormal.fExposureValue2, 10.25F);
    EXPECT_EQ(r.stuNormal.byWhiteBalance, 9);
    EXPECT_EQ(r.stuNormal.byGain, 61);
    EXPECT_EQ(r.stuNormal.bGainAuto, 1);
    EXPECT_EQ(r.stuNormal.bIrisAuto, 0);
    EXPECT_EQ(r.stuNormal.fExternalSyncPhase, 0.0F); // it travels to the camera only
    EXPECT_EQ(r.stuNormal.byGainMin, 62);
    EXPECT_EQ(r.stuNormal.byGainMax, 63);
    EXPECT_EQ(r.stuNormal.byBacklight, 64);
    EXPECT_EQ(r.stuNormal.byAntiFlicker, 65);
    EXPECT_EQ(r.stuNormal.byDayNightColor, 66);
    EXPECT_EQ(r.stuNormal.byExposureMode, 67);
    EXPECT_EQ(r.stuNormal.byRotate90, 68);
    EXPECT_EQ(r.stuNormal.bMirror, 1);
    EXPECT_EQ(r.stuNormal.byWideDynamicRange, 69);
    EXPECT_EQ(r.stuNormal.byGlareInhibition, 70);
    EXPECT_EQ(r.stuNormal.nBacklightRegion[0], 1030);
    EXPECT_EQ(r.stuNormal.nBacklightRegion[1], 1031);
    EXPECT_EQ(r.stuNormal.nBacklightRegion[2], 1032);
    EXPECT_EQ(r.stuNormal.nBacklightRegion[3], 1033);
    EXPECT_EQ(r.stuNormal.byFocusMode, 71);
    EXPECT_EQ(r.stuNormal.bFlip, 1);
    EXPECT_EQ(r.stuFishEye.nCenterX, -5);
    EXPECT_EQ(r.stuFishEye.nCenterY, 4096);
    EXPECT_EQ(r.stuFishEye.nRadius, 4000000000U);
    EXPECT_EQ(r.stuFishEye.fDirection, 90.5F);
    EXPECT_EQ(r.stuFishEye.byPlaceHolder, 3);
    EXPECT_EQ(r.stuFishEye.byCalibrateMode, CFG_FISHEYE_DOUBLE_PANORAMA);
    EXPECT_EQ(Pack(kName, r), kWritten);
}

// The text of `key` in what is written, up to its comma or brace.
std::string Written(const CFG_VIDEOIN_OPTIONS& options, const std::string& key, std::size_t from = 0) {
    const std::string text = Pack(kName, options);
    const std::size_t at = text.find("\"" + key + "\" : ", from);
    if (at == std::string::npos) return "(no key)";
    const std::size_t value = at + key.size() + 5;
    return text.substr(value, text.find_first_of(",}", value) - value);
}

TEST(VideoInOptions, WritesThePhaseOfNormalUseThatItNeverReads) {
    CFG_VIDEOIN_OPTIONS options{};
    options.stuNormal.fExternalSyncPhase = 12.5F;
    const std::string text = Pack(kName, options);
    EXPECT_NE(text.find("\"ExternalSyncPhase\" : 12.50000000000000", text.find("\"NormalOptions\"")),
              std::string::npos);
    EXPECT_EQ(Parse<CFG_VIDEOIN_OPTIONS>(kName, text)->stuNormal.fExternalSyncPhase, 0);
}

TEST(VideoInOptions, KeepsTheSwitchModeTwiceAndWritesTheOneOutside) {
    const auto parsed = Parse<CFG_VIDEOIN_OPTIONS>(kName, R"({"NightOptions":{"SwitchMode":258}})");
    EXPECT_EQ(parsed->byNightSwitchMode, 2); // its low byte
    EXPECT_EQ(parsed->stuNight.bySwitchMode, 2);
    CFG_VIDEOIN_OPTIONS options = *parsed;
    options.stuNight.bySwitchMode = 9;
    EXPECT_EQ(Written(options, "SwitchMode"), "2");
    options.byNightSwitchMode = 7;
    EXPECT_EQ(Written(options, "SwitchMode"), "7");
}

TEST(VideoInOptions, WritesAFlashOnlyInTheModesThatThereAre) {
    CFG_VIDEOIN_OPTIONS options{};
    for (const int mode : {0, 1, 2}) {
        options.stuFlash.byMode = static_cast<std::uint8_t>(mode);
        options.stuFlash.byValue = 5;
        const std::string text = Pack(kName, options);
        EXPECT_NE(text.find("\"FlashControl\""), std::string::npos) << mode;
        EXPECT_EQ(Parse<CFG_VIDEOIN_OPTIONS>(kName, text)->stuFlash.byValue, 5);
    }
    for (const int mode : {3, 255}) {
        options.stuFlash.byMode = static_cast<std::uint8_t>(mode);
        const std::string text = Pack(kName, options);
        EXPECT_EQ(text.find("\"FlashControl\""), std::string::npos) << mode;
        EXPECT_EQ(Parse<CFG_VIDEOIN_OPTIONS>(kName, text)->stuFlash.byMode, 0);
    }
    EXPECT_EQ(Parse<CFG_VIDEOIN_OPTIONS>(kName, R"({"FlashControl":{"Mode":3}})")->stuFlash.byMode, 3);
}

TEST(VideoInOptions, TakesARegionOfFourNumbersOrMore) {
    for (const char* block : {"", "\"NightOptions\":{", "\"NormalOptions\":{"}) {
        const std::string end = *block == '\0' ? "}" : "}}";
        const auto region = [&](const std::string& list) {
            const auto parsed =
                Parse<CFG_VIDEOIN_OPTIONS>(kName, "{" + std::string(block) + "\"BacklightRegion\":" + list + end);
            const std::int32_t* at = *block == '\0' ? parsed->nBacklightRegion
                                     : std::string(block).find("Night") != std::string::npos
                                         ? parsed->stuNight.nBacklightRegion
                                         : parsed->stuNormal.nBacklightRegion;
            return std::vector<std::int32_t>(at, at + 4);
        };
        EXPECT_EQ(region("[1,2,3,4]"), (std::vector<std::int32_t>{1, 2, 3, 4}));
        EXPECT_EQ(region("[1,2,3,4,5]"), (std::vector<std::int32_t>{1, 2, 3, 4}));
        for (const char* other : {"[1,2,3]", "[]", "null", "7", R"({"0":1,"1":2,"2":3,"3":4})"})
            EXPECT_EQ(region(other), std::vector<std::int32_t>(4)) << other;
    }
}

TEST(VideoInOptions, TakesAFishEyeOfWhatItFinds) {
    const auto fishEye = [](const std::string& value) {
        return Parse<CFG_VIDEOIN_OPTIONS>(kName, R"({"FishEye":)" + value + "}")->stuFishEye;
    };
    EXPECT_EQ(fishEye(R"({"Center":[7]})").nCenterX, 7);
    EXPECT_EQ(fishEye(R"({"Center":[7]})").nCenterY, 0);
    EXPECT_EQ(fishEye(R"({"Center":[null,8,9]})").nCenterX, 0);
    EXPECT_EQ(fishEye(R"({"Center":[null,8,9]})").nCenterY, 8);
    for (const char* none : {R"({"Center":{"0":1}})", R"({"Center":5})", "[1]", "\"x\"", "null"}) {
        const CFG_VIDEOIN_FISHEYE_OPTIONS read = fishEye(none);
        const CFG_VIDEOIN_FISHEYE_OPTIONS clear{};
        EXPECT_EQ(std::memcmp(&read, &clear, sizeof read), 0) << none;
    }
}

TEST(VideoInOptions, KnowsItsNames) {
    const char* const signals[] = {"Inside", "BT656", "720p", "1080p", "1080i", "1080sF"};
    for (std::uint8_t code = 0; code < 6; ++code) {
        CFG_VIDEOIN_OPTIONS options{};
        options.bySignalFormat = code;
        EXPECT_EQ(Written(options, "SignalFormat"), '"' + std::string(signals[code]) + '"');
        EXPECT_EQ(Parse<CFG_VIDEOIN_OPTIONS>(kName, Pack(kName, options))->bySignalFormat, code);
    }
    const char* const balances[] = {"Disable",
                                    "Auto",
                                    "Custom",
                                    "Sunny",
                                    "Cloudy",
                                    "Home",
                                    "Office",
                                    "Night",
                                    "HighColorTemperature",
                                    "LowColorTemperature",
                                    "AutoColorTemperature",
                                    "CustomColorTemperature"};
    for (std::uint8_t code = 0; code < 12; ++code) {
        CFG_VIDEOIN_OPTIONS options{};
        options.byWhiteBalance = options.stuNight.byWhiteBalance = options.stuNormal.byWhiteBalance =
            options.stuSnapshot.byWhiteBalance = code;
        const std::string text = Pack(kName, options);
        const std::string expected = "\"WhiteBalance\" : \"" + std::string(balances[code]) + '"';
        std::size_t found = 0;
        for (std::size_t at = text.find(expected); at != std::string::npos; at = text.find(expected, at + 1))
            ++found;
        EXPECT_EQ(found, 4u) << expected;
        EXPECT_EQ(Parse<CFG_VIDEOIN_OPTIONS>(kName, text)->stuSnapshot.byWhiteBalance, code);
    }
    const char* const modes[] = {"",         "Original",       "Config",
                                 "Panorama", "DoublePanorama", "OriginalPlusThreeEPtzRegion",
                                 "Single",   "FourEPtzRegion", "Normal"};
    for (std::uint8_t code = 0; code < 9; ++code) {
        CFG_VIDEOIN_OPTIONS options{};
        options.stuFishEye.byCalibrateMode = code;
        EXPECT_EQ(Written(options, "CalibrateMode"), '"' + std::string(modes[code]) + '"');
        EXPECT_EQ(Parse<CFG_VIDEOIN_OPTIONS>(kName, Pack(kName, options))->stuFishEye.byCalibrateMode, code);
    }
    const auto unknown = Parse<CFG_VIDEOIN_OPTIONS>(
        kName, R"({"SignalFormat":"4K","WhiteBalance":"Snow","FishEye":{"CalibrateMode":"Cube"}})");
    EXPECT_EQ(unknown->bySignalFormat, 0);
    EXPECT_EQ(unknown->byWhiteBalance, 0);
    EXPECT_EQ(unknown->stuFishEye.byCalibrateMode, 0);
    EXPECT_EQ(Parse<CFG_VIDEOIN_OPTIONS>(kName, R"({"WhiteBalance":"OFFICE"})")->byWhiteBalance, 6);
    for (const int code : {12, 255}) {
        CFG_VIDEOIN_OPTIONS options{};
        options.bySignalFormat = options.byWhiteBalance = options.stuFishEye.byCalibrateMode =
            static_cast<std::uint8_t>(code);
        EXPECT_EQ(Written(options, "SignalFormat"), "\"Inside\"");
        EXPECT_EQ(Written(options, "WhiteBalance", Pack(kName, options).rfind("\"WhiteBalance\"")), "\"Disable\"");
        EXPECT_EQ(Written(options, "CalibrateMode"), "\"\"");
    }
}

TEST(VideoInOptions, FillsWhatFitsOfAList) {
    const Options records(2, 5, 0x11);
    EXPECT_EQ(ParseTable(kName, R"([{"Gain":1},{"Gain":2},{"Gain":3}])", records), (Answer{1, 2 * kSize}));
    EXPECT_EQ(records[0].byGain, 1);
    EXPECT_EQ(records[1].byGain, 2);
    const Options holes(3, 0x11);
    EXPECT_EQ(ParseTable(kName, R"([{"Gain":1},null,{"Gain":3}])", holes), (Answer{1, 3 * kSize}));
    EXPECT_EQ(holes[1].byGain, 0);
    EXPECT_EQ(holes[2].byGain, 3);
    const Options none(1, 0x11);
    EXPECT_EQ(ParseTable(kName, "[]", none), (Answer{1, 0}));
    EXPECT_TRUE(none.isAll(0));
}

TEST(VideoInOptions, SucceedsWhateverTheTextIs) {
    for (const char* text : {"", "[", "no text", R"({"params":{"table":null}})", "{}", "7"}) {
        const Options records(2, 0x11);
        EXPECT_EQ(ParseDocument(kName, text, records), (Answer{1, kNoLength})) << text;
        EXPECT_TRUE(records.isAll(0)) << text;
    }
    const Options refused(1, 0x11);
    EXPECT_EQ(ParseDocument(kName, R"({"result":false,"params":{"table":{"Gain":4}}})", refused), (Answer{1, kSize}));
    EXPECT_EQ(refused[0].byGain, 4);
    const Options other(1, 0x11);
    EXPECT_EQ(ParseTable(kName, "5", other), (Answer{1, kSize}));
    EXPECT_TRUE(other.isAll(0));
    const Options part(0, kSize - 1, 0x11);
    EXPECT_EQ(ParseTable(kName, "{}", part), kRefused);
    EXPECT_TRUE(part.isAll(0x11));
}

TEST(VideoInOptions, WritesOneRecordBareAndMoreAsAList) {
    const std::string one = Pack(kName, CFG_VIDEOIN_OPTIONS{});
    EXPECT_EQ(PackAll(kName, Options(2)), "[ " + one + ", " + one + " ]");
    EXPECT_EQ(PackAll(kName, Options(1, 3, 0)), "[ " + one + " ]");
    const Options record(1);
    EXPECT_EQ(PackBytes(kName, record.data(), kSize, one.size() + 1), one + "\n"); // no room is left for a terminator
    EXPECT_EQ(PackBytes(kName, record.data(), kSize, one.size()), kFailed);
    EXPECT_EQ(PackAll(kName, Options(0, kSize - 1, 0)), kNotBegun);
}

} // namespace
} // namespace orrery::test
