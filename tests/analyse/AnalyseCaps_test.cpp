// What a device can analyse.
#include "orrery/analyse_caps.h"
#include "support/Call.h"
#include "support/LogLines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orrery::test {
namespace {

constexpr const char* kCaps = "devVideoAnalyse.getCaps";
constexpr const char* kCapsEx = "devVideoAnalyse.getCapsEx";
constexpr const char* kBadAngle = "This display type of the camera angle is unknoen.";

template <class R = CFG_ANALYSECAPS_INFO>
Parsed<R> Caps(const std::string& caps, const char* command = kCaps, const std::string& result = "true") {
    return ParseDocument<R>(command, R"({"result":)" + result + R"(,"params":{"caps":)" + caps + "}}");
}

// `count` elements, or members with `name` and a number of two digits or more.
std::string List(int count, const std::string& element) {
    std::string list = "[";
    for (int i = 0; i < count; ++i)
        list += (i > 0 ? "," : "") + element;
    return list + "]";
}
std::string Members(int count, const std::string& name, const std::string& value) {
    std::string object = "{";
    for (int i = 0; i < count; ++i)
        object += (i > 0 ? ",\"" : "\"") + name + std::to_string(100 + i) + "\":" + value;
    return object + "}";
}

// Each member has a value of its own.
constexpr const char* kRule =
    R"({"SupportedObjectTypes":["Human","Vehicle"],"SupportedActions":["Appear","Cross","Inside"],
    "SupportedDetectTypes":["LeftToRight"],"SupportedHumanFaceTypes":["Adult","Child","Veil","Hat"],
    "TriggerPosition":true,"TriggerTrack":1,"FeatureSupport":1,"FeatureList":["Sex","Beard","other","age",null]})";
constexpr const char* kScene = R"({"SupportedObjectTypes":["Plate","Human","Face"],
    "SupportedRules":{"CrossLineDetection":)"
                               "%RULE%"
                               R"(,"Nonsense":{"SupportedActions":["x"]},"TailDetection":null},
    "SupportedCalibrateParams":{"Any":{"HorizontalStaffs":[1,2],"VerticalStaffs":[3,4]},"Other":{},
        "Horizontal":{"HorizontalStaffs":[5,6,7],"VerticalStaffs":[8]},"Groud":{"VerticalStaffs":[9,10]},"Vertical":null,
        "MaxCelibateAreas":11},
    "SupportedSceneParams":{"CameraAspect":true,"Jitter":false,"Dejitter":true},
    "SupportedModuleParams":{"Disturbance":true,"Backlight":true,"Accuracy":true,"ScalingFactor":true,"ThresholdUV":true,
        "DetectBalance":true,"Highlight":true,"DetectRegion":true,"ContourAssistantTrack":true,
        "SizeFilter":{"MeasureMode":{"Pixel":true,"CalibratedPixel":true}}},
    "MaxRules":12,"SupportedSetModule":true})";

std::string FullCaps() {
    std::string scene = kScene;
    scene.replace(scene.find("%RULE%"), 6, kRule);
    return R"({"SupportedScene":["Normal",null,"Traffic"],"MaxModules":21,"SupportedObjectType":["Human","Bag"],"MaxRules":22,
        "SupportedRules":["CrossLineDetection","crosslinedetection","FlowStat",7],"MaxStaffs":23,"MaxPointOfLine":24,
        "MaxPointOfRegion":25,"MaxInternalOptions":26,"ComplexSizeFilter":true,"SpecifiedObjectFilter":true,
        "MaxExcludeRegions":27,"MaxSpecialDetectRegions":28,"SupportedTimeSectionNum":29,
        "SupportedSpecialDetectRegionProperty":["IrregularBlink",null,"highlight"],
        "SupportedVideoChannelType":["Digital","Both"],"SupportMultiSceneSwitch":true,
        "SupportedScenes":{"Traffic":{"MaxRules":31},"Normal":)"
           + scene + R"(,"Face":null},"SupportedComp":[["Normal","Traffic"],["0123456789ABCDEF0"]],
        "SupportedSceneSubType":{"Normal":["Indoor","Outdoor"],"Nobody":["x"],"Traffic":[]},
        "DisplayCameraAngle":"Mode","FilterMask":30})";
}

