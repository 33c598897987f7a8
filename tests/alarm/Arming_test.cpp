// Arming: profiles, subsystems, delays, analog inputs, what an alarm links to.
#include "alarm/RecordLists.h"
#include "orrery/alarm_device_arming.h"
#include "orrery/types.h"
#include "support/JsonText.h"
#include "support/SensorTexts.h"
#include "support/WeekText.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

using test::Answer;
using test::Cleared;
using test::Pack;
using test::Parse;
using test::ParseTable;
using test::ReadsRefused;
using test::Records;
using test::WeekText;

const std::string kNoHandler = "\"EventHandler\" : { \"TimeSection\" : " + WeekText(7) + " }";

std::string Numbers(int count) {
    std::string list = "[ ";
    for (int i = 0; i < count; ++i)
        list += (i == 0 ? "" : ", ") + std::to_string(i + 1);
    return list + " ]";
}

// ---- "CommGlobal" ----

using Global = CFG_COMM_GLOBAL_INFO;

TEST(CommGlobal, EverythingRead) {
    const auto a = Parse<Global>("CommGlobal", R"({ "AlarmEnable" : true, "ProfileEnable" : false,
        "CurrentProfile" : "Sleeping", "Profiles" : [ { "Name" : "AtHome", "AlarmInChannels" : [ 3, -4, "x" ] },
        { "Name" : "Whole" } ] })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Global));
    EXPECT_EQ(a->bAlarmEnable, 1);
    EXPECT_EQ(a->bProfileEnable, 0);
    EXPECT_EQ(a->emCurrentProfile, CFG_PROFILE_SLEEPING);
    EXPECT_EQ(a->nProfileNum, 2);
    EXPECT_STREQ(a->stuProfiles[0].szName, "AtHome");
    EXPECT_EQ(a->stuProfiles[0].nAlarmInNum, 3);
    EXPECT_EQ(a->stuProfiles[0].nAlarmInChannels[0], 3);
    EXPECT_EQ(a->stuProfiles[0].nAlarmInChannels[1], -4);
    EXPECT_EQ(a->stuProfiles[0].nAlarmInChannels[2], 0);
    EXPECT_STREQ(a->stuProfiles[1].szName, "Whole");
    EXPECT_EQ(a->stuProfiles[1].nAlarmInNum, 0);
    EXPECT_EQ(Parse<Global>("CommGlobal", R"({ "ProfileEnable" : 1 })")->bProfileEnable, 1);
    EXPECT_FALSE(ReadsRefused<Global>("CommGlobal"));
    EXPECT_FALSE(Parse<Global>("CommGlobal", "null"));
}

TEST(CommGlobal, EverythingWritten) {
    auto record = Cleared<Global>();
    record->bProfileEnable = 5;
    record->emCurrentProfile = CFG_PROFILE_CUSTOM;
    record->nProfileNum = 2;
    std::strcpy(record->stuProfiles[0].szName, "P");
    record->stuProfiles[0].nAlarmInNum = 2;
    record->stuProfiles[0].nAlarmInChannels[0] = 6;
    record->stuProfiles[0].nAlarmInChannels[1] = -7;
    EXPECT_EQ(Pack("CommGlobal", *record),
              R"({ "AlarmEnable" : false, "CurrentProfile" : "Custom", "ProfileEnable" : true, )"
              R"("Profiles" : [ { "AlarmInChannels" : [ 6, -7 ], "Name" : "P" }, )"
              R"({ "AlarmInChannels" : [  ], "Name" : "" } ] })");
    record = Cleared<Global>();
    record->bAlarmEnable = -1;
    record->nProfileNum = -1;
    EXPECT_EQ(Pack("CommGlobal", *record), R"({ "AlarmEnable" : true, "CurrentProfile" : "Outdoor", )"
                                           R"("ProfileEnable" : false, "Profiles" : [  ] })");
}

