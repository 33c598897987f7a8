#include "access/VideoTalk.h"

#include "access/Refusals.h"
#include "support/Call.h"

#include <gtest/gtest.h>
#include <vector>

namespace orrery::test {
namespace {

// A list of `count` texts "n0", "n1", ...
std::string Numbers(int count) {
    std::string list = "[ ";
    for (int i = 0; i < count; ++i)
        list += (i > 0 ? ", \"n" : "\"n") + std::to_string(i) + '"';
    return list + " ]";
}

// ---- "Building" ----

TEST(Building, ReadsAndWritesAllKeys) {
    const std::string text =
        R"({ "BuildingNumber" : "b1", "BuildingUnitNumber" : "u2", "CreateRoom" : true, "FloorPerRoomNumber" : 3, )"
        R"("IssueNumber" : "i4", "SectionNumber" : "s5", "SectionUnitNumber" : "t6", "SystemType" : 7, )"
        R"("UnitFloorNumber" : 8 })";
    const auto building = Parse<CFG_BUILDING_INFO>("Building", text);
    ASSERT_TRUE(building);
    EXPECT_EQ(building.length, sizeof(CFG_BUILDING_INFO));
    EXPECT_STREQ(building->szIssueNumber, "i4");
    EXPECT_STREQ(building->szSectionNumber, "s5");
    EXPECT_STREQ(building->szBuildingNumber, "b1");
    EXPECT_STREQ(building->szBuildingUnitNumber, "u2");
    EXPECT_STREQ(building->szSectionUnitNumber, "t6");
    EXPECT_EQ(building->nUnitFloorNumber, 8);
    EXPECT_EQ(building->nFloorPerRoomNumber, 3);
    EXPECT_EQ(building->nSystemType, 7);
    EXPECT_EQ(building->bCreateRoom, 1);
    EXPECT_EQ(Pack("Building", *building), text);
    EXPECT_EQ(Pack("Building", *Cleared<CFG_BUILDING_INFO>()),
              R"({ "BuildingNumber" : "", "BuildingUnitNumber" : "", "CreateRoom" : false, "FloorPerRoomNumber" : 0, )"
              R"("IssueNumber" : "", "SectionNumber" : "", "SectionUnitNumber" : "", "SystemType" : 0, )"
              R"("UnitFloorNumber" : 0 })");
}

TEST(Building, TextsAreCutAtTheirCapacity) {
    std::string table = "{ \"SystemType\" : 1";
    for (const char* key :
         {"IssueNumber", "SectionNumber", "BuildingNumber", "BuildingUnitNumber", "SectionUnitNumber"})
        table += ", \"" + std::string(key) + "\" : \"0123456789abcdefX\"";
    const auto building = Parse<CFG_BUILDING_INFO>("Building", table + " }");
    for (const char* text : {building->szIssueNumber, building->szSectionNumber, building->szBuildingNumber,
                             building->szBuildingUnitNumber, building->szSectionUnitNumber})
        EXPECT_STREQ(text, "0123456789abcde");
    EXPECT_EQ(building->nSystemType, 1);
}

// ---- "BuildingExternal" ----

using External = CFG_BUILDING_EXTERNAL_INFO;

TEST(BuildingExternal, ReadsAndWritesAllKeys) {
    const std::string text =
        R"({ "BeginNumber" : [ "101", "201" ], "BuildingPerUintNumber" : "-4", "FloorCount" : "12", )"
        R"("RoomCount" : "2147483647", "TotalBuildingNumber" : "-2147483648" })";
    const auto external = Parse<External>("BuildingExternal", text);
    ASSERT_TRUE(external);
    EXPECT_EQ(external.length, sizeof(External));
    EXPECT_EQ(external->nFloorCount, 12);
    EXPECT_EQ(external->nRoomCount, INT32_MAX);
    EXPECT_EQ(external->nTotalBuildingNumber, INT32_MIN);
    EXPECT_EQ(external->nBuildingPerUintNumber, -4);
    ASSERT_EQ(external->nBeginNumberNum, 2);
    EXPECT_STREQ(external->szBeginNumbers[0], "101");
    EXPECT_STREQ(external->szBeginNumbers[1], "201");
    EXPECT_EQ(Pack("BuildingExternal", *external), text);
    EXPECT_EQ(Pack("BuildingExternal", *Cleared<External>()),
              R"({ "BuildingPerUintNumber" : "0", "FloorCount" : "0", "RoomCount" : "0", )"
              R"("TotalBuildingNumber" : "0" })");
}

TEST(BuildingExternal, NumbersAreTheDigitsAtTheFrontOfATextAlone) {
    const auto read = [](const char* value) {
        return Parse<External>("BuildingExternal", "{ \"RoomCount\" : " + std::string(value) + " }")->nRoomCount;
    };
    EXPECT_EQ(read("\"7\""), 7);
    EXPECT_EQ(read("\"007\""), 7);
    EXPECT_EQ(read("\" \\t+7 rooms\""), 7);
    EXPECT_EQ(read("\"-7.9\""), -7);
    for (const char* value : {"7", "7.5", "true", "null", "[ \"7\" ]", "\"\"", "\"x7\"", "\"- 7\"", "\"--7\""})
        EXPECT_EQ(read(value), 0) << value;
    // What no 32-bit number holds keeps its low bits, as everywhere in texts.
    EXPECT_EQ(read("\"4294967303\""), 7);
}

TEST(BuildingExternal, KeepsSixteenFirstNumbers) {
    auto external = Parse<External>("BuildingExternal", "{ \"BeginNumber\" : " + Numbers(20) + " }");
    EXPECT_EQ(external->nBeginNumberNum, 16);
    EXPECT_STREQ(external->szBeginNumbers[15], "n15");
    const std::string list = "\"BeginNumber\" : " + Numbers(16);
    EXPECT_NE(Pack("BuildingExternal", *external).find(list), std::string::npos);
    external.record->nBeginNumberNum = 17;
    EXPECT_NE(Pack("BuildingExternal", *external).find(list), std::string::npos);
    const auto odd = Parse<External>("BuildingExternal", R"({ "BeginNumber" : [ 101, null, "0123456789abcdefX" ] })");
    ASSERT_EQ(odd->nBeginNumberNum, 3);
    EXPECT_STREQ(odd->szBeginNumbers[0], "");
    EXPECT_STREQ(odd->szBeginNumbers[1], "");
    EXPECT_STREQ(odd->szBeginNumbers[2], "0123456789abcde");
    EXPECT_EQ(Parse<External>("BuildingExternal", R"({ "BeginNumber" : "101" })")->nBeginNumberNum, 0);
}

// ---- "DialRule" ----

TEST(DialRule, ReadsAndWritesAllKeys) {
    const auto text = [](const char* building, const char* extension, const char* separator, const char* unit) {
        return "{ \"BuildingModeEnable\" : " + std::string(building) + ", \"ExtentionModeEnable\" : " + extension
               + ", \"Seperator\" : \"" + separator + "\", \"UnitModeEnable\" : " + unit + " }";
    };
    const auto one = Parse<CFG_DIAL_RULE_INFO>("DialRule", text("true", "false", "#", "false"));
    ASSERT_TRUE(one);
    EXPECT_EQ(one.length, sizeof(CFG_DIAL_RULE_INFO));
    EXPECT_EQ(one->bBuildingModeEnable, 1);
    EXPECT_EQ(one->bUnitModeEnable, 0);
    EXPECT_EQ(one->bExtentionModeEnable, 0);
    EXPECT_EQ(one->cSeparator[0], '#');
    EXPECT_EQ(Pack("DialRule", *one), text("true", "false", "#", "false"));
    const auto two = Parse<CFG_DIAL_RULE_INFO>("DialRule", text("false", "false", "\\/", "true"));
    EXPECT_EQ(two->bUnitModeEnable, 1);
    EXPECT_EQ(two->cSeparator[0], '/');
    EXPECT_EQ(Pack("DialRule", *two), text("false", "false", "\\/", "true"));
    const auto three = Parse<CFG_DIAL_RULE_INFO>("DialRule", text("false", "true", "-", "false"));
    EXPECT_EQ(three->bExtentionModeEnable, 1);
    EXPECT_EQ(Pack("DialRule", *three), text("false", "true", "-", "false"));
    EXPECT_EQ(Pack("DialRule", *Cleared<CFG_DIAL_RULE_INFO>()), text("false", "false", "", "false"));
}

TEST(DialRule, TheSeparatorIsTheFirstByteOfAText) {
    const auto read = [](const char* value) {
        return Parse<CFG_DIAL_RULE_INFO>("DialRule", "{ \"Seperator\" : " + std::string(value) + " }")->cSeparator[0];
    };
    EXPECT_EQ(read("\"*#\""), '*');
    EXPECT_EQ(read("\"\xc2\xb7\""), '\xc2');
    for (const char* value : {"\"\"", "5", "true", "null", "[ \"#\" ]"})
        EXPECT_EQ(read(value), '\0') << value;
}

// ---- "VTNoAnswerForward" ----

using Forward = CFG_VT_NO_ANSWER_FORWARD_INFO;

TEST(NoAnswerForward, ReadsAndWritesAllKeys) {
    const std::string text =
        R"({ "Enable" : true, "Groups" : [ { "ForwardNumbers" : [ "f1", "f2" ], "RoomNumber" : "r1" }, )"
        R"({ "ForwardNumbers" : [ "f3" ], "RoomNumber" : "r2" }, { "RoomNumber" : "r3" } ] })";
    const auto forward = Parse<Forward>("VTNoAnswerForward", text);
    ASSERT_TRUE(forward);
    EXPECT_EQ(forward.length, sizeof(Forward));
    EXPECT_EQ(forward->bEnable, 1);
    ASSERT_EQ(forward->nGroupNum, 3);
    EXPECT_STREQ(forward->stuGroups[0].szRoomNumber, "r1");
    ASSERT_EQ(forward->stuGroups[0].nForwardNumberNum, 2);
    EXPECT_STREQ(forward->stuGroups[0].szForwardNumbers[0], "f1");
    EXPECT_STREQ(forward->stuGroups[0].szForwardNumbers[1], "f2");
    ASSERT_EQ(forward->stuGroups[1].nForwardNumberNum, 1);
    EXPECT_STREQ(forward->stuGroups[1].szForwardNumbers[0], "f3");
    EXPECT_STREQ(forward->stuGroups[2].szRoomNumber, "r3");
    EXPECT_EQ(forward->stuGroups[2].nForwardNumberNum, 0);
    EXPECT_EQ(Pack("VTNoAnswerForward", *forward), text);
    EXPECT_EQ(Pack("VTNoAnswerForward", *Cleared<Forward>()), R"({ "Enable" : false })");
}

TEST(NoAnswerForward, KeepsThirtyTwoGroupsOfSixteenNumbers) {
    const std::string group =
        "{ \"RoomNumber\" : \"" + std::string(40, 'r') + "\", \"ForwardNumbers\" : " + Numbers(20) + " }";
    std::string table = "{ \"Groups\" : [ " + group;
    for (int i = 1; i < 40; ++i)
        table += ", " + group;
    auto forward = Parse<Forward>("VTNoAnswerForward", table + " ] }");
    ASSERT_TRUE(forward);
    EXPECT_EQ(forward->nGroupNum, 32);
    EXPECT_EQ(std::string(forward->stuGroups[31].szRoomNumber), std::string(31, 'r'));
    EXPECT_EQ(forward->stuGroups[31].nForwardNumberNum, 16);
    EXPECT_STREQ(forward->stuGroups[31].szForwardNumbers[15], "n15");
    const std::string text = Pack("VTNoAnswerForward", *forward);
    forward.record->nGroupNum = 33;
    forward.record->stuGroups[31].nForwardNumberNum = 17;
    EXPECT_EQ(Pack("VTNoAnswerForward", *forward), text);
    const auto odd = Parse<Forward>("VTNoAnswerForward", R"({ "Groups" : [ null, { "ForwardNumbers" : [ 5, ")"
                                                             + std::string(40, 'f') + "\" ] } ] }");
    ASSERT_EQ(odd->nGroupNum, 2);
    EXPECT_STREQ(odd->stuGroups[1].szForwardNumbers[0], "");
    EXPECT_EQ(std::string(odd->stuGroups[1].szForwardNumbers[1]), std::string(31, 'f'));
}

// ---- "VTOCall" ----

TEST(VtoCall, ReadsAndWritesAllKeys) {
    const std::string text =
        R"({ "AreaEnable" : true, "AreaNumber" : "a1", "MiddleNumberCallEnable" : false, )"
        R"("VTHLongNumberPrefix" : "h2", "VTHMiddleNumberPrefix" : "h3", "VTOLongNumbrPrefix" : "o4", )"
        R"("VTOMiddleNumberPrefix" : "o5", "VTOShortNumber" : "o6", "VTSLongNumber" : "s7", )"
        R"("VillaCallVTHNum" : "v8" })";
    const auto call = Parse<CFG_VTO_CALL_INFO>("VTOCall", text);
    ASSERT_TRUE(call);
    EXPECT_EQ(call.length, sizeof(CFG_VTO_CALL_INFO));
    EXPECT_EQ(call->bAreaEnable, 1);
    EXPECT_EQ(call->bMiddleNumberCallEnable, 0);
    EXPECT_STREQ(call->szAreaNumber, "a1");
    EXPECT_STREQ(call->szVTHLongNumberPrefix, "h2");
    EXPECT_STREQ(call->szVTOLongNumberPrefix, "o4");
    EXPECT_STREQ(call->szVTSLongNumber, "s7");
    EXPECT_STREQ(call->szVillaCallVTHNum, "v8");
    EXPECT_STREQ(call->szVTHMiddleNumberPrefix, "h3");
    EXPECT_STREQ(call->szVTOShortNumber, "o6");
    EXPECT_STREQ(call->szVTOMiddleNumberPrefix, "o5");
    EXPECT_EQ(Pack("VTOCall", *call), text);
    const auto middle = Parse<CFG_VTO_CALL_INFO>("VTOCall", R"({ "MiddleNumberCallEnable" : true })");
    EXPECT_EQ(middle->bAreaEnable, 0);
    EXPECT_EQ(middle->bMiddleNumberCallEnable, 1);
    EXPECT_EQ(Pack("VTOCall", *middle),
              R"({ "AreaEnable" : false, "AreaNumber" : "", "MiddleNumberCallEnable" : true, )"
              R"("VTHLongNumberPrefix" : "", "VTHMiddleNumberPrefix" : "", "VTOLongNumbrPrefix" : "", )"
              R"("VTOMiddleNumberPrefix" : "", "VTOShortNumber" : "", "VTSLongNumber" : "", "VillaCallVTHNum" : "" })");
}

TEST(VtoCall, TextsAreCutAtTheirCapacity) {
    const std::string x(40, 'x');
    std::string table = "{ \"AreaEnable\" : true";
    for (const char* key : {"AreaNumber", "VTHLongNumberPrefix", "VTOLongNumbrPrefix", "VTSLongNumber",
                            "VillaCallVTHNum", "VTHMiddleNumberPrefix", "VTOShortNumber", "VTOMiddleNumberPrefix"})
        table += ", \"" + std::string(key) + "\" : \"" + x + "\"";
    const auto call = Parse<CFG_VTO_CALL_INFO>("VTOCall", table + " }");
    for (const char* text : {call->szAreaNumber, call->szVTHLongNumberPrefix, call->szVTOLongNumberPrefix,
                             call->szVTSLongNumber, call->szVillaCallVTHNum})
        EXPECT_EQ(std::string(text), x.substr(0, 31));
    for (const char* text : {call->szVTHMiddleNumberPrefix, call->szVTOShortNumber, call->szVTOMiddleNumberPrefix})
        EXPECT_EQ(std::string(text), x.substr(0, 15));
}

// ---- "VTSCallInfo" ----

TEST(VtsCall, IsOneSection) {
    static_assert(sizeof(CFG_VTS_CALL_INFO) == sizeof(CFG_TIME_SECTION));
    const std::string text = R"({ "CalledEnable" : "1 08:09:10-17:18:19" })";
    const auto call = Parse<CFG_VTS_CALL_INFO>("VTSCallInfo", text);
    ASSERT_TRUE(call);
    EXPECT_EQ(call.length, sizeof(CFG_TIME_SECTION));
    const CFG_TIME_SECTION& section = call->stuCalledEnable;
    EXPECT_EQ(section.dwMask, 1);
    EXPECT_EQ(section.nBeginHour, 8);
    EXPECT_EQ(section.nBeginMin, 9);
    EXPECT_EQ(section.nBeginSec, 10);
    EXPECT_EQ(section.nEndHour, 17);
    EXPECT_EQ(section.nEndMin, 18);
    EXPECT_EQ(section.nEndSec, 19);
    EXPECT_EQ(Pack("VTSCallInfo", *call), text);
    EXPECT_EQ(Pack("VTSCallInfo", *Cleared<CFG_VTS_CALL_INFO>()), R"({ "CalledEnable" : "0 00:00:00-00:00:00" })");
    // Two digits a number at the most; what was matched before stays.
    const auto cut = Parse<CFG_VTS_CALL_INFO>("VTSCallInfo", R"({ "CalledEnable" : "1 8:30:00-017:30:00" })");
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut->stuCalledEnable.nBeginMin, 30);
    EXPECT_EQ(cut->stuCalledEnable.nEndHour, 1);
    EXPECT_EQ(cut->stuCalledEnable.nEndMin, 0);
    EXPECT_TRUE(
        (Parse<CFG_VTS_CALL_INFO>("VTSCallInfo", R"({ "CalledEnable" : [ "1 08:09:10-17:18:19" ] })").isCleared()));
}

