#include "network/Dvrip.h"

#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

constexpr const char* kFull =
    R"({ "MCASTAddress" : "239.255.42.42", "MCASTEnable" : true, "MCASTPort" : 36666, "MaxConnections" : 128, )"
    R"("RegisterServer" : { "DeviceID" : "door-1", "Enable" : true, )"
    R"("Servers" : [ { "Address" : "reg.example.org", "Port" : 7000 }, { "Address" : "10.0.0.1", "Port" : 7001 } ] }, )"
    R"("RegisterServerEx" : { "DeviceID" : "door-1b", "Enable" : true, )"
    R"("Servers" : [ { "Address" : "10.0.0.2", "Port" : 7002 } ] }, )"
    R"("RegisterServerVehicle" : { "Address" : "fleet.example.org", "DeviceID" : "bus-9", "Enable" : true, )"
    R"("Port" : 8000, "RepeatEnable" : true, "SendInterval" : 30, "SendPolicy" : "Event", )"
    R"("TestAddress" : "test.example.org", "TestPort" : 8001 }, )"
    R"("SSLPort" : 37778, "StreamPolicy" : "Fluency", "TCPPort" : 37777, "UDPPort" : 37779 })";

TEST(Dvrip, ThereAndBack) {
    const auto parsed = Parse<CFG_DVRIP_INFO>("DVRIP", kFull);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_DVRIP_INFO));
    EXPECT_EQ(parsed->nTcpPort, 37777);
    EXPECT_EQ(parsed->nSSLPort, 37778);
    EXPECT_EQ(parsed->nMaxConnections, 128);
    EXPECT_EQ(parsed->nUDPPort, 37779);
    EXPECT_EQ(parsed->nMCASTPort, 36666);
    EXPECT_EQ(parsed->bMCASTEnable, 1);
    EXPECT_STREQ(parsed->szMCASTAddress, "239.255.42.42");
    EXPECT_EQ(parsed->stuRegisterServer.bEnable, 1);
    EXPECT_STREQ(parsed->stuRegisterServer.szDeviceID, "door-1");
    ASSERT_EQ(parsed->stuRegisterServer.nServersNum, 2);
    EXPECT_EQ(parsed->stuRegisterServer.stuServers[1].nPort, 7001);
    EXPECT_STREQ(parsed->stuRegisterServer.stuServers[1].szAddress, "10.0.0.1");
    ASSERT_EQ(parsed->stuRegisterServerEx.nServersNum, 1);
    EXPECT_STREQ(parsed->stuRegisterServerEx.stuServers[0].szAddress, "10.0.0.2");
    EXPECT_EQ(parsed->emStreamPolicy, CFG_STREAM_POLICY_FLUENCY);
    const CFG_REGISTER_VEHICLE_INFO& vehicle = parsed->stuRegisterVehicle;
    EXPECT_EQ(vehicle.bEnable, 1);
    EXPECT_STREQ(vehicle.szDeviceID, "bus-9");
    EXPECT_EQ(vehicle.nSendInterval, 30);
    EXPECT_STREQ(vehicle.szAddress, "fleet.example.org");
    EXPECT_EQ(vehicle.nPort, 8000);
    EXPECT_EQ(vehicle.bRepeatEnable, 1);
    EXPECT_EQ(vehicle.emSendPolicy, CFG_REGISTER_SEND_EVENT);
    EXPECT_STREQ(vehicle.szTestAddress, "test.example.org");
    EXPECT_EQ(vehicle.nTestPort, 8001);
    EXPECT_EQ(Pack("DVRIP", *parsed), kFull);
}

TEST(Dvrip, AnEmptyRecordAsText) {
    EXPECT_EQ(Pack("DVRIP", *Cleared<CFG_DVRIP_INFO>()),
              R"({ "MCASTAddress" : "", "MCASTEnable" : false, "MCASTPort" : 0, "MaxConnections" : 0, )"
              R"("RegisterServer" : { "DeviceID" : "", "Enable" : false }, )"
              R"("RegisterServerEx" : { "DeviceID" : "", "Enable" : false }, )"
              R"("RegisterServerVehicle" : { "Address" : "", "DeviceID" : "", "Enable" : false, "Port" : 0, )"
              R"("RepeatEnable" : false, "SendInterval" : 0, "SendPolicy" : "Timing", "TestAddress" : "", )"
              R"("TestPort" : 0 }, "SSLPort" : 0, "TCPPort" : 0, "UDPPort" : 0 })");
}

TEST(Dvrip, AtMostTenServers) {
    std::string servers;
    for (int i = 0; i < 12; ++i)
        servers += (i > 0 ? ", { \"Port\" : " : "{ \"Port\" : ") + std::to_string(i) + " }";
    auto parsed = Parse<CFG_DVRIP_INFO>("DVRIP", R"({ "RegisterServer" : { "Servers" : [ )" + servers + " ] } }");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->stuRegisterServer.nServersNum, 10);
    EXPECT_EQ(parsed->stuRegisterServer.stuServers[9].nPort, 9);
    EXPECT_EQ(parsed->stuRegisterServerEx.bEnable, 0) << "what stands behind the list";
    parsed.record->stuRegisterServer.nServersNum = 1000;
    const std::string text = Pack("DVRIP", *parsed);
    EXPECT_NE(text.find(R"("Port" : 9 } ] })"), std::string::npos) << text;
}

