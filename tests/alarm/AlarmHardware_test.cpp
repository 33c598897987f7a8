// Outputs, keyboards, extension boxes, lights, supervised devices and the inputs of extension boxes.
#include "alarm/RecordLists.h"
#include "orrery/alarm_device_hardware.h"
#include "orrery/alarm_input.h"
#include "orrery/comm_attribute.h"
#include "orrery/log.h"
#include "orrery/types.h"
#include "support/LogLines.h"
#include "support/WeekText.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

using test::Answer;
using test::Cleared;
using test::kNotBegun;
using test::kRefused;
using test::Pack;
using test::Parse;
using test::ParseDocument;
using test::ParseTable;
using test::ReadsRefused;
using test::Records;
using test::WeekText;

const std::string kNoHandler = "\"EventHandler\" : { \"TimeSection\" : " + WeekText(7) + " }";

// ---- Outputs ----

TEST(AlarmOut, EverythingRead) {
    using Record = CFG_ALARM_OUT_INFO;
    const auto a = Parse<Record>("AlarmOut", R"([ { "Name" : "Siren", "Type" : "Bell", "Mode" : 1, "PulseDelay" : 2,
        "Slot" : 3, "Level1" : 4, "Level2" : 5 } ])");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Record));
    EXPECT_STREQ(a->szName, "Siren");
    EXPECT_STREQ(a->szType, "Bell");
    EXPECT_EQ(a->nMode, 1);
    EXPECT_EQ(a->nPulseDelay, 2);
    EXPECT_EQ(a->nSlot, 3);
    EXPECT_EQ(a->nLevel1, 4);
    EXPECT_EQ(a->abLevel2, 1);
    EXPECT_EQ(a->nLevel2, 5);
    EXPECT_FALSE(ReadsRefused<Record>("AlarmOut"));
    for (const char* const table : {"{ }", R"({ "Slot" : null, "Level1" : null, "Level2" : null })"}) {
        const auto nothing = Parse<Record>("AlarmOut", table);
        EXPECT_EQ(nothing->nSlot, -1) << table;
        EXPECT_EQ(nothing->nLevel1, -1) << table;
        EXPECT_EQ(nothing->abLevel2, 0) << table;
        EXPECT_EQ(nothing->nLevel2, 0) << table;
    }
}

TEST(AlarmOut, EverythingWritten) {
    CFG_ALARM_OUT_INFO record{};
    std::strcpy(record.szName, "N");
    std::strcpy(record.szType, "T");
    record.nMode = 1;
    record.nPulseDelay = 2;
    record.nSlot = -2; // only -1 is left out
    record.nLevel1 = 4;
    record.nLevel2 = 5;
    EXPECT_EQ(Pack("AlarmOut", record),
              R"({ "Level1" : 4, "Mode" : 1, "Name" : "N", "PulseDelay" : 2, "Slot" : -2, "Type" : "T" })");
    record.nSlot = record.nLevel1 = -1;
    record.abLevel2 = 2;
    record.nLevel2 = -1;
    EXPECT_EQ(Pack("AlarmOut", record),
              R"({ "Level2" : -1, "Mode" : 1, "Name" : "N", "PulseDelay" : 2, "Type" : "T" })");
}

TEST(AlarmOut, ARecordOrAList) {
    test::ExpectAlarmsOneOrMany<CFG_ALARM_OUT_INFO>(
        "AlarmOut", R"({ "Level2" : 1 })",
        R"({ "Level1" : 0, "Mode" : 0, "Name" : "", "PulseDelay" : 0, "Slot" : 0, "Type" : "" })");
}

TEST(ExAlarmOut, BothWays) {
    using Record = CFG_EX_ALARM_OUT_INFO;
    const auto a = Parse<Record>("ExAlarmOut", R"([ { "Name" : "Lamp", "Mode" : 2 } ])");
    ASSERT_TRUE(a);
    EXPECT_STREQ(a->szName, "Lamp");
    EXPECT_EQ(a->nMode, 2);
    EXPECT_FALSE(ReadsRefused<Record>("ExAlarmOut"));
    EXPECT_EQ(Pack("ExAlarmOut", *a), R"({ "Mode" : 2, "Name" : "Lamp" })");
    test::ExpectAlarmsOneOrMany<Record>("ExAlarmOut", R"({ "Mode" : 1 })", R"({ "Mode" : 0, "Name" : "" })");
}

