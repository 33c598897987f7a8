// Texts whose keys tell what they carry.
#include "orrery/analyse_rules.h"
#include "orrery/encode.h"
#include "orrery/events_traffic_flow.h"
#include "orrery/events_typed.h"
#include "orrery/rule_bodies.h"
#include "orrery/traffic_flow.h"
#include "support/Events.h"
#include "support/FailingAllocator.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace orrery::test {
namespace {

// The result; every hand-over is looked at while its record lives.
std::int32_t Typed(const std::string& text, const EventVisitor& visit) {
    return CLIENT_ParseDataByCallback(text.c_str(), 0, VisitEvent, const_cast<EventVisitor*>(&visit));
}

struct Codes {
    std::int32_t result;
    std::vector<std::uint32_t> codes;
    bool operator==(const Codes&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Codes& codes) {
    out << codes.result << ":";
    for (const std::uint32_t code : codes.codes)
        out << " " << std::hex << code << std::dec;
    return out;
}
Codes CodesIn(const std::string& text) {
    Codes codes{};
    codes.result = Typed(text, [&](const Delivered& one) { codes.codes.push_back(one.type); });
    return codes;
}

// Looks at the only hand-over of a text.
template <class R, class Look>
void One(const std::string& text, std::uint32_t type, const Look& look) {
    int count = 0;
    Typed(text, [&](const Delivered& one) {
        ++count;
        ASSERT_EQ(one.type, type);
        look(one.as<R>(), one.size);
    });
    EXPECT_EQ(count, 1) << text;
}

std::string Times(int count, const std::string& element) {
    std::string list = "[";
    for (int i = 0; i < count; ++i)
        list += (i > 0 ? "," : "") + element;
    return list + "]";
}

constexpr const char* kEvent = R"([{"Code":"TrafficControl","Data":{}}])";

// ---- The text ------------------------------------------------------------------------------------------------------

TEST(TypedText, NeedsATextAndACallback) {
    EXPECT_EQ(CLIENT_ParseDataByCallback(nullptr, 0, VisitEvent, nullptr), 0);
    EXPECT_EQ(CLIENT_ParseDataByCallback(R"({"ObjectList":[]})", 0, nullptr, nullptr), 0);
    EXPECT_EQ(CodesIn(R"({"ObjectList":[])"), (Codes{0, {}}));
    EXPECT_EQ(CodesIn("{}"), (Codes{0, {}}));
    EXPECT_EQ(CodesIn("[1]"), (Codes{0, {}}));
    EXPECT_EQ(CodesIn(""), (Codes{0, {}}));
}

TEST(TypedText, NamesWithoutWorkPassSilently) {
    EXPECT_EQ(CodesIn(R"({"Ptz":{"a":1}})"), (Codes{0, {}}));
    EXPECT_EQ(CodesIn(R"({"VideoAnalyse":{},"FocusStatus":{},"Nonsense":[1],"videostatsummary":{}})"), (Codes{0, {}}));
    // The last that worked settles the result.
    EXPECT_EQ(CodesIn(R"({"ObjectList":[],"Ptz":{}})"), (Codes{1, {}}));
}

TEST(TypedText, RulesComeFirstAndTheRestInTheOrderOfNames) {
    const std::string flow = R"("TrafficFlowStatInfo":[{}])";
    const std::string rules = R"("VideoAnalyseRule":[{"Type":"FireDetection"}])";
    EXPECT_EQ(CodesIn(R"({"ObjectList":[{}],)" + rules + "}"), (Codes{1, {0x1000001, 0x1000002}}));
    EXPECT_EQ(CodesIn(R"({"VideoSynopsisAnalyseRule":{},"VideoStatSummary":{},)" + flow + "," + rules
                      + R"(,"ObjectList":[{}],"EventList":)" + kEvent + R"(,"Event":)" + kEvent + "}"),
              (Codes{1, {0x1000001, 21, 21, 0x1000002, 0x1000003, 0x1000000, 0x1000005}}));
}

TEST(TypedText, EventsAreThoseOfTheWholeTextEachTime) {
    // "Event" stands before "EventList" both times.
    const std::string two = R"([{"Code":"TrafficControl","Data":{}},{"Code":"FlowStat","Data":{}}])";
    EXPECT_EQ(CodesIn(R"({"Event":)" + two + R"(,"EventList":)" + kEvent + "}"), (Codes{1, {21, 15, 21, 15}}));
    EXPECT_EQ(CodesIn(R"({"EventList":)" + two + "}"), (Codes{1, {21, 15}}));
    EXPECT_EQ(CodesIn(R"({"Event":null})"), (Codes{1, {}}));
    Typed(std::string(R"({"Event":)") + kEvent + "}",
          [](const Delivered& one) { EXPECT_EQ(one.as<DEV_EVENT_TRAFFICCONTROL_INFO>().nChannelID, -1); });
}

TEST(TypedText, TheLastWorkerSettlesTheResult) {
    // Rules that cannot be read give 0, but what follows them gives 1.
    EXPECT_EQ(CodesIn(R"({"VideoAnalyseRule":[{"Type":"Nonsense"}]})"), (Codes{0, {0x1000001}}));
    EXPECT_EQ(CodesIn(R"({"ObjectList":[],"VideoAnalyseRule":[{"Type":"Nonsense"}]})"), (Codes{1, {0x1000001}}));
    EXPECT_EQ(CodesIn(R"({"ObjectList":[],"VideoStatSummary":null})"), (Codes{0, {}}));
}

// ---- "VideoStatSummary" --------------------------------------------------------------------------------------------

TEST(TypedText, SummariesAreReadWhole) {
    One<EVENT_VIDEO_STAT_SUMMARY>(
        R"({"VideoStatSummary":{"Channel":3,"RuleName":"Door","UTC":1700000000,
        "EnteredSubtotal":{"Total":11,"Today":12,"ThisMonth":13,"ThisYear":14,"MaxDaily":15},
        "ExitedSubtotal":{"Total":21,"Today":22,"ThisMonth":23,"ThisYear":24,"MaxDaily":25},
        "AvgInside":{"Total":31,"Today":32,"ThisMonth":33,"ThisYear":34,"MaxDaily":35},
        "MaxInside":{"Total":41,"Today":42,"ThisMonth":43,"ThisYear":44,"MaxDaily":45},
        "InsideSubtotal":{"Total":51,"Today":52,"ThisMonth":53,"ThisYear":54,"MaxDaily":55}}})",
        ORRERY_TYPED_VIDEO_STAT_SUMMARY, [](const EVENT_VIDEO_STAT_SUMMARY& summary, std::uint32_t size) {
            EXPECT_EQ(size, sizeof summary);
            EXPECT_EQ(summary.nReserved, 0);
            EXPECT_EQ(summary.nChannelID, 3);
            EXPECT_STREQ(summary.szRuleName, "Door");
            EXPECT_EQ(summary.stuUTC.dwYear, 2023u); // 2023-11-14 22:13:20
            EXPECT_EQ(summary.stuUTC.dwMonth, 11u);
            EXPECT_EQ(summary.stuUTC.dwDay, 14u);
            EXPECT_EQ(summary.stuUTC.dwHour, 22u);
            EXPECT_EQ(summary.stuUTC.dwMinute, 13u);
            EXPECT_EQ(summary.stuUTC.dwSecond, 20u);
            const EVENT_STAT_SUBTOTAL expected[] = {
                {11, 12, 13, 14, 15}, {21, 22, 23, 24, 25}, {31, 32, 33, 34, 35},
                {41, 42, 43, 44, 45}, {51, 52, 53, 54, 55},
            };
            EXPECT_EQ(std::memcmp(&summary.stuEnteredSubtotal, expected, sizeof expected), 0);
        });
}

