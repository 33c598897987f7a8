#include "alarm/VehicleAlarms.h"

#include "alarm/EventHandler.h"
#include "frame/JsonParser_Scan.h"
#include "frame/record/Engine.h"

namespace orrery {

using namespace record;

namespace {

// ---- The minute of a day, "09:30" ----

void ReadMinute(const Field&, const json::Value& value, std::byte* record, ReadCall&) {
    constexpr unsigned char kAnyWidth[] = {0, 0};
    std::int32_t parts[] = {0, 0};
    scan::Scanner scanner(value.asString());
    const int read = scan::Fields(scanner, 2, ":", kAnyWidth, parts);
    if (read > 0) SET_MEMBER(record, CFG_VOICE_ALERT, nHour, parts[0]);
    if (read > 1) SET_MEMBER(record, CFG_VOICE_ALERT, nMinute, parts[1]);
}

void WriteMinute(const Field&, const std::byte* record, WriteCall& call) {
    constexpr unsigned char kTwoDigits[] = {2, 2};
    const std::int32_t parts[] = {MEMBER(record, CFG_VOICE_ALERT, nHour), MEMBER(record, CFG_VOICE_ALERT, nMinute)};
    char text[32];
    const char* const end = scan::PrintFields(text, 2, ":", kTwoDigits, parts);
    call.Key();
    call.out.String({text, static_cast<std::size_t>(end - text)});
}

// No other command tells a time without its seconds.
constexpr CustomCodec kMinute{ReadMinute, WriteMinute, R"("09:30")"};

PART(kYearDay, CFG_YEAR_DAY,
     {
         FIELD(nMonth, "Month", Int),
         FIELD(nDay, "Day", Int),
     });

PART(kOneSpeedLimit, CFG_TIME_SPEED_LIMIT,
     {
         FIELD(bEnable, "Enable", Bool),
         FIELD(nDaySpeedLimit, "DaySpeedLimit", Int),
         FIELD(nNightSpeedLimit, "NightSpeedLimit", Int),
         FIELD(stuBeginDay, "BeginDay", Record(kYearDay)),
         FIELD(stuEndDay, "EndDay", Record(kYearDay)),
         FIELD(stuDayTime, "DayTime", TimeSection),
     });

PART(kOneVoiceAlert, CFG_VOICE_ALERT,
     {
         FIELD(nInterval, "Interval", Int),
         FIELD(szText, "Text", Text),
         FIELD(nHour, "Time", Custom(kMinute)),
         FIELD(nMinute),
     });

} // namespace

TABLE(kHighSpeed, CFG_HIGH_SPEED_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nSpeedHighLine, "SpeedHighLine", Int),
          FIELD(nTime, "Time", Int),
          FIELD(nAlertSpeed, "AlertSpeed", Int),
          FIELD(nInstantSpeed, "InstantSpeed", Int),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
      });

TABLE(kLowSpeed, CFG_LOW_SPEED_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nSpeedLowLine, "SpeedLowLine", Int),
          FIELD(nTime, "Time", Int),
          FIELD(nSpeedMotion, "SpeedMotion", Int),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
      });

TABLE(kTimeSpeedLimit, CFG_TIME_SPEED_LIMIT_INFO,
      {
          FIELD(nCount),
          FIELD(stuLimits, "", Record(kOneSpeedLimit)).Count(AT(nCount)),
      });

TABLE(kVoiceAlert, CFG_VOICE_ALERT_INFO,
      {
          FIELD(nCount),
          FIELD(stuAlerts, "", Record(kOneVoiceAlert)).Count(AT(nCount)),
      });

TABLE(kCqdtSet, CFG_CQDT_SET_INFO,
      {
          FIELD(nMaxGoodsWeight, "MaxGoodsWeight", Int),
          FIELD(nMinGoodsWeight, "MinGoodsWeight", Int),
          FIELD(nSelfWeight, "SelfWeight", Int),
          FIELD(nStandardWeight, "StandardWeight", Int),
          FIELD(nAlarmWeight, "AlarmWeight", Int),
          FIELD(nCheckTime, "CheckTime", Int),
      });

TABLE(kOil4GFlow, CFG_OIL_4G_FLOW_INFO,
      {
          FIELD(nFlowRateMode, "FlowRateMode", Int),
          FIELD(nFlowRateMax, "FlowRateMax", Int),
      });

TABLE(kVideoWidget4GFlow, CFG_VIDEO_WIDGET_4G_FLOW_INFO,
      {
          FIELD(bEncodeBlend, "EncodeBlend", Bool),
          FIELD(stuRect, "Rect", Record(kRect)),
      });

TABLE(kRcEmergencyCall, CFG_RC_EMERGENCY_CALL_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(szMode, "Mode", Text),
          FIELD(szAlarmType, "AlarmType", Text),
          FIELD(stuEventHandler, "EventHandler", Record(kEventHandler)).Always(),
      });

TABLE(kFetchMoneyOverTime, CFG_FETCH_MONEY_OVER_TIME_INFO,
      {
          FIELD(nTimeLimit, "FetchMoneyOverTime/TimeLimit", Int),
      });

} // namespace orrery