// ---- Devices on a serial line ----

TEST(SerialAlarmDevices, BothWays) {
    using Record = CFG_SERIAL_ALARM_DEVICE_INFO;
    for (const char* const command : {"AlarmKeyboard", "ExAlarmBox"}) {
        const auto a = Parse<Record>(command, R"([ { "Enable" : true, "ProtocolName" : "Bus", "Port" : 1,
            "Address" : 2, "Attribute" : [ 19200, 7, "Even", "2" ] } ])");
        ASSERT_TRUE(a) << command;
        EXPECT_EQ(a.length, sizeof(Record));
        EXPECT_EQ(a->bEnable, 1);
        EXPECT_STREQ(a->szProtocolName, "Bus");
        EXPECT_EQ(a->nPort, 1);
        EXPECT_EQ(a->nAddress, 2);
        EXPECT_EQ(a->stuAttribute.byBaudRate, CFG_COMM_BAUD_19200);
        EXPECT_EQ(a->stuAttribute.byDataBits, CFG_COMM_DATA_BITS_7);
        EXPECT_EQ(a->stuAttribute.byParity, CFG_COMM_PARITY_EVEN);
        EXPECT_EQ(a->stuAttribute.byStopBits, CFG_COMM_STOP_BITS_2);
        EXPECT_FALSE(ReadsRefused<Record>(command));
        Record record{3, "P", 4, -5, {CFG_COMM_DATA_BITS_8, CFG_COMM_STOP_BITS_1_5, CFG_COMM_PARITY_MARK, 9}};
        EXPECT_EQ(Pack(command, record), R"({ "Address" : -5, "Attribute" : [ 115200, 8, "Mark", "1.5" ], )"
                                         R"("Enable" : true, "Port" : 4, "ProtocolName" : "P" })");
        test::ExpectAlarmsOneOrMany<Record>(
            command, R"({ "Port" : 1 })",
            R"({ "Address" : 0, "Attribute" : [ 300, 5, "None", "1" ], "Enable" : false, )"
            R"("Port" : 0, "ProtocolName" : "" })");
    }
}

// ---- "FlashLight" ----

TEST(FlashLight, BothWays) {
    using Record = CFG_FLASH_LIGHT_INFO;
    const auto a = Parse<Record>("FlashLight", R"({ "Enable" : 2, "Brightness" : 50, "TimeSection" : [
        [ "1 01:00:00-02:00:00", 5, "1 03:00:00-04:00:00", true, "bad", "1 005:00:00-6:00:00", "1 07:00:00-08:00:00" ],
        null, 7, { "a" : "1 01:00:00-02:00:00" }, [ ], [ ], [ "2 05:06:07-08:09:10" ], [ "1 01:00:00-02:00:00" ] ] })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Record));
    EXPECT_EQ(a->nEnable, 2);
    EXPECT_EQ(a->nBrightness, 50);
    EXPECT_EQ(a->stuTimeSection[0][0].nEndHour, 2);
    EXPECT_EQ(a->stuTimeSection[0][1].dwMask, 0); // no text: stays zero, and those behind it are read
    EXPECT_EQ(a->stuTimeSection[0][2].nEndHour, 4);
    EXPECT_EQ(a->stuTimeSection[0][3].dwMask, 0);
    EXPECT_EQ(a->stuTimeSection[0][4].dwMask, 0);
    EXPECT_EQ(a->stuTimeSection[0][5].dwMask, 1); // what stood before the third digit
    EXPECT_EQ(a->stuTimeSection[0][5].nEndHour, 0);
    for (const int row : {1, 2, 3, 4, 5})
        EXPECT_EQ(a->stuTimeSection[row][0].nEndHour, 0) << row;
    EXPECT_EQ(a->stuTimeSection[6][0].dwMask, 2);
    EXPECT_EQ(a->stuTimeSection[6][0].nEndSec, 10);
    EXPECT_EQ(Parse<Record>("FlashLight", R"({ "Enable" : true })")->nEnable, 1);
    EXPECT_TRUE(ReadsRefused<Record>("FlashLight"));
    Record record{};
    record.nEnable = 3;
    record.nBrightness = 4;
    record.stuTimeSection[1][2] = {1, 2, 3, 4, 5, 6, 7};
    EXPECT_EQ(Pack("FlashLight", record), R"({ "Brightness" : 4, "Enable" : 3, "TimeSection" : )"
                                              + WeekText(7, {{1, 2, "1 02:03:04-05:06:07"}}) + " }");
}

