// "DevRecordGroup", "VideoInDevGroup", "IpsServer", "Judicature".
#include "orrery/recording_servers.h"
#include "support/Call.h"

#include <gtest/gtest.h>

#include <string>

namespace orrery::test {
namespace {

// `{"<command>":{"<list>":[<element>,...]}}`
std::string GroupOf(const std::string& command, const std::string& list, int count, const std::string& key) {
    std::string text = "{\"" + command + "\":{\"" + list + "\":[";
    for (int i = 0; i < count; ++i)
        text += (i > 0 ? "," : "") + ("{\"" + key + "\":" + std::to_string(i + 1) + "}");
    return text + "]}}";
}

// What stands at the top of the reply under the command's name, whatever "result" says.
template <class R>
void ExpectOwnKeyAlone(const std::string& command) {
    const auto refused = ParseDocument<R>(command.c_str(), R"({"result":false,")" + command + R"(":{}})");
    EXPECT_TRUE(refused);
    EXPECT_EQ(refused.length, sizeof(R));
    EXPECT_TRUE(refused.isCleared());
    for (const std::string& document : {std::string("{"), std::string("{}"), "{\"" + command + "\":null}",
                                        std::string(R"({"result":true,"params":{"table":{}}})")}) {
        const auto parsed = ParseDocument<R>(command.c_str(), document);
        EXPECT_FALSE(parsed) << document;
        EXPECT_EQ(parsed.length, kNoLength);
        EXPECT_TRUE(parsed.isCleared());
    }
    const auto record = Cleared<R>();
    EXPECT_EQ(PackBytes(command.c_str(), record.get(), sizeof(R), 4096), kNotBegun); // a reply alone
    const Records<char> tooSmall(sizeof(R) - 1, 0x11);
    EXPECT_EQ(ParseDocument(command.c_str(), "{\"" + command + "\":{}}", tooSmall), kRefused);
    EXPECT_TRUE(tooSmall.isAll(0x11));
}

// ---- "DevRecordGroup" ----

TEST(DevRecordGroup, ReadsAllKeys) {
    const auto parsed = ParseDocument<CFG_DEV_RECORD_GROUP_INFO>(
        "DevRecordGroup", R"({"DevRecordGroup":{"DevRecord":[{"DevName":"a","DevIP":"b","ChanID":"c","ChanName":"d",)"
                          R"("StoragePosition":"e","Status":6},null,{"Status":-7}]}})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_DEV_RECORD_GROUP_INFO));
    EXPECT_EQ(parsed->nCount, 3);
    EXPECT_STREQ(parsed->stuDevRecord[0].szDevName, "a");
    EXPECT_STREQ(parsed->stuDevRecord[0].szDevIP, "b");
    EXPECT_STREQ(parsed->stuDevRecord[0].szChanID, "c");
    EXPECT_STREQ(parsed->stuDevRecord[0].szChanName, "d");
    EXPECT_STREQ(parsed->stuDevRecord[0].szStoragePosition, "e");
    EXPECT_EQ(parsed->stuDevRecord[0].nStatus, 6);
    EXPECT_EQ(parsed->stuDevRecord[1].nStatus, 0);
    EXPECT_EQ(parsed->stuDevRecord[2].nStatus, -7);
    ExpectOwnKeyAlone<CFG_DEV_RECORD_GROUP_INFO>("DevRecordGroup");
}

TEST(DevRecordGroup, EndsAtItsRoom) {
    for (const int count : {127, 128, 129}) {
        const auto parsed = ParseDocument<CFG_DEV_RECORD_GROUP_INFO>(
            "DevRecordGroup", GroupOf("DevRecordGroup", "DevRecord", count, "Status"));
        EXPECT_EQ(parsed->nCount, std::min(count, 128));
        EXPECT_EQ(parsed->stuDevRecord[127].nStatus, count < 128 ? 0 : 128);
    }
    const std::string longText(300, 'x');
    const auto parsed = ParseDocument<CFG_DEV_RECORD_GROUP_INFO>(
        "DevRecordGroup", R"({"DevRecordGroup":{"DevRecord":[{"DevName":")" + longText + R"(","DevIP":")" + longText
                              + R"(","ChanID":")" + longText + R"(","ChanName":")" + longText
                              + R"(","StoragePosition":")" + longText + R"("}]}})");
    EXPECT_EQ(parsed->stuDevRecord[0].szDevName, std::string(127, 'x'));
    EXPECT_EQ(parsed->stuDevRecord[0].szDevIP, std::string(255, 'x'));
    EXPECT_EQ(parsed->stuDevRecord[0].szChanID, std::string(127, 'x'));
    EXPECT_EQ(parsed->stuDevRecord[0].szChanName, std::string(127, 'x'));
    EXPECT_EQ(parsed->stuDevRecord[0].szStoragePosition, std::string(127, 'x'));
}