TEST(TypedText, ASummaryNeedsAValueButNoKeys) {
    EXPECT_EQ(CodesIn(R"({"VideoStatSummary":null})"), (Codes{0, {}}));
    EXPECT_EQ(CodesIn(R"({"VideoStatSummary":{}})"), (Codes{1, {0x1000000}}));
    EXPECT_EQ(CodesIn(R"({"VideoStatSummary":5})"), (Codes{1, {0x1000000}}));
    One<EVENT_VIDEO_STAT_SUMMARY>(R"({"VideoStatSummary":{}})", ORRERY_TYPED_VIDEO_STAT_SUMMARY,
                                  [](const EVENT_VIDEO_STAT_SUMMARY& summary, std::uint32_t) {
                                      const EVENT_VIDEO_STAT_SUMMARY zero{};
                                      EXPECT_EQ(std::memcmp(&summary, &zero, sizeof zero), 0);
                                  });
}

// ---- "ObjectList" --------------------------------------------------------------------------------------------------

TEST(TypedText, ObjectsCloseUp) {
    One<EVENT_OBJECT_INFO>(R"({"ObjectList":[{"ObjectID":1,"Image":{"FilePath":"/a"}},null,{"ObjectID":3},7]})",
                           ORRERY_TYPED_OBJECT_LIST, [](const EVENT_OBJECT_INFO& first, std::uint32_t size) {
                               ASSERT_EQ(size, 3 * sizeof(EVENT_OBJECT_INFO));
                               const EVENT_OBJECT_INFO* const objects = &first;
                               EXPECT_EQ(objects[0].nObjectID, 1);
                               EXPECT_STREQ(objects[0].pszFilePath, "/a");
                               EXPECT_EQ(objects[1].nObjectID, 3);
                               EXPECT_EQ(objects[1].pszFilePath, nullptr);
                               EXPECT_EQ(objects[2].nObjectID, 0);
                           });
}