// ---- "ExAlarm" ----

TEST(ExAlarm, AListAndOneRecord) {
    using Record = CFG_ALARM_INPUT_INFO;
    const std::string input = R"({ "Enable" : true, "Name" : "Gate", "SensorType" : "NC", "ID" : "i", "Pole" : 1,
        "SenseMethod" : "Oil", "EnableControl" : "EnableAlways", "DisableDelay" : 2, "DefenceAreaType" : "Panic",
        "EnableDelay" : 3, "Slot" : 4, "Level1" : 5, "Level2" : 6,
        "EventHandler" : { "TimeSection" : )"
                              + WeekText(7, {{0, 0, "1 01:00:00-02:00:00"}}) + " } }";
    const Records<Record> many(3);
    ASSERT_EQ(ParseTable("ExAlarm", "[ { }, " + input + " ]", many, "", R"("channel":7,)"),
              (Answer{1, 2 * sizeof(Record)}));
    EXPECT_EQ(many[0].nChannel, 7);
    EXPECT_EQ(many[0].emSenseMethod, -1);
    EXPECT_EQ(many[0].nSlot, -1);
    EXPECT_EQ(many[0].nLevel1, -1);
    EXPECT_EQ(many[0].abLevel2, 0);
    EXPECT_EQ(many[0].nLevel2, -1);
    EXPECT_EQ(many[1].nChannel, 7);
    EXPECT_EQ(many[2].nChannel, 0);

    const Records<Record> one(2);
    ASSERT_EQ(ParseTable("ExAlarm", input, one, "", R"("channel":1,)"), (Answer{1, sizeof(Record)}));
    const auto record = std::make_unique<Record>(one[0]); // at the front, whatever its channel
    EXPECT_EQ(record->nChannel, 1);
    EXPECT_EQ(record->bEnable, 1);
    EXPECT_STREQ(record->szName, "Gate");
    EXPECT_EQ(record->nSensorType, CFG_SENSOR_NORMALLY_CLOSED);
    EXPECT_EQ(record->abDeviceID, 1);
    EXPECT_STREQ(record->szDeviceID, "i");
    EXPECT_EQ(record->nPole, 1);
    EXPECT_EQ(record->emSenseMethod, EM_SENSE_OIL);
    EXPECT_EQ(record->emEnableControl, CFG_ENABLE_ALWAYS);
    EXPECT_EQ(record->nDisableDelay, 2);
    EXPECT_EQ(record->emDefenceAreaType, EM_DEFENCE_AREA_PANIC);
    EXPECT_EQ(record->nEnableDelay, 3);
    EXPECT_EQ(record->nSlot, 4);
    EXPECT_EQ(record->nLevel1, 5);
    EXPECT_EQ(record->abLevel2, 1);
    EXPECT_EQ(record->nLevel2, 6);
    EXPECT_EQ(record->stuEventHandler.stuTimeSection[0][0].nEndHour, 0); // the plain linkage
    EXPECT_EQ(record->stuEventHandler.stuTimeSectionEx.stuTimeSection[0][0].nEndHour, 2);
    EXPECT_TRUE(ReadsRefused<Record>("ExAlarm"));
    record->stuEventHandler.stuTimeSection[0][0] = {1, 9, 0, 0, 10, 0, 0};
    EXPECT_EQ(Pack("ExAlarm", *record),
              R"({ "DefenceAreaType" : "Panic", "DisableDelay" : 2, "Enable" : true, )"
              R"("EnableControl" : "EnableAlways", "EnableDelay" : 3, "EventHandler" : { "AlarmOutEnable" : false, )"
              R"("RecordEnable" : false, "TimeSection" : )"
                  + WeekText(7, {{0, 0, "1 01:00:00-02:00:00"}})
                  + R"( }, "ID" : "i", "Level1" : 5, "Level2" : 6, "Name" : "Gate", "Pole" : 1, )"
                    R"("SenseMethod" : "Oil", "SensorType" : "NC", "Slot" : 4 })");
}

