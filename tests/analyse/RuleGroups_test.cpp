// Rules in groups of one type, with their scenes.
#include "orrery/analyse_groups.h"

#include "analyse/RuleBodyMap.h"
#include "orrery/rule_bodies.h"
#include "orrery/traffic_rules.h"
#include "support/Call.h"
#include "support/JsonText.h"
#include "support/RuleText.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace orrery::test {
namespace {

constexpr const char* kCommand = "VideoInAnalyseRule";
using All = CFG_VIDEOINANALYSE_RULES_INFO;

// A caller's record with buffers for the first groups of its first scene.
struct Caller {
    std::unique_ptr<All> all = std::make_unique<All>();
    std::vector<std::uint8_t> buffers[ORRERY_RULE_GROUPS];
    std::uint32_t length = kNoLength;

    Caller() { std::memset(static_cast<void*>(all.get()), 0, sizeof(All)); }
    void Give(std::size_t group, std::size_t bytes) {
        buffers[group].assign(bytes, 0xEE);
        CFG_RULE_GROUP_INFO& to = all->stuScenes[0].stuRuleGroups[group];
        to.pRuleBuf = buffers[group].data();
        to.nRuleBufLen = static_cast<std::int32_t>(bytes);
    }
    bool Document(const std::string& text) {
        return CLIENT_ParseData(kCommand, text.c_str(), all.get(), sizeof(All), &length) != 0;
    }
    bool Parse(const std::string& table) { return Document(R"({"params":{"table":)" + table + "}}"); }
    // One scene with these rules.
    bool Rules(const std::string& rules) { return Parse(R"([{"Rules":)" + rules + "}]"); }
    const CFG_VIDEOINANALYSE_SCENE_INFO& scene(std::size_t index = 0) const { return all->stuScenes[index]; }
    const CFG_RULE_GROUP_INFO& group(std::size_t index) const { return scene().stuRuleGroups[index]; }
    template <class R>
    R Rule(std::size_t group, std::size_t index = 0) const {
        R rule;
        std::memcpy(&rule, buffers[group].data() + index * sizeof(R), sizeof rule);
        return rule;
    }
    std::string Pack() const { return test::Pack(kCommand, *all); }
};

TEST(RuleGroups, AScenesPartsAreReadByTheirReaders) {
    Caller caller;
    caller.Give(0, 2 * sizeof(CFG_RULE_FIRE_INFO));
    caller.Give(1, sizeof(CFG_RULE_MOVE_INFO));
    ASSERT_TRUE(caller.Parse(R"([{"Global":{"Scene":{"Type":"Normal","PtzPresetId":4}},
        "Module":[{"ObjectType":"Human","Sensitivity":5},{"ObjectType":"Car"}],
        "Rules":{"MoveDetection":{"Enable":false,"Rule":[{"Name":"m"}]},
                 "FireDetection":{"Enable":true,"Rule":[{"Name":"a","PtzPresetId":6},{"Name":"b"}]}}},
        {"Global":{"Scene":{"Type":"Traffic"}}}])"));
    EXPECT_EQ(caller.length, sizeof(All));
    EXPECT_EQ(caller.all->nSceneNum, 2);
    EXPECT_STREQ(caller.scene().stuGlobal.szSceneType, "Normal");
    EXPECT_EQ(caller.scene().stuGlobal.nPtzPresetId, 4);
    EXPECT_EQ(caller.scene().stuModule.nModuleNum, 2);
    EXPECT_STREQ(caller.scene().stuModule.stuModules[0].szObjectType, "Human");
    EXPECT_EQ(caller.scene().stuModule.stuModules[0].bySensitivity, 5);
    EXPECT_STREQ(caller.scene().stuModule.stuModules[1].szObjectType, "Car");
    ASSERT_EQ(caller.scene().nRuleGroupNum, 2);
    EXPECT_EQ(caller.group(0).dwRuleType, 12u); // in the order of names
    EXPECT_EQ(caller.group(0).nRuleStride, static_cast<std::int32_t>(sizeof(CFG_RULE_FIRE_INFO)));
    EXPECT_EQ(caller.group(0).bEnable, 1);
    EXPECT_EQ(caller.group(0).bHasEventHandler, 0);
    EXPECT_EQ(caller.group(0).nRuleNum, 2);
    EXPECT_STREQ(caller.Rule<CFG_RULE_FIRE_INFO>(0).szRuleName, "a");
    EXPECT_EQ(caller.Rule<CFG_RULE_FIRE_INFO>(0).nPtzPresetId, 6);
    EXPECT_STREQ(caller.Rule<CFG_RULE_FIRE_INFO>(0, 1).szRuleName, "b");
    EXPECT_EQ(caller.group(1).dwRuleType, 9u);
    EXPECT_EQ(caller.group(1).bEnable, 0);
    EXPECT_EQ(caller.group(1).nRuleNum, 1);
    EXPECT_STREQ(caller.Rule<CFG_RULE_MOVE_INFO>(1).szRuleName, "m");
    EXPECT_STREQ(caller.scene(1).stuGlobal.szSceneType, "Traffic");
    EXPECT_EQ(caller.scene(1).nRuleGroupNum, 0);
}

