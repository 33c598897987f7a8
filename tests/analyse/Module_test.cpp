// Modules of an analysis channel, where its pictures come from, and small settings of the same devices.
#include "analyse/AnalyseSource.h"
#include "analyse/TrafficSnapshot.h"
#include "orrery/analyse_modules.h"
#include "support/Call.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orrery::test {
namespace {

using Modules = CFG_ANALYSEMODULES_INFO;

std::unique_ptr<Modules> ReadModules(const std::string& list) {
    auto parsed = Parse<Modules>("VideoAnalyseModule", list);
    EXPECT_EQ(parsed.result, 1);
    EXPECT_EQ(parsed.length, sizeof(Modules));
    return std::move(parsed.record);
}
CFG_MODULE_INFO ReadModule(const std::string& members) {
    return ReadModules("[{" + members + "}]")->stuModules[0];
}
std::string Written(const CFG_MODULE_INFO& module) {
    auto record = Cleared<Modules>();
    record->nModuleNum = 1;
    record->stuModules[0] = module;
    return Pack("VideoAnalyseModule", *record);
}
bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

// What a clear module writes, and so every other one.
constexpr const char* kClear =
    R"([ { "AntiDisturbance" : false, "Backlight" : false, "ContourAssistantTrack" : false, )"
    R"("ObjectType" : "", "PtzPresetId" : 0, "Sensitivity" : 0, "Shadow" : false, )"
    R"("SnapShot" : false, "Type" : "" } ])";

TEST(VideoAnalyseModule, GoesRoundWhole) {
    const CFG_MODULE_INFO module = ReadModule(R"("Accuracy":1,"AntiDisturbance":true,"Attributes":["Age","Sex"],
        "Backgroud":"Highlight","Backlight":true,"Category":["Bus","Tractor"],"ContourAssistantTrack":true,
        "DetectBalance":2,"DetectRegion":[[3,4],[5,6]],"ExcludeRegion":[[[7,8]],[[9,10],[11,12]]],"MovingStep":13,
        "ObjectFilter":[{"ObjectType":"Human","SizeFilter":{"Type":"ByArea"}}],"ObjectType":"Vehicle",
        "PlateAnalyseMode":14,"PtzPresetId":15,"ScalingFactor":16,"Sensitivity":17,"Shadow":true,
        "SizeFilter":{"AreaCalibrateBoxs":[{"CenterPoint":[18,19],"Ratio":20.5}],"ByArea":true,"ByRatio":true,
        "BySize":true,"CalibrateBoxs":[{"CenterPoint":[21,22],"Ratio":23.5}],"MaxArea":24.5,"MaxAreaSize":[25,26],
        "MaxRatio":27.5,"MaxRatioSize":[28,29],"MaxSize":[30,31],"MeasureMode":"Metric","MinArea":32.5,
        "MinAreaSize":[33,34],"MinRatio":35.5,"MinRatioSize":[36,37],"MinSize":[38,39],
        "RatioCalibrateBoxs":[{"CenterPoint":[40,41],"Ratio":42.5}],"Type":"ByWidthHeight"},"SnapShot":true,
        "SpecialDetectRegion":[{"Property":["RegularBlink"],"SpecialRegion":[[43,44]]}],"TrackRegion":[[45,46]],
        "Type":"Gate")");
    EXPECT_STREQ(module.szObjectType, "Vehicle");
    EXPECT_EQ(module.bSnapShot, 1);
    EXPECT_EQ(module.bySensitivity, 17);
    EXPECT_EQ(module.byMeasureMode, CFG_MEASURE_METRIC);
    EXPECT_EQ(module.nDetectPoint, 2);
    EXPECT_EQ(module.stuDetectRegion[1].nX, 5);
    EXPECT_EQ(module.stuTrackRegion[0].nY, 46);
    EXPECT_EQ(module.byFilterType, CFG_FILTER_BY_WIDTH_HEIGHT);
    EXPECT_EQ(module.byBackgroud, CFG_BACKGROUND_HIGHLIGHT);
    EXPECT_EQ(module.bBySize, 1);
    EXPECT_EQ(module.stuMinSize.fHeight, 39.0f);
    EXPECT_EQ(module.stuMaxSize.fWidth, 30.0f);
    EXPECT_EQ(module.nExcludeRegionNum, 2);
    EXPECT_EQ(module.stuExcludeRegions[1].stuPoints[1].nX, 11);
    EXPECT_EQ(module.stuCalibrateBoxs[0].nCenterPointX, 21);
    EXPECT_EQ(module.byAccuracy, 1);
    EXPECT_EQ(module.byMovingStep, 13);
    EXPECT_EQ(module.byScalingFactor, 16);
    EXPECT_EQ(module.nDetectBalance, 2);
    EXPECT_EQ(module.dMinRatio, 35.5);
    EXPECT_EQ(module.dMaxRatio, 27.5);
    EXPECT_EQ(module.stuMaxRatioSize.fWidth, 28.0f);
    EXPECT_EQ(module.fMinArea, 32.5f);
    EXPECT_EQ(module.stuMinAreaSize.fHeight, 34.0f);
    EXPECT_EQ(module.stuAreaCalibrateBoxs[0].fRatio, 20.5f);
    EXPECT_EQ(module.stuRatioCalibrateBoxs[0].nCenterPointY, 41);
    EXPECT_EQ(module.nPtzPresetId, 15);
    EXPECT_EQ(module.nObjectFilterNum, 1);
    EXPECT_EQ(module.stuObjectFilters[0].stuSizeFilter.byFilterType, CFG_FILTER_BY_AREA);
    EXPECT_EQ(module.nSpecialRegionNum, 1);
    EXPECT_EQ(module.stuSpecialRegions[0].nProperties[0], CFG_SPECIAL_REGULAR_BLINK);
    EXPECT_EQ(module.nAttributeNum, 2);
    EXPECT_EQ(module.nPlateAnalyseMode, 14);
    EXPECT_EQ(module.nCategories[0], CFG_CATEGORY_BUS);
    EXPECT_STREQ(module.szType, "Gate");
    EXPECT_EQ(
        Written(module),
        R"([ { "Accuracy" : 1, "AntiDisturbance" : true, "Attributes" : [ "Age", "Sex" ], "Backgroud" : "Highlight", )"
        R"("Backlight" : true, "Category" : [ "Bus", "Tractor" ], "ContourAssistantTrack" : true, "DetectBalance" : 2, )"
        R"("DetectRegion" : [ [ 3, 4 ], [ 5, 6 ] ], )"
        R"("ExcludeRegion" : [ [ [ 7, 8 ] ], [ [ 9, 10 ], [ 11, 12 ] ] ], "MovingStep" : 13, )"
        R"("ObjectFilter" : [ { "ObjectType" : "Human", "SizeFilter" : { "Type" : "ByArea" } } ], )"
        R"("ObjectType" : "Vehicle", "PlateAnalyseMode" : 14, "PtzPresetId" : 15, "ScalingFactor" : 16, )"
        R"("Sensitivity" : 17, "Shadow" : true, "SizeFilter" : { "AreaCalibrateBoxs" : [ )"
        R"({ "CenterPoint" : [ 18, 19 ], "Ratio" : 20.50000000000000 } ], "ByArea" : true, "ByRatio" : true, )"
        R"("BySize" : true, "CalibrateBoxs" : [ { "CenterPoint" : [ 21, 22 ], "Ratio" : 23.50000000000000 } ], )"
        R"("MaxArea" : 24.50000000000000, "MaxAreaSize" : [ 25.00000000000000, 26.00000000000000 ], )"
        R"("MaxRatio" : 27.50000000000000, "MaxRatioSize" : [ 28.00000000000000, 29.00000000000000 ], )"
        R"("MaxSize" : [ 30.00000000000000, 31.00000000000000 ], "MeasureMode" : "Metric", )"
        R"("MinArea" : 32.50000000000000, "MinAreaSize" : [ 33.00000000000000, 34.00000000000000 ], )"
        R"("MinRatio" : 35.50000000000000, "MinRatioSize" : [ 36.00000000000000, 37.00000000000000 ], )"
        R"("MinSize" : [ 38.00000000000000, 39.00000000000000 ], "RatioCalibrateBoxs" : [ )"
        R"({ "CenterPoint" : [ 40, 41 ], "Ratio" : 42.50000000000000 } ], "Type" : "ByWidthHeight" }, )"
        R"("SnapShot" : true, "SpecialDetectRegion" : [ { "Property" : [ "RegularBlink" ], )"
        R"("SpecialRegion" : [ [ 43, 44 ] ] } ], "TrackRegion" : [ [ 45, 46 ] ], "Type" : "Gate" } ])");
}

TEST(VideoAnalyseModule, OnlyKeysThatWereThereAreWritten) {
    const CFG_MODULE_INFO module = ReadModule("");
    EXPECT_EQ(Written(module), kClear);
    CFG_MODULE_INFO flagged{};
    flagged.abFilterType = 1;
    flagged.byFilterType = 4; // no text
    EXPECT_EQ(Written(flagged), kClear);
}

TEST(VideoAnalyseModule, SixteenAreReadAndANullKeepsItsPlace) {
    std::string list = "[null,{\"Sensitivity\":1}";
    for (int i = 2; i < 20; ++i)
        list += ",{\"Sensitivity\":" + std::to_string(i) + "}";
    const auto modules = ReadModules(list + "]");
    EXPECT_EQ(modules->nModuleNum, 16);
    EXPECT_EQ(modules->stuModules[0].bySensitivity, 0);
    EXPECT_EQ(modules->stuModules[15].bySensitivity, 15);
    auto record = Cleared<Modules>();
    EXPECT_EQ(Pack("VideoAnalyseModule", *record), "[  ]");
    record->nModuleNum = -3;
    EXPECT_EQ(Pack("VideoAnalyseModule", *record), "[  ]");
    char text[20000];
    record->nModuleNum = 16;
    EXPECT_EQ(CLIENT_PacketData("VideoAnalyseModule", record.get(), sizeof(Modules), text, sizeof text), 1);
    record->nModuleNum = 17;
    EXPECT_EQ(CLIENT_PacketData("VideoAnalyseModule", record.get(), sizeof(Modules), text, sizeof text), 0);
}

TEST(VideoAnalyseModule, OnlyAFalseResultRefuses) {
    EXPECT_FALSE(ParseDocument<Modules>("VideoAnalyseModule", R"({"result":false,"params":{"table":[{}]}})"));
    const auto absent = ParseDocument<Modules>("VideoAnalyseModule", R"({"params":{"table":[{}]}})");
    EXPECT_TRUE(absent);
    EXPECT_EQ(absent->nModuleNum, 1);
    for (const char* table : {"null", "{}", "7"}) {
        const auto parsed = Parse<Modules>("VideoAnalyseModule", table);
        EXPECT_FALSE(parsed) << table;
        EXPECT_TRUE(parsed.isCleared()) << table;
    }
}

TEST(VideoAnalyseModule, EveryPointOfARegionCounts) {
    const CFG_MODULE_INFO module = ReadModule(R"("DetectRegion":[[1,2],null,[3],[4,5]],
        "ExcludeRegion":[[[1,2],[3],[4,5]]])");
    EXPECT_EQ(module.nDetectPoint, 4);
    EXPECT_EQ(module.stuDetectRegion[1].nX, 0);
    EXPECT_EQ(module.stuDetectRegion[2].nX, 0);
    EXPECT_EQ(module.stuDetectRegion[3].nX, 4);
    EXPECT_EQ(module.stuExcludeRegions[0].nPointNum, 2);
    std::string points = "[1,2]", regions = "[[1,2]]";
    for (int i = 1; i < 21; ++i)
        points += ",[3,4]";
    for (int i = 1; i < 11; ++i)
        regions += ",[" + points + "]";
    const CFG_MODULE_INFO most = ReadModule("\"TrackRegion\":[" + points + "],\"ExcludeRegion\":[" + regions + "]");
    EXPECT_EQ(most.nTrackPoint, 20);
    EXPECT_EQ(most.nExcludeRegionNum, 10);
    EXPECT_EQ(most.stuExcludeRegions[9].nPointNum, 20);
}

TEST(VideoAnalyseModule, TheFourthKindOfFilterStandsElsewhere) {
    CFG_MODULE_INFO module = ReadModule(R"("SizeFilter":{"Type":"ByRatio"})");
    EXPECT_EQ(module.abFilterType, 1);
    EXPECT_EQ(module.byFilterType, 0);
    module = ReadModule(R"("SizeFilter":{"Type":"ByRatio"},"ByRatio":{"Type":"byratio"})");
    EXPECT_EQ(module.byFilterType, CFG_FILTER_BY_RATIO);
    EXPECT_TRUE(Has(Written(module), R"("SizeFilter" : { "Type" : "ByRatio" })"));
    module = ReadModule(R"("SizeFilter":{"Type":"ByArea"},"ByRatio":{"Type":"ByRatio"})");
    EXPECT_EQ(module.byFilterType, CFG_FILTER_BY_RATIO);
    module = ReadModule(R"("ByRatio":{"Type":"ByRatio"})");
    EXPECT_EQ(module.abFilterType, 0);
    EXPECT_EQ(module.byFilterType, 0);
    module = ReadModule(R"("SizeFilter":{"Type":"ByArea"},"ByRatio":{"Type":"ByArea"})");
    EXPECT_EQ(module.byFilterType, CFG_FILTER_BY_AREA);
}

TEST(VideoAnalyseModule, BoundsAreReadBehindTheirSwitch) {
    const CFG_MODULE_INFO module =
        ReadModule(R"("SizeFilter":{"MinArea":1,"MaxRatio":2,"MinSize":[3],"ByRatio":false})");
    EXPECT_EQ(module.abMinArea, 0);
    EXPECT_EQ(module.abMaxRatio, 1);
    EXPECT_EQ(module.dMaxRatio, 2.0);
    EXPECT_EQ(module.abMinSize, 1);
    EXPECT_EQ(module.stuMinSize.fWidth, 0.0f);
}

TEST(VideoAnalyseModule, AnImagesSizeLosesItsFlagToItsNumbers) {
    EXPECT_EQ(ReadModule(R"("ObjectImageSize":{})").abObjectImageSize, 1);
    CFG_MODULE_INFO module = ReadModule(R"("ObjectImageSize":{"Width":1920})");
    EXPECT_EQ(module.abObjectImageSize, 0);
    EXPECT_EQ(module.nImageWidth, 1920.0f);
    module = ReadModule(R"("ObjectImageSize":{"Height":1080})");
    EXPECT_EQ(module.abObjectImageSize, 0);
    EXPECT_EQ(module.nImageHeight, 1080.0f);
    EXPECT_EQ(Written(module), kClear);
    module.abObjectImageSize = 1;
    EXPECT_TRUE(
        Has(Written(module), R"("ObjectImageSize" : { "Height" : 1080.000000000000, "Width" : 0.000000000000000 })"));
    EXPECT_EQ(ReadModule("").abObjectImageSize, 0);
}

TEST(VideoAnalyseModule, CategoriesGoBothWays) {
    EXPECT_EQ(ReadModule(R"("Category":["Tractor"])").nCategories[0], 54);
    EXPECT_EQ(ReadModule(R"("Category":"Bus")").nCategoryNum, 0);
    const CFG_MODULE_INFO module = ReadModule(R"("Category":["","mOTOR","Non-Motor","Spaceship",7,null,true,
        "MixedNewEnergyLargeCar"])");
    EXPECT_EQ(module.nCategoryNum, 8);
    const std::int32_t codes[] = {0, 1, 2, 0, 0, 0, 0, 64};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(module.nCategories[i], codes[i]) << i;
    CFG_MODULE_INFO written{};
    written.nCategoryNum = 65;
    for (std::int32_t i = 0; i < 65; ++i)
        written.nCategories[i] = i;
    const std::string text = Written(written);
    const CFG_MODULE_INFO again = ReadModule(text.substr(3, text.size() - 6)); // without [ { and } ]
    EXPECT_EQ(again.nCategoryNum, 65);
    for (std::int32_t i = 0; i < 65; ++i)
        EXPECT_EQ(again.nCategories[i], i == 20 ? 54 : i);
    written.nCategories[0] = 65;
    written.nCategories[1] = 3;
    written.nCategories[2] = -1;
    written.nCategoryNum = 3;
    EXPECT_TRUE(Has(Written(written), R"("Category" : [ null, "Bus" ])"));
    std::string many = "\"Bus\"";
    for (int i = 1; i < 129; ++i)
        many += ",\"Bus\"";
    EXPECT_EQ(ReadModule("\"Category\":[" + many + "]").nCategoryNum, 128);
}

