#include "network/Network.h"

#include "support/Call.h"
#include "support/GuardedBuffer.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

constexpr const char* kTwoInterfaces = R"({
    "Hostname" : "nvr", "Domain" : "example.org", "DefaultInterface" : "eth0",
    "eth1" : { "IPAddress" : "10.0.0.2" },
    "eth0" : { "IPAddress" : "192.168.1.108", "SubnetMask" : "255.255.255.0", "DefaultGateway" : "192.168.1.1",
               "DhcpEnable" : true, "DnsAutoGet" : 3, "DnsServers" : [ "8.8.8.8", "8.8.4.4", "1.1.1.1" ],
               "MTU" : 1500, "PhysicalAddress" : "00:11:22:33:44:55", "Enable" : true,
               "EnableDhcpReservedIP" : true, "NetMode" : "full100M", "Type" : "Manager", "Bonding" : true } })";

TEST(Network, ReadsEachInterfaceUnderItsName) {
    const auto parsed = Parse<CFG_NETWORK_INFO>("Network", kTwoInterfaces);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_NETWORK_INFO));
    EXPECT_STREQ(parsed->szHostName, "nvr");
    EXPECT_STREQ(parsed->szDomain, "example.org");
    EXPECT_STREQ(parsed->szDefInterface, "eth0");
    ASSERT_EQ(parsed->nInterfaceNum, 2);
    const CFG_NETWORK_INTERFACE& first = parsed->stuInterfaces[0];
    EXPECT_STREQ(first.szName, "eth0");
    EXPECT_STREQ(first.szIP, "192.168.1.108");
    EXPECT_STREQ(first.szSubnetMask, "255.255.255.0");
    EXPECT_STREQ(first.szDefGateway, "192.168.1.1");
    EXPECT_EQ(first.bDhcpEnable, 1);
    EXPECT_EQ(first.bDnsAutoGet, 3) << "read as a number";
    EXPECT_STREQ(first.szDnsServers[0], "8.8.8.8");
    EXPECT_STREQ(first.szDnsServers[1], "8.8.4.4");
    EXPECT_EQ(first.nMTU, 1500);
    EXPECT_STREQ(first.szMacAddress, "00:11:22:33:44:55");
    EXPECT_EQ(first.bEnable, 1);
    EXPECT_EQ(first.bReservedIP, 1);
    EXPECT_EQ(first.emNetMode, CFG_NET_MODE_FULL_100M);
    EXPECT_EQ(first.emType, CFG_NET_INTERFACE_MANAGER);
    EXPECT_EQ(first.nBonding, 1);
    const CFG_NETWORK_INTERFACE& second = parsed->stuInterfaces[1];
    EXPECT_STREQ(second.szName, "eth1");
    EXPECT_STREQ(second.szIP, "10.0.0.2");
    EXPECT_EQ(second.nBonding, -1) << "absent";
    EXPECT_EQ(parsed->stuInterfaces[2].nBonding, 0) << "no interface: the slot stays clear";
}

