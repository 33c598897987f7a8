// What a text of events is found to hold before it is decoded.
#include "orrery/EventSurvey.h"

#include "frame/json/Reader.h"

#include "orrery/calls.h"
#include "orrery/event_codes.h"

#include <gmock/gmock.h>
#include <string>
#include <utility>

namespace orrery::tool {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

struct Surveyed {
    explicit Surveyed(std::string itsText) : text(std::move(itsText)) {
        EXPECT_TRUE(json::Parse(text, arena, root)) << text;
        survey = SurveyEvents(root);
    }

    std::string text;
    StackArena<1024> arena;
    json::Value root;
    EventSurvey survey;
};

// As many as the decoder hands over.
std::size_t Delivered(const std::string& text) {
    std::size_t count = 0;
    CLIENT_ParseAnalyzerEventData(
        text.c_str(), static_cast<std::uint32_t>(text.size()),
        [](std::uint32_t, const void*, std::uint32_t, void*, std::int32_t, void* user) -> std::int32_t {
            ++*static_cast<std::size_t*>(user);
            return 0;
        },
        &count);
    return count;
}

TEST(EventSurvey, FindsPlacesAndActionsOfWhatIsDelivered) {
    const Surveyed one(R"({"Event":[{"Code":"AccessControl","Action":"start","Data":{}},{"Code":"VideoBlind"},
        {"Code":"NoSuchEvent","Data":{}},{"Code":"VideoMotion","Action":"Stop","Data":{}}]})");
    ASSERT_EQ(one.survey.places.size(), 3u);
    EXPECT_EQ(one.survey.places[0].index, 0u);
    EXPECT_EQ(one.survey.places[0].action, "Start");
    EXPECT_EQ(one.survey.places[0].row->name, "AccessControl");
    EXPECT_EQ(one.survey.places[1].index, 1u);
    EXPECT_EQ(one.survey.places[1].action, "Start"); // as the one before
    EXPECT_EQ(one.survey.places[1].row->name, "VideoBlind");
    EXPECT_EQ(one.survey.places[2].index, 3u);
    EXPECT_EQ(one.survey.places[2].action, "Stop");
    EXPECT_TRUE(one.survey.hasKey);
    EXPECT_TRUE(one.survey.isList);
    EXPECT_EQ(Delivered(one.text), 3u);
    EXPECT_THAT(one.survey.notes,
                StartsWith("orrery: note: Event[2] was passed over: no event is named \"NoSuchEvent\""));
}

TEST(EventSurvey, AnActionThatNobodyKnowsIsTheOneBefore) {
    const Surveyed one(R"({"EventList":[{"Code":"VideoBlind","Action":"Nonsense"},
        {"Code":"VideoBlind","Action":"Pulse"},{"Code":"VideoBlind","Action":7}]})");
    ASSERT_EQ(one.survey.places.size(), 3u);
    EXPECT_EQ(one.survey.places[0].action, "");
    EXPECT_EQ(one.survey.places[1].action, "Pulse");
    EXPECT_EQ(one.survey.places[2].action, "Pulse");
    EXPECT_EQ(one.survey.notes, "");
}

// What it brings makes it another event.
TEST(EventSurvey, AnEventIsPlacedAsWhatItIsDeliveredAs) {
    const Surveyed both(R"({"Event":[{"Code":"CrossLineDetection","Data":{}},
        {"Code":"CrossLineDetection","Data":{"Objects":[]}}]})");
    ASSERT_EQ(both.survey.places.size(), 2u);
    EXPECT_EQ(both.survey.places[0].row->code, std::uint32_t{ORRERY_EVENT_CROSS_LINE_DETECTION});
    EXPECT_EQ(both.survey.places[1].row->code, std::uint32_t{ORRERY_EVENT_CROSS_LINE_EX});
}

TEST(EventSurvey, ASingleListCountsBeforeTheOther) {
    const Surveyed both(
        R"({"EventList":[{"Code":"VideoBlind"},{"Code":"VideoBlind"}],"Event":[{"Code":"VideoBlind"}]})");
    EXPECT_EQ(both.survey.places.size(), 1u);
    EXPECT_EQ(Delivered(both.text), 1u);
    const Surveyed null(R"({"EventList":[{"Code":"VideoBlind"},{"Code":"VideoBlind"}],"Event":null})");
    EXPECT_EQ(null.survey.places.size(), 2u);
    EXPECT_EQ(Delivered(null.text), 2u);
}

