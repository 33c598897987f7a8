#include "network/Services.h"

#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

// A list of `count` texts "r0", "r1", ...
std::string Receivers(int count) {
    std::string list = "[ ";
    for (int i = 0; i < count; ++i)
        list += (i > 0 ? ", \"r" : "\"r") + std::to_string(i) + '"';
    return list + " ]";
}

// ---- Mobile ----

TEST(Mobile, ThereAndBack) {
    const std::string text =
        R"({ "EventMessageSending" : { "Enable" : true, "Receivers" : [ "13800000001", "13800000002" ], )"
        R"("Title" : "Alarm", "Type" : "MMS" } })";
    const auto parsed = Parse<CFG_MOBILE_INFO>("Mobile", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_MOBILE_INFO));
    const CFG_EVENT_MESSAGE_SENDING& sending = parsed->stuEventMessageSending;
    EXPECT_EQ(sending.bEnable, 1);
    EXPECT_STREQ(sending.szType, "MMS");
    EXPECT_STREQ(sending.szTitle, "Alarm");
    ASSERT_EQ(sending.nReceiversNum, 2);
    EXPECT_STREQ(sending.szReceivers[0], "13800000001");
    EXPECT_STREQ(sending.szReceivers[1], "13800000002");
    EXPECT_EQ(Pack("Mobile", *parsed), text);
}

TEST(Mobile, KeepsAHundredReceivers) {
    auto parsed =
        Parse<CFG_MOBILE_INFO>("Mobile", R"({ "EventMessageSending" : { "Receivers" : )" + Receivers(120) + " } }");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->stuEventMessageSending.nReceiversNum, 100);
    EXPECT_STREQ(parsed->stuEventMessageSending.szReceivers[99], "r99");
    EXPECT_EQ(Pack("Mobile", *parsed), R"({ "EventMessageSending" : { "Enable" : false, "Receivers" : )"
                                           + Receivers(100) + R"(, "Title" : "", "Type" : "" } })");
    parsed.record->stuEventMessageSending.nReceiversNum = 101;
    EXPECT_NE(Pack("Mobile", *parsed).find("\"r99\" ]"), std::string::npos);
    parsed.record->stuEventMessageSending.nReceiversNum = -1;
    EXPECT_EQ(Pack("Mobile", *parsed).find("Receivers"), std::string::npos);
}

TEST(Mobile, TextsAreCutAtTheirCapacity) {
    const auto parsed =
        Parse<CFG_MOBILE_INFO>("Mobile", R"({ "EventMessageSending" : { "Type" : "MMSMMSMMS", "Title" : ")"
                                             + std::string(200, 't') + "\" } }");
    EXPECT_STREQ(parsed->stuEventMessageSending.szType, "MMSMMSM");
    EXPECT_EQ(std::string(parsed->stuEventMessageSending.szTitle), std::string(127, 't'));
}

// ---- Email ----

