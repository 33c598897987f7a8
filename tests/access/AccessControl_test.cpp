#include "access/AccessControl.h"

#include "access/Refusals.h"
#include "support/Call.h"

#include <gtest/gtest.h>
#include <vector>

namespace orrery::test {
namespace {

// ---- "AccessControl" ----

using Door = CFG_ACCESS_CONTROL_INFO;

// A door in which no two numbers and no two texts are alike, as it is written.
constexpr const char* kDoorText =
    R"({ "ABLockRoute" : 101, "AccessControlUDP" : { "Address" : "10.1.2.3", "Port" : 102 }, )"
    R"("AccessProtocol" : "Tessera", "AutoRemoteCheck" : { "Enable" : true, "Time" : 103 }, )"
    R"("BreakInAlarmEnable" : true, "CardNoConvert" : 104, "CloseAlwaysTime" : 105, "CloseCheckSensor" : true, )"
    R"("CloseDuration" : 106, "CloseTimeout" : 107, "CustomPasswordEnable" : true, )"
    R"("DoorNotClosedAlarmEnable" : true, "DoorNotClosedReaderAlarmTime" : 108, "DuressAlarmEnable" : true, )"
    R"("EnableMode" : 4000000000, "EntranceLockChannel" : 4000000001, "FakeLockedAlarmEnable" : true, )"
    R"("FirstEnter" : { "Enable" : true, "Status" : 109, "Time" : 110 }, "Handicap" : { "TimeOut" : 111 }, )"
    R"("HolidayTime" : 112, "LocalControlEnable" : true, "LockTongueEnable" : true, "Method" : 113, )"
    R"("Mode" : "SafeRoom", "Name" : "North\/1", "OpenAlwaysTime" : 114, "ProtocolType" : 115, )"
    R"("RemoteCheck" : true, "RemoteControlEnable" : true, "RemoteDetail" : { "TimeOut" : 116 }, )"
    R"("RepeatEnterAlarm" : true, "RepeatEnterTime" : 4000000002, "SN" : "A0117", )"
    R"("SensorDetect" : { "DetectSensitivity" : 118, "HumanStatusSensitivity" : 119, "SensorDelay" : 120 }, )"
    R"("SensorEnable" : true, "SnapUploadPos" : 4000000003, "SnapshotEnable" : true, "SnapshotUpload" : true, )"
    R"("State" : "NoPersonNC", )"
    R"("TimeSchedule" : [ { "TimeSection" : "Su" }, { "TimeSection" : "Mo" }, { "TimeSection" : "Tu" }, )"
    R"({ "TimeSection" : "We" }, { "TimeSection" : "Th" }, { "TimeSection" : "Fr" }, { "TimeSection" : "Sa" } ], )"
    R"("UnAuthorizedMaliciousSwipEnable" : true, "UnlockHoldInterval" : 121, "UnlockReloadInterval" : 122 })";

TEST(AccessControl, ReadsAndWritesAllKeys) {
    const auto door = Parse<Door>("AccessControl", kDoorText);
    ASSERT_TRUE(door);
    EXPECT_EQ(door.length, sizeof(Door));
    EXPECT_STREQ(door->szName, "North/1");
    EXPECT_EQ(door->emState, CFG_ACCESS_STATE_NO_PERSON_NC);
    EXPECT_EQ(door->emMode, CFG_ACCESS_MODE_SAFE_ROOM);
    EXPECT_EQ(door->nEnableMode, 4000000000u);
    EXPECT_EQ(door->nMethod, 113);
    EXPECT_EQ(door->nUnlockHoldInterval, 121);
    EXPECT_EQ(door->nCloseTimeout, 107);
    EXPECT_EQ(door->nOpenAlwaysTime, 114);
    EXPECT_EQ(door->nCloseAlwaysTime, 105);
    EXPECT_EQ(door->nHolidayTime, 112);
    constexpr const char* kDays[] = {"Su", "Mo", "Tu", "We", "Th", "Fr", "Sa"};
    for (int day = 0; day < 7; ++day)
        EXPECT_STREQ(door->stuTimeSchedule[day].szTimeSection, kDays[day]);
    EXPECT_EQ(door->nFirstEnterStatus, 109);
    EXPECT_EQ(door->nFirstEnterTime, 110);
    EXPECT_EQ(door->nRemoteDetailTimeOut, 116);
    EXPECT_EQ(door->nHandicapTimeOut, 111);
    EXPECT_EQ(door->nAutoRemoteCheckTime, 103);
    EXPECT_EQ(door->nSensorDelay, 120);
    EXPECT_EQ(door->nHumanStatusSensitivity, 119);
    EXPECT_EQ(door->nDetectSensitivity, 118);
    EXPECT_EQ(door->nABLockRoute, 101);
    EXPECT_EQ(door->nDoorNotClosedReaderAlarmTime, 108);
    EXPECT_STREQ(door->szSN, "A0117");
    EXPECT_EQ(door->nCloseDuration, 106);
    EXPECT_EQ(door->nUnlockReloadInterval, 122);
    EXPECT_EQ(door->emAccessProtocol, CFG_ACCESS_PROTOCOL_TESSERA);
    EXPECT_EQ(door->nProtocolType, 115);
    EXPECT_STREQ(door->szUdpAddress, "10.1.2.3");
    EXPECT_EQ(door->nUdpPort, 102);
    EXPECT_EQ(door->nEntranceLockChannel, 4000000001u);
    EXPECT_EQ(door->nSnapUploadPos, 4000000003u);
    EXPECT_EQ(door->nRepeatEnterTime, 4000000002u);
    EXPECT_EQ(door->nCardNoConvert, 104u);
    EXPECT_EQ(Pack("AccessControl", *door), kDoorText);
}

// Switches are alike in their values: each is set by its own key alone, and by no other.
struct Switch {
    const char* outer; // of the object inside the record's own; empty for none
    const char* key;
    std::int32_t Door::*member;
};
constexpr Switch kSwitches[] = {
    {"", "SnapshotEnable", &Door::bSnapshotEnable},
    {"", "BreakInAlarmEnable", &Door::bBreakInAlarmEnable},
    {"", "RepeatEnterAlarm", &Door::bRepeatEnterAlarm},
    {"", "DoorNotClosedAlarmEnable", &Door::bDoorNotClosedAlarmEnable},
    {"", "DuressAlarmEnable", &Door::bDuressAlarmEnable},
    {"", "SensorEnable", &Door::bSensorEnable},
    {"FirstEnter", "Enable", &Door::bFirstEnterEnable},
    {"", "RemoteCheck", &Door::bRemoteCheck},
    {"", "CloseCheckSensor", &Door::bCloseCheckSensor},
    {"AutoRemoteCheck", "Enable", &Door::bAutoRemoteCheckEnable},
    {"", "LocalControlEnable", &Door::bLocalControlEnable},
    {"", "RemoteControlEnable", &Door::bRemoteControlEnable},
    {"", "LockTongueEnable", &Door::bLockTongueEnable},
    {"", "SnapshotUpload", &Door::bSnapshotUpload},
    {"", "CustomPasswordEnable", &Door::bCustomPasswordEnable},
    {"", "UnAuthorizedMaliciousSwipEnable", &Door::bUnAuthorizedMaliciousSwipEnable},
    {"", "FakeLockedAlarmEnable", &Door::bFakeLockedAlarmEnable},
};

TEST(AccessControl, EachSwitchHasItsKey) {
    const std::string off = Pack("AccessControl", *Cleared<Door>());
    for (const Switch& set : kSwitches) {
        std::string member = "\"" + std::string(set.key) + "\" : true";
        if (*set.outer != '\0') member = "\"" + std::string(set.outer) + "\" : { " + member + " }";
        const auto door = Parse<Door>("AccessControl", "{ " + member + " }");
        for (const Switch& other : kSwitches)
            EXPECT_EQ(*door.*other.member, other.member == set.member) << set.outer << set.key << "/" << other.key;
        Door on = *Cleared<Door>();
        on.*set.member = 1;
        const std::string text = Pack("AccessControl", on);
        EXPECT_NE(text, off);
        const std::string outer = *set.outer == '\0' ? "" : std::string(set.outer) + "\" : { \"";
        EXPECT_NE(text.find("\"" + outer + set.key + "\" : true"), std::string::npos) << set.key << text;
    }
}

TEST(AccessControl, WhatIsAbsentHasItsDefault) {
    for (const char* table : {"{ }", R"({ "State" : null, "Mode" : null, "ProtocolType" : null })"}) {
        const auto door = Parse<Door>("AccessControl", table);
        ASSERT_TRUE(door);
        auto expected = Cleared<Door>();
        expected->emState = -1;
        expected->emMode = -1;
        expected->nProtocolType = -1;
        EXPECT_EQ(std::memcmp(door.record.get(), expected.get(), sizeof(Door)), 0);
        const std::string text = Pack("AccessControl", *door);
        EXPECT_EQ(text.find("State\" :"), std::string::npos);
        EXPECT_EQ(text.find("\"Mode\" :"), std::string::npos);
        EXPECT_NE(text.find("\"ProtocolType\" : -1"), std::string::npos);
    }
}

TEST(AccessControl, AnEmptyRecordAsText) {
    EXPECT_EQ(
        Pack("AccessControl", *Cleared<Door>()),
        R"({ "ABLockRoute" : 0, "AccessControlUDP" : { "Address" : "", "Port" : 0 }, "AccessProtocol" : "", )"
        R"("AutoRemoteCheck" : { "Enable" : false, "Time" : 0 }, "BreakInAlarmEnable" : false, "CardNoConvert" : 0, )"
        R"("CloseAlwaysTime" : 0, "CloseCheckSensor" : false, "CloseDuration" : 0, "CloseTimeout" : 0, )"
        R"("CustomPasswordEnable" : false, "DoorNotClosedAlarmEnable" : false, )"
        R"("DoorNotClosedReaderAlarmTime" : 0, "DuressAlarmEnable" : false, "EnableMode" : 0, )"
        R"("EntranceLockChannel" : 0, "FakeLockedAlarmEnable" : false, )"
        R"("FirstEnter" : { "Enable" : false, "Status" : 0, "Time" : 0 }, "Handicap" : { "TimeOut" : 0 }, )"
        R"("HolidayTime" : 0, "LocalControlEnable" : false, "LockTongueEnable" : false, "Method" : 0, )"
        R"("Mode" : "HandProtected", "Name" : "", "OpenAlwaysTime" : 0, "ProtocolType" : 0, "RemoteCheck" : false, )"
        R"("RemoteControlEnable" : false, "RemoteDetail" : { "TimeOut" : 0 }, "RepeatEnterAlarm" : false, )"
        R"("RepeatEnterTime" : 0, "SN" : "", )"
        R"("SensorDetect" : { "DetectSensitivity" : 0, "HumanStatusSensitivity" : 0, "SensorDelay" : 0 }, )"
        R"("SensorEnable" : false, "SnapUploadPos" : 0, "SnapshotEnable" : false, "SnapshotUpload" : false, )"
        R"("State" : "Normal", "TimeSchedule" : [ { "TimeSection" : "" }, { "TimeSection" : "" }, )"
        R"({ "TimeSection" : "" }, { "TimeSection" : "" }, { "TimeSection" : "" }, { "TimeSection" : "" }, )"
        R"({ "TimeSection" : "" } ], "UnAuthorizedMaliciousSwipEnable" : false, "UnlockHoldInterval" : 0, )"
        R"("UnlockReloadInterval" : 0 })");
}

struct NameOf {
    std::int32_t code;
    const char* text;
};

// Each name is read, folded too, and written; `unknown` is what other texts read as. Codes beyond the names write
// `outside`, null for no key at all.
template <class R>
void CheckNames(const char* command, const std::string& key, std::int32_t R::*member, const std::vector<NameOf>& names,
                std::int32_t unknown, const char* outside) {
    const auto written = [&](std::int32_t code) {
        auto record = Cleared<R>();
        record.get()->*member = code;
        if constexpr (requires { record->abAccessProperty; }) record->abAccessProperty = 1;
        const std::string text = Pack(command, *record);
        const std::string start = "\"" + key + "\" : \"";
        const std::size_t at = text.find(start);
        if (at == std::string::npos) return std::string("(no key)");
        const std::size_t from = at + start.size();
        return text.substr(from, text.find('"', from) - from);
    };
    const auto read = [&](const std::string& value) {
        return (*Parse<R>(command, "{ \"" + key + "\" : " + value + " }")).*member;
    };
    std::int32_t least = 0;
    std::int32_t most = 0;
    for (const NameOf& name : names) {
        std::string flipped = name.text;
        for (char& c : flipped)
            c = static_cast<char>((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ? c ^ 0x20 : c);
        EXPECT_EQ(read("\"" + std::string(name.text) + "\""), name.code) << name.text;
        EXPECT_EQ(read("\"" + flipped + "\""), name.code) << flipped;
        EXPECT_EQ(written(name.code), name.text);
        least = &name == &names.front() ? name.code : std::min(least, name.code);
        most = std::max(most, name.code);
    }
    for (const char* value : {"\"Nonsense\"", "\"\"", "7", "true", "[ ]"})
        EXPECT_EQ(read(value), unknown) << value;
    const std::string expected = outside == nullptr ? "(no key)" : outside;
    for (const std::int32_t code : {least - 1, most + 1, INT32_MIN, INT32_MAX})
        EXPECT_EQ(written(code), expected) << code;
}

TEST(AccessControl, Names) {
    CheckNames<Door>("AccessControl", "State", &Door::emState,
                     {{0, "Normal"}, {1, "CloseAlways"}, {2, "OpenAlways"}, {3, "NoPersonNC"}, {4, "NoPersonNO"}}, -1,
                     nullptr);
    CheckNames<Door>("AccessControl", "Mode", &Door::emMode, {{0, "HandProtected"}, {1, "SafeRoom"}, {2, "Other"}}, -1,
                     nullptr);
    CheckNames<Door>("AccessControl", "AccessProtocol", &Door::emAccessProtocol,
                     {{1, "Local"}, {2, "Tessera"}, {3, "Remote"}}, 0, "");
}

TEST(AccessControl, TheSerialNumberIsReadFromATextAlone) {
    EXPECT_STREQ(Parse<Door>("AccessControl", R"({ "SN" : 117 })")->szSN, "");
    EXPECT_STREQ(Parse<Door>("AccessControl", R"({ "SN" : true })")->szSN, "");
    EXPECT_STREQ(Parse<Door>("AccessControl", R"({ "SN" : "117" })")->szSN, "117");
}

TEST(AccessControl, DaysBeyondTheWeekAndNoDays) {
    const auto long_ = Parse<Door>(
        "AccessControl", R"({ "TimeSchedule" : [ { "TimeSection" : "a" }, null, 3, { "TimeSection" : "d" }, { }, )"
                         R"({ "TimeSection" : 5 }, { "TimeSection" : "g" }, { "TimeSection" : "h" } ] })");
    ASSERT_TRUE(long_);
    constexpr const char* kDays[] = {"a", "", "", "d", "", "", "g"};
    for (int day = 0; day < 7; ++day)
        EXPECT_STREQ(long_->stuTimeSchedule[day].szTimeSection, kDays[day]) << day;
    EXPECT_EQ(long_->bSensorEnable, 0);
    const auto none = Parse<Door>("AccessControl", R"({ "TimeSchedule" : { "TimeSection" : "x" } })");
    EXPECT_STREQ(none->stuTimeSchedule[0].szTimeSection, "");
}

TEST(AccessControl, TextsAreCutAtTheirCapacity) {
    const std::string x(300, 'x');
    const auto door = Parse<Door>(
        "AccessControl", "{ \"Name\" : \"" + x + "\", \"SN\" : \"" + x + "\", \"AccessControlUDP\" : { \"Address\" : \""
                             + x + "\" }, \"TimeSchedule\" : [ { \"TimeSection\" : \"" + x + "\" } ] }");
    EXPECT_EQ(std::string(door->szName), x.substr(0, 127));
    EXPECT_EQ(std::string(door->szSN), x.substr(0, 31));
    EXPECT_EQ(std::string(door->szUdpAddress), x.substr(0, 255));
    EXPECT_EQ(std::string(door->stuTimeSchedule[0].szTimeSection), x.substr(0, 127));
    EXPECT_STREQ(door->stuTimeSchedule[1].szTimeSection, "");
}

TEST(AccessControl, ADoorAnElementWhileTheNextFits) {
    const std::string table = R"([ { "Method" : 1 }, { "Method" : 2 }, { "Method" : 3 } ])";
    const Records<Door> two(2, sizeof(Door) - 1, 0x5A);
    EXPECT_EQ(ParseTable("AccessControl", table, two), (Answer{1, 2 * sizeof(Door)}));
    EXPECT_EQ(two[0].nMethod, 1);
    EXPECT_EQ(two[1].nMethod, 2);
    EXPECT_EQ(two[1].emState, -1);
    const Records<Door> five(5, 0x5A);
    EXPECT_EQ(ParseTable("AccessControl", table, five), (Answer{1, 3 * sizeof(Door)}));
    EXPECT_EQ(five[2].nMethod, 3);
    EXPECT_EQ(five[3].emState, 0); // not read, only cleared
    EXPECT_EQ(five[4].nProtocolType, 0);
}

TEST(AccessControl, ANullIsADoorWithoutKeys) {
    const Records<Door> doors(3, 0x5A);
    EXPECT_EQ(ParseTable("AccessControl", R"([ { "Method" : 1 }, null, 7 ])", doors), (Answer{1, 3 * sizeof(Door)}));
    EXPECT_EQ(doors[0].nMethod, 1);
    for (const int i : {1, 2}) {
        EXPECT_EQ(doors[i].emState, -1);
        EXPECT_EQ(doors[i].nMethod, 0);
    }
}

TEST(AccessControl, OneDoorIsBareAndSeveralAreAList) {
    Records<Door> doors(3);
    std::string bare;
    for (int i = 0; i < 3; ++i) {
        Door door = doors[i];
        door.nABLockRoute = i;
        doors.Set(i, door);
        if (i == 0) bare = Pack("AccessControl", door);
    }
    const auto pack = [&](std::size_t size) {
        return WithoutNewline(PackBytes("AccessControl", doors.data(), size, kAmple));
    };
    EXPECT_EQ(pack(sizeof(Door) - 1), kNotBegun);
    EXPECT_EQ(pack(sizeof(Door)), bare);
    EXPECT_EQ(pack(2 * sizeof(Door) - 1), bare);
    std::string second = bare;
    second.replace(second.find(" : 0"), 4, " : 1");
    EXPECT_EQ(pack(2 * sizeof(Door)), "[ " + bare + ", " + second + " ]");
}

// ---- "AccessControlGeneral" ----

using General = CFG_ACCESS_GENERAL_INFO;

constexpr const char* kGeneralText =
    R"({ "ABLock" : { "Doors" : [ [ 11, 12, 13, 14 ], [ 21 ] ], "Enable" : true }, "AccessProperty" : "unidirect", )"
    R"("DuressEnable" : true, "DuressPassword" : "dp", "ProjectPassword" : "pp", )"
    R"("Sound" : { "CloseDoor" : "cd.wav", "InUsed" : "iu.wav", "NotClosed" : "nc.wav", "NotInUsed" : "ni.wav", )"
    R"("OpenDoor" : "od.wav", "Waiting" : "wa.wav" }, "UnlockHoldInterval" : 31, "UnlockReloadInterval" : 32 })";

TEST(AccessGeneral, ReadsAndWritesAllKeys) {
    const auto general = Parse<General>("AccessControlGeneral", kGeneralText);
    ASSERT_TRUE(general);
    EXPECT_EQ(general.length, sizeof(General));
    EXPECT_EQ(general->abAccessProperty, 1);
    EXPECT_EQ(general->emAccessProperty, CFG_ACCESS_PROPERTY_UNIDIRECT);
    EXPECT_STREQ(general->stuSound.szOpenDoor, "od.wav");
    EXPECT_STREQ(general->stuSound.szCloseDoor, "cd.wav");
    EXPECT_STREQ(general->stuSound.szInUsed, "iu.wav");
    EXPECT_STREQ(general->stuSound.szNotInUsed, "ni.wav");
    EXPECT_STREQ(general->stuSound.szNotClosed, "nc.wav");
    EXPECT_STREQ(general->stuSound.szWaiting, "wa.wav");
    EXPECT_EQ(general->nUnlockReloadInterval, 32);
    EXPECT_EQ(general->nUnlockHoldInterval, 31);
    EXPECT_STREQ(general->szProjectPassword, "pp");
    EXPECT_STREQ(general->szDuressPassword, "dp");
    EXPECT_EQ(general->bDuressEnable, 1);
    EXPECT_EQ(general->stuABLock.bEnable, 1);
    ASSERT_EQ(general->stuABLock.nGroupNum, 2);
    ASSERT_EQ(general->stuABLock.stuGroups[0].nDoorNum, 4);
    EXPECT_EQ(general->stuABLock.stuGroups[0].nDoors[0], 11);
    EXPECT_EQ(general->stuABLock.stuGroups[0].nDoors[3], 14);
    ASSERT_EQ(general->stuABLock.stuGroups[1].nDoorNum, 1);
    EXPECT_EQ(general->stuABLock.stuGroups[1].nDoors[0], 21);
    EXPECT_EQ(Pack("AccessControlGeneral", *general), kGeneralText);
    EXPECT_EQ(Parse<General>("AccessControlGeneral", R"({ "ABLock" : { "Enable" : true } })")->bDuressEnable, 0);
    EXPECT_EQ(Parse<General>("AccessControlGeneral", R"({ "DuressEnable" : true })")->stuABLock.bEnable, 0);
}

TEST(AccessGeneral, AnEmptyRecordAsText) {
    EXPECT_EQ(Pack("AccessControlGeneral", *Cleared<General>()),
              R"({ "ABLock" : { "Enable" : false }, "DuressEnable" : false, "DuressPassword" : "", )"
              R"("ProjectPassword" : "", "Sound" : { "CloseDoor" : "", "InUsed" : "", "NotClosed" : "", )"
              R"("NotInUsed" : "", "OpenDoor" : "", "Waiting" : "" }, "UnlockHoldInterval" : 0, )"
              R"("UnlockReloadInterval" : 0 })");
}

TEST(AccessGeneral, KeepsEightGroupsOfFourDoors) {
    auto general = Parse<General>(
        "AccessControlGeneral",
        R"({ "ABLock" : { "Doors" : [ [ 1, 2, 3, 4, 5 ], [ ], null, "no", [ true, "x", 7.9 ], [ 6 ], [ 7 ], [ 8 ], )"
        R"([ 9 ] ] } })");
    ASSERT_TRUE(general);
    const CFG_ACCESS_AB_LOCK& lock = general->stuABLock;
    ASSERT_EQ(lock.nGroupNum, 8);
    EXPECT_EQ(lock.stuGroups[0].nDoorNum, 4);
    EXPECT_EQ(lock.stuGroups[0].nDoors[3], 4);
    for (const int i : {1, 2, 3})
        EXPECT_EQ(lock.stuGroups[i].nDoorNum, 0) << i;
    ASSERT_EQ(lock.stuGroups[4].nDoorNum, 3);
    EXPECT_EQ(lock.stuGroups[4].nDoors[0], 1);
    EXPECT_EQ(lock.stuGroups[4].nDoors[1], 0);
    EXPECT_EQ(lock.stuGroups[4].nDoors[2], 7);
    EXPECT_EQ(lock.stuGroups[7].nDoors[0], 8);
    const std::string doors = R"("Doors" : [ [ 1, 2, 3, 4 ], null, null, null, [ 1, 0, 7 ], [ 6 ], [ 7 ], [ 8 ] ])";
    EXPECT_NE(Pack("AccessControlGeneral", *general).find(doors), std::string::npos);
    // Counts beyond the room end at the room.
    general.record->stuABLock.nGroupNum = 9;
    general.record->stuABLock.stuGroups[0].nDoorNum = 5;
    EXPECT_NE(Pack("AccessControlGeneral", *general).find(doors), std::string::npos);
    general.record->stuABLock.nGroupNum = -1;
    EXPECT_EQ(Pack("AccessControlGeneral", *general).find("Doors"), std::string::npos);
}

TEST(AccessGeneral, TheDirectionTellsWhetherItWasThere) {
    CheckNames<General>("AccessControlGeneral", "AccessProperty", &General::emAccessProperty,
                        {{1, "bidirect"}, {2, "unidirect"}}, 0, "");
    EXPECT_EQ(Parse<General>("AccessControlGeneral", R"({ "AccessProperty" : "sideways" })")->abAccessProperty, 1);
    EXPECT_EQ(Parse<General>("AccessControlGeneral", R"({ "AccessProperty" : null })")->abAccessProperty, 0);
    auto general = Cleared<General>();
    general->emAccessProperty = 1;
    EXPECT_EQ(Pack("AccessControlGeneral", *general).find("AccessProperty"), std::string::npos);
    general->abAccessProperty = 1;
    EXPECT_NE(Pack("AccessControlGeneral", *general).find(R"("AccessProperty" : "bidirect")"), std::string::npos);
}

TEST(AccessGeneral, TextsAreCutAtTheirCapacity) {
    const std::string x(300, 'x');
    std::string sound;
    for (const char* key : {"OpenDoor", "CloseDoor", "InUsed", "NotInUsed", "NotClosed", "Waiting"})
        sound += (sound.empty() ? "\"" : ", \"") + std::string(key) + "\" : \"" + x + "\"";
    const auto general =
        Parse<General>("AccessControlGeneral", "{ \"DuressPassword\" : \"" + x + "\", \"ProjectPassword\" : \"" + x
                                                   + "\", \"Sound\" : { " + sound + " } }");
    EXPECT_EQ(std::string(general->szProjectPassword), x.substr(0, 63));
    EXPECT_EQ(std::string(general->szDuressPassword), x.substr(0, 63));
    const CFG_ACCESS_SOUND& names = general->stuSound;
    for (const char* text :
         {names.szOpenDoor, names.szCloseDoor, names.szInUsed, names.szNotInUsed, names.szNotClosed, names.szWaiting})
        EXPECT_EQ(std::string(text), x.substr(0, 255));
}

// ---- "AccessTimeSchedule" ----

using Plan = CFG_ACCESS_TIME_SCHEDULE_INFO;

// A week of four sections a day; `at(day, section)` is the text of each.
template <class At>
std::string PlanText(At at) {
    std::string week;
    for (int day = 0; day < 7; ++day) {
        week += day == 0 ? "[ [ " : ", [ ";
        for (int section = 0; section < 4; ++section)
            week += (section == 0 ? "\"" : ", \"") + at(day, section) + "\"";
        week += " ]";
    }
    return week + " ]";
}

std::string Two(int number) {
    return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
}

TEST(AccessTimeSchedule, ReadsAndWritesAllKeys) {
    const auto section = [](int day, int i) {
        return std::to_string(day) + " 0" + std::to_string(i) + ":" + Two(10 + day) + ":" + Two(20 + i) + "-1"
               + std::to_string(i) + ":" + Two(30 + day) + ":" + Two(40 + i);
    };
    const std::string text = R"({ "Enable" : true, "Name" : "Weekdays", "TimeSchedule" : )" + PlanText(section) + " }";
    const auto plan = Parse<Plan>("AccessTimeSchedule", text);
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan.length, sizeof(Plan));
    EXPECT_EQ(plan->bEnable, 1);
    EXPECT_STREQ(plan->szName, "Weekdays");
    for (int day = 0; day < 7; ++day) {
        for (int i = 0; i < 4; ++i) {
            const CFG_TIME_SECTION& read = plan->stuTimeSection[day][i];
            EXPECT_EQ(read.dwMask, day);
            EXPECT_EQ(read.nBeginHour, i);
            EXPECT_EQ(read.nBeginMin, 10 + day);
            EXPECT_EQ(read.nBeginSec, 20 + i);
            EXPECT_EQ(read.nEndHour, 10 + i);
            EXPECT_EQ(read.nEndMin, 30 + day);
            EXPECT_EQ(read.nEndSec, 40 + i);
        }
    }
    EXPECT_EQ(Pack("AccessTimeSchedule", *plan), text);
}

TEST(AccessTimeSchedule, AnEmptyRecordHasAllSections) {
    EXPECT_EQ(Pack("AccessTimeSchedule", *Cleared<Plan>()),
              R"({ "Enable" : false, "Name" : "", "TimeSchedule" : )"
                  + PlanText([](int, int) { return std::string("0 00:00:00-00:00:00"); }) + " }");
}

TEST(AccessTimeSchedule, MissingDaysStayZeroAndTheOthersAreRead) {
    const auto plan = Parse<Plan>(
        "AccessTimeSchedule",
        R"({ "TimeSchedule" : [ null, [ "1 08:00:00-09:00:00", "bad", "1 008:00:00-09:00:00", "1 10:00:00-11:00:00", )"
        R"("1 12:00:00-13:00:00" ], 5, { "a" : 1 }, [ 3, null, "2 1:2:3-4:5:6" ] ] })");
    ASSERT_TRUE(plan);
    const auto isZero = [](const CFG_TIME_SECTION& section) {
        const CFG_TIME_SECTION zero{};
        return std::memcmp(&section, &zero, sizeof zero) == 0;
    };
    const auto& week = plan->stuTimeSection;
    for (const int day : {0, 2, 3, 5, 6}) {
        for (const CFG_TIME_SECTION& section : week[day])
            EXPECT_TRUE(isZero(section)) << day;
    }
    EXPECT_EQ(week[1][0].nEndHour, 9);
    EXPECT_TRUE(isZero(week[1][1]));
    EXPECT_EQ(week[1][2].dwMask, 1); // what was matched before a number of three digits stays
    EXPECT_EQ(week[1][2].nBeginHour, 0);
    EXPECT_EQ(week[1][2].nEndHour, 0);
    EXPECT_EQ(week[1][3].nBeginHour, 10);
    EXPECT_TRUE(isZero(week[4][1]));
    EXPECT_EQ(week[4][2].nEndSec, 6);
}

TEST(AccessTimeSchedule, KeepsSevenDaysAndOnlyOfAList) {
    std::string eight = R"({ "TimeSchedule" : [ )";
    for (int day = 1; day <= 8; ++day)
        eight += (day > 1 ? ", [ \"" : "[ \"") + std::to_string(day) + " 01:02:03-04:05:06\" ]";
    const auto plan = Parse<Plan>("AccessTimeSchedule", eight + " ], \"Enable\" : false }");
    EXPECT_EQ(plan->stuTimeSection[6][0].dwMask, 7);
    EXPECT_EQ(plan->bEnable, 0);
    for (const char* value : {R"({ "0" : [ "1 01:02:03-04:05:06" ] })", R"("1 01:02:03-04:05:06")", "null"}) {
        const auto none = Parse<Plan>("AccessTimeSchedule", "{ \"TimeSchedule\" : " + std::string(value) + " }");
        ASSERT_TRUE(none);
        EXPECT_TRUE(none.isCleared()) << value;
    }
    const auto cut = Parse<Plan>("AccessTimeSchedule", "{ \"Name\" : \"" + std::string(130, 'n') + "\" }");
    EXPECT_EQ(std::string(cut->szName), std::string(127, 'n'));
}

TEST(AccessTimeSchedule, APlanAnElement) {
    const Records<Plan> plans(2, 0x5A);
    EXPECT_EQ(ParseTable("AccessTimeSchedule", R"([ { "Name" : "a" }, { "Name" : "b" }, { "Name" : "c" } ])", plans),
              (Answer{1, 2 * sizeof(Plan)}));
    EXPECT_STREQ(plans[0].szName, "a");
    EXPECT_STREQ(plans[1].szName, "b");
    const std::string week = PlanText([](int, int) { return std::string("0 00:00:00-00:00:00"); });
    EXPECT_EQ(PackAll("AccessTimeSchedule", plans), R"([ { "Enable" : false, "Name" : "a", "TimeSchedule" : )" + week
                                                        + R"( }, { "Enable" : false, "Name" : "b", "TimeSchedule" : )"
                                                        + week + " } ]");
}

// ---- "OpenDoorGroup" ----

using Groups = CFG_OPEN_DOOR_GROUP_INFO;

TEST(OpenDoorGroup, ReadsAndWritesAllKeys) {
    const std::string text = R"({ "Group" : [ { "Count" : 2, "Detail" : [ { "Method" : "Password", "UserID" : "u1" }, )"
                             R"({ "Method" : "Face", "UserID" : "u2" }, { "Method" : "Card", "UserID" : "u3" } ] }, )"
                             R"({ "Count" : 7, "Detail" : [ { "Method" : "C|P|F", "UserID" : "u4" } ] } ] })";
    const auto groups = Parse<Groups>("OpenDoorGroup", text);
    ASSERT_TRUE(groups);
    EXPECT_EQ(groups.length, sizeof(Groups));
    ASSERT_EQ(groups->nGroupNum, 2);
    EXPECT_EQ(groups->stuGroup[0].nCount, 2);
    ASSERT_EQ(groups->stuGroup[0].nDetailNum, 3);
    EXPECT_STREQ(groups->stuGroup[0].stuDetail[0].szUserID, "u1");
    EXPECT_EQ(groups->stuGroup[0].stuDetail[0].emMethod, CFG_OPEN_DOOR_METHOD_PASSWORD);
    EXPECT_EQ(groups->stuGroup[0].stuDetail[1].emMethod, CFG_OPEN_DOOR_METHOD_FACE);
    EXPECT_STREQ(groups->stuGroup[0].stuDetail[2].szUserID, "u3");
    EXPECT_EQ(groups->stuGroup[1].nCount, 7);
    ASSERT_EQ(groups->stuGroup[1].nDetailNum, 1);
    EXPECT_EQ(groups->stuGroup[1].stuDetail[0].emMethod, CFG_OPEN_DOOR_METHOD_CARD_PASSWORD_FINGER);
    EXPECT_EQ(Pack("OpenDoorGroup", *groups), text);
}

TEST(OpenDoorGroup, CountAndDetailAreApart) {
    const auto groups =
        Parse<Groups>("OpenDoorGroup", R"({ "Group" : [ { "Count" : 100 }, { "Detail" : [ { } ] } ] })");
    EXPECT_EQ(groups->stuGroup[0].nCount, 100);
    EXPECT_EQ(groups->stuGroup[0].nDetailNum, 0);
    EXPECT_EQ(groups->stuGroup[1].nCount, 0);
    EXPECT_EQ(groups->stuGroup[1].nDetailNum, 1);
    EXPECT_EQ(
        Pack("OpenDoorGroup", *groups),
        R"({ "Group" : [ { "Count" : 100 }, { "Count" : 0, "Detail" : [ { "Method" : "Card", "UserID" : "" } ] } ] })");
    EXPECT_EQ(Pack("OpenDoorGroup", *Cleared<Groups>()), "null");
}

TEST(OpenDoorGroup, KeepsFourGroupsOfSixtyFour) {
    std::string group = R"({ "Detail" : [ )";
    for (int i = 0; i < 70; ++i)
        group += (i > 0 ? ", { \"UserID\" : \"u" : "{ \"UserID\" : \"u") + std::to_string(i) + "\" }";
    group += " ] }";
    std::string table = "{ \"Group\" : [ " + group;
    for (int i = 1; i < 6; ++i)
        table += ", " + group;
    auto groups = Parse<Groups>("OpenDoorGroup", table + " ] }");
    ASSERT_TRUE(groups);
    EXPECT_EQ(groups->nGroupNum, 4);
    EXPECT_EQ(groups->stuGroup[3].nDetailNum, 64);
    EXPECT_STREQ(groups->stuGroup[3].stuDetail[63].szUserID, "u63");
    const std::string text = Pack("OpenDoorGroup", *groups);
    groups.record->nGroupNum = 5;
    groups.record->stuGroup[0].nDetailNum = 65;
    EXPECT_EQ(Pack("OpenDoorGroup", *groups), text);
    EXPECT_NE(text.find("\"UserID\" : \"u63\" } ]"), std::string::npos);
}

TEST(OpenDoorGroup, Methods) {
    const auto read = [](const std::string& value) {
        return Parse<Groups>("OpenDoorGroup", R"({ "Group" : [ { "Detail" : [ { "Method" : )" + value + " } ] } ] }")
            ->stuGroup[0]
            .stuDetail[0]
            .emMethod;
    };
    const auto written = [](std::int32_t code) {
        auto groups = Cleared<Groups>();
        groups->nGroupNum = groups->stuGroup[0].nDetailNum = 1;
        groups->stuGroup[0].stuDetail[0].emMethod = code;
        return Pack("OpenDoorGroup", *groups);
    };
    constexpr const char* kNames[] = {"Card", "Password", "Fingerprint", "C|P|F", "Face"};
    for (int code = 0; code < 5; ++code) {
        EXPECT_EQ(read("\"" + std::string(kNames[code]) + "\""), code);
        EXPECT_EQ(written(code), R"({ "Group" : [ { "Count" : 0, "Detail" : [ { "Method" : ")"
                                     + std::string(kNames[code]) + R"(", "UserID" : "" } ] } ] })");
    }
    EXPECT_EQ(read("\"fACE\""), 4);
    EXPECT_EQ(read("\"c|p|f\""), 3);
    for (const char* value : {"\"Iris\"", "\"\"", "1", "true", "{ }"})
        EXPECT_EQ(read(value), -1) << value;
    EXPECT_EQ(read("null"), 0); // as every other key that is absent
    for (const std::int32_t code : {-1, 5})
        EXPECT_EQ(written(code), R"({ "Group" : [ { "Count" : 0, "Detail" : [ { "UserID" : "" } ] } ] })");
    const auto cut = Parse<Groups>("OpenDoorGroup", R"({ "Group" : [ { "Detail" : [ { "UserID" : ")"
                                                        + std::string(40, 'u') + "\" } ] } ] }");
    EXPECT_EQ(std::string(cut->stuGroup[0].stuDetail[0].szUserID), std::string(31, 'u'));
}

