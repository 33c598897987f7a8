// Parking systems and lanes.
#include "orrery/parking.h"
#include "support/Call.h"

#include <gtest/gtest.h>

#include <string>

namespace orrery::test {
namespace {

template <class R>
R Read(const char* command, const std::string& table) {
    const Records<R> record(1, 0x11);
    EXPECT_EQ(ParseTable(command, table, record).result, 1) << command << table;
    return record[0];
}

// The commands that take one record whatever the table's type, and leave it as `{}` does.
template <class R>
void TakesAnyType(const char* command) {
    const Records<R> empty(1, 0x11);
    EXPECT_EQ(ParseTable(command, "{}", empty), (Answer{1, sizeof(R)})) << command;
    for (const char* table : {"7", "\"x\"", "true", "[]", "[{}]"}) {
        const Records<R> record(1, 0x11);
        EXPECT_EQ(ParseTable(command, table, record), (Answer{1, sizeof(R)})) << command << table;
        EXPECT_EQ(std::memcmp(record.data(), empty.data(), sizeof(R)), 0) << command << table;
    }
    const Records<R> record(1, 0x11);
    EXPECT_EQ(ParseTable(command, "null", record), kRefused) << command;
    EXPECT_TRUE(record.isAll(0)) << command;
    EXPECT_EQ(ParseDocument(command, R"({"result":false,"params":{"table":{}}})", record), kRefused) << command;
    EXPECT_EQ(ParseDocument(command, R"({"params":{"table":{}}})", record), kRefused) << command;
}

// ---- "WorkState" ---------------------------------------------------------------------------------------------------

using States = Records<CFG_WORK_STATE_INFO>;
constexpr std::uint32_t kState = sizeof(CFG_WORK_STATE_INFO);

TEST(WorkState, AnObjectIsOneRecord) {
    EXPECT_EQ(kState, 12u);
    const States records(2, 0x11);
    ASSERT_EQ(ParseTable("WorkState", R"({"State":3,"MatchMode":4})", records), (Answer{1, kState}));
    EXPECT_EQ(records[0].dwReserved, 0);
    EXPECT_EQ(records[0].nState, 3);
    EXPECT_EQ(records[0].nMatchMode, 4);
    EXPECT_EQ(records[1].nState, 0);
}

TEST(WorkState, AnArrayCountsWhatIsNoNull) {
    const States records(3, 0x11);
    ASSERT_EQ(ParseTable("WorkState", R"([{"State":1},null,{"State":3,"MatchMode":null},{"State":4}])", records),
              (Answer{1, 2 * kState}));
    EXPECT_EQ(records[0].nState, 1);
    EXPECT_EQ(records[1].nState, 0);
    EXPECT_EQ(records[2].nState, 3);
    EXPECT_EQ(records[2].nMatchMode, 0);
}

TEST(WorkState, FailuresTellALengthOfZero) {
    for (const char* table : {"null", "[]", "7", "\"x\"", "true"}) {
        const States records(1, 0x11);
        EXPECT_EQ(ParseTable("WorkState", table, records), (Answer{0, 0})) << table;
        EXPECT_TRUE(records.isAll(0)) << table;
    }
    const States records(1, 0x11);
    EXPECT_EQ(ParseDocument("WorkState", R"({"result":false,"params":{"table":{"State":1}}})", records),
              (Answer{0, 0}));
}

TEST(WorkState, OneRecordIsBareAndSeveralAreAnArray) {
    States one(1), two(2);
    one.Set(0, {9, 1, 2});
    EXPECT_EQ(PackAll("WorkState", one), R"({ "MatchMode" : 2, "State" : 1 })");
    two.Set(0, {0, 1, 2});
    two.Set(1, {0, -3, 4});
    EXPECT_EQ(PackAll("WorkState", two), R"([ { "MatchMode" : 2, "State" : 1 }, { "MatchMode" : 4, "State" : -3 } ])");
    EXPECT_EQ(PackBytes("WorkState", two.data(), kState - 1, 100), kNotBegun);
}

// ---- Screens -------------------------------------------------------------------------------------------------------

TEST(ParkingSpaceScreen, GoesRoundWhole) {
    const auto screen = Read<CFG_PARKING_SCREEN_INFO>("ParkingSpaceScreen",
                                                      R"({"ipAddr":"10.0.0.1","port":80,"authorization":"small",
        "Authorization":"capital","deviceNo":"n7","enable":true})");
    EXPECT_STREQ(screen.szIpAddr, "10.0.0.1");
    EXPECT_EQ(screen.nPort, 80);
    EXPECT_STREQ(screen.szAuthorization, "capital");
    EXPECT_STREQ(screen.szDeviceNo, "n7");
    EXPECT_EQ(screen.bEnable, 1);
    EXPECT_EQ(Pack("ParkingSpaceScreen", screen),
              R"({ "authorization" : "capital", "deviceNo" : "n7", "enable" : true, )"
              R"("ipAddr" : "10.0.0.1", "port" : 80 })");
    EXPECT_EQ(Pack("ParkingSpaceScreen", CFG_PARKING_SCREEN_INFO{}),
              R"({ "authorization" : "", "deviceNo" : "", "enable" : false, "ipAddr" : "", "port" : 0 })");
}

TEST(ParkingSpaceScreen, TheTextNeedsBothSpellings) {
    const auto textOf = [](const char* table) {
        return std::string(Read<CFG_PARKING_SCREEN_INFO>("ParkingSpaceScreen", table).szAuthorization);
    };
    EXPECT_EQ(textOf(R"({"Authorization":"a"})"), "");
    EXPECT_EQ(textOf(R"({"authorization":"a"})"), "");
    EXPECT_EQ(textOf(R"({"authorization":null,"Authorization":"a"})"), "");
    EXPECT_EQ(textOf(R"({"authorization":5,"Authorization":"a"})"), "a");
    EXPECT_EQ(textOf(R"({"authorization":"a","Authorization":5})"), "");
    EXPECT_EQ(textOf((R"({"authorization":"","Authorization":")" + std::string(300, 'a') + "\"}").c_str()),
              std::string(259, 'a'));
}

