// Templates of analysis settings.
#include "orrery/analyse_templates.h"
#include "orrery/rule_bodies.h"
#include "support/Call.h"
#include "support/FailingAllocator.h"
#include "support/LogLines.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace orrery::test {
namespace {

constexpr const char* kGlobal = "VideoInAnalyse.getTemplateGlobal";
constexpr const char* kModule = "VideoInAnalyse.getTemplateModule";
constexpr const char* kRule = "VideoInAnalyse.getTemplateRule";

template <class R>
Parsed<R> Template(const char* command, std::int32_t classType, const std::string& text, std::size_t less = 0) {
    Parsed<R> parsed;
    std::memset(static_cast<void*>(parsed.record.get()), kUntouched, sizeof(R));
    const int reserved = 0;
    parsed.result = CLIENT_ParseVideoInAnalyse(command, classType, text.c_str(), &reserved, parsed.record.get(),
                                               static_cast<std::uint32_t>(sizeof(R) - less));
    return parsed;
}
std::string Reply(const std::string& params) {
    return R"({"result":true,"params":)" + params + "}";
}
Parsed<CFG_TEMPLATE_GLOBAL_INFO> Global(const std::string& params) {
    return Template<CFG_TEMPLATE_GLOBAL_INFO>(kGlobal, 0, Reply(params));
}

// ---- Arguments -----------------------------------------------------------------------------------------------------

TEST(Templates, NeedAllButAClass) {
    const auto output = std::make_unique<CFG_TEMPLATE_GLOBAL_INFO>();
    const int reserved = 0;
    const auto size = static_cast<std::uint32_t>(sizeof *output);
    EXPECT_EQ(CLIENT_ParseVideoInAnalyse(kGlobal, 0, "{}", &reserved, output.get(), size), 1);
    EXPECT_EQ(CLIENT_ParseVideoInAnalyse(nullptr, 0, "{}", &reserved, output.get(), size), 0);
    EXPECT_EQ(CLIENT_ParseVideoInAnalyse(kGlobal, 0, nullptr, &reserved, output.get(), size), 0);
    EXPECT_EQ(CLIENT_ParseVideoInAnalyse(kGlobal, 0, "{}", nullptr, output.get(), size), 0);
    EXPECT_EQ(CLIENT_ParseVideoInAnalyse(kGlobal, 0, "{}", &reserved, nullptr, size), 0);
    EXPECT_EQ(CLIENT_ParseVideoInAnalyse(kGlobal, 0, "{}", &reserved, output.get(), 0), 0);
    EXPECT_EQ(CLIENT_ParseVideoInAnalyse("x", 0, "{}", &reserved, output.get(), 0), 0);
}

TEST(Templates, OtherMethodsAreDoneWithNothingDone) {
    for (const char* other : {"", "x", "VideoAnalyseRule", "VideoInAnalyse.getTemplateglobal",
                              "VideoInAnalyse.getTemplateGlobal ", "VideoInAnalyse.getTemplate"}) {
        const auto parsed = Template<CFG_MODULE_INFO>(other, 1, "no JSON");
        EXPECT_TRUE(parsed) << other;
        EXPECT_TRUE(parsed.isUntouched()) << other;
    }
}

TEST(Templates, NeedRoomForTheirRecord) {
    EXPECT_FALSE(Template<CFG_TEMPLATE_GLOBAL_INFO>(kGlobal, 0, "{}", 1));
    EXPECT_FALSE(Template<CFG_MODULE_INFO>(kModule, 1, "{}", 1));
    EXPECT_FALSE(Template<CFG_ANALYSERULES_INFO>(kRule, 1, "{}", 1));
    EXPECT_TRUE(Template<CFG_MODULE_INFO>(kModule, 1, "{}", 1).isUntouched());
}

TEST(Templates, ARefusedCallGivesNothingAndAnAbsentResultDoesNotRefuse) {
    for (const char* refused : {R"({"result":false,"params":{}})", R"({"result":0})", "{"}) {
        EXPECT_FALSE(Template<CFG_TEMPLATE_GLOBAL_INFO>(kGlobal, 0, refused)) << refused;
        EXPECT_FALSE(Template<CFG_MODULE_INFO>(kModule, 1, refused)) << refused;
        EXPECT_FALSE(Template<CFG_ANALYSERULES_INFO>(kRule, 1, refused)) << refused;
    }
    for (const char* taken : {"{}", R"({"params":{}})", R"({"result":null})", R"({"result":"yes"})"}) {
        EXPECT_TRUE(Template<CFG_TEMPLATE_GLOBAL_INFO>(kGlobal, 0, taken).isCleared()) << taken;
        EXPECT_TRUE(Template<CFG_MODULE_INFO>(kModule, 1, taken)) << taken;
    }
}

// ---- The scene -----------------------------------------------------------------------------------------------------

// A scene of that type whose detail has a key of each group.
std::string Scene(const std::string& type) {
    return R"({"Scene":{"Type":")" + type + R"(","PtzPresetId":7,"Detail":{"CameraHeight":2.5,"CameraDistance":3.5,
        "CameraAngle":4.5,"Landline":[[1,2],[3,4]],"PlateHints":["A","B"],"NearDistance":9,"MainDirection":[[5,6]],
        "FaceAngleDown":10,"DetectType":"Both"}}})";
}