// ---- "VideoInDevGroup" ----

TEST(VideoInDevGroup, ReadsAllKeys) {
    const auto parsed = ParseDocument<CFG_VIDEOIN_DEV_GROUP_INFO>(
        "VideoInDevGroup", R"({"VideoInDevGroup":{"VideoInDev":[{"Name":"a","ID":"b","Type":"c","TotalChan":4,)"
                           R"("TotalAlarmChan":5,"IP":"f","Status":7},{"Name":8}]}})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_VIDEOIN_DEV_GROUP_INFO));
    EXPECT_EQ(parsed->nCount, 2);
    EXPECT_STREQ(parsed->stuVideoInDev[0].szName, "a");
    EXPECT_STREQ(parsed->stuVideoInDev[0].szID, "b");
    EXPECT_STREQ(parsed->stuVideoInDev[0].szType, "c");
    EXPECT_EQ(parsed->stuVideoInDev[0].nTotalChan, 4);
    EXPECT_EQ(parsed->stuVideoInDev[0].nTotalAlarmChan, 5);
    EXPECT_STREQ(parsed->stuVideoInDev[0].szIP, "f");
    EXPECT_EQ(parsed->stuVideoInDev[0].nStatus, 7);
    EXPECT_STREQ(parsed->stuVideoInDev[1].szName, ""); // a number is no text
    ExpectOwnKeyAlone<CFG_VIDEOIN_DEV_GROUP_INFO>("VideoInDevGroup");
}

TEST(VideoInDevGroup, EndsAtItsRoom) {
    for (const int count : {127, 128, 129}) {
        const auto parsed = ParseDocument<CFG_VIDEOIN_DEV_GROUP_INFO>(
            "VideoInDevGroup", GroupOf("VideoInDevGroup", "VideoInDev", count, "TotalChan"));
        EXPECT_EQ(parsed->nCount, std::min(count, 128));
        EXPECT_EQ(parsed->stuVideoInDev[127].nTotalChan, count < 128 ? 0 : 128);
    }
    const std::string longText(300, 'x');
    const auto parsed = ParseDocument<CFG_VIDEOIN_DEV_GROUP_INFO>(
        "VideoInDevGroup", R"({"VideoInDevGroup":{"VideoInDev":[{"Name":")" + longText + R"(","ID":")" + longText
                               + R"(","Type":")" + longText + R"(","IP":")" + longText + R"("}]}})");
    EXPECT_EQ(parsed->stuVideoInDev[0].szName, std::string(127, 'x'));
    EXPECT_EQ(parsed->stuVideoInDev[0].szID, std::string(127, 'x'));
    EXPECT_EQ(parsed->stuVideoInDev[0].szType, std::string(127, 'x'));
    EXPECT_EQ(parsed->stuVideoInDev[0].szIP, std::string(255, 'x'));
}

// ---- "IpsServer" ----

