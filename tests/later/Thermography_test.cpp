// Heat imaging: pictures, rules, statistics and what the whole picture is measured by.
#include "orrery/thermography.h"
#include "support/Call.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>

namespace orrery::test {
namespace {

// The generic frame adds to the length, so these begin at 0.
template <class R>
Answer ParseAdding(const char* command, const std::string& table, const Records<R>& records, std::uint32_t length = 0) {
    const std::string text = R"({"result":true,"params":{"table":)" + table + "}}";
    const auto result = CLIENT_ParseData(command, text.c_str(), records.data(), records.size(), &length);
    return {result, length};
}

std::string Times(int count, const std::string& element) {
    std::string list = "[";
    for (int i = 0; i < count; ++i)
        list += (i > 0 ? "," : "") + element;
    return list + "]";
}

// ---- "ThermographyOptions" -----------------------------------------------------------------------------------------

using Pictures = Records<CFG_THERMOGRAPHY_INFO>;
constexpr std::uint32_t kPictures = sizeof(CFG_THERMOGRAPHY_INFO);

constexpr const char* kPicture = R"({"Brightness":50,"Sharpness":51,"EZoom":2,"ThermographyGamma":53,
    "Colorization":"Red Hot","SmartOptimizer":54,
    "OptimizedRegion":{"Enable":true,"Type":"Center 75%","Regions":[[1,2,3,4],[5,6,7,8]]},
    "Agc":55,"AgcMaxGain":56,"AgcPlateau":57,"Mode":"LowTemperature",
    "Auto":{"LowToHigh":58,"LHROI":59,"HighToLow":60,"HLROI":61}})";
constexpr const char* kPictureText =
    R"({ "Agc" : 55, "AgcMaxGain" : 56, "AgcPlateau" : 57, )"
    R"("Auto" : { "HLROI" : 61, "HighToLow" : 60, "LHROI" : 59, "LowToHigh" : 58 }, "Brightness" : 50, )"
    R"("Colorization" : "Red Hot", "EZoom" : 2, "Mode" : "LowTemperature", )"
    R"("OptimizedRegion" : { "Enable" : true, "Regions" : [ [ 1, 2, 3, 4 ], [ 5, 6, 7, 8 ] ], )"
    R"("Type" : "Center 75%" }, "Sharpness" : 51, "SmartOptimizer" : 54, "ThermographyGamma" : 53 })";

TEST(Thermography, APictureGoesRoundWhole) {
    const Pictures record(1, 0x11);
    ASSERT_EQ(ParseAdding("ThermographyOptions", "[" + std::string(kPicture) + "]", record), (Answer{1, kPictures}));
    const CFG_THERMOGRAPHY_INFO read = record[0];
    EXPECT_EQ(read.nCount, 1);
    const CFG_THERMOGRAPHY_OPTION& picture = read.stuOptions[0];
    EXPECT_EQ(picture.nBrightness, 50);
    EXPECT_EQ(picture.nSharpness, 51);
    EXPECT_EQ(picture.nEZoom, 2);
    EXPECT_EQ(picture.nThermographyGamma, 53);
    EXPECT_EQ(picture.emColorization, 13);
    EXPECT_EQ(picture.nSmartOptimizer, 54);
    EXPECT_EQ(picture.stuOptimizedRegion.bEnable, 1u);
    EXPECT_EQ(picture.stuOptimizedRegion.emType, 5);
    EXPECT_EQ(picture.stuOptimizedRegion.nRegionCount, 2);
    EXPECT_EQ(picture.stuOptimizedRegion.stuRegions[1].nLeft, 5);
    EXPECT_EQ(picture.stuOptimizedRegion.stuRegions[1].nBottom, 8);
    EXPECT_EQ(picture.nAgc, 55);
    EXPECT_EQ(picture.nAgcMaxGain, 56);
    EXPECT_EQ(picture.nAgcPlateau, 57);
    EXPECT_EQ(picture.emMode, 2);
    EXPECT_EQ(picture.stuAuto.nLowToHigh, 58);
    EXPECT_EQ(picture.stuAuto.nLHROI, 59);
    EXPECT_EQ(picture.stuAuto.nHighToLow, 60);
    EXPECT_EQ(picture.stuAuto.nHLROI, 61);
    EXPECT_EQ(PackAll("ThermographyOptions", record), "[ " + std::string(kPictureText) + " ]");
}