TEST(ParkingSpaceScreen, TakesValuesOfTheirTypeAlone) {
    const auto screen =
        Read<CFG_PARKING_SCREEN_INFO>("ParkingSpaceScreen", R"({"ipAddr":1,"port":"80","deviceNo":true,"enable":1})");
    EXPECT_STREQ(screen.szIpAddr, "");
    EXPECT_EQ(screen.nPort, 0);
    EXPECT_STREQ(screen.szDeviceNo, "");
    EXPECT_EQ(screen.bEnable, 0);
    EXPECT_EQ(Read<CFG_PARKING_SCREEN_INFO>("ParkingSpaceScreen", R"({"port":true})").nPort, 1);
}

TEST(ParkingSpaceScreen, TextsAreCutAtTheirCapacity) {
    const std::string x(300, 'x');
    const auto screen =
        Read<CFG_PARKING_SCREEN_INFO>("ParkingSpaceScreen", R"({"ipAddr":")" + x + R"(","deviceNo":")" + x + "\"}");
    EXPECT_EQ(std::string(screen.szIpAddr), x.substr(0, 259));
    EXPECT_EQ(std::string(screen.szDeviceNo), x.substr(0, 259));
    EXPECT_STREQ(screen.szAuthorization, "");
}

template <class R>
void TakesOneOrMany(const char* command, const char* key, int32_t R::*member) {
    const std::uint32_t size = sizeof(R);
    const std::string object = "{\"" + std::string(key) + "\":5}";
    const Records<R> records(2, 0x11);
    ASSERT_EQ(ParseTable(command, "[null," + object + "," + object + "]", records), (Answer{1, 2 * size})) << command;
    EXPECT_EQ(records[0].*member, 0);
    EXPECT_EQ(records[1].*member, 5);
    for (const char* table : {"7", "\"x\"", "{}"}) {
        const Records<R> cleared(2, 0x11);
        EXPECT_EQ(ParseTable(command, table, cleared), (Answer{1, size})) << command << table;
        EXPECT_TRUE(cleared.isAll(0));
    }
    const Records<R> none(1, 0x11);
    EXPECT_EQ(ParseTable(command, "null", none), kRefused) << command;
    const Records<R> empty(1, 0x11);
    EXPECT_EQ(ParseTable(command, "[]", empty), (Answer{1, 0})) << command;
    EXPECT_TRUE(empty.isAll(0)) << command;
    for (const std::string result : {R"("result":false,)", ""}) {
        const Records<R> refused(1, 0x11);
        EXPECT_EQ(ParseDocument(command, "{" + result + R"("params":{"table":)" + object + "}}", refused), kRefused)
            << command << result;
        EXPECT_TRUE(refused.isAll(0)) << command;
    }
    EXPECT_EQ(PackAll(command, records).front(), '[');
}

TEST(ParkingSpaceScreen, OneOrMany) {
    TakesOneOrMany("ParkingSpaceScreen", "port", &CFG_PARKING_SCREEN_INFO::nPort);
    TakesOneOrMany("ParkingSpaceCellStatus", "cellNumber", &CFG_PARKING_CELL_STATUS::nCellNumber);
}

TEST(ParkingSpaceCellStatus, GoesRoundWhole) {
    const auto cell = Read<CFG_PARKING_CELL_STATUS>("ParkingSpaceCellStatus", R"({"cellNumber":3,"cellType":4})");
    EXPECT_EQ(cell.nCellNumber, 3);
    EXPECT_EQ(cell.nCellType, 4);
    EXPECT_EQ(Pack("ParkingSpaceCellStatus", cell), R"({ "cellNumber" : 3, "cellType" : 4 })");
    EXPECT_EQ(Read<CFG_PARKING_CELL_STATUS>("ParkingSpaceCellStatus", R"({"cellNumber":3})").nCellNumber, 3);
}

