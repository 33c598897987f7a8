#include "device/Equipment.h"

#include "device/ListText.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

std::string Numbers(int count) {
    return ListText(count, [](int i) { return std::to_string(200 + i); });
}

// ---- AirCondition ----

TEST(AirCondition, ThereAndBack) {
    const std::string text =
        R"([ { "Address" : [ 1, 2 ], "Brand" : "B1", "Comm" : { "BaudRate" : 9600 }, "DeviceID" : "D1", )"
        R"("Mode" : "Cold", "Name" : "N1", "Range" : 21, "State" : "Close", "WindMode" : "Middle" }, )"
        R"({ "Brand" : "B2", "DeviceID" : "D2", "Mode" : "Auto", "Name" : "N2", "Range" : -3, "State" : "Open", )"
        R"("WindMode" : "Stop" } ])";
    const auto parsed = Parse<CFG_AIR_CONDITION_INFO>("AirCondition", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_AIR_CONDITION_INFO));
    ASSERT_EQ(parsed->nCount, 2);
    const CFG_AIR_CONDITIONER& first = parsed->stuItems[0];
    EXPECT_STREQ(first.szDeviceID, "D1");
    EXPECT_STREQ(first.szName, "N1");
    EXPECT_STREQ(first.szBrand, "B1");
    EXPECT_STREQ(first.szComm, R"({ "BaudRate" : 9600 })");
    ASSERT_EQ(first.nAddressNum, 2);
    EXPECT_EQ(first.nAddress[0], 1);
    EXPECT_EQ(first.nAddress[1], 2);
    EXPECT_EQ(first.emState, CFG_AIR_STATE_CLOSE);
    EXPECT_EQ(first.nRange, 21);
    EXPECT_EQ(first.emMode, CFG_AIR_MODE_COLD);
    EXPECT_EQ(first.emWindMode, CFG_AIR_WIND_MIDDLE);
    const CFG_AIR_CONDITIONER& second = parsed->stuItems[1];
    EXPECT_STREQ(second.szDeviceID, "D2");
    EXPECT_STREQ(second.szComm, "");
    EXPECT_EQ(second.nAddressNum, 0);
    EXPECT_EQ(second.emState, CFG_AIR_STATE_OPEN);
    EXPECT_EQ(second.nRange, -3);
    EXPECT_EQ(Pack("AirCondition", *parsed), text);
}

// The codes of every name of a key, from 0, in both directions.
void ExpectNames(const std::string& key, std::int32_t CFG_AIR_CONDITIONER::*member,
                 const std::vector<std::string>& names) {
    const auto read = [&](const std::string& value) {
        const auto parsed =
            Parse<CFG_AIR_CONDITION_INFO>("AirCondition", "[ { " + Quoted(key) + " : " + value + " } ]");
        EXPECT_TRUE(parsed) << value;
        return parsed->stuItems[0].*member;
    };
    const auto written = [&](std::int32_t code) {
        const auto record = Cleared<CFG_AIR_CONDITION_INFO>();
        record->nCount = 1;
        record->stuItems[0].*member = code;
        return Pack("AirCondition", *record);
    };
    for (std::size_t code = 0; code < names.size(); ++code) {
        EXPECT_EQ(read(Quoted(names[code])), static_cast<std::int32_t>(code)) << names[code];
        EXPECT_NE(written(static_cast<std::int32_t>(code)).find(Quoted(key) + " : " + Quoted(names[code])),
                  std::string::npos)
            << names[code];
    }
    std::string shouted = names[1];
    for (char& c : shouted)
        c = static_cast<char>(std::toupper(c));
    EXPECT_EQ(read(Quoted(shouted)), 1);
    EXPECT_EQ(read("\"none of them\""), -1);
    EXPECT_EQ(read("\"\""), -1);
    EXPECT_EQ(read("null"), 0);
    for (const std::int32_t code : {-1, static_cast<std::int32_t>(names.size())})
        EXPECT_EQ(written(code).find(Quoted(key)), std::string::npos) << code;
}

TEST(AirCondition, NamesAndCodes) {
    ExpectNames("State", &CFG_AIR_CONDITIONER::emState, {"Open", "Close"});
    ExpectNames("Mode", &CFG_AIR_CONDITIONER::emMode, {"Auto", "Hot", "Cold", "Wet", "Wind"});
    ExpectNames("WindMode", &CFG_AIR_CONDITIONER::emWindMode, {"Stop", "Auto", "High", "Middle", "Low"});
}

