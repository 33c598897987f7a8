#include "display/MonitorWall.h"

#include "display/OneOrMany.h"

#include <vector>

namespace orrery::test {
namespace {

// `make(i)` for each, in a list.
template <class Make>
std::string ListOf(int count, Make make) {
    std::string list = "[ ";
    for (int i = 0; i < count; ++i)
        list += (i > 0 ? ", " : "") + make(i);
    return list + " ]";
}

std::string Rect(int first) {
    return ListOf(4, [&](int i) { return std::to_string(first + i); });
}
void ExpectRect(const CFG_RECT& rect, int first) {
    EXPECT_EQ(rect.nLeft, first);
    EXPECT_EQ(rect.nTop, first + 1);
    EXPECT_EQ(rect.nRight, first + 2);
    EXPECT_EQ(rect.nBottom, first + 3);
}

// ---- "MonitorWall" ----

// A flat list of 42 sections with these in front.
std::string Power(const std::vector<std::string>& sections) {
    return ListOf(42, [&](int i) {
        const auto at = static_cast<std::size_t>(i);
        return '"' + (at < sections.size() ? sections[at] : "0 00:00:00-00:00:00") + '"';
    });
}

const std::string kWall =
    R"({ "Blocks" : [ { "Column" : 11, "CompositeID" : "c12", "Line" : 13, "Rect" : )" + Rect(14)
    + R"(, "VideoOutputs" : [ { "Channel" : 18, "Device" : "d19" }, { "Channel" : 20, "Device" : "d21" } ] }, )"
      R"({ "Column" : 22, "CompositeID" : "c23", "Line" : 24, "Rect" : )"
    + Rect(25) + R"( } ], "Desc" : "wall of hall", "Enable" : true, "GridColumn" : 31, "GridLine" : 32, )"
    + R"("Name" : "w33", "PowerSchedule" : )" + Power({"1 08:00:00-12:00:01", "1 13:00:00-17:00:02"}) + " }";

void ExpectWall(const CFG_MONITOR_WALL_INFO& wall) {
    EXPECT_EQ(wall.dwSize, sizeof wall);
    ASSERT_EQ(wall.nBlockCount, 2);
    EXPECT_EQ(wall.stuBlocks[0].nColumn, 11);
    EXPECT_STREQ(wall.stuBlocks[0].szCompositeID, "c12");
    EXPECT_EQ(wall.stuBlocks[0].nLine, 13);
    ExpectRect(wall.stuBlocks[0].stuRect, 14);
    ASSERT_EQ(wall.stuBlocks[0].nVideoOutputCount, 2);
    EXPECT_EQ(wall.stuBlocks[0].stuVideoOutputs[0].nChannel, 18);
    EXPECT_STREQ(wall.stuBlocks[0].stuVideoOutputs[0].szDevice, "d19");
    EXPECT_EQ(wall.stuBlocks[0].stuVideoOutputs[1].nChannel, 20);
    EXPECT_STREQ(wall.stuBlocks[0].stuVideoOutputs[1].szDevice, "d21");
    EXPECT_EQ(wall.stuBlocks[1].nColumn, 22);
    EXPECT_STREQ(wall.stuBlocks[1].szCompositeID, "c23");
    EXPECT_EQ(wall.stuBlocks[1].nLine, 24);
    ExpectRect(wall.stuBlocks[1].stuRect, 25);
    EXPECT_EQ(wall.stuBlocks[1].nVideoOutputCount, 0);
    EXPECT_STREQ(wall.szDesc, "wall of hall");
    EXPECT_EQ(wall.bEnable, 1);
    EXPECT_EQ(wall.nGridColumn, 31);
    EXPECT_EQ(wall.nGridLine, 32);
    EXPECT_STREQ(wall.szName, "w33");
    EXPECT_EQ(wall.stuPowerSchedule[0].nEndSec, 1);
    EXPECT_EQ(wall.stuPowerSchedule[1].nEndSec, 2);
    EXPECT_EQ(wall.stuPowerSchedule[2].dwMask, 0);
}

TEST(MonitorWall, ThereAndBack) {
    const auto parsed = ParseSized<CFG_MONITOR_WALL_INFO>("MonitorWall", kWall);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_MONITOR_WALL_INFO));
    ExpectWall(*parsed);
    EXPECT_EQ(Pack("MonitorWall", *parsed), kWall);
}

TEST(MonitorWall, WritesAllOfAnEmptyRecordButItsLists) {
    const auto parsed = ParseSized<CFG_MONITOR_WALL_INFO>("MonitorWall", "{ }");
    EXPECT_EQ(Pack("MonitorWall", *parsed), R"({ "Desc" : "", "Enable" : false, "GridColumn" : 0, "GridLine" : 0, )"
                                            R"("Name" : "", "PowerSchedule" : )"
                                                + Power({}) + " }");
}

