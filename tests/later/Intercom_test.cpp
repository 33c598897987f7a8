// Intercoms and alarm hosts: numbers, calls, bells, who is told of an alarm.
#include "later/TableCalls.h"
#include "orrery/intercom.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// ---- "VTHNumberInfo" -----------------------------------------------------------------------------------------------

TEST(VthNumber, GoesRoundWhole) {
    const auto read = GoesRound<CFG_VTH_NUMBER_INFO>(
        "VTHNumberInfo", R"({ "AppType" : "Manager", "LockState" : 1, "MainDeviceIP" : "I2", "MainNumber" : "M3", )"
                         R"("MiddleNumber" : "M4", "Password" : "P5", "ShortNumber" : "S6", "SubNumber" : "S7", )"
                         R"("Type" : "Main", "Username" : "U8", "VirtualNumber" : "V9" })");
    EXPECT_STREQ(read.szShortNumber, "S6");
    EXPECT_STREQ(read.szMiddleNumber, "M4");
    EXPECT_STREQ(read.szVirtualNumber, "V9");
    EXPECT_STREQ(read.szMainNumber, "M3");
    EXPECT_STREQ(read.szSubNumber, "S7");
    EXPECT_STREQ(read.szMainDeviceIP, "I2");
    EXPECT_EQ(read.emType, CFG_VTH_MAIN);
    EXPECT_EQ(read.emAppType, CFG_VTH_APP_MANAGER);
    EXPECT_EQ(read.nLockState, 1);
    EXPECT_STREQ(read.szUsername, "U8");
    EXPECT_STREQ(read.szPassword, "P5");
}

TEST(VthNumber, IsAnObjectOrTheFirstOfAnArray) {
    TryFirst("VTHNumberInfo", "LockState", &CFG_VTH_NUMBER_INFO::nLockState);
    TryWithoutKeys<CFG_VTH_NUMBER_INFO>(
        "VTHNumberInfo", R"({ "AppType" : "", "LockState" : 0, "MainDeviceIP" : "", "MainNumber" : "", )"
                         R"("MiddleNumber" : "", "Password" : "", "ShortNumber" : "", "SubNumber" : "", )"
                         R"("Type" : "", "Username" : "", "VirtualNumber" : "" })");
}

TEST(VthNumber, NamesAndTexts) {
    TryNames("VTHNumberInfo", "Type", &CFG_VTH_NUMBER_INFO::emType, {"", "Main", "Sub"});
    TryNames("VTHNumberInfo", "AppType", &CFG_VTH_NUMBER_INFO::emAppType, {"", "Common", "Manager"});
    TryText("VTHNumberInfo", "ShortNumber", &CFG_VTH_NUMBER_INFO::szShortNumber, 32);
    TryText("VTHNumberInfo", "MiddleNumber", &CFG_VTH_NUMBER_INFO::szMiddleNumber, 32);
    TryText("VTHNumberInfo", "VirtualNumber", &CFG_VTH_NUMBER_INFO::szVirtualNumber, 32);
    TryText("VTHNumberInfo", "MainNumber", &CFG_VTH_NUMBER_INFO::szMainNumber, 32);
    TryText("VTHNumberInfo", "SubNumber", &CFG_VTH_NUMBER_INFO::szSubNumber, 32);
    TryText("VTHNumberInfo", "MainDeviceIP", &CFG_VTH_NUMBER_INFO::szMainDeviceIP, 64);
    TryText("VTHNumberInfo", "Username", &CFG_VTH_NUMBER_INFO::szUsername, 64);
    TryText("VTHNumberInfo", "Password", &CFG_VTH_NUMBER_INFO::szPassword, 64);
}

// ---- "VTOCallInfo" -------------------------------------------------------------------------------------------------

const std::string kNever = "\"0 00:00:00-00:00:00\"";

std::string Never(int sections) {
    std::string list = "[ " + kNever;
    for (int i = 1; i < sections; ++i)
        list += ", " + kNever;
    return list + " ]";
}

