#include "storage/RecordServers.h"

namespace orrery {

using namespace record;

namespace {

PART(kDevRecord, CFG_DEV_RECORD_ITEM,
     {
         FIELD(szDevName, "DevName", Text),
         FIELD(szDevIP, "DevIP", Text),
         FIELD(szChanID, "ChanID", Text),
         FIELD(szChanName, "ChanName", Text),
         FIELD(szStoragePosition, "StoragePosition", Text),
         FIELD(nStatus, "Status", Int),
     });

PART(kVideoInDev, CFG_VIDEOIN_DEV_ITEM,
     {
         FIELD(szName, "Name", Text),
         FIELD(szID, "ID", Text),
         FIELD(szType, "Type", Text),
         FIELD(nTotalChan, "TotalChan", Int),
         FIELD(nTotalAlarmChan, "TotalAlarmChan", Int),
         FIELD(szIP, "IP", Text),
         FIELD(nStatus, "Status", Int),
     });

PART(kCustomCase, CFG_JUDICATURE_CUSTOM_CASE,
     {
         FIELD(szTitle, "Title", Text),
         FIELD(szText, "Text", Text),
     });

} // namespace

TABLE(kDevRecordGroup, CFG_DEV_RECORD_GROUP_INFO,
      {
          FIELD(nCount),
          FIELD(stuDevRecord, "DevRecord", Record(kDevRecord)).Count(AT(nCount)),
      });

TABLE(kVideoInDevGroup, CFG_VIDEOIN_DEV_GROUP_INFO,
      {
          FIELD(nCount),
          FIELD(stuVideoInDev, "VideoInDev", Record(kVideoInDev)).Count(AT(nCount)),
      });

TABLE(kIpsServer, CFG_IPS_SERVER_INFO,
      {
          FIELD(nSupportServerCount),
          FIELD(szSupportServer, "SupportServer", Text).Count(AT(nSupportServerCount)).NullElement(Nulls::Stop),
          FIELD(nSubServerCount),
          FIELD(szSubServer, "SvrSuppSubServer", Text).Count(AT(nSubServerCount)).NullElement(Nulls::Stop),
          FIELD(byCMS, "Svr/CMS/Status", Int),
          FIELD(byDMS, "Svr/DMS/Status", Int),
          FIELD(byMTS, "Svr/MTS/Status", Int),
          FIELD(bySS, "Svr/SS/Status", Int),
          FIELD(byRMS, "Svr/RMS/Status", Int),
          FIELD(byDBR, "Svr/DBR/Status", Int),
          FIELD(bySvrd, "Svrd/Status", Int),
          FIELD(byDataBase, "DataBase/Status", Int),
          FIELD(byDataBased, "DataBased/Status", Int),
          FIELD(byNtpServer, "NtpServer/Status", Int),
          FIELD(byNtpServerd, "NtpServerd/Status", Int),
          FIELD(byTesseraII, "TesseraII/Status", Int),
          FIELD(byTesseraIId, "TesseraIId/Status", Int),
          FIELD(bySamba, "Samba/Status", Int),
          FIELD(byNfs, "Nfs/Status", Int),
          FIELD(byFtp, "Ftp/Status", Int),
          FIELD(byIScsi, "iScsi/Status", Int),
      });

TABLE(kJudicature, CFG_JUDICATURE_INFO,
      {
          FIELD(szDiskPassword, "DiskPassword", Text),
          FIELD(szPassword, "Password", Text),
          FIELD(nPasswordLen, "PasswordLen", Int),
          FIELD(szCase, "Case", Text),
          FIELD(szCaseNo, "CaseNo", Text),
          FIELD(szTitle, "Title", Text),
          FIELD(szOfficialMan, "OfficialMan", Text),
          FIELD(szPosition, "Position", Text),
          FIELD(szRelatedMan, "RelatedMan", Text),
          FIELD(szDiskNo, "DiskNo", Text),
          FIELD(nCustomCaseCount),
          FIELD(stuCustomCase, "CustomCase", Record(kCustomCase)).Count(AT(nCustomCaseCount)),
          FIELD(bOsdEnable, "OsdEnable", Bool),
          FIELD(bDataCheck, "DataCheck", Bool),
          FIELD(bAttachFileEn, "AttachFileEn", Bool),
          FIELD(stuStartTime, "StartTime", NetTime),
          FIELD(nPeriod, "Period", Int),
          FIELD(nExChannelCount),
          FIELD(nExChannels, "ExChannels", Int).Count(AT(nExChannelCount)),
      });

} // namespace orrery