TEST(MonitorWall, BlocksAndOutputsEndAtTheirRoom) {
    const auto block = [](int i) { return R"({ "Line" : )" + std::to_string(i + 1) + " }"; };
    const auto output = [](int i) { return R"({ "Channel" : )" + std::to_string(i + 1) + " }"; };
    for (const int count : {127, 128, 129}) {
        const auto blocks =
            ParseSized<CFG_MONITOR_WALL_INFO>("MonitorWall", R"({ "Blocks" : )" + ListOf(count, block) + " }");
        const int used = std::min(count, 128);
        EXPECT_EQ(blocks->nBlockCount, used);
        EXPECT_EQ(blocks->stuBlocks[used - 1].nLine, used);
        EXPECT_EQ(blocks->stuPowerSchedule[0].dwMask, 0);
        const auto outputs = ParseSized<CFG_MONITOR_WALL_INFO>("MonitorWall", R"({ "Blocks" : [ { "VideoOutputs" : )"
                                                                                  + ListOf(count, output) + " } ] }");
        EXPECT_EQ(outputs->stuBlocks[0].nVideoOutputCount, used);
        EXPECT_EQ(outputs->stuBlocks[0].stuVideoOutputs[used - 1].nChannel, used);
        EXPECT_EQ(outputs->stuBlocks[1].nLine, 0);
    }
    auto record = Cleared<CFG_MONITOR_WALL_INFO>();
    record->dwSize = sizeof(CFG_MONITOR_WALL_INFO);
    record->nBlockCount = 1000;
    record->stuBlocks[127].nVideoOutputCount = 129;
    const std::string text = Pack("MonitorWall", *record);
    const auto count = [&](const std::string& part) {
        std::size_t found = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
            ++found;
        return found;
    };
    EXPECT_EQ(count("CompositeID"), 128u);
    EXPECT_EQ(count("\"Channel\""), 128u);
}

TEST(MonitorWall, SectionsThatDoNotReadArePassedOver) {
    const auto parsed = ParseSized<CFG_MONITOR_WALL_INFO>(
        "MonitorWall", R"({ "PowerSchedule" : [ "bad", "1 1:2:3-4:5:6", 7, "2 1:2:3-4:5:7" ] })");
    EXPECT_EQ(parsed->stuPowerSchedule[0].dwMask, 0);
    EXPECT_EQ(parsed->stuPowerSchedule[1].nEndSec, 6);
    EXPECT_EQ(parsed->stuPowerSchedule[2].dwMask, 0);
    EXPECT_EQ(parsed->stuPowerSchedule[3].nEndSec, 7);
    const auto part = ParseSized<CFG_MONITOR_WALL_INFO>(
        "MonitorWall", R"({ "PowerSchedule" : [ "4 5:06", "5 007:08:09-10:11:12" ] })");
    EXPECT_EQ(part->stuPowerSchedule[0].dwMask, 4); // as far as it goes
    EXPECT_EQ(part->stuPowerSchedule[0].nBeginMin, 6);
    EXPECT_EQ(part->stuPowerSchedule[0].nEndHour, 0);
    EXPECT_EQ(part->stuPowerSchedule[1].nBeginHour, 7); // numbers of any width
    EXPECT_EQ(part->stuPowerSchedule[1].nEndSec, 12);
    const auto many =
        ParseSized<CFG_MONITOR_WALL_INFO>("MonitorWall", R"({ "PowerSchedule" : )" + ListOf(43, [](int i) {
                                                             return '"' + std::to_string(i + 1) + R"( 1:2:3-4:5:6")";
                                                         }) + " }");
    EXPECT_EQ(many->stuPowerSchedule[41].dwMask, 42);
}

TEST(MonitorWall, TheRoomOfTexts) {
    std::string texts = LongTexts({"Name", "Desc"});
    std::string block = LongTexts({"CompositeID"});
    block.insert(block.size() - 1, R"(, "VideoOutputs" : [ )" + LongTexts({"Device"}) + " ]");
    texts.insert(texts.size() - 1, R"(, "Blocks" : [ )" + block + " ]");
    const auto parsed = ParseSized<CFG_MONITOR_WALL_INFO>("MonitorWall", texts);
    EXPECT_ROOM(parsed, szName, 64);
    EXPECT_ROOM(parsed, szDesc, 256);
    EXPECT_ROOM(parsed, stuBlocks[0].szCompositeID, 64);
    EXPECT_ROOM(parsed, stuBlocks[0].stuVideoOutputs[0].szDevice, 64);
}

// ---- "VideoOutputComposite" ----