TEST(AirCondition, KeepsSixteenOfEach) {
    const auto list = [](int count, int addresses) {
        return ListText(count, [&](int i) {
            return R"({ "Address" : )" + Numbers(addresses) + R"(, "Brand" : "", "DeviceID" : "", "Mode" : "Auto", )"
                   + R"("Name" : "n)" + std::to_string(i)
                   + R"(", "Range" : 0, "State" : "Open", "WindMode" : "Stop" })";
        });
    };
    auto parsed = Parse<CFG_AIR_CONDITION_INFO>("AirCondition", list(17, 17));
    EXPECT_EQ(parsed->nCount, 16);
    EXPECT_STREQ(parsed->stuItems[15].szName, "n15");
    EXPECT_EQ(parsed->stuItems[15].nAddressNum, 16);
    EXPECT_EQ(parsed->stuItems[15].nAddress[15], 215);
    parsed.record->nCount = 17;
    for (CFG_AIR_CONDITIONER& item : parsed.record->stuItems)
        item.nAddressNum = 17;
    EXPECT_EQ(Pack("AirCondition", *parsed), list(16, 16));
    parsed.record->nCount = 0;
    EXPECT_EQ(Pack("AirCondition", *parsed), "null");
}

TEST(AirCondition, TextsAreCutAndLinesLeftOut) {
    const std::string x(100, 'x');
    const auto comm = [](std::size_t length) { return R"({ "K" : ")" + std::string(length - 12, 'k') + R"(" })"; };
    const auto parsed = Parse<CFG_AIR_CONDITION_INFO>(
        "AirCondition", R"([ { "DeviceID" : ")" + x + R"(", "Name" : ")" + x + R"(", "Brand" : ")" + x
                            + R"(", "Comm" : )" + comm(511) + R"( }, { "Comm" : )" + comm(512) + " } ]");
    EXPECT_EQ(std::string(parsed->stuItems[0].szDeviceID), x.substr(0, 47));
    EXPECT_EQ(std::string(parsed->stuItems[0].szName), x.substr(0, 63));
    EXPECT_EQ(std::string(parsed->stuItems[0].szBrand), x.substr(0, 63));
    EXPECT_EQ(std::string(parsed->stuItems[0].szComm), comm(511));
    EXPECT_STREQ(parsed->stuItems[1].szComm, "");
}

// The text of a line that ends in a number is all that stands in its field.
TEST(AirCondition, NothingStandsBehindALine) {
    for (const std::string number : {"5", "42", "365", "8000", "65535", "-7"}) {
        const std::string line = "{ \"K\" : " + number + " }";
        const auto parsed = Parse<CFG_AIR_CONDITION_INFO>("AirCondition", "[ { \"Comm\" : " + line + " } ]");
        const char* const field = parsed->stuItems[0].szComm;
        EXPECT_EQ(std::string_view(field, line.size()), line);
        const std::string behind(field + line.size(), sizeof parsed->stuItems[0].szComm - line.size());
        EXPECT_EQ(behind.find_first_not_of('\0'), std::string::npos) << line;
    }
}

// ---- Lighting ----