TEST(VtoCalling, GoesRoundWhole) {
    const std::string sunday = R"([ "1 01:02:03-04:05:06", )" + Never(5).substr(2);
    std::string week = "[ " + sunday;
    for (int day = 1; day < 6; ++day)
        week += ", " + Never(6);
    week += ", [ " + kNever + R"(, "2 07:08:09-10:11:12", )" + Never(4).substr(2) + " ]";
    const auto read = GoesRound<CFG_VTO_CALLING_INFO>(
        "VTOCallInfo", R"({ "CallVTSEnable" : [ "1 08:00:00-12:30:00", "1 13:00:00-17:30:05", )" + Never(4).substr(2)
                           + R"(, "GroupCallEnable" : true, "MainVtoIP" : "I1", "ManagerNumber" : "M2", )"
                             R"("MaxExtensionIndex" : 3, "RoomRule" : "R4", "TimeSection" : )"
                           + week + R"(, "UrgentNumber" : "U5" })");
    EXPECT_STREQ(read.szMainVtoIP, "I1");
    EXPECT_EQ(read.bGroupCallEnable, 1);
    EXPECT_STREQ(read.szManagerNumber, "M2");
    EXPECT_STREQ(read.szUrgentNumber, "U5");
    EXPECT_EQ(read.stuCallVTSEnable[0].dwMask, 1);
    EXPECT_EQ(read.stuCallVTSEnable[0].nEndMin, 30);
    EXPECT_EQ(read.stuCallVTSEnable[1].nBeginHour, 13);
    EXPECT_EQ(read.stuCallVTSEnable[1].nEndSec, 5);
    EXPECT_EQ(read.nMaxExtensionIndex, 3);
    EXPECT_STREQ(read.szRoomRule, "R4");
    EXPECT_EQ(read.stuTimeSection[0][0].nBeginSec, 3);
    EXPECT_EQ(read.stuTimeSection[6][1].dwMask, 2);
    EXPECT_EQ(read.stuTimeSection[6][1].nEndHour, 10);
}

TEST(VtoCalling, SectionsAreAFlatListThatGoesOnBehindABadOne) {
    const auto sections = [](const std::string& value) {
        return ReadOne<CFG_VTO_CALLING_INFO>("VTOCallInfo", R"({ "CallVTSEnable" : )" + value + " }");
    };
    std::string eight = "[ \"bad\", 5, null, [ \"1 1:0:0-2:0:0\" ]";
    for (int i = 4; i < 8; ++i)
        eight += ", \"" + std::to_string(i) + " 8:00:00-9:00:00\"";
    const auto read = sections(eight + " ]");
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(read.stuCallVTSEnable[i].dwMask, 0) << i;
    EXPECT_EQ(read.stuCallVTSEnable[4].dwMask, 4);
    EXPECT_EQ(read.stuCallVTSEnable[5].dwMask, 5); // the last that fits
    for (const auto& day : read.stuTimeSection)
        EXPECT_EQ(day[0].dwMask, 0);
    const auto part = sections(R"([ "7 8:09", "6 008:00:00-9:00:00" ])");
    EXPECT_EQ(part.stuCallVTSEnable[0].dwMask, 7); // as far as it goes
    EXPECT_EQ(part.stuCallVTSEnable[0].nBeginMin, 9);
    EXPECT_EQ(part.stuCallVTSEnable[0].nEndHour, 0);
    EXPECT_EQ(part.stuCallVTSEnable[1].nEndHour, 9); // numbers of any width
    for (const char* value : {"[ ]", "null", "\"1 08:00:00-12:00:00\"", R"({ "0" : "1 08:00:00-12:00:00" })"})
        EXPECT_EQ(sections(value).stuCallVTSEnable[0].dwMask, 0) << value;
}

TEST(VtoCalling, TheWeekEndsAtItsFirstBadSection) {
    const auto read = ReadOne<CFG_VTO_CALLING_INFO>(
        "VTOCallInfo", R"({ "TimeSection" : [ [ "1 08:00:00-12:00:00", "bad", "3 08:00:00-12:00:00" ], )"
                       R"([ "4 08:00:00-12:00:00" ] ] })");
    EXPECT_EQ(read.stuTimeSection[0][0].dwMask, 1);
    EXPECT_EQ(read.stuTimeSection[0][2].dwMask, 0);
    EXPECT_EQ(read.stuTimeSection[1][0].dwMask, 0);
}