TEST(Dvrip, StreamPoliciesInBothDirections) {
    const char* const names[] = {"", "None", "Quality", "Fluency", "AutoAdapt"};
    auto record = Cleared<CFG_DVRIP_INFO>();
    for (int code = 1; code < 5; ++code) {
        const std::string value = "\"StreamPolicy\" : \"" + std::string(names[code]) + "\"";
        EXPECT_EQ((Parse<CFG_DVRIP_INFO>("DVRIP", "{ " + value + " }")->emStreamPolicy), code);
        record->emStreamPolicy = code;
        EXPECT_NE(Pack("DVRIP", *record).find(value), std::string::npos);
    }
    EXPECT_EQ((Parse<CFG_DVRIP_INFO>("DVRIP", R"({ "StreamPolicy" : "autoADAPT" })")->emStreamPolicy), 4);
    EXPECT_EQ((Parse<CFG_DVRIP_INFO>("DVRIP", R"({ "StreamPolicy" : "Best" })")->emStreamPolicy), 0);
    EXPECT_EQ((Parse<CFG_DVRIP_INFO>("DVRIP", R"({ "StreamPolicy" : 2 })")->emStreamPolicy), 0);
    for (const std::int32_t code : {0, 5, -1}) {
        record->emStreamPolicy = code;
        EXPECT_EQ(Pack("DVRIP", *record).find("StreamPolicy"), std::string::npos) << code;
    }
}

TEST(Dvrip, SendPoliciesInBothDirections) {
    const char* const names[] = {"Timing", "Event"};
    const auto read = [](const std::string& value) {
        return Parse<CFG_DVRIP_INFO>("DVRIP", R"({ "RegisterServerVehicle" : { "SendPolicy" : )" + value + " } }")
            ->stuRegisterVehicle.emSendPolicy;
    };
    auto record = Cleared<CFG_DVRIP_INFO>();
    for (int code = 0; code < 2; ++code) {
        EXPECT_EQ(read('"' + std::string(names[code]) + '"'), code);
        record->stuRegisterVehicle.emSendPolicy = code;
        EXPECT_NE(Pack("DVRIP", *record).find("\"SendPolicy\" : \"" + std::string(names[code]) + "\""),
                  std::string::npos);
    }
    EXPECT_EQ(read("\"EVENT\""), 1);
    EXPECT_EQ(read("\"Never\""), 0);
    for (const std::int32_t code : {2, -1}) {
        record->stuRegisterVehicle.emSendPolicy = code;
        EXPECT_EQ(Pack("DVRIP", *record).find("SendPolicy"), std::string::npos) << code;
    }
}

TEST(Dvrip, AVehiclesAddressKeeps254Bytes) {
    const std::string address(300, 'a');
    const auto parsed = Parse<CFG_DVRIP_INFO>("DVRIP", R"({ "RegisterServerVehicle" : { "Address" : ")" + address
                                                           + R"(", "DeviceID" : ")" + address + "\" } }");
    EXPECT_EQ(std::string(parsed->stuRegisterVehicle.szAddress), address.substr(0, 254));
    EXPECT_EQ(std::string(parsed->stuRegisterVehicle.szDeviceID), address.substr(0, 255));
}

TEST(Dvrip, OtherTextsKeep255Bytes) {
    const std::string x(300, 'x');
    const auto parsed =
        Parse<CFG_DVRIP_INFO>("DVRIP", R"({ "MCASTAddress" : ")" + x + R"(", "RegisterServerEx" : { "DeviceID" : ")" + x
                                           + R"(", "Servers" : [ { "Address" : ")" + x + R"(", "Port" : 5 } ] },
        "RegisterServerVehicle" : { "TestAddress" : ")"
                                           + x + R"(", "TestPort" : 6 } })");
    EXPECT_EQ(std::string(parsed->szMCASTAddress), x.substr(0, 255));
    EXPECT_EQ(std::string(parsed->stuRegisterServerEx.szDeviceID), x.substr(0, 255));
    EXPECT_EQ(std::string(parsed->stuRegisterServerEx.stuServers[0].szAddress), x.substr(0, 255));
    EXPECT_EQ(parsed->stuRegisterServerEx.stuServers[0].nPort, 5);
    EXPECT_EQ(std::string(parsed->stuRegisterVehicle.szTestAddress), x.substr(0, 255));
    EXPECT_EQ(parsed->stuRegisterVehicle.nTestPort, 6);
}

TEST(Dvrip, RefusedAndMissing) {
    EXPECT_FALSE((ParseDocument<CFG_DVRIP_INFO>("DVRIP", R"({ "params" : { "table" : { } } })")));
    const auto none = ParseDocument<CFG_DVRIP_INFO>("DVRIP", R"({ "result" : true })");
    EXPECT_FALSE(none);
    EXPECT_TRUE(none.isCleared());
}

} // namespace
} // namespace orrery::test
