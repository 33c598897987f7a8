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
#include "analyse/RuleFrame.h"
#include "device/GeneralSwitch.h"
#include "frame/CommandIndex.h"
#include "device/DeviceAlarm.h"
#include "device/DeviceNetwork.h"
#include "device/DeviceStatus.h"
#include "device/Equipment.h"
#include "device/Locale.h"
#include "device/RemoteDevice.h"
#include "device/Services.h"
#include "device/Settings.h"
#include "device/Vehicle.h"
#include "frame/GeneralSwitch.h"
#include "frame/JsonParser.h"
#include "frame/NameHash.h"
#include "later/Parking.h"
#include "later/Thermography.h"
#include "later/Home.h"
#include "media/Encode.h"
#include "media/EncodeCaps.h"
#include "media/EncodeEncrypt.h"
#include "media/Ptz.h"
#include "media/PtzCaps.h"
#include "media/PtzLines.h"
#include "media/PtzMovement.h"
#include "media/Overlay.h"
#include "media/StroboscopicLamp.h"
#include "media/Tracker.h"
#include "media/VideoInOptions.h"
#include "media/VideoInput.h"
#include "network/Dvrip.h"
#include "network/Multicast.h"
#include "network/Network.h"
#include "network/Services.h"
#include "network/Wlan.h"

