#include "diagnosis/Lists.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

constexpr const char* kCommand = "VideoDiagnosisTask";

// A task with room for sources, of which the first has room for video inputs.
struct Task {
    explicit Task(std::int32_t room = 3) : sources(static_cast<std::size_t>(room)), inputs(2) {
        task.nSourceMax = room;
        task.pSources = sources.data();
        for (CFG_DIAGNOSIS_SOURCE& source : sources)
            source.stuStartTime.dwSize = sizeof(NET_TIME_V2);
        sources[0].stuDeviceInfo.pVideoInputs = inputs.data();
        sources[0].stuDeviceInfo.nVideoInputMax = 2;
    }
    CFG_DIAGNOSIS_TASK_LIST List() { return {1, 99, &task}; }
    // Written as the only task, without its name's object.
    std::string Text() {
        std::strcpy(task.szName, "t");
        const CFG_DIAGNOSIS_TASK_LIST list{1, 1, &task};
        const std::string text = TextOf(kCommand, list);
        return text.starts_with("{ \"t\" : ") ? text.substr(8, text.size() - 10) : text;
    }
    Answer Read(const std::string& body) {
        CFG_DIAGNOSIS_TASK_LIST list = List();
        return ReadList(kCommand, ReplyWith("{ \"t\" : " + body + " }"), list);
    }

    std::vector<CFG_DIAGNOSIS_SOURCE> sources;
    std::vector<CFG_DIAGNOSIS_VIDEOINPUT> inputs;
    CFG_DIAGNOSIS_TASK task{};
};

const std::string kBody =
    R"({ "Profile" : "Day", "Sources" : [ { "Device" : "camera1", "DeviceInfo" : { "Address" : "10.0.0.2", )"
    R"("Password" : "pw3", "Port" : 37777, "ProtocolType" : "private4", "UserName" : "user5", "VideoInputs" : [ )"
    R"({ "ControlID" : "c6", "Enable" : true, "ExtraStreamUrl" : "e7", "MainStreamUrl" : "m8", "Name" : "n9", )"
    R"("ServiceType" : "MCAST" }, { "ControlID" : "c10", "Enable" : false, "ExtraStreamUrl" : "e11", )"
    R"("MainStreamUrl" : "m12", "Name" : "n13", "ServiceType" : "AUTO" } ] }, "Duration" : 14, )"
    R"("StartTime" : "2026-11-20 09:30:15", "VideoChannel" : 16, "VideoStream" : "Extra3" }, )"
    R"({ "Device" : "camera17", "Duration" : 18, "VideoChannel" : 19, "VideoStream" : "Object" } ] })";

void ExpectBody(const Task& task) {
    EXPECT_STREQ(task.task.szProfile, "Day");
    EXPECT_EQ(task.task.nSourceMax, 3);
    EXPECT_EQ(task.task.nSourceReturned, 2);
    const CFG_DIAGNOSIS_SOURCE& source = task.sources[0];
    EXPECT_EQ(source.nDeviceKind, 1);
    EXPECT_EQ(source.nDeviceInfoKind, 1);
    EXPECT_STREQ(source.szDevice, "camera1");
    EXPECT_STREQ(source.stuDeviceInfo.szAddress, "10.0.0.2");
    EXPECT_STREQ(source.stuDeviceInfo.szPassword, "pw3");
    EXPECT_EQ(source.stuDeviceInfo.nPort, 37777);
    EXPECT_STREQ(source.stuDeviceInfo.szProtocolType, "private4");
    EXPECT_STREQ(source.stuDeviceInfo.szUserName, "user5");
    EXPECT_EQ(source.stuDeviceInfo.nVideoInputNum, 2);
    EXPECT_STREQ(task.inputs[0].szControlID, "c6");
    EXPECT_EQ(task.inputs[0].bEnable, 1);
    EXPECT_STREQ(task.inputs[0].szExtraStreamUrl, "e7");
    EXPECT_STREQ(task.inputs[0].szMainStreamUrl, "m8");
    EXPECT_STREQ(task.inputs[0].szName, "n9");
    EXPECT_EQ(task.inputs[0].nServiceType, CFG_REMOTE_SERVICE_MCAST);
    EXPECT_STREQ(task.inputs[1].szName, "n13");
    EXPECT_EQ(task.inputs[1].nServiceType, CFG_REMOTE_SERVICE_AUTO);
    EXPECT_EQ(source.nDuration, 14);
    EXPECT_EQ(source.bStartTime, 1);
    EXPECT_EQ(source.stuStartTime.stuTime.dwYear, 2026);
    EXPECT_EQ(source.stuStartTime.stuTime.dwMonth, 11);
    EXPECT_EQ(source.stuStartTime.stuTime.dwDay, 20);
    EXPECT_EQ(source.stuStartTime.stuTime.dwHour, 9);
    EXPECT_EQ(source.stuStartTime.stuTime.dwMinute, 30);
    EXPECT_EQ(source.stuStartTime.stuTime.dwSecond, 15);
    EXPECT_EQ(source.nVideoChannel, 16);
    EXPECT_EQ(source.nVideoStream, CFG_DIAGNOSIS_STREAM_EXTRA3);
    EXPECT_EQ(task.sources[1].nDeviceKind, 1);
    EXPECT_EQ(task.sources[1].nDeviceInfoKind, 0);
    EXPECT_EQ(task.sources[1].bStartTime, 0);
    EXPECT_EQ(task.sources[1].nVideoChannel, 19);
    EXPECT_EQ(task.sources[1].nVideoStream, CFG_DIAGNOSIS_STREAM_OBJECT);
    EXPECT_EQ(task.sources[2].nDuration, 0);
}