TEST(Thermography, AnEmptyPictureWritesEveryKeyButTheRegions) {
    Pictures record(1);
    CFG_THERMOGRAPHY_INFO pictures = {};
    pictures.nCount = 1;
    record.Set(0, pictures);
    EXPECT_EQ(PackAll("ThermographyOptions", record),
              R"([ { "Agc" : 0, "AgcMaxGain" : 0, "AgcPlateau" : 0, )"
              R"("Auto" : { "HLROI" : 0, "HighToLow" : 0, "LHROI" : 0, "LowToHigh" : 0 }, "Brightness" : 0, )"
              R"("Colorization" : "", "EZoom" : 0, "Mode" : "", )"
              R"("OptimizedRegion" : { "Enable" : false, "Type" : "" }, "Sharpness" : 0, "SmartOptimizer" : 0, )"
              R"("ThermographyGamma" : 0 } ])");
}

TEST(Thermography, UnsetBrightnessAndSharpnessAreLeftOut) {
    Pictures record(1);
    for (const auto& [brightness, sharpness, has] : {std::tuple{INT_MIN, 0, "Sharpness"}, {0, INT_MIN, "Brightness"}}) {
        CFG_THERMOGRAPHY_INFO pictures = {};
        pictures.nCount = 1;
        pictures.stuOptions[0].nBrightness = brightness;
        pictures.stuOptions[0].nSharpness = sharpness;
        pictures.stuOptions[0].nAgc = INT_MIN;
        record.Set(0, pictures);
        const std::string text = PackAll("ThermographyOptions", record);
        for (const char* key : {"Brightness", "Sharpness"})
            EXPECT_EQ(text.find(key) != std::string::npos, std::string(key) == has) << text;
        EXPECT_NE(text.find(R"("Agc" : -2147483648)"), std::string::npos); // of these two keys alone
    }
}

TEST(Thermography, HoldsSixteenPicturesAndSixtyFourRegions) {
    for (const int pictures : {15, 16, 17}) {
        const Pictures record(1, 0x11);
        ASSERT_EQ(ParseAdding("ThermographyOptions", Times(pictures, R"({"Agc":7})"), record), (Answer{1, kPictures}));
        const CFG_THERMOGRAPHY_INFO read = record[0];
        EXPECT_EQ(read.nCount, std::min(pictures, 16));
        EXPECT_EQ(read.stuOptions[read.nCount - 1].nAgc, 7);
    }
    for (const int regions : {64, 65}) {
        const Pictures record(1);
        const std::string list = R"([{"OptimizedRegion":{"Regions":)" + Times(regions, "[1,2,3,4]") + R"(},"Agc":9}])";
        ASSERT_EQ(ParseAdding("ThermographyOptions", list, record).result, 1);
        EXPECT_EQ(record[0].stuOptions[0].stuOptimizedRegion.nRegionCount, 64);
        EXPECT_EQ(record[0].stuOptions[0].nAgc, 9);
    }
    const Pictures record(1);
    ASSERT_EQ(
        ParseAdding("ThermographyOptions", R"([{"OptimizedRegion":{"Regions":[[1,2,3],[4,5,6,7]]}}])", record).result,
        1);
    const CFG_OPTIMIZED_REGION region = record[0].stuOptions[0].stuOptimizedRegion;
    EXPECT_EQ(region.nRegionCount, 2);
    EXPECT_EQ(region.stuRegions[0].nLeft, 0);
    EXPECT_EQ(region.stuRegions[1].nLeft, 4);
}

TEST(Thermography, RegionsAreWrittenAsFarAsTheyGo) {
    Pictures record(1);
    CFG_THERMOGRAPHY_INFO pictures = {};
    pictures.nCount = 1;
    for (CFG_RECT& region : pictures.stuOptions[0].stuOptimizedRegion.stuRegions)
        region = {6, 6, 6, 6};
    for (const auto& [count, written] : {std::pair{INT_MIN, 0}, {-1, 0}, {0, 0}, {1, 1}, {64, 64}, {65, 64}}) {
        pictures.stuOptions[0].stuOptimizedRegion.nRegionCount = count;
        record.Set(0, pictures);
        const std::string text = PackAll("ThermographyOptions", record);
        int found = 0;
        for (std::size_t at = 0; (at = text.find("[ 6, 6, 6, 6 ]", at)) != std::string::npos; ++at)
            ++found;
        EXPECT_EQ(found, written) << count;
        EXPECT_EQ(text.find("Regions") != std::string::npos, written > 0) << count;
    }
}

TEST(Thermography, ANegativeOrTooLargeCountWritesWhatThereIs) {
    Pictures record(1);
    CFG_THERMOGRAPHY_INFO pictures = {};
    for (const auto& [count, written] : {std::pair{-1, 0}, {0, 0}, {16, 16}, {17, 16}}) {
        pictures.nCount = count;
        record.Set(0, pictures);
        const std::string text = PackAll("ThermographyOptions", record);
        int found = 0;
        for (std::size_t at = 0; (at = text.find("AgcPlateau", at)) != std::string::npos; ++at)
            ++found;
        EXPECT_EQ(found, written) << count;
        if (written == 0) {
            EXPECT_EQ(text, "null");
        }
    }
}

