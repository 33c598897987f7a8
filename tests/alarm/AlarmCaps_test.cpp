#include "orrery/alarm_caps.h"
#include "support/Call.h"
#include "support/SensorTexts.h"

#include <cstddef>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orrery {
namespace {

using test::ParseDocument;
using testing::Each;
using testing::ElementsAre;

template <class R>
auto Caps(const char* command, const std::string& caps) {
    return ParseDocument<R>(command, R"({ "result" : true, "params" : { "caps" : )" + caps + " } }");
}

std::string Texts(const std::string_view* texts, int count) {
    std::string list = "[ ";
    for (int i = 0; i < count; ++i)
        list += (i == 0 ? "\"" : ", \"") + std::string(texts[i]) + "\"";
    return list + " ]";
}

TEST(AlarmCaps, Everything) {
    const auto c = Caps<CFG_ALARM_CAPS>("alarm.getAlarmCaps", R"({ "AlarmPir" : true, "Flash" : 1, "MaxDelay" : 3,
        "AlarmBellCount" : 4, "MaxBackupAlarmServer" : 5, "MaxPSTNAlarmServer" : 6,
        "DefenceAreaTypes" : [ "Intime", "fire", "FIRE", "intime", "x", 5, null ],
        "SupportSenseMethod" : [ "oil", "FireAlarm", "x", null, 3 ] })");
    ASSERT_TRUE(c);
    EXPECT_EQ(c.length, sizeof(CFG_ALARM_CAPS));
    EXPECT_EQ(c->bAlarmPir, 1);
    EXPECT_EQ(c->bFlash, 1);
    EXPECT_EQ(c->nMaxDelay, 3);
    EXPECT_EQ(c->nAlarmBellCount, 4);
    EXPECT_EQ(c->nMaxBackupAlarmServer, 5);
    EXPECT_EQ(c->nMaxPSTNAlarmServer, 6);
    EXPECT_EQ(c->nDefenceAreaTypeNum, 7);
    EXPECT_THAT(c->emDefenceAreaTypes, ElementsAre(1, 7, 7, 0, 0, 0, 0, 0));
    EXPECT_EQ(c->nSenseMethodNum, 5);
    EXPECT_EQ(c->emSenseMethods[0], 18);
    EXPECT_EQ(c->emSenseMethods[1], 45);
    EXPECT_EQ(c->emSenseMethods[2], -1);
    EXPECT_EQ(c->emSenseMethods[3], -1);
    EXPECT_EQ(c->emSenseMethods[4], -1);
    EXPECT_EQ(c->emSenseMethods[5], 0);
}

TEST(AlarmCaps, ListsAreCutAtEightAndSixteen) {
    const auto c = Caps<CFG_ALARM_CAPS>("alarm.getAlarmCaps",
                                        "{ \"DefenceAreaTypes\" : " + Texts(test::kAreas + 1, 9)
                                            + ", \"SupportSenseMethod\" : " + Texts(test::kSensors, 17) + " }");
    EXPECT_EQ(c->nDefenceAreaTypeNum, 8);
    EXPECT_THAT(c->emDefenceAreaTypes, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
    EXPECT_EQ(c->nSenseMethodNum, 16);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(c->emSenseMethods[i], i);
}

TEST(AlarmCaps, ListsOfTheOthersAreCutAsWell) {
    const auto extension = Caps<CFG_EX_ALARM_CAPS>("alarm.getExAlarmCaps",
                                                   "{ \"DefenceAreaTypes\" : " + Texts(test::kAreas + 6, 9)
                                                       + ", \"SupportSenseMethod\" : " + Texts(test::kSensors + 20, 17)
                                                       + R"(, "ProtocolList" : [ 1, 2, 3, 4, 5, 6, 7, "QV_AlarmBox",
                                                            "QV_AlarmBox", "QV_AlarmBox" ] })");
    EXPECT_EQ(extension->nDefenceAreaTypeNum, 8);
    EXPECT_THAT(extension->emDefenceAreaTypes, ElementsAre(6, 7, 8, 9, 10, 11, 12, 13));
    EXPECT_EQ(extension->nSenseMethodNum, 16);
    EXPECT_EQ(extension->emSenseMethods[0], 20);
    EXPECT_EQ(extension->emSenseMethods[15], 35);
    EXPECT_EQ(extension->nProtocolNum, 8);
    EXPECT_THAT(extension->byProtocols, ElementsAre(0, 0, 0, 0, 0, 0, 0, 1));
    const auto analog = Caps<CFG_ANALOG_ALARM_CAPS>(
        "AnalogAlarm.getCaps", "{ \"SupportSenseMethod\" : " + Texts(test::kSensors + 29, 17) + " }");
    EXPECT_EQ(analog->nSenseMethodNum, 16);
    EXPECT_EQ(analog->emSenseMethods[0], 29);
    EXPECT_EQ(analog->emSenseMethods[15], 44);
}

TEST(AlarmCaps, NothingOfTheRightKind) {
    for (const char* caps : {"{ }", "5", "[ 1 ]", R"({ "DefenceAreaTypes" : "Fire", "SupportSenseMethod" : 1 })"}) {
        const auto c = Caps<CFG_ALARM_CAPS>("alarm.getAlarmCaps", caps);
        EXPECT_TRUE(c) << caps;
        EXPECT_TRUE(c.isCleared()) << caps;
    }
}