TEST(Templates, AClassFillsItsOwnPartOfADetail) {
    const auto normal = Global(Scene("Normal"));
    ASSERT_TRUE(normal);
    EXPECT_EQ(normal->nClass, 1);
    EXPECT_EQ(normal->nPtzPresetId, 7);
    EXPECT_EQ(normal->stuDetail.dCameraHeight, 2.5);
    EXPECT_EQ(normal->stuDetail.dCameraDistance, 3.5);
    EXPECT_EQ(normal->stuDetail.dCameraAngle, 4.5);
    EXPECT_EQ(normal->stuDetail.stuLandline[1].nY, 4);
    EXPECT_EQ(normal->stuDetail.nPlateHintNum, 0);
    EXPECT_EQ(normal->stuDetail.nDetectType, 0);

    const auto counting = Global(Scene("NumberStat"));
    EXPECT_EQ(counting->nClass, 9);
    EXPECT_EQ(counting->stuDetail.dCameraHeight, 2.5);
    EXPECT_EQ(counting->stuDetail.stuLandline[0].nX, 1);

    const auto traffic = Global(Scene("Traffic"));
    EXPECT_EQ(traffic->nClass, 2);
    EXPECT_EQ(traffic->stuDetail.dCameraHeight, 2.5);
    EXPECT_EQ(traffic->stuDetail.nNearDistance, 9);
    EXPECT_EQ(traffic->stuDetail.nPlateHintNum, 2);
    EXPECT_EQ(traffic->stuDetail.dCameraAngle, 0); // no key of this type

    const auto patrol = Global(Scene("TrafficPatrol"));
    EXPECT_EQ(patrol->nClass, 3);
    EXPECT_EQ(patrol->stuDetail.nPlateHintNum, 2);
    EXPECT_STREQ(patrol->stuDetail.szPlateHints[1], "B");
    EXPECT_EQ(patrol->stuDetail.dCameraHeight, 0);

    const auto face = Global(Scene("FaceDetection"));
    EXPECT_EQ(face->nClass, 4);
    EXPECT_EQ(face->stuDetail.bFaceScene, 1);
    EXPECT_EQ(face->stuDetail.dFaceCameraHeight, 2.5);
    EXPECT_EQ(face->stuDetail.nMainDirectionNum, 1);
    EXPECT_EQ(face->stuDetail.byFaceAngleDown, 10);
    EXPECT_EQ(face->stuDetail.nDetectType, 3);
    EXPECT_EQ(face->stuDetail.dCameraHeight, 0);
}

TEST(Templates, OtherClassesFillNoDetail) {
    const std::pair<const char*, int> others[] = {
        {"FaceRecognition", 7}, {"Highway", 21},       {"City", 22},  {"ATM", 5},
        {"StereoNumber", 29},   {"CrowdDistriMap", 0}, {"normal", 0}, {"", 0}};
    for (const auto& [name, number] : others) {
        const auto other = Global(Scene(name));
        ASSERT_TRUE(other) << name;
        EXPECT_EQ(other->nClass, number) << name;
        EXPECT_EQ(other->nPtzPresetId, 7) << name;
        const CFG_SCENE_DETAIL_INFO zero{};
        EXPECT_EQ(std::memcmp(&other->stuDetail, &zero, sizeof zero), 0) << name;
    }
}

