#include "device/DeviceNetwork.h"

#include "device/ListText.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

std::string Numbers(int count) {
    return ListText(count, [](int i) { return std::to_string(100 + i); });
}
// Items with an identifier and a level.
std::string Items(int count) {
    return ListText(count, [](int i) {
        return R"({ "alarmLevel" : )" + std::to_string(i) + R"(, "id" : "c)" + std::to_string(i) + R"(" })";
    });
}

// ---- AccessFilter ----

TEST(AccessFilter, ThereAndBack) {
    const std::string text = R"({ "BannedEnable" : [ true, false ], "BannedList" : [ "10.0.0.1-10.0.0.9", "a:b" ], )"
                             R"("Enable" : true, "TrustEnable" : [ false, true, true ], )"
                             R"("TrustList" : [ "192.168.1.2", "192.168.1.3", "fe80::1" ], "Type" : "TrustList" })";
    const auto parsed = Parse<CFG_ACCESS_FILTER_INFO>("AccessFilter", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_ACCESS_FILTER_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_STREQ(parsed->szType, "TrustList");
    ASSERT_EQ(parsed->nTrustNum, 3);
    EXPECT_STREQ(parsed->szTrustList[0], "192.168.1.2");
    EXPECT_STREQ(parsed->szTrustList[2], "fe80::1");
    ASSERT_EQ(parsed->nBannedNum, 2);
    EXPECT_STREQ(parsed->szBannedList[0], "10.0.0.1-10.0.0.9");
    EXPECT_STREQ(parsed->szBannedList[1], "a:b");
    ASSERT_EQ(parsed->nTrustEnableNum, 3);
    EXPECT_EQ(parsed->bTrustEnable[0], 0);
    EXPECT_EQ(parsed->bTrustEnable[1], 1);
    EXPECT_EQ(parsed->bTrustEnable[2], 1);
    ASSERT_EQ(parsed->nBannedEnableNum, 2);
    EXPECT_EQ(parsed->bBannedEnable[0], 1);
    EXPECT_EQ(parsed->bBannedEnable[1], 0);
    EXPECT_EQ(Pack("AccessFilter", *parsed), text);
}

TEST(AccessFilter, KeepsTwoHundredAndFiftySixOfEach) {
    const auto text = [](int count) {
        const std::string flags = ListText(count, [](int i) { return i % 2 ? "true" : "false"; });
        const auto addresses = [&](const char* prefix) {
            return ListText(count, [&](int i) { return Quoted(prefix + std::to_string(i)); });
        };
        return R"({ "BannedEnable" : )" + flags + R"(, "BannedList" : )" + addresses("b")
               + R"(, "Enable" : false, "TrustEnable" : )" + flags + R"(, "TrustList" : )" + addresses("t")
               + R"(, "Type" : "" })";
    };
    auto parsed = Parse<CFG_ACCESS_FILTER_INFO>("AccessFilter", text(257));
    EXPECT_EQ(parsed->nTrustNum, 256);
    EXPECT_EQ(parsed->nBannedNum, 256);
    EXPECT_EQ(parsed->nTrustEnableNum, 256);
    EXPECT_EQ(parsed->nBannedEnableNum, 256);
    EXPECT_STREQ(parsed->szTrustList[255], "t255");
    EXPECT_STREQ(parsed->szBannedList[255], "b255");
    EXPECT_EQ(parsed->bTrustEnable[255], 1);
    EXPECT_EQ(parsed->bBannedEnable[255], 1);
    parsed.record->nTrustNum = parsed.record->nBannedNum = 257;
    parsed.record->nTrustEnableNum = parsed.record->nBannedEnableNum = 257;
    EXPECT_EQ(Pack("AccessFilter", *parsed), text(256));
}

TEST(AccessFilter, EmptyListsAreNotWritten) {
    EXPECT_EQ(Pack("AccessFilter", *Cleared<CFG_ACCESS_FILTER_INFO>()), R"({ "Enable" : false, "Type" : "" })");
}

TEST(AccessFilter, TextsAreCutAtTheirCapacity) {
    const std::string x(200, 'x');
    const auto parsed =
        Parse<CFG_ACCESS_FILTER_INFO>("AccessFilter", R"({ "Type" : ")" + x + R"(", "TrustList" : [ ")" + x
                                                          + R"(" ], "BannedList" : [ ")" + x + R"(" ] })");
    EXPECT_EQ(std::string(parsed->szType), x.substr(0, 31));
    EXPECT_EQ(std::string(parsed->szTrustList[0]), x.substr(0, 95));
    EXPECT_EQ(std::string(parsed->szBannedList[0]), x.substr(0, 95));
}