TEST(RuleGroups, AMissingTableIsNoScene) {
    for (const char* none :
         {"{}", R"({"params":{"table":null}})", R"({"result":false,"params":{}})", R"({"params":{"table":[]}})"}) {
        Caller caller;
        caller.Give(2, 10);
        caller.all->nSceneNum = 3;
        caller.all->stuScenes[2].nRuleGroupNum = 7;
        caller.all->stuScenes[0].stuGlobal.nTimePeriodMax = 5;
        ASSERT_TRUE(caller.Document(none)) << none;
        EXPECT_EQ(caller.all->nSceneNum, 0) << none;
        EXPECT_EQ(caller.scene(2).nRuleGroupNum, 0) << none;
        EXPECT_EQ(caller.scene().stuGlobal.nTimePeriodMax, 0) << none;
        EXPECT_EQ(caller.group(2).pRuleBuf, caller.buffers[2].data()) << none;
        EXPECT_EQ(caller.group(2).nRuleBufLen, 10) << none;
        EXPECT_EQ(caller.length, std::string(none).find('[') == std::string::npos ? 0u : sizeof(All)) << none;
    }
}

TEST(RuleGroups, OtherTablesAndSmallRecordsFail) {
    Caller caller;
    EXPECT_FALSE(caller.Parse(R"({"Rules":{}})"));
    EXPECT_FALSE(caller.Parse("3"));
    EXPECT_FALSE(caller.Document("[1"));
    const std::string text = R"({"params":{"table":[]}})";
    EXPECT_EQ(CLIENT_ParseData(kCommand, text.c_str(), caller.all.get(), sizeof(All) - 1, nullptr), 0);
    char room[100];
    EXPECT_EQ(CLIENT_PacketData(kCommand, caller.all.get(), sizeof(All) - 1, room, sizeof room), 0);
}

TEST(RuleGroups, TheTableOfARefusedCallIsReadAndThreeScenesAre) {
    Caller caller;
    EXPECT_TRUE(caller.Document(R"({"result":false,"params":{"table":[{},{},{},{}]}})"));
    EXPECT_EQ(caller.all->nSceneNum, 3);
}

TEST(RuleGroups, NamesThatAreNotKnownTakeNoGroup) {
    Caller caller;
    // A rule without a record of its own, one that is only an event's name, one whose case differs.
    ASSERT_TRUE(caller.Rules(R"({"Aaa":{"Enable":true},"All":{},"firedetection":{},"FireDetection":{},"Zzz":{},
        "TrafficNoPassing":{"Enable":true},"StandUpDetection":{}})"));
    ASSERT_EQ(caller.scene().nRuleGroupNum, 3);
    EXPECT_EQ(caller.group(0).dwRuleType, 12u);
    EXPECT_EQ(caller.group(1).dwRuleType, 359u);
    EXPECT_EQ(caller.group(2).dwRuleType, 273u); // has a size, so it is a group
    EXPECT_EQ(caller.group(2).nRuleStride, 132);
    EXPECT_EQ(caller.group(2).bEnable, 1);
}

