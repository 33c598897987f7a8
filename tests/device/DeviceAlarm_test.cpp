#include "device/DeviceAlarm.h"

#include "device/ListText.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// ---- RemoteEvent ----

// What stands in front of and behind the linkage in the text of a record, keys in order.
std::string WithoutLinkage(const std::string& text) {
    const std::string key = R"("EventHandler" : )";
    const std::size_t from = text.find(key);
    const std::size_t behind = text.find(R"(, "Index")");
    if (from == std::string::npos || behind == std::string::npos) return text;
    return text.substr(0, from) + text.substr(behind + 2);
}

TEST(RemoteEvent, ThereAndBack) {
    const auto parsed = Parse<CFG_REMOTE_EVENT_INFO>("RemoteEvent", R"({ "Enable" : 1, "Device" : "dev1",
        "Code" : "AlarmLocal", "Index" : 5, "SensorType" : "NC",
        "EventHandler" : { "BeepEnable" : true, "Delay" : 7, "RecordChannels" : [ 0, 1023 ] } })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_REMOTE_EVENT_INFO));
    EXPECT_EQ(parsed->nEnable, 1);
    EXPECT_STREQ(parsed->szDevice, "dev1");
    EXPECT_STREQ(parsed->szCode, "AlarmLocal");
    EXPECT_EQ(parsed->nIndex, 5);
    EXPECT_EQ(parsed->emSensorType, CFG_REMOTE_SENSOR_NORMALLY_CLOSED);
    EXPECT_EQ(parsed->stuEventHandler.dwSize, sizeof(CFG_EVENT_HANDLER_V2_INFO));
    EXPECT_EQ(parsed->stuEventHandler.bBeepEnable, 1);
    EXPECT_EQ(parsed->stuEventHandler.abDelay, 1);
    EXPECT_EQ(parsed->stuEventHandler.nDelay, 7);
    EXPECT_EQ(parsed->stuEventHandler.nRecordChannels[1023], 1);
    EXPECT_EQ(parsed->stuEventHandler.stuTimeSection[6][5].dwSize, 32u);
    const std::string text = Pack("RemoteEvent", *parsed);
    EXPECT_EQ(WithoutLinkage(text),
              R"({ "Code" : "AlarmLocal", "Device" : "dev1", "Enable" : 1, "Index" : 5, "SensorType" : "NC" })");
    for (const char* part : {R"("BeepEnable" : true)", R"("Delay" : 7)", R"("RecordChannels" : [ 0, 1023 ])"})
        EXPECT_NE(text.find(part), std::string::npos) << part;
}

TEST(RemoteEvent, SizeWordsAreSetWithoutALinkageToo) {
    const auto parsed = Parse<CFG_REMOTE_EVENT_INFO>("RemoteEvent", "{ }");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->stuEventHandler.dwSize, sizeof(CFG_EVENT_HANDLER_V2_INFO));
    EXPECT_EQ(parsed->stuEventHandler.stuTour[127].dwSize, 4112u);
    EXPECT_EQ(parsed->nEnable, 0);
    EXPECT_EQ(parsed->emSensorType, 0);
}

TEST(RemoteEvent, TheSwitchIsANumber) {
    auto parsed = Parse<CFG_REMOTE_EVENT_INFO>("RemoteEvent", R"({ "Enable" : true })");
    EXPECT_EQ(parsed->nEnable, 1);
    parsed.record->nEnable = -3;
    EXPECT_NE(Pack("RemoteEvent", *parsed).find(R"("Enable" : -3, )"), std::string::npos);
    EXPECT_EQ((Parse<CFG_REMOTE_EVENT_INFO>("RemoteEvent", R"({ "Enable" : "yes" })")->nEnable), 0);
}