TEST(ExAlarm, ARecordOrAList) {
    test::ExpectAlarmsOneOrMany<CFG_ALARM_INPUT_INFO>(
        "ExAlarm", R"({ "Name" : "a" })",
        R"({ "DisableDelay" : 0, "Enable" : false, "EnableControl" : "Normal", "EnableDelay" : 0, )" + kNoHandler
            + R"(, "ID" : "", "Level1" : 0, "Name" : "", "Pole" : 0, "SenseMethod" : "DoorMagnetism", )"
              R"("SensorType" : "NC", "Slot" : 0 })");
}

// ---- "SCADADev" ----

using Scada = CFG_SCADA_DEV_INFO;

TEST(SCADADev, BothWays) {
    const auto a = Parse<Scada>("SCADADev", R"([ { "Enable" : true, "DevType" : "UPS", "DevName" : "Cellar",
        "Slot" : 1, "Level" : 2, "EventHandler" : { "Delay" : 3 } } ])");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Scada));
    EXPECT_EQ(a->bEnable, 1);
    EXPECT_STREQ(a->szDevType, "UPS");
    EXPECT_STREQ(a->szDevName, "Cellar");
    EXPECT_EQ(a->nSlot, 1);
    EXPECT_EQ(a->nLevel, 2);
    EXPECT_EQ(a->stuEventHandler.nDelay, 3);
    EXPECT_FALSE(ReadsRefused<Scada>("SCADADev"));
    auto record = Cleared<Scada>();
    record->bEnable = 2;
    std::strcpy(record->szDevType, "T");
    std::strcpy(record->szDevName, "N");
    record->nSlot = -1;
    record->nLevel = 4;
    EXPECT_EQ(Pack("SCADADev", *record), R"({ "DevName" : "N", "DevType" : "T", "Enable" : true, )" + kNoHandler
                                             + R"(, "Level" : 4, "Slot" : -1 })");
    test::ExpectAlarmsOneOrMany<Scada>("SCADADev", R"({ "Level" : 1 })",
                                       R"({ "DevName" : "", "DevType" : "", "Enable" : false, )" + kNoHandler
                                           + R"(, "Level" : 0, "Slot" : 0 })");
}

TEST(SCADADev, TakesCommentsInItsText) {
    const Records<Scada> records(1);
    EXPECT_EQ(ParseDocument("SCADADev", R"(// a reply
        { "result" : true, /* accepted */ "params" : { "table" : { "Level" : 5 } } })",
                            records),
              (Answer{1, sizeof(Scada)}));
    EXPECT_EQ(records[0].nLevel, 5);
}

// A sink that keeps codes and positions too.
class Positions : public test::LogLines {
  public:
    void SetPosition(const char* file, int line, E_LOG_LEVEL level) override {
        told += std::string(file) + ':' + std::to_string(line) + ' ';
        LogLines::SetPosition(file, line, level);
    }
    void TraceOut(int zero, int code, const char* format, char*& arguments) override {
        char hexadecimal[16];
        std::snprintf(hexadecimal, sizeof hexadecimal, "%x ", static_cast<unsigned>(code));
        told += hexadecimal + std::string(format) + '\n';
        LogLines::TraceOut(zero, code, format, arguments);
    }
    std::string told;
};

