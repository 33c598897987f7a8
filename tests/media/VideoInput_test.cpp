// Sensor settings by topic: exposure, backlight, fog, metering, day and night.
#include "orrery/video_input_topics.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// ---- "VideoInExposure" ----

constexpr Answer kExposureRead{1, sizeof(CFG_VIDEOIN_EXPOSURE_INFO)};

struct Exposure {
    explicit Exposure(std::uint32_t room, int fill = 0x11) : info(1), items(room, fill) {
        info.Set(0, {room, 99, reinterpret_cast<CFG_VIDEOIN_EXPOSURE_ITEM*>(items.data())});
    }
    Answer Parse(const std::string& table) const { return ParseTable("VideoInExposure", table, info); }
    std::uint32_t count() const { return info[0].nReturnCount; }
    void SetCount(std::uint32_t count) {
        CFG_VIDEOIN_EXPOSURE_INFO record = info[0];
        record.nReturnCount = count;
        info.Set(0, record);
    }

    Records<CFG_VIDEOIN_EXPOSURE_INFO> info;
    Records<CFG_VIDEOIN_EXPOSURE_ITEM> items;
};

constexpr const char* kExposure =
    R"({"SlowShutter":true,"Mode":1,"AntiFlicker":2,"Compensation":3,"AutoGainMax":4,"Gain":5,"SlowAutoExposure":6,)"
    R"("Speed":-7,"SlowSpeed":8,"Iris":9,"Backlight":10,"WideDynamicRange":11,"WideDynamicRangeMode":12,)"
    R"("GlareInhibition":13,"DoubleExposure":14,"RecoveryTime":15,"Value1":16.5,"Value2":17.25,)"
    R"("BacklightRegion":[18,19,20,21],"IrisMin":22,"IrisMax":23,"GainMin":24,"GainMax":25})";
constexpr const char* kExposureText =
    R"({ "AntiFlicker" : 2, "AutoGainMax" : 4, "Backlight" : 10, "BacklightRegion" : [ 18, 19, 20, 21 ], )"
    R"("Compensation" : 3, "DoubleExposure" : 14, "Gain" : 5, "GainMax" : 25, "GainMin" : 24, )"
    R"("GlareInhibition" : 13, "Iris" : 9, "IrisMax" : 23, "IrisMin" : 22, "Mode" : 1, "RecoveryTime" : 15, )"
    R"("SlowAutoExposure" : 6, "SlowShutter" : true, "SlowSpeed" : 8, "Speed" : -7, "Value1" : 16.50000000000000, )"
    R"("Value2" : 17.25000000000000, "WideDynamicRange" : 11, "WideDynamicRangeMode" : 12 })";

TEST(VideoInExposure, ReadsAndWritesAllKeys) {
    const Exposure exposure(3);
    ASSERT_EQ(exposure.Parse("[" + std::string(kExposure) + "," + kExposure + "]"), kExposureRead);
    EXPECT_EQ(exposure.count(), 2u);
    const CFG_VIDEOIN_EXPOSURE_ITEM item = exposure.items[1];
    EXPECT_EQ(item.bSlowShutter, 1u);
    EXPECT_EQ(item.byMode, 1);
    EXPECT_EQ(item.byAntiFlicker, 2);
    EXPECT_EQ(item.byCompensation, 3);
    EXPECT_EQ(item.byAutoGainMax, 4);
    EXPECT_EQ(item.byGain, 5);
    EXPECT_EQ(item.bySlowAutoExposure, 6);
    EXPECT_EQ(item.nSpeed, -7);
    EXPECT_EQ(item.bySlowSpeed, 8);
    EXPECT_EQ(item.byIris, 9);
    EXPECT_EQ(item.byBacklight, 10);
    EXPECT_EQ(item.byWideDynamicRange, 11);
    EXPECT_EQ(item.byWideDynamicRangeMode, 12);
    EXPECT_EQ(item.byGlareInhibition, 13);
    EXPECT_EQ(item.byDoubleExposure, 14);
    EXPECT_EQ(item.nRecoveryTime, 15);
    EXPECT_EQ(item.fValue1, 16.5F);
    EXPECT_EQ(item.fValue2, 17.25F);
    EXPECT_EQ(item.nBacklightRegion[0], 18);
    EXPECT_EQ(item.nBacklightRegion[3], 21);
    EXPECT_EQ(item.byIrisMin, 22);
    EXPECT_EQ(item.byIrisMax, 23);
    EXPECT_EQ(item.byGainMin, 24);
    EXPECT_EQ(item.byGainMax, 25);
    EXPECT_EQ(PackAll("VideoInExposure", exposure.info),
              "[ " + std::string(kExposureText) + ", " + kExposureText + " ]");
}

