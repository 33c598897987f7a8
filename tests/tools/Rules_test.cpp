// Packed buffers in the companion: items by their types' own fields, and back.
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

} // namespace
} // namespace orrery::tool