TEST(VideoAnalyseModule, CodesAndListsOfAModule) {
    EXPECT_EQ(ReadModule(R"("Backgroud":"normal")").byBackgroud, CFG_BACKGROUND_NORMAL);
    EXPECT_EQ(ReadModule(R"("Backgroud":"HIGHLIGHT")").byBackgroud, CFG_BACKGROUND_HIGHLIGHT);
    CFG_MODULE_INFO module = ReadModule(R"("Backgroud":"Dark")");
    EXPECT_EQ(module.abBackgroud, 1);
    EXPECT_EQ(module.byBackgroud, 0);
    EXPECT_TRUE(Has(Written(module), R"("Backgroud" : "Normal")"));
    module.byBackgroud = 2;
    EXPECT_FALSE(Has(Written(module), "Backgroud"));
    module =
        ReadModule(R"("SpecialDetectRegion":[{"Property":["Highlight",null,"other","irregularblink","Highlight"]}])");
    EXPECT_EQ(module.stuSpecialRegions[0].nPropertyNum, 3);
    EXPECT_EQ(module.stuSpecialRegions[0].nProperties[0], CFG_SPECIAL_HIGHLIGHT);
    EXPECT_EQ(module.stuSpecialRegions[0].nProperties[1], 0);
    EXPECT_EQ(module.stuSpecialRegions[0].nProperties[2], 0);
    EXPECT_EQ(module.stuSpecialRegions[0].nProperties[3], CFG_SPECIAL_IRREGULAR_BLINK);
    module.stuSpecialRegions[0].nPropertyNum = 4;
    EXPECT_TRUE(Has(Written(module), R"("Property" : [ "Highlight", null, null, "IrregularBlink" ])"));
    module.stuSpecialRegions[0].nProperties[3] = 4;
    EXPECT_TRUE(Has(Written(module), R"("Property" : [ "Highlight" ])"));
    module = ReadModule("\"Type\":\"0123456789abcdefg\",\"Attributes\":[\"" + std::string(130, 'a') + "\",null,\"b\"]");
    EXPECT_STREQ(module.szType, "0123456789abcde");
    EXPECT_EQ(module.szAttributes[0], std::string(127, 'a'));
    EXPECT_EQ(module.nAttributeNum, 3);
    EXPECT_STREQ(module.szAttributes[1], "");
    std::string seventeen = "{}";
    for (int i = 1; i < 17; ++i)
        seventeen += ",{}";
    module = ReadModule("\"ObjectFilter\":[" + seventeen + "],\"SpecialDetectRegion\":[" + seventeen
                        + "],\"Attributes\":[" + seventeen + "],\"SizeFilter\":{\"CalibrateBoxs\":[null," + seventeen
                        + "],\"AreaCalibrateBoxs\":[" + seventeen + "],\"RatioCalibrateBoxs\":[" + seventeen + "]}");
    EXPECT_EQ(module.nObjectFilterNum, 16);
    EXPECT_EQ(module.nSpecialRegionNum, 10);
    EXPECT_EQ(module.nAttributeNum, 16);
    EXPECT_EQ(module.nCalibrateBoxNum, 9); // ten places, one of them a null
    EXPECT_EQ(module.nAreaCalibrateBoxNum, 10);
    EXPECT_EQ(module.nRatioCalibrateBoxNum, 10);
}