TEST(TypedText, NoObjectsAreNotHandedOver) {
    EXPECT_EQ(CodesIn(R"({"ObjectList":[]})"), (Codes{1, {}}));
    EXPECT_EQ(CodesIn(R"({"ObjectList":null})"), (Codes{1, {}}));
    EXPECT_EQ(CodesIn(R"({"ObjectList":{"a":{}}})"), (Codes{1, {}}));
    One<EVENT_OBJECT_INFO>(R"({"ObjectList":[null]})", ORRERY_TYPED_OBJECT_LIST,
                           [](const EVENT_OBJECT_INFO&, std::uint32_t size) { EXPECT_EQ(size, 0u); });
}

// ---- "TrafficFlowStatInfo" -----------------------------------------------------------------------------------------

TEST(TypedText, FlowsAreReadWhole) {
    One<EVENT_TRAFFIC_FLOW_STAT>(
        R"({"TrafficFlowStatInfo":[null,{"MachineAddress":"Main Street","MachineName":"East","DrivingDirection":["Leave","A","B","C"],
        "Lane":2,"UTC":1700000000,"UTCMS":250,"Period":5,"Vehicles":6,"AverageSpeed":7.5,"AverageLength":8.5,
        "TimeOccupyRatio":9.5,"SpaceOccupyRatio":10.5,"SpaceHeadway":11.5,"TimeHeadway":12.5,"Density":13.5,
        "OverSpeedVehicles":14,"UnderSpeedVehicles":15,"LargeVehicles":16,"MediumVehicles":17,"SmallVehicles":18,
        "MotoVehicles":19,"LongVehicles":20,"BackOfQueue":21.5,"Rank":"subtrunk","State":22}]})",
        ORRERY_TYPED_TRAFFIC_FLOW_STAT_INFO, [](const EVENT_TRAFFIC_FLOW_STAT& first, std::uint32_t size) {
            ASSERT_EQ(size, 2 * sizeof first);
            const EVENT_TRAFFIC_FLOW_STAT zero{};
            EXPECT_EQ(std::memcmp(&first, &zero, sizeof zero), 0); // lanes keep their places
            const EVENT_TRAFFIC_FLOW_STAT& flow = (&first)[1];
            EXPECT_STREQ(flow.szMachineAddress, "Main Street");
            EXPECT_STREQ(flow.szMachineName, "East");
            EXPECT_STREQ(flow.szDrivingDirection[0], "Leave");
            EXPECT_STREQ(flow.szDrivingDirection[1], "A");
            EXPECT_STREQ(flow.szDrivingDirection[2], "B");
            EXPECT_EQ(flow.nLane, 2);
            const EVENT_FLOW_TIME moment{2023, 11, 14, 22, 13, 20, 250, 0};
            EXPECT_EQ(std::memcmp(&flow.stuUTC, &moment, sizeof moment), 0);
            EXPECT_EQ(flow.nPeriod, 5);
            EXPECT_EQ(flow.nVehicles, 6);
            EXPECT_EQ(flow.fAverageSpeed, 7.5f);
            EXPECT_EQ(flow.fAverageLength, 8.5f);
            EXPECT_EQ(flow.fTimeOccupyRatio, 9.5f);
            EXPECT_EQ(flow.fSpaceOccupyRatio, 10.5f);
            EXPECT_EQ(flow.fSpaceHeadway, 11.5f);
            EXPECT_EQ(flow.fTimeHeadway, 12.5f);
            EXPECT_EQ(flow.fDensity, 13.5f);
            EXPECT_EQ(flow.nOverSpeedVehicles, 14);
            EXPECT_EQ(flow.nUnderSpeedVehicles, 15);
            EXPECT_EQ(flow.nLargeVehicles, 16);
            EXPECT_EQ(flow.nMediumVehicles, 17);
            EXPECT_EQ(flow.nSmallVehicles, 18);
            EXPECT_EQ(flow.nMotoVehicles, 19);
            EXPECT_EQ(flow.nLongVehicles, 20);
            EXPECT_EQ(flow.fBackOfQueue, 21.5f);
            EXPECT_EQ(flow.emRank, 3);
            EXPECT_EQ(flow.nState, 22);
        });
}

