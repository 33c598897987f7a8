// What heads and their protocols can do.
#include "orrery/ptz_caps.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

constexpr const char* kName = "ptz.getCurrentProtocolCaps";

Parsed<CFG_PTZ_CAPS> Caps(const std::string& caps) {
    return ParseDocument<CFG_PTZ_CAPS>(kName, R"({"result":true,"params":{"caps":)" + caps + "}}");
}

TEST(PtzCaps, ReadsEveryNumber) {
    const char* const shorts[] = {"CamAddrMin",   "CamAddrMax",   "MonAddrMin",  "MonAddrMax",  "PresetMin",
                                  "PresetMax",    "TourMin",      "TourMax",     "PatternMin",  "PatternMax",
                                  "TileSpeedMin", "TileSpeedMax", "PanSpeedMin", "PanSpeedMax", "AutoScanMin",
                                  "AutoScanMax",  "AuxMin",       "AuxMax"};
    const char* const numbers[] = {"Interval", "Type", "AlarmLen", "NearLightNumber", "FarLightNumber"};
    std::string text = "{\"Name\":\"Pelco\"";
    for (int i = 0; i < 18; ++i)
        text += ",\"" + std::string(shorts[i]) + "\":" + std::to_string(1000 + i);
    for (int i = 0; i < 5; ++i)
        text += ",\"" + std::string(numbers[i]) + "\":" + std::to_string(4000000000U + static_cast<unsigned>(i));
    const auto caps = Caps(text
                           + R"(,"PtzMotionRange":{"HorizontalAngle":[-5,6],"VerticalAngle":[-7,8]},)"
                             R"("AutoAreaScan":{"Support":true,"ScanNum":9}})");
    ASSERT_TRUE(caps);
    EXPECT_EQ(caps.length, sizeof(CFG_PTZ_CAPS));
    const std::uint16_t read[] = {caps->wCamAddrMin,  caps->wCamAddrMax,  caps->wMonAddrMin,   caps->wMonAddrMax,
                                  caps->wPresetMin,   caps->wPresetMax,   caps->wTourMin,      caps->wTourMax,
                                  caps->wPatternMin,  caps->wPatternMax,  caps->wTileSpeedMin, caps->wTileSpeedMax,
                                  caps->wPanSpeedMin, caps->wPanSpeedMax, caps->wAutoScanMin,  caps->wAutoScanMax,
                                  caps->wAuxMin,      caps->wAuxMax};
    for (int i = 0; i < 18; ++i)
        EXPECT_EQ(read[i], 1000 + i) << shorts[i];
    const std::uint32_t words[] = {caps->nInterval, caps->nType, caps->nAlarmLen, caps->nNearLightNumber,
                                   caps->nFarLightNumber};
    for (unsigned i = 0; i < 5; ++i)
        EXPECT_EQ(words[i], 4000000000U + i) << numbers[i];
    EXPECT_STREQ(caps->szName, "Pelco");
    EXPECT_EQ(caps->nHorizontalAngle[0], -5);
    EXPECT_EQ(caps->nHorizontalAngle[1], 6);
    EXPECT_EQ(caps->nVerticalAngle[0], -7);
    EXPECT_EQ(caps->nVerticalAngle[1], 8);
    EXPECT_EQ(caps->bAutoAreaScan, 1u);
    EXPECT_EQ(caps->nScanNum, 9u);
}