// ---- "VideoDiagnosisTask" ----

TEST(DiagnosisTask, ReadsAndWritesAllKeys) {
    Task task;
    CFG_DIAGNOSIS_TASK_LIST list = task.List();
    const std::string table = "{ \"Night\" : " + kBody + " }";
    ASSERT_EQ(ReadList(kCommand, ReplyWith(table), list), kListRead);
    EXPECT_EQ(list.nReturned, 1);
    EXPECT_STREQ(task.task.szName, "Night");
    ExpectBody(task);
    EXPECT_EQ(TextOf(kCommand, list), table);
}

TEST(DiagnosisTask, NeedsRoomForTheSourcesOfTheFirstEntry) {
    for (const bool hasArray : {false, true}) {
        for (const std::int32_t room : {1, 0, -1}) {
            for (const char* command : {kCommand, "VideoDiagnosisTask.x"}) {
                Task task;
                task.task.nSourceMax = room;
                if (!hasArray) task.task.pSources = nullptr;
                CFG_DIAGNOSIS_TASK_LIST list = task.List();
                const bool passes = hasArray && room > 0;
                EXPECT_EQ(ReadList(command, ReplyWith("{}"), list), passes ? kListRead : kRefused) << command;
            }
        }
    }
}

TEST(DiagnosisTask, MoreThanRoomFailsAndANullMemberIsATaskWithoutKeys) {
    const std::string table = R"({ "a" : null, "b" : { "Profile" : "p" } })";
    for (const std::int32_t room : {1, 2}) {
        Task first, second;
        first.task.nSourceReturned = 7;
        CFG_DIAGNOSIS_TASK tasks[2] = {first.task, second.task};
        CFG_DIAGNOSIS_TASK_LIST list{room, 99, tasks};
        EXPECT_EQ(ReadList(kCommand, ReplyWith(table), list), room == 2 ? kListRead : kRefused);
        EXPECT_EQ(list.nReturned, room == 2 ? 2 : 99);
        EXPECT_STREQ(tasks[0].szName, room == 2 ? "a" : "");
        EXPECT_EQ(tasks[0].nSourceReturned, room == 2 ? 0 : 7);
        EXPECT_STREQ(tasks[1].szProfile, room == 2 ? "p" : "");
    }
}