TEST(VideoInExposure, KeepsWhatTheItemsHeldWhereKeysAreAbsent) {
    const Exposure exposure(2);
    ASSERT_EQ(exposure.Parse(R"([{"Gain":5,"Iris":null,"BacklightRegion":[1,2,3]},null])"), kExposureRead);
    EXPECT_EQ(exposure.count(), 2u);
    EXPECT_EQ(exposure.items[0].byGain, 5);
    EXPECT_EQ(exposure.items[0].byIris, 0x11);
    EXPECT_EQ(exposure.items[0].nBacklightRegion[0], 0x11111111);
    EXPECT_EQ(exposure.items[1].nSpeed, 0x11111111);
}

TEST(VideoInExposure, ReadsNoMoreThanThereIsRoomFor) {
    const Exposure exposure(2);
    ASSERT_EQ(exposure.Parse(R"([{"Gain":1},{"Gain":2},{"Gain":3}])"), kExposureRead);
    EXPECT_EQ(exposure.count(), 2u);
    EXPECT_EQ(exposure.items[1].byGain, 2);
    ASSERT_EQ(exposure.Parse("[]"), kExposureRead);
    EXPECT_EQ(exposure.count(), 0u);
}

TEST(VideoInExposure, ChangesNothingWithoutAList) {
    for (const char* table : {"null", "{}", kExposure, "7", "\"x\""}) {
        const Exposure exposure(1);
        EXPECT_EQ(exposure.Parse(table), kExposureRead) << table;
        EXPECT_EQ(exposure.count(), 99u);
        EXPECT_TRUE(exposure.items.isAll(0x11));
    }
    const Exposure exposure(1);
    EXPECT_EQ(ParseDocument("VideoInExposure", "[", exposure.info), kRefused);
    EXPECT_EQ(exposure.count(), 99u);
    EXPECT_EQ(ParseDocument("VideoInExposure", R"({"result":false,"params":{"table":[{"Gain":8}]}})", exposure.info),
              kExposureRead);
    EXPECT_EQ(exposure.items[0].byGain, 8);
}

TEST(VideoInExposure, NeedsAnArrayWithRoom) {
    CFG_VIDEOIN_EXPOSURE_ITEM items[2] = {};
    for (const CFG_VIDEOIN_EXPOSURE_INFO& bad :
         {CFG_VIDEOIN_EXPOSURE_INFO{0, 1, items}, CFG_VIDEOIN_EXPOSURE_INFO{2, 1, nullptr}}) {
        Records<CFG_VIDEOIN_EXPOSURE_INFO> info(1);
        info.Set(0, bad);
        EXPECT_EQ(ParseTable("VideoInExposure", "[{}]", info), kRefused);
        EXPECT_EQ(PackAll("VideoInExposure", info), kFailed);
    }
    for (const std::uint32_t count : {0u, 3u, 0xFFFFFFFFu}) {
        Records<CFG_VIDEOIN_EXPOSURE_INFO> info(1);
        info.Set(0, {2, count, items});
        EXPECT_EQ(PackAll("VideoInExposure", info), kFailed) << count;
    }
}

TEST(VideoInExposure, IsSlowAtExactlyOne) {
    Exposure exposure(2, 0);
    for (const std::uint32_t flag : {0u, 1u, 2u}) {
        CFG_VIDEOIN_EXPOSURE_ITEM item{};
        item.bSlowShutter = flag;
        exposure.items.Set(1, item);
        exposure.SetCount(2);
        const std::string text = PackAll("VideoInExposure", exposure.info);
        EXPECT_EQ(text.find("\"SlowShutter\" : true") != std::string::npos, flag == 1) << flag;
    }
    const std::string text = PackAll("VideoInExposure", exposure.info);
    const auto pack = [&](std::size_t room) {
        return PackBytes("VideoInExposure", exposure.info.data(), exposure.info.size(), room);
    };
    EXPECT_EQ(pack(text.size() + 1), text + "\n");
    EXPECT_EQ(pack(text.size()), kFailed);
}

// ---- "VideoInBacklight" ----

using Backlights = Records<CFG_VIDEOIN_BACKLIGHT_INFO>;
constexpr std::uint32_t kBacklight = sizeof(CFG_VIDEOIN_BACKLIGHT_INFO);