TEST(PtzCaps, ReadsEverySwitchByItself) {
    const std::pair<const char*, std::uint32_t CFG_PTZ_CAPS::*> switches[] = {
        {"Pan", &CFG_PTZ_CAPS::bPan},
        {"Tile", &CFG_PTZ_CAPS::bTile},
        {"Zoom", &CFG_PTZ_CAPS::bZoom},
        {"Iris", &CFG_PTZ_CAPS::bIris},
        {"Preset", &CFG_PTZ_CAPS::bPreset},
        {"RemovePreset", &CFG_PTZ_CAPS::bRemovePreset},
        {"Tour", &CFG_PTZ_CAPS::bTour},
        {"RemoveTour", &CFG_PTZ_CAPS::bRemoveTour},
        {"Pattern", &CFG_PTZ_CAPS::bPattern},
        {"AutoPan", &CFG_PTZ_CAPS::bAutoPan},
        {"AutoScan", &CFG_PTZ_CAPS::bAutoScan},
        {"Aux", &CFG_PTZ_CAPS::bAux},
        {"Alarm", &CFG_PTZ_CAPS::bAlarm},
        {"Wiper", &CFG_PTZ_CAPS::bWiper},
        {"Flip", &CFG_PTZ_CAPS::bFlip},
        {"Menu", &CFG_PTZ_CAPS::bMenu},
        {"Reset", &CFG_PTZ_CAPS::bReset},
        {"GetStatus", &CFG_PTZ_CAPS::bGetStatus},
        {"SupportLimit", &CFG_PTZ_CAPS::bSupportLimit},
        {"PtzDevice", &CFG_PTZ_CAPS::bPtzDevice},
        {"SupportPresetTimeSection", &CFG_PTZ_CAPS::bSupportPresetTimeSection},
        {"Focus", &CFG_PTZ_CAPS::bFocus},
        {"SupportPtzPatternOSD", &CFG_PTZ_CAPS::bSupportPtzPatternOsd},
        {"SupportPtzRS485DetectOSD", &CFG_PTZ_CAPS::bSupportPtzRs485DetectOsd},
        {"SupportPTZCoordinates", &CFG_PTZ_CAPS::bSupportPtzCoordinates},
        {"SupportPTZZoom", &CFG_PTZ_CAPS::bSupportPtzZoom},
        {"DirectionDisplay ", &CFG_PTZ_CAPS::bDirectionDisplay},
    };
    for (const auto& [key, member] : switches) {
        const auto caps = Caps(R"({"Move":[],")" + std::string(key) + "\":true}");
        CFG_PTZ_CAPS expected{};
        expected.*member = 1;
        EXPECT_EQ(std::memcmp(caps.record.get(), &expected, sizeof expected), 0) << key;
    }
    const auto other = Caps(R"({"Move":[],"DirectionDisplay":true,"Tilt":true,"pan":true})");
    EXPECT_TRUE(other.isCleared());
}

TEST(PtzCaps, MovesInAllWaysUnlessAListSaysOtherwise) {
    const auto moves = [](const std::string& caps) {
        const auto read = Caps(caps);
        return std::array{read->bMoveRelatively, read->bMoveAbsolutely, read->bMoveDirectly};
    };
    using Moves = std::array<std::uint32_t, 3>;
    EXPECT_EQ(moves("{}"), (Moves{1, 1, 1}));
    EXPECT_EQ(moves(R"({"Move":null})"), (Moves{1, 1, 1}));
    EXPECT_EQ(moves(R"({"Move":[]})"), (Moves{0, 0, 0}));
    EXPECT_EQ(moves(R"({"Move":["Relatively"]})"), (Moves{1, 0, 0}));
    EXPECT_EQ(moves(R"({"Move":["x","Absolutely"]})"), (Moves{0, 1, 0}));
    EXPECT_EQ(moves(R"({"Move":["Directly","Relatively"]})"), (Moves{1, 0, 1}));
    EXPECT_EQ(moves(R"({"Move":["directly","ABSOLUTELY"]})"), (Moves{0, 0, 0})); // case counts
    EXPECT_EQ(moves(R"({"Move":"Directly"})"), (Moves{0, 0, 0}));
}

TEST(PtzCaps, TellsViewRangeAndFocusByWhatTheFirstIsNot) {
    const auto view = [](const std::string& list) {
        const auto read = Caps(R"({"SupportViewRangeType":)" + list + "}");
        return std::pair(read->bViewRange, read->dwViewRangeMask);
    };
    EXPECT_EQ(view(R"(["ElectronicCompass"])"), std::pair(1u, 0u));
    EXPECT_EQ(view(R"(["electroniccompass","Other"])"), std::pair(1u, 0u));
    EXPECT_EQ(view(R"(["Other","ElectronicCompass"])"), std::pair(1u, 1u));
    EXPECT_EQ(view("[7]"), std::pair(1u, 1u));
    EXPECT_EQ(view("[]"), std::pair(0u, 0u));
    EXPECT_EQ(view("null"), std::pair(0u, 0u));
    EXPECT_EQ(view("\"Other\""), std::pair(0u, 0u));
    const auto focus = [](const std::string& list) {
        return Caps(R"({"SupportFocusMode":)" + list + "}")->dwFocusModeMask;
    };
    EXPECT_EQ(focus(R"(["Car"])"), 2u + 4 + 8);
    EXPECT_EQ(focus(R"(["Plate"])"), 1u + 4 + 8);
    EXPECT_EQ(focus(R"(["People","Car"])"), 1u + 2 + 8);
    EXPECT_EQ(focus(R"(["Face","Face","Face"])"), 1u + 2 + 4);
    EXPECT_EQ(focus(R"(["Other"])"), 15u);
    EXPECT_EQ(focus("[null]"), 15u);
    EXPECT_EQ(focus("[]"), 0u);
    EXPECT_EQ(focus("null"), 0u);
}

