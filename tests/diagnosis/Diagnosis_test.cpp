#include "diagnosis/Lists.h"

#include "orrery/analyse_caps.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// ---- "VideoDiagnosisProject" ----

// The week with one section at the given place.
std::string Week(int day, int section, const std::string& text) {
    std::string week = "[ ";
    for (int d = 0; d < 7; ++d) {
        week += d > 0 ? ", [ " : "[ ";
        for (int s = 0; s < 6; ++s)
            week += (s > 0 ? ", \"" : "\"") + (d == day && s == section ? text : "0 0:0:0-0:0:0") + '"';
        week += " ]";
    }
    return week + " ]";
}

constexpr const char* kProject = "VideoDiagnosisProject";

struct Project {
    explicit Project(std::size_t room = 2) : tasks(room) {
        project.nTaskMax = static_cast<std::int32_t>(room);
        project.pTasks = tasks.data();
    }
    CFG_DIAGNOSIS_PROJECT_LIST List() { return {1, 99, &project}; }

    std::vector<CFG_DIAGNOSIS_PROJECT_TASK> tasks;
    CFG_DIAGNOSIS_PROJECT project{};
};

TEST(DiagnosisProject, ReadsAndWritesAllKeys) {
    Project project;
    CFG_DIAGNOSIS_PROJECT_LIST list = project.List();
    const std::string table = R"({ "Week" : { "Tasks" : [ { "Enable" : true, "IsCycle" : true, "Name" : "Night", )"
                              R"("TimeSection" : )"
                              + Week(6, 5, "1 8:9:10-23:59:59")
                              + R"( }, { "Enable" : false, "IsCycle" : false, "Name" : "Day", "TimeSection" : )"
                              + Week(0, 0, "-2 0:0:0-24:0:100") + " } ] } }";
    ASSERT_EQ(ReadList(kProject, ReplyWith(table), list), kListRead);
    EXPECT_EQ(list.nReturned, 1);
    EXPECT_STREQ(project.project.szName, "Week");
    EXPECT_EQ(project.project.nTaskReturned, 2);
    EXPECT_EQ(project.tasks[0].bEnable, 1);
    EXPECT_EQ(project.tasks[0].bIsCycle, 1);
    EXPECT_STREQ(project.tasks[0].szName, "Night");
    const CFG_TIME_SECTION& section = project.tasks[0].stuTimeSection[6][5];
    EXPECT_EQ(section.dwMask, 1);
    EXPECT_EQ(section.nBeginHour, 8);
    EXPECT_EQ(section.nBeginMin, 9);
    EXPECT_EQ(section.nBeginSec, 10);
    EXPECT_EQ(section.nEndHour, 23);
    EXPECT_EQ(section.nEndMin, 59);
    EXPECT_EQ(section.nEndSec, 59);
    EXPECT_EQ(project.tasks[1].stuTimeSection[0][0].dwMask, -2);
    EXPECT_EQ(project.tasks[1].stuTimeSection[0][0].nEndSec, 100);
    EXPECT_EQ(TextOf(kProject, list), table);
}

TEST(DiagnosisProject, ReadsSectionsWithLeadingZerosUpToTheFirstBadOne) {
    Project project(1);
    project.tasks[0].stuTimeSection[0][1].nEndHour = 77;
    CFG_DIAGNOSIS_PROJECT_LIST list = project.List();
    ASSERT_EQ(ReadList(kProject,
                       ReplyWith(R"({ "p" : { "Tasks" : [ { "TimeSection" : [ [ "1 08:00:00-009:30:00" ], [ "bad" ], )"
                                 R"([ "1 1:1:1-1:1:1" ] ] } ] } })"),
                       list),
              kListRead);
    EXPECT_EQ(project.tasks[0].stuTimeSection[0][0].nBeginHour, 8);
    EXPECT_EQ(project.tasks[0].stuTimeSection[0][0].nEndHour, 9);
    EXPECT_EQ(project.tasks[0].stuTimeSection[0][1].nEndHour, 77);
    EXPECT_EQ(project.tasks[0].stuTimeSection[2][0].dwMask, 0);
}