TEST(TypedText, HeadingsAreCutAndRanksAreFour) {
    const auto rankOf = [](const std::string& rank) {
        std::int32_t code = -1;
        One<EVENT_TRAFFIC_FLOW_STAT>(R"({"TrafficFlowStatInfo":[{"Rank":)" + rank + "}]}",
                                     ORRERY_TYPED_TRAFFIC_FLOW_STAT_INFO,
                                     [&](const EVENT_TRAFFIC_FLOW_STAT& flow, std::uint32_t) { code = flow.emRank; });
        return code;
    };
    EXPECT_EQ(rankOf("\"\""), 0);
    EXPECT_EQ(rankOf("\"Rapid\""), 1);
    EXPECT_EQ(rankOf("\"Trunk\""), 2);
    EXPECT_EQ(rankOf("\"SubTrunk\""), 3);
    EXPECT_EQ(rankOf("\"BRANCH\""), 4);
    EXPECT_EQ(rankOf("\"Else\""), 0);
    EXPECT_EQ(rankOf("3"), 0);
    const std::string text = "\"" + std::string(40, 'x') + "\"";
    One<EVENT_TRAFFIC_FLOW_STAT>(R"({"TrafficFlowStatInfo":[{"DrivingDirection":)" + Times(3, text) + "}]}",
                                 ORRERY_TYPED_TRAFFIC_FLOW_STAT_INFO,
                                 [](const EVENT_TRAFFIC_FLOW_STAT& flow, std::uint32_t) {
                                     EXPECT_EQ(flow.szDrivingDirection[0], std::string(31, 'x'));
                                     EXPECT_EQ(std::string(flow.szDrivingDirection[1], 32), std::string(32, 'x'));
                                     EXPECT_EQ(flow.nLane, 0);
                                 });
    EXPECT_EQ(CodesIn(R"({"TrafficFlowStatInfo":[]})"), (Codes{1, {}}));
}

// ---- "VideoAnalyseRule" --------------------------------------------------------------------------------------------

TEST(TypedText, RulesArePackedIntoABuffer) {
    static_assert(sizeof(EVENT_RULE_TABLE) == 24);
    One<EVENT_RULE_TABLE>(
        R"({"VideoAnalyseRule":[{"Type":"FireDetection","Name":"one","Id":3},{"Type":"MoveDetection","Name":"two","Class":"Normal"}]})",
        ORRERY_TYPED_VIDEO_ANALYSE_RULE, [](const EVENT_RULE_TABLE& table, std::uint32_t size) {
            EXPECT_EQ(size, 24u);
            EXPECT_EQ(table.dwHead, 2u);
            ASSERT_EQ(table.nRuleBufLen,
                      static_cast<std::int32_t>(2 * 528 + sizeof(CFG_RULE_FIRE_INFO) + sizeof(CFG_RULE_MOVE_INFO)));
            CFG_RULE_INFO head;
            std::memcpy(&head, table.pRuleBuf, sizeof head);
            EXPECT_EQ(head.dwRuleType, 12u);
            EXPECT_EQ(head.stuRuleGeneral.byId, 3);
            EXPECT_STREQ(reinterpret_cast<const char*>(table.pRuleBuf) + 528, "one");
            const std::uint8_t* const second = table.pRuleBuf + 528 + sizeof(CFG_RULE_FIRE_INFO);
            std::memcpy(&head, second, sizeof head);
            EXPECT_EQ(head.dwRuleType, 9u);
            EXPECT_EQ(head.stuRuleGeneral.nClass, 1);
            EXPECT_STREQ(reinterpret_cast<const char*>(second) + 528, "two");
        });
}