TEST(Templates, ASceneThatIsNoneLeavesTheAreas) {
    std::string areas = "[";
    for (int i = 0; i < 11; ++i)
        areas += std::string(i > 0 ? "," : "") + R"({"Length":)" + std::to_string(i + 1) + R"(,"Method":"Lane"})";
    const auto global = Global(R"({"CalibrateArea":)" + areas + R"(],"Scene":[1]})");
    ASSERT_TRUE(global);
    EXPECT_EQ(global->nCalibrateAreaNum, 10);
    EXPECT_EQ(global->stuCalibrateAreas[9].fLength, 10.0f);
    EXPECT_EQ(global->stuCalibrateAreas[0].nMethod, CFG_CALIBRATE_BY_LANE);
    EXPECT_EQ(global->nClass, 0);
    EXPECT_EQ(global->nPtzPresetId, 0);
}

// Also where a line comes from, and its code.
struct PlacedLines : LogLines {
    std::string source;
    int code = 0;

    void SetPosition(const char* file, int line, E_LOG_LEVEL level) override {
        source = file;
        LogLines::SetPosition(file, line, level);
    }
    void TraceOut(int reserved, int itsCode, const char* format, char*& arguments) override {
        code = itsCode;
        LogLines::TraceOut(reserved, itsCode, format, arguments);
    }
};

TEST(Templates, WithoutMemoryForASceneTheLogHears) {
    const std::string text = Reply(Scene("Normal"));
    const auto output = std::make_unique<CFG_TEMPLATE_GLOBAL_INFO>();
    const int reserved = 0;
    PlacedLines log;
    HeapWatch watch;
    watch.FailFrom(1);
    const std::int32_t result = CLIENT_ParseVideoInAnalyse(kGlobal, 0, text.c_str(), &reserved, output.get(),
                                                           static_cast<std::uint32_t>(sizeof *output));
    const std::size_t failures = watch.failures();
    watch.FailNone();
    EXPECT_EQ(result, 0);
    EXPECT_GT(failures, 0u);
    EXPECT_EQ(log.count(E_LOG_LEVEL_ERROR, "System Error!"), 1);
    EXPECT_EQ(log.source, "VideoInAnalyseParse");
    EXPECT_EQ(static_cast<std::uint32_t>(log.code), 0x80000001u);
}

// ---- The module ----------------------------------------------------------------------------------------------------

TEST(Templates, AModuleStandsUnderItsClass) {
    const std::string params = R"({"Traffic":{"ObjectType":"Car","Sensitivity":3},"":{"ObjectType":"None"},
        "CrowdDistriMap":{"ObjectType":"Crowd"},"StereoNumber":{"ObjectType":"Last"}})";
    const auto objectOf = [&](std::int32_t classType) {
        const auto module = Template<CFG_MODULE_INFO>(kModule, classType, Reply(params));
        EXPECT_TRUE(module) << classType;
        return std::string(module->szObjectType);
    };
    EXPECT_EQ(objectOf(CFG_RULE_CLASS_TRAFFIC), "Car");
    EXPECT_EQ(objectOf(CFG_RULE_CLASS_NORMAL), ""); // not in the reply: a clear record
    EXPECT_EQ(objectOf(CFG_RULE_CLASS_STEREO_NUMBER), "Last");
    EXPECT_EQ(objectOf(CFG_RULE_CLASS_NONE), "None");
    EXPECT_EQ(objectOf(CFG_RULE_CLASS_CROWD_DISTRI_MAP), "None"); // has no template
    EXPECT_EQ(objectOf(-1), "None");
    EXPECT_EQ(objectOf(1000), "None");
    EXPECT_TRUE(Template<CFG_MODULE_INFO>(kModule, 1, Reply(params)).isCleared());
    EXPECT_EQ(Template<CFG_MODULE_INFO>(kModule, 2, Reply(params))->bySensitivity, 3);
}

// ---- The rules -----------------------------------------------------------------------------------------------------

struct Rules {
    std::vector<std::uint8_t> buffer;
    CFG_ANALYSERULES_INFO rules{};

    explicit Rules(std::size_t size) : buffer(size, 0xEE) {
        rules.nRuleCount = -7;
        rules.pRuleBuf = buffer.data();
        rules.nRuleLen = static_cast<std::int32_t>(size);
    }
    bool Parse(const std::string& params, std::int32_t classType = CFG_RULE_CLASS_NORMAL) {
        const int reserved = 0;
        return CLIENT_ParseVideoInAnalyse(kRule, classType, Reply(params).c_str(), &reserved, &rules, sizeof rules)
               != 0;
    }
    CFG_RULE_INFO Head(std::size_t at = 0) const {
        CFG_RULE_INFO head;
        std::memcpy(&head, buffer.data() + at, sizeof head);
        return head;
    }
    bool IsUntouched() const { return std::count(buffer.begin(), buffer.end(), 0xEE) == std::ssize(buffer); }
};
constexpr std::size_t kFire = 528 + sizeof(CFG_RULE_FIRE_INFO);
constexpr std::size_t kMove = 528 + sizeof(CFG_RULE_MOVE_INFO);