TEST(Network, SwitchesAreReadAsNumbersAndWrittenAsBools) {
    auto parsed = Parse<CFG_NETWORK_INFO>("Network", R"({ "e" : { "DhcpEnable" : 7, "DnsAutoGet" : -2, "Enable" : 256,
        "EnableDhcpReservedIP" : 1.5, "Bonding" : 5 }, "f" : { "DhcpEnable" : true, "DnsAutoGet" : "true",
        "Enable" : false, "EnableDhcpReservedIP" : "x", "Bonding" : false }, "g" : { "MTU" : 1, "Bonding" : null } })");
    ASSERT_TRUE(parsed);
    const CFG_NETWORK_INTERFACE* const numbers = &parsed->stuInterfaces[0];
    EXPECT_EQ(numbers->bDhcpEnable, 7);
    EXPECT_EQ(numbers->bDnsAutoGet, -2);
    EXPECT_EQ(numbers->bEnable, 256);
    EXPECT_EQ(numbers->bReservedIP, 1);
    EXPECT_EQ(numbers->nBonding, 1) << "this one is a bool";
    const CFG_NETWORK_INTERFACE* const others = &parsed->stuInterfaces[1];
    EXPECT_EQ(others->bDhcpEnable, 1);
    EXPECT_EQ(others->bDnsAutoGet, 0);
    EXPECT_EQ(others->bEnable, 0);
    EXPECT_EQ(others->bReservedIP, 0);
    EXPECT_EQ(others->nBonding, 0);
    EXPECT_EQ(parsed->stuInterfaces[2].nBonding, -1) << "null is absent";
    parsed.record->stuInterfaces[0].nBonding = -2;
    const std::string text = Pack("Network", *parsed);
    EXPECT_NE(text.find(R"("e" : { "Bonding" : true, "DefaultGateway" : "", "DhcpEnable" : true, )"
                        R"("DnsAutoGet" : true, "Enable" : true, "EnableDhcpReservedIP" : true, )"),
              std::string::npos)
        << text;
}

TEST(Network, OfTheNameServersTheFirstTwo) {
    const auto read = [](const std::string& value) {
        const auto parsed = Parse<CFG_NETWORK_INFO>("Network", R"({ "e" : { "DnsServers" : )" + value + " } }");
        const auto& servers = parsed->stuInterfaces[0].szDnsServers;
        return std::string(servers[0]) + "|" + servers[1];
    };
    EXPECT_EQ(read(R"([ "a", "b", "c" ])"), "a|b");
    EXPECT_EQ(read(R"([ "a" ])"), "a|");
    EXPECT_EQ(read(R"([ "", "b" ])"), "|b");
    EXPECT_EQ(read(R"([ null, 5 ])"), "|");
    EXPECT_EQ(read(R"("a")"), "|");
    EXPECT_EQ(read(R"({ "0" : "a" })"), "|");
    EXPECT_EQ(read("[ \"" + std::string(300, 'a') + "\", \"b\" ]"), std::string(255, 'a') + "|b");
}

TEST(Network, AKeyThatHoldsAnObjectIsAnInterfaceToo) {
    const auto parsed = Parse<CFG_NETWORK_INFO>("Network", R"({ "Hostname" : { "MTU" : 3 }, "Domain" : { } })");
    ASSERT_TRUE(parsed);
    EXPECT_STREQ(parsed->szHostName, "");
    ASSERT_EQ(parsed->nInterfaceNum, 1);
    EXPECT_STREQ(parsed->stuInterfaces[0].szName, "Hostname");
    EXPECT_EQ(parsed->stuInterfaces[0].nMTU, 3);
}

TEST(Network, TextsAreCutAtTheirCapacity) {
    const std::string x(300, 'x');
    std::string table = "{";
    for (const char* key : {"Hostname", "Domain", "DefaultInterface"})
        table += " \"" + std::string(key) + "\" : \"" + x + "\",";
    table += " \"e\" : {";
    for (const char* key : {"IPAddress", "SubnetMask", "DefaultGateway", "PhysicalAddress"})
        table += " \"" + std::string(key) + "\" : \"" + x + "\",";
    const auto parsed = Parse<CFG_NETWORK_INFO>("Network", table + " \"MTU\" : 9 } }");
    ASSERT_TRUE(parsed);
    for (const char* text : {parsed->szHostName, parsed->szDomain, parsed->szDefInterface})
        EXPECT_EQ(std::string(text), x.substr(0, 127));
    const CFG_NETWORK_INTERFACE& e = parsed->stuInterfaces[0];
    for (const char* text : {e.szIP, e.szSubnetMask, e.szDefGateway, e.szMacAddress})
        EXPECT_EQ(std::string(text), x.substr(0, 255));
    EXPECT_EQ(e.nMTU, 9);
}