TEST(CommGlobal, ProfilesByTheirNames) {
    constexpr const char* kNames[] = {"Outdoor", "AtHome", "Whole", "RightNow", "Auto", "Force", "Sleeping", "Custom"};
    Global record{};
    for (int code = 0; code < 8; ++code) {
        const std::string name = kNames[code];
        EXPECT_EQ(Parse<Global>("CommGlobal", R"({ "CurrentProfile" : ")" + name + "\" }")->emCurrentProfile, code);
        record.emCurrentProfile = code;
        EXPECT_NE(Pack("CommGlobal", record).find(R"("CurrentProfile" : ")" + name + '"'), std::string::npos);
    }
    for (const char* const text : {"\"ATHOME\"", "\"athome\""}) // the case does not count
        EXPECT_EQ(Parse<Global>("CommGlobal", R"({ "CurrentProfile" : )" + std::string(text) + " }")->emCurrentProfile,
                  CFG_PROFILE_AT_HOME);
    for (const char* const text : {"\"At Home\"", "\"\"", "1", "null"})
        EXPECT_EQ(Parse<Global>("CommGlobal", R"({ "CurrentProfile" : )" + std::string(text) + " }")->emCurrentProfile,
                  0);
    for (const int code : {-1, 8, INT32_MAX}) {
        record.emCurrentProfile = code;
        EXPECT_EQ(Pack("CommGlobal", record).find("CurrentProfile"), std::string::npos) << code;
    }
}

TEST(CommGlobal, ListsEndAtTheirBounds) {
    const std::string profile = R"({ "AlarmInChannels" : )" + Numbers(257) + " }";
    std::string list = "[ " + profile;
    for (int i = 0; i < 8; ++i)
        list += ", " + profile;
    const auto a = Parse<Global>("CommGlobal", R"({ "Profiles" : )" + list + " ] }");
    EXPECT_EQ(a->nProfileNum, 8);
    EXPECT_EQ(a->stuProfiles[7].nAlarmInNum, 256);
    EXPECT_EQ(a->stuProfiles[7].nAlarmInChannels[255], 256);
    auto record = Cleared<Global>();
    record->nProfileNum = 9;
    record->stuProfiles[7].nAlarmInNum = INT32_MAX;
    const std::string packed = Pack("CommGlobal", *record);
    test::Document text(packed);
    EXPECT_EQ(text.root["Profiles"].size(), 8u);
    EXPECT_EQ(text.root["Profiles"][7]["AlarmInChannels"].size(), 256u);
}

// ---- "AlarmSubSystem" ----

using SubSystem = CFG_ALARM_SUB_SYSTEM_INFO;

TEST(AlarmSubSystem, EverythingRead) {
    const Records<SubSystem> records(1);
    ASSERT_EQ(ParseTable("AlarmSubSystem", R"([ { "Name" : "Yard", "Zone" : [ 1, 2 ], "ExZone" : [ 3 ],
        "PublicSubSystem" : [ 4, 5, 6 ], "DisableDelay" : 7, "EnableDelay" : 8, "IsPublic" : true } ])",
                         records),
              (Answer{1, sizeof(SubSystem)}));
    const SubSystem a = records[0];
    EXPECT_STREQ(a.szName, "Yard");
    EXPECT_EQ(a.nZoneNum, 2);
    EXPECT_EQ(a.nZone[1], 2);
    EXPECT_EQ(a.nExZoneNum, 1);
    EXPECT_EQ(a.nExZone[0], 3);
    EXPECT_EQ(a.nPublicSubSystemNum, 3);
    EXPECT_EQ(a.nPublicSubSystem[2], 6);
    EXPECT_EQ(a.nDisableDelay, 7);
    EXPECT_EQ(a.nEnableDelay, 8);
    EXPECT_EQ(a.bIsPublic, 1);
    EXPECT_FALSE(ReadsRefused<SubSystem>("AlarmSubSystem"));
}

TEST(AlarmSubSystem, EverythingWritten) {
    SubSystem record{};
    std::strcpy(record.szName, "S");
    record.nZoneNum = 1;
    record.nZone[0] = 11;
    record.nExZoneNum = 2;
    record.nExZone[0] = 12;
    record.nExZone[1] = 13;
    record.nPublicSubSystemNum = 1;
    record.nPublicSubSystem[0] = 14;
    record.nDisableDelay = 15;
    record.nEnableDelay = 16;
    record.bIsPublic = 17;
    EXPECT_EQ(Pack("AlarmSubSystem", record),
              R"({ "DisableDelay" : 15, "EnableDelay" : 16, "ExZone" : [ 12, 13 ], "IsPublic" : true, "Name" : "S", )"
              R"("PublicSubSystem" : [ 14 ], "Zone" : [ 11 ] })");
}