// ---- "OpenDoorRoute" ----

using Route = CFG_OPEN_DOOR_ROUTE_INFO;

TEST(OpenDoorRoute, ReadsAndWritesAllKeys) {
    const std::string text =
        R"({ "DoorList" : [ { "Doors" : [ { "ReaderID" : "r1" }, { "ReaderID" : "r2" } ] }, )"
        R"({ "Doors" : [ { "ReaderID" : "r3" } ] } ], "ResetTime" : 2147483648, "TimeSections" : -5 })";
    const auto route = Parse<Route>("OpenDoorRoute", text);
    ASSERT_TRUE(route);
    EXPECT_EQ(route.length, sizeof(Route));
    ASSERT_EQ(route->nStepNum, 2);
    ASSERT_EQ(route->stuSteps[0].nDoorNum, 2);
    EXPECT_STREQ(route->stuSteps[0].stuDoors[0].szReaderID, "r1");
    EXPECT_STREQ(route->stuSteps[0].stuDoors[1].szReaderID, "r2");
    ASSERT_EQ(route->stuSteps[1].nDoorNum, 1);
    EXPECT_STREQ(route->stuSteps[1].stuDoors[0].szReaderID, "r3");
    EXPECT_EQ(route->nTimeSections, -5);
    EXPECT_EQ(route->nResetTime, 2147483648u);
    EXPECT_EQ(Pack("OpenDoorRoute", *route), text);
}

