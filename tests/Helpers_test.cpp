// Size words and room for rules, as a program asks for them.
#include "orrery/analyse_rules.h"
#include "orrery/analyse_templates.h"
#include "orrery/calls.h"
#include "orrery/device_settings.h"
#include "orrery/network.h"
#include "orrery/rule_bodies.h"
#include "orrery/storage_groups.h"

#include "orrery/helpers.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace {

template <class R>
std::unique_ptr<R> Filled(unsigned char byte) {
    auto record = std::make_unique<R>();
    std::memset(static_cast<void*>(record.get()), byte, sizeof(R));
    return record;
}

TEST(SetSizeWords, SetsThoseOfTheRecordAndOfAllInsideAndNothingElse) {
    const auto record = Filled<CFG_MULTICAST_INFO>(0x5A);
    ASSERT_EQ(ORRERY_SetSizeWords("mULTICAST", record.get(), sizeof *record), 1); // names fold ASCII case
    const auto expected = Filled<CFG_MULTICAST_INFO>(0x5A);
    expected->dwSize = sizeof(CFG_MULTICAST_INFO);
    for (CFG_MULTICAST_STREAM* const stream :
         {&expected->stuTS, &expected->stuRTP, &expected->stuQVII, &expected->stuRTPAudio}) {
        stream->dwSize = sizeof(CFG_MULTICAST_STREAM);
        for (CFG_MULTICAST_ITEM& item : stream->stuItem)
            item.dwSize = sizeof(CFG_MULTICAST_ITEM);
    }
    EXPECT_EQ(std::memcmp(record.get(), expected.get(), sizeof *record), 0);
}

TEST(SetSizeWords, SetsEachOfAnArrayWhateverItsAlignment) {
    std::vector<unsigned char> bytes(1 + 3 * sizeof(CFG_STORAGE_GROUP_INFO) + 100, 0x5A);
    ASSERT_EQ(ORRERY_SetSizeWords("StorageGroup", bytes.data() + 1, static_cast<std::uint32_t>(bytes.size() - 1)), 1);
    const auto word = [&](std::size_t record) {
        std::uint32_t size;
        std::memcpy(&size, bytes.data() + 1 + record * sizeof(CFG_STORAGE_GROUP_INFO), sizeof size);
        return size;
    };
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(word(i), sizeof(CFG_STORAGE_GROUP_INFO));
    EXPECT_EQ(bytes[0], 0x5A);
    EXPECT_EQ(word(3), 0x5A5A5A5Au); // a rest that is no record
}

TEST(SetSizeWords, KnowsRecordsWithoutAnyAndTemplates) {
    const auto ntp = Filled<CFG_NTP_INFO>(0x5A);
    const auto same = Filled<CFG_NTP_INFO>(0x5A);
    EXPECT_EQ(ORRERY_SetSizeWords("NTP", ntp.get(), sizeof *ntp), 1);
    EXPECT_EQ(std::memcmp(ntp.get(), same.get(), sizeof *ntp), 0);
    const auto global = Filled<CFG_TEMPLATE_GLOBAL_INFO>(0);
    EXPECT_EQ(ORRERY_SetSizeWords("VideoInAnalyse.getTemplateGlobal", global.get(), sizeof *global), 1);
}

TEST(SetSizeWords, RefusesNullsUnknownCommandsAndLessThanARecord) {
    const auto record = Filled<CFG_MULTICAST_INFO>(0x5A);
    const auto same = Filled<CFG_MULTICAST_INFO>(0x5A);
    EXPECT_EQ(ORRERY_SetSizeWords(nullptr, record.get(), sizeof *record), 0);
    EXPECT_EQ(ORRERY_SetSizeWords("Multicast", nullptr, sizeof *record), 0);
    EXPECT_EQ(ORRERY_SetSizeWords("Multicas", record.get(), sizeof *record), 0);
    EXPECT_EQ(ORRERY_SetSizeWords("Multicast", record.get(), sizeof *record - 1), 0);
    EXPECT_EQ(std::memcmp(record.get(), same.get(), sizeof *record), 0);
}

const char* const kTwoRules = R"([ { "Type" : "CrossLineDetection", "Enable" : true },)"
                              R"( { "Type" : "MoveDetection", "Enable" : true } ])";