TEST(RuleGroups, StandUpIsReadHereThoughListsRefuseIt) {
    Caller caller;
    caller.Give(0, sizeof(CFG_RULE_STANDUP_INFO));
    ASSERT_TRUE(caller.Rules(R"({"StandUpDetection":{"Rule":[{"Name":"up"}]}})"));
    EXPECT_EQ(caller.group(0).nRuleNum, 1);
    EXPECT_STREQ(caller.Rule<CFG_RULE_STANDUP_INFO>(0).szRuleName, "up");
}

TEST(RuleGroups, ANinthGroupIsNotRead) {
    const char* const names[] = {"CrossLineDetection", "CrossRegionDetection", "FightDetection",
                                 "FireDetection",      "LeftDetection",        "MoveDetection",
                                 "PasteDetection",     "RioterDetection",      "StayDetection"};
    for (const int groups : {8, 9}) {
        std::string rules = "{";
        for (int i = 0; i < groups; ++i)
            rules += std::string(i > 0 ? "," : "") + "\"" + names[i] + R"(":{"Enable":true})";
        Caller caller;
        ASSERT_TRUE(caller.Rules(rules + "}"));
        EXPECT_EQ(caller.scene().nRuleGroupNum, 8);
        EXPECT_EQ(caller.group(7).dwRuleType, 11u);
    }
}

TEST(RuleGroups, AsManyRulesAreReadAsFit) {
    constexpr std::size_t kSize = sizeof(CFG_RULE_FIRE_INFO);
    const std::string rules = R"({"FireDetection":{"Rule":[{"Name":"a"},null,{"Name":"c"}]}})";
    for (const std::size_t bytes : {std::size_t{1}, kSize - 1, kSize, 2 * kSize + 5, 3 * kSize, 5 * kSize}) {
        Caller caller;
        caller.Give(0, bytes);
        ASSERT_TRUE(caller.Rules(rules));
        const std::size_t count = std::min<std::size_t>(bytes / kSize, 3);
        EXPECT_EQ(caller.group(0).nRuleNum, static_cast<std::int32_t>(count)) << bytes;
        for (std::size_t i = count * kSize; i < bytes; ++i)
            ASSERT_EQ(caller.buffers[0][i], 0xEE) << bytes;
        EXPECT_TRUE(count < 2 || caller.Rule<CFG_RULE_FIRE_INFO>(0, 1).szRuleName[0] == 0);
    }
    Caller none;
    ASSERT_TRUE(none.Rules(rules));
    EXPECT_EQ(none.group(0).nRuleNum, 0);
    Caller noList;
    noList.Give(0, kSize);
    ASSERT_TRUE(noList.Rules(R"({"FireDetection":{"Rule":{"Name":"a"}}})"));
    EXPECT_EQ(noList.group(0).nRuleNum, 0);
    EXPECT_EQ(noList.buffers[0][0], 0xEE);
}

// Seven or eight days of six sections, the first of the first as told.
std::string Week(int days, const std::string& first) {
    std::string week = "[ ";
    for (int day = 0; day < days; ++day) {
        week += day > 0 ? ", [ " : "[ ";
        for (int section = 0; section < 6; ++section) {
            const bool isFirst = day == 0 && section == 0;
            week += std::string(section > 0 ? ", " : "") + "\"" + (isFirst ? first : "0 00:00:00-00:00:00") + "\"";
        }
        week += " ]";
    }
    return week + " ]";
}

