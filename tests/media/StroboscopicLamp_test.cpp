// "StroboscopicLamp": up to eight lamps in one record.
#include "orrery/encode.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

constexpr const char* kName = "StroboscopicLamp";
using Lamps = Records<CFG_STROBOSCOPIC_LAMP_INFO>;
constexpr std::uint32_t kSize = sizeof(CFG_STROBOSCOPIC_LAMP_INFO);

TEST(StroboscopicLamp, HasTheLayoutThatClientsWereBuiltWith) {
    EXPECT_EQ(sizeof(CFG_STROBOSCOPIC_LAMP), (6u + 26 + 5 + 1) * 4 + 8);
    EXPECT_EQ(sizeof(CFG_STROBOSCOPIC_LAMP_INFO), 4 + 8 * sizeof(CFG_STROBOSCOPIC_LAMP));
}

constexpr const char* kLamp = R"({"Mode":1,"Pole":2,"PreValue":3,"Value":4,"DutyCycle":5,"FrequencyMultiple":6,
    "StroboscopicMode":7,"PreTime":8,"PulseWidth":9,"DelayTime":10,"Frequency":11,"Port":[1,127,128,-1,256]})";
constexpr const char* kLampText = R"({ "DelayTime" : 10, "DutyCycle" : 5, "Frequency" : 11, "FrequencyMultiple" : 6, )"
                                  R"("Mode" : 1, "Pole" : 2, "Port" : [ 1, 127, -128, -1, 0 ], "PreTime" : 8, )"
                                  R"("PreValue" : 3, "PulseWidth" : 9, "StroboscopicMode" : 7, "Value" : 4 })";
constexpr const char* kDarkText = R"({ "DelayTime" : 0, "DutyCycle" : 0, "Frequency" : 0, "FrequencyMultiple" : 0, )"
                                  R"("Mode" : 0, "Pole" : 0, "PreTime" : 0, "PreValue" : 0, "PulseWidth" : 0, )"
                                  R"("StroboscopicMode" : 0, "Value" : 0 })";

TEST(StroboscopicLamp, ReadsAndWritesAllKeys) {
    const Lamps record(1, 0x11);
    ASSERT_EQ(ParseTable(kName, "[" + std::string(kLamp) + ",null,{\"Port\":7}]", record), (Answer{1, 3 * kSize}));
    const CFG_STROBOSCOPIC_LAMP_INFO read = record[0];
    EXPECT_EQ(read.nCount, 3u);
    const CFG_STROBOSCOPIC_LAMP& lamp = read.stuLamps[0];
    EXPECT_EQ(lamp.nMode, 1);
    EXPECT_EQ(lamp.nPole, 2);
    EXPECT_EQ(lamp.nPreValue, 3);
    EXPECT_EQ(lamp.nValue, 4);
    EXPECT_EQ(lamp.nDutyCycle, 5);
    EXPECT_EQ(lamp.nFrequencyMultiple, 6);
    EXPECT_EQ(lamp.nStroboscopicMode, 7);
    EXPECT_EQ(lamp.nPreTime, 8);
    EXPECT_EQ(lamp.nPulseWidth, 9);
    EXPECT_EQ(lamp.nDelayTime, 10);
    EXPECT_EQ(lamp.nFrequency, 11);
    EXPECT_EQ(lamp.nPortCount, 5u);
    EXPECT_EQ(lamp.byPorts[2], -128);
    EXPECT_EQ(lamp.dwReserved[25], 0u);
    EXPECT_EQ(read.stuLamps[2].nPortCount, 0u);
    EXPECT_EQ(PackAll(kName, record), "[ " + std::string(kLampText) + ", " + kDarkText + ", " + kDarkText + " ]");
}