TEST(DiagnosisTask, SourcesAreCountedUpToTheRoom) {
    struct Case {
        const char* sources;
        int ofThree;
    };
    for (const Case& one : {Case{R"([ { "Duration" : 1 }, null ])", 2}, Case{"[ {}, {}, {} ]", 3},
                            Case{R"([ {}, {}, {}, { "Duration" : 1 } ])", 3}, Case{"[]", 0}, Case{"null", 0},
                            Case{"5", 0}, Case{R"({ "a" : 1, "b" : 2 })", 2}}) {
        Task task;
        task.task.nSourceReturned = 99;
        ASSERT_EQ(task.Read(std::string(R"({ "Sources" : )") + one.sources + " }"), kListRead);
        EXPECT_EQ(task.task.nSourceReturned, one.ofThree) << one.sources;
        // The count is told also where a later entry has no array.
        CFG_DIAGNOSIS_TASK tasks[2] = {task.task, {}};
        tasks[1].nSourceMax = 3;
        CFG_DIAGNOSIS_TASK_LIST list{2, 0, tasks};
        ASSERT_EQ(ReadList(kCommand,
                           ReplyWith(std::string(R"({ "a" : {}, "b" : { "Sources" : )") + one.sources + " } }"), list),
                  kListRead);
        EXPECT_EQ(tasks[1].nSourceReturned, one.ofThree) << one.sources;
        // Which writes nothing.
        EXPECT_EQ(TextOf(kCommand, list), R"({ "a" : { "Profile" : "" }, "b" : { "Profile" : "" } })");
    }
    CFG_DIAGNOSIS_TASK bare[2] = {Task().task, {}};
    Task first;
    bare[0] = first.task;
    bare[1].nSourceMax = -1;
    CFG_DIAGNOSIS_TASK_LIST list{2, 0, bare};
    ASSERT_EQ(ReadList(kCommand, ReplyWith(R"({ "a" : {}, "b" : { "Sources" : [ {} ] } })"), list), kListRead);
    EXPECT_EQ(bare[1].nSourceReturned, 0);
}

TEST(DiagnosisTask, ASourceOfNoDeviceTakesNoPlace) {
    Task task;
    task.task.nSourceReturned = 3;
    const auto set = [&](std::size_t i, int kind, const char* device, int infoKind, const char* address) {
        CFG_DIAGNOSIS_SOURCE& source = task.sources[i];
        source.nDeviceKind = static_cast<std::uint8_t>(kind);
        source.nDeviceInfoKind = static_cast<std::uint8_t>(infoKind);
        std::strcpy(source.szDevice, device);
        std::strcpy(source.stuDeviceInfo.szAddress, address);
        source.nDuration = static_cast<std::int32_t>(i);
    };
    const auto durations = [&] {
        const std::string text = task.Text();
        std::string found;
        for (std::size_t at = text.find("\"Duration\" : "); at != std::string::npos;
             at = text.find("\"Duration\" : ", at + 1))
            found += text[at + 13];
        return found;
    };
    set(0, 1, "", 0, "");
    set(1, 1, "d", 0, "");
    set(2, 0, "", 1, "a");
    EXPECT_EQ(durations(), "12");
    set(0, 1, "d", 1, "");
    EXPECT_EQ(durations(), "12");
    set(0, 1, "", 1, "a");
    EXPECT_EQ(durations(), "12");
    set(0, 0, "d", 0, "a");
    EXPECT_EQ(durations(), "12");
    set(0, 0, "", 1, "");
    EXPECT_EQ(durations(), "12");
    set(0, 255, "d", 255, "a");
    EXPECT_EQ(durations(), "012");
    set(1, 0, "", 0, "");
    EXPECT_EQ(durations(), "02");
    set(0, 0, "", 0, "");
    set(2, 0, "", 0, "");
    EXPECT_EQ(task.Text(), R"({ "Profile" : "" })");
}

TEST(DiagnosisTask, FlagsOfADeviceSayWhichOfThemIsWritten) {
    Task task(1);
    task.task.nSourceReturned = 1;
    std::strcpy(task.sources[0].szDevice, "d");
    std::strcpy(task.sources[0].stuDeviceInfo.szAddress, "a");
    const std::string rest = R"("Duration" : 0, "VideoChannel" : 0, "VideoStream" : "" } ] })";
    const std::string info = R"("DeviceInfo" : { "Address" : "a", "Password" : "", "Port" : 0, "ProtocolType" : "", )"
                             R"("UserName" : "" }, )";
    task.sources[0].nDeviceKind = 1;
    EXPECT_EQ(task.Text(), R"({ "Profile" : "", "Sources" : [ { "Device" : "d", )" + rest);
    task.sources[0].nDeviceInfoKind = 1;
    EXPECT_EQ(task.Text(), R"({ "Profile" : "", "Sources" : [ { "Device" : "d", )" + info + rest);
    task.sources[0].nDeviceKind = 0;
    EXPECT_EQ(task.Text(), R"({ "Profile" : "", "Sources" : [ { )" + info + rest);
}

