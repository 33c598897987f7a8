// Which words of the frames a command has, by its name: what the sweeps over the command table take from its rows is
// told here once more, from the commands' side.
#include "Commands.h"
#include "support/CommandCalls.h"
#include "support/Specimens.h"
#include "support/TableText.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <set>

namespace orrery {
namespace {

using namespace test;

using Names = std::set<std::string_view>;

// Commands whose reply is read though the device refused the call.
const Names kReadWhenRefused = {
    "Alarm",           "NetAlarm", "LossDetect", "BlindDetect",      "StorageNotExist",  "StorageFailure",
    "StorageLowSpace", "NetAbort", "IPConflict", "MacConflict",      "PSTNBreakLine",    "EncodePlan",
    "EncodeEncrypt",   "RTSP",     "Multicast",  "VideoAnalyseRule", "AudioAnalyseRule", "IVSFramRule"};

// Commands whose text may be as long as its buffer: of some the last character gives way to the terminator, of others
// the terminator is left out.
const Names kLosesItsNewline = {"Alarm",           "NetAlarm",         "LossDetect",      "BlindDetect",
                                "StorageNotExist", "StorageFailure",   "StorageLowSpace", "NetAbort",
                                "IPConflict",      "MacConflict",      "PSTNBreakLine",   "Encode",
                                "EncodePlan",      "SmartEncode",      "EncodeEncrypt",   "RTSP",
                                "Multicast",       "VideoAnalyseRule", "AudioAnalyseRule"};
const Names kLosesItsTerminator = {"NvrEncrypt", "StroboscopicLamp"};

// Commands of the generic table frame, all of them with one record in a buffer that is cleared.
const Names kTableFrame = {"G3G4AutoChange", "CabinLedTimeSchedule", "PwdReset", "WLan", "Https"};

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

TEST(Commands, ATextAsLongAsItsBufferIsTakenFromTheseOnly) {
    for (const Command& command : Commands()) {
        if (!command.packs()) continue;
        ParseCalls calls(command);
        ASSERT_EQ(calls.Run(ReplyText(command, {.most = 1, .records = 1}).c_str()), Outcome::Done) << command.name;
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
        EXPECT_EQ(pack(length + 1), whole.text + '\0') << command.name;
        if (kLosesItsNewline.contains(command.name))
            EXPECT_EQ(pack(length), whole.text.substr(0, length - 1) + '\0') << command.name;
        else if (kLosesItsTerminator.contains(command.name))
            EXPECT_EQ(pack(length), whole.text) << command.name;
        else
            EXPECT_EQ(pack(length), "(too long)") << command.name;
        EXPECT_EQ(pack(length - 1), "(too long)") << command.name;
    }
}

TEST(Commands, TheGenericTableFrameServesThese) {
    for (const Command& command : Commands()) {
        const bool isGeneric = kTableFrame.contains(command.name);
        EXPECT_EQ(command.parse == Command::Frame::Table, isGeneric) << command.name;
        EXPECT_EQ(command.pack == Command::Frame::Table, isGeneric) << command.name;
        if (isGeneric) {
            EXPECT_EQ(command.tableFrame, (TableFrame{.zeroBuffer = true})) << command.name;
        }
    }
}

} // namespace
} // namespace orrery