TEST(Network, OnlyObjectsWithMembersAreInterfaces) {
    const auto parsed = Parse<CFG_NETWORK_INFO>(
        "Network", R"({ "Hostname" : "a", "b" : 1, "c" : "d", "e" : [ { "MTU" : 1 } ], "f" : {}, "g" : null,
                        "h" : { "MTU" : 7 }, "i" : { "Other" : 0 } })");
    ASSERT_TRUE(parsed);
    ASSERT_EQ(parsed->nInterfaceNum, 2);
    EXPECT_STREQ(parsed->stuInterfaces[0].szName, "h");
    EXPECT_EQ(parsed->stuInterfaces[0].nMTU, 7);
    EXPECT_STREQ(parsed->stuInterfaces[1].szName, "i");
}

TEST(Network, StopsAtThirtyTwoInterfaces) {
    std::string table = "{";
    for (int i = 10; i < 50; ++i)
        table += (i > 10 ? ", \"eth" : "\"eth") + std::to_string(i) + "\" : { \"MTU\" : " + std::to_string(i) + " }";
    const auto parsed = Parse<CFG_NETWORK_INFO>("Network", table + "}");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->nInterfaceNum, 32);
    EXPECT_STREQ(parsed->stuInterfaces[31].szName, "eth41");
    EXPECT_EQ(parsed->stuInterfaces[31].nMTU, 41);
}

TEST(Network, NamesKeep127Bytes) {
    const std::string name(200, 'n');
    const auto parsed = Parse<CFG_NETWORK_INFO>("Network", "{ \"" + name + "\" : { \"MTU\" : 1 } }");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(std::string(parsed->stuInterfaces[0].szName), name.substr(0, 127));
}

TEST(Network, RepliesWithoutATableGiveAClearedRecord) {
    for (const char* document : {R"({ "result" : true })", R"({ "result" : true, "params" : { "table" : null } })",
                                 R"({ "result" : true, "params" : { "table" : [ 1 ] } })"}) {
        const auto parsed = ParseDocument<CFG_NETWORK_INFO>("Network", document);
        EXPECT_TRUE(parsed) << document;
        EXPECT_TRUE(parsed.isCleared()) << document;
        EXPECT_EQ(parsed.length, sizeof(CFG_NETWORK_INFO)) << document;
    }
}

TEST(Network, FailuresAndWhatTheyLeave) {
    const auto refused =
        ParseDocument<CFG_NETWORK_INFO>("Network", R"({ "result" : false, "params" : { "table" : {} } })");
    EXPECT_FALSE(refused);
    EXPECT_TRUE(refused.isCleared());
    EXPECT_EQ(refused.length, kNoLength);
    EXPECT_FALSE(ParseDocument<CFG_NETWORK_INFO>("Network", R"({ "params" : { "table" : { } } })"));
    const auto noJson = ParseDocument<CFG_NETWORK_INFO>("Network", "{ \"result\" : ");
    EXPECT_FALSE(noJson);
    EXPECT_TRUE(noJson.isCleared());
    const auto empty = ParseDocument<CFG_NETWORK_INFO>("Network", "");
    EXPECT_FALSE(empty);
    EXPECT_TRUE(empty.isUntouched()) << "an empty text is refused first";
}

TEST(Network, ShortBuffersTakeTheBeginningOfTheRecord) {
    const std::string document = R"({ "result" : true, "params" : { "table" : )" + std::string(kTwoInterfaces) + " } }";
    const auto whole = Parse<CFG_NETWORK_INFO>("Network", kTwoInterfaces);
    const auto* const expected = reinterpret_cast<const char*>(whole.record.get());
    const auto check = [&](std::size_t size) {
        const GuardedBuffer buffer(size);
        std::memset(buffer.data(), kUntouched, size);
        std::uint32_t length = 0;
        ASSERT_EQ(
            CLIENT_ParseData("Network", document.c_str(), buffer.data(), static_cast<std::uint32_t>(size), &length), 1);
        EXPECT_EQ(length, sizeof(CFG_NETWORK_INFO));
        EXPECT_EQ(buffer.view(), std::string_view(expected, size));
    };
    for (std::size_t size = 1; size < 400; ++size)
        check(size);
    for (std::size_t size = 400; size < sizeof(CFG_NETWORK_INFO); size += 997)
        check(size);
    check(sizeof(CFG_NETWORK_INFO) - 1);
    check(sizeof(CFG_NETWORK_INFO));
}