TEST(VideoOutputComposite, ThereAndBack) {
    const std::string text =
        R"({ "BlockIndex" : 1, "MonitorWallName" : "w3", "Name" : "n2", "Rect" : [ 4, 5, 6, 7 ] })";
    const auto parsed = ParseSized<CFG_VIDEO_OUTPUT_COMPOSITE_INFO>("VideoOutputComposite", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->nBlockIndex, 1);
    EXPECT_STREQ(parsed->szName, "n2");
    EXPECT_STREQ(parsed->szMonitorWallName, "w3");
    ExpectRect(parsed->stuRect, 4);
    EXPECT_EQ(Pack("VideoOutputComposite", *parsed), text);
    const auto cut =
        ParseSized<CFG_VIDEO_OUTPUT_COMPOSITE_INFO>("VideoOutputComposite", LongTexts({"Name", "MonitorWallName"}));
    EXPECT_ROOM(cut, szName, 64);
    EXPECT_ROOM(cut, szMonitorWallName, 64);
}

// ---- "DisplaySource", "RecordSource", "MonitorCollection" ----

const std::string kDeviceInfo =
    R"({ "Address" : "10.0.0.9", "Definition" : "High", "DeviceClass" : "NVR", "DeviceType" : "dt", "Enable" : true, )"
    R"("GB28181" : { "DeviceNo" : "gb", "Port" : 24 }, "HttpPort" : 25, "MachineAddress" : "ma", )"
    R"("MachineGroup" : "mg", "Name" : "nm", "Password" : "pw", "Port" : 26, "ProtocolType" : "pt", )"
    R"("RtspPort" : 27, "SerialNo" : "sn", "UserName" : "un", "Vendor" : "vd", "VideoInputChannels" : 28, )"
    R"("VideoInputs" : [ { "ControlID" : "ci", "Enable" : true, "ExtraStreamUrl" : "eu", "MainStreamUrl" : "mu", )"
    R"("Name" : "vn", "ServiceType" : "UDP" } ] })";
const std::string kSource = R"({ "AudioChannel" : 1, "AudioStream" : "Extra2", "ControlID" : "ctl", "Device" : "dev", )"
                            R"("DeviceInfo" : )"
                            +
                            [] {
                                std::string device = kDeviceInfo;
                                device.insert(device.find(R"("Definition")"), R"("AudioInputChannels" : 23, )");
                                return device;
                            }()
                            + R"(, "Enable" : true, "VideoChannel" : 2, "VideoStream" : "Extra3" })";

TEST(SplitSource, ThereAndBack) {
    for (const char* const command : {"DisplaySource", "RecordSource", "MonitorCollection"}) {
        SCOPED_TRACE(command);
        CFG_REMOTE_VIDEO_INPUT inputs[2] = {};
        Records<CFG_SPLIT_SOURCE> records(1);
        CFG_SPLIT_SOURCE empty{};
        empty.dwSize = sizeof empty;
        empty.stuDeviceInfo.pVideoInputs = inputs;
        empty.stuDeviceInfo.nMaxVideoInputs = 2;
        records.Set(0, empty);
        ASSERT_EQ(ParseTable(command, kSource, records), (Answer{1, sizeof(CFG_SPLIT_SOURCE)}));
        const CFG_SPLIT_SOURCE source = records[0];
        EXPECT_EQ(source.bEnable, 1);
        EXPECT_STREQ(source.szDevice, "dev");
        EXPECT_EQ(source.nVideoChannel, 2);
        EXPECT_EQ(source.emVideoStream, 3);
        EXPECT_EQ(source.nAudioChannel, 1);
        EXPECT_EQ(source.emAudioStream, 2);
        EXPECT_STREQ(source.szControlID, "ctl");
        const CFG_REMOTE_DEVICE_INFO& device = source.stuDeviceInfo;
        EXPECT_EQ(device.dwSize, sizeof device);
        EXPECT_EQ(device.bEnable, 1);
        EXPECT_STREQ(device.szID, "");
        EXPECT_STREQ(device.szIP, "10.0.0.9");
        EXPECT_EQ(device.nPort, 26);
        EXPECT_EQ(device.nDefinition, 1);
        EXPECT_EQ(device.nVideoChannels, 28);
        EXPECT_EQ(device.nAudioInputChannels, 23);
        EXPECT_EQ(device.nRtspPort, 27);
        EXPECT_STREQ(device.szVendor, "vd");
        EXPECT_EQ(device.pVideoInputs, inputs);
        EXPECT_EQ(device.nMaxVideoInputs, 2);
        EXPECT_EQ(device.nRetVideoInputs, 1);
        EXPECT_STREQ(inputs[0].szMainStreamUrl, "mu");
        EXPECT_EQ(inputs[0].emServiceType, CFG_REMOTE_SERVICE_UDP);
        EXPECT_EQ(device.nHttpPort, 25);
        EXPECT_EQ(device.bGB28181, 1);
        EXPECT_EQ(device.nGB28181Port, 24);
        EXPECT_EQ(PackAll(command, records), kSource);
    }
}