struct Text {
    const char* text;
    int code;
};

// Every text of a list, as it stands and in other case, one that is in none, and codes beyond both ends.
template <std::size_t N, class Read, class Write>
void TryNames(const Text (&names)[N], Read read, Write write) {
    for (const auto& [text, code] : names) {
        EXPECT_EQ(read(text), code) << text;
        EXPECT_EQ(write(code), text);
        std::string folded = text;
        for (char& c : folded)
            c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c >= 'A' && c <= 'Z' ? c + 32 : c);
        EXPECT_EQ(read(folded), code) << folded;
    }
    EXPECT_EQ(read("Ice"), 0);
    EXPECT_EQ(write(-1), "");
    EXPECT_EQ(write(static_cast<int>(N)), "");
}

std::string ValueOf(const std::string& text, const std::string& key) {
    const std::string quoted = "\"" + key + "\" : \"";
    const std::size_t at = text.find(quoted);
    if (at == std::string::npos) return "(no key)";
    const std::size_t from = at + quoted.size();
    return text.substr(from, text.find('"', from) - from);
}

TEST(Thermography, NamesOfPictures) {
    const auto tryNames = [](const auto& names, const char* key, auto place) {
        TryNames(
            names,
            [&](const std::string& text) {
                const Pictures record(1);
                const std::string member = "\"" + std::string(key) + "\":\"" + text + "\"";
                const std::string element =
                    std::string(key) == "Type" ? R"({"OptimizedRegion":{)" + member + "}}" : "{" + member + "}";
                EXPECT_EQ(ParseAdding("ThermographyOptions", "[" + element + "]", record).result, 1);
                CFG_THERMOGRAPHY_INFO read = record[0];
                return place(read);
            },
            [&](int code) {
                Pictures record(1);
                CFG_THERMOGRAPHY_INFO pictures = {};
                pictures.nCount = 1;
                place(pictures) = code;
                record.Set(0, pictures);
                return ValueOf(PackAll("ThermographyOptions", record), key);
            });
    };
    const Text colors[] = {{"", 0},        {"White Hot", 1}, {"Black Hot", 2}, {"Ironbow2", 3}, {"IceFire", 4},
                           {"Fusion", 5},  {"Rainbow", 6},   {"Globow", 7},    {"Ironbow1", 8}, {"Sepia", 9},
                           {"Color1", 10}, {"Color2", 11},   {"Rain", 12},     {"Red Hot", 13}, {"Green Hot", 14}};
    tryNames(colors, "Colorization",
             [](CFG_THERMOGRAPHY_INFO& info) -> int32_t& { return info.stuOptions[0].emColorization; });
    const Text modes[] = {{"", 0}, {"HighTemperature", 1}, {"LowTemperature", 2}, {"Auto", 3}};
    tryNames(modes, "Mode", [](CFG_THERMOGRAPHY_INFO& info) -> int32_t& { return info.stuOptions[0].emMode; });
    const Text regions[] = {{"", 0},           {"Full Screen", 1}, {"Sky", 2},        {"Ground", 3}, {"Horizontal", 4},
                            {"Center 75%", 5}, {"Center 50%", 6},  {"Center 25%", 7}, {"Custom", 8}};
    tryNames(regions, "Type",
             [](CFG_THERMOGRAPHY_INFO& info) -> int32_t& { return info.stuOptions[0].stuOptimizedRegion.emType; });
}

TEST(Thermography, TablesOfTheWrongTypeLeaveTheRecordClearedAndSucceed) {
    for (const char* command : {"ThermographyOptions", "ThermometryRule", "TemperatureStatistics"}) {
        for (const char* table : {"{}", "7", "\"x\"", R"({"Agc":1,"Enable":true})"}) {
            const Records<CFG_THERMOMETRY_RULE_INFO> record(1, 0x11); // the largest of them
            const Answer answer = ParseAdding(command, table, record, 5);
            EXPECT_EQ(answer.result, 1) << command << table;
            EXPECT_GT(answer.length, 5u) << command << table;
            EXPECT_TRUE(record.isAll(0)) << command << table;
        }
        const Records<CFG_THERMOMETRY_RULE_INFO> record(1, 0x11);
        EXPECT_EQ(ParseAdding(command, "null", record, 5), (Answer{1, 5})) << command;
        EXPECT_EQ(ParseDocument(command, R"({"result":false,"params":{"table":[{}]}})", record).result, 0) << command;
        EXPECT_EQ(ParseDocument(command, "[", record).result, 0) << command;
        EXPECT_TRUE(record.isAll(0)) << command;
    }
}