TEST(OpenDoorRoute, NumbersAreReadFromTheirOwnTypeAlone) {
    const auto sections = [](const char* value) {
        return Parse<Route>("OpenDoorRoute", "{ \"TimeSections\" : " + std::string(value) + " }")->nTimeSections;
    };
    EXPECT_EQ(sections("3"), 3);
    EXPECT_EQ(sections("2147483647"), 2147483647);
    for (const char* value : {"1.5", "2147483648", "true", "\"3\"", "[ 3 ]", "null"})
        EXPECT_EQ(sections(value), 0) << value;
    const auto reset = [](const char* value) {
        return Parse<Route>("OpenDoorRoute", "{ \"ResetTime\" : " + std::string(value) + " }")->nResetTime;
    };
    EXPECT_EQ(reset("2147483648"), 2147483648u);
    EXPECT_EQ(reset("4294967289"), 4294967289u); // the largest that a text holds: the next are reals
    for (const char* value : {"30", "2147483647", "4294967290", "-1", "30.0", "true", "\"30\"", "null"})
        EXPECT_EQ(reset(value), 0u) << value;
    auto route = Cleared<Route>();
    route->nResetTime = 30;
    EXPECT_EQ(Pack("OpenDoorRoute", *route), R"({ "ResetTime" : 30, "TimeSections" : 0 })");
}

