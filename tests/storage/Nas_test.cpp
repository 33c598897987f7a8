// "NAS": a list of storages in the network and, of older devices, one alone.
#include "orrery/storage_nas.h"
#include "support/Call.h"

#include <gtest/gtest.h>

#include <string>

namespace orrery::test {
namespace {

using Storages = Records<CFG_NAS_INFO>;
constexpr const char* kNas = "NAS";
constexpr std::uint32_t kSize = sizeof(CFG_NAS_INFO);

const std::string kItem =
    R"({"Enable":2,"Name":"a","Protocol":"SMB","Address":"b","Port":3,"UserName":"c","Password":"d","Directory":"e",)"
    R"("CharacterEncoding":"GB2312","TimeOut":4000000000,"StreamID":5,"UpdateTime":"2026-11-20 09:30:15",)"
    R"("CloudProtocol":"Dropbox","SubDirectory":"f"})";

std::string PackedItem(const std::string& protocol) {
    return R"({ "Address" : "b", "CharacterEncoding" : "GB2312", "CloudProtocol" : "Dropbox", "Directory" : "e", )"
           R"("Enable" : 2, "Name" : "a", "Password" : "d", "Port" : 3, "Protocol" : ")"
           + protocol
           + R"(", "StreamID" : 5, "SubDirectory" : "f", "TimeOut" : 4000000000, )"
             R"("UpdateTime" : "2026-11-20 09:30:15", "UserName" : "c" })";
}

void ExpectItem(const CFG_NAS_INFO& nas, std::int32_t protocol) {
    EXPECT_EQ(nas.nEnable, 2); // a number as it stands
    EXPECT_STREQ(nas.szName, "a");
    EXPECT_EQ(nas.emProtocol, protocol);
    EXPECT_STREQ(nas.szAddress, "b");
    EXPECT_EQ(nas.nPort, 3);
    EXPECT_STREQ(nas.szUserName, "c");
    EXPECT_STREQ(nas.szPassword, "d");
    EXPECT_STREQ(nas.szDirectory, "e");
    EXPECT_EQ(nas.emCharacterEncoding, CFG_NAS_ENCODING_GB2312);
    EXPECT_EQ(nas.nTimeOut, 4000000000u);
    EXPECT_EQ(nas.nStreamID, 5u);
    EXPECT_EQ(nas.stuUpdateTime.dwYear, 2026);
    EXPECT_EQ(nas.stuUpdateTime.dwMonth, 11);
    EXPECT_EQ(nas.stuUpdateTime.dwDay, 20);
    EXPECT_EQ(nas.stuUpdateTime.dwHour, 9);
    EXPECT_EQ(nas.stuUpdateTime.dwMinute, 30);
    EXPECT_EQ(nas.stuUpdateTime.dwSecond, 15);
    EXPECT_EQ(nas.emCloudProtocol, CFG_NAS_CLOUD_DROPBOX);
    EXPECT_STREQ(nas.szSubDirectory, "f");
}

TEST(Nas, GoesRoundAsAList) {
    const Storages storages(3, 0x11);
    ASSERT_EQ(ParseTable(kNas, "[" + kItem + ",null,{\"Enable\":1}," + kItem + "]", storages), (Answer{1, 3 * kSize}));
    ExpectItem(storages[0], CFG_NAS_PROTOCOL_SMB);
    EXPECT_EQ(storages[1].nEnable, 0); // stays zero
    EXPECT_EQ(storages[2].nEnable, 1);
    EXPECT_EQ(storages[2].emProtocol, CFG_NAS_PROTOCOL_FTP); // absent
    const auto rest = [](int enable) {
        return R"({ "Address" : "", "CharacterEncoding" : "UTF-8", "CloudProtocol" : "BaiduCloud", "Directory" : "", )"
               R"("Enable" : )"
               + std::to_string(enable)
               + R"(, "Name" : "", "Password" : "", "Port" : 0, "Protocol" : "FTP", "StreamID" : 0, )"
                 R"("SubDirectory" : "", "TimeOut" : 0, "UpdateTime" : "0000-00-00 00:00:00", "UserName" : "" })";
    };
    EXPECT_EQ(PackAll(kNas, storages), "[ " + PackedItem("SMB") + ", " + rest(0) + ", " + rest(1) + " ]");
    const Storages one(1, 9, 0x11); // a part of a second record is none
    ASSERT_EQ(ParseTable(kNas, "[" + kItem + "]", one), (Answer{1, kSize}));
    EXPECT_EQ(PackAll(kNas, one), "[ " + PackedItem("SMB") + " ]"); // one too
}

TEST(Nas, OfOlderDevicesOneStandsAlone) {
    const Storages storages(2, 0x11);
    ASSERT_EQ(ParseDocument(kNas, R"({"result":true,"NAS":)" + kItem + "}", storages), (Answer{1, kSize}));
    ExpectItem(storages[0], CFG_NAS_PROTOCOL_FTP); // whatever its text says
    EXPECT_EQ(storages[1].nEnable, 0);
    const Storages one(1);
    ASSERT_EQ(ParseDocument(kNas, R"({"result":true,"NAS":)" + kItem + "}", one), (Answer{1, kSize}));
    EXPECT_EQ(PackAll(kNas, one), "[ " + PackedItem("FTP") + " ]"); // written as a list
    // It counts though there is a table.
    ASSERT_EQ(ParseTable(kNas, R"([{"Enable":7},{"Enable":8}])", storages, R"("NAS":{"Enable":9,"Protocol":"NFS"},)"),
              (Answer{1, kSize}));
    EXPECT_EQ(storages[0].nEnable, 9);
    EXPECT_EQ(storages[0].emProtocol, CFG_NAS_PROTOCOL_FTP);
    EXPECT_EQ(storages[1].nEnable, 0);
    ASSERT_EQ(ParseTable(kNas, R"([{"Enable":7}])", storages, R"("NAS":null,)"), (Answer{1, kSize}));
    EXPECT_EQ(storages[0].nEnable, 7);                                 // null is as good as none
    for (const char* alone : {"[]", "7", R"([{"Enable":7}])", "{}"}) { // without keys
        ASSERT_EQ(ParseDocument(kNas, std::string(R"({"result":true,"NAS":)") + alone + "}", storages),
                  (Answer{1, kSize}));
        EXPECT_TRUE(storages.isAll(0)) << alone;
    }
}

