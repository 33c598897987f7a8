#include "orrery/alarm_input.h"
#include "support/Call.h"
#include "support/SensorTexts.h"
#include "support/WeekText.h"

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>

namespace orrery {
namespace {

using test::Cleared;
using test::kFailed;
using test::Pack;
using test::Parse;
using test::ParseDocument;
using test::WeekText;

using Alarm = CFG_ALARM_INPUT_INFO;

std::string Upper(std::string text) {
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

// The "EventHandler" of a clear record.
const std::string kNoHandler = "\"EventHandler\" : { \"TimeSection\" : " + WeekText(7) + " }";

// ---- "Alarm" ----

TEST(Alarm, EverythingRead) {
    const auto a = ParseDocument<Alarm>("Alarm", R"({ "result" : true, "params" : { "channel" : 3, "table" : {
        "Enable" : true, "Name" : "Front door", "SensorType" : "NO", "ID" : "abc", "Pole" : 1,
        "SenseMethod" : "GasSensor", "EnableControl" : "DisableOnce", "DisableDelay" : 20,
        "DefenceAreaType" : "Follow", "EnableDelay" : 30, "Slot" : 1, "Level1" : 2, "Level2" : 5, "channel" : 9,
        "EventHandler" : { "RecordEnable" : true, "TimeSection" : [ [ "1 01:00:00-02:00:00" ] ] } } } })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Alarm));
    EXPECT_EQ(a->nChannel, 3);
    EXPECT_EQ(a->bEnable, 1);
    EXPECT_STREQ(a->szName, "Front door");
    EXPECT_EQ(a->nSensorType, 1);
    EXPECT_EQ(a->abDeviceID, 1);
    EXPECT_STREQ(a->szDeviceID, "abc");
    EXPECT_EQ(a->nPole, 1);
    EXPECT_EQ(a->emSenseMethod, 2);
    EXPECT_EQ(a->emEnableControl, 2);
    EXPECT_EQ(a->nDisableDelay, 20);
    EXPECT_EQ(a->emDefenceAreaType, 4);
    EXPECT_EQ(a->nEnableDelay, 30);
    EXPECT_EQ(a->nSlot, 1);
    EXPECT_EQ(a->nLevel1, 2);
    EXPECT_EQ(a->abLevel2, 1);
    EXPECT_EQ(a->nLevel2, 5);
    EXPECT_EQ(a->stuEventHandler.bRecordEnable, 1);
    EXPECT_EQ(a->stuEventHandler.stuTimeSection[0][0].nEndHour, 2); // with the week
}

TEST(Alarm, NothingGiven) {
    for (const char* table : {"{ }", "5", "\"x\"", "[ ]", "[ { \"Enable\" : true } ]"}) {
        auto a = Parse<Alarm>("Alarm", table);
        ASSERT_TRUE(a) << table;
        EXPECT_EQ(a->emSenseMethod, -1);
        EXPECT_EQ(a->emEnableControl, 0);
        EXPECT_EQ(a->nSensorType, 0);
        EXPECT_EQ(a->nSlot, -1);
        EXPECT_EQ(a->nLevel1, -1);
        EXPECT_EQ(a->nLevel2, -1);
        EXPECT_EQ(a->stuEventHandler.abRecordEnable, 1); // the linkage is read all the same
        EXPECT_EQ(a->stuEventHandler.abAlarmOutEn, 1);
        a.record->emSenseMethod = a.record->nSlot = a.record->nLevel1 = a.record->nLevel2 = 0;
        a.record->stuEventHandler.abRecordEnable = a.record->stuEventHandler.abAlarmOutEn = 0;
        EXPECT_TRUE(a.isCleared()) << table;
    }
}

TEST(Alarm, TheResultIsNotTested) {
    EXPECT_TRUE(ParseDocument<Alarm>("Alarm", R"({ "result" : false, "params" : { "table" : { } } })"));
    EXPECT_TRUE(ParseDocument<Alarm>("Alarm", R"({ "params" : { "table" : { } } })"));
}

