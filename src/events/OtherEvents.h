// The tables of the events that are neither of the traffic nor of an analysed scene.
#pragma once

#include "events/VehicleParts.h"

#include "orrery/events_other.h"

namespace orrery::events {

// Of the device itself
extern const TypedTable<DEV_EVENT_VIDEOMOTION_INFO> kVideoMotion;
extern const TypedTable<DEV_EVENT_ALARMLOCAL_INFO> kAlarmLocal;
extern const TypedTable<DEV_EVENT_MULTISCENESWITCH_INFO> kMultiSceneSwitch;
extern const TypedTable<DEV_EVENT_ANALOGALARM_INFO> kAnalogAlarm;
extern const TypedTable<DEV_EVENT_VIDEOBLIND_INFO> kVideoBlind;
extern const TypedTable<DEV_EVENT_VIDEOSTATIC_INFO> kVideoStatic;
extern const TypedTable<DEV_EVENT_VIDEOTIMING_INFO> kVideoTiming;
extern const TypedTable<DEV_EVENT_PICINFO_INFO> kPicInfo;
extern const TypedTable<DEV_EVENT_SNAPBYTIME_INFO> kSnapByTime;
extern const TypedTable<DEV_EVENT_PTZPRESET_INFO> kPtzPreset;
extern const TypedTable<DEV_EVENT_SCENECHANGE_INFO> kSceneChange;
extern const TypedTable<DEV_EVENT_LINKSD_INFO> kLinkSD;
extern const TypedTable<DEV_EVENT_SNAPMANUAL_INFO> kSnapManual;
extern const TypedTable<DEV_EVENT_PASSCHANGE_INFO> kPassChange;

// Of vehicles that carry a terminal
extern const TypedTable<DEV_EVENT_VEHICLEACC_INFO> kVehicleACC;
extern const TypedTable<DEV_EVENT_VEHICLETURNOVER_INFO> kVehicleTurnover;
extern const TypedTable<DEV_EVENT_VEHICLECOLLISION_INFO> kVehicleCollision;
extern const TypedTable<DEV_EVENT_TRAFFICFCC_INFO> kTrafficFcc;
extern const TypedTable<DEV_EVENT_TRANSFINITE_INFO> kTransfinite;
extern const TypedTable<DEV_EVENT_OIL4GFLOWRATE_INFO> kOil4GFlowRate;
extern const TypedTable<DEV_EVENT_TRAFFICELETAGINFO_INFO> kTrafficEleTagInfo;
extern const TypedTable<DEV_EVENT_TIREDPHYSIOLOGICAL_INFO> kTiredPhysiological;
extern const TypedTable<DEV_EVENT_BUSSHARPTURN_INFO> kBusSharpTurn;
extern const TypedTable<DEV_EVENT_TRAFFICDRIVERLOWERHEAD_INFO> kTrafficDriverLowerHead;
extern const TypedTable<DEV_EVENT_TRAFFICDRIVERLOOKAROUND_INFO> kTrafficDriverLookAround;
extern const TypedTable<DEV_EVENT_TRAFFICDRIVERLEAVEPOST_INFO> kTrafficDriverLeavePost;
extern const TypedTable<DEV_EVENT_TRAFFICDRIVERYAWN_INFO> kTrafficDriverYawn;
extern const TypedTable<DEV_EVENT_ACCOFFSNAP_INFO> kAccOffSnap;
extern const TypedTable<DEV_EVENT_NOTCLEARCAR_INFO> kNotClearCar;
extern const TypedTable<DEV_EVENT_SOSALERT_INFO> kSOSAlert;
extern const TypedTable<DEV_EVENT_OVERLOAD_INFO> kOverLoad;
extern const TypedTable<DEV_EVENT_NONWORKINGTIME_INFO> kNonWorkingTime;
extern const TypedTable<DEV_EVENT_DRIVINGWITHOUTCARD_INFO> kDrivingWithoutCard;
extern const TypedTable<DEV_EVENT_HIGHSPEED_INFO> kHighSpeed;

// Of doors, cards and targets
extern const TypedTable<DEV_EVENT_CITIZENIDCARD_INFO> kCitizenIDCard;
extern const TypedTable<DEV_EVENT_NETPLAYCHECK_INFO> kNetPlayCheck;
extern const TypedTable<DEV_EVENT_RFIDINFO_INFO> kRFIDInfo;
extern const TypedTable<DEV_EVENT_SHOOTINGSCORERECOGNITION_INFO> kShootingScoreRecognition;
extern const TypedTable<DEV_EVENT_ACCESSCONTROL_INFO> kAccessControl;
extern const TypedTable<DEV_EVENT_CITIZENPICTURECOMPARE_INFO> kCitizenPictureCompare;
extern const TypedTable<DEV_EVENT_INSTALLCARDREADER_INFO> kInstallCardReader;

} // namespace orrery::events

#define EV_GPS_STATUS FIELD(stuGPSStatus, "GPS", Record(::orrery::events::kGpsStatus))
// Where and when the file of the notification was made.
#define EV_FILE_TIME ORRERY_FROM_EVENT(stuFileTime, stuFileInfo.stuFileTime)