TEST(Thermography, SeveralChannelsAreAnArrayOfArrays) {
    const Pictures records(3, 0x11);
    ASSERT_EQ(ParseAdding("ThermographyOptions", R"([[{"Agc":1}],[{"Agc":4}],[{"Agc":2},{"Agc":3}]])", records),
              (Answer{1, 3 * kPictures}));
    EXPECT_EQ(records[0].nCount, 1);
    EXPECT_EQ(records[1].stuOptions[0].nAgc, 4);
    EXPECT_EQ(records[2].nCount, 2);
    EXPECT_EQ(records[2].stuOptions[1].nAgc, 3);
    // A null among the channels makes it one list, of elements that are no pictures.
    const Pictures mixed(3, 0x11);
    ASSERT_EQ(ParseAdding("ThermographyOptions", R"([[{"Agc":1}],null,[{"Agc":2}]])", mixed), (Answer{1, kPictures}));
    EXPECT_EQ(mixed[0].nCount, 3);
    EXPECT_EQ(mixed[0].stuOptions[0].nAgc, 0);
    // Records without pictures: a null in the place of each.
    const Pictures empty(2);
    EXPECT_EQ(PackAll("ThermographyOptions", empty), "[ null, null ]");
}

// ---- "ThermometryRule" ---------------------------------------------------------------------------------------------

using Rules = Records<CFG_THERMOMETRY_RULE_INFO>;
constexpr std::uint32_t kRules = sizeof(CFG_THERMOMETRY_RULE_INFO);

constexpr const char* kRule = R"({"Enable":true,"PresetId":2,"RuleId":3,"Name":"boiler","Type":"Area",
    "MeterRegion":{"Coordinates":[[10,20],[4294967295,0]]},"T":4,
    "AlarmSetting":[{"Id":5,"Enable":true,"Result":"Slope","AlarmCondition":"Above","Threshold":20.5,"Hysteresis":0.25,
                     "Duration":30}],
    "LocalParameters":{"Enable":true,"ObjectEmissivity":0.5,"ObjectDistance":6,"ReflectedTemp":7},
    "AreaSubType":"Polygon"})";
constexpr const char* kRuleText =
    R"({ "AlarmSetting" : [ { "AlarmCondition" : "Above", "Duration" : 30, "Enable" : true, )"
    R"("Hysteresis" : 0.2500000000000000, "Id" : 5, "Result" : "Slope", "Threshold" : 20.50000000000000 } ], )"
    R"("AreaSubType" : "Polygon", "Enable" : true, "LocalParameters" : { "Enable" : true, "ObjectDistance" : 6, )"
    R"("ObjectEmissivity" : 0.5000000000000000, "ReflectedTemp" : 7 }, )"
    R"("MeterRegion" : { "Coordinates" : [ [ 10, 20 ], [ 4294967295, 0 ] ] }, "Name" : "boiler", "PresetId" : 2, )"
    R"("RuleId" : 3, "T" : 4, "Type" : "Area" })";

TEST(ThermometryRule, ARuleGoesRoundWhole) {
    const Rules record(1, 0x11);
    ASSERT_EQ(ParseAdding("ThermometryRule", "[" + std::string(kRule) + "]", record), (Answer{1, kRules}));
    const CFG_THERMOMETRY_RULE_INFO read = record[0];
    EXPECT_EQ(read.nCount, 1);
    const CFG_THERMOMETRY_RULE& rule = read.stuRules[0];
    EXPECT_EQ(rule.bEnable, 1);
    EXPECT_EQ(rule.nPresetId, 2);
    EXPECT_EQ(rule.nRuleId, 3);
    EXPECT_STREQ(rule.szName, "boiler");
    EXPECT_EQ(rule.emMeterType, 3);
    EXPECT_EQ(rule.nCoordinates, 2);
    EXPECT_EQ(rule.stuCoordinates[0].nY, 20u);
    EXPECT_EQ(rule.stuCoordinates[1].nX, 4294967295u);
    EXPECT_EQ(rule.nSamplePeriod, 4);
    EXPECT_EQ(rule.nAlarmCount, 1);
    EXPECT_EQ(rule.stuAlarm[0].nId, 5);
    EXPECT_EQ(rule.stuAlarm[0].bEnable, 1);
    EXPECT_EQ(rule.stuAlarm[0].emResult, 9);
    EXPECT_EQ(rule.stuAlarm[0].emAlarmCondition, 3);
    EXPECT_EQ(rule.stuAlarm[0].fThreshold, 20.5f);
    EXPECT_EQ(rule.stuAlarm[0].fHysteresis, 0.25f);
    EXPECT_EQ(rule.stuAlarm[0].nDuration, 30);
    EXPECT_EQ(rule.stuLocal.bEnable, 1);
    EXPECT_EQ(rule.stuLocal.fObjectEmissivity, 0.5f);
    EXPECT_EQ(rule.stuLocal.nObjectDistance, 6);
    EXPECT_EQ(rule.stuLocal.nReflectedTemp, 7);
    EXPECT_EQ(rule.emAreaSubType, 3);
    EXPECT_EQ(PackAll("ThermometryRule", record), "[ " + std::string(kRuleText) + " ]");
}

