// Alarm servers, receivers on the telephone line, and the mobile network.
#include "alarm/RecordLists.h"
#include "orrery/alarm_device_servers.h"
#include "orrery/types.h"
#include "support/JsonText.h"
#include "support/WeekText.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

using test::Cleared;
using test::Many;
using test::Pack;
using test::Parse;
using test::ReadsRefused;
using test::WeekText;

// ---- "AlarmServer" ----

using Server = CFG_ALARM_SERVER_INFO;

TEST(AlarmServer, EverythingRead) {
    const auto a = Parse<Server>("AlarmServer", R"({ "Enable" : true, "Protocol" : "P", "Connection" : "TCP",
        "Address" : "10.0.0.1", "Port" : 37777, "UserName" : "u", "Password" : "p", "ReportWeekDay" : 3,
        "ReportTime" : "08:09:10", "BackupAlarmServers" : [ { "Enable" : 1, "Protocol" : "Q", "Connection" : "UDP",
        "Address" : "10.0.0.2", "Port" : 37778, "UserName" : "v", "Password" : "q", "ReportWeekDay" : 4,
        "ReportTime" : "11:12:13" }, { } ] })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Server));
    EXPECT_EQ(a->bEnable, 1);
    EXPECT_STREQ(a->szProtocol, "P");
    EXPECT_STREQ(a->szConnection, "TCP");
    EXPECT_STREQ(a->szAddress, "10.0.0.1");
    EXPECT_EQ(a->nPort, 37777);
    EXPECT_STREQ(a->szUserName, "u");
    EXPECT_STREQ(a->szPassword, "p");
    EXPECT_EQ(a->nReportWeekDay, 3);
    EXPECT_EQ(a->stuReportTime.dwYear, 0);
    EXPECT_EQ(a->stuReportTime.dwHour, 8);
    EXPECT_EQ(a->stuReportTime.dwMinute, 9);
    EXPECT_EQ(a->stuReportTime.dwSecond, 10);
    EXPECT_EQ(a->nBackupNum, 2);
    const CFG_BACKUP_ALARM_SERVER& backup = a->stuBackups[0];
    EXPECT_EQ(backup.bEnable, 1);
    EXPECT_STREQ(backup.szProtocol, "Q");
    EXPECT_STREQ(backup.szConnection, "UDP");
    EXPECT_STREQ(backup.szAddress, "10.0.0.2");
    EXPECT_EQ(backup.nPort, 37778);
    EXPECT_STREQ(backup.szUserName, "v");
    EXPECT_STREQ(backup.szPassword, "q");
    EXPECT_EQ(backup.nReportWeekDay, 4);
    EXPECT_EQ(backup.stuReportTime.dwHour, 11);
    EXPECT_EQ(backup.stuReportTime.dwMinute, 12);
    EXPECT_EQ(backup.stuReportTime.dwSecond, 13);
    EXPECT_FALSE(ReadsRefused<Server>("AlarmServer"));
    EXPECT_FALSE(Parse<Server>("AlarmServer", "null"));
}

TEST(AlarmServer, ReportTimesAreScannedWithinTheirFirstCharacters) {
    struct Scanned {
        const char* text;
        int hour, minute, second;
    };
    for (const Scanned& one :
         {Scanned{"\"7:5:3\"", 7, 5, 3}, Scanned{"\"07:05\"", 7, 5, 0}, Scanned{"\"007:05:03\"", 0, 0, 0},
          Scanned{"\"x\"", 0, 0, 0}, Scanned{"73", 0, 0, 0}, Scanned{"\"       07:05:03\"", 7, 5, 3},
          Scanned{"\"        07:05:03\"", 7, 5, 0}, Scanned{"\"         07:05:03\"", 7, 5, 0}}) {
        const auto a =
            Parse<Server>("AlarmServer", R"({ "ReportTime" : )" + std::string(one.text)
                                             + R"(, "BackupAlarmServers" : [ { "ReportTime" : )" + one.text + " } ] }");
        for (const NET_TIME* const time : {&a->stuReportTime, &a->stuBackups[0].stuReportTime}) {
            EXPECT_EQ(time->dwHour, one.hour) << one.text;
            EXPECT_EQ(time->dwMinute, one.minute) << one.text;
            EXPECT_EQ(time->dwSecond, one.second) << one.text;
        }
    }
}