TEST(Network, BytesBehindTheRecordAreCleared) {
    std::vector<char> buffer(sizeof(CFG_NETWORK_INFO) + 100, 'x');
    ASSERT_EQ(CLIENT_ParseData("Network", R"({ "result" : true })", buffer.data(),
                               static_cast<std::uint32_t>(buffer.size()), nullptr),
              1);
    EXPECT_EQ(std::string_view(buffer.data() + sizeof(CFG_NETWORK_INFO), 100), std::string(100, '\0'));
}

TEST(Network, NetModesInBothDirections) {
    const char* const names[] = {"adapt", "half10M", "full10M", "half100M", "full100M"};
    auto record = Cleared<CFG_NETWORK_INFO>();
    record->nInterfaceNum = 1;
    for (int code = -1; code < 6; ++code) {
        const std::string name = code >= 0 && code < 5 ? names[code] : "";
        record->stuInterfaces[0].emNetMode = code;
        const std::string text = Pack("Network", *record);
        EXPECT_NE(text.find("\"NetMode\" : \"" + name + "\""), std::string::npos) << code << text;
        const auto parsed = Parse<CFG_NETWORK_INFO>("Network", "{ \"e\" : { \"NetMode\" : \"" + name + "\" } }");
        EXPECT_EQ(parsed->stuInterfaces[0].emNetMode, name.empty() ? 0 : code);
    }
    for (const char* unknown : {"\"Full100M\"", "\"full100M \"", "\"gigabit\"", "4"}) {
        const auto parsed =
            Parse<CFG_NETWORK_INFO>("Network", "{ \"e\" : { \"NetMode\" : " + std::string(unknown) + " } }");
        EXPECT_EQ(parsed->stuInterfaces[0].emNetMode, 0) << unknown;
    }
}

TEST(Network, InterfaceTypesInBothDirections) {
    const char* const names[] = {"", "Standard", "Manager", "Extend"};
    auto record = Cleared<CFG_NETWORK_INFO>();
    record->nInterfaceNum = 1;
    for (int code = -1; code < 5; ++code) {
        const std::string name = code >= 0 && code < 4 ? names[code] : "";
        record->stuInterfaces[0].emType = code;
        const std::string text = Pack("Network", *record);
        EXPECT_NE(text.find("\"Type\" : \"" + name + "\""), std::string::npos) << code << text;
        const auto parsed = Parse<CFG_NETWORK_INFO>("Network", "{ \"e\" : { \"Type\" : \"" + name + "\" } }");
        EXPECT_EQ(parsed->stuInterfaces[0].emType, name.empty() ? 0 : code);
    }
    for (const char* unknown : {"standard", "EXTEND", "Wan"}) {
        const auto parsed =
            Parse<CFG_NETWORK_INFO>("Network", "{ \"e\" : { \"Type\" : \"" + std::string(unknown) + "\" } }");
        EXPECT_EQ(parsed->stuInterfaces[0].emType, 0) << unknown;
    }
}