TEST(Templates, RulesAreItemsInTheOrderOfTheirNames) {
    Rules rules(kFire + kMove + 9);
    ASSERT_TRUE(rules.Parse(R"({"Normal":{"b":{"Type":"MoveDetection","Class":"Traffic","Name":"move","Id":5},
        "a":{"Type":"FireDetection","Class":"CrowdDistriMap","Name":"fire"}}})"));
    EXPECT_EQ(rules.rules.nRuleCount, 2);
    EXPECT_EQ(rules.Head().dwRuleType, 12u);
    EXPECT_EQ(rules.Head().nRuleSize, static_cast<std::int32_t>(sizeof(CFG_RULE_FIRE_INFO)));
    EXPECT_EQ(rules.Head().stuRuleGeneral.nClass, 0); // has no template
    EXPECT_STREQ(reinterpret_cast<const char*>(rules.buffer.data()) + 528, "fire");
    EXPECT_EQ(rules.Head(kFire).dwRuleType, 9u);
    EXPECT_EQ(rules.Head(kFire).stuRuleGeneral.nClass, 2);
    EXPECT_EQ(rules.Head(kFire).stuRuleGeneral.byId, 0); // a template numbers no rules
    EXPECT_STREQ(reinterpret_cast<const char*>(rules.buffer.data()) + kFire + 528, "move");
    EXPECT_EQ(rules.buffer.back(), 0);
}

TEST(Templates, AMissingClassHasNoRules) {
    Rules rules(kFire);
    ASSERT_TRUE(rules.Parse(R"({"Traffic":{"a":{"Type":"FireDetection","Class":"Normal"}}})"));
    EXPECT_EQ(rules.rules.nRuleCount, 0);
    EXPECT_TRUE(rules.IsUntouched());
}

TEST(Templates, RulesStandUnderTheirClass) {
    const std::string rule = R"({"Type":"FireDetection","Class":"Normal"})";
    const std::string params = R"({"":{"a":)" + rule + R"(},"CrowdDistriMap":{"a":{"Type":"x","Class":"y"}},)"
                               + R"("StereoNumber":{"a":)" + rule + R"(,"b":)" + rule + "}}";
    const std::pair<std::int32_t, std::int32_t> counts[] = {
        {CFG_RULE_CLASS_NONE, 1},
        {CFG_RULE_CLASS_STEREO_NUMBER, 2},
        {CFG_RULE_CLASS_CROWD_DISTRI_MAP, 1},
        {31, 1},
        {-1, 1},
        {CFG_RULE_CLASS_NORMAL, 0},
    };
    for (const auto& [classType, count] : counts) {
        Rules rules(2 * kFire);
        EXPECT_TRUE(rules.Parse(params, classType)) << classType;
        EXPECT_EQ(rules.rules.nRuleCount, count) << classType;
    }
}

TEST(Templates, AClassThatIsNoObjectHasNoRules) {
    for (const char* none : {"[{}]", R"([{"Type":"x","Class":"y"}])", "3", R"("a")", "{}"}) {
        Rules rules(kFire);
        EXPECT_TRUE(rules.Parse(std::string(R"({"Normal":)") + none + "}")) << none;
        EXPECT_EQ(rules.rules.nRuleCount, 0) << none;
        EXPECT_EQ(std::count(rules.buffer.begin(), rules.buffer.end(), 0), std::ssize(rules.buffer)) << none;
    }
}

TEST(Templates, NamesOfTypesAndClassesAreExact) {
    Rules type(kFire);
    EXPECT_FALSE(type.Parse(R"({"Normal":{"a":{"Type":"firedetection","Class":"Normal"}}})"));
    EXPECT_TRUE(type.IsUntouched());
    Rules ruleClass(kFire);
    ASSERT_TRUE(ruleClass.Parse(R"({"Normal":{"a":{"Type":"FireDetection","Class":"traffic"}}})"));
    EXPECT_EQ(ruleClass.Head().stuRuleGeneral.nClass, 0);
}