// Switches are alike in their values: each is set by its own key alone.
TEST(ThermometryRule, EachSwitchHasItsKey) {
    const std::string tables[] = {R"([{"Enable":true,"AlarmSetting":[{}]}])", R"([{"AlarmSetting":[{"Enable":true}]}])",
                                  R"([{"AlarmSetting":[{}],"LocalParameters":{"Enable":true}}])"};
    for (int i = 0; i < 3; ++i) {
        const Rules record(1, 0x11);
        ASSERT_EQ(ParseAdding("ThermometryRule", tables[i], record), (Answer{1, kRules}));
        const CFG_THERMOMETRY_RULE rule = record[0].stuRules[0];
        EXPECT_EQ(rule.bEnable, i == 0);
        EXPECT_EQ(rule.stuAlarm[0].bEnable, i == 1);
        EXPECT_EQ(rule.stuLocal.bEnable, i == 2);
        const auto is = [](bool on) { return std::string("\"Enable\" : ") + (on ? "true, " : "false, "); };
        const std::string text = PackAll("ThermometryRule", record);
        EXPECT_NE(text.find(R"("Duration" : 0, )" + is(i == 1)), std::string::npos) << text;
        EXPECT_NE(text.find(R"("AreaSubType" : "", )" + is(i == 0)), std::string::npos) << text;
        EXPECT_NE(text.find(R"("LocalParameters" : { )" + is(i == 2)), std::string::npos) << text;
    }
}

TEST(ThermometryRule, TellsTheDevicesCountAndReads512) {
    for (const int rules : {511, 512, 513, 600}) {
        const Rules record(1, 0x11);
        ASSERT_EQ(ParseAdding("ThermometryRule", Times(rules, R"({"RuleId":7})"), record), (Answer{1, kRules}));
        EXPECT_EQ(record[0].nCount, rules);
        EXPECT_EQ(record[0].stuRules[510].nRuleId, 7);
        EXPECT_EQ(record[0].stuRules[511].nRuleId, rules > 511 ? 7 : 0);
        const std::string text = PackAll("ThermometryRule", record);
        int found = 0;
        for (std::size_t at = 0; (at = text.find("RuleId", at)) != std::string::npos; ++at)
            ++found;
        EXPECT_EQ(found, std::min(rules, 512));
    }
}

TEST(ThermometryRule, ListsOfARuleEndAt64) {
    for (const int elements : {63, 64, 65}) {
        const Rules record(1);
        const std::string rule = R"({"MeterRegion":{"Coordinates":)" + Times(elements, "[3,4]") + R"(},"AlarmSetting":)"
                                 + Times(elements, R"({"Id":8})") + R"(,"T":9})";
        ASSERT_EQ(ParseAdding("ThermometryRule", "[" + rule + "]", record).result, 1);
        const CFG_THERMOMETRY_RULE read = record[0].stuRules[0];
        EXPECT_EQ(read.nCoordinates, std::min(elements, 64));
        EXPECT_EQ(read.nAlarmCount, std::min(elements, 64));
        EXPECT_EQ(read.stuAlarm[62].nId, 8);
        EXPECT_EQ(read.nSamplePeriod, 9);
    }
    const Rules record(1);
    ASSERT_EQ(ParseAdding("ThermometryRule", R"([{"Name":")" + std::string(200, 'n') + R"("}])", record).result, 1);
    EXPECT_EQ(std::string(record[0].stuRules[0].szName), std::string(127, 'n'));
    Rules bare(1);
    CFG_THERMOMETRY_RULE_INFO one = {};
    one.nCount = 1;
    bare.Set(0, one);
    EXPECT_EQ(
        PackAll("ThermometryRule", bare),
        R"([ { "AreaSubType" : "", "Enable" : false, "LocalParameters" : { "Enable" : false, "ObjectDistance" : 0, )"
        R"("ObjectEmissivity" : 0.000000000000000, "ReflectedTemp" : 0 }, "Name" : "", "PresetId" : 0, )"
        R"("RuleId" : 0, "T" : 0, "Type" : "" } ])");
}