// Each record of a list has an array of its own behind its pointer, and a null element's stays as it was.
TEST(SplitSource, EachOfAListHasItsOwnArray) {
    CFG_REMOTE_VIDEO_INPUT inputs[3][2] = {};
    Records<CFG_SPLIT_SOURCE> records(3);
    for (std::size_t i = 0; i < 3; ++i) {
        CFG_SPLIT_SOURCE record{};
        record.dwSize = sizeof record;
        record.stuDeviceInfo.pVideoInputs = inputs[i];
        record.stuDeviceInfo.nMaxVideoInputs = 2;
        records.Set(i, record);
    }
    const auto source = [](int number) {
        const std::string n = std::to_string(number);
        return R"({ "ControlID" : "c)" + n + R"(", "DeviceInfo" : { "VideoInputs" : [ { "Name" : "a)" + n
               + R"(" }, { "Name" : "b)" + n + R"(" }, { "Name" : "d" } ] } })";
    };
    EXPECT_EQ(ParseTable("MonitorCollection", "[ " + source(0) + ", null, " + source(2) + " ]", records),
              (Answer{1, 3 * sizeof(CFG_SPLIT_SOURCE)}));
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(records[i].stuDeviceInfo.pVideoInputs, inputs[i]);
    EXPECT_STREQ(records[0].szControlID, "c0");
    EXPECT_STREQ(inputs[0][0].szName, "a0");
    EXPECT_STREQ(inputs[0][1].szName, "b0");
    EXPECT_EQ(records[1].stuDeviceInfo.nRetVideoInputs, 0);
    EXPECT_STREQ(inputs[1][0].szName, "");
    EXPECT_STREQ(records[2].szControlID, "c2");
    EXPECT_STREQ(inputs[2][1].szName, "b2");
    const std::string text = PackAll("MonitorCollection", records);
    for (const char* const name : {"\"a0\"", "\"b0\"", "\"a2\"", "\"b2\""})
        EXPECT_NE(text.find(name), std::string::npos) << name;
}

// Without "DeviceInfo" nothing is known of the device, and its keys are written empty.
TEST(SplitSource, OfAnEmptyTable) {
    Records<CFG_SPLIT_SOURCE> records(1);
    CFG_SPLIT_SOURCE record{};
    record.dwSize = sizeof record;
    records.Set(0, record);
    EXPECT_EQ(ParseTable("RecordSource", "{ }", records), (Answer{1, sizeof(CFG_SPLIT_SOURCE)}));
    record.stuDeviceInfo.dwSize = sizeof(CFG_REMOTE_DEVICE_INFO);
    const CFG_SPLIT_SOURCE read = records[0];
    EXPECT_EQ(std::memcmp(&read, &record, sizeof record), 0);
    EXPECT_EQ(PackAll("RecordSource", records),
              R"({ "AudioChannel" : 0, "AudioStream" : "Main", "ControlID" : "", "Device" : "", "DeviceInfo" : )"
              R"({ "Address" : "", "AudioInputChannels" : 0, "Definition" : "Standard", "DeviceClass" : "", )"
              R"("DeviceType" : "", "Enable" : false, "HttpPort" : 0, "MachineAddress" : "", "MachineGroup" : "", )"
              R"("Name" : "", "Password" : "", "Port" : 0, "ProtocolType" : "", "RtspPort" : 0, "SerialNo" : "", )"
              R"("UserName" : "", "Vendor" : "", "VideoInputChannels" : 0 }, "Enable" : false, "VideoChannel" : 0, )"
              R"("VideoStream" : "Main" })");
}