TEST(Email, ThereAndBack) {
    const std::string text =
        R"({ "Address" : "smtp.example.org", "Anonymous" : true, "AttachEnable" : true, "Enable" : true, )"
        R"("HealthReport" : { "Enable" : true, "Interval" : 60 }, "OnlyAttachment" : true, "Password" : "p\/w", )"
        R"("Port" : 25, "Receivers" : [ "a@example.org", "b@example.org" ], "SendAddress" : "cam@example.org", )"
        R"("SendInterv" : 10, "SslEnable" : true, "Title" : "Alarm", "TlsEnable" : true, "UserName" : "cam" })";
    const auto parsed = Parse<CFG_EMAIL_INFO>("Email", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_EMAIL_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_EQ(parsed->bSslEnable, 1);
    EXPECT_EQ(parsed->bTlsEnable, 1);
    EXPECT_STREQ(parsed->szAddress, "smtp.example.org");
    EXPECT_EQ(parsed->nPort, 25);
    EXPECT_STREQ(parsed->szUserName, "cam");
    EXPECT_STREQ(parsed->szPassword, "p/w");
    EXPECT_EQ(parsed->bAnonymous, 1);
    EXPECT_STREQ(parsed->szSendAddress, "cam@example.org");
    ASSERT_EQ(parsed->nReceiversNum, 2);
    EXPECT_STREQ(parsed->szReceivers[1], "b@example.org");
    EXPECT_STREQ(parsed->szTitle, "Alarm");
    EXPECT_EQ(parsed->bOnlyAttachment, 1);
    EXPECT_EQ(parsed->bAttachEnable, 1);
    EXPECT_EQ(parsed->nSendInterv, 10);
    EXPECT_EQ(parsed->bHealthReportEnable, 1);
    EXPECT_EQ(parsed->nHealthReportInterval, 60);
    EXPECT_EQ(Pack("Email", *parsed), text);
}

TEST(Email, AnEmptyRecordAsText) {
    EXPECT_EQ(Pack("Email", *Cleared<CFG_EMAIL_INFO>()),
              R"({ "Address" : "", "Anonymous" : false, "AttachEnable" : false, "Enable" : false, )"
              R"("HealthReport" : { "Enable" : false, "Interval" : 0 }, "OnlyAttachment" : false, "Password" : "", )"
              R"("Port" : 0, "SendAddress" : "", "SendInterv" : 0, "SslEnable" : false, "Title" : "", )"
              R"("TlsEnable" : false, "UserName" : "" })");
}

TEST(Email, KeepsAHundredReceivers) {
    auto parsed = Parse<CFG_EMAIL_INFO>("Email", R"({ "Receivers" : )" + Receivers(101) + " }");
    EXPECT_EQ(parsed->nReceiversNum, 100);
    EXPECT_STREQ(parsed->szReceivers[99], "r99");
    parsed.record->nReceiversNum = 3;
    EXPECT_NE(Pack("Email", *parsed).find(R"("Receivers" : [ "r0", "r1", "r2" ])"), std::string::npos);
}

TEST(Email, TextsAreCutAtTheirCapacity) {
    const std::string x(300, 'x');
    std::string table = "{ \"Receivers\" : [ \"" + x + "\" ]";
    for (const char* key : {"Address", "UserName", "Password", "SendAddress", "Title"})
        table += ", \"" + std::string(key) + "\" : \"" + x + "\"";
    const auto parsed = Parse<CFG_EMAIL_INFO>("Email", table + " }");
    EXPECT_EQ(std::string(parsed->szAddress), x.substr(0, 255));
    EXPECT_EQ(std::string(parsed->szUserName), x.substr(0, 63));
    EXPECT_EQ(std::string(parsed->szPassword), x.substr(0, 63));
    EXPECT_EQ(std::string(parsed->szSendAddress), x.substr(0, 255));
    EXPECT_EQ(std::string(parsed->szTitle), x.substr(0, 255));
    EXPECT_EQ(std::string(parsed->szReceivers[0]), x.substr(0, 255));
    EXPECT_EQ(parsed->bOnlyAttachment, 0);
}

// ---- The small ones ----

TEST(Stp, ThereAndBack) {
    const auto parsed = Parse<CFG_STP_INFO>("STP", R"({ "Enable" : true })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_STP_INFO));
    EXPECT_EQ(parsed->bEnable, 1);
    EXPECT_EQ(Pack("STP", *parsed), R"({ "Enable" : true })");
}

TEST(AioApp, ThereAndBack) {
    const auto parsed = Parse<CFG_AIO_APP_INFO>("AIOAppConfig", R"({ "Address" : "192.168.100.200" })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_AIO_APP_INFO));
    EXPECT_STREQ(parsed->szAddress, "192.168.100.200");
    EXPECT_EQ(Pack("AIOAppConfig", *parsed), R"({ "Address" : "192.168.100.200" })");
    EXPECT_STREQ((Parse<CFG_AIO_APP_INFO>("AIOAppConfig", R"({ "Address" : "0123456789abcdefgh" })")->szAddress),
                 "0123456789abcde");
}

TEST(LowRateWpan, CapsAreReadOnly) {
    const auto parsed = ParseDocument<CFG_LOWRATEWPAN_CAPS>(
        "LowRateWPAN.getCaps", R"({ "result" : true, "params" : { "caps" : { "MaxPageSize" : 64 } } })");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_LOWRATEWPAN_CAPS));
    EXPECT_EQ(parsed->nMaxPageSize, 64);
    EXPECT_FALSE(
        (ParseDocument<CFG_LOWRATEWPAN_CAPS>("LowRateWPAN.getCaps", R"({ "result" : true, "params" : { } })")));
    EXPECT_FALSE((ParseDocument<CFG_LOWRATEWPAN_CAPS>(
        "LowRateWPAN.getCaps", R"({ "result" : false, "params" : { "caps" : { "MaxPageSize" : 64 } } })")));
    EXPECT_EQ(Pack("LowRateWPAN.getCaps", *parsed), kNotBegun);
}

// ---- What the commands above have in common ----

TEST(NetworkServices, RefusedRepliesAndMissingTablesFail) {
    for (const char* command : {"DVRIP", "Mobile", "Email", "STP", "AIOAppConfig"}) {
        std::vector<char> buffer(64 << 10, 'x');
        const auto parse = [&](const char* document) {
            return CLIENT_ParseData(command, document, buffer.data(), static_cast<std::uint32_t>(buffer.size()),
                                    nullptr);
        };
        EXPECT_EQ(parse(R"({ "result" : false, "params" : { "table" : { } } })"), 0) << command;
        EXPECT_EQ(parse(R"({ "params" : { "table" : { } } })"), 0) << command;
        EXPECT_EQ(parse(R"({ "result" : true, "params" : { "table" : null } })"), 0) << command;
        EXPECT_EQ(buffer, std::vector<char>(buffer.size())) << command;
        EXPECT_EQ(parse(R"({ "result" : true, "params" : { "table" : { } } })"), 1) << command;
    }
}

TEST(NetworkServices, ATextMustBeShorterThanItsBuffer) {
    const CFG_STP_INFO record{1};
    char text[32];
    const auto length = static_cast<std::uint32_t>(std::strlen("{ \"Enable\" : true }\n"));
    EXPECT_EQ(CLIENT_PacketData("STP", &record, sizeof record, text, length), 0);
    EXPECT_EQ(CLIENT_PacketData("STP", &record, sizeof record, text, length + 1), 1);
}

// ---- Https ----

TEST(Https, ThereAndBack) {
    const std::string text =
        R"({ "Enable" : true, "Port" : 443, "RootCertificate" : "ca.crt", )"
        R"("ServerCertificate" : { "CommonName" : "cam.example.org", "Country" : "NL", "Email" : "it@example.org", )"
        R"("Locatity" : "Delft", "Name" : "cam.crt", "Organization" : "Example", "OrganizationUnit" : "IT", )"
        R"("Path" : "\/etc\/certs", "State" : "ZH", "UsefulLife" : 365 } })";
    CFG_HTTPS_INFO record;
    std::memset(&record, 0xCD, sizeof record);
    std::uint32_t length = 0; // added to
    ASSERT_EQ(CLIENT_ParseData("Https", (R"({ "result" : true, "params" : { "table" : )" + text + " } }").c_str(),
                               &record, sizeof record, &length),
              1);
    EXPECT_EQ(length, sizeof record);
    EXPECT_EQ(record.bEnable, 1);
    EXPECT_EQ(record.nPort, 443);
    EXPECT_STREQ(record.szRootCertificate, "ca.crt");
    const CFG_SERVER_CERTIFICATE& certificate = record.stuServerCertificate;
    EXPECT_STREQ(certificate.szCountry, "NL");
    EXPECT_STREQ(certificate.szState, "ZH");
    EXPECT_STREQ(certificate.szLocality, "Delft");
    EXPECT_STREQ(certificate.szOrganization, "Example");
    EXPECT_STREQ(certificate.szOrganizationUnit, "IT");
    EXPECT_STREQ(certificate.szCommonName, "cam.example.org");
    EXPECT_STREQ(certificate.szEmail, "it@example.org");
    EXPECT_STREQ(certificate.szName, "cam.crt");
    EXPECT_STREQ(certificate.szPath, "/etc/certs");
    EXPECT_EQ(certificate.nUsefulLife, 365);
    EXPECT_EQ(Pack("Https", record), text);
}

TEST(Https, TextsAreCutAtTheirCapacity) {
    const std::string x(200, 'x');
    std::string table = "{ \"RootCertificate\" : \"" + x + "\", \"ServerCertificate\" : { \"UsefulLife\" : 1";
    for (const char* key :
         {"Country", "State", "Locatity", "Organization", "OrganizationUnit", "CommonName", "Email", "Name", "Path"})
        table += ", \"" + std::string(key) + "\" : \"" + x + "\"";
    const auto record = Cleared<CFG_HTTPS_INFO>();
    ASSERT_EQ(CLIENT_ParseData("Https", (R"({ "result" : true, "params" : { "table" : )" + table + " } } } }").c_str(),
                               record.get(), sizeof(CFG_HTTPS_INFO), nullptr),
              1);
    EXPECT_EQ(std::string(record->szRootCertificate), x.substr(0, 127));
    const CFG_SERVER_CERTIFICATE& certificate = record->stuServerCertificate;
    EXPECT_EQ(std::string(certificate.szCountry), x.substr(0, 7));
    for (const char* text :
         {certificate.szState, certificate.szLocality, certificate.szOrganization, certificate.szOrganizationUnit})
        EXPECT_EQ(std::string(text), x.substr(0, 63));
    for (const char* text : {certificate.szCommonName, certificate.szEmail, certificate.szName, certificate.szPath})
        EXPECT_EQ(std::string(text), x.substr(0, 127));
    EXPECT_EQ(certificate.nUsefulLife, 1);
}

TEST(Https, AListIsOneRecordWithoutKeys) {
    CFG_HTTPS_INFO record;
    std::memset(&record, 0xCD, sizeof record);
    std::uint32_t length = 0;
    EXPECT_EQ(CLIENT_ParseData("Https", R"({ "result" : true, "params" : { "table" : [ { "Port" : 443 } ] } })",
                               &record, sizeof record, &length),
              1);
    EXPECT_EQ(length, sizeof record);
    EXPECT_EQ(record.nPort, 0);
}

TEST(Https, AMissingTableSucceedsWithNothingRead) {
    CFG_HTTPS_INFO record;
    std::memset(&record, 0xCD, sizeof record);
    std::uint32_t length = 5;
    EXPECT_EQ(CLIENT_ParseData("Https", R"({ "result" : true })", &record, sizeof record, &length), 1);
    EXPECT_EQ(length, 5u);
    EXPECT_EQ(record.nPort, 0);
    EXPECT_EQ(CLIENT_ParseData("Https", R"({ "result" : false })", &record, sizeof record, &length), 0);
}

} // namespace
} // namespace orrery::test