int Occurrences(const std::string& text, const std::string& part) {
    int found = 0;
    for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; ++at)
        ++found;
    return found;
}

TEST(ThermometryRule, WritesNoMoreThanItsListsHold) {
    CFG_THERMOMETRY_RULE_INFO rules = {};
    rules.nCount = 1;
    for (int i = 0; i < 64; ++i) {
        rules.stuRules[0].stuCoordinates[i] = {7, 7};
        rules.stuRules[0].stuAlarm[i].nId = 8;
    }
    Rules record(1);
    for (const auto& [count, written] : {std::pair{-1, 0}, {0, 0}, {1, 1}, {63, 63}, {64, 64}, {65, 64}}) {
        rules.stuRules[0].nCoordinates = rules.stuRules[0].nAlarmCount = count;
        record.Set(0, rules);
        const std::string text = PackAll("ThermometryRule", record);
        EXPECT_EQ(Occurrences(text, "[ 7, 7 ]"), written) << count;
        EXPECT_EQ(Occurrences(text, R"("Id" : 8)"), written) << count;
        EXPECT_EQ(Occurrences(text, "MeterRegion"), written > 0 ? 1 : 0) << count;
        EXPECT_EQ(Occurrences(text, "AlarmSetting"), written > 0 ? 1 : 0) << count;
    }
    for (const auto& [count, written] : {std::pair{-1, 0}, {511, 511}, {512, 512}, {513, 512}}) {
        rules.nCount = count;
        record.Set(0, rules);
        EXPECT_EQ(Occurrences(PackAll("ThermometryRule", record), "\"RuleId\""), written) << count;
    }
}

TEST(ThermometryRule, PointsAreExactlyTwoNumbers) {
    const Rules record(1, 0x11);
    ASSERT_EQ(ParseAdding("ThermometryRule",
                          R"([{"MeterRegion":{"Coordinates":[[1],[1,2,3],null,5,[-1,4294967295],[8,9]]}}])", record)
                  .result,
              1);
    const CFG_THERMOMETRY_RULE rule = record[0].stuRules[0];
    ASSERT_EQ(rule.nCoordinates, 6);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(rule.stuCoordinates[i].nX, 0u) << i;
        EXPECT_EQ(rule.stuCoordinates[i].nY, 0u) << i;
    }
    EXPECT_EQ(rule.stuCoordinates[4].nX, 0u); // no negative numbers
    EXPECT_EQ(rule.stuCoordinates[4].nY, 4294967295u);
    EXPECT_EQ(rule.stuCoordinates[5].nY, 9u);
}

TEST(ThermometryRule, NamesOfRules) {
    const auto tryNames = [](const auto& names, const char* key, bool ofAlarm, auto place) {
        TryNames(
            names,
            [&](const std::string& text) {
                const Rules record(1);
                const std::string member = "{\"" + std::string(key) + "\":\"" + text + "\"}";
                const std::string rule = ofAlarm ? R"({"AlarmSetting":[)" + member + "]}" : member;
                EXPECT_EQ(ParseAdding("ThermometryRule", "[" + rule + "]", record).result, 1);
                CFG_THERMOMETRY_RULE read = record[0].stuRules[0];
                return place(read);
            },
            [&](int code) {
                Rules record(1);
                CFG_THERMOMETRY_RULE_INFO rules = {};
                rules.nCount = 1;
                rules.stuRules[0].nAlarmCount = 1;
                place(rules.stuRules[0]) = code;
                record.Set(0, rules);
                return ValueOf(PackAll("ThermometryRule", record), key);
            });
    };
    const Text meters[] = {{"", 0}, {"Spot", 1}, {"Line", 2}, {"Area", 3}};
    tryNames(meters, "Type", false, [](CFG_THERMOMETRY_RULE& rule) -> int32_t& { return rule.emMeterType; });
    const Text areas[] = {{"", 0}, {"Rect", 1}, {"Ellipse", 2}, {"Polygon", 3}};
    tryNames(areas, "AreaSubType", false, [](CFG_THERMOMETRY_RULE& rule) -> int32_t& { return rule.emAreaSubType; });
    const Text results[] = {{"", 0},    {"Value", 1}, {"Max", 2}, {"Min", 3},  {"Aver", 4},
                            {"Std", 5}, {"Mid", 6},   {"ISO", 7}, {"Diff", 8}, {"Slope", 9}};
    tryNames(results, "Result", true, [](CFG_THERMOMETRY_RULE& rule) -> int32_t& { return rule.stuAlarm[0].emResult; });
    const Text conditions[] = {{"", 0}, {"Below", 1}, {"Match", 2}, {"Above", 3}};
    tryNames(conditions, "AlarmCondition", true,
             [](CFG_THERMOMETRY_RULE& rule) -> int32_t& { return rule.stuAlarm[0].emAlarmCondition; });
}