TEST(AlarmServer, EverythingWritten) {
    auto record = Cleared<Server>();
    const std::string clear = R"("Address" : "", %"Connection" : "", "Enable" : false, "Password" : "", "Port" : 0, )"
                              R"("Protocol" : "", "ReportTime" : "00:00:00", "ReportWeekDay" : 0, "UserName" : "")";
    const auto with = [&](const std::string& backups) {
        std::string text = clear;
        return text.replace(text.find('%'), 1, backups);
    };
    EXPECT_EQ(Pack("AlarmServer", *record), "{ " + with(R"("BackupAlarmServers" : [  ], )") + " }");
    record->nBackupNum = -1;
    EXPECT_EQ(Pack("AlarmServer", *record), "{ " + with(R"("BackupAlarmServers" : [  ], )") + " }");
    record->nBackupNum = 1;
    record->bEnable = 2;
    std::strcpy(record->szProtocol, "P");
    std::strcpy(record->szConnection, "C");
    std::strcpy(record->szAddress, "A");
    record->nPort = 1;
    std::strcpy(record->szUserName, "U");
    std::strcpy(record->szPassword, "W");
    record->nReportWeekDay = 2;
    record->stuReportTime = {2026, 11, 20, 3, 4, 5};
    CFG_BACKUP_ALARM_SERVER& backup = record->stuBackups[0];
    backup.bEnable = 1;
    std::strcpy(backup.szProtocol, "p");
    std::strcpy(backup.szConnection, "c");
    std::strcpy(backup.szAddress, "a");
    backup.nPort = 6;
    std::strcpy(backup.szUserName, "u");
    std::strcpy(backup.szPassword, "w");
    backup.nReportWeekDay = 7;
    backup.stuReportTime = {0, 0, 0, 123, -1, 8};
    EXPECT_EQ(Pack("AlarmServer", *record),
              R"({ "Address" : "A", "BackupAlarmServers" : [ { "Address" : "a", "Connection" : "c", "Enable" : true, )"
              R"("Password" : "w", "Port" : 6, "Protocol" : "p", "ReportTime" : "123:-1:08", "ReportWeekDay" : 7, )"
              R"("UserName" : "u" } ], "Connection" : "C", "Enable" : true, "Password" : "W", "Port" : 1, )"
              R"("Protocol" : "P", "ReportTime" : "03:04:05", "ReportWeekDay" : 2, "UserName" : "U" })");
}

TEST(AlarmServer, BackupsEndAtEight) {
    EXPECT_EQ(Parse<Server>("AlarmServer", R"({ "BackupAlarmServers" : )" + Many(8, "{ }") + " }")->nBackupNum, 8);
    const auto a = Parse<Server>("AlarmServer", R"({ "BackupAlarmServers" : )" + Many(9, R"({ "Port" : 1 })") + " }");
    EXPECT_EQ(a->nBackupNum, 8);
    EXPECT_EQ(a->stuBackups[7].nPort, 1);
    auto record = Cleared<Server>();
    record->nBackupNum = 9;
    const std::string packed = Pack("AlarmServer", *record);
    test::Document text(packed);
    EXPECT_EQ(text.root["BackupAlarmServers"].size(), 8u);
}

// ---- "PSTNAlarmServer" ----

using Pstn = CFG_PSTN_ALARM_SERVER_INFO;

TEST(PSTNAlarmServer, EverythingRead) {
    const auto a = Parse<Pstn>("PSTNAlarmServer", R"({ "Enable" : true, "Servers" : [ { }, { "Name" : "Guard",
        "Number" : "112", "Protocol" : "SIA", "Mode" : "DTMF 10\/S", "TryCount" : 3, "Delay" : 4,
        "Account" : "0815" } ] })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Pstn));
    EXPECT_EQ(a->bEnable, 1);
    EXPECT_EQ(a->nServerNum, 2);
    EXPECT_STREQ(a->stuServers[1].szName, "Guard");
    EXPECT_STREQ(a->stuServers[1].szNumber, "112");
    EXPECT_EQ(a->stuServers[1].emProtocol, CFG_PSTN_PROTOCOL_SIA);
    EXPECT_EQ(a->stuServers[1].emMode, CFG_PSTN_MODE_DTMF_10_S);
    EXPECT_EQ(a->stuServers[1].nTryCount, 3);
    EXPECT_EQ(a->stuServers[1].nDelay, 4);
    EXPECT_STREQ(a->stuServers[1].szAccount, "0815");
    EXPECT_FALSE(ReadsRefused<Pstn>("PSTNAlarmServer"));
}