TEST(VideoInBacklight, ReadsEveryKeyAndWritesThoseOfTheMode) {
    const Backlights record(1, 0x11);
    ASSERT_EQ(ParseTable("VideoInBacklight",
                         R"([{"Mode":"Backlight","BacklightMode":"Region","BacklightRegion":[1,2,3,4],)"
                         R"("WideDynamicRange":5,"GlareInhibition":6,"IntensityMode":"ManualIntensity","Intensity":7},)"
                         R"({"Mode":"SSA","IntensityMode":"ManualIntensity","Intensity":8},{"Mode":"WideDynamic",)"
                         R"("WideDynamicRange":9,"GlareInhibition":10},{"Mode":"Off"}])",
                         record),
              (Answer{1, kBacklight}));
    const CFG_VIDEOIN_BACKLIGHT_INFO read = record[0];
    EXPECT_EQ(read.stuItems[0].emMode, CFG_BACKLIGHT_BACKLIGHT);
    EXPECT_EQ(read.stuItems[0].emBacklightMode, CFG_BACKLIGHT_AREA_REGION);
    EXPECT_EQ(read.stuItems[0].nRegion[0], 1);
    EXPECT_EQ(read.stuItems[0].nRegion[3], 4);
    EXPECT_EQ(read.stuItems[0].nWideDynamicRange, 5);
    EXPECT_EQ(read.stuItems[0].nGlareInhibition, 6);
    EXPECT_EQ(read.stuItems[0].emIntensityMode, CFG_INTENSITY_MANUAL);
    EXPECT_EQ(read.stuItems[0].nIntensity, 7);
    EXPECT_EQ(read.stuItems[2].nGlareInhibition, 10);
    EXPECT_EQ(PackAll("VideoInBacklight", record),
              R"([ { "BacklightMode" : "Region", "BacklightRegion" : [ 1, 2, 3, 4 ], "Mode" : "Backlight" }, )"
              R"({ "Intensity" : 8, "IntensityMode" : "ManualIntensity", "Mode" : "SSA" }, )"
              R"({ "Mode" : "WideDynamic", "WideDynamicRange" : 9 } ])");
}

std::string WrittenBacklight(const CFG_BACKLIGHT_ITEM& item) {
    CFG_VIDEOIN_BACKLIGHT_INFO record{};
    record.stuItems[1] = item;
    const std::string text = Pack("VideoInBacklight", record);
    const std::string front = R"([ { "Mode" : "" }, )";
    const std::string back = R"(, { "Mode" : "" } ])";
    EXPECT_EQ(text.substr(0, front.size()), front);
    EXPECT_EQ(text.substr(text.size() - back.size()), back);
    return text.substr(front.size(), text.size() - front.size() - back.size());
}

TEST(VideoInBacklight, WritesOtherKeysInOtherModes) {
    const auto item = [](int mode, int area, int intensity) {
        return CFG_BACKLIGHT_ITEM{mode, area, {1, 2, 3, 4}, 5, 6, intensity, 7};
    };
    EXPECT_EQ(WrittenBacklight(item(1, 2, 3)), R"({ "Mode" : "Off" })");
    EXPECT_EQ(WrittenBacklight(item(2, 1, 3)), R"({ "BacklightMode" : "Default", "Mode" : "Backlight" })");
    EXPECT_EQ(WrittenBacklight(item(2, 3, 3)), R"({ "BacklightMode" : "", "Mode" : "Backlight" })");
    EXPECT_EQ(WrittenBacklight(item(3, 2, 3)), R"({ "GlareInhibition" : 6, "Mode" : "GlareInhibition" })");
    EXPECT_EQ(WrittenBacklight(item(4, 2, 3)), R"({ "Mode" : "WideDynamic", "WideDynamicRange" : 5 })");
    EXPECT_EQ(WrittenBacklight(item(5, 2, 1)), R"({ "IntensityMode" : "Disable", "Mode" : "SSA" })");
    EXPECT_EQ(WrittenBacklight(item(5, 2, 2)), R"({ "IntensityMode" : "AutoIntensity", "Mode" : "SSA" })");
    EXPECT_EQ(WrittenBacklight(item(5, 2, 3)),
              R"({ "Intensity" : 7, "IntensityMode" : "ManualIntensity", "Mode" : "SSA" })");
    EXPECT_EQ(WrittenBacklight(item(5, 2, 4)), R"({ "IntensityMode" : "", "Mode" : "SSA" })");
    for (const int mode : {0, 6, -1, INT32_MAX})
        EXPECT_EQ(WrittenBacklight(item(mode, 2, 3)), R"({ "Mode" : "" })") << mode;
}