TEST(TypedText, RulesOfUnknownTypesAreTold) {
    for (const char* none : {"[]", "null", R"([{"Type":"FireDetection"},{"Type":"Nonsense"}])"}) {
        const std::string text = std::string(R"({"VideoAnalyseRule":)") + none + "}";
        One<EVENT_RULE_TABLE>(text, ORRERY_TYPED_VIDEO_ANALYSE_RULE,
                              [&](const EVENT_RULE_TABLE& table, std::uint32_t size) {
                                  EXPECT_EQ(size, 24u) << none;
                                  EXPECT_EQ(table.dwHead, 0u) << none;
                                  EXPECT_EQ(table.pRuleBuf, nullptr) << none;
                                  EXPECT_EQ(table.nRuleBufLen, 0) << none;
                              });
        EXPECT_EQ(CodesIn(text).result, 0) << none;
    }
    // A type with a record that no device sends: the rules before it stand in the buffer.
    const std::string text =
        R"({"VideoAnalyseRule":[{"Type":"FireDetection","Name":"one"},{"Type":"StandUpDetection"}]})";
    EXPECT_EQ(CodesIn(text), (Codes{0, {0x1000001}}));
    One<EVENT_RULE_TABLE>(text, ORRERY_TYPED_VIDEO_ANALYSE_RULE, [](const EVENT_RULE_TABLE& table, std::uint32_t) {
        EXPECT_EQ(table.dwHead, 2u);
        EXPECT_STREQ(reinterpret_cast<const char*>(table.pRuleBuf) + 528, "one");
        const std::size_t first = 528 + sizeof(CFG_RULE_FIRE_INFO);
        for (std::size_t i = first; i < static_cast<std::size_t>(table.nRuleBufLen); ++i)
            ASSERT_EQ(table.pRuleBuf[i], 0);
    });
}

TEST(TypedText, ThirtyTwoRulesAreRead) {
    One<EVENT_RULE_TABLE>(R"({"VideoAnalyseRule":)" + Times(33, R"({"Type":"FireDetection"})") + "}",
                          ORRERY_TYPED_VIDEO_ANALYSE_RULE, [](const EVENT_RULE_TABLE& table, std::uint32_t) {
                              EXPECT_EQ(table.dwHead, 32u);
                              EXPECT_EQ(table.nRuleBufLen,
                                        static_cast<std::int32_t>(32 * (528 + sizeof(CFG_RULE_FIRE_INFO))));
                          });
}

// ---- "TrafficFlowStat" ---------------------------------------------------------------------------------------------

TEST(TypedText, FlowSettingsAreReadFromTheirOwnValue) {
    const std::string nine = Times(9, R"({"Number":4})");
    const auto look = [](std::int32_t max, std::int32_t extra) {
        return [=](const CFG_TRAFFICFLOWSTAT_INFO& flow, std::uint32_t size) {
            EXPECT_EQ(size, sizeof flow);
            EXPECT_EQ(flow.abPeriod, 1);
            EXPECT_EQ(flow.nPeriod, 5);
            EXPECT_EQ(flow.nConfigNum, 8);
            EXPECT_EQ(flow.nExtraMax, max);
            EXPECT_EQ(flow.nExtraNum, extra);
            EXPECT_EQ(flow.pExtraConfigs == nullptr, max == 0);
        };
    };
    const std::string flow = R"("TrafficFlowStat":{"Period":5,"Config":)" + nine + "}";
    // Only a "Config" at the top makes room behind the eighth.
    One<CFG_TRAFFICFLOWSTAT_INFO>("{" + flow + "}", ORRERY_TYPED_TRAFFIC_FLOW_STAT, look(0, 0));
    One<CFG_TRAFFICFLOWSTAT_INFO>(R"({"Config":[1,2,3,4,5,6,7,8],)" + flow + "}", ORRERY_TYPED_TRAFFIC_FLOW_STAT,
                                  look(0, 0));
    One<CFG_TRAFFICFLOWSTAT_INFO>(R"({"Config":[1,2,3,4,5,6,7,8,9,10],)" + flow + "}", ORRERY_TYPED_TRAFFIC_FLOW_STAT,
                                  look(2, 1));
    EXPECT_EQ(CodesIn("{" + flow + "}"), (Codes{1, {0x1000004}}));
    EXPECT_EQ(CodesIn(R"({"TrafficFlowStat":null})"), (Codes{0, {}}));
}

// ---- "VideoSynopsisAnalyseRule" ------------------------------------------------------------------------------------

template <class Look>
void Synopsis(const std::string& rule, const Look& look) {
    One<EVENT_VIDEO_SYNOPSIS_RULE>(R"({"VideoSynopsisAnalyseRule":)" + rule + "}",
                                   ORRERY_TYPED_VIDEO_SYNOPSIS_ANALYSE_RULE, look);
}

