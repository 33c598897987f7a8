// Texts that devices send as they should give no finding: those that the tables make for every command, rule and
// event, and those of the fuzzers' corpora that are clean.
#include "explain/Explained.h"

#include "analyse/EventTypeRegistry.h"
#include "analyse/RuleBodyMap.h"
#include "events/EventMap.h"
#include "explain/Explain.h"
#include "frame/PackedItems.h"
#include "support/Specimens.h"
#include "support/TableText.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <sstream>

namespace orrery::test {
namespace {

std::string Told(const std::vector<explain::Finding>& all) {
    std::string told;
    for (std::size_t i = 0; i < all.size() && i < 6; ++i)
        told += std::string("  ") + explain::WordOf(all[i].kind) + ' ' + all[i].path + " (" + all[i].field
                + "): " + all[i].message + "\n";
    return told;
}

std::string Told(const std::vector<Found>& all) {
    std::string told;
    for (std::size_t i = 0; i < all.size() && i < 6; ++i) {
        std::ostringstream line;
        line << all[i];
        told += "  " + line.str() + "\n";
    }
    return told;
}

// These texts number their members, whatever ranges the headers tell.
template <class Each>
void ForgetRanges(std::vector<Each>& all) {
    std::erase_if(all, [](const Each& each) {
        return each.kind == ORRERY_FINDING_OUT_OF_RANGE && each.gravity == ORRERY_FINDING_NOTE;
    });
}

TEST(CleanTexts, OfEveryCommandGiveNoFinding) {
    for (const Command& command : DistinctCommands()) {
        if (!command.parses() || ItemsBehind(*command.table) != nullptr) continue;
        const std::string text = ReplyText(command);
        explain::Explanation explained = explain::ExplainReply(command, text);
        ForgetRanges(explained.findings);
        EXPECT_TRUE(explained.findings.empty()) << command.name << ":\n"
                                                << Told(explained.findings) << text.substr(0, 600);
    }
}

TEST(CleanTexts, OfPicturesInsideThePictureGiveNoFinding) {
    const auto found = ExplainTable("PicInPic", R"({"Split1":[{"Enable":true,"DeviceID":"a"}],
        "Extend":[{"Split9":[{"Enable":true,"Channel":3}]},{"Split4":[]}]})");
    EXPECT_TRUE(found.empty()) << Told(found);
}

TEST(CleanTexts, OfEveryEventGiveNoFinding) {
    for (const events::EventRow& row : events::Events()) {
        if (row.name.empty() || row.rename != nullptr) continue;
        const std::string text = R"({"Event":[{"Code":")" + std::string(row.name) + R"(","Action":"Start","Data":)"
                                 + RecordTree(*row.table, {}).Text() + "}]}";
        auto found = ExplainEvents(text);
        ForgetRanges(found);
        EXPECT_TRUE(found.empty()) << row.name << ":\n" << Told(found) << text.substr(0, 600);
    }
}

TEST(CleanTexts, OfEveryRuleGiveNoFinding) {
    for (const RuleBody& body : RuleBodies()) {
        const auto code = static_cast<std::int32_t>(body.code);
        const std::string_view type = RuleNameOf(code, false);
        if (!body.isRead || RuleCodeFromName(type) != code) continue;
        JsonTree rule = RecordTree(*body.table, {});
        rule.Add("Type", JsonTree::String(std::string(type)));
        rule.Add("Id", JsonTree("3"));
        rule.Add("Class", JsonTree::String("Normal"));
        // The row of a rule may have made these three already.
        auto found = ExplainTable("VideoAnalyseRule", "[" + rule.Text() + "]");
        std::erase_if(found, [](const Found& each) { return each.kind == ORRERY_FINDING_DUPLICATE_KEY; });
        ForgetRanges(found);
        EXPECT_TRUE(found.empty()) << type << ":\n" << Told(found);
    }
}

// Those of the corpus that were written by hand name many shared keys that their own event does not read, and six of
// them hold what their event makes less of.
TEST(CleanTexts, OfTheCorpusGiveNoOtherFinding) {
    std::set<std::string> told;
    std::size_t count = 0;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(ORRERY_TEST_DATA) + "/../fuzz/corpus/events")) {
        const std::string name = entry.path().filename().string();
        if (!events::FindEvent(static_cast<std::uint32_t>(RuleCodeFromName(name)))) continue;
        std::ifstream file(entry.path(), std::ios::binary);
        std::string text{std::istreambuf_iterator<char>(file), {}};
        text.resize(std::min(text.size(), text.find('\0')));
        for (const Found& found : ExplainEvents(text)) {
            if (found.kind != ORRERY_FINDING_UNKNOWN_KEY) told.insert(name + ' ' + found.word + ' ' + found.path);
        }
        ++count;
    }
    EXPECT_GT(count, 100u);
    const std::set<std::string> expected = {
        "CitizenPictureCompare bad-time Event[0].Data.Birth", // a day without its time
        "CitizenPictureCompare bad-time Event[0].Data.Start",
        "NonMotorFeature unknown-text Event[0].Data.Sex",              // "Woman" and "Man" are told by other words
        "PtzPreset elements-dropped Event[0].Data.Position",           // a fourth number
        "Transfinite text-cut Event[0].Data.Time",                     // milliseconds
        "VehicleACC unknown-text Event[0].Data.ConstantElectricStatus" // anything but "On" is off
    };
    EXPECT_EQ(told, expected);
}

} // namespace
} // namespace orrery::test