TEST(RuleGroups, AGroupsLinkageStandsOnceAndHasItsSchedule) {
    Caller caller;
    caller.Give(0, sizeof(CFG_RULE_FIRE_INFO));
    ASSERT_TRUE(caller.Rules(R"({"FireDetection":{"Enable":true,"EventHandler":{"BeepEnable":true,"TimeSection":)"
                             + Week(8, "1 08:00:00-17:30:00") + R"(},"Rule":[{"Name":"a"}]}})"));
    const CFG_RULE_GROUP_INFO& group = caller.group(0);
    EXPECT_EQ(group.bHasEventHandler, 1);
    EXPECT_EQ(group.stuEventHandler.abBeepEnable, 1);
    EXPECT_EQ(group.stuEventHandler.bBeepEnable, 1);
    EXPECT_EQ(group.stuTimeSchedule.bEnableHoliday, 1);
    EXPECT_EQ(group.stuTimeSchedule.stuTimeSection[0][0].nBeginHour, 8);
    EXPECT_EQ(group.stuTimeSchedule.stuTimeSection[0][0].nEndMin, 30);

    caller.all->stuScenes[0].stuRuleGroups[0].stuTimeSchedule.stuTimeSection[0][0].nBeginHour = 9;
    const std::string text = caller.Pack();
    // The group's own schedule, not that of its linkage; and the rule has no linkage.
    EXPECT_NE(text.find("\"BeepEnable\" : true"), std::string::npos);
    EXPECT_NE(text.find("\"TimeSection\" : " + Week(8, "1 09:00:00-17:30:00")), std::string::npos) << text;
    EXPECT_EQ(text.find("EventHandler"), text.rfind("EventHandler"));

    // A holiday that only one of the two has is written.
    CFG_RULE_GROUP_INFO& written = caller.all->stuScenes[0].stuRuleGroups[0];
    const auto has = [&](int days) {
        return caller.Pack().find("\"TimeSection\" : " + Week(days, "1 09:00:00-17:30:00")) != std::string::npos;
    };
    written.stuTimeSchedule.bEnableHoliday = 0;
    EXPECT_TRUE(has(8));
    written.stuEventHandler.stuTimeSectionEx.bEnableHoliday = 0;
    EXPECT_TRUE(has(7));
    written.stuTimeSchedule.bEnableHoliday = 1;
    EXPECT_TRUE(has(8));

    caller.all->stuScenes[0].stuRuleGroups[0].bHasEventHandler = 0;
    const std::string without = caller.Pack();
    const std::size_t rule = without.find("\"Rule\" : ");
    EXPECT_GT(without.find("EventHandler"), rule);
    EXPECT_NE(without.find("EventHandler"), std::string::npos);
}

// What the writer says of a scene, from its "Rules" on.
std::string RulesOf(const std::string& text) {
    const std::size_t at = text.find("\"Rules\" : ");
    return at == std::string::npos ? "(no rules)" : text.substr(at);
}

TEST(RuleGroups, WhatIsWrittenIsSorted) {
    Caller caller;
    All& all = *caller.all;
    all.nSceneNum = 1;
    all.stuScenes[0].nRuleGroupNum = 5;
    CFG_RULE_GROUP_INFO* const groups = all.stuScenes[0].stuRuleGroups;
    groups[0].dwRuleType = 9; // "MoveDetection"
    groups[0].bEnable = 1;
    groups[1].dwRuleType = 270; // as devices name it
    groups[2].dwRuleType = 562; // a name that is only read
    groups[3].dwRuleType = 9;
    groups[4].dwRuleType = 556;
    EXPECT_EQ(RulesOf(caller.Pack()), "\"Rules\" : { \"All\" : { \"Enable\" : false, \"Rule\" : [  ] }, "
                                      "\"CrowdDistriMap\" : { \"Enable\" : false, \"Rule\" : [  ] }, "
                                      "\"MoveDetection\" : { \"Enable\" : false, \"Rule\" : [  ] }, "
                                      "\"TrafficYellowInRoute\" : { \"Enable\" : false, \"Rule\" : [  ] } } } ]");
    all.stuScenes[0].nRuleGroupNum = 0;
    EXPECT_EQ(RulesOf(caller.Pack()), "\"Rules\" : null } ]");
    all.stuScenes[0].nRuleGroupNum = -1;
    EXPECT_EQ(RulesOf(caller.Pack()), "\"Rules\" : null } ]");
    all.nSceneNum = 0;
    EXPECT_EQ(caller.Pack(), "[  ]");
}