// ---- "VideoAnalyseSource" and "VideoAnalyseWhole"
// --------------------------------------------------------------------

TEST(VideoAnalyseSource, GoesRoundWhole) {
    Records<CFG_ANALYSESOURCE_INFO> record(1, 0x11);
    CFG_REMOTE_VIDEO_INPUT inputs[2] = {};
    CFG_ANALYSESOURCE_INFO before = record[0];
    before.stuDeviceInfo.pVideoInputs = inputs;
    before.stuDeviceInfo.nMaxVideoInputs = 2;
    record.Set(0, before);
    ASSERT_EQ(ParseDocument("VideoAnalyseSource", R"({"result":false,"params":{"table":{"Channel":1,"Device":"d",
        "DeviceInfo":{"Port":2,"VideoInputs":[{"Name":"v"}]},"Enable":true,
        "FileStreamInfo":{"FilePath":"f","FileStreamType":"Picture"},"SourceType":"FileStream","Stream":"Extra2"}}})",
                            record),
              (Answer{1, sizeof(CFG_ANALYSESOURCE_INFO)}));
    CFG_ANALYSESOURCE_INFO source = record[0];
    EXPECT_EQ(source.bEnable, 1);
    EXPECT_EQ(source.nChannel, 1);
    EXPECT_EQ(source.nStream, CFG_ANALYSE_STREAM_EXTRA2);
    EXPECT_STREQ(source.szDevice, "d");
    EXPECT_EQ(source.abDeviceInfo, 1);
    EXPECT_EQ(source.stuDeviceInfo.nPort, 2);
    EXPECT_EQ(source.stuDeviceInfo.nRetVideoInputs, 1);
    EXPECT_STREQ(inputs[0].szName, "v");
    EXPECT_EQ(source.nSourceType, CFG_ANALYSE_SOURCE_FILE);
    EXPECT_STREQ(source.szFilePath, "f");
    EXPECT_EQ(source.nFileStreamType, CFG_ANALYSE_FILE_PICTURE);
    source.abDeviceInfo = 0;
    EXPECT_EQ(Pack("VideoAnalyseSource", source),
              R"({ "Channel" : 1, "Device" : "d", "Enable" : true, )"
              R"("FileStreamInfo" : { "FilePath" : "f", "FileStreamType" : "Picture" }, )"
              R"("SourceType" : "FileStream", "Stream" : "Extra2" })");
    source.abDeviceInfo = 1;
    EXPECT_TRUE(Has(Pack("VideoAnalyseSource", source), "\"DeviceInfo\" : { "));
    source.nSourceType = CFG_ANALYSE_SOURCE_REAL;
    EXPECT_FALSE(Has(Pack("VideoAnalyseSource", source), "FileStream"));
}