// ---- NetCollection ----

TEST(NetCollection, ThereAndBack) {
    const std::string text = R"({ "IP" : "collect.example.org", "Port" : 7000 })";
    const auto parsed = Parse<CFG_NET_COLLECTION_INFO>("NetCollection", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_NET_COLLECTION_INFO));
    EXPECT_STREQ(parsed->szIP, "collect.example.org");
    EXPECT_EQ(parsed->nPort, 7000);
    EXPECT_EQ(Pack("NetCollection", *parsed), text);
    // A text of exactly the buffer's size loses its newline.
    EXPECT_EQ(PackBytes("NetCollection", parsed.record.get(), sizeof *parsed.record, text.size() + 2), text + "\n");
    EXPECT_EQ(PackBytes("NetCollection", parsed.record.get(), sizeof *parsed.record, text.size() + 1), text);
    EXPECT_EQ(PackBytes("NetCollection", parsed.record.get(), sizeof *parsed.record, text.size()), kFailed);
}

// ---- RTMP ----

TEST(Rtmp, ThereAndBack) {
    const std::string text =
        R"({ "Address" : "push.example.org", "CustomPath" : "live\/a", "Enable" : true, "ExtraChannels" : [ 3, 4 ], )"
        R"("MainChannels" : [ 0, 1, 2 ], "Port" : 1935, "StreamPath" : "live\/b" })";
    const auto parsed = Parse<CFG_RTMP_INFO>("RTMP", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_RTMP_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_STREQ(parsed->szAddress, "push.example.org");
    EXPECT_EQ(parsed->nPort, 1935);
    EXPECT_STREQ(parsed->szCustomPath, "live/a");
    EXPECT_STREQ(parsed->szStreamPath, "live/b");
    ASSERT_EQ(parsed->nMainChannelNum, 3);
    EXPECT_EQ(parsed->nMainChannels[0], 0);
    EXPECT_EQ(parsed->nMainChannels[2], 2);
    ASSERT_EQ(parsed->nExtraChannelNum, 2);
    EXPECT_EQ(parsed->nExtraChannels[0], 3);
    EXPECT_EQ(parsed->nExtraChannels[1], 4);
    EXPECT_EQ(Pack("RTMP", *parsed), text);
}

TEST(Rtmp, ListsFillRecords) {
    const auto one = [](int port) {
        return R"({ "Address" : "", "CustomPath" : "", "Enable" : false, "Port" : )" + std::to_string(port)
               + R"(, "StreamPath" : "" })";
    };
    constexpr std::uint32_t kSize = sizeof(CFG_RTMP_INFO);
    const Records<CFG_RTMP_INFO> records(2, 5, 0x5A);
    EXPECT_EQ(ParseTable("RTMP", "[ " + one(1) + ", " + one(2) + ", " + one(3) + " ]", records),
              (Answer{1, 2 * kSize}));
    EXPECT_EQ(records[0].nPort, 1);
    EXPECT_EQ(records[1].nPort, 2);
    EXPECT_EQ(PackAll("RTMP", records), "[ " + one(1) + ", " + one(2) + " ]");
    EXPECT_EQ(ParseTable("RTMP", "[ ]", records), kRefused);
    EXPECT_EQ(ParseTable("RTMP", "5", records), kRefused);
    EXPECT_EQ(ParseTable("RTMP", "null", records), kRefused);
    EXPECT_TRUE(records.isAll(0));
}

TEST(Rtmp, KeepsSixtyFourChannels) {
    const auto text = [](int count) {
        return R"({ "Address" : "", "CustomPath" : "", "Enable" : false, "ExtraChannels" : )" + Numbers(count)
               + R"(, "MainChannels" : )" + Numbers(count) + R"(, "Port" : 0, "StreamPath" : "" })";
    };
    auto parsed = Parse<CFG_RTMP_INFO>("RTMP", text(65));
    EXPECT_EQ(parsed->nMainChannelNum, 64);
    EXPECT_EQ(parsed->nExtraChannelNum, 64);
    EXPECT_EQ(parsed->nMainChannels[63], 163);
    EXPECT_EQ(parsed->nExtraChannels[63], 163);
    parsed.record->nMainChannelNum = parsed.record->nExtraChannelNum = 65;
    EXPECT_EQ(Pack("RTMP", *parsed), text(64));
}

TEST(Rtmp, TextsAreCutAtTheirCapacity) {
    const std::string x(300, 'x');
    const auto parsed = Parse<CFG_RTMP_INFO>("RTMP", R"({ "Address" : ")" + x + R"(", "CustomPath" : ")" + x
                                                         + R"(", "StreamPath" : ")" + x + R"(" })");
    EXPECT_EQ(std::string(parsed->szAddress), x.substr(0, 255));
    EXPECT_EQ(std::string(parsed->szCustomPath), x.substr(0, 255));
    EXPECT_EQ(std::string(parsed->szStreamPath), x.substr(0, 255));
    EXPECT_EQ(parsed->nMainChannelNum, 0);
}

