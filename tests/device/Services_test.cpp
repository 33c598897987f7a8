#include "device/Services.h"

#include "device/ListText.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// A reply with one member of "params".
std::string Reply(const std::string& member, const std::string& value, const char* result = "true") {
    return R"({ "result" : )" + std::string(result) + R"(, "params" : { )" + Quoted(member) + " : " + value + " } }";
}

// ---- system.listService ----

Parsed<CFG_SERVICE_LIST_INFO> ParseServices(const std::string& value, const char* result = "true") {
    return ParseDocument<CFG_SERVICE_LIST_INFO>("system.listService", Reply("service", value, result));
}

TEST(ListService, ReadsNames) {
    const auto parsed = ParseServices(R"([ "alarm", "encode", "log" ])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_SERVICE_LIST_INFO));
    ASSERT_EQ(parsed->nServiceNum, 3);
    EXPECT_STREQ(parsed->szServices[0], "alarm");
    EXPECT_STREQ(parsed->szServices[1], "encode");
    EXPECT_STREQ(parsed->szServices[2], "log");
    EXPECT_STREQ(parsed->szServices[3], "");
    EXPECT_EQ(Pack("system.listService", *parsed), kNotBegun); // a reply only
}

TEST(ListService, KeepsAHundredAndTwentyEight) {
    const auto parsed = ParseServices(ListText(200, [](int i) { return Quoted("s" + std::to_string(i)); }));
    EXPECT_EQ(parsed->nServiceNum, 128);
    EXPECT_STREQ(parsed->szServices[127], "s127");
}

TEST(ListService, ANullLeavesItsEntryEmptyAndIsNotCounted) {
    const auto parsed = ParseServices(R"([ "a", null, "c", 5, "e" ])");
    EXPECT_EQ(parsed->nServiceNum, 4);
    EXPECT_STREQ(parsed->szServices[0], "a");
    EXPECT_STREQ(parsed->szServices[1], "");
    EXPECT_STREQ(parsed->szServices[2], "c");
    EXPECT_STREQ(parsed->szServices[3], "");
    EXPECT_STREQ(parsed->szServices[4], "e");
    // Nulls take entries of those that there is room for.
    const auto full = ParseServices(ListText(129, [](int i) { return i == 0 ? "null" : Quoted("s"); }));
    EXPECT_EQ(full->nServiceNum, 127);
}

TEST(ListService, NamesAreCutAtTheirCapacity) {
    EXPECT_EQ(std::string(ParseServices("[ " + Quoted(std::string(127, 's')) + " ]")->szServices[0]),
              std::string(127, 's'));
    EXPECT_EQ(std::string(ParseServices("[ " + Quoted(std::string(128, 's')) + " ]")->szServices[0]),
              std::string(127, 's'));
}

TEST(ListService, WithoutAListThereAreNone) {
    for (const char* value : {"null", "{ }", R"({ "a" : "b" })", "\"alarm\"", "5", "[ ]"}) {
        const auto parsed = ParseServices(value);
        ASSERT_TRUE(parsed) << value;
        EXPECT_EQ(parsed.length, sizeof(CFG_SERVICE_LIST_INFO)) << value;
        EXPECT_TRUE(parsed.isCleared()) << value;
    }
    EXPECT_TRUE((ParseDocument<CFG_SERVICE_LIST_INFO>("system.listService", R"({ "result" : true })")));
    const auto refused = ParseServices(R"([ "alarm" ])", "false");
    EXPECT_FALSE(refused);
    EXPECT_EQ(refused.length, kNoLength);
    EXPECT_TRUE(refused.isCleared());
}

// ---- netApp.getCaps ----

Parsed<CFG_NET_APP_CAPS> ParseNet(const std::string& caps, const char* result = "true") {
    return ParseDocument<CFG_NET_APP_CAPS>("netApp.getCaps", Reply("caps", caps, result));
}

TEST(NetAppCaps, ReadsCardsAndTypes) {
    const auto parsed =
        ParseNet(R"({ "NetAccessPriority" : { "NetCardCount" : 3, "NetTypes" : [ "Wired", "3G", "Wireless" ] } })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_NET_APP_CAPS));
    EXPECT_EQ(parsed->nNetCardCount, 3);
    ASSERT_EQ(parsed->nNetTypeNum, 3);
    EXPECT_STREQ(parsed->szNetTypes[0], "Wired");
    EXPECT_STREQ(parsed->szNetTypes[1], "3G");
    EXPECT_STREQ(parsed->szNetTypes[2], "Wireless");
    EXPECT_EQ(Pack("netApp.getCaps", *parsed), kNotBegun);
}

TEST(NetAppCaps, NullsCloseUp) {
    const auto parsed = ParseNet(R"({ "NetAccessPriority" : { "NetTypes" : [ null, "a", null, "b" ] } })");
    ASSERT_EQ(parsed->nNetTypeNum, 2);
    EXPECT_STREQ(parsed->szNetTypes[0], "a");
    EXPECT_STREQ(parsed->szNetTypes[1], "b");
    EXPECT_STREQ(parsed->szNetTypes[2], "");
}

TEST(NetAppCaps, KeepsEightTypes) {
    const std::string types = ListText(10, [](int i) { return i == 2 ? "null" : Quoted("t" + std::to_string(i)); });
    const auto parsed = ParseNet(R"({ "NetAccessPriority" : { "NetTypes" : )" + types + " } }");
    EXPECT_EQ(parsed->nNetTypeNum, 8);
    EXPECT_STREQ(parsed->szNetTypes[7], "t8"); // a null in front takes no room
    const auto cut = ParseNet(R"({ "NetAccessPriority" : { "NetTypes" : [ )" + Quoted(std::string(70, 'x')) + " ] } }");
    EXPECT_EQ(std::string(cut->szNetTypes[0]), std::string(63, 'x'));
}

TEST(NetAppCaps, MissingCapsSucceedWithNoLength) {
    for (const char* document : {R"({ "result" : true, "params" : { "caps" : null } })",
                                 R"({ "result" : true, "params" : { } })", R"({ "result" : true })"}) {
        const auto parsed = ParseDocument<CFG_NET_APP_CAPS>("netApp.getCaps", document);
        ASSERT_TRUE(parsed) << document;
        EXPECT_EQ(parsed.length, 0u) << document;
        EXPECT_TRUE(parsed.isCleared()) << document;
    }
    const auto empty = ParseNet("{ }"); // caps that say nothing
    ASSERT_TRUE(empty);
    EXPECT_EQ(empty.length, sizeof(CFG_NET_APP_CAPS));
    EXPECT_TRUE(empty.isCleared());
}

TEST(NetAppCaps, ARefusedCallSetsTheLengthToZero) {
    for (const char* result : {"false", "null", "0", "\"\""}) {
        const auto parsed = ParseNet(R"({ "NetAccessPriority" : { "NetCardCount" : 3 } })", result);
        EXPECT_FALSE(parsed) << result;
        EXPECT_EQ(parsed.length, 0u) << result;
        EXPECT_TRUE(parsed.isCleared()) << result;
    }
    const auto parsed = ParseDocument<CFG_NET_APP_CAPS>("netApp.getCaps", "{");
    EXPECT_FALSE(parsed);
    EXPECT_EQ(parsed.length, 0u);
    EXPECT_TRUE(parsed.isCleared());
}

// ---- eventManager.getCaps, capsManager.get&EventManagerEventHandler ----

// Every key with whether it is on, in the order of the record.
constexpr const char* kSwitches[] = {"TimeSectionEnable",    "RecordEnable",        "AlarmOutEnable",
                                     "PtzLinkEnable",        "SnapshotEnable",      "MailEnable",
                                     "BeepEnable",           "DejitterEnable",      "TipEnable",
                                     "MonitorTourEnable",    "MMSEnable",           "SupportAlarmBell",
                                     "SupportAlarmServer",   "SupportPtzLinkDelay", "SupportPSTNAlarmServer",
                                     "SupportAccessControl", "VoiceEnable",         "LogEnable"};

TEST(EventManagerCaps, ReadsEverySwitchOnItsOwn) {
    for (std::size_t on = 0; on < std::size(kSwitches); ++on) {
        std::string caps = "{ ";
        for (std::size_t i = 0; i < std::size(kSwitches); ++i)
            caps += (i > 0 ? ", " : "") + Quoted(kSwitches[i]) + (i == on ? " : true" : " : false");
        const std::string document = Reply("caps", caps + " }");
        const auto all = ParseDocument<CFG_EVENT_MANAGER_CAPS>("eventManager.getCaps", document);
        ASSERT_TRUE(all);
        EXPECT_EQ(all.length, sizeof(CFG_EVENT_MANAGER_CAPS));
        std::int32_t values[std::size(kSwitches)];
        std::memcpy(values, all.record.get(), sizeof values); // the switches lie in front
        for (std::size_t i = 0; i < std::size(kSwitches); ++i)
            EXPECT_EQ(values[i], i == on) << kSwitches[i] << " of " << kSwitches[on];
        const auto first =
            ParseDocument<CFG_EVENTHANDLER_CAPS_INFO>("capsManager.get&EventManagerEventHandler", document);
        ASSERT_TRUE(first);
        EXPECT_EQ(first.length, 10 * sizeof(std::int32_t));
        EXPECT_EQ(std::memcmp(first.record.get(), values, sizeof *first.record), 0) << kSwitches[on];
    }
    EXPECT_EQ(offsetof(CFG_EVENT_MANAGER_CAPS, bTimeSectionEnable), 0u);
    EXPECT_EQ(offsetof(CFG_EVENT_MANAGER_CAPS, bMonitorTourEnable), 9 * sizeof(std::int32_t));
    EXPECT_EQ(offsetof(CFG_EVENT_MANAGER_CAPS, bLogEnable), 17 * sizeof(std::int32_t));
}

TEST(EventManagerCaps, ReadsRanges) {
    const auto parsed = ParseDocument<CFG_EVENT_MANAGER_CAPS>(
        "eventManager.getCaps", Reply("caps", R"({ "AlarmOutLatch" : { "Min" : 1, "Max" : 2 },
            "RecordLatch" : { "Min" : 3, "Max" : 4 }, "DejitterRange" : { "Min" : 5, "Max" : 6 } })"));
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->stuAlarmOutLatch.nMin, 1);
    EXPECT_EQ(parsed->stuAlarmOutLatch.nMax, 2);
    EXPECT_EQ(parsed->stuRecordLatch.nMin, 3);
    EXPECT_EQ(parsed->stuRecordLatch.nMax, 4);
    EXPECT_EQ(parsed->stuDejitterRange.nMin, 5);
    EXPECT_EQ(parsed->stuDejitterRange.nMax, 6);
}

TEST(EventManagerCaps, SwitchesConvert) {
    const auto parsed = ParseDocument<CFG_EVENT_MANAGER_CAPS>(
        "eventManager.getCaps",
        Reply("caps", R"({ "MailEnable" : "no", "BeepEnable" : 7, "TipEnable" : "", "LogEnable" : null })"));
    EXPECT_EQ(parsed->bMailEnable, 1); // no empty text
    EXPECT_EQ(parsed->bBeepEnable, 1);
    EXPECT_EQ(parsed->bTipEnable, 0);
    EXPECT_EQ(parsed->bLogEnable, 0);
}

TEST(EventManagerCaps, WithoutCapsADeviceCanDoNothing) {
    for (const char* params : {"{ }", R"({ "caps" : null })", R"({ "caps" : { } })"}) {
        const std::string document = R"({ "result" : true, "params" : )" + std::string(params) + " }";
        const auto all = ParseDocument<CFG_EVENT_MANAGER_CAPS>("eventManager.getCaps", document);
        ASSERT_TRUE(all) << params;
        EXPECT_EQ(all.length, sizeof(CFG_EVENT_MANAGER_CAPS));
        EXPECT_TRUE(all.isCleared());
        const auto first =
            ParseDocument<CFG_EVENTHANDLER_CAPS_INFO>("capsManager.get&EventManagerEventHandler", document);
        ASSERT_TRUE(first) << params;
        EXPECT_EQ(first.length, sizeof(CFG_EVENTHANDLER_CAPS_INFO));
        EXPECT_TRUE(first.isCleared());
        const auto finder = ParseDocument<CFG_RECORD_FINDER_CAPS>("RecordFinder.getCaps", document);
        ASSERT_TRUE(finder) << params;
        EXPECT_EQ(finder.length, sizeof(CFG_RECORD_FINDER_CAPS));
        EXPECT_TRUE(finder.isCleared());
    }
}

TEST(ServiceReplies, RefusedCallsFail) {
    const std::string document =
        R"({ "result" : false, "params" : { "caps" : { "MailEnable" : true }, "type" : "NVR" } })";
    for (const char* command : {"eventManager.getCaps", "capsManager.get&EventManagerEventHandler",
                                "RecordFinder.getCaps", "magicBox.getDeviceClass"}) {
        std::vector<char> buffer(1000, 'x');
        std::uint32_t length = kNoLength;
        EXPECT_EQ(CLIENT_ParseData(command, document.c_str(), buffer.data(), 1000, &length), 0) << command;
        EXPECT_EQ(length, kNoLength) << command;
        EXPECT_EQ(buffer, std::vector<char>(1000)) << command;
        EXPECT_EQ(PackBytes(command, buffer.data(), 1000, 100), kNotBegun) << command;
    }
}

// ---- RecordFinder.getCaps ----

TEST(RecordFinderCaps, ReadsThePageSize) {
    const auto parsed =
        ParseDocument<CFG_RECORD_FINDER_CAPS>("RecordFinder.getCaps", Reply("caps", R"({ "MaxPageSize" : 100 })"));
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_RECORD_FINDER_CAPS));
    EXPECT_EQ(parsed->nMaxPageSize, 100);
}