TEST(VideoAnalyseSource, IsClearedBeforeItIsRead) {
    const Records<CFG_ANALYSESOURCE_INFO> record(1, 0x11);
    CFG_ANALYSESOURCE_INFO clear = {};
    clear.stuDeviceInfo.pVideoInputs = record[0].stuDeviceInfo.pVideoInputs;
    clear.stuDeviceInfo.nMaxVideoInputs = record[0].stuDeviceInfo.nMaxVideoInputs;
    clear.stuDeviceInfo.dwSize = sizeof(CFG_REMOTE_DEVICE_INFO);
    ASSERT_EQ(ParseTable("VideoAnalyseSource", R"({"Stream":"Extra9","SourceType":"x"})", record).result, 1);
    EXPECT_EQ(record[0].stuDeviceInfo.pVideoInputs, clear.stuDeviceInfo.pVideoInputs);
    EXPECT_EQ(record[0].nStream, 0);
    EXPECT_EQ(record[0].nSourceType, 0);
    EXPECT_EQ(record[0].nChannel, 0);
    EXPECT_EQ(record[0].abDeviceInfo, 0);
    EXPECT_STREQ(record[0].szFilePath, "");
    EXPECT_EQ(ParseTable("VideoAnalyseSource", "null", record), kRefused);
    EXPECT_EQ(ParseDocument("VideoAnalyseSource", "{", record), kRefused);
}