// ---- Lanes ---------------------------------------------------------------------------------------------------------

TEST(LanesStateReport, GoesRoundWhole) {
    const auto report = Read<CFG_LANES_STATE_REPORT_INFO>("LanesStateReport", R"({"Enable":true,"Period":60})");
    EXPECT_EQ(report.bEnable, 1);
    EXPECT_EQ(report.nPeriod, 60);
    EXPECT_EQ(Pack("LanesStateReport", report), R"({ "Enable" : true, "Period" : 60 })");
    TakesAnyType<CFG_LANES_STATE_REPORT_INFO>("LanesStateReport");
}

TEST(RainBrushMode, GoesRoundWhole) {
    const auto brush =
        Read<CFG_RAIN_BRUSH_MODE_INFO>("RainBrushMode", R"({"Mode":"Timing","EnableMode":1,"Port":3,"Sensitivity":4})");
    EXPECT_EQ(brush.emMode, 2);
    EXPECT_EQ(brush.emEnableMode, 2);
    EXPECT_EQ(brush.nPort, 3);
    EXPECT_EQ(brush.nSensitivity, 4);
    EXPECT_EQ(Pack("RainBrushMode", brush),
              R"({ "EnableMode" : 1, "Mode" : "Timing", "Port" : 3, "Sensitivity" : 4 })");
    TakesAnyType<CFG_RAIN_BRUSH_MODE_INFO>("RainBrushMode");
}

TEST(RainBrushMode, ModesFoldAndOthersAreUnknown) {
    const auto modeOf = [](const std::string& value) {
        return Read<CFG_RAIN_BRUSH_MODE_INFO>("RainBrushMode", R"({"Mode":)" + value + "}").emMode;
    };
    EXPECT_EQ(modeOf("\"manual\""), 1);
    EXPECT_EQ(modeOf("\"TIMING\""), 2);
    EXPECT_EQ(modeOf("\"aUTO\""), 3);
    for (const char* other : {"\"Unknown\"", "\"\"", "2", "true"})
        EXPECT_EQ(modeOf(other), 0) << other;
    for (const auto& [code, text] :
         {std::pair{1, "Manual"}, {2, "Timing"}, {3, "Auto"}, {0, "Unknown"}, {4, "Unknown"}, {-1, "Unknown"}}) {
        EXPECT_EQ(Pack("RainBrushMode", CFG_RAIN_BRUSH_MODE_INFO{code, 0, -2, 0}),
                  R"({ "Mode" : ")" + std::string(text) + "\" }");
    }
}

TEST(RainBrushMode, LevelsStandOneBelowTheirCodes) {
    const auto levelOf = [](const std::string& value) {
        return Read<CFG_RAIN_BRUSH_MODE_INFO>("RainBrushMode", R"({"EnableMode":)" + value + "}").emEnableMode;
    };
    EXPECT_EQ(levelOf("0"), 1);
    EXPECT_EQ(levelOf("1"), 2);
    for (const char* other : {"2", "-1", "\"1\"", "true", "1.0", "4294967295"})
        EXPECT_EQ(levelOf(other), 0) << other;
    const auto textOf = [](int code) { return Pack("RainBrushMode", CFG_RAIN_BRUSH_MODE_INFO{0, code, -2, 0}); };
    EXPECT_EQ(textOf(1), R"({ "EnableMode" : 0, "Mode" : "Unknown" })");
    EXPECT_EQ(textOf(2), R"({ "EnableMode" : 1, "Mode" : "Unknown" })");
    for (const int code : {0, 3, -1})
        EXPECT_EQ(textOf(code), R"({ "Mode" : "Unknown" })") << code;
}

TEST(RainBrushMode, PortStartsAtMinusTwo) {
    const auto portOf = [](const char* table) { return Read<CFG_RAIN_BRUSH_MODE_INFO>("RainBrushMode", table).nPort; };
    for (const char* none : {"{}", R"({"Port":"3"})", R"({"Port":true})", R"({"Port":3.0})", R"({"Port":null})"})
        EXPECT_EQ(portOf(none), -2) << none;
    EXPECT_EQ(portOf(R"({"Port":0})"), 0);
    EXPECT_EQ(Pack("RainBrushMode", CFG_RAIN_BRUSH_MODE_INFO{0, 0, 0, 0}), R"({ "Mode" : "Unknown", "Port" : 0 })");
    EXPECT_EQ(Pack("RainBrushMode", CFG_RAIN_BRUSH_MODE_INFO{0, 0, -1, -5}),
              R"({ "Mode" : "Unknown", "Port" : -1, "Sensitivity" : -5 })");
    // A refused call clears the record, and reads nothing.
    const Records<CFG_RAIN_BRUSH_MODE_INFO> record(1, 0x11);
    EXPECT_EQ(ParseTable("RainBrushMode", "null", record), kRefused);
    EXPECT_EQ(record[0].nPort, 0);
}