TEST(TypedText, SynopsesAreReadWhole) {
    Synopsis(
        R"({"OutputType":["SynopsisVideo"],"Density":3,"EnableShowTime":true,"EnableShowBox":false,"EnableRecordResult":true,
        "Time":5,"ConditionFilter":[{"MinSizeClass":1,"MaxSizeClass":2,"MinSpeed":3,"MaxSpeed":4294967295,
            "BeginTime":"2026-11-22 08:09:10","EndTime":"2026-11-22 18:19:20","ObjectType":"Human","Category":"Child",
            "MainColor":[[1,2,3,4],[5,6,7],[255,0,0,128]],"PartitionLowerUpperBodyColor":true,
            "LowerBodyColor":[[9,10,11,12]]},{"MinSpeed":77,"LowerBodyColor":[[1,1,1,1]]}],
        "DetailRule":{"b":[1,"x"],"a":null},"Resolution":"1080","EnableMaximizeUsedCPU":true,"EnableSmoothBorder":true})",
        [](const EVENT_VIDEO_SYNOPSIS_RULE& rule, std::uint32_t size) {
            EXPECT_EQ(size, sizeof rule);
            EXPECT_EQ(rule.dwSize, sizeof rule);
            EXPECT_EQ(rule.byOutputType, 2);
            EXPECT_EQ(rule.byDensity, 3);
            EXPECT_EQ(rule.bEnableShowTime, 1);
            EXPECT_EQ(rule.bEnableShowBox, 0);
            EXPECT_EQ(rule.bEnableRecordResult, 1);
            EXPECT_EQ(rule.byTime, 5);
            ASSERT_EQ(rule.nFilterNum, 2);
            const EVENT_SYNOPSIS_FILTER& filter = rule.stuFilters[0];
            EXPECT_EQ(filter.dwMinSizeClass, 1u);
            EXPECT_EQ(filter.dwMaxSizeClass, 2u);
            EXPECT_EQ(filter.dwMinSpeed, 3u);
            EXPECT_EQ(filter.dwMaxSpeed, 4294967295u);
            const NET_TIME begin{0, 0, 0, 8, 9, 10};
            const NET_TIME end{0, 0, 0, 18, 19, 20};
            EXPECT_EQ(std::memcmp(&filter.stuBeginTime, &begin, sizeof begin), 0);
            EXPECT_EQ(std::memcmp(&filter.stuEndTime, &end, sizeof end), 0);
            EXPECT_STREQ(filter.szObjectType, "Human");
            EXPECT_STREQ(filter.szCategory, "Child");
            EXPECT_EQ(filter.nMainColorNum, 3);
            EXPECT_EQ(filter.dwMainColors[0], 0x01020304u);
            EXPECT_EQ(filter.dwMainColors[1], 0u);
            EXPECT_EQ(filter.dwMainColors[2], 0xFF000080u);
            EXPECT_EQ(filter.bPartitionLowerUpperBodyColor, 1);
            EXPECT_EQ(filter.nLowerBodyColorNum, 1);
            EXPECT_EQ(filter.dwLowerBodyColors[0], 0x090A0B0Cu);
            EXPECT_EQ(rule.stuFilters[1].dwMinSpeed, 77u);
            EXPECT_EQ(rule.stuFilters[1].nLowerBodyColorNum, 0); // legs without colours of their own
            EXPECT_EQ(rule.stuFilters[1].dwLowerBodyColors[0], 0u);
            EXPECT_EQ(rule.nDetailRuleLen, 4 << 20);
            EXPECT_STREQ(rule.pDetailRule, "{ \"params\" : { \"table\" : { \"a\" : null, \"b\" : [ 1, \"x\" ] } } }\n");
            EXPECT_EQ(rule.emResolution, 1);
            EXPECT_EQ(rule.nResolution, CFG_RESOLUTION_1080P);
            EXPECT_EQ(rule.bEnableMaximizeUsedCPU, 1);
            EXPECT_EQ(rule.bEnableSmoothBorder, 1);
        });
}

TEST(TypedText, AnEmptySynopsisHasItsSizeAndItsBlock) {
    Synopsis("{}", [](const EVENT_VIDEO_SYNOPSIS_RULE& rule, std::uint32_t) {
        EXPECT_EQ(rule.dwSize, sizeof rule);
        EXPECT_EQ(rule.byOutputType, 0);
        EXPECT_STREQ(rule.pDetailRule, "");
        EXPECT_EQ(rule.nDetailRuleLen, 4 << 20);
        EXPECT_EQ(rule.emResolution, 0);
        EXPECT_EQ(rule.nResolution, 0);
    });
    EXPECT_EQ(CodesIn(R"({"VideoSynopsisAnalyseRule":null})"), (Codes{0, {}}));
}

