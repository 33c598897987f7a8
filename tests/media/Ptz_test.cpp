// Heads and their lines, presets and tours.
#include "orrery/comm_attribute.h"
#include "orrery/ptz.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// ---- "Ptz" ----

TEST(Ptz, ReadsAndWritesAllKeys) {
    const auto parsed = Parse<CFG_PTZ_INFO>(
        "Ptz", R"({"Enable":true,"ProtocolName":"PELCO/D","Address":2,"Attribute":[9600,8,"None","1"],)"
               R"("NumberInMatrixs":4,"PTZType":5,"Port":6,"Homing":[7,8],"ControlMode":"coaxial"})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_PTZ_INFO));
    EXPECT_EQ(parsed->bEnable, 1u);
    EXPECT_STREQ(parsed->szProtocolName, "PELCO/D");
    EXPECT_EQ(parsed->nAddress, 2);
    EXPECT_EQ(parsed->stuAttribute.byBaudRate, CFG_COMM_BAUD_9600);
    EXPECT_EQ(parsed->stuAttribute.byDataBits, CFG_COMM_DATA_BITS_8);
    EXPECT_EQ(parsed->abNumberInMatrix, 1);
    EXPECT_EQ(parsed->nNumberInMatrix, 4);
    EXPECT_EQ(parsed->abPtzType, 1);
    EXPECT_EQ(parsed->nPtzType, 1);
    EXPECT_EQ(parsed->nPort, 6);
    EXPECT_EQ(parsed->nHoming[0], 7);
    EXPECT_EQ(parsed->nHoming[1], 8);
    EXPECT_EQ(parsed->emControlMode, CFG_PTZ_CONTROL_COAXIAL);
    EXPECT_EQ(Pack("Ptz", *parsed),
              R"({ "Address" : 2, "Attribute" : [ 9600, 8, "None", "1" ], )"
              R"("ControlMode" : "Coaxial", "Enable" : true, "Homing" : [ 7, 8 ], )"
              R"("NumberInMatrixs" : 4, "PTZType" : 1, "Port" : 6, "ProtocolName" : "PELCO\/D" })");
}

constexpr const char* kPlain = R"({ "Address" : 0, "Attribute" : [ 300, 5, "None", "1" ], "ControlMode" : "RS485", )"
                               R"("Enable" : false, "Homing" : [ -1, 0 ], "Port" : 0, "ProtocolName" : "" })";

TEST(Ptz, HasNoHomeWithoutOne) {
    const auto parsed = Parse<CFG_PTZ_INFO>("Ptz", "{}");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->nHoming[0], -1);
    EXPECT_EQ(parsed->nHoming[1], 0);
    EXPECT_EQ(parsed->abNumberInMatrix, 0);
    EXPECT_EQ(parsed->abPtzType, 0);
    EXPECT_EQ(parsed->emControlMode, 0);
    EXPECT_EQ(Pack("Ptz", *parsed), kPlain);
    CFG_PTZ_INFO record = *parsed;
    record.nHoming[0] = -5;
    EXPECT_EQ(Pack("Ptz", record), kPlain);
    record.nHoming[0] = 0;
    EXPECT_NE(Pack("Ptz", record).find("\"Homing\" : [ 0, 0 ]"), std::string::npos);
    EXPECT_EQ(Parse<CFG_PTZ_INFO>("Ptz", R"({"Homing":null})")->nHoming[0], -1);
    EXPECT_EQ(Parse<CFG_PTZ_INFO>("Ptz", R"({"Homing":[-3]})")->nHoming[0], -3);
    EXPECT_EQ(Parse<CFG_PTZ_INFO>("Ptz", R"({"Homing":7})")->nHoming[0], 0); // a list without elements
}

TEST(Ptz, KnowsTwoKindsOfHeads) {
    for (const char* number : {"0", "-4", "\"x\""}) {
        const auto parsed = Parse<CFG_PTZ_INFO>("Ptz", R"({"PTZType":)" + std::string(number) + "}");
        EXPECT_EQ(parsed->abPtzType, 1) << number;
        EXPECT_EQ(parsed->nPtzType, 0) << number;
    }
    CFG_PTZ_INFO record{};
    record.abPtzType = 1;
    for (const int type : {-1, 0, 1, 9}) {
        record.nPtzType = type;
        EXPECT_NE(Pack("Ptz", record).find(type > 0 ? "\"PTZType\" : 1" : "\"PTZType\" : 0"), std::string::npos);
    }
    record.abPtzType = 0;
    record.nNumberInMatrix = 3;
    EXPECT_EQ(Pack("Ptz", record).find("PTZType"), std::string::npos);
    EXPECT_EQ(Pack("Ptz", record).find("NumberInMatrixs"), std::string::npos);
}