// ---- PhoneEventNotify ----

TEST(PhoneEventNotify, ThereAndBack) {
    const std::string text = R"({ "Contacts" : [ { "alarmLevel" : 2, "id" : "13800000001" }, )"
                             R"({ "alarmLevel" : 3, "id" : "13800000002" } ], "Enable" : true })";
    const auto parsed = Parse<CFG_PHONE_EVENT_NOTIFY_INFO>("PhoneEventNotify", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_PHONE_EVENT_NOTIFY_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    ASSERT_EQ(parsed->nContactNum, 2);
    EXPECT_STREQ(parsed->stuContacts[0].szID, "13800000001");
    EXPECT_EQ(parsed->stuContacts[0].nAlarmLevel, 2);
    EXPECT_STREQ(parsed->stuContacts[1].szID, "13800000002");
    EXPECT_EQ(parsed->stuContacts[1].nAlarmLevel, 3);
    EXPECT_EQ(Pack("PhoneEventNotify", *parsed), text);
}

TEST(PhoneEventNotify, KeepsAHundredContacts) {
    auto parsed = Parse<CFG_PHONE_EVENT_NOTIFY_INFO>("PhoneEventNotify", R"({ "Contacts" : )" + Items(101) + " }");
    EXPECT_EQ(parsed->nContactNum, 100);
    EXPECT_STREQ(parsed->stuContacts[99].szID, "c99");
    parsed.record->nContactNum = 101;
    EXPECT_EQ(Pack("PhoneEventNotify", *parsed), R"({ "Contacts" : )" + Items(100) + R"(, "Enable" : false })");
    parsed.record->nContactNum = 0;
    EXPECT_EQ(Pack("PhoneEventNotify", *parsed), R"({ "Enable" : false })");
    const auto cut = Parse<CFG_PHONE_EVENT_NOTIFY_INFO>("PhoneEventNotify", R"({ "Contacts" : [ { "id" : ")"
                                                                                + std::string(70, 'x') + R"(" } ] })");
    EXPECT_EQ(std::string(cut->stuContacts[0].szID), std::string(63, 'x'));
}

// ---- CommSubscribe ----

TEST(CommSubscribe, ThereAndBack) {
    const std::string text = R"([ { "ReadCycle" : 5 }, { "ReadCycle" : 6 } ])";
    const auto parsed = Parse<CFG_COMM_SUBSCRIBE_INFO>("CommSubscribe", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_COMM_SUBSCRIBE_INFO));
    ASSERT_EQ(parsed->nCount, 2);
    EXPECT_EQ(parsed->stuItems[0].nReadCycle, 5);
    EXPECT_EQ(parsed->stuItems[1].nReadCycle, 6);
    EXPECT_EQ(Pack("CommSubscribe", *parsed), text);
}

TEST(CommSubscribe, KeepsSixteenItems) {
    const auto list = [](int count) {
        return ListText(count, [](int i) { return R"({ "ReadCycle" : )" + std::to_string(i) + " }"; });
    };
    auto parsed = Parse<CFG_COMM_SUBSCRIBE_INFO>("CommSubscribe", list(17));
    EXPECT_EQ(parsed->nCount, 16);
    EXPECT_EQ(parsed->stuItems[15].nReadCycle, 15);
    parsed.record->nCount = 17;
    EXPECT_EQ(Pack("CommSubscribe", *parsed), list(16));
    parsed.record->nCount = 1;
    EXPECT_EQ(Pack("CommSubscribe", *parsed), list(1)); // a list all the same
    parsed.record->nCount = 0;
    EXPECT_EQ(Pack("CommSubscribe", *parsed), "null");
}