TEST(DiagnosisProject, AProjectWithoutAnArrayLosesItsTasksAlone) {
    Project last;
    CFG_DIAGNOSIS_PROJECT projects[2] = {{}, last.project};
    projects[0].nTaskMax = 5;
    CFG_DIAGNOSIS_PROJECT_LIST list{2, 0, projects};
    ASSERT_EQ(ReadList(kProject,
                       ReplyWith(R"({ "a" : { "Tasks" : [ { "Name" : "x" }, {} ] }, )"
                                 R"("b" : { "Tasks" : [ { "Name" : "y" } ] } })"),
                       list),
              kListRead);
    EXPECT_EQ(projects[0].nTaskReturned, 2);
    EXPECT_EQ(projects[1].nTaskReturned, 1);
    EXPECT_STREQ(last.tasks[0].szName, "y");
}

TEST(DiagnosisProject, TasksAreCountedUpToTheRoom) {
    struct Case {
        const char* project;
        int count;
    };
    for (const Case& one :
         {Case{R"({ "Tasks" : [ {} ] })", 1}, Case{R"({ "Tasks" : [ {}, null ] })", 2},
          Case{R"({ "Tasks" : [ {}, {}, {} ] })", 2}, Case{"{}", 0}, Case{"null", 0}, Case{R"({ "Tasks" : 5 })", 0}}) {
        Project project;
        project.project.nTaskReturned = 99;
        CFG_DIAGNOSIS_PROJECT_LIST list = project.List();
        ASSERT_EQ(ReadList(kProject, ReplyWith(std::string(R"({ "p" : )") + one.project + " }"), list), kListRead);
        EXPECT_EQ(project.project.nTaskReturned, one.count) << one.project;
    }
}

TEST(DiagnosisProject, ProjectsAndTasksWithoutANameAreNotWritten) {
    Project project;
    project.project.nTaskReturned = 2;
    std::strcpy(project.tasks[1].szName, "t");
    CFG_DIAGNOSIS_PROJECT_LIST list{1, 1, &project.project};
    EXPECT_EQ(TextOf(kProject, list), "null");
    std::strcpy(project.project.szName, "p");
    const std::string task =
        R"({ "Enable" : false, "IsCycle" : false, "Name" : "t", "TimeSection" : )" + Week(-1, 0, "") + " }";
    EXPECT_EQ(TextOf(kProject, list), R"({ "p" : { "Tasks" : [ )" + task + " ] } }");
    project.tasks[1].szName[0] = '\0';
    EXPECT_EQ(TextOf(kProject, list), R"({ "p" : null })");
}

TEST(DiagnosisProject, CountsBeyondTheRoomEndThereWhenWritten) {
    struct Case {
        std::int32_t room;
        std::int32_t count;
        int written;
    };
    for (const Case& one :
         {Case{2, 9, 2}, Case{2, 1, 1}, Case{1, INT32_MAX, 1}, Case{2, -1, 0}, Case{0, 2, 0}, Case{-1, 2, 0}}) {
        Project project;
        std::strcpy(project.project.szName, "p");
        for (CFG_DIAGNOSIS_PROJECT_TASK& task : project.tasks)
            std::strcpy(task.szName, "t");
        project.project.nTaskMax = one.room;
        project.project.nTaskReturned = one.count;
        const CFG_DIAGNOSIS_PROJECT_LIST list{1, 1, &project.project};
        std::string tasks;
        for (int i = 0; i < one.written; ++i)
            tasks += (i > 0 ? ", " : "")
                     + (R"({ "Enable" : false, "IsCycle" : false, "Name" : "t", "TimeSection" : )" + Week(-1, 0, ""))
                     + " }";
        EXPECT_EQ(TextOf(kProject, list),
                  one.written > 0 ? R"({ "p" : { "Tasks" : [ )" + tasks + " ] } }" : R"({ "p" : null })")
            << one.room << ' ' << one.count;
    }
}

