#include "later/TableCalls.h"
#include "orrery/home.h"

#include <gtest/gtest.h>
#include <vector>

namespace orrery::test {
namespace {

// ---- "Light" ----

constexpr const char* kLightText =
    R"({ "Brand" : "B1", "Comm" : { "Address" : [ 2, -3 ] }, "DeviceID" : "D4", "Name" : "N5", "Point" : [ 6, 7 ], )"
    R"("PosID" : 8, "Range" : 9, "State" : "Open", "Type" : "LevelLight" })";

TEST(Light, ReadsAndWritesAllKeys) {
    const auto light = ReadOne<CFG_LIGHT_INFO>("Light", "[ " + std::string(kLightText) + " ]");
    EXPECT_STREQ(light.szDeviceId, "D4");
    EXPECT_STREQ(light.szName, "N5");
    EXPECT_STREQ(light.szBrand, "B1");
    ASSERT_EQ(light.stuComm.nCount, 2);
    EXPECT_EQ(light.stuComm.nAddress[0], 2);
    EXPECT_EQ(light.stuComm.nAddress[1], -3);
    EXPECT_EQ(light.nPosId, 8);
    EXPECT_EQ(light.stuPoint.nX, 6);
    EXPECT_EQ(light.stuPoint.nY, 7);
    EXPECT_EQ(light.emState, CFG_HOME_STATE_OPEN);
    EXPECT_EQ(light.nRange, 9);
    EXPECT_EQ(light.emType, CFG_LIGHT_LEVEL);
    EXPECT_EQ(Pack("Light", light), "[ " + std::string(kLightText) + " ]");
}

TEST(Light, WhatIsAbsentIsZeroButForTheState) {
    for (const char* table : {"{ }", "[ { } ]", "[ ]", "7", R"([ { "State" : null, "Point" : null } ])"}) {
        const auto light = ReadOne<CFG_LIGHT_INFO>("Light", table);
        CFG_LIGHT_INFO expected{};
        expected.emState = 2;
        EXPECT_EQ(std::memcmp(&light, &expected, sizeof light), 0) << table;
        EXPECT_EQ(Pack("Light", light),
                  R"([ { "Brand" : "", "DeviceID" : "", "Name" : "", "Point" : [ 0, 0 ], "PosID" : 0, "Range" : 0, )"
                  R"("State" : "", "Type" : "" } ])");
    }
}

template <class R>
std::string Written(const char* command, R record, std::int32_t R::*member, std::int32_t code) {
    record.*member = code;
    return Pack(command, record);
}

TEST(Light, States) {
    const auto read = [](const std::string& value) {
        return ReadOne<CFG_LIGHT_INFO>("Light", "[ { \"State\" : " + value + " } ]").emState;
    };
    EXPECT_EQ(read("\"Close\""), 0);
    EXPECT_EQ(read("\"Open\""), 1);
    EXPECT_EQ(read("\"cLOSE\""), 0);
    EXPECT_EQ(read("\"oPEN\""), 1);
    for (const char* value : {"\"Ajar\"", "\"\"", "1", "true", "[ ]", "null"})
        EXPECT_EQ(read(value), 2) << value;
    const auto text = [](std::int32_t code) {
        return Written("Light", CFG_LIGHT_INFO{}, &CFG_LIGHT_INFO::emState, code);
    };
    EXPECT_NE(text(0).find(R"("State" : "Close")"), std::string::npos);
    EXPECT_NE(text(1).find(R"("State" : "Open")"), std::string::npos);
    for (const std::int32_t code : {-1, 2, 3, INT32_MIN, INT32_MAX})
        EXPECT_NE(text(code).find(R"("State" : "")"), std::string::npos) << code;
}

TEST(Light, Types) {
    const auto read = [](const std::string& value) {
        return ReadOne<CFG_LIGHT_INFO>("Light", "[ { \"Type\" : " + value + " } ]").emType;
    };
    EXPECT_EQ(read("\"CommLight\""), 1);
    EXPECT_EQ(read("\"LevelLight\""), 2);
    EXPECT_EQ(read("\"commlight\""), 1);
    for (const char* value : {"\"Candle\"", "\"\"", "1", "true", "null"})
        EXPECT_EQ(read(value), 0) << value;
    const auto text = [](std::int32_t code) {
        return Written("Light", CFG_LIGHT_INFO{}, &CFG_LIGHT_INFO::emType, code);
    };
    EXPECT_NE(text(1).find(R"("Type" : "CommLight")"), std::string::npos);
    EXPECT_NE(text(2).find(R"("Type" : "LevelLight")"), std::string::npos);
    for (const std::int32_t code : {-1, 0, 3, INT32_MIN, INT32_MAX})
        EXPECT_NE(text(code).find(R"("Type" : "" })"), std::string::npos) << code;
}

TEST(Light, PointsHaveExactlyTwoNumbers) {
    for (const char* value : {"[ 1 ]", "[ 1, 2, 3 ]", "[ ]", "\"1,2\"", R"({ "0" : 1, "1" : 2 })"}) {
        const auto light = ReadOne<CFG_LIGHT_INFO>("Light", "[ { \"Point\" : " + std::string(value) + " } ]");
        EXPECT_EQ(light.stuPoint.nX, 0) << value;
        EXPECT_EQ(light.stuPoint.nY, 0) << value;
    }
}

TEST(Light, KeepsSixteenAddresses) {
    const auto address = [](const std::string& value) {
        return ReadOne<CFG_LIGHT_INFO>("Light", R"([ { "Comm" : { "Address" : )" + value + " } } ]").stuComm;
    };
    std::string list = "[ 100";
    std::string kept = "[ 100";
    for (int i = 1; i < 20; ++i) {
        list += ", " + std::to_string(100 + i);
        if (i < 16) kept += ", " + std::to_string(100 + i);
    }
    CFG_LIGHT_INFO light{};
    light.stuComm = address(list + " ]");
    EXPECT_EQ(light.stuComm.nCount, 16);
    EXPECT_EQ(light.stuComm.nAddress[15], 115);
    const std::string text = R"("Comm" : { "Address" : )" + kept + " ] }";
    EXPECT_NE(Pack("Light", light).find(text), std::string::npos);
    light.stuComm.nCount = 17;
    EXPECT_NE(Pack("Light", light).find(text), std::string::npos);
    light.stuComm.nCount = 1;
    EXPECT_NE(Pack("Light", light).find(R"("Comm" : { "Address" : [ 100 ] })"), std::string::npos);
    for (const std::int32_t count : {0, -1}) {
        light.stuComm.nCount = count;
        EXPECT_EQ(Pack("Light", light).find("Comm\""), std::string::npos) << count;
    }
    EXPECT_EQ(address("[ ]").nCount, 0);
    for (const char* value : {"null", "5", "\"5\"", R"({ "0" : 5 })"})
        EXPECT_EQ(address(value).nCount, 0) << value;
    const auto odd = address(R"([ null, "3", 2.9 ])");
    EXPECT_EQ(odd.nCount, 3);
    EXPECT_EQ(odd.nAddress[0], 0);
    EXPECT_EQ(odd.nAddress[1], 0);
    EXPECT_EQ(odd.nAddress[2], 2);
}

TEST(Light, TextsAreCutAtTheirCapacity) {
    const std::string x(100, 'x');
    const auto light = ReadOne<CFG_LIGHT_INFO>("Light", "[ { \"DeviceID\" : \"" + x + "\", \"Name\" : \"" + x
                                                            + "\", \"Brand\" : \"" + x + "\" } ]");
    EXPECT_EQ(std::string(light.szDeviceId), x.substr(0, 47));
    EXPECT_EQ(std::string(light.szName), x.substr(0, 63));
    EXPECT_EQ(std::string(light.szBrand), x.substr(0, 63));
    EXPECT_EQ(light.stuComm.nCount, 0);
}

TEST(Light, ARecordAnElementAndNullsLeaveAGap) {
    const Records<CFG_LIGHT_INFO> lights(3, 10, 0x5A);
    EXPECT_EQ(ParseAdding("Light", R"([ { "PosID" : 1 }, null, { "PosID" : 3 }, { "PosID" : 4 } ])", lights),
              HasRead<CFG_LIGHT_INFO>(2));
    EXPECT_EQ(lights[0].nPosId, 1);
    EXPECT_EQ(lights[0].emState, 2);
    EXPECT_EQ(lights[1].emState, 0); // not read
    EXPECT_EQ(lights[2].nPosId, 3);
    EXPECT_EQ(lights.data()[3 * sizeof(CFG_LIGHT_INFO)], 0);
}

// ---- "Curtain" ----

TEST(Curtain, ReadsAndWritesAllKeysAndAlwaysItsType) {
    const std::string text = R"([ { "Brand" : "B1", "Comm" : { "Address" : [ 2 ] }, "DeviceID" : "D3", "Name" : "N4", )"
                             R"("Point" : [ 5, 6 ], "PosID" : 7, "State" : "Open", "Type" : "Curtain" } ])";
    const auto curtain = ReadOne<CFG_CURTAIN_INFO>("Curtain", text);
    EXPECT_STREQ(curtain.szDeviceId, "D3");
    EXPECT_STREQ(curtain.szName, "N4");
    EXPECT_STREQ(curtain.szBrand, "B1");
    ASSERT_EQ(curtain.stuComm.nCount, 1);
    EXPECT_EQ(curtain.stuComm.nAddress[0], 2);
    EXPECT_EQ(curtain.nPosId, 7);
    EXPECT_EQ(curtain.stuPoint.nX, 5);
    EXPECT_EQ(curtain.stuPoint.nY, 6);
    EXPECT_EQ(curtain.emState, CFG_HOME_STATE_OPEN);
    EXPECT_EQ(Pack("Curtain", curtain), text);

    const auto other = ReadOne<CFG_CURTAIN_INFO>("Curtain", R"([ { "Type" : "Blind", "State" : "Close" } ])");
    const CFG_CURTAIN_INFO cleared{};
    EXPECT_EQ(std::memcmp(&other, &cleared, sizeof other), 0);
    EXPECT_EQ(Pack("Curtain", other),
              R"([ { "Brand" : "", "DeviceID" : "", "Name" : "", "Point" : [ 0, 0 ], "PosID" : 0, )"
              R"("State" : "Close", "Type" : "Curtain" } ])");
    EXPECT_EQ(ReadOne<CFG_CURTAIN_INFO>("Curtain", "[ { } ]").emState, 2);
}

// ---- "FreshAir" and "GroundHeat" ----

TEST(FreshAir, ReadsAndWritesAllKeys) {
    const std::string text =
        R"([ { "Brand" : "B1", "Comm" : { "Address" : [ 2, 3, 4 ] }, "DeviceID" : "D5", "Name" : "N6" } ])";
    const auto air = ReadOne<CFG_FRESH_AIR_INFO>("FreshAir", text);
    EXPECT_STREQ(air.szDeviceId, "D5");
    EXPECT_STREQ(air.szName, "N6");
    EXPECT_STREQ(air.szBrand, "B1");
    ASSERT_EQ(air.stuComm.nCount, 3);
    EXPECT_EQ(air.stuComm.nAddress[2], 4);
    EXPECT_EQ(Pack("FreshAir", air), text);
    EXPECT_EQ(Pack("FreshAir", CFG_FRESH_AIR_INFO{}), R"([ { "Brand" : "", "DeviceID" : "", "Name" : "" } ])");
}

TEST(GroundHeat, ReadsAndWritesAllKeys) {
    const std::string text = R"([ { "Brand" : "B1", "Comm" : { "Address" : [ 2 ] }, "DeviceID" : "D3", "Name" : "N4", )"
                             R"("Range" : 5, "State" : "Open" } ])";
    const auto heat = ReadOne<CFG_GROUND_HEAT_INFO>("GroundHeat", text);
    EXPECT_STREQ(heat.szDeviceId, "D3");
    EXPECT_STREQ(heat.szName, "N4");
    EXPECT_STREQ(heat.szBrand, "B1");
    ASSERT_EQ(heat.stuComm.nCount, 1);
    EXPECT_EQ(heat.stuComm.nAddress[0], 2);
    EXPECT_EQ(heat.emState, CFG_HOME_STATE_OPEN);
    EXPECT_EQ(heat.nRange, 5);
    EXPECT_EQ(Pack("GroundHeat", heat), text);
    EXPECT_EQ(ReadOne<CFG_GROUND_HEAT_INFO>("GroundHeat", "[ { } ]").emState, 2);
    EXPECT_EQ(Pack("GroundHeat", CFG_GROUND_HEAT_INFO{}),
              R"([ { "Brand" : "", "DeviceID" : "", "Name" : "", "Range" : 0, "State" : "Close" } ])");
}

// ---- "SceneMode" ----

using Scenes = CFG_SCENE_MODE_INFO;

TEST(SceneMode, ReadsAndWritesAllKeys) {
    const std::string text =
        R"({ "CurrentProfileID" : 1, "Profiles" : [ { "Brand" : "B2", "Comm" : { "Address" : [ 3, 4 ] }, )"
        R"("Name" : "LeaveHome", "SceneID" : 5 }, { "Brand" : "B6", "Name" : "InSleeping", "SceneID" : 7 } ] })";
    const auto scenes = ReadOne<Scenes>("SceneMode", text);
    EXPECT_EQ(scenes.nCurrentProfileId, 1);
    ASSERT_EQ(scenes.nProfileCount, 2);
    EXPECT_STREQ(scenes.stuProfiles[0].szBrand, "B2");
    ASSERT_EQ(scenes.stuProfiles[0].stuComm.nCount, 2);
    EXPECT_EQ(scenes.stuProfiles[0].stuComm.nAddress[1], 4);
    EXPECT_EQ(scenes.stuProfiles[0].emName, CFG_SCENE_LEAVE_HOME);
    EXPECT_EQ(scenes.stuProfiles[0].nSceneId, 5);
    EXPECT_STREQ(scenes.stuProfiles[1].szBrand, "B6");
    EXPECT_EQ(scenes.stuProfiles[1].emName, CFG_SCENE_IN_SLEEPING);
    EXPECT_EQ(scenes.stuProfiles[1].nSceneId, 7);
    EXPECT_EQ(Pack("SceneMode", scenes), text);
}

TEST(SceneMode, OneRecordIsBareAndSeveralAreAList) {
    const Records<Scenes> two(2, 0x5A);
    const std::string list = R"([ { "CurrentProfileID" : 1 }, { "CurrentProfileID" : 2 } ])";
    EXPECT_EQ(ParseAdding("SceneMode", R"([ { "CurrentProfileID" : 1 }, { "CurrentProfileID" : 2 }, { } ])", two),
              HasRead<Scenes>(2));
    EXPECT_EQ(PackAll("SceneMode", two), list);
    const auto pack = [&](std::size_t size) {
        return WithoutNewline(PackBytes("SceneMode", two.data(), size, kAmple));
    };
    EXPECT_EQ(pack(2 * sizeof(Scenes) - 1), R"({ "CurrentProfileID" : 1 })");
    EXPECT_EQ(pack(sizeof(Scenes)), R"({ "CurrentProfileID" : 1 })");
    EXPECT_EQ(pack(sizeof(Scenes) - 1), "null");
}

TEST(SceneMode, WithoutAListOfProfilesOnlyTheCurrentOneIsRead) {
    for (const char* profiles : {"null", "5", "\"x\"", R"({ "Brand" : "B" })"}) {
        const auto scenes =
            ReadOne<Scenes>("SceneMode", R"({ "CurrentProfileID" : 3, "Profiles" : )" + std::string(profiles) + " }");
        EXPECT_EQ(scenes.nCurrentProfileId, 3);
        EXPECT_EQ(scenes.nProfileCount, 0) << profiles;
        EXPECT_EQ(Pack("SceneMode", scenes), R"({ "CurrentProfileID" : 3 })");
    }
}

TEST(SceneMode, KeepsFiftyFourProfiles) {
    std::string table = R"({ "Profiles" : [ { "SceneID" : 0, "Brand" : ")" + std::string(70, 'b') + "\" }";
    for (int i = 1; i < 60; ++i)
        table += ", { \"SceneID\" : " + std::to_string(i) + " }";
    auto scenes = ReadOne<Scenes>("SceneMode", table + " ] }");
    EXPECT_EQ(scenes.nProfileCount, 54);
    EXPECT_EQ(scenes.stuProfiles[53].nSceneId, 53);
    EXPECT_EQ(std::string(scenes.stuProfiles[0].szBrand), std::string(63, 'b'));
    const std::string text = Pack("SceneMode", scenes);
    EXPECT_NE(text.find("\"SceneID\" : 53 } ] }"), std::string::npos);
    scenes.nProfileCount = 55;
    EXPECT_EQ(Pack("SceneMode", scenes), text);
    scenes.nProfileCount = -1;
    EXPECT_EQ(Pack("SceneMode", scenes), R"({ "CurrentProfileID" : 0 })");
    const auto odd = ReadOne<Scenes>("SceneMode", R"({ "Profiles" : [ null, 5, { "SceneID" : 9 } ] })");
    EXPECT_EQ(odd.nProfileCount, 3);
    EXPECT_EQ(odd.stuProfiles[2].nSceneId, 9);
}

TEST(SceneMode, Names) {
    const auto read = [](const std::string& value) {
        return ReadOne<Scenes>("SceneMode", R"({ "Profiles" : [ { "Name" : )" + value + " } ] }").stuProfiles[0].emName;
    };
    constexpr const char* kNames[] = {"", "AtHome", "LeaveHome", "InSleeping", ""};
    for (int code = 0; code < 4; ++code)
        EXPECT_EQ(read("\"" + std::string(kNames[code]) + "\""), code);
    EXPECT_EQ(read("\"ATHOME\""), 1);
    for (const char* value : {"\"Away\"", "1", "true", "null"})
        EXPECT_EQ(read(value), 0) << value;
    for (int code = -1; code < 5; ++code) {
        Scenes scenes{};
        scenes.nProfileCount = 1;
        scenes.stuProfiles[0].emName = code;
        EXPECT_EQ(Pack("SceneMode", scenes), R"({ "CurrentProfileID" : 0, "Profiles" : [ { "Brand" : "", "Name" : ")"
                                                 + std::string(code < 0 ? "" : kNames[code])
                                                 + R"(", "SceneID" : 0 } ] })");
    }
}