TEST(VideoAnalyseSource, CodesGoBothWays) {
    const char* const streams[] = {"Snapshot", "Main", "Extra1", "Extra2", "Extra3", "Object"};
    for (std::int32_t i = 0; i < 6; ++i) {
        const auto source =
            Parse<CFG_ANALYSESOURCE_INFO>("VideoAnalyseSource", std::string("{\"Stream\":\"") + streams[i] + "\"}");
        EXPECT_EQ(source->nStream, i);
        EXPECT_TRUE(Has(Pack("VideoAnalyseSource", *source), std::string("\"Stream\" : \"") + streams[i] + "\""));
    }
    auto source = Cleared<CFG_ANALYSESOURCE_INFO>();
    source->nStream = 6;
    source->nSourceType = 2;
    EXPECT_EQ(Pack("VideoAnalyseSource", *source), R"({ "Channel" : 0, "Device" : "", "Enable" : false })");
    source->nSourceType = CFG_ANALYSE_SOURCE_FILE;
    source->nFileStreamType = CFG_ANALYSE_FILE_RECORD;
    EXPECT_TRUE(Has(Pack("VideoAnalyseSource", *source), R"("FileStreamType" : "Record")"));
    source->nFileStreamType = 3;
    EXPECT_FALSE(Has(Pack("VideoAnalyseSource", *source), "FileStreamType"));
    EXPECT_EQ(Parse<CFG_ANALYSESOURCE_INFO>("VideoAnalyseSource", R"({"SourceType":"filestream"})")->nSourceType, 1);
    EXPECT_EQ(Parse<CFG_ANALYSESOURCE_INFO>("VideoAnalyseSource", R"({"SourceType":"RealStream"})")->nSourceType, 0);
    const auto type = [](const char* text) {
        return Parse<CFG_ANALYSESOURCE_INFO>("VideoAnalyseSource",
                                             std::string(R"({"FileStreamInfo":{"FileStreamType":")") + text + "\"}}")
            ->nFileStreamType;
    };
    EXPECT_EQ(type("record"), CFG_ANALYSE_FILE_RECORD);
    EXPECT_EQ(type("Picture"), CFG_ANALYSE_FILE_PICTURE);
    EXPECT_EQ(type("Song"), 0);
}