TEST(Ptz, KnowsItsControlModes) {
    CFG_PTZ_INFO record{};
    for (const int mode : {-1, 2, INT32_MAX}) {
        record.emControlMode = mode;
        EXPECT_EQ(Pack("Ptz", record).find("ControlMode"), std::string::npos) << mode;
    }
    for (const char* name : {"RS485", "Other", "", "Coaxial "})
        EXPECT_EQ(Parse<CFG_PTZ_INFO>("Ptz", R"({"ControlMode":")" + std::string(name) + "\"}")->emControlMode, 0);
}

TEST(Ptz, NeedsATableThatWasNotRefused) {
    const auto without = ParseDocument<CFG_PTZ_INFO>("Ptz", R"({"params":{"table":{"Port":3}}})");
    EXPECT_TRUE(without);
    EXPECT_EQ(without->nPort, 3);
    for (const char* document : {"[", R"({"result":false,"params":{"table":{"Port":3}}})", R"({"result":true})"}) {
        const auto parsed = ParseDocument<CFG_PTZ_INFO>("Ptz", document);
        EXPECT_FALSE(parsed) << document;
        EXPECT_TRUE(parsed.isCleared()) << document;
    }
    CFG_PTZ_INFO record{};
    record.nHoming[0] = -1;
    const std::string text = kPlain;
    EXPECT_EQ(PackBytes("Ptz", &record, sizeof record, text.size() + 1), text); // its newline gives way
    EXPECT_EQ(PackBytes("Ptz", &record, sizeof record, text.size()), kFailed);
}

TEST(Ptz, CutsALongName) {
    const auto parsed = Parse<CFG_PTZ_INFO>("Ptz", R"({"ProtocolName":")" + std::string(130, 'p') + "\"}");
    EXPECT_EQ(std::string(parsed->szProtocolName), std::string(127, 'p'));
}

// ---- "Comm" ----

