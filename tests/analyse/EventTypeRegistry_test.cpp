#include "analyse/EventTypeRegistry.h"

#include "analyse/AlarmNames.h"
#include "analyse/RuleNames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string>

namespace orrery {
namespace {

std::string NameOf(std::int32_t code, bool useDeviceName) {
    char buffer[128] = {};
    RuleNameFromCode(code, buffer, sizeof buffer, useDeviceName);
    return buffer;
}

TEST(EventTypeRegistry, KnowsRuleNamesByTheirBytes) {
    EXPECT_EQ(RuleCodeFromName("All"), 1);
    EXPECT_EQ(RuleCodeFromName("CrossLineDetection"), 2);
    EXPECT_EQ(RuleCodeFromName("TrafficJam"), 27);
    EXPECT_EQ(RuleCodeFromName("TrafficRunRedLight"), 256);
    EXPECT_EQ(RuleCodeFromName("TrafficU-Turn"), 261);
    EXPECT_EQ(RuleCodeFromName("SceneChange"), 365);
    EXPECT_EQ(RuleCodeFromName("TumbleDetection"), 375);
    EXPECT_EQ(RuleCodeFromName("VideoAnalyse"), 512);
    EXPECT_EQ(RuleCodeFromName("PassChange"), 562);
    EXPECT_EQ(RuleCodeFromName("SmartMotionHuman"), 633);
    EXPECT_EQ(RuleCodeFromName("SmartMotionVehicle"), 634);
    EXPECT_EQ(RuleCodeFromName("crossLineDetection"), 0);
    EXPECT_EQ(RuleCodeFromName("CrossLineDetection "), 0);
    EXPECT_EQ(RuleCodeFromName("CrossLineDetectio"), 0);
}

TEST(EventTypeRegistry, AnswersZeroForWhatIsNoName) {
    EXPECT_EQ(RuleCodeFromName(static_cast<const char*>(nullptr)), 0);
    EXPECT_EQ(RuleCodeFromName(""), 0);
    EXPECT_EQ(RuleCodeFromName("traffic*"), 0);
    EXPECT_EQ(RuleCodeFromName("Traffic*"), 0);
    EXPECT_EQ(RuleCodeFromName("StorageLow"), 0);
}

TEST(EventTypeRegistry, ReadsBothNamesOfACode) {
    EXPECT_EQ(RuleCodeFromName("TrafficYellowInRoute"), 270);
    EXPECT_EQ(RuleCodeFromName("TrafficYellowPlateInLane"), 270);
    EXPECT_EQ(RuleCodeFromName("CrowdDetection"), 556);
    EXPECT_EQ(RuleCodeFromName("CrowdDistriMap"), 556);
}

TEST(EventTypeRegistry, GivesTheDevicesNameOnlyWhenAskedFor) {
    EXPECT_EQ(NameOf(270, true), "TrafficYellowInRoute");
    EXPECT_EQ(NameOf(270, false), "TrafficYellowPlateInLane");
    EXPECT_EQ(NameOf(556, true), "CrowdDistriMap");
    EXPECT_EQ(NameOf(556, false), "CrowdDetection");
    EXPECT_EQ(NameOf(2, true), "CrossLineDetection");
    EXPECT_EQ(NameOf(2, false), "CrossLineDetection");
    EXPECT_EQ(NameOf(511, true), "Traffic*");
    EXPECT_EQ(NameOf(511, false), "Traffic*");
    char plain[64] = {};
    RuleNameFromCode(270, plain, sizeof plain);
    EXPECT_STREQ(plain, "TrafficYellowPlateInLane");
}

TEST(EventTypeRegistry, GivesAllForACodeWithoutAName) {
    for (const std::int32_t code : {535, 562, 633, 634, 999, 0, 28, 255, 269, 317, -1, INT32_MIN, INT32_MAX}) {
        EXPECT_EQ(NameOf(code, true), "All") << code;
        EXPECT_EQ(NameOf(code, false), "All") << code;
    }
}

TEST(EventTypeRegistry, CutsANameAtTheLimit) {
    char buffer[8];
    std::memset(buffer, '#', sizeof buffer);
    RuleNameFromCode(2, buffer, 6, true); // "CrossLineDetection"
    EXPECT_EQ(std::string(buffer, 8), std::string("Cross\0##", 8));
    std::memset(buffer, '#', sizeof buffer);
    RuleNameFromCode(370, buffer, 1, true);
    EXPECT_EQ(std::string(buffer, 2), std::string("\0#", 2));
    RuleNameFromCode(370, buffer, 0, true);
    EXPECT_EQ(buffer[1], '#');
    RuleNameFromCode(370, nullptr, 8, true);
}

TEST(EventTypeRegistry, FillsUpBehindAName) {
    char buffer[8];
    std::memset(buffer, '#', sizeof buffer);
    RuleNameFromCode(371, buffer, 8, false);
    EXPECT_EQ(std::string(buffer, 8), std::string("Pos\0\0\0\0\0", 8));
}

TEST(EventTypeRegistry, LeavesTheLastByteBehindAll) {
    char buffer[8];
    std::memset(buffer, '#', sizeof buffer);
    RuleNameFromCode(999, buffer, 4, true);
    EXPECT_EQ(std::string(buffer, 5), "All##");
    std::memset(buffer, '#', sizeof buffer);
    RuleNameFromCode(999, buffer, 3, true);
    EXPECT_EQ(std::string(buffer, 4), "Al##");
}

TEST(EventTypeRegistry, EveryWrittenNameReadsBackButTheOneOfAllTraffic) {
    for (const events::RuleName& row : events::kRuleNames) {
        const std::int32_t back = RuleCodeFromName(RuleNameOf(row.code, true));
        if (row.way == events::Way::ReadOnly)
            EXPECT_EQ(back, 1) << row.text; // "All"
        else
            EXPECT_EQ(back, row.way == events::Way::WriteOnly ? 0 : row.code) << row.text;
    }
}

const events::AlarmName* Alarm(std::string_view name) {
    const auto* const found = std::find_if(std::begin(events::kAlarmNames), std::end(events::kAlarmNames),
                                           [&](const events::AlarmName& row) { return row.text == name; });
    return found == std::end(events::kAlarmNames) ? nullptr : found;
}

TEST(EventTypeRegistry, KeepsTheAlarmNamesThatStandForACode) {
    ASSERT_NE(Alarm("GPS"), nullptr);
    EXPECT_EQ(Alarm("GPS")->code, 0x2143);
    EXPECT_TRUE(Alarm("GPS")->written);
    EXPECT_EQ(Alarm("GPSStatus")->code, 0x2143);
    EXPECT_FALSE(Alarm("GPSStatus")->written);
    EXPECT_EQ(Alarm("AudioAbnormalDetection")->code, 0x2178);
    EXPECT_TRUE(Alarm("AudioAbnormalDetection")->written);
    EXPECT_EQ(Alarm("AudioAnomaly")->code, 0x2178);
    EXPECT_FALSE(Alarm("AudioAnomaly")->written);
    EXPECT_EQ(Alarm("TrafficPictureAnalyse")->code, 0x31D7);
    EXPECT_FALSE(Alarm("TrafficPictureAnalyse")->written);
    EXPECT_EQ(Alarm("CoilFault")->code, 0x2119);
    EXPECT_EQ(Alarm("NTPChange")->code, 0x3308);
    EXPECT_EQ(Alarm("Traffic*"), nullptr);
}

} // namespace
} // namespace orrery