TEST(DiagnosisTask, FlagsAreSetByTheirKeysAndOtherwiseKept) {
    for (const char* source : {"{}", R"({ "Device" : null, "DeviceInfo" : null, "StartTime" : null })"}) {
        Task task(1);
        task.sources[0].nDeviceKind = 7;
        task.sources[0].bStartTime = 7;
        std::strcpy(task.sources[0].szDevice, "old");
        std::strcpy(task.task.szProfile, "old");
        ASSERT_EQ(task.Read(std::string(R"({ "Sources" : [ )") + source + " ] }"), kListRead);
        EXPECT_EQ(task.sources[0].nDeviceKind, 7);
        EXPECT_EQ(task.sources[0].nDeviceInfoKind, 0);
        EXPECT_EQ(task.sources[0].bStartTime, 7);
        EXPECT_STREQ(task.sources[0].szDevice, "old");
        EXPECT_STREQ(task.task.szProfile, "old");
    }
    Task task(1);
    ASSERT_EQ(task.Read(R"({ "Sources" : [ { "Device" : 5, "DeviceInfo" : 5, "StartTime" : 5 } ] })"), kListRead);
    EXPECT_EQ(task.sources[0].nDeviceKind, 1);
    EXPECT_EQ(task.sources[0].nDeviceInfoKind, 1);
    EXPECT_EQ(task.sources[0].bStartTime, 1);
    EXPECT_STREQ(task.sources[0].szDevice, "");
}

TEST(DiagnosisTask, AStartTimeIsReadAtItsOwnSizeAndWrittenAtExactlyOne) {
    for (const std::uint32_t size : {0U, 27U, 28U, 29U}) {
        Task task(1);
        task.sources[0].stuStartTime.dwSize = size;
        ASSERT_EQ(task.Read(R"({ "Sources" : [ { "Device" : "d", "StartTime" : "2026-11-20 09:30:15" } ] })"),
                  kListRead);
        EXPECT_EQ(task.sources[0].bStartTime, 1);
        EXPECT_EQ(task.sources[0].stuStartTime.stuTime.dwYear, size == 28 ? 2026 : 0) << size;
        EXPECT_EQ(task.sources[0].stuStartTime.dwSize, size);
        const std::string written = size == 28 ? R"("StartTime" : "2026-11-20 09:30:15")" : R"("StartTime" : null)";
        EXPECT_NE(task.Text().find(written), std::string::npos) << task.Text();
        for (const std::int32_t flag : {0, 2, -1}) {
            task.sources[0].bStartTime = flag;
            EXPECT_EQ(task.Text().find("StartTime"), std::string::npos) << flag;
        }
    }
}

TEST(DiagnosisTask, StreamsByName) {
    const char* const names[] = {"Main", "Extra1", "Extra2", "Extra3", "Snapshot", "Object"};
    const auto read = [](const std::string& text) {
        Task task(1);
        task.sources[0].nVideoStream = 77;
        EXPECT_EQ(task.Read(R"({ "Sources" : [ { "VideoStream" : )" + text + " } ] }"), kListRead);
        return task.sources[0].nVideoStream;
    };
    const auto written = [](std::int32_t code) {
        Task task(1);
        task.task.nSourceReturned = 1;
        task.sources[0].nDeviceKind = 1;
        task.sources[0].szDevice[0] = 'd';
        task.sources[0].nVideoStream = code;
        const std::string text = task.Text();
        const std::size_t at = text.find("\"VideoStream\" : ") + 16;
        return text.substr(at, text.find(' ', at) - at);
    };
    for (std::int32_t i = 0; i < 6; ++i) {
        EXPECT_EQ(read('"' + std::string(names[i]) + '"'), i + 1);
        EXPECT_EQ(written(i + 1), '"' + std::string(names[i]) + '"');
    }
    EXPECT_EQ(read(R"("mAIN")"), CFG_DIAGNOSIS_STREAM_MAIN);
    for (const char* unknown : {R"("Extra4")", R"("")", R"("Main ")", "2", "[]"})
        EXPECT_EQ(read(unknown), 0) << unknown;
    EXPECT_EQ(read("null"), 77);
    for (const std::int32_t code : {0, 7, -1, INT32_MAX})
        EXPECT_EQ(written(code), R"("")") << code;
}

