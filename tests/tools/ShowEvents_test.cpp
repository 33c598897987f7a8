// Analyzer events as the companion prints them, read back with a reader other than the library's own.
#include "orrery/ShowEvents.h"
#include "orrery/events_other_access.h"

#include "events/EventMap.h"

#include "orrery/calls.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <json/json.h>
#include <sstream>

namespace orrery::tool {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::vector<Json::Value> LinesOf(const std::string& text) {
    std::vector<Json::Value> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        Json::Value value;
        std::istringstream(line) >> value;
        lines.push_back(value);
    }
    return lines;
}

TEST(ShowEvents, NotesOfStandardInputTellTheirText) {
    for (const unsigned line : {1U, 2U}) {
        EventOptions options;
        options.file = "-";
        options.line = line;
        EXPECT_THAT(ShowEvents(R"({"Events":[]})", options).err,
                    StartsWith("orrery: -, text at line " + std::to_string(line) + ": "));
    }
}

TEST(ShowEvents, PrintsALineAnEvent) {
    const Result result = ShowEvents(R"({"Event":[
        {"Code":"AccessControl","Index":2,"Data":{"CardNo":"4711","Type":"Exit","Method":15,"Object":{"Image":{"FilePath":"/face.jpg"}}}},
        {"Code":"LinkSD","Data":{"SrcInfo":{"SrcEvent":"VideoMotion"}}},
        {"Code":"VideoMotion","Data":{"CommInfo":{"Drivers":[{"ObjectID":7},{"ObjectID":8}]}}},
        {"Code":"VideoBlind"}]})");
    EXPECT_EQ(result.exit, kDone);
    EXPECT_EQ(result.err, "");
    const auto lines = LinesOf(result.out);
    ASSERT_EQ(lines.size(), 4U);

    EXPECT_EQ(lines[0]["code"], 516);
    EXPECT_EQ(lines[0]["name"], "AccessControl");
    EXPECT_EQ(lines[0]["size"].asUInt(), sizeof(DEV_EVENT_ACCESSCONTROL_INFO));
    const Json::Value& access = lines[0]["record"];
    EXPECT_EQ(access["nChannelID"], 2);
    EXPECT_EQ(access["szCardNo"], "4711");
    EXPECT_EQ(access["emEventType"]["code"], 2);
    EXPECT_EQ(access["emEventType"]["name"], "Exit");
    EXPECT_EQ(access["emOpenMethod"], 8);
    EXPECT_EQ(access["emCardType"], -1);
    EXPECT_EQ(access["stuObject"]["pszFilePath"], "/face.jpg");

    // A pointer to one record, to several, to none.
    EXPECT_EQ(lines[1]["record"]["pSrcInfo"]["szSrcEvent"], "VideoMotion");
    const Json::Value& drivers = lines[2]["record"]["stuCommInfo"]["pDrivers"];
    ASSERT_EQ(drivers.size(), 2U);
    EXPECT_EQ(drivers[1]["nObjectID"], 8);
    EXPECT_TRUE(drivers[1]["pszFilePath"].isNull());
    EXPECT_EQ(lines[3]["code"], 339);
    EXPECT_EQ(lines[3]["record"]["stuFileTime"]["dwYear"], 0);
}

TEST(ShowEvents, TakesTypedTextsByThemselves) {
    const Result result =
        ShowEvents(R"({"ObjectList":[{"ObjectID":4},null,{"ObjectID":5}],"VideoStatSummary":{"Channel":3},
        "VideoAnalyseRule":[{"Type":"FireDetection","Name":"one"}],"Event":[{"Code":"TrafficControl","Data":{}}]})");
    EXPECT_EQ(result.exit, kDone);
    EXPECT_EQ(result.err, "");
    const auto lines = LinesOf(result.out);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0]["code"], 0x1000001);
    EXPECT_EQ(lines[0]["name"], "VideoAnalyseRule");
    EXPECT_EQ(lines[0]["record"]["dwHead"], 1);
    ASSERT_EQ(lines[0]["record"]["pRuleBuf"].size(), 1U);
    EXPECT_EQ(lines[0]["record"]["pRuleBuf"][0]["record"]["szRuleName"], "one");
    EXPECT_EQ(lines[1]["name"], "TrafficControl");
    EXPECT_EQ(lines[2]["name"], "ObjectList");
    ASSERT_EQ(lines[2]["records"].size(), 2U);
    EXPECT_EQ(lines[2]["records"][1]["nObjectID"], 5);
    EXPECT_EQ(lines[3]["record"]["nChannelID"], 3);

    EXPECT_EQ(ShowEvents(R"({"VideoAnalyseRule":[{"Type":"Nonsense"}]})").err,
              "orrery: note: \"VideoAnalyseRule\" was passed over: a rule is of a type without a record\n");
    EXPECT_EQ(ShowEvents(R"({"VideoAnalyseRule":[]})").err, "orrery: note: \"VideoAnalyseRule\" holds no rules\n");
    EXPECT_THAT(ShowEvents(R"({"ObjectList":[],"Event":[{"Code":"Nothing"}]})").err,
                HasSubstr("Event[0] was passed over"));
}