TEST(AlarmSubSystem, ListsEndAtTheirBounds) {
    for (const char* const key : {"Zone", "ExZone", "PublicSubSystem"}) {
        const auto a = Parse<SubSystem>("AlarmSubSystem", "{ \"" + std::string(key) + "\" : " + Numbers(257) + " }");
        EXPECT_EQ(a->nZoneNum + a->nExZoneNum + a->nPublicSubSystemNum, 256) << key;
        EXPECT_EQ(a->nZone[255] + a->nExZone[255] + a->nPublicSubSystem[255], 256) << key;
    }
    SubSystem record{};
    record.nZoneNum = record.nExZoneNum = record.nPublicSubSystemNum = 257;
    const std::string packed = Pack("AlarmSubSystem", record);
    test::Document text(packed);
    for (const char* const key : {"Zone", "ExZone", "PublicSubSystem"})
        EXPECT_EQ(text.root[key].size(), 256u) << key;
}

TEST(AlarmSubSystem, ARecordOrAList) {
    test::ExpectAlarmsOneOrMany<SubSystem>(
        "AlarmSubSystem", R"({ "Zone" : [ 1 ] })",
        R"({ "DisableDelay" : 0, "EnableDelay" : 0, "ExZone" : [  ], )"
        R"("IsPublic" : false, "Name" : "", "PublicSubSystem" : [  ], "Zone" : [  ] })");
}

// ---- Numbers alone ----