// ---- VSP_GAYS ----

TEST(VspGays, ThereAndBack) {
    const std::string text =
        R"({ "Enable" : true, "alarmInSum" : 1, "alarmInfo" : [ { "alarmLevel" : 4, "id" : "a1" } ], )"
        R"("channelInfo" : [ { "alarmLevel" : 2, "id" : "c1" }, { "alarmLevel" : 3, "id" : "c2" } ], )"
        R"("channelSum" : 2, "civilCode" : "310101", "deviceId" : "dev", "domain" : "dom", )"
        R"("intervideoID" : "inter", "keepAliveCircle" : 60, "localSipPort" : 5061, "maxTimeoutTimes" : 3, )"
        R"("password" : "pw", "sipRegExpires" : 3600, "sipSvrId" : "svr", "sipSvrIp" : "10.0.0.7", )"
        R"("sipSvrPort" : 5060 })";
    const auto parsed = Parse<CFG_VSP_GAYS_INFO>("VSP_GAYS", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_VSP_GAYS_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_STREQ(parsed->szSipServerID, "svr");
    EXPECT_STREQ(parsed->szDomain, "dom");
    EXPECT_STREQ(parsed->szSipServerIP, "10.0.0.7");
    EXPECT_STREQ(parsed->szDeviceID, "dev");
    EXPECT_STREQ(parsed->szPassword, "pw");
    EXPECT_EQ(parsed->nLocalSipPort, 5061);
    EXPECT_EQ(parsed->nSipServerPort, 5060);
    EXPECT_EQ(parsed->nSipRegExpires, 3600);
    EXPECT_EQ(parsed->nKeepAliveCircle, 60);
    EXPECT_EQ(parsed->nMaxTimeoutTimes, 3);
    EXPECT_STREQ(parsed->szCivilCode, "310101");
    EXPECT_STREQ(parsed->szIntervideoID, "inter");
    ASSERT_EQ(parsed->nChannelSum, 2);
    EXPECT_STREQ(parsed->stuChannelInfo[0].szID, "c1");
    EXPECT_EQ(parsed->stuChannelInfo[0].nAlarmLevel, 2);
    EXPECT_STREQ(parsed->stuChannelInfo[1].szID, "c2");
    EXPECT_EQ(parsed->stuChannelInfo[1].nAlarmLevel, 3);
    ASSERT_EQ(parsed->nAlarmInSum, 1);
    EXPECT_STREQ(parsed->stuAlarmInfo[0].szID, "a1");
    EXPECT_EQ(parsed->stuAlarmInfo[0].nAlarmLevel, 4);
    EXPECT_EQ(Pack("VSP_GAYS", *parsed), text);
}

TEST(VspGays, ASumHasTheLastWordOverItsList) {
    const auto parsed = Parse<CFG_VSP_GAYS_INFO>("VSP_GAYS", R"({ "alarmInSum" : 2, "alarmInfo" : [ { "id" : "a" } ],
        "channelSum" : 1, "channelInfo" : [ { "id" : "b" }, { "id" : "c" } ] })");
    EXPECT_EQ(parsed->nAlarmInSum, 2);
    EXPECT_EQ(parsed->nChannelSum, 1);
    EXPECT_STREQ(parsed->stuChannelInfo[1].szID, "c"); // read all the same
    const std::string text = Pack("VSP_GAYS", *parsed);
    EXPECT_NE(text.find(R"("alarmInfo" : [ { "alarmLevel" : 0, "id" : "a" }, { "alarmLevel" : 0, "id" : "" } ])"),
              std::string::npos);
    EXPECT_NE(text.find(R"("channelInfo" : [ { "alarmLevel" : 0, "id" : "b" } ], "channelSum" : 1)"),
              std::string::npos);
}

TEST(VspGays, WithoutASumTheListIsCounted) {
    const auto parsed = Parse<CFG_VSP_GAYS_INFO>("VSP_GAYS", R"({ "alarmInSum" : null, "alarmInfo" : [ { }, { } ],
        "channelInfo" : [ { }, { }, { } ] })");
    EXPECT_EQ(parsed->nAlarmInSum, 2);
    EXPECT_EQ(parsed->nChannelSum, 3);
}