TEST(RuleGroups, CountsEndAtTheirArrays) {
    Caller caller;
    All& all = *caller.all;
    all.nSceneNum = 4;
    all.stuScenes[2].nRuleGroupNum = 9;
    for (CFG_RULE_GROUP_INFO& group : all.stuScenes[2].stuRuleGroups)
        group.dwRuleType = 12;
    const std::string text = caller.Pack();
    std::size_t scenes = 0;
    for (std::size_t at = 0; (at = text.find("\"Global\"", at)) != std::string::npos; ++at)
        ++scenes;
    EXPECT_EQ(scenes, 3u);
}

TEST(RuleGroups, RulesAreWrittenOnlyWhole) {
    constexpr std::int32_t kSize = sizeof(CFG_RULE_FIRE_INFO);
    const auto rulesIn = [](std::int32_t count, std::int32_t stride, std::int32_t room) {
        Caller caller;
        caller.Give(0, 3 * kSize);
        std::fill(caller.buffers[0].begin(), caller.buffers[0].end(), std::uint8_t{0});
        caller.all->nSceneNum = 1;
        caller.all->stuScenes[0].nRuleGroupNum = 1;
        CFG_RULE_GROUP_INFO& group = caller.all->stuScenes[0].stuRuleGroups[0];
        group.dwRuleType = 12;
        group.bHasEventHandler = 1;
        group.nRuleNum = count;
        group.nRuleStride = stride;
        group.nRuleBufLen = room;
        const std::string text = RulesOf(caller.Pack());
        std::size_t rules = 0;
        for (std::size_t at = 0; (at = text.find("\"Class\"", at)) != std::string::npos; ++at)
            ++rules;
        return rules;
    };
    EXPECT_EQ(rulesIn(2, kSize, 2 * kSize), 2u);
    EXPECT_EQ(rulesIn(2, kSize, 2 * kSize - 1), 0u);
    EXPECT_EQ(rulesIn(0, kSize, kSize), 0u);
    EXPECT_EQ(rulesIn(-1, kSize, kSize), 0u);
    EXPECT_EQ(rulesIn(2, 0, kSize), 0u);
    EXPECT_EQ(rulesIn(2, -kSize, kSize), 0u);
    EXPECT_EQ(rulesIn(2147483647, kSize, 3 * kSize), 0u);
    // Strides below the record: what is not whole inside the buffer is not touched.
    EXPECT_EQ(rulesIn(3, 8, kSize), 1u);
    EXPECT_EQ(rulesIn(3, 8, kSize + 8), 2u);
}

TEST(RuleGroups, GoesRound) {
    Caller caller;
    caller.Give(0, 2 * sizeof(CFG_RULE_FIRE_INFO));
    ASSERT_TRUE(caller.Parse(R"([{"Global":{"Scene":{"Type":"Normal"}},"Module":[{"ObjectType":"Human"}],
        "Rules":{"FireDetection":{"Enable":true,"EventHandler":{"BeepEnable":true},"Rule":[{"Name":"a"},{"Name":"b"}]}}}])"));
    const std::string text = caller.Pack();
    Caller again;
    again.Give(0, 2 * sizeof(CFG_RULE_FIRE_INFO));
    ASSERT_TRUE(again.Parse(text));
    EXPECT_EQ(again.Pack(), text);
    EXPECT_STREQ(again.Rule<CFG_RULE_FIRE_INFO>(0, 1).szRuleName, "b");
}

