#include "Commands.h"

#include "CommandWords.h"
#include "alarm/AlarmCaps.h"
#include "alarm/AlarmInput.h"
#include "analyse/RuleFrame.h"
#include "device/GeneralSwitch.h"
#include "frame/CommandIndex.h"
#include "frame/GeneralSwitch.h"
#include "frame/JsonParser.h"
#include "frame/NameHash.h"
#include "later/Parking.h"
#include "later/Thermography.h"
#include "media/Encode.h"
#include "media/EncodeEncrypt.h"
#include "media/StroboscopicLamp.h"
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

constexpr ParseFrame kCaps = kParse.From(Source::Caps);
constexpr ParseFrame kCapsTextTrue = kCaps.Result(ResultTest::TextTrue);

constexpr TableFrame kOneCleared{.zeroBuffer = true};
// Depth 1: the record itself is a list, or stands in one.
constexpr TableFrame kOneOfArrayCleared{.dimension = 1, .zeroBuffer = true};
constexpr TableFrame kArraysCleared{.arrayForm = true, .dimension = 1, .zeroBuffer = true};

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

    // Alarm capabilities
    Reply("alarm.getAlarmCaps", kAlarmCaps, kCapsTextTrue),
    Reply("alarm.getExAlarmCaps", kExAlarmCaps, kCapsTextTrue),
    Reply("alarm.getExAlarmBoxCaps", kExAlarmBoxCaps, kCapsTextTrue),
    Reply("AnalogAlarm.getCaps", kAnalogAlarmCaps, kCaps),

    // Access control

    // Video talk

    // Device settings

    // Services

    // Remote devices

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

    // Encoder capabilities

    // Video input

    // Pan, tilt, zoom

    // Master and slave trackers

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
}

} // namespace orrery