// Texts of devices are counted in bytes before they are converted.
TEST(VideoAnalyseSource, LongTextsAreCutBeforeTheyAreConverted) {
    const auto bytes = [](const record::Table& table, std::string_view name) {
        for (const record::Field& row : table) {
            if (row.name == name) return static_cast<int>(row.firstBytes);
        }
        return -1;
    };
    EXPECT_EQ(bytes(kAnalyseSource, "szDevice"), 192);
    EXPECT_EQ(bytes(kTrafficSnapshot, "szDeviceAddress"), 384);
    EXPECT_EQ(bytes(kAnalyseSource, "szFilePath"), 0);
    const auto source =
        Parse<CFG_ANALYSESOURCE_INFO>("VideoAnalyseSource", "{\"Device\":\"" + std::string(200, 'a') + "\"}");
    EXPECT_EQ(source->szDevice, std::string(127, 'a'));
}

TEST(VideoAnalyseWhole, GoesBothWays) {
    const char* const types[] = {"Digital", "Anolog", "Both"};
    for (std::int32_t i = 0; i < 3; ++i) {
        const auto whole = Parse<CFG_ANALYSEWHOLE_INFO>("VideoAnalyseWhole",
                                                        std::string("{\"VideoChannelType\":\"") + types[i] + "\"}");
        EXPECT_EQ(whole->nVideoChannelType, i);
        EXPECT_EQ(Pack("VideoAnalyseWhole", *whole), std::string("{ \"VideoChannelType\" : \"") + types[i] + "\" }");
    }
    for (const char* table : {R"({"VideoChannelType":"Analog"})", "{}"}) {
        const auto whole = Parse<CFG_ANALYSEWHOLE_INFO>("VideoAnalyseWhole", table);
        EXPECT_TRUE(whole);
        EXPECT_EQ(whole->nVideoChannelType, 0);
    }
    EXPECT_EQ(Pack("VideoAnalyseWhole", CFG_ANALYSEWHOLE_INFO{3}), "null");
    EXPECT_FALSE(ParseDocument<CFG_ANALYSEWHOLE_INFO>("VideoAnalyseWhole", R"({"params":{"table":{}}})"));
    EXPECT_FALSE(Parse<CFG_ANALYSEWHOLE_INFO>("VideoAnalyseWhole", "null"));
}

// ---- "SnapSource" --------------------------------------------------------------------------------------------------

TEST(SnapSource, OneIsReadAndManyAreWritten) {
    const auto parsed = Parse<CFG_SNAPSOURCE_INFO>("SnapSource", R"({"Channel":1,"Device":")" + std::string(70, 'a')
                                                                     + R"(","Enable":true,"LinkVideoChannel":2})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->nCount, 1);
    EXPECT_EQ(parsed->stuEntries[0].bEnable, 1);
    EXPECT_EQ(parsed->stuEntries[0].nChannel, 1);
    EXPECT_EQ(parsed->stuEntries[0].szDevice, std::string(63, 'a'));
    EXPECT_EQ(parsed->stuEntries[0].nLinkVideoChannel, 2);
    auto record = Cleared<CFG_SNAPSOURCE_INFO>();
    EXPECT_EQ(Pack("SnapSource", *record), "[  ]");
    record->nCount = 1;
    constexpr const char* kFirst = R"({ "Channel" : 3, "Device" : "d", "Enable" : true, "LinkVideoChannel" : 4 })";
    record->stuEntries[0] = {1, "d", 3, 4};
    EXPECT_EQ(Pack("SnapSource", *record), kFirst);
    record->nCount = 2;
    EXPECT_EQ(Pack("SnapSource", *record),
              std::string("[ ") + kFirst
                  + R"(, { "Channel" : 0, "Device" : "", "Enable" : false, "LinkVideoChannel" : 0 } ])");
    record->nCount = -1;
    EXPECT_EQ(Pack("SnapSource", *record), "[  ]");
    std::vector<char> text(100000);
    const auto pack = [&] {
        return CLIENT_PacketData("SnapSource", record.get(), sizeof *record, text.data(), 100000);
    };
    record->nCount = 256;
    EXPECT_EQ(pack(), 1);
    record->nCount = 257;
    EXPECT_EQ(pack(), 0);
}

TEST(SnapSource, ATableOfAnyTypeIsOneEntry) {
    for (const char* table : {"[{\"Channel\":1}]", "7", "{}"}) {
        const auto parsed = Parse<CFG_SNAPSOURCE_INFO>("SnapSource", table);
        EXPECT_TRUE(parsed) << table;
        EXPECT_EQ(parsed->nCount, 1) << table;
        EXPECT_EQ(parsed->stuEntries[0].nChannel, 0) << table;
    }
    const auto none = Parse<CFG_SNAPSOURCE_INFO>("SnapSource", "null");
    EXPECT_TRUE(none);
    EXPECT_TRUE(none.isCleared());
    EXPECT_TRUE(ParseDocument<CFG_SNAPSOURCE_INFO>("SnapSource", R"({"result":false,"params":{"table":{}}})"));
    EXPECT_FALSE(ParseDocument<CFG_SNAPSOURCE_INFO>("SnapSource", "{"));
}