TEST(RemoteEvent, AnOpenContactIsWrittenWithADigit) {
    const auto typeOf = [](const std::string& text) {
        return Parse<CFG_REMOTE_EVENT_INFO>("RemoteEvent", R"({ "SensorType" : )" + Quoted(text) + " }")->emSensorType;
    };
    EXPECT_EQ(typeOf("NO"), CFG_REMOTE_SENSOR_NORMALLY_OPEN);
    EXPECT_EQ(typeOf("no"), CFG_REMOTE_SENSOR_NORMALLY_OPEN);
    EXPECT_EQ(typeOf("NC"), CFG_REMOTE_SENSOR_NORMALLY_CLOSED);
    EXPECT_EQ(typeOf("nc"), CFG_REMOTE_SENSOR_NORMALLY_CLOSED);
    EXPECT_EQ(typeOf("N0"), 0); // unknown here, so at least not closed
    EXPECT_EQ(typeOf("closed"), 0);

    const auto record = Cleared<CFG_REMOTE_EVENT_INFO>();
    const auto written = [&](std::int32_t type) {
        record->emSensorType = type;
        return WithoutLinkage(Pack("RemoteEvent", *record));
    };
    const std::string rest = R"({ "Code" : "", "Device" : "", "Enable" : 0, "Index" : 0)";
    EXPECT_EQ(written(0), rest + R"(, "SensorType" : "N0" })");
    EXPECT_EQ(written(1), rest + R"(, "SensorType" : "NC" })");
    EXPECT_EQ(written(2), rest + " }");
    EXPECT_EQ(written(-1), rest + " }");

    // What is written comes back as not closed.
    record->emSensorType = CFG_REMOTE_SENSOR_NORMALLY_OPEN;
    const auto again = Parse<CFG_REMOTE_EVENT_INFO>("RemoteEvent", Pack("RemoteEvent", *record));
    ASSERT_TRUE(again);
    EXPECT_NE(again->emSensorType, CFG_REMOTE_SENSOR_NORMALLY_CLOSED);
}

TEST(RemoteEvent, TextsAreCutAtTheirCapacity) {
    const std::string x(100, 'x');
    const auto parsed =
        Parse<CFG_REMOTE_EVENT_INFO>("RemoteEvent", R"({ "Device" : ")" + x + R"(", "Code" : ")" + x + R"(" })");
    EXPECT_EQ(std::string(parsed->szDevice), x.substr(0, 63));
    EXPECT_EQ(std::string(parsed->szCode), x.substr(0, 63));
    EXPECT_EQ(parsed->nIndex, 0);
}

TEST(RemoteEvent, RefusedRepliesAndMissingTablesFail) {
    EXPECT_FALSE((Parse<CFG_REMOTE_EVENT_INFO>("RemoteEvent", "null")));
    EXPECT_FALSE((ParseDocument<CFG_REMOTE_EVENT_INFO>("RemoteEvent", R"({ "params" : { "table" : { } } })")));
}

// ---- AlarmBell ----

TEST(AlarmBell, ThereAndBack) {
    const auto parsed = Parse<CFG_ALARM_BELL_INFO>("AlarmBell", R"({ "Delay" : 30 })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_ALARM_BELL_INFO));
    EXPECT_EQ(parsed->nDelay, 30);
    EXPECT_EQ(Pack("AlarmBell", *parsed), R"({ "Delay" : 30 })"); // one record stands bare
}

TEST(AlarmBell, ListsFillRecords) {
    const Records<CFG_ALARM_BELL_INFO> records(3, 2, 0x5A);
    EXPECT_EQ(ParseTable("AlarmBell", R"([ { "Delay" : 1 }, null, { "Delay" : 3 }, { "Delay" : 4 } ])", records),
              (Answer{1, 12})); // as many as fit; elements keep their places
    EXPECT_EQ(records[0].nDelay, 1);
    EXPECT_EQ(records[1].nDelay, 0);
    EXPECT_EQ(records[2].nDelay, 3);
    EXPECT_EQ(PackAll("AlarmBell", records), R"([ { "Delay" : 1 }, { "Delay" : 0 }, { "Delay" : 3 } ])");
    for (const char* table : {"[ ]", "5", "\"x\"", "null"})
        EXPECT_EQ(ParseTable("AlarmBell", table, records), kRefused) << table;
    const CFG_ALARM_BELL_INFO one{1};
    EXPECT_EQ(PackBytes("AlarmBell", &one, 3, 100), kNotBegun);
    EXPECT_EQ(PackBytes("AlarmBell", &one, 4, 16), kFailed); // fifteen characters and a newline
    EXPECT_EQ(PackBytes("AlarmBell", &one, 4, 17), "{ \"Delay\" : 1 }\n");
}

// ---- AlarmSlotBond ----

TEST(AlarmSlotBond, ThereAndBack) {
    const std::string text = R"({ "Channel" : 3, "Type" : "RS485" })";
    const auto parsed = Parse<CFG_ALARM_SLOT_BOND_INFO>("AlarmSlotBond", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_ALARM_SLOT_BOND_INFO));
    EXPECT_STREQ(parsed->szType, "RS485");
    EXPECT_EQ(parsed->nChannel, 3);
    EXPECT_EQ(Pack("AlarmSlotBond", *parsed), text);
    // A text of exactly the buffer's size loses its newline.
    EXPECT_EQ(PackBytes("AlarmSlotBond", parsed.record.get(), sizeof *parsed.record, text.size() + 1), text);
    EXPECT_EQ(PackBytes("AlarmSlotBond", parsed.record.get(), sizeof *parsed.record, text.size()), kFailed);
    EXPECT_EQ((std::string(
                  Parse<CFG_ALARM_SLOT_BOND_INFO>("AlarmSlotBond", R"({ "Type" : ")" + std::string(80, 't') + R"(" })")
                      ->szType)),
              std::string(63, 't'));
}

