#include "access/VideoTalk.h"

#include "frame/JsonParser_Scan.h"
#include "frame/record/Engine.h"

namespace orrery {

using namespace record;

namespace {

// ---- "BuildingExternal": the devices' numbers are texts here, and here alone ----

void ReadDecimalText(const Field& field, const json::Value& value, std::byte* record, ReadCall&) {
    std::int32_t number = 0;
    scan::Scanner(value.asString()).Number(number, 0);
    Store(record + field.offset, number);
}

void WriteDecimalText(const Field& field, const std::byte* record, WriteCall& call) {
    char digits[12];
    const char* const end = scan::Print(digits, Load<std::int32_t>(record + field.offset), 0);
    call.Key();
    call.out.String({digits, static_cast<std::size_t>(end - digits)});
}

constexpr CustomCodec kDecimalText{ReadDecimalText, WriteDecimalText, R"("17")"};

// ---- "DialRule": one byte of a text, taken once it is in the local encoding ----

void ReadFirstByte(const Field& field, const json::Value& value, std::byte* record, ReadCall& call) {
    char text[16];
    call.parser.GetJsonString(value, text, sizeof text, true);
    Store(record + field.offset, text[0]);
}

void WriteFirstByte(const Field& field, const std::byte* record, WriteCall& call) {
    call.Key();
    call.parser.SetJsonString(call.out, reinterpret_cast<const char*>(record + field.offset), 1, true);
}

constexpr CustomCodec kFirstByte{ReadFirstByte, WriteFirstByte, R"("#")"};

PART(kNoAnswerGroup, CFG_NO_ANSWER_GROUP,
     {
         FIELD(szRoomNumber, "RoomNumber", Text),
         FIELD(nForwardNumberNum),
         FIELD(szForwardNumbers, "ForwardNumbers", Text).Count(AT(nForwardNumberNum)),
     });

PART(kTalkDevice, CFG_TALK_DEVICE,
     {
         FIELD(szDevType, "DevType", Text),
         FIELD(szDevName, "DevName", Text),
         FIELD(szDevID, "DevID", Text),
         FIELD(szParentID, "ParentID", Text),
         FIELD(szIP, "IP", Text),
         FIELD(nPort, "Port", Int),
         FIELD(szUserName, "UserName", Text),
         FIELD(szPassWord, "PassWord", Text),
     });

NAMES(kPositionTypes, kFolded.Unknown(CFG_SHORTCUT_POSITION_UNKNOWN),
      {
          {CFG_SHORTCUT_POSITION_ROOM, "Room"},
          {CFG_SHORTCUT_POSITION_UNIT_DOOR, "UnitDoor"},
          {CFG_SHORTCUT_POSITION_AREA_GATE, "AreaGate"},
          {CFG_SHORTCUT_POSITION_MANAGEMENT, "Management"},
          {CFG_SHORTCUT_POSITION_GUARD, "Guard"},
      });

PART(kShortcut, CFG_SHORTCUT_CALL,
     {
         FIELD(szCallNumber, "CallNumber", Text),
         FIELD(emPositionType, "PositionType", Names(kPositionTypes)),
     });

// Without an array the record stays as the client has it, its count too.
void NeedCalls(const Field&, const json::Value&, std::byte* record, ReadCall& call) {
    if (MEMBER(record, CFG_SHORTCUT_CALL_INFO, pstuCalls) == nullptr) call.refused = true;
}
constexpr CustomCodec kCallsNeeded{NeedCalls, nullptr};

} // namespace

bool HasRoomForDevices(const std::byte* record, std::uint32_t) {
    return MEMBER(record, CFG_DEV_LIST_INFO, pstuDevices) != nullptr
           && MEMBER(record, CFG_DEV_LIST_INFO, nMaxCount) > 0;
}

TABLE(kBuilding, CFG_BUILDING_INFO,
      {
          FIELD(szIssueNumber, "IssueNumber", Text),
          FIELD(szSectionNumber, "SectionNumber", Text),
          FIELD(szBuildingNumber, "BuildingNumber", Text),
          FIELD(szBuildingUnitNumber, "BuildingUnitNumber", Text),
          FIELD(szSectionUnitNumber, "SectionUnitNumber", Text),
          FIELD(nUnitFloorNumber, "UnitFloorNumber", Int),
          FIELD(nFloorPerRoomNumber, "FloorPerRoomNumber", Int),
          FIELD(nSystemType, "SystemType", Int),
          FIELD(bCreateRoom, "CreateRoom", Bool),
      });

TABLE(kBuildingExternal, CFG_BUILDING_EXTERNAL_INFO,
      {
          FIELD(nFloorCount, "FloorCount", Custom(kDecimalText)),
          FIELD(nRoomCount, "RoomCount", Custom(kDecimalText)),
          FIELD(nTotalBuildingNumber, "TotalBuildingNumber", Custom(kDecimalText)),
          FIELD(nBuildingPerUintNumber, "BuildingPerUintNumber", Custom(kDecimalText)),
          FIELD(nBeginNumberNum),
          FIELD(szBeginNumbers, "BeginNumber", Text).Count(AT(nBeginNumberNum)),
      });

TABLE(kDialRule, CFG_DIAL_RULE_INFO,
      {
          FIELD(bBuildingModeEnable, "BuildingModeEnable", Bool),
          FIELD(bUnitModeEnable, "UnitModeEnable", Bool),
          FIELD(bExtentionModeEnable, "ExtentionModeEnable", Bool),
          FIELD(cSeparator, "Seperator", Custom(kFirstByte)),
      });

TABLE(kNoAnswerForward, CFG_VT_NO_ANSWER_FORWARD_INFO,
      {
          FIELD(bEnable, "Enable", Bool),
          FIELD(nGroupNum),
          FIELD(stuGroups, "Groups", Record(kNoAnswerGroup)).Count(AT(nGroupNum)),
      });

TABLE(kVtoCall, CFG_VTO_CALL_INFO,
      {
          FIELD(bAreaEnable, "AreaEnable", Bool),
          FIELD(bMiddleNumberCallEnable, "MiddleNumberCallEnable", Bool),
          FIELD(szAreaNumber, "AreaNumber", Text),
          FIELD(szVTHLongNumberPrefix, "VTHLongNumberPrefix", Text),
          FIELD(szVTOLongNumberPrefix, "VTOLongNumbrPrefix", Text),
          FIELD(szVTSLongNumber, "VTSLongNumber", Text),
          FIELD(szVillaCallVTHNum, "VillaCallVTHNum", Text),
          FIELD(szVTHMiddleNumberPrefix, "VTHMiddleNumberPrefix", Text),
          FIELD(szVTOShortNumber, "VTOShortNumber", Text),
          FIELD(szVTOMiddleNumberPrefix, "VTOMiddleNumberPrefix", Text),
      });

TABLE(kVtsCall, CFG_VTS_CALL_INFO,
      {
          FIELD(stuCalledEnable, "CalledEnable", TimeSection),
      });

TABLE(kDevList, CFG_DEV_LIST_INFO,
      {
          FIELD(pstuDevices, "", Record(kTalkDevice)).Capacity(AT(nMaxCount)).Count(AT(nReturnCount)).Zeroed(),
          FIELD(nMaxCount),
          FIELD(nReturnCount),
      });

TABLE(kPhoneGeneral, CFG_VIDEO_TALK_PHONE_GENERAL_INFO,
      {
          FIELD(szRingFile, "RingFile", Text),
          FIELD(nRingVolume, "RingVolume", Int),
          FIELD(nTalkVolume, "TalkVolume", Int),
          FIELD(nMaxRingingTime, "MaxRingingTime", Int),
          FIELD(nMaxConnectingTime, "MaxConnectingTime", Int),
          FIELD(nMaxMonitorTime, "MaxMonitorTime", Int),
          FIELD(nMaxRecordTime, "MaxRecordTime", Int),
          FIELD(stuDisableRingStartTime, "DisableRingStartTime", Record(kNetTimeV2)),
          FIELD(stuDisableRingEndTime, "DisableRingEndTime", Record(kNetTimeV2)),
          FIELD(nTimeLimitNum),
          FIELD(nTimeLimits, "TimeLimit", Int).Count(AT(nTimeLimitNum)),
          FIELD(bSnapEnable, "SnapEnable", Bool),
      });

TABLE(kPhoneBasic, CFG_VIDEO_TALK_PHONE_BASIC_INFO,
      {
          FIELD(bAlarmOutputEnable, "AlarmOutputEnable ", Bool),
          FIELD(bNoAnswerTransferPlatformEnable, "NoAnswerTransferPlatformEnable ", Bool).ReadOnly(),
          FIELD(bNoAnswerTransferPlatformEnable, "NoAnswerTransferPlatformEnable", Bool).WriteOnly().Alias(),
          FIELD(bEachCallEnable, "EachCallEnable ", Bool).ReadOnly(),
          FIELD(bEachCallEnable, "EachCallEnable", Bool).WriteOnly().Alias(),
          FIELD(bAutoAnswerEnable, "AutoAnswer/Enable ", Bool).ReadOnly(),
          FIELD(bAutoAnswerEnable, "AutoAnswer/Enable", Bool).WriteOnly().Alias(),
          FIELD(nInviteNumberNum),
          FIELD(szInviteNumbers, "InviteNumberList", Text).Count(AT(nInviteNumberNum)),
      });

TABLE(kShortcutCall, CFG_SHORTCUT_CALL_INFO,
      {
          FIELD(nMaxCount),
          FIELD(pstuCalls, "", Custom(kCallsNeeded)).PointsTo(kShortcut).Alias(),
          FIELD(pstuCalls, "", Record(kShortcut)).Capacity(AT(nMaxCount)).Count(AT(nReturnCount)).Zeroed(),
          FIELD(nReturnCount),
      });

} // namespace orrery
