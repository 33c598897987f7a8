// The library by types, as a client in C++ has it.
#include "orrery/cpp.h"
#include "orrery/orrery.h"

#include <gtest/gtest.h>
#include <numeric>

namespace {

std::string Reply(const std::string& table) {
    return R"({ "result" : true, "params" : { "table" : )" + table + " } }";
}

TEST(CppParse, GivesTheRecordOfTheOneCommandThatReadsIt) {
    const auto ntp = orrery::parse<CFG_NTP_INFO>(Reply(R"({"Enable":true,"Port":123,"Address":"clock"})"));
    ASSERT_TRUE(ntp);
    EXPECT_TRUE(ntp.has_value());
    EXPECT_EQ(ntp->get().nPort, 123);
    EXPECT_STREQ((*ntp)->szAddress, "clock");
}

TEST(CppParse, GivesTheRecordOfANamedCommand) {
    static_assert(std::is_same_v<orrery::commands::PwdReset::record, CFG_ENABLE_INFO>);
    static_assert(std::is_same_v<orrery::commands::alarm_getAlarmCaps::record, CFG_ALARM_CAPS>);
    const auto reset = orrery::parse<orrery::commands::PwdReset>(Reply(R"({"Enable":true})"));
    ASSERT_TRUE(reset);
    EXPECT_EQ((*reset)->bEnable, 1);
    EXPECT_STREQ(orrery::commands::capsManager_get_EventManagerEventHandler::name(),
                 "capsManager.get&EventManagerEventHandler");
}

TEST(CppParse, SaysThatACallWasRefused) {
    const auto refused = orrery::parse<CFG_NTP_INFO>(R"({ "result" : false })");
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error(), orrery::errc::refused);
    try {
        (void)refused.value();
        FAIL() << "value() of a result without a value returned";
    } catch (const orrery::bad_result& why) {
        EXPECT_EQ(why.why(), orrery::errc::refused);
        EXPECT_STREQ(why.what(), "orrery: the call was refused");
    }
    EXPECT_EQ(orrery::pack(orrery::parse<CFG_NTP_INFO>("x").value_or({}).get()).value(),
              orrery::pack(CFG_NTP_INFO{}).value());
}

TEST(CppParse, ReadsAsManyRecordsAsThereAre) {
    const std::string text = Reply(R"([{"Name":"Lobby"},{"Name":"Yard"},{"Name":"Roof"}])");
    const auto three = orrery::parse_all<CFG_ALARM_OUT_INFO>(text, 8);
    ASSERT_TRUE(three);
    ASSERT_EQ(three->size(), 3u);
    EXPECT_STREQ((*three)[0].szName, "Lobby");
    EXPECT_STREQ((*three)[2].szName, "Roof");
    const auto two = orrery::parse_all<CFG_ALARM_OUT_INFO>(text, 2);
    ASSERT_TRUE(two);
    ASSERT_EQ(two->size(), 2u); // what does not fit is left out
    EXPECT_STREQ((*two)[1].szName, "Yard");
    EXPECT_FALSE(orrery::parse_all<CFG_ALARM_OUT_INFO>(text, 0));
}

TEST(CppParse, ReadsIntoWhatTheCallersPointersLeadTo) {
    CFG_CALIBRATE_SCENE_INFO scenes[2] = {};
    orrery::sized<CFG_VIDEOANALYSE_CALIBRATE_INFO> record;
    record.nMax = 2;
    record.pScenes = scenes;
    const auto length = orrery::parse_into<CFG_VIDEOANALYSE_CALIBRATE_INFO>(record, Reply("[{},{}]").c_str());
    ASSERT_TRUE(length);
    EXPECT_EQ(*length, sizeof(CFG_VIDEOANALYSE_CALIBRATE_INFO));
    EXPECT_EQ(record.nRet, 2);
}

TEST(CppParse, ReadsTemplates) {
    const auto global = orrery::parse_template<orrery::templates::VideoInAnalyse_getTemplateGlobal>(
        R"({"result":true,"params":{"Scene":{"Type":"Normal","PtzPresetId":4}}})", CFG_RULE_CLASS_NORMAL);
    ASSERT_TRUE(global);
    EXPECT_EQ((*global)->nPtzPresetId, 4);
    const auto refused =
        orrery::parse_template<orrery::templates::VideoInAnalyse_getTemplateGlobal>("no JSON", CFG_RULE_CLASS_NORMAL);
    EXPECT_FALSE(refused);
}

