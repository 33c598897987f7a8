#include "device/DeviceStatus.h"

#include "device/ListText.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

std::string Objects(const char* key, int count) {
    return ListText(count, [&](int i) { return "{ " + Quoted(key) + " : " + std::to_string(10 + i) + " }"; });
}

// ---- DeviceStatus ----

Parsed<CFG_DEVICE_STATUS> ParseStatus(const std::string& status, const char* result = "true") {
    return ParseDocument<CFG_DEVICE_STATUS>("DeviceStatus", R"({ "result" : )" + std::string(result)
                                                                + R"(, "params" : { "DeviceStatus" : )" + status
                                                                + " } }");
}

TEST(DeviceStatus, ReadsPowersProcessorsAndFans) {
    const auto parsed = ParseStatus(R"({ "Power" : [ { "Status" : 1 }, { "Status" : 2 } ],
        "CPU" : [ { "Temperature" : 50 } ],
        "FAN" : [ { "RotatoSpeed" : 3000 }, { "RotatoSpeed" : 3100 }, { "RotatoSpeed" : 3200 } ] })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_DEVICE_STATUS));
    ASSERT_EQ(parsed->nPowerNum, 2);
    EXPECT_EQ(parsed->stuPower[0].nStatus, 1);
    EXPECT_EQ(parsed->stuPower[1].nStatus, 2);
    ASSERT_EQ(parsed->nCPUNum, 1);
    EXPECT_EQ(parsed->stuCPU[0].nTemperature, 50);
    ASSERT_EQ(parsed->nFanNum, 3);
    EXPECT_EQ(parsed->stuFan[0].nRotatoSpeed, 3000);
    EXPECT_EQ(parsed->stuFan[2].nRotatoSpeed, 3200);
    EXPECT_EQ(Pack("DeviceStatus", *parsed), kNotBegun); // a reply only
}

TEST(DeviceStatus, TheResultIsNotTested) {
    EXPECT_EQ(ParseStatus(R"({ "CPU" : [ { } ] })", "false")->nCPUNum, 1);
    EXPECT_TRUE(
        (ParseDocument<CFG_DEVICE_STATUS>("DeviceStatus", R"({ "params" : { "DeviceStatus" : { } } })").isCleared()));
    const auto missing = ParseStatus("null");
    EXPECT_FALSE(missing);
    EXPECT_EQ(missing.length, kNoLength);
    EXPECT_FALSE((Parse<CFG_DEVICE_STATUS>("DeviceStatus", "{ }"))); // does not stand in the table
}

TEST(DeviceStatus, WhatIsAboveTheRoomIsDropped) {
    const auto parsed = ParseStatus(R"({ "Power" : )" + Objects("Status", 17) + R"(, "CPU" : )"
                                    + Objects("Temperature", 17) + R"(, "FAN" : )" + Objects("RotatoSpeed", 33) + " }");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->nPowerNum, 16);
    EXPECT_EQ(parsed->stuPower[15].nStatus, 25);
    EXPECT_EQ(parsed->nCPUNum, 16);
    EXPECT_EQ(parsed->stuCPU[15].nTemperature, 25);
    EXPECT_EQ(parsed->nFanNum, 32);
    EXPECT_EQ(parsed->stuFan[31].nRotatoSpeed, 41);
}

// ---- trafficSnap.getDeviceStatus ----

Parsed<CFG_TRAFFIC_SNAP_DEVICE_STATUS> ParseSnap(const std::string& status, const char* result = "true") {
    return ParseDocument<CFG_TRAFFIC_SNAP_DEVICE_STATUS>("trafficSnap.getDeviceStatus",
                                                         R"({ "result" : )" + std::string(result)
                                                             + R"(, "params" : { "status" : )" + status + " } }");
}

TEST(TrafficSnapDeviceStatus, ReadsDevices) {
    const auto parsed = ParseSnap(R"([ { "WokingState" : 1, "SerialNo" : "S1", "Vendor" : "V1", "Type" : "T1",
        "LightState" : 4000000000 }, { "WokingState" : 2 } ])");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_TRAFFIC_SNAP_DEVICE_STATUS));
    ASSERT_EQ(parsed->nCount, 2);
    EXPECT_EQ(parsed->stuDevices[0].nWorkingState, 1);
    EXPECT_STREQ(parsed->stuDevices[0].szSerialNo, "S1");
    EXPECT_STREQ(parsed->stuDevices[0].szVendor, "V1");
    EXPECT_STREQ(parsed->stuDevices[0].szType, "T1");
    EXPECT_EQ(parsed->stuDevices[0].nLightState, 4000000000u);
    EXPECT_EQ(parsed->stuDevices[1].nWorkingState, 2);
    EXPECT_STREQ(parsed->stuDevices[1].szSerialNo, "");
    EXPECT_EQ(Pack("trafficSnap.getDeviceStatus", *parsed), kNotBegun);
}