namespace orrery {

namespace {

using namespace words;
// Words of the rows below.
constexpr ParseFrame kParse;
constexpr PackFrame kPack;

constexpr Command Generic(std::string_view name, const record::Table& table, TableFrame frame) {
    Command command;
    command.name = name;
    command.table = &table;
    command.parse = command.pack = Command::Frame::Table;
    command.tableFrame = frame;
    return command;
}

constexpr Command Both(std::string_view name, const record::Table& table, ParseFrame parse, PackFrame pack) {
    Command command;
    command.name = name;
    command.table = &table;
    command.parse = command.pack = Command::Frame::Family;
    command.parseFrame = parse;
    command.packFrame = pack;
    return command;
}

constexpr Command Reply(std::string_view name, const record::Table& table, ParseFrame parse) {
    Command command;
    command.name = name;
    command.table = &table;
    command.parse = Command::Frame::Family;
    command.parseFrame = parse;
    return command;
}

// A parse function of its own; the frame's words tell tools what it does.
constexpr Command OwnParse(std::string_view name, const record::Table& table,
                           Outcome (*parse)(const ParseRequest&) noexcept, ParseFrame like, PackFrame pack) {
    Command command = Both(name, table, like, pack);
    command.parse = Command::Frame::Own;
    command.ownParse = parse;
    return command;
}

// A buffer of items, described by the caller's record: read by a function of its own and, where there is one, written.
// The frame's words tell tools where the items stand.
constexpr Command Own(std::string_view name, const record::Table& table, Outcome (*parse)(const ParseRequest&),
                      Outcome (*pack)(const PackRequest&), ParseFrame like = kParse) {
    Command command;
    command.name = name;
    command.table = &table;
    command.parse = Command::Frame::Own;
    if (pack != nullptr) command.pack = Command::Frame::Own;
    command.parseFrame = like;
    command.ownParse = parse;
    command.ownPack = pack;
    return command;
}

// Alarms of which a refused call's table is read all the same, and whose text may fill the buffer to its last byte.
constexpr ParseFrame kUntested = kParse.Result(ResultTest::NotTested);
constexpr PackFrame kLoose = kPack.Fits(Capacity::Loose);

// Settings of several devices, inputs or outputs: a record each.
constexpr ParseFrame kOneOrMany = kParse.Takes(Take::OneOrMany).Length(ReplyLength::PerRecord);
constexpr PackFrame kBareIfOne = kPack.As(Form::BareIfOne);
// A record that is a list.
constexpr ParseFrame kList = kParse.Takes(Take::List);
// Texts that may fill the buffer without a terminator.
constexpr PackFrame kRaw = kPack.Fits(Capacity::Raw);

// An object or a list of records, which may be empty.
constexpr ParseFrame kOneOrManyOrNone = kParse.Takes(Take::OneOrMany).TakesEmptyLists().Length(ReplyLength::PerRecord);

// Lens drives answer with a number.
constexpr ParseFrame kLens =
    kParse.Result(ResultTest::IntegerNonZero).Takes(Take::List).Null(NullValue::LengthUntouched);

// The items of one record, or of a record a list.
constexpr ParseFrame kListOrLists =
    kParse.Takes(Take::ListOrListsOrBlank).Null(NullValue::LengthUntouched).Length(ReplyLength::OneOfList);

constexpr ParseFrame kCaps = kParse.From(Source::Caps);
constexpr ParseFrame kCapsTextTrue = kCaps.Result(ResultTest::TextTrue);

// A command that tells the log why it failed.
constexpr Command Logged(Command command, void (*parse)(Outcome, const ParseRequest&) noexcept,
                         void (*pack)(Outcome, const PackRequest&) noexcept) {
    command.parseFailed = parse;
    command.packFailed = pack;
    return command;
}
// Doors and their like: one or a list, of which a null element is a record without keys.
constexpr ParseFrame kDoors = kParse.Takes(Take::OneOrMany).ReadsNulls().Length(ReplyLength::PerRecord);
constexpr PackFrame kDoorsBareIfOne = kPack.As(Form::BareIfOne);

constexpr TableFrame kOneCleared{.zeroBuffer = true};
// Depth 1: the record itself is a list, or stands in one.
constexpr TableFrame kOneOfArrayCleared{.dimension = 1, .zeroBuffer = true};
constexpr TableFrame kArraysCleared{.arrayForm = true, .dimension = 1, .zeroBuffer = true};
constexpr TableFrame kScenesCleared{.arrayForm = true, .zeroBuffer = true};
constexpr TableFrame kHomeCleared{.arrayForm = true, .zeroBuffer = true, .alwaysArray = true};
// An array of records, or an object that is one; a record is written bare.
constexpr ParseFrame kRecords = kParse.Takes(Take::OneOrMany).Length(ReplyLength::PerRecord);
constexpr PackFrame kRecordsBareIfOne = kPack.As(Form::BareIfOne);
// One record that is a list.
constexpr ParseFrame kOneList = kParse.Takes(Take::List);

constexpr TableFrame kOneCleared{.zeroBuffer = true};
constexpr TableFrame kManyCleared{.arrayForm = true, .zeroBuffer = true};
constexpr TableFrame kListCleared{.dimension = 1, .zeroBuffer = true};

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
    Both("AccessControl", kAccessControl, kDoors, kDoorsBareIfOne),
    Reply("accessControlManager.getCaps", kAccessCaps, kCaps),
    Both("AccessTimeSchedule", kAccessTimeSchedule, kDoors, kDoorsBareIfOne),
    Both("OpenDoorGroup", kOpenDoorGroup, kParse, kPack),
    Both("OpenDoorRoute", kOpenDoorRoute, kParse, kPack),
    Both("AccessWorkMode", kAccessWorkMode, kDoors, kDoorsBareIfOne),
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
    Generic("ShortcutCall", kShortcutCall, TableFrame{.dimension = 1}),

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
    Generic("VTOBasicInfo", kVtoBasicInfo, kListCleared),
    Both("AccessFilter", kAccessFilter, kParse, kPack),
    Both("NetCollection", kNetCollection, kParse, kLoose),
    Both("RTMP", kRtmp, kRecords, kRecordsBareIfOne),
    Both("PhoneEventNotify", kPhoneEventNotify, kParse, kPack),
    Both("CommSubscribe", kCommSubscribe, kOneList, kPack),
    Both("VSP_GAYS", kVspGays, kParse, kPack),
    Generic("AroudWifiSearch", kAroudWifiSearch, kManyCleared),
    Generic("GPS", kGps, kListCleared),
    Generic("GPSLocationVersion", kGpsLocationVersion, kOneCleared),
    Both("OilMassInfo", kOilMassInfo, kParse, kPack),
    Both("EmergencyRecordForPull", kEmergencyRecordForPull, kParse, kPack),
    Both("RemoteEvent", kRemoteEvent, kParse, kPack),
    Both("AlarmBell", kAlarmBell, kRecords, kRecordsBareIfOne),
    Both("AlarmSlotBond", kAlarmSlotBond, kRecords, kRecordsBareIfOne.Fits(Capacity::Loose)),
    Both("AudioDetect", kAudioDetect, kRecords, kRecordsBareIfOne),
    Both("IOT_InfraredDetect", kIotInfraredDetect, kOneList, kPack),
    Both("IOT_RecordHandle", kIotRecordHandle, kParse, kPack),
    Both("IOT_SnapHandle", kIotSnapHandle, kParse, kPack),
    Both("AirCondition", kAirCondition, kOneList, kPack),
    Both("Lighting", kLighting, kRecords, kRecordsBareIfOne),
    Both("AudioOutEqualizer", kAudioOutEqualizer, kOneList, kPack),
    Both("AudioOutSuppression", kAudioOutSuppression, kOneList, kPack),
    Both("AudioInControl", kAudioInControl, kOneList, kPack),
    Reply("DeviceStatus", kDeviceStatus, kUntested.From(Source::Params, "DeviceStatus")),
    Reply("trafficSnap.getDeviceStatus", kTrafficSnapDeviceStatus, kOneList.From(Source::Params, "status")),
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
         kRecords.Null(NullValue::LengthZero).Strides(Stride::SizeWordByField).ReadsNulls(),
         kRecordsBareIfOne.Strides(Stride::SizeWordByField)),
    Both("RemoteDevice", kRemoteDevice,
         kParse.Takes(Take::ByMember)
             .Null(NullValue::LengthZero)
             .Strides(Stride::SizeWordByField)
             .Length(ReplyLength::PerRecord),
         kPack.As(Form::ByMember).Strides(Stride::SizeWordByField)),