constexpr std::uint32_t kTwoRuleBytes =
    2 * sizeof(CFG_RULE_INFO) + sizeof(CFG_RULE_CROSSLINE_INFO) + sizeof(CFG_RULE_MOVE_INFO);

std::string Reply(const std::string& table) {
    return R"({ "result" : true, "params" : { "table" : )" + table + " } }";
}

TEST(RuleBytes, IsTheLeastRoomThatIsTaken) {
    const std::string text = Reply(kTwoRules);
    EXPECT_EQ(ORRERY_RuleBytes("VideoAnalyseRule", text.c_str()), kTwoRuleBytes);
    EXPECT_EQ(ORRERY_RuleBytes("audioanalyserule", text.c_str()), kTwoRuleBytes);
    std::vector<unsigned char> buffer(kTwoRuleBytes);
    CFG_ANALYSERULES_INFO rules{-1, buffer.data(), static_cast<std::int32_t>(kTwoRuleBytes) - 1};
    EXPECT_EQ(CLIENT_ParseData("VideoAnalyseRule", text.c_str(), &rules, sizeof rules, nullptr), 0);
    rules.nRuleLen = static_cast<std::int32_t>(kTwoRuleBytes);
    EXPECT_EQ(CLIENT_ParseData("VideoAnalyseRule", text.c_str(), &rules, sizeof rules, nullptr), 1);
    EXPECT_EQ(rules.nRuleCount, 2);
}

TEST(RuleBytes, LooksWhereTheCommandHasItsRules) {
    const std::string text = std::string(R"({ "VideoAnalyseRule" : )") + kTwoRules + " }";
    EXPECT_EQ(ORRERY_RuleBytes("IVSFramRule", text.c_str()), kTwoRuleBytes);
    EXPECT_EQ(ORRERY_RuleBytes("VideoAnalyseRule", text.c_str()), 0u);
}

TEST(RuleBytes, ThirtyTwoRulesAreTheMost) {
    for (const int count : {32, 33}) {
        std::string list;
        for (int i = 0; i < count; ++i)
            list += std::string(i == 0 ? "" : ",") + R"({"Type":"MoveDetection"})";
        EXPECT_EQ(ORRERY_RuleBytes("VideoAnalyseRule", Reply("[" + list + "]").c_str()),
                  32 * (sizeof(CFG_RULE_INFO) + sizeof(CFG_RULE_MOVE_INFO)))
            << count;
    }
}

// What names no type takes a head, and so does each member of an object in the place of the list, though such a list is
// refused whatever room there is.
TEST(RuleBytes, CountsTheHeadsOfWhatNamesNoType) {
    for (const char* const table : {"[{}]", "[null]", R"({"Type":"MoveDetection"})"}) {
        const std::string text = Reply(table);
        EXPECT_EQ(ORRERY_RuleBytes("VideoAnalyseRule", text.c_str()), sizeof(CFG_RULE_INFO)) << table;
        std::vector<unsigned char> buffer(2 * sizeof(CFG_RULE_INFO));
        CFG_ANALYSERULES_INFO rules{-1, buffer.data(), static_cast<std::int32_t>(buffer.size())};
        EXPECT_EQ(CLIENT_ParseData("VideoAnalyseRule", text.c_str(), &rules, sizeof rules, nullptr), 0) << table;
    }
}

TEST(RuleBytes, IsNothingForWhatHoldsNoRules) {
    const std::string text = Reply(kTwoRules);
    EXPECT_EQ(ORRERY_RuleBytes(nullptr, text.c_str()), 0u);
    EXPECT_EQ(ORRERY_RuleBytes("VideoAnalyseRule", nullptr), 0u);
    EXPECT_EQ(ORRERY_RuleBytes("NTP", text.c_str()), 0u);
    EXPECT_EQ(ORRERY_RuleBytes("NoSuchCommand", text.c_str()), 0u);
    EXPECT_EQ(ORRERY_RuleBytes("VideoAnalyseRule", "[[["), 0u);
    EXPECT_EQ(ORRERY_RuleBytes("VideoAnalyseRule", Reply("[]").c_str()), 0u);
    EXPECT_EQ(
        ORRERY_RuleBytes("VideoAnalyseRule", Reply(R"([{"Type":"MoveDetection"},{"Type":"NoSuchDetection"}])").c_str()),
        0u);
}

} // namespace