TEST(PtzCaps, ReadsAuxiliaryNamesUpToANull) {
    const auto caps = Caps(R"({"Auxs":["Light",5,")" + std::string(40, 'w') + R"(",null,"Wiper"]})");
    EXPECT_STREQ(caps->szAuxs[0], "Light");
    EXPECT_STREQ(caps->szAuxs[1], "");
    EXPECT_EQ(std::string(caps->szAuxs[2]), std::string(31, 'w'));
    EXPECT_STREQ(caps->szAuxs[3], "");
    EXPECT_STREQ(caps->szAuxs[4], "");
    std::string list = "\"0\"";
    for (int i = 1; i < 34; ++i)
        list += ",\"" + std::to_string(i) + '"';
    EXPECT_STREQ(Caps(R"({"Auxs":[)" + list + "]}")->szAuxs[31], "31");
}

TEST(PtzCaps, TakesAnglesInPairs) {
    for (const char* list : {"[1]", "[1,2,3]", "[]", "7", R"({"a":1,"b":2})"}) {
        const auto caps =
            Caps(R"({"PtzMotionRange":{"HorizontalAngle":)" + std::string(list) + R"(,"VerticalAngle":)" + list + "}}");
        EXPECT_EQ(caps->nHorizontalAngle[0], 0) << list;
        EXPECT_EQ(caps->nVerticalAngle[0], 0) << list;
    }
}

TEST(PtzCaps, ReadsPrivacyMasking) {
    const auto caps =
        Caps(R"({"PrivacyMasking":{"Support":true,"SetColorSupport":true,"SupportType":["Polygon","rect",)"
             R"("Star",null,"","Rect","Rect","Rect","Rect"],"SetMosaicSupport":true,)"
             R"("SetColorIndependent":true,"SupportMosaicType":[8,16,24,32,40,48,56,64,72]}})");
    EXPECT_EQ(caps->bPrivacyMasking, 1u);
    EXPECT_EQ(caps->bSetColorSupport, 1u);
    EXPECT_EQ(caps->bSupportType, 1u);
    EXPECT_EQ(caps->nTypeCount, 8u);
    EXPECT_EQ(caps->emTypes[0], CFG_MASK_POLYGON);
    EXPECT_EQ(caps->emTypes[1], CFG_MASK_RECT);
    EXPECT_EQ(caps->emTypes[2], CFG_MASK_UNKNOWN);
    EXPECT_EQ(caps->emTypes[7], CFG_MASK_RECT);
    EXPECT_EQ(caps->bSetMosaicSupport, 1u);
    EXPECT_EQ(caps->bSetColorIndependent, 1u);
    EXPECT_EQ(caps->bSupportMosaicType, 1u);
    EXPECT_EQ(caps->nMosaicCount, 8u);
    EXPECT_EQ(caps->nMosaics[7], 64);
    const auto empty = Caps(R"({"PrivacyMasking":{"SupportType":[]},"SupportMosaicType":[1],"SetColorSupport":true})");
    EXPECT_EQ(empty->bSupportType, 1u);
    EXPECT_EQ(empty->nTypeCount, 0u);
    EXPECT_EQ(empty->bSupportMosaicType, 0u); // not inside its block
    EXPECT_EQ(empty->bSetColorSupport, 0u);
}