// ---- "General", "RainBrush", "IntelliTrackScene"
// ---------------------------------------------------------------------

TEST(General, GoesRoundButForItsId) {
    const auto general = Parse<CFG_GENERAL_INFO>("General", R"({"LocalNo":1,"LockLoginEnable":true,"LockLoginTimes":2,
        "LoginFailLockTime":3,"MachineAddress":"a","MachineGroup":"g","MachineID":"i","MachineName":"n"})");
    ASSERT_TRUE(general);
    EXPECT_EQ(general->nLocalNo, 1);
    EXPECT_STREQ(general->szMachineName, "n");
    EXPECT_STREQ(general->szMachineAddress, "a");
    EXPECT_STREQ(general->szMachineGroup, "g");
    EXPECT_STREQ(general->szMachineID, "i");
    EXPECT_EQ(general->nLockLoginTimes, 2);
    EXPECT_EQ(general->nLoginFailLockTime, 3);
    EXPECT_EQ(general->bLockLoginEnable, 1);
    EXPECT_EQ(Pack("General", *general),
              R"({ "LocalNo" : 1, "LockLoginEnable" : true, "LockLoginTimes" : 2, "LoginFailLockTime" : 3, )"
              R"("MachineAddress" : "a", "MachineGroup" : "g", "MachineName" : "n" })");
    EXPECT_FALSE(Parse<CFG_GENERAL_INFO>("General", "null"));
    EXPECT_TRUE(ParseDocument<CFG_GENERAL_INFO>("General", R"({"result":false,"params":{"table":{}}})"));
}

TEST(RainBrush, ReadsSectionsFromTextsOnly) {
    const auto brush =
        Parse<CFG_RAINBRUSH_INFO>("RainBrush", R"({"Enable":true,"Interval":4000000000,"ProtectEnable":true,
        "ProtectTime":5,"SpeedRate":6,"TimeSchedule":[["1 01:02:03-04:05:06",7,"1 08:00:00-09:00:00","","","",
        "1 10:00:00-11:00:00"],[],[],[],[],[],["0 12:00:00-13:00:00"],["1 14:00:00-15:00:00"]]})");
    ASSERT_TRUE(brush);
    EXPECT_EQ(brush->bEnable, 1);
    EXPECT_EQ(brush->nInterval, 4000000000u);
    EXPECT_EQ(brush->bProtectEnable, 1);
    EXPECT_EQ(brush->nProtectTime, 5u);
    EXPECT_EQ(brush->bySpeedRate, 6);
    EXPECT_EQ(brush->stuTimeSchedule[0][0].nEndSec, 6);
    EXPECT_EQ(brush->stuTimeSchedule[0][1].nBeginHour, 0);
    EXPECT_EQ(brush->stuTimeSchedule[0][2].nBeginHour, 8);
    EXPECT_EQ(brush->stuTimeSchedule[1][0].nBeginHour, 0);
    EXPECT_EQ(brush->stuTimeSchedule[6][0].nEndHour, 13);
    std::string day = "[ \"0 00:00:00-00:00:00\"", week;
    for (int i = 1; i < 6; ++i)
        day += ", \"0 00:00:00-00:00:00\"";
    day += " ]";
    for (int i = 0; i < 7; ++i)
        week += (i == 0 ? "" : ", ") + day;
    EXPECT_EQ(Pack("RainBrush", CFG_RAINBRUSH_INFO{}),
              R"({ "Enable" : false, "Interval" : 0, "ProtectEnable" : false, "ProtectTime" : 0, "SpeedRate" : 0, )"
              R"("TimeSchedule" : [ )"
                  + week + " ] }");
}