template <class R>
void ExpectAllOfTheChannel(const R& caps) {
    EXPECT_EQ(caps.nSceneNum, 3);
    EXPECT_STREQ(caps.szScenes[0], "Normal");
    EXPECT_STREQ(caps.szScenes[1], "");
    EXPECT_STREQ(caps.szScenes[2], "Traffic");
    EXPECT_EQ(caps.nMaxModules, 21);
    EXPECT_EQ(caps.nObjectTypeNum, 2);
    EXPECT_STREQ(caps.szObjectTypes[1], "Bag");
    EXPECT_EQ(caps.nMaxRules, 22);
    EXPECT_EQ(caps.nRuleNum, 4);
    EXPECT_EQ(caps.dwRuleCodes[0], 2u);
    EXPECT_EQ(caps.dwRuleCodes[1], 0u); // case counts
    EXPECT_EQ(caps.dwRuleCodes[2], 15u);
    EXPECT_EQ(caps.dwRuleCodes[3], 0u);
    EXPECT_EQ(caps.nMaxStaffs, 23);
    EXPECT_EQ(caps.nMaxPointOfLine, 24);
    EXPECT_EQ(caps.nMaxPointOfRegion, 25);
    EXPECT_EQ(caps.nMaxInternalOptions, 26);
    EXPECT_EQ(caps.bComplexSizeFilter, 1);
    EXPECT_EQ(caps.bSpecifiedObjectFilter, 1);
    EXPECT_EQ(caps.nMaxExcludeRegions, 27);
    EXPECT_EQ(caps.nMaxExcludeRegionsHigh, 0);
    EXPECT_EQ(caps.nMaxExcludeRegionsLow, 0);
    EXPECT_EQ(caps.nMaxSpecialDetectRegions, 28);
    EXPECT_EQ(caps.nTimeSectionNum, 29);
    EXPECT_EQ(caps.nSpecialPropertyNum, 2); // the null keeps its place and does not count
    EXPECT_EQ(caps.nSpecialProperties[0], 3);
    EXPECT_EQ(caps.nSpecialProperties[1], 0);
    EXPECT_EQ(caps.nSpecialProperties[2], 1);
    EXPECT_EQ(caps.dwVideoChannelTypes, 5u);
    EXPECT_EQ(caps.bMultiSceneSwitch, 1);
    EXPECT_EQ(caps.nSceneCompNum, 2);
    EXPECT_EQ(caps.stuSceneComps[0].nCount, 2);
    EXPECT_STREQ(caps.stuSceneComps[0].szNames[1], "Traffic");
    EXPECT_EQ(caps.stuSceneComps[1].nCount, 1);
    EXPECT_STREQ(caps.stuSceneComps[1].szNames[0], "0123456789ABCDEF");
    EXPECT_EQ(caps.nDisplayCameraAngle, 2);
    EXPECT_EQ(caps.nFilterMask, 30);

    ASSERT_EQ(caps.nSceneCapsNum, 3);
    EXPECT_STREQ(caps.stuSceneCaps[0].szName, "Face");
    EXPECT_EQ(caps.stuSceneCaps[0].nRuleNum, 0);
    EXPECT_STREQ(caps.stuSceneCaps[2].szName, "Traffic");
    EXPECT_EQ(caps.stuSceneCaps[2].nMaxRules, 31);
    EXPECT_EQ(caps.stuSceneCaps[2].nSubTypeNum, 0);
    const auto& scene = caps.stuSceneCaps[1];
    EXPECT_STREQ(scene.szName, "Normal");
    EXPECT_EQ(scene.nObjectTypeNum, 3);
    EXPECT_STREQ(scene.szObjectTypes[2], "Face");
    EXPECT_EQ(scene.nMaxCelibateAreas, 11);
    ASSERT_EQ(scene.nCalibrateNum, 3); // in the order of their codes
    const CFG_CALIBRATE_CAPS expected[] = {{1, 0, 0, 10, 9}, {2, 6, 5, 0, 0}, {4, 2, 1, 4, 3}, {0, 0, 0, 0, 0}};
    EXPECT_EQ(std::memcmp(scene.stuCalibrates, expected, sizeof expected), 0);
    EXPECT_EQ(scene.bCameraAspect, 1);
    EXPECT_EQ(scene.bJitter, 0);
    EXPECT_EQ(scene.bDejitter, 1);
    EXPECT_EQ(scene.bDisturbance, 1);
    EXPECT_EQ(scene.bAntiDisturbance, 0);
    EXPECT_EQ(scene.bBacklight, 1);
    EXPECT_EQ(scene.bShadow, 0);
    EXPECT_EQ(scene.bAccuracy, 1);
    EXPECT_EQ(scene.bMovingStep, 0);
    EXPECT_EQ(scene.bScalingFactor, 1);
    EXPECT_EQ(scene.bThresholdY, 0);
    EXPECT_EQ(scene.bThresholdUV, 1);
    EXPECT_EQ(scene.bThresholdEdge, 0);
    EXPECT_EQ(scene.bDetectBalance, 1);
    EXPECT_EQ(scene.bAlgorithmIndex, 0);
    EXPECT_EQ(scene.bHighlight, 1);
    EXPECT_EQ(scene.bSnapshot, 0);
    EXPECT_EQ(scene.bDetectRegion, 1);
    EXPECT_EQ(scene.bExcludeRegion, 0);
    EXPECT_EQ(scene.bContourAssistantTrack, 1);
    EXPECT_EQ(scene.bPixel, 1);
    EXPECT_EQ(scene.bMetric, 0);
    EXPECT_EQ(scene.bCalibratedPixel, 1);
    EXPECT_EQ(scene.nMaxRules, 12);
    EXPECT_EQ(scene.bSupportedSetModule, 1);
    EXPECT_EQ(scene.nSubTypeNum, 2);
    EXPECT_STREQ(scene.szSubTypes[0], "Indoor");
    EXPECT_STREQ(scene.szSubTypes[1], "Outdoor");

    ASSERT_EQ(scene.nRuleNum, 3);
    EXPECT_EQ(scene.stuRules[1].dwRuleCode, 0u); // "Nonsense"
    EXPECT_STREQ(scene.stuRules[1].szActions[0], "x");
    EXPECT_EQ(scene.stuRules[2].dwRuleCode, 10u); // "TailDetection": null
    EXPECT_EQ(scene.stuRules[2].nActionNum, 0);
    const auto& rule = scene.stuRules[0];
    EXPECT_EQ(rule.dwRuleCode, 2u);
    EXPECT_EQ(rule.nObjectTypeNum, 2);
    EXPECT_STREQ(rule.szObjectTypes[1], "Vehicle");
    EXPECT_EQ(rule.nActionNum, 3);
    EXPECT_STREQ(rule.szActions[2], "Inside");
    EXPECT_EQ(rule.nDetectTypeNum, 1);
    EXPECT_STREQ(rule.szDetectTypes[0], "LeftToRight");
    EXPECT_EQ(rule.nHumanFaceTypeNum, 4);
    EXPECT_STREQ(rule.szHumanFaceTypes[3], "Hat");
    EXPECT_EQ(rule.bTriggerPosition, 1);
    EXPECT_EQ(rule.bTriggerTrack, 1);
}