// ---- "DevList" ----

// The caller's record and the devices behind it; the last byte of each is the last that may be touched.
struct Devices {
    explicit Devices(std::int32_t room) : info(1), devices(static_cast<std::size_t>(room), 0x11) {
        info.Set(0, {reinterpret_cast<CFG_TALK_DEVICE*>(devices.data()), room, 99});
    }
    Answer Parse(const std::string& table) const { return ParseTable("DevList", table, info); }
    std::int32_t count() const { return info[0].nReturnCount; }

    Records<CFG_DEV_LIST_INFO> info;
    Records<CFG_TALK_DEVICE> devices;
};
constexpr Answer kListRead{1, sizeof(CFG_DEV_LIST_INFO)};

constexpr const char* kDeviceText =
    R"({ "DevID" : "id1", "DevName" : "name2", "DevType" : "VTH", "IP" : "10.0.0.3", "ParentID" : "id4", )"
    R"("PassWord" : "pw5", "Port" : 6, "UserName" : "user7" })";

TEST(DevList, ReadsAndWritesAllKeys) {
    const Devices list(3);
    const std::string second = R"({ "DevID" : "", "DevName" : "", "DevType" : "", "IP" : "", "ParentID" : "", )"
                               R"("PassWord" : "", "Port" : 8, "UserName" : "" })";
    ASSERT_EQ(list.Parse("[ " + std::string(kDeviceText) + R"(, { "Port" : 8 } ])"), kListRead);
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.info[0].nMaxCount, 3);
    const CFG_TALK_DEVICE device = list.devices[0];
    EXPECT_STREQ(device.szDevType, "VTH");
    EXPECT_STREQ(device.szDevName, "name2");
    EXPECT_STREQ(device.szDevID, "id1");
    EXPECT_STREQ(device.szParentID, "id4");
    EXPECT_STREQ(device.szIP, "10.0.0.3");
    EXPECT_EQ(device.nPort, 6);
    EXPECT_STREQ(device.szUserName, "user7");
    EXPECT_STREQ(device.szPassWord, "pw5");
    EXPECT_EQ(PackAll("DevList", list.info), "[ " + std::string(kDeviceText) + ", " + second + " ]");
    EXPECT_EQ(list.devices[2].nPort, 0x11111111); // behind the devices of the text
}

