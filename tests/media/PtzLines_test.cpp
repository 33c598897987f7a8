// Tours over windows, lens drives, vehicle buses, infrared senders.
#include "orrery/ptz_lines.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// ---- "SplitTour", "SpotMatrix" ----

struct TourKeys {
    const char* name;
    const char* support;
    const char* info;
    const char* queue;
};
constexpr TourKeys kTours[] = {{"SplitTour", "SupportSplit", "SplitTourInfo", "SplitTourQueue"},
                               {"SpotMatrix", "SpotSupportMatrix", "SpotMatrixInfo", "TourQueue"}};

// The record under the command's name.
Parsed<CFG_SPLIT_TOUR_INFO> ParseTour(const TourKeys& keys, const std::string& record) {
    return ParseDocument<CFG_SPLIT_TOUR_INFO>(keys.name, "{\"" + std::string(keys.name) + "\":" + record + "}");
}
std::string Quoted(const char* key) {
    return '"' + std::string(key) + '"';
}

TEST(SplitTour, ReadsAndWritesAllKeys) {
    for (const TourKeys& keys : kTours) {
        const auto parsed =
            ParseTour(keys, "{" + Quoted(keys.support) + ":[1,null,4,257]," + Quoted(keys.info)
                                + R"(:[{"Enable":true,"TourPeriod":20,)" + Quoted(keys.queue)
                                + R"(:[{"ViewMode":4,"ViewParam":4294967295},{"ViewMode":9,"ViewParam":1}]},{}]})");
        ASSERT_TRUE(parsed) << keys.name;
        EXPECT_EQ(parsed.length, sizeof(CFG_SPLIT_TOUR_INFO));
        EXPECT_EQ(parsed->nSupportCount, 3u);
        EXPECT_EQ(parsed->bySupport[0], 1);
        EXPECT_EQ(parsed->bySupport[1], 4);
        EXPECT_EQ(parsed->bySupport[2], 1); // its low byte
        EXPECT_EQ(parsed->nInfoCount, 2u);
        EXPECT_EQ(parsed->stuInfos[0].bEnable, 1u);
        EXPECT_EQ(parsed->stuInfos[0].nTourPeriod, 20);
        EXPECT_EQ(parsed->stuInfos[0].nQueueCount, 2u);
        EXPECT_EQ(parsed->stuInfos[0].stuQueue[0].nViewMode, 4);
        EXPECT_EQ(parsed->stuInfos[0].stuQueue[0].nViewParam, 4294967295u);
        EXPECT_EQ(parsed->stuInfos[0].stuQueue[1].nViewMode, 9);
        const std::string first = R"({ "Enable" : true, )";
        const std::string queue = Quoted(keys.queue)
                                  + R"( : [ { "ViewMode" : 4, "ViewParam" : 4294967295 }, )"
                                    R"({ "ViewMode" : 9, "ViewParam" : 1 } ])";
        const std::string period = R"("TourPeriod" : 20, "TourPeriod " : 20)";
        const bool queueFirst = std::string(keys.queue) < "TourPeriod";
        const std::string info = first + (queueFirst ? queue + ", " + period : period + ", " + queue)
                                 + R"( }, { "Enable" : false, "TourPeriod" : 0, "TourPeriod " : 0 })";
        const std::string infos = Quoted(keys.info) + " : [ " + info + " ]";
        const std::string support = Quoted(keys.support) + " : [ 1, 4, 1 ]";
        const bool infoFirst = std::string(keys.info) < keys.support;
        EXPECT_EQ(Pack(keys.name, *parsed), "{ " + Quoted(keys.name) + " : { "
                                                + (infoFirst ? infos + ", " + support : support + ", " + infos)
                                                + " } }");
    }
}