TEST(VtoCalling, OneRecordAndItsTexts) {
    TryOne("VTOCallInfo", "MaxExtensionIndex", &CFG_VTO_CALLING_INFO::nMaxExtensionIndex);
    TrySwitches<CFG_VTO_CALLING_INFO>("VTOCallInfo", {{"GroupCallEnable", &CFG_VTO_CALLING_INFO::bGroupCallEnable}});
    TryText("VTOCallInfo", "MainVtoIP", &CFG_VTO_CALLING_INFO::szMainVtoIP, 256);
    TryText("VTOCallInfo", "ManagerNumber", &CFG_VTO_CALLING_INFO::szManagerNumber, 32);
    TryText("VTOCallInfo", "UrgentNumber", &CFG_VTO_CALLING_INFO::szUrgentNumber, 32);
    TryText("VTOCallInfo", "RoomRule", &CFG_VTO_CALLING_INFO::szRoomRule, 32);
}

// ---- "VTHRemoteIPCInfo" --------------------------------------------------------------------------------------------

TEST(VthRemoteIpc, GoesRoundWhole) {
    const auto read = GoesRound<CFG_VTH_REMOTE_IPC_INFO>(
        "VTHRemoteIPCInfo", R"([ { "Address" : "A1", "Channel" : 2, "ID" : "I3", "Name" : "N4", "Password" : "P5", )"
                            R"("Port" : 6, "ProtocolType" : "T7", "UserName" : "U8" }, { "Address" : "A9", )"
                            R"("Channel" : 10, "ID" : "I11", "Name" : "N12", "Password" : "P13", "Port" : 14, )"
                            R"("ProtocolType" : "T15", "UserName" : "U16" } ])");
    ASSERT_EQ(read.nCount, 2);
    EXPECT_STREQ(read.stuCameras[0].szID, "I3");
    EXPECT_STREQ(read.stuCameras[0].szName, "N4");
    EXPECT_STREQ(read.stuCameras[0].szAddress, "A1");
    EXPECT_EQ(read.stuCameras[0].nPort, 6);
    EXPECT_STREQ(read.stuCameras[0].szUserName, "U8");
    EXPECT_STREQ(read.stuCameras[0].szPassword, "P5");
    EXPECT_STREQ(read.stuCameras[0].szProtocolType, "T7");
    EXPECT_EQ(read.stuCameras[0].nChannel, 2);
    EXPECT_STREQ(read.stuCameras[1].szID, "I11");
    EXPECT_EQ(read.stuCameras[1].nChannel, 10);
}

TEST(VthRemoteIpc, TheRoomOfTexts) {
    std::string camera = "{ \"Port\" : 1";
    for (const char* key : {"ID", "Name", "Address", "UserName", "Password", "ProtocolType"})
        camera += ", \"" + std::string(key) + "\" : \"" + std::string(200, 'x') + "\"";
    const auto read = ReadOne<CFG_VTH_REMOTE_IPC_INFO>("VTHRemoteIPCInfo", "[ null, " + camera + " } ]");
    ASSERT_EQ(read.nCount, 2);
    EXPECT_STREQ(read.stuCameras[0].szID, "");
    const CFG_REMOTE_CAMERA& full = read.stuCameras[1];
    EXPECT_EQ(std::string(full.szID), std::string(63, 'x'));
    EXPECT_EQ(std::string(full.szName), std::string(63, 'x'));
    EXPECT_EQ(std::string(full.szAddress), std::string(127, 'x'));
    EXPECT_EQ(std::string(full.szUserName), std::string(63, 'x'));
    EXPECT_EQ(std::string(full.szPassword), std::string(63, 'x'));
    EXPECT_EQ(std::string(full.szProtocolType), std::string(31, 'x'));
    EXPECT_EQ(full.nPort, 1);
}

