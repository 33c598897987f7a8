// Every text of every enumeration of the rules, both ways, and every key of the size filter on its own.
#include "analyse/RuleBodyMap.h"
#include "frame/record/Engine.h"
#include "orrery/analyse_rules.h"
#include "orrery/rule_bodies.h"
#include "support/RuleBuffer.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orrery {
namespace {

using test::Document;
using test::RuleBuffer;
using test::RuleReply;

constexpr std::size_t kHead = sizeof(CFG_RULE_INFO);

struct Text {
    std::int32_t code;
    std::string text;
};

struct Enumeration {
    std::uint32_t rule;
    const char* type;
    const char* key; // in "Config"
    std::int32_t unknown;
    std::vector<Text> texts;
};

const std::vector<Text> kLineDirections = {{0, "LeftToRight"}, {1, "RightToLeft"}, {2, "Both"}};
const std::vector<Text> kPositions = {
    {0, "Center"}, {1, "LeftCenter"}, {2, "TopCenter"}, {3, "RightCenter"}, {4, "BottomCenter"}};
const std::vector<Text> kFeatures = {{1, "Sex"}, {2, "Age"},   {3, "Emotion"}, {4, "Glasses"}, {5, "Race"},
                                     {6, "Eye"}, {7, "Mouth"}, {8, "Mask"},    {9, "Beard"},   {10, "Attractive"}};

const Enumeration kNumbers[] = {
    {2, "CrossLineDetection", "Direction", 0, kLineDirections},
    {287, "CrossFenceDetection", "Direction", 0, kLineDirections},
    {3, "CrossRegionDetection", "Direction", 0, {{0, "Enter"}, {1, "Leave"}, {2, "Both"}}},
    {14, "FightDetection", "DetectMode", 255, {{0, ""}, {1, "ByVideo"}, {2, "ByAudio"}, {3, "Both"}}},
    {16, "NumberStat", "Type", 0, {{0, "Region"}, {1, "Entrance"}, {2, ""}}},
    {279, "FaceRecognition", "Mode", 0, {{0, "Normal"}, {1, "Area"}, {2, "Auto"}}},
    {21, "TrafficControl", "PlateNumber", 0, {{0, "Odd"}, {1, "Even"}, {2, "Both"}}},
    {297, "LeaveDetection", "Mode", 255, {{0, ""}, {1, "ByPatrol"}, {2, "BySentry"}}},
};

const Enumeration kLists[] = {
    {2, "CrossLineDetection", "TriggerPosition", 0, kPositions},
    {287, "CrossFenceDetection", "TriggerPosition", 0, kPositions},
    {9, "MoveDetection", "TriggerPosition", 0, kPositions},
    {7, "WanderDetection", "TriggerPosition", 0, kPositions},
    {5, "LeftDetection", "TriggerPosition", 0, kPositions},
    {275, "RetrogradeDetection", "TriggerPosition", 0, kPositions},
    {274, "RunDetection", "TriggerPosition", 0, kPositions},
    {3, "CrossRegionDetection", "Action", 0, {{0, "Appear"}, {1, "Disappear"}, {2, "Inside"}, {3, "Cross"}}},
    {9, "MoveDetection", "DetectType", 0, {{0, "FastMove"}, {1, "AbruptSpeedup"}, {2, "AbruptSlowdown"}}},
    {274, "RunDetection", "DetectType", 0, {{0, "FastRun"}, {1, "AbruptSpeedup"}, {2, "AbruptSlowdown"}}},
    {19,
     "VideoAbnormalDetection",
     "DetectType",
     0,
     {{0, "Loss"},
      {1, "Cover"},
      {2, "Frozen"},
      {3, "Light"},
      {4, "Dark"},
      {5, "SceneChange"},
      {6, "Striation"},
      {7, "Noise"},
      {8, "Unbalance"},
      {9, "Blur"},
      {10, "Contrast"},
      {11, "Motion"},
      {12, "Filckering"},
      {13, "Color"},
      {14, "UnFocus"},
      {15, "OverExposure"}}},
    {279, "FaceRecognition", "Areas", 0, {{0, "Eyebrow"}, {1, "Eye"}, {2, "Nose"}, {3, "Mouth"}, {4, "Cheek"}}},
    {26, "FaceDetection", "FeatureList", 0, kFeatures},
    {535, nullptr, "FeatureList", 0, kFeatures},
    {297, "LeaveDetection", "TriggerMode", 0, {{1, "NoPerson"}, {2, "Leave"}, {3, "Static"}}},
    {312, "TrafficWithoutSafeBelt", "Seats", 0, {{1, "MainSeat"}, {2, "SlaveSeat"}}},
};

const record::Field& FieldOf(const Enumeration& names) {
    for (const record::Field& field : *FindRuleBody(names.rule)->table) {
        if (field.key != nullptr && field.key == std::string("Config/") + names.key) return field;
    }
    ADD_FAILURE() << names.key;
    std::abort();
}

// A buffer of one rule, clear behind its head.
struct ClearRule : RuleBuffer {
    explicit ClearRule(std::uint32_t code) : RuleBuffer(kHead + FindRuleBody(code)->size) {
        const std::uint32_t size = FindRuleBody(code)->size;
        std::memset(memory.data(), 0, kHead + size);
        const CFG_RULE_INFO head = {code, static_cast<std::int32_t>(size), {}};
        std::memcpy(memory.data(), &head, sizeof head);
        rules.nRuleCount = 1;
    }
};

char* At(RuleBuffer& buffer, const record::Field& field, std::size_t index = 0) {
    return buffer.memory.data() + kHead + field.offset + index * field.elementSize;
}
std::int64_t CodeAt(RuleBuffer& buffer, const record::Field& field) {
    return record::LoadInteger(field.cell, reinterpret_cast<std::byte*>(At(buffer, field)));
}
void SetCode(RuleBuffer& buffer, const record::Field& field, std::int32_t code) {
    record::StoreInteger(field.cell, reinterpret_cast<std::byte*>(At(buffer, field)), code);
}
void SetCount(RuleBuffer& buffer, const record::Field& field, std::int32_t count) {
    std::memcpy(buffer.memory.data() + kHead + field.count.offset, &count, sizeof count);
}

std::string RuleOf(const Enumeration& names, const std::string& value) {
    return RuleReply(std::string(R"({"Type":")") + names.type + R"(","Class":"Normal","Config":{")" + names.key
                     + "\":" + value + "}}");
}

std::string InOtherCase(std::string text) {
    for (char& letter : text)
        letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
    return text;
}

std::string Quoted(const std::string& text) {
    return '"' + text + '"';
}

// What is written for a key of "Config", in the text's own form; "" for no key.
std::string WrittenFor(const RuleBuffer& buffer, const char* key) {
    const std::string packed = buffer.Pack();
    Document document(packed);
    for (const json::Member& member : document.root[0u]["Config"].members()) {
        if (member.key() == key) return test::TextOf(member.value);
    }
    return "";
}

TEST(RuleCodes, EveryTextReadsAsItsCodeAndNoOtherDoes) {
    for (const Enumeration& names : kNumbers) {
        const record::Field& field = FieldOf(names);
        RuleBuffer buffer(kHead + FindRuleBody(names.rule)->size);
        const auto read = [&](const std::string& value) {
            EXPECT_TRUE(buffer.Parse(RuleOf(names, value)));
            return CodeAt(buffer, field);
        };
        for (const auto& [code, text] : names.texts) {
            EXPECT_EQ(read(Quoted(text)), code) << names.type << " " << text;
            EXPECT_EQ(read(Quoted(text + " ")), names.unknown) << names.type << " " << text;
            if (!text.empty()) {
                EXPECT_EQ(read(Quoted(InOtherCase(text))), names.unknown) << names.type << " " << text;
            }
        }
        EXPECT_EQ(read("null"), 0);
    }
}

TEST(RuleCodes, EveryCodeIsWrittenByItsTextAndNoOtherIs) {
    for (const Enumeration& names : kNumbers) {
        const record::Field& field = FieldOf(names);
        ClearRule buffer(names.rule);
        for (const auto& [code, text] : names.texts) {
            SetCode(buffer, field, code);
            EXPECT_EQ(WrittenFor(buffer, names.key), Quoted(text)) << names.type << code;
        }
        const std::string beyond = names.rule == 297 ? Quoted("BySentry") : "";
        for (const std::int32_t code : {static_cast<std::int32_t>(names.texts.size()), 100, 255}) {
            SetCode(buffer, field, code);
            EXPECT_EQ(WrittenFor(buffer, names.key), beyond) << names.type << code;
        }
    }
}

TEST(RuleCodes, EveryTextOfAListReadsAsItsCodeAndNoOtherDoes) {
    for (const Enumeration& names : kLists) {
        if (names.type == nullptr) continue; // never read
        const record::Field& field = FieldOf(names);
        RuleBuffer buffer(kHead + FindRuleBody(names.rule)->size);
        const auto read = [&](const std::string& value) {
            EXPECT_TRUE(buffer.Parse(RuleOf(names, "[" + value + "]")));
            EXPECT_EQ(record::LoadSlot(field.count, reinterpret_cast<std::byte*>(buffer.memory.data() + kHead)), 1);
            return CodeAt(buffer, field);
        };
        for (const auto& [code, text] : names.texts) {
            EXPECT_EQ(read(Quoted(text)), code) << names.type << " " << text;
            EXPECT_EQ(read(Quoted(text + "s")), names.unknown) << names.type << " " << text;
            // Of a rule's own lists case counts, of those that all rules share it does not.
            const bool isShared = std::string_view(names.key) == "TriggerPosition";
            EXPECT_EQ(read(Quoted(InOtherCase(text))), isShared ? code : names.unknown) << names.type << " " << text;
        }
        EXPECT_EQ(read("7"), names.unknown) << names.type;
    }
}

TEST(RuleCodes, EveryCodeOfAListIsWrittenByItsTextAndNoOtherIs) {
    for (const Enumeration& names : kLists) {
        const record::Field& field = FieldOf(names);
        ClearRule buffer(names.rule);
        SetCount(buffer, field, 1);
        for (const auto& [code, text] : names.texts) {
            SetCode(buffer, field, code);
            EXPECT_EQ(WrittenFor(buffer, names.key), "[ " + Quoted(text) + " ]") << names.rule << " " << code;
        }
        SetCode(buffer, field, names.texts.back().code + 1);
        EXPECT_EQ(WrittenFor(buffer, names.key), names.rule == 297 ? "[ \"Unknown\" ]" : "") << names.rule;
        SetCount(buffer, field, 0);
        EXPECT_EQ(WrittenFor(buffer, names.key), "") << names.rule;
    }
}

TEST(RuleCodes, EveryClassGoesBothWays) {
    const char* const classes[] = {"",
                                   "Normal",
                                   "Traffic",
                                   "TrafficPatrol",
                                   "FaceDetection",
                                   "ATM",
                                   "Indoor",
                                   "FaceRecognition",
                                   "Prison",
                                   "NumberStat",
                                   "HeatMap",
                                   "VideoDiagnosis",
                                   "VehicleAnalyse",
                                   "CourseRecord",
                                   "Vehicle",
                                   "StandUpDetection",
                                   "Gate",
                                   "SDFaceDetect",
                                   "HeatMapPlan",
                                   "NumberStatPlan",
                                   "ATMFD",
                                   "Highway",
                                   "City",
                                   "LeTrack",
                                   "SCR",
                                   "StereoVision",
                                   "HumanDetect",
                                   "FaceAnalysis",
                                   "XRayDetection",
                                   "StereoNumber",
                                   "CrowdDistriMap"};
    RuleBuffer buffer(kHead + sizeof(CFG_RULE_LETRACK_INFO));
    std::int32_t number = 0;
    for (const char* name : classes) {
        ASSERT_TRUE(buffer.Parse(RuleReply(std::string(R"({"Type":"LeTrack","Class":")") + name + "\"}")));
        EXPECT_EQ(buffer.Head().stuRuleGeneral.nClass, number) << name;
        EXPECT_NE(buffer.Pack().find(std::string(R"("Class" : ")") + name + "\""), std::string::npos) << name;
        ++number;
    }
    EXPECT_EQ(number, 31);
}

TEST(RuleCodes, AnIdKeepsItsLowByte) {
    for (const auto& [text, id] : {std::pair{"255", 255}, std::pair{"256", 0}, std::pair{"-1", 255},
                                   std::pair{"3.9", 3}, std::pair{"\"5\"", 0}, std::pair{"null", 0}}) {
        RuleBuffer buffer(kHead + sizeof(CFG_RULE_LETRACK_INFO));
        ASSERT_TRUE(buffer.Parse(RuleReply(std::string(R"({"Type":"LeTrack","Id":)") + text + "}")));
        EXPECT_EQ(buffer.Head().stuRuleGeneral.byId, id) << text;
        EXPECT_NE(buffer.Pack().find("\"Id\" : " + std::to_string(id) + ","), std::string::npos) << text;
    }
}

TEST(RuleCodes, APlansNumberIsLeftOutByCountsOnly) {
    const ClearRule count(16);
    EXPECT_EQ(WrittenFor(count, "PlanId"), "");
    const ClearRule map(351);
    EXPECT_EQ(WrittenFor(map, "PlanId"), "0");
}

// Texts of devices are counted in bytes before they are converted, but for those that are not converted at all.
TEST(RuleCodes, LongTextsAreCutBeforeTheyAreConverted) {
    struct Case {
        std::uint32_t rule;
        const char* key;
        record::Kind kind;
        unsigned bytes;
    };
    for (const Case& one :
         {Case{21, "VehicleSizes", record::Kind::Text, 192}, Case{21, "PlateTypes", record::Kind::Text, 192},
          Case{26, "HumanFaceTypes", record::Kind::Text, 192}, Case{23, "TriggerMode", record::Kind::Text, 192},
          Case{24, "TriggerMode", record::Kind::RawText, 0}}) {
        const record::Field& field = FieldOf({one.rule, "", one.key, 0, {}});
        EXPECT_EQ(field.kind, one.kind) << one.key;
        EXPECT_EQ(field.firstBytes, one.bytes) << one.key;
        EXPECT_EQ(field.elementSize, 128u) << one.key;
    }
}

// ---- The size filter ----

std::unique_ptr<CFG_RULE_CLIMB_INFO> ReadFilter(const std::string& members) {
    RuleBuffer buffer(kHead + sizeof(CFG_RULE_CLIMB_INFO));
    EXPECT_TRUE(buffer.Parse(
        RuleReply(R"({"Type":"ClimbDetection","Class":"Normal","Config":{"SizeFilter":{)" + members + "}}}")));
    auto body = std::make_unique<CFG_RULE_CLIMB_INFO>();
    buffer.Load(*body);
    return body;
}

std::string WrittenFilter(const CFG_RULE_CLIMB_INFO& body) {
    RuleBuffer buffer(kHead + sizeof body);
    buffer.Add(296, body);
    return WrittenFor(buffer, "SizeFilter");
}

TEST(RuleCodes, TheFiltersUnitsAndKindsGoBothWays) {
    const char* const units[] = {"Pixel", "Metric", "CalibratedPixel"};
    const char* const kinds[] = {"ByLength", "ByArea", "ByWidthHeight"};
    for (std::uint8_t i = 0; i < 3; ++i) {
        auto body = ReadFilter(std::string(R"("MeasureMode":")") + units[i] + R"(","Type":")" + kinds[2 - i] + "\"");
        EXPECT_EQ(body->stuSizeFilter.byMeasureMode, i);
        EXPECT_EQ(body->stuSizeFilter.byFilterType, 2 - i);
        const auto other = ReadFilter(R"("MeasureMode":")" + InOtherCase(units[i]) + R"(","Type":")"
                                      + InOtherCase(kinds[2 - i]) + "\"");
        EXPECT_EQ(other->stuSizeFilter.byMeasureMode, i);
        EXPECT_EQ(other->stuSizeFilter.byFilterType, 2 - i);
        EXPECT_EQ(WrittenFilter(*body),
                  std::string(R"({ "MeasureMode" : ")") + units[i] + R"(", "Type" : ")" + kinds[2 - i] + "\" }");
        body->stuSizeFilter.byMeasureMode = static_cast<std::uint8_t>(3 + 100 * i);
        EXPECT_EQ(WrittenFilter(*body), std::string(R"({ "Type" : ")") + kinds[2 - i] + "\" }");
    }
    auto body = ReadFilter(R"("Type":"ByVolume","MeasureMode":5)");
    EXPECT_EQ(body->stuSizeFilter.abFilterTypeEnable, 1);
    EXPECT_EQ(body->stuSizeFilter.byFilterType, 0);
    EXPECT_EQ(body->stuSizeFilter.abMeasureModeEnable, 1);
    EXPECT_EQ(body->stuSizeFilter.byMeasureMode, 0);
}