TEST(Network, PacksTheInterfacesAmongTheKeys) {
    auto record = Cleared<CFG_NETWORK_INFO>();
    std::strcpy(record->szHostName, "nvr");
    std::strcpy(record->szDomain, "example.org");
    std::strcpy(record->szDefInterface, "eth0");
    record->nInterfaceNum = 3;
    CFG_NETWORK_INTERFACE& first = record->stuInterfaces[0];
    std::strcpy(first.szName, "eth0");
    std::strcpy(first.szIP, "192.168.1.108");
    std::strcpy(first.szSubnetMask, "255.255.255.0");
    std::strcpy(first.szDefGateway, "192.168.1.1");
    first.bDhcpEnable = 2;
    first.bDnsAutoGet = 0;
    std::strcpy(first.szDnsServers[0], "8.8.8.8");
    std::strcpy(first.szDnsServers[1], "8.8.4.4");
    first.nMTU = 1500;
    std::strcpy(first.szMacAddress, "00:11:22:33:44:55");
    first.bEnable = 1;
    first.bReservedIP = 1;
    first.emNetMode = CFG_NET_MODE_FULL_100M;
    first.emType = CFG_NET_INTERFACE_EXTEND;
    first.nBonding = 0;
    std::strcpy(record->stuInterfaces[1].szName, "Dsl"); // between "DefaultInterface" and "Hostname"
    record->stuInterfaces[1].nBonding = -1;
    std::strcpy(record->stuInterfaces[1].szDnsServers[1], "9.9.9.9"); // behind an empty one
    std::strcpy(record->stuInterfaces[2].szName, "3G");               // in front of all keys
    record->stuInterfaces[2].nBonding = 5;
    std::strcpy(record->stuInterfaces[2].szDnsServers[0], "1.1.1.1");
    std::strcpy(record->stuInterfaces[3].szName, "eth3"); // not in use

    const std::string expected =
        R"({ "3G" : { "Bonding" : true, "DefaultGateway" : "", "DhcpEnable" : false, "DnsAutoGet" : false, )"
        R"("DnsServers" : [ "1.1.1.1" ], "Enable" : false, "EnableDhcpReservedIP" : false, "IPAddress" : "", )"
        R"("MTU" : 0, "NetMode" : "adapt", "PhysicalAddress" : "", "SubnetMask" : "", "Type" : "" }, )"
        R"("DefaultInterface" : "eth0", "Domain" : "example.org", )"
        R"("Dsl" : { "DefaultGateway" : "", "DhcpEnable" : false, "DnsAutoGet" : false, )"
        R"("Enable" : false, "EnableDhcpReservedIP" : false, "IPAddress" : "", )"
        R"("MTU" : 0, "NetMode" : "adapt", "PhysicalAddress" : "", "SubnetMask" : "", "Type" : "" }, )"
        R"("Hostname" : "nvr", )"
        R"("eth0" : { "Bonding" : false, "DefaultGateway" : "192.168.1.1", "DhcpEnable" : true, )"
        R"("DnsAutoGet" : false, "DnsServers" : [ "8.8.8.8", "8.8.4.4" ], "Enable" : true, )"
        R"("EnableDhcpReservedIP" : true, "IPAddress" : "192.168.1.108", "MTU" : 1500, "NetMode" : "full100M", )"
        R"("PhysicalAddress" : "00:11:22:33:44:55", "SubnetMask" : "255.255.255.0", "Type" : "Extend" } })";
    EXPECT_EQ(Pack("Network", *record), expected);

    // And back: the interfaces then stand in the order of their names.
    const auto parsed = Parse<CFG_NETWORK_INFO>("Network", expected);
    ASSERT_TRUE(parsed);
    ASSERT_EQ(parsed->nInterfaceNum, 3);
    EXPECT_STREQ(parsed->stuInterfaces[0].szName, "3G");
    EXPECT_STREQ(parsed->stuInterfaces[1].szName, "Dsl");
    EXPECT_STREQ(parsed->stuInterfaces[2].szName, "eth0");
    EXPECT_EQ(Pack("Network", *parsed), expected);
}

TEST(Network, PacksNoMoreInterfacesThanThereAre) {
    auto record = Cleared<CFG_NETWORK_INFO>();
    for (int i = 0; i < ORRERY_NETWORK_INTERFACES; ++i)
        std::snprintf(record->stuInterfaces[i].szName, 128, "eth%02d", i);
    record->nInterfaceNum = 1000;
    const std::string text = Pack("Network", *record);
    EXPECT_NE(text.find("\"eth31\""), std::string::npos);
    record->nInterfaceNum = -5;
    EXPECT_EQ(Pack("Network", *record), R"({ "DefaultInterface" : "", "Domain" : "", "Hostname" : "" })");
}