TEST(ShowEvents, PrettyIsTheSameOverSeveralLines) {
    const char* const text = R"({"EventList":[{"Code":"RFIDInfo","Data":{"RFID":["a","b"]}}]})";
    Json::Value line;
    Json::Value pretty;
    std::istringstream(ShowEvents(text).out) >> line;
    const std::string lines = ShowEvents(text, {.format = Format::Pretty}).out;
    std::istringstream(lines) >> pretty;
    EXPECT_EQ(line, pretty);
    EXPECT_THAT(lines, StartsWith("{\n  \"code\": 358,\n"));
    EXPECT_EQ(line["record"]["szRFID"].size(), 2U);
    Json::Value all;
    std::istringstream(ShowEvents(text, {.all = true}).out) >> all;
    EXPECT_EQ(all["record"]["szRFID"].size(), 10U);
}

// A name of 128 characters has no terminator of its own, and must not draw in what stands behind it.
TEST(ShowEvents, FullTextsEndAtTheirField) {
    const std::string name(200, 'n');
    const Result result = ShowEvents(R"({"Event":[{"Code":"PassChange","Data":{"Name":")" + name + "\"}}]}");
    EXPECT_EQ(LinesOf(result.out)[0]["record"]["szName"], name.substr(0, 128));
}

TEST(ShowEvents, BitsAndBytesAreNoNames) {
    const Result result = ShowEvents(
        R"({"Event":[{"Code":"TrafficJunction","Data":{"Breaking":["RunRedLight"],"Object":{"ColorSimilar":{"Red":9}}}}]})");
    const Json::Value record = LinesOf(result.out)[0]["record"];
    EXPECT_TRUE(record["dwBreakingRule"].isIntegral());
    EXPECT_EQ(record["stuObject"]["byColorSimilar"][0], 9);
}

TEST(ShowEvents, TellsWhatWasPassedOver) {
    const Result result = ShowEvents(
        R"({"Event":[{"Code":"AccesControl","Data":{}},{"Code":"AccessControl"},{"Data":{}},{"Code":"SnapManual"}]})");
    EXPECT_EQ(result.exit, kDone);
    EXPECT_EQ(LinesOf(result.out).size(), 1U);
    EXPECT_THAT(result.err, HasSubstr("orrery: note: Event[0] was passed over: no event is named \"AccesControl\"; did "
                                      "you mean AccessControl"));
    EXPECT_THAT(result.err, HasSubstr("orrery: note: Event[1] was passed over: no \"Data\"\n"));
    EXPECT_THAT(result.err, HasSubstr("orrery: note: Event[2] was passed over: no \"Code\"\n"));
    EXPECT_THAT(result.err, testing::Not(HasSubstr("Event[3]")));

    EXPECT_EQ(ShowEvents("{}").err, "orrery: note: the text has neither \"Event\" nor \"EventList\"\n");
    EXPECT_EQ(ShowEvents(R"({"Event":7})").err, "orrery: note: \"Event\" is no list\n");
    std::string many = "{\"EventList\":[";
    for (int i = 0; i < 200; ++i)
        many += std::string(i ? "," : "") + (i < 128 ? "{\"Code\":\"SnapManual\"}" : "{}");
    const Result cut = ShowEvents(many + "]}");
    EXPECT_EQ(LinesOf(cut.out).size(), 128U);
    EXPECT_EQ(cut.err, "orrery: note: \"EventList\" holds 200 events; the first 128 are read\n");
    std::string unknown = "{\"Event\":[{}";
    for (int i = 0; i < 20; ++i)
        unknown += ",{}";
    const std::string notes = ShowEvents(unknown + "]}").err;
    EXPECT_EQ(std::count(notes.begin(), notes.end(), '\n'), 9);
    EXPECT_THAT(notes, HasSubstr("and more of the kind"));
}

TEST(ShowEvents, RefusesWhatIsNoJson) {
    const Result result = ShowEvents("{\"Event\":[}");
    EXPECT_EQ(result.exit, kRefused);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, StartsWith("orrery: line 1, column 11: "));
}

// Each event, from no keys at all, is a line that every reader takes.
TEST(ShowEvents, KnowsEveryEvent) {
    for (const events::EventRow& row : events::Events()) {
        if (row.name.empty()) continue;
        const Result result = ShowEvents("{\"Event\":[{\"Code\":\"" + std::string(row.name) + "\",\"Data\":{}}]}");
        const auto lines = LinesOf(result.out);
        ASSERT_EQ(lines.size(), 1U) << row.name;
        EXPECT_EQ(lines[0]["name"], std::string(row.name));
        EXPECT_EQ(lines[0]["code"].asUInt(), row.code);
        EXPECT_EQ(lines[0]["size"].asUInt(), row.reportedSize);
        EXPECT_GT(lines[0]["record"].size(), 0U) << row.name;
    }
}

} // namespace
} // namespace orrery::tool
