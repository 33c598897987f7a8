// Which shapes of value and which sizes of buffer each command takes, what it leaves of its caller's bytes, and how it
// writes several records: the lists here are those of the headers' sentences.
#include "Commands.h"
#include "support/CommandCalls.h"
#include "support/CommandNames.h"
#include "support/Specimens.h"
#include "support/TableText.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace orrery {
namespace {

using namespace test;

// One record from an object, or a record an element of a list; other types are refused.
const Names kRecordOrList =
    NamesIn("AlarmSubSystem SnapLinkage AnalogAlarm ExAlarm AlarmOut ExAlarmOut AlarmKeyboard ExAlarmBox SCADADev RTMP "
            "AlarmBell AlarmSlotBond AudioDetect Lighting EncodeAdapt CompressPlay ChannelTitle VideoOut VideoColor "
            "VideoWidget VideoOutputComposite MonitorWall MonitorTour MonitorCollection DisplaySource RecordSource "
            "HolidaySchedule StorageDevGroup RecordToGroup MetaDataServer RemoteStorageLimit BurnRecordFormat "
            "MultiBurn IdleMotion StandingTime EnclosureTimeSchedule MonitorWallCollection "
            "MonitorWallCollectionTour VideoOutputTitle VideoIn VideoInBoundary Snap MovedDetect AnalogMatrix "
            "AnalogMatrixProtocol Floodlight AirFan LightGlobal VTOInfo RecordBackupRestore AccessControl "
            "AccessTimeSchedule AccessWorkMode RemoteChannel RecordMode WorkState videoDiagnosisServer.getState");
// A record an element of a list; any other value is one record, or, of the last two, none.
const Names kAnyOrList =
    NamesIn("VideoInOptions ParkingSpaceScreen ParkingSpaceCellStatus SmartEncode EncodePlan StorageGroup");
// Of all these, those that take an empty list as one of no records. To the others it is as good as a missing value.
const Names kEmptyList =
    NamesIn("IdleMotion StandingTime EnclosureTimeSchedule MonitorWallCollection MonitorWallCollectionTour "
            "VideoOutputTitle VideoIn VideoInBoundary Snap MovedDetect AnalogMatrix AnalogMatrixProtocol "
            "Floodlight AirFan LightGlobal VTOInfo RecordBackupRestore VideoInOptions ParkingSpaceScreen "
            "ParkingSpaceCellStatus");
const Names kEmptyListSucceeds = // with a length of 0
    NamesIn("ChannelTitle VideoOut VideoColor VideoWidget VideoOutputComposite MonitorWall MonitorTour "
            "MonitorCollection DisplaySource RecordSource RemoteChannel SmartEncode EncodePlan StorageGroup");
// One record that is a list: other types are refused.
const Names kListOnly =
    NamesIn("PowerFault BurnFull TimeSpeedLimit VoiceAlert DevList CommSubscribe IOT_InfraredDetect AirCondition "
            "AudioOutEqualizer AudioOutSuppression AudioInControl trafficSnap.getDeviceStatus Comm VideoInZoom "
            "VideoInFocus CalibrateMatrix AudioMatrixConfig AudioMatrixSilence LowerMatrix VideoAnalyseCalibrate "
            "VideoAnalyseModule VideoInAnalyseRule VideoDiagnosisGlobal PtzPreset PtzAutoMovement CANFilter Record");
// Buffers and records of exactly one size.
const Names kExactBuffer =
    NamesIn("VideoDiagnosisProfile VideoDiagnosisTask VideoDiagnosisTask.x VideoDiagnosisProject VideoDiagnosisGlobal "
            "videoDiagnosisServer.getCaps videoDiagnosisServer.factory.getCollect");
const Names kExactRecord =
    NamesIn("VideoDiagnosisProfile VideoDiagnosisTask VideoDiagnosisTask.x VideoDiagnosisProject VideoDiagnosisGlobal "
            "VideoDiagnosisRealProject videoDiagnosisServer.getCaps");
// What is behind the records stays as the caller had it. Elsewhere it is cleared.
const Names kLeavesWhatIsBehind = NamesIn(
    "DevList RemoteChannel RemoteDevice Encode EncodeEncrypt VideoInExposure PtzPreset PtzAutoMovement CANFilter "
    "CalibrateMatrix ChannelTitle VideoOut VideoColor VideoWidget VideoOutputComposite MonitorWall MonitorTour "
    "MonitorCollection DisplaySource RecordSource RecordDownloadSpeed RecordMode Raid StorageGroup BurnPlan "
    "VideoAnalyseGlobal VideoAnalyseCalibrate VideoAnalyseSource TrafficGlobal TrafficSnapshot "
    "TrafficFlowStat VideoInAnalyseRule NvrEncrypt");
// Some members whose keys are absent stay as the caller had them. Elsewhere they are cleared.
const Names kKeepsWhatIsAbsent = NamesIn("Encode NvrEncrypt TrafficGlobal TrafficSnapshot");
// Several records are written as a list, one bare.
const Names kBareOrList =
    NamesIn("AlarmSubSystem SnapLinkage AnalogAlarm ExAlarm AlarmOut ExAlarmOut AlarmKeyboard ExAlarmBox SCADADev "
            "AccessControl AccessTimeSchedule AccessWorkMode RTMP AlarmBell AlarmSlotBond AudioDetect Lighting "
            "RemoteChannel VideoInBacklight VideoInDefog FishEye ChannelTitle VideoOut VideoColor VideoWidget "
            "VideoOutputComposite MonitorWall MonitorTour MonitorCollection DisplaySource RecordSource "
            "MonitorWallCollection MonitorWallCollectionTour VideoOutputTitle VideoIn VideoInBoundary Snap MovedDetect "
            "AnalogMatrix AnalogMatrixProtocol Floodlight AirFan LightGlobal VTOInfo RecordBackupRestore Record "
            "RecordMode HolidaySchedule StorageDevGroup RecordToGroup MetaDataServer RemoteStorageLimit "
            "BurnRecordFormat MultiBurn WorkState ParkingSpaceScreen ParkingSpaceCellStatus");
// The same, but a list for any other size than that of one record.
const Names kBareOrListByBytes =
    NamesIn("Encode EncodeAdapt SmartEncode CompressPlay VideoInOptions IdleMotion StandingTime EnclosureTimeSchedule");
const Names kAlwaysList = NamesIn("EncodePlan StorageGroup NAS");
const Names kByMember = NamesIn("RemoteDevice Raid");

struct Ran {
    Outcome outcome;
    std::uint32_t length;
};

bool IsFamily(const Command& command) {
    return command.parse == Command::Frame::Family && command.parseFrame.source != Source::Result;
}

// The value in a reply, into room for two records, or for the one that the command insists on.
Ran Read(const Command& command, const char* value) {
    const std::uint32_t records = kExactBuffer.contains(command.name) ? 1 : 2;
    ParseCalls calls(command, std::size_t{records} * command.table->size);
    const Outcome outcome =
        calls.Run(Envelope(command, JsonTree(value)).Text().c_str(), std::size_t{records} * command.table->size);
    return {outcome, calls.length()};
}

// What a buffer of one record holds behind the call.
std::vector<std::byte> BytesOf(const Command& command, const std::string& value) {
    ParseCalls calls(command, command.table->size);
    calls.Run(Envelope(command, JsonTree(value)).Text().c_str(), command.table->size);
    return {calls.bytes().begin(), calls.bytes().end()};
}

TEST(CommandShapes, OtherTypesThanListsAndObjectsAreRefusedByThese) {
    for (const Command& command : Commands()) {
        if (!IsFamily(command)) continue;
        const bool refuses = kRecordOrList.contains(command.name) || kListOnly.contains(command.name)
                             || command.name == "RemoteDevice" || command.name == "Language";
        EXPECT_EQ(Read(command, "5").outcome == Outcome::WrongShape, refuses) << command.name;
    }
}

TEST(CommandShapes, AnObjectIsRefusedByTheseOnly) {
    for (const Command& command : Commands()) {
        if (!IsFamily(command)) continue;
        const bool refuses = kListOnly.contains(command.name) || command.name == "Language";
        EXPECT_EQ(Read(command, "{}").outcome == Outcome::WrongShape, refuses) << command.name;
    }
}

TEST(CommandShapes, AListIsSeveralRecordsToTheseOnly) {
    const Names byTheReply = NamesIn("Encode Record");
    const Names tellsAnother =
        NamesIn("Raid VideoInBacklight VideoInDefog NvrEncrypt videoDiagnosisServer.getState StroboscopicLamp");
    for (const Command& command : Commands()) {
        if (!IsFamily(command) || byTheReply.contains(command.name) || tellsAnother.contains(command.name)) continue;
        const bool isSeveral = kRecordOrList.contains(command.name) || kAnyOrList.contains(command.name);
        const Ran ran = Read(command, "[{},{}]");
        if (isSeveral) {
            EXPECT_EQ(ran.outcome, Outcome::Done) << command.name;
            EXPECT_EQ(ran.length, 2 * command.table->size) << command.name;
            // A null takes a place, and is told but for one command.
            const std::uint32_t withNull = command.name == "WorkState" ? 1 : 2;
            EXPECT_EQ(Read(command, "[{},null]").length, withNull * command.table->size) << command.name;
        } else {
            EXPECT_NE(ran.length, 2 * command.table->size) << command.name;
        }
    }
}

TEST(CommandShapes, AListIsNoRecordToTheOthers) {
    const Names takesLists = NamesIn("RemoteDevice Raid Language NAS Encode Record FishEye"); // in ways of their own
    int compared = 0;
    for (const Command& command : Commands()) {
        if (!IsFamily(command) || kRecordOrList.contains(command.name) || kAnyOrList.contains(command.name)
            || kListOnly.contains(command.name) || takesLists.contains(command.name))
            continue;
        const JsonTree record = RecordTree(*command.table, {});
        if (record.kind() != JsonTree::Kind::Object || HasPointers(*command.table)) continue;
        ++compared;
        // What an object tells is not found in a list of it.
        const std::vector<std::byte> listed = BytesOf(command, "[" + record.Text() + "]");
        EXPECT_TRUE(listed == BytesOf(command, "[5]")) << command.name;
        if (command.name == "devAudioAnalyse.getCaps") continue; // functions read it, and nothing of this text
        EXPECT_TRUE(listed != BytesOf(command, record.Text())) << command.name;
    }
    EXPECT_GT(compared, 100);
}

TEST(CommandShapes, AnEmptyListIsNoRecordOrAsGoodAsNone) {
    for (const Command& command : Commands()) {
        if (!kRecordOrList.contains(command.name) && !kAnyOrList.contains(command.name)) continue;
        const bool succeeds = kEmptyList.contains(command.name) || kEmptyListSucceeds.contains(command.name);
        const Ran ran = Read(command, "[]");
        EXPECT_EQ(ran.outcome, succeeds ? Outcome::Done : Outcome::NoValue) << command.name;
        EXPECT_EQ(ran.length, 0u) << command.name;
    }
}

TEST(CommandShapes, ABufferOfAnotherSizeIsRefusedByTheseOnly) {
    for (const Command& command : Commands()) {
        if (command.parse != Command::Frame::Family) continue;
        const std::string text = ReplyText(command, {.most = 1, .records = 1});
        ParseCalls calls(command, command.table->size + 1);
        const bool refuses = kExactBuffer.contains(command.name);
        EXPECT_EQ(calls.Run(text.c_str(), command.table->size + 1), refuses ? Outcome::BufferTooSmall : Outcome::Done)
            << command.name;
    }
}

TEST(CommandShapes, WhatIsBehindTheRecordsIsClearedButForThese) {
    for (const Command& command : Commands()) {
        if (command.parse != Command::Frame::Family || kExactBuffer.contains(command.name)) continue;
        const std::string text = ReplyText(command, {.most = 1, .records = 1});
        const std::size_t record = command.table->size;
        const std::size_t size = record + std::min<std::size_t>(record - 1, 99); // no room for another one
        ParseCalls calls(command, size);
        ASSERT_EQ(calls.Run(text.c_str(), size), Outcome::Done) << command.name;
        const std::byte left = kLeavesWhatIsBehind.contains(command.name) ? kUntouched : std::byte{0};
        const auto behind = calls.bytes().subspan(record);
        EXPECT_TRUE(std::ranges::all_of(behind, [left](std::byte b) { return b == left; })) << command.name;
    }
}

TEST(CommandShapes, ARecordIsClearedBeforeItIsReadButForThese) {
    int compared = 0;
    for (const Command& command : Commands()) {
        constexpr std::size_t kLong = std::size_t{1} << 20; // larger ones take long
        if (!IsFamily(command) || HasPointers(*command.table) || command.table->size > kLong) continue;
        const bool isList = kListOnly.contains(command.name) || command.name == "VideoAnalyseCalibrate";
        const std::string text = Envelope(command, JsonTree(isList ? "[]" : "{}")).Text();
        // What is the same whatever was there before is cleared, or read.
        ParseCalls ones(command), others(command);
        const Outcome outcome = ones.Run(text.c_str(), command.table->size, kUntouched);
        ASSERT_EQ(others.Run(text.c_str(), command.table->size, std::byte{0x3C}), outcome) << command.name;
        if (outcome != Outcome::Done) continue;
        ++compared;
        EXPECT_EQ(std::ranges::equal(ones.bytes(), others.bytes()), !kKeepsWhatIsAbsent.contains(command.name))
            << command.name;
    }
    EXPECT_GT(compared, 200);
}

TEST(CommandShapes, SeveralRecordsAreWrittenAsAListByTheseOnly) {
    int compared = 0;
    for (const Command& command : Commands()) {
        if (command.pack != Command::Frame::Family || !command.parses() || HasPointers(*command.table)
            || command.packFrame.formBy != nullptr || kByMember.contains(command.name))
            continue;
        const std::size_t size = command.table->size;
        ParseCalls calls(command);
        ASSERT_EQ(calls.Run(ReplyText(command, {.most = 1, .records = 1}).c_str()), Outcome::Done) << command.name;
        std::vector<std::byte> two(calls.bytes().begin(), calls.bytes().end());
        two.insert(two.end(), calls.bytes().begin(), calls.bytes().end());
        if (kExactRecord.contains(command.name)) {
            EXPECT_NE(Pack(command, two.data(), size + 1).outcome, Outcome::Done) << command.name;
            continue;
        }
        const auto text = [&](std::size_t bytes) {
            std::string packed = Pack(command, two.data(), bytes).text;
            if (!packed.empty()) packed.pop_back(); // its newline
            // Under its own key.
            const std::string_view key = command.packFrame.quotedKey;
            if (key.empty()) return packed;
            return packed.substr(2 + key.size(), packed.size() - key.size() - 4);
        };
        std::string one = text(size);
        ASSERT_FALSE(one.empty()) << command.name;
        if (kAlwaysList.contains(command.name)) {
            ASSERT_TRUE(one.starts_with("[ ") && one.ends_with(" ]")) << one;
            one = one.substr(2, one.size() - 4);
            EXPECT_EQ(text(2 * size), "[ " + one + ", " + one + " ]") << command.name;
            continue;
        }
        const bool byBytes = kBareOrListByBytes.contains(command.name);
        const bool isList = kBareOrList.contains(command.name) || byBytes;
        EXPECT_EQ(text(2 * size), isList ? "[ " + one + ", " + one + " ]" : one) << command.name;
        EXPECT_EQ(text(2 * size - 1), byBytes ? "[ " + one + " ]" : one) << command.name;
        ++compared;
    }
    EXPECT_GT(compared, 150);
}

} // namespace
} // namespace orrery
