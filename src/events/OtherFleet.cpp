// Events of vehicles that carry a terminal, of what they are filled and loaded with, and of their drivers.
#include "events/OtherEvents.h"

namespace orrery::events {

namespace {

NAMES(kSupplies, kFolded.Unknown(EVENT_SUPPLY_OFF),
      {
          {EVENT_SUPPLY_ON, "On"},
      });

NAMES(kFuels, kFolded,
      {
          {EVENT_FUEL_98, "98#"},
          {EVENT_FUEL_97, "97#"},
          {EVENT_FUEL_95, "95#"},
          {EVENT_FUEL_93, "93#"},
          {EVENT_FUEL_90, "90#"},
          {EVENT_FUEL_PLUS_10, "10#"},
          {EVENT_FUEL_PLUS_5, "5#"},
          {EVENT_FUEL_0, "0#"},
          {EVENT_FUEL_MINUS_10, "-10#"},
          {EVENT_FUEL_MINUS_20, "-20#"},
          {EVENT_FUEL_MINUS_35, "-35#"},
          {EVENT_FUEL_MINUS_50, "-50#"},
      });

} // namespace

// ---- State of the vehicle ----------------------------------------------------------------------------------------

TABLE(kVehicleACC, DEV_EVENT_VEHICLEACC_INFO,
      {
          EV_HEAD_A,
          EV_GPS_STATUS,
          FIELD(emACCStatus, "Status", Names(kSupplies)),
          EV_ACTION,
          FIELD(emConstantElectric, "ConstantElectricStatus", Names(kSupplies)),
      });

#define EV_ACCIDENT_ROWS EV_HEAD_A, EV_GPS_STATUS, EV_FILE_INFO, EV_ACTION_AND_REPEAT, EV_FLAG_MASK, EV_WIDTH, EV_HEIGHT
TABLE(kVehicleTurnover, DEV_EVENT_VEHICLETURNOVER_INFO,
      {
          EV_ACCIDENT_ROWS,
      });
TABLE(kVehicleCollision, DEV_EVENT_VEHICLECOLLISION_INFO,
      {
          EV_ACCIDENT_ROWS,
      });
#undef EV_ACCIDENT_ROWS

TABLE(kAccOffSnap, DEV_EVENT_ACCOFFSNAP_INFO,
      {
          EV_HEAD_A,
      });
TABLE(kBusSharpTurn, DEV_EVENT_BUSSHARPTURN_INFO,
      {
          EV_HEAD_A,
          EV_ACTION,
          EV_GPS_STATUS,
      });

TABLE(kHighSpeed, DEV_EVENT_HIGHSPEED_INFO,
      {
          EV_CHANNEL,
          ORRERY_SAME_FROM_EVENT(nAction),
          EV_UTC,
          EV_TIME_STAMP,
          EV_GPS_STATUS,
          FIELD(nSpeedLimit, "SpeedLimit", Int),
          FIELD(nCurSpeed, "CurSpeed", Int),
          FIELD(nMaxSpeed, "MaxSpeed", Int),
          FIELD(stuStartTime, "StartTime", NetTimeEx).Only(OnlyType::String),
      });

#define EV_FLEET_ROWS EV_CHANNEL, EV_UTC, EV_ACTION, EV_REPEAT, EV_FLAG_MASK, EV_RESOLUTION, EV_COMM_INFO_ALONE
TABLE(kNotClearCar, DEV_EVENT_NOTCLEARCAR_INFO,
      {
          EV_FLEET_ROWS,
      });
TABLE(kSOSAlert, DEV_EVENT_SOSALERT_INFO,
      {
          EV_FLEET_ROWS,
      });
TABLE(kOverLoad, DEV_EVENT_OVERLOAD_INFO,
      {
          EV_FLEET_ROWS,
      });
TABLE(kNonWorkingTime, DEV_EVENT_NONWORKINGTIME_INFO,
      {
          EV_FLEET_ROWS,
      });
#undef EV_FLEET_ROWS

// ---- The driver --------------------------------------------------------------------------------------------------

TABLE(kTiredPhysiological, DEV_EVENT_TIREDPHYSIOLOGICAL_INFO,
      {
          EV_HEAD_A,
          EV_ACTION,
          EV_GPS_STATUS,
      });
TABLE(kTrafficDriverLowerHead, DEV_EVENT_TRAFFICDRIVERLOWERHEAD_INFO,
      {
          EV_HEAD_A,
          EV_GPS_STATUS,
      });
TABLE(kTrafficDriverLookAround, DEV_EVENT_TRAFFICDRIVERLOOKAROUND_INFO,
      {
          EV_HEAD_A,
          EV_GPS_STATUS,
      });
TABLE(kTrafficDriverLeavePost, DEV_EVENT_TRAFFICDRIVERLEAVEPOST_INFO,
      {
          EV_HEAD_A,
          EV_GPS_STATUS,
      });
TABLE(kTrafficDriverYawn, DEV_EVENT_TRAFFICDRIVERYAWN_INFO,
      {
          EV_HEAD_A,
          EV_GPS_STATUS,
      });

TABLE(kDrivingWithoutCard, DEV_EVENT_DRIVINGWITHOUTCARD_INFO,
      {
          EV_CHANNEL,
          EV_ACTION,
          EV_TIME_STAMP,
          EV_UTC,
      });

// ---- Fuel, size, tag ---------------------------------------------------------------------------------------------

TABLE(kTrafficFcc, DEV_EVENT_TRAFFICFCC_INFO,
      {
          EV_HEAD_A_WITH(FIELD(nTriggerID, "TriggerID", Int)),
          FIELD(dwNum, "Num", AnyInteger),
          FIELD(dwLitre, "Litre", AnyInteger),
          FIELD(emType, "Type", Names(kFuels)),
          FIELD(dwMoney, "Money", AnyInteger),
          FIELD(szText, "Text", Text),
          FIELD(szTime, "Time", Text),
          FIELD(dwOffset, "Object/Image/Offset", UInt),
          FIELD(dwLength, "Object/Image/Length", UInt),
          FIELD(wWidth, "Object/Image/Width", Int),
          FIELD(wHeight, "Object/Image/Height", Int),
      });

TABLE(kTransfinite, DEV_EVENT_TRANSFINITE_INFO,
      {
          EV_HEAD_A,
          EV_FILE_INFO,
          EV_ACTION,
          FIELD(szText, "Text", Text),
          FIELD(szTime, "Time", Text),
          FIELD(dLong, "Long", Real),
          FIELD(dWidth, "Width", Real),
          FIELD(dHeight, "Height", Real),
          FIELD(szViolationCode, "ViolationCode", Text),
          FIELD(szDescribe, "Describe", Text),
          EV_REPEAT,
          EV_FLAG_MASK,
      });

TABLE(kOil4GFlowRate, DEV_EVENT_OIL4GFLOWRATE_INFO,
      {
          EV_HEAD_A,
          FIELD(dwFlowRate, "FlowRate", UInt),
      });

TABLE(kTrafficEleTagInfo, DEV_EVENT_TRAFFICELETAGINFO_INFO,
      {
          EV_HEAD_A,
          EV_ACTION,
          FIELD(stuRFIDTag, "RFIDEleTagInfo", Record(kRfidTag)),
          FIELD(nLinkChannelNum),
          FIELD(nLinkChannel, "LinkChannel", Int).Count(AT(nLinkChannelNum)),
      });

} // namespace orrery::events