// Days of equal length, all sections clear but the first of the first day and the last of the last.
std::string Days(int days, int sections, const std::string& first, const std::string& last) {
    std::string week = "[ ";
    for (int day = 0; day < days; ++day) {
        week += day > 0 ? ", [ " : "[ ";
        for (int section = 0; section < sections; ++section) {
            const bool isFirst = day == 0 && section == 0;
            const bool isLast = day + 1 == days && section + 1 == sections;
            week += std::string(section > 0 ? ", " : "") + "\""
                    + (isFirst  ? first
                       : isLast ? last
                                : "0 00:00:00-00:00:00")
                    + "\"";
        }
        week += " ]";
    }
    return week + " ]";
}

TEST(RuleGroups, AWholeChannelIsWrittenAndReadBack) {
    Caller caller;
    All& all = *caller.all;
    all.nSceneNum = 1;
    CFG_VIDEOINANALYSE_SCENE_INFO& scene = all.stuScenes[0];
    std::strcpy(scene.stuGlobal.szSceneType, "Indoor");
    scene.stuGlobal.nDepth = CFG_DEPTH_FAR;
    scene.stuGlobal.nPtzPresetId = 27;
    scene.stuGlobal.nLatitude = 28;
    scene.stuGlobal.nLongitude = 29;
    scene.stuModule.nModuleNum = 1;
    CFG_MODULE_INFO& module = scene.stuModule.stuModules[0];
    std::strcpy(module.szObjectType, "Car");
    std::strcpy(module.szType, "m");
    module.bSnapShot = 1;
    module.bySensitivity = 30;
    module.nPtzPresetId = 31;
    scene.nRuleGroupNum = 2;

    // A group whose rule has the linkage.
    auto move = Cleared<CFG_RULE_MOVE_INFO>();
    std::strcpy(move->szRuleName, "moved");
    move->bTrackEnable = 1;
    move->bySensitivity = 23;
    move->nObjectTypeNum = 1;
    std::strcpy(move->szObjectTypes[0], "Pet");
    move->nMinDuration = 22;
    move->nDetectRegionPoint = 1;
    move->stuDetectRegion[0] = {20, 21};
    move->nTriggerSpeed = 25;
    move->stuEventHandler.abRecordEnable = 1;
    move->stuEventHandler.bRecordEnable = 1;
    move->stuEventHandler.abAlarmOutEn = 1;
    move->stuEventHandler.abLogEnable = 1;
    move->stuEventHandler.bLogEnable = 1;
    move->stuTimeSection[0][0] = {1, 7, 8, 9, 10, 11, 12};
    move->stuTimeSection[6][9] = {1, 13, 14, 15, 16, 17, 18};
    move->nPtzPresetId = 26;
    move->nTriggerPosition = 1;
    move->byTriggerPosition[0] = CFG_TRIGGER_LEFT_CENTER;
    move->bSizeFilter = 1;
    move->stuSizeFilter.abBySize = 1;
    move->stuSizeFilter.bBySize = 1;
    move->nDetectTypeNum = 1;
    move->byDetectType[0] = CFG_MOTION_ABRUPT_SLOWDOWN;
    move->nTrackDuration = 24;
    caller.Give(0, sizeof *move);
    std::memcpy(caller.buffers[0].data(), move.get(), sizeof *move);
    scene.stuRuleGroups[0].dwRuleType = 9;
    scene.stuRuleGroups[0].nRuleStride = static_cast<std::int32_t>(sizeof *move);
    scene.stuRuleGroups[0].nRuleNum = 1;

    // One that has its own, with a schedule that is not that of the linkage.
    const auto fires = std::make_unique<CFG_RULE_FIRE_INFO[]>(2);
    std::strcpy(fires[0].szRuleName, "first");
    fires[0].bRuleEnable = 1;
    fires[0].nObjectTypeNum = 2;
    std::strcpy(fires[0].szObjectTypes[0], "Human");
    std::strcpy(fires[0].szObjectTypes[1], "Vehicle");
    fires[0].nMinDuration = 5;
    fires[0].nDetectRegionPoint = 2;
    fires[0].stuDetectRegion[0] = {1, 2};
    fires[0].stuDetectRegion[1] = {3, 4};
    fires[0].nSensitivity = 6;
    fires[0].nPtzPresetId = 7;
    std::strcpy(fires[1].szRuleName, "second");
    fires[1].nObjectTypeNum = 1;
    std::strcpy(fires[1].szObjectTypes[0], "Flame");
    fires[1].nMinDuration = 10;
    fires[1].nDetectRegionPoint = 1;
    fires[1].stuDetectRegion[0] = {8, 9};
    fires[1].nSensitivity = 11;
    fires[1].nPtzPresetId = 12;
    caller.Give(1, 2 * sizeof fires[0]);
    std::memcpy(caller.buffers[1].data(), fires.get(), 2 * sizeof fires[0]);
    CFG_RULE_GROUP_INFO& group = scene.stuRuleGroups[1];
    group.dwRuleType = 12;
    group.nRuleStride = static_cast<std::int32_t>(sizeof fires[0]);
    group.nRuleNum = 2;
    group.bEnable = 1;
    group.bHasEventHandler = 1;
    group.stuEventHandler.abRecordEnable = 1;
    group.stuEventHandler.abAlarmOutEn = 1;
    group.stuEventHandler.bAlarmOutEn = 1;
    group.stuEventHandler.abBeepEnable = 1;
    group.stuEventHandler.bBeepEnable = 1;
    group.stuEventHandler.stuTimeSectionEx.stuTimeSection[0][0].nBeginHour = 5;
    group.stuTimeSchedule.bEnableHoliday = 1;
    group.stuTimeSchedule.stuTimeSection[0][0] = {1, 8, 0, 0, 17, 30, 0};
    group.stuTimeSchedule.stuTimeSection[7][5] = {1, 1, 2, 3, 4, 5, 6};

    const std::string text =
        R"([ { "Global" : { "Scene" : { "Depth" : "Far", "PtzPresetId" : 27, "Type" : "Indoor", "TypeList" : [  ] }, )"
        R"("TimePeriod" : { "Day" : [ "00:00:00", "00:00:00" ], "Latitude" : 28, "Longitude" : 29, )"
        R"("Night" : [ "00:00:00", "00:00:00" ] } }, )"
        R"("Module" : [ { "AntiDisturbance" : false, "Backlight" : false, "ContourAssistantTrack" : false, )"
        R"("ObjectType" : "Car", "PtzPresetId" : 31, "Sensitivity" : 30, "Shadow" : false, "SnapShot" : true, )"
        R"("Type" : "m" } ], )"
        R"("Rules" : { "FireDetection" : { "Enable" : true, )"
        R"("EventHandler" : { "AlarmOutEnable" : true, "BeepEnable" : true, "RecordEnable" : false, "TimeSection" : )"
        + Days(8, 6, "1 08:00:00-17:30:00", "1 01:02:03-04:05:06")
        + R"( }, "Rule" : [ { "Class" : "", "Config" : { "DetectRegion" : [ [ 1, 2 ], [ 3, 4 ] ], )"
          R"("MinDuration" : 5, "Sensitivity" : 6 }, "Enable" : true, "Id" : 0, "Name" : "first", )"
          R"("ObjectTypes" : [ "Human", "Vehicle" ], "PtzPresetId" : 7, "Type" : "FireDetection" }, )"
          R"({ "Class" : "", "Config" : { "DetectRegion" : [ [ 8, 9 ] ], "MinDuration" : 10, "Sensitivity" : 11 }, )"
          R"("Enable" : false, "Id" : 0, "Name" : "second", "ObjectTypes" : [ "Flame" ], "PtzPresetId" : 12, )"
          R"("Type" : "FireDetection" } ] }, )"
          R"("MoveDetection" : { "Enable" : false, "Rule" : [ { "Class" : "", )"
          R"("Config" : { "DetectRegion" : [ [ 20, 21 ] ], "DetectType" : [ "AbruptSlowdown" ], )"
          R"("MinDuration" : 22, "Sensitivity" : 23, "SizeFilter" : { "BySize" : true }, "TrackDuration" : 24, )"
          R"("TriggerPosition" : [ "LeftCenter" ], "TriggerSpeed" : 25 }, "Enable" : false, )"
          R"("EventHandler" : { "AlarmOutEnable" : false, "LogEnable" : true, "RecordEnable" : true, "TimeSection" : )"
        + Days(7, 10, "1 07:08:09-10:11:12", "1 13:14:15-16:17:18")
        + R"( }, "Id" : 0, "Name" : "moved", "ObjectTypes" : [ "Pet" ], "PtzPresetId" : 26, "TrackEnable" : true, )"
          R"("Type" : "MoveDetection" } ] } } } ])";
    EXPECT_EQ(caller.Pack(), text);

    Caller again;
    again.Give(0, 2 * sizeof fires[0]);
    again.Give(1, sizeof *move);
    ASSERT_TRUE(again.Parse(text));
    EXPECT_EQ(again.group(0).stuTimeSchedule.bEnableHoliday, 1);
    EXPECT_EQ(again.group(0).stuTimeSchedule.stuTimeSection[7][5].nEndSec, 6);
    EXPECT_EQ(again.group(1).bHasEventHandler, 0);
    EXPECT_EQ(again.Pack(), text);
}