TEST(DevList, ReadsNoMoreThanThereIsRoomFor) {
    const Devices list(2);
    EXPECT_EQ(list.Parse(R"([ { "Port" : 1 }, { "Port" : 2 }, { "Port" : 3 } ])"), kListRead);
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.devices[1].nPort, 2);
    EXPECT_EQ(list.Parse(R"([ null, { "Port" : 2 } ])"), kListRead);
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.devices[0].nPort, 0);
    EXPECT_EQ(list.devices[1].nPort, 2);
    EXPECT_EQ(list.Parse("[ ]"), kListRead);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(PackAll("DevList", list.info), "null");
}

TEST(DevList, WritesTheCountUpToTheRoomAlwaysAsAList) {
    Devices list(2);
    EXPECT_EQ(list.Parse("[ " + std::string(kDeviceText) + ", " + kDeviceText + " ]"), kListRead);
    const std::string both = "[ " + std::string(kDeviceText) + ", " + kDeviceText + " ]";
    CFG_DEV_LIST_INFO info = list.info[0];
    const auto written = [&](std::int32_t count) {
        info.nReturnCount = count;
        return Pack("DevList", info);
    };
    EXPECT_EQ(written(2), both);
    EXPECT_EQ(written(3), both);
    EXPECT_EQ(written(INT32_MAX), both);
    EXPECT_EQ(written(1), "[ " + std::string(kDeviceText) + " ]");
    EXPECT_EQ(written(0), "null");
    EXPECT_EQ(written(-1), "null");
    info.pstuDevices = nullptr;
    EXPECT_EQ(written(2), "null");
    EXPECT_EQ(WithoutNewline(PackBytes("DevList", &info, sizeof info - 1, kAmple)), kNotBegun);
}

