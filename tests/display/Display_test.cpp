#include "display/Display.h"

#include "display/OneOrMany.h"
#include "orrery/general.h"
#include "support/WeekText.h"

#include <vector>

namespace orrery::test {
namespace {

// ---- Titles ----

TEST(ChannelTitle, ThereAndBack) {
    const std::string text = R"({ "Name" : "Gate 7", "SerialNo" : 3 })";
    const auto parsed = ParseSized<CFG_CHANNEL_TITLE_INFO>("ChannelTitle", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_CHANNEL_TITLE_INFO));
    EXPECT_EQ(parsed->dwSize, sizeof(CFG_CHANNEL_TITLE_INFO));
    EXPECT_EQ(parsed->nSerialNo, 3);
    EXPECT_STREQ(parsed->szName, "Gate 7");
    EXPECT_EQ(Pack("ChannelTitle", *parsed), text);
    EXPECT_ROOM((ParseSized<CFG_CHANNEL_TITLE_INFO>("ChannelTitle", LongTexts({"Name"}))), szName, 256);
}

TEST(VideoOutputTitle, ThereAndBack) {
    const auto parsed = Parse<CFG_VIDEO_OUTPUT_TITLE_INFO>("VideoOutputTitle", R"({ "Name" : "Hall" })");
    EXPECT_STREQ(parsed->szName, "Hall");
    EXPECT_EQ(Pack("VideoOutputTitle", *parsed), R"({ "Name" : "Hall" })");
    ExpectOneOrMany<CFG_VIDEO_OUTPUT_TITLE_INFO>("VideoOutputTitle", R"({ "Name" : "Hall" })", R"({ "Name" : "" })");
    EXPECT_ROOM((Parse<CFG_VIDEO_OUTPUT_TITLE_INFO>("VideoOutputTitle", LongTexts({"Name"}))), szName, 128);
}

// ---- "VideoOut" ----

TEST(VideoOut, ThereAndBack) {
    const std::string text =
        R"({ "Color" : { "Brightness" : 5, "Contrast" : 6, "Hue" : 8, "Saturation" : 7 }, )"
        R"("Margin" : [ 1, 2, 3, 4 ], "Mode" : { "BPP" : 11, "Format" : "HDMI", "Height" : 10, "IQIMode" : 13, )"
        R"("RefreshRate" : 12, "ScanFormat" : "INTERLACE", "Width" : 9 } })";
    const auto parsed = ParseSized<CFG_VIDEO_OUT_INFO>("VideoOut", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_VIDEO_OUT_INFO));
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(parsed->nMargin[i], i + 1);
    EXPECT_EQ(parsed->nBrightness, 5);
    EXPECT_EQ(parsed->nContrast, 6);
    EXPECT_EQ(parsed->nSaturation, 7);
    EXPECT_EQ(parsed->nHue, 8);
    EXPECT_EQ(parsed->nWidth, 9);
    EXPECT_EQ(parsed->nHeight, 10);
    EXPECT_EQ(parsed->nBpp, 11);
    EXPECT_EQ(parsed->emFormat, 4);
    EXPECT_EQ(parsed->nRefreshRate, 12);
    EXPECT_EQ(parsed->nIQIMode, 13);
    EXPECT_EQ(parsed->emScanFormat, 1);
    EXPECT_EQ(Pack("VideoOut", *parsed), text);
}

TEST(VideoOut, WritesAllKeysOfAnEmptyRecord) {
    const auto parsed = ParseSized<CFG_VIDEO_OUT_INFO>("VideoOut", "{ }");
    CFG_VIDEO_OUT_INFO clear{};
    clear.dwSize = sizeof clear;
    EXPECT_EQ(std::memcmp(parsed.record.get(), &clear, sizeof clear), 0);
    EXPECT_EQ(Pack("VideoOut", *parsed),
              R"({ "Color" : { "Brightness" : 0, "Contrast" : 0, "Hue" : 0, "Saturation" : 0 }, )"
              R"("Margin" : [ 0, 0, 0, 0 ], "Mode" : { "BPP" : 0, "Format" : "Auto", "Height" : 0, "IQIMode" : 0, )"
              R"("RefreshRate" : 0, "ScanFormat" : "PROGRESSIVE", "Width" : 0 } })");
}