// ---- "TemperatureStatistics" ---------------------------------------------------------------------------------------

using Places = Records<CFG_TEMPERATURE_STATISTICS_INFO>;
constexpr std::uint32_t kPlaces = sizeof(CFG_TEMPERATURE_STATISTICS_INFO);

TEST(TemperatureStatistics, PlacesGoRoundWhole) {
    const Places record(1, 0x11);
    ASSERT_EQ(ParseAdding("TemperatureStatistics",
                          R"([{"Enable":true,"Name":"oven","Type":"LINE","Period":5},{"Enable":0,"Type":"none"}])",
                          record),
              (Answer{1, kPlaces}));
    const CFG_TEMPERATURE_STATISTICS_INFO read = record[0];
    EXPECT_EQ(read.nCount, 2);
    EXPECT_EQ(read.stuStatistics[0].bEnable, 1);
    EXPECT_STREQ(read.stuStatistics[0].szName, "oven");
    EXPECT_EQ(read.stuStatistics[0].emType, 2);
    EXPECT_EQ(read.stuStatistics[0].nPeriod, 5);
    EXPECT_EQ(read.stuStatistics[1].emType, 0);
    EXPECT_EQ(PackAll("TemperatureStatistics", record),
              R"([ { "Enable" : true, "Name" : "oven", "Period" : 5, "Type" : "Line" }, )"
              R"({ "Enable" : false, "Name" : "", "Period" : 0, "Type" : "" } ])");
}

TEST(TemperatureStatistics, TellsTheDevicesCountAndReads64) {
    for (const int places : {63, 64, 65, 100}) {
        const Places record(1, 0x11);
        const std::string name(150, 'p');
        ASSERT_EQ(
            ParseAdding("TemperatureStatistics", Times(places, R"({"Period":3,"Name":")" + name + R"("})"), record),
            (Answer{1, kPlaces}));
        EXPECT_EQ(record[0].nCount, places);
        EXPECT_EQ(record[0].stuStatistics[62].nPeriod, 3);
        EXPECT_EQ(std::string(record[0].stuStatistics[62].szName), name.substr(0, 127));
        EXPECT_EQ(record[0].stuStatistics[63].nPeriod, places > 63 ? 3 : 0);
        const std::string text = PackAll("TemperatureStatistics", record);
        int found = 0;
        for (std::size_t at = 0; (at = text.find("Period", at)) != std::string::npos; ++at)
            ++found;
        EXPECT_EQ(found, std::min(places, 64));
    }
    const Places record(1, 0x11);
    EXPECT_EQ(ParseAdding("TemperatureStatistics", "[]", record), (Answer{1, kPlaces}));
    EXPECT_TRUE(record.isAll(0));
}

// ---- "HeatImagingThermometry" --------------------------------------------------------------------------------------

using Whole = Records<CFG_HEAT_IMAGING_THERMOMETRY_INFO>;