TEST(DiagnosisProject, CyclesAtExactlyOneAndIsEnabledAtAny) {
    Project project(1);
    project.project.nTaskReturned = 1;
    std::strcpy(project.project.szName, "p");
    std::strcpy(project.tasks[0].szName, "t");
    CFG_DIAGNOSIS_PROJECT_LIST list{1, 1, &project.project};
    for (const int value : {0, 1, 2, 255}) {
        project.tasks[0].bIsCycle = value == 255 ? -1 : value;
        project.tasks[0].bEnable = static_cast<std::uint8_t>(value);
        const std::string text = TextOf(kProject, list);
        EXPECT_EQ(text.find(R"("IsCycle" : true)") != std::string::npos, value == 1) << text;
        EXPECT_EQ(text.find(R"("Enable" : true)") != std::string::npos, value != 0) << text;
    }
}

TEST(DiagnosisProject, WritesNumbersOfAnySize) {
    Project project(1);
    project.project.nTaskReturned = 1;
    std::strcpy(project.project.szName, "p");
    std::strcpy(project.tasks[0].szName, "t");
    const std::int32_t least = INT32_MIN;
    project.tasks[0].stuTimeSection[3][2] = {least, least, least, least, least, least, least};
    CFG_DIAGNOSIS_PROJECT_LIST list{1, 1, &project.project};
    const std::string n = "-2147483648";
    EXPECT_NE(TextOf(kProject, list).find('"' + n + ' ' + n + ':' + n + ':' + n + '-' + n + ':' + n + ':' + n + '"'),
              std::string::npos);
}

TEST(DiagnosisProject, MoreThanRoomFails) {
    Project project;
    CFG_DIAGNOSIS_PROJECT_LIST list = project.List();
    EXPECT_EQ(ReadList(kProject, ReplyWith(R"({ "a" : {}, "b" : {} })"), list), kRefused);
    EXPECT_EQ(list.nReturned, 99);
    EXPECT_STREQ(project.project.szName, "");
    EXPECT_EQ(ReadList(kProject, ReplyWith(R"({ "a" : {} })", R"("result" : false, )"), list), kRefused);
    EXPECT_EQ(list.nReturned, 1);
    EXPECT_STREQ(project.project.szName, "a");
}

// ---- "VideoDiagnosisGlobal" ----

constexpr const char* kGlobal = "VideoDiagnosisGlobal";

TEST(DiagnosisGlobal, ReadsAndWritesAllKeys) {
    CFG_DIAGNOSIS_GLOBAL_ENTRY entries[3] = {};
    CFG_DIAGNOSIS_GLOBAL_LIST list{3, 99, entries};
    const std::string table = R"([ { "RealTimeProject" : "r1", "TourProject" : "t2" }, { "TourProject" : "t3" } ])";
    ASSERT_EQ(ReadList(kGlobal, ReplyWith(table), list), kListRead);
    EXPECT_EQ(list.nReturned, 2);
    EXPECT_EQ(entries[0].bRealTimeProject, 1);
    EXPECT_STREQ(entries[0].szRealTimeProject, "r1");
    EXPECT_EQ(entries[0].bTourProject, 1);
    EXPECT_STREQ(entries[0].szTourProject, "t2");
    EXPECT_EQ(entries[1].bRealTimeProject, 0);
    EXPECT_STREQ(entries[1].szTourProject, "t3");
    EXPECT_EQ(TextOf(kGlobal, list), table);
}

TEST(DiagnosisGlobal, ElementsPastTheRoomArePassedOver) {
    CFG_DIAGNOSIS_GLOBAL_ENTRY entries[3] = {};
    std::strcpy(entries[2].szTourProject, "old");
    CFG_DIAGNOSIS_GLOBAL_LIST list{2, 0, entries};
    ASSERT_EQ(ReadList(kGlobal, ReplyWith(R"([ null, { "TourProject" : "b" }, { "TourProject" : "c" } ])"), list),
              kListRead);
    EXPECT_EQ(list.nReturned, 2);
    EXPECT_EQ(entries[0].bTourProject, 0);
    EXPECT_STREQ(entries[1].szTourProject, "b");
    EXPECT_STREQ(entries[2].szTourProject, "old");
}