TEST(DiagnosisTask, ServiceTypesByName) {
    const auto read = [](const std::string& text) {
        Task task(1);
        task.inputs[0].nServiceType = 77;
        EXPECT_EQ(task.Read(R"({ "Sources" : [ { "DeviceInfo" : { "VideoInputs" : [ { "ServiceType" : )" + text
                            + " } ] } } ] }"),
                  kListRead);
        return task.inputs[0].nServiceType;
    };
    const auto written = [](std::int32_t code) {
        Task task(1);
        task.task.nSourceReturned = 1;
        task.sources[0].nDeviceInfoKind = 1;
        task.sources[0].stuDeviceInfo.szAddress[0] = 'a';
        task.sources[0].stuDeviceInfo.nVideoInputNum = 1;
        task.inputs[0].nServiceType = code;
        const std::string text = task.Text();
        const std::size_t at = text.find("\"ServiceType\" : ") + 16;
        return text.substr(at, text.find(' ', at) - at);
    };
    const char* const names[] = {R"("AUTO")", R"("TCP")", R"("UDP")", R"("MCAST")"};
    for (std::int32_t code = -1; code <= 2; ++code) {
        EXPECT_EQ(read(names[code + 1]), code);
        EXPECT_EQ(written(code), names[code + 1]);
    }
    for (const char* unknown : {R"("tcp")", R"("Mcast")", R"("")", "1"})
        EXPECT_EQ(read(unknown), -1) << unknown;
    EXPECT_EQ(read("null"), 77);
    for (const std::int32_t code : {-2, 3, INT32_MAX})
        EXPECT_EQ(written(code), R"("")") << code;
}

TEST(DiagnosisTask, VideoInputsAreCountedUpToTheRoom) {
    struct Case {
        const char* inputs;
        int count;
    };
    for (const Case& one : {Case{R"([ { "Name" : "a" } ])", 1}, Case{R"([ {}, {} ])", 2}, Case{"[ {}, {}, {} ]", 2},
                            Case{"[]", 0}, Case{"null", 0}, Case{"5", 99}, Case{R"({ "a" : 1 })", 99}}) {
        for (const bool hasArray : {true, false}) {
            Task task(1);
            task.sources[0].stuDeviceInfo.nVideoInputNum = 99;
            if (!hasArray) task.sources[0].stuDeviceInfo.pVideoInputs = nullptr;
            ASSERT_EQ(task.Read(std::string(R"({ "Sources" : [ { "DeviceInfo" : { "VideoInputs" : )") + one.inputs
                                + " } } ] }"),
                      kListRead);
            EXPECT_EQ(task.sources[0].stuDeviceInfo.nVideoInputNum, one.count) << one.inputs << hasArray;
        }
    }
}

// How often a key is written.
std::size_t Times(const std::string& text, const std::string& key) {
    std::size_t times = 0;
    for (std::size_t at = 0; (at = text.find('"' + key + "\" : ", at)) != std::string::npos; ++at)
        ++times;
    return times;
}

TEST(DiagnosisTask, CountsBeyondTheRoomEndThereWhenWritten) {
    struct Case {
        std::int32_t room;
        std::int32_t count;
        std::size_t written;
    };
    for (const Case& one : {Case{2, 9, 2}, Case{2, INT32_MAX, 2}, Case{2, 1, 1}, Case{2, 0, 0}, Case{2, -1, 0},
                            Case{0, 2, 0}, Case{-1, 2, 0}}) {
        Task task;
        for (CFG_DIAGNOSIS_SOURCE& source : task.sources) {
            source.nDeviceKind = 1;
            std::strcpy(source.szDevice, "d");
        }
        task.task.nSourceMax = one.room;
        task.task.nSourceReturned = one.count;
        EXPECT_EQ(Times(task.Text(), "Duration"), one.written) << one.room << ' ' << one.count;

        task.task.nSourceMax = 3;
        task.task.nSourceReturned = 1;
        CFG_DIAGNOSIS_DEVICE& device = task.sources[0].stuDeviceInfo;
        task.sources[0].nDeviceInfoKind = 1;
        std::strcpy(device.szAddress, "a");
        device.nVideoInputMax = one.room;
        device.nVideoInputNum = one.count;
        EXPECT_EQ(Times(task.Text(), "ControlID"), one.written) << one.room << ' ' << one.count;
        device.pVideoInputs = nullptr;
        EXPECT_EQ(Times(task.Text(), "ControlID"), 0u) << one.room << ' ' << one.count;
    }
}