TEST(PtzCaps, MeasuresDistancesUnlessItsBlockSaysOtherwise) {
    const auto measure = [](const std::string& block) {
        const auto read = Caps(R"({"SDMeasureDistance":)" + block + "}");
        return std::array{read->bSdMeasureDistance, read->bOsdEnable};
    };
    using Pair = std::array<std::uint32_t, 2>;
    EXPECT_EQ(measure("null"), (Pair{0, 0}));
    EXPECT_EQ(measure("{}"), (Pair{1, 1}));
    EXPECT_EQ(measure(R"({"Support":false})"), (Pair{0, 1}));
    EXPECT_EQ(measure(R"({"OsdEnable":false})"), (Pair{1, 0}));
    EXPECT_EQ(measure(R"({"OsdEnable":false,"Support":false})"), (Pair{0, 0}));
    EXPECT_EQ(measure(R"({"OsdEnable":null,"Support":true})"), (Pair{1, 1}));
    const auto range = Caps(R"({"SDMeasureDistance":{"DisplayDurationRange":[5,60,7]}})");
    EXPECT_EQ(range->nDisplayDuration[0], 5);
    EXPECT_EQ(range->nDisplayDuration[1], 60);
}

TEST(PtzCaps, IsClearWithoutCaps) {
    for (const char* document :
         {R"({"result":true})", R"({"result":true,"params":{}})", R"({"result":true,"params":{"caps":null}})"}) {
        const auto caps = ParseDocument<CFG_PTZ_CAPS>(kName, document);
        EXPECT_TRUE(caps) << document;
        EXPECT_EQ(caps.length, sizeof(CFG_PTZ_CAPS));
        EXPECT_TRUE(caps.isCleared()) << document; // the moves too
    }
    for (const char* document : {"[", R"({"result":false,"params":{"caps":{}}})", R"({"params":{"caps":{}}})"}) {
        const auto caps = ParseDocument<CFG_PTZ_CAPS>(kName, document);
        EXPECT_FALSE(caps) << document;
        EXPECT_TRUE(caps.isCleared());
    }
}

// ---- "ptz.getProtocol", "ptz.factory.instance" ----

TEST(PtzProtocols, ReadsBothLists) {
    const auto parse = [](const std::string& info, const char* result = "true") {
        return ParseDocument<CFG_PTZ_PROTOCOLS>("ptz.getProtocol", R"({"result":)" + std::string(result)
                                                                       + R"(,"params":{"info":)" + info + "}}");
    };
    const auto read = parse(R"({"Rs":["A","B"],"Coaxial":["C",7,")" + std::string(40, 'd') + "\"]}");
    ASSERT_TRUE(read);
    EXPECT_EQ(read.length, sizeof(CFG_PTZ_PROTOCOLS));
    EXPECT_EQ(read->nRsCount, 2u);
    EXPECT_STREQ(read->szRs[0], "A");
    EXPECT_STREQ(read->szRs[1], "B");
    EXPECT_EQ(read->nCoaxialCount, 3u);
    EXPECT_STREQ(read->szCoaxial[0], "C");
    EXPECT_STREQ(read->szCoaxial[1], "");
    EXPECT_EQ(std::string(read->szCoaxial[2]), std::string(31, 'd'));
    std::string list = "\"0\"";
    for (int i = 1; i < 34; ++i)
        list += ",\"" + std::to_string(i) + '"';
    EXPECT_EQ(parse(R"({"Rs":[)" + list + "]}")->nRsCount, 32u);
    EXPECT_TRUE(parse("null"));
    EXPECT_TRUE(parse("null").isCleared());
    for (const char* result : {"1", "\"true\"", "false", "null"})
        EXPECT_FALSE(parse("{}", result)) << result;
}

TEST(PtzInstance, IsWhetherThereIsANumber) {
    const auto parse = [](const char* document) {
        return ParseDocument<CFG_PTZ_INSTANCE>("ptz.factory.instance", document);
    };
    for (const char* document : {R"({"result":12})", R"({"result":-1})", R"({"result":true})", R"({"result":2.5})"}) {
        const auto read = parse(document);
        EXPECT_TRUE(read) << document;
        EXPECT_EQ(read.length, 4u);
        EXPECT_EQ(read->bInstance, 1u) << document;
    }
    for (const char* document : {R"({"result":0})", "{}", R"({"result":false})", R"({"result":"12"})",
                                 R"({"result":0.5})", R"({"result":[1]})", "7"}) {
        const auto read = parse(document);
        EXPECT_TRUE(read) << document;
        EXPECT_EQ(read.length, 4u);
        EXPECT_EQ(read->bInstance, 0u) << document;
    }
    EXPECT_FALSE(parse("["));
}

} // namespace
} // namespace orrery::test