TEST(DiagnosisGlobal, FlagsAreSetByTheirKeysAndWrittenAtExactlyOne) {
    CFG_DIAGNOSIS_GLOBAL_ENTRY entry{5, "old", 6, "older"};
    CFG_DIAGNOSIS_GLOBAL_LIST list{1, 0, &entry};
    ASSERT_EQ(ReadList(kGlobal, ReplyWith("[ {} ]"), list), kListRead);
    EXPECT_EQ(entry.bTourProject, 5);
    EXPECT_EQ(entry.bRealTimeProject, 6);
    EXPECT_STREQ(entry.szTourProject, "old");
    EXPECT_EQ(TextOf(kGlobal, list), "[ null ]");
    ASSERT_EQ(ReadList(kGlobal, ReplyWith(R"([ { "TourProject" : 5, "RealTimeProject" : "x" } ])"), list), kListRead);
    EXPECT_EQ(entry.bTourProject, 1);
    EXPECT_STREQ(entry.szTourProject, "");
    EXPECT_EQ(TextOf(kGlobal, list), R"([ { "RealTimeProject" : "x", "TourProject" : "" } ])");
    entry.bTourProject = 2;
    EXPECT_EQ(TextOf(kGlobal, list), R"([ { "RealTimeProject" : "x" } ])");
    entry.bTourProject = 1;
    entry.bRealTimeProject = -1;
    EXPECT_EQ(TextOf(kGlobal, list), R"([ { "TourProject" : "" } ])");
    list.nReturned = 0;
    EXPECT_EQ(TextOf(kGlobal, list), "null");
    list.nReturned = 9;
    EXPECT_EQ(TextOf(kGlobal, list), R"([ { "TourProject" : "" } ])");
}

TEST(DiagnosisGlobal, NeedsATrueResultAndAList) {
    CFG_DIAGNOSIS_GLOBAL_ENTRY entry{};
    CFG_DIAGNOSIS_GLOBAL_LIST list{1, 99, &entry};
    const std::string table = R"([ { "TourProject" : "t" } ])";
    EXPECT_EQ(ReadList(kGlobal, ReplyWith(table, ""), list), kRefused);
    EXPECT_EQ(ReadList(kGlobal, ReplyWith(table, R"("result" : false, )"), list), kRefused);
    EXPECT_EQ(entry.bTourProject, 0);
    for (const char* other : {"{}", "5", "null"})
        EXPECT_EQ(ReadList(kGlobal, ReplyWith(other), list), kRefused) << other;
    EXPECT_EQ(list.nReturned, 99);
    EXPECT_EQ(ReadList(kGlobal, ReplyWith("[]"), list), kListRead);
    EXPECT_EQ(list.nReturned, 0);
    std::uint32_t length = kNoLength;
    EXPECT_EQ(CLIENT_ParseData(kGlobal, ReplyWith(table).c_str(), &list, sizeof list - 1, &length), 0);
    char larger[sizeof list + 1] = {};
    std::memcpy(larger, &list, sizeof list);
    EXPECT_EQ(CLIENT_ParseData(kGlobal, ReplyWith(table).c_str(), larger, sizeof larger, &length), 0);
    EXPECT_EQ(length, kNoLength);
}

// ---- "videoDiagnosisServer.getCaps" ----

constexpr const char* kCaps = "videoDiagnosisServer.getCaps";

std::string CapsReply(const std::string& result, const std::string& caps) {
    return "{ \"result\" : " + result + ", \"params\" : " + caps + " }";
}