TEST(AnalyseCaps, EveryMemberIsRead) {
    LogLines log;
    const auto caps = Caps(FullCaps());
    ASSERT_TRUE(caps);
    EXPECT_EQ(caps.length, sizeof(CFG_ANALYSECAPS_INFO));
    ExpectAllOfTheChannel(*caps);
    const CFG_RULE_CAPS& rule = caps->stuSceneCaps[1].stuRules[0];
    EXPECT_EQ(rule.bFeatureSupport, 1);
    EXPECT_EQ(rule.nFeatureNum, 5);
    const std::int32_t features[] = {1, 9, 0, 2, 0, 0};
    EXPECT_EQ(std::memcmp(rule.nFeatures, features, sizeof features), 0);
    EXPECT_TRUE(log.texts(E_LOG_LEVEL_DETAIL).empty());
    EXPECT_TRUE(log.texts(E_LOG_LEVEL_ERROR).empty());
}

TEST(AnalyseCaps, TheOtherFormIsTheSameWithoutFeatures) {
    EXPECT_EQ(sizeof(CFG_RULE_CAPS) - sizeof(CFG_RULE_CAPS_EX), 4 + 4 + 32 * 4);
    EXPECT_EQ(sizeof(CFG_ANALYSECAPS_INFO) - sizeof(CFG_ANALYSECAPS_INFO_EX), std::size_t{32} * 128 * 136);
    const auto caps = Caps<CFG_ANALYSECAPS_INFO_EX>(FullCaps(), kCapsEx);
    ASSERT_TRUE(caps);
    EXPECT_EQ(caps.length, sizeof(CFG_ANALYSECAPS_INFO_EX));
    ExpectAllOfTheChannel(*caps);
}

TEST(AnalyseCaps, EachNeedsItsOwnRecordsSize) {
    const std::string text = R"({"result":true,"params":{"caps":{"MaxRules":1}}})";
    const std::vector<char> room(sizeof(CFG_ANALYSECAPS_INFO));
    auto* const buffer = const_cast<char*>(room.data());
    EXPECT_EQ(CLIENT_ParseData(kCaps, text.c_str(), buffer, sizeof(CFG_ANALYSECAPS_INFO) - 1, nullptr), 0);
    EXPECT_EQ(CLIENT_ParseData(kCapsEx, text.c_str(), buffer, sizeof(CFG_ANALYSECAPS_INFO_EX) - 1, nullptr), 0);
    EXPECT_EQ(CLIENT_ParseData(kCaps, text.c_str(), buffer, sizeof(CFG_ANALYSECAPS_INFO), nullptr), 1);
    EXPECT_EQ(CLIENT_ParseData(kCapsEx, text.c_str(), buffer, sizeof(CFG_ANALYSECAPS_INFO_EX), nullptr), 1);
    EXPECT_EQ(CLIENT_PacketData(kCaps, room.data(), sizeof(CFG_ANALYSECAPS_INFO), buffer, 100), 0);
}

