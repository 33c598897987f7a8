// "BurnRecordFormat", "MultiBurn", "BurnPlan", "BurnManager.getCaps".
#include "orrery/burning.h"
#include "support/Call.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace orrery::test {
namespace {

const char* const kPacks[] = {"QVAV", "PS", "ASF", "MP4", "TS"};
const char* const kModes[] = {"Sync", "Turn", "Cycle"};

std::string Lower(std::string text) {
    for (char& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// ---- "BurnRecordFormat" ----

TEST(BurnRecordFormat, KnowsItsNames) {
    const auto read = [](const std::string& value) {
        return Parse<CFG_BURN_RECORD_FORMAT_INFO>("BurnRecordFormat", R"({"RecordPack":)" + value + "}")->emRecordPack;
    };
    for (int code = -1; code <= 5; ++code) {
        const CFG_BURN_RECORD_FORMAT_INFO format{code};
        const bool isKnown = code >= 0 && code < 5;
        EXPECT_EQ(Pack("BurnRecordFormat", format),
                  std::string(R"({ "RecordPack" : ")") + (isKnown ? kPacks[code] : "UNKNOWN") + "\" }");
        if (!isKnown) continue;
        EXPECT_EQ(read("\"" + std::string(kPacks[code]) + "\""), code);
        EXPECT_EQ(read("\"" + Lower(kPacks[code]) + "\""), code);
    }
    for (const char* other : {"\"UNKNOWN\"", "\"AVI\"", "\"\"", "3"})
        EXPECT_EQ(read(other), CFG_BURN_PACK_UNKNOWN) << other;
    EXPECT_EQ(read("null"), CFG_BURN_PACK_QVAV); // absent
}

TEST(BurnRecordFormat, TakesOneRecordOrAList) {
    const Records<CFG_BURN_RECORD_FORMAT_INFO> formats(3, 0x11);
    ASSERT_EQ(ParseTable("BurnRecordFormat", R"([{"RecordPack":"TS"},null,{"RecordPack":"PS"},{"RecordPack":"ASF"}])",
                         formats),
              (Answer{1, 12}));
    EXPECT_EQ(formats[0].emRecordPack, CFG_BURN_PACK_TS);
    EXPECT_EQ(formats[1].emRecordPack, 0);
    EXPECT_EQ(formats[2].emRecordPack, CFG_BURN_PACK_PS);
    EXPECT_EQ(PackAll("BurnRecordFormat", formats),
              R"([ { "RecordPack" : "TS" }, { "RecordPack" : "QVAV" }, { "RecordPack" : "PS" } ])");
    const Records<CFG_BURN_RECORD_FORMAT_INFO> one(1, 0x11);
    for (const char* table : {"null", "[]", "7"}) {
        EXPECT_EQ(ParseTable("BurnRecordFormat", table, one), kRefused) << table;
        EXPECT_TRUE(one.isAll(0));
    }
    EXPECT_EQ(ParseDocument("BurnRecordFormat", R"({"result":false,"params":{"table":{"RecordPack":"MP4"}}})", one),
              (Answer{1, 4})); // read all the same
    EXPECT_EQ(one[0].emRecordPack, CFG_BURN_PACK_MP4);
    const std::string text = R"({ "RecordPack" : "MP4" })";
    EXPECT_EQ(PackBytes("BurnRecordFormat", one.data(), 4, text.size() + 2), text + "\n");
    EXPECT_EQ(PackBytes("BurnRecordFormat", one.data(), 4, text.size() + 1), kFailed);
    EXPECT_EQ(PackBytes("BurnRecordFormat", one.data(), 3, 99), kNotBegun);
}

// ---- "MultiBurn" ----

TEST(MultiBurn, ReadsNothingButSwitches) {
    const auto both = Parse<CFG_MULTI_BURN_INFO>(
        "MultiBurn", R"({"Enable":true,"DataCheck":true,"DataCheckSpeed":"0123456789012345678901234567890123"})");
    ASSERT_TRUE(both);
    EXPECT_EQ(both.length, sizeof(CFG_MULTI_BURN_INFO));
    EXPECT_EQ(both->bEnable, 1);
    EXPECT_EQ(both->bDataCheck, 1);
    EXPECT_STREQ(both->szDataCheckSpeed, "0123456789012345678901234567890");
    EXPECT_EQ(Pack("MultiBurn", *both),
              R"({ "DataCheck" : true, "DataCheckSpeed" : "0123456789012345678901234567890", "Enable" : true })");
    const auto enabled = Parse<CFG_MULTI_BURN_INFO>("MultiBurn", R"({"Enable":true,"DataCheck":false})");
    EXPECT_EQ(enabled->bEnable, 1);
    EXPECT_EQ(enabled->bDataCheck, 0);
    for (const char* value : {"1", "\"true\"", "[true]", "{\"a\":1}", "null", "1.5"}) {
        const auto none = Parse<CFG_MULTI_BURN_INFO>("MultiBurn", std::string(R"({"Enable":)") + value
                                                                      + R"(,"DataCheck":)" + value + "}");
        EXPECT_TRUE(none);
        EXPECT_TRUE(none.isCleared()) << value;
    }
}

TEST(MultiBurn, TakesOneRecordOrAList) {
    constexpr std::uint32_t kSize = sizeof(CFG_MULTI_BURN_INFO);
    const Records<CFG_MULTI_BURN_INFO> burns(2, 0x11);
    ASSERT_EQ(ParseTable("MultiBurn", R"([null,{"DataCheckSpeed":"a"},{"Enable":true}])", burns),
              (Answer{1, 2 * kSize}));
    EXPECT_EQ(PackAll("MultiBurn", burns), R"([ { "DataCheck" : false, "DataCheckSpeed" : "", "Enable" : false }, )"
                                           R"({ "DataCheck" : false, "DataCheckSpeed" : "a", "Enable" : false } ])");
    for (const char* table : {"null", "[]", "7"}) {
        EXPECT_EQ(ParseTable("MultiBurn", table, burns), kRefused) << table;
        EXPECT_TRUE(burns.isAll(0));
    }
    EXPECT_EQ(ParseDocument("MultiBurn", R"({"params":{"table":{"Enable":true}}})", burns), (Answer{1, kSize}));
    EXPECT_EQ(burns[0].bEnable, 1);
    const CFG_MULTI_BURN_INFO burn{};
    const std::string text = PackBytes("MultiBurn", &burn, kSize, kAmple);
    EXPECT_EQ(PackBytes("MultiBurn", &burn, kSize, text.size() + 1), text);
    EXPECT_EQ(PackBytes("MultiBurn", &burn, kSize, text.size()), kFailed);
}

// ---- "BurnPlan" ----

constexpr const char* kBurnPlan = "BurnPlan";
constexpr std::uint32_t kPlanSize = sizeof(CFG_BURN_PLAN_INFO);

// A plan whose fields hold old values, with room for three burners and two channels.
struct Plan {
    std::array<std::int32_t, 4> devices{-1, -1, -1, -1};
    std::array<std::int32_t, 3> channels{-2, -2, -2};
    CFG_BURN_PLAN_INFO info;

    Plan() {
        std::memset(&info, 0x11, sizeof info);
        info.nMaxDevices = 3;
        info.nMaxChannels = 2;
        info.pnDevices = devices.data();
        info.pnChannels = channels.data();
    }
    Answer ParseText(const std::string& text) {
        std::uint32_t length = kNoLength;
        const auto done = CLIENT_ParseData(kBurnPlan, text.c_str(), &info, kPlanSize, &length);
        return {done, length};
    }
    Answer Parse(const std::string& table) { return ParseText(R"({"params":{"table":)" + table + "}}"); }
    bool keepsItsArrays() const {
        return info.nMaxDevices == 3 && info.nMaxChannels == 2 && info.pnDevices == devices.data()
               && info.pnChannels == channels.data();
    }
};
constexpr Answer kPlanRead{1, kPlanSize};

TEST(BurnPlan, GoesRoundWhole) {
    Plan plan;
    ASSERT_EQ(plan.Parse(R"({"SessionId":4,"Devices":[5,6],"Channels":[7,-8],"Recordpack":"asf","Mode":"CYCLE",)"
                         R"("Starttime":"2026-11-20 09:30:15"})"),
              kPlanRead);
    EXPECT_TRUE(plan.keepsItsArrays());
    EXPECT_EQ(plan.info.nSessionId, 4);
    EXPECT_EQ(plan.info.nDeviceCount, 2);
    EXPECT_EQ(plan.devices, (std::array<std::int32_t, 4>{5, 6, -1, -1}));
    EXPECT_EQ(plan.info.nChannelCount, 2);
    EXPECT_EQ(plan.channels, (std::array<std::int32_t, 3>{7, -8, -2}));
    EXPECT_EQ(plan.info.emRecordpack, CFG_BURN_PACK_ASF);
    EXPECT_EQ(plan.info.emMode, CFG_BURN_MODE_CYCLE);
    EXPECT_EQ(plan.info.stuStarttime.dwYear, 2026);
    EXPECT_EQ(plan.info.stuStarttime.dwMonth, 11);
    EXPECT_EQ(plan.info.stuStarttime.dwDay, 20);
    EXPECT_EQ(plan.info.stuStarttime.dwHour, 9);
    EXPECT_EQ(plan.info.stuStarttime.dwMinute, 30);
    EXPECT_EQ(plan.info.stuStarttime.dwSecond, 15);
    EXPECT_EQ(Pack(kBurnPlan, plan.info),
              R"({ "Channels" : [ 7, -8 ], "Devices" : [ 5, 6 ], "Mode" : "Cycle", "Recordpack" : "ASF", )"
              R"("SessionId" : 4, "Starttime" : "2026-11-20 09:30:15" })");
}

TEST(BurnPlan, ClearsAllButItsArrays) {
    for (const char* table : {"{}", "[]", "7", "[{\"SessionId\":4}]"}) { // what is no object has no keys
        Plan plan;
        ASSERT_EQ(plan.Parse(table), kPlanRead) << table;
        EXPECT_TRUE(plan.keepsItsArrays());
        CFG_BURN_PLAN_INFO cleared;
        std::memset(&cleared, 0, sizeof cleared);
        cleared.nMaxDevices = 3;
        cleared.nMaxChannels = 2;
        cleared.pnDevices = plan.devices.data();
        cleared.pnChannels = plan.channels.data();
        EXPECT_EQ(std::memcmp(&plan.info, &cleared, sizeof cleared), 0) << table;
        EXPECT_EQ(plan.devices[0], -1);
        EXPECT_EQ(Pack(kBurnPlan, plan.info), R"({ "Mode" : "Sync", "Recordpack" : "QVAV", "SessionId" : 0, )"
                                              R"("Starttime" : "0000-00-00 00:00:00" })");
    }
}

TEST(BurnPlan, ListsEndAtTheCallersRoom) {
    Plan plan;
    ASSERT_EQ(plan.Parse(R"({"Devices":[1,2,3,4],"Channels":[5,null,6]})"), kPlanRead);
    EXPECT_EQ(plan.info.nDeviceCount, 3); // as many as there is room for
    EXPECT_EQ(plan.devices, (std::array<std::int32_t, 4>{1, 2, 3, -1}));
    EXPECT_EQ(plan.info.nChannelCount, 2);
    EXPECT_EQ(plan.channels, (std::array<std::int32_t, 3>{5, 0, -2}));
    plan.info.nDeviceCount = 4;
    plan.info.nChannelCount = 0x7FFFFFFF;
    EXPECT_NE(Pack(kBurnPlan, plan.info).find(R"({ "Channels" : [ 5, 0 ], "Devices" : [ 1, 2, 3 ], )"),
              std::string::npos);
    for (const std::int32_t room : {0, -1}) {
        Plan none;
        none.info.nMaxDevices = room;
        none.info.pnChannels = nullptr;
        ASSERT_EQ(none.Parse(R"({"Devices":[1],"Channels":[2]})"), kPlanRead);
        EXPECT_EQ(none.info.nDeviceCount, 0);
        EXPECT_EQ(none.devices[0], -1);
        EXPECT_EQ(none.info.nChannelCount, 0);
        none.info.nDeviceCount = none.info.nChannelCount = 1;
        EXPECT_EQ(Pack(kBurnPlan, none.info).find(R"({ "Mode" : )"), 0u); // nothing to write
    }
    Plan objects;
    ASSERT_EQ(objects.Parse(R"({"Devices":{"0":1},"Channels":7})"), kPlanRead);
    EXPECT_EQ(objects.info.nDeviceCount, 0);
    EXPECT_EQ(objects.info.nChannelCount, 0);
}

TEST(BurnPlan, KnowsItsNames) {
    for (int code = -1; code <= 5; ++code) {
        CFG_BURN_PLAN_INFO info{};
        info.emRecordpack = info.emMode = code;
        const std::string text = Pack(kBurnPlan, info);
        const std::string mode = code >= 0 && code < 3 ? kModes[code] : "Unknown";
        const std::string pack = code >= 0 && code < 5 ? kPacks[code] : "UNKNOWN";
        EXPECT_EQ(text.find(R"({ "Mode" : ")" + mode + R"(", "Recordpack" : ")" + pack + "\""), 0u) << text;
        Plan plan;
        ASSERT_EQ(plan.Parse(R"({"Mode":")" + Lower(mode) + R"(","Recordpack":")" + Lower(pack) + "\"}"), kPlanRead);
        EXPECT_EQ(plan.info.emMode, code >= 0 && code < 3 ? code : int{CFG_BURN_MODE_UNKNOWN});
        EXPECT_EQ(plan.info.emRecordpack, code >= 0 && code < 5 ? code : int{CFG_BURN_PACK_UNKNOWN});
    }
}

TEST(BurnPlan, NeedsATableAndNoResult) {
    Plan plan;
    EXPECT_EQ(plan.ParseText("{"), kRefused);
    EXPECT_EQ(plan.info.nSessionId, 0x11111111); // not begun
    for (const char* text : {"{}", R"({"result":true})", R"({"params":{"table":null}})"}) {
        EXPECT_EQ(plan.ParseText(text), kRefused) << text;
        EXPECT_TRUE(plan.keepsItsArrays());
        EXPECT_EQ(plan.info.nSessionId, 0);
    }
    EXPECT_EQ(plan.ParseText(R"({"result":false,"params":{"table":{"SessionId":5}}})"), kPlanRead);
    EXPECT_EQ(plan.info.nSessionId, 5);
    std::uint32_t length = kNoLength;
    EXPECT_EQ(CLIENT_ParseData(kBurnPlan, "{}", &plan.info, kPlanSize - 1, &length), 0);
    EXPECT_EQ(plan.info.nSessionId, 5);
    EXPECT_EQ(PackBytes(kBurnPlan, &plan.info, kPlanSize - 1, 4096), kNotBegun);
    const std::string text = PackBytes(kBurnPlan, &plan.info, kPlanSize, kAmple);
    EXPECT_EQ(PackBytes(kBurnPlan, &plan.info, kPlanSize, text.size() + 1), text);
    EXPECT_EQ(PackBytes(kBurnPlan, &plan.info, kPlanSize, text.size()), kFailed);
}

// ---- "BurnManager.getCaps" ----

TEST(BurnManagerCaps, ReadsAllKeys) {
    const auto read = [](const std::string& caps) {
        return ParseDocument<CFG_BURN_MANAGER_CAPS>("BurnManager.getCaps",
                                                    R"({"result":true,"params":{"caps":)" + caps + "}}");
    };
    const auto parsed = read(R"({"SupportMultiBurn":true,"MultiBurnGroups":4})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_BURN_MANAGER_CAPS));
    EXPECT_EQ(parsed->bSupportMultiBurn, 1);
    EXPECT_EQ(parsed->nMultiBurnGroups, 4);
    for (const char* value : {"1", "\"true\"", "null", "false", "[1]"}) {
        const auto none = read(std::string(R"({"SupportMultiBurn":)") + value + "}");
        EXPECT_TRUE(none);
        EXPECT_TRUE(none.isCleared()) << value;
    }
    for (const char* document : {R"({"params":{"caps":{}}})", R"({"result":false,"params":{"caps":{}}})",
                                 R"({"result":true,"params":{"table":{}}})", "{"}) {
        const auto refused = ParseDocument<CFG_BURN_MANAGER_CAPS>("BurnManager.getCaps", document);
        EXPECT_FALSE(refused) << document;
        EXPECT_TRUE(refused.isCleared());
    }
    EXPECT_EQ(PackBytes("BurnManager.getCaps", &*parsed, sizeof *parsed, 4096), kNotBegun);
}

} // namespace
} // namespace orrery::test