TEST(OpenDoorRoute, KeepsSixteenStepsOfEightDoors) {
    std::string step = R"({ "Doors" : [ )";
    for (int i = 0; i < 10; ++i)
        step += (i > 0 ? ", { \"ReaderID\" : \"r" : "{ \"ReaderID\" : \"r") + std::to_string(i) + "\" }";
    step += " ] }";
    std::string table = "{ \"DoorList\" : [ { \"Doors\" : [ { \"ReaderID\" : \"" + std::string(40, 'r') + "\" } ] }";
    for (int i = 1; i < 20; ++i)
        table += ", " + step;
    auto route = Parse<Route>("OpenDoorRoute", table + " ] }");
    ASSERT_TRUE(route);
    EXPECT_EQ(route->nStepNum, 16);
    EXPECT_EQ(std::string(route->stuSteps[0].stuDoors[0].szReaderID), std::string(31, 'r'));
    EXPECT_EQ(route->stuSteps[15].nDoorNum, 8);
    EXPECT_STREQ(route->stuSteps[15].stuDoors[7].szReaderID, "r7");
    const std::string text = Pack("OpenDoorRoute", *route);
    route.record->nStepNum = 17;
    route.record->stuSteps[15].nDoorNum = 9;
    EXPECT_EQ(Pack("OpenDoorRoute", *route), text);
    route.record->nStepNum = 1;
    route.record->stuSteps[0].nDoorNum = 0;
    EXPECT_EQ(Pack("OpenDoorRoute", *route), R"({ "DoorList" : [ null ], "ResetTime" : 0, "TimeSections" : 0 })");
}