using Flag = std::uint8_t CFG_SIZE_FILTER_INFO::*;

struct FilterKey {
    Flag flag;
    Flag behind; // the key that lets this one be read, by its flag
    const char* key;
    const char* value; // as written for a clear record
};

constexpr FilterKey kFilterKeys[] = {
    {&CFG_SIZE_FILTER_INFO::abMeasureModeEnable, nullptr, "MeasureMode", "\"Pixel\""},
    {&CFG_SIZE_FILTER_INFO::abFilterTypeEnable, nullptr, "Type", "\"ByLength\""},
    {&CFG_SIZE_FILTER_INFO::abFilterMinSize, nullptr, "MinSize", "[ 0.000000000000000, 0.000000000000000 ]"},
    {&CFG_SIZE_FILTER_INFO::abFilterMaxSize, nullptr, "MaxSize", "[ 0.000000000000000, 0.000000000000000 ]"},
    {&CFG_SIZE_FILTER_INFO::abByArea, nullptr, "ByArea", "false"},
    {&CFG_SIZE_FILTER_INFO::abMinArea, &CFG_SIZE_FILTER_INFO::abByArea, "MinArea", "0.000000000000000"},
    {&CFG_SIZE_FILTER_INFO::abMaxArea, &CFG_SIZE_FILTER_INFO::abByArea, "MaxArea", "0.000000000000000"},
    {&CFG_SIZE_FILTER_INFO::abMinAreaSize, &CFG_SIZE_FILTER_INFO::abByArea, "MinAreaSize",
     "[ 0.000000000000000, 0.000000000000000 ]"},
    {&CFG_SIZE_FILTER_INFO::abMaxAreaSize, &CFG_SIZE_FILTER_INFO::abByArea, "MaxAreaSize",
     "[ 0.000000000000000, 0.000000000000000 ]"},
    {&CFG_SIZE_FILTER_INFO::abByRatio, nullptr, "ByRatio", "false"},
    {&CFG_SIZE_FILTER_INFO::abMinRatio, &CFG_SIZE_FILTER_INFO::abByRatio, "MinRatio", "0.000000000000000"},
    {&CFG_SIZE_FILTER_INFO::abMaxRatio, &CFG_SIZE_FILTER_INFO::abByRatio, "MaxRatio", "0.000000000000000"},
    {&CFG_SIZE_FILTER_INFO::abMinRatioSize, &CFG_SIZE_FILTER_INFO::abByRatio, "MinRatioSize",
     "[ 0.000000000000000, 0.000000000000000 ]"},
    {&CFG_SIZE_FILTER_INFO::abMaxRatioSize, &CFG_SIZE_FILTER_INFO::abByRatio, "MaxRatioSize",
     "[ 0.000000000000000, 0.000000000000000 ]"},
    {&CFG_SIZE_FILTER_INFO::abBySize, nullptr, "BySize", "false"},
};