TEST(IpsServer, ReadsAllKeys) {
    const auto parsed = ParseDocument<CFG_IPS_SERVER_INFO>(
        "IpsServer",
        R"({"IpsServer":{"SupportServer":["a","b"],"SvrSuppSubServer":["c","d","e"],"Svr":{"CMS":{"Status":1},)"
        R"("DMS":{"Status":2},"MTS":{"Status":3},"SS":{"Status":4},"RMS":{"Status":5},"DBR":{"Status":6}},)"
        R"("Svrd":{"Status":7},"DataBase":{"Status":8},"DataBased":{"Status":9},"NtpServer":{"Status":10},)"
        R"("NtpServerd":{"Status":11},"TesseraII":{"Status":12},"TesseraIId":{"Status":13},"Samba":{"Status":14},)"
        R"("Nfs":{"Status":15},"Ftp":{"Status":16},"iScsi":{"Status":255}}})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_IPS_SERVER_INFO));
    EXPECT_EQ(parsed->nSupportServerCount, 2);
    EXPECT_STREQ(parsed->szSupportServer[0], "a");
    EXPECT_STREQ(parsed->szSupportServer[1], "b");
    EXPECT_EQ(parsed->nSubServerCount, 3);
    EXPECT_STREQ(parsed->szSubServer[0], "c");
    EXPECT_STREQ(parsed->szSubServer[2], "e");
    EXPECT_EQ(parsed->byCMS, 1);
    EXPECT_EQ(parsed->byDMS, 2);
    EXPECT_EQ(parsed->byMTS, 3);
    EXPECT_EQ(parsed->bySS, 4);
    EXPECT_EQ(parsed->byRMS, 5);
    EXPECT_EQ(parsed->byDBR, 6);
    EXPECT_EQ(parsed->bySvrd, 7);
    EXPECT_EQ(parsed->byDataBase, 8);
    EXPECT_EQ(parsed->byDataBased, 9);
    EXPECT_EQ(parsed->byNtpServer, 10);
    EXPECT_EQ(parsed->byNtpServerd, 11);
    EXPECT_EQ(parsed->byTesseraII, 12);
    EXPECT_EQ(parsed->byTesseraIId, 13);
    EXPECT_EQ(parsed->bySamba, 14);
    EXPECT_EQ(parsed->byNfs, 15);
    EXPECT_EQ(parsed->byFtp, 16);
    EXPECT_EQ(parsed->byIScsi, 255);
    ExpectOwnKeyAlone<CFG_IPS_SERVER_INFO>("IpsServer");
}

TEST(IpsServer, EachServiceStandsInItsPlaceAlone) {
    const auto parsed = ParseDocument<CFG_IPS_SERVER_INFO>(
        "IpsServer", R"({"IpsServer":{"CMS":{"Status":1},"Svr":{"Svrd":{"Status":2},"Samba":{"Status":3}}}})");
    EXPECT_TRUE(parsed.isCleared());
    const auto nested = ParseDocument<CFG_IPS_SERVER_INFO>("IpsServer", R"({"IpsServer":{"Svr":5,"Ftp":[1]}})");
    EXPECT_TRUE(nested);
    EXPECT_TRUE(nested.isCleared());
}

TEST(IpsServer, ANullEndsAListOfNames) {
    std::string names = "\"0\"";
    for (int i = 1; i < 17; ++i)
        names += ",\"" + std::to_string(i) + "\"";
    const auto parsed = ParseDocument<CFG_IPS_SERVER_INFO>(
        "IpsServer", R"({"IpsServer":{"SupportServer":["a",7,null,"d"],"SvrSuppSubServer":[)" + names + "]}}");
    EXPECT_EQ(parsed->nSupportServerCount, 2); // what is no text is a name without letters
    EXPECT_STREQ(parsed->szSupportServer[1], "");
    EXPECT_STREQ(parsed->szSupportServer[2], "");
    EXPECT_EQ(parsed->nSubServerCount, 16);
    EXPECT_STREQ(parsed->szSubServer[15], "15");
    const auto longer = ParseDocument<CFG_IPS_SERVER_INFO>(
        "IpsServer", R"({"IpsServer":{"SupportServer":[")" + std::string(128, 's') + R"("],"SvrSuppSubServer":[")"
                         + std::string(127, 't') + "\"]}}");
    EXPECT_EQ(longer->szSupportServer[0], std::string(127, 's'));
    EXPECT_EQ(longer->szSubServer[0], std::string(127, 't'));
    const auto none = ParseDocument<CFG_IPS_SERVER_INFO>(
        "IpsServer", R"({"IpsServer":{"SupportServer":{"a":1},"SvrSuppSubServer":7}})");
    EXPECT_EQ(none->nSupportServerCount, 0);
    EXPECT_EQ(none->nSubServerCount, 0);
}