TEST(DefenceAreaDelay, BothWays) {
    using Record = CFG_DEFENCE_AREA_DELAY_INFO;
    const auto a = Parse<Record>("DefenceAreaDelay", R"({ "EnterDelay1" : 1, "EnterDelay2" : 2, "ExitDelay" : 3 })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Record));
    EXPECT_EQ(a->nEnterDelay1, 1);
    EXPECT_EQ(a->nEnterDelay2, 2);
    EXPECT_EQ(a->nExitDelay, 3);
    EXPECT_TRUE(ReadsRefused<Record>("DefenceAreaDelay"));
    EXPECT_EQ(Pack("DefenceAreaDelay", Record{4, 5, 6}),
              R"({ "EnterDelay1" : 4, "EnterDelay2" : 5, "ExitDelay" : 6 })");
}

TEST(AlarmShieldRule, BothWays) {
    using Record = CFG_ALARM_SHIELD_RULE_INFO;
    const auto a = Parse<Record>("AlarmShieldRule", R"({ "HighFrequency" : { "Period" : 60, "MaxCount" : 3 } })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Record));
    EXPECT_EQ(a->nPeriod, 60);
    EXPECT_EQ(a->nMaxCount, 3);
    EXPECT_EQ(Parse<Record>("AlarmShieldRule", R"({ "Period" : 60 })")->nPeriod, 0);
    EXPECT_TRUE(ReadsRefused<Record>("AlarmShieldRule"));
    EXPECT_EQ(Pack("AlarmShieldRule", Record{4, 5}), R"({ "HighFrequency" : { "MaxCount" : 5, "Period" : 4 } })");
}

TEST(SensorSampling, BothWays) {
    using Record = CFG_SENSOR_SAMPLING_INFO;
    const auto a = Parse<Record>("SensorSampling", R"({ "DetectionPeriod" : 5, "StorageItem" : 100 })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Record));
    EXPECT_EQ(a->nDetectionPeriod, 5);
    EXPECT_EQ(a->nStorageItem, 100);
    EXPECT_FALSE(ReadsRefused<Record>("SensorSampling"));
    EXPECT_EQ(Pack("SensorSampling", Record{6, 7}), R"({ "DetectionPeriod" : 6, "StorageItem" : 7 })");
}

// ---- "SnapLinkage" ----

TEST(SnapLinkage, BothWays) {
    using Record = CFG_SNAP_LINKAGE_INFO;
    const Records<Record> records(3);
    ASSERT_EQ(ParseTable("SnapLinkage",
                         R"([ { "AnalogAlarm" : [ 1, -2 ] }, { }, { "AnalogAlarm" : )" + Numbers(257) + " } ]",
                         records),
              (Answer{1, 3 * sizeof(Record)}));
    const Record first = records[0];
    EXPECT_EQ(first.nCount, 2);
    EXPECT_EQ(first.nAnalogAlarm[0], 1);
    EXPECT_EQ(first.nAnalogAlarm[1], -2);
    EXPECT_EQ(records[1].nCount, 0);
    EXPECT_EQ(records[2].nCount, 256);
    EXPECT_EQ(records[2].nAnalogAlarm[255], 256);
    EXPECT_FALSE(ReadsRefused<Record>("SnapLinkage"));
    EXPECT_EQ(Pack("SnapLinkage", first), R"({ "AnalogAlarm" : [ 1, -2 ] })");
    Record many{};
    many.nCount = 257;
    const std::string packed = Pack("SnapLinkage", many);
    test::Document text(packed);
    EXPECT_EQ(text.root["AnalogAlarm"].size(), 256u);
    test::ExpectAlarmsOneOrMany<Record>("SnapLinkage", R"({ "AnalogAlarm" : [ 9 ] })", R"({ "AnalogAlarm" : [  ] })");
}

// ---- "AnalogAlarm" ----

using Analog = CFG_ANALOG_ALARM_INFO;

TEST(AnalogAlarm, EverythingRead) {
    const auto a = Parse<Analog>("AnalogAlarm", R"([ { "Enable" : true, "Name" : "Boiler", "UpperLimit" : 99.5,
        "LowerLimit" : -20, "Compensation" : 0.25, "Sensitivity" : 1, "Mode" : 2, "AlarmLimit" : [ 10, 80.5 ],
        "SenseMethod" : "TempSensor", "Type" : "Pt100", "Slot" : 3, "Level1" : 4, "Level2" : 5, "NotifyInterval" : 6,
        "AlarmInterval" : 7, "EventHandler" : { "Delay" : 8, "TimeSection" : [ [ "1 01:00:00-02:00:00" ] ] } } ])");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Analog));
    EXPECT_EQ(a->bEnable, 1);
    EXPECT_STREQ(a->szName, "Boiler");
    EXPECT_EQ(a->fUpperLimit, 99.5f);
    EXPECT_EQ(a->fLowerLimit, -20.0f);
    EXPECT_EQ(a->fCompensation, 0.25f);
    EXPECT_EQ(a->nSensitivity, 1);
    EXPECT_EQ(a->nMode, 2);
    EXPECT_EQ(a->nAlarmLimitNum, 2);
    EXPECT_EQ(a->fAlarmLimit[0], 10.0f);
    EXPECT_EQ(a->fAlarmLimit[1], 80.5f);
    EXPECT_EQ(a->emSenseMethod, EM_SENSE_TEMP_SENSOR);
    EXPECT_STREQ(a->szType, "Pt100");
    EXPECT_EQ(a->nSlot, 3);
    EXPECT_EQ(a->nLevel1, 4);
    EXPECT_EQ(a->nLevel2, 5);
    EXPECT_EQ(a->nNotifyInterval, 6);
    EXPECT_EQ(a->nAlarmInterval, 7);
    EXPECT_EQ(a->stuEventHandler.nDelay, 8);
    EXPECT_EQ(a->stuEventHandler.stuTimeSection[0][0].nEndHour, 2); // with the week
    EXPECT_FALSE(ReadsRefused<Analog>("AnalogAlarm"));
}

TEST(AnalogAlarm, NothingGiven) {
    const auto a = Parse<Analog>("AnalogAlarm", "{ }");
    ASSERT_TRUE(a);
    EXPECT_EQ(a->emSenseMethod, 0);
    EXPECT_EQ(a->nSlot, 0);
    EXPECT_EQ(a->nLevel1, 0);
    EXPECT_EQ(a->stuEventHandler.abRecordEnable, 1);
}

TEST(AnalogAlarm, EverythingWritten) {
    auto record = Cleared<Analog>();
    record->bEnable = 2;
    std::strcpy(record->szName, "N");
    record->fUpperLimit = 1.5f;
    record->fLowerLimit = -2;
    record->fCompensation = 0.1f;
    record->nSensitivity = 3;
    record->nMode = 4;
    record->nAlarmLimitNum = 1;
    record->fAlarmLimit[0] = 0.5f;
    record->emSenseMethod = EM_SENSE_HUMIDITY_SENSOR;
    std::strcpy(record->szType, "T");
    record->nSlot = -1; // written too
    record->nLevel1 = 5;
    record->nLevel2 = 6;
    record->nNotifyInterval = 7;
    record->nAlarmInterval = 8;
    record->stuEventHandler.stuTimeSection[0][0] = {1, 1, 0, 0, 2, 0, 0};
    EXPECT_EQ(Pack("AnalogAlarm", *record),
              R"({ "AlarmInterval" : 8, "AlarmLimit" : [ 0.5000000000000000 ], "Compensation" : 0.1000000014901161, )"
              R"("Enable" : true, "EventHandler" : { "TimeSection" : )"
                  + WeekText(7, {{0, 0, "1 01:00:00-02:00:00"}})
                  + R"( }, "Level1" : 5, "Level2" : 6, "LowerLimit" : -2.000000000000000, "Mode" : 4, "Name" : "N", )"
                    R"("NotifyInterval" : 7, "SenseMethod" : "HumiditySensor", "Sensitivity" : 3, "Slot" : -1, )"
                    R"("Type" : "T", "UpperLimit" : 1.500000000000000 })");
}

TEST(AnalogAlarm, SensorsByTheirNames) {
    const auto record = Cleared<Analog>();
    for (int code = 0; code < 46; ++code) {
        const std::string text = R"("SenseMethod" : ")" + std::string(test::kSensors[code]) + '"';
        EXPECT_EQ(Parse<Analog>("AnalogAlarm", "{ " + text + " }")->emSenseMethod, code);
        record->emSenseMethod = code;
        EXPECT_NE(Pack("AnalogAlarm", *record).find(text), std::string::npos) << code;
    }
    EXPECT_EQ(Parse<Analog>("AnalogAlarm", R"({ "SenseMethod" : "gassensor" })")->emSenseMethod, 2);
    EXPECT_EQ(Parse<Analog>("AnalogAlarm", R"({ "SenseMethod" : "Gas" })")->emSenseMethod, -1);
    EXPECT_EQ(Parse<Analog>("AnalogAlarm", R"({ "SenseMethod" : 2 })")->emSenseMethod, -1);
    for (const int code : {-1, 46}) {
        record->emSenseMethod = code;
        EXPECT_EQ(Pack("AnalogAlarm", *record).find("SenseMethod"), std::string::npos) << code;
    }
}