TEST(RuleCodes, EachKeyOfAFilterIsWrittenByItsOwnFlag) {
    for (const FilterKey& one : kFilterKeys) {
        auto body = std::make_unique<CFG_RULE_CLIMB_INFO>();
        body->bSizeFilter = 1;
        body->stuSizeFilter.*one.flag = 1;
        EXPECT_EQ(WrittenFilter(*body), std::string("{ \"") + one.key + "\" : " + one.value + " }");
        body->bSizeFilter = 0;
        EXPECT_EQ(WrittenFilter(*body), "") << one.key;
    }
}

TEST(RuleCodes, EachKeyOfAFilterRaisesItsFlagWhenItIsRead) {
    for (const FilterKey& one : kFilterKeys) {
        const std::string alone = std::string("\"") + one.key + "\":{}"; // present, whatever it is
        auto body = ReadFilter(alone);
        for (const FilterKey& other : kFilterKeys) {
            EXPECT_EQ(body->stuSizeFilter.*other.flag, &other == &one && one.behind == nullptr) << one.key << other.key;
        }
        if (one.behind == nullptr) continue;
        for (const FilterKey& other : kFilterKeys) {
            if (other.behind != nullptr || &other == &one) continue;
            body = ReadFilter(alone + ",\"" + other.key + "\":true");
            EXPECT_EQ(body->stuSizeFilter.*one.flag, one.behind == other.flag) << one.key << other.key;
        }
    }
}