TEST(VthRemoteIpc, KeepsThirtyTwoCameras) {
    TryWithoutKeys<CFG_VTH_REMOTE_IPC_INFO>("VTHRemoteIPCInfo", "null");
    for (const int cameras : {31, 32, 33}) {
        std::string list = "[ { }";
        for (int i = 1; i < cameras; ++i)
            list += ", { \"Channel\" : " + std::to_string(i) + " }";
        auto read = ReadOne<CFG_VTH_REMOTE_IPC_INFO>("VTHRemoteIPCInfo", list + " ]");
        EXPECT_EQ(read.nCount, std::min(cameras, 32));
        EXPECT_EQ(read.stuCameras[read.nCount - 1].nChannel, read.nCount - 1);
        const std::string text = Pack("VTHRemoteIPCInfo", read);
        if (cameras < 32) continue;
        read.nCount = 33;
        EXPECT_EQ(Pack("VTHRemoteIPCInfo", read), text);
        read.nCount = -1;
        EXPECT_EQ(Pack("VTHRemoteIPCInfo", read), "null");
    }
}

// ---- "CallForward", "DoorBellSound" --------------------------------------------------------------------------------

TEST(CallForward, GoesRoundWhole) {
    const auto read = GoesRound<CFG_CALL_FORWARD_INFO>(
        "CallForward", R"({ "AlwaysForwardEnable" : true, "AlwaysForwardNumber" : "N1", "BusyForwardEnable" : true, )"
                       R"("BusyForwardNumber" : "N2", "NoAnswerForwardEnable" : true, )"
                       R"("NoAnswerForwardNumber" : "N3" })");
    EXPECT_STREQ(read.szAlwaysForwardNumber, "N1");
    EXPECT_STREQ(read.szBusyForwardNumber, "N2");
    EXPECT_STREQ(read.szNoAnswerForwardNumber, "N3");
    TrySwitches<CFG_CALL_FORWARD_INFO>("CallForward",
                                       {{"AlwaysForwardEnable", &CFG_CALL_FORWARD_INFO::bAlwaysForwardEnable},
                                        {"BusyForwardEnable", &CFG_CALL_FORWARD_INFO::bBusyForwardEnable},
                                        {"NoAnswerForwardEnable", &CFG_CALL_FORWARD_INFO::bNoAnswerForwardEnable}});
    TryText("CallForward", "AlwaysForwardNumber", &CFG_CALL_FORWARD_INFO::szAlwaysForwardNumber, 32);
    TryText("CallForward", "BusyForwardNumber", &CFG_CALL_FORWARD_INFO::szBusyForwardNumber, 32);
    TryText("CallForward", "NoAnswerForwardNumber", &CFG_CALL_FORWARD_INFO::szNoAnswerForwardNumber, 32);
    TryWithoutKeys<CFG_CALL_FORWARD_INFO>(
        "CallForward", R"({ "AlwaysForwardEnable" : false, "AlwaysForwardNumber" : "", "BusyForwardEnable" : false, )"
                       R"("BusyForwardNumber" : "", "NoAnswerForwardEnable" : false, "NoAnswerForwardNumber" : "" })");
}

TEST(CallForward, ARecordAnElement) {
    const Records<CFG_CALL_FORWARD_INFO> two(2, 0x5A);
    EXPECT_EQ(
        ParseAdding("CallForward", R"([ { "BusyForwardNumber" : "1" }, { "BusyForwardNumber" : "2" }, { } ])", two),
        HasRead<CFG_CALL_FORWARD_INFO>(2));
    EXPECT_STREQ(two[0].szBusyForwardNumber, "1");
    EXPECT_STREQ(two[1].szBusyForwardNumber, "2");
    EXPECT_EQ(PackAll("CallForward", two),
              "[ " + Pack("CallForward", two[0]) + ", " + Pack("CallForward", two[1]) + " ]");
}

TEST(DoorBellSound, GoesRoundWhole) {
    const auto read = GoesRound<CFG_DOOR_BELL_SOUND_INFO>(
        "DoorBellSound", R"({ "RingFile" : "R1", "RingVolume" : 4000000000, "SilenceEnable" : true })");
    EXPECT_STREQ(read.szRingFile, "R1");
    EXPECT_EQ(read.nRingVolume, 4000000000U);
    EXPECT_EQ(read.bSilenceEnable, 1);
    EXPECT_EQ(ReadOne<CFG_DOOR_BELL_SOUND_INFO>("DoorBellSound", R"({ "RingVolume" : -1 })").nRingVolume, 0U);
    TryText("DoorBellSound", "RingFile", &CFG_DOOR_BELL_SOUND_INFO::szRingFile, 64);
    TryList("DoorBellSound", "RingVolume", &CFG_DOOR_BELL_SOUND_INFO::nRingVolume);
    TryWithoutKeys<CFG_DOOR_BELL_SOUND_INFO>("DoorBellSound",
                                             R"({ "RingFile" : "", "RingVolume" : 0, "SilenceEnable" : false })");
}