TEST(SplitSource, Streams) {
    const auto read = [](const std::string& value) {
        Records<CFG_SPLIT_SOURCE> records(1);
        CFG_SPLIT_SOURCE record{};
        record.dwSize = sizeof record;
        records.Set(0, record);
        EXPECT_EQ(ParseTable("DisplaySource", R"({ "VideoStream" : )" + value + R"(, "AudioStream" : )" + value + " }",
                             records)
                      .result,
                  1);
        EXPECT_EQ(records[0].emVideoStream, records[0].emAudioStream) << value;
        return records[0].emVideoStream;
    };
    const auto written = [](std::int32_t code) {
        CFG_SPLIT_SOURCE record{};
        record.dwSize = sizeof record;
        record.emVideoStream = code;
        record.emAudioStream = code;
        return Pack("DisplaySource", record);
    };
    const std::vector<std::string> names = {"Main", "Extra1", "Extra2", "Extra3"};
    for (std::int32_t code = 0; code < 4; ++code) {
        const std::string name = '"' + names[static_cast<std::size_t>(code)] + '"';
        EXPECT_EQ(read(name), code);
        EXPECT_NE(written(code).find("\"VideoStream\" : " + name), std::string::npos);
        EXPECT_NE(written(code).find("\"AudioStream\" : " + name), std::string::npos);
    }
    EXPECT_EQ(read("\"EXTRA1\""), 1);
    for (const char* const value : {"\"Extra4\"", "\"\"", "2", "null"})
        EXPECT_EQ(read(value), 0) << value;
    for (const std::int32_t code : {-1, 4}) {
        EXPECT_EQ(written(code).find("VideoStream"), std::string::npos) << code;
        EXPECT_EQ(written(code).find("AudioStream"), std::string::npos) << code;
    }
}

TEST(SplitSource, TheRoomOfTexts) {
    Records<CFG_SPLIT_SOURCE> records(1);
    CFG_SPLIT_SOURCE record{};
    record.dwSize = sizeof record;
    records.Set(0, record);
    EXPECT_EQ(ParseTable("DisplaySource", LongTexts({"Device", "ControlID"}), records).result, 1);
    EXPECT_EQ(std::strlen(records[0].szDevice), 63u);
    EXPECT_EQ(std::strlen(records[0].szControlID), 127u);
}

// ---- "MonitorWallCollection" ----

using Collection = CFG_MONITOR_WALL_COLLECTION_INFO;

// A window whose numbers begin at `first`, 12 of them, and whose switch number `on` alone is set.
std::string Window(int first, int on) {
    const auto flag = [&](int number) { return number == on ? "true" : "false"; };
    const auto number = [&](int i) { return std::to_string(first + i); };
    return R"({ "Directable" : )" + std::string(flag(0)) + R"(, "Enable" : )" + flag(1) + R"(, "FreePosition" : )"
           + flag(2) + R"(, "Rect" : )" + Rect(first) + R"(, "Source" : { "AudioChannel" : )" + number(4)
           + R"(, "AudioStream" : "Extra1", "Device" : "d)" + number(5) + R"(", "Enable" : )" + flag(3)
           + R"(, "VideoChannel" : )" + number(6) + R"(, "VideoStream" : "Extra2" }, "WindowID" : )" + number(7)
           + R"(, "Zorder" : )" + number(8) + " }";
}
void ExpectWindow(const CFG_WINDOW_INFO& window, int first, int on) {
    EXPECT_EQ(window.bDirectable, on == 0);
    EXPECT_EQ(window.bEnable, on == 1);
    EXPECT_EQ(window.bFreePosition, on == 2);
    EXPECT_EQ(window.stuSource.bEnable, on == 3);
    ExpectRect(window.stuRect, first);
    EXPECT_EQ(window.stuSource.nAudioChannel, first + 4);
    EXPECT_EQ(window.stuSource.emAudioStream, 1);
    EXPECT_EQ(window.stuSource.szDevice, "d" + std::to_string(first + 5));
    EXPECT_EQ(window.stuSource.nVideoChannel, first + 6);
    EXPECT_EQ(window.stuSource.emVideoStream, 2);
    EXPECT_EQ(window.nWindowID, first + 7);
    EXPECT_EQ(window.nZorder, first + 8);
}

const std::string kCollection =
    R"({ "Blocks" : { "block a" : { "ControlID" : "ca", "Mode" : "Split9", "Windows" : [ )" + Window(100, 0) + ", "
    + Window(120, 1) + R"( ] }, "block b" : { "ControlID" : "cb", "Mode" : "PIP3", "Windows" : [ )" + Window(140, 2)
    + R"( ] } }, "CompositeScene" : { "ControlID" : "cs", "Mode" : "CompositeSplit2", "Windows" : [ )" + Window(160, 3)
    + R"( ] }, "ControlID" : "c1", "MonitorWall" : )" + kWall + " }";

