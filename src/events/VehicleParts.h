// Tables of what the records of traffic events tell of vehicles, and the rules that join a car to its objects.
#pragma once

#include "events/EventContext.h"

namespace orrery::events {

// ---- Names -------------------------------------------------------------------------------------------------------

NAMES(kVehicleSizes, kExact.Unknown(EVENT_VEHICLE_SIZE_UNKNOWN),
      {
          {EVENT_VEHICLE_SIZE_LIGHT_DUTY, "Light-duty"},
          {EVENT_VEHICLE_SIZE_MEDIUM, "Medium"},
          {EVENT_VEHICLE_SIZE_OVERSIZE, "Oversize"},
          {EVENT_VEHICLE_SIZE_MINISIZE, "Minisize"},
          {EVENT_VEHICLE_SIZE_LARGESIZE, "Largesize"},
      });

NAMES(kSeats, kFolded,
      {
          {EVENT_SEAT_MAIN, "Main"},
          {EVENT_SEAT_SLAVE, "Slave"},
      });

inline constexpr Name kSafeBeltRows[] = {{EVENT_SAFE_BELT_WITH, "WithSafeBelt"},
                                         {EVENT_SAFE_BELT_WITHOUT, "WithoutSafeBelt"}};
inline constexpr NameTable kSafeBelts = FoldedNames(kSafeBeltRows);
inline constexpr NameTable kExactSafeBelts = ExactNames(kSafeBeltRows);

NAMES(kSunShades, kFolded,
      {
          {EVENT_SUN_SHADE_WITH, "WithSunShade"},
          {EVENT_SUN_SHADE_WITHOUT, "WithoutSunShade"},
      });

NAMES(kAttachments, kFolded,
      {
          {EVENT_ATTACHMENT_FURNITURE, "Furniture"},
          {EVENT_ATTACHMENT_PENDANT, "Pendant"},
          {EVENT_ATTACHMENT_TISSUE_BOX, "TissueBox"},
          {EVENT_ATTACHMENT_DANGER, "Danger"},
          {EVENT_ATTACHMENT_PERFUME_BOX, "PerfumeBox"},
          {EVENT_ATTACHMENT_UNKNOWN, "Unknown"},
      });

NAMES(kNtpStates, kFolded,
      {
          {EVENT_NTP_DISABLED, "Disable"},
          {EVENT_NTP_SUCCESSFUL, "Successful"},
          {EVENT_NTP_FAILED, "Failed"},
      });

NAMES(kStrobeStates, kFolded,
      {
          {1, "Close"},
          {2, "Auto"},
          {3, "Manual"},
      });

NAMES(kJamStates, kExact,
      {
          {1, "Clear"},
          {2, "Jammed"},
      });

extern const NameTable kPlateColors;
extern const NameTable kNonMotorColors;
extern const NameTable kNonMotorTypes;

// ---- The car -----------------------------------------------------------------------------------------------------

extern const CustomCodec kDrivingDirections;
void LogTrafficCar(const json::Value& value, std::byte* record, ReadCall& call);

PART(kTrafficCar, EVENT_TRAFFIC_CAR_INFO,
     {
         FIELD(szPlateNumber, "PlateNumber", FullText),
         FIELD(szPlateType, "PlateType", RawText),
         FIELD(szPlateColor, "PlateColor", FullText),
         FIELD(szVehicleColor, "VehicleColor", FullText),
         FIELD(nSpeed, "Speed", Int),
         FIELD(szEvent, "Event", RawText),
         FIELD(szViolationCode, "ViolationCode", RawText),
         FIELD(szViolationDesc, "ViolationDesc", FullText),
         FIELD(nLowerSpeedLimit, "LowerSpeedLimit", Int),
         FIELD(nUpperSpeedLimit, "UpperSpeedLimit", Int),
         FIELD(nOverSpeedMargin, "OverSpeedMargin", Int),
         FIELD(nUnderSpeedMargin, "UnderSpeedMargin", Int),
         FIELD(nLane, "Lane", Int),
         FIELD(nVehicleSize, "VehicleSize", Names(kVehicleSizes)).Absent(-1),
         FIELD(fVehicleLength, "VehicleLength", Real),
         FIELD(nSnapshotMode, "SnapshotMode", Int),
         FIELD(szChannelName, "ChannelName", FullText),
         FIELD(szMachineName, "MachineName", FullText),
         FIELD(szMachineGroup, "MachineGroup", FullText),
         FIELD(szRoadwayNo, "RoadwayNo", FullText),
         FIELD(szDrivingDirection, "DrivingDirection", Custom(kDrivingDirections)),
         FIELD(pszDeviceAddress, "DeviceAddress", OwnedText),
         FIELD(szVehicleSign, "VehicleSign", Text),
         FIELD(byRedundance, "Redundance", Int),
         FIELD(pszMachineAddress, "MachineAddress", OwnedText),
         FIELD(fActualShutter, "ActualShutter", Real),
         FIELD(byActualGain, "ActualGain", Int),
         FIELD(byDirection, "Direction", Int).Absent(EVENT_DIRECTION_UNKNOWN),
         FIELD(pszDetailedAddress, "DetailedAddress", OwnedText),
         FIELD(szDefendCode, "DefendCode", Text),
         FIELD(nTrafficBlackListID, "TrafficBlackListID", Int),
         FIELD(stuRGBA, "VehicleColorRGB", UInt).Exactly(),
         FIELD(stuUTC, "UTC", UtcTime).Only(OnlyType::Integer),
         FIELD(dwRecNo, "RecNo", UInt),
         FIELD(szCustomParkNo, "CustomParkNo", Text),
         FIELD(nDeckNo, "StereoGarage/DeckNo", Int),
         FIELD(nFreeDeckCount, "StereoGarage/FreeDeckCount", Int),
         FIELD(nFullDeckCount, "StereoGarage/FullDeckCount", Int),
         FIELD(nTotalDeckCount, "StereoGarage/TotalDeckCount", Int),
         FIELD(szViolationName, "ViolationName", FullText),
         FIELD(nWeight, "Weight", Int).Only(OnlyType::Integer),
         FIELD(szCustomRoadwayDirection, "CustomRoadwayDirection", FullText),
         FIELD(nPhysicalLane, "PhysicalLane", Int).Only(OnlyType::Integer),
         FIELD(dwMovingDirection, "MovingDirection", UInt).Only(OnlyType::Unsigned),
         FIELD(stuEleTagInfoUTC, "EleTagInfoUTC", UtcTime),
     })
    .AfterRead(LogTrafficCar)
    .StartsWhenRead();

// ---- What is seen in and on the car ------------------------------------------------------------------------------

extern const CustomCodec kSeatStatus;
PART(kSeat, EVENT_SEAT_INFO,
     {
         FIELD(bEnable).Absent(1),
         FIELD(emType, "Type", Names(kSeats)),
         FIELD(bSmoking, "Status", Custom(kSeatStatus)),
         FIELD(bCalling),
         FIELD(emSafeBelt, "SafeBelt", Names(kSafeBelts)),
         FIELD(emSunShade, "SunShade", Names(kSunShades)),
     })
    .StartsWhenRead();

PART(kAttachment, EVENT_ATTACHMENT_INFO,
     {
         FIELD(emType, "Type", Names(kAttachments)),
         FIELD(stuRect, "Rect", Record(kBox)),
     });

PART(kPicturePlace, EVENT_PICTURE_PLACE,
     {
         FIELD(dwOffset, "Offset", UInt),
         FIELD(dwLength, "Length", UInt),
     });

PART(kExhaust, EVENT_EXHAUST_INFO,
     {
         FIELD(fHC, "HC", Thousandths),
         FIELD(fNO, "NO", Thousandths),
         FIELD(fCO, "CO", Thousandths),
         FIELD(fCO2, "CO2", Thousandths),
         FIELD(fLightObscuration, "LightObscuration", Thousandths),
         FIELD(fTemperature, "Temperature", SignedThousandths),
         FIELD(dwHumidity, "Humidity", UInt),
         FIELD(fPressure, "Pressure", Thousandths),
         FIELD(fWindForce, "Wind_force", Thousandths),
         FIELD(dwWindDirection, "Wind_direction", UInt),
         FIELD(fRoadGradient, "Road_gradient", Thousandths),
         FIELD(fAcceleration, "Acceleration", SignedThousandths),
     });

extern const CustomCodec kSplitTime;
PART(kRfidTag, EVENT_RFID_TAG_INFO,
     {
         FIELD(szCardID, "CardID", Text),
         FIELD(nCardType, "CardType", Int),
         FIELD(nCardProvince, "CardProvince", Int),
         FIELD(szPlateNumber, "PlateNumber", Text),
         FIELD(szProductionDate, "ProductionDate", Text),
         FIELD(nCarType, "CarType", Int),
         FIELD(nPower, "Power", Int),
         FIELD(nDisplacement, "Displacement", Int),
         FIELD(nAntennaID, "AntennaID", Int),
         FIELD(nPlateType, "PlateType", Int),
         FIELD(szInspectionValidity, "InspectionValidity", Text),
         FIELD(nInspectionFlag, "InspectionFlag", Int),
         FIELD(nMandatoryRetirement, "MandatoryRetirement", Int),
         FIELD(nCarColor, "CarColor", Int),
         FIELD(nApprovedCapacity, "ApprovedCapacity", Int),
         FIELD(nApprovedTotalQuality, "ApprovedTotalQuality", Int),
         FIELD(stuThroughTime, "ThroughTime", Custom(kSplitTime)),
         FIELD(nUseProperty, "UseProperty", Int),
         FIELD(szPlateCode, "PlateCode", Text),
         FIELD(szPlateSN, "PlateSN", Text),
     });

void StopAtMissingDrivers(const json::Value& value, std::byte* record, ReadCall& call);
PART(kCommInfo, EVENT_COMM_INFO,
     {
         FIELD(emNTPStatus, "NTPCheckTime", Names(kNtpStates)),
         FIELD(nDriversNum),
         FIELD(pDrivers, "Drivers", Record(kObjectEx)).Owned("New pstDriversInfo Failed").Count(AT(nDriversNum)),
         FIELD(pszFilePath, nullptr, OwnedText),
         FIELD(pszFTPPath, nullptr, OwnedText),
         FIELD(pszVideoPath, nullptr, OwnedText),
         FIELD(nSeatNum),
         FIELD(stuSeat, "Seat", Record(kSeat)).Count(AT(nSeatNum)),
         FIELD(nAttachmentNum),
         FIELD(stuAttachment, "Attachment", Record(kAttachment)).Count(AT(nAttachmentNum)),
         FIELD(nAnnualInspectionNum),
         FIELD(stuAnnualInspection, "AnnualInspection", Record(kBox)).Count(AT(nAnnualInspectionNum)),
         FIELD(stuExhaust, "ExhaustPara", Record(kExhaust)),
         FIELD(nOriginalPictureNum),
         FIELD(stuOriginalPicture, "OriginalPictures", Record(kPicturePlace)).Count(AT(nOriginalPictureNum)),
         FIELD(stuRFIDTag, "RFIDEleTagInfo", Record(kRfidTag)),
         FIELD(szCountry, "Country", Text),
     })
    .AfterRead(StopAtMissingDrivers);

} // namespace orrery::events
template <>
inline constexpr const orrery::record::Table* orrery::record::kLayoutOf<EVENT_COMM_INFO> = &orrery::events::kCommInfo;
namespace orrery::events {

// The communication info, and in every case the paths of the notification.
extern const CustomCodec kCommInfoAndPaths;

// ---- Riders ------------------------------------------------------------------------------------------------------

PART(kNonMotorImage, EVENT_NON_MOTOR_IMAGE,
     {
         FIELD(dwLength, "Length", UInt),
         FIELD(dwOffset, "Offset", UInt),
         FIELD(wWidth, "Width", Int),
         FIELD(wHeight, "Height", Int),
         FIELD(nIndexInData, "IndexInData", Int),
     });
PART(kNonMotor, EVENT_NON_MOTOR_INFO,
     {
         FIELD(emCategory),
         FIELD(emColor, "Color", Names(kNonMotorColors)),
         FIELD(stuImage, "Image", Record(kNonMotorImage)),
         FIELD(stuSceneImage, "SceneImage", Record(kNonMotorImage)),
     });

void ForgetSceneWithoutLength(const json::Value& value, std::byte* record, ReadCall& call);
PART(kSceneImage, EVENT_SCENE_IMAGE,
     {
         FIELD(bSceneImage),
         FIELD(dwOffset, "Offset", UInt),
         FIELD(dwLength, "Length", UInt),
         FIELD(wWidth, "Width", UInt),
         FIELD(wHeight, "Height", UInt),
         FIELD(nIndexInData, "IndexInData", UInt),
     })
    .AfterRead(ForgetSceneWithoutLength);

// ---- Rules over several fields -----------------------------------------------------------------------------------

// Stores a colour's name as bytes and says so in `isSet`; an unknown or empty name changes nothing.
bool SetObjectColor(std::uint32_t& color, std::string_view name, std::uint8_t& isSet) noexcept;

// A text up to its terminator, or to the field's end when it has none.
template <std::size_t N>
std::string_view TextOf(const char (&field)[N]) noexcept {
    return {field, strnlen(field, N)};
}

// A car says more than the objects around it: its plate, colours and group take their places.
struct CarTexts {
    std::string_view plateNumber;
    std::string_view plateColor;
    std::string_view vehicleColor;
};
void CarOverObjects(const json::Value& car, const CarTexts& texts, EVENT_OBJECT_INFO& object,
                    EVENT_OBJECT_INFO& vehicle, EVENT_FILE_INFO& fileInfo) noexcept;

// The same as a table's last step.
template <class R>
void CarRule(const json::Value& data, std::byte* record, ReadCall&) {
    auto& event = *reinterpret_cast<R*>(record); // event records are made by the decoder, aligned
    const auto& car = event.stuTrafficCar;
    CarOverObjects(data["TrafficCar"],
                   {TextOf(car.szPlateNumber), TextOf(car.szPlateColor), TextOf(car.szVehicleColor)}, event.stuObject,
                   event.stuVehicle, event.stuFileInfo);
}

// "2026-11-20 09:30:00", each number from the right end on.
void ReadSplitTime(std::string_view text, std::uint32_t (&fields)[6]) noexcept;

} // namespace orrery::events

#define EV_CAR FIELD(stuTrafficCar, "TrafficCar", Record(::orrery::events::kTrafficCar))
#define EV_COMM_INFO FIELD(stuCommInfo, "CommInfo", Custom(::orrery::events::kCommInfoAndPaths)).Always()
#define EV_COMM_INFO_ALONE FIELD(stuCommInfo, "CommInfo", Record(::orrery::events::kCommInfo))
#define EV_EXTENSION FIELD(szEventLongID, "Extension/EventLongID", Text)