TEST(Lighting, ThereAndBack) {
    const std::string text =
        R"({ "Angle" : 11, "Correction" : 2, "Enable" : true, )"
        R"("FarLight" : [ { "Angle" : 5, "Enable" : true, "Light" : 6 } ], "Light" : 12, "Mode" : "ZoomPrio", )"
        R"("NearLight" : [ { "Angle" : 7, "Enable" : false, "Light" : 8 }, )"
        R"({ "Angle" : 9, "Enable" : true, "Light" : 10 } ], "Sensitive" : 3 })";
    const auto parsed = Parse<CFG_LIGHTING_INFO>("Lighting", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_LIGHTING_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_EQ(parsed->nLight, 12);
    EXPECT_EQ(parsed->nAngle, 11);
    EXPECT_EQ(parsed->nCorrection, 2);
    EXPECT_EQ(parsed->nSensitive, 3);
    EXPECT_STREQ(parsed->szMode, "ZoomPrio");
    ASSERT_EQ(parsed->nNearLightNum, 2);
    EXPECT_EQ(parsed->stuNearLight[0].bEnable, 0);
    EXPECT_EQ(parsed->stuNearLight[0].nLight, 8);
    EXPECT_EQ(parsed->stuNearLight[0].nAngle, 7);
    EXPECT_EQ(parsed->stuNearLight[1].bEnable, 1);
    EXPECT_EQ(parsed->stuNearLight[1].nLight, 10);
    ASSERT_EQ(parsed->nFarLightNum, 1);
    EXPECT_EQ(parsed->stuFarLight[0].nLight, 6);
    EXPECT_EQ(parsed->stuFarLight[0].nAngle, 5);
    EXPECT_EQ(Pack("Lighting", *parsed), text);
}

TEST(Lighting, ListsFillRecords) {
    const auto one = [](int light) {
        return R"({ "Angle" : 0, "Correction" : 0, "Enable" : false, "Light" : )" + std::to_string(light)
               + R"(, "Mode" : "", "Sensitive" : 0 })";
    };
    const Records<CFG_LIGHTING_INFO> records(2, 0x5A);
    EXPECT_EQ(ParseTable("Lighting", "[ " + one(1) + ", " + one(2) + ", " + one(3) + " ]", records),
              (Answer{1, 2 * sizeof(CFG_LIGHTING_INFO)}));
    EXPECT_EQ(PackAll("Lighting", records), "[ " + one(1) + ", " + one(2) + " ]");
    EXPECT_EQ(ParseTable("Lighting", "[ ]", records), kRefused);
    EXPECT_EQ(ParseTable("Lighting", "\"x\"", records), kRefused);
}

TEST(Lighting, KeepsSixteenLamps) {
    const auto text = [](int count) {
        const std::string lamps = ListText(
            count, [](int i) { return R"({ "Angle" : 0, "Enable" : false, "Light" : )" + std::to_string(i) + " }"; });
        return R"({ "Angle" : 0, "Correction" : 0, "Enable" : false, "FarLight" : )" + lamps
               + R"(, "Light" : 0, "Mode" : "", "NearLight" : )" + lamps + R"(, "Sensitive" : 0 })";
    };
    auto parsed = Parse<CFG_LIGHTING_INFO>("Lighting", text(17));
    EXPECT_EQ(parsed->nNearLightNum, 16);
    EXPECT_EQ(parsed->nFarLightNum, 16);
    EXPECT_EQ(parsed->stuNearLight[15].nLight, 15);
    EXPECT_EQ(parsed->stuFarLight[15].nLight, 15);
    parsed.record->nNearLightNum = parsed.record->nFarLightNum = 17;
    EXPECT_EQ(Pack("Lighting", *parsed), text(16));
    EXPECT_EQ((std::string(
                  Parse<CFG_LIGHTING_INFO>("Lighting", R"({ "Mode" : ")" + std::string(40, 'm') + R"(" })")->szMode)),
              std::string(31, 'm'));
}

// ---- Sound ----

TEST(AudioOutEqualizer, ThereAndBack) {
    const std::string text = R"([ { "EqualizerStep" : [ { "Gain" : -3, "MaxFrequency" : 200, "MinFrequency" : 100 }, )"
                             R"({ "Gain" : 4, "MaxFrequency" : 400, "MinFrequency" : 300 } ] }, )"
                             R"({ "EqualizerStep" : [ { "Gain" : 5, "MaxFrequency" : 7, "MinFrequency" : 6 } ] } ])";
    const auto parsed = Parse<CFG_AUDIO_OUT_EQUALIZER_INFO>("AudioOutEqualizer", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_AUDIO_OUT_EQUALIZER_INFO));
    ASSERT_EQ(parsed->nCount, 2);
    ASSERT_EQ(parsed->stuItems[0].nStepNum, 2);
    EXPECT_EQ(parsed->stuItems[0].stuSteps[0].nMinFrequency, 100);
    EXPECT_EQ(parsed->stuItems[0].stuSteps[0].nMaxFrequency, 200);
    EXPECT_EQ(parsed->stuItems[0].stuSteps[0].nGain, -3);
    EXPECT_EQ(parsed->stuItems[0].stuSteps[1].nMinFrequency, 300);
    ASSERT_EQ(parsed->stuItems[1].nStepNum, 1);
    EXPECT_EQ(parsed->stuItems[1].stuSteps[0].nGain, 5);
    EXPECT_EQ(Pack("AudioOutEqualizer", *parsed), text);
}