TEST(MonitorWallCollection, ThereAndBack) {
    const auto parsed = Parse<Collection>("MonitorWallCollection", kCollection);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(Collection));
    EXPECT_STREQ(parsed->szControlID, "c1");
    ExpectWall(parsed->stuMonitorWall);
    ASSERT_EQ(parsed->nBlockCount, 2);
    EXPECT_STREQ(parsed->stuBlocks[0].szName, "block a");
    EXPECT_STREQ(parsed->stuBlocks[0].szControlID, "ca");
    EXPECT_EQ(parsed->stuBlocks[0].emMode, 9);
    ASSERT_EQ(parsed->stuBlocks[0].nWindowCount, 2);
    ExpectWindow(parsed->stuBlocks[0].stuWindows[0], 100, 0);
    ExpectWindow(parsed->stuBlocks[0].stuWindows[1], 120, 1);
    EXPECT_STREQ(parsed->stuBlocks[1].szName, "block b");
    EXPECT_STREQ(parsed->stuBlocks[1].szControlID, "cb");
    EXPECT_EQ(parsed->stuBlocks[1].emMode, 1003);
    ASSERT_EQ(parsed->stuBlocks[1].nWindowCount, 1);
    ExpectWindow(parsed->stuBlocks[1].stuWindows[0], 140, 2);
    EXPECT_STREQ(parsed->stuCompositeScene.szName, "");
    EXPECT_STREQ(parsed->stuCompositeScene.szControlID, "cs");
    EXPECT_EQ(parsed->stuCompositeScene.emMode, 3002);
    ASSERT_EQ(parsed->stuCompositeScene.nWindowCount, 1);
    ExpectWindow(parsed->stuCompositeScene.stuWindows[0], 160, 3);
    EXPECT_EQ(Pack("MonitorWallCollection", *parsed), kCollection);
}

TEST(MonitorWallCollection, OneOrMany) {
    // The wall's size word is part of every record that is read.
    const Records<Collection> records(3, kUntouched);
    EXPECT_EQ(ParseTable("MonitorWallCollection", R"([ { "ControlID" : "x" }, null, { "ControlID" : "z" } ])", records),
              (Answer{1, 3 * sizeof(Collection)}));
    const auto record = [&](std::size_t i) {
        auto copy = std::make_unique<Collection>();
        std::memcpy(copy.get(), records.data() + i * sizeof(Collection), sizeof(Collection));
        return copy;
    };
    EXPECT_STREQ(record(0)->szControlID, "x");
    EXPECT_EQ(record(0)->stuMonitorWall.dwSize, sizeof(CFG_MONITOR_WALL_INFO));
    const auto clear = Cleared<Collection>();
    EXPECT_EQ(std::memcmp(record(1).get(), clear.get(), sizeof(Collection)), 0);
    EXPECT_STREQ(record(2)->szControlID, "z");
    const Records<Collection> one(1, kUntouched);
    EXPECT_EQ(ParseTable("MonitorWallCollection", R"([ { }, { } ])", one), (Answer{1, sizeof(Collection)}));
    EXPECT_EQ(ParseTable("MonitorWallCollection", "[ ]", one), (Answer{1, 0}));
    EXPECT_EQ(ParseTable("MonitorWallCollection", "null", one), kRefused);
    EXPECT_EQ(ParseTable("MonitorWallCollection", "7", one), kRefused);
    EXPECT_EQ(ParseDocument("MonitorWallCollection", R"({"result":false,"params":{"table":{}}})", one), kRefused);
    EXPECT_TRUE(one.isAll(0));
}

TEST(MonitorWallCollection, WritesAClearRecord) {
    const std::string scene = R"({ "ControlID" : "", "Mode" : "Split" })";
    EXPECT_EQ(Pack("MonitorWallCollection", *Cleared<Collection>()),
              R"({ "CompositeScene" : )" + scene + R"(, "ControlID" : "", "MonitorWall" : { "Desc" : "", )"
                  + R"("Enable" : false, "GridColumn" : 0, "GridLine" : 0, "Name" : "", "PowerSchedule" : )" + Power({})
                  + " } }");
}

TEST(MonitorWallCollection, BlocksComeInTheOrderOfTheirNames) {
    const auto parsed =
        Parse<Collection>("MonitorWallCollection",
                          R"({ "Blocks" : { "z" : { "ControlID" : "1" }, "B" : { "ControlID" : "2" }, "m" : null,
                          "a" : { "ControlID" : "3" } } })");
    ASSERT_EQ(parsed->nBlockCount, 3);
    EXPECT_STREQ(parsed->stuBlocks[0].szName, "B");
    EXPECT_STREQ(parsed->stuBlocks[1].szName, "a");
    EXPECT_STREQ(parsed->stuBlocks[2].szName, "z");
    EXPECT_STREQ(parsed->stuBlocks[2].szControlID, "1");
    for (const char* const value : {"[ { } ]", "5", "\"x\"", "{ }"}) {
        const auto none = Parse<Collection>("MonitorWallCollection", R"({ "Blocks" : )" + std::string(value) + " }");
        EXPECT_EQ(none->nBlockCount, 0) << value;
    }
    auto record = Cleared<Collection>();
    record->nBlockCount = 3;
    std::strcpy(record->stuBlocks[0].szName, "z");
    std::strcpy(record->stuBlocks[1].szName, "a");
    std::strcpy(record->stuBlocks[2].szName, "z");
    std::strcpy(record->stuBlocks[0].szControlID, "first");
    std::strcpy(record->stuBlocks[2].szControlID, "last");
    EXPECT_TRUE(Pack("MonitorWallCollection", *record)
                    .starts_with(R"({ "Blocks" : { "a" : { "ControlID" : "", "Mode" : "Split" }, )"
                                 R"("z" : { "ControlID" : "last", "Mode" : "Split" } }, )"));
}

