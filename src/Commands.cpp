#include "Commands.h"

#include "CommandWords.h"
#include "access/AccessControl.h"
#include "access/VideoTalk.h"
#include "alarm/AlarmCaps.h"
#include "alarm/AlarmHardware.h"
#include "alarm/AlarmInput.h"
#include "alarm/AlarmServers.h"
#include "alarm/Arming.h"
#include "alarm/DeviceFaults.h"
#include "alarm/VehicleAlarms.h"
#include "analyse/AnalyseCaps.h"
#include "analyse/AnalyseSource.h"
#include "analyse/Calibration.h"
#include "analyse/Module.h"
#include "analyse/RuleFrame.h"
#include "analyse/RuleGroups.h"
#include "analyse/Scene.h"
#include "analyse/TrafficFlow.h"
#include "analyse/TrafficGlobal.h"
#include "analyse/TrafficSnapshot.h"
#include "device/DeviceAlarm.h"
#include "device/DeviceNetwork.h"
#include "device/DeviceStatus.h"
#include "device/Equipment.h"
#include "device/GeneralSwitch.h"
#include "device/Locale.h"
#include "device/RemoteDevice.h"
#include "device/Services.h"
#include "device/Settings.h"
#include "device/Vehicle.h"
#include "diagnosis/Diagnosis.h"
#include "display/Audio.h"
#include "display/Display.h"
#include "display/MonitorWall.h"
#include "display/RecordTransfer.h"
#include "display/VideoWidget.h"
#include "frame/CommandIndex.h"
#include "later/Cameras.h"
#include "later/Fleet.h"
#include "later/Home.h"
#include "later/Intercom.h"
#include "later/Parking.h"
#include "later/Thermography.h"
#include "media/Encode.h"
#include "media/EncodeCaps.h"
#include "media/EncodeEncrypt.h"
#include "media/Overlay.h"
#include "media/Ptz.h"
#include "media/PtzCaps.h"
#include "media/PtzLines.h"
#include "media/PtzMovement.h"
#include "media/StroboscopicLamp.h"
#include "media/Tracker.h"
#include "media/VideoInOptions.h"
#include "media/VideoInput.h"
#include "network/Dvrip.h"
#include "network/Multicast.h"
#include "network/Network.h"
#include "network/Services.h"
#include "network/Wlan.h"
#include "storage/Burning.h"
#include "storage/Disks.h"
#include "storage/Nas.h"
#include "storage/RecordPlan.h"
#include "storage/RecordServers.h"
#include "storage/RecordStoragePoint.h"
#include "storage/StorageGroups.h"

