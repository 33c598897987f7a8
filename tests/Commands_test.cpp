// Which words of the frames a command has, by its name: what the sweeps over the command map take from its rows is
// told here once more, from the commands' side.
#include "Commands.h"
#include "support/CommandCalls.h"
#include "support/CommandNames.h"
#include "support/Specimens.h"
#include "support/TableText.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>

namespace orrery {
namespace {

using namespace test;

// Commands whose reply is read though the device refused the call.
const Names kReadWhenRefused =
    NamesIn("NetAlarm LossDetect BlindDetect StorageNotExist StorageFailure NetAbort IPConflict MacConflict "
            "PSTNBreakLine StorageLowSpace FetchMoneyOverTime FlashLight ExAlarm UserLockAlarm ParkingCard "
            "RCEmergencyCall DefenceAreaDelay AlarmShieldRule UnFocusDetect HighSpeed LowSpeed Oil4GFlow "
            "VideoWidget4GFlow NetMonitorAbort Alarm VideoInOptions VideoInExposure VideoInMetering FishEye "
            "SplitTour SpotMatrix userManager.getActiveUserInfoAll DeviceStatus encode.getCaps DspEncodeCap "
            "VideoEncodeROI EncodePlan EncodeEncrypt Multicast RTSP VideoInDevGroup DevRecordGroup Judicature "
            "HolidaySchedule IpsServer RaidGroup StoragePoolGroup StoragePositionGroup BurnRecordFormat "
            "MultiBurn RemoteStorageLimit BurnPlan HardDiskTank RecordStoragePoint VideoAnalyseRule "
            "AudioAnalyseRule IVSFramRule VideoAnalyseSource RainBrush SnapSource TrafficSnapshot "
            "TrafficGlobal General TrafficFlowStat IntelliTrackScene MetaDataServer VideoAnalyseCalibrate "
            "TrafficTransferOffline TrafficSnapshotNew ParkingSpaceLightState VideoInAnalyseRule "
            "intelli.getVideoAnalyseDeviceChannels devVideoAnalyse.factory.getCollect "
            "videoDiagnosisServer.factory.getCollect ptz.factory.instance");

// Commands whose text may be as long as its buffer: of some the last character gives way to the terminator, of others
// the terminator is left out.
const Names kLosesItsNewline =
    NamesIn("Encode Alarm NetAlarm LossDetect BlindDetect StorageNotExist StorageFailure NetAbort IPConflict "
            "MacConflict PSTNBreakLine ParkingCard StorageLowSpace Ptz PtzAutoMovement WaterMark "
            "VideoAnalyseRule AudioAnalyseRule VideoAnalyseSource RainBrush TrafficSnapshot TrafficGlobal "
            "General FetchMoneyOverTime SnapSource SplitTour SpotMatrix VideoEncodeROI TrafficFlowStat "
            "HardDiskTank RaidGroup RTSP Multicast RecordStoragePoint IntelliTrackScene MetaDataServer "
            "FlashLight EncodePlan MasterSlaveTrackerGlobal VideoAnalyseWhole BurnFull PowerFault "
            "ChassisIntrusion Emergency BatteryLowPowerAlarm SnapLinkage TrafficTransferOffline "
            "ParkingSpaceLightState NetCollection AlarmSlotBond ECKConfig RCEmergencyCall GuideScreen "
            "DefenceAreaDelay AlarmShieldRule VideoInAnalyseRule UnFocusDetect SmartEncode HighSpeed LowSpeed "
            "Oil4GFlow VideoWidget4GFlow UserLockAlarm GpsNotAligned WireLessNotConnected NetMonitorAbort "
            "LoginFailureAlarm MCSGeneralCapacityLow MCSDataNodeOffline MCSDiskOffline MCSDiskSlow "
            "MCSDiskBroken MCSDiskUnknowError MCSMetadataServerAbnormal MCSCatalogServerAbnormal "
            "MCSGeneralCapacityResume MCSDataNodeOnline MCSDiskOnline MCSMetadataSlaveOnline "
            "MCSCatalogServerOnline EncodeEncrypt VideoAnalyseGlobal");
const Names kLosesItsTerminator =
    NamesIn("VideoInMetering VideoInOptions AutoStartupDelay VideoInExposure FishEye VideoInDefog "
            "NvrEncrypt StroboscopicLamp VideoInBacklight");
// Commands that write nothing behind their text.
const Names kEndsWithItsText =
    NamesIn("VideoDiagnosisProfile VideoDiagnosisTask VideoDiagnosisTask.x VideoDiagnosisProject "
            "VideoDiagnosisRealProject VideoDiagnosisGlobal videoDiagnosisServer.getCaps");
// Commands whose text must leave a byte more than its terminator.
const Names kLeavesAByte = {"PtzPreset", "VideoInZoom", "VideoInFocus"};

// Commands that a missing value is no failure to: with a length of 0, with the length as it was, and with what an empty
// object gives. So is one to all of the generic frame.
const Names kNoneIsNoLength =
    NamesIn("Encode EncodePlan SmartEncode CANFilter VideoOut VideoColor ChannelTitle VideoWidget MonitorWall "
            "VideoOutputComposite DisplaySource RecordSource MonitorCollection MonitorTour Record Raid StorageGroup "
            "RemoteChannel RemoteDevice netApp.getCaps VideoInAnalyseRule");
const Names kNoneLeavesTheLength = NamesIn(
    "NvrEncrypt StroboscopicLamp VideoInOptions VideoInBacklight VideoInDefog VideoInZoom VideoInFocus PtzPreset");
const Names kNoneIsEmpty =
    NamesIn("MotionDetect Network encode.getCaps encode.getNAACaps encode.getCropCaps OSDManager.getCaps "
            "OSDManager.getCustomCaps DspEncodeCap VideoInExposure VideoInMetering FishEye devVideoInput.getCaps "
            "devVideoInput.getCapsEx PtzTour SplitTour SpotMatrix InfraredBoardTemplate InfraredBoard "
            "ptz.getCurrentProtocolCaps ptz.getProtocol ptz.factory.instance capsManager.get&MasterSlaveTracker "
            "masterSlaveTracker.factory.getCollect RaidGroup StoragePoolGroup StoragePositionGroup VideoAnalyseGlobal "
            "SnapSource devVideoAnalyse.getCaps devVideoAnalyse.getCapsEx devAudioAnalyse.getCaps "
            "intelli.getCaps.AnalyseMode intelli.getVideoAnalyseDeviceChannels devVideoAnalyse.factory.getCollect "
            "videoDiagnosisServer.factory.getCollect netApp.getRemoteDeviceStatus system.listService "
            "eventManager.getCaps capsManager.get&EventManagerEventHandler RecordFinder.getCaps "
            "magicBox.getDeviceClass userManager.getActiveUserInfoAll");
// Commands that take a reply without "result", but not one whose "result" refuses.
const Names kReadWithoutResult =
    NamesIn("SnapInfo WaterMark Ptz PtzAutoMovement devVideoInput.getCaps capsManager.get&MasterSlaveTracker "
            "devAudioAnalyse.getCaps speak.getCaps VideoAnalyseGlobal VideoAnalyseModule VideoDiagnosisProfile "
            "VideoDiagnosisTask VideoDiagnosisTask.x VideoDiagnosisProject");

// Commands of the generic frame.
struct Generics {
    GenericFrame frame;
    Names names;
};
const Generics kGenericFrames[] = {
    {{.arrayForm = false, .dimension = 0, .zeroBuffer = false, .alwaysArray = false}, {"CustomAudio"}},
    {{.arrayForm = false, .dimension = 0, .zeroBuffer = true, .alwaysArray = false},
     NamesIn("HeatImagingThermometry GPSLocationVersion ParkingSpaceAccessFilter WorkTime G3G4AutoChange "
             "CheckCode VSP_SCYDKD AudioMixChannel AudioTouch VTHRemoteIPCInfo WLan PSTNPersonServer ArmLink "
             "CabinLedTimeSchedule PSTNTestPlan DefenceArmMode SensorMode AlarmLamp RadarSpeedMeasure "
             "ParkSpaceOutLight VTOCallInfo Https PoliceMap SecurityAlarmsPrivacy PwdReset")},
    {{.arrayForm = false, .dimension = 1, .zeroBuffer = false, .alwaysArray = false}, {"ShortcutCall"}},
    {{.arrayForm = false, .dimension = 1, .zeroBuffer = true, .alwaysArray = false},
     NamesIn("SceneSnapShotWithRule TSPoint VTHNumberInfo GPS VTOBasicInfo ParkingSpaceLightGroup")},
    {{.arrayForm = true, .dimension = 0, .zeroBuffer = false, .alwaysArray = false},
     {"FreeCombination", "OSDSysAbnormal"}},
    {{.arrayForm = true, .dimension = 0, .zeroBuffer = true, .alwaysArray = false},
     NamesIn("TrafficSnapMosaic TesseraRadar LightingSchedule AroudWifiSearch PowerUp VideoMosaic "
             "MasterSlaveGlobal LaserDistMeasure AtmosphereOSD SceneMode NetAutoAdaptEncode PlatformMonitorIPC "
             "CallForward DoorBellSound VideoWidget2 VideoWidgetNumberStat DelayStrategy DropBoxToken "
             "IdlingTime CarDiverState Vehicle PtzDevice DevLocation Lighting_V2")},
    {{.arrayForm = true, .dimension = 0, .zeroBuffer = true, .alwaysArray = true},
     NamesIn("MasterSlaveGroup Light Curtain FreshAir GroundHeat")},
    {{.arrayForm = true, .dimension = 0, .zeroBuffer = true, .alwaysArray = false}, {"DeviceInfo"}},
    {{.arrayForm = true, .dimension = 1, .zeroBuffer = true, .alwaysArray = false},
     NamesIn("ThermographyOptions ThermometryRule TemperatureStatistics VideoInDayNight PrivacyMasking")},
};

TEST(Commands, ARefusedCallIsReadByTheseOnly) {
    for (const Command& command : Commands()) {
        if (!command.parses()) continue;
        JsonTree reply = ReplyTree(command, {.most = 1, .records = 1});
        reply.At("result") = JsonTree("true");
        const std::string accepted = reply.Text();
        reply.At("result") = JsonTree("false");
        const std::string refused = reply.Text();
        ParseCalls first(command);
        ASSERT_EQ(first.Run(accepted.c_str()), Outcome::Done) << command.name;
        ParseCalls second(command);
        const Outcome outcome = second.Run(refused.c_str());
        const bool isRead = kReadWhenRefused.contains(command.name);
        EXPECT_EQ(outcome, isRead ? Outcome::Done : Outcome::Refused) << command.name << refused;
        EXPECT_EQ(second.length() != 0, isRead) << command.name;
    }
}

TEST(Commands, AMissingResultIsNoRefusalToTheseOnly) {
    for (const Command& command : Commands()) {
        if (!command.parses() || kReadWhenRefused.contains(command.name)) continue;
        JsonTree reply = ReplyTree(command, {.most = 1, .records = 1});
        reply.At("result") = JsonTree("null");
        ParseCalls calls(command);
        const bool isRead = kReadWithoutResult.contains(command.name);
        EXPECT_EQ(calls.Run(reply.Text().c_str()), isRead ? Outcome::Done : Outcome::Refused) << command.name;
    }
}

TEST(Commands, AMissingValueIsNoFailureToTheseOnly) {
    for (const Command& command : Commands()) {
        if (command.parse != Command::Frame::Family) continue;
        // Some take "params" itself when there is no "caps" in it.
        const std::string reply = command.parseFrame.source == Source::CapsOrParams
                                      ? R"({"result":true})"
                                      : Envelope(command, JsonTree("null")).Text();
        ParseCalls calls(command);
        const Outcome outcome = calls.Run(reply.c_str());
        const std::uint32_t length = calls.length();
        if (kNoneIsNoLength.contains(command.name) || kNoneLeavesTheLength.contains(command.name)) {
            EXPECT_EQ(outcome, Outcome::Done) << command.name;
            EXPECT_EQ(length, 0u) << command.name;
        } else if (kNoneIsEmpty.contains(command.name)) {
            EXPECT_EQ(outcome, Outcome::Done) << command.name;
            EXPECT_EQ(length, command.table->size) << command.name;
        } else {
            EXPECT_EQ(outcome, Outcome::NoValue) << command.name;
            EXPECT_EQ(length, 0u) << command.name;
        }
        // Whether the length is told.
        if (command.table->hasSizeWords || HasPointers(*command.table)) continue;
        std::vector<std::byte> buffer(command.table->size);
        std::uint32_t told = 12345;
        RunParse(command, {reply.c_str(), buffer.data(), command.table->size, &told});
        const bool isTold = (outcome == Outcome::Done && !kNoneLeavesTheLength.contains(command.name))
                            || command.name == "WorkState"; // also when the call fails
        EXPECT_EQ(told, isTold ? length : 12345u) << command.name;
    }
}

TEST(Commands, ATextAsLongAsItsBufferIsTakenFromTheseOnly) {
    for (const Command& command : Commands()) {
        if (!command.packs()) continue;
        ParseCalls calls(command);
        const Outcome parsed = calls.Run(ReplyText(command, {.most = 1, .records = 1}).c_str());
        ASSERT_EQ(parsed, command.parses() ? Outcome::Done : Outcome::UnknownCommand) << command.name;
        const Packed whole = Pack(command, calls.record(), command.table->size);
        ASSERT_EQ(whole.outcome, Outcome::Done) << command.name;
        ASSERT_EQ(whole.text.back(), '\n');
        const std::size_t length = whole.text.size();
        const auto pack = [&](std::size_t capacity) {
            GuardedBuffer room(capacity);
            std::memset(room.data(), '#', capacity);
            const Outcome outcome = RunPack(
                command, {calls.record(), command.table->size, room.data(), static_cast<std::uint32_t>(capacity)});
            EXPECT_TRUE(outcome == Outcome::Done || outcome == Outcome::TextTooLong) << command.name;
            return outcome == Outcome::Done ? std::string(room.data(), capacity) : "(too long)";
        };
        const bool leavesAByte = kLeavesAByte.contains(command.name);
        const char behind = kEndsWithItsText.contains(command.name) ? '#' : '\0';
        EXPECT_EQ(pack(length + 2).substr(0, length + 1), whole.text + behind) << command.name;
        EXPECT_EQ(pack(length + 1), leavesAByte ? "(too long)" : whole.text + behind) << command.name;
        if (kLosesItsNewline.contains(command.name))
            EXPECT_EQ(pack(length), whole.text.substr(0, length - 1) + '\0') << command.name;
        else if (kLosesItsTerminator.contains(command.name) || kEndsWithItsText.contains(command.name))
            EXPECT_EQ(pack(length), whole.text) << command.name;
        else
            EXPECT_EQ(pack(length), "(too long)") << command.name;
        EXPECT_EQ(pack(length - 1), "(too long)") << command.name;
    }
}

TEST(Commands, TheGenericFrameServesThese) {
    for (const Command& command : Commands()) {
        const auto* const found = std::find_if(std::begin(kGenericFrames), std::end(kGenericFrames),
                                               [&](const Generics& row) { return row.names.contains(command.name); });
        const bool isGeneric = found != std::end(kGenericFrames);
        EXPECT_EQ(command.parse == Command::Frame::Generic, isGeneric) << command.name;
        EXPECT_EQ(command.pack == Command::Frame::Generic, isGeneric && command.name != "DeviceInfo") << command.name;
        if (isGeneric) {
            EXPECT_EQ(command.genericFrame, found->frame) << command.name;
        }
    }
}

} // namespace
} // namespace orrery