TEST(AlarmSlotBond, ListsFillRecords) {
    const std::string text = R"([ { "Channel" : 1, "Type" : "a" }, { "Channel" : 2, "Type" : "b" } ])";
    const Records<CFG_ALARM_SLOT_BOND_INFO> records(2);
    EXPECT_EQ(ParseTable("AlarmSlotBond", text, records), (Answer{1, 2 * sizeof(CFG_ALARM_SLOT_BOND_INFO)}));
    EXPECT_STREQ(records[1].szType, "b");
    EXPECT_EQ(PackAll("AlarmSlotBond", records), text);
    EXPECT_EQ(ParseTable("AlarmSlotBond", "[ ]", records), kRefused);
    EXPECT_EQ(ParseTable("AlarmSlotBond", "true", records), kRefused);
}

// ---- AudioDetect ----

TEST(AudioDetect, ThereAndBack) {
    const auto parsed = Parse<CFG_AUDIO_DETECT_INFO>("AudioDetect", R"({ "Enable" : true, "MinVolume" : 10,
        "MaxVolume" : 90, "AnomalyDetect" : true, "AnomalySensitive" : 50, "MutationDetect" : true,
        "MutationThreold" : 60, "EventHandler" : { "MailEnable" : true } })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_AUDIO_DETECT_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_EQ(parsed->nMinVolume, 10);
    EXPECT_EQ(parsed->nMaxVolume, 90);
    EXPECT_EQ(parsed->bAnomalyDetect, 1);
    EXPECT_EQ(parsed->nAnomalySensitive, 50);
    EXPECT_EQ(parsed->bMutationDetect, 1);
    EXPECT_EQ(parsed->nMutationThreold, 60);
    EXPECT_EQ(parsed->stuEventHandler.abMailEnable, 1);
    EXPECT_EQ(parsed->stuEventHandler.bMailEnable, 1);
    const std::string text = Pack("AudioDetect", *parsed);
    EXPECT_TRUE(text.starts_with(R"({ "AnomalyDetect" : true, "AnomalySensitive" : 50, "Enable" : true, )"
                                 R"("EventHandler" : { "AlarmOutEnable" : false, "MailEnable" : true, )"
                                 R"("RecordEnable" : false, "TimeSection" : [ [ "0 00:00:00-00:00:00", )"))
        << text;
    EXPECT_TRUE(text.ends_with(R"( ] ] }, "MaxVolume" : 90, "MinVolume" : 10, "MutationDetect" : true, )"
                               R"("MutationThreold" : 60 })"))
        << text;
}

TEST(AudioDetect, ListsFillRecords) {
    const Records<CFG_AUDIO_DETECT_INFO> records(2, 0x5A);
    EXPECT_EQ(ParseTable("AudioDetect", R"([ { "MinVolume" : 1 }, { "MinVolume" : 2 } ])", records),
              (Answer{1, 2 * sizeof(CFG_AUDIO_DETECT_INFO)}));
    const auto second = std::make_unique<CFG_AUDIO_DETECT_INFO>(records[1]);
    EXPECT_EQ(second->nMinVolume, 2);
    EXPECT_EQ(second->stuEventHandler.abRecordEnable, 1); // a linkage that is not there says that nothing is recorded
    const std::string text = PackAll("AudioDetect", records);
    EXPECT_TRUE(text.starts_with("[ { ")) << text;
    EXPECT_EQ(ParseTable("AudioDetect", "[ ]", records), kRefused);
    EXPECT_EQ(ParseTable("AudioDetect", "7", records), kRefused);
}

// ---- IOT_... ----

TEST(IotInfraredDetect, ThereAndBack) {
    const std::string text = R"([ { "DetectRadius" : 5, "Enable" : [ true, false, true ] }, { "DetectRadius" : 6 } ])";
    const auto parsed = Parse<CFG_IOT_INFRARED_DETECT_INFO>("IOT_InfraredDetect", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_IOT_INFRARED_DETECT_INFO));
    ASSERT_EQ(parsed->nCount, 2);
    ASSERT_EQ(parsed->stuItems[0].nEnableNum, 3);
    EXPECT_EQ(parsed->stuItems[0].bEnable[0], 1);
    EXPECT_EQ(parsed->stuItems[0].bEnable[1], 0);
    EXPECT_EQ(parsed->stuItems[0].bEnable[2], 1);
    EXPECT_EQ(parsed->stuItems[0].nDetectRadius, 5);
    EXPECT_EQ(parsed->stuItems[1].nEnableNum, 0);
    EXPECT_EQ(parsed->stuItems[1].nDetectRadius, 6);
    EXPECT_EQ(Pack("IOT_InfraredDetect", *parsed), text);
}