TEST(PSTNAlarmServer, EverythingWritten) {
    auto record = Cleared<Pstn>();
    EXPECT_EQ(Pack("PSTNAlarmServer", *record), R"({ "Enable" : false, "Servers" : [  ] })");
    record->bEnable = 2;
    record->nServerNum = 1;
    CFG_PSTN_SERVER& server = record->stuServers[0];
    std::strcpy(server.szName, "N");
    std::strcpy(server.szNumber, "1");
    server.emProtocol = CFG_PSTN_PROTOCOL_4_2;
    server.emMode = CFG_PSTN_MODE_DTMF_5_S;
    server.nTryCount = 5;
    server.nDelay = 6;
    std::strcpy(server.szAccount, "A");
    EXPECT_EQ(Pack("PSTNAlarmServer", *record),
              R"({ "Enable" : true, "Servers" : [ { "Account" : "A", "Delay" : 6, "Mode" : "DTMF 5\/S", )"
              R"("Name" : "N", "Number" : "1", "Protocol" : "4+2", "TryCount" : 5 } ] })");
}

TEST(PSTNAlarmServer, ServersEndAtEight) {
    EXPECT_EQ(Parse<Pstn>("PSTNAlarmServer", R"({ "Servers" : )" + Many(8, "{ }") + " }")->nServerNum, 8);
    EXPECT_EQ(Parse<Pstn>("PSTNAlarmServer", R"({ "Servers" : )" + Many(9, "{ }") + " }")->nServerNum, 8);
    auto record = Cleared<Pstn>();
    record->nServerNum = 9;
    const std::string packed = Pack("PSTNAlarmServer", *record);
    test::Document text(packed);
    EXPECT_EQ(text.root["Servers"].size(), 8u);
}

// ---- Names ----

// `place` finds the code in a record, `around` is a table with % where the name stands, `written` its text at code 0.
template <class R>
void ExpectNames(const char* command, const std::string& around, const std::string& key,
                 const std::vector<std::string>& names, std::int32_t& (*place)(R&)) {
    SCOPED_TRACE(key);
    const auto table = [&](const std::string& value) {
        std::string text = around;
        return text.replace(text.find('%'), 1, "\"" + key + "\" : " + value);
    };
    auto record = Parse<R>(command, table("null"));
    EXPECT_EQ(place(*record.record), 0);
    for (std::size_t code = 0; code < names.size(); ++code) {
        std::string folded = names[code];
        for (char& c : folded)
            c = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
        for (const std::string& name : {names[code], folded}) {
            auto a = Parse<R>(command, table('"' + name + '"'));
            EXPECT_EQ(place(*a.record), static_cast<std::int32_t>(code)) << name;
        }
        std::string escaped = names[code];
        if (const auto slash = escaped.find('/'); slash != std::string::npos) escaped.insert(slash, "\\");
        place(*record.record) = static_cast<std::int32_t>(code);
        EXPECT_NE(Pack(command, *record).find('"' + key + "\" : \"" + escaped + '"'), std::string::npos) << escaped;
    }
    for (const char* const unknown : {"\"no such name\"", "\"\"", "1", "true"}) {
        auto a = Parse<R>(command, table(unknown));
        EXPECT_EQ(place(*a.record), 0) << unknown;
    }
    for (const std::int32_t code : {-1, static_cast<std::int32_t>(names.size())}) {
        place(*record.record) = code;
        EXPECT_EQ(Pack(command, *record).find('"' + key + '"'), std::string::npos) << code;
    }
}

TEST(PSTNAlarmServer, Names) {
    const std::string around = R"({ "Servers" : [ { % } ] })";
    ExpectNames<Pstn>("PSTNAlarmServer", around, "Protocol", {"CID", "SIA", "4+2"},
                      [](Pstn& record) -> std::int32_t& { return record.stuServers[0].emProtocol; });
    ExpectNames<Pstn>("PSTNAlarmServer", around, "Mode", {"CID", "DTMF 5/S", "DTMF 10/S"},
                      [](Pstn& record) -> std::int32_t& { return record.stuServers[0].emMode; });
}

// ---- "Wireless" ----

using Wireless = CFG_WIRELESS_INFO;

TEST(Wireless, Names) {
    const std::string around = R"({ "3G" : { % } })";
    ExpectNames<Wireless>("Wireless", around, "Day3GFluxTactic", {"ByFlux", "ByTime"},
                          [](Wireless& record) -> std::int32_t& { return record.emDayFluxTactic; });
    ExpectNames<Wireless>("Wireless", around, "3GFluxTactic", {"ByFlux", "ByTime"},
                          [](Wireless& record) -> std::int32_t& { return record.emFluxTactic; });
    ExpectNames<Wireless>("Wireless", around, "Day3GFluxAction", {"Nothing", "3GNetDown"},
                          [](Wireless& record) -> std::int32_t& { return record.emDayFluxAction; });
    ExpectNames<Wireless>("Wireless", around, "AuthMode", {"PAP", "CHAP"},
                          [](Wireless& record) -> std::int32_t& { return record.emAuthMode; });
    ExpectNames<Wireless>("Wireless", around, "WorkMode",
                          {"Auto", "GPRS", "CDMA2000", "WCDMA", "TD-SCDMA", "TD-LTE", "FDD-LTE"},
                          [](Wireless& record) -> std::int32_t& { return record.emWorkMode; });
}