TEST(Comm, ReadsAndWritesLines) {
    const auto parsed = Parse<CFG_COMM_INFO>(
        "Comm", R"([{"ProtocolName":"Console","Address":1,"Attribute":[115200,7,"even","1.5"]},null,)"
                R"({"Attribute":{"0":300},"Address":2}])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_COMM_INFO));
    EXPECT_EQ(parsed->nCount, 3u);
    EXPECT_STREQ(parsed->stuItems[0].szProtocolName, "Console");
    EXPECT_EQ(parsed->stuItems[0].nAddress, 1);
    EXPECT_EQ(parsed->stuItems[0].stuAttribute.byBaudRate, CFG_COMM_BAUD_115200);
    EXPECT_EQ(parsed->stuItems[0].stuAttribute.byStopBits, CFG_COMM_STOP_BITS_1_5);
    EXPECT_EQ(parsed->stuItems[2].stuAttribute.byBaudRate, 0);
    EXPECT_EQ(parsed->stuItems[2].nAddress, 2);
    EXPECT_EQ(Pack("Comm", *parsed),
              R"([ { "Address" : 1, "Attribute" : [ 115200, 7, "Even", "1.5" ], "ProtocolName" : "Console" }, )"
              R"({ "Address" : 0, "Attribute" : [ 300, 5, "None", "1" ], "ProtocolName" : "" }, )"
              R"({ "Address" : 2, "Attribute" : [ 300, 5, "None", "1" ], "ProtocolName" : "" } ])");
}

TEST(Comm, EndsAtSixteenLines) {
    std::string table = R"([{"Address":1})";
    for (int i = 2; i <= 18; ++i)
        table += R"(,{"Address":)" + std::to_string(i) + "}";
    const auto parsed = Parse<CFG_COMM_INFO>("Comm", table + "]");
    EXPECT_EQ(parsed->nCount, 16u);
    EXPECT_EQ(parsed->stuItems[15].nAddress, 16);
    CFG_COMM_INFO record = *parsed;
    const std::string text = Pack("Comm", record);
    record.nCount = 17;
    EXPECT_EQ(Pack("Comm", record), text);
    EXPECT_EQ(PackBytes("Comm", &record, sizeof record, text.size() + 1), kFailed);
    record.nCount = 0;
    EXPECT_EQ(Pack("Comm", record), "null");
    EXPECT_EQ(PackBytes("Comm", &record, sizeof record - 1, kAmple).substr(0, 3), std::string(kNotBegun).substr(0, 3));
    for (const char* none : {"null", "{}", "7"})
        EXPECT_FALSE(Parse<CFG_COMM_INFO>("Comm", none)) << none;
    EXPECT_EQ(Parse<CFG_COMM_INFO>("Comm", "[]")->nCount, 0u);
}

// ---- "PtzPreset" ----

struct Presets {
    explicit Presets(std::uint32_t room, int fill = 0x11) : info(1), items(room, fill) { SetCount(99); }
    void SetCount(std::uint32_t count) {
        info.Set(0, {static_cast<std::uint32_t>(items.size() / sizeof(CFG_PTZ_PRESET)), count,
                     reinterpret_cast<CFG_PTZ_PRESET*>(items.data())});
    }
    Answer Parse(const std::string& table) const { return ParseTable("PtzPreset", table, info); }

    Records<CFG_PTZ_PRESET_INFO> info;
    Records<CFG_PTZ_PRESET> items;
};
constexpr Answer kPresetsRead{1, kNoLength};

TEST(PtzPreset, ReadsAndWritesAllKeys) {
    const Presets presets(3);
    ASSERT_EQ(presets.Parse(R"([{"Enable":true,"Name":"Gate","Position":[0.5,0,1]},{"Position":[-0.5,-0.25,0.5]}])"),
              kPresetsRead);
    EXPECT_EQ(presets.info[0].nReturnCount, 2u);
    EXPECT_EQ(presets.items[0].bEnable, 1u);
    EXPECT_STREQ(presets.items[0].szName, "Gate");
    EXPECT_EQ(presets.items[0].nPan, 900);
    EXPECT_EQ(presets.items[0].nTilt, 0);
    EXPECT_EQ(presets.items[0].nZoom, 128);
    EXPECT_EQ(presets.items[1].bEnable, 0u);
    EXPECT_EQ(presets.items[1].nPan, 2700);
    EXPECT_EQ(presets.items[1].nTilt, 450);
    EXPECT_EQ(presets.items[1].nZoom, 64);
    EXPECT_EQ(presets.items[2].nPan, 0x11111111);
    EXPECT_EQ(PackAll("PtzPreset", presets.info),
              R"([ { "Enable" : true, "Name" : "Gate", "Position" : [ 0.5000000000000000, -0.000000000000000, )"
              R"(1.000000000000000 ] }, { "Enable" : false, "Name" : "", "Position" : [ -0.5000000000000000, )"
              R"(-0.2500000000000000, 0.5000000000000000 ] } ])");
}

CFG_PTZ_PRESET ReadAt(const std::string& position) {
    const Presets presets(1);
    EXPECT_EQ(presets.Parse(R"([{"Position":)" + position + "}]"), kPresetsRead);
    return presets.items[0];
}

TEST(PtzPreset, ReadsPans) {
    const auto pan = [](const std::string& number) { return ReadAt("[" + number + ",0,0]").nPan; };
    EXPECT_EQ(pan("0"), 0);
    EXPECT_EQ(pan("-0.0"), 0);
    EXPECT_EQ(pan("1"), 1800);
    EXPECT_EQ(pan("1.0000001"), 0);
    EXPECT_EQ(pan("-1"), 1800);
    EXPECT_EQ(pan("-1.0000001"), 0);
    EXPECT_EQ(pan("-0.0001"), 3599); // 3599.82 truncated
    EXPECT_EQ(pan("-1e-30"), 3600);
    EXPECT_EQ(pan("0.0002"), 0); // 0.36 + 0.5
    EXPECT_EQ(pan("0.0003"), 1); // 0.54 + 0.5
    EXPECT_EQ(pan("\"0.5\""), 0);
    EXPECT_EQ(pan("null"), 0);
    EXPECT_EQ(pan("1e999"), 0);
}

TEST(PtzPreset, ReadsTilts) {
    const auto tilt = [](const std::string& number) { return ReadAt("[0," + number + ",0]").nTilt; };
    EXPECT_EQ(tilt("1"), -1800);
    EXPECT_EQ(tilt("-1"), 1800);
    EXPECT_EQ(tilt("0.0003"), -1); // -0.54 - 0.5
    EXPECT_EQ(tilt("-0.0003"), 1);
    EXPECT_EQ(tilt("0.0002"), 0);
    // One out of range is told by the pan.
    for (const char* number : {"2", "-1.0000001", "1e999"}) {
        const CFG_PTZ_PRESET read = ReadAt("[0.5," + std::string(number) + ",1]");
        EXPECT_EQ(read.nPan, 0) << number;
        EXPECT_EQ(read.nTilt, 0) << number;
        EXPECT_EQ(read.nZoom, 128) << number;
    }
}

TEST(PtzPreset, ReadsZooms) {
    const auto zoom = [](const std::string& number) { return ReadAt("[0,0," + number + "]").nZoom; };
    EXPECT_EQ(zoom("0"), 0);
    EXPECT_EQ(zoom("0.5"), 64);
    EXPECT_EQ(zoom("0.99"), 127); // 126.72 + 0.5
    EXPECT_EQ(zoom("1"), 128);
    EXPECT_EQ(zoom("1.001"), 0);
    EXPECT_EQ(zoom("-0.001"), 0);
}

TEST(PtzPreset, ReadsAPositionOfThreeNumbersOnly) {
    for (const char* position : {"[0.5,0.5]", "[0.5,0.5,0.5,0.5]", "[]", "0.5", R"({"a":0.5,"b":0.5,"c":0.5})"}) {
        const CFG_PTZ_PRESET read = ReadAt(position);
        EXPECT_EQ(read.nPan, 0) << position;
        EXPECT_EQ(read.nTilt, 0);
        EXPECT_EQ(read.nZoom, 0);
    }
}

TEST(PtzPreset, WritesPositions) {
    const auto write = [](std::int32_t pan, std::int32_t tilt, std::int32_t zoom) {
        Presets presets(1, 0);
        CFG_PTZ_PRESET preset{};
        preset.nPan = pan;
        preset.nTilt = tilt;
        preset.nZoom = zoom;
        presets.items.Set(0, preset);
        presets.SetCount(1);
        const std::string text = PackAll("PtzPreset", presets.info);
        const std::string front = R"([ { "Enable" : false, "Name" : "", "Position" : [ )";
        EXPECT_EQ(text.substr(0, front.size()), front);
        return text.substr(front.size(), text.size() - front.size() - 6);
    };
    EXPECT_EQ(write(0, 1800, 128), "0.000000000000000, -1.000000000000000, 1.000000000000000");
    EXPECT_EQ(write(900, -900, 1), "0.5000000000000000, 0.5000000000000000, 0.007812500000000000");
    EXPECT_EQ(write(1800, -9000, 0), "-1.000000000000000, 5.000000000000000, 0");
    EXPECT_EQ(write(2700, -18000, 129), "-0.5000000000000000, 10.00000000000000, 0");
    EXPECT_EQ(write(3600, -18001, -1), "0.000000000000000, 0, 0");
    EXPECT_EQ(write(3601, 1801, 64), "0, 0, 0.5000000000000000");
    EXPECT_EQ(write(-1, INT32_MIN, INT32_MAX), "0, 0, 0");
}

TEST(PtzPreset, ReadsNoMoreThanThereIsRoomFor) {
    const Presets presets(2);
    EXPECT_EQ(presets.Parse(R"([{"Enable":true},null,{"Enable":true}])"), kPresetsRead);
    EXPECT_EQ(presets.info[0].nReturnCount, 2u);
    EXPECT_EQ(presets.items[1].bEnable, 0u); // cleared, as a null says nothing
    EXPECT_EQ(presets.Parse("[]"), kPresetsRead);
    EXPECT_EQ(presets.info[0].nReturnCount, 0u);
    EXPECT_EQ(PackAll("PtzPreset", presets.info), "null");
    const Presets untouched(1);
    EXPECT_EQ(untouched.Parse("null"), kPresetsRead);
    EXPECT_EQ(untouched.info[0].nReturnCount, 99u);
    for (const char* table : {"{}", "7", "\"x\""}) {
        EXPECT_EQ(untouched.Parse(table), kRefused) << table;
        EXPECT_TRUE(untouched.items.isAll(0x11));
    }
    EXPECT_EQ(ParseDocument("PtzPreset", R"({"params":{"table":[{}]}})", untouched.info), kRefused);
    const Presets long_(1);
    EXPECT_EQ(long_.Parse(R"([{"Name":")" + std::string(70, 'n') + "\"}]"), kPresetsRead);
    EXPECT_EQ(std::string(long_.items[0].szName), std::string(63, 'n'));
}