TEST(TrafficStrobe, GoesRoundWhole) {
    const auto strobe =
        Parse<CFG_TRAFFIC_STROBE_INFO>("TrafficStrobe",
                                       R"({"Enable":true,"ControlType":["ORDER","other","TrafficTrustList",
        "AllSnapCar"],"EventHandler":{"RecordLatch":11},"EventHandlerClose":{"RecordLatch":12},"AllSnapCar":true})");
    ASSERT_TRUE(strobe);
    EXPECT_EQ(strobe.length, sizeof(CFG_TRAFFIC_STROBE_INFO));
    EXPECT_EQ(strobe->bEnable, 1);
    EXPECT_EQ(strobe->nControlTypeCount, 4);
    EXPECT_EQ(strobe->emControlType[0], 3);
    EXPECT_EQ(strobe->emControlType[1], 0);
    EXPECT_EQ(strobe->emControlType[2], 1);
    EXPECT_EQ(strobe->emControlType[3], 2);
    EXPECT_EQ(strobe->stuEventHandler.nRecordLatch, 11);
    EXPECT_EQ(strobe->stuEventHandlerClose.nRecordLatch, 12);
    EXPECT_EQ(strobe->bAllSnapCar, 1);
    const std::string text = Pack("TrafficStrobe", *strobe);
    EXPECT_EQ(
        text.find(R"({ "AllSnapCar" : true, "ControlType" : [ "Order", null, "TrafficTrustList", "AllSnapCar" ], )"
                  R"("Enable" : true, "EventHandler" : { )"),
        0u)
        << text;
    const std::size_t close = text.find(R"("EventHandlerClose" : { )");
    ASSERT_NE(close, std::string::npos);
    EXPECT_LT(text.find(R"("RecordLatch" : 11)"), close);
    EXPECT_GT(text.find(R"("RecordLatch" : 12)"), close);
}

TEST(TrafficStrobe, HoldsSixteenControls) {
    for (const int controls : {16, 17}) {
        std::string list = "[\"Order\"";
        for (int i = 1; i < controls; ++i)
            list += ",\"AllSnapCar\"";
        const auto strobe = Parse<CFG_TRAFFIC_STROBE_INFO>("TrafficStrobe", R"({"ControlType":)" + list + "]}");
        EXPECT_EQ(strobe->nControlTypeCount, 16);
        EXPECT_EQ(strobe->emControlType[15], 2);
        EXPECT_EQ(strobe->stuEventHandler.nRecordLatch, 0);
    }
    // The linkage is read also when it is absent, as of alarm inputs.
    const auto none = Parse<CFG_TRAFFIC_STROBE_INFO>("TrafficStrobe", "{}");
    EXPECT_EQ(none->stuEventHandler.abRecordEnable, 1);
    EXPECT_EQ(none->stuEventHandlerClose.abRecordEnable, 1);
    TakesAnyType<CFG_TRAFFIC_STROBE_INFO>("TrafficStrobe");
}

int Occurrences(const std::string& text, const std::string& part) {
    int found = 0;
    for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; ++at)
        ++found;
    return found;
}

TEST(TrafficStrobe, Controls) {
    const auto read = Parse<CFG_TRAFFIC_STROBE_INFO>(
        "TrafficStrobe", R"({"ControlType":["trafficTRUSTlist","ALLSNAPCAR","order","",7,null]})");
    ASSERT_EQ(read->nControlTypeCount, 6);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(read->emControlType[i], i < 3 ? i + 1 : 0) << i;
    auto strobe = Cleared<CFG_TRAFFIC_STROBE_INFO>();
    EXPECT_EQ(Pack("TrafficStrobe", *strobe).find("ControlType"), std::string::npos);
    for (int i = 0; i < 5; ++i)
        strobe->emControlType[i] = i < 4 ? i + 1 : -1;
    strobe->nControlTypeCount = 5;
    EXPECT_NE(Pack("TrafficStrobe", *strobe)
                  .find(R"("ControlType" : [ "TrafficTrustList", "AllSnapCar", "Order", null, null ])"),
              std::string::npos);
    for (int32_t& control : strobe->emControlType)
        control = CFG_STROBE_ORDER;
    for (const auto& [count, written] : {std::pair{16, 16}, {17, 16}, {-1, 0}}) {
        strobe->nControlTypeCount = count;
        EXPECT_EQ(Occurrences(Pack("TrafficStrobe", *strobe), "\"Order\""), written) << count;
    }
}

