#include "alarm/AlarmServers.h"

namespace orrery {

using namespace record;

namespace {

NAMES(kPstnProtocols, kFolded,
      {
          {CFG_PSTN_PROTOCOL_CID, "CID"},
          {CFG_PSTN_PROTOCOL_SIA, "SIA"},
          {CFG_PSTN_PROTOCOL_4_2, "4+2"},
      });

NAMES(kPstnModes, kFolded,
      {
          {CFG_PSTN_MODE_CID, "CID"},
          {CFG_PSTN_MODE_DTMF_5_S, "DTMF 5/S"},
          {CFG_PSTN_MODE_DTMF_10_S, "DTMF 10/S"},
      });

NAMES(kFluxTactics, kFolded,
      {
          {CFG_3G_FLUX_BY_FLUX, "ByFlux"},
          {CFG_3G_FLUX_BY_TIME, "ByTime"},
      });

NAMES(kFluxActions, kFolded,
      {
          {CFG_3G_ACTION_NOTHING, "Nothing"},
          {CFG_3G_ACTION_NET_DOWN, "3GNetDown"},
      });

NAMES(kAuthModes, kFolded,
      {
          {CFG_3G_AUTH_PAP, "PAP"},
          {CFG_3G_AUTH_CHAP, "CHAP"},
      });

NAMES(kWorkModes, kFolded,
      {
          {CFG_3G_WORK_AUTO, "Auto"},
          {CFG_3G_WORK_GPRS, "GPRS"},
          {CFG_3G_WORK_CDMA2000, "CDMA2000"},
          {CFG_3G_WORK_WCDMA, "WCDMA"},
          {CFG_3G_WORK_TD_SCDMA, "TD-SCDMA"},
          {CFG_3G_WORK_TD_LTE, "TD-LTE"},
          {CFG_3G_WORK_FDD_LTE, "FDD-LTE"},
      });

// What a report time is read from of its text.
constexpr std::uint16_t kReportTimeBytes = 15;

PART(kBackupAlarmServer, CFG_BACKUP_ALARM_SERVER,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(szProtocol, "Protocol", Text),
         FIELD(szConnection, "Connection", Text),
         FIELD(szAddress, "Address", Text),
         FIELD(nPort, "Port", Int),
         FIELD(szUserName, "UserName", Text),
         FIELD(szPassword, "Password", Text),
         FIELD(nReportWeekDay, "ReportWeekDay", Int),
         FIELD(stuReportTime, "ReportTime", ClockTime).FirstBytes(kReportTimeBytes),
     });

PART(kPstnServer, CFG_PSTN_SERVER,
     {
         FIELD(szName, "Name", Text),
         FIELD(szNumber, "Number", Text),
         FIELD(emProtocol, "Protocol", Names(kPstnProtocols)),
         FIELD(emMode, "Mode", Names(kPstnModes)),
         FIELD(nTryCount, "TryCount", Int),
         FIELD(nDelay, "Delay", Int),
         FIELD(szAccount, "Account", Text),
     });

} // namespace

TABLE(kAlarmServer, CFG_ALARM_SERVER_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szProtocol, "Protocol", Text),
          FIELD(szConnection, "Connection", Text),
          FIELD(szAddress, "Address", Text),
          FIELD(nPort, "Port", Int),
          FIELD(szUserName, "UserName", Text),
          FIELD(szPassword, "Password", Text),
          FIELD(nReportWeekDay, "ReportWeekDay", Int),
          FIELD(stuReportTime, "ReportTime", ClockTime).FirstBytes(kReportTimeBytes),
          FIELD(nBackupNum),
          FIELD(stuBackups, "BackupAlarmServers", Record(kBackupAlarmServer))
              .Count(AT(nBackupNum))
              .WriteEmpty(Empty::Array),
      });

TABLE(kPstnAlarmServer, CFG_PSTN_ALARM_SERVER_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nServerNum),
          FIELD(stuServers, "Servers", Record(kPstnServer)).Count(AT(nServerNum)).WriteEmpty(Empty::Array),
      });

TABLE(kWireless, CFG_WIRELESS_INFO,
      {
          FIELD(bEnable, "3G/Enable", Bool),
          FIELD(nKeepAlive, "3G/KeepAlive", Int),
          FIELD(szAPN, "3G/APN", Text),
          FIELD(szUserName, "3G/UserName", Text),
          FIELD(szPassword, "3G/Password", Text),
          FIELD(emDayFluxTactic, "3G/Day3GFluxTactic", Names(kFluxTactics)),
          FIELD(nDayFluxUp, "3G/Day3GFluxUp", UInt),
          FIELD(nDayFluxUse, "3G/Day3GFluxUse", UInt),
          FIELD(emDayFluxAction, "3G/Day3GFluxAction", Names(kFluxActions)),
          FIELD(stuTimeSection, "3G/TimeSection", Schedule),
          FIELD(emAuthMode, "3G/AuthMode", Names(kAuthModes)),
          FIELD(nFlux, "3G/3GFlux", UInt),
          FIELD(emFluxTactic, "3G/3GFluxTactic", Names(kFluxTactics)),
          FIELD(nFluxUp, "3G/3GFluxUp", UInt),
          FIELD(emWorkMode, "3G/WorkMode", Names(kWorkModes)),
      });

} // namespace orrery