// ---- "PSTNPersonServer", "PSTNTestPlan", "ArmLink" -----------------------------------------------------------------

using Persons = CFG_PSTN_PERSON_SERVER_INFO;

TEST(PstnPersonServer, GoesRoundWhole) {
    const auto read = GoesRound<Persons>(
        "PSTNPersonServer", R"({ "Enable" : true, "Name" : "N1", "Number" : [ "T2", "T3" ], "Servers" : "S4" })");
    EXPECT_EQ(read.bEnable, 1);
    EXPECT_STREQ(read.szName, "N1");
    EXPECT_STREQ(read.szServers, "S4");
    ASSERT_EQ(read.nNumberCount, 2);
    EXPECT_STREQ(read.szNumber[0], "T2");
    EXPECT_STREQ(read.szNumber[1], "T3");
    TryText("PSTNPersonServer", "Name", &Persons::szName, 128);
    TryText("PSTNPersonServer", "Servers", &Persons::szServers, 32);
    TryOne("PSTNPersonServer", "Enable", &Persons::bEnable);
    TryWithoutKeys<Persons>("PSTNPersonServer", R"({ "Enable" : false, "Name" : "", "Servers" : "" })");
}

TEST(PstnPersonServer, KeepsEightNumbersOfThirtyOneCharacters) {
    auto read = ReadOne<Persons>("PSTNPersonServer", R"({ "Number" : [ "0", "1", 2, null, "4", "5", "6", ")"
                                                         + std::string(40, '7') + R"(", "8" ] })");
    EXPECT_EQ(read.nNumberCount, 8);
    EXPECT_STREQ(read.szNumber[1], "1");
    EXPECT_STREQ(read.szNumber[2], "");
    EXPECT_STREQ(read.szNumber[3], "");
    EXPECT_EQ(std::string(read.szNumber[7]), std::string(31, '7'));
    const std::string text = Pack("PSTNPersonServer", read);
    read.nNumberCount = 9;
    EXPECT_EQ(Pack("PSTNPersonServer", read), text);
    read.nNumberCount = -1;
    EXPECT_EQ(Pack("PSTNPersonServer", read).find("Number"), std::string::npos);
    for (const char* value : {"\"110\"", "5", "null", R"({ "0" : "110" })"}) {
        EXPECT_EQ(ReadOne<Persons>("PSTNPersonServer", R"({ "Number" : )" + std::string(value) + " }").nNumberCount, 0)
            << value;
    }
}

TEST(PstnTestPlan, GoesRoundWhole) {
    const auto read =
        GoesRound<CFG_PSTN_TEST_PLAN_INFO>("PSTNTestPlan", R"({ "AlarmServer" : 2, "Enable" : true, "Period" : -3 })");
    EXPECT_EQ(read.bEnable, 1);
    EXPECT_EQ(read.nPeriod, -3);
    EXPECT_EQ(read.nAlarmServer, 2);
    TryOne("PSTNTestPlan", "Period", &CFG_PSTN_TEST_PLAN_INFO::nPeriod);
    TrySwitches<CFG_PSTN_TEST_PLAN_INFO>("PSTNTestPlan", {{"Enable", &CFG_PSTN_TEST_PLAN_INFO::bEnable}});
    TryWithoutKeys<CFG_PSTN_TEST_PLAN_INFO>("PSTNTestPlan", R"({ "AlarmServer" : 0, "Enable" : false, "Period" : 0 })");
    // A value of another type is none, and a number beyond 32 bits is 0.
    const auto odd = ReadOne<CFG_PSTN_TEST_PLAN_INFO>("PSTNTestPlan", R"({ "Period" : "5", "AlarmServer" : 1e10 })");
    EXPECT_EQ(odd.nPeriod, 0);
    EXPECT_EQ(odd.nAlarmServer, 0);
}