TEST(DevList, FailsWithoutRoomBeforeTheTextIsLookedAt) {
    for (const bool hasArray : {false, true}) {
        for (const std::int32_t room : {1, 0, -1}) {
            if (hasArray && room == 1) continue;
            CFG_TALK_DEVICE device{};
            const CFG_DEV_LIST_INFO before{hasArray ? &device : nullptr, room, 5};
            for (const char* document : {R"({ "result" : true, "params" : { "table" : [ { "Port" : 1 } ] } })", "{"}) {
                Records<CFG_DEV_LIST_INFO> info(1);
                info.Set(0, before);
                EXPECT_EQ(ParseDocument("DevList", document, info), kRefused);
                EXPECT_EQ(std::memcmp(info.data(), &before, sizeof before), 0);
            }
            EXPECT_EQ(device.nPort, 0);
        }
    }
    char small[sizeof(CFG_DEV_LIST_INFO) - 1] = {};
    EXPECT_EQ(CLIENT_ParseData("DevList", R"({ "result" : true, "params" : { "table" : [ ] } })", small, sizeof small,
                               nullptr),
              0);
}

TEST(DevList, FailsForATableThatIsNoListAndKeepsTheRecord) {
    const Devices list(1);
    for (const char* table : {"{ \"Port\" : 1 }", "null", "\"x\"", "5"}) {
        EXPECT_EQ(list.Parse(table), kRefused) << table;
        EXPECT_EQ(list.count(), 99);
        EXPECT_EQ(list.devices[0].nPort, 0x11111111);
    }
    EXPECT_EQ(
        ParseDocument("DevList", R"({ "result" : false, "params" : { "table" : [ { "Port" : 1 } ] } })", list.info),
        kRefused);
    EXPECT_EQ(list.count(), 99);
}

