// Events of doors, identity cards, tags and shooting ranges.
#include "events/OtherEvents.h"

namespace orrery::events {

using json::Value;

namespace {

NAMES(kPassages, kFolded,
      {
          {EVENT_ACCESS_ENTRY, "Entry"},
          {EVENT_ACCESS_EXIT, "Exit"},
      });

void ReadCardType(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    const std::int32_t type = value.asInt();
    if ((type >= 0 && type <= 6) || type == 255) Store(record + field.offset, type);
}
constexpr CustomCodec kCardType{ReadCardType};

// Ways to open a door by the devices' numbers. Three of them are one and the same to clients.
constexpr std::uint8_t kOpenMethods[] = {1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 0, 8, 13, 14, 15, 8, 0};

void ReadOpenMethod(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    const auto method = static_cast<std::uint32_t>(value.asInt());
    std::uint32_t known = 0;
    if (method < std::size(kOpenMethods))
        known = kOpenMethods[method];
    else if (method <= INT32_MAX)
        known = method + 1;
    Store(record + field.offset, known);
}
constexpr CustomCodec kOpenMethod{ReadOpenMethod};

// The numbers that identity cards use, in the order of the codes.
static_assert(EVENT_SEX_MALE == 1 && EVENT_SEX_FEMALE == 2 && EVENT_SEX_UNTOLD == 3 && EVENT_SEX_UNKNOWN == 0);
#define EV_SEX FIELD(emSex, "Sex", PlaceIn<EVENT_SEX_MALE, 1, 2, 9>).Only(OnlyType::Integer)

// A card that never expires says so instead of a date.
void ReadLongTerm(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    Store<std::int32_t>(record + field.offset, value.asString() == "Endless" ? 1 : 0);
}
constexpr CustomCodec kLongTerm{ReadLongTerm};

// A capture is there when its address is, whatever the device says of the number.
void CountCaptures(const Value& data, std::byte* record, ReadCall&) {
    auto& event = *reinterpret_cast<DEV_EVENT_ACCESSCONTROL_INFO*>(record);
    if (data["Numbers"].isNull()) event.nNumbers = event.szSnapURL[0] != '\0' ? 1 : 0;
}

void ReadTagState(const Value&, std::byte* record, ReadCall& call) {
    auto& event = *reinterpret_cast<DEV_EVENT_RFIDINFO_INFO*>(record);
    event.nState = EventOf(call).fields.nAction == EVENT_ACTION_START ? 0 : 1;
}

PART(kCitizenImage, EVENT_CITIZEN_IMAGE,
     {
         FIELD(dwOffset, "Offset", UInt),
         FIELD(dwLength, "Length", UInt),
         FIELD(wWidth, "Width", Int),
         FIELD(wHeight, "Height", Int),
     });

} // namespace

TABLE(kAccessControl, DEV_EVENT_ACCESSCONTROL_INFO,
      {
          EV_HEAD_A,
          FIELD(nChannelID, "Index", Int).FromRoot().Alias(),
          EV_OBJECT,
          EV_FILE_INFO,
          FIELD(emEventType, "Type", Names(kPassages)),
          FIELD(bStatus, "Status", Bool).Absent(1),
          FIELD(emCardType, "CardType", Custom(kCardType)).Absent(EVENT_ACCESS_CARD_UNKNOWN),
          FIELD(emOpenMethod, "Method", Custom(kOpenMethod)),
          FIELD(szCardNo, "CardNo", Text),
          FIELD(szPassword, "Password", Text),
          FIELD(szReaderID, "ReaderID", Text),
          FIELD(szUserID, "UserID", Text),
          FIELD(szSnapURL, "SnapURL", Text),
          FIELD(nErrorCode, "ErrorCode", Int),
          FIELD(nRecNo, "RecNo", Int),
          FIELD(nNumbers, "Numbers", Int),
          EV_REPEAT,
          EV_FLAG_MASK,
          FIELD(nAttendanceState, "AttendanceState", Int),
          FIELD(szClassNumber, "ClassNumber", Text).Only(OnlyType::String),
          FIELD(szPhoneNumber, "PhoneNumber", Text).Only(OnlyType::String),
          FIELD(szCardName, "CardName", Text).Only(OnlyType::String),
      })
    .AfterRead(CountCaptures);

TABLE(kInstallCardReader, DEV_EVENT_INSTALLCARDREADER_INFO,
      {
          EV_HEAD_A,
      });

TABLE(kCitizenIDCard, DEV_EVENT_CITIZENIDCARD_INFO,
      {
          EV_HEAD_C,
          FIELD(nGroupID, "GroupID", Int).Only(OnlyType::Integer),
          FIELD(nCountInGroup, "CountInGroup", Int).Only(OnlyType::Integer),
          FIELD(nIndexInGroup, "IndexInGroup", Int).Only(OnlyType::Integer),
          FIELD(szCitizen, "Citizen", Text),
          EV_SEX,
          FIELD(nEthnicity, "Ethnicity", Int),
          FIELD(stuBirth, "Birth", Date),
          FIELD(szAddress, "Address", Text),
          FIELD(szNumber, "Number", Text),
          FIELD(szAuthority, "Authority", Text),
          FIELD(stuStart, "Start", Date),
          FIELD(bLongTerm, "End", Custom(kLongTerm)),
          FIELD(stuEnd, "End", Date),
      });

TABLE(kCitizenPictureCompare, DEV_EVENT_CITIZENPICTURECOMPARE_INFO,
      {
          EV_CHANNEL,
          EV_ACTION,
          EV_TIME_STAMP,
          EV_RULE_NAME,
          EV_UTC,
          FIELD(byCompareResult, "CompareResult", Int),
          FIELD(bySimilarity, "Similarity", Int),
          FIELD(byThreshold, "Threshold", Int),
          EV_SEX,
          FIELD(dwEthnicity, "Ethnicity", UInt),
          FIELD(szCitizen, "Citizen", Text),
          FIELD(szAddress, "Address", Text),
          FIELD(szNumber, "Number", Text),
          FIELD(szAuthority, "Authority", Text),
          FIELD(stuBirth, "Birth", NetTime),
          FIELD(stuStart, "Start", NetTime),
          FIELD(stuEnd, "End", NetTime),
          FIELD(bLongTerm, "End", Custom(kLongTerm)),
          FIELD(stuImage, "ImageInfo", Record(kCitizenImage)).AtLeast(2),
          EV_EXTENSION,
      });

TABLE(kNetPlayCheck, DEV_EVENT_NETPLAYCHECK_INFO,
      {
          EV_HEAD_C,
          EV_FILE_TIME,
          FIELD(szIC, "IC", Text),
          FIELD(szNetBarName, "NetBarName", Text),
          FIELD(szNetBarID, "NetBarID", Text),
          FIELD(szAddress, "Address", Text),
      });

TABLE(kRFIDInfo, DEV_EVENT_RFIDINFO_INFO,
      {
          EV_HEAD_A,
          FIELD(nState),
          FIELD(nRFIDNum),
          FIELD(szRFID, "RFID", Text).Count(AT(nRFIDNum)),
      })
    .AfterRead(ReadTagState);

TABLE(kShootingScoreRecognition, DEV_EVENT_SHOOTINGSCORERECOGNITION_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_ACTION,
          FIELD(stuDetectRegion, "DetectRegion", Record(kEventPoint)).AtLeast(2),
          FIELD(nBulletHolesNum),
          FIELD(stuBulletHoles, "BulletHoles", Record(kBulletHole)).Count(AT(nBulletHolesNum)),
          EV_REPEAT,
          EV_FLAG_MASK,
      });

} // namespace orrery::events