using Link = CFG_ARM_LINK_INFO;

TEST(ArmLink, GoesRoundWhole) {
    const auto read = GoesRound<Link>("ArmLink", R"({ "Destination" : [ 1, -2 ], "EventLink" : [ "E3", "E4" ], )"
                                                 R"("MMSEnable" : true, "NeedReport" : true, )"
                                                 R"("PSTNAlarmServer" : true, "PersonAlarmEnable" : true })");
    ASSERT_EQ(read.nDestinationCount, 2);
    EXPECT_EQ(read.nDestination[0], 1);
    EXPECT_EQ(read.nDestination[1], -2);
    ASSERT_EQ(read.nEventLinkCount, 2);
    EXPECT_STREQ(read.szEventLink[0], "E3");
    EXPECT_STREQ(read.szEventLink[1], "E4");
    TrySwitches<Link>("ArmLink", {{"MMSEnable", &Link::bMMSEnable},
                                  {"NeedReport", &Link::bNeedReport},
                                  {"PSTNAlarmServer", &Link::bPSTNAlarmServer},
                                  {"PersonAlarmEnable", &Link::bPersonAlarmEnable}});
    TryOne("ArmLink", "NeedReport", &Link::bNeedReport);
    TryWithoutKeys<Link>("ArmLink", R"({ "MMSEnable" : false, "NeedReport" : false, "PSTNAlarmServer" : false, )"
                                    R"("PersonAlarmEnable" : false })");
}

TEST(ArmLink, ListsBelowAndAtTheirRoom) {
    for (const int count : {15, 16}) {
        std::string numbers = "0";
        std::string texts = "\"0\"";
        for (int i = 1; i < count; ++i) {
            numbers += ", " + std::to_string(i);
            texts += ", \"" + std::to_string(i) + "\"";
        }
        const auto link =
            GoesRound<Link>("ArmLink", R"({ "Destination" : [ )" + numbers + R"( ], "EventLink" : [ )" + texts
                                           + R"( ], "MMSEnable" : false, "NeedReport" : false, )"
                                           + R"("PSTNAlarmServer" : false, "PersonAlarmEnable" : false })");
        EXPECT_EQ(link.nDestinationCount, count);
        EXPECT_EQ(link.nEventLinkCount, count);
    }
    for (const int count : {7, 8}) {
        std::string numbers = "\"0\"";
        for (int i = 1; i < count; ++i)
            numbers += ", \"" + std::to_string(i) + "\"";
        const auto persons = GoesRound<Persons>("PSTNPersonServer", R"({ "Enable" : false, "Name" : "", "Number" : [ )"
                                                                        + numbers + R"( ], "Servers" : "" })");
        EXPECT_EQ(persons.nNumberCount, count);
    }
}