TEST(EventSurvey, TellsWhyOthersAreNotDelivered) {
    const Surveyed one(
        R"({"EventList":[{"Data":{}},{"Code":"AccessControl"},{"Code":"AccesControl","Data":{}},7,null]})");
    EXPECT_TRUE(one.survey.places.empty());
    EXPECT_EQ(Delivered(one.text), 0u);
    EXPECT_THAT(one.survey.notes, StartsWith("orrery: note: EventList[0] was passed over: no \"Code\"\n"
                                             "orrery: note: EventList[1] was passed over: no \"Data\"\n"
                                             "orrery: note: EventList[2] was passed over: no event is named "
                                             "\"AccesControl\""));
    EXPECT_THAT(one.survey.notes, HasSubstr("AccessControl"));
    EXPECT_THAT(one.survey.notes, EndsWith("EventList[3] was passed over: no \"Code\"\n"
                                           "orrery: note: EventList[4] was passed over: no \"Code\"\n"));
}

TEST(EventSurvey, TellsTextsThatHoldNoEvents) {
    const Surveyed none(R"({"Events":[]})");
    EXPECT_FALSE(none.survey.hasKey);
    EXPECT_FALSE(none.survey.isList);
    EXPECT_EQ(none.survey.notes, "orrery: note: the text has neither \"Event\" nor \"EventList\"\n");
    const Surveyed object(R"({"Event":{"Code":"VideoBlind"}})");
    EXPECT_TRUE(object.survey.hasKey);
    EXPECT_FALSE(object.survey.isList);
    EXPECT_EQ(object.survey.notes, "orrery: note: \"Event\" is no list\n");
    const Surveyed empty(R"({"EventList":[]})");
    EXPECT_TRUE(empty.survey.isList);
    EXPECT_EQ(empty.survey.notes, "");
    for (const char* const other : {"[]", "17", "\"Event\"", "null"}) {
        const Surveyed text(other);
        EXPECT_FALSE(text.survey.hasKey) << other;
        EXPECT_TRUE(text.survey.places.empty()) << other;
    }
}

// The decoder reads 128 of a text.
TEST(EventSurvey, CountsWhatIsMoreThanIsRead) {
    for (const std::size_t count : {128u, 129u, 1000u}) {
        std::string list;
        for (std::size_t i = 0; i < count; ++i)
            list += R"({"Code":"VideoBlind"},)";
        list.back() = ']';
        const Surveyed text(R"({"Event":[)" + list + "}");
        EXPECT_EQ(text.survey.places.size(), 128u);
        EXPECT_EQ(Delivered(text.text), 128u);
        EXPECT_EQ(text.survey.notes, count == 128 ? std::string()
                                                  : "orrery: note: \"Event\" holds " + std::to_string(count)
                                                        + " events; the first 128 are read\n");
    }
}

// Names of a device may hold anything, and be many.
TEST(EventSurvey, KeepsHostileNamesFromTheTerminal) {
    const Surveyed name("{\"Event\":[{\"Code\":\"\\u001b[2J\\\"\\n\",\"Data\":{}},{\"Code\":\""
                        + std::string(100'000, 'A') + "\",\"Data\":{}},{\"Code\":[[[[]]]],\"Data\":{}}]}");
    EXPECT_TRUE(name.survey.places.empty());
    EXPECT_EQ(name.survey.notes.find('\x1b'), std::string::npos);
    EXPECT_EQ(Delivered(name.text), 0u);
    std::string list;
    for (int i = 0; i < 100; ++i)
        list += "{},";
    list.back() = ']';
    const Surveyed many(R"({"Event":[)" + list + "}");
    EXPECT_THAT(many.survey.notes,
                EndsWith("Event[7] was passed over: no \"Code\"\norrery: note: and more of the kind\n"));
}

} // namespace
} // namespace orrery::tool