TEST(CppSized, SetsSizeWordsOfTheRecordAndOfThoseInside) {
    const orrery::box<CFG_MULTICAST_INFO> record;
    ASSERT_TRUE(record);
    EXPECT_EQ(record->dwSize, sizeof(CFG_MULTICAST_INFO));
    EXPECT_EQ(record->stuRTPAudio.dwSize, sizeof(CFG_MULTICAST_STREAM));
    EXPECT_EQ(record->stuRTPAudio.stuItem[0].dwSize, sizeof(CFG_MULTICAST_ITEM));
    static_assert(sizeof(orrery::sized<CFG_MULTICAST_INFO>) == sizeof(CFG_MULTICAST_INFO));
    const orrery::sized<CFG_NTP_INFO> ntp; // has none
    EXPECT_EQ(ntp.nPort, 0);
    // Without size words a versioned reply is refused; parse() has them set.
    EXPECT_TRUE(orrery::parse<CFG_STORAGE_GROUP_INFO>(Reply(R"([{"Name":"ReadWrite"}])")));
}

TEST(CppPack, WritesWhatTheCommandWrites) {
    orrery::sized<CFG_NTP_INFO> ntp;
    ntp.nPort = 123;
    const auto text = orrery::pack(ntp);
    ASSERT_TRUE(text);
    EXPECT_NE(text->find(R"("Port" : 123)"), std::string::npos);
    EXPECT_EQ(text->back(), '\n');
    CFG_ENABLE_INFO enable = {1};
    EXPECT_EQ(orrery::pack<orrery::commands::PwdReset>(enable).value(), "{ \"Enable\" : true }\n");
    std::vector<orrery::sized<CFG_ALARM_OUT_INFO>> outs(2);
    const auto both = orrery::pack_all<CFG_ALARM_OUT_INFO>(outs);
    ASSERT_TRUE(both);
    EXPECT_EQ(both->front(), '[');
}

TEST(CppPack, GrowsItsRoomAndLosesNoNewline) {
    // Beyond the first room and the second.
    std::vector<orrery::sized<CFG_ALARM_OUT_INFO>> outs(4000);
    for (auto& out : outs)
        std::memset(out.szName, 'x', sizeof out.szName - 1);
    const auto text = orrery::pack_all<CFG_ALARM_OUT_INFO>(outs);
    ASSERT_TRUE(text);
    EXPECT_GT(text->size(), std::size_t{4000} * sizeof outs[0].szName);
    EXPECT_EQ(text->back(), '\n');
}

constexpr const char* kRules = R"([{"Type":"CrossLineDetection","Name":"Fence","Class":"Normal","Id":3,"Enable":true},)"
                               R"({"Type":"MoveDetection","Name":"Yard","Class":"Normal","Id":4,"Enable":true}])";

TEST(CppRules, AreReadWalkedChangedAndWritten) {
    auto rules = orrery::parse_rules<orrery::commands::VideoAnalyseRule>(Reply(kRules));
    ASSERT_TRUE(rules);
    EXPECT_EQ(rules->size(), 2u);
    EXPECT_EQ(rules->bytes(), 2 * sizeof(CFG_RULE_INFO) + sizeof(CFG_RULE_CROSSLINE_INFO) + sizeof(CFG_RULE_MOVE_INFO));
    std::vector<std::string> seen;
    for (const orrery::rule_view rule : *rules) {
        if (auto line = rule.as<CFG_RULE_CROSSLINE_INFO>()) {
            seen.push_back("line " + std::string((*line)->szRuleName) + std::to_string(rule.id()));
            (*line)->bRuleEnable = 0;
            EXPECT_TRUE(rule.put(line->get()));
            EXPECT_FALSE(rule.is<CFG_RULE_MOVE_INFO>());
        } else if (const auto move = rule.as<CFG_RULE_MOVE_INFO>()) {
            seen.push_back("move " + std::string((*move)->szRuleName) + std::to_string(rule.id()));
            EXPECT_FALSE(rule.put(CFG_RULE_CROSSLINE_INFO{}));
            EXPECT_EQ(rule.as<CFG_RULE_CROSSLINE_INFO>().error(), orrery::errc::refused);
        }
    }
    EXPECT_EQ(seen, (std::vector<std::string>{"line Fence3", "move Yard4"}));
    const auto text = orrery::pack_rules<orrery::commands::VideoAnalyseRule>(*rules);
    ASSERT_TRUE(text);
    auto again = orrery::parse_rules<orrery::commands::AudioAnalyseRule>(Reply(*text));
    ASSERT_TRUE(again);
    const auto line = (*again->begin()).as<CFG_RULE_CROSSLINE_INFO>();
    ASSERT_TRUE(line);
    EXPECT_EQ((*line)->bRuleEnable, 0);
}