TEST(AlarmCaps, ResultIsTheTextTrue) {
    for (const char* command : {"alarm.getAlarmCaps", "alarm.getExAlarmCaps", "alarm.getExAlarmBoxCaps"}) {
        const auto passes = [&](const std::string& result) {
            return ParseDocument<CFG_ALARM_CAPS>(command,
                                                 R"({ "result" : )" + result + R"(, "params" : { "caps" : { } } })")
                       .result
                   != 0;
        };
        EXPECT_TRUE(passes("true")) << command;
        EXPECT_TRUE(passes("\"true\""));
        EXPECT_TRUE(passes("\"TRUE\""));
        for (const char* refused : {"1", "false", "null", "\"yes\"", "\"true \"", "1.0", "[ true ]", "{ \"a\" : 1 }"})
            EXPECT_FALSE(passes(refused)) << command << refused;
        EXPECT_FALSE(ParseDocument<CFG_ALARM_CAPS>(command, R"({ "params" : { "caps" : { } } })"));
    }
}

TEST(AlarmCaps, ResultOfTheAnalogOnesIsABool) {
    const auto passes = [&](const std::string& result) {
        return ParseDocument<CFG_ANALOG_ALARM_CAPS>("AnalogAlarm.getCaps",
                                                    R"({ "result" : )" + result + R"(, "params" : { "caps" : { } } })")
                   .result
               != 0;
    };
    for (const char* accepted : {"true", "1", "\"false\"", "0.5"})
        EXPECT_TRUE(passes(accepted)) << accepted;
    for (const char* refused : {"false", "0", "\"\"", "null", "[ ]"})
        EXPECT_FALSE(passes(refused)) << refused;
}

TEST(AlarmCaps, WithoutCapsTheBufferIsCleared) {
    for (const char* command :
         {"alarm.getAlarmCaps", "alarm.getExAlarmCaps", "alarm.getExAlarmBoxCaps", "AnalogAlarm.getCaps"}) {
        for (const char* document : {R"({ "result" : true, "params" : { "table" : { } } })",
                                     R"({ "result" : true, "params" : { "caps" : null } })",
                                     R"({ "result" : false, "params" : { "caps" : { } } })", "no json"}) {
            const auto c = ParseDocument<CFG_EX_ALARM_CAPS>(command, document);
            EXPECT_FALSE(c) << command << document;
            EXPECT_TRUE(c.isCleared()) << command << document;
            EXPECT_EQ(c.length, test::kNoLength);
        }
    }
}

TEST(AlarmCaps, ExtensionAlarms) {
    const auto c = Caps<CFG_EX_ALARM_CAPS>("alarm.getExAlarmCaps", R"({ "AlarmIn" : 1, "AlarmOut" : 2, "MaxDelay" : 3,
        "DefenceAreaTypes" : [ "Panic", "panic" ], "SupportSenseMethod" : [ "Sound" ],
        "ProtocolList" : [ "QV_AlarmBox", "qv_alarmbox", "QV_AlarmBox2", 5, null, "QV_AlarmBox", "", "x", "QV_AlarmBox" ] })");
    ASSERT_TRUE(c);
    EXPECT_EQ(c.length, sizeof(CFG_EX_ALARM_CAPS));
    EXPECT_EQ(c->nAlarmIn, 1);
    EXPECT_EQ(c->nAlarmOut, 2);
    EXPECT_EQ(c->nMaxDelay, 3);
    EXPECT_EQ(c->nDefenceAreaTypeNum, 2);
    EXPECT_THAT(c->emDefenceAreaTypes, ElementsAre(6, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_EQ(c->nSenseMethodNum, 1);
    EXPECT_EQ(c->emSenseMethods[0], 22);
    EXPECT_EQ(c->nProtocolNum, 8);
    EXPECT_THAT(c->byProtocols, ElementsAre(1, 0, 0, 0, 0, 1, 0, 0));
}

TEST(AlarmCaps, ExtensionBoxes) {
    const auto c = Caps<CFG_EX_ALARM_BOX_CAPS>("alarm.getExAlarmBoxCaps", R"({ "AlarmIn" : 8, "AlarmOut" : -1 })");
    ASSERT_TRUE(c);
    EXPECT_EQ(c.length, sizeof(CFG_EX_ALARM_BOX_CAPS));
    EXPECT_EQ(c->nAlarmIn, 8);
    EXPECT_EQ(c->nAlarmOut, -1);
}

TEST(AlarmCaps, AnalogInputs) {
    const auto c = Caps<CFG_ANALOG_ALARM_CAPS>("AnalogAlarm.getCaps", R"({ "LocalAnalogs" : 2, "ExAnalogs" : 3,
        "SupportSenseMethod" : [ "TempSensor", "x" ] })");
    ASSERT_TRUE(c);
    EXPECT_EQ(c.length, sizeof(CFG_ANALOG_ALARM_CAPS));
    EXPECT_EQ(c->nLocalAnalogs, 2);
    EXPECT_EQ(c->nExAnalogs, 3);
    EXPECT_EQ(c->nSenseMethodNum, 2);
    EXPECT_EQ(c->emSenseMethods[0], 11);
    EXPECT_EQ(c->emSenseMethods[1], -1);
}

TEST(AlarmCaps, AreRepliesOnly) {
    const CFG_ALARM_CAPS caps{};
    for (const char* command :
         {"alarm.getAlarmCaps", "alarm.getExAlarmCaps", "alarm.getExAlarmBoxCaps", "AnalogAlarm.getCaps"}) {
        char text[] = "untouched";
        EXPECT_EQ(CLIENT_PacketData(command, &caps, sizeof caps, text, sizeof text), 0) << command;
        EXPECT_STREQ(text, "untouched");
    }
}

} // namespace
} // namespace orrery