TEST(PtzPreset, NeedsAnArrayToReadInto) {
    Records<CFG_PTZ_PRESET_INFO> info(1);
    info.Set(0, {3, 1, nullptr});
    EXPECT_EQ(ParseTable("PtzPreset", "[{}]", info), kRefused);
    CFG_PTZ_PRESET preset{};
    info.Set(0, {0, 1, &preset});
    EXPECT_EQ(ParseTable("PtzPreset", "[{}]", info), kPresetsRead);
    EXPECT_EQ(info[0].nReturnCount, 0u);
}

TEST(PtzPreset, WritesNoTextWithoutRoom) {
    CFG_PTZ_PRESET preset{};
    for (const CFG_PTZ_PRESET_INFO& none : {CFG_PTZ_PRESET_INFO{0, 5, &preset}, CFG_PTZ_PRESET_INFO{3, 5, nullptr}}) {
        for (const std::size_t capacity : {std::size_t{0}, std::size_t{1}, std::size_t{64}})
            EXPECT_EQ(PackBytes("PtzPreset", &none, sizeof none, capacity), "") << capacity;
        EXPECT_EQ(PackBytes("PtzPreset", &none, sizeof none - 1, 64), kNotBegun);
    }
    Presets presets(1, 0);
    presets.SetCount(2);
    EXPECT_EQ(PackAll("PtzPreset", presets.info), kFailed);
    presets.SetCount(1);
    const std::string text = PackAll("PtzPreset", presets.info) + "\n";
    const auto pack = [&](std::size_t capacity) {
        return PackBytes("PtzPreset", presets.info.data(), presets.info.size(), capacity);
    };
    EXPECT_EQ(pack(text.size() + 2), text);
    EXPECT_EQ(pack(text.size() + 1), kFailed);
}