TEST(AnalyseCaps, WhatIsAbsentIsZeroButTheSections) {
    for (const char* none : {"{}", "null", "7", R"({"SupportedTimeSectionNum":null,"DisplayCameraAngle":null})"}) {
        LogLines log;
        const auto caps = Caps(none);
        ASSERT_TRUE(caps) << none;
        EXPECT_EQ(caps->nTimeSectionNum, 6) << none;
        auto cleared = Cleared<CFG_ANALYSECAPS_INFO>();
        cleared->nTimeSectionNum = 6;
        EXPECT_EQ(std::memcmp(caps.record.get(), cleared.get(), sizeof *cleared), 0) << none;
        EXPECT_TRUE(log.texts(E_LOG_LEVEL_DETAIL).empty()) << none;
    }
    EXPECT_EQ(Caps(R"({"SupportedTimeSectionNum":0})")->nTimeSectionNum, 0);
    EXPECT_EQ(Caps<CFG_ANALYSECAPS_INFO_EX>("{}", kCapsEx)->nTimeSectionNum, 6);
}

TEST(AnalyseCaps, AnAngleThatNobodyKnowsIsTold) {
    for (const char* bad : {R"("num ")", R"("")", "1", "[]", R"("Degrees")"}) {
        LogLines log;
        const auto caps = Caps(std::string(R"({"DisplayCameraAngle":)") + bad + R"(,"FilterMask":3})");
        ASSERT_TRUE(caps) << bad;
        EXPECT_EQ(caps->nDisplayCameraAngle, 0) << bad;
        EXPECT_EQ(caps->nFilterMask, 3) << bad; // the call goes on
        EXPECT_EQ(log.count(E_LOG_LEVEL_DETAIL, kBadAngle), 1) << bad;
    }
    LogLines log;
    EXPECT_EQ(Caps(R"({"DisplayCameraAngle":"Num"})")->nDisplayCameraAngle, 1);
    EXPECT_EQ(Caps(R"({"DisplayCameraAngle":"mODE"})")->nDisplayCameraAngle, 2);
    EXPECT_EQ(log.count(E_LOG_LEVEL_DETAIL, kBadAngle), 0);
    EXPECT_EQ(Caps<CFG_ANALYSECAPS_INFO_EX>(R"({"DisplayCameraAngle":"x"})", kCapsEx)->nDisplayCameraAngle, 0);
    EXPECT_EQ(log.count(E_LOG_LEVEL_DETAIL, kBadAngle), 1);
}

TEST(AnalyseCaps, TheLogIsToldOfTheAngleFromVideoAnalysis) {
    struct Placed : LogLines {
        std::string source;
        void SetPosition(const char* file, int line, E_LOG_LEVEL level) override {
            source = file;
            LogLines::SetPosition(file, line, level);
        }
    } log;
    ASSERT_TRUE(Caps(R"({"DisplayCameraAngle":"Degrees"})"));
    EXPECT_EQ(log.source, "VideoAnalyseConfig");
}

TEST(AnalyseCaps, ExcludeRegionsAreANumberOrAPair) {
    const auto pair = Caps(R"({"MaxExcludeRegions":[3,5]})");
    EXPECT_EQ(pair->nMaxExcludeRegionsHigh, 5);
    EXPECT_EQ(pair->nMaxExcludeRegionsLow, 3);
    EXPECT_EQ(pair->nMaxExcludeRegions, 0);
    EXPECT_EQ(Caps(R"({"MaxExcludeRegions":[3,5,7]})")->nMaxExcludeRegionsHigh, 5);
    const auto one = Caps(R"({"MaxExcludeRegions":[3]})");
    EXPECT_EQ(one->nMaxExcludeRegionsHigh, 0);
    EXPECT_EQ(one->nMaxExcludeRegionsLow, 0);
}

TEST(AnalyseCaps, ChannelTypesAreBits) {
    const auto typesOf = [](const std::string& list) {
        return Caps(R"({"SupportedVideoChannelType":)" + list + "}")->dwVideoChannelTypes;
    };
    EXPECT_EQ(typesOf(R"(["Digital"])"), 1u);
    EXPECT_EQ(typesOf(R"(["anolog"])"), 2u);
    EXPECT_EQ(typesOf(R"(["Both","Both"])"), 4u);
    EXPECT_EQ(typesOf(R"(["Both","Anolog","Analog",null,3,"Digital"])"), 7u);
    EXPECT_EQ(typesOf(R"("Digital")"), 0u);
    EXPECT_EQ(typesOf("[]"), 0u);
}

