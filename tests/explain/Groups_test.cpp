// Findings inside the rules of groups, as inside any other record.
#include "explain/Explained.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

std::vector<Found> InGroups(const std::string& rules) {
    return ExplainTable("VideoInAnalyseRule", R"([{"Rules":)" + rules + "}]");
}

TEST(Groups, AMisspeltKeyOfARuleIsToldWithItsPlace) {
    const std::string text =
        R"({"result":true,"params":{"table":[{"Rules":{"FireDetection":{"Rule":[{"Name":"a"},{"Nmae":"b"}]}}}]}})";
    const auto found = Explain("VideoInAnalyseRule", text);
    ASSERT_EQ(found.size(), 1u) << found[0];
    EXPECT_EQ(found[0].word, "unknown-key");
    EXPECT_EQ(found[0].path, "params.table[0].Rules.FireDetection.Rule[1].Nmae");
    EXPECT_EQ(found[0].field, "CFG_RULE_FIRE_INFO");
    EXPECT_EQ(found[0].nearest, "Name");
    EXPECT_EQ(text.substr(found[0].offset, found[0].length), R"("Nmae")");
    EXPECT_EQ(found[0].gravity, ORRERY_FINDING_LOST);
}

TEST(Groups, EachGroupIsReadByItsOwnType) {
    // A fire has no direction.
    const std::string direction = R"({"Rule":[{"Config":{"Direction":"LeftToRight"}}]})";
    EXPECT_TRUE(InGroups(R"({"CrossLineDetection":)" + direction + "}").empty());
    const auto found = InGroups(R"({"CrossLineDetection":)" + direction + R"(,"FireDetection":)" + direction + "}");
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].path, "params.table[0].Rules.FireDetection.Rule[0].Config.Direction");
}

TEST(Groups, ValuesInsideRulesAreLookedAt) {
    const auto found = InGroups(R"({"FireDetection":{"Rule":[{"Name":5,"PtzPresetId":"six","ObjectTypes":null}]}})");
    std::vector<std::string> told;
    for (const Found& each : found)
        told.push_back(each.word + ' ' + each.path.substr(each.path.rfind('.') + 1));
    EXPECT_EQ(told, (std::vector<std::string>{"wrong-type Name", "wrong-type PtzPresetId", "null ObjectTypes"}));
}

TEST(Groups, KeysOfTheGroupItself) {
    const auto found = InGroups(R"({"FireDetection":{"Enabled":true,"EventHandler":{"RecordEnabel":true},"Rule":[]}})");
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(found[0].path, "params.table[0].Rules.FireDetection.Enabled");
    EXPECT_EQ(found[0].nearest, "Enable");
    EXPECT_EQ(found[1].path, "params.table[0].Rules.FireDetection.EventHandler.RecordEnabel");
    EXPECT_EQ(found[1].nearest, "RecordEnable");
}

TEST(Groups, AGroupOfNoTypeIsPassedOverWithTheNearest) {
    const auto found = InGroups(R"({"FireDetecton":{"Rule":[{"Nonsense":1}]}})");
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].word, "unknown-item");
    EXPECT_EQ(found[0].path, "params.table[0].Rules.FireDetecton");
    EXPECT_EQ(found[0].nearest, "FireDetection");
    EXPECT_EQ(found[0].gravity, ORRERY_FINDING_LOST);
    EXPECT_EQ(found[0].length, std::string(R"("FireDetecton")").size());
}

TEST(Groups, ANinthGroupIsDroppedAndOnesPassedOverTakeNoRoom) {
    std::string groups =
        R"("ClimbDetection":{},"CrossLineDetection":{},"CrossRegionDetection":{},"FaceDetection":{},)"
        R"("FireDetection":{},"LeftDetection":{},"MoveDetection":{},"NoSuchThing":{},"PasteDetection":{})";
    const auto dropped = [](const std::vector<Found>& found) {
        std::uint32_t lost = 0;
        for (const Found& each : found)
            if (each.kind == ORRERY_FINDING_ELEMENTS_DROPPED) lost += each.lost;
        return lost;
    };
    EXPECT_EQ(dropped(InGroups("{" + groups + "}")), 0u);
    EXPECT_EQ(dropped(InGroups("{" + groups + R"(,"WanderDetection":{})" + "}")), 1u);
    EXPECT_EQ(dropped(InGroups("{" + groups + R"(,"WanderDetection":{},"StayDetection":{})" + "}")), 2u);
}

// The one finding: its word, and its path below the scene.
std::string Only(const std::string& rules) {
    constexpr std::string_view kScene = "params.table[0].";
    const auto found = InGroups(rules);
    if (found.size() != 1) return std::to_string(found.size()) + " findings";
    return found[0].word + ' ' + found[0].path.substr(kScene.size());
}

TEST(Groups, WhatIsNoGroupAndNoListOfRules) {
    EXPECT_EQ(Only("[1]"), "wrong-type Rules");
    EXPECT_EQ(Only(R"({"FireDetection":{"Rule":{"Name":"a"}}})"), "wrong-type Rules.FireDetection.Rule");
    EXPECT_EQ(Only(R"({"FireDetection":{"Rule":[{},null]}})"), "null Rules.FireDetection.Rule[1]");
    // A type that has a size, and no record.
    EXPECT_EQ(Only(R"({"TrafficNoPassing":{"Rule":[{"Name":"a"}]}})"), "unknown-item Rules.TrafficNoPassing.Rule");
    EXPECT_TRUE(InGroups(R"({"TrafficNoPassing":{"Rule":[]}})").empty());
}

} // namespace
} // namespace orrery::test
