// What the log hears of traffic events, line by line and in order.
#include "support/Events.h"
#include "support/FailingAllocator.h"
#include "support/LogLines.h"

#include <gmock/gmock.h>

#include <set>

namespace orrery::test {
namespace {

using testing::ElementsAre;

std::vector<std::string> LinesOf(std::string_view code, std::string_view data) {
    LogLines log;
    EXPECT_EQ(CodesOf(EventText(code, data)).size(), 1u);
    return log.texts(E_LOG_LEVEL_DETAIL);
}

TEST(EventLog, FollowsAJunction) {
    EXPECT_THAT(LinesOf("TrafficJunction", "{}"),
                ElementsAre("parseAlarmEvent start dwAlarmType[23]", "traffic start",
                            "ParseTraffic_JunctionInfo() start", "ParseTraffic_JunctionInfo() complete"));
    EXPECT_THAT(LinesOf("QSYTrafficCarWeight", "{}"),
                ElementsAre("parseAlarmEvent start dwAlarmType[360]", "ParseTraffic_JunctionInfo() start",
                            "ParseTraffic_JunctionInfo() complete"));
}

TEST(EventLog, FollowsSpeedsAndTheirCars) {
    EXPECT_THAT(LinesOf("TrafficOverSpeed", "{}"), ElementsAre("parseAlarmEvent start dwAlarmType[262]",
                                                               "overspeed start", "overspeed  traffic car start"));
    EXPECT_THAT(LinesOf("TrafficUnderSpeed", "{}"),
                ElementsAre("parseAlarmEvent start dwAlarmType[263]", "under speed start", "under speed traffic deal"));
    EXPECT_THAT(LinesOf("TrafficOverSpeed", R"({"TrafficCar":{}})"),
                testing::IsSupersetOf({"overspeed start", "overspeed  traffic car start",
                                       "overspeed  parse car data start", "ParseStrtoTrafficCar() start input[{  }]"}));
    EXPECT_THAT(
        LinesOf("TrafficUnderSpeed", R"({"TrafficCar":{}})"),
        testing::IsSupersetOf({"under speed start", "under speed traffic deal", "under speed start parse data"}));
}

TEST(EventLog, ReadsACarAloud) {
    EXPECT_THAT(LinesOf("TrafficJam", R"({"TrafficCar":{"Speed":5,"PlateNumber":"A1"}})"),
                ElementsAre("parseAlarmEvent start dwAlarmType[27]",
                            R"(ParseStrtoTrafficCar() start input[{ "PlateNumber" : "A1", "Speed" : 5 }])",
                            "ParseStrtoTrafficCar() szPlateNumber[A1-2-A1]"));
}

TEST(EventLog, TellsOfEventsThatAreNotDelivered) {
    LogLines log;
    EXPECT_TRUE(CodesOf(R"({"Event":[{"Code":"Nothing","Data":{}},{"Code":"TrafficJam"},{"Data":{}}]})").empty());
    EXPECT_THAT(log.texts(E_LOG_LEVEL_DETAIL),
                ElementsAre("parseAlarmEvent start dwAlarmType[0]", "parseAlarmEvent start dwAlarmType[0]"));
}

TEST(EventLog, TellsOfEventsForWhichThereIsNoMemory) {
    const std::pair<const char*, const char*> events[] = {{"TrafficJunction", "traffic continue"},
                                                          {"TrafficOverSpeed", "overspeed continue"},
                                                          {"TrafficUnderSpeed", "under speed continue"}};
    for (const auto& [code, line] : events) {
        std::string text = "{\"Event\":[";
        for (int i = 0; i < 20; ++i) // more than fit the memory that a call brings along
            text += std::string(i > 0 ? "," : "") + "{\"Code\":\"" + code + "\",\"Data\":{}}";
        text += "]}";
        LogLines log;
        HeapWatch watch;
        watch.FailFrom(1);
        std::ptrdiff_t delivered = 0;
        const EventVisitor visit = [&](const Delivered&) { ++delivered; };
        CLIENT_ParseAnalyzerEventData(text.c_str(), 0, VisitEvent, const_cast<EventVisitor*>(&visit));
        watch.FailNone();
        EXPECT_LT(delivered, 20) << code;
        EXPECT_EQ(log.count(E_LOG_LEVEL_ERROR, line), 20 - delivered) << code;
    }
}

// Where the lines come from, as a client's log shows it.
class Sources : public LogLines {
  public:
    void SetPosition(const char* file, int line, E_LOG_LEVEL level) override {
        files.insert(file);
        EXPECT_GT(line, 0);
        LogLines::SetPosition(file, line, level);
    }
    std::set<std::string> files;
};

TEST(EventLog, NamesOneSourceForAllLines) {
    std::string objects = "[{}";
    for (int i = 1; i < 2000; ++i)
        objects += ",{}";
    objects += "]";
    const std::string text = R"({"Event":[{"Code":"TrafficJam","Data":{"TrafficCar":{},"CommInfo":{"Drivers":)"
                             + objects + R"(}}},{"Code":"ObjectDetection","Data":{"Objects":)" + objects + "}}]}";
    Sources log;
    HeapWatch watch;
    const EventVisitor ignore = [](const Delivered&) {};
    for (std::size_t n = 1; n < 20; ++n) {
        watch.FailOnly(n);
        CLIENT_ParseAnalyzerEventData(text.c_str(), 0, VisitEvent, const_cast<EventVisitor*>(&ignore));
        watch.FailNone();
    }
    EXPECT_GE(log.count(E_LOG_LEVEL_ERROR, "New pstDriversInfo Failed"), 1);
    EXPECT_GE(log.count(E_LOG_LEVEL_ERROR, "New pstObjectInfo Failed"), 1);
    EXPECT_THAT(log.files, ElementsAre("ReqRealPicture_EventParser"));
}

} // namespace
} // namespace orrery::test