TEST(DiagnosisTask, TextsAreCutAtTheirCapacity) {
    const std::string x(300, 'x');
    const auto quoted = [&](const char* key) { return '"' + std::string(key) + "\" : \"" + x + '"'; };
    Task task(1);
    ASSERT_EQ(task.Read("{ " + quoted("Profile") + R"(, "Sources" : [ { )" + quoted("Device") + R"(, "DeviceInfo" : { )"
                        + quoted("Address") + ", " + quoted("UserName") + ", " + quoted("Password") + ", "
                        + quoted("ProtocolType") + R"(, "VideoInputs" : [ { )" + quoted("Name") + ", "
                        + quoted("ControlID") + ", " + quoted("MainStreamUrl") + ", " + quoted("ExtraStreamUrl")
                        + " } ] } } ] }"),
              kListRead);
    CFG_DIAGNOSIS_DEVICE& device = task.sources[0].stuDeviceInfo;
    for (const char* text :
         {task.task.szProfile, task.sources[0].szDevice, device.szAddress, device.szUserName, device.szPassword,
          device.szProtocolType, task.inputs[0].szMainStreamUrl, task.inputs[0].szExtraStreamUrl})
        EXPECT_EQ(std::string(text), x.substr(0, 259));
    EXPECT_EQ(std::string(task.inputs[0].szName), x.substr(0, 63));
    EXPECT_EQ(std::string(task.inputs[0].szControlID), x.substr(0, 127));
}

TEST(DiagnosisTask, WithoutANameIsNotWritten) {
    Task one, two;
    CFG_DIAGNOSIS_TASK tasks[2] = {one.task, two.task};
    std::strcpy(tasks[1].szName, "t");
    CFG_DIAGNOSIS_TASK_LIST list{2, 2, tasks};
    EXPECT_EQ(TextOf(kCommand, list), R"({ "t" : { "Profile" : "" } })");
    list.nReturned = 1;
    EXPECT_EQ(TextOf(kCommand, list), "null");
}

TEST(DiagnosisTask, OfEqualNamesTheLastIsWritten) {
    CFG_DIAGNOSIS_TASK tasks[2] = {};
    for (CFG_DIAGNOSIS_TASK& task : tasks)
        std::strcpy(task.szName, "t");
    std::strcpy(tasks[1].szProfile, "last");
    const CFG_DIAGNOSIS_TASK_LIST list{2, 2, tasks};
    EXPECT_EQ(TextOf(kCommand, list), R"({ "t" : { "Profile" : "last" } })");
}

// ---- "VideoDiagnosisTask.x" ----

constexpr const char* kOne = "VideoDiagnosisTask.x";

TEST(DiagnosisOneTask, ReadsTheTableAsTheTaskAndWritesItBare) {
    Task task;
    CFG_DIAGNOSIS_TASK_LIST list{1, 99, &task.task};
    ASSERT_EQ(
        ReadList(kOne, ReplyWith(kBody, R"("result" : true, )", R"("name" : "VideoDiagnosisTask.Night", )"), list),
        kListRead);
    EXPECT_EQ(list.nReturned, 1);
    EXPECT_STREQ(task.task.szName, "Night");
    ExpectBody(task);
    EXPECT_EQ(TextOf(kOne, list), kBody);
}