TEST(AnalyseCaps, OnlyOneSupportsFeatures) {
    const auto supports = [](const std::string& value) {
        const auto caps =
            Caps(R"({"SupportedScenes":{"a":{"SupportedRules":{"All":{"FeatureSupport":)" + value + "}}}}}");
        EXPECT_EQ(caps->stuSceneCaps[0].stuRules[0].dwRuleCode, 1u);
        return caps->stuSceneCaps[0].stuRules[0].bFeatureSupport;
    };
    EXPECT_EQ(supports("1"), 1);
    EXPECT_EQ(supports("true"), 1);
    EXPECT_EQ(supports("2"), 0);
    EXPECT_EQ(supports("0"), 0);
    EXPECT_EQ(supports("-1"), 0);
}

TEST(AnalyseCaps, FeaturesAreKnownByTenNames) {
    const auto caps = Caps(R"({"SupportedScenes":{"a":{"SupportedRules":{"All":{"FeatureList":["Sex","Age","Emotion",
        "Glasses","Race","Eye","Mouth","Mask","Beard","ATTRACTIVE","Sexy",4]}}}}})");
    const CFG_RULE_CAPS& rule = caps->stuSceneCaps[0].stuRules[0];
    EXPECT_EQ(rule.nFeatureNum, 12);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(rule.nFeatures[i], i + 1);
    EXPECT_EQ(rule.nFeatures[10], 0);
    EXPECT_EQ(rule.nFeatures[11], 0);
}

TEST(AnalyseCaps, ListsEndAtTheirArrays) {
    for (const int over : {0, 1}) {
        const auto caps = Caps(R"({"SupportedScene":)" + List(32 + over, "\"s\"") + R"(,"SupportedObjectType":)"
                               + List(16 + over, "\"o\"") + R"(,"SupportedRules":)" + List(128 + over, "\"All\"")
                               + R"(,"SupportedSpecialDetectRegionProperty":)" + List(4 + over, "\"Highlight\"")
                               + R"(,"SupportedComp":)" + List(4 + over, List(8 + over, "\"c\""))
                               + R"(,"SupportedScenes":)" + Members(32 + over, "s", R"({"MaxRules":8})") + "}");
        EXPECT_EQ(caps->nSceneNum, 32);
        EXPECT_STREQ(caps->szScenes[31], "s");
        EXPECT_EQ(caps->nObjectTypeNum, 16);
        EXPECT_STREQ(caps->szObjectTypes[15], "o");
        EXPECT_EQ(caps->nMaxRules, 0);
        EXPECT_EQ(caps->nRuleNum, 128);
        EXPECT_EQ(caps->dwRuleCodes[127], 1u);
        EXPECT_EQ(caps->nMaxStaffs, 0);
        EXPECT_EQ(caps->nSpecialPropertyNum, 4);
        EXPECT_EQ(caps->nSpecialProperties[3], 1);
        EXPECT_EQ(caps->nSceneCompNum, 4);
        EXPECT_EQ(caps->stuSceneComps[3].nCount, 8);
        EXPECT_STREQ(caps->stuSceneComps[3].szNames[7], "c");
        EXPECT_EQ(caps->nSceneCapsNum, 32);
        EXPECT_STREQ(caps->stuSceneCaps[31].szName, "s131");
        EXPECT_EQ(caps->stuSceneCaps[31].nMaxRules, 8);
    }
    EXPECT_EQ(Caps(R"({"SupportedScenes":)" + Members(40, "s", "null") + "}")->nSceneCapsNum, 32);
}

