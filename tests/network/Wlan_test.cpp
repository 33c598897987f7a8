#include "network/Wlan.h"

#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// The generic frame adds to the length.
std::unique_ptr<CFG_WLAN_INFO> ParseWlan(const std::string& table) {
    auto record = Cleared<CFG_WLAN_INFO>();
    std::memset(static_cast<void*>(record.get()), kUntouched, sizeof(CFG_WLAN_INFO));
    std::uint32_t length = 0;
    const std::string document = R"({ "result" : true, "params" : { "table" : )" + table + " } }";
    EXPECT_EQ(CLIENT_ParseData("WLan", document.c_str(), record.get(), sizeof(CFG_WLAN_INFO), &length), 1);
    EXPECT_EQ(length, table == "null" ? 0 : sizeof(CFG_WLAN_INFO));
    return record;
}

constexpr const char* kEmptyEntry =
    R"({ "Authentication" : "UnKnown", "ConnectEnable" : false, "DataEncryption" : "UnKnown", )"
    R"("EAP" : { "AnonymousID" : "", "AuthType" : "", "CaCert" : "", "Identity" : "", "Method" : "", )"
    R"("Password" : "", "UserCert" : "" }, "Enable" : false, "Encryption" : "Off", "KeyFlag" : false, "KeyID" : 0, )"
    R"("KeyType" : "Hex", "Keys" : [ "", "", "", "" ], "LinkEnable" : false, "LinkMode" : "Auto", )"
    R"("Network" : { "DefaultGateway" : "", "DhcpEnable" : false, "IPAddress" : "", "SubnetMask" : "" }, "SSID" : "" })";

TEST(Wlan, ThereAndBack) {
    const std::string text =
        R"([ { "Authentication" : "WPA2-PSK", "ConnectEnable" : true, "DataEncryption" : "TKIP+AES", )"
        R"("EAP" : { "AnonymousID" : "anon", "AuthType" : "MSCHAPV2", "CaCert" : "ca.pem", "Identity" : "cam", )"
        R"("Method" : "PEAP", "Password" : "secret", "UserCert" : "user.pem" }, "Enable" : true, )"
        R"("Encryption" : "WPA2-PSK-AES", "KeyFlag" : true, "KeyID" : 2, "KeyType" : "ASCII", )"
        R"("Keys" : [ "one", "two", "three", "four" ], "LinkEnable" : true, "LinkMode" : "Infrastructure", )"
        R"("Network" : { "DefaultGateway" : "10.0.0.1", "DhcpEnable" : true, "IPAddress" : "10.0.0.5", )"
        R"("SubnetMask" : "255.0.0.0" }, "SSID" : "yard" }, )"
        + std::string(kEmptyEntry) + " ]";
    const auto record = ParseWlan(text);
    ASSERT_EQ(record->nNum, 2);
    const CFG_WLAN_ENTRY& entry = record->stuWlan[0];
    EXPECT_EQ(entry.bEnable, 1);
    EXPECT_STREQ(entry.szSSID, "yard");
    EXPECT_EQ(entry.bConnectEnable, 1);
    EXPECT_EQ(entry.bLinkEnable, 1);
    EXPECT_EQ(entry.emLinkMode, CFG_WLAN_LINK_INFRASTRUCTURE);
    EXPECT_EQ(entry.emEncryption, CFG_WLAN_ENCRYPTION_WPA2_PSK_AES);
    EXPECT_EQ(entry.emAuthentication, CFG_WLAN_AUTH_WPA2_PSK);
    EXPECT_EQ(entry.emDataEncryption, CFG_WLAN_CIPHER_TKIP_AES);
    EXPECT_EQ(entry.emKeyType, CFG_WLAN_KEY_ASCII);
    EXPECT_EQ(entry.nKeyID, 2);
    EXPECT_STREQ(entry.szKeys[0], "one");
    EXPECT_STREQ(entry.szKeys[3], "four");
    EXPECT_EQ(entry.bKeyFlag, 1);
    EXPECT_STREQ(entry.stuEAP.szMethod, "PEAP");
    EXPECT_STREQ(entry.stuEAP.szAuthType, "MSCHAPV2");
    EXPECT_STREQ(entry.stuEAP.szIdentity, "cam");
    EXPECT_STREQ(entry.stuEAP.szAnonymousID, "anon");
    EXPECT_STREQ(entry.stuEAP.szPassword, "secret");
    EXPECT_STREQ(entry.stuEAP.szCaCert, "ca.pem");
    EXPECT_STREQ(entry.stuEAP.szUserCert, "user.pem");
    EXPECT_STREQ(entry.stuNetwork.szIPAddress, "10.0.0.5");
    EXPECT_STREQ(entry.stuNetwork.szSubnetMask, "255.0.0.0");
    EXPECT_STREQ(entry.stuNetwork.szDefaultGateway, "10.0.0.1");
    EXPECT_EQ(entry.stuNetwork.bDhcpEnable, 1);
    EXPECT_EQ(Pack("WLan", *record), text);
}