TEST(CppRules, AreMadeOneByOne) {
    orrery::rule_buffer rules;
    EXPECT_EQ(orrery::pack_rules<orrery::commands::VideoAnalyseRule>(rules).value_or("refused"), "[  ]\n");
    orrery::box<CFG_RULE_MOVE_INFO> move;
    move->bRuleEnable = 1;
    EXPECT_FALSE(rules.add(ORRERY_RULE_CROSS_LINE_DETECTION, move.get())); // of another record
    for (int i = 0; i < ORRERY_MOST_RULES; ++i)
        ASSERT_TRUE(rules.add(ORRERY_RULE_MOVE_DETECTION, move.get(), static_cast<std::uint8_t>(i)));
    EXPECT_FALSE(rules.add(ORRERY_RULE_MOVE_DETECTION, move.get())); // a channel has no more
    std::vector<int> ids;
    for (const orrery::rule_view rule : rules)
        ids.push_back(rule.id());
    std::vector<int> expected(ORRERY_MOST_RULES);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(ids, expected);
    EXPECT_TRUE(orrery::pack_rules<orrery::commands::VideoAnalyseRule>(rules));
}

TEST(CppRules, EmptyAndRefusedRepliesAreToldApart) {
    const auto none = orrery::parse_rules<orrery::commands::VideoAnalyseRule>(Reply("[]"));
    ASSERT_TRUE(none);
    EXPECT_TRUE(none->empty());
    EXPECT_FALSE(orrery::parse_rules<orrery::commands::VideoAnalyseRule>(Reply(R"([{"Type":"NoSuchDetection"}])")));
    EXPECT_FALSE(orrery::parse_rules<orrery::commands::VideoAnalyseRule>("no JSON"));
}

TEST(CppRules, OfATemplateAreReadByTheirClass) {
    using Template = orrery::templates::VideoInAnalyse_getTemplateRule;
    // A rule that is null counts and takes no item.
    const std::string some =
        R"({"result":true,"params":{"Normal":{"A":{"Type":"CrossLineDetection","Class":"Normal",)"
        R"("Name":"Line"},"B":{"Type":"MoveDetection","Class":"Normal","Name":"Yard"},"C":null}}})";
    auto rules = orrery::parse_rules<Template>(some, CFG_RULE_CLASS_NORMAL);
    ASSERT_TRUE(rules);
    ASSERT_EQ(rules->size(), 2u);
    const auto line = (*rules->begin()).as<CFG_RULE_CROSSLINE_INFO>();
    ASSERT_TRUE(line);
    EXPECT_STREQ((*line)->szRuleName, "Line");
    const auto other = orrery::parse_rules<Template>(some, CFG_RULE_CLASS_TRAFFIC);
    ASSERT_TRUE(other);
    EXPECT_TRUE(other->empty());
    EXPECT_FALSE(orrery::parse_rules<Template>("no JSON", CFG_RULE_CLASS_NORMAL));
}