TEST(MonitorWallCollection, BlocksAndWindowsEndAtTheirRoom) {
    std::string blocks;
    for (int i = 0; i < 130; ++i) // 3 digits, so that names and numbers have one order
        blocks += (i > 0 ? ", \"" : "\"") + std::to_string(100 + i) + R"(" : { "ControlID" : "c)"
                  + std::to_string(100 + i) + "\" }";
    const auto parsed = Parse<Collection>("MonitorWallCollection", R"({ "Blocks" : { )" + blocks + " } }");
    EXPECT_EQ(parsed->nBlockCount, 128);
    EXPECT_STREQ(parsed->stuBlocks[127].szName, "227");
    EXPECT_STREQ(parsed->stuCompositeScene.szControlID, "");
    for (const int count : {64, 65}) {
        const auto windows = Parse<Collection>("MonitorWallCollection",
                                               R"({ "CompositeScene" : { "Windows" : )" + ListOf(count, [](int i) {
                                                   return R"({ "WindowID" : )" + std::to_string(i + 1) + " }";
                                               }) + " } }");
        EXPECT_EQ(windows->stuCompositeScene.nWindowCount, 64) << count;
        EXPECT_EQ(windows->stuCompositeScene.stuWindows[63].nWindowID, 64);
    }
    auto record = Cleared<Collection>();
    record->nBlockCount = 1000;
    for (int i = 0; i < 128; ++i)
        std::snprintf(record->stuBlocks[i].szName, sizeof record->stuBlocks[i].szName, "%d", i);
    record->stuBlocks[127].nWindowCount = 65;
    const std::string text = Pack("MonitorWallCollection", *record);
    const auto count = [&](const std::string& part) {
        std::size_t found = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
            ++found;
        return found;
    };
    EXPECT_EQ(count("\"Mode\""), 129u);
    EXPECT_EQ(count("\"WindowID\""), 64u);
}

TEST(MonitorWallCollection, TheRoomOfTexts) {
    std::string scene = LongTexts({"ControlID"});
    scene.insert(scene.size() - 1, R"(, "Windows" : [ { "Source" : )" + LongTexts({"Device"}) + " } ]");
    std::string texts = LongTexts({"ControlID"});
    texts.insert(texts.size() - 1, R"(, "Blocks" : { ")" + std::string(200, 'n') + "\" : " + scene + " }");
    const auto parsed = Parse<Collection>("MonitorWallCollection", texts);
    EXPECT_ROOM(parsed, szControlID, 128);
    EXPECT_ROOM(parsed, stuBlocks[0].szName, 128);
    EXPECT_ROOM(parsed, stuBlocks[0].szControlID, 128);
    EXPECT_ROOM(parsed, stuBlocks[0].stuWindows[0].stuSource.szDevice, 64);
}

// ---- The names of divided screens ----

struct Split {
    const char* text;
    std::int32_t code;
};

TEST(CompositeScene, SplitNames) {
    const auto read = [](const std::string& value) {
        return Parse<Collection>("MonitorWallCollection", R"({ "CompositeScene" : { "Mode" : )" + value + " } }")
            ->stuCompositeScene.emMode;
    };
    const auto written = [](std::int32_t code) {
        const auto record = Cleared<Collection>();
        record->stuCompositeScene.emMode = code;
        const std::string text = Pack("MonitorWallCollection", *record);
        const std::string key = R"("Mode" : ")";
        const std::size_t at = text.find(key) + key.size();
        return text.substr(at, text.find('"', at) - at);
    };
    for (const Split& split : {Split{"Split1", 1}, Split{"Split4", 4}, Split{"Split3", 10}, Split{"Split3B", 11},
                               Split{"PIP", 1000}, Split{"PIP4", 1004}, Split{"Free", 2000}, Split{"Free2", 2002},
                               Split{"CompositeSplit", 3000}, Split{"CompositeSplit5", 3005}, Split{"Split", 0}}) {
        EXPECT_EQ(read('"' + std::string(split.text) + '"'), split.code) << split.text;
        EXPECT_EQ(written(split.code), split.text) << split.code;
    }
    EXPECT_EQ(written(3), "Split3"); // which is the text of 10, and reads as that
    EXPECT_EQ(read("\"Split3x\""), 3);
    EXPECT_EQ(read("\"PIPx\""), 1000);  // no number behind it
    EXPECT_EQ(read("\"sPLIT16\""), 16); // in any case
    EXPECT_EQ(read("\"SPLIT3b\""), 11);
    EXPECT_EQ(read("\"compositesplit7\""), 3007);
    for (const char* const value : {"\"Mosaic\"", "\"\"", "9", "true", "[ ]"})
        EXPECT_EQ(read(value), 1) << value;
    EXPECT_EQ(read("null"), 0); // not told
}