TEST(SplitTour, ReadsAPeriodWithABlankBehindItsKey) {
    for (const TourKeys& keys : kTours) {
        const auto period = [&](const std::string& members) {
            return ParseTour(keys, "{" + Quoted(keys.info) + ":[{" + members + "}]}")->stuInfos[0].nTourPeriod;
        };
        EXPECT_EQ(period(R"("TourPeriod ":7)"), 7);
        EXPECT_EQ(period(R"("TourPeriod":8,"TourPeriod ":7)"), 8);
        EXPECT_EQ(period(R"("TourPeriod":null,"TourPeriod ":7)"), 7);
        EXPECT_EQ(period(R"("TourPeriod":"x","TourPeriod ":7)"), 0);
        EXPECT_EQ(period(R"("TourPeriod":8)"), 8);
    }
}

TEST(SplitTour, PassesNullsOverInItsOwnWays) {
    for (const TourKeys& keys : kTours) {
        std::string support = "[null";
        for (int i = 1; i <= 17; ++i)
            support += "," + std::to_string(i);
        const auto parsed = ParseTour(keys, "{" + Quoted(keys.support) + ":" + support + "]," + Quoted(keys.info)
                                                + R"(:[null,{"TourPeriod":1,)" + Quoted(keys.queue)
                                                + R"(:[null,{"ViewMode":3}]},{"TourPeriod":2},{},{"TourPeriod":5}]})");
        EXPECT_EQ(parsed->nSupportCount, 15u); // of the first sixteen
        EXPECT_EQ(parsed->bySupport[14], 15);
        EXPECT_EQ(parsed->bySupport[15], 0);
        EXPECT_EQ(parsed->nInfoCount, 3u); // of the first four
        EXPECT_EQ(parsed->stuInfos[0].nTourPeriod, 0);
        EXPECT_EQ(parsed->stuInfos[1].nTourPeriod, 1);
        EXPECT_EQ(parsed->stuInfos[1].nQueueCount, 1u);
        EXPECT_EQ(parsed->stuInfos[1].stuQueue[1].nViewMode, 3); // behind the count
        EXPECT_EQ(parsed->stuInfos[2].nTourPeriod, 2);
    }
}

TEST(SplitTour, EndsListsAtTheirArrays) {
    const TourKeys& keys = kTours[0];
    std::string queue = R"({"ViewMode":1})";
    for (int i = 2; i <= 18; ++i)
        queue += R"(,{"ViewMode":)" + std::to_string(i) + "}";
    const auto parsed =
        ParseTour(keys, R"({"SupportSplit":[1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17],"SplitTourInfo":)"
                        R"([{"SplitTourQueue":[)"
                            + queue + "]},{},{},{},{}]}");
    EXPECT_EQ(parsed->nSupportCount, 16u);
    EXPECT_EQ(parsed->nInfoCount, 4u);
    EXPECT_EQ(parsed->stuInfos[0].nQueueCount, 16u);
    EXPECT_EQ(parsed->stuInfos[0].stuQueue[15].nViewMode, 16);
    const std::string text = Pack(keys.name, *parsed);
    parsed.record->nSupportCount = parsed.record->stuInfos[0].nQueueCount = 17;
    parsed.record->nInfoCount = 5;
    EXPECT_EQ(Pack(keys.name, *parsed), text);
    EXPECT_EQ(PackBytes(keys.name, parsed.record.get(), sizeof *parsed, text.size() + 1), text);
    EXPECT_EQ(PackBytes(keys.name, parsed.record.get(), sizeof *parsed, text.size()), kFailed);
}

TEST(SplitTour, StandsAtTheTopOfTheReply) {
    for (const TourKeys& keys : kTours) {
        for (const char* document : {"{}", R"({"result":false})", R"({"params":{"table":{"SplitTour":{}}}})"}) {
            const auto parsed = ParseDocument<CFG_SPLIT_TOUR_INFO>(keys.name, document);
            EXPECT_TRUE(parsed) << document;
            EXPECT_EQ(parsed.length, sizeof(CFG_SPLIT_TOUR_INFO));
            EXPECT_TRUE(parsed.isCleared());
        }
        EXPECT_FALSE(ParseDocument<CFG_SPLIT_TOUR_INFO>(keys.name, "["));
        EXPECT_EQ(Pack(keys.name, CFG_SPLIT_TOUR_INFO{}), "{ " + Quoted(keys.name) + " : null }");
    }
}