TEST(DiagnosisCaps, ReadsAndWritesAllKeys) {
    const std::string caps = R"({ "MaxProfiles" : 1, "MaxProjects" : 2, "MaxSourcesOfTask" : 3, "MaxTasks" : 4, )"
                             R"("SupportedType" : [ "VideoLossDetection", "VideoDelay" ] })";
    for (const std::string& params : {"{ \"caps\" : " + caps + " }", caps}) {
        const auto parsed = ParseDocument<CFG_DIAGNOSIS_CAPS_INFO>(kCaps, CapsReply("true", params));
        ASSERT_TRUE(parsed) << params;
        EXPECT_EQ(parsed.length, sizeof(CFG_DIAGNOSIS_CAPS_INFO));
        EXPECT_EQ(parsed->nMaxProfiles, 1);
        EXPECT_EQ(parsed->nMaxProjects, 2);
        EXPECT_EQ(parsed->nMaxSourcesOfTask, 3);
        EXPECT_EQ(parsed->nMaxTasks, 4);
        EXPECT_EQ(parsed->nTypeNum, 2);
        EXPECT_STREQ(parsed->szTypes[0], "VideoLossDetection");
        EXPECT_STREQ(parsed->szTypes[1], "VideoDelay");
        EXPECT_EQ(TextOf(kCaps, *parsed), caps);
    }
    EXPECT_EQ(TextOf(kCaps, *Cleared<CFG_DIAGNOSIS_CAPS_INFO>()),
              R"({ "MaxProfiles" : 0, "MaxProjects" : 0, "MaxSourcesOfTask" : 0, "MaxTasks" : 0 })");
}

TEST(DiagnosisCaps, TheResultIsATextThatSaysTrue) {
    struct Case {
        const char* result;
        bool passes;
    };
    for (const Case& one :
         {Case{"true", true}, Case{R"("true")", true}, Case{"false", false}, Case{"1", false}, Case{R"("1")", false},
          Case{R"("yes")", false}, Case{"null", false}, Case{"[ true ]", false}}) {
        const auto parsed =
            ParseDocument<CFG_DIAGNOSIS_CAPS_INFO>(kCaps, CapsReply(one.result, R"({ "MaxTasks" : 1 })"));
        EXPECT_EQ(static_cast<bool>(parsed), one.passes) << one.result;
        if (!one.passes) {
            EXPECT_TRUE(parsed.isCleared());
        }
    }
    EXPECT_FALSE((ParseDocument<CFG_DIAGNOSIS_CAPS_INFO>(kCaps, R"({ "params" : { "MaxTasks" : 1 } })")));
    EXPECT_FALSE((ParseDocument<CFG_DIAGNOSIS_CAPS_INFO>(kCaps, R"({ "result" : true })")));
}

TEST(DiagnosisCaps, KeepsElevenTypes) {
    for (const int count : {10, 11, 12}) {
        std::string types;
        for (int i = 0; i < count; ++i)
            types += (i > 0 ? ", \"t" : "\"t") + std::to_string(i) + '"';
        const auto parsed = ParseDocument<CFG_DIAGNOSIS_CAPS_INFO>(
            kCaps, CapsReply("true", R"({ "SupportedType" : [ )" + types + " ] }"));
        ASSERT_TRUE(parsed);
        EXPECT_EQ(parsed->nTypeNum, std::min(count, 11));
        EXPECT_STREQ(parsed->szTypes[9], "t9");
        EXPECT_STREQ(parsed->szTypes[10], count > 10 ? "t10" : "");
        EXPECT_EQ(parsed->nMaxProfiles, 0);
    }
    const std::string x(300, 'x');
    const auto parsed =
        ParseDocument<CFG_DIAGNOSIS_CAPS_INFO>(kCaps, CapsReply("true", R"({ "SupportedType" : [ ")" + x + "\" ] }"));
    EXPECT_EQ(std::string(parsed->szTypes[0]), x.substr(0, 259));
    auto caps = Cleared<CFG_DIAGNOSIS_CAPS_INFO>();
    caps->nTypeNum = 12;
    const std::string text = TextOf(kCaps, *caps);
    EXPECT_EQ(std::count(text.begin(), text.end(), '"'), 2 * (5 + 11));
}