TEST(DiagnosisOneTask, TakesItsNameFromBehindTheLastDot) {
    struct Case {
        const char* name;
        const char* read;
    };
    for (const Case& one :
         {Case{R"("VideoDiagnosisTask.a")", "a"}, Case{R"("a.b.c")", "c"}, Case{R"("a.")", ""}, Case{R"(".a")", "a"},
          Case{R"("a")", "old"}, Case{R"("")", "old"}, Case{"null", "old"}, Case{"1.5", "old"}}) {
        Task task;
        std::strcpy(task.task.szName, "old");
        CFG_DIAGNOSIS_TASK_LIST list = task.List();
        ASSERT_EQ(
            ReadList(kOne, ReplyWith("{}", "\"result\" : true, ", std::string("\"name\" : ") + one.name + ", "), list),
            kListRead);
        EXPECT_STREQ(task.task.szName, one.read) << one.name;
    }
    Task task;
    std::strcpy(task.task.szName, "old");
    CFG_DIAGNOSIS_TASK_LIST list = task.List();
    ASSERT_EQ(ReadList(kOne, ReplyWith("{}"), list), kListRead);
    EXPECT_STREQ(task.task.szName, "old");
    const std::string longName(300, 'x');
    ASSERT_EQ(ReadList(kOne, ReplyWith("{}", "", "\"name\" : \"t." + longName + "\", "), list), kListRead);
    EXPECT_EQ(std::string(task.task.szName), longName.substr(0, 259));
}

TEST(DiagnosisOneTask, ReadsIntoTheFirstOfManyButWritesOneOnly) {
    Task first, second;
    CFG_DIAGNOSIS_TASK tasks[2] = {first.task, second.task};
    std::strcpy(tasks[1].szProfile, "second");
    CFG_DIAGNOSIS_TASK_LIST list{2, 99, tasks};
    ASSERT_EQ(ReadList(kOne, ReplyWith(R"({ "Profile" : "p" })"), list), kListRead);
    EXPECT_EQ(list.nReturned, 1);
    EXPECT_STREQ(tasks[0].szProfile, "p");
    EXPECT_STREQ(tasks[1].szProfile, "second");
    const std::string text = R"({ "Profile" : "p" })";
    EXPECT_EQ(TextOf(kOne, list), kFailed);
    list.nMax = 1;
    for (const std::int32_t returned : {1, 0, -1, 9}) {
        list.nReturned = returned;
        EXPECT_EQ(TextOf(kOne, list), text) << returned;
    }
    std::strcpy(tasks[0].szName, "");
    EXPECT_EQ(TextOf(kOne, list), text);
}

TEST(DiagnosisOneTask, AFalseResultFailsOnceAllHasBeenRead) {
    Task task;
    CFG_DIAGNOSIS_TASK_LIST list = task.List();
    EXPECT_EQ(ReadList(kOne, ReplyWith(R"({ "Profile" : "p" })", R"("result" : false, )"), list), kRefused);
    EXPECT_STREQ(task.task.szProfile, "p");
    EXPECT_EQ(list.nReturned, 1);
    EXPECT_EQ(ReadList(kOne, R"({ "params" : { "name" : "a.b" } })", list), kRefused);
    EXPECT_STREQ(task.task.szName, "");
}

// ---- "VideoDiagnosisRealProject" ----

TEST(DiagnosisRealProject, WritesAllEntriesOfTheRoom) {
    Task task;
    ASSERT_EQ(task.Read(kBody), kListRead);
    CFG_DIAGNOSIS_REALPROJECT projects[3] = {};
    std::strcpy(projects[0].szProject, "p1");
    projects[0].stuTask = task.task;
    std::strcpy(projects[1].szProject, "p2");
    CFG_DIAGNOSIS_REALPROJECT_LIST list{1, 0, projects};
    const std::string first = R"({ "Project" : "p1", "Task" : )" + kBody + " }";
    for (const std::int32_t returned : {0, -1, 3}) {
        list.nReturned = returned;
        EXPECT_EQ(TextOf("VideoDiagnosisRealProject", list), "[ " + first + " ]");
    }
    list.nMax = 2;
    EXPECT_EQ(TextOf("VideoDiagnosisRealProject", list),
              "[ " + first + R"(, { "Project" : "p2", "Task" : { "Profile" : "" } } ])");
    std::uint32_t length = kNoLength;
    EXPECT_EQ(CLIENT_ParseData("VideoDiagnosisRealProject", ReplyWith("[]").c_str(), &list, sizeof list, &length), 0);
    EXPECT_EQ(length, kNoLength);
}

} // namespace
} // namespace orrery::test