TEST(VspGays, SumsAboveTheRoomAreKeptAndListsEndAtIt) {
    const auto text = [](int count, int sum) {
        return R"({ "Enable" : false, "alarmInSum" : )" + std::to_string(sum) + R"(, "alarmInfo" : )" + Items(count)
               + R"(, "channelInfo" : )" + Items(count) + R"(, "channelSum" : )" + std::to_string(sum)
               + R"(, "civilCode" : "", "deviceId" : "", "domain" : "", "intervideoID" : "", "keepAliveCircle" : 0, )"
                 R"("localSipPort" : 0, "maxTimeoutTimes" : 0, "password" : "", "sipRegExpires" : 0, )"
                 R"("sipSvrId" : "", "sipSvrIp" : "", "sipSvrPort" : 0 })";
    };
    const auto parsed = Parse<CFG_VSP_GAYS_INFO>("VSP_GAYS", text(513, 513));
    EXPECT_EQ(parsed->nChannelSum, 513);
    EXPECT_EQ(parsed->nAlarmInSum, 513);
    EXPECT_STREQ(parsed->stuChannelInfo[511].szID, "c511");
    EXPECT_STREQ(parsed->stuAlarmInfo[511].szID, "c511");
    EXPECT_EQ(Pack("VSP_GAYS", *parsed), text(512, 513));
    auto negative = Parse<CFG_VSP_GAYS_INFO>("VSP_GAYS", R"({ "channelSum" : -1, "channelInfo" : [ { } ] })");
    EXPECT_EQ(negative->nChannelSum, -1);
    EXPECT_EQ(Pack("VSP_GAYS", *negative).find("channelInfo"), std::string::npos);
}

TEST(VspGays, TextsAreCutAtTheirCapacity) {
    const std::string x(100, 'x');
    std::string table = R"({ "channelInfo" : [ { "id" : ")" + x + R"(" } ])";
    for (const char* key : {"sipSvrId", "domain", "sipSvrIp", "deviceId", "password", "civilCode", "intervideoID"})
        table += ", " + Quoted(key) + " : " + Quoted(x);
    const auto parsed = Parse<CFG_VSP_GAYS_INFO>("VSP_GAYS", table + " }");
    for (const char* text :
         {parsed->szSipServerID, parsed->szDomain, parsed->szSipServerIP, parsed->szDeviceID, parsed->szPassword,
          parsed->szCivilCode, parsed->szIntervideoID, parsed->stuChannelInfo[0].szID})
        EXPECT_EQ(std::string(text), x.substr(0, 63));
    EXPECT_EQ(parsed->nLocalSipPort, 0);
    EXPECT_EQ(parsed->stuChannelInfo[0].nAlarmLevel, 0);
}

// ---- AroudWifiSearch ----

TEST(AroudWifiSearch, ThereAndBack) {
    const std::string text = R"({ "Enable" : true, "OptimizNotification" : true, "Period" : 30 })";
    const auto parsed = Parse<CFG_AROUD_WIFI_SEARCH_INFO>("AroudWifiSearch", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, kNoLength + sizeof(CFG_AROUD_WIFI_SEARCH_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_EQ(parsed->nPeriod, 30);
    EXPECT_EQ(parsed->bOptimizNotification, 1);
    EXPECT_EQ(Pack("AroudWifiSearch", *parsed), text);
}

TEST(AroudWifiSearch, ListsFillRecords) {
    constexpr std::uint32_t kSize = sizeof(CFG_AROUD_WIFI_SEARCH_INFO);
    const Records<CFG_AROUD_WIFI_SEARCH_INFO> records(2);
    EXPECT_EQ(ParseTable("AroudWifiSearch", R"([ { "Period" : 1 }, { "Period" : 2 }, { "Period" : 3 } ])", records),
              (Answer{1, kNoLength + 2 * kSize}));
    EXPECT_EQ(records[1].nPeriod, 2);
    EXPECT_EQ(PackAll("AroudWifiSearch", records),
              R"([ { "Enable" : false, "OptimizNotification" : false, "Period" : 1 }, )"
              R"({ "Enable" : false, "OptimizNotification" : false, "Period" : 2 } ])");
    // An empty list is one record without keys.
    EXPECT_EQ(ParseTable("AroudWifiSearch", "[ ]", records), (Answer{1, kNoLength + kSize}));
    EXPECT_TRUE(records.isAll(0));
}

} // namespace
} // namespace orrery::test