TEST(ArmLink, KeepsSixteenOfEach) {
    std::string numbers = "[ 0";
    std::string texts = "[ \"" + std::string(40, 'e') + "\"";
    for (int i = 1; i < 17; ++i) {
        numbers += ", " + std::to_string(i);
        texts += ", \"" + std::to_string(i) + "\"";
    }
    auto read = ReadOne<Link>("ArmLink", R"({ "Destination" : )" + numbers + R"( ], "EventLink" : )" + texts + " ] }");
    EXPECT_EQ(read.nDestinationCount, 16);
    EXPECT_EQ(read.nDestination[15], 15);
    EXPECT_EQ(read.nEventLinkCount, 16);
    EXPECT_STREQ(read.szEventLink[15], "15");
    EXPECT_EQ(std::string(read.szEventLink[0]), std::string(31, 'e'));
    EXPECT_EQ(read.bNeedReport, 0);
    const std::string text = Pack("ArmLink", read);
    read.nDestinationCount = read.nEventLinkCount = 17;
    EXPECT_EQ(Pack("ArmLink", read), text);
    read.nDestinationCount = read.nEventLinkCount = 1;
    EXPECT_NE(Pack("ArmLink", read).find(R"("Destination" : [ 0 ], "EventLink" : [ "eee)"), std::string::npos);
}

// ---- Arming, sensors, lamps ----------------------------------------------------------------------------------------

TEST(DefenceArmMode, GoesRoundWhole) {
    TrySwitches<CFG_DEFENCE_ARM_MODE_INFO>("DefenceArmMode",
                                           {{"EnableDefenceArm", &CFG_DEFENCE_ARM_MODE_INFO::bEnableDefenceArm}});
    TryOne("DefenceArmMode", "EnableDefenceArm", &CFG_DEFENCE_ARM_MODE_INFO::bEnableDefenceArm);
    TryWithoutKeys<CFG_DEFENCE_ARM_MODE_INFO>("DefenceArmMode", R"({ "EnableDefenceArm" : false })");
}

TEST(SensorMode, GoesRoundWhole) {
    EXPECT_EQ(GoesRound<CFG_SENSOR_MODE_INFO>("SensorMode", R"({ "SensorMode" : "FourState" })").emSensorMode,
              CFG_SENSOR_MODE_FOUR_STATE);
    TryNames("SensorMode", "SensorMode", &CFG_SENSOR_MODE_INFO::emSensorMode, {"", "TwoState", "FourState"});
    TryWithoutKeys<CFG_SENSOR_MODE_INFO>("SensorMode", R"({ "SensorMode" : "" })");
}

TEST(AlarmLamp, GoesRoundWhole) {
    EXPECT_EQ(GoesRound<CFG_ALARM_LAMP_INFO>("AlarmLamp", R"({ "Mode" : 4294967295 })").nMode, 4294967295U);
    EXPECT_EQ(ReadOne<CFG_ALARM_LAMP_INFO>("AlarmLamp", R"({ "Mode" : -1 })").nMode, 0U);
    TryOne("AlarmLamp", "Mode", &CFG_ALARM_LAMP_INFO::nMode);
    TryWithoutKeys<CFG_ALARM_LAMP_INFO>("AlarmLamp", R"({ "Mode" : 0 })");
}

TEST(SecurityAlarmsPrivacy, GoesRoundWhole) {
    const auto read =
        GoesRound<CFG_SECURITY_ALARMS_PRIVACY_INFO>("SecurityAlarmsPrivacy", R"({ "Action" : true, "Code" : "C1" })");
    EXPECT_EQ(read.bAction, 1);
    EXPECT_STREQ(read.szCode, "C1");
    TryOne("SecurityAlarmsPrivacy", "Action", &CFG_SECURITY_ALARMS_PRIVACY_INFO::bAction);
    TryText("SecurityAlarmsPrivacy", "Code", &CFG_SECURITY_ALARMS_PRIVACY_INFO::szCode, 64);
    TryWithoutKeys<CFG_SECURITY_ALARMS_PRIVACY_INFO>("SecurityAlarmsPrivacy", R"({ "Action" : false, "Code" : "" })");
}

TEST(Intercom, RepliesWithoutATableAndRefusedOnes) {
    TryReplies("VTHNumberInfo", sizeof(CFG_VTH_NUMBER_INFO));
    TryReplies("VTOCallInfo", sizeof(CFG_VTO_CALLING_INFO));
    TryReplies("VTHRemoteIPCInfo", sizeof(CFG_VTH_REMOTE_IPC_INFO));
    TryReplies("CallForward", sizeof(CFG_CALL_FORWARD_INFO));
    TryReplies("DoorBellSound", sizeof(CFG_DOOR_BELL_SOUND_INFO));
    TryReplies("PSTNPersonServer", sizeof(Persons));
    TryReplies("PSTNTestPlan", sizeof(CFG_PSTN_TEST_PLAN_INFO));
    TryReplies("ArmLink", sizeof(Link));
    TryReplies("DefenceArmMode", sizeof(CFG_DEFENCE_ARM_MODE_INFO));
    TryReplies("SensorMode", sizeof(CFG_SENSOR_MODE_INFO));
    TryReplies("AlarmLamp", sizeof(CFG_ALARM_LAMP_INFO));
    TryReplies("SecurityAlarmsPrivacy", sizeof(CFG_SECURITY_ALARMS_PRIVACY_INFO));
}

} // namespace
} // namespace orrery::test