// ---- Tours ----

TEST(MonitorTour, ThereAndBack) {
    const std::string text =
        R"({ "Collections" : [ "c4", "c5" ], "Enable" : true, "Interval" : 1, "Mask" : [ 2, 3 ] })";
    const auto parsed = ParseSized<CFG_MONITOR_TOUR_INFO>("MonitorTour", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_EQ(parsed->nInterval, 1);
    ASSERT_EQ(parsed->nMaskCount, 2);
    EXPECT_EQ(parsed->nMask[0], 2);
    EXPECT_EQ(parsed->nMask[1], 3);
    ASSERT_EQ(parsed->nCollectionCount, 2);
    EXPECT_STREQ(parsed->szCollections[0], "c4");
    EXPECT_STREQ(parsed->szCollections[1], "c5");
    EXPECT_EQ(Pack("MonitorTour", *parsed), text);
    EXPECT_EQ(Pack("MonitorTour", *ParseSized<CFG_MONITOR_TOUR_INFO>("MonitorTour", "{ }")),
              R"({ "Enable" : false, "Interval" : 0 })");
}

TEST(MonitorTour, ListsEndAtTheirRoom) {
    for (const int more : {0, 1}) {
        const auto parsed = ParseSized<CFG_MONITOR_TOUR_INFO>(
            "MonitorTour",
            R"({ "Mask" : )" + ListOf(256 + more, [](int i) { return std::to_string(i + 1); }) + R"(, "Collections" : )"
                + ListOf(64 + more, [](int i) { return '"' + std::to_string(i) + std::string(200, 'x') + '"'; })
                + " }");
        EXPECT_EQ(parsed->nMaskCount, 256);
        EXPECT_EQ(parsed->nMask[255], 256);
        EXPECT_EQ(parsed->nCollectionCount, 64);
        EXPECT_EQ(std::string(parsed->szCollections[63]), "63" + std::string(125, 'x'));
    }
    auto record = Cleared<CFG_MONITOR_TOUR_INFO>();
    record->dwSize = sizeof(CFG_MONITOR_TOUR_INFO);
    record->nMaskCount = 257;
    record->nCollectionCount = 65;
    EXPECT_EQ(Pack("MonitorTour", *record), R"({ "Collections" : )"
                                                + ListOf(64, [](int) { return std::string("\"\""); })
                                                + R"(, "Enable" : false, "Interval" : 0, "Mask" : )"
                                                + ListOf(256, [](int) { return std::string("0"); }) + " }");
}

TEST(MonitorWallCollectionTour, ThereAndBack) {
    const std::string text = R"({ "Group" : [ "g1", "g2" ], "Interval" : 3 })";
    const auto parsed = Parse<CFG_MONITOR_COLLECTION_TOUR_INFO>("MonitorWallCollectionTour", text);
    ASSERT_TRUE(parsed);
    ASSERT_EQ(parsed->nGroupCount, 2);
    EXPECT_STREQ(parsed->szGroup[0], "g1");
    EXPECT_STREQ(parsed->szGroup[1], "g2");
    EXPECT_EQ(parsed->nInterval, 3);
    EXPECT_EQ(Pack("MonitorWallCollectionTour", *parsed), text);
    ExpectOneOrMany<CFG_MONITOR_COLLECTION_TOUR_INFO>("MonitorWallCollectionTour", text, R"({ "Interval" : 0 })");
    for (const int count : {64, 65}) {
        const auto cut = Parse<CFG_MONITOR_COLLECTION_TOUR_INFO>(
            "MonitorWallCollectionTour", R"({ "Group" : )" + ListOf(count, [](int i) {
                                             return '"' + std::to_string(i) + std::string(200, 'x') + '"';
                                         }) + " }");
        EXPECT_EQ(cut->nGroupCount, 64);
        EXPECT_EQ(std::string(cut->szGroup[63]), "63" + std::string(125, 'x'));
        EXPECT_EQ(cut->nInterval, 0);
    }
}

} // namespace
} // namespace orrery::test
