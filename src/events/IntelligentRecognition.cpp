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

#define EV_GRADE Within<std::numeric_limits<std::int32_t>::min(), 2>

PART(kInside, EVENT_INSIDE_OBJECT,
     {
         FIELD(nGrade, "Grade", EV_GRADE).Absent(-1),
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

#define EV_OF_VEHICLE(member, key, ...) FIELD(member, "Vehicle/" key, __VA_ARGS__)
PART(kCarCandidate, EVENT_CAR_CANDIDATE,
     {
         FIELD(nDifferenceNum),
         FIELD(emDifference, "DifferentAttributres", Names(kDifferences)).Count(AT(nDifferenceNum)),
         EV_OF_VEHICLE(dwUID, "UID", UInt),
         EV_OF_VEHICLE(szGroupID, "GroupID", Text),
         EV_OF_VEHICLE(szGroupName, "GroupName", Text),
         EV_OF_VEHICLE(szPlateNumber, "PlateNumber", Text),
         EV_OF_VEHICLE(szPlateCountry, "PlateCountry", Text),
         EV_OF_VEHICLE(dwPlateType, "PlateType", UInt),
         EV_OF_VEHICLE(dwType, "Type", UInt),
         EV_OF_VEHICLE(dwBrand, "Brand", UInt),
         EV_OF_VEHICLE(dwSerie, "Serie", UInt),
         EV_OF_VEHICLE(dwCarSeriesModelYearIndex, "CarSeriesModelYearIndex", UInt),
         EV_OF_VEHICLE(stuVehicleColor, "VehicleColor", Record(record::kColor)),
         EV_OF_VEHICLE(stuPlateColor, "PlateColor", Record(record::kColor)),
         EV_OF_VEHICLE(szName, "Name", Text),
         EV_OF_VEHICLE(emSex, "Sex", Names(kOwnerSexes)).Only(OnlyType::String),
         EV_OF_VEHICLE(emCertificateType, "CertificateType", Names(kOwnerCertificates)).Only(OnlyType::String),
         EV_OF_VEHICLE(szID, "ID", Text),
         EV_OF_VEHICLE(szCountry, "Country", Text),
         EV_OF_VEHICLE(szProvince, "Province", Text),
         EV_OF_VEHICLE(szCity, "City", Text),
         EV_OF_VEHICLE(szHomeAddress, "HomeAddress", Text),
         EV_OF_VEHICLE(szEmail, "Email", Text),
         EV_OF_VEHICLE(szPhoneNo, "PhoneNo", Text),
     });

} // namespace

TABLE(kXRayDetection, DEV_EVENT_XRAYDETECTION_INFO,
      {
          EV_HEAD_A,
          EV_CLASS_OR_TRAFFIC,
          FIELD(nPacketGrade, "Packet/Grade", EV_GRADE).Absent(-1),
          FIELD(nInsideNum),
          FIELD(stuInside, "Inside", Record(kInside)).Count(AT(nInsideNum)),
      });

TABLE(kVehicleRecognition, DEV_EVENT_VEHICLERECOGNITION_INFO,
      {
          EV_RULE_NAME,
          EV_TIME_STAMP,
          EV_UTC,
          EV_ID,
          EV_OF_VEHICLE(emAction, "Action", Names(kVehicleActions)),
          EV_OBJECT,
          EV_VEHICLE,
          EV_OF_VEHICLE(stuMainSeat, "MainSeat", Record(kVehicleSeat)).ReadOnly(),
          EV_OF_VEHICLE(stuSlaveSeat, "SlaveSeat", Record(kVehicleSeat)).ReadOnly(),
          EV_OF_VEHICLE(stuMainFace, "MainFace", Record(record::kRect)).ReadOnly(),
          EV_OF_VEHICLE(stuSlaveFace, "SlaveFace", Record(record::kRect)).ReadOnly(),
          FIELD(nVehicleAttachNum),
          EV_OF_VEHICLE(stuVehicleAttach, "VehicleAttachs", Record(kVehicleAttach)).Count(AT(nVehicleAttachNum)),
          FIELD(szCountry, "Object/Country", Text).ReadOnly(),
          FIELD(nCandidateNum),
          FIELD(stuCandidates, "CarCandidate", Record(kCarCandidate)).Count(AT(nCandidateNum)),
          EV_COMM_INFO,
      });

} // namespace orrery::events