// ---- What the commands have in common ----

TEST(Home, MissingTablesSucceedAndRefusedRepliesFail) {
    for (const char* command : {"Light", "Curtain", "FreshAir", "GroundHeat", "SceneMode"}) {
        std::vector<char> buffer(16 << 10);
        std::uint32_t length = kBefore;
        const auto parse = [&](const char* document) {
            std::fill(buffer.begin(), buffer.end(), 'x');
            return CLIENT_ParseData(command, document, buffer.data(), static_cast<std::uint32_t>(buffer.size()),
                                    &length);
        };
        for (const char* document :
             {R"({ "result" : true })", R"({ "result" : true, "params" : { "table" : null } })"}) {
            EXPECT_EQ(parse(document), 1) << command;
            EXPECT_EQ(buffer, std::vector<char>(buffer.size())) << command;
        }
        for (const char* document : {R"({ "result" : false, "params" : { "table" : { } } })", "{", "{ }"}) {
            EXPECT_EQ(parse(document), 0) << command;
            EXPECT_EQ(buffer, std::vector<char>(buffer.size())) << command;
        }
        EXPECT_EQ(length, kBefore);
        EXPECT_EQ(CLIENT_ParseData(command, "{}", buffer.data(), 100, nullptr), 0);
    }
}

TEST(Home, DevicesAreAlwaysAList) {
    const Records<CFG_FRESH_AIR_INFO> two(2);
    EXPECT_EQ(PackAll("FreshAir", two), R"([ { "Brand" : "", "DeviceID" : "", "Name" : "" }, )"
                                        R"({ "Brand" : "", "DeviceID" : "", "Name" : "" } ])");
    const auto one = [&](std::size_t size) { return PackBytes("FreshAir", two.data(), size, kAmple); };
    const std::string text = "[ { \"Brand\" : \"\", \"DeviceID\" : \"\", \"Name\" : \"\" } ]\n";
    EXPECT_EQ(one(sizeof(CFG_FRESH_AIR_INFO)), text);
    EXPECT_EQ(one(2 * sizeof(CFG_FRESH_AIR_INFO) - 1), text);
    for (const char* command : {"Light", "Curtain", "FreshAir", "GroundHeat"})
        EXPECT_EQ(PackBytes(command, two.data(), 0, kAmple), "null\n") << command;
    EXPECT_EQ(PackBytes("FreshAir", two.data(), sizeof(CFG_FRESH_AIR_INFO), text.size()), kFailed);
    EXPECT_EQ(PackBytes("FreshAir", two.data(), sizeof(CFG_FRESH_AIR_INFO), text.size() + 1), text);
}

} // namespace
} // namespace orrery::test