TEST(StroboscopicLamp, TellsAWholeRecordForEveryLamp) {
    std::string table = "[{}";
    for (std::uint32_t lamps = 1; lamps <= 10; ++lamps, table += ",{}") {
        const Lamps record(1, 0x11);
        const std::uint32_t kept = lamps < 8 ? lamps : 8;
        EXPECT_EQ(ParseTable(kName, table + "]", record), (Answer{1, kept * kSize}));
        EXPECT_EQ(record[0].nCount, kept);
    }
    for (const char* none : {"[]", "7", "\"x\""}) {
        const Lamps record(2, 0x11);
        EXPECT_EQ(ParseTable(kName, none, record), (Answer{1, 0})) << none;
        EXPECT_TRUE(record.isAll(0));
    }
}

// An object has a size too, but no element of a list.
TEST(StroboscopicLamp, CountsTheMembersOfAnObject) {
    const Lamps record(1, 0x11);
    EXPECT_EQ(ParseTable(kName, R"({"a":{"Mode":1},"b":2,"c":null})", record), (Answer{1, 3 * kSize}));
    CFG_STROBOSCOPIC_LAMP_INFO expected{};
    expected.nCount = 3;
    EXPECT_EQ(std::memcmp(record.data(), &expected, kSize), 0);
    const Lamps ports(1, 0x11);
    EXPECT_EQ(ParseTable(kName, R"([{"Port":{"0":5,"1":6}},{"Port":[]},{"Port":null}])", ports),
              (Answer{1, 3 * kSize}));
    expected.stuLamps[0].nPortCount = 2;
    EXPECT_EQ(std::memcmp(ports.data(), &expected, kSize), 0);
}

TEST(StroboscopicLamp, SucceedsWithNothingWhenThereIsNoTable) {
    const Lamps record(1, 0x11);
    EXPECT_EQ(ParseTable(kName, "null", record), (Answer{1, kNoLength}));
    EXPECT_TRUE(record.isAll(0));
    for (const char* document : {"[", R"({"params":{"table":[{}]}})", R"({"result":false,"params":{"table":[{}]}})"}) {
        const Lamps refused(1, 0x11);
        EXPECT_EQ(ParseDocument(kName, document, refused), kRefused);
        EXPECT_TRUE(refused.isAll(0));
    }
    const Lamps part(0, kSize - 1, 0x11);
    EXPECT_EQ(ParseTable(kName, "[{}]", part), kRefused);
    EXPECT_TRUE(part.isAll(0x11));
    EXPECT_EQ(PackAll(kName, part), kNotBegun);
}

TEST(StroboscopicLamp, EndsListsAtTheirArrays) {
    const Lamps record(1);
    ASSERT_EQ(ParseTable(kName, R"([{"Port":[1,2,3,4,5,6,7,8,9]}])", record), (Answer{1, kSize}));
    EXPECT_EQ(record[0].stuLamps[0].nPortCount, 8u);
    EXPECT_EQ(record[0].stuLamps[0].byPorts[7], 8);
    for (const std::uint32_t count : {8u, 9u, 0xFFFFFFFFu}) {
        Lamps full(1);
        CFG_STROBOSCOPIC_LAMP_INFO lamps{};
        lamps.nCount = count;
        lamps.stuLamps[7].nPortCount = count;
        full.Set(0, lamps);
        std::string text = "[ ";
        for (int i = 0; i < 7; ++i)
            text += std::string(kDarkText) + ", ";
        std::string last = kDarkText;
        last.insert(last.find("\"PreTime\""), "\"Port\" : [ 0, 0, 0, 0, 0, 0, 0, 0 ], ");
        EXPECT_EQ(PackAll(kName, full), text + last + " ]");
    }
    EXPECT_EQ(PackAll(kName, Lamps(1)), "null");
}

TEST(StroboscopicLamp, FillsItsTextToTheLastByte) {
    CFG_STROBOSCOPIC_LAMP_INFO lamps{};
    lamps.nCount = 1;
    const std::string text = "[ " + std::string(kDarkText) + " ]\n";
    const auto pack = [&](std::size_t capacity) { return PackBytes(kName, &lamps, sizeof lamps, capacity); };
    EXPECT_EQ(pack(text.size() + 1), text);
    EXPECT_EQ(pack(text.size()), text); // no room is left for a terminator
    EXPECT_EQ(pack(text.size() - 1), kFailed);
}

} // namespace
} // namespace orrery::test