TEST(TypedText, OutputsAreOneOrTwo) {
    const auto outputOf = [](const std::string& list) {
        int output = -1;
        Synopsis(R"({"OutputType":)" + list + "}",
                 [&](const EVENT_VIDEO_SYNOPSIS_RULE& rule, std::uint32_t) { output = rule.byOutputType; });
        return output;
    };
    EXPECT_EQ(outputOf(R"(["VideoSummary"])"), 1);
    EXPECT_EQ(outputOf(R"(["videosummary"])"), 1);
    EXPECT_EQ(outputOf(R"(["SynopsisVideo"])"), 2);
    EXPECT_EQ(outputOf(R"(["VideoSummary","SynopsisVideo"])"), 3);
    EXPECT_EQ(outputOf(R"(["x","y"])"), 3);
    EXPECT_EQ(outputOf(R"(["VideoSummary","SynopsisVideo","VideoSummary"])"), 0);
    EXPECT_EQ(outputOf(R"(["x"])"), 0);
    EXPECT_EQ(outputOf("[]"), 0);
    EXPECT_EQ(outputOf(R"("VideoSummary")"), 0);
}

TEST(TypedText, ResolutionsAreOriginalOrNamed) {
    const auto expect = [](const std::string& name, std::int32_t kind, std::int32_t code) {
        Synopsis(R"({"Resolution":)" + name + "}", [&](const EVENT_VIDEO_SYNOPSIS_RULE& rule, std::uint32_t) {
            EXPECT_EQ(rule.emResolution, kind) << name;
            EXPECT_EQ(rule.nResolution, code) << name;
        });
    };
    expect("\"Original\"", 0, 0);
    expect("\"original\"", 0, 0);
    expect("\"D1\"", 1, CFG_RESOLUTION_D1);
    expect("\"cif\"", 1, CFG_RESOLUTION_CIF);
    expect("\"Huge\"", 1, CFG_RESOLUTION_UNKNOWN);
    expect("null", 0, 0);
}

TEST(TypedText, ListsOfASynopsisEndAtTheirArrays) {
    for (const int over : {0, 1, 4}) {
        const std::string colors = Times(16 + over, "[0,0,0,7]");
        const std::string filter = R"({"MainColor":)" + colors
                                   + R"(,"PartitionLowerUpperBodyColor":1,"LowerBodyColor":)" + colors
                                   + R"(,"ObjectType":"0123456789abcdef","Category":")" + std::string(70, 'c') + "\"}";
        Synopsis(R"({"ConditionFilter":)" + Times(16 + over, filter) + "}",
                 [](const EVENT_VIDEO_SYNOPSIS_RULE& rule, std::uint32_t) {
                     EXPECT_EQ(rule.nFilterNum, 16);
                     const EVENT_SYNOPSIS_FILTER& last = rule.stuFilters[15];
                     EXPECT_EQ(last.nMainColorNum, 16);
                     EXPECT_EQ(last.dwMainColors[15], 7u);
                     EXPECT_EQ(last.bPartitionLowerUpperBodyColor, 1);
                     EXPECT_EQ(last.nLowerBodyColorNum, 16);
                     EXPECT_EQ(last.dwLowerBodyColors[15], 7u);
                     EXPECT_STREQ(last.szObjectType, "0123456789abcd");
                     EXPECT_EQ(last.szCategory, std::string(63, 'c'));
                     EXPECT_STREQ(rule.pDetailRule, "");
                 });
    }
}

TEST(TypedText, ADetailRuleIsCutAtItsBlock) {
    constexpr std::size_t kBlock = std::size_t{4} << 20;
    const std::string frame = "{ \"params\" : { \"table\" : \"\" } }\n";
    for (const std::size_t letters : {kBlock - frame.size() - 1, kBlock - frame.size(), kBlock + 100}) {
        const std::string detail(letters, 'd');
        const std::string whole = "{ \"params\" : { \"table\" : \"" + detail + "\" } }\n";
        Synopsis(R"({"DetailRule":")" + detail + "\"}", [&](const EVENT_VIDEO_SYNOPSIS_RULE& rule, std::uint32_t) {
            EXPECT_TRUE(whole.substr(0, kBlock - 1) == rule.pDetailRule) << letters;
        });
    }
}

// ---- Memory --------------------------------------------------------------------------------------------------------