    // Encoding
    Both("Encode", kEncode,
         kParse.TakesBy(EncodeTakes)
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
         kParse.From(Source::Top, "DspEncodeCap").Result(ResultTest::NotTested).Null(NullValue::OneRecord),
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

    // Audio

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

    // Storage

    // Heat imaging and measuring
    Generic("ThermographyOptions", kThermography, kArraysCleared),
    Generic("ThermometryRule", kThermometryRules, kArraysCleared),
    Generic("TemperatureStatistics", kTemperatureStatistics, kArraysCleared),
    Generic("HeatImagingThermometry", kHeatImagingThermometry, kOneCleared),

    // Home automation
    Generic("Light", kLight, kHomeCleared),
    Generic("Curtain", kCurtain, kHomeCleared),
    Generic("FreshAir", kFreshAir, kHomeCleared),
    Generic("GroundHeat", kGroundHeat, kHomeCleared),
    Generic("SceneMode", kSceneMode, kScenesCleared),

    // Later settings

    // Parking and lane screens
    Both("WorkState", kWorkState, kParse.Takes(Take::OneOrMany).Length(ReplyLength::PerFilled).ZeroesLength(),
         kPack.As(Form::BareIfOne)),
    Both("ParkingSpaceScreen", kParkingScreen, kParse.Takes(Take::AnyOrMany).Length(ReplyLength::PerRecord),
         kPack.As(Form::BareIfOne)),
    Both("ParkingSpaceCellStatus", kParkingCellStatus, kParse.Takes(Take::AnyOrMany).Length(ReplyLength::PerRecord),
         kPack.As(Form::BareIfOne)),
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

    // Analysis modules

    // Traffic

    // Analysis capabilities

    // Grouped rules

    // Video diagnosis

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
    for (std::size_t slot = HashNow(name) % kIndex.size(); kIndex[slot] != kFree; slot = (slot + 1) % kIndex.size()) {
        const Command& command = kCommands[kIndex[slot]];
        if (EqualsFolded(command.name, name)) return &command;
    }
    return nullptr;
}

const PackedItems* ItemsBehind(const record::Table& descriptor) noexcept {
    return &descriptor == &kAnalyseRules ? &kRuleItems : nullptr;
}

namespace {

Outcome Parse(const Command& command, const ParseRequest& request) noexcept {
    switch (command.parse) {
    case Command::Frame::None:
        break;
    case Command::Frame::Table:
        return ParseTableFrame(*command.table, command.tableFrame, request);
    case Command::Frame::Family:
        return ParseFamily(*command.table, command.parseFrame, request);
    case Command::Frame::Own:
        return command.ownParse(request);
    }
    return Outcome::UnknownCommand;
}

Outcome Pack(const Command& command, const PackRequest& request) noexcept {
    switch (command.pack) {
    case Command::Frame::None:
        break;
    case Command::Frame::Table:
        return PacketTableFrame(*command.table, command.tableFrame, request);
    case Command::Frame::Family:
        return PacketFamily(*command.table, command.packFrame, request);
    case Command::Frame::Own:
        return command.ownPack(request);
    }
    return Outcome::UnknownCommand;
}

} // namespace

Outcome RunParse(const Command& command, const ParseRequest& request) noexcept {
    if (request.text == nullptr || request.buffer == nullptr || request.bufferSize == 0) return Outcome::BadArguments;
    const Outcome outcome = Parse(command, request);
    if (outcome != Outcome::Done && command.parseFailed != nullptr) command.parseFailed(outcome, request);
    return outcome;
}

Outcome RunPack(const Command& command, const PackRequest& request) noexcept {
    if (request.record == nullptr || request.textBuffer == nullptr) return Outcome::BadArguments;
    const Outcome outcome = Pack(command, request);
    if (outcome != Outcome::Done && command.packFailed != nullptr) command.packFailed(outcome, request);
    return outcome;
}

} // namespace orrery