TEST(Alarm, WithoutATableTheBufferIsCleared) {
    for (const char* document : {R"({ "result" : true, "params" : { "table" : null } })", R"({ "result" : true })", "5",
                                 "no json", "", R"({ "params" : { "table" : { } )"}) {
        const auto a = ParseDocument<Alarm>("Alarm", document);
        EXPECT_FALSE(a) << document;
        EXPECT_TRUE(a.isCleared()) << document;
        EXPECT_EQ(a.length, test::kNoLength) << document;
    }
}

TEST(Alarm, ContactsFoldTheirCase) {
    EXPECT_EQ(Parse<Alarm>("Alarm", R"({ "SensorType" : "nc" })")->nSensorType, 0);
    EXPECT_EQ(Parse<Alarm>("Alarm", R"({ "SensorType" : "NC" })")->nSensorType, 0);
    for (const char* text : {"\"NO\"", "\"no\"", "\"NCC\"", "\"\"", "5", "true"})
        EXPECT_EQ(Parse<Alarm>("Alarm", std::string(R"({ "SensorType" : )") + text + " }")->nSensorType, 1) << text;
    EXPECT_EQ(Parse<Alarm>("Alarm", R"({ "SensorType" : null })")->nSensorType, 0);
}

TEST(Alarm, TextsThatAreNone) {
    const auto a = Parse<Alarm>("Alarm", R"({ "Name" : 123, "ID" : 5 })");
    EXPECT_STREQ(a->szName, "");
    EXPECT_EQ(a->abDeviceID, 1);
    EXPECT_STREQ(a->szDeviceID, "");
    const auto longer = Parse<Alarm>("Alarm", R"({ "Name" : ")" + std::string(70, 'n') + R"(", "ID" : ")"
                                                  + std::string(130, 'i') + "\" }");
    EXPECT_EQ(longer->szName, std::string(63, 'n'));
    EXPECT_EQ(longer->szDeviceID, std::string(127, 'i'));
}

TEST(Alarm, NumbersGivenAsSomethingElse) {
    const auto a = Parse<Alarm>("Alarm", R"({ "Enable" : "false", "Slot" : "3", "Level1" : 1.9, "Level2" : false })");
    EXPECT_EQ(a->bEnable, 1); // a text that is not empty
    EXPECT_EQ(a->nSlot, 0);
    EXPECT_EQ(a->nLevel1, 1);
    EXPECT_EQ(a->abLevel2, 1);
    EXPECT_EQ(a->nLevel2, 0);
}

TEST(Alarm, NullsAreAbsent) {
    const auto none = Parse<Alarm>("Alarm", "{ }");
    const auto nulls = Parse<Alarm>("Alarm", R"({ "DefenceAreaType" : null, "DisableDelay" : null, "Enable" : null,
        "EnableControl" : null, "EnableDelay" : null, "EventHandler" : null, "ID" : null, "Level1" : null,
        "Level2" : null, "Name" : null, "Pole" : null, "SenseMethod" : null, "SensorType" : null, "Slot" : null })");
    ASSERT_TRUE(nulls);
    EXPECT_EQ(nulls->abDeviceID, 0);
    EXPECT_EQ(nulls->abLevel2, 0);
    EXPECT_EQ(nulls->nLevel2, -1);
    EXPECT_EQ(std::memcmp(nulls.record.get(), none.record.get(), sizeof(Alarm)), 0);
}

TEST(Alarm, TheChannelStandsUnderParams) {
    const auto channel = [](const char* document) { return ParseDocument<Alarm>("Alarm", document)->nChannel; };
    EXPECT_EQ(channel(R"({ "channel" : 9, "params" : { "table" : { "channel" : 8 } } })"), 0);
    EXPECT_EQ(channel(R"({ "params" : { "channel" : -1, "table" : { } } })"), -1);
    EXPECT_EQ(channel(R"({ "params" : { "channel" : "4", "table" : { } } })"), 0);
    EXPECT_EQ(channel(R"({ "params" : { "channel" : 4.9, "table" : { } } })"), 4);
    EXPECT_EQ(channel(R"({ "params" : { "channel" : 4 } })"), 0); // no table, and so nothing at all
}