// ---- "AccessWorkMode" ----

using WorkMode = CFG_ACCESS_WORK_MODE_INFO;

TEST(AccessWorkMode, AValueAnElement) {
    static_assert(sizeof(WorkMode) == 4);
    const std::string table =
        R"([ { "Mode" : "Normal" }, { "Mode" : "Clean" }, { "Mode" : "Decoration" }, { "Mode" : "Unused" }, )"
        R"({ "Mode" : "Outstanding" } ])";
    const Records<WorkMode> modes(5, 0x5A);
    EXPECT_EQ(ParseTable("AccessWorkMode", table, modes), (Answer{1, 20}));
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(modes[i].emMode, i + 1);
    EXPECT_EQ(PackAll("AccessWorkMode", modes), table);
    const Records<WorkMode> three(3, 3, 0x5A);
    EXPECT_EQ(ParseTable("AccessWorkMode", table, three), (Answer{1, 12}));
    EXPECT_EQ(three[2].emMode, 3);
    EXPECT_EQ(three.data()[12], 0); // cleared whole, and only whole records are read
}

TEST(AccessWorkMode, BareBelowTwoRecords) {
    const std::int32_t modes[] = {2, 0};
    const auto pack = [&](std::size_t size) {
        return WithoutNewline(PackBytes("AccessWorkMode", modes, size, kAmple));
    };
    for (std::size_t size = 0; size < 4; ++size)
        EXPECT_EQ(pack(size), kNotBegun);
    for (std::size_t size = 4; size < 8; ++size)
        EXPECT_EQ(pack(size), R"({ "Mode" : "Clean" })");
    EXPECT_EQ(pack(8), R"([ { "Mode" : "Clean" }, { "Mode" : "" } ])");
}