TEST(DiagnosisCaps, TheRecordHasExactlyItsSize) {
    const std::size_t size = sizeof(CFG_DIAGNOSIS_CAPS_INFO);
    std::vector<char> buffer(2 * size);
    for (const std::size_t given : {size - 1, size, size + 1, 2 * size}) {
        std::uint32_t length = kNoLength;
        EXPECT_EQ(CLIENT_ParseData(kCaps, CapsReply("true", "{}").c_str(), buffer.data(),
                                   static_cast<std::uint32_t>(given), &length),
                  given == size);
        EXPECT_EQ(length, given == size ? size : kNoLength);
        const WrittenBytes written = WriteBytes(kCaps, buffer.data(), given, 256);
        EXPECT_EQ(written.result, given == size);
        if (given != size) {
            EXPECT_EQ(written.bytes, std::string(256, '#'));
        }
    }
}

TEST(DiagnosisCaps, NothingIsWrittenBehindTheText) {
    const auto caps = Cleared<CFG_DIAGNOSIS_CAPS_INFO>();
    const std::string text =
        "{ \"MaxProfiles\" : 0, \"MaxProjects\" : 0, \"MaxSourcesOfTask\" : 0, \"MaxTasks\" : 0 }\n";
    for (const std::size_t behind : {0, 1, 5}) {
        const WrittenBytes written = WriteBytes(kCaps, caps.get(), sizeof *caps, text.size() + behind);
        EXPECT_EQ(written.result, 1);
        EXPECT_EQ(written.bytes, text + std::string(behind, '#'));
    }
    EXPECT_EQ(WriteBytes(kCaps, caps.get(), sizeof *caps, text.size() - 1).bytes, std::string(text.size() - 1, '#'));
}

// ---- "videoDiagnosisServer.getState" ----

constexpr const char* kState = "videoDiagnosisServer.getState";

std::string StateReply(const std::string& state) {
    return R"({ "result" : true, "params" : { "state" : )" + state + " } }";
}

constexpr const char* kStateText =
    R"({ "Enable" : true, "Running" : true, "CurrentProject" : "p1", "CurrentTask" : "t2", "CurrentProfile" : "f3", )"
    R"("SourceCountOfCurrentTask" : 4, "IndexOfCurrentSource" : 5, "CurrentTimeSection" : "1 06:07:08-09:10:11", )"
    R"("TaskCountOfCurrentProject" : 12, "IndexOfCurrentTask" : 13 })";

TEST(DiagnosisState, ReadsAllKeys) {
    const auto state = ParseDocument<CFG_DIAGNOSIS_STATE_INFO>(kState, StateReply(kStateText));
    ASSERT_TRUE(state);
    EXPECT_EQ(state.length, sizeof(CFG_DIAGNOSIS_STATE_INFO));
    EXPECT_EQ(state->bEnable, 1);
    EXPECT_EQ(state->bRunning, 1);
    EXPECT_STREQ(state->szCurrentProject, "p1");
    EXPECT_STREQ(state->szCurrentTask, "t2");
    EXPECT_STREQ(state->szCurrentProfile, "f3");
    EXPECT_EQ(state->nSourceCountOfCurrentTask, 4);
    EXPECT_EQ(state->nIndexOfCurrentSource, 5);
    EXPECT_EQ(state->stuCurrentTimeSection.dwMask, 1);
    EXPECT_EQ(state->stuCurrentTimeSection.nBeginHour, 6);
    EXPECT_EQ(state->stuCurrentTimeSection.nBeginMin, 7);
    EXPECT_EQ(state->stuCurrentTimeSection.nBeginSec, 8);
    EXPECT_EQ(state->stuCurrentTimeSection.nEndHour, 9);
    EXPECT_EQ(state->stuCurrentTimeSection.nEndMin, 10);
    EXPECT_EQ(state->stuCurrentTimeSection.nEndSec, 11);
    EXPECT_EQ(state->nTaskCountOfCurrentProject, 12);
    EXPECT_EQ(state->nIndexOfCurrentTask, 13);
    char text[64];
    EXPECT_EQ(CLIENT_PacketData(kState, &*state, sizeof *state, text, sizeof text), 0);
}