TEST(RuleGroups, RulesOfEveryTypeStayInsideTheirBuffer) {
    Caller caller;
    CFG_RULE_GROUP_INFO& group = caller.all->stuScenes[0].stuRuleGroups[0];
    for (const RuleSample& sample : RuleSamples()) {
        for (const RuleType& type : sample.types) {
            if (*type.name == '\0') continue; // no name to read it under
            const RuleBody* const body = FindRuleBody(type.code);
            ASSERT_NE(body, nullptr) << type.code;
            const GuardedBuffer rules(std::size_t{2} * body->size);
            group.pRuleBuf = reinterpret_cast<std::uint8_t*>(rules.data());
            group.nRuleBufLen = static_cast<std::int32_t>(rules.size());
            const std::string rule = RuleText(sample, type, false);
            ASSERT_TRUE(caller.Rules(std::string("{\"") + type.name + R"(":{"Rule":[)" + rule + "," + rule + "," + rule
                                     + "]}}"))
                << type.name;
            EXPECT_EQ(group.dwRuleType, type.code);
            EXPECT_EQ(group.nRuleNum, 2) << type.name;
            EXPECT_EQ(rules.view().substr(0, body->size), rules.view().substr(body->size)) << type.name;
            EXPECT_NE(rules.view().find(std::string("Rule of ") + type.name), std::string_view::npos);
            // Whatever a client left there: every count is too high, or below zero.
            for (const int filling : {0x7F, 0xFF}) {
                std::memset(rules.data(), filling, rules.size());
                EXPECT_EQ(caller.Pack().find("left behind"), std::string::npos) << type.name;
            }
        }
    }
}

TEST(RuleGroups, ANullLinkageIsNone) {
    Caller caller;
    ASSERT_TRUE(caller.Rules(R"({"FireDetection":{"EventHandler":null},"MoveDetection":{"EventHandler":{}}})"));
    EXPECT_EQ(caller.group(0).bHasEventHandler, 0);
    EXPECT_EQ(caller.group(0).stuEventHandler.abRecordEnable, 0); // which reading a linkage always sets
    EXPECT_EQ(caller.group(1).bHasEventHandler, 1);
    EXPECT_EQ(caller.group(1).stuEventHandler.abRecordEnable, 1);
}

TEST(RuleGroups, TheTextMayFillItsBuffer) {
    Caller caller;
    const std::string text = "[  ]\n";
    EXPECT_EQ(PackBytes(kCommand, caller.all.get(), sizeof(All), text.size() + 1), text);
    EXPECT_EQ(PackBytes(kCommand, caller.all.get(), sizeof(All), text.size()), "[  ]");
    EXPECT_EQ(PackBytes(kCommand, caller.all.get(), sizeof(All), text.size() - 1), kFailed);
}

} // namespace
} // namespace orrery::test