TEST(AccessWorkMode, Names) {
    CheckNames<WorkMode>("AccessWorkMode", "Mode", &WorkMode::emMode,
                         {{1, "Normal"}, {2, "Clean"}, {3, "Decoration"}, {4, "Unused"}, {5, "Outstanding"}}, 0, "");
    const auto one = Parse<WorkMode>("AccessWorkMode", "{ }");
    ASSERT_TRUE(one);
    EXPECT_EQ(one.length, 4u);
    EXPECT_EQ(one->emMode, 0);
}

// ---- "AccessControlTextDisplay" and the capabilities ----

TEST(AccessTextDisplay, ThereAndBack) {
    const std::string text = R"({ "OpenFailed" : "Stop", "OpenSucceed" : "Come in" })";
    const auto display = Parse<CFG_ACCESS_TEXT_DISPLAY_INFO>("AccessControlTextDisplay", text);
    ASSERT_TRUE(display);
    EXPECT_EQ(display.length, 64u);
    EXPECT_STREQ(display->szOpenSucceed, "Come in");
    EXPECT_STREQ(display->szOpenFailed, "Stop");
    EXPECT_EQ(Pack("AccessControlTextDisplay", *display), text);
    const auto cut = Parse<CFG_ACCESS_TEXT_DISPLAY_INFO>("AccessControlTextDisplay",
                                                         R"({ "OpenSucceed" : "0123456789abcdef0123456789abcdefX",
                                                              "OpenFailed" : "0123456789ABCDEF0123456789ABCDEFX" })");
    EXPECT_STREQ(cut->szOpenSucceed, "0123456789abcdef0123456789abcde");
    EXPECT_STREQ(cut->szOpenFailed, "0123456789ABCDEF0123456789ABCDE");
}