// ---- magicBox.getDeviceClass ----

std::int32_t ClassOf(const std::string& type) {
    const auto parsed = ParseDocument<CFG_DEVICE_CLASS_INFO>("magicBox.getDeviceClass", Reply("type", type));
    EXPECT_TRUE(parsed) << type;
    EXPECT_EQ(parsed.length, sizeof(CFG_DEVICE_CLASS_INFO)) << type;
    return parsed->emDeviceClass;
}

TEST(DeviceClass, EveryNameHasItsCode) {
    constexpr const char* kNames[] = {"DVR",
                                      "HVR",
                                      "NVR",
                                      "EVS",
                                      "MDVR",
                                      "MNVR",
                                      "PortableDVR",
                                      "NVS",
                                      "DVS",
                                      "IPC",
                                      "IPSpeedDome",
                                      "SpeedDome",
                                      "IPPositioner",
                                      "FisheyeCamera",
                                      "PanoramicCamera",
                                      "ThermalCamera",
                                      "BodyCamera",
                                      "DoorCamera",
                                      "TrafficCamera",
                                      "ParkingCamera",
                                      "ParkingGuide",
                                      "ParkingScreen",
                                      "ParkingBarrier",
                                      "SignalDetector",
                                      "VehicleDetector",
                                      "SpeedRadar",
                                      "AreaRadar",
                                      "VideoDecoder",
                                      "VideoEncoder",
                                      "VideoMatrix",
                                      "VideoWall",
                                      "ControlKeyboard",
                                      "StorageServer",
                                      "StorageCluster",
                                      "AnalysisServer",
                                      "DiagnosisServer",
                                      "ManagementServer",
                                      "AlarmHost",
                                      "AlarmBox",
                                      "AlarmKeyboard",
                                      "AccessController",
                                      "AccessTerminal",
                                      "DoorStation",
                                      "IndoorStation",
                                      "GuardStation",
                                      "SmartGateway"};
    EXPECT_EQ(std::size(kNames), 46u);
    EXPECT_EQ(CFG_DEVICE_CLASS_COUNT, 47);
    for (std::size_t i = 0; i < std::size(kNames); ++i)
        EXPECT_EQ(ClassOf(Quoted(kNames[i])), static_cast<std::int32_t>(i) + 1) << kNames[i];
    EXPECT_EQ(ClassOf(R"("NVR")"), CFG_DEVICE_CLASS_NVR);
    EXPECT_EQ(ClassOf(R"("SmartGateway")"), CFG_DEVICE_CLASS_SMART_GATEWAY);
}