TEST(AnalogAlarm, ListsEndAtEight) {
    EXPECT_EQ(Parse<Analog>("AnalogAlarm", R"({ "AlarmLimit" : )" + Numbers(8) + " }")->nAlarmLimitNum, 8);
    const auto a = Parse<Analog>("AnalogAlarm", R"({ "AlarmLimit" : )" + Numbers(9) + " }");
    EXPECT_EQ(a->nAlarmLimitNum, 8);
    EXPECT_EQ(a->fAlarmLimit[7], 8.0f);
    auto record = Cleared<Analog>();
    record->nAlarmLimitNum = 9;
    const std::string packed = Pack("AnalogAlarm", *record);
    test::Document text(packed);
    EXPECT_EQ(text.root["AlarmLimit"].size(), 8u);
}

TEST(AnalogAlarm, ARecordOrAList) {
    test::ExpectAlarmsOneOrMany<Analog>(
        "AnalogAlarm", R"({ "Name" : "a" })",
        R"({ "AlarmInterval" : 0, "AlarmLimit" : [  ], "Compensation" : 0.000000000000000, "Enable" : false, )"
            + kNoHandler
            + R"(, "Level1" : 0, "Level2" : 0, "LowerLimit" : 0.000000000000000, "Mode" : 0, "Name" : "", )"
              R"("NotifyInterval" : 0, "SenseMethod" : "DoorMagnetism", "Sensitivity" : 0, "Slot" : 0, "Type" : "", )"
              R"("UpperLimit" : 0.000000000000000 })");
}

} // namespace
} // namespace orrery