TEST(AccessCaps, AreReadOnly) {
    const std::string caps =
        R"({ "AccessControlChannels" : 1, "CustomPasswordEncryption" : 2, "SupportFingerPrint" : 3, )"
        R"("OnlySingleDoorAuth" : 4, "AsynAuth" : -5, "AccessControlAlarmRecord" : true, )"
        R"("SpecialDaysSchedule" : { "Support" : true, "MaxSpecialDaysSchedules" : 4000000006, )"
        R"("MaxTimePeriodsPerDay" : 7, "MaxSpecialDayGroups" : 8, "MaxDaysInSpecialDayGroup" : -9 } })";
    const auto parse = [](const std::string& result, const std::string& params) {
        return ParseDocument<CFG_ACCESS_CAPS>("accessControlManager.getCaps",
                                              "{ \"result\" : " + result + ", \"params\" : " + params + " }");
    };
    const auto read = parse("true", "{ \"caps\" : " + caps + " }");
    ASSERT_TRUE(read);
    EXPECT_EQ(read.length, sizeof(CFG_ACCESS_CAPS));
    EXPECT_EQ(read->nAccessControlChannels, 1);
    EXPECT_EQ(read->nCustomPasswordEncryption, 2);
    EXPECT_EQ(read->nSupportFingerPrint, 3);
    EXPECT_EQ(read->nOnlySingleDoorAuth, 4);
    EXPECT_EQ(read->nAsynAuth, -5);
    EXPECT_EQ(read->bAccessControlAlarmRecord, 1);
    EXPECT_EQ(read->bSpecialDaysSchedule, 1);
    EXPECT_EQ(read->nMaxSpecialDaysSchedules, 4000000006u);
    EXPECT_EQ(read->nMaxTimePeriodsPerDay, 7u);
    EXPECT_EQ(read->nMaxSpecialDayGroups, 8u);
    EXPECT_EQ(read->nMaxDaysInSpecialDayGroup, 0u); // a negative number is none
    EXPECT_EQ(Pack("accessControlManager.getCaps", *read), kNotBegun);

    const auto one = parse("true", R"({ "caps" : { "AccessControlAlarmRecord" : true } })");
    EXPECT_EQ(one->bAccessControlAlarmRecord, 1);
    EXPECT_EQ(one->bSpecialDaysSchedule, 0);
    EXPECT_FALSE(parse("false", "{ \"caps\" : " + caps + " }"));
    for (const std::string params : {"{ }", "{ \"caps\" : null }"}) {
        const auto failed = parse("true", params);
        EXPECT_FALSE(failed);
        EXPECT_TRUE(failed.isCleared());
    }
    EXPECT_FALSE(parse("true", "{ \"table\" : " + caps + " }"));
}