TEST(VideoInBacklight, KnowsItsNames) {
    const auto read = [](const std::string& name) {
        const Backlights record(1);
        EXPECT_EQ(ParseTable("VideoInBacklight",
                             R"([{"Mode":")" + name + R"(","BacklightMode":")" + name + R"(","IntensityMode":")" + name
                                 + R"("}])",
                             record),
                  (Answer{1, kBacklight}));
        const CFG_BACKLIGHT_ITEM item = record[0].stuItems[0];
        return std::array{item.emMode, item.emBacklightMode, item.emIntensityMode};
    };
    EXPECT_EQ(read("off"), (std::array{1, 0, 0}));
    EXPECT_EQ(read("BACKLIGHT"), (std::array{2, 0, 0}));
    EXPECT_EQ(read("GlareInhibition"), (std::array{3, 0, 0}));
    EXPECT_EQ(read("WideDynamic"), (std::array{4, 0, 0}));
    EXPECT_EQ(read("ssa"), (std::array{5, 0, 0}));
    EXPECT_EQ(read("default"), (std::array{0, 1, 0}));
    EXPECT_EQ(read("Region"), (std::array{0, 2, 0}));
    EXPECT_EQ(read("Disable"), (std::array{0, 0, 1}));
    EXPECT_EQ(read("autoIntensity"), (std::array{0, 0, 2}));
    EXPECT_EQ(read("ManualIntensity"), (std::array{0, 0, 3}));
    EXPECT_EQ(read(""), (std::array{0, 0, 0}));
    EXPECT_EQ(read("Other"), (std::array{0, 0, 0}));
}

TEST(VideoInBacklight, TakesARegionOfAnyLength) {
    const Backlights record(1, 0x11);
    ASSERT_EQ(ParseTable("VideoInBacklight",
                         R"([{"BacklightRegion":[1,2]},{"BacklightRegion":[1,2,3,4,5]},{"BacklightRegion":7}])",
                         record),
              (Answer{1, kBacklight}));
    EXPECT_EQ(record[0].stuItems[0].nRegion[1], 2);
    EXPECT_EQ(record[0].stuItems[0].nRegion[2], 0);
    EXPECT_EQ(record[0].stuItems[1].nRegion[3], 4);
    EXPECT_EQ(record[0].stuItems[1].nWideDynamicRange, 0);
    EXPECT_EQ(record[0].stuItems[2].nRegion[0], 0);
}

TEST(VideoInBacklight, FillsWhatFitsOfAListOfLists) {
    const Backlights records(2, 0x11);
    EXPECT_EQ(ParseTable("VideoInBacklight", R"([[{"Intensity":1}],[{},{"Intensity":2}],[{"Intensity":3}]])", records),
              (Answer{1, 0}));
    EXPECT_EQ(records[0].stuItems[0].nIntensity, 1);
    EXPECT_EQ(records[0].stuItems[1].nIntensity, 0);
    EXPECT_EQ(records[1].stuItems[1].nIntensity, 2);
    const std::string none = R"([ { "Mode" : "" }, { "Mode" : "" }, { "Mode" : "" } ])";
    EXPECT_EQ(PackAll("VideoInBacklight", Backlights(2)), "[ " + none + ", " + none + " ]");
    EXPECT_EQ(PackAll("VideoInBacklight", Backlights(1, 5, 0)), none);
}

// ---- What "VideoInBacklight" and "VideoInDefog" have in common ----

template <class R>
void ExpectItemsOrLists(const char* command, const std::string& text) {
    constexpr std::uint32_t size = sizeof(R);
    for (const char* table : {"{}", R"({"Mode":"Auto"})", "7", "\"x\"", "[1]", "[\"Auto\",{}]", "[true]"}) {
        const Records<R> record(2, 0x11);
        EXPECT_EQ(ParseTable(command, table, record), (Answer{1, size})) << command << table;
        EXPECT_TRUE(record.isAll(0)) << command << table;
    }
    for (const char* table : {"null", "[]"}) {
        const Records<R> record(2, 0x11);
        EXPECT_EQ(ParseTable(command, table, record), (Answer{1, kNoLength})) << command << table;
        EXPECT_TRUE(record.isAll(0)) << command << table;
    }
    const Records<R> lists(2, 0x11);
    EXPECT_EQ(ParseTable(command, R"([null,7])", lists), (Answer{1, 0})) << command;
    EXPECT_TRUE(lists.isAll(0));
    for (const char* document : {"[", R"({"params":{"table":[{}]}})", R"({"result":false,"params":{"table":[{}]}})"}) {
        const Records<R> record(1, 0x11);
        EXPECT_EQ(ParseDocument(command, document, record), kRefused) << command << document;
        EXPECT_TRUE(record.isAll(0));
    }
    const Records<R> part(0, size - 1, 0x11);
    EXPECT_EQ(ParseTable(command, "[{}]", part), kRefused);
    EXPECT_TRUE(part.isAll(0x11));
    EXPECT_EQ(PackAll(command, part), kNotBegun);
    const Records<R> record(1);
    EXPECT_EQ(PackBytes(command, record.data(), size, text.size() + 1), text + "\n");
    EXPECT_EQ(PackBytes(command, record.data(), size, text.size()), kFailed);
}

