// The print of all tables is checked in: a changed offset, key, code or rule is a line in a review.
#include "orrery/Documents.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <sstream>

namespace orrery::tool {
namespace {

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

TEST(Layout, IsTheOneCheckedIn) {
    std::ifstream file(ORRERY_SOURCE_DIR "/tests/golden/layout.txt");
    ASSERT_TRUE(file) << "tests/golden/layout.txt is missing; scripts/update-golden.sh makes it";
    std::stringstream golden;
    golden << file.rdbuf();
    const auto want = LinesOf(golden.str());
    const auto got = LinesOf(Layout());
    std::size_t shown = 0;
    for (std::size_t i = 0; i < std::max(want.size(), got.size()) && shown < 10; ++i) {
        const std::string wanted = i < want.size() ? want[i] : "(nothing)";
        const std::string now = i < got.size() ? got[i] : "(nothing)";
        if (wanted == now) continue;
        ++shown;
        ADD_FAILURE() << "line " << i + 1 << "\n  checked in: " << wanted << "\n  now:        " << now;
    }
    if (shown > 0) ADD_FAILURE() << "If the change is meant, run scripts/update-golden.sh and review the difference.";
}

TEST(Layout, TellsHowMuchTheVocabularySays) {
    const Regularity count = CountRegularity();
    std::cout << RegularityLine();
    RecordProperty("irregular_rows", static_cast<int>(count.customRows + count.virtualRows + count.guardedRows));
    RecordProperty("rows", static_cast<int>(count.rows));
    RecordProperty("irregular_commands", static_cast<int>(count.ownCommands));
    RecordProperty("commands", static_cast<int>(count.commands));
    // Tables that functions serve for the most part are no tables: then the vocabulary lacks words.
    EXPECT_LT((count.customRows + count.virtualRows + count.guardedRows) * 10, count.rows);
    EXPECT_LT(count.ownCommands * 5, count.commands);
}

TEST(Layout, PrintsEachRowWithItsRules) {
    const std::string layout = Layout();
    const auto has = [&](const std::string& line) { return layout.find("\n" + line + "\n") != std::string::npos; };
    EXPECT_TRUE(has("record CFG_POINT size=8 Tuple"));
    EXPECT_TRUE(has("  4 4 i32 - nY \"\" Int"));
    EXPECT_TRUE(has("  0 4 f32 - fWidth \"\" Int WrittenAs(Real)"));
    EXPECT_TRUE(has("  0 0 virtual - - \"DetectVersion\" Custom write(function)"));
    EXPECT_TRUE(has("  1 \"NO\""));
    EXPECT_TRUE(has("command PwdReset CFG_ENABLE_INFO"));
    EXPECT_TRUE(has("  parse generic dimension=0 zeroBuffer"));
}

TEST(Describe, ShowsCommandsAndRecords) {
    const auto alarm = Describe("alarm");
    ASSERT_TRUE(alarm);
    EXPECT_NE(alarm->find("CFG_ALARM_INPUT_INFO, "), std::string::npos);
    EXPECT_NE(alarm->find("0=\"NC\", 1=\"NO\"; other texts read as 1; other codes write \"NO\""), std::string::npos);
    EXPECT_NE(alarm->find("-1 when absent; sets abLevel2 when read; written only when abLevel2 is set"),
              std::string::npos);
    const auto point = Describe("cfg_point");
    ASSERT_TRUE(point);
    EXPECT_EQ(point->find("CFG_POINT, 8 bytes; in the text a list of exactly its keyless values\n"), 0U);
    EXPECT_FALSE(Describe("no such thing"));
}

} // namespace
} // namespace orrery::tool