TEST(IotInfraredDetect, KeepsEightOfEach) {
    const auto list = [](int items, int switches) {
        return ListText(items, [&](int i) {
            return R"({ "DetectRadius" : )" + std::to_string(i) + R"(, "Enable" : )"
                   + ListText(switches, [](int k) { return k == 7 ? "true" : "false"; }) + " }";
        });
    };
    auto parsed = Parse<CFG_IOT_INFRARED_DETECT_INFO>("IOT_InfraredDetect", list(9, 9));
    EXPECT_EQ(parsed->nCount, 8);
    EXPECT_EQ(parsed->stuItems[7].nDetectRadius, 7);
    EXPECT_EQ(parsed->stuItems[7].nEnableNum, 8);
    EXPECT_EQ(parsed->stuItems[7].bEnable[7], 1);
    parsed.record->nCount = 9;
    for (CFG_IOT_INFRARED_DETECTOR& item : parsed.record->stuItems)
        item.nEnableNum = 9;
    EXPECT_EQ(Pack("IOT_InfraredDetect", *parsed), list(8, 8));
    parsed.record->nCount = 0;
    EXPECT_EQ(Pack("IOT_InfraredDetect", *parsed), "null");
}

TEST(IotHandles, ThereAndBack) {
    const auto record =
        Parse<CFG_IOT_RECORD_HANDLE_INFO>("IOT_RecordHandle", R"({ "Enable" : true, "RecordTime" : 20 })");
    ASSERT_TRUE(record);
    EXPECT_EQ(record.length, sizeof(CFG_IOT_RECORD_HANDLE_INFO));
    EXPECT_EQ(record->bEnable, 1);
    EXPECT_EQ(record->nRecordTime, 20);
    EXPECT_EQ(Pack("IOT_RecordHandle", *record), R"({ "Enable" : true, "RecordTime" : 20 })");

    const auto snap = Parse<CFG_IOT_SNAP_HANDLE_INFO>("IOT_SnapHandle", R"({ "Enable" : true, "SnapNum" : 3 })");
    ASSERT_TRUE(snap);
    EXPECT_EQ(snap.length, sizeof(CFG_IOT_SNAP_HANDLE_INFO));
    EXPECT_EQ(snap->bEnable, 1);
    EXPECT_EQ(snap->nSnapNum, 3);
    EXPECT_EQ(Pack("IOT_SnapHandle", *snap), R"({ "Enable" : true, "SnapNum" : 3 })");
}

// ---- What the lists inside one record have in common ----

TEST(DeviceLists, AnEmptyListIsNoneAndOtherTypesFail) {
    for (const char* command : {"CommSubscribe", "AirCondition", "AudioOutEqualizer", "AudioOutSuppression",
                                "AudioInControl", "IOT_InfraredDetect"}) {
        std::vector<char> buffer(64 << 10, 'x');
        std::uint32_t length = kNoLength;
        const auto parse = [&](const std::string& table) {
            const std::string document = R"({ "result" : true, "params" : { "table" : )" + table + " } }";
            return CLIENT_ParseData(command, document.c_str(), buffer.data(), static_cast<std::uint32_t>(buffer.size()),
                                    &length);
        };
        for (const char* table : {"{ }", R"({ "0" : { } })", "5", "\"x\"", "null"})
            EXPECT_EQ(parse(table), 0) << command << table;
        EXPECT_EQ(length, kNoLength) << command;
        EXPECT_EQ(parse("[ ]"), 1) << command;
        EXPECT_NE(length, kNoLength) << command;
        EXPECT_EQ(buffer, std::vector<char>(buffer.size())) << command;
        EXPECT_EQ(parse("[ null, { } ]"), 1) << command; // a null keeps its place and counts
        std::int32_t count = 0;
        std::memcpy(&count, buffer.data(), sizeof count);
        EXPECT_EQ(count, 2) << command;
        EXPECT_EQ(PackBytes(command, buffer.data(), length - 1, 100), kNotBegun) << command;
        const std::string refused = R"({ "result" : false, "params" : { "table" : [ { } ] } })";
        EXPECT_EQ(CLIENT_ParseData(command, refused.c_str(), buffer.data(), static_cast<std::uint32_t>(buffer.size()),
                                   nullptr),
                  0);
    }
}

} // namespace
} // namespace orrery::test