TEST(AnalyseCaps, ListsOfASceneEndAtTheirArrays) {
    for (const int over : {0, 1}) {
        const std::string rule = R"({"SupportedObjectTypes":)" + List(16 + over, "\"o\"") + R"(,"SupportedActions":)"
                                 + List(16 + over, "\"a\"") + R"(,"SupportedDetectTypes":)" + List(16 + over, "\"d\"")
                                 + R"(,"SupportedHumanFaceTypes":)" + List(8 + over, "\"f\"") + R"(,"FeatureList":)"
                                 + List(32 + over, "\"Eye\"") + "}";
        const auto caps = Caps(R"({"SupportedScenes":{"a":{"SupportedObjectTypes":)" + List(16 + over, "\"o\"")
                               + R"(,"SupportedRules":)" + Members(128 + over, "r", rule)
                               + R"(}},"SupportedSceneSubType":{"a":)" + List(32 + over, "\"t\"") + "}}");
        const CFG_SCENE_CAPS& scene = caps->stuSceneCaps[0];
        EXPECT_EQ(scene.nObjectTypeNum, 16);
        EXPECT_EQ(scene.nRuleNum, 128);
        EXPECT_EQ(scene.nSubTypeNum, 32);
        EXPECT_STREQ(scene.szSubTypes[31], "t");
        const CFG_RULE_CAPS& last = scene.stuRules[127];
        EXPECT_EQ(last.nObjectTypeNum, 16);
        EXPECT_EQ(last.nActionNum, 16);
        EXPECT_STREQ(last.szActions[15], "a");
        EXPECT_EQ(last.nDetectTypeNum, 16);
        EXPECT_STREQ(last.szDetectTypes[15], "d");
        EXPECT_EQ(last.nHumanFaceTypeNum, 8);
        EXPECT_STREQ(last.szHumanFaceTypes[7], "f");
        EXPECT_EQ(last.nFeatureNum, 32);
        EXPECT_EQ(last.nFeatures[31], 6);
        EXPECT_EQ(scene.nCalibrateNum, 0);
    }
}

TEST(AnalyseCaps, NamesAreCutToTheirFields) {
    const std::string name(300, 'n');
    const auto caps = Caps(R"({"SupportedScene":[")" + name + R"("],"SupportedObjectType":[")" + name
                           + R"("],"SupportedScenes":{")" + name + R"(":{}},"SupportedComp":[[")" + name
                           + R"("]],"SupportedSceneSubType":{")" + name + R"(":[")" + name + R"("]}})");
    EXPECT_EQ(caps->szScenes[0], std::string(127, 'n'));
    EXPECT_EQ(caps->szObjectTypes[0], std::string(127, 'n'));
    EXPECT_EQ(caps->stuSceneCaps[0].szName, std::string(259, 'n'));
    EXPECT_EQ(caps->stuSceneComps[0].szNames[0], std::string(16, 'n'));
    EXPECT_EQ(caps->stuSceneCaps[0].szSubTypes[0], std::string(63, 'n')); // found by the whole name
}

TEST(AnalyseCaps, ValuesOfOtherTypesAreNone) {
    const auto caps = Caps(R"({"SupportedScenes":["a"],"SupportedRules":{"All":1},"SupportedScene":"a",
        "SupportedComp":["a",[]],"SupportedSceneSubType":7})");
    ASSERT_TRUE(caps);
    EXPECT_EQ(caps->nSceneCapsNum, 0);
    EXPECT_EQ(caps->nRuleNum, 0);
    EXPECT_EQ(caps->nSceneNum, 0);
    EXPECT_EQ(caps->nSceneCompNum, 2);
    EXPECT_EQ(caps->stuSceneComps[0].nCount, 0);
}

TEST(AnalyseCaps, ResultMustBeTrue) {
    for (const char* result : {"false", "0", "null", "\"\""}) {
        const auto caps = Caps(R"({"MaxRules":1})", kCaps, result);
        EXPECT_FALSE(caps) << result;
        EXPECT_TRUE(caps.isCleared()) << result;
        EXPECT_FALSE(Caps<CFG_ANALYSECAPS_INFO_EX>("{}", kCapsEx, result)) << result;
    }
}

TEST(AnalyseCaps, TextThatIsNoJsonIsTold) {
    for (const char* command : {kCaps, kCapsEx}) {
        LogLines log;
        EXPECT_FALSE(ParseDocument<CFG_ANALYSECAPS_INFO>(command, R"({"result":true,)"));
        EXPECT_EQ(log.texts(E_LOG_LEVEL_ERROR), std::vector<std::string>{"Missing '}' or object member name"});
    }
    LogLines log;
    EXPECT_FALSE(ParseDocument<CFG_ANALYSECAPS_INFO>(kCaps, R"({"result":false})"));
    EXPECT_TRUE(log.texts(E_LOG_LEVEL_ERROR).empty());
}

// ---- "devAudioAnalyse.getCaps" ----

constexpr const char* kAudioCaps = "devAudioAnalyse.getCaps";

TEST(AudioAnalyseCaps, CountsTheNamesOfRules) {
    const auto caps = Caps<CFG_AUDIOANALYSECAPS_INFO>(
        R"({"SupportedRules":{"FlowStat":{},"AudioAbnormalDetection":null,"Zzz":1,"audioabnormaldetection":{}}})",
        kAudioCaps);
    ASSERT_TRUE(caps);
    EXPECT_EQ(caps.length, sizeof(CFG_AUDIOANALYSECAPS_INFO));
    EXPECT_EQ(caps->nRuleNum, 4);
    EXPECT_EQ(caps->dwRuleCodes[0], 294u);
    EXPECT_EQ(caps->dwRuleCodes[1], 15u);
    EXPECT_EQ(caps->dwRuleCodes[2], 0u);
    EXPECT_EQ(caps->dwRuleCodes[3], 0u);
}