TEST(VideoInBacklight, IsAListOrAListOfLists) {
    ExpectItemsOrLists<CFG_VIDEOIN_BACKLIGHT_INFO>("VideoInBacklight",
                                                   R"([ { "Mode" : "" }, { "Mode" : "" }, { "Mode" : "" } ])");
}
TEST(VideoInDefog, IsAListOrAListOfLists) {
    ExpectItemsOrLists<CFG_VIDEOIN_DEFOG_INFO>("VideoInDefog", "null");
}

// ---- "VideoInDefog" ----

using Defogs = Records<CFG_VIDEOIN_DEFOG_INFO>;
constexpr std::uint32_t kDefog = sizeof(CFG_VIDEOIN_DEFOG_INFO);
constexpr const char* kClear = R"({ "CamDefogEnable" : false, "Intensity" : 0, "LightIntensityLevel" : 0, )"
                               R"("LightIntensityMode" : "", "Mode" : "" })";

TEST(VideoInDefog, ReadsAndWritesAllKeys) {
    const Defogs record(1, 0x11);
    ASSERT_EQ(ParseTable("VideoInDefog",
                         R"([{"Mode":"Manul","Intensity":1,"LightIntensityMode":"Auto","LightIntensityLevel":2,)"
                         R"("CamDefogEnable":true},null])",
                         record),
              (Answer{1, kDefog}));
    const CFG_VIDEOIN_DEFOG_INFO read = record[0];
    EXPECT_EQ(read.nCount, 2u);
    EXPECT_EQ(read.stuItems[0].emMode, CFG_DEFOG_MANUAL);
    EXPECT_EQ(read.stuItems[0].nIntensity, 1);
    EXPECT_EQ(read.stuItems[0].emLightIntensityMode, CFG_LIGHT_INTENSITY_AUTO);
    EXPECT_EQ(read.stuItems[0].nLightIntensityLevel, 2);
    EXPECT_EQ(read.stuItems[0].bCamDefogEnable, 1);
    EXPECT_EQ(PackAll("VideoInDefog", record),
              R"([ { "CamDefogEnable" : true, "Intensity" : 1, "LightIntensityLevel" : 2, )"
              R"("LightIntensityMode" : "Auto", "Mode" : "Manul" }, )"
                  + std::string(kClear) + " ]");
}

TEST(VideoInDefog, KnowsItsNames) {
    const char* const modes[] = {"", "Off", "Auto", "Manul"};
    const char* const lights[] = {"", "Auto", "Manul"};
    for (const int code : {-1, 0, 1, 2, 3, 4, INT32_MAX}) {
        CFG_VIDEOIN_DEFOG_INFO record{};
        record.nCount = 1;
        record.stuItems[0].emMode = record.stuItems[0].emLightIntensityMode = code;
        const std::string mode = code >= 0 && code < 4 ? modes[code] : "";
        const std::string light = code >= 0 && code < 3 ? lights[code] : "";
        const std::string text = Pack("VideoInDefog", record);
        EXPECT_EQ(text, R"([ { "CamDefogEnable" : false, "Intensity" : 0, "LightIntensityLevel" : 0, )"
                        R"("LightIntensityMode" : ")"
                            + light + R"(", "Mode" : ")" + mode + "\" } ]");
        const auto back = Parse<CFG_VIDEOIN_DEFOG_INFO>("VideoInDefog", text);
        EXPECT_EQ(back->stuItems[0].emMode, mode.empty() ? 0 : code);
        EXPECT_EQ(back->stuItems[0].emLightIntensityMode, light.empty() ? 0 : code);
    }
    const auto folded =
        Parse<CFG_VIDEOIN_DEFOG_INFO>("VideoInDefog", R"([{"Mode":"AUTO","LightIntensityMode":"Manual"}])");
    EXPECT_EQ(folded->stuItems[0].emMode, CFG_DEFOG_AUTO);
    EXPECT_EQ(folded->stuItems[0].emLightIntensityMode, CFG_LIGHT_INTENSITY_UNKNOWN); // not the devices' spelling
}