TEST(TrafficStrobe, EachSwitchHasItsKey) {
    const auto on = Parse<CFG_TRAFFIC_STROBE_INFO>("TrafficStrobe", R"({"Enable":true})");
    EXPECT_EQ(on->bEnable, 1);
    EXPECT_EQ(on->bAllSnapCar, 0);
    EXPECT_EQ(Pack("TrafficStrobe", *on).find(R"({ "AllSnapCar" : false, "Enable" : true, )"), 0u);
    const auto all = Parse<CFG_TRAFFIC_STROBE_INFO>("TrafficStrobe", R"({"AllSnapCar":true})");
    EXPECT_EQ(all->bEnable, 0);
    EXPECT_EQ(all->bAllSnapCar, 1);
    EXPECT_EQ(Pack("TrafficStrobe", *all).find(R"({ "AllSnapCar" : true, "Enable" : false, )"), 0u);
}

TEST(TrafficVoiceBroadcast, GoesRoundWhole) {
    const auto voice = Read<CFG_TRAFFIC_VOICE_INFO>(
        "TrafficVoiceBroadcast",
        R"({"Enable":["plate","none","Tips"],"NormalCar":"one","TrustCar":"two","SuspiciousCar":"three"})");
    EXPECT_EQ(voice.nEnableCount, 3);
    EXPECT_EQ(voice.emEnable[0], 2);
    EXPECT_EQ(voice.emEnable[1], 0);
    EXPECT_EQ(voice.emEnable[2], 1);
    EXPECT_STREQ(voice.szNormalCar, "one");
    EXPECT_STREQ(voice.szTrustCar, "two");
    EXPECT_STREQ(voice.szSuspiciousCar, "three");
    EXPECT_EQ(Pack("TrafficVoiceBroadcast", voice), R"({ "Enable" : [ "Plate", null, "Tips" ], "NormalCar" : "one", )"
                                                    R"("SuspiciousCar" : "three", "TrustCar" : "two" })");
    EXPECT_EQ(Pack("TrafficVoiceBroadcast", CFG_TRAFFIC_VOICE_INFO{}),
              R"({ "NormalCar" : "", "SuspiciousCar" : "", "TrustCar" : "" })");
    const std::string nine = R"(["Tips","Tips","Tips","Tips","Tips","Tips","Tips","Plate","Plate"])";
    const std::string cars(300, 'c');
    const auto full = Read<CFG_TRAFFIC_VOICE_INFO>(
        "TrafficVoiceBroadcast", R"({"Enable":)" + nine + R"(,"NormalCar":")" + cars + R"(","TrustCar":")" + cars
                                     + R"(","SuspiciousCar":")" + cars + "\"}");
    EXPECT_EQ(full.nEnableCount, 8);
    EXPECT_EQ(full.emEnable[7], 2);
    for (const char* text : {full.szNormalCar, full.szTrustCar, full.szSuspiciousCar})
        EXPECT_EQ(std::string(text), cars.substr(0, 259));
    TakesAnyType<CFG_TRAFFIC_VOICE_INFO>("TrafficVoiceBroadcast");
}

TEST(TrafficVoiceBroadcast, Contents) {
    const auto read = Read<CFG_TRAFFIC_VOICE_INFO>("TrafficVoiceBroadcast", R"({"Enable":["tIPS","PLATE","",7,null]})");
    ASSERT_EQ(read.nEnableCount, 5);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(read.emEnable[i], i < 2 ? i + 1 : 0) << i;
    const std::string cars = R"("NormalCar" : "", "SuspiciousCar" : "", "TrustCar" : "" })";
    CFG_TRAFFIC_VOICE_INFO voice = {4, {1, 2, 3, -1, 2, 2, 2, 2}, "", "", ""};
    EXPECT_EQ(Pack("TrafficVoiceBroadcast", voice), R"({ "Enable" : [ "Tips", "Plate", null, null ], )" + cars);
    for (const int count : {8, 9}) {
        voice.nEnableCount = count;
        EXPECT_EQ(Occurrences(Pack("TrafficVoiceBroadcast", voice), "\"Plate\""), 5) << count;
    }
    voice.nEnableCount = -1;
    EXPECT_EQ(Pack("TrafficVoiceBroadcast", voice), "{ " + cars);
}

TEST(AutoStartupDelay, TakesValuesOfTheirTypeAlone) {
    const auto delay = Read<CFG_AUTO_STARTUP_DELAY_INFO>("AutoStartupDelay", R"({"Enable":true,"Delay":6})");
    EXPECT_EQ(delay.bEnable, 1);
    EXPECT_EQ(delay.nDelay, 6);
    EXPECT_EQ(Pack("AutoStartupDelay", delay), R"({ "Delay" : 6, "Enable" : true })");
    for (const char* other : {R"({"Enable":1,"Delay":"6"})", R"({"Enable":"true","Delay":true})", R"({"Delay":6.0})"}) {
        const auto none = Read<CFG_AUTO_STARTUP_DELAY_INFO>("AutoStartupDelay", other);
        EXPECT_EQ(none.bEnable, 0) << other;
        EXPECT_EQ(none.nDelay, 0) << other;
    }
    TakesAnyType<CFG_AUTO_STARTUP_DELAY_INFO>("AutoStartupDelay");
}