// What is told of a call.
template <class Call>
std::string ToldOf(Call call) {
    Positions log;
    call();
    const auto errors = log.texts(E_LOG_LEVEL_ERROR);
    EXPECT_EQ(errors.size(), log.told.empty() ? 0u : 1u);
    return log.told;
}

const std::string kReply = R"({"result":true,"params":{"table":[ { } ]}})";

TEST(SCADADev, TellsWhatItsReplyRefuses) {
    const Records<Scada> records(1, 0x5A);
    const auto parse = [&](const std::string& text, std::uint32_t size) {
        return ToldOf([&] {
            std::uint32_t length = test::kNoLength;
            EXPECT_EQ(CLIENT_ParseData("SCADADev", text.c_str(), records.data(), size, &length), 0) << text;
            EXPECT_EQ(length, test::kNoLength);
        });
    };
    constexpr std::uint32_t kSize = sizeof(Scada);
    const std::string parameters = "AlarmConfig:8365 90000001 Parameters invalid\n";
    EXPECT_EQ(parse("", kSize), parameters);
    EXPECT_EQ(parse(kReply, kSize - 1), parameters);
    EXPECT_EQ(parse(kReply, 1), parameters);
    EXPECT_TRUE(records.isAll(0x5A));
    EXPECT_EQ(parse(kReply, 0), ""); // refused before the command is known
    for (const char* const table : {"5", "\"x\"", "true", "1.5"}) {
        EXPECT_EQ(parse(R"({"result":true,"params":{"table":)" + std::string(table) + "}}", kSize),
                  "AlarmConfig:8404 90003002 Table in not array and object\n")
            << table;
    }
    for (const char* const quiet :
         {" ", "{", R"({"result":false,"params":{"table":5}})", R"({"result":true})",
          R"({"result":true,"params":{"table":null}})", R"({"result":true,"params":{"table":[ ]}})"})
        EXPECT_EQ(parse(quiet, kSize), "") << quiet;
    EXPECT_TRUE(records.isAll(0));
    EXPECT_EQ(ToldOf([&] { EXPECT_EQ(ParseDocument("SCADADev", kReply, records), (Answer{1, kSize})); }), "");
}

TEST(SCADADev, TellsWhatItsRecordRefuses) {
    const Records<Scada> records(1);
    const auto pack = [&](std::uint32_t size, std::uint32_t capacity, int expected) {
        return ToldOf([&] {
            const auto text = std::make_unique<char[]>(test::kAmple);
            EXPECT_EQ(CLIENT_PacketData("SCADADev", records.data(), size, text.get(), capacity), expected);
        });
    };
    constexpr std::uint32_t kSize = sizeof(Scada);
    const std::string parameters = "AlarmConfig:8420 90000001 Parameters invalid\n";
    EXPECT_EQ(pack(kSize - 1, test::kAmple, 0), parameters);
    EXPECT_EQ(pack(0, test::kAmple, 0), parameters);
    EXPECT_EQ(pack(kSize, 0, 0), parameters);
    EXPECT_EQ(pack(kSize, 10, 0), ""); // merely too long
    EXPECT_EQ(pack(kSize, test::kAmple, 1), "");
}

TEST(SCADADev, BehavesWithoutASinkAsWithOne) {
    const Records<Scada> records(2);
    EXPECT_EQ(ParseTable("SCADADev", "5", records), kRefused);
    EXPECT_EQ(ParseTable("SCADADev", "[ { \"Level\" : 1 }, { \"Level\" : 2 }, { \"Level\" : 3 } ]", records),
              (Answer{1, 2 * sizeof(Scada)}));
    EXPECT_EQ(records[0].nLevel, 1);
    EXPECT_EQ(records[1].nLevel, 2);
    EXPECT_EQ(test::PackBytes("SCADADev", records.data(), 0, 10), kNotBegun);
}

} // namespace
} // namespace orrery