// ---- What the commands have in common ----

constexpr const char* kCommands[] = {"AccessControlGeneral",    "AccessControl", "AccessTimeSchedule",
                                     "OpenDoorGroup",           "OpenDoorRoute", "AccessWorkMode",
                                     "AccessControlTextDisplay"};

TEST(Access, RefusedRepliesAndMissingTablesFail) {
    for (const char* command : kCommands) {
        ExpectRefusalsToFail(command);
    }
}

TEST(Access, ListsFailWithoutARecord) {
    for (const char* command : {"AccessControl", "AccessTimeSchedule", "AccessWorkMode"}) {
        for (const char* table : {"[ ]", "\"text\"", "5", "true"}) {
            std::vector<char> buffer(64 << 10, 'x');
            const std::string document = R"({ "result" : true, "params" : { "table" : )" + std::string(table) + " } }";
            EXPECT_EQ(CLIENT_ParseData(command, document.c_str(), buffer.data(), 64 << 10, nullptr), 0)
                << command << table;
            EXPECT_EQ(buffer, std::vector<char>(buffer.size())) << command << table;
        }
    }
}

TEST(Access, ATextMustBeShorterThanItsBuffer) {
    const CFG_ACCESS_WORK_MODE_INFO mode{1};
    const std::string text = "{ \"Mode\" : \"Normal\" }\n";
    EXPECT_EQ(PackBytes("AccessWorkMode", &mode, sizeof mode, text.size()), kFailed);
    EXPECT_EQ(PackBytes("AccessWorkMode", &mode, sizeof mode, text.size() + 1), text);
    const CFG_ACCESS_TEXT_DISPLAY_INFO display{"a", "b"};
    const std::string shown = "{ \"OpenFailed\" : \"b\", \"OpenSucceed\" : \"a\" }\n";
    EXPECT_EQ(PackBytes("AccessControlTextDisplay", &display, sizeof display, shown.size()), kFailed);
    EXPECT_EQ(PackBytes("AccessControlTextDisplay", &display, sizeof display, shown.size() + 1), shown);
}

} // namespace
} // namespace orrery::test
