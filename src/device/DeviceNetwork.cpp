#include "device/DeviceNetwork.h"

#include "frame/record/Engine.h"

namespace orrery {

using namespace record;

namespace {

PART(kAlarmLevelItem, CFG_ALARM_LEVEL_ITEM,
     {
         FIELD(szID, "id", Text),
         FIELD(nAlarmLevel, "alarmLevel", Int),
     });

PART(kCommSubscription, CFG_COMM_SUBSCRIPTION,
     {
         FIELD(nReadCycle, "ReadCycle", Int),
     });

// A sum has the last word over the entries of its list. "alarmInSum" comes in front of its list in key order, as
// "channelSum" does not.
void ReadAlarmInSum(const json::Value& table, std::byte* record, ReadCall&) {
    const json::Value& sum = table["alarmInSum"];
    if (!sum.isNull()) SET_MEMBER(record, CFG_VSP_GAYS_INFO, nAlarmInSum, sum.asInt());
}

} // namespace

TABLE(kAccessFilter, CFG_ACCESS_FILTER_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szType, "Type", Text),
          FIELD(nTrustNum),
          FIELD(szTrustList, "TrustList", Text).Count(AT(nTrustNum)),
          FIELD(nBannedNum),
          FIELD(szBannedList, "BannedList", Text).Count(AT(nBannedNum)),
          FIELD(nTrustEnableNum),
          FIELD(bTrustEnable, "TrustEnable", Bool).Count(AT(nTrustEnableNum)),
          FIELD(nBannedEnableNum),
          FIELD(bBannedEnable, "BannedEnable", Bool).Count(AT(nBannedEnableNum)),
      });

TABLE(kNetCollection, CFG_NET_COLLECTION_INFO,
      {
          FIELD(szIP, "IP", Text),
          FIELD(nPort, "Port", Int),
      });

TABLE(kRtmp, CFG_RTMP_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szAddress, "Address", Text),
          FIELD(nPort, "Port", Int),
          FIELD(szCustomPath, "CustomPath", Text),
          FIELD(szStreamPath, "StreamPath", Text),
          FIELD(nMainChannelNum),
          FIELD(nMainChannels, "MainChannels", Int).Count(AT(nMainChannelNum)),
          FIELD(nExtraChannelNum),
          FIELD(nExtraChannels, "ExtraChannels", Int).Count(AT(nExtraChannelNum)),
      });

TABLE(kPhoneEventNotify, CFG_PHONE_EVENT_NOTIFY_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nContactNum),
          FIELD(stuContacts, "Contacts", Record(kAlarmLevelItem)).Count(AT(nContactNum)),
      });

TABLE(kCommSubscribe, CFG_COMM_SUBSCRIBE_INFO,
      {
          FIELD(nCount),
          FIELD(stuItems, "", Record(kCommSubscription)).Count(AT(nCount)),
      });

TABLE(kVspGays, CFG_VSP_GAYS_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szSipServerID, "sipSvrId", Text),
          FIELD(szDomain, "domain", Text),
          FIELD(szSipServerIP, "sipSvrIp", Text),
          FIELD(szDeviceID, "deviceId", Text),
          FIELD(szPassword, "password", Text),
          FIELD(nLocalSipPort, "localSipPort", Int),
          FIELD(nSipServerPort, "sipSvrPort", Int),
          FIELD(nSipRegExpires, "sipRegExpires", Int),
          FIELD(nKeepAliveCircle, "keepAliveCircle", Int),
          FIELD(nMaxTimeoutTimes, "maxTimeoutTimes", Int),
          FIELD(szCivilCode, "civilCode", Text),
          FIELD(szIntervideoID, "intervideoID", Text),
          FIELD(nChannelSum, "channelSum", Int),
          FIELD(stuChannelInfo, "channelInfo", Record(kAlarmLevelItem)).Count(AT(nChannelSum)),
          FIELD(nAlarmInSum, "alarmInSum", Int),
          FIELD(stuAlarmInfo, "alarmInfo", Record(kAlarmLevelItem)).Count(AT(nAlarmInSum)),
      })
    .AfterRead(ReadAlarmInSum);

TABLE(kAroudWifiSearch, CFG_AROUD_WIFI_SEARCH_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nPeriod, "Period", Int),
          FIELD(bOptimizNotification, "OptimizNotification", Bool),
      });

} // namespace orrery