TEST(AutoStartupDelay, ATextMayFillItsBufferWithoutATerminator) {
    const CFG_AUTO_STARTUP_DELAY_INFO delay = {0, 6};
    const std::string text = "{ \"Delay\" : 6, \"Enable\" : false }\n";
    EXPECT_EQ(PackBytes("AutoStartupDelay", &delay, sizeof delay, text.size()), text);
    EXPECT_EQ(PackBytes("AutoStartupDelay", &delay, sizeof delay, text.size() - 1), kFailed);
}

TEST(ECKConfig, GoesRoundWhole) {
    const auto eck = Read<CFG_ECK_INFO>("ECKConfig", R"({"WorkMode":"one","StrobeMode":"two","ForceOffline":true,
        "LoopSense":true,"LED":{"Speed":"fast","CustomData":"hello"}})");
    EXPECT_STREQ(eck.szWorkMode, "one");
    EXPECT_STREQ(eck.szStrobeMode, "two");
    EXPECT_EQ(eck.bForceOffline, 1);
    EXPECT_EQ(eck.bLoopSense, 1);
    EXPECT_STREQ(eck.stuLed.szSpeed, "fast");
    EXPECT_STREQ(eck.stuLed.szCustomData, "hello");
    const std::string text = R"({ "ForceOffline" : true, "LED" : { "CustomData" : "hello", "Speed" : "fast" }, )"
                             R"("LoopSense" : true, "StrobeMode" : "two", "WorkMode" : "one" })";
    EXPECT_EQ(Pack("ECKConfig", eck), text);
    // At exactly its size the newline gives way to the terminator.
    EXPECT_EQ(PackBytes("ECKConfig", &eck, sizeof eck, text.size() + 1), text);
    EXPECT_EQ(PackBytes("ECKConfig", &eck, sizeof eck, text.size()), kFailed);

    const auto offline = Read<CFG_ECK_INFO>("ECKConfig", R"({"ForceOffline":true})");
    EXPECT_EQ(offline.bForceOffline, 1);
    EXPECT_EQ(offline.bLoopSense, 0);
    EXPECT_EQ(Pack("ECKConfig", offline),
              R"({ "ForceOffline" : true, "LED" : { "CustomData" : "", "Speed" : "" }, "LoopSense" : false, )"
              R"("StrobeMode" : "", "WorkMode" : "" })");

    const auto none = Read<CFG_ECK_INFO>("ECKConfig", R"({"ForceOffline":1,"LoopSense":"true","LED":7})");
    EXPECT_EQ(none.bForceOffline, 0);
    EXPECT_EQ(none.bLoopSense, 0);
    EXPECT_STREQ(none.stuLed.szSpeed, "");
    const auto cut =
        Read<CFG_ECK_INFO>("ECKConfig", R"({"WorkMode":")" + std::string(40, 'w') + R"(","StrobeMode":")"
                                            + std::string(40, 'm') + R"(","LED":{"Speed":")" + std::string(40, 's')
                                            + R"(","CustomData":")" + std::string(600, 'd') + "\"}}");
    EXPECT_EQ(std::string(cut.szWorkMode), std::string(31, 'w'));
    EXPECT_EQ(std::string(cut.szStrobeMode), std::string(31, 'm'));
    EXPECT_EQ(std::string(cut.stuLed.szSpeed), std::string(31, 's'));
    EXPECT_EQ(std::string(cut.stuLed.szCustomData), std::string(511, 'd'));
    TakesAnyType<CFG_ECK_INFO>("ECKConfig");
}