TEST(DevList, TextsAreCutAtTheirCapacity) {
    const std::string x(300, 'x');
    std::string table = "[ { \"Port\" : 1";
    for (const char* key : {"DevType", "DevName", "DevID", "ParentID", "IP", "UserName", "PassWord"})
        table += ", \"" + std::string(key) + "\" : \"" + x + "\"";
    const Devices list(1);
    ASSERT_EQ(list.Parse(table + " } ]"), kListRead);
    const CFG_TALK_DEVICE device = list.devices[0];
    for (const char* text : {device.szDevType, device.szDevName, device.szDevID, device.szParentID})
        EXPECT_EQ(std::string(text), x.substr(0, 127));
    EXPECT_EQ(std::string(device.szIP), x.substr(0, 255));
    EXPECT_EQ(std::string(device.szUserName), x.substr(0, 63));
    EXPECT_EQ(std::string(device.szPassWord), x.substr(0, 63));
}

// ---- "VideoTalkPhoneGeneral" ----

using PhoneGeneral = CFG_VIDEO_TALK_PHONE_GENERAL_INFO;

constexpr const char* kPhoneText =
    R"({ "DisableRingEndTime" : "2027-02-03 04:05:06", "DisableRingStartTime" : "2026-11-20 09:30:07", )"
    R"("MaxConnectingTime" : 1, "MaxMonitorTime" : 2, "MaxRecordTime" : 3, "MaxRingingTime" : 4, )"
    R"("RingFile" : "ring.wav", "RingVolume" : 5, "SnapEnable" : true, "TalkVolume" : 6, )"
    R"("TimeLimit" : [ 60, -7, 180 ] })";

TEST(PhoneGeneral, ReadsAndWritesAllKeys) {
    const auto phone = Parse<PhoneGeneral>("VideoTalkPhoneGeneral", kPhoneText);
    ASSERT_TRUE(phone);
    EXPECT_EQ(phone.length, sizeof(PhoneGeneral));
    EXPECT_STREQ(phone->szRingFile, "ring.wav");
    EXPECT_EQ(phone->nRingVolume, 5);
    EXPECT_EQ(phone->nTalkVolume, 6);
    EXPECT_EQ(phone->nMaxRingingTime, 4);
    EXPECT_EQ(phone->nMaxConnectingTime, 1);
    EXPECT_EQ(phone->nMaxMonitorTime, 2);
    EXPECT_EQ(phone->nMaxRecordTime, 3);
    EXPECT_EQ(phone->stuDisableRingStartTime.dwSize, 28u);
    const NET_TIME& start = phone->stuDisableRingStartTime.stuTime;
    EXPECT_EQ(start.dwYear, 2026);
    EXPECT_EQ(start.dwMonth, 11);
    EXPECT_EQ(start.dwDay, 20);
    EXPECT_EQ(start.dwHour, 9);
    EXPECT_EQ(start.dwMinute, 30);
    EXPECT_EQ(start.dwSecond, 7);
    EXPECT_EQ(phone->stuDisableRingEndTime.dwSize, 28u);
    EXPECT_EQ(phone->stuDisableRingEndTime.stuTime.dwYear, 2027);
    EXPECT_EQ(phone->stuDisableRingEndTime.stuTime.dwSecond, 6);
    ASSERT_EQ(phone->nTimeLimitNum, 3);
    EXPECT_EQ(phone->nTimeLimits[0], 60);
    EXPECT_EQ(phone->nTimeLimits[1], -7);
    EXPECT_EQ(phone->nTimeLimits[2], 180);
    EXPECT_EQ(phone->bSnapEnable, 1);
    EXPECT_EQ(Pack("VideoTalkPhoneGeneral", *phone), kPhoneText);
}

TEST(PhoneGeneral, SetsTheSizeWordsWhateverTheTextHas) {
    for (const char* table :
         {"{ }", R"({ "DisableRingStartTime" : "tomorrow", "DisableRingEndTime" : 5 })", "[ ]", "7"}) {
        const auto phone = Parse<PhoneGeneral>("VideoTalkPhoneGeneral", table);
        ASSERT_TRUE(phone) << table;
        auto expected = Cleared<PhoneGeneral>();
        expected->stuDisableRingStartTime.dwSize = 28;
        expected->stuDisableRingEndTime.dwSize = 28;
        EXPECT_EQ(std::memcmp(phone.record.get(), expected.get(), sizeof(PhoneGeneral)), 0) << table;
    }
    EXPECT_TRUE(ParseDocument<PhoneGeneral>("VideoTalkPhoneGeneral", R"({ "result" : true })").isCleared());
}