TEST(Wlan, OneNetworkIsStillAList) {
    auto record = Cleared<CFG_WLAN_INFO>();
    record->nNum = 1;
    EXPECT_EQ(Pack("WLan", *record), "[ " + std::string(kEmptyEntry) + " ]");
    record->nNum = 0;
    EXPECT_EQ(Pack("WLan", *record), "null");
    record->nNum = -3;
    EXPECT_EQ(Pack("WLan", *record), "null");
}

TEST(Wlan, AtMostEight) {
    std::string table = "[ ";
    for (int i = 0; i < 12; ++i)
        table += (i > 0 ? ", { \"KeyID\" : " : "{ \"KeyID\" : ") + std::to_string(i) + " }";
    auto record = ParseWlan(table + " ]");
    EXPECT_EQ(record->nNum, 8);
    EXPECT_EQ(record->stuWlan[7].nKeyID, 7);
    record->nNum = 9;
    const std::string text = Pack("WLan", *record);
    EXPECT_NE(text.find("\"KeyID\" : 7"), std::string::npos);
}

TEST(Wlan, WhatIsNoListReadsAsNone) {
    for (const char* table : {R"({ "wlan0" : { "KeyID" : 1 } })", "5", "null", "[ ]"}) {
        const auto record = ParseWlan(table);
        EXPECT_EQ(record->nNum, 0) << table;
        EXPECT_EQ(record->stuWlan[0].nKeyID, 0) << table;
    }
}

TEST(Wlan, OfTheKeysTheFirstFour) {
    const auto record = ParseWlan(R"([ { "Keys" : [ "1", null, 3, "4", "5" ], "KeyFlag" : 2 } ])");
    EXPECT_STREQ(record->stuWlan[0].szKeys[0], "1");
    EXPECT_STREQ(record->stuWlan[0].szKeys[1], "");
    EXPECT_STREQ(record->stuWlan[0].szKeys[2], "");
    EXPECT_STREQ(record->stuWlan[0].szKeys[3], "4");
    EXPECT_EQ(record->stuWlan[0].bKeyFlag, 1);
    EXPECT_STREQ(record->stuWlan[0].stuEAP.szMethod, "");
}

TEST(Wlan, ANullKeepsItsPlace) {
    const auto record = ParseWlan(R"([ null, { "KeyID" : 3 } ])");
    EXPECT_EQ(record->nNum, 2);
    EXPECT_EQ(record->stuWlan[0].nKeyID, 0);
    EXPECT_EQ(record->stuWlan[1].nKeyID, 3);
}

TEST(Wlan, TextsAreCutAtTheirCapacity) {
    const std::string x(600, 'x');
    const auto record = ParseWlan(R"([ { "SSID" : ")" + x + R"(", "Network" : { "IPAddress" : ")" + x
                                  + R"(" }, "EAP" : { "CaCert" : ")" + x + R"(", "Password" : ")" + x + "\" } } ]");
    const CFG_WLAN_ENTRY& entry = record->stuWlan[0];
    EXPECT_EQ(std::string(entry.szSSID), x.substr(0, 35));
    EXPECT_EQ(std::string(entry.stuNetwork.szIPAddress), x.substr(0, 39));
    EXPECT_EQ(std::string(entry.stuEAP.szCaCert), x.substr(0, 511));
    EXPECT_EQ(std::string(entry.stuEAP.szPassword), x.substr(0, 63));
    const auto others = ParseWlan(R"([ { "EAP" : { "Identity" : ")" + x + R"(", "AnonymousID" : ")" + x
                                  + R"(", "UserCert" : ")" + x + R"(" }, "Network" : { "SubnetMask" : ")" + x
                                  + R"(", "DefaultGateway" : ")" + x + R"(", "DhcpEnable" : true } } ])");
    EXPECT_EQ(std::string(others->stuWlan[0].stuEAP.szIdentity), x.substr(0, 63));
    EXPECT_EQ(std::string(others->stuWlan[0].stuEAP.szAnonymousID), x.substr(0, 63));
    EXPECT_EQ(std::string(others->stuWlan[0].stuEAP.szUserCert), x.substr(0, 511));
    EXPECT_EQ(std::string(others->stuWlan[0].stuNetwork.szSubnetMask), x.substr(0, 39));
    EXPECT_EQ(std::string(others->stuWlan[0].stuNetwork.szDefaultGateway), x.substr(0, 39));
    EXPECT_EQ(others->stuWlan[0].stuNetwork.bDhcpEnable, 1);
    // A WPA key of 64 hexadecimal digits is whole.
    EXPECT_EQ(std::string(ParseWlan(R"([ { "Keys" : [ ")" + x.substr(0, 64) + "\" ] } ]")->stuWlan[0].szKeys[0]),
              x.substr(0, 64));
}