TEST(DiagnosisState, AListFillsAsManyAsTheBufferHolds) {
    const std::string list = R"([ { "IndexOfCurrentTask" : 1 }, null, { "IndexOfCurrentTask" : 3 } ])";
    for (const std::size_t room : {1, 2, 3, 4}) {
        const Records<CFG_DIAGNOSIS_STATE_INFO> states(room, 0xCD);
        EXPECT_EQ(ParseDocument(kState, StateReply(list), states), (Answer{1, sizeof(CFG_DIAGNOSIS_STATE_INFO)}));
        for (std::size_t i = 0; i < room; ++i)
            EXPECT_EQ(states[i].nIndexOfCurrentTask, i == 0 ? 1 : i == 2 ? 3 : 0) << room << i;
    }
}

TEST(DiagnosisState, AnObjectFillsTheFirstAlone) {
    const Records<CFG_DIAGNOSIS_STATE_INFO> states(2, 0xCD);
    EXPECT_EQ(ParseDocument(kState, StateReply(kStateText), states), (Answer{1, sizeof(CFG_DIAGNOSIS_STATE_INFO)}));
    EXPECT_EQ(states[0].nIndexOfCurrentTask, 13);
    EXPECT_EQ(states[1].nIndexOfCurrentTask, 0);
}

TEST(DiagnosisState, FailsBelowOneRecordWithoutAStateAndWhenRefused) {
    CFG_DIAGNOSIS_STATE_INFO state;
    std::uint32_t length = kNoLength;
    EXPECT_EQ(CLIENT_ParseData(kState, StateReply(kStateText).c_str(), &state, sizeof state - 1, &length), 0);
    for (const char* document :
         {R"({ "result" : true, "params" : {} })", R"({ "result" : true, "params" : { "state" : 5 } })",
          R"({ "result" : true, "params" : { "state" : [] } })", R"({ "result" : false, "params" : { "state" : {} } })",
          R"({ "params" : { "state" : {} } })"})
        EXPECT_EQ(CLIENT_ParseData(kState, document, &state, sizeof state, &length), 0) << document;
    EXPECT_EQ(length, kNoLength);
}

// ---- "videoDiagnosisServer.factory.getCollect" ----

TEST(DiagnosisCollect, IsTheResultOrTheChannels) {
    struct Case {
        const char* document;
        int count;
    };
    for (const Case& one : {Case{R"({ "result" : 5 })", 5}, Case{R"({ "result" : 0 })", 0},
                            Case{R"({ "result" : -1, "params" : {} })", -1},
                            Case{R"({ "result" : 5, "params" : { "channels" : 7 } })", 7},
                            Case{R"({ "result" : true, "params" : { "channels" : 7 } })", 7},
                            Case{R"({ "result" : true })", 0}, Case{R"({ "result" : false })", 0}, Case{"{}", 0},
                            Case{R"({ "result" : 5, "params" : { "channels" : null } })", 5}}) {
        const auto count =
            ParseDocument<CFG_ANALYSECHANNELS_INFO>("videoDiagnosisServer.factory.getCollect", one.document);
        ASSERT_TRUE(count) << one.document;
        EXPECT_EQ(count->nChannels, one.count) << one.document;
        EXPECT_EQ(count.length, 4u);
    }
}

TEST(DiagnosisCollect, TheRecordHasExactlyItsSize) {
    std::int32_t counts[2] = {9, 9};
    for (const std::uint32_t size : {3U, 5U, 8U})
        EXPECT_EQ(
            CLIENT_ParseData("videoDiagnosisServer.factory.getCollect", R"({ "result" : 5 })", counts, size, nullptr),
            0);
    EXPECT_EQ(counts[0], 9);
}

} // namespace
} // namespace orrery::test