TEST(VideoInDefog, CountsThreeAtTheMost) {
    const Defogs record(1, 0x11);
    ASSERT_EQ(ParseTable("VideoInDefog", R"([{},{},{"Intensity":3},{"Intensity":4}])", record), (Answer{1, kDefog}));
    EXPECT_EQ(record[0].nCount, 3u);
    EXPECT_EQ(record[0].stuItems[2].nIntensity, 3);
    const std::string three = "[ " + std::string(kClear) + ", " + kClear + ", " + kClear + " ]";
    for (const std::uint32_t count : {3u, 4u, 0x7FFFFFFFu}) {
        CFG_VIDEOIN_DEFOG_INFO defog{};
        defog.nCount = count;
        EXPECT_EQ(Pack("VideoInDefog", defog), three) << count;
    }
    for (const std::uint32_t count : {0u, 0x80000000u, 0xFFFFFFFFu}) {
        CFG_VIDEOIN_DEFOG_INFO defog{};
        defog.nCount = count;
        EXPECT_EQ(Pack("VideoInDefog", defog), "null") << count;
    }
}

TEST(VideoInDefog, TakesAllListsOrNone) {
    const char* const lists = R"([[{"Intensity":1}],[{},{"Intensity":2}]])";
    const Defogs records(2, 0x11);
    EXPECT_EQ(ParseTable("VideoInDefog", lists, records), (Answer{1, 0}));
    EXPECT_EQ(records[0].nCount, 1u);
    EXPECT_EQ(records[1].nCount, 2u);
    EXPECT_EQ(records[1].stuItems[1].nIntensity, 2);
    const Defogs one(1, 5, 0x11);
    EXPECT_EQ(ParseTable("VideoInDefog", lists, one), kRefused);
    EXPECT_TRUE(one.isAll(0));
    CFG_VIDEOIN_DEFOG_INFO defog{};
    defog.nCount = 1;
    Defogs written(2);
    written.Set(1, defog);
    EXPECT_EQ(PackAll("VideoInDefog", written), "[ null, [ " + std::string(kClear) + " ] ]");
}

// ---- "VideoInMetering" ----

using Meterings = Records<CFG_VIDEOIN_METERING_INFO>;
constexpr std::uint32_t kMetering = sizeof(CFG_VIDEOIN_METERING_INFO);

TEST(VideoInMetering, ReadsAndWritesRegionsAndModes) {
    const Meterings record(1, 0x11);
    ASSERT_EQ(ParseTable("VideoInMetering",
                         R"([{"Mode":"AVERAGE"},{"Regions":[[1,2,3,4],[5,6],null,7,[8,9,10,11,12]]},)"
                         R"({"Mode":"Spot","Regions":[[4294967295,-1,0,1]]},{"Regions":[]},null,{}])",
                         record),
              (Answer{1, kMetering}));
    const CFG_VIDEOIN_METERING_INFO read = record[0];
    EXPECT_EQ(read.nCount, 6);
    EXPECT_EQ(read.stuItems[0].abMode, 1);
    EXPECT_EQ(read.stuItems[0].byMode, 0);
    EXPECT_EQ(read.stuItems[0].abRegions, 0);
    EXPECT_EQ(read.stuItems[1].abMode, 0);
    EXPECT_EQ(read.stuItems[1].abRegions, 1);
    EXPECT_EQ(read.stuItems[1].nRegionCount, 5);
    EXPECT_EQ(read.stuItems[1].nRegions[0][3], 4);
    EXPECT_EQ(read.stuItems[1].nRegions[1][1], 6);
    EXPECT_EQ(read.stuItems[1].nRegions[1][2], 0);
    EXPECT_EQ(read.stuItems[1].nRegions[3][0], 0);
    EXPECT_EQ(read.stuItems[1].nRegions[4][0], 8);
    EXPECT_EQ(read.stuItems[2].byMode, 1);
    EXPECT_EQ(read.stuItems[2].nRegions[0][0], -1); // an unsigned number in a signed member
    EXPECT_EQ(read.stuItems[2].nRegions[0][1], 0);  // no unsigned number
    EXPECT_EQ(read.stuItems[3].abRegions, 0);
    EXPECT_EQ(PackAll("VideoInMetering", record),
              R"([ { "Mode" : "Average" }, { "Regions" : [ [ 1, 2, 3, 4 ], [ 5, 6, 0, 0 ], [ 0, 0, 0, 0 ], )"
              R"([ 0, 0, 0, 0 ], [ 8, 9, 10, 11 ] ] }, { "Mode" : "Partial", "Regions" : [ [ -1, 0, 0, 1 ] ] }, )"
              R"(null, null, null ])");
}