struct NamedField {
    const char* key;
    std::int32_t CFG_WLAN_ENTRY::*field;
    std::vector<std::string> names;
};

std::vector<NamedField> NamedFields() {
    return {
        {"LinkMode", &CFG_WLAN_ENTRY::emLinkMode, {"Auto", "Ad-hoc", "Infrastructure"}},
        {"Encryption",
         &CFG_WLAN_ENTRY::emEncryption,
         {"Off", "On", "WEP-OPEN", "WEP-SHARED", "WPA-TKIP", "WPA-PSK-TKIP", "WPA2-TKIP", "WPA2-PSK-TKIP", "WPA-AES",
          "WPA-PSK-AES", "WPA2-AES", "WPA2-PSK-AES"}},
        {"Authentication",
         &CFG_WLAN_ENTRY::emAuthentication,
         {"UnKnown", "OPEN", "SHARED", "WPA", "WPA-PSK", "WPA2", "WPA2-PSK", "WPA-NONE", R"(WPA-PSK\/WPA2-PSK)",
          R"(WPA\/WPA2)", R"(WPA\/WPA-PSK)", R"(WPA2\/WPA2-PSK)", R"(WPA\/WPA-PSK\/WPA2\/WPA2-PSK)"}},
        {"DataEncryption", &CFG_WLAN_ENTRY::emDataEncryption, {"UnKnown", "NONE", "WEP", "TKIP", "AES", "TKIP+AES"}},
        {"KeyType", &CFG_WLAN_ENTRY::emKeyType, {"Hex", "ASCII"}},
    };
}

TEST(Wlan, NamesInBothDirections) {
    for (const NamedField& named : NamedFields()) {
        const std::string key = '"' + std::string(named.key) + "\" : ";
        const auto read = [&](const std::string& value) {
            return ParseWlan("[ { " + key + value + " } ]")->stuWlan[0].*named.field;
        };
        auto record = Cleared<CFG_WLAN_INFO>();
        record->nNum = 1;
        const auto count = static_cast<std::int32_t>(named.names.size());
        for (std::int32_t code = 0; code < count; ++code) {
            const std::string value = '"' + named.names[static_cast<std::size_t>(code)] + '"';
            EXPECT_EQ(read(value), code) << value;
            record->stuWlan[0].*named.field = code;
            EXPECT_NE(Pack("WLan", *record).find(key + value + ", "), std::string::npos) << value;
        }
        EXPECT_EQ(read("\"none of these\""), 0) << named.key;
        EXPECT_EQ(read("1"), 0) << named.key;
        for (const std::int32_t code : {-1, count}) {
            record->stuWlan[0].*named.field = code;
            EXPECT_EQ(Pack("WLan", *record).find(" " + key), std::string::npos) << named.key << code;
        }
    }
    const auto folded = ParseWlan(R"([ { "LinkMode" : "AD-HOC", "Encryption" : "wpa2-psk-aes",
        "DataEncryption" : "tkip+aes", "KeyType" : "ascii" } ])");
    EXPECT_EQ(folded->stuWlan[0].emLinkMode, CFG_WLAN_LINK_ADHOC);
    EXPECT_EQ(folded->stuWlan[0].emEncryption, CFG_WLAN_ENCRYPTION_WPA2_PSK_AES);
    EXPECT_EQ(folded->stuWlan[0].emDataEncryption, CFG_WLAN_CIPHER_TKIP_AES);
    EXPECT_EQ(folded->stuWlan[0].emKeyType, CFG_WLAN_KEY_ASCII);
    EXPECT_EQ(ParseWlan(R"([ { "Authentication" : "Wpa\/wPA2" } ])")->stuWlan[0].emAuthentication,
              CFG_WLAN_AUTH_WPA_WPA2);
}

} // namespace
} // namespace orrery::test