TEST(IntelliTrackScene, GoesRoundWhole) {
    const auto parsed = Parse<CFG_INTELLITRACKSCENE_INFO>("IntelliTrackScene", R"({"CameraHeight":1.5,"Category":"c",
        "Enable":true,"FullScene":{"AlarmDelay":2,"Duration":3,"PresetId":4},"IdleDelay":5,"MaxZoom":6.5,
        "MultiScene":{"AlarmDelay":7,"PriorMode":"Switch","TourPath":[{"Duration":8,"PresetId":9},{"Duration":10}]},
        "Scene":[{"Direction":"WestToEast","Duration":11,"MaxZoom":12.5,"Name":"n","PositionLimit":{"Bottom":13,
        "Enable":true,"Left":14,"Right":15,"Top":16,"Type":17},"PresetId":18,"Regression":19}],
        "SingleScene":{"AlarmDelay":20,"PresetId":21},"TrackMode":"Classroom","Type":22})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_EQ(parsed->nType, 22);
    EXPECT_EQ(parsed->dMaxZoom, 6.5);
    EXPECT_STREQ(parsed->szCategory, "c");
    EXPECT_EQ(parsed->dCameraHeight, 1.5);
    EXPECT_EQ(parsed->nIdleDelay, 5);
    EXPECT_EQ(parsed->nTrackMode, CFG_TRACK_MODE_CLASSROOM);
    EXPECT_EQ(parsed->nSingleAlarmDelay, 20);
    EXPECT_EQ(parsed->nSinglePresetId, 21);
    EXPECT_EQ(parsed->nPriorMode, CFG_TRACK_PRIOR_SWITCH);
    EXPECT_EQ(parsed->nMultiAlarmDelay, 7);
    EXPECT_EQ(parsed->nTourPathNum, 2);
    EXPECT_EQ(parsed->stuTourPath[0].nPresetId, 9);
    EXPECT_EQ(parsed->stuTourPath[1].nDuration, 10);
    EXPECT_EQ(parsed->nFullPresetId, 4);
    EXPECT_EQ(parsed->nFullAlarmDelay, 2);
    EXPECT_EQ(parsed->nFullDuration, 3);
    EXPECT_EQ(parsed->nSceneNum, 1);
    const CFG_TRACK_SCENE& scene = parsed->stuScenes[0];
    EXPECT_EQ(scene.nPresetId, 18);
    EXPECT_STREQ(scene.szName, "n");
    EXPECT_EQ(scene.nDuration, 11);
    EXPECT_EQ(scene.dMaxZoom, 12.5);
    EXPECT_EQ(scene.nDirection, CFG_TRACK_WEST_TO_EAST);
    EXPECT_EQ(scene.stuPositionLimit.bEnable, 1);
    EXPECT_EQ(scene.stuPositionLimit.nType, 17);
    EXPECT_EQ(scene.stuPositionLimit.nTop, 16);
    EXPECT_EQ(scene.stuPositionLimit.nBottom, 13);
    EXPECT_EQ(scene.stuPositionLimit.nLeft, 14);
    EXPECT_EQ(scene.stuPositionLimit.nRight, 15);
    EXPECT_EQ(scene.nRegression, 19);
    EXPECT_EQ(Pack("IntelliTrackScene", *parsed),
              R"({ "CameraHeight" : 1.500000000000000, "Category" : "c", "Enable" : true, )"
              R"("FullScene" : { "AlarmDelay" : 2, "Duration" : 3, "PresetId" : 4 }, "IdleDelay" : 5, )"
              R"("MaxZoom" : 6.500000000000000, "MultiScene" : { "AlarmDelay" : 7, "PriorMode" : "Switch", )"
              R"("TourPath" : [ { "Duration" : 8, "PresetId" : 9 }, { "Duration" : 10, "PresetId" : 0 } ] }, )"
              R"("Scene" : [ { "Direction" : "WestToEast", "Duration" : 11, "MaxZoom" : 12.50000000000000, )"
              R"("Name" : "n", "PositionLimit" : { "Bottom" : 13, "Enable" : true, "Left" : 14, "Right" : 15, )"
              R"("Top" : 16, "Type" : 17 }, "PresetId" : 18, "Regression" : 19 } ], )"
              R"("SingleScene" : { "AlarmDelay" : 20, "PresetId" : 21 }, "TrackMode" : "Classroom", "Type" : 22 })");
}

TEST(IntelliTrackScene, CodesAndLists) {
    const auto read = [](const std::string& table) {
        return Parse<CFG_INTELLITRACKSCENE_INFO>("IntelliTrackScene", table);
    };
    const char* const modes[] = {"InDoor", "OutDoor", "Classroom"};
    for (std::int32_t i = 0; i < 3; ++i) {
        const auto parsed = read(std::string("{\"TrackMode\":\"") + modes[i] + "\"}");
        EXPECT_EQ(parsed->nTrackMode, i + 1);
        EXPECT_TRUE(Has(Pack("IntelliTrackScene", *parsed), std::string("\"TrackMode\" : \"") + modes[i] + "\""));
    }
    const char* const directions[] = {"Approach",   "Leave",        "Both",         "EastToWest",
                                      "WestToEast", "SouthToNorth", "NorthToSouth", "Other"};
    for (std::int32_t i = 0; i < 8; ++i) {
        const auto parsed = read(std::string("{\"Scene\":[{\"Direction\":\"") + directions[i] + "\"}]}");
        EXPECT_EQ(parsed->stuScenes[0].nDirection, i + 1);
        EXPECT_TRUE(Has(Pack("IntelliTrackScene", *parsed), std::string("\"Direction\" : \"") + directions[i] + "\""));
    }
    EXPECT_EQ(read(R"({"MultiScene":{"PriorMode":"detect"}})")->nPriorMode, CFG_TRACK_PRIOR_DETECT);
    const auto unknown = read(R"({"TrackMode":"x","MultiScene":{"PriorMode":"y"},"Scene":[{"Direction":"z"}]})");
    EXPECT_EQ(unknown->nTrackMode, 0);
    EXPECT_EQ(unknown->nPriorMode, 0);
    EXPECT_EQ(unknown->stuScenes[0].nDirection, 0);
    const std::string written = Pack("IntelliTrackScene", *unknown);
    EXPECT_FALSE(Has(written, "TrackMode") || Has(written, "PriorMode") || Has(written, "Direction"));
    std::string many = "{}";
    for (int i = 1; i < 40; ++i)
        many += ",{}";
    const auto most = read("{\"Scene\":[" + many + "],\"MultiScene\":{\"TourPath\":[" + many + "]}}");
    EXPECT_EQ(most->nSceneNum, 10);
    EXPECT_EQ(most->nTourPathNum, 32);
}

} // namespace
} // namespace orrery::test