TEST(PhoneGeneral, ATimeOfAnotherSizeIsNull) {
    const std::string rest = R"("MaxConnectingTime" : 0, "MaxMonitorTime" : 0, "MaxRecordTime" : 0, )"
                             R"("MaxRingingTime" : 0, "RingFile" : "", "RingVolume" : 0, "SnapEnable" : false, )"
                             R"("TalkVolume" : 0 })";
    for (const std::uint32_t size : {0u, 27u, 29u, 0xFFFFFFFFu}) {
        auto phone = Cleared<PhoneGeneral>();
        phone->stuDisableRingStartTime.dwSize = size;
        phone->stuDisableRingEndTime.dwSize = 28;
        EXPECT_EQ(Pack("VideoTalkPhoneGeneral", *phone),
                  R"({ "DisableRingEndTime" : "0000-00-00 00:00:00", "DisableRingStartTime" : null, )" + rest)
            << size;
        std::swap(phone->stuDisableRingStartTime.dwSize, phone->stuDisableRingEndTime.dwSize);
        EXPECT_EQ(Pack("VideoTalkPhoneGeneral", *phone),
                  R"({ "DisableRingEndTime" : null, "DisableRingStartTime" : "0000-00-00 00:00:00", )" + rest)
            << size;
    }
}

TEST(PhoneGeneral, KeepsThreeLimits) {
    auto phone = Parse<PhoneGeneral>("VideoTalkPhoneGeneral", R"({ "TimeLimit" : [ 1, "2", true, 4 ], "RingFile" : ")"
                                                                  + std::string(300, 'f') + "\" }");
    ASSERT_EQ(phone->nTimeLimitNum, 3);
    EXPECT_EQ(phone->nTimeLimits[0], 1);
    EXPECT_EQ(phone->nTimeLimits[1], 0);
    EXPECT_EQ(phone->nTimeLimits[2], 1);
    EXPECT_EQ(phone->bSnapEnable, 0);
    EXPECT_EQ(std::string(phone->szRingFile), std::string(259, 'f'));
    phone.record->nTimeLimitNum = 4;
    EXPECT_NE(Pack("VideoTalkPhoneGeneral", *phone).find("\"TimeLimit\" : [ 1, 0, 1 ] }"), std::string::npos);
}

// ---- "VideoTalkPhoneBasic" ----

using PhoneBasic = CFG_VIDEO_TALK_PHONE_BASIC_INFO;

TEST(PhoneBasic, ReadsKeysWithABlankAndWritesThreeOfFourWithout) {
    const auto phone = Parse<PhoneBasic>("VideoTalkPhoneBasic",
                                         R"({ "AlarmOutputEnable " : true, "NoAnswerTransferPlatformEnable " : true, )"
                                         R"("EachCallEnable " : true, "AutoAnswer" : { "Enable " : true }, )"
                                         R"("InviteNumberList" : [ "n1", "n2" ] })");
    ASSERT_TRUE(phone);
    EXPECT_EQ(phone.length, sizeof(PhoneBasic));
    EXPECT_EQ(phone->bAlarmOutputEnable, 1);
    EXPECT_EQ(phone->bNoAnswerTransferPlatformEnable, 1);
    EXPECT_EQ(phone->bEachCallEnable, 1);
    EXPECT_EQ(phone->bAutoAnswerEnable, 1);
    ASSERT_EQ(phone->nInviteNumberNum, 2);
    EXPECT_STREQ(phone->szInviteNumbers[0], "n1");
    EXPECT_STREQ(phone->szInviteNumbers[1], "n2");
    const std::string text = R"({ "AlarmOutputEnable " : true, "AutoAnswer" : { "Enable" : true }, )"
                             R"("EachCallEnable" : true, "InviteNumberList" : [ "n1", "n2" ], )"
                             R"("NoAnswerTransferPlatformEnable" : true })";
    EXPECT_EQ(Pack("VideoTalkPhoneBasic", *phone), text);

    // What was written loses three of the four on its way back.
    const auto again = Parse<PhoneBasic>("VideoTalkPhoneBasic", text);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->bAlarmOutputEnable, 1);
    EXPECT_EQ(again->bNoAnswerTransferPlatformEnable, 0);
    EXPECT_EQ(again->bEachCallEnable, 0);
    EXPECT_EQ(again->bAutoAnswerEnable, 0);
    EXPECT_EQ(again->nInviteNumberNum, 2);
}

TEST(PhoneBasic, EachSwitchHasItsKey) {
    struct Switch {
        std::string read, written;
        std::int32_t PhoneBasic::*member;
    };
    const Switch switches[] = {
        {"\"AlarmOutputEnable \" : ", "\"AlarmOutputEnable \" : ", &PhoneBasic::bAlarmOutputEnable},
        {"\"NoAnswerTransferPlatformEnable \" : ", "\"NoAnswerTransferPlatformEnable\" : ",
         &PhoneBasic::bNoAnswerTransferPlatformEnable},
        {"\"EachCallEnable \" : ", "\"EachCallEnable\" : ", &PhoneBasic::bEachCallEnable},
        {"\"AutoAnswer\" : { \"Enable \" : ", "\"AutoAnswer\" : { \"Enable\" : ", &PhoneBasic::bAutoAnswerEnable},
    };
    for (const Switch& set : switches) {
        const bool isInner = set.read.find('{') != std::string::npos;
        const auto phone =
            Parse<PhoneBasic>("VideoTalkPhoneBasic", "{ " + set.read + (isInner ? "true } }" : "true }"));
        for (const Switch& other : switches)
            EXPECT_EQ(*phone.*other.member, other.member == set.member) << set.read << other.read;
        const std::string text = Pack("VideoTalkPhoneBasic", *phone);
        for (const Switch& other : switches) {
            EXPECT_NE(text.find(other.written + (other.member == set.member ? "true" : "false")), std::string::npos)
                << text;
        }
    }
}