TEST(AudioAnalyseCaps, EndsAt128Rules) {
    for (const int rules : {128, 129}) {
        const auto caps =
            Caps<CFG_AUDIOANALYSECAPS_INFO>(R"({"SupportedRules":)" + Members(rules - 1, "A", "{}") + "}", kAudioCaps);
        EXPECT_EQ(caps->nRuleNum, rules - 1);
    }
    EXPECT_EQ(
        Caps<CFG_AUDIOANALYSECAPS_INFO>(R"({"SupportedRules":)" + Members(200, "A", "{}") + "}", kAudioCaps)->nRuleNum,
        128);
}

TEST(AudioAnalyseCaps, ANegativeResultRefusesAndNoneDoesNot) {
    EXPECT_TRUE(ParseDocument<CFG_AUDIOANALYSECAPS_INFO>(kAudioCaps, R"({"params":{"caps":{}}})"));
    EXPECT_FALSE(Caps<CFG_AUDIOANALYSECAPS_INFO>("{}", kAudioCaps, "false"));
    EXPECT_FALSE(ParseDocument<CFG_AUDIOANALYSECAPS_INFO>(kAudioCaps, "{"));
    const auto none = Caps<CFG_AUDIOANALYSECAPS_INFO>(R"({"SupportedRules":["FlowStat"]})", kAudioCaps);
    ASSERT_TRUE(none);
    EXPECT_TRUE(none.isCleared());
}

// ---- "intelli.getCaps.AnalyseMode" ----

TEST(AnalyseMode, IsOneOfThree) {
    const auto modeOf = [](const std::string& caps) {
        const auto mode = Caps<CFG_ANALYSEMODE_INFO>(caps, "intelli.getCaps.AnalyseMode");
        EXPECT_TRUE(mode);
        EXPECT_EQ(mode.length, 4u);
        return mode->nAnalyseMode;
    };
    EXPECT_EQ(modeOf(R"({"AnalyseMode":"RealStream"})"), 0);
    EXPECT_EQ(modeOf(R"({"AnalyseMode":"recordfilestream"})"), 1);
    EXPECT_EQ(modeOf(R"({"AnalyseMode":"PicFileStream"})"), 2);
    EXPECT_EQ(modeOf(R"({"AnalyseMode":"Else"})"), 0);
    EXPECT_EQ(modeOf(R"({"AnalyseMode":2})"), 0);
    EXPECT_EQ(modeOf("{}"), 0);
    EXPECT_EQ(modeOf("null"), 0);
    EXPECT_FALSE(Caps<CFG_ANALYSEMODE_INFO>("{}", "intelli.getCaps.AnalyseMode", "false"));
}

// ---- Channels ----

TEST(AnalyseChannels, AreTheResultOrAMemberOfTheReply) {
    for (const char* command : {"intelli.getVideoAnalyseDeviceChannels", "devVideoAnalyse.factory.getCollect"}) {
        const auto channelsOf = [&](const std::string& document) {
            const auto channels = ParseDocument<CFG_ANALYSECHANNELS_INFO>(command, document);
            EXPECT_TRUE(channels) << document;
            EXPECT_EQ(channels.length, 4u);
            return channels->nChannels;
        };
        EXPECT_EQ(channelsOf(R"({"result":7})"), 7);
        EXPECT_EQ(channelsOf(R"({"result":7,"params":{"channels":9}})"), 9);
        EXPECT_EQ(channelsOf(R"({"params":{"channels":9}})"), 9);
        EXPECT_EQ(channelsOf(R"({"result":7,"params":{"channels":null}})"), 7);
        EXPECT_EQ(channelsOf(R"({"result":0})"), 0);
        EXPECT_EQ(channelsOf(R"({"result":0,"params":{"channels":3}})"), 3);
        EXPECT_EQ(channelsOf(R"({"result":true})"), 0);
        EXPECT_EQ(channelsOf(R"({"result":"5"})"), 0);
        EXPECT_EQ(channelsOf(R"({"result":2.5})"), 0);
        EXPECT_EQ(channelsOf(R"({"result":false,"params":{"channels":2}})"), 2);
        EXPECT_EQ(channelsOf("{}"), 0);
        EXPECT_EQ(channelsOf("[]"), 0);
        EXPECT_FALSE(ParseDocument<CFG_ANALYSECHANNELS_INFO>(command, "{"));
    }
}

