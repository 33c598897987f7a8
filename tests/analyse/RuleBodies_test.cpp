#include "analyse/RuleBodies.h"

#include "analyse/RuleBodyMap.h"
#include "analyse/RuleFrame.h"
#include "support/RuleBuffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>

namespace orrery {
namespace {

using test::Document;
using test::Normalised;
using test::RuleBuffer;
using test::RuleReply;
using test::RuleSample;
using test::RuleSamples;
using test::RuleType;

constexpr std::size_t kHead = sizeof(CFG_RULE_INFO);

// One rule read from its text through a buffer of just its size.
template <class R>
std::unique_ptr<R> Read(const std::string& type, const std::string& config, const std::string& more = "") {
    RuleBuffer buffer(kHead + sizeof(R));
    auto body = std::make_unique<R>();
    EXPECT_TRUE(buffer.Parse(
        RuleReply(R"({"Class":"Normal","Type":")" + type + R"(","Config":{)" + config + "}" + more + "}")));
    buffer.Load(*body);
    return body;
}

// The text of one record under a code.
template <class R>
std::string Written(unsigned code, const R& body) {
    RuleBuffer buffer(kHead + sizeof(R));
    buffer.Add(code, body);
    return buffer.Pack();
}

bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

// ---- Every code and every record ----

TEST(RuleBodies, EveryCodeReadsAndWritesItsWholeText) {
    std::set<unsigned> codes;
    for (const RuleSample& sample : RuleSamples()) {
        for (const RuleType& type : sample.types) {
            codes.insert(type.code);
            const RuleBody* const row = FindRuleBody(type.code);
            ASSERT_NE(row, nullptr) << type.code;
            EXPECT_STREQ(row->table->record, sample.record) << type.code;
            EXPECT_EQ(row->table->size, row->size);
            EXPECT_EQ(RuleRecordSize(type.code), row->size);
            RuleBuffer buffer(kHead + row->size);
            const std::string text = test::RuleText(sample, type, false);
            const bool isRead = type.code != 359 && type.code != 535; // refused on purpose, and without a name
            EXPECT_EQ(buffer.Parse(RuleReply(text)), isRead) << type.code;
            if (!isRead) {
                // Its record still reads, as part of other settings.
                Document document(text);
                StackArena<4096> arena;
                LocalText local(arena);
                JsonParser parser(local);
                record::ReadCall call{parser, document.root};
                std::memset(buffer.memory.data(), 0, buffer.memory.size());
                auto* const item = reinterpret_cast<std::byte*>(buffer.memory.data());
                ASSERT_TRUE(ParseRuleBody(type.code, document.root, item + kHead, call));
                CFG_RULE_INFO head = {type.code, static_cast<std::int32_t>(row->size), {200, 2, {}}};
                std::memcpy(item, &head, kHead);
                buffer.rules.nRuleCount = 1;
            }
            EXPECT_EQ(buffer.Pack(), Normalised("[" + test::RuleText(sample, type, true) + "]")) << type.code;
        }
    }
    EXPECT_EQ(RuleSamples().size(), 58u);
    EXPECT_EQ(codes.size(), 84u);
}

TEST(RuleBodies, SettingsStandInEveryRuleThatIsWritten) {
    for (const RuleSample& sample : RuleSamples()) {
        for (const RuleType& type : sample.types) {
            RuleBuffer buffer(kHead + FindRuleBody(type.code)->size);
            const CFG_RULE_INFO head = {type.code, static_cast<std::int32_t>(FindRuleBody(type.code)->size), {}};
            std::memset(buffer.memory.data(), 0, buffer.memory.size());
            std::memcpy(buffer.memory.data(), &head, kHead);
            buffer.rules.nRuleCount = 1;
            const std::string text = buffer.Pack();
            Document document(text);
            const auto rule = document.root[0u].members();
            const auto config = std::find_if(rule.begin(), rule.end(),
                                             [](const json::Member& member) { return member.key() == "Config"; });
            ASSERT_NE(config, rule.end()) << type.code;
            // A line without points, a list without elements or no settings at all: nothing is in it, but it stands.
            const bool isBare = type.code == ORRERY_RULE_LE_TRACK || type.code == ORRERY_RULE_CLIMB_DETECTION;
            EXPECT_TRUE(config->value.isNull() || !isBare) << type.code;
        }
    }
}

TEST(RuleBodies, AMixedChannelReadsAndWritesBack) {
    std::string rules;
    std::string written;
    std::size_t size = 0;
    int count = 0;
    for (const RuleSample& sample : RuleSamples()) {
        const RuleType& type = sample.types[0];
        if (type.code == 359 || type.code == 535 || count == 32) continue;
        rules += (count == 0 ? "" : ",") + test::RuleText(sample, type, false);
        written += (count == 0 ? "" : ",") + test::RuleText(sample, type, true);
        size += kHead + FindRuleBody(type.code)->size;
        ++count;
    }
    RuleBuffer buffer(size);
    ASSERT_TRUE(buffer.Parse(RuleReply(rules)));
    EXPECT_EQ(buffer.rules.nRuleCount, 32);
    EXPECT_EQ(buffer.Pack(), Normalised("[" + written + "]"));
}

TEST(RuleBodies, ARuleWithoutItsTypesNameIsWrittenAsAll) {
    static CFG_RULE_FACEANALYSIS_INFO body;
    EXPECT_TRUE(Has(Written(535, body), "\"Type\" : \"All\""));
    RuleBuffer buffer(kHead + sizeof body);
    EXPECT_FALSE(buffer.Parse(RuleReply(R"({"Type":"All"})")));
}

TEST(RuleBodies, BothNamesOfACodeReadAndTheDevicesIsWritten) {
    for (const char* name : {"TrafficYellowInRoute", "TrafficYellowPlateInLane"}) {
        RuleBuffer buffer(kHead + sizeof(CFG_RULE_TRAFFICLANE_INFO));
        ASSERT_TRUE(buffer.Parse(RuleReply(std::string(R"({"Type":")") + name + "\"}")));
        EXPECT_EQ(buffer.Head().dwRuleType, 270u);
        EXPECT_TRUE(Has(buffer.Pack(), "\"Type\" : \"TrafficYellowInRoute\""));
    }
    for (const char* name : {"CrowdDetection", "CrowdDistriMap"}) {
        RuleBuffer buffer(kHead + sizeof(CFG_RULE_CROWD_INFO));
        ASSERT_TRUE(buffer.Parse(RuleReply(std::string(R"({"Type":")") + name + "\"}")));
        EXPECT_EQ(buffer.Head().dwRuleType, 556u);
        EXPECT_TRUE(Has(buffer.Pack(), "\"Type\" : \"CrowdDistriMap\""));
    }
}

// ---- What all rules share ----

TEST(RuleBodies, CommonFieldsStandWithoutAConfig) {
    RuleBuffer buffer(kHead + sizeof(CFG_RULE_FIRE_INFO));
    ASSERT_TRUE(buffer.Parse(RuleReply(R"({"Type":"FireDetection","Name":"n","Enable":true,"PtzPresetId":9,)"
                                       R"("ObjectTypes":["Human"]})")));
    static CFG_RULE_FIRE_INFO body;
    buffer.Load(body);
    EXPECT_STREQ(body.szRuleName, "n");
    EXPECT_EQ(body.bRuleEnable, 1);
    EXPECT_EQ(body.nPtzPresetId, 9);
    EXPECT_EQ(body.nObjectTypeNum, 1);
    EXPECT_STREQ(body.szObjectTypes[0], "Human");
    EXPECT_EQ(body.nSensitivity, 0);
}

TEST(RuleBodies, CutsNamesAndListsAtTheirRoom) {
    const std::string text(200, 'x');
    std::string types;
    for (int i = 0; i < 17; ++i)
        types += (i == 0 ? "\"" : ",\"") + text + "\"";
    const auto body =
        Read<CFG_RULE_FIRE_INFO>("FireDetection", "", R"(,"Name":")" + text + R"(","ObjectTypes":[)" + types + "]");
    EXPECT_EQ(std::string(body->szRuleName), std::string(127, 'x'));
    EXPECT_EQ(body->nObjectTypeNum, 16);
    EXPECT_EQ(std::string(body->szObjectTypes[15]), std::string(127, 'x'));
    EXPECT_EQ(body->nMinDuration, 0);
}

TEST(RuleBodies, WritesNoMoreObjectsThanThereAre) {
    static CFG_RULE_FIRE_INFO body;
    for (auto& type : body.szObjectTypes)
        std::memset(type, 'y', sizeof type); // without a terminator
    body.nObjectTypeNum = INT32_MAX;
    const std::string text = Written(12, body);
    std::size_t found = 0;
    const std::string type = "\"" + std::string(128, 'y') + "\"";
    for (std::size_t at = text.find(type); at != std::string::npos; at = text.find(type, at + 1))
        ++found;
    EXPECT_EQ(found, 16u);
    body.nObjectTypeNum = 0;
    EXPECT_FALSE(Has(Written(12, body), "ObjectTypes"));
    body.nObjectTypeNum = -1;
    EXPECT_FALSE(Has(Written(12, body), "ObjectTypes"));
}

TEST(RuleBodies, TheWeekHasTenPeriodsADayAndTheScheduleSix) {
    std::string day = "[";
    for (int i = 0; i < 11; ++i)
        day += (i == 0 ? "\"1 " : ",\"1 ") + std::to_string(i + 10) + ":00:00-23:59:59\"";
    day += "]";
    std::string week = "[" + day;
    for (int i = 1; i < 8; ++i)
        week += "," + day;
    const auto body = Read<CFG_RULE_FIRE_INFO>("FireDetection", "", R"(,"EventHandler":{"TimeSection":)" + week + "]}");
    EXPECT_EQ(body->stuTimeSection[0][0].nBeginHour, 10);
    EXPECT_EQ(body->stuTimeSection[6][9].nBeginHour, 19);
    EXPECT_EQ(body->nPtzPresetId, 0); // behind the week
    EXPECT_EQ(body->stuEventHandler.stuTimeSectionEx.bEnableHoliday, 1);
    EXPECT_EQ(body->stuEventHandler.stuTimeSectionEx.stuTimeSection[7][5].nBeginHour, 15);
    EXPECT_EQ(body->stuEventHandler.stuTimeSection[0][0].nBeginHour, 0);
    // Written: ten a day from the week, and the holiday's six behind them.
    body->stuTimeSection[6][9].nBeginHour = 2;
    body->stuEventHandler.stuTimeSectionEx.stuTimeSection[6][5].nBeginHour = 3;
    const std::string text = Written(12, *body);
    Document document(text);
    const json::Value& rows = document.root[0u]["EventHandler"]["TimeSection"];
    ASSERT_EQ(rows.size(), 8u);
    EXPECT_EQ(rows[6u].size(), 10u);
    EXPECT_EQ(rows[6u][9u].asString(), "1 02:00:00-23:59:59");
    EXPECT_EQ(rows[6u][5u].asString(), "1 15:00:00-23:59:59");
    EXPECT_EQ(rows[7u].size(), 6u);
    EXPECT_EQ(rows[7u][5u].asString(), "1 15:00:00-23:59:59");
    body->stuEventHandler.stuTimeSectionEx.bEnableHoliday = 0;
    const std::string plainText = Written(12, *body);
    Document plain(plainText);
    EXPECT_EQ(plain.root[0u]["EventHandler"]["TimeSection"].size(), 7u);
}

TEST(RuleBodies, AWeekEndsAtItsFirstBadPeriod) {
    const auto body = Read<CFG_RULE_FIRE_INFO>(
        "FireDetection", "",
        R"(,"EventHandler":{"TimeSection":[["1 08:00:00-09:00:00","bad","1 10:00:00-11:00:00"],["1 12:00:00-13:00:00"]]})");
    EXPECT_EQ(body->stuTimeSection[0][0].nBeginHour, 8);
    EXPECT_EQ(body->stuTimeSection[0][2].nBeginHour, 0);
    EXPECT_EQ(body->stuTimeSection[1][0].nBeginHour, 0);
}

TEST(RuleBodies, OnlyTwoRecordsLetTheClientClearTheWeek) {
    static CFG_RULE_CROSSLINE_INFO line;
    line.bClearTimeSection = -1;
    const std::string clearedText = Written(2, line);
    Document cleared(clearedText);
    EXPECT_TRUE(cleared.root[0u]["EventHandler"]["TimeSection"].isNull());
    EXPECT_TRUE(Has(Written(2, line), "\"TimeSection\" : null"));
    static CFG_RULE_CROSSREGION_INFO region;
    region.bClearTimeSection = 1;
    EXPECT_TRUE(Has(Written(3, region), "\"TimeSection\" : null"));
    region.bClearTimeSection = 0;
    EXPECT_FALSE(Has(Written(3, region), "\"TimeSection\" : null"));
    const auto read =
        Read<CFG_RULE_CROSSREGION_INFO>("CrossRegionDetection", "", R"(,"EventHandler":{"TimeSection":null})");
    EXPECT_EQ(read->bClearTimeSection, 0);
}

TEST(RuleBodies, TheEnableByteIsAWordInSomeRecords) {
    EXPECT_EQ(Read<CFG_RULE_CROWD_INFO>("CrowdDetection", "", R"(,"Enable":5)")->bRuleEnable, 1);
    EXPECT_EQ(Read<CFG_RULE_LETRACK_INFO>("LeTrack", "", R"(,"Enable":true)")->bRuleEnable, 1);
    EXPECT_EQ(Read<CFG_RULE_LETRACK_INFO>("LeTrack", "", R"(,"Enable":false)")->bRuleEnable, 0);
    EXPECT_EQ(sizeof(CFG_RULE_LETRACK_INFO::bRuleEnable), 4u);
    EXPECT_EQ(sizeof(CFG_RULE_FIRE_INFO::bRuleEnable), 1u);
    EXPECT_EQ(offsetof(CFG_RULE_LETRACK_INFO, nObjectTypeNum), 132u);
    EXPECT_EQ(offsetof(CFG_RULE_ROADEVENT_INFO, nObjectTypeNum), 132u);
    EXPECT_EQ(offsetof(CFG_RULE_CROWD_INFO, bTrackEnable), 132u);
    EXPECT_EQ(offsetof(CFG_RULE_CROSSREGION_INFO, bTrackEnable), 129u);
    static CFG_RULE_LETRACK_INFO body;
    body.bRuleEnable = 256;
    EXPECT_TRUE(Has(Written(366, body), "\"Enable\" : true"));
}

TEST(RuleBodies, AudioRulesHaveAShorterHead) {
    const auto body = Read<CFG_RULE_AUDIOABNORMAL_INFO>("AudioAbnormalDetection", R"("Decibel":1)",
                                                        R"(,"Id":3,"PtzPresetId":4,"ObjectTypes":["x"])");
    const std::string text = Written(294, *body);
    for (const char* key : {"\"Id\"", "\"Class\"", "\"PtzPresetId\"", "\"ObjectTypes\""})
        EXPECT_FALSE(Has(text, key)) << key;
    EXPECT_TRUE(Has(text, "\"Type\" : \"AudioAbnormalDetection\""));
    EXPECT_TRUE(Has(text, "\"TimeSection\" : [ ["));
}

// ---- Lines, regions and trigger positions ----

TEST(RuleBodies, ARegionKeeps20Points) {
    std::string points = "[1,1]";
    for (int i = 2; i <= 25; ++i)
        points += ",[" + std::to_string(i) + "," + std::to_string(i) + "]";
    const auto body = Read<CFG_RULE_FIRE_INFO>("FireDetection", "\"DetectRegion\":[" + points + "]");
    EXPECT_EQ(body->nDetectRegionPoint, 20);
    EXPECT_EQ(body->stuDetectRegion[19].nX, 20);
    EXPECT_EQ(body->nSensitivity, 0);
}

TEST(RuleBodies, APointOfOneNumberLeavesAHole) {
    const auto body =
        Read<CFG_RULE_FIRE_INFO>("FireDetection", R"("DetectRegion":[[1,2],7,[3],null,"x",[5,6,7],[8,9]])");
    EXPECT_EQ(body->nDetectRegionPoint, 3);
    EXPECT_EQ(body->stuDetectRegion[0].nY, 2);
    for (int hole : {1, 2, 3, 4})
        EXPECT_EQ(body->stuDetectRegion[hole].nX, 0);
    EXPECT_EQ(body->stuDetectRegion[5].nX, 5);
    EXPECT_EQ(body->stuDetectRegion[6].nY, 9);
    // The first three are written, whatever they hold.
    EXPECT_TRUE(Has(Written(12, *body), "\"DetectRegion\" : [ [ 1, 2 ], [ 0, 0 ], [ 0, 0 ] ]"));
    body->nDetectRegionPoint = 21;
    const std::string documentText = Written(12, *body);
    Document document(documentText);
    EXPECT_EQ(document.root[0u]["Config"]["DetectRegion"].size(), 20u);
}

TEST(RuleBodies, PositionsCountWhatIsThere) {
    const auto body = Read<CFG_RULE_RETROGRADE_INFO>(
        "RetrogradeDetection",
        R"("TriggerPosition":["TopCenter",null,"nowhere","leftcenter","BottomCenter",4,"Center","RightCenter","LeftCenter"])");
    EXPECT_EQ(body->nTriggerPosition, 7); // eight places, one of them a null
    EXPECT_EQ(body->byTriggerPosition[0], CFG_TRIGGER_TOP_CENTER);
    EXPECT_EQ(body->byTriggerPosition[1], 0);
    EXPECT_EQ(body->byTriggerPosition[2], CFG_TRIGGER_CENTER);
    EXPECT_EQ(body->byTriggerPosition[3], CFG_TRIGGER_LEFT_CENTER);
    EXPECT_EQ(body->byTriggerPosition[4], CFG_TRIGGER_BOTTOM_CENTER);
    EXPECT_EQ(body->byTriggerPosition[7], CFG_TRIGGER_RIGHT_CENTER);
    body->nTriggerPosition = 3;
    body->byTriggerPosition[1] = 5;
    EXPECT_TRUE(Has(Written(275, *body), R"("TriggerPosition" : [ "TopCenter", null, "Center" ])"));
    body->nTriggerPosition = 9;
    EXPECT_TRUE(Has(
        Written(275, *body),
        R"("TriggerPosition" : [ "TopCenter", null, "Center", "LeftCenter", "BottomCenter", "Center", "Center", "RightCenter" ])"));
}

// ---- The size filter ----

TEST(RuleBodies, AFilterTellsWhatWasThere) {
    const auto body = Read<CFG_RULE_CLIMB_INFO>("ClimbDetection", R"("SizeFilter":{"MinArea":1.5,"MaxRatioSize":[1,2],)"
                                                                  R"("MeasureMode":"Furlong","Type":"ByArea",)"
                                                                  R"("MinSize":[1.5],"MaxSize":[2.5,3.5,4.5]})");
    const CFG_SIZE_FILTER_INFO& filter = body->stuSizeFilter;
    EXPECT_EQ(body->bSizeFilter, 1);
    EXPECT_EQ(filter.abMinArea, 0);
    EXPECT_EQ(filter.fMinArea, 0.0f);
    EXPECT_EQ(filter.abMaxRatioSize, 0);
    EXPECT_EQ(filter.abMeasureModeEnable, 1);
    EXPECT_EQ(filter.byMeasureMode, 0);
    EXPECT_EQ(filter.abFilterTypeEnable, 1);
    EXPECT_EQ(filter.byFilterType, CFG_FILTER_BY_AREA);
    EXPECT_EQ(filter.abFilterMinSize, 1);
    EXPECT_EQ(filter.stuFilterMinSize.fWidth, 0.0f);
    EXPECT_EQ(filter.abFilterMaxSize, 1);
    EXPECT_EQ(filter.stuFilterMaxSize.fWidth, 2.5f);
    EXPECT_EQ(filter.stuFilterMaxSize.fHeight, 3.5f);
    EXPECT_EQ(filter.abBySize, 0);
    EXPECT_EQ(filter.abByArea, 0);
}

TEST(RuleBodies, AFilterReadsAreasAndRatiosBehindTheirSwitch) {
    const auto body = Read<CFG_RULE_CLIMB_INFO>(
        "ClimbDetection",
        R"("SizeFilter":{"ByArea":false,"MinArea":0.1,"MaxArea":2,"MinAreaSize":[1],"MaxAreaSize":null,)"
        R"("ByRatio":null,"MinRatio":0.5})");
    const CFG_SIZE_FILTER_INFO& filter = body->stuSizeFilter;
    EXPECT_EQ(filter.abByArea, 1);
    EXPECT_EQ(filter.bByArea, 0);
    EXPECT_EQ(filter.fMinArea, static_cast<float>(0.1));
    EXPECT_EQ(filter.fMaxArea, 2.0f);
    EXPECT_EQ(filter.abMinAreaSize, 1);
    EXPECT_EQ(filter.abMaxAreaSize, 0);
    EXPECT_EQ(filter.abByRatio, 0);
    EXPECT_EQ(filter.abMinRatio, 0);
}

TEST(RuleBodies, AFilterWritesByItsOwnFlagsAlone) {
    static CFG_RULE_CLIMB_INFO body;
    EXPECT_FALSE(Has(Written(296, body), "SizeFilter"));
    body.bSizeFilter = 1;
    body.stuSizeFilter.abMinArea = 1;
    body.stuSizeFilter.fMinArea = 0.5f;
    body.stuSizeFilter.abMeasureModeEnable = 1;
    body.stuSizeFilter.byMeasureMode = 3;
    body.stuSizeFilter.abFilterTypeEnable = 1;
    body.stuSizeFilter.byFilterType = 2;
    EXPECT_TRUE(
        Has(Written(296, body), R"("SizeFilter" : { "MinArea" : 0.5000000000000000, "Type" : "ByWidthHeight" })"));
}

TEST(RuleBodies, AFilterKeepsTenBoxes) {
    std::string boxes = R"(null,{"Ratio":0.5},{"CenterPoint":[7],"Ratio":1.5},{"CenterPoint":[8,9,10]},7)";
    for (int i = 5; i < 12; ++i)
        boxes += R"(,{"CenterPoint":[1,2]})";
    const auto body = Read<CFG_RULE_CLIMB_INFO>("ClimbDetection", R"("SizeFilter":{"CalibrateBoxs":[)" + boxes + "]}");
    const CFG_SIZE_FILTER_INFO& filter = body->stuSizeFilter;
    EXPECT_EQ(filter.nCalibrateBoxNum, 9); // ten places, one of them a null
    EXPECT_EQ(filter.stuCalibrateBoxs[1].fRatio, 0.5f);
    EXPECT_EQ(filter.stuCalibrateBoxs[2].nCenterPointX, 0);
    EXPECT_EQ(filter.stuCalibrateBoxs[2].fRatio, 1.5f);
    EXPECT_EQ(filter.stuCalibrateBoxs[3].nCenterPointX, 8);
    EXPECT_EQ(filter.stuCalibrateBoxs[3].nCenterPointY, 9);
    EXPECT_EQ(filter.stuCalibrateBoxs[9].nCenterPointY, 2);
    EXPECT_EQ(filter.abMeasureModeEnable, 0);
    body->stuSizeFilter.nCalibrateBoxNum = 11;
    const std::string documentText = Written(296, *body);
    Document document(documentText);
    EXPECT_EQ(document.root[0u]["Config"]["SizeFilter"]["CalibrateBoxs"].size(), 10u);
}

// ---- Single types ----

TEST(RuleBodies, AnUnknownDirectionOverALineBecomesTheFirst) {
    const auto body = Read<CFG_RULE_CROSSLINE_INFO>("CrossLineDetection", R"("Direction":"both")");
    EXPECT_EQ(body->nDirection, 0);
    EXPECT_TRUE(Has(Written(2, *body), "\"Direction\" : \"LeftToRight\""));
    body->nDirection = 3;
    EXPECT_FALSE(Has(Written(2, *body), "\"Direction\""));
    body->nDirection = -1;
    EXPECT_FALSE(Has(Written(2, *body), "\"Direction\""));
}

TEST(RuleBodies, AFightsUnknownModeIsKeptButNotWritten) {
    auto body = Read<CFG_RULE_FIGHT_INFO>("FightDetection", R"("DetectMode":"bothways")");
    EXPECT_EQ(body->nDetectMode, 255);
    EXPECT_FALSE(Has(Written(14, *body), "DetectMode"));
    body = Read<CFG_RULE_FIGHT_INFO>("FightDetection", "");
    EXPECT_EQ(body->nDetectMode, 0);
    EXPECT_TRUE(Has(Written(14, *body), "\"DetectMode\" : \"\""));
    EXPECT_EQ(Read<CFG_RULE_FIGHT_INFO>("FightDetection", R"("DetectMode":"")")->nDetectMode, 0);
    EXPECT_EQ(Read<CFG_RULE_FIGHT_INFO>("FightDetection", R"("DetectMode":"Both")")->nDetectMode, 3);
}

TEST(RuleBodies, ALeftPostsUnknownModeIsWrittenAsASentrys) {
    auto body = Read<CFG_RULE_LEAVE_INFO>("LeaveDetection",
                                          R"("Mode":"ByDog","TriggerMode":["Static","Sleep",null,"NoPerson"])");
    EXPECT_EQ(body->nMode, 255);
    EXPECT_EQ(body->nTriggerModeNum, 4);
    EXPECT_EQ(body->nTriggerMode[0], 3);
    EXPECT_EQ(body->nTriggerMode[1], 0);
    EXPECT_EQ(body->nTriggerMode[3], 1);
    const std::string text = Written(297, *body);
    EXPECT_TRUE(Has(text, "\"Mode\" : \"BySentry\""));
    EXPECT_TRUE(Has(text, R"("TriggerMode" : [ "Static", "Unknown", "Unknown", "NoPerson" ])"));
    body->nTriggerMode[0] = 99;
    EXPECT_TRUE(Has(Written(297, *body), R"("TriggerMode" : [ "Unknown", "Unknown")"));
    body->nMode = 3;
    EXPECT_TRUE(Has(Written(297, *body), "\"Mode\" : \"BySentry\""));
    body->nMode = -1;
    EXPECT_FALSE(Has(Written(297, *body), "\"Mode\""));
    body = Read<CFG_RULE_LEAVE_INFO>("LeaveDetection", R"("Mode":"BySentry")");
    EXPECT_EQ(body->nMode, 2);
    EXPECT_TRUE(Has(Written(297, *Read<CFG_RULE_LEAVE_INFO>("LeaveDetection", "")), "\"Mode\" : \"\""));
}

TEST(RuleBodies, ARegionsActionsKeepFourPlaces) {
    const auto body = Read<CFG_RULE_CROSSREGION_INFO>(
        "CrossRegionDetection", R"("Action":["Cross",null,"Dance","Inside","Appear"],"Direction":"Leave")");
    EXPECT_EQ(body->nActionNum, 3);
    EXPECT_EQ(body->byAction[0], CFG_REGION_ACTION_CROSS);
    EXPECT_EQ(body->byAction[1], 0);
    EXPECT_EQ(body->byAction[2], 0);
    EXPECT_EQ(body->byAction[3], CFG_REGION_ACTION_INSIDE);
    EXPECT_EQ(body->nMinTargets, 0);
    EXPECT_EQ(body->nDirection, CFG_REGION_LEAVE);
    // Numbers are written whether they were there or not.
    const std::string text = Written(3, *body);
    for (const char* key : {"MinTargets", "MaxTargets", "MinDuration", "ReportInterval", "TrackDuration"})
        EXPECT_TRUE(Has(text, "\"" + std::string(key) + "\" : 0")) << key;
    body->byAction[1] = 4;
    body->byAction[2] = 200;
    EXPECT_TRUE(Has(Written(3, *body), R"("Action" : [ "Cross" ])")); // nothing behind the last that has a text
    body->nActionNum = 4;
    EXPECT_TRUE(Has(Written(3, *body), R"("Action" : [ "Cross", null, null, "Inside" ])"));
}

TEST(RuleBodies, ACountOfPeopleKnowsThreeTypes) {
    EXPECT_EQ(Read<CFG_RULE_NUMBERSTAT_INFO>("NumberStat", R"("Type":"")")->nType, 2);
    EXPECT_EQ(Read<CFG_RULE_NUMBERSTAT_INFO>("NumberStat", R"("Type":"Exit")")->nType, 0);
    EXPECT_EQ(Read<CFG_RULE_NUMBERSTAT_INFO>("NumberStat", R"("Type":"Entrance")")->nType, 1);
    const auto body = Read<CFG_RULE_NUMBERSTAT_INFO>("NumberStatPlan", R"("Direction":[[1,2]],"ReportInterval":60)");
    EXPECT_EQ(body->nPeriod, 60);
    EXPECT_EQ(body->stuDirection[0].nY, 2);
    EXPECT_EQ(body->stuDirection[1].nX, 0);
    EXPECT_FALSE(Has(Written(16, *body), "PlanId"));
    body->nPlanId = 0x80000000u;
    body->nType = 2;
    const std::string text = Written(16, *body);
    EXPECT_TRUE(Has(text, "\"PlanId\" : 2147483648"));
    EXPECT_TRUE(Has(text, R"("Type" : "", "UpperLimit")"));
    EXPECT_TRUE(Has(text, R"("Direction" : [ [ 1, 2 ], [ 0, 0 ] ])"));
}

TEST(RuleBodies, ADensityIsToldItsDurationButNeverAsked) {
    const auto body = Read<CFG_RULE_DENSITY_INFO>("DensityDetection", R"("MinDuration":5,"Unit":257)");
    EXPECT_EQ(body->nMinDuration, 0);
    EXPECT_EQ(body->byUnit, 1);
    body->nMinDuration = 9;
    EXPECT_TRUE(Has(Written(289, *body), "\"MinDuration\" : 9"));
}

TEST(RuleBodies, AFollowedObjectIsToldWhereTheDeviceExpectsIt) {
    constexpr const char* kOn = R"(,"TrackEnable":true)";
    const auto left = Read<CFG_RULE_LEFT_INFO>("LeftDetection", "", kOn);
    EXPECT_EQ(left->bTrackEnable, 1);
    EXPECT_FALSE(Has(Written(5, *left), "TrackEnable"));
    const auto lane = Read<CFG_RULE_TRAFFICLANE_INFO>("TrafficBacking", "", kOn);
    EXPECT_EQ(lane->bTrackEnable, 1);
    const std::string documentText = Written(293, *lane);
    Document document(documentText);
    EXPECT_TRUE(document.root[0u]["Config"]["TrackEnable"].asBool());
    EXPECT_TRUE(document.root[0u]["TrackEnable"].isNull());
    EXPECT_EQ(Read<CFG_RULE_TRAFFICLANE_INFO>("TrafficBacking", R"("TrackEnable":true)")->bTrackEnable, 0);
    EXPECT_EQ(Read<CFG_RULE_CROSSLINE_INFO>("CrossLineDetection", R"("TrackEnable":true)")->bTrackEnable, 0);
}

TEST(RuleBodies, APartOfAFaceComesWithABlankAndGoesWithout) {
    const auto body = Read<CFG_RULE_FACERECOGNITION_INFO>("FaceRecognition", R"("Areas":["Eyebrow ","Mouth","Ear"])");
    EXPECT_EQ(body->nAreaNum, 3);
    EXPECT_EQ(body->byAreas[0], CFG_FACE_AREA_EYEBROW);
    EXPECT_EQ(body->byAreas[1], CFG_FACE_AREA_MOUTH);
    EXPECT_TRUE(Has(Written(279, *body), R"("Areas" : [ "Eyebrow", "Mouth", "Eyebrow" ])"));
}

TEST(RuleBodies, ADriversLaneIsTakenFromAnIntegerOnly) {
    const auto lane = [](const char* value) {
        return Read<CFG_RULE_TRAFFICDRIVER_INFO>("TrafficDriverSmoking", "\"LaneNumber\":" + std::string(value))
            ->nLaneNumber;
    };
    EXPECT_EQ(lane("4"), 4);
    EXPECT_EQ(lane("4.0"), 0);
    EXPECT_EQ(lane("true"), 0);
    EXPECT_EQ(lane("\"4\""), 0);
    EXPECT_EQ(Read<CFG_RULE_TRAFFICPASS_INFO>("TrafficPassNotInOrder", R"("LaneNumber":4.0)")->nLaneNumber, 4);
    EXPECT_EQ(Read<CFG_RULE_PATROL_INFO>("PatrolDetection", R"("PatrolTime":true)")->nPatrolTime, 0);
}

TEST(RuleBodies, FaceTypesFillTheirPlacesOneBehindTheOther) {
    std::string types = R"("a",null,"c")";
    for (int i = 0; i < 7; ++i)
        types += ",\"" + std::string(1, static_cast<char>('d' + i)) + "\"";
    const auto body = Read<CFG_RULE_FACEDETECTION_INFO>(
        "FaceDetection", "\"HumanFaceTypes\":[" + types + R"(],"FeatureList":["Age","Nose",null,"Sex"])");
    EXPECT_EQ(body->nHumanFaceTypeNum, 8);
    EXPECT_STREQ(body->szHumanFaceTypes[0], "a");
    EXPECT_STREQ(body->szHumanFaceTypes[1], "c");
    EXPECT_STREQ(body->szHumanFaceTypes[7], "i");
    EXPECT_EQ(body->stuEventHandler.abRecordMask, 0); // what follows the last place
    EXPECT_EQ(body->nFeatureNum, 4);
    EXPECT_EQ(body->nFeatures[0], 2);
    EXPECT_EQ(body->nFeatures[1], 0);
    EXPECT_EQ(body->nFeatures[3], 1);
    EXPECT_TRUE(Has(Written(26, *body), R"("FeatureList" : [ "Age", null, null, "Sex" ])"));
    body->nHumanFaceTypeNum = 100;
    const std::string documentText = Written(26, *body);
    Document document(documentText);
    EXPECT_EQ(document.root[0u]["Config"]["HumanFaceTypes"].size(), 8u);
}

TEST(RuleBodies, SpeedsStandInTheOrderOfTheirRecord) {
    constexpr const char* kLimits = R"("SpeedLimit":[40,120,7])";
    const auto junction = Read<CFG_RULE_TRAFFICJUNCTION_INFO>("TrafficJunction", kLimits);
    EXPECT_EQ(junction->nSpeedLowerLimit, 40);
    EXPECT_EQ(junction->nSpeedUpperLimit, 120);
    EXPECT_LT(offsetof(CFG_RULE_TRAFFICJUNCTION_INFO, nSpeedLowerLimit),
              offsetof(CFG_RULE_TRAFFICJUNCTION_INFO, nSpeedUpperLimit));
    const auto gate = Read<CFG_RULE_TRAFFICGATE_INFO>("TrafficGate", kLimits);
    EXPECT_EQ(gate->nSpeedLowerLimit, 40);
    EXPECT_EQ(gate->nSpeedUpperLimit, 120);
    EXPECT_GT(offsetof(CFG_RULE_TRAFFICGATE_INFO, nSpeedLowerLimit),
              offsetof(CFG_RULE_TRAFFICGATE_INFO, nSpeedUpperLimit));
    const auto speed = Read<CFG_RULE_TRAFFICSPEED_INFO>("TrafficOverSpeed", R"("SpeedLimit":[4000000000,-1])");
    EXPECT_EQ(speed->nSpeedLowerLimit, 4000000000u);
    EXPECT_EQ(speed->nSpeedUpperLimit, 0u); // no speed is negative
    EXPECT_LT(offsetof(CFG_RULE_TRAFFICSPEED_INFO, nSpeedUpperLimit),
              offsetof(CFG_RULE_TRAFFICSPEED_INFO, nSpeedLowerLimit));
    for (const char* short_ : {"[40]", "40", "\"40\"", "null", "{}"}) {
        const auto none = Read<CFG_RULE_TRAFFICGATE_INFO>("TrafficGate", "\"SpeedLimit\":" + std::string(short_));
        EXPECT_EQ(none->nSpeedLowerLimit, 0) << short_;
        EXPECT_EQ(none->nSpeedUpperLimit, 0) << short_;
    }
}

TEST(RuleBodies, TriggersOfASnapshotEndAtTheirRoom) {
    const std::string text(300, 'z');
    std::string modes = "\"" + text + "\",null";
    for (int i = 2; i < 33; ++i)
        modes += ",\"m" + std::to_string(i) + "\"";
    const auto junction = Read<CFG_RULE_TRAFFICJUNCTION_INFO>("TrafficJunction", "\"TriggerMode\":[" + modes + "]");
    EXPECT_EQ(junction->nTriggerModeNum, 31);
    EXPECT_EQ(std::string(junction->szTriggerMode[0]), std::string(127, 'z'));
    EXPECT_STREQ(junction->szTriggerMode[1], "");
    EXPECT_STREQ(junction->szTriggerMode[31], "m31");
    const auto gate = Read<CFG_RULE_TRAFFICGATE_INFO>("TrafficGate", "\"TriggerMode\":[" + modes + "]");
    EXPECT_EQ(gate->nTriggerModeNum, 31);
    EXPECT_EQ(std::string(gate->szTriggerMode[0]), std::string(127, 'z'));
}

TEST(RuleBodies, ABansTimesAreTextsOnly) {
    const auto body = Read<CFG_RULE_TRAFFICCONTROL_INFO>(
        "TrafficControl",
        R"("TimeSchedule":[["1 08:00:00-09:00:00",7,"bad","1 10:00:00-11:00:00"],null,5,["1 12:00:00-13:00:00"]],)"
        R"("PlateNumber":"Both","VehicleSizes":["a","b","c","d","e"])");
    EXPECT_EQ(body->stuTimeSchedule[0][0].nBeginHour, 8);
    EXPECT_EQ(body->stuTimeSchedule[0][1].nBeginHour, 0);
    EXPECT_EQ(body->stuTimeSchedule[0][3].nBeginHour, 10);
    EXPECT_EQ(body->stuTimeSchedule[3][0].nBeginHour, 12);
    EXPECT_EQ(body->nPlateNumber, 2);
    EXPECT_EQ(body->nVehicleSizeNum, 4);
    EXPECT_STREQ(body->szVehicleSizes[3], "d");
    EXPECT_EQ(body->nPlateTypeNum, 0);
}

TEST(RuleBodies, ShapesOfExactlyTwoPointsTakeNoOthers) {
    for (const char* other : {"[[1,2]]", "[[1,2],[3,4],[5,6]]", "[]", "7", "null"}) {
        const auto queue = Read<CFG_RULE_QUEUE_INFO>("QueueDetection", "\"DetectLine\":" + std::string(other));
        EXPECT_EQ(queue->stuDetectLine[0].nX, 0) << other;
        const auto crowd = Read<CFG_RULE_RIOTER_INFO>("RioterDetection", "\"MinDetectRect\":" + std::string(other));
        EXPECT_EQ(crowd->stuMinDetectRect.stuLeftTop.nX, 0) << other;
    }
    const auto queue = Read<CFG_RULE_QUEUE_INFO>("QueueDetection", R"("DetectLine":[[1,2],[3,4]])");
    EXPECT_EQ(queue->stuDetectLine[1].nY, 4);
    const auto crowd = Read<CFG_RULE_RIOTER_INFO>("RioterDetection", R"("MinDetectRect":[[1,2],[3,4]])");
    EXPECT_EQ(crowd->stuMinDetectRect.stuRightBottom.nX, 3);
}

TEST(RuleBodies, PlacesOnDutyNeedTwoPoints) {
    const auto body = Read<CFG_RULE_ONDUTY_INFO>(
        "OnDutyDetection", R"("TemplateRegion":[[[1,2],[3,4]],[[5,6]],null,7,[[7],[8,4000000000]],[]])");
    EXPECT_EQ(body->nTemplateRegionNum, 2);
    EXPECT_EQ(body->stuTemplateRegion[0].stuRightBottom.nY, 4);
    EXPECT_EQ(body->stuTemplateRegion[1].stuLeftTop.nX, 0);
    EXPECT_EQ(body->stuTemplateRegion[1].stuRightBottom.nX, 8);
    EXPECT_TRUE(Has(Written(343, *body), "[ [ 0, 0 ], [ 8, 4000000000 ] ]"));
}

TEST(RuleBodies, ACrowdIsCountedInEightRegions) {
    std::string regions = R"({"PeopleNumLimit":4000000000,"Region":[[1,2],[3],[5,6],[7,8],[9,9]]},null)";
    for (int i = 2; i < 9; ++i)
        regions += R"(,{"PeopleNumLimit":)" + std::to_string(i) + "}";
    const auto body = Read<CFG_RULE_CROWD_INFO>("CrowdDistriMap", "\"PeopleStatRegions\":[" + regions + "]");
    EXPECT_EQ(body->nPeopleStatRegionNum, 8);
    EXPECT_EQ(body->stuPeopleStatRegions[0].nPeopleNumLimit, 4000000000u);
    EXPECT_EQ(body->stuPeopleStatRegions[0].stuRegion[1].nX, 3);
    EXPECT_EQ(body->stuPeopleStatRegions[0].stuRegion[3].nY, 8);
    EXPECT_EQ(body->stuPeopleStatRegions[7].nPeopleNumLimit, 7u);
}

TEST(RuleBodies, ADirectionInDepthHasSevenLetters) {
    const auto body = Read<CFG_RULE_STEREONUMBERSTAT_INFO>("StereoNumberStat", R"("Direction":"LeftToRight")");
    EXPECT_STREQ(body->szDirection, "LeftToR");
}

TEST(RuleBodies, ThresholdsCountWhateverTheyAre) {
    std::string list = "1,null,\"x\"";
    for (int i = 3; i < 33; ++i)
        list += "," + std::to_string(i);
    const auto body = Read<CFG_RULE_VIDEOABNORMAL_INFO>("VideoAbnormalDetection", "\"Threshold\":[" + list + "]");
    EXPECT_EQ(body->nThresholdNum, 32);
    EXPECT_EQ(body->nThreshold[1], 0);
    EXPECT_EQ(body->nThreshold[31], 31);
}

TEST(RuleBodies, ASeatThatIsUnknownCounts) {
    const auto body =
        Read<CFG_RULE_TRAFFICSAFEBELT_INFO>("TrafficWithoutSafeBelt", R"("Seats":["SlaveSeat","Roof",null])");
    EXPECT_EQ(body->nSeatNum, 3);
    EXPECT_EQ(body->nSeats[0], 2);
    EXPECT_EQ(body->nSeats[1], 0);
    EXPECT_EQ(Read<CFG_RULE_TRAFFICSAFEBELT_INFO>("TrafficWithoutSafeBelt", R"("Seats":"MainSeat")")->nSeatNum, 0);
}

} // namespace
} // namespace orrery