TEST(Alarm, SensorNames) {
    auto record = Cleared<Alarm>();
    for (int code = 0; code < 46; ++code) {
        const std::string name(test::kSensors[code]);
        EXPECT_EQ(Parse<Alarm>("Alarm", R"({ "SenseMethod" : ")" + name + "\" }")->emSenseMethod, code) << name;
        EXPECT_EQ(Parse<Alarm>("Alarm", R"({ "SenseMethod" : ")" + Upper(name) + "\" }")->emSenseMethod, code) << name;
        record->emSenseMethod = code;
        EXPECT_NE(Pack("Alarm", *record).find(R"("SenseMethod" : ")" + name + "\""), std::string::npos) << name;
    }
    for (const char* other : {"\"Nose\"", "\"\"", "2", "true"}) {
        EXPECT_EQ(Parse<Alarm>("Alarm", std::string(R"({ "SenseMethod" : )") + other + " }")->emSenseMethod, -1);
    }
    for (const std::int32_t code : {-1, 46, INT32_MAX}) {
        record->emSenseMethod = code;
        EXPECT_EQ(Pack("Alarm", *record).find("SenseMethod"), std::string::npos) << code;
    }
}

TEST(Alarm, DefenceAreas) {
    auto record = Cleared<Alarm>();
    const auto read = [](const std::string& text) {
        return Parse<Alarm>("Alarm", R"({ "DefenceAreaType" : ")" + text + "\" }")->emDefenceAreaType;
    };
    for (int code = 1; code <= 14; ++code) {
        const std::string name(test::kAreas[code]);
        EXPECT_EQ(read(name), code) << name;
        EXPECT_EQ(read(Upper(name)), code <= 6 ? 0 : code) << name;
        record->emDefenceAreaType = code;
        EXPECT_NE(Pack("Alarm", *record).find(R"("DefenceAreaType" : ")" + name + "\""), std::string::npos) << name;
    }
    EXPECT_EQ(read("intime"), 0);
    EXPECT_EQ(read("fire"), 7);
    EXPECT_EQ(read(""), 0);
    for (const std::int32_t code : {-1, 0, 15}) {
        record->emDefenceAreaType = code;
        EXPECT_EQ(Pack("Alarm", *record).find("DefenceAreaType"), std::string::npos) << code;
    }
}

TEST(Alarm, EnableControls) {
    auto record = Cleared<Alarm>();
    const char* const names[] = {"Normal", "EnableAlways", "DisableOnce", "DisableAlways"};
    for (int code = 0; code < 4; ++code) {
        const std::string name = names[code];
        EXPECT_EQ(Parse<Alarm>("Alarm", R"({ "EnableControl" : ")" + name + "\" }")->emEnableControl, code);
        EXPECT_EQ(Parse<Alarm>("Alarm", R"({ "EnableControl" : ")" + Upper(name) + "\" }")->emEnableControl, code);
        record->emEnableControl = code;
        EXPECT_NE(Pack("Alarm", *record).find(R"("EnableControl" : ")" + name + "\""), std::string::npos) << name;
    }
    EXPECT_EQ(Parse<Alarm>("Alarm", R"({ "EnableControl" : "Never" })")->emEnableControl, 0);
    for (const std::int32_t code : {-1, 4}) {
        record->emEnableControl = code;
        EXPECT_EQ(Pack("Alarm", *record).find("EnableControl"), std::string::npos) << code;
    }
}