TEST(PtzPreset, IsOnAtExactlyOne) {
    Presets presets(1, 0);
    presets.SetCount(1);
    for (const std::uint32_t flag : {0u, 1u, 2u}) {
        CFG_PTZ_PRESET preset{};
        preset.bEnable = flag;
        presets.items.Set(0, preset);
        EXPECT_EQ(PackAll("PtzPreset", presets.info).find("\"Enable\" : true") != std::string::npos, flag == 1);
    }
}

// ---- "PtzTour" ----

TEST(PtzTour, ReadsAndWritesAllKeys) {
    const auto parsed = Parse<CFG_PTZ_TOUR_INFO>(
        "PtzTour", R"([{"Enable":true,"Name":"Night","Presets":[[1,2,3],[4],null,[5,6,7,8]]},{"Name":"Day"}])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_PTZ_TOUR_INFO));
    EXPECT_EQ(parsed->nCount, 2u);
    EXPECT_EQ(parsed->stuTours[0].bEnable, 1u);
    EXPECT_EQ(parsed->stuTours[0].nPresetCount, 4u);
    EXPECT_EQ(parsed->stuTours[0].nPresets[0][2], 3);
    EXPECT_EQ(parsed->stuTours[0].nPresets[1][0], 4);
    EXPECT_EQ(parsed->stuTours[0].nPresets[1][1], 0);
    EXPECT_EQ(parsed->stuTours[0].nPresets[3][2], 7);
    EXPECT_STREQ(parsed->stuTours[1].szName, "Day");
    EXPECT_EQ(Pack("PtzTour", *parsed),
              R"([ { "Enable" : true, "Name" : "Night", "Presets" : [ [ 1, 2, 3 ], [ 4, 0, 0 ], [ 0, 0, 0 ], )"
              R"([ 5, 6, 7 ] ] }, { "Enable" : false, "Name" : "Day" } ])");
}

TEST(PtzTour, EndsListsAtTheirArrays) {
    std::string stops = "[1,0,0]";
    std::string tours;
    for (int i = 2; i <= 66; ++i) {
        stops += ",[" + std::to_string(i) + ",0,0]";
        tours += R"(,{"Name":")" + std::to_string(i) + "\"}";
    }
    const auto parsed = Parse<CFG_PTZ_TOUR_INFO>("PtzTour", R"([{"Presets":[)" + stops + "]}" + tours + "]");
    EXPECT_EQ(parsed->nCount, 64u);
    EXPECT_STREQ(parsed->stuTours[63].szName, "64");
    EXPECT_EQ(parsed->stuTours[0].nPresetCount, 64u);
    EXPECT_EQ(parsed->stuTours[0].nPresets[63][0], 64);
    const std::string text = Pack("PtzTour", *parsed);
    parsed.record->nCount = parsed.record->stuTours[0].nPresetCount = 65;
    EXPECT_EQ(Pack("PtzTour", *parsed), text);
    for (const char* none : {"null", "{}", "[]", "7"}) {
        const auto empty = Parse<CFG_PTZ_TOUR_INFO>("PtzTour", none);
        EXPECT_TRUE(empty) << none;
        EXPECT_EQ(empty.length, sizeof(CFG_PTZ_TOUR_INFO));
        EXPECT_TRUE(empty.isCleared());
        EXPECT_EQ(Pack("PtzTour", *empty), "null");
    }
    EXPECT_FALSE(ParseDocument<CFG_PTZ_TOUR_INFO>("PtzTour", R"({"params":{"table":[]}})"));
}

} // namespace
} // namespace orrery::test
