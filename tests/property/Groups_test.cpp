// That the sweeps over all commands meet rules in the groups of "VideoInAnalyseRule".
#include "orrery/analyse_groups.h"

#include "support/CommandCalls.h"
#include "support/TableText.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace orrery {
namespace {

using namespace test;

// What sweeps over all commands call with: texts made from the tables, in memory that a caller lends.
TEST(Groups, SweepsReadAndWriteTheirRules) {
    const Command& command = *FindCommand("VideoInAnalyseRule");
    for (const unsigned seed : {1U, 2U, 3U}) {
        ParseCalls calls(command);
        ASSERT_EQ(calls.Run(ReplyText(command, {.seed = seed}).c_str()), Outcome::Done);
        const auto record = std::make_unique<CFG_VIDEOINANALYSE_RULES_INFO>();
        auto& all = *record;
        std::memcpy(static_cast<void*>(&all), calls.record(), sizeof all);
        ASSERT_EQ(all.nSceneNum, 2);
        std::size_t rules = 0;
        for (int scene = 0; scene < 2; ++scene) {
            ASSERT_EQ(all.stuScenes[scene].nRuleGroupNum, 2);
            for (int group = 0; group < 2; ++group)
                rules += static_cast<std::size_t>(all.stuScenes[scene].stuRuleGroups[group].nRuleNum);
        }
        EXPECT_EQ(rules, 8u) << "two in each of two groups of two scenes";
        const std::string text = test::Pack(command, calls.record(), sizeof all).text;
        std::size_t written = 0;
        for (std::size_t at = 0; (at = text.find("\"Config\" : ", at)) != std::string::npos; ++at)
            ++written;
        EXPECT_EQ(written, rules);
    }
}

} // namespace
} // namespace orrery