TEST(DeviceClass, CaseIsFolded) {
    EXPECT_EQ(ClassOf(R"("ipc")"), CFG_DEVICE_CLASS_IPC);
    EXPECT_EQ(ClassOf(R"("speedDOME")"), CFG_DEVICE_CLASS_SPEED_DOME);
}

TEST(DeviceClass, EveryOtherTextOrTypeIsUnknown) {
    for (const char* type : {R"("")", R"("IPC ")", R"("Toaster")", "null", "5", "true", "[ ]", "{ }", R"([ "IPC" ])"})
        EXPECT_EQ(ClassOf(type), CFG_DEVICE_CLASS_UNKNOWN) << type;
}

// ---- userManager.getActiveUserInfoAll ----

Parsed<CFG_ACTIVE_USER_INFO_ALL> ParseUsers(const std::string& users, const char* result = "true") {
    return ParseDocument<CFG_ACTIVE_USER_INFO_ALL>("userManager.getActiveUserInfoAll", Reply("users", users, result));
}

TEST(ActiveUsers, ReadsUsers) {
    const auto parsed = ParseUsers(R"([ { "Id" : 7, "Name" : "admin", "Group" : "admins", "GroupLevel" : 2,
        "ClientType" : "Web", "ClientAddress" : "10.0.0.9", "LoginTime" : "2026-11-20 09:31:02" },
        { "Id" : 8, "Name" : null, "LoginTime" : "yesterday" } ])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_ACTIVE_USER_INFO_ALL));
    ASSERT_EQ(parsed->nCount, 2);
    const CFG_ACTIVE_USER& user = parsed->stuUsers[0];
    EXPECT_EQ(user.nId, 7);
    EXPECT_STREQ(user.szName, "admin");
    EXPECT_STREQ(user.szGroup, "admins");
    EXPECT_EQ(user.nGroupLevel, 2);
    EXPECT_STREQ(user.szClientType, "Web");
    EXPECT_STREQ(user.szClientAddress, "10.0.0.9");
    EXPECT_EQ(user.stuLoginTime.dwYear, 2026);
    EXPECT_EQ(user.stuLoginTime.dwMonth, 11);
    EXPECT_EQ(user.stuLoginTime.dwDay, 20);
    EXPECT_EQ(user.stuLoginTime.dwHour, 9);
    EXPECT_EQ(user.stuLoginTime.dwMinute, 31);
    EXPECT_EQ(user.stuLoginTime.dwSecond, 2);
    EXPECT_EQ(parsed->stuUsers[1].nId, 8);
    EXPECT_STREQ(parsed->stuUsers[1].szName, "");
    EXPECT_EQ(parsed->stuUsers[1].stuLoginTime.dwYear, 0);
    EXPECT_EQ(Pack("userManager.getActiveUserInfoAll", *parsed), kNotBegun);
}