TEST(AudioOutEqualizer, KeepsSixteenOfEach) {
    const auto list = [](int outputs, int steps) {
        return ListText(outputs, [&](int) {
            return R"({ "EqualizerStep" : )"
                   + ListText(steps,
                              [](int i) {
                                  return R"({ "Gain" : )" + std::to_string(i)
                                         + R"(, "MaxFrequency" : 0, "MinFrequency" : 0 })";
                              })
                   + " }";
        });
    };
    auto parsed = Parse<CFG_AUDIO_OUT_EQUALIZER_INFO>("AudioOutEqualizer", list(17, 17));
    EXPECT_EQ(parsed->nCount, 16);
    EXPECT_EQ(parsed->stuItems[15].nStepNum, 16);
    EXPECT_EQ(parsed->stuItems[15].stuSteps[15].nGain, 15);
    parsed.record->nCount = 17;
    for (CFG_EQUALIZER& item : parsed.record->stuItems)
        item.nStepNum = 17;
    EXPECT_EQ(Pack("AudioOutEqualizer", *parsed), list(16, 16));
    // An output of which nothing is said is null in its place.
    parsed.record->nCount = 2;
    parsed.record->stuItems[0].nStepNum = 0;
    parsed.record->stuItems[1].nStepNum = 1;
    EXPECT_EQ(Pack("AudioOutEqualizer", *parsed),
              R"([ null, { "EqualizerStep" : [ { "Gain" : 0, "MaxFrequency" : 0, "MinFrequency" : 0 } ] } ])");
}

TEST(AudioOutSuppression, ThereAndBack) {
    const std::string text = R"([ { "AutoEchoCancellation" : true, "AutoFrequencyControl" : false }, )"
                             R"({ "AutoEchoCancellation" : false, "AutoFrequencyControl" : true } ])";
    const auto parsed = Parse<CFG_AUDIO_OUT_SUPPRESSION_INFO>("AudioOutSuppression", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_AUDIO_OUT_SUPPRESSION_INFO));
    ASSERT_EQ(parsed->nCount, 2);
    EXPECT_EQ(parsed->stuItems[0].bAutoEchoCancellation, 1);
    EXPECT_EQ(parsed->stuItems[0].bAutoFrequencyControl, 0);
    EXPECT_EQ(parsed->stuItems[1].bAutoEchoCancellation, 0);
    EXPECT_EQ(parsed->stuItems[1].bAutoFrequencyControl, 1);
    EXPECT_EQ(Pack("AudioOutSuppression", *parsed), text);
}

TEST(AudioInControl, ThereAndBack) {
    const std::string text = R"([ { "Power" : true, "SquishSuppression" : false }, )"
                             R"({ "Power" : false, "SquishSuppression" : true } ])";
    const auto parsed = Parse<CFG_AUDIO_IN_CONTROL_INFO>("AudioInControl", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_AUDIO_IN_CONTROL_INFO));
    ASSERT_EQ(parsed->nCount, 2);
    EXPECT_EQ(parsed->stuItems[0].bPower, 1);
    EXPECT_EQ(parsed->stuItems[0].bSquishSuppression, 0);
    EXPECT_EQ(parsed->stuItems[1].bPower, 0);
    EXPECT_EQ(parsed->stuItems[1].bSquishSuppression, 1);
    EXPECT_EQ(Pack("AudioInControl", *parsed), text);
}

TEST(AudioLists, KeepSixteenOutputsAndThirtyTwoInputs) {
    const auto list = [](int count, const char* one, const char* last, int lastAt) {
        return ListText(count, [&](int i) { return std::string(i == lastAt ? last : one); });
    };
    const char* const quiet = R"({ "AutoEchoCancellation" : false, "AutoFrequencyControl" : false })";
    const char* const loud = R"({ "AutoEchoCancellation" : true, "AutoFrequencyControl" : true })";
    auto outputs = Parse<CFG_AUDIO_OUT_SUPPRESSION_INFO>("AudioOutSuppression", list(17, quiet, loud, 15));
    EXPECT_EQ(outputs->nCount, 16);
    EXPECT_EQ(outputs->stuItems[15].bAutoEchoCancellation, 1);
    outputs.record->nCount = 17;
    EXPECT_EQ(Pack("AudioOutSuppression", *outputs), list(16, quiet, loud, 15));

    const char* const off = R"({ "Power" : false, "SquishSuppression" : false })";
    const char* const on = R"({ "Power" : true, "SquishSuppression" : true })";
    auto inputs = Parse<CFG_AUDIO_IN_CONTROL_INFO>("AudioInControl", list(33, off, on, 31));
    EXPECT_EQ(inputs->nCount, 32);
    EXPECT_EQ(inputs->stuItems[31].bPower, 1);
    inputs.record->nCount = 33;
    EXPECT_EQ(Pack("AudioInControl", *inputs), list(32, off, on, 31));
}

} // namespace
} // namespace orrery::test