TEST(VideoOut, MarginsHaveFourSides) {
    const auto margins = [](const std::string& list) {
        const auto parsed = ParseSized<CFG_VIDEO_OUT_INFO>("VideoOut", R"({ "Margin" : )" + list + " }");
        const std::int32_t* const margin = parsed->nMargin;
        return std::vector<std::int32_t>(margin, margin + 4);
    };
    EXPECT_EQ(margins("[ 1, 2, 3, 4, 5 ]"), (std::vector<std::int32_t>{1, 2, 3, 4}));
    EXPECT_EQ(margins("[ 1, 2 ]"), (std::vector<std::int32_t>{1, 2, 0, 0}));
    EXPECT_EQ(margins("7"), (std::vector<std::int32_t>{0, 0, 0, 0}));
}

TEST(VideoOut, Formats) {
    const std::vector<std::string> names = {"Auto", "TV", "VGA", "DVI", "HDMI", "SPOT"};
    const auto read = [](const std::string& value) {
        return ParseSized<CFG_VIDEO_OUT_INFO>("VideoOut", R"({ "Mode" : { "Format" : )" + value + " } }")->emFormat;
    };
    const auto written = [](std::int32_t code) {
        CFG_VIDEO_OUT_INFO record{};
        record.dwSize = sizeof record;
        record.emFormat = code;
        return Pack("VideoOut", record);
    };
    for (std::int32_t code = 0; code < 6; ++code) {
        EXPECT_EQ(read('"' + names[static_cast<std::size_t>(code)] + '"'), code);
        EXPECT_NE(written(code).find(R"("Format" : ")" + names[static_cast<std::size_t>(code)] + '"'),
                  std::string::npos);
    }
    EXPECT_EQ(read("\"hdmi\""), 4);
    for (const char* const value : {"\"SCART\"", "\"\"", "4", "null"})
        EXPECT_EQ(read(value), 0) << value;
    for (const std::int32_t code : {-1, 6, 9, INT32_MAX})
        EXPECT_NE(written(code).find(R"("Format" : "Auto")"), std::string::npos) << code;
}

TEST(VideoOut, ScanFormats) {
    const auto read = [](const std::string& value) {
        return ParseSized<CFG_VIDEO_OUT_INFO>("VideoOut", R"({ "Mode" : { "ScanFormat" : )" + value + " } }")
            ->emScanFormat;
    };
    EXPECT_EQ(read("\"PROGRESSIVE\""), 0);
    EXPECT_EQ(read("\"INTERLACE\""), 1);
    EXPECT_EQ(read("\"Interlace\""), 1);
    for (const char* const value : {"\"Helical\"", "\"\"", "1", "null"})
        EXPECT_EQ(read(value), 0) << value;
    for (const std::int32_t code : {-1, 2}) {
        CFG_VIDEO_OUT_INFO record{};
        record.dwSize = sizeof record;
        record.emScanFormat = code;
        EXPECT_EQ(Pack("VideoOut", record).find("ScanFormat"), std::string::npos) << code;
    }
}

// ---- "VideoColor" ----

TEST(VideoColor, ThereAndBack) {
    const std::string text = R"({ "Brightness" : 1, "ChromaSuppress" : 6, "Contrast" : 2, "Gamma" : 5, "Hue" : 4, )"
                             R"("Saturation" : 3, "Style" : "Flamboyant", "TimeSection" : "1 08:09:10-17:18:19" })";
    const auto parsed = ParseSized<CFG_VIDEO_COLOR_INFO>("VideoColor", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->nBrightness, 1);
    EXPECT_EQ(parsed->nContrast, 2);
    EXPECT_EQ(parsed->nSaturation, 3);
    EXPECT_EQ(parsed->nHue, 4);
    EXPECT_EQ(parsed->nGamma, 5);
    EXPECT_EQ(parsed->nChromaSuppress, 6);
    EXPECT_EQ(parsed->emStyle, 3);
    EXPECT_EQ(parsed->stuTimeSection.dwMask, 1);
    EXPECT_EQ(parsed->stuTimeSection.nBeginHour, 8);
    EXPECT_EQ(parsed->stuTimeSection.nBeginMin, 9);
    EXPECT_EQ(parsed->stuTimeSection.nBeginSec, 10);
    EXPECT_EQ(parsed->stuTimeSection.nEndHour, 17);
    EXPECT_EQ(parsed->stuTimeSection.nEndMin, 18);
    EXPECT_EQ(parsed->stuTimeSection.nEndSec, 19);
    EXPECT_EQ(Pack("VideoColor", *parsed), text);
}

