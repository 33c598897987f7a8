// Intelligent events: what is in a parcel, which vehicle it is.
#include "events/IntelligentEvents.h"
#include "events/VehicleParts.h"

#include <limits>

namespace orrery::events {

namespace {

NAMES(kInsideTypes, kFolded,
      {
          {EVENT_INSIDE_KNIFE, "Knife"},
          {EVENT_INSIDE_BOTTLE_LIQUID, "BottleLiquid"},
          {EVENT_INSIDE_GUN, "Gun"},
          {EVENT_INSIDE_UMBRELLA, "Umbrella"},
          {EVENT_INSIDE_PHONE, "Phone"},
          {EVENT_INSIDE_NOTEBOOK, "Notebook"},
          {EVENT_INSIDE_POWERBANK, "Powerbank"},
          {EVENT_INSIDE_SHOES, "Shoes"},
          {EVENT_INSIDE_ROD, "Rod"},
          {EVENT_INSIDE_METAL, "Metal"},
          {EVENT_INSIDE_EXPLOSIVE, "Explosive"},
      });

#define GRADE Within<std::numeric_limits<std::int32_t>::min(), 2>

PART(kInside, EVENT_INSIDE_OBJECT,
     {
         FIELD(nGrade, "Grade", GRADE).Absent(-1),
         FIELD(emType, "Type", Names(kInsideTypes)),
     })
    .StartsWhenRead();

// ---- Vehicles ----

NAMES(kVehicleActions, kFolded,
      {
          {EVENT_VEHICLE_APPEAR, "Appear"},
          {EVENT_VEHICLE_DISAPPEAR, "Disappear"},
      });
NAMES(kVehicleAttachTypes, kFolded,
      {
          {EVENT_VEHICLE_ATTACH_INSPECT, "Inspect"},
          {EVENT_VEHICLE_ATTACH_PENDANT, "Pendant"},
          {EVENT_VEHICLE_ATTACH_PAPER_BOX, "Paperbox"},
          {EVENT_VEHICLE_ATTACH_PERFUME_BOX, "Perfumebox"},
      });
NAMES(kDifferences, kFolded,
      {
          {EVENT_CAR_DIFFERENCE_COUNTRY, "Country"},
          {EVENT_CAR_DIFFERENCE_BRAND, "Brand"},
          {EVENT_CAR_DIFFERENCE_TYPE, "Type"},
          {EVENT_CAR_DIFFERENCE_VEHICLE_COLOR, "VehicleColor"},
          {EVENT_CAR_DIFFERENCE_PLATE_COLOR, "PlateColor"},
      });
NAMES(kOwnerSexes, kFolded.Unknown(3),
      {
          {0, "Unknown"},
          {1, "Male"},
          {2, "Female"},
      });
NAMES(kOwnerCertificates, kFolded.Unknown(4),
      {
          {0, "Unknown"},
          {1, "IC"},
          {2, "Passport"},
          {3, "Military"},
      });

PART(kVehicleSeat, EVENT_VEHICLE_SEAT,
     {
         FIELD(bySunShade, "SunShade", Int),
         FIELD(byDriverCalling, "DriverCalling", Int),
         FIELD(byDriverSmoking, "DriverSmoking", Int),
         FIELD(bySafeBelt, "SafeBelt", Int),
     });
PART(kVehicleAttach, EVENT_VEHICLE_ATTACH,
     {
         FIELD(emType, "Type", Names(kVehicleAttachTypes)),
         FIELD(stuBoundingBox, "BoundingBox", Record(kBox)).AtLeast(4),
     });

#define OF_VEHICLE(member, key, ...) FIELD(member, "Vehicle/" key, __VA_ARGS__)
PART(kCarCandidate, EVENT_CAR_CANDIDATE,
     {
         FIELD(nDifferenceNum),
         FIELD(emDifference, "DifferentAttributres", Names(kDifferences)).Count(AT(nDifferenceNum)),
         OF_VEHICLE(dwUID, "UID", UInt),
         OF_VEHICLE(szGroupID, "GroupID", Text),
         OF_VEHICLE(szGroupName, "GroupName", Text),
         OF_VEHICLE(szPlateNumber, "PlateNumber", Text),
         OF_VEHICLE(szPlateCountry, "PlateCountry", Text),
         OF_VEHICLE(dwPlateType, "PlateType", UInt),
         OF_VEHICLE(dwType, "Type", UInt),
         OF_VEHICLE(dwBrand, "Brand", UInt),
         OF_VEHICLE(dwSerie, "Serie", UInt),
         OF_VEHICLE(dwCarSeriesModelYearIndex, "CarSeriesModelYearIndex", UInt),
         OF_VEHICLE(stuVehicleColor, "VehicleColor", Record(record::kColor)),
         OF_VEHICLE(stuPlateColor, "PlateColor", Record(record::kColor)),
         OF_VEHICLE(szName, "Name", Text),
         OF_VEHICLE(emSex, "Sex", Names(kOwnerSexes)).Only(OnlyType::String),
         OF_VEHICLE(emCertificateType, "CertificateType", Names(kOwnerCertificates)).Only(OnlyType::String),
         OF_VEHICLE(szID, "ID", Text),
         OF_VEHICLE(szCountry, "Country", Text),
         OF_VEHICLE(szProvince, "Province", Text),
         OF_VEHICLE(szCity, "City", Text),
         OF_VEHICLE(szHomeAddress, "HomeAddress", Text),
         OF_VEHICLE(szEmail, "Email", Text),
         OF_VEHICLE(szPhoneNo, "PhoneNo", Text),
     });

} // namespace

TABLE(kXRayDetection, DEV_EVENT_XRAYDETECTION_INFO,
      {
          HEAD_A,
          EVENT_CLASS_OR_TRAFFIC,
          FIELD(nPacketGrade, "Packet/Grade", GRADE).Absent(-1),
          FIELD(nInsideNum),
          FIELD(stuInside, "Inside", Record(kInside)).Count(AT(nInsideNum)),
      });

TABLE(kVehicleRecognition, DEV_EVENT_VEHICLERECOGNITION_INFO,
      {
          RULE_NAME,
          TIME_STAMP,
          UTC,
          EVENT_ID,
          OF_VEHICLE(emAction, "Action", Names(kVehicleActions)),
          OBJECT,
          VEHICLE,
          OF_VEHICLE(stuMainSeat, "MainSeat", Record(kVehicleSeat)),
          OF_VEHICLE(stuSlaveSeat, "SlaveSeat", Record(kVehicleSeat)),
          OF_VEHICLE(stuMainFace, "MainFace", Record(record::kRect)),
          OF_VEHICLE(stuSlaveFace, "SlaveFace", Record(record::kRect)),
          FIELD(nVehicleAttachNum),
          OF_VEHICLE(stuVehicleAttach, "VehicleAttachs", Record(kVehicleAttach)).Count(AT(nVehicleAttachNum)),
          FIELD(szCountry, "Object/Country", Text),
          FIELD(nCandidateNum),
          FIELD(stuCandidates, "CarCandidate", Record(kCarCandidate)).Count(AT(nCandidateNum)),
          COMM_INFO,
      });

} // namespace orrery::events