TEST(VideoInMetering, WritesWhatItsFlagsTell) {
    const auto write = [](std::uint8_t abMode, std::uint8_t mode, std::uint8_t abRegions, std::int32_t count) {
        CFG_VIDEOIN_METERING_INFO record{};
        record.nCount = 1;
        record.stuItems[0].abMode = abMode;
        record.stuItems[0].byMode = mode;
        record.stuItems[0].abRegions = abRegions;
        record.stuItems[0].nRegionCount = count;
        return Pack("VideoInMetering", record);
    };
    EXPECT_EQ(write(0, 1, 0, 1), "[ null ]");
    EXPECT_EQ(write(1, 0, 0, 1), R"([ { "Mode" : "Average" } ])");
    EXPECT_EQ(write(7, 255, 0, 1), R"([ { "Mode" : "Partial" } ])");
    EXPECT_EQ(write(0, 0, 1, 0), "[ null ]");
    EXPECT_EQ(write(0, 0, 1, -1), "[ null ]");
    EXPECT_EQ(write(0, 0, 1, 1), R"([ { "Regions" : [ [ 0, 0, 0, 0 ] ] } ])");
    EXPECT_EQ(write(0, 0, 1, 8), write(0, 0, 1, 9));
    EXPECT_NE(write(0, 0, 1, 7), write(0, 0, 1, 8));
}

TEST(VideoInMetering, EndsListsAtTheirArrays) {
    std::string regions = "[0,0,0,1]";
    for (int i = 2; i <= 9; ++i)
        regions += ",[0,0,0," + std::to_string(i) + "]";
    std::string table = R"([{"Regions":[)" + regions + "]}";
    for (int i = 1; i < 300; ++i)
        table += R"(,{"Mode":"Average"})";
    const Meterings record(1, 0x11);
    ASSERT_EQ(ParseTable("VideoInMetering", table + "]", record), (Answer{1, kMetering}));
    EXPECT_EQ(record[0].nCount, 256);
    EXPECT_EQ(record[0].stuItems[255].abMode, 1);
    EXPECT_EQ(record[0].stuItems[0].nRegionCount, 8);
    EXPECT_EQ(record[0].stuItems[0].nRegions[7][3], 8);
    CFG_VIDEOIN_METERING_INFO over{};
    for (const std::int32_t count : {256, 257, INT32_MAX}) {
        over.nCount = count;
        std::string nulls = "[ null";
        for (int i = 1; i < 256; ++i)
            nulls += ", null";
        EXPECT_EQ(Pack("VideoInMetering", over), nulls + " ]");
    }
    for (const std::int32_t count : {0, -1}) {
        over.nCount = count;
        EXPECT_EQ(Pack("VideoInMetering", over), "null");
    }
}

TEST(VideoInMetering, HasNoItemsWithoutAList) {
    for (const char* table : {"null", "[]", "{}", R"({"Mode":"Average"})", "7"}) {
        const Meterings record(1, 3, 0x11);
        EXPECT_EQ(ParseTable("VideoInMetering", table, record), (Answer{1, kMetering})) << table;
        EXPECT_TRUE(record.isAll(0)) << table;
    }
    const Meterings refused(1, 0x11);
    EXPECT_EQ(ParseDocument("VideoInMetering", R"({"result":false,"params":{"table":[{}]}})", refused),
              (Answer{1, kMetering}));
    EXPECT_EQ(refused[0].nCount, 1);
}

// ---- "VideoInDayNight" ----

using DayNights = Records<CFG_VIDEOIN_DAYNIGHT_INFO>;
constexpr std::uint32_t kDayNight = sizeof(CFG_VIDEOIN_DAYNIGHT_INFO);

Answer ParseDayNight(const std::string& table, const DayNights& records) {
    std::uint32_t length = 0;
    const std::string document = R"({"result":true,"params":{"table":)" + table + "}}";
    const auto result = CLIENT_ParseData("VideoInDayNight", document.c_str(), records.data(), records.size(), &length);
    return {result, length};
}