TEST(ActiveUsers, KeepsSixtyFour) {
    const auto parsed = ParseUsers(ListText(65, [](int i) { return R"({ "Id" : )" + std::to_string(100 + i) + " }"; }));
    EXPECT_EQ(parsed->nCount, 64);
    EXPECT_EQ(parsed->stuUsers[63].nId, 163);
    const std::string x(300, 'x');
    const auto cut = ParseUsers(R"([ { "Name" : ")" + x + R"(", "Group" : ")" + x + R"(", "ClientType" : ")" + x
                                + R"(", "ClientAddress" : ")" + x + R"(" } ])");
    EXPECT_EQ(std::string(cut->stuUsers[0].szName), x.substr(0, 63));
    EXPECT_EQ(std::string(cut->stuUsers[0].szGroup), x.substr(0, 63));
    EXPECT_EQ(std::string(cut->stuUsers[0].szClientType), x.substr(0, 63));
    EXPECT_EQ(std::string(cut->stuUsers[0].szClientAddress), x.substr(0, 255));
}

TEST(ActiveUsers, TheResultIsNotTested) {
    EXPECT_EQ(ParseUsers(R"([ { } ])", "false")->nCount, 1);
    EXPECT_EQ((ParseDocument<CFG_ACTIVE_USER_INFO_ALL>("userManager.getActiveUserInfoAll",
                                                       R"({ "params" : { "users" : [ { } ] } })")
                   ->nCount),
              1);
}

TEST(ActiveUsers, WithoutAListThereAreNone) {
    for (const char* users : {"null", "{ }", R"({ "Id" : 7 })", "5", "[ ]"}) {
        const auto parsed = ParseUsers(users);
        ASSERT_TRUE(parsed) << users;
        EXPECT_EQ(parsed.length, sizeof(CFG_ACTIVE_USER_INFO_ALL)) << users;
        EXPECT_TRUE(parsed.isCleared()) << users;
    }
    EXPECT_TRUE((ParseDocument<CFG_ACTIVE_USER_INFO_ALL>("userManager.getActiveUserInfoAll", "{ }")));
}

} // namespace
} // namespace orrery::test