// ---- "Judicature" ----

constexpr const char* kJudicature = "Judicature";

TEST(Judicature, GoesRoundWhole) {
    const auto parsed = Parse<CFG_JUDICATURE_INFO>(
        kJudicature,
        R"({"DiskPassword":"a","Password":"b","PasswordLen":3,"Case":"d","CaseNo":"e","Title":"f","OfficialMan":"g",)"
        R"("Position":"h","RelatedMan":"i","DiskNo":"j","CustomCase":[{"Title":"k","Text":"l"},{"Text":"m"}],)"
        R"("OsdEnable":true,"DataCheck":1,"AttachFileEn":true,"StartTime":"2026-11-20 09:30:15","Period":14,)"
        R"("ExChannels":[15,null,-16]})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.length, sizeof(CFG_JUDICATURE_INFO));
    const CFG_JUDICATURE_INFO& r = *parsed;
    EXPECT_STREQ(r.szDiskPassword, "a");
    EXPECT_STREQ(r.szPassword, "b");
    EXPECT_EQ(r.nPasswordLen, 3);
    EXPECT_STREQ(r.szCase, "d");
    EXPECT_STREQ(r.szCaseNo, "e");
    EXPECT_STREQ(r.szTitle, "f");
    EXPECT_STREQ(r.szOfficialMan, "g");
    EXPECT_STREQ(r.szPosition, "h");
    EXPECT_STREQ(r.szRelatedMan, "i");
    EXPECT_STREQ(r.szDiskNo, "j");
    EXPECT_EQ(r.nCustomCaseCount, 2);
    EXPECT_STREQ(r.stuCustomCase[0].szTitle, "k");
    EXPECT_STREQ(r.stuCustomCase[0].szText, "l");
    EXPECT_STREQ(r.stuCustomCase[1].szText, "m");
    EXPECT_EQ(r.bOsdEnable, 1);
    EXPECT_EQ(r.bDataCheck, 1);
    EXPECT_EQ(r.bAttachFileEn, 1);
    EXPECT_EQ(r.stuStartTime.dwYear, 2026);
    EXPECT_EQ(r.stuStartTime.dwMonth, 11);
    EXPECT_EQ(r.stuStartTime.dwDay, 20);
    EXPECT_EQ(r.stuStartTime.dwHour, 9);
    EXPECT_EQ(r.stuStartTime.dwMinute, 30);
    EXPECT_EQ(r.stuStartTime.dwSecond, 15);
    EXPECT_EQ(r.nPeriod, 14);
    EXPECT_EQ(r.nExChannelCount, 3);
    EXPECT_EQ(r.nExChannels[0], 15);
    EXPECT_EQ(r.nExChannels[1], 0);
    EXPECT_EQ(r.nExChannels[2], -16);
    EXPECT_EQ(Pack(kJudicature, r),
              R"({ "AttachFileEn" : true, "Case" : "d", "CaseNo" : "e", "CustomCase" : [ { "Text" : "l", )"
              R"("Title" : "k" }, { "Text" : "m", "Title" : "" } ], "DataCheck" : true, "DiskNo" : "j", )"
              R"("DiskPassword" : "a", "ExChannels" : [ 15, 0, -16 ], "OfficialMan" : "g", "OsdEnable" : true, )"
              R"("Password" : "b", "PasswordLen" : 3, "Period" : 14, "Position" : "h", "RelatedMan" : "i", )"
              R"("StartTime" : "2026-11-20 09:30:15", "Title" : "f" })");
}

TEST(Judicature, AbsentKeysAreZeroAndListsWithoutElementsHaveNoKey) {
    const auto parsed = Parse<CFG_JUDICATURE_INFO>(kJudicature, R"({"ExChannels":{"a":1},"CustomCase":5})");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(Pack(kJudicature, *parsed),
              R"({ "AttachFileEn" : false, "Case" : "", "CaseNo" : "", "DataCheck" : false, "DiskNo" : "", )"
              R"("DiskPassword" : "", "OfficialMan" : "", "OsdEnable" : false, "Password" : "", "PasswordLen" : 0, )"
              R"("Period" : 0, "Position" : "", "RelatedMan" : "", "StartTime" : "0000-00-00 00:00:00", )"
              R"("Title" : "" })");
    for (const char* extra : {"null", "5", "\"1\"", "{\"0\":1}"}) {
        const auto read = Parse<CFG_JUDICATURE_INFO>(kJudicature, std::string(R"({"ExChannels":)") + extra + "}");
        EXPECT_TRUE(read.isCleared()) << extra;
    }
}

TEST(Judicature, ListsAndTextsEndAtTheirRoom) {
    std::string cases = "{}";
    std::string channels = "0";
    for (int i = 1; i < 17; ++i)
        cases += ",{\"Title\":\"" + std::to_string(i) + "\"}";
    for (int i = 1; i < 65; ++i)
        channels += "," + std::to_string(i);
    const std::string longText(300, 'x');
    const auto parsed = Parse<CFG_JUDICATURE_INFO>(
        kJudicature, R"({"CustomCase":[)" + cases + R"(],"ExChannels":[)" + channels + R"(],"DiskPassword":")"
                         + longText + R"(","Password":")" + longText + R"(","Case":")" + longText + "\"}");
    EXPECT_EQ(parsed->nCustomCaseCount, 16);
    EXPECT_STREQ(parsed->stuCustomCase[15].szTitle, "15");
    EXPECT_EQ(parsed->nExChannelCount, 64);
    EXPECT_EQ(parsed->nExChannels[63], 63);
    EXPECT_EQ(parsed->szDiskPassword, std::string(63, 'x'));
    EXPECT_EQ(parsed->szPassword, std::string(63, 'x'));
    EXPECT_EQ(parsed->szCase, std::string(127, 'x'));
    const auto longCase = Parse<CFG_JUDICATURE_INFO>(kJudicature, R"({"CustomCase":[{"Title":")" + longText
                                                                      + R"(","Text":")" + longText + "\"}]}");
    EXPECT_EQ(longCase->stuCustomCase[0].szTitle, std::string(127, 'x'));
    EXPECT_EQ(longCase->stuCustomCase[0].szText, std::string(255, 'x'));
    // Counts beyond the room end there.
    auto over = std::make_unique<CFG_JUDICATURE_INFO>(*parsed);
    const std::string full = Pack(kJudicature, *over);
    over->nCustomCaseCount = 17;
    over->nExChannelCount = 65;
    EXPECT_EQ(Pack(kJudicature, *over), full);
}

TEST(Judicature, NeedsATableAndNoResult) {
    for (const char* document : {"{", "{}", R"({"result":true})", R"({"params":{"table":null}})"}) {
        const auto parsed = ParseDocument<CFG_JUDICATURE_INFO>(kJudicature, document);
        EXPECT_FALSE(parsed) << document;
        EXPECT_TRUE(parsed.isCleared());
    }
    const auto refused =
        ParseDocument<CFG_JUDICATURE_INFO>(kJudicature, R"({"result":false,"params":{"table":{"Period":5}}})");
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->nPeriod, 5);
    const std::string text = PackBytes(kJudicature, &*refused, sizeof *refused, kAmple);
    EXPECT_EQ(PackBytes(kJudicature, &*refused, sizeof *refused, text.size() + 1), text);
    EXPECT_EQ(PackBytes(kJudicature, &*refused, sizeof *refused, text.size()), kFailed);
}

} // namespace
} // namespace orrery::test