TEST(Wireless, EverythingRead) {
    const auto a = Parse<Wireless>("Wireless", R"({ "Enable" : false, "3G" : { "Enable" : true, "KeepAlive" : 1,
        "APN" : "internet", "UserName" : "u", "Password" : "p", "Day3GFluxTactic" : "ByTime",
        "Day3GFluxUp" : 4294967295, "Day3GFluxUse" : 2, "Day3GFluxAction" : "3GNetDown",
        "TimeSection" : [ [ "1 1:0:0-2:0:0" ], [ 5, "1 3:0:0-4:0:0" ], [ "1 5:0:0-6:0:0" ] ], "AuthMode" : "CHAP",
        "3GFlux" : 3000000000, "3GFluxTactic" : "ByTime", "3GFluxUp" : 4, "WorkMode" : "WCDMA" } })");
    ASSERT_TRUE(a);
    EXPECT_EQ(a.length, sizeof(Wireless));
    EXPECT_EQ(a->bEnable, 1);
    EXPECT_EQ(a->nKeepAlive, 1);
    EXPECT_STREQ(a->szAPN, "internet");
    EXPECT_STREQ(a->szUserName, "u");
    EXPECT_STREQ(a->szPassword, "p");
    EXPECT_EQ(a->emDayFluxTactic, CFG_3G_FLUX_BY_TIME);
    EXPECT_EQ(a->nDayFluxUp, 4294967295u);
    EXPECT_EQ(a->nDayFluxUse, 2u);
    EXPECT_EQ(a->emDayFluxAction, CFG_3G_ACTION_NET_DOWN);
    EXPECT_EQ(a->stuTimeSection[0][0].nEndHour, 2);
    EXPECT_EQ(a->stuTimeSection[1][1].nEndHour, 0); // ended by the bad cell
    EXPECT_EQ(a->stuTimeSection[2][0].nEndHour, 0);
    EXPECT_EQ(a->emAuthMode, CFG_3G_AUTH_CHAP);
    EXPECT_EQ(a->nFlux, 3000000000u);
    EXPECT_EQ(a->emFluxTactic, CFG_3G_FLUX_BY_TIME);
    EXPECT_EQ(a->nFluxUp, 4u);
    EXPECT_EQ(a->emWorkMode, CFG_3G_WORK_WCDMA);
    EXPECT_FALSE(ReadsRefused<Wireless>("Wireless"));
    EXPECT_TRUE(Parse<Wireless>("Wireless", R"({ "Enable" : true, "3G" : 5 })").isCleared());
}

TEST(Wireless, EverythingWritten) {
    auto record = Cleared<Wireless>();
    record->bEnable = 2;
    record->nKeepAlive = 1;
    std::strcpy(record->szAPN, "A");
    std::strcpy(record->szUserName, "U");
    std::strcpy(record->szPassword, "W");
    record->emDayFluxTactic = 1;
    record->nDayFluxUp = 3000000000u;
    record->nDayFluxUse = 2;
    record->emDayFluxAction = 1;
    record->stuTimeSection[6][0] = {1, 1, 2, 3, 4, 5, 6};
    record->nFlux = 3;
    record->nFluxUp = 4;
    record->emWorkMode = CFG_3G_WORK_TD_LTE;
    EXPECT_EQ(Pack("Wireless", *record),
              R"({ "3G" : { "3GFlux" : 3, "3GFluxTactic" : "ByFlux", "3GFluxUp" : 4, "APN" : "A", )"
              R"("AuthMode" : "PAP", "Day3GFluxAction" : "3GNetDown", "Day3GFluxTactic" : "ByTime", )"
              R"("Day3GFluxUp" : 3000000000, "Day3GFluxUse" : 2, "Enable" : true, "KeepAlive" : 1, )"
              R"("Password" : "W", "TimeSection" : )"
                  + WeekText(7, {{6, 0, "1 01:02:03-04:05:06"}}) + R"(, "UserName" : "U", "WorkMode" : "TD-LTE" } })");
}

} // namespace
} // namespace orrery
