#include "Commands.h"

#include "CommandWords.h"
#include "alarm/AlarmCaps.h"
#include "alarm/AlarmInput.h"
#include "analyse/RuleFrame.h"
#include "device/GeneralSwitch.h"
#include "frame/CommandIndex.h"
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

    // Home automation

    // Later settings

    // Parking and lane screens

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
