#include "storage/StorageGroups.h"

namespace orrery {

using namespace record;

namespace {

PART(kGroupChannel, CFG_STORAGE_GROUP_CHANNEL,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(nMaxPictures, "MaxPictures", Int),
         FIELD(szPath, "Path", Text),
     });

} // namespace

TABLE(kStorageGroup, CFG_STORAGE_GROUP_INFO,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(szName, "Name", Text),
          FIELD(szMemo, "Memo", Text),
          FIELD(nFileHoldTime, "FileHoldTime", Int),
          FIELD(bOverWrite, "OverWrite", Bool),
          FIELD(szRecordPathRule, "RecordPathRule", Text),
          FIELD(szPicturePathRule, "PicturePathRule", Text),
          FIELD(stuChannels, "Channels", Record(kGroupChannel)).Count(AT(nChannelCount)),
          FIELD(nChannelCount),
          FIELD(szCustomName, "CustomName", Text),
          FIELD(nSubDeviceCount),
          FIELD(stuSubDevices, "SubDevices", Record(kGroupChannel)).Count(AT(nSubDeviceCount)),
      });

TABLE(kStorageDevGroup, CFG_STORAGE_DEV_GROUP_INFO,
      {
          FIELD(szName, "Name", Text),
          FIELD(nIndex, "Index", Int),
          FIELD(nMemberCount),
          FIELD(szMembers, "Members", Text).Count(AT(nMemberCount)),
      });

TABLE(kRecordToGroup, CFG_RECORD_TO_GROUP_INFO,
      {
          FIELD(nChannel, "Channel", Int),
          FIELD(bEnable, "Enable", Bool),
          FIELD(szGroupName, "GroupName", Text),
          FIELD(nIndex, "Index", Int),
      });

TABLE(kMetaDataServer, CFG_METADATA_SERVER_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szAddress, "Address", Text),
          FIELD(nPort, "Port", Int),
          FIELD(szUserName, "UserName", Text),
          FIELD(szPassword, "Password", Text),
          FIELD(szDeviceID, "DeviceID", Text),
      });

TABLE(kRemoteStorageLimit, CFG_REMOTE_STORAGE_LIMIT_INFO,
      {
          FIELD(szName, "Name", Text),
          FIELD(nFileLength, "FileLength", Int),
          FIELD(nInterval, "Interval", Int),
          FIELD(nChannelCount),
          FIELD(nChannels, "Channels", Int).Count(AT(nChannelCount)),
          FIELD(stuTimeSchedule, "TimeSchedule", Schedule),
      });

TABLE(kSpecialDirectories, CFG_SPECIAL_DIR_INFO,
      {
          FIELD(szBackgroudImageDirectory, "BackgroudImageDirectory", Text),
          FIELD(szWindowIconDirectory, "WindowIconDirectory", Text),
          FIELD(szEventVoiceDirectory, "EventVoiceDirectory", Text),
      });

TABLE(kFileManagerCaps, CFG_FILE_MANAGER_CAPS,
      {
          FIELD(nMaxUploadFileSize, "MaxUploadFileSize", Int),
      });

TABLE(kLogCaps, CFG_LOG_CAPS,
      {
          FIELD(nMaxSize, "MaxSize", Int),
          FIELD(nMaxPageSize, "MaxPageSize", Int),
          FIELD(bSupportStartNo, "SupportStartNo", Bool),
          FIELD(bSupportTypeFilter, "SupportTypeFilter", Bool),
          FIELD(bSupportTimeFilter, "SupportTimeFilter", Bool),
      });

} // namespace orrery