TEST(VideoColor, ASectionIsReadAsFarAsItGoes) {
    const auto read = [](const std::string& value) {
        const auto section =
            ParseSized<CFG_VIDEO_COLOR_INFO>("VideoColor", R"({ "TimeSection" : )" + value + " }")->stuTimeSection;
        return std::vector<std::int32_t>{section.dwMask,   section.nBeginHour, section.nBeginMin, section.nBeginSec,
                                         section.nEndHour, section.nEndMin,    section.nEndSec};
    };
    using Section = std::vector<std::int32_t>;
    EXPECT_EQ(read("\"127 1:2:3-4:5:6\""), (Section{127, 1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(read("\"1 8:09:10-11:12\""), (Section{1, 8, 9, 10, 11, 12, 0}));
    EXPECT_EQ(read("\"1 018:09:10-11:12:13\""), (Section{1, 1, 0, 0, 0, 0, 0})); // "01", and no colon behind it
    for (const char* const value : {"\"\"", "\"noon\"", "null", "5", "[ \"1 1:2:3-4:5:6\" ]"})
        EXPECT_EQ(read(value), (Section{0, 0, 0, 0, 0, 0, 0})) << value;
}

TEST(VideoColor, ARecordAPeriod) {
    Records<CFG_VIDEO_COLOR_INFO> records(2);
    CFG_VIDEO_COLOR_INFO first{};
    first.dwSize = sizeof first;
    records.Set(0, first);
    EXPECT_EQ(ParseTable("VideoColor", R"([ { "Hue" : 11 }, { "Hue" : 12 }, { "Hue" : 13 } ])", records),
              (Answer{1, 2 * sizeof(CFG_VIDEO_COLOR_INFO)}));
    EXPECT_EQ(records[0].nHue, 11);
    EXPECT_EQ(records[1].nHue, 12);
    const auto clear = [](int hue) {
        return R"({ "Brightness" : 0, "ChromaSuppress" : 0, "Contrast" : 0, "Gamma" : 0, "Hue" : )"
               + std::to_string(hue) + R"(, "Saturation" : 0, "Style" : "", "TimeSection" : "0 00:00:00-00:00:00" })";
    };
    EXPECT_EQ(PackAll("VideoColor", records), "[ " + clear(11) + ", " + clear(12) + " ]");
}

TEST(VideoColor, Styles) {
    const auto read = [](const std::string& value) {
        return ParseSized<CFG_VIDEO_COLOR_INFO>("VideoColor", R"({ "Style" : )" + value + " }")->emStyle;
    };
    const auto written = [](std::int32_t code) {
        CFG_VIDEO_COLOR_INFO record{};
        record.dwSize = sizeof record;
        record.emStyle = code;
        return Pack("VideoColor", record);
    };
    const std::vector<std::string> names = {"", "Gentle", "Standard", "Flamboyant"};
    for (std::int32_t code = 0; code < 4; ++code) {
        const std::string name = '"' + names[static_cast<std::size_t>(code)] + '"';
        EXPECT_EQ(read(name), code);
        EXPECT_NE(written(code).find("\"Style\" : " + name), std::string::npos);
    }
    EXPECT_EQ(read("\"gentle\""), 1);
    for (const char* const value : {"\"Gaudy\"", "2", "null"})
        EXPECT_EQ(read(value), 0) << value;
    for (const std::int32_t code : {-1, 4})
        EXPECT_NE(written(code).find(R"("Style" : "")"), std::string::npos) << code;
}

// ---- "VideoIn" ----

TEST(VideoIn, ThereAndBack) {
    const std::string text =
        R"({ "Address" : "a6", "CivilCode" : "c7", "Enable" : 10, "ID" : "i2", "Manufacturer" : "m4", "Model" : "m5", )"
        R"("Name" : "n3", "OutputChannel" : 13, "Owner" : "o8", "Parental" : 9, "RegisterWay" : "w14", )"
        R"("RemoteName" : "r15", "Secrecy" : 11, "SignalType" : "s16", "Type" : "t1", )"
        R"("UpperDevice" : { "Device" : "d12" } })";
    const auto parsed = Parse<CFG_VIDEO_IN_INFO>("VideoIn", text);
    ASSERT_TRUE(parsed);
    EXPECT_STREQ(parsed->szType, "t1");
    EXPECT_STREQ(parsed->szID, "i2");
    EXPECT_STREQ(parsed->szName, "n3");
    EXPECT_STREQ(parsed->szManufacturer, "m4");
    EXPECT_STREQ(parsed->szModel, "m5");
    EXPECT_STREQ(parsed->szAddress, "a6");
    EXPECT_STREQ(parsed->szCivilCode, "c7");
    EXPECT_STREQ(parsed->szOwner, "o8");
    EXPECT_EQ(parsed->nParental, 9);
    EXPECT_EQ(parsed->nEnable, 10);
    EXPECT_EQ(parsed->nSecrecy, 11);
    EXPECT_STREQ(parsed->szUpperDevice, "d12");
    EXPECT_EQ(parsed->nOutputChannel, 13);
    EXPECT_STREQ(parsed->szRegisterWay, "w14");
    EXPECT_STREQ(parsed->szRemoteName, "r15");
    EXPECT_STREQ(parsed->szSignalType, "s16");
    EXPECT_EQ(Pack("VideoIn", *parsed), text);
}

TEST(VideoIn, OneOrManyAndTheRoomOfTexts) {
    ExpectOneOrMany<CFG_VIDEO_IN_INFO>(
        "VideoIn", R"({ "UpperDevice" : { "Device" : "nvr" } })",
        R"({ "Address" : "", "CivilCode" : "", "Enable" : 0, "ID" : "", "Manufacturer" : "", "Model" : "", )"
        R"("Name" : "", "OutputChannel" : 0, "Owner" : "", "Parental" : 0, "RegisterWay" : "", "RemoteName" : "", )"
        R"("Secrecy" : 0, "SignalType" : "", "Type" : "", "UpperDevice" : { "Device" : "" } })");
    std::string texts = LongTexts({"Type", "ID", "Name", "Manufacturer", "Model", "Address", "CivilCode", "Owner",
                                   "RegisterWay", "RemoteName", "SignalType"});
    texts.insert(texts.size() - 1, R"(, "UpperDevice" : )" + LongTexts({"Device"}));
    const auto parsed = Parse<CFG_VIDEO_IN_INFO>("VideoIn", texts);
    EXPECT_ROOM(parsed, szType, 128);
    EXPECT_ROOM(parsed, szID, 128);
    EXPECT_ROOM(parsed, szName, 128);
    EXPECT_ROOM(parsed, szManufacturer, 128);
    EXPECT_ROOM(parsed, szModel, 128);
    EXPECT_ROOM(parsed, szAddress, 256);
    EXPECT_ROOM(parsed, szCivilCode, 128);
    EXPECT_ROOM(parsed, szOwner, 128);
    EXPECT_ROOM(parsed, szUpperDevice, 128);
    EXPECT_ROOM(parsed, szRegisterWay, 32);
    EXPECT_ROOM(parsed, szRemoteName, 128);
    EXPECT_ROOM(parsed, szSignalType, 32);
}

TEST(VideoInBoundary, ThereAndBack) {
    const std::string text = R"({ "Bottom" : -4, "Left" : 1, "Right" : 3, "Up" : 2 })";
    const auto parsed = Parse<CFG_VIDEO_IN_BOUNDARY_INFO>("VideoInBoundary", text);
    EXPECT_EQ(parsed->nLeft, 1);
    EXPECT_EQ(parsed->nUp, 2);
    EXPECT_EQ(parsed->nRight, 3);
    EXPECT_EQ(parsed->nBottom, -4);
    EXPECT_EQ(Pack("VideoInBoundary", *parsed), text);
    ExpectOneOrMany<CFG_VIDEO_IN_BOUNDARY_INFO>("VideoInBoundary", text,
                                                R"({ "Bottom" : 0, "Left" : 0, "Right" : 0, "Up" : 0 })");
}

// ---- "Snap" ----

// A flat list: `sections` in front, places without a time behind them.
std::string Sections(const std::vector<std::string>& sections) {
    std::string list = "[ ";
    for (std::size_t i = 0; i < 42; ++i)
        list += (i > 0 ? ", \"" : "\"") + (i < sections.size() ? sections[i] : "0 00:00:00-00:00:00") + '"';
    return list + " ]";
}

TEST(Snap, ThereAndBack) {
    const auto parsed = Parse<CFG_SNAP_SCHEDULE_INFO>(
        "Snap", R"({ "TimeSection" : [ "1 08:00:01-09:00:02", "2 010:1:2-3:4:5", "bad", "3 1:1:1-2:2:2" ] })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->stuTimeSection[0].nEndSec, 2);
    EXPECT_EQ(parsed->stuTimeSection[1].nBeginHour, 10); // parts of any width
    EXPECT_EQ(parsed->stuTimeSection[2].dwMask, 0);      // passed over
    EXPECT_EQ(parsed->stuTimeSection[3].dwMask, 3);
    EXPECT_EQ(Pack("Snap", *parsed), R"({ "TimeSection" : )"
                                         + Sections({"1 08:00:01-09:00:02", "2 10:01:02-03:04:05",
                                                     "0 00:00:00-00:00:00", "3 01:01:01-02:02:02"})
                                         + " }");
    ExpectOneOrMany<CFG_SNAP_SCHEDULE_INFO>("Snap", R"({ "TimeSection" : [ "1 08:00:01-09:00:02" ] })",
                                            R"({ "TimeSection" : )" + Sections({}) + " }");
}

TEST(Snap, ASectionIsReadAsFarAsItGoes) {
    const auto parsed =
        Parse<CFG_SNAP_SCHEDULE_INFO>("Snap", R"({ "TimeSection" : [ "4 5:06", "5 7:08:09-10:11:12" ] })");
    EXPECT_EQ(parsed->stuTimeSection[0].dwMask, 4);
    EXPECT_EQ(parsed->stuTimeSection[0].nBeginHour, 5);
    EXPECT_EQ(parsed->stuTimeSection[0].nBeginMin, 6);
    EXPECT_EQ(parsed->stuTimeSection[0].nBeginSec, 0);
    EXPECT_EQ(parsed->stuTimeSection[0].nEndHour, 0);
    EXPECT_EQ(parsed->stuTimeSection[1].nEndSec, 12); // the list goes on
}

TEST(Snap, KeepsFortyTwoSections) {
    std::string list = "[ ";
    for (int i = 0; i < 44; ++i)
        list += (i > 0 ? ", \"" : "\"") + std::to_string(i + 100) + " 1:2:3-4:5:6\"";
    const Records<CFG_SNAP_SCHEDULE_INFO> records(2);
    EXPECT_EQ(ParseTable("Snap", R"({ "TimeSection" : )" + list + " ] }", records),
              (Answer{1, sizeof(CFG_SNAP_SCHEDULE_INFO)}));
    EXPECT_EQ(records[0].stuTimeSection[41].dwMask, 141);
    EXPECT_EQ(records[1].stuTimeSection[0].dwMask, 0);
}

// ---- "MovedDetect" ----

TEST(MovedDetect, ThereAndBack) {
    const Records<CFG_MOVED_DETECT_INFO> records(1);
    EXPECT_EQ(ParseTable("MovedDetect",
                         R"({ "Enable" : true, "EventHandler" : { "Delay" : 8, "BeepEnable" : true },
                              "Sensitivity" : 5 })",
                         records),
              (Answer{1, sizeof(CFG_MOVED_DETECT_INFO)}));
    const auto record = std::make_unique<CFG_MOVED_DETECT_INFO>(records[0]);
    EXPECT_EQ(record->bEnable, 1);
    EXPECT_EQ(record->nSensitivity, 5);
    EXPECT_EQ(record->stuEventHandler.abDelay, 1);
    EXPECT_EQ(record->stuEventHandler.nDelay, 8);
    EXPECT_EQ(record->stuEventHandler.bBeepEnable, 1);
    // Both switches and the week stand in every linkage.
    EXPECT_EQ(PackAll("MovedDetect", records),
              R"({ "Enable" : true, "EventHandler" : { "AlarmOutEnable" : false, "BeepEnable" : true, "Delay" : 8, )"
              R"("RecordEnable" : false, "TimeSection" : )"
                  + WeekText(7) + R"( }, "Sensitivity" : 5 })");
}

TEST(MovedDetect, ItsWeekHasARowForHolidays) {
    const Records<CFG_MOVED_DETECT_INFO> records(1);
    EXPECT_EQ(
        ParseTable("MovedDetect", R"({ "EventHandler" : { "TimeSection" : [ [ "1 1:02:03-4:05:06" ] ] } })", records),
        (Answer{1, sizeof(CFG_MOVED_DETECT_INFO)}));
    const auto record = std::make_unique<CFG_MOVED_DETECT_INFO>(records[0]);
    EXPECT_EQ(record->stuEventHandler.stuTimeSectionEx.stuTimeSection[0][0].nEndSec, 6);
    EXPECT_EQ(record->stuEventHandler.stuTimeSection[0][0].nEndSec, 0); // that of other alarms
    record->stuEventHandler.stuTimeSection[0][0] = {1, 7, 0, 0, 8, 0, 0};
    const std::string text = Pack("MovedDetect", *record);
    EXPECT_NE(text.find("\"1 01:02:03-04:05:06\""), std::string::npos);
    EXPECT_EQ(text.find("\"1 07:00:00-08:00:00\""), std::string::npos);
}

TEST(MovedDetect, OneOrMany) {
    const Records<CFG_MOVED_DETECT_INFO> clear(1);
    ExpectOneOrMany<CFG_MOVED_DETECT_INFO>("MovedDetect", R"({ "Sensitivity" : 5 })", PackAll("MovedDetect", clear));
}

// ---- Matrices ----

TEST(AnalogMatrix, ThereAndBack) {
    const std::string text =
        R"({ "CommPort" : { "Address" : 9, "Attribute" : [ 19200, 7, "Even", "2" ], "PortIndex" : 8 }, )"
        R"("InputChannelCount" : 5, "InputChannelSource" : [ { "Active" : 10, "ControlID" : "c11", "Format" : "f12" }, )"
        R"({ "Active" : 13, "ControlID" : "c14", "Format" : "f15" } ], "Model" : "m2", "Name" : "n1", )"
        R"("OutputChannelCount" : 6, "PassWord" : "p4", "Protocol" : "q7", "UserName" : "u3" })";
    const auto parsed = Parse<CFG_ANALOG_MATRIX_INFO>("AnalogMatrix", text);
    ASSERT_TRUE(parsed);
    EXPECT_STREQ(parsed->szName, "n1");
    EXPECT_STREQ(parsed->szModel, "m2");
    EXPECT_STREQ(parsed->szUserName, "u3");
    EXPECT_STREQ(parsed->szPassWord, "p4");
    EXPECT_EQ(parsed->nInputChannelCount, 5);
    EXPECT_EQ(parsed->nOutputChannelCount, 6);
    EXPECT_STREQ(parsed->szProtocol, "q7");
    EXPECT_EQ(parsed->nPortIndex, 8);
    EXPECT_EQ(parsed->nAddress, 9);
    EXPECT_EQ(parsed->stuAttribute.byBaudRate, CFG_COMM_BAUD_19200);
    EXPECT_EQ(parsed->stuAttribute.byDataBits, CFG_COMM_DATA_BITS_7);
    EXPECT_EQ(parsed->stuAttribute.byParity, CFG_COMM_PARITY_EVEN);
    EXPECT_EQ(parsed->stuAttribute.byStopBits, CFG_COMM_STOP_BITS_2);
    ASSERT_EQ(parsed->nSourceCount, 2);
    EXPECT_EQ(parsed->stuInputChannelSource[0].nActive, 10);
    EXPECT_STREQ(parsed->stuInputChannelSource[0].szControlID, "c11");
    EXPECT_STREQ(parsed->stuInputChannelSource[0].szFormat, "f12");
    EXPECT_EQ(parsed->stuInputChannelSource[1].nActive, 13);
    EXPECT_STREQ(parsed->stuInputChannelSource[1].szControlID, "c14");
    EXPECT_STREQ(parsed->stuInputChannelSource[1].szFormat, "f15");
    EXPECT_EQ(Pack("AnalogMatrix", *parsed), text);
}

TEST(AnalogMatrix, OneOrManyAndItsRoom) {
    ExpectOneOrMany<CFG_ANALOG_MATRIX_INFO>(
        "AnalogMatrix", R"({ "Name" : "x" })",
        R"({ "CommPort" : { "Address" : 0, "Attribute" : [ 300, 5, "None", "1" ], "PortIndex" : 0 }, )"
        R"("InputChannelCount" : 0, "Model" : "", "Name" : "", "OutputChannelCount" : 0, "PassWord" : "", )"
        R"("Protocol" : "", "UserName" : "" })");
    std::string texts = LongTexts({"Name", "Model", "UserName", "PassWord", "Protocol"});
    std::string sources = "[ " + LongTexts({"ControlID", "Format"});
    for (int i = 1; i < 258; ++i)
        sources += R"(, { "Active" : )" + std::to_string(i) + " }";
    texts.insert(texts.size() - 1, R"(, "InputChannelSource" : )" + sources + " ]");
    const auto parsed = Parse<CFG_ANALOG_MATRIX_INFO>("AnalogMatrix", texts);
    EXPECT_ROOM(parsed, szName, 128);
    EXPECT_ROOM(parsed, szModel, 32);
    EXPECT_ROOM(parsed, szUserName, 64);
    EXPECT_ROOM(parsed, szPassWord, 64);
    EXPECT_ROOM(parsed, szProtocol, 128);
    EXPECT_EQ(parsed->nSourceCount, 256);
    EXPECT_ROOM(parsed, stuInputChannelSource[0].szControlID, 128);
    EXPECT_ROOM(parsed, stuInputChannelSource[0].szFormat, 32);
    EXPECT_EQ(parsed->stuInputChannelSource[255].nActive, 255);
}

TEST(AnalogMatrix, SourcesEndAtTheirRoomInBothDirections) {
    for (const int count : {255, 256, 257}) {
        std::string sources = R"([ { "Active" : 1 })";
        for (int i = 1; i < count; ++i)
            sources += R"(, { "Active" : )" + std::to_string(i + 1) + " }";
        const auto parsed =
            Parse<CFG_ANALOG_MATRIX_INFO>("AnalogMatrix", R"({ "InputChannelSource" : )" + sources + " ] }");
        const int used = std::min(count, 256);
        EXPECT_EQ(parsed->nSourceCount, used);
        EXPECT_EQ(parsed->stuInputChannelSource[used - 1].nActive, used);
    }
    const auto record = Cleared<CFG_ANALOG_MATRIX_INFO>();
    const auto written = [&](std::int32_t count) {
        record->nSourceCount = count;
        const std::string text = Pack("AnalogMatrix", *record);
        std::size_t found = 0;
        for (std::size_t at = text.find("ControlID"); at != std::string::npos; at = text.find("ControlID", at + 1))
            ++found;
        return found;
    };
    EXPECT_EQ(written(255), 255u);
    for (const std::int32_t count : {256, 257, INT32_MAX})
        EXPECT_EQ(written(count), 256u) << count;
    for (const std::int32_t count : {0, -1, INT32_MIN})
        EXPECT_EQ(written(count), 0u) << count;
    EXPECT_EQ(Pack("AnalogMatrix", *record).find("InputChannelSource"), std::string::npos);
}

TEST(AnalogMatrixProtocol, ThereAndBack) {
    const auto parsed = Parse<CFG_ANALOG_MATRIX_PROTOCOL_INFO>("AnalogMatrixProtocol", LongTexts({"Protocol"}));
    EXPECT_ROOM(parsed, szProtocol, 128);
    EXPECT_EQ(Pack("AnalogMatrixProtocol", *parsed), R"({ "Protocol" : ")" + std::string(127, 'x') + "\" }");
    ExpectOneOrMany<CFG_ANALOG_MATRIX_PROTOCOL_INFO>("AnalogMatrixProtocol", R"({ "Protocol" : "p" })",
                                                     R"({ "Protocol" : "" })");
}

// ---- Switches and stations ----

TEST(SiteSwitch, ThereAndBack) {
    const std::string text = R"({ "Close" : 2, "Linkage" : 4, "Mode" : 1, "Open" : 3 })";
    for (const char* const command : {"Floodlight", "AirFan"}) {
        const auto parsed = Parse<CFG_SITE_SWITCH_INFO>(command, text);
        EXPECT_EQ(parsed->nMode, 1);
        EXPECT_EQ(parsed->nClose, 2);
        EXPECT_EQ(parsed->nOpen, 3);
        EXPECT_EQ(parsed->nLinkage, 4);
        EXPECT_EQ(Pack(command, *parsed), text);
        EXPECT_EQ(Parse<CFG_SITE_SWITCH_INFO>(command, R"({ "Open" : true })")->nOpen, 1);
        ExpectOneOrMany<CFG_SITE_SWITCH_INFO>(command, text,
                                              R"({ "Close" : 0, "Linkage" : 0, "Mode" : 0, "Open" : 0 })");
    }
}

TEST(LightGlobal, ThereAndBack) {
    EXPECT_EQ(Parse<CFG_ENABLE_INFO>("LightGlobal", R"({ "Enable" : true })")->bEnable, 1u);
    EXPECT_EQ(Parse<CFG_ENABLE_INFO>("LightGlobal", R"({ "Enable" : false })")->bEnable, 0u);
    EXPECT_EQ(Pack("LightGlobal", CFG_ENABLE_INFO{7}), R"({ "Enable" : true })");
    ExpectOneOrMany<CFG_ENABLE_INFO>("LightGlobal", R"({ "Enable" : true })", R"({ "Enable" : false })");
}

TEST(VTOInfo, ThereAndBack) {
    const std::string text =
        R"({ "Address" : "a1", "Enable" : true, "MachineAddress" : "m4", "MiddleNumber" : "n3", "Password" : "p6", )"
        R"("Port" : 2, "RingFile" : "f8", "RingVolume" : 9, "Type" : "t5", "Username" : "u7" })";
    const auto parsed = Parse<CFG_VTO_INFO>("VTOInfo", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_STREQ(parsed->szAddress, "a1");
    EXPECT_EQ(parsed->nPort, 2);
    EXPECT_STREQ(parsed->szMiddleNumber, "n3");
    EXPECT_STREQ(parsed->szMachineAddress, "m4");
    EXPECT_STREQ(parsed->szType, "t5");
    EXPECT_STREQ(parsed->szPassword, "p6");
    EXPECT_STREQ(parsed->szUsername, "u7");
    EXPECT_STREQ(parsed->szRingFile, "f8");
    EXPECT_EQ(parsed->nRingVolume, 9);
    EXPECT_EQ(Pack("VTOInfo", *parsed), text);
    ExpectOneOrMany<CFG_VTO_INFO>(
        "VTOInfo", text,
        R"({ "Address" : "", "Enable" : false, "MachineAddress" : "", "MiddleNumber" : "", "Password" : "", )"
        R"("Port" : 0, "RingFile" : "", "RingVolume" : 0, "Type" : "", "Username" : "" })");
    const auto cut = Parse<CFG_VTO_INFO>("VTOInfo", LongTexts({"Address", "MiddleNumber", "MachineAddress", "Type",
                                                               "Password", "Username", "RingFile"}));
    EXPECT_ROOM(cut, szAddress, 64);
    EXPECT_ROOM(cut, szMiddleNumber, 32);
    EXPECT_ROOM(cut, szMachineAddress, 128);
    EXPECT_ROOM(cut, szType, 32);
    EXPECT_ROOM(cut, szPassword, 32);
    EXPECT_ROOM(cut, szUsername, 32);
    EXPECT_ROOM(cut, szRingFile, 256);
}

} // namespace
} // namespace orrery::test