TEST(HeatImagingThermometry, GoesRoundWhole) {
    const Whole record(1, 0x11);
    const char* table = R"({"Isotherm":{"Enable":true,"ColorBarDisplay":true,"MaxLimitTemp":1,"MediumTemp":2,
        "MinLimitTemp":-3,"SaturationTemp":4},"Rect":[5,6,7,8],"HotSpotFollow":true,"TemperEnable":true,
        "HighCTMakerColor":[9,10,11,12],"LowCTMakerColor":[13,14,15,16],"AtmosphericTemperature":20.5,
        "ObjectDistance":17,"ObjectEmissivity":0.5,"ReflectedTemperature":-1.5,"RelativeHumidity":18,
        "TemperatureUnit":"fahrenheit"})";
    ASSERT_EQ(ParseAdding("HeatImagingThermometry", table, record), (Answer{1, record.size()}));
    const CFG_HEAT_IMAGING_THERMOMETRY_INFO read = record[0];
    EXPECT_EQ(read.stuIsotherm.bEnable, 1);
    EXPECT_EQ(read.stuIsotherm.bColorBarDisplay, 1);
    EXPECT_EQ(read.stuIsotherm.nMaxLimitTemp, 1);
    EXPECT_EQ(read.stuIsotherm.nMediumTemp, 2);
    EXPECT_EQ(read.stuIsotherm.nMinLimitTemp, -3);
    EXPECT_EQ(read.stuIsotherm.nSaturationTemp, 4);
    EXPECT_EQ(read.stuRect.nTop, 6);
    EXPECT_EQ(read.stuRect.nBottom, 8);
    EXPECT_EQ(read.bHotSpotFollow, 1);
    EXPECT_EQ(read.bTemperEnable, 1);
    EXPECT_EQ(read.stuHighCTMakerColor.nRed, 9);
    EXPECT_EQ(read.stuLowCTMakerColor.nAlpha, 16);
    EXPECT_EQ(read.fAtmosphericTemperature, 20.5f);
    EXPECT_EQ(read.nObjectDistance, 17);
    EXPECT_EQ(read.fObjectEmissivity, 0.5f);
    EXPECT_EQ(read.fReflectedTemperature, -1.5f);
    EXPECT_EQ(read.nRelativeHumidity, 18);
    EXPECT_EQ(read.emTemperatureUnit, 2);
    EXPECT_EQ(
        PackAll("HeatImagingThermometry", record),
        R"({ "AtmosphericTemperature" : 20.50000000000000, "HighCTMakerColor" : [ 9, 10, 11, 12 ], )"
        R"("HotSpotFollow" : true, "Isotherm" : { "ColorBarDisplay" : true, "Enable" : true, "MaxLimitTemp" : 1, )"
        R"("MediumTemp" : 2, "MinLimitTemp" : -3, "SaturationTemp" : 4 }, )"
        R"("LowCTMakerColor" : [ 13, 14, 15, 16 ], "ObjectDistance" : 17, )"
        R"("ObjectEmissivity" : 0.5000000000000000, "Rect" : [ 5, 6, 7, 8 ], )"
        R"("ReflectedTemperature" : -1.500000000000000, "RelativeHumidity" : 18, "TemperEnable" : true, )"
        R"("TemperatureUnit" : "Fahrenheit" })");
}

TEST(HeatImagingThermometry, EachSwitchHasItsKey) {
    const std::string tables[] = {R"({"Isotherm":{"Enable":true}})", R"({"Isotherm":{"ColorBarDisplay":true}})",
                                  R"({"HotSpotFollow":true})", R"({"TemperEnable":true})"};
    for (int i = 0; i < 4; ++i) {
        const Whole record(1, 0x11);
        ASSERT_EQ(ParseAdding("HeatImagingThermometry", tables[i], record), (Answer{1, record.size()}));
        const CFG_HEAT_IMAGING_THERMOMETRY_INFO read = record[0];
        EXPECT_EQ(read.stuIsotherm.bEnable, i == 0);
        EXPECT_EQ(read.stuIsotherm.bColorBarDisplay, i == 1);
        EXPECT_EQ(read.bHotSpotFollow, i == 2);
        EXPECT_EQ(read.bTemperEnable, i == 3);
        const std::string text = PackAll("HeatImagingThermometry", record);
        const char* const keys[] = {"\"Enable", "\"ColorBarDisplay", "\"HotSpotFollow", "\"TemperEnable"};
        for (int key = 0; key < 4; ++key) {
            const std::string member = std::string(keys[key]) + (key == i ? "\" : true" : "\" : false");
            EXPECT_NE(text.find(member), std::string::npos) << member << text;
        }
    }
}

TEST(HeatImagingThermometry, UnitsAndShapes) {
    const Text units[] = {{"", 0}, {"Centigrade", 1}, {"Fahrenheit", 2}};
    TryNames(
        units,
        [](const std::string& text) {
            const Whole record(1);
            EXPECT_EQ(ParseAdding("HeatImagingThermometry", R"({"TemperatureUnit":")" + text + "\"}", record).result,
                      1);
            return record[0].emTemperatureUnit;
        },
        [](int code) {
            CFG_HEAT_IMAGING_THERMOMETRY_INFO info = {};
            info.emTemperatureUnit = code;
            return ValueOf(Pack("HeatImagingThermometry", info), "TemperatureUnit");
        });
    // One record whatever the table is; in a list stands nothing of it.
    for (const char* table :
         {"[]", R"([{"ObjectDistance":7}])", "7", R"({"Rect":[1,2,3],"HighCTMakerColor":[1,2,3,4,5]})"}) {
        const Whole record(1, 0x11);
        EXPECT_EQ(ParseAdding("HeatImagingThermometry", table, record), (Answer{1, record.size()})) << table;
        EXPECT_TRUE(record.isAll(0)) << table;
    }
}

} // namespace
} // namespace orrery::test