TEST(GuideScreen, GoesRoundWhole) {
    const auto screen = Read<CFG_GUIDE_SCREEN_INFO>("GuideScreen", R"({"Arrow":[
        {"Text":"exit","Direction":"RIGHT","Position":"top","Roll":"enable"},
        {"Text":"in","Direction":"Up","Position":"end","Roll":"Sometimes"}]})");
    EXPECT_EQ(screen.nArrowCount, 2);
    EXPECT_STREQ(screen.stuArrows[0].szText, "exit");
    EXPECT_EQ(screen.stuArrows[0].emDirection, 1);
    EXPECT_STREQ(screen.stuArrows[0].szPosition, "top");
    EXPECT_EQ(screen.stuArrows[0].emRoll, 1);
    EXPECT_EQ(screen.stuArrows[1].emDirection, 0);
    EXPECT_EQ(screen.stuArrows[1].emRoll, 0);
    const std::string text = R"({ "Arrow" : [ { "Direction" : "Right", "Position" : "top", "Roll" : "Enable", )"
                             R"("Text" : "exit" }, { "Direction" : "Left", "Position" : "end", "Roll" : "Disable", )"
                             R"("Text" : "in" } ] })";
    EXPECT_EQ(Pack("GuideScreen", screen), text);
    EXPECT_EQ(PackBytes("GuideScreen", &screen, sizeof screen, text.size() + 1), text);
    EXPECT_EQ(PackBytes("GuideScreen", &screen, sizeof screen, text.size()), kFailed);
    const auto cut =
        Read<CFG_GUIDE_SCREEN_INFO>("GuideScreen", R"({"Arrow":[{"Text":")" + std::string(200, 't')
                                                       + R"(","Position":")" + std::string(40, 'p') + "\"}]}");
    EXPECT_EQ(std::string(cut.stuArrows[0].szText), std::string(127, 't'));
    EXPECT_EQ(std::string(cut.stuArrows[0].szPosition), std::string(31, 'p'));
    EXPECT_EQ(cut.stuArrows[0].emRoll, 0);

    CFG_GUIDE_SCREEN_INFO odd = {};
    EXPECT_EQ(Pack("GuideScreen", odd), "null");
    odd.nArrowCount = 1;
    odd.stuArrows[0].emDirection = 2;
    odd.stuArrows[0].emRoll = -1;
    EXPECT_EQ(Pack("GuideScreen", odd), R"({ "Arrow" : [ { "Position" : "", "Text" : "" } ] })");
    TakesAnyType<CFG_GUIDE_SCREEN_INFO>("GuideScreen");
}

TEST(GuideScreen, HoldsSixteenArrows) {
    for (const int arrows : {16, 17}) {
        std::string list;
        for (int i = 0; i < arrows; ++i)
            list += R"({"Position":"p"},)";
        list.pop_back();
        const auto screen = Read<CFG_GUIDE_SCREEN_INFO>("GuideScreen", R"({"Arrow":[)" + list + "]}");
        EXPECT_EQ(screen.nArrowCount, 16);
        EXPECT_STREQ(screen.stuArrows[15].szPosition, "p");
        CFG_GUIDE_SCREEN_INFO more = screen;
        more.nArrowCount = arrows;
        EXPECT_EQ(Occurrences(Pack("GuideScreen", more), "\"Position\" : \"p\""), 16);
    }
}

// ---- Through the generic frame -------------------------------------------------------------------------------------

template <class R>
R ReadAdding(const char* command, const std::string& table, std::uint32_t expected = sizeof(R)) {
    const Records<R> record(1, 0x11);
    const std::string text = R"({"result":true,"params":{"table":)" + table + "}}";
    std::uint32_t length = 3;
    EXPECT_EQ(CLIENT_ParseData(command, text.c_str(), record.data(), record.size(), &length), 1) << table;
    EXPECT_EQ(length, 3 + expected) << table;
    return record[0];
}

TEST(ParkingSpaceAccessFilter, WritesATypeThatItDoesNotRead) {
    auto filter = ReadAdding<CFG_PARKING_FILTER_INFO>("ParkingSpaceAccessFilter",
                                                      R"({"Enable":true,"TrustList":["A1",")" + std::string(100, 'b')
                                                          + R"("],"Type":5})");
    EXPECT_EQ(filter.bEnable, 1);
    EXPECT_EQ(filter.nTrustListCount, 2);
    EXPECT_STREQ(filter.szTrustList[0], "A1");
    EXPECT_EQ(std::string(filter.szTrustList[1]), std::string(95, 'b'));
    EXPECT_EQ(filter.nType, 0);
    filter.nType = 6;
    filter.szTrustList[1][1] = '\0';
    EXPECT_EQ(Pack("ParkingSpaceAccessFilter", filter),
              R"({ "Enable" : true, "TrustList" : [ "A1", "b" ], "Type" : 6 })");
    filter.nTrustListCount = 0;
    EXPECT_EQ(Pack("ParkingSpaceAccessFilter", filter), R"({ "Enable" : true, "Type" : 6 })");
    ReadAdding<CFG_PARKING_FILTER_INFO>("ParkingSpaceAccessFilter", "null", 0);
    for (const int plates : {1024, 1025}) {
        std::string list;
        for (int i = 0; i < plates; ++i)
            list += "\"p\",";
        list.pop_back();
        const auto full =
            ReadAdding<CFG_PARKING_FILTER_INFO>("ParkingSpaceAccessFilter", R"({"TrustList":[)" + list + "]}");
        EXPECT_EQ(full.nTrustListCount, 1024);
        EXPECT_STREQ(full.szTrustList[1023], "p");
        CFG_PARKING_FILTER_INFO more = full;
        more.nTrustListCount = plates;
        EXPECT_EQ(Occurrences(Pack("ParkingSpaceAccessFilter", more), "\"p\""), 1024);
    }
}