namespace orrery {

namespace {

using namespace words;

constexpr Command kCommands[] = {
    // Switches
    Generic("G3G4AutoChange", kEnable, kOneCleared),
    Generic("CabinLedTimeSchedule", kEnable, kOneCleared),
    Generic("PwdReset", kEnable, kOneCleared),

    // Alarm inputs
    Both("Alarm", kAlarmInput, kUntested, kLoose),
    Both("NetAlarm", kNetAlarm, kUntested, kLoose),
    Both("MotionDetect", kMotionDetect, kParse.Null(NullValue::OneRecord).OnceParsed(MarkMotionDetectRead),
         kPack.KeepsText()),
    Both("LossDetect", kLossDetect, kUntested, kLoose),
    Both("BlindDetect", kBlindDetect, kUntested, kLoose),
    Both("StorageNotExist", kStorageAlarm, kUntested, kLoose),
    Both("StorageFailure", kStorageAlarm, kUntested, kLoose),
    Both("StorageLowSpace", kStorageLowSpace, kUntested, kLoose),
    Both("NetAbort", kStorageAlarm, kUntested, kLoose),
    Both("IPConflict", kStorageAlarm, kUntested, kLoose),
    Both("MacConflict", kStorageAlarm, kUntested, kLoose),
    Both("PSTNBreakLine", kStorageAlarm, kUntested, kLoose),

    // Alarm devices
    Both("ChassisIntrusion", kFaultAlarm, kParse, kLoose),
    Both("Emergency", kFaultAlarm, kParse, kLoose),
    Both("BatteryLowPowerAlarm", kFaultAlarm, kParse, kLoose),
    Both("MCSGeneralCapacityLow", kFaultAlarm, kParse, kLoose),
    Both("MCSDataNodeOffline", kFaultAlarm, kParse, kLoose),
    Both("MCSDiskOffline", kFaultAlarm, kParse, kLoose),
    Both("MCSDiskSlow", kFaultAlarm, kParse, kLoose),
    Both("MCSDiskBroken", kFaultAlarm, kParse, kLoose),
    Both("MCSDiskUnknowError", kFaultAlarm, kParse, kLoose),
    Both("MCSMetadataServerAbnormal", kFaultAlarm, kParse, kLoose),
    Both("MCSCatalogServerAbnormal", kFaultAlarm, kParse, kLoose),
    Both("MCSGeneralCapacityResume", kFaultAlarm, kParse, kLoose),
    Both("MCSDataNodeOnline", kFaultAlarm, kParse, kLoose),
    Both("MCSDiskOnline", kFaultAlarm, kParse, kLoose),
    Both("MCSMetadataSlaveOnline", kFaultAlarm, kParse, kLoose),
    Both("MCSCatalogServerOnline", kFaultAlarm, kParse, kLoose),
    Both("ParkingCard", kFaultAlarm, kUntested, kLoose),
    Both("NetMonitorAbort", kFaultAlarm, kUntested, kLoose),
    Both("UserLockAlarm", kUserLockAlarm, kUntested, kLoose),
    Both("LoginFailureAlarm", kLoginFailure, kParse, kLoose),
    Both("GpsNotAligned", kNotifyFault, kParse, kLoose),
    Both("WireLessNotConnected", kNotifyFault, kParse, kLoose),
    Both("UnFocusDetect", kUnFocusDetect, kUntested, kLoose),
    Both("PowerFault", kPowerFault, kList, kLoose),
    Both("BurnFull", kBurnFull, kList, kLoose),
    Both("DiskFluxAlarm", kFluxAlarm, kParse, kPack),
    Both("NetFluxAlarm", kFluxAlarm, kParse, kPack),
    Both("TemperatureAlarm", kClimateAlarm, kParse, kPack),
    Both("FanSpeedAlarm", kClimateAlarm, kParse, kPack),
    Both("HighSpeed", kHighSpeed, kUntested, kLoose),
    Both("LowSpeed", kLowSpeed, kUntested, kLoose),
    Both("TimeSpeedLimit", kTimeSpeedLimit, kList, kPack),
    Both("VoiceAlert", kVoiceAlert, kList, kPack),
    Both("CQDTSet", kCqdtSet, kParse, kPack),
    Both("Oil4GFlow", kOil4GFlow, kUntested, kLoose),
    Both("VideoWidget4GFlow", kVideoWidget4GFlow, kUntested, kLoose),
    Both("RCEmergencyCall", kRcEmergencyCall, kUntested, kLoose),
    Both("FetchMoneyOverTime", kFetchMoneyOverTime, kUntested, kLoose),
    Both("CommGlobal", kCommGlobal, kParse, kPack),
    Both("AlarmSubSystem", kAlarmSubSystem, kOneOrMany, kBareIfOne),
    Both("DefenceAreaDelay", kDefenceAreaDelay, kUntested, kLoose),
    Both("AlarmShieldRule", kAlarmShieldRule, kUntested, kLoose),
    Both("SensorSampling", kSensorSampling, kParse, kPack),
    Both("SnapLinkage", kSnapLinkage, kOneOrMany, kBareIfOne.Fits(Capacity::Loose)),
    Both("AnalogAlarm", kAnalogAlarm, kOneOrMany, kBareIfOne),
    Both("ExAlarm", kExAlarm, kOneOrMany.Result(ResultTest::NotTested), kBareIfOne),
    Both("AlarmOut", kAlarmOut, kOneOrMany, kBareIfOne),
    Both("ExAlarmOut", kExAlarmOut, kOneOrMany, kBareIfOne),
    Both("AlarmKeyboard", kSerialAlarmDevice, kOneOrMany, kBareIfOne),
    Both("ExAlarmBox", kSerialAlarmDevice, kOneOrMany, kBareIfOne),
    Both("FlashLight", kFlashLight, kUntested, kLoose),
    Logged(Both("SCADADev", kScadaDev, kOneOrMany.NeedsText(), kBareIfOne), LogScadaParse, LogScadaPack),
    Both("AlarmServer", kAlarmServer, kParse, kPack),
    Both("PSTNAlarmServer", kPstnAlarmServer, kParse, kPack),
    Both("Wireless", kWireless, kParse, kPack),

    // Alarm capabilities
    Reply("alarm.getAlarmCaps", kAlarmCaps, kCapsTextTrue),
    Reply("alarm.getExAlarmCaps", kExAlarmCaps, kCapsTextTrue),
    Reply("alarm.getExAlarmBoxCaps", kExAlarmBoxCaps, kCapsTextTrue),
    Reply("AnalogAlarm.getCaps", kAnalogAlarmCaps, kCaps),

    // Access control
    Both("AccessControlGeneral", kAccessGeneral, kParse, kPack),
    Both("AccessControl", kAccessControl, kDoors, kBareIfOne),
    Reply("accessControlManager.getCaps", kAccessCaps, kCaps),
    Both("AccessTimeSchedule", kAccessTimeSchedule, kDoors, kBareIfOne),
    Both("OpenDoorGroup", kOpenDoorGroup, kParse, kPack),
    Both("OpenDoorRoute", kOpenDoorRoute, kParse, kPack),
    Both("AccessWorkMode", kAccessWorkMode, kDoors, kBareIfOne),
    Both("AccessControlTextDisplay", kAccessTextDisplay, kParse, kPack),

    // Video talk
    Both("Building", kBuilding, kParse, kPack),
    Both("BuildingExternal", kBuildingExternal, kParse, kPack),
    Both("DialRule", kDialRule, kParse, kPack),
    Both("VTNoAnswerForward", kNoAnswerForward, kParse, kPack),
    Both("VTOCall", kVtoCall, kParse, kPack),
    Both("VTSCallInfo", kVtsCall, kParse, kPack),
    Both("DevList", kDevList, kParse.Takes(Take::List).Clears(Clearing::Kept).Accepts(HasRoomForDevices), kPack),
    Both("VideoTalkPhoneGeneral", kPhoneGeneral, kParse, kPack),
    Both("VideoTalkPhoneBasic", kPhoneBasic, kParse, kPack),
    Generic("ShortcutCall", kShortcutCall, GenericFrame{.dimension = 1}),

    // Device settings
    Both("Locales", kLocales, kParse, kPack),
    Both("Language", kLanguage, kParse.Takes(Take::Text), kPack),
    Both("AppEventLanguage", kAppEventLanguage, kParse, kPack),
    Both("AutoMaintain", kAutoMaintain, kParse, kPack),
    Both("ClientCustomData", kClientCustomData, kParse, kPack),
    Both("DeviceKeepAlive", kDeviceKeepAlive, kParse, kPack),
    Both("NTP", kNtp, kParse, kPack),
    Both("Telnet", kTelnet, kParse, kPack),
    Generic("WorkTime", kWorkTime, kOneCleared),
    Generic("LightingSchedule", kLightingSchedule, kManyCleared),
    Generic("VTOBasicInfo", kVtoBasicInfo, kOneOfArrayCleared),
    Both("AccessFilter", kAccessFilter, kParse, kPack),
    Both("NetCollection", kNetCollection, kParse, kLoose),
    Both("RTMP", kRtmp, kOneOrMany, kBareIfOne),
    Both("PhoneEventNotify", kPhoneEventNotify, kParse, kPack),
    Both("CommSubscribe", kCommSubscribe, kList, kPack),
    Both("VSP_GAYS", kVspGays, kParse, kPack),
    Generic("AroudWifiSearch", kAroudWifiSearch, kManyCleared),
    Generic("GPS", kGps, kOneOfArrayCleared),
    Generic("GPSLocationVersion", kGpsLocationVersion, kOneCleared),
    Both("OilMassInfo", kOilMassInfo, kParse, kPack),
    Both("EmergencyRecordForPull", kEmergencyRecordForPull, kParse, kPack),
    Both("RemoteEvent", kRemoteEvent, kParse, kPack),
    Both("AlarmBell", kAlarmBell, kOneOrMany, kBareIfOne),
    Both("AlarmSlotBond", kAlarmSlotBond, kOneOrMany, kBareIfOne.Fits(Capacity::Loose)),
    Both("AudioDetect", kAudioDetect, kOneOrMany, kBareIfOne),
    Both("IOT_InfraredDetect", kIotInfraredDetect, kList, kPack),
    Both("IOT_RecordHandle", kIotRecordHandle, kParse, kPack),
    Both("IOT_SnapHandle", kIotSnapHandle, kParse, kPack),
    Both("AirCondition", kAirCondition, kList, kPack),
    Both("Lighting", kLighting, kOneOrMany, kBareIfOne),
    Both("AudioOutEqualizer", kAudioOutEqualizer, kList, kPack),
    Both("AudioOutSuppression", kAudioOutSuppression, kList, kPack),
    Both("AudioInControl", kAudioInControl, kList, kPack),
    Reply("DeviceStatus", kDeviceStatus, kUntested.From(Source::Params, "DeviceStatus")),
    Reply("trafficSnap.getDeviceStatus", kTrafficSnapDeviceStatus, kList.From(Source::Params, "status")),
    Reply("videoStatServer.getSummary", kVideoStatSummary, kParse.From(Source::Params, "summary")),

    // Services
    Reply("system.listService", kServiceList, kParse.From(Source::Params, "service").Null(NullValue::OneRecord)),
    Reply("netApp.getCaps", kNetAppCaps, kCaps.Null(NullValue::LengthZero).ZeroesLength()),
    Reply("eventManager.getCaps", kEventManagerCaps, kCaps.Null(NullValue::OneRecord)),
    Reply("capsManager.get&EventManagerEventHandler", kEventHandlerCaps, kCaps.Null(NullValue::OneRecord)),
    Reply("RecordFinder.getCaps", kRecordFinderCaps, kCaps.Null(NullValue::OneRecord)),
    Reply("magicBox.getDeviceClass", kDeviceClass, kParse.From(Source::Params, "type").Null(NullValue::OneRecord)),
    Reply("userManager.getActiveUserInfoAll", kActiveUserInfoAll,
          kUntested.From(Source::Params, "users").Null(NullValue::OneRecord)),

    // Remote devices
    Both("RemoteChannel", kRemoteChannel,
         kOneOrMany.Null(NullValue::LengthZero).Strides(Stride::SizeWordByField).ReadsNulls(),
         kBareIfOne.Strides(Stride::SizeWordByField)),
    Both("RemoteDevice", kRemoteDevice,
         kParse.Takes(Take::ByMember)
             .Null(NullValue::LengthZero)
             .Strides(Stride::SizeWordByField)
             .Length(ReplyLength::PerRecord),
         kPack.As(Form::ByMember).Strides(Stride::SizeWordByField)),

    // Encoding
    Both("Encode", kEncode,
         kParse.TakesBeside(EncodeTakes)
             .Null(NullValue::LengthZero)
             .Clears(Clearing::Kept)
             .ReadsNulls()
             .Length(ReplyLength::PerRecord),
         kLoose.As(Form::BareIfExact)),
    Both("EncodePlan", kEncodePlan,
         kUntested.Takes(Take::ManyOrNone).Null(NullValue::LengthZero).Length(ReplyLength::PerRecord),
         kLoose.As(Form::Array)),
    Both("EncodeAdapt", kEncodeAdapt, kParse.Takes(Take::OneOrMany).Length(ReplyLength::PerRecord),
         kPack.As(Form::BareIfExact)),
    Both("SmartEncode", kSmartEncode,
         kParse.Takes(Take::AnyOrMany).Null(NullValue::LengthZero).Length(ReplyLength::PerRecord),
         kLoose.As(Form::BareIfExact)),
    Both("EncodeEncrypt", kEncodeEncrypt, kUntested.Takes(Take::ListOrNone).Clears(Clearing::Kept).RootKeysFirst(),
         kLoose),
    Both("NvrEncrypt", kNvrEncrypt,
         kParse.Takes(Take::ListOrLists)
             .Null(NullValue::LengthUntouched)
             .Clears(Clearing::Read)
             .RootKeysFirst()
             .ReadsNulls()
             .AllMustFit()
             .Length(ReplyLength::OneOfList),
         kPack.FormBy(NvrEncryptForm).Fits(Capacity::Raw)),
    Both("CompressPlay", kCompressPlay, kParse.Takes(Take::OneOrMany).Length(ReplyLength::PerRecord),
         kPack.As(Form::BareIfExact)),
    Both("StroboscopicLamp", kStroboscopicLamp,
         kParse.Null(NullValue::LengthUntouched).LengthBy(StroboscopicLampLength), kPack.Fits(Capacity::Raw)),

    // Overlays and snapshots
    Own("PicInPic", kPicInPic, ParsePicInPic, PackPicInPic),
    Reply("SnapInfo", kSnapInfo, kParse.From(Source::Top, "SnapInfo").Result(ResultTest::FalseRefuses)),
    Both("WaterMark", kWaterMark, kParse.From(Source::Top, "WaterMark").Result(ResultTest::FalseRefuses),
         kLoose.Under("\"WaterMark\" : ")),
    Both("VideoEncodeROI", kVideoEncodeRoi, kUntested, kLoose),

    // Encoder capabilities
    Reply("encode.getCaps", kEncodeCaps, kCaps.Result(ResultTest::NotTested).Null(NullValue::OneRecord)),
    Reply("encode.getNAACaps", kEncodeNaaCaps, kCaps.Null(NullValue::OneRecord)),
    Reply("encode.getCropCaps", kEncodeCropCaps, kCaps.Result(ResultTest::ExactBool).Null(NullValue::OneRecord)),
    Reply("OSDManager.getCaps", kOsdCaps, kCaps.Null(NullValue::OneRecord)),
    Reply("OSDManager.getCustomCaps", kOsdCustomCaps, kCaps.Null(NullValue::OneRecord)),
    Both("DspEncodeCap", kDspEncodeCap,
         kParse.From(Source::Top, "DspEncodeCap")
             .Result(ResultTest::NotTested)
             .Null(NullValue::OneRecord)
             .Fills(offsetof(CFG_DSP_ENCODE_CAP, byImageSizeAssi), sizeof(CFG_DSP_ENCODE_CAP::byImageSizeAssi)),
         kPack.Under("\"DspEncodeCap\" : ")),

    // Video input
    Both("VideoInOptions", kVideoInOptions,
         kUntested.Takes(Take::AnyOrMany)
             .Null(NullValue::LengthUntouched)
             .TakesNoJson()
             .TakesEmptyLists()
             .Length(ReplyLength::PerRecord),
         kRaw.As(Form::BareIfExact)),
    Both("VideoInExposure", kVideoInExposure,
         kUntested.Null(NullValue::OneRecord).Clears(Clearing::Kept).Accepts(HasExposureRoom),
         kRaw.Accepts(HasExposureItems)),
    Both("VideoInBacklight", kVideoInBacklight, kListOrLists, kRaw.As(Form::BareIfOne)),
    Both("VideoInDefog", kVideoInDefog, kListOrLists.AllMustFit(), kRaw.As(Form::BareIfOne)),
    Both("VideoInMetering", kVideoInMetering, kUntested.Null(NullValue::OneRecord), kRaw),
    Generic("VideoInDayNight", kVideoInDayNight, {.arrayForm = true, .dimension = 1, .zeroBuffer = true}),
    Both("FishEye", kFishEye, kUntested.Takes(Take::AnyOrMany).Null(NullValue::OneRecord), kRaw.As(Form::BareIfOne)),
    Reply("devVideoInput.getCaps", kVideoInCaps, kCaps.Result(ResultTest::FalseRefuses).Null(NullValue::OneRecord)),
    Reply("devVideoInput.getCapsEx", kVideoInCapsEx, kCaps.Null(NullValue::OneRecord)),
    Reply("devVideoInput.getFocusStatus", kFocusStatus, kParse.From(Source::Params, "status")),

    // Pan, tilt, zoom
    Both("Ptz", kPtz, kParse.Result(ResultTest::FalseRefuses), kLoose),
    Both("Comm", kComm, kParse.Takes(Take::List), kPack),
    Both("PtzPreset", kPtzPreset,
         kParse.Takes(Take::List)
             .Null(NullValue::LengthUntouched)
             .Clears(Clearing::Kept)
             .Length(ReplyLength::None)
             .Accepts(HasPresetArray),
         kPack.FormBy(PtzPresetForm).Fits(Capacity::OneBefore).Accepts(FitsPresets)),
    Both("PtzTour", kPtzTour, kParse.Null(NullValue::OneRecord), kPack),
    Both("PtzAutoMovement", kPtzAutoMovement,
         kParse.Result(ResultTest::FalseRefuses)
             .Takes(Take::List)
             .Clears(Clearing::Kept)
             .Length(ReplyLength::None)
             .Accepts(HasMovementArray),
         kLoose.Accepts(HasMovements)),
    Both("SplitTour", kSplitTour, kUntested.From(Source::Top, "SplitTour").Null(NullValue::OneRecord),
         kLoose.Under("\"SplitTour\" : ")),
    Both("SpotMatrix", kSpotMatrix, kUntested.From(Source::Top, "SpotMatrix").Null(NullValue::OneRecord),
         kLoose.Under("\"SpotMatrix\" : ")),
    Both("VideoInZoom", kVideoInZoom, kLens, kPack.Fits(Capacity::OneBefore).Accepts(FitsZoomItems)),
    Both("VideoInFocus", kVideoInFocus, kLens, kPack.Fits(Capacity::OneBefore).Accepts(FitsFocusItems)),
    Both("CANFilter", kCanFilter,
         kParse.Takes(Take::List).Null(NullValue::LengthZero).Clears(Clearing::Kept).LengthBy(CanFilterLength), kPack),
    Both("IdleMotion", kIdleMotion, kOneOrManyOrNone, kPack.As(Form::BareIfExact)),
    Both("StandingTime", kStandingTime, kOneOrManyOrNone, kPack.As(Form::BareIfExact)),
    Both("EnclosureTimeSchedule", kEnclosureSchedule, kOneOrManyOrNone, kPack.As(Form::BareIfExact)),
    Both("InfraredBoardTemplate", kInfraredBoardTemplate, kParse.Null(NullValue::OneRecord), kPack),
    Both("InfraredBoard", kInfraredBoard, kParse.Null(NullValue::OneRecord), kPack),
    Reply("ptz.getCurrentProtocolCaps", kPtzCaps, kCaps.Null(NullValue::OneRecord)),
    Reply("ptz.getProtocol", kPtzProtocols,
          kParse.From(Source::Params, "info").Result(ResultTest::ExactBool).Null(NullValue::OneRecord)),
    Reply("ptz.factory.instance", kPtzInstance, kUntested.From(Source::Result).Null(NullValue::OneRecord)),

    // Master and slave trackers
    Both("MasterSlaveTrackerGlobal", kMasterSlaveTracker, kParse, kLoose),
    Both("CalibrateMatrix", kCalibrateMatrix, kParse.Takes(Take::List).Clears(Clearing::Kept).Accepts(HasMatrixRoom),
         kPack),
    Reply("capsManager.get&MasterSlaveTracker", kMasterSlaveCaps,
          kCaps.Result(ResultTest::FalseRefuses).Null(NullValue::OneRecord)),
    Reply("masterSlaveTracker.factory.getCollect", kMasterSlaveCollect,
          kParse.From(Source::Params, "channels").Null(NullValue::OneRecord)),
    Generic("MasterSlaveGroup", kMasterSlaveGroup, {.arrayForm = true, .zeroBuffer = true, .alwaysArray = true}),
    Generic("MasterSlaveGlobal", kMasterSlaveConfig, {.arrayForm = true, .zeroBuffer = true}),

    // Display and matrix
    Both("ChannelTitle", kChannelTitle, kVersioned, kVersionedBareIfOne),
    Both("VideoOut", kVideoOut, kVersioned, kVersionedBareIfOne),
    Both("VideoColor", kVideoColor, kVersioned, kVersionedBareIfOne),
    Both("VideoWidget", kVideoWidget, kVersioned, kVersionedBareIfOne),
    Both("VideoOutputComposite", kVideoOutputComposite, kVersioned, kVersionedBareIfOne),
    Both("MonitorWall", kMonitorWall, kVersioned, kVersionedBareIfOne),
    Both("MonitorTour", kMonitorTourOfWall, kVersioned, kVersionedBareIfOne),
    Both("MonitorCollection", kSplitSource, kVersioned, kVersionedBareIfOne),
    Both("DisplaySource", kSplitSource, kVersioned, kVersionedBareIfOne),
    Both("RecordSource", kSplitSource, kVersioned, kVersionedBareIfOne),
    Both("MonitorWallCollection", kMonitorWallCollection, kOneOrManyOrNone, kBareIfOne),
    Both("MonitorWallCollectionTour", kMonitorCollectionTour, kOneOrManyOrNone, kBareIfOne),
    Both("VideoOutputTitle", kVideoOutputTitle, kOneOrManyOrNone, kBareIfOne),
    Both("VideoIn", kVideoIn, kOneOrManyOrNone, kBareIfOne),
    Both("VideoInBoundary", kVideoInBoundary, kOneOrManyOrNone, kBareIfOne),
    Both("Snap", kSnapSchedule, kOneOrManyOrNone, kBareIfOne),
    Both("MovedDetect", kMovedDetect, kOneOrManyOrNone, kBareIfOne),
    Both("AnalogMatrix", kAnalogMatrix, kOneOrManyOrNone, kBareIfOne),
    Both("AnalogMatrixProtocol", kAnalogMatrixProtocol, kOneOrManyOrNone, kBareIfOne),
    Both("Floodlight", kSiteSwitch, kOneOrManyOrNone, kBareIfOne),
    Both("AirFan", kSiteSwitch, kOneOrManyOrNone, kBareIfOne),
    Both("LightGlobal", kEnable, kOneOrManyOrNone, kBareIfOne),
    Both("VTOInfo", kVto, kOneOrManyOrNone, kBareIfOne),
    Logged(Both("RecordBackupRestore", kRecordBackupRestore, kOneOrManyOrNone, kBareIfOne), nullptr, LogBackupPack),
    Logged(Both("RecordDownloadSpeed", kRecordDownloadSpeed, kParse.Clears(Clearing::Kept), kPack), LogSpeedParse,
           nullptr),

    // Audio
    Both("AudioSpirit", kAudioSpirit, kParse, kPack),
    Both("AudioMatrixConfig", kAudioMatrices, kList, kPack),
    Both("AudioMatrixSilence", kAudioMatrices, kList, kPack),
    Both("LowerMatrix", kLowerMatrices, kList, kPack),
    Both("ComposeChannel", kComposeChannel, kParse, kPack),
    Both("ComposeLinkage", kComposeChannel, kParse, kPack),
    Both("AudioOutputVolume", kAudioVolume, kParse, kPack),
    Both("AudioInputVolume", kAudioVolume, kParse, kPack),
    Both("AudioMixVolume", kAudioVolume, kParse, kPack),
    Both("AudioInput", kAudioInput, kParse, kPack),
    Generic("AudioMixChannel", kAudioMixChannel, kOneCleared),
    Generic("AudioTouch", kAudioTouch, kOneCleared),
    Reply("speak.getCaps", kSpeakCaps, kParse.From(Source::CapsOrParams).Result(ResultTest::FalseRefuses)),

    // Network
    Both("Network", kNetwork, kParse.Null(NullValue::OneRecord).AnySize().NeedsText(), kPack),
    Both("RTSP", kRtsp, kUntested, kLoose),
    OwnParse("Multicast", kMulticast, ParseMulticast, kUntested.Clears(Clearing::Kept), kLoose),
    Both("DVRIP", kDvrip, kParse, kPack),
    Both("Mobile", kMobile, kParse, kPack),
    Both("Email", kEmail, kParse, kPack),
    Both("STP", kStp, kParse, kPack),
    Both("AIOAppConfig", kAioApp, kParse, kPack),
    Reply("LowRateWPAN.getCaps", kLowRateWpanCaps, kCaps),
    Generic("WLan", kWlan, kOneCleared),
    Generic("Https", kHttps, kOneCleared),

    // Recording
    Both("Record", kRecordPlan,
         kParse.Takes(Take::Many)
             .TakesBeside(RecordTakes)
             .Null(NullValue::LengthZero)
             .ReadsNulls()
             .Length(ReplyLength::PerRecord),
         kBareIfOne),
    Both("RecordMode", kRecordMode, kOneOrMany.Strides(Stride::SizeWord).ReadsNulls(),
         kBareIfOne.Strides(Stride::SizeWord)),
    Both("HolidaySchedule", kHolidayPlan, kOneOrMany.From(Source::Top, "HolidaySchedule").Result(ResultTest::NotTested),
         kBareIfOne.Under("\"HolidaySchedule\" : ")),
    Or(kRecordStoragePointChannels,
       Own("RecordStoragePoint", kRecordStoragePoint, ParseRecordStoragePoint, PackRecordStoragePoint)),
    Reply("DevRecordGroup", kDevRecordGroup, kUntested.From(Source::Top, "DevRecordGroup")),
    Reply("VideoInDevGroup", kVideoInDevGroup, kUntested.From(Source::Top, "VideoInDevGroup")),
    Reply("IpsServer", kIpsServer, kUntested.From(Source::Top, "IpsServer")),
    Both("Judicature", kJudicature, kUntested, kPack),
    Reply("recordManager.getCaps", kRecordCaps, kCaps),

    // Storage
    Both("RaidGroup", kRaidGroup, kUntested.From(Source::Top, "RaidGroup").Null(NullValue::OneRecord),
         kLoose.Under("\"RaidGroup\" : ")),
    Reply("StoragePoolGroup", kStoragePoolGroup,
          kUntested.From(Source::Top, "StoragePoolGroup").Null(NullValue::OneRecord)),
    Reply("StoragePositionGroup", kStoragePositionGroup,
          kUntested.From(Source::Top, "StoragePositionGroup").Null(NullValue::OneRecord)),
    Both("HardDiskTank", kHardDiskTank, kUntested.From(Source::Top, "HardDiskTank"),
         kLoose.Under("\"HardDiskTank\" : ")),
    Logged(Both("Raid", kRaids,
                kParse.Takes(Take::ByMemberOrNone)
                    .Null(NullValue::LengthZero)
                    .Strides(Stride::SizeWord)
                    .Length(ReplyLength::PerRecord),
                kPack.As(Form::ByMember).Strides(Stride::SizeWord)),
           nullptr, LogRaidPack),
    Both("StorageGroup", kStorageGroup,
         kParse.Takes(Take::ManyOrNone)
             .Null(NullValue::LengthZero)
             .Strides(Stride::SizeWord)
             .ReadsNulls()
             .Length(ReplyLength::PerRecord),
         kPack.As(Form::Array).Strides(Stride::SizeWord)),
    Both("StorageDevGroup", kStorageDevGroup, kOneOrMany, kBareIfOne),
    Both("RecordToGroup", kRecordToGroup, kOneOrMany, kBareIfOne),
    Both("MetaDataServer", kMetaDataServer, kOneOrMany.Result(ResultTest::NotTested), kBareIfOne.Fits(Capacity::Loose)),
    Both("RemoteStorageLimit", kRemoteStorageLimit, kOneOrMany.Result(ResultTest::NotTested), kBareIfOne),
    Both("SpecialDirectoryDefine", kSpecialDirectories, kParse, kPack),
    OwnParse("NAS", kNas, ParseNas, kParse.Takes(Take::Many).Length(ReplyLength::PerRecord), kPack.As(Form::Array)),
    Both("BurnRecordFormat", kBurnRecordFormat, kOneOrMany.Result(ResultTest::NotTested), kBareIfOne),
    Both("MultiBurn", kMultiBurn, kOneOrMany.Result(ResultTest::NotTested), kBareIfOne),
    Both("BurnPlan", kBurnPlan, kUntested.Clears(Clearing::Kept).OnceParsed(ClearBurnPlan), kPack),
    Reply("BurnManager.getCaps", kBurnManagerCaps, kCaps),
    Reply("FileManager.getCaps", kFileManagerCaps, kCaps),
    Reply("log.getCaps", kLogCaps, kCaps),

    // Heat imaging and measuring
    Generic("ThermographyOptions", kThermography, kArraysCleared),
    Generic("ThermometryRule", kThermometryRules, kArraysCleared),
    Generic("TemperatureStatistics", kTemperatureStatistics, kArraysCleared),
    Generic("HeatImagingThermometry", kHeatImagingThermometry, kOneCleared),

    // Home automation
    Generic("Light", kLight, kManyAlwaysArray),
    Generic("Curtain", kCurtain, kManyAlwaysArray),
    Generic("FreshAir", kFreshAir, kManyAlwaysArray),
    Generic("GroundHeat", kGroundHeat, kManyAlwaysArray),
    Generic("SceneMode", kSceneMode, kManyCleared),

    // Later settings
    Generic("VTHNumberInfo", kVthNumber, kOneOfArrayCleared),
    Generic("VTOCallInfo", kVtoCalling, kOneCleared),
    Generic("VTHRemoteIPCInfo", kVthRemoteIpc, kOneCleared),
    Generic("CallForward", kCallForward, kManyCleared),
    Generic("DoorBellSound", kDoorBellSound, kManyCleared),
    Generic("PSTNPersonServer", kPstnPersonServer, kOneCleared),
    Generic("PSTNTestPlan", kPstnTestPlan, kOneCleared),
    Generic("ArmLink", kArmLink, kOneCleared),
    Generic("DefenceArmMode", kDefenceArmMode, kOneCleared),
    Generic("SensorMode", kSensorMode, kOneCleared),
    Generic("AlarmLamp", kAlarmLamp, kOneCleared),
    Generic("SecurityAlarmsPrivacy", kSecurityAlarmsPrivacy, kOneCleared),
    Generic("VideoMosaic", kVideoMosaic, kManyCleared),
    Generic("TrafficSnapMosaic", kTrafficSnapMosaic, kManyCleared),
    Generic("PrivacyMasking", kPrivacyMasking, kArraysCleared),
    Generic("OSDSysAbnormal", kOsdSysAbnormal, kManyKept),
    Generic("VideoWidget2", kVideoWidget2, kManyCleared),
    Generic("VideoWidgetNumberStat", kVideoWidgetNumberStat, kManyCleared),
    Generic("AtmosphereOSD", kAtmosphereOsd, kManyCleared),
    Generic("LaserDistMeasure", kLaserDistMeasure, kManyCleared),
    Generic("Lighting_V2", kLightingV2, kManyCleared),
    Generic("NetAutoAdaptEncode", kNetAutoAdaptEncode, kManyCleared),
    Generic("FreeCombination", kFreeCombination, kManyKept),
    Generic("TSPoint", kTsPoint, kOneOfArrayCleared),
    Generic("PowerUp", kPowerUp, kManyCleared),
    Generic("PtzDevice", kPtzDevice, kManyCleared),
    Generic("SceneSnapShotWithRule", kSceneSnapShot, kOneOfArrayCleared),
    Generic("Vehicle", kVehiclePlate, kManyCleared),
    Generic("IdlingTime", kIdlingTime, kManyCleared),
    Generic("CarDiverState", kCarDriverState, kManyCleared),
    Generic("TesseraRadar", kTesseraRadar, kManyCleared),
    Generic("RadarSpeedMeasure", kRadarSpeedMeasure, kOneCleared),
    Generic("CustomAudio", kCustomAudio, GenericFrame{}),
    Generic("PoliceMap", kPoliceMap, kOneCleared),
    Generic("DevLocation", kDevLocation, kManyCleared),
    GenericReply("DeviceInfo", kDeviceIdentity, kManyCleared),
    Generic("CheckCode", kCheckCode, kOneCleared),
    Generic("VSP_SCYDKD", kVspScydkd, kOneCleared),
    Generic("PlatformMonitorIPC", kPlatformMonitorIpc, kManyCleared),
    Generic("DelayStrategy", kDelayStrategy, kManyCleared),
    Generic("DropBoxToken", kDropBoxToken, kManyCleared),

    // Parking and lane screens
    Both("WorkState", kWorkState, kParse.Takes(Take::OneOrMany).Length(ReplyLength::PerFilled).ZeroesLength(),
         kPack.As(Form::BareIfOne)),
    Both("ParkingSpaceScreen", kParkingScreen,
         kParse.Takes(Take::AnyOrMany).Length(ReplyLength::PerRecord).TakesEmptyLists(), kPack.As(Form::BareIfOne)),
    Both("ParkingSpaceCellStatus", kParkingCellStatus,
         kParse.Takes(Take::AnyOrMany).Length(ReplyLength::PerRecord).TakesEmptyLists(), kPack.As(Form::BareIfOne)),
    Both("LanesStateReport", kLanesStateReport, kParse, kPack),
    Both("RainBrushMode", kRainBrushMode, kParse, kPack),
    Both("TrafficStrobe", kTrafficStrobe, kParse, kPack),
    Both("TrafficVoiceBroadcast", kTrafficVoice, kParse, kPack),
    Both("AutoStartupDelay", kAutoStartupDelay, kParse, kPack.Fits(Capacity::Raw)),
    Both("ECKConfig", kEck, kParse, kLoose),
    Both("GuideScreen", kGuideScreen, kParse, kLoose),
    Generic("ParkingSpaceAccessFilter", kParkingFilter, kOneCleared),
    Generic("ParkingSpaceLightGroup", kParkingLightGroup, kOneOfArrayCleared),
    Generic("ParkSpaceOutLight", kParkOutLight, kOneCleared),

    // Scenes
    Both("VideoAnalyseGlobal", kAnalyseGlobal,
         kParse.Result(ResultTest::FalseRefuses).Null(NullValue::OneRecord).Clears(Clearing::Kept), kLoose),
    Both("VideoAnalyseCalibrate", kAnalyseCalibrate,
         kUntested.Takes(Take::List).Clears(Clearing::Kept).Accepts(HasCalibrateRoom),
         kPack.Accepts(HasCalibrateScenes)),

    // Analysis modules
    Both("VideoAnalyseModule", kAnalyseModules, kList.Result(ResultTest::FalseRefuses), kPack.Accepts(AreModulesFew)),
    Both("VideoAnalyseSource", kAnalyseSource, kUntested.Clears(Clearing::Kept).OnceParsed(ClearAnalyseSource), kLoose),
    Both("VideoAnalyseWhole", kAnalyseWhole, kParse, kLoose),
    Both("SnapSource", kSnapSource, kUntested.Null(NullValue::OneRecord), kLoose.Accepts(AreSnapSourcesFew)),
    Both("General", kGeneral, kUntested, kLoose),
    Both("RainBrush", kRainBrush, kUntested, kLoose),
    Both("IntelliTrackScene", kIntelliTrackScene, kUntested, kLoose),

    // Traffic
    Both("TrafficGlobal", kTrafficGlobal,
         kUntested.TakesBy(TrafficGlobalTakes).Clears(Clearing::Kept).OnceParsed(ClearTrafficGlobal), kLoose),
    Both("TrafficSnapshot", kTrafficSnapshot,
         kUntested.TakesBy(TrafficSnapshotTakes).Clears(Clearing::Kept).OnceParsed(ClearTrafficSnapshot), kLoose),
    Or(kSnapshotDescriptor, Own("TrafficSnapshotNew", kTrafficSnapshotNew, ParseTrafficSnapshotNew,
                                PackTrafficSnapshotNew, kUntested.Takes(Take::List).Clears(Clearing::Kept))),
    Both("TrafficFlowStat", kTrafficFlowStat, kUntested.Clears(Clearing::Kept).OnceParsed(ClearTrafficFlowStat),
         kLoose),
    Both("TrafficTransferOffline", kTransferOffline, kUntested, kLoose),
    Both("ParkingSpaceLightState", kParkingSpaceLight, kUntested, kLoose),

    // Analysis capabilities
    Logged(Reply("devVideoAnalyse.getCaps", kAnalyseCaps, kCaps.Null(NullValue::OneRecord)), LogAnalyseCaps, nullptr),
    Logged(Reply("devVideoAnalyse.getCapsEx", kAnalyseCapsEx, kCaps.Null(NullValue::OneRecord)), LogAnalyseCaps,
           nullptr),
    Reply("devAudioAnalyse.getCaps", kAudioAnalyseCaps,
          kCaps.Result(ResultTest::FalseRefuses).Null(NullValue::OneRecord)),
    Reply("intelli.getCaps.AnalyseMode", kAnalyseMode, kCaps.Null(NullValue::OneRecord)),
    Reply("intelli.getVideoAnalyseDeviceChannels", kAnalyseChannels, kChannelCount),
    Reply("devVideoAnalyse.factory.getCollect", kAnalyseChannels, kChannelCount),
    Reply("netApp.getRemoteDeviceStatus", kRemoteDeviceStatus,
          kParse.From(Source::Params, "status").Null(NullValue::OneRecord)),

    // Grouped rules
    Both("VideoInAnalyseRule", kRuleGroups,
         kUntested.Takes(Take::List).Null(NullValue::LengthZero).Clears(Clearing::Kept).OnceParsed(ClearRuleGroups),
         kLoose),

    // Video diagnosis
    Both("VideoDiagnosisProfile", kDiagnosisProfiles, kDiagnosisList.Accepts(HasDiagnosisEntries),
         kDiagnosisText.Accepts(HasDiagnosisEntries)),
    Both("VideoDiagnosisTask", kDiagnosisTasks, kDiagnosisList.Accepts(HasDiagnosisSources),
         kDiagnosisText.Accepts(HasDiagnosisEntries)),
    Both("VideoDiagnosisTask.x", kDiagnosisTask, kDiagnosisList.Accepts(HasDiagnosisSources),
         kDiagnosisText.Accepts(HasOneDiagnosisTask)),
    Both("VideoDiagnosisProject", kDiagnosisProjects, kDiagnosisList.Accepts(HasDiagnosisEntries),
         kDiagnosisText.Accepts(HasDiagnosisEntries)),
    Text("VideoDiagnosisRealProject", kDiagnosisRealProjects, kDiagnosisText.Accepts(HasDiagnosisEntries)),
    Both("VideoDiagnosisGlobal", kDiagnosisGlobal,
         kList.Clears(Clearing::Kept).ExactSize().Accepts(HasDiagnosisEntries),
         kDiagnosisText.Accepts(HasDiagnosisEntries)),
    Both("videoDiagnosisServer.getCaps", kDiagnosisCaps,
         kParse.From(Source::CapsOrParams).Result(ResultTest::TextTrue).ExactSize(), kDiagnosisText),
    Reply("videoDiagnosisServer.getState", kDiagnosisState,
          kParse.From(Source::Params, "state").Takes(Take::OneOrMany)),
    Reply("videoDiagnosisServer.factory.getCollect", kAnalyseChannels, kChannelCount.ExactSize()),

    // Analysis rules
    Own("VideoAnalyseRule", kAnalyseRules, ParseAnalyseRules, PackAnalyseRules),
    Own("AudioAnalyseRule", kAnalyseRules, ParseAnalyseRules, PackAnalyseRules),
    Own("IVSFramRule", kAnalyseRules, ParseFrameRules, nullptr, kParse.From(Source::Top, "VideoAnalyseRule")),
};

constexpr CommandIndex kIndex(kCommands);

} // namespace

std::span<const Command> Commands() noexcept {
    return kCommands;
}

const Command* FindCommand(std::string_view name) noexcept {
    return kIndex.Find(name);
}

} // namespace orrery