TEST(CppRules, OfATemplateHaveRoomForTheLargest) {
    std::string many = R"({"result":true,"params":{"Traffic":{)";
    for (int i = 0; i < ORRERY_MOST_RULES; ++i)
        many += (i == 0 ? "\"" : ",\"") + std::to_string(i) + R"(":{"Type":"TrafficControl","Class":"Traffic"})";
    const auto rules =
        orrery::parse_rules<orrery::templates::VideoInAnalyse_getTemplateRule>(many + "}}}", CFG_RULE_CLASS_TRAFFIC);
    ASSERT_TRUE(rules);
    EXPECT_EQ(rules->size(), std::size_t{ORRERY_MOST_RULES});
    EXPECT_EQ(rules->bytes(), ORRERY_MOST_RULES * (sizeof(CFG_RULE_INFO) + sizeof(CFG_RULE_TRAFFICCONTROL_INFO)));
}

constexpr const char* kEvents =
    R"({"Event":[{"Code":"CrossLineDetection","Data":{"Object":{"Image":{"FilePath":"/first"}}}},{"Code":"NoSuchEvent"},)"
    R"({"Code":"MoveDetection","Data":{"Object":{"Image":{"FilePath":"/second"}}}}]})";

TEST(CppEvents, StayWithWhatTheirPointersLeadTo) {
    auto events = orrery::events(std::string(kEvents));
    ASSERT_TRUE(events);
    orrery::event_list moved = std::move(*events);
    ASSERT_EQ(moved.size(), 2u);
    EXPECT_EQ(std::distance(moved.begin(), moved.end()), 2);
    auto at = moved.begin();
    const auto* const line = (*at).as<DEV_EVENT_CROSSLINEDETECTION_INFO>();
    ASSERT_NE(line, nullptr);
    EXPECT_STREQ(line->stuObject.pszFilePath, "/first");
    EXPECT_EQ((*at++).as<DEV_EVENT_MOVEDETECTION_INFO>(), nullptr);
    const auto* const move = (*at).as<DEV_EVENT_MOVEDETECTION_INFO>();
    ASSERT_NE(move, nullptr);
    EXPECT_STREQ(move->stuObject.pszFilePath, "/second");
    EXPECT_EQ(++at, moved.end());
}

TEST(CppEvents, OutOfAResultThatGoesLiveAsLongAsTheLoop) {
    int count = 0;
    for (const orrery::event_view event : *orrery::events(kEvents)) {
        EXPECT_NE(event.code(), 0u);
        ++count;
    }
    EXPECT_EQ(count, 2);
    EXPECT_EQ(orrery::events(kEvents).value().size(), 2u);
}

TEST(CppEvents, AreVisitedWhileTheyLive) {
    std::vector<std::uint32_t> codes;
    EXPECT_TRUE(orrery::visit_events(kEvents, [&](const orrery::event_view& event) { codes.push_back(event.code()); }));
    EXPECT_EQ(codes, (std::vector<std::uint32_t>{ORRERY_EVENT_CROSS_LINE_DETECTION, ORRERY_EVENT_MOVE_DETECTION}));
}

TEST(CppEvents, TextsThatAreNoJsonHaveNoneAndTypedOnesAreRefused) {
    const auto none = orrery::events("no JSON");
    ASSERT_TRUE(none);
    EXPECT_TRUE(none->empty());
    EXPECT_FALSE(orrery::typed("no JSON"));
    const auto typed = orrery::typed(std::string(R"({"ObjectList":[{"ObjectID":7},{"ObjectID":9}]})"));
    ASSERT_TRUE(typed);
    ASSERT_EQ(typed->size(), 1u);
    const orrery::event_view list = *typed->begin();
    EXPECT_EQ(list.size(), 2 * sizeof(EVENT_OBJECT_INFO));
    EXPECT_EQ(list.as<EVENT_OBJECT_INFO>()[1].nObjectID, 9);
}

// A list of many events ends without calling itself as often.
TEST(CppEvents, ListsOfAnyLengthAreLetGo) {
    orrery::event_list many;
    orrery::visit_events(kEvents, [&](const orrery::event_view& event) {
        for (int i = 0; i < 50000 && many.size() < 100000; ++i)
            ASSERT_TRUE(many.add(orrery::event_view(event.code(), event.record(), event.size())));
    });
    EXPECT_EQ(many.size(), 100000u);
}

} // namespace