TEST(Templates, RulesNeedABuffer) {
    const std::string one = R"({"Normal":{"a":{"Type":"FireDetection","Class":"Normal"}}})";
    Rules none(kFire);
    none.rules.pRuleBuf = nullptr;
    EXPECT_FALSE(none.Parse(one));
    EXPECT_EQ(none.rules.nRuleCount, -7);
    EXPECT_TRUE(none.Parse(R"({"Normal":{}})"));
    EXPECT_EQ(none.rules.nRuleCount, 0);
    Rules negative(kFire);
    negative.rules.nRuleLen = -1;
    EXPECT_FALSE(negative.Parse(one));
    EXPECT_FALSE(negative.Parse(R"({"Normal":{}})")); // not even no rules fit
    EXPECT_TRUE(negative.IsUntouched());
    EXPECT_EQ(negative.rules.nRuleCount, -7);
}

// Their records have a size all the same.
TEST(Templates, TypesThatNoDeviceSendsFailAtTheirPlace) {
    for (const char* type : {"StandUpDetection", "TrafficNoPassing"}) {
        LogLines log;
        Rules rules(std::size_t{4} << 20);
        EXPECT_FALSE(rules.Parse(std::string(R"({"Normal":{"a":{"Class":"Normal","Type":")") + type + "\"}}}")) << type;
        EXPECT_EQ(rules.rules.nRuleCount, -7) << type;
        EXPECT_EQ(std::count(rules.buffer.begin(), rules.buffer.end(), 0), std::ssize(rules.buffer)) << type;
        EXPECT_EQ(log.count(E_LOG_LEVEL_DETAIL, "Unknown rules type"), 1) << type;
    }
}

TEST(Templates, ARuleWithoutTypeOrClassFailsAtItsPlace) {
    for (const char* rule : {R"({"Type":"FireDetection"})", R"({"Class":"Normal"})", "{}", "3"}) {
        LogLines log;
        Rules rules(2 * kFire);
        EXPECT_FALSE(rules.Parse(std::string(R"({"Normal":{"a":)") + rule + "}}")) << rule;
        EXPECT_EQ(rules.rules.nRuleCount, -7) << rule;
        EXPECT_EQ(rules.buffer[0], 0) << rule; // cleared before the first is placed
        EXPECT_EQ(log.count(E_LOG_LEVEL_DETAIL, "Unknown rules type"), 1) << rule;
    }
}

TEST(Templates, ATypeWithoutARecordFailsBeforeTheBufferIsTouched) {
    Rules rules(2 * kFire);
    EXPECT_FALSE(
        rules.Parse(R"({"Normal":{"a":{"Type":"FireDetection","Class":"Normal"},"b":{"Type":"x","Class":"y"}}})"));
    EXPECT_TRUE(rules.IsUntouched());
    EXPECT_EQ(rules.rules.nRuleCount, -7);
}

TEST(Templates, RulesThatDoNotFitLeaveTheBuffer) {
    const std::string params = R"({"Normal":{"a":{"Type":"FireDetection","Class":"Normal"}}})";
    Rules small(kFire - 1);
    EXPECT_FALSE(small.Parse(params));
    EXPECT_TRUE(small.IsUntouched());
    Rules exact(kFire);
    EXPECT_TRUE(exact.Parse(params));
    EXPECT_EQ(exact.rules.nRuleCount, 1);
}

TEST(Templates, ANullRuleCountsAndTakesNoItem) {
    Rules rules(kFire + 528);
    ASSERT_TRUE(rules.Parse(R"({"Normal":{"a":null,"b":{"Type":"FireDetection","Class":"Normal","Name":"b"}}})"));
    EXPECT_EQ(rules.rules.nRuleCount, 2);
    EXPECT_EQ(rules.Head().dwRuleType, 12u);
    EXPECT_EQ(rules.Head(kFire).dwRuleType, 0u);
}

TEST(Templates, ThirtyTwoRulesAreRead) {
    std::string members;
    for (int i = 0; i < 33; ++i) {
        members += std::string(i > 0 ? "," : "") + "\"r" + std::to_string(10 + i)
                   + R"(":{"Type":"FireDetection","Class":"Normal"})";
    }
    Rules rules(32 * kFire);
    ASSERT_TRUE(rules.Parse("{\"Normal\":{" + members + "}}"));
    EXPECT_EQ(rules.rules.nRuleCount, 32);
    EXPECT_EQ(rules.Head(31 * kFire).dwRuleType, 12u);
}

} // namespace
} // namespace orrery::test
