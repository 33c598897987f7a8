// Templates as the companion prints them, read back with a reader other than the library's own.
#include "orrery/ShowTemplate.h"

#include <gmock/gmock.h>
#include <json/json.h>
#include <sstream>

namespace orrery::tool {
namespace {

using testing::HasSubstr;

Json::Value ReadBack(const Result& result) {
    Json::Value value;
    std::istringstream(result.out) >> value;
    return value;
}

TEST(ShowTemplate, PrintsEachRecord) {
    const Result global = ShowTemplate("VideoInAnalyse.getTemplateGlobal",
                                       R"({"result":true,"params":{"Scene":{"Type":"Normal","PtzPresetId":4}}})");
    EXPECT_EQ(global.exit, kDone);
    EXPECT_EQ(global.err, "");
    EXPECT_EQ(ReadBack(global)["nPtzPresetId"], 4);
    EXPECT_EQ(ReadBack(global)["nClass"]["name"], "Normal");

    const char* const module = R"({"params":{"Traffic":{"ObjectType":"Car"}}})";
    const Result cars = ShowTemplate("VideoInAnalyse.getTemplateModule", module, {.ruleClass = "traffic"});
    EXPECT_EQ(cars.err, "");
    EXPECT_EQ(ReadBack(cars)["szObjectType"], "Car");
    const Result none = ShowTemplate("VideoInAnalyse.getTemplateModule", module, {.ruleClass = "Normal"});
    EXPECT_EQ(none.exit, kDone);
    EXPECT_EQ(none.err, "orrery: note: the reply has no \"params\".\"Normal\"; the record is empty\n");

    const Result rules =
        ShowTemplate("VideoInAnalyse.getTemplateRule",
                     R"({"params":{"Normal":{"a":{"Type":"FireDetection","Class":"Normal","Name":"one"}}}})",
                     {.ruleClass = "Normal"});
    EXPECT_EQ(rules.exit, kDone);
    EXPECT_EQ(ReadBack(rules)["nRuleCount"], 1);
    EXPECT_EQ(ReadBack(rules)["pRuleBuf"][0]["record"]["szRuleName"], "one");
}

TEST(ShowTemplate, TellsWhyItRefuses) {
    const auto why = [](const char* command, const char* text, const char* ruleClass) {
        const Result result = ShowTemplate(command, text, {.ruleClass = ruleClass});
        EXPECT_EQ(result.exit, kRefused);
        EXPECT_EQ(result.out, "");
        return result.err;
    };
    const char* const module = "VideoInAnalyse.getTemplateModule";
    EXPECT_THAT(why("VideoInAnalyse.getTemplateModul", "{}", "Normal"), HasSubstr("getTemplateModule"));
    EXPECT_THAT(why(module, "{}", ""), HasSubstr("--class"));
    EXPECT_THAT(why(module, "{}", "Trafic"), HasSubstr("Traffic"));
    EXPECT_THAT(why(module, "{}", "CrowdDistriMap"), HasSubstr("no class with templates"));
    EXPECT_THAT(why(module, "{", "Normal"), HasSubstr("line 1"));
    EXPECT_THAT(why(module, R"({"result":false})", "Normal"), HasSubstr("refused"));
    EXPECT_THAT(why("VideoInAnalyse.getTemplateRule", R"({"params":{"Normal":{"a":{}}}})", "Normal"),
                HasSubstr("\"Class\""));
}

} // namespace
} // namespace orrery::tool