TEST(Alarm, EverythingWritten) {
    auto a = Cleared<Alarm>();
    a->nChannel = 7; // not written
    a->bEnable = 2;
    std::strcpy(a->szName, "Door/1");
    a->nSensorType = 0;
    a->abDeviceID = 0; // "ID" is written in every case
    std::strcpy(a->szDeviceID, "abc");
    a->nPole = 1;
    a->emSenseMethod = 45;
    a->emEnableControl = 3;
    a->nDisableDelay = 20;
    a->emDefenceAreaType = 14;
    a->nEnableDelay = 30;
    a->nSlot = 0;
    a->nLevel1 = 2;
    a->abLevel2 = 1;
    a->nLevel2 = -1;
    a->stuEventHandler.abMailEnable = 1;
    a->stuEventHandler.stuTimeSection[0][0] = {1, 1, 0, 0, 2, 0, 0};
    EXPECT_EQ(Pack("Alarm", *a),
              R"({ "DefenceAreaType" : "PeopleDetect", "DisableDelay" : 20, "Enable" : true, )"
              R"("EnableControl" : "DisableAlways", "EnableDelay" : 30, "EventHandler" : { "MailEnable" : false, )"
              R"("TimeSection" : )"
                  + WeekText(7, {{0, 0, "1 01:00:00-02:00:00"}})
                  + R"( }, "ID" : "abc", "Level1" : 2, "Level2" : -1, "Name" : "Door\/1", "Pole" : 1, )"
                    R"("SenseMethod" : "FireAlarm", "SensorType" : "NC", "Slot" : 0 })");
}

TEST(Alarm, WhatIsLeftOut) {
    auto a = Cleared<Alarm>();
    a->nSensorType = -1;
    a->emSenseMethod = -1;
    a->emEnableControl = -1;
    a->nSlot = a->nLevel1 = -1;
    a->nLevel2 = 3; // its flag is down
    EXPECT_EQ(Pack("Alarm", *a), R"({ "DisableDelay" : 0, "Enable" : false, "EnableDelay" : 0, )" + kNoHandler
                                     + R"(, "ID" : "", "Name" : "", "Pole" : 0, "SensorType" : "NO" })");
}

TEST(Alarm, ARecordReadFromNothingWritesNoSensor) {
    const auto a = Parse<Alarm>("Alarm", "{ }");
    const std::string text = Pack("Alarm", *a);
    EXPECT_EQ(text.find("SenseMethod"), std::string::npos);
    EXPECT_EQ(text.find("Slot"), std::string::npos);
    EXPECT_EQ(text.find("Level"), std::string::npos);
    EXPECT_NE(text.find(R"("EnableControl" : "Normal")"), std::string::npos);
}

TEST(Alarm, TextsWithoutTerminatorEndAtTheirFields) {
    auto a = Cleared<Alarm>();
    std::memset(a->szName, 'n', sizeof a->szName);
    a->nSensorType = 0x6e6e6e6e; // the bytes behind are no part of it
    std::memset(a->szDeviceID, 'i', sizeof a->szDeviceID);
    const std::string text = Pack("Alarm", *a);
    EXPECT_NE(text.find("\"" + std::string(64, 'n') + "\""), std::string::npos);
    EXPECT_NE(text.find("\"" + std::string(128, 'i') + "\""), std::string::npos);
}

// ---- The others ----

TEST(NetAlarm, BothWays) {
    const auto a = ParseDocument<CFG_NET_ALARM_INFO>("NetAlarm", R"({ "result" : false, "params" : { "channel" : 3,
        "table" : { "Enable" : true, "Name" : "N", "SensorType" : "x",
                    "EventHandler" : { "TimeSection" : [ [ "1 01:00:00-02:00:00" ] ] } } } })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(CFG_NET_ALARM_INFO));
    EXPECT_EQ(a->nChannel, 0); // not this one's
    EXPECT_EQ(a->bEnable, 1);
    EXPECT_STREQ(a->szName, "N");
    EXPECT_EQ(a->nSensorType, 1);
    EXPECT_EQ(a->stuEventHandler.stuTimeSection[0][0].nEndHour, 2);
    EXPECT_EQ(Pack("NetAlarm", *a),
              R"({ "Enable" : true, "EventHandler" : { "AlarmOutEnable" : false, "RecordEnable" : false, )"
              R"("TimeSection" : )"
                  + WeekText(7, {{0, 0, "1 01:00:00-02:00:00"}}) + R"( }, "Name" : "N", "SensorType" : "NO" })");
}