TEST(PhoneBasic, KeysWithoutTheBlankSetNothing) {
    for (const char* table : {R"({ "AlarmOutputEnable" : true })", R"({ "NoAnswerTransferPlatformEnable" : true })",
                              R"({ "EachCallEnable" : true })", R"({ "AutoAnswer" : { "Enable" : true } })",
                              R"({ "EachCallEnable  " : true })", R"({ "AutoAnswer " : { "Enable " : true } })"}) {
        const auto phone = Parse<PhoneBasic>("VideoTalkPhoneBasic", table);
        ASSERT_TRUE(phone);
        EXPECT_TRUE(phone.isCleared()) << table;
    }
}

TEST(PhoneBasic, KeepsSixteenNumbers) {
    auto phone = Parse<PhoneBasic>("VideoTalkPhoneBasic", "{ \"InviteNumberList\" : " + Numbers(17) + " }");
    EXPECT_EQ(phone->nInviteNumberNum, 16);
    EXPECT_STREQ(phone->szInviteNumbers[15], "n15");
    phone.record->nInviteNumberNum = 17;
    EXPECT_EQ(Pack("VideoTalkPhoneBasic", *phone),
              R"({ "AlarmOutputEnable " : false, "AutoAnswer" : { "Enable" : false }, "EachCallEnable" : false, )"
              R"("InviteNumberList" : )"
                  + Numbers(16) + R"(, "NoAnswerTransferPlatformEnable" : false })");
    const auto cut =
        Parse<PhoneBasic>("VideoTalkPhoneBasic", "{ \"InviteNumberList\" : [ 5, \"" + std::string(40, 'n') + "\" ] }");
    ASSERT_EQ(cut->nInviteNumberNum, 2);
    EXPECT_STREQ(cut->szInviteNumbers[0], "");
    EXPECT_EQ(std::string(cut->szInviteNumbers[1]), std::string(31, 'n'));
    EXPECT_EQ(Pack("VideoTalkPhoneBasic", *Cleared<PhoneBasic>()),
              R"({ "AlarmOutputEnable " : false, "AutoAnswer" : { "Enable" : false }, "EachCallEnable" : false, )"
              R"("NoAnswerTransferPlatformEnable" : false })");
}

// ---- "ShortcutCall" ----

struct Shortcuts {
    explicit Shortcuts(std::int32_t room) : info(1), calls(static_cast<std::size_t>(room), 0x11) {
        info.Set(0, {room, reinterpret_cast<CFG_SHORTCUT_CALL*>(calls.data()), 99});
    }
    // The length is added to what stands in it.
    Answer Parse(const std::string& table) const {
        const std::string document = R"({ "result" : true, "params" : { "table" : )" + table + " } }";
        std::uint32_t length = 1000;
        const auto result = CLIENT_ParseData("ShortcutCall", document.c_str(), info.data(), info.size(), &length);
        return {result, length};
    }
    std::int32_t count() const { return info[0].nReturnCount; }

    Records<CFG_SHORTCUT_CALL_INFO> info;
    Records<CFG_SHORTCUT_CALL> calls;
};
constexpr Answer kAdded{1, 1000 + sizeof(CFG_SHORTCUT_CALL_INFO)};
constexpr Answer kNothingAdded{1, 1000};

TEST(ShortcutCall, ReadsAndWritesAllKeys) {
    const Shortcuts list(3);
    const std::string text = R"([ { "CallNumber" : "8001", "PositionType" : "Management" }, )"
                             R"({ "CallNumber" : "101", "PositionType" : "Room" } ])";
    ASSERT_EQ(list.Parse(text), kAdded);
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.info[0].nMaxCount, 3);
    EXPECT_STREQ(list.calls[0].szCallNumber, "8001");
    EXPECT_EQ(list.calls[0].emPositionType, CFG_SHORTCUT_POSITION_MANAGEMENT);
    EXPECT_STREQ(list.calls[1].szCallNumber, "101");
    EXPECT_EQ(list.calls[1].emPositionType, CFG_SHORTCUT_POSITION_ROOM);
    EXPECT_EQ(PackAll("ShortcutCall", list.info), text);
    EXPECT_EQ(list.calls[2].emPositionType, 0x11111111); // behind the shortcuts of the text
}

TEST(ShortcutCall, ReadsNoMoreThanThereIsRoomFor) {
    const Shortcuts list(2);
    EXPECT_EQ(list.Parse(R"([ { "CallNumber" : "1" }, { "CallNumber" : "2" }, { "CallNumber" : "3" } ])"), kAdded);
    EXPECT_EQ(list.count(), 2);
    EXPECT_STREQ(list.calls[1].szCallNumber, "2");
    EXPECT_EQ(list.calls[1].emPositionType, 0);
    EXPECT_EQ(list.Parse(R"([ null, 7 ])"), kAdded);
    EXPECT_EQ(list.count(), 2);
    EXPECT_STREQ(list.calls[0].szCallNumber, "");
    EXPECT_STREQ(list.calls[1].szCallNumber, "");
    EXPECT_EQ(list.Parse("[ ]"), kAdded);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(PackAll("ShortcutCall", list.info), "null");
}

TEST(ShortcutCall, SucceedsWithoutAnArrayAndWithoutRoom) {
    for (const std::int32_t room : {0, -1, 5}) {
        Shortcuts list(1);
        list.info.Set(0, {room, room > 0 ? nullptr : reinterpret_cast<CFG_SHORTCUT_CALL*>(list.calls.data()), 99});
        EXPECT_EQ(list.Parse(R"([ { "CallNumber" : "1" } ])"), kAdded) << room;
        EXPECT_EQ(list.count(), room > 0 ? 99 : 0) << room; // without an array the record stays as it is
        EXPECT_EQ(list.info[0].nMaxCount, room) << room;
        EXPECT_EQ(list.calls[0].emPositionType, 0x11111111) << room;
        CFG_SHORTCUT_CALL_INFO info = list.info[0];
        info.nReturnCount = 1;
        EXPECT_EQ(Pack("ShortcutCall", info), "null") << room;
    }
}