TEST(ParkingSpaceLightGroup, AnObjectOrAnArrayOfOne) {
    for (const char* table :
         {R"({"Enable":true,"AcceptNetCtrl":true,"Lanes":3})", R"([{"Enable":true,"AcceptNetCtrl":true,"Lanes":3}])"}) {
        const auto group = ReadAdding<CFG_PARKING_LIGHT_GROUP_INFO>("ParkingSpaceLightGroup", table);
        EXPECT_EQ(group.bEnable, 1) << table;
        EXPECT_EQ(group.bAcceptNetCtrl, 1) << table;
        EXPECT_EQ(group.nLanes, 3) << table;
        EXPECT_EQ(Pack("ParkingSpaceLightGroup", group), R"({ "AcceptNetCtrl" : true, "Enable" : true, "Lanes" : 3 })");
    }
    EXPECT_EQ(ReadAdding<CFG_PARKING_LIGHT_GROUP_INFO>("ParkingSpaceLightGroup", R"([[{"Lanes":3}]])").nLanes, 0);
    ReadAdding<CFG_PARKING_LIGHT_GROUP_INFO>("ParkingSpaceLightGroup", "null", 0);
    const auto fromAfar =
        ReadAdding<CFG_PARKING_LIGHT_GROUP_INFO>("ParkingSpaceLightGroup", R"({"AcceptNetCtrl":true})");
    EXPECT_EQ(fromAfar.bEnable, 0);
    EXPECT_EQ(fromAfar.bAcceptNetCtrl, 1);
    EXPECT_EQ(Pack("ParkingSpaceLightGroup", fromAfar), R"({ "AcceptNetCtrl" : true, "Enable" : false, "Lanes" : 0 })");
}

TEST(ParkingSpaces, RefusedRepliesFail) {
    for (const char* command : {"ParkingSpaceAccessFilter", "ParkingSpaceLightGroup", "ParkSpaceOutLight"}) {
        for (const char* document : {R"({"result":false,"params":{"table":{"Enable":true}}})",
                                     R"({"params":{"table":{"Enable":true}}})", R"({"result":true,)"}) {
            const Records<CFG_PARKING_FILTER_INFO> record(1, 0x11); // the largest of them
            EXPECT_EQ(ParseDocument(command, document, record), kRefused) << command << document;
            EXPECT_TRUE(record.isAll(0)) << command << document;
        }
    }
}

TEST(ParkSpaceOutLight, GoesRoundWhole) {
    const auto lights = ReadAdding<CFG_PARK_OUT_LIGHT_INFO>("ParkSpaceOutLight", R"({
        "NormalSpace":{"SpaceFree":{"Red":1,"Bule":2,"Green":3,"Blue":99},"SpaceFull":{"Red":4,"Bule":5,"Green":6},
                       "SpaceOrder":{"Red":7,"Bule":8,"Green":9}},
        "SpecialSpace":{"SpaceFree":{"Red":10,"Bule":11,"Green":12},"SpaceFull":{"Red":13,"Bule":14,"Green":15},
                        "SpaceOrder":{"Red":16,"Bule":17,"Green":18}}})");
    EXPECT_EQ(lights.stuNormalSpace.stuSpaceFree.nRed, 1);
    EXPECT_EQ(lights.stuNormalSpace.stuSpaceFree.nBlue, 2);
    EXPECT_EQ(lights.stuNormalSpace.stuSpaceFree.nGreen, 3);
    EXPECT_EQ(lights.stuNormalSpace.stuSpaceFull.nRed, 4);
    EXPECT_EQ(lights.stuNormalSpace.stuSpaceOrder.nGreen, 9);
    EXPECT_EQ(lights.stuSpecialSpace.stuSpaceFree.nBlue, 11);
    EXPECT_EQ(lights.stuSpecialSpace.stuSpaceFull.nGreen, 15);
    EXPECT_EQ(lights.stuSpecialSpace.stuSpaceOrder.nRed, 16);
    EXPECT_EQ(Pack("ParkSpaceOutLight", lights),
              R"({ "NormalSpace" : { "SpaceFree" : { "Bule" : 2, "Green" : 3, "Red" : 1 }, )"
              R"("SpaceFull" : { "Bule" : 5, "Green" : 6, "Red" : 4 }, )"
              R"("SpaceOrder" : { "Bule" : 8, "Green" : 9, "Red" : 7 } }, )"
              R"("SpecialSpace" : { "SpaceFree" : { "Bule" : 11, "Green" : 12, "Red" : 10 }, )"
              R"("SpaceFull" : { "Bule" : 14, "Green" : 15, "Red" : 13 }, )"
              R"("SpaceOrder" : { "Bule" : 17, "Green" : 18, "Red" : 16 } } })");
}

} // namespace
} // namespace orrery::test