TEST(NetAlarm, EnabledAtAnyNumberButZero) {
    auto record = Cleared<CFG_NET_ALARM_INFO>();
    for (const std::int32_t enabled : {2, -1, INT32_MIN}) {
        record->bEnable = enabled;
        EXPECT_EQ(Pack("NetAlarm", *record),
                  R"({ "Enable" : true, )" + kNoHandler + R"(, "Name" : "", )" + R"("SensorType" : "NC" })");
    }
}

TEST(LossDetect, EnabledAtExactlyOne) {
    const auto a = ParseDocument<CFG_LOSS_DETECT_INFO>("LossDetect", R"({ "params" : { "table" : { "Enable" : 5,
        "EventHandler" : { "TimeSection" : [ [ "1 01:00:00-02:00:00" ] ] } } } })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(CFG_LOSS_DETECT_INFO));
    EXPECT_EQ(a->bEnable, 1);
    EXPECT_EQ(a->stuEventHandler.stuTimeSection[0][0].nEndHour, 2);
    auto record = Cleared<CFG_LOSS_DETECT_INFO>();
    record->bEnable = 1;
    EXPECT_EQ(Pack("LossDetect", *record), R"({ "Enable" : true, )" + kNoHandler + " }");
    record->bEnable = 2;
    EXPECT_EQ(Pack("LossDetect", *record), R"({ "Enable" : false, )" + kNoHandler + " }");
}

TEST(BlindDetect, EnabledAtExactlyOneWithItsLevel) {
    const auto a = ParseDocument<CFG_BLIND_DETECT_INFO>("BlindDetect", R"({ "params" : { "table" : { "Level" : 4,
        "EventHandler" : { "TimeSection" : [ [ "1 01:00:00-02:00:00" ] ] } } } })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(CFG_BLIND_DETECT_INFO));
    EXPECT_EQ(a->bEnable, 0);
    EXPECT_EQ(a->nLevel, 4);
    EXPECT_EQ(a->stuEventHandler.stuTimeSection[0][0].nEndHour, 2);
    auto record = Cleared<CFG_BLIND_DETECT_INFO>();
    record->bEnable = 1;
    record->nLevel = 6;
    EXPECT_EQ(Pack("BlindDetect", *record), R"({ "Enable" : true, )" + kNoHandler + R"(, "Level" : 6 })");
    record->bEnable = -1;
    EXPECT_EQ(Pack("BlindDetect", *record), R"({ "Enable" : false, )" + kNoHandler + R"(, "Level" : 6 })");
}

TEST(StorageAlarms, ShareOneRecordWithThePlainLinkage) {
    for (const char* command :
         {"StorageNotExist", "StorageFailure", "NetAbort", "IPConflict", "MacConflict", "PSTNBreakLine"}) {
        const auto a = ParseDocument<CFG_STORAGE_ALARM_INFO>(command, R"({ "result" : 0, "params" : { "table" : {
            "Enable" : true, "EventHandler" : { "TimeSection" : )" + WeekText(7, {{0, 0, "1 01:00:00-02:00:00"}})
                                                                          + " } } } }");
        ASSERT_TRUE(a) << command;
        EXPECT_EQ(a.length, sizeof(CFG_STORAGE_ALARM_INFO));
        EXPECT_EQ(a->bEnable, 1);
        EXPECT_EQ(a->stuEventHandler.stuTimeSection[0][0].nEndHour, 0);
        EXPECT_EQ(a->stuEventHandler.stuTimeSectionEx.stuTimeSection[0][0].nEndHour, 2);
        auto record = Cleared<CFG_STORAGE_ALARM_INFO>();
        record->bEnable = 2;
        record->stuEventHandler.stuTimeSection[0][0] = {1, 1, 0, 0, 2, 0, 0}; // not written
        EXPECT_EQ(Pack(command, *record), R"({ "Enable" : true, )" + kNoHandler + " }") << command;
    }
}