TEST(RuleCodes, EachListOfBoxesKeepsTen) {
    std::string boxes = R"({"CenterPoint":[1,-2],"Ratio":0.5},null)";
    for (int i = 2; i < 11; ++i)
        boxes += R"(,{"CenterPoint":[)" + std::to_string(i) + R"(,0]})";
    struct Case {
        const char* key;
        std::int32_t CFG_SIZE_FILTER_INFO::*count;
        CFG_CALIBRATE_BOX (CFG_SIZE_FILTER_INFO::*list)[10];
    };
    for (const Case& one :
         {Case{"CalibrateBoxs", &CFG_SIZE_FILTER_INFO::nCalibrateBoxNum, &CFG_SIZE_FILTER_INFO::stuCalibrateBoxs},
          Case{"AreaCalibrateBoxs", &CFG_SIZE_FILTER_INFO::nAreaCalibrateBoxNum,
               &CFG_SIZE_FILTER_INFO::stuAreaCalibrateBoxs},
          Case{"RatioCalibrateBoxs", &CFG_SIZE_FILTER_INFO::nRatioCalibrateBoxNum,
               &CFG_SIZE_FILTER_INFO::stuRatioCalibrateBoxs}}) {
        auto body = ReadFilter(std::string("\"") + one.key + "\":[" + boxes + "]");
        CFG_SIZE_FILTER_INFO& filter = body->stuSizeFilter;
        EXPECT_EQ(filter.*one.count, 9) << one.key; // ten places, one of them a null
        EXPECT_EQ((filter.*one.list)[0].nCenterPointY, -2) << one.key;
        EXPECT_EQ((filter.*one.list)[0].fRatio, 0.5f) << one.key;
        EXPECT_EQ((filter.*one.list)[1].nCenterPointX, 0) << one.key;
        EXPECT_EQ((filter.*one.list)[9].nCenterPointX, 9) << one.key;
        filter.*one.count = 11;
        const std::string text = WrittenFilter(*body);
        Document document(text);
        ASSERT_EQ(document.root[one.key].size(), 10u) << one.key;
        EXPECT_EQ(test::TextOf(document.root[one.key][0u]),
                  R"({ "CenterPoint" : [ 1, -2 ], "Ratio" : 0.5000000000000000 })");
        EXPECT_EQ(document.root.size(), 1u); // no key of another list
    }
}

} // namespace
} // namespace orrery
