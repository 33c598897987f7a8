// Packed buffers in the companion: items by their types' own fields, and back.
#include "orrery/Diff.h"
#include "orrery/FillRecord.h"
#include "orrery/Run.h"

#include "support/RuleBuffer.h"

#include <gtest/gtest.h>

namespace orrery::tool {
namespace {

TEST(Rules, PrintItemsOneByOneAndTakeThemBack) {
    const std::string reply = test::ManyRules(9);
    test::RuleBuffer buffer(std::size_t{9} * 350'000);
    ASSERT_TRUE(buffer.Parse(reply));
    const Result printed = ParseText("VideoAnalyseRule", reply, {});
    ASSERT_EQ(printed.exit, 0) << printed.err;
    for (const char* part : {"\"name\": \"CrossLineDetection\"", "\"name\": \"FireDetection\"",
                             "\"nUpstairsLinePoint\": 1", "\"nRuleCount\": 9"})
        EXPECT_NE(printed.out.find(part), std::string::npos) << part;
    const Result packed = PackText("VideoAnalyseRule", printed.out, {});
    ASSERT_EQ(packed.exit, 0) << packed.err;
    EXPECT_EQ(packed.out, buffer.Pack() + "\n");
}

TEST(Rules, AnItemOfNoKnownTypeIsNamed) {
    const Result refused = PackText("VideoAnalyseRule", R"({"pRuleBuf":[{"head":{"dwRuleType":273}}]})", {});
    EXPECT_NE(refused.exit, 0);
    EXPECT_NE(refused.err.find("pRuleBuf[0].head.dwRuleType"), std::string::npos) << refused.err;
    const Result misspelt =
        PackText("VideoAnalyseRule", R"({"pRuleBuf":[{"head":{"dwRuleType":2},"record":{"nDirecton":1}}]})", {});
    EXPECT_NE(misspelt.err.find("pRuleBuf[0].record.nDirecton"), std::string::npos) << misspelt.err;
}

TEST(Rules, ByHandAHeadNeedsOnlyItsType) {
    const Result packed = PackText(
        "VideoAnalyseRule", R"({"pRuleBuf":[{"head":{"dwRuleType":12},"record":{"szRuleName":"Kitchen"}}]})", {});
    ASSERT_EQ(packed.exit, 0) << packed.err;
    EXPECT_NE(packed.out.find("\"Type\" : \"FireDetection\""), std::string::npos);
    EXPECT_NE(packed.out.find("\"Name\" : \"Kitchen\""), std::string::npos);
}

constexpr const char* kGroups = R"({"params":{"table":[{},{"Rules":{
    "FireDetection":{"Enable":true,"Rule":[{"Name":"Kitchen","PtzPresetId":6},{"Name":"Hall"},{"Name":"Roof"}]},
    "MoveDetection":{"Rule":[]},"Nothing":{"Rule":[{},{},{},{}]}}}]}})";

TEST(Rules, OfAGroupArePrintedByTheirTypesOwnFieldsAndTakenBack) {
    const Result printed = ParseText("VideoInAnalyseRule", kGroups, {.brief = true});
    ASSERT_EQ(printed.exit, 0) << printed.err;
    for (const char* part : {R"("dwRuleType": { "code": 12, "name": "FireDetection" })", R"("nRuleNum": 3)",
                             R"({ "szRuleName": "Kitchen", "nPtzPresetId": 6 })", R"({ "szRuleName": "Roof" })"})
        EXPECT_NE(printed.out.find(part), std::string::npos) << part << printed.out;
    const Result packed = PackText("VideoInAnalyseRule", printed.out, {});
    ASSERT_EQ(packed.exit, 0) << packed.err;
    EXPECT_EQ(packed.err, "");
    for (const char* part : {R"("Name" : "Kitchen")", R"("PtzPresetId" : 6)", R"("Name" : "Roof")",
                             R"("MoveDetection" : { "Enable" : false, "Rule" : [  ] })"})
        EXPECT_NE(packed.out.find(part), std::string::npos) << part << packed.out;
}

TEST(Rules, OfAGroupNeedOnlyItsTypeByHand) {
    const auto pack = [](const std::string& group) {
        return PackText("VideoInAnalyseRule",
                        R"({"nSceneNum":1,"stuScenes":[{"nRuleGroupNum":1,"stuRuleGroups":[)" + group + "]}]}", {});
    };
    const Result packed = pack(R"({"dwRuleType":"FireDetection","pRuleBuf":[{"szRuleName":"a"},{"szRuleName":"b"}]})");
    ASSERT_EQ(packed.exit, 0) << packed.err;
    EXPECT_NE(packed.out.find(R"("Name" : "a")"), std::string::npos);
    EXPECT_NE(packed.out.find(R"("Name" : "b")"), std::string::npos);
    const Result unknown = pack(R"({"dwRuleType":273,"pRuleBuf":[{}]})");
    EXPECT_NE(unknown.exit, 0);
    EXPECT_NE(unknown.err.find("pRuleBuf: no type of that dwRuleType"), std::string::npos) << unknown.err;
    const Result narrow = pack(R"({"dwRuleType":12,"nRuleStride":8,"pRuleBuf":[{}]})");
    EXPECT_NE(narrow.exit, 0);
    EXPECT_NE(narrow.err.find("nRuleStride that does not hold CFG_RULE_FIRE_INFO"), std::string::npos) << narrow.err;
    const Result misspelt = pack(R"({"dwRuleType":12,"pRuleBuf":[{},{"nDirecton":1}]})");
    EXPECT_NE(misspelt.exit, 0);
    EXPECT_NE(misspelt.err.find("pRuleBuf[1].nDirecton"), std::string::npos) << misspelt.err;
    EXPECT_EQ(pack(R"({"dwRuleType":273,"pRuleBuf":[]})").exit, 0);
}

TEST(Rules, OfGroupsThatDifferAreTold) {
    std::string other = kGroups;
    other.replace(other.find("Hall"), 4, "Door");
    const Result same = DiffTexts("VideoInAnalyseRule", kGroups, kGroups);
    EXPECT_EQ(same.out, "") << same.err;
    const Result differs = DiffTexts("VideoInAnalyseRule", kGroups, other);
    EXPECT_NE(differs.out.find("stuScenes[1].stuRuleGroups[0].pRuleBuf"), std::string::npos) << differs.out;
    EXPECT_EQ(differs.out.find("nRuleBufLen"), std::string::npos) << differs.out;
}

} // namespace
} // namespace orrery::tool