TEST(StorageLowSpace, BothWays) {
    const auto a = ParseDocument<CFG_STORAGE_LOWSPACE_INFO>("StorageLowSpace", R"({ "params" : { "table" : {
        "Enable" : true, "LowerLimit" : 10 } } })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(CFG_STORAGE_LOWSPACE_INFO));
    EXPECT_EQ(a->nLowerLimit, 10);
    EXPECT_EQ(a->stuEventHandler.abRecordEnable, 1);
    auto record = Cleared<CFG_STORAGE_LOWSPACE_INFO>();
    record->bEnable = -1;
    record->nLowerLimit = 20;
    EXPECT_EQ(Pack("StorageLowSpace", *record), R"({ "Enable" : true, )" + kNoHandler + R"(, "LowerLimit" : 20 })");
}

// ---- What all of them share ----

template <class R>
void LooseCapacity(const char* command) {
    const auto record = Cleared<R>();
    const std::string text = Pack(command, *record) + "\n";
    const auto length = static_cast<std::uint32_t>(text.size());
    std::string buffer(length + 2, '#');
    EXPECT_NE(CLIENT_PacketData(command, record.get(), sizeof(R), buffer.data(), length + 1), 0);
    EXPECT_EQ(buffer, text + std::string("\0#", 2)) << command;
    buffer.assign(length + 2, '#');
    EXPECT_NE(CLIENT_PacketData(command, record.get(), sizeof(R), buffer.data(), length), 0);
    EXPECT_EQ(buffer, text.substr(0, length - 1) + std::string("\0##", 3)) << command; // the newline gives way
    buffer.assign(length + 2, '#');
    EXPECT_EQ(CLIENT_PacketData(command, record.get(), sizeof(R), buffer.data(), length - 1), 0);
    EXPECT_EQ(buffer, std::string(length - 1, '\0') + "###") << command;
    EXPECT_EQ(CLIENT_PacketData(command, record.get(), sizeof(R), buffer.data(), 0), 0);

    // Below one record nothing is touched.
    buffer.assign(length + 2, '#');
    EXPECT_EQ(CLIENT_PacketData(command, record.get(), sizeof(R) - 1, buffer.data(), length + 1), 0);
    EXPECT_EQ(buffer, std::string(length + 2, '#')) << command;
    auto untouched = Cleared<R>();
    std::memset(static_cast<void*>(untouched.get()), test::kUntouched, sizeof(R));
    std::uint32_t returned = 5;
    EXPECT_EQ(
        CLIENT_ParseData(command, R"({ "params" : { "table" : { } } })", untouched.get(), sizeof(R) - 1, &returned), 0);
    EXPECT_EQ(reinterpret_cast<const unsigned char*>(untouched.get())[0], test::kUntouched);
    EXPECT_EQ(returned, 5u);
}

TEST(AlarmInputs, TextsMayFillTheirBufferAtTheCostOfTheNewline) {
    LooseCapacity<Alarm>("Alarm");
    LooseCapacity<CFG_NET_ALARM_INFO>("NetAlarm");
    LooseCapacity<CFG_LOSS_DETECT_INFO>("LossDetect");
    LooseCapacity<CFG_BLIND_DETECT_INFO>("BlindDetect");
    for (const char* command :
         {"StorageNotExist", "StorageFailure", "NetAbort", "IPConflict", "MacConflict", "PSTNBreakLine"})
        LooseCapacity<CFG_STORAGE_ALARM_INFO>(command);
    LooseCapacity<CFG_STORAGE_LOWSPACE_INFO>("StorageLowSpace");
}

TEST(AlarmInputs, ABufferLargerThanARecordIsClearedWhole) {
    std::vector<unsigned char> buffer(sizeof(Alarm) + 100, test::kUntouched);
    std::uint32_t returned = 5;
    ASSERT_NE(CLIENT_ParseData("Alarm", R"({ "params" : { "table" : { } } })", buffer.data(),
                               static_cast<std::uint32_t>(buffer.size()), &returned),
              0);
    EXPECT_EQ(returned, sizeof(Alarm)); // assigned, not added
    EXPECT_TRUE(std::all_of(buffer.end() - 100, buffer.end(), [](unsigned char byte) { return byte == 0; }));
}

} // namespace
} // namespace orrery