// ---- "VideoInZoom", "VideoInFocus" ----

template <class R>
Parsed<R> ParseLens(const char* command, const std::string& table,
                    const char* front = R"("channel":3,"result":true,)") {
    return ParseDocument<R>(command, "{" + std::string(front) + R"("params":{"table":)" + table + "}}");
}

TEST(VideoInZoom, ReadsAndWritesAllKeys) {
    const auto parsed = ParseLens<CFG_VIDEOIN_ZOOM_INFO>(
        "VideoInZoom", R"([{"Speed":1,"DigitalZoom":true,"ZoomLimit":2},null,{"Speed":-1,"ZoomLimit":-2}])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_VIDEOIN_ZOOM_INFO));
    EXPECT_EQ(parsed->nChannel, 3);
    EXPECT_EQ(parsed->nCount, 3);
    EXPECT_EQ(parsed->stuItems[0].nSpeed, 1);
    EXPECT_EQ(parsed->stuItems[0].bDigitalZoom, 1u);
    EXPECT_EQ(parsed->stuItems[0].nZoomLimit, 2);
    EXPECT_EQ(parsed->stuItems[2].nSpeed, -1);
    EXPECT_EQ(Pack("VideoInZoom", *parsed),
              R"([ { "DigitalZoom" : true, "Speed" : 1, "ZoomLimit" : 2 }, )"
              R"({ "DigitalZoom" : false, "Speed" : 0, "ZoomLimit" : 0 }, { "DigitalZoom" : false } ])");
    CFG_VIDEOIN_ZOOM_INFO record{};
    record.nCount = 1;
    record.stuItems[0].bDigitalZoom = 2; // only 1 is on
    EXPECT_EQ(Pack("VideoInZoom", record), R"([ { "DigitalZoom" : false, "Speed" : 0, "ZoomLimit" : 0 } ])");
}

TEST(VideoInFocus, ReadsAndWritesAllKeys) {
    const auto parsed = ParseLens<CFG_VIDEOIN_FOCUS_INFO>(
        "VideoInFocus", R"([{"Mode":1,"Sensitivity":2,"IRCorrection":3,"FocusLimitSelectMode":"Auto","FocusLimit":4},)"
                        R"({"FocusLimitSelectMode":"auto"},{}])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->nChannel, 3);
    EXPECT_EQ(parsed->nCount, 3);
    EXPECT_EQ(parsed->stuItems[0].nMode, 1);
    EXPECT_EQ(parsed->stuItems[0].nSensitivity, 2);
    EXPECT_EQ(parsed->stuItems[0].nIrCorrection, 3);
    EXPECT_EQ(parsed->stuItems[0].emFocusLimitSelectMode, CFG_FOCUS_LIMIT_AUTO);
    EXPECT_EQ(parsed->stuItems[0].nFocusLimit, 4);
    EXPECT_EQ(parsed->stuItems[1].emFocusLimitSelectMode, CFG_FOCUS_LIMIT_UNKNOWN); // case counts
    EXPECT_EQ(parsed->stuItems[2].emFocusLimitSelectMode, CFG_FOCUS_LIMIT_MANUAL);
    EXPECT_EQ(Pack("VideoInFocus", *parsed),
              R"([ { "FocusLimit" : 4, "FocusLimitSelectMode" : "Auto", "IRCorrection" : 3, "Mode" : 1, )"
              R"("Sensitivity" : 2 }, { "FocusLimit" : 0, "IRCorrection" : 0, "Mode" : 0, "Sensitivity" : 0 }, )"
              R"({ "FocusLimit" : 0, "FocusLimitSelectMode" : "Manual", "IRCorrection" : 0, "Mode" : 0, )"
              R"("Sensitivity" : 0 } ])");
}

template <class R>
void ExpectLens(const char* command) {
    std::string list = "[{}";
    for (int i = 1; i < 34; ++i)
        list += ",{}";
    const auto parsed = ParseLens<R>(command, list + "]");
    EXPECT_EQ(parsed->nCount, 32);
    R record = *parsed;
    const std::string text = Pack(command, record) + "\n";
    EXPECT_EQ(PackBytes(command, &record, sizeof record, text.size() + 2), text);
    EXPECT_EQ(PackBytes(command, &record, sizeof record, text.size() + 1), kFailed);
    for (const std::int32_t count : {33, INT32_MAX}) {
        record.nCount = count;
        EXPECT_EQ(Pack(command, record), kFailed) << command << count;
    }
    for (const std::int32_t count : {0, -1}) {
        record.nCount = count;
        EXPECT_EQ(Pack(command, record), "null") << command << count;
    }
    const auto none = ParseLens<R>(command, "null", "\"result\":true,");
    EXPECT_TRUE(none);
    EXPECT_EQ(none.length, kNoLength);
    EXPECT_TRUE(none.isCleared());
    const auto channelAlone = ParseLens<R>(command, "null");
    EXPECT_TRUE(channelAlone);
    EXPECT_EQ(channelAlone.length, kNoLength);
    EXPECT_EQ(channelAlone->nChannel, 3);
    EXPECT_EQ(channelAlone->nCount, 0);
    EXPECT_TRUE(ParseLens<R>(command, "[{}]", "\"channel\":3,\"result\":0,").isCleared()); // refused
    for (const char* table : {"{}", "7", "\"x\""})
        EXPECT_FALSE(ParseLens<R>(command, table)) << command << table;
    EXPECT_EQ(ParseLens<R>(command, "[]")->nCount, 0);
    EXPECT_EQ(ParseLens<R>(command, "[{}]", "\"result\":7,")->nChannel, 0);
    EXPECT_TRUE(ParseLens<R>(command, "[{}]", "\"result\":-1,"));
    for (const char* front : {"", "\"result\":false,", "\"result\":0,", "\"result\":\"true\",", "\"result\":0.5,"})
        EXPECT_FALSE(ParseLens<R>(command, "[{}]", front)) << command << front;
}
TEST(VideoInZoom, IsAListOfThirtyTwo) {
    ExpectLens<CFG_VIDEOIN_ZOOM_INFO>("VideoInZoom");
}
TEST(VideoInFocus, IsAListOfThirtyTwo) {
    ExpectLens<CFG_VIDEOIN_FOCUS_INFO>("VideoInFocus");
}

// ---- "CANFilter" ----

constexpr std::uint32_t kFilterSize = sizeof(CFG_CAN_FILTER_INFO);

struct Filters {
    Filters() : info(1, 0x11) {
        record = info[0];
        record.nMaxCount = 16;
        for (int i = 0; i < 16; ++i) {
            record.stuFilters[i].nMaxPid = 3;
            record.stuFilters[i].pnPids = pids[i];
            for (std::int32_t& pid : pids[i])
                pid = 50;
        }
        Store();
    }
    void Store() { info.Set(0, record); }
    Answer Parse(const std::string& table) {
        const Answer answer = ParseTable("CANFilter", table, info);
        record = info[0];
        return answer;
    }
    std::string Text() {
        Store();
        return PackAll("CANFilter", info);
    }

    std::int32_t pids[16][3];
    Records<CFG_CAN_FILTER_INFO> info;
    CFG_CAN_FILTER_INFO record;
};

TEST(CANFilter, ReadsAndWritesAllKeys) {
    Filters filters;
    ASSERT_EQ(
        filters.Parse(R"([{"ResponseTimeout":1,"RequestTimeout":2,"Filter":{"PID":[3,null],"Policy":"White"}},{},)"
                      R"({"Filter":{"PID":[4,5,6,7],"Policy":"white"}}])"),
        (Answer{1, kFilterSize}));
    EXPECT_EQ(filters.record.nReturnCount, 3);
    EXPECT_EQ(filters.record.nMaxCount, 16);
    const CFG_CAN_FILTER& first = filters.record.stuFilters[0];
    EXPECT_EQ(first.nResponseTimeout, 1);
    EXPECT_EQ(first.nRequestTimeout, 2);
    EXPECT_EQ(first.nReturnPid, 2u);
    EXPECT_EQ(filters.pids[0][0], 3);
    EXPECT_EQ(filters.pids[0][1], 0);
    EXPECT_EQ(filters.pids[0][2], 50);
    EXPECT_EQ(first.emPolicy, CFG_CAN_WHITE);
    EXPECT_EQ(filters.record.stuFilters[1].nResponseTimeout, 0x11111111); // left as it was
    EXPECT_EQ(filters.record.stuFilters[2].nReturnPid, 4u);               // more than there is room for
    EXPECT_EQ(filters.pids[2][2], 6);
    EXPECT_EQ(filters.record.stuFilters[2].emPolicy, CFG_CAN_UNKNOWN); // case counts
    filters.record.nReturnCount = 1;
    EXPECT_EQ(filters.Text(), R"([ { "Filter" : { "PID" : [ 3, 0, 50 ], "Policy" : "White" }, "RequestTimeout" : 2, )"
                              R"("ResponseTimeout" : 1 } ])");
    filters.record.stuFilters[0].nMaxPid = 0;
    EXPECT_EQ(filters.Text(),
              R"([ { "Filter" : { "Policy" : "White" }, "RequestTimeout" : 2, "ResponseTimeout" : 1 } ])");
}

TEST(CANFilter, KnowsItsPolicies) {
    const char* const names[] = {"null", "\"None\"", "\"White\"", "\"Black\""};
    for (const int code : {-1, 0, 1, 2, 3, 4}) {
        Filters filters;
        filters.record.nReturnCount = 1;
        filters.record.stuFilters[0].emPolicy = code;
        const bool isKnown = code >= 1 && code < 4;
        EXPECT_NE(filters.Text().find("\"Policy\" : " + std::string(isKnown ? names[code] : names[0]) + " }"),
                  std::string::npos);
        if (isKnown) {
            ASSERT_EQ(filters.Parse(R"([{"Filter":{"Policy":)" + std::string(names[code]) + "}}]").result, 1);
            EXPECT_EQ(filters.record.stuFilters[0].emPolicy, code);
        }
    }
}

TEST(CANFilter, ReadsAsManyAsItIsLent) {
    std::string table = R"([{"RequestTimeout":1})";
    for (int i = 2; i <= 18; ++i)
        table += R"(,{"RequestTimeout":)" + std::to_string(i) + "}";
    for (const std::int32_t room : {16, 17, 5, 0, -1}) {
        Filters filters;
        filters.record.nMaxCount = room;
        filters.Store();
        ASSERT_EQ(filters.Parse(table + "]"), (Answer{1, kFilterSize}));
        EXPECT_EQ(filters.record.nReturnCount, 18);
        for (int i = 0; i < 16; ++i)
            EXPECT_EQ(filters.record.stuFilters[i].nRequestTimeout, i < room ? i + 1 : 0x11111111) << room;
    }
    Filters filters;
    filters.record.nReturnCount = 16;
    const std::string all = filters.Text();
    filters.record.nReturnCount = 17;
    EXPECT_EQ(filters.Text(), all);
    filters.record.nReturnCount = 0;
    EXPECT_EQ(filters.Text(), "null");
    filters.record.nReturnCount = 1;
    filters.record.nMaxCount = 0; // says nothing of writing
    EXPECT_NE(filters.Text(), "null");
}

TEST(CANFilter, EndsAtAFilterWithoutAnArray) {
    Filters filters;
    filters.record.stuFilters[1].pnPids = nullptr;
    filters.Store();
    EXPECT_EQ(filters.Parse(R"([{"RequestTimeout":1},{"RequestTimeout":2},{"RequestTimeout":3}])"), (Answer{0, 0}));
    EXPECT_EQ(filters.record.nReturnCount, 3);
    EXPECT_EQ(filters.record.stuFilters[0].nRequestTimeout, 1);
    EXPECT_EQ(filters.record.stuFilters[1].nRequestTimeout, 0x11111111);
    EXPECT_EQ(filters.record.stuFilters[2].nRequestTimeout, 0x11111111);
    EXPECT_EQ(filters.Parse(R"([{"RequestTimeout":4},null])"), (Answer{0, 0}));
    EXPECT_EQ(filters.Parse(R"([{"RequestTimeout":5}])"), (Answer{1, kFilterSize}));
    filters.record.nReturnCount = 1;
    EXPECT_NE(filters.Text(), kFailed);
    filters.record.nReturnCount = 2;
    EXPECT_EQ(filters.Text(), kFailed);
}

TEST(CANFilter, NeedsAList) {
    Filters filters;
    EXPECT_EQ(filters.Parse("null"), (Answer{1, 0}));
    EXPECT_EQ(filters.record.nReturnCount, 0x11111111);
    for (const char* table : {"{}", "7"})
        EXPECT_EQ(filters.Parse(table), kRefused) << table;
    EXPECT_EQ(filters.Parse("[]"), (Answer{1, kFilterSize}));
    EXPECT_EQ(filters.record.nReturnCount, 0);
    EXPECT_EQ(ParseDocument("CANFilter", R"({"params":{"table":[]}})", filters.info), kRefused);
    ASSERT_EQ(filters.Parse(R"([{"Filter":{"PID":7}}])"), (Answer{1, kFilterSize}));
    EXPECT_EQ(filters.record.stuFilters[0].nReturnPid, 0x11111111u);
    const std::string text = filters.Text();
    EXPECT_EQ(PackBytes("CANFilter", filters.info.data(), kFilterSize, text.size() + 1), kFailed);
}

// ---- "InfraredBoardTemplate", "InfraredBoard" ----

TEST(InfraredBoard, ReadsAndWritesTemplates) {
    const auto parsed = Parse<CFG_IR_BOARD_TEMPLATE_INFO>(
        "InfraredBoardTemplate",
        R"([{"Id":1,"Name":"N","Category":"tv","Keys":[{"Name":"K","Text":"T"},null]},{"Id":2}])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_IR_BOARD_TEMPLATE_INFO));
    EXPECT_EQ(parsed->nCount, 2u);
    EXPECT_EQ(parsed->stuTemplates[0].nId, 1u);
    EXPECT_STREQ(parsed->stuTemplates[0].szName, "N");
    EXPECT_EQ(parsed->stuTemplates[0].emCategory, CFG_IR_TV);
    EXPECT_EQ(parsed->stuTemplates[0].nKeyCount, 2u);
    EXPECT_STREQ(parsed->stuTemplates[0].stuKeys[0].szName, "K");
    EXPECT_STREQ(parsed->stuTemplates[0].stuKeys[0].szText, "T");
    EXPECT_EQ(Pack("InfraredBoardTemplate", *parsed),
              R"([ { "Category" : "TV", "Id" : 1, "Keys" : [ { "Name" : "K", "Text" : "T" }, { "Name" : "", )"
              R"("Text" : "" } ], "Name" : "N" }, { "Category" : "DVR", "Id" : 2, "Name" : "" } ])");
    std::string keys = R"({"Name":"1"})";
    std::string more;
    for (int i = 2; i <= 130; ++i)
        keys += R"(,{"Name":")" + std::to_string(i) + "\"}";
    for (int i = 2; i <= 18; ++i)
        more += R"(,{"Id":)" + std::to_string(i) + "}";
    const auto full =
        Parse<CFG_IR_BOARD_TEMPLATE_INFO>("InfraredBoardTemplate", R"([{"Keys":[)" + keys + "]}" + more + "]");
    EXPECT_EQ(full->nCount, 16u);
    EXPECT_EQ(full->stuTemplates[15].nId, 16u);
    EXPECT_EQ(full->stuTemplates[0].nKeyCount, 128u);
    EXPECT_STREQ(full->stuTemplates[0].stuKeys[127].szName, "128");
    const std::string text = Pack("InfraredBoardTemplate", *full);
    full.record->nCount = 17;
    full.record->stuTemplates[0].nKeyCount = 129;
    EXPECT_EQ(Pack("InfraredBoardTemplate", *full), text);
}

TEST(InfraredBoard, ReadsAndWritesBoards) {
    const auto parsed = Parse<CFG_IR_BOARD_INFO>(
        "InfraredBoard", R"([{"Id":1,"Name":"N","Category":"DVR","CommPort":2,"TemplateId":3},{"Category":"Fan"}])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_IR_BOARD_INFO));
    EXPECT_EQ(parsed->nCount, 2u);
    EXPECT_EQ(parsed->stuBoards[0].nId, 1u);
    EXPECT_STREQ(parsed->stuBoards[0].szName, "N");
    EXPECT_EQ(parsed->stuBoards[0].nCommPort, 2);
    EXPECT_EQ(parsed->stuBoards[0].nTemplateId, 3u);
    EXPECT_EQ(parsed->stuBoards[1].emCategory, CFG_IR_DVR);
    CFG_IR_BOARD_INFO record = *parsed;
    for (const int code : {-1, 2, INT32_MAX}) {
        record.stuBoards[1].emCategory = code;
        EXPECT_EQ(Pack("InfraredBoard", record),
                  R"([ { "Category" : "DVR", "CommPort" : 2, "Id" : 1, "Name" : "N", "TemplateId" : 3 }, )"
                  R"({ "Category" : "", "CommPort" : 0, "Id" : 0, "Name" : "", "TemplateId" : 0 } ])")
            << code;
    }
    std::string list = R"({"Id":1})";
    for (int i = 2; i <= 18; ++i)
        list += R"(,{"Id":)" + std::to_string(i) + "}";
    const auto full = Parse<CFG_IR_BOARD_INFO>("InfraredBoard", "[" + list + "]");
    EXPECT_EQ(full->nCount, 16u);
    const std::string text = Pack("InfraredBoard", *full);
    full.record->nCount = 17;
    EXPECT_EQ(Pack("InfraredBoard", *full), text);
}

TEST(InfraredBoard, HasNothingWithoutAList) {
    for (const char* table : {"null", "{}", "7", "[]"}) {
        const auto templates = Parse<CFG_IR_BOARD_TEMPLATE_INFO>("InfraredBoardTemplate", table);
        EXPECT_TRUE(templates) << table;
        EXPECT_TRUE(templates.isCleared());
        EXPECT_EQ(templates.length, sizeof(CFG_IR_BOARD_TEMPLATE_INFO));
        EXPECT_EQ(Pack("InfraredBoardTemplate", *templates), "null");
        const auto boards = Parse<CFG_IR_BOARD_INFO>("InfraredBoard", table);
        EXPECT_TRUE(boards) << table;
        EXPECT_TRUE(boards.isCleared());
    }
    EXPECT_FALSE(ParseDocument<CFG_IR_BOARD_INFO>("InfraredBoard", R"({"params":{"table":[]}})"));
}

} // namespace
} // namespace orrery::test