TEST(Network, ShortRecordsAndTextsAreRefused) {
    const auto record = Cleared<CFG_NETWORK_INFO>();
    char text[256];
    EXPECT_EQ(CLIENT_PacketData("Network", record.get(), sizeof(CFG_NETWORK_INFO) - 1, text, sizeof text), 0);
    const std::uint32_t length =
        static_cast<std::uint32_t>(std::strlen(R"({ "DefaultInterface" : "", "Domain" : "", "Hostname" : "" })")) + 1;
    EXPECT_EQ(CLIENT_PacketData("Network", record.get(), sizeof(CFG_NETWORK_INFO), text, length), 0);
    EXPECT_EQ(CLIENT_PacketData("Network", record.get(), sizeof(CFG_NETWORK_INFO), text, length + 1), 1);
}

// ---- RTSP ----

constexpr const char* kRtspText =
    R"({ "Enable" : true, "Port" : 554, "RTP" : { "EndPort" : 40000, "StartPort" : 20000 }, )"
    R"("RtspOverHttp" : { "Enable" : true, "Port" : 80 } })";

TEST(Rtsp, ThereAndBack) {
    const auto parsed = Parse<CFG_RTSP_INFO>("RTSP", kRtspText);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_RTSP_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_EQ(parsed->nPort, 554);
    EXPECT_EQ(parsed->nRtpStartPort, 20000);
    EXPECT_EQ(parsed->nRtpEndPort, 40000);
    EXPECT_EQ(parsed->bHttpEnable, 1);
    EXPECT_EQ(parsed->nHttpPort, 80);
    EXPECT_EQ(Pack("RTSP", *parsed), kRtspText);
}

TEST(Rtsp, ReadsTheTableOfARefusedCall) {
    const auto parsed =
        ParseDocument<CFG_RTSP_INFO>("RTSP", R"({ "result" : false, "params" : { "table" : { "Port" : 5 } } })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->nPort, 5);
    const auto none = ParseDocument<CFG_RTSP_INFO>("RTSP", R"({ "result" : true, "params" : {} })");
    EXPECT_FALSE(none);
    EXPECT_TRUE(none.isCleared());
}

TEST(Rtsp, ValuesOfOtherTypes) {
    const auto parsed = Parse<CFG_RTSP_INFO>("RTSP", R"({ "Enable" : "false", "Port" : "554", "RTP" : 20000,
        "RtspOverHttp" : { "Enable" : 2, "Port" : true } })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->bEnable, 1) << "a text that is not empty";
    EXPECT_EQ(parsed->nPort, 0);
    EXPECT_EQ(parsed->nRtpStartPort, 0);
    EXPECT_EQ(parsed->nRtpEndPort, 0);
    EXPECT_EQ(parsed->bHttpEnable, 1);
    EXPECT_EQ(parsed->nHttpPort, 1);
}

TEST(Rtsp, ATextOfExactlyTheCapacityLosesItsNewline) {
    const auto parsed = Parse<CFG_RTSP_INFO>("RTSP", kRtspText);
    const auto length = static_cast<std::uint32_t>(std::strlen(kRtspText)) + 1; // with its newline
    const GuardedBuffer text(length);
    EXPECT_EQ(CLIENT_PacketData("RTSP", parsed.record.get(), sizeof(CFG_RTSP_INFO), text.data(), length), 1);
    EXPECT_STREQ(text.data(), kRtspText);
    EXPECT_EQ(CLIENT_PacketData("RTSP", parsed.record.get(), sizeof(CFG_RTSP_INFO), text.data(), length - 1), 0);
}

} // namespace
} // namespace orrery::test