TEST(ShortcutCall, ATableThatIsNoListLeavesTheRecord) {
    const Shortcuts list(1);
    for (const char* table : {R"({ "CallNumber" : "1" })", "\"x\"", "5", "true"}) {
        EXPECT_EQ(list.Parse(table), kAdded) << table;
        EXPECT_EQ(list.count(), 99) << table;
        EXPECT_EQ(list.calls[0].emPositionType, 0x11111111) << table;
    }
    EXPECT_EQ(list.Parse("null"), kNothingAdded);
    EXPECT_EQ(list.count(), 99);
    EXPECT_EQ(list.info[0].nMaxCount, 1);
    std::uint32_t length = 1000;
    for (const char* document :
         {R"({ "result" : false, "params" : { "table" : [ ] } })", "{", R"({ "params" : { } })"}) {
        EXPECT_EQ(CLIENT_ParseData("ShortcutCall", document, list.info.data(), list.info.size(), &length), 0);
        EXPECT_EQ(length, 1000u);
        EXPECT_EQ(list.count(), 99);
    }
    EXPECT_EQ(CLIENT_ParseData("ShortcutCall", "{}", list.info.data(), list.info.size() - 1, nullptr), 0);
}

TEST(ShortcutCall, WritesTheCountUpToTheRoomAlwaysAsAList) {
    Shortcuts list(2);
    ASSERT_EQ(list.Parse(R"([ { "CallNumber" : "1" }, { "CallNumber" : "2" } ])"), kAdded);
    CFG_SHORTCUT_CALL_INFO info = list.info[0];
    const auto written = [&](std::int32_t count) {
        info.nReturnCount = count;
        return Pack("ShortcutCall", info);
    };
    EXPECT_EQ(written(2), R"([ { "CallNumber" : "1" }, { "CallNumber" : "2" } ])");
    EXPECT_EQ(written(3), R"([ { "CallNumber" : "1" }, { "CallNumber" : "2" } ])");
    EXPECT_EQ(written(1), R"([ { "CallNumber" : "1" } ])");
    EXPECT_EQ(written(0), "null");
    EXPECT_EQ(written(-1), "null");
    // Of a record that is not whole the count is 0.
    info.nReturnCount = 2;
    EXPECT_EQ(WithoutNewline(PackBytes("ShortcutCall", &info, offsetof(CFG_SHORTCUT_CALL_INFO, nReturnCount), kAmple)),
              "null");
    EXPECT_EQ(WithoutNewline(PackBytes("ShortcutCall", &info, 0, kAmple)), "null");
    EXPECT_EQ(PackBytes("ShortcutCall", &info, 0, 5), kFailed);
    EXPECT_EQ(PackBytes("ShortcutCall", &info, 0, 6), "null\n");
}

TEST(ShortcutCall, PositionTypes) {
    constexpr const char* kNames[] = {"Room", "UnitDoor", "AreaGate", "Management", "Guard"};
    const Shortcuts list(1);
    const auto read = [&](const std::string& value) {
        list.Parse(R"([ { "CallNumber" : "1", "PositionType" : )" + value + " } ]");
        return list.calls[0].emPositionType;
    };
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(read("\"" + std::string(kNames[i]) + "\""), i + 1);
        EXPECT_EQ(PackAll("ShortcutCall", list.info),
                  R"([ { "CallNumber" : "1", "PositionType" : ")" + std::string(kNames[i]) + "\" } ]");
    }
    EXPECT_EQ(read("\"uNITdOOR\""), 2);
    for (const char* value : {"\"Roof\"", "\"\"", "1", "null"})
        EXPECT_EQ(read(value), 0) << value;
    for (const std::int32_t code : {-1, 0, 6}) {
        CFG_SHORTCUT_CALL call{"7", code};
        EXPECT_EQ(Pack("ShortcutCall", CFG_SHORTCUT_CALL_INFO{1, &call, 1}), R"([ { "CallNumber" : "7" } ])") << code;
    }
    EXPECT_EQ(list.Parse("[ { \"CallNumber\" : \"" + std::string(70, '1') + "\" } ]"), kAdded);
    EXPECT_EQ(std::string(list.calls[0].szCallNumber), std::string(63, '1'));
}

// ---- What the commands have in common ----

TEST(VideoTalk, RefusedRepliesAndMissingTablesFail) {
    for (const char* command : {"Building", "BuildingExternal", "DialRule", "VTNoAnswerForward", "VTOCall",
                                "VTSCallInfo", "VideoTalkPhoneGeneral", "VideoTalkPhoneBasic"}) {
        ExpectRefusalsToFail(command);
    }
}

TEST(VideoTalk, ATextMustBeShorterThanItsBuffer) {
    const CFG_VTS_CALL_INFO call{};
    const std::string text = "{ \"CalledEnable\" : \"0 00:00:00-00:00:00\" }\n";
    EXPECT_EQ(PackBytes("VTSCallInfo", &call, sizeof call, text.size()), kFailed);
    EXPECT_EQ(PackBytes("VTSCallInfo", &call, sizeof call, text.size() + 1), text);
    CFG_TALK_DEVICE device{};
    const CFG_DEV_LIST_INFO none{&device, 1, 0};
    EXPECT_EQ(PackBytes("DevList", &none, sizeof none, 5), kFailed);
    EXPECT_EQ(PackBytes("DevList", &none, sizeof none, 6), "null\n");
}

} // namespace
} // namespace orrery::test