TEST(Nas, ARefusedCallAndAMissingListFail) {
    const Storages storages(1, 0x11);
    for (const std::string& document :
         {std::string("{"), "{\"NAS\":" + kItem + "}", R"({"result":false,"NAS":)" + kItem + "}",
          R"({"params":{"table":[)" + kItem + "]}}", R"({"result":false,"params":{"table":[)" + kItem + "]}}",
          std::string(R"({"result":true})"), std::string(R"({"result":true,"params":{"table":null}})"),
          std::string(R"({"result":true,"params":{"table":[]}})"),
          R"({"result":true,"params":{"table":)" + kItem + "}}",
          std::string(R"({"result":true,"params":{"table":"x"}})")}) {
        std::memset(storages.data(), 0x11, kSize);
        EXPECT_EQ(ParseDocument(kNas, document, storages), kRefused) << document;
        EXPECT_TRUE(storages.isAll(0)) << document;
    }
    const Records<char> tooSmall(kSize - 1, 0x11);
    EXPECT_EQ(ParseTable(kNas, "[{}]", tooSmall), kRefused);
    EXPECT_TRUE(tooSmall.isAll(0x11));
    EXPECT_EQ(PackBytes(kNas, tooSmall.data(), tooSmall.size(), kAmple), kNotBegun);
    EXPECT_EQ(CLIENT_ParseData(kNas, R"({"result":true,"params":{"table":[{}]}})", storages.data(), kSize, nullptr), 1);
}

TEST(Nas, KnowsItsNames) {
    const char* const protocols[] = {"FTP", "SMB", "ISCSI", "NFS"};
    const char* const encodings[] = {"UTF-8", "GB2312"};
    const char* const clouds[] = {"BaiduCloud", "GoogleDrive", "Dropbox"};
    const auto read = [](const std::string& key, const std::string& text) {
        const Storages storages(1);
        EXPECT_EQ(ParseTable(kNas, "[{\"" + key + "\":\"" + text + "\"}]", storages), (Answer{1, kSize}));
        return storages[0];
    };
    for (int code = -1; code <= 4; ++code) {
        CFG_NAS_INFO nas{};
        nas.emProtocol = nas.emCharacterEncoding = nas.emCloudProtocol = code;
        const std::string text = Pack(kNas, nas);
        const auto expect = [&](const std::string& key, const char* const* names, int count) {
            const bool isKnown = code >= 0 && code < count;
            EXPECT_EQ(text.find("\"" + key + "\"") != std::string::npos, isKnown) << key << code;
            if (isKnown) {
                EXPECT_NE(text.find("\"" + key + "\" : \"" + names[code] + "\""), std::string::npos) << text;
            }
        };
        expect("Protocol", protocols, 4);
        expect("CharacterEncoding", encodings, 2);
        expect("CloudProtocol", clouds, 3);
        if (code >= 0 && code < 4) {
            EXPECT_EQ(read("Protocol", protocols[code]).emProtocol, code);
        }
        if (code >= 0 && code < 2) {
            EXPECT_EQ(read("CharacterEncoding", encodings[code]).emCharacterEncoding, code);
        }
        if (code >= 0 && code < 3) {
            EXPECT_EQ(read("CloudProtocol", clouds[code]).emCloudProtocol, code);
        }
    }
    for (const char* other : {"ftp", "Smb", "utf-8", "gb2312", "dropbox", "", "FTP "}) { // the case counts
        EXPECT_EQ(read("Protocol", other).emProtocol, CFG_NAS_PROTOCOL_UNKNOWN);
        EXPECT_EQ(read("CharacterEncoding", other).emCharacterEncoding, CFG_NAS_ENCODING_UNKNOWN);
        EXPECT_EQ(read("CloudProtocol", other).emCloudProtocol, CFG_NAS_CLOUD_UNKNOWN);
    }
}

TEST(Nas, TextsEndAtTheirFields) {
    const std::string longText(300, 'x');
    const Storages storages(1);
    std::string item = "{";
    for (const char* key : {"Name", "Address", "UserName", "Password", "Directory"})
        item += std::string("\"") + key + "\":\"" + longText + "\",";
    ASSERT_EQ(ParseTable(kNas, "[" + item + "\"SubDirectory\":\"" + longText + "\"}]", storages), (Answer{1, kSize}));
    EXPECT_EQ(storages[0].szName, std::string(127, 'x'));
    EXPECT_EQ(storages[0].szAddress, std::string(255, 'x'));
    EXPECT_EQ(storages[0].szUserName, std::string(63, 'x'));
    EXPECT_EQ(storages[0].szPassword, std::string(63, 'x'));
    EXPECT_EQ(storages[0].szDirectory, std::string(127, 'x'));
    EXPECT_EQ(storages[0].szSubDirectory, std::string(255, 'x'));
    const CFG_NAS_INFO nas{};
    const std::string text = PackBytes(kNas, &nas, kSize, kAmple);
    EXPECT_EQ(PackBytes(kNas, &nas, kSize, text.size() + 1), text);
    EXPECT_EQ(PackBytes(kNas, &nas, kSize, text.size()), kFailed);
}

} // namespace
} // namespace orrery::test