TEST(TrafficSnapDeviceStatus, KeepsSixteenDevices) {
    const auto parsed = ParseSnap(Objects("WokingState", 17));
    EXPECT_EQ(parsed->nCount, 16);
    EXPECT_EQ(parsed->stuDevices[15].nWorkingState, 25);
    const std::string x(300, 'x');
    const auto cut =
        ParseSnap(R"([ { "SerialNo" : ")" + x + R"(", "Vendor" : ")" + x + R"(", "Type" : ")" + x + R"(" } ])");
    EXPECT_EQ(std::string(cut->stuDevices[0].szSerialNo), x.substr(0, 259));
    EXPECT_EQ(std::string(cut->stuDevices[0].szVendor), x.substr(0, 259));
    EXPECT_EQ(std::string(cut->stuDevices[0].szType), x.substr(0, 259));
    EXPECT_EQ(cut->stuDevices[0].nLightState, 0u);
}

TEST(TrafficSnapDeviceStatus, OnlyAListOfAnAcceptedReplyIsRead) {
    const auto empty = ParseSnap("[ ]");
    ASSERT_TRUE(empty);
    EXPECT_EQ(empty.length, sizeof(CFG_TRAFFIC_SNAP_DEVICE_STATUS));
    EXPECT_TRUE(empty.isCleared());
    for (const auto& refused : {ParseSnap("{ }").result, ParseSnap("null").result, ParseSnap("5").result,
                                ParseSnap("[ { } ]", "false").result})
        EXPECT_EQ(refused, 0);
}

// ---- videoStatServer.getSummary ----

Parsed<CFG_VIDEO_STAT_SUMMARY> ParseSummary(const std::string& summary, const char* result = "true") {
    return ParseDocument<CFG_VIDEO_STAT_SUMMARY>("videoStatServer.getSummary", R"({ "result" : )" + std::string(result)
                                                                                   + R"(, "params" : { "summary" : )"
                                                                                   + summary + " } }");
}

TEST(VideoStatSummary, ReadsCounts) {
    const auto parsed = ParseSummary(R"({ "VideoStatSummary" : [ { "Channel" : 3, "RuleName" : "door",
        "UTC" : 4000000000,
        "EnteredSubtotal" : { "Total" : 11, "Today" : 12, "ThisMonth" : 13, "ThisYear" : 14, "MaxDaily" : 15 },
        "ExitedSubtotal" : { "Total" : 21, "Today" : 22, "ThisMonth" : 23, "ThisYear" : 24, "MaxDaily" : 25 },
        "InsideSubtotal" : { "Total" : 31, "Today" : 32, "ThisMonth" : 33, "ThisYear" : 34, "MaxDaily" : 35,
                             "AvgInside" : 98, "MaxInside" : 99 },
        "AvgInside" : 41, "MaxInside" : 42 }, { "Channel" : 4 } ] })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_VIDEO_STAT_SUMMARY));
    ASSERT_EQ(parsed->nCount, 2);
    const CFG_VIDEO_STAT& stat = parsed->stuStats[0];
    EXPECT_EQ(stat.nChannel, 3);
    EXPECT_STREQ(stat.szRuleName, "door");
    EXPECT_EQ(stat.nUTC, 4000000000u);
    const auto expect = [](const CFG_STAT_SUBTOTAL& subtotal, int first) {
        EXPECT_EQ(subtotal.nTotal, first);
        EXPECT_EQ(subtotal.nToday, first + 1);
        EXPECT_EQ(subtotal.nThisMonth, first + 2);
        EXPECT_EQ(subtotal.nThisYear, first + 3);
        EXPECT_EQ(subtotal.nMaxDaily, first + 4);
    };
    expect(stat.stuEnteredSubtotal, 11);
    expect(stat.stuExitedSubtotal, 21);
    expect(stat.stuInsideSubtotal, 31);
    EXPECT_EQ(stat.nAvgInside, 41); // beside the subtotals, not in one
    EXPECT_EQ(stat.nMaxInside, 42);
    EXPECT_EQ(parsed->stuStats[1].nChannel, 4);
    EXPECT_EQ(parsed->stuStats[1].stuInsideSubtotal.nTotal, 0);
    EXPECT_EQ(Pack("videoStatServer.getSummary", *parsed), kNotBegun);
}

TEST(VideoStatSummary, WhatIsAboveTheRoomIsDropped) {
    const auto parsed = ParseSummary(R"({ "VideoStatSummary" : )" + Objects("Channel", 257) + " }");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->nCount, 256);
    EXPECT_EQ(parsed->stuStats[255].nChannel, 265);
    const auto cut =
        ParseSummary(R"({ "VideoStatSummary" : [ { "UTC" : -5, "RuleName" : ")" + std::string(200, 'r') + R"(" } ] })");
    EXPECT_EQ(std::string(cut->stuStats[0].szRuleName), std::string(127, 'r'));
    EXPECT_EQ(cut->stuStats[0].nUTC, 0u);
}

TEST(VideoStatSummary, OnlyAnAcceptedReplyIsRead) {
    EXPECT_FALSE(ParseSummary(R"({ "VideoStatSummary" : [ ] })", "false"));
    EXPECT_FALSE(ParseSummary("null"));
    for (const char* summary : {"{ }", "[ ]", R"({ "VideoStatSummary" : { "Channel" : 1 } })"}) {
        const auto parsed = ParseSummary(summary);
        ASSERT_TRUE(parsed) << summary;
        EXPECT_EQ(parsed.length, sizeof(CFG_VIDEO_STAT_SUMMARY)) << summary;
        EXPECT_TRUE(parsed.isCleared()) << summary;
    }
}

} // namespace
} // namespace orrery::test