TEST(VideoInDayNight, ReadsAndWritesThreeItems) {
    const DayNights record(1, 0x11);
    ASSERT_EQ(ParseDayNight(R"([{"Type":"Electron","Mode":"Photoresistor","Sensitivity":1,"Delay":2},)"
                            R"({"Type":"Mechanism","Mode":"IO","Sensitivity":3,"Delay":4},)"
                            R"({"Type":"x","Mode":"y","Sensitivity":5}])",
                            record),
              (Answer{1, kDayNight}));
    EXPECT_EQ(record[0].stuItems[0].emType, CFG_DAYNIGHT_TYPE_ELECTRON);
    EXPECT_EQ(record[0].stuItems[0].emMode, CFG_DAYNIGHT_PHOTORESISTOR);
    EXPECT_EQ(record[0].stuItems[0].nSensitivity, 1);
    EXPECT_EQ(record[0].stuItems[0].nDelay, 2);
    EXPECT_EQ(record[0].stuItems[1].emMode, CFG_DAYNIGHT_IO);
    EXPECT_EQ(record[0].stuItems[2].emType, CFG_DAYNIGHT_TYPE_UNKNOWN);
    EXPECT_EQ(record[0].stuItems[2].nSensitivity, 5);
    EXPECT_EQ(PackAll("VideoInDayNight", record),
              R"([ { "Delay" : 2, "Mode" : "Photoresistor", "Sensitivity" : 1, "Type" : "Electron" }, )"
              R"({ "Delay" : 4, "Mode" : "IO", "Sensitivity" : 3, "Type" : "Mechanism" }, )"
              R"({ "Delay" : 0, "Mode" : "", "Sensitivity" : 5, "Type" : "" } ])");
}

TEST(VideoInDayNight, KnowsItsNames) {
    const char* const types[] = {"", "Electron", "Mechanism"};
    const char* const modes[] = {"", "Color", "Brightness", "BlackWhite", "Photoresistor", "Gain", "AlarmInput", "IO"};
    for (const int code : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8}) {
        CFG_VIDEOIN_DAYNIGHT_INFO record{};
        record.stuItems[2].emType = record.stuItems[2].emMode = code;
        const std::string type = code >= 0 && code < 3 ? types[code] : "";
        const std::string mode = code >= 0 && code < 8 ? modes[code] : "";
        const std::string text = Pack("VideoInDayNight", record);
        EXPECT_NE(
            text.find(R"({ "Delay" : 0, "Mode" : ")" + mode + R"(", "Sensitivity" : 0, "Type" : ")" + type + "\" } ]"),
            std::string::npos)
            << text;
        const DayNights back(1);
        ASSERT_EQ(ParseDayNight(text, back), (Answer{1, kDayNight}));
        EXPECT_EQ(back[0].stuItems[2].emType, type.empty() ? 0 : code);
        EXPECT_EQ(back[0].stuItems[2].emMode, mode.empty() ? 0 : code);
    }
    const DayNights folded(1);
    ASSERT_EQ(ParseDayNight(R"([{"Type":"ELECTRON","Mode":"blackwhite"},{},{}])", folded), (Answer{1, kDayNight}));
    EXPECT_EQ(folded[0].stuItems[0].emType, 1);
    EXPECT_EQ(folded[0].stuItems[0].emMode, 3);
}

TEST(VideoInDayNight, LeavesARecordClearThatIsNotThreeItems) {
    for (const char* table : {R"([{"Delay":1},{"Delay":2}])", R"([{"Delay":1},{},{},{}])", "{}", "[]", "7"}) {
        const DayNights record(1, 0x11);
        EXPECT_EQ(ParseDayNight(table, record), (Answer{1, kDayNight})) << table;
        EXPECT_TRUE(record.isAll(0)) << table;
    }
    const DayNights none(1, 0x11);
    EXPECT_EQ(ParseDayNight("null", none), (Answer{1, 0}));
    EXPECT_TRUE(none.isAll(0));
}

TEST(VideoInDayNight, TakesAListOfChannels) {
    const DayNights records(3, 0x11);
    EXPECT_EQ(ParseDayNight(R"([[{"Delay":1},{},{}],[{"Delay":2},{}],[{},{},{"Delay":3}],[{},{},{}]])", records),
              (Answer{1, 3 * kDayNight}));
    EXPECT_EQ(records[0].stuItems[0].nDelay, 1);
    EXPECT_EQ(records[1].stuItems[0].nDelay, 0);
    EXPECT_EQ(records[2].stuItems[2].nDelay, 3);
    const std::string one = Pack("VideoInDayNight", CFG_VIDEOIN_DAYNIGHT_INFO{});
    EXPECT_EQ(PackAll("VideoInDayNight", DayNights(2)), "[ " + one + ", " + one + " ]");
}

} // namespace
} // namespace orrery::test