// ---- "netApp.getRemoteDeviceStatus" ----

Parsed<CFG_REMOTEDEVICE_STATUS_INFO> Status(const std::string& status) {
    return ParseDocument<CFG_REMOTEDEVICE_STATUS_INFO>("netApp.getRemoteDeviceStatus",
                                                       R"({"result":true,"params":{"status":)" + status + "}}");
}

TEST(RemoteDeviceStatus, ReadsEachDevice) {
    const auto status = Status(R"([{"Online":true,"Device":"Door"},{"Online":false,"Device":"Gate"}])");
    ASSERT_TRUE(status);
    EXPECT_EQ(status.length, sizeof(CFG_REMOTEDEVICE_STATUS_INFO));
    EXPECT_EQ(status->nCount, 2);
    EXPECT_EQ(status->stuEntries[0].bOnline, 1);
    EXPECT_STREQ(status->stuEntries[0].szDeviceName, "Door");
    EXPECT_EQ(status->stuEntries[1].bOnline, 0);
    EXPECT_STREQ(status->stuEntries[1].szDeviceName, "Gate");
    EXPECT_EQ(status->stuEntries[2].szDeviceName[0], '\0');
}

TEST(RemoteDeviceStatus, AnElementWithoutOnlineEndsTheList) {
    const auto status =
        Status(R"([{"Online":true,"Device":"Door"},{"Device":"Gate"},{"Online":true,"Device":"Roof"}])");
    ASSERT_TRUE(status);
    EXPECT_EQ(status->nCount, 3);
    EXPECT_STREQ(status->stuEntries[0].szDeviceName, "Door");
    EXPECT_STREQ(status->stuEntries[1].szDeviceName, "");
    EXPECT_STREQ(status->stuEntries[2].szDeviceName, "");
    EXPECT_TRUE(Status("[null,{\"Online\":true}]"));
}

TEST(RemoteDeviceStatus, AnElementWithoutDeviceFailsTheCall) {
    const auto status = Status(R"([{"Online":true,"Device":"Door"},{"Online":true},{"Online":true,"Device":"Roof"}])");
    EXPECT_FALSE(status);
    EXPECT_STREQ(status->stuEntries[0].szDeviceName, "Door");
    EXPECT_STREQ(status->stuEntries[2].szDeviceName, "");
}

TEST(RemoteDeviceStatus, CountsBeyondItsArray) {
    const std::string device = R"({"Online":true,"Device":"d"})";
    for (const int devices : {192, 193}) {
        const auto status = Status(List(devices, device));
        ASSERT_TRUE(status);
        EXPECT_EQ(status->nCount, devices);
        EXPECT_STREQ(status->stuEntries[191].szDeviceName, "d");
    }
}

TEST(RemoteDeviceStatus, WhatIsBeyondItsArrayIsNotLookedAt) {
    const auto withLast = [](int devices) {
        std::string list = List(devices - 1, R"({"Online":true,"Device":"d"})");
        list.back() = ',';
        return Status(list + R"({"Online":true}])");
    };
    EXPECT_FALSE(withLast(192));
    const auto beyond = withLast(193);
    ASSERT_TRUE(beyond);
    EXPECT_EQ(beyond->nCount, 193);
}

TEST(RemoteDeviceStatus, AnElementWithNeitherEndsTheList) {
    for (const char* end : {"{}", "null", "5", R"({"Online":null,"Device":null})"}) {
        const auto status = Status(std::string(R"([{"Online":true,"Device":"Door"},)") + end + R"(,{"Online":true}])");
        ASSERT_TRUE(status) << end;
        EXPECT_EQ(status->nCount, 3) << end;
        EXPECT_STREQ(status->stuEntries[0].szDeviceName, "Door") << end;
    }
}

TEST(RemoteDeviceStatus, NamesAreCutToTheirField) {
    const std::string name(128, 'n');
    const auto status = Status(R"([{"Online":true,"Device":")" + name + "\"}]");
    EXPECT_EQ(status->stuEntries[0].szDeviceName, std::string(127, 'n'));
}

TEST(RemoteDeviceStatus, WithoutAListThereAreNone) {
    for (const char* none : {"null", "[]", "3", R"({"Online":true,"Device":"d"})"}) {
        const auto status = Status(none);
        ASSERT_TRUE(status) << none;
        EXPECT_EQ(status->stuEntries[0].bOnline, 0);
    }
    EXPECT_EQ(Status("[]")->nCount, 0);
    EXPECT_FALSE(ParseDocument<CFG_REMOTEDEVICE_STATUS_INFO>("netApp.getRemoteDeviceStatus",
                                                             R"({"result":false,"params":{"status":[]}})"));
}

} // namespace
} // namespace orrery::test