// What a text with one key gives when the heap fails from that allocation on.
struct Starved {
    std::int32_t result;
    std::int32_t handed;
    bool failed;
};
Starved Starve(const std::string& text, std::size_t failAt) {
    Starved starved{};
    const EventVisitor count = [&](const Delivered&) { ++starved.handed; };
    HeapWatch watch;
    watch.FailFrom(failAt);
    starved.result = Typed(text, count);
    starved.failed = watch.failures() > 0;
    watch.FailNone();
    EXPECT_LE(watch.liveBlocks(), 0) << text;
    return starved;
}

TEST(TypedText, WithoutMemoryThereIsNoHandOver) {
    // Records and buffers that are too large for the stack.
    const std::string texts[] = {
        R"({"VideoAnalyseRule":[{"Type":"FireDetection","Name":"one"}]})",
        R"({"ObjectList":)" + Times(64, R"({"ObjectID":1,"Image":{"FilePath":"/a"}})") + "}",
        R"({"TrafficFlowStatInfo":)" + Times(64, R"({"Lane":1})") + "}",
        R"({"Config":[1,2,3,4,5,6,7,8,9],"TrafficFlowStat":{"Period":5}})",
        R"({"VideoSynopsisAnalyseRule":{"DetailRule":{"a":[1,2]}}})",
    };
    for (const std::string& text : texts) {
        const Starved first = Starve(text, 1);
        EXPECT_TRUE(first.failed) << text;
        EXPECT_EQ(first.result, 0) << text;
        EXPECT_EQ(first.handed, 0) << text;
        bool reached = false;
        for (std::size_t failAt = 2; failAt < 40 && !reached; ++failAt) {
            const Starved later = Starve(text, failAt);
            EXPECT_EQ(later.result, later.handed) << text << failAt; // 1 as soon as there is a record to hand over
            EXPECT_TRUE(later.failed || later.handed == 1) << text;
            reached = !later.failed;
        }
        EXPECT_TRUE(reached) << text;
    }
}

TEST(TypedText, WhatIsSmallNeedsNoHeap) {
    for (const std::string& text :
         {std::string(R"({"VideoStatSummary":{"Channel":1}})"), std::string(R"({"VideoAnalyseRule":[]})")}) {
        const Starved starved = Starve(text, 1);
        EXPECT_FALSE(starved.failed) << text;
        EXPECT_EQ(starved.handed, 1) << text;
    }
}

TEST(TypedText, EventsWithoutMemoryArePassedOver) {
    const std::string text = std::string(R"({"Event":)") + kEvent + "}";
    bool reached = false;
    for (std::size_t failAt = 1; failAt < 40 && !reached; ++failAt) {
        const Starved starved = Starve(text, failAt);
        EXPECT_LE(starved.handed, 1) << failAt;
        EXPECT_TRUE(starved.failed || starved.handed == 1);
        reached = !starved.failed;
    }
    EXPECT_TRUE(reached);
}

TEST(TypedText, ATextOfManyElementsTakesBoundedMemory) {
    // Two bytes of text would become a record each.
    const std::string text = R"({"ObjectList":)" + Times(1 << 20, "0") + "}";
    HeapWatch watch;
    EXPECT_EQ(CodesIn(text), (Codes{0, {}}));
    EXPECT_LE(watch.liveBlocks(), 0);
    EXPECT_LT(watch.peakBytes(), (std::ptrdiff_t{64} << 20) + 300 * static_cast<std::ptrdiff_t>(text.size()));
}

TEST(TypedText, LanesBehindTheEighthTakeBoundedMemory) {
    // Each number of the list makes room for a lane, and a lane has two linkages.
    static_assert(sizeof(CFG_TRAFFICFLOW_LANE) > (std::size_t{128} << 10));
    const std::string text = R"({"Config":)" + Times(1 << 16, "0") + R"(,"TrafficFlowStat":{"Period":5}})";
    HeapWatch watch;
    EXPECT_EQ(CodesIn(text), (Codes{0, {}}));
    EXPECT_LE(watch.liveBlocks(), 0);
    EXPECT_LT(watch.peakBytes(), (std::ptrdiff_t{64} << 20) + 300 * static_cast<std::ptrdiff_t>(text.size()));
}

TEST(TypedText, ACallbackMayCallIntoTheLibrary) {
    int inner = 0;
    Typed(R"({"ObjectList":[{}],"VideoStatSummary":{}})", [&](const Delivered&) {
        Typed(R"({"VideoStatSummary":{"Channel":9}})",
              [&](const Delivered& one) { inner += one.as<EVENT_VIDEO_STAT_SUMMARY>().nChannelID; });
    });
    EXPECT_EQ(inner, 18);
}

} // namespace
} // namespace orrery::test
